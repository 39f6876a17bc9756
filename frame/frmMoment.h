#pragma once

#include <QWidget>

class Datenbankwechsel;
class QLabel;

/* Please wait: what is shown while databases are copied. */
class frmMoment : public QWidget
{
    Q_OBJECT

public:
    frmMoment(Datenbankwechsel &wechsel, QWidget *eltern);

    void OriginalDBWiederherstellen();
    void DBFloxAuswaehlen();

    /// Shows itself in the middle of the main window, painted at once: nothing is painted any more while files are copied.
    void zeigen(const QString &satz);

protected:
    void closeEvent(QCloseEvent *ereignis) override;

private:
    Datenbankwechsel &wechsel_;
    QLabel *lblMoment_;
};
