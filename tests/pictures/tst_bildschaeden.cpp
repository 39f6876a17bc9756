#include "Bildhilfen.h"

#include "pictures/Bildlader.h"
#include "tests/Testprogramm.h"

#include <QBuffer>
#include <QDir>
#include <QElapsedTimer>
#include <QLoggingCategory>
#include <QRandomGenerator>
#include <QTest>
#include <QtEndian>

#ifdef Q_OS_UNIX
#include <sys/stat.h>
#endif

using namespace Qt::StringLiterals;

/* Files under a picture's name that are none, or a damaged one. */
class TestBildschaeden : public QObject
{
    Q_OBJECT

private slots:
    void keinBild_data()
    {
        QTest::addColumn<QByteArray>("inhalt");
        QTest::newRow("empty") << QByteArray();
        QTest::newRow("text") << QByteArray("Begonia rex, Königsbegonie\n").repeated(50);
        QTest::newRow("text that starts like a bitmap") << QByteArray("BM ist kein Bild\n").repeated(50);
        QTest::newRow("vector picture") << QByteArray("<svg xmlns='http://www.w3.org/2000/svg' width='4' height='4'/>");
        QTest::newRow("start marker") << QByteArray("\xFF\xD8");
        QTest::newRow("markers only") << QByteArray("\xFF\xD8\xFF\xD9");
        QTest::newRow("fill bytes") << "\xFF\xD8" + QByteArray(100000, '\xFF');
        QTest::newRow("zeros") << "\xFF\xD8" + QByteArray(100000, '\0');
        QTest::newRow("short segment") << QByteArray("\xFF\xD8\xFF\xE1\x00\x01\xFF\xD9", 8);
        QTest::newRow("segment beyond the end") << QByteArray("\xFF\xD8\xFF\xE1\xFF\xFF\x45\x78", 8);
        QTest::newRow("heads of other formats") << QByteArray("\x89PNG\r\n\x1A\n");
        QTest::newRow("head of a GIF") << QByteArray("GIF89a");
    }
    void keinBild()
    {
        QFETCH(QByteArray, inhalt);
        const QString pfad = ordner_.schreibe(inhalt);
        QCOMPARE(bildgroesse(pfad), QSize());
        QVERIFY(unlesbar(pfad));
    }

    void keineDatei()
    {
        QDir().mkdir(ordner_.pfad(u"ordner.jpg"_s));
        for (const QString &pfad : {QString(), ordner_.pfad(u"fehlt.jpg"_s), ordner_.pfad(u"ordner.jpg"_s), u"/nirgends/\\bild.jpg"_s}) {
            QCOMPARE(bildgroesse(pfad), QSize());
            QVERIFY(unlesbar(pfad));
        }
#ifdef Q_OS_UNIX
        const QString rohr = ordner_.pfad(u"rohr.jpg"_s);
        QCOMPARE(mkfifo(qPrintable(rohr), 0600), 0);
        QCOMPARE(bildgroesse(rohr), QSize());
        QVERIFY(unlesbar(rohr));
#endif
    }

    void abgeschnitten()
    {
        for (const Jpegart art : {Jpegart::Einfach, Jpegart::Fortschreitend}) {
            const QByteArray bytes = mitExif(jpeg(gemischt(48, 40, 1), art), 6, true);
            for (qsizetype laenge = 0; laenge < bytes.size() - 4; laenge += laenge < 700 || laenge > bytes.size() - 200 ? 1 : 37)
                QVERIFY2(unlesbar(ordner_.schreibe(bytes.first(laenge))), QByteArray::number(laenge));
            QVERIFY(!unlesbar(ordner_.schreibe(bytes)));
        }
    }

    /// A picture is whole without its end mark, or with half of it, and looks the same.
    void ohneEndmarke()
    {
        for (const Jpegart art : {Jpegart::Einfach, Jpegart::Fortschreitend, Jpegart::Grau, Jpegart::Tinten}) {
            const QByteArray bytes = jpeg(gemischt(148, 140, 1), art);
            const QImage ganz = ladeGanz(ordner_.schreibe(bytes));
            QVERIFY(!ganz.isNull());
            for (const int fehlend : {1, 2}) {
                const QString pfad = ordner_.schreibe(bytes.chopped(fehlend));
                QCOMPARE(bildgroesse(pfad), QSize(148, 140));
                QCOMPARE(ladeGanz(pfad), ganz);
                QVERIFY(!ladeSkaliert(pfad, {40, 40}).isNull());
            }
        }
    }

