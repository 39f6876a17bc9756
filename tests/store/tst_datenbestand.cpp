#include "Bestandswechsel.h"
#include "Dateistoerung.h"
#include "Datenhilfen.h"
#include "Rechte.h"

#include "store/Schema.h"
#include "store/access/Leser.h"
#include "tests/Faelle.h"
#include "tests/Testprogramm.h"

#include <QDir>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

#include <sqlite3.h>

#include <cerrno>

using namespace Qt::StringLiterals;

namespace {

/// Runs statements on a file without the program.
void roh(const QString &pfad, const QString &sql)
{
    sqlite3 *db = nullptr;
    if (sqlite3_open(pfad.toUtf8().constData(), &db) != SQLITE_OK
        || sqlite3_exec(db, sql.toUtf8().constData(), nullptr, nullptr, nullptr) != SQLITE_OK)
        qFatal("%s: %s", qPrintable(sql), sqlite3_errmsg(db));
    sqlite3_close_v2(db);
}

/// The note in a file of Access that every page of it can be read to.
QString accessmarke(const QString &pfad)
{
    QString gefunden;
    const auto leser = accessdatei::Leser::ausDatei(pfad);
    for (const accessdatei::Tabelle &tabelle : leser->tabellen()) {
        const int notiz = tabelle.name == u"Topfpfl" ? tabelle.stelleVon(u"benu_bemerkung") : -1;
        const accessdatei::Durchgang durchgang = leser->durchlaufen(tabelle, [&](accessdatei::Zeile &zeile) {
            if (notiz >= 0) {
                const std::string_view text = zeile.wert(size_t(notiz)).text;
                gefunden = QString::fromUtf8(text);
            }
            return true;
        });
        if (durchgang.unlesbar || durchgang.schadhafteWerte)
            return {};
    }
    return gefunden;
}

/// The note that tells a database from another; empty where the file is none.
QString marke(const QString &pfad)
{
    if (accessdatei::istAccessdatei(pfad))
        return accessmarke(pfad);
    QString gefunden;
    sqlite3 *db = nullptr;
    sqlite3_stmt *stmt = nullptr;
    if (QFile::exists(pfad) && sqlite3_open_v2(pfad.toUtf8().constData(), &db, SQLITE_OPEN_READWRITE, nullptr) == SQLITE_OK
        && sqlite3_prepare_v2(db, "SELECT benu_bemerkung FROM Topfpfl, pragma_integrity_check WHERE integrity_check = 'ok'", -1, &stmt, nullptr)
               == SQLITE_OK
        && sqlite3_step(stmt) == SQLITE_ROW)
        gefunden = QString::fromUtf8(reinterpret_cast<const char *>(sqlite3_column_text(stmt, 0)));
    sqlite3_finalize(stmt);
    sqlite3_close_v2(db);
    return gefunden;
}

} // namespace

