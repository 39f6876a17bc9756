#include "Datenbankwechsel.h"

#include "Aufheben.h"
#include "Befehle.h"
#include "Einstellungen.h"
#include "frmDateiAuswahl.h"
#include "frmHinweis.h"
#include "frmMoment.h"
#include "controls/Dateifrage.h"
#include "controls/Geschuetzt.h"
#include "store/Dateien.h"
#include "store/Datenbestand.h"
#include "store/Schadenspruefung.h"
#include "store/Sicherungen.h"

#include <QApplication>
#include <QDir>
#include <QFileInfo>
#include <QScopeGuard>

namespace {

constexpr QStringView ladeFilter = u"Teilmenge Flox-Datenbank (*.fit)|*.fit|Flox-Datenbank (flox-demo.mdb)|flox-demo.mdb|"
                                   "Access-Datenbank (*.mdb)|*.mdb|Alle Dateien|*.*";
constexpr const char *originalEintrag = "mnuDateiDBLadenOriginal";

/// The main window rests for as long as this lives.
class Ruhe
{
public:
    explicit Ruhe(Befehlsumgebung &umgebung) : umgebung_(umgebung), fenster_(umgebung.hauptfenster()), fokus_(QApplication::focusWidget())
    {
        umgebung_.aktualisierenErlauben(false);
        if (fenster_)
            fenster_->setEnabled(false);
    }
    ~Ruhe()
    {
        if (fenster_)
            fenster_->setEnabled(true);
        if (fokus_)
            fokus_->setFocus();
        umgebung_.aktualisierenErlauben(true);
    }
    Ruhe(const Ruhe &) = delete;
    Ruhe &operator=(const Ruhe &) = delete;

private:
    Befehlsumgebung &umgebung_;
    QPointer<QWidget> fenster_, fokus_;
};

QString liegtHier(const QStringList &kopien)
{
    if (kopien.isEmpty())
        return {};
    QString text = QStringLiteral("\n\nDie bisherige Datenbank liegt hier:");
    for (const QString &kopie : kopien)
        text += u'\n' + QDir::toNativeSeparators(kopie);
    return text;
}

QString fehltHier(const QStringList &spalten)
{
    constexpr qsizetype meiste = 12;
    if (spalten.isEmpty())
        return {};
    QString text = QStringLiteral("\n\nIn ihr fehlen Felder; was in ihnen stünde, kann nicht angezeigt werden:\n%1")
                       .arg(spalten.first(std::min(meiste, spalten.size())).join(QStringLiteral(", ")));
    return spalten.size() > meiste ? text + QStringLiteral(" und %1 weitere").arg(spalten.size() - meiste) : text;
}

} // namespace

void Datenbankwechsel::mnuDateiDBLadenOriginal_Click()
{
    klick(Wahl::Original);
}

void Datenbankwechsel::mnuDateiDBLadenBenutzer_Click()
{
    if (!programm_.HinweisAus[frmHinweis::laden]) {
        programm_.HinweisNummer = frmHinweis::laden;
        frmHinweis hinweis(programm_, umgebung_.hauptfenster());
        umgebung_.formZeigen(hinweis);
    }
    klick(Wahl::Teilmenge);
}

void Datenbankwechsel::klick(Wahl wahl)
{
    bericht_.clear();
    {
        const auto beide = [this](void (frmMoment::*tat)()) {
            return [this, tat](frmDateiAuswahl &auswahl) {
                const Ruhe ruhe(umgebung_);
                auswahl.setEnabled(false);
                frmMoment moment(*this, umgebung_.hauptfenster());
                (moment.*tat)();
            };
        };
        frmDateiAuswahl auswahl(programm_, beide(&frmMoment::OriginalDBWiederherstellen), beide(&frmMoment::DBFloxAuswaehlen),
                                umgebung_.hauptfenster());
        if (wahl == Wahl::Original)
            auswahl.cmdOriginal_Click();
        else
            auswahl.cmdTeilmenge_Click();
    }
    if (!bericht_.isEmpty())
        QMessageBox::information(umgebung_.hauptfenster(), programmtitel.toString(), bericht_);
}

