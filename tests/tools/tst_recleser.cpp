#include "tests/store/Datenhilfen.h"
#include "tools/RecLeser.h"
#include "tests/Testprogramm.h"

#include <QTest>

using namespace Qt::StringLiterals;

/* The reader of plant sources. */
class TestRecLeser : public QObject
{
    Q_OBJECT

private slots:
    void lesen_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<QStringList>("saetze"); // type|line field=value;...
        const auto zeile = [](const char *name, const char *text, const QStringList &saetze) { QTest::newRow(name) << QByteArray(text) << saetze; };
        zeile("leer", "", {});
        zeile("nur Leerzeilen", "\n\n  \n", {});
        zeile("ein Satz", "%rec: T\n\nA: 1\nB: 2\n", {u"T|3 A=1;4 B=2;"_s});
        zeile("ohne Zeilenende", "%rec: T\nA: 1", {u"T|2 A=1;"_s});
        zeile("Leerzeilen trennen", "%rec: T\nA: 1\n\n\nA: 2\n \nA: 3", {u"T|2 A=1;"_s, u"T|5 A=2;"_s, u"T|7 A=3;"_s});
        zeile("zwei Arten", "%rec: T\nA: 1\n%rec: U\nA: 2\n", {u"T|2 A=1;"_s, u"U|4 A=2;"_s});
        zeile("ohne Art", "A: 1\n", {u"|1 A=1;"_s});
        zeile("andere Kopfzeilen", "%rec: T\n%doc: Text\n%key: A\n\nA: 1\n", {u"T|5 A=1;"_s});
        zeile("Bemerkung im Satz", "%rec: T\nA: 1\n# dazwischen: nichts\nB: 2\n", {u"T|2 A=1;4 B=2;"_s});
        zeile("Doppelpunkt im Wert", "%rec: T\nA: b: c # d\n", {u"T|2 A=b: c # d;"_s});
        zeile("Ränder", "%rec:   T  \nA:   1  \nB:2\n", {u"T|2 A=1;3 B=2;"_s});
        zeile("leerer Wert", "%rec: T\nA:\n", {u"T|2 A=;"_s});
        zeile("Fortsetzung", "%rec: T\nA: eins\n+ zwei\n+\n+drei\nB: 2\n", {u"T|2 A=eins\nzwei\n\ndrei;6 B=2;"_s});
        zeile("Wiederholung", "%rec: T\nA: 1\nA: 2\n", {u"T|2 A=1;3 A=2;"_s});
        zeile("Zeilenenden von Windows", "%rec: T\r\nA: 1\r\n\r\nA: 2\r\n", {u"T|2 A=1;"_s, u"T|4 A=2;"_s});
        zeile("Umlaute", "%rec: T\nA: Blätter × grün\n", {u"T|2 A=Blätter × grün;"_s});
        zeile("Marke am Anfang", "\xef\xbb\xbf%rec: T\nA: 1\n", {u"T|2 A=1;"_s});
    }
    void lesen()
    {
        QFETCH(QByteArray, text);
        QStringList gelesen;
        for (const RecSatz &satz : recLesen(text, u"probe.rec"_s)) {
            QCOMPARE(satz.datei, u"probe.rec"_s);
            QCOMPARE(satz.zeile(), satz.felder.front().zeile);
            QString zeile = satz.typ + u'|';
            for (const RecFeld &feld : satz.felder)
                zeile += u"%1 %2=%3;"_s.arg(feld.zeile).arg(feld.name, feld.wert);
            gelesen += zeile;
        }
        QTEST(gelesen, "saetze");
    }

    void felder()
    {
        const std::vector<RecSatz> saetze = recLesen("A: 1\nB: 2\nA: 3\n", u"probe.rec"_s);
        QCOMPARE(saetze.size(), 1);
        QCOMPARE(saetze[0].feld(u"A")->wert, u"1"_s);
        QCOMPARE(saetze[0].feld(u"B")->zeile, 2);
        QCOMPARE(saetze[0].feld(u"a"), saetze[0].feld(u"A"));
        QVERIFY(!saetze[0].feld(u"C"));
        QCOMPARE(fehlerVon([&] { saetze[0].falsch(2, u"so nicht"_s); }), u"probe.rec:2: so nicht"_s);
    }

    void fehler_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<QString>("meldung");
        QTest::newRow("kein Feld") << QByteArray("%rec: T\nA: 1\nnur Text\n") << u"probe.rec:3: keine Feldzeile: nur Text"_s;
        QTest::newRow("ohne Namen") << QByteArray(": 1\n") << u"probe.rec:1: keine Feldzeile: : 1"_s;
        QTest::newRow("Name mit Leerzeichen") << QByteArray("\nEin Feld: 1\n") << u"probe.rec:2: keine Feldzeile: Ein Feld: 1"_s;
        QTest::newRow("eingerückt") << QByteArray("A: 1\n  B: 2\n") << u"probe.rec:2: keine Feldzeile: B: 2"_s;
        QTest::newRow("Fortsetzung am Anfang") << QByteArray("+ weiter\n") << u"probe.rec:1: Fortsetzung ohne Feld"_s;
        QTest::newRow("Fortsetzung nach Leerzeile") << QByteArray("%rec: T\nA: 1\n\n+ weiter\n") << u"probe.rec:4: Fortsetzung ohne Feld"_s;
        QTest::newRow("Fortsetzung nach Kopf") << QByteArray("A: 1\n%rec: T\n+ weiter\n") << u"probe.rec:3: Fortsetzung ohne Feld"_s;
        QTest::newRow("Latin 1") << QByteArray("%rec: T\nA: 1\nB: Bl\xe4tter\n") << u"probe.rec:3: kein UTF-8"_s;
        QTest::newRow("abgeschnittenes Zeichen") << QByteArray("A: Bl\xc3") << u"probe.rec:1: kein UTF-8"_s;
        QTest::newRow("in einer Bemerkung") << QByteArray("A: 1\n# \xff\n") << u"probe.rec:2: kein UTF-8"_s;
    }
    void fehler()
    {
        QFETCH(QByteArray, text);
        QTEST(fehlerVon([&] { recLesen(text, u"probe.rec"_s); }), "meldung");
    }
};

FLOX_TEST(tst_recleser, TestRecLeser)
#include "tst_recleser.moc"
