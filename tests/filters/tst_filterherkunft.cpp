#include "Filterhilfen.h"

#include "filters/Filterlauf.h"
#include "filters/Filterpruefung.h"
#include "store/Schema.h"
#include "tests/Hilfen.h"
#include "tests/Testprogramm.h"

#include <QFile>
#include <QTest>

#include <map>

using namespace Qt::StringLiterals;

/* Criteria over records of two origins, which a query joins: each is read by the fields of its own. */

namespace {

// clang-format off
constexpr QStringView laubfarben[] = {u"hellgrün", u"dunkelgrün", u"weißgrün", u"gelb", u"gelbgrün", u"rotbraun", u"blaugrün", u"silbrig", u"grau",
                                      u"graublau", u"graugrün", u"gestreift", u"gefleckt", u"filzig", u"orange", u"rot", u"bläulich rot"};
// clang-format on
constexpr QStringView boeden[] = {u"humos", u"steinig", u"sandig", u"mittelschwer", u"lehmig", u"durchlässig", u"tiefgründig"};
constexpr QStringView bluehschmuck[] = {u"Blütenschmuck"};
constexpr QStringView blattschmuck[] = {u"Blattschmuck"};
constexpr QStringView kalkworte[] = {u"kalkarm", u"neutral", u"kalkreich"};
constexpr QStringView phworte[] = {u"sauer", u"neutral", u"basisch"};
constexpr const char *immergruen[] = {nullptr, nullptr, "immergruen", "Friedhof.HERBSTFARB"};
constexpr const char *schmuckBluete[] = {"BLUEHSCHMU"};
constexpr const char *schmuckStaude[] = {"Stauden.blaschmuck"};
constexpr const char *schmuckGehoelz[] = {"Friedhof.blaschmuck"};

constexpr Steuerteil kaestchen(const char *control, int anzahl, int zeile, std::span<const QStringView> worte = {})
{
    return {.art = Steuerung::Kaestchen, .control = control, .anzahl = anzahl, .zeile = zeile, .worte = worte};
}

constexpr Steuerteil zahl(const char *control, QStringView vorgabe, int zeile)
{
    return {.art = Steuerung::Zahl, .control = control, .zeile = zeile, .vorgabe = vorgabe};
}

// clang-format off
constexpr Kriterium kriterien[] = {
    {.pruefung = Pruefung::Familie, .titel = u"Familie", .a = {.art = Steuerung::Liste, .control = "cmbFamilie", .zeile = 1},
     .feld = "Stauden.familie",
     .anders = Frage{.pruefung = Pruefung::Familie, .feld = "Gehoelze.familie"}},
    {.pruefung = Pruefung::Flags, .titel = u"Zeit", .a = {.art = Steuerung::Monate, .control = "lblBlMonat", .anzahl = 12, .zeile = 2},
     .feld = "Stauden.bluehzeit",
     .anders = Frage{.feld = "Gehoelze.bluehzeit"}},
    {.pruefung = Pruefung::Bereich, .titel = u"Höhe", .a = zahl("txtMinHoehe", u"0,00", 14), .b = zahl("txtMaxHoehe", u"99,00", 15),
     .feld = "blminh", .feld2 = "blmaxh",
     .regel = Bereichsregel::GleicheZahlen, .anders = Frage{.pruefung = Pruefung::Bereich, .feld = "Friedhof.minhoehe",
         .feld2 = "Friedhof.maxhoehe"}},
    {.pruefung = Pruefung::AlleWahr, .titel = u"Blüte", .a = kaestchen("chkBluehSchmuck", 0, 16, bluehschmuck), .felder = schmuckBluete},
    {.pruefung = Pruefung::Flags, .titel = u"Frucht", .a = kaestchen("chkFrFarbe", 14, 17), .feld = "Stauden.fruchtfarb", .liest = Schreibweise::Zahl,
     .anders = Frage{.feld = "Gehoelze.fruchtfarb"}},
    {.pruefung = Pruefung::FlagsNachWort, .titel = u"Laub", .a = kaestchen("chkLaubFarbe", 17, 31, laubfarben), .feld = "blattfarbe",
     .anders = Frage{.pruefung = Pruefung::FlagsNachWort, .feld = "laubfarb"}},
    {.pruefung = Pruefung::EinsWahr, .titel = u"Laubzeit", .a = kaestchen("chkLaubZeit", 4, 48), .felder = immergruen,
     .anders = Frage{.feld = "laubzeit"}},
    {.pruefung = Pruefung::Bereich, .titel = u"Blatthöhe", .a = zahl("txtBlattMinHoehe", u"0,00", 52), .b = zahl("txtBlattMaxHoehe", u"99,00", 53),
     .feld = "Stauden.minhoehe", .feld2 = "Stauden.maxhoehe", .regel = Bereichsregel::GleicheZahlen, .gilt = Seite::Erste},
    {.pruefung = Pruefung::AlleWahr, .titel = u"Blatt", .a = kaestchen("chkBlattschmuck", 0, 54, blattschmuck), .felder = schmuckStaude,
     .anders = Frage{.pruefung = Pruefung::AlleWahr, .felder = schmuckGehoelz}},
    {.pruefung = Pruefung::FlagsNachWort, .titel = u"Boden", .a = kaestchen("chkBodenArt", 7, 55, boeden), .feld = "Stauden.bodenart",
     .anders = Frage{.feld = "Gehoelze.bodenart"}},
    {.pruefung = Pruefung::FlagsNachWort, .titel = u"Kalk", .a = kaestchen("chkKalk", 3, 62, kalkworte), .feld = "kalk",
     .anders = Frage{.pruefung = Pruefung::FlagsNachWort, .feld = "phboden", .worte = phworte}},
    {.pruefung = Pruefung::Flags, .titel = u"Typ", .a = {.art = Steuerung::Option, .control = "optTyp", .anzahl = 10, .zeile = 65, .ohneWahl = true},
     .feld = "pflanzart",
     .gilt = Seite::Erste},
    {.pruefung = Pruefung::Flags, .titel = u"Größe", .a = kaestchen("chkGhTyp", 8, 75), .feld = "groesse", .gilt = Seite::Andere},
    {.pruefung = Pruefung::Flags, .titel = u"Gehölz", .a = kaestchen("chkGhLaub", 0, 83), .b = kaestchen("chkGhNadel", 0, 84), .feld = "grobeint",
     .gilt = Seite::Andere},
    {.pruefung = Pruefung::WortImText, .titel = u"Habitus", .a = kaestchen("chkHabitus", 16, 85), .feld = "Stauden.wuchsform",
     .anders = Frage{.feld = "habitus"}},
    {.pruefung = Pruefung::SynonymBotanisch, .titel = u"Synonym", .a = {.control = "txtSynonym", .zeile = 101}},
    {.pruefung = Pruefung::SynonymDeutsch, .titel = u"Deutscher Name", .a = {.control = "txtSynonymDeutsch", .zeile = 102}, .feld = "DTNAM"},
    {.pruefung = Pruefung::Enthaelt, .titel = u"Sorte", .a = {.control = "txtSorte", .zeile = 103}, .feld = "Stauden.sorten",
     .anders = Frage{.pruefung = Pruefung::Enthaelt, .feld = "Gehoelze.sorten"}},
};
// clang-format on
constexpr Filterbeschreibung beschreibung{
    .sparte = Sparte::Friedhof, .reiter = {}, .kriterien = kriterien, .zeilen = 103, .ladeFilter = {}, .speicherFilter = {}};

constexpr int aster = 900, funkie = 901, ahorn = 2100, eibe = 2200, verwaist = 3000;

/// Flag string with "1" at these positions, counted from 1.
QString flags(std::initializer_list<int> stellen)
{
    QString text(16, u'0');
    for (const int stelle : stellen)
        text[stelle - 1] = u'1';
    return text;
}

} // namespace

