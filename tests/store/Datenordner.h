#pragma once

#include "store/Datenbank.h"
#include "store/Programm.h"

#include <QTemporaryDir>

/// A temporary program folder with the shipped database.
class Datenordner
{
public:
    /// With every `jede`-th plant of each collection: fewer for what does not depend on how many there are, since every window reads them all.
    /// With all of them where every case is asked for.
    explicit Datenordner(int jede = 1);

    QString pfad(const QString &datei = {}) const { return ordner_.filePath(datei); }
    QString datenbank() const { return pfad(QStringLiteral("flox-demo.mdb")); }
    /// State as after the start, with this folder.
    Programm programm() const;
    /// The working database, opened for changes by the test.
    std::shared_ptr<Datenbank> db() const { return Datenbank::OpenDatabase(datenbank()); }

private:
    QTemporaryDir ordner_;
};
