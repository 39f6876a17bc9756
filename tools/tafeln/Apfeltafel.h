#pragma once

#include "Datensatz.h"

/// Both write one plate; false when the file cannot be written.
bool apfelGesamt(const Datensatz &sorte, const QString &pfad);
bool apfelDetail(const Datensatz &sorte, const QString &pfad);
