#include "printing/mdlDruck.h"
#include "tests/Hilfen.h"
#include "tests/Testprogramm.h"
#include "Seitenpruefung.h"

#include <QSignalSpy>
#include <QTest>

using namespace Qt::StringLiterals;

/* The list of filtered plants with its criteria as lists of pages. */

class TestListe : public QObject
{
    Q_OBJECT

private slots:
    void vorgaben_data() { sparten(); }
    void vorgaben();
    void nurDieUntereHoehe();
    void vieleKriterien();
    void kriterienApfel();
    void kriterienUeberDieSeite();
    void kriteriumAmSeitenende_data();
    void kriteriumAmSeitenende();
    void anzahlen_data();
    void anzahlen();
    void eigenerZaehler_data();
    void eigenerZaehler();
    void ausgelieferteNamen_data();
    void ausgelieferteNamen();
    void alleKriterien_data() { ausgelieferteNamen_data(); }
    void alleKriterien();
    void reihenfolge();
    void langeNamen();
    void langerNameAmSeitenende_data();
    void langerNameAmSeitenende();
    void nameUeberDieSeite();
    void fehlendeNamen();
    void stelleBleibt();
    void geloeschte();
    void ohneMenge();
    void seitenbegrenzung();

private:
    static void sparten();
};

namespace {

struct Listenprobe : Druckprobe
{
    explicit Listenprobe(Sparte sparte, int anzahl = 2) : Druckprobe(sparte) { namenReihe(anzahl); }

    /// Selects elements of a group as clicks would.
    Listenprobe &waehlen(const QString &control, std::initializer_list<size_t> elemente)
    {
        for (const size_t i : elemente) {
            int &wert = teil(control).werte[i];
            wert = wert == nichtGewaehlt ? monatGewaehlt : 1;
        }
        return *this;
    }
    Listenprobe &text(const QString &control, const QString &text)
    {
        teil(control).text = text;
        return *this;
    }
    /// Selects all that can be selected and fills all texts, each with as many words.
    void alles(int worte)
    {
        const std::span<const Kriterium> kriterien = filterbeschreibung(auftrag.sparte)->kriterien;
        for (size_t k = 0; k < kriterien.size(); ++k)
            for (const auto &[steuerteil, zustand] :
                 {std::pair(&kriterien[k].a, &auftrag.filter.kriterien[k].a), std::pair(&kriterien[k].b, &auftrag.filter.kriterien[k].b)}) {
                if (steuerteil->art == Steuerung::Text || steuerteil->art == Steuerung::Liste)
                    zustand->text = QStringList(worte, u"Blütenwort"_s).join(u' ');
                for (int &wert : zustand->werte)
                    wert = wert == nichtGewaehlt ? monatGewaehlt : 1;
            }
    }
};

QString botanisch(int nummer)
{
    return u"Planta %1"_s.arg(nummer, 5, 10, QChar(u'0'));
}

QString deutsch(int nummer)
{
    return u"Pflanze %1"_s.arg(nummer, 5, 10, QChar(u'0'));
}

Sollseiten listenanfang(const QString &wort = u"Topfpflanzen"_s)
{
    return Sollseiten().ueberschrift(u"Filter:"_s).kriterium(u"Datenbank: "_s, wort);
}

/// A blank line between the criteria and the plants, none at the top of a page; then that many plants of a row.
Sollseiten &namen(Sollseiten &seiten, int von, int bis)
{
    if (von == 1)
        (seiten.leer() ? seiten : seiten.ende()).ueberschrift(u"Pflanzen:"_s);
    for (int i = von; i <= bis; ++i)
        seiten.pflanze(botanisch(i), deutsch(i));
    return seiten;
}

/// "Sorte001 Sorte002 ..." with as many words as fill so many lines beside the label.
QStringList wortzeilen(const QString &label, qsizetype zeilen)
{
    const double breite = std::min(125.0, 180 - labelbreite(label));
    QString zeile = u"Sorte001"_s;
    QStringList fertig;
    for (int i = 2; fertig.size() < zeilen; ++i) {
        const QString wort = u"Sorte%1"_s.arg(i, 3, 10, QChar(u'0')), laenger = zeile + u' ' + wort;
        const bool passt = umbruch(laenger, breite).size() == 1;
        if (!passt)
            fertig += zeile;
        zeile = passt ? laenger : wort;
    }
    return fertig;
}

/// Plants as they stand in the two columns, lines of the same plant joined.
QStringList gedruckteNamen(const Druckseiten &seiten, double x)
{
    QStringList gefunden;
    for (size_t i = 0; i < seiten.seiten.size(); ++i)
        for (const Drucktext &text : koerper(seiten, i))
            if (text.x == x && !text.schrift.Bold)
                gefunden += text.text;
    return gefunden;
}

/// Labels of the criteria and the texts on their height.
QStringList gedruckteKriterien(const Druckseiten &seiten)
{
    QStringList gefunden;
    for (size_t i = 0; i < seiten.seiten.size(); ++i) {
        const std::span<const Drucktext> texte = koerper(seiten, i);
        for (size_t t = 0; t + 1 < texte.size(); ++t)
            if (texte[t].schrift.Bold && texte[t].y == texte[t + 1].y)
                gefunden += texte[t].text;
    }
    return gefunden;
}

} // namespace

