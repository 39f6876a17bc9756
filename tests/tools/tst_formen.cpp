#include "tests/Hilfen.h"
#include "tools/tafeln/Farben.h"
#include "tools/tafeln/Pfad.h"
#include "tools/tafeln/Tafel.h"
#include "tools/tafeln/Tafelinhalt.h"
#include "tests/Testprogramm.h"

#include <QTest>

using namespace Qt::StringLiterals;

/* Forms as data: what is read, what is refused, which row counts, and what the plates make of it. */
class TestFormen : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { db_ = ordner_.db(); }
    void pfad();
    void falscherPfad_data();
    void falscherPfad();
    void abgelehnt_data();
    void abgelehnt();
    void vorrang();
    void merkmalwort_data();
    void merkmalwort();
    void merkmaleMitLinie();
    void hoehen_data();
    void hoehen();
    void eigeneZeichnung();
    void gebogenesBlatt();
    void blueteUndLaub();
    void haftorgane();
    void aufriss();
    void jedePflanzeAnders_data();
    void jedePflanzeAnders();

private:
    static const Formen &geliefert()
    {
        static const Formen formen = Formen::laden(QStringLiteral(FLOX_FORMEN));
        return formen;
    }
    static const QHash<QString, QStringList> &merkmale()
    {
        static const QHash<QString, QStringList> alle = merkmaleLesen(QStringLiteral(FLOX_QUELLEN));
        return alle;
    }
    /// Asks of a plant as the shipped forms describe it, or of all where no name is given; fails where the plant is missing.
    template<typename Frage>
    static void mitBrief(Datenbank &db, const Sammlung &sammlung, const QString &name, const Frage &frage)
    {
        for (const Datensatz &pflanze : Datensatz::alle(db, sammlung.tabelle))
            if (name.isEmpty() || pflanze.name() == name) {
                frage(Steckbrief(pflanze, sammlung, geliefert(), merkmale().value(sammlung.tabelle.toString() + u' ' + pflanze.text(u"ARTNR"))));
                if (!name.isEmpty())
                    return;
            }
        QVERIFY2(name.isEmpty(), qPrintable(name));
    }
    static QByteArray grundformen()
    {
        return "%rec: Blattform\n\nForm: elliptisch\nTitel: t\nFlaeche: blatt M0 0L10 -50L0 -100Z\n\nForm: a\nTitel: t\nFlaeche: blatt M0 0L20 -50L0 "
               "-100Z\n\n"
               "Form: b\nTitel: t\nFlaeche: blatt M0 0L30 -50L0 -100Z\n\nForm: c\nTitel: t\nFlaeche: blatt M0 0L40 -50L0 -100Z\n\n"
               "%rec: Bluetenform\n\nForm: fuenfzaehlig-rund\nTitel: t\nFlaeche: bluete M0 0L40 -50L0 -100Z\n\n";
    }
    static Formen formen(const QByteArray &mehr) { return Formen::lesen({{u"f.rec"_s, grundformen() + mehr}}); }
    Programmordner ordner_;
    std::shared_ptr<Datenbank> db_;
};

void TestFormen::pfad()
{
    const auto p = pfadAus(u"M10 20h10v-5l-5,5c1 0 2-1 3-2s2 2 4 0q1 1 2 0t2 0a5 5 0 0 1 10 0z"_s);
    QVERIFY(p);
    QCOMPARE(QPointF(p->elementAt(1)), QPointF(20, 20));
    QCOMPARE(QPointF(p->elementAt(2)), QPointF(20, 15));
    QCOMPARE(p->currentPosition(), QPointF(10, 20)); // closed
    const auto kreis = pfadAus(u"M-5 0A5 5 0 1 1 5 0A5 5 0 1 1 -5 0Z"_s);
    QVERIFY(kreis);
    const QRectF r = kreis->boundingRect();
    QVERIFY(std::abs(r.width() - 10) < 0.05 && std::abs(r.height() - 10) < 0.05);
}

void TestFormen::falscherPfad_data()
{
    QTest::addColumn<QString>("text");
    for (const char *text : {"", "10 20", "L1 1", "M1", "M1 1L2", "M1 1X3 3", "M1 1A5 5 0 2 0 1 1", "M1 1Z5"})
        QTest::newRow(text) << QString::fromUtf8(text);
}

