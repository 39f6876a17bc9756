#include "Bildprobe.h"
#include "Laufprobe.h"

#include "controls/Bilder.h"
#include "pictures/frmBilderAssistent.h"
#include "pictures/frmBilderSuche.h"
#include "store/Pfade.h"
#include "tests/frame/Handgriffe.h"
#include "tests/Testprogramm.h"

#include <QFileSystemModel>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QTreeView>

using namespace Qt::StringLiterals;

namespace {

/// A disc with the pictures, the previews and the mark, in a drive that may be empty.
class Cd
{
public:
    explicit Cd(bool mitVorschau = true)
    {
        const QByteArray bild = jpeg(gemischt(200, 150, 3));
        for (const QString &zweig : {QString(), u"vorschau/"_s})
            if (zweig.isEmpty() || mitVorschau)
                for (const char *name : {"topfpflanzen/begonia-rex", "topfpflanzen/bougainvillea", "topfpflanzen/abutilon", "stauden/armeria",
                                         "stauden/caltha", "gehoelze/abies-alba", "apfel/boskoop", "obst/quitte"})
                    Bilderbaum::schreiben(pfad(u"%1%2.jpg"_s.arg(zweig, QLatin1String(name))), bild);
        Bilderbaum::schreiben(pfad(u"Winflox3.ico"_s), "x");
    }
    QString pfad(const QString &datei = {}) const { return datei.isEmpty() ? ordner_.path() : ordner_.filePath(datei); }
    Laufwerk laufwerk() const { return {pfad(), u"FLOX"_s}; }

private:
    QTemporaryDir ordner_;
};

constexpr int anzahlBilder = 8;

/// Presses keys or buttons in the forms that open while it lives, one step a turn.
class Hand : public QObject
{
public:
    using Griff = std::function<bool(QWidget *)>; // true: done

    explicit Hand(std::vector<std::pair<QString, Griff>> griffe) : griffe_(std::move(griffe)) { weiter(); }
    bool fertig() const { return stelle_ == griffe_.size(); }

private:
    void weiter()
    {
        if (fertig())
            return;
        // First the next turn: what is done now may open a form and come back when that is gone.
        QTimer::singleShot(1, this, [this] { weiter(); });
        QWidget *vorn = QApplication::activeModalWidget();
        const size_t jetzt = stelle_++;
        if (vorn && vorn->objectName() == griffe_[jetzt].first && griffe_[jetzt].second(vorn)) {
            gewartet_ = 0;
            return;
        }
        stelle_ = jetzt;
        if (++gewartet_ < geduld)
            return;
        const QWidget *fokus = QApplication::focusWidget();
        qWarning("Step %d does not come; in front is '%s', the focus is on '%s'.", int(jetzt), qPrintable(vorn ? vorn->objectName() : QString()),
                 qPrintable(fokus ? fokus->objectName() : QString()));
        if (auto *dialog = qobject_cast<QDialog *>(vorn))
            dialog->reject();
    }

    std::vector<std::pair<QString, Griff>> griffe_;
    static constexpr int geduld = 3000; // turns
    size_t stelle_ = 0;
    int gewartet_ = 0;
};

Hand::Griff drueckt(const char *name)
{
    return [name](QWidget *form) {
        hand::druecken(form, name);
        return true;
    };
}

const QString assistent = u"frmBilderAssistent"_s, suche = u"frmBilderSuche"_s;

} // namespace

