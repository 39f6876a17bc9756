#pragma once

#include "Lauf.h"
#include "Sparten.h"

#include <QString>

#include <functional>
#include <span>

/* A subset: a database file with all side tables and, of each Sparte, the plants that were selected. */
namespace teilmenge {

/// The tables that go over whole, in the order of writing.
std::span<const char *const> nebentabellen();

struct Haupttabelle
{
    const char *name;
    std::optional<Sparte> sparte; ///< nothing: no window shows it
};
/// The tables of plants, in the order of writing.
std::span<const Haupttabelle> haupttabellen();

/// The private copy that a Sparte's plants are taken from; empty: the working database.
using Quelle = std::function<QString(Sparte)>;
/// Writes the subset of a working database; a file that stands there already is replaced when the new one is complete. A side table
/// that is missing or cannot be read is left out. Throws, with the table's name and the cause, and leaves the old file or none.
void schreiben(const QString &arbeit, const QString &ziel, const Quelle &quelle);
/// The same for a thread of its own, which is asked for the copies too; their windows keep them open, nobody changes them meanwhile. False,
/// and nothing written, when the run was called off.
[[nodiscard]] bool schreibenFuerSich(const QString &arbeit, const QString &ziel, const Quelle &quelle, const Lauf &lauf);

} // namespace teilmenge
