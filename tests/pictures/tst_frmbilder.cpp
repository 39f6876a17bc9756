#include "Bildprobe.h"

#include "controls/Steuerelemente.h"
#include "pictures/frmBilder.h"
#include "tests/Testprogramm.h"

#include <QLabel>
#include <QPushButton>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTest>

/* The picture window: listing, sizes, zoom, bars, walking. */
class tst_frmbilder : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void firstPictureComesWithTheTimer();
    void fitKeepsProportions_data();
    void fitKeepsProportions();
    void originalSizeAndFitOnce();
    void zoomSteps();
    void zoomLimits();
    void browsing();
    void clickedPreviewIsShown();
    void barsOnlyWhenNeeded();
    void barMovesThePicture();
    void buttonPictures();
    void smallWindowSnapsBack();
    void noMatchingRowKeepsThePicturesListed();
    void noActiveWindow();
    void missingFileOnCD();
    void keys();
    void emptyPlant();
    void doubleClickAndF11SwitchTheSize_data();
    void doubleClickAndF11SwitchTheSize();
    void doubleClickBringsItsPointToTheMiddle();
    void maximisedKeepsAllButThePicture_data();
    void maximisedKeepsAllButThePicture();
    void maximisedHasASizeOfItsOwn();
    void maximisedWalks();
    void openedMaximised();

private:
    struct Stand
    {
        QList<double> masse;
        QList<QRect> orte;
        QList<bool> knoepfe;
        bool original;
        bool operator==(const Stand &) const = default;
    };
    Stand stand();
    QWidget *voll() { return teil("fraVollbild"); }
    QWidget *teil(const char *name) { return fenster_->findChild<QWidget *>(QString::fromLatin1(name)); }
    Bildknopf *knopf(const char *name) { return fenster_->findChild<Bildknopf *>(QString::fromLatin1(name)); }
    double mass(const char *name) { return teil("imgAnzeige")->property(name).toDouble(); }
    void oeffnen(const QStringList &staemme);

    std::unique_ptr<Bilderordner> ordner_;
    Programm programm_;
    std::optional<Bilderpflanze> pflanze_;
    std::unique_ptr<frmBilder> fenster_;
};

void tst_frmbilder::init()
{
    fenster_.reset();
    ordner_ = std::make_unique<Bilderordner>();
    ordner_->bild(QStringLiteral("topfpflanzen/quer.jpg"), {1600, 1200});
    ordner_->bild(QStringLiteral("topfpflanzen/hoch.jpg"), {300, 900});
    ordner_->bild(QStringLiteral("topfpflanzen/klein.jpg"), {80, 60});
    programm_ = ordner_->programm();
    programm_.OriginalGroesse = false;
    pflanze_ = Bilderpflanze{Sparte::Topf, 1001, QStringLiteral("Begonia rex"), QStringLiteral("Königsbegonie"), std::nullopt};
}

void tst_frmbilder::oeffnen(const QStringList &staemme)
{
    pflanze_->zeile = zeileAus(staemme, {});
    fenster_ = std::make_unique<frmBilder>(
        programm_, [this] { return pflanze_; }, nullptr);
    fenster_->show();
    QTRY_VERIFY(fenster_->windowTitle() != QStringLiteral("Pflanzenbilder"));
}

void tst_frmbilder::firstPictureComesWithTheTimer()
{
    oeffnen({QStringLiteral("quer"), QStringLiteral("hoch")});
    QCOMPARE(fenster_->findChild<QTimer *>(QStringLiteral("timResize"))->interval(), 125);
    QCOMPARE(fenster_->width(), pixel(programm_.BilderFormBreite));
    QCOMPARE(fenster_->findChild<QLabel *>(QStringLiteral("lblPosition"))->text(), QStringLiteral("1/2"));
    QCOMPARE(fenster_->findChild<QLabel *>(QStringLiteral("lblDeuName"))->text(), QStringLiteral("Königsbegonie"));
    QCOMPARE(fenster_->findChild<QLabel *>(QStringLiteral("lblBeschreibung"))->text(), QStringLiteral("Text quer"));
    QCOMPARE(fenster_->windowTitle(), QStringLiteral("Begonia rex (Bildgröße: %1%)").arg(fenster_->Zoomfaktor()));
}

