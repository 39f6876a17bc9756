#include "Fensterprobe.h"

#include "plantwindows/Knopfzustaende.h"
#include "store/Fehler.h"
#include "tests/Testprogramm.h"

#include <QAbstractItemView>
#include <QComboBox>
#include <QFile>
#include <QFileInfo>
#include <QPlainTextEdit>
#include <QTabBar>
#include <QTabWidget>
#include <QSignalSpy>
#include <QTest>

using namespace Qt::StringLiterals;

/* The frame of a plant window: walking, order, selector, picture buttons, life and keyboard. */

class TestFensterrahmen : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void anfangszustand();
    void ersteAktivierung();
    void oeffnenKopiertEinmal();
    void knoepfeGehenDurchDenSatz();
    void auswahlNurMitFokus();
    void auswahlAusDerListe();
    void auswahlMitDerTastatur();
    void kuerzel();
    void ordnungBehaeltDiePflanze_data();
    void ordnungBehaeltDiePflanze();
    void ordnungScheitert();
    void ordnungIstDeutsch();
    void zeilenDerAuswahl();
    void einzelnerDatensatz();
    void navigationsknoepfe_data();
    void navigationsknoepfe();
    void knopfzustaende_data();
    void knopfzustaende();
    void umschaltendeKnoepfe_data();
    void umschaltendeKnoepfe();
    void nurDerKnopfUnterDerMaus();
    void gesperrterKnopfBleibtGrau();
    void hinweiseDerKnoepfe();
    void hausmodus();
    void hilfe();
    void mulkoFolgtDemFilter();
    void aktivesFenster();
    void schliessenRaeumtAuf();
    void liegengebliebeneKopie();
    void kopieIstEigen();
    void fehlendeDatenbank();
    void tastatur();
    void namenFuerVorlesende();
    void esPasstInsKleinsteFenster();

private:
    QComboBox *auswahl() { return probe_->finde<QComboBox>(u"cboArten"_s); }
    /// Another window, not yet opened, with as many plants.
    void neu(int anzahl);
    QString temp(int nummer) { return probe_->ordner.pfad(u"db_to%1.tmp"_s.arg(nummer)); }
    QString bilder();
    QStringList zeilen();

    std::unique_ptr<Fensterprobe> probe_;
};

void TestFensterrahmen::init()
{
    probe_.reset();
    probe_ = std::make_unique<Fensterprobe>();
    probe_->oeffnen();
}

void TestFensterrahmen::neu(int anzahl)
{
    probe_.reset();
    probe_ = std::make_unique<Fensterprobe>();
    probe_->nurPflanzen(anzahl);
}

/// Pictures, availability and marks of the four walking buttons.
QString TestFensterrahmen::bilder()
{
    QStringList zustand;
    for (const char *name : {"cmdFirst", "cmdBack", "cmdNext", "cmdLast"}) {
        const Bildknopf *knopf = probe_->knopf(name);
        zustand += u"%1%2%3"_s.arg(knopf->bild(), knopf->isEnabled() ? u"+"_s : u"-"_s, knopf->tag());
    }
    return zustand.join(u' ');
}

void TestFensterrahmen::anfangszustand()
{
    const auto fenster = probe_->weiteres(7);
    QCOMPARE(fenster->windowTitle(), u"Topfpflanzen 7"_s);
    QCOMPARE(fenster->property("Tag").toString(), u"7"_s);
    QCOMPARE(fenster->Fensternummer, 7);
    QCOMPARE(fenster->Anzahl, 0);
    QVERIFY(fenster->FilterEin && fenster->ErsteAktivierung && fenster->Botanisch);
    QVERIFY(!fenster->FilterGesetzt && !fenster->ArtenHatFokus && !fenster->DatenGeaendert);
    QCOMPARE(fenster->ButtonUnterMaus, QString());
    QVERIFY(!QFile::exists(temp(7)));
}