void TestListe::sparten()
{
    QTest::addColumn<Sparte>("sparte");
    QTest::addColumn<QString>("wort");
    QTest::newRow("to") << Sparte::Topf << u"Topfpflanzen"_s;
    QTest::newRow("ap") << Sparte::Apfel << u"Apfelsorten"_s;
}

void TestListe::vorgaben()
{
    QFETCH(const Sparte, sparte);
    QFETCH(const QString, wort);
    Listenprobe probe(sparte, 3);
    Sollseiten erwartet = listenanfang(wort);
    const Druckseiten seiten = probe.liste();
    QCOMPARE(alleZeilen(seiten), namen(erwartet, 1, 3).zeilen());
    QCOMPARE(seitenfehler(seiten, probe.programm), QStringList());
    // The first places once more in plain numbers.
    const QStringList zeilen = seitenzeilen(seiten.seiten[0]);
    QCOMPARE(zeilen[2], u"20.0 40.0 9 b Filter:"_s);
    QCOMPARE(zeilen[3], u"20.0 43.7 9 b Datenbank: "_s);
    QCOMPARE(zeilen[5], u"20.0 51.0 9 b Pflanzen:"_s);
    QCOMPARE(zeilen[6], u"20.0 54.6 9 - Planta 00001"_s);
    QCOMPARE(zeilen[7], u"110.0 54.6 9 - Pflanze 00001"_s);
}

void TestListe::nurDieUntereHoehe()
{
    Listenprobe probe(Sparte::Topf);
    probe.text(u"txtMinHoehe"_s, u"0,50"_s);
    Sollseiten erwartet = listenanfang().kriterium(u"Höhe: "_s, u"ab 0,50 m"_s);
    QCOMPARE(alleZeilen(probe.liste()), namen(erwartet, 1, 2).zeilen());
    // The default written in another way is the default.
    probe.text(u"txtMinHoehe"_s, u"0"_s);
    erwartet = listenanfang();
    QCOMPARE(alleZeilen(probe.liste()), namen(erwartet, 1, 2).zeilen());
}

