#include "Formhand.h"
#include "Handgriffe.h"
#include "Rahmenprobe.h"

#include "filters/Filterdialog.h"
#include "frame/Ablauf.h"
#include "frame/frmDBWahl.h"
#include "pictures/frmUebersicht.h"
#include "printing/frmDrucken.h"
#include "printing/frmTabelle.h"
#include "tests/Testprogramm.h"

#include <QClipboard>
#include <QComboBox>
#include <QFileDialog>
#include <QLabel>
#include <QImage>
#include <QLineEdit>
#include <QListView>
#include <QMimeData>
#include <QPrinterInfo>
#include <QRadioButton>
#include <QStatusBar>
#include <QTabBar>
#include <QTabWidget>
#include <QTest>
#include <QWindow>

using namespace Qt::StringLiterals;

/* What users come for, done as they do it, from the chooser on. Each task is bounded in its actions, and what it was for must be read on
   the screen in the end. */

namespace {

/// A hand that counts: a click, a key, a word typed is one action. It reaches only what can be seen and is not locked.
class Hand
{
public:
    int schritte = 0;

    void klick(QWidget *ziel, QPoint stelle)
    {
        ++schritte;
        QWidget *fenster = ziel->window();
        const QPoint ort = ziel->mapTo(fenster, stelle);
        const QWidget *dort = fenster->childAt(ort);
        QVERIFY2(ziel->isVisible() && ziel->isEnabled() && dort && (dort == ziel || ziel->isAncestorOf(dort)),
                 qPrintable(u"'%1' cannot be clicked"_s.arg(ziel->objectName())));
        QTest::mouseMove(fenster->windowHandle(), ort);
        QTest::mouseClick(fenster->windowHandle(), Qt::LeftButton, {}, ort);
        QCoreApplication::processEvents();
    }
    /// In the middle; boxes and radio buttons where their mark is.
    void klick(QWidget *fenster, const char *name)
    {
        auto *ziel = fenster->findChild<QWidget *>(QLatin1String(name));
        QVERIFY2(ziel, name);
        const bool marke = qobject_cast<QCheckBox *>(ziel) || qobject_cast<QRadioButton *>(ziel);
        klick(ziel, marke ? QPoint(8, ziel->height() / 2) : ziel->rect().center());
    }
    void reiter(QWidget *fenster, const char *name, const QString &text)
    {
        QTabBar *leiste = fenster->findChild<QTabWidget *>(QLatin1String(name))->tabBar();
        for (int i = 0; i < leiste->count(); ++i)
            if (leiste->tabText(i).remove(u'&').startsWith(text))
                return klick(leiste, leiste->tabRect(i).center());
        QFAIL(qPrintable(u"There is no tab '%1'"_s.arg(text)));
    }
    void taste(Qt::Key taste, Qt::KeyboardModifiers umschalter = Qt::NoModifier)
    {
        ++schritte;
        druck(taste, {}, umschalter);
        QCoreApplication::processEvents();
    }
    void tippen(const QString &worte)
    {
        schritte += int(worte.count(u' ')) + 1;
        for (const QChar zeichen : worte)
            druck(zeichen == u' ' ? Qt::Key_Space : Qt::Key(zeichen.toUpper().unicode()), zeichen, {});
        QCoreApplication::processEvents();
    }

