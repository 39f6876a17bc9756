#pragma once

#include <QString>

#include <array>
#include <span>

/* The vocabularies of Flox. Row p (counted from 1) is the word for position p of a flag string. Words are used literally;
   irregular ones are part of the stored data's meaning and stay. All tables are constants: there is nothing to load. */

struct Werteliste
{
    std::span<const QStringView> zeilen;

    constexpr int anzahl() const { return int(zeilen.size()); }
    /// Word of row `p`, counted from 1; empty outside the list.
    constexpr QStringView wort(int p) const { return p >= 1 && p <= anzahl() ? zeilen[size_t(p - 1)] : QStringView(); }
};

/// Colours of a swatch row as 0xBBGGRR, one for each position but the last ("bunt"), which is shown by a picture.
struct Farbliste
{
    std::span<const int> werte;
};

// clang-format off
/// The pomological works that an apple can be described in.
inline constexpr auto werkeDerLiteratur = std::to_array<QStringView>({
    u"Illustrirtes Handbuch der Obstkunde", u"Lauche: Deutsche Pomologie", u"Engelbrecht: Deutschlands Apfelsorten",
    u"Oberdieck: Deutschlands beste Obstsorten", u"Diel: Kernobstsorten", u"Lucas: Werthvolle Obstsorten",
    u"Deutschlands Obstsorten", u"Leroy: Dictionnaire de pomologie", u"Hogg: The Fruit Manual", u"Gaucher: Pomologie",
    u"Junge: Unsere besten deutschen Obstsorten", u"Zschokke: Schweizerisches Obstbilderwerk", u"Kessler: Apfelsorten der Schweiz",
    u"Krümmel u. a.: Deutsche Obstsorten", u"Aeppli u. a.: Kernobstsorten", u"Petzold: Apfelsorten",
    u"Silbereisen u. a.: Obstsorten-Atlas", u"Votteler: Verzeichnis der Sorten", u"Fischer: Farbatlas Obstsorten",
    u"Hartmann: Farbatlas alte Obstsorten"});
// clang-format on

inline constexpr auto monatsnamen = std::to_array<QStringView>(
    {u"Januar", u"Februar", u"März", u"April", u"Mai", u"Juni", u"Juli", u"August", u"September", u"Oktober", u"November", u"Dezember"});

