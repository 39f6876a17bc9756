#pragma once

#include "Programm.h"

/* The names of the user-defined properties, kept in the working database. */

/// Reads all names. Throws where the database cannot be opened, lacks the table or holds more rows than there are properties.
void benutzernamenLesen(Programm &programm);
/// Writes all names, in one durable transaction. Throws as above, with the old names kept.
void benutzernamenSchreiben(const Programm &programm);
