#include "Steuerelemente.h"

#include "Bilder.h"
#include "store/Programm.h"

#include <QMouseEvent>
#include <QPainter>
#include <QStyle>
#include <QStyleOptionFocusRect>

namespace {

/// Colour of a control number as it is painted.
QColor gemalt(int farbe, const QPalette &palette)
{
    if (farbe == farbeKnopf)
        return palette.color(QPalette::Button);
    if (farbe == farbeTitel)
        return palette.color(QPalette::Highlight);
    return QColor(farbe & 0xff, (farbe >> 8) & 0xff, (farbe >> 16) & 0xff);
}

bool istWahltaste(const QKeyEvent &ereignis)
{
    return ereignis.key() == Qt::Key_Space && ereignis.modifiers() == Qt::NoModifier;
}

void fokusrahmen(QWidget &widget, QPainter &maler)
{
    if (!widget.hasFocus())
        return;
    QStyleOptionFocusRect rahmen;
    rahmen.initFrom(&widget);
    widget.style()->drawPrimitive(QStyle::PE_FrameFocusRect, &rahmen, &maler, &widget);
}

QBrush vielfarbig(const QRectF &flaeche)
{
    QLinearGradient verlauf(flaeche.topLeft(), flaeche.bottomRight());
    const QColor farben[] = {QColor(220, 40, 40), QColor(250, 190, 0), QColor(60, 160, 60), QColor(40, 90, 200), QColor(170, 40, 170)};
    for (int i = 0; i < 5; ++i)
        verlauf.setColorAt(i / 4.0, farben[i]);
    return verlauf;
}

constexpr int bewertungLinks = 40;   // twips: indicator at step 1
constexpr int bewertungSchritt = 92; // twips between two steps

} // namespace

