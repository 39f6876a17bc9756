#pragma once

#include "Fehler.h"

#include <QByteArray>
#include <QString>

/* Files that the program writes. Paths are the system's. What fails throws a Fehler that names the file and the cause. */

/// The failure of a write for which there is no room left.
class Datentraegervoll : public Fehler
{
public:
    using Fehler::Fehler;
};

/// Cause of a failed file operation as a German sentence, from its error number (errno); empty for a number without one.
QString dateiursache(int nummer);

/// The bytes of a file.
[[nodiscard]] QByteArray liesGanz(const QString &pfad);

/// Byte copy of `quelle` over `ziel`. An existing target is overwritten in place, which is several times faster than a new
/// file; a journal left beside it is removed first. On a failure the target is in an undefined state.
void kopiereUeber(const QString &quelle, const QString &ziel);

/// Writes the whole file or leaves the old one untouched. The bytes are on the disk before the switch, since a full disk can go
/// unnoticed there. Any thread.
void schreibeSicher(const QString &pfad, const QByteArray &inhalt);

/// Copies a file as schreibeSicher writes one, with the time of its last change. Any thread.
void kopiereSicher(const QString &quelle, const QString &ziel);

/// File that names the targets that are being written, for as long as they are; empty: none is kept. A run that was killed leaves it
/// and the half-written files behind.
void setSchreibmerker(const QString &pfad);
/// Removes what a dead run left half written by the word of that file. Nobody else may use it.
void schreibresteFegen();
