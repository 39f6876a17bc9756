#include "Pflanzenfenster.h"

#include "Pflanzenansicht.h"
#include "Uebungslauf.h"
#include "Zentrale.h"
#include "controls/Geschuetzt.h"
#include "controls/Steuerelemente.h"
#include "frmPruefung.h"
#include "frmSuche.h"
#include "pictures/Bilderstreifen.h"
#include "pictures/frmUebersicht.h"
#include "store/Lernstand.h"
#include "store/Pfade.h"

#include <QAction>
#include <QComboBox>
#include <QElapsedTimer>
#include <QHBoxLayout>
#include <QLabel>
#include <QLocale>
#include <QPushButton>
#include <QRandomGenerator>
#include <QVBoxLayout>

#include <algorithm>
#include <chrono>

/* Practice in the window: the plants of its present set in an order of chance, their names covered. The set, its order and the filter stay as they
   are, and leaving practice leads back to the plant it was begun at. */

namespace {

constexpr int takt = 200;             // milliseconds between two looks at the clock
constexpr qint64 knappeZeit = 60'000; // milliseconds
constexpr int gueteGewusst = 4, gueteNichtGewusst = 1;

QString standpfad(const Programm &programm)
{
    return systemPfad(pfadAus(programm.ProgrammPfad, Lernstand::dateiname.toString()));
}

QString tagestext(QDate tag)
{
    return QLocale(QLocale::German, QLocale::Germany).toString(tag, QStringLiteral("dd.MM.yyyy"));
}

} // namespace

qint64 Uebungszeit::laufzeit()
{
    using namespace std::chrono;
    return duration_cast<milliseconds>(steady_clock::now().time_since_epoch()).count();
}

bool Pflanzenfenster::namenVerdeckt() const
{
    return uebung_ && !uebung_->uebung.leer() && !uebung_->uebung.jetzt().aufgedeckt;
}

bool Pflanzenfenster::prueft() const
{
    return uebung_ && uebung_->pruefung;
}

void Pflanzenfenster::ueben()
{
    if (uebung_)
        return uebungVerlassen();
    // A window that is locked for a filter dialog waits for it.
    if (!isEnabled())
        return;
    datenFordern();
    if (DatenGeaendert)
        BenutzerdatenSpeichern();
    const std::vector<qint64> pflanzen = satz_.haupt().Schluesselfolge();
    if (pflanzen.empty())
        return hinweisFuerEineWeile(QStringLiteral("Hier ist keine Pflanze, mit der man üben könnte."));

    QHash<qint64, Dringlichkeit> bekannt;
    bool merken = true;
    QString meldung;
    try {
        const Lernstand::Geladen geladen = Lernstand::laden(standpfad(programm_));
        meldung = geladen.hinweis;
        const QString tabelle = eintrag(sparte()).haupttabelle.toString();
        for (auto wert = geladen.stand.werte().begin(); wert != geladen.stand.werte().end(); ++wert)
            if (wert.key().tabelle == tabelle)
                bekannt[wert.key().artnr] = wert->faellig <= uebungszeit.heute() ? Dringlichkeit::Faellig : Dringlichkeit::Spaeter;
    } catch (const Fehler &fehler) {
        merken = false;
        meldung = fehler.text() + QStringLiteral("\n\nSie können üben. Was Sie können, merkt sich Flox nicht.");
    }
    uebung_ = std::make_unique<Uebungslauf>(uebungsfolge(
        pflanzen, [&](qint64 artnr) { return bekannt.value(artnr, Dringlichkeit::Neu); }, *QRandomGenerator::global()));
    // Both show names.
    delete uebersicht_;
    delete suche_;
    uebung_->vorher = satz_.artnr();
    uebung_->merken = merken;
    uebung_->fokus = window()->focusWidget();
    uebungAufbauen();
    try {
        uebungsblattZeigen();
    } catch (const Fehler &) {
        uebungAbbrechen();
        throw;
    }
    spaeterMelden(meldung);
}

void Pflanzenfenster::spaeterMelden(const QString &satz)
{
    // A box runs events, and whoever has something to tell has more to do.
    if (!satz.isEmpty())
        QMetaObject::invokeMethod(
            this, [this, satz] { QMessageBox::warning(this, programmtitel.toString(), satz); }, Qt::QueuedConnection);
}

