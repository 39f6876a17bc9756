#include "Apfel.h"

#include "Farben.h"
#include "Kurve.h"
#include "Pfad.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace {

using std::numbers::pi;
const QColor kernhauslinie(0xB9, 0xA8, 0x62);

QPen stift(const QColor &f, double breite, Qt::PenStyle art = Qt::SolidLine)
{
    QPen s(f, breite, art, Qt::RoundCap, Qt::RoundJoin);
    s.setCosmetic(true);
    return s;
}

/// The parts of a cut, painted in units of the largest half width, up positive.
struct Schnitt
{
    QPainter &p;
    const Datensatz &sorte;
    const Apfelform &form;
    const Apfelhaut &haut;
    // clang-format off
    const std::vector<QColor> fleischtoene = wortfarben(sorte, u"fl_farbe", {{u"weißlich", 0xFFFCF7E8}, {u"gelblich", 0xFFF7E8B4},
                                                                             {u"grünlich", 0xFFECF0C8}}, 0xFFFCF7E8);
    const QColor fleischton = gemischt(fleischtoene.front(), fleischtoene.back(), 0.5);
    const QColor kernton = wortfarben(sorte, u"k_farbe", {{u"orangebraun", 0xFFB9652C}, {u"hellbraun", 0xFFB07B45}, {u"mittelbraun", 0xFF8A5530},
                                                          {u"dunkelbraun", 0xFF5E3722}, {u"schwarzbraun", 0xFF3C261C}}, 0xFF8A5530).front();
    const double mitte = (form.stielboden() + form.kelchboden()) / 2,
                 kernhausgroesse = mittel(sorte, u"kh_groesse", {{u"klein", 0.28}, {u"mittel", 0.35}, {u"groß", 0.43}}, 0.35),
                 kernlaenge = mittel(sorte, u"k_laenge", {{u"kurz (< 7 mm)", 0.15}, {u"mittel (7-9 mm)", 0.19}, {u"lang (> 9 mm)", 0.235}},
                                     mittel(sorte, u"k_farbe", {{u"klein", 0.15}, {u"mittel", 0.19}, {u"groß", 0.23}}, 0.19));
    // clang-format on

    QPointF rand(double phi, int seite) const
    {
        const QPointF m = form.meridian(std::clamp(phi, 1e-4, pi - 1e-4));
        const double x = seite * m.x();
        return {x, m.y() + form.schief * x * std::sin(phi)};
    }

    void fleisch(const QPainterPath &umrisslinie) const
    {
        const bool roetlich = sorte.hat(u"fl_farbe", u"rötlich/rötl. unter Schale");
        const QColor aussen = roetlich ? gemischt(fleischton, QColor(0xE4, 0x7E, 0x78), 0.65) : gemischt(fleischton, QColor(0xD9, 0xE0, 0x9A), 0.35);
        const QBrush g = verlauf(
            QRadialGradient(QPointF(0, 0), 1.12),
            {{0, gemischt(fleischton, QColor(0xE8, 0xE6, 0xB8), 0.35)}, {0.45, fleischton}, {roetlich ? 0.72 : 0.86, fleischton}, {1, aussen}});
        zeichnen(p, umrisslinie, Qt::NoPen, g);
    }

    void schale(const QPainterPath &umrisslinie, double radius) const
    {
        const double dicke = mittel(sorte, u"schale", {{u"dünn", 4}, {u"mittel", 6}, {u"derb", 9}}, 6) * radius / 320;
        constexpr int schritte = 60;
        for (const int seite : {-1, 1})
            for (int i = 0; i < schritte; ++i) {
                const double phi = pi * i / schritte;
                p.setPen(stift(QColor(haut.farbe(seite * pi / 2, std::cos(phi + pi / schritte / 2))), dicke));
                p.drawLine(rand(phi, seite), rand(phi + pi / schritte, seite));
            }
        zeichnen(p, umrisslinie, stift(durchsichtig(farbe::tinte, 0.5), 1), Qt::NoBrush);
    }

