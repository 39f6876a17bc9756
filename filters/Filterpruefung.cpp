#include "Filterpruefung.h"

#include "store/Fehler.h"
#include "store/Schema.h"
#include "store/Text.h"

#include <algorithm>

namespace {

/// How a field writes its positions; one without a vocabulary holds flags.
Kodierung kodierungVon(const Filterbeschreibung &beschreibung, const Frage &frage)
{
    const Spalte *spalte = spalteVon(beschreibung, frage.feld);
    Kodierung kodierung = spalte ? spalte->kodierung() : Kodierung();
    kodierung.weise = frage.liest.value_or(kodierung.weise);
    return kodierung;
}

std::vector<int> gewaehlte(const Steuerteil &teil, const Teilzustand &zustand)
{
    std::vector<int> stellen;
    for (int i = 0; i < teil.waehlbare(); ++i)
        if (gewaehlt(teil, zustand, i))
            stellen.push_back(i);
    return stellen;
}

/// Words that the selected items stand for.
std::vector<QStringView> gewaehlteWorte(const Filterbeschreibung &beschreibung, const Kriterium &kriterium, const Teilzustand &zustand,
                                        const Frage &frage)
{
    std::vector<QStringView> worte;
    for (const int i : gewaehlte(kriterium.a, zustand))
        worte.push_back(frage.worte.empty() ? wortVon(beschreibung, kriterium, kriterium.a, i) : frage.worte[size_t(i)]);
    return worte;
}

Positionen positionenDerWorte(const Filterbeschreibung &beschreibung, const Frage &frage, const std::vector<QStringView> &worte)
{
    Positionen menge;
    const Werteliste *liste = schema::wertelisteVon(spalteVon(beschreibung, frage.feld));
    for (int p = 1; liste && p <= liste->anzahl(); ++p)
        if (std::ranges::find(worte, liste->wort(p)) != worte.end())
            menge.setzen(p);
    return menge;
}

} // namespace

QString synonymnummerZuGross(qint64 artnr)
{
    return QStringLiteral("Die Nummer %1 ist zu groß für die Suche nach Synonymen.").arg(artnr);
}

Filterpruefung::Filterpruefung(const Filterbeschreibung &beschreibung, const Filterzustand &zustand, Filterumgebung umgebung)
    : umgebung_(std::move(umgebung))
{
    const SpartenEintrag &sparte = eintrag(beschreibung.sparte);
    for (size_t i = 0; i < beschreibung.kriterien.size(); ++i) {
        const Kriterium &k = beschreibung.kriterien[i];
        const Kriteriumzustand &z = zustand.kriterien[i];
        if (!aktiv(k, z))
            continue;
        for (const bool andere : {false, true})
            if (const std::optional<Frage> frage = frageAn(k, andere); frage && (!andere || sparte.herkunftsfeld))
                proben_[andere].push_back(probeFuer(beschreibung, k, z, *frage, andere));
    }
    if (sparte.herkunftsfeld) {
        herkunft_ = feldstelle(beschreibung, sparte.herkunftsfeld);
        andereHerkunft_ = sparte.herkuenfte.back().wert.toUtf8();
    }
}

Filterpruefung::Probe Filterpruefung::probeFuer(const Filterbeschreibung &beschreibung, const Kriterium &k, const Kriteriumzustand &z,
                                                const Frage &frage, bool andere)
{
    Probe probe;
    probe.kriterium = &k;
    probe.frage = frage;
    probe.feld = frage.feld ? feldstelle(beschreibung, frage.feld) : -1;
    probe.feld2 = frage.feld2 ? feldstelle(beschreibung, frage.feld2) : -1;
    switch (frage.pruefung) {
    case Pruefung::Flags:
        for (const int i : gewaehlte(k.a, z.a))
            probe.gewaehlt.setzen(i + 1);
        for (const int i : gewaehlte(k.b, z.b))
            probe.gewaehlt.setzen(k.a.elemente() + i + 1);
        probe.kodierung = kodierungVon(beschreibung, frage);
        break;
    case Pruefung::FlagsNachWort:
        probe.gewaehlt = positionenDerWorte(beschreibung, frage, gewaehlteWorte(beschreibung, k, z.a, frage));
        probe.kodierung = kodierungVon(beschreibung, frage);
        break;
    case Pruefung::FlagsOderWahr:
        for (const int i : gewaehlte(k.a, z.a))
            probe.gewaehlt.setzen(i + 1);
        probe.kodierung = kodierungVon(beschreibung, frage);
        probe.zweites = gewaehlt(k.b, z.b, 0);
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
    case Pruefung::SynonymBotanisch:
        probe.nadel = grossbuchstaben(z.a.text);
        probe.synonyme = andere ? &umgebung_.andereBotanisch : &umgebung_.botanisch;
        break;
    case Pruefung::SynonymDeutsch:
        probe.nadel = grossbuchstaben(z.a.text);
        probe.synonyme = andere ? &umgebung_.andereDeutsch : &umgebung_.deutsch;
        break;
    case Pruefung::Enthaelt: probe.nadel = grossbuchstaben(z.a.text); break;
    case Pruefung::Bewertung:
        probe.zweites = gewaehlt(k.a, z.a, 0);
        probe.schwelle = 2 * z.b.werte.front() - 1;
        break;
    case Pruefung::AlleWahr:
    case Pruefung::EinsWahr:
        for (const int i : gewaehlte(k.a, z.a))
            if (const char *feld = frage.felder[size_t(i)])
                probe.wahre.push_back(feldstelle(beschreibung, feld));
        break;
    case Pruefung::Gleich: probe.nadel = z.a.text; break;
    case Pruefung::WortImText:
        if (k.a.art == Steuerung::Liste)
            probe.nadeln += grossbuchstaben(z.a.text);
        for (const QStringView wort : gewaehlteWorte(beschreibung, k, z.a, frage))
            probe.nadeln += grossbuchstaben(wort);
        break;
    case Pruefung::Familie:
    case Pruefung::Keine: break;
    }
    return probe;
}