/* The file steps of switching between databases, and what is left when one of them fails. */
class TestDatenbestand : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        // Made once: a database takes a while to be built.
        vorlage_ = vorlagen_.filePath(u"vorlage.mdb"_s);
        const std::shared_ptr<Datenbank> db = leereDatenbank(vorlage_);
        db->Execute(u"INSERT INTO Topfpfl (ARTNR, BOT_NAME, benu_bemerkung) VALUES (1, 'Begonia', '?')"_s);
        for (int i = 0; i < 5; ++i)
            db->Execute(u"INSERT INTO Namen_Benutzer_Optionen VALUES ('a', 'b', 'c', 'd', 'e', 'f')"_s);
    }
    /// Small pages make a small file.
    void kleineVorlage()
    {
        roh(vorlage_, u"PRAGMA page_size = 1024; VACUUM"_s);
        QVERIFY(QFileInfo(vorlage_).size() < 200000);
    }
    void init() { neuerOrdner(); }

    /// State, event, next state; the files that come of it.
    void zustaende()
    {
        datenbank(u"flox-demo.mdb"_s, u"ausgeliefert"_s);
        datenbank(u"eins.fit"_s, u"eins"_s);
        datenbank(u"zwei.mdb"_s, u"zwei"_s);
        const auto stand = [this] { return u"%1 %2/%3"_s.arg(bestandswechsel::istOriginal(programm_)).arg(marke(arbeit()), marke(original())); };
        QCOMPARE(stand(), u"1 ausgeliefert/"_s);
        // Original, load original: there is no saved one, and nothing changes.
        QVERIFY(fehlerVon([&] { tun(u"original"_s); }).startsWith(u"Die gesicherte Originaldatenbank wurde nicht gefunden"_s));
        QCOMPARE(stand(), u"1 ausgeliefert/"_s);
        tun(u"laden"_s, u"eins.fit"_s);
        QCOMPARE(stand(), u"0 eins/ausgeliefert"_s);
        tun(u"laden"_s, u"zwei.mdb"_s);
        QCOMPARE(stand(), u"0 zwei/ausgeliefert"_s);
        tun(u"original"_s);
        QCOMPARE(stand(), u"1 ausgeliefert/ausgeliefert"_s);
        // What is noted in the original is saved with it.
        roh(arbeit(), u"UPDATE Topfpfl SET benu_bemerkung = 'notiert'"_s);
        tun(u"laden"_s, u"eins.fit"_s);
        QCOMPARE(stand(), u"0 eins/notiert"_s);
        tun(u"original"_s);
        QCOMPARE(stand(), u"1 notiert/notiert"_s);
        tun(u"original"_s);
        QCOMPARE(stand(), u"1 notiert/notiert"_s);
        // Every state that was left is kept, once.
        QCOMPARE(marken(u"sicherungen"_s), (QStringList{u"ausgeliefert"_s, u"eins"_s, u"notiert"_s, u"zwei"_s}));
        QCOMPARE(marke(pfad(u"eins.fit"_s)), u"eins"_s);
    }

    void derGesicherteSelbst_data()
    {
        QTest::addColumn<bool>("original");
        QTest::newRow("im Original") << true;
        QTest::newRow("im Bestand des Benutzers") << false;
    }
    /// The saved original can be chosen, too, although it is about to be replaced.
    void derGesicherteSelbst()
    {
        QFETCH(bool, original);
        datenbank(u"flox-demo.mdb"_s, u"jetzt"_s);
        datenbank(u"flox-original.pdb"_s, u"früher"_s);
        bestandswechsel::merken(programm_, original);
        tun(u"laden"_s, u"flox-original.pdb"_s);
        QCOMPARE(marke(arbeit()), u"früher"_s);
        QCOMPARE(marke(this->original()), original ? u"jetzt"_s : u"früher"_s);
        QVERIFY(!bestandswechsel::istOriginal(programm_));
    }

    void pruefen_data()
    {
        QTest::addColumn<QString>("sql"); // what is done to a database of the program
        QTest::addColumn<QString>("unbekannt");
        QTest::addColumn<QString>("fehler");
        const QString gut;
        QTest::newRow("unverändert") << u""_s << gut << gut;
        QTest::newRow("weniger Tabellen") << u"DROP TABLE Apfel; DROP TABLE Apfel_Bilder; DROP TABLE Daten"_s << gut << gut;
        QTest::newRow("ohne Obstarten und Abfrage") << u"DROP TABLE Obstarten; DROP VIEW Abfrage_Friedhof"_s << gut << gut;
        QTest::newRow("Abfrage als Tabelle") << u"DROP VIEW Abfrage_Friedhof; CREATE TABLE Abfrage_Friedhof (ARTNR)"_s << gut << gut;
        QTest::newRow("fremde Tabelle") << u"CREATE TABLE Palmen (ARTNR)"_s << u"Palmen"_s << gut;
        QTest::newRow("fremde Abfrage") << u"CREATE VIEW Palmen AS SELECT * FROM Topfpfl"_s << u"Palmen"_s << gut;
        QTest::newRow("Tabelle des Systems") << u"CREATE TABLE MSysObjects (Id); CREATE TABLE t (a); DROP TABLE t"_s << gut << gut;
        QTest::newRow("Name im Namen") << u"CREATE TABLE pfl (ARTNR); CREATE TABLE Synonyme (a)"_s << gut << gut;
        QTest::newRow("andere Schreibung") << u"ALTER TABLE Apfel RENAME TO apfel_neu; ALTER TABLE apfel_neu RENAME TO APFEL"_s << u"APFEL"_s << gut;
        QTest::newRow("die erste zählt") << u"CREATE TABLE Zebra (a); CREATE TABLE Affe (a)"_s << u"Affe"_s << gut;
        QTest::newRow("ältere Fassung") << u"PRAGMA user_version = 0"_s << gut << gut;
        QTest::newRow("neuere Fassung") << u"PRAGMA user_version = 2; CREATE TABLE Palmen (a)"_s << gut
                                        << u"Die Datenbank 'gewählt.fit' wurde mit einer neueren Version von Flox angelegt."_s;
        QTest::newRow("fremdes Programm, fremde Tabelle")
            << u"PRAGMA application_id = 7; PRAGMA user_version = 9; CREATE TABLE Palmen (a)"_s << u"Palmen"_s << gut;
        QTest::newRow("fremdes Programm, bekannte Tabellen")
            << u"PRAGMA application_id = 7"_s << gut << u"Die Datei 'gewählt.fit' ist keine Flox-Datenbank."_s;
        QTest::newRow("eigenes Protokoll") << u"PRAGMA journal_mode = WAL"_s << gut
                                           << u"Die Datenbank 'gewählt.fit' wird von einem anderen Programm in einer Form geführt, die Flox nicht "
                                              "übernehmen kann."_s;
    }
    void pruefen()
    {
        QFETCH(QString, sql);
        QFETCH(QString, unbekannt);
        QFETCH(QString, fehler);
        datenbank(u"flox-demo.mdb"_s, u"alt"_s);
        datenbank(u"gewählt.fit"_s, u"neu"_s);
        roh(pfad(u"gewählt.fit"_s), sql);
        const QByteArray vorher = inhalt(pfad(u"gewählt.fit"_s));
        const QStringList dateien = QDir(ordner_->path()).entryList(QDir::Files);
        QString gefunden;
        QCOMPARE(fehlerVon([&] { gefunden = datenbestand::pruefen(programm_, pfad(u"gewählt.fit"_s)).unbekannteTabelle; }), fehler);
        QCOMPARE(gefunden, unbekannt);
        QVERIFY2(inhalt(pfad(u"gewählt.fit"_s)) == vorher, "The chosen file stays as it is.");
        QVERIFY(!Datenbank::offen(pfad(u"gewählt.fit"_s)));
        QVERIFY(!Datenbank::offen(arbeit()));
        for (const QString &name : QDir(ordner_->path()).entryList(QDir::Files))
            QVERIFY2(dateien.contains(name) || name.contains(u"-wal"_s) || name.contains(u"-shm"_s), qPrintable(name));
    }

    void keineDatenbank_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<QString>("fehler");
        const QString keine = u"Die Datei 'gewählt.fit' ist keine Datenbank."_s, beschaedigt = u"Die Datenbank 'gewählt.fit' ist beschädigt."_s;
        QTest::newRow("Text") << QByteArray(9000, 'x') << keine;
        QTest::newRow("Access") << QByteArray::fromHex("000100005374616e64617264204a657420444200") + QByteArray(4096, '\0') << keine;
        QTest::newRow("leer") << QByteArray() << u"Die Datei 'gewählt.fit' ist keine Flox-Datenbank."_s;
        const QByteArray ganz = inhalt(vorlage_);
        QTest::newRow("abgeschnitten") << ganz.left(ganz.size() / 2) << beschaedigt;
        QByteArray verfaelscht = ganz;
        for (qsizetype stelle = ganz.size() / 2; stelle < ganz.size(); stelle += seite)
            verfaelscht.replace(stelle / seite * seite, 8, "\x0d\x01\xff\xff\xff\xff\xff\xff");
        QTest::newRow("verfälscht") << verfaelscht << beschaedigt;
    }
    void keineDatenbank()
    {
        QFETCH(QByteArray, bytes);
        QFETCH(QString, fehler);
        datenbank(u"flox-demo.mdb"_s, u"alt"_s);
        schreiben(pfad(u"gewählt.fit"_s), bytes);
        QCOMPARE(fehlerVon([&] { (void)datenbestand::pruefen(programm_, pfad(u"gewählt.fit"_s)); }), fehler);
        QVERIFY(inhalt(pfad(u"gewählt.fit"_s)) == bytes);
        QVERIFY(fehlerVon([&] { (void)datenbestand::pruefen(programm_, pfad(u"fehlt.fit"_s)); }).contains(u"wurde nicht gefunden"_s));
        QVERIFY(!fehlerVon([&] { (void)datenbestand::pruefen(programm_, ordner_->path()); }).isEmpty());
    }

    void fehlendeSpalten()
    {
        datenbank(u"flox-demo.mdb"_s, u"alt"_s);
        datenbank(u"a.fit"_s, u"neu"_s);
        const auto fehlend = [&] { return datenbestand::pruefen(programm_, pfad(u"a.fit"_s)).fehlendeSpalten; };
        QCOMPARE(fehlend(), QStringList());
        roh(pfad(u"a.fit"_s), u"ALTER TABLE Topfpfl DROP COLUMN DUENG_FS; ALTER TABLE Familien DROP COLUMN FAMNAME; DROP TABLE Obst"_s);
        QCOMPARE(fehlend(), (QStringList{u"Familien.FAMNAME"_s, u"Topfpfl.DUENG_FS"_s}));
        // One more is nobody's business.
        roh(pfad(u"a.fit"_s), u"ALTER TABLE Apfel ADD COLUMN Preis"_s);
        QCOMPARE(fehlend().size(), 2);
    }

    /// A query that rests on what the file lacks lacks all its columns; the file can be loaded all the same.
    void abfrageAufFehlendes()
    {
        datenbank(u"flox-demo.mdb"_s, u"alt"_s);
        datenbank(u"a.fit"_s, u"neu"_s);
        QStringList alle;
        for (const Spalte &spalte : schema::spaltenVon(u"Abfrage_Friedhof"_s))
            alle += u"Abfrage_Friedhof."_s + QString::fromLatin1(spalte.name);
        QVERIFY(alle.size() > 10);
        roh(pfad(u"a.fit"_s), u"DROP VIEW Abfrage_Friedhof; CREATE VIEW Abfrage_Friedhof AS SELECT gibtEsNicht FROM Friedhof"_s);
        QCOMPARE(datenbestand::pruefen(programm_, pfad(u"a.fit"_s)).fehlendeSpalten, alle);
        tun(u"laden"_s, u"a.fit"_s);
        QCOMPARE(marke(arbeit()), u"neu"_s);
    }

    /// The query of a subset is a flat table; its columns are known by the same names.
    void teilmengeHatAlleSpalten()
    {
        datenbank(u"flox-demo.mdb"_s, u"alt"_s);
        tun(u"teilmenge"_s, u"a.fit"_s);
        QCOMPARE(datenbestand::pruefen(programm_, pfad(u"a.fit"_s)).fehlendeSpalten, QStringList());
        tun(u"laden"_s, u"a.fit"_s);
        QCOMPARE(datenbestand::pruefen(programm_, original()).fehlendeSpalten, QStringList());
    }

    /// A subset has no indexes. Whoever loads it gets them, as far as there are tables and columns for them.
    void indexeKommenBeimLaden_data()
    {
        QTest::addColumn<QString>("sql"); // done to the subset
        QTest::addColumn<QStringList>("fehlen");
        QTest::newRow("ganz") << QString() << QStringList();
        QTest::newRow("ohne Tabelle") << u"DROP TABLE Apfel"_s << QStringList{u"Apfel_BOT_NAME"_s, u"Apfel_DTNAM"_s};
        QTest::newRow("ohne Spalte") << u"ALTER TABLE Obst DROP COLUMN DTNAM"_s << QStringList{u"Obst_DTNAM"_s};
        QTest::newRow("Abfrage statt Tabelle") << u"DROP TABLE Stauden_Bilder; CREATE VIEW Stauden_Bilder AS SELECT * FROM Topfpfl_Bilder"_s
                                               << QStringList{u"Stauden_Bilder_BotName"_s};
        QTest::newRow("einer ist schon da") << u"CREATE INDEX topfpfl_bot_name ON Topfpfl (BOT_NAME)"_s << QStringList{u"Topfpfl_BOT_NAME"_s};
    }
    void indexeKommenBeimLaden()
    {
        QFETCH(QString, sql);
        QFETCH(QStringList, fehlen);
        datenbank(u"flox-demo.mdb"_s, u"alt"_s);
        const auto namen = [](const QString &datei) {
            return werte(*Datenbank::OpenDatabase(datei, Datenbank::Zugriff::Lesen),
                         u"SELECT name FROM sqlite_master WHERE type = 'index' ORDER BY 1"_s);
        };
        QStringList erwartet = namen(arbeit());
        QVERIFY(erwartet.size() > 20);
        tun(u"teilmenge"_s, u"a.fit"_s);
        QCOMPARE(namen(pfad(u"a.fit"_s)), QStringList());
        if (!sql.isEmpty())
            roh(pfad(u"a.fit"_s), sql);
        const QByteArray gewaehlt = inhalt(pfad(u"a.fit"_s));
        for (const QString &name : fehlen)
            QVERIFY(erwartet.removeOne(name));
        tun(u"laden"_s, u"a.fit"_s);
        QStringList geladen = namen(arbeit());
        geladen.removeOne(u"topfpfl_bot_name"_s);
        QCOMPARE(geladen, erwartet);
        QCOMPARE(marke(arbeit()), u"alt"_s);
        QVERIFY2(inhalt(pfad(u"a.fit"_s)) == gewaehlt, "The chosen file stays as it is.");
    }

    /// An index that cannot be made is told of the file that was chosen, and nothing is replaced.
    void indexScheitert()
    {
        datenbank(u"flox-demo.mdb"_s, u"alt"_s);
        datenbank(u"a.fit"_s, u"neu"_s);
        roh(pfad(u"a.fit"_s), u"DROP INDEX Topfpfl_DTNAM; CREATE TABLE Topfpfl_DTNAM (a)"_s);
        const QStringList dateien = QDir(ordner_->path()).entryList(QDir::Files);
        const QString fehler = fehlerVon([&] { datenbestand::laden(programm_, pfad(u"a.fit"_s), true, [](bool) {}); });
        QVERIFY2(fehler.contains(u"'a.fit'"_s) && !fehler.contains(u"flox-demo"_s), qPrintable(fehler));
        QCOMPARE(QDir(ordner_->path()).entryList(QDir::Files), dateien);
        QCOMPARE(marke(arbeit()), u"alt"_s);
    }

    void niemandDarfSieHaben()
    {
        datenbank(u"flox-demo.mdb"_s, u"alt"_s);
        datenbank(u"flox-original.pdb"_s, u"original"_s);
        datenbank(u"a.fit"_s, u"neu"_s);
        const std::shared_ptr<Datenbank> gehalten = Datenbank::OpenDatabase(arbeit());
        for (const QString &was : {u"laden"_s, u"original"_s}) {
            QCOMPARE(fehlerVon([&] { tun(was, u"a.fit"_s); }), u"Die Datenbank 'flox-demo.mdb' ist noch geöffnet. Sie wurde nicht ersetzt."_s);
            QCOMPARE(marke(arbeit()), u"alt"_s);
            QCOMPARE(marke(original()), u"original"_s);
            QVERIFY(bestandswechsel::istOriginal(programm_));
        }
    }

    /// A change that was broken off lies in a journal beside the file; the new file must not get it.
    void abgebrocheneAenderung()
    {
        datenbank(u"flox-demo.mdb"_s, u"alt"_s);
        datenbank(u"a.fit"_s, u"neu"_s);
        sqlite3 *db = nullptr;
        QCOMPARE(sqlite3_open(arbeit().toUtf8().constData(), &db), SQLITE_OK);
        QCOMPARE(sqlite3_exec(db,
                              "PRAGMA cache_size = 1; PRAGMA cache_spill = 1; BEGIN; UPDATE Topfpfl SET benu_bemerkung = 'halb';"
                              "CREATE TABLE x (a); INSERT INTO x VALUES (zeroblob(900000))",
                              nullptr, nullptr, nullptr),
                 SQLITE_OK);
        // Both files as a crash leaves them.
        const QByteArray halb = inhalt(arbeit()), journal = inhalt(arbeit() + u"-journal"_s);
        sqlite3_close_v2(db);
        QVERIFY(!journal.isEmpty());
        schreiben(arbeit(), halb);
        schreiben(arbeit() + u"-journal"_s, journal);
        tun(u"laden"_s, u"a.fit"_s);
        QCOMPARE(marke(arbeit()), u"neu"_s);
        QCOMPARE(marke(original()), u"alt"_s);
    }

    void fremdesProgrammSchreibt_data()
    {
        QTest::addColumn<QByteArray>("anfang");
        QTest::newRow("im Speicher") << QByteArray("PRAGMA cache_spill = 0; BEGIN");
        QTest::newRow("in der Datei") << QByteArray("PRAGMA cache_size = 1; BEGIN EXCLUSIVE");
    }
    /// The journal of a program that is at work stays with its file, and both stay where they are.
    void fremdesProgrammSchreibt()
    {
        QFETCH(QByteArray, anfang);
        datenbank(u"flox-demo.mdb"_s, u"alt"_s);
        datenbank(u"a.fit"_s, u"neu"_s);
        sqlite3 *db = nullptr;
        QCOMPARE(sqlite3_open(arbeit().toUtf8().constData(), &db), SQLITE_OK);
        const QByteArray sql = anfang + "; UPDATE Topfpfl SET benu_bemerkung = 'halb'; CREATE TABLE x (a); INSERT INTO x VALUES (zeroblob(90000))";
        QCOMPARE(sqlite3_exec(db, sql.constData(), nullptr, nullptr, nullptr), SQLITE_OK);
        const QString journal = arbeit() + u"-journal"_s;
        QVERIFY(QFile::exists(journal));
        const QString fehler = fehlerVon([&] { datenbestand::laden(programm_, pfad(u"a.fit"_s), false, [](bool) {}); });
        const bool journalBleibt = QFile::exists(journal);
        QCOMPARE(sqlite3_exec(db, "ROLLBACK", nullptr, nullptr, nullptr), SQLITE_OK);
        sqlite3_close_v2(db);
        QCOMPARE(fehler, u"Die Datenbank 'flox-demo.mdb' wird gerade von einem anderen Programm benutzt. Sie wurde nicht ersetzt."_s);
        QVERIFY(journalBleibt);
        QCOMPARE(marke(arbeit()), u"alt"_s);
        tun(u"laden"_s, u"a.fit"_s);
        QCOMPARE(marke(arbeit()), u"neu"_s);
    }

    void nurLesbarerOrdner()
    {
        ausgangslage();
        const QByteArray vorher = inhalt(arbeit());
        QTemporaryDir anderswo;
        QVERIFY(QFile::copy(pfad(u"neu.fit"_s), anderswo.filePath(u"neu.fit"_s)));
        NurLesen::ueberlassen(anderswo.path());
        {
            const NurLesen sperre(ordner_->path());
            for (const QString &was : {u"laden"_s, u"original"_s, u"teilmenge"_s, u"ausgabe"_s})
                QVERIFY(!fehlerVon([&] { bestandswechsel::tun(programm_, was, pfad(u"neu.fit"_s)); }).isEmpty());
        }
        QVERIFY(inhalt(arbeit()) == vorher);
        QCOMPARE(marken(u"."_s), (QStringList{u"davor"_s, u"jetzt"_s, u"neu"_s, u"neu"_s}));
    }

    void jederSchrittKannScheitern_data()
    {
        QTest::addColumn<QString>("was");
        QTest::addColumn<int>("nummer");
        QTest::addColumn<bool>("bleibend");
        QTest::addColumn<int>("art"); // 0-based
        for (const char *was : {"laden", "original", "teilmenge", "ausgabe", "access", "access laden"}) {
            int art = 0;
            for (const auto &[name, nummer] : {std::pair("voll", ENOSPC), std::pair("gestört", EIO), std::pair("schreibgeschützt", EROFS)})
                for (const bool bleibend : {false, true})
                    QTest::addRow("%s, %s%s", was, name, bleibend ? ", bleibend" : "") << QString::fromLatin1(was) << nummer << bleibend << art++;
        }
    }
    void jederSchrittKannScheitern()
    {
        QFETCH(QString, was);
        QFETCH(int, nummer);
        QFETCH(bool, bleibend);
        QFETCH(int, art);
        const QString ziel = was == u"laden" ? u"neu.fit"_s : was == u"access laden" ? u"neu.mdb"_s : u"ziel.fit"_s;
        const auto lauf = [&](Dateistoerung &stoerung) {
            const QString fehler = fehlerVon([&] { tun(was, ziel); });
            return std::tuple(fehler, stoerung.gestoert(), stoerung.treffbare(nummer));
        };
        QList<int> stellen;
        {
            ausgangslage();
            Dateistoerung nur(Dateistoerung::Art::Keine, 0, 0);
            stellen = std::get<2>(lauf(nur));
        }
        QVERIFY2(stellen.size() > 8, "Hardly a step can fail: the test shows nothing.");
        // The engine writes hundreds of pages in one way: some of them stand for all. And the six ways to fail take turns, step by step.
        constexpr qsizetype rand = 20;
        const qsizetype weite = gruendlich() ? 1 : std::max(qsizetype(1), stellen.size() / 40);
        constexpr int arten = 6;
        int versuch = 0;
        for (qsizetype i = 0; i < stellen.size(); i += i < rand || i + rand > stellen.size() ? 1 : weite) {
            if (!gruendlich() && versuch++ % arten != art)
                continue;
            const int stelle = stellen[i];
            neuerOrdner();
            ausgangslage();
            setSchreibmerker(pfad(u"flox-unfertig.txt"_s));
            QString fehler;
            {
                Dateistoerung stoerung(bleibend ? Dateistoerung::Art::Bleibend : Dateistoerung::Art::Einmal, stelle, nummer);
                fehler = std::get<0>(lauf(stoerung));
                QVERIFY(stoerung.gestoert());
            }
            nichtsVerloren(was, fehler.isEmpty(), u"%1 %2"_s.arg(was).arg(stelle));
            if (QTest::currentTestFailed())
                return;
            // What could not even be removed goes at the next start.
            if (nummer != ENOSPC)
                naechsterStart();
            QVERIFY2(reste().isEmpty(), qPrintable(u"step %1 leaves %2"_s.arg(stelle).arg(reste().join(u", "))));
            gescheitert_[was] += !fehler.isEmpty();
        }
        setSchreibmerker({});
        if (art == arten - 1)
            QVERIFY2(gescheitert_[was] > 5, "Hardly a step failed: the test shows nothing.");
    }

    void jederSchrittKannDerLetzteSein_data()
    {
        QTest::addColumn<QString>("was");
        for (const char *was : {"laden", "original", "teilmenge", "ausgabe", "access", "access laden"})
            QTest::newRow(was) << QString::fromLatin1(was);
    }
    void jederSchrittKannDerLetzteSein()
    {
        QFETCH(QString, was);
        const QString ziel = was == u"laden" ? u"neu.fit"_s : was == u"access laden" ? u"neu.mdb"_s : u"ziel.fit"_s;
        int abgebrochen = 0;
        const int weite = gruendlich() ? 1 : was == u"access" ? 18 : was == u"teilmenge" || was == u"access laden" ? 10 : 2;
        for (int stelle = 1;; stelle += weite) {
            neuerOrdner();
            ausgangslage();
            QProcess prozess;
            prozess.start(QStringLiteral(FLOX_BESTANDSWECHSLER), {ordner_->path(), was, pfad(ziel), QString::number(stelle)});
            QVERIFY(prozess.waitForFinished(30000));
            if (prozess.exitStatus() == QProcess::NormalExit) {
                QCOMPARE(prozess.exitCode(), 0);
                break;
            }
            ++abgebrochen;
            // The next start.
            setSchreibmerker(pfad(u"flox-unfertig.txt"_s));
            naechsterStart();
            setSchreibmerker({});
            nichtsVerloren(was, false, u"%1 killed at %2"_s.arg(was).arg(stelle));
            if (QTest::currentTestFailed())
                return;
            QVERIFY2(reste().isEmpty(), qPrintable(u"%1 killed at %2 leaves %3"_s.arg(was).arg(stelle).arg(reste().join(u", "))));
        }
        QVERIFY2(abgebrochen > 8, "Hardly a step was the last: the test shows nothing.");
    }

