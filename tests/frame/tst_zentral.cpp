#include "Rahmenprobe.h"

#include "controls/Steuerelemente.h"
#include "frame/Flaeche.h"
#include "frame/Menue.h"
#include "frame/Registry.h"
#include "plantwindows/Beschreibung.h"
#include "plantwindows/Pflanzenfenster.h"
#include "tests/Testprogramm.h"

#include <QCheckBox>
#include <QImage>
#include <QLabel>
#include <QMdiSubWindow>
#include <QMenu>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QSignalSpy>
#include <QTest>

using namespace Qt::StringLiterals;

/* The main window: menu, plant windows by number, refresh, modes, geometry, end. */

namespace {

struct Menueeintrag
{
    int ebene;
    const char *name, *text; ///< a separator has no text
};

constexpr Menueeintrag menue[] = {
    {0, "mnuprog", "Datei"},
    {1, "mnudb", "einzelne Pflanzen-Datenbank öffnen"},
    {2, "mnudbtopfpflanzen", "Topfpflanzen"},
    {2, "mnudbstauden", "Stauden"},
    {2, "mnudbgehoelze", "Gehölze"},
    {2, "mnudbfriedhof", "Friedhof"},
    {2, "mnudbapfel", "Apfelsorten"},
    {2, "mnudbobst", "Obst"},
    {1, "mnuTrennstrich1", ""},
    {1, "mnuFloxTeilmegeSpeichern", "Datenbanken speichern unter"},
    {1, "mnuFloxDBWaehlen", "Datenbanken laden"},
    {2, "mnuDateiDBLadenOriginal", "Original-Datenbanken laden"},
    {2, "mnuDateiDBLadenBenutzer", "vom Benutzer geänderte Datenbanken laden"},
    {1, "mnuTrennstrich2", ""},
    {1, "mnuprogbeenden", "&Beenden"},
    {0, "mnuZusatzprogs", "Zusatzprogramme"},
    {1, "mnuMulko", "Mulko"},
    {2, "mnuMulkoInstall", "Mulko installieren"},
    {2, "mnuMulkoRun", "Mulko  aufrufen"},
    {2, "mnuMulkoTrennstrich", ""},
    {2, "mnuMulkoSpeichern", "gefilterte Datensätze speichern"},
    {1, "mnuFloxEditor", "Flox-Editor"},
    {2, "mnuFloxEditorInstall", "Flox-Editor installieren"},
    {2, "mnuFloxEditorRun", "Flox-Editor aufrufen"},
    {0, "mnuAusbildung", "für Azubis"},
    {1, "mnuABZierpflanzen", "Zierpflanzenbau"},
    {2, "mnuABZierAlle", "Alle wichtigen Sparten öffnen"},
    {2, "mnuABZierTrennstrich", ""},
    {2, "mnuABZierTopf", "Topfpflanzen"},
    {2, "mnuABZierStauden", "Stauden"},
    {2, "mnuABZierGehoelze", "Gehölze"},
    {1, "mnuABBaumschule", "Baumschule"},
    {2, "mnuBaumAlle", "Alle wichtigen Sparten öffnen"},
    {2, "mnuABBaumTrennstrich", ""},
    {2, "mnuABBaumGehoelze", "Gehölze"},
    {2, "mnuABBaumStauden", "Stauden"},
    {1, "mnuABST2", "Stauden"},
    {1, "mnuABStauden", "Stauden"},
    {2, "mnuABStaudenAlle", "Alle wichtigen Sparten öffnen"},
    {2, "mnuABStaudenTrennstrich", ""},
    {2, "mnuABSTStauden", "Stauden"},
    {2, "mnuABSTGehoelze", "Gehölze"},
    {1, "mnuUeben", "Üben ...\tF9"}, // added to what the menu has always had
    {0, "mnuEinstellungen", "Konfiguration"},
    {1, "mnuOptionen", "&Optionen"},
    {1, "mnuFloxBilder", "&Bilder Assistent"},
    {0, "mnuFenster", "Fenster"},
    {1, "mnuUeberlappend", "&Überlappend"},
    {1, "mnuNebeneinander", "&Nebeneinander"},
    {1, "mnuUntereinander", "&Untereinander"},
    {0, "mnuHilfe", "Hilfe"},
    {1, "mnuHilfethemen", "&Hilfethemen"},
    {1, "mnuInfos", "&Über Flox"},
};

void auflisten(const QList<QAction *> &eintraege, int ebene, QStringList &zeilen)
{
    for (const QAction *eintrag : eintraege) {
        const QString name = eintrag->menu() ? eintrag->menu()->objectName() : eintrag->objectName();
        zeilen += u"%1 %2 %3"_s.arg(ebene).arg(name, eintrag->isSeparator() ? QString() : eintrag->text());
        if (eintrag->menu())
            auflisten(eintrag->menu()->actions(), ebene + 1, zeilen);
    }
}

const QString roteFarbe = u"#ff0000"_s;

} // namespace

