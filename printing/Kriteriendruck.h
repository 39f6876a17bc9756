#pragma once

#include "DruckFeld.h"
#include "filters/Filterzustand.h"

/* The criteria of a filter as print tells them. */

struct Kriteriumzeile
{
    QString label, worte;
    bool operator==(const Kriteriumzeile &) const = default;
};

/// The criteria that are set, in the order of print. A group counts when one item is set, even where all are or where its items
/// have no words; never throws.
std::vector<Kriteriumzeile> kriterienzeilen(const Filterbeschreibung &beschreibung, const Filterzustand &zustand, const Wortquelle &quelle);
