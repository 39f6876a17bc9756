#include "controls/Spalten.h"
#include "controls/Steuerelemente.h"
#include "controls/Textkasten.h"
#include "frame/Aussehen.h"
#include "frame/Farbschema.h"
#include "plantwindows/Pflanzenfenster.h"
#include "tests/Testprogramm.h"
#include "Rahmenprobe.h"

#include <QApplication>
#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QDBusVirtualObject>
#include <QGroupBox>
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
    void markenWerdenGemalt();
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

/// What rooms mark by properties is seen, in both schemes and after a change from one to the other.
void TestFarbschema::markenWerdenGemalt()
{
    struct Farben
    {
        aussehen::Schema schema;
        QColor karte, rand, titel, anders, fokus;
    };
    const Farben farben[] = {{aussehen::Schema::Hell, 0xffffff, 0xd5dcd0, 0x2f6b3a, 0xfdf0c4, 0x233326},
                             {aussehen::Schema::Dunkel, 0x262d28, 0x3c463f, 0x8fd19a, 0x433c1d, 0xe3e9e1}};
    aussehen::anwenden(farben[1].schema);
    QWidget fenster;
    auto *aussen = new QVBoxLayout(&fenster);
    auto *karte = new QFrame(&fenster);
    karte->setProperty("karte", true);
    aussen->addWidget(karte);
    auto *innen = new QVBoxLayout(karte);
    const auto schild = [&](const char *marke) {
        auto *neu = new QLabel(u"MMMMMM"_s, karte);
        neu->setProperty(marke, true);
        innen->addWidget(neu);
        return neu;
    };
    QLabel *gruppentitel = schild("gruppentitel"), *feldtitel = schild("feldtitel"), *verschieden = schild("verschieden"),
           *gross = schild("gruppentitel");
    verschieden->setAttribute(Qt::WA_StyledBackground);
    QFont schrift = gross->font();
    schrift.setPointSizeF(30);
    gross->setFont(schrift);
    auto *kasten = new Textkasten(karte), *anders = new Textkasten(karte);
    anders->setProperty("verschieden", true);
    auto *rolle = new QScrollArea(karte);
    rolle->setWidget(new QWidget);
    rolle->setWidgetResizable(true);
    durchscheinen(*rolle);
    innen->addWidget(rolle);
    auto *gruppe = new QGroupBox(u"MMMMMM"_s, &fenster);
    gruppe->setProperty("karte", true);
    auto *ingruppe = new QVBoxLayout(gruppe);
    ingruppe->addWidget(new QCheckBox(u"Kästchen"_s, gruppe));
    for (QWidget *teil : {kasten, anders})
        innen->addWidget(teil);
    aussen->addWidget(gruppe);
    fenster.resize(300, 500);
    fenster.show();
    QApplication::setActiveWindow(&fenster);
    for (const Farben &gilt : farben) {
        aussehen::anwenden(gilt.schema);
        QCoreApplication::processEvents();
        fenster.setFocus();
        QImage bild = fenster.grab().toImage();
        const auto farbe = [&](const QWidget *teil, QPoint stelle) { return bild.pixelColor(teil->mapTo(&fenster, stelle)); };
        const auto hat = [&](const QWidget *teil, QColor gesucht) {
            for (int y = 0; y < teil->height(); ++y)
                for (int x = 0; x < teil->width(); ++x)
                    if (farbe(teil, {x, y}) == gesucht)
                        return true;
            return false;
        };
        const QColor grund = QApplication::palette().color(QPalette::Window);
        for (const QWidget *eine : std::initializer_list<const QWidget *>{karte, gruppe}) {
            QCOMPARE(farbe(eine, {0, 0}), grund); // rounded
            QCOMPARE(farbe(eine, {eine->width() / 2, 0}), gilt.rand);
            QCOMPARE(farbe(eine, {eine->width() - 5, eine->height() / 2}), gilt.karte);
        }
        QCOMPARE(farbe(rolle->widget(), rolle->widget()->rect().center()), gilt.karte);
        QVERIFY(hat(gruppentitel, gilt.titel));
        QVERIFY(hat(gruppe, gilt.titel));
        QVERIFY(hat(feldtitel, QApplication::palette().color(QPalette::PlaceholderText)));
        QVERIFY(!hat(feldtitel, gilt.titel));
        QCOMPARE(farbe(verschieden, {verschieden->width() - 3, verschieden->height() / 2}), gilt.anders);
        QCOMPARE(farbe(anders->viewport(), {anders->viewport()->width() / 2, 2}), gilt.anders);
        QCOMPARE(farbe(kasten->viewport(), {kasten->viewport()->width() / 2, 2}), QApplication::palette().color(QPalette::Base));
        QCOMPARE(farbe(kasten, {kasten->width() / 2, 0}), gilt.rand);
        kasten->setFocus();
        QVERIFY(kasten->hasFocus());
        bild = fenster.grab().toImage();
        for (const int tiefe : {0, 1})
            QCOMPARE(farbe(kasten, {kasten->width() / 2, tiefe}), gilt.fokus);
    }
    // The weight is a title's own, its size is not, unless it was given one.
    QVERIFY(gruppentitel->font().bold());
    QVERIFY(gross->font().bold());
    QVERIFY(!feldtitel->font().bold());
    schrift = karte->font();
    schrift.setPointSizeF(17);
    karte->setFont(schrift);
    QCOMPARE(gruppentitel->font().pointSizeF(), 17.0);
    QCOMPARE(gross->font().pointSizeF(), 30.0);
    QVERIFY(gruppentitel->font().bold());
    // A title that is wider than what stands below it has room.
    gruppe->setTitle(u"M"_s.repeated(60));
    schrift = gruppe->font();
    schrift.setBold(true);
    QVERIFY(gruppe->minimumSizeHint().width() >= QFontMetrics(schrift).horizontalAdvance(gruppe->title()));
    // What no longer differs looks as before.
    anders->setProperty("verschieden", false);
    anders->style()->polish(anders);
    QCOMPARE(anders->grab().toImage().pixelColor(anders->width() / 2, 6), QApplication::palette().color(QPalette::Base));
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

FLOX_TEST(tst_farbschema, TestFarbschema)
#include "tst_farbschema.moc"
