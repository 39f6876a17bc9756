#include "Schema.h"

#include "Bildzeile.h"

#include <QStringList>

#include <algorithm>
#include <array>

namespace {

constexpr QStringView abfrageName = u"Abfrage_Friedhof";

/// A boolean column with the sentence that print has for a true one.
constexpr Spalte wahr(const char *name, QStringView satz, QStringView druckname = {})
{
    return {.name = name, .art = Art::Wahrheit, .druckname = druckname, .satz = satz};
}

/// A coded column that is not written as flags.
constexpr Spalte kodiert(const char *name, Art art, const Werteliste *liste, QStringView druckname, Schreibweise weise,
                         std::span<const Marke> marken = {})
{
    return {.name = name, .art = art, .liste = liste, .druckname = druckname, .schreibweise = weise, .marken = marken};
}

constexpr Marke markenPflanzenart[] = {{u"1", 1}, {u"2", 2}, {u"B", 3}, {u"H", 4}, {u"Str", 6},
                                       {u"S", 5}, {u"Z", 7}, {u"G", 8}, {u"F", 9}, {u"W", 10}};
constexpr int sorte = 1, wildstaude = 2; // groups of the verdict
constexpr Marke markenUrteil[] = {{u"***", 1, sorte},     {u"**", 2, sorte},     {u"*", 3, sorte},     {u"L", 4}, {u"S", 5}, {u"w!", 6, wildstaude},
                                  {u"W!", 6, wildstaude}, {u"w", 7, wildstaude}, {u"W", 7, wildstaude}};

constexpr Spalte spaltenTopfpfl[] = {
    {"ARTNR", Art::Schluessel},
    {"BOT_NAME", Art::Name},
    {"DTNAM", Art::Name},
    {"HK", Art::Text, nullptr, u"Heimat"},
    {"FAMILIE", Art::Familie, nullptr, u"Familie"},
    {"PFLANZTYP", Art::Flags, &WL_ToPflanztyp, u"Typ"},
    {"MINHOEHE", Art::Zahl, nullptr, u"minimale Höhe", u" m"},
    {"MAXHOEHE", Art::Zahl, nullptr, u"maximale Höhe", u" m"},
    {"BLMINH", Art::Zahl, nullptr, u"minimale Blüten-Höhe", u" m"},
    {"BLMAXH", Art::Zahl, nullptr, u"maximale Blüten-Höhe", u" m"},
    {"BLUEHZEIT", Art::Monate, nullptr, u"Blütezeit"},
    {"FRUCHTZEIT", Art::Monate, nullptr, u"Fruchtzeit"},
    {"FARBEN", Art::Flags, &WL_Bluetenfarbe, u"Blütenfarbe"},
    wahr("UNSCHEINBA", u"Die Blüten sind unscheinbar!"),
    {"FRUCHTFARB", Art::Flags, &WL_ToFruchtfarbe, u"Fruchtfarbe"},
    {"BLATTFARB", Art::Flags, &WL_ToBlattfarbe, u"Blattfarbe"},
    {"ANGEBOTSZ", Art::Monate, nullptr, u"Angebotszeit"},
    {"WUCHSFORM", Art::Flags, &WL_ToWuchsform, u"Wuchsform"},
    {"VERWENDUNG", Art::Flags, &WL_ToVerwendung, u"Verwendung"},
    {"TAGESL", Art::Flags, &WL_ToTageslaenge, u"Tageslängenreaktion"},
    {"SONNE", Art::Flags, &WL_Licht, u"Lichtverträglichkeit"},
    {"LICHTMIN", Art::Zahl, nullptr, u"Beleuchtungsstärke minimal", u" Lux"},
    {"LICHTMAX", Art::Zahl, nullptr, u"Beleuchtungsstärke maximal", u" Lux"},
    {"TEMPMIN", Art::Zahl, nullptr, u"Temperatur minimal", u" °C"},
    {"TEMPMAX", Art::Zahl, nullptr, u"Temperatur maximal", u" °C"},
    {"NACHDUENG", Art::Flags, &WL_ToNachduengung, u"Höhe der Nachdüngung"},
    {"H_WASSERST", Art::Flags, &WL_ToHWasserstand, u"Hydrokultur-Wasserstand"},
    {"H_PH", Art::Flags, &WL_ToHPh, u"Hydrokultur-pH"},
    {"H_VERW", Art::Flags, &WL_ToHVerwendung, u"Hydrokultur-Verwendung"},
    {"HALTBAR", Art::Flags, &WL_ToHaltbarkeit, u"Haltbarkeit"},
    {"KRANKH", Art::Flags, &WL_ToKrankheit, u"Krankheitsanfälligkeit"},
    wahr("GIFTIG", u"Giftpflanze"),
    {"SORTEN", Art::Memo, nullptr, u"Sorten"},
    {"SCHADEN", Art::Memo, nullptr, u"Krankheiten/Schädlinge"},
    {"BEMERKUNG", Art::Memo, nullptr, u"Bemerkung (Flox)"},
    {"DUENG_FS", Art::Text, nullptr, u"Düngung Frühjahr/Sommer"},
    {"DUENG_HW", Art::Text, nullptr, u"Düngung Herbst/Winter"},
    {"Quelle", Art::Quelle, nullptr, u"Quelle"},
    {"STANDARD", Art::Wahrheit, nullptr, u"Standardpflanze"},
    {"benu_bemerkung", Art::Memo, nullptr, u"Bemerkung (Benutzer)"},
    {"benu_eigen", Art::Eigen, nullptr, u"Benutzerdef. Eigenschaften"},
    {"bewertung", Art::Bewertung, nullptr, u"Bewertung"},
    {"Ausbildung", Art::Flags, &WL_Ausbildung, u"Für Azubis"},
    {"Benu_Aenderung", Art::Ganzzahl},
};
static_assert(std::size(spaltenTopfpfl) == 44);

constexpr Spalte spaltenStauden[] = {
    {"ARTNR", Art::Schluessel},
    {"BOT_NAME", Art::Name},
    {"DTNAM", Art::Name},
    {"HK", Art::Text, nullptr, u"Herkunft"},
    wahr("heimisch", u"heimische Pflanze"),
    kodiert("pflanzart", Art::Code, &WL_Pflanzenart, u"Pflanzentyp", Schreibweise::Anfang, markenPflanzenart),
    {"lebensraum", Art::Flags, &WL_Lebensbereich, u"Lebensraum"},
    {"kennziffer", Art::Text, nullptr, u"Kennziffer"},
    {"MINHOEHE", Art::Zahl, nullptr, u"Höhe minimal", u" m"},
    {"MAXHOEHE", Art::Zahl, nullptr, u"Höhe maximal", u" m"},
    {"BLMINH", Art::Zahl, nullptr, u"Höhe Blüten minimal", u" m"},
    {"BLMAXH", Art::Zahl, nullptr, u"Höhe Blüten maximal", u" m"},
    {"bluehzeit", Art::Monate, nullptr, u"Blütezeit"},
    {"fruchtzeit", Art::Monate, nullptr, u"Fruchtzeit"},
    {"farben", Art::Flags, &WL_Bluetenfarbe, u"Blütenfarbe"},
    kodiert("fruchtfarb", Art::Nummer, &WL_Fruchtfarbe, u"Fruchtfarbe", Schreibweise::ZahlOderFlags),
    kodiert("herbstfarb", Art::Nummer, &WL_Bluetenfarbe, u"Herbstfärbung", Schreibweise::ZahlOderFlags),
    {"farbtxt", Art::Text, nullptr, u"Farbtxt"},
    {"blform", Art::Text, nullptr, u"Blütenform"},
    wahr("UNSCHEINBA", u"Die Blüten sind unscheinbar!", u"Erscheinung"),
    {"blattform", Art::Text, nullptr, u"Blattform"},
    {"blattfarbe", Art::Flags, &WL_StBlattfarbe, u"Blattfarbe"},
    wahr("blaschmuck", u"Blattschmuckstaude"),
    wahr("immergruen", u"immergrüne Pflanze"),
    {"m2", Art::Zahl, nullptr, {}, u"/m²"},
    {"vermehrung", Art::Text, nullptr, u"Vermehrung"},
    {"wuchsform", Art::Text, nullptr, u"Wuchsform"},
    {"besverw", Art::Text, nullptr, u"Besondere Verw."},
    {"verwendung", Art::Text, nullptr, u"Verwendung"},
    {"licht", Art::Flags, &WL_Licht, u"Lichtverträglichkeit"},
    {"bodenart", Art::Flags, &WL_Bodenart, u"Bodenart"},
    {"bfeuchte", Art::Flags, &WL_Bodenfeuchte, u"Bodenfeuchte"},
    {"kalk", Art::Flags, &WL_Kalk, u"Boden pH-Bereich"},
    {"duengung", Art::Text, nullptr, u"Düngung"},
    {"salz", Art::Flags, &WL_Naehrstoff, u"Nährstoffbedarf"},
    wahr("schnitt", u"Schnittpflanze"),
    kodiert("geselligkt", Art::Code, &WL_Geselligkeit, u"Geselligkeit", Schreibweise::Zahl),
    {"FAMILIE", Art::Familie, nullptr, u"Familie"},
    {"abstand", Art::Text, nullptr, u"Pflanzabstand"},
    wahr("giftig", u"Giftpflanze"),
    {"sonstiges", Art::Text, nullptr, u"Sonstiges"},
    {"SORTEN", Art::Memo, nullptr, u"Sorten"},
    {"BEMERKUNG", Art::Memo, nullptr, u"Bemerkung"},
    kodiert("urteil", Art::Code, &WL_Urteil, u"Urteil", Schreibweise::Marken, markenUrteil),
    {"Quelle", Art::Quelle, nullptr, u"Quelle"},
    {"benu_bemerkung", Art::Memo, nullptr, u"Bemerkung (Benutzer)"},
    {"benu_eigen", Art::Eigen, nullptr, u"Benutzerdef. Eigenschaften"},
    {"bewertung", Art::Bewertung, nullptr, u"Bewertung"},
    {"Ausbildung", Art::Flags, &WL_Ausbildung, u"Für Azubis"},
    {"Benu_Aenderung", Art::Ganzzahl},
};
static_assert(std::size(spaltenStauden) == 50);

constexpr Spalte spaltenGehoelze[] = {
    {"ARTNR", Art::Schluessel},
    {"BDBNR", Art::Text, nullptr, u"BdB-Nummer"},
    {"BOT_NAME", Art::Name, nullptr, u"Botanischer Name"},
    {"DTNAM", Art::Name, nullptr, u"Deutscher Name"},
    {"hk", Art::Text, nullptr, u"Herkunft"},
    {"FAMILIE", Art::Familie, nullptr, u"Familie"},
    kodiert("grobeint", Art::Code, &WL_GeGrobeinteilung, {}, Schreibweise::Zahl),
    {"groesse", Art::Flags, &WL_GeGroesse, u"Größengruppe"},
    {"maxdurchm", Art::Zahl, nullptr, u"Durchmesser maximal", u" m"},
    {"habitus", Art::Flags, &WL_GeHabitus, u"Habitus"},
    {"wuchs", Art::Flags, &WL_GeWuchs, u"Wuchsverhalten"},
    {"bluehfarb", Art::Flags, &WL_Bluetenfarbe, u"Blütenfarbe"},
    {"bluehzeit", Art::Monate, nullptr, u"Blütenzeit"},
    wahr("UNSCHEINBA", u"Die Blüten sind unscheinbar!", u"Erscheinung"),
    {"fruchtfarb", Art::Flags, &WL_Fruchtfarbe, u"Fruchtfarbe"},
    {"fruchtzeit", Art::Monate, nullptr, u"Fruchtzeit"},
    kodiert("genuss", Art::Flags, &WL_GeGenuss, u"Geniessbarkeit", Schreibweise::ZahlOderFlags),
    {"laubzeit", Art::Flags, &WL_GeLaubzeit},
    {"laubfarb", Art::Flags, &WL_GeLaubfarbe, u"Laubfarbe"},
    {"laubaustr", Art::Monate, nullptr, u"Laubaustrieb"},
    {"wurzelform", Art::Flags, &WL_GeWurzelform, u"Wurzelform"},
    kodiert("wurzelempf", Art::Flags, &WL_GeWurzelempf, u"Wurzelempfindlichkeit", Schreibweise::ZahlOderFlags),
    {"bes_merkm", Art::Flags, &WL_GeBesMerkmale, u"Besondere Merkmale"},
    {"verwendung", Art::Flags, &WL_GeVerwendung, u"Verwendung"},
    {"kennzahl", Art::Text, nullptr, u"Kennzahl"},
    {"licht", Art::Flags, &WL_Licht, u"Lichtverträglichkeit"},
    {"phboden", Art::Flags, &WL_GeBodenPh, u"Boden pH-Bereich"},
    {"bfeuchte", Art::Flags, &WL_GeBodenfeuchte, u"Bodenfeuchte"},
    {"bodenart", Art::Flags, &WL_GeBodenart, u"Bodenart"},
    {"bes_eig", Art::Flags, &WL_GeBesEigenschaften, u"Besondere Eigenschaften"},
    {"SORTEN", Art::Memo, nullptr, u"Sorten"},
    {"schaden", Art::Memo, nullptr, u"Krankheiten/Schädlinge"},
    {"BEMERKUNG", Art::Memo, nullptr, u"Bemerkung (Flox)"},
    {"Quelle", Art::Quelle, nullptr, u"Quelle"},
    {"benu_bemerkung", Art::Memo, nullptr, u"Bemerkung (Benutzer)"},
    {"benu_eigen", Art::Eigen, nullptr, u"Benutzerdef. Eigenschaften"},
    {"bewertung", Art::Bewertung, nullptr, u"Bewertung"},
    {"Ausbildung", Art::Flags, &WL_Ausbildung, u"Für Azubis"},
    {"Benu_Aenderung", Art::Ganzzahl},
    wahr("giftig", u"Giftpflanze"),
};
static_assert(std::size(spaltenGehoelze) == 40);

constexpr Spalte spaltenApfel[] = {
    {"ARTNR", Art::Schluessel},
    {"BOT_NAME", Art::Name, nullptr, u"Name"},
    {"DTNAM", Art::Name, nullptr, u"Voller Name"},
    {"synonym", Art::Text, nullptr, u"Synonyme"},
    {"haltbark", Art::Flags, &WL_ApHaltbark, u"Haltbarkeit"},
    {"fruchtgr", Art::Flags, &WL_ApFruchtgr, u"Fruchtgröße"},
    {"form_l", Art::Flags, &WL_ApFormL, u"Form (Längs)"},
    {"form_q", Art::Flags, &WL_ApFormQ, u"Form (Quer)"},
    {"fruchtrel", Art::Flags, &WL_ApFruchtrel, u"Fruchtrelief"},
    {"grundfarbe", Art::Flags, &WL_ApGrundfarbe, u"Grundfarbe"},
    {"deckfarbe", Art::Flags, &WL_ApDeckfarbe, u"Deckfarbe"},
    {"df_art", Art::Flags, &WL_ApDfArt, u"Deckfarbe Art"},
    {"df_ausdehn", Art::Flags, &WL_ApDfAusdehn, u"Ausdehnung der Deckfarbe"},
    {"rost", Art::Flags, &WL_ApRost, u"Berostung"},
    {"reif", Art::Flags, &WL_ApReif, u"Reif"},
    {"sch_punkt", Art::Flags, &WL_ApSchPunkt, u"Schalenpunkte/ -höfe"},
    {"aussehen", Art::Flags, &WL_ApAussehen, u"Aussehen, Griffigkeit"},
    {"druck", Art::Flags, &WL_ApDruck, u"Druckfestigeit"},
    {"k_grube", Art::Flags, &WL_ApKGrube, u"Kelchgrube"},
    {"k_relief", Art::Flags, &WL_ApKRelief, u"Kelchgrubenrelief"},
    {"k_umgebung", Art::Flags, &WL_ApKUmgebung, u"Kelchumgebung"},
    {"k_berost", Art::Flags, &WL_ApKBerost, u"Kelchgrubenberostung"},
    {"k_groesse", Art::Flags, &WL_ApKGroesse, u"Kelchgröße"},
    {"k_oeffnung", Art::Flags, &WL_ApKOeffnung, u"Kelchöffnung"},
    {"k_blaetter", Art::Flags, &WL_ApKBlaetter, u"Kelchblätter"},
    {"st_grube", Art::Flags, &WL_ApStGrube, u"Stielgrubengröße"},
    {"st_berost", Art::Flags, &WL_ApStBerost, u"Stielgrubenberostung"},
    {"st_laenge", Art::Flags, &WL_ApStLaenge, u"Stiellänge/-dicke"},
    {"st_besond", Art::Flags, &WL_ApStBesond, u"Stiel Besonderheiten"},
    {"k_hoehle", Art::Flags, &WL_ApKHoehle, u"Kelchhöhle"},
    {"k_roehre", Art::Flags, &WL_ApKRoehre, u"Kelchröhre"},
    {"kh_groesse", Art::Flags, &WL_ApKhGroesse, u"Kernhausgröße"},
    {"g_buendel", Art::Flags, &WL_ApGBuendel, u"Gefäßbündel"},
    {"a_hoehle", Art::Flags, &WL_ApAHoehle, u"Achsenhöhle"},
    {"k_kammern", Art::Flags, &WL_ApKKammern, u"Kernhauskammern"},
    {"kw_form", Art::Flags, &WL_ApKwForm, u"Kernwandform"},
    {"kw_groesse", Art::Flags, &WL_ApKwGroesse, u"Kernwandgröße"},
    {"kw_risse", Art::Flags, &WL_ApKwRisse, u"Kernwandrisse"},
    {"k_anzahl", Art::Flags, &WL_ApKAnzahl, u"Kerne Anzahl"},
    {"k_qualit", Art::Flags, &WL_ApKQualit, u"Kerne Qualität"},
    {"k_farbe", Art::Flags, &WL_ApKFarbe, u"Kerne Farbe, Form"},
    {"k_laenge", Art::Flags, &WL_ApKLaenge, u"Kerne Länge"},
    {"schale", Art::Flags, &WL_ApSchale, u"Schale"},
    {"fl_farbe", Art::Flags, &WL_ApFlFarbe, u"Fruchtfleisch Farbe"},
    {"fl_strukt", Art::Flags, &WL_ApFlStrukt, u"Fruchtfleisch Struktur"},
    {"fl_duft", Art::Flags, &WL_ApFlDuft, u"Fruchtfleisch Duft"},
    {"geschmack", Art::Flags, &WL_ApGeschmack, u"Geschmack"},
    {"literatur1", Art::Literatur, &WL_ApLiteratur, u"Literatur"},
    {"besonderht", Art::Memo, nullptr, u"Besonderheiten"},
    {"benu_bemerkung", Art::Memo, nullptr, u"Bemerkung (Benutzer)"},
    {"benu_eigen", Art::Eigen, nullptr, u"Benutzerdef. Eigenschaften"},
    {"SORTEN", Art::Memo},
    {"BEMERKUNG", Art::Memo},
    {"bewertung", Art::Bewertung},
    {"Ausbildung", Art::Flags, &WL_Ausbildung},
    {"Benu_Aenderung", Art::Ganzzahl},
};
static_assert(std::size(spaltenApfel) == 56);

constexpr Spalte spaltenObst[] = {
    {"ARTNR", Art::Schluessel},
    {"BOT_NAME", Art::Name, nullptr, u"Name"},
    {"synonym", Art::Text, nullptr, u"Synonyme"},
    {"DTNAM", Art::Name, nullptr, u"Obstart"},
    {"HK", Art::Text, nullptr, u"Herkunft"},
    {"ABSTAMM", Art::Text, nullptr, u"Abstammung"},
    {"WUCHS", Art::Flags, &WL_ObWuchs, u"Wuchs"},
    {"BLATT", Art::Flags, &WL_ObBlatt, u"Blatt"},
    {"FRUHOL", Art::Flags, &WL_ObFruhol, u"Fruchtholz"},
    {"TRIRUT", Art::Flags, &WL_ObTrirut, u"Trieb/Rute"},
    {"UNTERLAGE", Art::Flags, &WL_ObUnterlage, u"Unterlage"},
    {"KRANKH", Art::Flags, &WL_ObKrankh, u"Empfindlich auf"},
    {"RESISTENZ", Art::Flags, &WL_ObResistenz, u"Unempfindlich für"},
    {"FROEMF", Art::Flags, &WL_ObFroemf, u"Frostempfindlichkeit"},
    {"BLUETE", Art::Flags, &WL_ObBluete, u"Blütezeit/ -ort"},
    {"BEFRU", Art::Flags, &WL_ObBefru, u"Befruchtung"},
    {"BEFRSOR", Art::Flags, &WL_ObBefrsor, u"Als Befruchtersorte"},
    {"GEBEFR", Art::Text, nullptr, u"Geeignete Befruchtersorten"},
    {"INTERSTER", Art::Text, nullptr, u"Intersterilität mit"},
    {"FRUSTAN", Art::Flags, &WL_ObFrustan, u"Fruchtstand"},
    {"ERTRAG", Art::Flags, &WL_ObErtrag, u"Ertrag"},
    {"ALTRNAZ", Art::Flags, &WL_ObAltrnaz, u"Alternanzneigung"},
    {"FRUFAR", Art::Flags, &WL_ObFrufar, u"Fruchtfarbe"},
    {"GRUNDFARB", Art::Flags, &WL_ObGrundfarb, u"Grundfarbe"},
    {"DECKFARB", Art::Flags, &WL_ObDeckfarb, u"Deckfarbe"},
    {"SCHALE", Art::Flags, &WL_ObSchale, u"Fruchthaut/Schale"},
    {"FRUFLEI", Art::Flags, &WL_ObFruflei, u"Fruchtfleisch"},
    {"FRUFOR", Art::Flags, &WL_ObFrufor, u"Fruchtform"},
    {"GESMAK", Art::Flags, &WL_ObGesmak, u"Geschmack"},
    {"BESOND", Art::Memo, nullptr, u"Besonderheiten"},
    {"FRUENTW", Art::Text, nullptr, u"Fruchtentwicklung in Tagen"},
    {"PFLREF", Art::Text, nullptr, u"Pflückreife"},
    {"GENUSSREF", Art::Text, nullptr, u"Genuss-/Verwertungsreife"},
    {"TRANSPEMP", Art::Flags, &WL_ObTranspemp, u"Transportempfindlichkeit"},
    {"LAGEIG", Art::Flags, &WL_ObLageig, u"Lagereignung"},
    {"FRILUFLAG", Art::Text, nullptr, u"Frischluftlager"},
    {"KUEHLLAG", Art::Text, nullptr, u"Kühllager"},
    {"CALAGER", Art::Text, nullptr, u"CA-Lager"},
    {"LAGKRANK", Art::Flags, &WL_ObLagkrank, u"Lagerkrankheiten"},
    {"ERNTE", Art::Flags, &WL_ObErnte, u"Ernte"},
    {"VERWEND", Art::Flags, &WL_ObVerwend, u"Verwendung"},
    {"BODEN", Art::Flags, &WL_ObBoden, u"Boden"},
    {"KLIMA", Art::Flags, &WL_ObKlima, u"Klima"},
    {"NAEHRSTOFF", Art::Flags, &WL_ObNaehrstoff, u"Nährstoffbedarf"},
    {"EIGNUNG", Art::Flags, &WL_ObEignung, u"Eignung"},
    {"ERZIFORM", Art::Flags, &WL_ObErziform, u"Erziehungsform"},
    {"SHNITT", Art::Flags, &WL_ObShnitt, u"Schnittmaßnahmen"},
    {"PFLSHTZ", Art::Flags, &WL_ObPflshtz, u"Pflanzenschutz"},
    {"SOTBEW", Art::Text, nullptr, u"Sortenbewertung"},
    {"MUTANT", Art::Text, nullptr, u"Mutanten"},
    {"FAMILIE", Art::Familie, nullptr, u"Familie"},
    {"SORTEN", Art::Memo, nullptr, u"Sorten"},
    {"benu_bemerkung", Art::Memo, nullptr, u"Bemerkung (Benutzer)"},
    {"benu_eigen", Art::Eigen, nullptr, u"Benutzerdef. Eigenschaften"},
    {"bewertung", Art::Bewertung, nullptr, u"Bewertung"},
    {"Ausbildung", Art::Flags, &WL_Ausbildung, u"Für Azubis"},
    {"BEMERKUNG", Art::Memo},
    {"Benu_Aenderung", Art::Ganzzahl},
};
static_assert(std::size(spaltenObst) == 58);

constexpr Spalte spaltenFriedhof[] = {
    {"ARTNR", Art::Schluessel},
    {"BOT_NAME", Art::Name},
    {"DTNAM", Art::Name},
    {"DB", Art::Code},
    {"SYMBOLIK", Art::Text},
    {"verwendung", Art::Flags, &WL_FhSymbolik},
    {"pflege", Art::Flags, &WL_FhPflege},
    {"pflanzzeit", Art::Flags, &WL_FhPflanzzeit},
    {"MINHOEHE", Art::Zahl},
    {"MAXHOEHE", Art::Zahl},
    wahr("blaschmuck", u"Blätter sind schmückend!"),
    wahr("BLUEHSCHMU", u"Blüten sind schmückend!"),
    {"bluehzeit", Art::Monate},
    wahr("fruchtschm", u"Früchte sind schmückend!"),
    {"fruchtfarb", Art::Flags, &WL_Fruchtfarbe},
    {"fruchtzeit", Art::Monate},
    wahr("HERBSTFARB", u"Herbstfärbung!"),
    {"wuchsgesch", Art::Flags, &WL_GeWuchs},
    {"wuchsform", Art::Text},
    {"NAEHRSTOFF", Art::Flags, &WL_Naehrstoff},
    {"abstand", Art::Text},
    wahr("DUFT", u"Duftpflanze"),
    {"benu_bemerkung", Art::Memo},
    {"benu_eigen", Art::Eigen},
    {"bewertung", Art::Bewertung},
    {"Benu_Aenderung", Art::Ganzzahl},
};
static_assert(std::size(spaltenFriedhof) == 26);

constexpr Abfragespalte spaltenAbfrageFriedhof[] = {
    {"ARTNR", "Friedhof", "ARTNR"},
    {"BOT_NAME", "Friedhof", "BOT_NAME"},
    {"DTNAM", "Friedhof", "DTNAM", u"Deutscher Name"},
    {"DB", "Friedhof", "DB"},
    {"SYMBOLIK", "Friedhof", "SYMBOLIK", u"Symbolik"},
    {"friedhof_verwendung", "Friedhof", "verwendung", u"Verwendung"},
    {"pflege", "Friedhof", "pflege", u"Pflegeaufwand"},
    {"pflanzzeit", "Friedhof", "pflanzzeit", u"Pflanzzeit"},
    {"friedhof_MINHOEHE", "Friedhof", "MINHOEHE", u"", u" m"},
    {"friedhof_MAXHOEHE", "Friedhof", "MAXHOEHE", u"", u" m"},
    {"friedhof_blaschmuck", "Friedhof", "blaschmuck"},
    {"BLUEHSCHMU", "Friedhof", "BLUEHSCHMU"},
    {"friedhof_bluehzeit", "Friedhof", "bluehzeit", u"Bluetezeit"},
    {"fruchtschm", "Friedhof", "fruchtschm"},
    {"friedhof_fruchtfarb", "Friedhof", "fruchtfarb", u"Fruchtfarbe"},
    {"friedhof_fruchtzeit", "Friedhof", "fruchtzeit", u"Fruchtzeit"},
    {"friedhof_HERBSTFARB", "Friedhof", "HERBSTFARB"},
    {"wuchsgesch", "Friedhof", "wuchsgesch", u"Wuchsgeschwindigkeit"},
    {"friedhof_wuchsform", "Friedhof", "wuchsform", u"Wuchsform"},
    {"NAEHRSTOFF", "Friedhof", "NAEHRSTOFF", u"Nährstoffangebot (Boden)"},
    {"friedhof_abstand", "Friedhof", "abstand", u"Pflanzabstand"},
    {"DUFT", "Friedhof", "DUFT"},
    {"benu_bemerkung", "Friedhof", "benu_bemerkung", u"Eigene Bemerkungen"},
    {"benu_eigen", "Friedhof", "benu_eigen", u"Eigene Optionen"},
    {"BDBNR", "Gehoelze", "BDBNR", u"BdB-Nummer"},
    {"gehoelze_hk", "Gehoelze", "hk", u"Herkunft"},
    {"gehoelze_FAMILIE", "Gehoelze", "FAMILIE", u"Familie"},
    {"grobeint", "Gehoelze", "grobeint"},
    {"groesse", "Gehoelze", "groesse", u"Einteilung"},
    {"maxdurchm", "Gehoelze", "maxdurchm", u"max. Durchmesser", u" m"},
    {"habitus", "Gehoelze", "habitus", u"Habitus"},
    {"wuchs", "Gehoelze", "wuchs", u"Wuchsgeschwindigkeit"},
    {"bluehfarb", "Gehoelze", "bluehfarb", u"Blütenfarbe"},
    {"gehoelze_bluehzeit", "Gehoelze", "bluehzeit", u"Blütezeit"},
    {"gehoelze_UNSCHEINBA", "Gehoelze", "UNSCHEINBA"},
    {"gehoelze_fruchtfarb", "Gehoelze", "fruchtfarb", u"Fruchtfarbe"},
    {"gehoelze_fruchtzeit", "Gehoelze", "fruchtzeit", u"Fruchtzeit"},
    {"genuss", "Gehoelze", "genuss"},
    {"laubzeit", "Gehoelze", "laubzeit"},
    {"laubfarb", "Gehoelze", "laubfarb", u"Blattfarbe/-aussehen"},
    {"laubaustr", "Gehoelze", "laubaustr", u"Laubaustrieb"},
    {"wurzelform", "Gehoelze", "wurzelform", u"Wurzelform"},
    {"wurzelempf", "Gehoelze", "wurzelempf", u"Wurzelempfindlichkeit"},
    {"gehoelze_BEMERKUNG", "Gehoelze", "BEMERKUNG"},
    {"gehoelze_verwendung", "Gehoelze", "verwendung", u"Verwendung"},
    {"kennzahl", "Gehoelze", "kennzahl", u"Kennzahl"},
    {"gehoelze_licht", "Gehoelze", "licht", u"Lichtbedarf"},
    {"phboden", "Gehoelze", "phboden", u"Boden-pH"},
    {"gehoelze_bfeuchte", "Gehoelze", "bfeuchte", u"Bodenfeuchte"},
    {"gehoelze_bodenart", "Gehoelze", "bodenart", u"Bodenart"},
    {"bes_eig", "Gehoelze", "bes_eig", u"Besondere Eigenschaften"},
    {"gehoelze_SORTEN", "Gehoelze", "SORTEN", u"Sorten"},
    {"schaden", "Gehoelze", "schaden", u"Krankheiten/Schädlinge"},
    {"bes_merkm", "Gehoelze", "bes_merkm", u"Besondere Merkmale"},
    {"gehoelze_Quelle", "Gehoelze", "Quelle"},
    {"stauden_HK", "Stauden", "HK", u"Herkunft"},
    {"heimisch", "Stauden", "heimisch"},
    {"pflanzart", "Stauden", "pflanzart"},
    {"lebensraum", "Stauden", "lebensraum", u"Lebensraum"},
    {"kennziffer", "Stauden", "kennziffer", u"Kennziffer"},
    {"stauden_MINHOEHE", "Stauden", "MINHOEHE", u"", u" m"},
    {"stauden_MAXHOEHE", "Stauden", "MAXHOEHE", u"", u" m"},
    {"BLMINH", "Stauden", "BLMINH", u"", u" m"},
    {"BLMAXH", "Stauden", "BLMAXH", u"", u" m"},
    {"stauden_bluehzeit", "Stauden", "bluehzeit", u"Blütezeit"},
    {"stauden_fruchtzeit", "Stauden", "fruchtzeit", u"Fruchtzeit"},
    {"farben", "Stauden", "farben", u"Blütenfarbe"},
    {"stauden_fruchtfarb", "Stauden", "fruchtfarb", u"Fruchtfarbe"},
    {"stauden_herbstfarb", "Stauden", "herbstfarb", u"Herbstfärbung"},
    {"farbtxt", "Stauden", "farbtxt", u"Farbtextur"},
    {"blform", "Stauden", "blform", u"Blütenform"},
    {"stauden_UNSCHEINBA", "Stauden", "UNSCHEINBA"},
    {"blattform", "Stauden", "blattform", u"Blattform"},
    {"blattfarbe", "Stauden", "blattfarbe", u"Blattfarbe"},
    {"stauden_blaschmuck", "Stauden", "blaschmuck"},
    {"immergruen", "Stauden", "immergruen"},
    {"m2", "Stauden", "m2", {}, u"/m²"},
    {"vermehrung", "Stauden", "vermehrung", u"Vermehrung"},
    {"stauden_wuchsform", "Stauden", "wuchsform", u"Wuchsform"},
    {"besverw", "Stauden", "besverw", u"Besondere Verwendung"},
    {"stauden_verwendung", "Stauden", "verwendung", u"Verwendung"},
    {"stauden_licht", "Stauden", "licht", u"Lichtbedarf"},
    {"stauden_bodenart", "Stauden", "bodenart", u"Bodenart"},
    {"stauden_bfeuchte", "Stauden", "bfeuchte", u"Bodenfeuchte"},
    {"kalk", "Stauden", "kalk", u"Boden-pH"},
    {"duengung", "Stauden", "duengung"},
    {"salz", "Stauden", "salz", u"Nährstoffbedarf"},
    {"schnitt", "Stauden", "schnitt", u"Schnitt"},
    {"geselligkt", "Stauden", "geselligkt", u"Geselligkeit"},
    {"stauden_FAMILIE", "Stauden", "FAMILIE", u"Familie"},
    {"stauden_abstand", "Stauden", "abstand", u"Pflanzabstand", u"/m²"},
    {"giftig", "Stauden", "giftig"},
    {"stauden_BEMERKUNG", "Stauden", "BEMERKUNG", u"Bemerkung"},
    {"stauden_SORTEN", "Stauden", "SORTEN", u"Sorten"},
    {"sonstiges", "Stauden", "sonstiges"},
    {"urteil", "Stauden", "urteil", u"Urteil"},
    {"stauden_Quelle", "Stauden", "Quelle"},
    {"friedhof_bewertung", "Friedhof", "bewertung"},
    {"Benu_Aenderung", "Friedhof", "Benu_Aenderung"},
    {"gehoelze_Ausbildung", "Gehoelze", "Ausbildung", u"Für Azubis"},
    {"stauden_Ausbildung", "Stauden", "Ausbildung", u"Für Azubis"},
    {"stauden", nullptr, "stauden"},
    {"gehoelze", nullptr, "gehoelze"},
    {"laub", nullptr, "laub"},
    {"nadel", nullptr, "nadel"},
};
static_assert(std::size(spaltenAbfrageFriedhof) == 105);

constexpr short folgeTopf[] = {0,  1,  37, 2,  3,  4,  5,  6,  7,  17, 18, 15, 10, 12, 13, 8,  9,  11, 14, 31, 16, 29,
                               20, 19, 21, 22, 23, 24, 25, 35, 36, 26, 27, 28, 30, 33, 34, 32, 38, 39, 40, 41, 42};
static_assert(std::size(folgeTopf) == 43);

constexpr short folgeStauden[] = {0,  1,  44, 2,  37, 3,  4,  5,  6,  8,  9,  13, 26, 23, 20, 21, 17, 22, 24, 16, 10, 11, 12, 14, 18,
                                  15, 39, 19, 43, 28, 27, 30, 31, 29, 22, 33, 34, 36, 38, 7,  35, 25, 41, 40, 42, 45, 46, 47, 48};
static_assert(std::size(folgeStauden) == 49);

constexpr short folgeGehoelze[] = {0,  2,  33, 3,  5,  4,  6,  7,  8,  9,  10, 24, 1,  13, 18, 19, 17, 11, 12,
                                   14, 15, 16, 20, 21, 26, 27, 28, 25, 22, 29, 23, 31, 30, 32, 34, 35, 36, 37};
static_assert(std::size(folgeGehoelze) == 38);

constexpr short folgeApfel[] = {0,  1,  2,  3,  4,  5,  6,  7,  8,  16, 17, 9,  10, 11, 12, 13, 14, 15, 18, 19, 20, 21, 22, 23, 24, 27,
                                28, 25, 26, 29, 30, 31, 32, 33, 34, 35, 36, 37, 38, 39, 40, 41, 42, 43, 44, 45, 46, 47, 48, 49, 50};
static_assert(std::size(folgeApfel) == 51);

constexpr short folgeObst[] = {0,  1,  2,  3,  4,  5,  6,  7,  8,  9,  10, 11, 12, 41, 42, 43, 44, 45, 46, 47, 13, 14, 19, 15, 16, 18, 17, 21,
                               22, 23, 24, 25, 26, 27, 28, 20, 29, 31, 32, 30, 39, 33, 40, 34, 35, 36, 37, 38, 49, 48, 50, 51, 52, 53, 54, 55};
static_assert(std::size(folgeObst) == 56);

/// The name and its source first, then the query's columns as they stand, the remark and the varieties of the perennial last.
constexpr auto folgeFriedhof = [] {
    std::array<short, 101> folge{};
    size_t platz = 1;
    const auto bereich = [&](short von, short bis) {
        for (short code = von; code <= bis; ++code)
            folge[platz++] = code;
    };
    for (const auto &[von, bis] : {std::pair<short, short>{1, 1}, {54, 54}, {96, 96}, {2, 21}, {24, 53}, {55, 95}, {97, 100}, {22, 23}})
        bereich(von, bis);
    return folge;
}();

constexpr Tabelle tabellen[] = {
    {"Topfpfl", spaltenTopfpfl}, {"Stauden", spaltenStauden}, {"Gehoelze", spaltenGehoelze},
    {"Apfel", spaltenApfel},     {"Obst", spaltenObst},       {"Friedhof", spaltenFriedhof},
};

/// Every name in a print order stands inside the table, counted in one pass.
constexpr bool gueltig(std::span<const short> folge, size_t spalten, size_t eintraege)
{
    return eintraege <= spalten && folge.size() <= eintraege && std::ranges::all_of(folge, [&](short s) { return s >= 0 && size_t(s) < eintraege; });
}
static_assert(gueltig(folgeTopf, std::size(spaltenTopfpfl), 43));
static_assert(gueltig(folgeStauden, std::size(spaltenStauden), 49));
static_assert(gueltig(folgeGehoelze, std::size(spaltenGehoelze), 38));
static_assert(gueltig(folgeApfel, std::size(spaltenApfel), 51));
static_assert(gueltig(folgeObst, std::size(spaltenObst), 56));
static_assert(gueltig(folgeFriedhof, std::size(spaltenAbfrageFriedhof), 101));

constexpr const char *bildtabellen[] = {"Topfpfl_Bilder", "Stauden_Bilder",  "Gehoelze_Bilder",  "Apfel_Bilder",
                                        "Obst_Bilder",    "Friedhof_Bilder", "BeetBalkon_Bilder"};
constexpr const char *synonymtabellen[] = {"Topfpfl_Synonyme_Botanisch",    "Topfpfl_Synonyme_Deutsch",    "Stauden_Synonyme_Botanisch",
                                           "Stauden_Synonyme_Deutsch",      "Gehoelze_Synonyme_Botanisch", "Gehoelze_Synonyme_Deutsch",
                                           "BeetBalkon_Synonyme_Botanisch", "BeetBalkon_Synonyme_Deutsch"};
constexpr const char *pflicht[] = {"Topfpfl", "Stauden", "Gehoelze", "Apfel", "Obst", "Familien", "Namen_Benutzer_Optionen"};

/// Flags, codes and names are TEXT, so that a flag string keeps its leading zeros.
QString typ(Art art)
{
    switch (art) {
    case Art::Schluessel: return QStringLiteral("INTEGER PRIMARY KEY");
    case Art::Bewertung:
    case Art::Ganzzahl:
    case Art::Familie: return QStringLiteral("INTEGER");
    case Art::Zahl: return QStringLiteral("NUMERIC");
    case Art::Name:
    case Art::Text:
    case Art::Memo:
    case Art::Flags:
    case Art::Nummer:
    case Art::Monate:
    case Art::Eigen:
    case Art::Literatur:
    case Art::Wahrheit:
    case Art::Quelle:
    case Art::Code: return QStringLiteral("TEXT");
    }
    return {};
}

QString hauptAnlegen(const Tabelle &tabelle)
{
    QStringList spalten;
    for (const Spalte &spalte : tabelle.spalten)
        spalten += QStringLiteral("\"%1\" %2").arg(QLatin1String(spalte.name), typ(spalte.art));
    return QStringLiteral("CREATE TABLE %1 (%2)").arg(QLatin1String(tabelle.name), spalten.join(QStringLiteral(", ")));
}

QString bilderAnlegen(const char *name)
{
    QStringList spalten{QStringLiteral("ARTNR INTEGER PRIMARY KEY"), QStringLiteral("BotName TEXT")};
    for (const QString &spalte : bilderspalten())
        spalten += QStringLiteral("\"%1\" TEXT").arg(spalte);
    return QStringLiteral("CREATE TABLE %1 (%2)").arg(QLatin1String(name), spalten.join(QStringLiteral(", ")));
}

/// The value that a column of the query shows; the three sources are f, s and g.
QString abfrageAusdruck(const Abfragespalte &spalte)
{
    const QLatin1String name(spalte.spalte);
    if (!spalte.quelle) {
        const QString bedingung = name == QLatin1String("stauden")    ? QStringLiteral("f.DB = '100'")
                                  : name == QLatin1String("gehoelze") ? QStringLiteral("f.DB = '010'")
                                  : name == QLatin1String("laub")     ? QStringLiteral("g.grobeint = '1'")
                                                                      : QStringLiteral("g.grobeint = '2'");
        return QStringLiteral("CASE WHEN %1 THEN 'True' ELSE 'False' END").arg(bedingung);
    }
    const QChar kuerzel = QChar::fromLatin1(spalte.quelle[0]).toLower();
    return QStringLiteral("%1.\"%2\"").arg(kuerzel).arg(name);
}

QString abfrageAnlegen()
{
    QStringList spalten;
    for (const Abfragespalte &spalte : spaltenAbfrageFriedhof)
        spalten += QStringLiteral("%1 AS \"%2\"").arg(abfrageAusdruck(spalte), QLatin1String(spalte.name));
    return QStringLiteral("CREATE VIEW Abfrage_Friedhof AS SELECT %1 FROM Friedhof f "
                          "LEFT JOIN Stauden s ON s.ARTNR = f.ARTNR LEFT JOIN Gehoelze g ON g.ARTNR = f.ARTNR")
        .arg(spalten.join(QStringLiteral(", ")));
}

/// "Table.Name" and "Table_Name" are the same name.
bool gleicherName(QStringView a, QStringView b)
{
    const auto zeichen = [](QChar z) { return z == u'.' ? QChar(u'_') : z.toCaseFolded(); };
    return std::ranges::equal(a, b, {}, zeichen, zeichen);
}

} // namespace

