#include "frmBilder.h"

#include "Bildlader.h"
#include "Namensband.h"
#include "Vollbild.h"
#include "controls/Bilder.h"
#include "controls/Geschuetzt.h"
#include "controls/Steuerelemente.h"
#include "store/Pfade.h"

#include <QKeyEvent>
#include <QLabel>
#include <QMouseEvent>
#include <QPainter>
#include <QPushButton>
#include <QScrollBar>
#include <QWheelEvent>

#include <algorithm>
#include <cmath>

namespace {

// Measures in twips.
constexpr double twips = twipsJePixel;
constexpr int leiste = 315, kleinste = 5000;
constexpr int unterBild = 1800, nebenBild = 325, obenLeiste = 1650, breiteLeiste2 = 1900, nebenText = 3145;
// Steps of a tenth of the picture's own size.
constexpr int stufeOriginal = 10, groessteStufe = 31, kleinsteStufe = 5;

struct Knopftext
{
    const char *name, *stamm;
    QStringView hinweis;
    bool kannGrau;
};
constexpr Knopftext knopftexte[] = {
    {"cmdGroesser", "groesser", u"Bild vergrößern (+10%)", false},
    {"cmdKleiner", "kleiner", u"Bild verkleinern  (-10%)", false},
    {"cmdAnpassen", "anpassen", u"Bild an das Fenster anpassen", false},
    {"cmdOriginal", "original", u"Originalgröße zeigen (100%)", false},
    {"cmdBack", "back", u"vorheriges Bild", true},
    {"cmdNext", "next", u"Nächstes Bild", true},
};

} // namespace

/// The stretching image control.
class Bildflaeche : public QWidget
{
public:
    using QWidget::QWidget;
    void setBild(const QImage &bild)
    {
        bild_ = bild;
        update();
    }
    void setVerdeckt(bool verdeckt)
    {
        verdeckt_ = verdeckt;
        update();
    }

protected:
    void paintEvent(QPaintEvent *) override
    {
        QPainter maler(this);
        maler.setRenderHint(QPainter::SmoothPixmapTransform);
        maler.drawImage(rect(), bild_);
        if (verdeckt_ && !bild_.isNull())
            maler.fillRect(namensbandVon(rect()), palette().mid());
    }

private:
    QImage bild_;
    bool verdeckt_ = false;
};

namespace {

/// A picture button that is painted pale while it is off and has no picture of its own for that.
class Blassknopf : public Bildknopf
{
public:
    using Bildknopf::Bildknopf;

protected:
    void paintEvent(QPaintEvent *ereignis) override
    {
        if (isEnabled() || bild().endsWith(u"_ef"))
            return Bildknopf::paintEvent(ereignis);
        QPainter maler(this);
        constexpr double blass = 0.35;
        maler.setOpacity(blass);
        bilder::malen(maler, QRectF(rect()).adjusted(2, 2, -2, -2), QStringLiteral("iliIcons/") + bild());
    }
};

bool istPfeil(int taste)
{
    return taste == Qt::Key_Left || taste == Qt::Key_Right || taste == Qt::Key_Up || taste == Qt::Key_Down;
}

/// Whether a picture does not fit; a rounding error is none.
bool ragtHinaus(double groesse, double flaeche)
{
    return groesse - flaeche > 0.01;
}

/// A place within its ends: no edge leaves more free than it must. Measures in twips.
double imRahmen(double ort, double groesse, double flaeche)
{
    const double ende = flaeche - groesse - (ragtHinaus(groesse, flaeche) ? leiste : 0);
    return qBound(qMin(ende, 0.0), ort, qMax(ende, 0.0));
}

} // namespace

