#include "Buehne.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>

/* Plants that are built like no others: cacti, succulents, traps, tiers, umbrellas, antlers. */

namespace {
constexpr double pi = std::numbers::pi;

void dornen(QPainter &p, QPointF ort, double laenge, const QColor &f)
{
    p.setPen(QPen(f, 1.3, Qt::SolidLine, Qt::RoundCap));
    for (const double g : {90.0, 35.0, 145.0, -15.0, 195.0})
        p.drawLine(ort, ort + polar(g, laenge));
    p.setPen(Qt::NoPen);
    p.setBrush(QColor(0xEC, 0xE3, 0xC8));
    p.drawEllipse(ort, 2.2, 1.8);
}

void kugel(QPainter &p, QPointF mitte, double rx, double ry, const QColor &f, const QColor &band, bool gebaendert, int rippen, const QColor &dorn)
{
    QRadialGradient g(mitte - QPointF(rx * 0.3, ry * 0.4), rx * 1.5);
    g.setColorAt(0, heller(f, 0.25));
    g.setColorAt(1, dunkler(f, 0.38));
    p.setPen(QPen(umriss(f), 1.6));
    p.setBrush(g);
    p.drawEllipse(mitte, rx, ry);
    for (int i = -rippen; i <= rippen; ++i) {
        const double w = (i + 0.5) / (rippen + 0.5) * pi / 2, x = std::sin(w) * rx;
        const auto punkt = [&](double t) { return mitte + QPointF(x * std::sin(pi * (0.04 + 0.9 * t)), -ry * std::cos(pi * (0.04 + 0.9 * t))); };
        QPainterPath furche(punkt(0));
        for (int s = 1; s <= 12; ++s)
            furche.lineTo(punkt(s / 12.0));
        p.setBrush(Qt::NoBrush);
        p.setPen(QPen(durchsichtig(dunkler(f, 0.55), 0.6), std::max(1.5, rx * 0.02)));
        p.drawPath(furche);
    }
    for (int i = -rippen; i <= rippen; ++i) {
        const double x = std::sin(i / (rippen + 0.5) * pi / 2) * rx;
        for (int s = 0; s < 8; ++s) {
            const double t = 0.1 + 0.1 * s + 0.03 * std::abs(i % 2);
            const QPointF ort = mitte + QPointF(x * std::sin(pi * t), -ry * std::cos(pi * t));
            if (gebaendert) {
                p.setPen(QPen(durchsichtig(band, 0.7), 2));
                p.drawLine(ort + QPointF(-rx * 0.06, ry * 0.05), ort + QPointF(rx * 0.06, ry * 0.05));
            }
            dornen(p, ort, std::max(7.0, rx * 0.085), dorn);
        }
    }
}

/// Snap trap with its bristles, about (0, 0), opening to +x.
Stempel falle(const QColor &gruen)
{
    const QColor rot(0xB8, 0x3A, 0x45);
    Stempel s;
    for (const double seite : {-1.0, 1.0}) {
        for (int i = 0; i < 9; ++i) {
            const double w = -70 + 17.5 * i;
            QPainterPath b(QPointF(0.45 + 0.5 * std::cos(w * pi / 180), seite * 0.54 + 0.3 * std::sin(w * pi / 180)));
            b.lineTo(0.45 + 0.86 * std::cos(w * pi / 180), seite * 0.62 + 0.5 * std::sin(w * pi / 180) + seite * 0.1);
            s.linie(b, dunkler(gruen, 0.15), 1.3);
        }
        s.flaeche(ellipse({0.45, seite * 0.36}, 0.5, 0.34), gruen);
        s.verlauf(ellipse({0.45, seite * 0.32}, 0.42, 0.25), rot, heller(rot, 0.35), {0.3, 0}, {0.5, seite * 0.6}, 0.5);
    }
    QPainterPath mitte(QPointF(-0.08, 0));
    mitte.lineTo(0.95, 0);
    s.linie(mitte, dunkler(gruen, 0.4), 2);
    return s;
}

/// Open tube with a hood.
void schlauch(QPainter &p, const Kurve &k, double weite, const QColor &f, const QColor &rot, double ton)
{
    const QColor g = ton < 0 ? dunkler(f, -ton) : heller(f, ton);
    QLinearGradient verlauf(k.a, k.d);
    verlauf.setColorAt(0, dunkler(g, 0.1));
    verlauf.setColorAt(0.7, g);
    verlauf.setColorAt(1, gemischt(g, rot, 0.45));
    const QPointF oben = k.punkt(1);
    const double w = k.winkel(1);
    Stempel haube;
    QPainterPath form(QPointF(-0.1, 0));
    form.cubicTo({0.1, -0.7}, {0.8, -0.75}, {1, -0.1});
    form.cubicTo({0.9, 0.45}, {0.3, 0.6}, {-0.1, 0});
    haube.verlauf(form, gemischt(g, rot, 0.25), gemischt(g, rot, 0.6), {0, 0}, {1, 0});
    for (const double y : {-0.3, -0.1, 0.12}) {
        QPainterPath ader(QPointF(0, y * 0.3));
        ader.quadTo({0.5, y * 1.3}, {0.86, y});
        haube.linie(ader, durchsichtig(rot, 0.85), 1.2);
    }
    haube.zeichnen(p, oben + polar(w + 90, weite * 0.35), -(w - 28), weite * 1.5, 0.9);
    p.setPen(QPen(umriss(g), 1.2));
    p.setBrush(verlauf);
    p.drawPath(band(k, [weite](double t) { return weite / 2 * (0.22 + 0.78 * std::pow(t, 0.8)); }));
    p.setBrush(Qt::NoBrush);
    p.setPen(QPen(durchsichtig(rot, 0.55), 1.1));
    for (const double q : {-0.6, -0.2, 0.2, 0.6}) {
        QPainterPath ader(k.punkt(0.6) + polar(k.winkel(0.6) + 90, q * weite * 0.3));
        ader.lineTo(oben + polar(w + 90, q * weite * 0.44));
        p.drawPath(ader);
    }
    p.save();
    p.translate(oben);
    p.rotate(90 - w);
    p.setPen(QPen(umriss(rot), 1.5));
    p.setBrush(dunkler(gemischt(g, rot, 0.5), 0.4));
    p.drawEllipse(QPointF(0, 0), weite * 0.52, weite * 0.2);
    p.restore();
}

QPainterPath geweihform(Zufall &z)
{
    // Each end forks twice.
    std::vector<QPointF> r{{0, -0.05}, {0.25, -0.07}, {0.42, -0.13}};
    const auto gabel = [&](double grad, double l) {
        const QPointF fuss(0.45, 0), spitze = fuss + polar(grad, l);
        r.push_back(fuss + polar(grad + 14, l * 0.55));
        r.push_back(spitze + polar(grad + 70, 0.035));
        r.push_back(spitze + polar(grad, 0.04));
        r.push_back(spitze + polar(grad - 70, 0.035));
        r.push_back(fuss + polar(grad - 14, l * 0.55));
    };
    gabel(38 + z.streuung(6), 0.5);
    gabel(8 + z.streuung(5), 0.58);
    gabel(-26 + z.streuung(6), 0.5);
    r.insert(r.end(), {{0.42, 0.12}, {0.25, 0.07}, {0, 0.05}});
    return geschlossen(r);
}

} // namespace

