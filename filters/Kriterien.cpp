#include "Kriterien.h"

#include "Steuerungsarten.h"
#include "frmFilterAp.h"
#include "frmFilterFh.h"
#include "frmFilterGe.h"
#include "frmFilterOb.h"
#include "frmFilterSt.h"
#include "frmFilterTo.h"
#include "store/Schema.h"

#include <QSet>
#include <QString>

#include <algorithm>
#include <array>

namespace {

constexpr std::array<const Filterbeschreibung *, anzahlSparten> beschreibungen{&frmFilterTo, &frmFilterSt, &frmFilterGe,
                                                                               &frmFilterAp, &frmFilterOb, &frmFilterFh};

} // namespace

const Filterbeschreibung *filterbeschreibung(Sparte sparte)
{
    return beschreibungen[size_t(sparte)];
}

const Spalte *spalteVon(const Filterbeschreibung &beschreibung, const char *feld)
{
    return schema::spalteVon(eintrag(beschreibung.sparte).haupttabelle, feld);
}

std::optional<Frage> frageAn(const Kriterium &kriterium, bool andere)
{
    if (kriterium.gilt == (andere ? Seite::Erste : Seite::Andere))
        return std::nullopt;
    if (andere && kriterium.anders)
        return kriterium.anders;
    return Frage{kriterium.pruefung, kriterium.feld, kriterium.feld2, kriterium.felder, kriterium.liest};
}

QStringView wortVon(const Filterbeschreibung &beschreibung, const Kriterium &kriterium, const Steuerteil &teil, int i)
{
    if (!teil.worte.empty())
        return size_t(i) < teil.worte.size() ? teil.worte[size_t(i)] : QStringView();
    const Werteliste *liste = wertelisteVon(beschreibung, kriterium);
    const int davor = &teil == &kriterium.b ? kriterium.a.elemente() : 0;
    return liste ? liste->wort(davor + i + 1) : QStringView();
}

Dateiform Steuerteil::dateiform(int i) const
{
    return form ? *form : steuerungsart(art).form(*this, i);
}

const Kriterium *kriteriumNamens(const Filterbeschreibung &beschreibung, const char *control)
{
    const auto gefunden = std::ranges::find_if(beschreibung.kriterien, [&](const Kriterium &k) { return qstrcmp(k.a.control, control) == 0; });
    return gefunden == beschreibung.kriterien.end() ? nullptr : &*gefunden;
}

const Werteliste *wertelisteVon(const Filterbeschreibung &beschreibung, const Kriterium &kriterium)
{
    const Werteliste *liste = kriterium.liste ? kriterium.liste : schema::wertelisteVon(spalteVon(beschreibung, kriterium.feld));
    return liste || !kriterium.anders ? liste : schema::wertelisteVon(spalteVon(beschreibung, kriterium.anders->feld));
}

bool benutzernamen(const Filterbeschreibung &beschreibung, const Kriterium &kriterium)
{
    const Spalte *spalte = spalteVon(beschreibung, kriterium.feld);
    return spalte && spalte->art == Art::Eigen;
}

QString titelVon(const Filterbeschreibung &beschreibung, const Kriterium &kriterium)
{
    return !kriterium.titel.isEmpty() ? kriterium.titel.toString() : schema::titelVon(spalteVon(beschreibung, kriterium.feld));
}

QString bildschluessel(const char *bild)
{
    return QString::fromLatin1(bild).section(u'/', 1);
}

