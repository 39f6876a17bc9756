#include "Dateien.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QMutex>
#include <QRandomGenerator>
#include <QRegularExpression>

#include <algorithm>
#include <cerrno>
#include <filesystem>
#include <memory>
#include <system_error>

#ifdef Q_OS_WIN
#include <io.h>
#else
#include <fcntl.h>
#include <unistd.h>
#endif

namespace {

QString &schreibmerker()
{
    static QString pfad;
    return pfad;
}

/// Why an operation on `pfad` failed. The number is the system's, taken right behind the failure; where it tells nothing, the
/// file and its folder are looked at.
QString grund(const QString &pfad, int nummer, const QString &sonst, bool schreiben)
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
    return sonst.isEmpty() ? QString::fromStdString(std::generic_category().message(nummer)) : sonst;
}

enum class Tat { Lesen, Schreiben, Entfernen };

[[noreturn]] void werfen(Tat tat, const QString &pfad, int nummer, const QString &sonst = {})
{
    const QString satz = tat == Tat::Lesen       ? QStringLiteral("Die Datei '%1' kann nicht gelesen werden: %2")
                         : tat == Tat::Schreiben ? QStringLiteral("Die Datei '%1' kann nicht geschrieben werden: %2")
                                                 : QStringLiteral("Die Datei '%1' kann nicht entfernt werden: %2");
    const QString ursache = grund(pfad, nummer, sonst, tat == Tat::Schreiben), text = satz.arg(QDir::toNativeSeparators(pfad), ursache);
    if (tat == Tat::Schreiben && ursache == dateiursache(ENOSPC))
        throw Datentraegervoll(text);
    throw Fehler(text);
}

/// The number that a call which gave none leaves behind.
int ersatznummer(const QFileDevice &datei)
{
    switch (datei.error()) {
    case QFileDevice::ResourceError: return ENOSPC;
    case QFileDevice::PermissionsError: return EACCES;
    default: return 0;
    }
}

/// A step of an open file; throws for `gemeint`, the name by which the user knows the file.
template<typename Ruf>
void schritt(Dateischritt art, Tat tat, QFile &datei, const QString &gemeint, Ruf &&ruf)
{
    if (const int nummer = dateiaufsicht(art, datei.fileName()))
        werfen(tat, gemeint, nummer);
    errno = 0;
    if (ruf())
        return;
    const int nummer = errno;
    werfen(tat, gemeint, nummer ? nummer : ersatznummer(datei), datei.errorString());
}

/// Brings what was written to an open file onto the disk. A system that has no such call for this kind of file is taken as it is.
bool aufDenDatentraeger(int griff)
{
#ifdef Q_OS_WIN
    return _commit(griff) == 0;
#else
    return ::fsync(griff) == 0 || errno == EINVAL || errno == ENOTSUP || errno == ENOSYS;
#endif
}

/// The same for the names in a folder, where the system knows such a thing.
bool ordnerAufDenDatentraeger(const QString &ordner)
{
#ifdef Q_OS_WIN
    return true;
#else
    const int griff = ::open(QFile::encodeName(ordner).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (griff < 0)
        return true; // a folder that may be written but not read
    const bool gelungen = aufDenDatentraeger(griff);
    const int nummer = errno;
    ::close(griff);
    errno = nummer;
    return gelungen;
#endif
}

std::filesystem::path stdPfad(const QString &pfad)
{
    return std::filesystem::path(pfad.toStdU16String());
}

/// The file behind a link; the path itself where it is none. A circle of links ends somewhere in it.
QString hinterLinks(const QString &pfad)
{
    QFileInfo info(pfad);
    for (int i = 0; i < 100 && info.isSymLink(); ++i)
        info.setFile(info.symLinkTarget());
    return info.absoluteFilePath();
}

constexpr qint64 block = 1 << 20; // bytes
constexpr char trenner = '\0';    ///< of the targets in a note

} // namespace

