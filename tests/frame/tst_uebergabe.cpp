#include "Handgriffe.h"
#include "Programmkopie.h"
#include "Rahmenprobe.h"

#include "filters/Filterdialog.h"
#include "frame/Ablauf.h"
#include "frame/Uebergabe.h"
#include "frame/frmDBWahl.h"
#include "frame/frmStart.h"
#include "store/Dateien.h"
#include "tests/Fensterverwaltung.h"
#include "tests/store/Rechte.h"

#include <QDataStream>
#include <QDir>
#include <QLineEdit>
#include <QLocalServer>
#include <QLocalSocket>
#include <QMenu>
#include <QMessageBox>
#include <QProcess>
#include <QScopeGuard>
#include <QStatusBar>
#include <QTemporaryDir>
#include <QTest>

#include <future>
#include <unistd.h>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

/* A second start of the program, and what the one that runs makes of it: first what the two say to each other, then real processes. */

class TestUebergabe : public QObject
{
    Q_OBJECT

public:
    explicit TestUebergabe(const QString &fehlt) : fehlt_(fehlt) {}

private slots:
    void initTestCase();
    void init();
    void cleanup();
    void nachricht_data();
    void nachricht();
    void niemandDa_data();
    void niemandDa();
    void werNichtAntwortet();
    void werAufgibt();
    void unfug_data();
    void unfug();
    void nurDerselbeBenutzer();
    void zweiProzesse();
    void wasGeradeLaeuft_data();
    void wasGeradeLaeuft();
    void ohneDatei();
    void mehrere();
    void wasNichtGeht();
    void wasZuBerichtigenIst();

private:
    enum class Lage { Startbild, Auswahl, Hauptfenster, Verkleinert, Dahinter, Kasten, Menue, Filterdialog, Pruefung };

    QString ort() const { return laufzeit_->filePath(u"treffpunkt"_s); }
    QString hier(const char *datei) const { return QDir(QCoreApplication::applicationDirPath()).filePath(QLatin1String(datei)); }
    /// Without blocking the one that takes.
    static bool nebenherUebergeben(const QString &ort, const QString &datei)
    {
        std::future<bool> ergebnis = std::async(std::launch::async, [=] { return uebergeben(ort, datei, 20s); });
        return QTest::qWaitFor([&] { return ergebnis.wait_for(0s) == std::future_status::ready; }, 30000) && ergebnis.get();
    }
    /// A real program out of `ordner`, on no screen.
    std::unique_ptr<QProcess> prozess(const QString &exe, const QStringList &dateien);
    /// A second start out of the folder of this process, until it has ended as it should.
    void zweiterStart(const QStringList &dateien);
    template<typename Fenster>
    static Fenster *sichtbar()
    {
        for (QWidget *fenster : QApplication::topLevelWidgets())
            if (auto *gesucht = qobject_cast<Fenster *>(fenster); gesucht && gesucht->isVisible())
                return gesucht;
        return nullptr;
    }
    /// Past the splash, to the chooser or the main window.
    void starten(Ablauf &ablauf, bool hauptfenster);
    void verkleinertStarten(Ablauf &ablauf);
    /// A filter file, as the dialog writes it.
    QString gespeichert(const QString &name, const std::function<void(Filterdialog &)> &setzen);
    /// White flowers.
    QString filterdatei();

    QString fehlt_;
    const QTemporaryDir filterordner_;
    std::optional<Ablage> ablage_;
    std::optional<QTemporaryDir> laufzeit_;
};

void TestUebergabe::initTestCase()
{
    if (!fehlt_.isEmpty())
        QSKIP(qPrintable(fehlt_));
}

void TestUebergabe::init()
{
    ablage_.emplace();
    laufzeit_.emplace(QDir::tempPath() + u"/lauf"_s);
    qputenv("XDG_RUNTIME_DIR", laufzeit_->path().toUtf8());
    cleanup();
    // The test's own folder is a program folder, with the program in it.
    const Programmkopie kopie(QCoreApplication::applicationDirPath());
}

void TestUebergabe::cleanup()
{
    for (const char *datei : {"flox", "flox-demo.mdb", "flox-demo.mdb.lock", "tempbild.bmp"})
        QFile::remove(hier(datei));
    for (const char *ordner : {"icons", "translations"})
        QDir(hier(ordner)).removeRecursively();
}

