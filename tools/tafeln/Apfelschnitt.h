#pragma once

#include "Apfelform.h"
#include "Apfelhaut.h"

#include <QPainter>

/// The inside of an apple, cut lengthwise.
class Apfelschnitt
{
public:
    Apfelschnitt(const Datensatz &sorte, const Apfelform &form, const Apfelhaut &haut);

    void laengs(QPainter &p, QPointF mitte, double radius) const;

private:
    struct Kern
    {
        double laenge, breite;
        QColor farbe;
    };
    QPointF rand(double phi, int seite) const;
    QPainterPath umriss() const;
    void fleisch(QPainter &p, const QPainterPath &form) const;
    void schale(QPainter &p, double radius) const;
    void kernhaus(QPainter &p) const;
    void kelch(QPainter &p) const;
    void kern(QPainter &p, QPointF spitze, double grad, bool taub) const;
    double mitteHoehe() const { return (form_.stielboden() + form_.kelchboden()) / 2; }

    const Datensatz &sorte_;
    const Apfelform &form_;
    const Apfelhaut &haut_;
    Kern kern_;
    double kernhaus_, kammer_, achse_, roehre_, roehrenbreite_, hoehle_;
    QColor fleisch_;
    bool roetlich_;
};

/// Length and thickness of the stalk in cm.
struct Apfelstiel
{
    explicit Apfelstiel(const Datensatz &sorte);
    double laenge, dicke;
    bool knopfig;
    QColor farbe;
    void zeichnen(QPainter &p, QPointF fuss, double pixelJeCm, double neigung) const;
};
