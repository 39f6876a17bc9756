#include "Fensterprobe.h"

#include "plantwindows/Elemente.h"
#include "plantwindows/Gemeinsam.h"
#include "tests/Testprogramm.h"

#include <QLabel>
#include <QTest>

using namespace Qt::StringLiterals;

/* A collection whose plants are taken from two others: what is shown of a row follows its origin. */

namespace {

constexpr Element kopf[] = {
    {.muster = Muster::BotName, .control = "lblBotName", .feld = "BOT_NAME", .feld2 = "*.Quelle"},
    {.muster = Muster::DtName, .control = "lblDtName", .feld = "DTNAM", .titeltext = u"Deutscher Name:"},
    {.muster = Muster::Familie, .control = "lblFamilie", .feld = "*.FAMILIE", .titeltext = u"Familie:", .titel = "Label2"},
    {.muster = Muster::Synonyme, .control = "lblSynonyme", .feld = "BOT_NAME", .titeltext = u"Synonyme:", .titel = "LabelSyn"},
    {.muster = Muster::Text, .control = "lblHerkunft", .feld = "*.HK", .titel = "lblHerk"},
};
constexpr Symbol seiten[] = {{"iliEigenschaften/schmuck", u"", u"Staude"}, {"iliEigenschaften/laub", u"", u"Gehölz"}};
constexpr Element tafel[] = {
    gemeinsam::herkunftsmarke,
    {.muster = Muster::Bewertung, .control = "picBewertung", .feld = "friedhof_bewertung", .titeltext = u"Bewertung", .ausArbeit = true},
    {.muster = Muster::Bildwahl, .control = "imgSeite", .feld = "DB", .symbole = seiten},
};
constexpr Anhang anPflanzart[] = {{"immergruen", u"immergrün"}, {"DUFT", u"Duftpflanze"}, {"friedhof_HERBSTFARB", u"Herbstfärbung!"}};
constexpr Element staudenart[] = {
    {.muster = Muster::Liste, .control = "lblPflanzart", .feld = "pflanzart", .titeltext = u"Art:", .titel = "Label36", .anhang = anPflanzart},
};
constexpr Element staudenpflege[] = {
    {.muster = Muster::Liste, .control = "lblPflege", .feld = "pflege", .titel = "Label8", .trenner = u" - "},
};
constexpr Element gehoelz[] = {
    {.muster = Muster::Liste, .control = "lblHabitus", .feld = "habitus", .titel = "Label1"},
    {.muster = Muster::Farbfeld, .control = "lblGhFrFarbe", .feld = "gehoelze_fruchtfarb", .titeltext = u"Farben:", .farben = &WL_FruchtfarbeRGB},
};
constexpr Element symbolik[] = {{.muster = Muster::Text, .control = "lblSymbolik", .feld = "SYMBOLIK", .ausArbeit = true}};
constexpr Gruppe gruppen[] = {
    {.name = "fraPflanzentyp", .titel = u"Art", .elemente = staudenart, .herkunft = Sparte::Stauden},
    {.name = "fraPflege", .titel = u"Pflege", .elemente = staudenpflege, .regel = Gruppenregel::Controls, .herkunft = Sparte::Stauden},
    {.name = "fraGhHabitus", .titel = u"Habitus", .elemente = gehoelz, .herkunft = Sparte::Gehoelze},
    {.name = "fraSymbolik", .titel = u"Symbolik", .elemente = symbolik, .regel = Gruppenregel::Controls},
};
constexpr Reiter reiter[] = {{u"Pflanze", gruppen}, {u"Benutzer / Ausbildung", gemeinsam::benutzer}};
constexpr Fensterbeschreibung beschreibung{.sparte = Sparte::Friedhof, .kopf = kopf, .tafel = tafel, .reiter = reiter};

} // namespace

class TestHerkunft : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void jedeZeileZeigtIhreQuelle();
    void unbekannteHerkunft();
    void eineMeldungJeSchritt();
    void bilderAusDerQuelle();
    void herkuenfteDerTabelle();
    void ortDesGeparktenFilters();

private:
    QStringList rahmen();
    void weiter() { probe_->klick("cmdNext"); }

    std::unique_ptr<Fensterprobe> probe_;
};

void TestHerkunft::initTestCase()
{
    QCOMPARE(beschreibungsfehler(beschreibung), QString());
}

