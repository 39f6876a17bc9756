#include "mdiZentral.h"

#include "Einstellungen.h"
#include "Ergebnisblatt.h"
#include "Flaeche.h"
#include "Menue.h"
#include "System.h"
#include "frmBenutzer.h"
#include "filters/Filterdialog.h"
#include "plantwindows/Beschreibung.h"
#include "controls/Bilder.h"
#include "controls/Geschuetzt.h"
#include "controls/Sanduhr.h"
#include "pictures/cDIBSection.h"
#include "pictures/frmBilder.h"
#include "pictures/frmBilderAssistent.h"
#include "pictures/mIntelJPEGLibrary.h"
#include "printing/Datenblatt.h"
#include "printing/Druckgeraet.h"
#include "printing/Kriteriendruck.h"
#include "printing/frmDrucken.h"
#include "plantwindows/Pflanzenfenster.h"
#include "store/Benutzernamen.h"
#include "store/Pfade.h"
#include "store/Text.h"

#include <QAction>
#include <QClipboard>
#include <QCloseEvent>
#include <QDir>
#include <QFile>
#include <QGuiApplication>
#include <QImage>
#include <QLabel>
#include <QMdiSubWindow>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QMouseEvent>
#include <QRandomGenerator>
#include <QScreen>
#include <QStatusBar>
#include <QTime>

#include <algorithm>

namespace {

/// Size and state of plant windows; an empty size is none.
struct Fenstermass
{
    QSize groesse; ///< pixels
    bool maximiert = false;
};

constexpr int zustandMaximiert = 2;

/// Width, height and state as they are stored: twips and the number of the state, parted by blanks. What is no such text is no size.
Fenstermass fenstermassVon(const QString &text)
{
    const QStringList teile = text.split(u' ', Qt::SkipEmptyParts);
    if (teile.size() != 3)
        return {};
    const auto zahl = [](const QString &teil) { return zahlLesen(teil).value_or(0); };
    const auto masse = [&](const QString &teil) { return int(std::clamp(zahl(teil) / twipsJePixel, 0.0, double(groesstesFenster))); };
    return {QSize(masse(teile[0]), masse(teile[1])), zahl(teile[2]) == zustandMaximiert};
}

QString fenstermasstext(const Fenstermass &mass)
{
    const QSize groesse = mass.groesse.isEmpty() ? QSize(0, 0) : mass.groesse;
    return QStringLiteral("%1 %2 %3")
        .arg(groesse.width() * twipsJePixel)
        .arg(groesse.height() * twipsJePixel)
        .arg(mass.maximiert ? zustandMaximiert : 0);
}

} // namespace

mdiZentral::mdiZentral(Programm &programm) : programm_(programm), befehle_(programm, *this), flaeche_(new Flaeche(this))
{
    setObjectName(QStringLiteral("mdiZentral"));
    setWindowTitle(programmtitel.toString());
    setMinimumSize(800, 560);
    setCentralWidget(flaeche_);
    flaeche_->viewport()->installEventFilter(this);
    menueBauen(*menuBar(), this, befehle_);
    statusleisteBauen();
    befehle_.begleiterPruefen();
    // Until a window has a filter there is nothing to hand over.
    mulkoSpeichernErlauben(false);
    connect(flaeche_, &QMdiArea::subWindowActivated, this, [this](QMdiSubWindow *unterfenster) {
        if (auto *form = unterfenster ? qobject_cast<Pflanzenfenster *>(unterfenster->widget()) : nullptr)
            geschuetztAusfuehren(this, [form] { form->Form_Activate(); });
    });
    connect(flaeche_, &Flaeche::fenstermass, this, [this](QSize normal, bool maximiert) {
        const QSize bekannt = fenstermassVon(programm_.PflanzenfensterMass).groesse;
        programm_.PflanzenfensterMass = fenstermasstext({normal.isEmpty() ? bekannt : normal, maximiert});
    });
    timResize_.setObjectName(QStringLiteral("timResize"));
    timResize_.setInterval(250);
    connect(&timResize_, &QTimer::timeout, this, [this] {
        if (!isMinimized() && geladen_ && groessenZaehler_ >= 1)
            hintergrundVerarbeiten();
        ++groessenZaehler_;
        timResize_.stop();
    });

    hintergrundWaehlen();
    geometrieAnwenden();
    geladen_ = true;
    hintergrundVerarbeiten();
}

