#include "Apfelschnitt.h"

#include "Farben.h"
#include "Kurve.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace {

constexpr double pi = std::numbers::pi;

QColor fleischfarbe(const Datensatz &s)
{
    constexpr std::pair<QStringView, QRgb> farben[] = {{u"weißlich", 0xFFFCF7E8}, {u"gelblich", 0xFFF7E8B4}, {u"grünlich", 0xFFECF0C8}};
    QColor f;
    for (const auto &[wort, farbe] : farben)
        if (s.hat(u"fl_farbe", wort))
            f = f.isValid() ? gemischt(f, QColor(farbe), 0.5) : QColor(farbe);
    return f.isValid() ? f : QColor(farben[0].second);
}

QColor kernfarbe(const Datensatz &s)
{
    // clang-format off
    constexpr std::pair<QStringView, QRgb> farben[] = {{u"orangebraun", 0xFFB9652C}, {u"hellbraun", 0xFFB07B45}, {u"mittelbraun", 0xFF8A5530},
                                                       {u"dunkelbraun", 0xFF5E3722}, {u"schwarzbraun", 0xFF3C261C}};
    // clang-format on
    for (const auto &[wort, farbe] : farben)
        if (s.hat(u"k_farbe", wort))
            return QColor(farbe);
    return QColor(farben[2].second);
}

/// Drop with its point at (0, 0), lying along +x.
QPainterPath tropfen(double laenge, double breite)
{
    QPainterPath t(QPointF(0, 0));
    t.cubicTo({laenge * 0.35, -breite * 0.28}, {laenge * 0.55, -breite * 0.62}, {laenge * 0.8, -breite * 0.45});
    t.cubicTo({laenge * 1.06, -breite * 0.25}, {laenge * 1.06, breite * 0.25}, {laenge * 0.8, breite * 0.45});
    t.cubicTo({laenge * 0.55, breite * 0.62}, {laenge * 0.35, breite * 0.28}, {0, 0});
    return t;
}

/// Lens from `unten` to `oben`, bulging to one side.
QPainterPath kammerform(double innen, double oben, double unten, double weite)
{
    QPainterPath k(QPointF(innen, unten));
    k.cubicTo({innen + weite * 0.9, unten + (oben - unten) * 0.08}, {innen + weite * 1.35, unten + (oben - unten) * 0.45},
              {innen + weite * 0.55, oben - (oben - unten) * 0.15});
    k.quadTo({innen + weite * 0.3, oben}, {innen, oben});
    k.quadTo({innen + weite * 0.12, (oben + unten) / 2}, {innen, unten});
    return k;
}

void vorbereiten(QPainter &p, QPointF mitte, double radius)
{
    p.save();
    p.translate(mitte);
    p.scale(radius, -radius);
}

QPen stift(const QColor &f, double breite, Qt::PenStyle art = Qt::SolidLine)
{
    QPen s(f, breite, art, Qt::RoundCap, Qt::RoundJoin);
    s.setCosmetic(true);
    return s;
}

const QColor kernhauslinie(0xB9, 0xA8, 0x62);

} // namespace

