#include "Kurve.h"

#include "Farben.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace {

constexpr double bogenmass = std::numbers::pi / 180;

} // namespace

void zeichnen(QPainter &p, const QPainterPath &pfad, const QPen &stift, const QBrush &fuellung)
{
    p.setPen(stift);
    p.setBrush(fuellung);
    p.drawPath(pfad);
}

void nurFlaeche(QPainter &p, const QBrush &fuellung)
{
    p.setPen(Qt::NoPen);
    p.setBrush(fuellung);
}

QBrush verlauf(QGradient richtung, const QGradientStops &farben)
{
    richtung.setStops(farben);
    return richtung;
}

QPointF polar(double grad, double radius)
{
    return {std::cos(grad * bogenmass) * radius, -std::sin(grad * bogenmass) * radius};
}

QPainterPath geschlossen(const std::vector<QPointF> &p)
{
    const auto tangente = [&p, n = p.size()](size_t i) { return (p[(i + 1) % n] - p[(i + n - 1) % n]) / 6; };
    QPainterPath pfad(p.front());
    for (size_t i = 0; i < p.size(); ++i) {
        const size_t j = (i + 1) % p.size();
        pfad.cubicTo(p[i] + tangente(i), p[j] - tangente(j), p[j]);
    }
    pfad.closeSubpath();
    return pfad;
}

QPointF Kurve::punkt(double t) const
{
    const double s = 1 - t;
    return s * s * s * a + 3 * s * s * t * b + 3 * s * t * t * c + t * t * t * d;
}

double Kurve::winkel(double t) const
{
    const QPointF r = punkt(std::min(1.0, t + 0.01)) - punkt(std::max(0.0, t - 0.01));
    return std::atan2(-r.y(), r.x()) / bogenmass;
}

double Kurve::laenge() const
{
    double summe = 0;
    for (int i = 0; i < 8; ++i) {
        const QPointF r = punkt((i + 1) / 8.0) - punkt(i / 8.0);
        summe += std::hypot(r.x(), r.y());
    }
    return summe;
}

Kurve Kurve::bogen(QPointF a, double grad, double laenge, double neigung)
{
    // Leaning follows gravity: it turns the shoot towards the side it leans to already.
    const double seite = std::cos(grad * bogenmass) >= 0 ? -1 : 1;
    const QPointF b = a + polar(grad, laenge / 3);
    const QPointF c = b + polar(grad + seite * neigung * 0.5, laenge / 3);
    return {a, b, c, c + polar(grad + seite * neigung, laenge / 3)};
}

void stiel(QPainter &p, const Kurve &k, double unten, double oben, const QColor &f)
{
    if (unten < 2) // of a twig one sees no outline
        return p.strokePath(k.pfad(), QPen(gemischt(f, umriss(f), 0.5), (unten + oben) / 2 + 0.6, Qt::SolidLine, Qt::FlatCap));
    constexpr int schritte = 14;
    QPolygonF links, rechts;
    for (int i = 0; i <= schritte; ++i) {
        const double t = double(i) / schritte;
        const QPointF quer = polar(k.winkel(t) + 90, (unten + (oben - unten) * t) / 2);
        links << k.punkt(t) + quer;
        rechts.prepend(k.punkt(t) - quer);
    }
    p.setPen(QPen(umriss(f), 0.8));
    p.setBrush(f);
    p.drawPolygon(links + rechts, Qt::WindingFill);
    if (unten > 5)
        p.strokePath(k.pfad().translated(-unten * 0.16, 0), QPen(durchsichtig(heller(f, 0.5), 0.6), unten * 0.16, Qt::SolidLine, Qt::RoundCap));
}
