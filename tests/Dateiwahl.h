#pragma once

#include <QFileDialog>
#include <QTimer>

/// Answers the next file dialog: with a path, or without one by its cancel.
class Dateiwahl : public QObject
{
public:
    explicit Dateiwahl(const QString &pfad = {});

    QString titel, vorschlag;
    QStringList muster;
    QFileDialog::AcceptMode modus = QFileDialog::AcceptOpen;
    int dialoge = 0;

private:
    QTimer takt_;
};
