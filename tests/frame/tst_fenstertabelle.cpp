#include "frame/Fenstertabelle.h"
#include "plantwindows/Pflanzenfenster.h"
#include "tests/Testprogramm.h"

#include <QSignalSpy>
#include <QTest>

using namespace Qt::StringLiterals;

/* Numbers of windows, and the test for the last one. */

class TestFenstertabelle : public QObject
{
    Q_OBJECT

private slots:
    void nummern();
    void letztesFenster_data();
    void letztesFenster();
};

void TestFenstertabelle::nummern()
{
    Fenstertabelle tabelle;
    QCOMPARE(tabelle.obergrenze(), 0);
    QVERIFY(!tabelle.besetzt(0) && !tabelle.besetzt(1) && !tabelle.besetzt(-1));
    for (int nummer = 1; nummer <= 20; ++nummer) {
        QCOMPARE(tabelle.FensterNummerHolen(), nummer);
        QCOMPARE(tabelle.obergrenze(), nummer);
        QVERIFY(tabelle.besetzt(nummer));
    }
    QVERIFY(!tabelle.besetzt(0) && !tabelle.besetzt(21));
    // The lowest free number is given first; the table does not shrink.
    for (const int nummer : {17, 3, 20})
        tabelle.platz(nummer).frei = true;
    QVERIFY(!tabelle.besetzt(3));
    QCOMPARE(tabelle.obergrenze(), 20);
    for (const int nummer : {3, 17, 20, 21})
        QCOMPARE(tabelle.FensterNummerHolen(), nummer);
}

void TestFenstertabelle::letztesFenster_data()
{
    QTest::addColumn<QStringList>("plaetze"); // one text per Sparte, "x" an occupied slot, "-" a free one
    QTest::addColumn<bool>("letztes");
    const auto zeile = [](const char *name, std::array<QString, 6> plaetze, bool letztes) {
        QTest::newRow(name) << QStringList(plaetze.begin(), plaetze.end()) << letztes;
    };
    zeile("no window", {}, true);
    zeile("one", {u"x"_s}, true);
    zeile("one, of the last Sparte", {{{}, {}, {}, {}, {}, u"x"_s}}, true);
    zeile("one behind free slots", {u"---x"_s}, true);
    zeile("one beside an emptied table", {u"x"_s, u"-"_s}, true);
    zeile("one behind an emptied table", {u"--"_s, u"x"_s}, true);
    zeile("two Sparten", {u"x"_s, u"x"_s}, false);
    zeile("two Sparten, apart", {{u"x"_s, {}, {}, u"x"_s}}, false);
    zeile("one and two", {u"x"_s, u"xx"_s}, false);
    zeile("six Sparten", {u"x"_s, u"x"_s, u"x"_s, u"x"_s, u"x"_s, u"x"_s}, false);
    // The count runs on and is not reset: what follows are the required oddities of that.
    zeile("two of one Sparte", {u"xx"_s}, true);
    zeile("two of one later Sparte", {{{}, {}, u"xx"_s}}, true);
    zeile("two and one", {u"xx"_s, u"x"_s}, true);
    zeile("three of one Sparte", {u"x-x-x"_s}, true);
    zeile("two, then an emptied table", {u"xx"_s, u"-"_s}, true);
    zeile("one, then emptied tables keep the count at one", {u"x"_s, u"-"_s, u"--"_s}, true);
}

void TestFenstertabelle::letztesFenster()
{
    QFETCH(QStringList, plaetze);
    std::array<Fenstertabelle, anzahlSparten> tabellen;
    for (size_t i = 0; i < tabellen.size(); ++i) {
        // First all numbers are given, then some windows close.
        for (qsizetype n = 0; n < plaetze[int(i)].size(); ++n)
            tabellen[i].FensterNummerHolen();
        for (int nummer = 1; nummer <= tabellen[i].obergrenze(); ++nummer)
            tabellen[i].platz(nummer).frei = plaetze[int(i)][nummer - 1] == u'-';
    }
    QTEST(FensterZahlPruefen(tabellen), "letztes");
}

FLOX_TEST(tst_fenstertabelle, TestFenstertabelle)
#include "tst_fenstertabelle.moc"