void TestUebergabe::nachricht_data()
{
    QTest::addColumn<QString>("datei");
    QTest::newRow("none") << QString();
    QTest::newRow("plain") << u"/x/y.fit"_s;
    QTest::newRow("odd") << u"/x y/Grüße\n„neu“.fft"_s;
    QTest::newRow("as long as paths are") << u'/' + QString(4095, u'ä');
}

void TestUebergabe::nachricht()
{
    QFETCH(QString, datei);
    QStringList gekommen;
    Uebergabe nehmer(ort(), [&](const QString &eine) { gekommen += eine; });
    for (int mal = 1; mal <= 2; ++mal) {
        QVERIFY(nebenherUebergeben(ort(), datei));
        QTRY_COMPARE(gekommen.size(), mal);
    }
    QCOMPARE(gekommen, (QStringList{datei, datei}));
}

void TestUebergabe::niemandDa_data()
{
    QTest::addColumn<int>("rest"); // of another run: 0 nothing, 1 a file, 2 a socket that nobody listens to
    QTest::newRow("nothing") << 0;
    QTest::newRow("a file") << 1;
    QTest::newRow("a dead socket") << 2;
}

void TestUebergabe::niemandDa()
{
    QFETCH(int, rest);
    if (rest == 1)
        schreibeSicher(ort(), "Unsinn");
    if (rest == 2) {
        // Another name of the socket stays when its owner goes.
        QLocalServer dahin;
        QVERIFY(dahin.listen(ort() + u'x'));
        QCOMPARE(link(qPrintable(ort() + u'x'), qPrintable(ort())), 0);
    }
    QCOMPARE(QFileInfo::exists(ort()), rest != 0);
    QVERIFY(!uebergeben(ort(), u"/x"_s));
    // Whoever takes next is not kept from it.
    QStringList gekommen;
    Uebergabe nehmer(ort(), [&](const QString &eine) { gekommen += eine; });
    QVERIFY(nebenherUebergeben(ort(), u"/x"_s));
    QTRY_COMPARE(gekommen, QStringList{u"/x"_s});
}

/// Busy with something that lets no event loop run: the other one gives up, and nothing is opened afterwards.
void TestUebergabe::werNichtAntwortet()
{
    QStringList gekommen;
    Uebergabe nehmer(ort(), [&](const QString &eine) { gekommen += eine; });
    QVERIFY(!uebergeben(ort(), u"/zu spät"_s, 300ms));
    QVERIFY(nebenherUebergeben(ort(), u"/x"_s));
    QTRY_COMPARE(gekommen, QStringList{u"/x"_s});
    // One that speaks, but not as the program does.
    QLocalServer fremder;
    QVERIFY(fremder.listen(ort() + u'2'));
    connect(&fremder, &QLocalServer::newConnection, &fremder, [&] { fremder.nextPendingConnection()->write("guten Tag\n"); });
    QVERIFY(!nebenherUebergeben(ort() + u'2', u"/x"_s));
}

/// One that stops between its greeting and its receipt: whoever has given up meanwhile is not surprised by his file later.
void TestUebergabe::werAufgibt()
{
    QStringList gekommen;
    Uebergabe nehmer(ort(), [&](const QString &eine) { gekommen += eine; });
    std::promise<void> gegruesst, steht;
    std::future<void> gruss = gegruesst.get_future();
    std::future<bool> ergebnis = std::async(std::launch::async, [&, weiter = steht.get_future()] {
        QLocalSocket geber;
        geber.connectToServer(ort());
        if (!geber.waitForReadyRead(20000))
            return false;
        gegruesst.set_value();
        weiter.wait_for(20s);
        QByteArray nachricht;
        QDataStream strom(&nachricht, QIODevice::WriteOnly);
        strom.setVersion(QDataStream::Qt_6_0);
        strom << u"/zu spät"_s;
        geber.write(nachricht);
        return geber.flush();
    });
    QVERIFY(QTest::qWaitFor([&] { return gruss.wait_for(0s) == std::future_status::ready; }, 20000));
    // From here on no event loop runs until the other one is gone.
    steht.set_value();
    QVERIFY(ergebnis.get());
    QVERIFY(nebenherUebergeben(ort(), u"/x"_s));
    QTRY_COMPARE(gekommen, QStringList{u"/x"_s});
}

