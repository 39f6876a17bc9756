#include "Einstellungen.h"

#include "Registry.h"
#include "store/Pfade.h"
#include "store/Text.h"

#include <limits>

using namespace registry;

namespace {

/* Paths are read by a rule of their own; they stand here for writing. The order is the order of writing. */
constexpr Einstellung tabelle[] = {
    {"MDI", "Hoehe", &Programm::MdiHoehe, "14520"},
    {"MDI", "Breite", &Programm::MdiBreite, "19320"},
    {"MDI", "Links", &Programm::MdiLinks, "0"},
    {"MDI", "Oben", &Programm::MdiOben, "0"},
    {"MDI", "Status", &Programm::MdiStatus, "2"},
    {"MDI", "Pflanzenfenster", &Programm::PflanzenfensterMass, "0 0 0"},
    {"Pfade", "FLOX-Verz", &Programm::ProgrammPfad, ""},
    {"Pfade", "Mulko-Verz", &Programm::MulkoPfad, ""},
    {"Pfade", "FLOX-DEMO-Bilder-Verz", &Programm::BilderPfad, ""},
    {"Pfade", "FLOX-Editor-Verz", &Programm::EditorPfad, ""},
    {"Pfade", "FLOX-Druck-Verz", &Programm::DruckOrdner, ""},
    {"Bilder", "BilderaufCD", &Programm::BilderAufCD, "False"},
    {"Bilder", "LokaleVorschauBilder", &Programm::LokaleVorschauBilder, "False"},
    {"Bilder", "BilderFormGroesseX", &Programm::BilderFormBreite, "10110"},
    {"Bilder", "BilderFormGroesseY", &Programm::BilderFormHoehe, "9225"},
    {"Optionen", "MonatsDarstellung", &Programm::MonatsDarstellung, "1"},
    {"Optionen", "Originalgroesse", &Programm::OriginalGroesse, "True"},
    {"Optionen", "OriginalDatenbank", &Programm::OriginalDatenbank, "True"},
    {"Optionen", "AccessFormat", &Programm::AccessFormat, "False"},
    {"Version", "Version", &Programm::ProgrammVersion, ""},
};

constexpr double kleinsteBilderForm = 5000; // twips
const QString editorSchluessel = QStringLiteral("Software\\FH Lindenhof\\Flox-Editor1.0\\Pfade");
const QString programmVerz = QStringLiteral("FLOX-Verz");
const QString bilderVerz = QStringLiteral("FLOX-DEMO-Bilder-Verz");
const QString hinweise = QStringLiteral("HinweisText");

QString unter(const QString &zweig)
{
    return wurzelschluessel.toString() + u'\\' + zweig;
}

template<typename... F>
struct Faelle : F...
{
    using F::operator()...;
};
template<typename... F>
Faelle(F...) -> Faelle<F...>;

/// A text that is no number leaves the default in force.
void uebernehmen(Programm &programm, const Einstellung &zeile, const QString &text)
{
    const auto zahl = [&](double klein, double gross) {
        const std::optional<double> wert = zahlLesen(text);
        return wert && *wert >= klein && *wert <= gross ? *wert : zahlLesen(QString::fromLatin1(zeile.vorgabe)).value_or(0);
    };
    constexpr double weit = std::numeric_limits<int>::max();
    std::visit(Faelle{[&](QString Programm::*ziel) { programm.*ziel = text; }, [&](bool Programm::*ziel) { programm.*ziel = istWahr(text); },
                      [&](int Programm::*ziel) { programm.*ziel = int(zahl(-32768, 32767)); },
                      [&](long Programm::*ziel) { programm.*ziel = long(zahl(-weit, weit)); },
                      [&](double Programm::*ziel) { programm.*ziel = zahl(-weit, weit); }},
               zeile.ziel);
}

bool istPfadOderVersion(const Einstellung &zeile)
{
    return qstrcmp(zeile.schluessel, "Pfade") == 0 || qstrcmp(zeile.schluessel, "Version") == 0;
}

/// A path that is not set is stored as a blank, so that its value exists.
QString gespeicherterText(const Programm &programm, const Einstellung &zeile)
{
    const QString text = einstellungstext(programm, zeile);
    return text.isEmpty() ? QStringLiteral(" ") : text;
}

void pfadeLesen(Programm &programm)
{
    QString editor = mitStrich(RegWertOderVorgabe(editorSchluessel, editorVerz, {}));
    QString mulko = mitStrich(RegWertOderVorgabe(editorSchluessel, mulkoVerz, {}));
    editor = RegWertOderVorgabe(begleiterSchluessel, editorVerz, editor);
    mulko = mitStrich(RegWertOderVorgabe(begleiterSchluessel, mulkoVerz, mulko));
    const QString eigene = unter(QStringLiteral("Pfade"));
    programm.BilderPfad = RegWertOderVorgabe(eigene, bilderVerz, programm.BilderPfad);
    programm.EditorPfad = RegWertOderVorgabe(eigene, editorVerz, editor);
    programm.MulkoPfad = RegWertOderVorgabe(eigene, mulkoVerz, mulko);
    programm.DruckOrdner = RegWertOderVorgabe(eigene, QStringLiteral("FLOX-Druck-Verz"), {});
}

void hinweiseLesen(Programm &programm)
{
    programm.HinweisAus = {};
    if (RegWertOderVorgabe(unter(hinweise), QStringLiteral("1"), {}).isEmpty())
        return;
    for (int i = 1; i <= 2; ++i)
        programm.HinweisAus[size_t(i)] = istWahr(RegWertOderVorgabe(unter(hinweise), QString::number(i), QStringLiteral("False")));
}

/// The companions learn where the program and its pictures stand.
void begleiterUnterrichten(const Programm &programm)
{
    const std::pair<QStringView, QStringView> begleiter[] = {{begleiterSchluessel, mulkoVerz}, {editorSchluessel, editorVerz}};
    for (const auto &[schluessel, name] : begleiter)
        if (vorhanden(schluessel, name)) {
            RegWertSchreiben(schluessel, programmVerz, programm.ProgrammPfad + u'\\');
            RegWertSchreiben(schluessel, bilderVerz, programm.BilderPfad);
        }
}

} // namespace

