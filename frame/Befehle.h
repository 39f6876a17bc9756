#pragma once

#include "Begleiter.h"
#include "store/Medium.h"
#include "store/Sparten.h"

#include <span>
#include <vector>

class Fenstertabelle;
class Pflanzenfenster;
class QDialog;
class QWidget;
struct Programm;

enum class Anordnung { Ueberlappend, Nebeneinander, Untereinander };

/* What commands need of the window they work in. The main window is one; tests bring their own. */
class Befehlsumgebung
{
public:
    virtual ~Befehlsumgebung() = default;

    /// Throws, with no window left, when the data cannot be read.
    virtual void FensterOeffnen(Sparte sparte) = 0;
    /// Asks nothing: a note that cannot be stored is kept in a file.
    virtual void AlleFensterSchliessen() = 0;
    /// After a change of options or names: every open window shows them.
    virtual void FormenAktualisieren() = 0;
    /// Null while there is none.
    virtual Pflanzenfenster *aktivesFenster() = 0;
    /// Before the windows go: stores what has been noted, and asks where that fails. False: the user wants them to stay.
    [[nodiscard]] virtual bool NotizenSichern() = 0;
    /// Closes the picture window.
    virtual void bilderSchliessen() = 0;
    /// The slots of a Sparte, which tell what is open.
    virtual Fenstertabelle &tabelle(Sparte sparte) = 0;
    /// Enables an entry of the menu, or a menu in it.
    virtual void erlauben(const char *eintrag, bool erlaubt) = 0;
    /// Shows an entry of the menu or hides it.
    virtual void zeigen(const char *eintrag, bool sichtbar) = 0;
    /// Writes the sentence about the database in use into the status bar.
    virtual void statussatz(const QString &satz) = 0;
    /// Says something in the status bar for a while.
    virtual void melden(const QString &satz) = 0;
    virtual void aktualisierenErlauben(bool erlaubt) = 0;
    /// The window that forms and boxes belong to; null: none.
    virtual QWidget *hauptfenster() = 0;
    /// Shows a form modally, until it is gone.
    virtual void formZeigen(QDialog &form) = 0;
    /// The drives of this moment.
    virtual std::vector<Laufwerk> laufwerke() = 0;
    virtual void anordnen(Anordnung anordnung) = 0;
    /// Shows the picture assistant, modally, and goes the way it was given.
    virtual void bilderAssistent() = 0;
    /// Opens the manual at a page; empty: the first one.
    virtual void hilfeZeigen(const QString &thema) = 0;
    virtual void beenden() = 0;
};

class Befehle;

/// What an entry of the menu does.
struct Befehl
{
    const char *name; ///< of the entry
    void (Befehle::*tat)(const Befehl &befehl);
    std::span<const Sparte> sparten = {};
    int beruf = -1; ///< position in AzubiAuswahl
    const Begleitprogramm *begleiter = nullptr;
};

/* The commands of the menu, by the names of its entries. */
class Befehle
{
public:
    Befehle(Programm &programm, Befehlsumgebung &umgebung);

    std::span<const Befehl> alle() const { return befehle_; }
    /// Null for an entry whose room is not built yet.
    const Befehl *befehl(const char *name) const;
    /// Whether there is such a command and, where it opens one Sparte alone, that Sparte has a window.
    bool moeglich(const char *name) const;
    /// Throws what the command throws; does nothing where there is none.
    void ausfuehren(const char *name);
    /// Opens a file that the program was called with: a filter in a window of its Sparte, a database in the place of the working one.
    void dateiOeffnen(const QString &pfad);
    /// The entries of the companions follow what is there; once, when the menu stands.
    void begleiterPruefen() { begleiter_.StatusPruefen(); }

private:
    void oeffnen(const Befehl &befehl);
    /// Windows restricted to a trade.
    void ausbildung(const Befehl &befehl);
    /// Practice in the active window, begun or ended.
    void ueben(const Befehl &befehl);
    template<Anordnung anordnung>
    void anordnen(const Befehl &befehl);
    void optionen(const Befehl &befehl);
    void bilderAssistent(const Befehl &befehl);
    void hilfe(const Befehl &befehl);
    void originalLaden(const Befehl &befehl);
    void benutzerLaden(const Befehl &befehl);
    void teilmengeSpeichern(const Befehl &befehl);
    void mulkoSpeichern(const Befehl &befehl);
    void infos(const Befehl &befehl);
    void begleiterInstallieren(const Befehl &befehl);
    void begleiterAufrufen(const Befehl &befehl);
    void beenden(const Befehl &befehl);

    Programm &programm_;
    Befehlsumgebung &umgebung_;
    Begleiter begleiter_{programm_, umgebung_};
    std::vector<Befehl> befehle_;
};