void TestFormen::falscherPfad()
{
    QFETCH(QString, text);
    QVERIFY(!pfadAus(text));
}

void TestFormen::abgelehnt_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QString>("meldung");
    const int vorher = int(grundformen().count('\n'));
    const auto zeile = [&](const char *name, const char *text, int nummer, const QString &meldung) {
        QTest::newRow(name) << QByteArray(text) << u"f.rec:%1: "_s.arg(vorher + nummer) + meldung;
    };
    zeile("Rolle", "%rec: Blattform\n\nForm: x\nTitel: t\nFlaeche: blat M0 0L1 1Z\n", 5, u"unbekannte Rolle"_s);
    zeile("Pfad", "%rec: Blattform\n\nForm: x\nTitel: t\nFlaeche: blatt M0 0L1\n", 5, u"der Pfad"_s);
    zeile("Teil", "%rec: Blattform\n\nForm: x\nTitel: t\nTeil: nirgends 0 0 1 0\n", 3, u"x enthält"_s);
    zeile("doppelt", "%rec: Blattform\n\nForm: a\nTitel: t\nFlaeche: blatt M0 0L1 1Z\n", 3, u"Form a steht doppelt"_s);
    zeile("leer", "%rec: Blattform\n\nForm: x\nTitel: t\n", 3, u"eine Form hat"_s);
    zeile("Satzart", "%rec: Wurzelform\n\nForm: x\n", 3, u"unbekannte Satzart"_s);
    zeile("Feld", "%rec: Pflanzenform\n\nPflanze: Rosa\nDuft: stark\n", 4, u"unbekanntes Feld"_s);
    zeile("Wuchs", "%rec: Pflanzenform\n\nPflanze: Rosa\nWuchs: quer\n", 4, u"Wuchs kennt"_s);
    zeile("Blatt", "%rec: Pflanzenform\n\nPflanze: Rosa\nBlatt: rosenblatt\n", 4, u"Blatt kennt"_s);
    zeile("Farbe", "%rec: Pflanzenform\n\nPflanze: Rosa\nBluetenfarbe: rosig\n", 4, u"Bluetenfarbe kennt"_s);
    zeile("Zeichnung", "%rec: Pflanzenform\n\nPflanze: Rosa\nZeichnung: rand\n", 4, u"Zeichnung kennt"_s);
    zeile("Zahl", "%rec: Pflanzenform\n\nPflanze: Rosa\nBreite: breit\n", 4, u"Breite kennt"_s);
    zeile("ohne Schlüssel", "%rec: Pflanzenform\n\nWuchs: baum\n", 3, u"weder Pflanze noch Wort noch Familie"_s);
}

void TestFormen::abgelehnt()
{
    QFETCH(QByteArray, text);
    QFETCH(QString, meldung);
    try {
        formen(text);
        QFAIL("Nothing was refused.");
    } catch (const Quellfehler &fehler) {
        QVERIFY2(fehler.text.startsWith(meldung), qPrintable(fehler.text));
    }
}

/// Name over species over genus over words over family, field by field.
void TestFormen::vorrang()
{
    const auto brief = [&](const QByteArray &zeilen, auto &&pruefe) {
        const Formen f = formen("%rec: Pflanzenform\n\n" + zeilen);
        for (const Datensatz &pflanze : Datensatz::alle(*db_, u"Topfpfl"))
            if (pflanze.name() == u"Cyclamen persicum")
                return pruefe(Steckbrief(pflanze, sammlungen()[0], f));
        QFAIL("The plant is missing.");
    };
    const QByteArray familie = "Familie: Primulaceae\nBlatt: a\nWuchs: horst\nBlattlaenge: 7\n\n",
                     gattung = "Pflanze: Cyclamen\nBlatt: b\nWuchs: knolle\n\n", art = "Pflanze: Cyclamen persicum\nBlatt: c\n\n",
                     wort = "Wort: PFLANZTYP Blütenpflanze\nBlattlaenge: 9\nBlatt: a\n\n";
    brief("", [](const Steckbrief &s) { QCOMPARE(s.blatt->name, u"elliptisch"_s); });
    brief(familie, [](const Steckbrief &s) { QCOMPARE(s.blatt->name, u"a"_s); });
    brief(art + gattung + familie + wort, [](const Steckbrief &s) {
        QCOMPARE(s.blatt->name, u"c"_s);
        QCOMPARE(s.wuchs, u"knolle"_s);
        QCOMPARE(s.blattlaenge, 9.0);
    });
    brief(gattung + familie, [](const Steckbrief &s) {
        QCOMPARE(s.blatt->name, u"b"_s);
        QCOMPARE(s.blattlaenge, 7.0);
    });
    brief("Pflanze: Cyclam\nBlatt: b\n\n", [](const Steckbrief &s) { QCOMPARE(s.blatt->name, u"elliptisch"_s); });
}

