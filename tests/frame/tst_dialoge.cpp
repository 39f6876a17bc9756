#include "Rahmenprobe.h"

#include "controls/Bilder.h"
#include "frame/frmBenutzer.h"
#include "frame/frmDBWahl.h"
#include "frame/frmStart.h"
#include "plantwindows/Beschreibung.h"
#include "plantwindows/Pflanzenfenster.h"
#include "tests/Testprogramm.h"

#include <QCheckBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QMdiSubWindow>
#include <QPushButton>
#include <QRadioButton>
#include <QToolButton>
#include <QSignalSpy>
#include <QTest>

#include <sqlite3.h>

using namespace Qt::StringLiterals;

/* The small windows around the main one: names of properties, chooser, splash. */

class TestDialoge : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void benutzerAufbau();
    void benutzerAuswaehlen();
    void benutzerSpeichern();
    void benutzerOK();
    void benutzerAbbrechen();
    void benutzerHoppla_data();
    void benutzerHoppla();
    void benutzerNichtSchreibbar();
    void benutzerBeschriftetDasFenster();
    void wahlAufbau();
    void wahlFensterAlleine();
    void wahlSparten_data();
    void wahlSparten();
    void wahlGehtWennSieNichtMehrVornIst();
    void startbild();
    void startZeit();

private:
    QString gespeichert(Sparte sparte, int zeile) { return probe_->ordner.programm().BenutzerNamen[size_t(sparte)][size_t(zeile)]; }

    std::unique_ptr<Rahmenprobe> probe_;
    std::unique_ptr<frmBenutzer> benutzer_;
    int umbenannt_ = 0;

    void benutzerOeffnen(const QString &sparte = u"Apfel"_s);
    void waehlen(int nummer) { benutzer_->findChild<QRadioButton *>(u"optEigen_%1"_s.arg(nummer))->click(); }
    void druecken(const char *name) { QTest::mouseClick(benutzer_->findChild<QPushButton *>(QLatin1String(name)), Qt::LeftButton); }
    QLineEdit *txtName() { return benutzer_->findChild<QLineEdit *>(u"txtName"_s); }
};

void TestDialoge::init()
{
    benutzer_.reset();
    probe_ = std::make_unique<Rahmenprobe>();
    umbenannt_ = 0;
}

void TestDialoge::benutzerOeffnen(const QString &sparte)
{
    probe_->programm.AktiveSparte = sparte;
    benutzer_ = std::make_unique<frmBenutzer>(
        probe_->programm, [this] { ++umbenannt_; }, nullptr);
    benutzer_->show();
}

void TestDialoge::benutzerAufbau()
{
    benutzerOeffnen();
    QCOMPARE(benutzer_->windowTitle(), u"Benutzerdefinierte Eigenschaften"_s);
    QCOMPARE(benutzer_->findChild<QGroupBox *>(u"fraEigenschaft"_s)->title(), u"Eigenschaft Nr"_s);
    QCOMPARE(benutzer_->findChildren<QRadioButton *>().size(), 5);
    for (const auto &[name, text] :
         {std::pair("cmdOK", u"OK"_s), std::pair("cmdSpeichern", u"Speichern"_s), std::pair("cmdAbbrechen", u"Abbrechen"_s)})
        QCOMPARE(benutzer_->findChild<QPushButton *>(QLatin1String(name))->text(), text);
    QStringList schilder;
    for (const auto *schild : benutzer_->findChildren<QLabel *>())
        schilder += schild->text();
    QVERIFY(schilder.contains(u"Name:"_s));
}

void TestDialoge::benutzerAuswaehlen()
{
    probe_->programm.BenutzerNamen[size_t(Sparte::Apfel)] = {u"eins"_s, u"zwei"_s, u""_s, u"vier"_s, u"fünf"_s};
    benutzerOeffnen();
    QCOMPARE(txtName()->text(), u"eins"_s);
    for (const int nummer : {4, 2, 1, 3, 0}) {
        waehlen(nummer);
        QCOMPARE(txtName()->text(), probe_->programm.BenutzerNamen[size_t(Sparte::Apfel)][size_t(nummer)]);
    }
    QCOMPARE(umbenannt_, 0);
}

