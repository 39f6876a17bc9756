#include "Blatt.h"

#include <QTransform>

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>

namespace {

constexpr double pi = std::numbers::pi;
using Punkte = std::vector<QPointF>;

struct Knoten
{
    double x, y;
};

/// Half outlines from the stalk to the tip, in the order of the simple forms.
constexpr std::array<std::array<Knoten, 9>, size_t(Blattform::AnzahlEinfache)> umrisse{{
    {{{0, 0}, {.1, .095}, {.25, .18}, {.4, .228}, {.55, .232}, {.7, .19}, {.83, .115}, {.93, .042}, {1, 0}}},
    {{{0, 0}, {.03, .1}, {.1, .21}, {.22, .29}, {.38, .31}, {.56, .255}, {.75, .145}, {.9, .05}, {1, 0}}},
    {{{0, 0}, {.08, .04}, {.2, .085}, {.35, .115}, {.5, .112}, {.65, .085}, {.8, .047}, {.92, .016}, {1, 0}}},
    {{{0, 0}, {.05, .026}, {.2, .038}, {.4, .042}, {.6, .038}, {.75, .03}, {.87, .018}, {.95, .008}, {1, 0}}},
    {{{0, 0}, {-.08, .08}, {-.12, .2}, {-.05, .32}, {.12, .385}, {.34, .345}, {.6, .2}, {.84, .07}, {1, 0}}},
    {{{0, 0}, {-.1, .05}, {-.27, .15}, {-.36, .26}, {-.27, .3}, {-.02, .265}, {.34, .2}, {.72, .09}, {1, 0}}},
    {{{0, 0}, {.0, .12}, {.09, .3}, {.26, .43}, {.48, .47}, {.7, .41}, {.87, .28}, {.97, .12}, {1, 0}}},
    {{{0, 0}, {-.13, .08}, {-.24, .24}, {-.2, .44}, {.02, .57}, {.32, .58}, {.6, .46}, {.76, .24}, {.8, 0}}},
    {{{-.3, 0}, {-.27, .16}, {-.17, .32}, {0, .44}, {.2, .48}, {.42, .44}, {.6, .32}, {.7, .16}, {.73, 0}}},
    {{{0, 0}, {.12, .045}, {.3, .12}, {.48, .2}, {.65, .255}, {.8, .25}, {.91, .18}, {.98, .08}, {1, 0}}},
    {{{0, 0}, {.14, .055}, {.32, .105}, {.5, .17}, {.66, .22}, {.8, .225}, {.92, .165}, {.985, .075}, {1, 0}}},
    {{{0, 0}, {.02, .13}, {.1, .24}, {.22, .26}, {.36, .225}, {.52, .28}, {.72, .355}, {.92, .24}, {1, 0}}},
    {{{0, 0}, {.06, .07}, {.18, .125}, {.35, .15}, {.55, .158}, {.75, .148}, {.89, .105}, {.97, .05}, {1, 0}}},
    {{{0, 0}, {.05, .02}, {.2, .03}, {.4, .033}, {.6, .033}, {.75, .031}, {.87, .024}, {.96, .012}, {1, 0}}},
    {{{0, 0}, {.1, .055}, {.24, .15}, {.38, .245}, {.48, .262}, {.6, .2}, {.75, .105}, {.89, .035}, {1, 0}}},
    {{{0, 0}, {.12, .07}, {.34, .2}, {.55, .33}, {.74, .4}, {.88, .36}, {.97, .22}, {1, .1}, {1, 0}}},
}};

struct Randform
{
    double hoehe, wellen;
    bool spitz;
};
constexpr Randform randformen[] = {{0, 0, false}, {.022, 15, true}, {.02, 10, false}, {.024, 5, false}, {.10, 4.4, false}};

/// Half outline as a close polyline with its margin.
Punkte halberUmriss(const Blattart &art)
{
    const auto &knoten = umrisse[size_t(art.form)];
    Punkte ecken;
    for (const Knoten &k : knoten)
        ecken.emplace_back(k.x, k.y * art.breite);
    constexpr int schritte = 96;
    const QPainterPath linie = offen(ecken);
    const Randform &rand = randformen[size_t(art.rand)];
    Punkte punkte;
    for (int i = 0; i <= schritte; ++i) {
        const double t = double(i) / schritte;
        QPointF punkt = linie.pointAtPercent(t);
        const double phase = t * rand.wellen - std::floor(t * rand.wellen);
        const double hub = rand.spitz ? phase : rand.hoehe > 0.05 ? std::abs(std::sin(pi * t * rand.wellen)) - 0.75 : std::abs(std::sin(pi * t * rand.wellen));
        const double a = linie.angleAtPercent(t);
        punkt += polar(a - 90, rand.hoehe * hub * std::min(1.0, 7 * std::min(t, 1 - t)));
        punkte.emplace_back(punkt.x(), i == 0 || i == schritte ? 0 : std::max(0.004, punkt.y()));
    }
    return punkte;
}

QPainterPath spiegeln(const Punkte &halb, double oben = 1, double unten = 1)
{
    QPolygonF vieleck;
    for (const QPointF &q : halb)
        vieleck << QPointF(q.x(), -q.y() * oben);
    for (size_t i = halb.size() - 1; i-- > 1;)
        vieleck << QPointF(halb[i].x(), halb[i].y() * unten);
    QPainterPath pfad;
    pfad.addPolygon(vieleck);
    pfad.closeSubpath();
    return pfad;
}

double randAbstand(const Punkte &halb, double x)
{
    // The later part of an outline that runs backwards first is the outer one.
    for (size_t i = halb.size() - 1; i > 0; --i)
        if (halb[i - 1].x() <= x && x <= halb[i].x())
            return halb[i].y();
    return 0;
}

struct Lappen
{
    double grad, laenge;
};

struct Lappenform
{
    std::vector<Lappen> lappen; ///< from the middle to one side
    double bucht, bauch;
};

Lappenform lappenform(Blattform form)
{
    switch (form) {
    case Blattform::Ahorn: return {{{0, 1}, {50, .82}, {105, .5}}, .5, .2};
    case Blattform::Efeu: return {{{0, 1}, {62, .74}, {125, .46}}, .48, .22};
    case Blattform::Drilling: return {{{0, 1}, {110, .55}}, .3, .36};
    default: return {{{0, 1}, {34, .97}, {68, .88}, {104, .72}, {142, .5}}, .36, .13};
    }
}

QPainterPath gelappt(const Lappenform &form, double breite)
{
    std::vector<Lappen> alle;
    for (size_t i = form.lappen.size(); i-- > 1;)
        alle.push_back({-form.lappen[i].grad, form.lappen[i].laenge});
    alle.insert(alle.end(), form.lappen.begin(), form.lappen.end());
    QPainterPath pfad(QPointF(0.02, 0));
    for (size_t i = 0; i < alle.size(); ++i) {
        const auto [grad, laenge] = alle[i];
        const double halb = i + 1 < alle.size() ? (alle[i + 1].grad - grad) / 2 : 30;
        const double vor = i ? (grad - alle[i - 1].grad) / 2 : 30;
        const auto punkt = [&](double g, double r) { const QPointF q = polar(g, r); return QPointF(q.x(), q.y() * breite); };
        const double bauch = form.bauch * 180 / pi;
        const QPointF spitze = punkt(grad, laenge);
        const double buchtradius = i + 1 < alle.size() ? form.bucht * (laenge + alle[i + 1].laenge) / 2 : 0.02;
        pfad.cubicTo(punkt(grad - std::min(vor, bauch), laenge * 0.62), punkt(grad - bauch * 0.4, laenge * 0.86), spitze);
        pfad.cubicTo(punkt(grad + bauch * 0.4, laenge * 0.86), punkt(grad + std::min(halb, bauch), laenge * 0.62), punkt(grad + halb, buchtradius));
    }
    pfad.closeSubpath();
    return pfad;
}

/// Simple leaf in the making.
struct Rohling
{
    const Blattart &art;
    const Laub &laub;
    Zufall &zufall;
    bool fein;
    Punkte halb;
    QPainterPath umriss;
    Stempel stempel;

