#include "Druckhilfen.h"
#include "printing/Kriteriendruck.h"
#include "tests/filters/Filterhilfen.h"
#include "tests/Testprogramm.h"

#include <QTest>

using namespace Qt::StringLiterals;

namespace {

/// A printed criterion: its label, its control, and the words of its items or null for one of another kind.
struct Sollzeile
{
    QStringView label;
    const char *control;
    const Werteliste *worte = nullptr;
};

constexpr QStringView eigeneWorte[] = {u"Schaufenster", u"Balkon & Beet", u"%1", u"ß", u"m2"};
constexpr Werteliste eigene{eigeneWorte};

// In the order of print.
constexpr Sollzeile zeilenTo[] = {
    {u"Familie: ", "cmbFamilie"},
    {u"Pflanzentyp: ", "chkTyp", &WL_ToPflanztyp},
    {u"Blütezeit: ", "lblBlMonat", &WL_Monate},
    {u"Blütenfarbe: ", "lblBlFarbe", &WL_Bluetenfarbe},
    {u"Fruchtzeit: ", "lblFrMonat", &WL_Monate},
    {u"Fruchtfarbe: ", "lblFrFarbe", &WL_ToFruchtfarbe},
    {u"Angebotszeit: ", "lblAngMonat", &WL_Monate},
    {u"Haltbarkeit: ", "chkHaltbarkeit", &WL_ToHaltbarkeit},
    {u"Blattfarbe: ", "chkLaubFarbe", &WL_ToBlattfarbe},
    {u"Wuchsform: ", "chkWuchsForm", &WL_ToWuchsform},
    {u"Höhe: ", "txtMinHoehe"},
    {u"Tageslängenreaktion: ", "chkTageslaenge", &WL_ToTageslaenge},
    {u"Licht: ", "imgLicht", &WL_Licht},
    {u"Beleuctungsstärke: ", "txtMinLicht"},
    {u"Temperatur: ", "txtMinTemp"},
    {u"Wasserstand (Hydrokultur): ", "chkWasser", &WL_ToHWasserstand},
    {u"ph-Wert (Hydrokultur)", "chkpH", &WL_ToHPh},
    {u"Verwendung (Hydrokultur): ", "chkVerwHydro", &WL_ToHVerwendung},
    {u"Verwendung: ", "imgVerwendung", &WL_ToVerwendung},
    {u"mögl. Krankheiten/Schädlinge: ", "txtKrank"},
    {u"Krankheitsanfälligkeit: ", "chkKrank", &WL_ToKrankheit},
    {u"Höhe der Nachdüngung: ", "chkNachduengung", &WL_ToNachduengung},
    {u"bot. Name: ", "txtbotName"},
    {u"bot. Synonym: ", "txtSynonym"},
    {u"deutscher Name/Synonym: ", "txtSynonymDeutsch"},
    {u"Sorten: ", "txtSorte"},
    {u"Eigene Bemerkungen: ", "txtBenutzerText"},
    {u"benu.definierte Eigenschaften: ", "sschkBenutzer", &eigene},
    {u"Ausbildung: ", "chkAusbildung", &WL_Ausbildung},
    {u"Bewertung: ", "sldBewertung"},
};
static_assert(std::size(zeilenTo) == 30);

constexpr Sollzeile zeilenAp[] = {
    {u"Haltbarkeit: ", "ChkHaltbar", &WL_ApHaltbark},
    {u"Fruchtgröße: ", "ChkFruGro", &WL_ApFruchtgr},
    {u"Form, Längs: ", "ChkFormLaengs", &WL_ApFormL},
    {u"Form, Quer: ", "ChkFormQuer", &WL_ApFormQ},
    {u"Fruchtrelief: ", "ChkFruRelief", &WL_ApFruchtrel},
    {u"Aussehen, Griffigkeit: ", "ChkAussGrif", &WL_ApAussehen},
    {u"Druckfestigeit: ", "ChkDruckFes", &WL_ApDruck},
    {u"Grundfarbe: ", "ChkGrundFar", &WL_ApGrundfarbe},
    {u"Deckfarbe: ", "ChkDeckFarb", &WL_ApDeckfarbe},
    {u"Deckfarbe Art: ", "ChkDFArt", &WL_ApDfArt},
    {u"Deckfarbe Ausdehnung: ", "ChkDFAusd", &WL_ApDfAusdehn},
    {u"Schalenberostung: ", "ChkSchBeros", &WL_ApRost},
    {u"Reif: ", "ChkReif", &WL_ApReif},
    {u"Schalenpunkte/-höfe: ", "ChkSchP", &WL_ApSchPunkt},
    {u"Kelchgrube: ", "ChkKGr", &WL_ApKGrube},
    {u"Kelchgrubenrelief: ", "ChkKGrRelie", &WL_ApKRelief},
    {u"Kelchumgebung: ", "ChkKGrUmgeb", &WL_ApKUmgebung},
    {u"Kelchgrubenberostung: ", "ChkKGrBeros", &WL_ApKBerost},
    {u"Kelchgröße: ", "ChkKGroesse", &WL_ApKGroesse},
    {u"Kelchöffnung: ", "ChkKOeffnun", &WL_ApKOeffnung},
    {u"Kelchblätter: ", "ChkKBlaette", &WL_ApKBlaetter},
    {u"Stiel Länge/Dicke: ", "ChkStLaenge", &WL_ApStLaenge},
    {u"Stiel Besonderheiten: ", "ChkStBesond", &WL_ApStBesond},
    {u"Stielgrubengröße: ", "ChkStGrGroe", &WL_ApStGrube},
    {u"Stielgrubenberostung: ", "ChkStGrBero", &WL_ApStBerost},
    {u"Kelchröhre: ", "ChkSchKelch", &WL_ApKRoehre},
    {u"Kernhaus Gefäßbündel: ", "ChkSchGefB", &WL_ApGBuendel},
    {u"Kernwandform: ", "ChkSchKWFor", &WL_ApKwForm},
    {u"Kernwandrisse: ", "ChkSchKWRis", &WL_ApKwRisse},
    {u"Kerne Anzahl: ", "ChkKernZahl", &WL_ApKAnzahl},
    {u"Kerne Qualität: ", "ChkKernQual", &WL_ApKQualit},
    {u"Kerne Länge: ", "ChkKernLaen", &WL_ApKLaenge},
    {u"Fruchtfleisch Schale: ", "ChkFrFlScha", &WL_ApSchale},
    {u"Fruchtfleisch Farbe: ", "ChkFrFlFarb", &WL_ApFlFarbe},
    {u"Fruchtfleisch Struktur: ", "ChkFrFlStru", &WL_ApFlStrukt},
    {u"Name: ", "txtName"},
    {u"Synonym: ", "txtSynonym"},
    {u"voller Name: ", "txtVName"},
    {u"eigene Bemerkungen: ", "txtBenutzerText"},
    {u"benu.definierte Eigenschaften: ", "sschkBenutzer", &eigene},
    {u"Ausbildung: ", "chkAusbildung", &WL_Ausbildung},
    {u"Bewertung: ", "sldBewertung"},
};
static_assert(std::size(zeilenAp) == 42);

constexpr QStringView eigenschaftsworte[] = {u"Schnittpflanze", u"heimische Pflanze", u"Blattschmuckstaude", u"immergrüne Pflanze", u"Giftpflanze"};
constexpr Werteliste eigenschaften{eigenschaftsworte};

constexpr Sollzeile zeilenSt[] = {
    {u"Familie: ", "cmbFamilie"},
    {u"", "imgEigen", &eigenschaften},
    {u"Blütezeit: ", "lblBlMonat", &WL_Monate},
    {u"Blütenfarbe: ", "lblBlFarbe", &WL_Bluetenfarbe},
    {u"Blüten-Höhe: ", "txtMinHoehe"},
    {u"Fruchtzeit: ", "lblFrMonat", &WL_Monate},
    {u"Fruchtfarbe: ", "lblFrFarbe", &WL_Fruchtfarbe},
    {u"Blattfarbe: ", "chkLaubFarbe", &WL_StBlattfarbe},
    {u"Herbstfärbung: ", "lblHfFarbe", &WL_Bluetenfarbe},
    {u"Blatt-Höhe: ", "txtBlattMinHoehe"},
    {u"Bodenart: ", "chkBodenArt", &WL_Bodenart},
    {u"Bodenfeuchte: ", "chkBodenfeuchte", &WL_Bodenfeuchte},
    {u"pH - Boden: ", "chkKalk", &WL_Kalk},
    {u"Nährstoffbedarf: ", "chkNaehrstoff", &WL_Naehrstoff},
    {u"Licht: ", "imgLicht", &WL_Licht},
    {u"Pflanzentyp: ", "optTyp", &WL_Pflanzenart},
    {u"Kennziffer: ", "txtKennziffer"},
    {u"Lebensraum: ", "chkLebensraum", &WL_Lebensbereich},
    {u"bot. Name: ", "txtbotName"},
    {u"bot. Synonym: ", "txtSynonym"},
    {u"deutscher Name/Synonym: ", "txtSynonymDeutsch"},
    {u"Sorten: ", "txtSorte"},
    {u"Bemerkung (Benutzer): ", "txtBenutzerText"},
    {u"benu.definierte Eigenschaften: ", "sschkBenutzer", &eigene},
    {u"Ausbildung: ", "chkAusbildung", &WL_Ausbildung},
    {u"Bewertung: ", "sldBewertung"},
};
static_assert(std::size(zeilenSt) == 26);

constexpr QStringView einteilungsworte[] = {u"Laubgehölze", u"Nadelgehölze"};
constexpr Werteliste einteilung{einteilungsworte};

// The remark stands twice.
constexpr Sollzeile zeilenGe[] = {
    {u"Familie: ", "cmbFamilie"},
    {u"", "imgEigen", &einteilung},
    {u"Blütezeit: ", "lblBlMonat", &WL_Monate},
    {u"Blütenfarbe: ", "lblBlFarbe", &WL_Bluetenfarbe},
    {u"Fruchtzeit: ", "lblFrMonat", &WL_Monate},
    {u"Fruchtfarbe: ", "lblFrFarbe", &WL_Fruchtfarbe},
    {u"Frucht ist ", "chkGenuss", &WL_GeGenuss},
    {u"Besondere Merkmale", "chkBesMerkmal", &WL_GeBesMerkmale},
    {u"zeitliche Einteilung: ", "chkLaubZeit", &WL_GeLaubzeit},
    {u"Blattfarbe: ", "chkLaubFarbe", &WL_GeLaubfarbe},
    {u"Laubaustrieb: ", "lblBtMonat", &WL_Monate},
    {u"Wuchsverhalten (Wurzel): ", "chkWurzelwuchs", &WL_GeWurzelform},
    {u"Empfindlichkeit (Wurzel): ", "chkWurzelEmpf", &WL_GeWurzelempf},
    {u"Bodenart : ", "chkBodenArt", &WL_GeBodenart},
    {u"Bodenfeuchte : ", "chkBodenfeuchte", &WL_GeBodenfeuchte},
    {u"pH-Bereich : ", "chkBodenpH", &WL_GeBodenPh},
    {u"Bes. Standorteigenschaften : ", "chkBesStandort", &WL_GeBesEigenschaften},
    {u"Licht : ", "imgLicht", &WL_Licht},
    {u"Textsuche (botanischer Name) : ", "txtbotName"},
    {u"Textsuche (botanisches Synonym) : ", "txtSynonym"},
    {u"Textsuche (deutscher Name) : ", "txtSynonymDeutsch"},
    {u"Textsuche (Sorte) : ", "txtSorte"},
    {u"Textsuche (eigene Bemerkung): ", "txtBenutzerText"},
    {u"Größengruppe : ", "chkGroesse", &WL_GeGroesse},
    {u"Habitus : ", "chkHabitus", &WL_GeHabitus},
    {u"Wuchsgeschwindigkeit : ", "chkWuchsVerh", &WL_GeWuchs},
    {u"Verwendung : ", "imgVerwendung", &WL_GeVerwendung},
    {u"Eigene Bemerkungen: ", "txtBenutzerText"},
    {u"benu.definierte Eigenschaften: ", "sschkBenutzer", &eigene},
    {u"Ausbildung: ", "chkAusbildung", &WL_Ausbildung},
    {u"Bewertung: ", "sldBewertung"},
};
static_assert(std::size(zeilenGe) == 31);

constexpr Sollzeile zeilenOb[] = {
    {u"Obstart: ", "cboObstart"},
    {u"Wuchs: ", "chkWuchs", &WL_ObWuchs},
    {u"Blatt: ", "chkBlatt", &WL_ObBlatt},
    {u"Fruchtholz: ", "chkFruchtholz", &WL_ObFruhol},
    {u"Trieb/Rute: ", "chkTrieb", &WL_ObTrirut},
    {u"Unterlage: ", "chkUnterlage", &WL_ObUnterlage},
    {u"Unempfindlich für: ", "chkUnempfindlich", &WL_ObResistenz},
    {u"Empfindlich auf: ", "chkEmpfindlich", &WL_ObKrankh},
    {u"Frostempfindlichkeit: ", "chkFrost", &WL_ObFroemf},
    {u"Blütezeit/-ort: ", "chkBluete", &WL_ObBluete},
    {u"Als Befruchtersorte: ", "chkBefruchtersorte", &WL_ObBefrsor},
    {u"Befruchtung: ", "chkBefruchtung", &WL_ObBefru},
    {u"Alternanzneigung: ", "chkAlternanz", &WL_ObAltrnaz},
    {u"Fruchtstand: ", "chkFruchtstand", &WL_ObFrustan},
    {u"Fruchtfarbe: ", "chkFruchtfarbe", &WL_ObFrufar},
    {u"Grundfarbe: ", "chkGrundfarbe", &WL_ObGrundfarb},
    {u"Deckfarbe: ", "chkDeckfarbe", &WL_ObDeckfarb},
    {u"Fruchthaut/-schale: ", "chkSchale", &WL_ObSchale},
    {u"Fruchtfleisch: ", "ckkfruchtfleisch", &WL_ObFruflei},
    {u"Fruchtform: ", "chkFruchtform", &WL_ObFrufor},
    {u"Geschmack: ", "chkGeschmack", &WL_ObGesmak},
    {u"Ertrag: ", "chkErtrag", &WL_ObErtrag},
    {u"Pflückreife: ", "txtPflueckreife"},
    {u"Genussreife: ", "txtGenussreife"},
    {u"Ernte: ", "chkErnte", &WL_ObErnte},
    {u"Transportempfindlichkeit: ", "chkTransport", &WL_ObTranspemp},
    {u"Verwendung: ", "chkVerwendung", &WL_ObVerwend},
    {u"Lagereignung: ", "chkLager", &WL_ObLageig},
    {u"Im Frischluftlager haltbar bis: ", "cboFrischluft"},
    {u"Im Kühllager haltbar bis: ", "cboKuehllager"},
    {u"Im CA-Lager haltbar bis: ", "cboCALager"},
    {u"Lagerkrankheiten: ", "chkLagerkrankheiten", &WL_ObLagkrank},
    {u"Boden: ", "chkBoden", &WL_ObBoden},
    {u"Klima: ", "chkKlima", &WL_ObKlima},
    {u"Nährstoffbedarf: ", "chkNaehrstoffe", &WL_ObNaehrstoff},
    {u"Eignung: ", "chkEignung", &WL_ObEignung},
    {u"Erziehungsform: ", "chkErziehungsform", &WL_ObErziform},
    {u"Name: ", "txtName"},
    {u"Synonym: ", "txtSynonym"},
    {u"Mutanten: ", "txtMutanten"},
    {u"eigene Bemerkungen: ", "txtBenutzerText"},
    {u"benu.definierte Eigenschaften: ", "sschkBenutzer", &eigene},
    {u"Ausbildung: ", "chkAusbildung", &WL_Ausbildung},
    {u"Bewertung: ", "sldBewertung"},
};
static_assert(std::size(zeilenOb) == 44);

std::span<const Sollzeile> zeilenVon(Sparte sparte)
{
    switch (sparte) {
    case Sparte::Topf: return zeilenTo;
    case Sparte::Stauden: return zeilenSt;
    case Sparte::Gehoelze: return zeilenGe;
    case Sparte::Apfel: return zeilenAp;
    case Sparte::Obst: return zeilenOb;
    default: qFatal("There are no lines for Sparte %d.", int(sparte));
    }
}

const QString note = u"    (Stufe 1: Rarität / Stufe 5:  Standardsortiment)"_s;

/// Sets a criterion, whatever its kind, as a user might.
void setzen(Zustand &z, const Sollzeile &zeile)
{
    if (zeile.worte)
        z.waehlen(zeile.control);
    else if (QLatin1String(zeile.control) == "sldBewertung"_L1)
        z.bewertung(4, true);
    else
        z.text(zeile.control, u"7"_s);
}

/// Items of a group, of which several can be set at once.
bool mehrfach(const Steuerteil &teil)
{
    return teil.art != Steuerung::Option;
}

/// Of a criterion whose lines are several: those that stand for it.
QStringList labelsVon(Sparte sparte, const char *control)
{
    QStringList labels;
    for (const Sollzeile &zeile : zeilenVon(sparte))
        if (qstrcmp(zeile.control, control) == 0)
            labels += zeile.label.toString();
    return labels;
}

/// "label|words" of all lines.
QStringList alsText(const std::vector<Kriteriumzeile> &zeilen)
{
    QStringList texte;
    for (const Kriteriumzeile &zeile : zeilen)
        texte += zeile.label + u'|' + zeile.worte;
    return texte;
}

} // namespace

