#include "Benutzerordner.h"

#include "Datenbestand.h"
#include "Dateien.h"
#include "Dateischritt.h"
#include "Fehler.h"
#include "Laufordner.h"
#include "Programm.h"
#include "Sicherungen.h"
#include "Uebernahme.h"

#include <QCryptographicHash>
#include <QDate>
#include <QDir>
#include <QDirIterator>
#include <QFileInfo>
#include <QStandardPaths>

#include <filesystem>

namespace benutzerordner {

namespace {

const QString standdatei = QStringLiteral("stand.txt");
const QString datenbankname = QStringLiteral("flox-demo.mdb");

std::filesystem::path pfadVon(const QString &pfad)
{
    return std::filesystem::path(pfad.toStdU16String());
}

/// Says by which shared folder and which data a user's folder was made. The folder's own time tells of files that came or went.
QByteArray standVon(const QString &programm)
{
    const QByteArray daten = QCryptographicHash::hash(liesGanz(QDir(programm).filePath(datenbankname)), QCryptographicHash::Sha1).toHex();
    return programm.toUtf8() + '\n' + daten + '\n' + FLOX_VERSION + '\n';
}

QByteArray zeile(const QByteArray &stand, int nummer)
{
    return stand.split('\n').value(nummer);
}

/// What each user has for himself, or nobody needs twice.
bool bleibtGeteilt(const QString &name)
{
    static const QStringList namen{datenbankname, QString::fromLatin1(marke), QStringLiteral("flox"), QStringLiteral("flox.exe"),
                                   QStringLiteral("lib")};
    return namen.contains(name);
}

/// Where the system has no links for everybody, or a home on a network none at all, a copy does.
void verbinden(const QString &quelle, const QString &ziel)
{
    const auto verweisen = [&] {
        std::error_code fehler;
        std::filesystem::create_symlink(pfadVon(quelle), pfadVon(ziel), fehler);
        return !fehler;
    };
    if (dateischritt(Dateischritt::Anlegen, ziel, verweisen) != 0)
        kopiereSicher(quelle, ziel);
}

void verbindeOrdner(const QString &quelle, const QString &ziel, bool oben)
{
    legeOrdnerAn(ziel);
    for (const QFileInfo &eine : QDir(quelle).entryInfoList(QDir::Files | QDir::Dirs | QDir::Hidden | QDir::NoDotAndDotDot)) {
        if (oben && bleibtGeteilt(eine.fileName()))
            continue;
        const QString hier = QDir(ziel).filePath(eine.fileName());
        if (eine.isDir())
            verbindeOrdner(eine.filePath(), hier, false);
        else if (!QFileInfo(hier).isSymLink() && !QFileInfo::exists(hier))
            verbinden(eine.filePath(), hier);
    }
}

/// Links into a shared folder that lead nowhere by now, or into one that the program has left.
void alteLoesen(const QString &eigener, const QString &frueher, const QString &programm)
{
    QStringList alte;
    QDirIterator alle(eigener, QDir::Files | QDir::System | QDir::Hidden | QDir::NoDotAndDotDot, QDirIterator::Subdirectories);
    while (alle.hasNext()) {
        alle.next();
        const QString ziel = alle.fileInfo().symLinkTarget();
        if (!alle.fileInfo().isSymLink() || (!ziel.startsWith(frueher + u'/') && !ziel.startsWith(programm + u'/')))
            continue;
        if (!QFileInfo::exists(ziel) || !ziel.startsWith(programm + u'/'))
            alte += alle.filePath();
    }
    for (const QString &pfad : alte)
        entferneDatei(pfad);
}

QString ablegen(const QString &eigener, const QStringList &absaetze)
{
    const QString tag = QDate::currentDate().toString(Qt::ISODate);
    QString pfad = QDir(eigener).filePath(QStringLiteral("flox-notizen %1.txt").arg(tag));
    for (int n = 2; QFileInfo::exists(pfad); ++n)
        pfad = QDir(eigener).filePath(QStringLiteral("flox-notizen %1 %2.txt").arg(tag).arg(n));
    schreibeSicher(pfad, (QStringLiteral("Zu diesen Bemerkungen und Eigenschaften gibt es in den neuen Pflanzendaten keine Pflanze mehr.\n\n")
                          + absaetze.join(QStringLiteral("\n\n")) + u'\n')
                             .toUtf8());
    return pfad;
}

void datenErneuern(const QString &neue, const QString &eigener, bool istOriginal, Bericht &bericht)
{
    Programm hier;
    hier.ProgrammPfad = eigener;
    const QString ziel = istOriginal ? datenbestand::arbeitsdatei(hier) : datenbestand::originaldatei(hier);
    if (!QFileInfo::exists(ziel)) {
        kopiereSicher(neue, ziel);
        return;
    }
    bericht.bisherige = sicherungen::aufheben(hier, ziel);
    Uebernahme ergebnis;
    schreibeSicher(ziel, [&](const QString &beiseite) {
        kopiereUeber(neue, beiseite);
        ergebnis = benutzerdatenUebernehmen(ziel, beiseite);
        // Before the old database goes.
        if (!ergebnis.ohnePflanze.isEmpty())
            bericht.ohnePflanze = ablegen(eigener, ergebnis.ohnePflanze);
    });
    bericht.neueDaten = true;
    bericht.pflanzen = ergebnis.pflanzen;
}

} // namespace

bool wirdGeteilt(const QString &programm)
{
    return QFileInfo::exists(QDir(programm).filePath(QString::fromLatin1(marke))) || !ordnerBeschreibbar(programm);
}

QString ort()
{
    return QDir(QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation)).filePath(QStringLiteral("flox"));
}

