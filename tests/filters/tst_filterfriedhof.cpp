#include "Filterprobe.h"

#include "filters/Filterlauf.h"
#include "tests/Testprogramm.h"

#include <QFile>

#include <map>

using namespace Qt::StringLiterals;

/* The filter of cemetery plants: perennials and woody plants in one set, each read by the fields of its own. */

namespace {

const QStringList laubfarbenStauden{u"hellgrün"_s, u"dunkelgrün"_s, u"weißgrün"_s, u"gelb"_s,     u"gelbgrün"_s,    u"rotbraun"_s,
                                    u"blaugrün"_s, u"silbrig"_s,    u"grau"_s,     u"graublau"_s, u"graugrün"_s,    u"gestreift"_s,
                                    u"gefleckt"_s, u"filzig"_s,     u"orange"_s,   u"rot"_s,      u"bläulich rot"_s};
const QStringList laubfarbenGehoelze{u"hellgrün"_s, u"dunkelgrün"_s, u"gelbgrün"_s,     u"weißgrün"_s, u"gelb"_s,      u"orange"_s,  u"rot"_s,
                                     u"graugrün"_s, u"blaugrün"_s,   u"bläulich rot"_s, u"graugrün"_s, u"gestreift"_s, u"gefleckt"_s};
// clang-format off
const QStringList wuchsformen{u"bizarre Wuchsform"_s, u"kegelförmig"_s, u"kugelförmig"_s, u"säulenförmig"_s, u"schirmartig"_s, u"schleppenartig"_s,
                              u"überhängend"_s, u"breit ausladend"_s, u"vasenförmig"_s, u"gedrungen"_s, u"kriechend"_s, u"kletternd"_s,
                              u"polsterbildend"_s, u"ausbreitend"_s, u"horstig"_s, u"rasenbildend"_s};
// clang-format on
const QStringList pflanzarten{u"1"_s, u"2"_s, u"B"_s, u"H"_s, u"S"_s, u"Str"_s, u"Z"_s, u"G"_s, u"F"_s, u"W"_s};
const QStringList suchtexte{u"alba"_s, u"ROT"_s, u"grün"_s, u"zz"_s};

/// A row of the query: "f", "s" and "g" are its cemetery, perennial and woody columns. A null text is a null.
struct Zeile
{
    std::map<QString, QString> f, s, g;
    QString botanisch, deutsch; ///< synonyms of its own side
};

QString wert(const std::map<QString, QString> &felder, const QString &feld)
{
    const auto gefunden = felder.find(feld);
    return gefunden == felder.end() ? QString() : gefunden->second;
}

/// The tests one by one, as somebody would who holds the dialog beside the plant.
bool naiv(const Zustand &z, const Zeile &zeile, const QMap<QString, QString> &familien)
{
    const bool holz = wert(zeile.f, u"DB"_s) == u"010";
    const auto f = [&](const char *feld) { return wert(zeile.f, QString::fromLatin1(feld)); };
    const auto je = [&](const char *staude, const char *gehoelz) {
        return holz ? wert(zeile.g, QString::fromLatin1(gehoelz)) : wert(zeile.s, QString::fromLatin1(staude));
    };
    const auto gewaehlt = [&](const char *control) {
        QList<int> stellen;
        for (int i = 0; i < int(z[control].werte.size()); ++i)
            if (z.hat(control, i))
                stellen += i;
        return stellen;
    };
    const auto einesVon = [&](const char *control, auto trifft) {
        const QList<int> stellen = gewaehlt(control);
        return stellen.isEmpty() || stellen.size() == qsizetype(z[control].werte.size()) || std::ranges::any_of(stellen, trifft);
    };
    const auto flags = [&](const char *control, const QString &text) {
        return einesVon(control, [&](int i) { return i < text.size() && text[i] == u'1'; });
    };
    const auto schmuck = [&](const char *control, const QString &text) { return !z.hat(control) || text == u"True"; };
    const auto hoehe = [&](const char *von, const char *bis, const QString &unten, const QString &oben) {
        const auto zahl = [](QString text) { return text.replace(u',', u'.').toDouble(); };
        const double min = zahl(z[von].text), max = zahl(z[bis].text);
        return (min == 0 && max == 99) || !(max < zahl(oben) || min > zahl(unten));
    };
    const auto enthaelt = [&](const char *control, const QString &text) {
        return z[control].text.isEmpty() || text.contains(z[control].text, Qt::CaseInsensitive);
    };
    if (z["cmbFamilie"].text != u"- Alle -" && je("FAMILIE", "FAMILIE") != familien.value(z["cmbFamilie"].text, u"?"_s))
        return false;
    if (!flags("lblBlFarbe", je("farben", "bluehfarb")) || !flags("lblBlMonat", je("bluehzeit", "bluehzeit")))
        return false;
    if (!hoehe("txtMinHoehe", "txtMaxHoehe", holz ? f("MINHOEHE") : je("BLMINH", ""), holz ? f("MAXHOEHE") : je("BLMAXH", "")))
        return false;
    if (!schmuck("chkBluehSchmuck", f("BLUEHSCHMU")) || !schmuck("chkFruchtSchmuck", f("fruchtschm"))
        || !schmuck("chkBlattschmuck", holz ? f("blaschmuck") : je("blaschmuck", "")))
        return false;
    if (!(holz ? flags("lblFrFarbe", je("", "fruchtfarb"))
               : einesVon("lblFrFarbe", [&](int i) { return je("fruchtfarb", "") == QString::number(i + 1); })))
        return false;
    if (!flags("lblFrMonat", holz ? f("fruchtzeit") : je("fruchtzeit", "")))
        return false;
    const QString laub = je("blattfarbe", "laubfarb");
    const QStringList &worte = holz ? laubfarbenGehoelze : laubfarbenStauden;
    if (!einesVon("chkLaubFarbe", [&](int i) {
            for (int p = 0; p < std::min(laub.size(), worte.size()); ++p)
                if (laub[p] == u'1' && worte[p] == laubfarbenStauden[i])
                    return true;
            return false;
        }))
        return false;
    if (!(holz ? flags("chkLaubZeit", je("", "laubzeit")) : einesVon("chkLaubZeit", [&](int i) {
            return (i == 2 && je("immergruen", "") == u"True") || (i == 3 && f("HERBSTFARB") == u"True");
        })))
        return false;
    if (!holz && !hoehe("txtBlattMinHoehe", "txtBlattMaxHoehe", je("MINHOEHE", ""), je("MAXHOEHE", "")))
        return false;
    if (!flags("imgLicht", je("licht", "licht")) || !flags("chkBodenArt", je("bodenart", "bodenart"))
        || !flags("chkBodenfeuchte", je("bfeuchte", "bfeuchte")) || !flags("chkKalk", je("kalk", "phboden"))
        || !flags("chkNaehrstoff", holz ? f("NAEHRSTOFF") : je("salz", "")))
        return false;
    if (!holz && !einesVon("optTyp", [&](int i) { return je("pflanzart", "") == pflanzarten[i]; }))
        return false;
    if (holz
        && (!flags("chkGhTyp", je("", "groesse"))
            || (z.hat("chkGhLaub") != z.hat("chkGhNadel") && je("", "grobeint") != (z.hat("chkGhLaub") ? u"1" : u"2"))))
        return false;
    if (!(holz ? flags("chkHabitus", je("", "habitus"))
               : einesVon("chkHabitus", [&](int i) { return je("wuchsform", "").contains(wuchsformen[i], Qt::CaseInsensitive); })))
        return false;
    if (!flags("chkVerwendung", f("verwendung")))
        return false;
    const int stufe = 2 * z["sldBewertung"].werte[0] - 1, bewertung = f("bewertung").toInt();
    if (z.hat("optBewertung", 0) ? bewertung < stufe : bewertung > stufe)
        return false;
    return enthaelt("txtbotName", f("BOT_NAME")) && enthaelt("txtSynonym", zeile.botanisch)
           && enthaelt("txtSynonymDeutsch", f("DTNAM") + u", "_s + zeile.deutsch) && enthaelt("txtSorte", je("SORTEN", "SORTEN"))
           && enthaelt("txtBenutzerText", f("benu_bemerkung")) && flags("sschkBenutzer", f("benu_eigen"))
           && flags("chkAusbildung", je("Ausbildung", "Ausbildung"));
}

QString zufallsflags(Zufall &zufall, int n)
{
    if (einmalIn(zufall, 7))
        return {};
    QString text;
    for (int i = 0; i < n; ++i)
        text += einmalIn(zufall, 3) ? u'1' : u'0';
    return text;
}

Zeile zufallszeile(Zufall &zufall, bool holz)
{
    const auto wahr = [&] { return einmalIn(zufall, 2) ? u"True"_s : einmalIn(zufall, 2) ? u"False"_s : QString(); };
    const auto meter = [&](int von) { return einmalIn(zufall, 6) ? QString() : QString::number(zahl(zufall, von, von + 20) / 10.0); };
    const auto eins = [&](const QStringList &liste) { return einmalIn(zufall, 6) ? QString() : liste[zahl(zufall, 0, int(liste.size()) - 1)]; };
    const QStringList worte{u"Alba"_s, u"Grün, rot"_s, u"GRÜNLICH"_s, u"Malbaum"_s, u"nichts"_s};
    Zeile z;
    z.f = {{u"BOT_NAME"_s, worte[zahl(zufall, 0, 4)]},
           {u"DTNAM"_s, eins(worte)},
           {u"MINHOEHE"_s, meter(0)},
           {u"MAXHOEHE"_s, meter(10)},
           {u"BLUEHSCHMU"_s, wahr()},
           {u"fruchtschm"_s, wahr()},
           {u"blaschmuck"_s, wahr()},
           {u"HERBSTFARB"_s, wahr()},
           {u"fruchtzeit"_s, zufallsflags(zufall, 12)},
           {u"NAEHRSTOFF"_s, zufallsflags(zufall, 3)},
           {u"verwendung"_s, zufallsflags(zufall, 16)},
           {u"bewertung"_s, QString::number(zahl(zufall, 1, 9))},
           {u"benu_bemerkung"_s, eins(worte)},
           {u"benu_eigen"_s, zufallsflags(zufall, 5)},
           {u"DB"_s, holz                  ? u"010"_s
                     : einmalIn(zufall, 8) ? u"001"_s
                                           : u"100"_s},
           // What the cemetery table has under a name of both sources says nothing to a filter.
           {u"bluehzeit"_s, zufallsflags(zufall, 12)},
           {u"fruchtfarb"_s, zufallsflags(zufall, 14)},
           {u"wuchsform"_s, eins(wuchsformen)}};
    // clang-format off
    const std::map<QString, QString> gemeinsam{
        {u"FAMILIE"_s, QString::number(zahl(zufall, 1, 3))}, {u"bluehzeit"_s, zufallsflags(zufall, 12)}, {u"fruchtzeit"_s, zufallsflags(zufall, 12)},
        {u"licht"_s, zufallsflags(zufall, 3)}, {u"bodenart"_s, zufallsflags(zufall, holz ? 7 : 6)}, {u"bfeuchte"_s, zufallsflags(zufall, 4)},
        {u"SORTEN"_s, eins(worte)}, {u"Ausbildung"_s, zufallsflags(zufall, 6)}};
    // clang-format on
    // Now and then the other table has a row of the same number.
    if (!holz || einmalIn(zufall, 3)) {
        z.s = gemeinsam;
        z.s.merge(std::map<QString, QString>{{u"farben"_s, zufallsflags(zufall, 13)},
                                             {u"BLMINH"_s, meter(0)},
                                             {u"BLMAXH"_s, meter(10)},
                                             {u"fruchtfarb"_s, QString::number(zahl(zufall, 1, 14))},
                                             {u"blattfarbe"_s, zufallsflags(zufall, 14)},
                                             {u"immergruen"_s, wahr()},
                                             {u"MINHOEHE"_s, meter(0)},
                                             {u"MAXHOEHE"_s, meter(10)},
                                             {u"blaschmuck"_s, wahr()},
                                             {u"kalk"_s, zufallsflags(zufall, 3)},
                                             {u"salz"_s, zufallsflags(zufall, 3)},
                                             {u"pflanzart"_s, eins(pflanzarten)},
                                             {u"wuchsform"_s, u"dicht, %1"_s.arg(eins(wuchsformen).toUpper())}});
    }
    if (holz || einmalIn(zufall, 3)) {
        z.g = gemeinsam;
        z.g.merge(std::map<QString, QString>{{u"bluehfarb"_s, zufallsflags(zufall, 13)},
                                             {u"fruchtfarb"_s, zufallsflags(zufall, 14)},
                                             {u"laubfarb"_s, zufallsflags(zufall, 13)},
                                             {u"laubzeit"_s, zufallsflags(zufall, 4)},
                                             {u"phboden"_s, zufallsflags(zufall, 3)},
                                             {u"groesse"_s, zufallsflags(zufall, 8)},
                                             {u"grobeint"_s, eins({u"1"_s, u"2"_s})},
                                             {u"habitus"_s, zufallsflags(zufall, 16)}});
    }
    z.botanisch = eins(worte);
    z.deutsch = eins(worte);
    return z;
}

Zustand zufallsdialog(Zufall &zufall)
{
    Zustand z(Sparte::Friedhof);
    for (const char *control :
         {"lblBlFarbe", "lblBlMonat", "lblFrFarbe", "lblFrMonat", "chkLaubFarbe", "chkLaubZeit", "imgLicht", "chkBodenArt", "chkBodenfeuchte",
          "chkKalk", "chkNaehrstoff", "chkGhTyp", "chkHabitus", "chkVerwendung", "sschkBenutzer", "chkAusbildung"}) {
        if (!einmalIn(zufall, 7))
            continue;
        const bool ganz = einmalIn(zufall, 5);
        for (int i = 0; i < int(z[control].werte.size()); ++i)
            if (ganz || einmalIn(zufall, 2))
                z.waehlen(control, i);
    }
    for (const char *control : {"chkBluehSchmuck", "chkFruchtSchmuck", "chkBlattschmuck", "chkGhLaub", "chkGhNadel"})
        if (einmalIn(zufall, 6))
            z.waehlen(control);
    if (einmalIn(zufall, 6))
        z.waehlen("optTyp", zahl(zufall, 0, 9));
    for (const auto &[von, bis] : {std::pair("txtMinHoehe", "txtMaxHoehe"), {"txtBlattMinHoehe", "txtBlattMaxHoehe"}})
        if (einmalIn(zufall, 7))
            z.text(von, u"0,%1"_s.arg(zahl(zufall, 0, 5))).text(bis, QString::number(zahl(zufall, 1, 4)));
    for (const char *control : {"txtbotName", "txtSynonym", "txtSynonymDeutsch", "txtSorte", "txtBenutzerText"})
        if (einmalIn(zufall, 12))
            z.text(control, suchtexte[zahl(zufall, 0, 3)]);
    if (einmalIn(zufall, 7))
        z.text("cmbFamilie", einmalIn(zufall, 2) ? u"Asteraceae"_s : u"Aceraceae"_s);
    z.bewertung(zahl(zufall, 1, 4), !einmalIn(zufall, 4));
    return z;
}

} // namespace

