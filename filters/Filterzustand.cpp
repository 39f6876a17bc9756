#include "Filterzustand.h"

#include "Steuerungsarten.h"
#include "store/Text.h"

#include <optional>

Teilzustand vorgabe(const Steuerteil &teil)
{
    return teil.control ? steuerungsart(teil.art).vorgabe(teil) : Teilzustand();
}

Filterzustand vorgabe(const Filterbeschreibung &beschreibung)
{
    Filterzustand zustand;
    for (const Kriterium &kriterium : beschreibung.kriterien)
        zustand.kriterien.push_back({vorgabe(kriterium.a), vorgabe(kriterium.b)});
    return zustand;
}

bool gewaehlt(const Steuerteil &teil, const Teilzustand &zustand, int i)
{
    return i < teil.waehlbare() && size_t(i) < zustand.werte.size() && steuerungsart(teil.art).gewaehlt(teil, i, zustand.werte[size_t(i)]);
}

int anzahlGewaehlt(const Steuerteil &teil, const Teilzustand &zustand)
{
    int anzahl = 0;
    for (int i = 0; i < teil.elemente(); ++i)
        anzahl += gewaehlt(teil, zustand, i) ? 1 : 0;
    return anzahl;
}

void keineZahl(const Kriterium &kriterium, bool zweites, const QString &text)
{
    const QString gruppe = kriterium.titel.toString().remove(u':').trimmed();
    throw Eingabefehler(
        kriterium, zweites,
        QStringLiteral("%1, %2: \"%3\" ist keine Zahl.").arg(gruppe, zweites ? QStringLiteral("Maximum") : QStringLiteral("Minimum"), text));
}

namespace {

/// A number in single precision, as boxes and their defaults are compared.
std::optional<float> einfach(const QString &text)
{
    const std::optional<double> zahl = zahlLesen(text);
    return zahl ? std::optional(float(*zahl)) : std::nullopt;
}

} // namespace

bool grenzeVorgegeben(const Kriterium &kriterium, const Steuerteil &teil, const Teilzustand &zustand)
{
    if (kriterium.regel == Bereichsregel::GleicheZahlen) {
        const std::optional<float> zahl = einfach(zustand.text);
        if (!zahl)
            keineZahl(kriterium, &teil == &kriterium.b, zustand.text);
        return zahl == einfach(teil.vorgabe.toString());
    }
    return zustand.text == teil.vorgabe;
}

bool aktiv(const Kriterium &k, const Kriteriumzustand &z)
{
    switch (k.pruefung) {
    case Pruefung::Familie:
    case Pruefung::Gleich: return z.a.text != k.a.alle;
    case Pruefung::Bild: return anzahlGewaehlt(k.a, z.a) + anzahlGewaehlt(k.b, z.b) > 0;
    case Pruefung::WortImText:
        if (k.a.art == Steuerung::Liste)
            return z.a.text != k.a.alle;
        [[fallthrough]];
    case Pruefung::EinsWahr:
    case Pruefung::Flags:
    case Pruefung::FlagsNachWort:
    case Pruefung::FlagsOderWahr: {
        const int n = anzahlGewaehlt(k.a, z.a) + (k.b.control ? anzahlGewaehlt(k.b, z.b) : 0);
        return n != 0 && n != k.a.waehlbare() + k.b.waehlbare();
    }
    case Pruefung::Bereich: {
        const bool unten = grenzeVorgegeben(k, k.a, z.a), oben = grenzeVorgegeben(k, k.b, z.b);
        return !unten || !oben;
    }
    case Pruefung::Enthaelt:
    case Pruefung::SynonymBotanisch:
    case Pruefung::SynonymDeutsch: return !z.a.text.isEmpty();
    case Pruefung::Bewertung: return true;
    case Pruefung::AlleWahr: return anzahlGewaehlt(k.a, z.a) > 0;
    case Pruefung::Keine: return false;
    }
    return false;
}

bool zeigtAktiv(const Kriterium &k, const Kriteriumzustand &z)
{
    if (k.pruefung == Pruefung::Bewertung)
        return z != Kriteriumzustand{vorgabe(k.a), vorgabe(k.b)};
    try {
        return aktiv(k, z);
    } catch (const Fehler &) {
        return true;
    }
}
