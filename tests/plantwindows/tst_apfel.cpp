#include "Fensterprobe.h"

#include "plantwindows/Elementtexte.h"
#include "tests/Testprogramm.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFile>
#include <QLabel>
#include <QTabWidget>
#include <QSignalSpy>
#include <QTest>

using namespace Qt::StringLiterals;

/* The apple window: 43 lists, two rules of groups and a handful of exceptions. */

namespace {

struct Listenzeile
{
    const char *feld, *control, *titel;
};

constexpr Listenzeile apfellisten[] = {
    {"haltbark", "lblHaltbar", "Label6"},    {"fruchtgr", "lblFrGroess", "Label4"},    {"form_l", "lblFormLaen", "Label5"},
    {"form_q", "lblFormQuer", "Label7"},     {"fruchtrel", "lblFrRelief", "Label9"},   {"aussehen", "lblAussGrif", "Label16"},
    {"druck", "lblDruckfes", "Label17"},     {"grundfarbe", "lblGrundFar", "Label1"},  {"deckfarbe", "lblDeckFarb", "Label10"},
    {"df_art", "lblDFArt", "Label11"},       {"df_ausdehn", "lblDFAusd", "Label12"},   {"rost", "lblSchBeros", "Label13"},
    {"reif", "lblReif", "Label14"},          {"sch_punkt", "lblSchP", "Label15"},      {"k_grube", "lblKGr", "Label18"},
    {"k_relief", "lblKGrRelie", "Label19"},  {"k_umgebung", "lblKGrUmgeb", "Label20"}, {"k_berost", "lblKGrBeros", "Label21"},
    {"k_groesse", "lblKGroesse", "Label26"}, {"k_oeffnung", "lblKOeffnun", "Label27"}, {"k_blaetter", "lblKBlaette", "Label28"},
    {"st_laenge", "lblStLaenge", "Label24"}, {"st_besond", "lblStBesond", "Label25"},  {"st_grube", "lblStGrGroe", "Label22"},
    {"st_berost", "lblStGrBero", "Label23"}, {"k_hoehle", "lblSchKHoeh", "Label29"},   {"k_roehre", "lblSchKelch", "Label31"},
    {"kh_groesse", "lblSchKGr", "Label33"},  {"g_buendel", "lblSchGefB", "Label35"},   {"a_hoehle", "lblSchAchs", "Label37"},
    {"k_kammern", "lblSchKeKa", "Label39"},  {"kw_form", "lblSchKWFor", "Label41"},    {"kw_groesse", "lblSchKWGr", "Label43"},
    {"kw_risse", "lblSchKWRis", "Label45"},  {"k_anzahl", "lblKernZahl", "Label30"},   {"k_qualit", "lblKernQual", "Label34"},
    {"k_farbe", "lblKernFGF", "Label38"},    {"k_laenge", "lblKernLaen", "Label42"},   {"schale", "lblFrFlScha", "Label32"},
    {"fl_farbe", "lblFrFlFarb", "Label40"},  {"fl_strukt", "lblFrFlStru", "Label46"},  {"fl_duft", "lblFrFlDuft", "Label48"},
    {"geschmack", "lblFrFlGesc", "Label50"},
};
static_assert(std::size(apfellisten) == 43);

} // namespace

class TestApfel : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void beschreibungHatAlleListen();
    void jedeListe_data();
    void jedeListe();
    void jedesElement_data();
    void jedesElement();
    void gruppenregeln_data();
    void gruppenregeln();
    void kernzahl_data();
    void kernzahl();
    void trennerDerFruchtgroesse();
    void literatur_data();
    void literatur();
    void literaturHatUeberschriften();
    void namenOhneNomenklatur();
    void bewertungAusDerArbeitsdatenbank();
    void keineDeutscheOrdnung();
    void datenOrdnen();
    void sonderbareDaten_data();
    void sonderbareDaten();
    void nichtsBleibtStehen();
    void alleMitgeliefertenSorten();
    void dateiUndHilfe();
    void notiz();

private:
    std::unique_ptr<Fensterprobe> probe_;
};