void TestFensterrahmen::ersteAktivierung()
{
    Pflanzenfenster &fenster = *probe_->fenster;
    QVERIFY(!fenster.ErsteAktivierung);
    QCOMPARE(fenster.BilderAnzahl, 2); // the two plates of the first plant
    // A new window shows the plants that are rated 5 and better.
    const auto db = probe_->ordner.db();
    Anweisung &gute = db->vorbereitet(u"SELECT count(*) FROM TOPFPFL WHERE bewertung >= 5"_s);
    QVERIFY(gute.schritt());
    QCOMPARE(fenster.Anzahl, int(gute.zahl(0)));
    gute.zuruecksetzen();
    QCOMPARE(auswahl()->count(), fenster.Anzahl);
    QCOMPARE(auswahl()->currentIndex(), 0);
    QCOMPARE(probe_->panel(4), u"1/%1"_s.arg(fenster.Anzahl));
    QVERIFY(QFile::exists(temp(1)));
    // A further activation opens nothing anew and leaves the plant alone.
    probe_->klick("cmdNext");
    const QString vorher = probe_->name();
    fenster.Form_Activate();
    QCOMPARE(probe_->name(), vorher);
    QCOMPARE(probe_->panel(4), u"2/%1"_s.arg(fenster.Anzahl));
}

void TestFensterrahmen::oeffnenKopiertEinmal()
{
    Fensterprobe neu;
    neu.nurPflanzen(5);
    // What is written into the copy at the first view lasts unless the file is copied again.
    neu.zentrale.beimWechsel = [&] {
        neu.zentrale.beimWechsel = nullptr;
        neu.fenster->satz().kopie().Execute(u"UPDATE TOPFPFL SET BEMERKUNG = 'Marke'"_s);
    };
    neu.oeffnen();
    QVERIFY(!neu.zentrale.beimWechsel);
    QCOMPARE(neu.fenster->Auslesen(u"BEMERKUNG"_s), u"Marke"_s);
}

void TestFensterrahmen::knoepfeGehenDurchDenSatz()
{
    const int anzahl = probe_->fenster->Anzahl;
    const std::pair<const char *, int> schritte[] = {{"cmdNext", 1},          {"cmdNext", 2},          {"cmdBack", 1}, {"cmdLast", anzahl - 1},
                                                     {"cmdBack", anzahl - 2}, {"cmdNext", anzahl - 1}, {"cmdFirst", 0}};
    QSet<QString> namen;
    for (const auto &[knopf, stelle] : schritte) {
        probe_->klick(knopf);
        QCOMPARE(int(probe_->fenster->satz().haupt().AbsolutePosition()), stelle);
        QCOMPARE(auswahl()->currentIndex(), stelle);
        QCOMPARE(auswahl()->currentText(), probe_->name());
        QCOMPARE(probe_->text(u"lblBotName"_s), probe_->name());
        QCOMPARE(probe_->panel(4), u"%1/%2"_s.arg(stelle + 1).arg(anzahl));
        QCOMPARE(probe_->fenster->cursor().shape(), Qt::ArrowCursor);
        namen += probe_->name();
    }
    QCOMPARE(namen.size(), 5);
}

void TestFensterrahmen::auswahlNurMitFokus()
{
    const QString erste = probe_->name();
    probe_->finde<QTabWidget>(u"tabStauden"_s)->setFocus();
    QVERIFY(!probe_->fenster->ArtenHatFokus);
    auswahl()->setCurrentIndex(3);
    QCOMPARE(probe_->name(), erste);
    auswahl()->setCurrentIndex(0);
    auswahl()->setFocus();
    QTRY_VERIFY(probe_->fenster->ArtenHatFokus);
    auswahl()->setCurrentIndex(3);
    QCOMPARE(int(probe_->fenster->satz().haupt().AbsolutePosition()), 3);
    QCOMPARE(probe_->text(u"lblBotName"_s), auswahl()->currentText());
    QCOMPARE(probe_->panel(4), u"4/%1"_s.arg(probe_->fenster->Anzahl));
    probe_->finde<QTabWidget>(u"tabStauden"_s)->setFocus();
    QTRY_VERIFY(!probe_->fenster->ArtenHatFokus);
    // While the selector holds the focus, the buttons walk too.
    auswahl()->setFocus();
    probe_->klick("cmdNext");
    QCOMPARE(int(probe_->fenster->satz().haupt().AbsolutePosition()), 4);
    QCOMPARE(auswahl()->currentIndex(), 4);
}

/// The open list may hold the focus itself: what is chosen there counts all the same.
void TestFensterrahmen::auswahlAusDerListe()
{
    Pflanzenfenster &fenster = *probe_->fenster;
    auswahl()->showPopup();
    fenster.ArtenHatFokus = false;
    QTest::keyClick(auswahl()->view(), Qt::Key_Down);
    QTest::keyClick(auswahl()->view(), Qt::Key_Down);
    QTest::keyClick(auswahl()->view(), Qt::Key_Return);
    QCOMPARE(auswahl()->currentIndex(), 2);
    QCOMPARE(fenster.satz().haupt().AbsolutePosition(), 2);
}