void TestDialoge::benutzerSpeichern()
{
    benutzerOeffnen();
    waehlen(2);
    txtName()->setText(u"Schmeckt 'gut'; \"sehr\""_s);
    QCOMPARE(gespeichert(Sparte::Apfel, 2), u"Eigenschaft 3"_s);
    druecken("cmdSpeichern");
    QCOMPARE(umbenannt_, 1);
    QVERIFY(benutzer_->isVisible());
    QCOMPARE(gespeichert(Sparte::Apfel, 2), u"Schmeckt 'gut'; \"sehr\""_s);
    // No other name changes.
    for (const SpartenEintrag &sparte : alleSparten())
        for (int zeile = 0; zeile < 5; ++zeile)
            if (sparte.sparte != Sparte::Apfel || zeile != 2)
                QCOMPARE(gespeichert(sparte.sparte, zeile), u"Eigenschaft %1"_s.arg(zeile + 1));
    // An empty name is one too.
    txtName()->clear();
    druecken("cmdSpeichern");
    QCOMPARE(gespeichert(Sparte::Apfel, 2), QString());
    waehlen(0);
    waehlen(2);
    QCOMPARE(txtName()->text(), QString());
}

void TestDialoge::benutzerOK()
{
    benutzerOeffnen(u"Topf"_s);
    waehlen(4);
    txtName()->setText(u"Neu"_s);
    druecken("cmdOK");
    QVERIFY(!benutzer_->isVisible());
    QCOMPARE(gespeichert(Sparte::Topf, 4), u"Neu"_s);
    QCOMPARE(umbenannt_, 1);
}

void TestDialoge::benutzerAbbrechen()
{
    benutzerOeffnen();
    txtName()->setText(u"behalten"_s);
    druecken("cmdSpeichern");
    waehlen(1);
    txtName()->setText(u"verworfen"_s);
    druecken("cmdAbbrechen");
    QVERIFY(!benutzer_->isVisible());
    QCOMPARE(gespeichert(Sparte::Apfel, 0), u"behalten"_s);
    QCOMPARE(gespeichert(Sparte::Apfel, 1), u"Eigenschaft 2"_s);
    QCOMPARE(probe_->programm.BenutzerNamen[size_t(Sparte::Apfel)][1], u"Eigenschaft 2"_s);
}

void TestDialoge::benutzerHoppla_data()
{
    QTest::addColumn<QString>("sparte");
    for (const char *sparte : {"", "Quatsch", "topf"})
        QTest::newRow(sparte) << QString::fromLatin1(sparte);
}

void TestDialoge::benutzerHoppla()
{
    QFETCH(QString, sparte);
    benutzerOeffnen();
    probe_->programm.AktiveSparte = sparte;
    Meldungsfaenger meldungen;
    waehlen(3);
    QCOMPARE(meldungen.texte, QStringList{u"Hoppla"_s});
    QCOMPARE(txtName()->text(), u"Eigenschaft 1"_s);
    txtName()->setText(u"nirgends"_s);
    for (const char *taste : {"cmdSpeichern", "cmdOK"}) {
        meldungen.texte.clear();
        druecken(taste);
        QCOMPARE(meldungen.texte, QStringList{u"Hoppla"_s});
        // The event does nothing further.
        QVERIFY(benutzer_->isVisible());
    }
    QCOMPARE(umbenannt_, 0);
    QCOMPARE(gespeichert(Sparte::Apfel, 3), u"Eigenschaft 4"_s);
    druecken("cmdAbbrechen");
    QVERIFY(!benutzer_->isVisible());
}

