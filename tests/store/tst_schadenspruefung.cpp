#include "Datenhilfen.h"
#include "Datenordner.h"

#include "store/Benutzernamen.h"
#include "store/Fehler.h"
#include "store/Recordset.h"
#include "store/Schadenspruefung.h"
#include "tests/Testprogramm.h"

#include <QElapsedTimer>
#include <QFile>
#include <QTest>

#include <sqlite3.h>

#include <random>

using namespace Qt::StringLiterals;

namespace {

/// The engine's own word about a file, asked in the simplest way.
bool heil(const QString &pfad)
{
    sqlite3 *db = nullptr;
    bool gut = false;
    if (sqlite3_open(pfad.toUtf8().constData(), &db) == SQLITE_OK) {
        const auto zeile = [](void *ja, int, char **werte, char **) {
            *static_cast<bool *>(ja) = qstrcmp(werte[0], "ok") == 0;
            return 1; // the first row is enough
        };
        sqlite3_exec(db, "PRAGMA quick_check(1)", zeile, &gut, nullptr);
    }
    sqlite3_close(db);
    return gut;
}

} // namespace

/* Damage in a database is told before anything is written into it. */
class TestSchadenspruefung : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        schaden::beenden();
        ordner_.emplace();
    }
    void cleanup() { schaden::beenden(); }

    void heileDatei()
    {
        QVERIFY(schaden::fertig(ordner_->datenbank())); // nothing was begun
        schaden::suchen(ordner_->datenbank());
        QVERIFY(schaden::fertig(ordner_->datenbank()));
        QCOMPARE(schaden::befund(ordner_->datenbank()), QString());
        QCOMPARE(fehlerVon([&] { notieren(ordner_->datenbank()); }), QString());
    }

    /// Files damaged at random: none takes a note in silence, and each is told of by its sentence.
    void beschaedigteDateien()
    {
        const QByteArray echt = inhalt(ordner_->datenbank());
        std::minstd_rand zufall{7};
        const auto bis = [&zufall](qsizetype grenze) { return std::uniform_int_distribution<qsizetype>(0, grenze - 1)(zufall); };
        int kaputt = 0, gesund = 0, geoeffnet = 0;
        for (int lauf = 0; lauf < 150; ++lauf) {
            QByteArray bytes = echt;
            if (lauf % 5 == 0)
                bytes.truncate(bis(bytes.size()));
            else
                for (int i = 1 << bis(7); i > 0; --i)
                    bytes[100 + bis(bytes.size() - 100)] = char(bis(256));
            const QString pfad = ordner_->pfad(u"kaputt%1.mdb"_s.arg(lauf));
            schreiben(pfad, bytes);
            const bool soll = heil(pfad);
            schaden::suchen(pfad);
            const QString befund = schaden::befund(pfad);
            QCOMPARE(befund.isEmpty(), soll);
            ++(soll ? gesund : kaputt);
            if (soll)
                continue;
            schaden::suchen(pfad); // the next search has not been asked for: writing asks for it
            QVERIFY2(befund.startsWith(u"Die Datenbank 'kaputt%1.mdb' ist beschädigt."_s.arg(lauf)), qPrintable(befund));
            const QString fehler = fehlerVon([&] { notieren(pfad); });
            QVERIFY2(!fehler.isEmpty(), "A damaged file took a note in silence.");
            geoeffnet += fehler == befund;
            QVERIFY2(inhalt(pfad) == bytes, "A damaged file was written into.");
        }
        QVERIFY(kaputt > 30 && gesund > 5);
        QVERIFY(geoeffnet > 10); // most open as if nothing were
    }

    /// A large file is searched beside the program; whoever writes waits for the end.
    void grosseDatei()
    {
        ordner_->db()->Execute(u"CREATE TABLE gross (x BLOB)"_s);
        while (QFile(ordner_->datenbank()).size() < schaden::grosseDatei)
            ordner_->db()->Execute(u"INSERT INTO gross VALUES (zeroblob(4000000))"_s);
        QByteArray bytes = inhalt(ordner_->datenbank());
        schaden::suchen(ordner_->datenbank());
        QCOMPARE(fehlerVon([&] { notieren(ordner_->datenbank()); }), QString());
        QVERIFY(schaden::fertig(ordner_->datenbank()));
        // Pages of a table that nobody reads are damaged.
        const QString pfad = ordner_->pfad(u"kaputt.mdb"_s);
        bytes.replace(bytes.size() / 2, 200000, QByteArray(200000, '\xff'));
        schreiben(pfad, bytes);
        schaden::suchen(pfad);
        QVERIFY(!heil(pfad));
        const QString fehler = fehlerVon([&] { notieren(pfad); });
        QVERIFY2(fehler.contains(u"ist beschädigt"_s), qPrintable(fehler));
        QVERIFY(inhalt(pfad) == bytes);
        schaden::suchen(pfad);
        schaden::beenden(); // at once, and the result is forgotten
        QCOMPARE(schaden::befund(pfad), QString());
    }

    void neueDateiGleichenNamens()
    {
        const QByteArray echt = inhalt(ordner_->datenbank());
        const QString pfad = ordner_->pfad(u"wechsel.mdb"_s);
        QByteArray bytes = echt;
        bytes.replace(echt.size() / 2, 30000, QByteArray(30000, '\xff'));
        schreiben(pfad, bytes);
        schaden::suchen(pfad);
        QVERIFY(!schaden::befund(pfad).isEmpty());
        schreiben(pfad, echt);
        schaden::suchen(pfad);
        QCOMPARE(schaden::befund(pfad), QString());
        QCOMPARE(fehlerVon([&] { notieren(pfad); }), QString());
    }

    void fehlendeDatei()
    {
        schaden::suchen(ordner_->pfad(u"fehlt.mdb"_s));
        QCOMPARE(schaden::befund(ordner_->pfad(u"fehlt.mdb"_s)), QString());
        QVERIFY(!QFile::exists(ordner_->pfad(u"fehlt.mdb"_s)));
    }

private:
    /// A note in the first plant, as a window stores it.
    static void notieren(const QString &pfad)
    {
        Recordset satz(Datenbank::OpenDatabase(pfad), u"Topfpfl"_s);
        satz.Edit();
        satz.Fields(u"benu_bemerkung").setValue(u"Notiz"_s);
        satz.Update();
    }

    std::optional<Datenordner> ordner_;
};

FLOX_TEST(tst_schadenspruefung, TestSchadenspruefung)
#include "tst_schadenspruefung.moc"
