#include "Programmkopie.h"
#include "Rahmenprobe.h"

#include "frame/Ablauf.h"
#include "frame/frmStart.h"

#include <QApplication>
#include <QLockFile>
#include <QProcess>
#include <QTest>

#include <unistd.h>

using namespace Qt::StringLiterals;

/* Who may start where: locks of this user and of others, and folders that cannot be used. This test starts itself in program folders of
   its own; such a process runs the start sequence, tells how it ended and lives until its input ends. */

namespace {

const char anfang[] = "FLOX_PROBE_START";
constexpr uid_t niemand = 65534;

int startProbe()
{
    Meldungsfaenger meldungen;
    Ablauf ablauf;
    const Ablauf::Ergebnis ergebnis = ablauf.starten();
    // All that a start has to say is said before the chooser is there.
    for (QWidget *fenster : QApplication::topLevelWidgets())
        if (auto *start = qobject_cast<frmStart *>(fenster))
            emit start->fertig();
    const QStringList antwort = QStringList{QString::number(int(ergebnis))} + meldungen.texte;
    fputs(qPrintable(antwort.join(u'\v').replace(u'\n', u'\r') + u'\n'), stdout);
    fflush(stdout);
    getchar();
    return 0;
}

QByteArray sperrtext(qint64 prozess, const QString &name, const QString &rechner)
{
    return u"%1\n%2\n%3\n"_s.arg(prozess).arg(name, rechner).toUtf8();
}

} // namespace

class TestSperren : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void zweiterStart();
    void ersterEndetGerade();
    void ordnerMitStrich();
    void sperreNebenDerDatenbank_data();
    void sperreNebenDerDatenbank();
    void verlasseneSperreEinesAnderen();
    void laufendesProgrammEinesAnderen();
    void unbeschreibbarerOrdner();
    void fuerAlleInstalliert();
    void heimSchreibgeschuetzt();

private:
    struct Start
    {
        Start() = default;
        Start(Start &&) = default;
        ~Start()
        {
            if (prozess) {
                prozess->kill();
                prozess->waitForFinished(60000);
            }
        }
        std::unique_ptr<QProcess> prozess;
        Ablauf::Ergebnis ergebnis = Ablauf::Ergebnis::Abgebrochen;
        QStringList meldungen;
    };
    /// Starts the program there, by another user on demand; it runs until it is destroyed.
    Start starten(const Programmkopie &kopie, bool andererBenutzer = false);
    Start anlassen(const Programmkopie &kopie, bool andererBenutzer = false);
    /// Until it has said all that a start has to say.
    static void abwarten(Start &start);
    Programmkopie kopie(const QString &name)
    {
        return Programmkopie(temp_->filePath(name), true, QCoreApplication::applicationFilePath().toStdString());
    }
    QString eigenerOrdner(bool andererBenutzer) { return heim_[andererBenutzer]->filePath(u".local/share/flox"_s); }
    static QString sperre(const Programmkopie &kopie) { return kopie.datei(u"flox-demo.mdb.lock"_s); }
    static void schreiben(const QString &datei, const QByteArray &inhalt)
    {
        QFile ziel(datei);
        QVERIFY(ziel.open(QIODevice::WriteOnly | QIODevice::Truncate));
        QCOMPARE(ziel.write(inhalt), inhalt.size());
    }
    static void fuerAlle(const QString &pfad)
    {
        QFile::setPermissions(pfad, QFile::permissions(pfad) | QFile::ReadOther | QFile::WriteOther | QFile::ExeOther);
    }

    std::unique_ptr<QTemporaryDir> temp_;
    std::array<std::unique_ptr<QTemporaryDir>, 2> heim_; ///< of this user and the other one
};

void TestSperren::init()
{
    temp_ = std::make_unique<QTemporaryDir>();
    for (auto &heim : heim_)
        heim = std::make_unique<QTemporaryDir>();
    fuerAlle(temp_->path());
}

TestSperren::Start TestSperren::starten(const Programmkopie &kopie, bool andererBenutzer)
{
    Start start = anlassen(kopie, andererBenutzer);
    abwarten(start);
    return start;
}