class TestZentral : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void menueHatAlleEintraege();
    void fensterOeffnen();
    void nummernWerdenWiederverwendet();
    void obergrenzeWaechst();
    void anordnen();
    void ausbildungsmenue_data();
    void ausbildungsmenue();
    void formenAktualisieren();
    void formenAktualisierenLegtFormularAn();
    void formenAktualisierenFragtDasAktuelleFenster();
    void sperrenUndFreigeben();
    void aktivierungFolgtDemFenster();
    void mulkoEintragBeimSchliessen();
    void statusleiste_data();
    void statusleiste();
    void hausmodusUndWahl();
    void geometrie();
    void geometrieMaximiert();
    void hintergrund();
    void keinHintergrund();
    void schliessenSchreibtUndRaeumtAuf();
    void schliessenSpeichertNotizen();
    void beenden();
    void unlesbareDatenbank();

private:
    std::unique_ptr<Rahmenprobe> probe_;
};

void TestZentral::init()
{
    probe_.reset();
    probe_ = std::make_unique<Rahmenprobe>();
    probe_->programm.MdiStatus = 0;
}

void TestZentral::menueHatAlleEintraege()
{
    probe_->laden();
    QCOMPARE(probe_->zentrale->windowTitle(), u"Flox-Demo"_s);
    QStringList verlangt, da;
    for (const Menueeintrag &zeile : menue)
        verlangt += u"%1 %2 %3"_s.arg(zeile.ebene).arg(QString::fromUtf8(zeile.name), QString::fromUtf8(zeile.text));
    auflisten(probe_->zentrale->menuBar()->actions(), 0, da);
    QCOMPARE(da.join(u'\n'), verlangt.join(u'\n'));
    // What is not built yet cannot be chosen, what is built can; plants are handed over by a window with a filter.
    for (const SpartenEintrag &sparte : alleSparten())
        QCOMPARE(probe_->aktion(sparte.menue)->isEnabled(), fensterbeschreibung(sparte.sparte) != nullptr);
    QVERIFY(!probe_->aktion("mnuMulkoSpeichern")->isEnabled());
}

void TestZentral::fensterOeffnen()
{
    probe_->laden();
    QVERIFY(probe_->titel().isEmpty());
    probe_->waehlen("mnudbtopfpflanzen");
    probe_->waehlen("mnudbapfel");
    probe_->waehlen("mnudbtopfpflanzen");
    QCOMPARE(probe_->titel(), (QStringList{u"Topfpflanzen 1"_s, u"Apfelsorten 1"_s, u"Topfpflanzen 2"_s}));
    for (const char *datei : {"db_to1.tmp", "db_to2.tmp", "db_ap1.tmp"})
        QVERIFY2(probe_->temp(datei), datei);
    QCOMPARE(probe_->fenster(2)->property("Tag").toString(), u"2"_s);
    QVERIFY(probe_->fenster(2)->Anzahl > 0);
    QVERIFY(!probe_->fenster(2)->ErsteAktivierung);
    QCOMPARE(probe_->zentrale->cursor().shape(), Qt::ArrowCursor);
    const auto *filter = probe_->zentrale->tabelle(Sparte::Topf).platz(2).filter.data();
    QVERIFY(filter);
    QCOMPARE(filter->windowTitle(), u"Filter für Topfpflanzen-Fenster 2 definieren"_s);
}

