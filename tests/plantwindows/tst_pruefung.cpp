#include "Uebungshand.h"

#include "plantwindows/Aufgabe.h"
#include "plantwindows/Uebung.h"
#include "plantwindows/frmPruefung.h"
#include "store/Lernstand.h"
#include "tests/Testprogramm.h"

#include <QApplication>
#include <QPointer>
#include <QPushButton>
#include <QTableWidget>
#include <QTest>

using namespace Qt::StringLiterals;

/* The examination in the plant window, driven by keys: its clock, its end, its sheet. */

class TestPruefung : public QObject
{
    Q_OBJECT

private slots:
    void pruefung();
    void pruefungsende();
    void pruefungAbgebrochen();
};

void TestPruefung::pruefung()
{
    Fensterprobe probe;
    probe.alleZeigen();
    oeffnen(probe);
    qint64 zeit = 0;
    probe.fenster->uebungszeit = {[&zeit] { return zeit; }, [] { return QDate(2026, 5, 1); }};
    const qint64 vorher = probe.fenster->satz().artnr();
    taste(Qt::Key_F9);
    probe.finde<QPushButton>(u"cmdPruefung"_s)->click();
    QCOMPARE(probe.text(u"lblUhr"_s), u"20:00"_s);
    QCOMPARE(probe.panel(4), u"1/20"_s);
    QVERIFY(!probe.gezeigt(u"cmdAufdecken"_s));
    // Nothing else of the window can be used.
    for (const char *knopf : {"cmdNext", "cmdFilter", "cmdDruck", "cmdBotDeu"})
        QVERIFY(!probe.knopf(knopf)->isEnabled());
    // All right, all wrong, nothing, in turn; the key goes from line to line and on.
    int punkte = 0, zeilen = 0, falsche = 0;
    for (int i = 0; i < 20; ++i) {
        zeit += 30'000;
        const Aufgabe jetzt = aufgabe(probe);
        const QString name = probe.name();
        zeilen += int(jetzt.teile.size());
        for (const Teilaufgabe &teil : jetzt.teile) {
            if (i % 3 == 0) {
                tippen(teil.loesung.text);
                punkte += 2;
            } else if (i % 3 == 1) {
                tippen(u"Unsinn"_s);
                ++falsche;
            }
            QVERIFY(probe.fenster->namenVerdeckt());
            taste(Qt::Key_Return);
        }
        QCOMPARE(probe.name() == name, i == 19);
        if (i == 10)
            QTRY_COMPARE(probe.text(u"lblUhr"_s), u"14:30"_s);
    }
    taste(Qt::Key_Space);
    QVERIFY(probe.fenster->namenVerdeckt());
    Meldungsfaenger faenger;
    const QPointer<frmPruefung> keins = probe.fenster->findChild<frmPruefung *>();
    QVERIFY(!keins);
    // Hand it in: it asks, since some plants have no answer; the usual answer is to go on.
    probe.finde<QPushButton>(u"cmdPruefung"_s)->click();
    QCOMPARE(faenger.texte.size(), 1);
    QVERIFY2(faenger.texte[0].startsWith(u"Zu 6 Pflanzen steht"_s), qPrintable(faenger.texte[0]));
    QVERIFY(probe.fenster->uebt());
    // Until the time is over.
    zeit = 20 * pruefungszeit;
    QTRY_VERIFY(!probe.fenster->uebt());
    auto *form = probe.finde<frmPruefung>(u"frmPruefung"_s);
    QVERIFY(form->isVisible());
    QCOMPARE(form->ergebnis().zeilen.size(), size_t(zeilen));
    QCOMPARE(form->ergebnis().halbePunkteGesamt(), punkte);
    QCOMPARE(form->ergebnis().umstaende(), u"Topfpflanzen, 20 Pflanzen, 01.05.2026, 20:00 Minuten"_s);
    QCOMPARE(std::ranges::count_if(form->ergebnis().zeilen, [](const Ergebniszeile &zeile) { return zeile.gegeben == u"Unsinn"; }), falsche);
    auto *tabelle = form->findChild<QTableWidget *>(u"tabErgebnis"_s);
    QCOMPARE(tabelle->rowCount(), zeilen);
    QCOMPARE(probe.fenster->satz().artnr(), vorher);
    QVERIFY(zuSehen(probe.finde(u"lblBotName"_s), probe.fenster.get()));
    QVERIFY(probe.knopf("cmdFilter")->isEnabled());
    // Every plant of it is kept.
    const Lernstand stand = Lernstand::laden(standdatei(probe)).stand;
    QCOMPARE(stand.werte().size(), 20);
    int gekonnt = 0;
    for (const Lernwert &wert : stand.werte())
        gekonnt += wert.folge == 1;
    QCOMPARE(gekonnt, 7);
    form->findChild<QPushButton *>(u"cmdErgebnisDrucken"_s)->click();
    QCOMPARE(probe.zentrale.ergebnisse, 1);
    form->findChild<QPushButton *>(u"cmdErgebnisSchliessen"_s)->click();
    QTRY_VERIFY(!probe.fenster->findChild<frmPruefung *>());
}

void TestPruefung::pruefungsende()
{
    // A small set is asked whole, a minute each.
    Fensterprobe probe(Sparte::Apfel);
    oeffnen(probe, 3);
    qint64 zeit = 0;
    probe.fenster->uebungszeit.uhr = [&zeit] { return zeit; };
    taste(Qt::Key_F9);
    probe.finde<QPushButton>(u"cmdPruefung"_s)->click();
    QCOMPARE(probe.text(u"lblUhr"_s), u"3:00"_s);
    for (int i = 0; i < 3; ++i) {
        tippen(aufgabe(probe).teile[0].loesung.text);
        taste(Qt::Key_Return);
    }
    // With all plants answered it is not asked again.
    Meldungsfaenger faenger;
    probe.finde<QPushButton>(u"cmdPruefung"_s)->click();
    QVERIFY(faenger.texte.isEmpty());
    QCOMPARE(probe.finde<frmPruefung>(u"frmPruefung"_s)->ergebnis().punktesatz(), u"3 von 3 Punkten (100 %)"_s);
}

void TestPruefung::pruefungAbgebrochen()
{
    Fensterprobe probe;
    oeffnen(probe, 5);
    taste(Qt::Key_F9);
    probe.finde<QPushButton>(u"cmdPruefung"_s)->click();
    {
        Meldungsfaenger faenger;
        taste(Qt::Key_Escape);
        QCOMPARE(faenger.texte.size(), 1);
        QVERIFY(probe.fenster->uebt());
    }
    nachDerBox(probe);
    bool gedrueckt = false;
    QTimer::singleShot(0, this, [&] {
        auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
        if (!box)
            return;
        for (QAbstractButton *knopf : box->buttons())
            if (knopf->text() == u"Abbrechen") {
                gedrueckt = true;
                knopf->click();
                return;
            }
        box->reject();
    });
    taste(Qt::Key_F9);
    QVERIFY(gedrueckt);
    QVERIFY(!probe.fenster->uebt());
    QVERIFY(!probe.fenster->findChild<frmPruefung *>());
    QVERIFY(!QFile::exists(standdatei(probe)));
}

FLOX_TEST(tst_pruefung, TestPruefung)
#include "tst_pruefung.moc"
