#include "plantwindows/Antwortpruefung.h"
#include "plantwindows/Aufgabe.h"
#include "tests/Testprogramm.h"

#include <QTest>

using namespace Qt::StringLiterals;

/* Marks of written names, and the parts of names that are asked for. */

namespace {

constexpr Urteil ja = Urteil::Richtig, fast = Urteil::Fast, nein = Urteil::Falsch;

struct Fall
{
    QStringView gegeben, richtig;
    Urteil urteil;
    QStringView grund = {};
};

// clang-format off
/// Botanical names and names of varieties.
constexpr Fall botanisch[] = {
    {u"Abutilon", u"Abutilon", ja},
    {u"  Abutilon ", u"Abutilon", ja},
    {u"abutilon", u"Abutilon", fast, u"Groß- und Kleinschreibung"},
    {u"ABUTILON", u"Abutilon", fast, u"Groß- und Kleinschreibung"},
    {u"Abutilom", u"Abutilon", fast, u"ein Buchstabe"},
    {u"Abutiln", u"Abutilon", fast, u"ein Buchstabe"},
    {u"Abutillon", u"Abutilon", fast, u"ein Buchstabe"},
    {u"Abuitlon", u"Abutilon", fast, u"ein Buchstabe"},
    {u"abutilom", u"Abutilon", nein},
    {u"Abutilum", u"Abutilon", fast, u"Endung"},
    {u"Abutilus", u"Abutilon", fast, u"Endung"},
    {u"Abtulion", u"Abutilon", nein},
    {u"Abutio", u"Abutilon", nein},
    {u"Begonia", u"Abutilon", nein},
    {u"", u"Abutilon", nein},
    {u"   ", u"Abutilon", nein},
    {u"×", u"Abutilon", nein},
    {u"megapotamicum", u"megapotamicum", ja},
    {u"Megapotamicum", u"megapotamicum", fast, u"Groß- und Kleinschreibung"},
    {u"megapotamicus", u"megapotamicum", fast, u"Endung"},
    {u"megapotamica", u"megapotamicum", fast, u"Endung"},
    {u"alba", u"album", fast, u"Endung"},
    {u"albus", u"alba", fast, u"Endung"},
    {u"sylvestris", u"sylvestre", fast, u"Endung"},
    {u"vulgare", u"vulgaris", fast, u"Endung"},
    {u"nigra", u"niger", fast, u"Endung"},
    {u"nigrum", u"nigra", fast, u"Endung"},
    {u"tener", u"tenerum", fast, u"Endung"},
    {u"wilsoni", u"wilsonii", fast, u"Endung"},
    {u"wilsonae", u"wilsoniae", fast, u"Endung"},
    {u"chinense", u"chinensis", fast, u"Endung"},
    {u"japonicum", u"japonica", fast, u"Endung"},
    {u"japonisca", u"japonica", fast, u"ein Buchstabe"},
    {u"jaqonicum", u"japonica", nein},
    {u"rex", u"rox", nein},
    {u"Poa", u"Pea", nein},
    {u"Ilex", u"Ilax", fast, u"ein Buchstabe"},
    {u"Ilix", u"Ilex", fast, u"Endung"},
    {u"rubrum", u"rubrum", ja},
    {u"× rubrum", u"rubrum", ja},
    {u"x rubrum", u"rubrum", ja},
    {u"X rubrum", u"rubrum", ja},
    {u"×rubrum", u"rubrum", ja},
    {u"rubra", u"rubrum", fast, u"Endung"},
    {u"× Fatshedera", u"Fatshedera", ja},
    {u"'Rozanne'", u"Rozanne", ja},
    {u"„Rozanne“", u"Rozanne", ja},
    {u"’Rozanne’", u"Rozanne", ja},
    {u"`Rozanne´", u"Rozanne", ja},
    {u"\"Rozanne\"", u"Rozanne", ja},
    {u"Rosanne", u"Rozanne", fast, u"ein Buchstabe"},
    {u"rozanne", u"Rozanne", fast, u"Groß- und Kleinschreibung"},
    {u"Faassens Black", u"Faassen's Black", ja},
    {u"Faassen’s Black", u"Faassen's Black", ja},
    {u"Fassen's Black", u"Faassen's Black", fast, u"ein Buchstabe"},
    {u"Faassens black", u"Faassen's Black", fast, u"Groß- und Kleinschreibung"},
    {u"Blak Faassens", u"Faassen's Black", nein},
    {u"Bristolruby", u"Bristol Ruby", nein},
    {u"BristolRuby", u"Bristol Ruby", fast, u"Leerzeichen"},
    {u"Bristol Rubi", u"Bristol Ruby", fast, u"ein Buchstabe"},
    {u"Bristel Rubi", u"Bristol Ruby", nein},
    {u"Soleil d'Or", u"Soleil d'Or", ja},
    {u"tataricum subsp. ginnala", u"tataricum subsp. ginnala", ja},
    {u"tataricum ssp. ginnala", u"tataricum subsp. ginnala", ja},
    {u"tataricum subsp ginnala", u"tataricum subsp. ginnala", ja},
    {u"tataricum var. ginnala", u"tataricum subsp. ginnala", nein},
    {u"tataricum", u"tataricum subsp. ginnala", fast, u"unvollständig"},
    {u"tatarica", u"tataricum subsp. ginnala", nein},
    {u"tataricum subsp. ginala", u"tataricum subsp. ginnala", fast, u"ein Buchstabe"},
    {u"Rex-Hybriden", u"Rex-Hybriden", ja},
    {u"Rex Hybriden", u"Rex-Hybriden", ja},
    {u"Rex–Hybriden", u"Rex-Hybriden", ja},
    {u"rex-Hybriden", u"Rex-Hybriden", fast, u"Groß- und Kleinschreibung"},
    {u"Rex", u"Rex-Hybriden", fast, u"unvollständig"},
    {u"uva-crispa", u"uva-crispa", ja},
    {u"uva crispa", u"uva-crispa", ja},
    {u"uvacrispa", u"uva-crispa", fast, u"ein Buchstabe"},
    {u"Aloe", u"Aloë", ja},
    {u"Leucojum", u"Leucojum", ja},
    {u"Acer", u"Aster", nein},
    {u"Rhododendrum", u"Rhododendron", fast, u"Endung"},
    {u"Prunum", u"Prunus", fast, u"Endung"},
};

constexpr Fall deutsch[] = {
    {u"Schwarz-Erle", u"Schwarz-Erle", ja},
    {u"Schwarzerle", u"Schwarz-Erle", ja},
    {u"Schwarz-Erle", u"Schwarzerle", ja},
    {u"Schwarz Erle", u"Schwarz-Erle", fast, u"Leerzeichen"},
    {u"schwarz-erle", u"Schwarz-Erle", fast, u"Groß- und Kleinschreibung"},
    {u"Schwarz-Erlen", u"Schwarz-Erle", fast, u"ein Buchstabe"},
    {u"Japanische Sumpf-Schwertlilie", u"Japanische Sumpf-Schwertlilie", ja},
    {u"Japanische Sumpfschwertlilie", u"Japanische Sumpf-Schwertlilie", ja},
    {u"japanische Sumpfschwertlilie", u"Japanische Sumpf-Schwertlilie", fast, u"Groß- und Kleinschreibung"},
    {u"Schönmalve", u"Schönmalve", ja},
    {u"Schoenmalve", u"Schönmalve", ja},
    {u"Schonmalve", u"Schönmalve", fast, u"ein Buchstabe"},
    {u"Königsfarn", u"Königsfarn", ja},
    {u"Weissdorn", u"Weißdorn", ja},
    {u"Weisdorn", u"Weißdorn", fast, u"ein Buchstabe"},
    {u"Fleißiges Lieschen", u"Fleißiges Lieschen", ja},
    {u"Fleisiges Liesschen", u"Fleißiges Lieschen", nein},
    {u"Malve", u"Schönmalve", nein},
};
// clang-format on

template<size_t n>
void faelle(const Fall (&alle)[n], bool aufDeutsch)
{
    for (const Fall &fall : alle)
        QTest::addRow("%s / %s", qPrintable(fall.gegeben.toString()), qPrintable(fall.richtig.toString()))
            << fall.gegeben.toString() << fall.richtig.toString() << fall.urteil << fall.grund.toString() << aufDeutsch;
}

} // namespace