TestSperren::Start TestSperren::anlassen(const Programmkopie &kopie, bool andererBenutzer)
{
    const QString heim = heim_[andererBenutzer]->path();
    Start start;
    start.prozess = std::make_unique<QProcess>();
    QProcessEnvironment umgebung = QProcessEnvironment::systemEnvironment();
    umgebung.insert(QString::fromLatin1(anfang), u"1"_s);
    umgebung.insert(u"QT_QPA_PLATFORM"_s, u"offscreen"_s);
    umgebung.remove(u"XDG_DATA_HOME"_s);
    for (const char *name : {"XDG_RUNTIME_DIR", "XDG_CONFIG_HOME", "HOME", "TMPDIR"})
        umgebung.insert(QString::fromLatin1(name), heim);
    start.prozess->setProcessEnvironment(umgebung);
    start.prozess->setProgram(kopie.exe());
    if (andererBenutzer) {
        if (chown(heim.toUtf8(), niemand, niemand) != 0)
            qFatal("The folder cannot be given to another user.");
        start.prozess->setChildProcessModifier([] {
            if (setgid(niemand) != 0 || setuid(niemand) != 0)
                _exit(1);
        });
    }
    start.prozess->start();
    return start;
}

void TestSperren::abwarten(Start &start)
{
    while (!start.prozess->canReadLine())
        if (!start.prozess->waitForReadyRead(60000))
            qFatal("The program does not start: %s", start.prozess->readAllStandardError().constData());
    QStringList antwort = QString::fromUtf8(start.prozess->readLine()).trimmed().replace(u'\r', u'\n').split(u'\v');
    start.ergebnis = Ablauf::Ergebnis(antwort.takeFirst().toInt());
    start.meldungen = antwort;
}

void TestSperren::zweiterStart()
{
    const Programmkopie ordner = kopie(u"a"_s);
    const Start erster = starten(ordner);
    QCOMPARE(erster.meldungen, QStringList());
    QCOMPARE(int(erster.ergebnis), int(Ablauf::Ergebnis::Laeuft));
    QVERIFY(QFile::exists(sperre(ordner)));
    // The same user: in silence.
    const Start zweiter = starten(ordner);
    QCOMPARE(int(zweiter.ergebnis), int(Ablauf::Ergebnis::ZweiteInstanz));
    QCOMPARE(zweiter.meldungen, QStringList());
    erster.prozess->closeWriteChannel();
    QVERIFY(erster.prozess->waitForFinished(60000));
    QVERIFY(!QFile::exists(sperre(ordner)));
}

/// A run that does not take anything any more, but still holds its lock: the next one waits for its end and takes its place.
void TestSperren::ersterEndetGerade()
{
    const Programmkopie ordner = kopie(u"a"_s);
    QString datei;
    {
        const Start erster = starten(ordner);
        const QStringList sperren = QDir(heim_[0]->path()).entryList({u"flox-*.lock"_s});
        QCOMPARE(sperren.size(), 1);
        datei = heim_[0]->filePath(sperren.first());
        erster.prozess->closeWriteChannel();
        QVERIFY(erster.prozess->waitForFinished(60000));
    }
    QLockFile sperre(datei);
    QVERIFY(sperre.tryLock());
    Start zweiter = anlassen(ordner);
    QVERIFY(!zweiter.prozess->waitForReadyRead(1500)); // it gives up after three seconds
    sperre.unlock();
    abwarten(zweiter);
    QCOMPARE(int(zweiter.ergebnis), int(Ablauf::Ergebnis::Laeuft));
    QCOMPARE(zweiter.meldungen, QStringList());
}

void TestSperren::ordnerMitStrich()
{
    const Start start = starten(kopie(u"Flox\\alt"_s));
    QCOMPARE(int(start.ergebnis), int(Ablauf::Ergebnis::Abgebrochen));
    QCOMPARE(start.meldungen.size(), 1);
    QVERIFY2(start.meldungen[0].contains(u"Flox\\alt") && start.meldungen[0].contains(u"benennen Sie ihn um"), qPrintable(start.meldungen[0]));
}

