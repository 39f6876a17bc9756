#pragma once

#include "store/Lauf.h"

#include <QString>
#include <QStringList>

#include <optional>
#include <vector>

/* Databases of the program out of Access files and back. Both ways may run in a thread of their own: they open no connection that anybody
   shares. What fails throws a Fehler; the target is then what it was. */

namespace accessdatei {

/// What a table's way was like.
struct Tabellenbericht
{
    QString tabelle;
    qint64 zeilen = 0;                    ///< that came
    qint64 unlesbar = 0;                  ///< damaged in the file
    std::vector<qint64> unlesbarePlaetze; ///< the first of them, counted from 1
    qint64 abgewiesen = 0;                ///< without a number, or with one that another row has
    qint64 schadhafteWerte = 0;           ///< that came empty or short, for damage in the file
    qint64 ueberzaehligeBilder = 0;       ///< beyond the slots of a plant
    QStringList fehlendeFelder;           ///< of the program, not in the file
    QStringList fremdeFelder;             ///< of the file, not the program's or of a kind that is not read
};

struct Bericht
{
    std::vector<Tabellenbericht> tabellen; ///< in the file's order
    QStringList fehlendeTabellen, fremdeTabellen, verknuepfteTabellen, unlesbareTabellen;
    qint64 bereinigteTexte = 0; ///< with characters that Access cannot keep

    /// All of it in German, a line a table.
    QString text() const;
};

/// Whether a file is one of Access, by its first bytes.
bool istAccessdatei(const QString &pfad);

/// What a file holds, before anything is done with it.
struct Inhalt
{
    QStringList tabellen;    ///< the user's, those among them too that stand in another file or cannot be read
    QStringList verknuepfte; ///< those that stand in another file
    int codeseite = 0;       ///< of its texts; 0 where they are Unicode
    QString zweifelhaft;     ///< the first text that does not fit the code page; empty: all do
};
/// Nothing when the run was called off. `codeseite` in place of the file's own; 0: its own.
[[nodiscard]] std::optional<Inhalt> inhaltVon(const QString &pfad, const Lauf &lauf = {}, int codeseite = 0);

/// Code pages that a user may choose from, with their names.
struct Codeseitenwahl
{
    int nummer;
    QStringView name;
};
std::vector<Codeseitenwahl> codeseiten();

/// Makes a database of the program at `ziel`, with all its tables, out of the tables of an Access file that are the program's, by their
/// names. Nothing, and no file, when the run was called off. `codeseite` as above.
[[nodiscard]] std::optional<Bericht> einlesen(const QString &quelle, const QString &ziel, const Lauf &lauf = {}, int codeseite = 0);

/// Writes all tables and queries of a database of the program into an Access file (Jet 4) at `ziel`, which is read back and compared
/// before it is put in place. Nothing, and no file, when the run was called off.
[[nodiscard]] std::optional<Bericht> ausgeben(const QString &quelle, const QString &ziel, const Lauf &lauf = {});

} // namespace accessdatei
