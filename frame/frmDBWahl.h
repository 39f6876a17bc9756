#pragma once

#include "store/Sparten.h"

#include <QWidget>

struct Programm;
class QPushButton;

/* The chooser: six Sparten, and at the start of the program the bare main window. It goes when another window comes to the
   front. */
class frmDBWahl : public QWidget
{
    Q_OBJECT

public:
    explicit frmDBWahl(Programm &programm);

signals:
    void gewaehlt(Sparte sparte);
    void fensterAlleine();

protected:
    void changeEvent(QEvent *ereignis) override;
    /// Enter chooses what has the focus, Esc goes without a choice.
    void keyPressEvent(QKeyEvent *ereignis) override;

private:
    bool warAktiv_ = false;
    bool entschieden_ = false; ///< it has hidden itself; when it goes is its owner's decision
};
