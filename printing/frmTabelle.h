#pragma once

#include "Tabelle.h"

#include <QDialog>

class QListWidget;
class QPushButton;

/* Which columns a table gets. */
class frmTabelle : public QDialog
{
    Q_OBJECT

public:
    frmTabelle(std::vector<Tabellenspalte> spalten, QWidget *eltern);

    /// Those that are checked, in order.
    std::vector<Tabellenspalte> gewaehlt() const;

private:
    void setzen(bool (*an)(const Tabellenspalte &));
    void pruefen();

    std::vector<Tabellenspalte> spalten_;
    QListWidget *lstSpalten_ = nullptr;
    QPushButton *cmdOK_ = nullptr;
};
