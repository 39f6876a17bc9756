#include "Programmkopie.h"
#include "Rahmenprobe.h"

#include "frame/Ablauf.h"
#include "frame/Flaeche.h"
#include "frame/Registry.h"
#include "frame/frmDBWahl.h"
#include "frame/frmStart.h"

#include <QLocale>
#include <QLockFile>
#include <QMdiSubWindow>
#include <QProcess>
#include <QPushButton>
#include <QToolButton>
#include <QSignalSpy>
#include <QTest>

using namespace Qt::StringLiterals;

/* From process start to the first window: within this process, whose folder is the program folder, and as real processes. */

class TestAblauf : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void vomStartBisZumFenster();
    void nurDasProgrammfenster();
    void startbildGehtVonSelbst();
    void resteGehenHinterDemStartbild_data();
    void resteGehenHinterDemStartbild();
    void gespeicherterBilderpfadUeberlebtNicht();
    void fehlendeDatenbank_data();
    void fehlendeDatenbank();
    void deutsch();
    void zweiteInstanz();
    void verwaisteSperre_data();
    void verwaisteSperre();
    void prozessOhneDatenbank();

private:
    void starten(Ablauf &ablauf);
    template<typename Fenster>
    Fenster *sichtbar()
    {
        for (QWidget *fenster : QApplication::topLevelWidgets())
            if (auto *gesucht = qobject_cast<Fenster *>(fenster); gesucht && gesucht->isVisible())
                return gesucht;
        return nullptr;
    }
    QString hier(const char *datei) { return QDir(QCoreApplication::applicationDirPath()).filePath(QLatin1String(datei)); }
    std::unique_ptr<QProcess> prozess(const Programmkopie &kopie);
    /// Lock files of running programs.
    QStringList sperren() { return QDir(temp_->path()).entryList({u"flox-*.lock"_s}, QDir::Files); }
    /// Waits until the program has its lock; false when it ended instead.
    bool laeuft(QProcess &prozess);

    std::unique_ptr<Ablage> ablage_;
    std::unique_ptr<QTemporaryDir> temp_;
};

void TestAblauf::init()
{
    ablage_ = std::make_unique<Ablage>();
    temp_.reset(); // it is the folder that the next one would be made in
    qunsetenv("TMPDIR");
    temp_ = std::make_unique<QTemporaryDir>();
    qputenv("TMPDIR", temp_->path().toUtf8());
    cleanup();
    QVERIFY(QFile::copy(Programmordner().datenbank(), hier("flox-demo.mdb")));
    datenVerlinken(QCoreApplication::applicationDirPath());
}

void TestAblauf::cleanup()
{
    for (const char *datei : {"flox-demo.mdb", "tempbild.bmp", "db_to1.tmp", "db_ap1.tmp"})
        QFile::remove(hier(datei));
    for (const char *ordner : {"icons", "translations"})
        QDir(hier(ordner)).removeRecursively();
}

void TestAblauf::starten(Ablauf &ablauf)
{
    QCOMPARE(int(ablauf.starten()), int(Ablauf::Ergebnis::Laeuft));
    QVERIFY(sichtbar<frmStart>());
    QVERIFY(!sichtbar<frmDBWahl>());
    QVERIFY(ablauf.programm().StartPhase);
}

void TestAblauf::vomStartBisZumFenster()
{
    Ablauf ablauf;
    starten(ablauf);
    if (QTest::currentTestFailed())
        return;
    Programm &programm = ablauf.programm();
    QCOMPARE(QDir(programm.ProgrammPfad), QDir(QCoreApplication::applicationDirPath()));
    QVERIFY(!programm.ProgrammPfad.endsWith(u'/'));
    QCOMPARE(QDir::current(), QDir(QCoreApplication::applicationDirPath()));
    QCOMPARE(programm.IniPfad, programm.ProgrammPfad + u"\\flox.ini"_s);
    QVERIFY(QRegularExpression(u"^\\d+\\.\\d+\\.\\d+$"_s).match(programm.ProgrammVersion).hasMatch());
    QCOMPARE(programm.BenutzerNamen[0][4], u"Eigenschaft 5"_s);
    QVERIFY(!programm.HausModus);

    QTest::mouseClick(sichtbar<frmStart>()->findChild<QWidget *>(u"startbild"_s), Qt::LeftButton);
    auto *wahl = sichtbar<frmDBWahl>();
    QVERIFY(wahl);
    QTRY_VERIFY(!sichtbar<frmStart>());
    QVERIFY(!wahl->findChild<QPushButton *>(u"cmdFensterAlleine"_s)->isHidden());
    QVERIFY(!programm.StartPhase);
    QVERIFY(!sichtbar<mdiZentral>());

    QTest::mouseClick(wahl->findChild<QToolButton *>(u"cmdTopfpflanzen"_s), Qt::LeftButton);
    auto *zentrale = sichtbar<mdiZentral>();
    QVERIFY(zentrale);
    QTRY_VERIFY(!sichtbar<frmDBWahl>());
    auto *flaeche = zentrale->findChild<Flaeche *>();
    QCOMPARE(flaeche->subWindowList().size(), 1);
    QCOMPARE(flaeche->subWindowList()[0]->windowTitle(), u"Topfpflanzen 1"_s);
    QVERIFY(QFile::exists(hier("db_to1.tmp")));

    flaeche->subWindowList()[0]->move(40, 40);
    QTest::mousePress(flaeche->viewport(), Qt::RightButton, {}, QPoint(5, 5));
    wahl = sichtbar<frmDBWahl>();
    QVERIFY(wahl);
    QVERIFY(wahl->findChild<QPushButton *>(u"cmdFensterAlleine"_s)->isHidden());
    QTest::mouseClick(wahl->findChild<QToolButton *>(u"cmdApfel"_s), Qt::LeftButton);
    QCOMPARE(sichtbar<mdiZentral>(), zentrale);
    QCOMPARE(flaeche->subWindowList().size(), 2);
    zentrale->close();
    QVERIFY(!QFile::exists(hier("db_to1.tmp")) && !QFile::exists(hier("db_ap1.tmp")));
}

