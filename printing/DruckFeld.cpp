#include "DruckFeld.h"

#include "store/Nebentabellen.h"
#include "store/Text.h"

#include <algorithm>

bool giltFuer(const SpartenEintrag &sparte, const Spalte &spalte, std::optional<Sparte> herkunft)
{
    return std::ranges::none_of(herkuenfte(sparte), [&](Sparte andere) {
        return andere != herkunft && schema::kommtAus(sparte.haupttabelle, QString::fromLatin1(spalte.name), eintrag(andere).haupttabelle);
    });
}

QString DruckFeld(const Wortquelle &quelle, const Spalte &spalte, const QString &wert)
{
    switch (spalte.art) {
    case Art::Name:
    case Art::Text: return wert;
    case Art::Memo: return ohneZeilenmarken(wert);
    case Art::Zahl: return zahlZeigen(wert);
    case Art::Flags:
    case Art::Nummer:
    case Art::Code:
    case Art::Literatur: return spalte.liste ? worteVon(positionen(spalte, wert), *spalte.liste) : QString();
    case Art::Monate: return worteVon(positionen(spalte, wert), WL_Monate);
    case Art::Eigen: {
        const auto &namen = quelle.programm.BenutzerNamen[size_t(quelle.sparte.sparte)];
        QStringList worte; // a property without a name has none
        for (int p = 1; p <= anzahlEigenschaften; ++p)
            if (const QString &name = namen[size_t(p - 1)]; flagGesetzt(wert, p) && !name.isEmpty())
                worte += name;
        return worte.join(QStringLiteral(", "));
    }
    case Art::Wahrheit: return istWahr(wert) ? spalte.satz.toString() : QString();
    case Art::Familie: return quelle.arbeit ? familienname(quelle.arbeit, wert) : QString();
    case Art::Quelle: {
        const QStringView werk = nomenklaturwerk(wert, (quelle.herkunft ? *quelle.herkunft : quelle.sparte).quellenBuchstaben);
        return werk.isEmpty() ? QString() : QStringLiteral("Botanischer Name laut '%1'").arg(werk);
    }
    case Art::Bewertung:
    case Art::Ganzzahl:
    case Art::Schluessel: break;
    }
    return {};
}