class TestHerkunft : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void tabelle();
    void beschriftungen();
    void lauf_data();
    void lauf();
    void felder();
    void fehlerFallenAuf_data();
    void fehlerFallenAuf();

private:
    void satz(const QString &tabelle, const std::map<QString, QVariant> &werte);

    Programmordner ordner_;
};

void TestHerkunft::satz(const QString &tabelle, const std::map<QString, QVariant> &werte)
{
    QStringList felder;
    QVariantList inhalt;
    for (const auto &[feld, wert] : werte) {
        felder += feld;
        inhalt += wert;
    }
    const QString plaetze = QStringList(felder.size(), u"?"_s).join(u',');
    ordner_.db()->Execute(u"INSERT INTO %1 (%2) VALUES (%3)"_s.arg(tabelle, felder.join(u','), plaetze), inhalt);
}

void TestHerkunft::initTestCase()
{
    const auto db = ordner_.db();
    for (const char *name : {"Stauden", "Gehoelze", "Friedhof", "Stauden_Synonyme_Botanisch", "Stauden_Synonyme_Deutsch",
                             "Gehoelze_Synonyme_Botanisch", "Gehoelze_Synonyme_Deutsch", "Familien"})
        db->Execute(u"DELETE FROM %1"_s.arg(QLatin1String(name)));
    db->Execute(u"INSERT INTO Familien (FAMILIE, FAMNAME) VALUES (1, 'Asteraceae')"_s);
    db->Execute(u"INSERT INTO Familien (FAMILIE, FAMNAME) VALUES (2, 'Aceraceae')"_s);
    satz(u"Stauden"_s, {{u"ARTNR"_s, aster},
                        {u"BOT_NAME"_s, u"Aster"_s},
                        {u"FAMILIE"_s, 1},
                        {u"bluehzeit"_s, flags({5})},
                        {u"BLMINH"_s, 0.2},
                        {u"BLMAXH"_s, 0.3},
                        {u"fruchtfarb"_s, u"5"_s},
                        {u"blattfarbe"_s, flags({11})},
                        {u"immergruen"_s, u"True"_s},
                        {u"MINHOEHE"_s, 0.1},
                        {u"MAXHOEHE"_s, 0.2},
                        {u"blaschmuck"_s, u"True"_s},
                        {u"bodenart"_s, flags({6})},
                        {u"kalk"_s, flags({1})},
                        {u"pflanzart"_s, u"Str"_s},
                        {u"wuchsform"_s, u"locker, Überhängend"_s},
                        {u"SORTEN"_s, u"'Alba'"_s}});
    satz(u"Stauden"_s, {{u"ARTNR"_s, funkie},
                        {u"BOT_NAME"_s, u"Hosta"_s},
                        {u"FAMILIE"_s, 2},
                        {u"bluehzeit"_s, flags({6})},
                        {u"fruchtfarb"_s, flags({5})},
                        {u"blattfarbe"_s, flags({14})},
                        {u"immergruen"_s, u"False"_s},
                        {u"MINHOEHE"_s, 0.5},
                        {u"MAXHOEHE"_s, 0.6},
                        {u"blaschmuck"_s, u"False"_s},
                        {u"pflanzart"_s, u"Std"_s}});
    satz(u"Gehoelze"_s, {{u"ARTNR"_s, ahorn},
                         {u"BOT_NAME"_s, u"Acer"_s},
                         {u"FAMILIE"_s, 2},
                         {u"bluehzeit"_s, flags({5})},
                         {u"fruchtfarb"_s, flags({5})},
                         {u"laubfarb"_s, flags({11})},
                         {u"laubzeit"_s, flags({1, 4})},
                         {u"bodenart"_s, flags({7})},
                         {u"phboden"_s, flags({1})},
                         {u"groesse"_s, flags({3})},
                         {u"grobeint"_s, u"1"_s},
                         {u"habitus"_s, flags({7})},
                         {u"SORTEN"_s, u"'Atropurpureum'"_s}});
    satz(u"Gehoelze"_s, {{u"ARTNR"_s, eibe},
                         {u"BOT_NAME"_s, u"Taxus"_s},
                         {u"fruchtfarb"_s, u"5"_s},
                         {u"laubfarb"_s, flags({8, 7})},
                         {u"laubzeit"_s, flags({3})},
                         {u"grobeint"_s, u"2"_s}});
    // clang-format off
    const auto friedhof = [this](int nummer, const QString &name, const QString &herkunft, const QString &bluete, const QString &herbst) {
        satz(u"Friedhof"_s, {{u"ARTNR"_s, nummer}, {u"BOT_NAME"_s, name}, {u"DTNAM"_s, name + u"name"_s}, {u"DB"_s, herkunft}, {u"MINHOEHE"_s, 2},
            {u"MAXHOEHE"_s, 3},
                             {u"BLUEHSCHMU"_s, bluete}, {u"HERBSTFARB"_s, herbst}, {u"blaschmuck"_s, herbst}});
    };
    // clang-format on
    friedhof(aster, u"Aster"_s, u"100"_s, u"True"_s, u"False"_s);
    friedhof(funkie, u"Hosta"_s, u"100"_s, u"False"_s, u"True"_s);
    friedhof(ahorn, u"Acer"_s, u"010"_s, u"True"_s, u"False"_s);
    friedhof(eibe, u"Taxus"_s, u"010"_s, u"False"_s, u"True"_s);
    friedhof(verwaist, u"Niemand"_s, u"001"_s, u"False"_s, u"False"_s);
    // A number of the other table's is not this one's synonym.
    for (const auto &[tabelle, nummer, name] : {std::tuple(u"Stauden_Synonyme_Botanisch"_s, aster, u"Callistephus"_s),
                                                {u"Gehoelze_Synonyme_Botanisch"_s, ahorn, u"Negundo calli"_s},
                                                {u"Gehoelze_Synonyme_Botanisch"_s, funkie, u"Calli falsch"_s},
                                                {u"Gehoelze_Synonyme_Deutsch"_s, eibe, u"Ifenbaum"_s}})
        satz(tabelle, {{u"ARTNR"_s, nummer}, {u"SYN"_s, name}});
}

