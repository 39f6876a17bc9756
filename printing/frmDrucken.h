#pragma once

#include "Druck.h"

#include <QDialog>

#include <chrono>
#include <functional>

class Druckgeraet;
class Geraetefehler;
class QLabel;
class QPushButton;
class QRadioButton;
class QToolButton;
class Seitenvorschau;

/* Print dialog: the plant on screen or the filtered list, with a view of its pages. A printout runs to its end inside the click;
   then the dialog closes. One that was cancelled leaves it open. */
class frmDrucken : public QDialog
{
    Q_OBJECT

public:
    /// `auftrag` tells of the active window; nothing: no Sparte is active.
    frmDrucken(Programm &programm, std::function<std::optional<Druckauftrag>()> auftrag, Druckgeraet &geraet, QWidget *eltern);

    /// The same for a printout that leaves nothing to choose: `macher` writes it and returns its title.
    using Blattmacher = std::function<QString(Printer &)>;
    frmDrucken(Programm &programm, Blattmacher macher, Druckgeraet &geraet, QWidget *eltern);

    void cmdDruck_Click();
    void cmdDruckerEinrichten_Click();
    void cmdTabelle_Click();

    /// Path of the file that was written; empty while there is none.
    const QString &gespeichert() const { return gespeichert_; }
    /// What lasts longer shows its progress.
    std::chrono::milliseconds geduld{500};

protected:
    void showEvent(QShowEvent *ereignis) override;
    void keyPressEvent(QKeyEvent *ereignis) override;

private:
    void aufbauen();
    struct Ausdruck
    {
        Druckseiten seiten;
        QString titel;
        QStringList gekuerzt; ///< labels of texts that were cut
    };
    /// Lays out the first pages of what is chosen; nothing for an unknown Sparte. Throws Druckabbruch.
    std::optional<Ausdruck> auslegen(size_t hoechstens = std::numeric_limits<size_t>::max());
    void vorschauen();
    void seiteBenennen();
    /// A kind of file that can be written.
    struct Dateiart
    {
        QString muster; ///< as file dialogs name it
        QString endung; ///< with its point
    };
    /// Path of a file of one of these kinds, which may be replaced; empty: cancelled. A name without their suffix gets that of the kind chosen.
    QString dateiErfragen(const QString &titel, const QString &vorschlag, const QList<Dateiart> &arten);
    /// The box about the printer; whichever button is pressed.
    void geraetefehlerZeigen(const Geraetefehler &fehler);

    Programm &programm_;
    std::function<std::optional<Druckauftrag>()> auftrag_;
    Blattmacher macher_;
    Druckgeraet &geraet_;
    QRadioButton *optDruckFrage_[2] = {};
    QLabel *lblDrucker_ = nullptr;
    QPushButton *cmdTabelle_ = nullptr;
    Seitenvorschau *vorschau_ = nullptr;
    QToolButton *cmdSeiteZurueck_ = nullptr, *cmdSeiteVor_ = nullptr;
    QLabel *lblSeite_ = nullptr;
    bool gezaehlt_ = false; ///< whether the view has all pages
    QString gespeichert_;
};
