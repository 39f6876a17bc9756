#include "Bildhilfen.h"

#include "pictures/cDIBSection.h"
#include "store/Fehler.h"
#include "tests/Testprogramm.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QTest>

#include <set>

using namespace Qt::StringLiterals;

namespace {

/// Bytes of the pixel memory, all rows with their padding.
QByteArray speicher(const cDIBSection &dib)
{
    return QByteArray(reinterpret_cast<const char *>(dib.DIBSectionBitsPtr()), qsizetype(dib.BytesPerScanLine()) * dib.Height());
}

QImage gemalt(const cDIBSection &dib)
{
    QImage bild(dib.Width(), dib.Height(), QImage::Format_RGB32);
    bild.fill(Qt::magenta);
    QPainter maler(&bild);
    dib.PaintPicture(&maler);
    return bild;
}

} // namespace

/* Layout, life and drawing of the bitmap. */
class TestDIBSection : public QObject
{
    Q_OBJECT

private slots:
    void zeilenAufVierBytes_data()
    {
        QTest::addColumn<int>("breite");
        QTest::addColumn<int>("bytes");
        for (const auto &[breite, bytes] : {std::pair(1, 4), std::pair(2, 8), std::pair(3, 12), std::pair(4, 12), std::pair(5, 16)})
            QTest::addRow("%d", breite) << breite << bytes;
    }
    void zeilenAufVierBytes()
    {
        QFETCH(int, breite);
        cDIBSection dib;
        QVERIFY(dib.Create(breite, 3));
        QTEST(dib.BytesPerScanLine(), "bytes");
        QCOMPARE(dib.hDib()->bytesPerLine(), qsizetype(dib.BytesPerScanLine()));
        QCOMPARE(dib.DIBSectionBitsPtr(), dib.hDib()->constBits());
        QCOMPARE(speicher(dib), QByteArray(dib.BytesPerScanLine() * 3, '\0'));
    }

    void untersteZeileZuerst()
    {
        QImage bild(1, 2, QImage::Format_RGB32);
        bild.setPixel(0, 0, qRgb(1, 2, 3));
        bild.setPixel(0, 1, qRgb(4, 5, 6));
        cDIBSection dib;
        dib.CreateFromPicture(bild);
        QCOMPARE(speicher(dib), QByteArray("\x06\x05\x04\x00\x03\x02\x01\x00", 8));
    }

    void leeresObjekt()
    {
        cDIBSection dib;
        dib.ClearUp();
        dib.ClearUp();
        dib.RandomiseBits(true);
        dib.LoadPictureBlt(vierFarben(4, 4));
        dib.PaintPicture(nullptr);
        QVERIFY(!dib.CopyToClipboard(false));
        QVERIFY(!dib.hdc() && !dib.hDib() && !dib.DIBSectionBitsPtr());
        QCOMPARE(QSize(dib.Width(), dib.Height()), QSize(0, 0));
        QCOMPARE(dib.BytesPerScanLine(), 0);
    }

    void aufraeumenZweimal()
    {
        cDIBSection dib;
        QVERIFY(dib.Create(7, 5));
        QVERIFY(dib.hdc() && dib.hDib() && dib.DIBSectionBitsPtr());
        dib.ClearUp();
        dib.ClearUp();
        QVERIFY(!dib.hdc() && !dib.hDib() && !dib.DIBSectionBitsPtr());
    }

    void neuAufGebrauchtem()
    {
        cDIBSection dib;
        dib.CreateFromPicture(vierFarben(8, 8));
        QVERIFY(dib.Create(4, 2));
        QCOMPARE(QSize(dib.Width(), dib.Height()), QSize(4, 2));
        QCOMPARE(speicher(dib), QByteArray(24, '\0'));
        QCOMPARE(dib.hdc()->device(), const_cast<QImage *>(dib.hDib()));
        QVERIFY(!dib.Create(0, 2));
        QVERIFY(!dib.hdc() && !dib.hDib() && !dib.DIBSectionBitsPtr());
    }

    void unmoeglicheGroessen()
    {
        cDIBSection dib;
        QVERIFY(!dib.Create(0, 0));
        QVERIFY(!dib.Create(-3, 4));
        QVERIFY(!dib.Create(3, -4));
        QVERIFY(!dib.Create(60000, 60000)); // more than 2 GiB
        QVERIFY(!dib.Create(715827881, 2));
        QVERIFY_THROWS_EXCEPTION(Fehler, (void)dib.Create(715827882, 1));
        QVERIFY_THROWS_EXCEPTION(Fehler, dib.BytesPerScanLine());
        QVERIFY(!dib.hdc() && !dib.hDib() && !dib.DIBSectionBitsPtr());
        dib.CreateFromPicture(QImage());
        QVERIFY(!dib.hDib());
        QVERIFY(dib.Create(1, 1));
    }