    QWidget *hauptfenster = nullptr;

private:
    /// Who should have the keyboard where that is not for the toolkit to say.
    QWidget *vordergrund() const
    {
        if (QApplication::activeModalWidget() || QGuiApplication::focusWindow())
            return QApplication::activeModalWidget();
        for (QWidget *fenster : QApplication::topLevelWidgets())
            if (fenster->isVisible() && fenster->windowType() == Qt::Dialog)
                return fenster;
        return hauptfenster;
    }
    void druck(Qt::Key taste, const QString &text, Qt::KeyboardModifiers umschalter)
    {
        // A window manager gives the keyboard to the dialog in front, and back when a popup or dialog goes.
        if (QWidget *vorn = vordergrund(); vorn && !QApplication::activePopupWidget()) {
            vorn->activateWindow();
            QTRY_COMPARE(QGuiApplication::focusWindow(), vorn->windowHandle());
        }
        QVERIFY(QGuiApplication::focusWindow());
        QTest::sendKeyEvent(QTest::Click, QGuiApplication::focusWindow(), taste, text, umschalter);
    }
};

bool zuSehen(const QWidget *control)
{
    // What a list or a text box shows is seen in its viewport.
    const auto *rolle = qobject_cast<const QAbstractScrollArea *>(control);
    return control->isVisible() && !(rolle ? rolle->viewport() : control)->visibleRegion().isEmpty();
}

/// The texts that can be seen in a window or a part of one.
QStringList gelesen(const QWidget *ort)
{
    QStringList texte;
    for (const QWidget *control : ort->findChildren<QWidget *>()) {
        if (!zuSehen(control) || control->window() != ort->window())
            continue;
        if (auto *schild = qobject_cast<const QLabel *>(control)) {
            texte += schild->text();
        } else if (auto *kasten = qobject_cast<const QComboBox *>(control)) {
            texte += kasten->currentText();
        } else if (auto *leiste = qobject_cast<const QStatusBar *>(control)) {
            texte += leiste->currentMessage();
        } else if (auto *liste = qobject_cast<const QAbstractItemView *>(control)) {
            for (int i = 0; i < liste->model()->rowCount(liste->rootIndex()); ++i)
                if (const QModelIndex zeile = liste->model()->index(i, 0, liste->rootIndex());
                    liste->viewport()->rect().intersects(liste->visualRect(zeile)))
                    texte += zeile.data().toString();
        } else if (control->property("plainText").isValid()) {
            texte += control->property("plainText").toString();
        }
    }
    texte.removeAll(QString());
    return texte;
}

bool zeigt(const QWidget *ort, const QString &text)
{
    return ort && ort->isVisible() && std::ranges::any_of(gelesen(ort), [&](const QString &zeile) { return zeile.contains(text); });
}

/// Works the next form of a kind. One that does not go by that is left, so that the test goes on.
template<typename Form>
Formhand<Form> dialoghand(std::function<void(Form &)> tat)
{
    return Formhand<Form>([tat = std::move(tat)](Form &form) {
        const QPointer<Form> noch(&form);
        tat(form);
        if (!noch || !noch->isVisible())
            return;
        static_cast<QDialog *>(noch)->reject();
        QFAIL("The form stays.");
    });
}

} // namespace

class TestAufgaben : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { oberflaecheEinrichten(); }
    void init();
    void cleanupTestCase() { QDir::setCurrent(QCoreApplication::applicationDirPath()); }
    void aufgaben_data();
    void aufgaben();

private:
    using Weg = void (TestAufgaben::*)();
    struct Aufgabe
    {
        const char *name;
        Sparte sparte;
        Weg weg;
        int hoechstens;       ///< actions, with the choice of the Sparte
        Weg vorher = nullptr; ///< what was done on an earlier day
    };
    static std::span<const Aufgabe> aufgabenliste();

    void aepfelGegenSchorf();
    void filterVonGestern();
    void gesternGespeichert();
    void lawendel();
    void giftigAmSchattigenBalkon();
    void blattDrucken();
    void aepfelVergleichen();
    void kopieren();
    void fuenfUeben();
    void bilderDerBirken();
    void birkenbilder();
    void zurueck();
    void notizWiederfinden();
    void listeAlsTabelle();

    template<typename Form>
    static Form *sichtbar()
    {
        for (QWidget *fenster : QApplication::allWidgets())
            if (auto *gesucht = qobject_cast<Form *>(fenster); gesucht && gesucht->isVisible())
                return gesucht;
        return nullptr;
    }
    Pflanzenfenster *fenster(int nummer = 1) { return ablauf_->zentrale().fenster(sparte_, nummer); }
    /// Ctrl+F, words, and the list below them has a line with `text`.
    void suchen(const QString &worte, const QString &text);
    /// The same, and Enter goes to the plant of the first line.
    void aufsuchen(const QString &worte, const QString &name);
    /// What the status bar says of the present set.
    QString auswahl() { return fenster()->findChild<QLabel *>(u"stbAnzeige_1"_s)->text(); }
    /// The filter dialog, opened by its button.
    Filterdialog *filtern()
    {
        hand_.klick(fenster(), "cmdFilter");
        // The screen of the tests is a small one.
        fenster()->filterdialog()->resize(1004, 600);
        QCoreApplication::processEvents();
        return fenster()->filterdialog();
    }
    /// Of the working database.
    QStringList namen(const QString &tabelle, const QString &bedingung);

    std::unique_ptr<Ablage> ablage_;
    std::unique_ptr<Programmordner> ordner_;
    std::unique_ptr<Ablauf> ablauf_;
    Sparte sparte_ = Sparte::Topf;
    Hand hand_;
};

