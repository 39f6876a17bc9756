#include "Vollbild.h"

#include "Namensband.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QMouseEvent>
#include <QPainter>
#include <QPushButton>
#include <QWheelEvent>

#include <algorithm>
#include <cmath>

namespace {

constexpr int raste = QWheelEvent::DefaultDeltasPerStep;
constexpr double zoomschritt = 0.1, kleinster = 0.1, groesster = 4;
constexpr double pixelJeAchtelgrad = 0.5;

} // namespace

Vollbild::Vollbild(QWidget *eltern) : QWidget(eltern), leiste_(new QWidget(this))
{
    setObjectName(QStringLiteral("fraVollbild"));
    setAccessibleName(QStringLiteral("Bild über das ganze Fenster"));
    setAutoFillBackground(true);
    setBackgroundRole(QPalette::Base);
    leiste_->setAutoFillBackground(true);
    leiste_->setBackgroundRole(QPalette::Window);
    auto *reihe = new QHBoxLayout(leiste_);
    reihe->setContentsMargins(12, 6, 12, 6);
    reihe->setSpacing(10);
    const auto schild = [&](const char *name) {
        auto *neu = new QLabel(leiste_);
        neu->setObjectName(QString::fromLatin1(name));
        neu->setTextFormat(Qt::PlainText);
        reihe->addWidget(neu);
        return neu;
    };
    // The arrow keys, F11 and the frame's own keys do the same: the focus stays where it is.
    const auto knopf = [&](const char *name, const QString &text) {
        auto *neu = new QPushButton(text, leiste_);
        neu->setObjectName(QString::fromLatin1(name));
        neu->setFocusPolicy(Qt::NoFocus);
        reihe->addWidget(neu);
        return neu;
    };
    name_ = schild("lblVollbildName");
    QFont schrift = name_->font();
    schrift.setBold(true);
    schrift.setItalic(true);
    name_->setFont(schrift);
    beschreibung_ = schild("lblVollbildText");
    // A long text gives way to the buttons.
    beschreibung_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    reihe->setStretchFactor(beschreibung_, 1);
    position_ = schild("lblVollbildPosition");
    zurueck_ = knopf("cmdVollbildBack", QStringLiteral("Voriges Bild"));
    vor_ = knopf("cmdVollbildNext", QStringLiteral("Nächstes Bild"));
    groesse_ = knopf("cmdVollbildGroesse", QStringLiteral("Originalgröße"));
    groesse_->setToolTip(QStringLiteral("Zwischen ganzem Bild und Originalgröße wechseln (F11 oder Doppelklick)"));
    QPushButton *klein = knopf("cmdVollbildFenster", QStringLiteral("Fenster verkleinern"));
    klein->setToolTip(QStringLiteral("Das Bildfenster wie zuvor zeigen"));
    connect(zurueck_, &QPushButton::clicked, this, [this] { emit blaettern(-1); });
    connect(vor_, &QPushButton::clicked, this, [this] { emit blaettern(1); });
    connect(groesse_, &QPushButton::clicked, this, [this] { umschalten(); });
    connect(klein, &QPushButton::clicked, this, &Vollbild::verkleinern);
}

void Vollbild::neuesBild(QSizeF eigene)
{
    eigene_ = eigene;
    mitte_ = {0.5, 0.5};
    gezogenVon_.reset();
    const QSignalBlocker still(this);
    setAnteil({});
}

void Vollbild::setBild(const QImage &bild)
{
    bild_ = bild;
    update();
}

void Vollbild::setVerdeckt(bool verdeckt)
{
    verdeckt_ = verdeckt;
    update();
}

void Vollbild::setTexte(const QString &name, const QString &beschreibung, const QString &position)
{
    name_->setText(name);
    beschreibung_->setText(beschreibung);
    beschreibung_->setToolTip(beschreibung);
    position_->setText(position);
}

void Vollbild::setBlaettern(bool zurueck, bool vor)
{
    zurueck_->setEnabled(zurueck);
    vor_->setEnabled(vor);
}

QRectF Vollbild::flaeche() const
{
    return QRectF(0, 0, width(), std::max(0, height() - leiste_->height()));
}

double Vollbild::passend() const
{
    const QSizeF platz = flaeche().size();
    return eigene_.isEmpty() ? 0 : std::min(platz.width() / eigene_.width(), platz.height() / eigene_.height());
}

double Vollbild::anteil() const
{
    return eigene_.isEmpty() ? 0 : anteil_.value_or(passend());
}

QRectF Vollbild::ort() const
{
    const QSizeF groesse = eigene_ * anteil();
    return {flaeche().center() - QPointF(groesse.width() * mitte_.x(), groesse.height() * mitte_.y()), groesse};
}

