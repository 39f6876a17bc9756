#include "Wegknopf.h"

#include "controls/Steuerelemente.h"

#include <QGridLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPainter>

namespace {

constexpr QSize bildfeldgroesse(120, 90);
constexpr double randrundung = 6;

} // namespace

Wegknopf::Wegknopf(const QString &bild, const QString &titel, const QString &text, QWidget *eltern) : QAbstractButton(eltern)
{
    setFocusPolicy(Qt::StrongFocus);
    setAttribute(Qt::WA_Hover);
    setCursor(Qt::PointingHandCursor);
    setAccessibleName(titel);
    setAccessibleDescription(text);
    auto *feld = new Bildfeld(bildfeldgroesse, this);
    feld->setFixedSize(bildfeldgroesse);
    feld->setBild(bild);
    auto *kopf = new QLabel(titel, this);
    QFont schrift = kopf->font();
    schrift.setBold(true);
    kopf->setFont(schrift);
    auto *satz = new QLabel(text, this);
    for (QLabel *schild : {kopf, satz}) {
        schild->setWordWrap(true);
        schild->setTextFormat(Qt::PlainText);
    }
    for (QWidget *teil : std::initializer_list<QWidget *>{feld, kopf, satz})
        teil->setAttribute(Qt::WA_TransparentForMouseEvents);
    auto *raster = new QGridLayout(this);
    raster->setContentsMargins(12, 12, 16, 12);
    raster->setHorizontalSpacing(16);
    raster->setVerticalSpacing(4);
    raster->setColumnStretch(1, 1);
    raster->setRowStretch(0, 1);
    raster->setRowStretch(3, 1);
    raster->addWidget(feld, 0, 0, 4, 1, Qt::AlignVCenter);
    raster->addWidget(kopf, 1, 1);
    raster->addWidget(satz, 2, 1);
    QSizePolicy mass(QSizePolicy::Preferred, QSizePolicy::Preferred);
    mass.setHeightForWidth(true);
    setSizePolicy(mass);
}

void Wegknopf::paintEvent(QPaintEvent *)
{
    QPainter maler(this);
    maler.setRenderHint(QPainter::Antialiasing);
    const bool betont = underMouse() || hasFocus();
    maler.setPen(QPen(palette().color(betont ? QPalette::Highlight : QPalette::Mid), 1));
    maler.setBrush(palette().color(isDown() ? QPalette::Button : underMouse() ? QPalette::AlternateBase : QPalette::Base));
    maler.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), randrundung, randrundung);
    maler.setRenderHint(QPainter::Antialiasing, false);
    if (hasFocus())
        fokusrahmenMalen(maler, rect().adjusted(3, 3, -3, -3), palette());
}

void Wegknopf::keyPressEvent(QKeyEvent *ereignis)
{
    if ((ereignis->key() == Qt::Key_Return || ereignis->key() == Qt::Key_Enter) && !ereignis->isAutoRepeat())
        click();
    else
        QAbstractButton::keyPressEvent(ereignis);
}
