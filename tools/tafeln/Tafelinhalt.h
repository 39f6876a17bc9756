#pragma once

#include "Gestalt.h"

/* What the plates show, and the captions that say so: one answer for the sheets and for the picture rows. */

inline constexpr QStringView gesamttitel = u"Gesamtansicht, schematisch";

/// Parts of a potted plant on its second plate.
struct Detailinhalt
{
    bool bluete = false;        ///< a flower or an inflorescence
    bool bluetenfarben = false; ///< of flowers too small to be drawn the colours alone
    bool frucht = false;
    QStringView blatt;          ///< word for what stands for the foliage
};
Detailinhalt detailinhalt(const Datensatz &pflanze, const Gestalt &gestalt);

QString topfpflanzeDetailtitel(const Datensatz &pflanze);
QString apfelDetailtitel(const Datensatz &sorte);
