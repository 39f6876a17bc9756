#include "Pfade.h"

#include <QDir>
#include <QDirIterator>
#include <QFileInfo>

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
        QString gefunden = teil;
        if (!QFileInfo::exists(QDir(ordner).filePath(teil))) {
            for (const QString &eintrag : QDir(ordner).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot))
                if (eintrag.compare(teil, Qt::CaseInsensitive) == 0) {
                    gefunden = eintrag;
                    break;
                }
        }
        bisher = bisher.isEmpty() ? gefunden : QDir(bisher).filePath(gefunden);
    }
    return bisher;
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
    // The first match is enough: a picture folder may hold thousands of files.
    return QDirIterator(systemPfad(strich < 0 ? QStringLiteral(".") : pfad.left(strich + 1)), {name}, QDir::Files | QDir::Hidden).hasNext();
}
