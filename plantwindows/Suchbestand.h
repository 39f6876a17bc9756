#pragma once

#include "store/Suchverzeichnis.h"
#include "store/Sparten.h"

#include <QObject>
#include <QThreadPool>

#include <atomic>
#include <memory>

struct Notiz;

/* The index of a Sparte, one for all of its windows: read from the working database by a thread of its own, on a connection of its own,
   and gone with the last window. Notes that windows store follow at once; of other changes of the file `bereiten` finds out. */
class Suchbestand : public QObject
{
    Q_OBJECT

public:
    /// The one of a working database and Sparte, made when nobody has it yet.
    static std::shared_ptr<Suchbestand> fuer(const QString &arbeitsdatenbank, Sparte sparte);
    /// A note has been stored there: whoever searches finds it.
    static void notizGespeichert(const QString &arbeitsdatenbank, Sparte sparte, const Notiz &notiz);
    /// Waits for the thread, which ends within milliseconds.
    ~Suchbestand() override;

    /// Has the index read where there is none or where the file has changed since; the old one serves until the new one is there.
    void bereiten();
    bool hatVerzeichnis() const { return verzeichnis_ != nullptr; }
    /// Only while there is one.
    const Suchverzeichnis &verzeichnis() const { return *verzeichnis_; }
    Suchergebnis suchen(const Suchfrage &frage, size_t hoechstens) const;
    /// Why there is no index; empty while it is being read.
    QString fehler() const { return fehler_; }

signals:
    /// An index is there, or none can be had.
    void bereit();

private:
    Suchbestand(const QString &datenbank, Sparte sparte);
    void lesen();
    void gelesen(std::shared_ptr<const Suchverzeichnis> neu, const QString &fehler);

    const QString datenbank_;
    const Sparte sparte_;
    std::shared_ptr<const Suchverzeichnis> verzeichnis_;
    Notiztexte notizen_;
    QByteArray stand_; ///< change counter of the file that the index, with the notes, is as new as
    QString fehler_;
    bool liest_ = false;
    std::atomic<bool> ende_ = false;
    QThreadPool leser_;
};
