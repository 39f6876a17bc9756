#pragma once

#include "Sparten.h"

#include <QString>

#include <array>

/* State of the process that several rooms read and write; the frame owns the one instance and hands it on. Paths carry "\"
   or the system's separator and no trailing one; `pfadAus` joins. */
struct Programm
{
    QString ProgrammVersion;      ///< major.minor.revision
    QString ProgrammPfad;         ///< folder of the executable; all data files are found from here
    QString LaufPfad;             ///< folder of private copies and parked filters where it is not the program's; empty: it is
    QString IniPfad;              ///< named for compatibility; no file is read or written there
    QString BilderPfad;           ///< picture folder; empty: none is known, every probe fails
    QString VermissterBilderPfad; ///< picture folder of this run that was given up because it was away; never stored
    QString MulkoPfad;            ///< folder of the design program, with trailing "\"
    QString EditorPfad;           ///< folder of the database editor, with trailing "\"
    QString DruckOrdner;          ///< folder that a printout was last saved in; the system's path

    bool StartPhase = false;
    bool HausModus = false;
    bool OriginalDatenbank = true;
    bool BilderAufCD = false;
    bool LokaleVorschauBilder = false;
    double BilderFormBreite = 10110;                       ///< twips
    double BilderFormHoehe = 9225;                         ///< twips
    long MdiHoehe = 14520;                                 ///< twips
    long MdiBreite = 19320;                                ///< twips
    long MdiLinks = 0;                                     ///< twips
    long MdiOben = 0;                                      ///< twips
    long MdiStatus = 2;                                    ///< 0 normal, 1 minimised, 2 maximised
    QString PflanzenfensterMass = QStringLiteral("0 0 0"); ///< width and height of plant windows in twips, 0: not set; 2: maximised
    int MonatsDarstellung = 1;                             ///< 0: month numbers, otherwise letters
    bool OriginalGroesse = true;
    bool AccessFormat = false;        ///< subsets and files for the design program are written as Access files
    std::array<bool, 3> HinweisAus{}; ///< entries 1 and 2 are used

    QString AktiveSparte; ///< word of the Sparte whose window was last activated; empty: none
    std::array<int, anzahlSparten> AktuellesFenster{};
    std::array<bool, 6> AzubiAuswahl{}; ///< in the order of WL_Ausbildung
    bool AusbildungAktiv = false;       ///< the options chose a trade
    int HinweisNummer = 0;              ///< hint that frmHinweis shows: 1 saving, 2 loading; set before it is shown
    int GewaehltesBild = 0;             ///< place of the preview clicked last, counted from 0
    bool FilterdateiGestoert = false;   ///< a filter file failed while it was read: none can be read or written any more
    QString FilterOrdner;               ///< folder of the filter file last loaded or saved, the system's; empty: none in this run
    int SchriftGroesse = 9;             ///< body font of printouts, points
    int SeitenBreite = 0;               ///< width of the rules of printouts, millimetres
    QString SortierFeld;                ///< field behind ORDER BY, set just before it is used
    /// Names of the user-defined properties, row r for position r + 1 of benu_eigen.
    std::array<std::array<QString, anzahlEigenschaften>, anzahlSparten> BenutzerNamen;

    int &aktuellesFenster(Sparte sparte) { return AktuellesFenster[size_t(sparte)]; }
    /// The folder of what does not outlive the run.
    QString laufordner() const { return LaufPfad.isEmpty() ? ProgrammPfad : LaufPfad; }
    /// The folder of the program's own pictures.
    QString symbolordner() const { return ProgrammPfad + QStringLiteral("\\icons"); }
    /// The folder of the previews made here.
    QString vorschauordner() const { return ProgrammPfad + QStringLiteral("\\vorschau"); }
    QString arbeitsdatenbank() const { return ProgrammPfad + QStringLiteral("\\flox-demo.mdb"); }
};

/// The same on every screen.
inline constexpr int twipsJePixel = 15;

/// Screen size of a measure in twips.
constexpr int pixel(double twips)
{
    return int(twips / twipsJePixel + (twips < 0 ? -0.5 : 0.5));
}

/// The most that a window takes of a stored width or height, in pixels: larger ones cost gigabytes or are no sizes at all.
inline constexpr int groesstesFenster = 16384;

/// Width or height of a window for a measure in twips.
constexpr int fensterpixel(double twips)
{
    return twips < double(groesstesFenster) * twipsJePixel ? pixel(twips) : groesstesFenster;
}
