#include "Farben.h"

#include <algorithm>

namespace {

// clang-format off
constexpr struct
{
    QStringView wort;
    QRgb farbe;
} farben[] = {
    {u"weiß", 0xFFFDFBF4}, {u"weißlich", 0xFFF6F1DE}, {u"creme", 0xFFF6EBC4}, {u"hellgelb", 0xFFF5E98C}, {u"gelb", 0xFFF2D02C},
    {u"gelblich", 0xFFEADB8C}, {u"goldgelb", 0xFFEDAE1D}, {u"orange", 0xFFE98127}, {u"apricot", 0xFFF2B27C}, {u"lachs", 0xFFEE8C72},
    {u"hellrosa", 0xFFF5CBD3}, {u"rosa", 0xFFEA94AE}, {u"pink", 0xFFDC4C8C}, {u"rot", 0xFFC9283A}, {u"hellrot", 0xFFD9463C},
    {u"rötlich", 0xFFC9705A}, {u"scharlach", 0xFFD8352A}, {u"karmin", 0xFFB31C4C}, {u"dunkelrot", 0xFF831A2C}, {u"purpur", 0xFF96307A},
    {u"hellviolett", 0xFFB596D2}, {u"violett", 0xFF6D4AA6}, {u"dunkelviolett", 0xFF472A70}, {u"lila", 0xFFA77EC4}, {u"hellblau", 0xFF94B6E4},
    {u"blau", 0xFF4A66BE}, {u"dunkelblau", 0xFF2B3578}, {u"braun", 0xFF7E5332}, {u"hellbraun", 0xFFAA8052}, {u"dunkelbraun", 0xFF4F3524},
    {u"rotbraun", 0xFF7C3B2C}, {u"bronze", 0xFF76503A}, {u"ocker", 0xFFBE8F46}, {u"grau", 0xFF9A9A92}, {u"graubraun", 0xFF8D7F6E},
    {u"silbrig", 0xFFC2CEC6}, {u"schwarz", 0xFF2C2530}, {u"schwarzrot", 0xFF4A1526}, {u"grün", 0xFF568B45}, {u"hellgrün", 0xFF86B256},
    {u"dunkelgrün", 0xFF386C40}, {u"gelbgrün", 0xFFB9C553}, {u"grüngelb", 0xFFC5CB55}, {u"blaugrün", 0xFF5E8C82}, {u"graugrün", 0xFF889C7E},
    {u"weißgrün", 0xFFE2E8CC}, {u"weißlichgrün", 0xFFD8DFAF}, {u"graublau", 0xFF8298A0}, {u"rotgrün", 0xFF80474C}, {u"blauschwarz", 0xFF2B2D4E},
    {u"bläulich rot", 0xFF6E3A52}, {u"schwarzbraun", 0xFF3A2620}, {u"dunkelbraunviolett", 0xFF4B2C3A}, {u"zimtfarben", 0xFFB47B45},
    {u"rötlichgelb", 0xFFE2A95A}, {u"grünlich", 0xFFB9CB7E}, {u"bräunlich", 0xFFB59460}, {u"weißgelblich", 0xFFF2E9C0},
    {u"cremefarben", 0xFFF3E6BC}, {u"gelblichweiß", 0xFFF4ECC4}, {u"grünlichweiß", 0xFFE6EBC4}, {u"rötlichweiß", 0xFFF2D6CC},
    {u"bläulich", 0xFF8C86B0}, {u"farblos", 0xFFE9E6CC}};
// clang-format on

} // namespace

QColor farbeVon(QStringView wort)
{
    const auto *f = std::ranges::find(farben, wort, [](const auto &eintrag) { return eintrag.wort; });
    if (f != std::end(farben))
        return QColor(f->farbe);
    return wort.startsWith(u'#') && wort.size() == 7 ? QColor(wort.toString()) : QColor();
}

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

bool blass(const QColor &f)
{
    return f.lightness() > 205 && f.hslSaturation() < 190;
}