void TestListe::vieleKriterien()
{
    Listenprobe probe(Sparte::Topf);
    probe.programm.BenutzerNamen[size_t(Sparte::Topf)] = {u"im Haus"_s, u"b"_s, u"c"_s, u"d"_s, u"im Katalog"_s};
    probe.waehlen(u"chkBild"_s, {0})
        .waehlen(u"chkTyp"_s, {1, 3})
        .waehlen(u"chkGift"_s, {0})
        .waehlen(u"lblBlMonat"_s, {2, 3})
        .waehlen(u"lblBlFarbe"_s, {0, 12})
        .waehlen(u"lblFrMonat"_s, {11})
        .waehlen(u"lblFrFarbe"_s, {6, 12})
        .waehlen(u"lblAngMonat"_s, {0})
        .waehlen(u"chkHaltbarkeit"_s, {2})
        .waehlen(u"chkLaubFarbe"_s, {0, 8})
        .waehlen(u"chkWuchsForm"_s, {12})
        .waehlen(u"chkTageslaenge"_s, {1})
        .waehlen(u"imgLicht"_s, {0, 2})
        .waehlen(u"chkWasser"_s, {1})
        .waehlen(u"chkpH"_s, {0, 1})
        .waehlen(u"chkVerwHydro"_s, {0})
        .waehlen(u"imgVerwendung"_s, {2})
        .waehlen(u"chkKrank"_s, {0})
        .waehlen(u"chkNachduengung"_s, {2})
        .waehlen(u"sschkBenutzer"_s, {0, 4})
        .waehlen(u"chkAusbildung"_s, {5})
        .text(u"cmbFamilie"_s, u"Araceae"_s)
        .text(u"txtMinHoehe"_s, u"0,50"_s)
        .text(u"txtMaxHoehe"_s, u"1,20"_s)
        .text(u"txtMaxLicht"_s, u"800"_s)
        .text(u"txtMinTemp"_s, u"5"_s)
        .text(u"txtKrank"_s, u"Blattläuse"_s)
        .text(u"txtbotName"_s, u"Ficus"_s)
        .text(u"txtSynonym"_s, u"Urostigma"_s)
        .text(u"txtSynonymDeutsch"_s, u"Gummibaum"_s)
        .text(u"txtSorte"_s, u"Alba"_s)
        .text(u"txtBenutzerText"_s, u"geschenkt"_s);
    probe.teil(u"sldBewertung"_s).werte = {4};
    Sollseiten erwartet = listenanfang()
                              .kriterium(u"Familie: "_s, u"Araceae"_s)
                              .kriterium(u"Pflanzentyp: "_s, u"Blütenpflanze, Sukkulente, Giftpflanze"_s)
                              .kriterium(u"Blütezeit: "_s, u"März, April"_s)
                              .kriterium(u"Blütenfarbe: "_s, u"weiß, bunt"_s)
                              .kriterium(u"Fruchtzeit: "_s, u"Dezember"_s)
                              .kriterium(u"Fruchtfarbe: "_s, u"lila, bunt"_s)
                              .kriterium(u"Angebotszeit: "_s, u"Januar"_s)
                              .kriterium(u"Haltbarkeit: "_s, u"lang"_s)
                              .kriterium(u"Blattfarbe: "_s, u"hellgrün, panaschiert"_s)
                              .kriterium(u"Wuchsform: "_s, u"rosettenbildend"_s)
                              .kriterium(u"Höhe: "_s, u"0,50 - 1,20 m"_s)
                              .kriterium(u"Tageslängenreaktion: "_s, u"Kurztagpflanze"_s)
                              .kriterium(u"Licht: "_s, u"sonnig, schattig"_s)
                              .kriterium(u"Beleuctungsstärke: "_s, u"bis 800 Lux"_s)
                              .kriterium(u"Temperatur: "_s, u"ab 5 °C"_s)
                              .kriterium(u"Wasserstand (Hydrokultur): "_s, u"Optimum (mittel 1-3 cm)"_s)
                              .kriterium(u"ph-Wert (Hydrokultur) "_s, u"niedrig (4-5), hoch (6-7)"_s)
                              .kriterium(u"Verwendung (Hydrokultur): "_s, u"Solitär"_s)
                              .kriterium(u"Verwendung: "_s, u"als Kübelpflanze"_s)
                              .kriterium(u"mögl. Krankheiten/Schädlinge: "_s, u"Blattläuse"_s)
                              .kriterium(u"Krankheitsanfälligkeit: "_s, u"gering"_s)
                              .kriterium(u"Höhe der Nachdüngung: "_s, u"stark"_s)
                              .kriterium(u"bot. Name: "_s, u"Ficus"_s)
                              .kriterium(u"bot. Synonym: "_s, u"Urostigma"_s)
                              .kriterium(u"deutscher Name/Synonym: "_s, u"Gummibaum"_s)
                              .kriterium(u"Sorten: "_s, u"Alba"_s)
                              .kriterium(u"Eigene Bemerkungen: "_s, u"geschenkt"_s)
                              .kriterium(u"benu.definierte Eigenschaften: "_s, u"im Haus, im Katalog"_s)
                              .kriterium(u"Ausbildung: "_s, u"bei Landschaftsgärtnern"_s)
                              .kriterium(u"Bewertung: "_s, u"ab Stufe 4    (Stufe 1: Rarität / Stufe 5:  Standardsortiment)"_s);
    const Druckseiten seiten = probe.liste();
    QCOMPARE(alleZeilen(seiten), namen(erwartet, 1, 2).zeilen());
    QCOMPARE(seitenfehler(seiten, probe.programm), QStringList());
}

