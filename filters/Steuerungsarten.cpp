#include "Steuerungsarten.h"

Teilzustand Steuerungsart::vorgabe(const Steuerteil &teil) const
{
    Teilzustand zustand;
    for (int i = 0; i < teil.elemente(); ++i)
        zustand.werte.push_back(wert(teil, i, false));
    return zustand;
}

int Steuerungsart::wert(const Steuerteil &, int, bool gewaehlt) const
{
    return gewaehlt ? 1 : 0;
}

bool Steuerungsart::gewaehlt(const Steuerteil &, int, int wert) const
{
    return wert != 0;
}

namespace {

class Kaestchen : public Steuerungsart
{
public:
    Dateiform form(const Steuerteil &, int) const override { return Dateiform::Kennzeichen; }
};

class Option : public Steuerungsart
{
public:
    Teilzustand vorgabe(const Steuerteil &teil) const override
    {
        Teilzustand zustand = Steuerungsart::vorgabe(teil);
        zustand.werte.front() = teil.ohneWahl ? 0 : 1;
        return zustand;
    }
    Dateiform form(const Steuerteil &, int) const override { return Dateiform::Wahrheit; }
};

class Bilder : public Steuerungsart
{
public:
    bool gewaehlt(const Steuerteil &, int, int wert) const override { return wert == 1; }
    Dateiform form(const Steuerteil &, int) const override { return Dateiform::Wert; }
};

class Monate : public Steuerungsart
{
public:
    int wert(const Steuerteil &, int, bool gewaehlt) const override { return gewaehlt ? monatGewaehlt : nichtGewaehlt; }
    bool gewaehlt(const Steuerteil &, int, int wert) const override { return wert != nichtGewaehlt; }
    Dateiform form(const Steuerteil &, int) const override { return Dateiform::Farbe; }
};

/// The last swatch has many colours, and a style in place of one.
class Farben : public Steuerungsart
{
public:
    int wert(const Steuerteil &teil, int i, bool gewaehlt) const override
    {
        if (istBunt(teil, i))
            return gewaehlt ? 1 : 0;
        return gewaehlt ? teil.farben->werte[size_t(i)] : nichtGewaehlt;
    }
    bool gewaehlt(const Steuerteil &teil, int i, int wert) const override { return istBunt(teil, i) ? wert == 1 : wert != nichtGewaehlt; }
    Dateiform form(const Steuerteil &teil, int i) const override { return istBunt(teil, i) ? Dateiform::Wert : Dateiform::Farbe; }

private:
    static bool istBunt(const Steuerteil &teil, int i) { return i + 1 == teil.elemente(); }
};

class Schieber : public Steuerungsart
{
public:
    int wert(const Steuerteil &, int, bool) const override { return schieberVorgabe; }
    bool waehlbar() const override { return false; }
    bool gewaehlt(const Steuerteil &, int, int) const override { return false; }
    Dateiform form(const Steuerteil &, int) const override { return Dateiform::Stufe; }
};

/// Text in place of values; nothing of it can be selected.
class Text : public Steuerungsart
{
public:
    Teilzustand vorgabe(const Steuerteil &teil) const override { return {{}, teil.vorgabe.toString()}; }
    bool waehlbar() const override { return false; }
    bool gewaehlt(const Steuerteil &, int, int) const override { return false; }
    Dateiform form(const Steuerteil &, int) const override { return Dateiform::Text; }
};

class Zahl : public Text
{
public:
    Dateiform form(const Steuerteil &, int) const override { return Dateiform::Zahltext; }
};

class Liste : public Text
{
public:
    Teilzustand vorgabe(const Steuerteil &teil) const override { return {{}, teil.alle.toString()}; }
};

} // namespace

const Steuerungsart &steuerungsart(Steuerung art)
{
    static const Kaestchen kaestchen;
    static const Farben farben;
    static const Monate monate;
    static const Bilder bilder;
    static const Text text;
    static const Zahl zahl;
    static const Liste liste;
    static const Option option;
    static const Schieber schieber;
    switch (art) {
    case Steuerung::Kaestchen: return kaestchen;
    case Steuerung::Farben: return farben;
    case Steuerung::Monate: return monate;
    case Steuerung::Bilder: return bilder;
    case Steuerung::Text: return text;
    case Steuerung::Zahl: return zahl;
    case Steuerung::Liste: return liste;
    case Steuerung::Option: return option;
    case Steuerung::Schieber: break;
    }
    return schieber;
}