    void kern(QPointF spitze, double grad, bool taub) const
    {
        const double breite = kernlaenge * mittel(sorte, u"k_farbe", {{u"schmal", 0.42}, {u"breit", 0.68}, {u"rund", 0.72}, {u"spitz", 0.48}}, 0.55);
        const QColor f = taub ? heller(kernton, 0.35) : kernton;
        p.save();
        p.translate(spitze);
        p.rotate(grad);
        zeichnen(p, kontur(u"M0 0C.35-.28 .55-.62 .8-.45C1.06-.25 1.06 .25 .8 .45C.55 .62 .35 .28 0 0", kernlaenge, breite * (taub ? 0.4 : 1)),
                 stift(dunkler(f, 0.5), 1.2), f);
        p.setPen(stift(durchsichtig(heller(f, 0.6), 0.7), 2));
        p.drawLine(QPointF(kernlaenge * 0.35, breite * 0.1), QPointF(kernlaenge * 0.75, breite * 0.2));
        p.restore();
    }

    void kernhaus() const
    {
        const double oben = std::min(mitte + kernhausgroesse * 0.95, form.stielboden() - 0.08),
                     unten = std::max(mitte - kernhausgroesse * 0.95, form.kelchboden() + 0.1);
        // Line of the vascular bundles: from the stalk round the core to the calyx.
        const double weite = kernhausgroesse * 1.5;
        QPainterPath linie;
        for (const double seite : {1.0, -1.0}) {
            linie.moveTo(0, form.stielboden() - 0.02);
            linie.cubicTo({seite * weite * 0.5, oben + 0.1}, {seite * weite * 1.35, oben - 0.02}, {seite * weite, mitte - 0.02});
            linie.cubicTo({seite * weite * 0.75, unten}, {seite * weite * 0.25, unten}, {0, form.kelchboden() + 0.03});
        }
        zeichnen(p, linie, stift(QColor(0x9D, 0xAE, 0x5C), 2, Qt::DashLine), durchsichtig(QColor(0xE9, 0xE9, 0xB8), 0.4));
        p.setPen(stift(QColor(0xB5, 0xC0, 0x7A), 2.5));
        p.drawLine(QPointF(0, form.stielboden()), QPointF(0, oben));
        p.drawLine(QPointF(0, unten), QPointF(0, form.kelchboden()));
        const double achse = mittel(sorte, u"a_hoehle", {{u"geschlossen", 0.0}, {u"offen", 0.05}, {u"weit offen", 0.10}}, 0.02);
        const QPainterPath spindel = kontur(u"M0 1Q1.5 .5 0 0Q-1.5 .5 0 1", achse, oben - unten);
        zeichnen(p, spindel.translated(0, unten), stift(kernhauslinie, 1.6), dunkler(fleischton, 0.16));
        const bool taub = !sorte.hat(u"k_qualit", u"alle ausgebildet") && !sorte.worte(u"k_qualit").isEmpty();
        const double kammer = kernhausgroesse * mittel(sorte, u"k_kammern", {{u"eng", 0.52}, {u"weit", 0.78}}, 0.64), innen = 0.012 + achse * 0.72;
        const QPainterPath fach = kontur(u"M0 0C.9 .08 1.35 .45 .55 .85Q.3 1 0 1Q.12 .5 0 0", kammer, oben - unten - 0.08);
        for (const double seite : {1.0, -1.0}) {
            p.save();
            p.scale(seite, 1);
            zeichnen(p, fach.translated(innen, unten + 0.04), stift(kernhauslinie.darker(125), 2), heller(QColor(0xE4, 0xD2, 0x92), 0.25));
            kern({innen + kammer * 0.42, mitte + kernlaenge * 0.62}, -84, taub && seite < 0);
            if (sorte.hat(u"k_anzahl", u"> 7"))
                kern({innen + kammer * 0.2, mitte + kernlaenge * 0.5}, -92, false);
            p.restore();
        }
    }

