#pragma once

#include "store/Lauf.h"

#include <QString>

class Befehlsumgebung;
struct Programm;

/* The commands that write the plants of open windows into files of the user's: as a subset of the database, and for the design program. */
class Export
{
public:
    Export(Programm &programm, Befehlsumgebung &umgebung) : programm_(programm), umgebung_(umgebung) {}

    void mnuFloxTeilmegeSpeichern_Click();
    void DialogFloxTeilmengeSpeichern();
    /// Writes all side tables and, of each Sparte, the plants of its first open window or all. Throws, with no file half written.
    void FloxTeilmengeSpeichern(const QString &dateiname);

    void mnuMulkoSpeichern_Click() { DialogMulkoSpeichern(); }
    void DialogMulkoSpeichern();
    /// Writes the plants of the active window, as its private database holds them. A failure is told in the status bar only.
    void MulkoSpeichern(const QString &dateiname);

private:
    QString gefragt(const QString &titel, const QString &filter, const QString &name, const QString &ordner);
    /// Why nothing may be written to a file that the program itself works with: a message, and true.
    bool verweigert(const QString &dateiname);
    void notizenSpeichern();
    /// Whether a file becomes one of Access, and not one of the program's own format.
    bool alsAccess(const QString &dateiname) const;
    /// Makes a file of Access of the database that `vorarbeit` writes to a path, in a thread of its own, or not; unless the user calls
    /// it off.
    using Vorarbeit = std::function<bool(const QString &, const Lauf &)>;
    void accessSchreiben(const QString &dateiname, const Vorarbeit &vorarbeit);

    Programm &programm_;
    Befehlsumgebung &umgebung_;
    bool accessFilter_ = false; ///< the last dialog was left with the filter of Access files
};
