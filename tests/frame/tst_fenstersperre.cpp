#include "Handgriffe.h"
#include "Rahmenprobe.h"

#include "controls/Steuerelemente.h"
#include "filters/Filterdialog.h"
#include "frame/Flaeche.h"
#include "tests/Testprogramm.h"

#include <QLineEdit>
#include <QMenu>
#include <QSlider>
#include <QTest>

using namespace Qt::StringLiterals;

/* One filter dialog and several windows of its Sparte: what is locked, what is freed, whose copy a run takes. */

class TestFenstersperre : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void gesperrtSindGanzeFenster();
    void jederAusgangGibtFrei_data();
    void jederAusgangGibtFrei();
    void programmendeBeiOffenemDialog();
    void oeffnenGibtNichtsFrei();
    void oeffnenMitMeldungGibtNichtsFrei();
    void laufTrifftDieEigeneKopie_data();
    void laufTrifftDieEigeneKopie();
    void parkenTrifftDieEigeneDatei();
    void leeresErgebnisTrifftDieEigeneKopie();
    void knoepfeNachDemLauf();
    void laufOhneDialogLaesstDenFokus();
    void ungeschlossenesFensterRaeumtAuf();

private:
    Pflanzenfenster *fenster(int nummer, Sparte sparte = Sparte::Topf) { return probe_->fenster(nummer, sparte); }
    bool frei(int nummer, Sparte sparte = Sparte::Topf)
    {
        const bool frei = hand::unterfenster(fenster(nummer, sparte))->isEnabled();
        return frei && hand::knopf(fenster(nummer, sparte), "cmdDruck")->isEnabled();
    }
    QMdiSubWindow *vorn() { return probe_->zentrale->findChild<Flaeche *>()->activeSubWindow(); }
    Filterdialog &dialog(int nummer) { return *fenster(nummer)->filterdialog(); }
    void dialogOeffnen(int nummer);
    /// Only plants whose name holds the text pass.
    void namenVerlangen(int nummer, const QString &text) { dialog(nummer).findChild<QLineEdit *>(u"txtbotName"_s)->setText(text); }
    /// The window shows what its copy holds, and no other number of plants.
    void stimmig(int nummer);

    std::unique_ptr<Rahmenprobe> probe_;
};

void TestFenstersperre::init()
{
    probe_.reset();
    probe_ = std::make_unique<Rahmenprobe>();
    probe_->programm.MdiStatus = 0;
    probe_->laden();
    probe_->zentrale->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(probe_->zentrale.get()));
    probe_->waehlen("mnudbtopfpflanzen");
    probe_->waehlen("mnudbtopfpflanzen");
    probe_->waehlen("mnudbapfel");
    hand::titelleiste(fenster(1));
    QCOMPARE(vorn(), hand::unterfenster(fenster(1)));
}

void TestFenstersperre::dialogOeffnen(int nummer)
{
    hand::klick(fenster(nummer), "cmdFilter");
    QVERIFY(dialog(nummer).isVisible());
}

void TestFenstersperre::stimmig(int nummer)
{
    QCOMPARE(hand::zeilenDerKopie(fenster(nummer)), fenster(nummer)->Anzahl);
    QCOMPARE(fenster(nummer)->satz().haupt().RecordCount(), fenster(nummer)->Anzahl);
    QVERIFY(!fenster(nummer)->Auslesen(u"BOT_NAME"_s).isEmpty());
}

void TestFenstersperre::gesperrtSindGanzeFenster()
{
    dialogOeffnen(1);
    QVERIFY(!frei(1) && !frei(2) && frei(1, Sparte::Apfel));
    hand::titelleiste(fenster(2));
    QVERIFY(vorn() != hand::unterfenster(fenster(2)));
    QCOMPARE(probe_->programm.aktuellesFenster(Sparte::Topf), 1);
    for (const int nummer : {1, 2}) {
        hand::schliessknopf(fenster(nummer));
        QVERIFY(fenster(nummer) && fenster(nummer)->isVisible());
    }
    // Another Sparte is none of the dialog's business.
    hand::titelleiste(fenster(1, Sparte::Apfel));
    QCOMPARE(vorn(), hand::unterfenster(fenster(1, Sparte::Apfel)));
    QTest::keyClick(probe_->zentrale->windowHandle(), Qt::Key_F4, Qt::ControlModifier);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(!fenster(1, Sparte::Apfel));
    for (const int nummer : {1, 2}) {
        QTest::keyClick(probe_->zentrale->windowHandle(), Qt::Key_F4, Qt::ControlModifier);
        QVERIFY2(fenster(1) && fenster(2), qPrintable(QString::number(nummer)));
    }
    hand::druecken(&dialog(1), "cmdAbbruch");
    // Freed, the same presses work.
    hand::schliessknopf(fenster(2));
    QVERIFY(!fenster(2));
    hand::titelleiste(fenster(1));
    QCOMPARE(vorn(), hand::unterfenster(fenster(1)));
    hand::schliessen(fenster(1));
    QVERIFY(!fenster(1));
}

