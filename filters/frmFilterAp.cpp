#include "frmFilterAp.h"

#include "GemeinsameKriterien.h"

namespace {

constexpr QStringView reiter[] = {u"Frucht", u"Schale", u"Kelch", u"Stiel", u"Kernhaus", u"Fleisch", u"Textsuche"};
constexpr int textsuche = 6;

/// A plain group of boxes; its captions are the first words of the field's vocabulary.
constexpr Kriterium gruppe(const char *control, int anzahl, const char *feld, int zeile, int tab, int spalte)
{
    return {.pruefung = Pruefung::Flags, .titel = {}, .a = {.art = Steuerung::Kaestchen, .control = control, .anzahl = anzahl, .zeile = zeile},
            .feld = feld, .reiter = tab, .spalte = spalte};
}

constexpr Kriterium kriterien[] = {
    gemeinsam::bild(1),
    gedruckt(1, u"Haltbarkeit: ", gruppe("ChkHaltbar", 4, "haltbark", 2, 0, 0)),
    gedruckt(2, u"Fruchtgröße: ", gruppe("ChkFruGro", 4, "fruchtgr", 6, 0, 0)),
    gedruckt(3, u"Form, Längs: ", gruppe("ChkFormLaengs", 10, "form_l", 10, 0, 1)),
    gedruckt(4, u"Form, Quer: ", gruppe("ChkFormQuer", 5, "form_q", 20, 0, 2)),
    gedruckt(5, u"Fruchtrelief: ", gruppe("ChkFruRelief", 6, "fruchtrel", 25, 0, 2)),
    gedruckt(6, u"Aussehen, Griffigkeit: ", gruppe("ChkAussGrif", 11, "aussehen", 31, 1, 3)),
    gedruckt(7, u"Druckfestigeit: ", gruppe("ChkDruckFes", 3, "druck", 42, 1, 3)),
    gedruckt(8, u"Grundfarbe: ", gruppe("ChkGrundFar", 4, "grundfarbe", 45, 1, 0)),
    gedruckt(9, u"Deckfarbe: ", gruppe("ChkDeckFarb", 5, "deckfarbe", 49, 1, 0)),
    gedruckt(10, u"Deckfarbe Art: ", gruppe("ChkDFArt", 8, "df_art", 54, 1, 1)),
    gedruckt(11, u"Deckfarbe Ausdehnung: ", gruppe("ChkDFAusd", 4, "df_ausdehn", 62, 1, 1)),
    gedruckt(12, u"Schalenberostung: ", gruppe("ChkSchBeros", 4, "rost", 66, 1, 0)),
    gedruckt(13, u"Reif: ", gruppe("ChkReif", 3, "reif", 70, 1, 3)),
    gedruckt(14, u"Schalenpunkte/-höfe: ", gruppe("ChkSchP", 10, "sch_punkt", 73, 1, 2)),
    gedruckt(15, u"Kelchgrube: ", gruppe("ChkKGr", 7, "k_grube", 83, 2, 0)),
    gedruckt(16, u"Kelchgrubenrelief: ", gruppe("ChkKGrRelie", 7, "k_relief", 90, 2, 0)),
    gedruckt(17, u"Kelchumgebung: ", gruppe("ChkKGrUmgeb", 4, "k_umgebung", 97, 2, 1)),
    gedruckt(18, u"Kelchgrubenberostung: ", gruppe("ChkKGrBeros", 5, "k_berost", 101, 2, 1)),
    gedruckt(19, u"Kelchgröße: ", gruppe("ChkKGroesse", 3, "k_groesse", 106, 2, 1)),
    gedruckt(20, u"Kelchöffnung: ", gruppe("ChkKOeffnun", 3, "k_oeffnung", 109, 2, 1)),
    gedruckt(21, u"Kelchblätter: ", gruppe("ChkKBlaette", 20, "k_blaetter", 112, 2, 2)),
    gedruckt(24, u"Stielgrubengröße: ", gruppe("ChkStGrGroe", 6, "st_grube", 132, 3, 0)),
    gedruckt(25, u"Stielgrubenberostung: ", gruppe("ChkStGrBero", 12, "st_berost", 138, 3, 1)),
    gedruckt(22, u"Stiel Länge/Dicke: ", gruppe("ChkStLaenge", 6, "st_laenge", 150, 3, 0)),
    gedruckt(23, u"Stiel Besonderheiten: ", gruppe("ChkStBesond", 10, "st_besond", 156, 3, 2)),
    gedruckt(26, u"Kelchröhre: ", gruppe("ChkSchKelch", 7, "k_roehre", 166, 4, 0)),
    gedruckt(27, u"Kernhaus Gefäßbündel: ", gruppe("ChkSchGefB", 8, "g_buendel", 173, 4, 0)),
    gedruckt(28, u"Kernwandform: ", gruppe("ChkSchKWFor", 5, "kw_form", 181, 4, 1)),
    gedruckt(29, u"Kernwandrisse: ", gruppe("ChkSchKWRis", 7, "kw_risse", 186, 4, 1)),
    gedruckt(30, u"Kerne Anzahl: ", gruppe("ChkKernZahl", 3, "k_anzahl", 193, 4, 2)),
    gedruckt(31, u"Kerne Qualität: ", gruppe("ChkKernQual", 3, "k_qualit", 196, 4, 2)),
    gedruckt(32, u"Kerne Länge: ", gruppe("ChkKernLaen", 3, "k_laenge", 199, 4, 2)),
    gedruckt(33, u"Fruchtfleisch Schale: ", gruppe("ChkFrFlScha", 3, "schale", 202, 5, 0)),
    gedruckt(34, u"Fruchtfleisch Farbe: ", gruppe("ChkFrFlFarb", 6, "fl_farbe", 205, 5, 0)),
    gedruckt(35, u"Fruchtfleisch Struktur: ", gruppe("ChkFrFlStru", 11, "fl_strukt", 211, 5, 1)),
    gedruckt(36, u"Name: ", gemeinsam::text("txtName", u"Name:", "BOT_NAME", 225, textsuche)),
    gedruckt(38, u"voller Name: ", gemeinsam::text("txtVName", u"Voller Name:", "DTNAM", 226, textsuche)),
    gedruckt(37, u"Synonym: ", gemeinsam::text("txtSynonym", u"Synonym:", "synonym", 227, textsuche)),
    gedruckt(39, u"eigene Bemerkungen: ", gemeinsam::text("txtBenutzerText", u"Eigene Bemerkung:", "benu_bemerkung", 228, textsuche, 1)),
    gedruckt(40, u"benu.definierte Eigenschaften: ", gemeinsam::eigenschaften(229, textsuche, 1)),
    gedruckt(41, u"Ausbildung: ", gemeinsam::ausbildung(234, Steuerung::Kaestchen)),
    gedruckt(42, u"Bewertung: ", gemeinsam::bewertung(222)),
};

} // namespace

const Filterbeschreibung frmFilterAp{.sparte = Sparte::Apfel, .reiter = reiter, .kriterien = kriterien, .zeilen = 239,
                                     .ladeFilter = u"Apfelsorten-Filter (*.ffa)|*.ffa|Alle Dateien|*.*",
                                     .speicherFilter = u"Apfelsorten-Filter (*.ffa)|*.ffa|Alle Dateien|*.*"};