QString Bericht::satz() const
{
    if (!neueDaten)
        return {};
    QString text = QStringLiteral("Flox hat neue Pflanzendaten. ");
    text += pflanzen == 0 ? QStringLiteral("Eigene Bemerkungen und Eigenschaften gab es nicht.")
                          : QStringLiteral("Ihre Bemerkungen und Eigenschaften sind erhalten (%1 %2).")
                                .arg(pflanzen)
                                .arg(pflanzen == 1 ? QStringLiteral("Pflanze") : QStringLiteral("Pflanzen"));
    if (!ohnePflanze.isEmpty())
        text += QStringLiteral("\n\nZu manchen gibt es keine Pflanze mehr. Was Sie dort geschrieben haben, steht in dieser Datei:\n%1")
                    .arg(QDir::toNativeSeparators(ohnePflanze));
    return text + QStringLiteral("\n\nDie bisherige Datenbank liegt hier:\n%1").arg(QDir::toNativeSeparators(bisherige));
}

Bericht einrichten(const QString &programm, const QString &eigener, bool istOriginal)
{
    Bericht bericht;
    const QString stand = QDir(eigener).filePath(standdatei), datenbank = QDir(eigener).filePath(datenbankname);
    const QByteArray jetzt = standVon(programm), vorher = QFileInfo::exists(stand) ? liesGanz(stand) : QByteArray();
    if (vorher == jetzt && QFileInfo::exists(datenbank))
        return bericht;
    legeOrdnerAn(eigener);
    if (!vorher.isEmpty())
        alteLoesen(eigener, QString::fromUtf8(zeile(vorher, 0)), programm);
    verbindeOrdner(programm, eigener, true);
    const QString neue = QDir(programm).filePath(datenbankname);
    if (!QFileInfo::exists(datenbank))
        kopiereSicher(neue, datenbank);
    else if (zeile(vorher, 1) != zeile(jetzt, 1))
        datenErneuern(neue, eigener, istOriginal, bericht);
    // Last: whoever is stopped before it begins again.
    schreibeSicher(stand, jetzt);
    return bericht;
}

} // namespace benutzerordner
