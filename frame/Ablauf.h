#pragma once

#include "Aussehen.h"
#include "store/Laufordner.h"
#include "store/Programm.h"

#include <QLockFile>
#include <QPointer>
#include <QTimer>

#include <memory>

class Beendigung;
class Farbschema;
class Hilfe;
class Uebergabe;
class frmDBWahl;
class frmStart;
class mdiZentral;

/* From process start to the first usable screen: splash, chooser, main window. Owns the process-wide state. */
class Ablauf
{
public:
    Ablauf();
    ~Ablauf();

    enum class Ergebnis { Laeuft, ZweiteInstanz, Abgebrochen };
    /// Runs the start sequence up to the splash. Shows its own message when the working database cannot be read or its folder
    /// cannot be used. Another run of the same user takes `datei` and comes to the front, and this one ends; without a message, unless
    /// the file was not taken.
    /// `datei` is opened in the place of the chooser; empty: none.
    Ergebnis starten(const QString &datei = {});

    Hilfe &hilfe() { return *hilfe_; }
    Programm &programm() { return programm_; }
    /// The main window, loaded when it is first asked for.
    mdiZentral &zentrale();
    void wahlZeigen();

private:
    bool einzigeInstanz();
    /// Why the program's folder cannot be used now; empty where it can.
    QString ortsfehler();
    /// The folder of one user of a program that is installed for all. Where it cannot be made, the program stays in the shared one.
    void eigenenOrdnerEinrichten(const QString &geteilter);
    /// A file of another start, or that start alone.
    void uebernehmen(const QString &datei);
    /// The window that the user has to do with now.
    void nachVorn();
    /// Whether a file can be opened at this moment.
    bool bereit();
    void dateiOeffnen();
    void splashBeenden();
    /// What need not hold up the splash, once, before there is any other window; may show boxes. False while it is still under way.
    bool vorbereiten();
    void schadenMelden();
    void sichern();

    Programm programm_;
    QStringList dateien_;                        ///< the program was called with them, and they are not open yet
    QTimer dateienTakt_;                         ///< while they wait
    std::unique_ptr<QLockFile> sperre_;          ///< against a second run of this user
    std::unique_ptr<Uebergabe> uebergabe_;       ///< by the one who has the lock
    std::unique_ptr<QLockFile> datenbanksperre_; ///< against other users of the folder
    Laufordner laufordner_;
    std::unique_ptr<Beendigung> beendigung_;
    bool schadenNebenher_ = false;
    std::unique_ptr<Farbschema> farbschema_;
    QTimer schadensTakt_; ///< while a large database is searched
    enum class Vorbereitung { Offen, Laeuft, Fertig } vorbereitung_ = Vorbereitung::Offen;
    std::unique_ptr<Hilfe> hilfe_;
    std::unique_ptr<frmStart> start_;
    QPointer<frmDBWahl> wahl_;
    std::unique_ptr<mdiZentral> zentrale_;
};

/// German locale and Qt's own texts, look and fonts; once, before the first window.
void oberflaecheEinrichten(aussehen::Schema schema = aussehen::Schema::Hell);