frmBilder::frmBilder(Programm &programm, std::function<std::optional<Bilderpflanze>()> pflanze, QWidget *zentral)
    : QWidget(zentral, Qt::Window), programm_(programm), pflanze_(std::move(pflanze))
{
    setObjectName(QStringLiteral("frmBilder"));
    setWindowTitle(QStringLiteral("Pflanzenbilder"));
    aufbauen();
    knoepfeVerbinden();
    vollbildEinrichten();
    resize(fensterpixel(programm.BilderFormBreite), fensterpixel(programm.BilderFormHoehe));
    if (zentral)
        move(zentral->geometry().center() - rect().center());
    timResize_.setObjectName(QStringLiteral("timResize"));
    timResize_.setInterval(125);
    connect(&bild_, &Anzeigebild::geaendert, this, [this] { bildMalen(); });
    connect(&bild_, &Anzeigebild::gescheitert, this, &frmBilder::gescheitert);
    connect(&timResize_, &QTimer::timeout, this, geschuetzt(this, [this] { groesseGeaendert(); }));
    // The pictures are listed now; the first one is shown by the timer.
    if (listen())
        BildIndex = programm_.GewaehltesBild;
    positionSetzen();
    NaviPruefen();
    FormGeladen = true;
    timResize_.start();
}

void frmBilder::aufbauen()
{
    const auto flaeche = [this](const char *name, QWidget *eltern) {
        auto *neu = new QWidget(eltern);
        neu->setObjectName(QString::fromLatin1(name));
        neu->setMouseTracking(true);
        neu->installEventFilter(this);
        return neu;
    };
    const auto schild = [this](const char *name, QWidget *eltern) {
        auto *neu = new QLabel(eltern);
        neu->setObjectName(QString::fromLatin1(name));
        neu->setMouseTracking(true);
        neu->installEventFilter(this);
        return neu;
    };
    setMouseTracking(true);
    picBildAnzeige_ = flaeche("picBildAnzeige", this);
    picBildAnzeige_->setAutoFillBackground(true);
    picBildAnzeige_->setBackgroundRole(QPalette::Base);
    imgAnzeige_ = new Bildflaeche(picBildAnzeige_);
    imgAnzeige_->setObjectName(QStringLiteral("imgAnzeige"));
    imgAnzeige_->setMouseTracking(true);
    imgAnzeige_->installEventFilter(this);
    const auto balken = [this](const char *name, Qt::Orientation richtung) {
        auto *neu = new QScrollBar(richtung, picBildAnzeige_);
        neu->setObjectName(QString::fromLatin1(name));
        neu->setRange(0, 100);
        connect(neu, &QScrollBar::valueChanged, this, [this, neu] { leisteBewegt(neu); });
        return neu;
    };
    hscBild_ = balken("hscBild", Qt::Horizontal);
    vscBild_ = balken("vscBild", Qt::Vertical);
    picAbdeckung_ = flaeche("picAbdeckung", picBildAnzeige_);
    picAbdeckung_->setAutoFillBackground(true);
    picLeiste1_ = flaeche("picLeiste1", this);
    picLeiste2_ = flaeche("picLeiste2", this);
    lblBotName_ = schild("lblBotName", picLeiste1_);
    lblDeuName_ = schild("lblDeuName", picLeiste1_);
    lblBeschreibung_ = schild("lblBeschreibung", picLeiste1_);
    lblPosition_ = schild("lblPosition", picLeiste1_);
    QFont schrift = lblBotName_->font();
    schrift.setBold(true);
    schrift.setItalic(true);
    lblBotName_->setFont(schrift);
    lblBeschreibung_->setWordWrap(true);
    for (int i = 0; i < anzahlKnoepfe; ++i) {
        knoepfe_[size_t(i)] = new Blassknopf(knopftexte[i].hinweis.toString(), picLeiste2_);
        knoepfe_[size_t(i)]->setObjectName(QString::fromLatin1(knopftexte[i].name));
        knoepfe_[size_t(i)]->setGeometry(4 + (i % 3) * 40, (i / 3) * 38, 36, 36);
        reihe_.dazu(*knoepfe_[size_t(i)]);
        knoepfe_[size_t(i)]->installEventFilter(this);
    }
    auto *cmdSchliessen = new QPushButton(QStringLiteral("&Schliessen"), picLeiste2_);
    cmdSchliessen->setObjectName(QStringLiteral("cmdSchliessen"));
    cmdSchliessen->setGeometry(4, 78, 116, 26);
    cmdSchliessen->setMouseTracking(true);
    cmdSchliessen->installEventFilter(this);
    connect(cmdSchliessen, &QPushButton::clicked, this, &QWidget::close);
}