std::span<const TestAufgaben::Aufgabe> TestAufgaben::aufgabenliste()
{
    static constexpr Aufgabe alle[] = {
        {"apples that resist scab", Sparte::Apfel, &TestAufgaben::aepfelGegenSchorf, 5},
        {"yesterday's filter", Sparte::Stauden, &TestAufgaben::filterVonGestern, 5, &TestAufgaben::gesternGespeichert},
        {"a name heard, not read", Sparte::Stauden, &TestAufgaben::lawendel, 4},
        {"what is poisonous on the shady balcony", Sparte::Topf, &TestAufgaben::giftigAmSchattigenBalkon, 8},
        {"a sheet for the folder", Sparte::Gehoelze, &TestAufgaben::blattDrucken, 7},
        {"two apples side by side", Sparte::Apfel, &TestAufgaben::aepfelVergleichen, 9},
        {"a record for the herbarium", Sparte::Gehoelze, &TestAufgaben::kopieren, 5},
        {"five plants before the bus comes", Sparte::Topf, &TestAufgaben::fuenfUeben, 17},
        {"all pictures of birches", Sparte::Gehoelze, &TestAufgaben::bilderDerBirken, 7, &TestAufgaben::birkenbilder},
        {"the plant before", Sparte::Stauden, &TestAufgaben::zurueck, 8},
        {"a note found again", Sparte::Stauden, &TestAufgaben::notizWiederfinden, 12},
        {"a list for the office", Sparte::Friedhof, &TestAufgaben::listeAlsTabelle, 11},
    };
    return alle;
}

void TestAufgaben::init()
{
    ablauf_.reset();
    ordner_.reset();
    ablage_ = std::make_unique<Ablage>();
    ordner_ = std::make_unique<Programmordner>();
    ablauf_ = std::make_unique<Ablauf>();
    Programm &programm = ablauf_->programm();
    programm = ordner_->programm();
    programm.MdiStatus = 0;
    programm.MdiBreite = 1300 * 15;
    programm.MdiHoehe = 800 * 15;
    // Where files are looked for and kept.
    QVERIFY(QDir::setCurrent(ordner_->pfad()));
    hand_ = {};
}

void TestAufgaben::aufgaben_data()
{
    QTest::addColumn<int>("nummer");
    int nummer = 0;
    for (const Aufgabe &aufgabe : aufgabenliste())
        QTest::newRow(aufgabe.name) << nummer++;
}

void TestAufgaben::aufgaben()
{
    QFETCH(const int, nummer);
    const Aufgabe &aufgabe = aufgabenliste()[size_t(nummer)];
    sparte_ = aufgabe.sparte;
    if (aufgabe.vorher)
        (this->*aufgabe.vorher)();
    ablauf_->programm().StartPhase = true;
    ablauf_->wahlZeigen();
    const QPointer<frmDBWahl> wahl = sichtbar<frmDBWahl>();
    QVERIFY(wahl && QTest::qWaitForWindowActive(wahl));
    const Meldungsfaenger meldungen;

    hand_.klick(wahl, eintrag(sparte_).wahlknopf);
    QTRY_VERIFY(!wahl);
    QVERIFY(fenster());
    hand_.hauptfenster = &ablauf_->zentrale();
    ablauf_->programm().DruckOrdner = ablauf_->programm().BilderPfad = ordner_->pfad();
    QVERIFY(QTest::qWaitForWindowActive(hand_.hauptfenster));
    (this->*aufgabe.weg)();
    if (QTest::currentTestFailed())
        return;
    QCOMPARE(meldungen.texte, QStringList());
    QVERIFY2(hand_.schritte <= aufgabe.hoechstens, qPrintable(u"%1 actions"_s.arg(hand_.schritte)));
    // A bound that is never reached bounds nothing.
    QCOMPARE(hand_.schritte, aufgabe.hoechstens);
}

void TestAufgaben::suchen(const QString &worte, const QString &text)
{
    hand_.taste(Qt::Key_F, Qt::ControlModifier);
    auto *suche = sichtbar<frmSuche>();
    QVERIFY(suche);
    hand_.tippen(worte);
    QTRY_VERIFY2(zeigt(suche, text), qPrintable(gelesen(suche).join(u'|')));
}

void TestAufgaben::aufsuchen(const QString &worte, const QString &name)
{
    suchen(worte, name);
    hand_.taste(Qt::Key_Return);
    QVERIFY(!sichtbar<frmSuche>());
    QVERIFY2(zeigt(fenster(), name), qPrintable(gelesen(fenster()).join(u'|')));
}

