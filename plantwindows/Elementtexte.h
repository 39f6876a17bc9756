#pragma once

#include "Beschreibung.h"
#include "store/Text.h"

#include <QString>

class Namenskaestchen;

/* The words of the record view, as functions of what they are made from: captions, names for who hears the window, texts of patterns. */

/// Words that an element has for positions: its own, else the vocabulary's.
Werteliste worteFuer(Sparte sparte, const Element &element);
/// Caption of an element: its own, or where only a caption label is named the field's print label; empty: none.
QString titelVon(Sparte sparte, const Element &element);

/// Name by which a control of a group is read out: "Blüte, Zeit: Januar".
QString vorlesename(const QString &gruppe, const QString &titel, const QString &wort = {});
/// Caption and read-out name of the user's property `i`, counted from 0.
void eigenschaftBenennen(Namenskaestchen &kaestchen, int i, const QString &name);

/// What a label shows of a text: all of it, or the part that somebody can read and "…".
QString schildtext(const QString &text);
QString vonBisMeter(const QString &min, const QString &max, QStringView einheit);
QString vonBisMindest(const QString &min, const QString &max, QStringView einheit, bool leereObergrenzeFehlt);
QString ausbildungstext(QStringView flags);
