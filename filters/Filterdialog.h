#pragma once

#include "Filtersteuerung.h"

#include <QWidget>

#include <vector>

class Filterziel;
class QTabWidget;
class Trefferanzeige;
struct Programm;

/* The filter dialog, one for all Sparten, built from the criteria table. Its controls are the filter's whole definition; it is
   hidden, not closed, and lives as long as its window. */
class Filterdialog : public QWidget
{
    Q_OBJECT

public:
    Filterdialog(Programm &programm, Filterziel &ziel, const Filterbeschreibung &beschreibung, int nummer, QWidget *eltern);
    ~Filterdialog() override;

    /// Runs the filter on the window. Shows its own messages; never throws.
    void cmdOK_Click();
    /// All controls to their defaults, the rating too.
    void cmdRuecksetzen_Click() { ruecksetzen(true); }
    /// The same without the rating; the window calls it to switch the filter off.
    void RuecksetzenFenster() { ruecksetzen(false); }
    void cmdAbbruch_Click();
    void Form_Activate();
    /// Captions that change while the program runs: months and the user's names.
    void Monatsbeschriftung();

    void DialogLaden();
    void DialogSpeichernunter();
    /// Sets the controls from a file, value by value; false, after a message, for a file that cannot be read to its end. Does not run the
    /// filter.
    bool FilterLaden(const QString &pfad);
    /// Throws when the file cannot be written.
    void FilterSpeichern(const QString &pfad);

    static constexpr QStringView hilfethema = u"4-3-2.htm";
    Filterzustand zustand() const;
    /// Sets the controls; does not run the filter.
    void setZustand(const Filterzustand &zustand);
    /// Checks the box of a trade, i counted from 0.
    void ausbildungWaehlen(int i);

signals:
    /// F1.
    void hilfeGewuenscht();

protected:
    void closeEvent(QCloseEvent *ereignis) override;
    void keyPressEvent(QKeyEvent *ereignis) override;
    bool event(QEvent *ereignis) override;

private:
    static constexpr QStringView dateisperre = u"Seit einem Lesefehler sind Filterdateien bis zum Neustart des Programms gesperrt.";

    /// The controls of a criterion.
    struct Zeile
    {
        std::unique_ptr<Filtersteuerung> a, b; ///< b: null where there is none

        Kriteriumzustand zustand() const { return {a->zustand(), b ? b->zustand() : Teilzustand()}; }
    };

    void aufbauen();
    QWidget *seite(int reiter, QWidget *eltern);
    QWidget *gruppe(int kriterium, QWidget *eltern);
    QWidget *tastenBauen();
    /// The count beside OK and in the tips of the boxes.
    void trefferBauen();
    /// Names for a reader who hears one control at a time: each with its group.
    void ansagen();
    /// Tab goes as one reads: the panel, the tabs, their pages column by column, the buttons.
    void tabfolge();

    /// What a message belongs to: a run need not have shown the dialog.
    QWidget *vorn() { return isVisible() ? this : parentWidget(); }
    /// Sets the controls from a file; false, after its message, when it could not be read to its end.
    bool ladeDatei(const QString &pfad);
    void dateisperreZeigen();
    /// Brings the box of an error to the front, with the focus and its text selected.
    void eingabeZeigen(const Eingabefehler &fehler);

    void ruecksetzen(bool auchBewertung);
    void vorgeben(bool auchBewertung);
    /// Makes many changes of the controls one: what they alter is counted and painted once, at the end.
    template<typename F>
    void gesammelt(F &&aendern);
    /// Writes on the tabs how many criteria restrict there.
    void zaehlen();
    /// Caption of a tab on which `anzahl` criteria restrict.
    QString reitertext(int reiter, int anzahl) const;

    Programm &programm_;
    Filterziel &ziel_;
    const Filterbeschreibung &beschreibung_;
    Steuerungsumgebung umgebung_;
    std::vector<Zeile> zeilen_; ///< in the order of the criteria
    QTabWidget *SSTab1_ = nullptr;
    std::unique_ptr<Trefferanzeige> treffer_; ///< goes before the controls do
    bool gesammelt_ = false;                  ///< many changes are on their way
};
