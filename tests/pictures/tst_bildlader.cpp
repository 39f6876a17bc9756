#include "Bildhilfen.h"

#include "pictures/Bildlader.h"
#include "pictures/Flaechenmittel.h"
#include "tests/Testprogramm.h"

#include <QBuffer>
#include <QFile>
#include <QImageReader>
#include <QPainter>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

QByteArray alsDatei(const QImage &bild, const char *format)
{
    QByteArray bytes;
    QBuffer puffer(&bytes);
    puffer.open(QIODevice::WriteOnly);
    bild.save(&puffer, format);
    return bytes;
}

/// Mean of every covered area, written out plainly in floating point.
QImage mittelAusgeschrieben(const QImage &bild, QSize groesse)
{
    QImage ziel(groesse, bild.format());
    const double breite = double(bild.width()) / groesse.width(), hoehe = double(bild.height()) / groesse.height();
    for (int y = 0; y < groesse.height(); ++y)
        for (int x = 0; x < groesse.width(); ++x) {
            double summe[4] = {};
            for (int v = int(y * hoehe); v < std::min(bild.height(), int((y + 1) * hoehe) + 1); ++v)
                for (int u = int(x * breite); u < std::min(bild.width(), int((x + 1) * breite) + 1); ++u) {
                    const double flaeche = (std::min(u + 1.0, (x + 1) * breite) - std::max(double(u), x * breite))
                                           * (std::min(v + 1.0, (y + 1) * hoehe) - std::max(double(v), y * hoehe));
                    for (int c = 0; c < 4; ++c)
                        summe[c] += std::max(0.0, flaeche) * bild.constScanLine(v)[u * 4 + c];
                }
            for (int c = 0; c < 4; ++c)
                ziel.scanLine(y)[x * 4 + c] = uchar(summe[c] / (breite * hoehe) + 0.5);
        }
    return ziel;
}

} // namespace

/* Pictures that can be read: size, scale, turn, formats. */
class TestBildlader : public QObject
{
    Q_OBJECT

private slots:
    void passtEin_data()
    {
        QTest::addColumn<QSize>("bild");
        QTest::addColumn<QSize>("kasten");
        QTest::addColumn<QSize>("ergebnis");
        QTest::newRow("4:3") << QSize(4000, 3000) << QSize(133, 100) << QSize(133, 100);
        QTest::newRow("wide") << QSize(4000, 1000) << QSize(133, 100) << QSize(133, 33);
        QTest::newRow("tall") << QSize(1000, 4000) << QSize(133, 100) << QSize(25, 100);
        QTest::newRow("enlarged") << QSize(40, 30) << QSize(400, 400) << QSize(400, 300);
        QTest::newRow("a line") << QSize(3, 5000) << QSize(133, 100) << QSize(1, 100);
        QTest::newRow("no picture") << QSize(0, 10) << QSize(133, 100) << QSize();
        QTest::newRow("no box") << QSize(10, 10) << QSize(0, 100) << QSize();
    }
    void passtEin()
    {
        QFETCH(QSize, bild);
        QFETCH(QSize, kasten);
        QTEST(einpassen(bild, kasten), "ergebnis");
    }

    void mittelVonHand()
    {
        // 3 pixels to 2: each target pixel covers one and a half.
        QImage bild(3, 1, QImage::Format_ARGB32_Premultiplied);
        bild.setPixel(0, 0, 0xFF000000);
        bild.setPixel(1, 0, 0xFF1E3C5A);
        bild.setPixel(2, 0, 0xFFFFFFFF);
        const QImage halb = flaechenmittel(bild, {2, 1});
        QCOMPARE(halb.pixel(0, 0), 0xFF0A141Eu); // a third of the middle one
        QCOMPARE(halb.pixel(1, 0), 0xFFB4BEC8u); // two thirds of 255 and a third of the middle one
        QCOMPARE(flaechenmittel(bild, {3, 1}), bild);
    }

    void mittelAllerGroessen()
    {
        const QImage bild = gemischt(97, 61, 7);
        for (const QSize groesse : {QSize(1, 1), QSize(96, 60), QSize(97, 1), QSize(13, 7), QSize(50, 61), QSize(48, 30)})
            QVERIFY(abstand(flaechenmittel(bild, groesse), mittelAusgeschrieben(bild, groesse)) == 0);
    }

