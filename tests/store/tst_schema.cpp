#include "Datenhilfen.h"
#include "Datenordner.h"

#include "store/Bildzeile.h"
#include "store/Recordset.h"
#include "store/Schema.h"
#include "store/Sparten.h"
#include "tests/Testprogramm.h"

#include <QSet>
#include <QTest>

using namespace Qt::StringLiterals;

/* The schema: every column by itself, the database that is built from it, the print orders, the Sparten. */
class TestSchema : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { db_ = ordner_.db(); }

    void spalten_data()
    {
        QTest::addColumn<const Tabelle *>("tabelle");
        for (const Tabelle &tabelle : schema::haupttabellen())
            QTest::newRow(tabelle.name) << &tabelle;
    }
    void spalten()
    {
        QFETCH(const Tabelle *, tabelle);
        QCOMPARE(tabelle->spalten.front().name, "ARTNR");
        QSet<QString> namen;
        for (const Spalte &spalte : tabelle->spalten) {
            const QString name = QString::fromLatin1(spalte.name);
            QVERIFY2(!namen.contains(name.toLower()), spalte.name);
            namen += name.toLower();
            QCOMPARE(spalte.art == Art::Schluessel, name == u"ARTNR");
            // A code may be a single row of a list.
            if (spalte.art == Art::Flags || spalte.art == Art::Nummer || spalte.art == Art::Literatur)
                QVERIFY2(spalte.liste && spalte.liste->anzahl() > 1, spalte.name);
            else
                QVERIFY2(!spalte.liste || spalte.art == Art::Code, spalte.name);
            QVERIFY2(spalte.einheit.isEmpty() || spalte.art == Art::Zahl, spalte.name);
            QVERIFY2(spalte.satz.isEmpty() || spalte.art == Art::Wahrheit, spalte.name);
            QCOMPARE(tabelle->spalte(name), &spalte);
            QCOMPARE(tabelle->spalte(name.toUpper()), &spalte);
        }
        for (const char *pflicht : {"BOT_NAME", "DTNAM", "benu_bemerkung", "benu_eigen", "bewertung", "Benu_Aenderung"})
            QVERIFY2(tabelle->spalte(QString::fromLatin1(pflicht)), pflicht);
        QVERIFY(!tabelle->spalte(u"Stacheln"));
        QVERIFY(!tabelle->spalte(u""));
        QCOMPARE(schema::haupttabelle(QString::fromLatin1(tabelle->name).toUpper()), tabelle);
        QVERIFY(!schema::haupttabelle(u"Palmen"));
    }

    void datenbank_data() { spalten_data(); }
    /// The shipped database has exactly these columns, with types that leave flag strings alone.
    void datenbank()
    {
        QFETCH(const Tabelle *, tabelle);
        const QStringList zeilen =
            werte(*db_, u"SELECT name || ' ' || type || ' ' || pk FROM pragma_table_info(?) ORDER BY cid"_s, {QString::fromLatin1(tabelle->name)});
        QCOMPARE(zeilen.size(), qsizetype(tabelle->spalten.size()));
        for (qsizetype i = 0; i < zeilen.size(); ++i) {
            const Spalte &spalte = tabelle->spalten[size_t(i)];
            const bool ganz =
                spalte.art == Art::Ganzzahl || spalte.art == Art::Bewertung || spalte.art == Art::Familie || spalte.art == Art::Schluessel;
            const QString typ = ganz ? u"INTEGER"_s : spalte.art == Art::Zahl ? u"NUMERIC"_s : u"TEXT"_s;
            QCOMPARE(zeilen[i], u"%1 %2 %3"_s.arg(QLatin1String(spalte.name), typ).arg(spalte.art == Art::Schluessel));
        }
        for (const char *name : {"BOT_NAME", "DTNAM"})
            QVERIFY2(werte(*db_, u"SELECT i.name FROM pragma_index_list(?) l, pragma_index_info(l.name) i"_s, {QString::fromLatin1(tabelle->name)})
                         .contains(QString::fromLatin1(name)),
                     name);
        // What is stored over flags comes back as it was.
        const QString flags = u"0010"_s;
        db_->Execute(u"INSERT INTO %1 (ARTNR) VALUES (30001)"_s.arg(QLatin1String(tabelle->name)));
        for (const Spalte &spalte : tabelle->spalten) {
            if (spalte.art == Art::Zahl || spalte.art == Art::Ganzzahl || spalte.art == Art::Bewertung || spalte.art == Art::Familie
                || spalte.art == Art::Schluessel)
                continue;
            db_->Execute(u"UPDATE %1 SET \"%2\" = ? WHERE ARTNR = 30001"_s.arg(QLatin1String(tabelle->name), QLatin1String(spalte.name)), {flags});
            QCOMPARE(werte(*db_, u"SELECT \"%2\" FROM %1 WHERE ARTNR = 30001"_s.arg(QLatin1String(tabelle->name), QLatin1String(spalte.name))),
                     QStringList{flags});
        }
        db_->Execute(u"DELETE FROM %1 WHERE ARTNR = 30001"_s.arg(QLatin1String(tabelle->name)));
    }

    /// By ordinal, as a recordset counts them: a table's own columns, the query's with the kinds of their sources.
    void spaltenVon()
    {
        for (const Tabelle &tabelle : schema::haupttabellen()) {
            const std::span<const Spalte> spalten = schema::spaltenVon(QString::fromLatin1(tabelle.name).toUpper());
            QCOMPARE(spalten.size(), tabelle.spalten.size());
            for (size_t i = 0; i < spalten.size(); ++i)
                QCOMPARE(spalten[i].name, tabelle.spalten[i].name);
        }
        const std::span<const Spalte> spalten = schema::spaltenVon(u"abfrage_friedhof");
        QCOMPARE(spalten.size(), schema::abfrageFriedhof().size());
        for (size_t i = 0; i < spalten.size(); ++i) {
            const Abfragespalte &spalte = schema::abfrageFriedhof()[i];
            QCOMPARE(spalten[i].name, spalte.name);
            QCOMPARE(spalten[i].druckname, spalte.druckname);
            QCOMPARE(spalten[i].einheit, spalte.einheit);
            const Tabelle *quelle = spalte.quelle ? schema::haupttabelle(QString::fromLatin1(spalte.quelle)) : nullptr;
            if (!quelle)
                continue;
            const Spalte *vorbild = quelle->spalte(QString::fromLatin1(spalte.spalte));
            QVERIFY2(vorbild && spalten[i].art == vorbild->art && spalten[i].liste == vorbild->liste, spalte.name);
        }
        QVERIFY(schema::spaltenVon(u"Palmen").empty());
        for (size_t i = 0; i < spalten.size(); ++i)
            QCOMPARE(schema::spalteVon(u"Abfrage_Friedhof", spalten[i].name), &spalten[i]);
        QCOMPARE(schema::spalteVon(u"Topfpfl", "bot_name"), &schema::spaltenVon(u"TOPFPFL")[1]);
        QVERIFY(!schema::spalteVon(u"Topfpfl", "Palme"));
        QVERIFY(!schema::spalteVon(u"Topfpfl", nullptr));
        // Qualified in both forms, bare where that is unique.
        const Spalte *zeit = schema::spalteVon(u"Abfrage_Friedhof", "stauden_bluehzeit");
        QCOMPARE(schema::spalteVon(u"Abfrage_Friedhof", "Stauden.bluehzeit"), zeit);
        QCOMPARE(schema::spalteVon(u"Abfrage_Friedhof", "Gehoelze_groesse"), schema::spalteVon(u"Abfrage_Friedhof", "groesse"));
        QCOMPARE(schema::spalteVon(u"Abfrage_Friedhof", "bewertung"), schema::spalteVon(u"Abfrage_Friedhof", "Friedhof.bewertung"));
        QCOMPARE(schema::spalteVon(u"STAUDEN", "Stauden.HK"), schema::spalteVon(u"Stauden", "HK"));
        for (const char *feld : {"bluehzeit", "Stauden.groesse", "Gehoelze_farben", "Apfel.bluehzeit"})
            QVERIFY2(!schema::spalteVon(u"Abfrage_Friedhof", feld), feld);
        const QStringList namen{u"ARTNR"_s, u"stauden_licht"_s, u"Gehoelze.licht"_s};
        QCOMPARE(schema::stelleVon(u"Abfrage_Friedhof", namen, u"gehoelze_LICHT"), 2);
        QCOMPARE(schema::stelleVon(u"Abfrage_Friedhof", namen, u"licht"), schema::mehrereSpalten);
        QCOMPARE(schema::stelleVon(u"Abfrage_Friedhof", namen, u"DB"), schema::keineSpalte);
        for (const SpartenEintrag &sparte : alleSparten())
            QVERIFY(!sparte.herkunftsfeld || schema::spalteVon(sparte.haupttabelle, sparte.herkunftsfeld));
    }

    void abfrage()
    {
        QCOMPARE(schema::abfrageFriedhof().size(), 105);
        QSet<QString> namen;
        for (const Abfragespalte &spalte : schema::abfrageFriedhof()) {
            const QString name = QString::fromLatin1(spalte.name).toLower();
            QVERIFY2(!namen.contains(name), spalte.name);
            namen += name;
            if (!spalte.quelle)
                continue;
            const Tabelle *quelle = schema::haupttabelle(QString::fromLatin1(spalte.quelle));
            QVERIFY2(quelle && quelle->spalte(QString::fromLatin1(spalte.spalte)), spalte.name);
            QVERIFY(schema::istQuelle(QString::fromLatin1(spalte.quelle).toUpper()));
            QVERIFY(schema::kommtAus(u"abfrage_friedhof", name, QString::fromLatin1(spalte.quelle)));
            // Bare, or qualified by its source.
            QVERIFY2(name == QString::fromLatin1(spalte.spalte).toLower()
                         || name == (QString::fromLatin1(spalte.quelle) + u'_' + QString::fromLatin1(spalte.spalte)).toLower(),
                     spalte.name);
        }
        QVERIFY(!schema::istQuelle(u"Topfpfl"));
        QVERIFY(!schema::kommtAus(u"Abfrage_Friedhof", u"ARTNR", u"Stauden"));
        QVERIFY(schema::kommtAus(u"STAUDEN", u"ARTNR", u"Stauden"));
        QVERIFY(!schema::kommtAus(u"Stauden", u"ARTNR", u"Friedhof"));
        const QStringList vorhanden = werte(*db_, u"SELECT name FROM pragma_table_info('Abfrage_Friedhof') ORDER BY cid"_s);
        QCOMPARE(vorhanden.size(), 105);
        for (qsizetype i = 0; i < vorhanden.size(); ++i)
            QCOMPARE(vorhanden[i], QString::fromLatin1(schema::abfrageFriedhof()[size_t(i)].name));
    }

    void bilder_data()
    {
        QTest::addColumn<QString>("haupttabelle");
        QTest::addColumn<QString>("bildtabelle");
        for (const SpartenEintrag &sparte : alleSparten())
            QTest::newRow(qPrintable(sparte.wort.toString())) << sparte.haupttabelle.toString() << sparte.bildtabelle.toString();
    }
    /// One row per plant, pictures or not, in the order of the plants; two halves of five.
    void bilder()
    {
        QFETCH(QString, haupttabelle);
        QFETCH(QString, bildtabelle);
        Recordset plaetze(db_, u"SELECT * From %1 WHERE ARTNR LIKE '*' ORDER BY BotName"_s.arg(bildtabelle));
        Recordset pflanzen(db_, u"SELECT * From %1 WHERE ARTNR LIKE '*' ORDER BY BOT_NAME"_s.arg(haupttabelle));
        QCOMPARE(plaetze.Schluesselfolge(), pflanzen.Schluesselfolge());
        for (; !plaetze.Eof(); plaetze.MoveNext(), pflanzen.MoveNext())
            QCOMPARE(plaetze.Fields(u"BOTNAME").Text(), pflanzen.Fields(u"BOT_NAME").Text());
        QStringList erwartet{u"ARTNR"_s, u"BotName"_s};
        for (const char *stamm : {"BILD", "BEMERKUNG"})
            for (const char *haelfte : {"-G", "-D"})
                for (int i = 1; i <= bilderJeHaelfte; ++i)
                    erwartet += QString::fromLatin1(stamm) + QString::number(i) + QString::fromLatin1(haelfte);
        QCOMPARE(werte(*db_, u"SELECT name FROM pragma_table_info(?) ORDER BY cid"_s, {bildtabelle}), erwartet);
    }

    void sparten()
    {
        QStringList worte;
        for (const SpartenEintrag &sparte : alleSparten()) {
            worte += sparte.wort.toString();
            QVERIFY(sparteVonWort(sparte.wort) == sparte.sparte);
            QCOMPARE(&eintrag(sparte.sparte), &sparte);
            QVERIFY(db_->hatTabelle(sparte.haupttabelle.toString()));
            QVERIFY(db_->hatTabelle(sparte.bildtabelle.toString()));
            for (const QStringView synonym : {sparte.synonymBotanisch, sparte.synonymDeutsch})
                QVERIFY(synonym.isEmpty() || db_->hatTabelle(synonym.toString()));
            QVERIFY(Recordset(db_, u"Namen_Benutzer_Optionen"_s).hatFeld(QString::fromLatin1(sparte.namenSpalte)));
        }
        QCOMPARE(worte, (QStringList{u"Topf"_s, u"Stauden"_s, u"Gehölze"_s, u"Apfel"_s, u"Obst"_s, u"Friedhof"_s}));
        for (const QStringView falsch : {u"", u"topf", u"Gehoelze", u"Palmen"})
            QVERIFY(!sparteVonWort(falsch));
    }

    void druckfolgen_data()
    {
        QTest::addColumn<const Druckliste *>("liste");
        QTest::addColumn<QString>("tabelle");
        QTest::addColumn<int>("eintraege");
        QTest::addColumn<QList<int>>("fehlend"); // numbers that stand at no place
        QTest::addColumn<QList<int>>("doppelt"); // numbers that stand at two places
        QTest::addColumn<QStringList>("anfang");
        QTest::newRow("Topf") << &DL_Topf << u"Topfpfl"_s << 43 << QList<int>{} << QList<int>{}
                              << QStringList{u"ARTNR"_s, u"BOT_NAME"_s, u"Quelle"_s, u"DTNAM"_s};
        QTest::newRow("Stauden") << &DL_Stauden << u"Stauden"_s << 49 << QList<int>{32} << QList<int>{22}
                                 << QStringList{u"ARTNR"_s, u"BOT_NAME"_s, u"Quelle"_s, u"DTNAM"_s, u"FAMILIE"_s};
        QTest::newRow("Gehölze") << &DL_Gehoelze << u"Gehoelze"_s << 38 << QList<int>{} << QList<int>{}
                                 << QStringList{u"ARTNR"_s, u"BOT_NAME"_s, u"Quelle"_s, u"DTNAM"_s, u"FAMILIE"_s, u"hk"_s};
        QTest::newRow("Apfel") << &DL_Apfel << u"Apfel"_s << 51 << QList<int>{} << QList<int>{}
                               << QStringList{u"ARTNR"_s, u"BOT_NAME"_s, u"DTNAM"_s, u"synonym"_s};
        QTest::newRow("Friedhof") << &DL_Friedhof << u"Abfrage_Friedhof"_s << 101 << QList<int>{} << QList<int>{}
                                  << QStringList{u"ARTNR"_s, u"BOT_NAME"_s};
        QTest::newRow("Obst") << &DL_Obst << u"Obst"_s << 56 << QList<int>{} << QList<int>{}
                              << QStringList{u"ARTNR"_s, u"BOT_NAME"_s, u"synonym"_s, u"DTNAM"_s};
    }
    void druckfolgen()
    {
        QFETCH(const Druckliste *, liste);
        QFETCH(QString, tabelle);
        QFETCH(QList<int>, fehlend);
        QFETCH(QStringList, anfang);
        QTEST(liste->eintraege, "eintraege");
        QFETCH(QList<int>, doppelt);
        QList<int> mal(liste->eintraege, 0), fehlt, zweimal;
        for (const short nummer : liste->folge)
            ++mal[nummer];
        for (int i = 0; i < mal.size(); ++i) {
            if (mal[i] == 0)
                fehlt += i;
            else if (mal[i] > 1)
                zweimal += i;
        }
        QCOMPARE(fehlt, fehlend);
        QCOMPARE(zweimal, doppelt);
        const std::span<const Spalte> spalten = schema::spaltenVon(tabelle);
        for (qsizetype i = 0; i < anfang.size(); ++i)
            QCOMPARE(QString::fromLatin1(spalten[size_t(liste->folge[size_t(i)])].name), anfang[i]);
    }

    void drucknamen_data()
    {
        QTest::addColumn<QString>("tabelle");
        QTest::addColumn<int>("nummer");
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("einheit");
        const auto zeile = [](const char *tabelle, int nummer, const QString &name, const QString &einheit) {
            QTest::addRow("%s %d", tabelle, nummer) << QString::fromLatin1(tabelle) << nummer << name << einheit;
        };
        zeile("Topfpfl", 3, u"Heimat"_s, u""_s);
        for (const int nummer : {6, 7})
            zeile("Topfpfl", nummer, nummer == 6 ? u"minimale Höhe"_s : u"maximale Höhe"_s, u" m"_s);
        zeile("Topfpfl", 13, u""_s, u""_s);
        zeile("Topfpfl", 21, u"Beleuchtungsstärke minimal"_s, u" Lux"_s);
        zeile("Topfpfl", 24, u"Temperatur maximal"_s, u" °C"_s);
        zeile("Topfpfl", 34, u"Bemerkung (Flox)"_s, u""_s);
        zeile("Topfpfl", 42, u"Für Azubis"_s, u""_s);
        zeile("Stauden", 11, u"Höhe Blüten maximal"_s, u" m"_s);
        zeile("Stauden", 17, u"Farbtxt"_s, u""_s);
        zeile("Gehoelze", 1, u"BdB-Nummer"_s, u""_s);
        zeile("Gehoelze", 8, u"Durchmesser maximal"_s, u" m"_s);
        zeile("Apfel", 17, u"Druckfestigeit"_s, u""_s);
        zeile("Apfel", 15, u"Schalenpunkte/ -höfe"_s, u""_s);
        zeile("Apfel", 51, u""_s, u""_s);
        zeile("Obst", 14, u"Blütezeit/ -ort"_s, u""_s);
        zeile("Obst", 55, u"Für Azubis"_s, u""_s);
    }
    void drucknamen()
    {
        QFETCH(QString, tabelle);
        QFETCH(int, nummer);
        const Spalte &spalte = schema::haupttabelle(tabelle)->spalten[size_t(nummer)];
        QTEST(spalte.druckname.toString(), "name");
        QTEST(spalte.einheit.toString(), "einheit");
    }

private:
    Datenordner ordner_;
    std::shared_ptr<Datenbank> db_;
};

FLOX_TEST(tst_schema, TestSchema)
#include "tst_schema.moc"
