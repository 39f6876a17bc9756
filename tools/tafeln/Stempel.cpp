#include "Stempel.h"

#include "Farben.h"

#include <QTransform>

#include <algorithm>
#include <cmath>
#include <numbers>

namespace {

constexpr double bogenmass = std::numbers::pi / 180;

QColor mitTon(const QColor &f, double ton)
{
    return ton > 0 ? gemischt(f, QColor(255, 255, 225, f.alpha()), ton) : ton < 0 ? gemischt(f, QColor(20, 40, 40, f.alpha()), -ton) : f;
}

/// Tangents of a smooth line through points, at a third of the way.
QPointF tangente(const std::vector<QPointF> &p, size_t i, bool rund)
{
    const size_t n = p.size();
    const QPointF &vor = rund ? p[(i + n - 1) % n] : p[i ? i - 1 : 0];
    const QPointF &nach = rund ? p[(i + 1) % n] : p[std::min(i + 1, n - 1)];
    return (nach - vor) / 6;
}

} // namespace

void Stempel::flaeche(const QPainterPath &form, const QColor &f, double strich, const QColor &strichfarbe)
{
    schichten_.push_back({form, f, {}, {}, {}, strichfarbe.isValid() ? strichfarbe : umriss(f), strich});
}

void Stempel::verlauf(const QPainterPath &form, const QColor &a, const QColor &b, QPointF von, QPointF bis, double strich)
{
    schichten_.push_back({form, a, b, von, bis, umriss(gemischt(a, b, 0.5)), strich});
}

void Stempel::linie(const QPainterPath &form, const QColor &f, double strich)
{
    schichten_.push_back({form, {}, {}, {}, {}, f, strich});
}

void Stempel::kreis(QPointF mitte, double radius, const QColor &f, double strich)
{
    flaeche(ellipse(mitte, radius, radius), f, strich);
}

void Stempel::oval(QPointF mitte, double rx, double ry, const QColor &f, double strich)
{
    flaeche(ellipse(mitte, rx, ry), f, strich);
}

void Stempel::stempel(const Stempel &anderer, QPointF ort, double winkel, double groesse, double breite)
{
    QTransform lage;
    lage.translate(ort.x(), ort.y());
    lage.rotate(winkel);
    lage.scale(groesse, groesse * breite);
    for (Schicht s : anderer.schichten_) {
        s.form = lage.map(s.form);
        s.von = lage.map(s.von);
        s.bis = lage.map(s.bis);
        schichten_.push_back(std::move(s));
    }
}

void Stempel::verbiegen(const std::function<QPointF(QPointF)> &abbildung)
{
    for (Schicht &s : schichten_)
        for (int i = 0; i < s.form.elementCount(); ++i) {
            const QPointF neu = abbildung(s.form.elementAt(i));
            s.form.setElementPositionAt(i, neu.x(), neu.y());
        }
}

void Stempel::zeichnen(QPainter &p, QPointF ort, double winkel, double groesse, double breite, double ton) const
{
    p.save();
    p.translate(ort);
    p.rotate(winkel);
    p.scale(groesse, groesse * breite);
    const double strich = std::clamp(groesse * 0.007, 0.55, 2.3);
    const double stufe = std::round(ton * 8) / 8; // few tones keep the painter's cache of gradients effective
    for (const Schicht &s : schichten_) {
        QPen stift(mitTon(s.strichfarbe, stufe), strich * s.strich, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin);
        stift.setCosmetic(true);
        p.setPen(s.strich > 0 ? stift : QPen(Qt::NoPen));
        if (s.b.isValid()) {
            QLinearGradient verlauf(s.von, s.bis);
            verlauf.setColorAt(0, mitTon(s.a, stufe));
            verlauf.setColorAt(1, mitTon(s.b, stufe));
            p.setBrush(verlauf);
        } else {
            p.setBrush(s.a.isValid() ? QBrush(mitTon(s.a, stufe)) : QBrush(Qt::NoBrush));
        }
        p.drawPath(s.form);
    }
    p.restore();
}

QPointF polar(double grad, double radius)
{
    return {std::cos(grad * bogenmass) * radius, -std::sin(grad * bogenmass) * radius};
}

QPainterPath ellipse(QPointF mitte, double rx, double ry)
{
    QPainterPath pfad;
    pfad.addEllipse(mitte, rx, ry);
    return pfad;
}

QPainterPath geschlossen(const std::vector<QPointF> &p)
{
    QPainterPath pfad(p.front());
    for (size_t i = 0; i < p.size(); ++i) {
        const size_t j = (i + 1) % p.size();
        pfad.cubicTo(p[i] + tangente(p, i, true), p[j] - tangente(p, j, true), p[j]);
    }
    pfad.closeSubpath();
    return pfad;
}

QPainterPath offen(const std::vector<QPointF> &p)
{
    QPainterPath pfad(p.front());
    for (size_t i = 0; i + 1 < p.size(); ++i)
        pfad.cubicTo(p[i] + tangente(p, i, false), p[i + 1] - tangente(p, i + 1, false), p[i + 1]);
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

QPainterPath Kurve::pfad() const
{
    QPainterPath pfad(a);
    pfad.cubicTo(b, c, d);
    return pfad;
}

Kurve Kurve::bogen(QPointF a, double grad, double laenge, double neigung)
{
    // Leaning follows gravity: it turns the shoot towards the side it leans to already.
    const double seite = std::cos(grad * bogenmass) >= 0 ? -1 : 1;
    const QPointF b = a + polar(grad, laenge / 3);
    const QPointF c = b + polar(grad + seite * neigung * 0.5, laenge / 3);
    return {a, b, c, c + polar(grad + seite * neigung, laenge / 3)};
}

QPainterPath band(const Kurve &k, const std::function<double(double)> &halbeBreite, double von, double bis, int schritte)
{
    QPolygonF links, rechts;
    for (int i = 0; i <= schritte; ++i) {
        const double t = von + (bis - von) * i / schritte;
        const QPointF quer = polar(k.winkel(t) + 90, halbeBreite(t));
        links << k.punkt(t) + quer;
        rechts.prepend(k.punkt(t) - quer);
    }
    QPainterPath pfad;
    pfad.addPolygon(links + rechts);
    pfad.closeSubpath();
    return pfad;
}

void stiel(QPainter &p, const Kurve &k, double unten, double oben, const QColor &f)
{
    const auto breite = [&](double t) { return (unten + (oben - unten) * t) / 2; };
    p.setPen(QPen(umriss(f), 0.8));
    p.setBrush(f);
    p.drawPath(band(k, breite, 0, 1, 14));
    if (unten > 5) {
        p.setPen(QPen(durchsichtig(heller(f, 0.5), 0.6), unten * 0.16, Qt::SolidLine, Qt::RoundCap));
        p.setBrush(Qt::NoBrush);
        p.drawPath(k.pfad().translated(-unten * 0.16, 0));
    }
}
