#include "Dateiprobe.h"
#include "Handgriffe.h"
#include "Rahmenprobe.h"

#include "filters/Filterdialog.h"
#include "frame/Ablauf.h"
#include "frame/Einstellungen.h"
#include "frame/Registry.h"
#include "frame/frmDateiAuswahl.h"
#include "pictures/frmBilder.h"
#include "store/Benutzernamen.h"
#include "store/Dateien.h"
#include "store/Datenbestand.h"
#include "store/Fehler.h"
#include "store/Recordset.h"
#include "store/Sicherungen.h"
#include "tests/Dateiwahl.h"
#include "tests/Faelle.h"
#include "tests/store/Dateistoerung.h"
#include "tests/store/Datenhilfen.h"
#include "tests/Testprogramm.h"

#include <QApplication>
#include <QLabel>
#include <QPushButton>
#include <QTest>

#include <cerrno>
#include <random>

using namespace Qt::StringLiterals;

namespace {

const QString startsatz = u"Sie arbeiten mit Datenbanken die vom Benutzer geändert wurden!"_s;

} // namespace

/* Another database in the place of the working one, and the original back: through the menu, the dialog and the boxes. */
class TestDatenbankwechsel : public QObject
{
    Q_OBJECT

private slots:
    void init() { neueProbe(); }
    void cleanup() { probe_.reset(); }

    void zustaende()
    {
        datenbank(u"eins.fit"_s, u"eins"_s);
        datenbank(u"zwei.mdb"_s, u"zwei"_s);
        QCOMPARE(stand(), u"original|ausgeliefert||"_s);
        // Original, a file that passes.
        laden(u"eins.fit"_s);
        QCOMPARE(stand(), u"benutzer|eins|ausgeliefert|"_s + teilmengensatz);
        // User, another one.
        laden(u"zwei.mdb"_s);
        QCOMPARE(stand(), u"benutzer|zwei|ausgeliefert|"_s + teilmengensatz);
        // User, load the original.
        original();
        QCOMPARE(stand(), u"original|ausgeliefert|ausgeliefert|"_s);
        // Original, a file that is none: the saved copy comes back.
        marke(probe_->ordner.datenbank(), u"notiert"_s);
        datenbank(u"fremd.fit"_s, u"fremd"_s);
        Datenbank::OpenDatabase(probe_->ordner.pfad(u"fremd.fit"_s))->Execute(u"CREATE TABLE Palmen (ARTNR)"_s);
        laden(u"fremd.fit"_s);
        QCOMPARE(meldungen_->texte.value(0), probe_->ordner.pfad(u"fremd.fit"_s) + u" ist keine Flox-Datenbank!!"_s);
        QCOMPARE(stand(), u"original|ausgeliefert|ausgeliefert|"_s);
        QVERIFY2(gesichert().contains(u"notiert"_s), "What was noted in the original is kept.");
        // User, the same.
        laden(u"eins.fit"_s);
        laden(u"fremd.fit"_s);
        QCOMPARE(stand(), u"original|ausgeliefert|ausgeliefert|"_s);
    }

    /// The message tells where the former database lies, and the load dialog offers that folder.
    void derWegZurueck()
    {
        datenbank(u"eins.fit"_s, u"eins"_s);
        laden(u"eins.fit"_s);
        const QString text = meldungen_->texte.value(0);
        QVERIFY2(text.startsWith(u"Die Datenbank 'eins.fit' ist geladen."_s), qPrintable(text));
        const QString kopie = text.section(u'\n', -1);
        QVERIFY2(kopie.contains(u"sicherungen"_s) && QFile::exists(kopie), qPrintable(text));
        QList<QUrl> orte;
        QTimer takt;
        connect(&takt, &QTimer::timeout, this, [&] {
            if (auto *dialog = qobject_cast<QFileDialog *>(QApplication::activeModalWidget())) {
                orte = dialog->sidebarUrls();
                dialog->reject();
            }
        });
        takt.start(1);
        probe_->waehlen("mnuDateiDBLadenBenutzer");
        QVERIFY(orte.contains(QUrl::fromLocalFile(QFileInfo(kopie).absolutePath())));
        takt.stop();
        laden(u"sicherungen/"_s + QFileInfo(kopie).fileName());
        QCOMPARE(stand(), u"benutzer|ausgeliefert|ausgeliefert|"_s + teilmengensatz);
    }

