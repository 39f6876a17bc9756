#include "Filterprobe.h"

#include "tests/Testprogramm.h"

#include <QApplication>
#include <QScreen>

using namespace Qt::StringLiterals;

/* The dialog's controls under mouse and keyboard. */

class TestFilterdialog : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void anfang_data();
    void anfang();
    void listenDerObstsorten();
    void beschriftungen_data();
    void beschriftungen();
    void familienliste();
    void farbfelder_data();
    void farbfelder();
    void monate_data();
    void monate();
    void doppelklickLeertDieReihe_data() { monate_data(); }
    void doppelklickLeertDieReihe();
    void doppelklickAufFarbe();
    void monatsnamen();
    void bilder_data();
    void bilder();
    void leertaste();
    void andereMaustasten();
    void zahlfelder_data();
    void zahlfelder();
    void minTempWirdGeglaettet_data();
    void minTempWirdGeglaettet();
    void satzUnterDenBildern();
    void zahlAufDenReitern();
    void eigenschaftenBenannt();
    void ohneBildNurImHaus();
    void zuruecksetzen_data() { anfang_data(); }
    void zuruecksetzen();
    void verlassen_data();
    void verlassen();
    void tastaturAufDenKnoepfen();
    void hilfe();
    void groesseUndOrt_data() { anfang_data(); }
    void groesseUndOrt();
    void allesMitDerTastaturErreichbar_data() { anfang_data(); }
    void allesMitDerTastaturErreichbar();

private:
    /// Puts a dialog into a random state that a file could bring.
    void verstellen(uint saat);
    void starten(Sparte sparte);

    std::unique_ptr<Filterprobe> probe_;
};

void TestFilterdialog::starten(Sparte sparte)
{
    probe_.reset();
    probe_ = std::make_unique<Filterprobe>(sparte);
    probe_->oeffnen();
    probe_->dialogZeigen();
}

void TestFilterdialog::init()
{
    // Tests with a column for the Sparte start their own.
    if (!QTest::currentDataTag() || !QByteArray(QTest::currentDataTag()).startsWith("Sparte "))
        starten(Sparte::Topf);
}

void TestFilterdialog::verstellen(uint saat)
{
    Zufall zufall(saat);
    const Sparte sparte = probe_->fenster->sparte();
    Zustand z = zufallszustand(sparte, zufall, {u"abc"_s}, {u"Araceae"_s});
    z.bewertung(1, false).text("txtBenutzerText", u"x"_s);
    const QString pfad = probe_->ordner.pfad(u"verstellt"_s);
    QFile datei(pfad);
    QVERIFY(datei.open(QIODevice::WriteOnly));
    datei.write(filterSchreiben(z.beschreibung, z.werte));
    datei.close();
    probe_->dialog().FilterLaden(pfad);
    QVERIFY(!(probe_->dialog().zustand() == Zustand(sparte).werte));
}

void TestFilterdialog::anfang_data()
{
    QTest::addColumn<Sparte>("sparte");
    for (const Sparte sparte : spartenEinerHerkunft())
        QTest::newRow("Sparte " + kuerzel(sparte)) << sparte;
}

void TestFilterdialog::anfang()
{
    QFETCH(const Sparte, sparte);
    starten(sparte);
    Filterdialog &dialog = probe_->dialog();
    QCOMPARE(dialog.objectName(), u"%1_1"_s.arg(QLatin1String(eintrag(sparte).filter)));
    QVERIFY(dialog.isVisible() && !dialog.isModal());
    QVERIFY(dialog.zustand() == Zustand(sparte).werte);
    QCOMPARE(filterSchreiben(*filterbeschreibung(sparte), dialog.zustand()), vorgabedatei(sparte));
    for (const Dateizeile &zeile : dateizeilen(sparte))
        QVERIFY2(dialog.findChild<QWidget *>(zeile.element < 0 ? zeile.control : u"%1_%2"_s.arg(zeile.control).arg(zeile.element)),
                 qPrintable(zeile.control));
    QStringList reiter;
    auto *SSTab1 = probe_->finde<QTabWidget>(u"SSTab1"_s);
    for (int i = 0; i < SSTab1->count(); ++i)
        reiter += SSTab1->tabText(i);
    if (sparte == Sparte::Topf)
        QCOMPARE(reiter, (QStringList{u"Blüte"_s, u"Frucht"_s, u"Blatt"_s, u"Standort"_s, u"Hydrokultur"_s, u"Verwendung"_s, u"Textsuche"_s}));
    QCOMPARE(probe_->finde<QPushButton>(u"cmdOK"_s)->text(), u"OK"_s);
    QCOMPARE(probe_->finde<QPushButton>(u"cmdRuecksetzen"_s)->text(), u"Zurücksetzen"_s);
    QCOMPARE(probe_->finde<QPushButton>(u"cmdAbbruch"_s)->text(), u"Abbrechen"_s);
    const auto *schieber = probe_->finde<QSlider>(u"sldBewertung"_s);
    QCOMPARE(schieber->minimum(), 1);
    QCOMPARE(schieber->maximum(), 5);
}

