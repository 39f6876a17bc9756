#pragma once

#include "Gemeinsam.h"
#include "store/Text.h"

/* What a window shows of a woody plant, whichever collection lists it. */
namespace gehoelz {

/// Words of the windows' own; filter and print have the vocabulary's.
inline constexpr QStringView genusswerte[] = {u"eßbar", u"ungenießbar", u"giftig", u"stark giftig !!!"};

inline constexpr Element einteilung{.muster = Muster::Bildwahl, .control = "imgEigen_0", .feld = "*.grobeint", .symbole = symbole::laubUndNadel};
// clang-format off
inline constexpr Element herkunft{.muster = Muster::Text, .control = "lblHerkunft", .feld = "*.hk", .titeltext = u"Herkunft:", .titel = "Label16",
                                  .umformung = herkunftAusgeschrieben};
inline constexpr Element bluetenfarben{.muster = Muster::Farbfeld, .control = "lblBlFarbe", .feld = "*.bluehfarb", .titeltext = u"Farben:",
                                       .farben = &WL_BluetenfarbeRGB};
inline constexpr Element bluehzeit{.muster = Muster::Monate, .control = "lblBlMonat", .feld = "*.bluehzeit", .titeltext = u"Zeit:"};
inline constexpr Element fruchtfarben{.muster = Muster::Farbfeld, .control = "lblFrFarbe", .feld = "*.fruchtfarb", .titeltext = u"Farben:",
                                      .farben = &WL_FruchtfarbeRGB};
inline constexpr Element fruchtzeit{.muster = Muster::Monate, .control = "lblFrMonat", .feld = "*.fruchtzeit", .titeltext = u"Zeit:"};
inline constexpr Element genuss{.muster = Muster::Liste, .control = "lblGenuss", .feld = "*.genuss", .titeltext = u"Die Frucht ist:", .titel = "Label3",
                                .worte = genusswerte};
inline constexpr Element laubzeit{.muster = Muster::Liste, .control = "lblZeit", .feld = "*.laubzeit", .titeltext = u"Belaubung:"};
inline constexpr Element laubfarbe{.muster = Muster::Liste, .control = "lblBlattFarbe", .feld = "*.laubfarb", .titeltext = u"Farbe:"};
inline constexpr Element austrieb{.muster = Muster::Monate, .control = "lblBtMonat", .feld = "*.laubaustr", .titeltext = u"Austrieb:"};
inline constexpr Element groesse{.muster = Muster::Liste, .control = "lblGrGruppe", .feld = "*.groesse", .titeltext = u"Größengruppe:"};
inline constexpr Element durchmesser{.muster = Muster::Text, .control = "lblmaxD", .feld = "*.maxdurchm", .titeltext = u"Durchmesser maximal:",
                                     .einheit = u" m", .umformung = gemeinsam::ohneNull};
inline constexpr Element habitus{.muster = Muster::Liste, .control = "lblHabitus", .feld = "*.habitus", .titeltext = u"Habitus:", .titel = "Label1"};
inline constexpr Element wuchs{.muster = Muster::Liste, .control = "lblWuchsVerh", .feld = "*.wuchs", .titeltext = u"Wuchsgeschwindigkeit:"};
inline constexpr Element merkmale{.muster = Muster::Liste, .control = "lblBesMerkmale", .feld = "*.bes_merkm", .titeltext = u"Besondere Merkmale:",
                                  .titel = "Label23"};
inline constexpr Element kennzahl{.muster = Muster::Text, .control = "lblKennzahl", .feld = "*.kennzahl", .titeltext = u"Kennzahl:", .titel = "Label21"};
inline constexpr Element wurzelform{.muster = Muster::Liste, .control = "lblWurzelWuchs", .feld = "*.wurzelform", .titeltext = u"Wuchsverhalten:",
                                    .titel = "Label7"};
inline constexpr Element wurzelempfindlichkeit{.muster = Muster::Liste, .control = "lblEmpfindlich", .feld = "*.wurzelempf",
                                               .titeltext = u"Empfindlichkeit:", .titel = "Label13"};
inline constexpr Element licht{.muster = Muster::Symbole, .control = "imgLicht", .feld = "*.licht", .titeltext = u"Licht:", .symbole = symbole::licht};
inline constexpr Element bodenart{.muster = Muster::Liste, .control = "lblBodenart", .feld = "*.bodenart", .titeltext = u"Bodenart:"};
inline constexpr Element bodenfeuchte{.muster = Muster::Liste, .control = "lblBodenFeuchte", .feld = "*.bfeuchte", .titeltext = u"Bodenfeuchte:"};
inline constexpr Element boden{.muster = Muster::Liste, .control = "lblpH", .feld = "*.phboden", .titeltext = u"pH-Bereich:"};
inline constexpr Element standorteigenschaften{.muster = Muster::Liste, .control = "lblBesStandort", .feld = "*.bes_eig",
                                               .titeltext = u"Bes. Standorteigenschaften:", .titel = "Label14"};
inline constexpr Element schaden{.muster = Muster::Text, .control = "txtKrank", .feld = "*.schaden", .leer = u"Keine Schadensangaben",
                                 .umformung = ohneZeilenmarken, .kasten = true};
inline constexpr Element verwendungen{.muster = Muster::Symbole, .control = "imgVerwendung", .feld = "*.verwendung",
                                      .symbole = symbole::verwendungGehoelze};
inline constexpr Element bemerkung{.muster = Muster::Text, .control = "txtBemerkung", .feld = "*.BEMERKUNG", .leer = u"Keine Bemerkungen",
                                   .umformung = ohneZeilenmarken, .kasten = true};
// clang-format on

} // namespace gehoelz
