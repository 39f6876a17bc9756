#include "Topfpflanzentafel.h"

#include "Buehne.h"
#include "Gefaess.h"
#include "Tafel.h"

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
    const bool kletterhilfe = g.aufbau == Aufbau::Kletter || g.aufbau == Aufbau::Strauch || g.aufbau == Aufbau::Eintrieb || g.aufbau == Aufbau::Kraut;
    if (haengt && !kletterhilfe && pflanze.hat(u"VERWENDUNG", u"für die Blumenampel"))
        return Gefaess::Ampel;
    return pflanze.hat(u"VERWENDUNG", u"als Kübelpflanze") && pflanze.zahl(u"MAXHOEHE").value_or(0) >= 0.8 ? Gefaess::Kuebel : Gefaess::Topf;
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

QString zweiteZeile(const Datensatz &pflanze)
{
    const QString deutsch = pflanze.text(u"DTNAM"), familie = pflanze.familie();
    return deutsch.isEmpty() ? familie : familie.isEmpty() ? deutsch : deutsch + QStringLiteral("  ·  ") + familie;
}

} // namespace

bool topfpflanzeGesamt(const Datensatz &pflanze, const QString &pfad)
{
    const Gestalt g = gestalt(pflanze);
    const Gefaess art = gefaessart(pflanze, g);
    Massstab m = massstab(pflanze, art);
    double topfhoehe = m.gefaess * m.pixelJeMeter;
    double pflanzenhoehe = m.hoehe * m.pixelJeMeter;
    if (art == Gefaess::Ampel && pflanzenhoehe > 330) { // room for what hangs
        m.pixelJeMeter *= 330 / pflanzenhoehe;
        topfhoehe *= 330 / pflanzenhoehe;
        pflanzenhoehe = 330;
    }
    const double topfbreite = std::clamp(topfhoehe * (art == Gefaess::Ampel ? 1.7 : art == Gefaess::Kuebel ? 1.2 : 1.12), 150.0, art == Gefaess::Ampel ? 420.0 : 330.0);
    topfhoehe = std::max(topfhoehe, topfbreite * (art == Gefaess::Ampel ? 0.5 : 0.8));
    const QPointF mund(880, art == Gefaess::Ampel ? std::max(420.0, 110 + pflanzenhoehe) : Tafel::boden - topfhoehe);
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
    tafel.unterschrift(pflanze.name(), zweiteZeile(pflanze), QStringLiteral("Gesamtansicht, schematisch"));
    return tafel.speichern(pfad);
}