void TestZentral::nummernWerdenWiederverwendet()
{
    probe_->laden();
    for (int i = 0; i < 3; ++i)
        probe_->waehlen("mnudbtopfpflanzen");
    probe_->schliessen(1);
    QVERIFY(!probe_->temp("db_to1.tmp"));
    probe_->waehlen("mnudbtopfpflanzen");
    QCOMPARE(probe_->titel(), (QStringList{u"Topfpflanzen 2"_s, u"Topfpflanzen 3"_s, u"Topfpflanzen 1"_s}));
    QVERIFY(probe_->temp("db_to1.tmp"));
    probe_->schliessen(3);
    probe_->schliessen(2);
    probe_->waehlen("mnudbtopfpflanzen");
    probe_->waehlen("mnudbtopfpflanzen");
    probe_->waehlen("mnudbtopfpflanzen");
    QCOMPARE(probe_->titel(), (QStringList{u"Topfpflanzen 1"_s, u"Topfpflanzen 2"_s, u"Topfpflanzen 3"_s, u"Topfpflanzen 4"_s}));
}

void TestZentral::obergrenzeWaechst()
{
    probe_->laden();
    QCOMPARE(probe_->zentrale->tabelle(Sparte::Topf).obergrenze(), 0);
    probe_->waehlen("mnudbtopfpflanzen");
    QCOMPARE(probe_->zentrale->tabelle(Sparte::Topf).obergrenze(), 1);
    QVERIFY(probe_->zentrale->tabelle(Sparte::Topf).platz(0).fenster.isNull());
    probe_->schliessen(1);
    QCOMPARE(probe_->zentrale->tabelle(Sparte::Topf).obergrenze(), 1);
}

void TestZentral::anordnen()
{
    probe_->programm.MdiBreite = 1400 * 15;
    probe_->programm.MdiHoehe = 1000 * 15;
    probe_->laden();
    for (int i = 0; i < 2; ++i)
        probe_->waehlen("mnudbtopfpflanzen");
    const auto lage = [&](int i) { return probe_->unterfenster()[i]->geometry(); };
    const QSize flaeche = probe_->zentrale->findChild<Flaeche *>()->viewport()->size();
    probe_->waehlen("mnuNebeneinander");
    QCOMPARE(lage(0).topLeft(), QPoint(0, 0));
    QCOMPARE(lage(1).topLeft(), QPoint(flaeche.width() / 2, 0));
    QCOMPARE(lage(0).height(), flaeche.height());
    probe_->waehlen("mnuUntereinander");
    QCOMPARE(lage(0).topLeft(), QPoint(0, 0));
    QCOMPARE(lage(1).topLeft(), QPoint(0, flaeche.height() / 2));
    QCOMPARE(lage(0).width(), flaeche.width());
    probe_->waehlen("mnuUeberlappend");
    QVERIFY(lage(0).intersects(lage(1)));
    QVERIFY(lage(0).topLeft() != lage(1).topLeft());
}

void TestZentral::ausbildungsmenue_data()
{
    QTest::addColumn<QString>("eintrag");
    QTest::addColumn<int>("beruf");
    QTest::addColumn<QString>("sparten"); // words, in the order of opening
    const auto zeile = [](const char *eintrag, int beruf, const char *sparten) { QTest::newRow(eintrag) << eintrag << beruf << sparten; };
    zeile("mnuABZierAlle", 0, "Topf Stauden Gehölze");
    zeile("mnuABZierTopf", 0, "Topf");
    zeile("mnuABZierStauden", 0, "Stauden");
    zeile("mnuABZierGehoelze", 0, "Gehölze");
    zeile("mnuBaumAlle", 1, "Gehölze Stauden");
    zeile("mnuABBaumGehoelze", 1, "Gehölze");
    zeile("mnuABBaumStauden", 1, "Stauden");
    zeile("mnuABST2", 2, "Stauden");
    zeile("mnuABStaudenAlle", 2, "Stauden Gehölze");
    zeile("mnuABSTStauden", 2, "Stauden");
    zeile("mnuABSTGehoelze", 2, "Gehölze");
}

