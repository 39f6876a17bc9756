#include "Handgriffe.h"
#include "Rahmenprobe.h"
#include "tests/store/Rechte.h"

#include "filters/Filterdialog.h"
#include "frame/Ablauf.h"
#include "frame/Hilfe.h"
#include "frame/Hilfeblatt.h"
#include "frame/frmDBWahl.h"
#include "frame/frmHilfe.h"
#include "frame/frmStart.h"
#include "plantwindows/Beschreibung.h"
#include "tests/Testprogramm.h"

#include <QHelpContentModel>
#include <QHelpContentWidget>
#include <QHelpIndexWidget>
#include <QLineEdit>
#include <QListWidget>
#include <QRegularExpression>
#include <QToolBar>
#include <QWindow>

using namespace Qt::StringLiterals;

/* The shipped manual: whole in itself, found by the program's tables, opened from every window, also where nothing can be written. */

class TestHilfe : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void jedeSeiteSteht();
    void verweiseUndBilder();
    void themenHabenSeiten();
    void jedesKriteriumWirdGefunden_data();
    void jedesKriteriumWirdGefunden();
    void jedesWortHatSeineSeite();
    void tasteImPflanzenfenster_data();
    void tasteImPflanzenfenster();
    void tasteInDialogen_data();
    void tasteInDialogen();
    void tasteInAuswahlUndStart();
    void tasteInMeldungen();
    void menue();
    void benutzbarNebenDialogen();
    void schreibgeschuetzt();
    void ohneSammlung_data();
    void ohneSammlung();
    void unbekannteSeite();
    void zurueckUndVor();
    void zoom();
    void suche();
    void inhaltFolgtDerSeite();
    void drucken();
    void endetMitDemProgramm();

private:
    mdiZentral &zentrale();
    Hilfe &hilfe() { return ablauf_->hilfe(); }
    QString seite() { return hilfe().fenster() ? hilfe().fenster()->seite() : QString(); }
    /// The manual by itself.
    frmHilfe &handbuch();
    /// The same, active: it takes keys.
    frmHilfe &vorn();
    Pflanzenfenster *oeffnen(Sparte sparte);
    QStringList gefunden(const QString &frage);
    template<typename T>
    T *teil(const char *name)
    {
        auto *gesucht = handbuch().findChild<T *>(QString::fromLatin1(name));
        if (!gesucht)
            qFatal("There is no '%s'.", name);
        return gesucht;
    }

    std::unique_ptr<Ablage> ablage_;
    std::unique_ptr<Programmordner> ordner_;
    std::unique_ptr<Ablauf> ablauf_;
};

namespace {

constexpr const char *dateien[] = {"flox-hilfe.qhc", "flox-hilfe.qch"};

void hilfeKopieren(const QString &ordner)
{
    for (const char *datei : dateien)
        if (!QFile::copy(QStringLiteral(FLOX_PROGRAMM) + u'/' + QLatin1String(datei), ordner + u'/' + QLatin1String(datei)))
            qFatal("The manual cannot be copied.");
}

/// All pages below an entry of the contents.
QStringList unter(QHelpContentItem *eintrag)
{
    QStringList seiten;
    for (int i = 0; i < eintrag->childCount(); ++i) {
        seiten += eintrag->child(i)->url().fileName();
        seiten += unter(eintrag->child(i));
    }
    return seiten;
}

QStringList inhaltsseiten(const frmHilfe &handbuch)
{
    QHelpContentModel *inhalt = handbuch.inhalt();
    if (!QTest::qWaitFor([inhalt] { return inhalt->rowCount() > 0; }))
        qFatal("The contents do not come.");
    QStringList seiten;
    for (int i = 0; i < inhalt->rowCount(); ++i) {
        QHelpContentItem *eintrag = inhalt->contentItemAt(inhalt->index(i, 0));
        seiten += eintrag->url().fileName();
        seiten += unter(eintrag);
    }
    return seiten;
}

QStringList alleTreffer(const QString &text, const QString &muster)
{
    QStringList treffer;
    for (auto i = QRegularExpression(muster).globalMatch(text); i.hasNext();)
        treffer += i.next().captured(1);
    return treffer;
}

} // namespace

