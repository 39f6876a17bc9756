#include "Datenhilfen.h"
#include "Datenordner.h"

#include "store/DatenControl.h"
#include "store/Fehler.h"
#include "store/Schema.h"
#include "store/Sparten.h"
#include "tests/Faelle.h"
#include "tests/Testprogramm.h"

#include <QFile>
#include <QTest>

#include <random>

using namespace Qt::StringLiterals;

/* Damaged and foreign files: a German message, never a crash. */
class TestSchaeden : public QObject
{
    Q_OBJECT

private slots:
    void init() { ordner_.emplace(); }

    void keineDatenbank_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<QString>("meldung");
        const QByteArray echt = inhalt(Datenordner().datenbank());
        const auto mit = [&echt](qsizetype stelle, const char *werte, qsizetype anzahl) {
            QByteArray bytes = echt;
            return bytes.replace(stelle, anzahl, werte, anzahl);
        };
        const QString keine = u"Die Datei '%1' ist keine Datenbank."_s, fremd = u"Die Datei '%1' ist keine Flox-Datenbank."_s;
        QTest::newRow("Text") << QByteArray(20000, 'x') << keine;
        QTest::newRow("kurzer Text") << QByteArray("Notizen\n") << keine;
        QTest::newRow("Nullen") << QByteArray(20000, '\0') << keine;
        QTest::newRow("leer") << QByteArray() << fremd;
        QTest::newRow("Kopf beschädigt") << mit(0, "SQLite_format", 13) << keine;
        QTest::newRow("Kopf allein") << echt.left(100) << u"Die Datenbank '%1' ist beschädigt."_s;
        QTest::newRow("andere Anwendung") << mit(68, "\0\0\0\1", 4) << fremd;
        QTest::newRow("keine Anwendung") << mit(68, "\0\0\0\0", 4) << fremd;
        QTest::newRow("neuere Fassung") << mit(60, "\0\0\0\x02", 4) << u"Die Datenbank '%1' wurde mit einer neueren Version von Flox angelegt."_s;
        QTest::newRow("Verzeichnis beschädigt") << mit(100, "\xff\xff\xff\xff", 4) << u"Die Datenbank '%1' ist beschädigt."_s;
        QTest::newRow("Dateiformat von morgen") << mit(19, "\x09", 1) << keine;
    }
    void keineDatenbank()
    {
        QFETCH(QByteArray, bytes);
        QFETCH(QString, meldung);
        const QString pfad = ordner_->pfad(u"kaputt.mdb"_s);
        schreiben(pfad, bytes);
        QCOMPARE(fehlerVon([&] { Datenbank::OpenDatabase(pfad); }), meldung.arg(u"kaputt.mdb"_s));
        QVERIFY2(inhalt(pfad) == bytes, "A file that is refused stays as it is.");
        // Nothing is held: the whole database under the same name opens.
        QVERIFY(QFile::remove(pfad) && QFile::copy(ordner_->datenbank(), pfad));
        QVERIFY(fehlerVon([&] { Datenbank::OpenDatabase(pfad); }).isEmpty());
    }

    void aeltereFassungWirdGelesen()
    {
        ordner_->db()->Execute(u"PRAGMA user_version = 0"_s);
        QVERIFY(fehlerVon([&] { ordner_->db(); }).isEmpty());
    }

    void fehlendes()
    {
        const std::shared_ptr<Datenbank> db = ordner_->db();
        for (const char *name : schema::pflichttabellen()) {
            const QString tabelle = QString::fromLatin1(name);
            db->Execute(u"DROP TABLE "_s + tabelle);
            const QString meldung = u"In der Datenbank 'flox-demo.mdb' fehlt die Tabelle '%1'."_s.arg(tabelle);
            QCOMPARE(fehlerVon([&] { Recordset(db, tabelle); }), meldung);
            QCOMPARE(fehlerVon([&] { Recordset(db, u"SELECT * FROM %1 ORDER BY ARTNR"_s.arg(tabelle)); }), meldung);
            QCOMPARE(fehlerVon([&] { db->Execute(u"DELETE FROM "_s + tabelle); }), meldung);
        }
        // The query stands, but what it joins is gone.
        QCOMPARE(fehlerVon([&] { Recordset(db, u"Abfrage_Friedhof"_s); }), u"In der Datenbank 'flox-demo.mdb' fehlt die Tabelle 'Stauden'."_s);
    }

    /// A file whose end is missing: it is refused, or what is left is read.
    void abgeschnitten_data() { zufall_data(12); }
    void abgeschnitten()
    {
        QFETCH(int, saat);
        const QByteArray echt = inhalt(ordner_->datenbank());
        std::minstd_rand zufall{unsigned(saat + 1)};
        for (int lauf = 0; lauf < 8; ++lauf) {
            const qsizetype laenge = std::uniform_int_distribution<qsizetype>(0, echt.size() - 1)(zufall);
            pruefen(echt.left(laenge), u"length %1"_s.arg(laenge));
        }
    }

    /// Bytes changed at random, in the whole file, in its first page and in single bits.
    void verfaelscht_data() { zufall_data(faelle(8, 30)); }
    void verfaelscht()
    {
        QFETCH(int, saat);
        const QByteArray echt = inhalt(ordner_->datenbank());
        std::minstd_rand zufall{unsigned(saat + 1)};
        const auto bis = [&zufall](qsizetype grenze) { return std::uniform_int_distribution<qsizetype>(0, grenze - 1)(zufall); };
        for (int lauf = 0; lauf < 10; ++lauf) {
            QByteArray bytes = echt;
            const qsizetype bereich = lauf % 3 == 0 ? 200 : lauf % 3 == 1 ? 40000 : bytes.size();
            const int anzahl = 1 << bis(8);
            for (int i = 0; i < anzahl; ++i) {
                char &byte = bytes[(lauf % 3 == 0 ? 16 : 0) + bis(bereich - 16)];
                byte = lauf % 2 ? char(byte ^ (1 << bis(8))) : char(bis(256));
            }
            // The marks of the program stay, or most variants would end at them.
            bytes.replace(60, 4, echt.mid(60, 4));
            bytes.replace(68, 4, echt.mid(68, 4));
            pruefen(bytes, u"run %1"_s.arg(lauf));
        }
    }

    void cleanupTestCase()
    {
        // Both ways were taken: files that were refused and files that could be read.
        if (gelesen_ + verweigert_ > 0) {
            QVERIFY(gelesen_ > 0);
            QVERIFY(verweigert_ > 0);
        }
    }