void TestApfel::initTestCase()
{
    probe_ = std::make_unique<Fensterprobe>(Sparte::Apfel);
    probe_->alleZeigen();
    probe_->oeffnen();
}

void TestApfel::init()
{
    probe_->leeren();
}

void TestApfel::beschreibungHatAlleListen()
{
    QStringList verlangt, beschrieben;
    for (const Listenzeile &zeile : apfellisten)
        verlangt += u"%1 %2 %3"_s.arg(QLatin1String(zeile.feld), QLatin1String(zeile.control), QLatin1String(zeile.titel));
    for (const Element *e : alleElemente(*fensterbeschreibung(Sparte::Apfel)))
        if (e->muster == Muster::Liste) {
            beschrieben += u"%1 %2 %3"_s.arg(QLatin1String(e->feld), QLatin1String(e->control), QLatin1String(e->titel));
            QCOMPARE(e->trenner.toString(), qstrcmp(e->feld, "fruchtgr") == 0 ? u" - "_s : u", "_s);
        }
    verlangt.sort();
    beschrieben.sort();
    QCOMPARE(beschrieben.join(u'\n'), verlangt.join(u'\n'));
}

void TestApfel::jedeListe_data()
{
    QTest::addColumn<QString>("feld");
    QTest::addColumn<QString>("control");
    QTest::addColumn<QString>("titel");
    for (const Listenzeile &zeile : apfellisten)
        QTest::newRow(zeile.feld) << QString::fromLatin1(zeile.feld) << QString::fromLatin1(zeile.control) << QString::fromLatin1(zeile.titel);
}

void TestApfel::jedeListe()
{
    QFETCH(QString, feld);
    QFETCH(QString, control);
    QFETCH(QString, titel);
    const Werteliste *liste = schema::wertelisteVon(spalteVon(Sparte::Apfel, feld.toLatin1().constData()));
    QVERIFY(liste);
    QCOMPARE(probe_->text(control), QString());
    QVERIFY(!probe_->gezeigt(titel) && !probe_->gezeigt(control));
    for (int p = 1; p <= liste->anzahl(); ++p) {
        QString flags(liste->anzahl(), u'0');
        flags[p - 1] = u'1';
        probe_->setzen({{feld, flags}});
        QCOMPARE(probe_->text(control), liste->wort(p).toString());
        QVERIFY(probe_->gezeigt(titel) && probe_->gezeigt(control));
    }
    // A position that the list does not have shows as empty.
    probe_->setzen({{feld, QString(liste->anzahl(), u'0') + u"11"_s}});
    QCOMPARE(probe_->text(control), QString());
    QVERIFY(!probe_->gezeigt(titel));
}

void TestApfel::jedesElement_data()
{
    QTest::addColumn<int>("nummer");
    const auto alle = alleElemente(*fensterbeschreibung(Sparte::Apfel));
    for (size_t i = 0; i < alle.size(); ++i)
        QTest::newRow(alle[i]->control) << int(i);
}

void TestApfel::jedesElement()
{
    QFETCH(int, nummer);
    elementPruefen(*probe_, *alleElemente(*fensterbeschreibung(Sparte::Apfel))[size_t(nummer)]);
}

void TestApfel::gruppenregeln_data()
{
    QTest::addColumn<QString>("rahmen");
    QTest::addColumn<QString>("feld"); // the one that is set; empty: none
    QTest::addColumn<bool>("sichtbar");
    const auto zeile = [](const char *rahmen, const char *feld, bool sichtbar) {
        QTest::addRow("%s %s", rahmen, feld) << rahmen << feld << sichtbar;
    };
    zeile("SSFrame4", "", false);
    for (const char *feld : {"rost", "reif", "sch_punkt"})
        zeile("SSFrame4", feld, true);
    for (const char *feld : {"deckfarbe", "druck", "schale", "k_hoehle"})
        zeile("SSFrame4", feld, false);
    zeile("SSFrame9", "", false);
    for (const char *feld : {"k_hoehle", "k_roehre"})
        zeile("SSFrame9", feld, true);
    for (const char *feld : {"kh_groesse", "g_buendel", "kw_form", "rost"})
        zeile("SSFrame9", feld, false);
}