/// Holds the note about a target while it is written. A note that cannot be kept does not hinder the writing.
class Beidatei::Notiz
{
public:
    explicit Notiz(const QString &ziel) : ziel_(QFileInfo(ziel).absoluteFilePath().toUtf8())
    {
        const QMutexLocker halten(&sperre());
        laufende() += ziel_;
        festhalten();
    }
    ~Notiz()
    {
        const QMutexLocker halten(&sperre());
        if (!bleibt_)
            laufende().removeOne(ziel_);
        festhalten();
    }
    /// What could not be removed is left to the next run.
    void bleiben() { bleibt_ = true; }
    Notiz(const Notiz &) = delete;
    Notiz &operator=(const Notiz &) = delete;

private:
    static QMutex &sperre()
    {
        static QMutex eine;
        return eine;
    }
    /// Targets being written now: one may be waiting for another.
    static QByteArrayList &laufende()
    {
        static QByteArrayList eine;
        return eine;
    }
    static void festhalten()
    {
        if (schreibmerker().isEmpty())
            return;
        QFile datei(schreibmerker());
        if (laufende().isEmpty())
            datei.remove();
        else if (datei.open(QIODevice::WriteOnly | QIODevice::Truncate))
            datei.write(laufende().join(trenner));
    }

    QByteArray ziel_;
    bool bleibt_ = false;
};

namespace {

/// Hands the blocks of a file to `nehmen`, in turn.
template<typename Nehmen>
void lesenInBloecken(QFile &von, Nehmen &&nehmen)
{
    const auto puffer = std::make_unique_for_overwrite<char[]>(block);
    for (;;) {
        qint64 gelesen = 0;
        schritt(Dateischritt::Lesen, Tat::Lesen, von, von.fileName(), [&] { return (gelesen = von.read(puffer.get(), block)) >= 0; });
        if (gelesen == 0)
            return;
        nehmen(puffer.get(), gelesen);
    }
}

void zumLesenOeffnen(QFile &datei)
{
    schritt(Dateischritt::Oeffnen, Tat::Lesen, datei, datei.fileName(), [&] { return datei.open(QIODevice::ReadOnly | QIODevice::Unbuffered); });
}

} // namespace

QByteArray liesGanz(const QString &pfad)
{
    QFile datei(pfad);
    zumLesenOeffnen(datei);
    QByteArray inhalt;
    lesenInBloecken(datei, [&](const char *bytes, qint64 anzahl) { inhalt.append(bytes, anzahl); });
    return inhalt;
}

void kopiereUeber(const QString &quelle, const QString &ziel)
{
    QFile von(quelle), nach(ziel);
    zumLesenOeffnen(von);
    QFile::remove(ziel + QStringLiteral("-journal"));
    const auto schreiben = [&](Dateischritt art, auto &&ruf) { schritt(art, Tat::Schreiben, nach, ziel, ruf); };
    schreiben(Dateischritt::Oeffnen, [&] { return nach.open(QIODevice::ReadWrite | QIODevice::Unbuffered); });
    qint64 geschrieben = 0;
    lesenInBloecken(von, [&](const char *bytes, qint64 anzahl) {
        schreiben(Dateischritt::Schreiben, [&] { return nach.write(bytes, anzahl) == anzahl; });
        geschrieben += anzahl;
    });
    schreiben(Dateischritt::Schreiben, [&] { return nach.size() == geschrieben || nach.resize(geschrieben); });
    // Some disks tell of a failure only here.
    schreiben(Dateischritt::Schreiben, [&] {
        nach.close();
        return nach.error() == QFileDevice::NoError;
    });
}

