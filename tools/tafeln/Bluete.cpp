#include "Bluete.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace {

constexpr double pi = std::numbers::pi;
const QColor kelchgruen(0x7F, 0xA6, 0x55);

enum class Spitze { Rund, Spitz, Kerbe, Zunge, Kraus };

/// Petal from (0, 0) to (1, 0) with a half width.
QPainterPath blattform(double b, Spitze spitze)
{
    QPainterPath p(QPointF(0, 0));
    switch (spitze) {
    case Spitze::Rund:
        p.cubicTo({.2, -.85 * b}, {.98, -1.5 * b}, {1, 0});
        p.cubicTo({.98, 1.5 * b}, {.2, .85 * b}, {0, 0});
        break;
    case Spitze::Spitz:
        p.cubicTo({.25, -1.3 * b}, {.7, -.95 * b}, {1, 0});
        p.cubicTo({.7, .95 * b}, {.25, 1.3 * b}, {0, 0});
        break;
    case Spitze::Kerbe:
        p.cubicTo({.12, -.7 * b}, {.7, -1.5 * b}, {.97, -.72 * b});
        p.quadTo({1.03, -.28 * b}, {.9, 0});
        p.quadTo({1.03, .28 * b}, {.97, .72 * b});
        p.cubicTo({.7, 1.5 * b}, {.12, .7 * b}, {0, 0});
        break;
    case Spitze::Zunge:
        p.cubicTo({.1, -.9 * b}, {.7, -1.15 * b}, {.94, -.72 * b});
        p.quadTo({1.03, 0}, {.94, .72 * b});
        p.cubicTo({.7, 1.15 * b}, {.1, .9 * b}, {0, 0});
        break;
    case Spitze::Kraus: {
        std::vector<QPointF> rand{{0, 0}};
        for (int i = 0; i <= 22; ++i) {
            const double g = -80 + 160.0 * i / 22, r = i % 2 ? 1.0 : 0.93;
            rand.emplace_back(.45 + .55 * r * std::cos(g * pi / 180), 1.25 * b * r * std::sin(g * pi / 180));
        }
        return geschlossen(rand);
    }
    }
    p.closeSubpath();
    return p;
}

Stempel blatt(double halb, Spitze spitze, const QColor &innen, const QColor &aussen, bool fein)
{
    Stempel s;
    s.verlauf(blattform(halb, spitze), innen, aussen, {0.1, 0}, {0.85, 0}, 1);
    if (fein)
        for (const double y : {-.5, -.2, .2, .5}) {
            QPainterPath ader(QPointF(.12, y * halb * .2));
            ader.quadTo({.5, y * halb * .9}, {.86, y * halb});
            s.linie(ader, durchsichtig(dunkler(gemischt(innen, aussen, 0.6), 0.3), 0.3), 0.8);
        }
    return s;
}

struct Maler
{
    Stempel s;
    QColor f, z;
    bool gerandet, fein;

    QColor rand() const { return gerandet ? heller(f, 0.78) : heller(f, 0.14); }
    QColor herz() const { return dunkler(f, 0.2); }
    /// `n` petals round the middle, the first one upwards turned by `drehung`.
    void kranz(int n, double laenge, double halb, Spitze spitze, const QColor &innen, const QColor &aussen, double drehung = 0)
    {
        const Stempel b = blatt(halb, spitze, innen, aussen, fein);
        for (int i = 0; i < n; ++i)
            s.stempel(b, {0, 0}, -90 + drehung + 360.0 * i / n, laenge);
    }
    void einzeln(double grad, double laenge, double halb, Spitze spitze, const QColor &innen, const QColor &aussen, QPointF ort = {0, 0})
    {
        s.stempel(blatt(halb, spitze, innen, aussen, fein), ort, grad, laenge);
    }
    void staubblaetter(int n, double laenge, const QColor &faden, const QColor &beutel, double grad = -90, double spreizung = 360, double beutelgroesse = 0.035)
    {
        for (int i = 0; i < n; ++i) {
            const double w = grad + (n == 1 ? 0 : spreizung >= 360 ? 360.0 * i / n : spreizung * (double(i) / (n - 1) - 0.5));
            const QPointF ende(std::cos(w * pi / 180) * laenge, std::sin(w * pi / 180) * laenge);
            QPainterPath l(QPointF(0, 0));
            l.lineTo(ende);
            s.linie(l, faden, 1.6);
            s.kreis(ende, beutelgroesse, beutel);
        }
    }
};

// Open flowers.

void rad(Maler &m) { m.kranz(5, 1, .46, Spitze::Rund, m.herz(), m.rand()); m.s.kreis({0, 0}, .13, m.z.isValid() ? m.z : farbe::staub); }

void radMitAuge(Maler &m)
{
    m.kranz(5, 1, .47, Spitze::Rund, m.f, m.rand());
    m.kranz(5, .34, .3, Spitze::Spitz, dunkler(m.f, 0.45), dunkler(m.f, 0.3));
    m.s.kreis({0, 0}, .09, m.z.isValid() ? m.z : heller(m.f, 0.7));
}

