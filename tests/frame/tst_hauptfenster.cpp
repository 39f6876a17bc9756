#include "Rahmenprobe.h"

#include "frame/Aussehen.h"
#include "frame/Einstellungen.h"
#include "frame/Flaeche.h"
#include "frame/Registry.h"
#include "frame/frmBenutzer.h"
#include "pictures/frmBilder.h"
#include "plantwindows/Pflanzenfenster.h"
#include "printing/Druckgeraet.h"
#include "printing/frmDrucken.h"
#include "tests/Testprogramm.h"

#include <QPainter>
#include <QGroupBox>
#include <QMdiSubWindow>
#include <QSignalSpy>
#include <QStyle>
#include <QTest>

using namespace Qt::StringLiterals;

/* The main window's own area under the mouse, and sizes out of the settings that no window can have. */

namespace {

const QString mdi = u"Software\\FH Lindenhof\\FLOX3-DEMO\\MDI"_s, bilderzweig = u"Software\\FH Lindenhof\\FLOX3-DEMO\\Bilder"_s;

} // namespace

class TestHauptfenster : public QObject
{
    Q_OBJECT

private slots:
    void init() { probe_ = std::make_unique<Rahmenprobe>(); }
    void cleanup() { probe_.reset(); }
    void rechtsklickImPflanzenfenster_data();
    void rechtsklickImPflanzenfenster();
    void groesseDesHauptfensters_data();
    void groesseDesHauptfensters();
    void geaenderteGroesse();
    void verschwundenerSchirm();
    void groesseDesBilderfensters_data();
    void groesseDesBilderfensters();
    void hintergrundFuelltDieFlaeche_data();
    void hintergrundFuelltDieFlaeche();
    void dialogeImAussehenDesHauses();

private:
    std::unique_ptr<Rahmenprobe> probe_;
};

void TestHauptfenster::rechtsklickImPflanzenfenster_data()
{
    QTest::addColumn<Qt::KeyboardModifiers>("tasten");
    QTest::addColumn<QString>("zustand");
    for (const char *zustand : {"normal", "gesperrt", "minimiert"}) {
        QTest::addRow("right, %s", zustand) << Qt::KeyboardModifiers() << QString::fromLatin1(zustand);
        QTest::addRow("Ctrl + right, %s", zustand) << Qt::KeyboardModifiers(Qt::ControlModifier) << QString::fromLatin1(zustand);
    }
}

void TestHauptfenster::rechtsklickImPflanzenfenster()
{
    QFETCH(const Qt::KeyboardModifiers, tasten);
    QFETCH(const QString, zustand);
    probe_->programm.MdiStatus = 0;
    probe_->laden();
    probe_->waehlen("mnudbtopfpflanzen");
    QWidget *unterfenster = probe_->unterfenster().constFirst();
    if (zustand == u"minimiert")
        unterfenster->showMinimized();
    if (zustand == u"gesperrt")
        probe_->zentrale->FensterSperren(Sparte::Topf);
    QSignalSpy wahl(probe_->zentrale.get(), &mdiZentral::wahlGewuenscht);
    Meldungsfaenger meldungen;
    // Everywhere: title bar, border, empty places of the record, controls, the note.
    int stellen = 0;
    QList<QWidget *> alle{unterfenster};
    alle += unterfenster->findChildren<QWidget *>();
    for (QWidget *eines : alle)
        if (eines->isVisible() && !eines->isWindow() && !eines->visibleRegion().isEmpty()) {
            QTest::mousePress(eines, Qt::RightButton, tasten, eines->visibleRegion().begin()->center());
            QTest::mouseRelease(eines, Qt::RightButton, tasten, eines->visibleRegion().begin()->center());
            QVERIFY2(wahl.isEmpty() && meldungen.texte.isEmpty() && !probe_->programm.HausModus, QTest::toString(eines));
            ++stellen;
        }
    QVERIFY2(stellen > (zustand == u"minimiert" ? 0 : 30), QByteArray::number(stellen));
    // Beside it the area is the main window's own.
    QWidget *flaeche = probe_->zentrale->findChild<Flaeche *>()->viewport();
    unterfenster->move(120, 120);
    QTest::mousePress(flaeche, Qt::RightButton, tasten, QPoint(5, 5));
    QCOMPARE(wahl.count(), tasten ? 0 : 1);
    QCOMPARE(probe_->programm.HausModus, bool(tasten));
}

