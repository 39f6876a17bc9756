#pragma once

#include <QWidget>

#include <functional>

struct Programm;

/* Which plants the program shall work with. The menu loads the form without showing it and calls its buttons. */
class frmDateiAuswahl : public QWidget
{
    Q_OBJECT

public:
    using Handlung = std::function<void(frmDateiAuswahl &)>;
    frmDateiAuswahl(const Programm &programm, Handlung original, Handlung teilmenge, QWidget *eltern);

    void cmdOriginal_Click() { original_(*this); }
    void cmdTeilmenge_Click() { teilmenge_(*this); }

private:
    Handlung original_, teilmenge_;
};
