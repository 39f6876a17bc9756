#include "Dateiprobe.h"
#include "Formhand.h"
#include "Handgriffe.h"

#include "filters/Filterdialog.h"
#include "frame/Wartefenster.h"
#include "plantwindows/Beschreibung.h"
#include "store/Recordset.h"
#include "store/Schema.h"
#include "store/access/Austausch.h"
#include "store/access/Format.h"
#include "tests/store/Datenhilfen.h"
#include "tests/store/access/Accesshilfen.h"
#include "tests/Testprogramm.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QInputDialog>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QRegularExpression>
#include <QStatusBar>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

constexpr size_t seitenbytes = 4096;
constexpr auto ohneGross = QRegularExpression::CaseInsensitiveOption;

/// Every value of a table, row by row; in the order of the rows' numbers where they have any.
QStringList alles(Datenbank &db, const QString &tabelle)
{
    QStringList spalten = db.Spaltennamen(tabelle);
    spalten.sort(Qt::CaseInsensitive);
    QStringList ausdruecke;
    for (const QString &name : spalten)
        ausdruecke += u"quote(\"%1\")"_s.arg(name);
    return werte(db, u"SELECT %1 FROM \"%2\" ORDER BY 1"_s.arg(ausdruecke.join(u"||','||"_s), tabelle));
}

/// All tables and queries with their values.
QMap<QString, QStringList> alles(Datenbank &db)
{
    QMap<QString, QStringList> bestand;
    for (const QString &name : db.TabellenUndAbfragen())
        bestand.insert(name, alles(db, name));
    return bestand;
}

/// Changes the bytes of a file.
void aendern(const QString &pfad, const std::function<void(std::vector<uint8_t> &)> &tat)
{
    std::vector<uint8_t> bytes = accessprobe::bytes(pfad);
    tat(bytes);
    schreiben(pfad, QByteArray(reinterpret_cast<const char *>(bytes.data()), qsizetype(bytes.size())));
}

} // namespace

/* Files of Access through the menu, the dialogs and the boxes: brought in, and written. */
class TestAccessdateien : public QObject
{
    Q_OBJECT

private slots:
    void init() { probe_ = std::make_unique<Dateiprobe>(); }
    void cleanup() { probe_.reset(); }

