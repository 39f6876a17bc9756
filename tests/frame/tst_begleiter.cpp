#include "Rahmenprobe.h"

#include "frame/Begleiter.h"
#include "frame/Einstellungen.h"
#include "frame/Inidatei.h"
#include "frame/Registry.h"
#include "frame/frmInstall.h"
#include "tests/Testprogramm.h"

#include <QComboBox>
#include <QMenu>
#include <QMessageBox>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

/// A script that tells its folder.
constexpr char ortmelder[] = "#!/bin/sh\npwd -P > \"$(dirname \"$0\")/neu\"\nmv \"$(dirname \"$0\")/neu\" \"$(dirname \"$0\")/bericht\"\n";

/// Where a script worked; empty: it has not run.
QString bericht(const QString &ordner)
{
    QFile datei(ordner + u"/bericht"_s);
    return datei.open(QIODevice::ReadOnly) ? QString::fromUtf8(datei.readAll()).trimmed() : QString();
}

/// A message box as it stood open.
struct Kasten
{
    QString titel, text;
    QMessageBox::Icon bild;
    QMessageBox::StandardButtons knoepfe;
};

/// Answers boxes with these buttons in turn, then with OK.
class Kastenhand : public QObject
{
public:
    explicit Kastenhand(std::vector<QMessageBox::StandardButton> antworten = {}) : antworten_(std::move(antworten))
    {
        connect(&takt_, &QTimer::timeout, this, [this] {
            auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
            if (!box || !box->isVisible())
                return;
            kaesten.push_back({box->windowTitle(), box->text(), box->icon(), box->standardButtons()});
            const QMessageBox::StandardButton antwort = antworten_.empty() ? QMessageBox::Ok : antworten_.front();
            if (!antworten_.empty())
                antworten_.erase(antworten_.begin());
            if (davor)
                davor();
            if (antwort == QMessageBox::NoButton)
                box->close();
            else
                box->button(antwort)->click();
        });
        takt_.start(1);
    }

    std::vector<Kasten> kaesten;
    std::function<void()> davor; ///< while a box stands open

private:
    std::vector<QMessageBox::StandardButton> antworten_;
    QTimer takt_;
};

} // namespace

/* The companion programs: seen at the start, installed from the CD, called from the menu. */
class TestBegleiter : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        probe_.reset();
        probe_ = std::make_unique<Rahmenprobe>();
        ordner_.emplace();
    }

    void tabelleStimmt()
    {
        const auto tabelle = begleitprogramme();
        QCOMPARE(tabelle[0].pfad, &Programm::MulkoPfad);
        QCOMPARE(tabelle[1].pfad, &Programm::EditorPfad);
        for (const Begleitprogramm &begleiter : tabelle) {
            const bool mulko = begleiter.pfad == &Programm::MulkoPfad;
            QCOMPARE(begleiter.cdOrdner, mulko ? u"Mulko" : u"Flox-editor");
            QCOMPARE(begleiter.fenstertitel, mulko ? u"Mulko" : u"Flox-Editor");
            QCOMPARE(begleiter.datei, mulko ? u"Mulko.exe" : u"Flox-editor.exe");
        }
        probe_->laden();
        for (const char *name : {"timMulko", "timFloxEditor"}) {
            QCOMPARE(uhr(name)->interval(), 500);
            QVERIFY(!uhr(name)->isActive());
        }
        for (const char *name : {"timMulkoInstall", "timFloxEditorInstall"}) {
            QCOMPARE(uhr(name)->interval(), 15000);
            QVERIFY(!uhr(name)->isActive());
        }
    }

    void menueAmAnfang_data()
    {
        QTest::addColumn<QString>("mulko");
        QTest::addColumn<QString>("editor");
        QTest::addColumn<bool>("mulkoDa");
        QTest::addColumn<bool>("editorDa");
        QTest::newRow("no paths") << QString() << QString() << false << false;
        QTest::newRow("folders without programs") << u"-"_s << u"-"_s << false << false;
        QTest::newRow("both") << u"Mulko.exe"_s << u"Flox-editor.exe"_s << true << true;
        QTest::newRow("other case") << u"mulko.EXE"_s << u"flox-editor.exe"_s << true << true;
        QTest::newRow("without ending") << u"mulko"_s << u"flox-editor"_s << true << true;
        QTest::newRow("one") << u"Mulko.exe"_s << u"-"_s << true << false;
        QTest::newRow("the other") << u"-"_s << u"Flox-editor.exe"_s << false << true;
        QTest::newRow("exchanged") << u"Flox-editor.exe"_s << u"Mulko.exe"_s << false << false;
    }

    void menueAmAnfang()
    {
        QFETCH(QString, mulko);
        QFETCH(QString, editor);
        QFETCH(bool, mulkoDa);
        QFETCH(bool, editorDa);
        const auto pfad = [&](const QString &name, const QString &datei) {
            if (datei.isEmpty())
                return QString();
            QDir().mkpath(ort(name));
            if (datei != u"-")
                programmSchreiben(ort(name) + u'/' + datei, ortmelder);
            return ort(name) + u'\\';
        };
        const QString mulkoPfad = pfad(u"m"_s, mulko), editorPfad = pfad(u"e"_s, editor);
        probe_->programm.MulkoPfad = mulkoPfad;
        probe_->programm.EditorPfad = editorPfad;
        probe_->laden();
        QCOMPARE(sichtbar(), menue(mulkoDa, editorDa));
        QCOMPARE(probe_->programm.MulkoPfad, mulkoDa ? mulkoPfad : QString());
        QCOMPARE(probe_->programm.EditorPfad, editorDa ? editorPfad : QString());
        // Shown is not allowed: only a filtered window can be handed over.
        QVERIFY(!probe_->aktion("mnuMulkoSpeichern")->isEnabled());
        for (const char *eintrag : {"mnuMulkoInstall", "mnuMulkoRun", "mnuFloxEditorInstall", "mnuFloxEditorRun"})
            QCOMPARE(probe_->aktion(eintrag)->isEnabled(), probe_->aktion(eintrag)->isVisible());
    }

    /// What cannot be found any more is forgotten for good.
    void vergessenerPfadWirdNichtGespeichert()
    {
        probe_->programm.MulkoPfad = ort(u"fort"_s) + u'\\';
        probe_->laden();
        probe_->zentrale->close();
        QCOMPARE(registry::RegWertLesen(u"Software\\FH Lindenhof\\FLOX3-DEMO\\Pfade", u"Mulko-Verz"), u" "_s);
    }

    void aufrufen_data()
    {
        QTest::addColumn<int>("welcher");
        QTest::newRow("design program") << 0;
        QTest::newRow("editor") << 1;
    }

