#pragma once

#include "Gemeinsam.h"
#include "store/Text.h"

/* What a window shows of a perennial, whichever collection lists it. */
namespace staude {

inline constexpr QStringView ohneAngabe = u"Keine Angaben";

// clang-format off
inline constexpr Symbol eigenschaften[] = {
    {"iliEigenschaften/gift", u"Diese Pflanze ist giftig!", u"Giftpflanze", "Stauden.giftig", "iliEigenschaften/gift_n"},
    {"iliEigenschaften/schere", u"Diese Pflanze ist eine Schnittpflanze", u"Schnittpflanze", "Stauden.schnitt", "iliEigenschaften/schere_n"},
    {"iliEigenschaften/heim", u"Diese Pflanze ist heimisch", u"heimische Pflanze", "Stauden.heimisch", "iliEigenschaften/heim_n"},
    {"iliEigenschaften/schmuck", u"Diese Pflanze ist eine Blattschmuckstaude", u"Blattschmuckstaude", "Stauden.blaschmuck", "iliEigenschaften/schmuc_n"},
    {"iliEigenschaften/immerg", u"Diese Pflanze ist immergrün", u"immergrüne Pflanze", "Stauden.immergruen", "iliEigenschaften/immerg_n"},
};
inline constexpr Element marken{.muster = Muster::Symbole, .control = "imgEigen", .symbole = eigenschaften};
inline constexpr Element herkunft{.muster = Muster::Text, .control = "lblHerkunft", .feld = "*.HK", .titeltext = u"Herkunft:", .titel = "lblHerk",
                                  .umformung = herkunftAusgeschrieben};
inline constexpr Element bluetenfarben{.muster = Muster::Farbfeld, .control = "lblBlFarbe", .feld = "*.farben", .titeltext = u"Farben:",
                                       .farben = &WL_BluetenfarbeRGB};
inline constexpr Element bluehzeit{.muster = Muster::Monate, .control = "lblBlMonat", .feld = "*.bluehzeit", .titeltext = u"Zeit:"};
inline constexpr Element bluetenhoehe{.muster = Muster::VonBisMeter, .control = "lblBluetHoehe", .feld = "*.BLMINH", .feld2 = "*.BLMAXH",
                                      .titeltext = u"Höhe mit Blüte:", .titel = "labelBl", .einheit = u" m"};
inline constexpr Element bluetenform{.muster = Muster::Text, .control = "lblBluetForm", .feld = "*.blform", .titeltext = u"Form:", .titel = "Label5"};
inline constexpr Element fruchtfarben{.muster = Muster::Farbfeld, .control = "lblFrFarbe", .feld = "*.fruchtfarb", .titeltext = u"Farben:",
                                      .farben = &WL_FruchtfarbeRGB};
inline constexpr Element fruchtzeit{.muster = Muster::Monate, .control = "lblFrMonat", .feld = "*.fruchtzeit", .titeltext = u"Zeit:"};
inline constexpr Element laubhoehe{.muster = Muster::VonBisMeter, .control = "lblLaubHoehe", .feld = "*.MINHOEHE", .feld2 = "*.MAXHOEHE",
                                   .titeltext = u"Höhe:", .titel = "labelHoehe", .einheit = u" m"};
inline constexpr Element blattform{.muster = Muster::Text, .control = "lblBlattform", .feld = "*.blattform", .titeltext = u"Form:", .titel = "Label21"};
inline constexpr Element blattfarbe{.muster = Muster::Liste, .control = "lblBlattFarbe", .feld = "*.blattfarbe", .titeltext = u"Farbe:",
                                    .titel = "LabelFarbe"};
inline constexpr Element herbstfarben{.muster = Muster::Farbfeld, .control = "lblHfFarbe", .feld = "*.herbstfarb", .titeltext = u"Herbstfärbung:",
                                      .titel = "Label23", .farben = &WL_BluetenfarbeRGB, .panel = "Panel3D6"};
inline constexpr Element urteil{.muster = Muster::Liste, .control = "lblUrteil", .feld = "*.urteil", .titeltext = u"Urteil:", .titel = "labelUt"};
inline constexpr Element pflanzentyp{.muster = Muster::Liste, .control = "lblPflanzart", .feld = "*.pflanzart", .titeltext = u"Pflanzentyp:",
                                     .titel = "Label36"};
inline constexpr Element wuchsform{.muster = Muster::Text, .control = "lblWuchs", .feld = "*.wuchsform", .titeltext = u"Wuchsform:", .leer = ohneAngabe};
inline constexpr Element lebensraum{.muster = Muster::Liste, .control = "lblLebensraum", .feld = "*.lebensraum", .titeltext = u"Lebensraum:", .trenner = u"; "};
inline constexpr Element kennziffer{.muster = Muster::Text, .control = "lblKennziffern", .feld = "*.kennziffer", .titeltext = u"Kennziffer:"};
inline constexpr Element licht{.muster = Muster::Symbole, .control = "imgLicht", .feld = "*.licht", .titeltext = u"Licht:", .symbole = symbole::licht};
inline constexpr Element bodenart{.muster = Muster::Liste, .control = "lblBodenart", .feld = "*.bodenart", .titeltext = u"Bodenart:", .trenner = u"; "};
inline constexpr Element bodenfeuchte{.muster = Muster::Liste, .control = "lblBodenFeuchte", .feld = "*.bfeuchte", .titeltext = u"Bodenfeuchte:",
                                      .trenner = u"; "};
inline constexpr Element kalk{.muster = Muster::Liste, .control = "lblpH", .feld = "*.kalk", .titeltext = u"Boden pH-Bereich:", .titel = "Label17",
                              .trenner = u"; "};
inline constexpr Element naehrstoffe{.muster = Muster::Liste, .control = "lblNaehrstoffe", .feld = "*.salz", .titeltext = u"Nährstoffbedarf:",
                                     .trenner = u"; "};
inline constexpr Element pflanzung{.muster = Muster::Text, .control = "lblPflanzung", .feld = "*.abstand", .titeltext = u"Pflanzen je m²:",
                                   .leer = ohneAngabe, .einheit = u"/m²", .umformung = gemeinsam::quadratmeter};
inline constexpr Element geselligkeit{.muster = Muster::Liste, .control = "lblGeselligkeit", .feld = "*.geselligkt", .titeltext = u"Geselligkeit:"};
inline constexpr Element duengung{.muster = Muster::Text, .control = "lblDuengung", .feld = "*.duengung", .titeltext = u"Düngung:", .leer = ohneAngabe,
                                  .umformung = gemeinsam::quadratmeter};
inline constexpr Element vermehrung{.muster = Muster::Text, .control = "lblVermehrung", .feld = "*.vermehrung", .titeltext = u"Vermehrung:",
                                    .leer = ohneAngabe};
inline constexpr Element verwendungsart{.muster = Muster::Text, .control = "lblVerwArt", .feld = "*.besverw", .titeltext = u"Verwendung:",
                                        .leer = ohneAngabe};
inline constexpr Element bemerkung{.muster = Muster::Text, .control = "lblBemerkungen", .feld = "*.BEMERKUNG", .titeltext = u"Bemerkungen:",
                                   .titel = "Label32", .umformung = ohneZeilenmarken};
// clang-format on

} // namespace staude
