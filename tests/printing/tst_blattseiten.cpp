#include "Blattprobe.h"

#include "printing/mdlDruck.h"
#include "store/Nebentabellen.h"
#include "store/Text.h"
#include "tests/Faelle.h"
#include "tests/Testprogramm.h"

#include <QRegularExpression>
#include <QSignalSpy>
#include <QTest>

using namespace Qt::StringLiterals;

/* How a data sheet fills its pages: breaks, cuts, and what holds for all plants on any paper. */

class TestBlattseiten : public QObject
{
    Q_OBJECT

private slots:
    void langerTitel();
    void titelUeberDieSeite();
    void langeBemerkung();
    void zweiLangeTexte();
    void zeilenzaehler_data();
    void zeilenzaehler();
    void schriftgroessen_data();
    void schriftgroessen();
    void hundertZeilen_data();
    void hundertZeilen();
    void alleGekuerztenGenannt();
    void seitenbegrenzung();
    void jedePflanze_data();
    void jedePflanze();
    void jedeSparte_data();
    void jedeSparte();
};

void TestBlattseiten::langerTitel()
{
    const QString name = u"Planta longissima var. multiflora subsp. grandiflora 'Andenken an die Landesgartenschau' (Planta-Hybriden-Gruppe)"_s;
    const QStringList zeilen = umbruch(name, 125, {.Size = 18, .Bold = true, .Italic = true});
    QVERIFY(zeilen.size() >= 3);
    Blattprobe probe(Sparte::Topf, {{u"BOT_NAME"_s, name}});
    Sollseiten erwartet;
    for (const QString &zeile : zeilen)
        erwartet.titel(zeile);
    // The foot has room for a part of it.
    const Schriftmass &klein = schriftmass({.Size = 6});
    const double platz = 200 - 65 - klein.breite(u"Ausdruck von Flox 1.2.3  -  © FH Lindenhof"_s) - 5;
    QString kurz = name;
    while (klein.breite(kurz.trimmed() + u" ...  -  Seite 1 von 1"_s) > platz)
        kurz.chop(1);
    QVERIFY(kurz.size() > 30 && kurz.size() < name.size());
    erwartet.fussname(kurz.trimmed() + u" ..."_s);
    const Druckseiten seiten = probe.blatt();
    QCOMPARE(alleZeilen(seiten), erwartet.eintrag({}, u"Erstpflanze"_s).zeilen());
    QCOMPARE(blattfehler(seiten, probe.programm), QStringList());
}

/// The large font leaves room for 33 lines on the first page.
void TestBlattseiten::titelUeberDieSeite()
{
    Blattprobe probe(Sparte::Topf, {{u"BOT_NAME"_s, reihe(1, 50).join(u'\n')}});
    const Druckseiten seiten = probe.blatt();
    QCOMPARE(seiten.seiten.size(), size_t(2));
    QStringList texte;
    for (size_t i = 0; i < 2; ++i)
        for (const Drucktext &text : koerper(seiten, i)) {
            texte += text.text;
            QCOMPARE(text.schrift, (text.text == u"Erstpflanze" ? Druckschrift() : Druckschrift{.Size = 18, .Bold = true, .Italic = true}));
        }
    QCOMPARE(texte, reihe(1, 50) + QStringList(u"Erstpflanze"_s));
    QCOMPARE(koerper(seiten, 0).size(), size_t(33));
    QCOMPARE(blattfehler(seiten, probe.programm), QStringList());
}

/// Title and name are lines 1 and 2; line 66 would be the next one.
void TestBlattseiten::langeBemerkung()
{
    Blattprobe probe(Sparte::Topf, {{u"BEMERKUNG"_s, reihe(1, 80).join(u'\n')}, {u"SORTEN"_s, u"'Alba'"_s}});
    const Druckseiten seiten = probe.blatt();
    QCOMPARE(alleZeilen(seiten), blattanfang()
                                     .eintrag(u"Bemerkung (Flox)"_s, reihe(1, 63))
                                     .seite(25)
                                     .eintrag(u"Bemerkung (Flox)"_s, reihe(64, 80))
                                     .eintrag(u"Sorten"_s, u"'Alba'"_s)
                                     .zeilen());
    QCOMPARE(blattfehler(seiten, probe.programm), QStringList());
}

