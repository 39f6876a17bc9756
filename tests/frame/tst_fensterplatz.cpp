#include "Rahmenprobe.h"

#include "frame/Aussehen.h"
#include "frame/Einstellungen.h"
#include "frame/Flaeche.h"
#include "frame/frmDBWahl.h"
#include "plantwindows/Pflanzenfenster.h"
#include "tests/Testprogramm.h"

#include <QMdiSubWindow>
#include <QSignalSpy>
#include <QTest>
#include <QToolButton>

using namespace Qt::StringLiterals;

/* Where plant windows stand and how large they are, the chooser by keyboard, and the program's own colours. */

class TestFensterplatz : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void liegtInDerFlaeche_data();
    void liegtInDerFlaeche();
    void hauptfensterWirdErstSpaeterKlein();
    void vomBenutzerBewegtesBleibt();
    void groesseBleibt();
    void zustandBleibt();
    void anordnenIstKeineGroesse();
    void unsinnigeGroesse_data();
    void unsinnigeGroesse();
    void gekachelt_data();
    void gekachelt();
    void wahlMitDerTastatur_data();
    void wahlMitDerTastatur();
    void dunkleUmgebung();

private:
    QMdiSubWindow *erstes() { return probe_->unterfenster().first(); }
    QRect flaeche() { return probe_->zentrale->findChild<Flaeche *>()->viewport()->rect(); }

    std::unique_ptr<Rahmenprobe> probe_;
};

void TestFensterplatz::init()
{
    probe_.reset();
    probe_ = std::make_unique<Rahmenprobe>();
    probe_->programm.MdiStatus = 0;
}

void TestFensterplatz::liegtInDerFlaeche_data()
{
    QTest::addColumn<QSize>("schirm");
    for (const QSize schirm : {QSize(800, 560), QSize(1024, 700), QSize(1280, 720), QSize(1366, 768), QSize(1920, 1080)})
        QTest::addRow("%dx%d", schirm.width(), schirm.height()) << schirm;
}

void TestFensterplatz::liegtInDerFlaeche()
{
    QFETCH(QSize, schirm);
    probe_->programm.MdiBreite = schirm.width() * 15;
    probe_->programm.MdiHoehe = schirm.height() * 15;
    probe_->laden();
    for (int i = 0; i < 4; ++i)
        probe_->waehlen("mnudbtopfpflanzen");
    QCoreApplication::processEvents();
    for (const QMdiSubWindow *fenster : probe_->unterfenster())
        QVERIFY2(flaeche().contains(fenster->geometry()), qPrintable(fenster->windowTitle()));
}

/// A window manager gives the main window its size after the first plant window has been placed.
void TestFensterplatz::hauptfensterWirdErstSpaeterKlein()
{
    probe_->programm.MdiBreite = 1900 * 15;
    probe_->programm.MdiHoehe = 1200 * 15;
    probe_->laden();
    probe_->waehlen("mnudbtopfpflanzen");
    probe_->zentrale->resize(1366, 740);
    QCoreApplication::processEvents();
    QVERIFY(flaeche().contains(erstes()->geometry()));
    probe_->zentrale->resize(1600, 1000);
    QCoreApplication::processEvents();
    QVERIFY(flaeche().contains(erstes()->geometry()));
    QVERIFY(erstes()->width() > 1366);
    QCOMPARE(probe_->programm.PflanzenfensterMass, u"0 0 0"_s);
}

void TestFensterplatz::vomBenutzerBewegtesBleibt()
{
    probe_->laden();
    probe_->waehlen("mnudbtopfpflanzen");
    const QRect eigen(50, 60, 700, 420);
    erstes()->setGeometry(eigen);
    probe_->zentrale->resize(1100, 720);
    QCoreApplication::processEvents();
    QCOMPARE(erstes()->geometry(), eigen);
}

void TestFensterplatz::groesseBleibt()
{
    probe_->laden();
    probe_->waehlen("mnudbtopfpflanzen");
    erstes()->resize(760, 470);
    QCoreApplication::processEvents();
    QCOMPARE(probe_->programm.PflanzenfensterMass, u"%1 %2 0"_s.arg(760 * 15).arg(470 * 15));
    probe_->zentrale->close();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    // The next run reads it, and its windows have it.
    Programm naechster = probe_->ordner.programm();
    EinstellungenLesen(naechster);
    QCOMPARE(naechster.PflanzenfensterMass, u"%1 %2 0"_s.arg(760 * 15).arg(470 * 15));
    naechster.MdiStatus = 0;
    mdiZentral zentrale(naechster);
    zentrale.show();
    QVERIFY(QTest::qWaitForWindowExposed(&zentrale));
    zentrale.FensterOeffnen(Sparte::Apfel);
    QCOMPARE(zentrale.findChild<QMdiSubWindow *>()->size(), QSize(760, 470));
}

void TestFensterplatz::zustandBleibt()
{
    probe_->laden();
    probe_->waehlen("mnudbtopfpflanzen");
    erstes()->showMaximized();
    QCoreApplication::processEvents();
    QVERIFY(probe_->programm.PflanzenfensterMass.endsWith(u" 2"_s));
    probe_->schliessen(1);
    QVERIFY(probe_->programm.PflanzenfensterMass.endsWith(u" 2"_s));
    probe_->waehlen("mnudbapfel");
    QCoreApplication::processEvents();
    QVERIFY(erstes()->isMaximized());
    erstes()->showNormal();
    QCoreApplication::processEvents();
    QVERIFY(probe_->programm.PflanzenfensterMass.endsWith(u" 0"_s));
    QVERIFY(flaeche().contains(erstes()->geometry()));
}

