#pragma once

#include <QMap>
#include <QString>

/* A file of settings in the INI format that QSettings reads. It is read whole, and written whole or not at all. */
class Inidatei
{
public:
    explicit Inidatei(const QString &pfad);

    QString pfad() const { return pfad_; }
    /// Keys have "/" between their parts. Null where the key does not exist.
    QString wert(const QString &schluessel) const;
    void setWert(const QString &schluessel, const QString &text);
    /// Takes up what others have written meanwhile; what cannot be read leaves the values as they are.
    void auffrischen() { (void)lesen(); }
    /// Takes up what others have written meanwhile and writes the values set since the last time. True without any; false when the
    /// file cannot be read or written: then it is as it was, and the values are written the next time.
    [[nodiscard]] bool sichern();

private:
    [[nodiscard]] bool lesen();

    QString pfad_;
    QByteArray inhalt_; ///< of the file when `werte_` was taken from it
    QMap<QString, QString> werte_;
    QMap<QString, QString> neu_; ///< not on the disk yet
};

/// The file for these values, byte for byte.
QByteArray iniSchreiben(const QMap<QString, QString> &werte);