void TestApfel::gruppenregeln()
{
    QFETCH(QString, rahmen);
    QFETCH(QString, feld);
    if (!feld.isEmpty())
        probe_->setzen({{feld, u"1"_s}});
    QTEST(probe_->gezeigt(rahmen), "sichtbar");
}

void TestApfel::kernzahl_data()
{
    QTest::addColumn<QString>("flags");
    QTest::addColumn<QString>("text");
    QTest::newRow("none") << "000"
                          << "";
    QTest::newRow("first") << "100"
                           << "< 4";
    QTest::newRow("second") << "010"
                            << "4-7";
    QTest::newRow("third") << "001"
                           << "> 7";
    QTest::newRow("two first") << "110"
                               << "< 7";
    QTest::newRow("two last") << "011"
                              << "> 4";
    QTest::newRow("outer two") << "101"
                               << "< 4, > 7";
    QTest::newRow("all") << "111"
                         << "< 4, 4-7, > 7";
}

void TestApfel::kernzahl()
{
    QFETCH(QString, flags);
    probe_->setzen({{u"k_anzahl"_s, flags}});
    QTEST(probe_->text(u"lblKernZahl"_s), "text");
}

void TestApfel::trennerDerFruchtgroesse()
{
    probe_->setzen({{u"fruchtgr"_s, u"0110"_s}, {u"form_l"_s, u"0110000000"_s}});
    QCOMPARE(probe_->text(u"lblFrGroess"_s), u"mittelgroß - groß"_s);
    QCOMPARE(probe_->text(u"lblFormLaen"_s), u"kugelig, hoch"_s);
}

void TestApfel::literatur_data()
{
    QTest::addColumn<QString>("flags");
    QTest::addColumn<QList<int>>("gesetzt");
    QTest::newRow("empty") << "" << QList<int>();
    QTest::newRow("first and last") << "10000000000000000001" << QList<int>{0, 19};
    QTest::newRow("short") << "0101" << QList<int>{1, 3};
    QTest::newRow("beyond the boxes") << "00000000010000000000111111" << QList<int>{9};
}

void TestApfel::literatur()
{
    QFETCH(QString, flags);
    probe_->setzen({{u"literatur1"_s, u"11111111111111111111"_s}});
    probe_->setzen({{u"literatur1"_s, flags}});
    QTEST(probe_->stellen(u"ChkLiteratur"_s, [](QWidget *w) { return qobject_cast<QCheckBox *>(w)->isChecked(); }), "gesetzt");
}

void TestApfel::literaturHatUeberschriften()
{
    QSet<QString> titel;
    for (int i = 0; i < 20; ++i)
        titel += probe_->finde<QCheckBox>(u"ChkLiteratur_%1"_s.arg(i))->text();
    QCOMPARE(titel.size(), 20);
    QVERIFY(!titel.contains(QString()));
    QVERIFY(!probe_->fenster->findChild<QCheckBox *>(u"ChkLiteratur_20"_s));
    // The boxes show; they cannot be changed.
    probe_->reiterVon(u"ChkLiteratur_0"_s);
    auto *kaestchen = probe_->finde<QCheckBox>(u"ChkLiteratur_0"_s);
    QVERIFY(kaestchen->testAttribute(Qt::WA_TransparentForMouseEvents));
    QCOMPARE(kaestchen->focusPolicy(), Qt::NoFocus);
}

void TestApfel::namenOhneNomenklatur()
{
    QCOMPARE(probe_->text(u"lblName"_s), schildtext(probe_->name()));
    QVERIFY(!probe_->finde<QLabel>(u"lblName"_s)->font().italic());
    QCOMPARE(probe_->finde(u"lblName"_s)->toolTip(), QString());
}

