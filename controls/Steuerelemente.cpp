#include "Steuerelemente.h"

#include "Bilder.h"
#include "store/Programm.h"

#include <QHelpEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QPointer>
#include <QStyle>
#include <QStyleOptionButton>
#include <QStylePainter>
#include <QToolTip>

#include <algorithm>

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
    if (widget.hasFocus())
        fokusrahmenMalen(maler, widget.rect(), widget.palette());
}

/// The controls of one row in their order: same parent, same class, same name up to its number.
QList<QWidget *> reihe(const QWidget &zelle)
{
    const QString stamm = zelle.objectName().section(u'_', 0, -2);
    QList<QWidget *> alle;
    if (stamm.isEmpty() || !zelle.parentWidget())
        return alle;
    for (QWidget *andere : zelle.parentWidget()->findChildren<QWidget *>(QString(), Qt::FindDirectChildrenOnly))
        if (andere->metaObject() == zelle.metaObject() && andere->objectName().section(u'_', 0, -2) == stamm)
            alle += andere;
    std::ranges::sort(alle, {}, [](const QWidget *w) { return w->objectName().section(u'_', -1).toInt(); });
    return alle;
}

/// Tab stops at this one of its row and at no other.
void reihenhaltSetzen(QWidget &zelle)
{
    for (QWidget *andere : reihe(zelle))
        if (andere != &zelle && andere->focusPolicy() != Qt::NoFocus)
            andere->setFocusPolicy(Qt::NoFocus);
    zelle.setFocusPolicy(Qt::TabFocus);
}

/// Moves inside the row; false: no key of the row.
bool reihentaste(QWidget &zelle, const QKeyEvent &ereignis)
{
    if ((ereignis.modifiers() & ~Qt::KeypadModifier) != Qt::NoModifier)
        return false;
    const QList<QWidget *> alle = reihe(zelle);
    qsizetype stelle = alle.indexOf(&zelle);
    if (stelle < 0)
        return false;
    switch (ereignis.key()) {
    case Qt::Key_Left:
    case Qt::Key_Up: --stelle; break;
    case Qt::Key_Right:
    case Qt::Key_Down: ++stelle; break;
    case Qt::Key_Home: stelle = 0; break;
    case Qt::Key_End: stelle = alle.size() - 1; break;
    default: return false;
    }
    QWidget *ziel = alle[std::clamp<qsizetype>(stelle, 0, alle.size() - 1)];
    reihenhaltSetzen(*ziel);
    ziel->setFocus(Qt::OtherFocusReason);
    return true;
}

/// What every event of a cell that can be chosen does for its row.
void reihenereignis(QWidget &zelle, const QEvent &ereignis)
{
    // Polished before it is first shown, when the whole row has its names: the first of it is where Tab stops.
    if (ereignis.type() == QEvent::Polish) {
        if (const QList<QWidget *> alle = reihe(zelle); !alle.isEmpty() && alle.first() != &zelle)
            zelle.setFocusPolicy(Qt::NoFocus);
    } else if (ereignis.type() == QEvent::FocusIn) {
        reihenhaltSetzen(zelle);
    }
}

void beschreiben(QWidget &zelle, bool gesetzt)
{
    const QString zustand = gesetzt ? QStringLiteral("gesetzt") : QStringLiteral("nicht gesetzt");
    if (zelle.accessibleDescription() != zustand)
        zelle.setAccessibleDescription(zustand);
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
constexpr int bewertungStufen = 9;
constexpr int kaestchenBreite = 260; // pixels: the widest that a check box asks for

} // namespace

bool istDunkel(const QPalette &palette)
{
    return palette.color(QPalette::Base).lightness() < 128;
}

QColor warnfarbe(const QPalette &palette)
{
    return istDunkel(palette) ? QColor(0xff, 0x9d, 0x8c) : QColor(0xb0, 0x1e, 0x1e);
}

QColor zellenschrift(const QPalette &palette)
{
    const QColor text = palette.color(QPalette::Text), grund = palette.color(QPalette::Button);
    const auto mischen = [](int vorn, int hinten) { return (3 * vorn + hinten) / 4; };
    return QColor(mischen(text.red(), grund.red()), mischen(text.green(), grund.green()), mischen(text.blue(), grund.blue()));
}

void fokusrahmenMalen(QPainter &maler, const QRect &flaeche, const QPalette &palette)
{
    maler.save();
    maler.setRenderHint(QPainter::Antialiasing);
    maler.setBrush(Qt::NoBrush);
    // A light line inside the dark one: one of them stands out from whatever is below.
    maler.setPen(QPen(palette.color(QPalette::Base), 1));
    maler.drawRoundedRect(QRectF(flaeche).adjusted(2.5, 2.5, -2.5, -2.5), 2, 2);
    maler.setPen(QPen(palette.color(QPalette::Text), 2));
    maler.drawRoundedRect(QRectF(flaeche).adjusted(1, 1, -1, -1), 3, 3);
    maler.restore();
}

