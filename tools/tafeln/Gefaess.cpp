#include "Gefaess.h"

#include "Farben.h"
#include "Stempel.h"
#include "Tafel.h"

namespace {

constexpr double schraege = 0.13; ///< of the opening: height to width

QLinearGradient rundung(double links, double rechts, const QColor &f)
{
    QLinearGradient g(links, 0, rechts, 0);
    g.setColorAt(0, dunkler(f, 0.12));
    g.setColorAt(0.28, heller(f, 0.2));
    g.setColorAt(0.6, f);
    g.setColorAt(1, dunkler(f, 0.32));
    return g;
}

/// Body between two widths with a round bottom.
QPainterPath koerper(QPointF oben, double halbOben, QPointF unten, double halbUnten, double bauch = 0)
{
    QPainterPath k(oben - QPointF(halbOben, 0));
    k.quadTo({(oben.x() + unten.x()) / 2 - (halbOben + halbUnten) / 2 - bauch, (oben.y() + unten.y()) / 2}, unten - QPointF(halbUnten, 0));
    k.quadTo({unten.x(), unten.y() + halbUnten * schraege * 2}, unten + QPointF(halbUnten, 0));
    k.quadTo({(oben.x() + unten.x()) / 2 + (halbOben + halbUnten) / 2 + bauch, (oben.y() + unten.y()) / 2}, oben + QPointF(halbOben, 0));
    k.quadTo({oben.x(), oben.y() + halbOben * schraege * 2}, oben - QPointF(halbOben, 0));
    return k;
}

void erde(QPainter &p, QPointF mund, double halb, const QColor &innen)
{
    p.setPen(QPen(umriss(innen), 1.2));
    p.setBrush(dunkler(innen, 0.3));
    p.drawEllipse(mund, halb, halb * schraege);
    p.setPen(Qt::NoPen);
    QLinearGradient g(mund.x() - halb, 0, mund.x() + halb, 0);
    g.setColorAt(0, heller(farbe::erde, 0.12));
    g.setColorAt(1, dunkler(farbe::erde, 0.25));
    p.setBrush(g);
    p.drawEllipse(mund + QPointF(0, halb * 0.025), halb * 0.93, halb * schraege * 0.86);
    for (int i = 0; i < 22; ++i) {
        const QPointF ort = polar(137.5 * i, halb * 0.85 * std::sqrt((i + 0.5) / 22));
        p.setBrush(i % 2 ? heller(farbe::erde, 0.28) : dunkler(farbe::erde, 0.35));
        p.drawEllipse(mund + QPointF(ort.x(), ort.y() * schraege + halb * 0.02), halb * 0.018, halb * 0.01);
    }
}

void topf(QPainter &p, QPointF mund, Gefaessmass m, const QColor &f)
{
    const double halb = m.breite / 2, rand = m.hoehe * 0.2;
    const QPointF unten = mund + QPointF(0, m.hoehe - halb * 0.09);
    schlagschatten(p, mund + QPointF(halb * 0.12, m.hoehe + 2), halb * 1.15, halb * 0.17);
    p.setPen(QPen(umriss(f), 1.4));
    p.setBrush(rundung(mund.x() - halb * 0.92, mund.x() + halb * 0.92, f));
    p.drawPath(koerper(mund + QPointF(0, rand), halb * 0.9, unten, halb * 0.64));
    p.setPen(Qt::NoPen);
    p.setBrush(QColor(60, 30, 15, 60));
    p.drawPath(koerper(mund + QPointF(0, rand), halb * 0.9, mund + QPointF(0, rand + m.hoehe * 0.055), halb * 0.885));
    p.setPen(QPen(umriss(f), 1.4));
    p.setBrush(rundung(mund.x() - halb, mund.x() + halb, heller(f, 0.06)));
    p.drawPath(koerper(mund, halb, mund + QPointF(0, rand), halb * 0.955));
    erde(p, mund, halb, f);
}

void kuebel(QPainter &p, QPointF mund, Gefaessmass m, const QColor &f)
{
    const double halb = m.breite / 2;
    const QPointF unten = mund + QPointF(0, m.hoehe - halb * 0.1);
    schlagschatten(p, mund + QPointF(halb * 0.12, m.hoehe + 2), halb * 1.2, halb * 0.17);
    const QPainterPath form = koerper(mund, halb, unten, halb * 0.8, halb * 0.04);
    p.setPen(QPen(umriss(f), 1.4));
    p.setBrush(rundung(mund.x() - halb, mund.x() + halb, f));
    p.drawPath(form);
    p.setPen(QPen(durchsichtig(dunkler(f, 0.5), 0.5), 1.1));
    for (const double x : {-0.78, -0.5, -0.18, 0.18, 0.5, 0.78}) // staves
        p.drawLine(mund + QPointF(x * halb, halb * schraege * std::sqrt(1 - x * x)), unten + QPointF(x * halb * 0.8, halb * 0.8 * schraege * std::sqrt(1 - x * x)));
    const QColor eisen(0x5E, 0x5B, 0x57);
    for (const double t : {0.14, 0.78}) {
        const double b = halb * (1 - 0.2 * t) + halb * 0.02;
        p.setPen(QPen(dunkler(eisen, 0.4), 1));
        p.setBrush(rundung(mund.x() - b, mund.x() + b, eisen));
        p.drawPath(koerper(mund + QPointF(0, m.hoehe * t), b, mund + QPointF(0, m.hoehe * (t + 0.085)), b - halb * 0.01));
    }
    erde(p, mund, halb, f);
}

void ampel(QPainter &p, QPointF mund, Gefaessmass m, const QColor &f)
{
    const double halb = m.breite / 2;
    const QPointF haken(mund.x(), 74);
    const QColor schnur(0x8A, 0x78, 0x5C);
    p.setPen(QPen(schnur, 2.2));
    p.drawLine(haken, mund - QPointF(halb * 0.06, halb * schraege));
    p.drawLine(QPointF(haken.x(), 40), haken);
    erde(p, mund, halb, f);
    p.setPen(QPen(umriss(f), 1.4));
    p.setBrush(rundung(mund.x() - halb, mund.x() + halb, f));
    QPainterPath schale(mund - QPointF(halb, 0));
    schale.cubicTo(mund + QPointF(-halb * 0.96, m.hoehe * 0.75), mund + QPointF(-halb * 0.5, m.hoehe), mund + QPointF(0, m.hoehe));
    schale.cubicTo(mund + QPointF(halb * 0.5, m.hoehe), mund + QPointF(halb * 0.96, m.hoehe * 0.75), mund + QPointF(halb, 0));
    schale.quadTo(mund + QPointF(0, halb * schraege * 2), mund - QPointF(halb, 0));
    p.drawPath(schale);
    p.setPen(QPen(schnur, 2.6));
    p.drawLine(haken, mund + QPointF(-halb * 0.97, 4));
    p.drawLine(haken, mund + QPointF(halb * 0.97, 4));
    p.setBrush(Qt::NoBrush);
    p.drawEllipse(haken, 6, 6);
}

} // namespace