/* The assistant's three ways and its second page, the choice of the folder, and what the program knows behind each. */
class TestBilderassistent : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        programmordner_.emplace();
        cd_.emplace();
        laufwerke_ = {cd_->laufwerk()};
        gefragt_ = aktualisiert_ = 0;
        programm_ = {};
        programm_.ProgrammPfad = ziel();
        programm_.BilderPfad = u"/anderswo\\"_s;
        bilder::setOrdner(QStringLiteral(FLOX_BILDER));
    }

    void aufbau()
    {
        frmBilderAssistent form(programm_, liste(), nullptr);
        QCOMPARE(form.objectName(), assistent);
        QCOMPARE(form.windowTitle(), u"Flox-Bilder Assistent"_s);
        for (const char *name : {"cmdVorschlag1", "cmdVorschlag2", "cmdVorschlag3"}) {
            auto *knopf = teil<QAbstractButton>(form, name);
            QCOMPARE(knopf->toolTip(), u"Anklicken zum Auswählen"_s);
            QVERIFY(!knopf->accessibleName().isEmpty());
            QVERIFY(bilder::eigengroesse(u"assistent/vorschlag%1"_s.arg(QLatin1Char(name[12]))).isValid());
        }
        auto *cmdErweitert = teil<QPushButton>(form, "cmdErweitert");
        QCOMPARE(cmdErweitert->text(), u"Erweiterte Optionen >>>"_s);
        form.show();
        QVERIFY(teil<QWidget>(form, "cmdVorschlag1")->isVisible() && !teil<QWidget>(form, "cmdBilderPfadAendern")->isVisible());
        cmdErweitert->click();
        QCOMPARE(cmdErweitert->text(), u"<<< Standard"_s);
        QVERIFY(!teil<QWidget>(form, "cmdVorschlag1")->isVisible() && teil<QWidget>(form, "cmdBilderPfadAendern")->isVisible());
        QCOMPARE(teil<QPushButton>(form, "cmdBilderPfadAendern")->text(), u"Ändern"_s);
        QCOMPARE(teil<QPushButton>(form, "cmdVorschauBilderErstellen")->text(), u"Bilder erzeugen"_s);
        cmdErweitert->click();
        QCOMPARE(cmdErweitert->text(), u"Erweiterte Optionen >>>"_s);
    }

    void schilder_data()
    {
        QTest::addColumn<QString>("bilder");
        QTest::addColumn<bool>("lokal");
        QTest::addColumn<bool>("vorschauDa");
        QTest::addColumn<QString>("textBilder");
        QTest::addColumn<bool>("bilderRot");
        QTest::addColumn<QString>("textVorschau");
        const QString bedarf = u"Vorschau-Bilder werden bei Bedarf erzeugt!"_s;
        QTest::newRow("no folder") << u""_s << false << false << u"Kein Ordner ausgewählt!"_s << true << bedarf;
        QTest::newRow("a folder without pictures") << u"/tmp\\"_s << false << false << u"/tmp/"_s << true << bedarf;
        QTest::newRow("the CD") << u"CD"_s << false << true << u"CD"_s << false << bedarf;
        QTest::newRow("the CD and previews") << u"CD"_s << true << true << u"CD"_s << false << u"VORSCHAU"_s;
        QTest::newRow("previews that are gone") << u"CD"_s << true << false << u"CD"_s << false << u"VORSCHAU"_s;
    }
    void schilder()
    {
        QFETCH(QString, bilder);
        QFETCH(bool, lokal);
        QFETCH(bool, vorschauDa);
        QFETCH(QString, textBilder);
        QFETCH(bool, bilderRot);
        QFETCH(QString, textVorschau);
        programm_.BilderPfad = bilder == u"CD" ? mitStrich(cd_->pfad()) : bilder;
        programm_.LokaleVorschauBilder = lokal;
        if (vorschauDa)
            Bilderbaum::schreiben(ziel(u"vorschau/topfpflanzen/bou1.jpg"_s), "x"); // one of the two is enough
        frmBilderAssistent form(programm_, liste(), nullptr);
        form.show();
        teil<QPushButton>(form, "cmdErweitert")->click();
        const auto schild = [&](const char *name) { return teil<QLabel>(form, name); };
        QCOMPARE(schild("lblBilderPfad")->text(), textBilder == u"CD" ? cd_->pfad() + u'/' : textBilder);
        QCOMPARE(schild("lblVorschaubilderPfad")->text(), textVorschau == u"VORSCHAU" ? ziel(u"vorschau/"_s) : textVorschau);
        const auto rot = [&](const char *name) { return schild(name)->palette().color(QPalette::WindowText).red() > 150; };
        QCOMPARE(rot("lblBilderPfad"), bilderRot);
        QCOMPARE(rot("lblVorschaubilderPfad"), !vorschauDa);
        // A word beside the colour.
        QCOMPARE(schild("lblBilderPfadFehlt")->isVisible(), bilderRot);
        QCOMPARE(schild("lblVorschaubilderPfadFehlt")->isVisible(), !vorschauDa);
        QCOMPARE(schild("lblBilderPfadFehlt")->text(), u"nicht gefunden"_s);
        QCOMPARE(schild("lblErklaerung")->isVisible(), bilderRot || !vorschauDa);
        QCOMPARE(schild("lblErklaerung")->text(), u"rote Schrift => Bilder im angegebenen Ordner nicht gefunden"_s);
        QCOMPARE(teil<QPushButton>(form, "cmdVorschauBilderErstellen")->isEnabled(), !bilder.isEmpty());
    }

    /// Way 1: the pictures stay on the CD, the previews come from it or are made.
    void vorschauLokal_data()
    {
        QTest::addColumn<QString>("antwort");
        QTest::newRow("the CD's own") << u"Yes"_s;
        QTest::newRow("made") << u"No"_s;
    }
    void vorschauLokal()
    {
        QFETCH(QString, antwort);
        const Antworten antworten({antwort});
        const Hand hand({{assistent, drueckt("cmdVorschlag1")}});
        zeigen();
        QVERIFY(hand.fertig());
        QCOMPARE(antworten.texte, QStringList{u"Verwenden Sie die Bilder von der original Flox-CD?\n(Wenn Sie mit dem Flox-Editor eigene Bilder "
                                              "hinzugefügt haben, dann antworten Sie bitte mit 'Nein'.)"_s});
        QCOMPARE(programm_.BilderPfad, mitStrich(cd_->pfad()));
        QVERIFY(programm_.BilderAufCD && programm_.LokaleVorschauBilder);
        const QStringList da = dateien();
        QCOMPARE(da.size(), anzahlBilder);
        for (const QString &name : da)
            QCOMPARE(QImage(ziel(name)).size(), antwort == u"Yes" ? QSize(200, 150) : QSize(133, 100)); // copied as they are
        QCOMPARE(aktualisiert_, 1);
    }

    void allesVonCd()
    {
        programm_.LokaleVorschauBilder = true;
        const Antworten antworten;
        const Hand hand({{assistent, drueckt("cmdVorschlag2")}});
        zeigen();
        QCOMPARE(antworten.texte, QStringList());
        QCOMPARE(programm_.BilderPfad, mitStrich(cd_->pfad()));
        QVERIFY(programm_.BilderAufCD && !programm_.LokaleVorschauBilder);
        QCOMPARE(aktualisiert_, 1);
        QCOMPARE(dateien(), QStringList());
    }

    void allesLokal_data() { vorschauLokal_data(); }
    void allesLokal()
    {
        QFETCH(QString, antwort);
        const Antworten antworten({antwort});
        const Hand hand({{assistent, drueckt("cmdVorschlag3")}});
        zeigen();
        QCOMPARE(antworten.texte.size(), 1);
        QCOMPARE(programm_.BilderPfad, ziel() + u'\\');
        QVERIFY(!programm_.BilderAufCD && programm_.LokaleVorschauBilder);
        QCOMPARE(dateien().size(), 2 * anzahlBilder);
        QCOMPARE(QImage(ziel(u"vorschau/apfel/boskoop.jpg"_s)).size(), antwort == u"Yes" ? QSize(200, 150) : QSize(133, 100));
        QCOMPARE(aktualisiert_, 1);
    }
    /// The second time the folders exist: declined, it ends in the failure, and the pictures are the CD's.
    void allesLokalZweimal()
    {
        QVERIFY(QDir(ziel()).mkdir(u"obst"_s));
        const Antworten antworten({u"No"_s});
        const Hand hand({{assistent, drueckt("cmdVorschlag3")}});
        zeigen();
        QCOMPARE(antworten.texte.size(), 2);
        QVERIFY(antworten.texte[1].startsWith(u"Leider hat das Kopieren der Flox Bilder-Ordner"_s));
        QCOMPARE(programm_.BilderPfad, mitStrich(cd_->pfad()));
        QVERIFY(programm_.BilderAufCD && !programm_.LokaleVorschauBilder);
        QCOMPARE(dateien(), QStringList());
        QCOMPARE(aktualisiert_, 1);
    }
    void allesLokalInVorhandene()
    {
        Bilderbaum::schreiben(ziel(u"apfel/eigenes.jpg"_s), "meins");
        const Antworten antworten({u"Yes"_s, u"Yes"_s});
        const Hand hand({{assistent, drueckt("cmdVorschlag3")}});
        zeigen();
        QCOMPARE(antworten.texte.size(), 2);
        QCOMPARE(programm_.BilderPfad, ziel() + u'\\');
        QCOMPARE(dateien().size(), 2 * anzahlBilder + 1);
        QCOMPARE(Bilderbaum::inhalt(ziel(u"apfel/eigenes.jpg"_s)), QByteArray("meins"));
    }
    /// Cancelled while the pictures are copied: they are the CD's as before.
    void allesLokalAbgebrochen()
    {
        const Antworten antworten;
        const Hand hand({{assistent, drueckt("cmdVorschlag3")}, {u"frmBilderKopieren"_s, drueckt("cmdAbbrechen")}});
        zeigen();
        QVERIFY(hand.fertig());
        QCOMPARE(antworten.texte, QStringList());
        QCOMPARE(programm_.BilderPfad, mitStrich(cd_->pfad()));
        QVERIFY(programm_.BilderAufCD);
        QVERIFY(dateien().size() < anzahlBilder);
        QCOMPARE(aktualisiert_, 1);
    }

    /// No drive holds the CD: the box comes again until it is there, or until Abbrechen, which leaves everything as it was.
    void ohneCd_data()
    {
        QTest::addColumn<int>("kommtNach"); // boxes; 0: never
        for (const int nach : {0, 1, 3})
            QTest::addRow("%d", nach) << nach;
    }
    void ohneCd()
    {
        QFETCH(int, kommtNach);
        laufwerke_.clear();
        programm_.VermissterBilderPfad = u"/vermisst\\"_s;
        Antworten antworten(kommtNach ? QStringList(kommtNach, u"OK"_s) : QStringList{u"OK"_s, u"OK"_s, u"Cancel"_s});
        antworten.davor = [&] {
            if (antworten.texte.size() == kommtNach)
                laufwerke_ = {cd_->laufwerk()};
        };
        std::vector<std::pair<QString, Hand::Griff>> griffe = {{assistent, drueckt("cmdVorschlag2")}};
        if (!kommtNach)
            griffe.push_back({assistent, drueckt("cmdAbbrechen")}); // the assistant is still there
        const Hand hand(griffe);
        zeigen();
        QCOMPARE(antworten.texte.size(), kommtNach ? kommtNach : 3);
        for (const QString &text : antworten.texte)
            QCOMPARE(text, u"Bitte die richtige CD einlegen!\nDie Flox-CD konnte nicht gefunden werden!"_s);
        QCOMPARE(antworten.angeboten[0], (QStringList{u"OK"_s, u"Cancel"_s}));
        QCOMPARE(programm_.BilderPfad, kommtNach ? mitStrich(cd_->pfad()) : u"/anderswo\\"_s);
        QCOMPARE(programm_.VermissterBilderPfad, kommtNach ? QString() : u"/vermisst\\"_s);
        QCOMPARE(programm_.BilderAufCD, kommtNach > 0);
        QVERIFY(hand.fertig());
        QCOMPARE(aktualisiert_, kommtNach ? 1 : 0);
    }

    /// All three marks are needed; the first drive that has them is taken, floppy drives are not asked.
    void laufwerkswahl()
    {
        const Cd zweite;
        const QTemporaryDir leer;
        const Laufwerk diskette{u"a:/"_s, {}}, ohne{leer.path(), {}};
        laufwerke_ = {diskette, ohne, zweite.laufwerk(), cd_->laufwerk()};
        const Hand hand({{assistent, drueckt("cmdVorschlag2")}});
        zeigen();
        QCOMPARE(programm_.BilderPfad, mitStrich(zweite.pfad()));
        for (const QString &marke : {u"Winflox3.ico"_s, u"stauden/armeria.jpg"_s, u"gehoelze/abies-alba.jpg"_s}) {
            const Cd unvollstaendig;
            QVERIFY(QFile::remove(unvollstaendig.pfad(marke)));
            laufwerke_ = {unvollstaendig.laufwerk(), cd_->laufwerk()};
            const Hand nochmal({{assistent, drueckt("cmdVorschlag2")}});
            zeigen();
            QCOMPARE(programm_.BilderPfad, mitStrich(cd_->pfad()));
        }
    }

    /// Abbrechen, Escape and the close box put back whether the pictures are on the CD; the folder stays.
    void zurueck_data()
    {
        QTest::addColumn<int>("wie");
        QTest::newRow("Abbrechen") << 0;
        QTest::newRow("Escape") << 1;
        QTest::newRow("close box") << 2;
    }
    void zurueck()
    {
        QFETCH(int, wie);
        for (const bool vorher : {false, true}) {
            programm_.BilderAufCD = vorher;
            programm_.BilderPfad = vorher ? u"/anderswo\\"_s : mitStrich(cd_->pfad());
            const Hand hand({{assistent, drueckt("cmdErweitert")},
                             {assistent, drueckt("cmdBilderPfadAendern")},
                             {suche, drueckt("cmdAbbrechen")},
                             {assistent, [&](QWidget *form) {
                                  // The marks of the folder count, whatever was said before.
                                  auf_ = programm_.BilderAufCD;
                                  if (wie == 0)
                                      hand::druecken(form, "cmdAbbrechen");
                                  else if (wie == 1)
                                      QTest::keyClick(form, Qt::Key_Escape);
                                  else
                                      form->close();
                                  return true;
                              }}});
            zeigen();
            QVERIFY(hand.fertig());
            QCOMPARE(auf_, !vorher);
            QCOMPARE(programm_.BilderAufCD, vorher);
            QCOMPARE(aktualisiert_, 0);
        }
    }

    /// The second page's two steps; the windows follow when the assistant is gone.
    void erweitert()
    {
        const QString bilder = cd_->pfad();
        const Antworten antworten;
        const Hand hand({{assistent, drueckt("cmdErweitert")},
                         {assistent, drueckt("cmdBilderPfadAendern")},
                         {suche,
                          [&](QWidget *form) {
            auto *pfad = teil<QLineEdit>(*form, "txtFloxBildVerzeichnis");
            pfad->setFocus();
            pfad->selectAll();
            QTest::keyClicks(pfad, bilder);
            hand::druecken(form, "cmdOK");
            return true;
                          }},
                         {assistent, drueckt("cmdVorschauBilderErstellen")},
                         {assistent,
                          [&](QWidget *form) {
            schild_ = teil<QLabel>(*form, "lblVorschaubilderPfad")->text();
            return schild_.endsWith(u'/'); // the labels follow when the form is gone
                          }},
                        {assistent, drueckt("cmdAbbrechen")}});
        zeigen();
        QVERIFY(hand.fertig());
        QCOMPARE(antworten.texte, QStringList());
        QCOMPARE(programm_.BilderPfad, mitStrich(bilder));
        QCOMPARE(schild_, ziel(u"vorschau/"_s));
        QVERIFY(programm_.LokaleVorschauBilder);
        QCOMPARE(dateien().size(), anzahlBilder);
        QCOMPARE(aktualisiert_, 1);
    }

    /// The whole assistant without a mouse.
    void nurTastatur()
    {
        const auto taste = [](Qt::Key welche) {
            return [welche](QWidget *) {
                hand::taste(welche);
                return true;
            };
        };
        const auto steht = [](const char *name) {
            return [name](QWidget *) { return QApplication::focusWidget() && QApplication::focusWidget()->objectName() == QLatin1String(name); };
        };
        // What a window manager does when the form above is gone.
        const auto wiederVorn = [](QWidget *form) {
            form->activateWindow();
            return QApplication::focusWidget() && QApplication::focusWidget()->objectName() == u"cmdBilderPfadAendern";
        };
        const Hand hand({{assistent, steht("cmdVorschlag1")},
                         {assistent, taste(Qt::Key_Tab)},
                         {assistent, steht("cmdVorschlag2")},
                         {assistent, taste(Qt::Key_Tab)},
                         {assistent, steht("cmdVorschlag3")},
                         {assistent, taste(Qt::Key_Tab)},
                         {assistent, steht("cmdErweitert")},
                         {assistent, taste(Qt::Key_Space)},
                         {assistent, taste(Qt::Key_Tab)},
                         {assistent, steht("cmdAbbrechen")},
                         {assistent, taste(Qt::Key_Tab)},
                         {assistent, steht("cmdBilderPfadAendern")},
                         {assistent, taste(Qt::Key_Space)},
                         {suche, steht("drvLaufwerk")},
                         {suche, taste(Qt::Key_Down)},
                         {suche, taste(Qt::Key_Return)},
                         {assistent, wiederVorn},
                         {assistent, taste(Qt::Key_Tab)},
                         {assistent, steht("cmdVorschauBilderErstellen")},
                         {assistent, taste(Qt::Key_Tab)},
                         {assistent, steht("cmdErweitert")},
                         {assistent, taste(Qt::Key_Space)},
                         {assistent, taste(Qt::Key_Backtab)},
                         {assistent, steht("cmdVorschlag3")},
                         {assistent, taste(Qt::Key_Up)},
                         {assistent, steht("cmdVorschlag2")},
                         {assistent, taste(Qt::Key_Return)}});
        zeigen();
        QVERIFY(hand.fertig());
        QCOMPARE(programm_.BilderPfad, mitStrich(cd_->pfad()));
        QVERIFY(programm_.BilderAufCD);
        QCOMPARE(aktualisiert_, 1);
    }

    void ordnersuche()
    {
        frmBilderSuche form(programm_, liste(), nullptr);
        QCOMPARE(form.windowTitle(), u"Flox-Bilder suchen"_s);
        auto *pfad = teil<QLineEdit>(form, "txtFloxBildVerzeichnis");
        auto *gefunden = teil<QLabel>(form, "lblGefunden");
        auto *cmdOK = teil<QPushButton>(form, "cmdOK");
        auto *laufwerk = teil<QListWidget>(form, "drvLaufwerk");
        QCOMPARE(gefunden->text(), u"nicht gefunden"_s);
        QVERIFY(!cmdOK->isEnabled());
        QCOMPARE(laufwerk->count(), 2); // the disk and the CD
        laufwerk->setCurrentRow(1);
        QCOMPARE(pfad->text(), cd_->pfad() + u'/');
        QCOMPARE(gefunden->text(), u"gefunden"_s);
        QVERIFY(cmdOK->isEnabled());
        pfad->setText(cd_->pfad(u"obst"_s));
        QCOMPARE(gefunden->text(), u"nicht gefunden"_s);
        QVERIFY(!cmdOK->isEnabled());
        // Both marks are needed.
        pfad->setText(cd_->pfad());
        QVERIFY(cmdOK->isEnabled());
        QVERIFY(QFile::remove(cd_->pfad(u"stauden/caltha.jpg"_s)));
        pfad->setText(cd_->pfad() + u"/"_s);
        QVERIFY(!cmdOK->isEnabled());
    }
    /// A folder of the tree is the path; what was typed is the folder of the tree.
    void ordnerbaum()
    {
        frmBilderSuche form(programm_, liste(), nullptr);
        form.show();
        auto *pfad = teil<QLineEdit>(form, "txtFloxBildVerzeichnis");
        auto *baum = teil<QTreeView>(form, "dirVerzeichnisse");
        auto *modell = qobject_cast<QFileSystemModel *>(baum->model());
        teil<QListWidget>(form, "drvLaufwerk")->setCurrentRow(1);
        QTRY_COMPARE(modell->rowCount(baum->rootIndex()), 6);
        baum->setCurrentIndex(modell->index(cd_->pfad(u"stauden"_s)));
        QCOMPARE(pfad->text(), cd_->pfad(u"stauden/"_s));
        pfad->setFocus();
        pfad->setText(cd_->pfad(u"obst"_s));
        QTest::keyClick(pfad, Qt::Key_Return);
        QCOMPARE(pfad->text(), cd_->pfad(u"obst/"_s));
        QCOMPARE(modell->filePath(baum->currentIndex()), cd_->pfad(u"obst"_s));
    }
    /// The mark of the CD in the chosen folder decides, wherever that lies.
    void ordnerGewaehlt_data()
    {
        QTest::addColumn<bool>("mitMarke");
        QTest::newRow("with the mark") << true;
        QTest::newRow("without") << false;
    }
    void ordnerGewaehlt()
    {
        QFETCH(bool, mitMarke);
        if (!mitMarke)
            QVERIFY(QFile::remove(cd_->pfad(u"Winflox3.ico"_s)));
        programm_.BilderAufCD = !mitMarke;
        programm_.VermissterBilderPfad = u"/vermisst\\"_s;
        frmBilderSuche form(programm_, liste(), nullptr);
        teil<QLineEdit>(form, "txtFloxBildVerzeichnis")->setText(cd_->pfad());
        teil<QPushButton>(form, "cmdOK")->click();
        QCOMPARE(form.result(), int(QDialog::Accepted));
        QCOMPARE(programm_.BilderPfad, cd_->pfad() + u'\\');
        QCOMPARE(programm_.BilderAufCD, mitMarke);
        QVERIFY(programm_.VermissterBilderPfad.isEmpty());
    }
    /// A drive whose disc is gone when it is chosen.
    void laufwerkNichtBereit()
    {
        laufwerke_ = {{u"/gibt/es/nicht"_s, u"WEG"_s}, cd_->laufwerk()};
        frmBilderSuche form(programm_, liste(), nullptr);
        form.show();
        const Antworten antworten;
        auto *laufwerk = teil<QListWidget>(form, "drvLaufwerk");
        laufwerk->setCurrentRow(2);
        QCOMPARE(antworten.texte, QStringList());
        laufwerk->setCurrentRow(1);
        QCOMPARE(antworten.texte, QStringList{u"Laufwerk nicht bereit!"_s});
        QCOMPARE(laufwerk->currentRow(), 2); // back on the one before
        QCOMPARE(teil<QLineEdit>(form, "txtFloxBildVerzeichnis")->text(), cd_->pfad() + u'/');
        // The mouse selects its line when the message has gone.
        QTest::mouseClick(laufwerk->viewport(), Qt::LeftButton, {}, laufwerk->visualItemRect(laufwerk->item(1)).center());
        QCOMPARE(antworten.texte.size(), 2);
        QTRY_COMPARE(laufwerk->currentRow(), 2);
        QTRY_COMPARE(laufwerk->selectedItems(), QList{laufwerk->item(2)});
    }
    /// A folder whose name only begins like a drive's does not lie on it.
    void laufwerkMitGleichemAnfang_data()
    {
        QTest::addColumn<QString>("ordner");
        QTest::addColumn<int>("zeile");
        QTest::newRow("länger") << u"Bilder"_s << 0;
        QTest::newRow("das Laufwerk selbst") << u"Bild"_s << 1;
        QTest::newRow("darauf") << u"Bild/er"_s << 1;
    }
    void laufwerkMitGleichemAnfang()
    {
        QFETCH(QString, ordner);
        laufwerke_ = {{ziel(u"Bild"_s), u"BILD"_s}};
        QVERIFY(QDir(ziel()).mkpath(u"Bild"_s) && QDir(ziel()).mkpath(ordner));
        programm_.BilderPfad = ziel(ordner);
        frmBilderSuche form(programm_, liste(), nullptr);
        QTEST(teil<QListWidget>(form, "drvLaufwerk")->currentRow(), "zeile");
    }