void TestListe::kriterienApfel()
{
    Listenprobe probe(Sparte::Apfel);
    probe.waehlen(u"ChkFruGro"_s, {3})
        .waehlen(u"ChkFormLaengs"_s, {4, 9})
        .waehlen(u"ChkKernZahl"_s, {0, 1, 2})
        .waehlen(u"chkAusbildung"_s, {4})
        .text(u"txtVName"_s, u"von Berlepsch"_s)
        .text(u"txtSynonym"_s, u"Goldrenette"_s)
        .text(u"txtName"_s, u"Berlepsch"_s);
    probe.teil(u"optBewertung"_s).werte = {0, 1};
    Sollseiten erwartet = listenanfang(u"Apfelsorten"_s)
                              .kriterium(u"Fruchtgröße: "_s, u"sehr groß"_s)
                              .kriterium(u"Form, Längs: "_s, u"walzenförmig/faßförmig, symmetrisch"_s)
                              .kriterium(u"Kerne Anzahl: "_s, u"< 4, 4-7, > 7"_s)
                              .kriterium(u"Name: "_s, u"Berlepsch"_s)
                              .kriterium(u"Synonym: "_s, u"Goldrenette"_s)
                              .kriterium(u"voller Name: "_s, u"von Berlepsch"_s)
                              .kriterium(u"Ausbildung: "_s, u"bei Obstbauern"_s)
                              .kriterium(u"Bewertung: "_s, u"bis Stufe 3    (Stufe 1: Rarität / Stufe 5:  Standardsortiment)"_s);
    QCOMPARE(alleZeilen(probe.liste()), namen(erwartet, 1, 2).zeilen());
}

/// Line 66 goes over to the next page, under the words and without the label. The list counts its own lines from there; the paper
/// has room for 73 on such a page.
void TestListe::kriterienUeberDieSeite()
{
    const QString erstes = u"mögl. Krankheiten/Schädlinge: "_s, zweites = u"Sorten: "_s;
    const QStringList krank = wortzeilen(erstes, 30), sorten = wortzeilen(zweites, 45);
    QCOMPARE(krank.size(), 30);
    QCOMPARE(sorten.size(), 45);
    Listenprobe probe(Sparte::Topf, 130);
    probe.text(u"txtKrank"_s, krank.join(u' ')).text(u"txtSorte"_s, sorten.join(u' ')).text(u"txtBenutzerText"_s, u"geschenkt"_s);
    Sollseiten erwartet = listenanfang().kriterium(erstes, krank).kriterium(zweites, sorten.first(33)).seite(20);
    for (const QString &zeile : sorten.sliced(33))
        erwartet.text(20 + labelbreite(zweites), zeile).ende();
    erwartet.kriterium(u"Eigene Bemerkungen: "_s, u"geschenkt"_s);
    namen(erwartet, 1, 58).seite(20);
    namen(erwartet, 59, 127).seite(20);
    const Druckseiten seiten = probe.liste();
    QCOMPARE(alleZeilen(seiten), namen(erwartet, 128, 130).zeilen());
    QCOMPARE(seitenfehler(seiten, probe.programm), QStringList());
}

