#include "Rahmenprobe.h"

#include "controls/Steuerelemente.h"
#include "filters/Filterdialog.h"
#include "frame/Flaeche.h"
#include "plantwindows/Pflanzenfenster.h"
#include "printing/Seitenvorschau.h"
#include "tests/Dateiwahl.h"
#include "tests/printing/Druckhilfen.h"
#include "tests/Testprogramm.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QLabel>
#include <QLineEdit>
#include <QMdiSubWindow>
#include <QPlainTextEdit>
#include <QPrinterInfo>
#include <QPushButton>
#include <QRadioButton>
#include <QTabWidget>
#include <QSignalSpy>
#include <QStatusBar>
#include <QTest>

using namespace Qt::StringLiterals;

/* From the button of a plant window to a PDF file on the disk. */

class TestDrucken : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void blatt_data();
    void blatt();
    void liste_data() { sparten(); }
    void liste();
    void abgebrochen();
    void gespeichertInDerStatusleiste();
    void notizenVorher();
    void ohneFilterKeineListe_data() { sparten(); }
    void ohneFilterKeineListe();
    void kriterienWieSieStehen();
    void aktivesFenster();
    void aktiveSparte();
    void zweiNacheinander();

private:
    static void sparten();
    void oeffnen(Sparte sparte) { probe_->waehlen(eintrag(sparte).menue); }
    void klick(Pflanzenfenster *fenster, const char *knopf)
    {
        QTest::mouseClick(fenster->findChild<Bildknopf *>(QLatin1String(knopf)), Qt::LeftButton);
    }
    void fensterVorn(int nummer, Sparte sparte = Sparte::Topf);
    /// Presses the window's button and works in the dialog that comes up.
    void drucken(Pflanzenfenster *fenster, const std::function<void(QDialog &)> &handlung);
    /// The same with the usual way: sheet or list, into a file that must not be there yet.
    QString gedruckt(Pflanzenfenster *fenster, bool liste = false);
    /// The name that heads a data sheet.
    static QString kopf(const QString &pdf);
    static QString lage(Pflanzenfenster &fenster);

    std::unique_ptr<Rahmenprobe> probe_;
    int dateien_ = 0;
};

void TestDrucken::initTestCase()
{
    if (!QPrinterInfo::availablePrinterNames().isEmpty())
        QSKIP("A printer is installed; nothing is sent to it.");
}

void TestDrucken::init()
{
    probe_.reset();
    probe_ = std::make_unique<Rahmenprobe>();
    probe_->programm.MdiStatus = 0;
    probe_->laden();
}

void TestDrucken::sparten()
{
    QTest::addColumn<Sparte>("sparte");
    QTest::newRow("Topf") << Sparte::Topf;
    QTest::newRow("Apfel") << Sparte::Apfel;
}

void TestDrucken::fensterVorn(int nummer, Sparte sparte)
{
    probe_->zentrale->findChild<Flaeche *>()->setActiveSubWindow(qobject_cast<QMdiSubWindow *>(probe_->fenster(nummer, sparte)->parentWidget()));
    QCOMPARE(probe_->programm.aktuellesFenster(sparte), nummer);
}

void TestDrucken::drucken(Pflanzenfenster *fenster, const std::function<void(QDialog &)> &handlung)
{
    int dialoge = 0;
    QTimer takt;
    connect(&takt, &QTimer::timeout, this, [&] {
        auto *form = qobject_cast<QDialog *>(QApplication::activeModalWidget());
        auto *vorschau = form ? form->findChild<Seitenvorschau *>(u"picVorschau"_s) : nullptr;
        if (!vorschau || vorschau->seiten().seiten.empty())
            return;
        if (dialoge == 0) {
            ++dialoge;
            handlung(*form);
        } else if (QApplication::activeModalWidget() == form) {
            ++dialoge; // it should have been closed
            form->reject();
        }
    });
    takt.start(1);
    Meldungsfaenger meldungen;
    klick(fenster, "cmdDruck");
    QCOMPARE(dialoge, 1);
    QCOMPARE(meldungen.texte, QStringList());
}