/// The line that goes over to a new page is not counted there: such a page holds 66 lines.
void TestBlattseiten::zweiLangeTexte()
{
    Blattprobe probe(Sparte::Topf, {{u"BEMERKUNG"_s, reihe(1, 100).join(u'\n')}, {u"benu_bemerkung"_s, reihe(1, 100).join(u'\n')}});
    const QString erste = u"Bemerkung (Flox)"_s, zweite = u"Bemerkung (Benutzer)"_s;
    const Druckseiten seiten = probe.blatt();
    QCOMPARE(alleZeilen(seiten), blattanfang()
                                     .eintrag(erste, reihe(1, 63))
                                     .seite(25)
                                     .eintrag(erste, reihe(64, 100))
                                     .eintrag(zweite, reihe(1, 29))
                                     .seite(25)
                                     .eintrag(zweite, reihe(30, 95))
                                     .seite(25)
                                     .eintrag(zweite, reihe(96, 100))
                                     .zeilen());
    QCOMPARE(blattfehler(seiten, probe.programm), QStringList());
}

void TestBlattseiten::zeilenzaehler_data()
{
    QTest::addColumn<int>("vorher"); // lines on the page so far
    QTest::addColumn<int>("zeilen"); // of the next entry
    QTest::addColumn<int>("hier");   // how many of them stand on the first page
    QTest::newRow("one line at 63") << 63 << 1 << 1;
    QTest::newRow("one line at 64") << 64 << 1 << 1;
    QTest::newRow("one line at 65") << 65 << 1 << 0;
    QTest::newRow("two lines at 63") << 63 << 2 << 2;
    QTest::newRow("two lines at 64") << 64 << 2 << 1;
    QTest::newRow("two lines at 65") << 65 << 2 << 0;
    QTest::newRow("five lines at 62") << 62 << 5 << 3;
}

void TestBlattseiten::zeilenzaehler()
{
    QFETCH(const int, vorher);
    QFETCH(const int, zeilen);
    QFETCH(const int, hier);
    Blattprobe probe(Sparte::Topf, {{u"BEMERKUNG"_s, reihe(1, vorher - 2).join(u'\n')}, {u"SORTEN"_s, reihe(1, zeilen).join(u'\n')}});
    Sollseiten erwartet = blattanfang().eintrag(u"Bemerkung (Flox)"_s, reihe(1, vorher - 2));
    if (hier > 0)
        erwartet.eintrag(u"Sorten"_s, reihe(1, hier));
    if (hier < zeilen)
        erwartet.seite(25).eintrag(u"Sorten"_s, reihe(hier + 1, zeilen));
    const Druckseiten seiten = probe.blatt();
    QCOMPARE(alleZeilen(seiten), erwartet.zeilen());
    QCOMPARE(blattfehler(seiten, probe.programm), QStringList());
}

void TestBlattseiten::schriftgroessen_data()
{
    QTest::addColumn<int>("groesse");
    for (const int groesse : {6, 8, 9, 11, 14})
        QTest::addRow("%d", groesse) << groesse;
}

/// Lines are counted, not measured: a smaller font breaks where the usual one does. A larger one breaks before the foot.
void TestBlattseiten::schriftgroessen()
{
    QFETCH(const int, groesse);
    Blattprobe probe(Sparte::Topf, {{u"BEMERKUNG"_s, reihe(1, 100).join(u'\n')}});
    probe.programm.SchriftGroesse = groesse;
    const Druckseiten seiten = probe.blatt();
    QCOMPARE(blattfehler(seiten, probe.programm), QStringList());
    QStringList zeilen;
    for (size_t i = 0; i < seiten.seiten.size(); ++i)
        for (const Drucktext &text : koerper(seiten, i))
            if (text.text.startsWith(u"Zeile "))
                zeilen += text.text;
    QCOMPARE(zeilen, reihe(1, 100));
    if (groesse <= 9)
        QCOMPARE(koerper(seiten, 0).size(), size_t(3 + 63)); // title, name and label
    else
        QVERIFY(koerper(seiten, 0).size() < size_t(3 + 63));
}

void TestBlattseiten::hundertZeilen_data()
{
    QTest::addColumn<Sparte>("sparte");
    QTest::addColumn<QString>("spalte");
    QTest::addColumn<int>("zeilen");
    QTest::addColumn<QString>("gekuerzt"); // null: nothing is cut
    // A text without a label is named by its beginning.
    const QString anfang = u"Zeile 1 Zeile 2 Zeile 3 Zeile ..."_s;
    for (const int zeilen : {99, 100, 101, 400}) {
        const bool lang = zeilen > 100;
        QTest::addRow("remark %d", zeilen) << Sparte::Topf << u"BEMERKUNG"_s << zeilen << (lang ? u"Bemerkung (Flox)"_s : QString());
        QTest::addRow("name %d", zeilen) << Sparte::Topf << u"DTNAM"_s << zeilen << (lang ? anfang : QString());
        QTest::addRow("title %d", zeilen) << Sparte::Apfel << u"BOT_NAME"_s << zeilen << (lang ? anfang : QString());
        QTest::addRow("apple %d", zeilen) << Sparte::Apfel << u"besonderht"_s << zeilen << (lang ? u"Besonderheiten"_s : QString());
    }
}

