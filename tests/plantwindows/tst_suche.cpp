#include "Fensterprobe.h"

#include "filters/Filterdialog.h"
#include "plantwindows/Suchbestand.h"
#include "plantwindows/Suchliste.h"
#include "plantwindows/frmSuche.h"
#include "tests/store/Datenhilfen.h"
#include "tests/Testprogramm.h"

#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QPlainTextEdit>
#include <QSignalSpy>
#include <QSlider>
#include <QTabBar>
#include <QTest>

using namespace Qt::StringLiterals;

/* The search by keys: opening, typing, going, and what is said of plants that are not in the set. */

class TestSuche : public QObject
{
    Q_OBJECT

private slots:
    void cleanup() { probe_.reset(); }
    void strgF();
    void buchstabeAusserhalbVonTexten_data();
    void buchstabeAusserhalbVonTexten();
    void auswahlUndTextBehaltenIhreTasten();
    void pfeileUndSeiten();
    void escUndKlickDaneben();
    void maus();
    void synonymFuehrtZumNamen();
    void tippfehler();
    void nichtsGefunden();
    void leereZeileZeigtDieLetzten();
    void grauMitGrund();
    void grauDurchFilter();
    void eigeneNotiz();
    void notizEinesAnderenFensters();
    void geaenderteDatei();
    void tastenDesFenstersRuhen();
    void notizWirdVorherGespeichert();
    void jedeSparte_data();
    void jedeSparte();
    void beideHerkuenfte();
    void kleinesFenster();
    void vorgelesen();
    void ohneDatenbank();
    void vieleTreffer();

private:
    void oeffnen(Sparte sparte = Sparte::Topf);
    static void taste(Qt::Key taste, Qt::KeyboardModifiers um = {}) { QTest::keyClick(QApplication::focusWidget(), taste, um); }
    static void tippen(const QString &text) { QTest::keyClicks(QApplication::focusWidget(), text); }
    /// Ctrl+F where the focus is, then the text.
    void suche(const QString &text);
    frmSuche *form() { return probe_->fenster->findChild<frmSuche *>(u"frmSuche"_s); }
    QLineEdit *eingabe() { return form()->findChild<QLineEdit *>(u"txtSuche"_s); }
    QListView *liste() { return form()->findChild<QListView *>(u"lstSuche"_s); }
    bool offen() { return form() && form()->isVisible(); }
    QStringList zeilen()
    {
        QStringList alle;
        for (int i = 0; i < liste()->model()->rowCount(); ++i)
            alle += liste()->model()->index(i, 0).data().toString();
        return alle;
    }
    const Suchzeile &gewaehlt() { return static_cast<Suchmodell *>(liste()->model())->zeile(liste()->currentIndex().row()); }
    int zeileMit(const QString &text)
    {
        const QStringList alle = zeilen();
        for (int i = 0; i < alle.size(); ++i)
            if (alle[i].contains(text))
                return i;
        return -1;
    }
    qint64 nummer(const QString &name)
    {
        Recordset satz(probe_->ordner.db(), eintrag(probe_->fenster->sparte()).haupttabelle.toString());
        return satz.FindFirst(u"BOT_NAME"_s, name) ? satz.Schluessel() : 0;
    }
    /// Without a window manager nobody activates the window when a popup before it goes.
    void aktivieren()
    {
        probe_->fenster->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(probe_->fenster.get()));
    }
    void notieren(const QString &text)
    {
        aktivieren();
        probe_->reiterVon(u"txtEigeneBemerkung"_s);
        auto *feld = probe_->finde<QPlainTextEdit>(u"txtEigeneBemerkung"_s);
        QTest::mouseClick(feld->viewport(), Qt::LeftButton);
        tippen(text);
    }

    std::unique_ptr<Fensterprobe> probe_;
};

void TestSuche::oeffnen(Sparte sparte)
{
    probe_ = std::make_unique<Fensterprobe>(sparte);
    probe_->oeffnen();
    probe_->fenster->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(probe_->fenster.get()));
}