void TestFensterrahmen::auswahlMitDerTastatur()
{
    auswahl()->setFocus();
    QTRY_VERIFY(auswahl()->hasFocus());
    const int letzte = probe_->fenster->Anzahl - 1;
    const std::pair<Qt::Key, int> tasten[] = {{Qt::Key_Down, 1}, {Qt::Key_Down, 2}, {Qt::Key_Up, 1}, {Qt::Key_End, letzte}, {Qt::Key_Home, 0}};
    for (const auto &[taste, stelle] : tasten) {
        QTest::keyClick(auswahl(), taste);
        QCOMPARE(int(probe_->fenster->satz().haupt().AbsolutePosition()), stelle);
        QCOMPARE(probe_->text(u"lblBotName"_s), auswahl()->currentText());
    }
}

void TestFensterrahmen::kuerzel()
{
    probe_->fenster->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(probe_->fenster.get()));
    const int letzte = probe_->fenster->Anzahl - 1;
    const std::pair<Qt::Key, int> tasten[] = {{Qt::Key_PageDown, 1}, {Qt::Key_End, letzte}, {Qt::Key_PageUp, letzte - 1}, {Qt::Key_Home, 0}};
    for (const auto &[taste, stelle] : tasten) {
        QTest::keyClick(probe_->fenster.get(), taste, Qt::ControlModifier);
        QCOMPARE(int(probe_->fenster->satz().haupt().AbsolutePosition()), stelle);
    }
}

void TestFensterrahmen::ordnungBehaeltDiePflanze_data()
{
    QTest::addColumn<int>("stelle");
    QTest::addColumn<bool>("fokus");
    for (const int stelle : {0, 17, 60})
        for (const bool fokus : {false, true})
            QTest::addRow("record %d, selector %s focus", stelle, fokus ? "with" : "without") << stelle << fokus;
}

void TestFensterrahmen::ordnungBehaeltDiePflanze()
{
    QFETCH(int, stelle);
    QFETCH(bool, fokus);
    Pflanzenfenster &fenster = *probe_->fenster;
    fenster.satz().haupt().setAbsolutePosition(stelle);
    fenster.darstellen();
    auswahl()->setCurrentIndex(stelle);
    if (fokus) {
        auswahl()->setFocus();
        QTRY_VERIFY(fenster.ArtenHatFokus);
    }
    const QString pflanze = probe_->name(), deutsch = fenster.Auslesen(u"DTNAM"_s);
    fenster.DatenGeaendert = true;
    probe_->klick("cmdBotDeu");
    QVERIFY(!fenster.Botanisch);
    QCOMPARE(probe_->name(), pflanze);
    QCOMPARE(probe_->text(u"lblBotName"_s), pflanze);
    const int neu = int(fenster.satz().haupt().AbsolutePosition());
    QCOMPARE(auswahl()->currentIndex(), neu);
    QCOMPARE(auswahl()->currentText(), u"%1 (%2)"_s.arg(deutsch, pflanze));
    QCOMPARE(probe_->panel(4), u"%1/%2"_s.arg(neu + 1).arg(fenster.Anzahl));
    QVERIFY(fenster.DatenGeaendert);
    probe_->klick("cmdBotDeu");
    QVERIFY(fenster.Botanisch);
    QCOMPARE(probe_->name(), pflanze);
    QCOMPARE(auswahl()->currentIndex(), stelle);
    QCOMPARE(probe_->panel(4), u"%1/%2"_s.arg(stelle + 1).arg(fenster.Anzahl));
}

void TestFensterrahmen::ordnungScheitert()
{
    probe_->fenster->satz().kopie().Execute(u"DROP TABLE TOPFPFL"_s);
    Meldungsfaenger meldungen;
    probe_->klick("cmdBotDeu");
    QCOMPARE(meldungen.titel, QStringList{u"Flox-Demo"_s});
    QCOMPARE(probe_->fenster->cursor().shape(), Qt::ArrowCursor);
}

void TestFensterrahmen::ordnungIstDeutsch()
{
    neu(5);
    const QString namen[] = {u"Zinnia"_s, u"Ärmelblume"_s, u"× Achimenes"_s, u"arum"_s, u"Aster"_s};
    Recordset satz(probe_->ordner.db(), u"TOPFPFL"_s);
    for (const QString &name : namen) {
        satz.Edit();
        satz.Fields(u"BOT_NAME").setValue(name);
        satz.Update();
        satz.MoveNext();
    }
    probe_->oeffnen();
    QCOMPARE(zeilen().join(u", "), u"× Achimenes, Ärmelblume, arum, Aster, Zinnia"_s);
}