void TestHerkunft::tabelle()
{
    QCOMPARE(filterfehler(beschreibung), QString());
}

/// Where this origin's field has no words, the other one's are the captions.
void TestHerkunft::beschriftungen()
{
    const auto wort = [](const char *control, int i) {
        const Kriterium *k = kriteriumNamens(beschreibung, control);
        return wortVon(beschreibung, *k, k->a, i).toString();
    };
    QCOMPARE(wort("chkHabitus", 6), u"überhängend"_s);
    QCOMPARE(wort("chkLaubZeit", 3), u"Herbstfärbung!"_s);
    QCOMPARE(wort("chkFrFarbe", 13), u"bunt"_s);
    const Kriterium *gehoelz = kriteriumNamens(beschreibung, "chkGhLaub");
    QCOMPARE(wortVon(beschreibung, *gehoelz, gehoelz->a, 0).toString(), u"Laubgehölz"_s);
    QCOMPARE(wortVon(beschreibung, *gehoelz, gehoelz->b, 0).toString(), u"Nadelgehölz"_s);
}

void TestHerkunft::lauf_data()
{
    QTest::addColumn<QByteArray>("control");
    QTest::addColumn<QList<int>>("gewaehlt");
    QTest::addColumn<QStringList>("texte"); // of the first and second part
    QTest::addColumn<QList<int>>("uebrig");
    const auto zeile = [](const char *name, const char *control, const QList<int> &gewaehlt, const QList<int> &uebrig) {
        QTest::newRow(name) << QByteArray(control) << gewaehlt << QStringList() << uebrig;
    };
    const auto texte = [](const char *name, const char *control, const QStringList &inhalt, const QList<int> &uebrig) {
        QTest::newRow(name) << QByteArray(control) << QList<int>() << inhalt << uebrig;
    };
    texte("Familie", "cmbFamilie", {u"Aceraceae"_s}, {funkie, ahorn});
    zeile("Zeit", "lblBlMonat", {4}, {aster, ahorn});
    texte("Höhe der Staude", "txtMinHoehe", {u"0,1"_s, u"1"_s}, {aster});
    texte("Höhe des Gehölzes", "txtMinHoehe", {u"2"_s, u"3"_s}, {ahorn, eibe});
    zeile("Blütenschmuck", "chkBluehSchmuck", {0}, {aster, ahorn});
    // A number for the one, flags for the other; the vocabulary of the woody field reads flags alone.
    zeile("Fruchtfarbe", "chkFrFarbe", {4}, {aster, ahorn});
    zeile("Laubfarbe hier an einer Stelle, dort an zweien", "chkLaubFarbe", {10}, {aster, ahorn, eibe});
    zeile("Laubfarbe nur der Stauden", "chkLaubFarbe", {13}, {funkie});
    zeile("Laubfarbe nur der Gehölze", "chkLaubFarbe", {15}, {eibe});
    zeile("Laubzeit ohne Feld", "chkLaubZeit", {0, 1}, {ahorn});
    zeile("immergrün", "chkLaubZeit", {2}, {aster, eibe});
    zeile("Herbstfärbung", "chkLaubZeit", {3}, {funkie, ahorn});
    zeile("Laubzeit, alle", "chkLaubZeit", {0, 1, 2, 3}, {aster, funkie, ahorn, eibe, verwaist});
    texte("Blatthöhe, Gehölze gehen durch", "txtBlattMinHoehe", {u"0,5"_s, u"1"_s}, {funkie, ahorn, eibe});
    zeile("Blattschmuck", "chkBlattschmuck", {0}, {aster, eibe});
    zeile("Boden beider", "chkBodenArt", {5}, {aster});
    zeile("Boden, den die Stauden nicht kennen", "chkBodenArt", {6}, {ahorn});
    zeile("Kalk mit anderen Wörtern", "chkKalk", {0}, {aster, ahorn});
    zeile("Typ, Gehölze gehen durch", "optTyp", {5}, {aster, ahorn, eibe});
    zeile("Größe, Stauden gehen durch", "chkGhTyp", {2}, {aster, funkie, ahorn, verwaist});
    zeile("Laubgehölz", "chkGhLaub", {0}, {aster, funkie, ahorn, verwaist});
    zeile("Nadelgehölz", "chkGhNadel", {0}, {aster, funkie, eibe, verwaist});
    zeile("Habitus", "chkHabitus", {6}, {aster, ahorn});
    texte("botanisches Synonym", "txtSynonym", {u"calli"_s}, {aster, ahorn});
    texte("deutscher Name und Synonym", "txtSynonymDeutsch", {u"IFEN"_s}, {eibe});
    texte("deutscher Name", "txtSynonymDeutsch", {u"niemand"_s}, {verwaist});
    texte("Sorte", "txtSorte", {u"a"_s}, {aster, ahorn});
}

