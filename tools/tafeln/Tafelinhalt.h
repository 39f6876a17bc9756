#pragma once

#include "Steckbrief.h"

/* What the plates show, and the captions that say so: one answer for the sheets and for the picture rows. */

enum class Organ { Bluete, Stand, Frucht, Schnitt, Blatt, Unterseite, Blatt2, Haftorgan, Zweig, Rinde };

/// The parts on the second plate, at most six.
std::vector<Organ> organe(const Steckbrief &s);
/// The part at which the line of a mark ends: by its words, among those that are drawn. None where it speaks of none of them.
/// Of a variety of fruit, calyx and stalk are those of the fruit and the crown is the tree's.
std::optional<Organ> organVon(const QString &merkmal, const std::vector<Organ> &gezeichnet, bool sorte = false);
/// Whether a mark speaks of the stalk, or of the calyx end of a fruit.
bool nenntStiel(const QString &merkmal);
bool nenntKelch(const QString &merkmal);

QString gesamttitel(const Steckbrief &s);
QString detailtitel(const Steckbrief &s);
/// What stands below the drawing of a part.
QString organtitel(const Steckbrief &s, Organ organ);
