#pragma once

#include <QBrush>
#include <QColor>
#include <QPainter>
#include <QPainterPath>

#include <functional>
#include <vector>

/* A drawing in unit size that is put down many times: leaves from (0, 0) along +x to (1, 0), flowers about (0, 0) with
   radius 1 and -y upwards. */
class Stempel
{
public:
    void flaeche(const QPainterPath &form, const QColor &farbe, double strich = 1, const QColor &strichfarbe = {});
    /// Filled from one colour at `von` to the other at `bis`.
    void verlauf(const QPainterPath &form, const QColor &a, const QColor &b, QPointF von, QPointF bis, double strich = 1);
    void linie(const QPainterPath &form, const QColor &farbe, double strich = 1);
    void kreis(QPointF mitte, double radius, const QColor &farbe, double strich = 0.7);
    /// Another drawing, turned clockwise by `winkel` degrees.
    void stempel(const Stempel &anderer, QPointF ort, double winkel, double groesse, double breite = 1);
    void oval(QPointF mitte, double rx, double ry, const QColor &farbe, double strich = 0.7);
    void verbiegen(const std::function<QPointF(QPointF)> &abbildung);
    bool leer() const { return schichten_.empty(); }

    /// `winkel` turns clockwise, in degrees; `breite` scales across; `ton` from -1 (dark) to 1 (light).
    void zeichnen(QPainter &p, QPointF ort, double winkel, double groesse, double breite = 1, double ton = 0) const;

private:
    struct Schicht
    {
        QPainterPath form;
        QColor a, b; ///< b invalid: one colour; both invalid: a line
        QPointF von, bis;
        QColor strichfarbe;
        double strich;
    };
    std::vector<Schicht> schichten_;
};

QPointF polar(double grad, double radius); ///< 0 to the right, 90 upwards on the sheet
QPainterPath ellipse(QPointF mitte, double rx, double ry);
/// Closed smooth line through points.
QPainterPath geschlossen(const std::vector<QPointF> &punkte);
/// Open smooth line through points.
QPainterPath offen(const std::vector<QPointF> &punkte);

/// Cubic curve.
struct Kurve
{
    QPointF a, b, c, d;
    QPointF punkt(double t) const;
    double winkel(double t) const; ///< direction in degrees, 90 upwards
    double laenge() const;
    QPainterPath pfad() const;
    /// Leaves `a` at `grad` and bends down (positive) or up by `neigung` degrees on its way.
    static Kurve bogen(QPointF a, double grad, double laenge, double neigung);
};

/// Ribbon along a curve with a half width at each t.
QPainterPath band(const Kurve &k, const std::function<double(double)> &halbeBreite, double von = 0, double bis = 1, int schritte = 18);
/// Stem that gets thinner, with a light side.
void stiel(QPainter &p, const Kurve &k, double dickeUnten, double dickeOben, const QColor &farbe);
