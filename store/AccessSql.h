#pragma once

#include <QString>

#include <optional>

/* The SQL subset of the program's statements, turned into SQLite's. Access's LIKE itself is a function of the connection
   (see accessLike); here only what SQLite cannot read, or reads slowly, is rewritten. */

class Datenbank;

/// "SELECT columns FROM table [WHERE condition] [ORDER BY column]" or the bare name of a table.
struct Auswahl
{
    QString spalten = QStringLiteral("*");
    QString tabelle;
    QString bedingung;   ///< SQLite's dialect; empty: all rows
    QString sortierfeld; ///< empty: the order of the table
    bool absteigend = false;
};

/// "SELECT columns INTO target IN 'file' FROM rest".
struct Kopierauftrag
{
    QString spalten, ziel, datei, rest;
};

/// Throws a Fehler for a text that is no such selection.
Auswahl auswahlLesen(const QString &recordSource, Datenbank &db);
std::optional<Kopierauftrag> kopierauftragLesen(const QString &sql);

/// Access's LIKE: `*` any run, `?` one character, `#` one digit, `[a-c]`, `[!a-c]`; case-blind, umlauts too.
bool accessLike(QStringView muster, QStringView text);