void frmBilder::knoepfeVerbinden()
{
    const auto beiKlick = [this](Knopf knopf, auto handlung) {
        connect(knoepfe_[knopf], &Bildknopf::clicked, this, geschuetzt(this, std::move(handlung)));
    };
    beiKlick(Groesser, [this] { stufe(1); });
    beiKlick(Kleiner, [this] { stufe(-1); });
    beiKlick(Anpassen, [this] { cmdAnpassen_Click(); });
    beiKlick(Original, [this] { cmdOriginal_Click(); });
    beiKlick(Back, [this] { blaettern(-1); });
    beiKlick(Next, [this] { blaettern(1); });
}

void frmBilder::vollbildEinrichten()
{
    vollbild_ = new Vollbild(this);
    vollbild_->hide();
    connect(vollbild_, &Vollbild::anteilGeaendert, this, geschuetzt(this, [this] {
                if (vollbild_->isHidden())
                    return;
                bildLaden();
                titelSetzen();
            }));
    connect(vollbild_, &Vollbild::blaettern, this, [this](int richtung) { knoepfe_[richtung < 0 ? Back : Next]->click(); });
    connect(vollbild_, &Vollbild::verkleinern, this, &QWidget::showNormal);
}

bool frmBilder::listen()
{
    const std::optional<Bilderpflanze> pflanze = pflanze_();
    if (!pflanze) {
        QMessageBox::warning(this, programmtitel.toString(), QStringLiteral("Hoppla"));
        return false;
    }
    gelistet_ = {pflanze->sparte, pflanze->artnr};
    beschriften(*pflanze);
    // Without a matching row the pictures of the plant before stay listed.
    if (!pflanze->zeile)
        return true;
    const std::vector<Bildeintrag> bilder = fensterbilder(programm_, *pflanze->zeile, bildordner(pflanze->sparte, pflanze->artnr), BildBeschreibung);
    BildAnzahl = int(bilder.size());
    for (size_t i = 0; i < BildPfad.size(); ++i) {
        const bool belegt = i < bilder.size();
        const QSize groesse = belegt ? bildgroesse(systemPfad(bilder[i].pfad)) : QSize(0, 0);
        BildPfad[i] = belegt ? bilder[i].pfad : QString();
        BildBeschreibung[i] = belegt ? bilder[i].beschreibung : QString();
        BildBreite[i] = qMax(0, groesse.width()) * twips;
        BildHoehe[i] = qMax(0, groesse.height()) * twips;
    }
    return true;
}

void frmBilder::beschriften(const Bilderpflanze &pflanze)
{
    verdeckt_ = pflanze.verdeckt;
    imgAnzeige_->setVerdeckt(verdeckt_);
    vollbild_->setVerdeckt(verdeckt_);
    lblBotName_->setText(verdeckt_ ? QStringLiteral("Name verdeckt") : pflanze.botName);
    lblDeuName_->setText(verdeckt_ ? QString() : pflanze.deuName);
}

void frmBilder::namenZeigen()
{
    const std::optional<Bilderpflanze> pflanze = pflanze_();
    if (!pflanze || pflanze->verdeckt == verdeckt_ || gelistet_ != std::pair(pflanze->sparte, pflanze->artnr))
        return;
    beschriften(*pflanze);
    beschreibungZeigen(BildIndex);
    titelSetzen();
}

