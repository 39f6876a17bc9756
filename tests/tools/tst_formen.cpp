#include "tests/Hilfen.h"
#include "tools/tafeln/Farben.h"
#include "tools/tafeln/Pfad.h"
#include "tools/tafeln/Tafel.h"
#include "tools/tafeln/Tafelinhalt.h"

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
    void merkmale();
    void blueteUndLaub();
    void haftorgane();
    void aufriss();
    void jedePflanzeAnders_data();
    void jedePflanzeAnders();

private:
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

void TestFormen::merkmale()
{
    const std::vector<Organ> alle{Organ::Bluete, Organ::Frucht, Organ::Blatt, Organ::Rinde};
    QCOMPARE(organVon(u"Blätter herzförmig"_s, alle), Organ::Blatt);
    QCOMPARE(organVon(u"Kelch der Blüte behaart, Blatt kahl"_s, alle), Organ::Bluete);
    QCOMPARE(organVon(u"Borke in Platten"_s, alle), Organ::Rinde);
    QCOMPARE(organVon(u"Beeren rot"_s, alle), Organ::Frucht);
    QVERIFY(!organVon(u"Beeren rot"_s, {Organ::Blatt}));
    QVERIFY(!organVon(u"riecht stark"_s, alle));
    // Of a variety of fruit, calyx and stalk are the fruit's and the crown is the tree's.
    QCOMPARE(organVon(u"Kelch offen, in flacher Mulde"_s, alle), Organ::Bluete);
    QCOMPARE(organVon(u"Kelch offen, in flacher Mulde"_s, alle, true), Organ::Frucht);
    QCOMPARE(organVon(u"Stiel lang, gebogen"_s, alle, true), Organ::Frucht);
    QVERIFY(!organVon(u"Krone leuchterartig"_s, alle, true));
    QCOMPARE(organVon(u"Blüte groß, Krone breit"_s, alle, true), Organ::Bluete);
}

/// What flowers before its leaves does so on the bare shape; leaves stand below flowers on scapes.
void TestFormen::blueteUndLaub()
{
    static const Formen geliefert = Formen::laden(QStringLiteral(FLOX_FORMEN));
    const auto brief = [&](int sammlung, QStringView name, auto &&pruefe) {
        for (const Datensatz &pflanze : Datensatz::alle(*db_, sammlungen()[size_t(sammlung)].tabelle))
            if (pflanze.name() == name)
                return pruefe(Steckbrief(pflanze, sammlungen()[size_t(sammlung)], geliefert));
        QFAIL(qPrintable(name.toString()));
    };
    brief(2, u"Corylus avellana", [](const Steckbrief &s) {
        QVERIFY(s.vorLaub && s.zeigtBlueten());
        QVERIFY(gesamttitel(s).contains(u"vor dem Laub"));
    });
    brief(2, u"Tilia cordata", [](const Steckbrief &s) { QVERIFY(!s.vorLaub && s.winterkahl); });
    brief(2, u"Hippophae rhamnoides", [](const Steckbrief &s) { QVERIFY(s.zeigtFruechte() && !s.zeigtBlueten()); });
    brief(2, u"Larix decidua", [](const Steckbrief &s) { QVERIFY(s.winterkahl); });
    brief(0, u"Agapanthus praecox", [](const Steckbrief &s) { QVERIFY2(s.hoehe < 0.75 * s.bluetenhoehe, qPrintable(QString::number(s.hoehe))); });
}

/// What a climber holds on with is drawn and named, and does not push out the leaf of its flowering shoots.
void TestFormen::haftorgane()
{
    const auto inhalt = [&](const QByteArray &felder) {
        const Formen f = formen("%rec: Pflanzenform\n\nPflanze: Hedera\nBlatt2: b\nFrucht: keine\n" + felder + "\n\n");
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
    static const Formen geliefert = Formen::laden(QStringLiteral(FLOX_FORMEN));
    const Sammlung &sammlung = sammlungen()[size_t(nummer)];
    QHash<QByteArray, QString> gesehen;
    QStringList gleiche;
    for (const Datensatz &pflanze : Datensatz::alle(*db_, sammlung.tabelle)) {
        const Steckbrief s(pflanze, sammlung, geliefert);
        const std::vector<Organ> teile = organe(s);
        QVERIFY2(std::ranges::find(teile, Organ::Blatt) != teile.end(), qPrintable(pflanze.name()));
        QCOMPARE(detailtitel(s).contains(u"Blüte"), s.blueht);
        QVERIFY2(!s.vorLaub || s.zeigtBlueten(), qPrintable(pflanze.name()));
        QSet<QRgb> farben{s.anstrich[Rolle::Bluete].rgb()};
        for (const QColor &f : s.weitereFarben)
            farben.insert(f.rgb());
        QVERIFY2(farben.size() == qsizetype(s.weitereFarben.size()) + 1, qPrintable(pflanze.name()));
        const QString zwilling = gesehen.value(s.aussehen());
        if (!zwilling.isEmpty())
            gleiche += zwilling + u" = "_s + pflanze.name();
        gesehen.insert(s.aussehen(), pflanze.name());
    }
    QVERIFY2(gleiche.isEmpty(), qPrintable(gleiche.join(u'\n')));
}

QTEST_MAIN(TestFormen)
#include "tst_formen.moc"
