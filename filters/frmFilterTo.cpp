#include "frmFilterTo.h"

#include "GemeinsameKriterien.h"

namespace {

enum Reiter { Bluete, Frucht, Blatt, Standort, Hydrokultur, Verwendung, Textsuche };
constexpr QStringView reiter[] = {u"Blüte", u"Frucht", u"Blatt", u"Standort", u"Hydrokultur", u"Verwendung", u"Textsuche"};

constexpr QStringView typen[] = {u"Grünpflanze", u"Blütenpflanze", u"Fruchtpflanze", u"Sukkulente", u"Carnivore"};
constexpr QStringView giftpflanze[] = {u"Giftpflanze"};
constexpr QStringView wuchsformen[] = {u"baumartig", u"strauchartig", u"krautig", u"aufrecht", u"überhängend", u"sparrig", u"unregelmäßig",
                                       u"gedreht", u"eintriebig", u"horstig", u"polsterbildend", u"teppichbildend", u"rostettenbildend",
                                       u"kletternd"};
constexpr QStringView tageslaengen[] = {u"neutral", u"Kurztag", u"Langtag"};
constexpr QStringView wasserstaende[] = {u"Minimum", u"Optimum", u"Maximum"};

constexpr Symbolbild licht[] = {
    {"iliLicht/sonnig", u"sonnig", u""}, {"iliLicht/halbscha", u"halbschattig", u""}, {"iliLicht/schattig", u"schattig", u""}};
constexpr Symbolbild orte[] = {
    {"bilder/innenraum", u"Innenraum", u"Die Pflanzen sollen für den Innenraum geeignet sein!"},
    {"bilder/fensterbank", u"Fensterbank", u"Die Pflanzen sollen für die Fensterbank geeignet sein!"},
    {"bilder/kuebel", u"Kübel", u"Die Pflanzen sollen für den Kübel geeignet sein!"},
    {"bilder/ampel", u"Ampel", u"Die Pflanzen sollen für die Ampel geeignet sein!"},
    {"bilder/beet", u"Beet", u"Die Pflanzen sollen für das Beet geeignet sein!"},
    {"bilder/balkon", u"Balkon", u"Die Pflanzen sollen für den Balkon geeignet sein!"},
    {"bilder/wintergarten", u"Wintergarten", u"Die Pflanzen sollen für den Wintergarten geeignet sein!"},
    {"bilder/vitrine", u"Vitrine", u"Die Pflanzen sollen für die Vitrine geeignet sein!"},
};

/// A group of boxes; without `worte` its captions are the field's vocabulary.
constexpr Kriterium kaestchen(QStringView titel, const char *control, int anzahl, const char *feld, int zeile, int tab, int spalte = 0,
                              std::span<const QStringView> worte = {})
{
    return {.pruefung = Pruefung::Flags, .titel = titel,
            .a = {.art = Steuerung::Kaestchen, .control = control, .anzahl = anzahl, .zeile = zeile, .worte = worte}, .feld = feld,
            .reiter = tab, .spalte = spalte};
}

constexpr Kriterium farben(const char *control, const char *feld, const Farbliste *werte, int zeile, int tab)
{
    return {.pruefung = Pruefung::Flags, .titel = u"Farben:",
            .a = {.art = Steuerung::Farben, .control = control, .anzahl = 13, .zeile = zeile, .farben = werte}, .feld = feld, .reiter = tab};
}

constexpr Kriterium monate(QStringView titel, const char *control, const char *feld, int zeile, int tab)
{
    return {.pruefung = Pruefung::Flags, .titel = titel, .a = {.art = Steuerung::Monate, .control = control, .anzahl = 12, .zeile = zeile},
            .feld = feld, .reiter = tab};
}

/// A group of pictures, with a sentence about the one under the mouse.
constexpr Kriterium bilder(QStringView titel, const char *control, const char *feld, std::span<const Symbolbild> symbole, int zeile, int tab,
                           const char *rahmen = nullptr)
{
    return {.pruefung = Pruefung::Flags, .titel = titel,
            .a = {.art = Steuerung::Bilder, .control = control, .anzahl = int(symbole.size()), .zeile = zeile, .bilder = symbole}, .feld = feld,
            .reiter = tab, .rahmen = rahmen};
}

constexpr Steuerteil zahl(const char *control, QStringView vorgabe, int zeile)
{
    return {.art = Steuerung::Zahl, .control = control, .zeile = zeile, .vorgabe = vorgabe};
}

/// In the order of the row tests.
constexpr Kriterium kriterien[] = {
    {.pruefung = Pruefung::Familie, .titel = u"Familie:", .a = {.art = Steuerung::Liste, .control = "cmbFamilie", .zeile = 1}, .feld = "FAMILIE"},
    gemeinsam::bild(2),
    {.pruefung = Pruefung::FlagsOderWahr, .titel = u"Pflanzentyp",
     .a = {.art = Steuerung::Kaestchen, .control = "chkTyp", .anzahl = 5, .zeile = 3, .worte = typen},
     .b = {.art = Steuerung::Kaestchen, .control = "chkGift", .zeile = 8, .worte = giftpflanze}, .feld = "PFLANZTYP", .feld2 = "GIFTIG"},
    farben("lblBlFarbe", "FARBEN", &WL_BluetenfarbeRGB, 13, Bluete),
    monate(u"Zeit:", "lblBlMonat", "BLUEHZEIT", 26, Bluete),
    farben("lblFrFarbe", "FRUCHTFARB", &WL_ToFruchtfarbeRGB, 38, Frucht),
    monate(u"Zeit:", "lblFrMonat", "FRUCHTZEIT", 51, Frucht),
    monate(u"Angebotszeit:", "lblAngMonat", "ANGEBOTSZ", 63, Bluete),
    kaestchen(u"Haltbarkeit:", "chkHaltbarkeit", 3, "HALTBAR", 100, Bluete),
    kaestchen(u"Farbe:", "chkLaubFarbe", 9, "BLATTFARB", 77, Blatt),
    kaestchen(u"Wuchsform", "chkWuchsForm", 14, "WUCHSFORM", 86, Blatt, 1, wuchsformen),
    {.pruefung = Pruefung::Bereich, .titel = u"Höhe: ", .a = zahl("txtMinHoehe", u"0,00", 75), .b = zahl("txtMaxHoehe", u"99,00", 76),
     .feld = "MINHOEHE", .feld2 = "MAXHOEHE", .reiter = Blatt, .regel = Bereichsregel::GleicheZahlen, .anfang = u"zwischen", .mitte = u"und", .einheit = u"m"},
    kaestchen(u"Tageslängenreaktion:", "chkTageslaenge", 3, "TAGESL", 103, Standort, 1, tageslaengen),
    bilder(u"Lichtverträglichkeit:", "imgLicht", "SONNE", licht, 106, Standort),
    {.pruefung = Pruefung::Bereich, .titel = u"Beleuchtungsstärke:", .a = zahl("txtMinLicht", u"0", 109), .b = zahl("txtMaxLicht", u"3000", 110),
     .feld = "LICHTMIN", .feld2 = "LICHTMAX", .reiter = Standort, .regel = Bereichsregel::GleicherText, .untereGegenMax = true, .anfang = u"von", .mitte = u"-",
     .einheit = u"Lux"},
    {.pruefung = Pruefung::Bereich, .titel = u"Temperatur:", .a = zahl("txtMinTemp", u"-20", 111), .b = zahl("txtMaxTemp", u"50", 112),
     .feld = "TEMPMIN", .feld2 = "TEMPMAX", .reiter = Standort, .regel = Bereichsregel::GleicherText, .untereGegenMax = true, .anfang = u"von", .mitte = u"-",
     .einheit = u"°C"},
    kaestchen(u"Wasserstand:", "chkWasser", 3, "H_WASSERST", 119, Hydrokultur, 0, wasserstaende),
    kaestchen(u"pH-Wert:", "chkpH", 2, "H_PH", 122, Hydrokultur, 0),
    kaestchen(u"Verwendung:", "chkVerwHydro", 5, "H_VERW", 124, Hydrokultur, 1),
    bilder(u"Verwendung", "imgVerwendung", "VERWENDUNG", orte, 129, Verwendung, "SSFrame6"),
    kaestchen(u"Höhe der Nachdüngung:", "chkNachduengung", 3, "NACHDUENG", 113, Standort, 1),
    kaestchen(u"Krankheitsanfälligkeit:", "chkKrank", 3, "KRANKH", 116, Standort, 1),
    gemeinsam::text("txtKrank", u"mögl. Krankh./Schädlinge:", "SCHADEN", 137, Textsuche, 1),
    {.pruefung = Pruefung::SynonymBotanisch, .titel = u"Botanisches Synonym:", .a = {.control = "txtSynonym", .zeile = 10}, .reiter = Textsuche},
    {.pruefung = Pruefung::SynonymDeutsch, .titel = u"Deutscher Name:", .a = {.control = "txtSynonymDeutsch", .zeile = 11}, .feld = "DTNAM",
     .reiter = Textsuche},
    gemeinsam::text("txtSorte", u"Sorte:", "SORTEN", 12, Textsuche),
    gemeinsam::text("txtbotName", u"Botanischer Name:", "BOT_NAME", 9, Textsuche),
    gemeinsam::text("txtBenutzerText", u"Eigene Bemerkung:", "benu_bemerkung", 141, Textsuche, 1),
    gemeinsam::eigenschaften(142, Textsuche, 1),
    gemeinsam::ausbildung(147, Dateiform::Wert, Verwendung),
    gemeinsam::bewertung(138),
};

} // namespace

const Filterbeschreibung frmFilterTo{.sparte = Sparte::Topf, .reiter = reiter, .kriterien = kriterien, .zeilen = 152,
                                     .ladeFilter = u"Topfpflanzen-Filter (*.fft)|*.fft",
                                     .speicherFilter = u"Topfpflanzen-Filter (*.fft)|*.fft"};
