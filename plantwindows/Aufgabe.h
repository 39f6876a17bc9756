#pragma once

#include "Antwortpruefung.h"
#include "Beschreibung.h"

#include <vector>

class Pflanzensatz;

/* What practice asks of one plant, by the questions of the description, and the words that would give the answers away. */

struct Teilaufgabe
{
    const Namensfrage *frage;
    Loesung loesung;
};

struct Aufgabe
{
    qint64 artnr = 0;
    QString name;                   ///< botanical, whole
    std::vector<Teilaufgabe> teile; ///< questions to which the plant has an answer
    QStringList worte;              ///< words of all its names, synonyms and family
};

/// Of the current record; without a record nothing is asked. Throws where it cannot be read.
Aufgabe aufgabeVon(Pflanzensatz &satz, const Fensterbeschreibung &beschreibung);

/// Words of names by which a plant is known; what every other name has too is left out.
QStringList namensworte(const QStringList &namen);
/// The text with "[…]" in place of every word that tells one of these.
QString ohneNamen(const QString &text, const QStringList &worte);