void TestDialoge::benutzerNichtSchreibbar()
{
    benutzerOeffnen();
    txtName()->setText(u"geht nicht"_s);
    Meldungsfaenger meldungen;
    {
        sqlite3 *sperre = nullptr;
        QCOMPARE(sqlite3_open(probe_->ordner.datenbank().toUtf8().constData(), &sperre), SQLITE_OK);
        QCOMPARE(sqlite3_exec(sperre, "BEGIN IMMEDIATE", nullptr, nullptr, nullptr), SQLITE_OK);
        druecken("cmdOK");
        sqlite3_close_v2(sperre);
    }
    QCOMPARE(meldungen.texte.size(), 1);
    QVERIFY(benutzer_->isVisible());
    QCOMPARE(txtName()->text(), u"geht nicht"_s);
    QCOMPARE(probe_->programm.BenutzerNamen[size_t(Sparte::Apfel)][0], u"Eigenschaft 1"_s);
    QCOMPARE(umbenannt_, 0);
}

void TestDialoge::benutzerBeschriftetDasFenster()
{
    probe_->laden();
    probe_->waehlen("mnudbtopfpflanzen");
    probe_->waehlen("mnudbtopfpflanzen");
    const auto text = [&](int nummer) { return probe_->fenster(nummer)->findChild<QCheckBox *>(u"sschkBenutzer_1"_s)->text(); };
    // The dialog is modal: it is used while it waits.
    QStringList waehrenddessen;
    QTimer::singleShot(0, this, [&] {
        auto *dialog = QApplication::activeModalWidget();
        dialog->findChild<QRadioButton *>(u"optEigen_1"_s)->click();
        dialog->findChild<QLineEdit *>(u"txtName"_s)->setText(u"Hängend"_s);
        dialog->findChild<QPushButton *>(u"cmdSpeichern"_s)->click();
        waehrenddessen = {text(1), text(2)};
        dialog->findChild<QPushButton *>(u"cmdAbbrechen"_s)->click();
    });
    probe_->fenster(2)->findChild<QPushButton *>(u"cmdNamen"_s)->click();
    QCOMPARE(waehrenddessen, (QStringList{u"Eigenschaft 2"_s, u"Hängend"_s}));
    QCOMPARE(text(1), u"Hängend"_s);
    QCOMPARE(text(2), u"Hängend"_s);
    QCOMPARE(gespeichert(Sparte::Topf, 1), u"Hängend"_s);
}

void TestDialoge::wahlAufbau()
{
    frmDBWahl wahl(probe_->programm);
    QCOMPARE(wahl.windowTitle(), u"Flox - Auswahl der Datenbank"_s);
    QStringList texte;
    for (const auto *schild : wahl.findChildren<QLabel *>())
        texte += schild->text();
    QVERIFY(texte.contains(u"Welche Datenbank wollen Sie verwenden?"_s));
    const char *knoepfe[] = {"cmdTopfpflanzen", "cmdStauden", "cmdGehoelze", "cmdApfel", "cmdObst", "cmdFriedhof"};
    for (const char *name : knoepfe) {
        const auto *knopf = wahl.findChild<QToolButton *>(QLatin1String(name));
        QVERIFY2(knopf && !knopf->icon().isNull() && !knopf->accessibleName().isEmpty(), name);
    }
    for (int i = 2; i <= 7; ++i)
        QVERIFY(wahl.findChild<QLabel *>(u"Label%1"_s.arg(i)));
    QCOMPARE(wahl.findChild<QPushButton *>(u"cmdFensterAlleine"_s)->text(), u"Nur das Programmfenster starten"_s);
    wahl.show();
    const auto *bild = wahl.findChild<QWidget *>(u"picHintergrund"_s);
    QVERIFY(bild);
    QVERIFY(qAbs(bild->geometry().center().x() - wahl.rect().center().x()) <= 1);
    QVERIFY(bild->testAttribute(Qt::WA_TransparentForMouseEvents));
    QCOMPARE(wahl.children().indexOf(bild), 0);
}

