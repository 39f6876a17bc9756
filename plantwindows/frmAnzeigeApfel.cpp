#include "frmAnzeigeApfel.h"

#include "Gemeinsam.h"

namespace {

/// Two adjoining classes read as one range.
QString kernzahl(const QString &text)
{
    if (text == u"< 4, 4-7")
        return QStringLiteral("< 7");
    if (text == u"4-7, > 7")
        return QStringLiteral("> 4");
    return text;
}

constexpr Element kopf[] = {
    {.muster = Muster::BotName, .control = "lblName", .feld = "BOT_NAME"},
    {.muster = Muster::Text, .control = "lblDtName", .feld = "DTNAM", .titel = "Label2"},
    {.muster = Muster::Text, .control = "lblSynonyme", .feld = "synonym", .titel = "Label3"},
};

constexpr Element tafel[] = {
    gemeinsam::herkunftsmarke,
    {.muster = Muster::Bewertung, .control = "picBewertung", .feld = "bewertung", .titeltext = u"Bewertung", .ausArbeit = true},
};

constexpr Element frucht[] = {
    {.muster = Muster::Liste, .control = "lblFrGroess", .feld = "fruchtgr", .titel = "Label4", .trenner = u" - "},
    {.muster = Muster::Liste, .control = "lblFormLaen", .feld = "form_l", .titel = "Label5"},
    {.muster = Muster::Liste, .control = "lblFormQuer", .feld = "form_q", .titel = "Label7"},
    {.muster = Muster::Liste, .control = "lblFrRelief", .feld = "fruchtrel", .titel = "Label9"},
};
constexpr Element griff[] = {
    {.muster = Muster::Liste, .control = "lblAussGrif", .feld = "aussehen", .titel = "Label16"},
    {.muster = Muster::Liste, .control = "lblDruckfes", .feld = "druck", .titel = "Label17"},
};
constexpr Element farbe[] = {
    {.muster = Muster::Liste, .control = "lblGrundFar", .feld = "grundfarbe", .titel = "Label1"},
    {.muster = Muster::Liste, .control = "lblDeckFarb", .feld = "deckfarbe", .titel = "Label10"},
    {.muster = Muster::Liste, .control = "lblDFArt", .feld = "df_art", .titel = "Label11"},
    {.muster = Muster::Liste, .control = "lblDFAusd", .feld = "df_ausdehn", .titel = "Label12"},
};
constexpr Element schale[] = {
    {.muster = Muster::Liste, .control = "lblSchBeros", .feld = "rost", .titel = "Label13"},
    {.muster = Muster::Liste, .control = "lblReif", .feld = "reif", .titel = "Label14"},
    {.muster = Muster::Liste, .control = "lblSchP", .feld = "sch_punkt", .titel = "Label15"},
};
constexpr Element kelchgrube[] = {
    {.muster = Muster::Liste, .control = "lblKGr", .feld = "k_grube", .titel = "Label18"},
    {.muster = Muster::Liste, .control = "lblKGrRelie", .feld = "k_relief", .titel = "Label19"},
    {.muster = Muster::Liste, .control = "lblKGrUmgeb", .feld = "k_umgebung", .titel = "Label20"},
    {.muster = Muster::Liste, .control = "lblKGrBeros", .feld = "k_berost", .titel = "Label21"},
};
constexpr Element kelch[] = {
    {.muster = Muster::Liste, .control = "lblKGroesse", .feld = "k_groesse", .titel = "Label26"},
    {.muster = Muster::Liste, .control = "lblKOeffnun", .feld = "k_oeffnung", .titel = "Label27"},
    {.muster = Muster::Liste, .control = "lblKBlaette", .feld = "k_blaetter", .titel = "Label28"},
};
constexpr Element stiel[] = {
    {.muster = Muster::Liste, .control = "lblStLaenge", .feld = "st_laenge", .titel = "Label24"},
    {.muster = Muster::Liste, .control = "lblStBesond", .feld = "st_besond", .titel = "Label25"},
};
constexpr Element stielgrube[] = {
    {.muster = Muster::Liste, .control = "lblStGrGroe", .feld = "st_grube", .titel = "Label22"},
    {.muster = Muster::Liste, .control = "lblStGrBero", .feld = "st_berost", .titel = "Label23"},
};
constexpr Element kelchhoehle[] = {
    {.muster = Muster::Liste, .control = "lblSchKHoeh", .feld = "k_hoehle", .titel = "Label29"},
    {.muster = Muster::Liste, .control = "lblSchKelch", .feld = "k_roehre", .titel = "Label31"},
};
constexpr Element kernhaus[] = {
    {.muster = Muster::Liste, .control = "lblSchKGr", .feld = "kh_groesse", .titel = "Label33"},
    {.muster = Muster::Liste, .control = "lblSchGefB", .feld = "g_buendel", .titel = "Label35"},
    {.muster = Muster::Liste, .control = "lblSchAchs", .feld = "a_hoehle", .titel = "Label37"},
    {.muster = Muster::Liste, .control = "lblSchKeKa", .feld = "k_kammern", .titel = "Label39"},
};
constexpr Element kernwand[] = {
    {.muster = Muster::Liste, .control = "lblSchKWFor", .feld = "kw_form", .titel = "Label41"},
    {.muster = Muster::Liste, .control = "lblSchKWGr", .feld = "kw_groesse", .titel = "Label43"},
    {.muster = Muster::Liste, .control = "lblSchKWRis", .feld = "kw_risse", .titel = "Label45"},
};
constexpr Element kerne[] = {
    {.muster = Muster::Liste, .control = "lblKernZahl", .feld = "k_anzahl", .titel = "Label30", .umformung = kernzahl},
    {.muster = Muster::Liste, .control = "lblKernQual", .feld = "k_qualit", .titel = "Label34"},
    {.muster = Muster::Liste, .control = "lblKernFGF", .feld = "k_farbe", .titel = "Label38"},
    {.muster = Muster::Liste, .control = "lblKernLaen", .feld = "k_laenge", .titel = "Label42"},
};
constexpr Element fleisch[] = {
    {.muster = Muster::Liste, .control = "lblFrFlFarb", .feld = "fl_farbe", .titel = "Label40"},
    {.muster = Muster::Liste, .control = "lblFrFlStru", .feld = "fl_strukt", .titel = "Label46"},
    {.muster = Muster::Liste, .control = "lblFrFlDuft", .feld = "fl_duft", .titel = "Label48"},
};
constexpr Element geschmack[] = {
    {.muster = Muster::Liste, .control = "lblFrFlScha", .feld = "schale", .titel = "Label32"},
    {.muster = Muster::Liste, .control = "lblFrFlGesc", .feld = "geschmack", .titel = "Label50"},
};
constexpr Element reife[] = {
    {.muster = Muster::Liste, .control = "lblHaltbar", .feld = "haltbark", .titel = "Label6"},
};

constexpr Element besonderes[] = {
    {.muster = Muster::Text, .control = "txtBesonderheiten", .feld = "besonderht", .kasten = true},
};
constexpr Element sorten[] = {
    {.muster = Muster::Text, .control = "txtSorten", .feld = "SORTEN", .kasten = true},
};

constexpr Element literatur[] = {
    {.muster = Muster::Kaestchen, .control = "ChkLiteratur", .feld = "literatur1", .worte = werkeDerLiteratur},
};

constexpr const char *schalenregel[] = {"lblSchBeros", "lblReif", "lblSchP"};
constexpr const char *kelchhoehlenregel[] = {"lblSchKHoeh", "lblSchKelch"};

constexpr Gruppe fruchtReiter[] = {
    {.name = "fraFrucht", .titel = u"Größe und Form", .elemente = frucht, .regel = Gruppenregel::Controls},
    {.name = "fraFarbe", .titel = u"Farbe", .elemente = farbe, .regel = Gruppenregel::Controls},
    {.name = "SSFrame4", .titel = u"Schale", .elemente = schale, .regel = Gruppenregel::Controls, .regelcontrols = schalenregel},
    {.name = "fraGriff", .titel = u"Griff", .elemente = griff, .regel = Gruppenregel::Controls},
    {.name = "fraReife", .titel = u"Reife", .elemente = reife, .regel = Gruppenregel::Controls},
    {.name = "fraBesonderes", .titel = u"Besonderheiten", .elemente = besonderes, .regel = Gruppenregel::Controls},
};
constexpr Gruppe kelchStielReiter[] = {
    {.name = "fraKelchgrube", .titel = u"Kelchgrube", .elemente = kelchgrube, .regel = Gruppenregel::Controls},
    {.name = "fraKelch", .titel = u"Kelch", .elemente = kelch, .regel = Gruppenregel::Controls},
    {.name = "fraStiel", .titel = u"Stiel", .elemente = stiel, .regel = Gruppenregel::Controls},
    {.name = "fraStielgrube", .titel = u"Stielgrube", .elemente = stielgrube, .regel = Gruppenregel::Controls},
};
// clang-format off
constexpr Gruppe innenReiter[] = {
    {.name = "SSFrame9", .titel = u"Kelchhöhle und Kelchröhre", .elemente = kelchhoehle, .regel = Gruppenregel::Controls,
     .regelcontrols = kelchhoehlenregel},
    {.name = "fraKernhaus", .titel = u"Kernhaus", .elemente = kernhaus, .regel = Gruppenregel::Controls},
    {.name = "fraKernwand", .titel = u"Kernhauswand", .elemente = kernwand, .regel = Gruppenregel::Controls},
    {.name = "fraKerne", .titel = u"Kerne", .elemente = kerne, .regel = Gruppenregel::Controls},
    {.name = "fraFleisch", .titel = u"Fruchtfleisch", .elemente = fleisch, .regel = Gruppenregel::Controls},
    {.name = "fraGeschmack", .titel = u"Schale und Geschmack", .elemente = geschmack, .regel = Gruppenregel::Controls},
};
// clang-format on
constexpr Gruppe sonstigesReiter[] = {
    {.name = "fraLiteratur", .titel = u"Beschrieben in", .elemente = literatur},
    {.name = "fraSorten", .titel = u"Mutanten und Typen", .elemente = sorten, .regel = Gruppenregel::Controls},
};

constexpr Reiter reiter[] = {
    {u"Frucht", fruchtReiter},
    {u"Kelch / Stiel", kelchStielReiter},
    {u"Kernhaus / Fleisch", innenReiter},
    {u"Sonstiges", sonstigesReiter},
    {u"Benutzer / Ausbildung", gemeinsam::benutzer},
};

constexpr const char *andereNamen[] = {"DTNAM", "synonym"};
constexpr Namensfrage fragen[] = {{Fragenart::Sortenname, "BOT_NAME", u"Sorte", andereNamen}};

} // namespace

const Fensterbeschreibung frmAnzeigeApfel{.sparte = Sparte::Apfel, .kopf = kopf, .tafel = tafel, .reiter = reiter, .fragen = fragen};