void TestBlattseiten::hundertZeilen()
{
    QFETCH(const Sparte, sparte);
    QFETCH(const QString, spalte);
    QFETCH(const int, zeilen);
    QFETCH(const QString, gekuerzt);
    Blattprobe probe(sparte, {{spalte, reihe(1, zeilen).join(u'\n')}});
    probe.setzen({{u"benu_bemerkung"_s, u"danach"_s}});
    Printer drucker(blattA4());
    Druck druck(probe.programm, probe.auftrag, drucker);
    QVERIFY(druck.DruckAktuellePflanze());
    const Druckseiten seiten = drucker.EndDoc();
    QCOMPARE(druck.gekuerzt(), gekuerzt.isNull() ? QStringList() : QStringList{gekuerzt});
    QStringList erwartet = reihe(1, std::min(zeilen, 100)), gedruckt;
    if (zeilen > 100)
        erwartet.last() += u" ..."_s;
    bool danach = false;
    for (size_t i = 0; i < seiten.seiten.size(); ++i)
        for (const Drucktext &text : koerper(seiten, i)) {
            danach = danach || text.text == u"danach";
            if (text.text.startsWith(u"Zeile "))
                gedruckt += text.text;
        }
    QCOMPARE(gedruckt, erwartet);
    QVERIFY(danach); // the printout goes on
    QCOMPARE(blattfehler(seiten, probe.programm), QStringList());
}

void TestBlattseiten::alleGekuerztenGenannt()
{
    const QString lang = reihe(1, 150).join(u'\n');
    Blattprobe probe(Sparte::Topf, {{u"SCHADEN"_s, lang}, {u"SORTEN"_s, lang}});
    Printer drucker(blattA4());
    Druck druck(probe.programm, probe.auftrag, drucker);
    QVERIFY(druck.DruckAktuellePflanze());
    QCOMPARE(druck.gekuerzt(), (QStringList{u"Krankheiten/Schädlinge"_s, u"Sorten"_s}));
}

/// Fewer pages are the first ones of all.
void TestBlattseiten::seitenbegrenzung()
{
    const QString lang = reihe(1, 100).join(u'\n');
    Blattprobe probe(Sparte::Topf, {{u"BEMERKUNG"_s, lang}, {u"SORTEN"_s, lang}, {u"benu_bemerkung"_s, lang}});
    const QList<QStringList> alle = alleZeilen(probe.blatt());
    QCOMPARE(alle.size(), 5);
    for (const qsizetype hoechstens : {1, 2, 4, 5, 9}) {
        Printer drucker(blattA4(), size_t(hoechstens));
        QVERIFY(Druck(probe.programm, probe.auftrag, drucker).DruckAktuellePflanze());
        const QList<QStringList> seiten = alleZeilen(drucker.EndDoc());
        if (hoechstens >= 5) {
            QCOMPARE(seiten, alle);
            continue;
        }
        // Only the number of pages is not known.
        QCOMPARE(seiten.size(), hoechstens);
        for (qsizetype i = 0; i < hoechstens; ++i) {
            QCOMPARE(seiten[i].first(seiten[i].size() - 1), alle[i].first(alle[i].size() - 1));
            QVERIFY2(seiten[i].last().endsWith(u"  -  Seite %1"_s.arg(i + 1)), qPrintable(seiten[i].last()));
        }
    }
}

void TestBlattseiten::jedePflanze_data()
{
    QTest::addColumn<Sparte>("sparte");
    QTest::addColumn<QPageLayout>("blatt");
    QTest::addColumn<int>("erste"); // 0-based
    const QPageSize a4(QPageSize::A4);
    for (const Sparte sparte : spartenEinerHerkunft()) {
        const char *name = eintrag(sparte).filter;
        QTest::addRow("%s A4", name) << sparte << blattA4() << 0;
        QTest::addRow("%s margins", name) << sparte << QPageLayout(a4, QPageLayout::Portrait, QMarginsF(6, 6, 6, 6), QPageLayout::Millimeter) << 1;
        QTest::addRow("%s landscape", name) << sparte << QPageLayout(a4, QPageLayout::Landscape, {}, QPageLayout::Millimeter) << 2;
    }
}

