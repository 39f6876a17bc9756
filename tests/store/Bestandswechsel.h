#pragma once

#include "store/Datenbestand.h"
#include "store/Dateien.h"
#include "store/Datenbank.h"
#include "store/Laufordner.h"
#include "store/Pfade.h"
#include "store/Sicherungen.h"
#include "store/Teilmenge.h"

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
/// "ausgabe" copies it there.
inline void tun(const Programm &programm, const QString &was, const QString &datei)
{
    const auto merker = [&](bool original) { merken(programm, original); };
    const QString arbeit = datenbestand::arbeitsdatei(programm);
    if (was == u"laden") {
        (void)datenbestand::pruefen(programm, datei);
        for (const QString &alt : datenbestand::ersetzteDateien(programm, istOriginal(programm)))
            (void)sicherungen::aufheben(programm, alt);
        datenbestand::laden(programm, datei, istOriginal(programm), merker);
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