void TestHauptfenster::groesseDesHauptfensters_data()
{
    QTest::addColumn<QString>("breite"); // twips
    QTest::addColumn<QString>("hoehe");
    QTest::addColumn<QSize>("pixel");
    QTest::newRow("usual") << u"14000"_s << u"9007"_s << QSize(933, 600);
    QTest::newRow("smaller than the least") << u"15"_s << u"-300"_s << QSize(800, 560);
    QTest::newRow("largest width") << u"245760"_s << u"9000"_s << QSize(16384, 600);
    QTest::newRow("too wide by a twip") << u"245761"_s << u"9000"_s << QSize(16384, 600);
    QTest::newRow("gigabytes wide") << u"540000"_s << u"9000"_s << QSize(16384, 600);
    QTest::newRow("gigabytes high") << u"13500"_s << u"600000"_s << QSize(900, 16384);
    QTest::newRow("largest number") << u"2147483647"_s << u"9000"_s << QSize(16384, 600);
}

void TestHauptfenster::groesseDesHauptfensters()
{
    QFETCH(const QString, breite);
    QFETCH(const QString, hoehe);
    registry::RegWertSchreiben(mdi, u"Breite"_s, breite);
    registry::RegWertSchreiben(mdi, u"Hoehe"_s, hoehe);
    registry::RegWertSchreiben(mdi, u"Links"_s, u"467"_s); // no whole pixel
    registry::RegWertSchreiben(mdi, u"Status"_s, u"0"_s);
    EinstellungenLesen(probe_->programm);
    probe_->laden();
    QTEST(probe_->zentrale->size(), "pixel");
    probe_->zentrale->close();
    // Nobody changed the window: the texts stay as they were.
    QCOMPARE(registry::RegWertLesen(mdi, u"Breite"_s), breite);
    QCOMPARE(registry::RegWertLesen(mdi, u"Hoehe"_s), hoehe);
    QCOMPARE(registry::RegWertLesen(mdi, u"Links"_s), u"467"_s);
}

void TestHauptfenster::geaenderteGroesse()
{
    probe_->programm.MdiStatus = 0;
    probe_->programm.MdiBreite = 540000;
    probe_->programm.MdiHoehe = 9007;
    probe_->laden();
    probe_->zentrale->resize(1000, 600);
    QTRY_COMPARE(probe_->zentrale->size(), QSize(1000, 600));
    probe_->zentrale->close();
    QCOMPARE(registry::RegWertLesen(mdi, u"Breite"_s), u"15000"_s);
    QCOMPARE(registry::RegWertLesen(mdi, u"Hoehe"_s), u"9007"_s); // 600 pixels as before
}

void TestHauptfenster::verschwundenerSchirm()
{
    probe_->programm.MdiStatus = 0;
    probe_->programm.MdiLinks = probe_->programm.MdiOben = 150000;
    probe_->laden();
    QCOMPARE(probe_->zentrale->pos(), QPoint(0, 0));
    probe_->zentrale->close();
    // The screen may come back.
    QCOMPARE(registry::RegWertLesen(mdi, u"Links"_s), u"150000"_s);
    QCOMPARE(registry::RegWertLesen(mdi, u"Oben"_s), u"150000"_s);
}

void TestHauptfenster::groesseDesBilderfensters_data()
{
    QTest::addColumn<QString>("breite"); // twips
    QTest::addColumn<QSize>("pixel");
    QTest::newRow("usual") << u"9000"_s << QSize(600, 500);
    QTest::newRow("no whole pixels") << u"9006.5"_s << QSize(600, 500);
    QTest::newRow("gigabytes wide") << u"600000"_s << QSize(16384, 500);
    QTest::newRow("largest number") << u"2147483647"_s << QSize(16384, 500);
}

