#include "plantwindows/Uebung.h"
#include "tests/Testprogramm.h"

#include <QRandomGenerator>
#include <QTest>

#include <algorithm>

using namespace Qt::StringLiterals;

/* The course of practice and the clock of an examination, without a window. */

class TestUebung : public QObject
{
    Q_OBJECT

private slots:
    void folgen();
    void nochmal();
    void uhr();
};

void TestUebung::folgen()
{
    QRandomGenerator zufall(7);
    std::vector<qint64> pflanzen;
    for (qint64 i = 1; i <= 300; ++i)
        pflanzen.push_back(i);
    const auto dringlichkeit = [](qint64 nummer) {
        return nummer % 3 == 0 ? Dringlichkeit::Faellig : nummer % 3 == 1 ? Dringlichkeit::Neu : Dringlichkeit::Spaeter;
    };
    std::vector<qint64> folge = uebungsfolge(pflanzen, dringlichkeit, zufall);
    QVERIFY(std::ranges::is_sorted(folge, {}, dringlichkeit));
    QVERIFY(!std::ranges::is_sorted(folge));
    QVERIFY(folge != uebungsfolge(pflanzen, dringlichkeit, zufall));
    std::ranges::sort(folge);
    QCOMPARE(folge, pflanzen);

    std::vector<qint64> geprueft = pruefungsfolge(pflanzen, zufall);
    QCOMPARE(geprueft.size(), pruefungspflanzen);
    std::ranges::sort(geprueft);
    QVERIFY(std::ranges::adjacent_find(geprueft) == geprueft.end());
    QCOMPARE(pruefungsfolge({5, 6, 7}, zufall).size(), size_t(3));
    QVERIFY(pruefungsfolge({}, zufall).empty());
}

void TestUebung::nochmal()
{
    std::vector<qint64> pflanzen;
    for (qint64 i = 1; i <= 12; ++i)
        pflanzen.push_back(i);
    Uebung uebung(pflanzen);
    uebung.nochmal();
    uebung.nochmal();
    QCOMPARE(uebung.anzahl(), size_t(13));
    for (size_t i = 0; i <= Uebung::wiederNach; ++i)
        QVERIFY(uebung.gehen(1));
    QCOMPARE(uebung.jetzt().artnr, 1);
    QVERIFY(uebung.jetzt().wieder);
    while (uebung.gehen(1)) {}
    QCOMPARE(uebung.jetzt().artnr, 12);
    uebung.nochmal();
    QVERIFY(uebung.gehen(1));
    QCOMPARE(uebung.jetzt().artnr, 12);
    QVERIFY(!uebung.gehen(1));
    while (uebung.gehen(-1)) {}
    QCOMPARE(uebung.jetzt().artnr, 1);
    QVERIFY(!uebung.jetzt().wieder);
}

void TestUebung::uhr()
{
    qint64 jetzt = 5000;
    const Pruefungsuhr uhr([&jetzt] { return jetzt; }, 20 * pruefungszeit);
    QCOMPARE(uhrtext(uhr.rest()), u"20:00"_s);
    jetzt += 1;
    QCOMPARE(uhrtext(uhr.rest()), u"20:00"_s);
    jetzt += 55'000;
    QCOMPARE(uhrtext(uhr.rest()), u"19:05"_s);
    jetzt += 20 * pruefungszeit;
    QCOMPARE(uhr.rest(), 0);
    QCOMPARE(uhrtext(uhr.rest()), u"0:00"_s);
    QCOMPARE(uhrtext(uhr.vergangen()), u"20:00"_s);
}

FLOX_TEST(tst_uebung, TestUebung)
#include "tst_uebung.moc"
