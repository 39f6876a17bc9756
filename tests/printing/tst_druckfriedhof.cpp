#include "Blattprobe.h"

#include "printing/Kriteriendruck.h"
#include "printing/mdlDruck.h"
#include "tests/filters/Filterhilfen.h"
#include "tests/Testprogramm.h"

#include <QTest>

using namespace Qt::StringLiterals;

/* The data sheet and the printed criteria of cemetery plants. */

class TestDruckFriedhof : public QObject
{
    Q_OBJECT

private slots:
    void staudenblatt();
    void gehoelzblatt();
    void jedeZeile();
    void kriterien_data();
    void kriterien();

private:
    /// Only these rows, each with what the statements give it.
    static void zeilen(Druckprobe &probe, const QStringList &befehle);
};

void TestDruckFriedhof::zeilen(Druckprobe &probe, const QStringList &befehle)
{
    for (const char *tabelle : {"Friedhof", "Stauden", "Gehoelze", "Stauden_Synonyme_Botanisch", "Gehoelze_Synonyme_Botanisch", "Familien"})
        probe.auftrag.arbeit->Execute(u"DELETE FROM "_s + QString::fromLatin1(tabelle));
    for (const QString &befehl : befehle)
        probe.auftrag.arbeit->Execute(befehl);
    probe.pflanzen = std::make_unique<Recordset>(probe.auftrag.arbeit, u"SELECT * From Abfrage_Friedhof WHERE BOT_NAME LIKE '*' ORDER BY BOT_NAME"_s);
    probe.auftrag.pflanzen = probe.pflanzen.get();
}

namespace {

const QString friedhof = u"INSERT INTO Friedhof (ARTNR, BOT_NAME, DTNAM, DB, SYMBOLIK, verwendung, pflege, pflanzzeit, MINHOEHE, MAXHOEHE, "
                         "blaschmuck, "
                         "BLUEHSCHMU, bluehzeit, fruchtschm, fruchtfarb, fruchtzeit, HERBSTFARB, wuchsgesch, wuchsform, NAEHRSTOFF, abstand, DUFT, "
                         "benu_bemerkung, bewertung, Benu_Aenderung) VALUES (7, 'Planta prima', 'Erstpflanze', '%1', 'Treue', '0100000000000010', "
                         "'100', '101', 0.2, "
                         "0.5, 'True', 'True', '000010000000', 'True', '01', '000000000001', 'True', '001', 'locker', '010', '20 cm', 'True', "
                         "'meine', 9, 2)"_s;
const QString stauden = u"INSERT INTO Stauden (ARTNR, Quelle, HK, heimisch, pflanzart, kennziffer, MINHOEHE, MAXHOEHE, BLMINH, BLMAXH, bluehzeit, "
                        "fruchtfarb, "
                        "UNSCHEINBA, immergruen, salz, abstand, FAMILIE, SORTEN, Ausbildung, bewertung) VALUES (7, 'n', 'Eur.', 'True', 'Str', "
                        "'9.1', 0.1, 0.3, NULL, 0.6, "
                        "'000100000000', '3', 'True', 'True', '001', '5', 2, 'Alba', '000100', 3)"_s;
const QString gehoelze = u"INSERT INTO Gehoelze (ARTNR, BDBNR, Quelle, hk, FAMILIE, grobeint, groesse, maxdurchm, bluehzeit, fruchtfarb, "
                         "fruchtzeit, genuss, SORTEN, "
                         "schaden, Ausbildung) VALUES (7, '12', 'g', 'As.', 1, '2', '001', 4.5, '001000000000', '0001', '000000000010', '3', "
                         "'Rubra', 'Läuse', '010000')"_s;
const QStringList umgebung{u"INSERT INTO Familien VALUES (1, 'Lignaceae'), (2, 'Staudaceae')"_s,
                           u"INSERT INTO Stauden_Synonyme_Botanisch VALUES (7, 'Herba')"_s,
                           u"INSERT INTO Gehoelze_Synonyme_Botanisch VALUES (7, 'Lignum')"_s};

/// What the cemetery table itself says.
Sollseiten &eigenes(Sollseiten &seiten)
{
    return seiten.eintrag(u"Symbolik"_s, u"Treue"_s)
        .eintrag(u"Verwendung"_s, u"GB-Bodendecker, GF-Hecke"_s)
        .eintrag(u"Pflegeaufwand"_s, u"gering"_s)
        .eintrag(u"Pflanzzeit"_s, u"Frühjahr, Herbst"_s)
        .eintrag(u"Höhe"_s, u"0,2 - 0,5 m"_s)
        .eintrag({}, u"Blätter sind schmückend!"_s)
        .eintrag({}, u"Blüten sind schmückend!"_s)
        .eintrag(u"Bluetezeit"_s, u"Mai"_s)
        .eintrag({}, u"Früchte sind schmückend!"_s)
        .eintrag(u"Fruchtfarbe"_s, u"gelb"_s)
        .eintrag(u"Fruchtzeit"_s, u"Dezember"_s)
        .eintrag({}, u"Herbstfärbung!"_s)
        .eintrag(u"Wuchsgeschwindigkeit"_s, WL_GeWuchs.wort(3).toString())
        .eintrag(u"Wuchsform"_s, u"locker"_s)
        .eintrag(u"Nährstoffangebot (Boden)"_s, u"mittel"_s)
        .eintrag(u"Pflanzabstand"_s, u"20 cm"_s)
        .eintrag({}, u"Duftpflanze"_s);
}

} // namespace