/// Kinds of fruit as the working database names them, each once; months for the stores.
void TestFilterdialog::listenDerObstsorten()
{
    probe_ = std::make_unique<Filterprobe>(Sparte::Obst);
    probe_->arbeitAendern(u"UPDATE Obst SET DTNAM = 'Ölbaum' WHERE ARTNR = (SELECT min(ARTNR) FROM Obst)"_s);
    probe_->oeffnen();
    probe_->dialogZeigen();
    const auto eintraege = [&](const char *name) {
        QStringList texte;
        const auto *liste = probe_->finde<QComboBox>(QString::fromLatin1(name));
        for (int i = 0; i < liste->count(); ++i)
            texte += liste->itemText(i);
        return texte;
    };
    const QStringList arten = eintraege("cboObstart");
    QCOMPARE(arten.first(), u"-- Alle --"_s);
    QCOMPARE(arten.size(), 1 + int(probe_->arbeit(u"ARTNR IN (SELECT min(ARTNR) FROM Obst GROUP BY DTNAM)"_s).size()));
    const qsizetype oelbaum = arten.indexOf(u"Ölbaum"_s);
    QVERIFY(oelbaum > 1 && oelbaum < arten.indexOf(u"Pfirsich"_s) && oelbaum > arten.indexOf(u"Kiwi"_s)); // like O, not behind Z
    const QStringList monate{u"-- Alle --"_s, u"Januar"_s, u"Februar"_s,   u"März"_s,    u"April"_s,    u"Mai"_s,     u"Juni"_s,
                             u"Juli"_s,       u"August"_s, u"September"_s, u"Oktober"_s, u"November"_s, u"Dezember"_s};
    for (const char *lager : {"cboFrischluft", "cboKuehllager", "cboCALager"})
        QCOMPARE(eintraege(lager), monate);
}

void TestFilterdialog::beschriftungen_data()
{
    QTest::addColumn<QString>("stamm");
    QTest::addColumn<QStringList>("worte");
    const auto reihe = [](const char *stamm, QStringView worte) {
        QTest::newRow(stamm) << QString::fromLatin1(stamm) << worte.toString().split(u',');
    };
    reihe("chkTyp", u"Grünpflanze,Blütenpflanze,Fruchtpflanze,Sukkulente,Carnivore");
    reihe("chkHaltbarkeit", u"kurz,mittel,lang");
    reihe("chkLaubFarbe", u"hellgrün,dunkelgrün,silbrig,gelbgrün,weißgrün,rotgrün,gefleckt,gestreift,panaschiert");
    reihe("chkWuchsForm", u"baumartig,strauchartig,krautig,aufrecht,überhängend,sparrig,unregelmäßig,gedreht,eintriebig,horstig,polsterbildend,"
                          u"teppichbildend,rostettenbildend,kletternd");
    reihe("chkTageslaenge", u"neutral,Kurztag,Langtag");
    reihe("chkWasser", u"Minimum,Optimum,Maximum");
    reihe("chkpH", u"niedrig (4-5),hoch (6-7)");
    reihe("chkVerwHydro", u"Solitär,Hauptpflanze,Begleitpflanze,Rankpflanze,Hängepflanze");
    reihe("chkNachduengung", u"schwach,mittel,stark");
    reihe("chkKrank", u"gering,mittel,hoch");
    reihe("optBewertung", u"Minimum,Maximum");
}