int Filterpruefung::feldstelle(const Filterbeschreibung &beschreibung, const char *feld)
{
    const Spalte *spalte = spalteVon(beschreibung, feld);
    const QString name = QString::fromLatin1(spalte ? spalte->name : feld);
    if (const qsizetype schon = felder_.indexOf(name); schon >= 0)
        return int(schon);
    felder_ += name;
    return int(felder_.size()) - 1;
}

bool Filterpruefung::passt(qint64 artnr, std::span<const std::string_view> werte) const
{
    const bool andere = herkunft_ >= 0 && werte[size_t(herkunft_)] == std::string_view(andereHerkunft_.constData(), size_t(andereHerkunft_.size()));
    return std::ranges::all_of(proben_[andere], [&](const Probe &probe) { return probePasst(probe, artnr, werte); });
}

bool Filterpruefung::probePasst(const Probe &probe, qint64 artnr, std::span<const std::string_view> werte) const
{
    const auto feld = [&] { return werte[size_t(probe.feld)]; };
    const auto wahr = [&](int stelle) { return istWahr(QString::fromUtf8(werte[size_t(stelle)])); };
    switch (probe.frage.pruefung) {
    case Pruefung::Familie: return QString::fromUtf8(feld()) == umgebung_.familie;
    case Pruefung::Bild: {
        const bool hat = umgebung_.mitBild.contains(artnr);
        return !(probe.erstes && !hat) && !(probe.zweites && hat);
    }
    case Pruefung::Flags:
    case Pruefung::FlagsNachWort: return positionen(probe.kodierung, feld()).schneidet(probe.gewaehlt);
    case Pruefung::FlagsOderWahr: {
        if (werte[size_t(probe.feld2)].empty())
            throw Fehler(QStringLiteral("Das Feld '%1' der Pflanze %2 ist leer.").arg(QLatin1String(probe.frage.feld2)).arg(artnr));
        return positionen(probe.kodierung, feld()).schneidet(probe.gewaehlt) || (probe.zweites && wahr(probe.feld2));
    }
    case Pruefung::Bereich: return bereichPasst(probe, artnr, werte);
    case Pruefung::Enthaelt: return grossbuchstaben(QString::fromUtf8(feld())).contains(probe.nadel);
    case Pruefung::SynonymBotanisch: return synonymPasst(probe, artnr, {});
    case Pruefung::SynonymDeutsch: return synonymPasst(probe, artnr, QString::fromUtf8(feld()));
    case Pruefung::Bewertung: {
        const std::string_view text = feld();
        const std::optional<double> wert = zahlLesen(text);
        if (!wert)
            throw Fehler(QStringLiteral("Die Pflanze %1 hat keine Bewertung.").arg(artnr));
        return probe.zweites ? int(*wert) >= probe.schwelle : int(*wert) <= probe.schwelle;
    }
    case Pruefung::AlleWahr: return std::ranges::all_of(probe.wahre, wahr);
    case Pruefung::EinsWahr: return std::ranges::any_of(probe.wahre, wahr);
    case Pruefung::Gleich: return QString::fromUtf8(feld()) == probe.nadel;
    case Pruefung::WortImText: {
        const QString text = grossbuchstaben(QString::fromUtf8(feld()));
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
                             .arg(QLatin1String(feld))
                             .arg(artnr)
                             .arg(QString::fromUtf8(text)));
        return *wert;
    };
    const Kriterium &kriterium = *probe.kriterium;
    const double unten = zahl(probe.feld, probe.frage.feld), oben = zahl(probe.feld2, probe.frage.feld2);
    if (!probe.minZahl)
        keineZahl(kriterium, false, probe.min);
    if (!probe.maxZahl)
        keineZahl(kriterium, true, probe.max);
    const double min = *probe.minZahl, max = *probe.maxZahl;
    return !(max < oben || min > unten || (kriterium.untereGegenMax && max < unten));
}

bool Filterpruefung::synonymPasst(const Probe &probe, qint64 artnr, const QString &vorweg) const
{
    QString sammlung;
    if (*probe.synonyme) {
        if (artnr > groessteSynonymnummer)
            throw Fehler(synonymnummerZuGross(artnr));
        sammlung = (*probe.synonyme)->value(artnr);
    }
    QString text = vorweg;
    if (probe.frage.pruefung == Pruefung::SynonymBotanisch)
        text = sammlung;
    else if (!sammlung.isEmpty())
        text += QStringLiteral(", ") + sammlung;
    return grossbuchstaben(text).contains(probe.nadel);
}