void TestSuche::suche(const QString &text)
{
    aktivieren();
    taste(Qt::Key_F, Qt::ControlModifier);
    QVERIFY(offen());
    QCOMPARE(QApplication::focusWidget(), eingabe());
    tippen(text);
    QTRY_VERIFY(!zeilen().value(0).startsWith(u"Das Verzeichnis"));
}

void TestSuche::strgF()
{
    oeffnen();
    probe_->alleZeigen();
    probe_->fenster->filterdialog()->cmdOK_Click();
    probe_->knopf("cmdNext")->setFocus();
    suche(u"BEGO mac"_s);
    QCOMPARE(zeilen().value(0), u"Begonia maculata, Forellen-Begonie"_s);
    const Suchzeile &zeile = gewaehlt();
    QCOMPARE(zeile.name.marken, (std::vector<Strecke>{{0, 4}, {8, 11}}));
    // Below the selector.
    auto *cboArten = probe_->finde<QComboBox>(u"cboArten"_s);
    QCOMPARE(form()->geometry().topLeft(), cboArten->mapToGlobal(QPoint(0, cboArten->height())));
    taste(Qt::Key_Return);
    QVERIFY(!offen());
    QCOMPARE(probe_->name(), u"Begonia maculata"_s);
    QCOMPARE(QApplication::focusWidget(), static_cast<QWidget *>(probe_->knopf("cmdNext")));
    QCOMPARE(cboArten->currentIndex(), int(probe_->fenster->satz().haupt().AbsolutePosition()));
    // Back leads to where it was.
    taste(Qt::Key_Left, Qt::AltModifier);
    QCOMPARE(probe_->fenster->satz().haupt().AbsolutePosition(), 0);
}

void TestSuche::buchstabeAusserhalbVonTexten_data()
{
    QTest::addColumn<QString>("ort");
    for (const char *name : {"cmdNext", "cmdFilter", "cmdDruck", "tabStauden", "sschkBenutzer_0", "txtSorten"})
        QTest::newRow(name) << QString::fromLatin1(name);
}

void TestSuche::buchstabeAusserhalbVonTexten()
{
    QFETCH(QString, ort);
    oeffnen();
    if (ort == u"tabStauden") {
        probe_->finde<QTabWidget>(ort)->tabBar()->setFocus();
    } else {
        if (!ort.startsWith(u"cmd"))
            probe_->reiterVon(ort);
        probe_->finde(ort)->setFocus();
    }
    QWidget *vorher = QApplication::focusWidget();
    QVERIFY(vorher);
    // Keys that are no letters are none of the search's.
    taste(Qt::Key_F5);
    taste(Qt::Key_5);
    taste(Qt::Key_Shift, Qt::ShiftModifier);
    QVERIFY(!offen());
    taste(Qt::Key_B);
    QVERIFY(offen());
    QCOMPARE(eingabe()->text(), u"b"_s);
    tippen(u"eg"_s);
    QCOMPARE(eingabe()->text(), u"beg"_s);
    QTRY_VERIFY(zeileMit(u"Begonia"_s) >= 0);
    taste(Qt::Key_Escape);
    QVERIFY(!offen());
    QCOMPARE(QApplication::focusWidget(), vorher);
    QTest::keyClicks(vorher, u"Ü"_s);
    QCOMPARE(eingabe()->text(), u"Ü"_s);
}

void TestSuche::auswahlUndTextBehaltenIhreTasten()
{
    oeffnen();
    auto *cboArten = probe_->finde<QComboBox>(u"cboArten"_s);
    cboArten->setFocus();
    taste(Qt::Key_C);
    QVERIFY(!offen());
    QVERIFY(cboArten->currentText().startsWith(u'C'));
    const QString name = probe_->name();
    notieren(u"abc"_s);
    QVERIFY(!offen());
    QCOMPARE(probe_->text(u"txtEigeneBemerkung"_s), u"abc"_s);
    QCOMPARE(probe_->name(), name);
}

