#include "Fensterprobe.h"

#include "pictures/Bildform.h"
#include "plantwindows/Elemente.h"
#include "plantwindows/Gemeinsam.h"

#include "controls/Bilder.h"
#include "tests/Testprogramm.h"

#include <QCheckBox>
#include <QPointer>
#include <QScopeGuard>
#include <QTest>

using namespace Qt::StringLiterals;

/* The patterns over tables that are coded in every way, shown by small descriptions of the test. */

namespace {

constexpr Element probenkopf[] = {
    {.muster = Muster::BotName, .control = "lblBotName", .feld = "BOT_NAME"},
    {.muster = Muster::DtName, .control = "lblDtName", .feld = "DTNAM", .titeltext = u"Deutscher Name:"},
};

/// A window with one tab.
class Kleinfenster
{
public:
    Kleinfenster(Sparte sparte, std::span<const Gruppe> gruppen, std::span<const Element> tafel = {}, const QString &bilderordner = {})
        : reiter_{u"Test", gruppen}, beschreibung_{.sparte = sparte, .kopf = probenkopf, .tafel = tafel, .reiter = {&reiter_, 1}}
    {
        if (const QString fehler = beschreibungsfehler(beschreibung_); !fehler.isEmpty())
            qFatal("%s", qPrintable(fehler));
        probe = std::make_unique<Fensterprobe>(beschreibung_);
        if (!bilderordner.isEmpty())
            bilder::setOrdner(bilderordner);
        const QString tabelle = eintrag(sparte).haupttabelle.toString();
        // One record is enough, and a table without records gets it.
        probe->ordner.db()->Execute(u"DELETE FROM %1"_s.arg(tabelle));
        probe->ordner.db()->Execute(u"INSERT INTO %1 (ARTNR, BOT_NAME, DTNAM, bewertung) VALUES (7, 'Planta prima', 'Erste', 9)"_s.arg(tabelle));
        probe->oeffnen();
    }

    std::unique_ptr<Fensterprobe> probe;

private:
    Reiter reiter_;
    Fensterbeschreibung beschreibung_;
};

QList<int> gefaerbt(Fensterprobe &probe, const QString &stamm)
{
    return probe.stellen(stamm, [](QWidget *zelle) { return zelle->property("BackColor").toInt() != farbeKnopf; });
}

} // namespace

class TestMuster : public QObject
{
    Q_OBJECT

private slots:
    void jedeSchreibweise_data();
    void jedeSchreibweise();
    void eigeneWorte_data();
    void eigeneWorte();
    void farbenAlsZahlUndFlags();
    void bilderMitEigenemFeld();
    void einBildNachStelle();
    void anhaenge_data();
    void anhaenge();
    void einheiten_data();
    void einheiten();
    void ueberschriften_data();
    void ueberschriften();
    void gemeinsamerTitel();
    void eigenesPanel();
    void bildMitEigenerForm();
};

namespace {

constexpr Element stauden[] = {
    {.muster = Muster::Liste, .control = "lblPflanzart", .feld = "pflanzart", .titel = "Label36"},
    {.muster = Muster::Liste, .control = "lblUrteil", .feld = "urteil", .titel = "labelUt"},
    {.muster = Muster::Liste, .control = "lblGeselligkeit", .feld = "geselligkt"},
};
constexpr Gruppe staudenGruppen[] = {{.name = "fraTest", .titel = u"Test", .elemente = stauden}};

} // namespace

