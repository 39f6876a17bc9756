#include "Benutzernamen.h"

#include "DatenControl.h"
#include "Fehler.h"

namespace {

DatenControl namenOeffnen(const Programm &programm)
{
    DatenControl datBenutzer;
    datBenutzer.setDatabaseName(programm.arbeitsdatenbank());
    datBenutzer.setRecordSource(namentabelle);
    datBenutzer.Refresh();
    datBenutzer.recordset().MoveFirst();
    return datBenutzer;
}

} // namespace

bool hatBenutzernamen(const Programm &programm)
{
    return Datenbank::OpenDatabase(programm.arbeitsdatenbank())->hatTabelle(namentabelle);
}

QString benutzernamenLesen(Programm &programm)
{
    // A database that the user has loaded may lack it, and is no reason not to start.
    if (!hatBenutzernamen(programm)) {
        for (auto &sparte : programm.BenutzerNamen)
            for (size_t r = 0; r < anzahlEigenschaften; ++r)
                sparte[r] = QStringLiteral("Eigenschaft %1").arg(r + 1);
        return QStringLiteral("In der Datenbank fehlt die Tabelle '%1'. Die benutzerdefinierten Eigenschaften haben keine eigenen Namen.")
            .arg(namentabelle);
    }
    DatenControl datBenutzer = namenOeffnen(programm);
    Recordset &satz = datBenutzer.recordset();
    for (size_t r = 0; r < anzahlEigenschaften && !satz.Eof(); ++r, satz.MoveNext())
        for (const SpartenEintrag &sparte : alleSparten())
            programm.BenutzerNamen[size_t(sparte.sparte)][r] = satz.Fields(QString::fromLatin1(sparte.namenSpalte)).Text();
    if (satz.RecordCount() <= anzahlEigenschaften)
        return {};
    return QStringLiteral("Die Tabelle '%2' hat mehr als %1 Zeilen. Die ersten %1 werden verwendet.").arg(anzahlEigenschaften).arg(namentabelle);
}

void benutzernamenSchreiben(const Programm &programm)
{
    DatenControl datBenutzer = namenOeffnen(programm);
    Recordset &satz = datBenutzer.recordset();
    const auto andere = [&](size_t r) {
        std::vector<std::pair<QString, QString>> felder;
        for (const SpartenEintrag &sparte : alleSparten()) {
            const QString feld = QString::fromLatin1(sparte.namenSpalte), name = programm.BenutzerNamen[size_t(sparte.sparte)][r];
            if (satz.Fields(feld).Text() != name)
                felder.emplace_back(feld, name + QStringLiteral(""));
        }
        return felder;
    };
    // Begun at the first name that differs: a database that cannot be written need not be.
    std::optional<Transaktion> transaktion;
    for (size_t r = 0; r < anzahlEigenschaften && !satz.Eof(); ++r, satz.MoveNext()) {
        const auto felder = andere(r);
        if (felder.empty())
            continue;
        if (!transaktion)
            transaktion.emplace(satz.datenbank());
        satz.Edit();
        for (const auto &[feld, name] : felder)
            satz.Fields(feld).setValue(name);
        satz.Update();
    }
    if (transaktion)
        transaktion->festschreiben();
}
