#include "store/Positionen.h"
#include "store/Schema.h"
#include "tests/Testprogramm.h"

#include <QSet>
#include <QTest>

namespace {

struct Probe
{
    const char *name;
    const Werteliste &liste;
    int anzahl;
    QStringView erstes, letztes;
    std::pair<int, QStringView> weitere[7] = {}; ///< words that look like slips and are none
};

constexpr QStringView dreiWorte[] = {u"rot", u"gelb", u"blau"};
constexpr Werteliste dreiFarben{dreiWorte};

// clang-format off
constexpr Probe proben[] = {
    {"Monate", WL_Monate, 12, u"Januar", u"Dezember", {}},
    {"Licht", WL_Licht, 3, u"sonnig", u"schattig", {}},
    {"Bodenart", WL_Bodenart, 6, u"humos", u"durchlässig", {}},
    {"Bodenfeuchte", WL_Bodenfeuchte, 4, u"trocken", u"dauernaß", {}},
    {"Kalk", WL_Kalk, 3, u"kalkarm", u"kalkreich", {}},
    {"Naehrstoff", WL_Naehrstoff, 3, u"nährstoffarm", u"nährstoffreich", {}},
    {"Geselligkeit", WL_Geselligkeit, 5, u"möglichst einzeln oder in kleinen Tuffs pflanzen",
     u"vorwiegend großflächig pflanzen", {{4, u"in großen Kolonien, ausgesprochen flächig pflanzen"}}},
    {"Lebensbereich", WL_Lebensbereich, 31, u"I G", u"GR3", {}},
    {"Pflanzenart", WL_Pflanzenart, 10, u"einjährig", u"Wasserpflanze", {{5, u"Staude"}, {6, u"Strauch"}}},
    {"Urteil", WL_Urteil, 7, u"vorzügliche Sorte", u"wertvolle Wildstaude", {}},
    {"Bluetenfarbe", WL_Bluetenfarbe, 13, u"weiß", u"bunt", {{6, u"dunkelrot"}, {8, u"violett"}, {9, u"lila"}}},
    {"Fruchtfarbe", WL_Fruchtfarbe, 14, u"weiß", u"bunt", {{7, u"violett"}, {8, u"lila"}, {12, u"grün"}}},
    {"Ausbildung", WL_Ausbildung, 6, u"bei Zierpflanzengärtnern", u"bei Landschaftsgärtnern", {}},
    {"StBlattfarbe", WL_StBlattfarbe, 14, u"hellgrün", u"filzig", {}},
    {"ToPflanztyp", WL_ToPflanztyp, 6, u"Grünpflanze", u"Giftpflanze", {}},
    {"ToBlattfarbe", WL_ToBlattfarbe, 9, u"hellgrün", u"panaschiert", {}},
    {"ToFruchtfarbe", WL_ToFruchtfarbe, 13, u"weiß", u"bunt", {{7, u"lila"}, {8, u"violett"}, {12, u"schwarz"}}},
    {"ToTageslaenge", WL_ToTageslaenge, 3, u"neutral", u"Langtagpflanze", {}},
    {"ToHWasserstand", WL_ToHWasserstand, 3, u"Minimum (niedrig < 1 cm)", u"Maximum (hoch 3-5 cm)", {}},
    {"ToHPh", WL_ToHPh, 2, u"niedrig (4-5)", u"hoch (6-7)", {}},
    {"ToHVerwendung", WL_ToHVerwendung, 5, u"Solitär", u"Hängepflanze", {}},
    {"ToKrankheit", WL_ToKrankheit, 3, u"gering", u"hoch", {}},
    {"ToNachduengung", WL_ToNachduengung, 3, u"schwach", u"stark", {}},
    {"ToWuchsform", WL_ToWuchsform, 14, u"baumartig", u"kletternd", {}},
    {"ToHaltbarkeit", WL_ToHaltbarkeit, 3, u"kurz", u"lang", {}},
    {"ToVerwendung", WL_ToVerwendung, 8, u"für den Innenraum", u"für die Vitrine", {}},
    {"GeLaubfarbe", WL_GeLaubfarbe, 13, u"hellgrün", u"gefleckt", {{8, u"graugrün"}, {10, u"bläulich rot"}, {11, u"graugrün"}}},
    {"GeGrobeinteilung", WL_GeGrobeinteilung, 2, u"Laubgehölz", u"Nadelgehölz", {}},
    {"GeGenuss", WL_GeGenuss, 4, u"eßbar", u"Stark giftig!!!", {}},
    {"GeBesMerkmale", WL_GeBesMerkmale, 4, u"dornig", u"Triebe behaart/filzig", {}},
    {"GeBodenart", WL_GeBodenart, 7, u"humos", u"tiefgründig", {}},
    {"GeBodenfeuchte", WL_GeBodenfeuchte, 4, u"trocken", u"nass", {}},
    {"GeLaubzeit", WL_GeLaubzeit, 4, u"sommergrün", u"Herbstfärbung!", {}},
    {"GeWurzelform", WL_GeWurzelform, 7, u"ausläuferbildend", u"dicht", {}},
    {"GeWurzelempf", WL_GeWurzelempf, 3, u"tolerant", u"sehr empfindlich", {}},
    {"GeBodenPh", WL_GeBodenPh, 3, u"sauer", u"basisch", {}},
    {"GeBesEigenschaften", WL_GeBesEigenschaften, 5, u"windfest", u"stadtklimafest", {}},
    {"GeGroesse", WL_GeGroesse, 8, u"Großbaum (20-40 m)", u"Klettergehölz", {{2, u"mittelgroßer Baum (12/15-20 m)"},
     {5, u"Normalstrauch (1,5-3 m)"}}},
    {"GeHabitus", WL_GeHabitus, 16, u"bizarre Wuchsform", u"rasenbildend", {}},
    {"GeWuchs", WL_GeWuchs, 3, u"schnell", u"langsam", {}},
    {"GeVerwendung", WL_GeVerwendung, 23, u"als heimische Pflanze", u"zur Treiberei", {}},
    {"ApHaltbark", WL_ApHaltbark, 4, u"Sommer (bis 9)", u"Lager (> 3)", {}},
    {"ApFruchtgr", WL_ApFruchtgr, 4, u"klein", u"sehr groß", {}},
    {"ApFormL", WL_ApFormL, 10, u"flach", u"symmetrisch", {}},
    {"ApFormQ", WL_ApFormQ, 5, u"rund", u"kantig", {}},
    {"ApFruchtrel", WL_ApFruchtrel, 6, u"Kanten", u"ebenmäßig", {}},
    {"ApAussehen", WL_ApAussehen, 11, u"glatt", u"schwammig", {}},
    {"ApDruck", WL_ApDruck, 3, u"weich", u"hart", {}},
    {"ApGrundfarbe", WL_ApGrundfarbe, 7, u"grün", u"scheckig", {}},
    {"ApDeckfarbe", WL_ApDeckfarbe, 5, u"orange", u"nicht vorhanden", {}},
    {"ApDfArt", WL_ApDfArt, 9, u"gesprenkelt", u"verwaschen", {}},
    {"ApDfAusdehn", WL_ApDfAusdehn, 4, u"wenig", u"ganz", {}},
    {"ApRost", WL_ApRost, 8, u"flächig", u"schollig", {}},
    {"ApReif", WL_ApReif, 8, u"abwischbar", u"stark", {}},
    {"ApSchPunkt", WL_ApSchPunkt, 26, u"auffällig", u"in Grund-/Deckfarbe meist verschieden",
     {{11, u"veränderlich, je nach Lage"}, {17, u"veränderlich, je nach Fruchtlage"}}},
    {"ApKGrube", WL_ApKGrube, 7, u"flach", u"weit", {}},
    {"ApKRelief", WL_ApKRelief, 7, u"Teller", u"Fleischperlen", {}},
    {"ApKUmgebung", WL_ApKUmgebung, 4, u"eben", u"Rippen", {}},
    {"ApKBerost", WL_ApKBerost, 5, u"Punktrost", u"netzartig", {}},
    {"ApKGroesse", WL_ApKGroesse, 3, u"groß", u"klein", {}},
    {"ApKOeffnung", WL_ApKOeffnung, 3, u"geschlossen", u"offen", {}},
    {"ApKBlaetter", WL_ApKBlaetter, 20, u"am Grunde getrennt", u"dunkelbraun", {}},
    {"ApStLaenge", WL_ApStLaenge, 6, u"kurz", u"dick", {}},
    {"ApStBesond", WL_ApStBesond, 10, u"versenkt", u"rotbraun", {}},
    {"ApStGrube", WL_ApStGrube, 6, u"eng", u"tief", {}},
    {"ApStBerost", WL_ApStBerost, 14, u"flächig", u"gelb", {}},
    {"ApKHoehle", WL_ApKHoehle, 9, u"dreieckig", u"breit", {}},
    {"ApKRoehre", WL_ApKRoehre, 7, u"kurz", u"schmal", {}},
    {"ApKhGroesse", WL_ApKhGroesse, 3, u"klein", u"groß", {}},
    {"ApGBuendel", WL_ApGBuendel, 8, u"grünlich", u"hoch", {}},
    {"ApAHoehle", WL_ApAHoehle, 3, u"geschlossen", u"weit offen", {}},
    {"ApKKammern", WL_ApKKammern, 2, u"eng", u"weit", {}},
    {"ApKwForm", WL_ApKwForm, 5, u"bogenförmig", u"rucksackförmig", {}},
    {"ApKwGroesse", WL_ApKwGroesse, 6, u"schmal", u"glänzend", {}},
    {"ApKwRisse", WL_ApKwRisse, 7, u"nicht vorhanden", u"stark wattig belegt", {}},
    {"ApKAnzahl", WL_ApKAnzahl, 3, u"< 4", u"> 7", {}},
    {"ApKQualit", WL_ApKQualit, 3, u"alle ausgebildet", u"alle taub", {}},
    {"ApKFarbe", WL_ApKFarbe, 18, u"orangebraun", u"seitlich stumpfnasig", {}},
    {"ApKLaenge", WL_ApKLaenge, 3, u"kurz (< 7 mm)", u"lang (> 9 mm)", {}},
    {"ApSchale", WL_ApSchale, 3, u"dünn", u"derb", {}},
    {"ApFlFarbe", WL_ApFlFarbe, 6, u"weißlich", u"stark anlaufend", {}},
    {"ApFlStrukt", WL_ApFlStrukt, 11, u"feinzellig", u"mehlig", {}},
    {"ApFlDuft", WL_ApFlDuft, 6, u"säuerlich", u"sortentypisch", {}},
    {"ApGeschmack", WL_ApGeschmack, 16, u"schwach süß", u"würzig", {}},
    {"ApLiteratur", WL_ApLiteratur, 20, u"Illustrirtes Handbuch der Obstkunde", u"Hartmann: Farbatlas alte Obstsorten", {}},
    {"ObWuchs", WL_ObWuchs, 53, u"früh austreibend", u"starke Ausläuferbildung", {{14, u"schmalwüchsig"}}},
    {"ObBlatt", WL_ObBlatt, 31, u"glänzend", u"silbergraue Unterseite", {}},
    {"ObFruhol", WL_ObFruhol, 21, u"endständig", u"lang", {}},
    {"ObTrirut", WL_ObTrirut, 32, u"lang", u"braunrot", {{19, u"wenig  Lentizellen"}}},
    {"ObUnterlage", WL_ObUnterlage, 13, u"schwachwachsende Unterlage", u"Stammbildner  notwendig", {}},
    {"ObKrankh", WL_ObKrankh, 46, u"Schorf", u"Gummifluß 46", {{6, u"Monilia 6"}, {12, u"Rutenkrankheit 12"},
     {19, u"Kragenfäule 19"}, {25, u"Blattläuse 25"}, {31, u"Kirschfruchtfliege 31"}, {36, u"Scharka 36"},
     {41, u"Steinfrüchtigkeit 41"}}},
    {"ObResistenz", WL_ObResistenz, 11, u"Schorf", u"Bakterienbrand", {}},
    {"ObBoden", WL_ObBoden, 13, u"mäßig trocken", u"hoher pH-Wert", {}},
    {"ObKlima", WL_ObKlima, 14, u"geeignet für Höhenlagen", u"Weinbauklima", {}},
    {"ObNaehrstoff", WL_ObNaehrstoff, 3, u"gering", u"hoch", {}},
    {"ObEignung", WL_ObEignung, 3, u"Erwerbsobstbau", u"Streuobstanbau", {}},
    {"ObErziform", WL_ObErziform, 8, u"geeignet für alle Erziehungsformen", u"Spalier", {}},
    {"ObShnitt", WL_ObShnitt, 13, u"geringer Aufwand", u"Rückschnitt des Mitteltriebes", {}},
    {"ObPflshtz", WL_ObPflshtz, 3, u"Empfindlich gegen Kupfer", u"aktuelle Zulassungssituation beachten",
     {{2, u"empfindlich gegen Schwefel"}}},
    {"ObFroemf", WL_ObFroemf, 3, u"gering", u"sehr hoch", {}},
    {"ObBluete", WL_ObBluete, 9, u"sehr frühblühend", u"blüht über dem Laub", {}},
    {"ObFrustan", WL_ObFrustan, 10, u"einzeln", u"dicht aufgebaut", {}},
    {"ObBefru", WL_ObBefru, 12, u"diploid", u"Entwicklung der Frucht ohne Bestäubung (Apomixis)", {}},
    {"ObBefrsor", WL_ObBefrsor, 3, u"geeignet", u"ungeeignet", {}},
    {"ObAltrnaz", WL_ObAltrnaz, 4, u"gering", u"sehr stark", {}},
    {"ObFrufar", WL_ObFrufar, 23, u"weißlichgrün", u"schwarz", {}},
    {"ObGrundfarb", WL_ObGrundfarb, 9, u"weißlich", u"siehe Fruchtfarbe", {}},
    {"ObDeckfarb", WL_ObDeckfarb, 15, u"gelblich", u"siehe Fruchtfarbe", {}},
    {"ObSchale", WL_ObSchale, 34, u"glatt", u"bereift", {{6, u"zäh"}, {13, u"stumpf"}, {31, u"stumpf"}}},
    {"ObFruflei", WL_ObFruflei, 33, u"farblos", u"sehr saftig", {}},
    {"ObFrufor", WL_ObFrufor, 25, u"kleinfrüchtig", u"unförmig", {{7, u"hochgebaut"}}},
    {"ObGesmak", WL_ObGesmak, 20, u"süßlich", u"wässrig", {}},
    {"ObErtrag", WL_ObErtrag, 6, u"früh", u"hoch", {}},
    {"ObErnte", WL_ObErnte, 6, u"einmalig", u"gefroren ernten", {}},
    {"ObTranspemp", WL_ObTranspemp, 3, u"gering", u"hoch", {}},
    {"ObVerwend", WL_ObVerwend, 16, u"häusliche Verwendung", u"Duftfrucht", {}},
    {"ObLageig", WL_ObLageig, 5, u"nicht geeignet", u"gut geeignet", {}},
    {"ObLagkrank", WL_ObLagkrank, 13, u"keine", u"Nachlagerung notwendig", {}},
    {"FhPflanzzeit", WL_FhPflanzzeit, 3, u"Frühjahr", u"Herbst", {}},
    {"FhPflege", WL_FhPflege, 3, u"gering", u"hoch", {}},
    {"FhSymbolik", WL_FhSymbolik, 16, u"Grabbeet, eigtl. Grab (GB)", u"GF-Kübelpflanze",
     {{10, u"Grabfeld, eigtl. Friedhof (GF)"}}},
};
// clang-format on

struct Farbprobe
{
    const char *name;
    const Farbliste &farben;
    const Werteliste &worte;
    int anzahl;
};

constexpr Farbprobe farbproben[] = {
    {"BluetenfarbeRGB", WL_BluetenfarbeRGB, WL_Bluetenfarbe, 12},
    {"FruchtfarbeRGB", WL_FruchtfarbeRGB, WL_Fruchtfarbe, 13},
    {"ToFruchtfarbeRGB", WL_ToFruchtfarbeRGB, WL_ToFruchtfarbe, 12},
};

} // namespace

