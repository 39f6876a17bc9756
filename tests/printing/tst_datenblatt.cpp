#include "Blattprobe.h"

#include "tests/Testprogramm.h"

#include <QSignalSpy>
#include <QTest>

using namespace Qt::StringLiterals;

/* What a plant's data sheet says, as lists of pages. */

class TestDatenblatt : public QObject
{
    Q_OBJECT

private slots:
    void wenigeFelder();
    void vieleFelderTopf();
    void vieleFelderApfel();
    void blattschmuckZweimal();
    void obstOhneBewertung();
    void pflanzeAmSchirm();
    void grenzen_data();
    void grenzen();
    void synonyme_data();
    void synonyme();
    void apfelOhneSynonymtabellen();
    void quelle_data();
    void quelle();
    void wahrheit_data();
    void wahrheit();
    void nieGedruckt();
    void leereWorte();
    void quadratmeter();
    void benutzernamen_data();
    void benutzernamen();
};

/// The places in plain numbers: head, names and foot, the frame and the foot rule.
void TestDatenblatt::wenigeFelder()
{
    Blattprobe probe;
    const Druckseiten seiten = probe.blatt();
    QCOMPARE(alleZeilen(seiten),
             QList<QStringList>{
                 QStringList({u"65.0 20.0 13.5 b Pflanzen-Informations-System"_s, u"65.0 25.5 9 - der Fachhochschule Lindenhof"_s,
                              u"65.0 40.0 18 bi Planta prima"_s, u"65.0 47.3 9 - Erstpflanze"_s,
                              u"65.0 289.0 6 - Ausdruck von Flox 1.2.3  -  © FH Lindenhof"_s, u"172.7 289.0 6 - Planta prima  -  Seite 1 von 1"_s})});
    QCOMPARE(seitenlinien(seiten.seiten[0]),
             QStringList({u"15.0 15.0 200.0 15.0 0.42"_s, u"200.0 15.0 200.0 35.0 0.42"_s, u"200.0 35.0 15.0 35.0 0.42"_s,
                          u"15.0 35.0 15.0 15.0 0.42"_s, u"15.0 287.0 200.0 287.0 0.42"_s}));
    QCOMPARE(blattfehler(seiten, probe.programm), QStringList());
    probe.programm.ProgrammVersion = u"7.0.1"_s;
    const QStringList texte = seitentexte(probe.blatt().seiten[0]);
    QCOMPARE(texte[texte.size() - 2], u"Ausdruck von Flox 7.0.1  -  © FH Lindenhof"_s);
}