void TestHerkunft::init()
{
    probe_ = std::make_unique<Fensterprobe>(beschreibung);
    const auto db = probe_->ordner.db();
    const auto los = [&](const QString &befehl) { db->Execute(befehl); };
    for (const QString &tabelle : {u"Friedhof"_s, u"STAUDEN"_s, u"GEHOELZE"_s, u"Stauden_Synonyme_Botanisch"_s, u"Gehoelze_Synonyme_Botanisch"_s})
        los(u"DELETE FROM "_s + tabelle);
    los(u"INSERT INTO Familien VALUES (9001, 'Staudaceae'), (9002, 'Lignaceae')"_s);
    // The second side has a row of the same number: nothing of it may show.
    los(u"INSERT INTO STAUDEN (ARTNR, BOT_NAME, Quelle, FAMILIE, HK, pflanzart, immergruen, Ausbildung) VALUES "
        "(100, 'Sedum', 'n', 9001, 'Eur.', 'Str', 'True', '001000'), (2100, 'Falsa', 'z', 9001, 'nirgends', 'S', 'True', '100000')"_s);
    los(u"INSERT INTO GEHOELZE (ARTNR, BOT_NAME, Quelle, FAMILIE, hk, habitus, fruchtfarb, Ausbildung) VALUES "
        "(2100, 'Taxus', 'g', 9002, 'Asien', '1', '00001', '010000')"_s);
    los(u"INSERT INTO Friedhof (ARTNR, BOT_NAME, DTNAM, DB, pflege, DUFT, bewertung, SYMBOLIK) VALUES "
        "(100, 'Sedum', 'Fetthenne', '100', '11', 'True', 9, 'Treue'), (2100, 'Taxus', 'Eibe', '010', NULL, NULL, 9, NULL), "
        "(300, 'Tilia', 'Linde', '001', NULL, NULL, 9, 'Friede')"_s);
    los(u"INSERT INTO Stauden_Synonyme_Botanisch VALUES (100, 'Hylotelephium'), (2100, 'Nicht Taxus')"_s);
    los(u"INSERT INTO Gehoelze_Synonyme_Botanisch VALUES (2100, 'Taxus communis')"_s);
    probe_->oeffnen();
}

QStringList TestHerkunft::rahmen()
{
    QStringList namen;
    for (const Gruppe &gruppe : gruppen)
        if (probe_->gezeigt(QString::fromLatin1(gruppe.name)))
            namen += QString::fromLatin1(gruppe.name);
    return namen;
}

void TestHerkunft::jedeZeileZeigtIhreQuelle()
{
    QCOMPARE(probe_->name(), u"Sedum"_s);
    const auto tip = [&] { return probe_->finde(u"lblBotName"_s)->toolTip(); };
    QVERIFY(probe_->finde<QLabel>(u"lblBotName"_s)->font().italic());
    // Two marks without a caption have a place each.
    QVERIFY(!probe_->finde(u"imgSeite"_s)->geometry().intersects(probe_->finde(u"imgBenuAenderung"_s)->geometry()));
    // There and back: nothing of the other side stays.
    for (int lauf = 0; lauf < 2; ++lauf) {
        QCOMPARE(rahmen(), (QStringList{u"fraPflanzentyp"_s, u"fraPflege"_s, u"fraSymbolik"_s}));
        QCOMPARE(tip(), u"Nomenklatur nach 'Namenliste Stauden'"_s);
        QCOMPARE(probe_->text(u"lblFamilie"_s), u"Staudaceae"_s);
        QCOMPARE(probe_->text(u"lblSynonyme"_s), u"Hylotelephium"_s);
        QCOMPARE(probe_->text(u"lblHerkunft"_s), u"Eur."_s);
        QCOMPARE(probe_->text(u"lblPflanzart"_s), u"Strauch, immergrün, Duftpflanze"_s);
        QCOMPARE(probe_->text(u"lblSymbolik"_s), u"Treue"_s);
        QVERIFY(probe_->text(u"lblAusbildung"_s).endsWith(u"bei Staudengärtnern"));
        QCOMPARE(probe_->finde<Bildfeld>(u"imgSeite"_s)->bild(), u"iliEigenschaften/schmuck"_s);
        weiter();
        QCOMPARE(probe_->name(), u"Taxus"_s);
        QCOMPARE(rahmen(), QStringList{u"fraGhHabitus"_s});
        QCOMPARE(tip(), u"Nomenklatur nach 'Namenliste Gehölze'"_s);
        QCOMPARE(probe_->text(u"lblFamilie"_s), u"Lignaceae"_s);
        QCOMPARE(probe_->text(u"lblSynonyme"_s), u"Taxus communis"_s);
        QCOMPARE(probe_->text(u"lblHerkunft"_s), u"Asien"_s);
        QCOMPARE(probe_->text(u"lblHabitus"_s), WL_GeHabitus.wort(1).toString());
        QCOMPARE(probe_->zelle(u"lblGhFrFarbe"_s, 4)->backColor(), WL_FruchtfarbeRGB.werte[4]);
        QVERIFY(probe_->text(u"lblAusbildung"_s).endsWith(u"bei Baumschulgärtnern"));
        QCOMPARE(probe_->finde<Bildfeld>(u"imgSeite"_s)->bild(), u"iliEigenschaften/laub"_s);
        probe_->klick("cmdBack");
    }
}

