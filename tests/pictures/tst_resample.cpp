#include "Bildhilfen.h"

#include "pictures/cDIBSection.h"
#include "store/Fehler.h"
#include "tests/Testprogramm.h"

#include <QTest>

#include <cmath>

namespace {

/// Values of one channel, the row that comes first in memory first.
using Werte = std::vector<std::vector<int>>;

void fuelle(cDIBSection &dib, int kanal, const Werte &werte)
{
    for (size_t y = 0; y < werte.size(); ++y)
        for (size_t x = 0; x < werte[y].size(); ++x)
            dib.DIBSectionBitsPtr()[y * size_t(dib.BytesPerScanLine()) + x * 3 + size_t(kanal)] = uchar(werte[y][x]);
}

Werte gelesen(const cDIBSection &dib, int kanal)
{
    Werte werte(size_t(dib.Height()), std::vector<int>(size_t(dib.Width())));
    for (size_t y = 0; y < werte.size(); ++y)
        for (size_t x = 0; x < werte[y].size(); ++x)
            werte[y][x] = dib.DIBSectionBitsPtr()[y * size_t(dib.BytesPerScanLine()) + x * 3 + size_t(kanal)];
    return werte;
}

std::unique_ptr<cDIBSection> bitmap(const Werte &blau, const Werte &gruen, const Werte &rot)
{
    auto dib = std::make_unique<cDIBSection>();
    if (!dib->Create(qint32(blau[0].size()), qint32(blau.size())))
        qFatal("The bitmap cannot be made.");
    fuelle(*dib, 0, blau);
    fuelle(*dib, 1, gruen);
    fuelle(*dib, 2, rot);
    return dib;
}

} // namespace

Q_DECLARE_METATYPE(Werte)

/* Pixels of Resample, computed by hand. */
class TestResample : public QObject
{
    Q_OBJECT

private slots:
    void einKanal_data()
    {
        QTest::addColumn<Werte>("quelle");
        QTest::addColumn<Werte>("ziel");
        // Step 1/4 each way; 130.5, 90.5 and the like go to the even neighbour, after each of the passes.
        QTest::newRow("2x2 to 4x4, a") << Werte{{10, 110}, {50, 151}}
                                       << Werte{{10, 35, 60, 85}, {20, 45, 70, 95}, {30, 55, 80, 105}, {40, 65, 90, 116}};
        QTest::newRow("2x2 to 4x4, b") << Werte{{20, 120}, {60, 255}}
                                       << Werte{{20, 45, 70, 95}, {30, 61, 92, 123}, {40, 77, 114, 151}, {50, 93, 136, 178}};
        QTest::newRow("2x2 to 4x4, c") << Werte{{30, 130}, {70, 0}} << Werte{{30, 55, 80, 105}, {40, 54, 69, 84}, {50, 54, 58, 61}, {60, 53, 46, 39}};
        // Step 3/2: halving takes the middle between two pixels.
        QTest::newRow("4x4 to 2x2") << Werte{{0, 10, 20, 30}, {40, 50, 60, 70}, {80, 90, 100, 110}, {120, 130, 140, 150}} << Werte{{0, 15}, {60, 75}};
        QTest::newRow("3x3 to 2x2") << Werte{{1, 2, 3}, {4, 5, 6}, {7, 8, 9}} << Werte{{1, 2}, {4, 5}};
        QTest::newRow("5x2 to 3x3") << Werte{{0, 30, 60, 90, 120}, {9, 39, 69, 99, 129}} << Werte{{0, 40, 80}, {3, 43, 83}, {6, 46, 86}};
        QTest::newRow("2x4 to 4x2") << Werte{{0, 100}, {10, 110}, {30, 130}, {200, 220}} << Werte{{0, 25, 50, 75}, {20, 45, 70, 95}};
        QTest::newRow("4x2 to 1x1") << Werte{{77, 1, 2, 3}, {4, 5, 6, 7}} << Werte{{77}};
        QTest::newRow("2x2 to 3x1") << Werte{{0, 255}, {9, 9}} << Werte{{0, 85, 170}};
        QTest::newRow("same width") << Werte{{8, 4}, {0, 6}, {200, 100}} << Werte{{8, 6}, {0, 3}};
    }
    void einKanal()
    {
        QFETCH(Werte, quelle);
        QFETCH(Werte, ziel);
        const Werte leer(quelle.size(), std::vector<int>(quelle[0].size()));
        for (int kanal = 0; kanal < 3; ++kanal) {
            const auto dib = bitmap(kanal == 0 ? quelle : leer, kanal == 1 ? quelle : leer, kanal == 2 ? quelle : leer);
            const auto neu = dib->Resample(qint32(ziel.size()), qint32(ziel[0].size()));
            QVERIFY(neu);
            const Werte nichts(ziel.size(), std::vector<int>(ziel[0].size()));
            for (int c = 0; c < 3; ++c)
                QCOMPARE(gelesen(*neu, c), c == kanal ? ziel : nichts);
            QCOMPARE(gelesen(*dib, kanal), quelle);
        }
    }