QStringList TestFensterrahmen::zeilen()
{
    QStringList texte;
    for (int i = 0; i < auswahl()->count(); ++i)
        texte += auswahl()->itemText(i);
    return texte;
}

void TestFensterrahmen::zeilenDerAuswahl()
{
    neu(3);
    const std::pair<QString, QVariant> namen[] = {{u"Testus"_s, {}}, {u"Probus"_s, u""_s}, {u"Merkus"_s, u"Merkblume"_s}};
    Recordset satz(probe_->ordner.db(), u"TOPFPFL"_s);
    for (const auto &[botanisch, deutsch] : namen) {
        satz.Edit();
        satz.Fields(u"BOT_NAME").setValue(botanisch);
        satz.Fields(u"DTNAM").setValue(deutsch);
        satz.Update();
        satz.MoveNext();
    }
    probe_->oeffnen();
    QCOMPARE(zeilen(), (QStringList{u"Merkus"_s, u"Probus"_s, u"Testus"_s}));
    QCOMPARE(probe_->programm.SortierFeld, u"BOT_NAME"_s);
    probe_->klick("cmdBotDeu");
    QCOMPARE(zeilen(), (QStringList{u"Testus (Kein deutscher Name vorhanden!)"_s, u" (Probus)"_s, u"Merkblume (Merkus)"_s}));
    QCOMPARE(probe_->programm.SortierFeld, u"DTNAM"_s);
    QCOMPARE(probe_->name(), u"Merkus"_s);
}

void TestFensterrahmen::einzelnerDatensatz()
{
    neu(1);
    probe_->oeffnen();
    const QString einzige = probe_->name();
    QCOMPARE(bilder(), u"first_ef- back_ef-gesperrt next_ef-gesperrt last_ef-"_s);
    QCOMPARE(probe_->panel(4), u"1/1"_s);
    probe_->fenster->NaviPruefung();
    QCOMPARE(probe_->name(), einzige);
    for (const char *knopf : {"cmdFirst", "cmdBack", "cmdNext", "cmdLast"}) {
        probe_->knopf(knopf)->click();
        QCOMPARE(probe_->name(), einzige);
        probe_->klick(knopf);
        QCOMPARE(probe_->name(), einzige);
    }
    for (const Qt::Key taste : {Qt::Key_PageDown, Qt::Key_PageUp, Qt::Key_End, Qt::Key_Home}) {
        QTest::keyClick(probe_->fenster.get(), taste, Qt::ControlModifier);
        QCOMPARE(probe_->name(), einzige);
        QCOMPARE(probe_->panel(4), u"1/1"_s);
    }
}

void TestFensterrahmen::navigationsknoepfe_data()
{
    QTest::addColumn<int>("stelle"); // negative: from the end
    QTest::addColumn<QString>("unterMaus");
    QTest::addColumn<QString>("bilder");
    QTest::newRow("first") << 0 << ""
                           << "first_ef- back_ef-gesperrt next_n+ last_n+";
    QTest::newRow("middle") << 5 << ""
                            << "first_n+ back_n+ next_n+ last_n+";
    QTest::newRow("last") << -1 << ""
                          << "first_n+ back_n+ next_ef-gesperrt last_ef-";
    QTest::newRow("mouse on next") << 5 << "cmdNext"
                                   << "first_n+ back_n+ next+ last_n+";
    QTest::newRow("mouse on last") << 5 << "cmdLast"
                                   << "first_n+ back_n+ next_n+ last+";
    QTest::newRow("mouse on back") << 5 << "cmdBack"
                                   << "first_n+ back+ next_n+ last_n+";
    QTest::newRow("mouse on first") << 5 << "cmdFirst"
                                    << "first+ back_n+ next_n+ last_n+";
    QTest::newRow("mouse on next at the end") << -1 << "cmdNext"
                                              << "first_n+ back_n+ next_ef-gesperrt last_ef-";
    QTest::newRow("mouse on first at the start") << 0 << "cmdFirst"
                                                 << "first_ef- back_ef-gesperrt next_n+ last_n+";
}

