#include "Datenhilfen.h"
#include "Datenordner.h"
#include "Rechte.h"

#include "store/Laufordner.h"
#include "store/Dateien.h"
#include "tests/Testprogramm.h"

#include <QDir>
#include <QFile>
#include <QTest>

using namespace Qt::StringLiterals;

/* The folder of private copies and parked filters, and what is swept from it. */
class TestLaufordner : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        ordner_.emplace();
        daheim_.emplace();
        qputenv("XDG_CACHE_HOME", daheim_->path().toUtf8());
        NurLesen::ueberlassen(daheim_->path());
        programm_ = {};
        programm_.ProgrammPfad = ordner_->pfad();
    }

    void desProgramms()
    {
        const QStringList vorher = dateien(ordner_->pfad());
        {
            Laufordner laufordner;
            laufordner.bestimmen(programm_);
            QCOMPARE(programm_.laufordner(), ordner_->pfad());
            QCOMPARE(dateien(ordner_->pfad()), vorher); // asking leaves nothing
        }
        QCOMPARE(dateien(ordner_->pfad()), vorher);
        QVERIFY(QDir(daheim_->path()).isEmpty());
    }

    void reste_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<bool>("bleibt");
        for (const char *sparte : {"to", "st", "ge", "ap", "ob", "fh"}) {
            QTest::addRow("Kopie %s", sparte) << u"db_%1%2.tmp"_s.arg(QLatin1String(sparte)).arg(12) << false;
            QTest::addRow("Journal %s", sparte) << u"db_%1%2.tmp-journal"_s.arg(QLatin1String(sparte)).arg(1) << false;
        }
        for (const char *name : {"TempFilterTo1.fft", "TempFilterSt3.ffs", "TempFilterAp1.ffa", "tempfilterto1.fft", "TempFilterTo1.fft.AbCdEf",
                                 "Liste.pdf.AbCdEf", "Meine Liste (2).pdf.abcdef", "flox-zwischen.tmp"})
            QTest::newRow(name) << QString::fromLatin1(name) << false;
        for (const char *name : {"flox-demo.mdb", "db_to.tmp", "db_xy1.tmp", "mydb_to1.tmp", "db_to1.tmp.bak", "TempFilterTo.fft", "Klausur.fft",
                                 "Liste.pdf", "Liste.pdf.abcdefg", "Liste.pdf.tar.gz", "Liste.pdf.123456", ".pdf.abcdef", "flox-demo.mdb-journal"})
            QTest::newRow(name) << QString::fromLatin1(name) << true;
    }
    void reste()
    {
        QFETCH(QString, name);
        QFETCH(bool, bleibt);
        schreiben(ordner_->pfad(name), "x");
        QVERIFY(QDir().mkpath(ordner_->pfad(u"unter"_s)) && QDir().mkpath(ordner_->pfad(u"db_to9.tmp"_s)));
        schreiben(ordner_->pfad(u"unter/db_to1.tmp"_s), "x");
        Laufordner laufordner;
        laufordner.bestimmen(programm_);
        QVERIFY(QFile::exists(ordner_->pfad(name))); // choosing sweeps nothing yet
        laufordner.fegen(programm_);
        QCOMPARE(QFile::exists(ordner_->pfad(name)), bleibt);
        QVERIFY(QFile::exists(ordner_->pfad(u"unter/db_to1.tmp"_s))); // only the folder itself
        QVERIFY(QFile::exists(ordner_->pfad(u"db_to9.tmp"_s)));
    }

    void halbGeschriebeneDateiAnderswo()
    {
        // What a run leaves that is killed while it writes a file anywhere.
        const QString ziel = daheim_->filePath(u"Ausdruck.pdf"_s);
        schreiben(ziel + u".QwErTz"_s, "halb");
        schreiben(ordner_->pfad(u"flox-unfertig.txt"_s), ziel.toUtf8());
        Laufordner laufordner;
        laufordner.bestimmen(programm_);
        QVERIFY(!QFile::exists(ziel + u".QwErTz"_s));
        QVERIFY(!QFile::exists(ordner_->pfad(u"flox-unfertig.txt"_s)));
    }

    /// Each program that runs has a folder of its own; what a dead one left is swept, a living one's files are not.
    void desBenutzers()
    {
        const NurLesen sperre(ordner_->pfad());
        QString erster, zweiter;
        {
            Laufordner eins, zwei;
            Programm p1 = programm_, p2 = programm_;
            eins.bestimmen(p1);
            zwei.bestimmen(p2);
            erster = p1.laufordner();
            zweiter = p2.laufordner();
            QVERIFY(erster.startsWith(daheim_->path()) && zweiter.startsWith(daheim_->path()));
            QVERIFY(erster != zweiter);
            for (const QString &ordner : {erster, zweiter})
                schreiben(ordner + u"/db_to1.tmp"_s, "x");
            Laufordner drei;
            Programm p3 = programm_;
            drei.bestimmen(p3);
            QVERIFY(p3.laufordner() != erster && p3.laufordner() != zweiter);
            QVERIFY(QFile::exists(erster + u"/db_to1.tmp"_s) && QFile::exists(zweiter + u"/db_to1.tmp"_s));
        }
        QVERIFY(!QFile::exists(erster) && !QFile::exists(zweiter)); // nothing is left behind
        QVERIFY(QDir().mkpath(erster));                             // but by a run that was killed
        schreiben(erster + u"/db_to1.tmp"_s, "x");
        Laufordner wieder;
        wieder.bestimmen(programm_);
        QCOMPARE(programm_.laufordner(), erster);
        wieder.fegen(programm_);
        QVERIFY(!QFile::exists(erster + u"/db_to1.tmp"_s));
    }

    void verwaisteSperre_data()
    {
        QTest::addColumn<QByteArray>("inhalt");
        QTest::newRow("leer") << QByteArray();
        QTest::newRow("Unsinn") << QByteArray("Unsinn\n");
        QTest::newRow("toter Prozess") << QByteArray("999999999\nflox\n") + QSysInfo::machineHostName().toUtf8() + '\n';
    }
    void verwaisteSperre()
    {
        QFETCH(QByteArray, inhalt);
        const NurLesen sperre(ordner_->pfad());
        {
            Laufordner laufordner;
            laufordner.bestimmen(programm_);
        }
        const QString ordner = programm_.laufordner();
        QVERIFY(!QFile::exists(ordner)); // an empty one is not left behind
        QVERIFY(QDir().mkpath(ordner));
        schreiben(ordner + u"/flox.lock"_s, inhalt);
        Laufordner laufordner;
        laufordner.bestimmen(programm_);
        QCOMPARE(programm_.laufordner(), ordner);
    }

    void nirgends()
    {
        qputenv("XDG_CACHE_HOME", ordner_->pfad().toUtf8());
        const NurLesen sperre(ordner_->pfad());
        Laufordner laufordner;
        laufordner.bestimmen(programm_);
        QCOMPARE(programm_.laufordner(), ordner_->pfad());
        laufordner.fegen(programm_);
    }

    void wasNichtGespeichertWird()
    {
        QCOMPARE(nichtGespeichertes(programm_), QString());
        QVERIFY(QFile::setPermissions(ordner_->datenbank(), QFile::ReadOwner | QFile::ReadOther));
        if (QFileInfo(ordner_->datenbank()).isWritable())
            QSKIP("Root may write everywhere.");
        const QString satz = nichtGespeichertes(programm_);
        QVERIFY2(satz.contains(u"Die Datenbank des Programms ist schreibgeschützt"_s), qPrintable(satz));
    }

private:
    static QStringList dateien(const QString &ordner) { return QDir(ordner).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot); }

    std::optional<Datenordner> ordner_;
    std::optional<QTemporaryDir> daheim_;
    Programm programm_;
};

FLOX_TEST(tst_laufordner, TestLaufordner)
#include "tst_laufordner.moc"
