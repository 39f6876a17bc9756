#include "mdlDruck.h"

#include <QString>

#include <array>

namespace {

constexpr Druckausnahme ausnahmenTopf[] = {
    {Druckart::Titel, "BOT_NAME"},
    {Druckart::Zeile, "Quelle"},
    {Druckart::MitSynonymen, "DTNAM", nullptr, u"Synonyme"},
    {Druckart::Bereich, "MINHOEHE", "MAXHOEHE", u"Höhe"},
    {Druckart::Bereich, "BLMINH", "BLMAXH", u"Blütenhöhe"},
    {Druckart::Bereich, "LICHTMIN", "LICHTMAX", u"Beleuchtungsstärke"},
    {Druckart::Bereich, "TEMPMIN", "TEMPMAX", u"Temperatur"},
};
constexpr Druckausnahme ausnahmenApfel[] = {{Druckart::Titel, "BOT_NAME"}};

constexpr std::array<const Druckbeschreibung *, anzahlSparten> beschreibungen{&DruckTopf, nullptr, nullptr, &DruckApfel, nullptr, nullptr};

} // namespace

constinit const Druckbeschreibung DruckTopf{Sparte::Topf, &DL_Topf, ausnahmenTopf};
constinit const Druckbeschreibung DruckApfel{Sparte::Apfel, &DL_Apfel, ausnahmenApfel};

const Druckbeschreibung *druckbeschreibung(Sparte sparte)
{
    return beschreibungen[size_t(sparte)];
}

QString druckfehler(const Druckbeschreibung &beschreibung)
{
    const QStringView satz = eintrag(beschreibung.sparte).haupttabelle;
    for (const short code : beschreibung.liste->folge)
        if (code < 0 || code >= int(schema::spaltenVon(satz).size()))
            return QStringLiteral("keine Spalte %1").arg(code);
    for (const Druckausnahme &ausnahme : beschreibung.ausnahmen) {
        const auto passt = [&](const char *feld, Art art) {
            const Spalte *spalte = schema::spalteVon(satz, feld);
            return spalte && spalte->art == art;
        };
        bool gut = false;
        switch (ausnahme.art) {
        case Druckart::Titel:
        case Druckart::MitSynonymen: gut = passt(ausnahme.feld, Art::Name) && !ausnahme.feld2; break;
        case Druckart::Zeile: gut = passt(ausnahme.feld, Art::Quelle) && !ausnahme.feld2; break;
        case Druckart::Bereich: gut = passt(ausnahme.feld, Art::Zahl) && passt(ausnahme.feld2, Art::Zahl); break;
        }
        if (!gut)
            return QStringLiteral("%1 passt nicht").arg(QLatin1String(ausnahme.feld));
    }
    return {};
}
