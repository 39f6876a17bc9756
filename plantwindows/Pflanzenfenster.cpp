#include "Pflanzenfenster.h"

#include "Artenmodell.h"
#include "Pflanzenansicht.h"
#include "Suchbestand.h"
#include "controls/Geschuetzt.h"
#include "controls/Sanduhr.h"
#include "controls/Steuerelemente.h"
#include "Uebungslauf.h"
#include "Zentrale.h"
#include "filters/Filterdialog.h"
#include "pictures/frmUebersicht.h"
#include "store/Nebentabellen.h"
#include "store/Pfade.h"

#include <QApplication>
#include <QCloseEvent>
#include <QComboBox>
#include <QFile>
#include <QInputMethod>
#include <QKeyEvent>
#include <QLabel>
#include <QScopeGuard>
#include <QSignalBlocker>

namespace {

constexpr int hinweisdauer = 6000; // milliseconds: a hint that no mouse ends
constexpr int suchbeginn = 1500;   // milliseconds: the window has come up

} // namespace

Pflanzenfenster::Pflanzenfenster(Programm &programm, Zentrale &zentrale, const Fensterbeschreibung &beschreibung, int nummer)
    : Fensternummer(nummer), programm_(programm), zentrale_(zentrale), beschreibung_(beschreibung), satz_(programm, eintrag(beschreibung.sparte))
{
    setObjectName(QStringLiteral("%1_%2").arg(QLatin1String(eintrag(beschreibung.sparte).fenster)).arg(nummer));
    setProperty("Tag", QString::number(nummer));
    setWindowTitle(titel());
    setFocusPolicy(Qt::ClickFocus);
    aufbauen();
}

Pflanzenfenster::~Pflanzenfenster()
{
    // A window that was never closed leaves as little behind as one that was.
    if (geschlossen_)
        return;
    notizRetten();
    aufraeumen();
    if (!ErsteAktivierung)
        zentrale_.fensterGeschlossen(sparte(), Fensternummer);
}

QString Pflanzenfenster::titel() const
{
    return QStringLiteral("%1 %2").arg(eintrag(sparte()).titel).arg(Fensternummer);
}

void Pflanzenfenster::aktivMelden()
{
    programm_.AktiveSparte = eintrag(sparte()).wort.toString();
    eigeneNummer();
}

int Pflanzenfenster::eigeneNummer()
{
    return programm_.aktuellesFenster(sparte()) = Fensternummer;
}

void Pflanzenfenster::Form_Activate()
{
    aktivMelden();
    ansicht_->nummerSichtbar(programm_.HausModus);
    if (ErsteAktivierung) {
        (void)datenHolen(); // the run below tells of a copy that cannot be made
        DatenOrdnen();
        BilderAnzahl = 10;
        Monatsbeschriftung();
        darstellen();
        NaviPruefung();
        zustandZeigen();
        if (Filterdialog *dialog = filterdialog()) {
            for (size_t i = 0; i < programm_.AzubiAuswahl.size(); ++i)
                if (programm_.AzubiAuswahl[i])
                    dialog->ausbildungWaehlen(int(i));
            dialog->cmdOK_Click();
        }
        ErsteAktivierung = false;
        suchbeginn_.start(suchbeginn);
        if (const QString satz = fehlendeNebentabellen(satz_.arbeitsdatenbank(), eintrag(sparte())); !satz.isEmpty())
            fehlerZeigen(this, satz);
    }
    zentrale_.mulkoSpeichernErlauben(FilterGesetzt && FilterEin);
    unsetCursor();
}

void Pflanzenfenster::DatensätzeAuffüllen()
{
    arten_->neu(nullptr, Botanisch);
    hatKopie_ = true;
    satz_.auffuellen(eigeneNummer());
}

