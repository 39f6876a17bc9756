#include "frmFilterGe.h"

#include "GemeinsameKriterien.h"

namespace {

enum Reiter { Bluete, Frucht, Laub, Standort, Wuchs, Verwendung, Textsuche };
constexpr QStringView reiter[] = {u"Blüte", u"Frucht", u"Laub", u"Standort / Wurzel", u"Größe / Wuchs", u"Verwendung", u"Textsuche"};

using namespace gemeinsam;

// clang-format off
/// In the order of the row tests.
constexpr Kriterium kriterien[] = {
    familie(1),
    bild(2),
    {.pruefung = Pruefung::Flags, .titel = u"Einteilung",
     .a = {.art = Steuerung::Bilder, .control = "imgEigen", .anzahl = 2, .zeile = 3, .bilder = symbole::laubUndNadel, .form = Dateiform::Bildname},
     .feld = "grobeint"},
    farben(u"Farben:", "lblBlFarbe", 13, "bluehfarb", &WL_BluetenfarbeRGB, 5, Bluete),
    monate(u"Zeit:", "lblBlMonat", "bluehzeit", 18, Bluete),
    farben(u"Farben:", "lblFrFarbe", 14, "fruchtfarb", &WL_FruchtfarbeRGB, 30, Frucht),
    monate(u"Zeit:", "lblFrMonat", "fruchtzeit", 44, Frucht),
    kaestchen(u"Genießbarkeit:", "chkGenuss", 4, "genuss", 56, Frucht),
    kaestchen(u"Besondere Merkmale:", "chkBesMerkmal", 4, "bes_merkm", 60, Wuchs, 1),
    kaestchen(u"zeitliche Einteilung:", "chkLaubZeit", 4, "laubzeit", 64, Laub, 1),
    kaestchen(u"Farbe:", "chkLaubFarbe", 13, "laubfarb", 68, Laub),
    monate(u"Austrieb:", "lblBtMonat", "laubaustr", 81, Laub),
    kaestchen(u"Wuchsverhalten (Wurzel):", "chkWurzelwuchs", 7, "wurzelform", 93, Standort, 2),
    kaestchen(u"Empfindlichkeit (Wurzel):", "chkWurzelEmpf", 3, "wurzelempf", 100, Standort, 2),
    kaestchen(u"Bodenart:", "chkBodenArt", 7, "bodenart", 110, Standort),
    kaestchen(u"Bodenfeuchte:", "chkBodenfeuchte", 4, "bfeuchte", 106, Standort, 1),
    kaestchen(u"pH-Bereich:", "chkBodenpH", 3, "phboden", 103, Standort, 1),
    kaestchen(u"Bes. Standorteigenschaften:", "chkBesStandort", 5, "bes_eig", 117, Standort, 1),
    bilder(u"Lichtverträglichkeit:", "imgLicht", "licht", symbole::licht, 126, Standort),
    synonymBotanisch(123, Textsuche),
    synonymDeutsch(124, Textsuche),
    text("txtbotName", u"Botanischer Name:", "BOT_NAME", 122, Textsuche),
    text("txtSorte", u"Sorte:", "SORTEN", 125, Textsuche),
    kaestchen(u"Größengruppe:", "chkGroesse", 8, "groesse", 129, Wuchs),
    kaestchen(u"Wuchsgeschwindigkeit:", "chkWuchsVerh", 3, "wuchs", 137, Wuchs, 1),
    kaestchen(u"Habitus:", "chkHabitus", 12, "habitus", 141, Wuchs),
    bilder(u"Verwendung", "imgVerwendung", "verwendung", symbole::verwendungGehoelze, 153, Verwendung, "lblVerwendung"),
    {.pruefung = Pruefung::Keine, .titel = u"Kennziffer:", .a = {.control = "txtKennziffer", .zeile = 140}, .reiter = Textsuche, .spalte = 1},
    text("txtBenutzerText", u"Eigene Bemerkung:", "benu_bemerkung", 179, Textsuche, 1),
    eigenschaften(180, Textsuche, 1),
    ausbildung(185, Dateiform::Wert, Verwendung),
    bewertung(176),
};

} // namespace

const Filterbeschreibung frmFilterGe{.sparte = Sparte::Gehoelze, .reiter = reiter, .kriterien = kriterien, .zeilen = 190,
                                     .ladeFilter = u"Gehölze-Filter (*.ffg)|*.ffg|Alle Dateien|*.*",
                                     .speicherFilter = u"Gehölze-Filter (*.ffg)|*.ffg|Alle Dateien|*.*"};
// clang-format on
