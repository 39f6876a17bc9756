#include "Filterhilfen.h"

#include "tests/Hilfen.h"
#include "tests/Testprogramm.h"

#include <QSignalSpy>
#include <QTest>

using namespace Qt::StringLiterals;

/* Filter files byte for byte, and what the reader takes. */

class TestFilterdatei : public QObject
{
    Q_OBJECT

private slots:
    void vorgabeByteweise_data() { jedeSparteMitFilter(); }
    void vorgabeByteweise();
    void jedeZeile_data();
    void jedeZeile();
    void zahlenMitPunktUndKomma();
    void codeseite();
    void kommaVerschiebt();
    void kommaInDerLetztenTextzeile();
    void anfuehrungszeichen_data();
    void anfuehrungszeichen();
    void leseregeln_data();
    void leseregeln();
    void kurzeDateien_data() { jedeSparteMitFilter(); }
    void kurzeDateien();
    void zeilenenden();
    void fremdeSparte();
    void mehrAlsNoetig();
    void ohneBildStehtNirgends();
};

void TestFilterdatei::vorgabeByteweise()
{
    QFETCH(const Sparte, sparte);
    Zustand z(sparte);
    QCOMPARE(filterSchreiben(z.beschreibung, z.werte), vorgabedatei(sparte));
    Zustand geladen(sparte);
    for (const Dateizeile &zeile : dateizeilen(sparte))
        geladen.verstellen(zeile);
    QVERIFY(laden(z.beschreibung, vorgabedatei(sparte), geladen.werte));
    QVERIFY(geladen.werte == z.werte);
}

void TestFilterdatei::jedeZeile_data()
{
    QTest::addColumn<Sparte>("sparte");
    QTest::addColumn<int>("stelle");
    for (const Sparte sparte : spartenMitFilter())
        for (const Dateizeile &zeile : dateizeilen(sparte))
            QTest::addRow("%s %d %s(%d)", kuerzel(sparte).constData(), zeile.nummer, qPrintable(zeile.control), zeile.element)
                << sparte << zeile.nummer - 1;
}

/// One control changed: one other line in the file, and the same state back.
void TestFilterdatei::jedeZeile()
{
    QFETCH(const Sparte, sparte);
    QFETCH(const int, stelle);
    const Dateizeile &zeile = dateizeilen(sparte)[size_t(stelle)];
    Zustand z(sparte);
    const QByteArray soll = z.verstellen(zeile);
    QByteArrayList zeilen = vorgabedatei(sparte).split('\n');
    zeilen[stelle] = soll + '\r';
    const QByteArray datei = filterSchreiben(z.beschreibung, z.werte);
    QCOMPARE(datei, zeilen.join('\n'));
    Zustand geladen(sparte);
    QVERIFY(laden(z.beschreibung, datei, geladen.werte));
    QVERIFY(geladen.werte == z.werte);
}

void TestFilterdatei::zahlenMitPunktUndKomma()
{
    Zustand z(Sparte::Topf);
    z.text("txtMinHoehe", u"0.5"_s).text("txtMaxHoehe", u"1,5,"_s).text("txtMinLicht", {}).text("txtMaxTemp", u"abc"_s);
    const QByteArray datei = filterSchreiben(z.beschreibung, z.werte);
    const QByteArrayList zeilen = datei.split('\n');
    QCOMPARE(zeilen[74], "0.5\r");
    QCOMPARE(zeilen[75], "1.5.\r");
    QCOMPARE(zeilen[108], "\r");
    QCOMPARE(zeilen[111], "abc\r");
    Zustand geladen(Sparte::Topf);
    QVERIFY(laden(z.beschreibung, datei, geladen.werte));
    QCOMPARE(geladen["txtMinHoehe"].text, u"0,5"_s); // the point is read as a comma
    QCOMPARE(geladen["txtMaxHoehe"].text, u"1,5,"_s);
    QCOMPARE(geladen["txtMinLicht"].text, QString());
    QCOMPARE(geladen["txtMaxTemp"].text, u"abc"_s);
}

