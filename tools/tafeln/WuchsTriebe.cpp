#include "Buehne.h"
#include "Gefaess.h"

#include <algorithm>
#include <cmath>
#include <numbers>

/* Plants with leafy shoots. */

namespace {

constexpr double goldenerWinkel = 137.50776;

struct Krone
{
    QPointF mitte;
    double rx, ry;
    double dichte = 1;
    double sinken = 0;      ///< how far the outer shoots hang
    double astdicke = 6;
    double blattfaktor = 1; ///< length of the leaves
    double einzug = 0;      ///< how much narrower the foot is
    QColor holz = farbe::rinde;
    bool aeste = true;
};

/// Leaves along the end of a shoot, the last ones round its tip.
void belauben(Buehne &b, const Kurve &k, double laenge, double ebene, int paare, double von = 0.55)
{
    for (int i = 0; i < paare; ++i) {
        const double t = von + (1 - von) * i / std::max(1, paare);
        const double l = laenge * (0.72 + 0.28 * std::sin(std::numbers::pi * (0.25 + 0.6 * (i + 1.0) / paare)));
        for (const int seite : {-1, 1})
            b.blatt(k.punkt(t), k.winkel(t) + seite * (56 + b.zufall.streuung(16)), l * b.zufall.zwischen(0.82, 1.05), ebene + 0.02 * i, b.zufall.zwischen(0.7, 1));
    }
    b.blatt(k.punkt(1), k.winkel(1) + b.zufall.streuung(15), laenge * 0.85, ebene + 0.05, b.zufall.zwischen(0.75, 1));
}

/// Fills an ellipse with leafy shoots that come from one place.
void fuellen(Buehne &b, QPointF basis, const Krone &krone)
{
    const double l = b.blattlaenge() * krone.blattfaktor;
    const double flaeche = std::numbers::pi * krone.rx * krone.ry;
    const int n = std::clamp(int(krone.dichte * 2.1 * flaeche / (l * l)), 9, 190);
    const int paare = b.gestalt.blatt.form == Blattform::Nadel ? 9 : std::clamp(int(1.9 + 70 / l), 2, 5);
    for (int i = 0; i < n; ++i) {
        const double r = std::sqrt((i + 0.5) / n), w = goldenerWinkel * i + b.zufall.streuung(12);
        QPointF ort = krone.mitte + QPointF(polar(w, r).x() * krone.rx, polar(w, r).y() * krone.ry);
        const double seitlich = std::abs(ort.x() - krone.mitte.x()) / krone.rx;
        if (ort.y() > krone.mitte.y()) // a dome is narrower at its foot
            ort.rx() -= krone.einzug * (ort.x() - krone.mitte.x()) * (ort.y() - krone.mitte.y()) / krone.ry;
        ort.ry() += krone.sinken * seitlich * seitlich;
        const double ebene = std::clamp(b.zufall.streuung(0.9) * std::sqrt(1.02 - r * r) + 0.25 * (ort.y() - krone.mitte.y()) / krone.ry, -1.0, 1.0);
        const QPointF weg = ort - basis;
        const double steil = krone.sinken > 0 ? 1.25 : 0.95;
        const Kurve k{basis + QPointF(b.zufall.streuung(0.25) * b.topf * 0.5, 0), basis + QPointF(weg.x() * 0.25, weg.y() * 0.45),
                      basis + QPointF(weg.x() * 0.72, weg.y() * steil), ort};
        if (krone.aeste && (n < 60 || i % 3 == 0))
            b.trieb(k, krone.astdicke * b.zufall.zwischen(0.5, 0.9), 1.5, krone.holz, -1.5 + 0.2 * ebene);
        const double rest = std::min(0.6, l * paare * 0.42 / std::max(1.0, k.laenge()));
        belauben(b, k, l, ebene, paare, 1 - rest);
        b.spitzen.push_back({ort + polar(k.winkel(1), l * 0.25), k.winkel(1), ebene, r});
        b.achseln.push_back({k.punkt(1 - rest * 0.4), k.winkel(1 - rest * 0.4), ebene, r});
    }
}

double breitenfaktor(const Buehne &b)
{
    return b.wuchs(u"überhängend") ? 1.12 : b.wuchs(u"sparrig") ? 1.05 : b.wuchs(u"aufrecht") ? 0.78 : 0.95;
}

QColor triebfarbe(const Buehne &b)
{
    const bool holzig = b.wuchs(u"strauchartig") || b.wuchs(u"baumartig");
    const QColor gruen = gemischt(farbe::stiel, b.laub.grund, 0.3);
    return holzig ? farbe::rinde : b.laub.roteUnterseite ? gemischt(gruen, QColor(0x9A, 0x4A, 0x4E), 0.55) : gruen;
}

/// Leaves left and right of a shoot in regular distance.
void wechselstaendig(Buehne &b, const Kurve &k, double von, double abstand, double laenge, double ebene, double kleiner)
{
    const int n = std::clamp(int(k.laenge() * (1 - von) / abstand), 3, 60);
    for (int i = 0; i <= n; ++i) {
        const double t = von + (1 - von) * i / n;
        const double l = laenge * (1 - kleiner * t) * b.zufall.zwischen(0.85, 1.08);
        const int seite = i % 2 ? 1 : -1;
        b.blatt(k.punkt(t), k.winkel(t) + seite * (62 + b.zufall.streuung(18)), l, ebene + 0.01 * i, b.zufall.zwischen(0.75, 1));
        if (i % 3 == 1)
            b.achseln.push_back({k.punkt(t), k.winkel(t) + seite * 45, ebene, t});
    }
    b.spitzen.push_back({k.punkt(1), k.winkel(1), ebene, 1});
}

/// Stalked leaves to both sides of a pole and before it.
void amStab(Buehne &b, double l, double h, double weite)
{
    const QColor f = triebfarbe(b);
    const int n = std::clamp(int(h / (l * 0.17)), 12, 46);
    for (int i = 0; i < n; ++i) {
        const double t = (i + 0.3) / n, lage = i % 3 == 2 ? b.zufall.streuung(0.35) : (i % 3 ? 1 : -1) * b.zufall.zwischen(0.75, 1.1);
        const double seite = lage < 0 ? -1 : 1, vorn = 1 - std::min(1.0, std::abs(lage));
        const QPointF knoten = b.fuss + QPointF(lage * weite * 0.3, -h * t);
        const QPointF ansatz = knoten + QPointF(lage * l * 0.62, -l * (0.3 - 0.15 * vorn));
        const double grad = vorn > 0.5 ? -90 + b.zufall.streuung(24) : seite > 0 ? -14 + b.zufall.streuung(22) : 194 + b.zufall.streuung(22);
        const double ebene = vorn > 0.5 ? 0.6 : 0.4 - 0.6 * (i % 2);
        b.trieb({knoten, knoten + QPointF(lage * l * 0.2, -l * 0.25), ansatz + QPointF(-lage * l * 0.1, -l * 0.04), ansatz}, std::max(3.0, l * 0.035), std::max(2.0, l * 0.022), f, ebene - 0.05);
        b.blatt(ansatz, grad, l * (1.02 - 0.25 * t) * b.zufall.zwischen(0.85, 1.05), ebene, b.zufall.zwischen(0.8, 1));
        b.achseln.push_back({knoten, grad, ebene, t});
    }
    const QPointF oben = b.fuss - QPointF(0, h);
    b.blatt(oben, 70, l * 0.6, 0.5, 0.8);
    b.blatt(oben, 118, l * 0.5, 0.4, 0.8);
}

} // namespace