void tst_frmbilder::fitKeepsProportions_data()
{
    QTest::addColumn<QString>("stamm");
    QTest::addColumn<double>("verhaeltnis");
    QTest::addRow("landscape") << QStringLiteral("quer") << 1600.0 / 1200;
    QTest::addRow("portrait") << QStringLiteral("hoch") << 300.0 / 900;
    QTest::addRow("small is enlarged") << QStringLiteral("klein") << 80.0 / 60;
}

void tst_frmbilder::fitKeepsProportions()
{
    QFETCH(QString, stamm);
    QFETCH(double, verhaeltnis);
    oeffnen({stamm});
    const QWidget *flaeche = teil("picBildAnzeige");
    QVERIFY(std::abs(mass("Width") / mass("Height") - verhaeltnis) < 0.001);
    const double breite = flaeche->width() * 15.0, hoehe = flaeche->height() * 15.0;
    QVERIFY(mass("Width") <= breite + 0.01 && mass("Height") <= hoehe + 0.01);
    QVERIFY(std::abs(mass("Width") - breite) < 0.01 || std::abs(mass("Height") - hoehe) < 0.01);
    QVERIFY(std::abs(mass("Left") - (breite - mass("Width")) / 2) < 0.01);
}

void tst_frmbilder::originalSizeAndFitOnce()
{
    programm_.OriginalGroesse = true;
    oeffnen({QStringLiteral("quer"), QStringLiteral("hoch")});
    QCOMPARE(mass("Width"), 24000.0);
    QCOMPARE(fenster_->Zoomfaktor(), 100);
    QTest::mouseClick(knopf("cmdAnpassen"), Qt::LeftButton);
    QVERIFY(mass("Width") <= teil("picBildAnzeige")->width() * 15.0 + 0.01);
    QTest::mouseClick(knopf("cmdNext"), Qt::LeftButton);
    QCOMPARE(mass("Height"), 900 * 15.0);
}

void tst_frmbilder::zoomSteps()
{
    oeffnen({QStringLiteral("quer")});
    QTest::mouseClick(knopf("cmdOriginal"), Qt::LeftButton);
    const double links = mass("Left");
    QTest::mouseClick(knopf("cmdGroesser"), Qt::LeftButton);
    QCOMPARE(mass("Width"), 24000 + 2400.0);
    QCOMPARE(mass("Height"), 18000 + 1800.0);
    QCOMPARE(mass("Left"), links - 1200);
    QCOMPARE(fenster_->Zoomfaktor(), 110);
    QVERIFY(fenster_->windowTitle().contains(u"110%"));
    QTest::mouseClick(knopf("cmdKleiner"), Qt::LeftButton);
    QTest::mouseClick(knopf("cmdKleiner"), Qt::LeftButton);
    QCOMPARE(fenster_->Zoomfaktor(), 90);
}

void tst_frmbilder::zoomLimits()
{
    oeffnen({QStringLiteral("klein")});
    QTest::mouseClick(knopf("cmdOriginal"), Qt::LeftButton);
    int hinauf = 0, hinab = 0;
    for (; knopf("cmdGroesser")->isEnabled() && hinauf < 50; ++hinauf)
        QTest::mouseClick(knopf("cmdGroesser"), Qt::LeftButton);
    QCOMPARE(hinauf, 21);
    QTest::mouseClick(knopf("cmdOriginal"), Qt::LeftButton);
    for (; knopf("cmdKleiner")->isEnabled() && hinab < 50; ++hinab)
        QTest::mouseClick(knopf("cmdKleiner"), Qt::LeftButton);
    QCOMPARE(hinab, 6);
    QCOMPARE(fenster_->Zoomfaktor(), 40);
}

