#include "Fensterprobe.h"

#include "plantwindows/Elementtexte.h"
#include "tests/Testprogramm.h"

#include <QCheckBox>
#include <QLabel>
#include <QTabWidget>
#include <QSignalSpy>
#include <QTest>

using namespace Qt::StringLiterals;

/* What the potted-plant window shows of a record. */

namespace {

struct Zeile
{
    const char *feld, *feld2, *control, *titel;
};

/// Fields, controls and named caption labels that this window must have.
constexpr Zeile zeilen[] = {
    {"BOT_NAME", "*.Quelle", "lblBotName", nullptr},
    {"DTNAM", nullptr, "lblDtName", nullptr},
    {"FAMILIE", nullptr, "lblFamilie", "Label2"},
    {"BOT_NAME", nullptr, "lblSynonyme", "LabelSyn"},
    {"HK", nullptr, "lblHerkunft", "Label16"},
    {"PFLANZTYP", "GIFTIG", "imgEigen", nullptr},
    {"FARBEN", nullptr, "lblBlFarbe", nullptr},
    {"BLUEHZEIT", nullptr, "lblBlMonat", nullptr},
    {"BLMINH", "BLMAXH", "lblBlHoehe", "labelBl"},
    {"UNSCHEINBA", nullptr, "lblUnscheinbar", nullptr},
    {"FRUCHTFARB", nullptr, "lblFrFarbe", nullptr},
    {"FRUCHTZEIT", nullptr, "lblFrMonat", nullptr},
    {"BLATTFARB", nullptr, "lblBlattFarbe", nullptr},
    {"WUCHSFORM", nullptr, "lblWuchs", nullptr},
    {"MINHOEHE", "MAXHOEHE", "lblHoehe", "labelHoehe"},
    {"ANGEBOTSZ", nullptr, "lblAngMonat", nullptr},
    {"HALTBAR", nullptr, "lblHaltbarkeit", "labelHak"},
    {"SORTEN", nullptr, "txtSorten", nullptr},
    {"VERWENDUNG", nullptr, "imgVerwendung", nullptr},
    {"TAGESL", nullptr, "lblTageslaenge", "labelTl"},
    {"SONNE", nullptr, "imgLicht", nullptr},
    {"LICHTMIN", "LICHTMAX", "lblBeleuchtung", nullptr},
    {"TEMPMIN", "TEMPMAX", "lblTemperatur", nullptr},
    {"H_WASSERST", nullptr, "lblWasser", nullptr},
    {"H_PH", nullptr, "lblpH", nullptr},
    {"H_VERW", nullptr, "lblVerwHydro", nullptr},
    {"SCHADEN", nullptr, "txtKrank", nullptr},
    {"KRANKH", nullptr, "lblKrank", "labelKa"},
    {"NACHDUENG", nullptr, "lblDuengung", "labelNd"},
    {"DUENG_FS", nullptr, "lblDuengungFS", "labelNdFS"},
    {"DUENG_HW", nullptr, "lblDuengungHW", "labelNdHW"},
    {"BEMERKUNG", nullptr, "txtBemerkung", nullptr},
    {"bewertung", nullptr, "picBewertung", nullptr},
    {"benu_bemerkung", nullptr, "txtEigeneBemerkung", nullptr},
    {"benu_eigen", nullptr, "sschkBenutzer", nullptr},
    {"*.Ausbildung", nullptr, "lblAusbildung", nullptr},
    {"Benu_Aenderung", nullptr, "imgBenuAenderung", nullptr},
};

using Werte = Fensterprobe::Werte;
const QString ja = u"True"_s;

/// Everything a record can hold at once.
Werte voll()
{
    Werte werte;
    for (const Spalte &spalte : schema::haupttabelle(u"TOPFPFL")->spalten) {
        const QString name = QString::fromLatin1(spalte.name);
        switch (spalte.art) {
        case Art::Schluessel:
        case Art::Name: break;
        case Art::Text:
        case Art::Memo: werte[name] = u"Altwert"_s; break;
        case Art::Flags: werte[name] = QString(spalte.liste->anzahl(), u'1'); break;
        case Art::Nummer: werte[name] = u"2"_s; break;
        case Art::Monate: werte[name] = QString(12, u'1'); break;
        case Art::Eigen: werte[name] = u"11111"_s; break;
        case Art::Wahrheit: werte[name] = ja; break;
        case Art::Zahl: werte[name] = u"7"_s; break;
        case Art::Bewertung:
        case Art::Ganzzahl: werte[name] = 2; break;
        case Art::Quelle: werte[name] = u"z"_s; break;
        case Art::Code: break;
        case Art::Familie: werte[name] = 1; break;
        case Art::Literatur: break;
        }
    }
    return werte;
}

} // namespace

