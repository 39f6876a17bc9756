#include "controls/Steuerelemente.h"
#include "frame/Aussehen.h"
#include "frame/Farbschema.h"
#include "plantwindows/Pflanzenfenster.h"
#include "Rahmenprobe.h"

#include <QApplication>
#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QDBusVirtualObject>
#include <QProcess>
#include <QSemaphore>
#include <QSignalSpy>
#include <QTest>
#include <QThread>

#include <cmath>

using namespace Qt::StringLiterals;

/* Light and dark: which one the desktop asks for, and that both can be read. */

namespace {

/// As the web's guidelines reckon it, 1 to 21.
double kontrast(const QColor &a, const QColor &b)
{
    const auto helligkeit = [](const QColor &farbe) {
        const auto linear = [](double anteil) { return anteil <= 0.04045 ? anteil / 12.92 : std::pow((anteil + 0.055) / 1.055, 2.4); };
        return 0.2126 * linear(farbe.redF()) + 0.7152 * linear(farbe.greenF()) + 0.0722 * linear(farbe.blueF());
    };
    const double x = helligkeit(a), y = helligkeit(b);
    return (std::max(x, y) + 0.05) / (std::min(x, y) + 0.05);
}

/// What a desktop portal answers.
class Portal : public QDBusVirtualObject
{
public:
    Portal(uint zahl, bool doppelt) : zahl_(zahl), doppelt_(doppelt) {}
    QString introspect(const QString &) const override { return {}; }
    bool handleMessage(const QDBusMessage &nachricht, const QDBusConnection &bus) override
    {
        if (nachricht.member() != u"Read")
            return false;
        const QVariant wert = QVariant::fromValue(QDBusVariant(zahl_));
        bus.send(nachricht.createReply(doppelt_ ? QVariant::fromValue(QDBusVariant(wert)) : wert));
        return true;
    }

private:
    uint zahl_;
    bool doppelt_; ///< wraps the value twice, as the old call does
};

/// A portal answers from a thread of its own: who asks waits for it.
class Portalfaden : public QThread
{
public:
    Portalfaden(uint zahl, bool doppelt) : zahl_(zahl), doppelt_(doppelt)
    {
        start();
        bereit_.acquire();
    }
    ~Portalfaden() override
    {
        quit();
        wait();
    }

protected:
    void run() override
    {
        Portal portal(zahl_, doppelt_);
        {
            QDBusConnection bus = QDBusConnection::connectToBus(qEnvironmentVariable("DBUS_SESSION_BUS_ADDRESS"), u"portal"_s);
            if (!bus.registerVirtualObject(u"/org/freedesktop/portal/desktop"_s, &portal)
                || !bus.registerService(u"org.freedesktop.portal.Desktop"_s))
                qFatal("No portal can be offered.");
            bereit_.release();
            exec();
            bus.unregisterObject(u"/org/freedesktop/portal/desktop"_s);
        }
        QDBusConnection::disconnectFromBus(u"portal"_s);
    }

private:
    uint zahl_;
    bool doppelt_;
    QSemaphore bereit_;
};

} // namespace

class TestFarbschema : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanupTestCase();
    void wechselKommtAn();
    void allesIstLesbar_data();
    void allesIstLesbar();
    void farbfelderBleibenWahr();
    void ohnePortalZaehltDiePalette_data();
    void ohnePortalZaehltDiePalette();
    void portalEntscheidet_data();
    void portalEntscheidet();
    void fensterFolgen();

private:
    QProcess bus_;
};

void TestFarbschema::initTestCase()
{
    // A bus of the test's own: the user's desktop is not asked.
    bus_.start(u"dbus-daemon"_s, {u"--session"_s, u"--nofork"_s, u"--print-address"_s});
    QVERIFY2(bus_.waitForReadyRead(5000), "dbus-daemon does not start");
    qputenv("DBUS_SESSION_BUS_ADDRESS", bus_.readLine().trimmed());
}

void TestFarbschema::cleanupTestCase()
{
    bus_.kill();
    bus_.waitForFinished();
}

/// First of all, as in the program: nothing has been said on the bus before.
void TestFarbschema::wechselKommtAn()
{
    Farbschema schema;
    QSignalSpy gehoert(&schema, &Farbschema::gewechselt);
    QDBusConnection anderer = QDBusConnection::connectToBus(qEnvironmentVariable("DBUS_SESSION_BUS_ADDRESS"), u"portal"_s);
    QVERIFY(anderer.registerService(u"org.freedesktop.portal.Desktop"_s));
    // An answer on the connection that listens: what it asked the bus for before has arrived there.
    QVERIFY(QDBusConnection::sessionBus().interface()->isServiceRegistered(u"org.freedesktop.portal.Desktop"_s));
    const auto melden = [&](const QString &bereich, const QString &name, uint zahl) {
        QDBusMessage signal =
            QDBusMessage::createSignal(u"/org/freedesktop/portal/desktop"_s, u"org.freedesktop.portal.Settings"_s, u"SettingChanged"_s);
        signal << bereich << name << QVariant::fromValue(QDBusVariant(zahl));
        QVERIFY(anderer.send(signal));
    };
    melden(u"org.freedesktop.appearance"_s, u"accent-color"_s, 1);
    melden(u"org.freedesktop.appearance"_s, u"color-scheme"_s, 1);
    QTRY_COMPARE(gehoert.size(), 1);
    QCOMPARE(gehoert[0][0].toBool(), true);
    melden(u"org.freedesktop.appearance"_s, u"color-scheme"_s, 2);
    QTRY_COMPARE(gehoert.size(), 2);
    QCOMPARE(gehoert[1][0].toBool(), false);
    QDBusConnection::disconnectFromBus(u"portal"_s);
}