/// What the letters, marks and numbers of single columns say.
static QString kodierte(const QString &spalte, const QString &wert)
{
    if (spalte == u"pflanzart") {
        const qsizetype stelle = u"12BHSSZGFW"_s.indexOf(wert.left(1));
        return WL_Pflanzenart.wort(wert.isEmpty() ? 0 : wert == u"Str" ? 6 : int(stelle) + 1).toString();
    }
    if (spalte != u"urteil")
        return (spalte == u"grobeint" ? WL_GeGrobeinteilung : WL_Geselligkeit).wort(wert.toInt()).toString();
    QStringList worte;
    const qsizetype sterne = std::min<qsizetype>(wert.count(u'*'), 3);
    if (sterne > 0)
        worte += QStringList{u"wertvolle Sorte"_s, u"sehr wertvolle Sorte"_s, u"vorzügliche Sorte"_s}[sterne - 1];
    if (wert.contains(u'L'))
        worte += u"Staude für den Pflanzenliebhaber"_s;
    if (wert.contains(u'S'))
        worte += u"wertvolle Schnittstaude"_s;
    if (wert.contains(u"w!", Qt::CaseInsensitive))
        worte += u"sehr wertvolle Wildstaude"_s;
    else if (wert.contains(u'w', Qt::CaseInsensitive))
        worte += u"wertvolle Wildstaude"_s;
    return worte.join(u", "_s);
}

static const Druckliste &druckliste(Sparte sparte)
{
    switch (sparte) {
    case Sparte::Topf: return DL_Topf;
    case Sparte::Stauden: return DL_Stauden;
    case Sparte::Gehoelze: return DL_Gehoelze;
    case Sparte::Apfel: return DL_Apfel;
    case Sparte::Obst: return DL_Obst;
    default: qFatal("There is no sheet for Sparte %d.", int(sparte));
    }
}

/// Text of a stored value, decoded here once more; empty where nothing is printed.
static QString worte(Druckprobe &probe, const Spalte &spalte, const QString &wert)
{
    QStringList gefunden;
    const auto wort = [&](int p) {
        return spalte.art == Art::Eigen ? probe.programm.BenutzerNamen[size_t(probe.auftrag.sparte)][size_t(p - 1)]
                                        : (spalte.art == Art::Monate ? WL_Monate : *spalte.liste).wort(p).toString();
    };
    switch (spalte.art) {
    case Art::Nummer: return spalte.liste->wort(wert.toInt()).toString();
    case Art::Code: return kodierte(QLatin1String(spalte.name), wert);
    case Art::Flags:
        if (spalte.schreibweise == Schreibweise::ZahlOderFlags && wert.size() == 1)
            return spalte.liste->wort(wert.toInt()).toString();
        [[fallthrough]];
    case Art::Monate:
    case Art::Eigen:
    case Art::Literatur:
        for (int p = 1; p <= wert.size(); ++p)
            if (wert[p - 1] == u'1')
                gefunden += wort(p);
        return gefunden.join(u", "_s);
    case Art::Wahrheit: return wert == u"True" ? spalte.satz.toString() : QString();
    case Art::Zahl: return zahlZeigen(wert);
    case Art::Familie: return familienname(probe.auftrag.arbeit, wert);
    case Art::Quelle:
        return u"Botanischer Name laut '%1'"_s.arg(nomenklaturwerk(wert, probe.auftrag.sparte == Sparte::Gehoelze ? u"zsngc" : u"zsnc"));
    case Art::Bewertung:
    case Art::Schluessel: return {};
    default: return wert;
    }
}

