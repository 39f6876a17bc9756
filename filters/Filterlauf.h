#pragma once

#include "Filterzustand.h"

#include <QtGlobal>

#include <optional>
#include <vector>

class Datenbank;

/* One filter run on a window's private copy, which holds all plants: what fails is deleted in one walk. */

struct Laufergebnis
{
    std::vector<qint64> uebrig; ///< record numbers that stay, in rising order
    qsizetype gesamt = 0;       ///< plants before the run
};

/// An apostrophe cannot be searched for in synonyms: throws where the text holds one, with the name of its box.
void synonymtextFordern(const Kriterium &kriterium, const QString &text);

/// Look-ups come from the working database. Throws, with the copy half thinned, where a box or a record cannot be converted
/// or a statement fails. Where it is known already what stays, in rising order, no plant is tested once more.
Laufergebnis filterLauf(Datenbank &kopie, Datenbank &arbeit, const Filterbeschreibung &beschreibung, const Filterzustand &zustand,
                        const std::optional<std::vector<qint64>> &bekannt = {});
