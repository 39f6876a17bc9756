#pragma once

#include "Blatt.h"
#include "Bluete.h"

/* What every gardener knows of a genus and no record says: how it is built, what its leaf and its flower look like. Colours,
   heights, habit, seasons and uses come from the record. */

enum class Aufbau {
    NachWuchsform, ///< the record's habit decides
    Strauch, Kraut, Baum, Eintrieb, Kletter, Haenge, Polster,
    Grundblatt, ///< stalked leaves from the ground
    Rosette,    ///< short-stalked leaves, flat
    Baender,    ///< long leaves from the ground
    Schwerter,  ///< the same, stiff and upright
    Trichter,   ///< funnel of broad ribbons
    Farn, Palme, Palmfarn, Schopf, Etagen, Schirm, Geweih,
    Kugelkaktus, Gliederkaktus, Sukkulentrosette,
    Kannen, Fallen, Tentakel,
};

enum class Stand {
    Keiner, Einzeln, Dolde, Ball, Traube, Haengend, ///< on shoots
    Schaft, Schaftdolde, Schafttraube, Rispe,       ///< on stalks of their own
    Kerze, Kaetzchen, Kolben, Mitte,                ///< spikes; in the middle of a rosette
};

enum class Stuetze { Spalier, Ring, Moosstab };

struct Gestalt
{
    QStringView name; ///< beginning of the botanical name without ×, or a family
    Aufbau aufbau = Aufbau::NachWuchsform;
    Blattart blatt = {};
    double blattlaenge = 8; ///< cm
    Bluete bluete = Bluete::Keine;
    Stand stand = Stand::Einzeln;
    double bluetenbreite = 4;       ///< cm
    QStringView hauptfarbe = {};    ///< word of the colour that is drawn, if the record has it
    QStringView zweitfarbe = {};    ///< second colour of each flower, if the record has it
    Frucht frucht = Frucht::Keine;
    Stuetze stuetze = Stuetze::Spalier;
};

/// Row of the longest name that fits; of the family; else a plain one. `aufbau` is resolved.
Gestalt gestalt(const Datensatz &pflanze);