    void griffFuerDenRufer()
    {
        cDIBSection dib;
        std::unique_ptr<QImage> griff;
        QVERIFY(dib.CreateDIB(nullptr, 5, 2, griff));
        QCOMPARE(griff->size(), QSize(5, 2));
        QCOMPARE(dib.DIBSectionBitsPtr(), griff->constBits());
        QVERIFY(!dib.hDib());
    }

    void gemaltWieGeladen()
    {
        const QImage bild = gemischt(13, 9, 1);
        cDIBSection dib;
        dib.CreateFromPicture(bild);
        QCOMPARE(gemalt(dib), bild);
        dib.CreateFromPicture(bild.convertToFormat(QImage::Format_Grayscale8));
        QCOMPARE(gemalt(dib), bild.convertToFormat(QImage::Format_Grayscale8).convertToFormat(QImage::Format_RGB32));
    }

    void teilBild()
    {
        const QImage bild = gemischt(10, 8, 2);
        cDIBSection dib;
        QVERIFY(dib.Create(4, 4));
        dib.LoadPictureBlt(bild, 7, 6);
        QImage erwartet(4, 4, QImage::Format_RGB32);
        erwartet.fill(Qt::black);
        for (int y = 0; y < 2; ++y)
            for (int x = 0; x < 3; ++x)
                erwartet.setPixel(x, y, bild.pixel(x + 7, y + 6));
        QCOMPARE(gemalt(dib), erwartet);
        dib.LoadPictureBlt(bild, 1, 2, 2, 1);
        erwartet.setPixel(0, 0, bild.pixel(1, 2));
        erwartet.setPixel(1, 0, bild.pixel(2, 2));
        QCOMPARE(gemalt(dib), erwartet);
        dib.LoadPictureBlt(bild, -3, -3);
        erwartet.setPixel(3, 3, bild.pixel(0, 0));
        QCOMPARE(gemalt(dib), erwartet);
        dib.LoadPictureBlt(bild, 50, 50);
        QCOMPARE(gemalt(dib), erwartet);
    }

    void teilMalen()
    {
        const QImage bild = gemischt(10, 8, 3);
        cDIBSection dib;
        dib.CreateFromPicture(bild);
        QImage ziel(6, 6, QImage::Format_RGB32), erwartet(6, 6, QImage::Format_RGB32);
        ziel.fill(Qt::white);
        erwartet.fill(Qt::white);
        QPainter maler(&ziel);
        dib.PaintPicture(&maler, 1, 2, 3, 2, 4, 5);
        for (int y = 0; y < 2; ++y)
            for (int x = 0; x < 3; ++x)
                erwartet.setPixel(1 + x, 2 + y, bild.pixel(4 + x, 5 + y));
        QCOMPARE(ziel, erwartet);
        dib.PaintPicture(&maler, 0, 0, -1, -1, 9, 7);
        erwartet.setPixel(0, 0, bild.pixel(9, 7));
        QCOMPARE(ziel, erwartet);
    }