void kerbrad(Maler &m)
{
    m.kranz(5, 1, .5, Spitze::Kerbe, heller(m.f, 0.3), m.rand());
    m.kranz(5, .42, .34, Spitze::Kerbe, farbe::staub, QColor(0xF3, 0xD9, 0x72));
    m.s.kreis({0, 0}, .1, QColor(0xB9, 0xBE, 0x4A));
}

void stern(Maler &m) { m.kranz(5, 1, .27, Spitze::Spitz, heller(m.f, 0.2), m.rand()); m.s.kreis({0, 0}, .12, m.z.isValid() ? m.z : farbe::staub); }

void lilie(Maler &m)
{
    const QColor innen = gemischt(m.f, QColor(0xE3, 0xE6, 0x9B), 0.5);
    m.kranz(3, 1, .36, Spitze::Spitz, innen, m.rand(), 180);
    m.kranz(3, .97, .42, Spitze::Spitz, innen, m.rand());
    m.staubblaetter(6, .55, heller(m.f, 0.5), farbe::staub, 70, 120, .04);
    m.s.kreis({0, 0}, .07, dunkler(innen, 0.2));
}

void kreuz(Maler &m) { m.kranz(4, 1, .55, Spitze::Rund, heller(m.f, 0.1), m.rand(), 45); m.s.kreis({0, 0}, .1, m.z.isValid() ? m.z : gemischt(m.f, kelchgruen, 0.5)); }

void hibiskus(Maler &m)
{
    m.kranz(5, 1, .62, Spitze::Rund, dunkler(m.f, 0.55), m.rand());
    m.kranz(5, .36, .35, Spitze::Spitz, dunkler(m.f, 0.6), dunkler(m.f, 0.4));
    QPainterPath saeule(QPointF(-.02, .03));
    saeule.cubicTo({.2, -.1}, {.35, -.35}, {.52, -.62});
    m.s.linie(saeule, dunkler(heller(m.f, 0.5), 0.1), 5);
    for (int i = 0; i < 14; ++i) {
        const double t = .35 + .045 * i;
        m.s.kreis({.55 * t + .05 * std::sin(i * 2.4), -.66 * t + .05 * std::cos(i * 2.4)}, .03, farbe::staub);
    }
    for (int i = 0; i < 5; ++i)
        m.s.kreis({.54 + .05 * std::cos(i * 1.3), -.68 + .05 * std::sin(i * 1.3)}, .03, QColor(0xB8, 0x30, 0x35));
}

void trichter(Maler &m)
{
    std::vector<QPointF> saum;
    for (int i = 0; i < 20; ++i) {
        const double r = i % 4 == 0 ? 1.0 : i % 4 == 2 ? .88 : .97;
        saum.push_back(polar(90 + 18.0 * i, r));
    }
    m.s.verlauf(geschlossen(saum), m.rand(), m.f, {-.6, -.8}, {.5, .9}, 1);
    for (int i = 0; i < 5; ++i) {
        QPainterPath l(polar(90 + 72 * i, .2));
        l.lineTo(polar(90 + 72 * i, .88));
        m.s.linie(l, durchsichtig(dunkler(m.f, 0.4), 0.5), 1.6);
    }
    m.s.kreis({0, 0}, .3, m.z.isValid() ? m.z : dunkler(m.f, 0.35), 0);
    m.s.kreis({0, 0}, .19, dunkler(m.z.isValid() ? m.z : m.f, 0.55), 0);
    m.s.kreis({.01, .02}, .06, farbe::staub, 0);
}

void scheibe(Maler &m, double r, const QColor &f)
{
    m.s.kreis({0, 0}, r, f);
    for (int i = 0; i < (m.fein ? 60 : 16); ++i) {
        const double q = r * .93 * std::sqrt((i + .5) / (m.fein ? 60 : 16));
        m.s.kreis(polar(137.5 * i, q), r * (m.fein ? .07 : .12), i % 3 ? heller(f, 0.25) : dunkler(f, 0.2), 0);
    }
}

void korb(Maler &m)
{
    m.kranz(17, 1, .13, Spitze::Zunge, dunkler(m.f, 0.08), m.rand(), 10);
    m.kranz(17, .95, .13, Spitze::Zunge, m.f, m.rand());
    scheibe(m, .29, m.z.isValid() ? m.z : QColor(0xE8, 0xB4, 0x2E));
}

void gefuellt(Maler &m)
{
    constexpr double ringe[] = {1, .9, .78, .65, .5, .36, .22};
    int i = 0;
    for (const double r : ringe) {
        const double t = i / 7.0;
        m.kranz(22 - 2 * i, r, .11 + .03 * i, Spitze::Zunge, dunkler(m.f, 0.25), gemischt(m.rand(), m.herz(), t * 0.55), i * 8.6);
        ++i;
    }
}