    double oben() const { return art.schief ? 1.25 : 1; }
    double unten() const { return art.schief ? 0.72 : 1; }
};

void grundieren(Rohling &r, const QColor &f)
{
    r.stempel.verlauf(r.umriss, dunkler(f, 0.16), heller(f, 0.10), {0, 0}, {1, 0}, 1);
    QPainterPath haelfte;
    if (r.halb.empty()) {
        QPainterPath unten;
        unten.addRect(-1, 0, 3, 2);
        haelfte = r.umriss.intersected(unten);
    } else {
        QPolygonF v;
        for (const QPointF &q : r.halb)
            v << QPointF(q.x(), q.y() * r.unten());
        haelfte.addPolygon(v);
    }
    r.stempel.flaeche(haelfte, durchsichtig(QColor(20, 40, 45), 0.12), 0);
}

/// Dark horseshoe of a zonal leaf.
void zone(Rohling &r)
{
    const auto ring = [&](double k) { return QTransform::fromScale(k, k).map(r.umriss); };
    r.stempel.flaeche(ring(0.74).subtracted(ring(0.5)), durchsichtig(QColor(0x5C, 0x2E, 0x2A), 0.5), 0);
}

void flecken(Rohling &r)
{
    if (r.art.form == Blattform::Niere)
        return zone(r);
    for (int i = 0; i < (r.fein ? 70 : 34); ++i) {
        const double x = r.zufall.zwischen(0.02, 0.95), y = r.zufall.streuung(0.5), g = r.zufall.zwischen(0.012, 0.042);
        const double ry = g * r.zufall.zwischen(0.5, 1);
        if (r.umriss.contains(QRectF(x - g, y - ry, 2 * g, 2 * ry)))
            r.stempel.oval({x, y}, g, ry, durchsichtig(r.laub.zweite, 0.9), 0);
    }
}

void streifen(Rohling &r)
{
    const int paare = 6;
    for (int i = 0; i < paare; ++i) {
        const double x = 0.06 + 0.8 * i / paare, ziel = std::min(0.97, x + 0.16);
        for (const double seite : {-r.oben(), r.unten()}) {
            const double y = randAbstand(r.halb, ziel) * seite * 0.86;
            QPainterPath s(QPointF(x, 0));
            s.quadTo({x + 0.075, y * 0.42}, {ziel, y});
            s.quadTo({x + 0.13, y * 0.4}, {x + 0.075, 0});
            s.closeSubpath();
            r.stempel.flaeche(s, durchsichtig(r.laub.zweite, 0.85), 0);
        }
    }
}

void hellerRand(Rohling &r)
{
    if (r.halb.empty())
        return;
    QPolygonF innen;
    const auto faktor = [&](double t) { return 0.62 + 0.10 * std::sin(19 * t) + r.zufall.streuung(0.05); };
    const size_t n = r.halb.size();
    for (size_t i = 0; i < n; i += 3)
        innen << QPointF(0.03 + r.halb[i].x() * 0.9, -r.halb[i].y() * r.oben() * faktor(double(i) / double(n)));
    for (size_t i = n - 1; i > 2; i -= 3)
        innen << QPointF(0.03 + r.halb[i].x() * 0.9, r.halb[i].y() * r.unten() * faktor(1 - double(i) / double(n)));
    QPainterPath pfad;
    pfad.addPolygon(innen);
    r.stempel.flaeche(pfad, r.laub.grund, 0);
}

void adernFieder(Rohling &r, const QColor &f, double staerke)
{
    const int paare = r.fein ? 9 : 5;
    for (int i = 0; i < paare; ++i) {
        const double x = 0.05 + 0.8 * i / paare, ziel = std::min(0.96, x + 0.14);
        for (const double seite : {-r.oben(), r.unten()}) {
            QPainterPath s(QPointF(x, 0));
            const double y = randAbstand(r.halb, ziel) * seite * 0.9;
            s.quadTo({x + 0.06, y * 0.55}, {ziel, y});
            r.stempel.linie(s, f, staerke);
        }
    }
}

void adernHand(Rohling &r, const QColor &f, double staerke)
{
    for (const double grad : {32.0, 68.0, 112.0, -32.0, -68.0, -112.0}) {
        double weite = 0.05;
        while (weite < 1 && r.umriss.contains(polar(grad, weite + 0.05)))
            weite += 0.03;
        QPainterPath s(QPointF(0, 0));
        s.quadTo(polar(grad * 1.12, weite * 0.5), polar(grad, weite));
        r.stempel.linie(s, f, staerke);
    }
}

void adernBogen(Rohling &r, const QColor &f, double staerke)
{
    for (const double anteil : {0.38, 0.72}) {
        for (const double seite : {-r.oben(), r.unten()}) {
            QPolygonF linie;
            for (size_t i = 0; i < r.halb.size(); i += 4)
                linie << QPointF(r.halb[i].x() * 0.97, r.halb[i].y() * anteil * seite);
            QPainterPath s;
            s.addPolygon(linie);
            r.stempel.linie(s, f, staerke);
        }
    }
}

void adern(Rohling &r, Muster muster)
{
    const bool auffaellig = muster == Muster::Adern;
    const QColor f = auffaellig ? r.laub.zweite : durchsichtig(heller(r.laub.grund, 0.45), 0.75);
    const double staerke = auffaellig ? 2.2 : 0.9;
    if (r.art.adern == Adern::Keine)
        return;
    QPainterPath mitte(QPointF(0, 0));
    mitte.lineTo((r.halb.empty() ? 1 : r.halb.back().x()) * 0.96, 0);
    r.stempel.linie(mitte, f, staerke * 1.5);
    if (r.art.adern == Adern::Fieder && !r.halb.empty())
        adernFieder(r, f, staerke);
    if (r.art.adern == Adern::Bogen && !r.halb.empty())
        adernBogen(r, f, staerke);
    if (r.art.adern == Adern::Hand)
        adernHand(r, f, staerke);
}

/// Slits from the margin and holes beside the midrib.
QPainterPath durchbrochen(QPainterPath umriss)
{
    for (const double seite : {-1.0, 1.0})
        for (int i = 0; i < 5; ++i) {
            const double x = 0.02 + 0.15 * i;
            QPainterPath schlitz(QPointF(x + 0.015, 0.11 * seite));
            schlitz.quadTo({x + 0.05, 0.2 * seite}, {x + 0.15, 0.55 * seite});
            schlitz.lineTo(x + 0.21, 0.55 * seite);
            schlitz.quadTo({x + 0.09, 0.22 * seite}, {x + 0.015, 0.11 * seite});
            umriss = umriss.subtracted(schlitz);
            if (i < 4)
                umriss = umriss.subtracted(ellipse({x + 0.12, 0.075 * seite}, 0.025, 0.014));
        }
    return umriss;
}

Stempel einfach(const Blattart &art, const Laub &laub, Muster muster, Zufall &zufall, bool fein)
{
    Rohling r{art, laub, zufall, fein, {}, {}, {}};
    if (art.form < Blattform::AnzahlEinfache || art.form == Blattform::Fenster) {
        const Blattart form = art.form == Blattform::Fenster ? Blattart{Blattform::Herz, Rand::Glatt, art.adern, 1.08} : art;
        r.halb = halberUmriss(form);
        r.umriss = spiegeln(r.halb, r.oben(), r.unten());
        if (art.form == Blattform::Fenster)
            r.umriss = durchbrochen(r.umriss);
    } else {
        r.umriss = gelappt(lappenform(art.form), art.breite);
    }
    Laub getoent = laub;
    if (muster == Muster::Adern && art.adern == Adern::Keine) // a bloom on the whole leaf
        getoent.grund = gemischt(laub.grund, laub.zweite, 0.5);
    const bool randmuster = muster == Muster::Rand && !r.halb.empty() && art.form != Blattform::Fenster;
    grundieren(r, randmuster || muster == Muster::Rand ? (randmuster ? laub.zweite : gemischt(laub.grund, laub.zweite, 0.2)) : getoent.grund);
    if (randmuster)
        hellerRand(r);
    if (muster == Muster::Streifen && !r.halb.empty())
        streifen(r);
    if (muster == Muster::Flecken || (muster == Muster::Rand && !randmuster))
        flecken(r);
    adern(r, muster);
    return r.stempel;
}

void blattspindel(Stempel &s, double bis, const QColor &f)
{
    QPainterPath linie(QPointF(0, 0));
    linie.lineTo(bis, 0);
    s.linie(linie, dunkler(f, 0.2), 2);
}

Stempel gefiedert(const Stempel &blaettchen, int paare, double laenge, const QColor &f)
{
    Stempel s;
    for (int i = 0; i < paare; ++i) {
        const double x = 0.14 + 0.6 * i / std::max(1, paare - 1);
        for (const double seite : {-1.0, 1.0})
            s.stempel(blaettchen, {x, 0}, seite * 62, laenge * (1 - 0.25 * std::abs(i - 0.4 * paare) / paare));
    }
    s.stempel(blaettchen, {0.74, 0}, 0, std::min(0.3, laenge));
    blattspindel(s, 0.76, f);
    return s;
}

Stempel gefingert(const Stempel &blaettchen)
{
    Stempel s;
    for (const double grad : {-118.0, 118.0, -76.0, 76.0, -38.0, 38.0, 0.0})
        s.stempel(blaettchen, {0.1, 0}, grad, std::abs(grad) > 100 ? 0.48 : 0.74);
    s.kreis({0.1, 0}, 0.018, farbe::stiel, 0.5);
    return s;
}

} // namespace