void TestListe::kriteriumAmSeitenende_data()
{
    QTest::addColumn<int>("vorher"); // lines on the page so far
    QTest::addColumn<int>("zeilen"); // of the next criterion
    QTest::addColumn<int>("hier");   // how many of them stand on the first page
    QTest::newRow("one line at 64") << 64 << 1 << 1;
    QTest::newRow("blank line at 64") << 63 << 1 << 1;
    QTest::newRow("one line at 65") << 65 << 1 << 0;
    QTest::newRow("two lines at 64") << 64 << 2 << 1;
    QTest::newRow("two lines at 65") << 65 << 2 << 0;
}

void TestListe::kriteriumAmSeitenende()
{
    QFETCH(const int, vorher);
    QFETCH(const int, zeilen);
    QFETCH(const int, hier);
    const QString erstes = u"mögl. Krankheiten/Schädlinge: "_s, zweites = u"Sorten: "_s;
    const QStringList krank = wortzeilen(erstes, vorher - 2), sorten = wortzeilen(zweites, zeilen);
    Listenprobe probe(Sparte::Topf);
    probe.text(u"txtKrank"_s, krank.join(u' ')).text(u"txtSorte"_s, sorten.join(u' '));
    Sollseiten erwartet = listenanfang().kriterium(erstes, krank);
    if (hier > 0)
        erwartet.kriterium(zweites, sorten.first(hier)).seite(20);
    else
        erwartet.seite(20).kriterium(zweites, sorten);
    for (const QString &zeile : hier > 0 ? sorten.sliced(hier) : QStringList())
        erwartet.text(20 + labelbreite(zweites), zeile).ende();
    QCOMPARE(alleZeilen(probe.liste()), namen(erwartet, 1, 2).zeilen());
}

void TestListe::anzahlen_data()
{
    QTest::addColumn<int>("anzahl");
    for (const int anzahl : {0, 1, 62, 63, 64, 68, 69, 70, 132, 133, 200, 201, 202, 1000})
        QTest::addRow("%d", anzahl) << anzahl;
}

/// 67 lines fit between head and foot; four of them are taken. On the other pages the counter breaks after 69.
void TestListe::anzahlen()
{
    QFETCH(const int, anzahl);
    Listenprobe probe(Sparte::Topf, anzahl);
    Sollseiten erwartet = listenanfang();
    namen(erwartet, 1, std::min(63, anzahl));
    for (int von = 64; von <= anzahl; von += 69)
        namen(erwartet.seite(20), von, std::min(von + 68, anzahl));
    const Druckseiten seiten = probe.liste();
    QCOMPARE(alleZeilen(seiten), erwartet.zeilen());
    QCOMPARE(seitenfehler(seiten, probe.programm), QStringList());
}

void TestListe::eigenerZaehler_data()
{
    QTest::addColumn<int>("groesse");
    QTest::addColumn<QList<size_t>>("seiten"); // plants on each page
    QTest::newRow("6") << 6 << QList<size_t>{69, 69, 12};
    QTest::newRow("8") << 8 << QList<size_t>{69, 69, 12};
    QTest::newRow("9") << 9 << QList<size_t>{63, 69, 18};
    QTest::newRow("14") << 14 << QList<size_t>{39, 47, 47, 17};
}

/// Where the paper has room, the list breaks by its own lines, whatever stands above it.
void TestListe::eigenerZaehler()
{
    QFETCH(const int, groesse);
    QFETCH(const QList<size_t>, seiten);
    Listenprobe probe(Sparte::Topf, 150);
    probe.programm.SchriftGroesse = groesse;
    const Druckseiten gedruckt = probe.liste();
    QList<size_t> pflanzen;
    for (size_t i = 0; i < gedruckt.seiten.size(); ++i)
        pflanzen += size_t(std::ranges::count(koerper(gedruckt, i), 110.0, &Drucktext::x));
    QCOMPARE(pflanzen, seiten);
    QCOMPARE(seitenfehler(gedruckt, probe.programm), QStringList());
}

