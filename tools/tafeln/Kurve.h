#pragma once

#include <QColor>
#include <QPainter>
#include <QPainterPath>

#include <functional>
#include <ranges>
#include <vector>

/// Paints with pen and brush, which stay set.
void zeichnen(QPainter &p, const QPainterPath &pfad, const QPen &stift, const QBrush &fuellung);
/// Sets the painter to areas alone.
void nurFlaeche(QPainter &p, const QBrush &fuellung);
/// The gradient with its colours, as a brush.
QBrush verlauf(QGradient richtung, const QGradientStops &farben);

/// Places of `anzahl` things side by side, from -1 at the left to 1 at the right; one alone stands in the middle.
inline auto reihe(int anzahl)
{
    return std::views::iota(0, anzahl) | std::views::transform([anzahl](int i) { return anzahl > 1 ? -1 + 2.0 * i / (anzahl - 1) : 0; });
}
QPointF polar(double grad, double radius); ///< 0 to the right, 90 upwards on the sheet
/// Closed smooth line through points.
QPainterPath geschlossen(const std::vector<QPointF> &punkte);

/// Cubic curve.
struct Kurve
{
    QPointF a, b, c, d;
    QPointF punkt(double t) const;
    double winkel(double t) const; ///< direction in degrees, 90 upwards
    double laenge() const;
    QPainterPath pfad() const
    {
        QPainterPath pfad(a);
        pfad.cubicTo(b, c, d);
        return pfad;
    }
    /// Leaves `a` at `grad` and bends down (positive) or up by `neigung` degrees on its way.
    static Kurve bogen(QPointF a, double grad, double laenge, double neigung);
};

/// Stem that gets thinner, with a light side.
void stiel(QPainter &p, const Kurve &k, double dickeUnten, double dickeOben, const QColor &farbe);