void TestApfel::bewertungAusDerArbeitsdatenbank()
{
    const qint64 artnr = probe_->fenster->satz().artnr();
    const auto links = [&] {
        probe_->fenster->darstellen();
        return probe_->finde(u"picBewAnzeige"_s)->property("Left").toInt();
    };
    probe_->setzen({{u"bewertung"_s, 9}});
    for (const auto &[wert, stelle] : {std::pair(1, 40), std::pair(4, 316), std::pair(8, 684)}) {
        probe_->arbeitSetzen(artnr, u"bewertung"_s, wert);
        QCOMPARE(links(), stelle);
    }
    probe_->arbeitSetzen(artnr, u"bewertung"_s, {});
    QCOMPARE(links(), 684);
    // A variety that is gone from the working database keeps the indicator too.
    probe_->ordner.db()->Execute(u"UPDATE Apfel SET ARTNR = -1 WHERE ARTNR = ?"_s, {artnr});
    QCOMPARE(links(), 684);
    probe_->ordner.db()->Execute(u"UPDATE Apfel SET ARTNR = ?, bewertung = 9 WHERE ARTNR = -1"_s, {artnr});
    QCOMPARE(links(), 776);
}

void TestApfel::keineDeutscheOrdnung()
{
    QVERIFY(!probe_->fenster->findChild<QWidget *>(u"cmdBotDeu"_s));
    for (const char *knopf :
         {"cmdFirst", "cmdBack", "cmdNext", "cmdLast", "cmdFilterEin", "cmdFilter", "cmdFilterLaden", "cmdFilterSpeichern", "cmdDruck"})
        QVERIFY2(probe_->fenster->findChild<Bildknopf *>(QLatin1String(knopf)), knopf);
    QVERIFY(probe_->fenster->findChildren<Farbzelle *>().isEmpty());
    QCOMPARE(probe_->fenster->windowTitle(), u"Apfelsorten 1"_s);
    QStringList titel;
    auto *tabStauden = probe_->finde<QTabWidget>(u"tabStauden"_s);
    for (int i = 0; i < tabStauden->count(); ++i)
        titel += tabStauden->tabText(i);
    QCOMPARE(titel, (QStringList{u"Frucht"_s, u"Kelch / Stiel"_s, u"Kernhaus / Fleisch"_s, u"Sonstiges"_s, u"Benutzer / Ausbildung"_s}));
}

void TestApfel::datenOrdnen()
{
    auto *auswahl = probe_->finde<QComboBox>(u"cboArten"_s);
    probe_->klick("cmdNext");
    probe_->klick("cmdNext");
    const QString sorte = probe_->name();
    probe_->fenster->Anzahl = 0;
    probe_->fenster->DatenOrdnen();
    QCOMPARE(probe_->programm.SortierFeld, u"BOT_NAME"_s);
    QCOMPARE(probe_->fenster->Anzahl, int(Recordset(probe_->ordner.db(), u"Apfel"_s).RecordCount()));
    QCOMPARE(probe_->name(), sorte);
    QCOMPARE(auswahl->currentIndex(), 2);
    QCOMPARE(auswahl->currentText(), sorte);
    probe_->klick("cmdFirst");
}

void TestApfel::sonderbareDaten_data()
{
    QTest::addColumn<QString>("feld");
    QTest::addColumn<QVariant>("wert");
    for (const Spalte &spalte : schema::haupttabelle(u"Apfel")->spalten)
        if (spalte.art != Art::Schluessel)
            for (const QVariant &wert :
                 {QVariant(u""_s), QVariant(u"1"_s), QVariant(u"Quatsch"_s), QVariant(2147483647), QVariant(QString(5000, u'1'))})
                QTest::addRow("%s '%s'", spalte.name, qPrintable(wert.toString().left(12))) << QString::fromLatin1(spalte.name) << wert;
}

void TestApfel::sonderbareDaten()
{
    QFETCH(QString, feld);
    QFETCH(QVariant, wert);
    const QString vorher = probe_->fenster->Auslesen(feld);
    const qint64 artnr = probe_->fenster->satz().artnr();
    const QString arbeit = probe_->arbeitLesen(artnr, feld);
    Meldungsfaenger meldungen;
    probe_->arbeitSetzen(artnr, feld, wert);
    probe_->setzen({{feld, wert}});
    QCOMPARE(probe_->text(u"lblName"_s), schildtext(probe_->name()));
    QCOMPARE(probe_->panel(4), u"1/%1"_s.arg(probe_->fenster->Anzahl));
    QCOMPARE(meldungen.texte, QStringList());
    probe_->arbeitSetzen(artnr, feld, arbeit);
    probe_->setzen({{feld, vorher}});
}

