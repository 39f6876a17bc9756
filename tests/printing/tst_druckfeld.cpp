#include "Druckhilfen.h"
#include "printing/mdlDruck.h"
#include "tests/Testprogramm.h"

#include <QTest>

#include <functional>
#include <set>

using namespace Qt::StringLiterals;

namespace {

struct Platz
{
    int code; ///< ordinal of the column
    QStringView label = {};
};

// clang-format off
// The data sheets as they are laid down: column and label at each place.
constexpr Platz plaetzeTopf[] = {
    {1}, {37, u"Quelle"}, {2}, {3, u"Heimat"}, {4, u"Familie"}, {5, u"Typ"}, {6, u"minimale Höhe"}, {7, u"maximale Höhe"},
    {17, u"Wuchsform"}, {18, u"Verwendung"}, {15, u"Blattfarbe"}, {10, u"Blütezeit"}, {12, u"Blütenfarbe"}, {13},
    {8, u"minimale Blüten-Höhe"}, {9, u"maximale Blüten-Höhe"}, {11, u"Fruchtzeit"}, {14, u"Fruchtfarbe"}, {31}, {16, u"Angebotszeit"},
    {29, u"Haltbarkeit"}, {20, u"Lichtverträglichkeit"}, {19, u"Tageslängenreaktion"}, {21, u"Beleuchtungsstärke minimal"},
    {22, u"Beleuchtungsstärke maximal"}, {23, u"Temperatur minimal"}, {24, u"Temperatur maximal"}, {25, u"Höhe der Nachdüngung"},
    {35, u"Düngung Frühjahr/Sommer"}, {36, u"Düngung Herbst/Winter"}, {26, u"Hydrokultur-Wasserstand"}, {27, u"Hydrokultur-pH"},
    {28, u"Hydrokultur-Verwendung"}, {30, u"Krankheitsanfälligkeit"}, {33, u"Krankheiten/Schädlinge"}, {34, u"Bemerkung (Flox)"},
    {32, u"Sorten"}, {38, u"Standardpflanze"}, {39, u"Bemerkung (Benutzer)"}, {40, u"Benutzerdef. Eigenschaften"}, {41, u"Bewertung"},
    {42, u"Für Azubis"}};
static_assert(std::size(plaetzeTopf) == 42);
constexpr Platz plaetzeApfel[] = {
    {1, u"Name"}, {2, u"Voller Name"}, {3, u"Synonyme"}, {4, u"Haltbarkeit"}, {5, u"Fruchtgröße"}, {6, u"Form (Längs)"}, {7, u"Form (Quer)"},
    {8, u"Fruchtrelief"}, {16, u"Aussehen, Griffigkeit"}, {17, u"Druckfestigeit"}, {9, u"Grundfarbe"}, {10, u"Deckfarbe"}, {11, u"Deckfarbe Art"},
    {12, u"Ausdehnung der Deckfarbe"}, {13, u"Berostung"}, {14, u"Reif"}, {15, u"Schalenpunkte/ -höfe"}, {18, u"Kelchgrube"},
    {19, u"Kelchgrubenrelief"}, {20, u"Kelchumgebung"}, {21, u"Kelchgrubenberostung"}, {22, u"Kelchgröße"}, {23, u"Kelchöffnung"},
    {24, u"Kelchblätter"}, {27, u"Stiellänge/-dicke"}, {28, u"Stiel Besonderheiten"}, {25, u"Stielgrubengröße"}, {26, u"Stielgrubenberostung"},
    {29, u"Kelchhöhle"}, {30, u"Kelchröhre"}, {31, u"Kernhausgröße"}, {32, u"Gefäßbündel"}, {33, u"Achsenhöhle"}, {34, u"Kernhauskammern"},
    {35, u"Kernwandform"}, {36, u"Kernwandgröße"}, {37, u"Kernwandrisse"}, {38, u"Kerne Anzahl"}, {39, u"Kerne Qualität"},
    {40, u"Kerne Farbe, Form"}, {41, u"Kerne Länge"}, {42, u"Schale"}, {43, u"Fruchtfleisch Farbe"}, {44, u"Fruchtfleisch Struktur"},
    {45, u"Fruchtfleisch Duft"}, {46, u"Geschmack"}, {47, u"Literatur"}, {48, u"Besonderheiten"}, {49, u"Bemerkung (Benutzer)"},
    {50, u"Benutzerdef. Eigenschaften"}};
static_assert(std::size(plaetzeApfel) == 50);
// Field 22 stands twice, field 32 never.
constexpr Platz plaetzeStauden[] = {
    {1}, {44, u"Quelle"}, {2}, {37, u"Familie"}, {3, u"Herkunft"}, {4}, {5, u"Pflanzentyp"}, {6, u"Lebensraum"}, {8, u"Höhe minimal"},
    {9, u"Höhe maximal"}, {13, u"Fruchtzeit"}, {26, u"Wuchsform"}, {23}, {20, u"Blattform"}, {21, u"Blattfarbe"}, {17, u"Farbtxt"}, {22},
    {24}, {16, u"Herbstfärbung"}, {10, u"Höhe Blüten minimal"}, {11, u"Höhe Blüten maximal"}, {12, u"Blütezeit"}, {14, u"Blütenfarbe"},
    {18, u"Blütenform"}, {15, u"Fruchtfarbe"}, {39}, {19, u"Erscheinung"}, {43, u"Urteil"}, {28, u"Verwendung"}, {27, u"Besondere Verw."},
    {30, u"Bodenart"}, {31, u"Bodenfeuchte"}, {29, u"Lichtverträglichkeit"}, {22}, {33, u"Düngung"}, {34, u"Nährstoffbedarf"},
    {36, u"Geselligkeit"}, {38, u"Pflanzabstand"}, {7, u"Kennziffer"}, {35}, {25, u"Vermehrung"}, {41, u"Sorten"}, {40, u"Sonstiges"},
    {42, u"Bemerkung"}, {45, u"Bemerkung (Benutzer)"}, {46, u"Benutzerdef. Eigenschaften"}, {47, u"Bewertung"}, {48, u"Für Azubis"}};
static_assert(std::size(plaetzeStauden) == 48);
constexpr Platz plaetzeGehoelze[] = {
    {2, u"Botanischer Name"}, {33, u"Quelle"}, {3, u"Deutscher Name"}, {5, u"Familie"}, {4, u"Herkunft"}, {6}, {7, u"Größengruppe"},
    {8, u"Durchmesser maximal"}, {9, u"Habitus"}, {10, u"Wuchsverhalten"}, {24, u"Kennzahl"}, {1, u"BdB-Nummer"}, {13, u"Erscheinung"},
    {18, u"Laubfarbe"}, {19, u"Laubaustrieb"}, {17}, {11, u"Blütenfarbe"}, {12, u"Blütenzeit"}, {14, u"Fruchtfarbe"}, {15, u"Fruchtzeit"},
    {16, u"Geniessbarkeit"}, {20, u"Wurzelform"}, {21, u"Wurzelempfindlichkeit"}, {26, u"Boden pH-Bereich"}, {27, u"Bodenfeuchte"},
    {28, u"Bodenart"}, {25, u"Lichtverträglichkeit"}, {22, u"Besondere Merkmale"}, {29, u"Besondere Eigenschaften"}, {23, u"Verwendung"},
    {31, u"Krankheiten/Schädlinge"}, {30, u"Sorten"}, {32, u"Bemerkung (Flox)"}, {34, u"Bemerkung (Benutzer)"},
    {35, u"Benutzerdef. Eigenschaften"}, {36, u"Bewertung"}, {37, u"Für Azubis"}};
static_assert(std::size(plaetzeGehoelze) == 37);
constexpr Platz plaetzeObst[] = {
    {1, u"Name"}, {2, u"Synonyme"}, {3, u"Obstart"}, {4, u"Herkunft"}, {5, u"Abstammung"}, {6, u"Wuchs"}, {7, u"Blatt"}, {8, u"Fruchtholz"},
    {9, u"Trieb/Rute"}, {10, u"Unterlage"}, {11, u"Empfindlich auf"}, {12, u"Unempfindlich für"}, {41, u"Boden"}, {42, u"Klima"},
    {43, u"Nährstoffbedarf"}, {44, u"Eignung"}, {45, u"Erziehungsform"}, {46, u"Schnittmaßnahmen"}, {47, u"Pflanzenschutz"},
    {13, u"Frostempfindlichkeit"}, {14, u"Blütezeit/ -ort"}, {19, u"Fruchtstand"}, {15, u"Befruchtung"}, {16, u"Als Befruchtersorte"},
    {18, u"Intersterilität mit"}, {17, u"Geeignete Befruchtersorten"}, {21, u"Alternanzneigung"}, {22, u"Fruchtfarbe"}, {23, u"Grundfarbe"},
    {24, u"Deckfarbe"}, {25, u"Fruchthaut/Schale"}, {26, u"Fruchtfleisch"}, {27, u"Fruchtform"}, {28, u"Geschmack"}, {20, u"Ertrag"},
    {29, u"Besonderheiten"}, {31, u"Pflückreife"}, {32, u"Genuss-/Verwertungsreife"}, {30, u"Fruchtentwicklung in Tagen"}, {39, u"Ernte"},
    {33, u"Transportempfindlichkeit"}, {40, u"Verwendung"}, {34, u"Lagereignung"}, {35, u"Frischluftlager"}, {36, u"Kühllager"},
    {37, u"CA-Lager"}, {38, u"Lagerkrankheiten"}, {49, u"Mutanten"}, {48, u"Sortenbewertung"}, {50, u"Familie"}, {51, u"Sorten"},
    {52, u"Bemerkung (Benutzer)"}, {53, u"Benutzerdef. Eigenschaften"}, {54, u"Bewertung"}, {55, u"Für Azubis"}};
static_assert(std::size(plaetzeObst) == 55);

/// What print says of a true boolean; of one that is not named here it says nothing.
const QMap<QString, QString> saetze{
    {u"Topfpfl.UNSCHEINBA"_s, u"Die Blüten sind unscheinbar!"_s}, {u"Topfpfl.GIFTIG"_s, u"Giftpflanze"_s},
    {u"Stauden.heimisch"_s, u"heimische Pflanze"_s}, {u"Stauden.UNSCHEINBA"_s, u"Die Blüten sind unscheinbar!"_s},
    {u"Stauden.blaschmuck"_s, u"Blattschmuckstaude"_s}, {u"Stauden.immergruen"_s, u"immergrüne Pflanze"_s},
    {u"Stauden.schnitt"_s, u"Schnittpflanze"_s}, {u"Stauden.giftig"_s, u"Giftpflanze"_s},
    {u"Gehoelze.UNSCHEINBA"_s, u"Die Blüten sind unscheinbar!"_s}, {u"Gehoelze.giftig"_s, u"Giftpflanze"_s},
    {u"Friedhof.blaschmuck"_s, u"Blätter sind schmückend!"_s}, {u"Friedhof.BLUEHSCHMU"_s, u"Blüten sind schmückend!"_s},
    {u"Friedhof.fruchtschm"_s, u"Früchte sind schmückend!"_s}, {u"Friedhof.HERBSTFARB"_s, u"Herbstfärbung!"_s}, {u"Friedhof.DUFT"_s, u"Duftpflanze"_s}};
// clang-format on

const SpartenEintrag &sparteVon(const Tabelle &tabelle)
{
    const size_t stelle = size_t(&tabelle - schema::haupttabellen().data());
    return alleSparten()[stelle]; // tables and Sparten have one order
}

QString flags(int laenge, int gesetzt)
{
    QString text(laenge, u'0');
    text[gesetzt - 1] = u'1';
    return text;
}

const QString satzAnfang = u"Botanischer Name laut '"_s;

} // namespace

