#include "Wertelisten.h"

#include <algorithm>

namespace {

constexpr QStringView zeilenLicht[] = {u"sonnig", u"halbschattig", u"schattig"};
static_assert(std::size(zeilenLicht) == 3);

constexpr QStringView zeilenBodenart[] = {u"humos", u"steinig", u"sandig", u"mittelschwer", u"lehmig", u"durchlässig"};
static_assert(std::size(zeilenBodenart) == 6);

constexpr QStringView zeilenBodenfeuchte[] = {u"trocken", u"frisch", u"feucht", u"dauernaß"};
static_assert(std::size(zeilenBodenfeuchte) == 4);

constexpr QStringView zeilenKalk[] = {u"kalkarm", u"leicht sauer", u"kalkreich"};
static_assert(std::size(zeilenKalk) == 3);

constexpr QStringView zeilenNaehrstoff[] = {u"nährstoffarm", u"mittel", u"nährstoffreich"};
static_assert(std::size(zeilenNaehrstoff) == 3);

constexpr QStringView zeilenGeselligkeit[] = {u"möglichst einzeln oder in kleinen Tuffs pflanzen",
                                              u"in kleinen Trupps von etwa 3-10 Pflanzen gruppieren", u"größere Gruppen von über 10-20 Pflanzen",
                                              u"in großen Kolonien, ausgesprochen flächig pflanzen", u"vorwiegend großflächig pflanzen"};
static_assert(std::size(zeilenGeselligkeit) == 5);

constexpr QStringView zeilenLebensbereich[] = {
    u"I G", u"II GR", u"III Fr", u"FR-b", u"Frl", u"Frl-b",  u"Fr2", u"Fr2-b", u"Fr3", u"Fr3-b", u"SH", u"H",  u"IV St", u"FS",  u"M",  u"SF",
    u"V A", u"VI B",  u"VII WR", u"WR1",  u"WR2", u"VIII W", u"W1",  u"W2",    u"W3",  u"G1",    u"G2", u"G3", u"GR1",   u"GR2", u"GR3"};
static_assert(std::size(zeilenLebensbereich) == 31);

constexpr QStringView zeilenPflanzenart[] = {u"einjährig", u"zweijährig",     u"Baum", u"Halbstrauch", u"Staude",
                                             u"Strauch",   u"Zwiebel/Knolle", u"Gras", u"Farn",        u"Wasserpflanze"};
static_assert(std::size(zeilenPflanzenart) == 10);

constexpr QStringView zeilenUrteil[] = {
    u"vorzügliche Sorte",       u"sehr wertvolle Sorte",      u"wertvolle Sorte",     u"Staude für den Pflanzenliebhaber",
    u"wertvolle Schnittstaude", u"sehr wertvolle Wildstaude", u"wertvolle Wildstaude"};
static_assert(std::size(zeilenUrteil) == 7);

constexpr QStringView zeilenBluetenfarbe[] = {u"weiß",    u"gelb", u"orange", u"rosa",  u"rot",  u"dunkelrot", u"purpur",
                                              u"violett", u"lila", u"blau",   u"braun", u"grau", u"bunt"};
static_assert(std::size(zeilenBluetenfarbe) == 13);

constexpr QStringView zeilenFruchtfarbe[] = {u"weiß", u"gelb", u"orange", u"rosa", u"rot",  u"purpur",  u"violett",
                                             u"lila", u"blau", u"braun",  u"grau", u"grün", u"schwarz", u"bunt"};
static_assert(std::size(zeilenFruchtfarbe) == 14);

constexpr QStringView zeilenAusbildung[] = {u"bei Zierpflanzengärtnern", u"bei Baumschulgärtnern", u"bei Staudengärtnern",
                                            u"bei Friedhofsgärtnern",    u"bei Obstbauern",        u"bei Landschaftsgärtnern"};
static_assert(std::size(zeilenAusbildung) == 6);

constexpr QStringView zeilenStBlattfarbe[] = {u"hellgrün", u"dunkelgrün", u"weißgrün", u"gelb",     u"gelbgrün",  u"rotbraun", u"blaugrün",
                                              u"silbrig",  u"grau",       u"graublau", u"graugrün", u"gestreift", u"gefleckt", u"filzig"};
static_assert(std::size(zeilenStBlattfarbe) == 14);

constexpr QStringView zeilenToPflanztyp[] = {u"Grünpflanze", u"Blütenpflanze", u"Fruchtpflanze", u"Sukkulente", u"Carnivore", u"Giftpflanze"};
static_assert(std::size(zeilenToPflanztyp) == 6);

constexpr QStringView zeilenToBlattfarbe[] = {u"hellgrün", u"dunkelgrün", u"silbrig",   u"gelbgrün",   u"weißgrün",
                                              u"rotgrün",  u"gefleckt",   u"gestreift", u"panaschiert"};
static_assert(std::size(zeilenToBlattfarbe) == 9);

constexpr QStringView zeilenToFruchtfarbe[] = {u"weiß",    u"gelb", u"orange", u"rosa", u"rot",     u"purpur", u"lila",
                                               u"violett", u"blau", u"braun",  u"grau", u"schwarz", u"bunt"};
static_assert(std::size(zeilenToFruchtfarbe) == 13);

constexpr QStringView zeilenToTageslaenge[] = {u"neutral", u"Kurztagpflanze", u"Langtagpflanze"};
static_assert(std::size(zeilenToTageslaenge) == 3);

constexpr QStringView zeilenToHWasserstand[] = {u"Minimum (niedrig < 1 cm)", u"Optimum (mittel 1-3 cm)", u"Maximum (hoch 3-5 cm)"};
static_assert(std::size(zeilenToHWasserstand) == 3);

constexpr QStringView zeilenToHPh[] = {u"niedrig (4-5)", u"hoch (6-7)"};
static_assert(std::size(zeilenToHPh) == 2);

constexpr QStringView zeilenToHVerwendung[] = {u"Solitär", u"Hauptpflanze", u"Begleitpflanze", u"Rankpflanze", u"Hängepflanze"};
static_assert(std::size(zeilenToHVerwendung) == 5);

constexpr QStringView zeilenToKrankheit[] = {u"gering", u"mittel", u"hoch"};
static_assert(std::size(zeilenToKrankheit) == 3);

constexpr QStringView zeilenToNachduengung[] = {u"schwach", u"mittel", u"stark"};
static_assert(std::size(zeilenToNachduengung) == 3);

constexpr QStringView zeilenToWuchsform[] = {u"baumartig",      u"strauchartig",   u"krautig",         u"aufrecht",   u"überhängend",
                                             u"sparrig",        u"unregelmäßig",   u"gedreht",         u"eintriebig", u"horstig",
                                             u"polsterbildend", u"teppichbildend", u"rosettenbildend", u"kletternd"};
static_assert(std::size(zeilenToWuchsform) == 14);

constexpr QStringView zeilenToHaltbarkeit[] = {u"kurz", u"mittel", u"lang"};
static_assert(std::size(zeilenToHaltbarkeit) == 3);

constexpr QStringView zeilenToVerwendung[] = {u"für den Innenraum", u"für die Fensterbank", u"als Kübelpflanze",     u"für die Blumenampel",
                                              u"für das Beet",      u"für den Balkon",      u"für den Wintergarten", u"für die Vitrine"};
static_assert(std::size(zeilenToVerwendung) == 8);

constexpr QStringView zeilenGeLaubfarbe[] = {u"hellgrün", u"dunkelgrün", u"gelbgrün",     u"weißgrün", u"gelb",      u"orange",  u"rot",
                                             u"graugrün", u"blaugrün",   u"bläulich rot", u"graugrün", u"gestreift", u"gefleckt"};
static_assert(std::size(zeilenGeLaubfarbe) == 13);

constexpr QStringView zeilenGeGrobeinteilung[] = {u"Laubgehölz", u"Nadelgehölz"};

constexpr QStringView zeilenGeGenuss[] = {u"eßbar", u"ungeniessbar", u"giftig", u"Stark giftig!!!"};
static_assert(std::size(zeilenGeGenuss) == 4);

constexpr QStringView zeilenGeBesMerkmale[] = {u"dornig", u"stachelig", u"auffällige Borke", u"Triebe behaart/filzig"};
static_assert(std::size(zeilenGeBesMerkmale) == 4);

constexpr QStringView zeilenGeBodenart[] = {u"humos", u"steinig", u"sandig", u"mittelschwer", u"lehmig", u"durchlässig", u"tiefgründig"};
static_assert(std::size(zeilenGeBodenart) == 7);

constexpr QStringView zeilenGeBodenfeuchte[] = {u"trocken", u"frisch", u"feucht", u"nass"};
static_assert(std::size(zeilenGeBodenfeuchte) == 4);

constexpr QStringView zeilenGeLaubzeit[] = {u"sommergrün", u"wintergrün", u"immergrün", u"Herbstfärbung!"};
static_assert(std::size(zeilenGeLaubzeit) == 4);

constexpr QStringView zeilenGeWurzelform[] = {u"ausläuferbildend", u"Herzwurzeln", u"flach", u"extrem flach", u"tief", u"locker", u"dicht"};
static_assert(std::size(zeilenGeWurzelform) == 7);

constexpr QStringView zeilenGeWurzelempf[] = {u"tolerant", u"empfindlich", u"sehr empfindlich"};
static_assert(std::size(zeilenGeWurzelempf) == 3);

constexpr QStringView zeilenGeBodenPh[] = {u"sauer", u"neutral", u"basisch"};
static_assert(std::size(zeilenGeBodenPh) == 3);

constexpr QStringView zeilenGeBesEigenschaften[] = {u"windfest", u"Industriegehölz", u"salzverträglich", u"rauchhart", u"stadtklimafest"};
static_assert(std::size(zeilenGeBesEigenschaften) == 5);

constexpr QStringView zeilenGeGroesse[] = {
    u"Großbaum (20-40 m)",      u"mittelgroßer Baum (12/15-20 m)", u"Kleinbaum (7-12/15 m)",    u"Großstrauch (3-5/7 m)",
    u"Normalstrauch (1,5-3 m)", u"Kleinstrauch (0,5-1,5 m)",       u"Zwergstrauch (0,1-0,5 m)", u"Klettergehölz"};
static_assert(std::size(zeilenGeGroesse) == 8);

constexpr QStringView zeilenGeHabitus[] = {
    u"bizarre Wuchsform", u"kegelförmig", u"kugelförmig", u"säulenförmig", u"schirmartig",    u"schleppenartig", u"überhängend", u"breit ausladend",
    u"vasenförmig",       u"gedrungen",   u"kriechend",   u"kletternd",    u"polsterbildend", u"ausbreitend",    u"horstig",     u"rasenbildend"};
static_assert(std::size(zeilenGeHabitus) == 16);

constexpr QStringView zeilenGeWuchs[] = {u"schnell", u"mittel", u"langsam"};
static_assert(std::size(zeilenGeWuchs) == 3);

constexpr QStringView zeilenGeVerwendung[] = {
    u"als heimische Pflanze",  u"zur Heckenpflanzung",   u"als Bienenweide",   u"als Vogelnährgehölz", u"zur Hangbefestigung",
    u"für die Auenlandschaft", u"als Hausbaum",          u"als Straßenbaum",   u"im Garten",           u"als Bodendecker",
    u"als Schnittgehölz",      u"zur Fassadenbegrünung", u"zur Dachbegrünung", u"im Heidegarten",      u"als Kübelpflanze",
    u"als Pioniergehölz",      u"als Obstgehölz",        u"in Einzelstellung", u"in Gruppenstellung",  u"in einer Parkanlage",
    u"zur Verkehrsbegleitung", u"als Grabbepflanzung",   u"zur Treiberei"};
static_assert(std::size(zeilenGeVerwendung) == 23);

constexpr QStringView zeilenApHaltbark[] = {u"Sommer (bis 9)", u"Herbst (bis 11)", u"Winter (bis 3)", u"Lager (> 3)"};
static_assert(std::size(zeilenApHaltbark) == 4);

constexpr QStringView zeilenApFruchtgr[] = {u"klein", u"mittelgroß", u"groß", u"sehr groß"};
static_assert(std::size(zeilenApFruchtgr) == 4);

constexpr QStringView zeilenApFormL[] = {u"flach",         u"kugelig",      u"hoch",         u"kegelförmig",  u"walzenförmig/faßförmig",
                                         u"mittelbauchig", u"stielbauchig", u"kelchbauchig", u"schiefgebaut", u"symmetrisch"};
static_assert(std::size(zeilenApFormL) == 10);

constexpr QStringView zeilenApFormQ[] = {u"rund", u"oval", u"unregelmäßig rund", u"rundkantig", u"kantig"};
static_assert(std::size(zeilenApFormQ) == 5);

constexpr QStringView zeilenApFruchtrel[] = {u"Kanten", u"Rippen", u"Naht", u"Beulen", u"Warzen", u"ebenmäßig"};
static_assert(std::size(zeilenApFruchtrel) == 6);

constexpr QStringView zeilenApAussehen[] = {
    u"glatt",  u"rauh",     u"matt", u"glänzend", u"trocken", u"geschmeidig", u"fettig", u"klebrig", u"Schalenpunkte/Rost spürbar",
    u"narbig", u"schwammig"};
static_assert(std::size(zeilenApAussehen) == 11);

constexpr QStringView zeilenApDruck[] = {u"weich", u"mittel", u"hart"};
static_assert(std::size(zeilenApDruck) == 3);

constexpr QStringView zeilenApGrundfarbe[] = {u"grün", u"grüngelb", u"gelb", u"weißlich", u"trüb", u"leuchtend", u"scheckig"};
static_assert(std::size(zeilenApGrundfarbe) == 7);

constexpr QStringView zeilenApDeckfarbe[] = {u"orange", u"hellrot", u"rot", u"dunkelrot", u"nicht vorhanden"};
static_assert(std::size(zeilenApDeckfarbe) == 5);

constexpr QStringView zeilenApDfArt[] = {u"gesprenkelt", u"gestreift/geflammt", u"marmoriert", u"Farbchimären", u"gleichmäßig", u"trüb", u"zart",
                                         u"kräftig",     u"verwaschen"};
static_assert(std::size(zeilenApDfArt) == 9);

constexpr QStringView zeilenApDfAusdehn[] = {u"wenig", u"Backe", u"großflächig", u"ganz"};
static_assert(std::size(zeilenApDfAusdehn) == 4);

constexpr QStringView zeilenApRost[] = {u"flächig", u"netzartig", u"figurenartig", u"nicht vorhanden", u"fein", u"rauh", u"schuppig", u"schollig"};
static_assert(std::size(zeilenApRost) == 8);

constexpr QStringView zeilenApReif[] = {u"abwischbar", u"nicht abwischbar", u"nicht vorhanden", u"bläulich", u"weißlich", u"silbrig", u"fein",
                                        u"stark"};
static_assert(std::size(zeilenApReif) == 8);

// clang-format off
constexpr QStringView zeilenApSchPunkt[] = {
    u"auffällig", u"nicht auffällig", u"nicht vorhanden", u"wenig", u"zahlreich", u"sehr fein", u"fein", u"mittel",
    u"groß", u"sehr groß", u"veränderlich, je nach Lage", u"punktförmig", u"eckig", u"sternchenförmig",
    u"figurenförmig", u"oval", u"veränderlich, je nach Fruchtlage", u"rostartig", u"weißlich", u"grau",
    u"hellbraun", u"braun", u"grün", u"gelb", u"rot", u"in Grund-/Deckfarbe meist verschieden"};
static_assert(std::size(zeilenApSchPunkt) == 26);

constexpr QStringView zeilenApKGrube[] = {
    u"flach", u"mitteltief", u"tief", u"aufsitzend", u"eng", u"mittelweit", u"weit"};
static_assert(std::size(zeilenApKGrube) == 7);

constexpr QStringView zeilenApKRelief[] = {
    u"Teller", u"Schüssel", u"Trichter", u"glatt", u"gefalten", u"gerippt", u"Fleischperlen"};
static_assert(std::size(zeilenApKRelief) == 7);

constexpr QStringView zeilenApKUmgebung[] = {
    u"eben", u"wellig", u"Höcker", u"Rippen"};
static_assert(std::size(zeilenApKUmgebung) == 4);

constexpr QStringView zeilenApKBerost[] = {
    u"Punktrost", u"Strichrost", u"flächig", u"nicht vorhanden", u"netzartig"};
static_assert(std::size(zeilenApKBerost) == 5);

constexpr QStringView zeilenApKGroesse[] = {
    u"groß", u"mittel", u"klein"};
static_assert(std::size(zeilenApKGroesse) == 3);

constexpr QStringView zeilenApKOeffnung[] = {
    u"geschlossen", u"halboffen", u"offen"};
static_assert(std::size(zeilenApKOeffnung) == 3);

constexpr QStringView zeilenApKBlaetter[] = {
    u"am Grunde getrennt", u"am Grunde berührend", u"zusammengeneigt", u"zurückgeschlagen", u"aufrecht", u"schmal",
    u"mittel", u"breit", u"kurz", u"lang", u"spitz", u"verkümmert", u"meist abgebrochen", u"wollig",
    u"Kelchbüschel", u"Kelchblätter am Grunde grün", u"Farbe graugrün", u"grünlich", u"bräunlich", u"dunkelbraun"};
static_assert(std::size(zeilenApKBlaetter) == 20);

constexpr QStringView zeilenApStLaenge[] = {
    u"kurz", u"mittellang", u"lang", u"dünn", u"mitteldick", u"dick"};
static_assert(std::size(zeilenApStLaenge) == 6);

constexpr QStringView zeilenApStBesond[] = {
    u"versenkt", u"herausragend", u"Fleischwulst", u"knopfig", u"knospig", u"fleischig", u"grau", u"grün", u"braun",
    u"rotbraun"};
static_assert(std::size(zeilenApStBesond) == 10);

constexpr QStringView zeilenApStGrube[] = {
    u"eng", u"mittelweit", u"weit", u"flach", u"mitteltief", u"tief"};
static_assert(std::size(zeilenApStGrube) == 6);

constexpr QStringView zeilenApStBerost[] = {
    u"flächig", u"strahlig", u"strichförmig", u"nur in Tiefe", u"nicht vorhanden", u"fein", u"schuppig",
    u"schollig", u"grau", u"grün", u"oliv", u"braun", u"zimt", u"gelb"};
static_assert(std::size(zeilenApStBerost) == 14);

constexpr QStringView zeilenApKHoehle[] = {
    u"dreieckig", u"kegelförmig", u"becherförmig", u"trichterförmig", u"klein", u"mittel", u"groß", u"eng", u"breit"};
static_assert(std::size(zeilenApKHoehle) == 9);

constexpr QStringView zeilenApKRoehre[] = {
    u"kurz", u"mittel", u"lang", u"bis an Kernhaus reichend", u"breit", u"mittelbreit", u"schmal"};
static_assert(std::size(zeilenApKRoehre) == 7);

constexpr QStringView zeilenApKhGroesse[] = {
    u"klein", u"mittel", u"groß"};
static_assert(std::size(zeilenApKhGroesse) == 3);

constexpr QStringView zeilenApGBuendel[] = {
    u"grünlich", u"gelblich", u"rötlich", u"eiförmig", u"unregelmäßig", u"herzförmig/zwiebelförmig", u"flach",
    u"hoch"};
static_assert(std::size(zeilenApGBuendel) == 8);

constexpr QStringView zeilenApAHoehle[] = {
    u"geschlossen", u"offen", u"weit offen"};
static_assert(std::size(zeilenApAHoehle) == 3);

constexpr QStringView zeilenApKKammern[] = {
    u"eng", u"weit"};
static_assert(std::size(zeilenApKKammern) == 2);

constexpr QStringView zeilenApKwForm[] = {
    u"bogenförmig", u"bohnenförmig", u"mondsichelförmig", u"ohrenförmig", u"rucksackförmig"};
static_assert(std::size(zeilenApKwForm) == 5);

constexpr QStringView zeilenApKwGroesse[] = {
    u"schmal", u"mittel", u"breit", u"sehr breit", u"matt", u"glänzend"};
static_assert(std::size(zeilenApKwGroesse) == 6);

constexpr QStringView zeilenApKwRisse[] = {
    u"nicht vorhanden", u"vorhanden", u"fein", u"mittel", u"breit", u"wattig belegt", u"stark wattig belegt"};
static_assert(std::size(zeilenApKwRisse) == 7);

constexpr QStringView zeilenApKAnzahl[] = {
    u"< 4", u"4-7", u"> 7"};
static_assert(std::size(zeilenApKAnzahl) == 3);

constexpr QStringView zeilenApKQualit[] = {
    u"alle ausgebildet", u"z.T. taub", u"alle taub"};
static_assert(std::size(zeilenApKQualit) == 3);

constexpr QStringView zeilenApKFarbe[] = {
    u"orangebraun", u"hellbraun", u"mittelbraun", u"dunkelbraun", u"schwarzbraun", u"klein", u"mittel", u"groß",
    u"rund", u"kantig", u"flach", u"schmal", u"breit", u"spitz", u"abgestumpft", u"glatt", u"seitlich spitznasig",
    u"seitlich stumpfnasig"};
static_assert(std::size(zeilenApKFarbe) == 18);

constexpr QStringView zeilenApKLaenge[] = {
    u"kurz (< 7 mm)", u"mittel (7-9 mm)", u"lang (> 9 mm)"};
static_assert(std::size(zeilenApKLaenge) == 3);

constexpr QStringView zeilenApSchale[] = {
    u"dünn", u"mittel", u"derb"};
static_assert(std::size(zeilenApSchale) == 3);

constexpr QStringView zeilenApFlFarbe[] = {
    u"weißlich", u"grünlich", u"gelblich", u"rötlich/rötl. unter Schale", u"schwach anlaufend", u"stark anlaufend"};
static_assert(std::size(zeilenApFlFarbe) == 6);

constexpr QStringView zeilenApFlStrukt[] = {
    u"feinzellig", u"mittelfein", u"grobzellig", u"locker", u"mittelfest", u"fest", u"trocken", u"mäßig saftig",
    u"saftig", u"mürbe", u"mehlig"};
static_assert(std::size(zeilenApFlStrukt) == 11);

constexpr QStringView zeilenApFlDuft[] = {
    u"säuerlich", u"parfümiert", u"coxartig", u"nicht vorhanden", u"angenehm", u"sortentypisch"};
static_assert(std::size(zeilenApFlDuft) == 6);

constexpr QStringView zeilenApGeschmack[] = {
    u"schwach süß", u"süß", u"süßsauer", u"schwach säuerlich", u"weinsäuerlich", u"feinsäuerlich", u"sauer",
    u"kaum aromatisch", u"aromatisch", u"stark aromatisch", u"edelweinig", u"nußartig", u"parfümiert", u"fad",
    u"wohlschmeckend", u"würzig"};
static_assert(std::size(zeilenApGeschmack) == 16);

constexpr QStringView zeilenObWuchs[] = {
    u"früh austreibend", u"mittelspät austreibend", u"spät austreibend", u"schwach", u"mittelstark", u"stark",
    u"kriechend", u"aufrecht", u"steil aufrecht", u"überhängend", u"strauchförmig", u"buschförmig", u"baumförmig",
    u"schmalwüchsig", u"breitwüchsig", u"locker aufgebaut", u"dicht aufgebaut", u"kompakt", u"sparrig",
    u"kleinkronig", u"großkronig", u"kugelförmig", u"pyramidal", u"breitkegelförmig", u"hängende Leitäste",
    u"flache Leitäste", u"schräg aufwärts gerichtete Leitäste", u"steile Leitäste", u"waagrechte Leitäste",
    u"hängende Seitenäste", u"waagrechte Seitenäste", u"steile Seitenäste", u"gering verkahlend",
    u"mittelstark verkahlend", u"stark verkahlend", u"geringe Verzweigung", u"mittelstarke Verzweigung",
    u"starke Verzweigung", u"geringe Seitentriebbildung", u"mittelstarke Seitentriebbildung",
    u"starke Seitentriebbildung", u"geringe Jungrutenbildung", u"mittelstarke Jungrutenbildung",
    u"starke Jungrutenbildung", u"geringe Basistriebbildung", u"mittelstarke Basistriebbildung",
    u"starke Basistriebbildung", u"geringe Wurzelschoßerbildung", u"mittelstarke Wurzelschoßerbildung",
    u"starke Wurzelschoßerbildung", u"geringe Ausläuferbildung", u"mittelstarke Ausläuferbildung",
    u"starke Ausläuferbildung"};
static_assert(std::size(zeilenObWuchs) == 53);

constexpr QStringView zeilenObBlatt[] = {
    u"glänzend", u"matt", u"klein", u"mittelgroß", u"groß", u"dünn", u"dick", u"ganzrandig", u"gesägt", u"gezähnt",
    u"gekerbt", u"stumpf", u"spitz", u"schmal oval", u"oval", u"lang oval", u"rund", u"länglich", u"gefiedert",
    u"gelappt", u"gewölbt", u"gefaltet", u"hellgrün", u"grün", u"dunkelgrün", u"rotgrün", u"gering behaart",
    u"mittelstark behaart", u"stark behaart", u"Unterseite behaart", u"silbergraue Unterseite"};
static_assert(std::size(zeilenObBlatt) == 31);

constexpr QStringView zeilenObFruhol[] = {
    u"endständig", u"achselständig", u"einjähriger Langtrieb", u"zweijähriger Langtrieb", u"mehrjähriger Langtrieb",
    u"Langtrieb", u"einjähriger Kurztrieb", u"zweijähriger Kurztrieb", u"mehrjähriger Kurztrieb", u"Kurztrieb",
    u"einjähriges Holz", u"zweijähriges Holz", u"mehrjähriges Holz", u"mehrjähriger Fruchtspieß",
    u"mehrjähriger Ringelspieß", u"Bukettrieb", u"einjährige Rute", u"zweijährige Rute", u"überhängend", u"kurz",
    u"lang"};
static_assert(std::size(zeilenObFruhol) == 21);

constexpr QStringView zeilenObTrirut[] = {
    u"lang", u"kurz", u"glatt", u"rauh", u"glänzend", u"dick", u"dünn", u"stachellos", u"gering bestachelt",
    u"mittelstark bestachelt", u"stark bestachelt", u"stachellose Triebspitze", u"gering bestachelte Triebspitze",
    u"gering behaart", u"mittelstark behaart", u"stark behaart", u"punktiert", u"stark punktiert",
    u"wenig  Lentizellen", u"viele Lentizellen", u"gelblich", u"graugrün", u"grün", u"rötlich", u"rötlichbraun",
    u"rötlichviolett", u"grau", u"graubraun", u"hellbraun", u"braun", u"dunkelbraun", u"braunrot"};
static_assert(std::size(zeilenObTrirut) == 32);

constexpr QStringView zeilenObUnterlage[] = {
    u"schwachwachsende Unterlage", u"mittelstarkwachsende Unterlage", u"starkwachsende Unterlage", u"Sämling",
    u"Sorbus aucuparia", u"Juglans regia", u"Juglans nigra", u"Cornus mas", u"Quitte",
    u"Unverträglichkeit gegenüber Quitte", u"auf Quitte mit Zwischenveredlung", u"Zwischenveredlung notwendig",
    u"Stammbildner  notwendig"};
static_assert(std::size(zeilenObUnterlage) == 13);

constexpr QStringView zeilenObKrankh[] = {
    u"Schorf", u"Blattschorf", u"Fruchtschorf", u"Mehltau", u"Obstbaumkrebs", u"Monilia 6", u"Fruchtmonilia",
    u"Zweigmonilia", u"Botrytis", u"Fruchtfäulen", u"Blattfallkrankheit", u"Rutenkrankheit 12", u"Wurzelpilze",
    u"Rote Wurzelfäule", u"Rhizomfäule", u"Rost", u"Säulenrost", u"Schrotschußkrankheit", u"Kragenfäule 19",
    u"Kräuselkrankheit", u"Triebsterben", u"Rotpustelkrankheit", u"Gallmilben", u"Apfelwickler", u"Blattläuse 25",
    u"Blütenstecher", u"Obstbaumspinnmilbe", u"Spinnmilbe", u"Blutlaus", u"Schalenwickler",
    u"Kirschfruchtfliege 31", u"Pflaumenwickler", u"Pflaumensägewespe", u"Johannisbeergallmilbe",
    u"Brombeergallmilbe", u"Scharka 36", u"Nekrotisches Ringfleckenvirus", u"Flachästigkeit", u"Rauhschaligkeit",
    u"Triebsucht", u"Steinfrüchtigkeit 41", u"Feuerbrand", u"Bakterienbrand", u"Chlorosen", u"Glasigkeit",
    u"Gummifluß 46"};
static_assert(std::size(zeilenObKrankh) == 46);

constexpr QStringView zeilenObResistenz[] = {
    u"Schorf", u"Mehltau", u"Obstbaumkrebs", u"Monilia", u"Botrytis", u"Blattfallkrankheit", u"Rutenkrankheit",
    u"Scharka", u"Nekrotisches Ringfleckenvirus", u"Feuerbrand", u"Bakterienbrand"};
static_assert(std::size(zeilenObResistenz) == 11);

constexpr QStringView zeilenObBoden[] = {
    u"mäßig trocken", u"trocken", u"mäßig frisch", u"frisch", u"leicht", u"mittelschwer", u"schwer", u"durchlässig",
    u"sandig", u"gute Wasserführung", u"niedriger pH-Wert", u"mittlerer pH-Wert", u"hoher pH-Wert"};
static_assert(std::size(zeilenObBoden) == 13);

constexpr QStringView zeilenObKlima[] = {
    u"geeignet für Höhenlagen", u"ungeeignet für Höhenlagen", u"kühl", u"gemäßigt", u"warm", u"schattig",
    u"halbschattig", u"sonnig", u"geschützt", u"geeignet für frostgefährdete Gebiete",
    u"ungeeignet für frostgefährdete Gebiete", u"geeignet für Windlagen", u"ungeeignet für Windlagen",
    u"Weinbauklima"};
static_assert(std::size(zeilenObKlima) == 14);

constexpr QStringView zeilenObNaehrstoff[] = {
    u"gering", u"mäßig", u"hoch"};
static_assert(std::size(zeilenObNaehrstoff) == 3);

constexpr QStringView zeilenObEignung[] = {
    u"Erwerbsobstbau", u"Liebhaberanbau", u"Streuobstanbau"};
static_assert(std::size(zeilenObEignung) == 3);

constexpr QStringView zeilenObErziform[] = {
    u"geeignet für alle Erziehungsformen", u"Kronenerziehung", u"Halbstamm", u"Hochstamm", u"Hecke", u"Spindel",
    u"Strauch", u"Spalier"};
static_assert(std::size(zeilenObErziform) == 8);

constexpr QStringView zeilenObShnitt[] = {
    u"geringer Aufwand", u"hoher Aufwand", u"Verjüngungsschnitt empfehlenswert", u"bevorzugt Sommerschnitt",
    u"bevorzugt Winterschnitt", u"regelmäßiges Auslichten notwendig", u"Fruchtausdünnung empfehlenswert",
    u"Formieren notwendig", u"starker Rückschnitt empfehlenswert", u"strenger Fruchtholzschnitt",
    u"schwacher Rückschnitt empfehlenswert", u"Rückschnitt um Verzweigung zu fördern",
    u"Rückschnitt des Mitteltriebes"};
static_assert(std::size(zeilenObShnitt) == 13);

constexpr QStringView zeilenObPflshtz[] = {
    u"Empfindlich gegen Kupfer", u"empfindlich gegen Schwefel", u"aktuelle Zulassungssituation beachten"};
static_assert(std::size(zeilenObPflshtz) == 3);

constexpr QStringView zeilenObFroemf[] = {
    u"gering", u"hoch", u"sehr hoch"};
static_assert(std::size(zeilenObFroemf) == 3);

constexpr QStringView zeilenObBluete[] = {
    u"sehr frühblühend", u"frühblühend", u"mittelfrühblühend", u"mittelspätblühend", u"spätblühend",
    u"sehr spätblühend", u"blüht unter dem Laub", u"blüht auf Laubhöhe", u"blüht über dem Laub"};
static_assert(std::size(zeilenObBluete) == 9);

constexpr QStringView zeilenObFrustan[] = {
    u"einzeln", u"büschelartig", u"kurze Trauben", u"mittellange Trauben", u"lange Trauben", u"kleine Dolden",
    u"mittelgroße Dolden", u"große Dolden", u"locker aufgebaut", u"dicht aufgebaut"};
static_assert(std::size(zeilenObFrustan) == 10);

constexpr QStringView zeilenObBefru[] = {
    u"diploid", u"triploid", u"schwach parthenocarp", u"parthenocarp", u"selbstfruchtbar",
    u"teilweise selbstfruchtbar", u"selbstunfruchtbar", u"zwittrig", u"einhäusig", u"zweihäusig",
    u"Fremdbefruchtung verbessert Fruchtgröße / Fruchtansatz", u"Entwicklung der Frucht ohne Bestäubung (Apomixis)"};
static_assert(std::size(zeilenObBefru) == 12);

constexpr QStringView zeilenObBefrsor[] = {
    u"geeignet", u"bedingt geeignet", u"ungeeignet"};
static_assert(std::size(zeilenObBefrsor) == 3);

constexpr QStringView zeilenObAltrnaz[] = {
    u"gering", u"mittelstark", u"stark", u"sehr stark"};
static_assert(std::size(zeilenObAltrnaz) == 4);

constexpr QStringView zeilenObFrufar[] = {
    u"weißlichgrün", u"hellgrün", u"grün", u"dunkelgrün", u"grüngelb", u"gelb", u"orange", u"hellrot", u"rot",
    u"dunkelrot", u"rotbraun", u"violett", u"hellblau", u"blau", u"dunkelblau", u"blauschwarz", u"hellbraun",
    u"braun", u"dunkelbraun", u"dunkelbraunviolett", u"schwarzbraun", u"schwarzrot", u"schwarz"};
static_assert(std::size(zeilenObFrufar) == 23);

constexpr QStringView zeilenObGrundfarb[] = {
    u"weißlich", u"grün", u"grünlich", u"grüngelb", u"gelb", u"gelblich", u"rötlichgelb", u"bräunlich",
    u"siehe Fruchtfarbe"};
static_assert(std::size(zeilenObGrundfarb) == 9);

constexpr QStringView zeilenObDeckfarb[] = {
    u"gelblich", u"gelb", u"orange", u"hellrot", u"rötlich", u"rot", u"dunkelrot", u"rotbraun", u"violett",
    u"zimtfarben", u"gesprenkelt", u"geflammt", u"marmoriert", u"verwaschen", u"siehe Fruchtfarbe"};
static_assert(std::size(zeilenObDeckfarb) == 15);

constexpr QStringView zeilenObSchale[] = {
    u"glatt", u"rauh", u"weich", u"hart", u"fest", u"zäh", u"dünn", u"mitteldick", u"dick", u"gering wachsig",
    u"mittelstark wachsig", u"stark wachsig", u"stumpf", u"glänzend", u"wenig Lentizellen", u"viele Lentizellen",
    u"auffällige Lentizellenfärbung", u"gering berostet", u"mittelstark berostet", u"stark berostet",
    u"gering beduftet", u"mittelstark beduftet", u"stark beduftet", u"gering behaart", u"mittelstark behaart",
    u"stark behaart", u"gering flaumig", u"mittelstark flaumig", u"stark flaumig", u"matt", u"stumpf", u"saftig",
    u"mittelstark bereift", u"bereift"};
static_assert(std::size(zeilenObSchale) == 34);

constexpr QStringView zeilenObFruflei[] = {
    u"farblos", u"weißlich", u"weißgelblich", u"cremefarben", u"gelblich", u"gelblichweiß", u"gelb",
    u"grünlichweiß", u"grünlich", u"grün", u"orange", u"rötlichweiß", u"rötlich", u"rot", u"dunkelrot", u"bläulich",
    u"blau", u"dunkelblau", u"rötlichbraun", u"braun", u"schwarz", u"weich", u"mittelfest", u"fest", u"zäh",
    u"mehlig", u"feinzellig", u"grobzellig", u"knorpelig", u"faserig", u"wenig saftig", u"mäßig saftig",
    u"sehr saftig"};
static_assert(std::size(zeilenObFruflei) == 33);

constexpr QStringView zeilenObFrufor[] = {
    u"kleinfrüchtig", u"mittelgroßfrüchtig", u"großfrüchtig", u"flachkugelig", u"kugelig", u"eiförmig",
    u"hochgebaut", u"walzenförmig", u"glockenförmig", u"mittelbauchig", u"kegelförmig", u"birnenförmig",
    u"apfelförmig", u"flaschenförmig", u"zapfenförmig", u"herzförmig", u"länglich", u"oval", u"ohne Naht",
    u"mit flacher Naht", u"mit mitteltiefer Naht", u"mit tiefer Naht", u"leicht kantig", u"kantig", u"unförmig"};
static_assert(std::size(zeilenObFrufor) == 25);

constexpr QStringView zeilenObGesmak[] = {
    u"süßlich", u"süß", u"sehr süß", u"süßsäuerlich", u"säuerlich", u"sauer", u"sehr sauer", u"weinsäuerlich",
    u"feinsäuerlich", u"kaum aromatisch", u"aromatisch", u"stark aromatisch", u"nußartig", u"parfümiert", u"fad",
    u"würzig", u"herb", u"bitterstofffrei", u"schmelzend", u"wässrig"};
static_assert(std::size(zeilenObGesmak) == 20);

constexpr QStringView zeilenObErtrag[] = {
    u"früh", u"mittelspät", u"spät", u"gering", u"mittelhoch", u"hoch"};
static_assert(std::size(zeilenObErtrag) == 6);

constexpr QStringView zeilenObErnte[] = {
    u"einmalig", u"mehrmalig", u"Handernte", u"maschinelle Ernte möglich", u"schütteln", u"gefroren ernten"};
static_assert(std::size(zeilenObErnte) == 6);

constexpr QStringView zeilenObTranspemp[] = {
    u"gering", u"mäßig", u"hoch"};
static_assert(std::size(zeilenObTranspemp) == 3);

constexpr QStringView zeilenObVerwend[] = {
    u"häusliche Verwendung", u"industrielle Verwendung", u"Frischobst", u"Konfitüre", u"Saft", u"Konserven",
    u"Eindünsten", u"Fruchtwein", u"Most", u"Backobst", u"Kochobst", u"Trockenobst", u"Tiefkühlobst", u"Brennobst",
    u"Farbstoffgewinnung", u"Duftfrucht"};
static_assert(std::size(zeilenObVerwend) == 16);

constexpr QStringView zeilenObLageig[] = {
    u"nicht geeignet", u"kurzfristig", u"längerfristig", u"geeignet", u"gut geeignet"};
static_assert(std::size(zeilenObLageig) == 5);

constexpr QStringView zeilenObLagkrank[] = {
    u"keine", u"Früchte werden schnell teigig", u"Schalenbräune", u"Fleischbräune", u"Grünfäule", u"Bitterfäule",
    u"Trockenfäule", u"Stippe", u"Glasigkeit", u"Welkeschäden", u"empfindlich für hohen CO2-Gehalt",
    u"empfindlich gegen zu tiefe Temperaturen", u"Nachlagerung notwendig"};
// clang-format on
static_assert(std::size(zeilenObLagkrank) == 13);

/// A vocabulary that begins with another one.
template<size_t N, size_t M>
constexpr std::array<QStringView, N + M> erweitert(const QStringView (&zeilen)[N], const QStringView (&weitere)[M])
{
    std::array<QStringView, N + M> alle;
    std::ranges::copy(weitere, std::ranges::copy(zeilen, alle.begin()).out);
    return alle;
}
constexpr auto zeilenFhLaubfarbe = erweitert(zeilenStBlattfarbe, {u"orange", u"rot", u"bläulich rot"});
static_assert(std::size(zeilenFhLaubfarbe) == 17);

constexpr QStringView zeilenFhPflanzzeit[] = {u"Frühjahr", u"Sommer", u"Herbst"};
static_assert(std::size(zeilenFhPflanzzeit) == 3);

constexpr QStringView zeilenFhPflege[] = {u"gering", u"mittel", u"hoch"};
static_assert(std::size(zeilenFhPflege) == 3);

// clang-format off
constexpr QStringView zeilenFhSymbolik[] = {
    u"Grabbeet, eigtl. Grab (GB)", u"GB-Bodendecker", u"GB-Gruppe", u"GB-Einfassungspflanze",
    u"GB-Wechselbepflanzung", u"GB-Gerüstpflanze", u"GB-Schale", u"GB-Vase", u"GB-Solitär",
    u"Grabfeld, eigtl. Friedhof (GF)", u"GF-Bodendecker", u"GF-Gruppe", u"GF-Solitär", u"GF-Wechselbepflanzung",
    u"GF-Hecke", u"GF-Kübelpflanze"};
// clang-format on
static_assert(std::size(zeilenFhSymbolik) == 16);

constexpr int farbenBluetenfarbeRGB[] = {0xFFFFFF, 0x00FFFF, 0x00AFFF, 0xAFAFFF, 0x0000FF, 0x2814FF,
                                         0xAF00FF, 0xFF00AF, 0xFF00FF, 0xFF0000, 0x0058FF, 0xAFAFAF};
static_assert(std::size(farbenBluetenfarbeRGB) == 12);

constexpr int farbenFruchtfarbeRGB[] = {0xFFFFFF, 0x00FFFF, 0x00AFFF, 0xAFAFFF, 0x0000FF, 0xAF00FF, 0xFF00AF,
                                        0xFF00FF, 0xFF0000, 0x0058FF, 0xAFAFAF, 0x00FF00, 0x000000};
static_assert(std::size(farbenFruchtfarbeRGB) == 13);

constexpr int farbenToFruchtfarbeRGB[] = {0xFFFFFF, 0x00FFFF, 0x00AFFF, 0xAFAFFF, 0x0000FF, 0xAF00FF,
                                          0xFF00FF, 0xFF00AF, 0xFF0000, 0x0058FF, 0xAFAFAF, 0x000000};
static_assert(std::size(farbenToFruchtfarbeRGB) == 12);

} // namespace