void Pflanzenfenster::uebungAufbauen()
{
    cboArten_->hidePopup();
    auto *form = new frmUeben(this);
    uebung_->form = form;
    auto *anordnung = static_cast<QVBoxLayout *>(layout());
    anordnung->insertWidget(anordnung->count() - 1, form);
    const auto bei = [this, form](auto signal, auto handlung) {
        connect(form, signal, this, [this, handlung = std::move(handlung)](auto... werte) {
            geschuetztAusfuehren(this, [&] {
                if (uebung_)
                    handlung(werte...);
            });
        });
    };
    bei(&frmUeben::aufdeckenGewuenscht, [this] { uebungAufdecken(); });
    bei(&frmUeben::gehenGewuenscht, [this](int richtung) { uebungGehen(richtung); });
    bei(&frmUeben::beendenGewuenscht, [this] { uebungVerlassen(); });
    bei(&frmUeben::selbstBeurteilt, [this](bool gewusst) { uebungWerten(gewusst ? gueteGewusst : gueteNichtGewusst); });
    bei(&frmUeben::pruefungGewuenscht, [this] { uebung_->pruefung ? pruefungAbgeben(true) : pruefungBeginnen(); });
    for (const auto &[name, taste, richtung] : {std::tuple("aktUebZurueck", Qt::Key_PageUp, -1), std::tuple("aktUebWeiter", Qt::Key_PageDown, 1)}) {
        auto *befehl = new QAction(form);
        befehl->setObjectName(QString::fromLatin1(name));
        befehl->setShortcut(taste);
        befehl->setShortcutContext(Qt::WidgetWithChildrenShortcut);
        connect(befehl, &QAction::triggered, form, [form, richtung = richtung] { emit form->gehenGewuenscht(richtung); });
        addAction(befehl);
    }
    uebung_->auswahlDecke = new QLabel(QStringLiteral("Name verdeckt"), cboArten_->parentWidget());
    uebung_->auswahlDecke->setObjectName(QStringLiteral("lblAuswahlDecke"));
    uebung_->auswahlDecke->setProperty("feldtitel", true);
    uebung_->auswahlDecke->setAlignment(Qt::AlignCenter);
    uebung_->auswahlDecke->setMinimumSize(cboArten_->minimumWidth(), cboArten_->sizeHint().height());
    auto *leiste = static_cast<QHBoxLayout *>(cboArten_->parentWidget()->layout());
    leiste->insertWidget(leiste->indexOf(cboArten_), uebung_->auswahlDecke, leiste->stretch(leiste->indexOf(cboArten_)));
    connect(&uebung_->takt, &QTimer::timeout, this, [this] { geschuetztAusfuehren(this, [this] { uhrZeigen(); }); });
    leisteSperren(true, false);
    zustandZeigen();
    form->hoeheAnpassen(height());
    form->show();
}

void Pflanzenfenster::leisteSperren(bool gehen, bool uebrige)
{
    leistenteile_[0]->setEnabled(!gehen);
    // Not every button has a pale picture: what cannot be used is not there.
    leistenteile_[1]->setEnabled(!uebrige);
    leistenteile_[1]->setHidden(uebrige);
    for (const Knopfzeile &zeile : knopfzeilen())
        if (Bildknopf *button = knopf(zeile.knopf))
            reihe_.ruhendMalen(*button);
    // In an examination no command of the window helps.
    const QString eigene = QStringLiteral("aktUeb");
    for (QAction *befehl : actions())
        if (!befehl->objectName().startsWith(eigene))
            befehl->setEnabled(!uebrige);
}

void Pflanzenfenster::uebungsblattZeigen()
{
    const qint64 artnr = uebung_->uebung.jetzt().artnr;
    gehen([artnr](Recordset &haupt) {
        const qsizetype vorher = haupt.AbsolutePosition();
        if (!haupt.Finden(artnr) && vorher >= 0)
            haupt.setAbsolutePosition(vorher);
    });
    const Uebungsblatt &blatt = uebung_->uebung.jetzt();
    std::vector<frmUeben::Frage> fragen;
    for (size_t i = 0; i < uebung_->aufgabe.teile.size(); ++i)
        fragen.push_back({uebung_->aufgabe.teile[i].frage->titel.toString(), blatt.antworten.value(qsizetype(i))});
    QString stelle = QStringLiteral("Pflanze %1 von %2").arg(uebung_->uebung.stelle() + 1).arg(uebung_->uebung.anzahl());
    if (blatt.wieder)
        stelle += QStringLiteral(", noch einmal");
    uebung_->form->fragen(fragen, stelle);
    uebung_->form->setGehen(uebung_->uebung.kannGehen(-1), uebung_->uebung.kannGehen(1));
    if (blatt.aufgedeckt)
        befundeZeigen(false);
}