Beidatei::Beidatei(const QString &ziel)
    : gewuenscht_(ziel), ziel_(hinterLinks(ziel)), datei_(std::make_unique<QFile>()), notiz_(std::make_unique<Notiz>(ziel_))
{
    const QFileInfo alt(ziel_);
    if (alt.isDir() || (alt.exists() && !alt.isWritable()))
        werfen(Tat::Schreiben, gewuenscht_, EACCES);
    // The name that schreibresteFegen knows. One that is taken already is passed over.
    constexpr int versuche = 100;
    for (int i = 0; i < versuche; ++i) {
        QString endung = QStringLiteral(".");
        for (int stelle = 0; stelle < 6; ++stelle) {
            const int zufall = int(QRandomGenerator::global()->bounded(52));
            endung += QChar(ushort(zufall < 26 ? 'A' + zufall : 'a' + zufall - 26));
        }
        datei_->setFileName(ziel_ + endung);
        if (QFileInfo::exists(datei_->fileName()))
            continue;
        schritt(Dateischritt::Oeffnen, Tat::Schreiben, *datei_, gewuenscht_,
                [&] { return datei_->open(QIODevice::WriteOnly | QIODevice::NewOnly | QIODevice::Unbuffered); });
        pfad_ = datei_->fileName();
        if (alt.exists())
            datei_->setPermissions(alt.permissions());
        return;
    }
    werfen(Tat::Schreiben, gewuenscht_, EEXIST);
}

Beidatei::~Beidatei()
{
    datei_->close();
    if (stand_ == Stand::Eingesetzt)
        return;
    for (const QString &rest : {pfad_, pfad_ + QStringLiteral("-journal")})
        if (QFile::exists(rest) && dateischritt(Dateischritt::Entfernen, rest, [&] { return QFile::remove(rest); }) != 0)
            notiz_->bleiben();
}

void Beidatei::schreiben(const char *bytes, qint64 anzahl)
{
    schritt(Dateischritt::Schreiben, Tat::Schreiben, *datei_, gewuenscht_, [&] { return datei_->write(bytes, anzahl) == anzahl; });
    geschrieben_ += anzahl;
}

void Beidatei::kopieren(const QString &quelle)
{
    QFile von(quelle);
    zumLesenOeffnen(von);
    lesenInBloecken(von, [this](const char *bytes, qint64 anzahl) { schreiben(bytes, anzahl); });
}

void Beidatei::abschliessen()
{
    if (stand_ != Stand::Offen)
        return;
    const bool vonAnderen = geschrieben_ == 0;
    if (vonAnderen) {
        // It may be another file by now.
        datei_->close();
        const auto rechte = QFileInfo(ziel_).exists() ? QFile::permissions(ziel_) : QFile::Permissions();
        schritt(Dateischritt::Oeffnen, Tat::Schreiben, *datei_, gewuenscht_,
                [this] { return datei_->open(QIODevice::ReadWrite | QIODevice::ExistingOnly | QIODevice::Unbuffered); });
        if (rechte)
            datei_->setPermissions(rechte);
    }
    // The bytes are on the disk before the switch, since a full disk can go unnoticed there.
    schritt(Dateischritt::Abgleichen, Tat::Schreiben, *datei_, gewuenscht_, [this] { return aufDenDatentraeger(datei_->handle()); });
    schritt(Dateischritt::Schreiben, Tat::Schreiben, *datei_, gewuenscht_, [&] {
        datei_->close();
        return datei_->error() == QFileDevice::NoError && (vonAnderen || QFileInfo(pfad_).size() == geschrieben_);
    });
    stand_ = Stand::Abgeschlossen;
}

void Beidatei::einsetzen()
{
    abschliessen();
    const auto umbenennen = [this] {
        std::error_code fehler;
        std::filesystem::rename(stdPfad(pfad_), stdPfad(ziel_), fehler);
        errno = fehler.default_error_condition().value();
        return !fehler;
    };
    if (const int nummer = dateischritt(Dateischritt::Umbenennen, ziel_, umbenennen))
        werfen(Tat::Schreiben, gewuenscht_, nummer);
    stand_ = Stand::Eingesetzt;
    // The file is in place; only a crash of the machine could still bring back the old one, and that is whole, too.
    const QString ordner = QFileInfo(ziel_).absolutePath();
    (void)dateischritt(Dateischritt::Abgleichen, ordner, [&] { return ordnerAufDenDatentraeger(ordner); });
}

