#include "Datenhilfen.h"
#include "Datenordner.h"
#include "Dateistoerung.h"
#include "Rechte.h"

#include "store/Benutzerordner.h"
#include "store/Dateien.h"
#include "store/Dateisperren.h"
#include "store/Datenbestand.h"
#include "store/Uebernahme.h"
#include "tests/Testprogramm.h"

#include <QDir>
#include <QDirIterator>
#include <QTemporaryDir>
#include <QTest>

#include <cerrno>
#include <cstdarg>
#include <fcntl.h>
#include <sqlite3.h>

using namespace Qt::StringLiterals;

namespace {

/// A volume that knows no locks of files, as far as the engine sees it.
class Sperrenlos
{
public:
    Sperrenlos() { setzen(reinterpret_cast<sqlite3_syscall_ptr>(&ohne)); }
    ~Sperrenlos()
    {
        setzen(nullptr); // the system's own
        sperrenloseLaufwerkeDulden();
    }
    Sperrenlos(const Sperrenlos &) = delete;
    Sperrenlos &operator=(const Sperrenlos &) = delete;

private:
    static int ohne(int datei, int befehl, ...)
    {
        va_list weitere;
        va_start(weitere, befehl);
        void *angabe = va_arg(weitere, void *);
        va_end(weitere);
        if (befehl != F_SETLK && befehl != F_GETLK)
            return fcntl(datei, befehl, angabe);
        errno = ENOLCK;
        return -1;
    }
    static void setzen(sqlite3_syscall_ptr ruf)
    {
        sqlite3_vfs *schicht = sqlite3_vfs_find("unix");
        if (!schicht || schicht->xSetSystemCall(schicht, "fcntl", ruf) != SQLITE_OK)
            qFatal("The engine's calls cannot be exchanged.");
    }
};

} // namespace