    /// A picture of several scans that ends behind one of them is whole only behind the last.
    void zwischenDenDurchlaeufen()
    {
        const QByteArray bytes = jpeg(gemischt(148, 140, 1), Jpegart::Fortschreitend);
        QList<qsizetype> anfaenge;
        for (qsizetype i = bytes.indexOf("\xFF\xDA"); i >= 0; i = bytes.indexOf("\xFF\xDA", i + 2))
            anfaenge += i;
        QVERIFY(anfaenge.size() > 3);
        for (qsizetype n = 1; n < anfaenge.size(); ++n)
            for (const int daneben : {-30, -2, -1, 0, 1, 2, 5})
                QVERIFY2(unlesbar(ordner_.schreibe(bytes.first(anfaenge[n] + daneben))), QByteArray::number(n));
    }

    void andereAbgeschnitten()
    {
        for (const char *format : {"png", "bmp"}) {
            QByteArray bytes;
            QBuffer puffer(&bytes);
            puffer.open(QIODevice::WriteOnly);
            QVERIFY(gemischt(40, 40, 1).save(&puffer, format));
            for (const qsizetype laenge : {bytes.size() / 20, bytes.size() / 2, bytes.size() - 100})
                QVERIFY2(unlesbar(ordner_.schreibe(bytes.first(laenge))), format);
            QVERIFY(!unlesbar(ordner_.schreibe(bytes)));
        }
    }

    void inDerMitteBeschaedigt()
    {
        // Cut but ended properly, or with a hole: damage that only the decoder sees.
        const QByteArray bytes = jpeg(gemischt(200, 160, 2));
        QVERIFY(unlesbar(ordner_.schreibe(bytes.first(bytes.size() / 2) + "\xFF\xD9")));
        QByteArray loch = bytes;
        std::fill_n(loch.begin() + bytes.size() / 2, 3000, '\0');
        QVERIFY(unlesbar(ordner_.schreibe(loch)));
        // The ending of a preview within the head is none of the picture's own.
        const QByteArray mitVorschau = bytes.first(2) + QByteArray("\xFF\xE2\x00\x06\xFF\xD8\xFF\xD9", 8) + bytes.sliced(2);
        QVERIFY(!unlesbar(ordner_.schreibe(mitVorschau)));
        QVERIFY(unlesbar(ordner_.schreibe(mitVorschau.chopped(2000))));
    }

    void harmloseWarnungen()
    {
        const QByteArray bytes = jpeg(gemischt(200, 160, 3));
        const QString pfad = ordner_.schreibe(bytes);
        const QImage ganz = ladeGanz(pfad);
        QVERIFY(!ganz.isNull());
        ordner_.schreibe(bytes + QByteArray(5000, 'x')); // what phones append
        QCOMPARE(ladeGanz(pfad), ganz);
        ordner_.schreibe(bytes.first(2) + QByteArray(7, '\0') + bytes.sliced(2)); // stray bytes between segments
        QCOMPARE(bildgroesse(pfad), ganz.size());
        QCOMPARE(ladeGanz(pfad), ganz);
    }

    /// Only the first warning is told: a harmless one must not hide that the rest of the picture is missing.
    void harmloseWarnungVorEinemSchnitt()
    {
        const QByteArray bytes = jpeg(gemischt(200, 160, 3));
        QByteArray warnend = bytes;
        warnend[warnend.indexOf("\xFF\xDA") + 12] = '\x01'; // the last coefficient of the scan, which plain pictures do without
        QCOMPARE(ladeGanz(ordner_.schreibe(warnend)), ladeGanz(ordner_.schreibe(bytes, u"ganz.jpg"_s)));
        for (const qsizetype fehlend : {20, 200, 2000})
            QVERIFY2(unlesbar(ordner_.schreibe(warnend.chopped(fehlend))), QByteArray::number(fehlend));
    }

    void riesig_data()
    {
        QTest::addColumn<QSize>("groesse");
        QTest::addColumn<bool>("kopfZaehlt");
        QTest::newRow("65535 x 65535") << QSize(65535, 65535) << false;
        QTest::newRow("30000 x 30000") << QSize(30000, 30000) << false;
        QTest::newRow("300 megapixels and a line") << QSize(20000, 15001) << false;
        QTest::newRow("300 megapixels") << QSize(20000, 15000) << false; // more than so short a file can hold
        QTest::newRow("no width") << QSize(0, 100) << false;
        QTest::newRow("no height") << QSize(100, 0) << false;
    }
    void riesig()
    {
        QFETCH(QSize, groesse);
        QFETCH(bool, kopfZaehlt);
        QElapsedTimer uhr;
        uhr.start();
        for (const Jpegart art : {Jpegart::Einfach, Jpegart::Fortschreitend}) {
            const QString pfad = ordner_.schreibe(mitGroesse(jpeg(gemischt(64, 64, 4), art), groesse.width(), groesse.height()));
            QCOMPARE(bildgroesse(pfad), kopfZaehlt ? groesse : QSize());
            QVERIFY(unlesbar(pfad));
        }
        // Large enough to be believed: the first missing row ends it.
        QVERIFY(unlesbar(ordner_.schreibe(mitGroesse(jpeg(gemischt(400, 400, 4)), 9000, 9000))));
        QVERIFY(uhr.elapsed() < 20000);
    }