void TestFormen::merkmalwort_data()
{
    QTest::addColumn<int>("organ"); // -1: the whole plant
    QTest::addColumn<Pflanzenart>("art");
    const auto zeile = [](const char *merkmal, int organ, Pflanzenart art = Pflanzenart::Kraut) { QTest::newRow(merkmal) << organ << art; };
    const auto von = [](Organ o) { return int(o); };
    constexpr auto holz = Pflanzenart::Gehoelz, sorte = Pflanzenart::Sorte;
    zeile("Blätter herzförmig", von(Organ::Blatt));
    zeile("Kelch der Blüte behaart, Blatt kahl", von(Organ::Bluete));
    zeile("riecht stark", -1);
    // What only sounds like a leaf.
    for (const char *merkmal : {"Kronblätter am Rand gezähnt", "Hüllblätter zurückgeschlagen", "Kelchblätter bleibend", "Blütenblätter vier",
                                "Staubblätter lang", "Hängeblätter mit Bart", "Domblätter aufrecht", "Spreublätter stechend"})
        zeile(merkmal, von(Organ::Bluete));
    zeile("Tragblätter violett", von(Organ::Stand));
    zeile("Schaft blattlos", von(Organ::Stand));
    zeile("Austrieb kupferrot", von(Organ::Blatt), holz);
    zeile("stängelumfassende Blätter", von(Organ::Blatt));
    zeile("Stängel vierkantig", von(Organ::Stand));
    zeile("Stängel bereift", von(Organ::Zweig), holz);
    zeile("Stamm oben fuchsrot abblätternd", von(Organ::Rinde), holz);
    zeile("Stamm grau, Blatt rund", von(Organ::Rinde), holz);
    zeile("Borke in Platten", von(Organ::Rinde), holz);
    zeile("Wuchs niederliegend, mehrstämmig", -1, holz);
    // Parts of flowers and fruits by their own names.
    for (const char *merkmal : {"Staubfäden rot", "Narbe dreiteilig", "Griffel lang", "Unterlippe breit", "Trompete lang", "Schlund gelb",
                                "Sporn gebogen", "Köpfchen filzig", "Nebenkrone rot gerandet", "Blüht ab Mai", "Duft stark"})
        zeile(merkmal, von(Organ::Bluete));
    for (const char *merkmal : {"Beeren rot", "Kapsel mit drei Löchern", "Hagebutten flachkugelig", "Balgfrüchte sternförmig", "Nüsschen geflügelt",
                                "Eicheln gestielt", "Walnuss dünnschalig"})
        zeile(merkmal, von(Organ::Frucht));
    zeile("Kolben gelb", von(Organ::Stand));
    zeile("Triebe winden im Uhrzeigersinn", von(Organ::Haftorgan), holz);
    zeile("Triebe kantig", von(Organ::Zweig), holz);
    // The crown is the tree's, or the flower's; of a variety of fruit, calyx and stalk are the fruit's.
    zeile("Krone zweilippig", von(Organ::Bluete));
    zeile("Krone breit eiförmig", -1, holz);
    zeile("Kelch offen, in flacher Mulde", von(Organ::Bluete));
    zeile("Kelch offen, in flacher Mulde (Sorte)", von(Organ::Frucht), sorte);
    zeile("Stiel lang, gebogen", von(Organ::Frucht), sorte);
    zeile("rundlich herzförmig, schwarzrot", von(Organ::Frucht), sorte);
    zeile("Schattenseite rötlich", von(Organ::Frucht), sorte);
    zeile("Krone rund und dicht", -1, sorte);
    zeile("reif schon Ende Juli", -1, sorte);
    zeile("Blüte groß, Krone breit", von(Organ::Bluete), sorte);
}

