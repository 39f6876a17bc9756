#pragma once

#include "store/Datenbank.h"
#include "store/Programm.h"
#include "store/Schema.h"

/* The words that print has for a stored value. The vocabulary is the column's own. */

/// Where words beyond the vocabularies come from.
struct Wortquelle
{
    const Programm &programm; ///< names of the user's properties
    const SpartenEintrag &sparte;
    std::shared_ptr<Datenbank> arbeit = {};   ///< names of families
    const SpartenEintrag *herkunft = nullptr; ///< of the row, where it is taken from another Sparte: letters of its source
};

/// Whether a column says something of rows taken from `herkunft`: what comes from another origin does not.
bool giltFuer(const SpartenEintrag &sparte, const Spalte &spalte, std::optional<Sparte> herkunft);
/// Text of a value of this column; empty when there is nothing to print.
QString DruckFeld(const Wortquelle &quelle, const Spalte &spalte, const QString &wert);
