#pragma once

#include <QAbstractButton>

class QLabel;

/* A picture button as wide as its form: the picture, and beside it what choosing it means. */
class Wegknopf : public QAbstractButton
{
    Q_OBJECT

public:
    Wegknopf(const QString &bild, const QString &titel, const QString &text, QWidget *eltern);

protected:
    void paintEvent(QPaintEvent *) override;
    void keyPressEvent(QKeyEvent *ereignis) override;
};