void TestDatenblatt::vieleFelderTopf()
{
    Blattprobe probe(Sparte::Topf, {{u"HK"_s, u"S-Am., Eur."_s},
                                    {u"FAMILIE"_s, 9999},
                                    {u"PFLANZTYP"_s, flags({2, 4})},
                                    {u"MINHOEHE"_s, 0.3},
                                    {u"MAXHOEHE"_s, 2},
                                    {u"BLMINH"_s, 0.05},
                                    {u"BLMAXH"_s, 0.6},
                                    {u"BLUEHZEIT"_s, flags({3, 4, 12})},
                                    {u"FRUCHTZEIT"_s, flags({1})},
                                    {u"FARBEN"_s, flags({1, 13})},
                                    {u"UNSCHEINBA"_s, u"True"_s},
                                    {u"FRUCHTFARB"_s, flags({7, 8})},
                                    {u"BLATTFARB"_s, flags({9})},
                                    {u"ANGEBOTSZ"_s, flags({5})},
                                    {u"WUCHSFORM"_s, flags({1, 13})},
                                    {u"VERWENDUNG"_s, flags({1, 8})},
                                    {u"TAGESL"_s, flags({2})},
                                    {u"SONNE"_s, flags({2, 3})},
                                    {u"LICHTMIN"_s, 800},
                                    {u"LICHTMAX"_s, 1500},
                                    {u"TEMPMIN"_s, -5},
                                    {u"TEMPMAX"_s, 24.5},
                                    {u"NACHDUENG"_s, flags({3})},
                                    {u"H_WASSERST"_s, flags({1})},
                                    {u"H_PH"_s, flags({2})},
                                    {u"H_VERW"_s, flags({1, 5})},
                                    {u"HALTBAR"_s, flags({2})},
                                    {u"KRANKH"_s, flags({1})},
                                    {u"GIFTIG"_s, u"True"_s},
                                    {u"SORTEN"_s, u"'Alba'; \u00EC\n'Rubra'"_s},
                                    {u"SCHADEN"_s, u"Blattläuse"_s},
                                    {u"BEMERKUNG"_s, u"Erste Zeile\r\nZweite Zeile"_s},
                                    {u"DUENG_FS"_s, u"wöchentlich 3 g/m2"_s},
                                    {u"DUENG_HW"_s, u"keine"_s},
                                    {u"Quelle"_s, u"z"_s},
                                    {u"STANDARD"_s, u"True"_s},
                                    {u"benu_bemerkung"_s, u"eigener Text"_s},
                                    {u"benu_eigen"_s, flags({1, 5})},
                                    {u"bewertung"_s, 5},
                                    {u"Ausbildung"_s, flags({1, 6})},
                                    {u"Benu_Aenderung"_s, 2}});
    probe.auftrag.arbeit->Execute(u"INSERT INTO Familien (FAMILIE, FAMNAME) VALUES (9999, 'Musteraceae')"_s);
    probe.synonym(u"Zweitname"_s, true);
    probe.synonym(u"Altname"_s, true);
    probe.synonym(u"Planta secunda"_s, false);
    probe.programm.BenutzerNamen[size_t(Sparte::Topf)] = {u"im Haus"_s, u"b"_s, u"c"_s, u"d"_s, u"im Katalog"_s};
    const Druckseiten seiten = probe.blatt();
    // clang-format off
    const Sollseiten erwartet = Sollseiten()
        .titel(u"Planta prima"_s)
        .text(15, u"Botanischer Name laut 'Zander'"_s).ende()
        .eintrag({}, u"Erstpflanze, Zweitname, Altname"_s)
        .eintrag(u"Synonyme"_s, u"Planta secunda"_s)
        .eintrag(u"Heimat"_s, u"S-Am., Eur."_s)
        .eintrag(u"Familie"_s, u"Musteraceae"_s)
        .eintrag(u"Typ"_s, u"Blütenpflanze, Sukkulente"_s)
        .eintrag(u"Höhe"_s, u"0,3 - 2 m"_s)
        .eintrag(u"Wuchsform"_s, u"baumartig, rosettenbildend"_s)
        .eintrag(u"Verwendung"_s, u"für den Innenraum, für die Vitrine"_s)
        .eintrag(u"Blattfarbe"_s, u"panaschiert"_s)
        .eintrag(u"Blütezeit"_s, u"März, April, Dezember"_s)
        .eintrag(u"Blütenfarbe"_s, u"weiß, bunt"_s)
        .eintrag({}, u"Die Blüten sind unscheinbar!"_s)
        .eintrag(u"Blütenhöhe"_s, u"0,05 - 0,6 m"_s)
        .eintrag(u"Fruchtzeit"_s, u"Januar"_s)
        .eintrag(u"Fruchtfarbe"_s, u"lila, violett"_s)
        .eintrag({}, u"Giftpflanze"_s)
        .eintrag(u"Angebotszeit"_s, u"Mai"_s)
        .eintrag(u"Haltbarkeit"_s, u"mittel"_s)
        .eintrag(u"Lichtverträglichkeit"_s, u"halbschattig, schattig"_s)
        .eintrag(u"Tageslängenreaktion"_s, u"Kurztagpflanze"_s)
        .eintrag(u"Beleuchtungsstärke"_s, u"800 - 1500 Lux"_s)
        .eintrag(u"Temperatur"_s, u"-5 - 24,5 °C"_s)
        .eintrag(u"Höhe der Nachdüngung"_s, u"stark"_s)
        .eintrag(u"Düngung Frühjahr/Sommer"_s, u"wöchentlich 3 g/m²"_s)
        .eintrag(u"Düngung Herbst/Winter"_s, u"keine"_s)
        .eintrag(u"Hydrokultur-Wasserstand"_s, u"Minimum (niedrig < 1 cm)"_s)
        .eintrag(u"Hydrokultur-pH"_s, u"hoch (6-7)"_s)
        .eintrag(u"Hydrokultur-Verwendung"_s, u"Solitär, Hängepflanze"_s)
        .eintrag(u"Krankheitsanfälligkeit"_s, u"gering"_s)
        .eintrag(u"Krankheiten/Schädlinge"_s, u"Blattläuse"_s)
        .eintrag(u"Bemerkung (Flox)"_s, {u"Erste Zeile"_s, u"Zweite Zeile"_s})
        .eintrag(u"Sorten"_s, u"'Alba'; 'Rubra'"_s)
        .eintrag(u"Bemerkung (Benutzer)"_s, u"eigener Text"_s)
        .eintrag(u"Benutzerdef. Eigenschaften"_s, u"im Haus, im Katalog"_s)
        .eintrag(u"Für Azubis"_s, u"bei Zierpflanzengärtnern, bei Landschaftsgärtnern"_s);
    // clang-format on
    QCOMPARE(alleZeilen(seiten), erwartet.zeilen());
    QCOMPARE(blattfehler(seiten, probe.programm), QStringList());
}

