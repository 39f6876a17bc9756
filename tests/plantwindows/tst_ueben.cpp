#include "Uebungshand.h"

#include "filters/Filterdialog.h"
#include "plantwindows/Aufgabe.h"
#include "plantwindows/Uebung.h"
#include "plantwindows/frmPruefung.h"
#include "plantwindows/frmUeben.h"
#include "store/Lernstand.h"
#include "store/Pfade.h"
#include "tests/Testprogramm.h"

#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPointer>
#include <QPushButton>
#include <QRandomGenerator>
#include <QRegularExpression>
#include <QSet>
#include <QStackedWidget>
#include <QTableWidget>
#include <QTest>

using namespace Qt::StringLiterals;

/* Practice in the plant window, driven by keys. */

namespace {

/// Controls that show words of a vocabulary: what they tell is a plant's feature, whatever its name.
QSet<const QWidget *> vokabeln(const QWidget *fenster, const Fensterbeschreibung &beschreibung)
{
    QSet<QString> namen;
    const auto dazu = [&](const auto &elemente) {
        for (const Element &element : elemente)
            if (!QList{Muster::Text, Muster::BotName, Muster::DtName, Muster::Familie, Muster::Synonyme, Muster::Benutzertext}.contains(
                    element.muster))
                namen.insert(QString::fromLatin1(element.control));
    };
    dazu(beschreibung.tafel);
    for (const Reiter &reiter : beschreibung.reiter)
        for (const Gruppe &gruppe : reiter.gruppen)
            dazu(Gruppenelemente(gruppe).elemente());
    QSet<const QWidget *> gefunden;
    for (const QWidget *control : fenster->findChildren<QWidget *>()) {
        const QString name = control->objectName();
        // An array's member, and the row that it stands in.
        if (namen.contains(name) || namen.contains(name.left(name.lastIndexOf(u'_')))) {
            gefunden.insert(control);
            if (control->parentWidget()->objectName().isEmpty() || name != control->objectName().section(u'_', 0, 0))
                gefunden.insert(control->parentWidget());
        }
    }
    return gefunden;
}

/// Everything that a window says to the eye, the ear or the mouse.
QStringList worteDesFensters(const QWidget *fenster, const QSet<const QWidget *> &ohne = {})
{
    QStringList texte{fenster->windowTitle()};
    for (const QWidget *control : fenster->findChildren<QWidget *>()) {
        if (!zuSehen(control, fenster) || ohne.contains(control))
            continue;
        texte << control->toolTip() << control->statusTip() << control->whatsThis() << control->accessibleName() << control->accessibleDescription();
        if (auto *schild = qobject_cast<const QLabel *>(control))
            texte << schild->text();
        if (auto *feld = qobject_cast<const QLineEdit *>(control))
            texte << feld->text() << feld->placeholderText();
        if (auto *text = qobject_cast<const QPlainTextEdit *>(control))
            texte << text->toPlainText() << text->placeholderText();
        if (auto *knopf = qobject_cast<const QAbstractButton *>(control))
            texte << knopf->text();
        if (auto *auswahl = qobject_cast<const QComboBox *>(control))
            texte << auswahl->currentText();
    }
    texte.removeAll(QString());
    return texte;
}

} // namespace

class TestUeben : public QObject
{
    Q_OBJECT

private slots:
    void nichtsVerraetDenNamen_data();
    void nichtsVerraetDenNamen();
    void leertasteDecktAuf();
    void ausUndEinLaesstAllesWieEsWar();
    void antworten();
    void falschesKommtWieder();
    void selbstBeurteilt();
    void standWirdGemerkt();
    void beschaedigterStand();
    void neuererStand();
    void notizen();
    void tippenImTextfeld();
    void filterBeendet();
    void schliessen();
    void anderesBeendet();
    void sucheVerraetNichts();
    void leereMenge();
    void kleinesFenster();
};

void TestUeben::nichtsVerraetDenNamen_data()
{
    QTest::addColumn<Sparte>("sparte");
    for (const Sparte sparte : spartenMitFenster())
        QTest::newRow(qPrintable(eintrag(sparte).titel.toString())) << sparte;
}

