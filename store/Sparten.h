#pragma once

#include <QList>
#include <QStringView>
#include <array>
#include <optional>
#include <span>

/* The table of the six Sparten: names, tables and files, in the order that holds everywhere. This is the only place of the
   shared code that names one. */

enum class Sparte { Topf, Stauden, Gehoelze, Apfel, Obst, Friedhof };
inline constexpr int anzahlSparten = 6;
/// User-defined properties that each Sparte offers.
inline constexpr int anzahlEigenschaften = 5;

/// What a row's own field says of the collection that it is taken from.
struct Herkunft
{
    QStringView wert;
    Sparte sparte;
    int ersteNummer = 0, nachNummer = 0; ///< its plants' numbers, the second one past the last; 0, 0: all that no other has
};

struct SpartenEintrag
{
    Sparte sparte;
    QStringView wort;         ///< value of AktiveSparte
    QStringView titel;        ///< title of its plant windows
    const char *fenster;      ///< class name of the plant window
    const char *filter;       ///< class name of the filter dialog
    QStringView haupttabelle; ///< main recordset, as the statements write it
    QStringView bildtabelle;
    QStringView synonymBotanisch = {}; ///< empty: no synonym tables
    QStringView synonymDeutsch = {};
    QStringView tempDatenbank;   ///< prefix of the window's private copy, in the run's folder
    QStringView tempFilter;      ///< prefix of the parked filter that the window's close removes
    QStringView filterEndung;    ///< extension of filter files, with its point
    QStringView parkFilter = {}; ///< prefix under which a filter is parked, where it is another one
    QStringView parkEndung = {}; ///< its extension
    const char *namenSpalte;     ///< column of Namen_Benutzer_Optionen
    QStringView bildordner = {}; ///< folder of its pictures; empty: that of the plant's origin
    QStringView hilfethema;
    const char *menue; ///< menu entry that opens a window
    QStringView menuetext;
    const char *wahlknopf;                     ///< button of the chooser
    const char *wahlbild;                      ///< picture of that button
    QStringView quellenBuchstaben = {};        ///< letters of its Quelle, in the order of testing; empty: that of the origin, or none
    bool hatDeutscheOrdnung = false;           ///< can be sorted by German name, has month rows
    const char *herkunftsfeld = nullptr;       ///< column that names a row's origin; null: all rows are its own
    std::span<const Herkunft> herkuenfte = {}; ///< its values
};

const std::array<SpartenEintrag, anzahlSparten> &alleSparten();
const SpartenEintrag &eintrag(Sparte sparte);
/// The Sparte that a row is taken from, by the text of its `herkunftsfeld`: without such a field its own; nothing for an unknown text.
std::optional<Sparte> herkunft(const SpartenEintrag &sparte, QStringView wert);
/// The same by a plant's number: the picture window knows no more of it.
Sparte herkunftDerNummer(const SpartenEintrag &sparte, qint64 artnr);
/// The Sparten that rows can be taken from.
QList<Sparte> herkuenfte(const SpartenEintrag &sparte);
/// Sparte of a word such as "Topf"; nothing for any other text.
std::optional<Sparte> sparteVonWort(QStringView wort);