void strauch(Buehne &b)
{
    const double l = b.blattlaenge();
    const double rx = std::min(b.breite / 2, b.hoehe * 0.52 * breitenfaktor(b) + 0.35 * b.topf), ry = b.hoehe * 0.475;
    Krone k{{b.fuss.x(), b.fuss.y() - b.hoehe + ry + l * 0.3}, std::max(20.0, rx - l * 0.35), std::max(20.0, ry - l * 0.15)};
    k.einzug = 0.26;
    k.dichte = b.wuchs(u"sparrig") ? 0.85 : 1;
    k.sinken = b.wuchs(u"überhängend") ? ry * 0.5 : 0;
    k.astdicke = std::clamp(b.hoehe * 0.012, 4.0, 9.0) * (b.gestalt.name == u"Crassula" ? 3.0 : b.gestalt.name.startsWith(u"Euphorbia m") ? 1.8 : 1);
    k.holz = triebfarbe(b);
    fuellen(b, b.fuss, k);
}

void kraut(Buehne &b)
{
    const double l = b.blattlaenge();
    const double rx = std::min(b.breite / 2, std::max(b.topf * 1.15, b.hoehe * 0.55)), ry = b.hoehe * 0.47;
    Krone k{{b.fuss.x(), b.fuss.y() - b.hoehe + ry + l * 0.25}, std::max(20.0, rx - l * 0.25), std::max(20.0, ry - l * 0.15)};
    k.sinken = b.wuchs(u"überhängend") ? ry * 0.35 : ry * 0.12;
    k.astdicke = std::clamp(b.hoehe * 0.016, 3.0, 8.0);
    k.holz = triebfarbe(b);
    fuellen(b, b.fuss, k);
}

