#include "Fenstertabelle.h"

#include "plantwindows/Pflanzenfenster.h"

#include <algorithm>

int Fenstertabelle::FensterNummerHolen()
{
    for (int nummer = 1; nummer <= obergrenze(); ++nummer)
        if (platz(nummer).frei) {
            platz(nummer).frei = false;
            return nummer;
        }
    plaetze_.emplace_back();
    return obergrenze();
}

bool FensterZahlPruefen(std::span<const Fenstertabelle, anzahlSparten> tabellen)
{
    std::array<int, anzahlSparten> gemerkt{};
    int zahl = 0;
    for (size_t i = 0; i < tabellen.size(); ++i)
        for (int nummer = 1; nummer <= tabellen[i].obergrenze(); ++nummer) {
            zahl += tabellen[i].besetzt(nummer) ? 1 : 0;
            gemerkt[i] = zahl;
        }
    return !(std::ranges::count(gemerkt, 1) > 0 && std::ranges::any_of(gemerkt, [](int z) { return z > 1; }));
}
