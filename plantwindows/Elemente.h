#pragma once

#include "Beschreibung.h"
#include "store/Text.h"

#include <QWidget>

#include <functional>
#include <memory>
#include <vector>

class Pflanzensatz;
struct Programm;

/* The displays of a record view: one class for each pattern, all with the same few words. An element paints its field from
   nothing at every view; no value of the record before stays. */
class Anzeigeelement
{
public:
    virtual ~Anzeigeelement() = default;
    /// The control, or the panel that holds an array of controls; owned by its Qt parent.
    virtual QWidget *widget() const = 0;
    /// Shows the current record. Odd data show what can be read of them.
    virtual void zeigen(Pflanzensatz &satz) = 0;
    /// Whether nothing is shown: the caption and, by the group's rule, the frame follow it.
    virtual bool leer() const { return false; }
    /// Whether the user has changed what was shown last.
    virtual bool veraendert() const { return false; }
    /// What stands there now counts as shown.
    virtual void uebernehmen() {}
    /// Words that running text must not tell from now on; without any it is whole again. The value stays what it is.
    virtual void verdecken(const QStringList &) {}
    /// What stands there now: a text as it is shown, the user's fields as they are stored, of all others a text that is the same where they
    /// show the same; empty for what shows no value.
    virtual QString wert() const { return {}; }
    /// Names of what the user has named.
    virtual void benennen(std::span<const QString>) {}
    /// Month captions as letters or numbers.
    virtual void monateBeschriften(bool) {}
    /// What has a size of its own follows the size of the record's type, in points.
    virtual void schriftgroesse(double) {}
    /// What stands below the control: the box with the whole text, made when a text is first too long for its label, null until then; a
    /// sentence in place of a covered note.
    virtual QWidget *ganzerText() const { return nullptr; }
    const Element &beschreibung() const { return element_; }

protected:
    explicit Anzeigeelement(const Element &element) : element_(element) {}
    const Element &element_;
};

/// What elements need of their window.
struct Elementumgebung
{
    Programm &programm;
    const Fensterbeschreibung &fenster;
    QWidget *form;                                ///< other elements' controls are found below it
    std::function<void(const QString &)> hinweis; ///< text for the hint panel
    std::function<void()> geaendert;              ///< a mouse press in the user's fields, or its equal by keyboard
    QString gruppe = {};                          ///< heading of the group, for who hears the window
};

std::unique_ptr<Anzeigeelement> elementErzeugen(const Element &element, const Elementumgebung &umgebung, QWidget *eltern);