void rose(Maler &m)
{
    constexpr double ringe[] = {1, .85, .68, .5, .33};
    int i = 0;
    for (const double r : ringe) {
        m.kranz(5 + (i == 0), r, .56, Spitze::Rund, dunkler(m.f, 0.28), gemischt(m.rand(), m.f, i * .2), 31.0 * i);
        ++i;
    }
    for (const double r : {.2, .12}) {
        QPainterPath w;
        w.arcMoveTo(QRectF(-r, -r, 2 * r, 2 * r), 40);
        w.arcTo(QRectF(-r, -r, 2 * r, 2 * r), 40, 250);
        m.s.linie(w, dunkler(m.f, 0.45), 1.6);
    }
}

void begonie(Maler &m)
{
    m.einzeln(-90, 1, .6, Spitze::Rund, m.herz(), m.rand());
    m.einzeln(90, .95, .6, Spitze::Rund, m.herz(), m.rand());
    m.einzeln(0, .85, .36, Spitze::Rund, m.f, m.rand());
    m.einzeln(180, .85, .36, Spitze::Rund, m.f, m.rand());
    scheibe(m, .2, QColor(0xF0, 0xC2, 0x3C));
}

void veilchen(Maler &m)
{
    for (const double g : {-128.0, -52.0})
        m.einzeln(g, .8, .48, Spitze::Rund, m.herz(), m.rand());
    for (const double g : {168.0, 12.0, 90.0})
        m.einzeln(g, 1, .5, Spitze::Rund, m.herz(), m.rand());
    m.s.oval({-.06, .02}, .09, .06, farbe::staub);
    m.s.oval({.08, .03}, .09, .06, farbe::staub);
}

void orchidee(Maler &m, double sepalum, double petalum, Spitze petalspitze, const QColor &sepal)
{
    for (const double g : {-90.0, 38.0, 142.0})
        m.einzeln(g, .95, sepalum, Spitze::Spitz, dunkler(sepal, 0.06), heller(sepal, 0.16));
    for (const double g : {-14.0, 194.0})
        m.einzeln(g, 1, petalum, petalspitze, m.f, m.rand());
}

void saeule(Maler &m, const QColor &f)
{
    m.s.oval({0, .0}, .09, .13, heller(m.f, 0.55));
    m.s.kreis({0, -.06}, .05, f);
}

void falter(Maler &m)
{
    orchidee(m, .34, .68, Spitze::Rund, m.f);
    const QColor lippe = m.z.isValid() ? m.z : gemischt(m.f, QColor(0xA8, 0x1F, 0x5A), 0.75);
    m.einzeln(40, .36, .38, Spitze::Rund, farbe::staub, lippe, {0, .08});
    m.einzeln(140, .36, .38, Spitze::Rund, farbe::staub, lippe, {0, .08});
    m.einzeln(90, .52, .26, Spitze::Spitz, lippe, heller(lippe, 0.2), {0, .08});
    saeule(m, farbe::staub);
}

void cattleya(Maler &m)
{
    orchidee(m, .22, .6, Spitze::Kraus, m.f);
    const QColor lippe = dunkler(gemischt(m.f, QColor(0xA0, 0x1A, 0x70), 0.6), 0.08);
    m.einzeln(90, .95, .56, Spitze::Kraus, farbe::staub, lippe, {0, .05});
    m.einzeln(90, .5, .26, Spitze::Rund, QColor(0xF2, 0xC2, 0x3A), QColor(0xF5, 0xDE, 0x80), {0, .06});
    saeule(m, heller(m.f, 0.6));
}

void cymbidie(Maler &m)
{
    orchidee(m, .32, .3, Spitze::Spitz, m.f);
    const QColor lippe = heller(m.f, 0.75);
    m.einzeln(90, .62, .44, Spitze::Kraus, lippe, lippe, {0, .08});
    for (int i = 0; i < 9; ++i)
        m.s.kreis({.2 * std::sin(i * 2.1), .42 + .2 * std::cos(i * 1.7)}, .03, QColor(0xA0, 0x2E, 0x3E), 0);
    saeule(m, farbe::staub);
}

void tanzpuppe(Maler &m)
{
    const QColor oben = gemischt(m.f, QColor(0x8A, 0x55, 0x2A), 0.45);
    for (const double g : {-90.0, -40.0, -140.0, 200.0, -20.0})
        m.einzeln(g, .55, .26, Spitze::Spitz, dunkler(oben, 0.2), oben, {0, -.1});
    m.s.stempel(blatt(.62, Spitze::Kerbe, dunkler(m.f, 0.1), m.rand(), m.fein), {0, -.02}, 90, 1);
    m.s.oval({0, .06}, .16, .1, QColor(0x9A, 0x4A, 0x22));
    saeule(m, farbe::staub);
}