/// A mark points at the part that it speaks of.
void TestFormen::merkmalwort()
{
    QFETCH(int, organ);
    QFETCH(Pflanzenart, art);
    const std::vector<Organ> alle{Organ::Bluete, Organ::Stand,     Organ::Frucht, Organ::Schnitt,
                                  Organ::Blatt,  Organ::Haftorgan, Organ::Zweig,  Organ::Rinde};
    const auto gefunden = organVon(QString::fromUtf8(QTest::currentDataTag()), alle, art);
    QCOMPARE(gefunden ? int(*gefunden) : -1, organ);
    if (organ >= 0) // among parts of which it does not speak it finds none
        QVERIFY(organVon(QString::fromUtf8(QTest::currentDataTag()), {Organ::Unterseite}, art) == std::nullopt);
    // The stem is the stalk of the inflorescence, but never that of the leaf beside which its mark may stand.
    QVERIFY(nenntStiel(u"Stängel kantig"_s, Organ::Stand) && !nenntStiel(u"Stängel kantig"_s, Organ::Blatt));
    QVERIFY(nenntStiel(u"Stiel lang"_s, Organ::Blatt));
}

/// Of all marks of all plants few stand without a line: those on a part that is not drawn, and those on the whole plant.
void TestFormen::merkmaleMitLinie()
{
    const std::vector<Organ> jedes{Organ::Bluete,     Organ::Stand,  Organ::Frucht,    Organ::Schnitt, Organ::Blatt,
                                   Organ::Unterseite, Organ::Blatt2, Organ::Haftorgan, Organ::Zweig,   Organ::Rinde};
    int gesamt = 0, ganzePflanze = 0;
    QStringList ungezeichnet;
    for (const Sammlung &sammlung : sammlungen())
        mitBrief(*db_, sammlung, {}, [&](const Steckbrief &s) {
            for (const QString &m : s.merkmale) {
                ++gesamt;
                if (!organVon(m, jedes, pflanzenart(s)))
                    ++ganzePflanze;
                else if (!organVon(m, organe(s), pflanzenart(s)))
                    ungezeichnet += s.pflanze.name() + u": "_s + m;
            }
        });
    const QString zahlen =
        u"%1 marks, %2 on the whole plant, %3 on parts that are not drawn\n"_s.arg(gesamt).arg(ganzePflanze).arg(ungezeichnet.size());
    QVERIFY2(gesamt > 4000, qPrintable(zahlen));
    QVERIFY2(ganzePflanze < 700, qPrintable(zahlen));
    QVERIFY2(ungezeichnet.size() < 120, qPrintable(zahlen + ungezeichnet.join(u'\n')));
}

void TestFormen::hoehen_data()
{
    QTest::addColumn<double>("von");
    QTest::addColumn<double>("bis");
    QTest::newRow("Syringa vulgaris") << 3.0 << 7.0;
    QTest::newRow("Sambucus nigra") << 3.0 << 8.0;
    QTest::newRow("Quercus robur") << 20.0 << 40.0;
    QTest::newRow("Cornus mas") << 3.0 << 8.0;
    QTest::newRow("Wisteria floribunda") << 6.5 << 8.0;
}

/// A shrub that may become a small tree is drawn as the shrub that it is, in whatever order its size groups stand.
void TestFormen::hoehen()
{
    QFETCH(double, von);
    QFETCH(double, bis);
    mitBrief(*db_, sammlungen()[2], QString::fromUtf8(QTest::currentDataTag()),
             [&](const Steckbrief &s) { QVERIFY2(s.hoehe >= von && s.hoehe <= bis, qPrintable(QString::number(s.hoehe))); });
}