void TestDatenblatt::vieleFelderApfel()
{
    // The last word of each vocabulary, in the order of print; the words behind these do not exist.
    struct
    {
        QString label, spalte;
        int stelle;
        QString wort;
    } gruppen[] = {
        {u"Haltbarkeit"_s, u"haltbark"_s, 4, u"Lager (> 3)"_s},
        {u"Fruchtgröße"_s, u"fruchtgr"_s, 4, u"sehr groß"_s},
        {u"Form (Längs)"_s, u"form_l"_s, 10, u"symmetrisch"_s},
        {u"Form (Quer)"_s, u"form_q"_s, 5, u"kantig"_s},
        {u"Fruchtrelief"_s, u"fruchtrel"_s, 6, u"ebenmäßig"_s},
        {u"Aussehen, Griffigkeit"_s, u"aussehen"_s, 11, u"schwammig"_s},
        {u"Druckfestigeit"_s, u"druck"_s, 3, u"hart"_s},
        {u"Grundfarbe"_s, u"grundfarbe"_s, 7, u"scheckig"_s},
        {u"Deckfarbe"_s, u"deckfarbe"_s, 5, u"nicht vorhanden"_s},
        {u"Deckfarbe Art"_s, u"df_art"_s, 9, u"verwaschen"_s},
        {u"Ausdehnung der Deckfarbe"_s, u"df_ausdehn"_s, 4, u"ganz"_s},
        {u"Berostung"_s, u"rost"_s, 8, u"schollig"_s},
        {u"Reif"_s, u"reif"_s, 8, u"stark"_s},
        {u"Schalenpunkte/ -höfe"_s, u"sch_punkt"_s, 26, u"in Grund-/Deckfarbe meist verschieden"_s},
        {u"Kelchgrube"_s, u"k_grube"_s, 7, u"weit"_s},
        {u"Kelchgrubenrelief"_s, u"k_relief"_s, 7, u"Fleischperlen"_s},
        {u"Kelchumgebung"_s, u"k_umgebung"_s, 4, u"Rippen"_s},
        {u"Kelchgrubenberostung"_s, u"k_berost"_s, 5, u"netzartig"_s},
        {u"Kelchgröße"_s, u"k_groesse"_s, 3, u"klein"_s},
        {u"Kelchöffnung"_s, u"k_oeffnung"_s, 3, u"offen"_s},
        {u"Kelchblätter"_s, u"k_blaetter"_s, 20, u"dunkelbraun"_s},
        {u"Stiellänge/-dicke"_s, u"st_laenge"_s, 6, u"dick"_s},
        {u"Stiel Besonderheiten"_s, u"st_besond"_s, 10, u"rotbraun"_s},
        {u"Stielgrubengröße"_s, u"st_grube"_s, 6, u"tief"_s},
        {u"Stielgrubenberostung"_s, u"st_berost"_s, 14, u"gelb"_s},
        {u"Kelchhöhle"_s, u"k_hoehle"_s, 9, u"breit"_s},
        {u"Kelchröhre"_s, u"k_roehre"_s, 7, u"schmal"_s},
        {u"Kernhausgröße"_s, u"kh_groesse"_s, 3, u"groß"_s},
        {u"Gefäßbündel"_s, u"g_buendel"_s, 8, u"hoch"_s},
        {u"Achsenhöhle"_s, u"a_hoehle"_s, 3, u"weit offen"_s},
        {u"Kernhauskammern"_s, u"k_kammern"_s, 2, u"weit"_s},
        {u"Kernwandform"_s, u"kw_form"_s, 5, u"rucksackförmig"_s},
        {u"Kernwandgröße"_s, u"kw_groesse"_s, 6, u"glänzend"_s},
        {u"Kernwandrisse"_s, u"kw_risse"_s, 7, u"stark wattig belegt"_s},
        {u"Kerne Anzahl"_s, u"k_anzahl"_s, 3, u"> 7"_s},
        {u"Kerne Qualität"_s, u"k_qualit"_s, 3, u"alle taub"_s},
        {u"Kerne Farbe, Form"_s, u"k_farbe"_s, 18, u"seitlich stumpfnasig"_s},
        {u"Kerne Länge"_s, u"k_laenge"_s, 3, u"lang (> 9 mm)"_s},
        {u"Schale"_s, u"schale"_s, 3, u"derb"_s},
        {u"Fruchtfleisch Farbe"_s, u"fl_farbe"_s, 6, u"stark anlaufend"_s},
        {u"Fruchtfleisch Struktur"_s, u"fl_strukt"_s, 11, u"mehlig"_s},
        {u"Fruchtfleisch Duft"_s, u"fl_duft"_s, 6, u"sortentypisch"_s},
        {u"Geschmack"_s, u"geschmack"_s, 16, u"würzig"_s},
        {u"Literatur"_s, u"literatur1"_s, 20, u"Hartmann: Farbatlas alte Obstsorten"_s},
    };
    Blattprobe probe(Sparte::Apfel, {{u"synonym"_s, u"Zweitapfel, Altapfel"_s},
                                     {u"besonderht"_s, u"Zufallssämling"_s},
                                     {u"benu_bemerkung"_s, u"eigener Text"_s},
                                     {u"benu_eigen"_s, flags({2, 3})},
                                     {u"SORTEN"_s, u"ungedruckt"_s},
                                     {u"BEMERKUNG"_s, u"ungedruckt"_s},
                                     {u"bewertung"_s, 9},
                                     {u"Ausbildung"_s, flags({5})},
                                     {u"Benu_Aenderung"_s, 2}});
    probe.programm.BenutzerNamen[size_t(Sparte::Apfel)] = {u"a"_s, u"im Garten"_s, u"im Keller"_s, u"d"_s, u"e"_s};
    Sollseiten erwartet = blattanfang(Sparte::Apfel).eintrag(u"Synonyme"_s, u"Zweitapfel, Altapfel"_s);
    for (const auto &gruppe : gruppen) {
        probe.setzen({{gruppe.spalte, flags({gruppe.stelle, gruppe.stelle + 1})}});
        erwartet.eintrag(gruppe.label, gruppe.wort);
    }
    erwartet.eintrag(u"Besonderheiten"_s, u"Zufallssämling"_s)
        .eintrag(u"Bemerkung (Benutzer)"_s, u"eigener Text"_s)
        .eintrag(u"Benutzerdef. Eigenschaften"_s, u"im Garten, im Keller"_s);
    const Druckseiten seiten = probe.blatt();
    QCOMPARE(alleZeilen(seiten), erwartet.zeilen());
    QCOMPARE(blattfehler(seiten, probe.programm), QStringList());
}

