#include "Fensterprobe.h"

#include "frame/Aussehen.h"
#include "tests/Testprogramm.h"

#include <QAbstractItemView>
#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QPlainTextEdit>
#include <QScrollBar>
#include <QTabBar>
#include <QTabWidget>
#include <QTest>

#include <cmath>

using namespace Qt::StringLiterals;

/* The plant window by hand: pressing and sliding off, keys alone, hints, the selector, and what is read out. */

class TestBedienung : public QObject
{
    Q_OBJECT

private slots:
    void ordnungMitFokusInDerAuswahl();
    void init();
    void abrutschenBeendetDieSanduhr_data();
    void abrutschenBeendetDieSanduhr();
    void tastaturLaesstNichtsLeuchten();
    void leertasteAmEnde_data();
    void leertasteAmEnde();
    void reihenfolgeDerTasten();
    void kuerzelSindBefehle();
    void listeHatZwanzigZeilen();
    void keinNamePasst();
    void hinweiseBleibenNichtStehen();
    void pfeileInDerReihe_data();
    void pfeileInDerReihe();
    void namenMitGruppe();
    void zustandWirdGesagt();
    void bewertungAlsZahl();
    void monateSindLesbar();
    void fokusIstZuSehen();

private:
    QComboBox *auswahl() { return probe_->finde<QComboBox>(u"cboArten"_s); }
    int stelle() { return int(probe_->fenster->satz().haupt().AbsolutePosition()); }
    void aktivieren();
    static void taste(Qt::Key taste, Qt::KeyboardModifiers um = {}) { QTest::keyClick(QApplication::focusWidget(), taste, um); }

    std::unique_ptr<Fensterprobe> probe_;
};

void TestBedienung::init()
{
    probe_.reset();
    probe_ = std::make_unique<Fensterprobe>();
    probe_->oeffnen();
}

void TestBedienung::aktivieren()
{
    probe_->fenster->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(probe_->fenster.get()));
}

void TestBedienung::abrutschenBeendetDieSanduhr_data()
{
    QTest::addColumn<QString>("knopf");
    for (const char *name : {"cmdFirst", "cmdBack", "cmdNext", "cmdLast"})
        QTest::newRow(name) << QString::fromLatin1(name);
}

void TestBedienung::abrutschenBeendetDieSanduhr()
{
    QFETCH(QString, knopf);
    probe_->fenster->satz().haupt().setAbsolutePosition(5);
    probe_->fenster->NaviPruefung();
    auto *button = probe_->finde<Bildknopf>(knopf);
    // As a hand does it: over the button, down, out, up. Qt counts the button as under the mouse all the while.
    button->setAttribute(Qt::WA_UnderMouse);
    Fensterprobe::mausBewegen(button, QPoint(10, 10));
    QTest::mousePress(button, Qt::LeftButton);
    QCOMPARE(probe_->fenster->cursor().shape(), Qt::WaitCursor);
    QTest::mouseMove(button, QPoint(-60, 30));
    QTest::mouseRelease(button, Qt::LeftButton, {}, QPoint(-60, 30));
    QCOMPARE(probe_->fenster->cursor().shape(), Qt::ArrowCursor);
    QCOMPARE(stelle(), 5);
}

void TestBedienung::tastaturLaesstNichtsLeuchten()
{
    aktivieren();
    const std::tuple<const char *, QString, QString> faelle[] = {{"cmdBotDeu", u"deutsch_n"_s, u"botanisc_n"_s},
                                                                 {"cmdFilterEin", u"filter_n2"_s, u"filter_n_n"_s}};
    for (const auto &[name, einmal, zweimal] : faelle) {
        probe_->knopf(name)->setFocus();
        taste(Qt::Key_Space);
        QCOMPARE(probe_->knopf(name)->bild(), einmal);
        probe_->knopf(name)->setFocus();
        taste(Qt::Key_Space);
        QCOMPARE(probe_->knopf(name)->bild(), zweimal);
    }
    // Under the mouse it does light up.
    auto *button = probe_->knopf("cmdBotDeu");
    Fensterprobe::mausBewegen(button, QPoint(10, 10));
    QTest::mouseClick(button, Qt::LeftButton);
    QCOMPARE(button->bild(), u"deutsch"_s);
}

