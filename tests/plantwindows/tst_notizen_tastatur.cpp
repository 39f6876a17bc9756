#include "Fensterprobe.h"

#include "tests/Testprogramm.h"

#include <QApplication>
#include <QCheckBox>
#include <QClipboard>
#include <QComboBox>
#include <QPlainTextEdit>
#include <QTabBar>
#include <QTabWidget>
#include <QTest>

using namespace Qt::StringLiterals;

/* Notes without a mouse: what counts as the user's own change, and where the keys go after a step. */

class TestNotizenTastatur : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void tippenNachTabulator_data();
    void tippenNachTabulator();
    void durchgehenMarkiertNicht();
    void ersteAenderungMarkiert_data();
    void ersteAenderungMarkiert();
    void wasNichtAendertMarkiertNicht();
    void leertasteAufEigenschaft();
    void kuerzelVerlaesstDieNotiz_data();
    void kuerzelVerlaesstDieNotiz();
    void mausschrittVerlaesstDieNotiz();
    void nachDemDruckenWeitergetippt();
    void gescheiterterSchrittBleibtInDerNotiz();
    void allesOhneMaus();

private:
    QPlainTextEdit *notiz() { return probe_->finde<QPlainTextEdit>(u"txtEigeneBemerkung"_s); }
    bool &geaendert() { return probe_->fenster->DatenGeaendert; }
    static void taste(Qt::Key taste, Qt::KeyboardModifiers umschalter = {}) { QTest::keyClick(QApplication::focusWidget(), taste, umschalter); }
    /// Tab or Shift + Tab until a control has the focus.
    void gehenBis(QWidget *ziel, bool rueckwaerts = false);

    std::unique_ptr<Fensterprobe> probe_;
    qint64 artnr_ = 0;
};

void TestNotizenTastatur::init()
{
    probe_.reset();
    probe_ = std::make_unique<Fensterprobe>();
    probe_->alleZeigen();
    probe_->ordner.db()->Execute(u"UPDATE TOPFPFL SET benu_bemerkung = NULL, benu_eigen = NULL"_s);
    probe_->oeffnen();
    probe_->fenster->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(probe_->fenster.get()));
    artnr_ = probe_->fenster->satz().artnr();
    probe_->reiterVon(u"txtEigeneBemerkung"_s);
    probe_->finde<QComboBox>(u"cboArten"_s)->setFocus();
}

void TestNotizenTastatur::gehenBis(QWidget *ziel, bool rueckwaerts)
{
    for (int i = 0; i < 200 && QApplication::focusWidget() != ziel; ++i)
        taste(rueckwaerts ? Qt::Key_Backtab : Qt::Key_Tab, rueckwaerts ? Qt::ShiftModifier : Qt::NoModifier);
    QCOMPARE(QApplication::focusWidget(), ziel);
}

void TestNotizenTastatur::tippenNachTabulator_data()
{
    QTest::addColumn<bool>("rueckwaerts");
    QTest::newRow("Tab") << false;
    QTest::newRow("Shift + Tab") << true;
}

void TestNotizenTastatur::tippenNachTabulator()
{
    QFETCH(const bool, rueckwaerts);
    gehenBis(notiz(), rueckwaerts);
    QVERIFY(!geaendert());
    QTest::keyClicks(QApplication::focusWidget(), u"getippt"_s);
    QVERIFY(geaendert());
    taste(Qt::Key_PageDown, Qt::ControlModifier);
    QVERIFY(probe_->fenster->satz().artnr() != artnr_);
    QCOMPARE(probe_->arbeitLesen(artnr_, u"benu_bemerkung"_s), u"getippt"_s);
}

void TestNotizenTastatur::durchgehenMarkiertNicht()
{
    gehenBis(notiz());
    taste(Qt::Key_Tab);
    QVERIFY(QApplication::focusWidget() != notiz());
    for (int i = 0; i < 120; ++i)
        taste(Qt::Key_Tab);
    QVERIFY(!geaendert());
    probe_->klick("cmdNext");
    QCOMPARE(probe_->arbeitLesen(artnr_, u"benu_eigen"_s), QString());
}

void TestNotizenTastatur::ersteAenderungMarkiert_data()
{
    QTest::addColumn<QString>("wie");
    for (const char *wie : {"letter", "paste", "Return", "Backspace", "input method", "undo"})
        QTest::newRow(wie) << QString::fromLatin1(wie);
}

