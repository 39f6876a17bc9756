#include "Filterpruefung.h"

#include "store/Fehler.h"
#include "store/Text.h"

#include <algorithm>

namespace {

QString textVon(std::string_view wert)
{
    return QString::fromUtf8(wert.data(), qsizetype(wert.size()));
}

double zahlAus(const QString &text)
{
    const std::optional<double> zahl = zahlLesen(text);
    if (!zahl)
        throw Fehler(QStringLiteral("\"%1\" ist keine Zahl.").arg(text));
    return *zahl;
}

double zahlAus(std::string_view text)
{
    const std::optional<double> zahl = zahlLesen(text);
    return zahl ? *zahl : zahlAus(textVon(text));
}

bool einFlagPasst(std::string_view flags, std::uint64_t maske)
{
    const size_t bis = std::min<size_t>(flags.size(), 64);
    for (size_t p = 0; p < bis; ++p)
        if ((maske >> p & 1) && flags[p] == '1')
            return true;
    return false;
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
            for (int p = 0; p < k.a.elemente(); ++p)
                probe.maske |= std::uint64_t(gewaehlt(k.a, z.a, p)) << p;
            probe.zweites = k.b.control && gewaehlt(k.b, z.b, 0);
            break;
        case Pruefung::Bild:
            probe.maske = gewaehlt(k.a, z.a, 0);
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
        case Pruefung::Familie: break;
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
    switch (probe.kriterium->pruefung) {
    case Pruefung::Familie: return textVon(feld()) == umgebung_.familie;
    case Pruefung::Bild: {
        const bool hat = umgebung_.mitBild.contains(artnr);
        return !(probe.maske && !hat) && !(probe.zweites && hat);
    }
    case Pruefung::Flags: return einFlagPasst(feld(), probe.maske);
    case Pruefung::FlagsOderWahr: {
        const std::string_view wahr = werte[size_t(probe.feld2)];
        if (wahr.empty())
            throw Fehler(QStringLiteral("Das Feld '%1' der Pflanze %2 ist leer.").arg(QLatin1String(probe.kriterium->feld2)).arg(artnr));
        return einFlagPasst(feld(), probe.maske) || (probe.zweites && istWahr(textVon(wahr)));
    }
    case Pruefung::Bereich: return bereichPasst(probe, werte);
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
    }
    return true;
}

bool Filterpruefung::bereichPasst(const Probe &probe, std::span<const std::string_view> werte) const
{
    const auto zahl = [&](int stelle) {
        const std::string_view text = werte[size_t(stelle)];
        return text.empty() ? 0.0 : zahlAus(text);
    };
    const double unten = zahl(probe.feld), oben = zahl(probe.feld2);
    const double min = probe.minZahl ? *probe.minZahl : zahlAus(probe.min);
    const double max = probe.maxZahl ? *probe.maxZahl : zahlAus(probe.max);
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
