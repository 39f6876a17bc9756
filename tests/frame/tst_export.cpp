#include "Dateiprobe.h"
#include "Handgriffe.h"

#include "filters/Filterdialog.h"
#include "frame/Export.h"
#include "plantwindows/Beschreibung.h"
#include "plantwindows/Pflanzenfenster.h"
#include "store/Fehler.h"
#include "store/Pfade.h"
#include "store/Recordset.h"
#include "store/Teilmenge.h"
#include "tests/store/Datenhilfen.h"
#include "tests/store/Rechte.h"
#include "tests/Testprogramm.h"

#include <QApplication>
#include <QCheckBox>
#include <QLineEdit>
#include <QStatusBar>
#include <QTest>

using namespace Qt::StringLiterals;

/* Plants of open windows in files of the user's: the subset, and the file for the design program. */
class TestExport : public QObject
{
    Q_OBJECT

private slots:
    void init() { probe_ = std::make_unique<Dateiprobe>(); }
    void cleanup() { probe_.reset(); }

    void zweiFenster_data()
    {
        QTest::addColumn<int>("sparte");
        QTest::addColumn<QString>("wort");
        QTest::newRow("Topf") << int(Sparte::Topf) << u"Topfpflanzen"_s;
        QTest::newRow("Friedhof") << int(Sparte::Friedhof) << u"Friedhofspflanzen"_s;
        QTest::newRow("Stauden") << int(Sparte::Stauden) << u"Stauden"_s;
        QTest::newRow("Gehölze") << int(Sparte::Gehoelze) << u"Gehölze"_s;
        QTest::newRow("Obst") << int(Sparte::Obst) << u"Obstsorten"_s;
        QTest::newRow("Apfel") << int(Sparte::Apfel) << u"Apfelsorten"_s;
    }
    /// The title tells the slots of the table, not the windows.
    void zweiFenster()
    {
        QFETCH(int, sparte);
        QFETCH(QString, wort);
        const char *menue = eintrag(Sparte(sparte)).menue;
        for (int i = 0; i < 3; ++i)
            probe_->waehlen(menue);
        probe_->schliessen(2, Sparte(sparte));
        Dateiwahl wahl;
        probe_->waehlen("mnuFloxTeilmegeSpeichern");
        QCOMPARE(wahl.dialoge, 0);
        QCOMPARE(probe_->meldungen->titel, QStringList{u"3 %1-Fenster geöffnet!"_s.arg(wort)});
        QCOMPARE(probe_->meldungen->texte,
                 QStringList{u"Bei dieser Aktion darf höchstens ein Fenster pro Sparte geöffnet sein! \nBitte schließen Sie "
                             "alle %1-Fenster bis auf das mit der gewünschten Auswahl!"_s.arg(wort)});
        probe_->schliessen(1, Sparte(sparte));
        probe_->waehlen("mnuFloxTeilmegeSpeichern");
        QCOMPARE(wahl.dialoge, 1);
    }

    void dieErsteSparteZaehlt()
    {
        for (const char *menue : {"mnudbapfel", "mnudbapfel", "mnudbfriedhof", "mnudbfriedhof", "mnudbstauden", "mnudbstauden"})
            probe_->waehlen(menue);
        probe_->waehlen("mnuFloxTeilmegeSpeichern");
        QCOMPARE(probe_->meldungen->titel, QStringList{u"2 Friedhofspflanzen-Fenster geöffnet!"_s});
    }

    void derDialog()
    {
        Dateiwahl wahl;
        probe_->waehlen("mnuFloxTeilmegeSpeichern");
        QCOMPARE(wahl.dialoge, 1);
        QCOMPARE(wahl.modus, QFileDialog::AcceptSave);
        QCOMPARE(wahl.vorschlag, u"*.fit"_s);
        QCOMPARE(wahl.muster, (QStringList{u"Teilmenge Flox-Datenbank (*.fit)"_s, u"Access-Datenbank (*.mdb)"_s, u"Alle Dateien (*)"_s}));
        QCOMPARE(probe_->meldungen->texte, QStringList());
    }