/// A marking runs along the veins or the zone that a form has of its own, and only there; other forms get the general one.
void TestFormen::eigeneZeichnung()
{
    const Formen f = formen("%rec: Blattform\n\nForm: eigen\nTitel: t\nFlaeche: blatt M0 0L-60 0L-60 -100L60 -100L60 0Z\n"
                            "Flaeche: blatt2 M-10 -60L-10 -70L10 -70L10 -60Z\nLinie: ader 4 M30 0L30 -100\n\n"
                            "Form: ohne\nTitel: t\nFlaeche: blatt M0 0L-60 0L-60 -100L60 -100L60 0Z\n");
    const auto rot = [&](const QString &form, const QString &wo, QPoint ort) {
        Anstrich a;
        a.farben.fill(QColor(40, 140, 60));
        a.zeichnung.push_back({wo, QColor(230, 20, 20)});
        QImage bild(260, 260, QImage::Format_ARGB32_Premultiplied);
        bild.fill(Qt::white);
        QPainter p(&bild);
        Motiv(f, *f.form(Formgruppe::Blatt, form)).malen(p, a, QTransform::fromTranslate(130, 230).scale(2, 2));
        p.end();
        const QColor farbe = bild.pixelColor(QPoint(130, 230) + ort * 2);
        return farbe.red() > 150 && farbe.green() < 110;
    };
    QVERIFY(rot(u"eigen"_s, u"ader"_s, {30, -50}));
    QVERIFY(!rot(u"eigen"_s, u"ader"_s, {0, -50}));
    QVERIFY(rot(u"ohne"_s, u"ader"_s, {0, -50}));
    QVERIFY(rot(u"eigen"_s, u"zone"_s, {0, -65}));
    QVERIFY(!rot(u"eigen"_s, u"zone"_s, {-33, -50}));
    QVERIFY(rot(u"ohne"_s, u"zone"_s, {-33, -50}));
}

/// Nothing of a bent blade is painted outside its outline.
void TestFormen::gebogenesBlatt()
{
    const Motiv blatt =
        Motiv(geliefert(), *geliefert().form(Formgruppe::Blatt, u"schwertblatt"_s)).gebogen(Kurve::bogen({40, 360}, 70, 380, 110), 380);
    QImage bild(400, 400, QImage::Format_ARGB32_Premultiplied);
    bild.fill(Qt::white);
    Anstrich a;
    a.farben.fill(QColor(40, 140, 60));
    QPainter p(&bild);
    blatt.malen(p, a, {});
    const auto gemalt = [&] {
        qsizetype anzahl = 0;
        for (int i = 0; i < bild.width() * bild.height(); ++i)
            anzahl += bild.pixel(i % bild.width(), i / bild.width()) != qRgb(255, 255, 255);
        return anzahl;
    };
    QVERIFY(gemalt() > 5000);
    p.fillPath(blatt.flaeche(Rolle::Blatt), Qt::white);
    p.strokePath(blatt.flaeche(Rolle::Blatt), QPen(Qt::white, 6)); // its outline
    p.end();
    QCOMPARE(gemalt(), 0);
}

/// What flowers before its leaves does so on the bare shape; leaves stand below flowers on scapes.
void TestFormen::blueteUndLaub()
{
    const auto brief = [&](int sammlung, const QString &name, auto &&pruefe) { mitBrief(*db_, sammlungen()[size_t(sammlung)], name, pruefe); };
    brief(2, u"Corylus avellana"_s, [](const Steckbrief &s) {
        QVERIFY(s.vorLaub && s.zeigtBlueten());
        QVERIFY(gesamttitel(s).contains(u"vor dem Laub"));
    });
    brief(2, u"Tilia cordata"_s, [](const Steckbrief &s) { QVERIFY(!s.vorLaub && s.winterkahl); });
    brief(2, u"Hippophae rhamnoides"_s, [](const Steckbrief &s) { QVERIFY(s.zeigtFruechte() && !s.zeigtBlueten()); });
    brief(2, u"Larix decidua"_s, [](const Steckbrief &s) { QVERIFY(s.winterkahl); });
    brief(0, u"Agapanthus praecox"_s, [](const Steckbrief &s) { QVERIFY2(s.hoehe < 0.75 * s.bluetenhoehe, qPrintable(QString::number(s.hoehe))); });
}

/// What a climber holds on with is drawn and named, and does not push out the leaf of its flowering shoots.
void TestFormen::haftorgane()
{
    const auto inhalt = [&](const QByteArray &felder) {
        const Formen f = formen("%rec: Pflanzenform\n\nPflanze: Hedera\nBlatt2: b\nFrucht: keine\n" + felder
                                + "\n\n%rec: Dingform\n\nForm: haftwurzeln\nTitel: Haftwurzeln\nLinie: stiel 4 M0 0V-100\n\n"
                                  "Form: linkswindend\nTitel: windender Trieb\nLinie: stiel 4 M0 0V-100\n");
        for (const Datensatz &pflanze : Datensatz::alle(*db_, u"Gehoelze"))
            if (pflanze.name() == u"Hedera helix") {
                const Steckbrief s(pflanze, sammlungen()[2], f);
                const std::vector<Organ> teile = organe(s);
                const bool gezeichnet = std::ranges::find(teile, Organ::Haftorgan) != teile.end();
                return std::tuple(gezeichnet, std::ranges::find(teile, Organ::Blatt2) != teile.end(),
                                  gezeichnet ? organtitel(s, Organ::Haftorgan) : QString());
            }
        return std::tuple(false, false, u"missing"_s);
    };
    QCOMPARE(inhalt("Haftorgan: haftwurzeln"), std::tuple(true, true, u"so klettert sie: Haftwurzeln"_s));
    QCOMPARE(inhalt("Haftorgan: linkswindend"), std::tuple(true, true, u"so klettert sie: windender Trieb"_s));
    QCOMPARE(inhalt("Haftorgan: spreizend"), std::tuple(false, true, QString()));
    QCOMPARE(inhalt(""), std::tuple(false, true, QString()));
    QCOMPARE(organVon(u"Haftwurzeln nur an Jugendtrieben"_s, {Organ::Blatt, Organ::Haftorgan, Organ::Zweig}), Organ::Haftorgan);
}