/// Words of stored values over all columns, and the descriptions of the data sheets.
class TestDruckfeld : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        programm_ = ordner_.programm();
        for (const SpartenEintrag &sparte : alleSparten())
            programm_.BenutzerNamen[size_t(sparte.sparte)] = {sparte.wort.toString() + u" 1"_s, u"ß & Co."_s, QString(), u"%1"_s, u"fünf"_s};
        arbeit_ = ordner_.db();
        QCOMPARE(schema::haupttabellen().size(), size_t(anzahlSparten));
        for (const SpartenEintrag &sparte : alleSparten())
            if (const Tabelle *tabelle = schema::haupttabelle(sparte.haupttabelle))
                QCOMPARE(&sparteVon(*tabelle), &sparte);
    }

    void spalten_data()
    {
        QTest::addColumn<const Tabelle *>("tabelle");
        QTest::addColumn<const Spalte *>("spalte");
        for (const Tabelle &tabelle : schema::haupttabellen())
            for (const Spalte &spalte : tabelle.spalten)
                QTest::addRow("%s.%s", tabelle.name, spalte.name) << &tabelle << &spalte;
    }
    void spalten()
    {
        QFETCH(const Tabelle *, tabelle);
        QFETCH(const Spalte *, spalte);
        const SpartenEintrag &sparte = sparteVon(*tabelle);
        const QString voll = u"%1.%2"_s.arg(QLatin1String(tabelle->name), QLatin1String(spalte->name));
        const auto text = [&](const QString &wert) { return DruckFeld({programm_, sparte, arbeit_}, *spalte, wert); };
        QCOMPARE(text(QString()), QString());
        switch (spalte->art) {
        case Art::Nummer:
            for (int p = 1; p <= spalte->liste->anzahl(); ++p)
                QCOMPARE(text(QString::number(p)), spalte->liste->wort(p).toString());
            [[fallthrough]];
        case Art::Flags:
        case Art::Literatur: worte(text, *spalte->liste); break;
        case Art::Monate: worte(text, WL_Monate); break;
        case Art::Eigen: eigenschaften(text, sparte); break;
        case Art::Wahrheit: wahrheit(text, saetze.value(voll)); break;
        case Art::Zahl: zahlen(text); break;
        case Art::Familie: familien(text); break;
        case Art::Quelle: quellen(text, sparte); break;
        case Art::Name:
        case Art::Text:
            // Home regions, too, stay as they are stored.
            for (const QString &wert : {u"Anthurium andraeanum 'Cuba'"_s, u"Eur., Kl. Asien, Rußl."_s, u"0"_s, u" a  b "_s, u"01"_s, u"\u00EC\n"_s})
                QCOMPARE(text(wert), wert);
            break;
        case Art::Memo:
            QCOMPARE(text(u"Eine \u00EC\nlange \u00EC\nBemerkung\r\nmit \u00EC und\nZeilen."_s),
                     u"Eine lange Bemerkung\r\nmit \u00EC und\nZeilen."_s);
            QCOMPARE(text(u"0"_s), u"0"_s);
            QCOMPARE(text(u"\u00EC\n"_s), QString());
            break;
        case Art::Bewertung:
        case Art::Ganzzahl:
        case Art::Schluessel:
            for (const QString &wert : {u"1"_s, u"5"_s, u"9"_s, u"True"_s})
                QCOMPARE(text(wert), QString());
            break;
        case Art::Code: QCOMPARE(text(u"?"_s), QString()); break; // each has its way of writing
        }
    }

    void kodierte_data()
    {
        QTest::addColumn<QString>("spalte");
        QTest::addColumn<QString>("wert");
        QTest::addColumn<QString>("text");
        const auto reihe = [](const char *spalte, const QString &wert, const QString &text) {
            QTest::addRow("%s '%s'", spalte, qPrintable(wert)) << QString::fromLatin1(spalte) << wert << text;
        };
        // clang-format off
        const std::pair<QStringView, QStringView> arten[] = {{u"1", u"einjährig"}, {u"2", u"zweijährig"}, {u"B", u"Baum"}, {u"H", u"Halbstrauch"}, {u"Std", u"Staude"},
                                                            {u"S", u"Staude"}, {u"Str", u"Strauch"}, {u"Z", u"Zwiebel/Knolle"}, {u"G", u"Gras"}, {u"F", u"Farn"},
                                                            {u"W", u"Wasserpflanze"}, {u"x", u""}, {u"str", u""}};
        // clang-format on
        for (const auto &[wert, text] : arten)
            reihe("Stauden.pflanzart", wert.toString(), text.toString());
        // clang-format off
        const std::pair<QStringView, QStringView> urteile[] = {
            {u"***", u"vorzügliche Sorte"}, {u"**", u"sehr wertvolle Sorte"}, {u"*", u"wertvolle Sorte"}, {u"L", u"Staude für den Pflanzenliebhaber"},
            {u"S", u"wertvolle Schnittstaude"}, {u"w!", u"sehr wertvolle Wildstaude"}, {u"W", u"wertvolle Wildstaude"}, {u"q", u""},
            {u"***L", u"vorzügliche Sorte, Staude für den Pflanzenliebhaber"}};
        // clang-format on
        for (const auto &[wert, text] : urteile)
            reihe("Stauden.urteil", wert.toString(), text.toString());
        reihe("Stauden.fruchtfarb", u"1"_s, WL_Fruchtfarbe.wort(1).toString());
        reihe("Stauden.herbstfarb", u"13"_s, WL_Bluetenfarbe.wort(13).toString());
        reihe("Stauden.herbstfarb", u"1100000000000"_s,
              WL_Bluetenfarbe.wort(1).toString() + u", "_s + WL_Bluetenfarbe.wort(2).toString()); // a flag row prints, too
        reihe("Gehoelze.genuss", u"3"_s, WL_GeGenuss.wort(3).toString());
        reihe("Gehoelze.genuss", u"0010"_s, WL_GeGenuss.wort(3).toString());
        reihe("Gehoelze.wurzelempf", u"2"_s, WL_GeWurzelempf.wort(2).toString());
    }
    void kodierte()
    {
        QFETCH(QString, spalte);
        QFETCH(QString, wert);
        const Tabelle *tabelle = schema::haupttabelle(spalte.section(u'.', 0, 0));
        QTEST(DruckFeld({programm_, sparteVon(*tabelle), arbeit_}, *tabelle->spalte(spalte.section(u'.', 1)), wert), "text");
    }

    /// All sentences belong to a column that is there.
    void saetzeHabenSpalten()
    {
        for (const QString &voll : saetze.keys()) {
            const Spalte *spalte = schema::haupttabelle(voll.section(u'.', 0, 0))->spalte(voll.section(u'.', 1));
            QVERIFY2(spalte && spalte->art == Art::Wahrheit, qPrintable(voll));
        }
    }

    void ohneDatenbank()
    {
        const Spalte *familie = schema::haupttabelle(u"Topfpfl"_s)->spalte(u"FAMILIE"_s);
        QCOMPARE(DruckFeld({programm_, eintrag(Sparte::Topf)}, *familie, u"1"_s), QString());
    }

    /// A sheet has the columns of its plant's origin and those of the collection itself, and letters mean what they mean there.
    void herkunftDerZeile()
    {
        const SpartenEintrag &friedhof = eintrag(Sparte::Friedhof), &gehoelze = eintrag(Sparte::Gehoelze), &stauden = eintrag(Sparte::Stauden);
        int eigene = 0, vonStauden = 0, vonGehoelzen = 0;
        for (const Spalte &spalte : schema::spaltenVon(friedhof.haupttabelle)) {
            const bool unbekannt = giltFuer(friedhof, spalte, {});
            eigene += unbekannt;
            vonStauden += giltFuer(friedhof, spalte, Sparte::Stauden) && !unbekannt;
            vonGehoelzen += giltFuer(friedhof, spalte, Sparte::Gehoelze) && !unbekannt;
            if (QLatin1String(spalte.name) == u"stauden_Quelle") {
                QVERIFY(giltFuer(friedhof, spalte, Sparte::Stauden) && !giltFuer(friedhof, spalte, Sparte::Gehoelze));
                QCOMPARE(DruckFeld({programm_, friedhof, arbeit_, &stauden}, spalte, u"g"_s), QString());
                QCOMPARE(DruckFeld({programm_, friedhof, arbeit_, &gehoelze}, spalte, u"g"_s), u"Botanischer Name laut 'Namenliste Gehölze'"_s);
                QCOMPARE(DruckFeld({programm_, friedhof, arbeit_}, spalte, u"z"_s), QString());
            }
        }
        int gesamt = 0, ausStauden = 0, ausGehoelzen = 0;
        for (const Abfragespalte &spalte : schema::abfrageFriedhof()) {
            ++gesamt;
            ausStauden += spalte.quelle == QByteArray("Stauden");
            ausGehoelzen += spalte.quelle == QByteArray("Gehoelze");
        }
        QVERIFY(ausStauden > 0 && ausGehoelzen > 0);
        QCOMPARE(vonStauden, ausStauden);
        QCOMPARE(vonGehoelzen, ausGehoelzen);
        QCOMPARE(eigene, gesamt - ausStauden - ausGehoelzen);
        for (const Spalte &spalte : schema::spaltenVon(eintrag(Sparte::Topf).haupttabelle))
            QVERIFY(giltFuer(eintrag(Sparte::Topf), spalte, Sparte::Topf));
    }

    void leereNamen_data()
    {
        QTest::addColumn<QString>("wert");
        QTest::addColumn<QString>("text");
        QTest::newRow("only a nameless one") << u"  1  "_s << QString();
        QTest::newRow("nameless first") << u"1 11 "_s << u"vier"_s;
        QTest::newRow("nameless between") << u" 111 "_s << u"zwei, vier"_s;
        QTest::newRow("nameless last") << u" 1  1"_s << u"zwei"_s;
        QTest::newRow("all") << u"11111"_s << u"zwei, vier"_s;
    }
    /// A property that the user has not named leaves no empty place between commas.
    void leereNamen()
    {
        QFETCH(QString, wert);
        Programm programm;
        programm.BenutzerNamen[size_t(Sparte::Apfel)] = {QString(), u"zwei"_s, QString(), u"vier"_s, QString()};
        const Spalte *eigen = schema::haupttabelle(u"Apfel"_s)->spalte(u"benu_eigen"_s);
        QTEST(DruckFeld({programm, eintrag(Sparte::Apfel)}, *eigen, wert), "text");
    }

    void beschreibungen()
    {
        for (const SpartenEintrag &sparte : alleSparten())
            if (const Druckbeschreibung *b = druckbeschreibung(sparte.sparte)) {
                QCOMPARE(b->sparte, sparte.sparte);
                QCOMPARE(druckfehler(*b), QString());
            }
        QCOMPARE(druckbeschreibung(Sparte::Topf), &DruckTopf);
        QCOMPARE(druckbeschreibung(Sparte::Apfel), &DruckApfel);
    }

    void plaetze_data()
    {
        QTest::addColumn<Sparte>("sparte");
        QTest::addColumn<QString>("tabelle");
        QTest::addColumn<std::span<const Platz>>("plaetze");
        QTest::newRow("Topf") << Sparte::Topf << u"Topfpfl"_s << std::span<const Platz>(plaetzeTopf);
        QTest::newRow("Apfel") << Sparte::Apfel << u"Apfel"_s << std::span<const Platz>(plaetzeApfel);
        QTest::newRow("Stauden") << Sparte::Stauden << u"Stauden"_s << std::span<const Platz>(plaetzeStauden);
        QTest::newRow("Gehölze") << Sparte::Gehoelze << u"Gehoelze"_s << std::span<const Platz>(plaetzeGehoelze);
        QTest::newRow("Obst") << Sparte::Obst << u"Obst"_s << std::span<const Platz>(plaetzeObst);
    }
    void plaetze()
    {
        QFETCH(Sparte, sparte);
        QFETCH(QString, tabelle);
        QFETCH(std::span<const Platz>, plaetze);
        const std::span<const short> folge = druckbeschreibung(sparte)->liste->folge;
        QCOMPARE(folge.size(), plaetze.size() + 1);
        QCOMPARE(int(folge[0]), 0); // the number, which prints nothing
        const std::span<const Spalte> spalten = schema::haupttabelle(tabelle)->spalten;
        QCOMPARE(spalten[0].art, Art::Schluessel);
        for (size_t i = 0; i < plaetze.size(); ++i) {
            const QByteArray wo = "place " + QByteArray::number(int(i) + 1);
            QVERIFY2(folge[i + 1] == plaetze[i].code, wo);
            QVERIFY2(spalten[size_t(folge[i + 1])].druckname == plaetze[i].label, wo);
        }
    }

    void einheiten()
    {
        const QMap<int, QString> topf{{6, u" m"_s},    {7, u" m"_s},    {8, u" m"_s},   {9, u" m"_s},
                                      {21, u" Lux"_s}, {22, u" Lux"_s}, {23, u" °C"_s}, {24, u" °C"_s}};
        const Tabelle *tabelle = schema::haupttabelle(u"Topfpfl"_s);
        for (size_t i = 0; i < tabelle->spalten.size(); ++i)
            QCOMPARE(tabelle->spalten[i].einheit.toString(), topf.value(int(i)));
        for (const Spalte &spalte : schema::haupttabelle(u"Apfel"_s)->spalten)
            QVERIFY(spalte.einheit.isEmpty());
    }

    /// The exceptions of the potted plants by the numbers of the columns.
    void ausnahmen()
    {
        struct Soll
        {
            Druckart art;
            int code, code2;
            QStringView label;
        };
        // clang-format off
        constexpr Soll topf[] = {{Druckart::Titel, 1, -1, {}}, {Druckart::Zeile, 37, -1, {}}, {Druckart::MitSynonymen, 2, -1, u"Synonyme"},
                                 {Druckart::Bereich, 6, 7, u"Höhe"}, {Druckart::Bereich, 8, 9, u"Blütenhöhe"},
                                 {Druckart::Bereich, 21, 22, u"Beleuchtungsstärke"}, {Druckart::Bereich, 23, 24, u"Temperatur"}};
        // clang-format on
        const std::span<const Spalte> spalten = schema::haupttabelle(u"Topfpfl"_s)->spalten;
        QCOMPARE(DruckTopf.ausnahmen.size(), std::size(topf));
        for (size_t i = 0; i < std::size(topf); ++i) {
            const Druckausnahme &ist = DruckTopf.ausnahmen[i];
            QVERIFY(ist.art == topf[i].art);
            QCOMPARE(ist.feld, spalten[size_t(topf[i].code)].name);
            QCOMPARE(QLatin1String(ist.feld2), topf[i].code2 < 0 ? QLatin1String() : QLatin1String(spalten[size_t(topf[i].code2)].name));
            QCOMPARE(ist.label, topf[i].label);
        }
        QCOMPARE(DruckApfel.ausnahmen.size(), size_t(1));
        QVERIFY(DruckApfel.ausnahmen[0].art == Druckart::Titel);
        QCOMPARE(DruckApfel.ausnahmen[0].feld, "BOT_NAME");
    }

    void druckfehlerFallenAuf_data()
    {
        QTest::addColumn<Sparte>("sparte");
        QTest::addColumn<QList<short>>("folge");
        QTest::addColumn<Druckausnahme>("ausnahme");
        QTest::addColumn<QString>("fehler");
        const QList<short> folge{0, 1, 2};
        const auto nimm = [&](const char *name, const Druckausnahme &ausnahme, const QString &fehler) {
            QTest::newRow(name) << Sparte::Topf << folge << ausnahme << fehler;
        };
        const Druckausnahme titel{Druckart::Titel, "BOT_NAME"};
        nimm("right: title", titel, {});
        nimm("right: synonyms", {Druckart::MitSynonymen, "DTNAM", nullptr, u"Synonyme"}, {});
        nimm("right: bounds", {Druckart::Bereich, "LICHTMIN", "LICHTMAX", u"Licht"}, {});
        nimm("right: any case", {Druckart::Titel, "bot_name"}, {});
        nimm("right: line", {Druckart::Zeile, "Quelle"}, {});
        nimm("line: wrong kind", {Druckart::Zeile, "HK"}, u"HK passt nicht"_s);
        nimm("line: two columns", {Druckart::Zeile, "Quelle", "HK"}, u"Quelle passt nicht"_s);
        nimm("title: no such column", {Druckart::Titel, "BOTNAME"}, u"BOTNAME passt nicht"_s);
        nimm("title: wrong kind", {Druckart::Titel, "HK"}, u"HK passt nicht"_s);
        nimm("title: two columns", {Druckart::Titel, "BOT_NAME", "DTNAM"}, u"BOT_NAME passt nicht"_s);
        nimm("synonyms: wrong kind", {Druckart::MitSynonymen, "SORTEN"}, u"SORTEN passt nicht"_s);
        nimm("bounds: no such column", {Druckart::Bereich, "MINBREITE", "MAXHOEHE"}, u"MINBREITE passt nicht"_s);
        nimm("bounds: no such upper column", {Druckart::Bereich, "MINHOEHE", "MAXBREITE"}, u"MINHOEHE passt nicht"_s);
        nimm("bounds: no upper column", {Druckart::Bereich, "MINHOEHE"}, u"MINHOEHE passt nicht"_s);
        nimm("bounds: lower no number", {Druckart::Bereich, "DTNAM", "MAXHOEHE"}, u"DTNAM passt nicht"_s);
        nimm("bounds: upper no number", {Druckart::Bereich, "MINHOEHE", "bewertung"}, u"MINHOEHE passt nicht"_s);
        QTest::newRow("order: last column") << Sparte::Topf << QList<short>{43} << titel << QString();
        QTest::newRow("order: beyond") << Sparte::Topf << QList<short>{1, 44} << titel << u"keine Spalte 44"_s;
        QTest::newRow("order: negative") << Sparte::Topf << QList<short>{-1} << titel << u"keine Spalte -1"_s;
        QTest::newRow("order: another table") << Sparte::Apfel << QList<short>{44, 55, 56} << titel << u"keine Spalte 56"_s;
        QTest::newRow("another table's column") << Sparte::Apfel << folge << Druckausnahme{Druckart::Bereich, "MINHOEHE", "MAXHOEHE"}
                                                << u"MINHOEHE passt nicht"_s;
        QTest::newRow("a query") << Sparte::Friedhof << QList<short>{0, 104} << titel << QString();
        QTest::newRow("a query, beyond") << Sparte::Friedhof << QList<short>{105} << titel << u"keine Spalte 105"_s;
        QTest::newRow("a query, bounds") << Sparte::Friedhof << folge << Druckausnahme{Druckart::Bereich, "friedhof_MINHOEHE", "friedhof_MAXHOEHE"}
                                         << QString();
    }
    void druckfehlerFallenAuf()
    {
        QFETCH(Sparte, sparte);
        QFETCH(QList<short>, folge);
        QFETCH(Druckausnahme, ausnahme);
        const Druckliste liste{folge, int(folge.size())};
        const std::span<const Druckzeile> kriterien =
            druckbeschreibung(sparte) ? druckbeschreibung(sparte)->kriterien : std::span<const Druckzeile>();
        QTEST(druckfehler({sparte, &liste, {&ausnahme, 1}, kriterien}), "fehler");
        // The second exception is looked at as well as the first.
        const Druckausnahme beide[] = {{Druckart::Titel, "BOT_NAME"}, ausnahme};
        QTEST(druckfehler({sparte, &liste, beide, kriterien}), "fehler");
    }

    /// Each criterion that says something of a plant stands on a line, and each line names one.
    void kriterienFallenAuf()
    {
        std::vector<Druckzeile> zeilen(DruckTopf.kriterien.begin(), DruckTopf.kriterien.end());
        const auto fehler = [&] { return druckfehler({Sparte::Topf, &DL_Topf, DruckTopf.ausnahmen, zeilen}); };
        QCOMPARE(fehler(), QString());
        zeilen.push_back(zeilen[3]); // twice is no fault
        QCOMPARE(fehler(), QString());
        zeilen.pop_back();
        zeilen[3].von = 2;
        zeilen[3].bis = 1;
        QCOMPARE(fehler(), u"lblBlFarbe: keine Stellen 2 bis 1"_s);
        zeilen[3] = {u"Farbe: ", "lblFarbe"};
        QCOMPARE(fehler(), u"kein Kriterium lblFarbe"_s);
        zeilen.erase(zeilen.begin() + 3);
        QCOMPARE(fehler(), u"lblBlFarbe wird nicht gedruckt"_s);
    }

    void labelsPassen_data()
    {
        QTest::addColumn<QString>("label");
        std::set<QString> labels;
        for (const Tabelle &tabelle : schema::haupttabellen())
            for (const Spalte &spalte : tabelle.spalten)
                labels.insert(spalte.druckname.toString());
        for (const Abfragespalte &spalte : schema::abfrageFriedhof())
            labels.insert(spalte.druckname.toString());
        for (const Druckbeschreibung *b : {&DruckTopf, &DruckApfel})
            for (const Druckausnahme &ausnahme : b->ausnahmen)
                labels.insert(ausnahme.label.toString());
        labels.erase(QString());
        QVERIFY(labels.size() > 100);
        for (const QString &label : labels)
            QTest::newRow(qPrintable(label)) << label;
    }
    /// Between the labels, 50 mm left of the values, and the values there is room.
    void labelsPassen()
    {
        QFETCH(QString, label);
        const double breite = schriftmass({.Size = 9, .Bold = true}).breite(label);
        QVERIFY2(breite < 49, qPrintable(u"%1 mm"_s.arg(breite)));
    }

