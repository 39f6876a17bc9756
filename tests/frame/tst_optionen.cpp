#include "Formhand.h"
#include "Rahmenprobe.h"

#include "controls/Steuerelemente.h"
#include "filters/Filterdialog.h"
#include "frame/Einstellungen.h"
#include "frame/Registry.h"
#include "frame/frmOptionen.h"
#include "pictures/frmBilder.h"
#include "plantwindows/Pflanzenfenster.h"
#include "store/Wertelisten.h"
#include "tests/Testprogramm.h"

#include <QCheckBox>
#include <QGroupBox>
#include <QLabel>
#include <QMenu>
#include <QPushButton>
#include <QRadioButton>
#include <QTest>

using namespace Qt::StringLiterals;

/* The options, opened from the menu and worked by hand. */
class TestOptionen : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        probe_.reset();
        probe_ = std::make_unique<Rahmenprobe>();
        probe_->laden();
    }

    void aufbau()
    {
        frmOptionen form(probe_->programm, nullptr);
        QCOMPARE(form.objectName(), u"frmOptionen"_s);
        QCOMPARE(form.windowTitle(), u"Optionen"_s);
        const std::pair<const char *, QString> rahmen[] = {
            {"fraAusbildung", u"Ausbildung"_s}, {"fraOriginal", u"Bilder"_s}, {"fraMonat", u"Monatsdarstellung"_s}, {"fraDateien", u"Dateien"_s}};
        for (const auto &[name, titel] : rahmen)
            QCOMPARE(form.findChild<QGroupBox *>(QLatin1String(name))->title(), titel);
        QCOMPARE(form.findChild<QLabel *>(u"Label8"_s)->text(), u"Automatisch nur Pflanzen anzeigen die wichtig sind für die Gehilfenprüfung"_s);
        QStringList berufe;
        for (int i = 0; i < 6; ++i)
            berufe += ausbildung(form, i)->text();
        QCOMPARE(berufe, (QStringList{u"bei Zierpflanzengärtnern"_s, u"bei Baumschulgärtnern"_s, u"bei Staudengärtnern"_s, u"bei Friedhofsgärtnern"_s,
                                      u"bei Obstbauern"_s, u"bei Landschaftsgärtnern"_s}));
        QVERIFY(!form.findChild<QCheckBox *>(u"chkAusbildung_6"_s));
        QCOMPARE(original(form)->text(), u"Bilder immer in Originalgröße darstellen"_s);
        QCOMPARE(access(form)->text(), u"Teilmengen und Mulko-Dateien im Access-Format"_s);
        QCOMPARE(monat(form, 0)->text(), u"1 2 3 4 5 6 7 8 9 10 11 12"_s);
        QCOMPARE(monat(form, 1)->text(), u"J F M A M J J A S O N D"_s);
        QCOMPARE(knopf(form, "cmdOK")->text(), u"OK"_s);
        QCOMPARE(knopf(form, "cmdAbbrechen")->text(), u"Abbrechen"_s);
        QVERIFY(knopf(form, "cmdOK")->isDefault());
    }

    void zeigtDieEinstellungen_data()
    {
        QTest::addColumn<int>("darstellung");
        QTest::addColumn<bool>("original");
        QTest::addColumn<int>("beruf");
        QTest::newRow("numbers") << 0 << false << 0;
        QTest::newRow("letters") << 1 << true << 5;
        QTest::newRow("another number") << -3 << true << 2;
    }

    void zeigtDieEinstellungen()
    {
        QFETCH(int, darstellung);
        QFETCH(bool, original);
        QFETCH(int, beruf);
        Programm &programm = probe_->programm;
        programm.MonatsDarstellung = darstellung;
        programm.OriginalGroesse = original;
        programm.AccessFormat = !original;
        programm.AzubiAuswahl = {};
        programm.AzubiAuswahl[size_t(beruf)] = true;
        frmOptionen form(programm, nullptr);
        QCOMPARE(monat(form, 0)->isChecked(), darstellung == 0);
        QCOMPARE(monat(form, 1)->isChecked(), darstellung != 0);
        QCOMPARE(this->original(form)->isChecked(), original);
        QCOMPARE(access(form)->isChecked(), !original);
        for (int i = 0; i < 6; ++i)
            QCOMPARE(ausbildung(form, i)->isChecked(), i == beruf);
        // Opened and closed with OK it leaves everything as it means.
        knopf(form, "cmdOK")->click();
        QCOMPARE(programm.MonatsDarstellung, darstellung != 0);
        QCOMPARE(programm.OriginalGroesse, original);
        QCOMPARE(programm.AccessFormat, !original);
        QVERIFY(programm.AzubiAuswahl[size_t(beruf)] && std::ranges::count(programm.AzubiAuswahl, true) == 1);
    }

    /// Each box by a click of its own; nothing is taken before OK.
    void uebernehmen()
    {
        Programm &programm = probe_->programm;
        programm.AzubiAuswahl = {true, false, false, true, false, false};
        programm.AusbildungAktiv = false;
        waehlen([&](frmOptionen &form) {
            for (const int i : {0, 1, 5})
                klick(ausbildung(form, i));
            klick(original(form));
            klick(monat(form, 0));
            klick(access(form));
            QVERIFY(!programm.AccessFormat);
            QVERIFY(programm.AzubiAuswahl == (std::array<bool, 6>{true, false, false, true, false, false}));
            QVERIFY(programm.OriginalGroesse);
            QCOMPARE(programm.MonatsDarstellung, 1);
            klick(knopf(form, "cmdOK"));
        });
        QVERIFY(programm.AzubiAuswahl == (std::array<bool, 6>{false, true, false, true, false, true}));
        QVERIFY(programm.AusbildungAktiv);
        QVERIFY(!programm.OriginalGroesse);
        QVERIFY(programm.AccessFormat);
        QCOMPARE(programm.MonatsDarstellung, 0);
        waehlen([&](frmOptionen &form) {
            for (const int i : {1, 3, 5})
                klick(ausbildung(form, i));
            klick(original(form));
            klick(access(form));
            klick(monat(form, 1));
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
        });
        QVERIFY(std::ranges::none_of(programm.AzubiAuswahl, std::identity()));
        QVERIFY(!programm.AusbildungAktiv);
        QVERIFY(programm.OriginalGroesse);
        QVERIFY(!programm.AccessFormat);
        QCOMPARE(programm.MonatsDarstellung, 1);
    }

    /// Nothing is changed, and the windows are drawn anew all the same.
    void abbrechen_data()
    {
        QTest::addColumn<QString>("weg");
        for (const char *weg : {"cmdAbbrechen", "Esc", "frame"})
            QTest::newRow(weg) << QString::fromLatin1(weg);
    }

    void abbrechen()
    {
        QFETCH(QString, weg);
        Programm &programm = probe_->programm;
        probe_->waehlen("mnudbtopfpflanzen");
        // What only a new display shows.
        programm.MonatsDarstellung = 0;
        waehlen([&](frmOptionen &form) {
            klick(ausbildung(form, 2));
            klick(original(form));
            klick(access(form));
            klick(monat(form, 1));
            if (weg == u"Esc")
                QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
            else if (weg == u"frame")
                form.close();
            else
                klick(knopf(form, "cmdAbbrechen"));
        });
        QCOMPARE(programm.MonatsDarstellung, 0);
        QVERIFY(programm.OriginalGroesse && !programm.AusbildungAktiv && !programm.AccessFormat);
        QVERIFY(std::ranges::none_of(programm.AzubiAuswahl, std::identity()));
        QCOMPARE(monatImFenster(probe_->fenster(1)), u"12"_s);
    }

    /// Every open window and its dialog, the last one active or not.
    void monateWechselnSofort()
    {
        const std::pair<const char *, Sparte> mitMonaten[] = {{"mnudbtopfpflanzen", Sparte::Topf},
                                                              {"mnudbstauden", Sparte::Stauden},
                                                              {"mnudbgehoelze", Sparte::Gehoelze},
                                                              {"mnudbfriedhof", Sparte::Friedhof}};
        for (const auto &[eintrag, sparte] : mitMonaten)
            probe_->waehlen(eintrag);
        probe_->waehlen("mnudbtopfpflanzen");
        probe_->waehlen("mnudbapfel");
        const auto pruefen = [&](const QString &monat) {
            for (const auto &[eintrag, sparte] : mitMonaten) {
                QCOMPARE(monatImFenster(probe_->fenster(1, sparte)), monat);
                QCOMPARE(monatIn(probe_->fenster(1, sparte)->filterdialog()), monat);
            }
            QCOMPARE(monatImFenster(probe_->fenster(2)), monat);
            QCOMPARE(monatIn(probe_->fenster(2)->filterdialog()), monat);
        };
        pruefen(u"D"_s);
        for (const int wahl : {0, 1}) {
            waehlen([&](frmOptionen &form) {
                klick(monat(form, wahl));
                klick(knopf(form, "cmdOK"));
            });
            pruefen(wahl == 0 ? u"12"_s : u"D"_s);
        }
    }

    /// Windows opened afterwards show the plants of the trades chosen; those that stand keep theirs.
    void ausbildungInSpaeterenFenstern()
    {
        probe_->waehlen("mnudbtopfpflanzen");
        const int alle = probe_->fenster(1)->Anzahl;
        waehlen([&](frmOptionen &form) {
            klick(ausbildung(form, 0));
            klick(knopf(form, "cmdOK"));
        });
        QCOMPARE(probe_->fenster(1)->Anzahl, alle);
        probe_->waehlen("mnudbtopfpflanzen");
        const int gewaehlt = probe_->fenster(2)->Anzahl;
        QVERIFY(gewaehlt > 0 && gewaehlt < alle);
        for (int i = 0; i < gewaehlt; ++i) {
            probe_->fenster(2)->satz().haupt().setAbsolutePosition(i);
            QCOMPARE(probe_->fenster(2)->Auslesen(u"Ausbildung"_s).left(1), u"1"_s);
        }
        // The trainees' menu asks for another trade and gives the choice back.
        probe_->waehlen("mnuABStaudenAlle");
        QVERIFY(probe_->programm.AzubiAuswahl[0] && std::ranges::count(probe_->programm.AzubiAuswahl, true) == 1);
        waehlen([&](frmOptionen &form) {
            klick(ausbildung(form, 0));
            klick(knopf(form, "cmdOK"));
        });
        probe_->waehlen("mnudbtopfpflanzen");
        QCOMPARE(probe_->fenster(3)->Anzahl, alle);
    }

    /// The months, the size of pictures and the format of files come again with the next run, the training does not.
    void naechsterLauf()
    {
        waehlen([&](frmOptionen &form) {
            klick(ausbildung(form, 4));
            klick(original(form));
            klick(monat(form, 0));
            klick(access(form));
            klick(knopf(form, "cmdOK"));
        });
        probe_->zentrale->close();
        Programm naechster = probe_->ordner.programm();
        EinstellungenLesen(naechster);
        QCOMPARE(naechster.MonatsDarstellung, 0);
        QVERIFY(!naechster.OriginalGroesse);
        QVERIFY(naechster.AccessFormat);
        QVERIFY(std::ranges::none_of(naechster.AzubiAuswahl, std::identity()) && !naechster.AusbildungAktiv);
        QFile datei(probe_->ablage.datei());
        QVERIFY(datei.open(QIODevice::ReadOnly));
        const QByteArray inhalt = datei.readAll();
        QVERIFY(inhalt.contains("Originalgroesse=False") && !inhalt.contains("Azubi") && !inhalt.contains("Ausbildung"));
    }

    /// A picture that stands keeps its size; the next one has its own.
    void originalgroesseAbDemNaechstenBild()
    {
        QImage bild(2000, 1500, QImage::Format_RGB32);
        bild.fill(Qt::green);
        QVERIFY(QDir(probe_->ordner.pfad()).mkpath(u"topfpflanzen"_s));
        for (const char *name : {"beg-probe", "bou-probe"})
            QVERIFY(bild.save(probe_->ordner.pfad(u"topfpflanzen/%1.jpg"_s.arg(QLatin1String(name)))));
        probe_->programm.OriginalGroesse = false;
        probe_->programm.BilderPfad = probe_->ordner.pfad();
        probe_->ordner.db()->Execute(
            u"UPDATE Topfpfl_Bilder SET \"BILD1-G\" = 'beg-probe', \"BILD2-G\" = 'bou-probe', \"BILD3-G\" = NULL, \"BILD1-D\" = NULL"_s);
        probe_->waehlen("mnudbtopfpflanzen");
        probe_->programm.GewaehltesBild = 0;
        probe_->zentrale->bildZeigen();
        auto *form = probe_->zentrale->findChild<frmBilder *>();
        QVERIFY(form);
        QTRY_VERIFY2(form->windowTitle().contains(u"Bildgröße"), qPrintable(form->windowTitle()));
        QVERIFY2(!form->windowTitle().contains(u"100%"), qPrintable(form->windowTitle()));
        const QString eingepasst = form->windowTitle();
        waehlen([&](frmOptionen &optionen) {
            klick(original(optionen));
            klick(knopf(optionen, "cmdOK"));
        });
        QCOMPARE(form->windowTitle(), eingepasst);
        QCOMPARE(form->findChild<QLabel *>(u"lblPosition"_s)->text(), u"1/2"_s);
        form->findChild<QAbstractButton *>(u"cmdNext"_s)->click();
        QTRY_VERIFY2(form->windowTitle().contains(u"100%"), qPrintable(form->windowTitle()));
        // The place stays, too; another folder is another picture.
        waehlen([](frmOptionen &optionen) { optionen.reject(); });
        QCOMPARE(form->findChild<QLabel *>(u"lblPosition"_s)->text(), u"2/2"_s);
        QVERIFY(QDir(probe_->ordner.pfad()).mkpath(u"anderswo"_s));
        QVERIFY(QDir().rename(probe_->ordner.pfad(u"topfpflanzen"_s), probe_->ordner.pfad(u"anderswo/topfpflanzen"_s)));
        probe_->programm.BilderPfad = probe_->ordner.pfad(u"anderswo"_s);
        probe_->zentrale->FormenAktualisieren();
        QCOMPARE(form->findChild<QLabel *>(u"lblPosition"_s)->text(), u"1/2"_s);
    }

    /// By keyboard alone: each control is reached, in the order in which it stands.
    void tabfolge()
    {
        waehlen([&](frmOptionen &form) {
            QStringList namen;
            for (int i = 0; i < 11; ++i) {
                namen += QApplication::focusWidget()->objectName();
                QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
            }
            QCOMPARE(namen, (QStringList{u"chkAusbildung_0"_s, u"chkAusbildung_1"_s, u"chkAusbildung_2"_s, u"chkAusbildung_3"_s, u"chkAusbildung_4"_s,
                                         u"chkAusbildung_5"_s, u"chkOriginal"_s, u"optMonat_1"_s, u"chkAccess"_s, u"cmdOK"_s, u"cmdAbbrechen"_s}));
            form.reject();
        });
    }

