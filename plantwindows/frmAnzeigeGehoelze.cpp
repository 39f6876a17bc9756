#include "frmAnzeigeGehoelze.h"

#include "Gehoelzfelder.h"

namespace {

constexpr Element kopf[] = {
    {.muster = Muster::BotName, .control = "lblBotName", .feld = "BOT_NAME", .feld2 = "*.Quelle"},
    {.muster = Muster::DtName, .control = "lblDtName", .feld = "DTNAM", .titeltext = u"Deutscher Name:"},
    {.muster = Muster::Familie, .control = "lblFamilie", .feld = "*.FAMILIE", .titeltext = u"Familie:", .titel = "Label2"},
    {.muster = Muster::Synonyme, .control = "lblSynonyme", .feld = "BOT_NAME", .titeltext = u"Synonyme:", .titel = "Label24"},
    gehoelz::herkunft,
};

constexpr Element tafel[] = {
    gemeinsam::herkunftsmarke,
    gehoelz::einteilung,
    {.muster = Muster::Bewertung, .control = "picBewertung", .feld = "bewertung", .titeltext = u"Bewertung", .ausArbeit = true},
};

constexpr Element bluete[] = {gehoelz::bluetenfarben, gehoelz::bluehzeit};
constexpr Element frucht[] = {gehoelz::fruchtfarben, gehoelz::fruchtzeit, gehoelz::genuss};
constexpr Element blatt[] = {gehoelz::laubzeit, gehoelz::laubfarbe, gehoelz::austrieb};
constexpr Element groesse[] = {gehoelz::groesse, gehoelz::durchmesser, gehoelz::habitus, gehoelz::wuchs, gehoelz::merkmale, gehoelz::kennzahl};
constexpr Element wurzel[] = {gehoelz::wurzelform, gehoelz::wurzelempfindlichkeit};
constexpr Element standort[] = {gehoelz::licht, gehoelz::bodenart, gehoelz::bodenfeuchte, gehoelz::boden, gehoelz::standorteigenschaften};

constexpr Element verwendungen[] = {gehoelz::verwendungen};

constexpr Element sorten[] = {gemeinsam::sorten};
constexpr Element bemerkung[] = {gehoelz::bemerkung};
constexpr Element schaden[] = {gehoelz::schaden};

constexpr Gruppe blattBluete[] = {
    {.name = "Frame3D2", .titel = u"Blüte", .elemente = bluete, .regel = Gruppenregel::Feld, .regelfeld = "bluehzeit"},
    {.name = "Frame3D1", .titel = u"Frucht", .elemente = frucht, .regel = Gruppenregel::Feld, .regelfeld = "fruchtzeit"},
    {.name = "fraBlatt", .titel = u"Laub", .elemente = blatt},
    {.name = "fraGroesse", .titel = u"Größe und Wuchs", .elemente = groesse},
    {.name = "ssfWurzelwerk", .titel = u"Wurzelwerk", .elemente = wurzel, .regel = Gruppenregel::Controls},
};
constexpr Gruppe standortVerwendung[] = {
    {.name = "SSFrame4", .titel = u"Standort", .elemente = standort, .loeschtHinweis = true},
    {.name = "SSFrame3", .titel = u"Verwendung", .elemente = verwendungen, .loeschtHinweis = true},
};
constexpr Gruppe sortenReiter[] = {
    {.name = "fraSorten", .titel = u"Sorten", .elemente = sorten},
    {.name = "fraBemerkung", .titel = u"Bemerkung", .elemente = bemerkung},
    {.name = "fraKrank", .titel = u"Krankheiten und Schädlinge", .elemente = schaden},
};

constexpr Reiter reiter[] = {
    {u"Blatt/Blüte", blattBluete},
    {u"Standort/Verwendung", standortVerwendung},
    {u"Sorten/Krankheiten", sortenReiter},
    {u"Benutzer / Ausbildung", gemeinsam::benutzer},
};

constexpr auto fragen = gemeinsam::pflanzenfragen("*.FAMILIE");

} // namespace

const Fensterbeschreibung frmAnzeigeGehoelze{.sparte = Sparte::Gehoelze, .kopf = kopf, .tafel = tafel, .reiter = reiter, .fragen = fragen};