class TestTopfpflanzen : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void beschreibungHatAlleFelder();
    void jedesElement_data();
    void jedesElement();
    void gruppenFolgenIhrerRegel_data();
    void gruppenFolgenIhrerRegel();
    void symbolfluss_data();
    void symbolfluss();
    void merkmalDerFruchtFaelltAufDieBluete();
    void nomenklatur_data();
    void nomenklatur();
    void deutscheSynonyme();
    void herkunft();
    void texteOhneZeilenmarken();
    void keineSortenUndSchaeden();
    void lichtUndTemperatur_data();
    void lichtUndTemperatur();
    void bluetenhoehe_data();
    void bluetenhoehe();
    void herkunftsmarke_data();
    void herkunftsmarke();
    void nummerAufDemSchild();
    void nichtsBleibtStehen();
    void sonderbareDaten_data();
    void sonderbareDaten();
    void alleMitgeliefertenPflanzen();
    void hinweise_data();
    void hinweise();
    void hinweisGehtWieder_data();
    void hinweisGehtWieder();
    void monateAlsBuchstabenUndZahlen();
    void farbenUndMonateMitNamen();
    void reiter();

private:
    std::unique_ptr<Fensterprobe> probe_;
};

void TestTopfpflanzen::initTestCase()
{
    probe_ = std::make_unique<Fensterprobe>();
    probe_->oeffnen();
}

void TestTopfpflanzen::init()
{
    probe_->leeren();
}

void TestTopfpflanzen::beschreibungHatAlleFelder()
{
    QStringList verlangt, beschrieben;
    const auto zeile = [](const char *feld, const char *feld2, const char *control, const char *titel) {
        return u"%1 %2 %3 %4"_s.arg(QLatin1String(feld), QLatin1String(feld2), QLatin1String(control), QLatin1String(titel));
    };
    for (const Zeile &z : zeilen)
        verlangt += zeile(z.feld, z.feld2, z.control, z.titel);
    for (const Element *e : alleElemente(*fensterbeschreibung(Sparte::Topf))) {
        const char *zweites = e->feld2;
        for (const Symbol &symbol : e->symbole)
            zweites = symbol.feld ? symbol.feld : zweites;
        beschrieben += zeile(e->feld, zweites, e->control, e->titel);
    }
    verlangt.sort();
    beschrieben.sort();
    QCOMPARE(beschrieben.join(u'\n'), verlangt.join(u'\n'));
}

void TestTopfpflanzen::jedesElement_data()
{
    QTest::addColumn<int>("nummer");
    const auto alle = alleElemente(*fensterbeschreibung(Sparte::Topf));
    for (size_t i = 0; i < alle.size(); ++i)
        QTest::newRow(alle[i]->control) << int(i);
}

void TestTopfpflanzen::jedesElement()
{
    QFETCH(int, nummer);
    elementPruefen(*probe_, *alleElemente(*fensterbeschreibung(Sparte::Topf))[size_t(nummer)]);
}