class TestFilterFriedhof : public QObject
{
    Q_OBJECT

private slots:
    void beschriftungen();
    void muster();
    void zufaelligeDialoge_data();
    void zufaelligeDialoge();
    void geparktNebenDenStauden();
    void beideAus();
    void staudenSchliessen();

private:
    static Bildknopf &schalter(Pflanzenfenster &fenster) { return *fenster.findChild<Bildknopf *>(u"cmdFilterEin"_s); }
    static void schalten(Pflanzenfenster &fenster) { QTest::mouseClick(&schalter(fenster), Qt::LeftButton); }
};

void TestFilterFriedhof::beschriftungen()
{
    const Filterbeschreibung &b = *filterbeschreibung(Sparte::Friedhof);
    const auto worte = [&](const char *control) {
        const Kriterium *k = kriteriumNamens(b, control);
        QStringList alle;
        for (int i = 0; i < k->a.elemente(); ++i)
            alle += wortVon(b, *k, k->a, i).toString();
        return alle;
    };
    QCOMPARE(worte("chkLaubFarbe"), laubfarbenStauden);
    QCOMPARE(worte("chkHabitus"), wuchsformen);
    QCOMPARE(worte("chkLaubZeit"), (QStringList{u"sommergrün"_s, u"wintergrün"_s, u"immergrün"_s, u"Herbstfärbung!"_s}));
    QCOMPARE(worte("chkKalk"), (QStringList{u"sauer"_s, u"neutral"_s, u"basisch"_s}));
    QCOMPARE(worte("chkBodenArt").last(), u"tiefgründig"_s);
    QCOMPARE(worte("chkBodenfeuchte").last(), u"dauernaß"_s);
    QCOMPARE(worte("chkNaehrstoff").first(), u"nährstoffarm"_s);
    QCOMPARE(worte("optTyp")[5], u"Strauch"_s);
    QCOMPARE(worte("chkVerwendung")[8], u"GB-Solitär"_s);
    QCOMPARE(worte("chkGhLaub"), QStringList{u"Laubgehölz"_s});
}

