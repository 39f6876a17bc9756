#pragma once

#include <QStringList>

#include <functional>

class Befehlsumgebung;
class frmMoment;
struct Programm;

/* The commands that put another file in the place of the working database, and the original back. Whatever happens on the way, the main
   window can be used behind them, no form of theirs is left, and a working database is in place. */
class Datenbankwechsel
{
public:
    Datenbankwechsel(Programm &programm, Befehlsumgebung &umgebung) : programm_(programm), umgebung_(umgebung) {}

    void mnuDateiDBLadenOriginal_Click();
    void mnuDateiDBLadenBenutzer_Click();
    /// Puts a file in place that the program was called with. Throws, with the working database as it was, when that fails.
    void dateiLaden(const QString &pfad);

    /// Puts the saved original back. Throws, with the working database as it was, when that fails; does nothing where a note or the
    /// user holds it up.
    void OriginalDBWiederherstellen(frmMoment &moment);
    /// Asks for a file and puts it in place; one that is no database of the program leads back to the original.
    void DBFloxAuswaehlen(frmMoment &moment);

private:
    enum class Wahl { Original, Teilmenge };
    void klick(Wahl wahl);
    /// Tells what the user is to be told when all is done.
    void berichten();
    /// Puts a chosen file in place; one that is no database of the program leads back to the original.
    void laden(frmMoment &moment, const QString &pfad);
    /// Says that a file is none of the program's, and goes back to the original.
    void keineFloxDatenbank(frmMoment &moment, const QString &pfad);
    /// Brings a file of Access in, and puts what came of it in place.
    void accessLaden(frmMoment &moment, const QString &pfad);
    /// Puts a database of the program in place that has been looked at. `name` is what the user knows it by, `dazu` what he is told.
    void einsetzen(const QString &pfad, const QString &name, const QString &dazu);
    /// Stores notes, keeps the files that are replaced, closes all windows and exchanges. False: held up, and nothing has changed.
    bool austauschen(bool original, const QStringList &ersetzte, const QString &gebraucht, const std::function<void()> &tausch);
    void merken(bool original);

    Programm &programm_;
    Befehlsumgebung &umgebung_;
    QString bericht_;      ///< what the user is told when all is done
    QString einzelheiten_; ///< the whole of it, where that would be too long for a box
};