void TestTopfpflanzen::gruppenFolgenIhrerRegel_data()
{
    QTest::addColumn<QString>("rahmen");
    QTest::addColumn<QString>("feld");
    QTest::addColumn<QString>("wert");
    QTest::addColumn<bool>("sichtbar");
    const auto zeile = [](const char *rahmen, const char *feld, const char *wert, bool sichtbar) {
        QTest::addRow("%s %s '%s'", rahmen, feld, wert) << rahmen << feld << wert << sichtbar;
    };
    zeile("Frame3D2", "BLUEHZEIT", "", false);
    zeile("Frame3D2", "BLUEHZEIT", "0", false);
    zeile("Frame3D2", "BLUEHZEIT", "000000000000", true);
    zeile("Frame3D2", "BLUEHZEIT", "000010000000", true);
    zeile("Frame3D2", "FARBEN", "1000000000000", false);
    zeile("Frame3D1", "FRUCHTZEIT", "", false);
    zeile("Frame3D1", "FRUCHTZEIT", "0", false);
    zeile("Frame3D1", "FRUCHTZEIT", "000010000000", true);
    zeile("Frame3D1", "FRUCHTFARB", "1000000000000", false);
    zeile("fraHydro", "BLUEHZEIT", "0", false);
    zeile("fraHydro", "H_WASSERST", "1", true);
    zeile("fraHydro", "H_PH", "1", true);
    zeile("fraHydro", "H_VERW", "1", true);
    zeile("fraHydro", "H_VERW", "0", false);
    zeile("SSFrame5", "BEMERKUNG", "", false);
    zeile("SSFrame5", "BEMERKUNG", "Gedeiht gut.", true);
    zeile("ssfraAusbildung", "Ausbildung", "000000", false);
    zeile("ssfraAusbildung", "Ausbildung", "000001", true);
}

void TestTopfpflanzen::gruppenFolgenIhrerRegel()
{
    QFETCH(QString, rahmen);
    QFETCH(QString, feld);
    QFETCH(QString, wert);
    probe_->setzen({{feld, wert}});
    QTEST(probe_->gezeigt(rahmen), "sichtbar");
}

void TestTopfpflanzen::symbolfluss_data()
{
    QTest::addColumn<QString>("typen");
    QTest::addColumn<QString>("giftig");
    QTest::addColumn<QString>("plaetze"); // "index:left,top" of each visible mark
    QTest::newRow("all six") << "11111"
                             << "True"
                             << "0:240,1035 1:790,1035 2:1340,1035 3:240,1560 4:790,1560 5:1340,1560";
    QTest::newRow("five") << "11111"
                          << "False"
                          << "0:240,1035 1:790,1035 2:1340,1035 3:240,1560 4:790,1560";
    QTest::newRow("gaps close") << "01001"
                                << "Wahr"
                                << "1:240,1035 4:790,1035 5:1340,1035";
    QTest::newRow("poisonous alone") << "00000"
                                     << "-1"
                                     << "5:240,1035";
    QTest::newRow("short string") << "1"
                                  << ""
                                  << "0:240,1035";
    QTest::newRow("none") << ""
                          << "0"
                          << "";
}

void TestTopfpflanzen::symbolfluss()
{
    QFETCH(QString, typen);
    QFETCH(QString, giftig);
    probe_->setzen({{u"PFLANZTYP"_s, typen}, {u"GIFTIG"_s, giftig}});
    QStringList plaetze;
    for (int i = 0; i < 6; ++i) {
        const auto *bild = probe_->finde<Bildfeld>(u"imgEigen_%1"_s.arg(i));
        if (bild->isHidden())
            continue;
        plaetze += u"%1:%2,%3"_s.arg(i).arg(bild->property("Left").toInt()).arg(bild->property("Top").toInt());
        QCOMPARE(bild->pos(), QPoint(pixel(bild->property("Left").toDouble()), pixel(bild->property("Top").toDouble())));
    }
    QTEST(plaetze.join(u' '), "plaetze");
}

