#pragma once

#include "Steckbrief.h"

/* What the plates show, and the captions that say so: one answer for the sheets and for the picture rows. */

enum class Organ { Bluete, Stand, Frucht, Schnitt, Blatt, Unterseite, Blatt2, Haftorgan, Zweig, Rinde };

/// What kind of plant a mark speaks of; values are bits.
enum class Pflanzenart : unsigned { Kraut = 1, Gehoelz = 2, Sorte = 4 };
Pflanzenart pflanzenart(const Steckbrief &s);

/// The parts on the second plate, at most six.
std::vector<Organ> organe(const Steckbrief &s);
/// The part at which the line of a mark ends: by its words, among those that are drawn. None where it speaks of none of them.
/// Of a variety of fruit, calyx and stalk are those of the fruit; of what is woody the crown is the tree's.
std::optional<Organ> organVon(const QString &merkmal, const std::vector<Organ> &gezeichnet, Pflanzenart art = Pflanzenart::Kraut);
/// Whether a mark speaks of the part's stalk (of an inflorescence the stem is one).
bool nenntStiel(const QString &merkmal, Organ organ);

QString gesamttitel(const Steckbrief &s);
QString detailtitel(const Steckbrief &s);
/// What stands below the drawing of a part.
QString organtitel(const Steckbrief &s, Organ organ);
