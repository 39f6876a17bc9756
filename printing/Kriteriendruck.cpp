#include "Kriteriendruck.h"

#include "store/Fehler.h"

namespace {

QString gruppenworte(const Filterbeschreibung &beschreibung, const Kriterium &k, const Kriteriumzustand &z, const Wortquelle &quelle)
{
    QString flags;
    QStringList beschriftungen;
    for (const auto &[teil, zustand] : {std::pair(&k.a, &z.a), std::pair(&k.b, &z.b)})
        for (int i = 0; i < teil->elemente(); ++i) {
            flags += gewaehlt(*teil, *zustand, i) ? u'1' : u' ';
            if (flags.back() == u'1')
                beschriftungen += wortVon(beschreibung, k, *teil, i).toString();
        }
    if (benutzernamen(beschreibung, k))
        return DruckFeld(quelle, *spalteVon(beschreibung, k.feld), flags);
    // The items are positions of the vocabulary, whatever way the column writes them.
    const Werteliste *liste = wertelisteVon(beschreibung, k);
    const bool stellen = k.pruefung == Pruefung::Flags || k.pruefung == Pruefung::FlagsOderWahr;
    return stellen && liste ? worteVon(positionen(Kodierung(), flags), *liste) : beschriftungen.join(QStringLiteral(", "));
}

/// What print says of the booleans that are selected; the caption where it says nothing.
QString wahreWorte(const Filterbeschreibung &beschreibung, const Kriterium &k, const Teilzustand &zustand)
{
    QStringList saetze;
    for (int i = 0; i < k.a.elemente(); ++i) {
        if (!gewaehlt(k.a, zustand, i))
            continue;
        const Spalte *spalte = spalteVon(beschreibung, k.felder[size_t(i)]);
        const QStringView satz = spalte ? spalte->satz : QStringView();
        saetze += (satz.isEmpty() ? wortVon(beschreibung, k, k.a, i) : satz).toString();
    }
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

QString stufenworte(const Kriterium &k, const Kriteriumzustand &z)
{
    return QStringLiteral("%1 %2").arg(gewaehlt(k.a, z.a, 0) ? QStringLiteral("ab Stufe") : QStringLiteral("bis Stufe")).arg(z.b.werte[0]);
}

/// Whether a criterion stands otherwise than the dialog opens; a group with all items, too, which does not restrict.
bool gesetzt(const Kriterium &k, const Kriteriumzustand &z)
{
    const bool gruppe = k.pruefung == Pruefung::Flags || k.pruefung == Pruefung::FlagsNachWort || k.pruefung == Pruefung::FlagsOderWahr
                        || k.pruefung == Pruefung::EinsWahr;
    return gruppe ? anzahlGewaehlt(k.a, z.a) + anzahlGewaehlt(k.b, z.b) > 0 : zeigtAktiv(k, z);
}

/// The state of those items of a group that stand on this line.
Kriteriumzustand ausschnitt(const Kriterium &k, const Kriteriumzustand &ganz, const Druckzeile &zeile)
{
    Kriteriumzustand z = ganz;
    int stelle = 0; // items of the second control follow those of the first
    for (const auto &[teil, zustand] : {std::pair(&k.a, &z.a), std::pair(&k.b, &z.b)}) {
        const Teilzustand leer = vorgabe(*teil);
        for (size_t i = 0; i < zustand->werte.size(); ++i)
            if (++stelle < zeile.von || stelle > zeile.bis)
                zustand->werte[i] = leer.werte[i];
    }
    return z;
}

QString worte(const Filterbeschreibung &beschreibung, const Kriterium &k, const Kriteriumzustand &z, const Wortquelle &quelle)
{
    switch (k.pruefung) {
    case Pruefung::Familie:
    case Pruefung::Enthaelt:
    case Pruefung::SynonymBotanisch:
    case Pruefung::SynonymDeutsch: return z.a.text;
    case Pruefung::Flags:
    case Pruefung::FlagsNachWort: return gruppenworte(beschreibung, k, z, quelle);
    case Pruefung::FlagsOderWahr: {
        const QString text = gruppenworte(beschreibung, k, {z.a, vorgabe(k.b)}, quelle);
        const Spalte *wahr = anzahlGewaehlt(k.b, z.b) > 0 ? spalteVon(beschreibung, k.feld2) : nullptr;
        return !wahr ? text : text.isEmpty() ? wahr->satz.toString() : QStringLiteral("%1, %2").arg(text, wahr->satz);
    }
    case Pruefung::Bereich: return bereichsworte(k, z);
    case Pruefung::Bewertung: return QStringLiteral("%1    (Stufe 1: Rarität / Stufe 5:  Standardsortiment)").arg(stufenworte(k, z));
    case Pruefung::AlleWahr:
    case Pruefung::EinsWahr: return wahreWorte(beschreibung, k, z.a);
    case Pruefung::Gleich: return z.a.text;
    case Pruefung::WortImText: return k.a.art == Steuerung::Liste ? z.a.text : gruppenworte(beschreibung, k, z, quelle);
    case Pruefung::Keine:
    case Pruefung::Bild: break; // says nothing about a plant
    }
    return {};
}

/// A line and the criterion it begins with.
struct Zeile
{
    const Kriterium *kriterium;
    Kriteriumzeile text;
};

std::vector<Zeile> zeilenVon(std::span<const Druckzeile> druckzeilen, const Filterbeschreibung &beschreibung, const Filterzustand &zustand,
                             const Wortquelle &quelle)
{
    std::vector<Zeile> zeilen;
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
        const Kriteriumzustand teil = ausschnitt(*k, zustand.kriterien[stelle], zeile);
        const QString text = zeile.wort.isNull() ? worte(beschreibung, *k, teil, quelle) : zeile.wort.toString();
        if (schliesstAn)
            zeilen.back().text.worte += zeile.anschluss.toString() + text;
        else
            zeilen.push_back({k, {zeile.label.toString(), text}});
    }
    return zeilen;
}

/// Whether the words of a criterion say by themselves what they are about.
bool sprichtFuerSich(const Kriterium &k)
{
    return k.pruefung == Pruefung::AlleWahr || k.pruefung == Pruefung::EinsWahr || k.pruefung == Pruefung::FlagsOderWahr
           || k.a.art == Steuerung::Bilder;
}

/// The rating in words; empty where it lets every plant pass.
QString bewertungsworte(const Kriterium &k, const Kriteriumzustand &z)
{
    constexpr int niedrigste = 1, hoechste = 5;
    const bool laesstAlle = z.b.werte[0] == (gewaehlt(k.a, z.a, 0) ? niedrigste : hoechste);
    return laesstAlle ? QString() : QStringLiteral("Bewertung ") + stufenworte(k, z);
}

} // namespace