QString TestDrucken::gedruckt(Pflanzenfenster *fenster, bool liste)
{
    const QString pfad = probe_->ordner.pfad(u"Ausdruck %1.pdf"_s.arg(++dateien_));
    Dateiwahl wahl(pfad);
    drucken(fenster, [&](QDialog &form) {
        form.findChild<QRadioButton *>(u"optDruckFrage_%1"_s.arg(int(liste)))->click();
        QTest::mouseClick(form.findChild<QPushButton *>(u"cmdDruck"_s), Qt::LeftButton);
    });
    if (wahl.dialoge != 1 || !QFile::exists(pfad))
        qFatal("%d file dialogs, %s", wahl.dialoge, qPrintable(QDir(probe_->ordner.pfad()).entryList().join(u' ')));
    return pfad;
}

QString TestDrucken::kopf(const QString &pdf)
{
    QStringList zeilen;
    for (const QString &zeile : pdfSeiten(pdf).first().split(u'\n', Qt::SkipEmptyParts))
        zeilen += zeile.simplified();
    if (zeilen.mid(0, 2) != QStringList{u"Pflanzen-Informations-System"_s, u"der Fachhochschule Lindenhof"_s})
        qFatal("No head: %s", qPrintable(zeilen.join(u'|')));
    return zeilen.value(2);
}

QString TestDrucken::lage(Pflanzenfenster &fenster)
{
    QStringList panels;
    for (int i = 1; i <= 4; ++i)
        panels += fenster.findChild<QLabel *>(u"stbAnzeige_%1"_s.arg(i))->text();
    const bool topf = fenster.sparte() == Sparte::Topf;
    const QString name = fenster.findChild<QWidget *>(topf ? u"lblBotName"_s : u"lblName"_s)->property("text").toString();
    return u"%1 an %2, gewählt %3, gezeigt %4, %5"_s.arg(fenster.satz().artnr())
        .arg(fenster.satz().haupt().AbsolutePosition())
        .arg(fenster.findChild<QComboBox *>(u"cboArten"_s)->currentText(), name, panels.join(u'/'));
}

void TestDrucken::blatt_data()
{
    QTest::addColumn<Sparte>("sparte");
    QTest::addColumn<QString>("knoepfe");
    for (const auto &[sparte, name] : {std::pair(Sparte::Topf, "Topf"), std::pair(Sparte::Apfel, "Apfel")}) {
        QTest::addRow("%s, erste", name) << sparte << u"cmdFirst"_s;
        QTest::addRow("%s, dritte", name) << sparte << u"cmdFirst cmdNext cmdNext"_s;
        QTest::addRow("%s, letzte", name) << sparte << u"cmdLast"_s;
    }
}

