#include "Rahmenprobe.h"

#include "Handgriffe.h"
#include "frame/Ergebnisblatt.h"
#include "frame/Menue.h"
#include "pictures/frmBilder.h"
#include "plantwindows/Aufgabe.h"
#include "plantwindows/Uebung.h"
#include "plantwindows/frmPruefung.h"
#include "printing/Printer.h"
#include "printing/Seitenvorschau.h"
#include "tests/Dateiwahl.h"
#include "tests/printing/Druckhilfen.h"
#include "tests/Testprogramm.h"

#include <QApplication>
#include <QGroupBox>
#include <QLabel>
#include <QMenu>
#include <QPrinterInfo>
#include <QPushButton>
#include <QStatusBar>
#include <QTest>

using namespace Qt::StringLiterals;

/* Practice from the menu, and the result of an examination on paper. */
class TestUebungsblatt : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        probe_.reset();
        probe_ = std::make_unique<Rahmenprobe>();
        probe_->programm.MdiStatus = 0;
        probe_->laden();
    }

    void letzterEintragFuerAzubis()
    {
        const QList<QAction *> eintraege = probe_->zentrale->findChild<QMenu *>(u"mnuAusbildung"_s)->actions();
        QCOMPARE(eintraege.last()->objectName(), u"mnuUeben"_s);
        QCOMPARE(eintraege.last()->text(), u"Üben ...\tF9"_s);
        QVERIFY(eintraege.last()->isEnabled());
        // Without a window it says what is missing.
        probe_->waehlen("mnuUeben");
        QVERIFY(probe_->zentrale->statusBar()->currentMessage().contains(u"zuerst ein Pflanzenfenster"_s));
    }

    void menueBeginntUndBeendet()
    {
        probe_->waehlen("mnudbtopfpflanzen");
        probe_->waehlen("mnudbstauden");
        Pflanzenfenster *topf = probe_->fenster(1), *stauden = probe_->fenster(1, Sparte::Stauden);
        probe_->waehlen("mnuUeben");
        QVERIFY(stauden->uebt() && !topf->uebt());
        // Both at once; the other one in front leaves the first alone.
        hand::titelleiste(topf);
        probe_->waehlen("mnuUeben");
        QVERIFY(stauden->uebt() && topf->uebt());
        probe_->waehlen("mnuUeben");
        QVERIFY(stauden->uebt() && !topf->uebt());
        // New options show every window anew: nothing is uncovered by that.
        probe_->zentrale->FormenAktualisieren();
        QVERIFY(stauden->namenVerdeckt());
        QVERIFY(stauden->findChild<QLabel *>(u"lblNamenDecke"_s)->isVisibleTo(stauden));
        probe_->zentrale->AlleFensterSchliessen();
        QVERIFY(!probe_->fenster(1, Sparte::Stauden));
    }

    void schluesselFremderFenster()
    {
        // A window that is locked for a filter dialog does not practise.
        probe_->waehlen("mnudbtopfpflanzen");
        probe_->zentrale->FensterSperren(Sparte::Topf);
        probe_->waehlen("mnuUeben");
        QVERIFY(!probe_->fenster(1)->uebt());
        probe_->zentrale->FensterFreigeben(Sparte::Topf);
    }

    void bilderfensterVerdeckt()
    {
        probe_->waehlen("mnudbtopfpflanzen");
        Pflanzenfenster *form = probe_->fenster(1);
        probe_->zentrale->bildZeigen();
        auto *bilder = probe_->zentrale->findChild<frmBilder *>(u"frmBilder"_s);
        QVERIFY(bilder);
        const auto texte = [bilder] {
            QStringList alle{bilder->windowTitle()};
            for (const QLabel *schild : bilder->findChildren<QLabel *>())
                alle += schild->text();
            return alle.join(u'\n');
        };
        const auto aufgabe = [form] { return aufgabeVon(form->satz(), *fensterbeschreibung(Sparte::Topf)); };
        QVERIFY(texte().contains(form->Auslesen(u"BOT_NAME"_s)));
        form->ueben();
        for (int i = 0; i < 10; ++i) {
            QCOMPARE(ohneNamen(texte(), aufgabe().worte), texte());
            hand::nachVorn(form);
            QTest::keyClick(form->findChild<QWidget *>(u"txtAntwort_0"_s), Qt::Key_Space);
            QVERIFY2(texte().contains(form->Auslesen(u"BOT_NAME"_s)), qPrintable(texte()));
            form->findChild<QPushButton *>(u"cmdUebWeiter"_s)->click();
        }
        form->ueben();
        QVERIFY(texte().contains(form->Auslesen(u"BOT_NAME"_s)));
    }

    void ergebnisAlsPdf()
    {
        if (!QPrinterInfo::availablePrinterNames().isEmpty())
            QSKIP("A printer is installed; nothing is sent to it.");
        probe_->waehlen("mnudbgehoelze");
        Pflanzenfenster *form = probe_->fenster(1, Sparte::Gehoelze);
        qint64 zeit = 0;
        form->uebungszeit = {[&zeit] { return zeit; }, [] { return QDate(2026, 5, 1); }};
        form->ueben();
        form->findChild<QPushButton *>(u"cmdPruefung"_s)->click();
        for (int i = 0; i < 20; ++i) {
            form->findChild<QLineEdit *>(u"txtAntwort_0"_s)->setText(i % 2 ? u"Unsinn"_s : namensteile(form->Auslesen(u"BOT_NAME"_s)).gattung);
            form->findChild<QPushButton *>(u"cmdUebWeiter"_s)->click();
        }
        zeit = 754'000;
        form->findChild<QPushButton *>(u"cmdPruefung"_s)->click();
        auto *ergebnis = form->findChild<frmPruefung *>(u"frmPruefung"_s);
        QVERIFY(ergebnis);
        const QString pfad = probe_->ordner.pfad(u"Ergebnis.pdf"_s);
        Dateiwahl wahl(pfad);
        int gedruckt = 0;
        QTimer takt;
        connect(&takt, &QTimer::timeout, this, [&] {
            auto *dialog = qobject_cast<QDialog *>(QApplication::activeModalWidget());
            auto *vorschau = dialog ? dialog->findChild<Seitenvorschau *>(u"picVorschau"_s) : nullptr;
            if (!vorschau || vorschau->seiten().seiten.empty() || gedruckt++)
                return;
            QVERIFY(!dialog->findChild<QGroupBox *>(u"fraDruckFrage"_s)->isVisible());
            dialog->findChild<QPushButton *>(u"cmdDruck"_s)->click();
        });
        takt.start(1);
        const Meldungsfaenger meldungen;
        ergebnis->findChild<QPushButton *>(u"cmdErgebnisDrucken"_s)->click();
        QCOMPARE(meldungen.texte, QStringList());
        QCOMPARE(wahl.dialoge, 1);
        QCOMPARE(wahl.vorschlag, u"Prüfung Pflanzenkenntnis.pdf"_s);
        const QStringList seiten = pdfSeiten(pfad);
        QVERIFY(seiten.size() >= 2);
        const QString text = ohneLeerraum(seiten.join(QString()));
        const Pruefungsergebnis &werte = ergebnis->ergebnis();
        QCOMPARE(werte.dauer, 754'000);
        QVERIFY(text.contains(ohneLeerraum(werte.punktesatz())));
        QVERIFY(text.contains(ohneLeerraum(u"Gehölze, 20 Pflanzen, 01.05.2026, 12:34 Minuten"_s)));
        QVERIFY(werte.zeilen.size() >= 80);
        for (const Ergebniszeile &zeile : werte.zeilen) {
            QVERIFY2(text.contains(ohneLeerraum(u"%1. %2"_s.arg(zeile.nummer).arg(zeile.pflanze))), qPrintable(zeile.pflanze));
            for (const QString &wort : zeile.richtig.split(u' '))
                QVERIFY2(text.contains(wort), qPrintable(wort));
        }
        QCOMPARE(text.count(u"Unsinn"_s), 10);
        for (qsizetype i = 0; i < seiten.size(); ++i) {
            QVERIFY(seiten[i].contains(u"Seite %1 von %2"_s.arg(i + 1).arg(seiten.size())));
            QVERIFY(seiten[i].contains(u"richtig ist"_s));
        }
        QCOMPARE(probe_->zentrale->statusBar()->currentMessage(), u"Gespeichert: %1"_s.arg(QDir::toNativeSeparators(pfad)));
    }

    /// No text leaves the paper or its column, whatever was typed.
    void langeAntworten()
    {
        Pruefungsergebnis ergebnis{.sparte = u"Stauden"_s, .tag = QDate(2026, 5, 1), .pflanzen = 1, .dauer = 1};
        for (const QString &antwort : {QString(200, u'W'), u"viele kleine Wörter "_s.repeated(10), QString()})
            ergebnis.zeilen.push_back({1, u"Rosa 'X'"_s, u"Deutscher Name"_s, antwort, u"Rose"_s, {}});
        Printer drucker(blattA4());
        tabelleDrucken(ergebnisblatt(ergebnis), drucker);
        const Druckseiten seiten = drucker.EndDoc();
        double naechste = 0;
        for (const Drucktext &text : seiten.seiten[0].texte)
            if (text.text.startsWith(u"richtig ist"))
                naechste = text.x;
        QVERIFY(naechste > 50);
        int stuecke = 0;
        for (const Drucktext &text : seiten.seiten[0].texte) {
            const double rechts = text.x + schriftmass(text.schrift).breite(text.text);
            QVERIFY(rechts <= seiten.bereich.width() - 14);
            QVERIFY(text.y + schriftmass(text.schrift).zeilenhoehe() < seiten.bereich.height() - 5);
            if (text.text.startsWith(u"WWW")) {
                ++stuecke;
                QVERIFY(rechts <= naechste);
            }
        }
        QVERIFY(stuecke > 5);
    }

private:
    std::unique_ptr<Rahmenprobe> probe_;
};

FLOX_TEST(tst_uebungsblatt, TestUebungsblatt)
#include "tst_uebungsblatt.moc"
