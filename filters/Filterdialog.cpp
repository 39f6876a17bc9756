#include "Filterdialog.h"

#include "Filterdatei.h"
#include "Filterlauf.h"
#include "Filtername.h"
#include "Filterziel.h"
#include "Trefferanzeige.h"
#include "controls/Dateifrage.h"
#include "controls/Geschuetzt.h"
#include "controls/Sanduhr.h"
#include "store/Dateien.h"
#include "store/Pfade.h"
#include "store/Programm.h"

#include <QCheckBox>
#include <QCloseEvent>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPointer>
#include <QPushButton>
#include <QScopeGuard>
#include <QScopedValueRollback>
#include <QTabWidget>

Filterzustand Filterdialog::zustand() const
{
    Filterzustand zustand;
    for (const Zeile &zeile : zeilen_)
        zustand.kriterien.push_back(zeile.zustand());
    return zustand;
}

template<typename F>
void Filterdialog::gesammelt(F &&aendern)
{
    {
        const QScopedValueRollback sammelt(gesammelt_, true);
        setUpdatesEnabled(false);
        const auto malen = qScopeGuard([this] { setUpdatesEnabled(true); });
        aendern();
    }
    zaehlen();
}

void Filterdialog::ruecksetzen(bool auchBewertung)
{
    gesammelt([&] { vorgeben(auchBewertung); });
}

void Filterdialog::setZustand(const Filterzustand &zustand)
{
    gesammelt([&] {
        for (size_t k = 0; k < zeilen_.size(); ++k) {
            zeilen_[k].a->setZustand(zustand.kriterien[k].a);
            if (zeilen_[k].b)
                zeilen_[k].b->setZustand(zustand.kriterien[k].b);
        }
    });
}

void Filterdialog::vorgeben(bool auchBewertung)
{
    for (size_t k = 0; k < zeilen_.size(); ++k) {
        const Pruefung pruefung = beschreibung_.kriterien[k].pruefung;
        if (pruefung == Pruefung::Bewertung && !auchBewertung)
            continue;
        zeilen_[k].a->vorgeben();
        if (zeilen_[k].b && pruefung != Pruefung::Bild)
            zeilen_[k].b->vorgeben();
    }
}

QString Filterdialog::reitertext(int reiter, int anzahl) const
{
    const QString name = beschreibung_.reiter[size_t(reiter)].toString();
    return anzahl ? QStringLiteral("%1 (%2)").arg(name).arg(anzahl) : name;
}

void Filterdialog::zaehlen()
{
    if (gesammelt_)
        return;
    std::vector<int> anzahl(beschreibung_.reiter.size());
    for (size_t k = 0; k < zeilen_.size(); ++k)
        if (const Kriterium &kriterium = beschreibung_.kriterien[k]; kriterium.reiter >= 0)
            anzahl[size_t(kriterium.reiter)] += zeigtAktiv(kriterium, zeilen_[k].zustand());
    for (int i = 0; i < int(anzahl.size()); ++i) {
        const QString text = reitertext(i, anzahl[size_t(i)]);
        if (SSTab1_->tabText(i) != text)
            SSTab1_->setTabText(i, text);
    }
    treffer_->geaendert();
}

void Filterdialog::cmdOK_Click()
{
    // A message lets the program go on, to its end even: dialog and window may be gone after it.
    const QPointer<Filterdialog> ich(this);
    Laufergebnis ergebnis;
    const bool gelaufen = geschuetztAusfuehren(vorn(), [&] {
        const Sanduhr sanduhr(this);
        Datenbank &kopie = ziel_.allePflanzen();
        try {
            ergebnis = filterLauf(kopie, ziel_.arbeitsdatenbank(), beschreibung_, zustand(), treffer_->uebrig());
        } catch (const Eingabefehler &fehler) {
            eingabeZeigen(fehler); // the message comes over it
            throw;
        }
    });
    if (gelaufen && ergebnis.uebrig.empty())
        QMessageBox::warning(vorn(), QStringLiteral("Keine passende Pflanze!"),
                             QStringLiteral("Leider gibt es keine Pflanze mit \rden gewünschten Merkmalen!"));
    if (!ich)
        return;
    if (!gelaufen || ergebnis.uebrig.empty()) {
        try {
            ziel_.filterVerworfen();
        } catch (const Fehler &fehler) {
            if (gelaufen) // otherwise the user has been told
                fehlerZeigen(vorn(), fehler.text());
        }
        return;
    }
    if (geschuetztAusfuehren(vorn(), [&] { ziel_.filterGelaufen(ergebnis); }) && ich)
        cmdAbbruch_Click();
}

void Filterdialog::eingabeZeigen(const Eingabefehler &fehler)
{
    const Zeile &zeile = zeilen_[size_t(fehler.kriterium - beschreibung_.kriterien.data())];
    QWidget *feld = (fehler.zweites ? zeile.b : zeile.a)->widgets().front();
    if (fehler.kriterium->reiter >= 0)
        SSTab1_->setCurrentIndex(fehler.kriterium->reiter);
    feld->setFocus();
    if (auto *text = qobject_cast<QLineEdit *>(feld))
        text->selectAll();
}

void Filterdialog::cmdAbbruch_Click()
{
    hide();
    geschuetztAusfuehren(this, [this] { ziel_.dialogVerlassen(); });
}

