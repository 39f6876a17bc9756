#pragma once

#include "Filterzustand.h"

#include <QObject>

#include <functional>
#include <memory>
#include <vector>

class QVBoxLayout;
class QWidget;
struct Programm;

/* The controls of the filter dialog: one class for each kind, all with the same few words. */

/// Widths of the panel beside the tabs and of a tab's page while the dialog has the size it opens with, in pixels.
inline constexpr int tafelbreite = 230, seitenbreite = 740;

/// What controls need of their dialog.
struct Steuerungsumgebung
{
    Programm &programm;
    const Filterbeschreibung &beschreibung;
    std::function<void()> geaendert; ///< after a change of any element
};

/// Caption of element `i`, counted from 0; empty where it has none.
QString beschriftung(const Steuerungsumgebung &umgebung, const Kriterium &kriterium, const Steuerteil &teil, int i);

/// A QObject for the sake of its connections: what a widget says while the dialog goes reaches nobody.
class Filtersteuerung : public QObject
{
public:
    /// With its widgets, named and owned by `eltern`; null for a part without a control.
    static std::unique_ptr<Filtersteuerung> erzeugen(const Kriterium &kriterium, const Steuerteil &teil, const Steuerungsumgebung &umgebung,
                                                     QWidget *eltern);

    Filtersteuerung(const Kriterium &kriterium, const Steuerteil &teil, const Steuerungsumgebung &umgebung)
        : kriterium_(kriterium), teil_(teil), umgebung_(umgebung)
    {
    }

    /// Those that the dialog shows, in order.
    std::span<QWidget *const> widgets() const { return std::span(widgets_).first(size_t(teil_.waehlbare())); }
    virtual Teilzustand zustand() const;
    /// Sets an element from a number or, where it holds one, from a text.
    virtual void setzen(int i, int wert, const QString &text) = 0;
    void setZustand(const Teilzustand &zustand);
    void vorgeben() { setZustand(vorgabe(teil_)); }
    /// Places elements, its own and those of a second part of its kind, below what stands in `ort`.
    virtual void anordnen(std::span<QWidget *const> widgets, QVBoxLayout &ort, QWidget *rahmen) = 0;
    /// Names the elements for a reader who hears one at a time.
    virtual void benennen(const QString &gruppe);
    /// Captions that change while the program runs.
    virtual void auffrischen() {}

protected:
    /// Width that the elements of the criterion have for themselves, in pixels.
    int raum() const;
    virtual QWidget *bauen(int i, QWidget *eltern) = 0;
    virtual int wert(int) const { return 0; }
    /// What a reader hears behind the group's name.
    virtual QString ansage(int i) const;
    void umschalten(int i);
    QString beschriftung(int i) const { return ::beschriftung(umgebung_, kriterium_, teil_, i); }
    template<typename T>
    T *element(int i) const
    {
        return static_cast<T *>(widgets_[size_t(i)]);
    }

    const Kriterium &kriterium_;
    const Steuerteil &teil_;
    const Steuerungsumgebung &umgebung_;

private:
    std::vector<QWidget *> widgets_; ///< one for each element, the surplus hidden
};