bool frmBilder::zeigtSchon() const
{
    const std::optional<Bilderpflanze> pflanze = pflanze_();
    if (!pflanze || gelistet_ != std::pair(pflanze->sparte, pflanze->artnr) || pflanze->verdeckt != verdeckt_
        || (!verdeckt_ && (lblBotName_->text() != pflanze->botName || lblDeuName_->text() != pflanze->deuName)))
        return false;
    if (!pflanze->zeile)
        return true;
    const std::vector<Bildeintrag> bilder = fensterbilder(programm_, *pflanze->zeile, bildordner(pflanze->sparte, pflanze->artnr), BildBeschreibung);
    if (int(bilder.size()) != BildAnzahl)
        return false;
    for (size_t i = 0; i < bilder.size(); ++i)
        if (bilder[i].pfad != BildPfad[i] || bilder[i].beschreibung != BildBeschreibung[i])
            return false;
    return true;
}

void frmBilder::NeuePflanze()
{
    ZoomStufe = stufeOriginal;
    if (listen()) {
        BildIndex = qBound(0, programm_.GewaehltesBild, qMax(0, BildAnzahl - 1));
        BildAnzeigen(BildIndex);
        titelSetzen();
    }
    positionSetzen();
    NaviPruefen();
    LaufleistenUeberpruefung();
}

void frmBilder::positionSetzen()
{
    BildIndex = qBound(0, BildIndex, qMax(0, BildAnzahl - 1));
    lblPosition_->setText(QStringLiteral("%1/%2").arg(BildAnzahl ? BildIndex + 1 : 0).arg(BildAnzahl));
}

void frmBilder::BildAnzeigen(int i)
{
    const double breite = BildBreite[size_t(i)], hoehe = BildHoehe[size_t(i)];
    imgAnzeige_->setBild({});
    if (breite <= 0 || hoehe <= 0) {
        groesseSetzen(0, 0);
    } else {
        const double flaecheBreite = picBildAnzeige_->width() * twips, flaecheHoehe = picBildAnzeige_->height() * twips;
        const double rw = breite / flaecheBreite, rh = hoehe / flaecheHoehe;
        if (programm_.OriginalGroesse && !AnpassenVerlangt)
            groesseSetzen(breite, hoehe);
        else if (hoehe / rw <= flaecheHoehe)
            groesseSetzen(breite / rw, hoehe / rw);
        else
            groesseSetzen(breite / rh, hoehe / rh);
    }
    SchrittBreite = int(std::lround(0.1 * breite));
    SchrittHoehe = int(std::lround(0.1 * hoehe));
    ZoomStufe = stufeOriginal;
    mitten();
    vollbild_->neuesBild(QSizeF(breite, hoehe) / twips);
    bildLaden();
    beschreibungZeigen(i);
    AnpassenVerlangt = false;
    unsetCursor();
}

void frmBilder::beschreibungZeigen(int i)
{
    lblBeschreibung_->setText(verdeckt_ ? QString() : BildBeschreibung[size_t(i)]);
}

void frmBilder::bildLaden()
{
    const QString datei = systemPfad(BildPfad[size_t(BildIndex)]);
    if (datei.isEmpty() || lage_.breite <= 0) {
        bild_.leeren();
        return bildMalen();
    }
    const double anteil = vollbild_->isHidden() ? lage_.breite / BildBreite[size_t(BildIndex)] : vollbild_->anteil();
    const auto stand = bild_.anfordern(datei, anteil * devicePixelRatioF());
    bildMalen();
    if (stand == Anzeigebild::Stand::Fehlt)
        gescheitert(false);
}

void frmBilder::bildMalen()
{
    imgAnzeige_->setBild(bild_.bild());
    vollbild_->setBild(bild_.bild());
}

