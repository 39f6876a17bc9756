#include "Datenordner.h"

#include "store/Benutzernamen.h"
#include "store/Schema.h"
#include "tests/Faelle.h"

#include <QFile>
#include <QLocale>

namespace {

/// The database to copy; one with fewer plants is made once a process.
QString vorlage(int jede)
{
    const QString ganz = QStringLiteral(FLOX_DB);
    if (jede == 1 || gruendlich())
        return ganz;
    static const QTemporaryDir lager;
    const QString datei = lager.filePath(QString::number(jede));
    if (QFile::exists(datei))
        return datei;
    if (!QFile::copy(ganz, datei) || !QFile::setPermissions(datei, QFile::ReadOwner | QFile::WriteOwner))
        qFatal("The shipped database cannot be copied.");
    const auto db = Datenbank::OpenDatabase(datei);
    for (const Tabelle &tabelle : schema::haupttabellen())
        db->Execute(QStringLiteral("DELETE FROM %1 WHERE ARTNR % %2 <> 0").arg(QLatin1String(tabelle.name)).arg(jede));
    db->Execute(QStringLiteral("VACUUM"));
    return datei;
}

} // namespace

Datenordner::Datenordner(int jede)
{
    QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
    if (!QFile::copy(vorlage(jede), datenbank()))
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
