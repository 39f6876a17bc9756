#pragma once

#include <QString>

/* The settings' store in the words of a registry: keys with "\", text values. Where the system has no registry it is an INI
   file, written whole or not at all. A read that fails gives the default, a write that fails leaves the old values on the disk. */
namespace registry {

inline constexpr int groessterWert = 255; ///< characters that are read of a value

/// Takes hold at once; it reaches the disk with `sichern`.
void RegWertSchreiben(QStringView schluessel, QStringView name, const QString &text);
/// Null when the key or value does not exist; cut at the first NUL.
[[nodiscard]] QString RegWertLesen(QStringView schluessel, QStringView name);
/// The default for a value that is missing, empty or sorts not above a blank.
[[nodiscard]] QString RegWertOderVorgabe(QStringView schluessel, QStringView name, const QString &vorgabe);
[[nodiscard]] bool vorhanden(QStringView schluessel, QStringView name);
/// Takes up what other programs have written since the last look.
void auffrischen();
/// Where the settings stand, as the system names it.
[[nodiscard]] QString ort();
/// Writes what has been set to the disk; false, with the values kept for the next time, when that fails.
[[nodiscard]] bool sichern();

} // namespace registry