void TestMuster::jedeSchreibweise_data()
{
    QTest::addColumn<QString>("feld");
    QTest::addColumn<QString>("wert");
    QTest::addColumn<QString>("control");
    QTest::addColumn<QString>("text");
    QTest::newRow("beginning, the longer mark") << "pflanzart"
                                                << "Str"
                                                << "lblPflanzart"
                                                << "Strauch";
    QTest::newRow("beginning, the shorter mark") << "pflanzart"
                                                 << "S"
                                                 << "lblPflanzart"
                                                 << "Staude";
    QTest::newRow("beginning, no mark") << "pflanzart"
                                        << "?"
                                        << "lblPflanzart"
                                        << "";
    QTest::newRow("marks") << "urteil"
                           << "***L"
                           << "lblUrteil"
                           << "vorzügliche Sorte, Staude für den Pflanzenliebhaber";
    QTest::newRow("marks that exclude each other") << "urteil"
                                                   << "**"
                                                   << "lblUrteil"
                                                   << "sehr wertvolle Sorte";
    QTest::newRow("number") << "geselligkt"
                            << "3"
                            << "lblGeselligkeit"
                            << "größere Gruppen von über 10-20 Pflanzen";
    QTest::newRow("number beyond the list") << "geselligkt"
                                            << "6"
                                            << "lblGeselligkeit"
                                            << "";
}

void TestMuster::jedeSchreibweise()
{
    QFETCH(QString, feld);
    QFETCH(QString, wert);
    QFETCH(QString, control);
    const Kleinfenster klein(Sparte::Stauden, staudenGruppen);
    klein.probe->setzen({{feld, wert}});
    QTEST(klein.probe->text(control), "text");
    if (feld == u"pflanzart")
        QCOMPARE(klein.probe->gezeigt(u"Label36"_s), wert != u"?");
}

namespace {

constexpr QStringView genussworte[] = {u"eßbar", u"ungenießbar", u"giftig", u"stark giftig !!!"};
constexpr Element gehoelze[] = {
    {.muster = Muster::Liste, .control = "lblGenuss", .feld = "genuss", .titeltext = u"Genießbarkeit:", .titel = "Label3", .worte = genussworte},
    {.muster = Muster::Kaestchen, .control = "chkGenuss", .feld = "genuss", .worte = genussworte},
    {.muster = Muster::Farbfeld, .control = "lblBlFarbe", .feld = "bluehfarb", .titeltext = u"Farben:", .farben = &WL_BluetenfarbeRGB},
};
constexpr Gruppe gehoelzGruppen[] = {{.name = "fraTest", .titel = u"Test", .elemente = gehoelze}};

} // namespace

void TestMuster::eigeneWorte_data()
{
    QTest::addColumn<QString>("wert");
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("kaestchen");
    QTest::newRow("number") << "4"
                            << "stark giftig !!!" << 3;
    QTest::newRow("flags") << "0100"
                           << "ungenießbar" << 1;
    QTest::newRow("first") << "1"
                           << "eßbar" << 0;
    QTest::newRow("none") << "5"
                          << "" << -1;
    QTest::newRow("empty") << ""
                           << "" << -1;
}

void TestMuster::eigeneWorte()
{
    QFETCH(QString, wert);
    QFETCH(QString, text);
    QFETCH(int, kaestchen);
    const Kleinfenster klein(Sparte::Gehoelze, gehoelzGruppen);
    klein.probe->setzen({{u"genuss"_s, wert}});
    QCOMPARE(klein.probe->text(u"lblGenuss"_s), text);
    QCOMPARE(klein.probe->gezeigt(u"Label3"_s), !text.isEmpty());
    const QList<int> erwartet = kaestchen < 0 ? QList<int>() : QList<int>{kaestchen};
    QCOMPARE(klein.probe->stellen(u"chkGenuss"_s, [](QWidget *k) { return qobject_cast<QCheckBox *>(k)->isChecked(); }), erwartet);
}

