#include "frmMoment.h"

#include "Datenbankwechsel.h"

frmMoment::frmMoment(Datenbankwechsel &wechsel, QWidget *eltern) : Wartefenster(eltern), wechsel_(wechsel)
{
    setObjectName(QStringLiteral("frmMoment"));
}

void frmMoment::OriginalDBWiederherstellen()
{
    wechsel_.OriginalDBWiederherstellen(*this);
}

void frmMoment::DBFloxAuswaehlen()
{
    wechsel_.DBFloxAuswaehlen(*this);
}
