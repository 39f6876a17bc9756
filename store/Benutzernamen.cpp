#include "Benutzernamen.h"

#include "DatenControl.h"
#include "Fehler.h"

namespace {

DatenControl namenOeffnen(const Programm &programm)
{
    DatenControl datBenutzer;
    datBenutzer.setDatabaseName(programm.arbeitsdatenbank());
    datBenutzer.setRecordSource(QStringLiteral("Namen_Benutzer_Optionen"));
    datBenutzer.Refresh();
    datBenutzer.recordset().MoveFirst();
    if (datBenutzer.recordset().RecordCount() > anzahlEigenschaften)
        throw Fehler(QStringLiteral("Die Tabelle 'Namen_Benutzer_Optionen' hat mehr als %1 Zeilen.").arg(anzahlEigenschaften));
    return datBenutzer;
}

} // namespace

void benutzernamenLesen(Programm &programm)
{
    DatenControl datBenutzer = namenOeffnen(programm);
    Recordset &satz = datBenutzer.recordset();
    for (size_t r = 0; !satz.Eof(); ++r, satz.MoveNext())
        for (const SpartenEintrag &sparte : alleSparten())
            programm.BenutzerNamen[size_t(sparte.sparte)][r] = satz.Fields(QString::fromLatin1(sparte.namenSpalte)).Text();
}

void benutzernamenSchreiben(const Programm &programm)
{
    DatenControl datBenutzer = namenOeffnen(programm);
    Recordset &satz = datBenutzer.recordset();
    Transaktion transaktion(satz.datenbank());
    for (size_t r = 0; !satz.Eof(); ++r, satz.MoveNext()) {
        satz.Edit();
        for (const SpartenEintrag &sparte : alleSparten())
            satz.Fields(QString::fromLatin1(sparte.namenSpalte)).setValue(programm.BenutzerNamen[size_t(sparte.sparte)][r] + QStringLiteral(""));
        satz.Update();
    }
    transaktion.festschreiben();
}