void TestHilfe::init()
{
    ablage_ = std::make_unique<Ablage>();
    ordner_ = std::make_unique<Programmordner>();
    hilfeKopieren(ordner_->pfad());
    ablauf_ = std::make_unique<Ablauf>();
    ablauf_->programm() = ordner_->programm();
    ablauf_->programm().MdiStatus = 0;
}

void TestHilfe::cleanup()
{
    ablauf_.reset();
    ordner_.reset();
    ablage_.reset();
}

mdiZentral &TestHilfe::zentrale()
{
    mdiZentral &fenster = ablauf_->zentrale();
    fenster.show();
    fenster.activateWindow();
    if (!QTest::qWaitForWindowActive(&fenster))
        qFatal("The main window does not come up.");
    return fenster;
}

frmHilfe &TestHilfe::handbuch()
{
    if (!hilfe().fenster())
        hilfe().zeigen();
    if (!hilfe().fenster())
        qFatal("The manual does not open.");
    return *hilfe().fenster();
}

frmHilfe &TestHilfe::vorn()
{
    handbuch().activateWindow();
    if (!QTest::qWaitFor([this] { return QApplication::activeWindow() == &handbuch(); }))
        qFatal("The manual does not come to the front.");
    return handbuch();
}

Pflanzenfenster *TestHilfe::oeffnen(Sparte sparte)
{
    mdiZentral &fenster = zentrale();
    fenster.findChild<QAction *>(QString::fromLatin1(eintrag(sparte).menue))->trigger();
    return fenster.fenster(sparte, 1);
}

QStringList TestHilfe::gefunden(const QString &frage)
{
    handbuch().suche(frage);
    QStringList namen;
    const auto *treffer = teil<QListWidget>("lstTreffer");
    for (int i = 0; i < treffer->count(); ++i)
        namen += treffer->item(i)->data(Qt::UserRole).toString();
    return namen;
}

void TestHilfe::jedeSeiteSteht()
{
    QStringList seiten;
    for (const QString &datei : handbuch().dateien())
        if (datei.endsWith(u".htm"))
            seiten += datei;
    QStringList inhalt = inhaltsseiten(handbuch());
    QVERIFY(seiten.size() > 30);
    QVERIFY(inhalt.contains(frmHilfe::startseite()));
    seiten.sort();
    inhalt.sort();
    QCOMPARE(inhalt, seiten);
    for (const QString &eine : seiten) {
        QVERIFY2(handbuch().aufschlagen(eine), qPrintable(eine));
        QCOMPARE(handbuch().seite(), eine);
        QVERIFY2(handbuch().windowTitle().size() > u" - Flox - Hilfe"_s.size(), qPrintable(eine));
    }
}

void TestHilfe::verweiseUndBilder()
{
    const QStringList alle = handbuch().dateien();
    int verweise = 0, bilder = 0;
    for (const QString &datei : alle) {
        if (!datei.endsWith(u".htm"))
            continue;
        const QString text = QString::fromUtf8(handbuch().datei(datei));
        QVERIFY2(!text.contains(u"{{"_s) && !text.contains(u"[["_s), qPrintable(datei));
        for (const QString &ziel : alleTreffer(text, u"href=\"([^\"]+)\""_s)) {
            ++verweise;
            const QByteArray seite = handbuch().datei(ziel);
            QVERIFY2(!seite.isEmpty(), qPrintable(datei + u" -> "_s + ziel));
            if (const QString stelle = ziel.section(u'#', 1); !stelle.isEmpty())
                QVERIFY2(QString::fromUtf8(seite).contains(u"name=\"%1\""_s.arg(stelle)), qPrintable(datei + u" -> "_s + ziel));
        }
        for (const QString &bild : alleTreffer(text, u"src=\"([^\"]+)\""_s)) {
            ++bilder;
            const QImage gelesen = QImage::fromData(handbuch().datei(bild));
            QVERIFY2(gelesen.width() > 10 && gelesen.height() > 10, qPrintable(datei + u" -> "_s + bild));
            // A picture of one colour shows nothing.
            bool einfarbig = true;
            for (int y = 0; einfarbig && y < gelesen.height(); ++y)
                for (int x = 0; einfarbig && x < gelesen.width(); ++x)
                    einfarbig = gelesen.pixel(x, y) == gelesen.pixel(0, 0);
            QVERIFY2(!einfarbig, qPrintable(datei + u" -> "_s + bild));
        }
    }
    QVERIFY(verweise > 100);
    QVERIFY(bilder > 50);
}