void TestDrucken::blatt()
{
    QFETCH(const Sparte, sparte);
    QFETCH(const QString, knoepfe);
    oeffnen(sparte);
    Pflanzenfenster *fenster = probe_->fenster(1, sparte);
    for (const QString &knopf : knoepfe.split(u' '))
        klick(fenster, knopf.toLatin1());
    const QString name = fenster->Auslesen(u"BOT_NAME"_s), vorher = lage(*fenster);
    Druckauftrag auftrag{.sparte = sparte, .pflanzen = &fenster->satz().haupt(), .arbeit = probe_->ordner.db(), .filter = {}};
    const QStringList dateien = QDir(probe_->ordner.pfad()).entryList();
    const QString pfad = probe_->ordner.pfad(u"Größe.pdf"_s);
    Dateiwahl wahl(pfad);
    drucken(fenster, [&](QDialog &form) {
        QCOMPARE(form.objectName(), u"frmDrucken"_s);
        QCOMPARE(form.windowTitle(), u"Drucken"_s);
        QVERIFY(form.isModal());
        QCOMPARE(form.parentWidget(), probe_->zentrale.get());
        QVERIFY(form.findChild<QRadioButton *>(u"optDruckFrage_0"_s)->isChecked());
        QCOMPARE(lage(*fenster), vorher);
        QTest::mouseClick(form.findChild<QPushButton *>(u"cmdDruck"_s), Qt::LeftButton);
        QVERIFY(!form.isVisible());
    });
    QCOMPARE(wahl.dialoge, 1);
    QCOMPARE(QDir(probe_->ordner.pfad()).entryList().size(), dateien.size() + 1);
    QCOMPARE(kopf(pfad), name);
    Printer drucker(blattA4());
    Druck druck(probe_->programm, auftrag, drucker);
    QVERIFY(druck.DruckAktuellePflanze());
    const Druckseiten soll = drucker.EndDoc();
    const QStringList seiten = pdfSeiten(pfad);
    QCOMPARE(seiten.size(), qsizetype(soll.seiten.size()));
    for (qsizetype i = 0; i < seiten.size(); ++i)
        QCOMPARE(ohneLeerraum(seiten[i]), ohneLeerraum(seitentexte(soll.seiten[size_t(i)]).join(u' ')));
    QVERIFY(programmausgabe(u"pdfinfo"_s, {u"-enc"_s, u"UTF-8"_s, pfad}).contains(name));
    QCOMPARE(lage(*fenster), vorher);
    QVERIFY(!fenster->DatenGeaendert);
    // The window goes on from there.
    const qsizetype stelle = fenster->satz().haupt().AbsolutePosition();
    klick(fenster, "cmdBack");
    QCOMPARE(fenster->satz().haupt().AbsolutePosition(), std::max<qsizetype>(stelle - 1, 0));
}

void TestDrucken::liste()
{
    QFETCH(const Sparte, sparte);
    oeffnen(sparte);
    Pflanzenfenster *fenster = probe_->fenster(1, sparte);
    QVERIFY(fenster->FilterEin && fenster->FilterGesetzt && fenster->Anzahl > 1);
    for (const char *knopf : {"cmdLast", "cmdBack", "cmdFirst"}) {
        klick(fenster, knopf);
        const QString vorher = lage(*fenster);
        const QString text = pdfSeiten(gedruckt(fenster, true)).join(u' ').simplified();
        QCOMPARE(lage(*fenster), vorher);
        qsizetype stelle = text.indexOf(u"Filter: Datenbank: %1 "_s.arg(eintrag(sparte).titel));
        QVERIFY(stelle > 0);
        stelle = text.indexOf(u" Pflanzen: "_s, stelle);
        Recordset &pflanzen = fenster->satz().haupt();
        for (qsizetype i = 0; i < fenster->Anzahl; ++i) {
            const QString name = pflanzen.textBei(i, u"BOT_NAME").simplified();
            stelle = text.indexOf(name, stelle);
            QVERIFY2(stelle > 0, qPrintable(name));
            stelle += name.size();
        }
    }
}

void TestDrucken::abgebrochen()
{
    oeffnen(Sparte::Topf);
    Pflanzenfenster *fenster = probe_->fenster(1);
    klick(fenster, "cmdLast");
    const QString vorher = lage(*fenster);
    const QStringList dateien = QDir(probe_->ordner.pfad()).entryList();
    for (const int taste : {0, int(Qt::Key_Escape)}) {
        Dateiwahl wahl;
        drucken(fenster, [&](QDialog &form) {
            QTest::mouseClick(form.findChild<QPushButton *>(u"cmdDruck"_s), Qt::LeftButton);
            QCOMPARE(wahl.dialoge, 1);
            QVERIFY(form.isVisible());
            if (taste)
                QTest::keyClick(&form, Qt::Key(taste));
            else
                QTest::mouseClick(form.findChild<QPushButton *>(u"cmdAbbruch"_s), Qt::LeftButton);
            QVERIFY(!form.isVisible());
        });
    }
    QCOMPARE(QDir(probe_->ordner.pfad()).entryList(), dateien);
    QCOMPARE(lage(*fenster), vorher);
}