void TestSperren::sperreNebenDerDatenbank_data()
{
    QTest::addColumn<QByteArray>("inhalt"); // "%" stands for a living process
    QTest::addColumn<bool>("frei");
    const QString hier = QSysInfo::machineHostName();
    QTest::newRow("dead process") << sperrtext(999999999, u"flox"_s, hier) << true;
    QTest::newRow("another program has its number") << QByteArray("%\nflox\n") + hier.toUtf8() + '\n' << true;
    QTest::newRow("empty") << QByteArray() << true;
    QTest::newRow("no lock") << QByteArray("Unsinn\n") << true;
    QTest::newRow("living process") << QByteArray("%\nsleep\n") + hier.toUtf8() + '\n' << false;
    QTest::newRow("another machine") << sperrtext(4711, u"flox"_s, u"anderswo"_s) << false;
}

void TestSperren::sperreNebenDerDatenbank()
{
    QFETCH(QByteArray, inhalt);
    QFETCH(const bool, frei);
    QProcess lebend;
    lebend.start(u"sleep"_s, {u"1000"_s});
    QVERIFY(lebend.waitForStarted());
    const Programmkopie ordner = kopie(u"a"_s);
    schreiben(sperre(ordner), inhalt.replace("%", QByteArray::number(lebend.processId())));
    const Start start = starten(ordner);
    if (frei) {
        QCOMPARE(start.meldungen, QStringList());
        QCOMPARE(int(start.ergebnis), int(Ablauf::Ergebnis::Laeuft));
    } else {
        QCOMPARE(int(start.ergebnis), int(Ablauf::Ergebnis::Abgebrochen));
        QCOMPARE(start.meldungen.size(), 1);
        const QStringList zeilen = QString::fromUtf8(inhalt).split(u'\n');
        for (const QString &teil : {u"schon benutzt"_s, zeilen[0], zeilen[2], sperre(ordner)})
            QVERIFY2(start.meldungen[0].contains(teil), qPrintable(start.meldungen[0]));
        // The other one's lock is still there.
        QFile datei(sperre(ordner));
        QVERIFY(datei.open(QIODevice::ReadOnly));
        QCOMPARE(datei.readAll(), inhalt);
    }
    lebend.kill();
    lebend.waitForFinished();
}

void TestSperren::verlasseneSperreEinesAnderen()
{
    if (geteuid() != 0)
        QSKIP("Only root can start a program for another user.");
    const Programmkopie ordner = kopie(u"a"_s);
    for (const QString &pfad : {temp_->filePath(u"a"_s), ordner.datei(u"flox-demo.mdb"_s)})
        fuerAlle(pfad);
    {
        const Start start = starten(ordner);
        QCOMPARE(int(start.ergebnis), int(Ablauf::Ergebnis::Laeuft));
        start.prozess->kill();
        QVERIFY(start.prozess->waitForFinished(60000));
    }
    QVERIFY(QFile::exists(sperre(ordner)));
    const Start anderer = starten(ordner, true);
    QCOMPARE(anderer.meldungen, QStringList());
    QCOMPARE(int(anderer.ergebnis), int(Ablauf::Ergebnis::Laeuft));
    QCOMPARE(QFileInfo(sperre(ordner)).ownerId(), uint(niemand));
}

void TestSperren::laufendesProgrammEinesAnderen()
{
    if (geteuid() != 0)
        QSKIP("Only root can start a program for another user.");
    const Programmkopie ordner = kopie(u"a"_s);
    for (const QString &pfad : {temp_->filePath(u"a"_s), ordner.datei(u"flox-demo.mdb"_s)})
        fuerAlle(pfad);
    const Start erster = starten(ordner);
    QCOMPARE(int(erster.ergebnis), int(Ablauf::Ergebnis::Laeuft));
    const Start anderer = starten(ordner, true);
    QCOMPARE(int(anderer.ergebnis), int(Ablauf::Ergebnis::Abgebrochen));
    QCOMPARE(anderer.meldungen.size(), 1);
    QVERIFY2(anderer.meldungen[0].contains(QFileInfo(sperre(ordner)).owner()), qPrintable(anderer.meldungen[0]));
    QCOMPARE(erster.prozess->state(), QProcess::Running);
}