void TestBedienung::leertasteAmEnde_data()
{
    QTest::addColumn<QString>("knopf");
    QTest::addColumn<int>("stelle"); // before; negative: from the end
    QTest::newRow("next") << u"cmdNext"_s << -2;
    QTest::newRow("last") << u"cmdLast"_s << 3;
    QTest::newRow("back") << u"cmdBack"_s << 1;
    QTest::newRow("first") << u"cmdFirst"_s << 7;
}

void TestBedienung::leertasteAmEnde()
{
    QFETCH(QString, knopf);
    QFETCH(int, stelle);
    aktivieren();
    probe_->fenster->satz().haupt().setAbsolutePosition(stelle < 0 ? probe_->fenster->Anzahl + stelle : stelle);
    probe_->fenster->darstellen();
    probe_->fenster->NaviPruefung();
    probe_->finde(knopf)->setFocus();
    taste(Qt::Key_Space);
    const int ende = this->stelle();
    QVERIFY(ende == 0 || ende == probe_->fenster->Anzahl - 1);
    QCOMPARE(QApplication::focusWidget(), static_cast<QWidget *>(auswahl()));
    // Once more presses no other button.
    taste(Qt::Key_Space);
    auswahl()->hidePopup();
    QCOMPARE(this->stelle(), ende);
    QVERIFY(probe_->fenster->Botanisch && probe_->fenster->FilterEin);
    QVERIFY(!probe_->zentrale.gesperrt && probe_->zentrale.gedruckt == 0);
}

void TestBedienung::reihenfolgeDerTasten()
{
    aktivieren();
    probe_->fenster->satz().haupt().setAbsolutePosition(5);
    probe_->fenster->NaviPruefung();
    probe_->reiterVon(u"txtEigeneBemerkung"_s);
    probe_->knopf("cmdFirst")->setFocus();
    QStringList folge;
    for (int i = 0; i < 60; ++i) {
        QWidget *jetzt = QApplication::focusWidget();
        QVERIFY(jetzt);
        QVERIFY2(jetzt != probe_->fenster.get(), "the form itself is no stop");
        if (i > 0 && jetzt == probe_->knopf("cmdFirst"))
            break;
        folge += jetzt->objectName();
        taste(Qt::Key_Tab);
    }
    // clang-format off
    const QStringList verlangt{u"cmdFirst"_s, u"cmdBack"_s, u"cboArten"_s, u"cmdNext"_s, u"cmdLast"_s, u"cmdBotDeu"_s, u"cmdFilterEin"_s, u"cmdFilter"_s,
                               u"cmdFilterLaden"_s, u"cmdFilterSpeichern"_s, u"cmdDruck"_s, u"qt_tabwidget_tabbar"_s, u"txtEigeneBemerkung"_s,
                               u"sschkBenutzer_0"_s, u"sschkBenutzer_1"_s, u"sschkBenutzer_2"_s, u"sschkBenutzer_3"_s, u"sschkBenutzer_4"_s,
                               u"cmdNamen"_s};
    // clang-format on
    QCOMPARE(folge.mid(0, verlangt.size()).join(u' '), verlangt.join(u' '));
}

void TestBedienung::kuerzelSindBefehle()
{
    // clang-format off
    const std::pair<QString, QString> befehle[] = {{u"Erste Pflanze"_s, u"Ctrl+Home"_s}, {u"Vorherige Pflanze"_s, u"Ctrl+PgUp"_s},
                                                   {u"Nächste Pflanze"_s, u"Ctrl+PgDown"_s}, {u"Letzte Pflanze"_s, u"Ctrl+End"_s},
                                                   {u"Drucken"_s, u"Ctrl+P"_s},
                                                   // Without a button.
                                                   {u"Zurück zur zuletzt gezeigten Pflanze"_s, u"Alt+Left"_s}, {u"Wieder vor"_s, u"Alt+Right"_s},
                                                   {u"Suchen"_s, u"Ctrl+F"_s}, {u"Üben"_s, u"F9"_s}, {u"Alle Bilder ansehen"_s, u"Ctrl+U"_s},
                                                   {u"Zweites Fenster daneben öffnen"_s, u"Ctrl+Shift+C"_s},
                                                   {u"Zwei Fenster verbinden oder trennen"_s, u"Ctrl+L"_s},
                                                   {u"Datensatz kopieren"_s, u"Ctrl+Shift+A"_s}};
    // clang-format on
    QStringList verlangt, da;
    for (const auto &[text, kuerzel] : befehle)
        verlangt += text + u' ' + kuerzel;
    for (const QAction *befehl : probe_->fenster->actions())
        da += befehl->text() + u' ' + befehl->shortcut().toString(QKeySequence::PortableText);
    QCOMPARE(da, verlangt);
    probe_->fenster->actions()[2]->trigger();
    QCOMPARE(stelle(), 1);
    probe_->fenster->actions()[4]->trigger();
    QCOMPARE(probe_->zentrale.gedruckt, 1);
}

