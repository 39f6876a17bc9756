#include "frmAnzeigeFriedhof.h"

#include "Gehoelzfelder.h"
#include "Staudenfelder.h"

namespace {

constexpr Element kopf[] = {
    {.muster = Muster::BotName, .control = "lblBotName", .feld = "BOT_NAME", .feld2 = "*.Quelle"},
    {.muster = Muster::DtName, .control = "lblDtName", .feld = "DTNAM", .titeltext = u"Deutscher Name:"},
    {.muster = Muster::Familie, .control = "lblFamilie", .feld = "*.FAMILIE", .titeltext = u"Familie:", .titel = "LabelFam"},
    {.muster = Muster::Synonyme, .control = "lblSynonyme", .feld = "BOT_NAME", .titeltext = u"Synonyme:", .titel = "LabelSyn"},
    staude::herkunft,
};

constexpr Element tafel[] = {
    gemeinsam::herkunftsmarke,
    {.muster = Muster::Bewertung, .control = "picBewertung", .feld = "Friedhof.bewertung", .titeltext = u"Bewertung", .ausArbeit = true},
};

/// A row of another window, with words behind its text.
constexpr Element mitAnhang(Element element, std::span<const Anhang> anhang)
{
    element.anhang = anhang;
    return element;
}

/// A row of another window, whose field is the cemetery table's.
constexpr Element statt(Element element, const char *feld)
{
    element.feld = feld;
    return element;
}

/// A row of another window that has the page to itself there; here its text stands beside a caption.
constexpr Element mitTitel(Element element, QStringView titel)
{
    element.titeltext = titel;
    element.kasten = false;
    return element;
}

/// A row of another window, whose words are joined otherwise here.
constexpr Element mitTrenner(Element element, QStringView trenner)
{
    element.trenner = trenner;
    return element;
}

/// A row of another window, with another text for an empty field.
constexpr Element ohneWert(Element element, QStringView leer)
{
    element.leer = leer;
    element.leerNurBeiNull = false;
    return element;
}

/* What the cemetery table itself says, of perennials and woody plants alike. */
constexpr Element bluehschmuck{.muster = Muster::Satz, .control = "lblBluehSchmuck", .feld = "BLUEHSCHMU", .leer = u"Blüten sind schmückend!"};
constexpr Element fruchtschmuck{.muster = Muster::Satz, .control = "lblFruchtSchmuck", .feld = "fruchtschm", .leer = u"Früchte sind schmückend!"};
constexpr Element blattschmuck{.muster = Muster::Satz, .control = "lblBlattSchmuck", .feld = "*.blaschmuck", .leer = u"Blätter sind schmückend!"};
constexpr Element wuchs{
    .muster = Muster::Liste, .control = "lblWuchsVerh", .feld = "wuchsgesch", .titeltext = u"Wuchsgeschwindigkeit:", .trenner = u" - "};
constexpr Element pflanzzeit{.muster = Muster::Liste, .control = "lblPflanzzeit", .feld = "pflanzzeit", .titeltext = u"Pflanzzeit:"};
constexpr Element abstand{.muster = Muster::Text, .control = "lblAbstand", .feld = "Friedhof.abstand", .titeltext = u"Pflanzabstand:"};
constexpr Element pflege{.muster = Muster::Liste, .control = "lblPflege", .feld = "pflege", .titeltext = u"Pflegeaufwand:", .trenner = u" - "};
constexpr Element verwendung{.muster = Muster::Liste, .control = "lblVerwendung", .feld = "Friedhof.verwendung", .titeltext = u"Verwendung:"};
constexpr Element symbolik{.muster = Muster::Text, .control = "lblSymbolik", .feld = "SYMBOLIK", .ausArbeit = true};

constexpr Anhang anStaudenhoehe[] = {{"Stauden.UNSCHEINBA", u"(unscheinbar)", u" "}};
constexpr Anhang anStaudentyp[] = {{"Stauden.immergruen", u"immergrün"}, {"DUFT", u"Duftpflanze"}, {"Friedhof.HERBSTFARB", u"Herbstfärbung!"}};
constexpr Anhang anGehoelzhoehe[] = {{"Gehoelze.UNSCHEINBA", u"(unscheinbar)", u" "}};
constexpr Anhang anLaubzeit[] = {{"Friedhof.HERBSTFARB", u"Herbstfärbung!"}};
constexpr Anhang anGroesse[] = {{"DUFT", u"Duftpflanze"}};

constexpr Element bluete[] = {
    staude::bluetenfarben, staude::bluehzeit, mitAnhang(staude::bluetenhoehe, anStaudenhoehe), staude::bluetenform, bluehschmuck,
};
constexpr Element frucht[] = {staude::fruchtfarben, staude::fruchtzeit, fruchtschmuck};
constexpr Element belaubung[] = {staude::laubhoehe, staude::blattform, staude::blattfarbe, staude::herbstfarben, blattschmuck};
constexpr Element pflanzentyp[] = {staude::marken, mitAnhang(staude::pflanzentyp, anStaudentyp), staude::lebensraum, staude::kennziffer,
                                   staude::urteil};
constexpr Element habitus[] = {staude::wuchsform, wuchs};
constexpr Element standort[] = {staude::licht, staude::bodenart, staude::bodenfeuchte, staude::kalk, mitTrenner(staude::naehrstoffe, u" - ")};
constexpr Element pflanzzeiten[] = {pflanzzeit, pflege};
constexpr Element pflanzung[] = {staude::pflanzung, abstand, staude::geselligkeit, staude::duengung, staude::vermehrung};
constexpr Element verwendungen[] = {verwendung, mitTitel(staude::verwendungsart, u"Besondere Verw.:")};
constexpr Element bedeutung[] = {symbolik};
constexpr Element bemerkung[] = {ohneWert(mitTitel(gemeinsam::sorten, u"Sorten:"), u"keine Sortenangaben"),
                                 ohneWert(staude::bemerkung, u"Keine Bemerkungen")};

// clang-format off
constexpr Element ghBluete[] = {
    gehoelz::bluetenfarben, gehoelz::bluehzeit,
    {.muster = Muster::VonBisMeter, .control = "lblBluetHoehe", .feld = "Friedhof.MINHOEHE", .feld2 = "Friedhof.MAXHOEHE",
     .titeltext = u"Höhe mit Blüte:", .titel = "labelBl", .einheit = u" m", .anhang = anGehoelzhoehe},
    bluehschmuck,
};
constexpr Element ghFrucht[] = {gehoelz::fruchtfarben, statt(gehoelz::fruchtzeit, "Friedhof.fruchtzeit"), gehoelz::genuss, fruchtschmuck};
constexpr Element ghBelaubung[] = {
    mitAnhang(gehoelz::laubzeit, anLaubzeit), gehoelz::laubfarbe, gehoelz::austrieb, statt(blattschmuck, "Friedhof.blaschmuck"),
};
constexpr Element ghPflanzentyp[] = {
    gehoelz::einteilung,
    {.muster = Muster::Liste, .control = "lblEinteilung", .feld = "*.grobeint", .titeltext = u"Einteilung:", .anhang = anGroesse},
    gehoelz::groesse, gehoelz::durchmesser, gehoelz::merkmale, gehoelz::kennzahl,
};
constexpr Element ghHabitus[] = {
    gehoelz::habitus, wuchs, mitTitel(gehoelz::wurzelform, u"Wurzelwuchs:"), mitTitel(gehoelz::wurzelempfindlichkeit, u"Wurzel ist:"),
};
constexpr Element ghStandort[] = {
    gehoelz::licht, gehoelz::bodenart, gehoelz::bodenfeuchte, gehoelz::boden, mitTrenner(statt(staude::naehrstoffe, "NAEHRSTOFF"), u" - "),
    gehoelz::standorteigenschaften,
};
constexpr Element ghPflanzung[] = {abstand};
constexpr Element ghVerwendungen[] = {verwendung, gehoelz::verwendungen};
constexpr Element ghBemerkung[] = {
    mitTitel(gemeinsam::sorten, u"Sorten:"), mitTitel(gehoelz::bemerkung, u"Bemerkungen:"), mitTitel(gehoelz::schaden, u"Krankheiten, Schädlinge:"),
};
// clang-format on

/// A frame of the perennials.
constexpr Gruppe staudengruppe(const char *name, QStringView titel, std::span<const Element> elemente, Gruppenregel regel = Gruppenregel::Immer,
                               const char *regelfeld = nullptr)
{
    return {.name = name, .titel = titel, .elemente = elemente, .regel = regel, .regelfeld = regelfeld, .herkunft = Sparte::Stauden};
}

/// A frame of the woody plants.
constexpr Gruppe gehoelzgruppe(const char *name, QStringView titel, std::span<const Element> elemente, Gruppenregel regel = Gruppenregel::Immer,
                               const char *regelfeld = nullptr)
{
    Gruppe gruppe = staudengruppe(name, titel, elemente, regel, regelfeld);
    gruppe.herkunft = Sparte::Gehoelze;
    gruppe.einschub = "Gh";
    return gruppe;
}

constexpr Gruppe blattBluete[] = {
    staudengruppe("fraBluete", u"Blüte", bluete, Gruppenregel::Feld, "Stauden.bluehzeit"),
    staudengruppe("fraFrucht", u"Frucht", frucht, Gruppenregel::Feld, "Stauden.fruchtzeit"),
    staudengruppe("fraBelaubung", u"Belaubung", belaubung, Gruppenregel::Controls),
    gehoelzgruppe("fraGhBluete", u"Blüte", ghBluete, Gruppenregel::Feld, "Gehoelze.bluehzeit"),
    gehoelzgruppe("fraGhFrucht", u"Frucht", ghFrucht, Gruppenregel::Feld, "Friedhof.fruchtzeit"),
    gehoelzgruppe("fraGhBelaubung", u"Belaubung", ghBelaubung),
};
constexpr Gruppe wuchsStandort[] = {
    staudengruppe("fraPflanzentyp", u"Pflanzentyp", pflanzentyp), staudengruppe("fraHabitus", u"Habitus", habitus),
    staudengruppe("fraStandort", u"Standort", standort),          gehoelzgruppe("fraGhPflanzentyp", u"Pflanzentyp", ghPflanzentyp),
    gehoelzgruppe("fraGhHabitus", u"Habitus", ghHabitus),         gehoelzgruppe("fraGhStandort", u"Standort", ghStandort),
};
constexpr Gruppe pflanzungVerwendung[] = {
    staudengruppe("fraPflanzzeit", u"Pflanzzeit und Pflege", pflanzzeiten, Gruppenregel::Controls),
    staudengruppe("fraVerwendung", u"Verwendung", verwendungen),
    staudengruppe("fraPflanzung", u"Pflanzung", pflanzung),
    staudengruppe("fraSymbolik", u"Symbolik", bedeutung, Gruppenregel::Controls),
    gehoelzgruppe("fraGhPflanzzeit", u"Pflanzzeit und Pflege", pflanzzeiten, Gruppenregel::Controls),
    gehoelzgruppe("fraGhPflanzung", u"Pflanzung", ghPflanzung, Gruppenregel::Controls),
    gehoelzgruppe("fraGhVerwendung", u"Verwendung", ghVerwendungen, Gruppenregel::Controls),
    gehoelzgruppe("fraGhSymbolik", u"Symbolik", bedeutung, Gruppenregel::Controls),
};
constexpr Gruppe sortenBemerkung[] = {
    staudengruppe("fraBemerkung", u"Sorten und Bemerkungen", bemerkung),
    gehoelzgruppe("fraGhBemerkung", u"Sorten und Bemerkungen", ghBemerkung),
};

constexpr Reiter reiter[] = {
    {u"Blatt/Blüte", blattBluete},
    {u"Wuchs/Standort", wuchsStandort},
    {u"Pflanzung/Verwendung", pflanzungVerwendung},
    {u"Sorten/Bemerkungen", sortenBemerkung},
    {u"Benutzer / Ausbildung", gemeinsam::benutzer},
};

constexpr auto fragen = gemeinsam::pflanzenfragen("*.FAMILIE");

} // namespace

const Fensterbeschreibung frmAnzeigeFriedhof{
    .sparte = Sparte::Friedhof, .kopf = kopf, .tafel = tafel, .reiter = reiter, .fragen = fragen, .ohneNummer = Sparte::Gehoelze};