void TestMuster::farbenAlsZahlUndFlags()
{
    static constexpr Element farben[] = {
        {.muster = Muster::Farbfeld, .control = "lblBlFarbe", .feld = "farben", .titeltext = u"Farben:", .farben = &WL_BluetenfarbeRGB},
        {.muster = Muster::Farbfeld, .control = "lblFrFarbe", .feld = "fruchtfarb", .titeltext = u"Farben:", .farben = &WL_FruchtfarbeRGB},
    };
    static constexpr Gruppe gruppen[] = {{.name = "fraTest", .titel = u"Test", .elemente = farben}};
    const Kleinfenster klein(Sparte::Stauden, gruppen);
    Fensterprobe &probe = *klein.probe;
    // A number is a position.
    probe.setzen({{u"fruchtfarb"_s, u"13"_s}});
    QCOMPARE(gefaerbt(probe, u"lblFrFarbe"_s), QList<int>{12});
    QCOMPARE(probe.zelle(u"lblFrFarbe"_s, 12)->backColor(), 0x000000);
    // Position 13 is a colour, the fourteenth is "bunt", and neither marks the flower.
    probe.setzen({{u"fruchtfarb"_s, u"10000000000011"_s}});
    QCOMPARE(gefaerbt(probe, u"lblFrFarbe"_s), (QList<int>{0, 12}));
    QCOMPARE(probe.zelle(u"lblFrFarbe"_s, 13)->backStyle(), 1);
    QCOMPARE(probe.zelle(u"lblBlFarbe"_s, 12)->backStyle(), 0);
    probe.setzen({{u"fruchtfarb"_s, u"0"_s}});
    QCOMPARE(gefaerbt(probe, u"lblFrFarbe"_s), QList<int>());
    QCOMPARE(probe.zelle(u"lblFrFarbe"_s, 13)->backStyle(), 0);
}

namespace {

constexpr Symbol marken[] = {
    {"iliEigenschaften/gift", u"Diese Pflanze ist giftig!", u"Giftpflanze", "giftig", "iliEigenschaften/gift_n"},
    {"iliEigenschaften/schere", u"Diese Pflanze ist eine Schnittpflanze", u"Schnittpflanze", "schnitt", "iliEigenschaften/schere_n"},
    {"iliEigenschaften/heim", u"Diese Pflanze ist heimisch", u"heimisch", "heimisch"},
};
constexpr Element markentafel[] = {{.muster = Muster::Symbole, .control = "imgEigen", .symbole = marken}};

} // namespace

void TestMuster::bilderMitEigenemFeld()
{
    const Kleinfenster klein(Sparte::Stauden, staudenGruppen, markentafel);
    Fensterprobe &probe = *klein.probe;
    const auto bilder = [&] {
        QStringList namen;
        for (int i = 0; i < 3; ++i)
            if (auto *feld = probe.finde<Bildfeld>(u"imgEigen_%1"_s.arg(i)); !feld->isHidden())
                namen += feld->bild().section(u'/', 1);
        return namen;
    };
    QCOMPARE(bilder(), (QStringList{u"gift_n"_s, u"schere_n"_s}));
    probe.setzen({{u"schnitt"_s, u"True"_s}, {u"heimisch"_s, u"True"_s}});
    QCOMPARE(bilder(), (QStringList{u"gift_n"_s, u"schere"_s, u"heim"_s}));
    // Colour is not the only sign.
    QCOMPARE(probe.finde<Bildfeld>(u"imgEigen_0"_s)->toolTip(), u"Giftpflanze: nein"_s);
    QCOMPARE(probe.finde<Bildfeld>(u"imgEigen_1"_s)->accessibleDescription(), u"ja"_s);
    // A sentence that is true of a set picture is not said of the other.
    Fensterprobe::mausBewegen(probe.finde(u"imgEigen_0"_s));
    QCOMPARE(probe.panel(2), QString());
    Fensterprobe::mausBewegen(probe.finde(u"imgEigen_1"_s));
    QCOMPARE(probe.panel(2), u"Diese Pflanze ist eine Schnittpflanze"_s);
    probe.setzen({{u"schnitt"_s, {}}, {u"heimisch"_s, {}}});
    QCOMPARE(bilder(), (QStringList{u"gift_n"_s, u"schere_n"_s}));
}

