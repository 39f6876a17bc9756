#pragma once

#include <QColor>
#include <QStringView>

/* Colours of the plates. */

/// Natural tone of a colour word or of "#RRGGBB"; invalid for words it does not know.
QColor farbeVon(QStringView wort);

QColor gemischt(const QColor &a, const QColor &b, double anteilB);
inline QColor heller(const QColor &f, double um)
{
    return gemischt(f, QColor(255, 252, 240), um);
}
inline QColor dunkler(const QColor &f, double um)
{
    return gemischt(f, QColor(26, 24, 40), um);
}
QColor durchsichtig(QColor f, double deckung);
/// Outline that suits a fill.
QColor umriss(const QColor &f);
/// Whether a flower of this colour would be lost on cream paper.
bool blass(const QColor &f);

namespace farbe {
inline const QColor papier(0xF8, 0xF3, 0xE6), getoent(0xC9, 0xD2, 0xC4), tinte(0x3A, 0x35, 0x2C), blass(0x6B, 0x62, 0x52), linie(0xB9, 0xAB, 0x92);
inline const QColor erde(0x5B, 0x46, 0x36), holz(0x9A, 0x79, 0x57), rinde(0x84, 0x6B, 0x52), stiel(0x6E, 0x9A, 0x4E), staub(0xF2, 0xC2, 0x3A);
} // namespace farbe