Stempel blattstempel(const Blattart &art, const Laub &laub, Muster muster, Zufall zufall, bool fein)
{
    if (art.form != Blattform::Gefingert && art.form != Blattform::Gefiedert && art.form != Blattform::Doppelfieder)
        return einfach(art, laub, muster, zufall, fein);
    Blattart teil = art;
    teil.form = art.form == Blattform::Gefingert ? Blattform::Verkehrtei : Blattform::Elliptisch;
    const Stempel blaettchen = einfach(teil, laub, muster, zufall, fein);
    if (art.form == Blattform::Gefingert)
        return gefingert(blaettchen);
    if (art.form == Blattform::Gefiedert)
        return gefiedert(blaettchen, art.breite < 0.8 ? 6 : 3, art.breite < 0.8 ? 0.3 : 0.34, laub.grund);
    return gefiedert(gefiedert(blaettchen, 2, 0.42, laub.grund), 3, 0.42, laub.grund);
}

void bandblatt(QPainter &p, const Kurve &k, const Bandblatt &form, const QColor &grund, const QColor &zweite, double ton)
{
    const double laenge = k.laenge();
    const auto halb = [&](double t) {
        const double unten = form.grund + (1 - form.grund) * std::sin(std::min(1.0, t / 0.45) * pi / 2);
        const double oben = t < form.spitze ? 1 : std::sqrt(std::max(0.0, 1 - std::pow((t - form.spitze) / (1 - form.spitze), 2)));
        return form.breite / 2 * unten * oben * (form.gewellt ? 1 + 0.12 * std::sin(t * laenge / form.breite * 4) : 1);
    };
    const QColor f = ton < 0 ? dunkler(grund, -ton) : heller(grund, ton);
    const QColor z = ton < 0 ? dunkler(zweite, -ton) : heller(zweite, ton);
    const int schritte = form.gewellt ? 44 : 18;
    QLinearGradient verlauf(k.a, k.d);
    verlauf.setColorAt(0, dunkler(f, 0.22));
    verlauf.setColorAt(1, heller(f, 0.12));
    p.setPen(QPen(umriss(f), 1));
    p.setBrush(form.muster == Bandmuster::Rand ? QBrush(z) : QBrush(verlauf));
    p.drawPath(band(k, halb, 0, 1, schritte));
    p.setPen(Qt::NoPen);
    if (form.muster == Bandmuster::Rand || form.muster == Bandmuster::Laengs) {
        p.setBrush(form.muster == Bandmuster::Rand ? QBrush(verlauf) : QBrush(durchsichtig(z, 0.9)));
        p.drawPath(band(k, [&](double t) { return halb(t) * (form.muster == Bandmuster::Rand ? 0.58 : 0.34); }, 0, 0.97, schritte));
    }
    if (form.muster == Bandmuster::Quer) {
        p.setBrush(durchsichtig(z, 0.7));
        const int binden = std::clamp(int(laenge / std::max(8.0, form.breite * 0.55)), 4, 16);
        for (int i = 1; i < binden; ++i)
            p.drawPath(band(k, [&](double t) { return halb(t) * 0.97; }, (i + 0.05) / binden, (i + 0.42 + 0.12 * (i % 3)) / binden, 3));
    }
    if (form.muster == Bandmuster::Flecken) {
        p.setBrush(durchsichtig(z, 0.6));
        for (int i = 1; i < 46; ++i) {
            const double t = 0.04 + 0.9 * (i * 0.618034 - std::floor(i * 0.618034)), quer = 1.5 * (i * 0.414214 - std::floor(i * 0.414214)) - 0.75;
            p.drawEllipse(k.punkt(t) + polar(k.winkel(t) + 90, quer * halb(t)), halb(t) * 0.12, halb(t) * 0.09);
        }
    }
    p.setBrush(QColor(255, 255, 240, 38));
    p.drawPath(band(k, [&](double t) { return halb(t) * 0.22; }, 0.02, 0.95, schritte));
    if (!form.stachlig)
        return;
    p.setBrush(heller(f, 0.55));
    for (double t = 0.08; t < 0.92; t += std::max(0.03, 15 / laenge))
        for (const int seite : {-90, 90}) {
            const QPointF rand = k.punkt(t) + polar(k.winkel(t) + seite, halb(t) - 1);
            const QPointF vor = polar(k.winkel(t), 4.5);
            p.drawPolygon(QPolygonF({rand - vor, rand + vor, rand + vor + polar(k.winkel(t) + seite, 5.5)}));
        }
}

void wedel(QPainter &p, const Kurve &k, const Wedel &form, const Stempel &fieder, const QColor &stielfarbe, double ton)
{
    const double laenge = k.laenge();
    for (int i = 0; i < form.paare; ++i) {
        const double anteil = double(i) / (form.paare - 1), t = form.kahl + (0.985 - form.kahl) * anteil;
        const double fern = anteil < form.gipfel ? (form.gipfel - anteil) / form.gipfel * 0.45 : (anteil - form.gipfel) / (1 - form.gipfel);
        const double l = laenge * form.fiederlaenge * (1.03 - std::pow(fern, 1.7) * 0.86);
        for (const int seite : {-1, 1})
            fieder.zeichnen(p, k.punkt(t), -(k.winkel(t) + seite * (form.winkel - 18 * anteil)), l, form.fiederbreite, ton + seite * 0.05);
    }
    stiel(p, k, std::max(2.0, laenge * 0.012), 1, stielfarbe);
}
