#include "Fensterprobe.h"

#include "tests/Testprogramm.h"

#include <QSignalSpy>
#include <QTest>

using namespace Qt::StringLiterals;

/* The fruit window: lists under captions, groups that vanish together, headings over two groups. */

namespace {

struct Obstzeile
{
    const char *feld, *control, *titel;
    const char *rahmen, *rahmentitel; ///< the group that closes with it
};

/// Words under a caption.
constexpr Obstzeile obstlisten[] = {
    {"WUCHS", "lblObWuchs", "Label4", "SSFrame1", "Label38"},
    {"BLATT", "lblObBlatt", "Label5", "SSFrame1", "Label38"},
    {"FRUHOL", "lblObFruchtholz", "Label7", "SSFrame1", "Label38"},
    {"TRIRUT", "lblObTrieb", "Label9", "SSFrame1", "Label38"},
    {"UNTERLAGE", "lblObUnterlage", "LabelUnterl", "SSFrame1", "Label38"},
    {"KRANKH", "lblObEmpfindlich", "Label1", "SSFrame2", "Label6"},
    {"RESISTENZ", "lblObUnempfindlich", "Label10", "SSFrame2", "Label6"},
    {"BODEN", "lblObBoden", "Label39", "SSFrame4", "Label42"},
    {"KLIMA", "lblObKlima", "Label33", "SSFrame4", "Label42"},
    {"NAEHRSTOFF", "lblObNaehrstoff", "Label15", "SSFrame4", "Label42"},
    {"EIGNUNG", "lblObEignung", "Label41", "SSFrame6", "Label42"},
    {"ERZIFORM", "lblObErziehung", "Label43", "SSFrame6", "Label42"},
    {"SHNITT", "lblObSchnitt", "Label47", "SSFrame6", "Label42"},
    {"PFLSHTZ", "lblObPflanzenschutz", "Label16", "SSFrame6", "Label42"},
    {"FROEMF", "lblObFrostempfindlichkeit", "Label18", "SSFrame5", "Label45"},
    {"BLUETE", "lblObBluetezeit", "Label19", "SSFrame5", "Label45"},
    {"FRUSTAN", "lblObFruchtstand", "Label20", "SSFrame5", "Label45"},
    {"BEFRU", "lblObBefruchtung", "Label26", "SSFrame5", "Label45"},
    {"BEFRSOR", "lblObAlsBefruchtersorte", "Label27", "SSFrame5", "Label45"},
    {"ALTRNAZ", "lblObAlternanz", "Label13", "SSFrame10", nullptr},
    {"FRUFAR", "lblObFruchtfarbe", "Label24", "SSFrame8", nullptr},
    {"GRUNDFARB", "lblObGrundfarbe", "Label25", "SSFrame8", nullptr},
    {"DECKFARB", "lblObDeckfarbe", "Label14", "SSFrame8", nullptr},
    {"SCHALE", "lblObSchale", "Label22", "SSFrame7", "Label51"},
    {"FRUFLEI", "lblObFruchtfleisch", "Label23", "SSFrame7", "Label51"},
    {"FRUFOR", "lblObFruchtform", "Label23", "SSFrame7", "Label51"},
    {"GESMAK", "lblObGeschmack", "Label29", "SSFrame9", nullptr},
    {"ERTRAG", "lblObErtrag", "Label31", "SSFrame9", nullptr},
    {"ERNTE", "lblObErnte", "Label35", "SSFrame3", "Label53"},
    {"TRANSPEMP", "lblObTransport", "Label21", "SSFrame3", "Label53"},
    {"VERWEND", "lblObVerwendung", "Label11", "SSFrame3", "Label53"},
    {"LAGEIG", "lblObLagereignung", "Label32", nullptr, nullptr},
    {"LAGKRANK", "lblObLagerkrankheiten", "Label50", nullptr, nullptr},
};
static_assert(std::size(obstlisten) == 33);

constexpr Obstzeile obsttexte[] = {
    {"synonym", "lblSynonyme", "LabelSyn", nullptr, nullptr},
    {"HK", "lblHerkunft", "Label2", nullptr, nullptr},
    {"ABSTAMM", "lblAbstammung", "Label8", nullptr, nullptr},
    {"INTERSTER", "lblObIntersterilitaet", "Label28", "SSFrame10", nullptr},
    {"GEBEFR", "lblObBefruchtersorte", "Label12", "SSFrame10", nullptr},
    {"BESOND", "lblObBesonderheiten", nullptr, "Frame1", "Label52"},
    {"FRUENTW", "lblObFruchtentwicklung", "labelFruchtentwicklung", "SSFrame12", "Label53"},
    {"PFLREF", "lblObPflueckreife", "Label34", "SSFrame12", "Label53"},
    {"GENUSSREF", "lblObGenussreife", "Label37", "SSFrame12", "Label53"},
    {"FRILUFLAG", "lblObFrischluftLager", "Label40", nullptr, nullptr},
    {"KUEHLLAG", "lblObKuehllager", "Label46", nullptr, nullptr},
    {"CALAGER", "lblObCALager", "Label48", nullptr, nullptr},
};

/// Frames and the titles that vanish, too.
const QStringList rahmen{u"SSFrame1"_s, u"SSFrame2"_s, u"SSFrame4"_s, u"SSFrame6"_s, u"SSFrame5"_s,  u"SSFrame10"_s,
                         u"SSFrame8"_s, u"SSFrame7"_s, u"SSFrame9"_s, u"Frame1"_s,   u"SSFrame12"_s, u"SSFrame3"_s};
const QStringList ueberschriften{u"Label38"_s, u"Label6"_s, u"Label42"_s, u"Label45"_s, u"Label51"_s, u"Label52"_s, u"Label53"_s};

} // namespace