void TestMuster::einBildNachStelle()
{
    static constexpr Symbol teile[] = {{"iliEigenschaften/laub", u"Diese Pflanze ist ein Laubgehölz", u"Laubgehölz"},
                                       {"iliEigenschaften/nadel", u"Diese Pflanze ist ein Nadelgehölz", u"Nadelgehölz"}};
    static constexpr Element tafel[] = {{.muster = Muster::Bildwahl, .control = "imgEigen_0", .feld = "grobeint", .symbole = teile}};
    const Kleinfenster klein(Sparte::Gehoelze, gehoelzGruppen, tafel);
    Fensterprobe &probe = *klein.probe;
    QVERIFY(!probe.gezeigt(u"imgEigen_0"_s));
    for (const auto &[wert, bild, name] :
         {std::tuple(u"1"_s, u"iliEigenschaften/laub"_s, u"Laubgehölz"_s), {u"2"_s, u"iliEigenschaften/nadel"_s, u"Nadelgehölz"_s}}) {
        probe.setzen({{u"grobeint"_s, wert}});
        QVERIFY(probe.gezeigt(u"imgEigen_0"_s));
        QCOMPARE(probe.finde<Bildfeld>(u"imgEigen_0"_s)->bild(), bild);
        QCOMPARE(probe.finde(u"imgEigen_0"_s)->accessibleName(), name);
    }
    probe.setzen({{u"grobeint"_s, u"3"_s}});
    QVERIFY(!probe.gezeigt(u"imgEigen_0"_s));
}

namespace {

constexpr Anhang anArt[] = {{"immergruen", u"immergrün"}, {"giftig", u"giftig!"}};
constexpr Anhang anHoehe[] = {{"UNSCHEINBA", u"(unscheinbar)", u" "}};
// clang-format off
constexpr Element mitAnhang[] = {
    {.muster = Muster::Liste, .control = "lblPflanzart", .feld = "pflanzart", .titel = "Label36", .anhang = anArt},
    {.muster = Muster::VonBisMeter, .control = "lblBluetHoehe", .feld = "BLMINH", .feld2 = "BLMAXH", .titeltext = u"Höhe:", .titel = "labelBl",
     .einheit = u" m", .anhang = anHoehe},
};
// clang-format on
constexpr Gruppe anhangGruppen[] = {{.name = "fraTest", .titel = u"Test", .elemente = mitAnhang}};

} // namespace

void TestMuster::anhaenge_data()
{
    QTest::addColumn<Fensterprobe::Werte>("werte");
    QTest::addColumn<QString>("art");
    QTest::addColumn<QString>("hoehe");
    using Werte = Fensterprobe::Werte;
    QTest::newRow("nothing") << Werte{} << ""
                             << "";
    QTest::newRow("text alone") << Werte{{u"pflanzart"_s, u"S"_s}, {u"BLMAXH"_s, u"0.5"_s}} << "Staude"
                                << "max. 0,5 m";
    QTest::newRow("behind a text")
        << Werte{{u"pflanzart"_s, u"S"_s}, {u"BLMAXH"_s, u"0.5"_s}, {u"immergruen"_s, u"True"_s}, {u"UNSCHEINBA"_s, u"True"_s}} << "Staude, immergrün"
        << "max. 0,5 m (unscheinbar)";
    QTest::newRow("two") << Werte{{u"pflanzart"_s, u"G"_s}, {u"immergruen"_s, u"True"_s}, {u"giftig"_s, u"True"_s}} << "Gras, immergrün, giftig!"
                         << "";
    QTest::newRow("behind nothing") << Werte{{u"giftig"_s, u"True"_s}, {u"UNSCHEINBA"_s, u"True"_s}} << "giftig!"
                                    << "(unscheinbar)";
}

void TestMuster::anhaenge()
{
    QFETCH(Fensterprobe::Werte, werte);
    QFETCH(QString, art);
    QFETCH(QString, hoehe);
    const Kleinfenster klein(Sparte::Stauden, anhangGruppen);
    klein.probe->setzen(werte);
    QCOMPARE(klein.probe->text(u"lblPflanzart"_s), art);
    QCOMPARE(klein.probe->text(u"lblBluetHoehe"_s), hoehe);
    QCOMPARE(klein.probe->gezeigt(u"labelBl"_s), !hoehe.isEmpty());
}