std::exception_ptr Pflanzenfenster::datenHolen()
{
    try {
        DatensätzeAuffüllen();
        satz_.oeffnen(eigeneNummer());
        return nullptr;
    } catch (const Fehler &) {
        satz_.ohneKopie();
        return std::current_exception();
    }
}

void Pflanzenfenster::datenFordern()
{
    if (satz_.offen())
        return;
    (void)datenHolen(); // the next run tells of a copy that cannot be made
    satz_.alleNehmen();
    gelaufen_.reset();
    satz_.haupt().Finden(gezeigt_);
    DatenOrdnen();
    darstellen();
    NaviPruefung();
    zustandZeigen();
}

void Pflanzenfenster::Sortieren()
{
    arten_->neu(nullptr, Botanisch);
    satz_.sortieren(programm_.SortierFeld);
}

void Pflanzenfenster::DatenOrdnen()
{
    // A list that is filled anew chooses its first line by itself: with the focus in the selector that would be taken for the user's choice.
    const QSignalBlocker ruhe(cboArten_);
    const QString gemerkt = Auslesen(QStringLiteral("BOT_NAME"));
    const qint64 nummer = satz_.artnr();
    programm_.SortierFeld = Botanisch ? QStringLiteral("BOT_NAME") : QStringLiteral("DTNAM");
    Sortieren();
    Recordset &haupt = satz_.haupt();
    Anzahl = int(haupt.RecordCount());
    if (!ErsteAktivierung && nummer != 0) {
        // The same record; where it is gone, the first of its name.
        if (!haupt.Finden(nummer))
            haupt.FindFirst(QStringLiteral("BOT_NAME"), gemerkt);
    }
    arten_->neu(&haupt, Botanisch);
    cboArten_->setCurrentIndex(int(haupt.AbsolutePosition()));
    uebersichtNachziehen();
}

void Pflanzenfenster::darstellen()
{
    if (!satz_.offen())
        return;
    struct Malpause
    {
        QWidget *fenster;
        explicit Malpause(QWidget *f) : fenster(f) { fenster->setUpdatesEnabled(false); }
        ~Malpause() { fenster->setUpdatesEnabled(true); }
    } pause(this);
    // First, and both or none: what they show and the record they belong to must never part.
    benutzerfelderZeigen();
    if (!uebung_)
        verlauf_.besuchen(satz_.artnr());
    hinweis(QString()); // what it told of may be another plant's
    ansicht_->zeigen(satz_);
    if (uebung_)
        uebungDecken();
    unterschiedeZeigen();
    bilderZeigen();
    AnzeigeAnzahl();
    zentrale_.pflanzeGewechselt(sparte(), Fensternummer);
    if (satz_.artnr() && !satz_.herkunft())
        herkunftMelden();
}

void Pflanzenfenster::herkunftMelden()
{
    if (std::exchange(meldet_, true))
        return;
    // A box runs events, and whoever shows a record has more to do.
    QMetaObject::invokeMethod(
        this,
        [this] {
        const QPointer<Pflanzenfenster> ich(this);
        QMessageBox::warning(this, programmtitel.toString(), QStringLiteral("Unbekannte Datenbank!"));
        if (ich)
            meldet_ = false;
        },
        Qt::QueuedConnection);
}

void Pflanzenfenster::benutzerfelderZeigen()
{
    // All that can fail comes before anything is shown.
    satz_.benutzerLesen();
    const QString name = Auslesen(QStringLiteral("BOT_NAME"));
    const bool behalten = DatenGeaendert && satz_.artnr() == gezeigt_;
    gezeigt_ = satz_.artnr();
    gezeigterName_ = name;
    ansicht_->benutzerfelderZeigen(satz_, behalten);
}

void Pflanzenfenster::AnzeigeAnzahl()
{
    if (uebung_) {
        // The place in the set would tell how the name begins.
        stbAnzeige_[3]->setText(QStringLiteral("%1/%2").arg(uebung_->uebung.stelle() + 1).arg(uebung_->uebung.anzahl()));
        return;
    }
    const qsizetype stelle = satz_.offen() ? satz_.haupt().AbsolutePosition() : -1;
    stbAnzeige_[3]->setText(QStringLiteral("%1/%2").arg(stelle + 1).arg(Anzahl));
}