namespace {

QString feldfehler(const Filterbeschreibung &b, const Kriterium &k, const Frage &frage)
{
    for (const char *feld : {frage.feld, frage.feld2})
        if (feld && !spalteVon(b, feld))
            return QStringLiteral("kein Feld %1").arg(QLatin1String(feld));
    for (const char *feld : frage.felder) {
        if (!feld && frage.pruefung == Pruefung::EinsWahr)
            continue;
        if (const Spalte *spalte = spalteVon(b, feld); !spalte || spalte->art != Art::Wahrheit)
            return QStringLiteral("%1 ist kein Wahrheitswert").arg(QLatin1String(feld));
    }
    const bool wahr = frage.pruefung == Pruefung::AlleWahr || frage.pruefung == Pruefung::EinsWahr;
    if (wahr != !frage.felder.empty() || (wahr && int(frage.felder.size()) != k.a.elemente()))
        return QStringLiteral("%1: %2 Felder für %3 Kästchen").arg(QLatin1String(k.a.control)).arg(frage.felder.size()).arg(k.a.elemente());
    if (!frage.worte.empty() && int(frage.worte.size()) != k.a.waehlbare())
        return QStringLiteral("%1: %2 Wörter für %3 Kästchen").arg(QLatin1String(k.a.control)).arg(frage.worte.size()).arg(k.a.waehlbare());
    return {};
}

/// What is asked of the records of both origins.
QString fragefehler(const Filterbeschreibung &b, const Kriterium &k)
{
    if ((k.anders || k.gilt != Seite::Beide) && (!eintrag(b.sparte).herkunftsfeld || (k.anders && k.gilt != Seite::Beide)))
        return QStringLiteral("%1: keine zwei Seiten").arg(QLatin1String(k.a.control));
    bool nachWort = false;
    std::vector<bool> bekannt(size_t(k.a.waehlbare()));
    for (const bool andere : {false, true}) {
        const std::optional<Frage> frage = frageAn(k, andere);
        if (!frage)
            continue;
        if (const QString fehler = feldfehler(b, k, *frage); !fehler.isEmpty())
            return fehler;
        const Werteliste *liste = schema::wertelisteVon(spalteVon(b, frage->feld));
        for (int i = 0; liste && i < k.a.waehlbare(); ++i) {
            const QStringView wort = frage->worte.empty() ? wortVon(b, k, k.a, i) : frage->worte[size_t(i)];
            bekannt[size_t(i)] = bekannt[size_t(i)] || std::ranges::find(liste->zeilen, wort) != liste->zeilen.end();
        }
        nachWort = nachWort || frage->pruefung == Pruefung::FlagsNachWort;
    }
    if (const auto fremd = std::ranges::find(bekannt, false); nachWort && fremd != bekannt.end())
        return QStringLiteral("%1: \"%2\" ist kein Wort des Feldes")
            .arg(QLatin1String(k.a.control), wortVon(b, k, k.a, int(fremd - bekannt.begin())));
    return {};
}

/// The longest vocabulary that has a position for each item; 0: none is read so.
int positionenFuer(const Filterbeschreibung &b, const Kriterium &k)
{
    int anzahl = 0;
    for (const bool andere : {false, true})
        if (const std::optional<Frage> frage = frageAn(k, andere); frage && frage->pruefung == Pruefung::Flags)
            if (const Werteliste *liste = schema::wertelisteVon(spalteVon(b, frage->feld)))
                anzahl = std::max(anzahl, liste->anzahl());
    return anzahl;
}

QString teilfehler(const Filterbeschreibung &b, const Kriterium &k, const Steuerteil &teil)
{
    const QString name = QString::fromLatin1(teil.control);
    if (teil.art == Steuerung::Farben && (!teil.farben || int(teil.farben->werte.size()) + 1 != teil.elemente()))
        return QStringLiteral("%1: Farben und Anzahl passen nicht zusammen").arg(name);
    if (const int anzahl = positionenFuer(b, k); anzahl && k.a.waehlbare() + k.b.waehlbare() > anzahl)
        return QStringLiteral("%1: mehr Kästchen als Wörter").arg(name);
    if (!teil.worte.empty() && teil.art != Steuerung::Liste && int(teil.worte.size()) != teil.waehlbare())
        return QStringLiteral("%1: %2 Wörter für %3 Kästchen").arg(name).arg(teil.worte.size()).arg(teil.waehlbare());
    if (teil.art == Steuerung::Kaestchen || teil.art == Steuerung::Option)
        for (int i = 0; !benutzernamen(b, k) && i < teil.waehlbare(); ++i)
            if (wortVon(b, k, teil, i).isEmpty())
                return QStringLiteral("%1: kein Wort für Kästchen %2").arg(name).arg(i);
    if (teil.art == Steuerung::Bilder && int(teil.bilder.size()) != teil.elemente())
        return QStringLiteral("%1: %2 Bilder für %3 Felder").arg(name).arg(teil.bilder.size()).arg(teil.elemente());
    if (teil.form == Dateiform::Bildname && std::ranges::any_of(teil.bilder, [](const Symbol &bild) { return !bild.aus; }))
        return QStringLiteral("%1: an und aus haben einen Namen").arg(name);
    if (teil.form == Dateiform::Index && teil.eintraege != Eintraege::Worte)
        return QStringLiteral("%1: die Plätze der Einträge stehen nicht fest").arg(name);
    return {};
}

} // namespace

QString filterfehler(const Filterbeschreibung &beschreibung)
{
    QSet<QString> namen;
    std::vector<bool> zeilen(size_t(beschreibung.zeilen));
    for (const Kriterium &k : beschreibung.kriterien) {
        if (const QString fehler = fragefehler(beschreibung, k); !fehler.isEmpty())
            return fehler;
        if (k.reiter >= int(beschreibung.reiter.size()))
            return QStringLiteral("%1: kein Reiter %2").arg(QLatin1String(k.a.control)).arg(k.reiter);
        for (const Steuerteil *teil : {&k.a, &k.b}) {
            if (!teil->control)
                continue;
            const QString name = QString::fromLatin1(teil->control);
            if (namen.contains(name))
                return QStringLiteral("%1 steht doppelt").arg(name);
            namen.insert(name);
            if (const QString fehler = teilfehler(beschreibung, k, *teil); !fehler.isEmpty())
                return fehler;
            for (int i = 0; teil->zeile && i < teil->elemente(); ++i) {
                const int zeile = teil->zeile + i;
                if (zeile > beschreibung.zeilen || zeilen[size_t(zeile - 1)])
                    return QStringLiteral("%1: Zeile %2 steht doppelt oder gibt es nicht").arg(name).arg(zeile);
                zeilen[size_t(zeile - 1)] = true;
            }
        }
    }
    for (size_t i = 0; i < zeilen.size(); ++i)
        if (!zeilen[i])
            return QStringLiteral("Zeile %1 fehlt").arg(i + 1);
    return {};
}
