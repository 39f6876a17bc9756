#include "Bildprobe.h"

#include "controls/Steuerelemente.h"
#include "pictures/Bildlader.h"
#include "pictures/frmBilder.h"
#include "tests/Testprogramm.h"

#include <QLabel>
#include <QPushButton>
#include <QRandomGenerator>
#include <QScrollBar>
#include <QTest>

/* The picture window under a hand: keys wherever the focus is, the zoom and its ends, the wheel, files that go or are damaged. */
class tst_bilderfenster : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void arrowsBrowseFromEveryControl_data();
    void arrowsBrowseFromEveryControl();
    void focusStaysWhereNothingIsPressedByMistake();
    void shrinkingNeverLosesThePicture_data();
    void shrinkingNeverLosesThePicture();
    void edgesStayWithinTheirEnds_data();
    void edgesStayWithinTheirEnds();
    void barMovesItsOwnAxisOnly();
    void deadZoomButtonIsPale();
    void zoomShowsTheKeptPictureAtOnce();
    void decodingHoldsUpNoStep();
    void fileGoneWhileItsPictureIsKept();
    void damagedPictureGivesWay();
    void wheel();

private:
    QWidget *teil(const char *name) { return fenster_->findChild<QWidget *>(QString::fromLatin1(name)); }
    Bildknopf *knopf(const char *name) { return fenster_->findChild<Bildknopf *>(QString::fromLatin1(name)); }
    QScrollBar *balken(const char *name) { return fenster_->findChild<QScrollBar *>(QString::fromLatin1(name)); }
    QString position() { return fenster_->findChild<QLabel *>(QStringLiteral("lblPosition"))->text(); }
    double mass(const char *name) { return teil("imgAnzeige")->property(name).toDouble(); }
    /// Colour in the middle of what the viewport shows.
    QColor mitte()
    {
        const QImage bild = teil("picBildAnzeige")->grab().toImage();
        return bild.pixelColor(bild.rect().center());
    }
    bool gruen() { return mitte().green() > 60 && mitte().red() < 60; }
    void oeffnen(const QStringList &staemme);
    void rad(const char *ueber, QPoint winkel, Qt::KeyboardModifiers tasten = Qt::NoModifier) { radDrehen(teil(ueber), winkel, tasten); }

    std::unique_ptr<Bilderordner> ordner_;
    Programm programm_;
    std::optional<Bilderpflanze> pflanze_;
    std::unique_ptr<frmBilder> fenster_;
};

void tst_bilderfenster::init()
{
    fenster_.reset();
    ordner_ = std::make_unique<Bilderordner>();
    ordner_->bild(QStringLiteral("topfpflanzen/quer.jpg"), {1600, 1200});
    ordner_->bild(QStringLiteral("topfpflanzen/hoch.jpg"), {300, 900});
    ordner_->bild(QStringLiteral("topfpflanzen/klein.jpg"), {80, 60});
    ordner_->bild(QStringLiteral("topfpflanzen/gross.jpg"), {4000, 3000});
    programm_ = ordner_->programm();
    programm_.OriginalGroesse = false;
    pflanze_ = Bilderpflanze{Sparte::Topf, 1001, QStringLiteral("Begonia rex"), QStringLiteral("Königsbegonie"), std::nullopt};
}

void tst_bilderfenster::oeffnen(const QStringList &staemme)
{
    pflanze_->zeile = zeileAus(staemme, {});
    fenster_ = std::make_unique<frmBilder>(
        programm_, [this] { return pflanze_; }, nullptr);
    fenster_->show();
    fenster_->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(fenster_.get()));
    QTRY_VERIFY(fenster_->windowTitle() != QStringLiteral("Pflanzenbilder"));
}

void tst_bilderfenster::arrowsBrowseFromEveryControl_data()
{
    QTest::addColumn<QByteArray>("fokus");
    for (const char *name : {"", "cmdGroesser", "cmdKleiner", "cmdAnpassen", "cmdOriginal", "cmdNext", "cmdSchliessen"})
        QTest::addRow("focus on %s", *name ? name : "nothing") << QByteArray(name);
}