void Beidatei::zeitUebernehmen(const QString &quelle)
{
    (void)datei_->setFileTime(QFileInfo(quelle).lastModified(), QFileDevice::FileModificationTime);
}

void kopiereSicher(const QString &quelle, const QString &ziel)
{
    QFile von(quelle);
    zumLesenOeffnen(von);
    Beidatei neu(ziel);
    neu.kopieren(quelle);
    neu.zeitUebernehmen(quelle);
    neu.einsetzen();
}

void schreibeSicher(const QString &pfad, const QByteArray &inhalt)
{
    Beidatei neu(pfad);
    neu.schreiben(inhalt.constData(), inhalt.size());
    neu.einsetzen();
}

bool gleicherInhalt(const QString &eine, const QString &andere)
{
    QFile a(eine), b(andere);
    if (QFileInfo(eine).size() != QFileInfo(andere).size())
        return false;
    zumLesenOeffnen(a);
    zumLesenOeffnen(b);
    const auto vergleich = std::make_unique_for_overwrite<char[]>(block);
    bool gleich = true;
    const auto lesen = [&](QFile &datei, char *puffer) {
        qint64 gelesen = 0;
        schritt(Dateischritt::Lesen, Tat::Lesen, datei, datei.fileName(), [&] { return (gelesen = datei.read(puffer, block)) >= 0; });
        return gelesen;
    };
    const auto puffer = std::make_unique_for_overwrite<char[]>(block);
    for (qint64 gelesen = -1; gleich && gelesen != 0;) {
        gelesen = lesen(a, puffer.get());
        gleich = lesen(b, vergleich.get()) == gelesen && std::equal(puffer.get(), puffer.get() + gelesen, vergleich.get());
    }
    return gleich;
}

bool dieselbeDatei(const QString &eine, const QString &andere)
{
    std::error_code fehler;
    return std::filesystem::equivalent(stdPfad(eine), stdPfad(andere), fehler) && !fehler;
}

void entferneDatei(const QString &pfad)
{
    QFile datei(pfad);
    schritt(Dateischritt::Entfernen, Tat::Entfernen, datei, pfad, [&] { return datei.remove(); });
}

void benenneUm(const QString &pfad, const QString &neu)
{
    QFile datei(pfad);
    schritt(Dateischritt::Umbenennen, Tat::Schreiben, datei, neu, [&] { return datei.rename(neu); });
}

void legeOrdnerAn(const QString &pfad)
{
    if (QFileInfo(pfad).isDir())
        return;
    if (const int nummer = dateischritt(Dateischritt::Anlegen, pfad, [&] { return QDir().mkpath(pfad); }))
        throw Fehler(QStringLiteral("Der Ordner '%1' kann nicht angelegt werden: %2").arg(QDir::toNativeSeparators(pfad), dateiursache(nummer)));
}

void schreibeSicher(const QString &pfad, const std::function<void(const QString &)> &schreiben)
{
    Beidatei neu(pfad);
    schreiben(neu.pfad());
    neu.einsetzen();
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
    const QByteArrayList ziele = datei.readAll().split(trenner);
    datei.close();
    // The name that a safe file has until it is whole; a database may have its journal with it.
    static const QRegularExpression rest(QStringLiteral("^\\.[A-Za-z]{6}(-journal)?$"));
    for (const QByteArray &pfad : ziele) {
        const QFileInfo ziel(QString::fromUtf8(pfad));
        if (!ziel.isAbsolute() || ziel.fileName().isEmpty())
            continue;
        for (const QString &name : QDir(ziel.absolutePath()).entryList(QDir::Files | QDir::Hidden))
            if (name.startsWith(ziel.fileName()) && rest.match(name.mid(ziel.fileName().size())).hasMatch())
                QFile::remove(QDir(ziel.absolutePath()).filePath(name));
    }
    datei.remove();
}
