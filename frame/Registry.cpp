#include "Registry.h"

#include "Inidatei.h"

#include <QDir>
#include <QSettings>
#include <QStandardPaths>

#include <memory>

namespace registry {

namespace {

// The one place that knows which system keeps settings where.
#ifdef Q_OS_WIN

QSettings &ablage()
{
    static QSettings einstellungen(QStringLiteral("HKEY_LOCAL_MACHINE"), QSettings::NativeFormat);
    return einstellungen;
}

QString lesen(const QString &pfad)
{
    const QVariant wert = ablage().value(pfad);
    return wert.isValid() ? wert.toString() + QStringLiteral("") : QString();
}

void setzen(const QString &pfad, const QString &text)
{
    ablage().setValue(pfad, text);
}

bool ablegen()
{
    ablage().sync();
    return ablage().status() == QSettings::NoError;
}

void nachsehen()
{
    ablage().sync();
}

QString ablageort()
{
    return QStringLiteral("HKEY_LOCAL_MACHINE\\Software\\FH Lindenhof");
}

#else

Inidatei &ablage()
{
    static std::unique_ptr<Inidatei> halter;
    const QString datei = QDir(QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation)).filePath(QStringLiteral("flox/registry.ini"));
    if (!halter || halter->pfad() != datei)
        halter = std::make_unique<Inidatei>(datei);
    return *halter;
}

QString lesen(const QString &pfad)
{
    return ablage().wert(pfad);
}

void setzen(const QString &pfad, const QString &text)
{
    ablage().setWert(pfad, text);
}

bool ablegen()
{
    return ablage().sichern();
}

void nachsehen()
{
    ablage().auffrischen();
}

QString ablageort()
{
    return QDir::toNativeSeparators(ablage().pfad());
}

#endif

QString pfad(QStringView schluessel, QStringView name)
{
    return schluessel.toString().replace(u'\\', u'/') + u'/' + name.toString();
}

} // namespace

void RegWertSchreiben(QStringView schluessel, QStringView name, const QString &text)
{
    // What stands there already is not written again: a start without news leaves the file alone.
    if (RegWertLesen(schluessel, name) != text || !vorhanden(schluessel, name))
        setzen(pfad(schluessel, name), text);
}

QString RegWertLesen(QStringView schluessel, QStringView name)
{
    QString text = lesen(pfad(schluessel, name));
    if (text.isNull())
        return text;
    text.truncate(groessterWert);
    if (const qsizetype ende = text.indexOf(QChar::Null); ende >= 0)
        text.truncate(ende);
    return text.isNull() ? QStringLiteral("") : text;
}

QString RegWertOderVorgabe(QStringView schluessel, QStringView name, const QString &vorgabe)
{
    const QString text = RegWertLesen(schluessel, name);
    return text.isEmpty() || text <= QStringLiteral(" ") ? vorgabe : text;
}

bool vorhanden(QStringView schluessel, QStringView name)
{
    return !RegWertLesen(schluessel, name).isNull();
}

void auffrischen()
{
    nachsehen();
}

QString ort()
{
    return ablageort();
}

bool sichern()
{
    return ablegen();
}

} // namespace registry
