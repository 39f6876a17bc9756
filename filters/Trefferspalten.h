#pragma once

#include "Kriterien.h"

#include <QByteArray>
#include <QStringList>

#include <array>
#include <atomic>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

class Datenbank;

/* What all criteria of a Sparte ask of its plants, read once: each value once, and for each plant its number. A criterion is then tested
   value by value and no longer plant by plant. */

/// One bit for each plant.
class Bitmenge
{
public:
    explicit Bitmenge(size_t plaetze = 0, bool gesetzt = false);

    void setzen(size_t i) { worte_[i / breite] |= std::uint64_t(1) << (i % breite); }
    bool hat(size_t i) const { return worte_[i / breite] >> (i % breite) & 1; }
    Bitmenge &operator&=(const Bitmenge &andere);
    Bitmenge &operator|=(const Bitmenge &andere);
    /// First place set in both; nothing where there is none.
    std::optional<size_t> ersterGemeinsamer(const Bitmenge &andere) const;
    size_t anzahl() const; ///< places that are set
    /// Sets the word of 64 places from `i` on, a multiple of 64.
    void wortSetzen(size_t i, std::uint64_t wort) { worte_[i / breite] = wort; }

    static constexpr size_t breite = 64;

private:
    std::vector<std::uint64_t> worte_; ///< places past the last plant are never set
};

/// A number for each plant, in as few bytes as the largest needs.
class Kodespalte
{
public:
    void anhaengen(std::uint32_t kode);
    void abschliessen(); ///< gives back what was kept for more
    std::uint32_t operator[](size_t i) const;
    /// Plants at whose number `tabelle` holds 1; every number has its place there.
    Bitmenge nachTabelle(const std::vector<std::uint8_t> &tabelle) const;

private:
    std::variant<std::vector<std::uint8_t>, std::vector<std::uint16_t>, std::vector<std::uint32_t>> kodes_;
};

/// Texts one behind the other, numbered from 0.
class Textliste
{
public:
    size_t anzahl() const { return enden_.size(); }
    std::string_view operator[](size_t i) const;
    void anhaengen(std::string_view text);
    void abschliessen();
    /// Writes the texts in upper case, as texts are compared; in place, as a second copy would be the most memory that is ever needed.
    void grossSchreiben();
    /// For each text whether it contains the other; an empty one is in all.
    std::vector<std::uint8_t> enthaelt(std::string_view gesucht) const;

private:
    QByteArray bytes_; ///< UTF-8; grows without a copy of itself, which a vector does not
    std::vector<std::uint32_t> enden_;
};

/// The synonyms of one origin's table.
struct Synonymliste
{
    static constexpr std::uint32_t keine = ~std::uint32_t(0);

    Textliste texte;                     ///< upper case
    std::vector<std::uint32_t> pflanzen; ///< whose it is, by its place among the plants; `keine`: nobody's here
};

/// What one criterion asks.
struct Kriteriumspalte
{
    static constexpr std::uint8_t andere = 1, mitBild = 2; ///< bits of a value's first byte
    /// Text criteria: the number of plants of an origin that they do not ask, and that of the first text.
    static constexpr std::uint32_t nichtGefragt = 0, ersterText = 1;

    std::array<QStringList, 2> felder; ///< of the first origin and of the other; names of the columns
    Kodespalte kodes;
    /// Text criteria: the text in upper case. Others: a byte of bits, then each field of the record's origin, led by its length.
    Textliste werte;
    std::array<Synonymliste, 2> synonyme;
    std::optional<QString> fehler; ///< why it cannot be tested

    static bool istText(Pruefung pruefung);
    /// The fields of a value, in the order of `felder`; points into `werte`.
    static std::vector<std::string_view> zerlegen(std::string_view wert);
};

struct Trefferspalten
{
    /// Reads in pieces, between which the file can be changed: whoever reads asks afterwards whether it was, and reads anew. Throws where
    /// the plants cannot be read and, `Abgebrochen`, once `halt` is set.
    static std::shared_ptr<const Trefferspalten> lesen(Datenbank &arbeit, const Filterbeschreibung &beschreibung, const std::atomic<bool> &halt);
    struct Abgebrochen
    {
    };

    std::vector<qint64> nummern;            ///< of the plants, in the order of the walk
    Bitmenge ausAnderer;                    ///< plants of the other origin
    std::vector<Kriteriumspalte> kriterien; ///< in the order of the table
};
