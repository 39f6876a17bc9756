#include "Dialogprobe.h"

#include "tests/Testprogramm.h"

#include <QApplication>
#include <QDir>
#include <QProgressDialog>
#include <QToolButton>
#include <QWheelEvent>

using namespace Qt::StringLiterals;

/* The print dialog pages through what it will print, tells how far a long output is and where it went. */

namespace {

/// Notes every progress that shows, and cancels it on demand.
class Abbrecher : public QObject
{
public:
    explicit Abbrecher(bool abbrechen)
    {
        takt_.setInterval(0);
        connect(&takt_, &QTimer::timeout, this, [this, abbrechen] {
            auto *dialog = qobject_cast<QProgressDialog *>(QApplication::activeModalWidget());
            if (!dialog)
                return;
            texte += dialog->labelText();
            if (abbrechen)
                QTest::mouseClick(dialog->findChild<QPushButton *>(), Qt::LeftButton);
        });
        takt_.start();
    }
    QStringList texte;

private:
    QTimer takt_;
};

} // namespace

class TestSeitenansicht : public QObject, private Dialogprobe
{
    Q_OBJECT

private slots:
    void init() { neu(); }
    void blaettern_data();
    void blaettern();
    void eineSeite();
    void seitenzahlNachDemWechsel();
    void tabulator();
    void fortschrittUndAbbruch_data();
    void fortschrittUndAbbruch();
    void zaehlenAbgebrochen();
    void abgebrochenesPdf();
    void ordnerWirdGemerkt();
    void ordnerDerWegIst();

private:
    Seitenvorschau *vorschau() { return finde<Seitenvorschau>("picVorschau"); }
    QString seite() { return finde<QLabel>("lblSeite")->text(); }
    void viele(int anzahl)
    {
        probe_->namenReihe(anzahl);
        oeffnen();
        waehlen(true);
    }
};

void TestSeitenansicht::blaettern_data()
{
    QTest::addColumn<QString>("wie");
    for (const char *wie : {"buttons", "keys", "wheel"})
        QTest::newRow(wie) << QString::fromLatin1(wie);
}

void TestSeitenansicht::blaettern()
{
    QFETCH(const QString, wie);
    viele(200);
    const int anzahl = int(vorschau()->seiten().seiten.size());
    QCOMPARE(anzahl, int(erwartet(true).seiten.size()));
    QVERIFY(anzahl > 2);
    const auto schritt = [&](bool vor) {
        if (wie == u"buttons")
            QTest::mouseClick(finde<QToolButton>(vor ? "cmdSeiteVor" : "cmdSeiteZurueck"), Qt::LeftButton);
        else if (wie == u"keys")
            QTest::keyClick(QApplication::focusWidget(), vor ? Qt::Key_PageDown : Qt::Key_PageUp);
        else {
            const QPoint mitte = vorschau()->rect().center();
            QWheelEvent rad(mitte, vorschau()->mapToGlobal(mitte), {}, QPoint(0, vor ? -120 : 120), Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase,
                            false);
            QCoreApplication::sendEvent(vorschau(), &rad);
        }
    };
    QVERIFY(QTest::qWaitForWindowActive(form_.get()));
    QStringList gesehen;
    QList<QImage> bilder;
    for (int i = 0; i <= anzahl; ++i) { // once too often
        gesehen += seite();
        QVERIFY(i >= anzahl || !bilder.contains(vorschau()->grab().toImage()));
        bilder += vorschau()->grab().toImage();
        QCOMPARE(finde<QToolButton>("cmdSeiteZurueck")->isEnabled(), i > 0);
        QCOMPARE(finde<QToolButton>("cmdSeiteVor")->isEnabled(), i < anzahl - 1);
        schritt(true);
    }
    for (int i = 0; i < anzahl; ++i)
        QCOMPARE(gesehen[i], u"Seite %1 von %2"_s.arg(i + 1).arg(anzahl));
    QCOMPARE(gesehen[anzahl], gesehen[anzahl - 1]);
    QCOMPARE(vorschau()->accessibleName(), u"Vorschau: "_s + gesehen[anzahl]);
    for (int i = anzahl - 1; i >= 0; --i) {
        QCOMPARE(seite(), gesehen[i]);
        QVERIFY(vorschau()->grab().toImage() == bilder[i]);
        schritt(false);
    }
    QCOMPARE(seite(), gesehen[0]);
    if (wie == u"keys") {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_End);
        QCOMPARE(seite(), gesehen[anzahl - 1]);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Home);
        QCOMPARE(seite(), gesehen[0]);
    }
    QVERIFY(offen());
}