void Pflanzenfenster::uebungGehen(int richtung)
{
    Uebung &uebung = uebung_->uebung;
    if (!uebung.jetzt().aufgedeckt)
        uebung.jetzt().antworten = uebung_->form->antworten();
    if (!uebung.gehen(richtung)) {
        hinweisFuerEineWeile(richtung < 0 ? QStringLiteral("Das ist die erste Pflanze.") : QStringLiteral("Das war die letzte Pflanze."));
        return;
    }
    try {
        uebungsblattZeigen();
    } catch (const Fehler &) {
        // The record is not left.
        uebung.gehen(-richtung);
        throw;
    }
}

void Pflanzenfenster::uebungDecken()
{
    uebung_->aufgabe = aufgabeVon(satz_, beschreibung_);
    const bool verdeckt = namenVerdeckt();
    ansicht_->verdecken(verdeckt, uebung_->aufgabe.worte);
    fraBilder_->setVerdeckt(verdeckt);
    cboArten_->setVisible(!verdeckt);
    uebung_->auswahlDecke->setVisible(verdeckt);
}

void Pflanzenfenster::uebungAufdecken()
{
    Uebungsblatt &blatt = uebung_->uebung.jetzt();
    if (uebung_->pruefung || blatt.aufgedeckt)
        return;
    blatt.antworten = uebung_->form->antworten();
    blatt.befunde.clear();
    int punkte = 0;
    for (size_t i = 0; i < uebung_->aufgabe.teile.size(); ++i) {
        blatt.befunde.push_back(antwortPruefen(blatt.antworten.value(qsizetype(i)), uebung_->aufgabe.teile[i].loesung));
        punkte += halbePunkte(blatt.befunde.back().urteil);
    }
    const bool selbst = uebung_->form->unbeantwortet();
    blatt.aufgedeckt = true;
    uebungDecken();
    befundeZeigen(selbst);
    zentrale_.pflanzeGewechselt(sparte(), Fensternummer);
    if (!selbst)
        uebungWerten(gueteVon(punkte, halbePunkte(Urteil::Richtig) * int(blatt.befunde.size())));
}

void Pflanzenfenster::befundeZeigen(bool selbst)
{
    const Uebungsblatt &blatt = uebung_->uebung.jetzt();
    std::vector<frmUeben::Ergebnis> ergebnisse;
    for (size_t i = 0; i < std::min(uebung_->aufgabe.teile.size(), blatt.befunde.size()); ++i)
        ergebnisse.push_back({blatt.befunde[i], uebung_->aufgabe.teile[i].loesung.text});
    uebung_->form->aufdecken(ergebnisse, selbst);
}

void Pflanzenfenster::uebungWerten(int guete)
{
    Uebung &uebung = uebung_->uebung;
    if (guete < sichereGuete)
        uebung.nochmal();
    uebung_->form->setGehen(uebung.kannGehen(-1), uebung.kannGehen(1));
    AnzeigeAnzahl();
    const QDate faellig = standMerken({{uebung_->aufgabe, guete}});
    if (!faellig.isValid())
        return;
    const QString wann = QStringLiteral("Diese Pflanze sollten Sie am %1 wiederholen.").arg(tagestext(faellig));
    uebung_->form->setHinweis(guete < sichereGuete ? QStringLiteral("Diese Pflanze kommt gleich noch einmal. ") + wann : wann);
}