void TestSperren::unbeschreibbarerOrdner()
{
    if (geteuid() != 0)
        QSKIP("Only root can start a program for another user.");
    // The folder is root's: who cannot write there has one of his own.
    const Programmkopie ordner = kopie(u"a"_s);
    QFile::setPermissions(ordner.datei(u"flox-demo.mdb"_s), QFile::ReadOwner | QFile::ReadOther);
    const Start eigener = starten(ordner, true);
    QCOMPARE(eigener.meldungen, QStringList());
    QCOMPARE(int(eigener.ergebnis), int(Ablauf::Ergebnis::Laeuft));
    QVERIFY(!QFile::exists(sperre(ordner)));
    QVERIFY(QFileInfo(eigenerOrdner(true)).isWritable());
    QCOMPARE(QFileInfo(eigenerOrdner(true) + u"/flox-demo.mdb.lock"_s).ownerId(), uint(niemand));
    QCOMPARE(int(starten(ordner, true).ergebnis), int(Ablauf::Ergebnis::ZweiteInstanz));
}

/// Two users of one installation do not meet.
void TestSperren::fuerAlleInstalliert()
{
    if (geteuid() != 0)
        QSKIP("Only root can start a program for another user.");
    const Programmkopie ordner = kopie(u"a"_s);
    QFile::setPermissions(ordner.datei(u"flox-demo.mdb"_s), QFile::ReadOwner | QFile::ReadOther);
    schreiben(ordner.datei(u"installiert.txt"_s), "Für alle.\n");
    const QStringList vorher = ordner.dateien();
    const Start erster = starten(ordner), zweiter = starten(ordner, true);
    for (const Start *start : {&erster, &zweiter}) {
        QCOMPARE(start->meldungen, QStringList());
        QCOMPARE(int(start->ergebnis), int(Ablauf::Ergebnis::Laeuft));
    }
    for (const bool anderer : {false, true}) {
        QVERIFY(QFile::exists(eigenerOrdner(anderer) + u"/flox-demo.mdb"_s));
        QVERIFY(QFileInfo(eigenerOrdner(anderer) + u"/icons/start.jpg"_s).isSymLink());
    }
    QCOMPARE(ordner.dateien(), vorher);
}

/// A home that cannot be written: the plants are there all the same, and it is said what is not.
void TestSperren::heimSchreibgeschuetzt()
{
    if (geteuid() != 0)
        QSKIP("Only root can start a program for another user.");
    const Programmkopie ordner = kopie(u"a"_s);
    QFile::setPermissions(ordner.datei(u"flox-demo.mdb"_s), QFile::ReadOwner | QFile::ReadOther);
    schreiben(heim_[1]->filePath(u".local"_s), "in the way");
    // Of a folder that is not installed for all only the rights are told.
    QCOMPARE(starten(ordner, true).meldungen.size(), 1);
    schreiben(ordner.datei(u"installiert.txt"_s), "Für alle.\n");
    const Start start = starten(ordner, true);
    QCOMPARE(start.meldungen.size(), 2);
    QVERIFY2(start.meldungen[0].startsWith(u"Ihr eigener Ordner von Flox kann nicht eingerichtet werden:"_s), qPrintable(start.meldungen[0]));
    QVERIFY2(start.meldungen[0].contains(u"die für alle Benutzer da sind"_s), qPrintable(start.meldungen[0]));
    QVERIFY2(start.meldungen[1].startsWith(u"Der Ordner des Programms ist schreibgeschützt:"_s), qPrintable(start.meldungen[1]));
    QCOMPARE(int(start.ergebnis), int(Ablauf::Ergebnis::Laeuft));
}

int main(int anzahl, char **argumente)
{
    QApplication anwendung(anzahl, argumente);
    if (qEnvironmentVariableIsSet(anfang))
        return startProbe();
    TestSperren test;
    return QTest::qExec(&test, anzahl, argumente);
}

#include "tst_sperren.moc"
