#pragma once

#include "DruckFeld.h"
#include "filters/Filterzustand.h"
#include "mdlDruck.h"

/* The criteria of a filter as print tells them. */

struct Kriteriumzeile
{
    QString label, worte;
    bool operator==(const Kriteriumzeile &) const = default;
};

/// The criteria that are set, line by line. A group counts when one item is set, even where all are or where its items
/// have no words; never throws.
std::vector<Kriteriumzeile> kriterienzeilen(std::span<const Druckzeile> druckzeilen, const Filterbeschreibung &beschreibung,
                                            const Filterzustand &zustand, const Wortquelle &quelle);

/// The same as one sentence without labels: "Filter: Giftpflanze; schattig". The rating that a dialog opens with is told where nothing
/// else is; "Alle Pflanzen" where nothing keeps a plant out. Never throws.
QString filtersatz(std::span<const Druckzeile> druckzeilen, const Filterbeschreibung &beschreibung, const Filterzustand &zustand,
                   const Wortquelle &quelle);
