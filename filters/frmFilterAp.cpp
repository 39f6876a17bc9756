#include "frmFilterAp.h"

#include "GemeinsameKriterien.h"

namespace {

constexpr QStringView reiter[] = {u"Frucht", u"Schale", u"Kelch", u"Stiel", u"Kernhaus", u"Fleisch", u"Textsuche"};
constexpr int textsuche = 6;

using gemeinsam::gruppe;

constexpr Kriterium kriterien[] = {
    gemeinsam::bild(1),
    gruppe("ChkHaltbar", 4, "haltbark", 2, 0, 0),
    gruppe("ChkFruGro", 4, "fruchtgr", 6, 0, 0),
    gruppe("ChkFormLaengs", 10, "form_l", 10, 0, 1),
    gruppe("ChkFormQuer", 5, "form_q", 20, 0, 2),
    gruppe("ChkFruRelief", 6, "fruchtrel", 25, 0, 2),
    gruppe("ChkAussGrif", 11, "aussehen", 31, 1, 1),
    gruppe("ChkDruckFes", 3, "druck", 42, 1, 2),
    gruppe("ChkGrundFar", 4, "grundfarbe", 45, 1, 0),
    gruppe("ChkDeckFarb", 5, "deckfarbe", 49, 1, 0),
    gruppe("ChkDFArt", 8, "df_art", 54, 1, 1),
    gruppe("ChkDFAusd", 4, "df_ausdehn", 62, 1, 1),
    gruppe("ChkSchBeros", 4, "rost", 66, 1, 0),
    gruppe("ChkReif", 3, "reif", 70, 1, 2),
    gruppe("ChkSchP", 10, "sch_punkt", 73, 1, 2),
    gruppe("ChkKGr", 7, "k_grube", 83, 2, 0),
    gruppe("ChkKGrRelie", 7, "k_relief", 90, 2, 0),
    gruppe("ChkKGrUmgeb", 4, "k_umgebung", 97, 2, 1),
    gruppe("ChkKGrBeros", 5, "k_berost", 101, 2, 1),
    gruppe("ChkKGroesse", 3, "k_groesse", 106, 2, 1),
    gruppe("ChkKOeffnun", 3, "k_oeffnung", 109, 2, 1),
    gruppe("ChkKBlaette", 20, "k_blaetter", 112, 2, 2),
    gruppe("ChkStGrGroe", 6, "st_grube", 132, 3, 0),
    gruppe("ChkStGrBero", 12, "st_berost", 138, 3, 1),
    gruppe("ChkStLaenge", 6, "st_laenge", 150, 3, 0),
    gruppe("ChkStBesond", 10, "st_besond", 156, 3, 2),
    gruppe("ChkSchKelch", 7, "k_roehre", 166, 4, 0),
    gruppe("ChkSchGefB", 8, "g_buendel", 173, 4, 0),
    gruppe("ChkSchKWFor", 5, "kw_form", 181, 4, 1),
    gruppe("ChkSchKWRis", 7, "kw_risse", 186, 4, 1),
    gruppe("ChkKernZahl", 3, "k_anzahl", 193, 4, 2),
    gruppe("ChkKernQual", 3, "k_qualit", 196, 4, 2),
    gruppe("ChkKernLaen", 3, "k_laenge", 199, 4, 2),
    gruppe("ChkFrFlScha", 3, "schale", 202, 5, 0),
    gruppe("ChkFrFlFarb", 6, "fl_farbe", 205, 5, 0),
    gruppe("ChkFrFlStru", 11, "fl_strukt", 211, 5, 1),
    gemeinsam::text("txtName", u"Name:", "BOT_NAME", 225, textsuche),
    gemeinsam::text("txtVName", u"Voller Name:", "DTNAM", 226, textsuche),
    gemeinsam::text("txtSynonym", u"Synonym:", "synonym", 227, textsuche),
    gemeinsam::text("txtBenutzerText", u"Eigene Bemerkung:", "benu_bemerkung", 228, textsuche, 1),
    gemeinsam::eigenschaften(229, textsuche, 1),
    gemeinsam::ausbildung(234, Dateiform::Kennzeichen),
    gemeinsam::bewertung(222),
};

} // namespace

// clang-format off
const Filterbeschreibung frmFilterAp{.sparte = Sparte::Apfel, .reiter = reiter, .kriterien = kriterien, .zeilen = 239,
                                     .ladeFilter = u"Apfelsorten-Filter (*.ffa)|*.ffa|Alle Dateien|*.*",
                                     .speicherFilter = u"Apfelsorten-Filter (*.ffa)|*.ffa|Alle Dateien|*.*"};
// clang-format on
