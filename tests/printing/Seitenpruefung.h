#pragma once

#include "Druckhilfen.h"

/* Pages as they should be: what holds for all of them, and whole pages written down by hand. */

/// What is wrong with a printout's pages, one line each, empty when nothing is. On every page: all texts and lines between the
/// rules' ends; below the foot rule the foot, the number of the page at the right end and nothing else; no text over another or
/// over the head; a text between head and foot (`leer`: not needed); the head on the first page and on no other.
QStringList seitenfehler(const Druckseiten &seiten, const Programm &programm, bool leer = false);
/// The same for a data sheet, where in addition each label stands on the height of its value's first line.
QStringList blattfehler(const Druckseiten &seiten, const Programm &programm, bool leer = false);

/// The texts between head and foot.
std::span<const Drucktext> koerper(const Druckseiten &seiten, size_t seite);
/// `seitenzeilen` of all pages.
QList<QStringList> alleZeilen(const Druckseiten &seiten);
/// The lines of a page, each as "x1 y1 x2 y2 width" in millimetres.
QStringList seitenlinien(const Druckseite &seite);

/// The text in lines no wider than that, each with as many words as have room. Its words must be narrower.
QStringList umbruch(const QString &text, double breite, const Druckschrift &schrift = {});
/// Width of a text in bold of 9 points, the type of labels.
double labelbreite(const QString &label);

/// Pages of an A4 printout in 9 points, with head and foot, written down text by text.
class Sollseiten
{
public:
    Sollseiten();

    /// A text on the present line.
    Sollseiten &text(double x, const QString &text, const QString &stil = QStringLiteral("-"), double groesse = 9);
    /// Ends the line.
    Sollseiten &ende(double groesse = 9);
    /// An entry of a data sheet. What is empty is not written.
    Sollseiten &eintrag(const QString &label, const QStringList &zeilen);
    Sollseiten &eintrag(const QString &label, const QString &zeile) { return eintrag(label, QStringList(zeile)); }
    /// The name that heads the sheet; the foot tells it, too.
    Sollseiten &titel(const QString &name);
    /// What the foot tells in its place.
    Sollseiten &fussname(const QString &name)
    {
        name_ = name;
        return *this;
    }
    /// A criterion of a list.
    Sollseiten &kriterium(const QString &label, const QStringList &zeilen);
    Sollseiten &kriterium(const QString &label, const QString &worte) { return kriterium(label, QStringList(worte)); }
    /// A line of a list in bold, and a plant of it.
    Sollseiten &ueberschrift(const QString &text) { return this->text(20, text, QStringLiteral("b")).ende(); }
    Sollseiten &pflanze(const QString &botanisch, const QString &deutsch) { return text(20, botanisch).text(110, deutsch).ende(); }
    /// Begins a page whose first line stands there.
    Sollseiten &seite(double y);
    /// Whether nothing stands on the page yet.
    bool leer() const { return seiten_.last().isEmpty(); }

    QList<QStringList> zeilen() const;

private:
    QList<QStringList> seiten_;
    QString name_;
    double y_;
};
