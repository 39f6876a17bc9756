#pragma once

#include <QString>

/* The settings' store in the words of a registry: keys with "\", text values. Where the system has no registry it is an INI
   file, written atomically. Failures are silent: a read gives the default, a write leaves the old value. */
namespace registry {

inline constexpr int groessterWert = 255; ///< characters that are read of a value

void RegWertSchreiben(const QString &schluessel, const QString &name, const QString &text);
/// Null when the key or value does not exist; cut at the first NUL.
QString RegWertLesen(const QString &schluessel, const QString &name);
/// The default for a value that is missing, empty or sorts not above a blank.
QString RegWertOderVorgabe(const QString &schluessel, const QString &name, const QString &vorgabe);
bool vorhanden(const QString &schluessel, const QString &name);
/// Writes what has been set to the disk.
void sichern();

} // namespace registry
