#pragma once

#include "store/Datenbestand.h"
#include "store/Dateien.h"
#include "store/Datenbank.h"
#include "store/Laufordner.h"
#include "store/Pfade.h"
#include "store/Sicherungen.h"
#include "store/Teilmenge.h"
#include "store/access/Austausch.h"

#include <QFile>

/* What a command does to the files, without its windows. The truth about the working database is kept in a file "original". */
namespace bestandswechsel {

inline void merken(const Programm &programm, bool original)
{
    schreibeSicher(systemPfad(programm.ProgrammPfad + QStringLiteral("\\original")), original ? "True" : "False");
}

inline bool istOriginal(const Programm &programm)
{
    QFile datei(systemPfad(programm.ProgrammPfad + QStringLiteral("\\original")));
    return !datei.open(QIODevice::ReadOnly) || datei.readAll() == "True";
}

/// `was`: "laden" takes `datei` as the working database, "original" the saved one, "teilmenge" writes the working database to `datei`,
/// "ausgabe" copies it there; "access" writes it there as a file of Access, and "access laden" takes one as the working database.
inline void tun(const Programm &programm, const QString &was, const QString &datei)
{
    const auto merker = [&](bool original) { merken(programm, original); };
    const QString arbeit = datenbestand::arbeitsdatei(programm);
    const auto laden = [&](const QString &pfad) {
        (void)datenbestand::pruefen(programm, pfad);
        for (const QString &alt : datenbestand::ersetzteDateien(programm, istOriginal(programm)))
            (void)sicherungen::aufheben(programm, alt);
        datenbestand::laden(programm, pfad, istOriginal(programm), merker);
    };
    if (was == u"laden") {
        laden(datei);
    } else if (was == u"access laden") {
        const Zwischendatei zwischen(programm);
        if (!accessdatei::istAccessdatei(datei))
            throw Fehler(QStringLiteral("keine Access-Datei"));
        (void)accessdatei::inhaltVon(datei);
        (void)accessdatei::einlesen(datei, zwischen.pfad());
        laden(zwischen.pfad());
    } else if (was == u"access") {
        const Zwischendatei zwischen(programm);
        (void)sicherungen::aufheben(programm, datei);
        (void)teilmenge::schreibenFuerSich(arbeit, zwischen.pfad(), [](Sparte) { return QString(); }, {});
        (void)accessdatei::ausgeben(zwischen.pfad(), datei);
    } else if (was == u"original") {
        (void)sicherungen::aufheben(programm, arbeit);
        datenbestand::originalHolen(programm, merker);
    } else {
        (void)sicherungen::aufheben(programm, datei);
        if (was == u"teilmenge")
            teilmenge::schreiben(arbeit, datei, [](Sparte) { return QString(); });
        else
            kopiereSicher(arbeit, datei);
    }
}

} // namespace bestandswechsel
