#pragma once

#include "store/Medium.h"

#include <QDialog>

class QComboBox;

/* Starts the setup of a companion program from the CD. It carries the list of drives and is not shown itself. */
class frmInstall : public QDialog
{
    Q_OBJECT

public:
    frmInstall(Laufwerksliste laufwerke, QWidget *eltern);

    enum class Ergebnis { Gestartet, Abgebrochen, Gescheitert };
    /// Looks for the CD until it is found or the user gives up, and runs the setup in the program's folder there. `programm` is the
    /// name of that folder.
    Ergebnis CDStarten(const QString &programm);

private:
    void Drive1_Refresh();

    Laufwerksliste laufwerke_;
    QComboBox *Drive1_ = nullptr;
};