    void teilmengeHinUndZurueck_data()
    {
        QTest::addColumn<int>("sparte");
        for (const Sparte sparte : spartenMitFenster())
            QTest::newRow(qPrintable(eintrag(sparte).wort.toString())) << int(sparte);
    }
    /// The same plants in the same order, with notes, own properties and pictures. Of cemetery plants the window reads the query, which goes
    /// over whole.
    void teilmengeHinUndZurueck()
    {
        QFETCH(int, sparte);
        const SpartenEintrag &zeile = eintrag(Sparte(sparte));
        const QString tabelle =
            probe_->ordner.db()->TableDefs().filter(QRegularExpression(u"^%1$"_s.arg(grundtabelle(Sparte(sparte))), ohneGross)).value(0);
        probe_->ordner.db()->Execute(u"UPDATE %1 SET bewertung = 7, benu_eigen = substr('1 ', 1 + (ARTNR % 2), 1) || '    '"_s.arg(tabelle));
        probe_->waehlen(zeile.menue);
        Pflanzenfenster *form = probe_->fenster(1, Sparte(sparte));
        const std::vector<qint64> ganz = form->satz().haupt().Schluesselfolge();
        form->filterdialog()->findChild<QCheckBox *>(u"sschkBenutzer_0"_s)->setChecked(true);
        form->filterdialog()->cmdOK_Click();
        const std::vector<qint64> gefiltert = form->satz().haupt().Schluesselfolge();
        QVERIFY(!gefiltert.empty() && gefiltert.size() < ganz.size());

        hand::notieren(form, u"zuletzt getippt"_s);
        const qint64 artnr = form->satz().artnr();
        probe_->teilmengeSpeichern(u"teil.mdb"_s);
        QCOMPARE(probe_->meldungen->texte, QStringList());
        QVERIFY(accessdatei::istAccessdatei(pfad(u"teil.mdb"_s)));
        QCOMPARE(form->satz().haupt().Schluesselfolge(), gefiltert);
        QMap<QString, QStringList> vorher = alles(*probe_->ordner.db());

        laden(u"teil.mdb"_s);
        QVERIFY2(probe_->meldungen->texte.value(0).contains(u"\n%1: %2 Zeilen\n"_s.arg(tabelle).arg(gefiltert.size())),
                 qPrintable(probe_->meldungen->texte.value(0)));
        QVERIFY2(!probe_->meldungen->texte.value(0).contains(u"fehl"_s), qPrintable(probe_->meldungen->texte.value(0)));
        probe_->meldungen->texte.clear();
        probe_->waehlen(zeile.menue);
        const bool ueberAbfrage = zeile.haupttabelle != grundtabelle(Sparte(sparte));
        Pflanzenfenster *neues = probe_->fenster(1, Sparte(sparte));
        QCOMPARE(neues->satz().haupt().Schluesselfolge(), ueberAbfrage ? ganz : gefiltert);
        QCOMPARE(probe_->meldungen->texte, QStringList());
        const auto db = probe_->ordner.db();
        QVERIFY(werte(*db, u"SELECT benu_bemerkung FROM %1 WHERE ARTNR = ?"_s.arg(tabelle), {artnr}).value(0).contains(u"zuletzt getippt"_s));
        QMap<QString, QStringList> nachher = alles(*db);
        QCOMPARE(nachher.take(tabelle).size(), qsizetype(gefiltert.size()));
        vorher.remove(tabelle);
        QCOMPARE(nachher.keys(), vorher.keys());
        for (const QString &name : vorher.keys())
            QCOMPARE(nachher.value(name), vorher.value(name));
        // And once more.
        probe_->teilmengeSpeichern(u"teil2.mdb"_s);
        const auto bericht = accessdatei::einlesen(pfad(u"teil2.mdb"_s), pfad(u"probe.fit"_s));
        QVERIFY(bericht.has_value());
        QCOMPARE(zahl(*Datenbank::OpenDatabase(pfad(u"probe.fit"_s), Datenbank::Zugriff::Lesen), u"SELECT count(*) FROM %1"_s.arg(tabelle)),
                 qint64(gefiltert.size()));
    }

    /// Every value of every table; the file passes as one of the program's, and the way back to the original is open.
    void alleTabellen()
    {
        const QMap<QString, QStringList> vorher = alles(*probe_->ordner.db());
        probe_->teilmengeSpeichern(u"alles.mdb"_s);
        probe_->ordner.db()->Execute(u"DELETE FROM Apfel"_s);
        laden(u"alles.mdb"_s);
        const QString text = probe_->meldungen->texte.value(0);
        QVERIFY2(text.startsWith(u"Die Datenbank 'alles.mdb' ist geladen.\n\nDie bisherige Datenbank liegt hier:\n"_s), qPrintable(text));
        for (auto tabelle = vorher.begin(); tabelle != vorher.end(); ++tabelle) {
            const qsizetype zeilen = tabelle.value().size();
            QVERIFY2(text.contains(u"\n%1: %2 %3"_s.arg(tabelle.key()).arg(zeilen).arg(zeilen == 1 ? u"Zeile"_s : u"Zeilen"_s)), qPrintable(text));
        }
        QCOMPARE(probe_->programm.OriginalDatenbank, false);
        QCOMPARE(panel(), teilmengensatz);
        QVERIFY(probe_->ordner.db()->vonUns());
        QCOMPARE(zahl(*probe_->ordner.db(), u"PRAGMA user_version"_s), schema::version);
        QVERIFY(alles(*probe_->ordner.db()) == vorher);
        inRuhe();
        probe_->meldungen->texte.clear();
        probe_->waehlen("mnuDateiDBLadenOriginal");
        QCOMPARE(probe_->programm.OriginalDatenbank, true);
        QCOMPARE(zahl(*probe_->ordner.db(), u"SELECT count(*) FROM Apfel"_s), 0);
    }