void tst_frmbilder::browsing()
{
    oeffnen({QStringLiteral("quer"), QStringLiteral("hoch"), QStringLiteral("klein")});
    QVERIFY(!knopf("cmdBack")->isEnabled());
    QCOMPARE(knopf("cmdBack")->bild(), QStringLiteral("back_ef"));
    knopf("cmdNext")->click();
    QCOMPARE(fenster_->findChild<QLabel *>(QStringLiteral("lblPosition"))->text(), QStringLiteral("2/3"));
    QCOMPARE(knopf("cmdBack")->bild(), QStringLiteral("back_n"));
    knopf("cmdNext")->click();
    QVERIFY(!knopf("cmdNext")->isEnabled());
    QCOMPARE(knopf("cmdNext")->bild(), QStringLiteral("next_ef"));
    QCOMPARE(fenster_->findChild<QLabel *>(QStringLiteral("lblBeschreibung"))->text(), QStringLiteral("Text klein"));
}

void tst_frmbilder::clickedPreviewIsShown()
{
    oeffnen({QStringLiteral("quer"), QStringLiteral("hoch")});
    programm_.GewaehltesBild = 1;
    fenster_->NeuePflanze();
    QCOMPARE(fenster_->findChild<QLabel *>(QStringLiteral("lblPosition"))->text(), QStringLiteral("2/2"));
    programm_.GewaehltesBild = 7;
    fenster_->NeuePflanze();
    QCOMPARE(fenster_->findChild<QLabel *>(QStringLiteral("lblPosition"))->text(), QStringLiteral("2/2"));
}

void tst_frmbilder::barsOnlyWhenNeeded()
{
    oeffnen({QStringLiteral("quer")});
    QVERIFY(!teil("hscBild")->isVisible() && !teil("vscBild")->isVisible() && !teil("picAbdeckung")->isVisible());
    QTest::mouseClick(knopf("cmdOriginal"), Qt::LeftButton);
    QVERIFY(teil("hscBild")->isVisible() && teil("vscBild")->isVisible() && teil("picAbdeckung")->isVisible());
    QVERIFY(teil("hscBild")->isEnabled() && teil("vscBild")->isEnabled());
}

void tst_frmbilder::barMovesThePicture()
{
    oeffnen({QStringLiteral("quer")});
    QTest::mouseClick(knopf("cmdOriginal"), Qt::LeftButton);
    const double weg = teil("picBildAnzeige")->width() * 15.0 - 315 - 24000;
    fenster_->findChild<QScrollBar *>(QStringLiteral("hscBild"))->setValue(100);
    QVERIFY(std::abs(mass("Left") - weg) < 0.01);
    fenster_->findChild<QScrollBar *>(QStringLiteral("hscBild"))->setValue(0);
    QVERIFY(std::abs(mass("Left")) < 0.01);
}

void tst_frmbilder::buttonPictures()
{
    oeffnen({QStringLiteral("quer"), QStringLiteral("hoch")});
    for (const auto &[name, stamm] : {std::pair("cmdGroesser", "groesser"), std::pair("cmdKleiner", "kleiner"), std::pair("cmdAnpassen", "anpassen"),
                                      std::pair("cmdOriginal", "original"), std::pair("cmdNext", "next")}) {
        Bildknopf *button = knopf(name);
        const QString schluessel = QString::fromLatin1(stamm);
        emit button->mausVerlassen(); // wherever the pointer of the test machine stands
        QCOMPARE(button->bild(), schluessel + QStringLiteral("_n"));
        emit button->mausBewegt();
        QCOMPARE(button->bild(), schluessel);
        QCOMPARE(button->tag(), QStringLiteral("benutzt"));
        emit button->mausGedrueckt();
        QCOMPARE(button->bild(), schluessel + QStringLiteral("_u"));
        emit button->mausLosgelassen();
        QCOMPARE(button->bild(), schluessel);
        emit button->mausVerlassen();
        QCOMPARE(button->bild(), schluessel + QStringLiteral("_n"));
        QVERIFY(!button->toolTip().isEmpty());
    }
}

