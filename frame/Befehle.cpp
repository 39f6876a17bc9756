#include "Befehle.h"

#include "Aufruf.h"
#include "Datenbankwechsel.h"
#include "Export.h"
#include "frmInfos.h"
#include "frmOptionen.h"
#include "plantwindows/Beschreibung.h"
#include "plantwindows/Pflanzenfenster.h"
#include "store/Programm.h"

#include <algorithm>

namespace {

constexpr Sparte topf[] = {Sparte::Topf}, stauden[] = {Sparte::Stauden}, gehoelze[] = {Sparte::Gehoelze};
constexpr Sparte zierAlle[] = {Sparte::Topf, Sparte::Stauden, Sparte::Gehoelze};
constexpr Sparte baumAlle[] = {Sparte::Gehoelze, Sparte::Stauden};
constexpr Sparte staudenAlle[] = {Sparte::Stauden, Sparte::Gehoelze};
constexpr int zierpflanzen = 0, baumschule = 1, staudengaertner = 2;

} // namespace

Befehle::Befehle(Programm &programm, Befehlsumgebung &umgebung) : programm_(programm), umgebung_(umgebung)
{
    for (const SpartenEintrag &sparte : alleSparten())
        befehle_.push_back({sparte.menue, &Befehle::oeffnen, std::span(&sparte.sparte, 1)});
    for (const Begleitprogramm &begleiter : begleitprogramme()) {
        befehle_.push_back({.name = begleiter.mnuInstall, .tat = &Befehle::begleiterInstallieren, .begleiter = &begleiter});
        befehle_.push_back({.name = begleiter.mnuRun, .tat = &Befehle::begleiterAufrufen, .begleiter = &begleiter});
    }
    static constexpr Befehl uebrige[] = {
        {"mnuprogbeenden", &Befehle::beenden},
        {"mnuABZierAlle", &Befehle::ausbildung, zierAlle, zierpflanzen},
        {"mnuABZierTopf", &Befehle::ausbildung, topf, zierpflanzen},
        {"mnuABZierStauden", &Befehle::ausbildung, stauden, zierpflanzen},
        {"mnuABZierGehoelze", &Befehle::ausbildung, gehoelze, zierpflanzen},
        {"mnuBaumAlle", &Befehle::ausbildung, baumAlle, baumschule},
        {"mnuABBaumGehoelze", &Befehle::ausbildung, gehoelze, baumschule},
        {"mnuABBaumStauden", &Befehle::ausbildung, stauden, baumschule},
        {"mnuABST2", &Befehle::ausbildung, stauden, staudengaertner},
        {"mnuABStaudenAlle", &Befehle::ausbildung, staudenAlle, staudengaertner},
        {"mnuABSTStauden", &Befehle::ausbildung, stauden, staudengaertner},
        {"mnuABSTGehoelze", &Befehle::ausbildung, gehoelze, staudengaertner},
        {"mnuUeben", &Befehle::ueben},
        {"mnuFloxTeilmegeSpeichern", &Befehle::teilmengeSpeichern},
        {"mnuDateiDBLadenOriginal", &Befehle::originalLaden},
        {"mnuDateiDBLadenBenutzer", &Befehle::benutzerLaden},
        {"mnuMulkoSpeichern", &Befehle::mulkoSpeichern},
        {"mnuOptionen", &Befehle::optionen},
        {"mnuFloxBilder", &Befehle::bilderAssistent},
        {"mnuUeberlappend", &Befehle::anordnen<Anordnung::Ueberlappend>},
        {"mnuNebeneinander", &Befehle::anordnen<Anordnung::Nebeneinander>},
        {"mnuUntereinander", &Befehle::anordnen<Anordnung::Untereinander>},
        {"mnuHilfethemen", &Befehle::hilfe},
        {"mnuInfos", &Befehle::infos},
    };
    befehle_.insert(befehle_.end(), std::begin(uebrige), std::end(uebrige));
}