void TestUeben::nichtsVerraetDenNamen()
{
    QFETCH(const Sparte, sparte);
    Fensterprobe probe(sparte);
    probe.alleZeigen();
    oeffnen(probe);
    const QSet<const QWidget *> ohne = vokabeln(probe.fenster.get(), *fensterbeschreibung(sparte));
    taste(Qt::Key_F9);
    QVERIFY(probe.fenster->uebt());
    QSet<qint64> gesehen;
    // What stands there for plants of other names as well is the window's own: captions, hints.
    QHash<QString, QSet<qint64>> verraten, unverdaechtig;
    constexpr int besuche = 40;
    for (int i = 0; i < besuche; ++i) {
        const Aufgabe jetzt = aufgabe(probe);
        gesehen.insert(jetzt.artnr);
        QVERIFY(!jetzt.teile.empty());
        QVERIFY(!jetzt.worte.isEmpty());
        QVERIFY(probe.fenster->namenVerdeckt());
        for (QString text : worteDesFensters(probe.fenster.get(), ohne)) {
            // A field's own title, which is shown only where the field is, and a text that counts.
            if (text.endsWith(u':'))
                continue;
            static const QRegularExpression zahlen(u"\\d+"_s);
            text.replace(zahlen, u"#"_s);
            (ohneNamen(text, jetzt.worte) == text ? unverdaechtig : verraten)[text].insert(jetzt.artnr);
        }
        // Nothing stands in the picture window either.
        QVERIFY(probe.fenster->bilderpflanze().verdeckt);
        taste(Qt::Key_PageDown);
    }
    QCOMPARE(gesehen.size(), besuche);
    QStringList leck;
    for (auto text = verraten.begin(); text != verraten.end(); ++text)
        if (unverdaechtig.value(text.key()).size() < 5)
            leck += text.key();
    QVERIFY2(leck.isEmpty(), qPrintable(leck.join(u"\n"_s)));
    // The same look finds every name once it is seen.
    const QString name = probe.name();
    probe.finde(u"txtAntwort_0"_s)->setFocus();
    taste(Qt::Key_Space);
    QVERIFY(worteDesFensters(probe.fenster.get(), ohne).join(u"\n"_s).contains(name));
}

void TestUeben::leertasteDecktAuf()
{
    Fensterprobe probe;
    oeffnen(probe, 8);
    taste(Qt::Key_F9);
    QVERIFY(probe.gezeigt(u"lblNamenDecke"_s));
    QVERIFY(!zuSehen(probe.finde(u"lblBotName"_s), probe.fenster.get()));
    QVERIFY(!probe.gezeigt(u"cboArten"_s));
    QVERIFY(!probe.finde<QPushButton>(u"cmdUebZurueck"_s)->isEnabled());
    const QString name = probe.name();
    taste(Qt::Key_Space);
    QVERIFY(!probe.fenster->namenVerdeckt());
    QVERIFY(!probe.gezeigt(u"lblNamenDecke"_s));
    QVERIFY(zuSehen(probe.finde(u"lblBotName"_s), probe.fenster.get()));
    QCOMPARE(probe.text(u"lblBotName"_s), name);
    QVERIFY(probe.gezeigt(u"cboArten"_s));
    QVERIFY(!probe.finde(u"cboArten"_s)->isEnabled());
    QCOMPARE(probe.finde<QComboBox>(u"cboArten"_s)->currentText(), name);
    // The next one is covered, the one before stays open.
    taste(Qt::Key_PageDown);
    QVERIFY(probe.fenster->namenVerdeckt());
    QVERIFY(probe.name() != name);
    taste(Qt::Key_PageUp);
    QCOMPARE(probe.name(), name);
    QVERIFY(!probe.fenster->namenVerdeckt());
    for (int i = 1; i < 8; ++i)
        taste(Qt::Key_PageDown);
    QVERIFY(!probe.finde<QPushButton>(u"cmdUebWeiter"_s)->isEnabled());
    taste(Qt::Key_PageDown);
    QCOMPARE(probe.panel(2), u"Das war die letzte Pflanze."_s);
    QCOMPARE(probe.panel(4), u"8/8"_s);
}