Apfelschnitt::Apfelschnitt(const Datensatz &s, const Apfelform &form, const Apfelhaut &haut) : sorte_(s), form_(form), haut_(haut)
{
    const double langerKern = mittel(s, u"k_laenge", {{u"kurz (< 7 mm)", 0.15}, {u"mittel (7-9 mm)", 0.19}, {u"lang (> 9 mm)", 0.235}},
                                     mittel(s, u"k_farbe", {{u"klein", 0.15}, {u"mittel", 0.19}, {u"groß", 0.23}}, 0.19));
    kern_ = {langerKern, langerKern * mittel(s, u"k_farbe", {{u"schmal", 0.42}, {u"breit", 0.68}, {u"rund", 0.72}, {u"spitz", 0.48}}, 0.55),
             kernfarbe(s)};
    kernhaus_ = mittel(s, u"kh_groesse", {{u"klein", 0.28}, {u"mittel", 0.35}, {u"groß", 0.43}}, 0.35);
    kammer_ = kernhaus_ * mittel(s, u"k_kammern", {{u"eng", 0.52}, {u"weit", 0.78}}, 0.64);
    achse_ = mittel(s, u"a_hoehle", {{u"geschlossen", 0.0}, {u"offen", 0.05}, {u"weit offen", 0.10}}, 0.02);
    roehre_ =
        s.hat(u"k_roehre", u"bis an Kernhaus reichend") ? 9 : mittel(s, u"k_roehre", {{u"kurz", 0.1}, {u"mittel", 0.17}, {u"lang", 0.26}}, 0.13);
    roehrenbreite_ = mittel(s, u"k_roehre", {{u"schmal", 0.014}, {u"mittelbreit", 0.024}, {u"breit", 0.036}}, 0.022);
    hoehle_ = mittel(s, u"k_hoehle", {{u"klein", 0.045}, {u"mittel", 0.065}, {u"groß", 0.09}, {u"eng", 0.045}, {u"breit", 0.095}}, 0.065);
    fleisch_ = fleischfarbe(s);
    roetlich_ = s.hat(u"fl_farbe", u"rötlich/rötl. unter Schale");
}

QPointF Apfelschnitt::rand(double phi, int seite) const
{
    const QPointF m = form_.meridian(std::clamp(phi, 1e-4, pi - 1e-4));
    const double x = seite * m.x();
    return {x, m.y() + form_.schief * x * std::sin(phi)};
}

QPainterPath Apfelschnitt::umriss() const
{
    constexpr int schritte = 90;
    QPolygonF v;
    for (int i = 0; i <= schritte; ++i)
        v << rand(pi * i / schritte, 1);
    for (int i = schritte; i >= 0; --i)
        v << rand(pi * i / schritte, -1);
    QPainterPath pfad;
    pfad.addPolygon(v);
    pfad.closeSubpath();
    return pfad;
}

void Apfelschnitt::fleisch(QPainter &p, const QPainterPath &form) const
{
    QRadialGradient verlauf(QPointF(0, 0), 1.12);
    const QColor unterSchale = roetlich_ ? gemischt(fleisch_, QColor(0xE4, 0x7E, 0x78), 0.65) : gemischt(fleisch_, QColor(0xD9, 0xE0, 0x9A), 0.35);
    verlauf.setColorAt(0, gemischt(fleisch_, QColor(0xE8, 0xE6, 0xB8), 0.35));
    verlauf.setColorAt(0.45, fleisch_);
    verlauf.setColorAt(roetlich_ ? 0.72 : 0.86, fleisch_);
    verlauf.setColorAt(1, unterSchale);
    p.setBrush(verlauf);
    p.setPen(Qt::NoPen);
    p.drawPath(form);
}

void Apfelschnitt::schale(QPainter &p, double radius) const
{
    const double dicke = mittel(sorte_, u"schale", {{u"dünn", 4}, {u"mittel", 6}, {u"derb", 9}}, 6) * radius / 320;
    constexpr int schritte = 60;
    for (const int seite : {-1, 1}) {
        for (int i = 0; i < schritte; ++i) {
            const double phi = pi * i / schritte;
            p.setPen(stift(QColor(haut_.farbe(seite * pi / 2, std::cos(phi + pi / schritte / 2))), dicke));
            p.drawLine(rand(phi, seite), rand(phi + pi / schritte, seite));
        }
    }
    nurLinie(p, stift(durchsichtig(farbe::tinte, 0.5), 1));
    p.drawPath(umriss());
}

