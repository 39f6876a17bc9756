#pragma once

#include <QStringList>

#include <vector>

class Printer;

/* A table on pages: a title, lines below it, columns of given widths. Cells wrap; a page begins with the heads of the columns, and its foot
   tells title and page. */
struct Tabellenblatt
{
    struct Spalte
    {
        QString titel;
        double breite; ///< millimetres
    };
    struct Zeile
    {
        QString gruppe;     ///< a heading above the first of the lines that share it; empty: none
        QStringList zellen; ///< one for each column
    };

    QString titel;
    QStringList kopf; ///< below the title, the first one larger
    std::vector<Spalte> spalten;
    std::vector<Zeile> zeilen;
};

void tabelleDrucken(const Tabellenblatt &blatt, Printer &drucker);