private:
    static void zufall_data(int anzahl)
    {
        QTest::addColumn<int>("saat");
        for (int saat = 0; saat < anzahl; ++saat)
            QTest::addRow("Saat %d", saat) << saat;
    }

    /// Does with the file what the program does; only a Fehler may come.
    void pruefen(const QByteArray &bytes, const QString &was)
    {
        const QString pfad = ordner_->pfad(u"kaputt.mdb"_s);
        schreiben(pfad, bytes);
        QFile::remove(pfad + u"-journal"_s);
        bool heil = true;
        const auto versuchen = [&](const std::function<void()> &tat) {
            try {
                tat();
            } catch (const Fehler &fehler) {
                heil = false;
                QVERIFY2(!fehler.text().trimmed().isEmpty(), qPrintable(was));
            }
        };
        versuchen([&] {
            const std::shared_ptr<Datenbank> db = Datenbank::OpenDatabase(pfad);
            for (const QString &tabelle : db->TableDefs())
                versuchen([&] { lesen(db, tabelle); });
            for (const SpartenEintrag &sparte : alleSparten())
                versuchen([&] { gehen(db, u"SELECT * From %1 WHERE ARTNR LIKE '*' ORDER BY Bot_Name"_s.arg(sparte.haupttabelle)); });
            versuchen([&] { gehen(db, u"SELECT * From Topfpfl_Bilder WHERE ARTNR LIKE '*' ORDER BY BotName"_s); });
            versuchen([&] {
                Recordset satz(db, u"Topfpfl"_s);
                satz.Edit();
                satz.Fields(u"benu_bemerkung").setValue(u"Notiz"_s);
                satz.Update();
                satz.Delete();
            });
        });
        ++(heil ? gelesen_ : verweigert_);
    }
    static void lesen(const std::shared_ptr<Datenbank> &db, const QString &tabelle)
    {
        Anweisung &anweisung = db->vorbereitet(u"SELECT * FROM \"%1\""_s.arg(QString(tabelle).replace(u'"', u"\"\""_s)));
        for (int zeilen = 0; anweisung.schritt() && zeilen < 5000; ++zeilen)
            for (int i = 0; i < anweisung.spalten(); ++i)
                QVERIFY(anweisung.istNull(i) || !anweisung.text(i).isNull());
        anweisung.zuruecksetzen();
    }
    static void gehen(const std::shared_ptr<Datenbank> &db, const QString &quelle)
    {
        Recordset satz(db, quelle);
        const qsizetype anzahl = satz.RecordCount();
        qsizetype besucht = 0;
        for (; !satz.Eof(); satz.MoveNext(), ++besucht)
            for (int i = 0; i < satz.FieldCount(); ++i)
                QVERIFY(!satz.Fields(i).IsNull() || satz.Fields(i).Text().isEmpty());
        QCOMPARE(besucht, anzahl);
    }

    std::optional<Datenordner> ordner_;
    int gelesen_ = 0, verweigert_ = 0;
};

FLOX_TEST(tst_schaeden, TestSchaeden)
#include "tst_schaeden.moc"