class TestObst : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        probe_ = std::make_unique<Fensterprobe>(Sparte::Obst);
        probe_->alleZeigen();
        probe_->oeffnen();
    }
    void init() { probe_->leeren(); }

    void nichtsBleibtStehen()
    {
        Fensterprobe::Werte voll;
        for (const Obstzeile &zeile : obstlisten)
            voll[QString::fromLatin1(zeile.feld)] = u"1111111"_s;
        for (const Obstzeile &zeile : obsttexte)
            voll[QString::fromLatin1(zeile.feld)] = u"Altwert"_s;
        probe_->setzen(voll);
        for (const QString &name : rahmen + ueberschriften)
            QVERIFY2(probe_->gezeigt(name), qPrintable(name));
        probe_->leeren();
        for (const QString &name : rahmen + ueberschriften)
            QVERIFY2(!probe_->gezeigt(name), qPrintable(name));
        for (const std::span<const Obstzeile> zeilen : {std::span<const Obstzeile>(obstlisten), std::span<const Obstzeile>(obsttexte)})
            for (const Obstzeile &zeile : zeilen) {
                QCOMPARE(probe_->text(QString::fromLatin1(zeile.control)), QString());
                QVERIFY(!zeile.titel || !probe_->gezeigt(QString::fromLatin1(zeile.titel)));
            }
    }

    void jedeZeile_data()
    {
        QTest::addColumn<const Obstzeile *>("zeile");
        QTest::addColumn<bool>("liste");
        for (const Obstzeile &zeile : obstlisten)
            QTest::newRow(zeile.feld) << &zeile << true;
        for (const Obstzeile &zeile : obsttexte)
            QTest::newRow(zeile.feld) << &zeile << false;
    }
    /// One field alone: its text, its caption, its group and the group's title; no other group.
    void jedeZeile()
    {
        QFETCH(const Obstzeile *, zeile);
        QFETCH(bool, liste);
        const QString feld = QString::fromLatin1(zeile->feld), control = QString::fromLatin1(zeile->control);
        if (liste) {
            const Werteliste *worte = schema::wertelisteVon(spalteVon(Sparte::Obst, zeile->feld));
            QVERIFY(worte);
            const int n = worte->anzahl();
            QString flags(n, u'0');
            flags[0] = flags[n - 1] = u'1';
            probe_->setzen({{feld, flags}});
            QCOMPARE(probe_->text(control), worte->wort(1).toString() + u", "_s + worte->wort(n).toString());
        } else {
            probe_->setzen({{feld, u"Eur., S-Am."_s}});
            QCOMPARE(probe_->text(control), u"Eur., S-Am."_s);
        }
        QVERIFY(probe_->gezeigt(control));
        if (zeile->titel)
            QVERIFY(probe_->gezeigt(QString::fromLatin1(zeile->titel)));
        for (const QString &name : rahmen)
            QVERIFY2(probe_->gezeigt(name) == (name == QLatin1String(zeile->rahmen)), qPrintable(name));
        for (const QString &name : ueberschriften)
            QVERIFY2(probe_->gezeigt(name) == (name == QLatin1String(zeile->rahmentitel)), qPrintable(name));
    }

    void doppelteTitel()
    {
        const auto flags = u"1"_s;
        // Flesh and form share a caption.
        for (const auto &[fleisch, form] : {std::pair(true, true), {true, false}, {false, true}, {false, false}}) {
            probe_->setzen({{u"FRUFLEI"_s, fleisch ? flags : QString()}, {u"FRUFOR"_s, form ? flags : QString()}, {u"SCHALE"_s, flags}});
            QCOMPARE(probe_->gezeigt(u"Label23"_s), fleisch || form);
            QVERIFY(probe_->gezeigt(u"SSFrame7"_s));
        }
        // The caption of the intersterility goes with its own text only.
        probe_->setzen({{u"ALTRNAZ"_s, flags}});
        QVERIFY(probe_->gezeigt(u"SSFrame10"_s) && !probe_->gezeigt(u"Label28"_s));
        probe_->setzen({{u"INTERSTER"_s, u"Conference"_s}, {u"ALTRNAZ"_s, {}}});
        QVERIFY(probe_->gezeigt(u"SSFrame10"_s) && probe_->gezeigt(u"Label28"_s));
        // A heading stays while one of its two groups does.
        for (const auto &[titel, einer, anderer] : {std::tuple(u"Label42"_s, u"BODEN"_s, u"EIGNUNG"_s), {u"Label53"_s, u"PFLREF"_s, u"ERNTE"_s}})
            for (const auto &[a, b] : {std::pair(true, true), {true, false}, {false, true}, {false, false}}) {
                probe_->setzen({{einer, a ? flags : QString()}, {anderer, b ? flags : QString()}});
                QCOMPARE(probe_->gezeigt(titel), a || b);
            }
    }

    void befruchter_data()
    {
        QTest::addColumn<QString>("wert");
        QTest::addColumn<QString>("text");
        QTest::newRow("one") << u"'Conference'"_s << u"'Conference'"_s;
        QTest::newRow("two") << u"'Conference','Williams Christ'"_s << u"'Conference', 'Williams Christ'"_s;
        QTest::newRow("comma at the end") << u"'a','b','c',"_s << u"'a', 'b', 'c'"_s;
        QTest::newRow("with blanks already") << u"'a', 'b'"_s << u"'a', 'b'"_s;
        QTest::newRow("comma in a name") << u"'a,b','c'"_s << u"'a,b', 'c'"_s;
    }
    void befruchter()
    {
        QFETCH(QString, wert);
        probe_->setzen({{u"GEBEFR"_s, wert}});
        QTEST(probe_->text(u"lblObBefruchtersorte"_s), "text");
    }

    void fruchtentwicklung()
    {
        for (const auto &[wert, text] : {std::pair(u"0"_s, u""_s), {u""_s, u""_s}, {u"120"_s, u"120"_s}, {u"00"_s, u"00"_s}}) {
            probe_->setzen({{u"FRUENTW"_s, wert}});
            QCOMPARE(probe_->text(u"lblObFruchtentwicklung"_s), text);
            QCOMPARE(probe_->gezeigt(u"labelFruchtentwicklung"_s), !text.isEmpty());
            QCOMPARE(probe_->gezeigt(u"SSFrame12"_s), !text.isEmpty());
        }
    }

    void alleMitgelieferten()
    {
        Fensterprobe frisch(Sparte::Obst);
        frisch.alleZeigen();
        frisch.oeffnen();
        QVERIFY(frisch.fenster->Anzahl >= 150);
        for (int i = 0; i < frisch.fenster->Anzahl; ++i) {
            frisch.fenster->satz().haupt().setAbsolutePosition(i);
            frisch.fenster->darstellen();
            QCOMPARE(frisch.text(u"lblName"_s), frisch.name());
            QVERIFY2(!frisch.text(u"lblDtName"_s).isEmpty() && !frisch.text(u"lblObFruchtfarbe"_s).isEmpty(), qPrintable(frisch.name()));
        }
    }

private:
    std::unique_ptr<Fensterprobe> probe_;
};

FLOX_TEST(tst_obst, TestObst)
#include "tst_obst.moc"
