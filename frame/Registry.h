#pragma once

#include <QString>

/* The settings' store in the words of a registry: keys with "\", text values. Where the system has no registry it is an INI
   file, written whole or not at all. A read that fails gives the default, a write that fails leaves the old values on the disk. */
namespace registry {

inline constexpr int groessterWert = 255; ///< characters that are read of a value

/// Takes hold at once; it reaches the disk with `sichern`.
void RegWertSchreiben(const QString &schluessel, const QString &name, const QString &text);
/// Null when the key or value does not exist; cut at the first NUL.
[[nodiscard]] QString RegWertLesen(const QString &schluessel, const QString &name);
/// The default for a value that is missing, empty or sorts not above a blank.
[[nodiscard]] QString RegWertOderVorgabe(const QString &schluessel, const QString &name, const QString &vorgabe);
[[nodiscard]] bool vorhanden(const QString &schluessel, const QString &name);
/// Writes what has been set to the disk; false, with the values kept for the next time, when that fails.
[[nodiscard]] bool sichern();

} // namespace registry