void TestHerkunft::unbekannteHerkunft()
{
    Meldungsfaenger meldungen;
    weiter();
    const QStringList vorher = rahmen();
    weiter();
    QCOMPARE(probe_->name(), u"Tilia"_s);
    QTRY_COMPARE(meldungen.texte, QStringList{u"Unbekannte Datenbank!"_s});
    // Groups of an origin stay as they were, the row's own follow it, and no value of the row before is left.
    QCOMPARE(rahmen(), vorher + QStringList{u"fraSymbolik"_s});
    QCOMPARE(probe_->text(u"lblDtName"_s), u"Linde"_s);
    QCOMPARE(probe_->text(u"lblFamilie"_s), QString());
    QCOMPARE(probe_->text(u"lblSynonyme"_s), QString());
    QCOMPARE(probe_->text(u"lblHabitus"_s), QString());
    QCOMPARE(probe_->finde(u"lblBotName"_s)->toolTip(), QString());
    // The window goes on.
    probe_->klick("cmdBack");
    QCOMPARE(probe_->text(u"lblFamilie"_s), u"Lignaceae"_s);
    QTest::qWait(20);
    QCOMPARE(meldungen.texte.size(), 1);
    weiter();
    QTRY_COMPARE(meldungen.texte.size(), 2);
}

void TestHerkunft::eineMeldungJeSchritt()
{
    Meldungsfaenger meldungen;
    probe_->klick("cmdLast");
    // Shown twice before anybody can answer.
    probe_->fenster->darstellen();
    QTRY_COMPARE(meldungen.texte.size(), 1);
    QTest::qWait(20);
    QCOMPARE(meldungen.texte.size(), 1);
    // A window that goes takes its message along.
    probe_->fenster->darstellen();
    probe_.reset();
    QTest::qWait(20);
    QCOMPARE(meldungen.texte.size(), 1);
}

void TestHerkunft::bilderAusDerQuelle()
{
    const auto db = probe_->ordner.db();
    db->Execute(u"DELETE FROM Friedhof_Bilder"_s);
    db->Execute(u"INSERT INTO Friedhof_Bilder (ARTNR, BotName, \"BILD1-G\") VALUES "
                "(100, 'Sedum', 'probe'), (2100, 'Taxus', 'probe'), (300, 'Tilia', 'probe')"_s);
    // A real picture can be clicked.
    const auto echt = [&] { return probe_->finde(u"imgFloxBild_0"_s)->property("MousePointer").toInt() != 0; };
    QImage bild(80, 60, QImage::Format_RGB32);
    bild.fill(Qt::darkGreen);
    // By these two a folder is known for the pictures' own.
    QVERIFY(QDir().mkpath(probe_->ordner.pfad(u"topfpflanzen"_s)));
    for (const QString &probe : {u"begonia-rex"_s, u"bougainvillea-glabra"_s})
        QVERIFY(bild.save(probe_->ordner.pfad(u"topfpflanzen/%1.jpg"_s.arg(probe)), "JPG"));
    for (const auto &[da, fehlt] : {std::pair(u"stauden"_s, u"gehoelze"_s), {u"gehoelze"_s, u"stauden"_s}}) {
        QDir(probe_->ordner.pfad(fehlt)).removeRecursively();
        QVERIFY(QDir().mkpath(probe_->ordner.pfad(da)));
        QVERIFY(bild.save(probe_->ordner.pfad(da + u"/probe.jpg"_s), "JPG"));
        probe_->klick("cmdFirst");
        probe_->fenster->darstellen();
        QCOMPARE(echt(), da == u"stauden");
        weiter();
        QCOMPARE(echt(), da == u"gehoelze");
    }
}

void TestHerkunft::herkuenfteDerTabelle()
{
    const SpartenEintrag &friedhof = eintrag(Sparte::Friedhof);
    QCOMPARE(herkuenfte(friedhof), (QList<Sparte>{Sparte::Stauden, Sparte::Gehoelze}));
    QVERIFY(herkunft(friedhof, u"100") == Sparte::Stauden);
    QVERIFY(herkunft(friedhof, u"010") == Sparte::Gehoelze);
    for (const QStringView wert : {u"", u"001", u"110", u"10"})
        QVERIFY(!herkunft(friedhof, wert));
    for (const SpartenEintrag &sparte : alleSparten())
        if (!sparte.herkunftsfeld) {
            QCOMPARE(herkuenfte(sparte), QList<Sparte>{sparte.sparte});
            QVERIFY(herkunft(sparte, {}) == sparte.sparte);
        }
}

void TestHerkunft::ortDesGeparktenFilters()
{
    // Parked beside the filters of another Sparte; closing removes a file of its own name.
    const SpartenEintrag &friedhof = eintrag(Sparte::Friedhof);
    QCOMPARE(friedhof.parkFilter.toString() + u"1"_s + friedhof.parkEndung.toString(), u"\\TempFilterSt1.ffs"_s);
    QCOMPARE(friedhof.tempFilter.toString() + u"1"_s + friedhof.filterEndung.toString(), u"\\TempFilterFh1.fff"_s);
}

FLOX_TEST(tst_herkunft, TestHerkunft)
#include "tst_herkunft.moc"