class TestAntwortpruefung : public QObject
{
    Q_OBJECT

private slots:
    void einzeln_data()
    {
        QTest::addColumn<QString>("gegeben");
        QTest::addColumn<QString>("richtig");
        QTest::addColumn<Urteil>("urteil");
        QTest::addColumn<QString>("grund");
        QTest::addColumn<bool>("aufDeutsch");
        faelle(botanisch, false);
        faelle(deutsch, true);
    }
    void einzeln()
    {
        QFETCH(const QString, gegeben);
        QFETCH(const QString, richtig);
        QFETCH(const Urteil, urteil);
        QFETCH(const QString, grund);
        QFETCH(const bool, aufDeutsch);
        const Befund befund = antwortPruefen(gegeben, {.text = richtig, .teile = {nurArt(richtig)}, .deutsch = aufDeutsch});
        QCOMPARE(befund.urteil, urteil);
        QCOMPARE(befund.grund, grund);
    }

    void andereNamen()
    {
        const Loesung loesung{.text = u"Eberesche"_s, .auch = {u"Vogelbeere"_s}, .deutsch = true};
        QCOMPARE(antwortPruefen(u"Vogelbeere"_s, loesung).urteil, ja);
        QCOMPARE(antwortPruefen(u"Vogelbere"_s, loesung).urteil, fast);
        QCOMPARE(antwortPruefen(u"Mehlbeere"_s, loesung).urteil, nein);
        const Loesung frueher{.text = u"Symphyotrichum"_s, .frueher = {u"Aster"_s}};
        QCOMPARE(antwortPruefen(u"Aster"_s, frueher), (Befund{fast, u"veraltet"_s}));
        // A synonym with a fault is two steps away.
        QCOMPARE(antwortPruefen(u"Astar"_s, frueher).urteil, nein);
    }

