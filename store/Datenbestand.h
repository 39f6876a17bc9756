#pragma once

#include <QStringList>

#include <functional>

struct Programm;

/* The files behind the plants: the working database, which the user may replace, and the saved original, to which he may return. No
   window may hold a connection to the working database while its file is exchanged. */
namespace datenbestand {

/// The working database and the saved original, the system's paths.
QString arbeitsdatei(const Programm &programm);
QString originaldatei(const Programm &programm);

/// The first of a file's tables that the working database lacks; empty: none, the file may be loaded.
[[nodiscard]] QString unbekannteTabelle(const Programm &programm, const QStringList &tabellen);

/// What a look into a chosen file has found.
struct Befund
{
    QString unbekannteTabelle;   ///< the first table that the working database lacks; empty: none, the file may be loaded
    QStringList fehlendeSpalten; ///< "Table.Column", for what the file's tables lack; it can be loaded all the same
};
/// Looks at a file of the program's own format that is to be loaded and changes nothing. Throws where it cannot be opened as a database, is damaged, of a newer
/// version or not one of this program.
[[nodiscard]] Befund pruefen(const Programm &programm, const QString &pfad);

/// The files that loading another one replaces; the saved original is among them where it is not what will be saved anyway.
QStringList ersetzteDateien(const Programm &programm, bool istOriginal);

/// Tells for good whether the working database is the original. What it throws stops the loading of another one.
using Merker = std::function<void(bool original)>;
/// Throws where there is no saved original.
void originalFordern(const Programm &programm);
/// Copies the saved original over the working database. Throws, with nothing changed, when that fails or there is none.
void originalHolen(const Programm &programm, const Merker &merken);
/// Copies a chosen file over the working database; where that is the original, it is saved first. Throws, with the working database
/// as it was, when that fails.
void laden(const Programm &programm, const QString &pfad, bool istOriginal, const Merker &merken);

} // namespace datenbestand
