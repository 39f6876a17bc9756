#pragma once

#include <QString>
#include <QStringList>

/* What the program asks of the system around it: its name, other programs, their windows. */

/// What a system says of its version.
struct Systemversion
{
    int plattform = 0; ///< 0, 1 and 2 as Windows numbers its families; any other: none of them
    int haupt = 0;
    int neben = 0;
    quint32 bau = 0;
};

/// The name of a system; "Unbekanntes Betriebssystem" for what has none here.
QString betriebssystemname(const Systemversion &version);
/// The name of the system that this runs on.
QString betriebssystem();

/// The files that a program's name can mean in a folder: with and without ".exe", in any case; the most likely one first. Empty where
/// there is none.
QStringList programmdateien(const QString &ordner, const QString &name);
/// Starts a program of a folder as a process of its own that works there. False, without a word, when none could be started.
[[nodiscard]] bool programmStarten(const QString &ordner, const QString &name);
/// Brings another program's window of this title to the front. As good as the system lets it; no failure is told.
void fensterAktivieren(const QString &titel);