const Spalte *Tabelle::spalte(QStringView gesucht) const
{
    const auto gefunden =
        std::ranges::find_if(spalten, [&](const Spalte &spalte) { return gesucht.compare(QLatin1String(spalte.name), Qt::CaseInsensitive) == 0; });
    return gefunden == spalten.end() ? nullptr : &*gefunden;
}

namespace schema {

std::span<const Tabelle> haupttabellen()
{
    return tabellen;
}

const Tabelle *haupttabelle(QStringView name)
{
    const auto gefunden =
        std::ranges::find_if(tabellen, [&](const Tabelle &tabelle) { return name.compare(QLatin1String(tabelle.name), Qt::CaseInsensitive) == 0; });
    return gefunden == std::end(tabellen) ? nullptr : &*gefunden;
}

std::span<const Abfragespalte> abfrageFriedhof()
{
    return spaltenAbfrageFriedhof;
}

std::span<const Spalte> spaltenVon(QStringView satz)
{
    static const std::vector<Spalte> abfrage = [] {
        std::vector<Spalte> spalten;
        for (const Abfragespalte &spalte : spaltenAbfrageFriedhof) {
            const Tabelle *quelle = spalte.quelle ? haupttabelle(QString::fromLatin1(spalte.quelle)) : nullptr;
            const Spalte *vorbild = quelle ? quelle->spalte(QString::fromLatin1(spalte.spalte)) : nullptr;
            spalten.push_back(vorbild ? *vorbild : Spalte{"", Art::Code}); // what the query works out is nobody's word
            spalten.back().name = spalte.name;
            spalten.back().druckname = spalte.druckname;
            spalten.back().einheit = spalte.einheit;
        }
        return spalten;
    }();
    if (satz.compare(abfrageName, Qt::CaseInsensitive) == 0)
        return abfrage;
    const Tabelle *tabelle = haupttabelle(satz);
    return tabelle ? tabelle->spalten : std::span<const Spalte>();
}

int stelleVon(QStringView satz, const QStringList &namen, QStringView name)
{
    for (int i = 0; i < namen.size(); ++i)
        if (gleicherName(namen[i], name))
            return i;
    // A qualified name may stand for a column that only its source has, a bare name for one qualified column.
    const qsizetype punkt = name.indexOf(u'.'), strich = name.indexOf(u'_');
    if (const qsizetype ende = punkt >= 0 ? punkt : strich; ende >= 0 && (punkt >= 0 || istQuelle(name.left(ende)))) {
        for (int i = 0; i < namen.size(); ++i)
            if (gleicherName(namen[i], name.mid(ende + 1)) && kommtAus(satz, namen[i], name.left(ende)))
                return i;
        return keineSpalte;
    }
    int einzige = keineSpalte;
    for (int i = 0; i < namen.size(); ++i) {
        const QStringView spalte = namen[i];
        const qsizetype trenner = std::ranges::find_if(spalte, [](QChar z) { return z == u'.' || z == u'_'; }) - spalte.begin();
        if (trenner == spalte.size() || !gleicherName(spalte.mid(trenner + 1), name) || !istQuelle(spalte.left(trenner)))
            continue;
        if (einzige >= 0)
            return mehrereSpalten;
        einzige = i;
    }
    return einzige;
}

const Spalte *spalteVon(QStringView satz, const char *feld)
{
    const std::span<const Spalte> spalten = spaltenVon(satz);
    const auto gefunden = std::ranges::find_if(spalten, [&](const Spalte &spalte) { return feld && qstricmp(spalte.name, feld) == 0; });
    if (gefunden != spalten.end() || !feld)
        return gefunden == spalten.end() ? nullptr : &*gefunden;
    QStringList namen;
    for (const Spalte &spalte : spalten)
        namen += QString::fromLatin1(spalte.name);
    const int stelle = stelleVon(satz, namen, QString::fromLatin1(feld));
    return stelle < 0 ? nullptr : &spalten[size_t(stelle)];
}

const Werteliste *wertelisteVon(const Spalte *spalte)
{
    return spalte ? spalte->art == Art::Monate ? &WL_Monate : spalte->liste : nullptr;
}

QString titelVon(const Spalte *spalte)
{
    return spalte ? spalte->druckname.toString() + u':' : QString();
}

bool istQuelle(QStringView tabelle)
{
    return std::ranges::any_of(spaltenAbfrageFriedhof, [&](const Abfragespalte &spalte) {
        return spalte.quelle && tabelle.compare(QLatin1String(spalte.quelle), Qt::CaseInsensitive) == 0;
    });
}

bool kommtAus(QStringView satz, QStringView gesucht, QStringView quelle)
{
    // A plain table's columns are its own.
    if (satz.compare(abfrageName, Qt::CaseInsensitive) != 0)
        return satz.compare(quelle, Qt::CaseInsensitive) == 0;
    return std::ranges::any_of(spaltenAbfrageFriedhof, [&](const Abfragespalte &spalte) {
        return spalte.quelle && quelle.compare(QLatin1String(spalte.quelle), Qt::CaseInsensitive) == 0
               && gesucht.compare(QLatin1String(spalte.name), Qt::CaseInsensitive) == 0;
    });
}

std::span<const char *const> pflichttabellen()
{
    return pflicht;
}

QString Index::anlegen() const
{
    return QStringLiteral("CREATE INDEX %1 ON %2 (%3)").arg(name, tabelle, spalte);
}

QList<Index> indexe()
{
    QList<Index> alle;
    const auto dazu = [&](const QString &tabelle, const char *spalte) {
        alle += {tabelle + u'_' + QLatin1String(spalte), tabelle, QString::fromLatin1(spalte)};
    };
    for (const Tabelle &tabelle : tabellen)
        for (const char *name : {"BOT_NAME", "DTNAM"})
            dazu(QString::fromLatin1(tabelle.name), name);
    for (const char *name : bildtabellen)
        dazu(QString::fromLatin1(name), "BotName");
    for (const char *name : synonymtabellen)
        dazu(QString::fromLatin1(name), "ARTNR");
    return alle;
}

QStringList anlegen()
{
    QStringList befehle{QStringLiteral("PRAGMA page_size = 16384"), QStringLiteral("PRAGMA application_id = %1").arg(anwendungsnummer),
                        QStringLiteral("PRAGMA user_version = %1").arg(version)};
    for (const Tabelle &tabelle : tabellen)
        befehle += hauptAnlegen(tabelle);
    befehle += QStringLiteral("CREATE TABLE BeetBalkon (ARTNR INTEGER PRIMARY KEY, BOT_NAME TEXT, DTNAM TEXT)");
    for (const char *name : bildtabellen)
        befehle += bilderAnlegen(name);
    for (const char *name : synonymtabellen)
        befehle += QStringLiteral("CREATE TABLE %1 (ARTNR INTEGER, SYN TEXT)").arg(QLatin1String(name));
    for (const Index &index : indexe())
        befehle += index.anlegen();
    befehle += QStringLiteral("CREATE TABLE Familien (FAMILIE INTEGER PRIMARY KEY, FAMNAME TEXT)");
    befehle += QStringLiteral("CREATE TABLE Namen_Benutzer_Optionen (Topfpflanzen TEXT, Stauden TEXT, Gehoelze TEXT, "
                              "Apfel TEXT, Obst TEXT, Friedhof TEXT)");
    befehle += QStringLiteral("CREATE TABLE Obstarten (OBSTART TEXT)");
    befehle += QStringLiteral("CREATE TABLE Daten (DATUM TEXT)");
    befehle += abfrageAnlegen();
    befehle += QStringLiteral("CREATE TRIGGER Abfrage_Friedhof_Loeschen INSTEAD OF DELETE ON Abfrage_Friedhof BEGIN "
                              "DELETE FROM Friedhof WHERE ARTNR = OLD.ARTNR; END");
    befehle += QStringLiteral("CREATE TRIGGER Abfrage_Friedhof_Benutzer INSTEAD OF UPDATE OF benu_bemerkung, benu_eigen "
                              "ON Abfrage_Friedhof BEGIN UPDATE Friedhof SET benu_bemerkung = NEW.benu_bemerkung, "
                              "benu_eigen = NEW.benu_eigen WHERE ARTNR = OLD.ARTNR; END");
    return befehle;
}

} // namespace schema

constinit const Druckliste DL_Topf{folgeTopf, 43};
constinit const Druckliste DL_Stauden{folgeStauden, 49};
constinit const Druckliste DL_Gehoelze{folgeGehoelze, 38};
constinit const Druckliste DL_Apfel{folgeApfel, 51};
constinit const Druckliste DL_Obst{folgeObst, 56};
constinit const Druckliste DL_Friedhof{folgeFriedhof, 101};