    /// What a file is tells not its ending.
    void jedeEndung_data()
    {
        QTest::addColumn<QString>("datei");
        for (const char *name : {"a.fit", "a.mdb", "a.accdb", "a.mut", "a"})
            QTest::newRow(name) << QString::fromLatin1(name);
    }
    void jedeEndung()
    {
        QFETCH(QString, datei);
        accessdatei(datei);
        laden(datei);
        QVERIFY2(probe_->meldungen->texte.value(0).startsWith(u"Die Datenbank '%1' ist geladen."_s.arg(datei)),
                 qPrintable(probe_->meldungen->texte.value(0)));
        QCOMPARE(panel(), teilmengensatz);
        inRuhe();
    }

    void wasAccessWird_data()
    {
        QTest::addColumn<QString>("datei");
        QTest::addColumn<QString>("filter");
        QTest::addColumn<bool>("ohne");
        QTest::addColumn<bool>("mit"); // the option
        const QString access = u"Access-Datenbank (*.mdb)"_s;
        QTest::newRow("fit") << u"a.fit"_s << QString() << false << true;
        QTest::newRow("groß") << u"A.FIT"_s << QString() << false << true;
        QTest::newRow("Mulko") << u"a.mus"_s << QString() << false << true;
        QTest::newRow("mdb") << u"a.mdb"_s << QString() << true << true;
        QTest::newRow("MDB") << u"A.MDB"_s << QString() << true << true;
        QTest::newRow("mdb gewählt") << u"a.fit"_s << access << true << true;
        QTest::newRow("mdb gewählt, ohne Endung") << u"a"_s << access << true << true;
        QTest::newRow("andere") << u"a.x"_s << QString() << false << false;
    }
    /// Both commands.
    void wasAccessWird()
    {
        QFETCH(QString, datei);
        QFETCH(QString, filter);
        QFETCH(bool, ohne);
        QFETCH(bool, mit);
        probe_->waehlen("mnudbstauden");
        probe_->aktion("mnuMulkoSpeichern")->setEnabled(true);
        for (const char *befehl : {"mnuFloxTeilmegeSpeichern", "mnuMulkoSpeichern"})
            for (const bool option : {false, true}) {
                probe_->programm.AccessFormat = option;
                const QString ordner = u"%1-%2"_s.arg(QLatin1String(befehl)).arg(option);
                QVERIFY(QDir().mkpath(pfad(ordner)));
                {
                    Dateiwahl wahl(pfad(ordner + u'/' + datei), filter);
                    probe_->waehlen(befehl);
                    QCOMPARE(wahl.dialoge, 1);
                }
                QCOMPARE(probe_->meldungen->texte, QStringList());
                const QFileInfoList da = QDir(pfad(ordner)).entryInfoList(QDir::Files);
                QCOMPARE(da.size(), 1);
                QVERIFY(da[0].fileName().startsWith(datei));
                QCOMPARE(accessdatei::istAccessdatei(da[0].filePath()), option ? mit : ohne);
                if (!(option ? mit : ohne))
                    QVERIFY(Datenbank::OpenDatabase(da[0].filePath())->hatTabelle(u"Stauden"_s));
            }
        inRuhe();
    }

    void mulko_data() { teilmengeHinUndZurueck_data(); }
    /// The rows of the window, filtered as they are.
    void mulko()
    {
        QFETCH(int, sparte);
        const SpartenEintrag &zeile = eintrag(Sparte(sparte));
        probe_->programm.AccessFormat = true;
        probe_->waehlen(zeile.menue);
        Pflanzenfenster *form = probe_->fenster(1, Sparte(sparte));
        hand::nachVorn(form);
        form->satz().kopie().loescheAusser(zeile.haupttabelle.toString(), {}, [](qint64 artnr, auto) { return artnr % 3 == 0; });
        const qint64 uebrig = hand::zeilenDerKopie(form);
        QVERIFY(uebrig > 0);
        const QString ziel = u"auswahl.mu"_s + zeile.filterEndung.back();
        schreiben(pfad(ziel), "die alte");
        {
            Dateiwahl wahl(pfad(ziel));
            const Antworten antworten({u"Yes"_s}); // the dialog's own question
            probe_->aktion("mnuMulkoSpeichern")->setEnabled(true);
            probe_->meldungen.reset();
            probe_->waehlen("mnuMulkoSpeichern");
        }
        QVERIFY2(probe_->zentrale->statusBar()->currentMessage().startsWith(u"Gespeichert: "_s),
                 qPrintable(probe_->zentrale->statusBar()->currentMessage()));
        accessdatei::Leser leser(accessprobe::bytes(pfad(ziel)), ziel);
        QCOMPARE(accessprobe::zeilen(leser, zeile.haupttabelle.toString()).size(), uebrig);
        QCOMPARE(hand::zeilenDerKopie(form), uebrig);
        inRuhe();
    }