void TestAblauf::nurDasProgrammfenster()
{
    Ablauf ablauf;
    starten(ablauf);
    emit sichtbar<frmStart>()->fertig();
    QTest::mouseClick(sichtbar<frmDBWahl>()->findChild<QPushButton *>(u"cmdFensterAlleine"_s), Qt::LeftButton);
    QVERIFY(sichtbar<mdiZentral>());
    QVERIFY(sichtbar<mdiZentral>()->findChild<Flaeche *>()->subWindowList().isEmpty());
    QTRY_VERIFY(!sichtbar<frmDBWahl>());
}

void TestAblauf::startbildGehtVonSelbst()
{
    Ablauf ablauf;
    starten(ablauf);
    auto *Timer1 = sichtbar<frmStart>()->findChild<QTimer *>(u"Timer1"_s);
    QVERIFY(Timer1 && Timer1->isActive());
    Timer1->start(1);
    QTRY_VERIFY(sichtbar<frmDBWahl>());
    QTRY_VERIFY(!sichtbar<frmStart>());
    QCOMPARE(QApplication::topLevelWidgets().count(sichtbar<frmDBWahl>()), 1);
}

void TestAblauf::resteGehenHinterDemStartbild_data()
{
    QTest::addColumn<bool>("sofort");
    QTest::newRow("gewartet") << false;
    QTest::newRow("sofort weiter") << true;
}

/// A dead run's files hold up no splash, and are gone before there is a window that could have made new ones.
void TestAblauf::resteGehenHinterDemStartbild()
{
    QFETCH(const bool, sofort);
    QFile rest(hier("db_to1.tmp"));
    QVERIFY(rest.open(QIODevice::WriteOnly));
    rest.close();
    Ablauf ablauf;
    starten(ablauf);
    QVERIFY(rest.exists());
    if (sofort) {
        emit sichtbar<frmStart>()->fertig();
        QVERIFY(sichtbar<frmDBWahl>());
    } else {
        QTRY_VERIFY(!rest.exists());
        QVERIFY(sichtbar<frmStart>());
    }
    QVERIFY(!rest.exists());
}

void TestAblauf::gespeicherterBilderpfadUeberlebtNicht()
{
    registry::RegWertSchreiben(u"Software\\FH Lindenhof\\FLOX3-DEMO\\Pfade"_s, u"FLOX-DEMO-Bilder-Verz"_s, u"D:\\Bilder"_s);
    registry::RegWertSchreiben(u"Software\\FH Lindenhof\\FLOX3-DEMO\\Optionen"_s, u"MonatsDarstellung"_s, u"0"_s);
    Ablauf ablauf;
    starten(ablauf);
    QCOMPARE(ablauf.programm().BilderPfad, ablauf.programm().ProgrammPfad);
    QCOMPARE(ablauf.programm().MonatsDarstellung, 0);
}

void TestAblauf::fehlendeDatenbank_data()
{
    QTest::addColumn<QString>("inhalt"); // of the file; "-": none
    QTest::addColumn<QString>("teil");
    QTest::newRow("missing") << "-"
                             << "wurde nicht gefunden";
    QTest::newRow("empty") << ""
                           << "'flox-demo.mdb'";
    QTest::newRow("no database") << "Dies ist keine Datenbank, sondern ein Text, der lang genug ist."
                                 << "ist keine Datenbank";
}

void TestAblauf::fehlendeDatenbank()
{
    QFETCH(QString, inhalt);
    QFETCH(QString, teil);
    QFile datei(hier("flox-demo.mdb"));
    QVERIFY(datei.remove());
    if (inhalt != u"-") {
        QVERIFY(datei.open(QIODevice::WriteOnly));
        datei.write(inhalt.toUtf8());
        datei.close();
    }
    Meldungsfaenger meldungen;
    Ablauf ablauf;
    QCOMPARE(int(ablauf.starten()), int(Ablauf::Ergebnis::Abgebrochen));
    QCOMPARE(meldungen.texte.size(), 1);
    QVERIFY2(meldungen.texte[0].contains(teil), qPrintable(meldungen.texte[0]));
    QVERIFY(!sichtbar<frmStart>());
    QVERIFY(!QFile::exists(ablage_->datei()));
}

