#include "Tafeln.h"

#include "Farben.h"
#include "Pflanzenbild.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr double oben = 52, unten = 1012; ///< of the drawing; below it stand labels
constexpr double links = 236, rechts = 1590;
constexpr double groessterMassstab = 9000; ///< pixels a metre

/// A thing whose size everybody knows: its form, its height in metres and the part of it that is its width.
struct Vergleich
{
    const char *form;
    double meter, breite;
};
constexpr Vergleich vergleiche[] = {{"mensch", 1.75, 0.32}, {"hand", 0.18, 0.66}, {"muenze", 0.023, 1}};

/// The largest of them that fits beside the plant.
const Vergleich &vergleich(double pixelJeMeter, double platz)
{
    for (const Vergleich &v : vergleiche)
        if (v.meter * pixelJeMeter < unten - oben && v.meter * pixelJeMeter * v.breite < platz)
            return v;
    return vergleiche[2];
}

void vergleichMalen(Tafel &t, const Vergleich &v, const Formen &formen, double x, double boden, double px, int nummer)
{
    const Form *ding = formen.form(Formgruppe::Ding, QLatin1String(v.form));
    if (!ding)
        throw Quellfehler{QStringLiteral("data/formen: die Form %1 fehlt").arg(QLatin1String(v.form))};
    QPainterPath form;
    for (const Formteil &teil : ding->teile)
        form.addPath(teil.pfad);
    const double mass = v.meter * px / 100;
    form = QTransform(mass, 0, 0, mass, x - form.boundingRect().center().x() * mass, boden).map(form);
    QPainter &p = t.maler();
    zeichnen(p, form, QPen(durchsichtig(farbe::tinte, 0.55), 1.6), durchsichtig(farbe::linie, 0.28));
    t.aufriss.bild(form.boundingRect(), nummer);
    t.text({x, unten + 26}, ding->titel, 18);
}

} // namespace

void gesamtMalen(Tafel &t, const Steckbrief &s, const Formen &formen)
{
    const double rand = s.winterkahl ? 190 : 300; // what stands right of the plant
    const double breite = (rechts - rand - links) / (s.winterkahl ? 2 : 1) - 16, hochplatz = unten - oben - (s.sammlung.imTopf ? 0 : 26);
    const double hoch = std::max(s.hoehe, s.bluetenhoehe) * (s.sammlung.imTopf ? 1.25 : 1.08);
    double px = std::min({(unten - oben) / hoch, breite / std::max(0.01, s.hoehe * s.breite * 1.1), groessterMassstab});
    double faktor = 1;
    std::vector<std::unique_ptr<Pflanzenbild>> ansichten(1); // side by side
    const auto passend = [&](const Pflanzenbild &bild) { return std::min(breite / bild.kasten().width(), hochplatz / bild.kasten().height()); };
    for (int lauf = 0; lauf < 3; ++lauf) {
        ansichten[0] = std::make_unique<Pflanzenbild>(s, formen, px, false);
        faktor = std::min(passend(*ansichten[0]), groessterMassstab / px);
        if (std::abs(faktor - 1) < 0.06)
            break;
        px *= lauf < 2 ? faktor : 1;
    }
    // The second shape stands in the same scale; it may have the last word on it.
    if (s.winterkahl) {
        ansichten.push_back(std::make_unique<Pflanzenbild>(s, formen, px, true));
        faktor = std::min(faktor, passend(*ansichten[1]));
    }
    // The plant is as high as its record says: the rod follows the drawing.
    const double meter = s.haengt() ? s.hoehe : std::max(s.hoehe, s.bluetenhoehe);
    const QRectF gebautes = ansichten[0]->pflanzenkasten();
    const double echt = std::max(1.0, s.haengt() ? gebautes.bottom() : -gebautes.top()) * faktor / meter;
    double tief = 0;
    for (const auto &bild : ansichten)
        tief = std::max(tief, bild->kasten().bottom() * faktor);
    const bool nachUnten = s.haengt();
    const double boden = nachUnten ? oben - ansichten[0]->kasten().top() * faktor : std::min(unten - tief, unten - (s.sammlung.imTopf ? 0.0 : 26.0));
    QPainter &p = t.maler();
    if (!s.sammlung.imTopf && !nachUnten) { // the ground, to the depth of what reaches into it or stands before it
        const double dicke = std::clamp(tief + 8, 30.0, unten + 14 - boden), deckung = dicke > 31 ? 0.4 : 0.55;
        p.fillRect(
            QRectF(links - 30, boden, rechts - links + 10, dicke),
            verlauf(QLinearGradient(0, boden, 0, boden + dicke), {{0, durchsichtig(farbe::erde, deckung)}, {1, durchsichtig(farbe::erde, 0)}}));
    }
    for (size_t i = 0; i < ansichten.size(); ++i) {
        const QRectF k = ansichten[i]->kasten();
        const double von = links + (breite + 16) * double(i), mitte = von + breite / 2;
        const double x = std::clamp(mitte, von - k.left() * faktor, von + breite - k.right() * faktor);
        if (!nachUnten)
            schlagschatten(p, {x + k.center().x() * faktor, s.sammlung.imTopf ? boden + tief - 4 : boden + 2}, k.width() * faktor * 0.42, 16);
        p.save();
        p.translate(x, boden);
        p.scale(faktor, faktor);
        ansichten[i]->malen(p);
        p.restore();
        const QRectF gemalt(x + k.left() * faktor, boden + k.top() * faktor, k.width() * faktor, k.height() * faktor);
        t.aufriss.bild(gemalt.adjusted(0.5, 0.5, -0.5, -0.5), int(i));
        if (s.winterkahl)
            t.text({mitte, unten + 26},
                   !i          ? QStringLiteral("belaubt")
                   : s.vorLaub ? QStringLiteral("blühend vor dem Laub")
                               : QStringLiteral("im Winter"),
                   18);
    }
    const Vergleich &v = vergleich(echt, rand - 50);
    const double fuss = nachUnten ? unten : s.sammlung.imTopf ? boden + tief : boden;
    vergleichMalen(t, v, formen, rechts - rand / 2 - 10, std::min(fuss, unten), echt, 9);
    const Messlatte latte{{118, boden}, echt, nachUnten ? -meter : meter};
    latte.zeichnen(t);
    latte.spanne(t, s.kleinste < meter ? s.kleinste : 0, meter);
}