mdiZentral::~mdiZentral()
{
    // Windows report their close; that must not reach a main window half gone.
    AlleFensterSchliessen();
    flaeche_->viewport()->removeEventFilter(this);
    delete flaeche_;
}

void mdiZentral::statusleisteBauen()
{
    auto *leiste = statusBar();
    leiste->setObjectName(QStringLiteral("stbAnzeigeZentral"));
    leiste->setSizeGripEnabled(false);
    satz_ = new QLabel(leiste);
    satz_->setObjectName(QStringLiteral("stbAnzeigeZentral_1"));
    satz_->setContentsMargins(8, 0, 0, 0);
    if (!programm_.OriginalDatenbank)
        statussatz(QStringLiteral("Sie arbeiten mit Datenbanken die vom Benutzer geändert wurden!"));
    erlauben("mnuDateiDBLadenOriginal", !programm_.OriginalDatenbank);
    leiste->addWidget(satz_, 1);
    uhrzeit_ = new QLabel(leiste);
    uhrzeit_->setObjectName(QStringLiteral("stbAnzeigeZentral_2"));
    leiste->addPermanentWidget(uhrzeit_);
    const auto stellen = [this] { uhrzeit_->setText(QTime::currentTime().toString(QStringLiteral("HH:mm"))); };
    connect(&uhr_, &QTimer::timeout, this, stellen);
    uhr_.start(10000);
    stellen();
}

void mdiZentral::geometrieAnwenden()
{
    resize(fensterpixel(double(programm_.MdiBreite)), fensterpixel(double(programm_.MdiHoehe)));
    const QPoint ort(pixel(double(programm_.MdiLinks)), pixel(double(programm_.MdiOben)));
    // A screen that is no longer there must not hide the window.
    const bool sichtbar = std::ranges::any_of(
        QGuiApplication::screens(), [&](const QScreen *schirm) { return schirm->availableGeometry().intersects(QRect(ort, QSize(width(), 40))); });
    move(sichtbar ? ort : QPoint(0, 0));
    angewandt_ = QRect(pos(), size());
    if (programm_.MdiStatus == 2)
        setWindowState(Qt::WindowMaximized);
    else if (programm_.MdiStatus == 1)
        setWindowState(Qt::WindowMinimized);
}

void mdiZentral::rahmenMerken()
{
    // A maximised window has another frame.
    if (!isMaximized() && !isFullScreen())
        rahmen_ = geometry().topLeft() - pos();
}

void mdiZentral::geometrieMerken()
{
    rahmenMerken();
    programm_.MdiStatus = isMinimized() ? 1 : isMaximized() ? 2 : 0;
    // The size the window has when it is neither minimised nor maximised. Its place is the frame's.
    const QRect normal = programm_.MdiStatus == 0 ? QRect(pos(), size()) : normalGeometry().translated(-rahmen_);
    if (!normal.isValid())
        return;
    // What nobody changed stays as it was stored, also where the window could not take it.
    const auto merken = [](long &ziel, int neu, int angewandt) {
        if (neu != angewandt)
            ziel = neu * twipsJePixel;
    };
    merken(programm_.MdiHoehe, normal.height(), angewandt_.height());
    merken(programm_.MdiBreite, normal.width(), angewandt_.width());
    merken(programm_.MdiLinks, normal.x(), angewandt_.x());
    merken(programm_.MdiOben, normal.y(), angewandt_.y());
}

void mdiZentral::hintergrundWaehlen()
{
    constexpr int anzahlBilder = 8;
    const int n = 1 + int(anzahlBilder * QRandomGenerator::global()->generateDouble());
    HintergrundBild = QStringLiteral("hintergrund%1.jpg").arg(n);
}