void TestZentral::ausbildungsmenue()
{
    QFETCH(QString, eintrag);
    QFETCH(int, beruf);
    QFETCH(QString, sparten);
    probe_->laden();
    Befehle befehle(probe_->programm, *probe_->zentrale);
    const Befehl *zeile = befehle.befehl(qPrintable(eintrag));
    QVERIFY(zeile);
    QCOMPARE(zeile->beruf, beruf);
    QStringList worte, titel;
    for (const Sparte sparte : zeile->sparten) {
        worte += ::eintrag(sparte).wort.toString();
        if (fensterbeschreibung(sparte))
            titel += ::eintrag(sparte).titel.toString();
    }
    QCOMPARE(worte.join(u' '), sparten);

    const std::array<bool, 6> vorher{false, true, false, true, true, false};
    probe_->programm.AzubiAuswahl = vorher;
    QAction *aktion = probe_->aktion(zeile->name);
    QCOMPARE(aktion->isEnabled(), zeile->sparten.size() > 1 || !titel.isEmpty());
    for (int mal = 1; mal <= 2; ++mal) { // windows that are open already are no reason not to open more
        aktion->trigger();
        QCOMPARE(probe_->titel().size(), mal * titel.size());
        for (qsizetype i = 0; i < titel.size(); ++i)
            QCOMPARE(probe_->titel()[(mal - 1) * titel.size() + i], u"%1 %2"_s.arg(titel[i]).arg(mal));
        QVERIFY(probe_->programm.AzubiAuswahl == vorher);
    }
    // The windows show their trade's plants and no others.
    for (const Sparte sparte : zeile->sparten)
        if (Pflanzenfenster *form = probe_->fenster(1, sparte)) {
            QVERIFY(form->Anzahl > 0);
            for (int i = 0; i < form->Anzahl; ++i) {
                form->satz().haupt().setAbsolutePosition(i);
                QCOMPARE(form->Auslesen(u"Ausbildung"_s).mid(beruf, 1), u"1"_s);
            }
        }
}

void TestZentral::formenAktualisieren()
{
    probe_->laden();
    probe_->waehlen("mnudbtopfpflanzen");
    probe_->waehlen("mnudbtopfpflanzen");
    probe_->waehlen("mnudbapfel");
    const QString name = u"Lieblingspflanze"_s;
    for (auto &namen : probe_->programm.BenutzerNamen)
        namen[1] = name;
    probe_->programm.MonatsDarstellung = 0;
    Pflanzenfenster *fenster[] = {probe_->fenster(1), probe_->fenster(2), probe_->fenster(1, Sparte::Apfel)};
    for (Pflanzenfenster *form : fenster) {
        // A value that only a new display shows.
        probe_->ordner.db()->Execute(u"UPDATE %1 SET benu_bemerkung = 'neu gezeigt' WHERE ARTNR = ?"_s.arg(eintrag(form->sparte()).haupttabelle),
                                     {form->satz().artnr()});
    }
    probe_->zentrale->FormenAktualisieren();
    for (Pflanzenfenster *form : fenster) {
        QCOMPARE(form->findChild<QCheckBox *>(u"sschkBenutzer_1"_s)->text(), name);
        QCOMPARE(form->findChild<QPlainTextEdit *>(u"txtEigeneBemerkung"_s)->toPlainText(), u"neu gezeigt"_s);
        if (auto *monat = form->findChild<Farbzelle *>(u"lblBlMonat_11"_s))
            QCOMPARE(monat->caption(), u"12"_s);
    }
}

