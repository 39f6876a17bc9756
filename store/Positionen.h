#pragma once

#include "Wertelisten.h"

#include <QString>

#include <cstdint>
#include <span>
#include <string_view>

/* A coded column means a set of rows of its vocabulary. How it writes them is the column's Schreibweise; whoever shows, prints or tests a
   value reads the set. */

enum class Schreibweise : std::uint8_t {
    Flags,         ///< "1" at each position that is meant
    Zahl,          ///< the number of one position, without leading zeros
    ZahlOderFlags, ///< three or more characters of "0", "1" and blank, or such a text with a blank in it: flags; else a number; else flags
    Anfang,        ///< the first of the marks that the text begins with
    Marken,        ///< every mark that occurs; of the marks of one group only the first
};

struct Marke
{
    QStringView zeichen;
    int position;   ///< counted from 1
    int gruppe = 0; ///< marks of one group exclude each other, the first of the table counts; 0: none
};

/// A set of positions, counted from 1, of a vocabulary of at most 64 rows.
class Positionen
{
public:
    static constexpr int groesste = 64;

    constexpr Positionen() = default;
    constexpr explicit Positionen(std::uint64_t bits) : bits_(bits) {}

    /// False for a position outside the set's range.
    constexpr bool hat(int p) const { return p >= 1 && p <= groesste && (bits_ >> (p - 1) & 1); }
    constexpr void setzen(int p) { bits_ |= std::uint64_t(1) << (p - 1); }
    constexpr bool leer() const { return bits_ == 0; }
    constexpr bool schneidet(Positionen andere) const { return (bits_ & andere.bits_) != 0; }
    bool operator==(const Positionen &) const = default;

private:
    std::uint64_t bits_ = 0; ///< bit 0 is position 1
};

/// How a column writes positions 1 to `anzahl`, at most 64.
struct Kodierung
{
    Schreibweise weise = Schreibweise::Flags;
    int anzahl = Positionen::groesste;
    std::span<const Marke> marken = {}; ///< Anfang, Marken
};

/// Positions that a stored text (UTF-8) means; what it cannot mean is left out.
Positionen positionen(const Kodierung &kodierung, std::string_view text);
Positionen positionen(const Kodierung &kodierung, QStringView text);
/// Words of a set, joined.
QString worteVon(Positionen positionen, const Werteliste &liste, QStringView trenner = u", ");