    /// A kept database can be loaded though room is made for another one, and though the working one equals it.
    void dieAeltesteSicherung()
    {
        for (int i = 0; i < sicherungen::meiste; ++i) {
            const QString name = u"flox-demo 2020-01-01 00-00-%1.mdb"_s.arg(i, 2, 10, QChar(u'0'));
            QVERIFY(QDir(probe_->ordner.pfad()).mkpath(u"sicherungen"_s));
            datenbank(u"sicherungen/"_s + name, u"stand %1"_s.arg(i));
        }
        const QString aelteste = u"sicherungen/flox-demo 2020-01-01 00-00-00.mdb"_s;
        for (int i = 0; i < 2; ++i) {
            laden(aelteste);
            QVERIFY(QFile::exists(probe_->ordner.pfad(aelteste)));
            QCOMPARE(stand(), u"benutzer|stand 0|ausgeliefert|"_s + teilmengensatz);
        }
    }

    void derDialog()
    {
        Dateiwahl wahl;
        probe_->waehlen("mnuDateiDBLadenBenutzer");
        QCOMPARE(wahl.dialoge, 1);
        QCOMPARE(wahl.modus, QFileDialog::AcceptOpen);
        QCOMPARE(wahl.vorschlag, u"*.fit"_s);
        QCOMPARE(wahl.muster, (QStringList{u"Teilmenge Flox-Datenbank (*.fit)"_s, u"Flox-Datenbank (flox-demo.mdb)"_s, u"Access-Datenbank (*.mdb)"_s,
                                           u"Alle Dateien (*)"_s}));
        unveraendert();
    }

    void dieForm()
    {
        for (const bool original : {true, false}) {
            probe_->programm.OriginalDatenbank = original;
            QStringList gerufen;
            frmDateiAuswahl form(
                probe_->programm, [&](frmDateiAuswahl &) { gerufen += u"original"_s; }, [&](frmDateiAuswahl &) { gerufen += u"teilmenge"_s; },
                nullptr);
            QCOMPARE(form.windowTitle(), u"Flox-Datenbank wählen"_s);
            auto *cmdOriginal = form.findChild<QPushButton *>(u"cmdOriginal"_s), *cmdTeilmenge = form.findChild<QPushButton *>(u"cmdTeilmenge"_s);
            QCOMPARE(cmdOriginal->text(), u"Original Flox-Datenbank  laden"_s);
            QCOMPARE(cmdTeilmenge->text(), u"Teilmenge der Flox-Datenbank  laden"_s);
            QCOMPARE(cmdOriginal->isEnabled(), !original);
            cmdOriginal->click();
            cmdTeilmenge->click();
            QCOMPARE(gerufen, original ? QStringList{u"teilmenge"_s} : (QStringList{u"original"_s, u"teilmenge"_s}));
        }
    }

    /// While the dialog is open the main window rests; the hint comes before it until it is dismissed.
    void waehrendDerDialogOffenIst()
    {
        probe_->programm.HinweisAus = {};
        QStringList gesehen;
        bool gesperrt = false, erlaubt = true, formen = false;
        QTimer takt;
        connect(&takt, &QTimer::timeout, this, [&] {
            QWidget *vorn = QApplication::activeModalWidget();
            if (!vorn)
                return;
            gesehen += vorn->objectName().isEmpty() ? QString::fromLatin1(vorn->metaObject()->className()) : vorn->objectName();
            if (auto *dialog = qobject_cast<QFileDialog *>(vorn)) {
                gesperrt = !probe_->zentrale->isEnabled();
                erlaubt = probe_->zentrale->AktualisierenErlaubt;
                formen =
                    form("frmDateiAuswahl") && !form("frmDateiAuswahl")->isEnabled() && !form("frmDateiAuswahl")->isVisible() && form("frmMoment");
                dialog->reject();
            } else if (auto *hinweis = qobject_cast<QDialog *>(vorn)) {
                hinweis->accept();
            }
        });
        takt.start(1);
        probe_->waehlen("mnuDateiDBLadenBenutzer");
        QCOMPARE(gesehen.size(), 2);
        QCOMPARE(gesehen[0], u"frmHinweis"_s);
        QCOMPARE(probe_->programm.HinweisNummer, 2);
        QVERIFY(gesperrt && !erlaubt && formen);
        probe_->programm.HinweisAus[2] = true;
        probe_->waehlen("mnuDateiDBLadenBenutzer");
        QCOMPARE(gesehen.size(), 3);
        unveraendert();
    }

