#pragma once

#include "Kriterien.h"
#include "store/Fehler.h"

#include <QString>

#include <vector>

/* A snapshot of a dialog's controls: the whole definition of a filter, without any window. */

struct Teilzustand
{
    std::vector<int> werte; ///< by element: 0/1, BackColor, BackStyle, BorderStyle or the slider's step
    QString text;           ///< Text, Zahl, Liste

    bool operator==(const Teilzustand &) const = default;
};

struct Kriteriumzustand
{
    Teilzustand a, b;
    bool operator==(const Kriteriumzustand &) const = default;
};

/// What stands in a box of the dialog cannot be used; the text names the box.
class Eingabefehler : public Fehler
{
public:
    Eingabefehler(const Kriterium &kriterium, bool zweites, const QString &text) : Fehler(text), kriterium(&kriterium), zweites(zweites) {}

    const Kriterium *kriterium; ///< row of the criteria table
    bool zweites;               ///< the second box of a pair
};

/// A box that must hold a number and does not. Throws always.
[[noreturn]] void keineZahl(const Kriterium &kriterium, bool zweites, const QString &text);

struct Filterzustand
{
    std::vector<Kriteriumzustand> kriterien; ///< in the order of the table
    bool operator==(const Filterzustand &) const = default;
};

/// The dialog as it opens.
Filterzustand vorgabe(const Filterbeschreibung &beschreibung);
Teilzustand vorgabe(const Steuerteil &teil);
/// Whether element `i`, counted from 0, is selected.
bool gewaehlt(const Steuerteil &teil, const Teilzustand &zustand, int i);
int anzahlGewaehlt(const Steuerteil &teil, const Teilzustand &zustand);
/// Whether a box of a range stands at its default, by the rule of its criterion. Throws where a number is compared and is none.
bool grenzeVorgegeben(const Kriterium &kriterium, const Steuerteil &teil, const Teilzustand &zustand);
/// Whether a criterion restricts: some but not all items, a range other than the default, a text that is not empty. Throws
/// where a height box is no number.
bool aktiv(const Kriterium &kriterium, const Kriteriumzustand &zustand);
/// The same for display: the rating counts only where it differs from its default, and nothing throws.
bool zeigtAktiv(const Kriterium &kriterium, const Kriteriumzustand &zustand);