void TestFilterdialog::beschriftungen()
{
    QFETCH(const QString, stamm);
    QFETCH(const QStringList, worte);
    for (int i = 0; i < worte.size(); ++i)
        QCOMPARE(probe_->element<QAbstractButton>(stamm, i)->text(), worte[i]);
    QVERIFY(!probe_->dialog().findChild<QWidget *>(u"%1_%2"_s.arg(stamm).arg(worte.size())));
    QCOMPARE(probe_->finde<QCheckBox>(u"chkGift"_s)->text(), u"Giftpflanze"_s);
    QCOMPARE(probe_->finde<QCheckBox>(u"chkBild"_s)->text(), u"mit Bild"_s);
    QCOMPARE(probe_->finde<QCheckBox>(u"chkOhneBild"_s)->text(), u"ohne Bild"_s);
    for (int i = 0; i < 6; ++i)
        QCOMPARE(probe_->box(u"chkAusbildung"_s, i)->text(), WL_Ausbildung.wort(i + 1).trimmed().toString());
}

void TestFilterdialog::familienliste()
{
    QStringList soll{u"- Alle -"_s};
    Recordset satz(probe_->ordner.db(), u"FAMILIEN"_s);
    for (; !satz.Eof(); satz.MoveNext())
        soll += satz.Fields(u"famname").Text();
    auto *cmbFamilie = probe_->finde<QComboBox>(u"cmbFamilie"_s);
    QStringList ist;
    for (int i = 0; i < cmbFamilie->count(); ++i)
        ist += cmbFamilie->itemText(i);
    QVERIFY(soll.size() > 10);
    QCOMPARE(ist, soll);
    QCOMPARE(cmbFamilie->currentIndex(), 0);
    // Resetting puts the list itself back, not only its text.
    cmbFamilie->setCurrentIndex(5);
    probe_->taste("cmdRuecksetzen");
    QCOMPARE(cmbFamilie->currentText(), u"- Alle -"_s);
    QCOMPARE(cmbFamilie->currentIndex(), 0);
}

void TestFilterdialog::farbfelder_data()
{
    QTest::addColumn<QString>("stamm");
    QTest::addColumn<const Farbliste *>("farben");
    QTest::addColumn<const Werteliste *>("namen");
    QTest::newRow("Blüte") << u"lblBlFarbe"_s << &WL_BluetenfarbeRGB << &WL_Bluetenfarbe;
    QTest::newRow("Frucht") << u"lblFrFarbe"_s << &WL_ToFruchtfarbeRGB << &WL_ToFruchtfarbe;
}

void TestFilterdialog::farbfelder()
{
    QFETCH(const QString, stamm);
    QFETCH(const Farbliste *, farben);
    QFETCH(const Werteliste *, namen);
    for (int i = 0; i < 13; ++i) {
        auto *zelle = probe_->element<Farbzelle>(stamm, i);
        QCOMPARE(zelle->toolTip(), namen->wort(i + 1).trimmed().toString());
        QCOMPARE(zelle->backColor(), int(0x8000000Fu));
        QCOMPARE(zelle->backStyle(), 0);
        probe_->klicken(zelle);
        QCOMPARE(zelle->backColor(), i < 12 ? farben->werte[size_t(i)] : int(0x8000000Fu));
        QCOMPARE(zelle->backStyle(), i < 12 ? 0 : 1);
    }
    for (int i = 0; i < 13; ++i) {
        auto *zelle = probe_->element<Farbzelle>(stamm, i);
        probe_->klicken(zelle);
        QCOMPARE(zelle->backColor(), int(0x8000000Fu));
        QCOMPARE(zelle->backStyle(), 0);
    }
}

void TestFilterdialog::monate_data()
{
    QTest::addColumn<QString>("stamm");
    for (const QString &stamm : {u"lblBlMonat"_s, u"lblFrMonat"_s, u"lblAngMonat"_s})
        QTest::newRow(qPrintable(stamm)) << stamm;
}

void TestFilterdialog::monate()
{
    QFETCH(const QString, stamm);
    for (int i = 0; i < 12; ++i) {
        auto *zelle = probe_->element<Farbzelle>(stamm, i);
        QCOMPARE(zelle->toolTip(), WL_Monate.wort(i + 1).trimmed().toString());
        QCOMPARE(zelle->backColor(), int(0x8000000Fu));
        probe_->klicken(zelle);
        QCOMPARE(zelle->backColor(), int(0x80000003u));
        probe_->klicken(zelle);
        QCOMPARE(zelle->backColor(), int(0x8000000Fu));
    }
}