void TestTopfpflanzen::merkmalDerFruchtFaelltAufDieBluete()
{
    const QString bunt = u"0000000000001"_s;
    const auto stile = [&] { return std::pair(probe_->zelle(u"lblBlFarbe"_s, 12)->backStyle(), probe_->zelle(u"lblFrFarbe"_s, 12)->backStyle()); };
    QCOMPARE(stile(), std::pair(0, 0));
    probe_->setzen({{u"FRUCHTFARB"_s, bunt}});
    QCOMPARE(stile(), std::pair(1, 0));
    probe_->setzen({{u"FRUCHTFARB"_s, {}}, {u"FARBEN"_s, bunt}});
    QCOMPARE(stile(), std::pair(1, 0));
    probe_->setzen({{u"FARBEN"_s, {}}});
    QCOMPARE(stile(), std::pair(0, 0));
}

void TestTopfpflanzen::nomenklatur_data()
{
    QTest::addColumn<QVariant>("quelle");
    QTest::addColumn<QString>("hinweis");
    QTest::newRow("z") << QVariant(u"z"_s) << "Nomenklatur nach 'Zander'";
    QTest::newRow("s") << QVariant(u"s"_s) << "Nomenklatur nach 'spezielle Erklärung'";
    QTest::newRow("n") << QVariant(u"n"_s) << "Nomenklatur nach 'Namenliste Stauden'";
    QTest::newRow("c") << QVariant(u"c"_s) << "Nomenklatur nach 'Classified List and International Register of Tulip Names'";
    QTest::newRow("of other Sparten") << QVariant(u"g"_s) << "";
    QTest::newRow("unknown") << QVariant(u"x"_s) << "";
    QTest::newRow("longer") << QVariant(u"zs"_s) << "";
    QTest::newRow("empty") << QVariant(u""_s) << "";
    QTest::newRow("null") << QVariant() << "";
}

void TestTopfpflanzen::nomenklatur()
{
    QFETCH(QVariant, quelle);
    probe_->setzen({{u"Quelle"_s, u"z"_s}});
    probe_->setzen({{u"Quelle"_s, quelle}});
    QTEST(probe_->finde(u"lblBotName"_s)->toolTip(), "hinweis");
    QVERIFY(probe_->finde<QLabel>(u"lblBotName"_s)->font().italic());
}

void TestTopfpflanzen::deutscheSynonyme()
{
    const auto db = probe_->ordner.db();
    const qint64 artnr = probe_->fenster->satz().artnr();
    const QString vorher = probe_->fenster->Auslesen(u"DTNAM"_s);
    db->Execute(u"DELETE FROM Topfpfl_Synonyme_Deutsch WHERE ARTNR = ?"_s, {artnr});
    for (const QString &wort : {u"Zimmerlinde"_s, QString(), u"Amtslinde"_s})
        db->Execute(u"INSERT INTO Topfpfl_Synonyme_Deutsch VALUES (?, ?)"_s, {artnr, wort});
    db->Execute(u"INSERT INTO Topfpfl_Synonyme_Deutsch VALUES (?, 'Fremde')"_s, {artnr * 10});
    probe_->setzen({{u"DTNAM"_s, u"Linde"_s}});
    QCOMPARE(probe_->text(u"lblDtName"_s), u"Linde, Zimmerlinde, Amtslinde"_s);
    probe_->setzen({{u"DTNAM"_s, {}}});
    QCOMPARE(probe_->text(u"lblDtName"_s), u"Zimmerlinde, Amtslinde"_s);
    db->Execute(u"DELETE FROM Topfpfl_Synonyme_Deutsch WHERE ARTNR = ?"_s, {artnr});
    probe_->fenster->darstellen();
    QCOMPARE(probe_->text(u"lblDtName"_s), QString());
    probe_->setzen({{u"DTNAM"_s, vorher}});
}

void TestTopfpflanzen::herkunft()
{
    probe_->setzen({{u"HK"_s, u"Eur., Sib., N-Am., W-As., S-Afr., Kauk., Him., Kl. Asien, Anat., Kl.Asien, Rußl."_s}});
    QCOMPARE(probe_->text(u"lblHerkunft"_s),
             u"Europa, Sibirien, N-Amerika, W-Asien, S-Afrika, Kaukasus, Himalaya, Kleinasien, Anatolien, Kleinasien, Rußland"_s);
}

