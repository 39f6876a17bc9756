#pragma once

#include "store/Schema.h"
#include "store/Sparten.h"

/* What a Sparte's data sheet does otherwise than the general entry (label, value, unit). Order, labels and units are the
   schema's. */

enum class Druckart {
    Titel,        ///< heads the sheet in the large font, without a label
    MitSynonymen, ///< the name with its German synonyms; the botanical ones as an entry of their own
    Zeile,        ///< a line across both columns, without a label
    Bereich,      ///< `feld` is the lower, `feld2` the upper bound; both make one entry
};

struct Druckausnahme
{
    Druckart art;
    const char *feld;
    const char *feld2 = nullptr;
    QStringView label = {}; ///< Bereich: of the entry; MitSynonymen: of the synonyms
};

/// A line of the printed criteria. One criterion may stand on several lines, several criteria on one.
struct Druckzeile
{
    QStringView label;
    const char *control;                     ///< objectName, or its stem, of the criterion's first control
    QStringView anschluss = {};              ///< what joins the words to the line before, where that is printed; empty: always a line of its own
    int von = 1, bis = Positionen::groesste; ///< of a group, only items of these positions, counted from 1
    QStringView wort = {};                   ///< what stands there in place of the items' words; empty, but not null: the label alone
};

struct Druckbeschreibung
{
    Sparte sparte;
    const Druckliste *liste;
    std::span<const Druckausnahme> ausnahmen;
    std::span<const Druckzeile> kriterien; ///< in the order of print
};

/// Description of a Sparte's printouts; null while there is none.
const Druckbeschreibung *druckbeschreibung(Sparte sparte);
/// Linear check: the columns named are there and of the kind that the exception needs, the order names columns that exist, and every
/// criterion that says something about a plant stands on a line.
/// Returns what is wrong, empty when nothing is.
QString druckfehler(const Druckbeschreibung &beschreibung);

extern const Druckbeschreibung DruckTopf;
extern const Druckbeschreibung DruckApfel;
extern const Druckbeschreibung DruckObst;
extern const Druckbeschreibung DruckStauden;
extern const Druckbeschreibung DruckGehoelze;
extern const Druckbeschreibung DruckFriedhof;
