#pragma once

#include "Datensatz.h"

/// Both write one plate; false when the file cannot be written.
bool topfpflanzeGesamt(const Datensatz &pflanze, const QString &pfad);
bool topfpflanzeDetail(const Datensatz &pflanze, const QString &pfad);
