#include "Filterhilfen.h"

#include "tests/Faelle.h"
#include "tests/Hilfen.h"
#include "tests/Testprogramm.h"

#include <QSignalSpy>
#include <QTest>

using namespace Qt::StringLiterals;

/* Damaged filter files: the reader never leaves its rails, whatever it is given. Seeds are fixed. */

class TestFilterdateiZufall : public QObject
{
    Q_OBJECT

private slots:
    void veraenderteDateien_data();
    void veraenderteDateien();
    void beliebigeBytes();
};

namespace {

QByteArrayList saat(Sparte sparte, Zufall &zufall)
{
    QByteArrayList dateien{vorgabedatei(sparte),
                           vorgabedatei(Sparte::Topf),
                           vorgabedatei(Sparte::Apfel),
                           {},
                           "\"",
                           ",,,,",
                           "\r\n\r\n",
                           QByteArray("\0\0", 2),
                           "\"\r\n\"\r\n",
                           " 0 , 0 ,-1"};
    for (int i = 0; i < 12; ++i) {
        const Zustand z = zufallszustand(sparte, zufall, {u"Rose"_s, u"a,b"_s, u"\"q"_s, u"  x"_s, u"ß€"_s}, {u"Araceae"_s, u"Rosaceae"_s});
        dateien += filterSchreiben(z.beschreibung, z.werte);
    }
    return dateien;
}

void verderben(QByteArray &datei, Zufall &zufall)
{
    // clang-format off
    static const QByteArrayList brocken{"\"", ",", "\r", "\n", "\r\n", "\t", "-", "1e308", "1e999", "nan", "inf", "99999999999999999999", "True",
                                        "#FALSE#", "&H1", QByteArray(1, '\0'), "\xff\x81", "-2147483648 ", "0x10", "1.5.2"};
    // clang-format on
    const qsizetype stelle = zahl(zufall, 0, int(datei.size()));
    const qsizetype laenge = std::min<qsizetype>(zahl(zufall, 1, 40), datei.size() - stelle);
    switch (zahl(zufall, 0, 6)) {
    case 0: datei.insert(stelle, brocken[zahl(zufall, 0, int(brocken.size()) - 1)]); break;
    case 1: datei.remove(stelle, laenge); break;
    case 2: datei.truncate(stelle); break;
    case 3: datei.insert(stelle, datei.mid(zahl(zufall, 0, int(datei.size())), 30)); break;
    case 4:
        if (stelle < datei.size())
            datei[stelle] = char(zahl(zufall, 0, 255));
        break;
    case 5: datei.replace(stelle, laenge, brocken[zahl(zufall, 0, int(brocken.size()) - 1)]); break;
    case 6: datei += datei.mid(stelle); break;
    }
}

struct Lesung
{
    Zustand zustand;
    int werte = 0;
    bool ganz = false;
    QString fehler; ///< what must not have been handed on
};

Lesung lesen(Sparte sparte, const QByteArray &datei)
{
    Lesung lesung{Zustand(sparte), 0, false, {}};
    const std::vector<Dateistelle> stellen = dateistellen(lesung.zustand.beschreibung);
    lesung.ganz = filterLesen(lesung.zustand.beschreibung, datei, [&](int k, bool zweites, int element, int wert, const QString &text) {
        const Dateistelle &stelle = stellen.at(size_t(lesung.werte++));
        if (stelle.kriterium != k || stelle.zweites != zweites || stelle.element != element)
            lesung.fehler = u"value %1 is not in its place"_s.arg(lesung.werte);
        const QString art = dateizeilen(lesung.zustand.beschreibung.sparte)[size_t(lesung.werte - 1)].art;
        const bool eng = art == u"flag" || art == u"value" || art == u"boolean";
        if ((eng && wert != 0 && wert != 1) || (art == u"step" && (wert < 1 || wert > 5)))
            lesung.fehler = u"value %1 is %2"_s.arg(lesung.werte).arg(wert);
        Kriteriumzustand &z = lesung.zustand.werte.kriterien[size_t(k)];
        Teilzustand &teil = zweites ? z.b : z.a;
        if (teil.werte.empty())
            teil.text = text;
        else
            teil.werte[size_t(element)] = wert;
    });
    return lesung;
}

/// What a file brought can be written; without the characters that the format cannot hold it reads back the same.
QString rundreise(const Lesung &lesung)
{
    const QByteArray datei = filterSchreiben(lesung.zustand.beschreibung, lesung.zustand.werte);
    for (const Kriteriumzustand &k : lesung.zustand.werte.kriterien)
        for (const QString &text : {k.a.text, k.b.text})
            for (const QChar z : text)
                if (z == u',' || z == u'"' || z < u' ' || z > u'~' || text.startsWith(u' ') || text.contains(u'.'))
                    return {};
    const Lesung wieder = lesen(lesung.zustand.beschreibung.sparte, datei);
    return wieder.ganz && wieder.zustand.werte == lesung.zustand.werte ? QString() : u"it does not read back"_s;
}

} // namespace

void TestFilterdateiZufall::veraenderteDateien_data()
{
    QTest::addColumn<Sparte>("sparte");
    QTest::addColumn<uint>("saatzahl");
    for (const uint saatzahl : {1u, 20261u, 4711u})
        for (const Sparte sparte : spartenEinerHerkunft())
            QTest::addRow("%s %u", kuerzel(sparte).constData(), saatzahl) << sparte << saatzahl;
}

void TestFilterdateiZufall::veraenderteDateien()
{
    QFETCH(const Sparte, sparte);
    QFETCH(const uint, saatzahl);
    Zufall zufall(saatzahl);
    const QByteArrayList dateien = saat(sparte, zufall);
    int ganze = 0, gerissene = 0;
    const int laeufe = faelle(200, 1000);
    for (int lauf = 0; lauf < laeufe; ++lauf) {
        QByteArray datei = dateien[zahl(zufall, 0, int(dateien.size()) - 1)];
        for (int i = zahl(zufall, 0, 4); i > 0; --i)
            verderben(datei, zufall);
        const Lesung lesung = lesen(sparte, datei);
        QString fehler = lesung.fehler;
        if (fehler.isEmpty() && lesung.ganz != (lesung.werte == int(dateizeilen(sparte).size())))
            fehler = u"%1 values, and the answer was %2"_s.arg(lesung.werte).arg(lesung.ganz);
        if (fehler.isEmpty())
            fehler = rundreise(lesung);
        QVERIFY2(fehler.isEmpty(), qPrintable(u"run %1: %2\n%3"_s.arg(lauf).arg(fehler, QString::fromLatin1(datei.toPercentEncoding("\r\n ,\"")))));
        ++(lesung.ganz ? ganze : gerissene);
    }
    // The damage is neither nothing nor everything.
    QVERIFY2(ganze > laeufe / 20 && gerissene > laeufe / 20, qPrintable(u"%1/%2"_s.arg(ganze).arg(gerissene)));
}

void TestFilterdateiZufall::beliebigeBytes()
{
    Zufall zufall(99);
    for (int lauf = 0; lauf < faelle(300, 1000); ++lauf) {
        QByteArray datei(zahl(zufall, 0, 3000), Qt::Uninitialized);
        for (char &zeichen : datei)
            zeichen = char(zahl(zufall, 0, 255));
        for (const Sparte sparte : spartenEinerHerkunft()) {
            const Lesung lesung = lesen(sparte, datei);
            QCOMPARE(lesung.fehler, QString());
            QVERIFY(!lesung.ganz);
        }
    }
}

FLOX_TEST(tst_filterdatei_zufall, TestFilterdateiZufall)
#include "tst_filterdatei_zufall.moc"