void TestTopfpflanzen::texteOhneZeilenmarken()
{
    const QString roh = u"eine\u00EC\nZeile\nund \u00EC noch eine"_s;
    probe_->setzen({{u"SORTEN"_s, roh}, {u"BEMERKUNG"_s, roh}});
    for (const char *control : {"txtSorten", "txtBemerkung"})
        QCOMPARE(probe_->text(QString::fromLatin1(control)), u"eineZeile\nund \u00EC noch eine"_s);
}

void TestTopfpflanzen::keineSortenUndSchaeden()
{
    const auto texte = [&] { return probe_->text(u"txtSorten"_s) + u'|' + probe_->text(u"txtKrank"_s); };
    QCOMPARE(texte(), u"Keine Sortenangaben|keine Schadensangaben"_s);
    // Only a null means that nothing is known of varieties.
    probe_->setzen({{u"SORTEN"_s, u""_s}, {u"SCHADEN"_s, u""_s}});
    QCOMPARE(texte(), u"|keine Schadensangaben"_s);
}

void TestTopfpflanzen::lichtUndTemperatur_data()
{
    QTest::addColumn<QVariant>("min");
    QTest::addColumn<QVariant>("max");
    QTest::addColumn<QString>("licht");
    QTest::addColumn<QString>("temperatur");
    QTest::newRow("both") << QVariant(u"15"_s) << QVariant(u"25"_s) << "15 bis 25 Lux"
                          << "15 bis 25 °C";
    QTest::newRow("0") << QVariant(u"15"_s) << QVariant(u"0"_s) << "mind. 15 Lux"
                       << "mind. 15 °C";
    QTest::newRow("empty") << QVariant(u"15"_s) << QVariant(u""_s) << "mind. 15 Lux"
                           << "15 bis  °C";
    QTest::newRow("null") << QVariant(u"15"_s) << QVariant() << "mind. 15 Lux"
                          << "15 bis  °C";
}

void TestTopfpflanzen::lichtUndTemperatur()
{
    QFETCH(QVariant, min);
    QFETCH(QVariant, max);
    probe_->setzen({{u"LICHTMIN"_s, min}, {u"LICHTMAX"_s, max}, {u"TEMPMIN"_s, min}, {u"TEMPMAX"_s, max}});
    QTEST(probe_->text(u"lblBeleuchtung"_s), "licht");
    QTEST(probe_->text(u"lblTemperatur"_s), "temperatur");
}

void TestTopfpflanzen::bluetenhoehe_data()
{
    QTest::addColumn<QVariant>("min");
    QTest::addColumn<QVariant>("max");
    QTest::addColumn<QString>("text");
    QTest::newRow("0 and 1.2") << QVariant(u"0"_s) << QVariant(u"1.2"_s) << "max. 1,2 m";
    QTest::newRow("null and 1,2") << QVariant() << QVariant(u"1,2"_s) << "max. 1,2 m";
    QTest::newRow("0.3 and 0") << QVariant(u"0.3"_s) << QVariant(u"0"_s) << "min. 0,3 m";
    QTest::newRow("both 0") << QVariant(u"0"_s) << QVariant(u"0"_s) << "";
}

void TestTopfpflanzen::bluetenhoehe()
{
    QFETCH(QVariant, min);
    QFETCH(QVariant, max);
    QFETCH(QString, text);
    probe_->setzen({{u"BLMINH"_s, min}, {u"BLMAXH"_s, max}});
    QCOMPARE(probe_->text(u"lblBlHoehe"_s), text);
    QCOMPARE(probe_->gezeigt(u"labelBl"_s), !text.isEmpty());
}

void TestTopfpflanzen::herkunftsmarke_data()
{
    QTest::addColumn<QVariant>("wert");
    QTest::addColumn<QString>("marke");
    for (const QVariant &wert : {QVariant(), QVariant(u""_s), QVariant(0), QVariant(1), QVariant(u"False"_s), QVariant(u"0"_s)})
        QTest::addRow("original '%s'", qPrintable(wert.toString())) << wert << "1";
    for (const QVariant &wert : {QVariant(2), QVariant(-1), QVariant(u"True"_s), QVariant(u"true"_s)})
        QTest::addRow("changed '%s'", qPrintable(wert.toString())) << wert << "2";
}