void TestBedienung::listeHatZwanzigZeilen()
{
    QVERIFY(auswahl()->count() > 20);
    auswahl()->showPopup();
    QCoreApplication::processEvents();
    const QAbstractItemView *liste = auswahl()->view();
    const int zeile = liste->sizeHintForRow(0);
    QCOMPARE(liste->viewport()->height() / zeile, 20);
    QVERIFY(liste->verticalScrollBar()->isVisible());
    auswahl()->hidePopup();
}

void TestBedienung::keinNamePasst()
{
    aktivieren();
    auswahl()->setFocus();
    const int vorher = stelle();
    QTest::keyClicks(auswahl(), u"qxq"_s);
    QCOMPARE(probe_->panel(2), u"Kein Name beginnt mit „qxq“"_s);
    QCOMPARE(stelle(), vorher);
    QTest::qWait(QApplication::keyboardInputInterval() + 100);
    QTest::keyClick(auswahl(), Qt::Key_B);
    QVERIFY(auswahl()->currentText().startsWith(u'B', Qt::CaseInsensitive));
    QCOMPARE(probe_->panel(2), QString());
    // In the open list too.
    auswahl()->showPopup();
    QTest::qWait(QApplication::keyboardInputInterval() + 100);
    QTest::keyClicks(auswahl()->view(), u"qy"_s);
    QCOMPARE(probe_->panel(2), u"Kein Name beginnt mit „qy“"_s);
    auswahl()->hidePopup();
    probe_->klick("cmdLast");
    QCOMPARE(probe_->panel(2), QString());
}

void TestBedienung::hinweiseBleibenNichtStehen()
{
    probe_->setzen({{u"PFLANZTYP"_s, u"10000"_s}});
    auto *bild = probe_->finde<Bildfeld>(u"imgEigen_0"_s);
    Fensterprobe::mausBewegen(bild);
    QCOMPARE(probe_->panel(2), u"Diese Pflanze ist eine Grünpflanze"_s);
    // Out of the picture and out of the window in one go.
    QEvent hinaus(QEvent::Leave);
    QCoreApplication::sendEvent(bild, &hinaus);
    QCOMPARE(probe_->panel(2), QString());
    Fensterprobe::mausBewegen(bild);
    QCOMPARE(probe_->panel(2), u"Diese Pflanze ist eine Grünpflanze"_s);
    probe_->fenster->actions()[2]->trigger();
    QCOMPARE(probe_->panel(2), QString());
}

void TestBedienung::pfeileInDerReihe_data()
{
    QTest::addColumn<bool>("bilder");
    QTest::newRow("cells") << false;
    QTest::newRow("pictures") << true;
}

