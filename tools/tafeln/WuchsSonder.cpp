#include "Pflanzenbild.h"

#include "Farben.h"
#include "Pfad.h"

#include <algorithm>
#include <cmath>

/* Habits of grasses, ferns, palms, succulents and of plants with a funnel. */

namespace {

void gras(Pflanzenbild &b)
{
    b.bandhorst(74, 40 * std::min(1.4, b.s.breite), b.hoehe() * 0.92, 85, std::clamp(160.0 / b.hoehe(), 0.35, 1.0));
    b.schaefte(b.zahl(11), b.bluetenhoehe(), 24);
}

void rohr(Pflanzenbild &b)
{
    const double h = std::max(b.hoehe(), b.bluetenhoehe());
    for (const double seite : reihe(9)) {
        const double stand = b.s.stand && b.s.zeigtBlueten() ? std::min(b.s.standgroesse / 100 * b.px, h * 0.4) : 0;
        const Kurve k = Kurve::bogen({seite * b.halb() * 0.5, 0}, 90 - seite * 6, (h - stand) * b.zufall.zwischen(0.82, 1), 6 + 10 * std::abs(seite));
        b.trieb(k, std::clamp(h * 0.011, 2.5, 8.0), std::clamp(h * 0.005, 1.5, 4.0), b.stielfarbe(), -0.1);
        const double blade = std::min(b.blattlaenge(20), h * 0.4);
        for (int j = 0; j < 9; ++j) {
            const double t = 0.12 + 0.095 * j, zur = k.winkel(t) + (j % 2 ? 1 : -1) * b.zufall.zwischen(28, 50);
            if (blade > h * 0.1) {
                b.bandblatt(Kurve::bogen(k.punkt(t), zur, blade * b.zufall.zwischen(0.8, 1), 55), 1, b.zufall.streuung(0.8));
                continue;
            }
            const Kurve zweig = Kurve::bogen(k.punkt(t), zur, h * 0.1, 30); // small leaves stand on twigs
            b.trieb(zweig, 1.6, 1, b.stielfarbe(), 0);
            b.beblaettern(zweig, 0.3, 0.95, std::max(blade, h * 0.045), b.zufall.streuung(0.7), 0.22);
        }
        if (b.s.zeigtBlueten())
            b.bluehe(k.punkt(1), k.winkel(1), 1.1);
    }
}

void schirm(Pflanzenbild &b)
{
    const double h = b.hoehe();
    for (int i = 0; i < 11; ++i) {
        const double seite = -1 + i / 5.0;
        const Kurve k = Kurve::bogen({seite * b.halb() * 0.15, 0}, 90 - seite * 26, h * b.zufall.zwischen(0.55, 0.95), 18 * std::abs(seite));
        b.trieb(k, 3.4, 2.2, b.stielfarbe(), -0.2);
        const double blade = std::min(b.blattlaenge(), h * 0.3);
        for (int j = 0; j < 13; ++j) {
            const Blickrichtung sicht(360.0 * j / 13, 12);
            b.bandblatt(Kurve::bogen(k.punkt(1), sicht.grad, blade * sicht.laenge, 30), 1, 0.3 + 0.3 * sicht.tiefe);
        }
        if (i % 2)
            b.bluehe(k.punkt(1), 90, 1.1, 0.5);
    }
}

void farn(Pflanzenbild &b)
{
    // A shuttlecock: the fronds behind stand upright, those in front lean out and look shorter.
    const double h = b.hoehe(), weit = std::clamp(b.s.breite, 0.6, 1.3), rippe = std::clamp(h * 0.011, 1.4, 4.0);
    for (const auto &[n, laenge, spreizung, tiefe] :
         {std::tuple(7, 1.06, 44.0, -0.8), std::tuple(6, 0.96, 56.0, 0.0), std::tuple(5, 0.66, 62.0, 0.8)})
        for (int i = 0; i < n; ++i) {
            const double seite = (2 * i + 1.0) / n - 1, ebene = tiefe + 0.02 * i;
            const Kurve k = Kurve::bogen({seite * h * 0.04, 0}, 90 - seite * spreizung * weit * 0.75 + b.zufall.streuung(3),
                                         h * laenge * b.zufall.zwischen(0.94, 1.05), 12 + std::abs(seite) * spreizung * weit);
            b.bandblatt(k, std::min(weit, 0.85), ebene);
            b.trieb(k, rippe, rippe * 0.3, heller(b.stielfarbe(), 0.2), ebene + 0.005);
        }
    for (int i = 0; i < 2; ++i) // young fronds are rolled up
        b.trieb(Kurve::bogen({i * 6.0 - 3, 0}, 84 + 12 * i, b.hoehe() * 0.3, 260), 3.4, 2.4, b.stielfarbe(), 0.4);
}

void schopfAuf(Pflanzenbild &b, QPointF ort, double laenge)
{
    const int n = b.bandartig() ? 34 : 15;
    for (int i = 0; i < n; ++i) {
        const auto sicht = Blickrichtung::rundum(i, -18 + 98.0 * i / n);
        const double l = laenge * (0.6 + 0.4 * sicht.laenge) * b.zufall.zwischen(0.9, 1.05);
        const double ebene = std::clamp(sicht.tiefe, -0.9, 0.9);
        if (b.bandartig())
            b.bandblatt(Kurve::bogen(ort, sicht.grad, l, b.s.ist(u"flaschenstamm") ? 110 : 44), 1, ebene);
        else
            b.gestielt(ort, sicht.grad, l * 0.45, 26, l * 0.6, ebene, 0.85);
    }
}

void stamm(Pflanzenbild &b, const Kurve &k, double dick)
{
    b.trieb(k, dick, dick * 0.75, b.s.rindenfarbe, -0.3);
    for (int i = 1; i < 16; ++i) { // leaf scars
        const QPointF ort = k.punkt(i / 16.0);
        QPainterPath ring(ort - QPointF(dick * 0.42, 0));
        ring.quadTo(ort + QPointF(0, dick * 0.2), ort + QPointF(dick * 0.42, 0));
        b.linie(ring, QPen(dunkler(b.s.rindenfarbe, 0.35), 1.1), -0.25);
    }
}

void schopf(Pflanzenbild &b)
{
    const bool flasche = b.s.ist(u"flaschenstamm");
    const double h = b.hoehe(), laenge = std::min(b.blattlaenge() * (b.bandartig() ? 1 : 1 + b.s.blattstiel), h * 0.62);
    const int staemme = !flasche && b.s.hoehe > 0.8 && b.s.breite > 0.45 ? 3 : 1;
    if (flasche) { // the foot of the stem stores water
        const QPainterPath leib = kontur(u"M-1 0C-1.15-.75-.35-.85-.18-1.5H.18C.35-.85 1.15-.75 1 0Z", h * 0.11, h * 0.16);
        b.form(leib, dunkler(b.s.rindenfarbe, 0.12), -0.28);
        b.form(QTransform(0.5, 0, 0, 0.9, -h * 0.02, -2).map(leib), durchsichtig(heller(b.s.rindenfarbe, 0.35), 0.6), -0.27, 0);
    }
    for (int i = 0; i < staemme; ++i) {
        const double hoch = std::max(h * 0.08, (h - laenge * 0.85) * (i == 0 ? 1 : i == 1 ? 0.62 : 0.35));
        const Kurve k = Kurve::bogen({(i == 0 ? 0 : i == 1 ? -1 : 1) * h * 0.03, 0}, 90 + (i == 1 ? 10 : i == 2 ? -12 : 0), hoch, 4);
        stamm(b, k, std::clamp(h * 0.035, 5.0, 30.0));
        schopfAuf(b, k.punkt(1), laenge * (i ? 0.85 : 1));
        if (i == 0 && b.s.zeigtBlueten())
            b.bluehe(k.punkt(1) - QPointF(0, laenge * 0.3), 90, 1.2);
    }
}

void palme(Pflanzenbild &b)
{
    const double h = b.hoehe(), wedel = std::min(b.blattlaenge(40), h * 0.8);
    const double hoch = std::max(0.0, h - wedel * 0.95);
    QPointF oben(0, 0);
    if (hoch > 20) {
        const Kurve k = Kurve::bogen({0, 0}, 90, hoch, 3);
        stamm(b, k, std::clamp(h * 0.06, 8.0, 46.0));
        oben = k.punkt(1);
    }
    for (int i = 0; i < 13; ++i) {
        const auto sicht = Blickrichtung::rundum(i, 18 + 62.0 * i / 13);
        const double ebene = std::clamp(sicht.tiefe, -0.9, 0.9), l = wedel * (0.6 + 0.4 * sicht.laenge);
        const Kurve stielkurve = Kurve::bogen(oben, sicht.grad, l * std::max(0.12, b.s.blattstiel * 0.7), 8);
        b.trieb(stielkurve, 5, 3, b.stielfarbe(), ebene - 0.01);
        b.bandblatt(Kurve::bogen(stielkurve.punkt(1), stielkurve.winkel(1), l, 52), 0.9, ebene);
    }
}

void zisterne(Pflanzenbild &b)
{
    for (int i = 0; i < 17; ++i) { // bands all round, bent outwards
        const double u = i / 17.0;
        const double steigung = 26 + 54 * u + b.zufall.streuung(4);
        const auto sicht = Blickrichtung::rundum(i, steigung, b.zufall.streuung(8));
        const double l = b.hoehe() * 1.05 * (0.62 + 0.38 * sicht.laenge) * b.zufall.zwischen(0.9, 1.05);
        const Kurve k = Kurve::bogen({0, 0}, sicht.grad, l, 46 * (1 - 0.5 * u) * b.zufall.zwischen(0.7, 1.2));
        b.bandblatt(k, b.zufall.zwischen(0.94, 1.15), std::clamp(sicht.tiefe, -1.0, 1.0) * (1 - u) + (u > 0.8 ? 0.1 : 0));
    }
    if (b.s.zeigtBlueten()) {
        const double oben = std::max(b.bluetenhoehe(), b.hoehe() * 0.8), stand = std::min(oben * 0.5, b.s.standgroesse / 100 * b.px);
        const Kurve k = Kurve::bogen({0, -b.hoehe() * 0.15}, 90, std::max(10.0, oben - b.hoehe() * 0.15 - stand), 2);
        b.trieb(k, 6, 5, b.stielfarbe(), 0.5);
        b.bluehe(k.punkt(1), 90, 1.1, 1.1);
    }
}

void orchidee(Pflanzenbild &b)
{
    const double h = std::max(b.hoehe(), b.bluetenhoehe()), blade = std::min(b.blattlaenge(), h * 0.7);
    for (int i = 0; i < 8; ++i) {
        const int seite = i % 2 ? 1 : -1;
        b.bandblatt(Kurve::bogen({seite * (4.0 + i), 0}, 90 - seite * (22 + 7.0 * i), blade * (1 - 0.05 * i), 46), 1, i * 0.1 - 0.2);
    }
    for (int i = 0; i < b.zahl(2); ++i) {
        const int seite = i % 2 ? -1 : 1;
        const double stand = b.s.stand ? std::clamp(b.s.standgroesse / 100 * b.px, 20.0, h * 0.6) : 0;
        const Kurve k = Kurve::bogen({seite * 6.0, 0}, 90 - seite * 12, std::max(h * 0.3, h - stand * 0.8) * (i ? 0.9 : 1), 12);
        b.trieb(k, 4, 3, b.stielfarbe(), 0.6);
        b.bluehe(k.punkt(1), k.winkel(1), 1.2);
    }
}

/// Ribbed body with bundles of spines on its ribs.
void kaktuskoerper(Pflanzenbild &b, QPointF fuss, double halb, double hoehe, int rippen)
{
    const QRectF r(fuss.x() - halb, fuss.y() - hoehe, 2 * halb, hoehe);
    const bool saeule = hoehe > 2.6 * halb;
    const QColor f = b.s.anstrich[Rolle::Blatt], dorn = b.s.anstrich[Rolle::Faden];
    b.ding(0, r.adjusted(-halb * 0.12, -halb * 0.12, halb * 0.12, 0), [=](QPainter &p) {
        for (int i = 0; i < rippen; ++i) {
            const double u0 = std::sin((double(i) / rippen - 0.5) * 3.0), u1 = std::sin((double(i + 1) / rippen - 0.5) * 3.0);
            const double licht = 0.26 - 0.5 * double(i) / rippen, oben = r.top() + (saeule ? 2 : 0), mitte = r.center().x();
            const auto seite = [&](double u) { // from the top down to the foot
                QPainterPath rand(QPointF(mitte, r.top()));
                rand.cubicTo({mitte + u * halb, oben}, {mitte + u * halb, r.top() + halb * 0.5}, {mitte + u * halb, r.center().y()});
                rand.cubicTo({mitte + u * halb, r.bottom() - halb * 0.4}, {mitte + u * halb * 0.8, r.bottom()}, {mitte + u * halb * 0.7, r.bottom()});
                return rand;
            };
            QPainterPath rippe = seite(u0);
            rippe.connectPath(seite(u1).toReversed());
            const QColor hell = licht > 0 ? heller(f, licht) : dunkler(f, -licht), tief = dunkler(f, 0.42);
            zeichnen(p, rippe, QPen(dunkler(f, 0.5), 0.8),
                     verlauf(QLinearGradient(mitte + u0 * halb, 0, mitte + u1 * halb, 0), {{0, tief}, {0.45, hell}, {1, tief}}));
            p.setPen(QPen(dorn, 1.1));
            const double x = r.center().x() + (u0 + u1) / 2 * halb;
            const int n = std::clamp(int(hoehe / (halb * 0.24)), 4, 22);
            for (int j = 1; j < n; ++j) {
                const double v = double(j) / n, y = r.top() + v * r.height();
                const double eng = saeule ? std::min(1.0, v * 6) : std::sqrt(std::max(0.05, 1 - (2 * v - 1) * (2 * v - 1)));
                const QPointF ort(r.center().x() + (x - r.center().x()) * eng, y);
                for (const double grad : {-70.0, -20.0, 30.0, 90.0, 150.0, 200.0})
                    p.drawLine(ort, ort + polar(grad, halb * 0.13));
            }
        }
    });
}

void kugelkaktus(Pflanzenbild &b)
{
    const double h = b.hoehe(), halb = std::min(std::max(b.halb(), h * 0.42), h * 0.62);
    kaktuskoerper(b, {0, 0}, halb, h, 11);
    for (int i = 0; b.s.zeigtBlueten() && i < b.zahl(4); ++i)
        b.bluete({(i - (b.zahl(4) - 1) / 2.0) * halb * 0.34, -h * 0.97}, 90 - (i - 1.5) * 14, 1.2);
}

void saeulenkaktus(Pflanzenbild &b)
{
    const double h = b.hoehe(), halb = std::max(12.0, std::min(b.halb() * 0.5, h * 0.12));
    kaktuskoerper(b, {0, 0}, halb, h, 7);
    kaktuskoerper(b, {halb * 2.1, 0}, halb * 0.8, h * 0.55, 7);
    kaktuskoerper(b, {-halb * 1.9, 0}, halb * 0.7, h * 0.36, 7);
    b.bluete({0, -h}, 90, 1.2);
}

void gliederkaktus(Pflanzenbild &b)
{
    const double glied = std::min(b.blattlaenge(16), b.hoehe() * 0.4);
    for (const double seite : reihe(21)) {
        QPointF ort(seite * b.halb() * 0.1, 0);
        double grad = 90 - seite * 46 + b.zufall.streuung(8);
        const int n = std::clamp(int(b.hoehe() * 1.15 / (glied * 0.9)), 2, 6);
        const double ebene = b.zufall.streuung(0.8);
        for (int j = 0; j < n; ++j) {
            b.blatt(ort, grad, glied, ebene + 0.01 * j, b.zufall.zwischen(0.85, 1));
            ort += polar(grad, glied * 0.92);
            grad += (std::cos(grad * 0.01745) >= 0 ? -1 : 1) * b.zufall.zwischen(8, 26);
        }
        b.bluete(ort, grad, 1.2);
    }
}

// clang-format off
constexpr Wuchs sonderworte[] = {
    {u"gras", gras}, {u"rohr", rohr}, {u"schirm", schirm}, {u"farn", farn}, {u"schopf", schopf}, {u"flaschenstamm", schopf}, {u"palme", palme},
    {u"zisterne", zisterne}, {u"orchidee", orchidee}, {u"kugelkaktus", kugelkaktus},
    {u"saeulenkaktus", saeulenkaktus}, {u"gliederkaktus", gliederkaktus}};
// clang-format on

} // namespace

const std::span<const Wuchs> wuchsSonder = sonderworte;
