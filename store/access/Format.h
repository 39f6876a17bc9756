#pragma once

#include <cstddef>
#include <cstdint>
#include <exception>
#include <span>

/* What reader and writer of Access files share: views that check every access, numbers as the files hold them, the kinds of columns. */

namespace accessdatei {

/// A structure that does not hold what it must. Whoever can go on without it catches it; the user never sees its words.
class Beschaedigt : public std::exception
{
public:
    explicit Beschaedigt(const char *grund) : grund_(grund) {}
    const char *what() const noexcept override { return grund_; }

private:
    const char *grund_;
};

/// Bytes of somebody else. Every access beyond them throws.
struct Sicht
{
    const uint8_t *daten = nullptr;
    size_t laenge = 0;

    uint8_t u8(size_t ort) const
    {
        fordern(ort, 1);
        return daten[ort];
    }
    uint16_t u16(size_t ort) const
    {
        fordern(ort, 2);
        return uint16_t(daten[ort] | daten[ort + 1] << 8);
    }
    uint32_t u32(size_t ort) const
    {
        fordern(ort, 4);
        return uint32_t(daten[ort]) | uint32_t(daten[ort + 1]) << 8 | uint32_t(daten[ort + 2]) << 16 | uint32_t(daten[ort + 3]) << 24;
    }
    uint64_t u64(size_t ort) const { return u32(ort) | uint64_t(u32(ort + 4)) << 32; }
    double kommazahl(size_t ort) const;
    float einfache(size_t ort) const;
    Sicht teil(size_t ort, size_t anzahl) const
    {
        fordern(ort, anzahl);
        return {daten + ort, anzahl};
    }
    Sicht ab(size_t ort) const { return teil(ort, ort <= laenge ? laenge - ort : 0); }
    Sicht hoechstens(size_t anzahl) const { return {daten, anzahl < laenge ? anzahl : laenge}; }

private:
    void fordern(size_t ort, size_t anzahl) const
    {
        if (ort > laenge || anzahl > laenge - ort)
            throw Beschaedigt("truncated");
    }
};

inline void schreibe16(uint8_t *ort, uint32_t zahl)
{
    ort[0] = uint8_t(zahl);
    ort[1] = uint8_t(zahl >> 8);
}

inline void schreibe32(uint8_t *ort, uint32_t zahl)
{
    schreibe16(ort, zahl);
    schreibe16(ort + 2, zahl >> 16);
}

inline uint32_t lies16(const uint8_t *ort)
{
    return uint32_t(ort[0]) | uint32_t(ort[1]) << 8;
}

/// Kind of a column, by its number in the files.
enum class Typ : uint8_t {
    Wahrheit = 1,
    Byte = 2,
    Kurz = 3,
    Lang = 4,
    Waehrung = 5,
    Einfach = 6,
    Doppelt = 7,
    Datum = 8,
    Binaer = 9,
    Text = 10,
    Objekt = 11,
    Memo = 12,
    Guid = 15,
    Dezimal = 16,
    Mehrfach = 18,
    Riesig = 19,
    DatumGenau = 20,
};

constexpr bool istLangwert(Typ typ)
{
    return typ == Typ::Memo || typ == Typ::Objekt;
}

/// The head's mask and the pages of encoded files. Applied twice it is undone.
void rc4(std::span<const uint8_t> schluessel, std::span<uint8_t> daten);

inline constexpr uint8_t kopfschluessel[] = {0xC7, 0xDA, 0x39, 0x6B};
inline constexpr size_t kopfmaskeAb = 0x18, kopfmaske = 128, kopfmaskeJet3 = 126;

/// A page that holds rows: their number and the places of their starts, which run down from the page's end.
inline constexpr uint8_t seiteDaten = 1, seiteTabelle = 2, seiteKnoten = 3, seiteBlatt = 4, seiteBelegung = 5;
/// Bits of a row's start.
inline constexpr uint32_t zeileGeloescht = 0x8000, zeileVerweis = 0x4000, zeilenort = 0x1FFF;
/// Bits of a long value's length.
inline constexpr uint32_t langwertHier = 0x80000000, langwertEineZeile = 0x40000000, langwertLaenge = 0x3FFFFFFF;
inline constexpr size_t langwertKopf = 12;
/// A text that begins so holds one byte a character.
inline constexpr uint8_t verdichtet[] = {0xFF, 0xFE};
/// Of a table; numbers of deleted columns count.
inline constexpr int meisteSpalten = 255;
/// A row's number within its page is one byte.
inline constexpr int meisteZeilenJeSeite = 256;
/// Flags of a catalog row that belongs to the engine.
inline constexpr uint32_t katalogSystem = 0x80000002;

} // namespace accessdatei