    /// What is seen while files are copied: it cannot be closed, and tells what is under way.
    void derMoment()
    {
        datenbank(u"eins.fit"_s, u"eins"_s);
        QStringList texte;
        bool sichtbar = false;
        setDateiaufsicht([&](Dateischritt, const QString &) {
            if (QWidget *moment = form("frmMoment"); moment && texte.isEmpty()) {
                sichtbar = moment->isVisible() && !moment->close();
                for (const QLabel *satz : moment->findChildren<QLabel *>())
                    texte += satz->text();
            }
            return 0;
        });
        laden(u"eins.fit"_s);
        setDateiaufsicht({});
        QVERIFY(sichtbar);
        QVERIFY(texte.contains(u"Die Datenbank 'eins.fit' wird geladen."_s));
        QVERIFY(texte.contains(u"Einen Moment, bitte …"_s));
    }

    void wasNichtGeht_data()
    {
        QTest::addColumn<QString>("datei");
        QTest::addColumn<QString>("text");
        QTest::newRow("die eigene") << u"flox-demo.mdb"_s << u"Mit der Datei '%1' arbeiten Sie gerade. Es wurde nichts geändert."_s;
        QTest::newRow("die eigene unter anderem Namen") << u"verweis.fit"_s << u"Mit der Datei '%1' arbeiten Sie gerade. Es wurde nichts geändert."_s;
        QTest::newRow("keine Datenbank") << u"text.fit"_s << u"Die Datei 'text.fit' ist keine Datenbank."_s;
        QTest::newRow("beschädigt") << u"kaputt.fit"_s << u"Die Datenbank 'kaputt.fit' ist beschädigt."_s;
        QTest::newRow("neuer") << u"neuer.fit"_s << u"Die Datenbank 'neuer.fit' wurde mit einer neueren Version von Flox angelegt."_s;
        QTest::newRow("Kopie eines Fensters") << u"db_to1.tmp"_s << u"Die Datenbank 'db_to1.tmp' ist schon auf andere Weise geöffnet."_s;
    }
    /// Told before a window is closed.
    void wasNichtGeht()
    {
        QFETCH(QString, datei);
        QFETCH(QString, text);
        schreiben(pfad(u"text.fit"_s), "kein Wort");
        QVERIFY(QFile::link(probe_->ordner.datenbank(), pfad(u"verweis.fit"_s)));
        const QByteArray ganz = inhalt(probe_->ordner.datenbank());
        schreiben(pfad(u"kaputt.fit"_s), ganz.left(ganz.size() / 2));
        datenbank(u"neuer.fit"_s, u"neuer"_s);
        Datenbank::OpenDatabase(pfad(u"neuer.fit"_s))->Execute(u"PRAGMA user_version = 99"_s);
        probe_->waehlen("mnudbtopfpflanzen");
        laden(datei);
        QCOMPARE(meldungen_->texte, QStringList{text.contains(u"%1"_s) ? text.arg(pfad(datei)) : text});
        QCOMPARE(probe_->titel(), QStringList{u"Topfpflanzen 1"_s});
        unveraendert();
    }

    void ohneGesichertes()
    {
        datenbank(u"fremd.fit"_s, u"fremd"_s);
        Datenbank::OpenDatabase(pfad(u"fremd.fit"_s))->Execute(u"CREATE TABLE Palmen (ARTNR)"_s);
        probe_->waehlen("mnudbtopfpflanzen");
        laden(u"fremd.fit"_s);
        QCOMPARE(meldungen_->texte.size(), 2);
        QCOMPARE(meldungen_->texte[0], pfad(u"fremd.fit"_s) + u" ist keine Flox-Datenbank!!"_s);
        QVERIFY(meldungen_->texte[1].startsWith(u"Die gesicherte Originaldatenbank wurde nicht gefunden"_s));
        QCOMPARE(probe_->titel(), QStringList{u"Topfpflanzen 1"_s});
        unveraendert();
    }

