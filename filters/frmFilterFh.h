#pragma once

#include "Kriterien.h"

extern const Filterbeschreibung frmFilterFh;