    void gleicheGroesseIstKopie()
    {
        cDIBSection dib;
        QVERIFY(dib.Create(5, 7));
        dib.RandomiseBits(false);
        const auto neu = dib.Resample(7, 5);
        QVERIFY(neu && neu->DIBSectionBitsPtr() != dib.DIBSectionBitsPtr());
        QCOMPARE(*neu->hDib(), *dib.hDib());
        for (const QSize groesse : {QSize(1, 1), QSize(1, 6), QSize(6, 1)}) {
            QVERIFY(dib.Create(groesse.width(), groesse.height()));
            dib.RandomiseBits(true);
            QCOMPARE(*dib.Resample(groesse.height(), groesse.width())->hDib(), *dib.hDib());
        }
    }

    void zuSchmaleQuelle()
    {
        cDIBSection dib;
        QVERIFY_THROWS_EXCEPTION(Fehler, (void)dib.Resample(3, 3));
        for (const QSize groesse : {QSize(1, 1), QSize(1, 6), QSize(6, 1)}) {
            QVERIFY(dib.Create(groesse.width(), groesse.height()));
            QVERIFY_THROWS_EXCEPTION(Fehler, (void)dib.Resample(3, 3));
        }
        QVERIFY(dib.Create(2, 2));
        QVERIFY(dib.Resample(1, 1));
    }

    void zielNichtMoeglich()
    {
        cDIBSection dib;
        QVERIFY(dib.Create(4, 4));
        QVERIFY(!dib.Resample(0, 4));
        QVERIFY(!dib.Resample(4, -1));
        QVERIFY(!dib.Resample(60000, 60000));
    }

    /// All pixels of odd ratios against the steps written out plainly.
    void wieAusgeschrieben()
    {
        cDIBSection dib;
        for (const auto &[von, nach] :
             {std::pair(QSize(37, 23), QSize(100, 61)), std::pair(QSize(101, 67), QSize(13, 9)), std::pair(QSize(50, 3), QSize(7, 90))}) {
            dib.CreateFromPicture(gemischt(von.width(), von.height(), 5));
            const auto neu = dib.Resample(nach.height(), nach.width());
            const float schrittX = float(von.width() - 1) / float(nach.width());
            const float schrittY = float(von.height() - 1) / float(nach.height());
            for (int kanal = 0; kanal < 3; ++kanal) {
                const Werte quelle = gelesen(dib, kanal), ziel = gelesen(*neu, kanal);
                for (int y = 0; y < nach.height(); ++y)
                    for (int x = 0; x < nach.width(); ++x) {
                        const float yf = float(y) * schrittY, xf = float(x) * schrittX;
                        const size_t yi = size_t(yf), xi = size_t(xf);
                        const float dy = yf - float(yi), dx = xf - float(xi);
                        const float links = std::nearbyint((1 - dy) * float(quelle[yi][xi]) + dy * float(quelle[yi + 1][xi]));
                        const float rechts = std::nearbyint((1 - dy) * float(quelle[yi][xi + 1]) + dy * float(quelle[yi + 1][xi + 1]));
                        QCOMPARE(ziel[size_t(y)][size_t(x)], int(std::nearbyint((1 - dx) * links + dx * rechts)));
                    }
            }
        }
    }
};

FLOX_TEST(tst_resample, TestResample)
#include "tst_resample.moc"