Farbzelle::Farbzelle(bool bunt, QWidget *eltern) : QWidget(eltern), bunt_(bunt)
{
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    zustandMelden();
}

void Farbzelle::zustandMelden()
{
    beschreiben(*this, bunt_ ? backStyle_ == 1 : backColor_ != farbeKnopf);
}

bool Farbzelle::event(QEvent *ereignis)
{
    if (bedienbar_)
        reihenereignis(*this, *ereignis);
    return QWidget::event(ereignis);
}

void Farbzelle::setMass(QSize mass)
{
    if (mass_ == mass)
        return;
    mass_ = mass;
    updateGeometry();
}

void Farbzelle::setBackColor(int farbe)
{
    if (backColor_ == farbe)
        return;
    backColor_ = farbe;
    zustandMelden();
    update();
}

void Farbzelle::setBackStyle(int stil)
{
    if (backStyle_ == stil)
        return;
    backStyle_ = stil;
    zustandMelden();
    update();
}

void Farbzelle::setCaption(const QString &text)
{
    if (caption_ == text)
        return;
    caption_ = text;
    update();
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
        maler.setPen(gesetzt ? palette().color(QPalette::HighlightedText) : zellenschrift(palette()));
        QFont schrift = font();
        schrift.setBold(gesetzt);
        maler.setFont(schrift);
        maler.drawText(rect(), Qt::AlignCenter, caption_);
    }
    fokusrahmen(*this, maler);
}

void Farbzelle::setBedienbar()
{
    bedienbar_ = true;
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
    else if (!bedienbar_ || !reihentaste(*this, *ereignis))
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
    zustandMelden();
    update();
}

void Bildfeld::paintEvent(QPaintEvent *)
{
    QPainter maler(this);
    maler.setRenderHint(QPainter::Antialiasing);
    if (istDunkel(palette()) && !bild_.isEmpty()) {
        // Drawn for a light ground.
        maler.setPen(Qt::NoPen);
        maler.setBrush(QColor(0xe4, 0xea, 0xe0));
        maler.drawRoundedRect(QRectF(rect()), 4, 4);
    }
    if (borderStyle_ == 1) {
        maler.setPen(QPen(palette().color(QPalette::Highlight), 2));
        maler.setBrush(palette().color(QPalette::Highlight).lighter(180));
        maler.drawRoundedRect(QRectF(rect()).adjusted(1, 1, -1, -1), 4, 4);
    }
    bilder::malen(maler, QRectF(rect()), bild_);
    fokusrahmen(*this, maler);
}

void Bildfeld::zustandMelden()
{
    if (bedienbar_)
        beschreiben(*this, borderStyle_ == 1);
}

bool Bildfeld::event(QEvent *ereignis)
{
    if (bedienbar_)
        reihenereignis(*this, *ereignis);
    // Above the picture: what explains it in a sentence stands below.
    if (ereignis->type() == QEvent::ToolTip && !toolTip().isEmpty()) {
        constexpr int zeigerhoehe = 24, rand = 10; // pixels: a tip stands below the place it is asked for
        const int hoehe = QFontMetrics(QToolTip::font()).height() + rand;
        QToolTip::showText(mapToGlobal(QPoint(0, -hoehe - zeigerhoehe)), toolTip(), this);
        return true;
    }
    return QWidget::event(ereignis);
}

void Bildfeld::setBedienbar()
{
    bedienbar_ = true;
    zustandMelden();
    setFocusPolicy(Qt::TabFocus);
    setCursor(Qt::PointingHandCursor);
}