void tst_frmbilder::smallWindowSnapsBack()
{
    oeffnen({QStringLiteral("quer")});
    fenster_->resize(200, 200);
    QTRY_COMPARE(fenster_->size(), QSize(pixel(5000), pixel(5000)));
    QTRY_COMPARE(programm_.BilderFormBreite, pixel(5000) * 15.0);
}

void tst_frmbilder::noMatchingRowKeepsThePicturesListed()
{
    oeffnen({QStringLiteral("quer"), QStringLiteral("hoch")});
    pflanze_->zeile.reset();
    fenster_->NeuePflanze();
    QCOMPARE(fenster_->findChild<QLabel *>(QStringLiteral("lblPosition"))->text(), QStringLiteral("1/2"));
}

void tst_frmbilder::noActiveWindow()
{
    oeffnen({QStringLiteral("quer")});
    pflanze_.reset();
    Meldungsfaenger faenger;
    fenster_->NeuePflanze();
    QCOMPARE(faenger.texte, QStringList{QStringLiteral("Hoppla")});
}

void tst_frmbilder::missingFileOnCD()
{
    oeffnen({QStringLiteral("quer"), QStringLiteral("hoch")});
    programm_.BilderAufCD = true;
    QVERIFY(QFile::remove(ordner_->pfad(QStringLiteral("topfpflanzen/hoch.jpg"))));
    Meldungsfaenger faenger;
    knopf("cmdNext")->click();
    QCOMPARE(faenger.texte, QStringList{QStringLiteral("Bild nicht gefunden! FLOX-CD wieder einlegen!")});
}

void tst_frmbilder::keys()
{
    oeffnen({QStringLiteral("quer"), QStringLiteral("hoch")});
    QTest::keyClick(fenster_.get(), Qt::Key_Right);
    QCOMPARE(fenster_->findChild<QLabel *>(QStringLiteral("lblPosition"))->text(), QStringLiteral("2/2"));
    QTest::keyClick(fenster_.get(), Qt::Key_Left);
    QCOMPARE(fenster_->findChild<QLabel *>(QStringLiteral("lblPosition"))->text(), QStringLiteral("1/2"));
    QSignalSpy geschlossen(fenster_.get(), &frmBilder::geschlossen);
    QTest::keyClick(fenster_.get(), Qt::Key_Escape);
    QCOMPARE(geschlossen.count(), 1);
    QVERIFY(!fenster_->isVisible());
}

void tst_frmbilder::emptyPlant()
{
    oeffnen({});
    QCOMPARE(fenster_->Zoomfaktor(), 0);
    QCOMPARE(fenster_->findChild<QLabel *>(QStringLiteral("lblPosition"))->text(), QStringLiteral("0/0"));
    QVERIFY(!knopf("cmdNext")->isEnabled() && !knopf("cmdBack")->isEnabled());
}

tst_frmbilder::Stand tst_frmbilder::stand()
{
    Stand stand{{programm_.BilderFormBreite, programm_.BilderFormHoehe}, {}, {}, programm_.OriginalGroesse};
    for (const char *name : {"Left", "Top", "Width", "Height"})
        stand.masse += mass(name);
    for (const char *name : {"picBildAnzeige", "imgAnzeige", "picLeiste1", "picLeiste2", "hscBild", "vscBild", "lblBeschreibung"})
        stand.orte += teil(name)->geometry();
    for (const char *name : {"cmdGroesser", "cmdKleiner", "cmdAnpassen", "cmdOriginal", "cmdBack", "cmdNext"}) {
        stand.knoepfe += knopf(name)->isEnabled();
        stand.orte += knopf(name)->geometry();
    }
    return stand;
}