void mdiZentral::hintergrundVerarbeiten()
{
    // Made once a run: the picture is stretched when it is painted, so that another window size needs no other file.
    if (flaeche_->hatBild())
        return;
    QImage bild(systemPfad(pfadAus(programm_.symbolordner(), HintergrundBild)));
    if (bild.width() < 1 || bild.height() < 1)
        return;
    const QString zwischen = systemPfad(programm_.ProgrammPfad + QStringLiteral("\\tempbild.bmp"));
    const QString fertig = pfadAus(programm_.symbolordner(), QStringLiteral("temp-hg.jpg"));
    // A program folder that cannot be written shows the picture as it was shipped.
    try {
        cDIBSection dib;
        if (bild.save(zwischen, "BMP")) {
            dib.CreateFromPicture(QImage(zwischen));
            mIntelJPEGLibrary::SaveJPG(dib, fertig, jpegGuete);
            bild = QImage(systemPfad(fertig));
        }
    } catch (const Fehler &) {
    }
    flaeche_->setBild(QPixmap::fromImage(bild));
}

void mdiZentral::resizeEvent(QResizeEvent *ereignis)
{
    QMainWindow::resizeEvent(ereignis);
    timResize_.start();
    rahmenMerken();
}

void mdiZentral::moveEvent(QMoveEvent *ereignis)
{
    QMainWindow::moveEvent(ereignis);
    rahmenMerken();
}

void mdiZentral::changeEvent(QEvent *ereignis)
{
    QMainWindow::changeEvent(ereignis);
    if (ereignis->type() == QEvent::WindowStateChange || ereignis->type() == QEvent::ActivationChange)
        rahmenMerken();
}

Pflanzenfenster *mdiZentral::fenster(Sparte sparte, int nummer)
{
    return nummer >= 1 && nummer <= tabelle(sparte).obergrenze() ? tabelle(sparte).platz(nummer).fenster.data() : nullptr;
}

Pflanzenfenster *mdiZentral::fensterAnlegen(Sparte sparte, int nummer)
{
    auto *form = new Pflanzenfenster(programm_, *this, *fensterbeschreibung(sparte), nummer);
    // A child of the main window from the start: its dialogs belong to it.
    form->setParent(this);
    tabelle(sparte).platz(nummer).fenster = form;
    return form;
}

void mdiZentral::FensterOeffnen(Sparte sparte)
{
    if (!fensterbeschreibung(sparte))
        return;
    const Sanduhr sanduhr(this);
    const int nummer = tabelle(sparte).FensterNummerHolen();
    Pflanzenfenster *form = fenster(sparte, nummer);
    if (!form)
        form = fensterAnlegen(sparte, nummer);
    try {
        form->Form_Activate();
    } catch (const Fehler &) {
        const QString kopie = systemPfad(form->satz().tempPfad(nummer));
        delete form;
        QFile::remove(kopie);
        tabelle(sparte).platz(nummer).frei = true;
        programm_.AktiveSparte.clear();
        throw;
    }
    const Fenstermass mass = fenstermassVon(programm_.PflanzenfensterMass);
    flaeche_->fensterZeigen(form, mass.groesse, mass.maximiert);
    tabelle(sparte).platz(nummer).filter = form->filterdialog();
    // Opened beside a dialog of its Sparte, it is locked like the others.
    fensterBedienbar(sparte, !dialogOffen(sparte));
}

void mdiZentral::fensterBedienbar(Sparte sparte, bool bedienbar)
{
    // The whole window: its title bar would bring it to the front, or close it, as well.
    for (int nummer = 1; nummer <= tabelle(sparte).obergrenze(); ++nummer) {
        Pflanzenfenster *form = fenster(sparte, nummer);
        auto *unterfenster = form ? qobject_cast<QMdiSubWindow *>(form->parentWidget()) : nullptr;
        if (!unterfenster)
            continue;
        // The focus would move on into the next window, which would then be the active one.
        if (QWidget *fokus = focusWidget(); !bedienbar && fokus && (fokus == unterfenster || unterfenster->isAncestorOf(fokus)))
            fokus->clearFocus();
        unterfenster->setEnabled(bedienbar);
    }
}

bool mdiZentral::dialogOffen(Sparte sparte)
{
    for (int nummer = 1; nummer <= tabelle(sparte).obergrenze(); ++nummer)
        if (const QWidget *dialog = tabelle(sparte).platz(nummer).filter; dialog && !dialog->isHidden())
            return true;
    return false;
}

