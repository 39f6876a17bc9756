#pragma once

#include "Apfelform.h"
#include "Apfelhaut.h"

#include <QImage>
#include <QPainterPath>

/// An apple seen from a raised or lowered place.
class Apfelkoerper
{
public:
    /// `neigung` in degrees: positive shows the stalk cavity, negative the calyx. `radius` in units of the sheet, of which each is `mass` pixels.
    Apfelkoerper(const Apfelform &form, const Apfelhaut &haut, double neigung, double radius, double mass);

    /// Place of the axis at a height (in half widths, up positive), relative to the centre.
    QPointF achse(double hoehe) const;
    void zeichnen(QPainter &p, QPointF mitte) const;
    /// Only what stands before the axis and above `bis`: it hides the foot of the stalk.
    void vordererRand(QPainter &p, QPointF mitte) const;

private:
    struct Ecke
    {
        double x, y, z, laenge, breite, licht, glanz;
    };
    void gitter();
    void dreieck(const Ecke &a, const Ecke &b, const Ecke &c);
    void umreissen();
    void saumFuellen();

    const Apfelform &form_;
    const Apfelhaut &haut_;
    double sinus_, cosinus_, mass_, radius_; ///< radius in pixels
    int halb_;                               ///< half width of the image
    std::vector<Ecke> ecken_;
    std::vector<float> tiefe_;
    QImage bild_, vorn_;
    QPainterPath umriss_;
};
