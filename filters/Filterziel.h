#pragma once

class Datenbank;
struct Laufergebnis;

/* What a filter dialog needs of its window. */
class Filterziel
{
public:
    virtual ~Filterziel() = default;

    /// The window's copy, holding all plants again. Throws when it cannot be opened.
    virtual Datenbank &allePflanzen() = 0;
    virtual Datenbank &arbeitsdatenbank() = 0;
    /// The copy is filtered: order it, show its first plant, the filter is in force.
    virtual void filterGelaufen(const Laufergebnis &ergebnis) = 0;
    /// Nothing fitted or the run failed: all plants again, ordered and shown; the state of the filter is untouched.
    virtual void filterVerworfen() = 0;
    /// The dialog is left: the Sparte's windows can be used again, this one comes to the front.
    virtual void dialogVerlassen() = 0;
};