void TestHilfe::themenHabenSeiten()
{
    QStringList themen{Filterdialog::hilfethema.toString()};
    for (const SpartenEintrag &sparte : alleSparten())
        themen += sparte.hilfethema.toString();
    for (const Hilfethema &zeile : hilfethemen())
        themen += zeile.seite.toString();
    for (const QString &thema : themen)
        QVERIFY2(!handbuch().datei(thema).isEmpty(), qPrintable(thema));
}

void TestHilfe::jedesKriteriumWirdGefunden_data()
{
    QTest::addColumn<int>("sparte");
    for (const SpartenEintrag &sparte : alleSparten())
        QTest::newRow(qPrintable(sparte.wort.toString())) << int(sparte.sparte);
}

void TestHilfe::jedesKriteriumWirdGefunden()
{
    QFETCH(const int, sparte);
    const Filterbeschreibung &beschreibung = *filterbeschreibung(Sparte(sparte));
    QString seite = eintrag(Sparte(sparte)).hilfethema.toString();
    seite.replace(0, 2, u"4-kriterien-"_s);
    QVERIFY(!handbuch().datei(seite).isEmpty());
    const auto pruefen = [&](QString wort) {
        wort = wort.trimmed();
        if (wort.endsWith(u':'))
            wort.chop(1);
        if (!wort.trimmed().isEmpty())
            QVERIFY2(gefunden(u'"' + wort.trimmed() + u'"').contains(seite), qPrintable(wort));
    };
    for (const Kriterium &k : beschreibung.kriterien) {
        pruefen(titelVon(beschreibung, k));
        if (benutzernamen(beschreibung, k))
            continue;
        for (const Steuerteil *teil : {&k.a, &k.b})
            for (int i = 0; i < teil->waehlbare(); ++i) {
                if (teil->art == Steuerung::Kaestchen || teil->art == Steuerung::Option || teil->art == Steuerung::Farben)
                    pruefen(wortVon(beschreibung, k, *teil, i).toString());
                else if (teil->art == Steuerung::Bilder)
                    pruefen(teil->bilder[size_t(i)].name.toString());
            }
    }
}

void TestHilfe::jedesWortHatSeineSeite()
{
    // The words of a vocabulary stand on the page of the words of its collection.
    for (const SpartenEintrag &sparte : alleSparten()) {
        QString name = sparte.hilfethema.toString();
        name.replace(0, 2, u"8-woerter-"_s);
        const QString text = hilfeseite(name, QString::fromUtf8(handbuch().datei(name))).text;
        int worte = 0;
        for (const Spalte &spalte : schema::spaltenVon(sparte.haupttabelle))
            if (spalte.liste)
                for (const QStringView wort : spalte.liste->zeilen) {
                    QVERIFY2(text.contains(wort.toString().simplified()), qPrintable(name + u": "_s + wort.toString()));
                    ++worte;
                }
        QVERIFY2(worte > 20, qPrintable(name));
    }
}

void TestHilfe::tasteImPflanzenfenster_data()
{
    jedesKriteriumWirdGefunden_data();
}

void TestHilfe::tasteImPflanzenfenster()
{
    QFETCH(const int, sparte);
    Pflanzenfenster *form = oeffnen(Sparte(sparte));
    hand::titelleiste(form);
    hand::taste(Qt::Key_F1);
    QTRY_COMPARE(seite(), eintrag(Sparte(sparte)).hilfethema.toString());
    QVERIFY(hilfe().fenster()->isVisible());
    // Beside it the plant window can be used, and its filter has a page of its own.
    hand::nachVorn(form);
    hand::klick(form, "cmdFilter");
    Filterdialog *dialog = form->filterdialog();
    dialog->activateWindow();
    QTRY_COMPARE(QApplication::activeWindow(), dialog);
    hand::taste(Qt::Key_F1);
    QTRY_COMPARE(seite(), Filterdialog::hilfethema.toString());
    QVERIFY(dialog->isVisible());
}

