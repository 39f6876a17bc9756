#include "store/Recordset.h"
#include "store/Schema.h"
#include "tests/store/Datenordner.h"
#include "tests/store/Datenhilfen.h"
#include "tests/Testprogramm.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTest>

using namespace Qt::StringLiterals;

/* The build-time programs as programs: arguments, exit codes, what they leave behind. */
class TestWerkzeuge : public QObject
{
    Q_OBJECT

private slots:
    void init() { ordner_.emplace(); }

    /// The shipped sources give the shipped database, row by row.
    void quellenErgebenDieDatenbank()
    {
        QStringList quellen{QStringLiteral(FLOX_QUELLEN) + u"/familien.rec"_s};
        for (const QString &name : QDir(QStringLiteral(FLOX_QUELLEN)).entryList({u"*.rec"_s}, QDir::Files, QDir::Name))
            if (name != u"familien.rec")
                quellen += QStringLiteral(FLOX_QUELLEN) + u'/' + name;
        const QString ziel = ordner_->pfad(u"neu.mdb"_s);
        const Ausgang ausgang = starten(QStringLiteral(FLOX_PFLANZENDATEN), QStringList{ziel} + quellen);
        QVERIFY2(ausgang.code == 0, qPrintable(ausgang.fehler));
        const std::shared_ptr<Datenbank> neu = Datenbank::OpenDatabase(ziel), alt = ordner_->db();
        for (const Tabelle &tabelle : schema::haupttabellen())
            QVERIFY(ausgang.text.contains(
                u"%1: %2\n"_s.arg(QLatin1String(tabelle.name)).arg(zahl(*neu, u"SELECT count(*) FROM "_s + QLatin1String(tabelle.name)))));
        QCOMPARE(neu->TableDefs(), alt->TableDefs());
        for (const QString &tabelle : neu->TableDefs())
            QCOMPARE(zeilen(*neu, tabelle), zeilen(*alt, tabelle));
        for (const char *pragma : {"PRAGMA page_size", "PRAGMA application_id", "PRAGMA user_version"})
            QCOMPARE(zahl(*neu, QString::fromLatin1(pragma)), zahl(*alt, QString::fromLatin1(pragma)));
        QCOMPARE(zahl(*neu, u"PRAGMA page_size"_s), 16384);
        QVERIFY(!QFile::exists(ziel + u"-journal"_s));
    }

    void falscheQuellen_data()
    {
        QTest::addColumn<QByteArray>("quelle");
        QTest::addColumn<QString>("meldung");
        QTest::newRow("unbekanntes Wort") << QByteArray("%rec: Topfpfl\nARTNR: 1\nFARBEN: lila, mauve\n")
                                          << u"probe.rec:3: FARBEN: unbekanntes Wort \"mauve\""_s;
        QTest::newRow("kein UTF-8") << QByteArray("%rec: Topfpfl\nBOT_NAME: \xff\n") << u"probe.rec:2: kein UTF-8"_s;
    }
    /// File and line on the error output, exit code 1, and no database that looks complete.
    void falscheQuellen()
    {
        QFETCH(QByteArray, quelle);
        QFETCH(QString, meldung);
        schreiben(ordner_->pfad(u"probe.rec"_s), quelle);
        const QString ziel = ordner_->pfad(u"neu.mdb"_s);
        const Ausgang ausgang = starten(QStringLiteral(FLOX_PFLANZENDATEN), {ziel, ordner_->pfad(u"probe.rec"_s)});
        QCOMPARE(ausgang.code, 1);
        QCOMPARE(ausgang.fehler.trimmed(), ordner_->pfad(meldung));
        QVERIFY(!QFile::exists(ziel));
    }

    void falscheAufrufe()
    {
        QCOMPARE(starten(QStringLiteral(FLOX_PFLANZENDATEN), {}).code, 2);
        QCOMPARE(starten(QStringLiteral(FLOX_PFLANZENDATEN), {ordner_->pfad(u"neu.mdb"_s)}).code, 2);
        const Ausgang fehlt = starten(QStringLiteral(FLOX_PFLANZENDATEN), {ordner_->pfad(u"neu.mdb"_s), ordner_->pfad(u"fehlt.rec"_s)});
        QCOMPARE(fehlt.code, 1);
        QCOMPARE(fehlt.fehler.trimmed(), ordner_->pfad(u"fehlt.rec: kann nicht gelesen werden"_s));
        QVERIFY(!QFile::exists(ordner_->pfad(u"neu.mdb"_s)));
        schreiben(ordner_->pfad(u"leer.rec"_s), "");
        QCOMPARE(starten(QStringLiteral(FLOX_PFLANZENDATEN), {ordner_->pfad(u"fehlt/neu.mdb"_s), ordner_->pfad(u"leer.rec"_s)}).code, 1);
        QCOMPARE(starten(QStringLiteral(FLOX_VERVIELFACHER), {}).code, 2);
        QCOMPARE(starten(QStringLiteral(FLOX_VERVIELFACHER), {ordner_->pfad(u"fehlt.mdb"_s), ordner_->pfad(u"neu.mdb"_s), u"Topfpfl"_s, u"9"_s}).code,
                 1);
    }