    void endung_data()
    {
        QTest::addColumn<int>("filter");
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("datei");
        QTest::newRow("ohne Endung") << 0 << u"Auswahl"_s << u"Auswahl.fit"_s;
        QTest::newRow("mit Endung") << 0 << u"Auswahl.dat"_s << u"Auswahl.dat"_s;
        QTest::newRow("unter Access") << 1 << u"Auswahl"_s << u"Auswahl.mdb"_s;
        QTest::newRow("unter allen Dateien") << 2 << u"Auswahl"_s << u"Auswahl"_s;
    }
    /// Overwriting is asked for under the name that the file will have.
    void endung()
    {
        QFETCH(int, filter);
        QFETCH(QString, name);
        QFETCH(QString, datei);
        probe_->meldungen.reset();
        for (const bool schonDa : {false, true}) {
            QStringList fragen;
            bool getan = false;
            QTimer takt, boxen; // the dialog asks while the first one is at work
            connect(&boxen, &QTimer::timeout, this, [&] {
                if (auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget())) {
                    fragen += box->text();
                    box->button(QMessageBox::Yes)->click();
                }
            });
            boxen.start(1);
            connect(&takt, &QTimer::timeout, this, [&] {
                if (auto *dialog = qobject_cast<QFileDialog *>(QApplication::activeModalWidget()); dialog && !std::exchange(getan, true)) {
                    dialog->selectNameFilter(dialog->nameFilters().at(filter));
                    emit dialog->filterSelected(dialog->nameFilters().at(filter));
                    auto *eingabe = dialog->findChild<QLineEdit *>(u"fileNameEdit"_s);
                    eingabe->setText(name);
                    static_cast<QDialog *>(dialog)->accept();
                }
            });
            takt.start(1);
            probe_->waehlen("mnuFloxTeilmegeSpeichern");
            QCOMPARE(fragen.size(), schonDa ? 1 : 0);
            if (schonDa)
                QVERIFY2(fragen[0].contains(datei), qPrintable(fragen[0]));
            QVERIFY(QFile::exists(probe_->ordner.pfad(datei)));
            QCOMPARE(gesichert().size(), schonDa ? 1 : 0);
        }
    }

    /// Without a window the subset holds all there is.
    void ohneFenster()
    {
        const auto arbeit = probe_->ordner.db();
        const QString ziel = probe_->teilmengeSpeichern(u"alles.fit"_s);
        const auto teil = Datenbank::OpenDatabase(ziel, Datenbank::Zugriff::Lesen);
        QStringList erwartet;
        for (const char *name : teilmenge::nebentabellen())
            erwartet += QString::fromLatin1(name);
        for (const teilmenge::Haupttabelle &tabelle : teilmenge::haupttabellen())
            erwartet += QString::fromLatin1(tabelle.name);
        QStringList vorhanden = teil->TableDefs();
        erwartet.sort();
        vorhanden.sort();
        QCOMPARE(vorhanden, erwartet);
        for (const QString &name : erwartet) {
            QCOMPARE(alles(*teil, name), alles(*arbeit, name));
            QCOMPARE(teil->Indexe(name), QStringList());
        }
        QCOMPARE(werte(*teil, u"PRAGMA integrity_check"_s), QStringList{u"ok"_s});
        QCOMPARE(probe_->meldungen->texte, QStringList());
        QCOMPARE(QDir(probe_->ordner.pfad()).entryList({u"alles.fit*"_s}, QDir::Files), QStringList{u"alles.fit"_s});
    }

    void jedeSparteKommtWieder_data()
    {
        QTest::addColumn<int>("sparte");
        for (const Sparte sparte : spartenMitFenster())
            QTest::newRow(qPrintable(eintrag(sparte).wort.toString())) << int(sparte);
    }
    /// The same plants in the same order when the subset is loaded. Of cemetery plants the window reads the query, which goes over whole.
    void jedeSparteKommtWieder()
    {
        QFETCH(int, sparte);
        const SpartenEintrag &zeile = eintrag(Sparte(sparte));
        const QString tabelle = grundtabelle(Sparte(sparte));
        probe_->ordner.db()->Execute(u"UPDATE %1 SET bewertung = 7, benu_eigen = substr('1 ', 1 + (ARTNR % 2), 1) || '    '"_s.arg(tabelle));
        const QStringList indexeVorher = indexe(*probe_->ordner.db(), tabelle);
        QVERIFY(!indexeVorher.isEmpty());
        probe_->waehlen(zeile.menue);
        Pflanzenfenster *form = probe_->fenster(1, Sparte(sparte));
        const std::vector<qint64> ganz = form->satz().haupt().Schluesselfolge();
        form->filterdialog()->findChild<QCheckBox *>(u"sschkBenutzer_0"_s)->setChecked(true);
        form->filterdialog()->cmdOK_Click();
        const std::vector<qint64> gefiltert = form->satz().haupt().Schluesselfolge();
        QVERIFY(!gefiltert.empty() && gefiltert.size() < ganz.size());
        hand::notieren(form, u"zuletzt getippt"_s);
        const qint64 artnr = form->satz().artnr();

        const QString ziel = probe_->teilmengeSpeichern(u"teil.fit"_s);
        QCOMPARE(probe_->meldungen->texte, QStringList());
        // The window goes on as before.
        QCOMPARE(form->satz().haupt().Schluesselfolge(), gefiltert);
        form->filterdialog()->cmdOK_Click();
        QCOMPARE(form->satz().haupt().Schluesselfolge(), gefiltert);
        {
            const auto teil = Datenbank::OpenDatabase(ziel, Datenbank::Zugriff::Lesen);
            QCOMPARE(zahl(*teil, u"SELECT count(*) FROM %1"_s.arg(tabelle)), qint64(gefiltert.size()));
            QVERIFY(werte(*teil, u"SELECT benu_bemerkung FROM %1 WHERE ARTNR = ?"_s.arg(tabelle), {artnr}).value(0).contains(u"zuletzt getippt"_s));
            QCOMPARE(teil->Indexe(tabelle), QStringList());
            // The others are whole.
            for (const Sparte andere : spartenMitFenster())
                if (int(andere) != sparte)
                    QCOMPARE(alles(*teil, grundtabelle(andere)), alles(*probe_->ordner.db(), grundtabelle(andere)));
        }
        probe_->datenbankLaden(u"teil.fit"_s);
        QVERIFY2(probe_->meldungen->texte.value(0).startsWith(u"Die Datenbank 'teil.fit' ist geladen."_s),
                 qPrintable(probe_->meldungen->texte.value(0)));
        QVERIFY2(!probe_->meldungen->texte.value(0).contains(u"fehlen"_s), qPrintable(probe_->meldungen->texte.value(0)));
        probe_->meldungen->texte.clear();
        QCOMPARE(indexe(*probe_->ordner.db(), tabelle), indexeVorher);
        probe_->waehlen(zeile.menue);
        const bool ueberAbfrage = zeile.haupttabelle != tabelle;
        QCOMPARE(probe_->fenster(1, Sparte(sparte))->satz().haupt().Schluesselfolge(), ueberAbfrage ? ganz : gefiltert);
        QCOMPARE(probe_->meldungen->texte, QStringList());
        probe_->fenster(1, Sparte(sparte))->filterdialog()->cmdRuecksetzen_Click();
        // And a subset of the subset.
        const QString zweiter = probe_->teilmengeSpeichern(u"teil2.fit"_s);
        QCOMPARE(zahl(*Datenbank::OpenDatabase(zweiter, Datenbank::Zugriff::Lesen), u"SELECT count(*) FROM %1"_s.arg(tabelle)),
                 qint64(gefiltert.size()));
    }

    void dasErsteBesetzteFenster()
    {
        probe_->waehlen("mnudbtopfpflanzen");
        probe_->waehlen("mnudbtopfpflanzen");
        Pflanzenfenster *zweites = probe_->fenster(2);
        zweites->satz().kopie().loescheAusser(u"Topfpfl"_s, {}, [](qint64 artnr, auto) { return artnr % 5 == 0; });
        probe_->schliessen(1);
        const qint64 uebrig = hand::zeilenDerKopie(zweites);
        QVERIFY(uebrig > 0);
        QCOMPARE(zahl(*Datenbank::OpenDatabase(probe_->teilmengeSpeichern(u"a.fit"_s), Datenbank::Zugriff::Lesen), u"SELECT count(*) FROM Topfpfl"_s),
                 uebrig);
    }

    void verboteneZiele_data()
    {
        QTest::addColumn<QString>("datei");
        QTest::addColumn<QString>("titel");
        QTest::addColumn<QString>("text");
        const QString titel = u"'flox-demo.mdb' darf nicht überschrieben werden!"_s;
        const QString text = u"Die Datei 'flox-demo.mdb' darf nicht überschrieben werden! \nBitte versuchen Sie es mit einem anderen Namen!"_s;
        QTest::newRow("Arbeitsdatenbank") << u"flox-demo.mdb"_s << titel << text;
        QTest::newRow("unter anderem Namen") << u"verweis.fit"_s << titel << text;
        QTest::newRow("Kopie eines Fensters")
            << u"db_to1.tmp"_s << u"Flox-Demo"_s
            << u"Mit der Datei 'db_to1.tmp' arbeitet ein geöffnetes Fenster. \nBitte versuchen Sie es mit einem anderen Namen!"_s;
        QTest::newRow("gesichertes Original")
            << u"flox-original.pdb"_s << u"Flox-Demo"_s
            << u"Die Datei 'flox-original.pdb' ist die gesicherte Originaldatenbank. \nBitte versuchen Sie es mit einem anderen Namen!"_s;
        QTest::newRow("Original, das fehlt")
            << u"./flox-original.pdb"_s << u"Flox-Demo"_s
            << u"Die Datei 'flox-original.pdb' ist die gesicherte Originaldatenbank. \nBitte versuchen Sie es mit einem anderen Namen!"_s;
    }
    /// Refused with a message and a fresh dialog, which is cancelled here.
    void verboteneZiele()
    {
        QFETCH(QString, datei);
        QFETCH(QString, titel);
        QFETCH(QString, text);
        probe_->waehlen("mnudbtopfpflanzen");
        QVERIFY(QFile::link(probe_->ordner.datenbank(), pfad(u"verweis.fit"_s)));
        const bool fehlt = datei.startsWith(u'.');
        QVERIFY(fehlt || QFile::copy(probe_->ordner.datenbank(), pfad(u"flox-original.pdb"_s)));
        const QByteArray vorher = fehlt ? QByteArray() : inhalt(pfad(datei));
        for (const bool mulko : {false, true}) {
            probe_->meldungen->texte.clear();
            probe_->meldungen->titel.clear();
            Dateiwahl zweite; // what comes after the message
            zweite.dialoge = 1;
            if (mulko)
                Export(probe_->programm, *probe_->zentrale).MulkoSpeichern(pfad(datei));
            else
                Export(probe_->programm, *probe_->zentrale).FloxTeilmengeSpeichern(pfad(datei));
            QCOMPARE(zweite.dialoge, 2);
            QCOMPARE(probe_->meldungen->titel, QStringList{titel});
            QCOMPARE(probe_->meldungen->texte, QStringList{text});
            QVERIFY(fehlt ? !QFile::exists(pfad(datei)) : inhalt(pfad(datei)) == vorher);
        }
    }

    /// Only the file counts, not its name.
    void derNameAlleinSagtNichts()
    {
        QTemporaryDir anderswo;
        const QString ziel = anderswo.filePath(u"flox-demo.mdb"_s);
        Export(probe_->programm, *probe_->zentrale).FloxTeilmengeSpeichern(ziel);
        QCOMPARE(probe_->meldungen->texte, QStringList());
        QVERIFY(QFile::exists(ziel));
    }

    void fehlendeHaupttabelle()
    {
        probe_->ordner.db()->Execute(u"DROP TABLE Obst"_s);
        schreiben(pfad(u"a.fit"_s), "die alte");
        QCOMPARE(ersetzen(u"a.fit"_s), u"Die Tabelle 'Obst' kann nicht in die Teilmenge geschrieben werden:\nIn der Datenbank 'flox-demo.mdb' fehlt "
                                       "die Tabelle 'Obst'."_s);
        QCOMPARE(inhalt(pfad(u"a.fit"_s)), QByteArray("die alte"));
        QCOMPARE(QDir(probe_->ordner.pfad()).entryList({u"a.fit*"_s}, QDir::Files), QStringList{u"a.fit"_s});
    }

    void fehlendeNebentabellen()
    {
        for (const char *name : {"Daten", "BeetBalkon", "Familien", "BeetBalkon_Bilder"})
            probe_->ordner.db()->Execute(u"DROP TABLE "_s + QString::fromLatin1(name));
        const auto teil = Datenbank::OpenDatabase(probe_->teilmengeSpeichern(u"a.fit"_s), Datenbank::Zugriff::Lesen);
        QCOMPARE(probe_->meldungen->texte, QStringList());
        QVERIFY(!teil->hatTabelle(u"Daten"_s) && !teil->hatTabelle(u"BeetBalkon"_s));
        QVERIFY(teil->hatTabelle(u"BeetBalkon_Synonyme_Deutsch"_s) && teil->hatTabelle(u"Apfel"_s));
    }

    void vollerDatentraeger()
    {
        schreiben(pfad(u"a.fit"_s), "die alte");
        const Dateigrenze grenze(1000000);
        const QString text = ersetzen(u"a.fit"_s);
        QVERIFY2(text.startsWith(u"Die Tabelle '"_s), qPrintable(text));
        QVERIFY2(text.endsWith(u"\nDer Datenträger der Datenbank 'a.fit' ist voll."_s), qPrintable(text));
        QCOMPARE(inhalt(pfad(u"a.fit"_s)), QByteArray("die alte"));
        QCOMPARE(QDir(probe_->ordner.pfad()).entryList({u"a.fit*"_s}, QDir::Files), QStringList{u"a.fit"_s});
    }

    void derErsetzteWirdAufgehoben()
    {
        schreiben(pfad(u"a.fit"_s), "die alte");
        QCOMPARE(ersetzen(u"a.fit"_s), QString());
        QCOMPARE(gesichert(), QList<QByteArray>{"die alte"});
        QVERIFY(QDir(probe_->ordner.pfad()).rename(u"sicherungen"_s, u"sicherungen.alt"_s));
        schreiben(pfad(u"sicherungen"_s), "keine Ordner");
        const QByteArray vorher = inhalt(pfad(u"a.fit"_s));
        probe_->meldungen.reset();
        const Antworten antworten; // the default
        probe_->ordner.db()->Execute(u"DELETE FROM Apfel"_s);
        QCOMPARE(ersetzen(u"a.fit"_s), QString());
        QCOMPARE(antworten.texte.size(), 1);
        QVERIFY(inhalt(pfad(u"a.fit"_s)) == vorher);
    }

    void mulko_data()
    {
        QTest::addColumn<int>("sparte");
        QTest::addColumn<QString>("endung");
        QTest::addColumn<QString>("wort");
        QTest::newRow("Topf") << int(Sparte::Topf) << u"mut"_s << u"Topfpflanzen"_s;
        QTest::newRow("Stauden") << int(Sparte::Stauden) << u"mus"_s << u"Stauden"_s;
        QTest::newRow("Gehölze") << int(Sparte::Gehoelze) << u"mug"_s << u"Gehölze"_s;
        QTest::newRow("Apfel") << int(Sparte::Apfel) << u"mua"_s << u"Apfelsorten"_s;
        QTest::newRow("Obst") << int(Sparte::Obst) << u"muo"_s << u"Obstsorten"_s;
        QTest::newRow("Friedhof") << int(Sparte::Friedhof) << u"muf"_s << u"Friedhofspflanzen"_s;
    }
    /// The byte copy of the private database, which opens for itself.
    void mulko()
    {
        QFETCH(int, sparte);
        QFETCH(QString, endung);
        QFETCH(QString, wort);
        const SpartenEintrag &zeile = eintrag(Sparte(sparte));
        probe_->waehlen(zeile.menue);
        probe_->waehlen(zeile.menue);
        Pflanzenfenster *form = probe_->fenster(2, Sparte(sparte));
        hand::nachVorn(form);
        QTemporaryDir begleiter;
        probe_->programm.MulkoPfad = begleiter.path() + u'\\';
        form->filterdialog()->findChild<QLineEdit *>(u"txtName"_s);
        form->filterdialog()->cmdOK_Click();
        Dateiwahl wahl(pfad(u"auswahl.x"_s));
        probe_->aktion("mnuMulkoSpeichern")->setEnabled(true);
        probe_->waehlen("mnuMulkoSpeichern");
        QCOMPARE(wahl.dialoge, 1);
        QCOMPARE(wahl.vorschlag, u"*."_s + endung);
        QCOMPARE(wahl.muster,
                 (QStringList{u"Mulko-Datenbank für %1 (*.%2)"_s.arg(wort, endung), u"Access-Datenbank (*.mdb)"_s, u"Alle Dateien (*)"_s}));
        QCOMPARE(probe_->meldungen->texte, QStringList());
        const QString kopie = systemPfad(form->satz().tempPfad(2));
        QVERIFY(inhalt(pfad(u"auswahl.x"_s)) == inhalt(kopie));
        const auto db = Datenbank::OpenDatabase(pfad(u"auswahl.x"_s));
        QCOMPARE(werte(*db, u"PRAGMA integrity_check"_s), QStringList{u"ok"_s});
        QCOMPARE(Recordset(db, u"SELECT * FROM %1"_s.arg(zeile.haupttabelle)).RecordCount(), form->satz().haupt().RecordCount());
        QVERIFY(probe_->zentrale->statusBar()->currentMessage().contains(u"auswahl.x"_s));
    }

    /// Another window's note is stored on the way; the plants are those of the window that is worked in.
    void mulkoNebenEinerNotiz()
    {
        probe_->waehlen("mnudbtopfpflanzen");
        probe_->waehlen("mnudbtopfpflanzen");
        Pflanzenfenster *eins = probe_->fenster(1), *zwei = probe_->fenster(2);
        hand::nachVorn(zwei);
        hand::notieren(zwei, u"kalkfrei"_s);
        hand::titelleiste(eins);
        eins->filterdialog()->findChild<QLineEdit *>(u"txtbotName"_s)->setText(u"Begonia"_s);
        eins->filterdialog()->cmdOK_Click();
        QVERIFY(zwei->DatenGeaendert && eins->Anzahl < zwei->Anzahl);
        probe_->programm.MulkoPfad = probe_->ordner.pfad() + u'\\';
        Dateiwahl wahl(pfad(u"auswahl.mut"_s));
        probe_->aktion("mnuMulkoSpeichern")->setEnabled(true);
        probe_->waehlen("mnuMulkoSpeichern");
        QVERIFY(!zwei->DatenGeaendert);
        const auto db = Datenbank::OpenDatabase(pfad(u"auswahl.mut"_s));
        QCOMPARE(Recordset(db, u"SELECT * FROM Topfpfl"_s).RecordCount(), eins->Anzahl);
        QCOMPARE(probe_->zentrale->aktivesFenster(), eins);
    }

    void hoppla()
    {
        Dateiwahl wahl;
        probe_->programm.AktiveSparte.clear();
        Export ausgabe(probe_->programm, *probe_->zentrale);
        ausgabe.mnuMulkoSpeichern_Click();
        QCOMPARE(probe_->meldungen->texte, (QStringList{u"Hoppla"_s, u"Hoppla"_s}));
        QCOMPARE(wahl.dialoge, 1);
        ausgabe.MulkoSpeichern(pfad(u"a.mut"_s));
        QCOMPARE(probe_->meldungen->texte.size(), 3);
        QVERIFY(!QFile::exists(pfad(u"a.mut"_s)));
    }

    /// No box: the status bar says it, and an old file stays.
    void mulkoScheitertStill()
    {
        probe_->waehlen("mnudbtopfpflanzen");
        schreiben(pfad(u"a.mut"_s), "die alte");
        {
            const Dateigrenze grenze(100000);
            Export(probe_->programm, *probe_->zentrale).MulkoSpeichern(pfad(u"a.mut"_s));
        }
        Export(probe_->programm, *probe_->zentrale).MulkoSpeichern(pfad(u"fehlt/a.mut"_s));
        QCOMPARE(probe_->meldungen->texte, QStringList());
        QVERIFY(probe_->zentrale->statusBar()->currentMessage().startsWith(u"Nicht gespeichert: "_s));
        QCOMPARE(inhalt(pfad(u"a.mut"_s)), QByteArray("die alte"));
    }

