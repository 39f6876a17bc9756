#include "Datenhilfen.h"

#include "tests/Testprogramm.h"

#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>
#include <QThread>

#include <random>

using namespace Qt::StringLiterals;

/* A process that is killed while it stores notes loses none that it has stored. */
class TestAbbruch : public QObject
{
    Q_OBJECT

private slots:
    void keineNotizGehtVerloren()
    {
        constexpr int abbrueche = 200, pflanzen = 7;
        const QTemporaryDir ordner;
        const QString pfad = ordner.filePath(u"flox-demo.mdb"_s);
        {
            const std::shared_ptr<Datenbank> db = leereDatenbank(pfad);
            for (int i = 1; i <= pflanzen; ++i)
                db->Execute(u"INSERT INTO Topfpfl (ARTNR, BOT_NAME) VALUES (?, ?)"_s, {i, u"Pflanze %1"_s.arg(i)});
        }
        QList<qint64> stand(pflanzen, -1); // number of the last note of each plant
        std::minstd_rand zufall{4711};
        qint64 naechste = 0;
        int mitten = 0;
        for (int lauf = 0; lauf < abbrueche; ++lauf) {
            QProcess schreiber;
            schreiber.start(QStringLiteral(FLOX_NOTIZSCHREIBER), {pfad, QString::number(naechste)});
            QVERIFY(schreiber.waitForReadyRead(30000));
            QThread::usleep(std::uniform_int_distribution<unsigned long>(0, 12000)(zufall));
            schreiber.kill();
            QVERIFY(schreiber.waitForFinished(30000));
            QCOMPARE(schreiber.exitStatus(), QProcess::CrashExit);
            mitten += QFile::exists(pfad + u"-journal"_s);

            const QByteArray ausgabe = schreiber.readAllStandardOutput();
            const QByteArray ganz = ausgabe.left(ausgabe.lastIndexOf('\n') + 1).trimmed(); // the last line may be torn
            const QList<QByteArray> zeilen = ganz.isEmpty() ? QList<QByteArray>{} : ganz.split('\n');
            for (const QByteArray &zeile : zeilen) {
                QCOMPARE(zeile.toLongLong(), naechste);
                stand[naechste % pflanzen] = naechste;
                ++naechste;
            }
            if (pruefen(pfad, stand, naechste))
                ++naechste;
            if (QTest::currentTestFailed())
                return;
        }
        QVERIFY2(naechste > abbrueche, "Hardly a note was stored.");
        QVERIFY2(mitten > 0, "No kill fell into a transaction: the test shows nothing.");
        qInfo("%lld notes, %d of %d kills inside a transaction", naechste, mitten, abbrueche);
    }

private:
    /// Every plant has its last note, whole; the one under way may be stored too, and then becomes part of `stand`: true.
    static bool pruefen(const QString &pfad, QList<qint64> &stand, qint64 unterwegs)
    {
        const std::shared_ptr<Datenbank> db = Datenbank::OpenDatabase(pfad);
        [&] { QCOMPARE(werte(*db, u"PRAGMA integrity_check"_s), QStringList{u"ok"_s}); }();
        if (QTest::currentTestFailed())
            return false;
        const QStringList notizen = werte(*db, u"SELECT benu_bemerkung FROM Topfpfl ORDER BY ARTNR"_s);
        const QStringList eigen = werte(*db, u"SELECT benu_eigen FROM Topfpfl ORDER BY ARTNR"_s);
        bool auchUnterwegs = false;
        [&] {
            QCOMPARE(notizen.size(), stand.size());
            for (qsizetype i = 0; i < stand.size(); ++i) {
                if (unterwegs % stand.size() == i && notizen[i].startsWith(u"Notiz %1 "_s.arg(unterwegs))) {
                    stand[i] = unterwegs;
                    auchUnterwegs = true;
                }
                const qint64 nummer = stand[i];
                const QString erwartet = nummer < 0 ? QString() : u"Notiz %1 "_s.arg(nummer) + QString(int(nummer * 7919 % 40000), u'x');
                QVERIFY2(notizen[i] == erwartet, qPrintable(u"Plant %1 has lost note %2: \"%3\""_s.arg(i).arg(nummer).arg(notizen[i].left(20))));
                QCOMPARE(eigen[i], nummer < 0 ? QString() : QString::number(nummer));
            }
            }();
        return auchUnterwegs;
    }
};

FLOX_TEST(tst_abbruch, TestAbbruch)
#include "tst_abbruch.moc"
