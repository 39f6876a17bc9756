#include "Dialogprobe.h"

#include "printing/mdlDruck.h"
#include "tests/Testprogramm.h"

#include <QApplication>
#include <QGroupBox>
#include <QLineEdit>
#include <QPrintDialog>
#include <QPrinterInfo>

using namespace Qt::StringLiterals;

/* The print dialog: what it holds, shows and refuses. */

namespace {

QPageLayout blatt(QPageSize::PageSizeId papier)
{
    return QPageLayout(QPageSize(papier), QPageLayout::Portrait, {}, QPageLayout::Millimeter);
}

} // namespace

class TestFrmDrucken : public QObject, private Dialogprobe
{
    Q_OBJECT

private slots:
    void init() { neu(); }
    void aufbau();
    void listeNurMitFilter_data();
    void listeNurMitFilter();
    void schriftUndBreite_data();
    void schriftUndBreite();
    void papier_data();
    void papier();
    void papierwechsel();
    void hoppla_data();
    void hoppla();
    void vorschau_data();
    void vorschau();
    void vorschauOhneFenster();
    void tabulator();
    void verlassen_data();
    void verlassen();
    void eingabetaste();
    void systemdruckerAbgebrochen();
    void systemdruckerEingerichtet();
    void systemdruckerNenntFreieDatei();
};

void TestFrmDrucken::aufbau()
{
    Boxen boxen;
    oeffnen();
    QCOMPARE(form_->objectName(), u"frmDrucken"_s);
    QCOMPARE(form_->windowTitle(), u"Drucken"_s);
    const auto *rahmen = finde<QGroupBox>("fraDruckFrage");
    QCOMPARE(rahmen->title(), u"Was soll gedruckt werden ?"_s);
    QCOMPARE(form_->findChildren<QRadioButton *>().size(), 2);
    for (const auto &[name, text] :
         {std::pair("optDruckFrage_0", u"aktuelle Pflanze"_s), std::pair("optDruckFrage_1", u"Liste der gefilterten Pflanzen"_s)}) {
        QCOMPARE(finde<QRadioButton>(name)->text(), text);
        QVERIFY(rahmen->isAncestorOf(finde<QRadioButton>(name)));
    }
    QVERIFY(finde<QRadioButton>("optDruckFrage_0")->isChecked());
    QCOMPARE(form_->findChildren<QPushButton *>().size(), 4);
    for (const auto &[name, text] : {std::pair("cmdDruck", u"Druck"_s), std::pair("cmdAbbruch", u"Abbrechen"_s),
                                     std::pair("cmdDruckerEinrichten", u"Druckereinrichtung"_s), std::pair("cmdTabelle", u"Tabelle speichern"_s)})
        QCOMPARE(finde(name)->text(), text);
    QCOMPARE(finde<QLabel>("lblDrucker")->text(), u"Drucker: Probe & Druck\nPapier: A4"_s);
    // Nothing is cut off and nothing lies on something else.
    QList<QWidget *> controls{finde<QGroupBox>("fraDruckFrage"), finde("cmdDruck"),   finde("cmdAbbruch"),
                              finde("cmdDruckerEinrichten"),     finde("cmdTabelle"), finde<QLabel>("lblDrucker"),
                              finde<QWidget>("picVorschau")};
    for (const QSize groesse : {form_->size(), form_->minimumSizeHint(), QSize(1200, 900)}) {
        form_->resize(groesse);
        QCoreApplication::processEvents();
        for (const QWidget *a : controls) {
            QVERIFY2(form_->rect().contains(a->geometry()), qPrintable(a->objectName()));
            QVERIFY2(a->height() >= a->minimumSizeHint().height() && a->width() >= a->minimumSizeHint().width(), qPrintable(a->objectName()));
            for (const QWidget *b : controls)
                QVERIFY2(a == b || !a->geometry().intersects(b->geometry()), qPrintable(a->objectName() + u' ' + b->objectName()));
        }
    }
    QCOMPARE(boxen.gesagt, QStringList());
}

void TestFrmDrucken::listeNurMitFilter_data()
{
    QTest::addColumn<bool>("ein");
    QTest::addColumn<bool>("gesetzt");
    QTest::addColumn<bool>("fenster");
    for (const bool ein : {false, true})
        for (const bool gesetzt : {false, true})
            QTest::addRow("%s, %s", ein ? "ein" : "aus", gesetzt ? "gesetzt" : "nicht gesetzt") << ein << gesetzt << true;
    QTest::newRow("kein Fenster") << true << true << false;
}

