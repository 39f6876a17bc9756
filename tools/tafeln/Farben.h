#pragma once

#include "Datensatz.h"

#include <QColor>

#include <vector>

/* Colours of the plates. Flower and fruit colours start from the vocabularies' swatches and are toned to natural ones. */

QColor gemischt(const QColor &a, const QColor &b, double anteilB);
inline QColor heller(const QColor &f, double um) { return gemischt(f, QColor(255, 252, 240), um); }
inline QColor dunkler(const QColor &f, double um) { return gemischt(f, QColor(26, 24, 40), um); }
QColor durchsichtig(QColor f, double deckung);
/// Outline that suits a fill.
QColor umriss(const QColor &f);

/// Natural tone of a word of WL_Bluetenfarbe or WL_ToFruchtfarbe; invalid for "bunt" and unknown words.
QColor bluetenfarbe(QStringView wort);
QColor fruchtfarbe(QStringView wort);
/// Colours of the record's fruits.
std::vector<QColor> fruchtfarben(const Datensatz &pflanze);

enum class Muster { Keins, Flecken, Streifen, Rand, Adern };

/// Leaf colours of a plant.
struct Laub
{
    QColor grund, zweite;
    Muster muster = Muster::Keins;
    Muster anderes = Muster::Keins; ///< a second pattern of the record, for another leaf
    bool roteUnterseite = false;
};

Laub laub(const Datensatz &pflanze);

namespace farbe {
inline const QColor papier(0xF8, 0xF3, 0xE6), tinte(0x3A, 0x35, 0x2C), blass(0x7B, 0x71, 0x60), linie(0xB9, 0xAB, 0x92);
inline const QColor erde(0x5B, 0x46, 0x36), holz(0x9A, 0x79, 0x57), rinde(0x84, 0x6B, 0x52), stiel(0x6E, 0x9A, 0x4E), staub(0xF2, 0xC2, 0x3A);
} // namespace farbe