void Apfelschnitt::kern(QPainter &p, QPointF spitze, double grad, bool taub) const
{
    p.save();
    p.translate(spitze);
    p.rotate(grad);
    const QPainterPath form = tropfen(kern_.laenge, kern_.breite * (taub ? 0.4 : 1));
    const QColor f = taub ? heller(kern_.farbe, 0.35) : kern_.farbe;
    p.setPen(stift(dunkler(f, 0.5), 1.2));
    p.setBrush(f);
    p.drawPath(form);
    p.setPen(stift(durchsichtig(heller(f, 0.6), 0.7), 2));
    p.drawLine(QPointF(kern_.laenge * 0.35, kern_.breite * 0.1), QPointF(kern_.laenge * 0.75, kern_.breite * 0.2));
    p.restore();
}

void Apfelschnitt::kernhaus(QPainter &p) const
{
    const double m = mitteHoehe(), oben = std::min(m + kernhaus_ * 0.95, form_.stielboden() - 0.08),
                 unten = std::max(m - kernhaus_ * 0.95, form_.kelchboden() + 0.1);
    // Line of the vascular bundles: from the stalk round the core to the calyx.
    const double weite = kernhaus_ * 1.5;
    p.setPen(stift(QColor(0x9D, 0xAE, 0x5C), 2, Qt::DashLine));
    p.setBrush(durchsichtig(QColor(0xE9, 0xE9, 0xB8), 0.4));
    QPainterPath linie(QPointF(0, form_.stielboden() - 0.02));
    for (const double seite : {1.0, -1.0}) {
        linie.moveTo(0, form_.stielboden() - 0.02);
        linie.cubicTo({seite * weite * 0.5, oben + 0.1}, {seite * weite * 1.35, oben - 0.02}, {seite * weite, m - 0.02});
        linie.cubicTo({seite * weite * 0.75, unten}, {seite * weite * 0.25, unten}, {0, form_.kelchboden() + 0.03});
    }
    p.drawPath(linie);
    p.setPen(stift(QColor(0xB5, 0xC0, 0x7A), 2.5));
    p.drawLine(QPointF(0, form_.stielboden()), QPointF(0, oben));
    p.drawLine(QPointF(0, unten), QPointF(0, form_.kelchboden()));
    QPainterPath spindel(QPointF(0, oben));
    spindel.quadTo({achse_ * 1.5, m}, {0, unten});
    spindel.quadTo({-achse_ * 1.5, m}, {0, oben});
    p.setPen(stift(kernhauslinie, 1.6));
    p.setBrush(dunkler(fleisch_, 0.16));
    p.drawPath(spindel);
    const bool taub = !sorte_.hat(u"k_qualit", u"alle ausgebildet") && !sorte_.worte(u"k_qualit").isEmpty();
    for (const double seite : {1.0, -1.0}) {
        p.save();
        p.scale(seite, 1);
        const double innen = 0.012 + achse_ * 0.72;
        p.setPen(stift(kernhauslinie.darker(125), 2));
        p.setBrush(heller(QColor(0xE4, 0xD2, 0x92), 0.25));
        p.drawPath(kammerform(innen, oben - 0.04, unten + 0.04, kammer_));
        kern(p, {innen + kammer_ * 0.42, m + kern_.laenge * 0.62}, -84, taub && seite < 0);
        if (sorte_.hat(u"k_anzahl", u"> 7"))
            kern(p, {innen + kammer_ * 0.2, m + kern_.laenge * 0.5}, -92, false);
        p.restore();
    }
}