#ifndef Q_OS_WIN
    /// It works in its folder, this program stays in its own; half a second later its window is asked to come forward.
    void aufrufen()
    {
        QFETCH(int, welcher);
        const Begleitprogramm &begleiter = begleitprogramme()[size_t(welcher)];
        const QString werkzeuge = ort(u"werkzeuge"_s), heim = ort(u"Begleiter heim"_s), hier = QDir::currentPath();
        programmSchreiben(werkzeuge + u"/wmctrl"_s,
                          "#!/bin/sh\necho \"$2\" > \"$(dirname \"$0\")/neu\"\nmv \"$(dirname \"$0\")/neu\" \"$(dirname \"$0\")/bericht\"\n");
        const QByteArray vorher = qgetenv("PATH");
        qputenv("PATH", werkzeuge.toLocal8Bit() + ':' + vorher);
        programmSchreiben(heim + u'/' + begleiter.datei.toString().toLower(), ortmelder);
        probe_->programm.*begleiter.pfad = heim + u'\\';
        probe_->laden();
        probe_->waehlen(begleiter.mnuRun);
        QVERIFY(uhr(begleiter.timLauf)->isActive());
        QTRY_COMPARE(bericht(heim), QFileInfo(heim).canonicalFilePath());
        QCOMPARE(QDir::currentPath(), hier);
        QTRY_COMPARE(bericht(werkzeuge), begleiter.fenstertitel.toString());
        QVERIFY(!uhr(begleiter.timLauf)->isActive());
        qputenv("PATH", vorher);
    }

    /// No word, and the menu stays.
    void aufrufScheitert()
    {
        const QString heim = ort(u"heim"_s);
        programmSchreiben(heim + u"/Mulko.exe"_s, "MZ");
        QVERIFY(QFile::setPermissions(heim + u"/Mulko.exe"_s, QFile::ReadOwner));
        probe_->programm.MulkoPfad = heim + u'\\';
        probe_->laden();
        const Kastenhand hand;
        for (const bool fort : {false, true}) {
            if (fort)
                QVERIFY(QFile::remove(heim + u"/Mulko.exe"_s));
            probe_->waehlen("mnuMulkoRun");
            QVERIFY(!uhr("timMulko")->isActive());
            QCOMPARE(sichtbar(), menue(true, false));
        }
        probe_->programm.MulkoPfad.clear();
        probe_->waehlen("mnuMulkoRun");
        QVERIFY(!uhr("timMulko")->isActive());
        QVERIFY(hand.kaesten.empty());
    }

    void installieren_data()
    {
        aufrufen_data();
    }

    /// The setup runs in its folder on the CD; the entry goes, and the settings are asked.
    void installieren()
    {
        QFETCH(int, welcher);
        const Begleitprogramm &begleiter = begleitprogramme()[size_t(welcher)];
        const QString hier = QDir::currentPath(), setup = ort(u"cd"_s) + u'/' + (welcher == 0 ? u"Mulko"_s : u"FLOX-EDITOR"_s);
        cdEinlegen();
        programmSchreiben(setup + u"/SETUP.EXE"_s, ortmelder);
        probe_->laden();
        probe_->zentrale->setLaufwerke([this] { return laufwerke(); });
        const Kastenhand hand;
        probe_->waehlen(begleiter.mnuInstall);
        QTRY_COMPARE(bericht(setup), QFileInfo(setup).canonicalFilePath());
        QCOMPARE(QDir::currentPath(), hier);
        QVERIFY(hand.kaesten.empty());
        QVERIFY(!probe_->aktion(begleiter.mnuInstall)->isVisible() && !probe_->aktion(begleiter.mnuRun)->isVisible());
        QVERIFY(uhr(begleiter.timInstall)->isActive());
        QVERIFY(!probe_->zentrale->findChild<QDialog *>(u"frmInstall"_s));
    }

    /// The box asks until the CD is there.
    void cdWirdNachgelegt()
    {
        probe_->laden();
        probe_->zentrale->setLaufwerke([this] { return laufwerke(); });
        Kastenhand hand({QMessageBox::Ok, QMessageBox::Ok});
        hand.davor = [&] {
            if (hand.kaesten.size() == 2) {
                cdEinlegen();
                programmSchreiben(ort(u"cd/Mulko"_s) + u"/setup"_s, ortmelder);
            }
        };
        probe_->waehlen("mnuMulkoInstall");
        QTRY_VERIFY(!bericht(ort(u"cd/Mulko"_s)).isEmpty());
        QCOMPARE(hand.kaesten.size(), size_t(2));
        for (const Kasten &kasten : hand.kaesten) {
            QCOMPARE(kasten.titel, u"FLOX-CD ist nicht eingelegt"_s);
            QCOMPARE(kasten.text, u"Die FLOX-CD befindet sich nicht im CD-Laufwerk! \rBitte einlegen!"_s);
            QCOMPARE(kasten.bild, QMessageBox::Information);
            QCOMPARE(kasten.knoepfe, QMessageBox::Ok | QMessageBox::Cancel);
        }
    }

    void abbrechen_data()
    {
        QTest::addColumn<bool>("zu");
        QTest::newRow("button") << false;
        QTest::newRow("closed") << true;
    }

    /// Given up: the entry goes all the same, and the timer asks without result.
    void abbrechen()
    {
        QFETCH(bool, zu);
        probe_->laden();
        probe_->zentrale->setLaufwerke([this] { return laufwerke(); });
        Kastenhand hand({QMessageBox::Ok, zu ? QMessageBox::NoButton : QMessageBox::Cancel});
        probe_->waehlen("mnuFloxEditorInstall");
        QCOMPARE(hand.kaesten.size(), size_t(2));
        QVERIFY(!probe_->aktion("mnuFloxEditorInstall")->isVisible());
        QVERIFY(uhr("timFloxEditorInstall")->isActive());
        for (int i = 0; i < 3; ++i)
            fragen("timFloxEditorInstall");
        QVERIFY(uhr("timFloxEditorInstall")->isActive());
        QCOMPARE(hand.kaesten.size(), size_t(2));
        QVERIFY(!probe_->aktion("mnuFloxEditorRun")->isVisible());
        QVERIFY(probe_->programm.EditorPfad.isEmpty());
        // With the next start it is offered again.
        probe_->zentrale->close();
        probe_->laden();
        QCOMPARE(sichtbar(), menue(false, false));
    }

    /// Two of the marks are not enough.
    void halbeCdIstKeine()
    {
        cdEinlegen();
        QVERIFY(QFile::remove(ort(u"cd"_s) + u"/Winflox3.ico"_s));
        programmSchreiben(ort(u"cd/Mulko"_s) + u"/setup.exe"_s, ortmelder);
        probe_->laden();
        probe_->zentrale->setLaufwerke([this] { return laufwerke(); });
        const Kastenhand hand({QMessageBox::Cancel});
        probe_->waehlen("mnuMulkoInstall");
        QCOMPARE(hand.kaesten.size(), size_t(1));
        QVERIFY(bericht(ort(u"cd/Mulko"_s)).isEmpty());
    }

    /// A setup that cannot be started leaves the menu as it was, without a word.
    void setupScheitert()
    {
        cdEinlegen();
        probe_->laden();
        probe_->zentrale->setLaufwerke([this] { return laufwerke(); });
        const Kastenhand hand;
        probe_->waehlen("mnuMulkoInstall");
        QVERIFY(hand.kaesten.empty());
        QCOMPARE(sichtbar(), menue(false, false));
        QVERIFY(!uhr("timMulkoInstall")->isActive());
    }