QDate Pflanzenfenster::standMerken(const std::vector<std::pair<Aufgabe, int>> &guete)
{
    if (!uebung_->merken)
        return {};
    QDate faellig;
    QString meldung;
    try {
        // Read anew each time: another window may be practising, too.
        Lernstand::Geladen geladen = Lernstand::laden(standpfad(programm_));
        meldung = geladen.hinweis;
        for (const auto &[aufgabe, wieGut] : guete) {
            const Lernstand::Schluessel schluessel{eintrag(sparte()).haupttabelle.toString(), aufgabe.artnr, aufgabe.name};
            const Lernwert wert = nachAntwort(geladen.stand.wert(schluessel).value_or(Lernwert()), wieGut, uebungszeit.heute());
            geladen.stand.setWert(schluessel, wert);
            faellig = wert.faellig;
        }
        geladen.stand.speichern(standpfad(programm_));
    } catch (const Fehler &fehler) {
        uebung_->merken = false;
        faellig = {};
        meldung = fehler.text() + QStringLiteral("\n\nSie können weiter üben. Was Sie können, merkt sich Flox nicht.");
    }
    spaeterMelden(meldung);
    return faellig;
}

void Pflanzenfenster::uebungVerlassen()
{
    if (uebung_->pruefung) {
        const QPointer<Pflanzenfenster> ich(this);
        QMessageBox frage(QMessageBox::Question, programmtitel.toString(),
                          QStringLiteral("Soll die Prüfung abgebrochen werden? Die Antworten gehen verloren, es gibt kein Ergebnis."),
                          QMessageBox::NoButton, this);
        const QAbstractButton *ja = frage.addButton(QStringLiteral("Abbrechen"), QMessageBox::DestructiveRole);
        QPushButton *nein = frage.addButton(QStringLiteral("Weiter prüfen"), QMessageBox::RejectRole);
        frage.setDefaultButton(nein);
        frage.setEscapeButton(nein);
        frage.exec();
        // The time may have run out meanwhile.
        if (!ich || !uebung_ || frage.clickedButton() != ja)
            return;
    }
    uebungZurueck();
}

void Pflanzenfenster::uebungZurueck()
{
    const qint64 vorher = uebung_->vorher;
    if (gehtZu(vorher))
        gehen([vorher](Recordset &haupt) { haupt.Finden(vorher); });
    uebungAbbrechen();
    AnzeigeAnzahl();
}

void Pflanzenfenster::uebungAbbrechen()
{
    if (!uebung_)
        return;
    const std::unique_ptr<Uebungslauf> lauf = std::exchange(uebung_, nullptr);
    lauf->takt.stop();
    ansicht_->verdecken(false, {});
    fraBilder_->setVerdeckt(false);
    const bool fokusHier = window()->focusWidget() && isAncestorOf(window()->focusWidget());
    cboArten_->show();
    leisteSperren(false, false);
    for (QAction *befehl : lauf->form->findChildren<QAction *>())
        removeAction(befehl);
    // It may be the sender of what is being handled.
    for (QWidget *teil : {static_cast<QWidget *>(lauf->form), static_cast<QWidget *>(lauf->auswahlDecke)})
        if (teil) {
            teil->hide();
            teil->setParent(nullptr);
            teil->deleteLater();
        }
    if (fokusHier)
        (lauf->fokus && isAncestorOf(lauf->fokus) ? lauf->fokus.data() : static_cast<QWidget *>(cboArten_))->setFocus(Qt::OtherFocusReason);
    if (geschlossen_)
        return;
    NaviPruefung();
    zustandZeigen();
    zentrale_.pflanzeGewechselt(sparte(), Fensternummer);
}

bool Pflanzenfenster::uebungstaste(const QKeyEvent &taste)
{
    if (!uebung_ || (taste.modifiers() & ~Qt::KeypadModifier) != 0)
        return false;
    if (taste.key() == Qt::Key_Escape)
        geschuetztAusfuehren(this, [this] { uebungVerlassen(); });
    else if (taste.key() == Qt::Key_Space)
        geschuetztAusfuehren(this, [this] { uebungAufdecken(); });
    else
        return false;
    return true;
}

/* The examination. */

void Pflanzenfenster::pruefungBeginnen()
{
    const std::vector<qint64> folge = pruefungsfolge(satz_.haupt().Schluesselfolge(), *QRandomGenerator::global());
    const Uebung vorher = std::exchange(uebung_->uebung, Uebung(folge));
    try {
        uebungsblattZeigen();
    } catch (const Fehler &) {
        uebung_->uebung = vorher;
        throw;
    }
    uebung_->pruefung.emplace(uebungszeit.uhr, pruefungszeit * qint64(folge.size()));
    uebung_->form->setPruefung(true);
    leisteSperren(true, true);
    AnzeigeAnzahl();
    zustandZeigen();
    uhrZeigen();
    uebung_->takt.start(takt);
}

