#pragma once

#include "Filterzustand.h"

/* What a kind of filter control means without its widgets: its default, what counts as selected, its lines in a file. */
class Steuerungsart
{
public:
    virtual ~Steuerungsart() = default;
    /// The control as the dialog opens.
    virtual Teilzustand vorgabe(const Steuerteil &teil) const;
    /// Value of element `i`, counted from 0, while it is selected or not.
    virtual int wert(const Steuerteil &teil, int i, bool gewaehlt) const;
    /// Whether its elements are chosen or not; else they hold a text or a step.
    virtual bool waehlbar() const { return true; }
    virtual bool gewaehlt(const Steuerteil &teil, int i, int wert) const;
    /// Form of element `i` in a file, where the table tells none.
    virtual Dateiform form(const Steuerteil &teil, int i) const = 0;
};

const Steuerungsart &steuerungsart(Steuerung art);