#endif

    void laufwerksliste()
    {
        frmInstall form([] { return std::vector<Laufwerk>{{u"D:/"_s, u"FLOX"_s}, {u"E:/"_s, {}}}; }, nullptr);
        const auto *Drive1 = form.findChild<QComboBox *>(u"Drive1"_s);
        QVERIFY(Drive1);
        QCOMPARE(Drive1->count(), 2);
        QVERIFY(Drive1->itemText(0).startsWith(u"D:") && Drive1->itemText(0).endsWith(u"[FLOX]"));
        QVERIFY(!form.isVisible());
    }

    void eingerichtet_data()
    {
        aufrufen_data();
    }

    /// The setup, another process, leaves its folder in the design program's key.
    void eingerichtet()
    {
        QFETCH(int, welcher);
        const Begleitprogramm &begleiter = begleitprogramme()[size_t(welcher)], &anderer = begleitprogramme()[size_t(1 - welcher)];
        const QString wert = welcher == 0 ? u"Mulko-Verz"_s : u"FLOX-Editor-Verz"_s, heim = ort(u"heim"_s);
        probe_->laden();
        probe_->zentrale->setLaufwerke([this] { return laufwerke(); });
        Kastenhand hand({QMessageBox::Cancel});
        probe_->waehlen(begleiter.mnuInstall);
        hand.kaesten.clear();
        // The value of the other one, a blank and the editor's own key count for nothing.
        vonAussen({{begleiterSchluessel.toString(), welcher == 0 ? u"FLOX-Editor-Verz"_s : u"Mulko-Verz"_s, heim},
                   {begleiterSchluessel.toString(), wert, u" "_s},
                   {u"Software\\FH Lindenhof\\Flox-Editor1.0\\Pfade"_s, wert, heim}});
        fragen(begleiter.timInstall);
        QVERIFY(uhr(begleiter.timInstall)->isActive());
        QVERIFY(hand.kaesten.empty() && (probe_->programm.*begleiter.pfad).isEmpty());

        programmSchreiben(heim + u'/' + begleiter.datei.toString(), ortmelder);
        vonAussen({{begleiterSchluessel.toString(), wert, heim}});
        fragen(begleiter.timInstall);
        QVERIFY(!uhr(begleiter.timInstall)->isActive());
        QCOMPARE(probe_->programm.*begleiter.pfad, heim + u'\\');
        QVERIFY((probe_->programm.*anderer.pfad).isEmpty());
        QCOMPARE(sichtbar(), menue(welcher == 0, welcher == 1));
        QCOMPARE(hand.kaesten.size(), size_t(1));
        QCOMPARE(hand.kaesten[0].titel, welcher == 0 ? u"Mulko kann jetzt aufgerufen werden"_s : u"Flox-Editor kann jetzt aufgerufen werden"_s);
        QCOMPARE(hand.kaesten[0].text, welcher == 0 ? u"Sie können jetzt Mulko über den Menüpunkt 'Zusatzprogramme' aufrufen!"_s
                                                    : u"Sie können jetzt den Flox-Editor über den Menüpunkt 'Zusatzprogramme' aufrufen!"_s);
        QCOMPARE(hand.kaesten[0].bild, QMessageBox::Information);
        QCOMPARE(hand.kaesten[0].knoepfe, QMessageBox::Ok);
    }

    /// The folder is known, but the program is not in it: the message comes, the menu stays as it is.
    void ordnerOhneProgramm()
    {
        probe_->laden();
        probe_->zentrale->setLaufwerke([this] { return laufwerke(); });
        Kastenhand hand({QMessageBox::Cancel});
        probe_->waehlen("mnuMulkoInstall");
        vonAussen({{begleiterSchluessel.toString(), u"Mulko-Verz"_s, ort(u"leer"_s)}});
        fragen("timMulkoInstall");
        QCOMPARE(hand.kaesten.size(), size_t(2));
        QVERIFY(!uhr("timMulkoInstall")->isActive());
        QCOMPARE(probe_->programm.MulkoPfad, ort(u"leer"_s) + u'\\');
        QVERIFY(!probe_->aktion("mnuMulkoInstall")->isVisible() && !probe_->aktion("mnuMulkoRun")->isVisible());
    }

    /// Both at once, and the message while a form is open: it stands before it.
    void beideZugleich()
    {
        probe_->laden();
        probe_->zentrale->setLaufwerke([this] { return laufwerke(); });
        Kastenhand hand({QMessageBox::Cancel, QMessageBox::Cancel});
        probe_->waehlen("mnuMulkoInstall");
        probe_->waehlen("mnuFloxEditorInstall");
        programmSchreiben(ort(u"m"_s) + u"/mulko"_s, ortmelder);
        programmSchreiben(ort(u"e"_s) + u"/flox-editor"_s, ortmelder);
        vonAussen(
            {{begleiterSchluessel.toString(), u"Mulko-Verz"_s, ort(u"m"_s)}, {begleiterSchluessel.toString(), u"FLOX-Editor-Verz"_s, ort(u"e"_s)}});
        QDialog form(probe_->zentrale.get());
        QTimer::singleShot(0, &form, [&] {
            fragen("timMulkoInstall");
            fragen("timFloxEditorInstall");
            QCOMPARE(QApplication::activeModalWidget(), &form);
            form.accept();
        });
        form.exec();
        QCOMPARE(hand.kaesten.size(), size_t(4));
        QCOMPARE(sichtbar(), menue(true, true));
    }