void TestUeben::ausUndEinLaesstAllesWieEsWar()
{
    Fensterprobe probe;
    probe.alleZeigen();
    oeffnen(probe);
    probe.klick("cmdNext");
    probe.klick("cmdNext");
    probe.reiterVon(u"txtEigeneBemerkung"_s);
    probe.finde(u"cboArten"_s)->setFocus();
    const auto lage = [&] {
        QCoreApplication::processEvents();
        QStringList alles = worteDesFensters(probe.fenster.get());
        for (const QWidget *control : probe.fenster->findChildren<QWidget *>())
            if (!control->objectName().isEmpty() && !control->objectName().startsWith(u"qt_"))
                alles += u"%1 %2 %3 %4"_s.arg(control->objectName()).arg(control->isHidden()).arg(control->isEnabled()).arg(control->hasFocus());
        alles += QString::number(probe.fenster->satz().artnr());
        alles.sort();
        return alles;
    };
    const std::vector<qint64> folge = probe.fenster->satz().haupt().Schluesselfolge();
    const QStringList vorher = lage();
    for (const Qt::Key ende : {Qt::Key_F9, Qt::Key_Escape}) {
        taste(Qt::Key_F9);
        QVERIFY(probe.fenster->uebt());
        for (int i = 0; i < 4; ++i) {
            taste(Qt::Key_Space);
            taste(Qt::Key_PageDown);
        }
        // The keys that walk through the set rest.
        const QString hier = probe.name();
        taste(Qt::Key_PageDown, Qt::ControlModifier);
        taste(Qt::Key_Left, Qt::AltModifier);
        QCOMPARE(probe.name(), hier);
        taste(ende);
        QVERIFY(!probe.fenster->uebt());
        QCOMPARE(lage(), vorher);
        QCOMPARE(probe.fenster->satz().haupt().Schluesselfolge(), folge);
    }
    // What practice showed is no plant that was visited.
    probe.finde<QAction>(u"aktZurueck"_s)->trigger();
    QCOMPARE(probe.fenster->satz().artnr(), folge[1]);
}

void TestUeben::antworten()
{
    Fensterprobe probe(Sparte::Gehoelze);
    probe.alleZeigen();
    oeffnen(probe);
    taste(Qt::Key_F9);
    // Until one with a variety comes; whoever has none is not asked for one.
    bool mit = false, ohne = false;
    for (int i = 0; i < 200 && !(mit && ohne); ++i) {
        const Aufgabe jetzt = aufgabe(probe);
        QStringList titel;
        for (int j = 0; j < int(jetzt.teile.size()); ++j) {
            QVERIFY(probe.gezeigt(u"txtAntwort_%1"_s.arg(j)) && !probe.finde(u"txtAntwort_%1"_s.arg(j))->parentWidget()->isHidden());
            titel += probe.text(u"lblFrage_%1"_s.arg(j));
        }
        for (int j = int(jetzt.teile.size()); j < 5; ++j)
            QVERIFY(probe.finde(u"txtAntwort_%1"_s.arg(j))->parentWidget()->isHidden());
        const bool hatSorte = probe.name().contains(u'\'');
        QCOMPARE(titel.contains(u"Sorte"_s), hatSorte);
        QVERIFY(titel.contains(u"Gattung"_s) && titel.contains(u"Familie"_s) && titel.contains(u"Deutscher Name"_s));
        (hatSorte ? mit : ohne) = true;
        taste(Qt::Key_PageDown);
    }
    QVERIFY(mit && ohne);
    // All right but for one letter of the genus and the family.
    const Aufgabe jetzt = aufgabe(probe);
    for (size_t i = 0; i < jetzt.teile.size(); ++i) {
        const Fragenart art = jetzt.teile[i].frage->art;
        QString antwort = jetzt.teile[i].loesung.text;
        if (art == Fragenart::Gattung)
            antwort.insert(2, u'z');
        if (art == Fragenart::Familie)
            antwort = u"Weißnicht"_s;
        tippen(antwort);
        taste(Qt::Key_Tab);
    }
    QCOMPARE(probe.finde<QPushButton>(u"cmdAufdecken"_s)->text(), u"Prüfen"_s);
    probe.finde(u"txtAntwort_0"_s)->setFocus();
    taste(Qt::Key_Return);
    QVERIFY(!probe.fenster->namenVerdeckt());
    for (size_t i = 0; i < jetzt.teile.size(); ++i) {
        const QString urteil = probe.text(u"lblUrteil_%1"_s.arg(i));
        const Fragenart art = jetzt.teile[i].frage->art;
        const QString &richtig = jetzt.teile[i].loesung.text;
        QCOMPARE(urteil, art == Fragenart::Gattung   ? u"≈ fast (ein Buchstabe): "_s + richtig
                         : art == Fragenart::Familie ? u"✗ falsch: "_s + richtig
                                                     : u"✓ richtig"_s);
        QVERIFY(probe.finde<QLineEdit>(u"txtAntwort_%1"_s.arg(i))->isReadOnly());
    }
    // And on with the same key.
    const QString name = probe.name();
    taste(Qt::Key_Return);
    QVERIFY(probe.name() != name);
    QVERIFY(probe.finde<QLineEdit>(u"txtAntwort_0"_s)->text().isEmpty());
    QVERIFY(probe.finde(u"txtAntwort_0"_s)->hasFocus());
}