void TestTopfpflanzen::herkunftsmarke()
{
    QFETCH(QVariant, wert);
    QFETCH(QString, marke);
    probe_->setzen({{u"Benu_Aenderung"_s, marke == u"1" ? 2 : 1}});
    probe_->setzen({{u"Benu_Aenderung"_s, wert}});
    auto *bild = probe_->finde<Bildfeld>(u"imgBenuAenderung"_s);
    QCOMPARE(bild->tag(), marke);
    QCOMPARE(bild->bild(), marke == u"1" ? u"iliBenutzer/ok"_s : u"iliBenutzer/ko"_s);
}

void TestTopfpflanzen::nummerAufDemSchild()
{
    QCOMPARE(probe_->text(u"lblArtNr"_s), QString::number(probe_->fenster->satz().artnr()));
    QVERIFY(!probe_->gezeigt(u"lblArtNr"_s));
}

void TestTopfpflanzen::nichtsBleibtStehen()
{
    // Two windows: one shows the empty record only, the other a full record before it. They must look alike.
    const auto abbild = [](Fensterprobe &probe) {
        QStringList zustand;
        for (QWidget *control : probe.fenster->findChildren<QWidget *>()) {
            const QString name = control->objectName();
            if (name.isEmpty() || name.startsWith(u"qt_"_s) || name.startsWith(u"pic"_s) || name.startsWith(u"cmd"_s))
                continue;
            QString zeile = u"%1 hidden=%2"_s.arg(name).arg(control->isHidden());
            for (const char *eigenschaft : {"text", "plainText", "BackColor", "BackStyle", "checked", "Tag", "Bild", "toolTip"})
                zeile += u" %1"_s.arg(control->property(eigenschaft).toString());
            zustand += zeile;
        }
        zustand.sort();
        return zustand.join(u'\n');
    };
    Fensterprobe frisch;
    frisch.oeffnen();
    frisch.leeren();
    const QString leer = abbild(frisch);
    frisch.setzen(voll());
    const QString gefuellt = abbild(frisch);
    QVERIFY(gefuellt.contains(u"Altwert"_s));
    QVERIFY(frisch.gezeigt(u"fraHydro"_s) && frisch.gezeigt(u"Frame3D1"_s));
    const int links = frisch.finde(u"picBewAnzeige"_s)->property("Left").toInt();
    frisch.leeren();
    QCOMPARE(abbild(frisch), leer);
    // Without a rating its indicator stays.
    QCOMPARE(frisch.finde(u"picBewAnzeige"_s)->property("Left").toInt(), links);
}

void TestTopfpflanzen::sonderbareDaten_data()
{
    QTest::addColumn<QString>("feld");
    QTest::addColumn<QVariant>("wert");
    const QVariant langerText = QString(100000, u'1');
    for (const Spalte &spalte : schema::haupttabelle(u"TOPFPFL")->spalten) {
        if (spalte.art == Art::Schluessel)
            continue;
        // clang-format off
        const std::pair<const char *, QVariant> werte[] = {
            {"empty", QVariant(u""_s)},      {"one", QVariant(u"1"_s)},         {"blanks", QVariant(u"     "_s)},  {"word", QVariant(u"Quatsch"_s)},
            {"negative", QVariant(-3)},   {"huge", QVariant(2147483647)}, {"huger", QVariant(u"1e300"_s)},   {"nan", QVariant(u"nan"_s)},
            {"long", langerText},         {"marks", QVariant(u"%1 %2 &<b>\n\u00EC\n\"'"_s)}};
        // clang-format on
        for (const auto &[name, wert] : werte)
            QTest::addRow("%s %s", spalte.name, name) << QString::fromLatin1(spalte.name) << wert;
    }
    QTest::newRow("unknown family") << "FAMILIE" << QVariant(8888);
}

