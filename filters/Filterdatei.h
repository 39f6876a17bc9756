#pragma once

#include "Filterzustand.h"

#include <QByteArray>

#include <functional>

/* Filter files: one value a line, no header; the order of the lines is the table's. Code page 1252, lines end with CR LF. */

/// The file for a state, byte for byte.
QByteArray filterSchreiben(const Filterbeschreibung &beschreibung, const Filterzustand &zustand);

/// Reads a file value by value and hands each on at once: criterion, whether it is its second part, element, number, text.
/// False at the first line that cannot be read; what was handed on before stays.
using Filterwert = std::function<void(int kriterium, bool zweites, int element, int wert, const QString &text)>;
bool filterLesen(const Filterbeschreibung &beschreibung, const QByteArray &inhalt, const Filterwert &wert);

/// Where a line of the file comes from, in the order of the lines.
struct Dateistelle
{
    int kriterium;
    bool zweites;
    int element;
    const Steuerteil *teil;

    Dateiform form() const { return teil->dateiform(element); }
};
std::vector<Dateistelle> dateistellen(const Filterbeschreibung &beschreibung);
