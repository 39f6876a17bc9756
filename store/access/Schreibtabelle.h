#pragma once

#include "Schreiber.h"

/* A table while it is written, the program's and the engine's own alike. */

namespace accessdatei {

/// Merkmale of a column.
inline constexpr uint8_t spalteFest = 0x03, spalteVariabel = 0x02, spalteSystem = 0x10, spalteGeschuetzt = 0x20;
/// Merkmale of an index.
inline constexpr uint8_t indexEinfach = 0x80, indexEindeutig = 0x81, indexOhneLeere = 0x82, indexGefordert = 0x88, indexSchluessel = 0x89;

struct Indexform
{
    std::string name;
    std::vector<int> spalten; ///< numbers of columns
    uint8_t merkmale = indexEinfach;
    bool hauptschluessel = false;
};

struct Schreiber::Tabelle
{
    /// A column as the file describes it. `nummer` is its place in the rows; the description may list columns in another order.
    struct Feld
    {
        QString name;
        Typ typ;
        uint16_t laenge; ///< bytes
        uint8_t merkmale;
        int nummer;
        bool verdichtet = false;
        uint16_t ort = 0, stelle = 0; ///< in the fixed part, among the variable columns

        bool fest() const { return merkmale & 1; }
    };

    std::string name;
    bool system = false;
    uint32_t seite = 0; ///< of the definition
    uint32_t ersteSeite = 0;
    std::vector<Feld> felder;
    std::vector<Indexform> indexe;

    std::vector<int> nachNummer; ///< place among `felder` of each number
    uint16_t festeBytes = 0, variable = 0;
    uint32_t kartenseite = 0, zeilen = 0;
    std::unique_ptr<Zeilenseiten> daten;
    std::vector<std::unique_ptr<Zeilenseiten>> lang; ///< one a column with long values, else null
    std::vector<uint32_t> wurzeln;
    std::vector<std::vector<std::string>> eintraege; ///< of each index

    /// Works out the places of the columns and takes the pages that every table has.
    void einrichten(Seitendatei &datei);
};

/// A text of the program's as Access keeps it.
void textSchluessel(std::string &eintrag, std::string_view text);

} // namespace accessdatei