/// As the window system delivers it: the second press comes as a double click, and both have their release.
static void doppelklicken(QWidget *control)
{
    const QPointF hier(control->rect().center());
    // clang-format off
    const std::pair<QEvent::Type, Qt::MouseButtons> folge[] = {{QEvent::MouseButtonPress, Qt::LeftButton}, {QEvent::MouseButtonRelease, Qt::NoButton},
                                                               {QEvent::MouseButtonDblClick, Qt::LeftButton}, {QEvent::MouseButtonRelease, Qt::NoButton}};
    // clang-format on
    for (const auto &[art, gedrueckt] : folge) {
        QMouseEvent ereignis(art, hier, control->mapToGlobal(hier), Qt::LeftButton, gedrueckt, {});
        QApplication::sendEvent(control, &ereignis);
    }
}

void TestFilterdialog::doppelklickLeertDieReihe()
{
    QFETCH(const QString, stamm);
    const auto gewaehlt = [&] {
        int n = 0;
        for (int i = 0; i < 12; ++i)
            n += probe_->element<Farbzelle>(stamm, i)->backColor() != int(0x8000000Fu);
        return n;
    };
    auto *andere = probe_->element<Farbzelle>(stamm == u"lblBlMonat" ? u"lblFrMonat"_s : u"lblBlMonat"_s, 3);
    probe_->klicken(andere);
    for (const int vorher : {0, 7}) { // on a month that is not selected and on one that is
        for (const int i : {0, 7, 11})
            probe_->klicken(probe_->element(stamm, i));
        QCOMPARE(gewaehlt(), 3);
        doppelklicken(probe_->element(stamm, vorher == 0 ? 4 : 7));
        QCOMPARE(gewaehlt(), 0);
    }
    QCOMPARE(andere->backColor(), int(0x80000003u));
    // The next single click selects as ever.
    probe_->klicken(probe_->element(stamm, 4));
    QCOMPARE(gewaehlt(), 1);
}

void TestFilterdialog::doppelklickAufFarbe()
{
    auto *rot = probe_->element<Farbzelle>(u"lblBlFarbe"_s, 4);
    auto *gelb = probe_->element<Farbzelle>(u"lblBlFarbe"_s, 1);
    probe_->klicken(gelb);
    doppelklicken(rot); // a click and no more
    QCOMPARE(rot->backColor(), 0x0000FF);
    QCOMPARE(gelb->backColor(), 0x00FFFF);
}

void TestFilterdialog::monatsnamen()
{
    const auto zeile = [&](const QString &stamm) {
        QStringList namen;
        for (int i = 0; i < 12; ++i)
            namen += probe_->element<Farbzelle>(stamm, i)->caption();
        return namen.join(u' ');
    };
    for (const int darstellung : {1, 0}) {
        probe_->programm.MonatsDarstellung = darstellung;
        probe_->dialog().Form_Activate();
        for (const QString &stamm : {u"lblBlMonat"_s, u"lblFrMonat"_s, u"lblAngMonat"_s})
            QCOMPARE(zeile(stamm), darstellung ? u"J F M A M J J A S O N D"_s : u"1 2 3 4 5 6 7 8 9 10 11 12"_s);
    }
}

void TestFilterdialog::bilder_data()
{
    QTest::addColumn<QString>("stamm");
    QTest::addColumn<int>("anzahl");
    QTest::newRow("Licht") << u"imgLicht"_s << 3;
    QTest::newRow("Verwendung") << u"imgVerwendung"_s << 8;
}

void TestFilterdialog::bilder()
{
    QFETCH(const QString, stamm);
    QFETCH(const int, anzahl);
    for (int i = 0; i < anzahl; ++i) {
        auto *bild = probe_->element<Bildfeld>(stamm, i);
        QVERIFY(!bild->bild().isEmpty() && !bild->accessibleName().isEmpty());
        for (const int soll : {1, 0, 1}) {
            probe_->klicken(bild);
            QCOMPARE(bild->borderStyle(), soll);
        }
    }
    QCOMPARE(probe_->element<Bildfeld>(u"imgLicht"_s, 1)->bild(), u"iliLicht/halbscha"_s);
}