void TestSuche::pfeileUndSeiten()
{
    oeffnen();
    suche(u"a"_s);
    auto *modell = static_cast<Suchmodell *>(liste()->model());
    QTRY_VERIFY(modell->rowCount() > 30);
    const auto jetzt = [&] { return liste()->currentIndex().row(); };
    QCOMPARE(jetzt(), 0);
    taste(Qt::Key_Up);
    QCOMPARE(jetzt(), 0);
    taste(Qt::Key_Down);
    taste(Qt::Key_Down);
    QCOMPARE(jetzt(), 2);
    taste(Qt::Key_Up);
    QCOMPARE(jetzt(), 1);
    taste(Qt::Key_PageDown);
    const int seite = jetzt();
    QVERIFY(seite > 5);
    QVERIFY(liste()->viewport()->rect().contains(liste()->visualRect(liste()->currentIndex())));
    taste(Qt::Key_PageUp);
    QCOMPARE(jetzt(), 1);
    taste(Qt::Key_End, Qt::ControlModifier);
    const int letzte = jetzt();
    QVERIFY(modell->zeile(letzte).istPflanze());
    QCOMPARE(modell->pflanzeAb(letzte + 1, 1), -1);
    taste(Qt::Key_Down);
    taste(Qt::Key_PageDown);
    QCOMPARE(jetzt(), letzte);
    taste(Qt::Key_Home, Qt::ControlModifier);
    QCOMPARE(jetzt(), 0);
    // What is typed goes to the box all the while, and starts again: at the first that Enter can go to.
    taste(Qt::Key_Down);
    tippen(u"l"_s);
    QCOMPARE(eingabe()->text(), u"al"_s);
    QVERIFY(!modell->zeile(0).grund.isEmpty());
    QCOMPARE(jetzt(), 1);
    QVERIFY(modell->zeile(1).grund.isEmpty());
}

void TestSuche::escUndKlickDaneben()
{
    oeffnen();
    probe_->knopf("cmdNext")->setFocus();
    const QString name = probe_->name();
    suche(u"begonia"_s);
    taste(Qt::Key_Escape);
    QVERIFY(!offen());
    QCOMPARE(probe_->name(), name);
    QCOMPARE(QApplication::focusWidget(), static_cast<QWidget *>(probe_->knopf("cmdNext")));
    // It opens empty.
    suche({});
    QCOMPARE(eingabe()->text(), QString());
    QTest::mouseClick(form(), Qt::LeftButton, {}, QPoint(5, -200));
    QVERIFY(!offen());
    QCOMPARE(probe_->name(), name);
}

void TestSuche::maus()
{
    oeffnen();
    probe_->alleZeigen();
    probe_->fenster->filterdialog()->cmdOK_Click();
    suche(u"begonia"_s);
    QTRY_VERIFY(liste()->model()->rowCount() > 2);
    const QModelIndex zweite = liste()->model()->index(1, 0);
    const qint64 artnr = static_cast<Suchmodell *>(liste()->model())->zeile(1).artnr;
    const QPoint stelle = liste()->visualRect(zweite).center();
    QTest::mouseMove(liste()->viewport(), stelle - QPoint(3, 0));
    QTest::mouseMove(liste()->viewport(), stelle);
    QTRY_COMPARE(liste()->currentIndex(), zweite);
    QTest::mouseClick(liste()->viewport(), Qt::LeftButton, {}, stelle);
    QVERIFY(!offen());
    QCOMPARE(probe_->fenster->satz().artnr(), artnr);
    // A heading leads nowhere.
    suche(u"mehltau"_s);
    const int titel = zeileMit(u"Im Text"_s);
    QVERIFY(titel >= 0);
    QTest::mouseClick(liste()->viewport(), Qt::LeftButton, {}, liste()->visualRect(liste()->model()->index(titel, 0)).center());
    QVERIFY(offen());
    QCOMPARE(probe_->fenster->satz().artnr(), artnr);
}

