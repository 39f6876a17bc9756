#include "Kriteriendruck.h"

#include "store/Fehler.h"

#include <algorithm>

namespace {

QString gruppenworte(const Kriterium &k, const Teilzustand &zustand, const Wortquelle &quelle)
{
    const Steuerteil &teil = k.a;
    QString flags(teil.elemente(), u' ');
    for (int i = 0; i < teil.elemente(); ++i)
        if (gewaehlt(teil, zustand, i))
            flags[i] = u'1';
    const Spalte *spalte = schema::spalteVon(quelle.sparte.haupttabelle, k.feld);
    return spalte ? DruckFeld(quelle, *spalte, flags) : QString();
}

QString bereichsworte(const Kriterium &k, const Kriteriumzustand &z)
{
    // What is no number is not the default.
    const auto vorgegeben = [&](const Steuerteil &teil, const Teilzustand &zustand) {
        try {
            return grenzeVorgegeben(k, teil, zustand);
        } catch (const Fehler &) {
            return false;
        }
    };
    if (vorgegeben(k.a, z.a))
        return QStringLiteral("bis %1 %2").arg(z.b.text, k.einheit);
    if (vorgegeben(k.b, z.b))
        return QStringLiteral("ab %1 %2").arg(z.a.text, k.einheit);
    return QStringLiteral("%1 - %2 %3").arg(z.a.text, z.b.text, k.einheit);
}

/// Whether a criterion stands otherwise than the dialog opens; a group with all items, too, which does not restrict.
bool gesetzt(const Kriterium &k, const Kriteriumzustand &z)
{
    const bool gruppe = k.pruefung == Pruefung::Flags || k.pruefung == Pruefung::FlagsOderWahr;
    return gruppe ? anzahlGewaehlt(k.a, z.a) + anzahlGewaehlt(k.b, z.b) > 0 : zeigtAktiv(k, z);
}

QString worte(const Kriterium &k, const Kriteriumzustand &z, const Wortquelle &quelle)
{
    switch (k.pruefung) {
    case Pruefung::Familie:
    case Pruefung::Enthaelt:
    case Pruefung::SynonymBotanisch:
    case Pruefung::SynonymDeutsch: return z.a.text;
    case Pruefung::Flags: return gruppenworte(k, z.a, quelle);
    case Pruefung::FlagsOderWahr: {
        const QString text = gruppenworte(k, z.a, quelle);
        const Spalte *wahr = anzahlGewaehlt(k.b, z.b) > 0 ? schema::spalteVon(quelle.sparte.haupttabelle, k.feld2) : nullptr;
        return !wahr ? text : text.isEmpty() ? wahr->satz.toString() : QStringLiteral("%1, %2").arg(text, wahr->satz);
    }
    case Pruefung::Bereich: return bereichsworte(k, z);
    case Pruefung::Bewertung:
        return QStringLiteral("%1 %2    (Stufe 1: Rarität / Stufe 5:  Standardsortiment)")
            .arg(gewaehlt(k.a, z.a, 0) ? QStringLiteral("ab Stufe") : QStringLiteral("bis Stufe")).arg(z.b.werte[0]);
    case Pruefung::Bild: break; // says nothing about a plant
    }
    return {};
}

} // namespace

std::vector<Kriteriumzeile> kriterienzeilen(const Filterbeschreibung &beschreibung, const Filterzustand &zustand, const Wortquelle &quelle)
{
    std::vector<Kriteriumzeile> nachPlatz(beschreibung.kriterien.size() + 1);
    for (size_t i = 0; i < std::min(beschreibung.kriterien.size(), zustand.kriterien.size()); ++i) {
        const Kriterium &k = beschreibung.kriterien[i];
        const Kriteriumzustand &z = zustand.kriterien[i];
        if (k.druckplatz != 0 && gesetzt(k, z))
            nachPlatz[size_t(k.druckplatz)] = {k.druckname.toString(), worte(k, z, quelle)};
    }
    std::erase_if(nachPlatz, [](const Kriteriumzeile &zeile) { return zeile.label.isEmpty(); });
    return nachPlatz;
}
