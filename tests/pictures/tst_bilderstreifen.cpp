#include "Bildprobe.h"

#include "pictures/Bilderstreifen.h"
#include "pictures/Namensband.h"
#include "tools/tafeln/Tafel.h"
#include "tests/Testprogramm.h"

#include <QApplication>
#include <QLabel>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTest>

/* The strip: slots, captions, bar and clicks. */
class tst_bilderstreifen : public QObject
{
    Q_OBJECT

private slots:
    void barFromFourPictures_data();
    void barFromFourPictures();
    void pictureFitsItsBox_data();
    void pictureFitsItsBox();
    void captionsAndPointers();
    void substituteIsNotClickable();
    void noPictureShowsTheSubstitute();
    void scrolling();
    void walkingDropsWhatIsNotLoaded();
    void unreadableFile();
    void covered();
};

namespace {

std::vector<Bildeintrag> eintraege(const Bilderordner &ordner, int anzahl)
{
    std::vector<Bildeintrag> liste;
    for (int i = 0; i < anzahl; ++i) {
        const QString datei = QStringLiteral("topfpflanzen/nr%1.jpg").arg(i);
        ordner.bild(datei, {200, 150});
        liste.push_back({ordner.pfad(datei), QStringLiteral("Bild %1").arg(i), true});
    }
    return liste;
}

QWidget *platz(const Bilderstreifen &streifen, int i)
{
    return streifen.findChild<QWidget *>(QStringLiteral("imgFloxBild_%1").arg(i));
}

void zeigen(Bilderstreifen &streifen)
{
    streifen.resize(176, 500);
    streifen.show();
}

} // namespace

void tst_bilderstreifen::barFromFourPictures_data()
{
    QTest::addColumn<int>("anzahl");
    for (const int anzahl : {0, 1, 3, 4, 10})
        QTest::addRow("%d", anzahl) << anzahl;
}

void tst_bilderstreifen::barFromFourPictures()
{
    QFETCH(int, anzahl);
    const Bilderordner ordner;
    Bilderstreifen streifen(nullptr);
    zeigen(streifen);
    streifen.zeigen(eintraege(ordner, anzahl), QString());
    QCOMPARE(streifen.anzahl(), anzahl);
    QCOMPARE(streifen.findChild<QScrollBar *>(QStringLiteral("vscBilder"))->isVisible(), anzahl > 3);
    for (int i = 0; i < groessteBilderzahl; ++i)
        QCOMPARE(platz(streifen, i)->isVisible(), i < anzahl || (i == 0 && anzahl == 0));
}

void tst_bilderstreifen::pictureFitsItsBox_data()
{
    QTest::addColumn<QSize>("bild");
    QTest::addColumn<QSize>("gezeigt");
    QTest::addRow("4:3") << QSize(400, 300) << QSize(133, 100);
    QTest::addRow("wide") << QSize(800, 200) << QSize(133, 33);
    QTest::addRow("tall") << QSize(300, 600) << QSize(50, 100);
}

void tst_bilderstreifen::pictureFitsItsBox()
{
    QFETCH(QSize, bild);
    QFETCH(QSize, gezeigt);
    const Bilderordner ordner;
    ordner.bild(QStringLiteral("topfpflanzen/form.jpg"), bild);
    Bilderstreifen streifen(nullptr);
    zeigen(streifen);
    streifen.zeigen({{ordner.pfad(QStringLiteral("topfpflanzen/form.jpg")), {}, true}}, QString());
    QTRY_VERIFY2(std::abs(platz(streifen, 0)->width() - gezeigt.width()) <= 1 && std::abs(platz(streifen, 0)->height() - gezeigt.height()) <= 1,
                 qPrintable(QStringLiteral("%1 x %2").arg(platz(streifen, 0)->width()).arg(platz(streifen, 0)->height())));
    // Centred in the box, behind a margin.
    const double breite = platz(streifen, 0)->width() * 15.0;
    QVERIFY(std::abs(platz(streifen, 0)->property("Left").toDouble() - ((2000 - breite) / 2 + 30)) < 1);
    QCOMPARE(platz(streifen, 0)->property("Top").toDouble(), 60.0);
}

