#include "frmFilterTo.h"

#include "GemeinsameKriterien.h"

namespace {

enum Reiter { Bluete, Frucht, Blatt, Standort, Hydrokultur, Verwendung, Textsuche };
constexpr QStringView reiter[] = {u"Blüte", u"Frucht", u"Blatt", u"Standort", u"Hydrokultur", u"Verwendung", u"Textsuche"};

constexpr QStringView typen[] = {u"Grünpflanze", u"Blütenpflanze", u"Fruchtpflanze", u"Sukkulente", u"Carnivore"};
constexpr QStringView giftpflanze[] = {u"Giftpflanze"};
constexpr QStringView wuchsformen[] = {u"baumartig",      u"strauchartig",   u"krautig",          u"aufrecht",   u"überhängend",
                                       u"sparrig",        u"unregelmäßig",   u"gedreht",          u"eintriebig", u"horstig",
                                       u"polsterbildend", u"teppichbildend", u"rostettenbildend", u"kletternd"};
constexpr QStringView tageslaengen[] = {u"neutral", u"Kurztag", u"Langtag"};
constexpr QStringView wasserstaende[] = {u"Minimum", u"Optimum", u"Maximum"};

constexpr Symbol orte[] = {
    {"bilder/innenraum", u"Die Pflanzen sollen für den Innenraum geeignet sein!", u"Innenraum"},
    {"bilder/fensterbank", u"Die Pflanzen sollen für die Fensterbank geeignet sein!", u"Fensterbank"},
    {"bilder/kuebel", u"Die Pflanzen sollen für den Kübel geeignet sein!", u"Kübel"},
    {"bilder/ampel", u"Die Pflanzen sollen für die Ampel geeignet sein!", u"Ampel"},
    {"bilder/beet", u"Die Pflanzen sollen für das Beet geeignet sein!", u"Beet"},
    {"bilder/balkon", u"Die Pflanzen sollen für den Balkon geeignet sein!", u"Balkon"},
    {"bilder/wintergarten", u"Die Pflanzen sollen für den Wintergarten geeignet sein!", u"Wintergarten"},
    {"bilder/vitrine", u"Die Pflanzen sollen für die Vitrine geeignet sein!", u"Vitrine"},
};

using namespace gemeinsam;

// clang-format off
/// In the order of the row tests.
constexpr Kriterium kriterien[] = {
    familie(1),
    bild(2),
    {.pruefung = Pruefung::FlagsOderWahr, .titel = u"Pflanzentyp",
     .a = {.art = Steuerung::Kaestchen, .control = "chkTyp", .anzahl = 5, .zeile = 3, .worte = typen},
     .b = {.art = Steuerung::Kaestchen, .control = "chkGift", .zeile = 8, .worte = giftpflanze}, .feld = "PFLANZTYP", .feld2 = "GIFTIG"},
    farben(u"Farben:", "lblBlFarbe", 13, "FARBEN", &WL_BluetenfarbeRGB, 13, Bluete),
    monate(u"Zeit:", "lblBlMonat", "BLUEHZEIT", 26, Bluete),
    farben(u"Farben:", "lblFrFarbe", 13, "FRUCHTFARB", &WL_ToFruchtfarbeRGB, 38, Frucht),
    monate(u"Zeit:", "lblFrMonat", "FRUCHTZEIT", 51, Frucht),
    monate(u"Angebotszeit:", "lblAngMonat", "ANGEBOTSZ", 63, Bluete),
    kaestchen(u"Haltbarkeit:", "chkHaltbarkeit", 3, "HALTBAR", 100, Bluete),
    kaestchen(u"Farbe:", "chkLaubFarbe", 9, "BLATTFARB", 77, Blatt),
    kaestchen(u"Wuchsform", "chkWuchsForm", 14, "WUCHSFORM", 86, Blatt, 1, wuchsformen),
    hoehe(u"Höhe: ", "txtMinHoehe", "txtMaxHoehe", "MINHOEHE", "MAXHOEHE", 75, Blatt),
    kaestchen(u"Tageslängenreaktion:", "chkTageslaenge", 3, "TAGESL", 103, Standort, 1, tageslaengen),
    bilder(u"Lichtverträglichkeit:", "imgLicht", "SONNE", symbole::licht, 106, Standort),
    {.pruefung = Pruefung::Bereich, .titel = u"Beleuchtungsstärke:", .a = zahl("txtMinLicht", u"0", 109), .b = zahl("txtMaxLicht", u"3000", 110),
     .feld = "LICHTMIN", .feld2 = "LICHTMAX", .reiter = Standort, .regel = Bereichsregel::GleicherText, .untereGegenMax = true, .anfang = u"von", .mitte = u"-",
     .einheit = u"Lux"},
    {.pruefung = Pruefung::Bereich, .titel = u"Temperatur:", .a = zahl("txtMinTemp", u"-20", 111), .b = zahl("txtMaxTemp", u"50", 112),
     .feld = "TEMPMIN", .feld2 = "TEMPMAX", .reiter = Standort, .regel = Bereichsregel::GleicherText, .untereGegenMax = true, .anfang = u"von", .mitte = u"-",
     .einheit = u"°C"},
    kaestchen(u"Wasserstand:", "chkWasser", 3, "H_WASSERST", 119, Hydrokultur, 0, wasserstaende),
    kaestchen(u"pH-Wert:", "chkpH", 2, "H_PH", 122, Hydrokultur, 0),
    kaestchen(u"Verwendung:", "chkVerwHydro", 5, "H_VERW", 124, Hydrokultur, 1),
    bilder(u"Verwendung", "imgVerwendung", "VERWENDUNG", orte, 129, Verwendung, "lblVerwendung", "SSFrame6"),
    kaestchen(u"Höhe der Nachdüngung:", "chkNachduengung", 3, "NACHDUENG", 113, Standort, 1),
    kaestchen(u"Krankheitsanfälligkeit:", "chkKrank", 3, "KRANKH", 116, Standort, 1),
    text("txtKrank", u"mögl. Krankh./Schädlinge:", "SCHADEN", 137, Textsuche, 1),
    synonymBotanisch(10, Textsuche),
    synonymDeutsch(11, Textsuche),
    text("txtSorte", u"Sorte:", "SORTEN", 12, Textsuche),
    text("txtbotName", u"Botanischer Name:", "BOT_NAME", 9, Textsuche),
    text("txtBenutzerText", u"Eigene Bemerkung:", "benu_bemerkung", 141, Textsuche, 1),
    eigenschaften(142, Textsuche, 1),
    ausbildung(147, Dateiform::Wert, Verwendung),
    bewertung(138),
};

} // namespace

const Filterbeschreibung frmFilterTo{.sparte = Sparte::Topf, .reiter = reiter, .kriterien = kriterien, .zeilen = 152,
                                     .ladeFilter = u"Topfpflanzen-Filter (*.fft)|*.fft",
                                     .speicherFilter = u"Topfpflanzen-Filter (*.fft)|*.fft"};
// clang-format on
