#include "Positionen.h"

#include <QByteArray>

#include <algorithm>
#include <charconv>

namespace {

bool nurFlags(std::string_view text, bool blanks)
{
    return std::ranges::all_of(text, [blanks](char z) { return z == '0' || z == '1' || (blanks && z == ' '); });
}

Positionen ausFlags(std::string_view text, int anzahl)
{
    Positionen menge;
    const int bis = std::min(anzahl, int(text.size()));
    for (int p = 1; p <= bis; ++p)
        if (text[size_t(p - 1)] == '1')
            menge.setzen(p);
    return menge;
}

Positionen ausZahl(std::string_view text, int anzahl)
{
    Positionen menge;
    int zahl = 0;
    const auto [ende, fehler] = std::from_chars(text.data(), text.data() + text.size(), zahl);
    if (fehler == std::errc() && ende == text.data() + text.size() && text.front() != '0' && zahl >= 1 && zahl <= anzahl)
        menge.setzen(zahl);
    return menge;
}

Positionen ausZahlOderFlags(std::string_view text, int anzahl)
{
    constexpr size_t sicherFlags = 3;
    if (nurFlags(text, true) && (text.size() >= sicherFlags || text.find(' ') != text.npos))
        return ausFlags(text, anzahl);
    if (const Positionen zahl = ausZahl(text, anzahl); !zahl.leer())
        return zahl;
    return nurFlags(text, false) ? ausFlags(text, anzahl) : Positionen();
}

Positionen ausMarken(std::string_view text, std::span<const Marke> marken, bool nurAnfang)
{
    Positionen menge;
    std::uint64_t gruppen = 0;
    const QString inhalt = QString::fromUtf8(text.data(), qsizetype(text.size()));
    for (const Marke &marke : marken) {
        const std::uint64_t gruppe = marke.gruppe ? std::uint64_t(1) << marke.gruppe : 0;
        if ((gruppen & gruppe) || !(nurAnfang ? inhalt.startsWith(marke.zeichen) : inhalt.contains(marke.zeichen)))
            continue;
        gruppen |= gruppe;
        menge.setzen(marke.position);
        if (nurAnfang)
            break;
    }
    return menge;
}

} // namespace

Positionen positionen(const Kodierung &kodierung, std::string_view text)
{
    if (text.empty())
        return {};
    switch (kodierung.weise) {
    case Schreibweise::Flags: return ausFlags(text, kodierung.anzahl);
    case Schreibweise::Zahl: return ausZahl(text, kodierung.anzahl);
    case Schreibweise::ZahlOderFlags: return ausZahlOderFlags(text, kodierung.anzahl);
    case Schreibweise::Anfang: return ausMarken(text, kodierung.marken, true);
    case Schreibweise::Marken: return ausMarken(text, kodierung.marken, false);
    }
    return {};
}

Positionen positionen(const Kodierung &kodierung, QStringView text)
{
    const QByteArray utf8 = text.toUtf8();
    return positionen(kodierung, std::string_view(utf8.data(), size_t(utf8.size())));
}

QString worteVon(Positionen positionen, const Werteliste &liste, QStringView trenner)
{
    QString text;
    for (int p = 1; p <= liste.anzahl(); ++p)
        if (positionen.hat(p)) {
            if (!text.isEmpty())
                text += trenner;
            text += liste.wort(p);
        }
    return text;
}
