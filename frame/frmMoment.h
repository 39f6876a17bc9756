#pragma once

#include "Wartefenster.h"

class Datenbankwechsel;

/* Please wait, while another database takes the place of the working one. */
class frmMoment : public Wartefenster
{
    Q_OBJECT

public:
    frmMoment(Datenbankwechsel &wechsel, QWidget *eltern);

    void OriginalDBWiederherstellen();
    void DBFloxAuswaehlen();

private:
    Datenbankwechsel &wechsel_;
};