/* The vocabularies: number of rows, first and last word, the irregular ones as they are, and every row against a file. */
class TestWertelisten : public QObject
{
    Q_OBJECT

private slots:
    void worte_data()
    {
        QTest::addColumn<int>("zeile");
        for (int i = 0; i < int(std::size(proben)); ++i)
            QTest::newRow(proben[i].name) << i;
    }
    void worte()
    {
        QFETCH(int, zeile);
        const Probe &probe = proben[zeile];
        QCOMPARE(probe.liste.anzahl(), probe.anzahl);
        QCOMPARE(probe.liste.wort(1), probe.erstes);
        QCOMPARE(probe.liste.wort(probe.anzahl), probe.letztes);
        for (const auto &[p, wort] : probe.weitere)
            if (p != 0)
                QCOMPARE(probe.liste.wort(p), wort);
        for (const QStringView wort : probe.liste.zeilen) {
            QVERIFY(!wort.isEmpty());
            QCOMPARE(wort.trimmed(), wort); // a stray blank would show beside the separator
        }
        for (const int p : {0, -1, probe.anzahl + 1})
            QVERIFY(probe.liste.wort(p).isEmpty());
    }

    /// Every row of every list, against a file that was put together on its own.
    void zeilen()
    {
        QFile datei(QStringLiteral(FLOX_WERTELISTEN));
        QVERIFY(datei.open(QIODevice::ReadOnly));
        QHash<QString, QStringList> erwartet;
        for (const QString &zeile : QString::fromUtf8(datei.readAll()).split(u'\n', Qt::SkipEmptyParts)) {
            const QStringList teile = zeile.split(u'\t');
            QCOMPARE(teile.size(), 3);
            QStringList &liste = erwartet[teile[0]];
            QCOMPARE(teile[1].toInt(), liste.size() + 1); // counted from 1, without gaps
            liste += teile[2];
        }
        QCOMPARE(erwartet.size(), int(std::size(proben)));
        for (const Probe &probe : proben) {
            const QStringList soll = erwartet.value(QString::fromLatin1(probe.name));
            QCOMPARE(probe.liste.anzahl(), int(soll.size()));
            for (int p = 1; p <= probe.liste.anzahl(); ++p)
                QVERIFY2(probe.liste.wort(p) == soll[p - 1],
                         qPrintable(QStringLiteral("%1, row %2: '%3'").arg(QLatin1String(probe.name)).arg(p).arg(probe.liste.wort(p))));
        }
    }