void tst_frmbilder::doubleClickAndF11SwitchTheSize_data()
{
    QTest::addColumn<bool>("maus");
    QTest::addColumn<QString>("stamm");
    for (const char *stamm : {"quer", "hoch", "klein"}) {
        QTest::addRow("double-click, %s", stamm) << true << QString::fromLatin1(stamm);
        QTest::addRow("F11, %s", stamm) << false << QString::fromLatin1(stamm);
    }
}

void tst_frmbilder::doubleClickAndF11SwitchTheSize()
{
    QFETCH(bool, maus);
    QFETCH(QString, stamm);
    oeffnen({stamm});
    const auto schalten = [&] {
        if (maus)
            QTest::mouseDClick(teil("imgAnzeige"), Qt::LeftButton);
        else
            QTest::keyClick(fenster_.get(), Qt::Key_F11);
    };
    const double angepasst = mass("Width");
    schalten();
    QCOMPARE(fenster_->Zoomfaktor(), 100);
    schalten();
    QCOMPARE(mass("Width"), angepasst);
    // From any other size the whole picture comes first.
    QTest::mouseClick(knopf("cmdKleiner"), Qt::LeftButton);
    schalten();
    QCOMPARE(mass("Width"), angepasst);
    QVERIFY(!programm_.OriginalGroesse);
}

void tst_frmbilder::doubleClickBringsItsPointToTheMiddle()
{
    oeffnen({QStringLiteral("quer")});
    QWidget *bild = teil("imgAnzeige"), *flaeche = teil("picBildAnzeige");
    const QPoint punkt(bild->width() * 2 / 5, bild->height() * 2 / 5);
    QTest::mouseDClick(bild, Qt::LeftButton, {}, punkt);
    const QPointF mitte((flaeche->width() * 15.0 / 2 - mass("Left")) / mass("Width"), (flaeche->height() * 15.0 / 2 - mass("Top")) / mass("Height"));
    QVERIFY2(std::abs(mitte.x() - 0.4) < 0.01 && std::abs(mitte.y() - 0.4) < 0.01, qPrintable(QStringLiteral("%1 %2").arg(mitte.x()).arg(mitte.y())));
}

void tst_frmbilder::maximisedKeepsAllButThePicture_data()
{
    QTest::addColumn<bool>("original");
    QTest::addRow("fitted") << false;
    QTest::addRow("own size") << true;
}

void tst_frmbilder::maximisedKeepsAllButThePicture()
{
    QFETCH(bool, original);
    programm_.OriginalGroesse = original;
    oeffnen({QStringLiteral("quer"), QStringLiteral("hoch")});
    QTest::mouseClick(knopf("cmdGroesser"), Qt::LeftButton);
    const Stand vorher = stand();
    const QSize groesse = fenster_->size();
    const QString titel = fenster_->windowTitle();
    for (int runde = 0; runde < 2; ++runde) {
        fenster_->showMaximized();
        QTRY_VERIFY(voll()->isVisible() && fenster_->isMaximized());
        QTRY_COMPARE(voll()->geometry(), fenster_->rect());
        QTRY_VERIFY(!fenster_->findChild<QTimer *>(QStringLiteral("timResize"))->isActive());
        QCOMPARE(stand(), vorher);
        QTest::keyClick(fenster_.get(), Qt::Key_F11);
        QTest::keyClick(fenster_.get(), Qt::Key_Plus);
        QTest::mouseDClick(voll(), Qt::LeftButton);
        QCOMPARE(stand(), vorher);
        QTest::mouseClick(teil("cmdVollbildFenster"), Qt::LeftButton);
        QTRY_VERIFY(voll()->isHidden());
        QTRY_COMPARE(fenster_->size(), groesse);
        QTRY_VERIFY(!fenster_->findChild<QTimer *>(QStringLiteral("timResize"))->isActive());
        QCOMPARE(stand(), vorher);
        QCOMPARE(fenster_->windowTitle(), titel);
    }
    // A size of its own is noted again.
    fenster_->resize(groesse + QSize(30, 20));
    QTRY_COMPARE(programm_.BilderFormBreite, (groesse.width() + 30) * 15.0);
}