bool mdiZentral::bereit()
{
    const auto beschaeftigt = [this](const SpartenEintrag &sparte) {
        for (int nummer = 1; nummer <= tabelle(sparte.sparte).obergrenze(); ++nummer)
            if (const Pflanzenfenster *form = fenster(sparte.sparte, nummer); form && form->prueft())
                return true;
        return dialogOffen(sparte.sparte);
    };
    return isVisible() && isEnabled() && std::ranges::none_of(alleSparten(), beschaeftigt);
}

void mdiZentral::notizGespeichert(Sparte sparte, int nummer, const Notiz &notiz)
{
    for (int andere = 1; andere <= tabelle(sparte).obergrenze(); ++andere) {
        Pflanzenfenster *form = andere == nummer ? nullptr : fenster(sparte, andere);
        if (!form)
            continue;
        try {
            form->notizNachziehen(notiz);
        } catch (const Fehler &) {
            // The note is safe. A window that cannot follow now asks the working database again at its next view.
        }
    }
}

void mdiZentral::FormenAktualisieren()
{
    for (const SpartenEintrag &sparte : alleSparten()) {
        Fenstertabelle &fensterDerSparte = tabelle(sparte.sparte);
        // The slot of the window last active answers for all slots of the Sparte.
        if (!fensterDerSparte.besetzt(programm_.aktuellesFenster(sparte.sparte)))
            continue;
        for (int nummer = 1; nummer <= fensterDerSparte.obergrenze(); ++nummer) {
            Pflanzenfenster *form = fenster(sparte.sparte, nummer);
            if (!form)
                form = fensterAnlegen(sparte.sparte, nummer);
            form->eigenschaftenBenennen();
            form->Monatsbeschriftung();
            if (Filterdialog *dialog = form->filterdialog())
                dialog->Monatsbeschriftung();
            form->darstellen();
        }
    }
}

void mdiZentral::namenSchreiben()
{
    if (hatBenutzernamen(programm_))
        benutzernamenSchreiben(programm_);
}

bool mdiZentral::NotizenSichern()
{
    for (const SpartenEintrag &sparte : alleSparten())
        for (int nummer = 1; nummer <= tabelle(sparte.sparte).obergrenze(); ++nummer) {
            const QPointer<Pflanzenfenster> form = fenster(sparte.sparte, nummer);
            if (!form || form->notizSichern())
                continue;
            if (auto *unterfenster = form ? qobject_cast<QMdiSubWindow *>(form->parentWidget()) : nullptr)
                flaeche_->setActiveSubWindow(unterfenster);
            return false;
        }
    return true;
}

void mdiZentral::AlleFensterSchliessen()
{
    for (const SpartenEintrag &sparte : alleSparten())
        for (int nummer = 1; nummer <= tabelle(sparte.sparte).obergrenze(); ++nummer) {
            if (Pflanzenfenster *form = fenster(sparte.sparte, nummer)) {
                form->notizRetten();
                if (auto *unterfenster = qobject_cast<QMdiSubWindow *>(form->parentWidget()))
                    unterfenster->close();
                delete fenster(sparte.sparte, nummer);
            }
        }
}

void mdiZentral::sichern()
{
    // Each for itself: what fails must not keep the others from the disk.
    const auto still = [](auto handlung) {
        try {
            handlung();
        } catch (const Fehler &fehler) {
            qWarning("%s", fehler.what());
        }
    };
    for (const SpartenEintrag &sparte : alleSparten())
        for (int nummer = 1; nummer <= tabelle(sparte.sparte).obergrenze(); ++nummer)
            if (Pflanzenfenster *form = fenster(sparte.sparte, nummer); form)
                form->notizRetten();
    still([this] { namenSchreiben(); });
    geometrieMerken();
    if (!EinstellungenSchreiben(programm_))
        qWarning("The settings cannot be written.");
}

void mdiZentral::mulkoSpeichernErlauben(bool erlaubt)
{
    erlauben("mnuMulkoSpeichern", erlaubt);
}

void mdiZentral::fensterGeschlossen(Sparte sparte, int nummer)
{
    erlauben("mnudb", true);
    if (FensterZahlPruefen(tabellen_))
        mulkoSpeichernErlauben(false);
    Fenstertabelle::Platz &platz = tabelle(sparte).platz(nummer);
    platz.fenster.clear();
    platz.frei = true;
}

