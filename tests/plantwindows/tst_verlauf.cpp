#include "Fensterprobe.h"

#include "filters/Filterdialog.h"
#include "plantwindows/Verlauf.h"
#include "tests/Testprogramm.h"

#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QPlainTextEdit>
#include <QRandomGenerator>
#include <QTest>

using namespace Qt::StringLiterals;

/* Back and forward over the plants a window has shown. */

class TestVerlauf : public QObject
{
    Q_OBJECT

private slots:
    void wieEinModell();
    void vergisstDieAeltesten();
    void letzteJedeEinmal();
    void tastenGehenZurueckUndVor();
    void uebergehtWasDerFilterNimmt();
    void notizBleibt();
};

/// Against two plain stacks, as they are usually drawn.
void TestVerlauf::wieEinModell()
{
    QRandomGenerator zufall(5);
    Verlauf verlauf;
    std::vector<qint64> zurueck, vor;
    qint64 jetzt = 0;
    for (int i = 0; i < 5000; ++i) {
        const int wahl = zufall.bounded(3);
        if (wahl == 0) {
            const qint64 neu = 1 + zufall.bounded(30);
            verlauf.besuchen(neu);
            if (neu != jetzt) {
                if (jetzt)
                    zurueck.push_back(jetzt);
                if (zurueck.size() >= Verlauf::hoechstens)
                    zurueck.erase(zurueck.begin());
                vor.clear();
                jetzt = neu;
            }
            continue;
        }
        auto &von = wahl == 1 ? zurueck : vor, &nach = wahl == 1 ? vor : zurueck;
        const qint64 erwartet = von.empty() ? 0 : von.back();
        QCOMPARE(verlauf.gehen(wahl == 1 ? -1 : 1, [](qint64) { return true; }), erwartet);
        if (erwartet) {
            nach.push_back(jetzt);
            jetzt = erwartet;
            von.pop_back();
        }
    }
}

void TestVerlauf::vergisstDieAeltesten()
{
    Verlauf verlauf;
    for (qint64 i = 1; i <= qint64(Verlauf::hoechstens) + 7; ++i)
        verlauf.besuchen(i);
    const auto jede = [](qint64) { return true; };
    qint64 zuletzt = 0;
    while (const qint64 nummer = verlauf.gehen(-1, jede))
        zuletzt = nummer;
    QCOMPARE(zuletzt, 8);
}

void TestVerlauf::letzteJedeEinmal()
{
    Verlauf verlauf;
    for (const qint64 nummer : {3, 4, 3, 5, 4, 0})
        verlauf.besuchen(nummer);
    QCOMPARE(verlauf.letzte(10), (std::vector<qint64>{4, 5, 3}));
    QCOMPARE(verlauf.letzte(2), (std::vector<qint64>{4, 5}));
}

void TestVerlauf::tastenGehenZurueckUndVor()
{
    Fensterprobe probe;
    probe.oeffnen();
    probe.fenster->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(probe.fenster.get()));
    const auto taste = [](Qt::Key welche) { QTest::keyClick(QApplication::focusWidget(), welche, Qt::AltModifier); };
    QStringList gesehen{probe.name()};
    for (const char *knopf : {"cmdNext", "cmdLast", "cmdBack"}) {
        probe.klick(knopf);
        gesehen += probe.name();
    }
    for (int i = 2; i >= 0; --i) {
        taste(Qt::Key_Left);
        QCOMPARE(probe.name(), gesehen[i]);
    }
    taste(Qt::Key_Left);
    QCOMPARE(probe.name(), gesehen[0]);
    QCOMPARE(probe.panel(2), u"Davor wurde keine Pflanze gezeigt."_s);
    taste(Qt::Key_Right);
    taste(Qt::Key_Right);
    QCOMPARE(probe.name(), gesehen[2]);
    // The selector and the position follow.
    QCOMPARE(probe.finde<QComboBox>(u"cboArten"_s)->currentIndex(), int(probe.fenster->satz().haupt().AbsolutePosition()));
    QCOMPARE(probe.panel(4), u"%1/%1"_s.arg(probe.fenster->Anzahl));
    // What is shown anew cuts off what lay ahead.
    probe.klick("cmdFirst");
    taste(Qt::Key_Right);
    QCOMPARE(probe.panel(2), u"Danach wurde keine Pflanze gezeigt."_s);
}

void TestVerlauf::uebergehtWasDerFilterNimmt()
{
    Fensterprobe probe;
    probe.alleZeigen();
    probe.oeffnen();
    const std::vector<qint64> alle = probe.fenster->satz().haupt().Schluesselfolge();
    const qint64 a = alle[0], b = alle[1], c = alle[2];
    QVERIFY(probe.fenster->springen(b));
    QVERIFY(probe.fenster->springen(c));
    probe.arbeitSetzen(b, u"bewertung"_s, 1);
    probe.fenster->filterdialog()->cmdOK_Click();
    QCOMPARE(size_t(probe.fenster->Anzahl), alle.size() - 1);
    QVERIFY(probe.fenster->springen(c));
    QVERIFY(!probe.fenster->springen(b));
    QCOMPARE(probe.fenster->satz().artnr(), c);
    probe.finde<QAction>(u"aktZurueck"_s)->trigger();
    QCOMPARE(probe.fenster->satz().artnr(), a);
    probe.finde<QAction>(u"aktVor"_s)->trigger();
    QCOMPARE(probe.fenster->satz().artnr(), c);
}

void TestVerlauf::notizBleibt()
{
    Fensterprobe probe;
    probe.oeffnen();
    const qint64 erste = probe.fenster->satz().artnr();
    probe.klick("cmdNext");
    const qint64 zweite = probe.fenster->satz().artnr();
    probe.reiterVon(u"txtEigeneBemerkung"_s);
    auto *text = probe.finde<QPlainTextEdit>(u"txtEigeneBemerkung"_s);
    QTest::mouseClick(text->viewport(), Qt::LeftButton);
    QTest::keyClicks(text, u"im Schatten"_s);
    probe.finde<QAction>(u"aktZurueck"_s)->trigger();
    QCOMPARE(probe.fenster->satz().artnr(), erste);
    QCOMPARE(probe.arbeitLesen(zweite, u"benu_bemerkung"_s), u"im Schatten"_s);
}

FLOX_TEST(tst_verlauf, TestVerlauf)
#include "tst_verlauf.moc"
