#include "Bildhilfen.h"
#include "Bildprobe.h"

#include "pictures/Bilderstreifen.h"
#include "tests/Testprogramm.h"

#include <QLabel>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTest>

/* The strip under a hand: press and release, keys, wheel, names for those who hear the window, files that are no pictures. */
class tst_bilderhand : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void pressAndRelease_data();
    void pressAndRelease();
    void keys_data();
    void keys();
    void tabBringsThePictureIntoView();
    void wheel();
    void names();
    void unreadableCountsAsMissing_data();
    void unreadableCountsAsMissing();
    void unreadableFehltTakesNoPlace();
    void onlyTheEndMarkMissing();

private:
    QWidget *platz(int i) const { return streifen_->findChild<QWidget *>(QStringLiteral("imgFloxBild_%1").arg(i)); }
    QString text(int i) const { return streifen_->findChild<QLabel *>(QStringLiteral("lblBilderText_%1").arg(i))->text(); }
    QScrollBar *leiste() const { return streifen_->findChild<QScrollBar *>(QStringLiteral("vscBilder")); }
    bool echt(int i) const { return platz(i)->property("MousePointer").toInt() == 99; }
    /// Lets the strip show a plant with these pictures in its first half.
    void zeigen(const QStringList &staemme);
    void schreiben(const QString &stamm, const QByteArray &inhalt);
    static void rad(QWidget *ziel, int winkel) { radDrehen(ziel, {0, winkel}); }

    std::unique_ptr<Bilderordner> ordner_;
    std::unique_ptr<Bilderstreifen> streifen_;
};

namespace {

QStringList nummeriert(int anzahl)
{
    QStringList staemme;
    for (int i = 0; i < anzahl; ++i)
        staemme += QStringLiteral("nr%1").arg(i);
    return staemme;
}

} // namespace

void tst_bilderhand::init()
{
    ordner_ = std::make_unique<Bilderordner>();
    for (const QString &stamm : nummeriert(5))
        ordner_->bild(QStringLiteral("topfpflanzen/%1.jpg").arg(stamm), {200, 150});
    streifen_ = std::make_unique<Bilderstreifen>(nullptr);
    streifen_->resize(176, 300);
    streifen_->show();
    streifen_->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(streifen_.get()));
}

void tst_bilderhand::zeigen(const QStringList &staemme)
{
    const Programm programm = ordner_->programm();
    streifen_->zeigen(streifenbilder(programm, zeileAus(staemme, {}), QStringLiteral("topfpflanzen")), ersatzbild(programm));
}

void tst_bilderhand::schreiben(const QString &stamm, const QByteArray &inhalt)
{
    QFile datei(ordner_->pfad(QStringLiteral("topfpflanzen/%1.jpg").arg(stamm)));
    QVERIFY(datei.open(QIODevice::WriteOnly) && datei.write(inhalt) == inhalt.size());
}

void tst_bilderhand::pressAndRelease_data()
{
    QTest::addColumn<QPoint>("gedrueckt");
    QTest::addColumn<QPoint>("losgelassen");
    QTest::addColumn<int>("taste");
    QTest::addColumn<int>("oeffnet");
    const QPoint innen(20, 20), andererOrt(60, 50), aussen(20, -400);
    QTest::newRow("on it") << innen << innen << int(Qt::LeftButton) << 1;
    QTest::newRow("moved within") << innen << andererOrt << int(Qt::LeftButton) << 1;
    QTest::newRow("let go elsewhere") << innen << aussen << int(Qt::LeftButton) << 0;
    QTest::newRow("right button") << innen << innen << int(Qt::RightButton) << 0;
}

void tst_bilderhand::pressAndRelease()
{
    QFETCH(QPoint, gedrueckt);
    QFETCH(QPoint, losgelassen);
    QFETCH(int, taste);
    zeigen({QStringLiteral("nr0")});
    QTRY_COMPARE(platz(0)->width(), 133);
    QSignalSpy geklickt(streifen_.get(), &Bilderstreifen::angeklickt);
    QTest::mousePress(platz(0), Qt::MouseButton(taste), {}, gedrueckt);
    QCOMPARE(geklickt.count(), 0);
    QTest::mouseRelease(platz(0), Qt::MouseButton(taste), {}, losgelassen);
    QTEST(int(geklickt.count()), "oeffnet");
}

void tst_bilderhand::keys_data()
{
    QTest::addColumn<int>("taste");
    QTest::addColumn<int>("oeffnet");
    QTest::newRow("Space") << int(Qt::Key_Space) << 1;
    QTest::newRow("Return") << int(Qt::Key_Return) << 1;
    QTest::newRow("Enter") << int(Qt::Key_Enter) << 1;
    QTest::newRow("a letter") << int(Qt::Key_A) << 0;
}

void tst_bilderhand::keys()
{
    QFETCH(int, taste);
    zeigen({QStringLiteral("nr0"), QStringLiteral("nr1")});
    platz(1)->setFocus(Qt::TabFocusReason);
    QSignalSpy geklickt(streifen_.get(), &Bilderstreifen::angeklickt);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key(taste));
    QTEST(int(geklickt.count()), "oeffnet");
    if (geklickt.count())
        QCOMPARE(geklickt[0][0].toInt(), 1);
}