void Bildfeld::keyPressEvent(QKeyEvent *ereignis)
{
    if (istWahltaste(*ereignis))
        emit geklickt();
    else if (!bedienbar_ || !reihentaste(*this, *ereignis))
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
        emit mausLosgelassen(hitButton(ereignis->position().toPoint()));
    vonMaus_ = true;
    const QPointer<Bildknopf> selbst(this);
    QAbstractButton::mouseReleaseEvent(ereignis);
    if (selbst)
        vonMaus_ = false;
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

Bewertungsleiste::Bewertungsleiste(QWidget *eltern) : QWidget(eltern), anzeige_(new QWidget(this)), zahl_(new QLabel(this))
{
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    anzeige_->setObjectName(QStringLiteral("picBewAnzeige"));
    anzeige_->setAutoFillBackground(true);
    QPalette farben = anzeige_->palette();
    farben.setColor(QPalette::Window, farben.color(QPalette::Highlight));
    anzeige_->setPalette(farben);
    anzeige_->setGeometry(pixel(bewertungLinks), 1, 6, 16);
    anzeige_->setProperty("Left", bewertungLinks);
    zahl_->setObjectName(QStringLiteral("lblBewertungZahl"));
    zahl_->setGeometry(pixel(2 * bewertungLinks + (bewertungStufen - 1) * bewertungSchritt) + 12, 0,
                       zahl_->fontMetrics().horizontalAdvance(QStringLiteral("9 von 9")) + 4, 18);
    setOhneWert();
}

void Bewertungsleiste::setWert(int wert)
{
    const int links = bewertungLinks + (wert - 1) * bewertungSchritt;
    anzeige_->setProperty("Left", links);
    anzeige_->move(pixel(links), anzeige_->y());
    const QString zahl = QStringLiteral("%1 von %2").arg(wert).arg(bewertungStufen);
    zahl_->setText(zahl);
    setAccessibleDescription(zahl);
    setToolTip(QStringLiteral("Bewertung %1 (Stufe 1: Rarität, Stufe %2: Standardsortiment)").arg(zahl).arg(bewertungStufen));
}

void Bewertungsleiste::setOhneWert()
{
    zahl_->setText(QStringLiteral("–"));
    setAccessibleDescription(QStringLiteral("nicht bewertet"));
    setToolTip(QStringLiteral("Nicht bewertet (Stufe 1: Rarität, Stufe %1: Standardsortiment)").arg(bewertungStufen));
}

QSize Bewertungsleiste::sizeHint() const
{
    return {zahl_->geometry().right() + 1, 18};
}

void Bewertungsleiste::paintEvent(QPaintEvent *)
{
    QPainter maler(this);
    maler.setPen(palette().color(QPalette::Mid));
    const int mitte = height() / 2;
    maler.drawLine(pixel(bewertungLinks) + 3, mitte, pixel(bewertungLinks + 8 * bewertungSchritt) + 3, mitte);
    for (int wert = 1; wert <= bewertungStufen; ++wert) {
        const int x = pixel(bewertungLinks + (wert - 1) * bewertungSchritt) + 3;
        const int laenge = wert % 2 ? 5 : 3;
        maler.drawLine(x, mitte - laenge, x, mitte + laenge);
    }
}

Namenskaestchen::Namenskaestchen(const QString &name, QWidget *eltern) : QCheckBox(eltern)
{
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    setName(name);
}

void Namenskaestchen::setName(const QString &name)
{
    name_ = name;
    // The button's own text keeps no mnemonic; the name is what is painted, read out and asked for.
    setText(QString(name).replace(u'&', QStringLiteral("&&")));
    setAccessibleName(name);
    updateGeometry();
}

QSize Namenskaestchen::sizeHint() const
{
    return QCheckBox::sizeHint().boundedTo({kaestchenBreite, QWIDGETSIZE_MAX});
}

QSize Namenskaestchen::minimumSizeHint() const
{
    constexpr int schmal = 80; // pixels
    return sizeHint().boundedTo({schmal, QWIDGETSIZE_MAX});
}

QString Namenskaestchen::gekuerzt() const
{
    QStyleOptionButton option;
    initStyleOption(&option);
    const QRect platz = style()->subElementRect(QStyle::SE_CheckBoxContents, &option, this);
    return fontMetrics().elidedText(name_.left(kaestchenBreite), Qt::ElideRight, platz.width());
}

bool Namenskaestchen::event(QEvent *ereignis)
{
    // Only a name that is cut needs a tip.
    if (ereignis->type() == QEvent::ToolTip && toolTip().isEmpty() && gekuerzt() != name_) {
        QToolTip::showText(static_cast<QHelpEvent *>(ereignis)->globalPos(), name_, this);
        return true;
    }
    return QCheckBox::event(ereignis);
}

void Namenskaestchen::paintEvent(QPaintEvent *)
{
    QStylePainter maler(this);
    QStyleOptionButton option;
    initStyleOption(&option);
    option.text = gekuerzt().replace(u'&', QStringLiteral("&&"));
    maler.drawControl(QStyle::CE_CheckBox, option);
}

QSize Kurzschild::sizeHint() const
{
    return {0, QLabel::sizeHint().height()};
}

QSize Kurzschild::minimumSizeHint() const
{
    return {0, QLabel::minimumSizeHint().height()};
}

void Kurzschild::paintEvent(QPaintEvent *)
{
    QPainter maler(this);
    maler.setPen(palette().color(foregroundRole()));
    maler.drawText(contentsRect(), int(alignment()) | Qt::TextSingleLine, fontMetrics().elidedText(text(), Qt::ElideRight, contentsRect().width()));
}