void TestTopfpflanzen::sonderbareDaten()
{
    QFETCH(QString, feld);
    QFETCH(QVariant, wert);
    const QString vorher = probe_->fenster->Auslesen(feld);
    Meldungsfaenger meldungen;
    probe_->setzen({{feld, wert}});
    QVERIFY(!probe_->fenster->Auslesen(feld).isEmpty() || wert.toString().isEmpty());
    // A label shows as much as somebody can read; the rest stands in a box below it.
    const QString name = feld == u"BOT_NAME" ? wert.toString() : probe_->name();
    QCOMPARE(probe_->text(u"lblBotName"_s), schildtext(name));
    if (name.size() > 10000) {
        QVERIFY(probe_->gezeigt(u"lblBotName_Ganz"_s));
        QCOMPARE(probe_->text(u"lblBotName_Ganz"_s), name);
    }
    if (feld == u"FAMILIE" && wert != 1 && wert != QVariant(u"1"_s)) {
        QCOMPARE(probe_->text(u"lblFamilie"_s), QString());
        QVERIFY(!probe_->gezeigt(u"Label2"_s));
    }
    probe_->fenster->NaviPruefung();
    QCOMPARE(meldungen.texte, QStringList());
    probe_->setzen({{feld, vorher}});
}

void TestTopfpflanzen::alleMitgeliefertenPflanzen()
{
    Fensterprobe frisch;
    frisch.alleZeigen();
    frisch.oeffnen();
    QVERIFY(frisch.fenster->Anzahl >= 120);
    QCOMPARE(frisch.fenster->Anzahl, int(Recordset(frisch.ordner.db(), u"TOPFPFL"_s).RecordCount()));
    for (int i = 0; i < frisch.fenster->Anzahl; ++i) {
        frisch.fenster->satz().haupt().setAbsolutePosition(i);
        frisch.fenster->darstellen();
        QCOMPARE(frisch.text(u"lblBotName"_s), frisch.name());
        QVERIFY2(!frisch.text(u"lblDtName"_s).isEmpty(), qPrintable(frisch.name()));
        QVERIFY2(!frisch.text(u"lblFamilie"_s).isEmpty(), qPrintable(frisch.name()));
        QCOMPARE(frisch.panel(4), u"%1/%2"_s.arg(i + 1).arg(frisch.fenster->Anzahl));
    }
}

void TestTopfpflanzen::hinweise_data()
{
    QTest::addColumn<QString>("control");
    QTest::addColumn<QString>("text");
    // clang-format off
    const std::pair<const char *, QStringList> reihen[] = {
        {"imgEigen", {u"Diese Pflanze ist eine Grünpflanze"_s, u"Diese Pflanze ist eine Blütenpflanze"_s, u"Diese Pflanze ist eine Fruchtpflanze"_s,
                      u"Diese Pflanze ist eine Sukkulente"_s, u"Diese Pflanze ist eine Carnivore"_s, u"Diese Pflanze ist giftig!"_s}},
        {"imgVerwendung",
         {u"Diese Pflanze ist für den Innenraum geeignet."_s, u"Diese Pflanze ist für die Fensterbank geeignet."_s,
          u"Diese Pflanze ist für den Kübel geeignet."_s, u"Diese Pflanze ist für die Ampel geeignet."_s, u"Diese Pflanze ist für das Beet geeignet."_s,
          u"Diese Pflanze ist für den Balkon geeignet."_s, u"Diese Pflanze ist für den Wintergarten geeignet."_s,
          u"Diese Pflanze ist für die Vitrine geeignet."_s}},
        {"imgLicht", {u"sonnig"_s, u"halbschattig"_s, u"schattig"_s}},
    };
    // clang-format on
    for (const auto &[stamm, texte] : reihen)
        for (int i = 0; i < texte.size(); ++i)
            QTest::addRow("%s(%d)", stamm, i) << u"%1_%2"_s.arg(QLatin1String(stamm)).arg(i) << texte[i];
}

