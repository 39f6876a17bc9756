#include "Datenhilfen.h"
#include "Datenordner.h"

#include "store/Recordset.h"
#include "store/Schema.h"
#include "tests/Testprogramm.h"

#include <QTest>

using namespace Qt::StringLiterals;

/* Cemetery plants: the query over both sources, its columns and what it lets change. */
class TestAbfrageFriedhof : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        ordner_.emplace();
        db_ = ordner_->db();
        for (const char *tabelle : {"Stauden", "Gehoelze", "Friedhof"})
            db_->Execute(u"DELETE FROM %1"_s.arg(QLatin1String(tabelle)));
        db_->Execute(u"INSERT INTO Stauden (ARTNR, BOT_NAME, Quelle, HK, farben, bluehzeit, MINHOEHE, abstand, heimisch) "
                     "VALUES (900, 'Aster alpinus', 'n', 'Eur.', '0001000000000', '000011000000', 0.1, '20 cm', 'True')"_s);
        db_->Execute(u"INSERT INTO Gehoelze (ARTNR, BOT_NAME, Quelle, hk, grobeint, bluehzeit, groesse) "
                     "VALUES (2100, 'Acer palmatum', 'g', 'As.', '1', '000010000000', '00001000')"_s);
        db_->Execute(u"INSERT INTO Gehoelze (ARTNR, BOT_NAME, Quelle, grobeint) VALUES (2200, 'Taxus baccata', 'z', '2')"_s);
        const QString friedhof =
            u"INSERT INTO Friedhof (ARTNR, BOT_NAME, DTNAM, DB, SYMBOLIK, abstand, bewertung, verwendung) VALUES (?, ?, ?, ?, ?, ?, ?, ?)"_s;
        db_->Execute(friedhof, {900, u"Aster alpinus"_s, u"Alpen-Aster"_s, u"100"_s, u"0100000000000000"_s, u"15 cm"_s, 7, u"0010000000000000"_s});
        db_->Execute(friedhof, {2100, u"Acer palmatum"_s, u"Fächer-Ahorn"_s, u"010"_s, u"0000000010000000"_s, QVariant(), 6, QVariant()});
        db_->Execute(friedhof, {2200, u"Taxus baccata"_s, u"Eibe"_s, u"010"_s, QVariant(), QVariant(), 5, QVariant()});
        db_->Execute(friedhof, {3000, u"Verwaist"_s, u"Ohne Quelle"_s, u"001"_s, QVariant(), QVariant(), QVariant(), QVariant()});
    }
    void cleanup() { db_.reset(); }

    void zeilen()
    {
        Recordset satz(db_, u"SELECT * From Abfrage_Friedhof WHERE ARTNR LIKE '*' ORDER BY Bot_Name"_s);
        QStringList folge;
        for (; !satz.Eof(); satz.MoveNext())
            folge += satz.Fields(u"BOT_NAME").Text();
        QCOMPARE(folge, (QStringList{u"Acer palmatum"_s, u"Aster alpinus"_s, u"Taxus baccata"_s, u"Verwaist"_s}));
        QCOMPARE(satz.FieldCount(), int(schema::abfrageFriedhof().size()));
        for (int i = 0; i < satz.FieldCount(); ++i)
            QCOMPARE(satz.Fields(i).Name(), QString::fromLatin1(schema::abfrageFriedhof()[size_t(i)].name));
    }

    void inhalt_data()
    {
        QTest::addColumn<qint64>("nummer");
        QTest::addColumn<QString>("feld");
        QTest::addColumn<QString>("text"); // null: the field is null
        const auto zeile = [](qint64 nummer, const QString &feld, const QString &text) {
            QTest::newRow(qPrintable(u"%1 %2"_s.arg(nummer).arg(feld))) << nummer << feld << text;
        };
        zeile(900, u"DB"_s, u"100"_s);
        zeile(900, u"Stauden.Quelle"_s, u"n"_s);
        zeile(900, u"stauden_Quelle"_s, u"n"_s);
        zeile(900, u"STAUDEN.QUELLE"_s, u"n"_s);
        zeile(900, u"Gehoelze.Quelle"_s, QString());
        zeile(900, u"Stauden.HK"_s, u"Eur."_s);
        zeile(900, u"farben"_s, u"0001000000000"_s);
        zeile(900, u"Stauden.farben"_s, u"0001000000000"_s);
        zeile(900, u"stauden_farben"_s, u"0001000000000"_s);
        zeile(900, u"Stauden.bluehzeit"_s, u"000011000000"_s);
        zeile(900, u"Stauden.minhoehe"_s, u"0.1"_s);
        zeile(900, u"Friedhof.minhoehe"_s, QString());
        zeile(900, u"Stauden.abstand"_s, u"20 cm"_s);
        zeile(900, u"Friedhof.abstand"_s, u"15 cm"_s);
        zeile(900, u"Friedhof.verwendung"_s, u"0010000000000000"_s);
        zeile(900, u"SYMBOLIK"_s, u"0100000000000000"_s);
        zeile(900, u"Friedhof.SYMBOLIK"_s, u"0100000000000000"_s);
        zeile(900, u"Friedhof.bewertung"_s, u"7"_s);
        zeile(900, u"bewertung"_s, u"7"_s);
        zeile(900, u"Friedhof.BOT_NAME"_s, u"Aster alpinus"_s);
        zeile(900, u"heimisch"_s, u"True"_s);
        zeile(900, u"stauden"_s, u"True"_s);
        zeile(900, u"gehoelze"_s, u"False"_s);
        zeile(900, u"laub"_s, u"False"_s);
        zeile(900, u"grobeint"_s, QString());
        zeile(2100, u"Gehoelze.Quelle"_s, u"g"_s);
        zeile(2100, u"gehoelze_hk"_s, u"As."_s);
        zeile(2100, u"Gehoelze.bluehzeit"_s, u"000010000000"_s);
        zeile(2100, u"Stauden.bluehzeit"_s, QString());
        zeile(2100, u"groesse"_s, u"00001000"_s);
        zeile(2100, u"gehoelze"_s, u"True"_s);
        zeile(2100, u"laub"_s, u"True"_s);
        zeile(2100, u"nadel"_s, u"False"_s);
        zeile(2200, u"nadel"_s, u"True"_s);
        zeile(2200, u"laub"_s, u"False"_s);
        zeile(3000, u"stauden"_s, u"False"_s);
        zeile(3000, u"gehoelze"_s, u"False"_s);
        zeile(3000, u"Stauden.Quelle"_s, QString());
        zeile(3000, u"DTNAM"_s, u"Ohne Quelle"_s);
    }
    void inhalt()
    {
        QFETCH(qint64, nummer);
        QFETCH(QString, feld);
        QFETCH(QString, text);
        Recordset satz(db_, u"SELECT * From Abfrage_Friedhof WHERE ARTNR LIKE "_s + QString::number(nummer));
        QCOMPARE(satz.RecordCount(), 1);
        QCOMPARE(satz.Fields(feld).Text(), text);
        QCOMPARE(satz.Fields(feld).IsNull(), text.isNull());
    }

    /// Every column answers to its own name and to the qualified form of its source.
    void jedeSpalte()
    {
        Recordset satz(db_, u"Abfrage_Friedhof"_s);
        int i = 0;
        for (const Abfragespalte &spalte : schema::abfrageFriedhof()) {
            const QString name = QString::fromLatin1(spalte.name);
            QCOMPARE(satz.ordinal(name), i);
            QCOMPARE(satz.ordinal(name.toUpper()), i);
            if (spalte.quelle)
                for (const QChar trenner : {u'.', u'_'})
                    QCOMPARE(satz.ordinal(QString::fromLatin1(spalte.quelle) + trenner + QString::fromLatin1(spalte.spalte)), i);
            ++i;
        }
    }

    void falscheNamen_data()
    {
        QTest::addColumn<QString>("feld");
        QTest::addColumn<QString>("meldung");
        const QString fehlt = u"In der Tabelle 'Abfrage_Friedhof' fehlt das Feld '%1'."_s,
                      mehrdeutig = u"Das Feld '%1' ist in der Tabelle 'Abfrage_Friedhof' nicht eindeutig."_s;
        for (const char *feld : {"Quelle", "hk", "FAMILIE", "bluehzeit", "fruchtfarb", "verwendung", "MINHOEHE", "abstand", "blaschmuck", "licht",
                                 "Ausbildung", "SORTEN"})
            QTest::newRow(feld) << QString::fromLatin1(feld) << mehrdeutig;
        for (const char *feld : {"Stacheln", "Stauden.Stacheln", "Palmen.Quelle", "Stauden.grobeint", "Gehoelze.farben", "Stauden.bewertung",
                                 "Stauden.laub", "Stauden.", ".Quelle", ""})
            QTest::newRow(*feld ? feld : "leer") << QString::fromLatin1(feld) << fehlt;
    }
    void falscheNamen()
    {
        QFETCH(QString, feld);
        QFETCH(QString, meldung);
        Recordset satz(db_, u"Abfrage_Friedhof"_s);
        QCOMPARE(fehlerVon([&] { satz.Fields(feld); }), meldung.arg(feld));
        if (meldung.contains(u"fehlt"_s))
            QVERIFY(!satz.hatFeld(feld));
    }

    /// The flat table of a subset answers to the same names.
    void flacheTabelle()
    {
        const QString pfad = ordner_->pfad(u"teil.mdb"_s);
        Datenbank::CreateDatabase(pfad).reset();
        db_->Execute(u"SELECT * INTO Abfrage_Friedhof IN '%1' FROM Abfrage_Friedhof"_s.arg(pfad));
        Recordset flach(Datenbank::OpenDatabase(pfad), u"Abfrage_Friedhof"_s);
        QVERIFY(flach.Finden(900));
        for (const char *feld :
             {"Stauden.Quelle", "stauden_Quelle", "Friedhof.abstand", "farben", "Stauden.farben", "bewertung", "Friedhof.verwendung"}) {
            Recordset abfrage(db_, u"SELECT * From Abfrage_Friedhof WHERE ARTNR LIKE 900"_s);
            QCOMPARE(flach.Fields(QString::fromLatin1(feld)).Text(), abfrage.Fields(QString::fromLatin1(feld)).Text());
        }
        QVERIFY(!fehlerVon([&] { flach.Fields(u"Quelle"); }).isEmpty());
    }

    void benutzerfelder()
    {
        Recordset satz(db_, u"SELECT * From Abfrage_Friedhof WHERE ARTNR LIKE '*' ORDER BY Bot_Name"_s);
        QVERIFY(satz.Finden(900));
        satz.Edit();
        satz.Fields(u"benu_bemerkung").setValue(u"am Weg"_s);
        satz.Fields(u"benu_eigen").setValue(u"1 1  "_s);
        satz.Update();
        QCOMPARE(satz.Fields(u"benu_bemerkung").Text(), u"am Weg"_s);
        QCOMPARE(satz.Fields(u"benu_eigen").Text(), u"1 1  "_s);
        const QString alle = u"SELECT ARTNR || ':' || benu_bemerkung || ':' || benu_eigen FROM Friedhof WHERE benu_eigen IS NOT NULL"_s;
        QCOMPARE(werte(*db_, alle), QStringList{u"900:am Weg:1 1  "_s});
        QCOMPARE(zahl(*db_, u"SELECT count(*) FROM Stauden WHERE benu_bemerkung IS NOT NULL"_s), 0);
        satz.Edit();
        satz.Fields(u"benu_bemerkung").setValue(u"nur die Notiz"_s);
        satz.Update();
        QCOMPARE(werte(*db_, alle), QStringList{u"900:nur die Notiz:1 1  "_s});
        satz.Edit();
        satz.Fields(u"benu_bemerkung").setValue(QVariant());
        satz.Update();
        QVERIFY(satz.Fields(u"benu_bemerkung").IsNull());
        // All else belongs to its source.
        satz.Edit();
        satz.Fields(u"BOT_NAME").setValue(u"anders"_s);
        QVERIFY(!fehlerVon([&] { satz.Update(); }).isEmpty());
        QCOMPARE(satz.Fields(u"BOT_NAME").Text(), u"Aster alpinus"_s);
    }

    void loeschen()
    {
        const auto quellen = [this] {
            return std::pair(zahl(*db_, u"SELECT count(*) FROM Stauden"_s), zahl(*db_, u"SELECT count(*) FROM Gehoelze"_s));
        };
        const auto vorher = quellen();
        QVERIFY(vorher.first > 0 && vorher.second > 0);
        Recordset satz(db_, u"SELECT * From Abfrage_Friedhof WHERE ARTNR LIKE '*' ORDER BY Bot_Name"_s);
        while (!satz.Eof()) {
            if (satz.Fields(u"ARTNR").Ganzzahl() != 2100)
                satz.Delete();
            satz.MoveNext();
        }
        QCOMPARE(satz.RecordCount(), 1);
        QCOMPARE(werte(*db_, u"SELECT ARTNR FROM Friedhof"_s), QStringList{u"2100"_s});
        QCOMPARE(quellen(), vorher);
    }

    void loescheAusser()
    {
        alsPrivat(db_);
        db_->loescheAusser(u"Abfrage_Friedhof"_s, {u"DB"_s, u"stauden_Quelle"_s},
                           [](qint64, std::span<const std::string_view> werte) { return werte[0] == "100" && werte[1] == "n"; });
        QCOMPARE(werte(*db_, u"SELECT ARTNR FROM Friedhof"_s), QStringList{u"900"_s});
        QCOMPARE(zahl(*db_, u"SELECT count(*) FROM Gehoelze"_s), 2);
    }

private:
    std::optional<Datenordner> ordner_;
    std::shared_ptr<Datenbank> db_;
};

FLOX_TEST(tst_abfrage_friedhof, TestAbfrageFriedhof)
#include "tst_abfrage_friedhof.moc"
