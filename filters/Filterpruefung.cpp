#include "Filterpruefung.h"

#include "store/Fehler.h"
#include "store/Schema.h"
#include "store/Text.h"

#include <algorithm>

namespace {

QString textVon(std::string_view wert)
{
    return QString::fromUtf8(wert.data(), qsizetype(wert.size()));
}

/// How a criterion's field writes its positions; a field without a vocabulary holds flags.
Kodierung kodierungVon(const Filterbeschreibung &beschreibung, const Kriterium &kriterium)
{
    const Spalte *spalte = schema::spalteVon(eintrag(beschreibung.sparte).haupttabelle, kriterium.feld);
    Kodierung kodierung = spalte ? spalte->kodierung() : Kodierung();
    kodierung.weise = kriterium.liest.value_or(kodierung.weise);
    return kodierung;
}

} // namespace

Filterpruefung::Filterpruefung(const Filterbeschreibung &beschreibung, const Filterzustand &zustand, Filterumgebung umgebung)
    : umgebung_(std::move(umgebung))
{
    for (size_t i = 0; i < beschreibung.kriterien.size(); ++i) {
        const Kriterium &k = beschreibung.kriterien[i];
        const Kriteriumzustand &z = zustand.kriterien[i];
        if (!aktiv(k, z))
            continue;
        Probe probe;
        probe.kriterium = &k;
        probe.feld = k.feld ? feldstelle(k.feld) : -1;
        probe.feld2 = k.feld2 ? feldstelle(k.feld2) : -1;
        switch (k.pruefung) {
        case Pruefung::Flags:
        case Pruefung::FlagsOderWahr:
            for (int j = 0; j < k.a.elemente(); ++j)
                if (gewaehlt(k.a, z.a, j))
                    probe.gewaehlt.setzen(j + 1);
            probe.kodierung = kodierungVon(beschreibung, k);
            probe.zweites = k.b.control && gewaehlt(k.b, z.b, 0);
            break;
        case Pruefung::Bild:
            probe.erstes = gewaehlt(k.a, z.a, 0);
            probe.zweites = gewaehlt(k.b, z.b, 0);
            break;
        case Pruefung::Bereich:
            probe.min = z.a.text;
            probe.max = z.b.text;
            probe.minZahl = zahlLesen(probe.min);
            probe.maxZahl = zahlLesen(probe.max);
            break;
        case Pruefung::Enthaelt:
        case Pruefung::SynonymBotanisch:
        case Pruefung::SynonymDeutsch: probe.nadel = grossbuchstaben(z.a.text); break;
        case Pruefung::Bewertung:
            probe.zweites = gewaehlt(k.a, z.a, 0);
            probe.schwelle = 2 * z.b.werte.front() - 1;
            break;
        case Pruefung::AlleWahr:
        case Pruefung::EinsWahr:
            for (int j = 0; j < k.a.elemente(); ++j)
                if (gewaehlt(k.a, z.a, j))
                    probe.wahre.push_back(feldstelle(k.felder[size_t(j)]));
            break;
        case Pruefung::Gleich: probe.nadel = z.a.text; break;
        case Pruefung::WortImText:
            if (k.a.art == Steuerung::Liste)
                probe.nadeln += grossbuchstaben(z.a.text);
            for (int j = 0; k.a.art != Steuerung::Liste && j < k.a.elemente(); ++j)
                if (gewaehlt(k.a, z.a, j))
                    probe.nadeln += grossbuchstaben(wortVon(beschreibung, k, k.a, j));
            break;
        case Pruefung::Familie:
        case Pruefung::Keine: break;
        }
        proben_.push_back(std::move(probe));
    }
}

int Filterpruefung::feldstelle(const char *feld)
{
    const QString name = QString::fromLatin1(feld);
    if (const qsizetype schon = felder_.indexOf(name); schon >= 0)
        return int(schon);
    felder_ += name;
    return int(felder_.size()) - 1;
}

bool Filterpruefung::passt(qint64 artnr, std::span<const std::string_view> werte) const
{
    return std::ranges::all_of(proben_, [&](const Probe &probe) { return probePasst(probe, artnr, werte); });
}