void frmBilder::gescheitert(bool vorhanden)
{
    if (!vorhanden) {
        imgAnzeige_->setBild({});
        vollbild_->setBild({});
        if (programm_.BilderAufCD)
            QMessageBox::warning(this, programmtitel.toString(), QStringLiteral("Bild nicht gefunden! FLOX-CD wieder einlegen!"));
        return;
    }
    // Damage that its head did not show: the file counts as not found.
    const size_t i = size_t(BildIndex);
    const QString ersatz = ersatzbild(programm_);
    if (BildPfad[i] == ersatz)
        return imgAnzeige_->setBild({});
    const QSize groesse = bildgroesse(ersatz);
    BildPfad[i] = ersatz;
    BildBreite[i] = groesse.width() * twips;
    BildHoehe[i] = groesse.height() * twips;
    BildAnzeigen(BildIndex);
    LaufleistenUeberpruefung();
    titelSetzen();
}

void frmBilder::groesseSetzen(double breite, double hoehe)
{
    lage_.breite = breite;
    lage_.hoehe = hoehe;
}

void frmBilder::mitten()
{
    lage_.links = (picBildAnzeige_->width() * twips - lage_.breite) / 2;
    lage_.oben = (picBildAnzeige_->height() * twips - lage_.hoehe) / 2;
    lageAnwenden();
}

void frmBilder::lageAnwenden()
{
    imgAnzeige_->setGeometry(pixel(lage_.links), pixel(lage_.oben), pixel(lage_.breite), pixel(lage_.hoehe));
    imgAnzeige_->setProperty("Left", lage_.links);
    imgAnzeige_->setProperty("Top", lage_.oben);
    imgAnzeige_->setProperty("Width", lage_.breite);
    imgAnzeige_->setProperty("Height", lage_.hoehe);
}

void frmBilder::stufe(int richtung)
{
    const double breite = lage_.breite + richtung * SchrittBreite, hoehe = lage_.hoehe + richtung * SchrittHoehe;
    // A step that would leave nothing to see leaves all as it is.
    if (pixel(breite) > 0 && pixel(hoehe) > 0) {
        lage_.links -= richtung * SchrittBreite / 2.0;
        lage_.oben -= richtung * SchrittHoehe / 2.0;
        groesseSetzen(breite, hoehe);
        lageAnwenden();
        bildLaden();
    }
    LaufleistenUeberpruefung();
    ZoomStufe += richtung;
    VGNaviPruefen();
    titelSetzen();
}

void frmBilder::cmdAnpassen_Click()
{
    AnpassenVerlangt = true;
    BildAnzeigen(BildIndex);
    LaufleistenUeberpruefung();
    titelSetzen();
}

void frmBilder::cmdOriginal_Click()
{
    groesseSetzen(BildBreite[size_t(BildIndex)], BildHoehe[size_t(BildIndex)]);
    mitten();
    bildLaden();
    LaufleistenUeberpruefung();
    ZoomStufe = stufeOriginal;
    VGNaviPruefen();
    titelSetzen();
}

void frmBilder::groesseUmschalten(std::optional<QPointF> punkt)
{
    if (!vollbild_->isHidden())
        return vollbild_->umschalten();
    const double breite = picBildAnzeige_->width() * twips, hoehe = picBildAnzeige_->height() * twips;
    const bool angepasst = !ragtHinaus(lage_.breite, breite) && !ragtHinaus(lage_.hoehe, hoehe)
                           && (!ragtHinaus(breite, lage_.breite) || !ragtHinaus(hoehe, lage_.hoehe));
    if (!angepasst)
        return knoepfe_[Anpassen]->click();
    const QSizeF vorher(imgAnzeige_->size());
    knoepfe_[Original]->click();
    if (punkt && !vorher.isEmpty())
        verschieben({(0.5 - punkt->x() / vorher.width()) * lage_.breite / twips, (0.5 - punkt->y() / vorher.height()) * lage_.hoehe / twips});
}

void frmBilder::blaettern(int richtung)
{
    BildIndex += richtung;
    positionSetzen();
    BildAnzeigen(BildIndex);
    NaviPruefen();
    LaufleistenUeberpruefung();
    titelSetzen();
}