std::vector<Kriteriumzeile> kriterienzeilen(std::span<const Druckzeile> druckzeilen, const Filterbeschreibung &beschreibung,
                                            const Filterzustand &zustand, const Wortquelle &quelle)
{
    std::vector<Kriteriumzeile> zeilen;
    for (Zeile &zeile : zeilenVon(druckzeilen, beschreibung, zustand, quelle))
        zeilen.push_back(std::move(zeile.text));
    return zeilen;
}

QString filtersatz(std::span<const Druckzeile> druckzeilen, const Filterbeschreibung &beschreibung, const Filterzustand &zustand,
                   const Wortquelle &quelle)
{
    QStringList teile;
    for (const Zeile &zeile : zeilenVon(druckzeilen, beschreibung, zustand, quelle))
        if (zeile.kriterium->pruefung != Pruefung::Bewertung && !zeile.text.worte.isEmpty())
            teile += (sprichtFuerSich(*zeile.kriterium) ? QString() : zeile.text.label) + zeile.text.worte;
    bool filter = !teile.isEmpty();
    for (size_t i = 0; i < std::min(beschreibung.kriterien.size(), zustand.kriterien.size()); ++i) {
        const Kriterium &k = beschreibung.kriterien[i];
        if (k.pruefung != Pruefung::Bewertung)
            continue;
        const bool eigene = gesetzt(k, zustand.kriterien[i]);
        const QString text = bewertungsworte(k, zustand.kriterien[i]);
        if ((eigene || !filter) && !text.isEmpty())
            teile += text;
        filter = filter || (eigene && !text.isEmpty());
    }
    if (teile.isEmpty())
        return QStringLiteral("Alle Pflanzen");
    return (filter ? QStringLiteral("Filter: ") : QString()) + teile.join(QStringLiteral("; ")).simplified();
}