void TestBedienung::pfeileInDerReihe()
{
    QFETCH(bool, bilder);
    QWidget fenster;
    QList<QWidget *> erste, zweite;
    for (QList<QWidget *> *reihe : {&erste, &zweite})
        for (int i = 0; i < 12; ++i) {
            QWidget *zelle = nullptr;
            if (bilder) {
                auto *bild = new Bildfeld({20, 20}, &fenster);
                bild->setBedienbar();
                zelle = bild;
            } else {
                auto *farbe = new Farbzelle(false, &fenster);
                farbe->setBedienbar();
                zelle = farbe;
            }
            zelle->setObjectName(u"%1_%2"_s.arg(reihe == &erste ? u"lblA"_s : u"lblB"_s).arg(i));
            *reihe += zelle;
        }
    fenster.show();
    fenster.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&fenster));
    erste[0]->setFocus();
    // clang-format off
    const std::tuple<Qt::Key, Qt::KeyboardModifiers, QWidget *> schritte[] = {
        {Qt::Key_Right, {}, erste[1]},  {Qt::Key_Right, {}, erste[2]},           {Qt::Key_Left, {}, erste[1]},
        {Qt::Key_End, {}, erste[11]},   {Qt::Key_Right, {}, erste[11]},          {Qt::Key_Home, {}, erste[0]},
        {Qt::Key_Left, {}, erste[0]},   {Qt::Key_Right, {}, erste[1]},           {Qt::Key_Tab, {}, zweite[0]},
        {Qt::Key_Right, {}, zweite[1]}, {Qt::Key_Tab, Qt::ShiftModifier, erste[1]}, {Qt::Key_Tab, {}, zweite[1]},
        {Qt::Key_Tab, {}, erste[1]}};
    // clang-format on
    for (const auto &[welche, um, ziel] : schritte) {
        taste(welche, um);
        QVERIFY2(QApplication::focusWidget() == ziel,
                 qPrintable(u"%1 in place of %2"_s.arg(QApplication::focusWidget()->objectName(), ziel->objectName())));
    }
}

void TestBedienung::namenMitGruppe()
{
    int kaesten = 0;
    for (const QPlainTextEdit *kasten : probe_->fenster->findChildren<QPlainTextEdit *>()) {
        QVERIFY2(!kasten->accessibleName().isEmpty(), qPrintable(kasten->objectName()));
        ++kaesten;
    }
    QVERIFY(kaesten >= 4);
    const std::pair<const char *, QString> namen[] = {{"txtSorten", u"Sorten"_s},
                                                      {"txtKrank", u"Krankheiten und Schädlinge"_s},
                                                      {"lblBlMonat_0", u"Blüte, Zeit: Januar"_s},
                                                      {"lblFrMonat_0", u"Frucht, Zeit: Januar"_s},
                                                      {"lblAngMonat_11", u"Angebot, Angebotszeit: Dezember"_s},
                                                      {"imgLicht_0", u"Standort, Licht: sonnig"_s}};
    for (const auto &[control, name] : namen)
        QCOMPARE(probe_->finde(QString::fromLatin1(control))->accessibleName(), name);
    // A property without a name can be told from the others.
    probe_->programm.BenutzerNamen[size_t(Sparte::Topf)][3].clear();
    probe_->fenster->eigenschaftenBenennen();
    QCOMPARE(probe_->finde(u"sschkBenutzer_3"_s)->accessibleName(), u"Eigene Eigenschaft 4"_s);
}

void TestBedienung::zustandWirdGesagt()
{
    probe_->setzen({{u"BLUEHZEIT"_s, u"010000000001"_s}, {u"FARBEN"_s, u"1000000000001"_s}});
    const auto zustand = [&](const char *name) { return probe_->finde(QString::fromLatin1(name))->accessibleDescription(); };
    QCOMPARE(zustand("lblBlMonat_0"), u"nicht gesetzt"_s);
    QCOMPARE(zustand("lblBlMonat_1"), u"gesetzt"_s);
    QCOMPARE(zustand("lblBlMonat_11"), u"gesetzt"_s);
    QCOMPARE(zustand("lblBlFarbe_0"), u"gesetzt"_s);
    QCOMPARE(zustand("lblBlFarbe_12"), u"gesetzt"_s);
    QCOMPARE(probe_->zelle(u"lblBlMonat"_s, 0)->parentWidget()->accessibleDescription(), u"Februar, Dezember"_s);
    Bildfeld bild({20, 20});
    bild.setBedienbar();
    QCOMPARE(bild.accessibleDescription(), u"nicht gesetzt"_s);
    bild.setBorderStyle(1);
    QCOMPARE(bild.accessibleDescription(), u"gesetzt"_s);
}

