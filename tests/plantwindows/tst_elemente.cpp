#include "Fensterprobe.h"

#include "plantwindows/Elementtexte.h"
#include "tests/Testprogramm.h"

#include <QSignalSpy>
#include <QTest>

using namespace Qt::StringLiterals;

/* The texts of the display patterns as pure functions, and the check of descriptions. */

namespace {

constexpr QStringView zweiWorte[] = {u"eins", u"zwei"};
constexpr Symbol eineWahrheit[] = {{"bilder/gruen", u"", u"", "GIFTIG"}}, keineWahrheit[] = {{"bilder/gruen", u"", u"", "HK"}},
                 eineStelle[] = {{"bilder/gruen", u"", u""}};
constexpr Anhang vonGiftig[] = {{"GIFTIG", u"giftig"}}, vonHk[] = {{"HK", u"giftig"}};
constexpr Element richtig[] = {
    {.muster = Muster::BotName, .control = "lblBotName", .feld = "BOT_NAME"},
    {.muster = Muster::Text, .control = "lblHerkunft", .feld = "HK", .titel = "Label16"},
};

} // namespace

class TestElemente : public QObject
{
    Q_OBJECT

private slots:
    void vonBisMeter_data();
    void vonBisMeter();
    void vonBisMindest_data();
    void vonBisMindest();
    void ausbildungstext_data();
    void ausbildungstext();
    void monatsbeschriftung();
    void titel();
    void alleBeschreibungenStimmen();
    void falscheBeschreibungen_data();
    void falscheBeschreibungen();
};

void TestElemente::vonBisMeter_data()
{
    QTest::addColumn<QString>("min");
    QTest::addColumn<QString>("max");
    QTest::addColumn<QString>("text");
    QTest::newRow("both") << "0.2"
                          << "0.5"
                          << "0,2 bis 0,5 m";
    QTest::newRow("comma and trailing zeros") << "0,20"
                                              << "1,00"
                                              << "0,2 bis 1 m";
    QTest::newRow("minimum 0") << "0"
                               << "1.2"
                               << "max. 1,2 m";
    QTest::newRow("minimum empty") << ""
                                   << "1.2"
                                   << "max. 1,2 m";
    QTest::newRow("maximum 0") << "0.3"
                               << "0"
                               << "min. 0,3 m";
    QTest::newRow("maximum empty") << "0.3"
                                   << ""
                                   << "min. 0,3 m";
    QTest::newRow("both 0") << "0"
                            << "0"
                            << "";
    QTest::newRow("both empty") << ""
                                << ""
                                << "";
    QTest::newRow("0 and empty") << "0"
                                 << ""
                                 << "";
    QTest::newRow("0 written longer") << "0,00"
                                      << "0.0"
                                      << "";
    QTest::newRow("no numbers") << "hoch"
                                << "höher"
                                << "hoch bis höher m";
}

void TestElemente::vonBisMeter()
{
    QFETCH(QString, min);
    QFETCH(QString, max);
    QTEST(::vonBisMeter(min, max, u" m"), "text");
}

void TestElemente::vonBisMindest_data()
{
    QTest::addColumn<QString>("min");
    QTest::addColumn<QString>("max");
    QTest::addColumn<QString>("licht");
    QTest::addColumn<QString>("temperatur");
    QTest::newRow("both") << "500"
                          << "800"
                          << "500 bis 800 Lux"
                          << "500 bis 800 °C";
    QTest::newRow("maximum 0") << "500"
                               << "0"
                               << "mind. 500 Lux"
                               << "mind. 500 °C";
    QTest::newRow("maximum empty") << "500"
                                   << ""
                                   << "mind. 500 Lux"
                                   << "500 bis  °C";
    QTest::newRow("minimum 0") << "0"
                               << "800"
                               << "0 bis 800 Lux"
                               << "0 bis 800 °C";
    QTest::newRow("below zero") << "-5"
                                << "12.5"
                                << "-5 bis 12,5 Lux"
                                << "-5 bis 12,5 °C";
}

void TestElemente::vonBisMindest()
{
    QFETCH(QString, min);
    QFETCH(QString, max);
    QTEST(::vonBisMindest(min, max, u" Lux", true), "licht");
    QTEST(::vonBisMindest(min, max, u" °C", false), "temperatur");
}

void TestElemente::ausbildungstext_data()
{
    QTest::addColumn<QString>("flags");
    QTest::addColumn<QString>("text");
    QTest::newRow("none") << "000000"
                          << "";
    QTest::newRow("empty") << ""
                           << "";
    QTest::newRow("one") << "100000"
                         << "Pflanze ist Bestandteil der Gehilfenprüfung bei Zierpflanzengärtnern";
    QTest::newRow("two") << "110000"
                         << "Pflanze ist Bestandteil der Gehilfenprüfung bei Zierpflanzengärtnern und bei Baumschulgärtnern";
    QTest::newRow("three") << "101001"
                           << "Pflanze ist Bestandteil der Gehilfenprüfung bei Zierpflanzengärtnern, bei Staudengärtnern und "
                              "bei Landschaftsgärtnern";
    QTest::newRow("all") << "1111111"
                         << "Pflanze ist Bestandteil der Gehilfenprüfung bei Zierpflanzengärtnern, bei Baumschulgärtnern, "
                            "bei Staudengärtnern, bei Friedhofsgärtnern, bei Obstbauern und bei Landschaftsgärtnern";
}

