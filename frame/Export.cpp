#include "Export.h"

#include "Aufheben.h"
#include "Befehle.h"
#include "Fenstertabelle.h"
#include "Wartefenster.h"
#include "frmHinweis.h"
#include "controls/Dateifrage.h"
#include "controls/Geschuetzt.h"
#include "controls/Sanduhr.h"
#include "plantwindows/Pflanzenfenster.h"
#include "store/Dateien.h"
#include "store/Datenbestand.h"
#include "store/Laufordner.h"
#include "store/Pfade.h"
#include "store/Sicherungen.h"
#include "store/Teilmenge.h"

#include <QDir>
#include <QFileInfo>

#include <algorithm>
#include <map>

namespace {

const QString teilmengenEndung = QStringLiteral(".fit"), accessEndung = QStringLiteral(".mdb"), accessMuster = QStringLiteral("(*.mdb)");
const QString teilmengenFilter = QStringLiteral("Teilmenge Flox-Datenbank (*.fit)|*.fit|Access-Datenbank (*.mdb)|*.mdb|Alle Dateien|*.*");

/// The order in which windows are counted before a subset is written.
constexpr Sparte zaehlfolge[] = {Sparte::Topf, Sparte::Friedhof, Sparte::Stauden, Sparte::Gehoelze, Sparte::Obst, Sparte::Apfel};

/// Ending of the design program's files: its last letter is that of the filter files'.
QString mulkoEndung(const SpartenEintrag &sparte)
{
    return QStringLiteral(".mu") + sparte.filterEndung.back();
}

/// Calls `tun` for each window that is open, until it returns true.
template<typename Tun>
void fensterDurchgehen(Befehlsumgebung &umgebung, Tun &&tun)
{
    for (const SpartenEintrag &sparte : alleSparten()) {
        Fenstertabelle &tabelle = umgebung.tabelle(sparte.sparte);
        for (int nummer = 1; nummer <= tabelle.obergrenze(); ++nummer)
            if (Pflanzenfenster *form = tabelle.besetzt(nummer) ? tabelle.platz(nummer).fenster.data() : nullptr; form && tun(*form, nummer))
                return;
    }
}

/// The private copy of the first window open; empty where there is none, or it shows the working database itself.
QString ersteKopie(Befehlsumgebung &umgebung, Sparte sparte)
{
    Fenstertabelle &tabelle = umgebung.tabelle(sparte);
    for (int nummer = 1; nummer <= tabelle.obergrenze(); ++nummer)
        if (tabelle.besetzt(nummer)) {
            Pflanzenfenster *form = tabelle.platz(nummer).fenster;
            const QString kopie = form ? systemPfad(form->satz().tempPfad(nummer)) : QString();
            return QFileInfo(kopie).isFile() ? kopie : QString();
        }
    return {};
}

} // namespace

void Export::mnuFloxTeilmegeSpeichern_Click()
{
    if (!programm_.HinweisAus[frmHinweis::speichern]) {
        programm_.HinweisNummer = frmHinweis::speichern;
        frmHinweis hinweis(programm_, umgebung_.hauptfenster());
        umgebung_.formZeigen(hinweis);
    }
    for (const Sparte sparte : zaehlfolge) {
        const Fenstertabelle &tabelle = umgebung_.tabelle(sparte);
        int besetzt = 0;
        for (int nummer = 1; nummer <= tabelle.obergrenze(); ++nummer)
            besetzt += tabelle.besetzt(nummer);
        if (besetzt < 2)
            continue;
        const QStringView wort = eintrag(sparte).titel;
        // The number is that of the slots, which may be more than the windows.
        QMessageBox::information(umgebung_.hauptfenster(), QStringLiteral("%1 %2-Fenster geöffnet!").arg(tabelle.obergrenze()).arg(wort),
                                 QStringLiteral("Bei dieser Aktion darf höchstens ein Fenster pro Sparte geöffnet sein! \n"
                                                "Bitte schließen Sie alle %1-Fenster bis auf das mit der gewünschten Auswahl!")
                                     .arg(wort));
        return;
    }
    DialogFloxTeilmengeSpeichern();
}

