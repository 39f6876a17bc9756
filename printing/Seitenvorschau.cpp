#include "Seitenvorschau.h"

#include <QPainter>
#include <QWheelEvent>

#include <algorithm>

namespace {

constexpr int schatten = 4; // pixels
constexpr QSizeF a4(210, 297);

} // namespace

Seitenvorschau::Seitenvorschau(QWidget *eltern) : QWidget(eltern)
{
    setMinimumSize(220, 310);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

void Seitenvorschau::zeigen(Druckseiten seiten)
{
    seiten_ = std::move(seiten);
    seite_ = 0;
    update();
    emit gewechselt();
}

void Seitenvorschau::setSeite(int seite)
{
    seite = std::max(0, std::min(seite, int(seiten_.seiten.size()) - 1));
    if (seite == seite_)
        return;
    seite_ = seite;
    update();
    emit gewechselt();
}

void Seitenvorschau::wheelEvent(QWheelEvent *ereignis)
{
    gedreht_ += ereignis->angleDelta().y();
    const int seiten = gedreht_ / QWheelEvent::DefaultDeltasPerStep;
    gedreht_ -= seiten * QWheelEvent::DefaultDeltasPerStep;
    setSeite(seite_ - seiten);
    ereignis->accept();
}

void Seitenvorschau::paintEvent(QPaintEvent *)
{
    const QSizeF papier = seiten_.seiten.empty() ? a4 : seiten_.papier;
    const double proMm = std::min((width() - schatten) / papier.width(), (height() - schatten) / papier.height());
    const QSizeF groesse = papier * proMm;
    const QRectF blatt(QPointF((width() - schatten - groesse.width()) / 2, (height() - schatten - groesse.height()) / 2), groesse);
    QPainter maler(this);
    maler.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
    maler.fillRect(blatt.translated(schatten, schatten), QColor(0, 0, 0, 40));
    maler.fillRect(blatt, Qt::white);
    maler.setPen(palette().color(QPalette::Mid));
    maler.drawRect(blatt);
    if (seiten_.seiten.empty())
        return;
    maler.setClipRect(blatt);
    maler.translate(blatt.topLeft() + seiten_.bereich.topLeft() * proMm);
    seiteMalen(maler, seiten_.seiten[size_t(seite_)], proMm);
}