void gefaessZeichnen(QPainter &p, Gefaess art, QPointF mund, Gefaessmass mass, int spielart)
{
    const QColor ton[] = {QColor(0xC4, 0x70, 0x49), QColor(0xB8, 0x66, 0x48), QColor(0xCB, 0x7E, 0x55)};
    const QColor schale[] = {QColor(0xA8, 0x8A, 0x62), QColor(0xB9, 0x77, 0x52), QColor(0x8C, 0x93, 0x84)};
    switch (art) {
    case Gefaess::Topf: topf(p, mund, mass, ton[spielart % 3]); break;
    case Gefaess::Kuebel: kuebel(p, mund, mass, heller(farbe::holz, 0.05 * (spielart % 3))); break;
    case Gefaess::Ampel: ampel(p, mund, mass, schale[spielart % 3]); break;
    }
}

void spalier(QPainter &p, QPointF fuss, double b, double h)
{
    const QColor bambus(0xC2, 0xA5, 0x6B);
    for (const double x : {-0.5, 0.0, 0.5}) {
        const QPointF unten = fuss + QPointF(x * b * 0.45, 0), oben = fuss + QPointF(x * b, -h);
        stiel(p, {unten, unten + (oben - unten) / 3, unten + (oben - unten) * 2 / 3, oben}, 7, 5, bambus);
    }
    for (int i = 1; i <= 5; ++i) {
        const double t = i / 5.4, halb = b * (0.225 + 0.275 * t) + 8;
        const QPointF links = fuss + QPointF(-halb, -h * t), rechts = fuss + QPointF(halb, -h * t);
        stiel(p, {links, links + QPointF(halb * 0.6, 0), rechts - QPointF(halb * 0.6, 0), rechts}, 5, 5, heller(bambus, 0.15));
    }
}

void rankring(QPainter &p, QPointF fuss, double b, double h)
{
    for (const auto &[dicke, f] : {std::pair(6.0, QColor(0x6F, 0x66, 0x58)), std::pair(3.0, QColor(0xA9, 0xA2, 0x92))}) {
        p.setPen(QPen(f, dicke, Qt::SolidLine, Qt::RoundCap));
        p.setBrush(Qt::NoBrush);
        p.drawArc(QRectF(fuss.x() - b / 2, fuss.y() - h, b, h * 1.06), -76 * 16, 332 * 16);
    }
}

void moosstab(QPainter &p, QPointF fuss, double b, double h)
{
    const QColor moos(0x7C, 0x6A, 0x48);
    const QRectF stab(fuss.x() - b / 2, fuss.y() - h, b, h);
    p.setPen(QPen(umriss(moos), 1.2));
    p.setBrush(rundung(stab.left(), stab.right(), moos));
    p.drawRoundedRect(stab, b * 0.4, b * 0.4);
    p.setPen(QPen(durchsichtig(heller(moos, 0.4), 0.5), 1.2));
    for (int i = 0; i < int(h / 9); ++i) {
        const double y = stab.bottom() - 9 * i - 5, x = stab.left() + b * (0.15 + 0.5 * ((i * 7) % 10) / 10.0);
        p.drawLine(QPointF(x, y), QPointF(x + b * 0.22, y - 5));
    }
}
