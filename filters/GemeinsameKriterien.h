#pragma once

#include "Kriterien.h"

/* Criteria that every Sparte's filter has; only their lines in the file differ. */
namespace gemeinsam {

inline constexpr QStringView mitBild[] = {u"mit Bild"};
inline constexpr QStringView ohneBild[] = {u"ohne Bild"};
inline constexpr QStringView bewertungsarten[] = {u"Minimum", u"Maximum"};

/// `chkOhneBild` is a tool of the Haus-Modus and stands in no file.
constexpr Kriterium bild(int zeile)
{
    return {.pruefung = Pruefung::Bild, .titel = u"Bilder",
            .a = {.art = Steuerung::Kaestchen, .control = "chkBild", .zeile = zeile, .worte = mitBild},
            .b = {.art = Steuerung::Kaestchen, .control = "chkOhneBild", .worte = ohneBild}};
}

constexpr Kriterium bewertung(int zeile, const char *feld = "bewertung")
{
    return {.pruefung = Pruefung::Bewertung, .titel = u"Bewertung",
            .a = {.art = Steuerung::Option, .control = "optBewertung", .anzahl = 2, .zeile = zeile, .worte = bewertungsarten},
            .b = {.art = Steuerung::Schieber, .control = "sldBewertung", .zeile = zeile + 2}, .feld = feld};
}

constexpr Kriterium text(const char *control, QStringView titel, const char *feld, int zeile, int reiter, int spalte = 0)
{
    return {.pruefung = Pruefung::Enthaelt, .titel = titel, .a = {.art = Steuerung::Text, .control = control, .zeile = zeile}, .feld = feld,
            .reiter = reiter, .spalte = spalte};
}

constexpr Kriterium eigenschaften(int zeile, int reiter, int spalte)
{
    return {.pruefung = Pruefung::Flags, .titel = u"Eigene Eigenschaften",
            .a = {.art = Steuerung::Kaestchen, .control = "sschkBenutzer", .anzahl = anzahlEigenschaften, .zeile = zeile}, .feld = "benu_eigen",
            .reiter = reiter, .spalte = spalte};
}

constexpr Kriterium ausbildung(int zeile, Dateiform form, int reiter = -1, const char *feld = "Ausbildung")
{
    return {.pruefung = Pruefung::Flags, .titel = u"Pflanze soll Bestandteil der Gehilfenprüfung sein",
            .a = {.art = Steuerung::Kaestchen, .control = "chkAusbildung", .anzahl = 6, .zeile = zeile, .form = form}, .feld = feld,
            .reiter = reiter};
}

} // namespace gemeinsam