void TestFarbschema::allesIstLesbar_data()
{
    QTest::addColumn<int>("schema");
    QTest::newRow("light") << int(aussehen::Schema::Hell);
    QTest::newRow("dark") << int(aussehen::Schema::Dunkel);
}

void TestFarbschema::allesIstLesbar()
{
    QFETCH(int, schema);
    const auto paare = aussehen::farbpaare(aussehen::Schema(schema));
    QVERIFY(paare.size() > 80);
    for (const aussehen::Farbpaar &paar : paare)
        QVERIFY2(kontrast(paar.schrift, paar.grund) >= 4.5,
                 qPrintable(u"%1: %2 on %3 is %4 : 1"_s.arg(QLatin1String(paar.wo), paar.schrift.name(), paar.grund.name())
                                .arg(kontrast(paar.schrift, paar.grund), 0, 'f', 2)));
}

/// A colour that a plant has is painted as it is in both.
void TestFarbschema::farbfelderBleibenWahr()
{
    for (const auto schema : {aussehen::Schema::Hell, aussehen::Schema::Dunkel}) {
        aussehen::anwenden(schema);
        Farbzelle zelle(false, nullptr);
        zelle.setMass({40, 40});
        zelle.resize(40, 40);
        zelle.setBackColor(0x2040f0); // red f0, green 40, blue 20
        QCOMPARE(zelle.grab().toImage().pixelColor(20, 20), QColor(0xf0, 0x40, 0x20));
    }
}

void TestFarbschema::ohnePortalZaehltDiePalette_data()
{
    QTest::addColumn<bool>("dunkel");
    QTest::newRow("light") << false;
    QTest::newRow("dark") << true;
}

void TestFarbschema::ohnePortalZaehltDiePalette()
{
    QFETCH(bool, dunkel);
    QApplication::setPalette(aussehen::palette(dunkel ? aussehen::Schema::Dunkel : aussehen::Schema::Hell));
    QCOMPARE(Farbschema().dunkel(), dunkel);
}

void TestFarbschema::portalEntscheidet_data()
{
    QTest::addColumn<uint>("zahl");
    QTest::addColumn<bool>("palette");
    QTest::addColumn<bool>("dunkel");
    QTest::newRow("no preference, light desktop") << 0u << false << false;
    QTest::newRow("no preference, dark desktop") << 0u << true << true;
    QTest::newRow("dark") << 1u << false << true;
    QTest::newRow("light on a dark desktop") << 2u << true << false;
    QTest::newRow("unknown number") << 77u << false << false;
}

void TestFarbschema::portalEntscheidet()
{
    QFETCH(uint, zahl);
    QFETCH(bool, palette);
    QApplication::setPalette(aussehen::palette(palette ? aussehen::Schema::Dunkel : aussehen::Schema::Hell));
    for (const bool doppelt : {true, false}) {
        const Portalfaden portal(zahl, doppelt);
        QTEST(Farbschema().dunkel(), "dunkel");
    }
}

/// An open window takes the other colours at once: record, bar, surface.
void TestFarbschema::fensterFolgen()
{
    aussehen::anwenden(aussehen::Schema::Hell);
    Rahmenprobe probe;
    probe.laden();
    probe.waehlen("mnudbtopfpflanzen");
    QVERIFY(probe.fenster(1));
    const auto helligkeit = [&] {
        // Mean of the whole picture.
        const QImage bild = probe.zentrale->grab().toImage().scaled(1, 1, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
        return bild.pixelColor(0, 0).lightness();
    };
    const int hell = helligkeit();
    aussehen::anwenden(aussehen::Schema::Dunkel);
    QTRY_VERIFY2(helligkeit() < 100, qPrintable(QString::number(helligkeit())));
    QCOMPARE(probe.fenster(1)->palette().color(QPalette::Window), aussehen::palette(aussehen::Schema::Dunkel).color(QPalette::Window));
    aussehen::anwenden(aussehen::Schema::Hell);
    QTRY_COMPARE(helligkeit(), hell);
}

QTEST_MAIN(TestFarbschema)
#include "tst_farbschema.moc"