void TestFilterdatei::codeseite()
{
    Zustand z(Sparte::Topf);
    z.text("txtSorte", u"Ä ß – € „x“ Ω 漢 😀."_s);
    const QByteArray datei = filterSchreiben(z.beschreibung, z.werte);
    QVERIFY(!datei.startsWith("\xef\xbb\xbf"));
    QCOMPARE(datei.split('\n')[11], "\xc4 \xdf \x96 \x80 \x84x\x93 ? ? ?.\r");
    Zustand geladen(Sparte::Topf);
    QVERIFY(laden(z.beschreibung, datei, geladen.werte));
    QCOMPARE(geladen["txtSorte"].text, u"Ä ß – € „x“ ? ? ?."_s);
}

void TestFilterdatei::kommaVerschiebt()
{
    Zustand z(Sparte::Topf);
    z.text("txtSorte", u"rot, 5"_s).waehlen("lblBlFarbe", 0).waehlen("chkTyp", 2);
    Zustand geladen(Sparte::Topf);
    geladen.text("txtKrank", u"bleibt"_s);
    QVERIFY(!laden(z.beschreibung, filterSchreiben(z.beschreibung, z.werte), geladen.werte));
    QVERIFY(geladen.hat("chkTyp", 2));
    QCOMPARE(geladen["txtSorte"].text, u"rot"_s);
    QCOMPARE(geladen["lblBlFarbe"].werte[0], 5); // the rest of the text is the first colour
    QCOMPARE(geladen["lblBlFarbe"].werte[1], 0x00AFFF);
    QVERIFY(!geladen.hat("lblBlFarbe", 12)); // a colour is no style: the load ends there
    QCOMPARE(geladen["txtKrank"].text, u"bleibt"_s);
}

void TestFilterdatei::kommaInDerLetztenTextzeile()
{
    // Here the shift is not seen before the file ends.
    Zustand z(Sparte::Apfel);
    z.text("txtBenutzerText", u"süß,1"_s).waehlen("sschkBenutzer", 4).waehlen("chkAusbildung", 4);
    Zustand geladen(Sparte::Apfel);
    QVERIFY(laden(z.beschreibung, filterSchreiben(z.beschreibung, z.werte), geladen.werte));
    QCOMPARE(geladen["txtBenutzerText"].text, u"süß"_s);
    QCOMPARE(geladen["sschkBenutzer"].werte, (std::vector<int>{1, 0, 0, 0, 0}));
    QCOMPARE(geladen["chkAusbildung"].werte, (std::vector<int>{1, 0, 0, 0, 0, 1}));
}

void TestFilterdatei::anfuehrungszeichen_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("ganz");
    QTest::addColumn<QString>("geladen");
    QTest::newRow("eingefasst") << u"\"Mutter, Kind\""_s << true << u"Mutter, Kind"_s;
    QTest::newRow("mit Rest") << u"\"Rose\" rot"_s << true << u"Rose"_s;
    QTest::newRow("leer") << u"\"\""_s << true << QString();
    QTest::newRow("in der Mitte") << u"eine \"Rose\" rot"_s << true << u"eine \"Rose\" rot"_s;
    QTest::newRow("nur am Ende") << u"Rose\""_s << true << u"Rose\""_s;
    QTest::newRow("nur am Anfang") << u"\"Rose"_s << false << u"vorher"_s;
    QTest::newRow("Leerzeichen davor") << u"   Rose "_s << true << u"Rose "_s;
    QTest::newRow("Rest mit Komma") << u"\"Rose\", rot"_s << false << u"Rose"_s;
}