    /// One letter away in any way is nearly right, whatever the word; two letters away is wrong.
    void jederEinzelneFehler()
    {
        const QString wort = u"Quercqxvkw"_s; // no ending that is taken for another
        const Loesung loesung{.text = wort};
        for (qsizetype i = 1; i < wort.size(); ++i) {
            QString fehlt = wort, anders = wort, mehr = wort;
            fehlt.remove(i, 1);
            anders[i] = u'z';
            mehr.insert(i, u'z');
            for (const QString &antwort : {fehlt, anders, mehr})
                QVERIFY2(antwortPruefen(antwort, loesung).urteil == fast, qPrintable(antwort));
            if (i + 1 < wort.size() && wort[i] != wort[i + 1]) {
                QString vertauscht = wort;
                std::swap(vertauscht[i], vertauscht[i + 1]);
                QVERIFY2(antwortPruefen(vertauscht, loesung).urteil == fast, qPrintable(vertauscht));
            }
            for (qsizetype j = i + 2; j < wort.size(); ++j) {
                QString zwei = anders;
                zwei[j] = u'y';
                QVERIFY2(antwortPruefen(zwei, loesung).urteil == nein, qPrintable(zwei));
            }
        }
    }

    void teile_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<Namensteile>("teile");
        const auto zeile = [](const QString &name, const QString &gattung, const QString &art, const QString &sorte) {
            QTest::newRow(qPrintable(name)) << name << Namensteile{gattung, art, sorte};
        };
        zeile(u"Abutilon megapotamicum"_s, u"Abutilon"_s, u"megapotamicum"_s, {});
        zeile(u"Quercus × turneri 'Pseudoturneri'"_s, u"Quercus"_s, u"turneri"_s, u"Pseudoturneri"_s);
        zeile(u"× Fatshedera lizei"_s, u"Fatshedera"_s, u"lizei"_s, {});
        zeile(u"Geranium 'Rozanne'"_s, u"Geranium"_s, {}, u"Rozanne"_s);
        zeile(u"Acer platanoides 'Faassen's Black'"_s, u"Acer"_s, u"platanoides"_s, u"Faassen's Black"_s);
        zeile(u"Euonymus fortunei 'Emerald 'n' Gold'"_s, u"Euonymus"_s, u"fortunei"_s, u"Emerald 'n' Gold"_s);
        zeile(u"Acer tataricum subsp. ginnala"_s, u"Acer"_s, u"tataricum subsp. ginnala"_s, {});
        zeile(u"Begonia-Rex-Hybriden"_s, u"Begonia"_s, u"Rex-Hybriden"_s, {});
        zeile(u"Abutilon-Hybriden"_s, u"Abutilon"_s, u"Hybriden"_s, {});
        zeile(u"Paeonia lactiflora-Hybriden"_s, u"Paeonia"_s, u"lactiflora-Hybriden"_s, {});
        zeile(u"Iris-Barbata-Elatior-Gruppe"_s, u"Iris"_s, u"Barbata-Elatior-Gruppe"_s, {});
        zeile(u"Ribes uva-crispa"_s, u"Ribes"_s, u"uva-crispa"_s, {});
        zeile(u""_s, {}, {}, {});
    }
    void teile()
    {
        QFETCH(const QString, name);
        QFETCH(const Namensteile, teile);
        const Namensteile gefunden = namensteile(name);
        QCOMPARE(gefunden.gattung, teile.gattung);
        QCOMPARE(gefunden.art, teile.art);
        QCOMPARE(gefunden.sorte, teile.sorte);
    }

    void nurDieArt()
    {
        QCOMPARE(nurArt(u"tataricum subsp. ginnala"_s), u"tataricum"_s);
        QCOMPARE(nurArt(u"lactiflora-Hybriden"_s), u"lactiflora"_s);
        QCOMPARE(nurArt(u"Barbata-Elatior-Gruppe"_s), u"Barbata-Elatior"_s);
        QVERIFY(nurArt(u"Hybriden"_s).isEmpty());
        QVERIFY(nurArt(u"megapotamicum"_s).isEmpty());
    }

    void textOhneNamen()
    {
        const QStringList worte =
            namensworte({u"Rosa 'Barkarole'"_s, u"Edelrose 'Barkarole'"_s, u"Rosaceae (Rosengewächse)"_s, u"Abutilon-Hybriden"_s});
        QCOMPARE(worte, (QStringList{u"Rosa"_s, u"Barkarole"_s, u"Edelrose"_s, u"Rosaceae"_s, u"Rosengewächse"_s, u"Abutilon"_s}));
        QCOMPARE(ohneNamen(u"Edelrosen mögen Sonne; 'Barkarole' blüht rosa, Rosa auch. Hybriden."_s, worte),
                 u"[…] mögen Sonne; '[…]' blüht rosa, […] auch. Hybriden."_s);
        QCOMPARE(ohneNamen(u"Nichts davon."_s, worte), u"Nichts davon."_s);
        QCOMPARE(ohneNamen({}, worte), QString());
    }

    void punkte()
    {
        QCOMPARE(punktetext(0), u"0"_s);
        QCOMPARE(punktetext(1), u"½"_s);
        QCOMPARE(punktetext(2), u"1"_s);
        QCOMPARE(punktetext(63), u"31½"_s);
        QCOMPARE(halbePunkte(ja), 2);
        QCOMPARE(halbePunkte(fast), 1);
        QCOMPARE(halbePunkte(nein), 0);
    }
};

FLOX_TEST(tst_antwortpruefung, TestAntwortpruefung)
#include "tst_antwortpruefung.moc"
