#include "Pflanzenfenster.h"

#include "Artenmodell.h"
#include "Uebungslauf.h"
#include "Zentrale.h"
#include "controls/Sanduhr.h"
#include "controls/Steuerelemente.h"
#include "filters/Filterdialog.h"
#include "filters/Filterlauf.h"
#include "store/Pfade.h"

#include <QComboBox>
#include <QFile>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QScreen>

#include <algorithm>

/* The window's side of its filter: what the buttons hand over to the dialog, and what the dialog asks of the window. */

namespace {

/// Frame that the window system draws around a window. A window that was never shown has none yet; it will get one like its neighbour's.
QMargins rahmenVon(const QWidget &fenster)
{
    const QRect aussen = fenster.frameGeometry(), innen = fenster.geometry();
    return {innen.left() - aussen.left(), innen.top() - aussen.top(), aussen.right() - innen.right(), aussen.bottom() - innen.bottom()};
}

/// The dialog, frame included, in the middle of a window, then moved only as far as the screen asks; a dialog that is too large for the
/// screen gets its size.
void mittigZeigen(QWidget &dialog, const QRect &fenster, const QMargins &rahmen, const QRect &schirm)
{
    dialog.resize(dialog.size().boundedTo(schirm.marginsRemoved(rahmen).size()));
    const QSize ganz = dialog.size().grownBy(rahmen);
    const auto stelle = [](int mitte, int laenge, int anfang, int ende) { return std::max(anfang, std::min(mitte, ende - laenge)); };
    dialog.move(stelle(fenster.left() + (fenster.width() - dialog.width()) / 2, ganz.width(), schirm.left(), schirm.right() + 1),
                stelle(fenster.top() + (fenster.height() - dialog.height()) / 2, ganz.height(), schirm.top(), schirm.bottom() + 1));
}

} // namespace

Filterdialog *Pflanzenfenster::filterdialog()
{
    const Filterbeschreibung *beschreibung = filterbeschreibung(sparte());
    if (!filter_ && beschreibung) {
        filter_ = new Filterdialog(programm_, *this, *beschreibung, Fensternummer, window() == this ? nullptr : window());
        connect(filter_, &Filterdialog::hilfeGewuenscht, this, [this] { zentrale_.hilfeZeigen(Filterdialog::hilfethema.toString()); });
    }
    return filter_;
}

QString Pflanzenfenster::parkdatei() const
{
    const SpartenEintrag &zeile = eintrag(sparte());
    return zeile.parkFilter.isEmpty() ? laufdatei(zeile.tempFilter, zeile.filterEndung) : laufdatei(zeile.parkFilter, zeile.parkEndung);
}

QString Pflanzenfenster::laufdatei(QStringView anfang, QStringView endung) const
{
    return QStringLiteral("%1%2%3%4").arg(programm_.laufordner(), anfang).arg(Fensternummer).arg(endung);
}

void Pflanzenfenster::filterInKraft()
{
    if (!FilterEin)
        filterUmschalten();
}

void Pflanzenfenster::filterZeigen()
{
    filterInKraft();
    QWidget *fokus = window()->focusWidget();
    fokusVorher_ = fokus && isAncestorOf(fokus) ? fokus : knopf(Knopf::Filter);
    zentrale_.FensterSperren(sparte());
    mittigZeigen(*filter_, QRect(mapToGlobal(QPoint(0, 0)), size()), rahmenVon(*window()), screen()->availableGeometry());
    filter_->show();
    filter_->raise();
    filter_->activateWindow();
}

void Pflanzenfenster::filterLaden()
{
    filterZeigen();
    filter_->Form_Activate();
    filter_->DialogLaden();
}

void Pflanzenfenster::filterAusDatei(const QString &pfad)
{
    aktivMelden();
    datenFordern();
    if (DatenGeaendert)
        BenutzerdatenSpeichern();
    if (!filterdialog())
        return;
    filterInKraft();
    filter_->Form_Activate();
    // The dialog is not shown for it: where one comes and goes at once, a window manager may leave the keyboard with nobody.
    const QPointer<Pflanzenfenster> ich(this);
    const bool geladen = filter_->FilterLaden(pfad);
    if (geladen && ich)
        filter_->cmdOK_Click();
    // But where it did not do, it stands there to be mended.
    if (ich && !(geladen && gelaufen_))
        filterZeigen();
}

void Pflanzenfenster::filterSpeichern()
{
    filterInKraft();
    filter_->DialogSpeichernunter();
}