    void ohneGesichertesDesBenutzers()
    {
        datenbank(u"eins.fit"_s, u"eins"_s);
        laden(u"eins.fit"_s);
        QVERIFY(QFile::remove(pfad(u"flox-original.pdb"_s)));
        original();
        QVERIFY(meldungen_->texte.value(0).startsWith(u"Die gesicherte Originaldatenbank wurde nicht gefunden"_s));
        QCOMPARE(stand(), u"benutzer|eins||"_s + teilmengensatz);
    }

    void alleFensterGehen()
    {
        datenbank(u"eins.fit"_s, u"eins"_s);
        probe_->waehlen("mnudbtopfpflanzen");
        probe_->waehlen("mnudbtopfpflanzen");
        probe_->waehlen("mnudbstauden");
        probe_->zentrale->bildZeigen();
        probe_->fenster(2)->filterdialog()->show();
        QVERIFY(probe_->zentrale->findChild<frmBilder *>());
        laden(u"eins.fit"_s);
        QCOMPARE(probe_->titel(), QStringList());
        QVERIFY(!probe_->zentrale->findChild<frmBilder *>());
        for (const char *name : {"db_to1.tmp", "db_to2.tmp", "db_st1.tmp"})
            QVERIFY(!probe_->temp(name));
        QVERIFY(!Datenbank::offen(probe_->ordner.datenbank()));
        // And they open again, on the new plants.
        probe_->waehlen("mnudbtopfpflanzen");
        QCOMPARE(probe_->titel(), QStringList{u"Topfpflanzen 1"_s});
        QVERIFY(!probe_->fenster(1)->satz().haupt().Eof());
        QCOMPARE(probe_->fenster(1)->satz().arbeitsdatenbank().ersetzt(), false);
    }

    void dieAngefangeneNotiz()
    {
        datenbank(u"eins.fit"_s, u"eins"_s);
        probe_->waehlen("mnudbtopfpflanzen");
        const qint64 artnr = probe_->fenster(1)->satz().artnr();
        hand::notieren(probe_->fenster(1), u"eben getippt"_s);
        QVERIFY(probe_->fenster(1)->DatenGeaendert);
        laden(u"eins.fit"_s);
        const auto gesichertes = Datenbank::OpenDatabase(pfad(u"flox-original.pdb"_s), Datenbank::Zugriff::Lesen);
        QVERIFY(werte(*gesichertes, u"SELECT benu_bemerkung FROM Topfpfl WHERE ARTNR = ?"_s, {artnr}).value(0).endsWith(u"eben getippt"_s));
    }

    void eineNotizDieNichtGeht()
    {
        datenbank(u"eins.fit"_s, u"eins"_s);
        probe_->waehlen("mnudbtopfpflanzen");
        hand::notieren(probe_->fenster(1), u"bleibt"_s);
        meldungen_.reset();
        {
            const Schreibverbot verbot(probe_->ordner);
            const Antworten antworten({u"Zurück"_s});
            Dateiwahl wahl(pfad(u"eins.fit"_s));
            probe_->waehlen("mnuDateiDBLadenBenutzer");
            QCOMPARE(antworten.texte.size(), 1);
        }
        QCOMPARE(probe_->titel(), QStringList{u"Topfpflanzen 1"_s});
        QVERIFY(probe_->fenster(1)->DatenGeaendert);
        QVERIFY(!QFile::exists(pfad(u"flox-original.pdb"_s)));
        unveraendert();
    }