void TestHerkunft::lauf()
{
    QFETCH(const QByteArray, control);
    QFETCH(const QList<int>, gewaehlt);
    QFETCH(const QStringList, texte);
    Filterzustand zustand = vorgabe(beschreibung);
    for (size_t k = 0; k < zustand.kriterien.size(); ++k)
        for (const bool zweites : {false, true}) {
            const Kriterium &kriterium = kriterien[k];
            Teilzustand &teil = zweites ? zustand.kriterien[k].b : zustand.kriterien[k].a;
            if (control != (zweites ? kriterium.b.control : kriterium.a.control))
                continue;
            for (const int i : gewaehlt)
                teil.werte[size_t(i)] = 1;
            if (!texte.isEmpty())
                teil.text = texte[0];
            if (texte.size() > 1)
                zustand.kriterien[k].b.text = texte[1];
        }
    const QString kopie = ordner_.pfad(u"kopie.mdb"_s);
    QFile::remove(kopie);
    QVERIFY(QFile::copy(ordner_.datenbank(), kopie));
    const auto privat = Datenbank::OpenDatabase(kopie, Datenbank::Zugriff::Privat);
    const Laufergebnis ergebnis = filterLauf(*privat, *ordner_.db(), beschreibung, zustand);
    QCOMPARE(ergebnis.gesamt, 5);
    QTEST(QList<int>(ergebnis.uebrig.begin(), ergebnis.uebrig.end()), "uebrig");
    Anweisung &zahlen = privat->vorbereitet(u"SELECT ARTNR FROM Friedhof ORDER BY ARTNR"_s);
    QList<int> geblieben;
    while (zahlen.schritt())
        geblieben += int(zahlen.zahl(0));
    QTEST(geblieben, "uebrig");
}