void TestSeitenansicht::eineSeite()
{
    oeffnen();
    QCOMPARE(seite(), u"Seite 1 von 1"_s);
    QVERIFY(!finde<QToolButton>("cmdSeiteVor")->isEnabled() && !finde<QToolButton>("cmdSeiteZurueck")->isEnabled());
    form_.reset();
    fenster_ = false;
    oeffnen();
    QCOMPARE(seite(), QString());
    QVERIFY(!finde<QToolButton>("cmdSeiteVor")->isEnabled() && !finde<QToolButton>("cmdSeiteZurueck")->isEnabled());
}

void TestSeitenansicht::seitenzahlNachDemWechsel()
{
    viele(200);
    QTest::keyClick(form_.get(), Qt::Key_End);
    QVERIFY(!seite().startsWith(u"Seite 1 "));
    // Other pages begin with the first one.
    waehlen(false);
    QCOMPARE(seite(), u"Seite 1 von 1"_s);
    waehlen(true);
    QVERIFY(seite().startsWith(u"Seite 1 von "));
}

void TestSeitenansicht::tabulator()
{
    viele(200);
    QVERIFY(QTest::qWaitForWindowActive(form_.get()));
    QTest::keyClick(form_.get(), Qt::Key_PageDown);
    finde<QRadioButton>("optDruckFrage_1")->setFocus();
    QStringList folge;
    for (int i = 0; i < 7; ++i) {
        folge += QApplication::focusWidget()->objectName();
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    }
    QCOMPARE(folge, (QStringList{u"optDruckFrage_1"_s, u"cmdDruckerEinrichten"_s, u"cmdTabelle"_s, u"cmdDruck"_s, u"cmdAbbruch"_s,
                                 u"cmdSeiteZurueck"_s, u"cmdSeiteVor"_s}));
    QCOMPARE(QApplication::focusWidget()->objectName(), u"optDruckFrage_1"_s);
}

void TestSeitenansicht::fortschrittUndAbbruch_data()
{
    QTest::addColumn<bool>("abbrechen");
    QTest::newRow("to the end") << false;
    QTest::newRow("cancelled") << true;
}

void TestSeitenansicht::fortschrittUndAbbruch()
{
    QFETCH(const bool, abbrechen);
    viele(3000);
    const qsizetype anzahl = qsizetype(vorschau()->seiten().seiten.size());
    form_->geduld = std::chrono::milliseconds(0);
    Boxen boxen;
    {
        Abbrecher abbrecher(abbrechen);
        druecken("cmdDruck");
        QVERIFY(!abbrecher.texte.isEmpty());
        QCOMPARE(abbrecher.texte.constFirst(), u"Der Ausdruck wird vorbereitet ..."_s);
        QCOMPARE(abbrecher.texte.contains(u"Der Ausdruck wird ausgegeben ..."_s), !abbrechen);
    }
    QCOMPARE(boxen.gesagt, QStringList());
    QCOMPARE(geraet_.gedruckt.size(), abbrechen ? 0 : 1);
    if (!abbrechen) {
        QVERIFY(zu());
        QCOMPARE(geraet_.gemeldet.size(), anzahl);
        QCOMPARE(geraet_.gedruckt.first().abschrift, abschrift(erwartet(true)));
        return;
    }
    // It stays open, and the next try goes to the end.
    QVERIFY(offen());
    QCOMPARE(seite(), u"Seite 1 von %1"_s.arg(anzahl));
    druecken("cmdDruck");
    QCOMPARE(geraet_.gedruckt.size(), 1);
    QVERIFY(zu());
}

void TestSeitenansicht::zaehlenAbgebrochen()
{
    probe_->namenReihe(3000);
    oeffnen();
    form_->geduld = std::chrono::milliseconds(0);
    {
        Abbrecher abbrecher(true);
        waehlen(true);
        QVERIFY(!abbrecher.texte.isEmpty());
    }
    // The first page, without the number of all.
    QCOMPARE(vorschau()->seiten().seiten.size(), size_t(1));
    QCOMPARE(seite(), u"Seite 1"_s);
    QVERIFY(offen());
    druecken("cmdDruck");
    QCOMPARE(geraet_.gedruckt.size(), 1);
    QCOMPARE(geraet_.gedruckt.first().abschrift, abschrift(erwartet(true)));
}