void tst_frmbilder::maximisedHasASizeOfItsOwn()
{
    oeffnen({QStringLiteral("quer")});
    fenster_->showMaximized();
    QTRY_VERIFY(voll()->isVisible());
    QTRY_COMPARE(voll()->geometry(), fenster_->rect());
    const auto prozent = [&] { return fenster_->windowTitle().section(u' ', -1).chopped(2).toInt(); };
    const double platz = std::min(voll()->width() / 1600.0, (voll()->height() - teil("cmdVollbildFenster")->parentWidget()->height()) / 1200.0);
    QCOMPARE(prozent(), int(std::lround(platz * 100)));
    const int angepasst = prozent();
    QTest::keyClick(fenster_.get(), Qt::Key_F11);
    QCOMPARE(prozent(), 100);
    QTest::keyClick(fenster_.get(), Qt::Key_Plus);
    QCOMPARE(prozent(), 110);
    radDrehen(voll(), {0, -240}, Qt::ControlModifier);
    QCOMPARE(prozent(), 90);
    QTest::mouseDClick(voll(), Qt::LeftButton);
    QCOMPARE(prozent(), angepasst);
    // Its middle shows the picture.
    QTRY_COMPARE(voll()->grab().toImage().pixelColor(voll()->rect().center()).green() > 80, true);
}

void tst_frmbilder::maximisedWalks()
{
    oeffnen({QStringLiteral("quer"), QStringLiteral("hoch")});
    fenster_->showMaximized();
    QTRY_VERIFY(voll()->isVisible());
    const auto text = [&] { return fenster_->findChild<QLabel *>(QStringLiteral("lblVollbildPosition"))->text(); };
    QCOMPARE(text(), QStringLiteral("1/2"));
    QVERIFY(!teil("cmdVollbildBack")->isEnabled());
    QTest::keyClick(fenster_.get(), Qt::Key_Right);
    QCOMPARE(text(), QStringLiteral("2/2"));
    QVERIFY(!teil("cmdVollbildNext")->isEnabled());
    QTest::mouseClick(teil("cmdVollbildBack"), Qt::LeftButton);
    QCOMPARE(text(), QStringLiteral("1/2"));
    // Nothing that is covered takes the focus.
    QTest::keyClick(fenster_.get(), Qt::Key_Tab);
    QCOMPARE(fenster_->focusWidget(), static_cast<QWidget *>(fenster_.get()));
    QTest::keyClick(fenster_.get(), Qt::Key_Escape);
    QTRY_VERIFY(fenster_->isHidden());
}

void tst_frmbilder::openedMaximised()
{
    const double breite = programm_.BilderFormBreite;
    pflanze_->zeile = zeileAus({QStringLiteral("quer")}, {});
    fenster_ = std::make_unique<frmBilder>(
        programm_, [this] { return pflanze_; }, nullptr);
    fenster_->showMaximized();
    QTRY_VERIFY(voll()->isVisible());
    QTRY_VERIFY(fenster_->windowTitle().startsWith(QStringLiteral("Begonia rex (")));
    QCOMPARE(programm_.BilderFormBreite, breite);
    fenster_->showNormal();
    QTRY_VERIFY(voll()->isHidden());
    QTRY_COMPARE(teil("picBildAnzeige")->width(), pixel(fenster_->width() * 15.0 - 325));
}

FLOX_TEST(tst_frmbilder, tst_frmbilder)
#include "tst_frmbilder.moc"
