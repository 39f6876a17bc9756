#include "Filterhilfen.h"

#include "tests/Hilfen.h"
#include "tests/Testprogramm.h"

#include <QSignalSpy>
#include <QTest>

using namespace Qt::StringLiterals;

/* The tables of criteria against the lines and the rules written down beside them. */

class TestKriterien : public QObject
{
    Q_OBJECT

private slots:
    void tabellenSindStimmig_data() { jedeSparteMitFilter(); }
    void tabellenSindStimmig();
    void zeilenDerDatei_data() { jedeSparteMitFilter(); }
    void zeilenDerDatei();
    void zeilenFallenAuf();
    void reihenfolgeDerPruefungen_data() { jedeSparteMitRegeln(); }
    void reihenfolgeDerPruefungen();
    void fehlerFallenAuf_data();
    void fehlerFallenAuf();
    void ohneTabelle();
};

void TestKriterien::tabellenSindStimmig()
{
    QFETCH(const Sparte, sparte);
    const Filterbeschreibung *b = filterbeschreibung(sparte);
    QVERIFY(b);
    QCOMPARE(b->sparte, sparte);
    QCOMPARE(filterfehler(*b), QString());
    QCOMPARE(b->zeilen, int(dateizeilen(sparte).size()));
}

void TestKriterien::zeilenDerDatei()
{
    QFETCH(const Sparte, sparte);
    QCOMPARE(zeilenfehler(*filterbeschreibung(sparte), dateizeilen(sparte)), QString());
}

void TestKriterien::zeilenFallenAuf()
{
    const Filterbeschreibung &b = *filterbeschreibung(Sparte::Topf);
    const std::vector<Dateizeile> &richtig = dateizeilen(Sparte::Topf);
    std::vector<Dateizeile> zeilen = richtig;
    zeilen.pop_back();
    QCOMPARE(zeilenfehler(b, zeilen), u"151 lines, 152 in the table"_s);
    zeilen = richtig;
    std::swap(zeilen[8].control, zeilen[9].control);
    QCOMPARE(zeilenfehler(b, zeilen), u"line 9: txtSynonym, text; in the table: txtbotName, text"_s);
    zeilen = richtig;
    zeilen[24].art = u"colour"_s;
    QCOMPARE(zeilenfehler(b, zeilen), u"line 25: lblBlFarbe(12), colour BackStyle; in the table: lblBlFarbe(12), value BackStyle"_s);
    zeilen = richtig;
    zeilen[4].element = 3;
    QCOMPARE(zeilenfehler(b, zeilen), u"line 5: chkTyp(3), flag; in the table: chkTyp(2), flag"_s);
}

void TestKriterien::reihenfolgeDerPruefungen()
{
    QFETCH(const Sparte, sparte);
    // clang-format off
    const QMap<Pruefung, QList<Regelart>> arten{
        {Pruefung::Familie, {Regelart::Familie}}, {Pruefung::Bild, {Regelart::Bild}},
        {Pruefung::Flags, {Regelart::Flags, Regelart::Nummer, Regelart::NummerOderFlags, Regelart::Pflanzenart}},
        {Pruefung::AlleWahr, {Regelart::AlleWahr}}, {Pruefung::Gleich, {Regelart::Gleich}}, {Pruefung::WortImText, {Regelart::Monat}},
        {Pruefung::Keine, {Regelart::Keine}},
        {Pruefung::FlagsOderWahr, {Regelart::Typen}}, {Pruefung::Bereich, {Regelart::Hoehe, Regelart::Spanne}},
        {Pruefung::Enthaelt, {Regelart::Text}}, {Pruefung::SynonymBotanisch, {Regelart::SynonymBotanisch}},
        {Pruefung::SynonymDeutsch, {Regelart::SynonymDeutsch}}, {Pruefung::Bewertung, {Regelart::Bewertung}}};
    // clang-format on
    const std::span<const Kriterium> kriterien = filterbeschreibung(sparte)->kriterien;
    QCOMPARE(kriterien.size(), regeln(sparte).size());
    for (size_t i = 0; i < kriterien.size(); ++i) {
        const Kriterium &k = kriterien[i];
        const Regel &regel = regeln(sparte)[i];
        QVERIFY2(arten.value(k.pruefung).contains(regel.art), regel.control);
        QCOMPARE(k.a.control, regel.control);
        QCOMPARE(k.a.anzahl, regel.anzahl);
        QCOMPARE(k.a.ueberzaehlig, regel.ueberzaehlig);
        QVERIFY(std::ranges::equal(k.felder, regel.felder, [](const char *a, const char *b) { return qstrcmp(a, b) == 0; }));
        QCOMPARE(QString::fromLatin1(k.b.control), QString::fromLatin1(regel.control2));
        QCOMPARE(QString::fromLatin1(k.feld).toLower(), QString::fromLatin1(regel.feld));
        QCOMPARE(QString::fromLatin1(k.feld2).toLower(), QString::fromLatin1(regel.feld2));
        if (k.pruefung == Pruefung::Bereich) {
            QCOMPARE(k.regel, regel.art == Regelart::Hoehe ? Bereichsregel::GleicheZahlen : Bereichsregel::GleicherText);
            QCOMPARE(k.untereGegenMax, regel.art == Regelart::Spanne);
        }
    }
}

