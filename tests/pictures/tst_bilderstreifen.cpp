#include "Bildprobe.h"

#include "pictures/Bilderstreifen.h"

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

QTEST_MAIN(tst_bilderstreifen)
#include "tst_bilderstreifen.moc"