void TestFensterrahmen::navigationsknoepfe()
{
    QFETCH(int, stelle);
    QFETCH(QString, unterMaus);
    Recordset &satz = probe_->fenster->satz().haupt();
    satz.setAbsolutePosition(stelle < 0 ? probe_->fenster->Anzahl + stelle : stelle);
    const QString pflanze = probe_->name();
    probe_->fenster->ButtonUnterMaus = unterMaus;
    probe_->fenster->NaviPruefung();
    QTEST(bilder(), "bilder");
    QCOMPARE(probe_->name(), pflanze);
}

void TestFensterrahmen::knopfzustaende_data()
{
    QTest::addColumn<QString>("knopf");
    QTest::addColumn<QString>("normal");
    QTest::addColumn<QString>("darueber");
    QTest::addColumn<QString>("gedrueckt");
    QTest::addColumn<QString>("losgelassen");
    QTest::addColumn<bool>("sanduhr");
    // clang-format off
    const auto zeile = [](const char *knopf, const char *normal, const char *darueber, const char *gedrueckt, const char *losgelassen, bool sanduhr = false) {
        QTest::newRow(knopf) << QString::fromLatin1(knopf) << normal << darueber << gedrueckt << losgelassen << sanduhr;
    };
    // clang-format on
    zeile("cmdFirst", "first_n", "first", "first_u", "first", true);
    zeile("cmdBack", "back_n", "back", "back_u", "back", true);
    zeile("cmdNext", "next_n", "next", "next_u", "next", true);
    zeile("cmdLast", "last_n", "last", "last_u", "last", true);
    zeile("cmdBotDeu", "botanisc_n", "botanisc", "botanisc_u", "botanisc");
    zeile("cmdFilterEin", "filter_n_n", "filter_n", "filter_n_u", "filter");
    zeile("cmdFilter", "filterb_n", "filterb", "filterb_u", "filterb_n");
    zeile("cmdFilterLaden", "filterl_n", "filterl", "filterl_u", "filterl");
    zeile("cmdFilterSpeichern", "filters_n", "filters", "filters_u", "filters");
    zeile("cmdDruck", "druck_n", "druck", "druck_u", "druck");
}

void TestFensterrahmen::knopfzustaende()
{
    QFETCH(QString, knopf);
    QFETCH(QString, normal);
    QFETCH(QString, darueber);
    QFETCH(QString, gedrueckt);
    QFETCH(QString, losgelassen);
    QFETCH(bool, sanduhr);
    Pflanzenfenster &fenster = *probe_->fenster;
    auto *button = probe_->finde<Bildknopf>(knopf);
    button->setEnabled(true);
    fenster.satz().haupt().setAbsolutePosition(5);
    fenster.NaviPruefung();
    button->setBild(normal);

    Fensterprobe::mausBewegen(button, QPoint(10, 10));
    QCOMPARE(button->bild(), darueber);
    QCOMPARE(button->tag(), u"benutzt"_s);
    QCOMPARE(fenster.ButtonUnterMaus, knopf);
    // Only the edge repaints: further moves leave the picture as it is.
    button->setBild(u"probe"_s);
    Fensterprobe::mausBewegen(button, QPoint(12, 12));
    Fensterprobe::mausBewegen(button, QPoint(14, 14));
    QCOMPARE(button->bild(), u"probe"_s);

    QTest::mousePress(button, Qt::LeftButton);
    QCOMPARE(button->bild(), gedrueckt);
    QCOMPARE(fenster.cursor().shape(), sanduhr ? Qt::WaitCursor : Qt::ArrowCursor);
    // Released outside, the button does nothing but change its picture.
    QTest::mouseRelease(button, Qt::LeftButton, {}, QPoint(-40, -40));
    QCOMPARE(button->bild(), losgelassen);

    auto *leiste = probe_->finde(u"picLeiste"_s);
    Fensterprobe::mausBewegen(leiste, QPoint(1, 1));
    QCOMPARE(fenster.ButtonUnterMaus, QString());
    QCOMPARE(button->bild(), normal);
    QCOMPARE(button->tag(), QString());
}

