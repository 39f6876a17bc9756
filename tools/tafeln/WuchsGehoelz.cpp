#include "Pflanzenbild.h"

#include "Farben.h"

#include <algorithm>
#include <cmath>

/* Habits of woody plants, in leaf and in winter. */

namespace {

/// Outline of a crown: half width at a height, both from 0 to 1, and how its branches lie.
struct Kronenform
{
    QStringView wort;
    double unten, bauch, oben; ///< half width at the foot, at the height of the belly, at the top
    double bauchhoehe;
    double steigung; ///< of the branches, degrees above the horizontal
    double neigung;  ///< how far they bend down on their way (negative: up)
    double stamm;    ///< part of the height that is bare below
};
constexpr Kronenform kronen[] = {
    {u"rund", 0.45, 1, 0.35, 0.5, 42, 12, 0.24},     {u"oval", 0.4, 1, 0.2, 0.42, 52, 6, 0.2},      {u"kegel", 0.9, 1, 0.03, 0.1, 22, 14, 0.1},
    {u"saeule", 0.7, 1, 0.3, 0.35, 74, -6, 0.08},    {u"schirm", 0.3, 1, 0.75, 0.78, 34, 22, 0.42}, {u"breit", 0.6, 1, 0.3, 0.4, 28, 8, 0.2},
    {u"haengend", 0.8, 1, 0.3, 0.45, 48, 118, 0.24}, {u"vase", 0.2, 1, 0.7, 0.85, 62, -4, 0.12},    {u"bizarr", 0.5, 1, 0.5, 0.6, 36, 30, 0.22},
    {u"etagen", 0.9, 1, 0.06, 0.12, 6, 4, 0.12},     {u"kugel", 0.55, 1, 0.4, 0.62, 44, 6, 0.5},    {u"flach", 1, 1, 0.8, 0.3, 14, 6, 0.02}};

const Kronenform &krone(const Steckbrief &s)
{
    const auto *k = std::ranges::find(kronen, QStringView(s.krone), &Kronenform::wort);
    return k == std::end(kronen) ? kronen[0] : *k;
}

double weite(const Kronenform &k, double t)
{
    const double u = t < k.bauchhoehe ? (k.bauchhoehe - t) / k.bauchhoehe : (t - k.bauchhoehe) / (1 - k.bauchhoehe);
    const double rand = t < k.bauchhoehe ? k.unten : k.oben;
    const bool gerade = t > k.bauchhoehe && (k.wort == u"kegel" || k.wort == u"etagen");
    return rand + (k.bauch - rand) * (gerade ? 1 - std::pow(u, 1.15) : std::sqrt(std::max(0.0, 1 - u * u)));
}

/// Twigs on both sides of a branch, down to the last order.
void verzweigen(Pflanzenbild &b, Geruest &g, const Kurve &k, double dick, int ordnung, int letzte, double neigung)
{
    g.aeste.push_back({k, dick, dick * 0.42, ordnung});
    const double laenge = k.laenge();
    if (ordnung >= letzte || laenge < 14) {
        for (const double t : {0.55, 0.8, 1.0})
            g.spitzen.push_back({k.punkt(t), k.winkel(t)});
        return;
    }
    const int n = std::clamp(int(laenge / 32), 2, 5);
    for (int i = 0; i <= n; ++i) {
        const double t = 0.3 + 0.7 * i / n;
        const double ab = i == n ? b.zufall.streuung(8) : (i % 2 ? 1 : -1) * b.zufall.zwischen(26, 52);
        const double kurz = laenge * (i == n ? 0.34 : 0.5 * (1.15 - t * 0.55)) * b.zufall.zwischen(0.75, 1.1);
        verzweigen(b, g, Kurve::bogen(k.punkt(t), k.winkel(t) + ab, kurz, neigung * 0.7), std::max(0.9, dick * 0.5 * (1.1 - 0.5 * t)), ordnung + 1,
                   letzte, neigung);
    }
}

Geruest baumgeruest(Pflanzenbild &b, double stammanteil)
{
    Geruest g;
    const Kronenform &form = krone(b.s);
    const double h = b.hoehe(), halb = b.halb(), unten = h * stammanteil;
    const double dick = std::clamp(h * 0.045, 5.0, 34.0);
    const double schief = form.wort == u"bizarr" ? 14 : 2;
    const Kurve stamm = Kurve::bogen({0, 0}, 90 + b.zufall.streuung(schief), h * 0.93, schief);
    g.aeste.push_back({stamm, dick, dick * 0.12, 0});
    const int n = std::clamp(int(9 + 5 * h / (halb + 1)), 11, 20);
    for (int i = 0; i < n; ++i) {
        const double t = double(i) / (n - 1), y = (unten + (h - unten) * (0.02 + 0.86 * t)) / (h * 0.93);
        const int seite = i % 2 ? 1 : -1;
        const QPointF fuss = stamm.punkt(std::min(0.97, y));
        const double steig = form.steigung + (84 - form.steigung) * t * t + b.zufall.streuung(7);
        // The outline of the crown is met where the branch ends.
        const double laenge = std::max(h * 0.05, halb * weite(form, std::min(1.0, t + 0.12)) / std::max(0.45, std::cos(steig * 0.0174533)) * 0.72);
        // A crown is a dome: no branch reaches above it.
        const double draussen = std::min(1.0, laenge * std::cos(steig * 0.0174533) / halb);
        const double kuppel = std::lerp(unten + (h - unten) * form.bauchhoehe, h * 0.96, std::sqrt(1 - draussen * draussen));
        const double hoechstens = std::max(h * 0.05, (kuppel + fuss.y()) / std::sin(steig * 0.0174533) * 0.9);
        verzweigen(b, g, Kurve::bogen(fuss, seite > 0 ? steig : 180 - steig, std::min({laenge, hoechstens, (h - unten) * 0.62}), form.neigung),
                   dick * 0.42 * (1 - 0.6 * t), 1, 3, form.neigung);
    }
    return g;
}

Geruest strauchgeruest(Pflanzenbild &b)
{
    Geruest g;
    const Kronenform &form = krone(b.s);
    const double h = b.hoehe(), halb = b.halb();
    const int n = std::clamp(int(7 + 2 * b.s.breite), 7, 13);
    for (const double seite : reihe(n)) {
        const double oben = form.wort == u"flach" ? 0.75 : 1 - 0.3 * seite * seite;
        const QPointF fuss(seite * halb * 0.12, 0), ziel(seite * halb * 0.86, -h * oben * 0.86);
        const double laenge = std::hypot(ziel.x() - fuss.x(), ziel.y() - fuss.y()) * 0.86;
        const double grad = QLineF(fuss, ziel).angle() + (form.neigung > 60 ? -seite * -22 : seite * 6);
        verzweigen(b, g, Kurve::bogen(fuss, grad > 200 ? grad - 360 : grad, laenge, std::abs(seite) * form.neigung * 0.6),
                   std::clamp(h * 0.022, 2.4, 9.0), 1, 3, form.neigung * 0.3);
    }
    return g;
}

QColor holzfarbe(const Steckbrief &s)
{
    return gemischt(s.rindenfarbe, QColor(0x7E, 0x70, 0x60), 0.45);
}

void geruestMalen(Pflanzenbild &b, const Geruest &g, const QColor &holz)
{
    for (const auto &ast : g.aeste)
        b.trieb(ast.kurve, ast.unten, std::max(0.8, ast.oben), ast.ordnung > 2 ? gemischt(holz, QColor(0x7A, 0x5A, 0x44), 0.4) : holz,
                -0.2 - 0.1 * (3 - ast.ordnung));
}

/// Marks of the bark on the trunk.
void rindeMalen(Pflanzenbild &b, const Kurve &stamm, double dick, double bis)
{
    const QString art = b.s.rinde;
    if (art == u"glatt" || dick < 8)
        return;
    const QColor strich = art == u"weiss" ? QColor(0x38, 0x32, 0x2E) : dunkler(b.s.rindenfarbe, 0.45);
    for (int i = 0; i < 16; ++i) {
        const double t = bis * b.zufall.zahl();
        const QPointF ort = stamm.punkt(t) + QPointF(b.zufall.streuung(dick * 0.26) * (1 - t * 0.5), 0);
        const bool quer = art == u"weiss" || art == u"ringelig";
        QPainterPath p(ort);
        p.lineTo(ort + (quer ? QPointF(b.zufall.zwischen(1, dick * 0.16), 0) : QPointF(b.zufall.streuung(1.5), b.zufall.zwischen(5, 14))));
        b.linie(p, QPen(strich, 1.3), -0.15);
    }
}

/// Places of leaves: at the tips, along the twigs and between them, for a crown has a front.
std::vector<Geruest::Spitze> blattorte(Pflanzenbild &b, const Geruest &g)
{
    std::vector<Geruest::Spitze> orte = g.spitzen;
    for (const auto &ast : g.aeste)
        for (const double t : {0.4, 0.7})
            if (ast.ordnung > 0)
                orte.push_back({ast.kurve.punkt(t), ast.kurve.winkel(t) + b.zufall.streuung(50)});
    const size_t n = g.spitzen.size();
    for (size_t i = 0; i < n; ++i) {
        const auto &[hier, grad] = g.spitzen[i];
        for (int versuch = 0; versuch < 4; ++versuch)
            if (const QPointF dort = g.spitzen[size_t(b.zufall.ganz(int(n)))].ort; std::abs(hier.y() - dort.y()) < b.hoehe() * 0.12)
                orte.push_back({hier + (dort - hier) * b.zufall.zahl(), grad});
    }
    return orte;
}

/// Leaves over darker ones, lit from the upper left; flowers and fruits among them, evenly spread.
void belauben(Pflanzenbild &b, const Geruest &g)
{
    if (g.spitzen.empty())
        return;
    // Narrow leaves cover less: they are more, larger and a little broader than true.
    const double h = b.hoehe(), schmal = std::clamp(0.36 / b.schlank(), 1.0, 2.4);
    const double blade = std::clamp(b.blattlaenge(), std::max(12.0, h * 0.024) * std::sqrt(schmal), h * 0.3);
    const bool haengt = krone(b.s).neigung > 60;
    const auto orte = b.winter ? std::vector<Geruest::Spitze>() : blattorte(b, g);
    QRectF r;
    for (const auto &spitze : orte)
        r |= QRectF(spitze.ort - QPointF(1, 1), QSizeF(2, 2));
    const int soll = int(std::clamp(r.width() * r.height() / (blade * blade) * 5.2 * schmal, 70.0, 2600.0)), dunkel = soll / 3;
    for (int i = -dunkel; i < soll && !orte.empty(); ++i) {
        const auto &[ort, grad] = orte[size_t(b.zufall.ganz(int(orte.size())))];
        const QPointF hin = ort + polar(b.zufall.zwischen(0, 360), blade * b.zufall.zwischen(0, 0.6));
        const double licht = ((r.center().x() - hin.x()) / std::max(1.0, r.width()) + (r.center().y() - hin.y()) / std::max(1.0, r.height()));
        b.blatt(hin, grad + b.zufall.streuung(65) - (haengt ? 0 : 12), blade * b.zufall.zwischen(0.8, 1.1),
                i < 0 ? -0.9 : std::clamp(licht * 0.9 + b.zufall.streuung(0.35), -0.8, 0.95), b.zufall.zwischen(0.6, 1) * std::sqrt(schmal),
                i < 0 ? -1.1 : licht * 0.6 + b.zufall.streuung(0.16));
    }
    const auto verteilt = [&](int anzahl, auto &&setzen) {
        for (int i = 0; i < anzahl; ++i)
            setzen(g.spitzen[size_t((i + b.zufall.zahl()) * double(g.spitzen.size()) / anzahl)]);
    };
    verteilt(b.bluehtJetzt() ? b.zahl(b.s.stand ? 42 : 60) : 0, [&](const Geruest::Spitze &spitze) {
        b.bluehe(spitze.ort, b.s.stand ? (haengt ? spitze.grad : 90 + (spitze.grad - 90) * 0.5) : 90, 1.2 + b.zufall.streuung(0.1), 0.9);
    });
    verteilt(b.s.zeigtFruechte() ? b.zahl(46) : 0, [&](const Geruest::Spitze &spitze) { b.frucht(spitze.ort, 1.05); });
}

void baum(Pflanzenbild &b)
{
    const double bloss = b.s.ist(u"obstbaum") ? 0.3 : krone(b.s).stamm;
    const Geruest g = baumgeruest(b, bloss);
    geruestMalen(b, g, holzfarbe(b.s));
    rindeMalen(b, g.aeste.front().kurve, g.aeste.front().unten, std::max(0.3, bloss));
    belauben(b, g);
}

void strauch(Pflanzenbild &b)
{
    const Geruest g = strauchgeruest(b);
    geruestMalen(b, g, holzfarbe(b.s));
    belauben(b, g);
}

/// Twig with needles on both sides, or a spray of the leaf form.
void nadelzweig(Pflanzenbild &b, const Kurve &k, double dick, double nadel, double ebene)
{
    b.trieb(k, dick, std::max(0.9, dick * 0.4), gemischt(holzfarbe(b.s), QColor(0x6A, 0x58, 0x3C), 0.4), ebene - 0.05);
    if (b.winter)
        return;
    if (!b.bandartig() && b.blattlaenge() > 1)
        return b.beblaettern(k, 0.15, 1, nadel * 2.4, ebene, 0.42);
    const double laenge = k.laenge();
    const int n = std::clamp(int(laenge / 2.8), 7, 60);
    QPainterPath nadeln;
    for (int i = 0; i <= n; ++i) {
        const double t = 0.06 + 0.94 * i / n, grad = k.winkel(t);
        for (int seite : {-1, 1}) {
            nadeln.moveTo(k.punkt(t));
            nadeln.lineTo(k.punkt(t) + polar(grad + seite * b.zufall.zwischen(30, 62), nadel * b.zufall.zwischen(0.8, 1.1)));
        }
    }
    const QColor f = b.s.anstrich[Rolle::Blatt];
    const QColor ton = b.zufall.ganz(2) ? dunkler(f, 0.18 - 0.1 * ebene) : heller(f, 0.08 + 0.06 * ebene);
    b.linie(nadeln, QPen(ton, 1.8, Qt::SolidLine, Qt::RoundCap), ebene);
}

void nadelast(Pflanzenbild &b, const Kurve &k, double dick, double nadel, double ebene)
{
    nadelzweig(b, k, dick, nadel, ebene);
    const double laenge = k.laenge();
    const int n = std::clamp(int(laenge / 16), 2, 13);
    for (int i = 0; i < n; ++i) {
        const double t = 0.18 + 0.8 * i / n;
        const double ab = (i % 2 ? 1 : -1) * b.zufall.zwischen(34, 58);
        nadelzweig(b, Kurve::bogen(k.punkt(t), k.winkel(t) + ab, laenge * 0.34 * (1.25 - t), 14), std::max(0.9, dick * 0.4), nadel,
                   ebene + b.zufall.streuung(0.12));
    }
}

void nadelbaum(Pflanzenbild &b)
{
    const Kronenform &form = krone(b.s);
    const double h = b.hoehe(), halb = b.halb(), dick = std::clamp(h * 0.035, 4.0, 26.0);
    const Kurve stamm = Kurve::bogen({0, 0}, 90, h * 0.97, 1);
    b.trieb(stamm, dick, dick * 0.1, holzfarbe(b.s), -0.6);
    rindeMalen(b, stamm, dick, form.stamm + 0.1);
    // Old pines carry dense flat tufts on a long bare stem.
    const bool etagen = form.wort == u"etagen", schirm = form.wort == u"schirm";
    const int n = etagen ? 8 : schirm ? 12 : std::clamp(int(h / 22), 14, 34);
    const double kahl = form.stamm * (schirm ? 1.15 : 0.6);
    const double nadel = std::clamp(b.blattlaenge(5), std::max(5.0, h * (schirm ? 0.024 : 0.01)), 24.0);
    for (int i = 0; i < n; ++i) {
        const double t = double(i) / n, y = kahl + (1 - kahl) * t * 0.97;
        for (int j = 0; j < (etagen ? 5 : schirm ? 6 : 4); ++j) {
            const double steig = form.steigung + (schirm ? 16 : 46) * t * t - 8 + b.zufall.streuung(8);
            const double quer = j < 2 ? 1.0 : b.zufall.zwischen(0.35, 0.8);
            // The outline is met where the branch ends; those at the top of a cone are short, however steep.
            const double schraeg = std::lerp(std::max(0.4, std::cos(steig * 0.0174533)), 1.0, form.oben < 0.1 ? t : 0);
            const double laenge = std::max(h * 0.025, halb * weite(form, std::min(1.0, y + 0.04)) * quer / schraeg);
            // Branches in front cross the trunk and hide it.
            const QPointF vorn(j < 2 || (schirm && t < 0.25) ? 0 : dick * (j % 2 ? -0.7 : 0.7), 0);
            const QPointF fuss = stamm.punkt(std::min(0.98, y + (etagen ? 0 : b.zufall.streuung(0.015)))) + vorn;
            const double grad = j % 2 ? steig : 180 - steig;
            nadelast(b, Kurve::bogen(fuss, grad, laenge, form.neigung), std::max(1.0, dick * 0.22 * (1 - t)), nadel, j < 2 ? -0.2 : 0.3);
        }
    }
    const double wipfel = schirm ? 0.18 : 0.1;
    nadelast(b, Kurve::bogen(stamm.punkt(1.02 - wipfel), 90, h * wipfel, 1), 2, nadel, 0.35);
    for (int i = 0; b.s.zeigtFruechte() && i < b.zahl(14); ++i) {
        const double t = b.zufall.zwischen(std::max(0.3, kahl + 0.1), 0.92);
        b.frucht({b.zufall.streuung(halb * weite(form, t) * 0.8), -h * t}, 1.1);
    }
}

void nadelstrauch(Pflanzenbild &b)
{
    const double h = b.hoehe(), halb = b.halb(), nadel = std::clamp(b.blattlaenge(5), std::max(5.0, h * 0.034), 28.0);
    const bool flach = krone(b.s).wort == u"flach";
    // Row by row from behind to the front, each to the outline of half an ellipse.
    for (int i = 0; i < 51; ++i) {
        const double seite = -1 + (i % 17) / 8.0, ebene = -0.7 + 0.6 * (i / 17), grad = 90 - seite * (flach ? 82 : 66) + b.zufall.streuung(5);
        const double laenge = 1 / std::hypot(std::cos(grad * 0.01745) / halb, std::sin(grad * 0.01745) / h);
        nadelast(b, Kurve::bogen({seite * halb * 0.15, 0}, grad, laenge * (1 - 0.24 * (i / 17)) * b.zufall.zwischen(0.8, 0.98), flach ? 8 : -8), 3.5,
                 nadel, ebene + b.zufall.streuung(0.2));
    }
    for (int i = 0; b.s.zeigtFruechte() && i < b.zahl(14); ++i)
        b.frucht({b.zufall.streuung(halb * 0.7), -h * b.zufall.zwischen(0.2, 0.7)}, 1.1);
}

void geruestLatten(Pflanzenbild &b, double halb, double h)
{
    for (const double x : {-0.75, -0.25, 0.25, 0.75})
        b.trieb(Kurve::bogen({x * halb, 0}, 90, h, 0), 4, 4, heller(farbe::holz, 0.2), -2);
    for (int i = 1; i <= 4; ++i)
        b.trieb({{-halb * 0.85, -h * i / 4.4}, {-halb * 0.3, -h * i / 4.4}, {halb * 0.3, -h * i / 4.4}, {halb * 0.85, -h * i / 4.4}}, 3, 3,
                heller(farbe::holz, 0.35), -2.1);
}

/// Stems that wind up a trellis with short side shoots; a high one has a trunk and covers what it climbs.
void kletternd(Pflanzenbild &b)
{
    const double h = b.hoehe(), halb = std::max(b.halb(), h * 0.2);
    geruestLatten(b, halb, h);
    const bool holzig = b.s.verholzt() && !b.s.sammlung.imTopf;
    Geruest g;
    for (const double seite : reihe(6)) {
        QPointF ort(seite * halb * 0.18, 0);
        const double laenge = h * b.zufall.zwischen(0.82, 1.0) / 5;
        for (int stueck = 0; stueck < 5; ++stueck) {
            const double dick = std::max(1.8, (holzig ? h * 0.011 : 5.0) * (1 - 0.17 * stueck));
            const double richtung = 90 - seite * (stueck < 3 ? 26 : 4) + (stueck % 2 ? 11 : -11) + b.zufall.streuung(6);
            const Kurve k = Kurve::bogen(ort, richtung, laenge, 6);
            g.aeste.push_back({k, dick, dick * 0.85, 2});
            for (int j = stueck ? 0 : 2; j < 4; ++j) {
                const double t = 0.15 + 0.23 * j;
                const Kurve kurz =
                    Kurve::bogen(k.punkt(t), k.winkel(t) + (j % 2 ? 1 : -1) * b.zufall.zwischen(35, 75), laenge * (holzig ? 0.55 : 0.3), 30);
                g.aeste.push_back({kurz, dick * 0.4, 1, 3});
                g.spitzen.push_back({kurz.punkt(1), kurz.winkel(1)});
            }
            ort = k.punkt(1);
        }
    }
    geruestMalen(b, g, holzig ? holzfarbe(b.s) : b.stielfarbe());
    belauben(b, g);
}

void ruten(Pflanzenbild &b)
{
    const double h = b.hoehe();
    for (const double seite : reihe(7)) {
        const Kurve k = Kurve::bogen({seite * b.halb() * 0.35, 0}, 90 - seite * 9, h * b.zufall.zwischen(0.88, 1.05), 28 + 20 * std::abs(seite));
        b.trieb(k, 5, 2, holzfarbe(b.s), -0.3);
        if (b.winter)
            continue;
        const double blade = std::min(b.blattlaenge(14), h * 0.16);
        b.beblaettern(k, 0.25, 1, blade, b.zufall.streuung(0.5), 0.5);
        for (int j = 0; j < 6; ++j) {
            const double t = 0.5 + 0.09 * j, zur = k.winkel(t) + (j % 2 ? 70 : -70);
            const Kurve kurz = Kurve::bogen(k.punkt(t), zur, h * 0.06, 70);
            b.trieb(kurz, 1.8, 1.2, b.stielfarbe(), 1);
            b.frucht(kurz.punkt(1), 1.2);
        }
    }
}

// clang-format off
constexpr Wuchs gehoelzworte[] = {
    {u"baum", baum}, {u"obstbaum", baum}, {u"strauch", strauch}, {u"zwergstrauch", strauch}, {u"beerenstrauch", strauch},
    {u"nadelbaum", nadelbaum}, {u"nadelstrauch", nadelstrauch}, {u"kletternd", kletternd}, {u"rebe", kletternd}, {u"ruten", ruten}};
// clang-format on

} // namespace

const std::span<const Wuchs> wuchsGehoelz = gehoelzworte;