QStringList TestAufgaben::namen(const QString &tabelle, const QString &bedingung)
{
    QStringList alle;
    const auto db = ordner_->db();
    Anweisung &anweisung = db->vorbereitet(u"SELECT BOT_NAME FROM %1 WHERE %2 ORDER BY BOT_NAME"_s.arg(tabelle, bedingung));
    while (anweisung.schritt())
        alle += anweisung.text(0);
    if (alle.isEmpty())
        qFatal("No plant is asked for.");
    return alle;
}

void TestAufgaben::aepfelGegenSchorf()
{
    suchen(u"schorf widerst"_s, u"Im Text"_s);
    const QStringList zeilen = gelesen(sichtbar<frmSuche>());
    for (const QString &name : namen(u"Apfel"_s, u"besonderht LIKE '*Schorf*' AND besonderht LIKE '*widerst*'"_s))
        QVERIFY2(std::ranges::any_of(zeilen,
                                     [&](const QString &zeile) { return zeile.startsWith(name) && zeile.contains(u"schorf", Qt::CaseInsensitive); }),
                 qPrintable(name + u": "_s + zeilen.join(u'|')));
    hand_.taste(Qt::Key_Return);
    QVERIFY2(zeigt(fenster(), u"Ananasrenette"_s), qPrintable(gelesen(fenster()).join(u'|')));
}

void TestAufgaben::gesternGespeichert()
{
    ablauf_->zentrale().show();
    ablauf_->zentrale().FensterOeffnen(sparte_);
    Filterdialog *dialog = fenster()->filterdialog();
    dialog->findChild<QLineEdit *>(u"txtbotName"_s)->setText(u"Hosta"_s);
    dialog->FilterSpeichern(ordner_->pfad(u"Funkien.ffs"_s));
    hand::schliessen(fenster());
    ablauf_->zentrale().hide();
}

void TestAufgaben::filterVonGestern()
{
    auto datei = dialoghand<QFileDialog>([this](QFileDialog &dialog) {
        // Chosen in the list: names that complete what is typed would take the next key.
        auto *liste = dialog.findChild<QAbstractItemView *>(u"treeView"_s);
        QTRY_VERIFY(zeigt(&dialog, u"Funkien.ffs"_s));
        for (int i = 0; i < liste->model()->rowCount(liste->rootIndex()); ++i)
            if (const QModelIndex zeile = liste->model()->index(i, 0, liste->rootIndex()); zeile.data().toString() == u"Funkien.ffs")
                hand_.klick(liste->viewport(), liste->visualRect(zeile).center());
        hand_.taste(Qt::Key_Return);
    });
    hand_.klick(fenster(), "cmdFilterLaden");
    QVERIFY(datei.kam);
    Filterdialog *dialog = fenster()->filterdialog();
    QTRY_VERIFY2(zeigt(dialog, u"Pflanzen"_s), qPrintable(gelesen(dialog).join(u'|')));
    hand_.taste(Qt::Key_Return);
    QVERIFY2(auswahl().contains(u"Hosta"_s), qPrintable(auswahl()));
    QVERIFY2(zeigt(fenster(), u"Hosta"_s), qPrintable(gelesen(fenster()).join(u'|')));
}

void TestAufgaben::lawendel()
{
    suchen(u"lawendel"_s, u"Ähnlich geschrieben"_s);
    hand_.taste(Qt::Key_Return);
    QVERIFY2(zeigt(fenster(), u"Lavandula angustifolia"_s), qPrintable(gelesen(fenster()).join(u'|')));
}

void TestAufgaben::giftigAmSchattigenBalkon()
{
    Filterdialog *dialog = filtern();
    hand_.klick(dialog, "chkGift");
    hand_.reiter(dialog, "SSTab1", u"Standort"_s);
    hand_.klick(dialog, "imgLicht_2");
    hand_.reiter(dialog, "SSTab1", u"Verwendung"_s);
    hand_.klick(dialog, "imgVerwendung_5");
    const QStringList erwartet = namen(u"Topfpfl"_s, u"GIFTIG = 'True' AND substr(SONNE, 3, 1) = '1' AND substr(VERWENDUNG, 6, 1) = '1'"_s);
    QTRY_VERIFY2(zeigt(dialog, u"%1 Pflanzen"_s.arg(erwartet.size())), qPrintable(gelesen(dialog).join(u'|')));
    hand_.klick(dialog, "cmdOK");
    for (const char *wort : {"Giftpflanze", "schattig", "Balkon"})
        QVERIFY2(auswahl().contains(QLatin1String(wort)), qPrintable(auswahl()));
    QStringList gezeigt;
    auto *cboArten = fenster()->findChild<QComboBox *>(u"cboArten"_s);
    for (int i = 0; i < cboArten->count(); ++i)
        gezeigt += cboArten->itemText(i);
    QCOMPARE(gezeigt, erwartet);
}