void TestBedienung::bewertungAlsZahl()
{
    probe_->setzen({{u"bewertung"_s, 7}});
    QCOMPARE(probe_->text(u"lblBewertungZahl"_s), u"7 von 9"_s);
    auto *leiste = probe_->finde(u"picBewertung"_s);
    QCOMPARE(leiste->accessibleDescription(), u"7 von 9"_s);
    for (const QString &wort : {u"7 von 9"_s, u"Rarität"_s, u"Standardsortiment"_s})
        QVERIFY2(leiste->toolTip().contains(wort), qPrintable(leiste->toolTip()));
    probe_->setzen({{u"bewertung"_s, {}}});
    QCOMPARE(probe_->text(u"lblBewertungZahl"_s), u"–"_s);
    QCOMPARE(probe_->finde(u"picBewAnzeige"_s)->property("Left").toInt(), 592);
}

void TestBedienung::monateSindLesbar()
{
    aussehen::anwenden(); // the program's own colours
    Farbzelle zelle(false);
    zelle.setCaption(u"M"_s);
    zelle.setMass({60, 60});
    zelle.resize(60, 60);
    QFont gross = zelle.font();
    gross.setPointSize(30);
    zelle.setFont(gross);
    const auto helligkeit = [](QColor farbe) {
        const auto linear = [](double wert) { return wert <= 0.03928 ? wert / 12.92 : std::pow((wert + 0.055) / 1.055, 2.4); };
        return 0.2126 * linear(farbe.redF()) + 0.7152 * linear(farbe.greenF()) + 0.0722 * linear(farbe.blueF());
    };
    for (const int farbe : {farbeKnopf, farbeTitel}) {
        zelle.setBackColor(farbe);
        const QImage bild = zelle.grab().toImage();
        double hellstes = 0, dunkelstes = 1;
        for (int y = 12; y < 48; ++y)
            for (int x = 12; x < 48; ++x) {
                hellstes = std::max(hellstes, helligkeit(bild.pixelColor(x, y)));
                dunkelstes = std::min(dunkelstes, helligkeit(bild.pixelColor(x, y)));
            }
        const double kontrast = (hellstes + 0.05) / (dunkelstes + 0.05);
        QVERIFY2(kontrast >= 4.5, qPrintable(QString::number(kontrast)));
    }
}

void TestBedienung::fokusIstZuSehen()
{
    aktivieren();
    auto *button = probe_->knopf("cmdDruck");
    auswahl()->setFocus();
    const QImage ohne = button->grab().toImage();
    button->setFocus();
    const QImage mit = button->grab().toImage();
    int anders = 0;
    for (int y = 0; y < ohne.height(); ++y)
        for (int x = 0; x < ohne.width(); ++x)
            anders += std::abs(qGray(ohne.pixel(x, y)) - qGray(mit.pixel(x, y))) > 80;
    QVERIFY2(anders >= 100, qPrintable(QString::number(anders)));
}

/// The other order keeps the plant, wherever the focus is.
void TestBedienung::ordnungMitFokusInDerAuswahl()
{
    Fensterprobe probe;
    probe.oeffnen();
    for (int i = 0; i < 4; ++i)
        QTest::mouseClick(probe.finde<QWidget>(u"cmdNext"_s), Qt::LeftButton);
    const qint64 artnr = probe.fenster->satz().artnr();
    int gezeigt = 0;
    probe.zentrale.beimWechsel = [&] { ++gezeigt; };
    QCOMPARE(probe.fenster->satz().haupt().AbsolutePosition(), 4);
    for (const bool mitFokus : {true, false}) {
        probe.finde<QWidget>(mitFokus ? u"cboArten"_s : u"cmdBotDeu"_s)->setFocus(Qt::TabFocusReason);
        QCOMPARE(probe.fenster->ArtenHatFokus, mitFokus);
        for (int mal = 0; mal < 2; ++mal) {
            QTest::mouseClick(probe.finde<QWidget>(u"cmdBotDeu"_s), Qt::LeftButton);
            QCOMPARE(probe.fenster->satz().artnr(), artnr);
            QCOMPARE(probe.finde<QComboBox>(u"cboArten"_s)->currentIndex(), int(probe.fenster->satz().haupt().AbsolutePosition()));
        }
    }
    QCOMPARE(gezeigt, 0); // no other plant in between
}

FLOX_TEST(tst_bedienung, TestBedienung)
#include "tst_bedienung.moc"
