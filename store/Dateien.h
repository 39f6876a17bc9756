#pragma once

#include <QByteArray>
#include <QString>

/* Files that the program writes. Paths are the system's. */

/// Byte copy of `quelle` over `ziel`. An existing target is overwritten in place, which is several times faster than a new
/// file; a journal left beside it is removed first. Returns false, with the target in an undefined state, on any error.
bool kopiereUeber(const QString &quelle, const QString &ziel);

/// Writes the whole file or leaves the old one untouched; false on any error. The written bytes are checked before the
/// switch, since a full disk can go unnoticed there.
bool schreibeSicher(const QString &pfad, const QByteArray &inhalt);