void kugelkaktus(Buehne &b)
{
    const bool rot = b.gestalt.name == u"Gymnocalycium";
    const double ry = b.hoehe * (b.blueht() && rot ? 0.42 : 0.48), rx = ry * 1.06;
    const QPointF mitte = b.fuss - QPointF(0, ry * 0.86);
    const QColor f = rot ? gemischt(b.laub.grund, QColor(0x7C, 0x8E, 0x56), 0.72) : gemischt(b.laub.grund, QColor(0x5E, 0x8E, 0x52), 0.4);
    const QColor dorn = rot ? QColor(0xC9, 0xB2, 0x88) : QColor(0xE8, 0xC0, 0x4E);
    const bool baender = b.laub.muster == Muster::Streifen;
    b.ding(0, [=, zweite = b.laub.zweite](QPainter &p) { kugel(p, mitte, rx, ry, f, heller(f, 0.4), baender, rot ? 5 : 9, dorn); });
    if (!b.blueht())
        return;
    const double r = std::clamp(b.bluetenradius(), 14.0, rx * 0.34);
    for (int i = 0; i < 5; ++i)
        b.bluete(mitte + QPointF((i - 2) * rx * 0.27, -ry * (0.98 - 0.07 * (i - 2) * (i - 2))), (i - 2) * 16.0, r, 1.2 + 0.1 * (i % 2));
}