void TestFenstersperre::jederAusgangGibtFrei_data()
{
    QTest::addColumn<QString>("ausgang");
    for (const char *ausgang : {"cmdOK", "cmdAbbruch", "Escape", "close", "own window closed", "own window deleted"})
        QTest::newRow(ausgang) << QString::fromLatin1(ausgang);
}

void TestFenstersperre::jederAusgangGibtFrei()
{
    QFETCH(QString, ausgang);
    dialogOeffnen(1);
    QVERIFY(!frei(2));
    if (ausgang == u"Escape")
        QTest::keyClick(&dialog(1), Qt::Key_Escape);
    else if (ausgang == u"close")
        dialog(1).close();
    else if (ausgang == u"own window closed")
        hand::unterfenster(fenster(1))->close();
    else if (ausgang == u"own window deleted")
        delete hand::unterfenster(fenster(1));
    else
        hand::druecken(&dialog(1), qPrintable(ausgang));
    QVERIFY(frei(2));
    if (ausgang.startsWith(u"own")) {
        QVERIFY(!fenster(1));
        QVERIFY(!probe_->temp("db_to1.tmp"));
    } else {
        QVERIFY(frei(1));
    }
    stimmig(2);
}

void TestFenstersperre::programmendeBeiOffenemDialog()
{
    hand::klick(fenster(1), "cmdFilterEin"); // a parked filter
    hand::titelleiste(fenster(2));
    dialogOeffnen(2);
    QVERIFY(probe_->temp("TempFilterTo1.fft"));
    QVERIFY(probe_->zentrale->close());
    QCOMPARE(QDir(probe_->ordner.pfad()).entryList(QDir::Files), QStringList{u"flox-demo.mdb"_s});
}

void TestFenstersperre::oeffnenGibtNichtsFrei()
{
    dialogOeffnen(1);
    probe_->waehlen("mnudbtopfpflanzen");
    QVERIFY(fenster(3) && fenster(3)->isVisible());
    QVERIFY(!frei(1) && !frei(2) && !frei(3) && frei(1, Sparte::Apfel));
    QVERIFY(dialog(1).isVisible());
    stimmig(3);
    hand::druecken(&dialog(1), "cmdAbbruch");
    QVERIFY(frei(1) && frei(2) && frei(3));
    QCOMPARE(probe_->programm.aktuellesFenster(Sparte::Topf), 1);
    // A new window of a Sparte without an open dialog is free.
    probe_->waehlen("mnudbapfel");
    QVERIFY(frei(2, Sparte::Apfel));
}

void TestFenstersperre::oeffnenMitMeldungGibtNichtsFrei()
{
    dialogOeffnen(1);
    probe_->ordner.db()->Execute(u"UPDATE TOPFPFL SET bewertung = 1"_s);
    Antworten antworten;
    probe_->waehlen("mnudbtopfpflanzen");
    QCOMPARE(antworten.texte.size(), 1);
    QVERIFY(!frei(1) && !frei(2) && !frei(3));
    hand::druecken(&dialog(1), "cmdAbbruch");
    QVERIFY(frei(1) && frei(2) && frei(3));
}

void TestFenstersperre::laufTrifftDieEigeneKopie_data()
{
    QTest::addColumn<QString>("dazwischen");
    for (const char *was : {"nothing", "title bar", "menu", "other Sparte", "number"})
        QTest::newRow(was) << QString::fromLatin1(was);
}