Farbzelle::Farbzelle(bool bunt, QWidget *eltern) : QWidget(eltern), bunt_(bunt)
{
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

void Farbzelle::setBackColor(int farbe)
{
    if (backColor_ == farbe)
        return;
    backColor_ = farbe;
    update();
}

void Farbzelle::setBackStyle(int stil)
{
    if (backStyle_ == stil)
        return;
    backStyle_ = stil;
    update();
}

void Farbzelle::setCaption(const QString &text)
{
    if (caption_ == text)
        return;
    caption_ = text;
    update();
}

QSize Farbzelle::sizeHint() const
{
    return {19, 22};
}

void Farbzelle::paintEvent(QPaintEvent *)
{
    QPainter maler(this);
    maler.setRenderHint(QPainter::Antialiasing);
    const QRectF flaeche = QRectF(rect()).adjusted(1, 1, -1, -1);
    const bool gesetzt = bunt_ ? backStyle_ == 1 : backColor_ != farbeKnopf;
    const QColor rand = gesetzt ? palette().color(QPalette::Text).lighter(160) : palette().color(QPalette::Mid);
    const QBrush eigen = bunt_ ? vielfarbig(flaeche) : QBrush(gemalt(eigenfarbe_, palette()));
    maler.setPen(QPen(rand, gesetzt ? 1.2 : 0.8));
    maler.setBrush(!gesetzt ? QBrush(gemalt(farbeKnopf, palette())) : bunt_ ? eigen : QBrush(gemalt(backColor_, palette())));
    maler.drawRoundedRect(flaeche, 3, 3);
    if (!gesetzt && eigenfarbe_ != farbeKnopf) {
        maler.setPen(QPen(palette().color(QPalette::Mid), 0.8));
        maler.setBrush(eigen);
        maler.drawEllipse(flaeche.center(), 4.5, 4.5);
    }
    if (!caption_.isEmpty()) {
        maler.setPen(gesetzt ? palette().color(QPalette::HighlightedText) : palette().color(QPalette::Disabled, QPalette::Text));
        QFont schrift = font();
        schrift.setBold(gesetzt);
        maler.setFont(schrift);
        maler.drawText(rect(), Qt::AlignCenter, caption_);
    }
    fokusrahmen(*this, maler);
}

void Farbzelle::setBedienbar()
{
    setFocusPolicy(Qt::TabFocus);
    setCursor(Qt::PointingHandCursor);
}

void Farbzelle::setEigenfarbe(int farbe)
{
    eigenfarbe_ = farbe;
    update();
}

void Farbzelle::mouseReleaseEvent(QMouseEvent *ereignis)
{
    if (std::exchange(nachDoppelklick_, false))
        return;
    if (ereignis->button() == Qt::LeftButton && rect().contains(ereignis->pos()))
        emit geklickt();
}

void Farbzelle::mouseDoubleClickEvent(QMouseEvent *)
{
    nachDoppelklick_ = true;
    emit doppelgeklickt();
}

void Farbzelle::keyPressEvent(QKeyEvent *ereignis)
{
    if (istWahltaste(*ereignis))
        emit geklickt();
    else
        QWidget::keyPressEvent(ereignis);
}

Bildfeld::Bildfeld(QSize groesse, QWidget *eltern) : QWidget(eltern), groesse_(groesse)
{
    setFixedSize(groesse);
    setMouseTracking(true);
}

void Bildfeld::setBild(const QString &bild)
{
    if (bild_ == bild)
        return;
    bild_ = bild;
    update();
}

void Bildfeld::setBorderStyle(int stil)
{
    if (borderStyle_ == stil)
        return;
    borderStyle_ = stil;
    update();
}

void Bildfeld::paintEvent(QPaintEvent *)
{
    QPainter maler(this);
    if (borderStyle_ == 1) {
        maler.setRenderHint(QPainter::Antialiasing);
        maler.setPen(QPen(palette().color(QPalette::Highlight), 2));
        maler.setBrush(palette().color(QPalette::Highlight).lighter(180));
        maler.drawRoundedRect(QRectF(rect()).adjusted(1, 1, -1, -1), 4, 4);
    }
    bilder::malen(maler, QRectF(rect()), bild_);
    fokusrahmen(*this, maler);
}

void Bildfeld::setBedienbar()
{
    setFocusPolicy(Qt::TabFocus);
    setCursor(Qt::PointingHandCursor);
}

void Bildfeld::keyPressEvent(QKeyEvent *ereignis)
{
    if (istWahltaste(*ereignis))
        emit geklickt();
    else
        QWidget::keyPressEvent(ereignis);
}

void Bildfeld::mouseReleaseEvent(QMouseEvent *ereignis)
{
    // The second click of a double click is none.
    if (std::exchange(nachDoppelklick_, false))
        return;
    if (ereignis->button() == Qt::LeftButton && rect().contains(ereignis->pos()))
        emit geklickt();
}

Bildknopf::Bildknopf(const QString &hinweis, QWidget *eltern) : QAbstractButton(eltern)
{
    setToolTip(hinweis);
    setAccessibleName(hinweis);
    setMouseTracking(true);
    setFocusPolicy(Qt::TabFocus);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

void Bildknopf::setBild(const QString &bild)
{
    if (bild_ == bild)
        return;
    bild_ = bild;
    update();
}

void Bildknopf::paintEvent(QPaintEvent *)
{
    QPainter maler(this);
    bilder::malen(maler, QRectF(rect()).adjusted(2, 2, -2, -2), QStringLiteral("iliIcons/") + bild_);
    fokusrahmen(*this, maler);
}

void Bildknopf::mouseMoveEvent(QMouseEvent *ereignis)
{
    QAbstractButton::mouseMoveEvent(ereignis);
    // The panel below would take the move for one of its own.
    ereignis->accept();
    emit mausBewegt();
}

void Bildknopf::mousePressEvent(QMouseEvent *ereignis)
{
    if (ereignis->button() == Qt::LeftButton)
        emit mausGedrueckt();
    QAbstractButton::mousePressEvent(ereignis);
}

void Bildknopf::mouseReleaseEvent(QMouseEvent *ereignis)
{
    if (ereignis->button() == Qt::LeftButton)
        emit mausLosgelassen();
    QAbstractButton::mouseReleaseEvent(ereignis);
}

void Bildknopf::enterEvent(QEnterEvent *ereignis)
{
    QAbstractButton::enterEvent(ereignis);
    emit mausBewegt();
}

void Bildknopf::leaveEvent(QEvent *ereignis)
{
    QAbstractButton::leaveEvent(ereignis);
    emit mausVerlassen();
}

Bewertungsleiste::Bewertungsleiste(QWidget *eltern) : QWidget(eltern), anzeige_(new QWidget(this))
{
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    anzeige_->setObjectName(QStringLiteral("picBewAnzeige"));
    anzeige_->setAutoFillBackground(true);
    QPalette farben = anzeige_->palette();
    farben.setColor(QPalette::Window, farben.color(QPalette::Highlight));
    anzeige_->setPalette(farben);
    anzeige_->setGeometry(pixel(bewertungLinks), 1, 6, 16);
    anzeige_->setProperty("Left", bewertungLinks);
}

void Bewertungsleiste::setWert(int wert)
{
    const int links = bewertungLinks + (wert - 1) * bewertungSchritt;
    anzeige_->setProperty("Left", links);
    anzeige_->move(pixel(links), anzeige_->y());
    setAccessibleDescription(QStringLiteral("%1 von 9").arg(wert));
    setToolTip(QStringLiteral("Bewertung %1 von 9: von der Rarität bis zum Standardsortiment").arg(wert));
}

QSize Bewertungsleiste::sizeHint() const
{
    return {pixel(bewertungLinks + 8 * bewertungSchritt) + 6 + pixel(bewertungLinks), 18};
}

void Bewertungsleiste::paintEvent(QPaintEvent *)
{
    QPainter maler(this);
    maler.setPen(palette().color(QPalette::Mid));
    const int mitte = height() / 2;
    maler.drawLine(pixel(bewertungLinks) + 3, mitte, pixel(bewertungLinks + 8 * bewertungSchritt) + 3, mitte);
    for (int wert = 1; wert <= 9; ++wert) {
        const int x = pixel(bewertungLinks + (wert - 1) * bewertungSchritt) + 3;
        const int laenge = wert % 2 ? 5 : 3;
        maler.drawLine(x, mitte - laenge, x, mitte + laenge);
    }
}