void TestMuster::einheiten_data()
{
    QTest::addColumn<QString>("wert");
    QTest::addColumn<QString>("durchmesser");
    QTest::addColumn<QString>("kennzahl");
    QTest::newRow("number") << "1.50"
                            << "1,5 m"
                            << "1.50/m²";
    QTest::newRow("none") << ""
                          << ""
                          << "Keine Angaben";
    QTest::newRow("zero") << "0"
                          << ""
                          << "0/m²";
    QTest::newRow("square metres") << "3 m2"
                                   << "3 m2 m"
                                   << "3 m²/m²";
}

void TestMuster::einheiten()
{
    // clang-format off
    static constexpr Element elemente[] = {
        {.muster = Muster::Text, .control = "lblmaxD", .feld = "maxdurchm", .einheit = u" m", .umformung = gemeinsam::ohneNull},
        {.muster = Muster::Text, .control = "lblKennzahl", .feld = "kennzahl", .leer = u"Keine Angaben", .einheit = u"/m²",
         .umformung = gemeinsam::quadratmeter},
    };
    // clang-format on
    static constexpr Gruppe gruppen[] = {{.name = "fraTest", .titel = u"Test", .elemente = elemente}};
    QFETCH(QString, wert);
    const Kleinfenster klein(Sparte::Gehoelze, gruppen);
    klein.probe->setzen({{u"maxdurchm"_s, wert}, {u"kennzahl"_s, wert}});
    QTEST(klein.probe->text(u"lblmaxD"_s), "durchmesser");
    QTEST(klein.probe->text(u"lblKennzahl"_s), "kennzahl");
}

namespace {

constexpr Ueberschrift standortUndPflege{"Label42", u"Standort und Pflege"};
constexpr Element standort[] = {
    {.muster = Muster::Liste, .control = "lblObBoden", .feld = "BODEN", .titel = "Label39"},
    {.muster = Muster::Liste, .control = "lblObKlima", .feld = "KLIMA", .titel = "Label33"},
};
constexpr Element pflege[] = {{.muster = Muster::Liste, .control = "lblObSchnitt", .feld = "SHNITT", .titel = "Label47"}};
constexpr Element frucht[] = {
    {.muster = Muster::Liste, .control = "lblObFruchtfleisch", .feld = "FRUFLEI", .titeltext = u"Fruchtfleisch, Form:", .titel = "Label23"},
    {.muster = Muster::Liste, .control = "lblObFruchtform", .feld = "FRUFOR", .titeltext = u"Fruchtfleisch, Form:", .titel = "Label23"},
};
constexpr Gruppe obstGruppen[] = {
    {.name = "SSFrame4", .titel = u"Standort", .ueberschrift = &standortUndPflege, .elemente = standort, .regel = Gruppenregel::Controls},
    {.name = "SSFrame6", .titel = u"Pflege", .ueberschrift = &standortUndPflege, .elemente = pflege, .regel = Gruppenregel::Controls},
    {.name = "SSFrame7", .titel = u"Frucht", .titelname = "Label51", .elemente = frucht, .regel = Gruppenregel::Controls},
};

} // namespace

void TestMuster::ueberschriften_data()
{
    QTest::addColumn<QString>("klima");
    QTest::addColumn<QString>("schnitt");
    QTest::newRow("none") << ""
                          << "";
    QTest::newRow("first group") << "1"
                                 << "";
    QTest::newRow("second group") << ""
                                  << "1";
    QTest::newRow("both") << "1"
                          << "1";
}

