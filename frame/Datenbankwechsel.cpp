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
#include "store/Laufordner.h"
#include "store/Schadenspruefung.h"
#include "store/Sicherungen.h"

#include <QApplication>
#include <QDir>
#include <QFileInfo>
#include <QInputDialog>
#include <QScopeGuard>

namespace {

constexpr QStringView ladeFilter = u"Teilmenge Flox-Datenbank (*.fit)|*.fit|Flox-Datenbank (flox-demo.mdb)|flox-demo.mdb|"
                                   "Access-Datenbank (*.mdb)|*.mdb|Alle Dateien|*.*";
const QString wirdGeladen = QStringLiteral("Die Datenbank '%1' wird geladen.");
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

/// Lines that a box has room for: a long one ends at one of its commas.
QString gekuerzt(const QString &text)
{
    constexpr qsizetype laengste = 110;
    QStringList zeilen = text.split(u'\n');
    for (QString &zeile : zeilen)
        if (zeile.size() > laengste)
            zeile = zeile.left(zeile.lastIndexOf(u' ', laengste)) + QStringLiteral(" ...");
    return zeilen.join(u'\n');
}

/// The code page that the user takes the texts of an old file for; nothing: he does not want to load it.
std::optional<int> codeseiteFragen(Befehlsumgebung &umgebung, const accessdatei::Inhalt &inhalt)
{
    constexpr qsizetype probe = 80;
    QStringList namen;
    int vorgabe = 0;
    const std::vector<accessdatei::Codeseitenwahl> alle = accessdatei::codeseiten();
    for (const accessdatei::Codeseitenwahl &eine : alle) {
        if (eine.nummer == inhalt.codeseite)
            vorgabe = int(namen.size());
        namen += eine.name.toString();
    }
    QInputDialog frage(umgebung.hauptfenster());
    frage.setObjectName(QStringLiteral("Codeseite"));
    frage.setWindowTitle(programmtitel.toString());
    frage.setLabelText(QStringLiteral("Die Datei ist mit einer alten Version von Access geschrieben. Ihre Texte passen nicht zu der\nCodeseite, die "
                                      "sie nennt, zum Beispiel dieser:\n\n%1\n\nIn welcher Codeseite sollen sie gelesen werden?")
                           .arg(inhalt.zweifelhaft.left(probe)));
    frage.setComboBoxItems(namen);
    frage.setTextValue(namen.value(vorgabe));
    frage.setOkButtonText(QStringLiteral("OK"));
    frage.setCancelButtonText(QStringLiteral("Abbrechen"));
    umgebung.formZeigen(frage);
    if (frage.result() != QDialog::Accepted)
        return std::nullopt;
    return alle.at(size_t(namen.indexOf(frage.textValue()))).nummer;
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
    einzelheiten_.clear();
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
    berichten();
}

void Datenbankwechsel::dateiLaden(const QString &pfad)
{
    bericht_.clear();
    einzelheiten_.clear();
    {
        const Ruhe ruhe(umgebung_);
        frmMoment moment(*this, umgebung_.hauptfenster());
        laden(moment, pfad);
    }
    berichten();
}

void Datenbankwechsel::berichten()
{
    if (bericht_.isEmpty())
        return;
    QMessageBox meldung(QMessageBox::Information, programmtitel.toString(), bericht_, QMessageBox::Ok, umgebung_.hauptfenster());
    meldung.setDetailedText(einzelheiten_);
    meldung.exec();
}

void Datenbankwechsel::OriginalDBWiederherstellen(frmMoment &moment)
{
    datenbestand::originalFordern(programm_);
    moment.zeigen(QStringLiteral("Die Originaldatenbank wird geladen."));
    if (!austauschen(true, {datenbestand::arbeitsdatei(programm_)}, datenbestand::originaldatei(programm_),
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
    if (!pfad.isEmpty())
        laden(moment, pfad);
}

void Datenbankwechsel::laden(frmMoment &moment, const QString &pfad)
{
    const QString datei = QDir::toNativeSeparators(pfad);
    if (dieselbeDatei(pfad, datenbestand::arbeitsdatei(programm_))) {
        QMessageBox::information(umgebung_.hauptfenster(), programmtitel.toString(),
                                 QStringLiteral("Mit der Datei '%1' arbeiten Sie gerade. Es wurde nichts geändert.").arg(datei));
        return;
    }
    if (accessdatei::istAccessdatei(pfad))
        return accessLaden(moment, pfad);
    const QString name = QFileInfo(pfad).fileName();
    moment.zeigen(wirdGeladen.arg(name));
    const datenbestand::Befund befund = datenbestand::pruefen(programm_, pfad);
    if (!befund.unbekannteTabelle.isEmpty())
        return keineFloxDatenbank(moment, pfad);
    einsetzen(pfad, name, fehltHier(befund.fehlendeSpalten));
}

void Datenbankwechsel::keineFloxDatenbank(frmMoment &moment, const QString &pfad)
{
    moment.hide();
    QMessageBox::warning(umgebung_.hauptfenster(), programmtitel.toString(),
                         QDir::toNativeSeparators(pfad) + QStringLiteral(" ist keine Flox-Datenbank!!"));
    OriginalDBWiederherstellen(moment);
}

void Datenbankwechsel::accessLaden(frmMoment &moment, const QString &pfad)
{
    const QString name = QFileInfo(pfad).fileName(), satz = wirdGeladen.arg(name);
    const auto abgebrochen = [this] { umgebung_.melden(QStringLiteral("Das Laden wurde abgebrochen. Es wurde nichts geändert.")); };
    std::optional<accessdatei::Inhalt> gefunden;
    moment.arbeiten(QStringLiteral("Die Access-Datei '%1' wird gelesen.").arg(name),
                    [&](const Lauf &lauf) { gefunden = accessdatei::inhaltVon(pfad, lauf); });
    if (!gefunden || moment.abgebrochen())
        return abgebrochen();
    const accessdatei::Inhalt inhalt = *std::move(gefunden);
    if (!datenbestand::unbekannteTabelle(programm_, inhalt.tabellen).isEmpty())
        return keineFloxDatenbank(moment, pfad);
    if (!inhalt.verknuepfte.isEmpty()) {
        accessdatei::Bericht nichts;
        nichts.verknuepfteTabellen = inhalt.verknuepfte;
        throw Fehler(QStringLiteral("Die Access-Datei '%1' kann nicht geladen werden.\n\n%2").arg(name, nichts.text()));
    }
    int codeseite = 0; // the file's own
    if (!inhalt.zweifelhaft.isEmpty()) {
        moment.hide();
        const std::optional<int> gewaehlt = codeseiteFragen(umgebung_, inhalt);
        if (!gewaehlt)
            return abgebrochen();
        codeseite = *gewaehlt;
    }
    const Zwischendatei zwischen(programm_);
    std::optional<accessdatei::Bericht> bericht;
    moment.arbeiten(satz, [&](const Lauf &lauf) { bericht = accessdatei::einlesen(pfad, zwischen.pfad(), lauf, codeseite); });
    if (!bericht || moment.abgebrochen())
        return abgebrochen();
    moment.zeigen(satz);
    // Its tables are all of the program's, whatever the file had; that was looked at above.
    (void)datenbestand::pruefen(programm_, zwischen.pfad());
    const QString ganz = bericht->text(), kurz = gekuerzt(ganz);
    einsetzen(zwischen.pfad(), name, QStringLiteral("\n\nAus der Access-Datei kamen:\n") + kurz);
    if (!bericht_.isEmpty() && kurz != ganz)
        einzelheiten_ = ganz;
}

void Datenbankwechsel::einsetzen(const QString &pfad, const QString &name, const QString &dazu)
{
    const bool altesOriginal = programm_.OriginalDatenbank;
    if (!austauschen(false, datenbestand::ersetzteDateien(programm_, altesOriginal), pfad,
                     [&] { datenbestand::laden(programm_, pfad, altesOriginal, [this](bool original) { merken(original); }); }))
        return;
    umgebung_.statussatz(QStringLiteral("Sie arbeiten mit einer Teilmenge der Flox-Datenbank!"));
    umgebung_.erlauben(originalEintrag, true);
    bericht_.prepend(QStringLiteral("Die Datenbank '%1' ist geladen.").arg(name));
    bericht_ += dazu;
}

bool Datenbankwechsel::austauschen(bool original, const QStringList &ersetzte, const QString &gebraucht, const std::function<void()> &tausch)
{
    if (!umgebung_.NotizenSichern())
        return false;
    const std::optional<QStringList> kopien = aufhebenOderFragen(programm_, umgebung_.hauptfenster(), ersetzte, gebraucht);
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
