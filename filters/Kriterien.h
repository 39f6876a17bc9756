#pragma once

#include "store/Sparten.h"
#include "store/Wertelisten.h"

#include <span>

/* A Sparte's filter as one table: each criterion once, in the order of the row tests, with its controls, its field, its kind
   of test, its place in the dialog and its lines in the filter file. Dialog, test, reset, saving and loading loop over it. */

/// Kind of a control: how it shows a selection and how it stands in a file.
enum class Steuerung {
    Kaestchen,     ///< check boxes; file: -1 or 0
    KaestchenWert, ///< check boxes; file: 1 or 0
    Farben,        ///< swatches, the last one by BackStyle; file: colours, then 0 or 1
    Monate,        ///< month labels; file: colours
    Bilder,        ///< pictures by BorderStyle; file: 0 or 1
    Text,          ///< text box; file: its text
    Zahl,          ///< number box; file: its text with a point
    Liste,         ///< combo box, default "- Alle -"; file: its text
    Option,        ///< option buttons; file: True or False
    Schieber,      ///< slider 1 to 5; file: a number
};

struct Symbolbild
{
    const char *bild; ///< "list/key"
    QStringView name; ///< accessible name and tool tip
    QStringView satz; ///< sentence under the pictures while the mouse is over one
};

struct Steuerteil
{
    Steuerung art = Steuerung::Text;
    const char *control = nullptr;        ///< objectName, or its stem for an array; null: no such control
    int anzahl = 0;                       ///< elements of the array; 0: a single control
    int zeile = 0;                        ///< first line in the file, counted from 1; 0: not in the file
    std::span<const QStringView> worte = {}; ///< captions; missing ones come from the field's vocabulary
    QStringView vorgabe = {};             ///< default text
    std::span<const Symbolbild> bilder = {};
    const Farbliste *farben = nullptr;

    int elemente() const { return control ? (anzahl ? anzahl : 1) : 0; }
};

/// Kind of a row test.
enum class Pruefung {
    Familie,          ///< number of the chosen family equals the field
    Bild,             ///< a: with pictures, b: without
    Flags,            ///< "1" at the position of a selected item
    FlagsOderWahr,    ///< the same, or b is set and the boolean `feld2` is true
    Bereich,          ///< fields `feld` and `feld2` lie inside the boxes a and b
    Enthaelt,         ///< case-blind substring
    SynonymBotanisch, ///< the text occurs in the plant's botanical synonyms
    SynonymDeutsch,   ///< the text occurs in the German name and synonyms
    Bewertung,        ///< rating against the step of b; never off
};

/// What switches a pair of number boxes off.
enum class Bereichsregel { Keine, GleicheZahlen, GleicherText };

struct Kriterium
{
    Pruefung pruefung;
    QStringView titel;        ///< label of the group in the dialog
    Steuerteil a;
    Steuerteil b = {};
    const char *feld = nullptr;
    const char *feld2 = nullptr;
    int reiter = -1;          ///< tab, counted from 0; -1: the panel beside the tabs
    int spalte = 0;
    Bereichsregel regel = Bereichsregel::Keine;
    bool untereGegenMax = false; ///< Bereich: the lower field, too, must not exceed the upper box
    QStringView anfang = {};  ///< Bereich: word before the boxes
    QStringView mitte = {};   ///< Bereich: word between the boxes
    QStringView einheit = {}; ///< Bereich: behind the boxes
    const char *rahmen = nullptr; ///< objectName of the group's frame, where it has one of its own
    int druckplatz = 0;           ///< place among the printed criteria, counted from 1; 0: not printed
    QStringView druckname = {};   ///< label in print
};

/// The same criterion with its place and label in print.
constexpr Kriterium gedruckt(int platz, QStringView name, Kriterium kriterium)
{
    kriterium.druckplatz = platz;
    kriterium.druckname = name;
    return kriterium;
}

struct Filterbeschreibung
{
    Sparte sparte;
    std::span<const QStringView> reiter;
    std::span<const Kriterium> kriterien;
    int zeilen;                ///< lines of a filter file
    QStringView ladeFilter;    ///< file dialog, as "text (*.x)|*.x|..."
    QStringView speicherFilter;
};

/// Description of a Sparte's filter; null while there is none.
const Filterbeschreibung *filterbeschreibung(Sparte sparte);

inline constexpr QStringView alleEintrag = u"- Alle -";
inline constexpr int schieberMin = 1, schieberMax = 5, schieberVorgabe = 3;
/// Numbers of BackColor that swatches and months have while they are not selected, and a selected month's.
inline constexpr int nichtGewaehlt = int(0x8000000Fu), monatGewaehlt = int(0x80000003u);

/// Linear check of a table: fields exist and fit, no control, file line or place in print stands twice, none is missing. Returns what
/// is wrong, empty when nothing is.
QString filterfehler(const Filterbeschreibung &beschreibung);
/// Label of a criterion: its own, or the print label of its field.
QString titelVon(const Filterbeschreibung &beschreibung, const Kriterium &kriterium);
/// Vocabulary of a criterion's field; null when it has none.
const Werteliste *wertelisteVon(const Filterbeschreibung &beschreibung, const Kriterium &kriterium);