void gliederkaktus(Buehne &b)
{
    const double glied = std::clamp(b.gestalt.blattlaenge * b.pixelJeCm, 34.0, 110.0);
    const QColor f = b.laub.grund;
    Stempel s;
    QPainterPath form(QPointF(0, -0.08));
    form.cubicTo({0.1, -0.26}, {0.2, -0.28}, {0.3, -0.24});
    form.lineTo(0.36, -0.33);
    form.cubicTo({0.5, -0.3}, {0.56, -0.27}, {0.62, -0.25});
    form.lineTo(0.7, -0.34);
    form.cubicTo({0.85, -0.26}, {0.95, -0.24}, {1, -0.14});
    form.lineTo(1, 0.14);
    form.cubicTo({0.95, 0.24}, {0.85, 0.26}, {0.7, 0.34});
    form.lineTo(0.62, 0.25);
    form.cubicTo({0.56, 0.27}, {0.5, 0.3}, {0.36, 0.33});
    form.lineTo(0.3, 0.24);
    form.cubicTo({0.2, 0.28}, {0.1, 0.26}, {0, 0.08});
    form.closeSubpath();
    s.verlauf(form, dunkler(f, 0.2), heller(f, 0.15), {0, 0}, {1, 0});
    QPainterPath rippe(QPointF(0, 0));
    rippe.lineTo(1, 0);
    s.linie(rippe, durchsichtig(heller(f, 0.5), 0.8), 1.6);
    constexpr int triebe = 21;
    for (int i = 0; i < triebe; ++i) {
        const double lage = -1 + 2.0 * i / (triebe - 1), ebene = 0.6 * std::cos(i * 2.4);
        double grad = 90 - lage * 92 + b.zufall.streuung(8);
        QPointF ort = b.fuss + QPointF(lage * b.topf * 0.55, -4);
        const int glieder = std::clamp(int(b.hoehe / glied * (1.25 - 0.25 * std::abs(ebene))) + (std::abs(lage) > 0.5 ? 1 : 0), 3, 7);
        for (int k = 0; k < glieder; ++k) {
            const double t = b.ton(ebene);
            b.ding(ebene + 0.01 * k, [=](QPainter &p) { s.zeichnen(p, ort, -grad, glied, 1, t); });
            ort += polar(grad, glied * 0.96);
            // Towards the tip the shoot hangs more and more.
            grad += (std::cos(grad * pi / 180) >= 0 ? -1 : 1) * (9 + 26.0 * k / glieder) + b.zufall.streuung(6);
        }
        b.spitzen.push_back({ort, grad, ebene, std::abs(lage)});
    }
}

void sukkulentrosette(Buehne &b)
{
    const double flach = 0.62, r = std::min(b.hoehe * 0.62, b.topf * 0.98);
    const auto legen = [&](QPointF mitte, double radius, double ebene, int n) {
        for (int i = 0; i < n; ++i) {
            const double q = 1 - double(i) / n, w = 137.5 * i;
            const QPointF aussen = polar(w, radius * (0.25 + 0.75 * q));
            const double laenge = radius * (0.34 + 0.42 * q);
            const QPointF spitze(aussen.x(), aussen.y() * flach - radius * 0.32 * (1 - q));
            const QPointF ansatz = spitze * (1 - laenge / std::max(laenge, std::hypot(spitze.x(), spitze.y()))) - QPointF(0, radius * 0.2 * (1 - q));
            const QPointF weg = spitze - ansatz;
            b.blatt(mitte + ansatz, std::atan2(-weg.y(), weg.x()) * 180 / pi, std::max(radius * 0.3, std::hypot(weg.x(), weg.y())), ebene + 0.9 * (1 - q) - 0.3, 1.15);
        }
    };
    legen(b.fuss + QPointF(-r * 0.95, -r * 0.12), r * 0.42, -0.3, 16);
    legen(b.fuss + QPointF(r * 1.0, -r * 0.1), r * 0.36, -0.3, 14);
    legen(b.fuss - QPointF(0, r * 0.3), r, 0.1, 34);
}