constinit const Werteliste WL_Monate{monatsnamen};
constinit const Werteliste WL_Licht{zeilenLicht};
constinit const Werteliste WL_Bodenart{zeilenBodenart};
constinit const Werteliste WL_Bodenfeuchte{zeilenBodenfeuchte};
constinit const Werteliste WL_Kalk{zeilenKalk};
constinit const Werteliste WL_Naehrstoff{zeilenNaehrstoff};
constinit const Werteliste WL_Geselligkeit{zeilenGeselligkeit};
constinit const Werteliste WL_Lebensbereich{zeilenLebensbereich};
constinit const Werteliste WL_Pflanzenart{zeilenPflanzenart};
constinit const Werteliste WL_Urteil{zeilenUrteil};
constinit const Werteliste WL_Bluetenfarbe{zeilenBluetenfarbe};
constinit const Werteliste WL_Fruchtfarbe{zeilenFruchtfarbe};
constinit const Werteliste WL_Ausbildung{zeilenAusbildung};
constinit const Werteliste WL_StBlattfarbe{zeilenStBlattfarbe};
constinit const Werteliste WL_ToPflanztyp{zeilenToPflanztyp};
constinit const Werteliste WL_ToBlattfarbe{zeilenToBlattfarbe};
constinit const Werteliste WL_ToFruchtfarbe{zeilenToFruchtfarbe};
constinit const Werteliste WL_ToTageslaenge{zeilenToTageslaenge};
constinit const Werteliste WL_ToHWasserstand{zeilenToHWasserstand};
constinit const Werteliste WL_ToHPh{zeilenToHPh};
constinit const Werteliste WL_ToHVerwendung{zeilenToHVerwendung};
constinit const Werteliste WL_ToKrankheit{zeilenToKrankheit};
constinit const Werteliste WL_ToNachduengung{zeilenToNachduengung};
constinit const Werteliste WL_ToWuchsform{zeilenToWuchsform};
constinit const Werteliste WL_ToHaltbarkeit{zeilenToHaltbarkeit};
constinit const Werteliste WL_ToVerwendung{zeilenToVerwendung};
constinit const Werteliste WL_GeLaubfarbe{zeilenGeLaubfarbe};
constinit const Werteliste WL_GeGrobeinteilung{zeilenGeGrobeinteilung};
constinit const Werteliste WL_GeGenuss{zeilenGeGenuss};
constinit const Werteliste WL_GeBesMerkmale{zeilenGeBesMerkmale};
constinit const Werteliste WL_GeBodenart{zeilenGeBodenart};
constinit const Werteliste WL_GeBodenfeuchte{zeilenGeBodenfeuchte};
constinit const Werteliste WL_GeLaubzeit{zeilenGeLaubzeit};
constinit const Werteliste WL_GeWurzelform{zeilenGeWurzelform};
constinit const Werteliste WL_GeWurzelempf{zeilenGeWurzelempf};
constinit const Werteliste WL_GeBodenPh{zeilenGeBodenPh};
constinit const Werteliste WL_GeBesEigenschaften{zeilenGeBesEigenschaften};
constinit const Werteliste WL_GeGroesse{zeilenGeGroesse};
constinit const Werteliste WL_GeHabitus{zeilenGeHabitus};
constinit const Werteliste WL_GeWuchs{zeilenGeWuchs};
constinit const Werteliste WL_GeVerwendung{zeilenGeVerwendung};
constinit const Werteliste WL_ApHaltbark{zeilenApHaltbark};
constinit const Werteliste WL_ApFruchtgr{zeilenApFruchtgr};
constinit const Werteliste WL_ApFormL{zeilenApFormL};
constinit const Werteliste WL_ApFormQ{zeilenApFormQ};
constinit const Werteliste WL_ApFruchtrel{zeilenApFruchtrel};
constinit const Werteliste WL_ApAussehen{zeilenApAussehen};
constinit const Werteliste WL_ApDruck{zeilenApDruck};
constinit const Werteliste WL_ApGrundfarbe{zeilenApGrundfarbe};
constinit const Werteliste WL_ApDeckfarbe{zeilenApDeckfarbe};
constinit const Werteliste WL_ApDfArt{zeilenApDfArt};
constinit const Werteliste WL_ApDfAusdehn{zeilenApDfAusdehn};
constinit const Werteliste WL_ApRost{zeilenApRost};
constinit const Werteliste WL_ApReif{zeilenApReif};
constinit const Werteliste WL_ApSchPunkt{zeilenApSchPunkt};
constinit const Werteliste WL_ApKGrube{zeilenApKGrube};
constinit const Werteliste WL_ApKRelief{zeilenApKRelief};
constinit const Werteliste WL_ApKUmgebung{zeilenApKUmgebung};
constinit const Werteliste WL_ApKBerost{zeilenApKBerost};
constinit const Werteliste WL_ApKGroesse{zeilenApKGroesse};
constinit const Werteliste WL_ApKOeffnung{zeilenApKOeffnung};
constinit const Werteliste WL_ApKBlaetter{zeilenApKBlaetter};
constinit const Werteliste WL_ApStLaenge{zeilenApStLaenge};
constinit const Werteliste WL_ApStBesond{zeilenApStBesond};
constinit const Werteliste WL_ApStGrube{zeilenApStGrube};
constinit const Werteliste WL_ApStBerost{zeilenApStBerost};
constinit const Werteliste WL_ApKHoehle{zeilenApKHoehle};
constinit const Werteliste WL_ApKRoehre{zeilenApKRoehre};
constinit const Werteliste WL_ApKhGroesse{zeilenApKhGroesse};
constinit const Werteliste WL_ApGBuendel{zeilenApGBuendel};
constinit const Werteliste WL_ApAHoehle{zeilenApAHoehle};
constinit const Werteliste WL_ApKKammern{zeilenApKKammern};
constinit const Werteliste WL_ApKwForm{zeilenApKwForm};
constinit const Werteliste WL_ApKwGroesse{zeilenApKwGroesse};
constinit const Werteliste WL_ApKwRisse{zeilenApKwRisse};
constinit const Werteliste WL_ApKAnzahl{zeilenApKAnzahl};
constinit const Werteliste WL_ApKQualit{zeilenApKQualit};
constinit const Werteliste WL_ApKFarbe{zeilenApKFarbe};
constinit const Werteliste WL_ApKLaenge{zeilenApKLaenge};
constinit const Werteliste WL_ApSchale{zeilenApSchale};
constinit const Werteliste WL_ApFlFarbe{zeilenApFlFarbe};
constinit const Werteliste WL_ApFlStrukt{zeilenApFlStrukt};
constinit const Werteliste WL_ApFlDuft{zeilenApFlDuft};
constinit const Werteliste WL_ApGeschmack{zeilenApGeschmack};
constinit const Werteliste WL_ApLiteratur{werkeDerLiteratur};
constinit const Werteliste WL_ObWuchs{zeilenObWuchs};
constinit const Werteliste WL_ObBlatt{zeilenObBlatt};
constinit const Werteliste WL_ObFruhol{zeilenObFruhol};
constinit const Werteliste WL_ObTrirut{zeilenObTrirut};
constinit const Werteliste WL_ObUnterlage{zeilenObUnterlage};
constinit const Werteliste WL_ObKrankh{zeilenObKrankh};
constinit const Werteliste WL_ObResistenz{zeilenObResistenz};
constinit const Werteliste WL_ObBoden{zeilenObBoden};
constinit const Werteliste WL_ObKlima{zeilenObKlima};
constinit const Werteliste WL_ObNaehrstoff{zeilenObNaehrstoff};
constinit const Werteliste WL_ObEignung{zeilenObEignung};
constinit const Werteliste WL_ObErziform{zeilenObErziform};
constinit const Werteliste WL_ObShnitt{zeilenObShnitt};
constinit const Werteliste WL_ObPflshtz{zeilenObPflshtz};
constinit const Werteliste WL_ObFroemf{zeilenObFroemf};
constinit const Werteliste WL_ObBluete{zeilenObBluete};
constinit const Werteliste WL_ObFrustan{zeilenObFrustan};
constinit const Werteliste WL_ObBefru{zeilenObBefru};
constinit const Werteliste WL_ObBefrsor{zeilenObBefrsor};
constinit const Werteliste WL_ObAltrnaz{zeilenObAltrnaz};
constinit const Werteliste WL_ObFrufar{zeilenObFrufar};
constinit const Werteliste WL_ObGrundfarb{zeilenObGrundfarb};
constinit const Werteliste WL_ObDeckfarb{zeilenObDeckfarb};
constinit const Werteliste WL_ObSchale{zeilenObSchale};
constinit const Werteliste WL_ObFruflei{zeilenObFruflei};
constinit const Werteliste WL_ObFrufor{zeilenObFrufor};
constinit const Werteliste WL_ObGesmak{zeilenObGesmak};
constinit const Werteliste WL_ObErtrag{zeilenObErtrag};
constinit const Werteliste WL_ObErnte{zeilenObErnte};
constinit const Werteliste WL_ObTranspemp{zeilenObTranspemp};
constinit const Werteliste WL_ObVerwend{zeilenObVerwend};
constinit const Werteliste WL_ObLageig{zeilenObLageig};
constinit const Werteliste WL_ObLagkrank{zeilenObLagkrank};
constinit const Werteliste WL_FhPflanzzeit{zeilenFhPflanzzeit};
constinit const Werteliste WL_FhPflege{zeilenFhPflege};
constinit const Werteliste WL_FhSymbolik{zeilenFhSymbolik};
constinit const Werteliste WL_FhLaubfarbe{zeilenFhLaubfarbe};

constinit const Farbliste WL_BluetenfarbeRGB{farbenBluetenfarbeRGB};
constinit const Farbliste WL_FruchtfarbeRGB{farbenFruchtfarbeRGB};
constinit const Farbliste WL_ToFruchtfarbeRGB{farbenToFruchtfarbeRGB};