void tst_bilderfenster::arrowsBrowseFromEveryControl()
{
    QFETCH(QByteArray, fokus);
    oeffnen({QStringLiteral("quer"), QStringLiteral("hoch"), QStringLiteral("klein")});
    if (!fokus.isEmpty())
        teil(fokus.constData())->setFocus(Qt::TabFocusReason);
    const auto taste = [this](Qt::Key welche) {
        QTest::keyClick(QApplication::focusWidget() ? QApplication::focusWidget() : fenster_.get(), welche);
    };
    for (const auto &[welche, erwartet] : {std::pair(Qt::Key_Right, "2/3"), std::pair(Qt::Key_Down, "3/3"), std::pair(Qt::Key_Right, "3/3"),
                                           std::pair(Qt::Key_Left, "2/3"), std::pair(Qt::Key_Up, "1/3"), std::pair(Qt::Key_Left, "1/3")}) {
        taste(welche);
        QCOMPARE(position(), QString::fromLatin1(erwartet));
    }
    const int vorher = fenster_->Zoomfaktor();
    taste(Qt::Key_Plus);
    QCOMPARE(fenster_->Zoomfaktor(), vorher + 10);
    taste(Qt::Key_Minus);
    QCOMPARE(fenster_->Zoomfaktor(), vorher);
    taste(Qt::Key_Escape);
    QVERIFY(!fenster_->isVisible());
}

void tst_bilderfenster::focusStaysWhereNothingIsPressedByMistake()
{
    oeffnen({QStringLiteral("quer"), QStringLiteral("hoch")});
    knopf("cmdNext")->setFocus(Qt::TabFocusReason);
    for (int i = 0; i < 3; ++i)
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Space);
    QCOMPARE(position(), QStringLiteral("2/2"));
    QVERIFY(fenster_->isVisible());
    knopf("cmdKleiner")->setFocus(Qt::TabFocusReason);
    const int vorher = fenster_->Zoomfaktor();
    for (int i = 0; i < 12; ++i)
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Space);
    QVERIFY(!knopf("cmdKleiner")->isEnabled());
    QVERIFY(fenster_->isVisible());
    QVERIFY(fenster_->Zoomfaktor() < vorher);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Left);
    QCOMPARE(position(), QStringLiteral("1/2"));
}

void tst_bilderfenster::shrinkingNeverLosesThePicture_data()
{
    QTest::addColumn<QString>("stamm");
    for (const char *name : {"quer", "hoch", "klein", "gross"})
        QTest::addRow("%s", name) << QString::fromLatin1(name);
}

void tst_bilderfenster::shrinkingNeverLosesThePicture()
{
    QFETCH(QString, stamm);
    oeffnen({stamm});
    int schritte = 0;
    for (; knopf("cmdKleiner")->isEnabled() && schritte < 50; ++schritte) {
        const double breite = mass("Width"), hoehe = mass("Height"), links = mass("Left"), oben = mass("Top");
        QTest::mouseClick(knopf("cmdKleiner"), Qt::LeftButton);
        QVERIFY(mass("Width") > 0 && mass("Height") > 0);
        QVERIFY(teil("imgAnzeige")->width() > 0 && teil("imgAnzeige")->height() > 0);
        // Its middle stays where it was, whether it became smaller or not.
        QVERIFY(std::abs(mass("Left") + mass("Width") / 2 - links - breite / 2) < 0.01);
        QVERIFY(std::abs(mass("Top") + mass("Height") / 2 - oben - hoehe / 2) < 0.01);
    }
    QCOMPARE(schritte, 6);
    QTRY_VERIFY(gruen());
}

void tst_bilderfenster::edgesStayWithinTheirEnds_data()
{
    QTest::addColumn<QString>("stamm");
    QTest::addColumn<quint32>("saat");
    for (const char *name : {"quer", "hoch", "gross"})
        for (quint32 saat = 1; saat <= 4; ++saat)
            QTest::addRow("%s, walk %u", name, saat) << QString::fromLatin1(name) << saat;
}