void TestFrmDrucken::listeNurMitFilter()
{
    QFETCH(const bool, ein);
    QFETCH(const bool, gesetzt);
    QFETCH(const bool, fenster);
    probe_->auftrag.FilterEin = ein;
    probe_->auftrag.FilterGesetzt = gesetzt;
    fenster_ = fenster;
    oeffnen();
    const bool erlaubt = ein && gesetzt && fenster;
    QCOMPARE(finde<QRadioButton>("optDruckFrage_1")->isEnabled(), erlaubt);
    QVERIFY(finde<QRadioButton>("optDruckFrage_0")->isEnabled());
    QVERIFY(finde<QRadioButton>("optDruckFrage_0")->isChecked());
    QTest::mouseClick(finde<QRadioButton>("optDruckFrage_1"), Qt::LeftButton, {}, {8, 8});
    QTest::keyClick(finde<QRadioButton>("optDruckFrage_0"), Qt::Key_Down);
    QCOMPARE(finde<QRadioButton>("optDruckFrage_1")->isChecked(), erlaubt);
}

void TestFrmDrucken::schriftUndBreite_data()
{
    QTest::addColumn<QPageSize::PageSizeId>("papier");
    QTest::addColumn<double>("rand");
    QTest::addColumn<int>("breite"); // of the printable area - 25, rounded
    QTest::newRow("A4") << QPageSize::A4 << 0.0 << 185;
    QTest::newRow("A4 mit Rand") << QPageSize::A4 << 4.2 << 177;
    QTest::newRow("A3") << QPageSize::A3 << 0.0 << 272;
    QTest::newRow("Letter") << QPageSize::Letter << 0.0 << 191;
}

void TestFrmDrucken::schriftUndBreite()
{
    QFETCH(const QPageSize::PageSizeId, papier);
    QFETCH(const double, rand);
    geraet_.papier = ::blatt(papier);
    geraet_.papier.setMargins({rand, rand, rand, rand});
    probe_->programm.SchriftGroesse = 14;
    probe_->programm.SeitenBreite = 1;
    oeffnen();
    QCOMPARE(probe_->programm.SchriftGroesse, 9);
    QTEST(probe_->programm.SeitenBreite, "breite");
    druecken("cmdAbbruch");
    QCOMPARE(probe_->programm.SchriftGroesse, 9);
    QTEST(probe_->programm.SeitenBreite, "breite");
}

void TestFrmDrucken::papier_data()
{
    QTest::addColumn<QPageSize::PageSizeId>("papier");
    QTest::newRow("A3") << QPageSize::A3;
    QTest::newRow("A5") << QPageSize::A5;
    QTest::newRow("B4") << QPageSize::B4;
    QTest::newRow("Letter") << QPageSize::Letter;
    QTest::newRow("Legal") << QPageSize::Legal;
    QTest::newRow("Umschlag") << QPageSize::EnvelopeDL;
}

void TestFrmDrucken::papier()
{
    QFETCH(const QPageSize::PageSizeId, papier);
    geraet_.papier = ::blatt(papier);
    Boxen boxen;
    Dateiwahl wahl(probe_->ordner.pfad(u"nie.pdf"_s));
    for (const bool dateien : {false, true})
        for (const bool liste : {false, true}) {
            geraet_.dateien = dateien;
            boxen.gesagt.clear();
            oeffnen();
            waehlen(liste);
            QCOMPARE(gezeigt(), alleSeiten(liste));
            QCOMPARE(boxen.gesagt, QStringList());
            druecken("cmdDruck");
            QCOMPARE(boxen.gesagt, QStringList{u"Flox-Demo: Geht nicht"_s});
            QVERIFY(offen());
        }
    QCOMPARE(geraet_.gedruckt.size(), 0);
    QCOMPARE(wahl.dialoge, 0);
}