void Datenbankwechsel::OriginalDBWiederherstellen(frmMoment &moment)
{
    datenbestand::originalFordern(programm_);
    moment.zeigen(QStringLiteral("Die Originaldatenbank wird geladen."));
    if (!austauschen(true, {datenbestand::arbeitsdatei(programm_)},
                     [this] { datenbestand::originalHolen(programm_, [this](bool original) { merken(original); }); }))
        return;
    umgebung_.statussatz(QString());
    umgebung_.erlauben(originalEintrag, false);
    bericht_.prepend(QStringLiteral("Sie arbeiten wieder mit der Originaldatenbank."));
}

void Datenbankwechsel::DBFloxAuswaehlen(frmMoment &moment)
{
    QString pfad;
    {
        Dateifrage frage(umgebung_.hauptfenster(), QStringLiteral("Flox-Datenbank wählen"), ladeFilter, QStringLiteral("*.fit"),
                         sicherungen::ordner(programm_));
        frage.setFileMode(QFileDialog::ExistingFile);
        pfad = frage.fragen([this](QDialog &dialog) { umgebung_.formZeigen(dialog); });
    }
    if (pfad.isEmpty())
        return;
    const QString datei = QDir::toNativeSeparators(pfad);
    if (dieselbeDatei(pfad, datenbestand::arbeitsdatei(programm_))) {
        QMessageBox::information(umgebung_.hauptfenster(), programmtitel.toString(),
                                 QStringLiteral("Mit der Datei '%1' arbeiten Sie gerade. Es wurde nichts geändert.").arg(datei));
        return;
    }
    moment.zeigen(QStringLiteral("Die Datenbank '%1' wird geladen.").arg(QFileInfo(pfad).fileName()));
    const datenbestand::Befund befund = datenbestand::pruefen(programm_, pfad);
    if (!befund.unbekannteTabelle.isEmpty()) {
        moment.hide();
        QMessageBox::warning(umgebung_.hauptfenster(), programmtitel.toString(), datei + QStringLiteral(" ist keine Flox-Datenbank!!"));
        return OriginalDBWiederherstellen(moment);
    }
    const bool altesOriginal = programm_.OriginalDatenbank;
    if (!austauschen(false, datenbestand::ersetzteDateien(programm_, altesOriginal),
                     [&] { datenbestand::laden(programm_, pfad, altesOriginal, [this](bool original) { merken(original); }); }))
        return;
    umgebung_.statussatz(QStringLiteral("Sie arbeiten mit einer Teilmenge der Flox-Datenbank!"));
    umgebung_.erlauben(originalEintrag, true);
    bericht_.prepend(QStringLiteral("Die Datenbank '%1' ist geladen.").arg(QFileInfo(pfad).fileName()));
    bericht_ += fehltHier(befund.fehlendeSpalten);
}

bool Datenbankwechsel::austauschen(bool original, const QStringList &ersetzte, const std::function<void()> &tausch)
{
    if (!umgebung_.NotizenSichern())
        return false;
    const std::optional<QStringList> kopien = aufhebenOderFragen(programm_, umgebung_.hauptfenster(), ersetzte);
    if (!kopien)
        return false;
    // From here on nobody is asked: what was stored and kept above is all there is.
    const bool vorher = std::exchange(programm_.OriginalDatenbank, original);
    umgebung_.bilderSchliessen();
    umgebung_.AlleFensterSchliessen();
    // The search reads the old file; what it says would be taken for the new one's.
    schaden::beenden();
    const auto suche = qScopeGuard([this] { schaden::suchen(programm_.arbeitsdatenbank()); });
    try {
        tausch();
    } catch (const Fehler &) {
        programm_.OriginalDatenbank = vorher;
        (void)OriginalDatenbankSchreiben(programm_);
        throw;
    }
    bericht_ = liegtHier(*kopien);
    return true;
}

void Datenbankwechsel::merken(bool original)
{
    programm_.OriginalDatenbank = original;
    if (!OriginalDatenbankSchreiben(programm_))
        throw Fehler(QStringLiteral("Die Einstellungen können nicht geschrieben werden. Die Datenbank wurde nicht gewechselt."));
}