    void sicherungenGehenNicht_data()
    {
        QTest::addColumn<QString>("antwort"); // empty: the default
        QTest::newRow("nichts gewählt") << u""_s;
        QTest::newRow("abgebrochen") << u"Abbrechen"_s;
        QTest::newRow("trotzdem") << u"Trotzdem ersetzen"_s;
    }
    void sicherungenGehenNicht()
    {
        QFETCH(QString, antwort);
        datenbank(u"eins.fit"_s, u"eins"_s);
        schreiben(pfad(u"sicherungen"_s), "eine Datei");
        probe_->waehlen("mnudbtopfpflanzen");
        meldungen_.reset();
        const Antworten antworten({antwort});
        Dateiwahl wahl(pfad(u"eins.fit"_s));
        probe_->waehlen("mnuDateiDBLadenBenutzer");
        QVERIFY2(antworten.texte.value(0).contains(u"kann nicht im Ordner 'sicherungen' aufgehoben werden"_s), qPrintable(antworten.texte.value(0)));
        QCOMPARE(antworten.angeboten.value(0).size(), 2);
        if (antwort == u"Trotzdem ersetzen") {
            QCOMPARE(stand(), u"benutzer|eins|ausgeliefert|"_s + teilmengensatz);
            return;
        }
        QCOMPARE(probe_->titel(), QStringList{u"Topfpflanzen 1"_s});
        unveraendert();
    }

    void fehlendeFelderWerdenGesagt()
    {
        datenbank(u"eins.fit"_s, u"eins"_s);
        Datenbank::OpenDatabase(pfad(u"eins.fit"_s))->Execute(u"ALTER TABLE Obst DROP COLUMN SOTBEW"_s);
        laden(u"eins.fit"_s);
        QVERIFY2(meldungen_->texte.value(0).contains(u"Obst.SOTBEW"_s), qPrintable(meldungen_->texte.value(0)));
        QCOMPARE(stand(), u"benutzer|eins|ausgeliefert|"_s + teilmengensatz);
    }

    /// What the user has named in this run stays; the loaded database gets it at the end.
    void namenBleiben()
    {
        datenbank(u"eins.fit"_s, u"eins"_s);
        Datenbank::OpenDatabase(pfad(u"eins.fit"_s))->Execute(u"UPDATE Namen_Benutzer_Optionen SET Apfel = 'aus der Teilmenge'"_s);
        probe_->programm.BenutzerNamen[size_t(Sparte::Apfel)][0] = u"aus diesem Lauf"_s;
        laden(u"eins.fit"_s);
        QCOMPARE(probe_->programm.BenutzerNamen[size_t(Sparte::Apfel)][0], u"aus diesem Lauf"_s);
        probe_->zentrale->close();
        QCOMPARE(werte(*probe_->ordner.db(), u"SELECT Apfel FROM Namen_Benutzer_Optionen"_s).value(0), u"aus diesem Lauf"_s);
    }

    /// The truth lasts, and at the next start another sentence stands in the panel.
    void naechsterStart()
    {
        datenbank(u"eins.fit"_s, u"eins"_s);
        laden(u"eins.fit"_s);
        const auto gelesen = [] { return registry::RegWertLesen(u"Software\\FH Lindenhof\\FLOX3-DEMO\\Optionen"_s, u"OriginalDatenbank"_s); };
        QCOMPARE(gelesen(), u"False"_s); // at once, not only at the end
        probe_->zentrale.reset();
        EinstellungenLesen(probe_->programm);
        QVERIFY(!probe_->programm.OriginalDatenbank);
        probe_->laden();
        QCOMPARE(panel(), startsatz);
        original();
        QCOMPARE(gelesen(), u"True"_s);
        QCOMPARE(panel(), QString());
    }

    /// A file without the table of names is loaded; the program starts with it.
    void ohneNamen()
    {
        datenbank(u"eins.fit"_s, u"eins"_s);
        Datenbank::OpenDatabase(pfad(u"eins.fit"_s))->Execute(u"DROP TABLE Namen_Benutzer_Optionen"_s);
        laden(u"eins.fit"_s);
        QCOMPARE(stand(), u"benutzer|eins|ausgeliefert|"_s + teilmengensatz);
        Programm neuerLauf;
        neuerLauf.ProgrammPfad = probe_->programm.ProgrammPfad;
        QVERIFY(!benutzernamenLesen(neuerLauf).isEmpty());
        QCOMPARE(neuerLauf.BenutzerNamen[0][0], u"Eigenschaft 1"_s);
    }

