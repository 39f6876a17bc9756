#pragma once

#include "Positionen.h"

#include <QStringList>
#include <span>

/* The tables of the working database: each column once, with its order (ordinal 0 is ARTNR), the kind of its content, its
   vocabulary, and its label and unit in print. The build tool, the record views, the filters and the printouts read it here. */

enum class Art {
    Schluessel, ///< record number
    Name,       ///< name in the one German order; indexed
    Text,
    Memo,      ///< running text
    Flags,     ///< positions of the column's vocabulary, in words in the sources
    Nummer,    ///< one position of the column's vocabulary, its word in the sources; a user's row may hold flags
    Monate,    ///< flag string of 12 months, position 1 = January
    Eigen,     ///< five characters, "1" or blank: the user's own properties
    Literatur, ///< flag string over the list of works
    Wahrheit,  ///< "True" or "False"
    Zahl,      ///< metres, Lux, degrees Celsius or plants per square metre
    Bewertung, ///< the rating, 1 to 9
    Quelle,    ///< letter of the work that the botanical name is taken from
    Ganzzahl,
    Code,    ///< positions of the column's vocabulary, as stored in the sources too; without a vocabulary described at its reader
    Familie, ///< key into Familien
};

struct Spalte
{
    const char *name;
    Art art;
    const Werteliste *liste = nullptr;
    QStringView druckname = {}; ///< empty: not printed with a label
    QStringView einheit = {};
    QStringView satz = {};                           ///< Wahrheit: what print says of a true one; empty: nothing
    Schreibweise schreibweise = Schreibweise::Flags; ///< of a column with a vocabulary, of months and the user's properties
    std::span<const Marke> marken = {};              ///< Schreibweise Anfang and Marken

    Kodierung kodierung() const { return {schreibweise, liste ? liste->anzahl() : Positionen::groesste, marken}; }
};

/// Positions that a stored text of this column means.
inline Positionen positionen(const Spalte &spalte, QStringView text)
{
    return positionen(spalte.kodierung(), text);
}

/// A column of the query that joins cemetery plants with their sources; `quelle` null: computed.
struct Abfragespalte
{
    const char *name;
    const char *quelle;
    const char *spalte;
    QStringView druckname = {};
    QStringView einheit = {};
};

struct Tabelle
{
    const char *name;
    std::span<const Spalte> spalten;

    /// Column by name, case-blind; null when there is none.
    const Spalte *spalte(QStringView name) const;
};

namespace schema {

/// The six main tables (Friedhof: its own columns only).
std::span<const Tabelle> haupttabellen();
/// Main table by name, case-blind; null when there is none.
const Tabelle *haupttabelle(QStringView name);
std::span<const Abfragespalte> abfrageFriedhof();
/// The columns of a main table or of the query, by ordinal; a column of the query has the kind and vocabulary of its source and
/// its own label and unit. Empty for any other name.
std::span<const Spalte> spaltenVon(QStringView satz);
inline constexpr int keineSpalte = -1, mehrereSpalten = -2;
/// Place of a name among `namen`, columns of a table or of the query: "Table.Name", "Table_Name" or, where unique, "Name", case-blind.
int stelleVon(QStringView satz, const QStringList &namen, QStringView name);
/// One of its columns by such a name; null when there is none or more than one.
const Spalte *spalteVon(QStringView satz, const char *feld);
/// Its vocabulary, for months that of the months; null where it has none.
const Werteliste *wertelisteVon(const Spalte *spalte);
/// Its print label as the caption of a control; empty where there is no such column.
QString titelVon(const Spalte *spalte);
/// Whether the query's columns can be qualified by this table, case-blind.
bool istQuelle(QStringView tabelle);
/// Whether the column `spalte` of a table or of the query comes from the table `quelle`, case-blind.
bool kommtAus(QStringView satz, QStringView spalte, QStringView quelle);
/// Number of works that a literature flag string can name.
inline constexpr int anzahlWerke = int(werkeDerLiteratur.size());

/// Names that a database of the program must hold as tables.
std::span<const char *const> pflichttabellen();
/// An index of a table's column, which a search through the table goes by.
struct Index
{
    QString name, tabelle, spalte;
    QString anlegen() const; ///< the statement that makes it
};
QList<Index> indexe();
/// All statements that create the empty working database, in order.
QStringList anlegen();

inline constexpr int anwendungsnummer = 0x464C4F58; ///< PRAGMA application_id
inline constexpr int version = 1;                   ///< PRAGMA user_version

} // namespace schema

/// Order of a printout: the ordinal of the column that stands at each place. Labels and units are the columns' own.
struct Druckliste
{
    std::span<const short> folge;
    int eintraege; ///< number of columns that take part
};

extern const Druckliste DL_Topf;
extern const Druckliste DL_Stauden;
extern const Druckliste DL_Gehoelze;
extern const Druckliste DL_Apfel;
extern const Druckliste DL_Obst;
/// Of the query's columns.
extern const Druckliste DL_Friedhof;