QString Export::gefragt(const QString &titel, const QString &filter, const QString &name, const QString &ordner)
{
    Dateifrage frage(umgebung_.hauptfenster(), titel, filter, name, QString(), ordner);
    frage.setAcceptMode(QFileDialog::AcceptSave);
    frage.setFileMode(QFileDialog::AnyFile);
    frage.endungDesFilters();
    const QString dateiname = frage.fragen([this](QDialog &dialog) { umgebung_.formZeigen(dialog); });
    accessFilter_ = frage.selectedNameFilter().endsWith(accessMuster);
    return dateiname;
}

bool Export::alsAccess(const QString &dateiname) const
{
    const auto endetAuf = [&](const QString &endung) { return dateiname.endsWith(endung, Qt::CaseInsensitive); };
    if (accessFilter_ || endetAuf(accessEndung))
        return true;
    const auto mulko = [&](const SpartenEintrag &sparte) { return endetAuf(mulkoEndung(sparte)); };
    return programm_.AccessFormat && (endetAuf(teilmengenEndung) || std::ranges::any_of(alleSparten(), mulko));
}

void Export::accessSchreiben(const QString &dateiname, const Vorarbeit &vorarbeit)
{
    constexpr int vorbereitet = 30; // percent
    const Zwischendatei zwischen(programm_);
    Wartefenster warten(umgebung_.hauptfenster());
    std::optional<accessdatei::Bericht> bericht;
    warten.arbeiten(QStringLiteral("Die Access-Datei '%1' wird geschrieben.").arg(QFileInfo(dateiname).fileName()), [&](const Lauf &lauf) {
        if (vorarbeit(zwischen.pfad(), lauf.abschnitt(0, vorbereitet)))
            bericht = accessdatei::ausgeben(zwischen.pfad(), dateiname, lauf.abschnitt(vorbereitet, 100));
    });
    umgebung_.melden((bericht ? QStringLiteral("Gespeichert: %1") : QStringLiteral("Abgebrochen, nicht gespeichert: %1"))
                         .arg(QDir::toNativeSeparators(dateiname)));
    // What Access cannot keep is lost in the file: nobody must learn that later.
    if (bericht && bericht->bereinigteTexte > 0)
        QMessageBox::information(umgebung_.hauptfenster(), programmtitel.toString(), bericht->text());
}

void Export::DialogFloxTeilmengeSpeichern()
{
    const QString dateiname = gefragt(QStringLiteral("Datenbanken speichern unter"), teilmengenFilter, QStringLiteral("*.fit"), QDir::currentPath());
    if (!dateiname.isEmpty())
        FloxTeilmengeSpeichern(dateiname);
}

void Export::FloxTeilmengeSpeichern(const QString &dateiname)
{
    constexpr int geprueft = 9; // characters, fewer than the name has: what tells is which file it is
    if (dateiname.right(geprueft) == u"\\flox-demo.mdb" || verweigert(dateiname))
        return DialogFloxTeilmengeSpeichern();
    notizenSpeichern();
    if (!aufhebenOderFragen(programm_, umgebung_.hauptfenster(), {dateiname}))
        return;
    // Windows are asked here: the other thread knows none.
    std::map<Sparte, QString> kopien;
    for (const SpartenEintrag &sparte : alleSparten())
        kopien[sparte.sparte] = ersteKopie(umgebung_, sparte.sparte);
    const auto quelle = [&](Sparte sparte) { return kopien.at(sparte); };
    const QString arbeit = datenbestand::arbeitsdatei(programm_);
    if (alsAccess(dateiname)) {
        accessSchreiben(dateiname, [&](const QString &ziel, const Lauf &lauf) { return teilmenge::schreibenFuerSich(arbeit, ziel, quelle, lauf); });
        return;
    }
    const Sanduhr sanduhr(umgebung_.hauptfenster());
    teilmenge::schreiben(arbeit, dateiname, quelle);
}