    void jederSchrittKannScheitern_data()
    {
        QTest::addColumn<bool>("laden");
        QTest::addColumn<int>("nummer");
        for (const bool laden : {true, false})
            for (const auto &[name, nummer] : {std::pair("voll", ENOSPC), std::pair("gestört", EIO), std::pair("schreibgeschützt", EROFS)})
                if (gruendlich() || nummer != (laden ? EROFS : EIO))
                    QTest::addRow("%s, %s", laden ? "laden" : "original", name) << laden << nummer;
    }
    /// Whatever fails: the main window can be used, no form is left, the truth fits the files.
    void jederSchrittKannScheitern()
    {
        QFETCH(bool, laden);
        QFETCH(int, nummer);
        const qsizetype meiste = faelle(7, 12); // of many: each costs a program
        int gescheitert = 0;
        QList<int> stellen{0}; // 0: only counted
        for (qsizetype i = 0; i < stellen.size(); i += std::max(qsizetype(1), stellen.size() / meiste)) {
            const int stelle = stellen[i];
            neueProbe();
            datenbank(u"eins.fit"_s, u"eins"_s);
            datenbank(u"zwei.fit"_s, u"zwei"_s);
            this->laden(u"eins.fit"_s);
            probe_->waehlen("mnudbapfel");
            const QString vorher = stand();
            {
                const Dateistoerung stoerung(stelle == 0 ? Dateistoerung::Art::Keine : Dateistoerung::Art::Einmal, stelle, nummer);
                if (laden)
                    this->laden(u"zwei.fit"_s);
                else
                    original();
                if (stelle == 0)
                    stellen += stoerung.treffbare(nummer);
            }
            const QString nachher = laden ? u"benutzer|zwei|ausgeliefert|"_s + teilmengensatz : u"original|ausgeliefert|ausgeliefert|"_s;
            QVERIFY2(stand() == vorher || stand() == nachher, qPrintable(u"%1: %2"_s.arg(stelle).arg(stand())));
            gescheitert += stand() == vorher;
            QVERIFY(!meldungen_->texte.isEmpty());
            probe_->waehlen("mnudbtopfpflanzen");
            QVERIFY(probe_->titel().contains(u"Topfpflanzen 1"_s));
        }
        QVERIFY2(gescheitert > 3 && stellen.size() > 20, qPrintable(u"%1 of %2"_s.arg(gescheitert).arg(stellen.size())));
    }

    void inJederReihenfolge_data()
    {
        QTest::addColumn<unsigned>("saat");
        for (unsigned saat = 1; saat <= unsigned(faelle(2, 20)); ++saat)
            QTest::addRow("Saat %u", saat) << saat;
    }
    /// Commands, windows and notes at random, beside a model that knows which database must be where.
    void inJederReihenfolge()
    {
        QFETCH(unsigned, saat);
        std::mt19937 zufall(saat);
        const QStringList dateien{u"a.fit"_s, u"b.fit"_s, u"c.fit"_s};
        for (const QString &name : dateien)
            datenbank(name, name);
        datenbank(u"fremd.fit"_s, u"fremd"_s);
        Datenbank::OpenDatabase(pfad(u"fremd.fit"_s))->Execute(u"CREATE TABLE Palmen (ARTNR)"_s);
        QString jetzt = u"ausgeliefert"_s, gesichertes;
        bool istOriginal = true;
        QSet<QString> alle{jetzt};
        int wort = 0;
        for (int schritt = 0; schritt < 40; ++schritt) {
            switch (zufall() % 8) {
            case 0:
            case 1: {
                const QString name = dateien[qsizetype(zufall() % 3)];
                laden(name);
                if (istOriginal)
                    gesichertes = jetzt;
                jetzt = name;
                istOriginal = false;
                break;
            }
            case 2:
                laden(u"fremd.fit"_s);
                if (!gesichertes.isEmpty()) {
                    jetzt = gesichertes;
                    istOriginal = true;
                }
                break;
            case 3:
                if (!probe_->aktion("mnuDateiDBLadenOriginal")->isEnabled()) {
                    QVERIFY(istOriginal);
                    break;
                }
                original();
                jetzt = gesichertes;
                istOriginal = true;
                break;
            case 4: probe_->waehlen("mnudbtopfpflanzen"); break;
            case 5: probe_->waehlen("mnudbfriedhof"); break;
            case 6:
                if (Pflanzenfenster *form = probe_->zentrale->aktivesFenster()) {
                    form->filterdialog()->cmdOK_Click();
                    QVERIFY(meldungen_->texte.isEmpty());
                }
                break;
            default: {
                // A note in the database in use, by a window or without one.
                jetzt = u"Wort %1"_s.arg(++wort);
                marke(probe_->ordner.datenbank(), jetzt);
                break;
            }
            }
            alle += jetzt;
            QCOMPARE(stand(),
                     u"%1|%2|%3|%4"_s.arg(istOriginal ? u"original"_s : u"benutzer"_s, jetzt, gesichertes, istOriginal ? QString() : teilmengensatz));
            meldungen_->texte.clear();
        }
    }

private:
    QString pfad(const QString &name) const { return probe_->ordner.pfad(name); }