void tst_bilderfenster::edgesStayWithinTheirEnds()
{
    QFETCH(QString, stamm);
    QFETCH(quint32, saat);
    oeffnen({stamm});
    QRandomGenerator zufall(saat);
    for (int schritt = 0; schritt < 120; ++schritt) {
        switch (zufall.bounded(8)) {
        case 0: QTest::mouseClick(knopf("cmdGroesser"), Qt::LeftButton); break;
        case 1:
        case 2: QTest::mouseClick(knopf("cmdKleiner"), Qt::LeftButton); break;
        case 3: QTest::mouseClick(knopf(zufall.bounded(3) ? "cmdOriginal" : "cmdAnpassen"), Qt::LeftButton); break;
        case 4: balken("hscBild")->setValue(zufall.bounded(2) * 100); break;
        case 5: balken("vscBild")->setValue(zufall.bounded(2) * 100); break;
        case 6: rad("imgAnzeige", {0, zufall.bounded(-3, 4) * 120}); break;
        case 7: rad("imgAnzeige", {zufall.bounded(-3, 4) * 120, 0}); break;
        }
        for (const auto &[groesse, ort, flaeche] : {std::tuple("Width", "Left", teil("picBildAnzeige")->width() * 15.0),
                                                    std::tuple("Height", "Top", teil("picBildAnzeige")->height() * 15.0)}) {
            const double laenge = mass(groesse), anfang = mass(ort), ende = anfang + laenge;
            const QByteArray wo = QStringLiteral("step %1: %2 %3, %4 %5 in %6")
                                      .arg(schritt)
                                      .arg(QLatin1String(groesse))
                                      .arg(laenge)
                                      .arg(QLatin1String(ort))
                                      .arg(anfang)
                                      .arg(flaeche)
                                      .toLatin1();
            if (laenge > flaeche + 0.01)
                QVERIFY2(anfang <= 0.01 && ende >= flaeche - 315 - 0.01, wo.constData());
            else
                QVERIFY2(anfang >= -0.01 && ende <= flaeche + 0.01, wo.constData());
        }
    }
}

void tst_bilderfenster::barMovesItsOwnAxisOnly()
{
    oeffnen({QStringLiteral("quer")});
    QTest::mouseClick(knopf("cmdOriginal"), Qt::LeftButton);
    QTest::mouseClick(knopf("cmdGroesser"), Qt::LeftButton);
    const double oben = mass("Top");
    balken("hscBild")->setValue(10);
    QCOMPARE(mass("Top"), oben);
    const double links = mass("Left");
    balken("vscBild")->setValue(10);
    QCOMPARE(mass("Left"), links);
}

void tst_bilderfenster::deadZoomButtonIsPale()
{
    oeffnen({QStringLiteral("klein")});
    const auto dunkelstes = [this](const char *name) {
        knopf(name)->clearFocus(); // its frame is darker than any picture
        const QImage bild = knopf(name)->grab().toImage();
        int wert = 255;
        for (int y = 0; y < bild.height(); ++y)
            for (int x = 0; x < bild.width(); ++x)
                wert = std::min(wert, qGray(bild.pixel(x, y)));
        return wert;
    };
    for (const auto &[name, stamm] : {std::pair("cmdGroesser", "groesser"), std::pair("cmdKleiner", "kleiner")}) {
        emit knopf(name)->mausVerlassen();
        const int lebt = dunkelstes(name);
        for (int i = 0; knopf(name)->isEnabled() && i < 50; ++i)
            knopf(name)->click();
        QVERIFY(!knopf(name)->isEnabled());
        emit knopf(name)->mausVerlassen();
        QCOMPARE(knopf(name)->bild(), QString::fromLatin1(stamm) + QStringLiteral("_n"));
        QVERIFY2(dunkelstes(name) > lebt + 60, qPrintable(QStringLiteral("%1, before %2").arg(dunkelstes(name)).arg(lebt)));
        knopf("cmdOriginal")->click();
        QVERIFY(knopf(name)->isEnabled());
        QCOMPARE(dunkelstes(name), lebt);
    }
}

void tst_bilderfenster::zoomShowsTheKeptPictureAtOnce()
{
    oeffnen({QStringLiteral("gross")});
    QTRY_VERIFY(gruen());
    for (const char *name : {"cmdOriginal", "cmdGroesser", "cmdKleiner", "cmdKleiner", "cmdAnpassen"}) {
        knopf(name)->click();
        QVERIFY2(gruen(), name); // nothing had the time to be decoded
    }
}

void tst_bilderfenster::decodingHoldsUpNoStep()
{
    QImage bunt(6000, 4500, QImage::Format_RGB32);
    QRandomGenerator zufall(1);
    zufall.fillRange(reinterpret_cast<quint32 *>(bunt.bits()), bunt.sizeInBytes() / 4);
    QStringList staemme;
    for (int i = 0; i < 4; ++i) {
        staemme += QStringLiteral("bunt%1").arg(i);
        const QString datei = ordner_->pfad(QStringLiteral("topfpflanzen/bunt%1.jpg").arg(i));
        QVERIFY(i == 0 ? bunt.save(datei, "JPG", 75) : QFile::copy(ordner_->pfad(QStringLiteral("topfpflanzen/bunt0.jpg")), datei));
    }
    Rechenuhr uhr;
    QVERIFY(!ladeGanz(ordner_->pfad(QStringLiteral("topfpflanzen/bunt0.jpg"))).isNull());
    const qint64 dekodieren = uhr.elapsed();
    programm_.OriginalGroesse = true;
    oeffnen(staemme);
    for (int i = 2; i <= 4; ++i) {
        uhr.restart();
        QTest::keyClick(QApplication::focusWidget() ? QApplication::focusWidget() : fenster_.get(), Qt::Key_Right);
        const qint64 schritt = uhr.elapsed();
        QCOMPARE(position(), QStringLiteral("%1/4").arg(i));
        QVERIFY2(schritt < dekodieren / 2, qPrintable(QStringLiteral("%1 of %2 ms").arg(schritt).arg(dekodieren)));
    }
}

