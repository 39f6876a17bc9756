#include "frmAnzeigeTopfpflanzen.h"

#include "Elementtexte.h"
#include "Gemeinsam.h"
#include "store/Text.h"

namespace {

// clang-format off
constexpr Element kopf[] = {
    {.muster = Muster::BotName, .control = "lblBotName", .feld = "BOT_NAME", .feld2 = "*.Quelle"},
    {.muster = Muster::DtName, .control = "lblDtName", .feld = "DTNAM", .titeltext = u"Deutscher Name:"},
    {.muster = Muster::Familie, .control = "lblFamilie", .feld = "FAMILIE", .titeltext = u"Familie:", .titel = "Label2"},
    {.muster = Muster::Synonyme, .control = "lblSynonyme", .feld = "BOT_NAME", .titeltext = u"Synonyme:", .titel = "LabelSyn"},
    {.muster = Muster::Text, .control = "lblHerkunft", .feld = "HK", .titeltext = u"Herkunft:", .titel = "Label16",
     .umformung = herkunftAusgeschrieben},
};

constexpr Symbol eigenschaften[] = {
    {"bilder/gruen", u"Diese Pflanze ist eine Grünpflanze", u"Grünpflanze"},
    {"bilder/bluete", u"Diese Pflanze ist eine Blütenpflanze", u"Blütenpflanze"},
    {"bilder/frucht", u"Diese Pflanze ist eine Fruchtpflanze", u"Fruchtpflanze"},
    {"bilder/sukkulente", u"Diese Pflanze ist eine Sukkulente", u"Sukkulente"},
    {"bilder/carnivore", u"Diese Pflanze ist eine Carnivore", u"Carnivore"},
    {"iliEigenschaften/gift", u"Diese Pflanze ist giftig!", u"Giftpflanze", "GIFTIG"},
};

constexpr Element tafel[] = {
    gemeinsam::herkunftsmarke,
    {.muster = Muster::Bewertung, .control = "picBewertung", .feld = "bewertung", .titeltext = u"Bewertung"},
    {.muster = Muster::Symbolfluss, .control = "imgEigen", .feld = "PFLANZTYP", .symbole = eigenschaften},
};

constexpr Element bluete[] = {
    {.muster = Muster::Farbfeld, .control = "lblBlFarbe", .feld = "FARBEN", .titeltext = u"Farben:", .farben = &WL_BluetenfarbeRGB},
    {.muster = Muster::Monate, .control = "lblBlMonat", .feld = "BLUEHZEIT", .titeltext = u"Zeit:"},
    {.muster = Muster::VonBisMeter, .control = "lblBlHoehe", .feld = "BLMINH", .feld2 = "BLMAXH", .titeltext = u"Höhe mit Blüte:",
     .titel = "labelBl", .einheit = u" m"},
    {.muster = Muster::Satz, .control = "lblUnscheinbar", .feld = "UNSCHEINBA", .leer = u"Die Blüten sind unscheinbar!"},
};

constexpr Element frucht[] = {
    // The fruit's last position marks the flower row; stored data rely on it.
    {.muster = Muster::Farbfeld, .control = "lblFrFarbe", .feld = "FRUCHTFARB", .titeltext = u"Farben:", .farben = &WL_ToFruchtfarbeRGB,
     .buntZiel = "lblBlFarbe"},
    {.muster = Muster::Monate, .control = "lblFrMonat", .feld = "FRUCHTZEIT", .titeltext = u"Zeit:"},
};

constexpr Element blatt[] = {
    {.muster = Muster::Liste, .control = "lblBlattFarbe", .feld = "BLATTFARB", .titeltext = u"Blattfarbe:"},
    {.muster = Muster::Liste, .control = "lblWuchs", .feld = "WUCHSFORM", .titeltext = u"Wuchsform:"},
    {.muster = Muster::VonBisMeter, .control = "lblHoehe", .feld = "MINHOEHE", .feld2 = "MAXHOEHE", .titeltext = u"Höhe:",
     .titel = "labelHoehe", .einheit = u" m"},
};

constexpr Element angebot[] = {
    {.muster = Muster::Monate, .control = "lblAngMonat", .feld = "ANGEBOTSZ", .titeltext = u"Angebotszeit:"},
    {.muster = Muster::Liste, .control = "lblHaltbarkeit", .feld = "HALTBAR", .titeltext = u"Haltbarkeit:", .titel = "labelHak"},
};

constexpr Gruppe blattBluete[] = {
    {.name = "Frame3D2", .titel = u"Blüte", .elemente = bluete, .regel = Gruppenregel::Feld, .regelfeld = "BLUEHZEIT"},
    {.name = "Frame3D1", .titel = u"Frucht", .elemente = frucht, .regel = Gruppenregel::Feld, .regelfeld = "FRUCHTZEIT"},
    {.name = "fraBlatt", .titel = u"Blatt und Wuchs", .elemente = blatt, .regel = Gruppenregel::Controls},
    {.name = "fraAngebot", .titel = u"Angebot", .elemente = angebot},
};

constexpr Symbol verwendung[] = {
    {"bilder/innenraum", u"Diese Pflanze ist für den Innenraum geeignet.", u"für den Innenraum"},
    {"bilder/fensterbank", u"Diese Pflanze ist für die Fensterbank geeignet.", u"für die Fensterbank"},
    {"bilder/kuebel", u"Diese Pflanze ist für den Kübel geeignet.", u"für den Kübel"},
    {"bilder/ampel", u"Diese Pflanze ist für die Ampel geeignet.", u"für die Ampel"},
    {"bilder/beet", u"Diese Pflanze ist für das Beet geeignet.", u"für das Beet"},
    {"bilder/balkon", u"Diese Pflanze ist für den Balkon geeignet.", u"für den Balkon"},
    {"bilder/wintergarten", u"Diese Pflanze ist für den Wintergarten geeignet.", u"für den Wintergarten"},
    {"bilder/vitrine", u"Diese Pflanze ist für die Vitrine geeignet.", u"für die Vitrine"},
};

constexpr Element verwendungen[] = {
    {.muster = Muster::Symbole, .control = "imgVerwendung", .feld = "VERWENDUNG", .symbole = verwendung},
};

constexpr Element standort[] = {
    {.muster = Muster::Symbole, .control = "imgLicht", .feld = "SONNE", .titeltext = u"Licht:", .symbole = symbole::licht},
    {.muster = Muster::VonBisMindest, .control = "lblBeleuchtung", .feld = "LICHTMIN", .feld2 = "LICHTMAX",
     .titeltext = u"Beleuchtungsstärke:", .einheit = u" Lux", .nullObergrenze = true},
    {.muster = Muster::VonBisMindest, .control = "lblTemperatur", .feld = "TEMPMIN", .feld2 = "TEMPMAX", .titeltext = u"Temperatur:",
     .einheit = u" °C"},
    {.muster = Muster::Liste, .control = "lblTageslaenge", .feld = "TAGESL", .titeltext = u"Tageslänge:", .titel = "labelTl"},
};

constexpr Element hydro[] = {
    {.muster = Muster::Liste, .control = "lblWasser", .feld = "H_WASSERST", .titeltext = u"Wasserstand:"},
    {.muster = Muster::Liste, .control = "lblpH", .feld = "H_PH", .titeltext = u"pH-Wert:"},
    {.muster = Muster::Liste, .control = "lblVerwHydro", .feld = "H_VERW", .titeltext = u"Verwendung:"},
};

constexpr Gruppe standortVerwendung[] = {
    {.name = "SSFrame4", .titel = u"Standort", .elemente = standort, .loeschtHinweis = true},
    {.name = "SSFrame3", .titel = u"Verwendung", .elemente = verwendungen, .loeschtHinweis = true},
    {.name = "fraHydro", .titel = u"Hydrokultur", .elemente = hydro, .regel = Gruppenregel::Controls},
};

constexpr Element sorten[] = {
    {.muster = Muster::Text, .control = "txtSorten", .feld = "SORTEN", .leer = u"Keine Sortenangaben", .umformung = ohneZeilenmarken,
     .leerNurBeiNull = true, .kasten = true},
};
// clang-format on
constexpr Element bemerkung[] = {
    {.muster = Muster::Text, .control = "txtBemerkung", .feld = "BEMERKUNG", .umformung = ohneZeilenmarken, .kasten = true},
};

constexpr Gruppe sortenReiter[] = {
    {.name = "fraSorten", .titel = u"Sorten", .elemente = sorten},
    {.name = "SSFrame5", .titel = u"Bemerkung", .elemente = bemerkung, .regel = Gruppenregel::Controls},
};

constexpr Element schaden[] = {
    {.muster = Muster::Text, .control = "txtKrank", .feld = "SCHADEN", .leer = u"keine Schadensangaben", .kasten = true},
    {.muster = Muster::Liste, .control = "lblKrank", .feld = "KRANKH", .titeltext = u"Anfälligkeit:", .titel = "labelKa"},
};
constexpr Element pflege[] = {
    {.muster = Muster::Liste, .control = "lblDuengung", .feld = "NACHDUENG", .titeltext = u"Höhe der Nachdüngung:", .titel = "labelNd"},
    {.muster = Muster::Text, .control = "lblDuengungFS", .feld = "DUENG_FS", .titeltext = u"Frühjahr/Sommer:", .titel = "labelNdFS"},
    {.muster = Muster::Text, .control = "lblDuengungHW", .feld = "DUENG_HW", .titeltext = u"Herbst/Winter:", .titel = "labelNdHW"},
};

constexpr Gruppe krankheitenPflege[] = {
    {.name = "fraKrank", .titel = u"Krankheiten und Schädlinge", .elemente = schaden},
    {.name = "fraPflege", .titel = u"Düngung", .elemente = pflege, .regel = Gruppenregel::Controls},
};

constexpr Reiter reiter[] = {
    {u"Blatt/Blüte", blattBluete},
    {u"Standort/Verwendung", standortVerwendung},
    {u"Sorten", sortenReiter},
    {u"Krankheiten/Pflege", krankheitenPflege},
    {u"Benutzer / Ausbildung", gemeinsam::benutzer},
};

constexpr auto fragen = gemeinsam::pflanzenfragen("FAMILIE");

} // namespace

const Fensterbeschreibung frmAnzeigeTopfpflanzen{.sparte = Sparte::Topf, .kopf = kopf, .tafel = tafel, .reiter = reiter, .fragen = fragen};
