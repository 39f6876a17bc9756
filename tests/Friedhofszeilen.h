#pragma once

#include "store/Datenbank.h"

/* Cemetery plants for tests, whatever the shipped database holds of them. */

/// Replaces the cemetery plants by `anzahl` rows over perennials and as many over woody plants, all rated 9. Every field that can be
/// empty is so in some rows.
void friedhofFuellen(Datenbank &db, int anzahl);
/// Puts what the query shows as a flat table into another database, in place of the query there.
void friedhofFlach(Datenbank &von, Datenbank &nach);