void TestFenstersperre::laufTrifftDieEigeneKopie()
{
    QFETCH(QString, dazwischen);
    const int vorher = fenster(2)->Anzahl;
    hand::klick(fenster(2), "cmdLast");
    hand::titelleiste(fenster(1));
    dialogOeffnen(1);
    if (dazwischen == u"title bar")
        hand::titelleiste(fenster(2));
    else if (dazwischen == u"menu")
        probe_->waehlen("mnudbtopfpflanzen");
    else if (dazwischen == u"other Sparte")
        hand::titelleiste(fenster(1, Sparte::Apfel));
    else if (dazwischen == u"number")
        probe_->programm.aktuellesFenster(Sparte::Topf) = 2; // whatever has activated it
    namenVerlangen(1, u"us "_s);
    hand::druecken(&dialog(1), "cmdOK");
    QVERIFY(!dialog(1).isVisible());
    QVERIFY(fenster(1)->Anzahl < vorher);
    QCOMPARE(fenster(2)->Anzahl, vorher);
    QCOMPARE(probe_->programm.aktuellesFenster(Sparte::Topf), 1);
    for (int nummer = 1; fenster(nummer); ++nummer)
        stimmig(nummer);
    // The other window's records and notes are its own as before.
    hand::titelleiste(fenster(2));
    hand::klick(fenster(2), "cmdFirst");
    const qint64 artnr = fenster(2)->satz().artnr();
    hand::notieren(fenster(2), u"Fenster zwei"_s);
    hand::klick(fenster(2), "cmdNext");
    QCOMPARE(hand::gespeichert(probe_->ordner, Sparte::Topf, artnr), u"Fenster zwei/     "_s);
    hand::klick(fenster(2), "cmdBack");
    QCOMPARE(fenster(2)->Auslesen(u"benu_bemerkung"_s), u"Fenster zwei"_s);
}

void TestFenstersperre::parkenTrifftDieEigeneDatei()
{
    // The number belongs to whoever was activated last; a routine of window 1 takes its own.
    probe_->programm.aktuellesFenster(Sparte::Topf) = 2;
    hand::klick(fenster(1), "cmdFilterEin");
    QVERIFY(probe_->temp("TempFilterTo1.fft") && !probe_->temp("TempFilterTo2.fft"));
    QCOMPARE(probe_->programm.aktuellesFenster(Sparte::Topf), 1);
    stimmig(1);
    stimmig(2);
    probe_->programm.aktuellesFenster(Sparte::Topf) = 2;
    hand::klick(fenster(1), "cmdFilterEin");
    QVERIFY(!probe_->temp("TempFilterTo1.fft"));
    stimmig(1);
    stimmig(2);
}

void TestFenstersperre::leeresErgebnisTrifftDieEigeneKopie()
{
    dialogOeffnen(1);
    namenVerlangen(1, u"gibt es nicht"_s);
    probe_->programm.aktuellesFenster(Sparte::Topf) = 2;
    const int zwei = fenster(2)->Anzahl;
    Antworten antworten;
    hand::druecken(&dialog(1), "cmdOK");
    QCOMPARE(antworten.texte.size(), 1);
    QVERIFY(dialog(1).isVisible());
    QVERIFY(!frei(1) && !frei(2));
    stimmig(1);
    stimmig(2);
    QCOMPARE(fenster(2)->Anzahl, zwei);
    hand::druecken(&dialog(1), "cmdAbbruch");
}

void TestFenstersperre::knoepfeNachDemLauf()
{
    for (const bool gefiltert : {false, true}) {
        dialogOeffnen(1);
        namenVerlangen(1, gefiltert ? u"us "_s : QString());
        hand::druecken(&dialog(1), "cmdOK");
        QCOMPARE(hand::knopf(fenster(1), "cmdFilterEin")->bild(), u"filter_n_n"_s);
        QCOMPARE(hand::knopf(fenster(1), "cmdFilterSpeichern")->bild(), u"filters_n"_s);
        QCOMPARE(hand::knopf(fenster(1), "cmdNext")->bild(), u"next_n"_s);
        QCOMPARE(hand::knopf(fenster(1), "cmdBack")->bild(), u"back_ef"_s);
    }
}

/// Opening a window and switching its filter run it without a dialog: no button that nobody touched gets the focus.
void TestFenstersperre::laufOhneDialogLaesstDenFokus()
{
    probe_->waehlen("mnudbtopfpflanzen");
    QVERIFY(!hand::knopf(fenster(3), "cmdFilter")->hasFocus());
    QWidget *schalter = hand::knopf(fenster(3), "cmdFilterEin");
    schalter->setFocus(Qt::TabFocusReason);
    for (const bool ein : {false, true}) {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Space);
        QCOMPARE(fenster(3)->FilterEin, ein);
        QVERIFY(schalter->hasFocus());
    }
}

void TestFenstersperre::ungeschlossenesFensterRaeumtAuf()
{
    // As at the end of a program that was not closed by hand.
    hand::klick(fenster(2), "cmdFilterEin");
    QVERIFY(probe_->temp("TempFilterTo2.fft"));
    probe_->zentrale.reset();
    QCOMPARE(QDir(probe_->ordner.pfad()).entryList(QDir::Files), QStringList{u"flox-demo.mdb"_s});
}

FLOX_TEST(tst_fenstersperre, TestFenstersperre)
#include "tst_fenstersperre.moc"
