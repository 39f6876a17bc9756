#pragma once

#include "store/Sparten.h"
#include "store/Symbol.h"
#include "store/Positionen.h"

#include <array>
#include <optional>
#include <span>

struct Spalte;

/* A Sparte's filter as one table: each criterion once, in the order of the row tests, with its controls, its field, its kind
   of test, its place in the dialog and its lines in the filter file. Dialog, test, reset, saving and loading loop over it. */

/// Kind of a control: how it shows a selection.
enum class Steuerung {
    Kaestchen, ///< check boxes
    Farben,    ///< swatches, the last one by BackStyle
    Monate,    ///< month labels
    Bilder,    ///< pictures by BorderStyle
    Text,      ///< text box
    Zahl,      ///< number box
    Liste,     ///< combo box, its first entry switches the criterion off
    Option,    ///< option buttons, which exclude each other
    Schieber,  ///< slider 1 to 5
};

/// How an element stands in a line of a filter file.
enum class Dateiform {
    Kennzeichen, ///< -1 set, 0 not set
    Wert,        ///< 1 set, 0 not set; BackStyle or BorderStyle
    Farbe,       ///< BackColor
    Wahrheit,    ///< True or False
    Text,
    Zahltext, ///< the text with a point for the comma
    Stufe,
    Index,    ///< place of the list's entry, counted from 0
    Bildname, ///< key of the picture that is shown; read as set unless it is empty, "0" or ends in "_n"
};

/// Where the entries of a list come from, behind the one that means all.
enum class Eintraege { Familien, Feldwerte, Worte };

inline constexpr QStringView alleEintrag = u"- Alle -";

struct Steuerteil
{
    Steuerung art = Steuerung::Text;
    const char *control = nullptr;             ///< objectName, or its stem for an array; null: no such control
    int anzahl = 0;                            ///< elements of the array; 0: a single control
    int zeile = 0;                             ///< first line in the file, counted from 1; 0: not in the file
    std::span<const QStringView> worte = {};   ///< captions; missing ones come from the field's vocabulary
    QStringView vorgabe = {};                  ///< default text
    Eintraege eintraege = Eintraege::Familien; ///< Liste
    QStringView alle = alleEintrag;            ///< Liste: the first entry, which switches the criterion off
    std::span<const Symbol> bilder = {};
    const char *satzschild = nullptr; ///< Bilder: objectName of the label below them that says the sentence of the one under the mouse
    const Farbliste *farben = nullptr;
    std::optional<Dateiform> form = {}; ///< where the file has another form than the kind of control asks for
    int ueberzaehlig = 0;               ///< boxes at the end of an array that stand in the file only
    bool ohneWahl = false;              ///< Option: none is chosen at first; else the first one

    int elemente() const { return control ? (anzahl ? anzahl : 1) : 0; }
    /// Elements that can be selected.
    int waehlbare() const { return elemente() - ueberzaehlig; }
    /// Form of element `i`, counted from 0, in a file.
    Dateiform dateiform(int i) const;
};

/// Kind of a row test.
enum class Pruefung {
    Familie,          ///< number of the chosen family equals the field
    Bild,             ///< a: with pictures, b: without
    Flags,            ///< the position of a selected item; those of b follow those of a
    FlagsNachWort,    ///< every position whose word in the field's vocabulary is the caption of a selected item
    FlagsOderWahr,    ///< the same, or b is set and the boolean `feld2` is true
    Bereich,          ///< fields `feld` and `feld2` lie inside the boxes a and b
    Enthaelt,         ///< case-blind substring
    SynonymBotanisch, ///< the text occurs in the plant's botanical synonyms
    SynonymDeutsch,   ///< the text occurs in the German name and synonyms
    Bewertung,        ///< rating against the step of b; never off
    AlleWahr,         ///< item i stands for the boolean `felder[i]`: each selected one must be true; all selected is no exception
    EinsWahr,         ///< the same, but one selected one that is true is enough; an item without a field is never true
    Gleich,           ///< the chosen entry equals the field
    WortImText,       ///< the chosen entry, or the caption of a selected item, occurs in the field, case-blind
    Keine,            ///< stands in the file only
};

/// What switches a pair of number boxes off.
enum class Bereichsregel { Keine, GleicheZahlen, GleicherText };