void TestHilfe::tasteInDialogen_data()
{
    QTest::addColumn<QString>("fenster");
    QTest::addColumn<QString>("thema");
    for (const char *fenster : {"mdiZentral", "frmBenutzer", "frmDrucken", "frmBilder", "frmOptionen", "frmInfos", "frmBilderAssistent"})
        for (const Hilfethema &zeile : hilfethemen())
            if (qstrcmp(zeile.fenster, fenster) == 0)
                QTest::newRow(fenster) << QString::fromLatin1(fenster) << zeile.seite.toString();
}

void TestHilfe::tasteInDialogen()
{
    QFETCH(const QString, fenster);
    QFETCH(const QString, thema);
    if (fenster == u"mdiZentral") {
        zentrale().setFocus();
        QTest::keyClick(&zentrale(), Qt::Key_F1);
        QTRY_COMPARE(seite(), thema);
        return;
    }
    Pflanzenfenster *form = oeffnen(Sparte::Topf);
    bool gedrueckt = false;
    QTimer takt;
    connect(&takt, &QTimer::timeout, this, [&] {
        QWidget *offen = QApplication::activeWindow();
        if (!offen || offen->objectName() != fenster)
            return;
        takt.stop();
        gedrueckt = true;
        hand::taste(Qt::Key_F1);
        offen->close();
    });
    takt.start(5);
    const auto waehlen = [this](const QString &befehl) { zentrale().findChild<QAction *>(befehl)->trigger(); };
    if (fenster == u"frmBenutzer")
        zentrale().namenAendern(form);
    else if (fenster == u"frmOptionen")
        waehlen(u"mnuOptionen"_s);
    else if (fenster == u"frmInfos")
        waehlen(u"mnuInfos"_s);
    else if (fenster == u"frmBilderAssistent")
        waehlen(u"mnuFloxBilder"_s);
    else if (fenster == u"frmDrucken")
        zentrale().drucken();
    else
        zentrale().bildZeigen();
    QTRY_VERIFY(gedrueckt);
    QTRY_COMPARE(seite(), thema);
}

void TestHilfe::tasteInAuswahlUndStart()
{
    frmStart start(u"3.0"_s);
    start.show();
    QVERIFY(QTest::qWaitForWindowActive(&start));
    QTest::keyClick(&start, Qt::Key_F1);
    QCOMPARE(seite(), u"1-start.htm"_s);
    start.hide();
    (void)handbuch().aufschlagen({});
    handbuch().hide();

    ablauf_->wahlZeigen();
    frmDBWahl *wahl = nullptr;
    for (QWidget *oben : QApplication::topLevelWidgets())
        if (auto *gesucht = qobject_cast<frmDBWahl *>(oben))
            wahl = gesucht;
    QVERIFY(wahl && QTest::qWaitForWindowActive(wahl));
    const QPointer<frmDBWahl> noch(wahl);
    hand::taste(Qt::Key_F1);
    QCOMPARE(seite(), u"1-start.htm"_s);
    // Reading does not end the choice.
    QVERIFY(QTest::qWaitForWindowActive(hilfe().fenster()));
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(noch && noch->isVisible());
}

void TestHilfe::tasteInMeldungen()
{
    zentrale();
    QTimer::singleShot(0, this, [] {
        QWidget *box = QApplication::activeModalWidget();
        QVERIFY(box);
        QTest::keyClick(QApplication::focusWidget() ? QApplication::focusWidget() : box, Qt::Key_F1);
        box->close();
    });
    QMessageBox::information(&zentrale(), u"Flox-Demo"_s, u"Geht nicht"_s);
    QCOMPARE(seite(), u"9-meldungen.htm"_s);
}