void TestFilterdatei::anfuehrungszeichen()
{
    QFETCH(const QString, text);
    Zustand z(Sparte::Topf);
    z.text("txtSorte", text);
    Zustand geladen(Sparte::Topf);
    geladen.text("txtSorte", u"vorher"_s);
    QTEST(laden(z.beschreibung, filterSchreiben(z.beschreibung, z.werte), geladen.werte), "ganz");
    QTEST(geladen["txtSorte"].text, "geladen");
}

void TestFilterdatei::leseregeln_data()
{
    QTest::addColumn<Sparte>("sparte");
    QTest::addColumn<int>("zeile");
    QTest::addColumn<QByteArray>("stueck");
    QTest::addColumn<QVariant>("wert"); // number or text; invalid: a read error
    const auto reihe = [](Sparte sparte, int zeile, std::initializer_list<std::pair<const char *, QVariant>> faelle) {
        for (const auto &[stueck, wert] : faelle)
            QTest::addRow("%s %d <%s>", eintrag(sparte).filter, zeile, stueck) << sparte << zeile << QByteArray(stueck) << wert;
    };
    const QVariant fehler;
    // Boxes: any number but 0 sets them.
    for (const auto &[sparte, zeile] :
         {std::pair(Sparte::Topf, 2), {Sparte::Topf, 147}, {Sparte::Apfel, 1}, {Sparte::Apfel, 234}, {Sparte::Apfel, 132}})
        reihe(sparte, zeile,
              {{" 0 ", 0},
               {"-1 ", 1},
               {" 1 ", 1},
               {"7", 1},
               {"0.5", 1},
               {"\"-1\"", 1},
               {"\t 1", 1},
               {"x", fehler},
               {"1x", fehler},
               {"True", fehler},
               {"", fehler},
               {"--1", fehler}});
    // Booleans.
    for (const auto &[sparte, zeile] : {std::pair(Sparte::Topf, 139), {Sparte::Apfel, 223}})
        reihe(sparte, zeile,
              {{"True", 1},
               {"False", 0},
               {"Wahr", 1},
               {"Falsch", 0},
               {"#TRUE#", 1},
               {"#FALSE#", 0},
               {"-1", 1},
               {" 0 ", 0},
               {"3", 1},
               {"true", 1},
               {"ja", fehler},
               {"#WAHR", fehler},
               {"", fehler}});
    // Styles.
    for (const int zeile : {25, 50, 106, 136})
        reihe(Sparte::Topf, zeile, {{" 0 ", 0}, {" 1 ", 1}, {"2", fehler}, {"-1", fehler}, {"-2147483633", fehler}, {"True", fehler}});
    // Colours are kept as they stand.
    for (const int zeile : {13, 26, 74})
        reihe(Sparte::Topf, zeile,
              {{"-2147483633 ", int(0x8000000Fu)},
               {"-2147483645", int(0x80000003u)},
               {"255", 255},
               {" 0 ", 0},
               {"2147483647", 2147483647},
               {"2147483648", fehler},
               {"-2147483649", fehler},
               {"&H8000000F", fehler},
               {"rot", fehler}});
    for (const auto &[sparte, zeile] : {std::pair(Sparte::Topf, 140), {Sparte::Apfel, 224}})
        reihe(sparte, zeile, {{"1", 1}, {" 5 ", 5}, {"0", fehler}, {"6", fehler}, {"-3", fehler}, {"1e9", fehler}, {"drei", fehler}});
    // Texts take anything.
    for (const int zeile : {1, 9, 12, 137, 141})
        reihe(Sparte::Topf, zeile, {{"", u""_s}, {"  Rosaceae", u"Rosaceae"_s}, {"5", u"5"_s}, {"\"a\"", u"a"_s}, {"a;b", u"a;b"_s}});
    for (const int zeile : {75, 109, 112})
        reihe(Sparte::Topf, zeile, {{"", u""_s}, {" 1.5", u"1,5"_s}, {"-20", u"-20"_s}, {"1.2.3", u"1,2,3"_s}, {"abc", u"abc"_s}});
}