private:
    template<typename T>
    static T *teil(const QWidget &form, const char *name)
    {
        return form.findChild<T *>(QString::fromLatin1(name));
    }
    QString ziel(const QString &datei = {}) const { return datei.isEmpty() ? programmordner_->path() : programmordner_->filePath(datei); }
    QStringList dateien() const
    {
        QStringList alle;
        for (QDirIterator i(ziel(), QDir::Files | QDir::Hidden, QDirIterator::Subdirectories); i.hasNext();)
            alle.append(QDir(ziel()).relativeFilePath(i.next()));
        return alle;
    }
    /// The drives are asked for anew at every look.
    Laufwerksliste liste()
    {
        return [this] {
            ++gefragt_;
            return laufwerke_;
        };
    }
    void zeigen()
    {
        QWidget fenster;
        fenster.show();
        bilderAssistent(
            programm_, liste(), u"Windows XP"_s, [this] { ++aktualisiert_; }, &fenster);
    }

    std::optional<QTemporaryDir> programmordner_;
    std::optional<Cd> cd_;
    std::vector<Laufwerk> laufwerke_;
    Programm programm_;
    int gefragt_ = 0, aktualisiert_ = 0;
    bool auf_ = false;
    QString schild_;
};

FLOX_TEST(tst_bilderassistent, TestBilderassistent)
#include "tst_bilderassistent.moc"