void Pflanzenfenster::uhrZeigen()
{
    if (!uebung_ || !uebung_->pruefung)
        return;
    const qint64 rest = uebung_->pruefung->rest();
    uebung_->form->setUhr(uhrtext(rest), rest <= knappeZeit);
    if (rest <= 0)
        pruefungAbgeben(false);
}

void Pflanzenfenster::pruefungAbgeben(bool fragen)
{
    uebung_->uebung.jetzt().antworten = uebung_->form->antworten();
    const auto offen = std::ranges::count_if(uebung_->uebung.blaetter(), [](const Uebungsblatt &blatt) {
        return std::ranges::all_of(blatt.antworten, [](const QString &antwort) { return antwort.trimmed().isEmpty(); });
    });
    if (fragen && offen > 0) {
        const QPointer<Pflanzenfenster> ich(this);
        QMessageBox frage(QMessageBox::Question, programmtitel.toString(),
                          offen == 1 ? QStringLiteral("Zu einer Pflanze steht noch keine Antwort. Soll die Prüfung abgegeben werden?")
                                     : QStringLiteral("Zu %1 Pflanzen steht noch keine Antwort. Soll die Prüfung abgegeben werden?").arg(offen),
                          QMessageBox::NoButton, this);
        const QAbstractButton *ja = frage.addButton(QStringLiteral("Abgeben"), QMessageBox::AcceptRole);
        QPushButton *nein = frage.addButton(QStringLiteral("Weiter prüfen"), QMessageBox::RejectRole);
        frage.setDefaultButton(nein);
        frage.setEscapeButton(nein);
        frage.exec();
        if (!ich || !uebung_ || !uebung_->pruefung || frage.clickedButton() != ja)
            return;
    }
    uebung_->takt.stop();
    const Pruefungsergebnis ergebnis = pruefungAuswerten();
    // The result is shown whatever hinders the way back.
    std::exception_ptr hindernis;
    try {
        uebungZurueck();
    } catch (const Fehler &) {
        hindernis = std::current_exception();
        uebungAbbrechen();
    }
    auto *form = new frmPruefung(ergebnis, this);
    form->setAttribute(Qt::WA_DeleteOnClose);
    connect(form, &frmPruefung::druckenGewuenscht, this, geschuetzt(form, [this, form] { zentrale_.ergebnisDrucken(form->ergebnis(), form); }));
    form->open();
    if (hindernis)
        std::rethrow_exception(hindernis);
}

Pruefungsergebnis Pflanzenfenster::pruefungAuswerten()
{
    Pruefungsergebnis ergebnis{.sparte = eintrag(sparte()).titel.toString(),
                               .tag = uebungszeit.heute(),
                               .pflanzen = int(uebung_->uebung.anzahl()),
                               .dauer = uebung_->pruefung->vergangen()};
    std::vector<std::pair<Aufgabe, int>> guete;
    Recordset &haupt = satz_.haupt();
    const qint64 stelle = satz_.artnr();
    int nummer = 0;
    for (const Uebungsblatt &blatt : uebung_->uebung.blaetter()) {
        ++nummer;
        if (!haupt.Finden(blatt.artnr))
            continue;
        const Aufgabe aufgabe = aufgabeVon(satz_, beschreibung_);
        int punkte = 0;
        for (size_t i = 0; i < aufgabe.teile.size(); ++i) {
            const auto &[frage, loesung] = aufgabe.teile[i];
            const QString gegeben = blatt.antworten.value(qsizetype(i)).simplified();
            const Befund befund = antwortPruefen(gegeben, loesung);
            punkte += halbePunkte(befund.urteil);
            ergebnis.zeilen.push_back({nummer, aufgabe.name, frage->titel.toString(), gegeben, loesung.text, befund});
        }
        guete.emplace_back(aufgabe, gueteVon(punkte, halbePunkte(Urteil::Richtig) * int(aufgabe.teile.size())));
    }
    haupt.Finden(stelle);
    standMerken(guete);
    return ergebnis;
}