void TestFilterdialog::leertaste()
{
    auto *farbe = probe_->element<Farbzelle>(u"lblBlFarbe"_s, 0);
    auto *bunt = probe_->element<Farbzelle>(u"lblFrFarbe"_s, 12);
    auto *monat = probe_->element<Farbzelle>(u"lblAngMonat"_s, 2);
    auto *bild = probe_->element<Bildfeld>(u"imgVerwendung"_s, 5);
    for (QWidget *control : std::initializer_list<QWidget *>{farbe, bunt, monat, bild}) {
        probe_->zeigen(control);
        // Tab reaches the first of a row, the arrow keys the others; where the focus is, Tab comes back to.
        control->setFocus();
        QVERIFY(control->focusPolicy() & Qt::TabFocus);
        QTest::keyClick(control, Qt::Key_Space);
    }
    QCOMPARE(farbe->backColor(), 0xFFFFFF);
    QCOMPARE(bunt->backStyle(), 1);
    QCOMPARE(monat->backColor(), int(0x80000003u));
    QCOMPARE(bild->borderStyle(), 1);
    for (QWidget *control : std::initializer_list<QWidget *>{farbe, bunt, monat, bild})
        QTest::keyClick(control, Qt::Key_Space);
    QVERIFY(probe_->dialog().zustand() == Zustand(Sparte::Topf).werte);
}

void TestFilterdialog::andereMaustasten()
{
    for (const char *name : {"lblBlFarbe_3", "lblBlMonat_3", "imgLicht_1"}) {
        auto *control = probe_->finde(QString::fromLatin1(name));
        probe_->zeigen(control);
        QTest::mouseClick(control, Qt::RightButton);
        // Pressed here, let go elsewhere: no click.
        QTest::mousePress(control, Qt::LeftButton);
        QTest::mouseRelease(control, Qt::LeftButton, {}, QPoint(-30, -30));
    }
    QVERIFY(probe_->dialog().zustand() == Zustand(Sparte::Topf).werte);
}

void TestFilterdialog::zahlfelder_data()
{
    QTest::addColumn<QByteArray>("name");
    QTest::addColumn<bool>("minus");
    for (const char *name : {"txtMinHoehe", "txtMaxHoehe", "txtMinLicht", "txtMaxLicht"})
        QTest::newRow(name) << QByteArray(name) << false;
    for (const char *name : {"txtMinTemp", "txtMaxTemp"})
        QTest::newRow(name) << QByteArray(name) << true;
}

void TestFilterdialog::zahlfelder()
{
    QFETCH(const QByteArray, name);
    QFETCH(const bool, minus);
    QLineEdit *feld = probe_->feld(name);
    probe_->zeigen(feld);
    feld->clear(); // may be emptied
    for (const QChar taste : u"a1.b2,Ä3 +4,-5€6e\u0663"_s)
        QTest::sendKeyEvent(QTest::Click, feld, Qt::Key_unknown, QString(taste), Qt::NoModifier);
    QCOMPARE(feld->text(), minus ? u"12,34,-56"_s : u"12,34,56"_s); // separators may stand anywhere
    // A character that needs the third level of the keyboard is a key like any other.
    QTest::sendKeyEvent(QTest::Click, feld, Qt::Key_unknown, u"@"_s, Qt::ControlModifier | Qt::AltModifier);
    QTest::sendKeyEvent(QTest::Click, feld, Qt::Key_X, u"x"_s, Qt::AltModifier);
    QCOMPARE(feld->text(), minus ? u"12,34,-56"_s : u"12,34,56"_s);
    QTest::keyClick(feld, Qt::Key_Backspace);
    QCOMPARE(feld->text(), minus ? u"12,34,-5"_s : u"12,34,5"_s);
}