void TestUeben::falschesKommtWieder()
{
    Fensterprobe probe;
    oeffnen(probe, 12);
    taste(Qt::Key_F9);
    const qint64 falsch = probe.fenster->satz().artnr();
    tippen(u"Unsinn"_s);
    taste(Qt::Key_Return);
    QVERIFY(probe.text(u"lblUebungHinweis"_s).startsWith(u"Diese Pflanze kommt gleich noch einmal."_s));
    QCOMPARE(probe.panel(4), u"1/13"_s);
    for (size_t i = 0; i <= Uebung::wiederNach; ++i)
        taste(Qt::Key_PageDown);
    QCOMPARE(probe.fenster->satz().artnr(), falsch);
    QVERIFY(probe.fenster->namenVerdeckt());
    QVERIFY(probe.text(u"lblUebungStelle"_s).endsWith(u"noch einmal"_s));
}

void TestUeben::selbstBeurteilt()
{
    Fensterprobe probe;
    oeffnen(probe, 12);
    probe.fenster->uebungszeit.heute = [] { return QDate(2026, 5, 1); };
    taste(Qt::Key_F9);
    const Aufgabe jetzt = aufgabe(probe);
    taste(Qt::Key_Space);
    QVERIFY(!QFile::exists(standdatei(probe)));
    QTest::mouseClick(probe.finde<QPushButton>(u"cmdGewusst"_s), Qt::LeftButton);
    QVERIFY(!zuSehen(probe.finde(u"cmdGewusst"_s), probe.fenster.get()));
    const Lernstand stand = Lernstand::laden(standdatei(probe)).stand;
    const auto wert = stand.wert({u"TOPFPFL"_s, jetzt.artnr, jetzt.name});
    QVERIFY(wert);
    QCOMPARE(wert->faellig, QDate(2026, 5, 2));
    QCOMPARE(probe.text(u"lblUebungHinweis"_s), u"Diese Pflanze sollten Sie am 02.05.2026 wiederholen."_s);
    // The key goes on working where the button was.
    taste(Qt::Key_PageDown);
    QVERIFY(probe.fenster->satz().artnr() != jetzt.artnr);
    taste(Qt::Key_Space);
    QTest::mouseClick(probe.finde<QPushButton>(u"cmdNichtGewusst"_s), Qt::LeftButton);
    QCOMPARE(probe.panel(4), u"2/13"_s);
}

void TestUeben::standWirdGemerkt()
{
    Fensterprobe probe(Sparte::Obst);
    QDate heute(2026, 5, 1);
    oeffnen(probe, 30);
    probe.fenster->uebungszeit.heute = [&heute] { return heute; };
    QSet<qint64> gekonnt, nichtGekonnt;
    taste(Qt::Key_F9);
    for (int i = 0; i < 6; ++i) {
        const Aufgabe jetzt = aufgabe(probe);
        const bool kann = i % 2 == 0;
        (kann ? gekonnt : nichtGekonnt).insert(jetzt.artnr);
        for (const Teilaufgabe &teil : jetzt.teile) {
            tippen(kann ? teil.loesung.text : u"Unsinn"_s);
            taste(Qt::Key_Tab);
        }
        taste(Qt::Key_Return);
        if (probe.fenster->namenVerdeckt()) {
            probe.finde(u"txtAntwort_0"_s)->setFocus();
            taste(Qt::Key_Return);
        }
        QVERIFY(!probe.fenster->namenVerdeckt());
        taste(Qt::Key_PageDown);
    }
    taste(Qt::Key_Escape);
    // Tomorrow all six are due and come first; the day after a right answer only those that were wrong.
    heute = heute.addDays(1);
    const auto ersten = [&](int anzahl) {
        QSet<qint64> nummern;
        taste(Qt::Key_F9);
        for (int i = 0; i < anzahl; ++i) {
            nummern.insert(probe.fenster->satz().artnr());
            taste(Qt::Key_PageDown);
        }
        taste(Qt::Key_Escape);
        return nummern;
    };
    QCOMPARE(ersten(6), gekonnt + nichtGekonnt);
    const QString pfad = standdatei(probe);
    Lernstand stand = Lernstand::laden(pfad).stand;
    QCOMPARE(stand.werte().size(), 6);
    for (auto wert = stand.werte().begin(); wert != stand.werte().end(); ++wert) {
        QCOMPARE(wert.key().tabelle, u"Obst"_s);
        QCOMPARE(wert->folge, gekonnt.contains(wert.key().artnr) ? 1 : 0);
    }
    for (const Lernstand::Schluessel &schluessel : stand.werte().keys())
        if (gekonnt.contains(schluessel.artnr))
            stand.setWert(schluessel, nachAntwort(*stand.wert(schluessel), 5, heute));
    stand.speichern(pfad);
    heute = heute.addDays(1);
    QCOMPARE(ersten(3), nichtGekonnt);
}

