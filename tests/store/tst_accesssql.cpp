#include "Datenhilfen.h"
#include "Datenordner.h"

#include "store/AccessSql.h"
#include "store/Recordset.h"
#include "tests/Testprogramm.h"

#include <QTest>

using namespace Qt::StringLiterals;

/* The program's SQL: LIKE, the statements it uses, and what is none. */
class TestAccessSql : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        db_ = ordner_.db();
        // Each gets two plants, whose numbers no shipped one has, so that all statements have something to find.
        for (const char *tabelle : {"Stauden", "Gehoelze", "Obst", "Friedhof"}) {
            const QString name = QString::fromLatin1(tabelle);
            for (const auto &[nummer, pflanze] : {std::pair(30001, u"Zinnia"_s), std::pair(30002, u"Ähre"_s)}) {
                db_->Execute(u"INSERT INTO %1 (ARTNR, BOT_NAME, DTNAM) VALUES (?, ?, ?)"_s.arg(name), {nummer, pflanze, pflanze});
                db_->Execute(u"INSERT INTO %1_Bilder (ARTNR, BotName) VALUES (?, ?)"_s.arg(name), {nummer, pflanze});
            }
        }
        for (const char *tabelle : {"Stauden", "Gehoelze"})
            for (const char *art : {"Botanisch", "Deutsch"})
                db_->Execute(u"INSERT INTO %1_Synonyme_%2 VALUES (30002, 'Anders')"_s.arg(QLatin1String(tabelle), QLatin1String(art)));
    }

    void like_data()
    {
        QTest::addColumn<QString>("muster");
        QTest::addColumn<QString>("text");
        QTest::addColumn<bool>("passt");
        const auto zeile = [](const char *muster, const char *text, bool passt) {
            QTest::addRow("%s | %s", muster, text) << QString::fromUtf8(muster) << QString::fromUtf8(text) << passt;
        };
        zeile("", "", true);
        zeile("", "a", false);
        zeile("a", "", false);
        zeile("ficus", "Ficus", true);
        zeile("FICUS", "ficus", true);
        zeile("ficus", "ficus ", false);
        zeile("äöü", "ÄÖÜ", true);
        zeile("ÄPFEL*", "äpfelchen", true);
        zeile("a", "ä", false);
        zeile("ß", "ss", false);
        zeile("*", "", true);
        zeile("*", "irgendetwas", true);
        zeile("**", "", true);
        zeile("Fic*", "Ficus benjamina", true);
        zeile("Fic*", "Fi", false);
        zeile("*mina", "Ficus benjamina", true);
        zeile("*mina", "Ficus benjaminae", false);
        zeile("*us*ja*", "Ficus benjamina", true);
        zeile("*us*us*", "Ficus benjamina", false);
        zeile("*ab", "aab", true);
        zeile("a*b*c", "a-b-b-c", true);
        zeile("a*b*c", "a-c-b", false);
        zeile("?", "", false);
        zeile("?", "x", true);
        zeile("?", "xy", false);
        zeile("F?cus", "Focus", true);
        zeile("?*", "", false);
        zeile("?*?", "ab", true);
        zeile("*?", "a", true);
        zeile("#", "7", true);
        zeile("#", "x", false);
        zeile("#", "", false);
        zeile("##.#", "12.5", true);
        zeile("##.#", "1.25", false);
        zeile("1##*", "1001 Nacht", true);
        zeile("[a-c]", "b", true);
        zeile("[a-c]", "B", true);
        zeile("[A-C]", "c", true);
        zeile("[a-c]", "d", false);
        zeile("[a-c]", "", false);
        zeile("[!a-c]", "d", true);
        zeile("[!a-c]", "B", false);
        zeile("[!a-c]", "", false);
        zeile("[abz]x", "zx", true);
        zeile("[abz]x", "cx", false);
        zeile("[a-cx-z]", "y", true);
        zeile("[a-cx-z]", "m", false);
        zeile("[ä-ü]", "Ö", true);
        zeile("[*]", "*", true);
        zeile("[*]", "a", false);
        zeile("[?][#]", "?#", true);
        zeile("[?][#]", "a1", false);
        zeile("[[]x", "[x", true);
        zeile("[-a]", "-", true);
        zeile("[a-]", "-", true);
        zeile("[!]", "!", true);
        zeile("*[0-9]", "Sorte 5", true);
        zeile("*[!0-9]", "Sorte 5", false);
        zeile("[", "[", true);
        zeile("[abc", "[abc", true);
        zeile("[abc", "a", false);
        zeile("x[", "x", false);
        zeile("a]", "a]", true);
        zeile("%", "abc", false);
        zeile("_", "a", false);
        zeile("100%", "100%", true);
    }
    void like()
    {
        QFETCH(QString, muster);
        QFETCH(QString, text);
        QTEST(accessLike(muster, text), "passt");
    }

    /// A pattern of many stars stays quick: this one takes ages where each star tries all the rest.
    void likeBleibtSchnell()
    {
        const QString text(2000, u'a');
        QVERIFY(!accessLike(QString(u"*a"_s).repeated(20) + u"*b"_s, text));
    }

    /// In a statement the pattern meets fields, with and without an index, bound or written.
    void likeInDerAnweisung_data()
    {
        QTest::addColumn<QString>("bedingung");
        QTest::addColumn<QVariantList>("werte");
        QTest::addColumn<QList<qint64>>("nummern");
        QTest::newRow("alle mit Namen") << u"DTNAM LIKE '*'"_s << QVariantList{} << QList<qint64>{1, 2, 4};
        QTest::newRow("alle mit Namen, gebunden") << u"DTNAM LIKE ?"_s << QVariantList{u"*"_s} << QList<qint64>{1, 2, 4};
        QTest::newRow("leer, aber nicht null") << u"DTNAM LIKE ''"_s << QVariantList{} << QList<qint64>{4};
        QTest::newRow("nie für null") << u"DTNAM LIKE ?"_s << QVariantList{QVariant()} << QList<qint64>{};
        QTest::newRow("Umlaut") << u"DTNAM LIKE '*ÄHRE*'"_s << QVariantList{} << QList<qint64>{1};
        QTest::newRow("doppelte Anführung") << u"DTNAM LIKE \"b*\""_s << QVariantList{} << QList<qint64>{2};
        QTest::newRow("Nummer") << u"ARTNR LIKE 2"_s << QVariantList{} << QList<qint64>{2};
        QTest::newRow("Nummer als Text") << u"ARTNR LIKE '2'"_s << QVariantList{} << QList<qint64>{2};
        QTest::newRow("Nummer gebunden") << u"ARTNR LIKE ?"_s << QVariantList{2} << QList<qint64>{2};
        QTest::newRow("Nummer mit Muster") << u"ARTNR LIKE '[12]'"_s << QVariantList{} << QList<qint64>{1, 2};
        QTest::newRow("alle Nummern") << u"ARTNR LIKE '*'"_s << QVariantList{} << QList<qint64>{1, 2, 3, 4};
        QTest::newRow("Feld in Klammern") << u"[DTNAM] LIKE 'b*'"_s << QVariantList{} << QList<qint64>{2};
        QTest::newRow("und") << u"ARTNR LIKE '*' AND (DTNAM LIKE 'b*' OR DTNAM LIKE 'Ä*')"_s << QVariantList{} << QList<qint64>{1, 2};
        QTest::newRow("Nullen vorn zählen") << u"FARBEN LIKE '01*'"_s << QVariantList{} << QList<qint64>{3};
        QTest::newRow("keine Zahl aus Flags") << u"FARBEN LIKE 100"_s << QVariantList{} << QList<qint64>{2};
        QTest::newRow("nur LIKE ist Muster") << u"DTNAM = '*'"_s << QVariantList{} << QList<qint64>{};
        QTest::newRow("Apostroph") << u"BOT_NAME LIKE '*''Ä'''"_s << QVariantList{} << QList<qint64>{4};
    }
    void likeInDerAnweisung()
    {
        QFETCH(QString, bedingung);
        QFETCH(QVariantList, werte);
        QFETCH(QList<qint64>, nummern);
        const QTemporaryDir ordner;
        const std::shared_ptr<Datenbank> db = leereDatenbank(ordner.filePath(u"test.mdb"_s));
        const QList<QVariantList> pflanzen{{1, u"A"_s, u"Ähre"_s, u"1100"_s},
                                           {2, u"B"_s, u"Blume"_s, u"100"_s},
                                           {3, u"C"_s, QVariant(), u"010"_s},
                                           {4, u"D 'Ä'"_s, u""_s, QVariant()}};
        for (const QVariantList &pflanze : pflanzen)
            db->Execute(u"INSERT INTO Topfpfl (ARTNR, BOT_NAME, DTNAM, FARBEN) VALUES (?, ?, ?, ?)"_s, pflanze);
        QList<qint64> gefunden;
        for (Recordset satz(db, u"SELECT * FROM topfpfl WHERE "_s + bedingung, werte); !satz.Eof(); satz.MoveNext())
            gefunden += satz.Fields(u"artnr").Ganzzahl();
        QCOMPARE(gefunden, nummern);
    }

    void anweisungen_data()
    {
        QTest::addColumn<QString>("anweisung");
        QTest::addColumn<QString>("gegenprobe"); // the same keys by SQLite alone
        const auto zeile = [](const QString &anweisung, const QString &gegenprobe) {
            QTest::newRow(qPrintable(anweisung)) << anweisung << gegenprobe;
        };
        for (const char *haupt : {"TOPFPFL", "Topfpfl", "topfpfl", "STAUDEN", "Gehoelze", "Apfel", "OBST", "Obst", "Abfrage_Friedhof"}) {
            const QString tabelle = QString::fromLatin1(haupt);
            zeile(u"SELECT * From %1 WHERE ARTNR LIKE '*' ORDER BY Bot_Name"_s.arg(tabelle), u"SELECT ARTNR FROM "_s + tabelle);
            zeile(u"SELECT * From %1 WHERE BOT_NAME LIKE '*' ORDER BY DTNAM"_s.arg(tabelle), u"SELECT ARTNR FROM "_s + tabelle);
            zeile(tabelle, u"SELECT ARTNR FROM "_s + tabelle);
        }
        for (const char *bilder : {"Topfpfl", "TOPFPFL", "Stauden", "Gehoelze", "Apfel", "OBST", "Obst", "Friedhof"}) {
            const QString tabelle = QString::fromLatin1(bilder) + u"_Bilder"_s;
            zeile(u"SELECT * From %1 WHERE ARTNR LIKE '*' ORDER BY BotName"_s.arg(tabelle), u"SELECT ARTNR FROM "_s + tabelle);
            zeile(u"SELECT * From %1 WHERE ARTNR LIKE '*' ORDER BY BOTNAME"_s.arg(tabelle), u"SELECT ARTNR FROM "_s + tabelle);
            zeile(u"SELECT * From %1 WHERE ARTNR LIKE 30002"_s.arg(tabelle), u"SELECT ARTNR FROM %1 WHERE ARTNR = 30002"_s.arg(tabelle));
        }
        for (const auto &[sparte, nummer, suche] :
             {std::tuple(u"Topfpfl"_s, 1001, u"Cal"_s), std::tuple(u"Stauden"_s, 30002, u"an"_s), std::tuple(u"Gehoelze"_s, 30002, u"AN"_s)})
            for (const char *art : {"Botanisch", "Deutsch"}) {
                const QString tabelle = u"%1_Synonyme_%2"_s.arg(sparte, QLatin1String(art));
                zeile(u"SELECT * From %1 WHERE ARTNR LIKE %2"_s.arg(tabelle).arg(nummer),
                      u"SELECT ARTNR FROM %1 WHERE ARTNR = %2"_s.arg(tabelle).arg(nummer));
                zeile(u"SELECT * From %1 WHERE ARTNR LIKE '*'"_s.arg(tabelle), u"SELECT ARTNR FROM "_s + tabelle);
                zeile(u"SELECT * From %1 WHERE SYN LIKE '*%2*'"_s.arg(tabelle, suche),
                      u"SELECT ARTNR FROM %1 WHERE instr(lower(SYN), '%2') > 0"_s.arg(tabelle, suche.toLower()));
            }
        zeile(u"SELECT * FROM Familien WHERE FAMILIE LIKE '*'"_s, u"SELECT FAMILIE FROM Familien"_s);
        zeile(u"SELECT FAMNAME FROM Familien WHERE FAMILIE LIKE 7"_s, u"SELECT FAMNAME FROM Familien WHERE FAMILIE = 7"_s);
        zeile(u"Namen_Benutzer_Optionen"_s, u"SELECT Topfpflanzen FROM Namen_Benutzer_Optionen"_s);
        zeile(u"  select  *  from  [Familien]  where  [FAMILIE]  like  '*'  "_s, u"SELECT FAMILIE FROM Familien"_s);
    }
    void anweisungen()
    {
        QFETCH(QString, anweisung);
        QFETCH(QString, gegenprobe);
        QStringList erwartet = werte(*db_, gegenprobe), gefunden;
        QVERIFY2(!erwartet.isEmpty() || anweisung.contains(u"30002"_s), "The counter-check finds nothing.");
        for (Recordset satz(db_, anweisung); !satz.Eof(); satz.MoveNext())
            gefunden += satz.Fields(0).Text();
        erwartet.sort();
        gefunden.sort();
        QCOMPARE(gefunden, erwartet);
    }

    /// A plant without synonyms: an empty list, no error.
    void ohneSynonyme()
    {
        Recordset satz(db_, u"SELECT * From Stauden_Synonyme_Deutsch WHERE ARTNR LIKE 30001"_s);
        QVERIFY(satz.Eof());
        QCOMPARE(satz.RecordCount(), 0);
    }

    void falscheAnweisungen_data()
    {
        QTest::addColumn<QString>("anweisung");
        QTest::addColumn<QString>("meldung");
        const QString syntax = u"Syntaxfehler in der Anweisung"_s, sqlite = u"Fehler in der Datenbank 'flox-demo.mdb'"_s;
        const auto zeile = [](const QString &anweisung, const QString &meldung) { QTest::newRow(qPrintable(anweisung)) << anweisung << meldung; };
        zeile(u""_s, syntax);
        zeile(u"   "_s, syntax);
        zeile(u"'Topfpfl'"_s, syntax);
        zeile(u"Topfpfl Apfel"_s, syntax);
        zeile(u"DELETE FROM Topfpfl"_s, syntax);
        zeile(u"SELECT"_s, syntax);
        zeile(u"SELECT *"_s, syntax);
        zeile(u"SELECT FROM Topfpfl"_s, syntax);
        zeile(u"SELECT * FROM"_s, syntax);
        zeile(u"SELECT * FROM WHERE"_s, u"fehlt die Tabelle 'WHERE'"_s);
        zeile(u"SELECT * FROM Topfpfl, Apfel"_s, syntax);
        zeile(u"SELECT * FROM Topfpfl WHERE"_s, syntax);
        zeile(u"SELECT * FROM Topfpfl WHERE ORDER BY BOT_NAME"_s, syntax);
        zeile(u"SELECT * FROM Topfpfl ORDER BOT_NAME"_s, syntax);
        zeile(u"SELECT * FROM Topfpfl ORDER BY"_s, syntax);
        zeile(u"SELECT * FROM Topfpfl ORDER BY BOT_NAME, DTNAM"_s, syntax);
        zeile(u"SELECT * FROM Topfpfl; DROP TABLE Topfpfl"_s, syntax);
        zeile(u"SELECT * FROM Topfpfl WHERE BOT_NAME LIKE 'Fic*"_s, syntax);
        zeile(u"SELECT * FROM Topfpfl WHERE [BOT_NAME LIKE 'Fic*'"_s, syntax);
        zeile(u"SELECT * From Topfpfl_Synonyme_Botanisch WHERE SYN LIKE '*O'Neill'"_s, syntax);
        zeile(u"SELECT * FROM Topfpfl WHERE BOT_NAME LIKE"_s, sqlite);
        zeile(u"SELECT * FROM Topfpfl WHERE (BOT_NAME LIKE 'F*'"_s, sqlite);
        zeile(u"SELECT * FROM Topfpfl WHERE ARTNR LIKE '*'; DROP TABLE Topfpfl"_s, u"Fehler"_s);
        zeile(u"SELECT * FROM Palmen WHERE ARTNR LIKE '*'"_s, u"In der Datenbank 'flox-demo.mdb' fehlt die Tabelle 'Palmen'."_s);
        zeile(u"Palmen"_s, u"In der Datenbank 'flox-demo.mdb' fehlt die Tabelle 'Palmen'."_s);
        zeile(u"SELECT * FROM Topfpfl WHERE Stacheln LIKE '*'"_s, u"In der Datenbank 'flox-demo.mdb' fehlt das Feld 'Stacheln'."_s);
        zeile(u"SELECT * FROM Topfpfl ORDER BY Stacheln"_s, u"In der Datenbank 'flox-demo.mdb' fehlt das Feld 'Stacheln'."_s);
        zeile(u"SELECT Stacheln FROM Topfpfl"_s, u"In der Datenbank 'flox-demo.mdb' fehlt das Feld 'Stacheln'."_s);
    }
    void falscheAnweisungen()
    {
        QFETCH(QString, anweisung);
        QFETCH(QString, meldung);
        const QString text = fehlerVon([&] { Recordset satz(db_, anweisung); });
        QVERIFY2(text.contains(meldung, Qt::CaseInsensitive), qPrintable(u"\"%1\" lacks \"%2\""_s.arg(text, meldung)));
        QVERIFY(db_->hatTabelle(u"Topfpfl"_s));
    }

    /// What SQLite would skip without a word is an error.
    void eineAnweisungJeAufruf()
    {
        const qint64 vorher = zahl(*db_, u"SELECT count(*) FROM Topfpfl"_s);
        QVERIFY(!fehlerVon([&] { db_->Execute(u"DELETE FROM Apfel WHERE ARTNR < 0; DELETE FROM Topfpfl"_s); }).isEmpty());
        QCOMPARE(zahl(*db_, u"SELECT count(*) FROM Topfpfl"_s), vorher);
        QVERIFY(!fehlerVon([&] { db_->Execute(u""_s); }).isEmpty());
    }

    void kopierauftrag()
    {
        const auto auftrag = kopierauftragLesen(u"select * into Ziel in 'C:\\O''Neill\\a b.mdb' from Topfpfl where ARTNR LIKE '*';"_s);
        QVERIFY(auftrag);
        QCOMPARE(auftrag->spalten, u"*"_s);
        QCOMPARE(auftrag->ziel, u"Ziel"_s);
        QCOMPARE(auftrag->datei, u"C:\\O'Neill\\a b.mdb"_s);
        QCOMPARE(auftrag->rest, u"Topfpfl where ARTNR LIKE '*'"_s);
        QVERIFY(!kopierauftragLesen(u"SELECT * FROM Topfpfl"_s));
        QVERIFY(!kopierauftragLesen(u"SELECT * INTO Ziel FROM Topfpfl"_s));
    }

private:
    Datenordner ordner_;
    std::shared_ptr<Datenbank> db_;
};

FLOX_TEST(tst_accesssql, TestAccessSql)
#include "tst_accesssql.moc"
