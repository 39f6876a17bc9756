#pragma once

#include <QString>
#include <QStringList>

/* Paths are kept as the program's texts write them, with "\"; one function turns them into paths of the system. */

/// `ordner` and `rest` joined with exactly one "\" between them; empty when the folder is unknown (empty).
QString pfadAus(const QString &ordner, const QString &rest);
/// The path for the system: its own separator, and where the exact name is missing, an existing one that differs in case only
/// (one that came within the last two seconds may be missed). Any thread.
QString systemPfad(const QString &pfad);
/// A folder as settings keep it: with one trailing "\"; empty stays empty.
QString mitStrich(const QString &ordner);
/// A path as the user reads it: with the system's separator throughout.
QString anzeigePfad(const QString &pfad);
/// First match of a name with wildcards (`* ?`) below a folder, as the program probes for files; false for an empty path. Any thread.
bool dateiVorhanden(const QString &muster);
/// How many of several names with wildcards have a file in a folder; more than `genug` are not looked for. The folder is read once
/// at the most. Any thread.
int dateienVorhanden(const QString &ordner, const QStringList &muster, int genug);