private:
    /// Chooses the options from the menu and works the form.
    void waehlen(std::function<void(frmOptionen &)> hand)
    {
        const Formhand<frmOptionen> wache([&](frmOptionen &form) {
            // Its keys reach it only then; isActiveWindow() is true before, because of its parent.
            QVERIFY(QTest::qWaitFor([&] { return QApplication::activeWindow() == &form && QApplication::focusWidget(); }));
            hand(form);
            if (form.isVisible()) {
                form.reject();
                QFAIL("The form stayed.");
            }
        });
        probe_->waehlen("mnuOptionen");
        QVERIFY(wache.kam);
    }

    /// A click where a hand puts it: on the box of a check box or radio button.
    static void klick(QAbstractButton *knopf)
    {
        const bool links = qobject_cast<QCheckBox *>(knopf) || qobject_cast<QRadioButton *>(knopf);
        QTest::mouseClick(knopf, Qt::LeftButton, {}, {links ? 8 : knopf->width() / 2, knopf->height() / 2});
    }

    static QString monatIn(QWidget *form) { return form->findChild<Farbzelle *>(u"lblBlMonat_11"_s)->caption(); }
    static QString monatImFenster(Pflanzenfenster *form) { return monatIn(form); }
    static QCheckBox *ausbildung(frmOptionen &form, int i) { return form.findChild<QCheckBox *>(u"chkAusbildung_%1"_s.arg(i)); }
    static QCheckBox *original(frmOptionen &form) { return form.findChild<QCheckBox *>(u"chkOriginal"_s); }
    static QCheckBox *access(frmOptionen &form) { return form.findChild<QCheckBox *>(u"chkAccess"_s); }
    static QRadioButton *monat(frmOptionen &form, int i) { return form.findChild<QRadioButton *>(u"optMonat_%1"_s.arg(i)); }
    static QPushButton *knopf(frmOptionen &form, const char *name) { return form.findChild<QPushButton *>(QLatin1String(name)); }

    std::unique_ptr<Rahmenprobe> probe_;
};

FLOX_TEST(tst_optionen, TestOptionen)
#include "tst_optionen.moc"
