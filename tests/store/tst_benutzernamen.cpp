#include "Datenhilfen.h"
#include "Datenordner.h"
#include "Rechte.h"

#include "store/Benutzernamen.h"
#include "store/Sparten.h"
#include "tests/Testprogramm.h"

#include <QFile>
#include <QTest>

using namespace Qt::StringLiterals;

/* The names of the user-defined properties in the working database. */
class TestBenutzernamen : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        ordner_.emplace();
        programm_ = {};
        programm_.ProgrammPfad = ordner_->pfad();
    }

    void ausgeliefert()
    {
        lesen();
        for (const auto &sparte : programm_.BenutzerNamen)
            for (size_t r = 0; r < sparte.size(); ++r)
                QCOMPARE(sparte[r], u"Eigenschaft %1"_s.arg(r + 1));
        QCOMPARE(zahl(*ordner_->db(), u"SELECT count(*) FROM Namen_Benutzer_Optionen"_s), anzahlEigenschaften);
    }

    /// Each name goes to its own column and row, and comes back from there.
    void hinUndZurueck()
    {
        for (size_t s = 0; s < anzahlSparten; ++s)
            for (size_t r = 0; r < anzahlEigenschaften; ++r)
                programm_.BenutzerNamen[s][r] = name(s, r);
        benutzernamenSchreiben(programm_);
        const std::shared_ptr<Datenbank> db = ordner_->db();
        const QStringList spalten{u"Topfpflanzen"_s, u"Stauden"_s, u"Gehoelze"_s, u"Apfel"_s, u"Obst"_s, u"Friedhof"_s};
        for (size_t s = 0; s < anzahlSparten; ++s) {
            const QStringList namen = werte(*db, u"SELECT %1 FROM Namen_Benutzer_Optionen ORDER BY rowid"_s.arg(spalten[qsizetype(s)]));
            QCOMPARE(namen.size(), anzahlEigenschaften);
            for (size_t r = 0; r < anzahlEigenschaften; ++r)
                QCOMPARE(namen[qsizetype(r)], name(s, r));
        }
        Programm anderes;
        anderes.ProgrammPfad = ordner_->pfad();
        QCOMPARE(benutzernamenLesen(anderes), QString());
        QVERIFY(anderes.BenutzerNamen == programm_.BenutzerNamen);
    }

    void leererNameBleibtText_data()
    {
        QTest::addColumn<QString>("name");
        QTest::newRow("leer") << u""_s;
        QTest::newRow("null") << QString();
    }
    void leererNameBleibtText()
    {
        QFETCH(QString, name);
        lesen();
        programm_.BenutzerNamen[1][2] = name;
        benutzernamenSchreiben(programm_);
        QCOMPARE(werte(*ordner_->db(), u"SELECT typeof(Stauden) || Stauden FROM Namen_Benutzer_Optionen WHERE rowid = 3"_s), QStringList{u"text"_s});
        lesen();
        QCOMPARE(programm_.BenutzerNamen[1][2], u""_s);
        QCOMPARE(programm_.BenutzerNamen[1][1], u"Eigenschaft 2"_s);
    }

    void nullWirdLeer()
    {
        ordner_->db()->Execute(u"UPDATE Namen_Benutzer_Optionen SET Apfel = NULL WHERE rowid = 5"_s);
        lesen();
        QCOMPARE(programm_.BenutzerNamen[size_t(Sparte::Apfel)][4], u""_s);
        QCOMPARE(programm_.BenutzerNamen[size_t(Sparte::Obst)][4], u"Eigenschaft 5"_s);
    }

    /// Rows too many do not count, and nobody touches them.
    void sechsteZeile()
    {
        const std::shared_ptr<Datenbank> db = ordner_->db();
        db->Execute(u"INSERT INTO Namen_Benutzer_Optionen (Topfpflanzen) VALUES ('zu viel')"_s);
        db->Execute(u"UPDATE Namen_Benutzer_Optionen SET Topfpflanzen = 'erste' WHERE rowid = 1"_s);
        QCOMPARE(benutzernamenLesen(programm_), u"Die Tabelle 'Namen_Benutzer_Optionen' hat mehr als 5 Zeilen. Die ersten 5 werden verwendet."_s);
        QCOMPARE(programm_.BenutzerNamen[0][0], u"erste"_s);
        QCOMPARE(programm_.BenutzerNamen[0][4], u"Eigenschaft 5"_s);
        programm_.BenutzerNamen[0][4] = u"anders"_s;
        QCOMPARE(fehlerVon([&] { benutzernamenSchreiben(programm_); }), QString());
        QCOMPARE(werte(*db, u"SELECT Topfpflanzen FROM Namen_Benutzer_Optionen ORDER BY rowid"_s),
                 (QStringList{u"erste"_s, u"Eigenschaft 2"_s, u"Eigenschaft 3"_s, u"Eigenschaft 4"_s, u"anders"_s, u"zu viel"_s}));
    }

    /// Names that stand there already ask nothing of the file.
    void gleicheNamenSchreibenNichts()
    {
        lesen();
        const QByteArray vorher = inhalt(ordner_->datenbank());
        benutzernamenSchreiben(programm_);
        QVERIFY(inhalt(ordner_->datenbank()) == vorher);
        const NurLesen sperre(ordner_->pfad());
        QCOMPARE(fehlerVon([&] { benutzernamenSchreiben(programm_); }), QString());
        programm_.BenutzerNamen[2][2] = u"neu"_s;
        QCOMPARE(fehlerVon([&] { benutzernamenSchreiben(programm_); }), u"Die Datenbank 'flox-demo.mdb' ist schreibgeschützt."_s);
    }

    void wenigerZeilen()
    {
        ordner_->db()->Execute(u"DELETE FROM Namen_Benutzer_Optionen WHERE rowid > 3"_s);
        programm_.BenutzerNamen[0][4] = u"unberührt"_s;
        lesen();
        QCOMPARE(programm_.BenutzerNamen[0][2], u"Eigenschaft 3"_s);
        QCOMPARE(programm_.BenutzerNamen[0][4], u"unberührt"_s);
        QVERIFY(fehlerVon([&] { benutzernamenSchreiben(programm_); }).isEmpty());
        QCOMPARE(zahl(*ordner_->db(), u"SELECT count(*) FROM Namen_Benutzer_Optionen"_s), 3);
    }

    void scheitert()
    {
        ordner_->db()->Execute(u"DROP TABLE Namen_Benutzer_Optionen"_s);
        const QString meldung = u"In der Datenbank 'flox-demo.mdb' fehlt die Tabelle 'Namen_Benutzer_Optionen'."_s;
        // It is told, and the program goes on with names of its own.
        QVERIFY(benutzernamenLesen(programm_).startsWith(u"In der Datenbank fehlt die Tabelle 'Namen_Benutzer_Optionen'."_s));
        QCOMPARE(programm_.BenutzerNamen[3][4], u"Eigenschaft 5"_s);
        QCOMPARE(fehlerVon([&] { benutzernamenSchreiben(programm_); }), meldung);
        QVERIFY(QFile::remove(ordner_->datenbank()));
        QVERIFY(fehlerVon([&] { lesen(); }).contains(u"wurde nicht gefunden"_s));
        QVERIFY(!QFile::exists(ordner_->datenbank()));
    }

    /// All thirty names or none: a file that takes no more keeps the old ones.
    void ganzOderGarNicht()
    {
        lesen();
        const auto vorher = programm_.BenutzerNamen;
        for (auto &sparte : programm_.BenutzerNamen)
            for (QString &einName : sparte)
                einName = QString(20000, u'x');
        QString meldung;
        {
            const Dateigrenze grenze(rlim_t(QFile(ordner_->datenbank()).size()));
            meldung = fehlerVon([&] { benutzernamenSchreiben(programm_); });
        }
        QVERIFY(!meldung.isEmpty());
        lesen();
        QVERIFY(programm_.BenutzerNamen == vorher);
        QCOMPARE(werte(*ordner_->db(), u"PRAGMA integrity_check"_s), QStringList{u"ok"_s});
    }

private:
    void lesen() { QCOMPARE(benutzernamenLesen(programm_), QString()); }
    static QString name(size_t sparte, size_t zeile) { return u"für %1 × O'Neill %2"_s.arg(sparte).arg(zeile); }

    std::optional<Datenordner> ordner_;
    Programm programm_;
};

FLOX_TEST(tst_benutzernamen, TestBenutzernamen)
#include "tst_benutzernamen.moc"