/* A program that is installed for all, the folder of one of its users, and new data that cost him nothing. */
class TestBenutzerordner : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        // As it is installed: a database, pictures in folders, a file.
        programm_.emplace();
        heim_.emplace();
        for (const char *name : {"topfpflanzen/begonia.jpg", "icons/wahl/apfel.svg", "dbladen.htt", "installiert.txt", "flox"}) {
            const QString datei = programm_->pfad(QString::fromLatin1(name));
            QVERIFY(QDir().mkpath(QFileInfo(datei).path()));
            schreiben(datei, name);
        }
    }
    void cleanup() { setDateiaufsicht({}); }

    void wannGeteilt()
    {
        QVERIFY(benutzerordner::wirdGeteilt(programm_->pfad()));
        QVERIFY(QFile::remove(programm_->pfad(u"installiert.txt"_s)));
        QVERIFY(!benutzerordner::wirdGeteilt(programm_->pfad()));
        const NurLesen sperre(programm_->pfad());
        QVERIFY(benutzerordner::wirdGeteilt(programm_->pfad()));
    }

    void ersterStart()
    {
        QCOMPARE(einrichten().satz(), QString());
        QCOMPARE(inhalt(eigener(u"flox-demo.mdb"_s)), inhalt(programm_->datenbank()));
        QVERIFY(!QFileInfo(eigener(u"flox-demo.mdb"_s)).isSymLink());
        for (const char *name : {"topfpflanzen/begonia.jpg", "icons/wahl/apfel.svg", "dbladen.htt"}) {
            QCOMPARE(QFileInfo(eigener(QString::fromLatin1(name))).symLinkTarget(), programm_->pfad(QString::fromLatin1(name)));
            QCOMPARE(inhalt(eigener(QString::fromLatin1(name))), QByteArray(name));
        }
        // Neither the program nor the mark belongs to a user.
        for (const char *name : {"flox", "installiert.txt"})
            QVERIFY(!QFile::exists(eigener(QString::fromLatin1(name))));
        // A second start changes nothing.
        const QDateTime zeit = QFileInfo(eigener(u"stand.txt"_s)).lastModified();
        QCOMPARE(einrichten().satz(), QString());
        QCOMPARE(QFileInfo(eigener(u"stand.txt"_s)).lastModified(), zeit);
    }

    void bilderKommenUndGehen()
    {
        (void)einrichten();
        QVERIFY(QFile::remove(eigener(u"dbladen.htt"_s)));
        schreiben(eigener(u"dbladen.htt"_s), "the user's own");
        schreiben(eigener(u"topfpflanzen/meins.jpg"_s), "the user's own");
        QVERIFY(QFile::rename(programm_->pfad(u"topfpflanzen/begonia.jpg"_s), programm_->pfad(u"topfpflanzen/bidens.jpg"_s)));
        neueVersion();
        (void)einrichten();
        QCOMPARE(QDir(eigener(u"topfpflanzen"_s)).entryList(QDir::Files | QDir::System), (QStringList{u"bidens.jpg"_s, u"meins.jpg"_s}));
        QCOMPARE(inhalt(eigener(u"dbladen.htt"_s)), QByteArray("the user's own"));
    }

    /// A home on a network that knows no links: copies do, and the notes are carried all the same.
    void heimOhneVerweise()
    {
        setDateiaufsicht([](Dateischritt schritt, const QString &pfad) {
            return schritt == Dateischritt::Anlegen && QFileInfo(pfad).fileName().contains(u'.') ? EPERM : 0;
        });
        QCOMPARE(einrichten().satz(), QString());
        for (const char *name : {"topfpflanzen/begonia.jpg", "icons/wahl/apfel.svg", "dbladen.htt"}) {
            QVERIFY(!QFileInfo(eigener(QString::fromLatin1(name))).isSymLink());
            QCOMPARE(inhalt(eigener(QString::fromLatin1(name))), QByteArray(name));
        }
        Datenbank::OpenDatabase(eigener(u"flox-demo.mdb"_s))
            ->Execute(u"UPDATE Obst SET benu_bemerkung = 'merken' WHERE ARTNR = (SELECT min(ARTNR) FROM Obst)"_s);
        QCOMPARE(einrichten().satz(), QString());
        neueVersion();
        const benutzerordner::Bericht bericht = einrichten();
        QVERIFY(bericht.neueDaten);
        QCOMPARE(bericht.pflanzen, 1);
        QCOMPARE(bericht.ohnePflanze, QString());
    }

    /// One that knows no locks: the program's own beside the database has to do.
    void heimOhneSperren()
    {
        const QString datei = eigener(u"flox-demo.mdb"_s), notiz = u"SELECT benu_bemerkung FROM Obst WHERE benu_bemerkung <> ''"_s;
        const auto merken = [&](const QString &text) {
            Datenbank::OpenDatabase(datei)->Execute(u"UPDATE Obst SET benu_bemerkung = ? WHERE ARTNR = (SELECT min(ARTNR) FROM Obst)"_s, {text});
        };
        (void)einrichten();
        merken(u"null"_s);
        {
            const Sperrenlos laufwerk;
            QVERIFY(fehlerVon([&] { merken(u"geht nicht"_s); }).contains(u"von einem anderen Programm benutzt"_s));
            sperrenloseLaufwerkeDulden();
            // What a run that broke off has left is looked at by another call.
            schreiben(datei + u"-journal"_s, QByteArray(1024, 'x'));
            merken(u"eins"_s);
            QVERIFY(!QFile::exists(datei + u"-journal"_s));
            QCOMPARE(werte(*Datenbank::OpenDatabase(datei), notiz), QStringList{u"eins"_s});
            neueVersion();
            const benutzerordner::Bericht bericht = einrichten();
            QVERIFY(bericht.neueDaten);
            QCOMPARE(bericht.pflanzen, 1);
            QCOMPARE(werte(*Datenbank::OpenDatabase(datei), notiz), QStringList{u"eins"_s});
        }
        // Where there are locks, they hold: here another program's on the bytes that the engine locks.
        QFile andere(datei);
        QVERIFY(andere.open(QIODevice::ReadWrite));
        struct flock sperre = {.l_type = F_WRLCK, .l_whence = SEEK_SET, .l_start = 0x40000000, .l_len = 512, .l_pid = 0};
        QCOMPARE(fcntl(andere.handle(), F_OFD_SETLK, &sperre), 0);
        QVERIFY(fehlerVon([&] { merken(u"zwei"_s); }).contains(u"von einem anderen Programm benutzt"_s));
        andere.close();
        merken(u"zwei"_s);
        QCOMPARE(werte(*Datenbank::OpenDatabase(datei), notiz), QStringList{u"zwei"_s});
    }

    /// The program was moved to another place.
    void andererOrt()
    {
        (void)einrichten();
        QTemporaryDir anderswo;
        const QString neu = anderswo.filePath(u"flox"_s);
        QVERIFY(QDir().rename(programm_->pfad(), neu));
        QCOMPARE(benutzerordner::einrichten(neu, eigener({}), true).satz(), QString());
        QCOMPARE(QFileInfo(eigener(u"topfpflanzen/begonia.jpg"_s)).symLinkTarget(), neu + u"/topfpflanzen/begonia.jpg"_s);
    }

    void zweiVersionen()
    {
        (void)einrichten();
        const auto zeilen = [](Datenbank &db, const QString &sql, const QVariantList &werte) {
            db.Execute(sql, werte);
            QCOMPARE(db.geaendert(), 1);
        };
        QStringList namen;
        qint64 erste = 0;
        {
            auto db = Datenbank::OpenDatabase(eigener(u"flox-demo.mdb"_s));
            Anweisung &pflanzen = db->vorbereitet(u"SELECT ARTNR, BOT_NAME FROM TOPFPFL ORDER BY ARTNR LIMIT 5"_s);
            while (pflanzen.schritt()) {
                if (!erste)
                    erste = pflanzen.zahl(0);
                namen += pflanzen.text(1);
            }
            for (int i = 0; i < 5; ++i)
                zeilen(*db, u"UPDATE TOPFPFL SET benu_bemerkung = ?, benu_eigen = ? WHERE BOT_NAME = ?"_s,
                       {u"Notiz %1\nzweite Zeile"_s.arg(i), i == 1 ? u" 1  1"_s : QString(), namen[i]});
            zeilen(*db, u"UPDATE STAUDEN SET benu_eigen = '1    ' WHERE ARTNR = (SELECT min(ARTNR) FROM STAUDEN)"_s, {});
            db->Execute(u"UPDATE Namen_Benutzer_Optionen SET Topfpflanzen = 'Mein Fenster' WHERE rowid = "
                        "(SELECT rowid FROM Namen_Benutzer_Optionen ORDER BY rowid LIMIT 1 OFFSET 1)"_s);
        }
        {
            // The next version: one plant goes, one has another number, one another name and the old one as a synonym, one of no relation has
            // taken the number of the fifth.
            auto db = Datenbank::OpenDatabase(programm_->datenbank());
            zeilen(*db, u"DELETE FROM TOPFPFL WHERE BOT_NAME = ?"_s, {namen[0]});
            zeilen(*db, u"UPDATE TOPFPFL SET ARTNR = 999001 WHERE BOT_NAME = ?"_s, {namen[1]});
            zeilen(*db, u"INSERT INTO Topfpfl_Synonyme_Botanisch (ARTNR, SYN) SELECT ARTNR, BOT_NAME FROM TOPFPFL WHERE BOT_NAME = ?"_s, {namen[2]});
            zeilen(*db, u"UPDATE TOPFPFL SET BOT_NAME = 'Nova planta' WHERE BOT_NAME = ?"_s, {namen[2]});
            zeilen(*db, u"UPDATE TOPFPFL SET BOT_NAME = 'Alia planta' WHERE BOT_NAME = ?"_s, {namen[4]});
        }
        const QByteArray bisher = inhalt(eigener(u"flox-demo.mdb"_s));
        const benutzerordner::Bericht bericht = einrichten();
        QVERIFY(bericht.neueDaten);
        QCOMPARE(bericht.pflanzen, 4); // three potted plants, one perennial
        QCOMPARE(inhalt(bericht.bisherige), bisher);
        const QString verwaist = QString::fromUtf8(inhalt(bericht.ohnePflanze));
        QVERIFY2(verwaist.contains(u"Topfpflanzen: %1\nNotiz 0\nzweite Zeile"_s.arg(namen[0])), qPrintable(verwaist));
        QVERIFY2(verwaist.contains(u"Topfpflanzen: %1\nNotiz 4"_s.arg(namen[4])), qPrintable(verwaist));
        QCOMPARE(verwaist.count(u"Notiz"_s), 2);
        for (const QString &teil : {u"4 Pflanzen"_s, bericht.ohnePflanze, bericht.bisherige})
            QVERIFY2(bericht.satz().contains(teil), qPrintable(bericht.satz()));
        auto db = Datenbank::OpenDatabase(eigener(u"flox-demo.mdb"_s));
        const auto notiz = [&](const QString &name) {
            Anweisung &a = db->vorbereitet(u"SELECT benu_bemerkung, benu_eigen FROM TOPFPFL WHERE BOT_NAME = ?"_s);
            a.binden(0, name);
            const QString text = a.schritt() ? a.text(0) + u'|' + a.text(1) : u"none"_s;
            a.zuruecksetzen();
            return text;
        };
        QCOMPARE(notiz(namen[1]), u"Notiz 1\nzweite Zeile| 1  1"_s);
        QCOMPARE(notiz(u"Nova planta"_s), u"Notiz 2\nzweite Zeile|"_s);
        QCOMPARE(notiz(namen[3]), u"Notiz 3\nzweite Zeile|"_s);
        QCOMPARE(notiz(u"Alia planta"_s), u"|"_s);
        Anweisung &name = db->vorbereitet(u"SELECT Topfpflanzen FROM Namen_Benutzer_Optionen ORDER BY rowid LIMIT 1 OFFSET 1"_s);
        QVERIFY(name.schritt());
        QCOMPARE(name.text(0), u"Mein Fenster"_s);
        name.zuruecksetzen();
        // And never again.
        db.reset();
        QCOMPARE(einrichten().satz(), QString());
    }

    /// While another database is loaded, it is the saved original that takes the new data.
    void andereGeladen()
    {
        (void)einrichten();
        QVERIFY(QFile::copy(eigener(u"flox-demo.mdb"_s), eigener(u"flox-original.pdb"_s)));
        {
            auto db = Datenbank::OpenDatabase(eigener(u"flox-original.pdb"_s));
            db->Execute(u"UPDATE Apfel SET benu_bemerkung = 'sauer'"_s);
        }
        const QByteArray geladen = inhalt(eigener(u"flox-demo.mdb"_s));
        neueVersion();
        const benutzerordner::Bericht bericht = einrichten(false);
        QVERIFY(bericht.pflanzen > 90);
        // The one with another name.
        QCOMPARE(QString::fromUtf8(inhalt(bericht.ohnePflanze)).count(u"sauer"_s), 1);
        QCOMPARE(inhalt(eigener(u"flox-demo.mdb"_s)), geladen);
        auto db = Datenbank::OpenDatabase(eigener(u"flox-original.pdb"_s));
        Anweisung &ohne = db->vorbereitet(u"SELECT count(*) FROM Apfel WHERE benu_bemerkung IS NOT 'sauer'"_s);
        QVERIFY(ohne.schritt());
        QCOMPARE(ohne.zahl(0), 1);
        ohne.zuruecksetzen();
    }

    /// Whatever step fails: what the user wrote is where it was, and the next start succeeds.
    void jederSchrittKannScheitern()
    {
        (void)einrichten();
        {
            auto db = Datenbank::OpenDatabase(eigener(u"flox-demo.mdb"_s));
            db->Execute(u"UPDATE Obst SET benu_bemerkung = 'merken' WHERE ARTNR = (SELECT min(ARTNR) FROM Obst)"_s);
        }
        neueVersion();
        int schritte = 0;
        for (int stelle = 1;; ++stelle) {
            int bisher = 0;
            setDateiaufsicht([&](Dateischritt, const QString &) { return ++bisher == stelle ? EIO : 0; });
            const QString fehler = fehlerVon([&] { (void)einrichten(); });
            setDateiaufsicht({});
            {
                auto db = Datenbank::OpenDatabase(eigener(u"flox-demo.mdb"_s));
                Anweisung &notiz = db->vorbereitet(u"SELECT count(*) FROM Obst WHERE benu_bemerkung = 'merken'"_s);
                QVERIFY(notiz.schritt());
                QCOMPARE(notiz.zahl(0), 1);
                notiz.zuruecksetzen();
            }
            if (bisher < stelle) {
                QCOMPARE(fehler, QString());
                break;
            }
            // Some need not succeed, such as telling the disk of a folder's change.
            schritte += !fehler.isEmpty();
            // The new version once more.
            neueVersion();
        }
        QVERIFY2(schritte >= 8, qPrintable(QString::number(schritte)));
    }

private:
    benutzerordner::Bericht einrichten(bool original = true) { return benutzerordner::einrichten(programm_->pfad(), eigener({}), original); }
    QString eigener(const QString &name) { return name.isEmpty() ? heim_->filePath(u"flox"_s) : heim_->filePath(u"flox/"_s + name); }
    void neueVersion()
    {
        auto db = Datenbank::OpenDatabase(programm_->datenbank());
        db->Execute(u"UPDATE Apfel SET BOT_NAME = BOT_NAME || 'x' WHERE ARTNR = (SELECT max(ARTNR) FROM Apfel)"_s);
    }
    static void schreiben(const QString &pfad, const QByteArray &text)
    {
        QFile datei(pfad);
        QVERIFY(datei.open(QIODevice::WriteOnly));
        QCOMPARE(datei.write(text), text.size());
    }
    static QByteArray inhalt(const QString &pfad) { return liesGanz(pfad); }

    std::optional<Datenordner> programm_;
    std::optional<QTemporaryDir> heim_;
};

FLOX_TEST(tst_benutzerordner, TestBenutzerordner)
#include "tst_benutzerordner.moc"
