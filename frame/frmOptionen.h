#pragma once

#include "store/Programm.h"

#include <QDialog>

#include <array>

class QCheckBox;
class QGroupBox;
class QRadioButton;
class QVBoxLayout;

/* The options. They hold from cmdOK on: months at once, pictures from the next one, the training in windows opened afterwards, the
   format with the next file. */
class frmOptionen : public QDialog
{
    Q_OBJECT

public:
    frmOptionen(Programm &programm, QWidget *eltern);

private:
    /// A box of options, below those that stand already.
    QGroupBox *kasten(const char *name, const QString &titel);
    void ausbildungBauen();
    void bilderBauen();
    void monateBauen();
    void dateienBauen();
    void cmdOK_Click();
    void AusbildungUebernehmen();

    Programm &programm_;
    QVBoxLayout *kaesten_ = nullptr;
    std::array<QCheckBox *, std::tuple_size_v<decltype(Programm::AzubiAuswahl)>> chkAusbildung_{};
    QCheckBox *chkOriginal_ = nullptr;
    std::array<QRadioButton *, 2> optMonat_{};
    QCheckBox *chkAccess_ = nullptr;
};