/// Where a Sparte takes records from two others, by its entry in the table of Sparten: what a criterion asks of one of them.
struct Frage
{
    Pruefung pruefung = Pruefung::Flags;
    const char *feld = nullptr;
    const char *feld2 = nullptr;
    std::span<const char *const> felder = {};
    std::optional<Schreibweise> liest = {};
    std::span<const QStringView> worte = {}; ///< words of the items that are looked for in the field, where they are not the captions
};

/// Records of which origin; the others pass. A record whose text is not that of the last origin is of the first.
enum class Seite { Beide, Erste, Andere };

struct Kriterium
{
    Pruefung pruefung;
    QStringView titel; ///< label of the group in the dialog
    Steuerteil a;
    Steuerteil b = {};
    const char *feld = nullptr;
    const char *feld2 = nullptr;
    std::span<const char *const> felder = {}; ///< AlleWahr, EinsWahr: the boolean of each item
    std::optional<Schreibweise> liest = {};   ///< how the test reads a coded field; the column's own way where it is not told
    int reiter = -1;                          ///< tab, counted from 0; -1: the panel beside the tabs
    int spalte = 0;
    int kastenspalten = 0; ///< columns that the boxes stand in; 0: as many as their number asks for
    Bereichsregel regel = Bereichsregel::Keine;
    bool untereGegenMax = false;  ///< Bereich: the lower field, too, must not exceed the upper box
    QStringView anfang = {};      ///< Bereich: word before the boxes
    QStringView mitte = {};       ///< Bereich: word between the boxes
    QStringView einheit = {};     ///< Bereich: behind the boxes
    const char *rahmen = nullptr; ///< objectName of the group's frame, where it has one of its own
    Seite gilt = Seite::Beide;
    std::optional<Frage> anders = {};  ///< what records of the other origin are asked; without a value the same as all
    const Werteliste *liste = nullptr; ///< vocabulary of the captions, where it is not the field's
};

struct Filterbeschreibung
{
    Sparte sparte;
    std::span<const QStringView> reiter;
    std::span<const Kriterium> kriterien;
    int zeilen;             ///< lines of a filter file
    QStringView ladeFilter; ///< file dialog, as "text (*.x)|*.x|..."
    QStringView speicherFilter;
};

/// Description of a Sparte's filter; null while there is none.
const Filterbeschreibung *filterbeschreibung(Sparte sparte);

inline constexpr int schieberMin = 1, schieberMax = 5, schieberVorgabe = 3;
/// Numbers of BackColor that swatches and months have while they are not selected, and a selected month's.
inline constexpr int nichtGewaehlt = int(0x8000000Fu), monatGewaehlt = int(0x80000003u);

/// Key of a picture "list/key".
QString bildschluessel(const char *bild);
/// Linear check of a table: fields exist and fit, no control or file line stands twice, none is missing. Returns what
/// is wrong, empty when nothing is.
QString filterfehler(const Filterbeschreibung &beschreibung);
/// The criterion whose first control has this name (or stem); null when there is none.
const Kriterium *kriteriumNamens(const Filterbeschreibung &beschreibung, const char *control);
/// Column of a criterion's field; null when there is none.
const Spalte *spalteVon(const Filterbeschreibung &beschreibung, const char *feld);
/// What a criterion asks of records of the first or the other origin; nothing: they pass.
std::optional<Frage> frageAn(const Kriterium &kriterium, bool andere);
/// Caption of item `i`, counted from 0: its own, or the word of the field's vocabulary; empty beyond both.
QStringView wortVon(const Filterbeschreibung &beschreibung, const Kriterium &kriterium, const Steuerteil &teil, int i);
/// Whether the captions are the names that the user gave his properties.
bool benutzernamen(const Filterbeschreibung &beschreibung, const Kriterium &kriterium);
/// Label of a criterion: its own, or the print label of its field.
QString titelVon(const Filterbeschreibung &beschreibung, const Kriterium &kriterium);
/// Vocabulary of a criterion's captions: its own, its field's, or that of the other origin's field; null when there is none.
const Werteliste *wertelisteVon(const Filterbeschreibung &beschreibung, const Kriterium &kriterium);
