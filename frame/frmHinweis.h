#pragma once

#include "store/Programm.h"

#include <QDialog>

class QCheckBox;
class QTextEdit;

/* A hint of what a command is about to do. It shows the file of HinweisNummer, which its caller sets before; any other number than
   those of the hints shows nothing. */
class frmHinweis : public QDialog
{
    Q_OBJECT

public:
    explicit frmHinweis(Programm &programm, QWidget *eltern);

    static constexpr int speichern = 1, laden = 2;
    /// Shows a hint modally, unless the user has dismissed it for good.
    static void zeigen(Programm &programm, int nummer, QWidget *eltern);

    /// Every way of going ends here.
    void done(int ergebnis) override;

protected:
    void showEvent(QShowEvent *ereignis) override;

private:
    Programm &programm_;
    QTextEdit *RichTextBox1_ = nullptr;
    QCheckBox *chkHinweis_ = nullptr;
};