void frauenschuh(Maler &m)
{
    const QColor fahne = heller(m.f, 0.55);
    m.einzeln(-90, 1, .6, Spitze::Rund, gemischt(fahne, kelchgruen, 0.6), fahne);
    for (const double x : {-.3, -.15, 0.0, .15, .3}) {
        QPainterPath l(QPointF(x * .3, -.15));
        l.quadTo({x * 1.5, -.5}, {x * 1.4, -.82});
        m.s.linie(l, durchsichtig(dunkler(m.f, 0.35), 0.7), 1.4);
    }
    for (const double g : {12.0, 168.0})
        m.einzeln(g, 1.05, .19, Spitze::Zunge, dunkler(m.f, 0.2), m.f);
    QPainterPath schuh(QPointF(-.3, .02));
    schuh.cubicTo({-.42, .75}, {-.28, 1.02}, {0, 1.02});
    schuh.cubicTo({.28, 1.02}, {.42, .75}, {.3, .02});
    schuh.quadTo({0, .3}, {-.3, .02});
    m.s.verlauf(schuh, dunkler(m.f, 0.1), gemischt(m.f, QColor(0x9C, 0x8A, 0x4A), 0.35), {-.3, 0}, {.35, .9}, 1);
    m.s.oval({0, .02}, .17, .15, farbe::staub);
}

void trompete(Maler &m)
{
    for (const double g : {-122.0, -58.0})
        m.einzeln(g, .82, .46, Spitze::Rund, heller(m.f, 0.35), m.rand());
    for (const double g : {158.0, 22.0, 90.0})
        m.einzeln(g, 1, .48, Spitze::Rund, heller(m.f, 0.35), m.rand());
    for (const double g : {70.0, 90.0, 110.0}) {
        QPainterPath l(QPointF(0, .1));
        l.lineTo(std::cos(g * pi / 180) * .7, std::sin(g * pi / 180) * .7);
        m.s.linie(l, durchsichtig(dunkler(m.f, 0.4), 0.75), 1.8);
    }
    m.s.oval({0, 0}, .2, .15, heller(m.f, 0.72));
    m.s.oval({0, -.03}, .11, .07, QColor(0xE9, 0xCF, 0x68), 0);
}

void faecher(Maler &m)
{
    for (const double g : {10.0, 50.0, 90.0, 130.0, 170.0})
        m.einzeln(g, 1, .24, Spitze::Zunge, heller(m.f, 0.4), m.f);
    m.s.oval({0, .04}, .16, .1, QColor(0xF3, 0xDE, 0x7E));
}

void lobelie(Maler &m)
{
    for (const double g : {-115.0, -65.0})
        m.einzeln(g, .62, .2, Spitze::Spitz, m.herz(), m.f);
    for (const double g : {150.0, 30.0, 90.0})
        m.einzeln(g, 1, .46, Spitze::Rund, heller(m.f, 0.75), m.f);
    m.s.oval({0, .1}, .15, .11, QColor(0xFD, 0xFB, 0xF0), 0);
}

void pelargonie(Maler &m)
{
    for (const double g : {150.0, 30.0, 90.0})
        m.einzeln(g, .92, .42, Spitze::Rund, m.f, m.rand());
    for (const double g : {-122.0, -58.0}) {
        m.einzeln(g, 1, .46, Spitze::Rund, m.f, m.rand());
        m.einzeln(g, .66, .22, Spitze::Spitz, dunkler(m.f, 0.5), dunkler(m.f, 0.3));
    }
    m.staubblaetter(5, .16, heller(m.f, 0.6), QColor(0xC9, 0x5A, 0x3A));
}

void hochblattstern(Maler &m)
{
    m.kranz(6, 1, .33, Spitze::Spitz, dunkler(m.f, 0.12), m.f, 30);
    m.kranz(6, .82, .34, Spitze::Spitz, dunkler(m.f, 0.08), m.rand());
    m.kranz(5, .5, .34, Spitze::Spitz, m.f, heller(m.f, 0.25), 20);
    for (int i = 0; i < 7; ++i)
        m.s.oval(polar(51.4 * i, i ? .12 : 0), .06, .07, i % 2 ? farbe::staub : QColor(0x8F, 0xA9, 0x4A));
}

void christusdorn(Maler &m)
{
    m.einzeln(0, 1, .72, Spitze::Rund, m.herz(), m.rand(), {-.05, 0});
    m.einzeln(180, 1, .72, Spitze::Rund, m.herz(), m.rand(), {.05, 0});
    m.s.kreis({0, 0}, .16, QColor(0xD9, 0xB2, 0x3C));
    m.s.kreis({0, 0}, .07, kelchgruen);
}

void drilling(Maler &m)
{
    m.kranz(3, 1, .56, Spitze::Spitz, dunkler(m.f, 0.1), m.rand(), 10);
    for (const double g : {60.0, 180.0, 300.0}) {
        const QPointF ort = polar(g, .3);
        for (int i = 0; i < 5; ++i)
            m.s.oval(ort + polar(72 * i, .06), .05, .05, QColor(0xFD, 0xF6, 0xDC), 0.6);
        m.s.kreis(ort, .03, farbe::staub, 0);
    }
}

void glockenstern(Maler &m)
{
    m.kranz(5, 1, .42, Spitze::Spitz, heller(m.f, 0.45), m.f);
    m.s.kreis({0, 0}, .2, heller(m.f, 0.5), 0);
    m.staubblaetter(3, .2, heller(m.f, 0.8), QColor(0xFA, 0xF2, 0xC0));
}