void TestDrucken::gespeichertInDerStatusleiste()
{
    probe_->waehlen("mnudbtopfpflanzen");
    const QStatusBar *leiste = probe_->zentrale->statusBar();
    drucken(probe_->fenster(1), [](QDialog &form) { form.reject(); });
    QCOMPARE(leiste->currentMessage(), QString());
    const QString pfad = gedruckt(probe_->fenster(1));
    QCOMPARE(leiste->currentMessage(), u"Gespeichert: "_s + pfad);
    QCOMPARE(probe_->programm.DruckOrdner, probe_->ordner.pfad());
}

void TestDrucken::notizenVorher()
{
    oeffnen(Sparte::Topf);
    Pflanzenfenster *fenster = probe_->fenster(1);
    klick(fenster, "cmdLast");
    auto *notiz = fenster->findChild<QPlainTextEdit *>(u"txtEigeneBemerkung"_s);
    auto *reiter = fenster->findChild<QTabWidget *>();
    for (int i = 0; i < reiter->count(); ++i)
        if (reiter->widget(i)->isAncestorOf(notiz))
            reiter->setCurrentIndex(i);
    QTest::mouseClick(notiz->viewport(), Qt::LeftButton);
    notiz->setPlainText(u"Größe × 3 °C\nnoch nicht gespeichert"_s);
    auto *eigen = fenster->findChild<QCheckBox *>(u"sschkBenutzer_1"_s);
    eigen->click();
    QVERIFY(fenster->DatenGeaendert);
    const qint64 artnr = fenster->satz().artnr();
    const QString vorher = lage(*fenster), name = fenster->Auslesen(u"BOT_NAME"_s);
    const auto gespeichert = [&] {
        Recordset satz(probe_->ordner.db(), u"SELECT * FROM TOPFPFL WHERE ARTNR = %1"_s.arg(artnr));
        return satz.Fields(u"benu_bemerkung").Text() + u'|' + satz.Fields(u"benu_eigen").Text();
    };
    const QString soll = u"Größe × 3 °C\nnoch nicht gespeichert| 1   "_s;
    QVERIFY(gespeichert() != soll);
    const QString pfad = probe_->ordner.pfad(u"Notiz.pdf"_s);
    Dateiwahl wahl(pfad);
    drucken(fenster, [&](QDialog &form) {
        QVERIFY(!fenster->DatenGeaendert);
        QCOMPARE(gespeichert().remove(u'\r'), soll);
        QTest::mouseClick(form.findChild<QPushButton *>(u"cmdDruck"_s), Qt::LeftButton);
    });
    QCOMPARE(kopf(pfad), name);
    const QString text = pdfSeiten(pfad).join(u' ').simplified();
    const QString eintraege = u"Bemerkung (Benutzer) Größe × 3 °C noch nicht gespeichert Benutzerdef. Eigenschaften %1"_s.arg(eigen->text());
    QVERIFY2(text.contains(eintraege), qPrintable(text));
    QCOMPARE(lage(*fenster), vorher);
    QCOMPARE(notiz->toPlainText(), u"Größe × 3 °C\nnoch nicht gespeichert"_s);
}

void TestDrucken::ohneFilterKeineListe()
{
    QFETCH(const Sparte, sparte);
    oeffnen(sparte);
    Pflanzenfenster *fenster = probe_->fenster(1, sparte);
    for (const bool ein : {true, false, true}) {
        if (fenster->FilterEin != ein)
            klick(fenster, "cmdFilterEin");
        QCOMPARE(fenster->FilterEin, ein);
        drucken(fenster, [&](QDialog &form) {
            auto *liste = form.findChild<QRadioButton *>(u"optDruckFrage_1"_s);
            QCOMPARE(liste->isEnabled(), ein);
            QTest::mouseClick(liste, Qt::LeftButton, {}, {8, liste->height() / 2});
            QCOMPARE(liste->isChecked(), ein);
            form.reject();
        });
    }
}

