#include "Bildhilfen.h"

#include "pictures/Anzeigebild.h"
#include "pictures/Bildlader.h"
#include "tests/Testprogramm.h"

#include <QElapsedTimer>
#include <QSignalSpy>
#include <QTest>

using namespace Qt::StringLiterals;
using Stand = Anzeigebild::Stand;

/* The kept picture of a window: stages, the file behind it, the thread. */
class TestAnzeigebild : public QObject
{
    Q_OBJECT

private slots:
    void stufen_data()
    {
        QTest::addColumn<double>("anteil");
        QTest::addColumn<QSize>("groesse");
        for (const auto &[anteil, teiler] : {std::pair(3.1, 1), std::pair(1.0, 1), std::pair(0.51, 1), std::pair(0.5, 2), std::pair(0.26, 2),
                                             std::pair(0.25, 4), std::pair(0.125, 8), std::pair(0.01, 8)})
            QTest::addRow("%g", anteil) << anteil << QSize((401 + teiler - 1) / teiler, (300 + teiler - 1) / teiler);
    }
    /// No larger than it must be, no smaller than it is shown.
    void stufen()
    {
        QFETCH(double, anteil);
        QFETCH(QSize, groesse);
        Anzeigebild bild;
        QSignalSpy geaendert(&bild, &Anzeigebild::geaendert);
        const QString datei = ordner_.schreibe(jpeg(gemischt(401, 300, 1)));
        QCOMPARE(bild.anfordern(datei, anteil), Stand::Kommt);
        QVERIFY(bild.bild().isNull());
        QVERIFY(geaendert.wait());
        QCOMPARE(bild.bild().size(), groesse);
        QCOMPARE(bild.anfordern(datei, anteil), Stand::Fertig);
    }

    void jedeStufeEinmal()
    {
        Anzeigebild bild;
        QSignalSpy geaendert(&bild, &Anzeigebild::geaendert);
        const QString datei = ordner_.schreibe(jpeg(gemischt(800, 600, 2)));
        QCOMPARE(bild.anfordern(datei, 0.2), Stand::Kommt);
        QVERIFY(geaendert.wait());
        const qint64 klein = bild.bild().cacheKey();
        // Until the large one is there the small one is shown.
        QCOMPARE(bild.anfordern(datei, 1), Stand::Kommt);
        QCOMPARE(bild.bild().cacheKey(), klein);
        QVERIFY(geaendert.wait());
        QCOMPARE(bild.bild().size(), QSize(800, 600));
        QCOMPARE(abstand(bild.bild(), ladeGanz(datei)), 0);
        QCOMPARE(bild.anfordern(datei, 3), Stand::Fertig);
        QCOMPARE(bild.anfordern(datei, 0.2), Stand::Fertig);
        QCOMPARE(bild.bild().cacheKey(), klein);
        // A stage between is made of the large one.
        QCOMPARE(bild.anfordern(datei, 0.5), Stand::Kommt);
        QCOMPARE(bild.bild().size(), QSize(800, 600));
        QVERIFY(geaendert.wait());
        QCOMPARE(bild.bild().size(), QSize(400, 300));
        QVERIFY(abstand(bild.bild(), ladeTeil(datei, 2)) < 24);
        QCOMPARE(geaendert.count(), 3);
    }

    void dateiAendertSich()
    {
        Anzeigebild bild;
        QSignalSpy geaendert(&bild, &Anzeigebild::geaendert);
        const QString datei = ordner_.schreibe(jpeg(gemischt(80, 60, 3)));
        QCOMPARE(bild.anfordern(datei, 1), Stand::Kommt);
        QVERIFY(geaendert.wait());
        ordner_.schreibe(jpeg(gemischt(90, 60, 3)));
        QCOMPARE(bild.anfordern(datei, 1), Stand::Kommt);
        QVERIFY(bild.bild().isNull());
        QVERIFY(geaendert.wait());
        QCOMPARE(bild.bild().size(), QSize(90, 60));
        // The same bytes with another time are another file.
        QFile zeit(datei);
        QVERIFY(zeit.open(QIODevice::ReadWrite) && zeit.setFileTime(QDateTime::currentDateTime().addSecs(-60), QFileDevice::FileModificationTime));
        zeit.close();
        QCOMPARE(bild.anfordern(datei, 1), Stand::Kommt);
        QVERIFY(geaendert.wait());
        QVERIFY(QFile::remove(datei));
        QCOMPARE(bild.anfordern(datei, 1), Stand::Fehlt);
        QVERIFY(bild.bild().isNull());
    }

    void unlesbar()
    {
        Anzeigebild bild;
        QSignalSpy gescheitert(&bild, &Anzeigebild::gescheitert);
        const QByteArray bytes = jpeg(gemischt(200, 160, 4));
        const QString datei = ordner_.schreibe(bytes.first(bytes.size() / 2));
        QCOMPARE(bild.anfordern(datei, 1), Stand::Kommt);
        QVERIFY(gescheitert.wait());
        QCOMPARE(gescheitert[0][0].toBool(), true);
        QVERIFY(bild.bild().isNull());
        QCOMPARE(bild.anfordern(datei, 1), Stand::Kommt);
        QVERIFY(QFile::remove(datei));
        QVERIFY(gescheitert.wait());
        QCOMPARE(gescheitert[1][0].toBool(), false);
        QCOMPARE(bild.anfordern(QString(), 1), Stand::Fehlt);
    }

    /// Who asks is never held up, and only the last one asked for comes.
    void wartetNie()
    {
        QStringList dateien;
        for (int i = 0; i < 4; ++i)
            dateien += ordner_.schreibe(jpeg(gemischt(3000, 2000, quint32(i))), u"gross%1.jpg"_s.arg(i));
        QElapsedTimer uhr;
        uhr.start();
        QVERIFY(!ladeGanz(dateien[0]).isNull());
        const qint64 einmal = uhr.nsecsElapsed();
        // Another program may hold up one of them.
        qint64 kuerzeste = einmal;
        for (int lauf = 0; lauf < 3; ++lauf) {
            Anzeigebild bild;
            QSignalSpy geaendert(&bild, &Anzeigebild::geaendert);
            uhr.restart();
            for (const QString &datei : dateien)
                QCOMPARE(bild.anfordern(datei, 1), Stand::Kommt);
            kuerzeste = std::min(kuerzeste, uhr.nsecsElapsed());
            QVERIFY(geaendert.wait());
            QCOMPARE(abstand(bild.bild(), ladeGanz(dateien.last())), 0);
            bild.leeren();
            QVERIFY(bild.bild().isNull());
            QVERIFY(!geaendert.wait(50));
        }
        QVERIFY2(kuerzeste < einmal / 2, qPrintable(u"%1 of %2 us"_s.arg(kuerzeste / 1000).arg(einmal / 1000)));
    }

private:
    Bildordner ordner_;
};

FLOX_TEST(tst_anzeigebild, TestAnzeigebild)
#include "tst_anzeigebild.moc"
