#pragma once

#include "filters/Filterdatei.h"
#include "filters/Filterpruefung.h"
#include "tests/Hilfen.h"

#include <QHash>
#include <QString>

#include <random>

/* What the tests of filters share. The rules and the lines stand here once more, written down by hand. */

/// Sparten that have a filter, in their order.
QList<Sparte> spartenMitFilter();
/// Adds a column "sparte" with a row for each of them, named as `kuerzel`.
void jedeSparteMitFilter();
/// The same for those whose rows all have one origin: they have rules here.
void jedeSparteMitRegeln();
/// The two letters that tell the filter of a Sparte: "to".
QByteArray kuerzel(Sparte sparte);

/// A line of a filter file.
struct Dateizeile
{
    int nummer = 0; ///< counted from 1
    QString control;
    int element = -1; ///< -1: a single control
    QString art;      ///< flag, text, colour, value, number text, boolean, step
    QString eigenschaft;
};
const std::vector<Dateizeile> &dateizeilen(Sparte sparte);
/// Where a table first departs from the lines of a file; empty: nowhere.
QString zeilenfehler(const Filterbeschreibung &beschreibung, const std::vector<Dateizeile> &zeilen);
/// A line as a dialog in its default state writes it, without the line end.
QByteArray vorgabezeile(Sparte sparte, const Dateizeile &zeile);
/// The whole file of such a dialog.
QByteArray vorgabedatei(Sparte sparte);

enum class Regelart {
    Familie,
    Bild,
    Flags,
    Typen,
    Hoehe,
    Spanne,
    Text,
    SynonymBotanisch,
    SynonymDeutsch,
    Bewertung,
    Nummer, ///< the number of one position and nothing else
    NummerOderFlags,
    Pflanzenart, ///< the letter of one position
    AlleWahr,    ///< a boolean for each item
    Gleich,      ///< the entry of a list
    Monat,       ///< the month of a list occurs in the field
    Keine,       ///< no test
};

/// A row test; the rules of a Sparte stand in the order of the tests.
struct Regel
{
    Regelart art;
    const char *control;
    int anzahl; ///< elements of the array; 0: a single control
    const char *feld = nullptr;
    const char *control2 = nullptr;
    const char *feld2 = nullptr;
    int ueberzaehlig = 0;                     ///< of the elements, those at the end that nobody can choose
    std::span<const char *const> felder = {}; ///< AlleWahr

    int waehlbar() const { return anzahl - ueberzaehlig; }
    /// Whether its items are alternatives at positions of one field.
    bool gruppe() const
    {
        return art == Regelart::Flags || art == Regelart::Typen || art == Regelart::Nummer || art == Regelart::NummerOderFlags
               || art == Regelart::Pflanzenart;
    }
};
std::span<const Regel> regeln(Sparte sparte);
/// Whether a field's text means position `i`, counted from 0, of a group.
bool meint(const Regel &regel, int i, const QString &wert);
/// A text that means this one position.
QString wertFuer(const Regel &regel, int i);

/// A state of a dialog, by the names of its controls.
class Zustand
{
public:
    explicit Zustand(Sparte sparte) : beschreibung(*filterbeschreibung(sparte)), werte(vorgabe(beschreibung)) {}

    const Steuerteil &steuerteil(const char *control) const;
    Teilzustand &operator[](const char *control);
    const Teilzustand &operator[](const char *control) const { return const_cast<Zustand &>(*this)[control]; }
    /// Selects an element as a click would.
    Zustand &waehlen(const char *control, int element = 0);
    Zustand &alle(const char *control);
    /// Changes what a line of a file stands for; returns the line that is written for it.
    QByteArray verstellen(const Dateizeile &zeile);
    Zustand &text(const char *control, const QString &text);
    /// Slider and option: "Minimum" or "Maximum".
    Zustand &bewertung(int stufe, bool minimum);
    /// Whether an element shows as selected.
    bool hat(const char *control, int element = 0) const;

    const Filterbeschreibung &beschreibung;
    Filterzustand werte;
};

/// A record in memory; fields that were not set are null.
class Datensatz
{
public:
    /// Passes the default dialog.
    Datensatz();
    Datensatz &mit(const char *feld, const QString &wert);
    Datensatz &ohne(const char *feld);
    bool passt(const Filterpruefung &pruefung, qint64 artnr = 1) const;
    /// The same with a test made for the state.
    bool passt(const Zustand &zustand, Filterumgebung umgebung = {}, qint64 artnr = 1) const;

private:
    QHash<QString, QByteArray> werte_;
};

/// Two marks that dialogs and files made for tests show as pictures.
inline constexpr Symbol probemarken[] = {{"iliEigenschaften/schmuck", u"", u"Blattschmuck", nullptr, "iliEigenschaften/schmuc_n"},
                                         {"iliEigenschaften/gift", u"", u"giftig", nullptr, "iliEigenschaften/gift_n"}};
/// What makes a sound description wrong.
using Tabellenaenderung = void (*)(std::vector<Kriterium> &, Filterbeschreibung &);
Q_DECLARE_METATYPE(Tabellenaenderung)

/// Applies a file to a state, as a dialog would; false after a read error.
bool laden(const Filterbeschreibung &beschreibung, const QByteArray &inhalt, Filterzustand &zustand);

using Zufall = std::mt19937;
inline int zahl(Zufall &zufall, int von, int bis)
{
    return std::uniform_int_distribution(von, bis)(zufall);
}
inline bool einmalIn(Zufall &zufall, int anzahl)
{
    return zahl(zufall, 1, anzahl) == 1;
}
/// A dialog in a state that any sequence of clicks and keys could leave, its number boxes readable. `texte` fills the text boxes.
Zustand zufallszustand(Sparte sparte, Zufall &zufall, const QStringList &texte, const QStringList &familien);