void TestMuster::ueberschriften()
{
    QFETCH(QString, klima);
    QFETCH(QString, schnitt);
    const Kleinfenster klein(Sparte::Obst, obstGruppen);
    Fensterprobe &probe = *klein.probe;
    // From the opposite state, so that something has to change.
    probe.setzen({{u"KLIMA"_s, klima.isEmpty() ? u"1"_s : QString()}, {u"SHNITT"_s, schnitt.isEmpty() ? u"1"_s : QString()}, {u"FRUFOR"_s, u"1"_s}});
    QVERIFY(probe.gezeigt(u"Label51"_s));
    probe.setzen({{u"KLIMA"_s, klima}, {u"SHNITT"_s, schnitt}, {u"FRUFOR"_s, {}}});
    QCOMPARE(probe.gezeigt(u"SSFrame4"_s), !klima.isEmpty());
    QCOMPARE(probe.gezeigt(u"SSFrame6"_s), !schnitt.isEmpty());
    QCOMPARE(probe.gezeigt(u"Label42"_s), !klima.isEmpty() || !schnitt.isEmpty());
    QCOMPARE(probe.finde(u"Label42"_s)->isVisible(), probe.gezeigt(u"Label42"_s));
    QVERIFY(!probe.gezeigt(u"SSFrame7"_s));
    QVERIFY(!probe.gezeigt(u"Label51"_s));
    QCOMPARE(probe.gezeigt(u"fraKeineAngaben_0"_s), klima.isEmpty() && schnitt.isEmpty());
    if (klima.isEmpty() || schnitt.isEmpty())
        return;
    // The heading stands above its groups, and nothing is cut off.
    QCoreApplication::processEvents();
    const auto unten = [&](const char *name) {
        const QWidget *w = probe.finde(QString::fromLatin1(name));
        return w->mapTo(probe.fenster.get(), QPoint(0, w->height())).y();
    };
    QVERIFY(unten("Label42") < unten("SSFrame4"));
    QVERIFY(unten("SSFrame4") < unten("SSFrame6"));
    QVERIFY(unten("SSFrame6") <= unten("Label42_Rahmen"));
    QVERIFY(unten("lblObSchnitt") <= unten("SSFrame6"));
}

void TestMuster::gemeinsamerTitel()
{
    const Kleinfenster klein(Sparte::Obst, obstGruppen);
    Fensterprobe &probe = *klein.probe;
    const auto hoehe = [&](const char *name) {
        QCoreApplication::processEvents();
        const QWidget *w = probe.finde(QString::fromLatin1(name));
        return w->mapTo(probe.fenster.get(), QPoint()).y();
    };
    for (const auto &[fleisch, form, zeile] : {std::tuple(u"1"_s, u"1"_s, "lblObFruchtfleisch"),
                                               {u"1"_s, QString(), "lblObFruchtfleisch"},
                                               {QString(), u"1"_s, "lblObFruchtform"},
                                               {u"1"_s, u"1"_s, "lblObFruchtfleisch"}}) {
        probe.setzen({{u"FRUFLEI"_s, fleisch}, {u"FRUFOR"_s, form}});
        QVERIFY(probe.gezeigt(u"Label23"_s));
        QCOMPARE(hoehe("Label23"), hoehe(zeile));
    }
    probe.setzen({{u"FRUFLEI"_s, {}}, {u"FRUFOR"_s, {}}});
    QVERIFY(!probe.gezeigt(u"Label23"_s));
}