constexpr QStringView laub[] = {u"grau", u"orange"};
constexpr QStringView zeiten[] = {u"sommergrün", u"immergrün"};
constexpr const char *immergruen[] = {nullptr, "immergruen"};
// clang-format off
constexpr Kriterium kodierteKriterien[] = {
    {.pruefung = Pruefung::Flags, .titel = {}, .a = {.art = Steuerung::Option, .control = "optTyp", .anzahl = 10, .ohneWahl = true},
     .feld = "pflanzart",
     .gilt = Seite::Erste},
    {.pruefung = Pruefung::Flags, .titel = {}, .a = {.art = Steuerung::Kaestchen, .control = "chkFarbe", .anzahl = 14}, .feld = "Stauden.fruchtfarb",
     .liest = Schreibweise::Zahl},
    {.pruefung = Pruefung::Flags, .titel = {}, .a = {.art = Steuerung::Kaestchen, .control = "chkGhLaub"},
     .b = {.art = Steuerung::Kaestchen, .control = "chkGhNadel"},
     .feld = "grobeint", .gilt = Seite::Andere},
    {.pruefung = Pruefung::FlagsNachWort, .titel = {}, .a = {.art = Steuerung::Kaestchen, .control = "chkLaub", .anzahl = 2, .worte = laub},
     .feld = "blattfarbe",
     .anders = Frage{.pruefung = Pruefung::FlagsNachWort, .feld = "laubfarb"}},
    {.pruefung = Pruefung::EinsWahr, .titel = {}, .a = {.art = Steuerung::Kaestchen, .control = "chkZeit", .anzahl = 2, .worte = zeiten},
     .felder = immergruen,
     .anders = Frage{.feld = "laubzeit"}},
    {.pruefung = Pruefung::WortImText, .titel = {}, .a = {.art = Steuerung::Kaestchen, .control = "chkHabitus", .anzahl = 16},
     .feld = "Stauden.wuchsform",
     .anders = Frage{.feld = "habitus"}},
};
// clang-format on
constexpr Filterbeschreibung mitKodierten{
    .sparte = Sparte::Friedhof, .reiter = {}, .kriterien = kodierteKriterien, .zeilen = 0, .ladeFilter = {}, .speicherFilter = {}};

