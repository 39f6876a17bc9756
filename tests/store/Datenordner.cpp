#include "Datenordner.h"

#include "store/Benutzernamen.h"

#include <QFile>
#include <QLocale>

Datenordner::Datenordner()
{
    QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
    if (!QFile::copy(QStringLiteral(FLOX_DB), datenbank()))
        qFatal("The shipped database cannot be copied.");
    QFile::setPermissions(datenbank(), QFile::ReadOwner | QFile::WriteOwner);
}

Programm Datenordner::programm() const
{
    Programm programm;
    programm.ProgrammPfad = ordner_.path();
    programm.BilderPfad = ordner_.path();
    programm.ProgrammVersion = QStringLiteral("1.2.3");
    if (const QString satz = benutzernamenLesen(programm); !satz.isEmpty())
        qFatal("%s", qPrintable(satz));
    return programm;
}
