#pragma once

#include <QString>
#include <QStringList>

/* Marks a written name as an examiner does: the writing counts. No window and no database is needed. */

enum class Urteil { Falsch, Fast, Richtig };

/// What may be answered. Every entry of a list counts by itself.
struct Loesung
{
    QString text;             ///< what is shown as the right answer
    QStringList auch = {};    ///< as right as `text`: the German synonyms, a family's German name
    QStringList teile = {};   ///< right, but not the whole of it: a species without its variety
    QStringList frueher = {}; ///< botanical synonyms: good for "nearly"
    bool deutsch = false;     ///< a German name: hyphens may be left out
};

struct Befund
{
    Urteil urteil = Urteil::Falsch;
    QString grund = {}; ///< why it is only nearly right; empty: nothing more to say

    bool operator==(const Befund &) const = default;
};

/// At most one flaw makes an answer nearly right: a letter that is wrong, missing, too many or exchanged with its neighbour (from four
/// letters on), another of the usual endings, capitals and small letters. Signs ×, quotes, points, accents and surplus blanks do not count,
/// ae stands for ä. An empty answer is wrong.
[[nodiscard]] Befund antwortPruefen(const QString &gegeben, const Loesung &loesung);

/// "richtig", "fast", "falsch"
QStringView urteilswort(Urteil urteil);
/// Halves of a point: 2, 1, 0.
constexpr int halbePunkte(Urteil urteil)
{
    return int(urteil);
}
/// Halves of a point as they are written: "1½", "½", "0".
QString punktetext(int halbe);

/// A botanical name in the parts that are asked for; parts that it lacks are empty.
struct Namensteile
{
    QString gattung, art, sorte;

    bool operator==(const Namensteile &) const = default;
};
/// "Acer tataricum subsp. ginnala" has the species "tataricum subsp. ginnala", "Begonia-Rex-Hybriden" "Rex-Hybriden"; the sign of a hybrid belongs to
/// no part.
Namensteile namensteile(const QString &botanisch);
/// The species alone, where a part of a name goes beyond it; else empty.
QString nurArt(const QString &art);