void TestUeben::beschaedigterStand()
{
    Fensterprobe probe;
    oeffnen(probe, 5);
    QFile datei(standdatei(probe));
    QVERIFY(datei.open(QIODevice::WriteOnly));
    datei.write("{kaputt");
    datei.close();
    Meldungsfaenger faenger;
    taste(Qt::Key_F9);
    QVERIFY(probe.fenster->uebt());
    QTRY_COMPARE(faenger.texte.size(), 1);
    QVERIFY(faenger.texte[0].contains(u"beschädigt"_s));
    nachDerBox(probe);
    tippen(u"Unsinn"_s);
    taste(Qt::Key_Return);
    QCOMPARE(Lernstand::laden(standdatei(probe)).stand.werte().size(), 1);
    QCOMPARE(QDir(QFileInfo(standdatei(probe)).path()).entryList({u"uebung-beschaedigt-*.json"_s}).size(), 1);
}

void TestUeben::neuererStand()
{
    Fensterprobe probe;
    oeffnen(probe, 5);
    const QByteArray inhalt = "{\"format\": 7}";
    QFile datei(standdatei(probe));
    QVERIFY(datei.open(QIODevice::WriteOnly));
    datei.write(inhalt);
    datei.close();
    Meldungsfaenger faenger;
    taste(Qt::Key_F9);
    QTRY_COMPARE(faenger.texte.size(), 1);
    QVERIFY(faenger.texte[0].contains(u"neuere Version"_s));
    nachDerBox(probe);
    tippen(u"Unsinn"_s);
    taste(Qt::Key_Return);
    QVERIFY(!probe.fenster->namenVerdeckt());
    QVERIFY(datei.open(QIODevice::ReadOnly));
    QCOMPARE(datei.readAll(), inhalt);
    // Told once.
    QCOMPARE(faenger.texte.size(), 1);
}

void TestUeben::notizen()
{
    Fensterprobe probe;
    oeffnen(probe, 6);
    const qint64 vorher = probe.fenster->satz().artnr();
    // A note that tells the name is covered with it; another one can be written on.
    for (const qint64 nummer : probe.fenster->satz().haupt().Schluesselfolge()) {
        QVERIFY(probe.fenster->springen(nummer));
        probe.arbeitSetzen(nummer, u"benu_bemerkung"_s, nummer % 2 ? u"%1 im Beet 3"_s.arg(probe.name()) : u"im Beet 4"_s);
    }
    QVERIFY(probe.fenster->springen(vorher));
    probe.reiterVon(u"txtEigeneBemerkung"_s);
    probe.fenster->activateWindow();
    probe.finde(u"cboArten"_s)->setFocus();
    taste(Qt::Key_F9);
    auto *notiz = probe.finde<QPlainTextEdit>(u"txtEigeneBemerkung"_s);
    QSet<bool> faelle;
    for (int i = 0; i < 6; ++i) {
        const qint64 nummer = probe.fenster->satz().artnr();
        faelle.insert(nummer % 2);
        QCOMPARE(notiz->isHidden(), nummer % 2 == 1);
        QCOMPARE(probe.gezeigt(u"txtEigeneBemerkung_Decke"_s), nummer % 2 == 1);
        if (nummer % 2 == 0) {
            QTest::mouseClick(notiz->viewport(), Qt::LeftButton);
            QTest::keyClick(notiz, Qt::Key_End, Qt::ControlModifier);
            QTest::keyClicks(notiz, u", merken"_s);
            // Keys of practice are letters here.
            QTest::keyClick(notiz, Qt::Key_Space);
            QVERIFY(probe.fenster->namenVerdeckt());
        } else {
            taste(Qt::Key_Space);
            QVERIFY(!notiz->isHidden());
        }
        probe.finde<QPushButton>(u"cmdUebWeiter"_s)->click();
        if (nummer % 2 == 0 && i < 5)
            QCOMPARE(probe.arbeitLesen(nummer, u"benu_bemerkung"_s), u"im Beet 4, merken "_s);
    }
    QCOMPARE(faelle.size(), 2);
    probe.fenster->ueben();
    QVERIFY(!probe.fenster->uebt());
    QVERIFY(!notiz->isHidden());
    for (const qint64 nummer : probe.fenster->satz().haupt().Schluesselfolge())
        QVERIFY(probe.arbeitLesen(nummer, u"benu_bemerkung"_s).endsWith(nummer % 2 ? u"im Beet 3"_s : u"merken "_s));
}