void TestHilfe::menue()
{
    auto *eintrag = zentrale().findChild<QAction *>(u"mnuHilfethemen"_s);
    QVERIFY(eintrag->isEnabled());
    eintrag->trigger();
    QCOMPARE(seite(), frmHilfe::startseite());
    QVERIFY(hilfe().fenster()->isVisible());
}

void TestHilfe::benutzbarNebenDialogen()
{
    Pflanzenfenster *form = oeffnen(Sparte::Topf);
    handbuch();
    bool benutzt = false;
    QTimer takt;
    connect(&takt, &QTimer::timeout, this, [&] {
        QWidget *dialog = QApplication::activeModalWidget();
        if (!dialog || !QTest::qWaitForWindowExposed(dialog))
            return;
        takt.stop();
        // As the window system brings it: a locked window gets no click.
        QWindow *fenster = handbuch().windowHandle();
        QTRY_COMPARE(fenster->transientParent(), dialog->windowHandle());
        auto *taste = handbuch().findChild<QToolBar *>(u"tlbHilfe"_s)->widgetForAction(teil<QAction>("cmdGroesser"));
        QTest::mouseClick(fenster, Qt::LeftButton, {}, taste->mapTo(&handbuch(), taste->rect().center()));
        benutzt = teil<Hilfeblatt>("txtSeite")->stufe() == 1;
        dialog->close();
    });
    takt.start(5);
    zentrale().namenAendern(form);
    QVERIFY(benutzt);
    // When the dialog has gone it is nobody's.
    QTRY_COMPARE(handbuch().windowHandle()->transientParent(), nullptr);
    QVERIFY(handbuch().isVisible());
}