    void woerter()
    {
        const Ausgang ausgang = starten(QStringLiteral(FLOX_PFLANZENDATEN), {u"--woerter"_s});
        QCOMPARE(ausgang.code, 0);
        const QStringList zeilen = ausgang.text.split(u'\n', Qt::SkipEmptyParts);
        QVERIFY(zeilen.contains(u"Topfpfl.SONNE: sonnig, halbschattig, schattig"_s));
        QVERIFY(zeilen.contains(u"Apfel.k_kammern: eng, weit"_s));
        qsizetype mitListe = 0;
        for (const Tabelle &tabelle : schema::haupttabellen())
            mitListe += std::ranges::count_if(tabelle.spalten, [](const Spalte &spalte) { return spalte.liste != nullptr; });
        QCOMPARE(zeilen.size(), mitListe);
    }

    void vervielfachen_data()
    {
        QTest::addColumn<QString>("tabelle");
        QTest::addColumn<int>("anzahl");
        QTest::newRow("Topfpflanzen") << u"Topfpfl"_s << 1000;
        QTest::newRow("Äpfel") << u"Apfel"_s << 500;
        QTest::newRow("nicht mehr als es gibt") << u"Topfpfl"_s << 10;
    }
    void vervielfachen()
    {
        QFETCH(QString, tabelle);
        QFETCH(int, anzahl);
        const QString ziel = ordner_->pfad(u"gross.mdb"_s);
        const Ausgang ausgang = starten(QStringLiteral(FLOX_VERVIELFACHER), {ordner_->datenbank(), ziel, tabelle, QString::number(anzahl)});
        QVERIFY2(ausgang.code == 0, qPrintable(ausgang.fehler));
        const std::shared_ptr<Datenbank> gross = Datenbank::OpenDatabase(ziel);
        const qint64 echte = zahl(*ordner_->db(), u"SELECT count(*) FROM "_s + tabelle);
        QCOMPARE(zahl(*gross, u"SELECT count(*) FROM "_s + tabelle), qMax<qint64>(echte, anzahl));
        QCOMPARE(zahl(*gross, u"SELECT count(DISTINCT BOT_NAME) FROM "_s + tabelle), qMax<qint64>(echte, anzahl));
        const Recordset pflanzen(gross, u"SELECT * FROM %1 ORDER BY BOT_NAME"_s.arg(tabelle));
        const Recordset bilder(gross, u"SELECT * FROM %1_Bilder ORDER BY BotName"_s.arg(tabelle));
        QCOMPARE(bilder.Schluesselfolge(), pflanzen.Schluesselfolge());
        for (const char *art : {"Botanisch", "Deutsch"})
            if (const QString synonyme = u"%1_Synonyme_%2"_s.arg(tabelle, QLatin1String(art)); gross->hatTabelle(synonyme)) {
                QCOMPARE(zahl(*gross, u"SELECT count(*) FROM %1 WHERE ARTNR NOT IN (SELECT ARTNR FROM %2)"_s.arg(synonyme, tabelle)), 0);
                QVERIFY(zahl(*gross, u"SELECT count(*) FROM "_s + synonyme) >= zahl(*ordner_->db(), u"SELECT count(*) FROM "_s + synonyme));
            }
        QCOMPARE(werte(*gross, u"PRAGMA integrity_check"_s), QStringList{u"ok"_s});
    }

private:
    struct Ausgang
    {
        int code = -1;
        QString text, fehler;
    };
    static Ausgang starten(const QString &programm, const QStringList &argumente)
    {
        QProcess prozess;
        prozess.start(programm, argumente);
        if (!prozess.waitForFinished(120000) || prozess.exitStatus() != QProcess::NormalExit)
            return {-1, {}, QString::fromUtf8(prozess.readAllStandardError())};
        return {prozess.exitCode(), QString::fromUtf8(prozess.readAllStandardOutput()), QString::fromUtf8(prozess.readAllStandardError())};
    }
    static QStringList zeilen(Datenbank &db, const QString &tabelle)
    {
        QStringList alle;
        Anweisung &anweisung = db.vorbereitet(u"SELECT * FROM \"%1\" ORDER BY rowid"_s.arg(tabelle));
        while (anweisung.schritt()) {
            QStringList zeile;
            for (int i = 0; i < anweisung.spalten(); ++i)
                zeile += anweisung.istNull(i) ? u"<null>"_s : anweisung.text(i);
            alle += zeile.join(u'|');
        }
        return alle;
    }

    std::optional<Datenordner> ordner_;
};

FLOX_TEST(tst_werkzeuge, TestWerkzeuge)
#include "tst_werkzeuge.moc"