void TestFensterplatz::anordnenIstKeineGroesse()
{
    probe_->programm.PflanzenfensterMass = u"11250 7050 0"_s;
    probe_->laden();
    probe_->waehlen("mnudbtopfpflanzen");
    probe_->waehlen("mnudbapfel");
    for (const char *eintrag : {"mnuNebeneinander", "mnuUntereinander", "mnuUeberlappend"}) {
        probe_->waehlen(eintrag);
        QCoreApplication::processEvents();
        QCOMPARE(probe_->programm.PflanzenfensterMass, u"11250 7050 0"_s);
    }
}

void TestFensterplatz::unsinnigeGroesse_data()
{
    QTest::addColumn<QString>("mass");
    for (const char *mass : {"", "x", "1 2", "-500 -500 0", "999999999 999999999 0", "nan inf 7", "0 9000 0", "1 2 3 4"})
        QTest::addRow("'%s'", mass) << QString::fromLatin1(mass);
}

void TestFensterplatz::unsinnigeGroesse()
{
    QFETCH(QString, mass);
    probe_->programm.PflanzenfensterMass = mass;
    probe_->laden();
    probe_->waehlen("mnudbtopfpflanzen");
    QVERIFY(flaeche().contains(erstes()->geometry()));
    QVERIFY(erstes()->width() >= 600 && erstes()->height() >= 400);
}

void TestFensterplatz::gekachelt_data()
{
    QTest::addColumn<QByteArray>("eintrag");
    QTest::addColumn<int>("anzahl");
    for (const char *eintrag : {"mnuNebeneinander", "mnuUntereinander"})
        for (const int anzahl : {2, 3, 4})
            QTest::addRow("%s %d", eintrag, anzahl) << QByteArray(eintrag) << anzahl;
}

void TestFensterplatz::gekachelt()
{
    QFETCH(QByteArray, eintrag);
    QFETCH(int, anzahl);
    probe_->programm.MdiBreite = 1024 * 15;
    probe_->programm.MdiHoehe = 700 * 15;
    probe_->laden();
    for (int i = 0; i < anzahl; ++i)
        probe_->waehlen("mnudbtopfpflanzen");
    probe_->waehlen(eintrag.constData());
    QCoreApplication::processEvents();
    for (int nummer = 1; nummer <= anzahl; ++nummer) {
        Pflanzenfenster *form = probe_->fenster(nummer);
        QVERIFY(flaeche().contains(form->parentWidget()->geometry()));
        for (const char *name : {"cmdFirst", "cmdLast", "cmdFilter", "cmdDruck", "stbAnzeige_4"}) {
            auto *control = form->findChild<QWidget *>(QString::fromLatin1(name));
            QVERIFY2(control->isVisible() && form->rect().contains(QRect(control->mapTo(form, QPoint()), control->size())), name);
        }
    }
}

void TestFensterplatz::wahlMitDerTastatur_data()
{
    QTest::addColumn<int>("taste");
    QTest::addColumn<int>("gewaehlt");
    QTest::newRow("Enter") << int(Qt::Key_Return) << 1;
    QTest::newRow("Enter of the number pad") << int(Qt::Key_Enter) << 1;
    QTest::newRow("Space") << int(Qt::Key_Space) << 1;
    QTest::newRow("Esc") << int(Qt::Key_Escape) << 0;
}

void TestFensterplatz::wahlMitDerTastatur()
{
    QFETCH(int, taste);
    QFETCH(int, gewaehlt);
    frmDBWahl wahl(probe_->programm);
    QSignalSpy signal(&wahl, &frmDBWahl::gewaehlt);
    wahl.show();
    wahl.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&wahl));
    wahl.findChild<QToolButton *>(u"cmdApfel"_s)->setFocus();
    QTest::keyClick(QApplication::focusWidget(), Qt::Key(taste));
    QCOMPARE(signal.count(), gewaehlt);
    QVERIFY(!wahl.isVisible());
}

void TestFensterplatz::dunkleUmgebung()
{
    const QPalette vorher = QApplication::palette();
    QPalette dunkel;
    for (int rolle = 0; rolle < QPalette::NColorRoles; ++rolle)
        for (const QPalette::ColorGroup zustand : {QPalette::Active, QPalette::Inactive, QPalette::Disabled})
            dunkel.setColor(zustand, QPalette::ColorRole(rolle), Qt::black);
    QApplication::setPalette(dunkel);
    aussehen::anwenden();
    for (int rolle = 0; rolle < QPalette::NColorRoles; ++rolle)
        for (const QPalette::ColorGroup zustand : {QPalette::Active, QPalette::Inactive, QPalette::Disabled})
            if (rolle != QPalette::NoRole)
                QVERIFY2(QApplication::palette().color(zustand, QPalette::ColorRole(rolle)) != QColor(Qt::black), qPrintable(QString::number(rolle)));
    QApplication::setPalette(vorher);
}

FLOX_TEST(tst_fensterplatz, TestFensterplatz)
#include "tst_fensterplatz.moc"
