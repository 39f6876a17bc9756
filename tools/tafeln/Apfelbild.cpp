#include "Apfelkoerper.h"
#include "Apfelschnitt.h"
#include "Tafeln.h"

double fruchtkoerperMalen(QPainter &p, const QRectF &platz, const Datensatz &sorte, bool schnitt)
{
    const Apfelform form(sorte);
    const Apfelhaut haut(sorte);
    const double breit = platz.width() * 0.42, hoch = platz.height() / (schnitt ? 2.5 : 2.7);
    const double radius = std::min(breit, hoch), pixelJeCm = radius / (form.durchmesser / 2);
    const QPointF mitte = platz.center() + QPointF(0, radius * 0.16);
    if (schnitt) {
        Apfelschnitt(sorte, form, haut).laengs(p, mitte, radius);
        return pixelJeCm;
    }
    constexpr double neigung = 24;
    const Apfelkoerper koerper(form, haut, neigung, radius, p.transform().m11());
    koerper.zeichnen(p, mitte);
    const Apfelstiel stiel(sorte);
    stiel.zeichnen(p, mitte + koerper.achse(form.stielboden()), pixelJeCm, neigung);
    koerper.vordererRand(p, mitte);
    return pixelJeCm;
}