    /// While it is read the window lives, says how far it is and can be called off; nothing else can be used.
    void dasWartefenster()
    {
        accessdatei(u"a.mdb"_s);
        int runden = 0;
        bool sperrt = true, zeigt = true;
        QStringList saetze;
        QTimer takt;
        connect(&takt, &QTimer::timeout, this, [&] {
            auto *form = qobject_cast<Wartefenster *>(QApplication::activeModalWidget());
            auto *knopf = form ? form->findChild<QPushButton *>(u"cmdAbbrechen"_s) : nullptr;
            if (!knopf || !knopf->isVisible())
                return;
            ++runden;
            sperrt = sperrt && form->objectName() == u"frmMoment" && !probe_->zentrale->isEnabled();
            zeigt = zeigt && form->findChild<QProgressBar *>(u"prgMoment"_s)->isVisible() && form->rect().contains(knopf->geometry());
            saetze += form->findChild<QLabel *>(u"lblMoment"_s)->text();
        });
        takt.start(1);
        laden(u"a.mdb"_s);
        QVERIFY2(runden > 3, qPrintable(QString::number(runden)));
        QVERIFY(sperrt && zeigt);
        saetze.removeDuplicates();
        QCOMPARE(saetze.last(), u"Die Datenbank 'a.mdb' wird geladen."_s);
        inRuhe();
    }

    void texteDieAccessNichtHaelt_data()
    {
        QTest::addColumn<QString>("bemerkung");
        QTest::addColumn<QString>("satz");
        QTest::newRow("gewöhnlich") << u"so"_s << QString();
        QTest::newRow("mit einer Marke am Anfang") << u"\uFEFFso"_s << u"1 Text enthielt Zeichen"_s;
    }
    /// What is lost in the file is told in a box, not only in the status line.
    void texteDieAccessNichtHaelt()
    {
        QFETCH(QString, bemerkung);
        QFETCH(QString, satz);
        probe_->ordner.db()->Execute(u"UPDATE Topfpfl SET BEMERKUNG = ? WHERE ARTNR = (SELECT min(ARTNR) FROM Topfpfl)"_s, {bemerkung});
        QVERIFY(QFile::exists(probe_->teilmengeSpeichern(u"a.mdb"_s)));
        QCOMPARE(probe_->meldungen->texte.size(), satz.isEmpty() ? 0 : 1);
        QVERIFY2(probe_->meldungen->texte.value(0).contains(satz), qPrintable(probe_->meldungen->texte.value(0)));
    }