void TestZentral::formenAktualisierenLegtFormularAn()
{
    probe_->laden();
    probe_->waehlen("mnudbtopfpflanzen");
    probe_->waehlen("mnudbtopfpflanzen");
    probe_->schliessen(2);
    QVERIFY(!probe_->fenster(2));
    probe_->programm.aktuellesFenster(Sparte::Topf) = 1;
    probe_->zentrale->FormenAktualisieren();
    Pflanzenfenster *angelegt = probe_->fenster(2);
    QVERIFY(angelegt);
    QVERIFY(angelegt->isHidden() && angelegt->ErsteAktivierung);
    QVERIFY(!probe_->temp("db_to2.tmp"));
    QCOMPARE(probe_->titel(), QStringList{u"Topfpflanzen 1"_s});
    // The form is there for the next window with its number.
    probe_->waehlen("mnudbtopfpflanzen");
    QCOMPARE(probe_->fenster(2), angelegt);
    QCOMPARE(probe_->titel(), (QStringList{u"Topfpflanzen 1"_s, u"Topfpflanzen 2"_s}));
    QVERIFY(angelegt->isVisible() && angelegt->Anzahl > 0);
    probe_->zentrale->close();
    QVERIFY(!probe_->temp("db_to2.tmp"));
}

void TestZentral::formenAktualisierenFragtDasAktuelleFenster()
{
    probe_->laden();
    probe_->waehlen("mnudbtopfpflanzen");
    probe_->waehlen("mnudbtopfpflanzen");
    probe_->schliessen(2);
    probe_->programm.aktuellesFenster(Sparte::Topf) = 2;
    probe_->programm.BenutzerNamen[size_t(Sparte::Topf)][0] = u"Neu"_s;
    probe_->zentrale->FormenAktualisieren();
    QCOMPARE(probe_->fenster(1)->findChild<QCheckBox *>(u"sschkBenutzer_0"_s)->text(), u"Eigenschaft 1"_s);
    QVERIFY(!probe_->fenster(2));
}

void TestZentral::sperrenUndFreigeben()
{
    probe_->laden();
    probe_->waehlen("mnudbtopfpflanzen");
    probe_->waehlen("mnudbtopfpflanzen");
    probe_->waehlen("mnudbapfel");
    probe_->zentrale->FensterSperren(Sparte::Topf);
    QVERIFY(!probe_->fenster(1)->isEnabled() && !probe_->fenster(2)->isEnabled() && probe_->fenster(1, Sparte::Apfel)->isEnabled());
    probe_->zentrale->FensterSperren(Sparte::Apfel);
    probe_->zentrale->FensterFreigeben(Sparte::Topf);
    QVERIFY(probe_->fenster(1)->isEnabled() && probe_->fenster(2)->isEnabled() && !probe_->fenster(1, Sparte::Apfel)->isEnabled());
    probe_->zentrale->FensterFreigeben(Sparte::Obst); // without windows
}

void TestZentral::aktivierungFolgtDemFenster()
{
    probe_->laden();
    probe_->zentrale->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(probe_->zentrale.get()));
    probe_->waehlen("mnudbtopfpflanzen");
    probe_->waehlen("mnudbtopfpflanzen");
    probe_->waehlen("mnudbapfel");
    QCOMPARE(probe_->programm.AktiveSparte, u"Apfel"_s);
    auto *flaeche = probe_->zentrale->findChild<Flaeche *>();
    flaeche->setActiveSubWindow(probe_->unterfenster()[0]);
    QTRY_COMPARE(probe_->programm.AktiveSparte, u"Topf"_s);
    QCOMPARE(probe_->programm.aktuellesFenster(Sparte::Topf), 1);
    flaeche->setActiveSubWindow(probe_->unterfenster()[1]);
    QTRY_COMPARE(probe_->programm.aktuellesFenster(Sparte::Topf), 2);
    QCOMPARE(probe_->programm.aktuellesFenster(Sparte::Apfel), 1);
    // The window that comes to the front after a close is the one the program works on.
    probe_->schliessen(2);
    QTRY_VERIFY(!probe_->programm.AktiveSparte.isEmpty());
    const auto *vorn = qobject_cast<Pflanzenfenster *>(flaeche->activeSubWindow()->widget());
    QCOMPARE(probe_->programm.AktiveSparte, eintrag(vorn->sparte()).wort.toString());
    QCOMPARE(probe_->programm.aktuellesFenster(vorn->sparte()), vorn->Fensternummer);
    probe_->schliessen(1);
    probe_->schliessen(1, Sparte::Apfel);
    QCOMPARE(probe_->programm.AktiveSparte, QString());
}