void baum(Buehne &b)
{
    const double l = b.blattlaenge();
    const double rx = std::min(b.breite / 2, b.hoehe * 0.4), ry = b.hoehe * 0.31;
    const QPointF gabel = b.fuss - QPointF(0, b.hoehe * 0.42);
    const double dicke = std::clamp(b.hoehe * 0.036, 9.0, 34.0);
    b.trieb({b.fuss, b.fuss + QPointF(dicke * 0.4, -b.hoehe * 0.15), gabel + QPointF(-dicke * 0.3, b.hoehe * 0.12), gabel}, dicke * 1.25, dicke * 0.8, farbe::rinde, -1.2);
    Krone k{{b.fuss.x(), b.fuss.y() - b.hoehe + ry + l * 0.2}, std::max(20.0, rx - l * 0.3), std::max(20.0, ry - l * 0.15)};
    k.sinken = b.wuchs(u"überhängend") ? ry * 0.75 : 0;
    k.astdicke = dicke * 0.55;
    k.dichte = 1.1;
    fuellen(b, gabel, k);
}

void eintrieb(Buehne &b)
{
    const double l = std::clamp(b.blattlaenge(), b.hoehe * (b.gestalt.blattlaenge > 16 ? 0.2 : 0.14), b.breite * 0.42);
    const double kerze = b.blueht() && b.gestalt.stand == Stand::Kerze ? std::min(170.0, b.gestalt.bluetenbreite * b.pixelJeCm) * 0.9 : 0;
    const double kurz = b.wuchs(u"eintriebig") ? 0.06 : 0.12;
    const int triebe = b.wuchs(u"eintriebig") ? 1 : 3;
    for (int s = 0; s < triebe; ++s) {
        const double h = (b.hoehe - std::max(l * 0.4, kerze)) * (s == 0 ? 1 : 0.62 + 0.12 * s), seite = s == 0 ? 0 : s == 1 ? -1 : 1;
        const QPointF oben = b.fuss + QPointF(seite * h * 0.24 + b.zufall.streuung(12), -h);
        const Kurve k{b.fuss + QPointF(seite * b.topf * 0.25, 0), b.fuss + QPointF(seite * b.topf * 0.5, -h * 0.3), oben + QPointF(0, h * 0.3), oben};
        const double dicke = std::clamp(b.hoehe * 0.022, 6.0, 20.0);
        b.trieb(k, dicke, dicke * 0.5, triebfarbe(b), -0.1);
        const int n = std::clamp(int(h / (l * 0.2)), 10, 34);
        for (int i = 0; i < n; ++i) {
            const double t = kurz + (1 - kurz) * i / n, w = goldenerWinkel * i;
            const double tiefe = std::sin(w * std::numbers::pi / 180), quer = std::cos(w * std::numbers::pi / 180);
            const double lage = quer >= 0 ? 1 : -1, hoch = -14 + 26 * t + 40 * t * t + 24 * (1 - std::abs(quer)) * t + b.zufall.streuung(12);
            const double grad = lage > 0 ? hoch : 180 - hoch;
            const double gross = l * (0.72 + 0.42 * std::sin(std::numbers::pi * std::min(1.0, t + 0.1))) * (0.55 + 0.45 * std::abs(quer)) * (t > 0.85 ? 0.8 : 1);
            const QPointF knoten = k.punkt(t), ansatz = knoten + polar(grad + lage * 14, l * 0.17);
            b.trieb({knoten, knoten + polar(90, l * 0.04), ansatz - polar(grad, l * 0.05), ansatz}, std::max(2.0, l * 0.024), std::max(1.5, l * 0.014), gemischt(farbe::stiel, b.laub.grund, 0.4), 0.5 * tiefe);
            b.blatt(ansatz, grad, gross, 0.5 * tiefe + 0.02 * t, 0.75 + 0.25 * std::abs(quer));
            b.achseln.push_back({knoten, grad, tiefe, t});
        }
        b.blatt(k.punkt(1), 90 + b.zufall.streuung(12), l * 0.6, 0.2, 0.7);
        b.blatt(k.punkt(1), 62, l * 0.65, 0.25, 0.8);
        b.blatt(k.punkt(1), 120, l * 0.65, 0.25, 0.8);
        b.spitzen.push_back({k.punkt(1), 90, 0.6, 0.9});
    }
}