int frmBilder::Zoomfaktor() const
{
    const double breite = BildBreite[size_t(BildIndex)];
    return breite == 0 ? 0 : int(std::lround(lage_.breite / breite * 100));
}

void frmBilder::titelSetzen()
{
    const int prozent = vollbild_->isHidden() ? Zoomfaktor() : int(std::lround(vollbild_->anteil() * 100));
    setWindowTitle(QStringLiteral("%1 (Bildgröße: %2%)").arg(lblBotName_->text()).arg(prozent));
    vollbild_->setTexte(lblBotName_->text(), lblBeschreibung_->text(), lblPosition_->text());
}

void frmBilder::LaufleistenUeberpruefung()
{
    const double breite = picBildAnzeige_->width() * twips, hoehe = picBildAnzeige_->height() * twips;
    const auto stellen = [](QScrollBar *balken, double groesse, double &ort, double flaeche) {
        const bool noetig = ragtHinaus(groesse, flaeche);
        ort = imRahmen(ort, groesse, flaeche);
        if (noetig) {
            // The bar knows hundredths only: it shows the place, it does not round it.
            const QSignalBlocker still(balken);
            balken->setValue(int(std::lround(ort / ((flaeche - leiste - groesse) / 100))));
        }
        balken->setEnabled(noetig);
        return noetig;
    };
    const bool waagerecht = stellen(hscBild_, lage_.breite, lage_.links, breite);
    const bool senkrecht = stellen(vscBild_, lage_.hoehe, lage_.oben, hoehe);
    lageAnwenden();
    for (QWidget *teil : {static_cast<QWidget *>(hscBild_), static_cast<QWidget *>(vscBild_), picAbdeckung_}) {
        teil->setVisible(waagerecht || senkrecht);
        teil->raise();
    }
}

void frmBilder::leisteBewegt(const QScrollBar *balken)
{
    if (balken == hscBild_ && hscBild_->isEnabled())
        lage_.links = (picBildAnzeige_->width() * twips - leiste - lage_.breite) / 100 * hscBild_->value();
    if (balken == vscBild_ && vscBild_->isEnabled())
        lage_.oben = (picBildAnzeige_->height() * twips - leiste - lage_.hoehe) / 100 * vscBild_->value();
    lageAnwenden();
}

/// Moves the picture where it has room to move; `weg` in pixels. False where it has none.
bool frmBilder::verschieben(QPointF weg)
{
    if (hscBild_->isEnabled())
        lage_.links += weg.x() * twips;
    if (vscBild_->isEnabled())
        lage_.oben += weg.y() * twips;
    LaufleistenUeberpruefung();
    return hscBild_->isEnabled() || vscBild_->isEnabled();
}

bool frmBilder::gerollt(const QWheelEvent &rad, bool ueberBild)
{
    constexpr int raste = 120;
    constexpr double pixelJeAchtelgrad = 0.5;
    if (rad.modifiers() & Qt::ControlModifier) {
        for (radrest_ += rad.angleDelta().y(); qAbs(radrest_) >= raste; radrest_ -= radrest_ > 0 ? raste : -raste)
            knoepfe_[radrest_ > 0 ? Groesser : Kleiner]->click();
        return true;
    }
    radrest_ = 0;
    QPointF weg = QPointF(rad.angleDelta()) * pixelJeAchtelgrad;
    // Sideways with the Shift key, or where there is no other way to go.
    if (weg.x() == 0 && (rad.modifiers() & Qt::ShiftModifier || !vscBild_->isEnabled()))
        weg = weg.transposed();
    return ueberBild && verschieben(weg);
}

void frmBilder::freigeben(Knopf knopf, bool frei)
{
    // The focus would go on to the next button, and the next key would press that.
    if (!frei && focusWidget() == knoepfe_[knopf])
        setFocus();
    knoepfe_[knopf]->setEnabled(frei);
}

