#include "Accesshilfen.h"
#include "Strukturpruefung.h"

#include "store/Bildzeile.h"
#include "store/Fehler.h"
#include "store/Recordset.h"
#include "store/Schema.h"
#include "store/access/Austausch.h"
#include "tests/store/Datenhilfen.h"
#include "tests/store/Datenordner.h"
#include "tests/Testprogramm.h"

#include <QDir>
#include <QTest>

#include <thread>

using namespace Qt::StringLiterals;
using namespace accessdatei;
using accessprobe::datum;
using accessprobe::ganz;
using accessprobe::komma;
using accessprobe::leer;
using accessprobe::text;
using accessprobe::wahr;

namespace {

/// Every row of a table or query as SQLite writes its values, with their kinds.
QStringList abbild(Datenbank &db, const QString &tabelle)
{
    QStringList spalten;
    const Anweisung &anweisung = db.vorbereitet(u"SELECT * FROM \"%1\""_s.arg(tabelle));
    for (int i = 0; i < anweisung.spalten(); ++i)
        spalten += u"quote(\"%1\")"_s.arg(anweisung.spaltenname(i));
    return werte(db, u"SELECT %1 FROM \"%2\" ORDER BY 1"_s.arg(spalten.join(u" || ' ' || "_s), tabelle));
}

const Tabellenbericht &berichtVon(const Bericht &bericht, const QString &tabelle)
{
    return *std::ranges::find(bericht.tabellen, tabelle, &Tabellenbericht::tabelle);
}

} // namespace

