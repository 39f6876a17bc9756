#include "tests/Faelle.h"
#include "tests/Hilfen.h"
#include "tools/tafeln/Farben.h"
#include "tools/tafeln/Tafeln.h"
#include "tests/Testprogramm.h"

#include <QTest>

/* The plates of plants as they are laid out: no text, line or drawing lies on another or leaves the sheet. */
class TestAufriss : public QObject
{
    Q_OBJECT

private slots:
    void nichtsLiegtAufeinander_data();
    void nichtsLiegtAufeinander();

private:
    Programmordner ordner_;
};

void TestAufriss::nichtsLiegtAufeinander_data()
{
    QTest::addColumn<int>("nummer");
    for (int i = 0; i < int(sammlungen().size()); ++i)
        QTest::newRow(qPrintable(sammlungen()[size_t(i)].tabelle.toString())) << i;
}

void TestAufriss::nichtsLiegtAufeinander()
{
    QFETCH(int, nummer);
    const Sammlung &sammlung = sammlungen()[size_t(nummer)];
    static const Formen formen = Formen::laden(QStringLiteral(FLOX_FORMEN));
    static const QHash<QString, QStringList> merkmale = merkmaleLesen(QStringLiteral(FLOX_QUELLEN));
    QStringList schlecht;
    int stelle = nummer, tafeln = 0, beschriftet = 0;
    for (const Datensatz &pflanze : Datensatz::alle(*ordner_.db(), sammlung.tabelle)) {
        if (stelle++ % faelle(10, 1) != 0)
            continue;
        const Steckbrief s(pflanze, sammlung, formen, merkmale.value(sammlung.tabelle.toString() + u' ' + pflanze.text(u"ARTNR")));
        Tafel ganz, teile;
        // Boxes are measured where they stand; what is painted beyond the sheet costs next to nothing.
        for (Tafel *tafel : {&ganz, &teile})
            tafel->maler().translate(10 * Tafel::breite, 0);
        gesamtMalen(ganz, s, formen);
        detailMalen(teile, s, formen);
        for (const auto &[tafel, wort] : {std::pair(&ganz, " -G "), std::pair(&teile, " -D ")}) {
            ++tafeln;
            beschriftet += tafel->aufriss.anzahl() > 5;
            if (const int fehler = tafel->aufriss.fehler())
                schlecht += pflanze.name() + QString::fromLatin1(wort) + QString::number(fehler);
        }
    }
    QVERIFY2(schlecht.isEmpty(), qPrintable(schlecht.join(u'\n')));
    QVERIFY(tafeln >= 2 * stelle / 11);
    QCOMPARE(beschriftet, tafeln); // nothing is free of faults for being empty
}

FLOX_TEST(tst_aufriss, TestAufriss)
#include "tst_aufriss.moc"