void frmBilder::NaviPruefen()
{
    const std::pair<Knopf, bool> enden[] = {{Next, BildIndex >= BildAnzahl - 1}, {Back, BildIndex <= 0}};
    for (const auto &[knopf, amEnde] : enden) {
        freigeben(knopf, !amEnde);
        reihe_.ruhendMalen(*knoepfe_[knopf]);
    }
    vollbild_->setBlaettern(knoepfe_[Back]->isEnabled(), knoepfe_[Next]->isEnabled());
}

void frmBilder::VGNaviPruefen()
{
    freigeben(Groesser, ZoomStufe < groessteStufe);
    freigeben(Kleiner, ZoomStufe >= kleinsteStufe);
}

QString frmBilder::knopfschluessel(const Bildknopf &button, Knopfzustand zustand) const
{
    const Knopftext &text = knopftexte[std::ranges::find(knoepfe_, &button) - knoepfe_.begin()];
    const QString stamm = QString::fromLatin1(text.stamm);
    if (text.kannGrau && !button.isEnabled())
        return stamm + QStringLiteral("_ef");
    switch (zustand) {
    case Knopfzustand::Hervorgehoben: return stamm;
    case Knopfzustand::Normal: return stamm + QStringLiteral("_n");
    case Knopfzustand::Gedrueckt: return stamm + QStringLiteral("_u");
    }
    return {};
}

void frmBilder::resizeEvent(QResizeEvent *ereignis)
{
    QWidget::resizeEvent(ereignis);
    vollbild_->setGeometry(rect());
    timResize_.start();
}

void frmBilder::changeEvent(QEvent *ereignis)
{
    QWidget::changeEvent(ereignis);
    if (ereignis->type() != QEvent::WindowStateChange || isMinimized() || !vollbild_)
        return;
    const bool voll = fuelltSchirm();
    if (voll != vollbild_->isHidden())
        return;
    if (voll) {
        fokusVorher_ = focusWidget();
        setFocus();
        vollbild_->setGeometry(rect());
        vollbild_->raise();
        vollbild_->show();
    } else {
        vollbild_->hide();
        ausVollbild_ = true;
        if (fokusVorher_ && fokusVorher_->isEnabled())
            fokusVorher_->setFocus();
        timResize_.start();
    }
    geschuetztAusfuehren(this, [this] {
        bildLaden();
        titelSetzen();
    });
}

bool frmBilder::focusNextPrevChild(bool weiter)
{
    // What is covered is not walked through.
    return vollbild_->isHidden() && QWidget::focusNextPrevChild(weiter);
}

void frmBilder::NeueGroesse()
{
    if (width() < pixel(kleinste) || height() < pixel(kleinste))
        resize(qMax(width(), pixel(kleinste)), qMax(height(), pixel(kleinste)));
    // A maximised window keeps its inner sizes.
    if (windowState() & (Qt::WindowMaximized | Qt::WindowMinimized | Qt::WindowFullScreen))
        return;
    const double breite = width() * twips, hoehe = height() * twips;
    picBildAnzeige_->setGeometry(10, 8, pixel(breite - nebenBild), pixel(hoehe - unterBild));
    picLeiste1_->setGeometry(10, pixel(hoehe - obenLeiste), pixel(breite - nebenBild), pixel(obenLeiste) - 2);
    picLeiste2_->setGeometry(pixel(breite - breiteLeiste2), pixel(hoehe - obenLeiste), pixel(breiteLeiste2), pixel(obenLeiste) - 2);
    const int text = pixel(breite - nebenText);
    lblBotName_->setGeometry(0, 4, text, 22);
    lblDeuName_->setGeometry(0, 26, text, 20);
    lblBeschreibung_->setGeometry(0, 50, text, 34);
    lblPosition_->setGeometry(0, 84, text, 20);
}