void TestAufgaben::blattDrucken()
{
    if (!QPrinterInfo::availablePrinterNames().isEmpty())
        QSKIP("A printer is installed; nothing is sent to it.");
    aufsuchen(u"ginkgo"_s, u"Ginkgo biloba"_s);
    auto druck = dialoghand<frmDrucken>([this](frmDrucken &form) {
        QTRY_VERIFY(zeigt(&form, u"Seite 1 von"_s));
        auto datei = dialoghand<QFileDialog>([this](QFileDialog &) { hand_.taste(Qt::Key_Return); });
        hand_.taste(Qt::Key_Return);
        QVERIFY(datei.kam);
    });
    hand_.taste(Qt::Key_P, Qt::ControlModifier);
    QVERIFY(druck.kam);
    QVERIFY(zeigt(hand_.hauptfenster, u"Gespeichert: "_s));
    QVERIFY(QFileInfo(ordner_->pfad(u"Ginkgo biloba.pdf"_s)).size() > 0);
}

void TestAufgaben::aepfelVergleichen()
{
    aufsuchen(u"boskoop"_s, u"Boskoop"_s);
    hand_.taste(Qt::Key_C, Qt::ControlModifier | Qt::ShiftModifier);
    QVERIFY(fenster(2));
    hand_.taste(Qt::Key_L, Qt::ControlModifier);
    suchen(u"elstar"_s, u"Elstar"_s);
    hand_.taste(Qt::Key_Return);
    QVERIFY(zeigt(fenster(1), u"Boskoop"_s));
    QVERIFY(zeigt(fenster(2), u"Elstar"_s));
    // What differs stands out where it can be seen, in both.
    for (const int nummer : {1, 2}) {
        int farbig = 0;
        for (const QWidget *feld : fenster(nummer)->findChildren<QWidget *>())
            farbig += feld->property("verschieden").toBool() && !feld->visibleRegion().isEmpty();
        QVERIFY(farbig > 0);
    }
}

void TestAufgaben::kopieren()
{
    aufsuchen(u"eibe"_s, u"Taxus baccata"_s);
    hand_.taste(Qt::Key_A, Qt::ControlModifier | Qt::ShiftModifier);
    QVERIFY(zeigt(fenster(), u"in der Zwischenablage"_s));
    const QMimeData *inhalt = QGuiApplication::clipboard()->mimeData();
    QVERIFY(inhalt->text().contains(u"Taxus baccata"_s));
    QVERIFY(inhalt->html().contains(u"<table"_s));
}

void TestAufgaben::fuenfUeben()
{
    hand_.taste(Qt::Key_F9);
    QVERIFY2(auswahl().startsWith(u"Üben"_s), qPrintable(auswahl()));
    QStringList gesehen;
    for (int i = 0; i < 5; ++i) {
        if (i > 0)
            hand_.taste(Qt::Key_PageDown);
        const QString name = fenster()->Auslesen(u"BOT_NAME"_s);
        QVERIFY(!gesehen.contains(name));
        gesehen += name;
        QVERIFY(!zeigt(fenster(), name));
        hand_.taste(Qt::Key_Space);
        QVERIFY(zeigt(fenster(), name));
        hand_.taste(Qt::Key_T, Qt::AltModifier);
        QTRY_VERIFY2(zeigt(fenster(), u"wiederholen"_s), qPrintable(gelesen(fenster()).join(u'|')));
    }
    hand_.taste(Qt::Key_Escape);
    QVERIFY(!fenster()->uebt());
}

void TestAufgaben::birkenbilder()
{
    QImage bild(80, 60, QImage::Format_RGB32);
    bild.fill(Qt::darkGreen);
    // What tells that a folder is one of pictures.
    const QString ordner = ordner_->pfad(u"gehoelze"_s), topf = ordner_->pfad(u"topfpflanzen"_s);
    QVERIFY(QDir().mkpath(ordner) && QDir().mkpath(topf));
    for (const char *probe : {"begonia-rex", "bougainvillea-glabra"})
        QVERIFY(bild.save(u"%1/%2.jpg"_s.arg(topf, QLatin1String(probe)), "JPG"));
    const auto db = ordner_->db();
    Anweisung &dateien = db->vorbereitet(u"SELECT \"BILD1-G\" FROM Gehoelze_Bilder WHERE BotName LIKE 'Betula*'"_s);
    while (dateien.schritt())
        QVERIFY(bild.save(ordner + u'/' + dateien.text(0) + u".jpg"_s, "JPG"));
}