void mdiZentral::namenAendern(QWidget *fenster)
{
    frmBenutzer form(
        programm_,
        [this] {
        if (Pflanzenfenster *aktives = aktivesFenster())
            aktives->eigenschaftenBenennen();
        },
        fenster);
    form.exec();
    FormenAktualisieren();
}

Pflanzenfenster *mdiZentral::aktivesFenster()
{
    const std::optional<Sparte> sparte = sparteVonWort(programm_.AktiveSparte);
    return sparte ? fenster(*sparte, programm_.aktuellesFenster(*sparte)) : nullptr;
}

void mdiZentral::bildZeigen()
{
    const Sanduhr sanduhr(this);
    if (bilder_) {
        bilder_->NeuePflanze();
    } else {
        bilder_ = new frmBilder(
            programm_,
            [this] {
            Pflanzenfenster *aktives = aktivesFenster();
            return aktives ? std::optional(aktives->bilderpflanze()) : std::nullopt;
            },
            this);
        bilder_->setAttribute(Qt::WA_DeleteOnClose);
        connect(bilder_, &frmBilder::geschlossen, this, [this] {
            if (Pflanzenfenster *aktives = aktivesFenster())
                flaeche_->setActiveSubWindow(qobject_cast<QMdiSubWindow *>(aktives->parentWidget()));
        });
    }
    bilder_->show();
    bilder_->raise();
    bilder_->activateWindow();
}

void mdiZentral::bilderSchliessen()
{
    delete bilder_;
}

std::optional<Druckauftrag> mdiZentral::druckauftrag()
{
    Pflanzenfenster *aktives = aktivesFenster();
    if (!aktives)
        return std::nullopt;
    return Druckauftrag{.sparte = aktives->sparte(),
                        .pflanzen = aktives->satz().offen() ? &aktives->satz().haupt() : nullptr,
                        .arbeit = Datenbank::OpenDatabase(programm_.arbeitsdatenbank()),
                        .filter = aktives->filterdialog() ? aktives->filterdialog()->zustand() : Filterzustand(),
                        .FilterEin = aktives->FilterEin,
                        .FilterGesetzt = aktives->FilterGesetzt};
}

void mdiZentral::kopieren()
{
    if (const std::optional<Druckauftrag> auftrag = druckauftrag())
        QGuiApplication::clipboard()->setMimeData(blattkopie(datenblatt(programm_, *auftrag)).release());
}

void mdiZentral::drucken()
{
    Systemdrucker drucker;
    frmDrucken form(
        programm_, [this] { return druckauftrag(); }, drucker, this);
    form.exec();
    gespeichertMelden(form);
}

void mdiZentral::ergebnisDrucken(const Pruefungsergebnis &ergebnis, QWidget *eltern)
{
    Systemdrucker drucker;
    const Tabellenblatt blatt = ergebnisblatt(ergebnis);
    frmDrucken form(
        programm_,
        [&blatt](Printer &seite) {
        tabelleDrucken(blatt, seite);
        return blatt.titel;
        },
        drucker, eltern);
    form.exec();
    gespeichertMelden(form);
}

void mdiZentral::gespeichertMelden(const frmDrucken &form)
{
    if (!form.gespeichert().isEmpty())
        melden(QStringLiteral("Gespeichert: %1").arg(QDir::toNativeSeparators(form.gespeichert())));
}

Pflanzenfenster *mdiZentral::danebenOeffnen(Sparte sparte, int nummer)
{
    const QPointer<Pflanzenfenster> erstes = fenster(sparte, nummer);
    FensterOeffnen(sparte);
    Pflanzenfenster *zweites = fenster(sparte, programm_.aktuellesFenster(sparte));
    if (!erstes || !zweites || zweites == erstes)
        return nullptr;
    flaeche_->nebeneinander({qobject_cast<QMdiSubWindow *>(erstes->parentWidget()), qobject_cast<QMdiSubWindow *>(zweites->parentWidget())});
    return zweites;
}