void TestSuche::synonymFuehrtZumNamen()
{
    oeffnen();
    probe_->alleZeigen();
    probe_->fenster->filterdialog()->cmdOK_Click();
    const QString synonym = u"Zzz-Probe vetus"_s;
    probe_->ordner.db()->Execute(u"INSERT INTO Topfpfl_Synonyme_Botanisch VALUES (?, ?)"_s, {nummer(u"Begonia maculata"_s), synonym});
    suche(u"vet zzzprobe"_s);
    QCOMPARE(zeilen(), QStringList{u"Zzz-Probe vetus → Begonia maculata, Forellen-Begonie"_s});
    QCOMPARE(gewaehlt().name.marken, (std::vector<Strecke>{{0, 9}, {10, 13}}));
    taste(Qt::Key_Enter);
    QCOMPARE(probe_->name(), u"Begonia maculata"_s);
}

void TestSuche::tippfehler()
{
    oeffnen();
    probe_->alleZeigen();
    probe_->fenster->filterdialog()->cmdOK_Click();
    suche(u"Begnoia mac"_s);
    QCOMPARE(zeilen().value(0), u"Ähnlich geschrieben"_s);
    QCOMPARE(zeilen().value(1), u"Begonia maculata, Forellen-Begonie"_s);
    QCOMPARE(gewaehlt().name.text, u"Begonia maculata"_s);
    taste(Qt::Key_Return);
    QCOMPARE(probe_->name(), u"Begonia maculata"_s);
}

void TestSuche::nichtsGefunden()
{
    oeffnen();
    const QString name = probe_->name();
    suche(u"qqqq"_s);
    QCOMPARE(zeilen(), QStringList{u"Nichts gefunden"_s});
    taste(Qt::Key_Down);
    taste(Qt::Key_PageUp);
    taste(Qt::Key_Return);
    QVERIFY(offen());
    QCOMPARE(probe_->name(), name);
    QCOMPARE(form()->findChild<QLabel *>(u"lblSuche"_s)->text().section(u' ', 0, 1), u"0 Pflanzen"_s);
}

void TestSuche::leereZeileZeigtDieLetzten()
{
    oeffnen();
    QStringList namen{probe_->name()};
    for (int i = 0; i < 12; ++i) {
        probe_->klick("cmdNext");
        namen.prepend(probe_->name());
    }
    probe_->knopf("cmdNext")->setFocus();
    suche({});
    QCOMPARE(zeilen().size(), 11);
    QCOMPARE(liste()->currentIndex().row(), 2);
    QCOMPARE(zeilen()[0], u"Zuletzt gezeigt"_s);
    for (int i = 0; i < 10; ++i)
        QVERIFY2(zeilen()[i + 1].startsWith(namen[i]), qPrintable(zeilen()[i + 1]));
    // Enter alone goes back to the one before.
    taste(Qt::Key_Return);
    QCOMPARE(probe_->name(), namen[1]);
    // What is taken back leaves them.
    suche(u"b"_s);
    taste(Qt::Key_Backspace);
    QCOMPARE(zeilen()[0], u"Zuletzt gezeigt"_s);
    QVERIFY(zeilen()[1].startsWith(namen[1]));
}

void TestSuche::grauMitGrund()
{
    oeffnen();
    probe_->arbeitSetzen(nummer(u"Begonia maculata"_s), u"bewertung"_s, 3);
    probe_->fenster->filterdialog()->cmdOK_Click();
    const QString name = probe_->name();
    const int anzahl = probe_->fenster->Anzahl;
    suche(u"begonia mac"_s);
    QCOMPARE(zeilen().value(0), u"Begonia maculata, Forellen-Begonie, Bewertung 3, nicht in der Auswahl"_s);
    const QString rat = u"Nicht in der Auswahl: Im Filter die Bewertung auf Stufe 2 stellen"_s;
    QCOMPARE(form()->findChild<QLabel *>(u"lblSuche"_s)->text(), rat);
    taste(Qt::Key_Return);
    // Nothing has changed but that the user knows what to do.
    QVERIFY(offen());
    QCOMPARE(probe_->name(), name);
    QCOMPARE(probe_->fenster->Anzahl, anzahl);
    QCOMPARE(probe_->panel(2), rat);
    taste(Qt::Key_Escape);
    // The advice is good.
    probe_->fenster->filterdialog()->findChild<QSlider *>(u"sldBewertung"_s)->setValue(2);
    probe_->fenster->filterdialog()->cmdOK_Click();
    suche(u"begonia mac"_s);
    QCOMPARE(zeilen().value(0), u"Begonia maculata, Forellen-Begonie"_s);
    taste(Qt::Key_Return);
    QCOMPARE(probe_->name(), u"Begonia maculata"_s);
}