void TestDrucken::kriterienWieSieStehen()
{
    oeffnen(Sparte::Topf);
    Pflanzenfenster *fenster = probe_->fenster(1);
    const int anzahl = fenster->Anzahl;
    QVERIFY(!pdfSeiten(gedruckt(fenster, true)).first().contains(u"Pflanzentyp"_s));
    // Changed, and the dialog left without a run: the plants are those of the last one.
    klick(fenster, "cmdFilter");
    Filterdialog *dialog = fenster->filterdialog();
    QTRY_VERIFY(dialog->isVisible());
    dialog->findChild<QCheckBox *>(u"chkTyp_1"_s)->setChecked(true);
    dialog->findChild<QLineEdit *>(u"txtMinTemp"_s)->setText(u"12"_s);
    QTest::mouseClick(dialog->findChild<QPushButton *>(u"cmdAbbruch"_s), Qt::LeftButton);
    QCOMPARE(fenster->Anzahl, anzahl);
    const QString text = pdfSeiten(gedruckt(fenster, true)).join(u' ').simplified();
    QVERIFY2(text.contains(u"Filter: Datenbank: Topfpflanzen Pflanzentyp: Blütenpflanze Temperatur: ab 12 °C "_s), qPrintable(text));
    for (qsizetype i = 0; i < anzahl; ++i)
        QVERIFY(text.contains(fenster->satz().haupt().textBei(i, u"BOT_NAME").simplified()));
}

void TestDrucken::aktivesFenster()
{
    for (int i = 0; i < 3; ++i)
        oeffnen(Sparte::Topf);
    for (int nummer = 1; nummer <= 3; ++nummer) {
        fensterVorn(nummer);
        for (int i = 0; i < nummer; ++i)
            klick(probe_->fenster(nummer), "cmdNext");
    }
    QStringList namen;
    for (const int nummer : {2, 1, 3, 2}) {
        fensterVorn(nummer);
        Pflanzenfenster *fenster = probe_->fenster(nummer);
        QCOMPARE(fenster->satz().haupt().AbsolutePosition(), nummer);
        const QString name = kopf(gedruckt(fenster));
        QCOMPARE(name, fenster->Auslesen(u"BOT_NAME"_s));
        namen += name;
    }
    QCOMPARE(QSet<QString>(namen.begin(), namen.end()).size(), 3);
}

void TestDrucken::aktiveSparte()
{
    oeffnen(Sparte::Topf);
    oeffnen(Sparte::Apfel);
    for (const Sparte sparte : {Sparte::Topf, Sparte::Apfel, Sparte::Topf}) {
        fensterVorn(1, sparte);
        Pflanzenfenster *fenster = probe_->fenster(1, sparte);
        QCOMPARE(kopf(gedruckt(fenster)), fenster->Auslesen(u"BOT_NAME"_s));
        QVERIFY(pdfSeiten(gedruckt(fenster, true)).first().contains(u"Datenbank: %1"_s.arg(eintrag(sparte).titel)));
    }
}

void TestDrucken::zweiNacheinander()
{
    oeffnen(Sparte::Apfel);
    Pflanzenfenster *fenster = probe_->fenster(1, Sparte::Apfel);
    const QString erstes = kopf(gedruckt(fenster));
    klick(fenster, "cmdNext");
    const QString zweites = kopf(gedruckt(fenster));
    QCOMPARE(zweites, fenster->Auslesen(u"BOT_NAME"_s));
    QVERIFY(erstes != zweites);
}

FLOX_TEST(tst_drucken, TestDrucken)
#include "tst_drucken.moc"
