#include "System.h"

#include "store/Pfade.h"

#include <QDir>
#include <QFileInfo>
#include <QOperatingSystemVersion>
#include <QProcess>
#include <QStandardPaths>

#include <algorithm>

#ifdef Q_OS_WIN
#include <qt_windows.h>
#endif

namespace {

constexpr QStringView unbekannt = u"Unbekanntes Betriebssystem";

QStringView familieEins(const Systemversion &version)
{
    constexpr qint16 bauErsteAusgabe = 1998;
    if (version.haupt > 4 || (version.haupt == 4 && version.neben == 10))
        return qint16(version.bau & 0xFFFF) == bauErsteAusgabe ? u"Windows 98" : u"Windows 98 SE";
    if (version.haupt == 4 && version.neben == 0)
        return u"Windows 95";
    if (version.haupt == 4 && version.neben == 90)
        return u"Windows ME";
    return unbekannt;
}

QStringView familieZwei(const Systemversion &version)
{
    if (version.haupt == 4)
        return u"Windows NT";
    if (version.haupt == 5 && version.neben == 0)
        return u"Windows 2000";
    if (version.haupt == 5 && version.neben == 1)
        return u"Windows XP";
    return unbekannt;
}

bool loslassen(const QString &datei, const QStringList &argumente, const QString &ordner)
{
    QProcess prozess;
    prozess.setProgram(datei);
    prozess.setArguments(argumente);
    prozess.setWorkingDirectory(ordner);
    prozess.setStandardInputFile(QProcess::nullDevice());
    prozess.setStandardOutputFile(QProcess::nullDevice());
    prozess.setStandardErrorFile(QProcess::nullDevice());
    return prozess.startDetached();
}

} // namespace

QString betriebssystemname(const Systemversion &version)
{
    switch (version.plattform) {
    case 0: return QStringLiteral("Windows 32s");
    case 1: return familieEins(version).toString();
    case 2: return familieZwei(version).toString();
    default: return unbekannt.toString();
    }
}

QString betriebssystem()
{
#ifdef Q_OS_WIN
    constexpr int plattform = 2; // the only one that is left
#else
    constexpr int plattform = -1;
#endif
    const QOperatingSystemVersion version = QOperatingSystemVersion::current();
    return betriebssystemname({plattform, version.majorVersion(), version.minorVersion(), quint32(std::max(version.microVersion(), 0))});
}

QStringList programmdateien(const QString &ordner, const QString &name)
{
    const QString endung = QStringLiteral(".exe");
    const QString stamm = name.endsWith(endung, Qt::CaseInsensitive) ? name.chopped(endung.size()) : name;
    QStringList dateien;
    for (const QString &schreibung : {stamm + endung, stamm})
        if (const QString datei = systemPfad(pfadAus(ordner, schreibung)); QFileInfo(datei).isFile())
            dateien += datei;
    return dateien;
}

bool programmStarten(const QString &ordner, const QString &name)
{
    const QStringList dateien = programmdateien(ordner, name);
    return std::ranges::any_of(dateien, [](const QString &datei) {
        const QFileInfo info(datei);
        return loslassen(info.absoluteFilePath(), {}, info.absolutePath());
    });
}

void fensterAktivieren(const QString &titel)
{
#ifdef Q_OS_WIN
    if (const HWND fenster = FindWindowW(nullptr, reinterpret_cast<LPCWSTR>(titel.utf16())))
        SetForegroundWindow(fenster);
#else
    // Window managers have no common word for it that Qt speaks; a usual tool does.
    if (const QString werkzeug = QStandardPaths::findExecutable(QStringLiteral("wmctrl")); !werkzeug.isEmpty())
        (void)loslassen(werkzeug, {QStringLiteral("-a"), titel}, QDir::rootPath());
#endif
}