void TestUebergabe::unfug_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("nothing") << QByteArray();
    QTest::newRow("half of a message") << QByteArray::fromHex("000000100041");
    QTest::newRow("a length beyond all") << QByteArray::fromHex("fffffff0") + QByteArray(200000, 'x');
    QTest::newRow("noise") << QByteArray(200000, '\x7f');
}

void TestUebergabe::unfug()
{
    QFETCH(QByteArray, bytes);
    QStringList gekommen;
    Uebergabe nehmer(ort(), [&](const QString &eine) { gekommen += eine; });
    QLocalSocket stoerer;
    stoerer.connectToServer(ort());
    QVERIFY(stoerer.waitForConnected(5000));
    stoerer.write(bytes);
    // Beside one who says nothing more, and behind him.
    for (int mal = 1; mal <= 2; ++mal) {
        QVERIFY(nebenherUebergeben(ort(), u"/x"_s));
        QTRY_COMPARE(gekommen.size(), mal);
        if (bytes.size() > 1000)
            QTRY_COMPARE(stoerer.state(), QLocalSocket::UnconnectedState);
        stoerer.abort();
    }
}

void TestUebergabe::nurDerselbeBenutzer()
{
    QStringList gekommen;
    Uebergabe nehmer(ort(), [&](const QString &eine) { gekommen += eine; });
    constexpr auto andere = QFile::ReadGroup | QFile::WriteGroup | QFile::ReadOther | QFile::WriteOther;
    QVERIFY(!(QFile::permissions(ort()) & andere));
    if (geteuid() != 0)
        return; // nobody else can be tried
    QFile::setPermissions(laufzeit_->path(), QFile::permissions(laufzeit_->path()) | QFile::ExeOther | QFile::ReadOther);
    const QTemporaryDir irgendeiner;
    const NurLesen fremd(irgendeiner.path());
    QVERIFY(!nebenherUebergeben(ort(), u"/x"_s));
    QCOMPARE(gekommen, QStringList());
}

std::unique_ptr<QProcess> TestUebergabe::prozess(const QString &exe, const QStringList &dateien)
{
    auto neu = std::make_unique<QProcess>();
    QProcessEnvironment umgebung = QProcessEnvironment::systemEnvironment();
    umgebung.insert(u"QT_QPA_PLATFORM"_s, u"offscreen"_s);
    umgebung.insert(u"ASAN_OPTIONS"_s, u"detect_leaks=0:detect_odr_violation=0"_s);
    neu->setProcessEnvironment(umgebung);
    neu->start(exe, dateien);
    if (!neu->waitForStarted(30000))
        qFatal("The program does not start: %s", qPrintable(neu->errorString()));
    return neu;
}

void TestUebergabe::zweiterStart(const QStringList &dateien)
{
    const auto zweiter = prozess(hier("flox"), dateien);
    QTRY_COMPARE_WITH_TIMEOUT(zweiter->state(), QProcess::NotRunning, 60000);
    QCOMPARE(zweiter->exitStatus(), QProcess::NormalExit);
    QCOMPARE(zweiter->exitCode(), 0);
    QCOMPARE(zweiter->readAllStandardOutput() + zweiter->readAllStandardError(), QByteArray());
}