/// A perennial's sheet has the leaves twice and the lime of its soil never.
void TestDatenblatt::blattschmuckZweimal()
{
    Blattprobe probe(Sparte::Stauden, {{u"blaschmuck"_s, u"True"_s},
                                       {u"kalk"_s, u"111"_s},
                                       {u"bfeuchte"_s, flags({1})},
                                       {u"licht"_s, flags({1})},
                                       {u"duengung"_s, u"2 g/m2"_s},
                                       {u"Quelle"_s, u"n"_s},
                                       {u"abstand"_s, u"5"_s},
                                       {u"bewertung"_s, 9}});
    const Druckseiten seiten = probe.blatt();
    // clang-format off
    const Sollseiten erwartet = Sollseiten().titel(u"Planta prima"_s)
        .text(15, u"Botanischer Name laut 'Namenliste Stauden'"_s).ende()
        .eintrag({}, u"Erstpflanze"_s)
        .eintrag({}, u"Blattschmuckstaude"_s)
        .eintrag(u"Bodenfeuchte"_s, WL_Bodenfeuchte.wort(1).toString())
        .eintrag(u"Lichtverträglichkeit"_s, u"sonnig"_s)
        .eintrag({}, u"Blattschmuckstaude"_s)
        .eintrag(u"Düngung"_s, u"2 g/m²"_s)
        .eintrag(u"Pflanzabstand"_s, u"5"_s);
    // clang-format on
    QCOMPARE(alleZeilen(seiten), erwartet.zeilen());
    QCOMPARE(blattfehler(seiten, probe.programm), QStringList());
}

