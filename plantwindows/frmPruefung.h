#pragma once

#include "Uebung.h"

#include <QDialog>

/* The result sheet of an examination on the screen: every answer with its mark and its points. */
class frmPruefung : public QDialog
{
    Q_OBJECT

public:
    frmPruefung(Pruefungsergebnis ergebnis, QWidget *eltern);
    const Pruefungsergebnis &ergebnis() const { return ergebnis_; }

signals:
    void druckenGewuenscht();

private:
    Pruefungsergebnis ergebnis_;
};
