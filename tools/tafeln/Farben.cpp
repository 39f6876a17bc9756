#include "Farben.h"

#include <algorithm>

namespace {

/// How a swatch is toned: turned hue in degrees, factors of saturation and value.
struct Ton
{
    QStringView wort;
    int drehung;
    double saettigung, helligkeit;
};

constexpr Ton toene[] = {
    {u"weiß", 0, 1, 1},          {u"gelb", -11, 0.78, 0.99},   {u"orange", -11, 0.84, 0.97}, {u"rosa", -16, 1.25, 0.96}, {u"rot", -1, 0.80, 0.83},
    {u"dunkelrot", -3, 0.82, 0.58}, {u"purpur", 3, 0.78, 0.74},  {u"violett", -8, 0.58, 0.66},  {u"lila", -12, 0.38, 0.84}, {u"blau", -14, 0.58, 0.80},
    {u"braun", 4, 0.66, 0.55},   {u"grau", 0, 1, 1},           {u"schwarz", 0, 1, 1},
};

QColor getoent(int bgr, const Ton &ton)
{
    const QColor muster(bgr & 0xFF, bgr >> 8 & 0xFF, bgr >> 16 & 0xFF);
    if (ton.wort == u"weiß")
        return QColor(0xFE, 0xFB, 0xF2);
    if (ton.wort == u"schwarz")
        return QColor(0x35, 0x2A, 0x3C);
    const int farbton = muster.hsvHue() < 0 ? 0 : (muster.hsvHue() + ton.drehung + 360) % 360;
    return QColor::fromHsv(farbton, std::min(255, int(muster.hsvSaturation() * ton.saettigung)), std::min(255, int(muster.value() * ton.helligkeit)));
}

QColor ausListe(QStringView wort, const Werteliste &worte, const Farbliste &farben)
{
    const auto *ton = std::ranges::find(toene, wort, &Ton::wort);
    for (int p = 1; p <= int(farben.werte.size()); ++p)
        if (worte.wort(p) == wort && ton != std::end(toene))
            return getoent(farben.werte[size_t(p - 1)], *ton);
    return {};
}

struct Blattton
{
    QStringView wort;
    QRgb farbe;
};

constexpr Blattton gruen[] = {{u"dunkelgrün", 0xFF3F7A48}, {u"hellgrün", 0xFF84B355}};
constexpr Blattton bunt[] = {{u"silbrig", 0xFFC3D0C3}, {u"weißgrün", 0xFFEDF0D8}, {u"gelbgrün", 0xFFDAD764}, {u"rotgrün", 0xFFA03C58}};

template <size_t n> std::vector<QColor> gesetzte(const Datensatz &pflanze, const Blattton (&toene)[n])
{
    std::vector<QColor> farben;
    for (const Blattton &ton : toene)
        if (pflanze.hat(u"BLATTFARB", ton.wort))
            farben.emplace_back(ton.farbe);
    return farben;
}

} // namespace

QColor gemischt(const QColor &a, const QColor &b, double t)
{
    t = std::clamp(t, 0.0, 1.0);
    const auto kanal = [t](int x, int y) { return int(x + (y - x) * t + 0.5); };
    return QColor(kanal(a.red(), b.red()), kanal(a.green(), b.green()), kanal(a.blue(), b.blue()), kanal(a.alpha(), b.alpha()));
}

QColor durchsichtig(QColor f, double deckung)
{
    f.setAlphaF(float(deckung));
    return f;
}

QColor umriss(const QColor &f)
{
    return gemischt(f, QColor(0x35, 0x2B, 0x2B), f.lightness() > 215 ? 0.42 : 0.5);
}

QColor bluetenfarbe(QStringView wort)
{
    return ausListe(wort, WL_Bluetenfarbe, WL_BluetenfarbeRGB);
}

QColor fruchtfarbe(QStringView wort)
{
    return ausListe(wort, WL_ToFruchtfarbe, WL_ToFruchtfarbeRGB);
}

std::vector<QColor> fruchtfarben(const Datensatz &pflanze)
{
    std::vector<QColor> farben;
    for (const QString &wort : pflanze.worte(u"FRUCHTFARB"))
        if (const QColor f = fruchtfarbe(wort); f.isValid())
            farben.push_back(f);
    return farben;
}

Laub laub(const Datensatz &pflanze)
{
    const std::vector<QColor> gruene = gesetzte(pflanze, gruen);
    std::vector<QColor> bunte = gesetzte(pflanze, bunt);
    Laub l;
    l.roteUnterseite = pflanze.hat(u"BLATTFARB", u"rotgrün");
    if (gruene.size() == 2)
        l.grund = gemischt(gruene[0], gruene[1], 0.5);
    else if (gruene.size() == 1)
        l.grund = gruene[0];
    else if (!bunte.empty()) {
        // Without a plain green the darkest tint carries the pattern of the others.
        l.grund = gemischt(bunte.back(), QColor(gruen[0].farbe), bunte.size() == 1 ? 0.35 : 0.1);
        bunte.pop_back();
    } else {
        l.grund = QColor(gruen[0].farbe);
    }
    l.zweite = bunte.empty() ? heller(l.grund, 0.5) : bunte.front();

    std::vector<Muster> muster;
    if (pflanze.hat(u"BLATTFARB", u"gestreift"))
        muster.push_back(Muster::Streifen);
    if (pflanze.hat(u"BLATTFARB", u"gefleckt"))
        muster.push_back(Muster::Flecken);
    if (pflanze.hat(u"BLATTFARB", u"panaschiert"))
        muster.push_back(Muster::Rand);
    // Variegation that the record names beside plain green alone is that of single varieties: it shows in the detail only.
    const bool hell = pflanze.hat(u"BLATTFARB", u"weißgrün") || pflanze.hat(u"BLATTFARB", u"gelbgrün") || pflanze.hat(u"BLATTFARB", u"silbrig");
    const bool nurSorten = !hell || !pflanze.hat(u"PFLANZTYP", u"Grünpflanze");
    if (!muster.empty() && !(muster.front() == Muster::Rand && nurSorten))
        l.muster = muster.front();
    else if (muster.empty() && !bunte.empty() && gruene.size() == 1)
        l.muster = Muster::Adern;
    if (!muster.empty())
        l.anderes = muster.back();
    return l;
}