void klettern(Buehne &b)
{
    const double l = std::clamp(b.blattlaenge(), 36.0, b.hoehe * 0.42), h = b.hoehe * 0.95;
    const bool ring = b.gestalt.stuetze == Stuetze::Ring, stab = b.gestalt.stuetze == Stuetze::Moosstab;
    const double w = stab ? std::clamp(b.topf * 0.3, 16.0, 46.0) : ring ? std::min(h * 0.86, b.breite * 0.7) : std::min(h * 0.6, b.breite * 0.55);
    b.ding(-2, [=, fuss = b.fuss](QPainter &p) { (stab ? moosstab : ring ? rankring : spalier)(p, fuss, w, h); });
    if (stab)
        return amStab(b, l, h, w);
    const int triebe = ring ? 5 : 7;
    for (int s = 0; s < triebe; ++s) {
        std::vector<QPointF> weg;
        constexpr int schritte = 9;
        for (int i = 0; i <= schritte; ++i) {
            const double t = double(i) / schritte * (s < 4 ? 1 : 0.75);
            const double schwung = std::sin(t * 5.2 + s * 2.1);
            if (ring) {
                const double grad = s % 2 ? -76 + 318 * t : 256 - 318 * t;
                weg.push_back(b.fuss - QPointF(0, h * 0.47) + QPointF(polar(grad, w / 2).x(), polar(grad, h * 0.53).y()) + polar(grad, schwung * l * 0.2));
            } else {
                weg.push_back(b.fuss + QPointF(schwung * w * (0.2 + 0.34 * t), -h * t));
            }
        }
        for (int i = 0; i < schritte; i += 3) {
            const auto &q = weg;
            const QPointF a = q[size_t(i)], d = q[size_t(i + 3)];
            const Kurve k{a, a + (q[size_t(i + 1)] - a) * 1.1, d - (d - q[size_t(i + 2)]) * 1.1, d};
            const double ebene = s * 0.25 - 0.5;
            b.trieb(k, std::max(3.0, h * 0.006), std::max(2.0, h * 0.004), triebfarbe(b), ebene - 0.3);
            wechselstaendig(b, k, 0.05, l * 0.46, l, ebene, 0.1);
        }
    }
}

void haengen(Buehne &b)
{
    const double l = std::min(b.blattlaenge(), 150.0);
    const bool kanne = b.gestalt.name == u"Nepenthes";
    const double tiefe = std::min(960 - b.fuss.y(), kanne ? 240.0 : std::max(440.0, b.hoehe * 1.9));
    const int triebe = kanne ? 7 : std::clamp(int(b.topf * 2 / (l * 0.42)), 9, 26);
    for (int s = 0; s < triebe; ++s) {
        const double x = triebe == 1 ? 0 : -1 + 2.0 * s / (triebe - 1), vorn = 1 - x * x;
        const QPointF a = b.fuss + QPointF(x * b.topf * 0.6, -4);
        const double weit = b.topf * (0.5 + 0.6 * std::abs(x)) * (x < 0 ? -1 : 1) + b.zufall.streuung(18);
        const double laenge = tiefe * (0.62 + 0.38 * std::sqrt(vorn)) * b.zufall.zwischen(0.7, 1.03);
        const QPointF ende = a + QPointF(weit * (vorn > 0.75 ? 0.45 : 0.85), laenge);
        const Kurve k{a, a + QPointF(weit * 0.55, -b.hoehe * 0.35 - 12), a + QPointF(weit * 1.02, laenge * 0.25), ende};
        const double ebene = -0.4 + 0.9 * vorn + b.zufall.streuung(0.2);
        b.trieb(k, std::clamp(l * 0.05, 2.0, 5.0), 1.4, triebfarbe(b), ebene - 0.2);
        wechselstaendig(b, k, 0.1, l * (kanne ? 0.5 : l < 50 ? 0.62 : 0.52), l, ebene, 0.3);
        if (kanne)
            for (const double t : {0.55, 0.98})
                kannenpflanze(b, k.punkt(t) + QPointF((x < 0 ? -1 : 1) * l * 0.35, l * 0.1), l * 0.75, 1.1 + 0.1 * s);
    }
    // A low mound covers the opening.
    Krone kuppe{b.fuss - QPointF(0, b.hoehe * 0.35), b.topf * 0.95, std::max(l * 0.35, b.hoehe * 0.5 - l * 0.1)};
    kuppe.aeste = false;
    kuppe.dichte = 0.8;
    fuellen(b, b.fuss, kuppe);
}

void polster(Buehne &b)
{
    const double l = b.blattlaenge();
    const bool haengend = b.wuchs(u"überhängend") || b.wuchs(u"teppichbildend");
    Krone k{b.fuss - QPointF(0, b.hoehe * 0.45), std::max(b.topf * 1.22, b.hoehe * 0.8), b.hoehe * 0.5 - l * 0.1};
    k.sinken = std::min(b.hoehe * (haengend ? 0.9 : 0.25), b.topf * 0.5);
    k.dichte = 1.6;
    k.aeste = false;
    fuellen(b, b.fuss, k);
}
