#include "Buehne.h"

#include <algorithm>
#include <cmath>
#include <numbers>

/* Where flowers and fruits stand. */

namespace {

constexpr double pi = std::numbers::pi;

/// Shoots that can be seen, at most `hoechstens`, spread over the plant or, with `oben`, over its upper part.
std::vector<Spross> sichtbare(const std::vector<Spross> &alle, size_t hoechstens, bool oben, double abstand = 0)
{
    std::vector<Spross> gut;
    for (const Spross &s : alle)
        if (s.ebene > -0.45 || s.aussen > 0.8)
            gut.push_back(s);
    if (oben && gut.size() > 4) {
        std::ranges::stable_sort(gut, {}, [](const Spross &s) { return s.ort.y(); });
        gut.resize(std::max<size_t>(4, gut.size() * 6 / 10));
    }
    Zufall mischen(u"Sprosse");
    for (size_t i = gut.size(); i > 1; --i)
        std::swap(gut[i - 1], gut[size_t(mischen.ganz(int(i)))]);
    std::vector<Spross> auswahl;
    for (const Spross &s : gut) {
        if (auswahl.size() == hoechstens)
            break;
        const auto nah = [&](const Spross &a) { return std::hypot(a.ort.x() - s.ort.x(), a.ort.y() - s.ort.y()) < abstand; };
        if (std::ranges::none_of(auswahl, nah))
            auswahl.push_back(s);
    }
    return auswahl;
}

/// Flowers cover about a quarter of what is green.
size_t anzahl(const Buehne &b, double radius, size_t von, size_t bis)
{
    const double flaeche = b.hoehe * std::min(b.breite, b.hoehe * 1.1) * 0.22;
    return std::clamp(size_t(flaeche / (radius * radius * pi)), von, bis);
}

/// Flowers put together to a ball or a flat head.
void dolde(Buehne &b, QPointF ort, double radius, int n, double weite, double hoch, double ebene)
{
    for (int i = 0; i < n; ++i) {
        const double r = std::sqrt((i + 0.5) / n);
        const QPointF q = polar(137.5 * i + 20, r * weite);
        b.bluete(ort + QPointF(q.x(), q.y() * hoch), b.zufall.streuung(25), radius * (1.06 - 0.22 * r), ebene + 0.3 * (1 - r));
    }
}

void einzelne(Buehne &b)
{
    const double r = b.bluetenradius();
    const bool steht = b.gestalt.bluete >= Bluete::Alpenveilchen;
    for (const Spross &s : sichtbare(b.spitzen, anzahl(b, r, 5, 60), r > 60, r * 1.25)) {
        const double neigung = std::clamp((90 - s.grad) * 0.35, -40.0, 40.0);
        b.bluete(s.ort, steht ? std::clamp(90 - s.grad, -70.0, 70.0) : neigung + b.zufall.streuung(14), r * b.zufall.zwischen(0.82, 1.05), 1.3 + 0.4 * s.ebene);
    }
    if (b.gestalt.aufbau == Aufbau::Kletter || b.gestalt.aufbau == Aufbau::Haenge || b.gestalt.aufbau == Aufbau::Eintrieb)
        for (const Spross &s : sichtbare(b.achseln, anzahl(b, r, 8, 70), false, r * 1.3))
            b.bluete(s.ort, steht ? std::clamp(90 - s.grad, -120.0, 120.0) : b.zufall.streuung(30), r * b.zufall.zwischen(0.8, 1), 1.2 + 0.3 * s.ebene);
}

void doldenAnTrieben(Buehne &b, int n, double weiteInRadien, double hoch)
{
    const double r = std::clamp(b.bluetenradius(), 9.0, 26.0), weite = r * weiteInRadien;
    const bool rankt = b.gestalt.aufbau == Aufbau::Kletter || b.gestalt.aufbau == Aufbau::Haenge;
    const bool rosette = b.gestalt.aufbau == Aufbau::Rosette; // every stalk has its flowers
    for (const Spross &s : rosette ? b.spitzen : sichtbare(rankt ? b.achseln : b.spitzen, anzahl(b, weite, 4, rankt ? 26 : 17), !rankt, weite * 1.5))
        dolde(b, s.ort + QPointF(0, -weite * 0.25), r, n, weite, hoch, 1.3 + 0.3 * s.ebene);
}

void trauben(Buehne &b)
{
    const double r = std::clamp(b.bluetenradius(), 8.0, 40.0);
    const bool haengt = b.gestalt.name == u"Medinilla";
    for (const Spross &s : sichtbare(b.spitzen, anzahl(b, r * 3, 4, 70), true, r * 0.8)) {
        const double grad = haengt ? -90 + b.zufall.streuung(12) : s.grad, laenge = r * (haengt ? 7 : 6);
        const Kurve k = Kurve::bogen(s.ort - polar(grad, haengt ? 0 : laenge * 0.5), grad, laenge, haengt ? 0 : 12);
        b.trieb(k, 3, 2, haengt ? b.bluetenfarben.haupt : farbe::stiel, 1.2 + 0.1 * s.ebene);
        const int n = haengt ? 16 : 9;
        for (int i = 0; i < n; ++i) {
            const double t = double(i + 1) / n, weit = r * (haengt ? 1.7 * std::sin(pi * (0.15 + 0.8 * t)) : 0.7);
            b.bluete(k.punkt(t) + polar(grad + (i % 2 ? 90 : -90), weit * b.zufall.zwischen(0.5, 1)), (i % 2 ? -1 : 1) * 20.0, r * (1.05 - 0.3 * t), 1.3 + 0.1 * s.ebene + 0.01 * i);
        }
        if (haengt) // rosy bracts above the cluster
            for (const double seite : {-1.0, 1.0}) {
                Stempel h;
                h.verlauf(ellipse({0.5, 0}, 0.5, 0.28), heller(b.bluetenfarben.haupt, 0.3), heller(b.bluetenfarben.haupt, 0.55), {0, 0}, {1, 0});
                b.ding(1.6 + 0.1 * s.ebene, [=, ort = s.ort](QPainter &p) { h.zeichnen(p, ort, seite > 0 ? 35 : 145, r * 3); });
            }
    }
}

void haengende(Buehne &b)
{
    const double r = std::max(17.0, b.bluetenradius() * 0.85);
    const auto plaetze = sichtbare(b.achseln.size() > b.spitzen.size() ? b.achseln : b.spitzen, anzahl(b, r, 6, 40), false, r * 1.5);
    for (const Spross &s : plaetze) {
        const QPointF ende = s.ort + QPointF(b.zufall.streuung(r * 0.4), r * b.zufall.zwischen(0.4, 0.9));
        b.trieb({s.ort, s.ort + QPointF(r * 0.2, -r * 0.2), ende - QPointF(0, r * 0.4), ende}, 2.4, 2, farbe::stiel, 1.25 + 0.3 * s.ebene);
        b.bluete(ende, b.zufall.streuung(14), r, 1.3 + 0.3 * s.ebene);
    }
}

struct Schaftform
{
    int anzahl;
    double spreizung, neigung;
};

/// Stalks from the ground with their tops; `hoch` in parts of the plant's height.
std::vector<Kurve> schaefte(Buehne &b, const Schaftform &form, double hoch, double dicke, const QColor &f)
{
    std::vector<Kurve> alle;
    for (int i = 0; i < form.anzahl; ++i) {
        const double lage = form.anzahl == 1 ? 0.12 : -1 + 2.0 * i / (form.anzahl - 1);
        const double grad = 90 - lage * form.spreizung / 2 + b.zufall.streuung(5);
        const double laenge = b.hoehe * hoch * (1 - 0.16 * std::abs(lage)) * b.zufall.zwischen(form.anzahl > 5 ? 0.72 : 0.9, 1);
        const Kurve k = Kurve::bogen(b.fuss + QPointF(lage * b.topf * 0.22, 0), grad, laenge, form.neigung);
        b.trieb(k, dicke, dicke * 0.75, f, form.neigung > 40 ? 1.05 : 0.3 - 0.5 * (i % 2));
        alle.push_back(k);
    }
    return alle;
}

void einzelschaefte(Buehne &b)
{
    const double r = b.bluetenradius();
    const bool viele = b.gestalt.aufbau == Aufbau::Rosette && r < 60;
    const auto mass = bluetenmass(b.gestalt.bluete);
    const double hoch = std::max(0.4, 1 - r * (mass.oben * 0.8) / b.hoehe);
    const QColor f = gemischt(farbe::stiel, b.laub.grund, 0.3);
    const int n = b.gestalt.bluete == Bluete::Kerbrad ? 9 : viele ? 7 : r > 60 ? 3 : 5;
    const double weite = b.gestalt.bluete == Bluete::Kerbrad ? 92 : viele ? 74 : 52;
    int i = 0;
    for (const Kurve &k : schaefte(b, {n, weite, 8}, hoch, std::clamp(b.hoehe * 0.011, 3.0, 10.0), f))
        b.bluete(k.punkt(1), std::clamp(90 - k.winkel(1), -50.0, 50.0) * (mass.unten < 1 ? 0.7 : 0.3), r * b.zufall.zwischen(0.88, 1.03), 1.3 + 0.15 * (i++ % 2));
}

void schaftdolden(Buehne &b)
{
    const double r = std::clamp(b.bluetenradius(), 10.0, 74.0);
    const bool klein = b.gestalt.aufbau == Aufbau::Rosette || b.gestalt.aufbau == Aufbau::Fallen, gross = r > 48 && !klein;
    const int n = gross ? 4 : klein ? 5 : 15;
    const double weite = gross ? r * 1.05 : klein ? r * 1.35 : r * 2.5;
    const double hoch = std::max(0.5, 1 - weite / b.hoehe);
    const int staengel = gross ? 1 : klein ? 6 : b.gestalt.name == u"Clivia" ? 1 : 3;
    for (const Kurve &k : schaefte(b, {staengel, klein ? 80.0 : 44.0, 6}, hoch, std::clamp(b.hoehe * (gross ? 0.03 : 0.013), 3.0, 22.0), gemischt(farbe::stiel, b.laub.grund, 0.3))) {
        for (int i = 0; i < n; ++i) {
            const QPointF ziel = k.punkt(1) + QPointF(polar(137.5 * i + 40, weite * std::sqrt((i + 0.5) / n)));
            b.trieb({k.punkt(1), k.punkt(1) + (ziel - k.punkt(1)) * 0.3, k.punkt(1) + (ziel - k.punkt(1)) * 0.6, ziel}, 3, 2, farbe::stiel, 1.2);
        }
        dolde(b, k.punkt(1), r, n, weite, 0.92, 1.3);
    }
}

void schafttrauben(Buehne &b)
{
    const bool hyazinthe = b.gestalt.name == u"Hyacinthus", aloe = b.gestalt.bluete == Bluete::Roehre;
    const double r = std::clamp(b.bluetenradius() * (aloe ? 0.7 : 1), 9.0, 54.0);
    const int staengel = hyazinthe || aloe ? 1 : 3, hoechstens = b.gestalt.aufbau == Aufbau::Tentakel ? 8 : 46;
    for (const Kurve &k : schaefte(b, {staengel, 40, hyazinthe || aloe ? 2.0 : 24.0}, 0.97, std::clamp(b.hoehe * 0.014, 3.0, 16.0), gemischt(farbe::stiel, b.laub.grund, 0.25))) {
        const double von = hyazinthe ? 0.48 : 0.66;
        const int n = std::clamp(int(k.laenge() * (1 - von) / (r * (hyazinthe ? 0.22 : 0.36))), 7, hoechstens);
        for (int i = 0; i < n; ++i) {
            const double t = von + (1 - von) * i / n, schmal = 1 - 0.45 * double(i) / n;
            const double quer = hyazinthe ? std::sin(i * 2.4) * 1.1 : (i % 2 ? 0.55 : -0.55);
            const QPointF ort = k.punkt(t) + polar(k.winkel(t) - 90, quer * r * schmal);
            b.bluete(ort, aloe ? 180 + (i % 2 ? -35.0 : 35.0) : quer * 40, r * (0.6 + 0.4 * schmal), 1.3 + 0.3 * std::cos(i * 2.4) + 0.001 * i);
        }
    }
}

/// Arching sprays with the flowers in two rows along their outer half.
void rispen(Buehne &b)
{
    const double r = std::clamp(b.bluetenradius(), 9.0, 62.0);
    const bool gruenlilie = b.gestalt.name == u"Chlorophytum";
    const int staengel = r > 45 ? 2 : 3;
    std::vector<Kurve> boegen;
    for (int i = 0; i < staengel; ++i) { // rise to the full height and arch over
        const double seite = staengel == 2 ? (i ? 1 : -0.8) : (i - 1) * 0.8 + (i == 1 ? 0.35 : 0), h = b.hoehe * (1 - 0.1 * (i % 2)), w = gruenlilie ? b.hoehe * 1.5 : b.hoehe * (r > 45 ? 0.62 : 0.75);
        const QPointF a = b.fuss + QPointF(seite * b.topf * 0.1, 0);
        boegen.push_back({a, a + QPointF(seite * w * 0.1, -h * (gruenlilie ? 1 : 0.85)), a + QPointF(seite * w * 0.35, -h * (gruenlilie ? 1.2 : 1.22)), a + QPointF(seite * w, gruenlilie ? h * 0.25 : -h * 0.74)});
        b.trieb(boegen.back(), std::clamp(b.hoehe * 0.009, 3.0, 8.0), 2.5, farbe::stiel, 1.05);
    }
    for (const Kurve &k : boegen) {
        const int n = std::clamp(int(k.laenge() * 0.55 / (r * 1.05)), 4, 18);
        for (int i = 0; i < n; ++i) {
            const double t = 0.45 + 0.54 * i / (n - 1);
            const QPointF ort = k.punkt(t) + polar(k.winkel(t) + (i % 2 ? 90 : -90), r * 0.62);
            b.trieb({k.punkt(t), k.punkt(t), ort, ort}, 2.5, 2, farbe::stiel, 1.2);
            b.bluete(ort, b.zufall.streuung(12), r * (1.04 - 0.28 * i / n), 1.3 + 0.02 * (n - i));
        }
        if (gruenlilie) // a young plant hangs at the end
            for (const double g : {-150.0, -120.0, -90.0, -60.0, -30.0, 20.0, 160.0}) {
                const Kurve blatt = Kurve::bogen(k.punkt(1), g, b.hoehe * 0.22, 40);
                b.ding(1.4, [=, f = b.laub.grund, z = b.laub.zweite](QPainter &p) { bandblatt(p, blatt, {9, 0.3, 0.8, false, false, Bandmuster::Laengs}, f, z, 0.1); });
            }
    }
}

/// Spikes of overlapping bracts, with the small flowers that look out of them.
void kerzen(Buehne &b)
{
    const double laenge = std::clamp(b.gestalt.bluetenbreite * b.pixelJeCm, 60.0, b.hoehe < 600 && b.pixelJeCm == 1 ? 300.0 : 170.0), halb = laenge * 0.17;
    const QColor f = b.bluetenfarben.haupt, z = b.bluetenfarben.zweite.isValid() ? b.bluetenfarben.zweite : heller(f, 0.45);
    const bool haengt = b.wuchs(u"überhängend");
    Stempel schuppe;
    QPainterPath form(QPointF(0, 0));
    form.cubicTo({0.25, -0.5}, {0.75, -0.42}, {1, 0});
    form.cubicTo({0.75, 0.42}, {0.25, 0.5}, {0, 0});
    schuppe.verlauf(form, dunkler(f, 0.2), heller(f, 0.12), {0, 0}, {1, 0});
    const size_t viele = b.gestalt.aufbau == Aufbau::Eintrieb ? 1 : 9;
    for (const Spross &s : sichtbare(b.spitzen, viele, true, halb * 2.4)) {
        const double grad = viele == 1 ? 90 : std::clamp(s.grad, 50.0, 130.0);
        const Kurve k = Kurve::bogen(s.ort, grad, laenge, haengt ? 95 : 6);
        b.trieb(k, 4, 2, farbe::stiel, 1.25);
        for (int i = 0; i < 9; ++i)
            for (const int seite : {-1, 1}) {
                const double t = 0.06 + 0.1 * i, w = k.winkel(t) + seite * (46 - 2.5 * i);
                b.ding(1.3 + 0.2 * s.ebene + 0.012 * i, [=](QPainter &p) {
                    if (i % 3 == 1) {
                        QPainterPath zunge(k.punkt(t));
                        zunge.quadTo(k.punkt(t) + polar(w, halb * 1.6), k.punkt(t) + polar(w + seite * 26, halb * 2.3));
                        p.setBrush(Qt::NoBrush);
                        p.setPen(QPen(umriss(z), halb * 0.34, Qt::SolidLine, Qt::RoundCap));
                        p.drawPath(zunge);
                        p.setPen(QPen(z, halb * 0.24, Qt::SolidLine, Qt::RoundCap));
                        p.drawPath(zunge);
                    }
                    schuppe.zeichnen(p, k.punkt(t), -w, halb * (1.75 - 0.1 * i), 0.95, 0.02 * i);
                });
            }
        b.ding(1.42 + 0.2 * s.ebene, [=](QPainter &p) { schuppe.zeichnen(p, k.punkt(0.86), -k.winkel(0.9), halb * 1.1); });
    }
}

/// Hanging tails of tiny flowers.
void kaetzchen(Buehne &b)
{
    const QColor f = b.bluetenfarben.haupt;
    const double laenge = std::min(b.gestalt.bluetenbreite * b.pixelJeCm * 0.8, b.hoehe * 0.34);
    for (const Spross &s : sichtbare(b.achseln, 18, false, laenge * 0.3)) {
        const double l = laenge * b.zufall.zwischen(0.7, 1), dicke = std::max(7.0, l * 0.085);
        const Kurve k = Kurve::bogen(s.ort, s.grad > 90 ? 200 : -20, l, 68);
        const auto saat = b.zufall.roh();
        b.ding(1.3 + 0.3 * s.ebene, [=](QPainter &p) {
            Zufall z(u"", saat);
            p.setPen(QPen(dunkler(f, 0.25), 0.8));
            p.setBrush(f);
            p.drawPath(band(k, [=](double t) { return dicke * 0.8 * std::sqrt(std::max(0.05, 1 - t * t * t)); }));
            for (int i = 0; i < int(l * 1.1); ++i) {
                const double t = z.zahl(), w = k.winkel(t) + (i % 2 ? 70 : -70);
                const QPointF von = k.punkt(t) + polar(w, dicke * z.zwischen(0.0, 0.6));
                p.setPen(QPen(i % 3 ? heller(f, 0.22) : dunkler(f, 0.15), 1.5));
                p.drawLine(von, von + polar(w - (i % 2 ? 30 : -30), dicke * 0.7));
            }
        });
    }
}

void blattkolben(Buehne &b)
{
    const double laenge = b.hoehe * 0.84;
    for (int i = 0; i < 7; ++i) {
        const double lage = -1 + i / 3.0;
        const QPointF a = b.fuss - QPointF(-lage * b.topf * 0.35, b.hoehe * 0.12);
        const Kurve k = Kurve::bogen(a, 90 - lage * 26, laenge * b.zufall.zwischen(0.75, 1.1), 14);
        b.ding(0.4 + 0.1 * (i % 3), [=](QPainter &p) {
            stiel(p, k, 5, 4, QColor(0xA8, 0x6A, 0x5E));
            p.setPen(QPen(QColor(0x9B, 0x98, 0x62), 1));
            p.setBrush(QColor(0xE9, 0xE6, 0xBE));
            p.drawPath(band(k, [](double t) { return 5.5 * std::sqrt(std::max(0.0, 1 - std::pow(t, 6))); }, 0.56, 1));
        });
    }
}

/// Bracts in the middle of a funnel: a star, a sword or a head, by genus.
void mitte(Buehne &b)
{
    const QColor f = b.bluetenfarben.haupt, z = b.bluetenfarben.zweite.isValid() ? b.bluetenfarben.zweite : farbe::staub;
    const QPointF herz = b.fuss - QPointF(0, b.hoehe * 0.42);
    const bool schwert = b.gestalt.name == u"Vriesea", kopf = b.gestalt.name == u"Tillandsia";
    Stempel hochblatt;
    QPainterPath form(QPointF(0, 0));
    form.cubicTo({0.2, -0.24}, {0.7, -0.16}, {1, 0});
    form.cubicTo({0.7, 0.16}, {0.2, 0.24}, {0, 0});
    hochblatt.verlauf(form, dunkler(f, 0.2), heller(f, 0.14), {0, 0}, {1, 0});
    if (schwert || kopf) {
        const double laenge = b.hoehe * (schwert ? 0.62 : 0.6), breite = schwert ? 0.3 : 0.42;
        const Kurve k = Kurve::bogen(herz + QPointF(0, b.hoehe * 0.1), schwert ? 84 : 70, laenge, schwert ? 8 : 20);
        b.trieb(k, 9, 5, gemischt(farbe::stiel, f, 0.4), 0.9);
        for (int i = 0; i < 15; ++i)
            b.ding(1.2 + 0.01 * i, [=](QPainter &p) {
                const double t = 0.3 + 0.68 * i / 15;
                hochblatt.zeichnen(p, k.punkt(t), -(k.winkel(t) + (i % 2 ? 1 : -1) * (schwert ? 24 : 34)), laenge * breite * (1 - 0.4 * t), 1.5, i % 2 ? 0.08 : -0.05);
            });
        for (const double t : {0.55, 0.75})
            b.ding(1.5, [=](QPainter &p) {
                for (const double g : {-50.0, 0.0, 50.0})
                    hochblatt.zeichnen(p, k.punkt(t) + polar(k.winkel(t) - 90, laenge * 0.12), -(k.winkel(t) - 70 + g), kopf ? laenge * 0.16 : laenge * 0.1, 2.2, 0.3);
                p.setBrush(z);
                p.setPen(QPen(umriss(z), 1));
                p.drawEllipse(k.punkt(t) + polar(k.winkel(t) - 90, laenge * 0.14), laenge * 0.035, laenge * 0.035);
            });
        return;
    }
    const double h = b.hoehe, weit = std::clamp(b.gestalt.bluetenbreite / 2 * b.pixelJeCm * 1.35, 60.0, 170.0);
    b.trieb({b.fuss, b.fuss - QPointF(0, b.hoehe * 0.2), herz - QPointF(0, b.hoehe * 0.15), herz - QPointF(0, b.hoehe * 0.3)}, 14, 11, gemischt(farbe::stiel, f, 0.5), 0.85);
    for (int ring = 0; ring < 3; ++ring)
        for (int i = 0; i < 8; ++i) {
            const double grad = 8 + 164.0 * (i + 0.5 * (ring % 2)) / 7.5 + b.zufall.streuung(5);
            b.ding(1.1 + 0.2 * ring + 0.1 * std::abs(std::cos(grad * pi / 180)), [=](QPainter &p) {
                hochblatt.zeichnen(p, herz - QPointF(0, h * (0.2 + 0.09 * ring)), -grad, weit * (1.1 - 0.24 * ring), 1, 0.08 * ring);
            });
        }
    for (int i = 0; i < 9; ++i)
        b.ding(1.7, [=](QPainter &p) {
            p.setPen(QPen(umriss(z), 1));
            p.setBrush(z);
            p.drawEllipse(herz - QPointF(0, h * 0.42) + polar(40.0 * i, weit * (i ? 0.2 : 0)), weit * 0.05, weit * 0.065);
        });
}

void fruechte(Buehne &b)
{
    const double masse[] = {0, 0.9, 2.4, 3, 3, 6};
    const Frucht form = b.gestalt.frucht;
    const double r = std::clamp(masse[size_t(form)] / 2 * b.pixelJeCm, form == Frucht::Schote ? 15.0 : 8.0, form == Frucht::Ananas ? 130.0 : 30.0) * (form == Frucht::Beere && b.gestalt.name == u"Solanum" ? 1.5 : 1);
    if (form == Frucht::Ananas) {
        const QPointF oben = b.fuss - QPointF(0, b.hoehe * 0.5);
        b.trieb({b.fuss, b.fuss - QPointF(0, b.hoehe * 0.2), oben, oben}, 18, 16, farbe::stiel, 0.8);
        b.frucht(oben, r, 1.3);
        return;
    }
    const bool traube = form == Frucht::Beere && (b.gestalt.name == u"Ardisia" || b.gestalt.name == u"Lantana");
    for (const Spross &s : sichtbare(b.gestalt.aufbau == Aufbau::Eintrieb ? b.achseln : b.achseln.empty() ? b.spitzen : b.achseln, traube ? 16 : 34, false, r * 2.2)) {
        if (!traube) {
            b.frucht(s.ort + QPointF(b.zufall.streuung(r), form == Frucht::Schote ? -r * 0.3 : r * 0.8), r, 1.4 + 0.2 * s.ebene, form == Frucht::Schote ? b.zufall.streuung(30) : 0);
            continue;
        }
        for (int i = 0; i < 7; ++i)
            b.frucht(s.ort + polar(137.5 * i, r * 1.9 * std::sqrt(i / 7.0)) + QPointF(0, r * 2), r, 1.4 + 0.2 * s.ebene);
    }
}

} // namespace

void bluehen(Buehne &b)
{
    if (b.fruchtet())
        fruechte(b);
    if (!b.blueht())
        return;
    switch (b.gestalt.stand) {
    case Stand::Keiner: break;
    case Stand::Einzeln: einzelne(b); break;
    case Stand::Dolde: doldenAnTrieben(b, 6, 1.5, 0.7); break;
    case Stand::Ball: doldenAnTrieben(b, 19, 3.1, 0.78); break;
    case Stand::Traube: trauben(b); break;
    case Stand::Haengend: haengende(b); break;
    case Stand::Schaft: einzelschaefte(b); break;
    case Stand::Schaftdolde: schaftdolden(b); break;
    case Stand::Schafttraube: schafttrauben(b); break;
    case Stand::Rispe: rispen(b); break;
    case Stand::Kerze: kerzen(b); break;
    case Stand::Kaetzchen: kaetzchen(b); break;
    case Stand::Kolben: blattkolben(b); break;
    case Stand::Mitte:
        if (b.gestalt.aufbau != Aufbau::Kugelkaktus)
            mitte(b);
        break;
    }
}
