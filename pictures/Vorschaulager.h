#pragma once

#include <QCache>
#include <QImage>
#include <QObject>
#include <QSet>
#include <QStringList>
#include <QThreadPool>

/* Thumbnails of any number of files, decoded by threads of their own, the ones last used kept within a bound. What is asked for
   replaces what was asked for before: a picture that has scrolled away is not decoded any more. For one thread. */
class Vorschaulager : public QObject
{
    Q_OBJECT

public:
    struct Eintrag
    {
        QImage bild;  ///< null: the file cannot be decoded
        QSize kasten; ///< that it was fitted to, pixels
    };

    /// `grenze` in bytes.
    explicit Vorschaulager(qsizetype grenze, QObject *eltern = nullptr);
    /// Waits for the decodings that run.
    ~Vorschaulager() override;

    /// What is kept of a file, in whatever size; null while nothing is. It lives until the next call of any function.
    const Eintrag *finden(const QString &datei) const { return lager_.object(datei); }
    /// These files, the most urgent first, in this size; those that are kept in it cost nothing.
    void wuenschen(const QStringList &dateien, QSize kasten);
    void leeren();

    qsizetype grenze() const { return lager_.maxCost(); }
    qsizetype belegt() const { return lager_.totalCost(); } ///< bytes
    qsizetype wartend() const { return warten_.size() - naechste_; }
    qint64 geladen() const { return geladen_; } ///< files decoded so far

signals:
    /// A file's thumbnail, or the knowledge that there is none, has come.
    void angekommen(const QString &datei);

private:
    void weiter();
    void ablegen(const QString &datei, QSize kasten, const QImage &bild);

    QCache<QString, Eintrag> lager_;
    QStringList warten_;
    qsizetype naechste_ = 0;
    QSize kasten_;
    QSet<QString> unterwegs_;
    qint64 geladen_ = 0;
    int stand_ = 0; ///< counts how often it was emptied
    QThreadPool lader_;
};
