#include "DruckFeld.h"

#include "store/Nebentabellen.h"
#include "store/Text.h"

QString DruckFeld(const Wortquelle &quelle, const Spalte &spalte, const QString &wert)
{
    switch (spalte.art) {
    case Art::Name:
    case Art::Text: return wert;
    case Art::Memo: return ohneZeilenmarken(wert);
    case Art::Zahl: return zahlZeigen(wert);
    case Art::Flags:
    case Art::Literatur: return listentext(wert, *spalte.liste);
    case Art::Monate: return listentext(wert, WL_Monate);
    case Art::Eigen: {
        const auto &namen = quelle.programm.BenutzerNamen[size_t(quelle.sparte.sparte)];
        const std::array<QStringView, anzahlEigenschaften> worte{namen[0], namen[1], namen[2], namen[3], namen[4]};
        return listentext(wert, Werteliste{worte});
    }
    case Art::Wahrheit: return istWahr(wert) ? spalte.satz.toString() : QString();
    case Art::Familie: return quelle.arbeit ? familienname(quelle.arbeit, wert) : QString();
    case Art::Quelle: {
        const QStringView werk = nomenklaturwerk(wert, quelle.sparte.quellenBuchstaben);
        return werk.isEmpty() ? QString() : QStringLiteral("Botanischer Name laut '%1'").arg(werk);
    }
    case Art::Code: // described at a Sparte that has some
    case Art::Bewertung:
    case Art::Ganzzahl:
    case Art::Schluessel: break;
    }
    return {};
}
