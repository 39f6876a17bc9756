#pragma once

#include "store/Sparten.h"

#include <QElapsedTimer>
#include <QImage>
#include <QObject>
#include <QThreadPool>

#include <array>
#include <chrono>
#include <deque>
#include <functional>
#include <future>
#include <span>
#include <vector>

class QFileInfo;

/* One walk through the picture folders for making previews and for copying, without a window. Paths of folders are the program's, those
   of files the system's. */

/// A folder of pictures, as the walks speak of it. The cemetery plants have none: they show pictures of others.
struct Bilderzeile
{
    Sparte sparte; ///< whose folder it is
    QStringView titel;
    QStringView wort; ///< in the message about a file that cannot be copied

    QString ordner() const { return eintrag(sparte).bildordner.toString(); }
};
inline constexpr size_t anzahlBilderordner = 5;
/// In the order of their bars.
const std::array<Bilderzeile, anzahlBilderordner> &bilderzeilen();

/// Pictures of one measurement of the time.
inline constexpr int blockgroesse = 10;
/// What is left when `anzahl` pictures took the time of `block` and `uebrige` are still to come; nothing for no picture.
std::chrono::milliseconds restzeit(std::chrono::milliseconds block, int anzahl, int uebrige);
/// The sentence about it, minutes rounded up; empty for less than a second.
QString restzeittext(std::chrono::milliseconds zeit);

/// What is done to each file.
struct Bildhandlung
{
    QStringList muster; ///< names of the files, case-blind
    /// Runs on any thread and for several files at once, ahead of their turn; may be empty.
    std::function<QImage(const QString &quelle)> vorbereiten;
    /// Runs for one file at a time, in their order, on a thread of its own; throws a Fehler.
    std::function<void(const QImage &vorbereitet, const QString &quelle, const QString &ziel)> abschliessen;
    /// Bytes that the target will take; empty: the free space is not asked for.
    std::function<qint64(const QFileInfo &quelle, const QString &ziel)> bedarf;
};

/// JPEG quality of previews.
inline constexpr int vorschauGuete = 75;
/// Makes the preview of each picture named "*.jpg", turned upright, under its own name.
Bildhandlung vorschauErzeugen(int guete = vorschauGuete);
/// Copies every file; one that is there with the same size and time is left as it is.
Bildhandlung bildKopieren();

/// Where a walk reads and writes.
struct Bilderauftrag
{
    QString quelle;                                 ///< folder that holds the five
    QString ziel;                                   ///< folder that exists
    QString unterordner;                            ///< made in `ziel`, to hold the five; empty: `ziel` holds them itself
    std::array<size_t, anzahlBilderordner> folge{}; ///< places in bilderzeilen(), in the order of the walk
    Bildhandlung handlung;
    bool inVorhandene = false; ///< folders that exist are taken; else they end the walk before it begins
    /// Bytes that can be written into a folder; negative: unknown.
    std::function<qint64(const QString &ordner)> frei = freierPlatz;

    QString zielwurzel() const;
    /// Whether one of the folders to be made exists.
    bool ordnerVorhanden() const;
    static qint64 freierPlatz(const QString &ordner);
};

class Bilderlauf : public QObject
{
    Q_OBJECT

public:
    enum class Ende {
        Fertig,
        Abgebrochen,
        KeineBilder,  ///< no folder of the source holds a file; nothing was made
        KeinPlatz,    ///< less than the files take; nothing was made
        OrdnerFehler, ///< a folder cannot be made, and none was
        Voll,         ///< no room for a file; the ones before it are whole
    };
    struct Fehlschlag
    {
        const Bilderzeile &zeile;
        QString datei; ///< the source
        QString text;
    };

    explicit Bilderlauf(Bilderauftrag auftrag, QObject *eltern = nullptr);
    /// Waits for the file in work.
    ~Bilderlauf() override;

    /// Begins, once; the walk goes on by the message loop, which has a turn before each file.
    void beginnen();
    /// Ends the walk before the next file.
    void abbrechen() { abgebrochen_ = true; }
    int gesamt() const { return gesamt_; }
    int erledigt() const { return int(stelle_); }
    int ausgelassen() const { return ausgelassen_; }

    /// Asked about each file that fails; true: no more of them. Without it all are left out in silence.
    std::function<bool(const Fehlschlag &)> melden;

signals:
    /// A file of a folder is done; the share of all files of all folders.
    void fortschritt(int zeile, int prozent);
    void restzeitGeschaetzt(const QString &text);
    /// `grund` says more of a failure, for the user.
    void beendet(Bilderlauf::Ende ende, const QString &grund);

private:
    struct Datei
    {
        size_t zeile;
        QString quelle, ziel;
    };
    struct Ergebnis
    {
        bool gelungen = false, voll = false;
        QString text = {};
    };

    void auflisten();
    /// What cannot be made, and why; empty: all are there.
    QString ordnerAnlegen();
    void naechste();
    void vorauslesen();
    static Ergebnis ausfuehren(const Bildhandlung &handlung, const Datei &datei, const std::shared_future<QImage> &bild);
    void angekommen(const Ergebnis &ergebnis);
    void enden(Ende ende, const QString &grund = {});

    Bilderauftrag auftrag_;
    std::vector<Datei> dateien_;
    qint64 bedarf_ = 0;
    size_t stelle_ = 0;   ///< file in work
    size_t begonnen_ = 0; ///< files whose preparation was begun
    std::deque<std::shared_future<QImage>> vorbereitet_;
    QThreadPool leser_, schreiber_;
    QElapsedTimer uhr_;
    qint64 gewartet_ = 0; ///< on the user, milliseconds of the present block
    int gesamt_ = 0, ausgelassen_ = 0;
    bool abgebrochen_ = false, still_ = false;
};
