#include "Registry.h"

#include <QDir>
#include <QSettings>
#include <QStandardPaths>
#include <QStringList>

#include <memory>

namespace registry {

namespace {

/// The one place that knows which system keeps settings where.
QSettings &ablage()
{
#ifdef Q_OS_WIN
    static QSettings einstellungen(QStringLiteral("HKEY_LOCAL_MACHINE"), QSettings::NativeFormat);
#else
    static std::unique_ptr<QSettings> halter;
    const QString datei = QDir(QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation)).filePath(QStringLiteral("flox/registry.ini"));
    if (!halter || halter->fileName() != datei)
        halter = std::make_unique<QSettings>(datei, QSettings::IniFormat);
    QSettings &einstellungen = *halter;
#endif
    return einstellungen;
}

QString pfad(const QString &schluessel, const QString &name)
{
    return QString(schluessel).replace(u'\\', u'/') + u'/' + name;
}

} // namespace

void RegWertSchreiben(const QString &schluessel, const QString &name, const QString &text)
{
    // What stands there already is not written again: a start without news leaves the file alone.
    if (RegWertLesen(schluessel, name) != text || !vorhanden(schluessel, name))
        ablage().setValue(pfad(schluessel, name), text);
}

QString RegWertLesen(const QString &schluessel, const QString &name)
{
    const QVariant wert = ablage().value(pfad(schluessel, name));
    if (!wert.isValid())
        return {};
    // An unquoted comma in a file edited by hand makes a list of the value.
    QString text = wert.typeId() == QMetaType::QStringList ? wert.toStringList().join(QStringLiteral(", ")) : wert.toString();
    text.truncate(groessterWert);
    if (const qsizetype ende = text.indexOf(QChar::Null); ende >= 0)
        text.truncate(ende);
    return text.isNull() ? QStringLiteral("") : text;
}

QString RegWertOderVorgabe(const QString &schluessel, const QString &name, const QString &vorgabe)
{
    const QString text = RegWertLesen(schluessel, name);
    return text.isEmpty() || text <= QStringLiteral(" ") ? vorgabe : text;
}

bool vorhanden(const QString &schluessel, const QString &name)
{
    return !RegWertLesen(schluessel, name).isNull();
}

void sichern()
{
    ablage().sync();
}

} // namespace registry