void TestListe::ausgelieferteNamen_data()
{
    QTest::addColumn<Sparte>("sparte");
    QTest::addColumn<QPageLayout>("blatt");
    const QPageSize a4(QPageSize::A4);
    for (const Sparte sparte : spartenEinerHerkunft()) {
        const char *name = eintrag(sparte).filter;
        QTest::addRow("%s A4", name) << sparte << blattA4();
        QTest::addRow("%s margins", name) << sparte << QPageLayout(a4, QPageLayout::Portrait, QMarginsF(6, 6, 6, 6), QPageLayout::Millimeter);
        QTest::addRow("%s landscape", name) << sparte << QPageLayout(a4, QPageLayout::Landscape, {}, QPageLayout::Millimeter);
    }
}

void TestListe::ausgelieferteNamen()
{
    QFETCH(const Sparte, sparte);
    QFETCH(const QPageLayout, blatt);
    Druckprobe probe(sparte);
    QStringList botanische, deutsche;
    for (; !probe.pflanzen->Eof(); probe.pflanzen->MoveNext()) {
        botanische += probe.pflanzen->Fields(u"BOT_NAME").Text();
        deutsche += probe.pflanzen->Fields(u"DTNAM").Text();
    }
    QVERIFY(botanische.size() > 50);
    const Druckseiten seiten = probe.liste(blatt);
    QCOMPARE(seitenfehler(seiten, probe.programm), QStringList());
    // A name in several lines counts as one text.
    QCOMPARE(gedruckteNamen(seiten, 20).join(u' '), botanische.join(u' '));
    QCOMPARE(gedruckteNamen(seiten, 110).join(u' '), deutsche.join(u' '));
}

/// Everything selected, with short and long texts: sound pages, each label once and beside its words.
void TestListe::alleKriterien()
{
    QFETCH(const Sparte, sparte);
    QFETCH(const QPageLayout, blatt);
    QStringList labels{u"Datenbank: "_s};
    for (const Druckzeile &zeile : druckbeschreibung(sparte)->kriterien)
        if (!zeile.label.isEmpty() && kriteriumNamens(*filterbeschreibung(sparte), zeile.control)->pruefung != Pruefung::Bereich)
            labels += zeile.label.toString() + (zeile.label.endsWith(u' ') ? QString() : u" "_s);
    for (const int worte : {1, 60, 300}) {
        Listenprobe probe(sparte, 40);
        for (auto &namen : probe.programm.BenutzerNamen)
            namen = {u"a"_s, u"b"_s, u"c"_s, u"d"_s, u"e"_s};
        probe.alles(worte);
        const Druckseiten seiten = probe.liste(blatt);
        QCOMPARE(seitenfehler(seiten, probe.programm), QStringList());
        QCOMPARE(gedruckteKriterien(seiten), labels);
        QCOMPARE(gedruckteNamen(seiten, 110).size(), 40);
    }
}

/// The set's own order, whatever it is.
void TestListe::reihenfolge()
{
    Listenprobe probe(Sparte::Topf, 100);
    std::vector<qint64> schluessel(probe.pflanzen->Schluesselfolge().rbegin(), probe.pflanzen->Schluesselfolge().rend());
    schluessel.erase(schluessel.begin() + 10, schluessel.begin() + 60);
    Recordset auswahl(probe.auftrag.arbeit, u"SELECT * From TOPFPFL"_s, schluessel);
    probe.auftrag.pflanzen = &auswahl;
    QStringList erwartet;
    for (const qint64 nummer : schluessel)
        erwartet += botanisch(int(nummer));
    QCOMPARE(erwartet.first(11).sliced(9), QStringList({botanisch(91), botanisch(40)}));
    QCOMPARE(gedruckteNamen(probe.liste(), 20), erwartet);
    Recordset leer(probe.auftrag.arbeit, u"SELECT * From TOPFPFL"_s, std::vector<qint64>());
    probe.auftrag.pflanzen = &leer;
    Sollseiten ohne = listenanfang();
    QCOMPARE(alleZeilen(probe.liste()), namen(ohne, 1, 0).zeilen());
}