void TestUebergabe::zweiProzesse()
{
    const Programmkopie kopie(laufzeit_->filePath(u"programm"_s));
    const QString datei = laufzeit_->filePath(u"Äpfel.fit"_s);
    QVERIFY(QFile::copy(Programmordner().datenbank(), datei));
    Datenbank::OpenDatabase(datei)->Execute(u"DELETE FROM Apfel WHERE ARTNR > (SELECT min(ARTNR) + 3 FROM Apfel)"_s);
    const auto erster = prozess(kopie.exe(), {});
    QVERIFY(QTest::qWaitFor([&] { return erster->state() != QProcess::Running || QFile::exists(ablage_->datei()); }, 60000));
    const auto zweiter = prozess(kopie.exe(), {datei});
    QVERIFY(zweiter->waitForFinished(60000));
    QCOMPARE(zweiter->exitCode(), 0);
    QCOMPARE(zweiter->readAllStandardOutput() + zweiter->readAllStandardError(), QByteArray());
    // Behind the splash it stands in the place of the working database.
    const auto aepfel = [&] {
        const auto db = Datenbank::OpenDatabase(kopie.datei(u"flox-demo.mdb"_s), Datenbank::Zugriff::Lesen);
        Anweisung &zahl = db->vorbereitet(u"SELECT count(*) FROM Apfel"_s);
        const qint64 anzahl = zahl.schritt() ? zahl.zahl(0) : 0;
        zahl.zuruecksetzen();
        return anzahl;
    };
    QTRY_VERIFY_WITH_TIMEOUT(aepfel() <= 4, 60000);
    QCOMPARE(erster->state(), QProcess::Running);
    // The dead one's socket keeps nobody from a start of his own.
    erster->kill();
    QVERIFY(erster->waitForFinished(30000));
    QFile::remove(ablage_->datei());
    const auto dritter = prozess(kopie.exe(), {});
    QVERIFY(QTest::qWaitFor([&] { return dritter->state() != QProcess::Running || QFile::exists(ablage_->datei()); }, 60000));
    QCOMPARE(dritter->state(), QProcess::Running);
    const auto vierter = prozess(kopie.exe(), {});
    QVERIFY(vierter->waitForFinished(60000));
    QCOMPARE(vierter->exitCode(), 0);
    dritter->kill();
    QVERIFY(dritter->waitForFinished(30000));
}

void TestUebergabe::starten(Ablauf &ablauf, bool hauptfenster)
{
    QCOMPARE(int(ablauf.starten()), int(Ablauf::Ergebnis::Laeuft));
    QTest::mouseClick(sichtbar<frmStart>()->findChild<QWidget *>(u"startbild"_s), Qt::LeftButton);
    QTRY_VERIFY_WITH_TIMEOUT(sichtbar<frmDBWahl>(), 30000);
    if (!hauptfenster)
        return;
    QTest::mouseClick(sichtbar<frmDBWahl>()->findChild<QWidget *>(u"cmdFensterAlleine"_s), Qt::LeftButton);
    QTRY_VERIFY(ablauf.zentrale().isVisible());
    ablauf.zentrale().activateWindow();
    QTRY_VERIFY(!sichtbar<frmDBWahl>());
    QTRY_COMPARE(QApplication::activeWindow(), &ablauf.zentrale());
}

void TestUebergabe::verkleinertStarten(Ablauf &ablauf)
{
    starten(ablauf, true);
    if (QTest::currentTestFailed())
        return;
    ablauf.zentrale().showMinimized();
    QTRY_VERIFY(QApplication::activeWindow() != &ablauf.zentrale());
}

QString TestUebergabe::filterdatei()
{
    return gespeichert(u"weiß.fft"_s,
                       [](Filterdialog &dialog) { QTest::mouseClick(dialog.findChild<QWidget *>(u"lblBlFarbe_0"_s), Qt::LeftButton); });
}

QString TestUebergabe::gespeichert(const QString &name, const std::function<void(Filterdialog &)> &setzen)
{
    const QString datei = filterordner_.filePath(name);
    if (QFile::exists(datei))
        return datei;
    Rahmenprobe probe;
    probe.laden();
    probe.waehlen("mnudbtopfpflanzen");
    Pflanzenfenster *form = probe.fenster(1);
    QTest::mouseClick(form->findChild<QWidget *>(u"cmdFilter"_s), Qt::LeftButton);
    setzen(*form->filterdialog());
    form->filterdialog()->FilterSpeichern(datei);
    form->filterdialog()->hide();
    return datei;
}

void TestUebergabe::wasGeradeLaeuft_data()
{
    QTest::addColumn<Lage>("lage");
    QTest::newRow("splash") << Lage::Startbild;
    QTest::newRow("chooser") << Lage::Auswahl;
    QTest::newRow("main window") << Lage::Hauptfenster;
    QTest::newRow("minimised") << Lage::Verkleinert;
    QTest::newRow("behind another window") << Lage::Dahinter;
    QTest::newRow("a box is open") << Lage::Kasten;
    QTest::newRow("a menu is open") << Lage::Menue;
    QTest::newRow("a filter is being set") << Lage::Filterdialog;
    QTest::newRow("an examination is under way") << Lage::Pruefung;
}

