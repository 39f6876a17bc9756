#pragma once

#include "Dateischritt.h"
#include "Fehler.h"

#include <QByteArray>
#include <QString>

#include <functional>
#include <memory>

class QFile;

/* Files that the program writes. Paths are the system's. What fails throws a Fehler that names the file and the cause. */

/// The failure of a write for which there is no room left.
class Datentraegervoll : public Fehler
{
public:
    using Fehler::Fehler;
};

/// The bytes of a file.
[[nodiscard]] QByteArray liesGanz(const QString &pfad);

/// Byte copy of `quelle` over `ziel`. An existing target is overwritten in place, which is several times faster than a new
/// file; a journal left beside it is removed first. On a failure the target is in an undefined state.
void kopiereUeber(const QString &quelle, const QString &ziel);

/// A file that is written beside its target and takes its place when it is complete: whatever happens, the target is the old file or the
/// new one. A link is followed, and rights are kept. Any thread.
class Beidatei
{
public:
    explicit Beidatei(const QString &ziel);
    /// Removes what did not come to be the target.
    ~Beidatei();
    Beidatei(const Beidatei &) = delete;
    Beidatei &operator=(const Beidatei &) = delete;

    /// The file that stands there until then; empty. Others may write it, if nothing is written here, and have let go of it at the end.
    QString pfad() const { return pfad_; }
    void schreiben(const char *bytes, qint64 anzahl);
    /// Appends a whole file.
    void kopieren(const QString &quelle);
    /// The file keeps the time at which another one was changed, where the file system knows such a time.
    void zeitUebernehmen(const QString &quelle);
    /// What has been written is on the disk, and its size is the one that was written.
    void abschliessen();
    /// Puts the file in place, once, closing it before where nobody did. When the call returns, the change is on the disk, too.
    void einsetzen();

private:
    void schliessen();

    QString gewuenscht_, ziel_, pfad_;
    std::unique_ptr<QFile> datei_;
    qint64 geschrieben_ = 0;
    enum class Stand { Offen, Abgeschlossen, Eingesetzt } stand_ = Stand::Offen;
    class Notiz;
    std::unique_ptr<Notiz> notiz_;
};

/// Byte copy that takes the place of `ziel` when it is complete, with the time of its last change. Any thread.
void kopiereSicher(const QString &quelle, const QString &ziel);
/// Whether two files hold the same bytes.
[[nodiscard]] bool gleicherInhalt(const QString &eine, const QString &andere);
/// Whether both paths lead to one file, by whatever name.
[[nodiscard]] bool dieselbeDatei(const QString &eine, const QString &andere);
void entferneDatei(const QString &pfad);
/// A file gets another name in its folder; one that has that name already is in the way.
void benenneUm(const QString &pfad, const QString &neu);
/// Makes a folder where there is none.
void legeOrdnerAn(const QString &pfad);

/// Writes the whole file or leaves the old one untouched. The bytes are on the disk before the switch, since a full disk can go
/// unnoticed there. Any thread.
void schreibeSicher(const QString &pfad, const QByteArray &inhalt);

/// The same for a file that somebody else writes: `schreiben` gets the path of an empty file beside the target and has let go of it when it
/// returns. What it throws comes out, and the target stays as it was.
void schreibeSicher(const QString &pfad, const std::function<void(const QString &)> &schreiben);

/// File that names the targets that are being written, for as long as they are; empty: none is kept. A run that was killed leaves it
/// and the half-written files behind.
void setSchreibmerker(const QString &pfad);
/// Removes what a dead run left half written by the word of that file. Nobody else may use it.
void schreibresteFegen();