void TestElemente::ausbildungstext()
{
    QFETCH(QString, flags);
    QTEST(::ausbildungstext(flags), "text");
}

void TestElemente::monatsbeschriftung()
{
    QStringList buchstaben, zahlen;
    for (int i = 0; i < 12; ++i) {
        buchstaben += ::monatsbeschriftung(i, true);
        zahlen += ::monatsbeschriftung(i, false);
    }
    QCOMPARE(buchstaben.join(u' '), u"J F M A M J J A S O N D"_s);
    QCOMPARE(zahlen.join(u' '), u"1 2 3 4 5 6 7 8 9 10 11 12"_s);
}

void TestElemente::titel()
{
    QCOMPARE(titelVon(Sparte::Topf, {.muster = Muster::Text, .control = "a", .feld = "HK", .titeltext = u"Herkunft:"}), u"Herkunft:"_s);
    QCOMPARE(titelVon(Sparte::Topf, {.muster = Muster::Text, .control = "a", .feld = "HK", .titel = "Label1"}), u"Heimat:"_s);
    QCOMPARE(titelVon(Sparte::Topf, {.muster = Muster::Text, .control = "a", .feld = "HK"}), QString());
}

void TestElemente::alleBeschreibungenStimmen()
{
    int anzahl = 0;
    for (const SpartenEintrag &sparte : alleSparten())
        if (const Fensterbeschreibung *beschreibung = fensterbeschreibung(sparte.sparte)) {
            QCOMPARE(int(beschreibung->sparte), int(sparte.sparte));
            QCOMPARE(beschreibungsfehler(*beschreibung), QString());
            ++anzahl;
        }
    QVERIFY(anzahl >= 2);
}