/// The woody plant of the same number prints nowhere.
void TestDruckFriedhof::staudenblatt()
{
    Druckprobe probe(Sparte::Friedhof);
    zeilen(probe, umgebung + QStringList{friedhof.arg(u"100"), stauden, gehoelze});
    Sollseiten soll;
    soll.titel(u"Planta prima"_s)
        .text(15, u"Botanischer Name laut 'Namenliste Stauden'"_s)
        .ende()
        .eintrag(u"Deutscher Name"_s, u"Erstpflanze"_s)
        .eintrag(u"Synonyme"_s, u"Herba"_s);
    eigenes(soll)
        .eintrag(u"Herkunft"_s, u"Eur."_s)
        .eintrag({}, u"heimische Pflanze"_s)
        .eintrag({}, u"Strauch"_s)
        .eintrag(u"Kennziffer"_s, u"9.1"_s)
        .eintrag(u"Höhe"_s, u"0,1 - 0,3 m"_s)
        .eintrag(u"Blütenhöhe"_s, u"max. 0,6 m"_s)
        .eintrag(u"Blütezeit"_s, u"April"_s)
        .eintrag(u"Fruchtfarbe"_s, u"orange"_s)
        .eintrag({}, u"Die Blüten sind unscheinbar!"_s)
        .eintrag({}, u"immergrüne Pflanze"_s)
        .eintrag(u"Nährstoffbedarf"_s, u"nährstoffreich"_s)
        .eintrag(u"Familie"_s, u"Staudaceae"_s)
        .eintrag(u"Pflanzabstand"_s, u"5/m²"_s)
        .eintrag(u"Sorten"_s, u"Alba"_s)
        .eintrag(u"Für Azubis"_s, u"bei Friedhofsgärtnern"_s)
        .eintrag(u"Eigene Bemerkungen"_s, u"meine"_s);
    const Druckseiten seiten = probe.blatt();
    QCOMPARE(alleZeilen(seiten), soll.zeilen());
    QCOMPARE(blattfehler(seiten, probe.programm), QStringList());
}

void TestDruckFriedhof::gehoelzblatt()
{
    Druckprobe probe(Sparte::Friedhof);
    zeilen(probe, umgebung + QStringList{friedhof.arg(u"010"), stauden, gehoelze});
    Sollseiten soll;
    soll.titel(u"Planta prima"_s)
        .text(15, u"Botanischer Name laut 'Namenliste Gehölze'"_s)
        .ende()
        .eintrag(u"Deutscher Name"_s, u"Erstpflanze"_s)
        .eintrag(u"Synonyme"_s, u"Lignum"_s);
    eigenes(soll)
        .eintrag(u"BdB-Nummer"_s, u"12"_s)
        .eintrag(u"Herkunft"_s, u"As."_s)
        .eintrag(u"Familie"_s, u"Lignaceae"_s)
        .eintrag({}, u"Nadelgehölz"_s)
        .eintrag(u"Einteilung"_s, u"Kleinbaum (7-12/15 m)"_s)
        .eintrag(u"max. Durchmesser"_s, u"4,5 m"_s)
        .eintrag(u"Blütezeit"_s, u"März"_s)
        .eintrag(u"Fruchtfarbe"_s, u"rosa"_s)
        .eintrag(u"Fruchtzeit"_s, u"November"_s)
        .eintrag({}, u"giftig"_s)
        .eintrag(u"Sorten"_s, u"Rubra"_s)
        .eintrag(u"Krankheiten/Schädlinge"_s, u"Läuse"_s)
        .eintrag(u"Für Azubis"_s, u"bei Baumschulgärtnern"_s)
        .eintrag(u"Eigene Bemerkungen"_s, u"meine"_s);
    const Druckseiten seiten = probe.blatt();
    QCOMPARE(alleZeilen(seiten), soll.zeilen());
    QCOMPARE(blattfehler(seiten, probe.programm), QStringList());
}

void TestDruckFriedhof::jedeZeile()
{
    Druckprobe probe(Sparte::Friedhof);
    int gedruckt = 0;
    for (; !probe.pflanzen->Eof(); probe.pflanzen->MoveNext(), ++gedruckt) {
        const Druckseiten seiten = probe.blatt();
        QCOMPARE(blattfehler(seiten, probe.programm), QStringList());
        QCOMPARE(seitentexte(seiten.seiten[0])[2], probe.pflanzen->Fields(u"BOT_NAME").Text().left(seitentexte(seiten.seiten[0])[2].size()));
    }
    QVERIFY(gedruckt >= 80);
}

