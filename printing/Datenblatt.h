#pragma once

#include "DruckFeld.h"

#include <QMimeData>

#include <memory>
#include <vector>

struct Druckauftrag;

/* What a data sheet says, before it is laid out on pages or copied. */

struct Blatteintrag
{
    enum Art {
        Titel, ///< heads the sheet
        Zeile, ///< without a label
        Feld,
    } art;
    QString label, text;
};

/// The entries of the plant on screen in the order of print; one whose text is empty or blank is not printed. None without a plant.
/// Throws where the plant cannot be read.
std::vector<Blatteintrag> datenblatt(const Programm &programm, const Druckauftrag &auftrag);
/// The same as text, a line for each entry, and as a table of two columns.
std::unique_ptr<QMimeData> blattkopie(const std::vector<Blatteintrag> &eintraege);