void TestFensterrahmen::umschaltendeKnoepfe_data()
{
    QTest::addColumn<int>("knopf");
    QTest::addColumn<bool>("erster"); // Botanisch, or FilterEin
    QTest::addColumn<bool>("bedienbar");
    QTest::addColumn<QString>("bilder"); // highlighted, normal, pressed
    QTest::newRow("botanical") << int(Knopf::BotDeu) << true << true << "botanisc botanisc_n botanisc_u";
    QTest::newRow("German") << int(Knopf::BotDeu) << false << true << "deutsch deutsch_n deutsch_u";
    QTest::newRow("filter on") << int(Knopf::FilterEin) << true << true << "filter_n filter_n_n filter_n_u";
    QTest::newRow("filter on, disabled") << int(Knopf::FilterEin) << true << false << "filter_n filter_u_n filter_n_u";
    QTest::newRow("filter off") << int(Knopf::FilterEin) << false << true << "filter filter_n2 filter_u2";
    QTest::newRow("filter off, disabled") << int(Knopf::FilterEin) << false << false << "filter filter_u_n filter_u2";
    QTest::newRow("next disabled") << int(Knopf::Next) << true << false << "next next_ef next_u";
    QTest::newRow("filter dialog has no grey") << int(Knopf::Filter) << true << false << "filterb filterb_n filterb_u";
    QTest::newRow("load has no grey") << int(Knopf::FilterLaden) << true << false << "filterl filterl_n filterl_u";
    QTest::newRow("save disabled") << int(Knopf::FilterSpeichern) << true << false << "filters filters_ef filters_u";
    QTest::newRow("print has no grey") << int(Knopf::Druck) << true << false << "druck druck_n druck_u";
}

void TestFensterrahmen::umschaltendeKnoepfe()
{
    QFETCH(int, knopf);
    QFETCH(bool, erster);
    QFETCH(bool, bedienbar);
    const Knopfzeile &zeile = knopfzeilen()[size_t(knopf)];
    QStringList bilder;
    for (const Knopfzustand zustand : {Knopfzustand::Hervorgehoben, Knopfzustand::Normal, Knopfzustand::Gedrueckt})
        bilder += knopfbild(zeile, zustand, bedienbar, {.botanisch = erster, .filterEin = erster});
    QTEST(bilder.join(u' '), "bilder");
}

void TestFensterrahmen::nurDerKnopfUnterDerMaus()
{
    auto *filter = probe_->knopf("cmdFilter"), *druck = probe_->knopf("cmdDruck");
    Fensterprobe::mausBewegen(filter, QPoint(10, 10));
    QCOMPARE(filter->bild(), u"filterb"_s);
    Fensterprobe::mausBewegen(druck, QPoint(10, 10));
    QCOMPARE(druck->bild(), u"druck"_s);
    QCOMPARE(filter->bild(), u"filterb_n"_s);
    QCOMPARE(filter->tag(), QString());
    // The panels beside the bar end it as well.
    for (const char *flaeche : {"fraBilder", "fraDaten", "picLeiste"}) {
        Fensterprobe::mausBewegen(druck, QPoint(10, 10));
        QCOMPARE(druck->bild(), u"druck"_s);
        Fensterprobe::mausBewegen(probe_->finde(QString::fromLatin1(flaeche)), QPoint(1, 1));
        QCOMPARE(druck->bild(), u"druck_n"_s);
        QCOMPARE(probe_->fenster->ButtonUnterMaus, QString());
    }
}

void TestFensterrahmen::gesperrterKnopfBleibtGrau()
{
    auto *zurueck = probe_->knopf("cmdBack");
    QCOMPARE(zurueck->tag(), u"gesperrt"_s);
    Fensterprobe::mausBewegen(zurueck, QPoint(10, 10));
    Fensterprobe::mausBewegen(zurueck, QPoint(12, 12));
    QTest::mousePress(zurueck, Qt::LeftButton);
    QTest::mouseRelease(zurueck, Qt::LeftButton);
    Fensterprobe::mausBewegen(probe_->finde(u"fraDaten"_s), QPoint(1, 1));
    QCOMPARE(zurueck->bild(), u"back_ef"_s);
    QCOMPARE(zurueck->tag(), u"gesperrt"_s);
    probe_->klick("cmdNext");
    QCOMPARE(zurueck->bild(), u"back_n"_s);
    QCOMPARE(zurueck->tag(), QString());
}

void TestFensterrahmen::hinweiseDerKnoepfe()
{
    // clang-format off
    const std::pair<const char *, QString> hinweise[] = {
        {"cmdFirst", u"Erste Pflanze"_s},           {"cmdBack", u"Vorherige Pflanze"_s},  {"cmdNext", u"Nächste Pflanze"_s},
        {"cmdLast", u"Letzte Pflanze"_s},           {"cmdBotDeu", u"Umschalten Botanisch/Deutsch"_s},
        {"cmdFilterEin", u"Filter ein/aus"_s},      {"cmdFilter", u"Filter definieren"_s}, {"cmdFilterLaden", u"Filter laden"_s},
        {"cmdFilterSpeichern", u"Filter speichern"_s}, {"cmdDruck", u"Drucken"_s}};
    // clang-format on
    for (const auto &[name, text] : hinweise)
        QCOMPARE(probe_->knopf(name)->toolTip(), text);
    QCOMPARE(probe_->finde(u"picLeiste"_s)->findChildren<Bildknopf *>().size(), qsizetype(std::size(hinweise)));
}