    void rasteroperationen_data()
    {
        QTest::addColumn<quint32>("rasterop");
        QTest::addColumn<QRgb>("ergebnis"); // of source f0cc00 and target aa5533
        QTest::newRow("SRCCOPY") << quint32(cDIBSection::SRCCOPY) << qRgb(0xF0, 0xCC, 0x00);
        QTest::newRow("SRCPAINT") << quint32(cDIBSection::SRCPAINT) << qRgb(0xFA, 0xDD, 0x33);
        QTest::newRow("SRCAND") << quint32(cDIBSection::SRCAND) << qRgb(0xA0, 0x44, 0x00);
        QTest::newRow("SRCINVERT") << quint32(cDIBSection::SRCINVERT) << qRgb(0x5A, 0x99, 0x33);
        QTest::newRow("SRCERASE") << quint32(cDIBSection::SRCERASE) << qRgb(0x50, 0x88, 0x00);
        QTest::newRow("NOTSRCCOPY") << quint32(cDIBSection::NOTSRCCOPY) << qRgb(0x0F, 0x33, 0xFF);
        QTest::newRow("NOTSRCERASE") << quint32(cDIBSection::NOTSRCERASE) << qRgb(0x05, 0x22, 0xCC);
        QTest::newRow("MERGEPAINT") << quint32(cDIBSection::MERGEPAINT) << qRgb(0xAF, 0x77, 0xFF);
        QTest::newRow("DSTINVERT") << quint32(cDIBSection::DSTINVERT) << qRgb(0x55, 0xAA, 0xCC);
        QTest::newRow("BLACKNESS") << quint32(cDIBSection::BLACKNESS) << qRgb(0, 0, 0);
        QTest::newRow("WHITENESS") << quint32(cDIBSection::WHITENESS) << qRgb(255, 255, 255);
        QTest::newRow("unbekannt") << quint32(0x12345678) << qRgb(0xAA, 0x55, 0x33);
    }
    void rasteroperationen()
    {
        QFETCH(quint32, rasterop);
        QFETCH(QRgb, ergebnis);
        QImage quelle(3, 2, QImage::Format_RGB32), ziel = quelle;
        quelle.fill(qRgb(0xF0, 0xCC, 0x00));
        ziel.fill(qRgb(0xAA, 0x55, 0x33));
        cDIBSection dib;
        dib.CreateFromPicture(ziel);
        dib.LoadPictureBlt(quelle, 0, 0, -1, -1, rasterop);
        QCOMPARE(gemalt(dib).pixel(2, 1), ergebnis);
        dib.CreateFromPicture(quelle);
        QPainter maler(&ziel);
        dib.PaintPicture(&maler, 0, 0, -1, -1, 0, 0, rasterop);
        QCOMPARE(ziel.pixel(2, 1), ergebnis);
    }

    void maltMitHdc()
    {
        cDIBSection dib;
        QVERIFY(dib.Create(3, 3));
        dib.hdc()->fillRect(QRect(0, 0, 2, 1), QColor(10, 20, 30));
        QImage erwartet(3, 3, QImage::Format_RGB32);
        erwartet.fill(Qt::black);
        erwartet.setPixel(0, 0, qRgb(10, 20, 30));
        erwartet.setPixel(1, 0, qRgb(10, 20, 30));
        QCOMPARE(gemalt(dib), erwartet);
    }

    void rauschen()
    {
        cDIBSection dib;
        QVERIFY(dib.Create(31, 40));
        const int zeile = dib.BytesPerScanLine();
        dib.RandomiseBits(false);
        std::set<uchar> gruen, rot;
        for (int y = 0; y < 40; ++y)
            for (int x = 0; x < 31; ++x) {
                const uchar *bgr = dib.DIBSectionBitsPtr() + y * zeile + x * 3;
                QCOMPARE(bgr[0], uchar(0));
                gruen.insert(bgr[1]);
                rot.insert(bgr[2]);
            }
        QVERIFY(gruen.size() > 200 && rot.size() > 200);
        dib.RandomiseBits(true);
        gruen.clear();
        for (int y = 0; y < 40; ++y) {
            for (int x = 0; x < 31; ++x) {
                const uchar *bgr = dib.DIBSectionBitsPtr() + y * zeile + x * 3;
                QVERIFY(bgr[0] == bgr[1] && bgr[1] == bgr[2]);
                gruen.insert(bgr[1]);
            }
            for (int rest = 93; rest < zeile; ++rest)
                QCOMPARE(dib.DIBSectionBitsPtr()[y * zeile + rest], uchar(0));
        }
        QVERIFY(gruen.size() > 200);
    }

    void zwischenablage()
    {
        QGuiApplication::clipboard()->setText(u"bleibt"_s);
        QStringList gemeldet;
        cDIBSection dib;
        dib.CreateFromPicture(vierFarben(6, 4));
        QVERIFY(!dib.CopyToClipboard(true)); // nobody listens
        cDIBSection::Meldung = [&](const QString &text) { gemeldet.append(text); };
        QVERIFY(!dib.CopyToClipboard(true));
        cDIBSection::Meldung = nullptr;
        QCOMPARE(gemeldet, QStringList(u"Noch nicht verfügbar!"_s));
        QCOMPARE(QGuiApplication::clipboard()->text(), u"bleibt"_s);
        QVERIFY(dib.CopyToClipboard(false));
        QCOMPARE(QGuiApplication::clipboard()->image().convertToFormat(QImage::Format_RGB32), vierFarben(6, 4));
    }
};

FLOX_TEST(tst_cdibsection, TestDIBSection)
#include "tst_cdibsection.moc"