void TestFilterdatei::leseregeln()
{
    QFETCH(const Sparte, sparte);
    QFETCH(const int, zeile);
    QFETCH(const QByteArray, stueck);
    QFETCH(const QVariant, wert);
    QByteArrayList zeilen = vorgabedatei(sparte).split('\n');
    zeilen[zeile - 1] = stueck + '\r';
    Zustand z(sparte), soll(sparte);
    // What lies behind a failing line must keep its state.
    const bool ganz = laden(z.beschreibung, zeilen.join('\n'), z.werte);
    QCOMPARE(ganz, wert.isValid());
    const Dateizeile &ort = dateizeilen(sparte)[size_t(zeile - 1)];
    const QByteArray control = ort.control.toLatin1();
    if (wert.typeId() == QMetaType::Int)
        soll[control].werte[size_t(std::max(ort.element, 0))] = wert.toInt();
    else if (wert.isValid())
        soll[control].text = wert.toString();
    QVERIFY(z.werte == soll.werte);
}

void TestFilterdatei::kurzeDateien()
{
    QFETCH(const Sparte, sparte);
    const QByteArrayList zeilen = vorgabedatei(sparte).split('\n');
    const int anzahl = int(dateizeilen(sparte).size());
    for (int n = 0; n <= anzahl; ++n) {
        int werte = 0;
        const bool ganz = filterLesen(*filterbeschreibung(sparte), zeilen.first(n).join('\n') + (n ? "\n" : ""),
                                      [&](int, bool, int, int, const QString &) { ++werte; });
        QCOMPARE(werte, n);
        QCOMPARE(ganz, n == anzahl);
    }
}

void TestFilterdatei::zeilenenden()
{
    const QByteArray datei = vorgabedatei(Sparte::Topf);
    for (const QByteArray &form : {QByteArray(datei).replace("\r\n", "\n"), QByteArray(datei).replace("\r\n", ","), datei.chopped(2)}) {
        Zustand z(Sparte::Topf);
        z.waehlen("chkBild").text("txtKrank", u"x"_s);
        QVERIFY(laden(z.beschreibung, form, z.werte));
        QVERIFY(z.werte == Zustand(Sparte::Topf).werte);
    }
}

void TestFilterdatei::fremdeSparte()
{
    Zustand apfel(Sparte::Apfel), topf(Sparte::Topf);
    QVERIFY(!laden(apfel.beschreibung, vorgabedatei(Sparte::Topf), apfel.werte));
    QVERIFY(apfel.werte == Zustand(Sparte::Apfel).werte); // a family is no number
    // Its flags pass for texts and colours for a long while; the slider finds it out.
    QVERIFY(!laden(topf.beschreibung, vorgabedatei(Sparte::Apfel), topf.werte));
    QCOMPARE(topf["cmbFamilie"].text, u"0 "_s);
    QCOMPARE(topf["lblBlFarbe"].werte[11], 0);
    QCOMPARE(topf["sldBewertung"].werte, std::vector<int>{3});
}

void TestFilterdatei::mehrAlsNoetig()
{
    Zustand z(Sparte::Topf);
    QVERIFY(laden(z.beschreibung, vorgabedatei(Sparte::Topf) + "noch etwas\r\n", z.werte));
    QVERIFY(z.werte == Zustand(Sparte::Topf).werte);
    QVERIFY(!laden(z.beschreibung, {}, z.werte));
}

void TestFilterdatei::ohneBildStehtNirgends()
{
    for (const Sparte sparte : spartenMitFilter()) {
        Zustand z(sparte);
        z.waehlen("chkOhneBild");
        QCOMPARE(filterSchreiben(z.beschreibung, z.werte), vorgabedatei(sparte));
        QVERIFY(laden(z.beschreibung, vorgabedatei(sparte), z.werte));
        QVERIFY(z.hat("chkOhneBild")); // keeps its value
    }
}

FLOX_TEST(tst_filterdatei, TestFilterdatei)
#include "tst_filterdatei.moc"