void TestAblauf::deutsch()
{
    Ablauf ablauf;
    starten(ablauf);
    QCOMPARE(QLocale().language(), QLocale::German);
    QCOMPARE(QLocale().toString(2.5), u"2,5"_s);
    QCOMPARE(QCoreApplication::translate("QPlatformTheme", "Cancel"), u"Abbrechen"_s);
}

std::unique_ptr<QProcess> TestAblauf::prozess(const Programmkopie &kopie)
{
    auto neu = std::make_unique<QProcess>();
    QProcessEnvironment umgebung = QProcessEnvironment::systemEnvironment();
    umgebung.insert(u"QT_QPA_PLATFORM"_s, u"offscreen"_s);
    umgebung.insert(u"XDG_RUNTIME_DIR"_s, temp_->path());
    umgebung.insert(u"ASAN_OPTIONS"_s, u"detect_leaks=0:detect_odr_violation=0"_s);
    neu->setProcessEnvironment(umgebung);
    neu->setProgram(kopie.exe());
    neu->start();
    if (!neu->waitForStarted(30000))
        qFatal("The program does not start: %s", qPrintable(neu->errorString()));
    return neu;
}

bool TestAblauf::laeuft(QProcess &prozess)
{
    // The settings are written once the lock is held.
    return QTest::qWaitFor([&] { return prozess.state() != QProcess::Running || QFile::exists(ablage_->datei()); }, 60000)
           && prozess.state() == QProcess::Running;
}

void TestAblauf::zweiteInstanz()
{
    const Programmkopie kopie(temp_->filePath(u"a"_s)), andere(temp_->filePath(u"b"_s));
    const auto erste = prozess(kopie);
    QVERIFY(laeuft(*erste));
    QCOMPARE(sperren().size(), 1);
    const auto zweite = prozess(kopie);
    QVERIFY(zweite->waitForFinished(60000));
    QCOMPARE(zweite->exitStatus(), QProcess::NormalExit);
    QCOMPARE(zweite->exitCode(), 0);
    QCOMPARE(zweite->readAllStandardOutput() + zweite->readAllStandardError(), QByteArray());
    QCOMPARE(erste->state(), QProcess::Running);
    // A program in another folder is another program.
    QFile::remove(ablage_->datei());
    const auto dritte = prozess(andere);
    QVERIFY(laeuft(*dritte));
    QCOMPARE(sperren().size(), 2);
    for (QProcess *laufend : {erste.get(), dritte.get()}) {
        laufend->kill();
        QVERIFY(laufend->waitForFinished(30000));
    }
}

void TestAblauf::verwaisteSperre_data()
{
    QTest::addColumn<QByteArray>("inhalt");
    QTest::newRow("killed process") << QByteArray("(unchanged)");
    QTest::newRow("empty file") << QByteArray();
    QTest::newRow("no lock file") << QByteArray("Unsinn\n");
    QTest::newRow("another machine's number") << QByteArray("999999999\nflox\n") + QSysInfo::machineHostName().toUtf8() + '\n';
}

void TestAblauf::verwaisteSperre()
{
    QFETCH(QByteArray, inhalt);
    const Programmkopie kopie(temp_->filePath(u"a"_s));
    {
        const auto erste = prozess(kopie);
        QVERIFY(laeuft(*erste));
        erste->kill();
        QVERIFY(erste->waitForFinished(30000));
    }
    QCOMPARE(sperren().size(), 1);
    if (inhalt != "(unchanged)") {
        QFile sperre(temp_->filePath(sperren()[0]));
        QVERIFY(sperre.open(QIODevice::WriteOnly | QIODevice::Truncate));
        sperre.write(inhalt);
    }
    QFile::remove(ablage_->datei());
    const auto zweite = prozess(kopie);
    QVERIFY(laeuft(*zweite));
    zweite->kill();
    QVERIFY(zweite->waitForFinished(30000));
}

void TestAblauf::prozessOhneDatenbank()
{
    const Programmkopie kopie(temp_->filePath(u"a"_s), false);
    const auto einziger = prozess(kopie);
    // Nobody answers its message: it neither goes on nor leaves anything behind.
    QTRY_COMPARE_WITH_TIMEOUT(sperren().size(), 1, 30000);
    QVERIFY(!einziger->waitForFinished(1500));
    QVERIFY(!QFile::exists(ablage_->datei()));
    QCOMPARE(kopie.dateien(), QStringList{u"flox"_s}); // no database comes out of nothing
    einziger->kill();
    QVERIFY(einziger->waitForFinished(30000));
}

QTEST_MAIN(TestAblauf)
#include "tst_ablauf.moc"
