#include "Fensterverwaltung.h"

#include <QFile>
#include <QStandardPaths>
#include <QTest>

namespace {

constexpr int geduld = 30000; // milliseconds

} // namespace

Fensterverwaltung::Fensterverwaltung(const QString &schirm)
{
    for (const char *programm : {"Xvfb", "openbox"})
        if (QStandardPaths::findExecutable(QLatin1String(programm)).isEmpty())
            fehlt_ = QStringLiteral("The program '%1' is not installed.").arg(QLatin1String(programm));
    if (!fehlt_.isEmpty())
        return;
    // The server picks a free number and tells it.
    schirm_.start(QStringLiteral("Xvfb"), {QStringLiteral("-displayfd"), QStringLiteral("1"), QStringLiteral("-screen"), QStringLiteral("0"),
                                           schirm + QStringLiteral("x24"), QStringLiteral("-nolisten"), QStringLiteral("tcp")});
    while (!schirm_.canReadLine())
        if (!schirm_.waitForReadyRead(geduld))
            qFatal("Xvfb does not start: %s", schirm_.readAllStandardError().constData());
    qputenv("DISPLAY", ':' + schirm_.readLine().trimmed());
    qputenv("QT_QPA_PLATFORM", "xcb");
    qunsetenv("WAYLAND_DISPLAY");

    // Its settings are the ones it was shipped with.
    QProcessEnvironment umgebung = QProcessEnvironment::systemEnvironment();
    umgebung.insert(QStringLiteral("XDG_CONFIG_HOME"), ordner_.path());
    umgebung.insert(QStringLiteral("XDG_CACHE_HOME"), ordner_.path());
    verwalter_.setProcessEnvironment(umgebung);
    const QString bereit = ordner_.filePath(QStringLiteral("bereit"));
    verwalter_.start(QStringLiteral("openbox"),
                     {QStringLiteral("--sm-disable"), QStringLiteral("--startup"), QStringLiteral("touch '%1'").arg(bereit)});
    if (!QTest::qWaitFor([&] { return QFile::exists(bereit); }, geduld))
        qFatal("openbox does not start: %s", verwalter_.readAllStandardError().constData());
}

Fensterverwaltung::~Fensterverwaltung()
{
    for (QProcess *prozess : {&verwalter_, &schirm_}) {
        prozess->terminate();
        if (prozess->state() != QProcess::NotRunning && !prozess->waitForFinished(geduld))
            prozess->kill();
    }
}
