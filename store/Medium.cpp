#include "Medium.h"

#include "Pfade.h"
#include "Sparten.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStorageInfo>

#include <algorithm>

#ifdef Q_OS_WIN
#include <qt_windows.h>
#endif

namespace medium {

namespace {

// The one place that knows how a system tells its drives apart.
#ifdef Q_OS_WIN

/// Asked by letter: the list of volumes would look into each of them.
QList<QStorageInfo> datentraeger()
{
    QList<QStorageInfo> liste;
    for (const QFileInfo &buchstabe : QDir::drives())
        if (!istDiskette(buchstabe.path()))
            liste.append(QStorageInfo(buchstabe.path()));
    return liste;
}

bool geraetWechselbar(const QStorageInfo &info)
{
    const UINT art = GetDriveTypeW(reinterpret_cast<LPCWSTR>(QDir::toNativeSeparators(info.rootPath()).utf16()));
    return art == DRIVE_REMOVABLE || art == DRIVE_CDROM;
}

#else

QList<QStorageInfo> datentraeger()
{
    return QStorageInfo::mountedVolumes();
}

bool geraetWechselbar(const QStorageInfo &info)
{
    // A partition's answer stands with its disk.
    const QString block =
        QFileInfo(QStringLiteral("/sys/class/block/") + QFileInfo(QString::fromLocal8Bit(info.device())).fileName()).canonicalFilePath();
    for (const QString &stufe : {QStringLiteral("/removable"), QStringLiteral("/../removable")})
        if (QFile antwort(block + stufe); !block.isEmpty() && antwort.open(QIODevice::ReadOnly))
            return antwort.read(1) == "1";
    return false;
}

#endif

constexpr int alle = 2, eine = 1;

bool hat(const QString &wurzel, Sparte sparte, const QStringList &muster, int genug = eine)
{
    return dateienVorhanden(pfadAus(wurzel, eintrag(sparte).bildordner.toString()), muster, genug) >= genug;
}

bool proben(const QString &wurzel, int genug)
{
    return hat(wurzel, Sparte::Topf, {QStringLiteral("beg*"), QStringLiteral("bou*")}, genug);
}

} // namespace

bool istDiskette(QStringView wurzel)
{
    const QStringView buchstabe = wurzel.left(2);
    return buchstabe.compare(u"a:", Qt::CaseInsensitive) == 0 || buchstabe.compare(u"b:", Qt::CaseInsensitive) == 0;
}

bool istWechsellaufwerk(const Datentraeger &traeger)
{
    if (istDiskette(traeger.wurzel))
        return false;
    static const QStringList optisch = {QStringLiteral("iso9660"), QStringLiteral("udf"), QStringLiteral("cdfs"), QStringLiteral("cd9660")};
    if (traeger.wechselbar || optisch.contains(traeger.dateisystem, Qt::CaseInsensitive))
        return true;
    // Where desktops mount what is plugged in; a disk of its own calls itself fixed.
    static const QStringList orte = {QStringLiteral("/media/"), QStringLiteral("/run/media/"), QStringLiteral("/Volumes/")};
    return traeger.geraet.startsWith(u'/') && std::ranges::any_of(orte, [&](const QString &ort) { return traeger.wurzel.startsWith(ort); });
}

std::vector<Laufwerk> laufwerke()
{
    std::vector<Laufwerk> liste;
    for (const QStorageInfo &info : datentraeger())
        if (info.isValid() && info.isReady()
            && istWechsellaufwerk(
                {info.rootPath(), QString::fromLocal8Bit(info.device()), QString::fromLatin1(info.fileSystemType()), geraetWechselbar(info)}))
            liste.push_back({info.rootPath(), info.name()});
    std::ranges::sort(liste, {}, &Laufwerk::wurzel);
    // One volume may lie over another.
    const auto doppelt = std::ranges::unique(liste, {}, &Laufwerk::wurzel);
    liste.erase(doppelt.begin(), doppelt.end());
    return liste;
}

QString beschriftung(const Laufwerk &laufwerk)
{
    QString text = QDir::toNativeSeparators(laufwerk.wurzel);
    if (text.size() > 1 && text.endsWith(QDir::separator()))
        text.chop(1);
    return laufwerk.name.isEmpty() ? text : QStringLiteral("%1 [%2]").arg(text, laufwerk.name);
}

std::optional<Laufwerk> cdSuchen(const std::vector<Laufwerk> &laufwerke)
{
    const auto cd = std::ranges::find_if(laufwerke, [](const Laufwerk &laufwerk) { return !istDiskette(laufwerk.wurzel) && istCd(laufwerk.wurzel); });
    return cd == laufwerke.end() ? std::nullopt : std::optional(*cd);
}

bool istCd(const QString &wurzel)
{
    return hatCdSymbol(wurzel) && hat(wurzel, Sparte::Stauden, {QStringLiteral("arm*")}) && hat(wurzel, Sparte::Gehoelze, {QStringLiteral("abi*")});
}

bool hatCdSymbol(const QString &wurzel)
{
    return dateiVorhanden(pfadAus(wurzel, QStringLiteral("Winflox3.ico")));
}

bool haeltBilder(const QString &wurzel)
{
    return hat(wurzel, Sparte::Stauden, {QStringLiteral("cal*")}) && hat(wurzel, Sparte::Topf, {QStringLiteral("abu*")});
}

bool alleProben(const QString &wurzel)
{
    return proben(wurzel, alle);
}

bool eineProbe(const QString &wurzel)
{
    return proben(wurzel, eine);
}

} // namespace medium