/// Each name stays in its column, 88 and 90 millimetres wide; the next plant begins below both.
void TestListe::langeNamen()
{
    const QString lang = QStringList(40, u"Namensteil"_s).join(u' '), mittel = QStringList(10, u"Namensteil"_s).join(u' '), kurz = u"kurz"_s;
    Listenprobe probe(Sparte::Topf, 5);
    Sollseiten erwartet = listenanfang().ende().ueberschrift(u"Pflanzen:"_s);
    const std::pair<QString, QString> paare[] = {{lang, kurz}, {kurz, lang}, {mittel, lang}, {lang, mittel}, {kurz, kurz}};
    for (const auto &[bot, dt] : paare) {
        probe.setzen({{u"BOT_NAME"_s, bot}, {u"DTNAM"_s, dt}});
        probe.pflanzen->MoveNext();
        const QStringList links = umbruch(bot, 88), rechts = umbruch(dt, 90);
        for (qsizetype i = 0; i < std::max(links.size(), rechts.size()); ++i)
            erwartet.pflanze(links.value(i), rechts.value(i));
    }
    QVERIFY(umbruch(lang, 88).size() > umbruch(mittel, 88).size() && umbruch(mittel, 88).size() > 1);
    const Druckseiten seiten = probe.liste();
    QCOMPARE(alleZeilen(seiten), erwartet.zeilen());
    QCOMPARE(seitenfehler(seiten, probe.programm), QStringList());
}

void TestListe::langerNameAmSeitenende_data()
{
    QTest::addColumn<int>("davor"); // plants of one line before it
    QTest::addColumn<bool>("hier"); // it stands on the first page
    QTest::newRow("60") << 60 << true;
    QTest::newRow("61") << 61 << false;
    QTest::newRow("63") << 63 << false;
}

/// A plant of three lines is not parted.
void TestListe::langerNameAmSeitenende()
{
    QFETCH(const int, davor);
    QFETCH(const bool, hier);
    Listenprobe probe(Sparte::Topf, davor + 2);
    probe.pflanzen->setAbsolutePosition(davor);
    const QString name = botanisch(davor + 1) + u"\nzweite\ndritte"_s;
    probe.setzen({{u"BOT_NAME"_s, name}});
    Sollseiten erwartet = listenanfang();
    namen(erwartet, 1, davor);
    if (!hier)
        erwartet.seite(20);
    erwartet.pflanze(botanisch(davor + 1), deutsch(davor + 1)).pflanze(u"zweite"_s, {}).pflanze(u"dritte"_s, {});
    if (hier)
        erwartet.seite(20);
    QCOMPARE(alleZeilen(probe.liste()), namen(erwartet, davor + 2, davor + 2).zeilen());
}

/// Names longer than a page go on over the foot's page, whole and in order.
void TestListe::nameUeberDieSeite()
{
    QStringList zeilen;
    for (int i = 1; i <= 100; ++i)
        zeilen += u"Teil %1"_s.arg(i);
    Listenprobe probe(Sparte::Topf, 3);
    probe.pflanzen->MoveNext();
    probe.setzen({{u"DTNAM"_s, zeilen.join(u'\n')}, {u"BOT_NAME"_s, zeilen.first(80).join(u'\n')}});
    const Druckseiten seiten = probe.liste();
    QCOMPARE(seitenfehler(seiten, probe.programm), QStringList());
    QCOMPARE(gedruckteNamen(seiten, 110), QStringList(deutsch(1)) + zeilen + QStringList(deutsch(3)));
    QCOMPARE(gedruckteNamen(seiten, 20), QStringList(botanisch(1)) + zeilen.first(80) + QStringList(botanisch(3)));
}

/// Without a German name the botanical one stands alone, in one line.
void TestListe::fehlendeNamen()
{
    Listenprobe probe(Sparte::Topf, 3);
    probe.pflanzen->MoveNext();
    Sollseiten erwartet = listenanfang();
    namen(erwartet, 1, 1).pflanze(botanisch(2), {}).pflanze(botanisch(3), deutsch(3));
    for (const QVariant &leer : {QVariant(), QVariant(u""_s)}) {
        probe.setzen({{u"DTNAM"_s, leer}});
        QCOMPARE(alleZeilen(probe.liste()), erwartet.zeilen());
    }
}