void tst_bilderstreifen::captionsAndPointers()
{
    const Bilderordner ordner;
    Bilderstreifen streifen(nullptr);
    zeigen(streifen);
    streifen.zeigen(eintraege(ordner, 2), QString());
    QCOMPARE(streifen.findChild<QLabel *>(QStringLiteral("lblBilderText_1"))->text(), QStringLiteral("Bild 1"));
    QCOMPARE(platz(streifen, 1)->property("MousePointer").toInt(), 99);
    QCOMPARE(platz(streifen, 1)->toolTip(), QStringLiteral("Anklicken um das Bild zu vergrößern"));
    QSignalSpy geklickt(&streifen, &Bilderstreifen::angeklickt);
    QTest::mouseClick(platz(streifen, 1), Qt::LeftButton);
    QCOMPARE(geklickt.count(), 1);
    QCOMPARE(geklickt[0][0].toInt(), 1);
    streifen.zeigen({}, QString());
    QCOMPARE(streifen.findChild<QLabel *>(QStringLiteral("lblBilderText_1"))->text(), QString());
    QCOMPARE(platz(streifen, 1)->toolTip(), QString());
}

void tst_bilderstreifen::substituteIsNotClickable()
{
    const Bilderordner ordner;
    Bilderstreifen streifen(nullptr);
    zeigen(streifen);
    streifen.zeigen({{ersatzbild(ordner.programm()), QStringLiteral("weg.jpg"), false}}, QString());
    QSignalSpy geklickt(&streifen, &Bilderstreifen::angeklickt);
    QTest::mouseClick(platz(streifen, 0), Qt::LeftButton);
    QCOMPARE(geklickt.count(), 0);
    QCOMPARE(platz(streifen, 0)->property("MousePointer").toInt(), 0);
}

void tst_bilderstreifen::noPictureShowsTheSubstitute()
{
    const Bilderordner ordner;
    Bilderstreifen streifen(nullptr);
    zeigen(streifen);
    streifen.zeigen({}, ordner.pfad(QStringLiteral("icons/bildfehlt.jpg")));
    QTRY_COMPARE(platz(streifen, 0)->width(), 133);
    QVERIFY(!platz(streifen, 1)->isVisible());
    QCOMPARE(streifen.findChild<QLabel *>(QStringLiteral("lblBilderText_0"))->text(), QString());
}

void tst_bilderstreifen::scrolling()
{
    const Bilderordner ordner;
    Bilderstreifen streifen(nullptr);
    zeigen(streifen);
    streifen.zeigen(eintraege(ordner, 5), QString());
    auto *leiste = streifen.findChild<QScrollBar *>(QStringLiteral("vscBilder"));
    QCOMPARE(leiste->maximum(), 100);
    leiste->setValue(50);
    const double versatz = 0.5 / 1.35 * 5 * 2095;
    QVERIFY(std::abs(platz(streifen, 2)->property("Top").toDouble() - (60 + 2 * 1920 - versatz)) < 0.01);
    QVERIFY(std::abs(streifen.findChild<QLabel *>(QStringLiteral("lblBilderText_2"))->property("Top").toDouble() - (1580 + 2 * 1920 - versatz))
            < 0.01);
}

void tst_bilderstreifen::walkingDropsWhatIsNotLoaded()
{
    const Bilderordner ordner;
    Bilderstreifen streifen(nullptr);
    zeigen(streifen);
    streifen.zeigen(eintraege(ordner, 10), QString());
    ordner.bild(QStringLiteral("topfpflanzen/hoch.jpg"), {150, 300});
    streifen.zeigen({{ordner.pfad(QStringLiteral("topfpflanzen/hoch.jpg")), {}, true}}, QString());
    QTRY_COMPARE(platz(streifen, 0)->width(), 50);
    for (int i = 1; i < groessteBilderzahl; ++i)
        QVERIFY(!platz(streifen, i)->isVisible());
}