/// All that a plant's sheet has to say, in the order of print, without blanks.
static QString alles(Druckprobe &probe)
{
    const Sparte sparte = probe.auftrag.sparte;
    const Tabelle *tabelle = schema::haupttabelle(eintrag(sparte).haupttabelle);
    QString text;
    const auto feld = [&](const QString &name) { return probe.pflanzen->Fields(name).Text(); };
    for (const short code : druckliste(sparte).folge) {
        const Spalte &spalte = tabelle->spalten[size_t(code)];
        const QString name = QLatin1String(spalte.name), inhalt = worte(probe, spalte, feld(name));
        if (inhalt.isEmpty())
            continue;
        const bool grenze = name.contains(u"MIN") || name.contains(u"MAX");
        if (spalte.art == Art::Zahl && grenze) {
            const bool unten = name.contains(u"MIN");
            const QString andere = zahlZeigen(feld(QString(name).replace(unten ? u"MIN"_s : u"MAX"_s, unten ? u"MAX"_s : u"MIN"_s)));
            const QString label = name.startsWith(u"BL")      ? u"Blütenhöhe"_s
                                  : name.contains(u"HOEHE")   ? u"Höhe"_s
                                  : name.startsWith(u"LICHT") ? u"Beleuchtungsstärke"_s
                                                              : u"Temperatur"_s;
            if (unten)
                text += label + (andere.isEmpty() ? u"mind."_s + inhalt : inhalt + u'-' + andere) + spalte.einheit.toString();
            else if (andere.isEmpty())
                text += label + u"max."_s + inhalt + spalte.einheit.toString();
        } else if (!eintrag(sparte).synonymDeutsch.isEmpty() && name == u"DTNAM") {
            const auto synonym = [&](bool deutsch) {
                return ::synonyme(probe.auftrag.arbeit, eintrag(sparte), probe.pflanzen->Schluessel(), deutsch).join(u',');
            };
            const QString deutsche = synonym(true), botanische = synonym(false);
            text += spalte.druckname.toString() + inhalt + (deutsche.isEmpty() ? QString() : u',' + deutsche)
                    + (botanische.isEmpty() ? QString() : u"Synonyme"_s + botanische);
        } else {
            text += (spalte.art == Art::Quelle || name == u"BOT_NAME" ? QString() : spalte.druckname.toString()) + inhalt
                    + (spalte.art == Art::Zahl ? spalte.einheit.toString() : QString());
        }
    }
    return text;
}

static QString ohneLeerzeichen(QString text)
{
    return text.remove(QRegularExpression(u"\\s"_s)).replace(u"m²"_s, u"m2"_s);
}

/// Every shipped plant, on one of the three sheets: the pages are sound, and all fields are there, in order and whole.
void TestBlattseiten::jedePflanze()
{
    QFETCH(const Sparte, sparte);
    QFETCH(const QPageLayout, blatt);
    QFETCH(const int, erste);
    Druckprobe probe(sparte);
    int stelle = 0, gedruckt = 0;
    for (; !probe.pflanzen->Eof(); probe.pflanzen->MoveNext(), ++stelle) {
        if (!gruendlich() && stelle % 3 != erste)
            continue;
        ++gedruckt;
        const QString name = probe.pflanzen->Fields(u"BOT_NAME").Text();
        const Druckseiten seiten = probe.blatt(blatt);
        QVERIFY2(blattfehler(seiten, probe.programm).isEmpty(), qPrintable(name + u": "_s + blattfehler(seiten, probe.programm).join(u"; "_s)));
        QString text, label;
        for (size_t i = 0; i < seiten.seiten.size(); ++i) {
            for (const Drucktext &teil : koerper(seiten, i)) {
                const bool istLabel = teil.schrift.Bold && !teil.schrift.Italic;
                if (!istLabel || teil.text != label) // a label repeated on a new page
                    text += teil.text;
                if (istLabel)
                    label = teil.text;
            }
        }
        QCOMPARE(ohneLeerzeichen(text), ohneLeerzeichen(alles(probe)));
    }
    QCOMPARE(stelle, probe.pflanzen->RecordCount());
    QVERIFY(gedruckt > 30);
}

void TestBlattseiten::jedeSparte_data()
{
    QTest::addColumn<Sparte>("sparte");
    for (const SpartenEintrag &eintrag : alleSparten())
        QTest::addRow("%d", int(eintrag.sparte)) << eintrag.sparte;
}

/// Without a description nothing is printed, and the caller is told.
void TestBlattseiten::jedeSparte()
{
    QFETCH(const Sparte, sparte);
    const bool beschrieben = druckbeschreibung(sparte) != nullptr;
    Programmordner ordner;
    Programm programm = ordner.programm();
    Recordset pflanzen(ordner.db(), u"SELECT * From %1 WHERE BOT_NAME LIKE '*' ORDER BY BOT_NAME"_s.arg(eintrag(sparte).haupttabelle));
    Druckauftrag auftrag{};
    auftrag.sparte = sparte;
    auftrag.pflanzen = &pflanzen;
    auftrag.arbeit = ordner.db();
    for (const auto drucken : {&Druck::DruckAktuellePflanze, &Druck::DruckGefilterteListe}) {
        Printer drucker(blattA4());
        Druck druck(programm, auftrag, drucker);
        QCOMPARE((druck.*drucken)(), beschrieben);
        const Druckseiten seiten = drucker.EndDoc();
        QCOMPARE(seiten.seiten.size() == 1 && seiten.seiten[0].texte.empty() && seiten.seiten[0].linien.empty(), !beschrieben);
    }
}

FLOX_TEST(tst_blattseiten, TestBlattseiten)
#include "tst_blattseiten.moc"
