#include "Pfade.h"

#include <QDateTime>
#include <QDeadlineTimer>
#include <QDir>
#include <QDirIterator>
#include <QFileInfo>
#include <QHash>
#include <QMutex>

namespace {

constexpr int merkdauer = 2000; // ms
constexpr qsizetype gemerkteOrdner = 16;
constexpr qsizetype gemerkteTreffer = 32;

/// What a folder held when it was read.
struct Ordnerliste
{
    QDateTime zeit;
    QDeadlineTimer ende;
    QHash<QString, QString> namen; ///< by their folded form; of two that differ in case only the one that sorts first
};

Ordnerliste ordnerLesen(const QString &ordner, const QDateTime &zeit)
{
    Ordnerliste liste{zeit, QDeadlineTimer(merkdauer), {}};
    for (QDirIterator i(ordner, QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot); i.hasNext();) {
        i.next();
        const QString name = i.fileName();
        QString &platz = liste.namen[name.toCaseFolded()];
        if (platz.isEmpty() || name < platz)
            platz = name;
    }
    return liste;
}

/// The entry of a folder that differs from a name in case only; the name itself where there is none. A folder of thousands of
/// files takes milliseconds to read: what it held is used again for as long as its time stays, but never longer than `merkdauer`,
/// because not every file system changes the time of a folder at once.
QString eintragWie(const QString &ordner, const QString &name)
{
    static QMutex sperre;
    static QHash<QString, Ordnerliste> gemerkt;
    const QFileInfo stand(ordner);
    const QDateTime zeit = stand.lastModified();
    if (!zeit.isValid())
        return name;
    const QMutexLocker halten(&sperre);
    const QString schluessel = stand.absoluteFilePath();
    auto liste = gemerkt.find(schluessel);
    if (liste == gemerkt.end() || liste->zeit != zeit || liste->ende.hasExpired()) {
        if (gemerkt.size() >= gemerkteOrdner)
            gemerkt.clear();
        liste = gemerkt.insert(schluessel, ordnerLesen(ordner, zeit));
    }
    // What has gone in the meantime is none.
    const QString gefunden = liste->namen.value(name.toCaseFolded(), name);
    return QFileInfo::exists(QDir(ordner).filePath(gefunden)) ? gefunden : name;
}

} // namespace

QString pfadAus(const QString &ordner, const QString &rest)
{
    if (ordner.isEmpty())
        return {};
    const bool hatTrenner = ordner.endsWith(u'\\') || ordner.endsWith(u'/');
    const bool restBeginnt = rest.startsWith(u'\\') || rest.startsWith(u'/');
    if (hatTrenner && restBeginnt)
        return ordner + rest.mid(1);
    return hatTrenner || restBeginnt ? ordner + rest : ordner + u'\\' + rest;
}

QString mitStrich(const QString &ordner)
{
    if (ordner.isEmpty())
        return {};
    QString ohne = ordner;
    while (ohne.endsWith(u'\\') || ohne.endsWith(u'/'))
        ohne.chop(1);
    return ohne + u'\\';
}

QString anzeigePfad(const QString &pfad)
{
    return QString(pfad).replace(u'\\', u'/').replace(u'/', QDir::separator());
}

QString systemPfad(const QString &pfad)
{
    if (QDir::separator() == u'\\')
        return pfad;
    const QString gewandelt = QString(pfad).replace(u'\\', u'/');
    if (gewandelt.isEmpty() || QFileInfo::exists(gewandelt))
        return gewandelt;
    QString bisher = gewandelt.startsWith(u'/') ? QStringLiteral("/") : QString();
    for (const QString &teil : gewandelt.split(u'/', Qt::SkipEmptyParts)) {
        const QString ordner = bisher.isEmpty() ? QStringLiteral(".") : bisher;
        const QString gefunden = QFileInfo::exists(QDir(ordner).filePath(teil)) ? teil : eintragWie(ordner, teil);
        bisher = bisher.isEmpty() ? gefunden : QDir(bisher).filePath(gefunden);
    }
    return bisher;
}

int dateienVorhanden(const QString &ordner, const QStringList &muster, int genug)
{
    if (ordner.isEmpty())
        return 0;
    // The match of the last time saves looking for another: a picture folder may hold thousands of files.
    static QMutex sperre;
    static QHash<QString, QString> treffer;
    const QDir hier(systemPfad(ordner));
    const auto schluessel = [&](const QString &name) { return QFileInfo(hier, name).absoluteFilePath(); };
    const QMutexLocker halten(&sperre);
    QStringList offen = muster;
    offen.removeIf([&](const QString &name) {
        const QString voriger = treffer.value(schluessel(name));
        return !voriger.isEmpty() && QFileInfo(voriger).isFile();
    });
    const auto reicht = [&] { return offen.isEmpty() || muster.size() - offen.size() >= genug; };
    if (reicht())
        return int(muster.size() - offen.size());
    for (QDirIterator suche(hier.path(), offen, QDir::Files | QDir::Hidden); !reicht() && suche.hasNext();) {
        const QFileInfo datei(suche.next());
        offen.removeIf([&](const QString &name) {
            if (!QDir::match(name, datei.fileName()))
                return false;
            if (treffer.size() >= gemerkteTreffer)
                treffer.clear();
            treffer.insert(schluessel(name), datei.absoluteFilePath());
            return true;
        });
    }
    return int(muster.size() - offen.size());
}

bool dateiVorhanden(const QString &muster)
{
    if (muster.isEmpty())
        return false;
    const QString pfad = QString(muster).replace(u'\\', u'/');
    const qsizetype strich = pfad.lastIndexOf(u'/');
    const QString name = pfad.mid(strich + 1);
    if (!name.contains(u'*') && !name.contains(u'?') && !name.contains(u'['))
        return QFileInfo(systemPfad(pfad)).isFile();
    return dateienVorhanden(strich < 0 ? QStringLiteral(".") : pfad.left(strich + 1), {name}, 1) == 1;
}
