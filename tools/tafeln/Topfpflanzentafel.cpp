#include "Topfpflanzentafel.h"

#include "Buehne.h"
#include "Gefaess.h"
#include "Tafel.h"
#include "Tafelinhalt.h"

#include <algorithm>
#include <cmath>

namespace {

/// Sizes of a plate in metres and pixels.
struct Massstab
{
    double hoehe;        ///< of the plant as drawn
    double gefaess;      ///< height of the pot
    double pixelJeMeter;
};

constexpr double zeichenhoehe = 890, groessterTopf = 300;

double gezeichneteHoehe(const Datensatz &pflanze)
{
    const double klein = pflanze.zahl(u"MINHOEHE").value_or(0.2);
    const double gross = std::max({pflanze.zahl(u"MAXHOEHE").value_or(klein), klein, 0.03});
    // Tall plants are drawn as they are usually sold and kept, smaller than the largest that is possible.
    if (pflanze.hat(u"WUCHSFORM", u"teppichbildend") || pflanze.hat(u"WUCHSFORM", u"polsterbildend"))
        return (klein + gross) / 2;
    return std::min(gross, std::max(klein * 1.3, 0.5 * gross + 0.15));
}

Massstab massstab(const Datensatz &pflanze, Gefaess art)
{
    const double h = gezeichneteHoehe(pflanze);
    const double topf = art == Gefaess::Kuebel ? 0.14 + 0.17 * std::pow(h, 0.8) : 0.075 + 0.13 * std::pow(h, 0.8);
    return {h, topf, std::min(zeichenhoehe / (h + topf), groessterTopf / topf)};
}

Gefaess gefaessart(const Datensatz &pflanze, const Gestalt &g)
{
    const bool haengt = pflanze.hat(u"WUCHSFORM", u"überhängend") || g.aufbau == Aufbau::Haenge;
    constexpr Aufbau ueberDenRand[] = {Aufbau::Haenge, Aufbau::Farn, Aufbau::Baender, Aufbau::Gliederkaktus, Aufbau::Geweih, Aufbau::Polster};
    if (haengt && std::ranges::find(ueberDenRand, g.aufbau) != std::end(ueberDenRand) && pflanze.hat(u"VERWENDUNG", u"für die Blumenampel"))
        return Gefaess::Ampel;
    return pflanze.hat(u"VERWENDUNG", u"als Kübelpflanze") && pflanze.zahl(u"MAXHOEHE").value_or(0) >= 1 ? Gefaess::Kuebel : Gefaess::Topf;
}

void messlatte(QPainter &p, const Datensatz &pflanze, QPointF boden, const Massstab &m)
{
    const Messlatte latte{{190, boden.y()}, m.pixelJeMeter, std::min((boden.y() - 70) / m.pixelJeMeter, std::max(m.hoehe * 1.08, pflanze.zahl(u"MAXHOEHE").value_or(m.hoehe)))};
    p.setPen(QPen(durchsichtig(farbe::blass, 0.55), 1.2, Qt::DashLine));
    p.drawLine(QPointF(205, boden.y()), boden);
    latte.zeichnen(p);
    const double gross = pflanze.zahl(u"MAXHOEHE").value_or(m.hoehe);
    latte.spanne(p, std::min(pflanze.zahl(u"MINHOEHE").value_or(gross), gross), gross);
}

} // namespace

bool topfpflanzeGesamt(const Datensatz &pflanze, const QString &pfad)
{
    const Gestalt g = gestalt(pflanze);
    const Gefaess art = gefaessart(pflanze, g);
    Massstab m = massstab(pflanze, art);
    double topfhoehe = m.gefaess * m.pixelJeMeter;
    double pflanzenhoehe = m.hoehe * m.pixelJeMeter;
    double topfbreite = std::clamp(topfhoehe * (art == Gefaess::Kuebel ? 1.2 : 1.12), 150.0, 330.0);
    if (g.aufbau == Aufbau::Kugelkaktus)
        topfbreite = std::max(topfbreite, pflanzenhoehe * 0.8);
    if (art == Gefaess::Ampel) { // room for what hangs
        m.pixelJeMeter = std::min((g.aufbau == Aufbau::Haenge ? 300 : 430) / m.hoehe, 1800.0);
        pflanzenhoehe = m.hoehe * m.pixelJeMeter;
        topfbreite = std::clamp(0.26 * m.pixelJeMeter, 290.0, 400.0);
        topfhoehe = topfbreite * 0.52;
    }
    topfhoehe = std::max(topfhoehe, topfbreite * (art == Gefaess::Ampel ? 0.5 : g.aufbau == Aufbau::Kugelkaktus ? 0.62 : 0.8));
    const QPointF mund(880, art == Gefaess::Ampel ? std::max(g.aufbau == Aufbau::Haenge ? 430.0 : 600.0, 120 + pflanzenhoehe) : Tafel::boden - topfhoehe);
    if (art != Gefaess::Ampel && pflanzenhoehe > mund.y() - 70) {
        m.pixelJeMeter *= (mund.y() - 70) / pflanzenhoehe;
        pflanzenhoehe = mund.y() - 70;
    }
    const QPointF fuss = mund + QPointF(0, topfbreite * 0.012);

    Tafel tafel;
    QPainter &p = tafel.maler();
    messlatte(p, pflanze, {mund.x() - topfbreite / 2, mund.y()}, m);
    gefaessZeichnen(p, art, mund, {topfbreite, topfhoehe}, Zufall(pflanze.name(), 8).ganz(3));
    Buehne buehne(pflanze, g, fuss, pflanzenhoehe, 1120, topfbreite / 2 * 0.9, m.pixelJeMeter / 100);
    wachsen(buehne);
    bluehen(buehne);
    buehne.malen(p);
    tafel.unterschrift(pflanze.name(), zweiteZeile(pflanze, pflanze.familie()), gesamttitel.toString());
    return tafel.speichern(pfad);
}