void TestZentral::mulkoEintragBeimSchliessen()
{
    probe_->ordner.mulkoEinrichten(probe_->programm);
    probe_->laden();
    probe_->waehlen("mnudbtopfpflanzen");
    probe_->waehlen("mnudbapfel");
    QAction *mulko = probe_->aktion("mnuMulkoSpeichern");
    mulko->setEnabled(true);
    probe_->zentrale->findChild<QMenu *>(u"mnudb"_s)->setEnabled(false);
    // Two Sparten hold a window each: the entry stays as the window that comes to the front wants it.
    probe_->zentrale->fensterGeschlossen(Sparte::Apfel, 1);
    QVERIFY(mulko->isEnabled());
    QVERIFY(probe_->zentrale->findChild<QMenu *>(u"mnudb"_s)->isEnabled());
    probe_->zentrale->fensterGeschlossen(Sparte::Topf, 1);
    QVERIFY(!mulko->isEnabled());
}

void TestZentral::statusleiste_data()
{
    QTest::addColumn<bool>("original");
    QTest::addColumn<QString>("satz");
    QTest::newRow("shipped") << true << "";
    QTest::newRow("the user's") << false << "Sie arbeiten mit Datenbanken die vom Benutzer geändert wurden!";
}

void TestZentral::statusleiste()
{
    QFETCH(bool, original);
    probe_->programm.OriginalDatenbank = original;
    probe_->laden();
    QTEST(probe_->zentrale->findChild<QLabel *>(u"stbAnzeigeZentral_1"_s)->text(), "satz");
    QCOMPARE(probe_->aktion("mnuDateiDBLadenOriginal")->isEnabled(), !original);
    static const QRegularExpression uhrzeit(u"^[0-2][0-9]:[0-5][0-9]$"_s);
    QVERIFY(uhrzeit.match(probe_->zentrale->findChild<QLabel *>(u"stbAnzeigeZentral_2"_s)->text()).hasMatch());
}

void TestZentral::hausmodusUndWahl()
{
    probe_->laden();
    QWidget *flaeche = probe_->zentrale->findChild<Flaeche *>()->viewport();
    QSignalSpy wahl(probe_->zentrale.get(), &mdiZentral::wahlGewuenscht);
    Meldungsfaenger meldungen;
    for (const bool ein : {true, false, true}) {
        QTest::mousePress(flaeche, Qt::RightButton, Qt::ControlModifier);
        QCOMPARE(probe_->programm.HausModus, ein);
        QCOMPARE(meldungen.texte.takeLast(), ein ? u"Haus-Modus eingeschaltet"_s : u"Haus-Modus ausgeschaltet"_s);
    }
    QCOMPARE(wahl.count(), 0);
    for (const Qt::KeyboardModifiers tasten : {Qt::KeyboardModifiers(Qt::NoModifier), Qt::KeyboardModifiers(Qt::ShiftModifier),
                                               Qt::ControlModifier | Qt::ShiftModifier, Qt::ControlModifier | Qt::AltModifier}) {
        const qsizetype vorher = wahl.count();
        QTest::mousePress(flaeche, Qt::RightButton, tasten);
        QCOMPARE(wahl.count(), vorher + 1);
        QVERIFY(probe_->programm.HausModus);
    }
    const qsizetype vorher = wahl.count();
    QTest::mouseClick(flaeche, Qt::LeftButton, Qt::ControlModifier);
    QTest::mouseClick(flaeche, Qt::LeftButton);
    QCOMPARE(wahl.count(), vorher);
    QCOMPARE(meldungen.texte, QStringList());
    // It takes hold when a window is activated next.
    probe_->waehlen("mnudbtopfpflanzen");
    QVERIFY(!probe_->fenster(1)->findChild<QLabel *>(u"lblArtNr"_s)->isHidden());
}