void TestFrmDrucken::papierwechsel()
{
    Boxen boxen;
    geraet_.papier = ::blatt(QPageSize::Letter);
    oeffnen();
    druecken("cmdDruck");
    QCOMPARE(boxen.gesagt.size(), 1);
    geraet_.beimEinrichten = [this] {
        geraet_.papier = blattA4();
        return true;
    };
    druecken("cmdDruckerEinrichten");
    QCOMPARE(geraet_.einrichter, QList<QWidget *>{form_.get()});
    QCOMPARE(finde<QLabel>("lblDrucker")->text(), u"Drucker: Probe & Druck\nPapier: A4"_s);
    QCOMPARE(gezeigt(), alleSeiten(false));
    druecken("cmdDruck");
    QCOMPARE(boxen.gesagt.size(), 1);
    QCOMPARE(geraet_.gedruckt.size(), 1);
    QVERIFY(zu());
}

void TestFrmDrucken::hoppla_data()
{
    QTest::addColumn<QString>("sparte"); // empty: no window is active
    QTest::newRow("kein Fenster") << QString();
    for (const SpartenEintrag &sparte : alleSparten())
        if (!druckbeschreibung(sparte.sparte))
            QTest::newRow(qPrintable(sparte.wort.toString())) << sparte.wort.toString();
}

void TestFrmDrucken::hoppla()
{
    QFETCH(const QString, sparte);
    fenster_ = !sparte.isEmpty();
    if (fenster_)
        probe_->auftrag.sparte = *sparteVonWort(sparte);
    geraet_.dateien = true;
    Boxen boxen;
    Dateiwahl wahl(probe_->ordner.pfad(u"nie.pdf"_s));
    oeffnen();
    QCOMPARE(boxen.gesagt, QStringList());
    druecken("cmdDruck");
    QCOMPARE(boxen.gesagt, QStringList{u"Flox-Demo: Hoppla"_s});
    QVERIFY(offen());
    if (fenster_) {
        waehlen(true);
        druecken("cmdDruck");
        QCOMPARE(boxen.gesagt.size(), 2);
        QCOMPARE(boxen.gesagt.last(), u"Flox-Demo: Hoppla"_s);
    }
    QCOMPARE(geraet_.gedruckt.size(), 0);
    QCOMPARE(wahl.dialoge, 0);
}

void TestFrmDrucken::vorschau_data()
{
    QTest::addColumn<Sparte>("sparte");
    QTest::newRow("Topf") << Sparte::Topf;
    QTest::newRow("Apfel") << Sparte::Apfel;
}

void TestFrmDrucken::vorschau()
{
    QFETCH(const Sparte, sparte);
    probe_ = std::make_unique<Druckprobe>(sparte);
    probe_->namenReihe(200);
    probe_->setzen({{u"benu_bemerkung"_s, QStringList(99, u"Zeile"_s).join(u'\n')}});
    QVERIFY(erwartet(false).seiten.size() > 1 && erwartet(true).seiten.size() > 1);
    Boxen boxen;
    oeffnen();
    QCOMPARE(gezeigt(), alleSeiten(false));
    const QImage bildBlatt = finde<QWidget>("picVorschau")->grab().toImage();
    waehlen(true);
    QCOMPARE(gezeigt(), alleSeiten(true));
    QVERIFY(finde<QWidget>("picVorschau")->grab().toImage() != bildBlatt);
    waehlen(false);
    QCOMPARE(gezeigt(), alleSeiten(false));
    QVERIFY(finde<QWidget>("picVorschau")->grab().toImage() == bildBlatt);
    // The set-up moves the edges of what can be printed; a cancelled one changes nothing.
    const QStringList vorher = gezeigt();
    druecken("cmdDruckerEinrichten");
    QCOMPARE(geraet_.einrichter.size(), 1);
    QCOMPARE(gezeigt(), vorher);
    geraet_.beimEinrichten = [this] {
        geraet_.papier.setMargins({5, 6, 7, 8});
        return true;
    };
    druecken("cmdDruckerEinrichten");
    QVERIFY(gezeigt() != vorher);
    QCOMPARE(gezeigt(), alleSeiten(false));
    QCOMPARE(boxen.gesagt, QStringList());
    QVERIFY(offen());
    QCOMPARE(geraet_.gedruckt.size(), 0);
}

void TestFrmDrucken::vorschauOhneFenster()
{
    const auto schwarz = [this] {
        const QImage bild = finde<QWidget>("picVorschau")->grab().toImage();
        int anzahl = 0;
        for (int y = 0; y < bild.height(); ++y)
            for (int x = 0; x < bild.width(); ++x)
                anzahl += qGray(bild.pixel(x, y)) < 80;
        return anzahl;
    };
    fenster_ = false;
    oeffnen();
    QVERIFY(finde<Seitenvorschau>("picVorschau")->seiten().seiten.empty());
    QCOMPARE(schwarz(), 0);
    form_.reset();
    fenster_ = true;
    oeffnen();
    QVERIFY(schwarz() > 100);
}