/// What print tells of a filter, criterion by criterion.
class TestKriteriendruck : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        for (const Sparte sparte : spartenEinerHerkunft())
            for (size_t i = 0; i < std::size(eigeneWorte); ++i)
                programm_.BenutzerNamen[size_t(sparte)][i] = eigeneWorte[i].toString();
    }

    /// No criterion is forgotten above, and none of them twice.
    void vollstaendig()
    {
        for (const Sparte sparte : spartenEinerHerkunft()) {
            QSet<const Steuerteil *> controls;
            for (const Sollzeile &zeile : zeilenVon(sparte))
                controls += &Zustand(sparte).steuerteil(zeile.control);
            QCOMPARE(controls.size(), qsizetype(zeilenVon(sparte).size()) - (sparte == Sparte::Gehoelze ? 1 : 0));
            for (const Kriterium &k : filterbeschreibung(sparte)->kriterien)
                QVERIFY2((k.pruefung == Pruefung::Bild || k.pruefung == Pruefung::Keine) != (controls.contains(&k.a) || controls.contains(&k.b)),
                         k.a.control);
        }
    }

    void vorgabe()
    {
        for (const Sparte sparte : spartenEinerHerkunft())
            QCOMPARE(gedruckt(Zustand(sparte)), QStringList());
    }

    void jedesAllein_data() { kriterien(); }
    void jedesAllein()
    {
        QFETCH(Sparte, sparte);
        QFETCH(const Sollzeile *, zeile);
        Zustand z(sparte);
        setzen(z, *zeile);
        const std::vector<Kriteriumzeile> gedruckt =
            kriterienzeilen(druckbeschreibung(z.beschreibung.sparte)->kriterien, z.beschreibung, z.werte, quelle(sparte));
        QStringList labels;
        for (const Kriteriumzeile &g : gedruckt) {
            labels += g.label;
            QVERIFY(!g.worte.isEmpty());
        }
        QCOMPARE(labels, labelsVon(sparte, zeile->control));
    }

    void alleInReihenfolge_data() { jedeSparteMitRegeln(); }
    void alleInReihenfolge()
    {
        QFETCH(Sparte, sparte);
        Zustand z(sparte);
        QStringList labels, gelesen;
        for (const Sollzeile &zeile : zeilenVon(sparte)) {
            setzen(z, zeile);
            labels += zeile.label.toString();
        }
        for (const Kriteriumzeile &zeile :
             kriterienzeilen(druckbeschreibung(z.beschreibung.sparte)->kriterien, z.beschreibung, z.werte, quelle(sparte)))
            gelesen += zeile.label;
        QCOMPARE(gelesen, labels);
    }

    void gruppen_data() { kriterien(true); }
    /// Each item prints its word; several stand in the order of the items; all of them print as well.
    void gruppen()
    {
        QFETCH(Sparte, sparte);
        QFETCH(const Sollzeile *, zeile);
        const Zustand anfang(sparte);
        const Steuerteil &teil = anfang.steuerteil(zeile->control);
        const int n = teil.waehlbare();
        QVERIFY(n >= 2 && n <= zeile->worte->anzahl());
        const auto soll = [&](const QStringList &worte) { return QStringList{zeile->label.toString() + u'|' + worte.join(u", "_s)}; };
        QStringList alle;
        for (int i = 0; i < n; ++i) {
            const QString wort = zeile->worte->wort(i + 1).toString();
            QCOMPARE(gedruckt(Zustand(sparte).waehlen(zeile->control, i)), soll({wort}));
            // A box bears the word that is printed.
            const Kriterium *k = kriteriumNamens(anfang.beschreibung, zeile->control);
            if (teil.art == Steuerung::Kaestchen && teil.worte.empty() && zeile->worte != &eigene)
                QCOMPARE(wortVon(anfang.beschreibung, *k, teil, i).toString(), wort);
            alle += wort;
        }
        if (!mehrfach(teil))
            return;
        if (zeile->worte == &eigenschaften) // the poison leads its line
            alle.move(alle.size() - 1, 0);
        const QStringList zwei = zeile->worte == &eigenschaften ? QStringList{alle[0], alle[1]} : QStringList{alle.first(), alle.last()};
        QCOMPARE(gedruckt(Zustand(sparte).waehlen(zeile->control, n - 1).waehlen(zeile->control, 0)), soll(zwei));
        QCOMPARE(gedruckt(Zustand(sparte).alle(zeile->control)), soll(alle));
    }

    void giftpflanze()
    {
        const auto typ = [&](Zustand z) { return gedruckt(z); };
        QCOMPARE(typ(Zustand(Sparte::Topf).waehlen("chkGift")), QStringList{u"Pflanzentyp: |Giftpflanze"_s});
        QCOMPARE(typ(Zustand(Sparte::Topf).waehlen("chkGift").waehlen("chkTyp", 1)), QStringList{u"Pflanzentyp: |Blütenpflanze, Giftpflanze"_s});
        QCOMPARE(typ(Zustand(Sparte::Topf).waehlen("chkTyp", 4).waehlen("chkTyp", 0).waehlen("chkGift")),
                 QStringList{u"Pflanzentyp: |Grünpflanze, Carnivore, Giftpflanze"_s});
        // The filter is off then; the list still tells what is set.
        QCOMPARE(typ(Zustand(Sparte::Topf).alle("chkTyp").waehlen("chkGift")),
                 QStringList{u"Pflanzentyp: |Grünpflanze, Blütenpflanze, Fruchtpflanze, Sukkulente, Carnivore, Giftpflanze"_s});
    }

    void bereiche_data()
    {
        QTest::addColumn<QByteArray>("min");
        QTest::addColumn<QByteArray>("max");
        QTest::addColumn<QString>("unten");
        QTest::addColumn<QString>("oben");
        QTest::addColumn<QStringList>("zeilen");
        const auto hoehe = [](const char *name, const QString &unten, const QString &oben, const QString &worte) {
            QTest::addRow("height, %s", name) << QByteArray("txtMinHoehe") << QByteArray("txtMaxHoehe") << unten << oben
                                              << (worte.isEmpty() ? QStringList() : QStringList{u"Höhe: |"_s + worte});
        };
        hoehe("defaults", u"0,00"_s, u"99,00"_s, {});
        hoehe("lower", u"0,50"_s, u"99,00"_s, u"ab 0,50 m"_s);
        hoehe("upper", u"0,00"_s, u"2"_s, u"bis 2 m"_s);
        hoehe("both", u"0,5"_s, u"2,00"_s, u"0,5 - 2,00 m"_s);
        // Numbers are compared, however they are written.
        hoehe("equal numbers", u"0"_s, u"99,0"_s, {});
        hoehe("equal numbers with a point", u"0.0"_s, u"99.00"_s, {});
        hoehe("lower equal", u"0"_s, u"3"_s, u"bis 3 m"_s);
        hoehe("upper equal", u"1"_s, u"99"_s, u"ab 1 m"_s);
        hoehe("the wrong way round", u"99,00"_s, u"0,00"_s, u"99,00 - 0,00 m"_s);
        // Boxes that hold no number print as they stand.
        hoehe("no number below", u"hoch"_s, u"99,00"_s, u"ab hoch m"_s);
        hoehe("no number above", u"0,00"_s, u"1,2,3"_s, u"bis 1,2,3 m"_s);
        hoehe("no numbers", u"%1"_s, u"%2"_s, u"%1 - %2 m"_s);
        hoehe("empty below", u""_s, u"99,00"_s, u"ab  m"_s);
        const auto text = [](const char *name, const char *min, const char *max, const QString &unten, const QString &oben, const QString &zeile) {
            QTest::newRow(name) << QByteArray(min) << QByteArray(max) << unten << oben << (zeile.isEmpty() ? QStringList() : QStringList{zeile});
        };
        const auto licht = [&](const char *name, const QString &unten, const QString &oben, const QString &worte) {
            text(name, "txtMinLicht", "txtMaxLicht", unten, oben, worte.isEmpty() ? worte : u"Beleuctungsstärke: |"_s + worte);
        };
        licht("light, defaults", u"0"_s, u"3000"_s, {});
        licht("light, lower", u"500"_s, u"3000"_s, u"ab 500 Lux"_s);
        licht("light, upper", u"0"_s, u"1000"_s, u"bis 1000 Lux"_s);
        licht("light, both", u"500"_s, u"1000"_s, u"500 - 1000 Lux"_s);
        // Here the texts are compared, as the filter does.
        licht("light, equal numbers", u"0,0"_s, u"3000"_s, u"ab 0,0 Lux"_s);
        licht("light, equal numbers above", u"0"_s, u"3000,0"_s, u"bis 3000,0 Lux"_s);
        licht("light, no number", u"hell"_s, u"3000"_s, u"ab hell Lux"_s);
        const auto temperatur = [&](const char *name, const QString &unten, const QString &oben, const QString &worte) {
            text(name, "txtMinTemp", "txtMaxTemp", unten, oben, worte.isEmpty() ? worte : u"Temperatur: |"_s + worte);
        };
        temperatur("temperature, defaults", u"-20"_s, u"50"_s, {});
        temperatur("temperature, lower", u"-5"_s, u"50"_s, u"ab -5 °C"_s);
        temperatur("temperature, upper", u"-20"_s, u"30"_s, u"bis 30 °C"_s);
        temperatur("temperature, both", u"0"_s, u"22,5"_s, u"0 - 22,5 °C"_s);
        temperatur("temperature, equal numbers", u"-20,0"_s, u"50"_s, u"ab -20,0 °C"_s);
        temperatur("temperature, empty", u"-20"_s, u""_s, u"bis  °C"_s);
    }
    void bereiche()
    {
        QFETCH(QByteArray, min);
        QFETCH(QByteArray, max);
        QFETCH(QString, unten);
        QFETCH(QString, oben);
        QTEST(gedruckt(Zustand(Sparte::Topf).text(min, unten).text(max, oben)), "zeilen");
    }

    void bewertung_data()
    {
        QTest::addColumn<Sparte>("sparte");
        QTest::addColumn<int>("stufe");
        QTest::addColumn<bool>("minimum");
        for (const Sparte sparte : spartenEinerHerkunft())
            for (int stufe = 1; stufe <= 5; ++stufe)
                for (const bool minimum : {true, false})
                    QTest::addRow("%d, %s %d", int(sparte), minimum ? "Minimum" : "Maximum", stufe) << sparte << stufe << minimum;
    }
    /// Prints unless option and step stand as the dialog opens.
    void bewertung()
    {
        QFETCH(Sparte, sparte);
        QFETCH(int, stufe);
        QFETCH(bool, minimum);
        QStringList soll;
        if (!minimum || stufe != 3)
            soll += u"Bewertung: |%1 Stufe "_s.arg(minimum ? u"ab"_s : u"bis"_s) + QString::number(stufe) + note;
        QCOMPARE(gedruckt(Zustand(sparte).bewertung(stufe, minimum)), soll);
        // In one sentence: what lets every plant pass is no filter.
        const QString worte = u"Bewertung %1 Stufe %2"_s.arg(minimum ? u"ab"_s : u"bis"_s).arg(stufe);
        const bool alle = stufe == (minimum ? 1 : 5);
        QCOMPARE(gesagt(Zustand(sparte).bewertung(stufe, minimum)), alle ? u"Alle Pflanzen"_s : soll.isEmpty() ? worte : u"Filter: "_s + worte);
    }

    void jedesKriteriumInEinemSatz_data() { jedeSparteMitRegeln(); }
    /// Each criterion alone, and all together in the order of print.
    void jedesKriteriumInEinemSatz()
    {
        QFETCH(Sparte, sparte);
        Zustand alle(sparte);
        for (const Sollzeile &zeile : zeilenVon(sparte)) {
            setzen(alle, zeile);
            Zustand eines(sparte);
            setzen(eines, zeile);
            const QStringList zeilen = gedruckt(eines);
            QVERIFY2(!zeilen.isEmpty(), zeile.control);
            if (QLatin1String(zeile.control) == "sldBewertung"_L1)
                continue;
            const QString satz = gesagt(eines);
            QVERIFY2(satz.startsWith(u"Filter: "_s), qPrintable(satz));
            for (const QString &text : zeilen)
                QVERIFY2(satz.contains(text.section(u'|', 1).simplified()), qPrintable(satz + u" / "_s + text));
        }
        QStringList teile;
        for (const QString &text : gedruckt(alle))
            if (const QString worte = text.section(u'|', 1); !worte.contains(note) && !worte.isEmpty())
                teile += worte.simplified();
        const QString satz = gesagt(alle);
        qsizetype stelle = 0;
        for (const QString &teil : teile) {
            stelle = satz.indexOf(teil, stelle);
            QVERIFY2(stelle >= 0, qPrintable(teil + u" / "_s + satz));
        }
        QVERIFY(satz.endsWith(u"; Bewertung ab Stufe 4"_s));
    }

    void satzOhneAnderes()
    {
        QCOMPARE(gesagt(Zustand(Sparte::Topf)), u"Bewertung ab Stufe 3"_s);
        QCOMPARE(gesagt(Zustand(Sparte::Topf).waehlen("imgLicht", 2)), u"Filter: schattig"_s);
    }

    void texte_data()
    {
        QTest::addColumn<QString>("text");
        QTest::newRow("name") << u"Araceae"_s;
        QTest::newRow("blanks") << u" a  b "_s;
        QTest::newRow("place mark") << u"100 %1 %2"_s;
        QTest::newRow("jokers") << u"*?#'\"m2"_s;
        QTest::newRow("umlauts") << u"ÄÖÜäöüß"_s;
    }
    /// Family and text boxes print as they stand.
    void texte()
    {
        QFETCH(QString, text);
        const std::pair<Sparte, QList<const char *>> boxen[] = {
            {Sparte::Topf, {"cmbFamilie", "txtKrank", "txtbotName", "txtSynonym", "txtSynonymDeutsch", "txtSorte", "txtBenutzerText"}},
            {Sparte::Apfel, {"txtName", "txtSynonym", "txtVName", "txtBenutzerText"}},
            {Sparte::Stauden, {"cmbFamilie", "txtKennziffer", "txtbotName", "txtSynonym", "txtSynonymDeutsch", "txtSorte", "txtBenutzerText"}},
            {Sparte::Gehoelze, {"cmbFamilie", "txtbotName", "txtSynonym", "txtSynonymDeutsch", "txtSorte"}},
            {Sparte::Obst, {"cboObstart", "txtPflueckreife", "txtGenussreife", "txtName", "txtSynonym", "txtMutanten", "txtBenutzerText"}}};
        for (const auto &[sparte, controls] : boxen)
            for (const Sollzeile &zeile : zeilenVon(sparte))
                if (std::ranges::any_of(controls, [&](const char *control) { return qstrcmp(control, zeile.control) == 0; }))
                    QCOMPARE(gedruckt(Zustand(sparte).text(zeile.control, text)), QStringList{zeile.label.toString() + u'|' + text});
    }
    /// The remark of a woody plant stands among the text searches and once more behind them; the code number asks nothing.
    void bemerkungZweimal()
    {
        QCOMPARE(gedruckt(Zustand(Sparte::Gehoelze).text("txtBenutzerText", u"alt"_s).text("txtKennziffer", u"4711"_s).waehlen("chkGroesse")),
                 (QStringList{u"Textsuche (eigene Bemerkung): |alt"_s, u"Größengruppe : |"_s + WL_GeGroesse.wort(1).toString(),
                              u"Eigene Bemerkungen: |alt"_s}));
    }
    void eigenschaftenDerStauden_data()
    {
        QTest::addColumn<QList<int>>("gewaehlt");
        QTest::addColumn<QString>("zeile");
        QTest::newRow("poison") << QList<int>{4} << u"Giftpflanze"_s;
        QTest::newRow("all") << QList<int>{0, 1, 2, 3, 4}
                             << u"Giftpflanze, Schnittpflanze, heimische Pflanze, Blattschmuckstaude, immergrüne Pflanze"_s;
        QTest::newRow("without poison") << QList<int>{0, 3} << u"Schnittpflanze, immergrüne Pflanze"_s;
        QTest::newRow("poison and native") << QList<int>{1, 4} << u"Giftpflanze, heimische Pflanze"_s;
        QTest::newRow("evergreen") << QList<int>{3} << u"immergrüne Pflanze"_s;
    }
    void eigenschaftenDerStauden()
    {
        QFETCH(QList<int>, gewaehlt);
        QFETCH(QString, zeile);
        Zustand z(Sparte::Stauden);
        for (const int i : gewaehlt)
            z.waehlen("imgEigen", i);
        QCOMPARE(gedruckt(z), QStringList{u'|' + zeile});
    }
    void alleFamilien()
    {
        QCOMPARE(gedruckt(Zustand(Sparte::Topf).text("cmbFamilie", u"- Alle -"_s)), QStringList());
        QCOMPARE(gedruckt(Zustand(Sparte::Topf).text("cmbFamilie", u"-- Alle --"_s)), QStringList{u"Familie: |-- Alle --"_s});
    }

    void namenlose_data()
    {
        QTest::addColumn<QList<int>>("gewaehlt");
        QTest::addColumn<QStringList>("zeilen");
        const QString label = u"benu.definierte Eigenschaften: |"_s;
        QTest::newRow("named and nameless") << QList<int>{0, 1, 2} << QStringList{label + u"eins, drei"_s};
        QTest::newRow("nameless first") << QList<int>{1, 2} << QStringList{label + u"drei"_s};
        QTest::newRow("blank name") << QList<int>{4} << QStringList{label + u" "_s};
        // It restricts the list all the same.
        QTest::newRow("only nameless") << QList<int>{1, 3} << QStringList{label};
        QTest::newRow("none") << QList<int>{} << QStringList{};
    }
    void namenlose()
    {
        QFETCH(QList<int>, gewaehlt);
        Programm programm;
        programm.BenutzerNamen[size_t(Sparte::Apfel)] = {u"eins"_s, QString(), u"drei"_s, u""_s, u" "_s};
        Zustand z(Sparte::Apfel);
        for (const int i : gewaehlt)
            z.waehlen("sschkBenutzer", i);
        QTEST(alsText(
                  kriterienzeilen(druckbeschreibung(z.beschreibung.sparte)->kriterien, z.beschreibung, z.werte, {programm, eintrag(Sparte::Apfel)})),
              "zeilen");
    }

    /// A criterion without words has a line of its own on the page as well.
    void namenlosesAufDemBlatt()
    {
        Programm programm;
        Zustand z(Sparte::Apfel);
        z.waehlen("sschkBenutzer").waehlen("chkAusbildung");
        const Druckauftrag auftrag{.sparte = Sparte::Apfel, .pflanzen = nullptr, .arbeit = {}, .filter = z.werte};
        Printer drucker(blattA4());
        Druck druck(programm, auftrag, drucker);
        QVERIFY(druck.DruckGefilterteListe());
        const Druckseiten seiten = drucker.EndDoc();
        QMap<QString, double> y;
        for (const Drucktext &text : seiten.seiten[0].texte)
            y[text.text] = text.y;
        const double zeile = schriftmass({.Size = 9}).zeilenhoehe();
        QCOMPARE(y.value(u"benu.definierte Eigenschaften: "_s), y.value(u"Apfelsorten"_s) + zeile);
        QCOMPARE(y.value(u"Ausbildung: "_s), y.value(u"Apfelsorten"_s) + 2 * zeile);
    }

    void anschluss_data()
    {
        QTest::addColumn<QList<int>>("formen");
        QTest::addColumn<bool>("rot");
        QTest::addColumn<QStringList>("zeilen");
        const QList<int> keine;
        QTest::newRow("nothing") << keine << false << QStringList{};
        QTest::newRow("first part alone") << QList<int>{0, 3} << false << QStringList{u"Wuchs: |baumartig, aufrecht"_s};
        QTest::newRow("second part alone") << QList<int>{4} << false << QStringList{u"Ferner: |überhängend"_s};
        QTest::newRow("both parts") << QList<int>{0, 4} << false << QStringList{u"Wuchs: |baumartig; ferner überhängend"_s};
        QTest::newRow("another criterion joins") << QList<int>{0, 4} << true << QStringList{u"Wuchs: |baumartig; ferner überhängend, rot"_s};
        QTest::newRow("it joins over a part that is not set") << QList<int>{0} << true << QStringList{u"Wuchs: |baumartig, rot"_s};
        QTest::newRow("it stands alone") << keine << true << QStringList{u"Farbe: |rot"_s};
    }
    /// Parts of one criterion on two lines, two criteria on one: what is not set leaves no comma.
    void anschluss()
    {
        constexpr Druckzeile tabelle[] = {{u"Wuchs: ", "chkWuchsForm", {}, 1, 4},
                                          {u"Ferner: ", "chkWuchsForm", u"; ferner ", 5, 14},
                                          {u"Farbe: ", "lblBlFarbe", u", "},
                                          {u"Höhe: ", "txtMinHoehe"}};
        QFETCH(QList<int>, formen);
        QFETCH(bool, rot);
        Zustand z(Sparte::Topf);
        for (const int i : formen)
            z.waehlen("chkWuchsForm", i);
        if (rot)
            z.waehlen("lblBlFarbe", 4);
        QTEST(alsText(kriterienzeilen(tabelle, z.beschreibung, z.werte, quelle(Sparte::Topf))), "zeilen");
        QFETCH(QStringList, zeilen);
        z.text("txtMinHoehe", u"1"_s);
        QCOMPARE(alsText(kriterienzeilen(tabelle, z.beschreibung, z.werte, quelle(Sparte::Topf))), zeilen + QStringList{u"Höhe: |ab 1 m"_s});
    }

    /// Pictures say nothing about a plant.
    void bilder()
    {
        for (const Sparte sparte : spartenEinerHerkunft()) {
            QCOMPARE(gedruckt(Zustand(sparte).waehlen("chkBild")), QStringList());
            QCOMPARE(gedruckt(Zustand(sparte).waehlen("chkBild").waehlen("chkOhneBild")), QStringList());
        }
    }

    /// The words are those of the items, however their fields are written and wherever they come from.
    void kodierteFelder()
    {
        QCOMPARE(filterfehler(mitKodierten), QString());
        std::vector<Druckzeile> tabelle;
        for (const Kriterium &k : kodierteKriterien)
            tabelle.push_back({u"", k.a.control});
        Filterzustand z = ::vorgabe(mitKodierten);
        for (const auto &[kriterium, i] : {std::pair(0, 4), {1, 13}, {3, 0}, {3, 1}, {4, 0}, {4, 1}, {5, 6}})
            z.kriterien[size_t(kriterium)].a.werte[size_t(i)] = 1;
        z.kriterien[2].b.werte[0] = 1;
        QCOMPARE(
            alsText(kriterienzeilen(tabelle, mitKodierten, z, quelle(Sparte::Friedhof))),
            (QStringList{u"|Staude"_s, u"|bunt"_s, u"|Nadelgehölz"_s, u"|grau, orange"_s, u"|sommergrün, immergrüne Pflanze"_s, u"|überhängend"_s}));
    }

    /// Any state of a dialog prints what is set, in the order of print, and nothing else.
    void zufall()
    {
        Zufall zufall(20240611);
        int leer = 0, viele = 0;
        const std::vector<Sparte> sparten = spartenEinerHerkunft();
        for (int i = 0; i < 1000; ++i) {
            const Sparte sparte = sparten[i % sparten.size()];
            const Zustand z = zufallszustand(sparte, zufall, {u""_s, u"a"_s, u"rot"_s}, {u"- Alle -"_s, u"Araceae"_s});
            QStringList soll, ist;
            for (const Sollzeile &zeile : zeilenVon(sparte)) {
                const auto kriterium = std::ranges::find_if(z.beschreibung.kriterien, [&](const Kriterium &k) {
                    return qstrcmp(k.a.control, zeile.control) == 0 || qstrcmp(k.b.control, zeile.control) == 0;
                });
                const Kriteriumzustand &zustand = z.werte.kriterien[size_t(kriterium - z.beschreibung.kriterien.begin())];
                const bool gesetzt = zeile.worte ? anzahlGewaehlt(kriterium->a, zustand.a) + anzahlGewaehlt(kriterium->b, zustand.b) > 0
                                                 : zeigtAktiv(*kriterium, zustand);
                if (gesetzt)
                    soll += zeile.label.toString();
            }
            for (const Kriteriumzeile &zeile :
                 kriterienzeilen(druckbeschreibung(z.beschreibung.sparte)->kriterien, z.beschreibung, z.werte, quelle(sparte)))
                ist += zeile.label;
            QCOMPARE(ist, soll);
            leer += soll.isEmpty();
            viele += soll.size() > 3;
        }
        QVERIFY(leer < 250 && viele > 125);
    }

private:
    void kriterien(bool nurGruppen = false)
    {
        QTest::addColumn<Sparte>("sparte");
        QTest::addColumn<const Sollzeile *>("zeile");
        for (const Sparte sparte : spartenEinerHerkunft())
            for (const Sollzeile &zeile : zeilenVon(sparte))
                if (zeile.worte || !nurGruppen)
                    QTest::addRow("%s %s", eintrag(sparte).filter, zeile.control) << sparte << &zeile;
    }
    Wortquelle quelle(Sparte sparte) const { return {programm_, eintrag(sparte)}; }
    QString gesagt(const Zustand &z) const
    {
        const Sparte sparte = z.beschreibung.sparte;
        return filtersatz(druckbeschreibung(sparte)->kriterien, z.beschreibung, z.werte, quelle(sparte));
    }
    QStringList gedruckt(const Zustand &z) const
    {
        return alsText(kriterienzeilen(druckbeschreibung(z.beschreibung.sparte)->kriterien, z.beschreibung, z.werte, quelle(z.beschreibung.sparte)));
    }

    Programm programm_;
};

FLOX_TEST(tst_kriteriendruck, TestKriteriendruck)
#include "tst_kriteriendruck.moc"
