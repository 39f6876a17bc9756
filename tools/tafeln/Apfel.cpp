#include "Apfel.h"

#include <algorithm>
#include <cmath>

namespace {

double stufe(double a, double b, double x)
{
    const double t = std::clamp((x - a) / (b - a), 0.0, 1.0);
    return t * t * (3 - 2 * t);
}

constexpr double sonneLaenge = 0.5, sonneBreite = 0.18;

} // namespace

double mittel(const Datensatz &sorte, QStringView spalte, std::initializer_list<std::pair<QStringView, double>> werte, double sonst)
{
    double summe = 0, anzahl = 0;
    for (const auto &[wort, wert] : werte)
        if (sorte.hat(spalte, wort))
            summe += wert, ++anzahl;
    return anzahl > 0 ? summe / anzahl : sonst;
}

std::vector<QColor> wortfarben(const Datensatz &sorte, QStringView spalte, std::initializer_list<std::pair<QStringView, QRgb>> farben, QRgb sonst)
{
    std::vector<QColor> gefunden;
    for (const auto &[wort, farbe] : farben)
        if (sorte.hat(spalte, wort))
            gefunden.emplace_back(farbe);
    return gefunden.empty() ? std::vector{QColor(sonst)} : gefunden;
}

QPointF Apfelform::meridian(double phi) const
{
    const double e = 2 / fass;
    const double c = std::cos(phi), r = std::pow(std::abs(std::sin(phi)), e);
    const double halb = c > 0 ? 1 + bauch : 1 - bauch;
    double y = hoehe * (-bauch + (c > 0 ? 1 : -1) * halb * std::pow(std::abs(c), e));
    const double v = y / hoehe;
    const auto mulde = [r](double weite) {
        const double q = r / weite;
        return q < 1 ? (1 - q * q) * (1 - q * q) : 0.0;
    };
    const double weite = r * (1 - kegel * std::max(0.0, 0.15 - v) / 1.15) * (1 + kegel * 0.1);
    y += c > 0 ? -stielgrubeTiefe * mulde(stielgrubeWeite) : kelchgrubeTiefe * mulde(kelchgrubeWeite);
    return {weite, y};
}

double Apfelform::quer(double l) const
{
    return 1 + kanten * std::cos(5 * l + 0.4) + rippen * (std::abs(std::cos(2.5 * l + 0.9)) - 0.6)
           + unruhe * (std::cos(2 * l + 1) + 0.7 * std::cos(3 * l + 2.2)) - oval * std::cos(2 * l) * 0.5;
}

QColor Apfelhaut::deck() const
{
    const QVector3D f = radius_ < 0 ? grund_ : (deckHell_ + deckDunkel_) / 2;
    return QColor::fromRgbF(f.x(), f.y(), f.z());
}

/// Smooth value noise in [0, 1].
double Apfelhaut::rauschen(double x, double y, std::uint32_t lage) const
{
    const auto zelle = [&](std::int32_t i, std::int32_t j) {
        std::uint32_t h = saat_ ^ lage * 0x9E3779B9u;
        h = (h ^ std::uint32_t(i)) * 0x85EBCA6Bu;
        h = (h ^ h >> 13 ^ std::uint32_t(j)) * 0xC2B2AE35u;
        return double((h ^ h >> 16) & 0xFFFF) / 65535.0;
    };
    const double fx = std::floor(x), fy = std::floor(y);
    const auto i = std::int32_t(fx), j = std::int32_t(fy);
    const double u = stufe(0, 1, x - fx), v = stufe(0, 1, y - fy);
    const double oben = zelle(i, j) + (zelle(i + 1, j) - zelle(i, j)) * u;
    const double unten = zelle(i, j + 1) + (zelle(i + 1, j + 1) - zelle(i, j + 1)) * u;
    return oben + (unten - oben) * v;
}

double Apfelhaut::deckung(double l, double b) const
{
    if (radius_ < 0)
        return 0;
    const double cosinus = std::sin(b * 1.45) * std::sin(sonneBreite) + std::cos(b * 1.45) * std::cos(sonneBreite) * std::cos(l - sonneLaenge);
    const double abstand = std::acos(std::clamp(cosinus, -1.0, 1.0)) + (wolken(l * 2.2, b * 2.4, 1) - 0.5) * 0.55;
    return 1 - stufe(radius_ - weich_, radius_ + weich_ * 0.4, abstand);
}

/// Flames along the meridians, long and narrow, that dissolve towards the calyx.
double Apfelhaut::streifen(double l, double b) const
{
    const double breit = rauschen(l * 11, b * 1.3 + 20, 2), schmal = rauschen(l * 27 + 50, b * 2.2, 3);
    return std::max(stufe(0.52, 0.68, breit) * 0.9, stufe(0.58, 0.72, schmal));
}

