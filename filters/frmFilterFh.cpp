#include "frmFilterFh.h"

#include "GemeinsameKriterien.h"

namespace {

enum Reiter { Bluete, Frucht, Laub, Standort, Wuchs, Verwendung, Textsuche };
constexpr QStringView reiter[] = {u"Blüte", u"Frucht", u"Laub", u"Standort", u"Typ / Wuchs", u"Verwendung", u"Textsuche"};

using namespace gemeinsam;

constexpr QStringView bluehschmuck[] = {u"Blüten sind schmückend"};
constexpr QStringView fruchtschmuck[] = {u"Früchte sind schmückend"};
constexpr QStringView blattschmuck[] = {u"Laub ist schmückend"};
constexpr const char *bluehschmuckfeld[] = {"BLUEHSCHMU"};
constexpr const char *fruchtschmuckfeld[] = {"fruchtschm"};
constexpr const char *blattschmuckStaude[] = {"Stauden.blaschmuck"};
constexpr const char *blattschmuckGehoelz[] = {"Friedhof.blaschmuck"};
constexpr const char *laubzeitStaude[] = {nullptr, nullptr, "immergruen", "Friedhof.HERBSTFARB"};

/// The same criterion, which asks woody plants by another field.
constexpr Kriterium beide(Kriterium staude, const char *feld, const char *feld2 = nullptr)
{
    staude.anders = Frage{.pruefung = staude.pruefung, .feld = feld, .feld2 = feld2};
    return staude;
}

/// A criterion of one side only.
constexpr Kriterium nur(Seite seite, Kriterium kriterium)
{
    kriterium.gilt = seite;
    return kriterium;
}

/// A criterion whose captions are another vocabulary than the perennials'.
constexpr Kriterium mitWorten(const Werteliste &liste, Kriterium kriterium)
{
    kriterium.liste = &liste;
    return kriterium;
}

/// A single box for a boolean.
constexpr Kriterium schmuck(QStringView titel, const char *control, int zeile, int tab, std::span<const QStringView> worte,
                            std::span<const char *const> staude, std::span<const char *const> gehoelz)
{
    return {.pruefung = Pruefung::AlleWahr,
            .titel = titel,
            .a = {.art = Steuerung::Kaestchen, .control = control, .zeile = zeile, .worte = worte},
            .felder = staude,
            .reiter = tab,
            .anders = Frage{.pruefung = Pruefung::AlleWahr, .felder = gehoelz}};
}

constexpr Kriterium fruchtfarben()
{
    Kriterium k = beide(farben(u"Farben:", "lblFrFarbe", 14, "Stauden.fruchtfarb", &WL_FruchtfarbeRGB, 31, Frucht), "Gehoelze.fruchtfarb");
    k.liest = Schreibweise::Zahl;
    return k;
}

constexpr Dateiform wahrheit = Dateiform::Wahrheit;

// clang-format off
/// In the order of the row tests.
constexpr Kriterium kriterien[] = {
    beide(familie(1, "Stauden.FAMILIE"), "Gehoelze.FAMILIE"),
    bild(2),
    beide(farben(u"Farben:", "lblBlFarbe", 13, "farben", &WL_BluetenfarbeRGB, 3, Bluete), "bluehfarb"),
    beide(monate(u"Zeit:", "lblBlMonat", "Stauden.bluehzeit", 16, Bluete), "Gehoelze.bluehzeit"),
    beide(hoehe(u"Höhe mit Blüte:", "txtMinHoehe", "txtMaxHoehe", "BLMINH", "BLMAXH", 28, Bluete), "Friedhof.MINHOEHE", "Friedhof.MAXHOEHE"),
    schmuck(u"Schmuckwert der Blüte:", "chkBluehSchmuck", 30, Bluete, bluehschmuck, bluehschmuckfeld, bluehschmuckfeld),
    fruchtfarben(),
    beide(monate(u"Zeit:", "lblFrMonat", "Stauden.fruchtzeit", 45, Frucht), "Friedhof.fruchtzeit"),
    schmuck(u"Schmuckwert der Frucht:", "chkFruchtSchmuck", 57, Frucht, fruchtschmuck, fruchtschmuckfeld, fruchtschmuckfeld),
    {.pruefung = Pruefung::FlagsNachWort, .titel = u"Farbe:",
     .a = {.art = Steuerung::Kaestchen, .control = "chkLaubFarbe", .anzahl = 17, .zeile = 58}, .feld = "blattfarbe", .reiter = Laub,
     .anders = Frage{.pruefung = Pruefung::FlagsNachWort, .feld = "laubfarb"}, .liste = &WL_FhLaubfarbe},
    {.pruefung = Pruefung::EinsWahr, .titel = u"zeitliche Einteilung:",
     .a = {.art = Steuerung::Kaestchen, .control = "chkLaubZeit", .anzahl = 4, .zeile = 75}, .felder = laubzeitStaude, .reiter = Laub,
     .spalte = 1, .anders = Frage{.feld = "laubzeit"}},
    nur(Seite::Erste, hoehe(u"Höhe der Staude:", "txtBlattMinHoehe", "txtBlattMaxHoehe", "Stauden.MINHOEHE", "Stauden.MAXHOEHE", 79, Laub)),
    schmuck(u"Schmuckwert des Laubes:", "chkBlattschmuck", 81, Laub, blattschmuck, blattschmuckStaude, blattschmuckGehoelz),
    beide(bilder(u"Lichtverträglichkeit:", "imgLicht", "Stauden.licht", symbole::licht, 82, Standort), "Gehoelze.licht"),
    mitWorten(WL_GeBodenart, beide(kaestchen(u"Bodenart:", "chkBodenArt", 7, "Stauden.bodenart", 85, Standort, 0, {}, wahrheit),
        "Gehoelze.bodenart")),
    beide(kaestchen(u"Bodenfeuchte:", "chkBodenfeuchte", 4, "Stauden.bfeuchte", 92, Standort, 1, {}, wahrheit), "Gehoelze.bfeuchte"),
    mitWorten(WL_GeBodenPh, beide(kaestchen(u"Boden pH-Wert:", "chkKalk", 3, "kalk", 96, Standort, 1, {}, wahrheit), "phboden")),
    beide(kaestchen(u"Nährstoffbedarf:", "chkNaehrstoff", 3, "salz", 99, Standort, 1, {}, wahrheit), "NAEHRSTOFF"),
    nur(Seite::Erste, {.pruefung = Pruefung::Flags, .titel = u"Staude, Typ:",
                       .a = {.art = Steuerung::Option, .control = "optTyp", .anzahl = 10, .zeile = 102, .ohneWahl = true}, .feld = "pflanzart",
                       .reiter = Wuchs}),
    nur(Seite::Andere, kaestchen(u"Gehölz, Größengruppe:", "chkGhTyp", 8, "groesse", 112, Wuchs)),
    nur(Seite::Andere, {.pruefung = Pruefung::Flags, .titel = u"Gehölz, Einteilung:",
                        .a = {.art = Steuerung::Kaestchen, .control = "chkGhLaub", .zeile = 120},
                        .b = {.art = Steuerung::Kaestchen, .control = "chkGhNadel", .zeile = 121}, .feld = "grobeint", .reiter = Wuchs}),
    {.pruefung = Pruefung::WortImText, .titel = u"Habitus:",
     .a = {.art = Steuerung::Kaestchen, .control = "chkHabitus", .anzahl = 16, .zeile = 122, .form = wahrheit}, .feld = "Stauden.wuchsform",
     .reiter = Wuchs, .spalte = 1, .anders = Frage{.feld = "habitus"}},
    kaestchen(u"Verwendung:", "chkVerwendung", 16, "Friedhof.verwendung", 138, Verwendung, 0, {}, wahrheit),
    bewertung(154, "Friedhof.bewertung"),
    text("txtbotName", u"Botanischer Name:", "BOT_NAME", 157, Textsuche),
    synonymBotanisch(158, Textsuche),
    synonymDeutsch(159, Textsuche),
    beide(text("txtSorte", u"Sorte:", "Stauden.SORTEN", 160, Textsuche), "Gehoelze.SORTEN"),
    text("txtBenutzerText", u"Eigene Bemerkung:", "benu_bemerkung", 161, Textsuche, 1),
    eigenschaften(162, Textsuche, 1),
    beide(ausbildung(167, Dateiform::Wert, -1, "Stauden.Ausbildung"), "Gehoelze.Ausbildung"),
};

} // namespace

const Filterbeschreibung frmFilterFh{.sparte = Sparte::Friedhof, .reiter = reiter, .kriterien = kriterien, .zeilen = 172,
                                     .ladeFilter = u"Friedhof-Filter (*.fff)|*.ffs|Alle Dateien|*.*",
                                     .speicherFilter = u"Friedhof-Filter (*.fff)|*.fff|Alle Dateien|*.*"};
// clang-format on
