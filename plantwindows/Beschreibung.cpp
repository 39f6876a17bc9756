#include "Beschreibung.h"

#include "frmAnzeigeApfel.h"
#include "frmAnzeigeTopfpflanzen.h"

#include <QSet>

#include <array>

namespace {

constexpr std::array<const Fensterbeschreibung *, anzahlSparten> beschreibungen{&frmAnzeigeTopfpflanzen, nullptr, nullptr,
                                                                                &frmAnzeigeApfel, nullptr, nullptr};

/// The kind of column that a pattern can show; empty when it fits.
QString unpassend(const Element &element, const Spalte &spalte)
{
    const auto verlangt = [&](std::initializer_list<Art> arten) {
        for (const Art art : arten)
            if (spalte.art == art)
                return QString();
        return QStringLiteral("%1 kann %2 nicht zeigen").arg(QLatin1String(element.control), QLatin1String(spalte.name));
    };
    switch (element.muster) {
    case Muster::Text:
    case Muster::DtName:
    case Muster::Synonyme:
    case Muster::BotName: return verlangt({Art::Name, Art::Text, Art::Memo, Art::Code, Art::Zahl});
    case Muster::Benutzertext: return verlangt({Art::Memo});
    case Muster::Liste:
    case Muster::Symbole:
    case Muster::Symbolfluss:
    case Muster::Ausbildung: return verlangt({Art::Flags});
    case Muster::Farbfeld:
        if (!element.farben || !spalte.liste || int(element.farben->werte.size()) + 1 != spalte.liste->anzahl())
            return QStringLiteral("%1: Farben und Wörter passen nicht zusammen").arg(QLatin1String(element.control));
        return verlangt({Art::Flags});
    case Muster::Monate: return verlangt({Art::Monate});
    case Muster::VonBisMeter:
    case Muster::VonBisMindest: return verlangt({Art::Zahl});
    case Muster::Satz: return verlangt({Art::Wahrheit});
    case Muster::Familie: return verlangt({Art::Familie});
    case Muster::Bewertung:
    case Muster::Herkunftsmarke: return verlangt({Art::Ganzzahl});
    case Muster::Kaestchen: return verlangt({Art::Literatur, Art::Flags});
    case Muster::Benutzereigen: return verlangt({Art::Eigen});
    }
    return {};
}

} // namespace

const Fensterbeschreibung *fensterbeschreibung(Sparte sparte)
{
    return beschreibungen[size_t(sparte)];
}

QString beschreibungsfehler(const Fensterbeschreibung &beschreibung)
{
    const Tabelle *tabelle = schema::haupttabelle(eintrag(beschreibung.sparte).haupttabelle);
    QSet<QString> namen;
    const auto pruefen = [&](const Element &element) {
        for (const char *feld : {element.feld, element.feld2}) {
            const Spalte *spalte = feld ? tabelle->spalte(QString::fromLatin1(feld)) : nullptr;
            if (feld && !spalte)
                return QStringLiteral("%1: kein Feld %2").arg(QLatin1String(element.control), QLatin1String(feld));
            if (feld == element.feld)
                if (const QString fehler = unpassend(element, *spalte); !fehler.isEmpty())
                    return fehler;
        }
        const QString name = QString::fromLatin1(element.control);
        if (namen.contains(name))
            return QStringLiteral("%1 steht doppelt").arg(name);
        namen.insert(name);
        return QString();
    };
    const auto alle = [&](std::span<const Element> elemente) {
        for (const Element &element : elemente)
            if (const QString fehler = pruefen(element); !fehler.isEmpty())
                return fehler;
        return QString();
    };
    if (!tabelle)
        return QStringLiteral("keine Tabelle");
    for (const auto &elemente : {beschreibung.kopf, beschreibung.tafel})
        if (const QString fehler = alle(elemente); !fehler.isEmpty())
            return fehler;
    for (const Reiter &reiter : beschreibung.reiter)
        for (const Gruppe &gruppe : reiter.gruppen)
            if (const QString fehler = alle(gruppe.elemente); !fehler.isEmpty())
                return fehler;
    return {};
}