void TestFilterFriedhof::muster()
{
    const Filterbeschreibung &b = *filterbeschreibung(Sparte::Friedhof);
    QCOMPARE(b.ladeFilter, u"Friedhof-Filter (*.fff)|*.ffs|Alle Dateien|*.*");
    QCOMPARE(b.speicherFilter, u"Friedhof-Filter (*.fff)|*.fff|Alle Dateien|*.*");
    // The order of the tests.
    QStringList folge;
    for (const Kriterium &k : b.kriterien)
        folge += QString::fromLatin1(k.a.control);
    QCOMPARE(folge, u"cmbFamilie chkBild lblBlFarbe lblBlMonat txtMinHoehe chkBluehSchmuck lblFrFarbe lblFrMonat chkFruchtSchmuck chkLaubFarbe "
                    "chkLaubZeit "
                    "txtBlattMinHoehe chkBlattschmuck imgLicht chkBodenArt chkBodenfeuchte chkKalk chkNaehrstoff optTyp chkGhTyp chkGhLaub "
                    "chkHabitus "
                    "chkVerwendung optBewertung txtbotName txtSynonym txtSynonymDeutsch txtSorte txtBenutzerText sschkBenutzer "
                    "chkAusbildung"_s.split(u' '));
}

void TestFilterFriedhof::zufaelligeDialoge_data()
{
    QTest::addColumn<uint>("saat");
    for (uint saat = 1; saat <= 6; ++saat)
        QTest::addRow("%u", saat) << saat;
}

