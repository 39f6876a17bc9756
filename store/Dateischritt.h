#pragma once

#include <QString>

#include <cerrno>
#include <functional>

/* The calls that the program makes of files, one at a time, and the layer under them by which tests let any of them fail. */

enum class Dateischritt { Oeffnen, Lesen, Schreiben, Abgleichen, Umbenennen, Entfernen, Anlegen };
/// Asked before every step with the path it works on; a number other than 0 (errno) makes the step fail by it, undone. Empty: none.
using Dateiaufsicht = std::function<int(Dateischritt, const QString &)>;
void setDateiaufsicht(Dateiaufsicht aufsicht);
/// What the layer says to a step that is about to be done.
[[nodiscard]] int dateiaufsicht(Dateischritt schritt, const QString &pfad);

/// Does one step: 0, or the number that it failed by. `ruf` tells whether it came off; errno is looked at right behind it.
template<typename Ruf>
[[nodiscard]] int dateischritt(Dateischritt schritt, const QString &pfad, Ruf &&ruf)
{
    if (const int nummer = dateiaufsicht(schritt, pfad))
        return nummer;
    errno = 0;
    if (ruf())
        return 0;
    return errno ? errno : EIO;
}

/// Cause of a failed file operation as a German sentence, from its error number (errno); empty for a number without one.
QString dateiursache(int nummer);
