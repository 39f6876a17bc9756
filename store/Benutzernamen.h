#pragma once

#include "Programm.h"

/* The names of the user-defined properties, kept in the working database. */

inline const QString namentabelle = QStringLiteral("Namen_Benutzer_Optionen");

/// Reads all names. Rows beyond the number of properties do not count: a sentence for the user says so; empty: there are none.
/// Throws where the database cannot be opened or lacks the table.
[[nodiscard]] QString benutzernamenLesen(Programm &programm);
/// Whether the working database has the table of the names: one that the user has loaded may lack it.
[[nodiscard]] bool hatBenutzernamen(const Programm &programm);
/// Writes the names that differ from the stored ones, in one durable transaction; where none does the database is left alone.
/// Throws as above, with the old names kept.
void benutzernamenSchreiben(const Programm &programm);
