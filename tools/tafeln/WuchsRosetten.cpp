#include "Buehne.h"

#include <algorithm>
#include <cmath>
#include <numbers>

/* Plants whose leaves come from one place: the ground or the top of a trunk. */

namespace {

constexpr double pi = std::numbers::pi;

QColor blattstielfarbe(const Buehne &b)
{
    const QColor gruen = gemischt(farbe::stiel, b.laub.grund, 0.45);
    return b.laub.roteUnterseite ? gemischt(gruen, QColor(0x96, 0x48, 0x50), 0.45) : gruen;
}

/// Form of long leaves by genus.
struct Bandform
{
    QStringView name;
    int anzahl;
    double breiteCm, neigung, spreizung, spitze, grund;
    bool stachlig = false, gewellt = false;
};
constexpr Bandform bandformen[] = {
    {u"", 16, 3, 70, 62, 0.35, 0.8},
    {u"Aechmea", 13, 6.5, 40, 58, 0.78, 0.75, true},
    {u"Agapanthus", 20, 3, 82, 66, 0.5, 0.8},
    {u"Aloe", 13, 5.5, 24, 62, 0.02, 1, true},
    {u"Ananas", 24, 4.2, 46, 68, 0.15, 1, true},
    {u"Asplenium", 15, 10, 34, 56, 0.45, 0.45, false, true},
    {u"Beaucarnea", 44, 2, 165, 118, 0.2, 1},
    {u"Chlorophytum", 30, 2, 118, 76, 0.3, 0.7},
    {u"Clivia", 15, 4.6, 78, 64, 0.6, 0.85},
    {u"Cordyline", 22, 8.5, 46, 96, 0.3, 0.35},
    {u"Cymbidium", 16, 2.2, 78, 50, 0.3, 0.8},
    {u"Dracaena fragrans", 26, 7.5, 98, 108, 0.35, 0.7},
    {u"Dracaena reflexa", 44, 1.6, 44, 116, 0.2, 0.9},
    {u"Dracaena trifasciata", 9, 6.5, 5, 17, 0.55, 0.65},
    {u"Guzmania", 18, 4.5, 66, 66, 0.4, 0.9},
    {u"Hippeastrum", 6, 4.2, 52, 50, 0.6, 0.7},
    {u"Hyacinthus", 7, 2.6, 22, 42, 0.5, 0.7},
    {u"Oncidium", 9, 3.2, 48, 52, 0.4, 0.6},
    {u"Paphiopedilum", 8, 4.6, 62, 76, 0.55, 0.7},
    {u"Tillandsia", 26, 1.3, 66, 72, 0.05, 1},
    {u"Vriesea", 15, 5.5, 52, 62, 0.5, 0.85},
    {u"Yucca", 30, 5, 30, 112, 0.25, 0.5},
};

const Bandform &bandform(const Gestalt &g)
{
    const auto *treffer = std::ranges::find(bandformen, g.name, &Bandform::name);
    if (g.name == u"Dracaena")
        treffer = std::ranges::find(bandformen, QStringView(u"Dracaena fragrans"), &Bandform::name);
    return treffer != std::end(bandformen) ? *treffer : bandformen[0];
}

/// A head of long leaves, the hindmost and most upright first.
void bandkopf(Buehne &b, QPointF ort, const Bandform &form, double laenge, double halb, double ebene)
{
    const double breite = std::clamp(form.breiteCm * b.pixelJeCm, 4.0, laenge * 0.26);
    const QColor grund = b.laub.grund, zweite = b.laub.zweite;
    for (int i = 0; i < form.anzahl; ++i) {
        const double lage = (i % 2 ? 1 : -1) * (i + 0.6) / form.anzahl; // from the middle outwards
        const double weit = std::abs(lage);
        const double grad = 90 - lage * form.spreizung + b.zufall.streuung(4);
        const double l = laenge * (1 - 0.14 * weit) * b.zufall.zwischen(0.9, 1.03);
        const Kurve k = b.gehalten(ort + QPointF(lage * halb, 0), grad, l, form.neigung * (0.35 + 0.75 * weit) * b.zufall.zwischen(0.85, 1.15));
        const Bandblatt blatt{breite * b.zufall.zwischen(0.9, 1.08), form.spitze, form.grund, form.stachlig && breite > 12, form.gewellt, b.bandmuster()};
        const double tiefe = ebene + 0.6 * weit - 0.5, ton = b.ton(tiefe);
        b.ding(tiefe, [=](QPainter &p) { bandblatt(p, k, blatt, grund, zweite, ton); });
    }
}

struct Wedelform
{
    QStringView name;
    int anzahl;
    double spreizung, neigung;
    Wedel wedel;
};
constexpr Wedelform wedelformen[] = {
    {u"", 17, 80, 82, {24, .15, 1, 68, .10, .4}},
    {u"Adiantum", 30, 84, 74, {12, .085, 1, 50, .30, .35}},
    {u"Asparagus", 24, 92, 100, {34, .085, 1, 56, .06, .5}},
    {u"Nephrolepis", 24, 86, 100, {32, .115, 1, 76, .07, .4}},
    {u"Pellaea", 17, 80, 84, {13, .085, 1, 78, .14, .5}},
    {u"Pteris", 12, 66, 58, {4, .36, 1, 42, .45, .25}},
    {u"Zamioculcas", 11, 56, 34, {10, .2, 1, 54, .2, .4}},
    {u"Cycas", 24, 112, 44, {40, .15, 1, 60, .05, .45}},
    {u"Phoenix", 22, 108, 84, {34, .21, 1, 48, .08, .45}},
    {u"Blechnum", 22, 104, 66, {24, .13, 1.1, 70, .06, .45}},
    {u"Chamaedorea", 8, 88, 66, {12, .3, 1, 50, .16, .4}},
    {u"Howea", 6, 74, 88, {18, .36, .8, 52, .22, .42}},
};

const Wedelform &wedelform(const Gestalt &g)
{
    const auto *treffer = std::ranges::find(wedelformen, g.name, &Wedelform::name);
    return treffer != std::end(wedelformen) ? *treffer : wedelformen[0];
}

void wedelkopf(Buehne &b, QPointF ort, const Wedelform &form, double laenge, double halb, double ebene)
{
    const QColor stielfarbe = b.gestalt.name == u"Adiantum" || b.gestalt.name == u"Pellaea" ? QColor(0x45, 0x30, 0x28) : blattstielfarbe(b);
    const Stempel fieder = blattstempel(b.gestalt.blatt, b.laub, b.laub.muster, Zufall(b.pflanze.name(), 4));
    for (int i = 0; i < form.anzahl; ++i) {
        const double lage = (i % 2 ? 1 : -1) * (i + 0.5) / form.anzahl, weit = std::abs(lage);
        const double l = laenge * (1.02 - 0.12 * weit) * b.zufall.zwischen(0.86, 1.03);
        const Kurve k = b.gehalten(ort + QPointF(lage * halb, 0), 90 - lage * form.spreizung + b.zufall.streuung(5), l, form.neigung * (0.25 + 0.85 * weit));
        const double tiefe = ebene + 0.9 * weit - 0.6, ton = b.ton(tiefe);
        b.ding(tiefe, [=, art = form.wedel](QPainter &p) { wedel(p, k, art, fieder, stielfarbe, ton); });
        if (i % 2)
            b.achseln.push_back({k.punkt(0.5), k.winkel(0.5), tiefe, 0.5});
    }
}

void stamm(Buehne &b, const Kurve &k, double unten, double oben, const QColor &f, int ringe)
{
    b.trieb(k, unten, oben, f, -1.2);
    b.ding(-1.1, [=](QPainter &p) {
        p.setPen(QPen(durchsichtig(dunkler(f, 0.5), 0.55), 1.4));
        p.setBrush(Qt::NoBrush);
        for (int i = 1; i < ringe; ++i) {
            const double t = double(i) / ringe, halb = (unten + (oben - unten) * t) / 2;
            QPainterPath ring(k.punkt(t) + polar(k.winkel(t) + 90, halb));
            ring.quadTo(k.punkt(t) - polar(k.winkel(t), halb * 0.45), k.punkt(t) + polar(k.winkel(t) - 90, halb));
            p.drawPath(ring);
        }
    });
}

} // namespace