    /// No list is left out above: each vocabulary of a column is among them, under one name.
    void vollstaendig()
    {
        QCOMPARE(int(std::size(proben)), 121);
        QSet<const QStringView *> geprueft;
        for (const Probe &probe : proben)
            geprueft += probe.liste.zeilen.data();
        QCOMPARE(geprueft.size(), 121);
        for (const Tabelle &tabelle : schema::haupttabellen())
            for (const Spalte &spalte : tabelle.spalten)
                QVERIFY2(!spalte.liste || geprueft.contains(spalte.liste->zeilen.data()), spalte.name);
    }

    void farben_data()
    {
        QTest::addColumn<int>("zeile");
        for (int i = 0; i < int(std::size(farbproben)); ++i)
            QTest::newRow(farbproben[i].name) << i;
    }
    /// One colour for each word but the last, which is shown by a picture.
    void farben()
    {
        QFETCH(int, zeile);
        const Farbprobe &probe = farbproben[zeile];
        QCOMPARE(int(probe.farben.werte.size()), probe.anzahl);
        QCOMPARE(probe.anzahl, probe.worte.anzahl() - 1);
        QCOMPARE(probe.worte.wort(probe.worte.anzahl()), u"bunt");
        const std::pair<QStringView, int> gemeinsam[] = {{u"weiß", 0xFFFFFF}, {u"gelb", 0x00FFFF},      {u"orange", 0x00AFFF}, {u"rosa", 0xAFAFFF},
                                                         {u"rot", 0x0000FF},  {u"dunkelrot", 0x2814FF}, {u"purpur", 0xAF00FF}, {u"violett", 0xFF00AF},
                                                         {u"lila", 0xFF00FF}, {u"blau", 0xFF0000},      {u"braun", 0x0058FF},  {u"grau", 0xAFAFAF},
                                                         {u"grün", 0x00FF00}, {u"schwarz", 0x000000}};
        for (int p = 1; p <= probe.anzahl; ++p) {
            const auto *wort = std::ranges::find(gemeinsam, probe.worte.wort(p), &std::pair<QStringView, int>::first);
            QVERIFY(wort != std::end(gemeinsam));
            QCOMPARE(probe.farben.werte[size_t(p - 1)], wort->second);
        }
    }