    void ganzWieAndereLeser()
    {
        const QImage bild = gemischt(123, 77, 8);
        for (const Jpegart art : {Jpegart::Einfach, Jpegart::Fortschreitend, Jpegart::Grau}) {
            const QString pfad = ordner_.schreibe(jpeg(bild, art));
            QCOMPARE(bildgroesse(pfad), bild.size());
            QVERIFY(abstand(ladeGanz(pfad), QImage(pfad).convertToFormat(QImage::Format_RGB32)) <= 1);
        }
    }

    void skaliertNahAmMittel()
    {
        // All scales of the decoder, down to a fit and up.
        const QImage bild = gemischt(400, 300, 9);
        const QString pfad = ordner_.schreibe(jpeg(bild, Jpegart::Einfach, 100));
        for (const int breite : {40, 50, 51, 90, 133, 140, 190, 210, 260, 310, 360, 399, 400}) {
            const QImage klein = ladeSkaliert(pfad, {breite, 1000});
            QCOMPARE(klein.size(), einpassen(bild.size(), {breite, 1000}));
            QVERIFY2(abstand(klein, flaechenmittel(bild, klein.size())) < 40, QByteArray::number(breite));
        }
        QCOMPARE(ladeSkaliert(pfad, {1000, 600}).size(), QSize(800, 600));
        QCOMPARE(ladeSkaliert(pfad, {1, 1}).size(), QSize(1, 1));
        QVERIFY(ladeSkaliert(pfad, {0, 100}).isNull());
        QVERIFY(ladeSkaliert(pfad, {}).isNull());
    }

    void gleichmaessigBleibtGleich()
    {
        QImage bild(1000, 700, QImage::Format_RGB32);
        bild.fill(qRgb(90, 140, 60));
        const QString pfad = ordner_.schreibe(jpeg(bild));
        const QImage klein = ladeSkaliert(pfad, {133, 100});
        QImage erwartet(klein.size(), QImage::Format_RGB32);
        erwartet.fill(qRgb(90, 140, 60));
        QVERIFY(abstand(klein, erwartet) <= 2);
    }

    void tinten()
    {
        QImage bild(64, 48, QImage::Format_RGB32);
        bild.fill(qRgb(200, 100, 50));
        const QString pfad = ordner_.schreibe(jpeg(bild, Jpegart::Tinten));
        QVERIFY(abstand(ladeGanz(pfad), bild) <= 3);
        QVERIFY(abstand(ladeSkaliert(pfad, {32, 24}), bild.copy(0, 0, 32, 24)) <= 3);
    }

    void lage_data()
    {
        QTest::addColumn<int>("orientierung");
        QTest::addColumn<QString>("ecken"); // top left, top right, bottom left, bottom right of red green blue yellow
        QTest::newRow("1") << 1 << u"rgby"_s;
        QTest::newRow("2") << 2 << u"gryb"_s;
        QTest::newRow("3") << 3 << u"ybgr"_s;
        QTest::newRow("4") << 4 << u"byrg"_s;
        QTest::newRow("5") << 5 << u"rbgy"_s;
        QTest::newRow("6") << 6 << u"bryg"_s;
        QTest::newRow("7") << 7 << u"ygbr"_s;
        QTest::newRow("8") << 8 << u"gyrb"_s;
        QTest::newRow("0") << 0 << u"rgby"_s;
        QTest::newRow("9") << 9 << u"rgby"_s;
    }
    void lage()
    {
        QFETCH(int, orientierung);
        QFETCH(QString, ecken);
        const QByteArray bytes = jpeg(vierFarben(64, 32));
        const bool quer = orientierung >= 5 && orientierung <= 8;
        for (const bool grossesEnde : {false, true}) {
            const QString pfad = ordner_.schreibe(mitExif(bytes, orientierung, grossesEnde));
            const QSize groesse = quer ? QSize(32, 64) : QSize(64, 32);
            QCOMPARE(bildgroesse(pfad), groesse);
            const QImage ganz = ladeGanz(pfad), klein = ladeSkaliert(pfad, {16, 16});
            QCOMPARE(ganz.size(), groesse);
            QCOMPARE(klein.size(), quer ? QSize(8, 16) : QSize(16, 8));
            QCOMPARE(eckfarben(ganz), ecken);
            QCOMPARE(eckfarben(klein), ecken);
            QImageReader reader(pfad);
            reader.setAutoTransform(true);
            QVERIFY(abstand(reader.read().convertToFormat(QImage::Format_RGB32), ganz) <= 1);
        }
    }

