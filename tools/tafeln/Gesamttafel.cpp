#include "Tafeln.h"

#include "Farben.h"
#include "Pflanzenbild.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr double oben = 52, unten = 1012; ///< of the drawing; below it stand labels
constexpr double links = 236, rechts = 1590;
constexpr double groessterMassstab = 9000; ///< pixels a metre

/// Things whose size everybody knows, as outlines one unit high, standing on 0,0.
QPainterPath mensch()
{
    QPainterPath p;
    p.addEllipse(QPointF(0, -0.93), 0.052, 0.068);
    QPainterPath leib({-0.035, -0.86});
    leib.cubicTo({-0.1, -0.845}, {-0.135, -0.83}, {-0.14, -0.76});
    leib.lineTo(-0.155, -0.48);
    leib.lineTo(-0.12, -0.475);
    leib.lineTo(-0.1, -0.7);
    leib.lineTo(-0.095, -0.45);
    leib.lineTo(-0.085, -0.01);
    leib.lineTo(-0.02, -0.01);
    leib.lineTo(0, -0.44);
    leib.lineTo(0.02, -0.01);
    leib.lineTo(0.085, -0.01);
    leib.lineTo(0.095, -0.45);
    leib.lineTo(0.1, -0.7);
    leib.lineTo(0.12, -0.475);
    leib.lineTo(0.155, -0.48);
    leib.lineTo(0.14, -0.76);
    leib.cubicTo({0.135, -0.83}, {0.1, -0.845}, {0.035, -0.86});
    leib.closeSubpath();
    p.addPath(leib);
    return p;
}

QPainterPath hand()
{
    QPainterPath p({-0.17, 0});
    p.cubicTo({-0.2, -0.2}, {-0.23, -0.3}, {-0.22, -0.42});
    for (const auto &[x, y, spitze] :
         {std::tuple(-0.2, -0.55, -0.78), std::tuple(-0.085, -0.58, -0.93), std::tuple(0.035, -0.58, -1.0), std::tuple(0.15, -0.53, -0.9)}) {
        p.lineTo(x - 0.045, y);
        p.cubicTo({x - 0.05, spitze - 0.02}, {x + 0.05, spitze - 0.02}, {x + 0.05, y});
    }
    p.lineTo(0.2, -0.36);
    p.cubicTo({0.3, -0.44}, {0.38, -0.54}, {0.41, -0.52});
    p.cubicTo({0.46, -0.48}, {0.34, -0.3}, {0.22, -0.18});
    p.cubicTo({0.19, -0.12}, {0.17, -0.06}, {0.17, 0});
    p.closeSubpath();
    return p;
}

QPainterPath muenze()
{
    QPainterPath p;
    p.addEllipse(QPointF(0, -0.5), 0.5, 0.5);
    p.addEllipse(QPointF(0, -0.5), 0.36, 0.36);
    return p;
}

struct Vergleich
{
    const char *text;
    double meter, breite;
    QPainterPath (*form)();
};
constexpr Vergleich vergleiche[] = {{"Mensch 1,75 m", 1.75, 0.32, mensch}, {"Hand 18 cm", 0.18, 0.66, hand}, {"Münze 23 mm", 0.023, 1, muenze}};

/// The largest of them that fits beside the plant.
const Vergleich &vergleich(double pixelJeMeter, double platz)
{
    for (const Vergleich &v : vergleiche)
        if (v.meter * pixelJeMeter < unten - oben && v.meter * pixelJeMeter * v.breite < platz)
            return v;
    return vergleiche[2];
}

void vergleichMalen(Tafel &t, const Vergleich &v, double x, double boden, double px, int nummer)
{
    const QPainterPath einheit = v.form();
    QTransform lage;
    lage.translate(x - einheit.boundingRect().center().x() * v.meter * px, boden);
    lage.scale(v.meter * px, v.meter * px);
    const QPainterPath form = lage.map(einheit);
    QPainter &p = t.maler();
    p.setPen(QPen(durchsichtig(farbe::tinte, 0.55), 1.6));
    p.setBrush(durchsichtig(farbe::linie, 0.28));
    p.drawPath(form);
    t.bild(form.boundingRect(), nummer);
    t.text({x, unten + 26}, QString::fromUtf8(v.text), 18);
}

void bodenMalen(Tafel &t, double von, double bis, double boden)
{
    QPainter &p = t.maler();
    QLinearGradient g(0, boden, 0, boden + 30);
    g.setColorAt(0, durchsichtig(farbe::erde, 0.55));
    g.setColorAt(1, durchsichtig(farbe::erde, 0));
    p.fillRect(QRectF(von, boden, bis - von, 30), g);
}