void Vollbild::setAnteil(std::optional<double> anteil)
{
    anteil_ = anteil;
    begrenzen();
    groesse_->setText(angepasst() ? QStringLiteral("Originalgröße") : QStringLiteral("Ganzes Bild"));
    zeigerSetzen();
    update();
    emit anteilGeaendert();
}

void Vollbild::umschalten(std::optional<QPointF> punkt)
{
    if (!angepasst()) {
        setAnteil({});
        return;
    }
    const QRectF bisher = ort();
    if (punkt && bisher.contains(*punkt))
        mitte_ = {(punkt->x() - bisher.left()) / bisher.width(), (punkt->y() - bisher.top()) / bisher.height()};
    setAnteil(1);
}

void Vollbild::stufe(int richtung)
{
    const double jetzt = anteil();
    if (jetzt > 0)
        setAnteil(std::clamp(jetzt + richtung * zoomschritt, std::min(jetzt, kleinster), std::max(jetzt, groesster)));
}

/// No edge leaves more free than it must; what fits is in the middle.
void Vollbild::begrenzen()
{
    const QSizeF groesse = eigene_ * anteil(), platz = flaeche().size();
    const auto grenze = [](double mitte, double laenge, double raum) {
        const double halb = laenge > raum ? raum / laenge / 2 : 0.5;
        return std::clamp(mitte, halb, 1 - halb);
    };
    mitte_ = {grenze(mitte_.x(), groesse.width(), platz.width()), grenze(mitte_.y(), groesse.height(), platz.height())};
}

void Vollbild::verschieben(QPointF weg)
{
    const QSizeF groesse = eigene_ * anteil();
    if (groesse.isEmpty())
        return;
    mitte_ -= QPointF(weg.x() / groesse.width(), weg.y() / groesse.height());
    begrenzen();
    update();
}

void Vollbild::zeigerSetzen()
{
    const QSizeF groesse = eigene_ * anteil(), platz = flaeche().size();
    const bool beweglich = groesse.width() > platz.width() + 0.5 || groesse.height() > platz.height() + 0.5;
    beweglich ? setCursor(gezogenVon_ ? Qt::ClosedHandCursor : Qt::OpenHandCursor) : unsetCursor();
    leiste_->setCursor(Qt::ArrowCursor);
}

void Vollbild::paintEvent(QPaintEvent *)
{
    QPainter maler(this);
    maler.setClipRect(flaeche());
    maler.setRenderHint(QPainter::SmoothPixmapTransform);
    if (!bild_.isNull())
        maler.drawImage(ort(), bild_);
    if (verdeckt_ && !bild_.isNull())
        maler.fillRect(namensbandVon(ort()), palette().color(QPalette::Mid));
}

void Vollbild::resizeEvent(QResizeEvent *ereignis)
{
    QWidget::resizeEvent(ereignis);
    const int hoehe = leiste_->sizeHint().height();
    leiste_->setGeometry(0, height() - hoehe, width(), hoehe);
    begrenzen();
    zeigerSetzen();
    if (angepasst())
        emit anteilGeaendert();
}

void Vollbild::mousePressEvent(QMouseEvent *ereignis)
{
    if (ereignis->button() != Qt::LeftButton)
        return;
    gezogenVon_ = ereignis->position();
    zeigerSetzen();
}

void Vollbild::mouseMoveEvent(QMouseEvent *ereignis)
{
    if (!gezogenVon_)
        return;
    verschieben(ereignis->position() - *gezogenVon_);
    gezogenVon_ = ereignis->position();
}

void Vollbild::mouseReleaseEvent(QMouseEvent *)
{
    gezogenVon_.reset();
    zeigerSetzen();
}

void Vollbild::mouseDoubleClickEvent(QMouseEvent *ereignis)
{
    if (ereignis->button() == Qt::LeftButton && flaeche().contains(ereignis->position()))
        umschalten(ereignis->position());
}

void Vollbild::wheelEvent(QWheelEvent *ereignis)
{
    ereignis->accept();
    if (ereignis->modifiers() & Qt::ControlModifier) {
        for (radrest_ += ereignis->angleDelta().y(); std::abs(radrest_) >= raste; radrest_ -= radrest_ > 0 ? raste : -raste)
            stufe(radrest_ > 0 ? 1 : -1);
        return;
    }
    radrest_ = 0;
    QPointF weg = QPointF(ereignis->angleDelta()) * pixelJeAchtelgrad;
    if (weg.x() == 0 && ereignis->modifiers() & Qt::ShiftModifier)
        weg = weg.transposed();
    verschieben(weg);
}
