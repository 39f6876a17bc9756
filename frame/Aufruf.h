#pragma once

#include "store/Sparten.h"

#include <QStringList>

#include <optional>

/* How the program was called from outside: by a shell, a menu or a double click. */
struct Aufruf
{
    QString auskunft; ///< is printed, and the program ends; empty: it starts
    int ergebnis = 0; ///< with which it ends then
    QString datei;    ///< to be opened, absolute; empty: none
};
/// Of the arguments behind the program's name.
Aufruf aufrufLesen(const QStringList &argumente);
/// The Sparte whose filters bear the ending of a file; nothing where it is none of a filter.
std::optional<Sparte> filterSparte(const QString &datei);