void TestFensterrahmen::hausmodus()
{
    QVERIFY(!probe_->gezeigt(u"lblArtNr"_s));
    probe_->programm.HausModus = true;
    QVERIFY(!probe_->gezeigt(u"lblArtNr"_s));
    probe_->fenster->Form_Activate();
    QVERIFY(probe_->gezeigt(u"lblArtNr"_s));
    QCOMPARE(probe_->text(u"lblArtNr"_s), QString::number(probe_->fenster->satz().artnr()));
    probe_->programm.HausModus = false;
    probe_->fenster->Form_Activate();
    QVERIFY(!probe_->gezeigt(u"lblArtNr"_s));
}

void TestFensterrahmen::hilfe()
{
    probe_->reiterVon(u"txtEigeneBemerkung"_s);
    for (const char *control : {"cboArten", "tabStauden", "txtEigeneBemerkung", "cmdNext", "sschkBenutzer_0"}) {
        probe_->zentrale.hilfe.clear();
        QTest::keyClick(probe_->finde(QString::fromLatin1(control)), Qt::Key_F1);
        QCOMPARE(probe_->zentrale.hilfe, u"2-topf.htm"_s);
    }
}

void TestFensterrahmen::mulkoFolgtDemFilter()
{
    for (const bool gesetzt : {true, false})
        for (const bool ein : {true, false}) {
            probe_->fenster->FilterGesetzt = gesetzt;
            probe_->fenster->FilterEin = ein;
            probe_->fenster->Form_Activate();
            QCOMPARE(probe_->zentrale.mulko, gesetzt && ein);
        }
}

void TestFensterrahmen::aktivesFenster()
{
    QCOMPARE(probe_->programm.AktiveSparte, u"Topf"_s);
    QCOMPARE(probe_->programm.aktuellesFenster(Sparte::Topf), 1);
    const auto zweites = probe_->weiteres(2);
    zweites->Form_Activate();
    QCOMPARE(probe_->programm.aktuellesFenster(Sparte::Topf), 2);
    QVERIFY(QFile::exists(temp(2)));
    probe_->programm.AktiveSparte.clear();
    QFocusEvent fokus(QEvent::FocusIn);
    QCoreApplication::sendEvent(probe_->fenster.get(), &fokus);
    QCOMPARE(probe_->programm.aktuellesFenster(Sparte::Topf), 1);
    QCOMPARE(probe_->programm.AktiveSparte, u"Topf"_s);
    zweites->close();
}

void TestFensterrahmen::schliessenRaeumtAuf()
{
    for (const bool filterEin : {true, false}) {
        const auto fenster = probe_->weiteres(3);
        fenster->Form_Activate();
        fenster->FilterEin = filterEin;
        QFile geparkt(probe_->ordner.pfad(u"TempFilterTo3.fft"_s));
        QVERIFY(geparkt.open(QIODevice::WriteOnly));
        geparkt.close();
        QVERIFY(QFile::exists(temp(3)));
        QVERIFY(fenster->close());
        QVERIFY(!QFile::exists(temp(3)));
        QCOMPARE(geparkt.exists(), filterEin);
        QCOMPARE(probe_->zentrale.geschlossen, 3);
        QCOMPARE(probe_->programm.AktiveSparte, QString());
        QVERIFY(QFile::exists(temp(1)));
        probe_->zentrale.geschlossen = 0;
    }
}

void TestFensterrahmen::liegengebliebeneKopie()
{
    QFile rest(temp(2));
    QVERIFY(rest.open(QIODevice::WriteOnly));
    rest.write(QByteArray(5'000'000, 'x')); // longer than the database
    rest.close();
    QVERIFY(rest.size() > QFileInfo(probe_->ordner.datenbank()).size());
    const auto fenster = probe_->weiteres(2);
    fenster->Form_Activate();
    QCOMPARE(fenster->Anzahl, probe_->fenster->Anzahl);
    QCOMPARE(rest.size(), QFileInfo(probe_->ordner.datenbank()).size());
    fenster->close();
    QVERIFY(!rest.exists());
}

