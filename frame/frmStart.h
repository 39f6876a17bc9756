#pragma once

#include <QTimer>
#include <QWidget>

/* The splash: a picture that a click or five seconds take away. */
class frmStart : public QWidget
{
    Q_OBJECT

public:
    explicit frmStart(const QString &version);

signals:
    void fertig();
    /// It has been painted for the first time.
    void gemalt();

private:
    QTimer Timer1_{this};
};