void TestSuche::grauDurchFilter()
{
    oeffnen();
    probe_->alleZeigen();
    Filterdialog *dialog = probe_->fenster->filterdialog();
    dialog->findChild<QLineEdit *>(u"txtbotName"_s)->setText(u"Abutilon"_s);
    dialog->cmdOK_Click();
    suche(u"begonia mac"_s);
    QCOMPARE(zeilen().value(0), u"Begonia maculata, Forellen-Begonie, nicht in der Auswahl"_s);
    taste(Qt::Key_Return);
    QCOMPARE(probe_->panel(2), u"Nicht in der Auswahl: Mit „Filter ein/aus“ den Filter ausschalten"_s);
    taste(Qt::Key_Escape);
    probe_->klick("cmdFilterEin");
    suche(u"begonia mac"_s);
    QCOMPARE(zeilen().value(0), u"Begonia maculata, Forellen-Begonie"_s);
    taste(Qt::Key_Return);
    QCOMPARE(probe_->name(), u"Begonia maculata"_s);
}

void TestSuche::eigeneNotiz()
{
    oeffnen();
    // The index is there before the note is.
    suche(u"gewaechshaustisch"_s);
    QCOMPARE(zeilen(), QStringList{u"Nichts gefunden"_s});
    taste(Qt::Key_Escape);
    probe_->klick("cmdNext");
    const QString name = probe_->name();
    notieren(u"Steht auf dem GewÄchshaustisch links."_s);
    probe_->klick("cmdLast");
    suche(u"gewaechshaust"_s);
    QCOMPARE(zeilen().value(0), u"Im Text"_s);
    QVERIFY2(zeilen().value(1).endsWith(u". Eigene Bemerkung: Steht auf dem GewÄchshaustisch links."), qPrintable(zeilen().value(1)));
    QCOMPARE(gewaehlt().stelle.marken, (std::vector<Strecke>{{14, 26}}));
    taste(Qt::Key_Return);
    QCOMPARE(probe_->name(), name);
    // What was written over is gone.
    notieren({});
    probe_->finde<QPlainTextEdit>(u"txtEigeneBemerkung"_s)->selectAll();
    tippen(u"umgezogen"_s);
    QCOMPARE(probe_->text(u"txtEigeneBemerkung"_s), u"umgezogen"_s);
    probe_->klick("cmdFirst");
    suche(u"gewaechshaustisch"_s);
    QVERIFY2(zeilen() == QStringList{u"Nichts gefunden"_s}, qPrintable(zeilen().join(u'|')));
}

void TestSuche::notizEinesAnderenFensters()
{
    oeffnen();
    const std::unique_ptr<Pflanzenfenster> zweites = probe_->weiteres(2);
    zweites->Form_Activate();
    suche(u"brunnentrog"_s);
    QCOMPARE(zeilen(), QStringList{u"Nichts gefunden"_s});
    taste(Qt::Key_Escape);
    zweites->findChild<QPlainTextEdit *>(u"txtEigeneBemerkung"_s)->setPlainText(u"Brunnentrog"_s);
    zweites->DatenGeaendert = true;
    zweites->BenutzerdatenSpeichern();
    suche(u"brunnentrog"_s);
    QCOMPARE(zeilen().value(0), u"Im Text"_s);
}

/// Somebody else has written into the database.
void TestSuche::geaenderteDatei()
{
    oeffnen();
    suche(u"kelchprobe"_s);
    QCOMPARE(zeilen(), QStringList{u"Nichts gefunden"_s});
    taste(Qt::Key_Escape);
    probe_->arbeitSetzen(probe_->fenster->satz().artnr(), u"SORTEN"_s, u"'Kelchprobe'"_s);
    suche(u"kelchprobe"_s);
    QTRY_COMPARE(zeilen().value(0), u"Im Text"_s);
}