void Filterdialog::Form_Activate()
{
    Monatsbeschriftung();
    dateisperreZeigen();
    if (auto *chkOhneBild = findChild<QCheckBox *>(QStringLiteral("chkOhneBild"))) {
        chkOhneBild->setVisible(programm_.HausModus);
        if (!programm_.HausModus)
            chkOhneBild->setChecked(false);
    }
    ansagen();
}

void Filterdialog::Monatsbeschriftung()
{
    for (const Zeile &zeile : zeilen_)
        for (Filtersteuerung *steuerung : {zeile.a.get(), zeile.b.get()})
            if (steuerung)
                steuerung->auffrischen();
}

void Filterdialog::ausbildungWaehlen(int i)
{
    if (auto *kaestchen = findChild<QCheckBox *>(QStringLiteral("chkAusbildung_%1").arg(i)))
        kaestchen->setChecked(true);
}

bool Filterdialog::FilterLaden(const QString &pfad)
{
    return ladeDatei(pfad);
}

bool Filterdialog::ladeDatei(const QString &pfad)
{
    QFile datei(systemPfad(pfad));
    const bool offen = !programm_.FilterdateiGestoert && datei.open(QIODevice::ReadOnly);
    const Filterwert wertSetzen = [this](int k, bool zweites, int element, int wert, const QString &text) {
        (zweites ? zeilen_[size_t(k)].b : zeilen_[size_t(k)].a)->setzen(element, wert, text);
    };
    bool ganz = false;
    gesammelt([&] { ganz = offen && filterLesen(beschreibung_, datei.readAll(), wertSetzen); });
    if (ganz)
        return true;
    programm_.FilterdateiGestoert = programm_.FilterdateiGestoert || offen;
    dateisperreZeigen();
    QMessageBox(QMessageBox::NoIcon, QString(), QStringLiteral("Fehler beim Laden des Filters"), QMessageBox::Ok, vorn()).exec();
    return false;
}

void Filterdialog::FilterSpeichern(const QString &pfad)
{
    if (programm_.FilterdateiGestoert)
        throw Fehler(
            QStringLiteral("Die Filterdatei '%1' kann nicht geschrieben werden.\n%2").arg(QDir::toNativeSeparators(systemPfad(pfad)), dateisperre));
    schreibeSicher(systemPfad(pfad), filterSchreiben(beschreibung_, zustand()));
}

void Filterdialog::dateisperreZeigen()
{
    findChild<QLabel *>(QStringLiteral("lblHinweis"))->setVisible(programm_.FilterdateiGestoert);
}

void Filterdialog::DialogLaden()
{
    Dateifrage frage(this, QStringLiteral("Filter laden"), beschreibung_.ladeFilter, dateimuster(beschreibung_.speicherFilter),
                     programm_.FilterOrdner);
    frage.setFileMode(QFileDialog::ExistingFile);
    const QString pfad = frage.fragen();
    if (pfad.isEmpty()) {
        cmdAbbruch_Click();
        return;
    }
    programm_.FilterOrdner = QFileInfo(pfad).absolutePath();
    try {
        if (ladeDatei(pfad))
            findChild<QPushButton *>(QStringLiteral("cmdOK"))->setFocus();
    } catch (const Fehler &fehler) {
        constexpr int unbekannterFehler = 51;
        QMessageBox::critical(this, QStringLiteral("Laufzeitfehler (Dialog_Laden)"),
                              QStringLiteral("%1 (%2)").arg(fehler.text()).arg(unbekannterFehler));
    }
}

void Filterdialog::DialogSpeichernunter()
{
    const QString endung = dateimuster(beschreibung_.speicherFilter);
    const QString name = filtername(beschreibung_, zustand(), [this](const Kriterium &kriterium, const Steuerteil &teil, int i) {
        return beschriftung(umgebung_, kriterium, teil, i);
    });
    Dateifrage frage(this, QStringLiteral("Filter speichern"), beschreibung_.speicherFilter, name.isEmpty() ? endung : name + endung.mid(1),
                     programm_.FilterOrdner);
    frage.setAcceptMode(QFileDialog::AcceptSave);
    frage.setFileMode(QFileDialog::AnyFile);
    frage.setDefaultSuffix(endung.mid(2));
    const QString pfad = frage.fragen();
    if (pfad.isEmpty())
        return;
    FilterSpeichern(pfad);
    programm_.FilterOrdner = QFileInfo(pfad).absolutePath();
}

void Filterdialog::closeEvent(QCloseEvent *ereignis)
{
    ereignis->ignore();
    cmdAbbruch_Click();
}

void Filterdialog::keyPressEvent(QKeyEvent *ereignis)
{
    if (ereignis->key() == Qt::Key_Escape)
        cmdAbbruch_Click();
    else if (ereignis->key() == Qt::Key_Return || ereignis->key() == Qt::Key_Enter)
        cmdOK_Click();
    else if (ereignis->key() == Qt::Key_F1)
        emit hilfeGewuenscht();
    else
        QWidget::keyPressEvent(ereignis);
}

bool Filterdialog::event(QEvent *ereignis)
{
    // Being shown counts: not every window system tells a window anew that it is the active one.
    if (ereignis->type() == QEvent::WindowActivate || ereignis->type() == QEvent::Show)
        Form_Activate();
    if (ereignis->type() == QEvent::Show)
        treffer_->beginnen();
    if (ereignis->type() == QEvent::Hide)
        treffer_->beenden();
    return QWidget::event(ereignis);
}