void TestUebergabe::wasGeradeLaeuft()
{
    QFETCH(Lage, lage);
    const QString datei = filterdatei();
    Ablauf ablauf;
    if (lage == Lage::Startbild)
        QCOMPARE(int(ablauf.starten()), int(Ablauf::Ergebnis::Laeuft));
    else
        starten(ablauf, lage != Lage::Auswahl);
    const int erwartet = lage == Lage::Filterdialog || lage == Lage::Pruefung ? 2 : 1;
    if (QTest::currentTestFailed())
        return;
    const auto geoeffnet = [&] { return ablauf.zentrale().fenster(Sparte::Topf, erwartet); };
    // What can be opened at once is; what waits is told of.
    const auto meldung = [&] { return ablauf.zentrale().statusBar()->currentMessage(); };
    QWidget anderes;
    switch (lage) {
    case Lage::Startbild:
        zweiterStart({datei});
        if (sichtbar<frmStart>())
            QTest::mouseClick(sichtbar<frmStart>()->findChild<QWidget *>(u"startbild"_s), Qt::LeftButton);
        break;
    case Lage::Auswahl:
    case Lage::Hauptfenster: zweiterStart({datei}); break;
    case Lage::Verkleinert:
        ablauf.zentrale().showMinimized();
        QTRY_VERIFY(QApplication::activeWindow() != &ablauf.zentrale());
        zweiterStart({datei});
        break;
    case Lage::Dahinter:
        anderes.show();
        anderes.activateWindow();
        QTRY_COMPARE(QApplication::activeWindow(), &anderes);
        zweiterStart({datei});
        break;
    case Lage::Kasten: {
        QMessageBox kasten(&ablauf.zentrale());
        kasten.setText(u"Ja?"_s);
        QTimer::singleShot(0, &kasten, [&] {
            const auto schluss = qScopeGuard([&] { kasten.accept(); });
            zweiterStart({datei});
            QTRY_VERIFY(meldung().contains(u"weiß.fft"_s));
            QTest::qWait(200); // it would be opened by now
            QVERIFY(kasten.isVisible() && !geoeffnet());
            QTRY_COMPARE(QApplication::activeWindow(), &kasten);
        });
        kasten.exec();
        break;
    }
    case Lage::Menue: {
        auto *menue = ablauf.zentrale().findChild<QMenu *>();
        QVERIFY(menue);
        menue->popup(ablauf.zentrale().mapToGlobal(QPoint(50, 50)));
        QTRY_VERIFY(menue->isVisible());
        zweiterStart({datei});
        QTest::qWait(200); // it would be opened by now
        QVERIFY(!geoeffnet());
        menue->close();
        break;
    }
    case Lage::Filterdialog: {
        ablauf.zentrale().FensterOeffnen(Sparte::Topf);
        Pflanzenfenster *form = ablauf.zentrale().fenster(Sparte::Topf, 1);
        QTest::mouseClick(form->findChild<QWidget *>(u"cmdFilter"_s), Qt::LeftButton);
        QTRY_VERIFY(form->filterdialog()->isVisible());
        zweiterStart({datei});
        QTRY_VERIFY(meldung().contains(u"weiß.fft"_s));
        QTest::qWait(200); // it would be opened by now
        QVERIFY(!geoeffnet());
        QTest::mouseClick(form->filterdialog()->findChild<QWidget *>(u"cmdAbbruch"_s), Qt::LeftButton);
        break;
    }
    case Lage::Pruefung: {
        ablauf.zentrale().FensterOeffnen(Sparte::Topf);
        Pflanzenfenster *form = ablauf.zentrale().fenster(Sparte::Topf, 1);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_F9);
        QVERIFY(form->uebt() && !form->prueft());
        QTest::mouseClick(form->findChild<QWidget *>(u"cmdPruefung"_s), Qt::LeftButton);
        QVERIFY(form->prueft());
        zweiterStart({datei});
        QTRY_VERIFY(meldung().contains(u"weiß.fft"_s));
        QTest::qWait(200); // it would be opened by now
        QVERIFY(!geoeffnet() && form->prueft());
        QTimer::singleShot(0, this, [] {
            const auto *frage = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
            QVERIFY(frage);
            for (QAbstractButton *taste : frage->buttons())
                if (taste->text() == u"Abbrechen"_s)
                    taste->click();
        });
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_F9);
        QVERIFY(!form->prueft());
        break;
    }
    }
    QTRY_VERIFY_WITH_TIMEOUT(geoeffnet() && geoeffnet()->FilterEin, 30000);
    QVERIFY(geoeffnet()->Anzahl > 0);
    QVERIFY(geoeffnet()->filterdialog()->isHidden());
    QTRY_COMPARE(QApplication::activeWindow(), &ablauf.zentrale());
    QVERIFY(!ablauf.zentrale().isMinimized());
    QTRY_VERIFY(!sichtbar<frmStart>() && !sichtbar<frmDBWahl>());
}

