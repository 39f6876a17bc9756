#pragma once

#include <QString>

/// What the user has entered for one plant: a note and five properties, "1" or a blank each.
struct Notiz
{
    qint64 artnr = 0;
    QString bemerkung, eigen;
};