bool Filterpruefung::probePasst(const Probe &probe, qint64 artnr, std::span<const std::string_view> werte) const
{
    const auto feld = [&] { return werte[size_t(probe.feld)]; };
    const auto wahr = [&](int stelle) { return istWahr(textVon(werte[size_t(stelle)])); };
    switch (probe.kriterium->pruefung) {
    case Pruefung::Familie: return textVon(feld()) == umgebung_.familie;
    case Pruefung::Bild: {
        const bool hat = umgebung_.mitBild.contains(artnr);
        return !(probe.erstes && !hat) && !(probe.zweites && hat);
    }
    case Pruefung::Flags: return positionen(probe.kodierung, feld()).schneidet(probe.gewaehlt);
    case Pruefung::FlagsOderWahr: {
        if (werte[size_t(probe.feld2)].empty())
            throw Fehler(QStringLiteral("Das Feld '%1' der Pflanze %2 ist leer.").arg(QLatin1String(probe.kriterium->feld2)).arg(artnr));
        return positionen(probe.kodierung, feld()).schneidet(probe.gewaehlt) || (probe.zweites && wahr(probe.feld2));
    }
    case Pruefung::Bereich: return bereichPasst(probe, artnr, werte);
    case Pruefung::Enthaelt: return grossbuchstaben(textVon(feld())).contains(probe.nadel);
    case Pruefung::SynonymBotanisch: return synonymPasst(probe, artnr, umgebung_.botanisch, {});
    case Pruefung::SynonymDeutsch: return synonymPasst(probe, artnr, umgebung_.deutsch, textVon(feld()));
    case Pruefung::Bewertung: {
        const std::string_view text = feld();
        const std::optional<double> wert = zahlLesen(text);
        if (!wert)
            throw Fehler(QStringLiteral("Die Pflanze %1 hat keine Bewertung.").arg(artnr));
        return probe.zweites ? int(*wert) >= probe.schwelle : int(*wert) <= probe.schwelle;
    }
    case Pruefung::AlleWahr: return std::ranges::all_of(probe.wahre, wahr);
    case Pruefung::EinsWahr: return std::ranges::any_of(probe.wahre, wahr);
    case Pruefung::Gleich: return textVon(feld()) == probe.nadel;
    case Pruefung::WortImText: {
        const QString text = grossbuchstaben(textVon(feld()));
        return std::ranges::any_of(probe.nadeln, [&](const QString &nadel) { return text.contains(nadel); });
    }
    case Pruefung::Keine: break;
    }
    return true;
}

bool Filterpruefung::bereichPasst(const Probe &probe, qint64 artnr, std::span<const std::string_view> werte) const
{
    const auto zahl = [&](int stelle, const char *feld) {
        const std::string_view text = werte[size_t(stelle)];
        const std::optional<double> wert = text.empty() ? std::optional(0.0) : zahlLesen(text);
        if (!wert)
            throw Fehler(QStringLiteral("Das Feld '%1' der Pflanze %2 enthält keine Zahl: \"%3\".")
                             .arg(QLatin1String(feld)).arg(artnr).arg(textVon(text)));
        return *wert;
    };
    const Kriterium &kriterium = *probe.kriterium;
    const double unten = zahl(probe.feld, kriterium.feld), oben = zahl(probe.feld2, kriterium.feld2);
    if (!probe.minZahl)
        keineZahl(kriterium, false, probe.min);
    if (!probe.maxZahl)
        keineZahl(kriterium, true, probe.max);
    const double min = *probe.minZahl, max = *probe.maxZahl;
    return !(max < oben || min > unten || (probe.kriterium->untereGegenMax && max < unten));
}

bool Filterpruefung::synonymPasst(const Probe &probe, qint64 artnr, const Filterumgebung::Synonyme &synonyme, const QString &vorweg) const
{
    QString sammlung;
    if (synonyme) {
        constexpr qint64 groesste = 32767; // the number goes through 16 bits
        if (artnr > groesste)
            throw Fehler(QStringLiteral("Die Nummer %1 ist zu groß für die Suche nach Synonymen.").arg(artnr));
        sammlung = synonyme->value(artnr);
    }
    QString text = vorweg;
    if (probe.kriterium->pruefung == Pruefung::SynonymBotanisch)
        text = sammlung;
    else if (!sammlung.isEmpty())
        text += QStringLiteral(", ") + sammlung;
    return grossbuchstaben(text).contains(probe.nadel);
}