const Wedel &wedelart(const Gestalt &g)
{
    return wedelform(g).wedel;
}

void grundblaetter(Buehne &b)
{
    const double hoch = b.hoehe * laubanteil(b.gestalt), l = std::min({b.blattlaenge(), hoch * 0.62, b.breite * 0.4});
    const bool haengend = b.gestalt.blatt.adern == Adern::Hand || b.gestalt.blatt.form == Blattform::Herz || b.gestalt.blatt.form == Blattform::Pfeil;
    const int n = std::clamp(int(hoch / l * 9), 10, 26);
    const QColor f = blattstielfarbe(b);
    for (int i = 0; i < n; ++i) {
        const double weit = (i + 0.5) / n, lage = (i % 2 ? 1 : -1) * weit;
        const double grad = 90 - lage * 66 + b.zufall.streuung(7);
        const double stiellaenge = std::max(l * 0.25, (hoch - l * (haengend ? 0.35 : 0.8)) * (1.02 - 0.55 * weit) * b.zufall.zwischen(0.86, 1.04));
        const bool mitten = weit < 0.4; // these face the viewer and close the middle
        const Kurve k = Kurve::bogen(b.fuss + QPointF(lage * b.topf * 0.45, 0), grad, stiellaenge * (mitten ? b.zufall.zwischen(0.62, 1.0) : 1), 44 * weit);
        const double ebene = mitten ? -0.8 + 1.3 * b.zufall.zahl() : -0.8 + 1.6 * weit;
        b.trieb(k, std::clamp(l * 0.045, 3.0, 11.0), std::clamp(l * 0.028, 2.0, 7.0), f, ebene - 0.15);
        const double seite = lage > 0 ? -1 : 1;
        const double spreite = mitten ? (haengend ? -90 - seite * b.zufall.zwischen(-4, 34) : 90 + seite * b.zufall.zwischen(-12, 26)) : k.winkel(1) + seite * (haengend ? 46 + 34 * weit + b.zufall.streuung(12) : 8 + 26 * weit);
        b.blatt(k.punkt(1), spreite, l * (1.02 - 0.2 * weit) * b.zufall.zwischen(0.88, 1.05), ebene, b.zufall.zwischen(0.78, 1));
        b.spitzen.push_back({k.punkt(1), spreite, ebene, weit});
    }
}

