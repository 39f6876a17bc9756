#include "Dateien.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QMutex>
#include <QRegularExpression>
#include <QSaveFile>
#include <QStringList>

#include <algorithm>
#include <cerrno>
#include <memory>
#include <system_error>

namespace {

constexpr QChar zieltrenner = u'\0'; // stands in no path

QString &schreibmerker()
{
    static QString pfad;
    return pfad;
}

/// Why an operation on `pfad` failed. The number is the system's, taken right behind the failure; where it tells nothing, the
/// file and its folder are looked at.
QString grund(const QString &pfad, const QFileDevice &datei, int nummer, bool schreiben)
{
    const QFileInfo info(pfad);
    if (info.isDir())
        return QStringLiteral("Unter diesem Namen gibt es einen Ordner.");
    if (!QFileInfo(info.absolutePath()).isDir())
        return QStringLiteral("Der Ordner '%1' ist nicht vorhanden.").arg(QDir::toNativeSeparators(info.absolutePath()));
    if (nummer == ENOENT && schreiben)
        return QStringLiteral("In dem Ordner kann keine Datei angelegt werden.");
    if (const QString satz = dateiursache(nummer); !satz.isEmpty())
        return satz;
    switch (datei.error()) {
    case QFileDevice::ResourceError: return dateiursache(ENOSPC);
    case QFileDevice::PermissionsError: return dateiursache(EACCES);
    default: return datei.errorString();
    }
}

enum class Richtung { Lesen, Schreiben };

[[noreturn]] void werfen(Richtung richtung, const QString &pfad, const QFileDevice &datei, int nummer)
{
    const bool schreiben = richtung == Richtung::Schreiben;
    const QString satz = schreiben ? QStringLiteral("Die Datei '%1' kann nicht geschrieben werden: %2")
                                   : QStringLiteral("Die Datei '%1' kann nicht gelesen werden: %2");
    const QString ursache = grund(pfad, datei, nummer, schreiben), text = satz.arg(QDir::toNativeSeparators(pfad), ursache);
    if (schreiben && ursache == dateiursache(ENOSPC))
        throw Datentraegervoll(text);
    throw Fehler(text);
}

/// Reads from the place of `von` to its end, block by block.
template<typename Ziel>
qint64 umfuellen(QFile &von, Ziel &&schreibe)
{
    constexpr qint64 block = 1 << 20;
    const auto puffer = std::make_unique_for_overwrite<char[]>(block);
    qint64 bytes = 0;
    for (;;) {
        errno = 0;
        const qint64 gelesen = von.read(puffer.get(), block);
        if (const int nummer = errno; gelesen < 0)
            werfen(Richtung::Lesen, von.fileName(), von, nummer);
        if (gelesen == 0)
            return bytes;
        schreibe(puffer.get(), gelesen);
        bytes += gelesen;
    }
}

/// Holds the note about a target while it is written. A note that cannot be kept does not hinder the writing.
class Schreibnotiz
{
public:
    explicit Schreibnotiz(const QString &ziel) : ziel_(QFileInfo(ziel).absoluteFilePath())
    {
        const QMutexLocker halten(&sperre());
        ziele().append(ziel_);
        festhalten();
    }
    ~Schreibnotiz()
    {
        const QMutexLocker halten(&sperre());
        ziele().removeOne(ziel_);
        festhalten();
    }
    Schreibnotiz(const Schreibnotiz &) = delete;
    Schreibnotiz &operator=(const Schreibnotiz &) = delete;

private:
    static QMutex &sperre()
    {
        static QMutex eine;
        return eine;
    }
    static QStringList &ziele()
    {
        static QStringList alle;
        return alle;
    }
    static void festhalten()
    {
        if (schreibmerker().isEmpty())
            return;
        if (ziele().isEmpty()) {
            QFile::remove(schreibmerker());
            return;
        }
        QFile datei(schreibmerker());
        if (datei.open(QIODevice::WriteOnly | QIODevice::Truncate))
            datei.write(ziele().join(zieltrenner).toUtf8());
    }

    QString ziel_;
};

/// A safe file under way: `fuelle` writes into it by a step that throws when it failed.
template<typename Fuellung>
void sichereDatei(const QString &pfad, Fuellung &&fuelle)
{
    const Schreibnotiz notiz(pfad);
    QSaveFile datei(pfad);
    const auto schritt = [&](bool gelungen) {
        if (const int nummer = errno; !gelungen) {
            datei.cancelWriting();
            werfen(Richtung::Schreiben, pfad, datei, nummer);
        }
    };
    errno = 0;
    schritt(datei.open(QIODevice::WriteOnly));
    fuelle(datei, schritt);
    schritt(datei.flush());
    schritt(datei.commit());
}

} // namespace

