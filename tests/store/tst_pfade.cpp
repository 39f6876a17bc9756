#include "store/Pfade.h"
#include "tests/Testprogramm.h"

#include <QDir>
#include <QElapsedTimer>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

void schreiben(const QString &pfad)
{
    QFile datei(pfad);
    if (!datei.open(QIODevice::WriteOnly) || datei.write("x") != 1)
        qFatal("cannot write the test file");
}

qint64 bestzeit(const std::function<void()> &handlung)
{
    qint64 beste = std::numeric_limits<qint64>::max();
    for (int lauf = 0; lauf < 5; ++lauf) {
        QElapsedTimer uhr;
        uhr.start();
        handlung();
        beste = std::min(beste, uhr.nsecsElapsed());
    }
    return beste;
}

} // namespace

/* Looking for files in folders that change, and in large ones. */
class TestPfade : public QObject
{
    Q_OBJECT

private slots:
    /// What comes, changes its case or goes is seen, also right after a look that failed.
    void ordnerAendertSich()
    {
        const QTemporaryDir ordner;
        const QString gesucht = ordner.filePath(u"begonia-rex.jpg"_s), anders = ordner.filePath(u"Begonia-Rex.JPG"_s);
        QVERIFY(!dateiVorhanden(gesucht));
        schreiben(anders);
        QTRY_VERIFY(dateiVorhanden(gesucht));
        QCOMPARE(systemPfad(gesucht), anders);
        schreiben(gesucht);
        QCOMPARE(systemPfad(gesucht), gesucht);
        QVERIFY(QFile::remove(gesucht) && QFile::remove(anders));
        QVERIFY(!dateiVorhanden(gesucht));
        QCOMPARE(systemPfad(gesucht), gesucht);
    }

    void ordnerGehtUndKommt()
    {
        const QTemporaryDir ordner;
        const QString bilder = ordner.filePath(u"bilder"_s), fort = ordner.filePath(u"fort"_s);
        QVERIFY(QDir().mkdir(bilder));
        schreiben(bilder + u"/BEG.jpg"_s);
        QVERIFY(dateiVorhanden(bilder + u"\\beg*"_s) && dateiVorhanden(bilder + u"\\beg.jpg"_s));
        QVERIFY(QDir().rename(bilder, fort));
        QVERIFY(!dateiVorhanden(bilder + u"\\beg*"_s) && !dateiVorhanden(bilder + u"\\beg.jpg"_s));
        QVERIFY(QDir().rename(fort, bilder));
        QVERIFY(dateiVorhanden(bilder + u"\\beg*"_s) && dateiVorhanden(bilder + u"\\beg.jpg"_s));
        QVERIFY(QFile::rename(bilder + u"/BEG.jpg"_s, bilder + u"/begonia.jpg"_s));
        QVERIFY(dateiVorhanden(bilder + u"\\beg*"_s));
        QVERIFY(QFile::remove(bilder + u"/begonia.jpg"_s));
        QVERIFY(!dateiVorhanden(bilder + u"\\beg*"_s));
    }

    /// Of two names that differ from the wanted one in case only it is always the same.
    void zweiAndereSchreibungen()
    {
        const QTemporaryDir ordner;
        schreiben(ordner.filePath(u"rex.JPG"_s));
        schreiben(ordner.filePath(u"REX.jpg"_s));
        QCOMPARE(systemPfad(ordner.filePath(u"rex.jpg"_s)), ordner.filePath(u"REX.jpg"_s));
    }

    /// The look for six missing files costs about as much as reading the folder once, and two samples in it nothing that counts.
    void sechsFehlendeInGrossemOrdner()
    {
        const QTemporaryDir ordner;
        for (int i = 0; i < 5300; ++i)
            schreiben(ordner.filePath(u"pflanze-%1.jpg"_s.arg(i)));
        schreiben(ordner.filePath(u"beg.jpg"_s));
        const qint64 einmal =
            bestzeit([&] { QCOMPARE(QDir(ordner.path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot).size(), 5301); });
        int lauf = 0;
        const qint64 schritt = bestzeit([&] {
            ++lauf;
            schreiben(ordner.filePath(u"neu-%1.jpg"_s.arg(lauf))); // so that nothing of the run before helps
            for (int i = 0; i < 6; ++i)
                QVERIFY(!dateiVorhanden(ordner.filePath(u"fehlt-%1-%2.jpg"_s.arg(lauf).arg(i))));
            QVERIFY(dateiVorhanden(ordner.filePath(u"beg*"_s)));
        });
        QVERIFY2(schritt < 2 * einmal, qPrintable(u"%1 us, the folder once %2 us"_s.arg(schritt / 1000).arg(einmal / 1000)));
    }
};

FLOX_TEST(tst_pfade, TestPfade)
#include "tst_pfade.moc"