void TestFormen::aufriss()
{
    const QRectF blatt(0, 0, 100, 100);
    const auto fehler = [&](auto &&legen) {
        Aufriss a(blatt);
        a.text(QRectF(10, 10, 20, 10));
        a.bild(QRectF(50, 50, 30, 30), 1);
        legen(a);
        return a.fehler();
    };
    QCOMPARE(fehler([](Aufriss &a) { a.linie({31, 15, 60, 60}, 1); }), 0);
    QCOMPARE(fehler([](Aufriss &a) { a.text(QRectF(25, 15, 20, 10)); }), 1);
    QCOMPARE(fehler([](Aufriss &a) { a.text(QRectF(60, 60, 5, 5)); }), 1);
    QCOMPARE(fehler([](Aufriss &a) { a.bild(QRectF(70, 70, 20, 20), 2); }), 1);
    QCOMPARE(fehler([](Aufriss &a) { a.bild(QRectF(70, 70, 20, 20), 1); }), 0);
    QCOMPARE(fehler([](Aufriss &a) { a.linie({31, 15, 60, 60}, 2); }), 1);
    QCOMPARE(fehler([](Aufriss &a) { a.linie({5, 12, 60, 14}, 1); }), 1);
    QCOMPARE(fehler([](Aufriss &a) { a.linie({35, 5, 60, 60}, 1), a.linie({60, 5, 35, 60}, 1); }), 1);
    QCOMPARE(fehler([](Aufriss &a) { a.text(QRectF(95, 5, 10, 5)); }), 1);
}

void TestFormen::jedePflanzeAnders_data()
{
    QTest::addColumn<int>("nummer");
    for (int i = 0; i < int(sammlungen().size()); ++i)
        QTest::newRow(qPrintable(sammlungen()[size_t(i)].tabelle.toString())) << i;
}

/// No two plants of a collection are the same drawing; every caption names what is drawn; no colour of a flower is shown twice.
void TestFormen::jedePflanzeAnders()
{
    QFETCH(int, nummer);
    const Sammlung &sammlung = sammlungen()[size_t(nummer)];
    QHash<QByteArray, QString> gesehen;
    QStringList gleiche;
    mitBrief(*db_, sammlung, {}, [&](const Steckbrief &s) {
        const std::vector<Organ> teile = organe(s);
        QVERIFY2(std::ranges::find(teile, Organ::Blatt) != teile.end(), qPrintable(s.pflanze.name()));
        QCOMPARE(detailtitel(s).contains(u"Blüte"), s.blueht);
        QVERIFY2(!s.vorLaub || s.zeigtBlueten(), qPrintable(s.pflanze.name()));
        QSet<QRgb> farben{s.anstrich[Rolle::Bluete].rgb()};
        for (const QColor &f : s.weitereFarben)
            farben.insert(f.rgb());
        QVERIFY2(farben.size() == qsizetype(s.weitereFarben.size()) + 1, qPrintable(s.pflanze.name()));
        const QString zwilling = gesehen.value(s.aussehen());
        if (!zwilling.isEmpty())
            gleiche += zwilling + u" = "_s + s.pflanze.name();
        gesehen.insert(s.aussehen(), s.pflanze.name());
    });
    QVERIFY2(gleiche.isEmpty(), qPrintable(gleiche.join(u'\n')));
}

FLOX_TEST(tst_formen, TestFormen)
#include "tst_formen.moc"