void TestZentral::geometrie()
{
    probe_->programm.MdiBreite = 900 * 15;
    probe_->programm.MdiHoehe = 640 * 15;
    probe_->programm.MdiLinks = 30 * 15;
    probe_->programm.MdiOben = 45 * 15;
    probe_->laden();
    QCOMPARE(probe_->zentrale->size(), QSize(900, 640));
    QCOMPARE(probe_->zentrale->pos(), QPoint(30, 45));
    probe_->zentrale->resize(850, 700);
    probe_->zentrale->move(10, 20);
    QTRY_COMPARE(probe_->zentrale->size(), QSize(850, 700));
    probe_->zentrale->close();
    for (const auto &[name, pixel] : {std::pair("Breite", 850), std::pair("Hoehe", 700), std::pair("Links", 10), std::pair("Oben", 20)})
        QCOMPARE(registry::RegWertLesen(u"Software\\FH Lindenhof\\FLOX3-DEMO\\MDI"_s, QString::fromLatin1(name)), QString::number(pixel * 15));
    QCOMPARE(registry::RegWertLesen(u"Software\\FH Lindenhof\\FLOX3-DEMO\\MDI"_s, u"Status"_s), u"0"_s);
}

void TestZentral::geometrieMaximiert()
{
    probe_->programm.MdiBreite = 820 * 15;
    probe_->programm.MdiHoehe = 600 * 15;
    probe_->programm.MdiLinks = 30 * 15;
    probe_->programm.MdiOben = 45 * 15;
    probe_->programm.MdiStatus = 2;
    probe_->laden();
    QVERIFY(probe_->zentrale->isMaximized());
    probe_->zentrale->close();
    QCOMPARE(probe_->programm.MdiStatus, 2L);
    // The size before it was maximised.
    QCOMPARE(probe_->programm.MdiBreite, 820L * 15);
    QCOMPARE(probe_->programm.MdiHoehe, 600L * 15);
    QCOMPARE(probe_->programm.MdiLinks, 30L * 15);
    QCOMPARE(probe_->programm.MdiOben, 45L * 15);
}

void TestZentral::hintergrund()
{
    QDir(probe_->ordner.pfad()).mkdir(u"icons"_s);
    QImage bild(64, 48, QImage::Format_RGB32);
    bild.fill(QColor(roteFarbe));
    for (int n = 1; n <= 8; ++n)
        QVERIFY(bild.save(probe_->ordner.pfad(u"icons/hintergrund%1.jpg"_s.arg(n)), "JPG", 100));
    for (int i = 0; i < 12; ++i) {
        QFile::remove(probe_->ordner.pfad(u"icons/temp-hg.jpg"_s));
        QFile::remove(probe_->ordner.pfad(u"tempbild.bmp"_s));
        const mdiZentral zentrale(probe_->programm);
        QVERIFY(zentrale.findChild<Flaeche *>()->hatBild());
        QCOMPARE(QImage(probe_->ordner.pfad(u"tempbild.bmp"_s)).size(), bild.size());
        const QColor farbe = QImage(probe_->ordner.pfad(u"icons/temp-hg.jpg"_s)).pixelColor(20, 20);
        QVERIFY2(farbe.red() > 240 && farbe.green() < 20, qPrintable(farbe.name()));
    }
}

void TestZentral::keinHintergrund()
{
    QDir(probe_->ordner.pfad()).mkdir(u"icons"_s);
    QImage bild(64, 48, QImage::Format_RGB32);
    bild.fill(QColor(roteFarbe));
    for (const int n : {0, 9, 10})
        QVERIFY(bild.save(probe_->ordner.pfad(u"icons/hintergrund%1.jpg"_s.arg(n)), "JPG", 100));
    Meldungsfaenger meldungen;
    for (int i = 0; i < 5; ++i) {
        const mdiZentral zentrale(probe_->programm);
        QVERIFY(!zentrale.findChild<Flaeche *>()->hatBild());
    }
    QCOMPARE(meldungen.texte, QStringList());
    QVERIFY(!QFile::exists(probe_->ordner.pfad(u"tempbild.bmp"_s)));
}

