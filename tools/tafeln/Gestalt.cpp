#include "Gestalt.h"

#include <algorithm>

namespace {

using enum Aufbau;
using B = Blattform;
using F = Bluete;
using S = Stand;
constexpr auto Glatt = Rand::Glatt;
constexpr auto Saege = Rand::Gesaegt;
constexpr auto Kerb = Rand::Gekerbt;
constexpr auto Welle = Rand::Gewellt;
constexpr auto Lappen = Rand::Gelappt;
constexpr auto Ohne = Adern::Keine;
constexpr auto Fieder = Adern::Fieder;
constexpr auto Fuss = Adern::Hand;
constexpr auto Bogen = Adern::Bogen;

constexpr Gestalt gattungen[] = {
    {u"Abutilon", NachWuchsform, {B::Ahorn, Glatt, Fuss, .95}, 10, F::Glocke, S::Haengend, 5, u"orange"},
    {u"Abutilon megapotamicum", Haenge, {B::Herz, Saege, Fuss, .62}, 7, F::Laterne, S::Haengend, 4, u"gelb", u"rot"},
    {u"Acalypha", Strauch, {B::Eiform, Saege, Fieder, 1.05}, 13, F::Keine, S::Kaetzchen, 22, u"rot"},
    {u"Achimenes", Haenge, {B::Eiform, Saege, Fieder, .9}, 6, F::Trompete, S::Einzeln, 4.5, u"violett"},
    {u"Adiantum", Farn, {B::Faecher, Kerb, Ohne, .9}, 2.4},
    {u"Aechmea", Trichter, {}, 45, F::Keine, S::Mitte, 15, u"rosa", u"violett"},
    {u"Aeschynanthus", Haenge, {B::Eiform, Glatt, Fieder, .8}, 4, F::Roehre, S::Einzeln, 5, u"rot"},
    {u"Agapanthus", Baender, {}, 45, F::Lilie, S::Schaftdolde, 4, u"blau"},
    {u"Aglaonema", Grundblatt, {B::Elliptisch, Glatt, Fieder, .95}, 22},
    {u"Allamanda", Kletter, {B::Elliptisch, Glatt, Fieder, .85}, 11, F::Trichter, S::Einzeln, 9, u"gelb"},
    {u"Alocasia", Grundblatt, {B::Pfeil, Welle, Fuss, .95}, 32},
    {u"Aloe", Baender, {}, 40, F::Roehre, S::Schafttraube, 3, u"gelb"},
    {u"Ananas", Baender, {}, 60, F::Keine, S::Mitte, 14, {}, {}, Frucht::Ananas},
    {u"Anthurium", Grundblatt, {B::Herz, Glatt, Fuss, .82}, 24, F::Spatha, S::Schaft, 10, u"rot"},
    {u"Anthurium scherzerianum", Grundblatt, {B::Lanzett, Glatt, Fieder, 1.7}, 18, F::Spatha, S::Schaft, 7, u"rot"},
    {u"Aphelandra", Eintrieb, {B::Elliptisch, Glatt, Fieder, 1}, 18, F::Keine, S::Kerze, 14, u"gelb"},
    {u"Araucaria", Etagen, {B::Nadel}, 1.2},
    {u"Ardisia", Eintrieb, {B::Elliptisch, Kerb, Fieder, .8}, 10, F::Stern, S::Keiner, 1.2, {}, {}, Frucht::Beere},
    {u"Argyranthemum", NachWuchsform, {B::Elliptisch, Lappen, Ohne, .9}, 6, F::Korb, S::Einzeln, 5, u"weiß"},
    {u"Asparagus", Farn, {B::Nadel, Glatt, Ohne, 1}, 1.6, F::Keine, S::Keiner, 1, {}, {}, Frucht::Beere},
    {u"Aspidistra", Grundblatt, {B::Lanzett, Glatt, Bogen, 1.35}, 42},
    {u"Asplenium", Trichter, {B::Zunge, Welle, Fieder, 1}, 50},
    {u"Beaucarnea", Schopf, {}, 75},
    {u"Begonia", Kraut, {B::Herz, Saege, Fuss, .95, true}, 8, F::Begonie, S::Einzeln, 4},
    {u"Begonia-Elatior", Kraut, {B::Herz, Saege, Fuss, .95, true}, 8, F::Rose, S::Einzeln, 5, u"rosa"},
    {u"Begonia-Knollen", Kraut, {B::Herz, Saege, Fuss, .8, true}, 12, F::Rose, S::Einzeln, 8, u"orange"},
    {u"Begonia maculata", Strauch, {B::Pfeil, Glatt, Fieder, .9, true}, 18, F::Begonie, S::Haengend, 3, u"rosa"},
    {u"Begonia-Rex", Grundblatt, {B::Herz, Welle, Fuss, 1.15, true}, 18, F::Begonie, S::Keiner, 2.5, u"rosa"},
    {u"Begonia-Semperflorens", Kraut, {B::Rund, Glatt, Fuss, .85, true}, 5, F::Begonie, S::Einzeln, 2.6, u"rot"},
    {u"Bidens", Haenge, {B::Lanzett, Lappen, Ohne, 1.6}, 5, F::Korb, S::Einzeln, 3.2, u"gelb"},
    {u"Blechnum", Palmfarn, {B::Lanzett, Glatt, Ohne, 1}, 10},
    {u"Bougainvillea", Kletter, {B::Eiform, Glatt, Fieder, .9}, 6, F::Drilling, S::Dolde, 4, u"purpur"},
    {u"Brachyscome", Polster, {B::Lanzett, Lappen, Ohne, 1.4}, 4, F::Korb, S::Einzeln, 2.8, u"lila"},
    {u"Browallia", Kraut, {B::Eiform, Glatt, Fieder, .8}, 5, F::Rad, S::Einzeln, 4, u"blau", u"weiß"},
    {u"Brunfelsia", Strauch, {B::Elliptisch, Glatt, Fieder, .8}, 9, F::Rad, S::Einzeln, 5, u"violett"},
    {u"Caladium", Grundblatt, {B::Pfeil, Glatt, Fuss, 1.05}, 24},
    {u"Calceolaria", Rosette, {B::Eiform, Kerb, Fieder, 1}, 12, F::Pantoffel, S::Ball, 4, u"gelb"},
    {u"Camellia", Strauch, {B::Elliptisch, Saege, Fieder, .95}, 9, F::Rose, S::Einzeln, 9, u"rot"},
    {u"Campanula", Haenge, {B::Herz, Saege, Ohne, .9}, 3.4, F::Glockenstern, S::Einzeln, 3.6, u"blau"},
    {u"Capsicum", Kraut, {B::Eiform, Glatt, Fieder, .75}, 6, F::Stern, S::Keiner, 2, {}, {}, Frucht::Schote},
    {u"Catharanthus", Kraut, {B::Verkehrtei, Glatt, Fieder, .8}, 6, F::RadMitAuge, S::Einzeln, 4, u"rosa"},
    {u"Cattleya", Grundblatt, {B::Zunge, Glatt, Ohne, 1}, 22, F::Cattleya, S::Schaft, 13, u"lila"},
    {u"Ceropegia", Haenge, {B::Herz, Glatt, Fuss, .95}, 2},
    {u"Chamaedorea", Palme, {B::Lanzett, Glatt, Bogen, .9}, 60},
    {u"Chlorophytum", Baender, {}, 35, F::Stern, S::Rispe, 1.8, u"weiß"},
    {u"Chrysanthemum", Kraut, {B::Elliptisch, Lappen, Fieder, 1.1}, 6, F::Gefuellt, S::Einzeln, 5, u"gelb"},
    {u"Cissus", Haenge, {B::Drilling, Saege, Fieder, .9}, 8},
    {u"Citrus", Baum, {B::Elliptisch, Glatt, Fieder, .85}, 6, F::Stern, S::Einzeln, 2.4, u"weiß", {}, Frucht::Zitrus},
    {u"Clivia", Baender, {}, 45, F::Lilie, S::Schaftdolde, 6.5, u"orange"},
    {u"Codiaeum", Eintrieb, {B::Lanzett, Welle, Fieder, 1.9}, 20},
    {u"Coffea", Eintrieb, {B::Elliptisch, Welle, Fieder, .9}, 13, F::Stern, S::Einzeln, 2.4, u"weiß"},
    {u"Cordyline", Schopf, {B::Lanzett}, 45},
    {u"Crassula", Strauch, {B::Spatel, Glatt, Ohne, 1.3}, 4.5, F::Stern, S::Dolde, 1.3, u"weiß"},
    {u"Crossandra", Strauch, {B::Elliptisch, Welle, Fieder, .7}, 9, F::Faecher, S::Kerze, 8, u"orange"},
    {u"Ctenanthe", Grundblatt, {B::Lanzett, Glatt, Fieder, 1.25}, 34},
    {u"Cycas", Palmfarn, {B::Nadel, Glatt, Ohne, 1}, 14},
    {u"Cyclamen", Rosette, {B::Herz, Kerb, Fuss, 1}, 9, F::Alpenveilchen, S::Schaft, 6, u"rosa"},
    {u"Cymbidium", Baender, {}, 60, F::Cymbidie, S::Rispe, 8, u"gelb"},
    {u"Cyperus", Schirm, {}, 20},
    {u"Dendrobium", Eintrieb, {B::Lanzett, Glatt, Bogen, 1.2}, 10, F::Cymbidie, S::Einzeln, 7, u"lila"},
    {u"Dieffenbachia", Eintrieb, {B::Elliptisch, Glatt, Fieder, 1.1}, 32},
    {u"Dionaea", Fallen, {}, 6, F::Rad, S::Schaftdolde, 2, u"weiß"},
    {u"Dracaena", Schopf, {}, 55},
    {u"Dracaena reflexa", Schopf, {B::Nadel}, 54},
    {u"Dracaena trifasciata", Schwerter, {}, 80},
    {u"Drosera", Tentakel, {}, 8, F::Rad, S::Schafttraube, 2, u"rosa"},
    {u"Echeveria", Sukkulentrosette, {B::Spatel, Glatt, Ohne, 1.3}, 5, F::Laterne, S::Schafttraube, 1.4, u"rosa"},
    {u"Echinocactus", Kugelkaktus, {}, 3, F::Strahlen, S::Mitte, 5, u"gelb"},
    {u"Epipremnum", Kletter, {B::Herz, Glatt, Fieder, .82}, 16, F::Keine, S::Keiner, 1, {}, {}, Frucht::Keine, Stuetze::Moosstab},
    {u"Erica", Strauch, {B::Nadel, Glatt, Ohne, 2}, 1.8, F::Heideglocke, S::Traube, 1.2, u"rosa"},
    {u"Euphorbia milii", Strauch, {B::Verkehrtei, Glatt, Fieder, .8}, 5, F::Christusdorn, S::Dolde, 2.2, u"rot"},
    {u"Euphorbia pulcherrima", Strauch, {B::Raute, Lappen, Fieder, 1.1}, 11, F::Hochblattstern, S::Einzeln, 22, u"rot"},
    {u"Eustoma", Kraut, {B::Eiform, Glatt, Bogen, .8}, 6, F::Rose, S::Einzeln, 6, u"violett"},
    {u"Exacum", Kraut, {B::Eiform, Glatt, Bogen, 1}, 3, F::Rad, S::Einzeln, 2, u"blau"},
    {u"Fatshedera", Eintrieb, {B::Efeu, Glatt, Fuss, 1.05}, 18},
    {u"Fatsia", Strauch, {B::Hand, Glatt, Fuss, 1}, 28},
    {u"Ficus benjamina", Baum, {B::Eiform, Glatt, Fieder, .82}, 8},
    {u"Ficus elastica", Eintrieb, {B::Elliptisch, Glatt, Fieder, 1.05}, 26},
    {u"Ficus lyrata", Eintrieb, {B::Geige, Welle, Fieder, 1}, 34},
    {u"Ficus pumila", Haenge, {B::Eiform, Glatt, Fieder, 1.05}, 2.6},
    {u"Fittonia", Polster, {B::Eiform, Glatt, Fieder, 1.05}, 6},
    {u"Fuchsia", NachWuchsform, {B::Eiform, Saege, Fieder, .85}, 5, F::Fuchsie, S::Haengend, 4, u"violett", u"rot"},
    {u"Gardenia", Strauch, {B::Elliptisch, Glatt, Fieder, .9}, 8, F::Rose, S::Einzeln, 7, u"weiß"},
    {u"Gerbera", Rosette, {B::Verkehrtei, Lappen, Fieder, .85}, 18, F::Korb, S::Schaft, 9, u"orange"},
    {u"Gloriosa", Kletter, {B::Lanzett, Glatt, Bogen, 1.3}, 11, F::Flammenlilie, S::Einzeln, 7, u"rot", {}, Frucht::Keine, Stuetze::Spalier},
    {u"Guzmania", Trichter, {}, 40, F::Keine, S::Mitte, 16, u"rot"},
    {u"Gymnocalycium", Kugelkaktus, {}, 3, F::Strahlen, S::Mitte, 4.5, u"rosa"},
    {u"Hedera", Haenge, {B::Efeu, Glatt, Fuss, 1}, 5.5},
    {u"Heliotropium", Strauch, {B::Elliptisch, Glatt, Fieder, .8}, 7, F::Rad, S::Ball, .9, u"violett"},
    {u"Hibiscus", Strauch, {B::Eiform, Saege, Fieder, .9}, 9, F::Hibiskus, S::Einzeln, 12, u"rot"},
    {u"Hippeastrum", Baender, {}, 45, F::Lilie, S::Schaftdolde, 15, u"rot"},
    {u"Howea", Palme, {B::Lanzett, Glatt, Bogen, .8}, 130},
    {u"Hoya", Kletter, {B::Elliptisch, Glatt, Fieder, .9}, 7, F::Wachsblume, S::Ball, 1.6, u"rosa", {}, Frucht::Keine, Stuetze::Ring},
    {u"Hyacinthus", Baender, {}, 20, F::Stern, S::Schafttraube, 3, u"blau"},
    {u"Hydrangea", Strauch, {B::Eiform, Saege, Fieder, 1}, 13, F::Kreuz, S::Ball, 4, u"blau"},
    {u"Hypoestes", Kraut, {B::Eiform, Glatt, Fieder, .95}, 6},
    {u"Impatiens", Kraut, {B::Elliptisch, Saege, Fieder, .8}, 7, F::Springkraut, S::Einzeln, 4.4, u"rot"},
    {u"Impatiens-Neuguinea", Kraut, {B::Lanzett, Saege, Fieder, 1.5}, 10, F::Springkraut, S::Einzeln, 6, u"orange"},
    {u"Jasminum", Kletter, {B::Gefiedert, Glatt, Fieder, .9}, 8, F::Stern, S::Dolde, 2.6, u"weiß", {}, Frucht::Keine, Stuetze::Ring},
    {u"Justicia", Strauch, {B::Eiform, Glatt, Fieder, .85}, 7, F::Keine, S::Kerze, 11, u"braun", u"weiß"},
    {u"Kalanchoe", Kraut, {B::Verkehrtei, Kerb, Ohne, 1.2}, 6, F::Kreuz, S::Dolde, 1.5, u"orange"},
    {u"Lantana", Strauch, {B::Eiform, Saege, Fieder, .95}, 6, F::Rad, S::Ball, .9, u"orange", u"gelb", Frucht::Beere},
    {u"Lobelia", Polster, {B::Lanzett, Saege, Ohne, 1.3}, 2.2, F::Lobelie, S::Einzeln, 1.8, u"blau"},
    {u"Mandevilla", Kletter, {B::Elliptisch, Glatt, Fieder, .9}, 8, F::Trichter, S::Einzeln, 8, u"rosa", u"gelb"},
    {u"Maranta", Rosette, {B::Elliptisch, Glatt, Fieder, 1.3}, 12},
    {u"Medinilla", Strauch, {B::Eiform, Glatt, Bogen, 1}, 24, F::Rad, S::Traube, 2.5, u"rosa"},
    {u"Monstera", Kletter, {B::Fenster, Glatt, Fieder, 1}, 42, F::Keine, S::Keiner, 1, {}, {}, Frucht::Keine, Stuetze::Moosstab},
    {u"Nepenthes", Haenge, {B::Lanzett, Glatt, Fieder, 1.3}, 22},
    {u"Nephrolepis", Farn, {B::Lanzett, Kerb, Ohne, 1.2}, 6},
    {u"Nerium", Strauch, {B::Lanzett, Glatt, Fieder, 1}, 13, F::Rad, S::Dolde, 4.5, u"rosa"},
    {u"Oncidium", Baender, {}, 30, F::Tanzpuppe, S::Rispe, 3.2, u"gelb"},
    {u"Pachira", Baum, {B::Gefingert, Glatt, Fieder, .9}, 24},
    {u"Pachystachys", Strauch, {B::Elliptisch, Glatt, Fieder, .8}, 12, F::Keine, S::Kerze, 11, u"gelb", u"weiß"},
    {u"Paphiopedilum", Baender, {}, 22, F::Frauenschuh, S::Schaft, 10, u"purpur"},
    {u"Passiflora", Kletter, {B::Hand, Glatt, Ohne, .8}, 9, F::Passionsblume, S::Einzeln, 8, u"blau", {}, Frucht::Ei, Stuetze::Ring},
    {u"Pelargonium", Kraut, {B::Niere, Kerb, Fuss, 1}, 8, F::Pelargonie, S::Ball, 2.6, u"rot"},
    {u"Pelargonium-Grandi", Kraut, {B::Niere, Saege, Fuss, .95}, 8, F::Pelargonie, S::Dolde, 5, u"rosa"},
    {u"Pelargonium-Peltatum", Haenge, {B::Efeu, Glatt, Fuss, 1.1}, 6, F::Pelargonie, S::Dolde, 3, u"rosa"},
    {u"Pellaea", Farn, {B::Rund, Glatt, Ohne, .95}, 2},
    {u"Pentas", Kraut, {B::Elliptisch, Glatt, Fieder, .8}, 8, F::Stern, S::Ball, 1.5, u"rosa"},
    {u"Peperomia", Kraut, {B::Spatel, Glatt, Fieder, 1.5}, 7, F::Keine, S::Kolben, 9},
    {u"Peperomia caperata", Rosette, {B::Herz, Welle, Fuss, .95}, 5, F::Kolben, S::Kolben, 9, u"weiß"},
    {u"Petunia", Haenge, {B::Eiform, Glatt, Fieder, .9}, 5, F::Trichter, S::Einzeln, 6.5, u"violett"},
    {u"Phalaenopsis", Rosette, {B::Zunge, Glatt, Ohne, 1.25}, 22, F::Falter, S::Rispe, 9, u"rosa"},
    {u"Philodendron", Haenge, {B::Herz, Glatt, Fieder, .92}, 10},
    {u"Phoenix", Palmfarn, {B::Nadel, Glatt, Ohne, 1}, 20},
    {u"Pilea", Grundblatt, {B::Schild, Glatt, Fuss, 1}, 7},
    {u"Platycerium", Geweih, {}, 45},
    {u"Plumbago", Strauch, {B::Verkehrtei, Glatt, Fieder, .8}, 5, F::Rad, S::Dolde, 2.5, u"blau"},
    {u"Primula obconica", Rosette, {B::Rund, Welle, Fuss, 1}, 9, F::Kerbrad, S::Schaftdolde, 3.4, u"rosa"},
    {u"Primula", Rosette, {B::Zunge, Kerb, Fieder, 1.35}, 10, F::Kerbrad, S::Schaft, 3.4, u"gelb"},
    {u"Pteris", Farn, {B::Lineal, Glatt, Ohne, 1.3}, 9},
    {u"Radermachera", Baum, {B::Doppelfieder, Glatt, Fieder, .8}, 28},
    {u"Rhododendron", Strauch, {B::Elliptisch, Glatt, Fieder, .8}, 3.6, F::Rose, S::Einzeln, 5, u"rosa"},
    {u"Rosa", Strauch, {B::Gefiedert, Saege, Fieder, 1}, 9, F::Rose, S::Einzeln, 5.5, u"rot"},
    {u"Saintpaulia", Rosette, {B::Rund, Kerb, Fieder, .85}, 6, F::Veilchen, S::Dolde, 3.2, u"violett"},
    {u"Sarracenia", Kannen, {}, 35, F::Laterne, S::Schaft, 5, u"rot"},
    {u"Scaevola", Haenge, {B::Verkehrtei, Saege, Fieder, .8}, 4, F::Faecher, S::Einzeln, 2.8, u"blau"},
    {u"Schefflera", Eintrieb, {B::Gefingert, Glatt, Fieder, .8}, 22},
    {u"Schlumbergera", Gliederkaktus, {}, 4.5, F::Gliederkaktus, S::Einzeln, 3.4, u"rosa"},
    {u"Scindapsus", Haenge, {B::Herz, Glatt, Fieder, .9}, 9},
    {u"Pericallis", Kraut, {B::Herz, Saege, Fuss, 1}, 11, F::Korb, S::Einzeln, 4.5, u"blau", u"weiß"},
    {u"Sinningia", Rosette, {B::Eiform, Kerb, Fieder, 1}, 15, F::Glockenstern, S::Dolde, 7, u"violett"},
    {u"Solanum", Strauch, {B::Lanzett, Welle, Fieder, 1.3}, 6, F::Stern, S::Keiner, 1.5, {}, {}, Frucht::Beere},
    {u"Soleirolia", Polster, {B::Rund, Glatt, Ohne, 1}, .7},
    {u"Spathiphyllum", Grundblatt, {B::Lanzett, Glatt, Fieder, 1.55}, 28, F::Fahne, S::Schaft, 8, u"weiß"},
    {u"Stephanotis", Kletter, {B::Elliptisch, Glatt, Fieder, .95}, 8, F::Stern, S::Dolde, 4, u"weiß", {}, Frucht::Keine, Stuetze::Ring},
    {u"Strelitzia", Grundblatt, {B::Elliptisch, Glatt, Fieder, .82}, 42, F::Paradiesvogel, S::Schaft, 14, u"orange"},
    {u"Streptocarpus", Rosette, {B::Zunge, Kerb, Fieder, 1.15}, 18, F::Trompete, S::Schaftdolde, 5, u"violett"},
    {u"Syngonium", Kletter, {B::Pfeil, Glatt, Fuss, .9}, 13, F::Keine, S::Keiner, 1, {}, {}, Frucht::Keine, Stuetze::Moosstab},
    {u"Tillandsia", Baender, {}, 22, F::Keine, S::Mitte, 12, u"rosa", u"violett"},
    {u"Tradescantia", Haenge, {B::Eiform, Glatt, Bogen, .85}, 6},
    {u"Vriesea", Trichter, {}, 38, F::Keine, S::Mitte, 30, u"rot"},
    {u"Yucca", Schopf, {}, 55},
    {u"Zamioculcas", Farn, {B::Elliptisch, Glatt, Ohne, 1}, 7},
    {u"Zantedeschia", Grundblatt, {B::Pfeil, Glatt, Fieder, .8}, 28, F::Kalla, S::Schaft, 9, u"gelb"},
};

/// For genera that are not listed.
constexpr Gestalt familien[] = {
    {u"Acanthaceae", NachWuchsform, {B::Eiform, Glatt, Fieder, .9}, 9, F::Keine, S::Kerze, 10},
    {u"Amaryllidaceae", Baender, {}, 40, F::Lilie, S::Schaftdolde, 7},
    {u"Apocynaceae", NachWuchsform, {B::Elliptisch, Glatt, Fieder, .9}, 8, F::Rad, S::Einzeln, 4},
    {u"Araceae", Grundblatt, {B::Herz, Glatt, Fieder, .9}, 22, F::Spatha, S::Schaft, 8},
    {u"Araliaceae", NachWuchsform, {B::Hand, Glatt, Fuss, 1}, 20},
    {u"Arecaceae", Palme, {B::Lanzett, Glatt, Bogen, .9}, 90},
    {u"Asparagaceae", Baender, {}, 40, F::Stern, S::Schafttraube, 2},
    {u"Asphodelaceae", Baender, {}, 30, F::Roehre, S::Schafttraube, 3},
    {u"Aspleniaceae", Farn, {B::Lanzett, Kerb, Ohne, 1.2}, 6},
    {u"Asteraceae", NachWuchsform, {B::Elliptisch, Lappen, Fieder, .9}, 6, F::Korb, S::Einzeln, 5},
    {u"Begoniaceae", Kraut, {B::Herz, Saege, Fuss, 1, true}, 9, F::Begonie, S::Einzeln, 4},
    {u"Blechnaceae", Farn, {B::Lanzett, Glatt, Ohne, 1}, 8},
    {u"Bromeliaceae", Trichter, {}, 38, F::Keine, S::Mitte, 14},
    {u"Cactaceae", Kugelkaktus, {}, 3, F::Strahlen, S::Mitte, 5},
    {u"Campanulaceae", NachWuchsform, {B::Eiform, Saege, Fieder, .8}, 5, F::Glockenstern, S::Einzeln, 4},
    {u"Crassulaceae", Sukkulentrosette, {B::Spatel, Glatt, Ohne, 1.2}, 5, F::Stern, S::Schafttraube, 1.4},
    {u"Cycadaceae", Palmfarn, {B::Nadel, Glatt, Ohne, 1}, 14},
    {u"Cyperaceae", Baender, {}, 40},
    {u"Dryopteridaceae", Farn, {B::Lanzett, Kerb, Ohne, 1.2}, 6},
    {u"Ericaceae", Strauch, {B::Elliptisch, Glatt, Fieder, .8}, 4, F::Trichter, S::Dolde, 4},
    {u"Fabaceae", NachWuchsform, {B::Gefiedert, Glatt, Fieder, .7}, 10, F::Veilchen, S::Traube, 2},
    {u"Geraniaceae", Kraut, {B::Niere, Kerb, Fuss, 1}, 8, F::Pelargonie, S::Ball, 2.6},
    {u"Gesneriaceae", Rosette, {B::Eiform, Kerb, Fieder, 1}, 8, F::Trompete, S::Dolde, 4},
    {u"Iridaceae", Schwerter, {}, 40, F::Lilie, S::Schafttraube, 6},
    {u"Lamiaceae", Kraut, {B::Eiform, Saege, Fieder, .9}, 6, F::Lobelie, S::Traube, 1.5},
    {u"Liliaceae", Baender, {}, 30, F::Lilie, S::Schaftdolde, 8},
    {u"Malvaceae", NachWuchsform, {B::Ahorn, Saege, Fuss, 1}, 9, F::Hibiskus, S::Einzeln, 7},
    {u"Marantaceae", Grundblatt, {B::Elliptisch, Glatt, Fieder, 1.2}, 24},
    {u"Musaceae", Grundblatt, {B::Elliptisch, Glatt, Fieder, .9}, 80},
    {u"Onagraceae", NachWuchsform, {B::Eiform, Saege, Fieder, .85}, 5, F::Fuchsie, S::Haengend, 4},
    {u"Orchidaceae", Baender, {}, 28, F::Cymbidie, S::Rispe, 7},
    {u"Poaceae", Baender, {}, 40},
    {u"Polypodiaceae", Farn, {B::Lanzett, Welle, Ohne, 1.2}, 7},
    {u"Primulaceae", Rosette, {B::Zunge, Kerb, Fieder, 1.2}, 10, F::Kerbrad, S::Schaftdolde, 3},
    {u"Pteridaceae", Farn, {B::Lanzett, Kerb, Ohne, 1.2}, 5},
    {u"Rosaceae", Strauch, {B::Gefiedert, Saege, Fieder, 1}, 9, F::Rose, S::Einzeln, 5},
    {u"Sarraceniaceae", Kannen, {}, 30, F::Laterne, S::Schaft, 5},
    {u"Solanaceae", NachWuchsform, {B::Eiform, Glatt, Fieder, .85}, 7, F::Trichter, S::Einzeln, 5},
    {u"Verbenaceae", NachWuchsform, {B::Eiform, Saege, Fieder, .9}, 5, F::Rad, S::Ball, 1.2},
};

/// Habits in the order in which they decide.
constexpr std::pair<QStringView, Aufbau> wuchsformen[] = {
    {u"kletternd", Kletter},        {u"baumartig", Baum},       {u"eintriebig", Eintrieb}, {u"polsterbildend", Polster}, {u"teppichbildend", Polster},
    {u"rosettenbildend", Rosette},  {u"strauchartig", Strauch}, {u"horstig", Grundblatt},  {u"krautig", Kraut},
};

Aufbau nachWuchsform(const Datensatz &pflanze)
{
    if (pflanze.hat(u"WUCHSFORM", u"überhängend") && pflanze.hat(u"VERWENDUNG", u"für die Blumenampel"))
        return Haenge;
    const auto *treffer = std::ranges::find_if(wuchsformen, [&](const auto &w) { return pflanze.hat(u"WUCHSFORM", w.first); });
    return treffer != std::end(wuchsformen) ? treffer->second : Strauch;
}

} // namespace

Gestalt gestalt(const Datensatz &pflanze)
{
    QString name = pflanze.name();
    name.remove(QStringLiteral("× "));
    const Gestalt *gefunden = nullptr;
    for (const Gestalt &g : gattungen)
        if (name.startsWith(g.name) && (!gefunden || g.name.size() > gefunden->name.size()))
            gefunden = &g;
    const QString familie = pflanze.familie();
    for (const Gestalt &g : familien)
        if (!gefunden && g.name == familie)
            gefunden = &g;
    Gestalt g = gefunden ? *gefunden : Gestalt{u"", NachWuchsform, {B::Elliptisch, Glatt, Fieder, .9}, 9, F::Rad, S::Einzeln, 4};
    if (g.aufbau == NachWuchsform)
        g.aufbau = nachWuchsform(pflanze);
    return g;
}