void TestFrmDrucken::tabulator()
{
    oeffnen();
    QVERIFY(QTest::qWaitForWindowActive(form_.get()));
    for (const bool liste : {false, true}) {
        waehlen(liste);
        QRadioButton *frage = finde<QRadioButton>(liste ? "optDruckFrage_1" : "optDruckFrage_0");
        frage->setFocus();
        QStringList folge;
        for (int i = 0; i < (liste ? 6 : 4); ++i) {
            folge += QApplication::focusWidget()->objectName();
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        }
        // From top to bottom, and round.
        QStringList erwartet{frage->objectName(), u"cmdDruckerEinrichten"_s, u"cmdDruck"_s, u"cmdAbbruch"_s};
        if (liste) {
            erwartet.insert(2, u"cmdTabelle"_s);
            erwartet += u"cmdSeiteVor"_s; // it has more than one page
        }
        QCOMPARE(folge, erwartet);
        QCOMPARE(QApplication::focusWidget(), frage);
    }
}

void TestFrmDrucken::verlassen_data()
{
    QTest::addColumn<std::function<void(QDialog &)>>("wie");
    using Wie = std::function<void(QDialog &)>;
    QTest::newRow("Abbrechen") << Wie([](QDialog &form) { QTest::mouseClick(form.findChild<QPushButton *>(u"cmdAbbruch"_s), Qt::LeftButton); });
    QTest::newRow("Escape") << Wie([](QDialog &form) { QTest::keyClick(&form, Qt::Key_Escape); });
    QTest::newRow("Fenster geschlossen") << Wie([](QDialog &form) { form.close(); });
}

void TestFrmDrucken::verlassen()
{
    QFETCH(const std::function<void(QDialog &)>, wie);
    Boxen boxen;
    oeffnen();
    wie(*form_);
    QVERIFY(zu());
    QCOMPARE(form_->result(), int(QDialog::Rejected));
    QCOMPARE(geraet_.gedruckt.size(), 0);
    QCOMPARE(boxen.gesagt, QStringList());
}

void TestFrmDrucken::eingabetaste()
{
    for (const char *name : {"optDruckFrage_0", "cmdDruck"}) {
        geraet_.gedruckt.clear();
        oeffnen();
        QVERIFY(QTest::qWaitForWindowActive(form_.get()));
        finde<QWidget>(name)->setFocus();
        QTest::keyClick(finde<QWidget>(name), Qt::Key_Return);
        QCOMPARE(geraet_.gedruckt.size(), 1);
        QCOMPARE(geraet_.einrichter.size(), 0);
        QVERIFY(zu());
    }
    // A button that has the focus is the one that is meant.
    geraet_.gedruckt.clear();
    oeffnen();
    QVERIFY(QTest::qWaitForWindowActive(form_.get()));
    finde("cmdDruckerEinrichten")->setFocus();
    QTest::keyClick(finde("cmdDruckerEinrichten"), Qt::Key_Return);
    QCOMPARE(geraet_.einrichter.size(), 1);
    QVERIFY(offen());
    finde("cmdAbbruch")->setFocus();
    QTest::keyClick(finde("cmdAbbruch"), Qt::Key_Return);
    QVERIFY(zu());
    QCOMPARE(geraet_.gedruckt.size(), 0);
}

void TestFrmDrucken::systemdruckerAbgebrochen()
{
    if (!QPrinterInfo::availablePrinterNames().isEmpty())
        QSKIP("A printer is installed.");
    Systemdrucker drucker;
    const QPageLayout vorher = drucker.blatt();
    QCOMPARE(vorher.pageSize().id(), QPageSize::A4);
    QCOMPARE(vorher.paintRect(QPageLayout::Millimeter), QRectF(0, 0, 210, 297));
    QVERIFY(drucker.schreibtDatei());
    QCOMPARE(drucker.datei(), QString());
    QCOMPARE(drucker.name(), u"PDF-Datei"_s);
    Boxen boxen;
    oeffnen(drucker);
    const QStringList blatt = gezeigt();
    QStringList gesehen;
    QTimer takt;
    connect(&takt, &QTimer::timeout, this, [&] {
        if (auto *dialog = qobject_cast<QPrintDialog *>(QApplication::activeModalWidget())) {
            gesehen += dialog->windowTitle();
            static_cast<QDialog *>(dialog)->reject();
        }
    });
    takt.start(1);
    druecken("cmdDruckerEinrichten");
    QCOMPARE(gesehen, QStringList{u"Druckereinrichtung"_s});
    QCOMPARE(boxen.gesagt, QStringList());
    QVERIFY(offen());
    QVERIFY(drucker.blatt() == vorher);
    QCOMPARE(drucker.datei(), QString());
    QCOMPARE(gezeigt(), blatt);
}

