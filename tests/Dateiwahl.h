#pragma once

#include <QFileDialog>
#include <QTimer>

/// Answers the next file dialog: with a path, and a filter where one is given, or without a path by its cancel.
class Dateiwahl : public QObject
{
public:
    explicit Dateiwahl(const QString &pfad = {}, const QString &filter = {});

    QString titel, vorschlag;
    QStringList muster;
    QFileDialog::AcceptMode modus = QFileDialog::AcceptOpen;
    int dialoge = 0;

private:
    QTimer takt_;
};