double Apfelhaut::berostung(double l, double b) const
{
    double r = 0;
    if (netz_ > 0) {
        const double faden = std::min(std::abs(rauschen(l * 9, b * 9, 4) - 0.5), std::abs(rauschen(l * 12 + 9, b * 12, 5) - 0.5));
        r = std::max(r, netz_ * (1 - stufe(0.02, 0.075, faden)) * stufe(0.3, 0.6, wolken(l * 1.5, b * 1.5, 6)));
    }
    if (figur_ > 0)
        r = std::max(r, figur_ * stufe(0.66, 0.72, wolken(l * 4.3, b * 4.3, 8)) * 0.85);
    if (flaeche_ > 0)
        // Rough russet covers all but a few places, fine russet lies in clouds.
        r = std::max(r, flaeche_ * stufe(flaeche_ > 0.75 ? 0.1 : 0.38, flaeche_ > 0.75 ? 0.34 : 0.62, wolken(l * 1.4, b * 1.4, 9))
                            * (0.75 + 0.25 * rauschen(l * 40, b * 40, 10)));
    if (stielrost_ > 0) {
        const double strahl = stielweite_ * 0.13 * rauschen(l * 7, 3, 11);
        r = std::max(r, 0.85 * stufe(0.90 - 0.07 * stielrost_ - strahl, 0.97 - 0.04 * stielrost_ - strahl * 0.6, b));
    }
    return r;
}

void Apfelhaut::punkte(QVector3D &f, double l, double b, double rot) const
{
    if (punktdichte_ <= 0 || std::abs(b) > 0.93)
        return;
    const double umfang = std::max(0.35, std::cos(b * 1.45));
    const double reihe = b * 17, zeile = std::floor(reihe);
    const double spalten = std::round(78 * umfang) / 6.283185;
    const double stelle = l * spalten + 0.5 * std::fmod(zeile, 2), spalte = std::floor(stelle);
    const double zahl = rauschen(spalte * 3 + 400, zeile * 3 + 400, 12);
    const double x = spalte + 0.25 + 0.5 * rauschen(spalte * 3 + 800, zeile * 3, 13),
                 y = zeile + 0.25 + 0.5 * rauschen(spalte * 3, zeile * 3 + 800, 14);
    if (zahl > punktdichte_)
        return;
    const double abstand = std::hypot((stelle - x), (reihe - y) * 1.05);
    const double g = punktgroesse_ * (0.7 + 0.6 * zahl);
    zu(f, punkt_, (1 - stufe(g * 0.55, g, abstand)) * 0.85);
    if (rot > 0.4) // a light halo in the cover colour
        zu(f, grund_, (1 - stufe(g, g * 1.8, abstand)) * stufe(g * 0.5, g, abstand) * 0.3);
}

/// The back, where the ends of the longitude meet, goes over from one to the other.
QRgb Apfelhaut::farbe(double l, double b) const
{
    constexpr double kreis = 6.283185307179586, saum = 0.35;
    const double ende = kreis / 2 - std::abs(l);
    if (ende >= saum)
        return einfach(l, b);
    const QColor hier(einfach(l, b)), dort(einfach(l > 0 ? l - kreis : l + kreis, b));
    return gemischt(hier, dort, 0.5 * (1 - stufe(0, saum, std::max(0.0, ende)))).rgb();
}

QRgb Apfelhaut::einfach(double l, double b) const
{
    QVector3D f = grund_;
    zu(f, grund2_, stufe(0.3, 0.7, wolken(l * 1.1, b * 1.4, 15) * 0.7 + 0.3 * (0.5 - 0.5 * b)));
    const double d = deckung(l, b);
    if (d > 0) {
        QVector3D deck = deckHell_;
        zu(deck, deckDunkel_, stufe(0.35, 1, d * 0.8 + 0.3 * wolken(l * 3, b * 3, 16)));
        double ton = grundton_ * d;
        if (marmor_ > 0)
            ton *= 0.35 + 0.65 * stufe(0.35, 0.6, wolken(l * 6, b * 6, 17));
        if (spritzer_ > 0)
            ton *= 0.45 + 0.55 * stufe(0.45, 0.55, rauschen(l * 22, b * 22, 18));
        zu(f, deck, ton * kraft_);
        if (streifen_ > 0) {
            QVector3D streifenfarbe = deck;
            zu(streifenfarbe, deckDunkel_, 0.6);
            zu(f, streifenfarbe, streifen(l, b) * stufe(0.05, 0.55, d) * kraft_);
        }
    }
    zu(f, rgb(QColor(0x9A, 0xA8, 0x55)), 0.35 * stufe(0.84, 1.0, b));
    punkte(f, l, b, d);
    zu(f, rgb(QColor(0xA6, 0x7C, 0x48)), berostung(l, b));
    if (reif_ > 0)
        zu(f, blau_ > 0 ? QVector3D(0.72f, 0.74f, 0.86f) : QVector3D(0.93f, 0.93f, 0.92f), reif_ * (0.6 + 0.8 * wolken(l * 2, b * 2, 19)));
    const auto byte = [](float x) { return int(std::clamp(x, 0.f, 1.f) * 255 + 0.5f); };
    return qRgb(byte(f.x()), byte(f.y()), byte(f.z()));
}
