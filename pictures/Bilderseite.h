#pragma once

#include "store/Programm.h"

#include <functional>
#include <vector>

/* The pictures of many plants at once: what a page of thumbnails shows. */

struct Bilderseite
{
    struct Pflanze
    {
        qint64 artnr = 0;
        QString botanisch, deutsch;
    };
    struct Bild
    {
        int pflanze = 0; ///< place in `pflanzen`
        QString datei;   ///< the system's path
        QString text;
    };
    std::vector<Pflanze> pflanzen; ///< those that have a picture
    std::vector<Bild> bilder;      ///< in the order of the plants, each plant's in that of its strip
    qsizetype vermisst = 0;        ///< pictures that are named and have no file
    QString ersatz;                ///< the system's path of what is shown for a file that proves unreadable
};

struct Seitenauftrag
{
    Programm programm; ///< as it was when the page was asked for
    Sparte sparte = Sparte::Topf;
    std::vector<qint64> folge; ///< the plants' numbers, as they are to be listed
};

/// Reads names and picture rows of the working database in one walk each, over a connection of its own, and the picture folders once:
/// any thread. Pictures without a file are left out. `abgebrochen` is asked now and then; then an empty page comes back. Throws when
/// the database cannot be read.
Bilderseite bilderseite(
    const Seitenauftrag &auftrag, const std::function<bool()> &abgebrochen = [] { return false; });