void Apfelschnitt::kelch(QPainter &p) const
{
    const double boden = form_.kelchboden(), ende = std::min(boden + roehre_, mitteHoehe() - kernhaus_ * 0.7);
    QPainterPath trichter(QPointF(-hoehle_, boden - 0.012));
    trichter.quadTo({-hoehle_ * 0.5, boden + hoehle_ * 0.9}, {-roehrenbreite_ / 2, boden + hoehle_});
    trichter.lineTo(-roehrenbreite_ * 0.3, std::max(ende, boden + hoehle_ * 1.15));
    trichter.lineTo(roehrenbreite_ * 0.3, std::max(ende, boden + hoehle_ * 1.15));
    trichter.lineTo(roehrenbreite_ / 2, boden + hoehle_);
    trichter.quadTo({hoehle_ * 0.5, boden + hoehle_ * 0.9}, {hoehle_, boden - 0.012});
    p.setPen(stift(QColor(0x7A, 0x69, 0x3C), 1.4));
    p.setBrush(QColor(0xC7, 0xB8, 0x7C));
    p.drawPath(trichter);
    const double groesse = mittel(sorte_, u"k_groesse", {{u"klein", 0.08}, {u"mittel", 0.11}, {u"groß", 0.15}}, 0.11);
    const double oeffnung = mittel(sorte_, u"k_oeffnung", {{u"geschlossen", -22}, {u"halboffen", 8}, {u"offen", 34}}, 8);
    for (const double seite : {-1.0, 0.0, 1.0}) {
        p.save();
        p.translate(seite * hoehle_ * 0.85, boden - 0.005);
        p.rotate(-90 + seite * oeffnung);
        QPainterPath blatt(QPointF(0, -groesse * 0.22));
        blatt.quadTo({groesse * 0.7, -groesse * 0.2}, {groesse, 0});
        blatt.quadTo({groesse * 0.7, groesse * 0.2}, {0, groesse * 0.22});
        blatt.closeSubpath();
        const QColor f = sorte_.hat(u"k_blaetter", u"bräunlich") ? QColor(0x8D, 0x74, 0x4A) : QColor(0x86, 0x8F, 0x55);
        p.setPen(stift(::umriss(f), 1.2));
        p.setBrush(seite == 0 ? dunkler(f, 0.15) : f);
        p.drawPath(blatt);
        p.restore();
    }
}

void Apfelschnitt::laengs(QPainter &p, QPointF mitte, double radius) const
{
    const double pixelJeCm = radius / (form_.durchmesser / 2);
    vorbereiten(p, mitte, radius);
    fleisch(p, umriss());
    kernhaus(p);
    kelch(p);
    schale(p, radius);
    p.restore();
    Apfelstiel(sorte_).zeichnen(p, mitte - QPointF(0, form_.stielboden() * radius - 4), pixelJeCm, 0);
}

Apfelstiel::Apfelstiel(const Datensatz &s)
{
    laenge = mittel(s, u"st_laenge", {{u"kurz", 1.1}, {u"mittellang", 2.0}, {u"lang", 3.1}}, 1.9);
    dicke = mittel(s, u"st_laenge", {{u"dünn", 0.17}, {u"mitteldick", 0.27}, {u"dick", 0.42}}, 0.25);
    knopfig = s.hat(u"st_besond", u"knopfig") || s.hat(u"st_besond", u"knospig");
    farbe = s.hat(u"st_besond", u"grün")       ? QColor(0x7E, 0x8C, 0x4A)
            : s.hat(u"st_besond", u"rotbraun") ? QColor(0x84, 0x4A, 0x34)
                                               : QColor(0x7D, 0x5C, 0x3C);
}

void Apfelstiel::zeichnen(QPainter &p, QPointF fuss, double pixelJeCm, double neigung) const
{
    const QPointF oben = fuss + polar(82 - neigung * 0.3, laenge * pixelJeCm);
    const Kurve k{fuss, fuss + QPointF(-0.08, -0.35) * laenge * pixelJeCm, oben + QPointF(-0.1, 0.3) * laenge * pixelJeCm, oben};
    stiel(p, k, dicke * pixelJeCm, dicke * pixelJeCm * (knopfig ? 1.2 : 0.85), farbe);
    p.setPen(QPen(umriss(farbe), 1));
    p.setBrush(dunkler(farbe, 0.15));
    p.drawEllipse(oben, dicke * pixelJeCm * (knopfig ? 0.95 : 0.6), dicke * pixelJeCm * (knopfig ? 0.6 : 0.32));
}
