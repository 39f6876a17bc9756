#pragma once

#include <QString>

struct Programm;

/* Notes that no database takes are kept as text, where the user finds them again. */

/// Adds `text`, under the date, to the text file of such notes: beside the database or, where that folder takes none, among the user's
/// documents, in his home or among the temporary files. Returns its path; throws with the first folder's reason when none takes it.
QString notizAufheben(const Programm &programm, const QString &text);
