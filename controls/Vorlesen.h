#pragma once

#include <QObject>

class QWidget;

/* What is told without being asked for to whoever hears the windows. */

/// Whoever hears the window is told at once what a label says, wherever the keyboard is: its accessible name, or else its text.
void vorlesen(QWidget &schild);

/// Hears all of it, whether there is a reader or not.
class Mithoerer : public QObject
{
    Q_OBJECT

public:
    static Mithoerer &einziger();

signals:
    void gesagt(QWidget *schild, const QString &text);

private:
    using QObject::QObject;
};