void TestDruckFriedhof::kriterien_data()
{
    using Wahl = QList<std::pair<QByteArray, int>>;
    QTest::addColumn<Wahl>("wahl");
    QTest::addColumn<QStringList>("zeilen");
    const auto zeile = [](const char *name, const Wahl &wahl, const QStringList &zeilen) { QTest::newRow(name) << wahl << zeilen; };
    zeile("nothing", {}, {});
    zeile("ornament", {{"chkBluehSchmuck", 0}, {"chkFruchtSchmuck", 0}, {"chkBlattschmuck", 0}},
          {u"Blüten sind schmückend|"_s, u"Früchte sind schmückend|"_s, u"Laub ist schmückend|"_s});
    zeile("kind of a perennial", {{"optTyp", 5}}, {u"Pflanzentyp : |Strauch"_s});
    zeile("size of a woody plant", {{"chkGhTyp", 2}, {"chkGhTyp", 7}}, {u"Pflanzentyp : |Kleinbaum (7-12/15 m), Klettergehölz"_s});
    zeile("broad-leaved", {{"chkGhLaub", 0}}, {u"Pflanzentyp : |Laubgehölze"_s});
    zeile("conifer", {{"chkGhNadel", 0}}, {u"Pflanzentyp : |Nadelgehölze"_s});
    zeile("kinds of both", {{"optTyp", 4}, {"chkGhTyp", 0}, {"chkGhLaub", 0}, {"chkGhNadel", 0}},
          {u"Pflanzentyp : |Staude, Großbaum (20-40 m), Laubgehölze, Nadelgehölze"_s});
    zeile("kind without size", {{"optTyp", 4}, {"chkGhNadel", 0}}, {u"Pflanzentyp : |Staude, Nadelgehölze"_s});
    zeile("grave", {{"chkVerwendung", 1}, {"chkVerwendung", 8}}, {u"Grabbeet (eigtl. Grab): |GB-Bodendecker, GB-Solitär"_s});
    zeile("field", {{"chkVerwendung", 9}, {"chkVerwendung", 15}},
          {u"Grabfeld (eigtl. Friedhof): |Grabfeld, eigtl. Friedhof (GF), GF-Kübelpflanze"_s});
    zeile("grave and field", {{"chkVerwendung", 1}, {"chkVerwendung", 15}},
          {u"Grabbeet (eigtl. Grab): |GB-Bodendecker, Grabfeld (eigtl. Friedhof): GF-Kübelpflanze"_s});
    zeile("words of both sides",
          {{"chkKalk", 0}, {"chkBodenArt", 6}, {"chkBodenfeuchte", 3}, {"chkLaubZeit", 3}, {"chkLaubFarbe", 16}, {"chkHabitus", 6}},
          {u"Blattfarbe: |bläulich rot"_s, u"zeitliche Einteilung: |Herbstfärbung!"_s, u"Bodenart: |tiefgründig"_s, u"Bodenfeuchte: |dauernaß"_s,
           u"Boden pH-Wert: |sauer"_s, u"Habitus: |überhängend"_s});
    zeile("texts", {{"txtbotName", -1}, {"txtSynonym", -1}, {"txtSynonymDeutsch", -1}, {"txtSorte", -1}, {"txtBenutzerText", -1}},
          {u"Textsuche (botanischer Name) : |7"_s, u"Textsuche (botanisches Synonym) : |7"_s, u"Textsuche (deutscher Name) : |7"_s,
           u"Textsuche (Sorte) : |7"_s, u"Textsuche (eigene Bemerkung): |7"_s, u"Eigene Bemerkungen: |7"_s});
    zeile("ranges", {{"txtMinHoehe", -1}, {"txtBlattMaxHoehe", -1}}, {u"Blüten-Höhe: |ab 7 m"_s, u"Blatt-Höhe: |bis 7 m"_s});
}

void TestDruckFriedhof::kriterien()
{
    using Wahl = QList<std::pair<QByteArray, int>>;
    QFETCH(const Wahl, wahl);
    Zustand z(Sparte::Friedhof);
    for (const auto &[control, element] : wahl) {
        if (element < 0)
            z.text(control, u"7"_s);
        else
            z.waehlen(control, element);
    }
    Programmordner ordner;
    const Programm programm = ordner.programm();
    QStringList gedruckt;
    for (const Kriteriumzeile &zeile : kriterienzeilen(DruckFriedhof.kriterien, z.beschreibung, z.werte, {programm, eintrag(Sparte::Friedhof)}))
        gedruckt += zeile.label + u'|' + zeile.worte;
    QTEST(gedruckt, "zeilen");
}

FLOX_TEST(tst_druckfriedhof, TestDruckFriedhof)
#include "tst_druckfriedhof.moc"