void TestDatenblatt::obstOhneBewertung()
{
    Blattprobe probe(Sparte::Obst, {{u"HK"_s, u"Eur."_s}, {u"SOTBEW"_s, u"gut"_s}, {u"bewertung"_s, 9}, {u"Ausbildung"_s, flags({5})}});
    QCOMPARE(alleZeilen(probe.blatt()), Sollseiten()
                                            .titel(u"Planta prima"_s)
                                            .eintrag(u"Obstart"_s, u"Erstpflanze"_s)
                                            .eintrag(u"Herkunft"_s, u"Eur."_s)
                                            .eintrag(u"Sortenbewertung"_s, u"gut"_s)
                                            .eintrag(u"Für Azubis"_s, u"bei Obstbauern"_s)
                                            .zeilen());
}

/// The plant that the set stands on is the one printed, and the set stays there; without a plant head and foot remain.
void TestDatenblatt::pflanzeAmSchirm()
{
    Druckprobe probe(Sparte::Topf);
    for (const int stelle : {0, 7, 8, int(probe.pflanzen->RecordCount()) - 1}) {
        probe.pflanzen->setAbsolutePosition(stelle);
        const QString name = probe.pflanzen->Fields(u"BOT_NAME").Text();
        QCOMPARE(seitentexte(probe.blatt().seiten[0])[2], name);
        QCOMPARE(probe.pflanzen->AbsolutePosition(), stelle);
    }
    probe.namenReihe(0);
    QCOMPARE(alleZeilen(probe.blatt()), Sollseiten().zeilen());
    probe.auftrag.pflanzen = nullptr;
    QCOMPARE(alleZeilen(probe.blatt()), Sollseiten().zeilen());
}

