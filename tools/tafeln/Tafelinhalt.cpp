#include "Tafelinhalt.h"

#include <QStringList>

namespace {

QStringView blattwort(Aufbau aufbau)
{
    switch (aufbau) {
    case Aufbau::Farn:
    case Aufbau::Palme:
    case Aufbau::Palmfarn:
    case Aufbau::Geweih: return u"Wedel";
    case Aufbau::Kugelkaktus:
    case Aufbau::Gliederkaktus: return u"Spross";
    case Aufbau::Schirm: return u"Halm";
    case Aufbau::Etagen: return u"Zweige";
    case Aufbau::NachWuchsform:
    case Aufbau::Strauch:
    case Aufbau::Kraut:
    case Aufbau::Baum:
    case Aufbau::Eintrieb:
    case Aufbau::Kletter:
    case Aufbau::Haenge:
    case Aufbau::Polster:
    case Aufbau::Grundblatt:
    case Aufbau::Rosette:
    case Aufbau::Baender:
    case Aufbau::Schwerter:
    case Aufbau::Trichter:
    case Aufbau::Schopf:
    case Aufbau::Sukkulentrosette:
    case Aufbau::Kannen:
    case Aufbau::Fallen:
    case Aufbau::Tentakel: break;
    }
    return u"Blatt";
}

} // namespace

Detailinhalt detailinhalt(const Datensatz &pflanze, const Gestalt &g)
{
    const bool farbig = !pflanze.worte(u"FARBEN").isEmpty();
    const bool gezeichnet = g.bluete != Bluete::Keine || (g.stand != Stand::Keiner && g.stand != Stand::Einzeln);
    return {.bluete = farbig && gezeichnet, .bluetenfarben = farbig && !gezeichnet,
            .frucht = g.frucht != Frucht::Keine && !fruchtfarben(pflanze).empty(), .blatt = blattwort(g.aufbau)};
}

QString topfpflanzeDetailtitel(const Datensatz &pflanze)
{
    const Detailinhalt inhalt = detailinhalt(pflanze, gestalt(pflanze));
    QStringList teile;
    if (inhalt.bluete)
        teile += QStringLiteral("Blüte");
    teile += inhalt.blatt.toString();
    if (inhalt.bluetenfarben)
        teile += QStringLiteral("Blütenfarbe");
    if (inhalt.frucht)
        teile += QStringLiteral("Frucht");
    const QString letztes = teile.takeLast();
    return (teile.isEmpty() ? letztes : teile.join(QStringLiteral(", ")) + QStringLiteral(" und ") + letztes) + QStringLiteral(", schematisch");
}

QString apfelDetailtitel(const Datensatz &)
{
    return QStringLiteral("Frucht außen und im Schnitt, schematisch");
}
