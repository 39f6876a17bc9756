#include "Apfel.h"

#include <cmath>

double mittel(const Datensatz &sorte, QStringView spalte, std::initializer_list<std::pair<QStringView, double>> werte, double sonst)
{
    double summe = 0;
    int anzahl = 0;
    for (const auto &[wort, wert] : werte)
        if (sorte.hat(spalte, wort)) {
            summe += wert;
            ++anzahl;
        }
    return anzahl ? summe / anzahl : sonst;
}

std::vector<QColor> wortfarben(const Datensatz &sorte, QStringView spalte, std::initializer_list<std::pair<QStringView, QRgb>> farben)
{
    std::vector<QColor> gefunden;
    for (const auto &[wort, farbe] : farben)
        if (sorte.hat(spalte, wort))
            gefunden.emplace_back(farbe);
    return gefunden;
}

Apfelform::Apfelform(const Datensatz &s)
{
    const auto ja = [&](QStringView spalte, QStringView wort, double wert) { return s.hat(spalte, wort) ? wert : 0.0; };
    durchmesser = mittel(s, u"fruchtgr", {{u"klein", 5.6}, {u"mittelgroß", 6.9}, {u"groß", 8.1}, {u"sehr groß", 9.4}}, 7);
    hoehe = mittel(s, u"form_l", {{u"flach", 0.78}, {u"kugelig", 0.93}, {u"hoch", 1.1}, {u"walzenförmig/faßförmig", 1.08}}, 0.92);
    bauch = mittel(s, u"form_l", {{u"stielbauchig", -0.24}, {u"mittelbauchig", 0.0}, {u"kelchbauchig", 0.2}}, 0);
    kegel = ja(u"form_l", u"kegelförmig", 0.2);
    fass = 2.12 + ja(u"form_l", u"walzenförmig/faßförmig", 0.9);
    schief = ja(u"form_l", u"schiefgebaut", 0.10);
    stielgrubeTiefe = mittel(s, u"st_grube", {{u"flach", 0.16}, {u"mitteltief", 0.27}, {u"tief", 0.4}}, 0.27);
    stielgrubeWeite = mittel(s, u"st_grube", {{u"eng", 0.42}, {u"mittelweit", 0.56}, {u"weit", 0.72}}, 0.56);
    kelchgrubeTiefe = mittel(s, u"k_grube", {{u"aufsitzend", 0.02}, {u"flach", 0.12}, {u"mitteltief", 0.22}, {u"tief", 0.34}}, 0.2);
    kelchgrubeWeite = mittel(s, u"k_grube", {{u"eng", 0.36}, {u"mittelweit", 0.48}, {u"weit", 0.62}}, 0.48);
    kanten = mittel(s, u"form_q", {{u"rund", 0}, {u"rundkantig", 0.022}, {u"kantig", 0.045}}, 0) + ja(u"fruchtrel", u"Kanten", 0.008);
    rippen = ja(u"fruchtrel", u"Rippen", 0.02);
    unruhe = ja(u"form_q", u"unregelmäßig rund", 0.022);
    oval = ja(u"form_q", u"oval", 0.08);
    kelchhoecker = ja(u"k_umgebung", u"Höcker", 0.05) + ja(u"k_umgebung", u"Rippen", 0.04) + ja(u"k_umgebung", u"wellig", 0.02);
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
