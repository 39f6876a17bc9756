#pragma once

#include "printing/Tabellenblatt.h"

struct Pruefungsergebnis;

/// The result of an examination as a sheet: every answer with the right one, its mark and its points, below each plant's name.
Tabellenblatt ergebnisblatt(const Pruefungsergebnis &ergebnis);