void Pflanzenfenster::Monatsbeschriftung()
{
    ansicht_->monateBeschriften();
}

void Pflanzenfenster::eigenschaftenBenennen()
{
    ansicht_->eigenschaftenBenennen();
    zustandZeigen();
}

void Pflanzenfenster::bewegen(Bewegung bewegung)
{
    gehen([bewegung](Recordset &haupt) {
        const qsizetype vorher = haupt.AbsolutePosition();
        (haupt.*bewegung)();
        // A step beyond an end stays where it was.
        if (haupt.AbsolutePosition() < 0 && vorher >= 0)
            haupt.setAbsolutePosition(vorher);
    });
}

void Pflanzenfenster::gehen(const std::function<void(Recordset &)> &schritt)
{
    struct Zeigerende
    {
        QWidget *fenster;
        ~Zeigerende() { fenster->unsetCursor(); }
    } ende{this};
    datenFordern();
    if (DatenGeaendert)
        BenutzerdatenSpeichern();
    notizVerlassen();
    schritt(satz_.haupt());
    cboArten_->setCurrentIndex(int(satz_.haupt().AbsolutePosition()));
    darstellen();
    NaviPruefung();
}

void Pflanzenfenster::artenGewaehlt(bool vomBenutzer)
{
    if (!vomBenutzer || !satz_.offen() || cboArten_->currentIndex() < 0 || cboArten_->currentIndex() == satz_.haupt().AbsolutePosition())
        return;
    const int gewaehlt = cboArten_->currentIndex();
    aktivMelden();
    try {
        if (DatenGeaendert)
            BenutzerdatenSpeichern();
    } catch (const Fehler &) {
        // The record is not left: the selector goes back to it.
        cboArten_->setCurrentIndex(int(satz_.haupt().AbsolutePosition()));
        throw;
    }
    satz_.haupt().setAbsolutePosition(gewaehlt);
    darstellen();
    NaviPruefung();
}

void Pflanzenfenster::botDeu()
{
    const Sanduhr sanduhr(this);
    datenFordern();
    Botanisch = !Botanisch;
    reihe_.malen(*knopf(Knopf::BotDeu), Knopfzustand::Hervorgehoben);
    DatenOrdnen();
    NaviPruefung();
    AnzeigeAnzahl();
}

void Pflanzenfenster::NaviPruefung()
{
    if (!satz_.offen())
        return;
    Recordset &haupt = satz_.haupt();
    haupt.MoveNext();
    naviSetzen(Knopf::Next, Knopf::Last, haupt.Eof());
    haupt.MovePrevious();
    haupt.MovePrevious();
    naviSetzen(Knopf::Back, Knopf::First, haupt.Bof());
    haupt.MoveNext();
}

void Pflanzenfenster::naviSetzen(Knopf innen, Knopf aussen, bool amEnde)
{
    for (const Knopf welcher : {innen, aussen}) {
        Bildknopf *button = knopf(welcher);
        // Disabled under the focus, Qt would hand it to the next button, and Space pressed once more would press that.
        if (amEnde && button->hasFocus())
            cboArten_->setFocus(Qt::OtherFocusReason);
        button->setEnabled(!amEnde);
        amEnde ? reihe_.malen(*button, Knopfzustand::Normal) : reihe_.ruhendMalen(*button);
    }
    knopf(innen)->setTag(amEnde ? QStringLiteral("gesperrt") : QString());
}

QString Pflanzenfenster::knopfbildVon(const Bildknopf &button, Knopfzustand zustand) const
{
    const auto stelle = std::ranges::find(knoepfe_, &button);
    // A window that is locked for a while has its buttons as they are: pale is what cannot be used in it at all.
    return knopfbild(knopfzeilen()[size_t(stelle - knoepfe_.begin())], zustand, button.isEnabledTo(this), umschaltungen());
}