void tst_bilderfenster::fileGoneWhileItsPictureIsKept()
{
    oeffnen({QStringLiteral("quer")});
    QTRY_VERIFY(gruen());
    programm_.BilderAufCD = true;
    const QString datei = ordner_->pfad(QStringLiteral("topfpflanzen/quer.jpg"));
    QVERIFY(QFile::rename(datei, datei + QStringLiteral(".weg")));
    Meldungsfaenger faenger;
    knopf("cmdGroesser")->click();
    QCOMPARE(faenger.texte, QStringList{QStringLiteral("Bild nicht gefunden! FLOX-CD wieder einlegen!")});
    QVERIFY(!gruen());
    QVERIFY(QFile::rename(datei + QStringLiteral(".weg"), datei));
    knopf("cmdKleiner")->click();
    QTRY_VERIFY(gruen());
    QCOMPARE(faenger.texte.size(), 1);
}

void tst_bilderfenster::damagedPictureGivesWay()
{
    QFile datei(ordner_->pfad(QStringLiteral("topfpflanzen/gross.jpg")));
    QVERIFY(datei.open(QIODevice::ReadWrite) && datei.resize(datei.size() * 2 / 3));
    datei.close();
    QFile text(ordner_->pfad(QStringLiteral("topfpflanzen/hoch.jpg")));
    QVERIFY(text.open(QIODevice::WriteOnly) && text.write("kein Bild") > 0);
    text.close();
    programm_.OriginalGroesse = true;
    programm_.BilderAufCD = true; // a damaged file is there: nobody need put a CD in
    Meldungsfaenger faenger;
    oeffnen({QStringLiteral("quer"), QStringLiteral("gross"), QStringLiteral("hoch"), QStringLiteral("klein")});
    const QSize ersatz = bildgroesse(ersatzbild(programm_)) * 15;
    QVERIFY(!ersatz.isEmpty());
    knopf("cmdNext")->click();
    QTRY_COMPARE(mass("Width"), double(ersatz.width()));
    QCOMPARE(mass("Height"), double(ersatz.height()));
    knopf("cmdNext")->click();
    QCOMPARE(mass("Width"), double(ersatz.width()));
    knopf("cmdNext")->click();
    QCOMPARE(mass("Width"), 80 * 15.0);
    QCOMPARE(position(), QStringLiteral("4/4"));
    QCOMPARE(faenger.texte, QStringList());
}

void tst_bilderfenster::wheel()
{
    oeffnen({QStringLiteral("quer")});
    rad("imgAnzeige", {0, -120});
    QCOMPARE(fenster_->Zoomfaktor(), int(std::lround(mass("Width") / 240)));
    QTest::mouseClick(knopf("cmdOriginal"), Qt::LeftButton);
    const double links = mass("Left"), oben = mass("Top");
    rad("imgAnzeige", {0, -120});
    QCOMPARE(mass("Left"), links);
    QCOMPARE(mass("Top"), oben - 60 * 15);
    rad("imgAnzeige", {0, 120});
    QCOMPARE(mass("Top"), oben);
    rad("imgAnzeige", {0, -120}, Qt::ShiftModifier);
    QCOMPARE(mass("Left"), links - 60 * 15);
    QCOMPARE(mass("Top"), oben);
    // The text below is not the picture.
    rad("picLeiste1", {0, -120});
    QCOMPARE(mass("Top"), oben);
    // Small turns of a touch pad add up to one step of the zoom.
    for (int i = 0; i < 8; ++i)
        rad("imgAnzeige", {0, 15}, Qt::ControlModifier);
    QCOMPARE(fenster_->Zoomfaktor(), 110);
    rad("picLeiste1", {0, -120}, Qt::ControlModifier);
    QCOMPARE(fenster_->Zoomfaktor(), 100);
}

FLOX_TEST(tst_bilderfenster, tst_bilderfenster)
#include "tst_bilderfenster.moc"