    void neueProbe()
    {
        probe_.reset();
        probe_ = std::make_unique<Rahmenprobe>(7);
        probe_->programm.HinweisAus = {false, true, true};
        meldungen_ = std::make_unique<Meldungsfaenger>();
        marke(probe_->ordner.datenbank(), u"ausgeliefert"_s);
        probe_->laden();
    }

    /// The note of one plant tells databases apart.
    static void marke(const QString &datei, const QString &wort)
    {
        Datenbank::OpenDatabase(datei)->Execute(u"UPDATE Topfpfl SET benu_bemerkung = ? WHERE ARTNR = (SELECT min(ARTNR) FROM Topfpfl)"_s, {wort});
    }
    static QString markeVon(const QString &datei)
    {
        if (!QFile::exists(datei))
            return {};
        const auto zugriff = Datenbank::offen(datei) ? Datenbank::Zugriff::Arbeit : Datenbank::Zugriff::Lesen;
        return werte(*Datenbank::OpenDatabase(datei, zugriff), u"SELECT benu_bemerkung FROM Topfpfl ORDER BY ARTNR LIMIT 1"_s).value(0);
    }
    void datenbank(const QString &name, const QString &wort)
    {
        QVERIFY(QFile::copy(probe_->ordner.datenbank(), pfad(name)));
        marke(pfad(name), wort);
    }
    QStringList gesichert() const
    {
        QStringList alle;
        for (const QFileInfo &datei : QDir(pfad(u"sicherungen"_s)).entryInfoList(QDir::Files))
            alle += markeVon(datei.filePath());
        return alle;
    }

    void laden(const QString &name)
    {
        meldungen_->texte.clear();
        Dateiwahl wahl(pfad(name));
        probe_->waehlen("mnuDateiDBLadenBenutzer");
    }
    void original()
    {
        meldungen_->texte.clear();
        probe_->waehlen("mnuDateiDBLadenOriginal");
    }
    QString panel() const { return probe_->zentrale->findChild<QLabel *>(u"stbAnzeigeZentral_1"_s)->text(); }
    static QWidget *form(const char *klasse)
    {
        for (QWidget *eine : QApplication::topLevelWidgets())
            if (eine->objectName() == QLatin1String(klasse))
                return eine;
        return nullptr;
    }

    /// State, working database, saved one, panel; what must hold in every state is checked by the way.
    QString stand()
    {
        const bool istOriginal = probe_->programm.OriginalDatenbank;
        const QString fehl = u"falsch: "_s;
        if (!probe_->zentrale->isEnabled() || !probe_->zentrale->AktualisierenErlaubt)
            return fehl + u"das Hauptfenster ruht"_s;
        if (form("frmMoment") || form("frmDateiAuswahl"))
            return fehl + u"eine Form ist noch da"_s;
        if (probe_->aktion("mnuDateiDBLadenOriginal")->isEnabled() == istOriginal)
            return fehl + u"der Menüeintrag"_s;
        return QStringList{istOriginal ? u"original"_s : u"benutzer"_s, markeVon(probe_->ordner.datenbank()), markeVon(pfad(u"flox-original.pdb"_s)),
                           panel()}
            .join(u'|');
    }
    void unveraendert() { QCOMPARE(stand(), u"original|ausgeliefert||"_s); }

    std::unique_ptr<Meldungsfaenger> meldungen_;
    std::unique_ptr<Rahmenprobe> probe_;
};

FLOX_TEST(tst_datenbankwechsel, TestDatenbankwechsel)
#include "tst_datenbankwechsel.moc"