    void abbrechen_data()
    {
        QTest::addColumn<QString>("befehl");
        QTest::addColumn<bool>("taste");
        for (const bool taste : {false, true})
            for (const char *befehl : {"mnuDateiDBLadenBenutzer", "mnuFloxTeilmegeSpeichern", "mnuMulkoSpeichern"})
                QTest::addRow("%s, %s", befehl, taste ? "Esc" : "cmdAbbrechen") << QString::fromLatin1(befehl) << taste;
    }
    /// Nothing has changed: no file, no window, no truth.
    void abbrechen()
    {
        QFETCH(QString, befehl);
        QFETCH(bool, taste);
        accessdatei(u"a.mdb"_s);
        probe_->waehlen("mnudbtopfpflanzen");
        probe_->aktion("mnuMulkoSpeichern")->setEnabled(true);
        const QByteArray datei = inhalt(pfad(u"a.mdb"_s)), arbeit = inhalt(probe_->ordner.datenbank());
        probe_->meldungen.reset();
        const Antworten antworten({u"Yes"_s}); // the save dialog asks whether the old file may go
        Formhand<Wartefenster> hand([&](Wartefenster &form) {
            auto *knopf = form.findChild<QPushButton *>(u"cmdAbbrechen"_s);
            taste ? QTest::keyClick(&form, Qt::Key_Escape) : QTest::mouseClick(knopf, Qt::LeftButton);
            QVERIFY(form.abgebrochen());
        });
        Dateiwahl wahl(pfad(u"a.mdb"_s));
        probe_->waehlen(befehl.toLatin1());
        QVERIFY(hand.kam);
        QVERIFY(probe_->zentrale->statusBar()->currentMessage().contains(u"bgebrochen"_s));
        QVERIFY(!QFile::exists(pfad(u"flox-original.pdb"_s)));
        QVERIFY(inhalt(pfad(u"a.mdb"_s)) == datei && inhalt(probe_->ordner.datenbank()) == arbeit);
        QCOMPARE(probe_->titel(), QStringList{u"Topfpflanzen 1"_s});
        QCOMPARE(probe_->programm.OriginalDatenbank, true);
        QCOMPARE(panel(), QString());
        inRuhe();
    }

    void mittendrinAbbrechen_data()
    {
        QTest::addColumn<QString>("befehl");
        QTest::addColumn<int>("prozent");
        for (const char *befehl : {"mnuDateiDBLadenBenutzer", "mnuFloxTeilmegeSpeichern"})
            for (const int prozent : {1, 15, 35, 60})
                QTest::addRow("%s, %d %%", befehl, prozent) << QString::fromLatin1(befehl) << prozent;
    }
    /// In the subset, in the writing, in the reading back: the window takes the click at once, and nothing is left.
    void mittendrinAbbrechen()
    {
        QFETCH(QString, befehl);
        QFETCH(int, prozent);
        accessdatei(u"a.mdb"_s);
        probe_->waehlen("mnudbtopfpflanzen");
        const QByteArray datei = inhalt(pfad(u"a.mdb"_s)), arbeit = inhalt(probe_->ordner.datenbank());
        probe_->meldungen.reset();
        const Antworten antworten({u"Yes"_s});
        int bei = -1;
        bool gesperrt = false;
        QTimer takt;
        connect(&takt, &QTimer::timeout, this, [&] {
            auto *form = qobject_cast<Wartefenster *>(QApplication::activeModalWidget());
            auto *knopf = form ? form->findChild<QPushButton *>(u"cmdAbbrechen"_s) : nullptr;
            auto *balken = form ? form->findChild<QProgressBar *>(u"prgMoment"_s) : nullptr;
            const bool geladen = form && form->findChild<QLabel *>(u"lblMoment"_s)->text().contains(u"gelesen"_s);
            if (bei >= 0 || !knopf || !knopf->isVisible() || geladen || balken->value() < prozent)
                return;
            bei = balken->value();
            form->close(); // it goes with its work
            QTest::mouseClick(knopf, Qt::LeftButton);
            gesperrt = form->isVisible() && !knopf->isEnabled();
        });
        takt.start(1);
        Dateiwahl wahl(pfad(u"a.mdb"_s));
        probe_->waehlen(befehl.toLatin1());
        QVERIFY2(bei >= prozent && bei < 100, qPrintable(QString::number(bei)));
        QVERIFY(gesperrt);
        QVERIFY(probe_->zentrale->statusBar()->currentMessage().contains(u"bgebrochen"_s));
        QVERIFY(inhalt(pfad(u"a.mdb"_s)) == datei && inhalt(probe_->ordner.datenbank()) == arbeit);
        QCOMPARE(probe_->titel(), QStringList{u"Topfpflanzen 1"_s});
        inRuhe();
    }

