#include "Kriterien.h"

#include "Steuerungsarten.h"
#include "frmFilterAp.h"
#include "frmFilterTo.h"
#include "store/Schema.h"

#include <QSet>
#include <QString>

#include <algorithm>
#include <array>

namespace {

constexpr std::array<const Filterbeschreibung *, anzahlSparten> beschreibungen{&frmFilterTo, nullptr, nullptr, &frmFilterAp, nullptr, nullptr};

} // namespace

const Filterbeschreibung *filterbeschreibung(Sparte sparte)
{
    return beschreibungen[size_t(sparte)];
}

QStringView wortVon(const Filterbeschreibung &beschreibung, const Kriterium &kriterium, const Steuerteil &teil, int i)
{
    if (!teil.worte.empty())
        return size_t(i) < teil.worte.size() ? teil.worte[size_t(i)] : QStringView();
    const Werteliste *liste = wertelisteVon(beschreibung, kriterium);
    return liste ? liste->wort(i + 1) : QStringView();
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
    const Spalte *spalte = schema::spalteVon(eintrag(beschreibung.sparte).haupttabelle, kriterium.feld);
    return spalte ? spalte->art == Art::Monate ? &WL_Monate : spalte->liste : nullptr;
}

bool benutzernamen(const Filterbeschreibung &beschreibung, const Kriterium &kriterium)
{
    const Spalte *spalte = schema::spalteVon(eintrag(beschreibung.sparte).haupttabelle, kriterium.feld);
    return spalte && spalte->art == Art::Eigen;
}

QString titelVon(const Filterbeschreibung &beschreibung, const Kriterium &kriterium)
{
    const Spalte *spalte = schema::spalteVon(eintrag(beschreibung.sparte).haupttabelle, kriterium.feld);
    return !kriterium.titel.isEmpty() || !spalte ? kriterium.titel.toString() : spalte->druckname.toString() + u':';
}

QString bildschluessel(const char *bild)
{
    return QString::fromLatin1(bild).section(u'/', 1);
}

QString filterfehler(const Filterbeschreibung &beschreibung)
{
    QSet<QString> namen;
    std::vector<bool> zeilen(size_t(beschreibung.zeilen));
    for (const Kriterium &k : beschreibung.kriterien) {
        const QStringView satz = eintrag(beschreibung.sparte).haupttabelle;
        for (const char *feld : {k.feld, k.feld2})
            if (feld && !schema::spalteVon(satz, feld))
                return QStringLiteral("kein Feld %1").arg(QLatin1String(feld));
        for (const char *feld : k.felder)
            if (const Spalte *spalte = schema::spalteVon(satz, feld); !spalte || spalte->art != Art::Wahrheit)
                return QStringLiteral("%1 ist kein Wahrheitswert").arg(QLatin1String(feld));
        const bool wahr = k.pruefung == Pruefung::AlleWahr || k.pruefung == Pruefung::EinsWahr;
        if (wahr != !k.felder.empty() || (wahr && int(k.felder.size()) != k.a.elemente()))
            return QStringLiteral("%1: %2 Felder für %3 Kästchen").arg(QLatin1String(k.a.control)).arg(k.felder.size()).arg(k.a.elemente());
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
            if (k.pruefung == Pruefung::Flags && liste && teil->waehlbare() > liste->anzahl())
                return QStringLiteral("%1: mehr Kästchen als Wörter").arg(name);
            if (!teil->worte.empty() && teil->art != Steuerung::Liste && int(teil->worte.size()) != teil->waehlbare())
                return QStringLiteral("%1: %2 Wörter für %3 Kästchen").arg(name).arg(teil->worte.size()).arg(teil->waehlbare());
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