void TestHauptfenster::groesseDesBilderfensters()
{
    QFETCH(const QString, breite);
    probe_->programm.MdiStatus = 0;
    registry::RegWertSchreiben(bilderzweig, u"BilderFormGroesseX"_s, breite);
    registry::RegWertSchreiben(bilderzweig, u"BilderFormGroesseY"_s, u"7503"_s);
    EinstellungenLesen(probe_->programm);
    probe_->laden();
    probe_->waehlen("mnudbtopfpflanzen");
    probe_->zentrale->bildZeigen();
    auto *bilder = probe_->zentrale->findChild<frmBilder *>();
    QVERIFY(bilder);
    QTEST(bilder->size(), "pixel");
    QTRY_VERIFY(!bilder->findChild<QTimer *>(u"timResize"_s)->isActive());
    const QString gemerkt = einstellungstext(probe_->programm, {"", "", &Programm::BilderFormBreite, ""});
    probe_->zentrale->close();
    QCOMPARE(registry::RegWertLesen(bilderzweig, u"BilderFormGroesseX"_s), gemerkt);
    QCOMPARE(gemerkt.toDouble(), breite.toDouble() > 1e7 ? 2147484000.0 : breite.toDouble()); // seven digits
    QCOMPARE(registry::RegWertLesen(bilderzweig, u"BilderFormGroesseY"_s), u"7503"_s);
}

void TestHauptfenster::hintergrundFuelltDieFlaeche_data()
{
    QTest::addColumn<QSize>("flaeche");
    QTest::newRow("wide") << QSize(1200, 600);
    QTest::newRow("very wide") << QSize(4000, 600);
    QTest::newRow("high") << QSize(800, 3000);
}

void TestHauptfenster::hintergrundFuelltDieFlaeche()
{
    QFETCH(const QSize, flaeche);
    // Four quarters: the middle of the area is the middle of the picture, and nothing stays without it.
    QPixmap bild(400, 300);
    QPainter maler(&bild);
    const QColor farben[] = {Qt::red, Qt::green, Qt::blue, Qt::yellow};
    for (int i = 0; i < 4; ++i)
        maler.fillRect(i % 2 * 200, i / 2 * 150, 200, 150, farben[i]);
    maler.end();
    Flaeche ziel(nullptr);
    ziel.setFrameShape(QFrame::NoFrame);
    ziel.setBild(bild);
    ziel.resize(flaeche);
    const QImage gemalt = ziel.grab().toImage();
    QCOMPARE(gemalt.size(), flaeche);
    const QPoint mitte(flaeche.width() / 2, flaeche.height() / 2);
    for (int i = 0; i < 4; ++i) {
        const int x = i % 2, y = i / 2;
        QCOMPARE(gemalt.pixelColor(x * (flaeche.width() - 1), y * (flaeche.height() - 1)), farben[i]);
        QCOMPARE(gemalt.pixelColor(mitte + QPoint(x ? 20 : -20, y ? 20 : -20)), farben[i]);
    }
}

void TestHauptfenster::dialogeImAussehenDesHauses()
{
    const QString stilVorher = qApp->style()->objectName();
    const QPalette farbenVorher = QApplication::palette();
    aussehen::anwenden();
    probe_->programm.AktiveSparte = u"Topf"_s;
    Systemdrucker drucker;
    frmDrucken drucken(
        probe_->programm, [] { return std::nullopt; }, drucker, nullptr);
    frmBenutzer namen(
        probe_->programm, [] {}, nullptr);
    for (QDialog *dialog : std::initializer_list<QDialog *>{&drucken, &namen}) {
        // A group is a white card with rounded edges and a green title, as everywhere.
        auto *gruppe = dialog->findChild<QGroupBox *>();
        QVERIFY(gruppe);
        const QImage bild = dialog->grab().toImage();
        const QRect karte = gruppe->geometry();
        QCOMPARE(bild.pixelColor(karte.right() - 20, karte.bottom() - 4), QColor(Qt::white));
        QCOMPARE(bild.pixelColor(karte.right() - 20, karte.bottom()), QColor(0xd5, 0xdc, 0xd0));
        QCOMPARE(bild.pixelColor(karte.topLeft()), QApplication::palette().color(QPalette::Window));
        bool gruen = false;
        for (int y = karte.top() + 1; y < karte.top() + 26; ++y)
            for (int x = karte.left() + 8; x < karte.right() - 8; ++x)
                gruen = gruen || bild.pixelColor(x, y) == QColor(0x2f, 0x6b, 0x3a);
        QVERIFY2(gruen, qPrintable(dialog->objectName()));
    }
    QApplication::setPalette(farbenVorher);
    QApplication::setStyle(stilVorher);
}

FLOX_TEST(tst_hauptfenster, TestHauptfenster)
#include "tst_hauptfenster.moc"
