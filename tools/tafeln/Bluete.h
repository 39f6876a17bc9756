#pragma once

#include "Farben.h"
#include "Stempel.h"

/* Single flowers as stamps. The stem ends at (0, 0); open flowers lie about it, hanging ones below, standing ones above. */

enum class Bluete {
    Keine,
    // open, seen from the front
    Rad, RadMitAuge, Kerbrad, Stern, Lilie, Kreuz, Hibiskus, Trichter, Korb, Gefuellt, Rose, Begonie, Veilchen, Falter, Cattleya, Cymbidie, Tanzpuppe,
    Frauenschuh, Trompete, Faecher, Lobelie, Pelargonie, Hochblattstern, Christusdorn, Drilling, Glockenstern, Passionsblume, Strahlen, Wachsblume,
    Springkraut,
    // hanging
    Laterne, Glocke, Fuchsie, Pantoffel, Heideglocke,
    // standing
    Alpenveilchen, Spatha, Fahne, Kalla, Paradiesvogel, Roehre, Flammenlilie, Gliederkaktus, Kolben,
};

struct Bluetenfarben
{
    QColor haupt, zweite; ///< `zweite` invalid: the form's own
    bool gerandet = false; ///< two-coloured petals
};

Stempel bluetenstempel(Bluete form, const Bluetenfarben &farben, bool fein = false);
/// Extent above and below the end of the stem in radii.
struct Bluetenmass
{
    double oben, unten, seite;
};
Bluetenmass bluetenmass(Bluete form);

/// Colours of the record's words without "bunt"; white where it names none.
std::vector<QColor> farbenDerBluete(const Datensatz &pflanze);

enum class Frucht { Keine, Beere, Schote, Zitrus, Ei, Ananas };
Stempel fruchtstempel(Frucht form, const QColor &farbe);