void TestTopfpflanzen::hinweise()
{
    QFETCH(QString, control);
    QFETCH(QString, text);
    probe_->setzen(voll());
    probe_->reiterVon(control);
    auto *bild = probe_->finde<Bildfeld>(control);
    QVERIFY(bild->isVisible());
    Fensterprobe::mausBewegen(bild);
    QCOMPARE(probe_->panel(2), text);
    QVERIFY(!bild->accessibleName().isEmpty());
}

void TestTopfpflanzen::hinweisGehtWieder_data()
{
    QTest::addColumn<QString>("rahmen");
    for (const char *rahmen : {"SSFrame3", "SSFrame4", "fraDaten"})
        QTest::newRow(rahmen) << QString::fromLatin1(rahmen);
}

void TestTopfpflanzen::hinweisGehtWieder()
{
    QFETCH(QString, rahmen);
    probe_->setzen(voll());
    const QString bildname = rahmen == u"SSFrame3" ? u"imgVerwendung_0"_s : u"imgLicht_0"_s;
    probe_->reiterVon(bildname);
    auto *bild = probe_->finde<Bildfeld>(bildname);
    Fensterprobe::mausBewegen(bild);
    QVERIFY(!probe_->panel(2).isEmpty());
    Fensterprobe::mausBewegen(probe_->finde(rahmen));
    QCOMPARE(probe_->panel(2), QString());
}

void TestTopfpflanzen::monateAlsBuchstabenUndZahlen()
{
    const auto beschriftung = [&](const QString &stamm) {
        QStringList texte;
        for (int i = 0; i < 12; ++i)
            texte += probe_->zelle(stamm, i)->caption();
        return texte.join(u' ');
    };
    for (const char *stamm : {"lblBlMonat", "lblAngMonat", "lblFrMonat"}) {
        const QString name = QString::fromLatin1(stamm);
        QCOMPARE(beschriftung(name), u"J F M A M J J A S O N D"_s);
        probe_->programm.MonatsDarstellung = 0;
        probe_->fenster->Monatsbeschriftung();
        QCOMPARE(beschriftung(name), u"1 2 3 4 5 6 7 8 9 10 11 12"_s);
        probe_->programm.MonatsDarstellung = 2;
        probe_->fenster->Monatsbeschriftung();
        QCOMPARE(beschriftung(name), u"J F M A M J J A S O N D"_s);
    }
}

void TestTopfpflanzen::farbenUndMonateMitNamen()
{
    // clang-format off
    const std::pair<const char *, const Werteliste *> reihen[] = {{"lblBlMonat", &WL_Monate},   {"lblAngMonat", &WL_Monate},
                                                                  {"lblFrMonat", &WL_Monate},   {"lblBlFarbe", &WL_Bluetenfarbe},
                                                                  {"lblFrFarbe", &WL_ToFruchtfarbe}};
    // clang-format on
    for (const auto &[stamm, liste] : reihen) {
        for (int i = 0; i < liste->anzahl(); ++i)
            QCOMPARE(probe_->zelle(QString::fromLatin1(stamm), i)->toolTip(), liste->zeilen[size_t(i)].toString());
        QVERIFY(!probe_->fenster->findChild<Farbzelle *>(u"%1_%2"_s.arg(QLatin1String(stamm)).arg(liste->anzahl())));
    }
}

void TestTopfpflanzen::reiter()
{
    auto *tabStauden = probe_->finde<QTabWidget>(u"tabStauden"_s);
    QStringList titel;
    for (int i = 0; i < tabStauden->count(); ++i)
        titel += tabStauden->tabText(i);
    QCOMPARE(titel, (QStringList{u"Blatt/Blüte"_s, u"Standort/Verwendung"_s, u"Sorten"_s, u"Krankheiten/Pflege"_s, u"Benutzer / Ausbildung"_s}));
}

FLOX_TEST(tst_topfpflanzen, TestTopfpflanzen)
#include "tst_topfpflanzen.moc"