void TestDatenblatt::grenzen_data()
{
    QTest::addColumn<QString>("unten");
    QTest::addColumn<QString>("oben");
    QTest::addColumn<QString>("label");
    QTest::addColumn<QVariant>("von");
    QTest::addColumn<QVariant>("bis");
    QTest::addColumn<QString>("text");
    struct
    {
        QString unten, oben, label, einheit;
    } paare[] = {{u"MINHOEHE"_s, u"MAXHOEHE"_s, u"Höhe"_s, u" m"_s},
                 {u"BLMINH"_s, u"BLMAXH"_s, u"Blütenhöhe"_s, u" m"_s},
                 {u"LICHTMIN"_s, u"LICHTMAX"_s, u"Beleuchtungsstärke"_s, u" Lux"_s},
                 {u"TEMPMIN"_s, u"TEMPMAX"_s, u"Temperatur"_s, u" °C"_s}};
    struct
    {
        QVariant von, bis;
        QString text;
    } faelle[] = {{{}, {}, {}},          {0.25, 12, u"0,25 - 12"_s},  {0.25, {}, u"mind. 0,25"_s}, {{}, 12.5, u"max. 12,5"_s},
                  {0, {}, u"mind. 0"_s}, {{}, 0, u"max. 0"_s},        {0, 3, u"0 - 3"_s},          {-3, 0, u"-3 - 0"_s},
                  {0, 0, u"0 - 0"_s},    {-8.5, {}, u"mind. -8,5"_s}, {4, 4, u"4 - 4"_s}};
    for (const auto &paar : paare)
        for (const auto &fall : faelle)
            QTest::addRow("%s '%s'", qPrintable(paar.label), qPrintable(fall.text))
                << paar.unten << paar.oben << paar.label << fall.von << fall.bis << (fall.text.isEmpty() ? QString() : fall.text + paar.einheit);
}

/// One line with the unit once; nothing but an empty bound counts as missing.
void TestDatenblatt::grenzen()
{
    QFETCH(const QString, unten);
    QFETCH(const QString, oben);
    QFETCH(const QString, label);
    QFETCH(const QVariant, von);
    QFETCH(const QVariant, bis);
    QFETCH(const QString, text);
    Blattprobe probe(Sparte::Topf, {{unten, von}, {oben, bis}});
    Sollseiten erwartet = blattanfang();
    if (!text.isEmpty())
        erwartet.eintrag(label, text);
    QCOMPARE(alleZeilen(probe.blatt()), erwartet.zeilen());
}

void TestDatenblatt::synonyme_data()
{
    QTest::addColumn<QStringList>("botanische");
    QTest::addColumn<QStringList>("deutsche");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("erste");
    QTest::addColumn<QString>("zweite");
    const QString n = u"Erstpflanze"_s;
    QTest::newRow("none") << QStringList() << QStringList() << n << n << QString();
    QTest::newRow("German") << QStringList() << QStringList({u"Zitat"_s, u"Aster"_s}) << n << u"Erstpflanze, Zitat, Aster"_s << QString();
    QTest::newRow("botanical") << QStringList({u"Zea mays"_s, u"Abies alba"_s}) << QStringList() << n << n << u"Zea mays, Abies alba"_s;
    QTest::newRow("both") << QStringList(u"Zea mays"_s) << QStringList(u"Aster"_s) << n << u"Erstpflanze, Aster"_s << u"Zea mays"_s;
    // The place of an empty name is skipped with all that belongs to it.
    QTest::newRow("no name") << QStringList(u"Zea mays"_s) << QStringList(u"Aster"_s) << QString() << QString() << QString();
}

void TestDatenblatt::synonyme()
{
    QFETCH(const QStringList, botanische);
    QFETCH(const QStringList, deutsche);
    QFETCH(const QString, name);
    QFETCH(const QString, erste);
    QFETCH(const QString, zweite);
    Blattprobe probe(Sparte::Topf, {{u"DTNAM"_s, name}, {u"HK"_s, u"Chile"_s}});
    for (const QString &text : botanische)
        probe.synonym(text, false);
    for (const QString &text : deutsche)
        probe.synonym(text, true);
    // Another plant's names do not matter.
    probe.auftrag.arbeit->Execute(u"INSERT INTO Topfpfl_Synonyme_Deutsch (ARTNR, SYN) VALUES (?, 'fremd')"_s, {probe.pflanzen->Schluessel() + 1});
    Sollseiten erwartet = Sollseiten().titel(u"Planta prima"_s);
    if (!erste.isEmpty())
        erwartet.eintrag({}, erste);
    if (!zweite.isEmpty())
        erwartet.eintrag(u"Synonyme"_s, zweite);
    QCOMPARE(alleZeilen(probe.blatt()), erwartet.eintrag(u"Heimat"_s, u"Chile"_s).zeilen());
}