void Pflanzenfenster::knoepfeVerbinden()
{
    for (const Knopfzeile &zeile : knopfzeilen())
        if (Bildknopf *button = knopf(zeile.knopf); button && zeile.navigation) {
            connect(button, &Bildknopf::mausGedrueckt, this, [this] { setCursor(Qt::WaitCursor); });
            connect(button, &Bildknopf::mausLosgelassen, this, [this](bool darauf) {
                // No click follows that would end it.
                if (!darauf)
                    unsetCursor();
            });
        }
    // Let go, these two show what their click brings.
    connect(knopf(Knopf::FilterEin), &Bildknopf::mausLosgelassen, this,
            [this] { knopf(Knopf::FilterEin)->setBild(FilterEin ? QStringLiteral("filter") : QStringLiteral("filter_n")); });
    connect(knopf(Knopf::Filter), &Bildknopf::mausLosgelassen, this, [this] { reihe_.malen(*knopf(Knopf::Filter), Knopfzustand::Normal); });
    const auto beiKlick = [this](Knopf welcher, auto handlung) {
        if (Bildknopf *button = knopf(welcher))
            connect(button, &Bildknopf::clicked, this, geschuetzt(this, [this, handlung = std::move(handlung)] {
                        aktivMelden();
                        handlung();
                    }));
    };
    beiKlick(Knopf::First, [this] { bewegen(&Recordset::MoveFirst); });
    beiKlick(Knopf::Back, [this] { bewegen(&Recordset::MovePrevious); });
    beiKlick(Knopf::Next, [this] { bewegen(&Recordset::MoveNext); });
    beiKlick(Knopf::Last, [this] { bewegen(&Recordset::MoveLast); });
    beiKlick(Knopf::BotDeu, [this] { botDeu(); });
    const auto mitNotizen = [this, &beiKlick](Knopf welcher, void (Pflanzenfenster::*handlung)()) {
        beiKlick(welcher, [this, handlung] {
            if (uebung_)
                uebungZurueck();
            datenFordern();
            if (DatenGeaendert)
                BenutzerdatenSpeichern();
            if (filterdialog())
                (this->*handlung)();
        });
    };
    mitNotizen(Knopf::FilterEin, &Pflanzenfenster::filterUmschalten);
    mitNotizen(Knopf::Filter, &Pflanzenfenster::filterZeigen);
    mitNotizen(Knopf::FilterLaden, &Pflanzenfenster::filterLaden);
    mitNotizen(Knopf::FilterSpeichern, &Pflanzenfenster::filterSpeichern);
    mitNotizen(Knopf::Druck, &Pflanzenfenster::drucken);
    // Connected last: what a click by key has painted as highlighted is no more so when it is over.
    for (const Knopfzeile &zeile : knopfzeilen())
        if (Bildknopf *button = knopf(zeile.knopf))
            connect(button, &Bildknopf::clicked, this, [this, button] {
                if (!button->vonMaus() && !reihe_.unterMaus(*button))
                    reihe_.malen(*button, Knopfzustand::Normal);
            });
}

void Pflanzenfenster::drucken()
{
    zentrale_.drucken();
}

