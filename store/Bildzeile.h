#pragma once

#include "Sparten.h"

#include <QString>
#include <QStringList>

#include <array>
#include <functional>
#include <memory>
#include <optional>

class Datenbank;
class Recordset;

/* What a picture table says of a plant. Two forms are read: one wide row a plant, with slots in two halves, and one row a picture, where
   the k-th row of a plant is its slot k. The columns are named here and nowhere else. */

inline constexpr int bilderJeHaelfte = 5;
inline constexpr int groessteBilderzahl = 2 * bilderJeHaelfte;
/// Stands in a slot in place of a file name: there is no picture, and no substitute is wanted.
inline constexpr QStringView bildFehlt = u"fehlt";

/// The picture row of a plant; index 0 is picture 1 of a half.
struct Bildzeile
{
    struct Bild
    {
        std::optional<QString> stamm; ///< file name without ".jpg"; nothing for a null
        QString bemerkung;
    };
    std::array<Bild, bilderJeHaelfte> g, d;
};

/// Columns of a slot of the wide row; `haelfte` is 'G' or 'D', `bild` counts from 1.
QString bildspalte(char haelfte, int bild);
QString bildbemerkungsspalte(char haelfte, int bild);
/// All of them, in the order of the table.
QStringList bilderspalten();

/// The row of a plant out of the picture rows; nothing when there is none.
std::optional<Bildzeile> bildzeile(Recordset &satz, qint64 artnr);
/// The same out of the working database, where a table that is missing counts as empty.
std::optional<Bildzeile> bildzeile(const std::shared_ptr<Datenbank> &arbeit, const SpartenEintrag &sparte, qint64 artnr);

/// Every plant's row, in no order, until `ansehen` gives false; a table that is missing counts as empty.
void bildzeilenLesen(Datenbank &db, const SpartenEintrag &sparte, const std::function<bool(qint64 artnr, const Bildzeile &)> &ansehen);

/// Whether a table holds one row a picture. Throws where it is missing.
bool einBildJeZeile(Datenbank &db, const QString &tabelle);
/// Expression in SQLite's dialect that is null for a row of the form that names no picture.
QString nenntBild(bool einBildJeZeile);