void frmBilder::groesseGeaendert()
{
    timResize_.stop();
    // A picture that is listed is shown at once; all else waits until the window has a size of its own again, and a size that it had
    // before changes nothing.
    const bool voll = fuelltSchirm();
    if (voll && lage_.breite > 0)
        return;
    if (std::exchange(ausVollbild_, false) && size() == eingerichtet_)
        return;
    if (FormGeladen) {
        // A size that nobody changed stays as it was stored, also where the window could not take it.
        if (!voll && width() != fensterpixel(programm_.BilderFormBreite))
            programm_.BilderFormBreite = width() * twips;
        if (!voll && height() != fensterpixel(programm_.BilderFormHoehe))
            programm_.BilderFormHoehe = height() * twips;
        NeueGroesse();
        BildAnzeigen(BildIndex);
        LaufleistenUeberpruefung();
    }
    const int rechts = picBildAnzeige_->width() - pixel(leiste), unten = picBildAnzeige_->height() - pixel(leiste);
    vscBild_->setGeometry(rechts, 0, pixel(leiste), unten);
    hscBild_->setGeometry(0, unten, rechts, pixel(leiste));
    picAbdeckung_->setGeometry(rechts, unten, pixel(leiste), pixel(leiste));
    if (!voll)
        eingerichtet_ = size();
    titelSetzen();
}

bool frmBilder::eventFilter(QObject *quelle, QEvent *ereignis)
{
    if (qobject_cast<QAbstractButton *>(quelle) && ereignis->type() == QEvent::KeyPress && istPfeil(static_cast<QKeyEvent *>(ereignis)->key())) {
        // A button would move the focus: these keys browse, wherever it is.
        ereignis->ignore();
        return true;
    }
    if (qobject_cast<Bildknopf *>(quelle))
        return QWidget::eventFilter(quelle, ereignis);
    const bool bild = quelle == imgAnzeige_;
    switch (ereignis->type()) {
    case QEvent::MouseMove: {
        // Over the picture and the closing button the last button stays noted.
        if (bild || quelle->objectName() == u"cmdSchliessen")
            reihe_.normalisieren();
        else
            reihe_.mausDaneben();
        if (bild && gezogenVon_) {
            const QPoint weg = static_cast<QMouseEvent *>(ereignis)->globalPosition().toPoint() - *gezogenVon_;
            gezogenVon_ = *gezogenVon_ + weg;
            verschieben(weg);
        }
        break;
    }
    case QEvent::MouseButtonPress:
        if (bild)
            gezogenVon_ = static_cast<QMouseEvent *>(ereignis)->globalPosition().toPoint();
        break;
    case QEvent::MouseButtonRelease: gezogenVon_.reset(); break;
    case QEvent::MouseButtonDblClick:
        if (bild && static_cast<QMouseEvent *>(ereignis)->button() == Qt::LeftButton)
            geschuetztAusfuehren(this, [&] { groesseUmschalten(static_cast<QMouseEvent *>(ereignis)->position()); });
        break;
    case QEvent::Wheel:
        if (gerollt(*static_cast<QWheelEvent *>(ereignis), bild || quelle == picBildAnzeige_))
            return true;
        break;
    default: break;
    }
    return QWidget::eventFilter(quelle, ereignis);
}

void frmBilder::keyPressEvent(QKeyEvent *ereignis)
{
    switch (ereignis->key()) {
    case Qt::Key_Escape: close(); break;
    case Qt::Key_Left:
    case Qt::Key_Up: knoepfe_[Back]->click(); break;
    case Qt::Key_Right:
    case Qt::Key_Down: knoepfe_[Next]->click(); break;
    case Qt::Key_Plus: vollbild_->isHidden() ? knoepfe_[Groesser]->click() : vollbild_->stufe(1); break;
    case Qt::Key_Minus: vollbild_->isHidden() ? knoepfe_[Kleiner]->click() : vollbild_->stufe(-1); break;
    case Qt::Key_F11: groesseUmschalten(); break;
    default: QWidget::keyPressEvent(ereignis);
    }
}

void frmBilder::closeEvent(QCloseEvent *ereignis)
{
    QWidget::closeEvent(ereignis);
    emit geschlossen();
}
