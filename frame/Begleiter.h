#pragma once

#include "store/Programm.h"

#include <QTimer>

#include <array>
#include <span>

class Befehlsumgebung;

/* The companion programs, installed from the CD and started from the menu. */

inline constexpr int anzahlBegleiter = 2;

struct Begleitprogramm
{
    QString Programm::*pfad; ///< its folder
    QStringView datei;       ///< in that folder; with and without its ending, in any case
    QStringView cdOrdner;    ///< folder of its setup on the CD
    QStringView fenstertitel;
    const char *mnuInstall, *mnuRun;
    std::span<const char *const> mnuWeitere; ///< entries that are shown with mnuRun
    const char *timLauf, *timInstall;
    QStringView verzeichnis; ///< value that its setup leaves in the design program's key
    QStringView titel, meldung;
};

std::span<const Begleitprogramm, anzahlBegleiter> begleitprogramme();

/* Knows whether they are there, and what the menu shows of that. */
class Begleiter
{
public:
    Begleiter(Programm &programm, Befehlsumgebung &umgebung);

    /// MulkoStatusPruefen and FloxEditorStatusPruefen: the entries follow what is there; the path to what is not is forgotten.
    void StatusPruefen();
    /// Runs the setup. Afterwards the entry is gone and the settings are asked for the folder until it is known; both also when the user
    /// gave up, but not when the setup could not be started.
    void installieren(const Begleitprogramm &begleiter);
    /// Starts it in its folder; nothing where that fails.
    void aufrufen(const Begleitprogramm &begleiter);

private:
    bool vorhanden(const Begleitprogramm &begleiter) const;
    /// MulkoInstallPruefen and FloxEditorInstallPruefen: what is there is shown, what is not stays as it was.
    void InstallPruefen(const Begleitprogramm &begleiter);
    void zeigen(const Begleitprogramm &begleiter, bool vorhanden);
    void timInstall_Timer(const Begleitprogramm &begleiter);

    struct Uhren
    {
        QTimer lauf, install;
    };
    Uhren &uhren(const Begleitprogramm &begleiter);

    Programm &programm_;
    Befehlsumgebung &umgebung_;
    std::array<Uhren, anzahlBegleiter> uhren_;
};
