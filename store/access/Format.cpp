#include "Format.h"

#include <bit>
#include <utility>

namespace accessdatei {

double Sicht::kommazahl(size_t ort) const
{
    return std::bit_cast<double>(u64(ort));
}

float Sicht::einfache(size_t ort) const
{
    return std::bit_cast<float>(u32(ort));
}

void rc4(std::span<const uint8_t> schluessel, std::span<uint8_t> daten)
{
    uint8_t feld[256];
    for (int i = 0; i < 256; ++i)
        feld[i] = uint8_t(i);
    uint8_t j = 0;
    for (size_t i = 0; i < 256; ++i) {
        j = uint8_t(j + feld[i] + schluessel[i % schluessel.size()]);
        std::swap(feld[i], feld[j]);
    }
    uint8_t i = 0;
    j = 0;
    for (uint8_t &byte : daten) {
        j = uint8_t(j + feld[++i]);
        std::swap(feld[i], feld[j]);
        byte ^= feld[uint8_t(feld[i] + feld[j])];
    }
}

} // namespace accessdatei
