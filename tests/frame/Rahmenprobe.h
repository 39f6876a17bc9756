#pragma once

#include "frame/mdiZentral.h"
#include "tests/Hilfen.h"

#include <QAction>

class QMdiSubWindow;
class Flaeche;

/* What the tests of the frame share. */

/// Settings of its own: nothing is read from or written to the user's.
class Ablage
{
public:
    Ablage();
    QString datei() const { return ordner_.filePath(QStringLiteral("flox/registry.ini")); }

private:
    QTemporaryDir ordner_;
};

/// Another program in a folder, which is made; what cannot be executed is a file like any other.
void programmSchreiben(const QString &pfad, const QByteArray &inhalt, bool ausfuehrbar = true);

/// A main window on a program folder and settings of its own.
class Rahmenprobe
{
public:
    explicit Rahmenprobe(int jede = 1) : ordner(jede), programm(ordner.programm()) {}

    /// Loads and shows the main window.
    void laden();
    void waehlen(const char *eintrag) { aktion(eintrag)->trigger(); }
    QAction *aktion(const char *name);
    /// Titles of the plant windows, in the order they were opened.
    QStringList titel();
    QList<QMdiSubWindow *> unterfenster();
    Pflanzenfenster *fenster(int nummer, Sparte sparte = Sparte::Topf) { return zentrale->fenster(sparte, nummer); }
    void schliessen(int nummer, Sparte sparte = Sparte::Topf);
    bool temp(const char *datei) const { return QFile::exists(ordner.pfad(QString::fromLatin1(datei))); }

    Ablage ablage;
    Programmordner ordner;
    Programm programm;
    std::unique_ptr<mdiZentral> zentrale;
};