void etagen(Buehne &b)
{
    const double dicke = std::clamp(b.hoehe * 0.02, 7.0, 18.0);
    const QPointF oben = b.fuss - QPointF(0, b.hoehe * 0.96);
    b.trieb({b.fuss, b.fuss - QPointF(0, b.hoehe * 0.33), oben + QPointF(0, b.hoehe * 0.33), oben}, dicke, 3, farbe::rinde, -0.1);
    const Stempel nadel = blattstempel({Blattform::Nadel, Rand::Glatt, Adern::Keine, 1.6}, b.laub, Muster::Keins, Zufall(b.pflanze.name(), 4));
    constexpr int etagen = 8;
    for (int e = 0; e < etagen; ++e) {
        const double t = 0.14 + 0.8 * e / (etagen - 1), laenge = std::min(b.breite * 0.5, b.hoehe * 0.46) * (1.04 - t) + 14;
        const QPointF knoten = b.fuss - QPointF(0, b.hoehe * 0.96 * t);
        constexpr std::array<std::pair<double, double>, 6> aeste{{{168, 1}, {12, 1}, {150, 0.72}, {30, 0.72}, {206, 0.66}, {-26, 0.66}}};
        int i = 0;
        for (const auto &[grad, weit] : aeste) {
            const Kurve k = Kurve::bogen(knoten, grad + b.zufall.streuung(4), laenge * weit * b.zufall.zwischen(0.92, 1.05), i < 4 ? -10 + 16 * (1 - t) : 10);
            const double ebene = (i >= 4 ? 0.5 : i >= 2 ? -0.5 : 0) + 0.02 * e, ton = b.ton(ebene);
            ++i;
            b.ding(ebene, [=, f = gemischt(b.laub.grund, farbe::rinde, 0.4)](QPainter &p) {
                const Wedel zweig{14, 0.24, 1, 58, 0.1, 0.25};
                // Side twigs, each set with needles.
                for (int s = 0; s < zweig.paare; ++s)
                    for (const int seite : {-1, 1}) {
                        const double u = 0.1 + 0.88 * s / zweig.paare, l = k.laenge() * 0.2 * (1.05 - u * 0.75);
                        const QPointF a = k.punkt(u);
                        const double w = k.winkel(u) + seite * 42;
                        for (int n = 0; n < 6; ++n)
                            for (const int q : {-1, 1})
                                nadel.zeichnen(p, a + polar(w, l * n / 6), -(w + q * 40), std::max(6.0, l * 0.26), 1, ton + 0.06 * q);
                    }
                stiel(p, k, 5, 2, f);
            });
        }
    }
}

void schirm(Buehne &b)
{
    constexpr int halme = 15;
    const QColor f = gemischt(farbe::stiel, b.laub.grund, 0.5);
    for (int i = 0; i < halme; ++i) {
        const double lage = (i % 2 ? 1 : -1) * (i + 0.3) / halme, weit = std::abs(lage);
        const Kurve k = Kurve::bogen(b.fuss + QPointF(lage * b.topf * 0.6, 0), 90 - lage * 34, b.hoehe * (0.93 - 0.42 * weit * b.zufall.zwischen(0.6, 1.2)), 12);
        const double ebene = -0.5 + weit, l = std::min(b.hoehe * 0.19, b.gestalt.blattlaenge * b.pixelJeCm);
        b.trieb(k, std::clamp(b.hoehe * 0.01, 3.0, 7.0), 2.5, f, ebene - 0.2);
        for (int s = 0; s < 16; ++s) {
            const double grad = 194 - 208.0 * s / 15 + b.zufall.streuung(4);
            const Kurve strahl = Kurve::bogen(k.punkt(1), grad, l * (0.72 + 0.28 * std::abs(std::cos(grad * pi / 180))), 44);
            const double ton = b.ton(ebene);
            b.ding(ebene + 0.01 * s, [=, g = b.laub.grund, z = b.laub.zweite](QPainter &p) { bandblatt(p, strahl, {std::max(5.0, l * 0.075), 0.2, 0.7, false, false, Bandmuster::Keins}, g, z, ton); });
        }
        b.spitzen.push_back({k.punkt(1), 90, ebene, weit});
    }
}