bool Export::verweigert(const QString &dateiname)
{
    const auto sagen = [this](const QString &titel, const QString &text) {
        QMessageBox::information(umgebung_.hauptfenster(), titel, text + QStringLiteral(" \nBitte versuchen Sie es mit einem anderen Namen!"));
        return true;
    };
    if (dieselbeDatei(dateiname, datenbestand::arbeitsdatei(programm_)))
        return sagen(QStringLiteral("'flox-demo.mdb' darf nicht überschrieben werden!"),
                     QStringLiteral("Die Datei 'flox-demo.mdb' darf nicht überschrieben werden!"));
    const QString name = QFileInfo(dateiname).fileName();
    const QString original = datenbestand::originaldatei(programm_); // it need not be there yet
    if (dieselbeDatei(dateiname, original) || QFileInfo(dateiname).absoluteFilePath() == QFileInfo(original).absoluteFilePath())
        return sagen(programmtitel.toString(), QStringLiteral("Die Datei '%1' ist die gesicherte Originaldatenbank.").arg(name));
    bool kopie = false;
    fensterDurchgehen(umgebung_, [&](Pflanzenfenster &form, int nummer) {
        kopie = dieselbeDatei(dateiname, systemPfad(form.satz().tempPfad(nummer)));
        return kopie;
    });
    return kopie && sagen(programmtitel.toString(), QStringLiteral("Mit der Datei '%1' arbeitet ein geöffnetes Fenster.").arg(name));
}

void Export::notizenSpeichern()
{
    // What has just been typed belongs to the selection, too.
    fensterDurchgehen(umgebung_, [](Pflanzenfenster &form, int) {
        if (form.DatenGeaendert)
            form.BenutzerdatenSpeichern();
        return false;
    });
}

void Export::DialogMulkoSpeichern()
{
    const std::optional<Sparte> sparte = sparteVonWort(programm_.AktiveSparte);
    QString name, filter;
    const auto hoppla = [this] { QMessageBox::information(umgebung_.hauptfenster(), programmtitel.toString(), QStringLiteral("Hoppla")); };
    if (sparte)
        name = u'*' + mulkoEndung(eintrag(*sparte));
    else
        hoppla();
    if (sparte)
        filter = QStringLiteral("Mulko-Datenbank für %1 (%2)|%2|Access-Datenbank (*.mdb)|*.mdb|Alle Dateien|*.*").arg(eintrag(*sparte).titel, name);
    else
        hoppla();
    const QString ordner = systemPfad(programm_.MulkoPfad);
    const QString dateiname = gefragt(QStringLiteral("gefilterte Datensätze speichern"), filter, name,
                                      !ordner.isEmpty() && QFileInfo(ordner).isDir() ? ordner : QDir::currentPath());
    if (!dateiname.isEmpty())
        MulkoSpeichern(dateiname);
}

void Export::MulkoSpeichern(const QString &dateiname)
{
    const std::optional<Sparte> sparte = sparteVonWort(programm_.AktiveSparte);
    if (!sparte) {
        QMessageBox::information(umgebung_.hauptfenster(), programmtitel.toString(), QStringLiteral("Hoppla"));
        return;
    }
    if (verweigert(dateiname))
        return DialogMulkoSpeichern();
    try {
        notizenSpeichern();
        const Pflanzenfenster *form = umgebung_.aktivesFenster();
        if (!form || !aufhebenOderFragen(programm_, umgebung_.hauptfenster(), {dateiname}))
            return;
        const QString kopie =
            QStringLiteral("%1%2%3.tmp").arg(programm_.laufordner(), eintrag(*sparte).tempDatenbank).arg(programm_.aktuellesFenster(*sparte));
        if (alsAccess(dateiname)) {
            // The window keeps its copy to itself.
            accessSchreiben(dateiname, [&](const QString &ziel, const Lauf &) {
                kopiereSicher(systemPfad(kopie), ziel);
                return true;
            });
            return;
        }
        const Sanduhr sanduhr(umgebung_.hauptfenster());
        kopiereSicher(systemPfad(kopie), dateiname);
        umgebung_.melden(QStringLiteral("Gespeichert: %1").arg(QDir::toNativeSeparators(dateiname)));
    } catch (const Fehler &fehler) {
        umgebung_.melden(QStringLiteral("Nicht gespeichert: %1").arg(fehler.text()));
    }
}