private:
    using Textquelle = std::function<QString(const QString &)>;

    static void worte(const Textquelle &text, const Werteliste &liste)
    {
        QStringList alle;
        for (int p = 1; p <= liste.anzahl(); ++p) {
            const QString wort = liste.wort(p).toString();
            QCOMPARE(text(flags(liste.anzahl(), p)), wort);
            alle += wort;
        }
        const int n = liste.anzahl();
        QCOMPARE(text(QString(n, u'1')), alle.join(u", "_s));
        QCOMPARE(text(QString(n, u'0')), QString());
        QCOMPARE(text(QString(n, u'0') + u"111"_s), QString());
        QCOMPARE(text(QString(n, u'1') + u"1"_s), alle.join(u", "_s));
        QCOMPARE(text(u"1"_s), alle[0]);
        QCOMPARE(text(u"x2 "_s), QString());
        if (n > 1)
            QCOMPARE(text(flags(n, 1).replace(n - 1, 1, u"1"_s)), alle.first() + u", "_s + alle.last());
    }

    /// Set is "1", a blank or anything else is not; the names are the Sparte's own.
    static void eigenschaften(const Textquelle &text, const SpartenEintrag &sparte)
    {
        const QString eins = sparte.wort.toString() + u" 1"_s;
        QCOMPARE(text(u"1    "_s), eins);
        QCOMPARE(text(u" 1   "_s), u"ß & Co."_s);
        QCOMPARE(text(u"  1  "_s), QString());
        QCOMPARE(text(u"   1 "_s), u"%1"_s);
        QCOMPARE(text(u"    1"_s), u"fünf"_s);
        QCOMPARE(text(u"1   1"_s), eins + u", fünf"_s);
        QCOMPARE(text(u"11 11"_s), eins + u", ß & Co., %1, fünf"_s);
        QCOMPARE(text(u"     "_s), QString());
        QCOMPARE(text(u"00000"_s), QString());
        QCOMPARE(text(u"     1"_s), QString());
        QCOMPARE(text(u"1"_s), eins);
    }

    static void wahrheit(const Textquelle &text, const QString &satz)
    {
        for (const QString &wert : {u"True"_s, u"true"_s, u"Wahr"_s, u"1"_s, u"-1"_s})
            QCOMPARE(text(wert), satz);
        for (const QString &wert : {u"False"_s, u"Falsch"_s, u"0"_s, u" "_s, u"nein"_s})
            QCOMPARE(text(wert), QString());
    }

    static void zahlen(const Textquelle &text)
    {
        const std::pair<QString, QString> proben[] = {{u"0"_s, u"0"_s},   {u"0.5"_s, u"0,5"_s},   {u"0,5"_s, u"0,5"_s},   {u"1.25"_s, u"1,25"_s},
                                                      {u"2"_s, u"2"_s},   {u"2.0"_s, u"2"_s},     {u"20"_s, u"20"_s},     {u"3000"_s, u"3000"_s},
                                                      {u"-5"_s, u"-5"_s}, {u"-0.5"_s, u"-0,5"_s}, {u"0.05"_s, u"0,05"_s}, {u"etwa 2"_s, u"etwa 2"_s}};
        for (const auto &[wert, gedruckt] : proben)
            QCOMPARE(text(wert), gedruckt);
    }

    void familien(const Textquelle &text)
    {
        int anzahl = 0, groesste = 0;
        for (Recordset satz(arbeit_, u"Familien"_s); !satz.Eof(); satz.MoveNext(), ++anzahl) {
            const QString nummer = satz.Fields(u"FAMILIE"_s).Text(), name = satz.Fields(u"FAMNAME"_s).Text();
            QVERIFY(!name.isEmpty());
            QCOMPARE(text(nummer), name);
            groesste = std::max(groesste, nummer.toInt());
        }
        QVERIFY(anzahl > 20);
        for (const QString &wert : {QString::number(groesste + 1), u"-1"_s, u"Araceae"_s, u"%"_s, u"1x"_s})
            QCOMPARE(text(wert), QString());
    }

    static void quellen(const Textquelle &text, const SpartenEintrag &sparte)
    {
        QMap<QChar, QString> werke{{u'z', u"Zander"_s},
                                   {u's', u"spezielle Erklärung"_s},
                                   {u'n', u"Namenliste Stauden"_s},
                                   {u'c', u"Classified List and International Register of Tulip Names"_s}};
        if (sparte.sparte == Sparte::Gehoelze)
            werke.insert(u'g', u"Namenliste Gehölze"_s);
        for (char16_t zeichen = u' '; zeichen < 0x100; ++zeichen) {
            const QString werk = werke.value(zeichen);
            QCOMPARE(text(QString(QChar(zeichen))), werk.isEmpty() ? QString() : satzAnfang + werk + u'\'');
        }
        for (const QString &wert : {u"zs"_s, u"z "_s, u" z"_s, u"Zander"_s})
            QCOMPARE(text(wert), QString());
    }

    Programmordner ordner_;
    Programm programm_;
    std::shared_ptr<Datenbank> arbeit_;
};

FLOX_TEST(tst_druckfeld, TestDruckfeld)
#include "tst_druckfeld.moc"