void Pflanzenfenster::BenutzerdatenSpeichern()
{
    if (gezeigt_ == 0 || !ansicht_->hatNotiz())
        return;
    // What an input method still holds belongs to the note.
    QGuiApplication::inputMethod()->commit();
    const Notiz eingabe = notiz();
    // Notes are stored in windows that nobody works in, too: the user's current one stays the current one.
    const auto aktuelles = qScopeGuard([this, vorher = programm_.aktuellesFenster(sparte())] { programm_.aktuellesFenster(sparte()) = vorher; });
    // The database that lasts comes first: what a copy does holds no note back.
    const bool dauerhaft = satz_.benutzerSchreiben(eingabe);
    if (dauerhaft) {
        notizGespeichert();
        Suchbestand::notizGespeichert(programm_.arbeitsdatenbank(), sparte(), eingabe);
        zentrale_.notizGespeichert(sparte(), Fensternummer, eingabe);
    }
    if (!satz_.kopieSchreiben(eigeneNummer(), eingabe) && !dauerhaft)
        throw Fehler(QStringLiteral("Der Datensatz %1 der Tabelle '%2' ist nicht mehr vorhanden.").arg(gezeigt_).arg(eintrag(sparte()).haupttabelle));
    notizGespeichert();
}

void Pflanzenfenster::notizGespeichert()
{
    DatenGeaendert = false;
    ansicht_->uebernehmen();
    unterschiedeZeigen();
}

void Pflanzenfenster::hinweis(const QString &text)
{
    hinweisende_.stop();
    if (stbAnzeige_[1]->text() != text)
        stbAnzeige_[1]->setText(text);
}

void Pflanzenfenster::hinweisFuerEineWeile(const QString &text)
{
    hinweis(text);
    hinweisende_.start(hinweisdauer);
}

bool Pflanzenfenster::eventFilter(QObject *quelle, QEvent *ereignis)
{
    switch (ereignis->type()) {
    case QEvent::MouseMove:
        // The mouse is on a panel: no button is under it, and its panel may end a hint.
        if (quelle->property("leertHinweis").toBool())
            hinweis(QString());
        reihe_.mausDaneben();
        break;
    case QEvent::FocusIn:
    case QEvent::FocusOut:
        if (quelle == cboArten_)
            ArtenHatFokus = ereignis->type() == QEvent::FocusIn || static_cast<QFocusEvent *>(ereignis)->reason() == Qt::PopupFocusReason;
        break;
    default: break;
    }
    return QWidget::eventFilter(quelle, ereignis);
}

void Pflanzenfenster::keyPressEvent(QKeyEvent *ereignis)
{
    if (uebungstaste(*ereignis))
        return;
    if (ereignis->key() == Qt::Key_F1)
        zentrale_.hilfeZeigen(eintrag(sparte()).hilfethema.toString());
    else if (!suchenMitTaste(*ereignis))
        QWidget::keyPressEvent(ereignis);
}

void Pflanzenfenster::focusInEvent(QFocusEvent *ereignis)
{
    aktivMelden();
    QWidget::focusInEvent(ereignis);
}

void Pflanzenfenster::closeEvent(QCloseEvent *ereignis)
{
    if (!notizSichern()) {
        ereignis->ignore();
        return;
    }
    aufraeumen();
    zentrale_.fensterGeschlossen(sparte(), Fensternummer);
    programm_.AktiveSparte.clear();
    ereignis->accept();
}

void Pflanzenfenster::aufraeumen()
{
    geschlossen_ = true;
    uebungAbbrechen();
    verbinden(nullptr);
    eigeneNummer();
    const SpartenEintrag &zeile = eintrag(sparte());
    const bool dialogOffen = filter_ && !filter_->isHidden();
    if (filter_)
        filter_->cmdRuecksetzen_Click();
    delete filter_;
    delete suche_;
    suchbeginn_.stop();
    suchbestand_.reset();
    delete uebersicht_;
    // Where the dialog goes with its window the others must not stay locked.
    if (dialogOffen)
        zentrale_.FensterFreigeben(sparte());
    arten_->neu(nullptr, Botanisch);
    satz_.schliessen();
    // Of a window that never had data the file, if there is one, is not its own.
    if (hatKopie_)
        QFile::remove(systemPfad(satz_.tempPfad(Fensternummer)));
    if (!FilterEin)
        QFile::remove(systemPfad(laufdatei(zeile.tempFilter, zeile.filterEndung)));
}
