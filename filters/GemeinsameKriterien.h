#pragma once

#include "Kriterien.h"

/* Criteria that every Sparte's filter has; only their lines in the file differ. */
namespace gemeinsam {

inline constexpr QStringView mitBild[] = {u"mit Bild"};
inline constexpr QStringView ohneBild[] = {u"ohne Bild"};
inline constexpr QStringView bewertungsarten[] = {u"Minimum", u"Maximum"};

/// A plain group of boxes; its captions are the first words of the field's vocabulary. The last `ueberzaehlig` ones have none.
constexpr Kriterium gruppe(const char *control, int anzahl, const char *feld, int zeile, int reiter, int spalte, int ueberzaehlig = 0,
                           int kastenspalten = 0)
{
    return {.pruefung = Pruefung::Flags,
            .titel = {},
            .a = {.art = Steuerung::Kaestchen, .control = control, .anzahl = anzahl, .zeile = zeile, .ueberzaehlig = ueberzaehlig},
            .feld = feld,
            .reiter = reiter,
            .spalte = spalte,
            .kastenspalten = kastenspalten};
}

/// `chkOhneBild` is a tool of the Haus-Modus and stands in no file.
constexpr Kriterium bild(int zeile)
{
    return {.pruefung = Pruefung::Bild,
            .titel = u"Bilder",
            .a = {.art = Steuerung::Kaestchen, .control = "chkBild", .zeile = zeile, .worte = mitBild},
            .b = {.art = Steuerung::Kaestchen, .control = "chkOhneBild", .worte = ohneBild}};
}

constexpr Kriterium bewertung(int zeile, const char *feld = "bewertung")
{
    return {.pruefung = Pruefung::Bewertung,
            .titel = u"Bewertung",
            .a = {.art = Steuerung::Option, .control = "optBewertung", .anzahl = 2, .zeile = zeile, .worte = bewertungsarten},
            .b = {.art = Steuerung::Schieber, .control = "sldBewertung", .zeile = zeile + 2},
            .feld = feld};
}

/// A group of boxes; without `worte` its captions are the field's vocabulary.
constexpr Kriterium kaestchen(QStringView titel, const char *control, int anzahl, const char *feld, int zeile, int reiter, int spalte = 0,
                              std::span<const QStringView> worte = {}, std::optional<Dateiform> form = {})
{
    return {.pruefung = Pruefung::Flags,
            .titel = titel,
            .a = {.art = Steuerung::Kaestchen, .control = control, .anzahl = anzahl, .zeile = zeile, .worte = worte, .form = form},
            .feld = feld,
            .reiter = reiter,
            .spalte = spalte};
}

/// A row of swatches, `anzahl` with the last one for "bunt".
constexpr Kriterium farben(QStringView titel, const char *control, int anzahl, const char *feld, const Farbliste *werte, int zeile, int reiter)
{
    return {.pruefung = Pruefung::Flags,
            .titel = titel,
            .a = {.art = Steuerung::Farben, .control = control, .anzahl = anzahl, .zeile = zeile, .farben = werte},
            .feld = feld,
            .reiter = reiter};
}

constexpr Kriterium monate(QStringView titel, const char *control, const char *feld, int zeile, int reiter)
{
    return {.pruefung = Pruefung::Flags,
            .titel = titel,
            .a = {.art = Steuerung::Monate, .control = control, .anzahl = 12, .zeile = zeile},
            .feld = feld,
            .reiter = reiter};
}

/// A group of pictures.
constexpr Kriterium bilder(QStringView titel, const char *control, const char *feld, std::span<const Symbol> symbole, int zeile, int reiter,
                           const char *satzschild = nullptr, const char *rahmen = nullptr)
{
    return {.pruefung = Pruefung::Flags,
            .titel = titel,
            .a = {.art = Steuerung::Bilder,
                  .control = control,
                  .anzahl = int(symbole.size()),
                  .zeile = zeile,
                  .bilder = symbole,
                  .satzschild = satzschild},
            .feld = feld,
            .reiter = reiter,
            .rahmen = rahmen};
}

constexpr Steuerteil zahl(const char *control, QStringView vorgabe, int zeile)
{
    return {.art = Steuerung::Zahl, .control = control, .zeile = zeile, .vorgabe = vorgabe};
}

/// Two bounds in metres.
constexpr Kriterium hoehe(QStringView titel, const char *von, const char *bis, const char *feld, const char *feld2, int zeile, int reiter)
{
    return {.pruefung = Pruefung::Bereich,
            .titel = titel,
            .a = zahl(von, u"0,00", zeile),
            .b = zahl(bis, u"99,00", zeile + 1),
            .feld = feld,
            .feld2 = feld2,
            .reiter = reiter,
            .regel = Bereichsregel::GleicheZahlen,
            .anfang = u"zwischen",
            .mitte = u"und",
            .einheit = u"m"};
}

constexpr Kriterium familie(int zeile, const char *feld = "FAMILIE")
{
    return {
        .pruefung = Pruefung::Familie, .titel = u"Familie:", .a = {.art = Steuerung::Liste, .control = "cmbFamilie", .zeile = zeile}, .feld = feld};
}

constexpr Kriterium synonymBotanisch(int zeile, int reiter)
{
    return {
        .pruefung = Pruefung::SynonymBotanisch, .titel = u"Botanisches Synonym:", .a = {.control = "txtSynonym", .zeile = zeile}, .reiter = reiter};
}

constexpr Kriterium synonymDeutsch(int zeile, int reiter)
{
    return {.pruefung = Pruefung::SynonymDeutsch,
            .titel = u"Deutscher Name:",
            .a = {.control = "txtSynonymDeutsch", .zeile = zeile},
            .feld = "DTNAM",
            .reiter = reiter};
}

constexpr Kriterium text(const char *control, QStringView titel, const char *feld, int zeile, int reiter, int spalte = 0)
{
    return {.pruefung = Pruefung::Enthaelt,
            .titel = titel,
            .a = {.art = Steuerung::Text, .control = control, .zeile = zeile},
            .feld = feld,
            .reiter = reiter,
            .spalte = spalte};
}

constexpr Kriterium eigenschaften(int zeile, int reiter, int spalte)
{
    return {.pruefung = Pruefung::Flags,
            .titel = u"Eigene Eigenschaften",
            .a = {.art = Steuerung::Kaestchen, .control = "sschkBenutzer", .anzahl = anzahlEigenschaften, .zeile = zeile},
            .feld = "benu_eigen",
            .reiter = reiter,
            .spalte = spalte};
}

constexpr Kriterium ausbildung(int zeile, Dateiform form, int reiter = -1, const char *feld = "Ausbildung", int spalte = 0)
{
    return {.pruefung = Pruefung::Flags,
            .titel = u"Pflanze soll Bestandteil der Gehilfenprüfung sein",
            .a = {.art = Steuerung::Kaestchen, .control = "chkAusbildung", .anzahl = 6, .zeile = zeile, .form = form},
            .feld = feld,
            .reiter = reiter,
            .spalte = spalte};
}

} // namespace gemeinsam