void TestFilterFriedhof::zufaelligeDialoge()
{
    QFETCH(const uint, saat);
    Zufall zufall(saat);
    Programmordner ordner;
    const auto db = ordner.db();
    for (const char *name : {"Stauden", "Gehoelze", "Friedhof", "Stauden_Synonyme_Botanisch", "Stauden_Synonyme_Deutsch",
                             "Gehoelze_Synonyme_Botanisch", "Gehoelze_Synonyme_Deutsch", "Familien", "Topfpfl", "Apfel", "Obst"})
        db->Execute(u"DELETE FROM %1"_s.arg(QLatin1String(name)));
    db->Execute(u"VACUUM"_s); // each dialog copies it
    db->Execute(u"INSERT INTO Familien (FAMILIE, FAMNAME) VALUES (1, 'Asteraceae'), (2, 'Aceraceae'), (3, 'Rosaceae')"_s);
    const QMap<QString, QString> familien{{u"Asteraceae"_s, u"1"_s}, {u"Aceraceae"_s, u"2"_s}};
    const auto schreiben = [&](const QString &tabelle, qint64 artnr, const std::map<QString, QString> &felder) {
        QStringList namen{u"ARTNR"_s}, plaetze{u"?"_s};
        QVariantList inhalt{artnr};
        for (const auto &[feld, text] : felder)
            if (!text.isNull()) {
                namen += feld;
                plaetze += u"?"_s;
                inhalt += text;
            }
        db->Execute(u"INSERT INTO %1 (%2) VALUES (%3)"_s.arg(tabelle, namen.join(u','), plaetze.join(u',')), inhalt);
    };
    QMap<qint64, Zeile> welt;
    for (qint64 artnr = 1; artnr <= 40; ++artnr) {
        const bool holz = artnr % 2;
        const Zeile &zeile = *welt.insert(artnr, zufallszeile(zufall, holz));
        schreiben(u"Friedhof"_s, artnr, zeile.f);
        if (!zeile.s.empty())
            schreiben(u"Stauden"_s, artnr, zeile.s);
        if (!zeile.g.empty())
            schreiben(u"Gehoelze"_s, artnr, zeile.g);
        const QString eigen = holz ? u"Gehoelze"_s : u"Stauden"_s, fremd = holz ? u"Stauden"_s : u"Gehoelze"_s;
        for (const auto &[tabelle, name] : {std::pair(u"%1_Synonyme_Botanisch"_s, zeile.botanisch), {u"%1_Synonyme_Deutsch"_s, zeile.deutsch}}) {
            if (!name.isNull())
                schreiben(tabelle.arg(eigen), artnr, {{u"SYN"_s, name}});
            schreiben(tabelle.arg(fremd), artnr, {{u"SYN"_s, u"alba rot grün"_s}}); // somebody else's
        }
    }
    int einige = 0;
    for (int i = 0; i < 40; ++i) {
        const Zustand z = zufallsdialog(zufall);
        QList<qint64> soll;
        for (auto zeile = welt.cbegin(); zeile != welt.cend(); ++zeile)
            if (naiv(z, zeile.value(), familien))
                soll += zeile.key();
        const QString kopie = ordner.pfad(u"kopie.mdb"_s);
        QFile::remove(kopie);
        QVERIFY(QFile::copy(ordner.datenbank(), kopie));
        const Laufergebnis ergebnis = filterLauf(*Datenbank::OpenDatabase(kopie, Datenbank::Zugriff::Privat), *db, z.beschreibung, z.werte);
        QCOMPARE(ergebnis.gesamt, 40);
        const QList<qint64> ist(ergebnis.uebrig.begin(), ergebnis.uebrig.end());
        QVERIFY2(ist == soll, qPrintable(u"dialog %1:\n%2"_s.arg(i).arg(QString::fromLatin1(filterSchreiben(z.beschreibung, z.werte).simplified()))));
        einige += !soll.isEmpty() && soll.size() < welt.size();
    }
    QVERIFY2(einige >= 15, qPrintable(QString::number(einige)));
}

