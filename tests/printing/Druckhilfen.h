#pragma once

#include "printing/Druck.h"
#include "tests/Hilfen.h"

#include <QMap>

using Werte = QMap<QString, QVariant>;

/// A4 without an edge that the device cannot reach.
QPageLayout blattA4();

/// The plants of one Sparte in a program folder of their own, and printouts of them.
class Druckprobe
{
public:
    explicit Druckprobe(Sparte sparte);

    Programmordner ordner;
    Programm programm;
    std::unique_ptr<Recordset> pflanzen; ///< of the working database, ordered by BOT_NAME; stands on the first plant
    Druckauftrag auftrag;                ///< a filter in force, with all criteria at their defaults

    /// Sets fields of the current plant.
    void setzen(const Werte &werte);
    /// Empties all fields of the current plant but its number and names.
    void leeren();
    /// State of a control of the filter, by its objectName without the element.
    Teilzustand &teil(const QString &control);
    /// Leaves that many plants with names "Planta 00001", "Pflanze 00001" and so on.
    void namenReihe(int anzahl);

    Druckseiten blatt(const QPageLayout &layout = blattA4());
    Druckseiten liste(const QPageLayout &layout = blattA4());
};

/// The texts of a page in the order of writing, each as "x y size style text": millimetres with one decimal, points, style as
/// "-", "b", "i" or "bi".
QStringList seitenzeilen(const Druckseite &seite);
/// The texts alone.
QStringList seitentexte(const Druckseite &seite);

/// A printout word by word, for comparing: papers, areas, pages, texts and lines.
QStringList abschrift(const Druckseiten &seiten);

/// What a program writes to its standard output; it must end well.
QString programmausgabe(const QString &programm, const QStringList &argumente);
/// The pages of a PDF file as laid out text.
QStringList pdfSeiten(const QString &datei);
/// Without any blanks and line ends.
QString ohneLeerraum(QString text);