    void andereFormate()
    {
        QImage bild = vierFarben(60, 40);
        for (const auto &[format, name] : {std::pair("png", u"a.png"_s), std::pair("bmp", u"a.bmp"_s), std::pair("png", u"falsch.jpg"_s)}) {
            const QString pfad = ordner_.schreibe(alsDatei(bild, format), name);
            QCOMPARE(bildgroesse(pfad), bild.size());
            QCOMPARE(ladeGanz(pfad), bild);
            QCOMPARE(ladeSkaliert(pfad, {30, 30}), vierFarben(30, 20));
        }
        const QByteArray gif("GIF89a\x02\x00\x01\x00\x80\x00\x00\xFF\x00\x00\x00\x00\xFF\x2C\x00\x00\x00\x00\x02\x00\x01\x00\x00"
                             "\x02\x02\x44\x0A\x00\x3B",
                             35);
        const QString pfad = ordner_.schreibe(gif, u"keinbild.gif"_s);
        QCOMPARE(bildgroesse(pfad), QSize(2, 1));
        QCOMPARE(ladeGanz(pfad).size(), QSize(2, 1));
        QCOMPARE(ladeSkaliert(pfad, {20, 20}).size(), QSize(20, 10));
    }

    void durchsichtig()
    {
        QImage bild(40, 40, QImage::Format_ARGB32);
        bild.fill(Qt::transparent);
        for (int y = 0; y < 40; ++y)
            for (int x = 0; x < 20; ++x)
                bild.setPixel(x, y, 0xFF00FF00);
        const QString pfad = ordner_.schreibe(alsDatei(bild, "png"), u"a.png"_s);
        const QImage klein = ladeSkaliert(pfad, {1, 1});
        QCOMPARE(klein.pixelColor(0, 0), QColor(0, 255, 0, 128));
    }

    void vektorbild()
    {
        const QByteArray svg("<svg xmlns='http://www.w3.org/2000/svg' width='40' height='20'><rect width='40' height='20' fill='#f00'/></svg>");
        const QString pfad = ordner_.schreibe(svg, u"a.SVG"_s);
        QCOMPARE(bildgroesse(pfad), QSize(40, 20));
        const QImage gross = ladeSkaliert(pfad, {400, 400});
        QCOMPARE(gross.size(), QSize(400, 200));
        QCOMPARE(gross.pixelColor(200, 100), QColor(Qt::red));
        QCOMPARE(ladeGanz(pfad).size(), QSize(40, 20));
    }

    void grossesFoto()
    {
        QImage bild(8000, 6000, QImage::Format_RGB888);
        for (int y = 0; y < bild.height(); ++y)
            std::fill_n(bild.scanLine(y), bild.bytesPerLine(), uchar(y / 32));
        for (const char *format : {"jpg", "png"}) {
            const QString pfad = ordner_.schreibe(alsDatei(bild, format), u"foto.jpg"_s);
            QCOMPARE(bildgroesse(pfad), bild.size());
            const QImage ganz = ladeGanz(pfad);
            QCOMPARE(ganz.size(), bild.size());
            QVERIFY(std::abs(qGray(ganz.pixel(7999, 5999)) - 5999 / 32) <= 2);
            QCOMPARE(ladeSkaliert(pfad, {133, 100}).size(), QSize(133, 100));
        }
    }

    void schreibweiseDesPfades()
    {
        ordner_.schreibe(jpeg(vierFarben(16, 16)), u"Begonia-Rex.JPG"_s);
        QCOMPARE(bildgroesse(ordner_.pfad(u""_s) + u"\\begonia-rex.jpg"_s), QSize(16, 16));
    }

private:
    static QString eckfarben(const QImage &bild)
    {
        const auto buchstabe = [&](int x, int y) {
            const QColor farbe = bild.pixelColor(x, y);
            return farbe.red() > 128 ? (farbe.green() > 128 ? u'y' : u'r') : farbe.green() > 128 ? u'g' : u'b';
        };
        const int rechts = bild.width() - 2, unten = bild.height() - 2;
        return QString() + buchstabe(1, 1) + buchstabe(rechts, 1) + buchstabe(1, unten) + buchstabe(rechts, unten);
    }

    Bildordner ordner_;
};

FLOX_TEST(tst_bildlader, TestBildlader)
#include "tst_bildlader.moc"
