#pragma once

#include "RecLeser.h"
#include "store/Schema.h"

#include <QHash>

/* What the fields of a plant must be to each other and to the plants before it. What one field may hold on its own is checked
   where it is read. */
class Quellregeln
{
public:
    /// Genera that belong to a family, separated by commas. A genus of two families is refused.
    void gattungen(const RecSatz &satz, const RecFeld &feld, const QString &familie);
    /// `inhalt` holds what the table will store, by column name. Throws Quellfehler with the line of the field that is wrong.
    void pruefen(const RecSatz &satz, const Tabelle &tabelle, const QHash<QString, QString> &inhalt);

    /// First word of a running text in the spelling before 1996, outside single quotes; empty where there is none.
    static QString alteSchreibung(const QString &text);

private:
    void familie(const RecSatz &satz, const Tabelle &tabelle);

    QHash<QString, QString> familieVon_; ///< of a genus or of a kind of fruit
};
