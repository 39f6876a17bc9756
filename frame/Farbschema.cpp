#include "Farbschema.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QGuiApplication>
#include <QPalette>
#include <QSettings>

namespace {

const QString dienst = QStringLiteral("org.freedesktop.portal.Desktop");
const QString portalpfad = QStringLiteral("/org/freedesktop/portal/desktop");
const QString schnittstelle = QStringLiteral("org.freedesktop.portal.Settings");
const QString bereichName = QStringLiteral("org.freedesktop.appearance");
const QString schluessel = QStringLiteral("color-scheme");
constexpr int geduld = 1000; // milliseconds

/// The portal's number: 1 dark, 2 light, 0 and all others no preference.
bool dunkelNach(uint zahl, bool sonst)
{
    return zahl == 1 || (zahl != 2 && sonst);
}

/// A value may come wrapped in others.
QVariant ausgepackt(QVariant wert)
{
    while (wert.userType() == qMetaTypeId<QDBusVariant>())
        wert = wert.value<QDBusVariant>().variant();
    return wert;
}

} // namespace

Farbschema::Farbschema(QObject *eltern) : QObject(eltern)
{
    const QPalette desktop = QGuiApplication::palette();
    palette_ = desktop.color(QPalette::Window).lightness() < desktop.color(QPalette::WindowText).lightness();
#ifdef Q_OS_WIN
    const QSettings einstellung(QStringLiteral("HKEY_CURRENT_USER\\Software\\Microsoft\\Windows\\CurrentVersion\\Themes\\Personalize"),
                                QSettings::NativeFormat);
    palette_ = einstellung.value(QStringLiteral("AppsUseLightTheme"), 1).toInt() == 0;
#endif
    QDBusConnection bus = QDBusConnection::sessionBus();
    qRegisterMetaType<QDBusVariant>(); // else the slot is not found until a message with one has gone out
    // From whoever owns the path: by name, what comes before the bus has told the name's new owner would be dropped.
    if (bus.isConnected())
        bus.connect({}, portalpfad, schnittstelle, QStringLiteral("SettingChanged"), this, SLOT(portalGemeldet(QString, QString, QDBusVariant)));
}

bool Farbschema::dunkel()
{
    QDBusConnection bus = QDBusConnection::sessionBus();
    if (!bus.isConnected())
        return palette_;
    QDBusMessage frage = QDBusMessage::createMethodCall(dienst, portalpfad, schnittstelle, QStringLiteral("Read"));
    frage << bereichName << schluessel;
    const QDBusMessage antwort = bus.call(frage, QDBus::Block, geduld);
    if (antwort.type() != QDBusMessage::ReplyMessage || antwort.arguments().isEmpty())
        return palette_;
    return dunkelNach(ausgepackt(antwort.arguments().first()).toUInt(), palette_);
}

void Farbschema::portalGemeldet(const QString &bereich, const QString &name, const QDBusVariant &wert)
{
    if (bereich == bereichName && name == schluessel)
        emit gewechselt(dunkelNach(ausgepackt(wert.variant()).toUInt(), palette_));
}