void passionsblume(Maler &m)
{
    const QColor weiss(0xF4, 0xF6, 0xE6);
    m.kranz(5, 1, .3, Spitze::Zunge, gemischt(weiss, kelchgruen, 0.35), weiss, 36);
    m.kranz(5, 1, .3, Spitze::Zunge, gemischt(weiss, kelchgruen, 0.25), weiss);
    const int n = m.fein ? 72 : 36;
    const QColor blau = bluetenfarbe(u"blau"), purpur(0x5A, 0x28, 0x58);
    for (int i = 0; i < n; ++i) {
        QPainterPath innen(polar(360.0 * i / n, .18)), mitte(polar(360.0 * i / n, .38)), aussen(polar(360.0 * i / n, .5));
        innen.lineTo(polar(360.0 * i / n, .38));
        mitte.lineTo(polar(360.0 * i / n, .5));
        aussen.lineTo(polar(360.0 * i / n, .7));
        m.s.linie(innen, purpur, 2);
        m.s.linie(mitte, weiss, 2);
        m.s.linie(aussen, blau, 2);
    }
    m.s.kreis({0, 0}, .17, QColor(0xCF, 0xD6, 0x8A));
    m.staubblaetter(5, .3, kelchgruen, QColor(0xE0, 0xC0, 0x40), -90, 360, .06);
    m.staubblaetter(3, .26, QColor(0x5A, 0x28, 0x58), purpur, -50, 360, .05);
}

void strahlen(Maler &m)
{
    m.kranz(14, 1, .16, Spitze::Spitz, m.f, m.rand());
    m.kranz(12, .84, .17, Spitze::Spitz, m.f, heller(m.f, 0.25), 13);
    m.kranz(10, .62, .18, Spitze::Spitz, heller(m.f, 0.1), heller(m.f, 0.4), 5);
    scheibe(m, .22, QColor(0xF1, 0xD9, 0x6A));
}

void wachsblume(Maler &m)
{
    m.kranz(5, 1, .44, Spitze::Spitz, heller(m.f, 0.3), m.rand());
    m.kranz(5, .5, .3, Spitze::Spitz, QColor(0xFF, 0xFC, 0xF4), heller(m.f, 0.6), 36);
    m.s.kreis({0, 0}, .13, m.z.isValid() ? m.z : QColor(0xB8, 0x35, 0x55));
}

void springkraut(Maler &m)
{
    for (const double g : {-90.0, -18.0, 198.0, 54.0, 126.0})
        m.einzeln(g, 1, .56, Spitze::Kerbe, heller(m.f, 0.05), m.rand());
    m.s.kreis({0, 0}, .12, dunkler(m.f, 0.3));
    m.s.kreis({0, 0}, .05, heller(m.f, 0.7), 0);
}

// Hanging flowers.

QPainterPath glockenform(double oben, double mitte, double unten, double hoehe)
{
    QPainterPath g(QPointF(-oben, .1));
    g.cubicTo({-mitte, .2 * hoehe}, {-mitte * .95, .7 * hoehe}, {-unten, hoehe});
    for (int i = 0; i < 3; ++i) {
        const double x0 = -unten + 2 * unten * i / 3, x1 = -unten + 2 * unten * (i + 1) / 3;
        g.quadTo({(x0 + x1) / 2, hoehe * 1.16}, {x1, hoehe});
    }
    g.cubicTo({mitte * .95, .7 * hoehe}, {mitte, .2 * hoehe}, {oben, .1});
    g.quadTo({0, -.04}, {-oben, .1});
    return g;
}

void laterne(Maler &m)
{
    const QColor kelch = m.z.isValid() ? m.z : m.f;
    m.s.verlauf(glockenform(.12, .3, .42, 1.35), m.f, heller(m.f, 0.3), {0, .6}, {0, 1.4});
    for (int i = -2; i <= 2; ++i)
        m.s.kreis({.07 * i, 1.55 + .04 * (2 - std::abs(i))}, .05, QColor(0x7A, 0x4A, 0x30));
    QPainterPath k(QPointF(0, 0));
    k.cubicTo({-.55, .05}, {-.5, .75}, {-.3, .95});
    k.lineTo(-.16, .78);
    k.lineTo(0, 1);
    k.lineTo(.16, .78);
    k.lineTo(.3, .95);
    k.cubicTo({.5, .75}, {.55, .05}, {0, 0});
    m.s.verlauf(k, dunkler(kelch, 0.15), heller(kelch, 0.1), {-.4, 0}, {.4, .6});
}

void glocke(Maler &m)
{
    m.s.verlauf(glockenform(.2, .58, .74, 1.25), m.herz(), m.rand(), {-.6, .3}, {.5, 1.2});
    for (const double x : {-.34, 0.0, .34}) {
        QPainterPath l(QPointF(x * .35, .15));
        l.quadTo({x * 1.2, .6}, {x * 1.3, 1.2});
        m.s.linie(l, durchsichtig(dunkler(m.f, 0.35), 0.5), 1.2);
    }
    m.s.oval({0, 1.42}, .05, .16, farbe::staub);
    for (const double g : {60.0, 90.0, 120.0})
        m.s.stempel(blatt(.26, Spitze::Spitz, dunkler(kelchgruen, 0.2), kelchgruen, false), {0, -.02}, g, .5);
}