    /// Whatever the disk does not take, the old file stays.
    void vollerDatentraeger_data()
    {
        QTest::addColumn<int>("grenze");
        QTest::addColumn<QString>("text");
        QTest::newRow("die Teilmenge") << 500000 << u"kann nicht in die Teilmenge geschrieben werden:"_s;
        QTest::newRow("die Access-Datei") << 0 << u"a.mdb' kann nicht geschrieben werden:"_s; // one byte less than it needs
    }
    void vollerDatentraeger()
    {
        QFETCH(int, grenze);
        QFETCH(QString, text);
        schreiben(pfad(u"a.mdb"_s), "die alte");
        if (grenze == 0) {
            // Access takes more room than the subset does.
            probe_->teilmengeSpeichern(u"gross.mdb"_s);
            grenze = int(QFileInfo(pfad(u"gross.mdb"_s)).size()) - 1;
        }
        probe_->meldungen.reset();
        const Antworten antworten({u"Yes"_s});
        {
            const Dateigrenze voll{rlim_t(grenze)};
            probe_->teilmengeSpeichern(u"a.mdb"_s);
        }
        QCOMPARE(antworten.texte.size(), 2);
        QVERIFY2(antworten.texte[1].contains(text), qPrintable(antworten.texte[1]));
        QCOMPARE(inhalt(pfad(u"a.mdb"_s)), QByteArray("die alte"));
        inRuhe();
    }

    void wasNichtGeht_data()
    {
        using Bytes = std::vector<uint8_t>;
        QTest::addColumn<std::function<void(Bytes &)>>("tat");
        QTest::addColumn<QString>("text");
        const auto zeile = [](const char *name, const QString &text, const std::function<void(Bytes &)> &tat) { QTest::newRow(name) << tat << text; };
        zeile("abgeschnitten", u"Die Access-Datei 'a.fit' ist beschädigt: Ihr Verzeichnis der Tabellen kann nicht gelesen werden."_s,
              [](Bytes &b) { b.resize(2 * seitenbytes); });
        zeile("Kennwort",
              u"Die Access-Datei 'a.fit' ist mit einem Kennwort geschützt. Bitte entfernen Sie das Kennwort in Access und versuchen Sie es dann noch "
              "einmal."_s,
              [](Bytes &b) {
            constexpr size_t kennwort = 0x42;
            const auto maske = std::span(b).subspan(accessdatei::kopfmaskeAb, accessdatei::kopfmaske);
            accessdatei::rc4(accessdatei::kopfschluessel, maske);
            for (const size_t stelle : {0, 2, 4})
                b[kennwort + stelle] ^= 'x';
            accessdatei::rc4(accessdatei::kopfschluessel, maske);
        });
        zeile(
            "verknüpft",
            u"Die Access-Datei 'a.fit' kann nicht geladen werden.\n\nDiese Tabellen sind nur Verknüpfungen mit einer anderen Datei und wurden nicht "
            "gelesen: Familien"_s,
            [](Bytes &b) { QVERIFY(alsVerknuepfung(b, "Familien")); });
    }
    /// Told in a box before anything is changed.
    void wasNichtGeht()
    {
        QFETCH(std::function<void(std::vector<uint8_t> &)>, tat);
        QFETCH(QString, text);
        accessdatei(u"a.fit"_s);
        aendern(pfad(u"a.fit"_s), tat);
        probe_->waehlen("mnudbtopfpflanzen");
        const QByteArray arbeit = inhalt(probe_->ordner.datenbank());
        laden(u"a.fit"_s);
        QCOMPARE(probe_->meldungen->texte, QStringList{text});
        QVERIFY(inhalt(probe_->ordner.datenbank()) == arbeit);
        QCOMPARE(probe_->titel(), QStringList{u"Topfpflanzen 1"_s});
        QCOMPARE(probe_->programm.OriginalDatenbank, true);
        inRuhe();
    }

    /// A table that the working database has not: the message, and back to the original.
    void fremdeTabelle()
    {
        accessdatei(u"fremd.mdb"_s, [](Datenbank &db) { db.Execute(u"CREATE TABLE Palmen (ARTNR INTEGER PRIMARY KEY)"_s); });
        accessdatei(u"gut.mdb"_s, [](Datenbank &db) { db.Execute(u"DELETE FROM Apfel"_s); });
        const QStringList aepfel = alles(*probe_->ordner.db(), u"Apfel"_s);
        laden(u"gut.mdb"_s);
        QCOMPARE(zahl(*probe_->ordner.db(), u"SELECT count(*) FROM Apfel"_s), 0);
        laden(u"fremd.mdb"_s);
        QCOMPARE(probe_->meldungen->texte.value(0), pfad(u"fremd.mdb"_s) + u" ist keine Flox-Datenbank!!"_s);
        QVERIFY2(probe_->meldungen->texte.value(1).startsWith(u"Sie arbeiten wieder mit der Originaldatenbank."_s),
                 qPrintable(probe_->meldungen->texte.value(1)));
        QCOMPARE(alles(*probe_->ordner.db(), u"Apfel"_s), aepfel);
        QCOMPARE(probe_->programm.OriginalDatenbank, true);
        inRuhe();
    }