void TestZentral::schliessenSchreibtUndRaeumtAuf()
{
    probe_->laden();
    probe_->waehlen("mnudbtopfpflanzen");
    probe_->waehlen("mnudbtopfpflanzen");
    probe_->waehlen("mnudbapfel");
    probe_->programm.BenutzerNamen[size_t(Sparte::Obst)][3] = u"Für den Hausgarten"_s;
    probe_->programm.BenutzerNamen[size_t(Sparte::Topf)][0] = u""_s;
    probe_->programm.MonatsDarstellung = 0;
    probe_->zentrale->close();
    QVERIFY(!probe_->zentrale->isVisible());
    for (const char *datei : {"db_to1.tmp", "db_to2.tmp", "db_ap1.tmp"})
        QVERIFY2(!probe_->temp(datei), datei);
    for (int nummer : {1, 2})
        QVERIFY(!probe_->fenster(nummer));
    QCOMPARE(QDir(probe_->ordner.pfad()).entryList(QDir::Files), QStringList{u"flox-demo.mdb"_s});
    QCOMPARE(registry::RegWertLesen(u"Software\\FH Lindenhof\\FLOX3-DEMO\\Optionen"_s, u"MonatsDarstellung"_s), u"0"_s);
    QCOMPARE(registry::RegWertLesen(u"Software\\FH Lindenhof\\FLOX3-DEMO\\Version"_s, u"Version"_s), u"1.2.3"_s);
    const Programm wieder = probe_->ordner.programm();
    QCOMPARE(wieder.BenutzerNamen[size_t(Sparte::Obst)][3], u"Für den Hausgarten"_s);
    QCOMPARE(wieder.BenutzerNamen[size_t(Sparte::Topf)][0], QString());
    QCOMPARE(wieder.BenutzerNamen[size_t(Sparte::Topf)][1], u"Eigenschaft 2"_s);
}

void TestZentral::schliessenSpeichertNotizen()
{
    probe_->laden();
    probe_->waehlen("mnudbtopfpflanzen");
    auto *notiz = probe_->fenster(1)->findChild<QPlainTextEdit *>(u"txtEigeneBemerkung"_s);
    const qint64 artnr = probe_->fenster(1)->satz().artnr();
    QTest::mouseClick(notiz->viewport(), Qt::LeftButton);
    notiz->setPlainText(u"vor dem Ende"_s);
    probe_->zentrale->close();
    Recordset satz(probe_->ordner.db(), u"TOPFPFL"_s);
    QVERIFY(satz.Finden(artnr));
    QCOMPARE(satz.Fields(u"benu_bemerkung").Text(), u"vor dem Ende"_s);
}

void TestZentral::beenden()
{
    probe_->laden();
    probe_->waehlen("mnudbtopfpflanzen");
    probe_->waehlen("mnuprogbeenden");
    QVERIFY(!probe_->zentrale->isVisible());
    QVERIFY(!probe_->temp("db_to1.tmp"));
}

void TestZentral::unlesbareDatenbank()
{
    probe_->laden();
    probe_->waehlen("mnudbapfel");
    // Sharing one connection, the open window would keep the old file in use.
    probe_->schliessen(1, Sparte::Apfel);
    QFile datei(probe_->ordner.datenbank());
    QVERIFY(datei.open(QIODevice::WriteOnly | QIODevice::Truncate));
    datei.write(QByteArray(20000, 'x'));
    datei.close();
    Meldungsfaenger meldungen;
    probe_->waehlen("mnudbtopfpflanzen");
    QCOMPARE(meldungen.texte, QStringList{u"Die Datei 'flox-demo.mdb' ist keine Datenbank."_s});
    QVERIFY(probe_->titel().isEmpty());
    QVERIFY(!probe_->fenster(1));
    QVERIFY(!probe_->temp("db_to1.tmp"));
    QCOMPARE(probe_->programm.AktiveSparte, QString());
    QCOMPARE(probe_->zentrale->cursor().shape(), Qt::ArrowCursor);
    // The number is free again.
    probe_->waehlen("mnudbtopfpflanzen");
    QCOMPARE(probe_->zentrale->tabelle(Sparte::Topf).obergrenze(), 1);
    QCOMPARE(meldungen.texte.size(), 2);
}

FLOX_TEST(tst_zentral, TestZentral)
#include "tst_zentral.moc"