void TestAufgaben::bilderDerBirken()
{
    Filterdialog *dialog = filtern();
    hand_.reiter(dialog, "SSTab1", u"Textsuche"_s);
    hand_.klick(dialog, "txtbotName");
    hand_.tippen(u"betula"_s);
    hand_.taste(Qt::Key_Return);
    hand_.taste(Qt::Key_U, Qt::ControlModifier);
    auto *seite = sichtbar<frmUebersicht>();
    QVERIFY(seite);
    const qsizetype anzahl = namen(u"Gehoelze"_s, u"BOT_NAME LIKE 'Betula*' AND bewertung >= 5"_s).size();
    QTRY_VERIFY2(zeigt(seite, u"%1 Bilder von %1 Pflanzen"_s.arg(anzahl)), qPrintable(gelesen(seite).join(u'|')));
    QVERIFY2(zeigt(seite, u"Betula pendula"_s), qPrintable(gelesen(seite).join(u'|')));
}

void TestAufgaben::zurueck()
{
    aufsuchen(u"sieboldiana"_s, u"Hosta sieboldiana"_s);
    aufsuchen(u"iris"_s, u"Iris"_s);
    hand_.taste(Qt::Key_Left, Qt::AltModifier);
    QVERIFY2(zeigt(fenster(), u"Hosta sieboldiana"_s), qPrintable(gelesen(fenster()).join(u'|')));
}

void TestAufgaben::notizWiederfinden()
{
    aufsuchen(u"waldsteinia"_s, u"Waldsteinia"_s);
    hand_.reiter(fenster(), "tabStauden", u"Benutzer"_s);
    auto *notiz = fenster()->findChild<QPlainTextEdit *>(u"txtEigeneBemerkung"_s);
    hand_.klick(notiz->viewport(), notiz->viewport()->rect().center());
    hand_.tippen(u"vor Reihengrab"_s);
    hand_.taste(Qt::Key_PageDown, Qt::ControlModifier);
    QVERIFY(!zeigt(fenster(), u"Reihengrab"_s));
    suchen(u"reiheng"_s, u"Eigene Bemerkung: vor Reihengrab"_s);
    hand_.taste(Qt::Key_Return);
    QVERIFY2(zeigt(fenster(), u"Waldsteinia"_s), qPrintable(gelesen(fenster()).join(u'|')));
    QVERIFY(zeigt(fenster(), u"vor Reihengrab"_s));
}

void TestAufgaben::listeAlsTabelle()
{
    Filterdialog *dialog = filtern();
    hand_.reiter(dialog, "SSTab1", u"Standort"_s);
    hand_.klick(dialog, "imgLicht_2");
    hand_.klick(dialog, "cmdOK");
    const int anzahl = fenster()->Anzahl;
    QVERIFY2(auswahl().contains(u"schattig – %1 von"_s.arg(anzahl)), qPrintable(auswahl()));
    auto druck = dialoghand<frmDrucken>([this](frmDrucken &form) {
        hand_.klick(&form, "optDruckFrage_1");
        auto spalten = dialoghand<frmTabelle>([this](frmTabelle &) { hand_.taste(Qt::Key_Return); });
        auto datei = dialoghand<QFileDialog>([this](QFileDialog &) {
            hand_.tippen(u"Schatten.csv"_s);
            hand_.taste(Qt::Key_Return);
        });
        hand_.klick(&form, "cmdTabelle");
        QVERIFY(spalten.kam && datei.kam);
    });
    hand_.taste(Qt::Key_P, Qt::ControlModifier);
    QVERIFY(druck.kam);
    QVERIFY(zeigt(hand_.hauptfenster, u"Schatten.csv"_s));
    QFile datei(ordner_->pfad(u"Schatten.csv"_s));
    QVERIFY(datei.open(QIODevice::ReadOnly | QIODevice::Text));
    const QStringList zeilen = QString::fromUtf8(datei.readAll()).split(u'\n', Qt::SkipEmptyParts);
    QCOMPARE(zeilen.size(), anzahl + 1);
}

FLOX_TEST(tst_aufgaben, TestAufgaben)
#include "tst_aufgaben.moc"