void TestMuster::eigenesPanel()
{
    // clang-format off
    static constexpr Element blatt[] = {
        {.muster = Muster::Farbfeld, .control = "lblHfFarbe", .feld = "herbstfarb", .titeltext = u"Herbstfärbung:", .titel = "Label23",
         .farben = &WL_BluetenfarbeRGB, .panel = "Panel3D6"},
        {.muster = Muster::Text, .control = "lblBlattform", .feld = "blattform", .titel = "Label21"},
    };
    // clang-format on
    static constexpr Gruppe gruppen[] = {{.name = "Frame3D3", .titel = u"Blatt", .elemente = blatt, .regel = Gruppenregel::Controls}};
    const Kleinfenster klein(Sparte::Stauden, gruppen);
    Fensterprobe &probe = *klein.probe;
    QVERIFY(!probe.gezeigt(u"Frame3D3"_s));
    probe.setzen({{u"herbstfarb"_s, u"0001"_s}});
    QVERIFY(probe.gezeigt(u"Frame3D3"_s));
    QVERIFY(probe.gezeigt(u"Panel3D6"_s));
    QVERIFY(probe.gezeigt(u"Label23"_s));
    QVERIFY(!probe.gezeigt(u"Label21"_s));
    probe.setzen({{u"herbstfarb"_s, u"0"_s}, {u"blattform"_s, u"oval"_s}});
    QVERIFY(probe.gezeigt(u"Frame3D3"_s));
    QVERIFY(!probe.gezeigt(u"Panel3D6"_s));
    QVERIFY(!probe.gezeigt(u"Label23"_s));
    QCOMPARE(gefaerbt(probe, u"lblHfFarbe"_s), QList<int>());
}

void TestMuster::bildMitEigenerForm()
{
    // A drawing of the test's own, twice as wide as high.
    QTemporaryDir ordner;
    QVERIFY(QDir(ordner.path()).mkpath(u"bilder"_s));
    QFile zeichnung(ordner.filePath(u"bilder/probe.svg"_s));
    QVERIFY(zeichnung.open(QIODevice::WriteOnly));
    zeichnung.write("<svg xmlns='http://www.w3.org/2000/svg' width='400' height='200'><rect width='400' height='200' fill='#00ff00'/></svg>");
    zeichnung.close();
    const QScopeGuard zurueck([vorher = bilder::ordner()] { bilder::setOrdner(vorher); });

    static constexpr Bildformular formular{
        .form = "frmLebensbereiche", .titel = u"Lebensbereiche Stauden", .control = "picLebensberiche", .bild = "bilder/probe"};
    static constexpr Element elemente[] = {{.muster = Muster::Bildoeffner, .control = "picLebensraum", .formular = &formular}};
    static constexpr Gruppe gruppen[] = {{.name = "fraTest", .titel = u"Test", .elemente = elemente}};
    const Kleinfenster klein(Sparte::Stauden, gruppen, {}, ordner.path());
    Fensterprobe &probe = *klein.probe;
    const auto form = [&] { return probe.fenster->findChild<QWidget *>(u"frmLebensbereiche"_s); };

    // By mouse, by key, and both ways out.
    for (const bool maus : {true, false}) {
        QVERIFY(!form());
        if (maus)
            QTest::mouseClick(probe.finde(u"picLebensraum"_s), Qt::LeftButton);
        else
            QTest::keyClick(probe.finde(u"picLebensraum"_s), Qt::Key_Space);
        const QPointer<QWidget> offen = form();
        QVERIFY(offen && offen->isVisible() && offen->isWindow());
        QCOMPARE(offen->windowTitle(), u"Lebensbereiche Stauden"_s);
        QWidget *bild = offen->findChild<QWidget *>(u"picLebensberiche"_s);
        QVERIFY(bild);
        QVERIFY(offen->width() > probe.fenster->width() / 2 && offen->width() <= probe.fenster->width());
        QVERIFY(qAbs(bild->width() - 2 * bild->height()) <= 2);
        QCOMPARE(bild->grab().toImage().pixelColor(bild->width() / 2, bild->height() / 2), QColor(0, 255, 0));
        // Asked for again, there is still one.
        QTest::mouseClick(probe.finde(u"picLebensraum"_s), Qt::LeftButton);
        QCOMPARE(form(), offen.data());
        if (maus)
            QTest::mouseClick(bild, Qt::LeftButton);
        else
            QTest::keyClick(offen, Qt::Key_Escape);
        QTRY_VERIFY(!offen);
    }
}

FLOX_TEST(tst_muster, TestMuster)
#include "tst_muster.moc"