QString dateiursache(int nummer)
{
    if (nummer == 0)
        return {};
    const std::error_condition bedingung = std::generic_category().default_error_condition(nummer);
    const auto eine = [&](std::initializer_list<std::errc> gesucht) {
        return std::ranges::any_of(gesucht, [&](std::errc e) { return bedingung == e; });
    };
#ifdef EDQUOT
    if (nummer == EDQUOT)
        return dateiursache(ENOSPC);
#endif
    if (eine({std::errc::no_space_on_device, std::errc::file_too_large}))
        return QStringLiteral("Der Datenträger ist voll.");
    if (eine({std::errc::permission_denied, std::errc::operation_not_permitted, std::errc::read_only_file_system, std::errc::text_file_busy}))
        return QStringLiteral("Die Datei oder ihr Ordner ist schreibgeschützt.");
    if (eine({std::errc::io_error}))
        return QStringLiteral("Der Datenträger meldet einen Lese- oder Schreibfehler.");
    if (eine({std::errc::no_such_file_or_directory, std::errc::not_a_directory}))
        return QStringLiteral("Sie ist nicht vorhanden.");
    if (eine({std::errc::is_a_directory}))
        return QStringLiteral("Unter diesem Namen gibt es einen Ordner.");
    if (eine({std::errc::filename_too_long}))
        return QStringLiteral("Der Name ist zu lang.");
    if (eine({std::errc::too_many_files_open, std::errc::too_many_files_open_in_system}))
        return QStringLiteral("Es sind zu viele Dateien geöffnet.");
    return {};
}

QByteArray liesGanz(const QString &pfad)
{
    QFile datei(pfad);
    const auto schritt = [&](bool gelungen) {
        if (const int nummer = errno; !gelungen)
            werfen(Richtung::Lesen, pfad, datei, nummer);
    };
    errno = 0;
    schritt(datei.open(QIODevice::ReadOnly));
    errno = 0;
    const QByteArray inhalt = datei.readAll();
    schritt(datei.error() == QFileDevice::NoError);
    return inhalt;
}

void kopiereUeber(const QString &quelle, const QString &ziel)
{
    QFile von(quelle), nach(ziel);
    // Read behind each failure: other calls may set it anew.
    const auto schritt = [](bool gelungen, Richtung richtung, const QFile &datei) {
        if (const int nummer = errno; !gelungen)
            werfen(richtung, datei.fileName(), datei, nummer);
    };
    errno = 0;
    schritt(von.open(QIODevice::ReadOnly | QIODevice::Unbuffered), Richtung::Lesen, von);
    QFile::remove(ziel + QStringLiteral("-journal"));
    errno = 0;
    schritt(nach.open(QIODevice::ReadWrite | QIODevice::Unbuffered), Richtung::Schreiben, nach);
    const qint64 geschrieben = umfuellen(von, [&](const char *bytes, qint64 anzahl) {
        errno = 0;
        schritt(nach.write(bytes, anzahl) == anzahl, Richtung::Schreiben, nach);
    });
    errno = 0;
    schritt(nach.size() == geschrieben || nach.resize(geschrieben), Richtung::Schreiben, nach);
    // Some disks tell of a failure only here.
    errno = 0;
    nach.close();
    schritt(nach.error() == QFileDevice::NoError, Richtung::Schreiben, nach);
}

void schreibeSicher(const QString &pfad, const QByteArray &inhalt)
{
    sichereDatei(pfad, [&](QSaveFile &datei, const auto &schritt) { schritt(datei.write(inhalt) == inhalt.size()); });
}

void kopiereSicher(const QString &quelle, const QString &ziel)
{
    QFile von(quelle);
    errno = 0;
    if (const bool offen = von.open(QIODevice::ReadOnly | QIODevice::Unbuffered); !offen)
        werfen(Richtung::Lesen, quelle, von, errno);
    const QDateTime geaendert = QFileInfo(von).lastModified();
    sichereDatei(ziel, [&](QSaveFile &nach, const auto &schritt) {
        umfuellen(von, [&](const char *bytes, qint64 anzahl) {
            errno = 0;
            schritt(nach.write(bytes, anzahl) == anzahl);
        });
        errno = 0;
        schritt(nach.flush());
        // A file system without such a time takes none.
        (void)nach.setFileTime(geaendert, QFileDevice::FileModificationTime);
    });
}

void setSchreibmerker(const QString &pfad)
{
    schreibmerker() = pfad;
}

void schreibresteFegen()
{
    QFile datei(schreibmerker());
    if (schreibmerker().isEmpty() || !datei.open(QIODevice::ReadOnly))
        return;
    const QStringList ziele = QString::fromUtf8(datei.readAll()).split(zieltrenner);
    datei.close();
    // The name that a safe file has until it is whole.
    static const QRegularExpression rest(QStringLiteral("^\\.[A-Za-z]{6}$"));
    for (const QString &pfad : ziele) {
        const QFileInfo ziel(pfad);
        if (!ziel.isAbsolute() || ziel.fileName().isEmpty())
            continue;
        for (const QString &name : QDir(ziel.absolutePath()).entryList(QDir::Files | QDir::Hidden))
            if (name.startsWith(ziel.fileName()) && rest.match(name.mid(ziel.fileName().size())).hasMatch())
                QFile::remove(QDir(ziel.absolutePath()).filePath(name));
    }
    datei.remove();
}