void TestUebergabe::ohneDatei()
{
    Ablauf ablauf;
    verkleinertStarten(ablauf);
    if (QTest::currentTestFailed())
        return;
    zweiterStart({});
    QTRY_COMPARE(QApplication::activeWindow(), &ablauf.zentrale());
    QVERIFY(!ablauf.zentrale().isMinimized());
    QVERIFY(!ablauf.zentrale().fenster(Sparte::Topf, 1));
}

void TestUebergabe::mehrere()
{
    const QString datei = filterdatei();
    Ablauf ablauf;
    starten(ablauf, false);
    if (QTest::currentTestFailed())
        return;
    for (int i = 0; i < 3; ++i)
        zweiterStart({datei});
    for (int i = 1; i <= 3; ++i)
        QTRY_VERIFY_WITH_TIMEOUT(ablauf.zentrale().fenster(Sparte::Topf, i) && ablauf.zentrale().fenster(Sparte::Topf, i)->FilterEin, 30000);
    QVERIFY(!ablauf.zentrale().fenster(Sparte::Topf, 4));
}

void TestUebergabe::wasNichtGeht()
{
    Ablauf ablauf;
    starten(ablauf, true);
    if (QTest::currentTestFailed())
        return;
    Meldungsfaenger meldungen;
    zweiterStart({laufzeit_->filePath(u"fehlt.fft"_s)});
    QTRY_COMPARE(meldungen.texte.size(), 1);
    QVERIFY2(meldungen.texte[0].contains(u"fehlt.fft"_s), qPrintable(meldungen.texte[0]));
    QVERIFY(ablauf.zentrale().isVisible());
}

/// A filter that cannot run: its dialog stands in front, with the place to be mended under the keys.
void TestUebergabe::wasZuBerichtigenIst()
{
    const QString datei =
        gespeichert(u"falsch.fft"_s, [](Filterdialog &dialog) { dialog.findChild<QLineEdit *>(u"txtMinHoehe"_s)->setText(u"hoch"_s); });
    Ablauf ablauf;
    verkleinertStarten(ablauf);
    if (QTest::currentTestFailed())
        return;
    Meldungsfaenger meldungen;
    zweiterStart({datei});
    QTRY_COMPARE_WITH_TIMEOUT(meldungen.texte.size(), 1, 30000);
    Pflanzenfenster *form = ablauf.zentrale().fenster(Sparte::Topf, 1);
    QVERIFY(form && form->filterdialog());
    QTRY_COMPARE(QApplication::activeWindow(), form->filterdialog());
    QTRY_COMPARE(QApplication::focusWidget(), form->filterdialog()->findChild<QWidget *>(u"txtMinHoehe"_s));
    QTest::qWait(200); // whatever comes later leaves it there
    QCOMPARE(QApplication::activeWindow(), form->filterdialog());
}

int main(int anzahl, char **argumente)
{
    const Fensterverwaltung verwaltung;
    QApplication anwendung(anzahl, argumente);
    TestUebergabe test(verwaltung.fehlt());
    return QTest::qExec(&test, anzahl, argumente);
}

#include "tst_uebergabe.moc"
