#pragma once

#include "store/Programm.h"

#include <QDialog>

/* What the program is, what it is made of and where it stands; all of it can be copied for a mail to those who help. */
class frmInfos : public QDialog
{
    Q_OBJECT

public:
    frmInfos(const Programm &programm, QWidget *eltern);

private:
    QString alsText() const;

    const Programm &programm_;
};