std::span<const Einstellung> einstellungstabelle()
{
    return tabelle;
}

QString einstellungstext(const Programm &programm, const Einstellung &zeile)
{
    return std::visit(Faelle{[&](QString Programm::*ziel) { return programm.*ziel; },
                             [&](bool Programm::*ziel) { return programm.*ziel ? QStringLiteral("True") : QStringLiteral("False"); },
                             [&](int Programm::*ziel) { return QString::number(programm.*ziel); },
                             [&](long Programm::*ziel) { return QString::number(programm.*ziel); },
                             [&](double Programm::*ziel) { return QString::number(programm.*ziel, 'g', 7); }},
                      zeile.ziel);
}

void EinstellungenLesen(Programm &programm)
{
    pfadeLesen(programm);
    for (const Einstellung &zeile : tabelle)
        if (!istPfadOderVersion(zeile))
            uebernehmen(programm, zeile,
                        RegWertOderVorgabe(unter(QString::fromLatin1(zeile.schluessel)), QString::fromLatin1(zeile.name),
                                           QString::fromLatin1(zeile.vorgabe)));
    programm.BilderFormBreite = std::max(programm.BilderFormBreite, kleinsteBilderForm);
    programm.BilderFormHoehe = std::max(programm.BilderFormHoehe, kleinsteBilderForm);
    hinweiseLesen(programm);
    for (const Einstellung &zeile : tabelle)
        if (qstrcmp(zeile.schluessel, "Pfade") == 0)
            RegWertSchreiben(unter(QStringLiteral("Pfade")), QString::fromLatin1(zeile.name), gespeicherterText(programm, zeile));
    (void)sichern();
}

bool OriginalDatenbankSchreiben(const Programm &programm)
{
    const auto zeile =
        std::ranges::find(tabelle, QByteArrayView("OriginalDatenbank"), [](const Einstellung &eine) { return QByteArrayView(eine.name); });
    RegWertSchreiben(unter(QString::fromLatin1(zeile->schluessel)), QString::fromLatin1(zeile->name), einstellungstext(programm, *zeile));
    return sichern();
}

bool EinstellungenSchreiben(const Programm &programm)
{
    for (const Einstellung &zeile : tabelle)
        RegWertSchreiben(unter(QString::fromLatin1(zeile.schluessel)), QString::fromLatin1(zeile.name), gespeicherterText(programm, zeile));
    for (int i = 1; i <= 2; ++i)
        RegWertSchreiben(unter(hinweise), QString::number(i), programm.HinweisAus[size_t(i)] ? QStringLiteral("True") : QStringLiteral("False"));
    begleiterUnterrichten(programm);
    return sichern();
}
