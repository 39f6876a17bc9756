#include "Kriteriendruck.h"

#include "store/Fehler.h"


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

/// What print says of the booleans that are selected.
QString wahreWorte(const Kriterium &k, const Teilzustand &zustand, const Wortquelle &quelle)
{
    QStringList saetze;
    for (int i = 0; i < k.a.elemente(); ++i)
        if (const Spalte *spalte = schema::spalteVon(quelle.sparte.haupttabelle, k.felder[size_t(i)]); spalte && gewaehlt(k.a, zustand, i))
            saetze += spalte->satz.toString();
    return saetze.join(QStringLiteral(", "));
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
    const bool gruppe = k.pruefung == Pruefung::Flags || k.pruefung == Pruefung::FlagsOderWahr || k.pruefung == Pruefung::EinsWahr;
    return gruppe ? anzahlGewaehlt(k.a, z.a) + anzahlGewaehlt(k.b, z.b) > 0 : zeigtAktiv(k, z);
}

/// The state of those items of a group that stand on this line.
Kriteriumzustand ausschnitt(const Kriterium &k, const Kriteriumzustand &ganz, const Druckzeile &zeile)
{
    Kriteriumzustand z = ganz;
    const Teilzustand leer = vorgabe(k.a);
    for (int i = 0; i < int(z.a.werte.size()); ++i)
        if (i + 1 < zeile.von || i + 1 > zeile.bis)
            z.a.werte[size_t(i)] = leer.werte[size_t(i)];
    return z;
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
    case Pruefung::AlleWahr:
    case Pruefung::EinsWahr: return wahreWorte(k, z.a, quelle);
    case Pruefung::Gleich: return z.a.text;
    case Pruefung::WortImText: return k.a.art == Steuerung::Liste ? z.a.text : gruppenworte(k, z.a, quelle);
    case Pruefung::Keine:
    case Pruefung::Bild: break; // says nothing about a plant
    }
    return {};
}

} // namespace

std::vector<Kriteriumzeile> kriterienzeilen(std::span<const Druckzeile> druckzeilen, const Filterbeschreibung &beschreibung, const Filterzustand &zustand,
                                            const Wortquelle &quelle)
{
    std::vector<Kriteriumzeile> zeilen;
    bool davor = false; // whether the line that the next row may join is there
    for (const Druckzeile &zeile : druckzeilen) {
        const Kriterium *k = kriteriumNamens(beschreibung, zeile.control);
        const size_t stelle = size_t(k - beschreibung.kriterien.data());
        const bool schliesstAn = !zeile.anschluss.isEmpty() && davor;
        if (stelle >= zustand.kriterien.size() || !gesetzt(*k, ausschnitt(*k, zustand.kriterien[stelle], zeile))) {
            davor = schliesstAn;
            continue;
        }
        davor = true;
        const QString text = worte(*k, ausschnitt(*k, zustand.kriterien[stelle], zeile), quelle);
        if (schliesstAn)
            zeilen.back().worte += zeile.anschluss.toString() + text;
        else
            zeilen.push_back({zeile.label.toString(), text});
    }
    return zeilen;
}