void TestHilfe::schreibgeschuetzt()
{
    const QStringList vorher = QDir(ordner_->pfad()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
    const NurLesen sperre(ordner_->pfad());
    Meldungsfaenger meldungen;
    hilfe().zeigen(u"2-stauden.htm"_s);
    QCOMPARE(meldungen.texte, QStringList());
    QCOMPARE(seite(), u"2-stauden.htm"_s);
    QVERIFY(inhaltsseiten(handbuch()).contains(u"2-topf.htm"_s));
    QVERIFY(gefunden(u"Gehilfenprüfung"_s).contains(u"lernen.htm"_s));
    QCOMPARE(QDir(ordner_->pfad()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot), vorher);
}

void TestHilfe::ohneSammlung_data()
{
    QTest::addColumn<QString>("datei");
    QTest::addColumn<bool>("fehlt");
    QTest::addColumn<QString>("satz");
    for (const char *datei : dateien) {
        const QString name = QString::fromLatin1(datei);
        QTest::addRow("no %s", datei) << name << true << (name.endsWith(u"qhc") ? u"Die Datei fehlt"_s : u"beschädigt oder unvollständig"_s);
        QTest::addRow("broken %s", datei) << name << false << u"beschädigt oder unvollständig"_s;
    }
}

void TestHilfe::ohneSammlung()
{
    QFETCH(const QString, datei);
    QFETCH(const bool, fehlt);
    QFETCH(const QString, satz);
    const QString pfad = ordner_->pfad(datei);
    QVERIFY(QFile::remove(pfad));
    if (!fehlt) {
        QFile kaputt(pfad);
        QVERIFY(kaputt.open(QIODevice::WriteOnly) && kaputt.write(QByteArray(5000, 'x')) == 5000);
    }
    zentrale();
    Meldungsfaenger meldungen;
    QTest::keyClick(&zentrale(), Qt::Key_F1);
    QCOMPARE(meldungen.titel, QStringList{u"Flox-Demo"_s});
    QVERIFY2(meldungen.texte.constFirst().contains(satz), qPrintable(meldungen.texte.constFirst()));
    QVERIFY(meldungen.texte.constFirst().contains(u"flox-hilfe.qhc"_s));
    QVERIFY(!hilfe().fenster());
    // Once it is back the next press opens it.
    for (const char *eine : dateien)
        QFile::remove(ordner_->pfad(QString::fromLatin1(eine)));
    hilfeKopieren(ordner_->pfad());
    QTest::keyClick(&zentrale(), Qt::Key_F1);
    QCOMPARE(seite(), u"1-hauptfenster.htm"_s);
}

void TestHilfe::unbekannteSeite()
{
    QVERIFY(handbuch().aufschlagen(u"lernen.htm"_s));
    Meldungsfaenger meldungen;
    hilfe().zeigen(u"gibt-es-nicht.htm"_s);
    QCOMPARE(meldungen.texte.size(), 1);
    QVERIFY(meldungen.texte.constFirst().contains(u"gibt-es-nicht.htm"_s));
    QCOMPARE(seite(), u"lernen.htm"_s);
}

void TestHilfe::zurueckUndVor()
{
    auto *zurueck = teil<QAction>("cmdZurueck"), *vor = teil<QAction>("cmdVor");
    QVERIFY(!zurueck->isEnabled() && !vor->isEnabled());
    for (const QString &name : {u"lernen.htm"_s, u"2-topf.htm"_s})
        QVERIFY(handbuch().aufschlagen(name));
    zurueck->trigger();
    QCOMPARE(seite(), u"lernen.htm"_s);
    vor->trigger();
    QCOMPARE(seite(), u"2-topf.htm"_s);
    QVERIFY(!vor->isEnabled());
    QTest::keyClick(&vorn(), Qt::Key_Left, Qt::AltModifier);
    QTest::keyClick(&handbuch(), Qt::Key_Left, Qt::AltModifier);
    QCOMPARE(seite(), frmHilfe::startseite());
    // Closing keeps the page.
    QTest::keyClick(&handbuch(), Qt::Key_Right, Qt::AltModifier);
    QTest::keyClick(&handbuch(), Qt::Key_Escape);
    QVERIFY(!handbuch().isVisible());
    QCOMPARE(seite(), u"lernen.htm"_s);
}

void TestHilfe::zoom()
{
    auto *blatt = teil<Hilfeblatt>("txtSeite");
    QVERIFY(handbuch().aufschlagen(u"4-3-2.htm"_s));
    const double hoehe = blatt->document()->size().height();
    for (int i = 0; i < 3; ++i)
        teil<QAction>("cmdGroesser")->trigger();
    QCOMPARE(blatt->stufe(), 3);
    QVERIFY(blatt->document()->size().height() > hoehe * 1.2);
    QCOMPARE(seite(), u"4-3-2.htm"_s);
    teil<QAction>("cmdKleiner")->trigger();
    QCOMPARE(blatt->stufe(), 2);
    teil<QAction>("cmdNormal")->trigger();
    QCOMPARE(blatt->stufe(), 0);
    QCOMPARE(blatt->document()->size().height(), hoehe);
    for (int i = 0; i < 50; ++i)
        teil<QAction>("cmdKleiner")->trigger();
    QVERIFY(blatt->stufe() > -10);
}

void TestHilfe::suche()
{
    const std::vector<Hilfeseite> seiten{
        hilfeseite(u"a.htm"_s, u"<html><head><title>Äpfel &amp; Birnen</title></head><body><p>Ein <b>Ap</b>fel, rot.</p></body></html>"_s),
        hilfeseite(u"b.htm"_s, u"<title>Birnen</title><body>Birne, Birne und rote Grütze<br>am Rand</body>"_s),
    };
    QCOMPARE(seiten[0].titel, u"Äpfel & Birnen"_s);
    QCOMPARE(seiten[0].text, u"Ein Apfel, rot."_s);
    const auto namen = [&](const QString &frage) {
        QStringList alle;
        for (const Treffer &eine : suchen(seiten, frage))
            alle += eine.name;
        return alle;
    };
    QCOMPARE(namen(u"BIRNE"_s), QStringList({u"b.htm"_s, u"a.htm"_s}));
    QCOMPARE(namen(u"apfel"_s), QStringList({u"a.htm"_s}));
    QCOMPARE(namen(u"äpfel"_s), QStringList({u"a.htm"_s}));
    QCOMPARE(namen(u"rot birnen"_s).size(), 2);
    QCOMPARE(namen(u"\"rote Grütze\""_s), QStringList({u"b.htm"_s}));
    QCOMPARE(namen(u"\"Grütze am\""_s), QStringList({u"b.htm"_s}));
    QCOMPARE(namen(u"Kirsche"_s), QStringList());
    QCOMPARE(namen(u"  \" \" "_s), QStringList());
    QCOMPARE(suchworte(u"Rot \"am Rand\" rot"_s), QStringList({u"rot"_s, u"am rand"_s}));

    // In the window: what is found opens and is marked.
    QTest::keyClick(&vorn(), Qt::Key_F, Qt::ControlModifier);
    QCOMPARE(QApplication::focusWidget(), teil<QLineEdit>("txtSuche"));
    QTest::keyClicks(QApplication::focusWidget(), u"Verwechslungen"_s);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    QCOMPARE(seite(), u"lernen.htm"_s);
    QVERIFY(!teil<Hilfeblatt>("txtSeite")->extraSelections().isEmpty());
    // Another way to a page does not show what was searched for before.
    hilfe().zeigen(u"lernen.htm"_s);
    QVERIFY(teil<Hilfeblatt>("txtSeite")->extraSelections().isEmpty());
    QCOMPARE(gefunden(u"xyzzy"_s), QStringList());
    QCOMPARE(teil<QLabel>("lblTreffer")->text(), u"Nichts gefunden."_s);
}

void TestHilfe::inhaltFolgtDerSeite()
{
    const QStringList seiten = inhaltsseiten(handbuch());
    auto *baum = teil<QHelpContentWidget>("treInhalt");
    for (const QString &name : {u"4-3-2.htm"_s, u"2-obst.htm"_s, u"8-glossar.htm#geselligkeit"_s}) {
        QVERIFY(handbuch().aufschlagen(name));
        const QHelpContentItem *eintrag = handbuch().inhalt()->contentItemAt(baum->currentIndex());
        QVERIFY(eintrag);
        QCOMPARE(eintrag->url().fileName(), name.section(u'#', 0, 0));
    }
    // A click on an entry opens its page.
    const QModelIndex erster = handbuch().inhalt()->index(1, 0);
    QTest::mouseClick(baum->viewport(), Qt::LeftButton, {}, baum->visualRect(erster).center());
    QCOMPARE(seite(), seiten.value(1));
    // The index knows its words.
    auto *stichworte = teil<QHelpIndexWidget>("lstIndex");
    QTRY_VERIFY(stichworte->model()->rowCount() > 40);
    QTest::keyClicks(teil<QLineEdit>("txtIndex"), u"Gesell"_s);
    QTRY_COMPARE(stichworte->model()->rowCount(), 1);
    QTest::keyClick(teil<QLineEdit>("txtIndex"), Qt::Key_Return);
    QCOMPARE(seite(), u"8-glossar.htm"_s);
}

void TestHilfe::drucken()
{
    int gedruckt = 0;
    handbuch().drucken = [&] { ++gedruckt; };
    QTest::keyClick(&vorn(), Qt::Key_P, Qt::ControlModifier);
    QCOMPARE(gedruckt, 1);
    // A printer that fails says so.
    handbuch().drucken = [] { throw Fehler(u"Papierstau"_s); };
    Meldungsfaenger meldungen;
    teil<QAction>("cmdDrucken")->trigger();
    QCOMPARE(meldungen.texte, QStringList{u"Papierstau"_s});
}

void TestHilfe::endetMitDemProgramm()
{
    zentrale();
    handbuch();
    QSignalSpy ende(qApp, &QGuiApplication::lastWindowClosed);
    zentrale().close();
    // The manual alone keeps no program alive.
    QVERIFY(!handbuch().testAttribute(Qt::WA_QuitOnClose));
    ablauf_.reset();
    for (const QWidget *oben : QApplication::topLevelWidgets())
        QVERIFY(oben->objectName() != u"frmHilfe");
}

FLOX_TEST(tst_hilfe, TestHilfe)
#include "tst_hilfe.moc"