void TestFilterFriedhof::geparktNebenDenStauden()
{
    Filterprobe probe(Sparte::Friedhof);
    probe.oeffnen();
    const QString park = probe.ordner.pfad(u"TempFilterSt1.ffs"_s);
    const QList<qint64> gefiltert = probe.pflanzen();
    schalten(*probe.fenster);
    QVERIFY(QFile::exists(park));
    QFile datei(park);
    QVERIFY(datei.open(QIODevice::ReadOnly));
    QCOMPARE(datei.readAll(), vorgabedatei(Sparte::Friedhof));
    datei.close();
    schalten(*probe.fenster);
    QVERIFY(!QFile::exists(park));
    QCOMPARE(probe.pflanzen(), gefiltert);
    // The close looks for a file of another name: the parked one stays.
    schalten(*probe.fenster);
    QFile eigen(probe.ordner.pfad(u"TempFilterFh1.fff"_s));
    QVERIFY(eigen.open(QIODevice::WriteOnly));
    eigen.close();
    probe.fenster->close();
    QVERIFY(QFile::exists(park));
    QVERIFY(!eigen.exists());
}

/// Two windows of one number share the file: the second to be switched off overwrites it.
void TestFilterFriedhof::beideAus()
{
    Filterprobe probe(Sparte::Friedhof);
    probe.oeffnen();
    const auto stauden = probe.weiteres(Sparte::Stauden, 1);
    stauden->Form_Activate();
    stauden->show();
    Meldungsfaenger meldungen;
    schalten(*stauden);
    schalten(*probe.fenster);
    QCOMPARE(meldungen.texte, QStringList());
    schalten(*stauden);
    // The run goes on with what was read until then.
    QCOMPARE(meldungen.texte.size(), 2);
    QCOMPARE(meldungen.texte[0], u"Fehler beim Laden des Filters"_s);
    QVERIFY2(meldungen.texte[1].startsWith(u"Leider gibt es keine Pflanze"), qPrintable(meldungen.texte[1]));
    QVERIFY(stauden->FilterEin && stauden->Anzahl > 0);
    meldungen.texte.clear();
    QVERIFY(!QFile::exists(probe.ordner.pfad(u"TempFilterSt1.ffs"_s)));
    // It went with the first that read it, and no file can be read any more.
    schalten(*probe.fenster);
    QCOMPARE(meldungen.texte, QStringList{u"Fehler beim Laden des Filters"_s});
    QVERIFY(probe.fenster->FilterEin && probe.fenster->Anzahl > 0);
}

/// A perennial window that goes while it is off takes the shared file along, whoever wrote it.
void TestFilterFriedhof::staudenSchliessen()
{
    Filterprobe probe(Sparte::Friedhof);
    probe.oeffnen();
    const auto stauden = probe.weiteres(Sparte::Stauden, 1);
    stauden->Form_Activate();
    stauden->show();
    const QList<qint64> gefiltert = probe.pflanzen();
    schalten(*stauden);
    schalten(*probe.fenster);
    QVERIFY(QFile::exists(probe.ordner.pfad(u"TempFilterSt1.ffs"_s)));
    stauden->close();
    QVERIFY(!QFile::exists(probe.ordner.pfad(u"TempFilterSt1.ffs"_s)));
    Meldungsfaenger meldungen;
    schalten(*probe.fenster);
    QCOMPARE(meldungen.texte, QStringList{u"Fehler beim Laden des Filters"_s});
    QVERIFY(probe.fenster->FilterEin);
    QCOMPARE(probe.pflanzen(), gefiltert); // the run of the reset dialog
}

FLOX_TEST(tst_filterfriedhof, TestFilterFriedhof)
#include "tst_filterfriedhof.moc"