void rosette(Buehne &b)
{
    const double hoch = b.hoehe * laubanteil(b.gestalt), l = std::min(std::clamp(b.gestalt.blattlaenge * b.pixelJeCm, b.topf * 0.8, 330.0), b.breite * 0.42);
    const int n = b.gestalt.blatt.form == Blattform::Zunge && l > 200 ? 8 : 24;
    const QColor f = blattstielfarbe(b);
    const QPointF herz = b.fuss - QPointF(0, hoch * 0.22);
    // Seen from slightly above: leaves of the back stand up, those of the front hang over the rim.
    for (int i = 0; i < n; ++i) {
        const double w = 90 + (i % 2 ? 1 : -1) * 180.0 * (i + 0.5) / n;
        const double vorn = -std::sin(w * pi / 180), quer = std::cos(w * pi / 180);
        const double stiellaenge = l * (n == 8 ? 0.04 : 0.38);
        const QPointF ziel(quer * stiellaenge * 1.15, vorn > 0 ? vorn * stiellaenge * 0.2 - hoch * 0.05 : vorn * std::min(hoch * 0.62, stiellaenge));
        const QPointF ort = herz + ziel;
        const double grad = std::atan2(-(ziel.y() + vorn * l * 0.1 - 0.06 * l), quer * l) * 180 / pi;
        b.trieb({b.fuss, b.fuss + (herz - b.fuss) * 0.7, ort + (herz - ort) * 0.4, ort}, std::clamp(l * 0.05, 3.0, 9.0), std::clamp(l * 0.035, 2.0, 6.0), f, vorn - 0.1);
        const double kurz = 0.62 + 0.38 * std::abs(quer);
        b.blatt(ort, std::abs(quer) < 0.3 && vorn > 0 ? grad - (quer >= 0 ? 22 : -22) : grad, l * kurz * b.zufall.zwischen(0.9, 1.05), vorn, std::min(1.25, 0.8 / kurz));
    }
    const double breit = std::min(l * 0.8, b.topf * 1.1);
    for (int i = -2; i <= 2; ++i)
        b.spitzen.push_back({b.fuss - QPointF(i / 2.0 * breit, b.hoehe * (0.9 - 0.09 * std::abs(i) - 0.16 * (i & 1))), 90, 0.4 + 0.1 * (i & 1), 0.5});
    if (b.gestalt.stand == Stand::Ball || b.gestalt.stand == Stand::Dolde)
        for (const Spross &s : b.spitzen)
            b.trieb({b.fuss, b.fuss - QPointF(0, hoch * 0.4), s.ort + QPointF(0, hoch * 0.3), s.ort}, 4, 3, f, 0.2);
}

