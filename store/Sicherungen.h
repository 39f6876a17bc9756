#pragma once

#include <QDateTime>
#include <QString>

struct Programm;

/* Files that are about to be replaced or deleted are kept beside the program, dated. Of each name the last ten stay. */
namespace sicherungen {

inline constexpr int meiste = 10;

/// The folder of the kept files, the system's path; it need not be there yet.
QString ordner(const Programm &programm);
/// Keeps a copy of a file under the date `jetzt` and returns the copy's path. One that is kept already is not kept twice: it gets the
/// new date. Empty where there is no such file. Throws when the copy cannot be made. `gebraucht`, a file that is about to be read, stays
/// where it is, under its name, whatever its age.
[[nodiscard]] QString aufheben(const Programm &programm, const QString &pfad, const QDateTime &jetzt = QDateTime::currentDateTime(),
                               const QString &gebraucht = {});

} // namespace sicherungen
