#include "Kriterien.h"

#include "frmFilterAp.h"
#include "frmFilterTo.h"
#include "store/Schema.h"

#include <QSet>
#include <QString>

#include <array>

namespace {

constexpr std::array<const Filterbeschreibung *, anzahlSparten> beschreibungen{&frmFilterTo, nullptr, nullptr, &frmFilterAp, nullptr, nullptr};

} // namespace

const Filterbeschreibung *filterbeschreibung(Sparte sparte)
{
    return beschreibungen[size_t(sparte)];
}

const Werteliste *wertelisteVon(const Filterbeschreibung &beschreibung, const Kriterium &kriterium)
{
    const Spalte *spalte = schema::spalteVon(eintrag(beschreibung.sparte).haupttabelle, kriterium.feld);
    return spalte ? spalte->art == Art::Monate ? &WL_Monate : spalte->liste : nullptr;
}

QString titelVon(const Filterbeschreibung &beschreibung, const Kriterium &kriterium)
{
    const Spalte *spalte = schema::spalteVon(eintrag(beschreibung.sparte).haupttabelle, kriterium.feld);
    return !kriterium.titel.isEmpty() || !spalte ? kriterium.titel.toString() : spalte->druckname.toString() + u':';
}

QString filterfehler(const Filterbeschreibung &beschreibung)
{
    QSet<QString> namen;
    std::vector<bool> zeilen(size_t(beschreibung.zeilen));
    for (const Kriterium &k : beschreibung.kriterien) {
        for (const char *feld : {k.feld, k.feld2})
            if (feld && !schema::spalteVon(eintrag(beschreibung.sparte).haupttabelle, feld))
                return QStringLiteral("kein Feld %1").arg(QLatin1String(feld));
        if (k.reiter >= int(beschreibung.reiter.size()))
            return QStringLiteral("%1: kein Reiter %2").arg(QLatin1String(k.a.control)).arg(k.reiter);
        const Werteliste *liste = wertelisteVon(beschreibung, k);
        for (const Steuerteil *teil : {&k.a, &k.b}) {
            if (!teil->control)
                continue;
            const QString name = QString::fromLatin1(teil->control);
            if (namen.contains(name))
                return QStringLiteral("%1 steht doppelt").arg(name);
            namen.insert(name);
            if (teil->art == Steuerung::Farben && (!teil->farben || int(teil->farben->werte.size()) + 1 != teil->elemente()))
                return QStringLiteral("%1: Farben und Anzahl passen nicht zusammen").arg(name);
            if (k.pruefung == Pruefung::Flags && liste && teil->elemente() > liste->anzahl())
                return QStringLiteral("%1: mehr Kästchen als Wörter").arg(name);
            if (!teil->worte.empty() && int(teil->worte.size()) != teil->elemente())
                return QStringLiteral("%1: %2 Wörter für %3 Kästchen").arg(name).arg(teil->worte.size()).arg(teil->elemente());
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
    std::vector<bool> plaetze(beschreibung.kriterien.size() + 1);
    for (const Kriterium &k : beschreibung.kriterien) {
        if (k.druckplatz < 0 || k.druckplatz >= int(plaetze.size()) || (k.druckplatz != 0 && plaetze[size_t(k.druckplatz)]))
            return QStringLiteral("Druckplatz %1 steht doppelt oder gibt es nicht").arg(k.druckplatz);
        if ((k.druckplatz == 0) != k.druckname.isEmpty())
            return QStringLiteral("%1: Platz und Name im Druck gehören zusammen").arg(QLatin1String(k.a.control));
        plaetze[size_t(k.druckplatz)] = true;
    }
    // No gap before the last place.
    for (size_t i = 2; i < plaetze.size(); ++i)
        if (plaetze[i] && !plaetze[i - 1])
            return QStringLiteral("Druckplatz %1 fehlt").arg(i - 1);
    return {};
}