void TestUeben::tippenImTextfeld()
{
    Fensterprobe probe;
    oeffnen(probe, 4);
    taste(Qt::Key_F9);
    auto *feld = probe.finde<QLineEdit>(u"txtAntwort_0"_s);
    // A blank is a letter of an answer that has begun, in this line or in another.
    tippen(u"Blaues Lieschen"_s);
    QCOMPARE(feld->text(), u"Blaues Lieschen"_s);
    QVERIFY(probe.fenster->namenVerdeckt());
    taste(Qt::Key_Tab);
    taste(Qt::Key_Space);
    QVERIFY(probe.fenster->namenVerdeckt());
    // What was typed is still there when one comes back.
    taste(Qt::Key_PageDown);
    QVERIFY(feld->text().isEmpty());
    taste(Qt::Key_PageUp);
    QCOMPARE(feld->text(), u"Blaues Lieschen"_s);
    taste(Qt::Key_Escape);
    QVERIFY(!probe.fenster->uebt());
}

void TestUeben::filterBeendet()
{
    Fensterprobe probe;
    probe.alleZeigen();
    oeffnen(probe);
    const std::vector<qint64> folge = probe.fenster->satz().haupt().Schluesselfolge();
    taste(Qt::Key_F9);
    taste(Qt::Key_PageDown);
    // By the button: back to where it was begun, then the dialog.
    probe.klick("cmdFilter");
    QVERIFY(!probe.fenster->uebt());
    QVERIFY(probe.zentrale.gesperrt);
    QCOMPARE(probe.fenster->satz().artnr(), folge[0]);
    probe.fenster->filterdialog()->cmdOK_Click();
    QVERIFY(zuSehen(probe.finde(u"lblBotName"_s), probe.fenster.get()));
    // By a run that nobody pressed for.
    probe.fenster->ueben();
    QVERIFY(probe.fenster->uebt());
    probe.fenster->filterdialog()->cmdOK_Click();
    QVERIFY(!probe.fenster->uebt());
    QVERIFY(zuSehen(probe.finde(u"lblBotName"_s), probe.fenster.get()));
    QVERIFY(probe.finde(u"cboArten"_s)->isEnabled());
    QCOMPARE(probe.panel(4), u"1/%1"_s.arg(folge.size()));
    QVERIFY(!probe.fenster->findChild<frmUeben *>());
}

void TestUeben::schliessen()
{
    for (const bool inDerPruefung : {false, true}) {
        Fensterprobe probe;
        oeffnen(probe, 6);
        taste(Qt::Key_F9);
        if (inDerPruefung)
            probe.finde<QPushButton>(u"cmdPruefung"_s)->click();
        probe.fenster->close();
        QCOMPARE(probe.zentrale.geschlossen, 1);
        QVERIFY(!probe.fenster->uebt());
        probe.fenster.reset();
    }
    Fensterprobe probe;
    oeffnen(probe, 6);
    taste(Qt::Key_F9);
    probe.fenster.reset();
    QCOMPARE(probe.zentrale.geschlossen, 1);
}

