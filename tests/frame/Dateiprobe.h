#pragma once

#include "Rahmenprobe.h"

#include "tests/Dateiwahl.h"

#include <QDir>

/// What the status bar says while a subset is loaded.
inline const QString teilmengensatz = QStringLiteral("Sie arbeiten mit einer Teilmenge der Flox-Datenbank!");

/* A main window in the folder of its program, with its messages caught: for tests of files that the user chooses. */
class Dateiprobe : public Rahmenprobe
{
public:
    Dateiprobe() : Rahmenprobe(7), meldungen(std::make_unique<Meldungsfaenger>())
    {
        programm.HinweisAus = {false, true, true};
        laden();
        QDir::setCurrent(ordner.pfad());
    }
    ~Dateiprobe()
    {
        zentrale.reset(); // while its messages are caught
        QDir::setCurrent(QDir::tempPath());
    }
    Dateiprobe(const Dateiprobe &) = delete;
    Dateiprobe &operator=(const Dateiprobe &) = delete;

    QString pfad(const QString &name) const { return ordner.pfad(name); }
    /// Picks a file that is to be loaded.
    void datenbankLaden(const QString &name)
    {
        Dateiwahl wahl(pfad(name));
        waehlen("mnuDateiDBLadenBenutzer");
    }
    /// Picks the name of a subset; its path.
    QString teilmengeSpeichern(const QString &name)
    {
        Dateiwahl wahl(pfad(name));
        waehlen("mnuFloxTeilmegeSpeichern");
        return pfad(name);
    }

    std::unique_ptr<Meldungsfaenger> meldungen; ///< none: whoever lets go of it answers the boxes himself
};
