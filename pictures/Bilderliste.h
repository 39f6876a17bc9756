#pragma once

#include "store/Bildzeile.h"
#include "store/Programm.h"

#include <array>
#include <optional>
#include <vector>

/* Which pictures a plant has: pure rules over its picture row, no window. */

/// A picture to show: a file that exists and begins like a picture, or the substitute for one that does not.
struct Bildeintrag
{
    QString pfad; ///< as the program writes paths
    QString beschreibung;
    bool vorhanden = false;
    QString ersatz = {}; ///< shown in its place where the file proves unreadable; empty: nothing is
};

/// Folder word of a plant's pictures.
QString bildordner(Sparte sparte, qint64 artnr);
QString ersatzbild(const Programm &programm);
/// Folder of the strip's pictures: the previews where they are local; empty: none is known.
QString streifenwurzel(const Programm &programm);

/// The strip's pictures: all five of each half, nulls passed over, previews where they are local.
std::vector<Bildeintrag> streifenbilder(const Programm &programm, const Bildzeile &zeile, const QString &ordner);
/// The picture window's: pictures 1 to 4 of each half, a null ends the half. `vorige` are the captions that stood in the
/// places before: a missing picture keeps the caption of its place.
std::vector<Bildeintrag> fensterbilder(const Programm &programm, const Bildzeile &zeile, const QString &ordner,
                                       const std::array<QString, groessteBilderzahl> &vorige);

/// What the two sample files say of the picture medium; changes the paths and flags as they find it. A folder that is away is
/// given up, but remembered for the run: it is taken again when it is back and no other one has been chosen.
struct Medium
{
    QString hinweis;        ///< text for the status bar
    bool unbekannt = false; ///< no picture folder is known any more
};
Medium bildMediumPruefen(Programm &programm);
/// Whether the medium is missing: pictures are on the CD and a sample file cannot be found.
bool mediumFehlt(const Programm &programm);
/// The user's choice of a picture folder, or of none (empty): a folder remembered before is forgotten.
void bilderPfadWaehlen(Programm &programm, const QString &ordner);