/// Apples have their synonyms as a text; a potted plant of the same number lends them none.
void TestDatenblatt::apfelOhneSynonymtabellen()
{
    Blattprobe probe(Sparte::Apfel);
    probe.synonym(u"fremd"_s, true);
    probe.synonym(u"aliena"_s, false);
    QCOMPARE(alleZeilen(probe.blatt()), blattanfang(Sparte::Apfel).zeilen());
}

void TestDatenblatt::quelle_data()
{
    QTest::addColumn<QString>("buchstabe");
    QTest::addColumn<QString>("werk");
    QTest::newRow("z") << u"z"_s << u"Zander"_s;
    QTest::newRow("s") << u"s"_s << u"spezielle Erklärung"_s;
    QTest::newRow("n") << u"n"_s << u"Namenliste Stauden"_s;
    QTest::newRow("c") << u"c"_s << u"Classified List and International Register of Tulip Names"_s;
    for (const QString &unbekannt : {u"g"_s, u"x"_s, u"Z"_s, u"zs"_s, u" "_s, u"0"_s})
        QTest::addRow("unknown '%s'", qPrintable(unbekannt)) << unbekannt << QString();
}

/// An unknown letter takes no line.
void TestDatenblatt::quelle()
{
    QFETCH(const QString, buchstabe);
    QFETCH(const QString, werk);
    Blattprobe probe(Sparte::Topf, {{u"Quelle"_s, buchstabe}});
    Sollseiten erwartet = Sollseiten().titel(u"Planta prima"_s);
    if (!werk.isEmpty())
        erwartet.text(15, u"Botanischer Name laut '%1'"_s.arg(werk)).ende();
    const Druckseiten seiten = probe.blatt();
    QCOMPARE(alleZeilen(seiten), erwartet.eintrag({}, u"Erstpflanze"_s).zeilen());
    QCOMPARE(blattfehler(seiten, probe.programm), QStringList());
}

void TestDatenblatt::wahrheit_data()
{
    QTest::addColumn<QString>("wert");
    QTest::addColumn<bool>("wahr");
    for (const QString &wert : {u"True"_s, u"Wahr"_s, u"-1"_s, u"1"_s})
        QTest::addRow("'%s'", qPrintable(wert)) << wert << true;
    for (const QString &wert : {u"False"_s, u"Falsch"_s, u"0"_s, u""_s})
        QTest::addRow("'%s'", qPrintable(wert)) << wert << false;
}

void TestDatenblatt::wahrheit()
{
    QFETCH(const QString, wert);
    QFETCH(const bool, wahr);
    for (const auto &[spalte, satz] : {std::pair(u"GIFTIG"_s, u"Giftpflanze"_s), std::pair(u"UNSCHEINBA"_s, u"Die Blüten sind unscheinbar!"_s)}) {
        Blattprobe probe(Sparte::Topf, {{spalte, wert}, {u"SORTEN"_s, u"'Alba'"_s}});
        Sollseiten erwartet = blattanfang();
        if (wahr)
            erwartet.eintrag({}, satz);
        QCOMPARE(alleZeilen(probe.blatt()), erwartet.eintrag(u"Sorten"_s, u"'Alba'"_s).zeilen());
    }
}

void TestDatenblatt::nieGedruckt()
{
    for (const QString &standard : {u"True"_s, u"False"_s, u"1"_s})
        for (const int bewertung : {1, 5, 9}) {
            Blattprobe probe(Sparte::Topf, {{u"STANDARD"_s, standard}, {u"bewertung"_s, bewertung}, {u"Ausbildung"_s, flags({4})}});
            QCOMPARE(alleZeilen(probe.blatt()), blattanfang().eintrag(u"Für Azubis"_s, u"bei Friedhofsgärtnern"_s).zeilen());
        }
}