void heideglocke(Maler &m) { m.s.verlauf(glockenform(.3, .75, .5, 1.3), m.herz(), m.rand(), {-.5, .2}, {.5, 1.2}); }

void fuchsie(Maler &m)
{
    const QColor kelch = m.z.isValid() ? m.z : m.f, krone = m.f;
    for (int i = -3; i <= 3; ++i) {
        QPainterPath l(QPointF(0, .9));
        l.quadTo({.05 * i, 1.4}, {.06 * i, i ? 1.75 : 2.1});
        m.s.linie(l, heller(kelch, 0.1), 1.4);
        m.s.kreis({.06 * i, i ? 1.75 : 2.1}, .04, i ? QColor(0xD8, 0xA8, 0x6A) : kelch);
    }
    for (const double x : {-.22, .22, 0.0})
        m.s.stempel(blatt(.42, Spitze::Rund, dunkler(krone, 0.25), krone, m.fein), {x * .6, .45}, 90 - x * 60, .9);
    for (const double g : {25.0, 155.0, 62.0, 118.0})
        m.s.stempel(blatt(.17, Spitze::Spitz, kelch, heller(kelch, 0.15), false), {0, .5}, g, 1);
    m.s.verlauf(band({{0, 0}, {0, .2}, {0, .4}, {0, .62}}, [](double t) { return .1 + .06 * t; }), dunkler(kelch, 0.2), kelch, {-.1, 0}, {.15, 0});
    m.s.oval({0, .03}, .1, .12, kelchgruen);
}

void pantoffel(Maler &m)
{
    m.s.oval({0, .12}, .4, .26, heller(m.f, 0.15));
    m.s.verlauf(ellipse({0, .72}, .78, .66), heller(m.f, 0.25), dunkler(m.f, 0.16), {-.4, .2}, {.5, 1.3});
    for (int i = 0; i < 9; ++i)
        m.s.oval({.42 * std::sin(i * 2.2), .66 + .3 * std::cos(i * 1.55)}, .06, .05, m.z.isValid() ? m.z : QColor(0xB2, 0x3A, 0x22), 0);
    m.s.oval({0, .2}, .26, .09, dunkler(m.f, 0.45));
}

// Standing flowers.

void alpenveilchen(Maler &m)
{
    for (const double g : {-148.0, -32.0, -122.0, -58.0, -90.0})
        m.s.stempel(blatt(.27, Spitze::Spitz, dunkler(m.f, 0.25), m.rand(), m.fein), {0, -.1}, g, g == -90 ? 1.25 : 1.2);
    m.s.oval({0, .02}, .2, .17, dunkler(gemischt(m.f, QColor(0x9A, 0x1F, 0x5A), 0.45), 0.15));
    m.s.oval({0, .15}, .07, .05, QColor(0xF6, 0xEE, 0xC8), 0);
}

void kolben(Maler &m, QPointF fuss, double grad, double laenge, double dicke, const QColor &f)
{
    QPainterPath k = band({fuss, fuss + polar(grad, laenge * .33), fuss + polar(grad, laenge * .66), fuss + polar(grad, laenge)},
                          [dicke](double t) { return dicke * std::sqrt(std::max(0.0, 1 - std::pow(t, 5))); });
    m.s.verlauf(k, heller(f, 0.3), dunkler(f, 0.2), fuss + polar(grad + 90, dicke), fuss + polar(grad - 90, dicke));
    for (int i = 0; i < (m.fein ? 42 : 12); ++i)
        m.s.kreis(fuss + polar(grad, laenge * (.05 + .9 * i / (m.fein ? 42 : 12))) + polar(grad + 90, dicke * .7 * std::sin(i * 2.4)), dicke * .16, durchsichtig(dunkler(f, 0.25), 0.6), 0);
}

void spatha(Maler &m)
{
    QPainterPath herz(QPointF(0, -.12));
    herz.cubicTo({-.35, .35}, {-1.15, .1}, {-1, -.5});
    herz.cubicTo({-.9, -1.0}, {-.35, -1.25}, {.08, -1.62});
    herz.cubicTo({.35, -1.2}, {.95, -.95}, {1, -.45});
    herz.cubicTo({1.05, .12}, {.35, .35}, {0, -.12});
    m.s.verlauf(herz, dunkler(m.f, 0.12), heller(m.f, 0.18), {-.3, .2}, {.3, -1.4});
    for (const double g : {118.0, 150.0, 62.0, 30.0, 92.0}) {
        QPainterPath l(QPointF(0, -.14));
        l.quadTo(polar(g * 1.06, .5), polar(g, .92));
        m.s.linie(l, durchsichtig(dunkler(m.f, 0.35), 0.45), 1.4);
    }
    kolben(m, {0, -.14}, 76, .85, .085, m.z.isValid() ? m.z : QColor(0xEF, 0xC9, 0x54));
}

void fahne(Maler &m)
{
    m.s.stempel(blatt(.32, Spitze::Spitz, gemischt(m.f, kelchgruen, 0.3), m.f, m.fein), {0, 0}, -102, 1.75);
    kolben(m, {0, -.05}, 88, .85, .085, QColor(0xEE, 0xE3, 0xB2));
}