void baender(Buehne &b)
{
    const Bandform &form = bandform(b.gestalt);
    const double hoch = b.hoehe * laubanteil(b.gestalt);
    const double laenge = std::min(hoch * (1 + form.neigung / 260 + (form.spreizung > 40 ? 0.06 : 0)), b.breite * 0.62);
    if (b.gestalt.name == u"Hippeastrum" || b.gestalt.name == u"Hyacinthus") { // the bulb looks out of the soil
        const double r = b.topf * 0.42;
        b.ding(-1, [r, ort = b.fuss - QPointF(0, r * 0.25)](QPainter &p) {
            const QColor schale(0xA9, 0x74, 0x4E);
            QRadialGradient g(ort - QPointF(r * 0.3, r * 0.3), r * 1.4);
            g.setColorAt(0, heller(schale, 0.35));
            g.setColorAt(1, dunkler(schale, 0.25));
            p.setPen(QPen(umriss(schale), 1.2));
            p.setBrush(g);
            p.drawChord(QRectF(ort.x() - r, ort.y() - r * 0.75, 2 * r, 2 * r), -14 * 16, 208 * 16);
        });
    }
    if (b.gestalt.name == u"Cymbidium" || b.gestalt.name == u"Oncidium" || b.gestalt.name.endsWith(u"Orchidaceae")) // pseudobulbs
        for (const double x : {-0.35, 0.35, 0.0}) {
            const double r = b.topf * 0.2;
            b.ding(0.7, [=, ort = b.fuss + QPointF(x * b.topf, -r * 0.7)](QPainter &p) {
                const QColor f(0x9A, 0xB5, 0x62);
                p.setPen(QPen(umriss(f), 1.2));
                p.setBrush(f);
                p.drawEllipse(ort, r * 0.72, r * 1.3);
                p.setPen(QPen(durchsichtig(dunkler(f, 0.4), 0.6), 1));
                for (const double q : {-0.3, 0.0, 0.3})
                    p.drawLine(ort + QPointF(q * r, -r * 1.05), ort + QPointF(q * r * 1.1, r * 1.05));
            });
        }
    bandkopf(b, b.fuss, form, laenge, b.topf * (form.spreizung < 20 ? 0.62 : 0.3), 0);
}

void farn(Buehne &b)
{
    const Wedelform &form = wedelform(b.gestalt);
    const double laenge = std::min(b.hoehe * (1.03 + form.neigung / 420), b.breite * 0.6);
    wedelkopf(b, b.fuss, form, laenge, b.topf * 0.35, 0);
}

void palme(Buehne &b)
{
    const Wedelform &form = wedelform(b.gestalt);
    const int staemme = b.gestalt.name == u"Howea" ? 3 : 2;
    for (int s = 0; s < staemme; ++s) {
        const double lage = staemme == 1 ? 0 : -1 + 2.0 * s / (staemme - 1);
        const double hoch = b.hoehe * (0.3 - 0.07 * (s % 2));
        const QPointF unten = b.fuss + QPointF(lage * b.topf * 0.3, 0), oben = unten + QPointF(lage * b.topf * 0.35, -hoch);
        const double dicke = std::clamp(b.hoehe * 0.022, 7.0, 18.0);
        stamm(b, {unten, unten - QPointF(0, hoch * 0.3), oben + QPointF(0, hoch * 0.3), oben}, dicke * 1.2, dicke, QColor(0x86, 0x8C, 0x55), int(hoch / 22));
        wedelkopf(b, oben, form, std::min((b.hoehe - hoch) * 1.16, b.breite * 0.52), dicke * 0.3, 0.3 * s - 0.2);
    }
}

