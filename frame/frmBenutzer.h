#pragma once

#include "store/Programm.h"

#include <QDialog>

#include <functional>

class QLineEdit;
class QButtonGroup;

/* Names of the user-defined properties of the active window's Sparte. */
class frmBenutzer : public QDialog
{
    Q_OBJECT

public:
    /// `umbenannt` runs after every store.
    frmBenutzer(Programm &programm, std::function<void()> umbenannt, QWidget *eltern);

    /// False, after a message, where no Sparte is active.
    bool cmdSpeichern_Click();

private:
    QString *name();

    Programm &programm_;
    std::function<void()> umbenannt_;
    QButtonGroup *optEigen_ = nullptr;
    QLineEdit *txtName_ = nullptr;
};