    void listentext_data()
    {
        QTest::addColumn<QString>("flags");
        QTest::addColumn<QString>("trenner");
        QTest::addColumn<QString>("text");
        QTest::newRow("empty") << ""
                               << ", "
                               << "";
        QTest::newRow("none set") << "000"
                                  << ", "
                                  << "";
        QTest::newRow("one") << "010"
                             << ", "
                             << "gelb";
        QTest::newRow("all") << "111"
                             << ", "
                             << "rot, gelb, blau";
        QTest::newRow("short string") << "1"
                                      << ", "
                                      << "rot";
        QTest::newRow("beyond the list") << "00011"
                                         << ", "
                                         << "";
        QTest::newRow("beyond and inside") << "10111"
                                           << ", "
                                           << "rot, blau";
        QTest::newRow("other characters do not count") << "x2 "
                                                       << ", "
                                                       << "";
        QTest::newRow("other separator") << "101"
                                         << " - "
                                         << "rot - blau";
    }

    void listentext()
    {
        QFETCH(QString, flags);
        QFETCH(QString, trenner);
        QTEST(worteVon(positionen(Kodierung(), flags), dreiFarben, trenner), "text");
    }
};

FLOX_TEST(tst_wertelisten, TestWertelisten)
#include "tst_wertelisten.moc"