private:
    QString pfad(const QString &name) const { return probe_->pfad(name); }
    /// Where the user has said yes to the dialog's question already; what it fails by.
    QString ersetzen(const QString &name)
    {
        return fehlerVon([&] { Export(probe_->programm, *probe_->zentrale).FloxTeilmengeSpeichern(pfad(name)); });
    }
    static QStringList indexe(Datenbank &db, const QString &tabelle)
    {
        QStringList alle = db.Indexe(tabelle);
        alle.replaceInStrings(u"\""_s, QString());
        alle.sort();
        return alle;
    }
    /// Every value of a table, row by row in the order of their numbers.
    static QStringList alles(Datenbank &db, const QString &tabelle)
    {
        QStringList spalten;
        for (const QString &name : db.Spaltennamen(tabelle))
            spalten += u"quote(\"%1\")"_s.arg(name);
        QStringList zeilen = werte(db, u"SELECT %1 FROM \"%2\""_s.arg(spalten.join(u"||','||"_s), tabelle));
        zeilen.sort();
        return zeilen;
    }
    QList<QByteArray> gesichert() const
    {
        QList<QByteArray> alle;
        for (const QFileInfo &datei : QDir(pfad(u"sicherungen"_s)).entryInfoList(QDir::Files))
            alle += inhalt(datei.filePath());
        return alle;
    }

    std::unique_ptr<Dateiprobe> probe_;
};

FLOX_TEST(tst_export, TestExport)
#include "tst_export.moc"