void TestFensterrahmen::kopieIstEigen()
{
    const auto zweites = probe_->weiteres(2);
    zweites->Form_Activate();
    const int vorher = zweites->Anzahl, arbeit = int(Recordset(probe_->ordner.db(), u"TOPFPFL"_s).RecordCount());
    probe_->fenster->satz().haupt().Delete();
    zweites->DatenOrdnen();
    QCOMPARE(zweites->Anzahl, vorher);
    QCOMPARE(int(Recordset(probe_->ordner.db(), u"TOPFPFL"_s).RecordCount()), arbeit);
    zweites->close();
}

void TestFensterrahmen::fehlendeDatenbank()
{
    const auto fenster = probe_->weiteres(4);
    probe_->programm.ProgrammPfad = probe_->ordner.pfad(u"nirgends"_s);
    QVERIFY_THROWS_EXCEPTION(Fehler, fenster->Form_Activate());
    QVERIFY(fenster->ErsteAktivierung);
    QVERIFY(fenster->close());
    probe_->programm.ProgrammPfad = probe_->ordner.pfad();
}

void TestFensterrahmen::tastatur()
{
    Pflanzenfenster &fenster = *probe_->fenster;
    fenster.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&fenster));
    const auto rundgang = [&] {
        QStringList folge;
        auswahl()->setFocus();
        for (int i = 0; i < 60; ++i) {
            QWidget *jetzt = QApplication::focusWidget();
            if (!jetzt || (i > 0 && jetzt == auswahl()))
                break;
            folge += jetzt->objectName().isEmpty() ? QString::fromLatin1(jetzt->metaObject()->className()) : jetzt->objectName();
            QTest::keyClick(jetzt, Qt::Key_Tab);
        }
        return folge;
    };
    probe_->finde<QTabWidget>(u"tabStauden"_s)->setCurrentIndex(0);
    const QStringList vorn = rundgang();
    for (const char *name : {"cmdNext", "cmdLast", "cmdBotDeu", "cmdFilter", "cmdFilterLaden", "cmdDruck", "qt_tabwidget_tabbar"})
        QVERIFY2(vorn.contains(QLatin1String(name)), qPrintable(u"%1 is not in: %2"_s.arg(QLatin1String(name), vorn.join(u' '))));
    // From the tabs the arrow keys lead to the last one, and its fields come next.
    auto *tabStauden = probe_->finde<QTabWidget>(u"tabStauden"_s);
    tabStauden->tabBar()->setFocus();
    for (int i = 0; i < 4; ++i)
        QTest::keyClick(tabStauden->tabBar(), Qt::Key_Right);
    QCOMPARE(tabStauden->currentIndex(), 4);
    const QStringList hinten = rundgang();
    for (const char *name : {"txtEigeneBemerkung", "sschkBenutzer_0", "sschkBenutzer_4", "cmdNamen"})
        QVERIFY2(hinten.contains(QLatin1String(name)), qPrintable(u"%1 is not in: %2"_s.arg(QLatin1String(name), hinten.join(u' '))));
    // A button can be pressed with the space bar.
    probe_->knopf("cmdNext")->setFocus();
    QTest::keyClick(probe_->knopf("cmdNext"), Qt::Key_Space);
    QCOMPARE(int(fenster.satz().haupt().AbsolutePosition()), 1);
}

void TestFensterrahmen::namenFuerVorlesende()
{
    int anzahl = 0;
    for (const QWidget *control : probe_->fenster->findChildren<QWidget *>())
        if (qobject_cast<const Bildknopf *>(control) || qobject_cast<const Bildfeld *>(control)) {
            QVERIFY2(!control->accessibleName().isEmpty(), qPrintable(control->objectName()));
            ++anzahl;
        }
    QVERIFY2(anzahl >= 10 + 6 + 8 + 3 + 1, qPrintable(QString::number(anzahl)));
    for (const char *name : {"cboArten", "txtEigeneBemerkung", "picBewertung"})
        QVERIFY(!probe_->finde(QString::fromLatin1(name))->accessibleName().isEmpty());
}

void TestFensterrahmen::esPasstInsKleinsteFenster()
{
    // The main window's smallest promised size, less its own frame, menu and status bar.
    const QSize klein = probe_->fenster->minimumSizeHint().expandedTo(probe_->fenster->minimumSize());
    QVERIFY2(klein.width() <= 1000 && klein.height() <= 620, qPrintable(u"%1 x %2"_s.arg(klein.width()).arg(klein.height())));
}

FLOX_TEST(tst_fensterrahmen, TestFensterrahmen)
#include "tst_fensterrahmen.moc"