void TestSeitenansicht::abgebrochenesPdf()
{
    probe_->namenReihe(500);
    const Druckseiten seiten = erwartet(true);
    const QString datei = probe_->ordner.pfad(u"Liste.pdf"_s);
    {
        QFile alt(datei);
        QVERIFY(alt.open(QIODevice::WriteOnly));
        alt.write("alt");
    }
    const QStringList vorher = QDir(probe_->ordner.pfad()).entryList(QDir::Files);
    qsizetype gesehen = 0;
    bool abgebrochen = false;
    try {
        pdfSchreiben(seiten, blattA4(), u"Liste"_s, datei, [&](qsizetype fertig, qsizetype gesamt) {
            QCOMPARE(fertig, gesehen++);
            QCOMPARE(gesamt, qsizetype(seiten.seiten.size()));
            if (fertig == 3)
                throw Druckabbruch();
        });
    } catch (const Druckabbruch &) {
        abgebrochen = true;
    }
    QVERIFY(abgebrochen);
    QCOMPARE(gesehen, 4);
    QFile alt(datei);
    QVERIFY(alt.open(QIODevice::ReadOnly));
    QCOMPARE(alt.readAll(), QByteArray("alt"));
    QCOMPARE(QDir(probe_->ordner.pfad()).entryList(QDir::Files), vorher);
}

void TestSeitenansicht::ordnerWirdGemerkt()
{
    geraet_.dateien = true;
    const QString ordner = probe_->ordner.pfad(u"Meine Ausdrucke"_s);
    QVERIFY(QDir().mkpath(ordner));
    const auto angeboten = [&](const QString &antwort) {
        QString gezeigt;
        QTimer sehen;
        connect(&sehen, &QTimer::timeout, &sehen, [&] {
            if (auto *dialog = qobject_cast<QFileDialog *>(QApplication::activeModalWidget()); dialog && gezeigt.isEmpty())
                gezeigt = dialog->directory().absolutePath();
        });
        sehen.start(0);
        oeffnen();
        Dateiwahl wahl(antwort);
        druecken("cmdDruck");
        return gezeigt;
    };
    QCOMPARE(angeboten(ordner + u"/a.pdf"_s), QDir(dateiordner()).absolutePath());
    QCOMPARE(form_->gespeichert(), ordner + u"/a.pdf"_s);
    QCOMPARE(probe_->programm.DruckOrdner, ordner);
    // A dialog that is left without a file changes nothing.
    QCOMPARE(angeboten(QString()), ordner);
    QCOMPARE(form_->gespeichert(), QString());
    QCOMPARE(angeboten(probe_->ordner.pfad(u"b.pdf"_s)), ordner);
    QCOMPARE(angeboten(ordner + u"/c.pdf"_s), QDir(probe_->ordner.pfad()).absolutePath());
    // Neither does a file that could not be written.
    geraet_.stoerung = [] { throw Fehler(u"voll"_s); };
    Boxen boxen;
    angeboten(probe_->ordner.pfad(u"d.pdf"_s));
    QCOMPARE(probe_->programm.DruckOrdner, ordner);
    QCOMPARE(form_->gespeichert(), QString());
}

void TestSeitenansicht::ordnerDerWegIst()
{
    geraet_.dateien = true;
    probe_->programm.DruckOrdner = probe_->ordner.pfad(u"weg"_s);
    QString gezeigt;
    QTimer sehen;
    connect(&sehen, &QTimer::timeout, &sehen, [&] {
        if (auto *dialog = qobject_cast<QFileDialog *>(QApplication::activeModalWidget())) {
            gezeigt = dialog->directory().absolutePath();
            static_cast<QDialog *>(dialog)->reject();
        }
    });
    sehen.start(0);
    oeffnen();
    druecken("cmdDruck");
    QCOMPARE(gezeigt, QDir(dateiordner()).absolutePath());
}

FLOX_TEST(tst_seitenansicht, TestSeitenansicht)
#include "tst_seitenansicht.moc"