void kalla(Maler &m)
{
    QPainterPath hinten(QPointF(-.1, 0));
    hinten.cubicTo({-.5, -.5}, {-.85, -1.1}, {-.5, -1.4});
    hinten.cubicTo({-.1, -1.65}, {.3, -1.7}, {.72, -1.95});
    hinten.cubicTo({.8, -1.3}, {.5, -.5}, {.1, 0});
    m.s.verlauf(hinten, dunkler(m.f, 0.14), heller(m.f, 0.1), {0, -.4}, {.1, -1.6});
    kolben(m, {0, -.55}, 84, .72, .07, farbe::staub);
    QPainterPath vorn(QPointF(-.1, 0));
    vorn.cubicTo({-.5, -.5}, {-.85, -1.1}, {-.5, -1.4});
    vorn.cubicTo({-.35, -1.0}, {.25, -.75}, {.52, -1.02});
    vorn.cubicTo({.45, -.6}, {.25, -.2}, {.1, 0});
    m.s.verlauf(vorn, gemischt(m.f, kelchgruen, 0.3), m.rand(), {0, 0}, {0, -.9});
}

void paradiesvogel(Maler &m)
{
    const QColor orange = bluetenfarbe(u"orange"), blau = bluetenfarbe(u"blau");
    for (const double g : {-58.0, -82.0, -104.0, -124.0})
        m.s.stempel(blatt(.15, Spitze::Spitz, dunkler(orange, 0.1), heller(orange, 0.1), m.fein), {-.15, -.2}, g, 1.35);
    m.s.stempel(blatt(.13, Spitze::Spitz, blau, dunkler(blau, 0.1), m.fein), {-.1, -.2}, -36, 1.25);
    QPainterPath schiff(QPointF(-.42, 0));
    schiff.cubicTo({-.3, -.32}, {.6, -.3}, {1.5, -.42});
    schiff.cubicTo({.8, .05}, {.1, .22}, {-.42, 0});
    m.s.verlauf(schiff, QColor(0x6E, 0x92, 0x5A), QColor(0xA6, 0x5A, 0x5E), {-.4, 0}, {1.4, -.35});
}

void roehre(Maler &m)
{
    const Kurve k{{0, 0}, {0, -.5}, {.05, -.95}, {.3, -1.3}};
    m.s.verlauf(band(k, [](double t) { return .1 + .16 * t * t; }), dunkler(m.f, 0.2), m.f, {-.2, 0}, {.3, -1});
    for (const double g : {-140.0, 10.0, -60.0})
        m.s.stempel(blatt(.3, Spitze::Rund, m.f, heller(m.f, 0.2), false), {.28, -1.25}, g, .4);
    m.s.verlauf(band({{0, .05}, {0, -.1}, {0, -.25}, {.01, -.42}}, [](double t) { return .13 + .04 * t; }), dunkler(m.z.isValid() ? m.z : kelchgruen, 0.25),
                m.z.isValid() ? m.z : kelchgruen, {-.1, 0}, {.15, 0});
}

void flammenlilie(Maler &m)
{
    for (const double g : {-150.0, -126.0, -102.0, -78.0, -54.0, -30.0}) {
        Stempel b = blatt(.13, Spitze::Spitz, QColor(0xF2, 0xCC, 0x3A), bluetenfarbe(u"rot"), false);
        b.verbiegen([](QPointF q) { return QPointF(q.x(), q.y() * (1 + .25 * std::sin(q.x() * 18)) + .05 * std::sin(q.x() * 9)); });
        m.s.stempel(b, {0, -.05}, g, 1.35);
    }
    m.staubblaetter(6, .8, QColor(0xB7, 0xBE, 0x5A), QColor(0xC9, 0x9A, 0x3A), 90, 200, .06);
    m.s.oval({0, .05}, .1, .14, kelchgruen);
}

void gliederkaktus(Maler &m)
{
    for (const auto &[y, l] : {std::pair(.0, .8), std::pair(-.35, .85), std::pair(-.7, .9)})
        for (const double g : {-150.0, -30.0, -122.0, -58.0})
            m.s.stempel(blatt(.2, Spitze::Spitz, heller(m.f, 0.5), m.f, m.fein), {0, y}, g, l);
    m.s.stempel(blatt(.22, Spitze::Spitz, heller(m.f, 0.4), m.rand(), m.fein), {0, -.6}, -90, .9);
    QPainterPath griffel(QPointF(0, -.8));
    griffel.lineTo(0, -1.75);
    m.s.linie(griffel, dunkler(m.f, 0.25), 2);
    for (const double x : {-.14, -.07, .07, .14})
        m.s.kreis({x, -1.58 + std::abs(x)}, .045, QColor(0xF7, 0xEF, 0xC8));
}

void ohneForm(Maler &) {}
void nurKolben(Maler &m) { kolben(m, {0, 0}, 90, 1.9, .12, gemischt(m.f, QColor(0xD8, 0xD8, 0x9A), 0.5)); }

