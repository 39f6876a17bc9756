#include "Pflanzenbild.h"

#include "Farben.h"
#include "Pfad.h"

#include <algorithm>
#include <cmath>

/* Habits of herbaceous plants. */

namespace {

/// Leaves all round from the foot, ring by ring from flat to upright; `stiel` as a part of the blade.
void blattkranz(Pflanzenbild &b, int ringe, int jeRing, double laenge, double flach, double steil, double stiel)
{
    for (int r = 0; r < ringe; ++r) {
        const double steigung = flach + (steil - flach) * (ringe == 1 ? 0 : double(r) / (ringe - 1));
        for (int i = 0; i < jeRing; ++i) {
            const Blickrichtung sicht(360.0 * (i + 0.5 * r) / jeRing + b.zufall.streuung(9), steigung + b.zufall.streuung(6));
            const double l = laenge * (1 - 0.16 * r) * b.zufall.zwischen(0.9, 1.05);
            const double ebene = std::clamp(sicht.tiefe * 0.8 - (sicht.tiefe > 0 ? 0.12 : -0.12) * r, -1.0, 1.0);
            const double blade = l * sicht.laenge;
            b.gestielt({0, 0}, sicht.grad, blade * stiel, 8, blade, ebene, std::clamp(0.9 / sicht.laenge, 0.8, 1.7));
        }
    }
}

void rosette(Pflanzenbild &b)
{
    const double laenge = std::min(b.blattlaenge(), std::max(b.halb(), b.hoehe() * 0.7) / (1 + b.s.blattstiel) * 1.05);
    blattkranz(b, 3, 9, laenge, 6, 58, b.s.blattstiel);
    if (b.s.sitz == u"im-laub") {
        const int n = b.zahl(9);
        for (int i = 0; i < n; ++i) {
            const Blickrichtung sicht(360.0 * i / n + b.zufall.streuung(14), i % 3 ? 48 : 76);
            const double l = std::min(b.bluetenhoehe(), laenge * 0.95) * sicht.laenge * b.zufall.zwischen(0.8, 1);
            const Kurve k = Kurve::bogen({0, 0}, sicht.grad, l, 10);
            b.trieb(k, 2.4, 1.8, b.stielfarbe(), 0.6);
            b.bluehe(k.punkt(1), k.winkel(1), 1.2 + 0.2 * sicht.tiefe);
        }
        return;
    }
    b.schaefte(b.zahl(b.s.sitz == u"grundstaendig" ? 6 : 3), b.bluetenhoehe(), 20);
}

void horst(Pflanzenbild &b)
{
    const double h = b.hoehe();
    if (b.bandartig()) {
        b.bandhorst(std::clamp(int(34 * std::sqrt(b.s.breite)), 18, 46), 34 * std::min(1.6, b.s.breite), h, 70, 0.92);
    } else {
        const double blade = std::min(b.blattlaenge(), h * 0.8);
        const int n = std::clamp(int(18 * b.halb() / blade), 14, 46);
        for (int i = 0; i < n; ++i) {
            const Blickrichtung sicht(137.5 * i + b.zufall.streuung(12), 84 - 56 * std::sqrt(double(i) / n));
            const double weit = std::max(blade * 0.2, (b.halb() * 0.3 + h * 0.75) * b.zufall.zwischen(0.72, 1) * sicht.laenge - blade * 0.5);
            // The inner leaves stand lower, so that the middle is closed.
            b.gestielt({b.zufall.streuung(b.halb() * 0.2), 0}, sicht.grad, i % 3 ? weit : weit * 0.55,
                       std::clamp(82 - std::abs(90 - sicht.grad), 4.0, 42.0), blade * b.zufall.zwischen(0.8, 1.05),
                       std::clamp(sicht.tiefe, -1.0, 0.95), b.zufall.zwischen(0.75, 1));
        }
    }
    b.schaefte(b.zahl(b.s.sitz == u"grundstaendig" ? 9 : 5), b.bluetenhoehe(), std::min(26.0, 14 * b.s.breite + 4));
}

/// One leafy stem with what stands at its end and in its axils.
void stengel(Pflanzenbild &b, QPointF fuss, double grad, double laenge, double ebene, double neigung)
{
    const bool achseln = b.s.sitz == u"achselstaendig";
    const double stand = b.s.stand && b.bluehtJetzt() && !achseln ? std::clamp(b.s.standgroesse / 100 * b.px, 8.0, laenge * 0.55) : 0;
    const Kurve k = Kurve::bogen(fuss, grad, std::max(laenge * 0.4, laenge - stand), neigung);
    const double dick = std::clamp(laenge * 0.016, 1.8, 9.0);
    b.trieb(k, dick, dick * 0.55, b.stielfarbe(), ebene);
    const double blade = std::min(b.blattlaenge(), laenge * 0.5);
    b.beblaettern(k, 0.08, achseln || !b.s.zeigtBlueten() ? 1.0 : 0.93, blade, ebene + 0.05);
    if (!achseln)
        return b.bluehe(k.punkt(1), k.winkel(1), 1.1 + 0.1 * ebene);
    for (int i = 0; i < b.zahl(7); ++i) {
        const double t = 0.4 + 0.6 * i / b.zahl(7);
        const double zur = k.winkel(t) + (i % 2 ? 1 : -1) * b.zufall.zwischen(35, 60);
        b.bluehe(k.punkt(t) + polar(zur, blade * 0.25), zur, 1.1 + 0.1 * ebene, 0.75);
    }
}

void triebe(Pflanzenbild &b, int n, double spreizung)
{
    const double oben = std::max(b.hoehe(), b.bluetenhoehe());
    for (const double seite : reihe(n)) {
        const double laenge = oben * (1 - 0.22 * seite * seite) * b.zufall.zwischen(0.9, 1);
        stengel(b, {seite * b.halb() * 0.3, 0}, 90 - seite * spreizung + b.zufall.streuung(3), laenge, b.zufall.streuung(0.8), std::abs(seite) * 16);
    }
    if (b.s.zeigtFruechte() && !b.s.zeigtBlueten())
        for (int i = 0; i < b.zahl(9); ++i)
            b.frucht({b.zufall.streuung(b.halb() * 0.8), -b.hoehe() * b.zufall.zwischen(0.3, 0.9)}, 1.3);
}

void aufrecht(Pflanzenbild &b)
{
    const int n = b.s.bluetenzahl > 0 && b.s.sitz != u"achselstaendig" ? b.s.bluetenzahl : std::clamp(int(3 + b.s.breite * 4), 3, 9);
    triebe(b, n, std::min(40.0, 8 + 20 * b.s.breite));
}

void buschig(Pflanzenbild &b)
{
    const double oben = std::max(b.hoehe(), b.bluetenhoehe());
    for (const double seite : reihe(7)) {
        const double laenge = oben * (1 - 0.25 * seite * seite) * b.zufall.zwischen(0.85, 0.95);
        const QPointF fuss(seite * b.halb() * 0.12, 0);
        const double grad = 90 - seite * std::min(58.0, 22 + 24 * b.s.breite);
        const Kurve k = Kurve::bogen(fuss, grad, laenge, std::abs(seite) * 8);
        stengel(b, fuss, grad, laenge, b.zufall.streuung(0.7), std::abs(seite) * 8);
        for (int j = 0; j < 3; ++j) {
            const double t = 0.25 + 0.2 * j;
            stengel(b, k.punkt(t), k.winkel(t) + (j % 2 ? 1 : -1) * b.zufall.zwischen(24, 44), laenge * (0.62 - 0.14 * j), b.zufall.streuung(0.9), 4);
        }
    }
    for (int i = 0; b.s.zeigtFruechte() && i < b.zahl(8); ++i)
        b.frucht({b.zufall.streuung(b.halb() * 0.8), -oben * b.zufall.zwischen(0.3, 0.85)}, 1.4);
}

void sukkulentrosette(Pflanzenbild &b)
{
    blattkranz(b, 5, 10, std::min(b.blattlaenge(), std::max(b.halb(), b.hoehe() * 0.6)), 8, 78, 0);
    b.schaefte(b.zahl(2), b.bluetenhoehe(), 16);
}

/// Half an ellipse covered with leaves and flowers.
void kuppel(Pflanzenbild &b, double hoehe, double halb)
{
    const double flaeche = 7 * halb * hoehe;
    const double blade = std::clamp(b.blattlaenge(10), std::max(10.0, std::sqrt(flaeche / 700)), std::max(16.0, hoehe * 0.6));
    const int n = std::clamp(int(flaeche / (blade * blade) * std::clamp(0.5 / b.schlank(), 1.0, 1.8)), 110, 900), dunkel = n / 3;
    for (int i = -dunkel; i < n; ++i) { // over dark leaves, through which nothing shines
        const double x = b.zufall.streuung(1), y = i < 0 ? b.zufall.zahl() : std::pow(b.zufall.zahl(), 0.7);
        const QPointF ort(x * halb * 0.95, -y * std::sqrt(std::max(0.0, 1 - x * x)) * hoehe * (i < 0 ? 0.7 : 0.84));
        b.blatt(ort, 90 - x * 58 + b.zufall.streuung(34), blade * b.zufall.zwischen(0.75, 1.1), i < 0 ? -1.5 : 0.6 - y,
                i < 0 ? 1.5 : b.zufall.zwischen(0.6, 1), i < 0 ? -0.6 : 0.35 * (y - 0.6));
    }
    for (int i = 0; b.s.zeigtFruechte() && i < b.zahl(24); ++i) {
        const double x = b.zufall.streuung(0.9);
        b.frucht({x * halb * 0.9, -b.zufall.zwischen(0.3, 0.9) * std::sqrt(1 - x * x) * hoehe * 0.9}, 1.4);
    }
    if (!b.s.zeigtBlueten())
        return;
    const double ueber = std::max(0.0, b.bluetenhoehe() - hoehe);
    const int blueten = b.zahl(std::clamp(int(halb / std::max(7.0, b.s.bluetengroesse / 100 * b.px) * 5), 14, 70));
    for (int i = 0; i < blueten; ++i) {
        const double x = b.zufall.streuung(0.95), y = b.zufall.zwischen(0.35, 1), rand = std::sqrt(1 - x * x);
        const QPointF fuss(x * halb * 0.9, -y * rand * hoehe * 0.85);
        const Kurve k = Kurve::bogen(fuss, 90 - x * 35 + b.zufall.streuung(8), ueber * b.zufall.zwischen(0.5, 1) + 3, 6);
        if (ueber > 4)
            b.trieb(k, 1.8, 1.4, b.stielfarbe(), 0.8);
        b.bluehe(k.punkt(1), k.winkel(1), 1.5 - 0.3 * y, 0.8);
    }
}

void teppich(Pflanzenbild &b)
{
    kuppel(b, b.hoehe() * 0.9, std::max(b.halb(), b.hoehe() * 1.6));
    for (int seite : {-1, 1}) { // runners
        const Kurve k = Kurve::bogen({seite * b.halb() * 0.9, -2}, 90 - seite * 84, b.halb() * 0.35, 6);
        b.trieb(k, 2.4, 1.6, b.stielfarbe(), 0.2);
        for (const double t : {0.4, 0.7, 1.0})
            for (const double ab : {-30.0, 25.0})
                b.blatt(k.punkt(t), 90 + ab, std::min(b.blattlaenge(10), b.hoehe()) * 0.6, 0.3, 0.8);
    }
}

void haengend(Pflanzenbild &b)
{
    constexpr int n = 15;
    const double weit = std::max(b.halb() * 0.55, b.px * 0.08);
    for (int i = 0; i < n; ++i) {
        const double seite = -1 + 2.0 * i / (n - 1);
        const double laenge = b.hoehe() * b.zufall.zwischen(0.72, 1.08) * (1 - 0.12 * (1 - std::abs(seite)));
        const QPointF fuss(seite * weit * 0.5, 0), rand = fuss + QPointF(seite * weit * 0.75, -weit * 0.32);
        const Kurve k{fuss, rand, rand + QPointF(seite * weit * 0.35, laenge * 0.25),
                      rand + QPointF(seite * weit * 0.3 + b.zufall.streuung(12), laenge)};
        const double ebene = 0.3 + 0.6 * (1 - std::abs(seite));
        b.trieb(k, 3, 1.8, b.stielfarbe(), ebene);
        const double blade = std::min(b.blattlaenge(12), laenge * 0.35);
        b.beblaettern(k, 0.1, 1, blade, ebene + 0.05, 0.7);
        for (int j = 0; j < 4; ++j) {
            const double t = 0.3 + 0.2 * j;
            b.bluehe(k.punkt(t), k.winkel(t) + (j % 2 ? 55 : -55), 1.2 + 0.1 * ebene, 0.6);
        }
        if (i % 3 == 0)
            b.frucht(k.punkt(0.7), 1.3);
    }
    const double blade = std::min(b.blattlaenge(12), b.hoehe() * 0.3);
    blattkranz(b, 2, 7, blade, 25, 60, b.s.blattstiel);
}

/// The store below the ground, in a cut through the soil.
void speicher(Pflanzenbild &b, double breite, double hoehe)
{
    const QColor haut(0xB9, 0x8A, 0x57);
    const QPainterPath leib = kontur(u"M0-.1C.25 .15 .55 .35 .5 .68C.42 1-.42 1-.5 .68C-.55 .35-.25 .15 0-.1", breite, hoehe);
    for (int i = 0; i < 9; ++i) {
        const double x = -0.4 + 0.1 * i;
        b.trieb(Kurve::bogen({breite * x * 0.7, hoehe * 0.9}, -90 + x * 60, hoehe * 0.45, 8), 2, 0.8, heller(haut, 0.4), -1.2);
    }
    b.ding(-1.1, leib.boundingRect(), [leib, haut, breite, hoehe](QPainter &p) {
        const QBrush g =
            verlauf(QRadialGradient(QPointF(-breite * 0.15, hoehe * 0.5), breite * 0.8), {{0, heller(haut, 0.4)}, {1, dunkler(haut, 0.35)}});
        zeichnen(p, leib, QPen(umriss(haut), 1.2), g);
        p.strokePath(kontur(u"M0 0Q-.54 .5-.21 .9M0 0Q-.22 .5-.08 .9M0 0Q.18 .5 .07 .9M0 0Q.54 .5 .21 .9", breite, hoehe),
                     QPen(durchsichtig(dunkler(haut, 0.5), 0.5), 0.9));
    });
}

void zwiebel(Pflanzenbild &b)
{
    const double dick = std::clamp(b.hoehe() * 0.14, 16.0, 70.0);
    speicher(b, dick * 1.1, dick * 1.35);
    const int n = b.bandartig() ? 6 : 5;
    for (int i = 0; i < n; ++i) {
        const double seite = -1 + 2.0 * i / (n - 1);
        const double laenge = std::min(b.hoehe(), b.blattlaenge() * 1.05) * b.zufall.zwischen(0.88, 1.05);
        b.bandblatt(Kurve::bogen({seite * 5, 0}, 90 - seite * 26, laenge, 10 + 40 * std::abs(seite)), 1, i % 2 ? 0.4 : -0.4);
    }
    b.schaefte(b.zahl(1), b.bluetenhoehe(), 10);
}

void knolle(Pflanzenbild &b)
{
    const double dick = std::clamp(b.hoehe() * 0.16, 18.0, 70.0);
    speicher(b, dick * 1.7, dick * 0.85);
    if (b.bandartig())
        return zwiebel(b);
    horst(b);
}

void wasserlinie(Pflanzenbild &b, double tief)
{
    const double halb = std::max(b.halb() * 1.25, 120.0);
    b.ding(-3, QRectF(-halb, -2, 2 * halb, tief), [halb, tief](QPainter &p) {
        const QBrush g = verlauf(QLinearGradient(0, 0, 0, tief), {{0, QColor(0x8F, 0xB8, 0xC4, 170)}, {1, QColor(0x5F, 0x8E, 0xA0, 60)}});
        p.fillRect(QRectF(-halb, 0, 2 * halb, tief), g);
        p.setPen(QPen(QColor(0x4A, 0x7C, 0x90), 1.4));
        p.drawLine(QPointF(-halb, 0), QPointF(halb, 0));
    });
}

void sumpf(Pflanzenbild &b)
{
    wasserlinie(b, 46);
    if (b.s.stellung == u"schopfig" || b.bandartig() || b.s.blattstiel > 0.8)
        return horst(b);
    aufrecht(b);
}

void schwimmblatt(Pflanzenbild &b)
{
    const double halb = std::max(b.halb(), 150.0), tief = std::min(260.0, halb);
    wasserlinie(b, tief);
    const double blade = std::clamp(b.blattlaenge(30), halb * 0.26, halb * 0.55), weit = tief * 0.4;
    QPainterPath spiegel; // the surface as one looks down on it
    spiegel.addEllipse(QPointF(), halb * 1.2, weit * 0.62);
    b.form(spiegel, QColor(0xA9, 0xCA, 0xD2), -2.5, 0);
    for (int i = 0; i < 15; ++i) {
        const double nah = (i % 3) / 2.0, x = -1 + (i + 0.5) / 7.5 + b.zufall.streuung(0.05);
        const QPointF ort(x * halb * 0.86, (nah - 0.5) * weit + b.zufall.streuung(5));
        b.trieb(Kurve::bogen({x * 20, tief}, 90 - x * 30, tief * 0.98, -x * 8), 2, 1.6, gemischt(b.stielfarbe(), QColor(0x5F, 0x8E, 0xA0), 0.4),
                -2.6);
        b.blatt(ort, (i % 2 ? 90 : 270) + b.zufall.streuung(6), blade * (0.34 + 0.1 * nah), nah, 2.3);
    }
    const double ueber = std::max(0.0, b.bluetenhoehe() - b.hoehe() * 1.5); // above the water, or floating on it
    for (int i = 0; i < b.zahl(3); ++i) {
        const QPointF ort(-halb * 0.5 + halb * 0.5 * i, -8 - ueber);
        b.trieb({{ort.x() * 0.4, tief}, {ort.x() * 0.8, tief * 0.5}, {ort.x(), 10}, ort}, 3, 2.4, b.stielfarbe(), 1.1);
        b.bluehe(ort, 90, 1.5);
    }
}

void unterwasser(Pflanzenbild &b)
{
    const double tief = b.hoehe();
    wasserlinie(b, tief);
    for (int i = 0; i < 7; ++i) {
        const Kurve k = Kurve::bogen({(i - 3) * b.halb() * 0.16, tief}, 90 - (i - 3) * 6, tief * b.zufall.zwischen(0.75, 0.97), 12);
        b.trieb(k, 2.4, 1.5, b.stielfarbe(), 0);
        b.beblaettern(k, 0.1, 1, std::min(b.blattlaenge(12), tief * 0.3), 0.1);
    }
    b.schaefte(b.zahl(2), std::max(20.0, b.bluetenhoehe() * 0.3), 14);
}

void erdbeere(Pflanzenbild &b)
{
    horst(b);
    const double h = b.hoehe();
    for (const double seite : reihe(9)) { // fruits hang before the leaves and out to both sides
        const QPointF ende(seite * b.halb() * 0.95, -h * b.zufall.zwischen(0.16, 0.42) * (1.2 - std::abs(seite)));
        const Kurve k{{0, -h * 0.3}, {ende.x() * 0.4, -h * 0.75}, {ende.x(), ende.y() - h * 0.3}, ende};
        b.trieb(k, 2.2, 1.6, b.stielfarbe(), 1.3);
        b.frucht(ende, 1.5 + 0.04 * seite);
    }
    for (int seite : {-1, 1}) {
        const Kurve k = Kurve::bogen({0, 0}, 90 - seite * 60, b.halb() * 1.15, 60);
        b.trieb(k, 2.4, 1.6, QColor(0xA8, 0x6A, 0x58), -0.5);
        b.gestielt(k.punkt(1), 90 - seite * 10, b.blattlaenge() * 0.4, 10, b.blattlaenge() * 0.4, 0.4);
        b.gestielt(k.punkt(1), 90 + seite * 30, b.blattlaenge() * 0.3, 10, b.blattlaenge() * 0.35, 0.3);
    }
}

/// A piece of a shoot with its leaves, for the plate of details.
void trieb(Pflanzenbild &b)
{
    const bool schmal = b.schlank() < 0.3;
    const double blade = b.blattlaenge();
    const Kurve k = Kurve::bogen({0, 0}, 88, blade * (schmal ? 5 : 2.6), 10);
    b.trieb(k, blade * (schmal ? 0.22 : 0.09), blade * (schmal ? 0.14 : 0.05), b.s.verholzt() ? b.s.rindenfarbe : b.stielfarbe(), -0.1);
    b.beblaettern(k, 0.2, 1, blade, 0, schmal ? 0.2 : 0.5);
}

// clang-format off
constexpr Wuchs krautworte[] = {
    {u"rosette", rosette}, {u"horst", horst}, {u"aufrecht", aufrecht}, {u"eintriebig", [](Pflanzenbild &b) { triebe(b, 1, 0); }}, {u"buschig", buschig},
    {u"halbstrauch", buschig}, {u"polster", [](Pflanzenbild &b) { kuppel(b, b.hoehe(), b.halb()); }}, {u"teppich", teppich}, {u"haengend", haengend}, {u"zwiebel", zwiebel}, {u"knolle", knolle},
    {u"sumpf", sumpf}, {u"schwimmblatt", schwimmblatt}, {u"unterwasser", unterwasser}, {u"erdbeere", erdbeere}, {u"sukkulentrosette", sukkulentrosette},
    {u"trieb", trieb}};
// clang-format on

} // namespace

const std::span<const Wuchs> wuchsKraut = krautworte;