/* Databases of the program as Access files and back. */
class TestAccessaustausch : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        ordner_.emplace();
        datei_ = ordner_->pfad(u"ausgabe.mdb"_s);
        ziel_ = ordner_->pfad(u"zurueck.mdb"_s);
    }

    void hinUndZurueck()
    {
        const std::optional<Bericht> hin = ausgeben(ordner_->datenbank(), datei_);
        QVERIFY(hin);
        QVERIFY(istAccessdatei(datei_));
        QVERIFY(!istAccessdatei(ordner_->datenbank()));
        QCOMPARE(strukturPruefen(datei_).fehler.join(u'|'), QString());
        QCOMPARE(accessprobe::unterschied(datei_), QString());
        const std::optional<Bericht> her = einlesen(datei_, ziel_);
        QVERIFY(her);
        const auto alt = Datenbank::oeffneFuerSich(ordner_->datenbank()), neu = Datenbank::oeffneFuerSich(ziel_);
        QCOMPARE(her->tabellen.size(), size_t(alt->TableDefs().size() + 1));
        for (const Tabellenbericht &bericht : her->tabellen) {
            const QStringList zeilen = abbild(*alt, bericht.tabelle);
            QCOMPARE(bericht.zeilen, zeilen.size());
            QCOMPARE(berichtVon(*hin, bericht.tabelle).zeilen, zeilen.size());
            QCOMPARE(abbild(*neu, bericht.tabelle), zeilen);
            QCOMPARE(bericht.fehlendeFelder + bericht.fremdeFelder, QStringList());
        }
        QVERIFY(zahl(*neu, u"SELECT count(*) FROM Topfpfl"_s) > 100);
        QCOMPARE(her->fehlendeTabellen + her->fremdeTabellen + her->verknuepfteTabellen + her->unlesbareTabellen, QStringList());
        QCOMPARE(werte(*neu, u"SELECT sql FROM sqlite_master WHERE type = 'index' ORDER BY name"_s),
                 werte(*alt, u"SELECT sql FROM sqlite_master WHERE type = 'index' ORDER BY name"_s));
        // The program opens it as one of its own.
        QVERIFY(Datenbank::OpenDatabase(ziel_)->hatTabelle(u"Abfrage_Friedhof"_s));
    }

    /// What a schema does not foresee, as users write it, comes back as it was.
    void werteDieNichtZurSpaltePassen()
    {
        {
            const auto db = ordner_->db();
            db->Execute(u"DELETE FROM Topfpfl WHERE ARTNR > (SELECT min(ARTNR) + 6 FROM Topfpfl)"_s);
            const QStringList nummern = werte(*db, u"SELECT ARTNR FROM Topfpfl ORDER BY ARTNR"_s);
            const auto setzen = [&](qsizetype zeile, const QString &spalte, const QVariant &wert) {
                db->Execute(u"UPDATE Topfpfl SET %1 = ? WHERE ARTNR = ?"_s.arg(spalte), {wert, nummern[zeile]});
            };
            setzen(0, u"BOT_NAME"_s, QString(300, u'x'));    // longer than a text column
            setzen(0, u"FARBEN"_s, QString(40, u'1'));       // longer than its vocabulary
            setzen(1, u"BLUEHZEIT"_s, u"Ä"_s.repeated(256)); // both
            setzen(1, u"MINHOEHE"_s, u"etwa 3"_s);           // no number
            setzen(2, u"MAXHOEHE"_s, u""_s);                 // an empty text in a column of numbers
            setzen(2, u"bewertung"_s, 2.5);                  // no whole number
            setzen(3, u"FAMILIE"_s, 5000000000LL);           // beyond 32 bits
            setzen(3, u"benu_bemerkung"_s, u"Zeile\r\nmit \u20AC und \U0001F331"_s.repeated(3000));
            setzen(4, u"LICHTMIN"_s, 0.1);
            setzen(4, u"LICHTMAX"_s, 9007199254740993LL); // no double has it
            setzen(4, u"DTNAM"_s, QVariant());
            setzen(5, u"DTNAM"_s, u""_s);
            db->Execute(u"DELETE FROM Stauden WHERE ARTNR > (SELECT min(ARTNR) FROM Stauden)"_s);
            for (const ::Spalte &spalte : schema::haupttabelle(u"Stauden")->spalten)
                if (spalte.art != Art::Schluessel) // together longer than a page
                    db->Execute(u"UPDATE Stauden SET \"%1\" = ?"_s.arg(QLatin1String(spalte.name)), {u"wörtlich Ω "_s.repeated(20)});
            db->Execute(u"INSERT INTO Apfel (ARTNR) VALUES (6000000000)"_s); // no key of Access
        }
        QVERIFY(ausgeben(ordner_->datenbank(), datei_));
        QCOMPARE(strukturPruefen(datei_).fehler.join(u'|'), QString());
        QCOMPARE(accessprobe::unterschied(datei_), QString());
        const std::optional<Bericht> bericht = einlesen(datei_, ziel_);
        QVERIFY(bericht);
        const auto alt = Datenbank::oeffneFuerSich(ordner_->datenbank()), neu = Datenbank::oeffneFuerSich(ziel_);
        for (const QString &tabelle : {u"Topfpfl"_s, u"Stauden"_s, u"Apfel"_s, u"Abfrage_Friedhof"_s})
            QCOMPARE(abbild(*neu, tabelle), abbild(*alt, tabelle));
        const auto typ = [&](const char16_t *spalte) {
            const auto leser = Leser::ausDatei(datei_);
            const accessdatei::Tabelle *tabelle = leser->tabelle(u"Topfpfl");
            return tabelle->spalten[size_t(tabelle->stelleVon(spalte))].typ;
        };
        QCOMPARE(typ(u"BOT_NAME"), Typ::Memo);
        QCOMPARE(typ(u"FARBEN"), Typ::Text);
        QCOMPARE(typ(u"BLUEHZEIT"), Typ::Memo);
        QCOMPARE(typ(u"bewertung"), Typ::Doppelt);
        QCOMPARE(typ(u"FAMILIE"), Typ::Doppelt);
        QCOMPARE(typ(u"MINHOEHE"), Typ::Text);
        QCOMPARE(typ(u"TEMPMIN"), Typ::Doppelt);
        QCOMPARE(typ(u"ARTNR"), Typ::Lang);
    }

    /// A mark at a text's begin and what is no UTF-8 cannot be kept; it is told.
    void bereinigteTexte()
    {
        {
            const auto db = ordner_->db();
            db->Execute(u"UPDATE Topfpfl SET BEMERKUNG = ? WHERE ARTNR = (SELECT min(ARTNR) FROM Topfpfl)"_s, {QString(u"\uFEFF\uFEFFso"_s)});
            db->Execute(u"UPDATE Topfpfl SET BEMERKUNG = CAST(x'41FF42' AS TEXT) WHERE ARTNR = (SELECT max(ARTNR) FROM Topfpfl)"_s);
        }
        const std::optional<Bericht> bericht = ausgeben(ordner_->datenbank(), datei_);
        QVERIFY(bericht);
        QCOMPARE(bericht->bereinigteTexte, 2);
        QVERIFY(bericht->text().contains(u"2 Texte enthielten Zeichen"_s));
        QVERIFY(einlesen(datei_, ziel_));
        const auto neu = Datenbank::oeffneFuerSich(ziel_);
        QCOMPARE(werte(*neu, u"SELECT BEMERKUNG FROM Topfpfl WHERE ARTNR = (SELECT min(ARTNR) FROM Topfpfl)"_s), QStringList{u"so"_s});
        QCOMPARE(werte(*neu, u"SELECT BEMERKUNG FROM Topfpfl WHERE ARTNR = (SELECT max(ARTNR) FROM Topfpfl)"_s), QStringList{u"A\uFFFDB"_s});
    }

    /// A file as another program makes it: names in other cases, other kinds, columns and tables too many and too few.
    void fremdeDatei()
    {
        {
            Schreiber schreiber(datei_);
            schreiber.beginnen({u"TOPFPFL"_s,
                                {{u"artnr"_s, Typ::Doppelt, 0},
                                 {u"Bot_Name"_s, Typ::Memo, 0},
                                 {u"GIFTIG"_s, Typ::Wahrheit, 0},
                                 {u"minhoehe"_s, Typ::Text, 20},
                                 {u"MAXHOEHE"_s, Typ::Doppelt, 0},
                                 {u"FARBEN"_s, Typ::Text, 20},
                                 {u"HK"_s, Typ::Doppelt, 0},
                                 {u"Quelle"_s, Typ::Datum, 0},
                                 {u"Benu_Aenderung"_s, Typ::Wahrheit, 0},
                                 {u"Eigenes"_s, Typ::Text, 20}},
                                -1});
            const std::vector<std::vector<Wert>> zeilen{
                {komma(1), text("Abies"), wahr(true), text("0,25"), komma(3), text("0000000000001"), komma(0.5), datum(37986), wahr(true), text("x")},
                {komma(2), text(""), wahr(false), text("ca. 2"), komma(0.1), leer, leer, datum(37986.25), wahr(false), leer},
                {komma(2), text("doppelt"), wahr(false), leer, leer, leer, leer, leer, wahr(false), leer},
                {komma(2.5), text("keine Nummer"), wahr(false), leer, leer, leer, leer, leer, wahr(false), leer},
                {leer, text("ohne Nummer"), wahr(false), leer, leer, leer, leer, leer, wahr(false), leer},
            };
            for (const std::vector<Wert> &zeile : zeilen)
                schreiber.zeile(zeile);
            schreiber.beenden();
            schreiber.beginnen({u"Kunden"_s, {{u"A"_s, Typ::Lang, 0}}, -1});
            schreiber.beenden();
            schreiber.beginnen({u"Stauden"_s, {{u"BOT_NAME"_s, Typ::Text, 50}}, -1}); // without a number
            const Wert name[] = {text("Acanthus")};
            schreiber.zeile(name);
            schreiber.beenden();
            schreiber.abschliessen();
        }
        const std::optional<Bericht> bericht = einlesen(datei_, ziel_);
        QVERIFY(bericht);
        const Tabellenbericht &topf = berichtVon(*bericht, u"Topfpfl"_s);
        QCOMPARE(topf.zeilen, 2);
        QCOMPARE(topf.abgewiesen, 3);
        QCOMPARE(topf.fremdeFelder, QStringList{u"Eigenes"_s});
        QVERIFY(topf.fehlendeFelder.contains(u"SORTEN"_s) && !topf.fehlendeFelder.contains(u"BOT_NAME"_s));
        QCOMPARE(bericht->fremdeTabellen, QStringList{u"Kunden"_s});
        QVERIFY(bericht->fehlendeTabellen.contains(u"Obst"_s) && !bericht->fehlendeTabellen.contains(u"Topfpfl"_s));
        QCOMPARE(berichtVon(*bericht, u"Stauden"_s).zeilen, 0);
        QVERIFY(berichtVon(*bericht, u"Stauden"_s).fehlendeFelder.contains(u"ARTNR"_s));
        QVERIFY(bericht->text().contains(u"Topfpfl: 2 Zeilen; 3 ohne eigene Nummer nicht übernommen; in der Datei fehlt "_s));
        QVERIFY(bericht->text().contains(u"nicht übernommen: Eigenes"_s));
        QCOMPARE(inhaltVon(datei_)->tabellen, (QStringList{u"TOPFPFL"_s, u"Kunden"_s, u"Stauden"_s}));

        const auto db = Datenbank::oeffneFuerSich(ziel_);
        const auto eine = [&](const char *spalte) {
            return werte(*db, u"SELECT quote(\"%1\") FROM Topfpfl ORDER BY ARTNR"_s.arg(QLatin1String(spalte)));
        };
        QCOMPARE(eine("BOT_NAME"), (QStringList{u"'Abies'"_s, u"''"_s}));
        QCOMPARE(eine("GIFTIG"), (QStringList{u"'True'"_s, u"'False'"_s}));
        QCOMPARE(eine("MINHOEHE"), (QStringList{u"0.25"_s, u"'ca. 2'"_s}));
        QCOMPARE(eine("MAXHOEHE"), (QStringList{u"3"_s, u"0.1"_s}));
        QCOMPARE(eine("FARBEN"), (QStringList{u"'0000000000001'"_s, u"NULL"_s}));
        QCOMPARE(eine("HK"), (QStringList{u"'0,5'"_s, u"NULL"_s}));
        QCOMPARE(eine("Quelle"), (QStringList{u"'31.12.2003'"_s, u"'31.12.2003 06:00:00'"_s}));
        QCOMPARE(eine("Benu_Aenderung"), (QStringList{u"-1"_s, u"0"_s}));
        QCOMPARE(eine("SORTEN"), (QStringList{u"NULL"_s, u"NULL"_s}));
        // The program finds a row for each of the user's five properties.
        QCOMPARE(zahl(*db, u"SELECT count(*) FROM Namen_Benutzer_Optionen"_s), 5);
    }

    void einBildJeZeile()
    {
        {
            Schreiber schreiber(datei_);
            schreiber.beginnen(
                {u"Topfpfl_Bilder"_s,
                 {{u"ARTNR"_s, Typ::Lang, 0}, {u"BOTNAME"_s, Typ::Text, 50}, {u"BILD"_s, Typ::Text, 50}, {u"BEMERKUNG"_s, Typ::Text, 50}},
                 -1});
            const auto zeile = [&](const Wert &artnr, const std::string &bild, const Wert &bemerkung) {
                const Wert eine[] = {artnr, text("Abies"), text(bild), bemerkung};
                schreiber.zeile(eine);
            };
            // Two plants in turn, one with more pictures than it has slots.
            for (int i = 1; i <= 12; ++i) {
                zeile(ganz(7), "sieben" + std::to_string(i), i == 2 ? text("fehlt") : leer);
                if (i <= 2)
                    zeile(ganz(8), "acht" + std::to_string(i), leer);
            }
            zeile(leer, "von niemandem", leer);
            schreiber.beenden();
            schreiber.abschliessen();
        }
        const std::optional<Bericht> bericht = einlesen(datei_, ziel_);
        QVERIFY(bericht);
        const Tabellenbericht &bilder = berichtVon(*bericht, u"Topfpfl_Bilder"_s);
        QCOMPARE(bilder.zeilen, 12);
        QCOMPARE(bilder.ueberzaehligeBilder, 2);
        QCOMPARE(bilder.abgewiesen, 1);
        QCOMPARE(bilder.fehlendeFelder + bilder.fremdeFelder, QStringList());
        const auto db = Datenbank::OpenDatabase(ziel_);
        const std::optional<Bildzeile> sieben = bildzeile(db, eintrag(Sparte::Topf), 7), acht = bildzeile(db, eintrag(Sparte::Topf), 8);
        QVERIFY(sieben && acht);
        for (int i = 0; i < 5; ++i) {
            QCOMPARE(sieben->g[size_t(i)].stamm, u"sieben%1"_s.arg(i + 1));
            QCOMPARE(sieben->d[size_t(i)].stamm, u"sieben%1"_s.arg(i + 6));
        }
        QCOMPARE(sieben->g[1].bemerkung, u"fehlt"_s);
        QCOMPARE(acht->g[1].stamm, u"acht2"_s);
        QVERIFY(!acht->g[2].stamm);
        QCOMPARE(werte(*db, u"SELECT DISTINCT BotName FROM Topfpfl_Bilder"_s), QStringList{u"Abies"_s});
    }

    /// The query as a flat table, its columns in the other spelling.
    void flacheAbfrage()
    {
        {
            Schreiber schreiber(datei_);
            schreiber.beginnen(
                {u"abfrage_friedhof"_s,
                 {{u"DB"_s, Typ::Text, 3}, {u"ARTNR"_s, Typ::Lang, 0}, {u"BOT_NAME"_s, Typ::Text, 50}, {u"STAUDEN_familie"_s, Typ::Lang, 0}},
                 1});
            const Wert zeile[] = {text("100"), ganz(3), text("Bellis"), ganz(17)};
            schreiber.zeile(zeile);
            schreiber.beenden();
            schreiber.abschliessen();
        }
        QVERIFY(einlesen(datei_, ziel_));
        const auto db = Datenbank::OpenDatabase(ziel_);
        QVERIFY(!db->istAbfrage(u"Abfrage_Friedhof"_s));
        Recordset satz(db, u"SELECT * From Abfrage_Friedhof WHERE ARTNR LIKE '*' ORDER BY Bot_Name"_s);
        QCOMPARE(satz.RecordCount(), 1);
        QCOMPARE(satz.Fields(u"BOT_NAME").Text(), u"Bellis"_s);
        QCOMPARE(satz.Fields(u"stauden_FAMILIE").Text(), u"17"_s);
        QVERIFY(satz.hatFeld(u"friedhof_verwendung"_s));
    }

    void fortschrittUndAbbruch()
    {
        QList<int> hin, her;
        QVERIFY(ausgeben(ordner_->datenbank(), datei_, {[&](int prozent) { hin += prozent; }, {}}));
        QVERIFY(einlesen(datei_, ziel_, {[&](int prozent) { her += prozent; }, {}}));
        for (const QList<int> &gang : {hin, her}) {
            QVERIFY(gang.size() > 1 && std::ranges::is_sorted(gang));
            QCOMPARE(gang.last(), 100);
        }
        const QByteArray alteAusgabe = inhalt(datei_), altesZiel = inhalt(ziel_);
        const QStringList dateien = alleDateien();
        for (const int nach : {0, 1, 3}) {
            int rufe = 0;
            const Lauf lauf{{}, [&] { return rufe++ >= nach; }};
            QVERIFY(!ausgeben(ordner_->datenbank(), datei_, lauf));
            QCOMPARE(rufe, nach + 1);
            rufe = 0;
            QVERIFY(!einlesen(datei_, ziel_, lauf));
            QCOMPARE(rufe, nach + 1);
        }
        QVERIFY(!inhaltVon(datei_, {{}, [] { return true; }}));
        QList<int> gelesen;
        QVERIFY(inhaltVon(datei_, {[&](int prozent) { gelesen += prozent; }, {}}).has_value());
        QCOMPARE(gelesen, QList<int>{100});
        QVERIFY(inhalt(datei_) == alteAusgabe);
        QVERIFY(inhalt(ziel_) == altesZiel);
        QCOMPARE(alleDateien(), dateien);
    }

    /// However little room the disk has: the old file or the new one, and nothing beside it.
    void vollerDatentraeger()
    {
        schreiben(datei_, "alt");
        schreiben(ziel_, "alt");
        const QStringList dateien = alleDateien();
        QVERIFY(ausgeben(ordner_->datenbank(), ordner_->pfad(u"ganz.mdb"_s)));
        const qint64 ganze = QFileInfo(ordner_->pfad(u"ganz.mdb"_s)).size();
        for (const qint64 grenze : {qint64(0), qint64(4096), qint64(20000), ganze / 2, ganze - 4096}) {
            QString hin, her;
            {
                const Dateigrenze halten{rlim_t(grenze)};
                hin = fehlerVon([&] { (void)ausgeben(ordner_->datenbank(), datei_); });
                her = fehlerVon([&] { (void)einlesen(ordner_->pfad(u"ganz.mdb"_s), ziel_); });
            }
            QVERIFY2(hin.endsWith(u"Der Datenträger ist voll."_s), qPrintable(hin));
            if (grenze < ganze / 4)
                QVERIFY2(her.contains(u"'zurueck.mdb'"_s), qPrintable(her));
            QCOMPARE(inhalt(datei_), "alt");
            QVERIFY(inhalt(ziel_) == "alt" || her.isEmpty());
            QFile::remove(ordner_->pfad(u"nichts"_s));
        }
        QFile::remove(ordner_->pfad(u"ganz.mdb"_s));
        QCOMPARE(alleDateien(), dateien);
    }

    void schlechteQuellen()
    {
        schreiben(datei_, "keine Datenbank");
        QCOMPARE(fehlerVon([&] { (void)einlesen(datei_, ziel_); }), u"Die Datei 'ausgabe.mdb' ist keine Access-Datenbank."_s);
        QVERIFY(fehlerVon([&] { (void)ausgeben(datei_, ziel_); }).startsWith(u"Die Datei 'ausgabe.mdb' ist keine Datenbank."_s));
        QVERIFY(fehlerVon([&] { (void)einlesen(ordner_->pfad(u"fehlt.mdb"_s), ziel_); }).endsWith(u"Sie ist nicht vorhanden."_s));
        QVERIFY(!fehlerVon([&] { (void)ausgeben(ordner_->datenbank(), ordner_->pfad(u"fehlt/ziel.mdb"_s)); }).isEmpty());
        QVERIFY(!QFile::exists(ziel_));
    }

    /// In a thread of its own, while the program has its database open.
    void nebenDemProgramm()
    {
        const auto db = ordner_->db();
        QString fehler = u"nicht gelaufen"_s;
        std::thread lauf([&] {
            fehler = fehlerVon([&] {
                (void)ausgeben(ordner_->datenbank(), datei_);
                (void)einlesen(datei_, ziel_);
            });
        });
        for (int i = 0; i < 50; ++i)
            QVERIFY(zahl(*db, u"SELECT count(*) FROM Topfpfl WHERE BOT_NAME LIKE 'A*'"_s) > 0);
        lauf.join();
        QCOMPARE(fehler, QString());
        db->Execute(u"UPDATE Topfpfl SET benu_bemerkung = 'danach'"_s);
        QVERIFY(QFile::exists(ziel_));
    }

private:
    QStringList alleDateien() const { return QDir(ordner_->pfad()).entryList(QDir::Files | QDir::Hidden); }

    std::optional<Datenordner> ordner_;
    QString datei_, ziel_;
};

FLOX_TEST(tst_accessaustausch, TestAccessaustausch)
#include "tst_accessaustausch.moc"