extern const Werteliste WL_Monate;
extern const Werteliste WL_Licht;
extern const Werteliste WL_Bodenart;
extern const Werteliste WL_Bodenfeuchte;
extern const Werteliste WL_Kalk;
extern const Werteliste WL_Naehrstoff;
extern const Werteliste WL_Geselligkeit;
extern const Werteliste WL_Lebensbereich;
extern const Werteliste WL_Pflanzenart;
extern const Werteliste WL_Urteil;
extern const Werteliste WL_Bluetenfarbe;
extern const Werteliste WL_Fruchtfarbe;
extern const Werteliste WL_Ausbildung;
extern const Werteliste WL_StBlattfarbe;
extern const Werteliste WL_ToPflanztyp;
extern const Werteliste WL_ToBlattfarbe;
extern const Werteliste WL_ToFruchtfarbe;
extern const Werteliste WL_ToTageslaenge;
extern const Werteliste WL_ToHWasserstand;
extern const Werteliste WL_ToHPh;
extern const Werteliste WL_ToHVerwendung;
extern const Werteliste WL_ToKrankheit;
extern const Werteliste WL_ToNachduengung;
extern const Werteliste WL_ToWuchsform;
extern const Werteliste WL_ToHaltbarkeit;
extern const Werteliste WL_ToVerwendung;
extern const Werteliste WL_GeLaubfarbe;
extern const Werteliste WL_GeGrobeinteilung;
extern const Werteliste WL_GeGenuss;
extern const Werteliste WL_GeBesMerkmale;
extern const Werteliste WL_GeBodenart;
extern const Werteliste WL_GeBodenfeuchte;
extern const Werteliste WL_GeLaubzeit;
extern const Werteliste WL_GeWurzelform;
extern const Werteliste WL_GeWurzelempf;
extern const Werteliste WL_GeBodenPh;
extern const Werteliste WL_GeBesEigenschaften;
extern const Werteliste WL_GeGroesse;
extern const Werteliste WL_GeHabitus;
extern const Werteliste WL_GeWuchs;
extern const Werteliste WL_GeVerwendung;
extern const Werteliste WL_ApHaltbark;
extern const Werteliste WL_ApFruchtgr;
extern const Werteliste WL_ApFormL;
extern const Werteliste WL_ApFormQ;
extern const Werteliste WL_ApFruchtrel;
extern const Werteliste WL_ApAussehen;
extern const Werteliste WL_ApDruck;
extern const Werteliste WL_ApGrundfarbe;
extern const Werteliste WL_ApDeckfarbe;
extern const Werteliste WL_ApDfArt;
extern const Werteliste WL_ApDfAusdehn;
extern const Werteliste WL_ApRost;
extern const Werteliste WL_ApReif;
extern const Werteliste WL_ApSchPunkt;
extern const Werteliste WL_ApKGrube;
extern const Werteliste WL_ApKRelief;
extern const Werteliste WL_ApKUmgebung;
extern const Werteliste WL_ApKBerost;
extern const Werteliste WL_ApKGroesse;
extern const Werteliste WL_ApKOeffnung;
extern const Werteliste WL_ApKBlaetter;
extern const Werteliste WL_ApStLaenge;
extern const Werteliste WL_ApStBesond;
extern const Werteliste WL_ApStGrube;
extern const Werteliste WL_ApStBerost;
extern const Werteliste WL_ApKHoehle;
extern const Werteliste WL_ApKRoehre;
extern const Werteliste WL_ApKhGroesse;
extern const Werteliste WL_ApGBuendel;
extern const Werteliste WL_ApAHoehle;
extern const Werteliste WL_ApKKammern;
extern const Werteliste WL_ApKwForm;
extern const Werteliste WL_ApKwGroesse;
extern const Werteliste WL_ApKwRisse;
extern const Werteliste WL_ApKAnzahl;
extern const Werteliste WL_ApKQualit;
extern const Werteliste WL_ApKFarbe;
extern const Werteliste WL_ApKLaenge;
extern const Werteliste WL_ApSchale;
extern const Werteliste WL_ApFlFarbe;
extern const Werteliste WL_ApFlStrukt;
extern const Werteliste WL_ApFlDuft;
extern const Werteliste WL_ApGeschmack;
extern const Werteliste WL_ApLiteratur;
extern const Werteliste WL_ObWuchs;
extern const Werteliste WL_ObBlatt;
extern const Werteliste WL_ObFruhol;
extern const Werteliste WL_ObTrirut;
extern const Werteliste WL_ObUnterlage;
extern const Werteliste WL_ObKrankh;
extern const Werteliste WL_ObResistenz;
extern const Werteliste WL_ObBoden;
extern const Werteliste WL_ObKlima;
extern const Werteliste WL_ObNaehrstoff;
extern const Werteliste WL_ObEignung;
extern const Werteliste WL_ObErziform;
extern const Werteliste WL_ObShnitt;
extern const Werteliste WL_ObPflshtz;
extern const Werteliste WL_ObFroemf;
extern const Werteliste WL_ObBluete;
extern const Werteliste WL_ObFrustan;
extern const Werteliste WL_ObBefru;
extern const Werteliste WL_ObBefrsor;
extern const Werteliste WL_ObAltrnaz;
extern const Werteliste WL_ObFrufar;
extern const Werteliste WL_ObGrundfarb;
extern const Werteliste WL_ObDeckfarb;
extern const Werteliste WL_ObSchale;
extern const Werteliste WL_ObFruflei;
extern const Werteliste WL_ObFrufor;
extern const Werteliste WL_ObGesmak;
extern const Werteliste WL_ObErtrag;
extern const Werteliste WL_ObErnte;
extern const Werteliste WL_ObTranspemp;
extern const Werteliste WL_ObVerwend;
extern const Werteliste WL_ObLageig;
extern const Werteliste WL_ObLagkrank;
extern const Werteliste WL_FhPflanzzeit;
extern const Werteliste WL_FhPflege;
extern const Werteliste WL_FhSymbolik;
/// Colours of leaves: those of perennials, then what only woody plants have.
extern const Werteliste WL_FhLaubfarbe;

extern const Farbliste WL_BluetenfarbeRGB;
extern const Farbliste WL_FruchtfarbeRGB;
extern const Farbliste WL_ToFruchtfarbeRGB;