void TestKriterien::fehlerFallenAuf_data()
{
    QTest::addColumn<Tabellenaenderung>("aenderung");
    QTest::addColumn<QString>("meldung");
    const auto zeile = [](const char *name, Tabellenaenderung aenderung, const QString &meldung) { QTest::newRow(name) << aenderung << meldung; };
    zeile("unverändert", [](std::vector<Kriterium> &, Filterbeschreibung &) {}, {});
    zeile(
        "Feld", [](std::vector<Kriterium> &k, Filterbeschreibung &) { k[3].feld = "FARBE"; }, u"kein Feld FARBE"_s);
    zeile(
        "zweites Feld", [](std::vector<Kriterium> &k, Filterbeschreibung &) { k[2].feld2 = "GIFT"; }, u"kein Feld GIFT"_s);
    zeile(
        "Reiter", [](std::vector<Kriterium> &k, Filterbeschreibung &) { k[3].reiter = 7; }, u"lblBlFarbe: kein Reiter 7"_s);
    zeile(
        "doppelt", [](std::vector<Kriterium> &k, Filterbeschreibung &) { k[5].a.control = "lblBlFarbe"; }, u"lblBlFarbe steht doppelt"_s);
    zeile(
        "Farben", [](std::vector<Kriterium> &k, Filterbeschreibung &) { k[3].a.farben = nullptr; },
        u"lblBlFarbe: Farben und Anzahl passen nicht zusammen"_s);
    zeile(
        "Wörter", [](std::vector<Kriterium> &k, Filterbeschreibung &) { k[8].a.anzahl = 4; }, u"chkHaltbarkeit: mehr Kästchen als Wörter"_s);
    zeile(
        "eigene Wörter", [](std::vector<Kriterium> &k, Filterbeschreibung &) { k[10].a.anzahl = 13; }, u"chkWuchsForm: 14 Wörter für 13 Kästchen"_s);
    zeile(
        "Zeile doppelt", [](std::vector<Kriterium> &k, Filterbeschreibung &) { k[1].a.zeile = 1; },
        u"chkBild: Zeile 1 steht doppelt oder gibt es nicht"_s);
    zeile(
        "Zeile zu groß", [](std::vector<Kriterium> &k, Filterbeschreibung &) { k[1].a.zeile = 153; },
        u"chkBild: Zeile 153 steht doppelt oder gibt es nicht"_s);
    zeile(
        "Zeile fehlt", [](std::vector<Kriterium> &k, Filterbeschreibung &) { k[1].a.zeile = 0; }, u"Zeile 2 fehlt"_s);
    zeile(
        "Zeile zu viel", [](std::vector<Kriterium> &, Filterbeschreibung &b) { ++b.zeilen; }, u"Zeile 153 fehlt"_s);
}

void TestKriterien::fehlerFallenAuf()
{
    QFETCH(const Tabellenaenderung, aenderung);
    Filterbeschreibung b = *filterbeschreibung(Sparte::Topf);
    std::vector<Kriterium> kriterien(b.kriterien.begin(), b.kriterien.end());
    aenderung(kriterien, b);
    b.kriterien = kriterien;
    QTEST(filterfehler(b), "meldung");
}

void TestKriterien::ohneTabelle()
{
    for (const Sparte sparte : spartenEinerHerkunft())
        QVERIFY(filterbeschreibung(sparte));
    // What has no table has no dialog either; it must not be somebody else's.
    for (const SpartenEintrag &e : alleSparten())
        if (const Filterbeschreibung *b = filterbeschreibung(e.sparte))
            QCOMPARE(b->sparte, e.sparte);
}

FLOX_TEST(tst_kriterien, TestKriterien)
#include "tst_kriterien.moc"