void TestSuche::tastenDesFenstersRuhen()
{
    oeffnen();
    probe_->klick("cmdNext");
    const QString name = probe_->name();
    suche(u"begonia"_s);
    for (const Qt::Key welche : {Qt::Key_PageDown, Qt::Key_PageUp, Qt::Key_Home, Qt::Key_End, Qt::Key_P})
        taste(welche, Qt::ControlModifier);
    taste(Qt::Key_Left, Qt::AltModifier);
    QVERIFY(offen());
    QCOMPARE(probe_->name(), name);
    QCOMPARE(probe_->zentrale.gedruckt, 0);
    // Ctrl+F once more marks what is typed.
    taste(Qt::Key_F, Qt::ControlModifier);
    QCOMPARE(eingabe()->selectedText(), u"begonia"_s);
    tippen(u"x"_s);
    QCOMPARE(eingabe()->text(), u"x"_s);
}

void TestSuche::notizWirdVorherGespeichert()
{
    oeffnen();
    const qint64 artnr = probe_->fenster->satz().artnr();
    notieren(u"Rankgitter"_s);
    suche(u"rankgitter"_s);
    QCOMPARE(zeilen().value(0), u"Im Text"_s);
    QCOMPARE(probe_->arbeitLesen(artnr, u"benu_bemerkung"_s), u"Rankgitter"_s);
    // The focus goes back into the note.
    taste(Qt::Key_Escape);
    QCOMPARE(QApplication::focusWidget()->objectName(), u"txtEigeneBemerkung"_s);
}

void TestSuche::jedeSparte_data()
{
    QTest::addColumn<int>("sparte");
    for (const SpartenEintrag &zeile : alleSparten())
        QTest::newRow(zeile.fenster) << int(zeile.sparte);
}

/// The last plant of every collection by the beginnings of its words, from last to first.
void TestSuche::jedeSparte()
{
    QFETCH(int, sparte);
    oeffnen(Sparte(sparte));
    probe_->klick("cmdLast");
    const QString name = probe_->name();
    probe_->klick("cmdFirst");
    QVERIFY(probe_->name() != name);
    QStringList woerter;
    for (const QString &wort : gefaltet(name).split(u' '))
        woerter.prepend(wort.first(std::min<qsizetype>(wort.size(), 6)));
    suche(woerter.join(u' '));
    const int zeile = zeileMit(name);
    QVERIFY(zeile >= 0);
    for (int i = 0; i < zeile; ++i)
        taste(Qt::Key_Down);
    taste(Qt::Key_Return);
    QCOMPARE(probe_->name(), name);
}

void TestSuche::beideHerkuenfte()
{
    oeffnen(Sparte::Friedhof);
    for (const char *tabelle : {"Stauden", "Gehoelze"}) {
        const QString quelle = QString::fromLatin1(tabelle);
        const qint64 artnr =
            zahl(*probe_->ordner.db(), u"SELECT max(f.ARTNR) FROM Friedhof f JOIN %1 q ON q.ARTNR = f.ARTNR "
                                       "WHERE f.DB = '%2' AND f.bewertung >= 5"_s.arg(quelle, quelle == u"Stauden" ? u"100"_s : u"010"_s));
        probe_->ordner.db()->Execute(u"UPDATE %1 SET BEMERKUNG = 'Zzprobe %1' WHERE ARTNR = ?"_s.arg(quelle), {artnr});
        suche(u"zzprobe "_s + quelle);
        QTRY_COMPARE(zeilen().value(0), u"Im Text"_s);
        taste(Qt::Key_Return);
        QCOMPARE(probe_->fenster->satz().artnr(), artnr);
    }
}