const Befehl *Befehle::befehl(const char *name) const
{
    const auto gefunden = std::ranges::find_if(befehle_, [&](const Befehl &befehl) { return qstrcmp(befehl.name, name) == 0; });
    return gefunden == befehle_.end() ? nullptr : &*gefunden;
}

bool Befehle::moeglich(const char *name) const
{
    const Befehl *gesucht = befehl(name);
    return gesucht && (gesucht->sparten.size() != 1 || fensterbeschreibung(gesucht->sparten[0]));
}

void Befehle::ausfuehren(const char *name)
{
    if (const Befehl *gesucht = befehl(name))
        (this->*gesucht->tat)(*gesucht);
}

void Befehle::dateiOeffnen(const QString &pfad)
{
    if (!QFileInfo(pfad).isFile())
        throw Fehler(QStringLiteral("Die Datei '%1' wurde nicht gefunden.").arg(QDir::toNativeSeparators(pfad)));
    if (const std::optional<Sparte> sparte = filterSparte(pfad)) {
        umgebung_.FensterOeffnen(*sparte);
        if (Pflanzenfenster *fenster = umgebung_.aktivesFenster())
            fenster->filterAusDatei(pfad);
        return;
    }
    Datenbankwechsel(programm_, umgebung_).dateiLaden(pfad);
}

void Befehle::oeffnen(const Befehl &befehl)
{
    umgebung_.FensterOeffnen(befehl.sparten[0]);
}

void Befehle::ausbildung(const Befehl &befehl)
{
    struct Auswahl
    {
        Programm &programm;
        decltype(Programm::AzubiAuswahl) gemerkt = programm.AzubiAuswahl;
        ~Auswahl() { programm.AzubiAuswahl = gemerkt; }
    } auswahl{programm_};
    programm_.AzubiAuswahl = {};
    programm_.AzubiAuswahl[size_t(befehl.beruf)] = true;
    for (const Sparte sparte : befehl.sparten)
        umgebung_.FensterOeffnen(sparte);
}

void Befehle::ueben(const Befehl &)
{
    if (Pflanzenfenster *fenster = umgebung_.aktivesFenster())
        fenster->ueben();
    else
        umgebung_.melden(QStringLiteral("Zum Üben öffnen Sie zuerst ein Pflanzenfenster."));
}

template<Anordnung anordnung>
void Befehle::anordnen(const Befehl &)
{
    umgebung_.anordnen(anordnung);
}

void Befehle::optionen(const Befehl &)
{
    frmOptionen form(programm_, umgebung_.hauptfenster());
    umgebung_.formZeigen(form);
    // After Abbrechen, too.
    umgebung_.FormenAktualisieren();
}

void Befehle::bilderAssistent(const Befehl &)
{
    umgebung_.bilderAssistent();
}

void Befehle::hilfe(const Befehl &)
{
    umgebung_.hilfeZeigen({});
}

void Befehle::originalLaden(const Befehl &)
{
    Datenbankwechsel(programm_, umgebung_).mnuDateiDBLadenOriginal_Click();
}

void Befehle::benutzerLaden(const Befehl &)
{
    Datenbankwechsel(programm_, umgebung_).mnuDateiDBLadenBenutzer_Click();
}

void Befehle::teilmengeSpeichern(const Befehl &)
{
    Export(programm_, umgebung_).mnuFloxTeilmegeSpeichern_Click();
}

void Befehle::mulkoSpeichern(const Befehl &)
{
    Export(programm_, umgebung_).mnuMulkoSpeichern_Click();
}

void Befehle::infos(const Befehl &)
{
    frmInfos form(programm_, umgebung_.hauptfenster());
    umgebung_.formZeigen(form);
}

void Befehle::begleiterInstallieren(const Befehl &befehl)
{
    begleiter_.installieren(*befehl.begleiter);
}

void Befehle::begleiterAufrufen(const Befehl &befehl)
{
    begleiter_.aufrufen(*befehl.begleiter);
}

void Befehle::beenden(const Befehl &)
{
    umgebung_.beenden();
}
