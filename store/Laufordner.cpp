#include "Laufordner.h"

#include "Dateien.h"
#include "Datenbank.h"
#include "Pfade.h"

#include <QCryptographicHash>
#include <QRegularExpression>
#include <QStandardPaths>
#include <QTemporaryFile>

namespace {

const QString sperrdatei = QStringLiteral("flox.lock");
const QString merkdatei = QStringLiteral("flox-unfertig.txt");
const QString zwischendatei = QStringLiteral("flox-zwischen.tmp");
constexpr int meisteOrdner = 50; // more programs than anyone runs side by side

/// Takes a lock whose process is gone, and one that names no process.
bool sperren(QLockFile &sperre)
{
    sperre.setStaleLockTime(0);
    if (sperre.tryLock(0))
        return true;
    qint64 prozess = 0;
    QString rechner, name;
    return sperre.error() == QLockFile::LockFailedError && !sperre.getLockInfo(&prozess, &rechner, &name) && sperre.removeStaleLockFile()
           && sperre.tryLock(0);
}

} // namespace

bool ordnerBeschreibbar(const QString &ordner)
{
    QTemporaryFile probe(QDir(ordner).filePath(QStringLiteral("flox-probe.XXXXXX")));
    return probe.open();
}

void laufordnerFegen(const QString &ordner)
{
    QStringList namen;
    for (const SpartenEintrag &sparte : alleSparten()) {
        namen += QRegularExpression::escape(sparte.tempDatenbank.mid(1)) + QStringLiteral("\\d+\\.tmp(-journal)?");
        namen += QRegularExpression::escape(sparte.tempFilter.mid(1)) + QStringLiteral("\\d+") + QRegularExpression::escape(sparte.filterEndung)
                 + QStringLiteral("(\\.[A-Za-z]{6})?");
    }
    namen += QStringLiteral(".+\\.pdf\\.[A-Za-z]{6}");
    namen += QRegularExpression::escape(zwischendatei);
    const QRegularExpression reste(QRegularExpression::anchoredPattern(namen.join(u'|')), QRegularExpression::CaseInsensitiveOption);
    QDir dir(ordner);
    for (const QString &name : dir.entryList(QDir::Files | QDir::Hidden | QDir::System))
        if (reste.match(name).hasMatch())
            dir.remove(name);
}

Laufordner::~Laufordner()
{
    if (!sperre_)
        return;
    laufordnerFegen(ordner_);
    sperre_->unlock();
    setSchreibmerker({});
    QDir().rmdir(ordner_);
}

void Laufordner::bestimmen(Programm &programm)
{
    const auto nehmen = [this](const QString &ordner) {
        setSchreibmerker(QDir(ordner).filePath(merkdatei));
        schreibresteFegen();
        gewaehlt_ = true;
    };
    programm.LaufPfad.clear();
    const QString eigener = systemPfad(programm.ProgrammPfad);
    if (ordnerBeschreibbar(eigener))
        return nehmen(eigener);
    const QByteArray name = QFileInfo(eigener).canonicalFilePath().toUtf8();
    const QString kennung = QString::fromLatin1(QCryptographicHash::hash(name, QCryptographicHash::Sha1).toHex().left(16));
    const QDir benutzer(QStandardPaths::writableLocation(QStandardPaths::GenericCacheLocation));
    for (int i = 1; i <= meisteOrdner; ++i) {
        const QString ordner = benutzer.filePath(QStringLiteral("flox/%1-%2").arg(kennung).arg(i));
        if (!QDir().mkpath(ordner) || !ordnerBeschreibbar(ordner))
            return;
        auto sperre = std::make_unique<QLockFile>(QDir(ordner).filePath(sperrdatei));
        if (!sperren(*sperre))
            continue;
        sperre_ = std::move(sperre);
        ordner_ = ordner;
        programm.LaufPfad = QDir::toNativeSeparators(ordner);
        return nehmen(ordner);
    }
}

void Laufordner::fegen(const Programm &programm) const
{
    if (gewaehlt_)
        laufordnerFegen(systemPfad(programm.laufordner()));
}

Zwischendatei::Zwischendatei(const Programm &programm) : pfad_(QDir(systemPfad(programm.laufordner())).filePath(zwischendatei)) {}

Zwischendatei::~Zwischendatei()
{
    QFile::remove(pfad_);
}

QString nichtGespeichertes(const Programm &programm)
{
    const bool ordner = ordnerBeschreibbar(systemPfad(programm.ProgrammPfad));
    if (ordner && !Datenbank::OpenDatabase(programm.arbeitsdatenbank())->schreibgeschuetzt())
        return {};
    const QString datenbank = QDir::toNativeSeparators(systemPfad(programm.arbeitsdatenbank()));
    return (ordner ? QStringLiteral("Die Datenbank des Programms ist schreibgeschützt:\n%1").arg(datenbank)
                   : QStringLiteral("Der Ordner des Programms ist schreibgeschützt:\n%1").arg(programm.ProgrammPfad))
           + QStringLiteral("\n\nPflanzen können angesehen, gefiltert und gedruckt werden. Eigene Bemerkungen, benutzerdefinierte Eigenschaften "
                            "und deren Namen werden nicht gespeichert.");
}