/// The window goes on showing its plant, also the last one, and one of two with the same name.
void TestListe::stelleBleibt()
{
    Listenprobe probe(Sparte::Topf, 200);
    Recordset &pflanzen = *probe.pflanzen;
    pflanzen.setAbsolutePosition(150);
    probe.setzen({{u"BOT_NAME"_s, botanisch(1)}});
    for (const int stelle : {0, 1, 68, 150, 199}) {
        pflanzen.setAbsolutePosition(stelle);
        probe.liste();
        QCOMPARE(pflanzen.AbsolutePosition(), stelle);
        QCOMPARE(pflanzen.Schluessel(), stelle + 1);
        QCOMPARE(pflanzen.Fields(u"DTNAM").Text(), deutsch(stelle + 1));
    }
    pflanzen.MoveLast();
    pflanzen.MoveNext();
    probe.liste();
    QVERIFY(pflanzen.Eof());
}

/// Deleted plants take no line, neither at an end nor in the middle, and no page.
void TestListe::geloeschte()
{
    Listenprobe probe(Sparte::Topf, 135);
    Recordset &pflanzen = *probe.pflanzen;
    QStringList erwartet;
    for (int i = 1; i <= 135; ++i) {
        const bool weg = i == 1 || (i >= 60 && i < 65) || i == 135;
        pflanzen.setAbsolutePosition(i - 1);
        if (weg)
            pflanzen.Delete();
        else
            erwartet += botanisch(i);
    }
    pflanzen.setAbsolutePosition(99);
    const Druckseiten seiten = probe.liste();
    QCOMPARE(gedruckteNamen(seiten, 20), erwartet);
    QCOMPARE(seiten.seiten.size(), size_t(2)); // 128 plants: 63 and 65
    QCOMPARE(koerper(seiten, 0).size(), size_t(4 + 2 * 63));
    QCOMPARE(seitenfehler(seiten, probe.programm), QStringList());
    QCOMPARE(pflanzen.AbsolutePosition(), 99);
    for (pflanzen.MoveFirst(); !pflanzen.Eof(); pflanzen.MoveNext())
        pflanzen.Delete();
    Sollseiten leer = listenanfang();
    QCOMPARE(alleZeilen(probe.liste()), namen(leer, 1, 0).zeilen());
}

/// Without a set or a filter there is still a list, without plants or criteria.
void TestListe::ohneMenge()
{
    Listenprobe probe(Sparte::Apfel);
    probe.auftrag.pflanzen = nullptr;
    probe.auftrag.filter = {};
    Sollseiten erwartet = listenanfang(u"Apfelsorten"_s);
    QCOMPARE(alleZeilen(probe.liste()), namen(erwartet, 1, 0).zeilen());
}

/// Fewer pages are the first ones of all, with their lines.
void TestListe::seitenbegrenzung()
{
    for (const bool kriterien : {false, true}) {
        Listenprobe probe(Sparte::Topf, 300);
        if (kriterien)
            probe.alles(300);
        const Druckseiten alle = probe.liste();
        QVERIFY(alle.seiten.size() >= 5);
        for (const size_t hoechstens : {size_t(1), size_t(2), alle.seiten.size() - 1, alle.seiten.size(), alle.seiten.size() + 3}) {
            Printer drucker(blattA4(), hoechstens);
            QVERIFY(Druck(probe.programm, probe.auftrag, drucker).DruckGefilterteListe());
            const Druckseiten seiten = drucker.EndDoc();
            QCOMPARE(seiten.seiten.size(), std::min(hoechstens, alle.seiten.size()));
            for (size_t i = 0; i < seiten.seiten.size(); ++i) {
                QStringList zeilen = seitenzeilen(seiten.seiten[i]), sollzeilen = seitenzeilen(alle.seiten[i]);
                if (hoechstens < alle.seiten.size()) { // the number of pages is not known
                    QVERIFY(zeilen.takeLast().endsWith(u" Seite %1"_s.arg(i + 1)));
                    sollzeilen.removeLast();
                }
                QCOMPARE(zeilen, sollzeilen);
                QCOMPARE(seitenlinien(seiten.seiten[i]), seitenlinien(alle.seiten[i]));
            }
        }
    }
}

FLOX_TEST(tst_liste, TestListe)
#include "tst_liste.moc"
