#pragma once

#include "store/Schema.h"
#include "store/Sparten.h"
#include "store/Symbol.h"

#include <QString>

#include <deque>
#include <optional>
#include <span>

struct Bildformular;

/* What a plant window is: tables that the one window frame reads. A Sparte's source holds its tables and nothing else. Field
   kinds, vocabularies and units come from the schema; here stands only where and how a field is shown. */

/// The way a field becomes visible. Each has one display class; no field has code of its own.
enum class Muster {
    Text,          ///< the field's text, a number as it is shown; see `umformung`, `einheit`, `anhang`, `leer`
    Liste,         ///< the words of a coded field, `worte` in place of the vocabulary's
    VonBisMeter,   ///< "0,2 bis 0,5 m", "max. 0,5 m", "min. 0,2 m"
    VonBisMindest, ///< "500 bis 800 Lux", "mind. 500 Lux"
    Monate,        ///< row of 12 month labels
    Farbfeld,      ///< row of swatches, the last one for "bunt"
    Symbole,       ///< pictures, each visible exactly when its position or its own field is set
    Symbolfluss,   ///< the same, set ones placed side by side
    Bildwahl,      ///< one picture: that of the first position set
    Bildoeffner,   ///< a small picture that opens the form of the same picture, see `formular`
    Satz,          ///< boolean: the sentence `leer` shows while it is true
    BotName,       ///< name; botanical with a `feld2`, the letter of its source, and the nomenclature as tool tip
    DtName,        ///< German name followed by the German synonyms
    Familie,       ///< family name of a family number
    Synonyme,      ///< botanical synonyms
    Bewertung,     ///< indicator on a scale of nine steps
    Kaestchen,     ///< check boxes of a coded field, with `worte` as captions
    Benutzertext,  ///< the user's own remark
    Benutzereigen, ///< the user's own properties
    Ausbildung,    ///< sentence of the trades for whose examination the plant matters
    Herkunftsmarke ///< whether the user changed the record
};

/// Words behind a text while a boolean is true.
struct Anhang
{
    const char *feld;
    QStringView text;
    QStringView trenner = u", "; ///< before it, where something stands there
};

struct Element
{
    Muster muster;
    const char *control;        ///< objectName, or its stem for an array
    const char *feld = nullptr; ///< "*.NAME" is the column NAME of the Sparte that the row is taken from
    const char *feld2 = nullptr;
    QStringView titeltext = {};  ///< caption; it vanishes with an empty control
    const char *titel = nullptr; ///< objectName of the caption label, which rows of a group may share; without a text the field's
                                 ///< print label is the caption
    QStringView trenner = u", ";
    QStringView leer = {};                           ///< text of an empty field
    QStringView einheit = {};                        ///< behind a range or a text that is not empty, with its leading blank
    QString (*umformung)(const QString &) = nullptr; ///< last step before the text is shown
    std::span<const Anhang> anhang = {};             ///< behind the text, `leer` excepted
    std::span<const Symbol> symbole = {};
    std::span<const QStringView> worte = {};
    const Farbliste *farben = nullptr;
    const Bildformular *formular = nullptr;
    const char *buntZiel = nullptr; ///< row whose last swatch this field's last position marks
    const char *panel = nullptr;    ///< Farbfeld, Monate: name of the row's own panel, which vanishes with its caption while nothing is set
    bool nullObergrenze = false;    ///< VonBisMindest: an empty upper bound counts as none, not only "0"
    bool leerNurBeiNull = false;    ///< `leer` stands for a null only, an empty text shows as empty
    bool kasten = false;            ///< a scrolling text box in place of a label
    bool ausArbeit = false;         ///< read from the working database at every view, not from the window's copy
};

enum class Gruppenregel {
    Immer,
    Feld,     ///< hidden while `regelfeld` is empty or "0"
    Controls, ///< hidden while all of `regelcontrols` (all of the group when none are named) are empty
};

/// A heading over adjoining groups; it vanishes with the last of them.
struct Ueberschrift
{
    const char *name; ///< objectName of its label
    QStringView text;
};

struct Gruppe
{
    const char *name; ///< objectName of the frame
    QStringView titel;
    const char *titelname = nullptr;            ///< objectName of the title's label
    const Ueberschrift *ueberschrift = nullptr; ///< the groups that name it stand together below it
    std::span<const Element> elemente;
    Gruppenregel regel = Gruppenregel::Immer;
    const char *regelfeld = nullptr;
    std::span<const char *const> regelcontrols = {};
    std::optional<Sparte> herkunft = {}; ///< shown only for rows taken from this Sparte; while the origin is unknown it stays as it is
    const char *einschub = nullptr;      ///< stands behind the prefix of its controls' names, so that rows of another group can be used twice
    bool wachsend = false;               ///< takes the height that is left on the page
    bool loeschtHinweis = false;         ///< the mouse over it empties the hint in the status bar
};

/// A tab; its groups flow into as many columns as there is room for, in this order.
struct Reiter
{
    QStringView titel;
    std::span<const Gruppe> gruppen;
};

/// What practice asks for.
enum class Fragenart {
    Gattung, ///< parts of a botanical name
    Art,
    Sorte,
    Familie,       ///< of a family number
    DeutscherName, ///< or one of its German synonyms
    Sortenname     ///< or one of the names in `auch`, joined by commas
};

struct Namensfrage
{
    Fragenart art;
    const char *feld; ///< as of an element
    QStringView titel;
    std::span<const char *const> auch = {}; ///< columns with further names
};

struct Fensterbeschreibung
{
    Sparte sparte;
    std::span<const Element> kopf;  ///< record head, the first element is the name
    std::span<const Element> tafel; ///< marks beside the head: properties, rating, origin
    std::span<const Reiter> reiter;
    std::span<const Namensfrage> fragen = {}; ///< of practice, in the order they are asked
    std::optional<Sparte> ohneNummer = {};    ///< while a subset is open, rows of this Sparte leave the number of the record as it stands
};

/// The elements of a group as its window has them: "*.NAME" is the column of the group's own origin, and names carry its `einschub`.
class Gruppenelemente
{
public:
    explicit Gruppenelemente(const Gruppe &gruppe);
    const std::deque<Element> &elemente() const { return elemente_; }

private:
    const char *merken(const QByteArray &text);

    std::deque<Element> elemente_;
    std::deque<QByteArray> texte_; ///< what names and fields point at
};

/// Column of a Sparte's rows, of "*.NAME" that of the first origin; null when there is none.
const Spalte *spalteVon(Sparte sparte, const char *feld);
/// Description of a Sparte's window; null while there is none.
const Fensterbeschreibung *fensterbeschreibung(Sparte sparte);

/// Linear check of a description: every field stands in the Sparte's schema, kinds fit patterns, no control or frame stands
/// twice, what rules and marks name is there.
/// Returns what is wrong, empty when nothing is.
QString beschreibungsfehler(const Fensterbeschreibung &beschreibung);