using Formel = void (*)(Maler &);
constexpr Formel formeln[] = {
    ohneForm, rad, radMitAuge, kerbrad, stern, lilie, kreuz, hibiskus, trichter, korb, gefuellt, rose, begonie, veilchen, falter, cattleya, cymbidie, tanzpuppe,
    frauenschuh, trompete, faecher, lobelie, pelargonie, hochblattstern, christusdorn, drilling, glockenstern, passionsblume, strahlen, wachsblume, springkraut,
    laterne, glocke, fuchsie, pantoffel, heideglocke,
    alpenveilchen, spatha, fahne, kalla, paradiesvogel, roehre, flammenlilie, gliederkaktus, nurKolben,
};
static_assert(std::size(formeln) == size_t(Bluete::Kolben) + 1);

void beere(Stempel &s, const QColor &f)
{
    s.verlauf(ellipse({0, 0}, 1, 1), heller(f, 0.3), dunkler(f, 0.22), {-.6, -.7}, {.6, .8});
    s.oval({-.35, -.38}, .22, .16, durchsichtig(Qt::white, 0.75), 0);
    s.kreis({0, .95}, .1, dunkler(f, 0.6), 0);
}

void schote(Stempel &s, const QColor &f)
{
    s.verlauf(band({{0, 0}, {.1, -.6}, {.05, -1.3}, {.25, -2}}, [](double t) { return .5 * std::sqrt(std::max(0.0, 1 - t)) * (t < .08 ? .8 : 1); }), heller(f, 0.25), dunkler(f, 0.2), {-.5, 0}, {.6, 0});
    s.verlauf(band({{-.15, -.3}, {-.12, -.7}, {-.12, -1.0}, {-.02, -1.35}}, [](double) { return .05; }), durchsichtig(Qt::white, 0.7), durchsichtig(Qt::white, 0.2), {0, -.3}, {0, -1.3}, 0);
    s.oval({0, .02}, .34, .13, kelchgruen);
}

void zitrus(Stempel &s, const QColor &f)
{
    beere(s, f);
    for (int i = 0; i < 26; ++i)
        s.kreis(polar(137.5 * i, .85 * std::sqrt((i + .5) / 26)), .025, durchsichtig(dunkler(f, 0.3), 0.5), 0);
}

void ananas(Stempel &s, const QColor &f)
{
    for (const double g : {-150.0, -30.0, -130.0, -50.0, -112.0, -68.0, -90.0})
        s.stempel(blatt(.12, Spitze::Spitz, QColor(0x5C, 0x86, 0x4E), QColor(0x8F, 0xB3, 0x76), false), {0, -1.9}, g, 1.3);
    s.verlauf(ellipse({0, -1}, .85, 1.05), heller(f, 0.2), dunkler(f, 0.3), {-.6, -1.6}, {.7, -.2});
    for (int i = -4; i <= 4; ++i)
        for (const double d : {-1.0, 1.0}) {
            QPainterPath l(QPointF(std::clamp(.24 * i - d * .5, -.8, .8), -1.75));
            l.quadTo({.24 * i + .12 * i, -1}, {std::clamp(.24 * i + d * .5, -.8, .8), -.25});
            s.linie(l, durchsichtig(dunkler(f, 0.5), 0.55), 1.2);
        }
}

} // namespace

Stempel bluetenstempel(Bluete form, const Bluetenfarben &farben, bool fein)
{
    Maler m{{}, farben.haupt, farben.zweite, farben.gerandet, fein};
    formeln[size_t(form)](m);
    return m.s;
}

Bluetenmass bluetenmass(Bluete form)
{
    if (form == Bluete::Paradiesvogel)
        return {1.5, .3, 1.5};
    if (form == Bluete::Fuchsie)
        return {.1, 2.1, 1};
    if (form >= Bluete::Alpenveilchen)
        return {1.9, .3, 1.1};
    if (form >= Bluete::Laterne)
        return {.1, 1.6, .8};
    return {1, 1, 1};
}

std::vector<QColor> farbenDerBluete(const Datensatz &pflanze)
{
    std::vector<QColor> farben;
    for (const QString &wort : pflanze.worte(u"FARBEN"))
        if (const QColor f = bluetenfarbe(wort); f.isValid())
            farben.push_back(f);
    if (farben.empty())
        farben.push_back(bluetenfarbe(u"weiß"));
    return farben;
}

Stempel fruchtstempel(Frucht form, const QColor &f)
{
    Stempel s;
    switch (form) {
    case Frucht::Keine: break;
    case Frucht::Beere: beere(s, f); break;
    case Frucht::Schote: schote(s, f); break;
    case Frucht::Zitrus: zitrus(s, f); break;
    case Frucht::Ei:
        s.verlauf(ellipse({0, .9}, .75, 1), heller(f, 0.3), dunkler(f, 0.2), {-.5, .2}, {.5, 1.6});
        s.oval({-.25, .6}, .15, .22, durchsichtig(Qt::white, 0.6), 0);
        break;
    case Frucht::Ananas: ananas(s, f); break;
    }
    return s;
}