void TestNotizenTastatur::ersteAenderungMarkiert()
{
    QFETCH(QString, wie);
    probe_->arbeitSetzen(artnr_, u"benu_bemerkung"_s, u"alt"_s);
    probe_->klick("cmdNext");
    probe_->klick("cmdBack");
    gehenBis(notiz());
    taste(Qt::Key_End, Qt::ControlModifier);
    QVERIFY(!geaendert());
    if (wie == u"letter") {
        QTest::keyClick(QApplication::focusWidget(), 'x');
    } else if (wie == u"paste") {
        QApplication::clipboard()->setText(u"eingefuegt"_s);
        taste(Qt::Key_V, Qt::ControlModifier);
    } else if (wie == u"Return") {
        taste(Qt::Key_Return);
    } else if (wie == u"Backspace") {
        taste(Qt::Key_Backspace);
    } else if (wie == u"input method") {
        QInputMethodEvent eingabe;
        eingabe.setCommitString(u"é"_s);
        QCoreApplication::sendEvent(QApplication::focusWidget(), &eingabe);
    } else {
        QTest::keyClick(QApplication::focusWidget(), 'x');
        geaendert() = false;
        taste(Qt::Key_Z, Qt::ControlModifier);
    }
    QVERIFY(geaendert());
}

void TestNotizenTastatur::wasNichtAendertMarkiertNicht()
{
    gehenBis(notiz());
    for (const Qt::Key pfeil : {Qt::Key_Left, Qt::Key_Right, Qt::Key_Up, Qt::Key_Down, Qt::Key_Home, Qt::Key_End, Qt::Key_Shift, Qt::Key_Backspace})
        taste(pfeil);
    taste(Qt::Key_A, Qt::ControlModifier);
    taste(Qt::Key_C, Qt::ControlModifier);
    QVERIFY(!geaendert());
}

void TestNotizenTastatur::leertasteAufEigenschaft()
{
    for (int i = 0; i < 5; ++i) {
        auto *kaestchen = probe_->finde<QCheckBox>(u"sschkBenutzer_%1"_s.arg(i));
        gehenBis(kaestchen);
        QVERIFY2(!geaendert(), qPrintable(QString::number(i)));
        taste(Qt::Key_Space);
        QVERIFY(kaestchen->isChecked());
        QVERIFY2(geaendert(), qPrintable(QString::number(i)));
        geaendert() = false;
    }
    taste(Qt::Key_Space);
    QVERIFY(geaendert());
    taste(Qt::Key_PageDown, Qt::ControlModifier);
    QCOMPARE(probe_->arbeitLesen(artnr_, u"benu_eigen"_s), u"1111 "_s);
}

void TestNotizenTastatur::kuerzelVerlaesstDieNotiz_data()
{
    QTest::addColumn<int>("taste");
    QTest::addColumn<QString>("knopf");
    QTest::newRow("next") << int(Qt::Key_PageDown) << "cmdNext";
    QTest::newRow("back") << int(Qt::Key_PageUp) << "cmdBack";
}

void TestNotizenTastatur::kuerzelVerlaesstDieNotiz()
{
    QFETCH(const int, taste);
    probe_->klick("cmdNext");
    const qint64 erste = probe_->fenster->satz().artnr();
    gehenBis(notiz());
    QTest::keyClicks(QApplication::focusWidget(), u"fuer die erste"_s);
    this->taste(Qt::Key(taste), Qt::ControlModifier);
    const qint64 zweite = probe_->fenster->satz().artnr();
    QVERIFY(zweite != erste);
    QVERIFY(QApplication::focusWidget() && QApplication::focusWidget() != notiz());
    QTest::keyClicks(QApplication::focusWidget(), u"geht nicht in die Notiz"_s);
    // Letters beside the note look for a plant.
    auto *suche = probe_->fenster->findChild<QWidget *>(u"frmSuche"_s);
    QVERIFY(suche && suche->isVisible());
    this->taste(Qt::Key_Escape);
    QTRY_VERIFY(!suche->isVisible());
    probe_->fenster->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(probe_->fenster.get()));
    probe_->finde<QComboBox>(u"cboArten"_s)->setFocus();
    QCOMPARE(probe_->fenster->satz().artnr(), zweite);
    QCOMPARE(notiz()->toPlainText(), QString());
    QVERIFY(!geaendert());
    // The note stays in reach, and so does the next step.
    gehenBis(notiz());
    this->taste(Qt::Key_PageDown, Qt::ControlModifier);
    QCOMPARE(probe_->arbeitLesen(erste, u"benu_bemerkung"_s), u"fuer die erste"_s);
    QCOMPARE(probe_->arbeitLesen(zweite, u"benu_bemerkung"_s), QString());
}

