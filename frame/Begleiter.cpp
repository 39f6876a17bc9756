#include "Begleiter.h"

#include "Befehle.h"
#include "Einstellungen.h"
#include "Registry.h"
#include "System.h"
#include "frmInstall.h"

#include <QApplication>
#include <QMessageBox>

using namespace std::chrono_literals;

namespace {

constexpr const char *mnuWeitereMulko[] = {"mnuMulkoTrennstrich", "mnuMulkoSpeichern"};

// clang-format off
constexpr std::array<Begleitprogramm, anzahlBegleiter> programme{{
    {.pfad = &Programm::MulkoPfad, .datei = u"Mulko.exe", .cdOrdner = u"Mulko", .fenstertitel = u"Mulko",
     .mnuInstall = "mnuMulkoInstall", .mnuRun = "mnuMulkoRun", .mnuWeitere = mnuWeitereMulko,
     .timLauf = "timMulko", .timInstall = "timMulkoInstall", .verzeichnis = mulkoVerz,
     .titel = u"Mulko kann jetzt aufgerufen werden",
     .meldung = u"Sie können jetzt Mulko über den Menüpunkt 'Zusatzprogramme' aufrufen!"},
    {.pfad = &Programm::EditorPfad, .datei = u"Flox-editor.exe", .cdOrdner = u"Flox-editor", .fenstertitel = u"Flox-Editor",
     .mnuInstall = "mnuFloxEditorInstall", .mnuRun = "mnuFloxEditorRun", .mnuWeitere = {},
     .timLauf = "timFloxEditor", .timInstall = "timFloxEditorInstall", .verzeichnis = editorVerz,
     .titel = u"Flox-Editor kann jetzt aufgerufen werden",
     .meldung = u"Sie können jetzt den Flox-Editor über den Menüpunkt 'Zusatzprogramme' aufrufen!"},
}};
// clang-format on

constexpr auto bisZumFenster = 500ms;
constexpr auto bisZurFrage = 15000ms;

} // namespace

std::span<const Begleitprogramm, anzahlBegleiter> begleitprogramme()
{
    return programme;
}

Begleiter::Begleiter(Programm &programm, Befehlsumgebung &umgebung) : programm_(programm), umgebung_(umgebung)
{
    for (const Begleitprogramm &begleiter : programme) {
        Uhren &beide = uhren(begleiter);
        const auto stellen = [&](QTimer &uhr, const char *name, std::chrono::milliseconds dauer) {
            uhr.setParent(umgebung_.hauptfenster());
            uhr.setObjectName(QString::fromLatin1(name));
            uhr.setInterval(dauer);
        };
        stellen(beide.lauf, begleiter.timLauf, bisZumFenster);
        beide.lauf.setSingleShot(true);
        stellen(beide.install, begleiter.timInstall, bisZurFrage);
        QObject::connect(&beide.lauf, &QTimer::timeout, &beide.lauf, [&begleiter] { fensterAktivieren(begleiter.fenstertitel.toString()); });
        QObject::connect(&beide.install, &QTimer::timeout, &beide.install, [this, &begleiter] { timInstall_Timer(begleiter); });
    }
}

Begleiter::Uhren &Begleiter::uhren(const Begleitprogramm &begleiter)
{
    return uhren_[size_t(&begleiter - programme.data())];
}

bool Begleiter::vorhanden(const Begleitprogramm &begleiter) const
{
    return !programmdateien(programm_.*begleiter.pfad, begleiter.datei.toString()).isEmpty();
}

void Begleiter::zeigen(const Begleitprogramm &begleiter, bool vorhanden)
{
    umgebung_.zeigen(begleiter.mnuInstall, !vorhanden);
    umgebung_.zeigen(begleiter.mnuRun, vorhanden);
    for (const char *eintrag : begleiter.mnuWeitere)
        umgebung_.zeigen(eintrag, vorhanden);
}

void Begleiter::StatusPruefen()
{
    for (const Begleitprogramm &begleiter : programme) {
        const bool da = vorhanden(begleiter);
        zeigen(begleiter, da);
        if (!da)
            (programm_.*begleiter.pfad).clear();
    }
}

void Begleiter::InstallPruefen(const Begleitprogramm &begleiter)
{
    if (vorhanden(begleiter))
        zeigen(begleiter, true);
}

void Begleiter::installieren(const Begleitprogramm &begleiter)
{
    frmInstall form([this] { return umgebung_.laufwerke(); }, umgebung_.hauptfenster());
    if (form.CDStarten(begleiter.cdOrdner.toString()) == frmInstall::Ergebnis::Gescheitert)
        return;
    umgebung_.zeigen(begleiter.mnuInstall, false);
    uhren(begleiter).install.start();
}

void Begleiter::aufrufen(const Begleitprogramm &begleiter)
{
    if (programmStarten(programm_.*begleiter.pfad, begleiter.datei.toString()))
        uhren(begleiter).lauf.start();
}

void Begleiter::timInstall_Timer(const Begleitprogramm &begleiter)
{
    registry::auffrischen();
    QString &pfad = programm_.*begleiter.pfad;
    // Every setup writes into the design program's key, the editor's too.
    if (const QString verzeichnis = registry::RegWertOderVorgabe(begleiterSchluessel, begleiter.verzeichnis, {}); !verzeichnis.isEmpty())
        pfad = verzeichnis + u'\\';
    InstallPruefen(begleiter);
    if (pfad.isEmpty())
        return;
    uhren(begleiter).install.stop();
    QWidget *vorn = QApplication::activeModalWidget();
    QMessageBox::information(vorn ? vorn : umgebung_.hauptfenster(), begleiter.titel.toString(), begleiter.meldung.toString());
}
