#include "frmFilterOb.h"

#include "GemeinsameKriterien.h"

namespace {

enum Reiter { Wuchs, Triebe, Bluete, Frucht, Fleisch, Ernte, Lager, Anbau, Textsuche };
constexpr QStringView reiter[] = {u"Wuchs", u"Trieb", u"Blüte", u"Frucht", u"Fleisch", u"Ernte", u"Lager", u"Anbau", u"Texte"};

using gemeinsam::gruppe;

constexpr QStringView alleArten = u"-- Alle --";

/// How long a variety keeps in a kind of store: the month occurs in the field.
constexpr Kriterium lager(const char *control, const char *feld, int zeile)
{
    return {.pruefung = Pruefung::WortImText,
            .titel = {},
            .a = {.art = Steuerung::Liste,
                  .control = control,
                  .zeile = zeile,
                  .worte = monatsnamen,
                  .eintraege = Eintraege::Worte,
                  .alle = alleArten,
                  .form = Dateiform::Index},
            .feld = feld,
            .reiter = Lager};
}

// clang-format off
/// In the order of the row tests.
constexpr Kriterium kriterien[] = {
    {.pruefung = Pruefung::Gleich, .titel = u"Obstart:",
     .a = {.art = Steuerung::Liste, .control = "cboObstart", .zeile = 2, .eintraege = Eintraege::Feldwerte, .alle = alleArten}, .feld = "DTNAM"},
    gemeinsam::bild(1),
    gruppe("chkWuchs", 52, "WUCHS", 3, Wuchs, 0),
    gruppe("chkBlatt", 29, "BLATT", 55, Triebe, 0),
    gruppe("chkFruchtholz", 21, "FRUHOL", 84, Triebe, 1),
    gruppe("chkTrieb", 32, "TRIRUT", 105, Triebe, 1),
    gruppe("chkUnterlage", 13, "UNTERLAGE", 137, Triebe, 0, 0, 1),
    gruppe("chkUnempfindlich", 46, "RESISTENZ", 161, Anbau, 2, 35, 1),
    gruppe("chkEmpfindlich", 11, "KRANKH", 150, Anbau, 2, 0, 1),
    gruppe("chkFrost", 3, "FROEMF", 207, Bluete, 0),
    gruppe("chkBluete", 9, "BLUETE", 210, Bluete, 0),
    gruppe("chkBefruchtersorte", 3, "BEFRSOR", 231, Bluete, 1),
    gruppe("chkBefruchtung", 12, "BEFRU", 219, Bluete, 1, 0, 1),
    gruppe("chkFruchtstand", 10, "FRUSTAN", 238, Bluete, 0),
    gruppe("chkAlternanz", 4, "ALTRNAZ", 234, Bluete, 1),
    gruppe("chkFruchtfarbe", 24, "FRUFAR", 248, Frucht, 0, 1),
    gruppe("chkGrundfarbe", 10, "GRUNDFARB", 272, Frucht, 0, 1),
    gruppe("chkDeckfarbe", 16, "DECKFARB", 282, Frucht, 1, 1),
    gruppe("chkSchale", 30, "SCHALE", 298, Fleisch, 0),
    gruppe("ckkfruchtfleisch", 34, "FRUFLEI", 328, Fleisch, 1, 1),
    gruppe("chkFruchtform", 26, "FRUFOR", 362, Frucht, 1, 1),
    gruppe("chkGeschmack", 21, "GESMAK", 388, Fleisch, 0, 1),
    gruppe("chkErtrag", 7, "ERTRAG", 409, Ernte, 0, 1),
    gemeinsam::text("txtPflueckreife", u"Pflückreife:", "PFLREF", 416, Ernte, 1),
    gemeinsam::text("txtGenussreife", u"Genussreife:", "GENUSSREF", 417, Ernte, 1),
    gruppe("chkErnte", 7, "ERNTE", 418, Ernte, 0, 1),
    gruppe("chkTransport", 4, "TRANSPEMP", 425, Ernte, 0, 1),
    gruppe("chkVerwendung", 17, "VERWEND", 429, Ernte, 1, 1),
    gruppe("chkLager", 4, "LAGEIG", 446, Lager, 0),
    lager("cboFrischluft", "FRILUFLAG", 464),
    lager("cboKuehllager", "KUEHLLAG", 465),
    lager("cboCALager", "CALAGER", 466),
    gruppe("chkLagerkrankheiten", 14, "LAGKRANK", 450, Lager, 1, 1, 1),
    gruppe("chkBoden", 14, "BODEN", 467, Anbau, 0, 1, 1),
    gruppe("chkKlima", 15, "KLIMA", 481, Anbau, 1, 1, 1),
    gruppe("chkNaehrstoffe", 4, "NAEHRSTOFF", 496, Anbau, 0, 1),
    gruppe("chkEignung", 4, "EIGNUNG", 500, Anbau, 0, 1),
    gruppe("chkErziehungsform", 9, "ERZIFORM", 504, Anbau, 1, 1, 1),
    gemeinsam::text("txtName", u"Name:", "BOT_NAME", 516, Textsuche),
    gemeinsam::text("txtSynonym", u"Synonym:", "synonym", 518, Textsuche),
    gemeinsam::text("txtMutanten", u"Mutanten:", "MUTANT", 519, Textsuche),
    gemeinsam::text("txtBenutzerText", u"Eigene Bemerkung:", "benu_bemerkung", 517, Textsuche, 1),
    gemeinsam::eigenschaften(520, Textsuche, 1),
    gemeinsam::ausbildung(525, Dateiform::Kennzeichen),
    gemeinsam::bewertung(513),
};

} // namespace

const Filterbeschreibung frmFilterOb{.sparte = Sparte::Obst, .reiter = reiter, .kriterien = kriterien, .zeilen = 530,
                                     .ladeFilter = u"Obstsorten-Filter (*.ffo)|*.ffo|Alle Dateien|*.*",
                                     .speicherFilter = u"Obstsorten-Filter (*.ffo)|*.ffo|Alle Dateien|*.*"};
// clang-format on