    /// What lacks and what is damaged is told, table by table; the rest comes.
    void wasFehltWirdGesagt()
    {
        const qint64 zeilen = zahl(*probe_->ordner.db(), u"SELECT count(*) FROM Familien"_s);
        accessdatei(u"a.mdb"_s, [](Datenbank &db) {
            db.Execute(u"ALTER TABLE Obst DROP COLUMN SOTBEW"_s);
            db.Execute(u"DROP TABLE Daten"_s);
        });
        QVERIFY(zeilen > 2);
        aendern(pfad(u"a.mdb"_s), [](std::vector<uint8_t> &b) { QVERIFY(zeileZerstoeren(b, tabellenseite(b, "Familien"))); });
        laden(u"a.mdb"_s);
        const QString text = probe_->meldungen->texte.value(0);
        QVERIFY2(text.contains(u"\nFamilien: %1 Zeilen; 1 nicht lesbar (Nr. 1)\n"_s.arg(zeilen - 1)), qPrintable(text));
        QVERIFY2(text.contains(u"in der Datei fehlt SOTBEW"_s), qPrintable(text));
        QVERIFY2(text.contains(u"In der Datei fehlen diese Tabellen; sie sind leer: Daten"_s), qPrintable(text));
        QCOMPARE(zahl(*probe_->ordner.db(), u"SELECT count(*) FROM Familien"_s), zeilen - 1);
        inRuhe();
    }

    void codeseite_data()
    {
        QTest::addColumn<QString>("gewaehlt"); // empty: called off
        QTest::newRow("abgebrochen") << QString();
        QTest::newRow("DOS") << u"Westeuropa (DOS 850)"_s;
    }
    /// A file of Jet 3 whose texts are not in the code page that it names.
    void codeseite()
    {
        QFETCH(QString, gewaehlt);
        std::vector<uint8_t> bytes = accessprobe::jet3Datei();
        QByteArray datei(reinterpret_cast<const char *>(bytes.data()), qsizetype(bytes.size()));
        datei.replace("Pflanzen", "Familien");
        schreiben(pfad(u"alt.mdb"_s), datei);
        QString frage, vorgabe;
        Formhand<QInputDialog> hand([&](QInputDialog &form) {
            frage = form.labelText();
            vorgabe = form.textValue();
            form.findChild<QComboBox *>()->setCurrentText(gewaehlt);
            gewaehlt.isEmpty() ? form.reject() : form.accept();
        });
        laden(u"alt.mdb"_s);
        QVERIFY(hand.kam);
        QVERIFY2(frage.contains(u"bel ä"_s), qPrintable(frage));
        QCOMPARE(vorgabe, u"Westeuropa (Windows 1252)"_s);
        QCOMPARE(probe_->programm.OriginalDatenbank, gewaehlt.isEmpty());
        QCOMPARE(probe_->meldungen->texte.size(), gewaehlt.isEmpty() ? 0 : 1);
        inRuhe();
    }

private:
    QString pfad(const QString &name) const { return probe_->pfad(name); }
    QString panel() const { return probe_->zentrale->findChild<QLabel *>(u"stbAnzeigeZentral_1"_s)->text(); }