void TestFilterdialog::minTempWirdGeglaettet_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("danach");
    for (const auto &[text, danach] : {std::pair(u"-12,50"_s, u"-12,5"_s),
                                       {u"007"_s, u"7"_s},
                                       {u"-0,0"_s, u"0"_s},
                                       {u",5"_s, u"0,5"_s},
                                       {u""_s, u""_s},
                                       {u"-"_s, u"-"_s},
                                       {u"1,2,3"_s, u"1,2,3"_s},
                                       {u"5-"_s, u"5-"_s},
                                       {u"-20"_s, u"-20"_s},
                                       {u"1234567"_s, u"1234567"_s},
                                       {u"0,123456"_s, u"0,123456"_s},
                                       {u"-12,34567"_s, u"-12,34567"_s},
                                       {u"1,23456789"_s, u"1,234568"_s},
                                       {u"0,00010"_s, u"0,0001"_s}})
        QTest::addRow("<%s>", qPrintable(text)) << text << danach;
}

void TestFilterdialog::minTempWirdGeglaettet()
{
    QFETCH(const QString, text);
    for (const char *name : {"txtMinTemp", "txtMaxTemp"}) {
        QLineEdit *feld = probe_->feld(name);
        probe_->zeigen(feld);
        feld->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&probe_->dialog()));
        feld->setFocus();
        QTRY_VERIFY(feld->hasFocus());
        feld->clear();
        QTest::keyClicks(feld, text);
        QTest::keyClick(feld, Qt::Key_Tab);
        QTRY_VERIFY(!feld->hasFocus());
        if (feld == probe_->feld("txtMinTemp"))
            QTEST(feld->text(), "danach");
        else
            QCOMPARE(feld->text(), text); // the upper one stays as it was typed
    }
}

void TestFilterdialog::satzUnterDenBildern()
{
    const QStringView orte[] = {u"den Innenraum", u"die Fensterbank", u"den Kübel",        u"die Ampel",
                                u"das Beet",      u"den Balkon",      u"den Wintergarten", u"die Vitrine"};
    auto *satz = probe_->finde<QLabel>(u"lblVerwendung"_s);
    auto *rahmen = probe_->finde(u"SSFrame6"_s);
    for (int i = 0; i < 8; ++i) {
        auto *bild = probe_->element<Bildfeld>(u"imgVerwendung"_s, i);
        probe_->zeigen(bild);
        const auto schrift = [&] {
            satz->ensurePolished();
            return satz->palette().color(QPalette::WindowText);
        };
        const auto maus = [&](QWidget *control, QPoint stelle) {
            QTest::mouseMove(probe_->dialog().windowHandle(), control->mapTo(&probe_->dialog(), stelle));
        };
        maus(bild, bild->rect().center());
        QTRY_COMPARE(satz->text(), u"Die Pflanzen sollen für %1 geeignet sein!"_s.arg(orte[i]));
        QCOMPARE(schrift(), QColor(Qt::black));
        probe_->klicken(bild);
        maus(bild, bild->rect().center() + QPoint(3, 3));
        QTRY_COMPARE(schrift(), QColor(0x80, 0x80, 0x80));
        maus(rahmen, QPoint(rahmen->width() - 4, rahmen->height() - 4));
        QTRY_COMPARE(satz->text(), QString());
    }
}

void TestFilterdialog::zahlAufDenReitern()
{
    auto *reiter = probe_->finde<QTabWidget>(u"SSTab1"_s);
    const auto klick = [&](const char *name) { probe_->klicken(probe_->finde(QString::fromLatin1(name))); };
    klick("lblBlFarbe_1");
    klick("lblBlFarbe_2");
    QCOMPARE(reiter->tabText(0), u"Blüte (1)"_s);
    klick("lblBlMonat_1");
    klick("chkHaltbarkeit_0");
    QCOMPARE(reiter->tabText(0), u"Blüte (3)"_s);
    for (const char *box : {"chkHaltbarkeit_1", "chkHaltbarkeit_2"})
        klick(box);
    QCOMPARE(reiter->tabText(0), u"Blüte (2)"_s); // all boxes are no criterion
    probe_->feld("txtMinHoehe")->setText(u"0"_s);
    QCOMPARE(reiter->tabText(2), u"Blatt"_s);
    probe_->feld("txtMinHoehe")->setText(u"1,,"_s); // cannot be read, but somebody wants something
    QCOMPARE(reiter->tabText(2), u"Blatt (1)"_s);
    probe_->feld("txtMinLicht")->setText(u"0,0"_s);
    QCOMPARE(reiter->tabText(3), u"Standort (1)"_s);
    probe_->feld("txtSorte")->setText(u"x"_s);
    QCOMPARE(reiter->tabText(6), u"Textsuche (1)"_s);
    probe_->taste("cmdRuecksetzen");
    for (int i = 0; i < reiter->count(); ++i)
        QVERIFY(!reiter->tabText(i).contains(u'('));
}