private:
    QString ort(const QString &name) const
    {
        return ordner_->filePath(name);
    }
    QTimer *uhr(const char *name)
    {
        return probe_->zentrale->findChild<QTimer *>(QLatin1String(name));
    }

    /// The timer strikes now.
    void fragen(const char *name)
    {
        QTimer *diese = uhr(name);
        QVERIFY(diese && diese->isActive());
        QTimerEvent schlag(diese->timerId());
        QCoreApplication::sendEvent(diese, &schlag);
    }

    void cdEinlegen()
    {
        for (const QString &marke : {u"stauden/arm.jpg"_s, u"Gehoelze/Abi.JPG"_s, u"Winflox3.ico"_s})
            programmSchreiben(ort(u"cd"_s) + u'/' + marke, "x");
    }

    /// A floppy, a volume that is no CD, and the one that becomes it.
    std::vector<Laufwerk> laufwerke() const
    {
        return {{u"a:"_s, {}}, {ort(u"stick"_s), u"Bilder"_s}, {ort(u"cd"_s), u"FLOX"_s}};
    }

    struct Wert
    {
        QString schluessel, name, text;
    };

    /// Another process writes into the settings.
    void vonAussen(const std::vector<Wert> &werte)
    {
        Inidatei datei(probe_->ablage.datei());
        for (const Wert &wert : werte)
            datei.setWert(QString(wert.schluessel).replace(u'\\', u'/') + u'/' + wert.name, wert.text);
        QVERIFY(datei.sichern());
    }

    QStringList sichtbar()
    {
        QStringList namen;
        for (const char *eintrag :
             {"mnuMulkoInstall", "mnuMulkoRun", "mnuMulkoTrennstrich", "mnuMulkoSpeichern", "mnuFloxEditorInstall", "mnuFloxEditorRun"})
            if (probe_->aktion(eintrag)->isVisible())
                namen += QString::fromLatin1(eintrag);
        return namen;
    }

    static QStringList menue(bool mulko, bool editor)
    {
        return (mulko ? QStringList{u"mnuMulkoRun"_s, u"mnuMulkoTrennstrich"_s, u"mnuMulkoSpeichern"_s} : QStringList{u"mnuMulkoInstall"_s})
               + (editor ? QStringList{u"mnuFloxEditorRun"_s} : QStringList{u"mnuFloxEditorInstall"_s});
    }

    std::unique_ptr<Rahmenprobe> probe_;
    std::optional<QTemporaryDir> ordner_;
};

FLOX_TEST(tst_begleiter, TestBegleiter)
#include "tst_begleiter.moc"