void tst_bilderhand::tabBringsThePictureIntoView()
{
    zeigen(nummeriert(5));
    const int hoehe = streifen_->findChild<QWidget *>(QStringLiteral("picBilderLeiste"))->height();
    platz(0)->setFocus(Qt::TabFocusReason);
    for (int i = 1; i < 5; ++i) {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        QCOMPARE(QApplication::focusWidget(), platz(i));
        QVERIFY(platz(i)->y() >= 0 && platz(i)->geometry().bottom() < hoehe);
    }
    for (int i = 3; i >= 0; --i) {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Backtab, Qt::ShiftModifier);
        QCOMPARE(QApplication::focusWidget(), platz(i));
        QVERIFY(platz(i)->y() >= 0 && platz(i)->geometry().bottom() < hoehe);
    }
}

void tst_bilderhand::wheel()
{
    zeigen(nummeriert(5));
    rad(platz(1), -120);
    const int einmal = leiste()->value();
    QVERIFY(einmal > 0);
    // One notch moves about one picture.
    QVERIFY2(std::abs(platz(1)->y() - pixel(60)) < 40, qPrintable(QString::number(platz(1)->y())));
    rad(platz(1), 120);
    QCOMPARE(leiste()->value(), 0);
    for (int i = 0; i < 8; ++i)
        rad(streifen_->findChild<QWidget *>(QStringLiteral("lblBilderText_0")), -15);
    QCOMPARE(leiste()->value(), einmal);
    for (int i = 0; i < 20; ++i)
        rad(streifen_.get(), -120);
    QCOMPARE(leiste()->value(), 100);
    rad(streifen_.get(), -120);
    QCOMPARE(leiste()->value(), 100);
    // Three pictures have no bar.
    zeigen(nummeriert(3));
    rad(platz(1), -120);
    QCOMPARE(platz(0)->property("Top").toDouble(), 60.0);
}

void tst_bilderhand::names()
{
    const Programm programm = ordner_->programm();
    Bildzeile zeile = zeileAus(nummeriert(2) + QStringList{QStringLiteral("verschwunden")}, {});
    zeile.g[1].bemerkung.clear();
    streifen_->zeigen(streifenbilder(programm, zeile, QStringLiteral("topfpflanzen")), ersatzbild(programm));
    QCOMPARE(platz(0)->accessibleName(), QStringLiteral("Text nr0"));
    QCOMPARE(platz(0)->accessibleDescription(), QStringLiteral("Anklicken um das Bild zu vergrößern"));
    QCOMPARE(platz(1)->accessibleName(), QStringLiteral("Bild 2"));
    QCOMPARE(platz(2)->accessibleName(), QStringLiteral("Kein Bild: verschwunden.jpg"));
    QCOMPARE(platz(2)->accessibleDescription(), QString());
    zeigen({});
    QCOMPARE(platz(0)->accessibleName(), QStringLiteral("Kein Bild"));
}

void tst_bilderhand::unreadableCountsAsMissing_data()
{
    QTest::addColumn<QByteArray>("inhalt");
    const QByteArray gut = jpeg(gemischt(400, 300, 1));
    QByteArray loch = gut;
    std::fill_n(loch.begin() + loch.size() / 2, 3000, '\0');
    QTest::newRow("empty") << QByteArray();
    QTest::newRow("text") << QByteArray("Begonia rex\n").repeated(200);
    QTest::newRow("cut") << gut.first(gut.size() / 2);
    QTest::newRow("cut near the end") << gut.chopped(40);
    QTest::newRow("head only") << gut.first(700);
    QTest::newRow("hole") << loch;
    QTest::newRow("giant head") << mitGroesse(gut, 65535, 65535);
    QTest::newRow("large head") << mitGroesse(gut, 9000, 9000);
}

void tst_bilderhand::unreadableCountsAsMissing()
{
    QFETCH(QByteArray, inhalt);
    schreiben(QStringLiteral("schlecht"), inhalt);
    zeigen({QStringLiteral("nr0"), QStringLiteral("schlecht"), QStringLiteral("nr1")});
    QTRY_COMPARE(text(1), QStringLiteral("schlecht.jpg"));
    QVERIFY(!echt(1) && platz(1)->toolTip().isEmpty() && platz(1)->isVisible());
    QSignalSpy geklickt(streifen_.get(), &Bilderstreifen::angeklickt);
    QTest::mouseClick(platz(1), Qt::LeftButton);
    QCOMPARE(geklickt.count(), 0);
    QVERIFY(echt(0) && echt(2));
    QCOMPARE(text(2), QStringLiteral("Text nr1"));
    QCOMPARE(streifen_->anzahl(), 3);
    // The substitute is 400 x 300, dark green.
    QTRY_VERIFY(platz(1)->grab().toImage().pixelColor(60, 50).green() > 60);
}

void tst_bilderhand::unreadableFehltTakesNoPlace()
{
    const QByteArray gut = jpeg(gemischt(400, 300, 1));
    for (const QByteArray &inhalt : {QByteArray("Text"), QByteArray(gut.first(gut.size() / 2))}) {
        schreiben(QStringLiteral("fehlt"), inhalt);
        zeigen({QStringLiteral("nr0"), QStringLiteral("fehlt"), QStringLiteral("nr1")});
        QTRY_COMPARE(streifen_->anzahl(), 2);
        QCOMPARE(text(1), QStringLiteral("Text nr1"));
        QVERIFY(echt(1) && !platz(2)->isVisible());
    }
}

void tst_bilderhand::onlyTheEndMarkMissing()
{
    schreiben(QStringLiteral("fast"), jpeg(gemischt(400, 200, 1)).chopped(2));
    zeigen({QStringLiteral("fast")});
    QTRY_COMPARE(platz(0)->height(), 67);
    QVERIFY(echt(0));
    QCOMPARE(text(0), QStringLiteral("Text fast"));
}

FLOX_TEST(tst_bilderhand, tst_bilderhand)
#include "tst_bilderhand.moc"