void TestDialoge::wahlFensterAlleine()
{
    probe_->programm.StartPhase = true;
    frmDBWahl erste(probe_->programm);
    QVERIFY(!probe_->programm.StartPhase);
    QVERIFY(!erste.findChild<QPushButton *>(u"cmdFensterAlleine"_s)->isHidden());
    QSignalSpy alleine(&erste, &frmDBWahl::fensterAlleine), gewaehlt(&erste, &frmDBWahl::gewaehlt);
    erste.show();
    QTest::mouseClick(erste.findChild<QPushButton *>(u"cmdFensterAlleine"_s), Qt::LeftButton);
    QCOMPARE(alleine.count(), 1);
    QCOMPARE(gewaehlt.count(), 0);
    QVERIFY(!erste.isVisible());
    const frmDBWahl zweite(probe_->programm);
    QVERIFY(zweite.findChild<QPushButton *>(u"cmdFensterAlleine"_s)->isHidden());
}

void TestDialoge::wahlSparten_data()
{
    QTest::addColumn<int>("sparte");
    QTest::addColumn<bool>("schild");
    for (const SpartenEintrag &zeile : alleSparten())
        for (const bool schild : {false, true})
            QTest::addRow("%s %s", zeile.wahlknopf, schild ? "label" : "button") << int(zeile.sparte) << schild;
}

void TestDialoge::wahlSparten()
{
    QFETCH(int, sparte);
    QFETCH(bool, schild);
    frmDBWahl wahl(probe_->programm);
    QList<int> gewaehlt;
    connect(&wahl, &frmDBWahl::gewaehlt, this, [&](Sparte welche) { gewaehlt += int(welche); });
    wahl.show();
    const SpartenEintrag &zeile = eintrag(Sparte(sparte));
    auto *ziel = schild ? wahl.findChild<QWidget *>(u"Label%1"_s.arg(sparte + 2)) : wahl.findChild<QWidget *>(QLatin1String(zeile.wahlknopf));
    QTest::mouseClick(ziel, Qt::LeftButton);
    const bool da = fensterbeschreibung(Sparte(sparte)) != nullptr;
    QCOMPARE(ziel->isEnabled(), da);
    QCOMPARE(gewaehlt, da ? QList<int>{sparte} : QList<int>());
    QCOMPARE(wahl.isVisible(), !da);
}

void TestDialoge::wahlGehtWennSieNichtMehrVornIst()
{
    QWidget anderes;
    anderes.show();
    {
        // Never active, it stays.
        frmDBWahl wahl(probe_->programm);
        wahl.setAttribute(Qt::WA_ShowWithoutActivating);
        wahl.show();
        QEvent wechsel(QEvent::ActivationChange);
        QVERIFY(!wahl.isActiveWindow());
        QCoreApplication::sendEvent(&wahl, &wechsel);
        QVERIFY(wahl.isVisible());
    }
    frmDBWahl wahl(probe_->programm);
    wahl.show();
    wahl.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&wahl));
    QVERIFY(wahl.isVisible());
    anderes.activateWindow();
    QTRY_VERIFY(!wahl.isVisible());
}

void TestDialoge::startbild()
{
    frmStart start(u"9.8.7"_s);
    auto *bild = start.findChild<QWidget *>(u"startbild"_s);
    QVERIFY(bild);
    QCOMPARE(start.size(), bild->size());
    QSignalSpy fertig(&start, &frmStart::fertig);
    start.show();
    QTest::mouseClick(bild, Qt::LeftButton);
    QCOMPARE(fertig.count(), 1);
}

void TestDialoge::startZeit()
{
    frmStart start(u"9.8.7"_s);
    QSignalSpy fertig(&start, &frmStart::fertig);
    auto *Timer1 = start.findChild<QTimer *>(u"Timer1"_s);
    QVERIFY(Timer1);
    QVERIFY(Timer1->isActive());
    QCOMPARE(Timer1->interval(), 5000);
    Timer1->start(1);
    QTRY_VERIFY(fertig.count() >= 1);
}

FLOX_TEST(tst_dialoge, TestDialoge)
#include "tst_dialoge.moc"