/// A value without words takes no line: flags without a "1" or beyond the words, a family that is not there.
void TestDatenblatt::leereWorte()
{
    Blattprobe probe(Sparte::Topf, {{u"FAMILIE"_s, 31999},
                                    {u"PFLANZTYP"_s, u"00000"_s},
                                    {u"WUCHSFORM"_s, u"     "_s},
                                    {u"BLATTFARB"_s, flags({10})},
                                    {u"BLUEHZEIT"_s, u"000000000000"_s},
                                    {u"benu_eigen"_s, u"     "_s},
                                    {u"Ausbildung"_s, u"000000"_s},
                                    {u"BEMERKUNG"_s, u"\u00EC\n"_s},
                                    {u"HK"_s, u" "_s},
                                    {u"SCHADEN"_s, u"\r\n \r\n"_s},
                                    {u"benu_bemerkung"_s, u"\n"_s},
                                    {u"SORTEN"_s, u"'Alba'"_s}});
    probe.auftrag.arbeit->Execute(u"DELETE FROM Familien WHERE FAMILIE = 31999"_s);
    QCOMPARE(alleZeilen(probe.blatt()), blattanfang().eintrag(u"Sorten"_s, u"'Alba'"_s).zeilen());
}

/// The sign stands in entries of one line, not in wrapped texts nor in the title.
void TestDatenblatt::quadratmeter()
{
    Blattprobe probe(Sparte::Topf, {{u"BOT_NAME"_s, u"Planta m2"_s},
                                    {u"DTNAM"_s, u"10 m2"_s},
                                    {u"DUENG_FS"_s, u"2 g/m2 oder 3 g/m2"_s},
                                    {u"BEMERKUNG"_s, u"5 je m2\n6 je m2"_s},
                                    {u"benu_bemerkung"_s, u"7 je m2"_s}});
    // clang-format off
    const Sollseiten erwartet = Sollseiten().titel(u"Planta m2"_s).eintrag({}, u"10 m²"_s)
        .eintrag(u"Düngung Frühjahr/Sommer"_s, u"2 g/m² oder 3 g/m²"_s).eintrag(u"Bemerkung (Flox)"_s, {u"5 je m2"_s, u"6 je m2"_s})
        .eintrag(u"Bemerkung (Benutzer)"_s, u"7 je m²"_s);
    // clang-format on
    QCOMPARE(alleZeilen(probe.blatt()), erwartet.zeilen());
}

void TestDatenblatt::benutzernamen_data()
{
    QTest::addColumn<Sparte>("sparte");
    for (const Sparte sparte : spartenEinerHerkunft())
        QTest::newRow(eintrag(sparte).filter) << sparte;
}

/// Each Sparte has its own names, and those of the moment hold.
void TestDatenblatt::benutzernamen()
{
    QFETCH(const Sparte, sparte);
    Blattprobe probe(sparte, {{u"benu_eigen"_s, u" 1 11"_s}});
    for (auto &namen : probe.programm.BenutzerNamen)
        namen = {u"f1"_s, u"f2"_s, u"f3"_s, u"f4"_s, u"f5"_s};
    auto &namen = probe.programm.BenutzerNamen[size_t(sparte)];
    namen = {u"a"_s, u"im Haus"_s, u"c"_s, u"am Weg"_s, u"im Katalog"_s};
    const QString label = u"Benutzerdef. Eigenschaften"_s;
    QCOMPARE(alleZeilen(probe.blatt()), blattanfang(sparte).eintrag(label, u"im Haus, am Weg, im Katalog"_s).zeilen());
    namen[3] = u"am See"_s;
    QCOMPARE(alleZeilen(probe.blatt()), blattanfang(sparte).eintrag(label, u"im Haus, am See, im Katalog"_s).zeilen());
}

FLOX_TEST(tst_datenblatt, TestDatenblatt)
#include "tst_datenblatt.moc"
