#include "frmAnzeigeStauden.h"

#include "Staudenfelder.h"
#include "pictures/Bildform.h"

namespace {

QString sortiment(const QString &bewertung)
{
    const std::optional<double> zahl = zahlLesen(bewertung);
    return !zahl ? QString() : *zahl >= 5 ? QStringLiteral("Standardsortiment") : QStringLiteral("Erweitertes Sortiment (für Liebhaber)");
}

constexpr Element kopf[] = {
    {.muster = Muster::BotName, .control = "lblBotName", .feld = "BOT_NAME", .feld2 = "*.Quelle"},
    {.muster = Muster::DtName, .control = "lblDtName", .feld = "DTNAM", .titeltext = u"Deutscher Name:"},
    {.muster = Muster::Familie, .control = "lblFamilie", .feld = "*.FAMILIE", .titeltext = u"Familie:"},
    {.muster = Muster::Synonyme, .control = "lblSynonyme", .feld = "BOT_NAME", .titeltext = u"Synonyme:", .titel = "LabelSyn"},
    staude::herkunft,
};

constexpr Element tafel[] = {
    gemeinsam::herkunftsmarke,
    staude::marken,
    {.muster = Muster::Text, .control = "lblBewertung", .feld = "bewertung", .titeltext = u"Bewertung", .umformung = sortiment, .ausArbeit = true},
};

constexpr Element bluete[] = {
    staude::bluetenfarben,
    staude::bluehzeit,
    staude::bluetenhoehe,
    staude::bluetenform,
    {.muster = Muster::Satz, .control = "lblUnscheinbar", .feld = "UNSCHEINBA", .leer = u"Die Blüten sind unscheinbar!"},
};
constexpr Element frucht[] = {staude::fruchtfarben, staude::fruchtzeit};
constexpr Element blatt[] = {staude::laubhoehe, staude::blattform, staude::blattfarbe, staude::herbstfarben};
constexpr Element pflanzentyp[] = {
    staude::pflanzentyp,
    staude::wuchsform,
    staude::urteil,
};
constexpr Bildformular lebensbereiche{"frmLebensbereiche", u"Lebensbereiche Stauden", "picLebensberiche", "bilder/lebensbereiche"};
constexpr Element lebensraum[] = {
    staude::lebensraum,
    staude::kennziffer,
    {.muster = Muster::Bildoeffner, .control = "picLebensraum", .formular = &lebensbereiche},
};
constexpr Element standort[] = {
    staude::licht, staude::bodenart, staude::bodenfeuchte, staude::kalk, staude::naehrstoffe,
};
constexpr Element pflanzung[] = {staude::pflanzung, staude::geselligkeit, staude::duengung, staude::vermehrung, staude::verwendungsart};

constexpr Element sorten[] = {gemeinsam::sorten};
constexpr Element bemerkung[] = {staude::bemerkung};

constexpr Ueberschrift ueberPflanze{"Label2", u"Blüte, Frucht und Blatt"};

// clang-format off
constexpr Gruppe blattBluete[] = {
    {.name = "Frame3D2", .titel = u"Blüte", .ueberschrift = &ueberPflanze, .elemente = bluete, .regel = Gruppenregel::Feld, .regelfeld = "bluehzeit"},
    {.name = "fraFrucht", .titel = u"Frucht", .ueberschrift = &ueberPflanze, .elemente = frucht, .regel = Gruppenregel::Feld, .regelfeld = "fruchtzeit"},
    {.name = "Frame3D3", .titel = u"Blatt", .ueberschrift = &ueberPflanze, .elemente = blatt, .regel = Gruppenregel::Controls},
    {.name = "fraPflanzentyp", .titel = u"Wuchs", .elemente = pflanzentyp},
    {.name = "fraLebensraum", .titel = u"Lebensraum", .elemente = lebensraum},
};
// clang-format on
constexpr Gruppe standortReiter[] = {
    {.name = "fraStandort", .titel = u"Standort", .elemente = standort, .loeschtHinweis = true},
    {.name = "fraPflanzung", .titel = u"Pflanzung und Pflege", .elemente = pflanzung},
};
constexpr Gruppe sortenReiter[] = {
    {.name = "fraSorten", .titel = u"Sorten", .elemente = sorten},
    {.name = "fraBemerkung", .titel = u"Bemerkung", .elemente = bemerkung, .regel = Gruppenregel::Controls},
};

constexpr Reiter reiter[] = {
    {u"Blatt/Blüte", blattBluete},
    {u"Standort/Pflanzung", standortReiter},
    {u"Sorten", sortenReiter},
    {u"Benutzer / Ausbildung", gemeinsam::benutzer},
};

constexpr auto fragen = gemeinsam::pflanzenfragen("*.FAMILIE");

} // namespace

const Fensterbeschreibung frmAnzeigeStauden{.sparte = Sparte::Stauden, .kopf = kopf, .tafel = tafel, .reiter = reiter, .fragen = fragen};