void TestFilterdialog::eigenschaftenBenannt()
{
    QCOMPARE(probe_->box(u"sschkBenutzer"_s, 2)->text(), probe_->programm.BenutzerNamen[0][2]);
    probe_->taste("cmdAbbruch");
    probe_->programm.BenutzerNamen[0][2] = u"Schaufenster"_s;
    probe_->dialogZeigen();
    QTRY_COMPARE(probe_->box(u"sschkBenutzer"_s, 2)->text(), u"Schaufenster"_s);
    QCOMPARE(probe_->box(u"sschkBenutzer"_s, 1)->text(), probe_->programm.BenutzerNamen[0][1]);
}

void TestFilterdialog::ohneBildNurImHaus()
{
    auto *chkOhneBild = probe_->finde<QCheckBox>(u"chkOhneBild"_s);
    QVERIFY(chkOhneBild->isHidden());
    probe_->programm.HausModus = true;
    probe_->dialog().Form_Activate();
    QVERIFY(!chkOhneBild->isHidden());
    probe_->klicken(chkOhneBild);
    QVERIFY(chkOhneBild->isChecked());
    probe_->taste("cmdRuecksetzen");
    QVERIFY(chkOhneBild->isChecked()); // no reset touches it
    probe_->dialog().RuecksetzenFenster();
    QVERIFY(chkOhneBild->isChecked());
    probe_->programm.HausModus = false;
    probe_->dialog().Form_Activate();
    QVERIFY(chkOhneBild->isHidden() && !chkOhneBild->isChecked());
}

void TestFilterdialog::zuruecksetzen()
{
    QFETCH(const Sparte, sparte);
    starten(sparte);
    const QList<qint64> pflanzen = probe_->pflanzen();
    for (uint saat = 1; saat <= 12; ++saat) {
        verstellen(saat);
        Zustand soll(sparte);
        soll["chkOhneBild"] = {{probe_->finde<QCheckBox>(u"chkOhneBild"_s)->isChecked() ? 1 : 0}, {}};
        soll.bewertung(1, false);
        probe_->dialog().RuecksetzenFenster();
        QVERIFY(probe_->dialog().zustand() == soll.werte); // spares the rating
        verstellen(saat);
        probe_->taste("cmdRuecksetzen");
        soll.bewertung(3, true);
        QVERIFY(probe_->dialog().zustand() == soll.werte);
        QVERIFY(probe_->dialog().isVisible());
    }
    QCOMPARE(probe_->pflanzen(), pflanzen); // the filter does not run
}

void TestFilterdialog::verlassen_data()
{
    QTest::addColumn<QByteArray>("wie");
    for (const char *wie : {"Abbrechen", "Escape", "Steuerfeld"})
        QTest::newRow(wie) << QByteArray(wie);
}

void TestFilterdialog::verlassen()
{
    QFETCH(const QByteArray, wie);
    const QPointer<Filterdialog> dialog = &probe_->dialog();
    const QList<qint64> pflanzen = probe_->pflanzen();
    QVERIFY(probe_->zentrale.gesperrt);
    verstellen(5);
    const Filterzustand verstellt = dialog->zustand();
    if (wie == "Abbrechen")
        probe_->taste("cmdAbbruch");
    else if (wie == "Escape")
        QTest::keyClick(dialog, Qt::Key_Escape);
    else
        QVERIFY(!dialog->close());
    QVERIFY(dialog && !dialog->isVisible()); // hidden, not gone
    QVERIFY(!probe_->zentrale.gesperrt);
    QCOMPARE(probe_->pflanzen(), pflanzen);
    probe_->dialogZeigen();
    QCOMPARE(&probe_->dialog(), dialog.data());
    QVERIFY(dialog->zustand() == verstellt);
}

