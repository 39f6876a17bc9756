#include "Dateien.h"

#include "Fehler.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <QSaveFile>

#include <algorithm>
#include <cerrno>
#include <memory>
#include <system_error>

namespace {

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
    throw Fehler(satz.arg(QDir::toNativeSeparators(pfad), grund(pfad, datei, nummer, schreiben)));
}

/// Holds the note about a target while it is written. A note that cannot be kept does not hinder the writing.
class Schreibnotiz
{
public:
    explicit Schreibnotiz(const QString &ziel)
    {
        if (schreibmerker().isEmpty())
            return;
        QFile datei(schreibmerker());
        if (datei.open(QIODevice::WriteOnly | QIODevice::Truncate))
            datei.write(QFileInfo(ziel).absoluteFilePath().toUtf8());
    }
    ~Schreibnotiz()
    {
        if (!schreibmerker().isEmpty())
            QFile::remove(schreibmerker());
    }
    Schreibnotiz(const Schreibnotiz &) = delete;
    Schreibnotiz &operator=(const Schreibnotiz &) = delete;
};

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
    constexpr qint64 block = 1 << 20;
    const auto puffer = std::make_unique_for_overwrite<char[]>(block);
    qint64 geschrieben = 0;
    for (;;) {
        errno = 0;
        const qint64 gelesen = von.read(puffer.get(), block);
        schritt(gelesen >= 0, Richtung::Lesen, von);
        if (gelesen == 0)
            break;
        errno = 0;
        schritt(nach.write(puffer.get(), gelesen) == gelesen, Richtung::Schreiben, nach);
        geschrieben += gelesen;
    }
    errno = 0;
    schritt(nach.size() == geschrieben || nach.resize(geschrieben), Richtung::Schreiben, nach);
    // Some disks tell of a failure only here.
    errno = 0;
    nach.close();
    schritt(nach.error() == QFileDevice::NoError, Richtung::Schreiben, nach);
}

void schreibeSicher(const QString &pfad, const QByteArray &inhalt)
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
    schritt(datei.write(inhalt) == inhalt.size() && datei.flush());
    schritt(datei.commit());
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
    const QFileInfo ziel(QString::fromUtf8(datei.readAll()));
    datei.close();
    // The name that a safe file has until it is whole.
    static const QRegularExpression rest(QStringLiteral("^\\.[A-Za-z]{6}$"));
    if (ziel.isAbsolute() && !ziel.fileName().isEmpty())
        for (const QString &name : QDir(ziel.absolutePath()).entryList(QDir::Files | QDir::Hidden))
            if (name.startsWith(ziel.fileName()) && rest.match(name.mid(ziel.fileName().size())).hasMatch())
                QFile::remove(QDir(ziel.absolutePath()).filePath(name));
    datei.remove();
}