void TestApfel::nichtsBleibtStehen()
{
    const auto texte = [&] {
        QStringList alle;
        for (const Element *e : alleElemente(*fensterbeschreibung(Sparte::Apfel)))
            if (e->muster == Muster::Liste || e->muster == Muster::Text || e->muster == Muster::Ausbildung)
                alle += probe_->text(QString::fromLatin1(e->control));
        return alle;
    };
    Fensterprobe::Werte voll;
    for (const Element *e : alleElemente(*fensterbeschreibung(Sparte::Apfel)))
        if (e->muster == Muster::Liste || e->muster == Muster::Text || e->muster == Muster::Ausbildung)
            voll[QString::fromLatin1(e->feld)] = u"1111 Altwert"_s;
    const QString vorher = probe_->fenster->Auslesen(u"DTNAM"_s);
    probe_->setzen(voll);
    QCOMPARE(texte().count(QString()), 0);
    QVERIFY(probe_->gezeigt(u"SSFrame4"_s) && probe_->gezeigt(u"SSFrame9"_s) && probe_->gezeigt(u"fraFleisch"_s));
    for (auto &wert : voll)
        wert = QVariant();
    probe_->setzen(voll);
    QCOMPARE(texte().join(QString()), QString());
    for (const Reiter &reiter : fensterbeschreibung(Sparte::Apfel)->reiter)
        for (const Gruppe &gruppe : reiter.gruppen)
            QCOMPARE(probe_->gezeigt(QString::fromLatin1(gruppe.name)), gruppe.regel == Gruppenregel::Immer);
    probe_->setzen({{u"DTNAM"_s, vorher}});
}

void TestApfel::alleMitgeliefertenSorten()
{
    Fensterprobe frisch(Sparte::Apfel);
    frisch.alleZeigen();
    frisch.oeffnen();
    QVERIFY(frisch.fenster->Anzahl >= 60);
    for (int i = 0; i < frisch.fenster->Anzahl; ++i) {
        frisch.fenster->satz().haupt().setAbsolutePosition(i);
        frisch.fenster->darstellen();
        QCOMPARE(frisch.text(u"lblName"_s), frisch.name());
        for (const char *control : {"lblFrGroess", "lblGrundFar", "lblFrFlGesc"})
            QVERIFY2(!frisch.text(QLatin1String(control)).isEmpty(), qPrintable(frisch.name() + u' ' + QLatin1String(control)));
    }
}

void TestApfel::dateiUndHilfe()
{
    const auto zweites = probe_->weiteres(2);
    zweites->Form_Activate();
    QCOMPARE(probe_->programm.AktiveSparte, u"Apfel"_s);
    QCOMPARE(probe_->programm.aktuellesFenster(Sparte::Apfel), 2);
    QCOMPARE(probe_->programm.aktuellesFenster(Sparte::Topf), 0);
    QVERIFY(QFile::exists(probe_->ordner.pfad(u"db_ap2.tmp"_s)));
    QTest::keyClick(zweites.get(), Qt::Key_F1);
    QCOMPARE(probe_->zentrale.hilfe, u"2-apfel.htm"_s);
    QVERIFY(zweites->close());
    QVERIFY(!QFile::exists(probe_->ordner.pfad(u"db_ap2.tmp"_s)));
}

void TestApfel::notiz()
{
    const qint64 artnr = probe_->fenster->satz().artnr();
    probe_->reiterVon(u"txtEigeneBemerkung"_s);
    QTest::mouseClick(probe_->finde<QCheckBox>(u"sschkBenutzer_1"_s), Qt::LeftButton, {}, QPoint(8, 8));
    QVERIFY(probe_->fenster->DatenGeaendert);
    probe_->klick("cmdNext");
    QCOMPARE(probe_->arbeitLesen(artnr, u"benu_eigen"_s), u" 1   "_s);
    probe_->klick("cmdFirst");
}

FLOX_TEST(tst_apfel, TestApfel)
#include "tst_apfel.moc"