Pflanzenfenster *mdiZentral::anderesFenster(Sparte sparte, int nummer)
{
    Pflanzenfenster *anderes = nullptr;
    for (QMdiSubWindow *eines : flaeche_->subWindowList(QMdiArea::ActivationHistoryOrder)) {
        auto *form = qobject_cast<Pflanzenfenster *>(eines->widget());
        if (form && form->sparte() == sparte && form->Fensternummer != nummer && eines->isVisible() && !eines->isMinimized())
            anderes = form; // the last one is the one that was active last
    }
    return anderes;
}

void mdiZentral::pflanzeGewechselt(Sparte sparte, int nummer)
{
    Pflanzenfenster *aktives = aktivesFenster();
    if (!bilder_ || !aktives || aktives != fenster(sparte, nummer))
        return;
    bilder_->namenZeigen();
    // A record that is only shown again leaves its picture, its size and its place alone.
    if (bilder_->zeigtSchon())
        return;
    programm_.GewaehltesBild = 0;
    bilder_->NeuePflanze();
}

QString mdiZentral::filtersatz(Sparte sparte, const Filterzustand &zustand)
{
    const Druckbeschreibung *druck = druckbeschreibung(sparte);
    const Filterbeschreibung *filter = filterbeschreibung(sparte);
    if (!druck || !filter)
        return {};
    return ::filtersatz(druck->kriterien, *filter, zustand, {programm_, eintrag(sparte)});
}

void mdiZentral::statussatz(const QString &satz)
{
    satz_->setText(satz);
}

void mdiZentral::melden(const QString &satz)
{
    statusBar()->showMessage(satz, meldungsdauer);
}

void mdiZentral::erlauben(const char *eintrag, bool erlaubt)
{
    const QString name = QString::fromLatin1(eintrag);
    // Deeper down a window that is just going must not be looked into.
    if (auto *menue = findChild<QMenu *>(name, Qt::FindDirectChildrenOnly))
        menue->setEnabled(erlaubt);
    else
        findChild<QAction *>(name, Qt::FindDirectChildrenOnly)->setEnabled(erlaubt);
}

void mdiZentral::zeigen(const char *eintrag, bool sichtbar)
{
    findChild<QAction *>(QString::fromLatin1(eintrag), Qt::FindDirectChildrenOnly)->setVisible(sichtbar);
}

void mdiZentral::anordnen(Anordnung anordnung)
{
    switch (anordnung) {
    case Anordnung::Ueberlappend: flaeche_->ueberlappen(); break;
    case Anordnung::Nebeneinander: flaeche_->anordnen(Qt::Horizontal); break;
    case Anordnung::Untereinander: flaeche_->anordnen(Qt::Vertical); break;
    }
}

void mdiZentral::bilderAssistent()
{
    ::bilderAssistent(
        programm_, laufwerke_, betriebssystem(), [this] { FormenAktualisieren(); }, this);
}

bool mdiZentral::eventFilter(QObject *quelle, QEvent *ereignis)
{
    if (quelle == flaeche_->viewport() && ereignis->type() == QEvent::MouseButtonPress) {
        const auto *maus = static_cast<QMouseEvent *>(ereignis);
        // What a plant window does not use comes here, too: only the area beside them counts.
        if (maus->button() == Qt::RightButton && !flaeche_->viewport()->childAt(maus->position().toPoint())) {
            if (maus->modifiers() == Qt::ControlModifier) {
                programm_.HausModus = !programm_.HausModus;
                QMessageBox::information(this, programmtitel.toString(),
                                         programm_.HausModus ? QStringLiteral("Haus-Modus eingeschaltet")
                                                             : QStringLiteral("Haus-Modus ausgeschaltet"));
            } else {
                emit wahlGewuenscht();
            }
            return true;
        }
    }
    return QMainWindow::eventFilter(quelle, ereignis);
}

void mdiZentral::closeEvent(QCloseEvent *ereignis)
{
    // Asked while everything still stands.
    if (!NotizenSichern()) {
        ereignis->ignore();
        return;
    }
    geladen_ = false;
    geometrieMerken();
    hide();
    // Names and settings must not hinder the end.
    geschuetztAusfuehren(nullptr, [this] { namenSchreiben(); });
    (void)EinstellungenSchreiben(programm_); // settings that cannot be kept do not last, and nobody is asked
    bilderSchliessen();
    AlleFensterSchliessen();
    ereignis->accept();
    // Hidden before it was closed, it does not count as the last window.
    QCoreApplication::quit();
}