    void kelch() const
    {
        const double hoehle =
            mittel(sorte, u"k_hoehle", {{u"klein", 0.045}, {u"mittel", 0.065}, {u"groß", 0.09}, {u"eng", 0.045}, {u"breit", 0.095}}, 0.065);
        const double tief = mittel(sorte, u"k_roehre", {{u"kurz", 0.1}, {u"mittel", 0.17}, {u"lang", 0.26}}, 0.13);
        const double breite = mittel(sorte, u"k_roehre", {{u"schmal", 0.014}, {u"mittelbreit", 0.024}, {u"breit", 0.036}}, 0.022);
        const double boden = form.kelchboden(), bisKernhaus = mitte - kernhausgroesse * 0.7;
        const double ende = sorte.hat(u"k_roehre", u"bis an Kernhaus reichend") ? bisKernhaus : std::min(boden + tief, bisKernhaus);
        QPainterPath trichter(QPointF(-hoehle, boden - 0.012));
        trichter.quadTo({-hoehle * 0.5, boden + hoehle * 0.9}, {-breite / 2, boden + hoehle});
        trichter.lineTo(-breite * 0.3, std::max(ende, boden + hoehle * 1.15));
        trichter.lineTo(breite * 0.3, std::max(ende, boden + hoehle * 1.15));
        trichter.lineTo(breite / 2, boden + hoehle);
        trichter.quadTo({hoehle * 0.5, boden + hoehle * 0.9}, {hoehle, boden - 0.012});
        zeichnen(p, trichter, stift(QColor(0x7A, 0x69, 0x3C), 1.4), QColor(0xC7, 0xB8, 0x7C));
        const double groesse = mittel(sorte, u"k_groesse", {{u"klein", 0.08}, {u"mittel", 0.11}, {u"groß", 0.15}}, 0.11);
        const double oeffnung = mittel(sorte, u"k_oeffnung", {{u"geschlossen", -22}, {u"halboffen", 8}, {u"offen", 34}}, 8);
        const QColor f = sorte.hat(u"k_blaetter", u"bräunlich") ? QColor(0x8D, 0x74, 0x4A) : QColor(0x86, 0x8F, 0x55);
        const QPainterPath blatt = kontur(u"M0-.22Q.7-.2 1 0Q.7 .2 0 .22Z", groesse, groesse);
        for (const double seite : {-1.0, 0.0, 1.0}) {
            p.save();
            p.translate(seite * hoehle * 0.85, boden - 0.005);
            p.rotate(-90 + seite * oeffnung);
            zeichnen(p, blatt, stift(umriss(f), 1.2), seite == 0 ? dunkler(f, 0.15) : f);
            p.restore();
        }
    }
};

} // namespace

void apfelschnittMalen(QPainter &p, QPointF mitte, double radius, const Datensatz &sorte, const Apfelform &form, const Apfelhaut &haut)
{
    const Schnitt schnitt{p, sorte, form, haut};
    constexpr int schritte = 90;
    QPolygonF rand;
    for (const int seite : {1, -1})
        for (int i = 0; i <= schritte; ++i)
            rand << schnitt.rand(pi * (seite > 0 ? i : schritte - i) / schritte, seite);
    QPainterPath umrisslinie;
    umrisslinie.addPolygon(rand);
    umrisslinie.closeSubpath();
    p.save();
    p.translate(mitte);
    p.scale(radius, -radius);
    schnitt.fleisch(umrisslinie);
    schnitt.kernhaus();
    schnitt.kelch();
    schnitt.schale(umrisslinie, radius);
    p.restore();
    apfelstielMalen(p, mitte - QPointF(0, form.stielboden() * radius - 4), radius / (form.durchmesser / 2), 0, sorte);
}

void apfelstielMalen(QPainter &p, QPointF fuss, double pixelJeCm, double neigung, const Datensatz &s)
{
    const double laenge = pixelJeCm * mittel(s, u"st_laenge", {{u"kurz", 1.1}, {u"mittellang", 2.0}, {u"lang", 3.1}}, 1.9);
    const double dicke = pixelJeCm * mittel(s, u"st_laenge", {{u"dünn", 0.17}, {u"mitteldick", 0.27}, {u"dick", 0.42}}, 0.25);
    const bool knopfig = s.hat(u"st_besond", u"knopfig") || s.hat(u"st_besond", u"knospig");
    const QColor f = wortfarben(s, u"st_besond", {{u"grün", 0xFF7E8C4A}, {u"rotbraun", 0xFF844A34}}, 0xFF7D5C3C).front();
    const QPointF oben = fuss + polar(82 - neigung * 0.3, laenge);
    stiel(p, {fuss, fuss + QPointF(-0.08, -0.35) * laenge, oben + QPointF(-0.1, 0.3) * laenge, oben}, dicke, dicke * (knopfig ? 1.2 : 0.85), f);
    p.setPen(QPen(umriss(f), 1));
    p.setBrush(dunkler(f, 0.15));
    p.drawEllipse(oben, dicke * (knopfig ? 0.95 : 0.6), dicke * (knopfig ? 0.6 : 0.32));
}