void palmfarn(Buehne &b)
{
    const Wedelform &form = wedelform(b.gestalt);
    const double hoch = b.hoehe * 0.24, dick = std::min(b.topf * 0.85, b.hoehe * 0.19);
    const QPointF oben = b.fuss - QPointF(0, hoch);
    const QColor f(0x80, 0x66, 0x4A);
    b.ding(-1.2, [=, fuss = b.fuss](QPainter &p) {
        const Kurve k{fuss, fuss - QPointF(0, hoch * 0.33), oben + QPointF(0, hoch * 0.33), oben};
        p.setPen(QPen(umriss(f), 1.2));
        p.setBrush(f);
        p.drawPath(band(k, [dick](double t) { return dick / 2 * (0.82 + 0.36 * std::sin(pi * (0.15 + 0.7 * t))); }));
        for (int reihe = 0; reihe < 6; ++reihe) // scars of old leaves
            for (int i = -3; i <= 3; ++i) {
                const QPointF q = fuss + QPointF((i + 0.5 * (reihe % 2)) * dick * 0.135, -hoch * (0.08 + 0.155 * reihe));
                p.setBrush(i % 2 ? heller(f, 0.2) : dunkler(f, 0.15));
                p.drawPolygon(QPolygonF({q + QPointF(-dick * 0.075, 0), q + QPointF(0, -hoch * 0.12), q + QPointF(dick * 0.075, 0), q + QPointF(0, hoch * 0.05)}));
            }
    });
    wedelkopf(b, oben, form, std::min((b.hoehe - hoch) * 1.12, b.breite * 0.5), dick * 0.25, 0);
}

void schopf(Buehne &b)
{
    const Bandform &form = bandform(b.gestalt);
    const bool einer = b.wuchs(u"eintriebig"), flasche = b.gestalt.name == u"Beaucarnea";
    const double laenge = std::clamp(b.gestalt.blattlaenge * b.pixelJeCm, 60.0, b.hoehe * (flasche ? 0.62 : 0.46));
    const QColor f = flasche ? QColor(0xA0, 0x8C, 0x70) : b.gestalt.name == u"Yucca" ? QColor(0x96, 0x7C, 0x5E) : QColor(0xA3, 0x8E, 0x6E);
    const int staemme = einer ? 1 : 3;
    for (int s = 0; s < staemme; ++s) {
        const double lage = staemme == 1 ? 0 : (s - 1) * 0.9;
        const double hoch = (b.hoehe - laenge * (flasche ? 0.55 : 0.82)) * (s == 1 || staemme == 1 ? 1 : s == 0 ? 0.68 : 0.42);
        const QPointF unten = b.fuss + QPointF(lage * b.topf * 0.5, 0), oben = unten + QPointF(lage * b.topf * 0.4, -hoch);
        const double dicke = std::clamp(b.hoehe * 0.034, 8.0, 26.0);
        const Kurve k{unten, unten - QPointF(b.zufall.streuung(8), hoch * 0.33), oben + QPointF(b.zufall.streuung(8), hoch * 0.33), oben};
        stamm(b, k, dicke * 1.15, dicke, f, int(hoch / 20));
        if (flasche)
            b.ding(-1.15, [=](QPainter &p) {
                p.setPen(QPen(umriss(f), 1.2));
                QRadialGradient g(unten - QPointF(dicke, dicke * 2), dicke * 4);
                g.setColorAt(0, heller(f, 0.3));
                g.setColorAt(1, dunkler(f, 0.2));
                p.setBrush(g);
                p.drawPath(band({unten, unten - QPointF(0, dicke), unten - QPointF(0, dicke * 2), unten - QPointF(0, dicke * 4.4)},
                                [dicke](double t) { return dicke * (0.5 + 1.6 * std::pow(std::max(0.0, 1 - t), 1.3) * (0.75 + 0.6 * t)); }));
            });
        if (b.gestalt.name == u"Cordyline")
            for (const double t : {0.35, 0.55, 0.78})
                bandkopf(b, k.punkt(t), form, laenge * (1.05 - 0.2 * t), dicke * 0.4, -0.6 + 0.4 * t);
        bandkopf(b, oben, form, laenge * (s == 1 || staemme == 1 ? 1 : 0.85), dicke * 0.4, 0.25 * s - 0.2);
    }
}
