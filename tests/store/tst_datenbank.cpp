#include "Datenhilfen.h"
#include "Datenordner.h"

#include "store/Recordset.h"
#include "store/Schema.h"
#include "tests/Testprogramm.h"

#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <cstdio>

using namespace Qt::StringLiterals;

/* Databases: opening, tables, transactions, and tables copied into other files. */
class TestDatenbank : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        ordner_.emplace();
        db_ = ordner_->db();
    }
    void cleanup() { db_.reset(); }

    void oeffnen()
    {
        const QString falsch = ordner_->pfad() + u"\\FLOX-Demo.MDB"_s;
        QCOMPARE(Datenbank::OpenDatabase(falsch), db_);
        QVERIFY(Datenbank::OpenDatabase(ordner_->datenbank()) == db_);
        QVERIFY(!db_->schreibgeschuetzt());
        const QString fehlt = fehlerVon([&] { Datenbank::OpenDatabase(ordner_->pfad(u"fehlt.mdb"_s)); });
        QVERIFY2(fehlt.contains(u"fehlt.mdb' wurde nicht gefunden."_s), qPrintable(fehlt));
        QVERIFY(!QFile::exists(ordner_->pfad(u"fehlt.mdb"_s)));
        QVERIFY(fehlerVon([&] { Datenbank::OpenDatabase(ordner_->pfad()); }).contains(u"wurde nicht gefunden"_s));
        QVERIFY(!fehlerVon([] { Datenbank::OpenDatabase(QString()); }).isEmpty());
    }

    /// Whoever asks for the durable connection must not get a scratch one, nor the other way round.
    void zugriffWieVerlangt_data()
    {
        QTest::addColumn<Datenbank::Zugriff>("erster");
        QTest::addColumn<Datenbank::Zugriff>("zweiter");
        QTest::newRow("privat gehalten") << Datenbank::Zugriff::Privat << Datenbank::Zugriff::Arbeit;
        QTest::newRow("zur Arbeit gehalten") << Datenbank::Zugriff::Arbeit << Datenbank::Zugriff::Privat;
    }
    void zugriffWieVerlangt()
    {
        QFETCH(const Datenbank::Zugriff, erster);
        QFETCH(const Datenbank::Zugriff, zweiter);
        const QString pfad = kopie(u"kopie.mdb"_s);
        std::shared_ptr<Datenbank> gehalten = Datenbank::OpenDatabase(pfad, erster);
        QCOMPARE(Datenbank::OpenDatabase(pfad, erster), gehalten);
        const QString text = fehlerVon([&] { Datenbank::OpenDatabase(pfad, zweiter); });
        QVERIFY2(text.contains(u"'kopie.mdb'"_s) && text.contains(u"schon"_s), qPrintable(text));
        gehalten.reset();
        const std::shared_ptr<Datenbank> danach = Datenbank::OpenDatabase(pfad, zweiter);
        QCOMPARE(zahl(*danach, u"PRAGMA synchronous"_s), zweiter == Datenbank::Zugriff::Arbeit ? 3 : 0);
    }

    void ersetzteDatei_data()
    {
        QTest::addColumn<bool>("umbenannt");
        QTest::newRow("gelöscht und neu angelegt") << false;
        QTest::newRow("darüber umbenannt") << true;
    }
    void ersetzteDatei()
    {
        QFETCH(const bool, umbenannt);
        const QString pfad = kopie(u"kopie.mdb"_s), neue = kopie(u"neue.mdb"_s);
        Datenbank::OpenDatabase(neue)->Execute(u"INSERT INTO Daten VALUES ('neu')"_s);
        const std::shared_ptr<Datenbank> alte = Datenbank::OpenDatabase(pfad);
        QVERIFY(!alte->ersetzt());
        const QString lesen = u"SELECT DATUM FROM Daten"_s;
        QCOMPARE(werte(*alte, lesen), QStringList());
        if (umbenannt) {
            QCOMPARE(std::rename(qPrintable(neue), qPrintable(pfad)), 0);
        } else {
            QVERIFY(QFile::remove(pfad));
            QVERIFY(alte->ersetzt());
            QVERIFY(fehlerVon([&] { Datenbank::OpenDatabase(pfad); }).contains(u"wurde nicht gefunden"_s));
            QVERIFY(Datenbank::offen(pfad)); // by the file that is gone
            QVERIFY(QFile::rename(neue, pfad));
        }
        QVERIFY(alte->ersetzt());
        const std::shared_ptr<Datenbank> andere = Datenbank::OpenDatabase(pfad);
        QVERIFY(andere != alte);
        QVERIFY(!andere->ersetzt());
        QCOMPARE(werte(*andere, lesen), QStringList{u"neu"_s});
        QCOMPARE(Datenbank::OpenDatabase(pfad), andere);
    }

    void offen()
    {
        const QString pfad = kopie(u"kopie.mdb"_s);
        QVERIFY(!Datenbank::offen(pfad));
        QVERIFY(!Datenbank::offen(ordner_->pfad(u"fehlt.mdb"_s)));
        std::shared_ptr<Datenbank> gehalten = Datenbank::OpenDatabase(pfad, Datenbank::Zugriff::Privat);
        QVERIFY(Datenbank::offen(pfad));
        QVERIFY(Datenbank::offen(ordner_->pfad() + u"\\Kopie.MDB"_s));
        QVERIFY(!Datenbank::offen(ordner_->pfad(u"fehlt.mdb"_s)));
        gehalten.reset();
        QVERIFY(!Datenbank::offen(pfad));
        gehalten = Datenbank::CreateDatabase(ordner_->pfad(u"neu.mdb"_s));
        QVERIFY(Datenbank::offen(ordner_->pfad(u"neu.mdb"_s)));
    }

    void anlegen()
    {
        const QString pfad = ordner_->pfad(u"neu.mdb"_s);
        schreiben(pfad, "etwas anderes");
        schreiben(pfad + u"-journal"_s, "von früher");
        std::shared_ptr<Datenbank> neu = Datenbank::CreateDatabase(pfad);
        QVERIFY(neu->TableDefs().isEmpty());
        QCOMPARE(zahl(*neu, u"PRAGMA application_id"_s), qint64(schema::anwendungsnummer));
        QCOMPARE(zahl(*neu, u"PRAGMA user_version"_s), qint64(schema::version));
        neu.reset();
        QVERIFY(fehlerVon([&] { Datenbank::OpenDatabase(pfad); }).isEmpty());
        QVERIFY(!fehlerVon([&] { Datenbank::CreateDatabase(ordner_->pfad(u"fehlt/neu.mdb"_s)); }).isEmpty());
    }

    /// Notes are on the disk when the call returns; a byte copy of the file is complete.
    void haltbarkeit()
    {
        QCOMPARE(werte(*db_, u"PRAGMA journal_mode"_s), QStringList{u"delete"_s});
        QCOMPARE(zahl(*db_, u"PRAGMA synchronous"_s), 3);
        QVERIFY(QFile::copy(ordner_->datenbank(), ordner_->pfad(u"privat.tmp"_s)));
        const std::shared_ptr<Datenbank> privat = Datenbank::OpenDatabase(ordner_->pfad(u"privat.tmp"_s), Datenbank::Zugriff::Privat);
        QCOMPARE(zahl(*privat, u"PRAGMA synchronous"_s), 0);
        QCOMPARE(werte(*privat, u"PRAGMA journal_mode"_s), QStringList{u"off"_s});
    }

    void tabellen()
    {
        const QStringList alle = db_->TableDefs();
        for (const char *name : schema::pflichttabellen())
            QVERIFY2(alle.contains(QString::fromLatin1(name)), name);
        QVERIFY(!alle.contains(u"Abfrage_Friedhof"_s));
        QVERIFY(std::ranges::none_of(alle, [](const QString &name) { return name.startsWith(u"sqlite_"_s); }));
        QVERIFY(std::ranges::is_sorted(alle, [](const QString &a, const QString &b) { return a.toLower() < b.toLower(); }));
        QCOMPARE(alle.size(), 26);

        QVERIFY(db_->hatTabelle(u"tOPFPFL"_s));
        QVERIFY(db_->hatTabelle(u"abfrage_friedhof"_s));
        QVERIFY(!db_->hatTabelle(u"Palmen"_s));
        QVERIFY(!db_->hatTabelle(QString()));
        QVERIFY(db_->istAbfrage(u"ABFRAGE_FRIEDHOF"_s));
        QVERIFY(!db_->istAbfrage(u"Friedhof"_s));
        QVERIFY(db_->istGanzzahl(u"topfpfl"_s, u"artnr"_s));
        QVERIFY(db_->istGanzzahl(u"Topfpfl_Synonyme_Deutsch"_s, u"ARTNR"_s));
        QVERIFY(!db_->istGanzzahl(u"Topfpfl"_s, u"FARBEN"_s));
        QVERIFY(!db_->istGanzzahl(u"Topfpfl"_s, u"Stacheln"_s));
        QVERIFY(!db_->istGanzzahl(u"Palmen"_s, u"ARTNR"_s));
    }

    void transaktion()
    {
        const QString zaehlen = u"SELECT count(*) FROM Daten"_s, einfuegen = u"INSERT INTO Daten VALUES (?)"_s;
        {
            Transaktion ohneEnde(*db_);
            db_->Execute(einfuegen, {u"eins"_s});
            QCOMPARE(zahl(*db_, zaehlen), 1);
        }
        QCOMPARE(zahl(*db_, zaehlen), 0);
        {
            Transaktion transaktion(*db_);
            db_->Execute(einfuegen, {u"zwei"_s});
            transaktion.festschreiben();
        }
        QCOMPARE(zahl(*db_, zaehlen), 1);
        QCOMPARE(db_->geaendert(), 1);
    }

    void werteBinden()
    {
        const QVariantList alle{1, qint64(1) << 40, 0.25, u"O'Neill \"x\" ; --"_s, u""_s, QString(), QVariant()};
        const QStringList typen{u"integer"_s, u"integer"_s, u"real"_s, u"text"_s, u"text"_s, u"null"_s, u"null"_s};
        for (qsizetype i = 0; i < alle.size(); ++i) {
            QCOMPARE(werte(*db_, u"SELECT typeof(?)"_s, {alle[i]}), QStringList{typen[i]});
            QCOMPARE(werte(*db_, u"SELECT ?"_s, {alle[i]}).first(), alle[i].toString());
        }
        // A prepared statement keeps no value from the time before.
        const QString einfuegen = u"INSERT INTO Daten VALUES (?)"_s;
        db_->Execute(einfuegen, {u"alt"_s});
        db_->Execute(einfuegen);
        QCOMPARE(werte(*db_, u"SELECT DATUM FROM Daten ORDER BY rowid"_s), (QStringList{u"alt"_s, QString()}));
        QVERIFY(!fehlerVon([&] { db_->Execute(einfuegen, {1, 2}); }).isEmpty());
    }

    void vieleAnweisungen()
    {
        for (int i = 0; i < 500; ++i)
            QCOMPARE(zahl(*db_, u"SELECT %1"_s.arg(i)), qint64(i));
    }

    /// A table in another file: its rows, its key and its column types; no indexes.
    void kopieren_data()
    {
        QTest::addColumn<QString>("datei");
        QTest::addColumn<QString>("quelle");
        QTest::addColumn<QString>("ziel");
        for (const char *tabelle : {"Topfpfl", "Apfel", "Topfpfl_Bilder", "Topfpfl_Synonyme_Deutsch", "Familien", "Namen_Benutzer_Optionen", "Daten"})
            QTest::newRow(tabelle) << u"teil.mdb"_s << QString::fromLatin1(tabelle) << QString::fromLatin1(tabelle);
        QTest::newRow("anders geschrieben") << u"teil.mdb"_s << u"TOPFPFL"_s << u"Topfpfl"_s;
        QTest::newRow("anderer Name") << u"teil.mdb"_s << u"Topfpfl"_s << u"Auswahl"_s;
        QTest::newRow("Apostroph im Pfad") << u"O'Neill's teil.mdb"_s << u"Topfpfl"_s << u"Topfpfl"_s;
        QTest::newRow("Umlaut im Pfad") << u"Gehölze.mdb"_s << u"Topfpfl"_s << u"Topfpfl"_s;
    }
    void kopieren()
    {
        QFETCH(QString, datei);
        QFETCH(QString, quelle);
        QFETCH(QString, ziel);
        const QString pfad = ordner_->pfad(datei);
        Datenbank::CreateDatabase(pfad).reset();
        db_->Execute(u"SELECT * INTO %1 IN '%2' FROM %3"_s.arg(ziel, QString(pfad).replace(u"/"_s, u"\\"_s).replace(u"'"_s, u"''"_s), quelle));

        const std::shared_ptr<Datenbank> teil = Datenbank::OpenDatabase(pfad);
        QCOMPARE(teil->TableDefs(), QStringList{ziel});
        QCOMPARE(zeilen(*teil, ziel), zeilen(*db_, quelle));
        const QString spalten = u"SELECT name || ' ' || type || ' ' || pk FROM pragma_table_info(?)"_s;
        QCOMPARE(werte(*teil, spalten, {ziel}), werte(*db_, spalten, {quelle}));
        QCOMPARE(teil->Indexe(ziel), QStringList());
        // The source is whole and goes on working.
        QCOMPARE(werte(*db_, u"PRAGMA database_list"_s).size(), 1);
        QVERIFY(fehlerVon([&] { db_->Execute(u"UPDATE Topfpfl SET benu_bemerkung = 'danach' WHERE ARTNR = 1001"_s); }).isEmpty());
    }

    void kopierenMitBedingung()
    {
        const QString pfad = ordner_->pfad(u"teil.mdb"_s);
        Datenbank::CreateDatabase(pfad).reset();
        db_->Execute(u"SELECT * INTO Topfpfl IN '%1' FROM Topfpfl WHERE BOT_NAME LIKE 'Fic*' AND ARTNR LIKE '*' ORDER BY BOT_NAME"_s.arg(pfad));
        db_->Execute(u"SELECT ARTNR, BOT_NAME INTO Namen IN '%1' FROM Topfpfl"_s.arg(pfad));
        const std::shared_ptr<Datenbank> teil = Datenbank::OpenDatabase(pfad);
        const QStringList ficus = werte(*db_, u"SELECT ARTNR FROM Topfpfl WHERE substr(BOT_NAME, 1, 3) = 'Fic' ORDER BY 1"_s);
        QVERIFY(ficus.size() > 1);
        QCOMPARE(werte(*teil, u"SELECT ARTNR FROM Topfpfl ORDER BY 1"_s), ficus);
        QCOMPARE(werte(*teil, u"SELECT name FROM pragma_table_info('Namen')"_s), (QStringList{u"ARTNR"_s, u"BOT_NAME"_s}));
        QCOMPARE(werte(*teil, u"SELECT BOT_NAME FROM Namen ORDER BY ARTNR"_s), werte(*db_, u"SELECT BOT_NAME FROM Topfpfl ORDER BY ARTNR"_s));
    }

    /// The query becomes a flat table with the same columns, that works like one: key, flags, user's fields.
    void abfrageWirdTabelle()
    {
        for (const char *tabelle : {"Stauden", "Gehoelze", "Friedhof"})
            db_->Execute(u"DELETE FROM %1"_s.arg(QLatin1String(tabelle)));
        db_->Execute(u"INSERT INTO Stauden (ARTNR, BOT_NAME, farben, BLMINH) VALUES (900, 'Aster', '0010000000000', 0.5)"_s);
        db_->Execute(u"INSERT INTO Friedhof (ARTNR, BOT_NAME, DB, SYMBOLIK, benu_eigen) VALUES (900, 'Aster', '100', '0100000000000000', '1    ')"_s);
        db_->Execute(u"INSERT INTO Friedhof (ARTNR, BOT_NAME, DB) VALUES (2900, 'Acer', '010')"_s);
        const QString pfad = ordner_->pfad(u"teil.mdb"_s);
        Datenbank::CreateDatabase(pfad).reset();
        db_->Execute(u"SELECT * INTO Abfrage_Friedhof IN '%1' FROM Abfrage_Friedhof"_s.arg(pfad));

        const std::shared_ptr<Datenbank> teil = Datenbank::OpenDatabase(pfad);
        QCOMPARE(teil->TableDefs(), QStringList{u"Abfrage_Friedhof"_s});
        QVERIFY(!teil->istAbfrage(u"Abfrage_Friedhof"_s));
        const QString namen = u"SELECT name FROM pragma_table_info('Abfrage_Friedhof')"_s;
        QCOMPARE(werte(*teil, namen), werte(*db_, namen));
        QCOMPARE(zeilen(*teil, u"Abfrage_Friedhof"_s), zeilen(*db_, u"Abfrage_Friedhof"_s));

        Recordset satz(teil, u"SELECT * From Abfrage_Friedhof WHERE ARTNR LIKE '*' ORDER BY Bot_Name"_s);
        QCOMPARE(satz.RecordCount(), 2);
        QVERIFY(satz.Finden(900));
        QCOMPARE(satz.Schluessel(), 900);
        QCOMPARE(satz.Fields(u"ARTNR").Ganzzahl(), 900);
        QCOMPARE(satz.Fields(u"farben").Text(), u"0010000000000"_s);
        QCOMPARE(satz.Fields(u"SYMBOLIK").Text(), u"0100000000000000"_s);
        QCOMPARE(satz.Fields(u"benu_eigen").Text(), u"1    "_s);
        satz.Edit();
        satz.Fields(u"benu_eigen").setValue(u"01010"_s);
        satz.Update();
        QCOMPARE(satz.Fields(u"benu_eigen").Text(), u"01010"_s);
        satz.Delete();
        QCOMPARE(werte(*teil, u"SELECT ARTNR FROM Abfrage_Friedhof"_s), QStringList{u"2900"_s});
    }

    void kopierenScheitert_data()
    {
        QTest::addColumn<QString>("anweisung");
        QTest::addColumn<QString>("meldung");
        QTest::newRow("Tabelle fehlt") << u"SELECT * INTO Palmen IN '%1/teil.mdb' FROM Palmen"_s
                                       << u"In der Datenbank 'flox-demo.mdb' fehlt die Tabelle 'Palmen'."_s;
        QTest::newRow("Datei fehlt") << u"SELECT * INTO Topfpfl IN '%1/fehlt.mdb' FROM Topfpfl"_s << u"fehlt.mdb' wurde nicht gefunden."_s;
        QTest::newRow("Tabelle gibt es schon") << u"SELECT * INTO Familien IN '%1/teil.mdb' FROM Familien"_s << u"already exists"_s;
        QTest::newRow("Feld fehlt") << u"SELECT * INTO Topfpfl IN '%1/teil.mdb' FROM Topfpfl WHERE Stacheln LIKE '*'"_s
                                    << u"fehlt das Feld 'Stacheln'"_s;
        QTest::newRow("keine Datenbank") << u"SELECT * INTO Topfpfl IN '%1/text.mdb' FROM Topfpfl"_s
                                         << u"Die Datei 'text.mdb' ist keine Datenbank."_s;
        QTest::newRow("Syntax") << u"SELECT * INTO Topfpfl IN '%1/teil.mdb' FROM Topfpfl WHERE"_s << u"Syntaxfehler"_s;
    }
    void kopierenScheitert()
    {
        QFETCH(QString, anweisung);
        QFETCH(QString, meldung);
        const QString pfad = ordner_->pfad(u"teil.mdb"_s);
        Datenbank::CreateDatabase(pfad)->Execute(u"CREATE TABLE Familien (FAMILIE INTEGER PRIMARY KEY)"_s);
        schreiben(ordner_->pfad(u"text.mdb"_s), QByteArray(5000, 'x'));
        const QString text = fehlerVon([&] { db_->Execute(anweisung.arg(ordner_->pfad())); });
        QVERIFY2(text.contains(meldung), qPrintable(text));
        QVERIFY(!QFile::exists(ordner_->pfad(u"fehlt.mdb"_s)));
        // Nothing half copied, and the next copy works.
        QCOMPARE(Datenbank::OpenDatabase(pfad)->TableDefs(), QStringList{u"Familien"_s});
        QCOMPARE(werte(*db_, u"PRAGMA database_list"_s).size(), 1);
        db_->Execute(u"SELECT * INTO Apfel IN '%1' FROM Apfel"_s.arg(pfad));
        QCOMPARE(Datenbank::OpenDatabase(pfad)->TableDefs(), (QStringList{u"Apfel"_s, u"Familien"_s}));
    }

private:
    QString kopie(const QString &name) const
    {
        const QString pfad = ordner_->pfad(name);
        if (!QFile::copy(ordner_->datenbank(), pfad))
            qFatal("The database cannot be copied.");
        return pfad;
    }
    /// All rows with all values, in the order of the first column.
    static QStringList zeilen(Datenbank &db, const QString &tabelle)
    {
        Anweisung &anweisung = db.vorbereitet(u"SELECT * FROM \"%1\" ORDER BY 1"_s.arg(tabelle));
        QStringList alle;
        while (anweisung.schritt()) {
            QStringList zeile;
            for (int i = 0; i < anweisung.spalten(); ++i)
                zeile += anweisung.istNull(i) ? u"<null>"_s : anweisung.text(i);
            alle += zeile.join(u'|');
        }
        return alle;
    }

    std::optional<Datenordner> ordner_;
    std::shared_ptr<Datenbank> db_;
};

FLOX_TEST(tst_datenbank, TestDatenbank)
#include "tst_datenbank.moc"