void Pflanzenfenster::filterUmschalten()
{
    Bildknopf *button = knopf(Knopf::FilterEin);
    const Sanduhr sanduhr(this);
    const QString park = parkdatei();
    if (!FilterEin) {
        FilterEin = true;
        filter_->FilterLaden(park);
        filter_->cmdOK_Click();
        QFile::remove(systemPfad(park));
        button->setBild(QStringLiteral("filter_n"));
    } else {
        button->setBild(QStringLiteral("filter"));
        filter_->FilterSpeichern(park); // a filter that cannot be parked stays in force
        filter_->RuecksetzenFenster();
        filter_->cmdOK_Click();
        // The run has painted the button for a filter in force.
        FilterEin = false;
        button->setBild(QStringLiteral("filter"));
        zentrale_.mulkoSpeichernErlauben(false);
    }
    NaviPruefung();
    zustandZeigen();
}

void Pflanzenfenster::zustandZeigen()
{
    QString satz = QStringLiteral("Alle Pflanzen");
    // The dialog may show by now what no run was asked for.
    if (gelaufen_)
        satz = (FilterEin ? QString() : QStringLiteral("Filter aus – ")) + zentrale_.filtersatz(sparte(), *gelaufen_);
    const qsizetype alle = gelaufen_ ? gesamt_ : Anzahl;
    satz += QStringLiteral(" – %1 von %2").arg(Anzahl).arg(alle);
    // What the filter asks for may be a name.
    if (uebung_)
        satz = uebung_->pruefung ? QStringLiteral("Prüfung") : QStringLiteral("Üben – %1 Pflanzen").arg(Anzahl);
    QLabel *feld = stbAnzeige_[0];
    feld->setText(satz);
    feld->setToolTip(satz);
    feld->setAccessibleDescription(satz);
}

Datenbank &Pflanzenfenster::allePflanzen()
{
    const int nummer = eigeneNummer();
    // The copy of the opening is still good at the run that follows it; later another window may have stored a note.
    if (!ErsteAktivierung || !satz_.offen() || !satz_.frisch()) {
        DatensätzeAuffüllen();
        satz_.oeffnen(nummer);
    }
    return satz_.kopie();
}

void Pflanzenfenster::filterGelaufen(const Laufergebnis &ergebnis)
{
    eigeneNummer();
    uebungAbbrechen();
    satz_.ausgeduennt(ergebnis.uebrig, ergebnis.gesamt);
    gesamt_ = ergebnis.gesamt;
    gelaufen_ = filterdialog()->zustand();
    DatenOrdnen();
    satz_.haupt().MoveFirst();
    cboArten_->setCurrentIndex(int(satz_.haupt().AbsolutePosition()));
    darstellen();
    for (const Knopf welcher : {Knopf::FilterSpeichern, Knopf::FilterEin})
        knopf(welcher)->setEnabled(true);
    FilterEin = true;
    FilterGesetzt = true;
    for (const Knopf welcher : {Knopf::FilterSpeichern, Knopf::FilterEin})
        reihe_.malen(*knopf(welcher), Knopfzustand::Normal);
    zentrale_.mulkoSpeichernErlauben(true);
    zustandZeigen();
    unsetCursor();
}

void Pflanzenfenster::filterVerworfen()
{
    gelaufen_.reset();
    uebungAbbrechen();
    const std::exception_ptr kopierfehler = datenHolen();
    satz_.alleNehmen();
    DatenOrdnen();
    darstellen();
    zustandZeigen();
    if (kopierfehler)
        std::rethrow_exception(kopierfehler);
}

void Pflanzenfenster::dialogVerlassen()
{
    eigeneNummer();
    zentrale_.FensterFreigeben(sparte());
    NaviPruefung();
    imHauptfensterNachVorn();
    fokusZurueck();
}

void Pflanzenfenster::imHauptfensterNachVorn()
{
    if (auto *unterfenster = qobject_cast<QMdiSubWindow *>(parentWidget()); unterfenster && unterfenster->mdiArea())
        unterfenster->mdiArea()->setActiveSubWindow(unterfenster);
    raise();
}

void Pflanzenfenster::fokusZurueck()
{
    // A run that nobody saw a dialog for took no focus.
    QWidget *vorher = std::exchange(fokusVorher_, nullptr);
    if (!vorher || !isEnabled())
        return;
    // Locking took the focus away. The main window is not active yet: when it is, the window that has its focus comes to the front.
    vorher->setFocus(Qt::ActiveWindowFocusReason);
    // The note may belong to another plant by now.
    notizVerlassen();
    // A window manager need not find another window to activate.
    activateWindow();
}
