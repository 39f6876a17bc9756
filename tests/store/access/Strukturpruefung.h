#pragma once

#include <QString>
#include <QStringList>

/// What a check of every page of a Jet 4 file found: whether each page has one owner and is of its kind, whether the maps name what is used,
/// and whether rows, long values, free space, definitions, indexes, catalog and rights agree. It knows nothing of reader and writer.
struct Strukturbefund
{
    QStringList fehler;
    int indexebenen = 0; ///< of the deepest index
};

Strukturbefund strukturPruefen(const QString &pfad);
