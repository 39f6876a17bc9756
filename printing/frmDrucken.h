#pragma once

#include "Druck.h"

#include <QDialog>

#include <functional>

class Druckgeraet;
class Geraetefehler;
class QLabel;
class QRadioButton;
class Seitenvorschau;

/* Print dialog: the plant on screen or the filtered list, with a view of the first page. A printout runs to its end inside the
   click; then the dialog closes. */
class frmDrucken : public QDialog
{
    Q_OBJECT

public:
    /// `auftrag` tells of the active window; nothing: no Sparte is active.
    frmDrucken(Programm &programm, std::function<std::optional<Druckauftrag>()> auftrag, Druckgeraet &geraet, QWidget *eltern);

    void cmdDruck_Click();
    void cmdDruckerEinrichten_Click();

protected:
    void showEvent(QShowEvent *ereignis) override;

private:
    void aufbauen();
    struct Ausdruck
    {
        Druckseiten seiten;
        QString titel;
        std::optional<QString> gekuerzt; ///< label of a text that was cut
    };
    /// Lays out the first pages of what is chosen; nothing for an unknown Sparte.
    std::optional<Ausdruck> auslegen(size_t hoechstens = std::numeric_limits<size_t>::max());
    void vorschauen();
    /// Path of a PDF file, which may be replaced; empty: cancelled.
    QString dateiErfragen(const QString &vorschlag);
    /// The box about the printer; whichever button is pressed.
    void geraetefehlerZeigen(const Geraetefehler &fehler);

    Programm &programm_;
    std::function<std::optional<Druckauftrag>()> auftrag_;
    Druckgeraet &geraet_;
    QRadioButton *optDruckFrage_[2] = {};
    QLabel *lblDrucker_ = nullptr;
    Seitenvorschau *vorschau_ = nullptr;
};
