#pragma once

#include "store/Sparten.h"

#include <QString>

class Pflanzenfenster;
class QWidget;
struct Filterzustand;
struct Notiz;
struct Pruefungsergebnis;

/* What plant windows need of the program around them. The main window is one; tests bring their own. */
class Zentrale
{
public:
    virtual ~Zentrale() = default;

    /// Only a filtered window can be handed to the design program.
    virtual void mulkoSpeichernErlauben(bool erlaubt) = 0;
    /// The last steps of closing: menu entries follow the windows that stay, then the slot is free.
    virtual void fensterGeschlossen(Sparte sparte, int nummer) = 0;
    /// While a filter dialog is open no window of its Sparte can be used, neither its frame nor its inside. Freeing does nothing
    /// while a dialog of the Sparte is open.
    virtual void FensterSperren(Sparte sparte) = 0;
    virtual void FensterFreigeben(Sparte sparte) = 0;
    /// A window has stored the user's fields of a record: others that show it follow. Never throws.
    virtual void notizGespeichert(Sparte sparte, int nummer, const Notiz &notiz) = 0;
    /// Shows the dialog of the user's property names for the active window, modally.
    virtual void namenAendern(QWidget *fenster) = 0;
    /// A preview was clicked: the picture window shows GewaehltesBild of the active window's plant.
    virtual void bildZeigen() = 0;
    /// Shows the print dialog for the active window, modally.
    virtual void drucken() = 0;
    /// Prints the result sheet of an examination; `eltern` is the window that asks for it.
    virtual void ergebnisDrucken(const Pruefungsergebnis &ergebnis, QWidget *eltern) = 0;
    /// The data sheet of the active window's plant into the clipboard, as text and as a table.
    virtual void kopieren() = 0;
    /// Opens a second window of the Sparte and puts the two side by side; null where none came up. Throws as opening does.
    virtual Pflanzenfenster *danebenOeffnen(Sparte sparte, int nummer) = 0;
    /// The window of the Sparte that was worked in before this one and can be seen; null where there is none.
    virtual Pflanzenfenster *anderesFenster(Sparte sparte, int nummer) = 0;
    /// Another record is shown, or the names of the one shown are covered or seen again.
    virtual void pflanzeGewechselt(Sparte sparte, int nummer) = 0;
    virtual void hilfeZeigen(const QString &thema) = 0;
    /// What a state of the filter dialog leaves, in one sentence as print tells it.
    virtual QString filtersatz(Sparte sparte, const Filterzustand &zustand) = 0;
};
