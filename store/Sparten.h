#pragma once

#include <QStringView>
#include <array>
#include <optional>

/* The table of the six Sparten: names, tables and files, in the order that holds everywhere. This is the only place of the
   shared code that names one. */

enum class Sparte { Topf, Stauden, Gehoelze, Apfel, Obst, Friedhof };
inline constexpr int anzahlSparten = 6;
/// User-defined properties that each Sparte offers.
inline constexpr int anzahlEigenschaften = 5;

struct SpartenEintrag
{
    Sparte sparte;
    QStringView wort;            ///< value of AktiveSparte
    QStringView titel;           ///< title of its plant windows
    const char *fenster;         ///< class name of the plant window
    const char *filter;          ///< class name of the filter dialog
    QStringView haupttabelle;    ///< main recordset, as the statements write it
    QStringView bildtabelle;
    QStringView synonymBotanisch; ///< empty: no synonym tables
    QStringView synonymDeutsch;
    QStringView tempDatenbank;   ///< prefix of the window's private copy, in the run's folder
    QStringView tempFilter;      ///< prefix of the parked filter that the window's close removes
    QStringView filterEndung;    ///< extension of filter files, with its point
    const char *namenSpalte;     ///< column of Namen_Benutzer_Optionen
    QStringView bildordner;      ///< folder of its pictures; empty: the plant's number tells it
    QStringView hilfethema;
    const char *menue;           ///< menu entry that opens a window
    QStringView menuetext;
    const char *wahlknopf;       ///< button of the chooser
    const char *wahlbild;        ///< picture of that button
    QStringView quellenBuchstaben; ///< letters of its Quelle, in the order of testing; empty: names have no source
    bool hatDeutscheOrdnung;     ///< can be sorted by German name, has month rows
};

const std::array<SpartenEintrag, anzahlSparten> &alleSparten();
const SpartenEintrag &eintrag(Sparte sparte);
/// Sparte of a word such as "Topf"; nothing for any other text.
std::optional<Sparte> sparteVonWort(QStringView wort);