/// One shape of the plant in its column of the sheet.
struct Ansicht
{
    std::unique_ptr<Pflanzenbild> bild;
    QRectF platz;
};

void gebaut(Ansicht &a, const Steckbrief &s, const Formen &formen, double px, bool winter)
{
    a.bild = std::make_unique<Pflanzenbild>(s, formen, px, winter);
    a.bild->bauen();
}

} // namespace

void gesamtMalen(Tafel &t, const Steckbrief &s, const Formen &formen)
{
    const double rand = s.winterkahl ? 190 : 300; // what stands right of the plant
    std::vector<Ansicht> ansichten(s.winterkahl ? 2 : 1);
    const double spalte = (rechts - rand - links) / double(ansichten.size());
    for (size_t i = 0; i < ansichten.size(); ++i)
        ansichten[i].platz = QRectF(links + spalte * double(i), oben, spalte - 16, unten - oben);
    const double hoch = std::max(s.hoehe, s.bluetenhoehe) * (s.sammlung.imTopf ? 1.25 : 1.08);
    double px = std::min({(unten - oben) / hoch, ansichten[0].platz.width() / std::max(0.01, s.hoehe * s.breite * 1.1), groessterMassstab});
    const double hochplatz = unten - oben - (s.sammlung.imTopf ? 0 : 26);
    double faktor = 1;
    for (int lauf = 0; lauf < 3; ++lauf) {
        gebaut(ansichten[0], s, formen, px, false);
        const QRectF k = ansichten[0].bild->kasten();
        faktor = std::min({ansichten[0].platz.width() / k.width(), hochplatz / k.height(), groessterMassstab / px});
        if (lauf == 2 || std::abs(faktor - 1) < 0.06)
            break;
        px *= faktor;
    }
    // The second shape stands in the same scale; it may have the last word on it.
    if (s.winterkahl) {
        gebaut(ansichten[1], s, formen, px, true);
        const QRectF k = ansichten[1].bild->kasten();
        faktor = std::min({faktor, ansichten[1].platz.width() / k.width(), hochplatz / k.height()});
    }
    // The plant is as high as its record says: the rod follows the drawing.
    const double meter = s.haengt() ? s.hoehe : std::max(s.hoehe, s.bluetenhoehe);
    const QRectF gebautes = ansichten[0].bild->pflanzenkasten();
    const double echt = std::max(1.0, s.haengt() ? gebautes.bottom() : -gebautes.top()) * faktor / meter;
    double tief = 0;
    for (const Ansicht &a : ansichten)
        tief = std::max(tief, a.bild->kasten().bottom() * faktor);
    const bool nachUnten = s.haengt();
    const double boden =
        nachUnten ? oben - ansichten[0].bild->kasten().top() * faktor : std::min(unten - tief, unten - (s.sammlung.imTopf ? 0.0 : 26.0));
    QPainter &p = t.maler();
    if (!s.sammlung.imTopf && !nachUnten)
        bodenMalen(t, links - 30, rechts - 20, boden);
    for (size_t i = 0; i < ansichten.size(); ++i) {
        const Ansicht &a = ansichten[i];
        const QRectF k = a.bild->kasten();
        const double x = std::clamp(a.platz.center().x(), a.platz.left() - k.left() * faktor, a.platz.right() - k.right() * faktor);
        if (!nachUnten)
            schlagschatten(p, {x + k.center().x() * faktor, s.sammlung.imTopf ? boden + tief - 4 : boden + 2}, k.width() * faktor * 0.42, 16);
        p.save();
        p.translate(x, boden);
        p.scale(faktor, faktor);
        a.bild->malen(p);
        p.restore();
        const QRectF gemalt(x + k.left() * faktor, boden + k.top() * faktor, k.width() * faktor, k.height() * faktor);
        t.bild(gemalt.adjusted(0.5, 0.5, -0.5, -0.5), int(i));
        if (s.winterkahl)
            t.text({a.platz.center().x(), unten + 26}, i ? QStringLiteral("im Winter") : QStringLiteral("belaubt"), 18);
    }
    const Vergleich &v = vergleich(echt, rand - 50);
    const double fuss = nachUnten ? unten : s.sammlung.imTopf ? boden + tief : boden;
    vergleichMalen(t, v, rechts - rand / 2 - 10, std::min(fuss, unten), echt, 9);
    const Messlatte latte{{118, boden}, echt, nachUnten ? -meter : meter};
    latte.zeichnen(t);
    latte.spanne(t, s.kleinste < meter ? s.kleinste : 0, meter);
}