    void laden(const QString &name)
    {
        probe_->meldungen->texte.clear();
        probe_->datenbankLaden(name);
    }
    /// A file of Access with what the working database holds, changed beforehand.
    void accessdatei(const QString &name, const std::function<void(Datenbank &)> &tat = {})
    {
        const QString quelle = pfad(u"quelle.tmp"_s);
        QFile::remove(quelle);
        QVERIFY(QFile::copy(probe_->ordner.datenbank(), quelle));
        if (tat)
            tat(*Datenbank::OpenDatabase(quelle));
        QVERIFY(accessdatei::ausgeben(quelle, pfad(name)).has_value());
    }
    /// The main window can be used, and nothing is left of what was on its way.
    void inRuhe()
    {
        QVERIFY(probe_->zentrale->isEnabled() && probe_->zentrale->AktualisierenErlaubt);
        for (const QWidget *eine : QApplication::topLevelWidgets())
            QVERIFY2(!qobject_cast<const Wartefenster *>(eine) && eine->objectName() != u"frmDateiAuswahl", qPrintable(eine->objectName()));
        const QStringList reste = QDir(probe_->ordner.pfad()).entryList({u"flox-zwischen*"_s, u"*.mdb.*"_s, u"*.fit.*"_s}, QDir::Files);
        QVERIFY2(reste.isEmpty(), qPrintable(reste.join(u' ')));
    }

    /// Calls `tat` with the begin of every row of a table, given by the page of its definition, until it returns true; whether it did.
    static bool zeilenDurchgehen(std::vector<uint8_t> &bytes, uint32_t tabelle, const std::function<bool(size_t seite, size_t nummer)> &tat)
    {
        const accessdatei::Sicht sicht{bytes.data(), bytes.size()};
        for (size_t seite = 0; seite + seitenbytes <= bytes.size(); seite += seitenbytes)
            if (bytes[seite] == 1 && sicht.u32(seite + 4) == tabelle)
                for (size_t i = 0; i < sicht.u16(seite + 12); ++i)
                    if (tat(seite, i))
                        return true;
        return false;
    }
    /// The row of the catalog that bears a table's name; 0 for none.
    static size_t katalogzeile(std::vector<uint8_t> &bytes, const QByteArray &name)
    {
        constexpr uint32_t katalog = 2;
        QByteArray breit;
        for (const char zeichen : name)
            breit += QByteArray(1, zeichen) + '\0';
        size_t gefunden = 0;
        zeilenDurchgehen(bytes, katalog, [&](size_t seite, size_t nummer) {
            const accessdatei::Sicht sicht{bytes.data() + seite, seitenbytes};
            const size_t ab = sicht.u16(14 + 2 * nummer) & 0x1FFF, bis = nummer == 0 ? seitenbytes : sicht.u16(12 + 2 * nummer) & 0x1FFF;
            const QByteArray zeile(reinterpret_cast<const char *>(bytes.data() + seite + ab), qsizetype(bis - ab));
            const bool ja = zeile.contains("\xFF\xFE" + name + '\x2C') || zeile.contains(breit) || zeile.contains("\xFF\xFE" + name);
            if (ja)
                gefunden = seite + ab;
            return ja;
        });
        return gefunden;
    }
    static bool alsVerknuepfung(std::vector<uint8_t> &bytes, const QByteArray &name)
    {
        constexpr size_t art = 10;
        constexpr uint8_t verknuepft = 6;
        const size_t zeile = katalogzeile(bytes, name);
        if (zeile)
            bytes[zeile + art] = verknuepft;
        return zeile != 0;
    }
    static uint32_t tabellenseite(std::vector<uint8_t> &bytes, const QByteArray &name)
    {
        return accessdatei::Sicht{bytes.data(), bytes.size()}.u32(katalogzeile(bytes, name) + 2);
    }
    /// The first row of a table has more columns than there can be.
    static bool zeileZerstoeren(std::vector<uint8_t> &bytes, uint32_t tabelle)
    {
        return zeilenDurchgehen(bytes, tabelle, [&](size_t seite, size_t) {
            const size_t zeile = seite + (accessdatei::Sicht{bytes.data() + seite, seitenbytes}.u16(14) & 0x1FFF);
            bytes[zeile] = bytes[zeile + 1] = 0xFF;
            return true;
        });
    }

    std::unique_ptr<Dateiprobe> probe_;
};

FLOX_TEST(tst_accessdateien, TestAccessdateien)
#include "tst_accessdateien.moc"
