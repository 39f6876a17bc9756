#pragma once

#include "store/Sparten.h"

#include <QStringList>

/* Parts of pages that the program's own tables say, in HTML. */
namespace tabellen {

/// Text as it stands in HTML.
QString html(QStringView text);
/// Every criterion of a filter dialog, tab by tab: what can be chosen and which plants pass.
QString kriterien(Sparte sparte);
/// What a plant window shows, tab by tab and group by group.
QString felder(Sparte sparte);
/// The words of a column "Table.Field" with their positions. Throws Fehler where it has none.
QString worte(const QString &spalte);
/// The pictures that stand for something in a Sparte's window, each with its sentence.
QString kennzeichen(Sparte sparte);
/// Those pictures, as keys of picture lists.
QStringList kennzeichenbilder(Sparte sparte);
/// Name of a picture's file in the manual.
QString zeichendatei(const QString &bild);
/// The words of every column of a Sparte.
QString alleWorte(Sparte sparte);

} // namespace tabellen