void tst_bilderstreifen::unreadableFile()
{
    const Bilderordner ordner;
    QFile datei(ordner.pfad(QStringLiteral("topfpflanzen/kaputt.jpg")));
    QVERIFY(datei.open(QIODevice::WriteOnly));
    datei.write("das ist kein Bild");
    datei.close();
    Bilderstreifen streifen(nullptr);
    zeigen(streifen);
    streifen.zeigen({{datei.fileName(), QStringLiteral("Gesamtansicht"), true, ersatzbild(ordner.programm())}}, QString());
    QTRY_COMPARE(streifen.findChild<QLabel *>(QStringLiteral("lblBilderText_0"))->text(), QStringLiteral("kaputt.jpg"));
    QCOMPARE(platz(streifen, 0)->property("MousePointer").toInt(), 0);
    QVERIFY(platz(streifen, 0)->isVisible());
}

/// Neither captions nor the foot of the pictures, where plates carry the name, can be seen; then all is as before.
void tst_bilderstreifen::covered()
{
    static_assert(namensband >= 1 - Tafel::band / Tafel::hoehe, "a plate's band looks out");
    static_assert(namensband < 1 - Tafel::band / Tafel::hoehe + 0.01, "more of a plate is covered than its band");
    const Bilderordner ordner;
    Bilderstreifen streifen(nullptr);
    zeigen(streifen);
    std::vector<Bildeintrag> bilder = eintraege(ordner, 2);
    bilder[0].beschreibung = QStringLiteral("Rosa im Juni");
    bilder.push_back({ordner.pfad(QStringLiteral("topfpflanzen/nr0.jpg")), QStringLiteral("rosa.jpg"), false});
    streifen.zeigen(bilder, QString());
    QTRY_VERIFY(platz(streifen, 1)->width() > 100);
    // The mark of the focus lies on the picture.
    if (QWidget *fokus = QApplication::focusWidget())
        fokus->clearFocus();
    const auto bild = [&](int i) { return platz(streifen, i)->grab().toImage(); };
    const QImage vorher = bild(0), ersatz = bild(2);
    streifen.setVerdeckt(true);
    for (int i = 0; i < 3; ++i) {
        QVERIFY(streifen.findChild<QLabel *>(QStringLiteral("lblBilderText_%1").arg(i))->text().isEmpty());
        QVERIFY(streifen.findChild<QLabel *>(QStringLiteral("lblBilderText_%1").arg(i))->toolTip().isEmpty());
    }
    QCOMPARE(platz(streifen, 0)->accessibleName(), QStringLiteral("Bild 1"));
    QCOMPARE(platz(streifen, 2)->accessibleName(), QStringLiteral("Kein Bild"));
    const QImage verdeckt = bild(0);
    const int band = int(namensbandVon(verdeckt.rect()).top());
    for (int y = 0; y < verdeckt.height(); ++y)
        for (int x = 0; x < verdeckt.width(); ++x)
            if (y < band)
                QCOMPARE(verdeckt.pixel(x, y), vorher.pixel(x, y));
            else
                QCOMPARE(verdeckt.pixel(x, y), verdeckt.pixel(0, verdeckt.height() - 1));
    QVERIFY(band <= verdeckt.height() * Tafel::band / Tafel::hoehe);
    // What comes in the place of a missing picture has no name.
    QCOMPARE(bild(2), ersatz);
    // The next plant's captions stay covered, too.
    streifen.zeigen(bilder, QString());
    QVERIFY(streifen.findChild<QLabel *>(QStringLiteral("lblBilderText_0"))->text().isEmpty());
    streifen.setVerdeckt(false);
    QCOMPARE(streifen.findChild<QLabel *>(QStringLiteral("lblBilderText_0"))->text(), QStringLiteral("Rosa im Juni"));
    QCOMPARE(platz(streifen, 2)->accessibleName(), QStringLiteral("Kein Bild: rosa.jpg"));
    QTRY_COMPARE(bild(0), vorher);
}

FLOX_TEST(tst_bilderstreifen, tst_bilderstreifen)
#include "tst_bilderstreifen.moc"
