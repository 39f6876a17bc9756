#pragma once

#include <QString>

/* The search for damage in a database file. A small file is searched when somebody first asks, a large one beside the program; into
   a file that is damaged nothing is written. */
namespace schaden {

constexpr qint64 grosseDatei = 16 << 20; ///< bytes; from here on the search runs beside the program

/// Whether a file that is no working database is damaged: searched through here and now. A file that cannot be read is not.
[[nodiscard]] bool beschaedigt(const QString &pfad);

/// Begins the search; what an earlier one found in this file is forgotten.
void suchen(const QString &pfad);
/// Whether `befund` has nothing to wait for but a small file.
[[nodiscard]] bool fertig(const QString &pfad);
/// What is wrong with the file, as a sentence for the user; empty where nothing is, or nothing was looked for. Waits for the
/// search to end.
[[nodiscard]] QString befund(const QString &pfad);
/// Throws the finding; what writes into a file asks first.
void schreibenErlauben(const QString &pfad);
/// Gives up what is still under way; the results are forgotten.
void beenden();

} // namespace schaden
