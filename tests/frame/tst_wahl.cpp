#include "Handgriffe.h"
#include "Rahmenprobe.h"
#include "tests/store/Datenhilfen.h"

#include "frame/Ablauf.h"
#include "frame/Flaeche.h"
#include "frame/frmDBWahl.h"
#include "tests/Testprogramm.h"

#include <QLabel>
#include <QPointer>
#include <QTest>

using namespace Qt::StringLiterals;

/* From the chooser to a window, when a message box comes in between: the chooser, which goes meanwhile, is not asked again. */

class TestWahl : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void meldungBeimOeffnen_data();
    void meldungBeimOeffnen();
    void meldungAmEigentlichenAnfang();
    void neueWahlWaehrendDerMeldung();
    void schildUndProgrammfenster_data();
    void schildUndProgrammfenster();

private:
    frmDBWahl *wahl();
    /// Shows the chooser and waits until it is the active window, as it is when a hand presses its buttons.
    frmDBWahl *waehlenLassen();
    int offene() { return int(ablauf_->zentrale().findChild<Flaeche *>()->subWindowList().size()); }

    std::unique_ptr<Ablage> ablage_;
    std::unique_ptr<Programmordner> ordner_;
    std::unique_ptr<Ablauf> ablauf_;
};

void TestWahl::init()
{
    ablauf_.reset();
    ordner_.reset();
    ablage_ = std::make_unique<Ablage>();
    ordner_ = std::make_unique<Programmordner>();
    ablauf_ = std::make_unique<Ablauf>();
    ablauf_->programm() = ordner_->programm();
    ablauf_->programm().MdiStatus = 0;
    ablauf_->programm().StartPhase = true;
}

frmDBWahl *TestWahl::wahl()
{
    for (QWidget *fenster : QApplication::topLevelWidgets())
        if (auto *gesucht = qobject_cast<frmDBWahl *>(fenster); gesucht && gesucht->isVisible())
            return gesucht;
    return nullptr;
}

frmDBWahl *TestWahl::waehlenLassen()
{
    ablauf_->wahlZeigen();
    if (!wahl() || !QTest::qWaitForWindowActive(wahl()))
        qFatal("The chooser does not come up.");
    return wahl();
}

void TestWahl::meldungBeimOeffnen_data()
{
    QTest::addColumn<QString>("sql");
    QTest::addColumn<QString>("kopie"); // what stands where the private copy should
    QTest::addColumn<bool>("offen");    // the window opens all the same
    QTest::newRow("no plant rated high enough") << "UPDATE TOPFPFL SET bewertung = 1"
                                                << "" << true;
    QTest::newRow("one empty rating") << "UPDATE TOPFPFL SET bewertung = NULL WHERE ARTNR = (SELECT max(ARTNR) FROM TOPFPFL)"
                                      << "" << true;
    QTest::newRow("missing table") << "DROP TABLE TOPFPFL"
                                   << "" << false;
    // Without a copy a window shows all plants from the working database.
    QTest::newRow("unwritable place") << ""
                                      << "folder" << true;
    QTest::newRow("full disk") << ""
                               << "full" << true;
}

void TestWahl::meldungBeimOeffnen()
{
    QFETCH(QString, sql);
    QFETCH(QString, kopie);
    QFETCH(bool, offen);
    if (!sql.isEmpty())
        ordner_->db()->Execute(sql);
    for (int mal = 1; mal <= 2; ++mal) {
        const QString platz = ordner_->pfad(u"db_to%1.tmp"_s.arg(mal));
        if (kopie == u"folder")
            QVERIFY(QDir().mkdir(platz));
        const QPointer<frmDBWahl> gefragt = waehlenLassen();
        Antworten antworten;
        {
            std::optional<Dateigrenze> grenze;
            if (kopie == u"full")
                grenze.emplace(100000);
            hand::druecken(gefragt, "cmdTopfpflanzen");
        }
        QCOMPARE(antworten.texte.size(), 1);
        QTRY_VERIFY(!gefragt);
        QVERIFY(!wahl());
        QVERIFY(ablauf_->zentrale().isVisible());
        QCOMPARE(offene(), offen ? mal : 0);
        QCOMPARE(ablauf_->zentrale().cursor().shape(), Qt::ArrowCursor);
    }
    // The program goes on.
    const int vorher = offene();
    hand::druecken(waehlenLassen(), "cmdApfel");
    QCOMPARE(offene(), vorher + 1);
    QTRY_VERIFY(!wahl());
    QVERIFY(ablauf_->zentrale().close());
}

/// The handler runs inside an event of an event loop, not inside a test.
void TestWahl::meldungAmEigentlichenAnfang()
{
    ordner_->db()->Execute(u"UPDATE TOPFPFL SET bewertung = 1"_s);
    const QPointer<frmDBWahl> gefragt = waehlenLassen();
    Antworten antworten;
    QEventLoop schleife;
    QTimer::singleShot(0, &schleife, [&] {
        QTest::mouseClick(gefragt->windowHandle(), Qt::LeftButton, {}, gefragt->findChild<QWidget *>(u"cmdTopfpflanzen"_s)->geometry().center());
        QTimer::singleShot(50, &schleife, &QEventLoop::quit);
    });
    schleife.exec();
    QCOMPARE(antworten.texte.size(), 1);
    QTRY_VERIFY(!gefragt);
    QCOMPARE(offene(), 1);
}

void TestWahl::neueWahlWaehrendDerMeldung()
{
    ordner_->db()->Execute(u"UPDATE TOPFPFL SET bewertung = 1"_s);
    const QPointer<frmDBWahl> gefragt = waehlenLassen();
    Antworten antworten;
    antworten.davor = [this] { ablauf_->wahlZeigen(); };
    hand::druecken(gefragt, "cmdTopfpflanzen");
    QCOMPARE(antworten.texte.size(), 1);
    QCOMPARE(offene(), 1);
    QTRY_VERIFY(!gefragt);
}

void TestWahl::schildUndProgrammfenster_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("fenster");
    QTest::newRow("label") << "Label2" << 1;
    QTest::newRow("button") << "cmdTopfpflanzen" << 1;
    QTest::newRow("bare main window") << "cmdFensterAlleine" << 0;
}

void TestWahl::schildUndProgrammfenster()
{
    QFETCH(QString, name);
    QPointer<frmDBWahl> gefragt = waehlenLassen();
    QTest::mouseClick(gefragt->findChild<QWidget *>(name), Qt::LeftButton);
    QTRY_VERIFY(!gefragt);
    QVERIFY(ablauf_->zentrale().isVisible());
    QTEST(offene(), "fenster");
}

FLOX_TEST(tst_wahl, TestWahl)
#include "tst_wahl.moc"
