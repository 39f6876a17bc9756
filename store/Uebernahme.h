#pragma once

#include <QString>
#include <QStringList>

/* What the user wrote, carried from one state of the plant data into another. */

struct Uebernahme
{
    int pflanzen = 0;        ///< whose note or properties found their place
    QStringList ohnePflanze; ///< of what found none, a paragraph each that a reader understands
};

/// Writes the notes, the properties and their names of the database `alt`, which stays as it is, into `neu`, in one durable transaction.
/// A plant is found again by table, number and name; where one of the two has changed, by a name that only one plant has, or by the number
/// where the old name has become a synonym. Columns and tables that one of them lacks are passed over. Paths are the system's. Throws,
/// with `neu` unchanged, when that fails.
[[nodiscard]] Uebernahme benutzerdatenUebernehmen(const QString &alt, const QString &neu);