void geweih(Buehne &b)
{
    const QColor f = gemischt(b.laub.grund, b.laub.zweite, 0.35);
    for (int i = 0; i < 11; ++i) {
        const double lage = -1 + 2.0 * ((i * 4) % 11) / 10;
        const double grad = 90 - lage * 112 + b.zufall.streuung(7), laenge = b.hoehe * b.zufall.zwischen(0.95, 1.15);
        Stempel wedel;
        wedel.verlauf(geweihform(b.zufall), dunkler(f, 0.2), heller(f, 0.18), {0, 0}, {1, 0});
        const double k = std::cos(grad * pi / 180) > 0 ? 0.34 : -0.34;
        wedel.verbiegen([k](QPointF q) { return QPointF(q.x(), q.y() + k * q.x() * q.x()); });
        const double ebene = 0.5 * std::cos(i * 2.1), ton = b.ton(ebene);
        b.ding(ebene, [=, ort = b.fuss + QPointF(lage * b.topf * 0.35, -10)](QPainter &p) { wedel.zeichnen(p, ort, -grad, laenge, 1, ton); });
    }
    // Shield fronds lie on the opening.
    const QColor schild(0xA8, 0x98, 0x62);
    for (const double x : {-0.42, 0.42, 0.0})
        b.ding(x == 0 ? 0.95 : 0.8, [=, ort = b.fuss + QPointF(x * b.topf, -b.topf * 0.1), r = b.topf * 0.55](QPainter &p) {
            const QColor g = x == 0 ? gemischt(f, schild, 0.25) : schild;
            QRadialGradient v(ort - QPointF(0, r * 0.2), r * 1.1);
            v.setColorAt(0, heller(g, 0.25));
            v.setColorAt(1, dunkler(g, 0.15));
            p.setPen(QPen(umriss(g), 1.2));
            p.setBrush(v);
            p.drawEllipse(ort, r, r * 0.62);
            p.setPen(QPen(durchsichtig(umriss(g), 0.5), 1));
            for (const double w : {30.0, 60.0, 90.0, 120.0, 150.0})
                p.drawLine(ort + QPointF(0, r * 0.3), ort + QPointF(polar(w, r * 0.85).x(), polar(w, r * 0.5).y()));
        });
}

void kannen(Buehne &b)
{
    const QColor rot = gemischt(b.bluetenfarben.haupt, QColor(0xA0, 0x28, 0x3A), 0.6), f = b.laub.grund;
    for (int i = 0; i < 11; ++i) {
        const double lage = (i % 2 ? 1 : -1) * (i + 0.4) / 11.0, weit = std::abs(lage);
        const double laenge = b.hoehe * 0.84 * (1.02 - 0.55 * weit * b.zufall.zwischen(0.6, 1.2));
        const Kurve k = Kurve::bogen(b.fuss + QPointF(lage * b.topf * 0.66, 0), 90 - lage * 58, laenge, -6 - 16 * weit);
        const double ebene = -0.5 + weit, ton = b.ton(ebene), w = std::clamp(laenge * 0.14, 14.0, 56.0);
        b.ding(ebene, [=](QPainter &p) { schlauch(p, k, w, f, rot, ton); });
    }
}