void TestSuche::kleinesFenster()
{
    oeffnen();
    probe_->fenster->resize(probe_->fenster->minimumSizeHint());
    probe_->fenster->move(QGuiApplication::primaryScreen()->availableGeometry().bottomRight() - QPoint(60, 90));
    suche(u"a"_s);
    QTRY_VERIFY(liste()->model()->rowCount() > 30);
    QVERIFY(QGuiApplication::primaryScreen()->availableGeometry().contains(form()->geometry()));
    QVERIFY(liste()->height() >= 5 * liste()->sizeHintForRow(0));
    taste(Qt::Key_Down);
    taste(Qt::Key_Escape);
    QVERIFY(!offen());
}

void TestSuche::vorgelesen()
{
    oeffnen();
    probe_->alleZeigen();
    probe_->fenster->filterdialog()->cmdOK_Click();
    suche(u"begonia mac"_s);
    QCOMPARE(eingabe()->accessibleName(), u"Pflanze suchen"_s);
    QCOMPARE(liste()->accessibleName(), u"Gefundene Pflanzen"_s);
    const auto pflanzen = [&] {
        const auto *modell = static_cast<const Suchmodell *>(liste()->model());
        int anzahl = 0;
        for (int i = 0; i < modell->rowCount(); ++i)
            anzahl += modell->zeile(i).istPflanze();
        return anzahl;
    };
    const QString ansage = eingabe()->accessibleDescription();
    QVERIFY2(ansage.startsWith(u"1 Pflanze") && ansage.contains(u". Begonia maculata, Forellen-Begonie"), qPrintable(ansage));
    eingabe()->clear();
    tippen(u"a"_s);
    QCOMPARE(pflanzen(), 60);
    QVERIFY2(eingabe()->accessibleDescription().endsWith(u". 1 von 60"), qPrintable(eingabe()->accessibleDescription()));
    taste(Qt::Key_Down);
    taste(Qt::Key_Down);
    QVERIFY(eingabe()->accessibleDescription().endsWith(gewaehlt().alsSatz() + u". 3 von 60"_s));
    eingabe()->clear();
    tippen(u"qqqq"_s);
    QCOMPARE(eingabe()->accessibleDescription(), u"0 Pflanzen. Nichts gefunden"_s);
}

void TestSuche::ohneDatenbank()
{
    const auto bestand = Suchbestand::fuer(u"/nirgends/nichts.mdb"_s, Sparte::Topf);
    QCOMPARE(Suchbestand::fuer(u"/nirgends/nichts.mdb"_s, Sparte::Topf), bestand);
    QVERIFY(Suchbestand::fuer(u"/nirgends/nichts.mdb"_s, Sparte::Obst) != bestand);
    QSignalSpy bereit(bestand.get(), &Suchbestand::bereit);
    bestand->bereiten();
    QTRY_COMPARE(bereit.count(), 1);
    QVERIFY(!bestand->hatVerzeichnis());
    QVERIFY(bestand->fehler().contains(u"nicht gefunden"));
    // Gone at once, even while it is read.
    const Programmordner ordner;
    auto anderer = Suchbestand::fuer(ordner.datenbank(), Sparte::Topf);
    anderer->bereiten();
    anderer.reset();
    QVERIFY(Suchbestand::fuer(ordner.datenbank(), Sparte::Topf)->fehler().isEmpty());
}

void TestSuche::vieleTreffer()
{
    oeffnen();
    suche(u"a"_s);
    QTRY_VERIFY(liste()->model()->rowCount() > 30);
    const QStringList alle = zeilen();
    const qsizetype pflanzen = std::ranges::count_if(alle, [](const QString &zeile) { return !zeile.startsWith(u'…'); });
    QCOMPARE(pflanzen, 60);
    const QString rest = alle.last();
    QVERIFY(rest.startsWith(u"… und ") && rest.endsWith(u" weitere"));
    QCOMPARE(form()->findChild<QLabel *>(u"lblSuche"_s)->text().section(u' ', 0, 0).toInt(), 60 + rest.section(u' ', 2, 2).toInt());
}

FLOX_TEST(tst_suche, TestSuche)
#include "tst_suche.moc"
