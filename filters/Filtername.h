#pragma once

#include "Filterzustand.h"

#include <functional>

/* Names that are made of criteria: of a group for a reader who does not see its frame, and of a filter for its file. */

/// Label of a group without its colon; where groups of several tabs share one, with the tab before it.
QString gruppenname(const Filterbeschreibung &beschreibung, const Kriterium &kriterium);

/// Caption of element `i`, counted from 0.
using Elementwort = std::function<QString(const Kriterium &, const Steuerteil &, int i)>;
/// Name for a filter's file, without an ending: its criteria in the order of the table, as many as fit. Free of characters that file
/// systems refuse and of points. Empty when nothing restricts.
QString filtername(const Filterbeschreibung &beschreibung, const Filterzustand &zustand, const Elementwort &wort);