    void riesigePng()
    {
        QByteArray png;
        QBuffer puffer(&png);
        puffer.open(QIODevice::WriteOnly);
        QVERIFY(vierFarben(8, 8).save(&puffer, "png"));
        for (const auto &[breite, hoehe] : {std::pair(30000, 30000), std::pair(70000, 10), std::pair(0x7FFFFFFF, 0x7FFFFFFF)}) {
            qToBigEndian(quint32(breite), png.data() + 16);
            qToBigEndian(quint32(hoehe), png.data() + 20);
            const QString pfad = ordner_.schreibe(png, u"a.png"_s);
            QCOMPARE(bildgroesse(pfad), QSize());
            QVERIFY(unlesbar(pfad));
        }
    }

    void verschwindet()
    {
        const QString pfad = ordner_.schreibe(jpeg(gemischt(64, 64, 5)), u"weg.jpg"_s);
        QVERIFY(!unlesbar(pfad));
        QVERIFY(QFile::remove(pfad));
        QCOMPARE(bildgroesse(pfad), QSize());
        QVERIFY(unlesbar(pfad));
    }

    void verwuerfelteKoepfe_data()
    {
        QTest::addColumn<int>("art");
        QTest::addColumn<int>("laeufe");
        QTest::newRow("baseline") << int(Jpegart::Einfach) << 1500;
        QTest::newRow("progressive") << int(Jpegart::Fortschreitend) << 700;
        QTest::newRow("grey") << int(Jpegart::Grau) << 300;
        QTest::newRow("inks") << int(Jpegart::Tinten) << 300;
    }
    void verwuerfelteKoepfe()
    {
        QFETCH(int, art);
        QFETCH(int, laeufe);
        const QByteArray bytes = mitExif(jpeg(gemischt(72, 56, 6), Jpegart(art)), 5, art % 2 == 0);
        QRandomGenerator zufall(quint32(20240 + art));
        for (int lauf = 0; lauf < laeufe; ++lauf) {
            QByteArray wurf = bytes;
            for (quint32 i = 0, n = 1 + zufall.bounded(4u); i < n; ++i)
                wurf[qsizetype(zufall.bounded(700u))] = char(zufall.generate());
            pruefen(ordner_.schreibe(wurf));
        }
    }

    void verwuerfelteAndere()
    {
        QLoggingCategory::setFilterRules(u"qt.gui.imageio=false"_s);
        QRandomGenerator zufall(77);
        for (const char *format : {"png", "bmp"}) {
            QByteArray bytes;
            QBuffer puffer(&bytes);
            puffer.open(QIODevice::WriteOnly);
            QVERIFY(gemischt(20, 20, 7).save(&puffer, format));
            for (int lauf = 0; lauf < 200; ++lauf) {
                QByteArray wurf = bytes;
                // Behind the size fields: those are the business of the size check.
                for (int i = 0; i < 2; ++i)
                    wurf[qsizetype(26 + zufall.bounded(60u))] = char(zufall.generate());
                pruefen(ordner_.schreibe(wurf));
            }
        }
    }

private:
    static bool unlesbar(const QString &pfad)
    {
        return ladeGanz(pfad).isNull() && ladeSkaliert(pfad, {20, 20}).isNull();
    }

    /// Whatever comes of it is consistent.
    static void pruefen(const QString &pfad)
    {
        const QSize groesse = bildgroesse(pfad);
        const QImage ganz = ladeGanz(pfad), klein = ladeSkaliert(pfad, {20, 20});
        if (!ganz.isNull())
            QCOMPARE(ganz.size(), groesse);
        if (!klein.isNull())
            QCOMPARE(klein.size(), einpassen(groesse, {20, 20}));
    }

    Bildordner ordner_;
};

FLOX_TEST(tst_bildschaeden, TestBildschaeden)
#include "tst_bildschaeden.moc"