void TestFrmDrucken::systemdruckerEingerichtet()
{
    if (!QPrinterInfo::availablePrinterNames().isEmpty())
        QSKIP("A printer is installed.");
    Systemdrucker drucker;
    Boxen boxen;
    oeffnen(drucker);
    int gesehen = 0;
    QStringList dateien;
    QTimer takt;
    connect(&takt, &QTimer::timeout, this, [&] {
        if (auto *dialog = qobject_cast<QPrintDialog *>(QApplication::activeModalWidget())) {
            ++gesehen;
            auto *datei = dialog->findChild<QLineEdit *>(u"filename"_s);
            dateien += datei->text();
            datei->setText(probe_->ordner.pfad(u"Eingerichtet.pdf"_s));
            static_cast<QDialog *>(dialog)->accept();
        }
    });
    takt.start(1);
    druecken("cmdDruckerEinrichten");
    QCOMPARE(gesehen, 1);
    QCOMPARE(drucker.datei(), probe_->ordner.pfad(u"Eingerichtet.pdf"_s));
    QVERIFY(drucker.schreibtDatei());
    QCOMPARE(drucker.blatt().paintRect(QPageLayout::Millimeter), QRectF(0, 0, 210, 297));
    QVERIFY(!QFile::exists(drucker.datei()));
    // What was set up stands there the next time.
    druecken("cmdDruckerEinrichten");
    QCOMPARE(gesehen, 2);
    QCOMPARE(dateien.last(), drucker.datei());
    QVERIFY(drucker.schreibtDatei());
    Dateiwahl wahl(probe_->ordner.pfad(u"Blatt.pdf"_s));
    druecken("cmdDruck");
    QCOMPARE(wahl.vorschlag, u"Eingerichtet.pdf"_s);
    QVERIFY(zu());
    QCOMPARE(boxen.gesagt, QStringList());
    const QStringList seiten = pdfSeiten(probe_->ordner.pfad(u"Blatt.pdf"_s));
    QCOMPARE(seiten.size(), 1);
    QCOMPARE(ohneLeerraum(seiten.first()), ohneLeerraum(seitentexte(erwartet(false).seiten[0]).join(u' ')));
}

/// The set-up asks before a file that exists is taken, though it prints nothing: it offers one that does not.
void TestFrmDrucken::systemdruckerNenntFreieDatei()
{
    if (!QPrinterInfo::availablePrinterNames().isEmpty())
        QSKIP("A printer is installed.");
    const QByteArray vorher = qgetenv("HOME");
    qputenv("HOME", QFile::encodeName(probe_->ordner.pfad()));
    QFile alt(QDir(dateiordner()).filePath(u"Flox.pdf"_s));
    QVERIFY(alt.open(QIODevice::WriteOnly));
    Systemdrucker drucker;
    qputenv("HOME", vorher);
    Boxen boxen;
    oeffnen(drucker);
    QStringList dateien;
    QTimer takt;
    connect(&takt, &QTimer::timeout, this, [&] {
        if (auto *dialog = qobject_cast<QPrintDialog *>(QApplication::activeModalWidget())) {
            dateien += dialog->findChild<QLineEdit *>(u"filename"_s)->text();
            static_cast<QDialog *>(dialog)->accept();
        }
    });
    takt.start(1);
    druecken("cmdDruckerEinrichten");
    QCOMPARE(dateien.size(), 1);
    QVERIFY2(dateien.first().endsWith(u"/Flox 2.pdf"), qPrintable(dateien.first()));
    QCOMPARE(drucker.datei(), QString()); // nobody chose it
    QCOMPARE(boxen.gesagt, QStringList());
}

FLOX_TEST(tst_frmdrucken, TestFrmDrucken)
#include "tst_frmdrucken.moc"