/// The query's own names, whatever the table writes.
void TestHerkunft::felder()
{
    Filterzustand zustand = vorgabe(beschreibung);
    zustand.kriterien[1].a.werte[0] = monatGewaehlt;
    QCOMPARE(Filterpruefung(beschreibung, zustand, {}).felder(), (QStringList{u"stauden_bluehzeit"_s, u"gehoelze_bluehzeit"_s, u"DB"_s}));
    QCOMPARE(spalteVon(beschreibung, "Gehoelze.groesse")->name, "groesse");
    QVERIFY(!spalteVon(beschreibung, "Stauden.groesse"));
    QVERIFY(!spalteVon(beschreibung, "Apfel.bluehzeit"));
    QVERIFY(!spalteVon(beschreibung, nullptr));
}

void TestHerkunft::fehlerFallenAuf_data()
{
    QTest::addColumn<Tabellenaenderung>("aenderung");
    QTest::addColumn<QString>("meldung");
    const auto zeile = [](const char *name, Tabellenaenderung aenderung, const QString &meldung) { QTest::newRow(name) << aenderung << meldung; };
    using K = std::vector<Kriterium>;
    using B = Filterbeschreibung;
    zeile("unverändert", [](K &, B &) {}, {});
    zeile(
        "ohne Herkunft", [](K &, B &b) { b.sparte = Sparte::Stauden; }, u"cmbFamilie: keine zwei Seiten"_s);
    zeile(
        "eine Seite, zwei Fragen", [](K &k, B &) { k[1].gilt = Seite::Erste; }, u"lblBlMonat: keine zwei Seiten"_s);
    zeile(
        "Feld der anderen", [](K &k, B &) { k[1].anders->feld = "Gehoelze.farben"; }, u"kein Feld Gehoelze.farben"_s);
    zeile(
        "zweites Feld der anderen", [](K &k, B &) { k[2].anders->feld2 = "maxhoehe"; }, u"kein Feld maxhoehe"_s);
    zeile(
        "Wahrheit der anderen", [](K &k, B &) { k[8].anders->felder = {}; }, u"chkBlattschmuck: 0 Felder für 1 Kästchen"_s);
    zeile(
        "alle wahr braucht jedes Feld", [](K &k, B &) { k[6].pruefung = Pruefung::AlleWahr; }, u" ist kein Wahrheitswert"_s);
    zeile(
        "fremdes Wort",
        [](K &k, B &) {
        k[5].a.worte = std::span(laubfarben).first(16);
        k[5].a.anzahl = 16;
        k[5].a.zeile = 0;
        k[5].feld = "laubfarb";
        },
        u"chkLaubFarbe: \"rotbraun\" ist kein Wort des Feldes"_s);
    zeile(
        "Wörter der anderen", [](K &k, B &) { k[10].anders->worte = std::span(phworte).first(2); }, u"chkKalk: 2 Wörter für 3 Kästchen"_s);
    zeile(
        "zu viele für beide", [](K &k, B &) { k[4].a.anzahl = 15; }, u"chkFrFarbe: mehr Kästchen als Wörter"_s);
    zeile(
        "zwei Kästchen zu viel", [](K &k, B &) { k[13].a.anzahl = 2; }, u"chkGhLaub: mehr Kästchen als Wörter"_s);
}

void TestHerkunft::fehlerFallenAuf()
{
    QFETCH(const Tabellenaenderung, aenderung);
    Filterbeschreibung b = beschreibung;
    std::vector<Kriterium> tabelle(std::begin(kriterien), std::end(kriterien));
    aenderung(tabelle, b);
    b.kriterien = tabelle;
    QTEST(filterfehler(b), "meldung");
}

FLOX_TEST(tst_filterherkunft, TestHerkunft)
#include "tst_filterherkunft.moc"
