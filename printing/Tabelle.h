#pragma once

#include "Druck.h"

#include <QByteArray>

#include <vector>

/* The plants of a set as a table, for programs that calculate. */

/// A column of a Sparte that can stand in a table.
struct Tabellenspalte
{
    const Spalte *spalte;
    QString titel;              ///< with the unit of its numbers in brackets
    bool vorgeschlagen = false; ///< what most want: names, family, months, rating
};
/// In the order of the data sheet, each once and with a title of its own.
std::vector<Tabellenspalte> tabellenspalten(Sparte sparte);

struct Tabellenzelle
{
    QString text;               ///< as the data sheet has it; a truth is "ja"
    std::optional<double> zahl; ///< of a column of numbers, where the text is one
};

struct Datentabelle
{
    QString name;
    QStringList titel;
    std::vector<std::vector<Tabellenzelle>> zeilen;
};

/// A row for each plant of the set, in its order. Throws Druckabbruch, or Fehler where a plant cannot be read.
Datentabelle datentabelle(const Programm &programm, const Druckauftrag &auftrag, std::span<const Tabellenspalte> spalten,
                          const Druckfortschritt &fortschritt = {});

/// UTF-8 with its mark, semicolons, lines that end with CR and LF; quoted where RFC 4180 asks for it. A text that a program would take
/// for a formula has an apostrophe before it.
QByteArray alsCsv(const Datentabelle &tabelle);
/// The bytes of an OpenDocument spreadsheet: numbers as numbers, all else as text. Throws where the memory does not suffice.
QByteArray alsOds(const Datentabelle &tabelle);