void kannenpflanze(Buehne &b, QPointF ort, double g, double ebene)
{
    const QColor f = gemischt(b.laub.grund, QColor(0xC8, 0xCF, 0x86), 0.4), rot(0xA9, 0x3A, 0x3E);
    b.trieb({ort - QPointF(g * 0.2, g * 0.25), ort + QPointF(-g * 0.2, g * 0.1), ort + QPointF(-g * 0.1, g * 0.25), ort + QPointF(0, g * 0.2)}, 2.4, 2, farbe::stiel, ebene - 0.02);
    b.ding(ebene, [=](QPainter &p) {
        const Kurve k{ort + QPointF(0, g), ort + QPointF(-g * 0.06, g * 0.72), ort + QPointF(-g * 0.02, g * 0.45), ort + QPointF(0, g * 0.2)};
        QLinearGradient v(k.a, k.d);
        v.setColorAt(0, gemischt(f, rot, 0.45));
        v.setColorAt(0.6, f);
        v.setColorAt(1, gemischt(f, rot, 0.7));
        p.setPen(QPen(umriss(f), 1.2));
        p.setBrush(v);
        p.drawPath(band(k, [g](double t) { return g * (0.05 + 0.17 * std::sin(pi * std::min(0.86, 0.12 + t * 0.62))); }));
        p.setPen(QPen(umriss(rot), 2));
        p.setBrush(dunkler(rot, 0.45));
        p.drawEllipse(ort + QPointF(0, g * 0.2), g * 0.17, g * 0.075);
        p.setBrush(gemischt(f, rot, 0.4));
        p.setPen(QPen(umriss(f), 1.2));
        p.drawEllipse(ort + QPointF(g * 0.05, g * 0.07), g * 0.17, g * 0.08);
    });
}

void fallen(Buehne &b)
{
    const double l = std::min(b.topf * 1.25, b.hoehe * 0.85);
    const Stempel trap = falle(b.laub.grund);
    for (int i = 0; i < 13; ++i) {
        const double lage = (i % 2 ? 1 : -1) * (i + 0.4) / 13.0, weit = std::abs(lage);
        const double grad = 90 - lage * 92 + b.zufall.streuung(6), ebene = -0.4 + 1.2 * weit;
        const Kurve k = Kurve::bogen(b.fuss + QPointF(lage * b.topf * 0.2, -6), grad, l * b.zufall.zwischen(0.62, 0.85), 26);
        const double ton = b.ton(ebene);
        b.ding(ebene, [=, f = b.laub.grund](QPainter &p) {
            bandblatt(p, k, {l * 0.15, 0.75, 0.35, false, false, Bandmuster::Keins}, f, f, ton);
            trap.zeichnen(p, k.punkt(1), -k.winkel(1) + (i % 3 - 1) * 12, l * 0.3, 0.9, ton);
        });
    }
}

void tentakel(Buehne &b)
{
    const double l = std::min(b.hoehe * 0.72, b.topf * 1.5);
    const QColor rot(0xC0, 0x3A, 0x4C);
    for (int i = 0; i < 17; ++i) {
        const double lage = (i % 2 ? 1 : -1) * (i + 0.4) / 17.0, weit = std::abs(lage);
        const Kurve k = Kurve::bogen(b.fuss + QPointF(lage * b.topf * 0.2, -4), 90 - lage * 88, l * b.zufall.zwischen(0.8, 1), 24);
        const double ebene = -0.4 + weit, ton = b.ton(ebene);
        b.ding(ebene, [=, f = b.laub.grund](QPainter &p) {
            bandblatt(p, k, {l * 0.085, 0.82, 0.5, false, false, Bandmuster::Keins}, f, f, ton);
            for (int s = 0; s < 26; ++s) {
                const double t = 0.42 + 0.57 * s / 26;
                for (const int seite : {-1, 1}) {
                    const QPointF a = k.punkt(t) + polar(k.winkel(t) + seite * 90, l * 0.03), e = a + polar(k.winkel(t) + seite * (75 - 20 * (s % 3)), l * 0.055);
                    p.setPen(QPen(rot, 1.2));
                    p.drawLine(a, e);
                    p.setPen(Qt::NoPen);
                    p.setBrush(gemischt(rot, QColor(255, 220, 220), 0.35));
                    p.drawEllipse(e, 2.6, 2.6);
                }
            }
        });
    }
}