void TestNotizenTastatur::mausschrittVerlaesstDieNotiz()
{
    QTest::mouseClick(notiz()->viewport(), Qt::LeftButton);
    QTest::keyClicks(QApplication::focusWidget(), u"eins"_s);
    probe_->klick("cmdNext");
    QVERIFY(QApplication::focusWidget() != notiz());
    QTest::keyClicks(QApplication::focusWidget(), u"zwei"_s);
    QCOMPARE(notiz()->toPlainText(), QString());
    QCOMPARE(probe_->arbeitLesen(artnr_, u"benu_bemerkung"_s), u"eins"_s);
}

void TestNotizenTastatur::nachDemDruckenWeitergetippt()
{
    gehenBis(notiz());
    QTest::keyClicks(QApplication::focusWidget(), u"eins"_s);
    taste(Qt::Key_P, Qt::ControlModifier);
    QCOMPARE(probe_->zentrale.gedruckt, 1);
    QVERIFY(!geaendert());
    QCOMPARE(QApplication::focusWidget(), notiz());
    QTest::keyClicks(QApplication::focusWidget(), u" zwei"_s);
    QVERIFY(geaendert());
    taste(Qt::Key_PageDown, Qt::ControlModifier);
    QCOMPARE(probe_->arbeitLesen(artnr_, u"benu_bemerkung"_s), u"eins zwei"_s);
}

void TestNotizenTastatur::gescheiterterSchrittBleibtInDerNotiz()
{
    gehenBis(notiz());
    QTest::keyClicks(QApplication::focusWidget(), u"eins"_s);
    probe_->ordner.db()->Execute(u"CREATE TRIGGER halt BEFORE UPDATE ON TOPFPFL BEGIN SELECT RAISE(ABORT, 'halt'); END"_s);
    {
        Meldungsfaenger meldungen;
        taste(Qt::Key_PageDown, Qt::ControlModifier);
        QCOMPARE(meldungen.texte.size(), 1);
    }
    QCOMPARE(probe_->fenster->satz().artnr(), artnr_);
    QVERIFY(geaendert());
    QCOMPARE(notiz()->toPlainText(), u"eins"_s);
    probe_->ordner.db()->Execute(u"DROP TRIGGER halt"_s);
    probe_->fenster->activateWindow();
    QTRY_COMPARE(QApplication::focusWidget(), notiz());
    taste(Qt::Key_PageDown, Qt::ControlModifier);
    QCOMPARE(probe_->arbeitLesen(artnr_, u"benu_bemerkung"_s), u"eins"_s);
}

/// From the selector to a stored note, by keys alone.
void TestNotizenTastatur::allesOhneMaus()
{
    auto *reiter = probe_->finde<QTabWidget>(u"tabStauden"_s);
    reiter->setCurrentIndex(0);
    probe_->finde<QComboBox>(u"cboArten"_s)->setFocus();
    gehenBis(reiter->tabBar());
    for (int i = 1; i < reiter->count(); ++i)
        taste(Qt::Key_Right);
    QCOMPARE(reiter->currentIndex(), reiter->count() - 1);
    gehenBis(notiz());
    QTest::keyClicks(QApplication::focusWidget(), u"ohne Maus"_s);
    gehenBis(probe_->finde(u"sschkBenutzer_1"_s));
    taste(Qt::Key_Space);
    gehenBis(probe_->knopf("cmdNext"));
    taste(Qt::Key_Space);
    QCOMPARE(probe_->arbeitLesen(artnr_, u"benu_bemerkung"_s), u"ohne Maus"_s);
    QCOMPARE(probe_->arbeitLesen(artnr_, u"benu_eigen"_s), u" 1   "_s);
}

FLOX_TEST(tst_notizen_tastatur, TestNotizenTastatur)
#include "tst_notizen_tastatur.moc"