void TestUeben::anderesBeendet()
{
    Fensterprobe probe;
    oeffnen(probe, 6);
    const std::vector<qint64> folge = probe.fenster->satz().haupt().Schluesselfolge();
    taste(Qt::Key_F9);
    QVERIFY(probe.fenster->springen(folge[3]));
    QVERIFY(!probe.fenster->uebt());
    QCOMPARE(probe.fenster->satz().artnr(), folge[3]);
    QCOMPARE(probe.panel(4), u"4/6"_s);
    // Another order of the names changes nothing in practice.
    probe.fenster->ueben();
    const qint64 hier = probe.fenster->satz().artnr();
    probe.klick("cmdBotDeu");
    QVERIFY(probe.fenster->namenVerdeckt());
    QCOMPARE(probe.fenster->satz().artnr(), hier);
    // Nor does a view anew, as after the options.
    probe.fenster->eigenschaftenBenennen();
    probe.fenster->darstellen();
    QVERIFY(!zuSehen(probe.finde(u"lblBotName"_s), probe.fenster.get()));
    probe.fenster->ueben();
    QCOMPARE(probe.fenster->satz().artnr(), folge[3]);
}

/// The search would show the name at once.
void TestUeben::sucheVerraetNichts()
{
    Fensterprobe probe;
    probe.oeffnen();
    probe.finde<QAction>(u"aktUeben"_s)->trigger();
    QVERIFY(probe.fenster->uebt());
    const auto keineSuche = [&] {
        auto *suche = probe.fenster->findChild<QWidget *>(u"frmSuche"_s);
        return !suche || !suche->isVisible();
    };
    const QString hinweis = u"Beim Üben geht das nicht: Es würde Namen zeigen."_s;
    for (const char *befehl : {"aktSuchen", "aktUebersicht", "aktDaneben", "aktVerbinden", "aktKopieren"}) {
        probe.fenster->darstellen(); // what was told before is gone
        QCOMPARE(probe.panel(2), QString());
        probe.finde<QAction>(QString::fromLatin1(befehl))->trigger();
        QCOMPARE(probe.panel(2), hinweis);
    }
    QVERIFY(keineSuche());
    QCOMPARE(probe.zentrale.kopiert, 0);
    QTest::keyClick(probe.finde(u"cmdDruck"_s), Qt::Key_B);
    QVERIFY(keineSuche());
    QVERIFY(probe.fenster->uebt());
    // A page that was open before goes when practice begins.
    probe.finde<QAction>(u"aktUeben"_s)->trigger();
    QVERIFY(!probe.fenster->uebt());
    probe.finde<QAction>(u"aktUebersicht"_s)->trigger();
    const auto seite = [] {
        return std::ranges::any_of(QApplication::topLevelWidgets(),
                                   [](const QWidget *w) { return w->objectName().startsWith(u"frmUebersicht") && w->isVisible(); });
    };
    QVERIFY(seite());
    probe.finde<QAction>(u"aktUeben"_s)->trigger();
    QVERIFY(!seite());
}

void TestUeben::leereMenge()
{
    Meldungsfaenger faenger;
    Fensterprobe probe;
    oeffnen(probe, 0);
    Datenbank::OpenDatabase(probe.programm.arbeitsdatenbank())->Execute(u"DELETE FROM Topfpfl"_s);
    probe.fenster->filterdialog()->cmdOK_Click();
    QCOMPARE(probe.fenster->Anzahl, 0);
    probe.fenster->ueben();
    QVERIFY(!probe.fenster->uebt());
    QCOMPARE(probe.panel(2), u"Hier ist keine Pflanze, mit der man üben könnte."_s);
}

void TestUeben::kleinesFenster()
{
    Fensterprobe probe;
    oeffnen(probe, 5);
    taste(Qt::Key_F9);
    auto *form = probe.finde<frmUeben>(u"frmUeben"_s);
    int zuletzt = 0;
    for (const QSize groesse : {QSize(1400, 900), QSize(980, 600), QSize(640, 480), QSize(420, 300), probe.fenster->minimumSizeHint()}) {
        probe.fenster->resize(groesse);
        QCoreApplication::processEvents();
        QVERIFY(form->height() <= std::max(64, probe.fenster->height() / 2));
        QVERIFY(form->height() >= 64);
        QCOMPARE(form->width(), probe.fenster->width());
        zuletzt = form->height();
    }
    QVERIFY(zuletzt > 0);
    taste(Qt::Key_Space);
    QVERIFY(!probe.fenster->namenVerdeckt());
}

FLOX_TEST(tst_ueben, TestUeben)
#include "tst_ueben.moc"
