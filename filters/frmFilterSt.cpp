#include "frmFilterSt.h"

#include "GemeinsameKriterien.h"

namespace {

enum Reiter { Bluete, Frucht, Blatt, Standort, Lebensraum, Textsuche };
constexpr QStringView reiter[] = {u"Blüte", u"Frucht", u"Blatt / Wuchs", u"Standort", u"Lebensraum", u"Textsuche"};

using namespace gemeinsam;

constexpr const char *merkmalfelder[] = {"schnitt", "heimisch", "blaschmuck", "immergruen", "giftig"};
constexpr Symbol merkmale[] = {
    {"iliEigenschaften/schere", u"", u"Schnittpflanze", nullptr, "iliEigenschaften/schere_n"},
    {"iliEigenschaften/heim", u"", u"heimische Pflanze", nullptr, "iliEigenschaften/heim_n"},
    {"iliEigenschaften/schmuck", u"", u"Blattschmuckstaude", nullptr, "iliEigenschaften/schmuc_n"},
    {"iliEigenschaften/immerg", u"", u"immergrüne Pflanze", nullptr, "iliEigenschaften/immerg_n"},
    {"iliEigenschaften/gift", u"", u"Giftpflanze", nullptr, "iliEigenschaften/gift_n"},
};

/// A coded colour: the test takes a number only, never flags.
constexpr Kriterium farbzahl(QStringView titel, const char *control, int anzahl, const char *feld, const Farbliste *werte, int zeile, int tab)
{
    Kriterium k = farben(titel, control, anzahl, feld, werte, zeile, tab);
    k.liest = Schreibweise::Zahl;
    return k;
}

constexpr Dateiform wahrheit = Dateiform::Wahrheit;

// clang-format off
/// In the order of the row tests.
constexpr Kriterium kriterien[] = {
    familie(1),
    {.pruefung = Pruefung::AlleWahr, .titel = u"Eigenschaften",
     .a = {.art = Steuerung::Bilder, .control = "imgEigen", .anzahl = 5, .zeile = 3, .bilder = merkmale, .form = Dateiform::Bildname},
     .felder = merkmalfelder},
    bild(2),
    farben(u"Farben:", "lblBlFarbe", 13, "farben", &WL_BluetenfarbeRGB, 12, Bluete),
    monate(u"Zeit:", "lblBlMonat", "bluehzeit", 25, Bluete),
    hoehe(u"Höhe mit Blüte:", "txtMinHoehe", "txtMaxHoehe", "BLMINH", "BLMAXH", 37, Bluete),
    farbzahl(u"Farben:", "lblFrFarbe", 14, "fruchtfarb", &WL_FruchtfarbeRGB, 39, Frucht),
    monate(u"Zeit:", "lblFrMonat", "fruchtzeit", 53, Frucht),
    kaestchen(u"Farbe:", "chkLaubFarbe", 14, "blattfarbe", 65, Blatt),
    farbzahl(u"Herbstfärbung:", "lblHfFarbe", 13, "herbstfarb", &WL_BluetenfarbeRGB, 79, Blatt),
    hoehe(u"Höhe:", "txtBlattMinHoehe", "txtBlattMaxHoehe", "MINHOEHE", "MAXHOEHE", 92, Blatt),
    bilder(u"Lichtverträglichkeit:", "imgLicht", "licht", symbole::licht, 94, Standort),
    kaestchen(u"Bodenart:", "chkBodenArt", 6, "bodenart", 97, Standort, 0, {}, wahrheit),
    kaestchen(u"Bodenfeuchte:", "chkBodenfeuchte", 4, "bfeuchte", 103, Standort, 0, {}, wahrheit),
    kaestchen(u"Boden pH-Bereich:", "chkKalk", 3, "kalk", 107, Standort, 1, {}, wahrheit),
    kaestchen(u"Nährstoffbedarf:", "chkNaehrstoff", 3, "salz", 110, Standort, 1, {}, wahrheit),
    {.pruefung = Pruefung::Flags, .titel = u"Pflanzentyp:",
     .a = {.art = Steuerung::Option, .control = "optTyp", .anzahl = 10, .zeile = 113, .ohneWahl = true}, .feld = "pflanzart", .reiter = Blatt, .spalte = 1},
    kaestchen(u"Lebensraum:", "chkLebensraum", 31, "lebensraum", 124, Lebensraum),
    text("txtKennziffer", u"Kennziffer:", "kennziffer", 123, Lebensraum, 1),
    synonymBotanisch(9, Textsuche),
    synonymDeutsch(10, Textsuche),
    text("txtSorte", u"Sorte:", "SORTEN", 11, Textsuche),
    text("txtbotName", u"Botanischer Name:", "BOT_NAME", 8, Textsuche),
    text("txtBenutzerText", u"Eigene Bemerkung:", "benu_bemerkung", 158, Textsuche, 1),
    eigenschaften(159, Textsuche, 1),
    ausbildung(164, Dateiform::Wert, Lebensraum, "Ausbildung", 1),
    bewertung(155),
};

} // namespace

const Filterbeschreibung frmFilterSt{.sparte = Sparte::Stauden, .reiter = reiter, .kriterien = kriterien, .zeilen = 169,
                                     .ladeFilter = u"Stauden-Filter (*.ffs)|*.ffs|Alle Dateien|*.*",
                                     .speicherFilter = u"Stauden-Filter (*.ffs)|*.ffs|Alle Dateien|*.*"};
// clang-format on
