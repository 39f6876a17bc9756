#include "Datenbestand.h"

#include "Dateien.h"
#include "Datenbank.h"
#include "Fehler.h"
#include "Pfade.h"
#include "Programm.h"
#include "Schadenspruefung.h"
#include "Schema.h"

#include <QDir>
#include <QFileInfo>

#include <algorithm>

namespace datenbestand {

namespace {

constexpr QStringView geduldet[] = {u"Abfrage_Friedhof", u"Obstarten"};

/// Names that count when two databases are compared.
QStringList verglicheneTabellen(QStringList namen)
{
    namen.removeIf([](const QString &name) { return std::ranges::find(geduldet, name) != std::end(geduldet) || name.startsWith(u"MSys"); });
    return namen;
}

/// Opens a chosen file, which stays as it is.
std::shared_ptr<Datenbank> gewaehlteOeffnen(const QString &pfad)
{
    const std::shared_ptr<Datenbank> db = Datenbank::OpenDatabase(pfad, Datenbank::Zugriff::Lesen);
    // The file alone would not be the whole of it.
    Anweisung &anweisung = db->vorbereitet(QStringLiteral("PRAGMA journal_mode"));
    const bool allein = anweisung.schritt() && anweisung.bytes(0) != "wal";
    anweisung.zuruecksetzen();
    if (!allein)
        throw Fehler(QStringLiteral("Die Datenbank '%1' wird von einem anderen Programm in einer Form geführt, die Flox nicht übernehmen kann.")
                         .arg(QFileInfo(pfad).fileName()));
    return db;
}

/// The columns that the program knows of a table; of one that it does not describe those that the working database has.
QStringList erwarteteSpalten(const QString &tabelle, Datenbank &arbeit)
{
    QStringList namen;
    for (const Spalte &spalte : schema::spaltenVon(tabelle))
        namen += QString::fromLatin1(spalte.name);
    return namen.isEmpty() ? arbeit.Spaltennamen(tabelle) : namen;
}

QStringList fehlendeSpalten(Datenbank &gewaehlt, Datenbank &arbeit)
{
    QStringList fehlend;
    for (const QString &tabelle : gewaehlt.TabellenUndAbfragen()) {
        if (!arbeit.hatTabelle(tabelle))
            continue;
        QStringList vorhanden;
        try {
            vorhanden = gewaehlt.Spaltennamen(tabelle);
        } catch (const Fehler &) {
            if (!gewaehlt.istAbfrage(tabelle))
                throw;
            // A query that rests on what is missing; all its columns count as missing.
        }
        for (const QString &spalte : erwarteteSpalten(tabelle, arbeit))
            if (schema::stelleVon(tabelle, vorhanden, spalte) == schema::keineSpalte)
                fehlend += tabelle + u'.' + spalte;
    }
    return fehlend;
}

/// Nobody may have the file that is replaced, and nothing may lie beside it that would be taken for the new one's.
void freigeben(const QString &pfad)
{
    const QString name = QFileInfo(pfad).fileName(), journal = pfad + QStringLiteral("-journal");
    if (Datenbank::offen(pfad))
        throw Fehler(QStringLiteral("Die Datenbank '%1' ist noch geöffnet. Sie wurde nicht ersetzt.").arg(name));
    if (!QFileInfo::exists(journal))
        return;
    try {
        // What broke off in it is undone by opening it.
        (void)Datenbank::OpenDatabase(pfad);
    } catch (const Fehler &) {
        // The journal of another program that is at work is not ours to remove.
        if (QFileInfo::exists(journal) && schaden::beschaedigt(pfad))
            entferneDatei(journal);
    }
    if (QFileInfo::exists(journal))
        throw Fehler(QStringLiteral("Die Datenbank '%1' wird gerade von einem anderen Programm benutzt. Sie wurde nicht ersetzt.").arg(name));
}

} // namespace

QString arbeitsdatei(const Programm &programm)
{
    return systemPfad(programm.arbeitsdatenbank());
}

QString originaldatei(const Programm &programm)
{
    return systemPfad(programm.ProgrammPfad + QStringLiteral("\\flox-original.pdb"));
}

QString unbekannteTabelle(const Programm &programm, const QStringList &tabellen)
{
    const QString vorhanden = verglicheneTabellen(Datenbank::OpenDatabase(programm.arbeitsdatenbank())->TabellenUndAbfragen()).join(QString());
    const QStringList verglichene = verglicheneTabellen(tabellen);
    const auto fremd = std::ranges::find_if(verglichene, [&](const QString &name) { return !vorhanden.contains(name); });
    return fremd == verglichene.end() ? QString() : *fremd;
}

Befund pruefen(const Programm &programm, const QString &pfad)
{
    const std::shared_ptr<Datenbank> gewaehlt = gewaehlteOeffnen(pfad);
    // The tables of a newer version may be others.
    if (gewaehlt->vonUns())
        gewaehlt->lesbarFordern();
    if (schaden::beschaedigt(pfad))
        throw Fehler(QStringLiteral("Die Datenbank '%1' ist beschädigt.").arg(QFileInfo(pfad).fileName()));
    const std::shared_ptr<Datenbank> arbeit = Datenbank::OpenDatabase(programm.arbeitsdatenbank());
    Befund befund;
    befund.unbekannteTabelle = unbekannteTabelle(programm, gewaehlt->TabellenUndAbfragen());
    if (!befund.unbekannteTabelle.isEmpty())
        return befund;
    gewaehlt->lesbarFordern();
    befund.fehlendeSpalten = fehlendeSpalten(*gewaehlt, *arbeit);
    return befund;
}

QStringList ersetzteDateien(const Programm &programm, bool istOriginal)
{
    const QString arbeit = arbeitsdatei(programm), original = originaldatei(programm);
    QStringList ersetzte{arbeit};
    if (istOriginal && QFileInfo(original).isFile() && !gleicherInhalt(arbeit, original))
        ersetzte += original;
    return ersetzte;
}

void originalFordern(const Programm &programm)
{
    const QString original = originaldatei(programm);
    if (!QFileInfo(original).isFile())
        throw Fehler(
            QStringLiteral("Die gesicherte Originaldatenbank wurde nicht gefunden:\n%1\n\nDie Datenbank, mit der Sie arbeiten, bleibt erhalten.")
                .arg(QDir::toNativeSeparators(original)));
}

void originalHolen(const Programm &programm, const Merker &merken)
{
    const QString arbeit = arbeitsdatei(programm), original = originaldatei(programm);
    originalFordern(programm);
    Beidatei neu(arbeit);
    neu.kopieren(original);
    neu.abschliessen();
    freigeben(arbeit);
    neu.einsetzen();
    // Behind the exchange: whoever is stopped before it must not take the user's file for the original.
    try {
        merken(true);
    } catch (const Fehler &) {
        // It is the original all the same; for a user's file it can be taken without harm.
    }
}

void laden(const Programm &programm, const QString &pfad, bool istOriginal, const Merker &merken)
{
    const QString arbeit = arbeitsdatei(programm);
    // First, since the chosen file may be the saved original, which is about to be replaced.
    Beidatei neu(arbeit);
    // Fails with the name that the user knows.
    const auto als = [&](const QString &name, const auto &tun) {
        try {
            tun();
        } catch (const Fehler &fehler) {
            throw Fehler(QString(fehler.text()).replace(QFileInfo(neu.pfad()).fileName(), QFileInfo(name).fileName()));
        }
    };
    als(arbeit, [&] {
        // Nobody changes it while it is copied.
        const std::shared_ptr<Datenbank> gewaehlt = gewaehlteOeffnen(pfad);
        Transaktion ruhe(*gewaehlt, Transaktion::Art::Lesend);
        kopiereUeber(systemPfad(pfad), neu.pfad());
    });
    // A subset has none. What is wrong with the tables is wrong with the chosen file.
    als(pfad, [&] { Datenbank::OpenDatabase(neu.pfad(), Datenbank::Zugriff::Privat)->indexeErgaenzen(); });
    neu.abschliessen();
    freigeben(arbeit);
    if (istOriginal)
        kopiereSicher(arbeit, originaldatei(programm));
    // Before the exchange, for the same reason.
    merken(false);
    neu.einsetzen();
}

} // namespace datenbestand