void TestElemente::falscheBeschreibungen_data()
{
    QTest::addColumn<QList<Element>>("elemente");
    QTest::addColumn<QString>("rahmen");
    QTest::addColumn<QString>("teil"); // of the message; empty: nothing is wrong
    const auto zeile = [](const char *name, const Element &element, const char *teil) {
        QTest::newRow(name) << QList<Element>{element} << "fraTest" << QString::fromUtf8(teil);
    };
    zeile("right", {.muster = Muster::Text, .control = "lblX", .feld = "DUENG_FS"}, "");
    zeile("unknown field", {.muster = Muster::Text, .control = "lblX", .feld = "GIBTSNICHT"}, "GIBTSNICHT");
    zeile("field of another Sparte", {.muster = Muster::Liste, .control = "lblX", .feld = "k_anzahl"}, "k_anzahl");
    zeile("unknown second field", {.muster = Muster::VonBisMeter, .control = "lblX", .feld = "BLMINH", .feld2 = "BLMAX"}, "BLMAX");
    zeile("range without second field", {.muster = Muster::VonBisMeter, .control = "lblX", .feld = "BLMINH"}, "lblX");
    zeile("range with a text", {.muster = Muster::VonBisMeter, .control = "lblX", .feld = "BLMINH", .feld2 = "HK"}, "HK");
    zeile("text as list", {.muster = Muster::Liste, .control = "lblX", .feld = "HK"}, "HK");
    zeile("list as text", {.muster = Muster::Text, .control = "lblX", .feld = "BLATTFARB"}, "BLATTFARB");
    zeile("own words", {.muster = Muster::Liste, .control = "lblX", .feld = "H_PH", .worte = zweiWorte}, "");
    zeile("own words of another number", {.muster = Muster::Liste, .control = "lblX", .feld = "BLATTFARB", .worte = zweiWorte}, "lblX");
    zeile("list as months", {.muster = Muster::Monate, .control = "lblX", .feld = "BLATTFARB"}, "BLATTFARB");
    zeile("text as range", {.muster = Muster::VonBisMindest, .control = "lblX", .feld = "HK", .feld2 = "TEMPMAX"}, "HK");
    zeile("number as sentence", {.muster = Muster::Satz, .control = "lblX", .feld = "BLMINH"}, "BLMINH");
    zeile("text as family", {.muster = Muster::Familie, .control = "lblX", .feld = "HK"}, "HK");
    zeile("text as rating", {.muster = Muster::Bewertung, .control = "lblX", .feld = "HK"}, "HK");
    zeile("list as properties", {.muster = Muster::Benutzereigen, .control = "lblX", .feld = "BLATTFARB"}, "BLATTFARB");
    zeile("note in a short field", {.muster = Muster::Benutzertext, .control = "lblX", .feld = "HK"}, "HK");
    zeile("swatches without colours", {.muster = Muster::Farbfeld, .control = "lblX", .feld = "FARBEN"}, "lblX");
    zeile("swatches of another list", {.muster = Muster::Farbfeld, .control = "lblX", .feld = "BLATTFARB", .farben = &WL_BluetenfarbeRGB}, "lblX");
    zeile("mark on a missing row",
          {.muster = Muster::Farbfeld, .control = "lblX", .feld = "FARBEN", .farben = &WL_BluetenfarbeRGB, .buntZiel = "lblY"}, "lblY");
    zeile("pictures without pictures", {.muster = Muster::Symbole, .control = "lblX", .feld = "SONNE"}, "lblX");
    zeile("pictures of booleans", {.muster = Muster::Symbole, .control = "lblX", .symbole = eineWahrheit}, "");
    zeile("picture of a missing boolean", {.muster = Muster::Symbole, .control = "lblX", .symbole = keineWahrheit}, "HK");
    zeile("picture of a position of no field", {.muster = Muster::Symbole, .control = "lblX", .symbole = eineStelle}, "lblX");
    zeile("words behind a text", {.muster = Muster::Text, .control = "lblX", .feld = "DUENG_FS", .anhang = vonGiftig}, "");
    zeile("words of a text behind a text", {.muster = Muster::Text, .control = "lblX", .feld = "DUENG_FS", .anhang = vonHk}, "HK");
    zeile("caption without a text", {.muster = Muster::Herkunftsmarke, .control = "lblX", .feld = "Benu_Aenderung", .titel = "Label1"}, "Label1");
    zeile("picture without a form", {.muster = Muster::Bildoeffner, .control = "lblX"}, "lblX");
    zeile("name with a source", {.muster = Muster::BotName, .control = "lblX", .feld = "BOT_NAME", .feld2 = "*.Quelle"}, "");
    zeile("name with a source that is none", {.muster = Muster::BotName, .control = "lblX", .feld = "BOT_NAME", .feld2 = "HK"}, "HK");
    zeile("field of the origin that is not there", {.muster = Muster::Text, .control = "lblX", .feld = "*.DUENG"}, "*.DUENG");
    QTest::newRow("group of an origin that no row has") << QList<Element>{} << "fraHerkunft"
                                                        << "fraHerkunft";
    zeile("boxes without words", {.muster = Muster::Kaestchen, .control = "lblX", .feld = "SONNE"}, "lblX");
    zeile("name of the head again", {.muster = Muster::Text, .control = "lblHerkunft", .feld = "DUENG_FS"}, "lblHerkunft");
    QTest::newRow("name twice") << QList<Element>{{.muster = Muster::Text, .control = "lblX", .feld = "DUENG_FS"},
                                                  {.muster = Muster::Text, .control = "lblX", .feld = "DUENG_HW"}}
                                << "fraTest"
                                << "lblX";
    QTest::newRow("frame like a control") << QList<Element>{{.muster = Muster::Text, .control = "lblX", .feld = "DUENG_FS"}} << "lblX"
                                          << "lblX";
    QTest::newRow("frame twice") << QList<Element>{} << "fraDoppelt"
                                 << "fraDoppelt";
    zeile("caption named like a frame", {.muster = Muster::Text, .control = "lblX", .feld = "DUENG_FS", .titel = "fraDoppelt"}, "fraDoppelt");
    zeile("caption of another group", {.muster = Muster::Text, .control = "lblX", .feld = "DUENG_FS", .titel = "Label16"}, "Label16");
    QTest::newRow("unknown rule field") << QList<Element>{} << "fraRegelfeld"
                                        << "GIBTSNICHT";
    QTest::newRow("unknown rule control") << QList<Element>{} << "fraRegelcontrol"
                                          << "lblGibtsnicht";
}

void TestElemente::falscheBeschreibungen()
{
    QFETCH(QList<Element>, elemente);
    QFETCH(QString, rahmen);
    QFETCH(QString, teil);
    static constexpr const char *regelcontrols[] = {"lblBotName", "lblGibtsnicht"};
    const QByteArray name = rahmen.toLatin1();
    const std::span<const Element> inhalt(elemente.constData(), size_t(elemente.size()));
    Gruppe gruppen[] = {{.name = name.constData(), .titel = u"", .elemente = inhalt}, {.name = "fraDoppelt", .titel = u"", .elemente = {}}};
    if (rahmen == u"fraRegelfeld") {
        gruppen[0].regel = Gruppenregel::Feld;
        gruppen[0].regelfeld = "GIBTSNICHT";
    } else if (rahmen == u"fraRegelcontrol") {
        gruppen[0].regel = Gruppenregel::Controls;
        gruppen[0].regelcontrols = regelcontrols;
    }
    if (rahmen == u"fraHerkunft")
        gruppen[0].herkunft = Sparte::Stauden;
    const Reiter reiter[] = {{u"Test", gruppen}};
    const QString fehler = beschreibungsfehler({.sparte = Sparte::Topf, .kopf = richtig, .tafel = {}, .reiter = reiter});
    QVERIFY2(teil.isEmpty() ? fehler.isEmpty() : fehler.contains(teil), qPrintable(u"'%1' should name '%2'"_s.arg(fehler, teil)));
}

FLOX_TEST(tst_elemente, TestElemente)
#include "tst_elemente.moc"
