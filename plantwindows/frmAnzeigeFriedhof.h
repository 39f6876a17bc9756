#pragma once

#include "Beschreibung.h"

extern const Fensterbeschreibung frmAnzeigeFriedhof;