void TestFilterdialog::tastaturAufDenKnoepfen()
{
    // Enter means the button that has the focus, elsewhere OK.
    const QList<qint64> alle = probe_->pflanzen();
    probe_->feld("txtbotName")->setText(u"Ficus"_s);
    QTest::keyClick(probe_->finde(u"cmdAbbruch"_s), Qt::Key_Return);
    QVERIFY(!probe_->dialog().isVisible());
    QCOMPARE(probe_->pflanzen(), alle);
    probe_->dialogZeigen();
    QTest::keyClick(probe_->finde(u"cmdRuecksetzen"_s), Qt::Key_Enter);
    QVERIFY(probe_->dialog().isVisible());
    QCOMPARE(probe_->feld("txtbotName")->text(), QString());
    probe_->zeigen(probe_->feld("txtbotName"));
    QTest::keyClicks(probe_->feld("txtbotName"), u"Ficus"_s);
    QTest::keyClick(probe_->feld("txtbotName"), Qt::Key_Return);
    QVERIFY(!probe_->dialog().isVisible());
    QCOMPARE(probe_->pflanzen(), probe_->arbeit(u"BOT_NAME LIKE '*Ficus*' AND bewertung >= 5"_s));
    QVERIFY(!probe_->pflanzen().isEmpty() && probe_->pflanzen() != alle);
}

void TestFilterdialog::hilfe()
{
    QTest::keyClick(&probe_->dialog(), Qt::Key_F1);
    QCOMPARE(probe_->zentrale.hilfe, u"4-3-2.htm"_s);
}

void TestFilterdialog::groesseUndOrt()
{
    QFETCH(const Sparte, sparte);
    starten(sparte);
    Filterdialog &dialog = probe_->dialog();
    QVERIFY(dialog.width() <= 1024 && dialog.height() <= 700);
    QVERIFY(dialog.minimumSizeHint().width() <= 1024 && dialog.minimumSizeHint().height() <= 700);
    const QRect fenster(probe_->fenster->mapToGlobal(QPoint(0, 0)), probe_->fenster->size());
    // In the middle of the window, as far as the screen lets it.
    const QRect schirm = dialog.screen()->availableGeometry();
    const auto ort = [](int mitte, int laenge, int anfang, int ende) { return std::max(anfang, std::min(mitte, ende - laenge)); };
    QCOMPARE(dialog.pos().x(),
             ort(fenster.left() + (fenster.width() - dialog.width()) / 2, dialog.frameGeometry().width(), schirm.left(), schirm.right() + 1));
    QCOMPARE(dialog.pos().y(),
             ort(fenster.top() + (fenster.height() - dialog.height()) / 2, dialog.frameGeometry().height(), schirm.top(), schirm.bottom() + 1));
    for (const char *name : {"cmdOK", "cmdRuecksetzen", "cmdAbbruch"}) {
        auto *taste = probe_->finde(QString::fromLatin1(name));
        QVERIFY(dialog.rect().contains(QRect(taste->mapTo(&dialog, QPoint(0, 0)), taste->size())));
    }
}

void TestFilterdialog::allesMitDerTastaturErreichbar()
{
    QFETCH(const Sparte, sparte);
    starten(sparte);
    QSet<QString> erreicht;
    for (QWidget *w = probe_->dialog().nextInFocusChain(); w != &probe_->dialog(); w = w->nextInFocusChain())
        if (w->focusPolicy() & Qt::TabFocus) {
            erreicht += w->objectName();
            // From a cell or a picture the arrow keys lead through its row.
            if (!qobject_cast<Farbzelle *>(w) && !qobject_cast<Bildfeld *>(w))
                continue;
            for (QWidget *zelle = w, *naechste = nullptr; zelle != naechste; erreicht += zelle->objectName()) {
                naechste = zelle;
                zelle->setFocus();
                QTest::keyClick(zelle, Qt::Key_Right);
                zelle = probe_->dialog().focusWidget();
            }
        }
    for (const Dateizeile &zeile : dateizeilen(sparte)) {
        const QString name = zeile.element < 0 ? zeile.control : u"%1_%2"_s.arg(zeile.control).arg(zeile.element);
        const Steuerteil &teil = Zustand(sparte).steuerteil(zeile.control.toLatin1());
        const bool ueberzaehlig = teil.anzahl && zeile.element >= teil.waehlbare(); // stands in the file only
        QVERIFY2(erreicht.contains(name) != ueberzaehlig, qPrintable(name));
    }
}

FLOX_TEST(tst_filterdialog, TestFilterdialog)
#include "tst_filterdialog.moc"