private:
    static constexpr int seite = 1024; // bytes

    QString pfad(const QString &name) const { return ordner_->filePath(name); }
    QString arbeit() const { return datenbestand::arbeitsdatei(programm_); }
    QString original() const { return datenbestand::originaldatei(programm_); }
    void tun(const QString &was, const QString &datei = {}) { bestandswechsel::tun(programm_, was, pfad(datei)); }

    void neuerOrdner()
    {
        // In memory, where there is such a place: every step syncs, and there are thousands.
        const QString schnell = u"/dev/shm"_s;
        ordner_.emplace((QFileInfo(schnell).isWritable() ? schnell : QDir::tempPath()) + u"/tst_datenbestand-XXXXXX"_s);
        QVERIFY(ordner_->isValid());
        programm_ = {};
        programm_.ProgrammPfad = ordner_->path();
    }

    void naechsterStart() const
    {
        schreibresteFegen();
        laufordnerFegen(ordner_->path());
    }

    void datenbank(const QString &name, const QString &marke)
    {
        QVERIFY(QFile::copy(vorlage_, pfad(name)));
        roh(pfad(name), u"UPDATE Topfpfl SET benu_bemerkung = '%1'"_s.arg(marke));
    }

    /// Four databases with a note each, all of them the user's.
    void ausgangslage()
    {
        if (lage_.isEmpty()) {
            for (const auto &[name, marke] : {std::pair(u"flox-demo.mdb"_s, u"jetzt"_s),
                                              {u"flox-original.pdb"_s, u"davor"_s},
                                              {u"neu.fit"_s, u"neu"_s},
                                              {u"ziel.fit"_s, u"ziel"_s}}) {
                datenbank(name, marke);
                lage_.insert(name, inhalt(pfad(name)));
            }
            QVERIFY(accessdatei::ausgeben(pfad(u"neu.fit"_s), pfad(u"neu.mdb"_s)).has_value());
            lage_.insert(u"neu.mdb"_s, inhalt(pfad(u"neu.mdb"_s)));
            return;
        }
        for (auto i = lage_.cbegin(); i != lage_.cend(); ++i)
            schreiben(pfad(i.key()), i.value());
    }

    QStringList marken(const QString &unterordner) const
    {
        QStringList alle;
        for (const QFileInfo &datei : QDir(pfad(unterordner)).entryInfoList({u"*.mdb"_s, u"*.pdb"_s, u"*.fit"_s}, QDir::Files))
            if (datei.fileName() != u"ziel.fit"_s)
                alle += marke(datei.filePath());
        alle.sort();
        return alle;
    }

    /// What was begun and not finished.
    QStringList reste() const
    {
        QStringList alle;
        for (const QString &unterordner : {u"."_s, u"sicherungen"_s})
            for (const QString &name : QDir(pfad(unterordner)).entryList(QDir::Files | QDir::Hidden)) {
                static const QRegularExpression fertig(u"^[^.]*( [-0-9 ]+)?(\\.(mdb|pdb|fit))?$"_s);
                if (!fertig.match(name).hasMatch() && name != u"flox-unfertig.txt")
                    alle += name;
            }
        return alle;
    }

    /// A database is in place, it is the old or the new one, and every note can be found.
    void nichtsVerloren(const QString &was, bool gelungen, const QString &wobei)
    {
        const QByteArray bei = wobei.toUtf8();
        const QString jetzt = marke(arbeit());
        const QString neu = was.endsWith(u"laden") ? u"neu"_s : was == u"original" ? u"davor"_s : u"jetzt"_s;
        QVERIFY2(jetzt == u"jetzt" || jetzt == neu, bei + ": " + jetzt.toUtf8());
        if (gelungen)
            QVERIFY2(jetzt == neu, bei);
        QVERIFY2(!fehlerVon([&] { Datenbank::OpenDatabase(arbeit())->tabelleFordern(u"Namen_Benutzer_Optionen"_s); }).size(), bei);
        // The truth is no worse than the files: what was loaded is never taken for the original.
        if (bestandswechsel::istOriginal(programm_))
            QVERIFY2(jetzt != u"neu", bei);
        QStringList alle = marken(u"."_s) + marken(u"sicherungen"_s);
        const QString ziel = marke(pfad(u"ziel.fit"_s));
        QVERIFY2(ziel == u"ziel" || ((was == u"teilmenge" || was == u"ausgabe" || was == u"access") && ziel == u"jetzt"),
                 bei + ": ziel.fit: " + ziel.toUtf8());
        alle += ziel;
        for (const char *notiz : {"jetzt", "davor", "neu", "ziel"})
            QVERIFY2(alle.contains(QString::fromLatin1(notiz)), bei + " has lost " + notiz);
    }

    QTemporaryDir vorlagen_;
    QString vorlage_;
    QMap<QString, QByteArray> lage_;
    QHash<QString, int> gescheitert_; // steps that failed, by series
    std::optional<QTemporaryDir> ordner_;
    Programm programm_;
};

FLOX_TEST(tst_datenbestand, TestDatenbestand)
#include "tst_datenbestand.moc"
