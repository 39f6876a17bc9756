#include "Ergebnisblatt.h"

#include "plantwindows/Uebung.h"

Tabellenblatt ergebnisblatt(const Pruefungsergebnis &ergebnis)
{
    Tabellenblatt blatt;
    blatt.titel = QStringLiteral("Prüfung: Pflanzenkenntnis");
    blatt.kopf = {ergebnis.punktesatz(), ergebnis.umstaende(), QStringLiteral("Name: ________________________________________")};
    blatt.spalten = {{QStringLiteral("Frage"), 30},
                     {QStringLiteral("Antwort"), 50},
                     {QStringLiteral("richtig ist"), 55},
                     {QStringLiteral("Urteil"), 32},
                     {QStringLiteral("Punkte"), 15}};
    for (const Ergebniszeile &zeile : ergebnis.zeilen) {
        QString urteil = urteilswort(zeile.befund.urteil).toString();
        if (!zeile.befund.grund.isEmpty())
            urteil += QStringLiteral(" (%1)").arg(zeile.befund.grund);
        blatt.zeilen.push_back({QStringLiteral("%1. %2").arg(zeile.nummer).arg(zeile.pflanze),
                                {zeile.frage, zeile.gegeben.isEmpty() ? QStringLiteral("–") : zeile.gegeben, zeile.richtig, urteil,
                                 punktetext(halbePunkte(zeile.befund.urteil))}});
    }
    return blatt;
}
