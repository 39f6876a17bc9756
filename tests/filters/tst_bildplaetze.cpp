#include "Filterhilfen.h"

#include "filters/Bildplaetze.h"
#include "store/Fehler.h"
#include "store/Recordset.h"
#include "tests/Hilfen.h"
#include "tests/Testprogramm.h"

#include <QSet>
#include <QTest>

#include <algorithm>

using namespace Qt::StringLiterals;

/* Which plants have a picture, on picture tables that fit their plants and on those that do not, against two recordsets that are walked in
   step. */

class TestBildplaetze : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void ausgeliefert();
    void zufall_data();
    void zufall();
    void vieleZeilen_data();
    void vieleZeilen();
    void leereTabellen();
    void eineZeileJeBild();
    void fehlendesBrichtAb();

private:
    QSet<qint64> imGleichschritt(Sparte sparte) const;
    QSet<qint64> plaetze(Sparte sparte) const { return plaetzeMitBild(*db_, *db_, eintrag(sparte)); }
    void leeren(Sparte sparte);
    void pflanze(Sparte sparte, qint64 nummer, const QVariant &name);
    void bildzeile(Sparte sparte, qint64 nummer, const QVariant &name, const QStringList &felder);

    std::unique_ptr<Programmordner> ordner_;
    std::shared_ptr<Datenbank> db_;
};

void TestBildplaetze::init()
{
    db_.reset();
    ordner_ = std::make_unique<Programmordner>();
    db_ = ordner_->db();
}

/// The rule as it reads: both sets sorted by name, advanced together.
QSet<qint64> TestBildplaetze::imGleichschritt(Sparte sparte) const
{
    const SpartenEintrag &e = eintrag(sparte);
    Recordset pflanzen(db_, u"SELECT * From %1 WHERE ARTNR LIKE '*' ORDER BY Bot_Name"_s.arg(e.haupttabelle));
    Recordset bilder(db_, u"SELECT * From %1 WHERE ARTNR LIKE '*' ORDER BY BotName"_s.arg(e.bildtabelle));
    QSet<qint64> mit;
    for (; !pflanzen.Eof() && !bilder.Eof(); pflanzen.MoveNext(), bilder.MoveNext())
        for (int i = 0; i < 10; ++i) {
            const Feld feld = bilder.Fields(u"BILD%1-%2"_s.arg(i % 5 + 1).arg(i < 5 ? u"G"_s : u"D"_s));
            if (!feld.IsNull() && feld.Text() != u"fehlt")
                mit.insert(pflanzen.Schluessel());
        }
    return mit;
}

void TestBildplaetze::leeren(Sparte sparte)
{
    for (const QString &tabelle : {grundtabelle(sparte), eintrag(sparte).bildtabelle.toString()})
        db_->Execute(u"DELETE FROM %1"_s.arg(tabelle));
}

void TestBildplaetze::pflanze(Sparte sparte, qint64 nummer, const QVariant &name)
{
    db_->Execute(u"INSERT INTO %1 (ARTNR, BOT_NAME) VALUES (?, ?)"_s.arg(grundtabelle(sparte)), {nummer, name});
}

void TestBildplaetze::bildzeile(Sparte sparte, qint64 nummer, const QVariant &name, const QStringList &felder)
{
    QVariantList werte{nummer, name};
    for (const QString &feld : felder)
        werte += feld.isNull() ? QVariant() : QVariant(feld);
    db_->Execute(u"INSERT INTO %1 (ARTNR, BotName, \"BILD1-G\", \"BILD5-G\", \"BILD1-D\", \"BILD5-D\") VALUES (?, ?, ?, ?, ?, ?)"_s.arg(
                     eintrag(sparte).bildtabelle),
                 werte);
}

void TestBildplaetze::ausgeliefert()
{
    for (const Sparte sparte : spartenMitFenster()) {
        const QSet<qint64> soll = imGleichschritt(sparte);
        QVERIFY2(!soll.isEmpty(), qPrintable(eintrag(sparte).titel.toString()));
        QCOMPARE(plaetze(sparte), soll);
    }
}

void TestBildplaetze::zufall_data()
{
    QTest::addColumn<QString>("art");
    for (const char *art : {"passend", "kurz", "lang", "gemischt", "umbenannt", "nur Zeichen anders", "ohne Namen", "fremd"})
        QTest::newRow(art) << QString::fromLatin1(art);
}

void TestBildplaetze::zufall()
{
    QFETCH(const QString, art);
    // clang-format off
    const QStringList namen{u"Ficus benjamina"_s, u"Ficus × benjamina"_s, u"Ficus 'benjamina'"_s, u"Ficus-benjamina"_s, u"ficus benjamina"_s, u"Äsculus"_s,
                            u"Aesculus"_s, u"Asculus"_s, u"Zamia"_s, u"Örtlich"_s, u"Straße"_s, u"Strasse"_s, u""_s};
    // clang-format on
    int einige = 0;
    for (uint saat = 1; saat <= 12; ++saat) {
        Zufall zufall(saat);
        const Sparte sparte = saat % 2 ? Sparte::Topf : Sparte::Apfel;
        Transaktion transaktion(*db_);
        leeren(sparte);
        const auto name = [&] { return namen[zahl(zufall, 0, int(namen.size()) - 1)]; };
        const auto felder = [&] {
            QStringList vier;
            for (int i = 0; i < 4; ++i)
                vier += einmalIn(zufall, 5) ? u"a.jpg"_s : einmalIn(zufall, 2) ? u"fehlt"_s : QString();
            return vier;
        };
        QList<std::pair<qint64, QVariant>> bilder;
        for (qint64 nummer = 1; nummer <= 40; ++nummer) {
            const bool ohne = art == u"ohne Namen" && einmalIn(zufall, 3);
            const QVariant eigener = ohne ? QVariant() : QVariant(name());
            pflanze(sparte, nummer, eigener);
            QVariant bild = eigener;
            if (art == u"kurz" && einmalIn(zufall, 6))
                continue;
            if ((art == u"umbenannt" && einmalIn(zufall, 4)) || art == u"gemischt")
                bild = name();
            else if (art == u"nur Zeichen anders")
                bild = eigener.toString().replace(u' ', u'-');
            else if (art == u"ohne Namen" && einmalIn(zufall, 4))
                bild = u""_s;
            bilder.append({art == u"fremd" ? 1000 - nummer : nummer, bild});
            if (art == u"lang" && einmalIn(zufall, 4))
                bilder.append({nummer + 500, name()});
        }
        std::ranges::shuffle(bilder, zufall);
        for (const auto &[nummer, bild] : bilder)
            bildzeile(sparte, nummer, bild, felder());
        const QSet<qint64> soll = imGleichschritt(sparte);
        QCOMPARE(plaetze(sparte), soll);
        einige += !soll.isEmpty() && soll.size() < 40;
    }
    QVERIFY2(einige >= 6, qPrintable(QString::number(einige))); // the tables do distinguish
}

void TestBildplaetze::vieleZeilen_data()
{
    QTest::addColumn<QString>("aenderung");
    QTest::newRow("passend") << QString();
    QTest::newRow("vertauscht") << u"UPDATE Topfpfl_Bilder SET BotName = 'Zz ' || BotName WHERE ARTNR = 3"_s;
    QTest::newRow("eine fehlt") << u"DELETE FROM Topfpfl_Bilder WHERE ARTNR = 17"_s;
    QTest::newRow("viele fehlen") << u"DELETE FROM Topfpfl_Bilder WHERE ARTNR % 3 = 0"_s;
}

/// Plants that were entered in another order than their names have.
void TestBildplaetze::vieleZeilen()
{
    QFETCH(const QString, aenderung);
    {
        Transaktion transaktion(*db_);
        leeren(Sparte::Topf);
        for (qint64 nummer = 1; nummer <= 2000; ++nummer) {
            const QString name = u"Pflanze %1 %2"_s.arg(nummer * 7919 % 2003).arg(nummer % 5 ? u"alba"_s : u"'Rubra'"_s);
            pflanze(Sparte::Topf, nummer, name);
            bildzeile(Sparte::Topf, nummer, name, {nummer % 4 ? QString() : u"b.jpg"_s, u"fehlt"_s, {}, nummer % 7 ? u"fehlt"_s : u"d.jpg"_s});
        }
        transaktion.festschreiben();
    }
    if (!aenderung.isEmpty()) {
        db_->Execute(aenderung);
        QVERIFY(db_->geaendert() > 0);
    }
    QCOMPARE(plaetze(Sparte::Topf), imGleichschritt(Sparte::Topf));
}

void TestBildplaetze::leereTabellen()
{
    leeren(Sparte::Topf);
    QCOMPARE(plaetze(Sparte::Topf), QSet<qint64>());
    bildzeile(Sparte::Topf, 1, u"Ficus"_s, {u"a.jpg"_s, {}, {}, {}});
    QCOMPARE(plaetze(Sparte::Topf), QSet<qint64>());
    pflanze(Sparte::Topf, 9, u"Zamia"_s);
    QCOMPARE(plaetze(Sparte::Topf), QSet<qint64>{9}); // by place, whatever its name
}

void TestBildplaetze::eineZeileJeBild()
{
    leeren(Sparte::Topf);
    for (const qint64 nummer : {1, 2, 3, 4, 5})
        pflanze(Sparte::Topf, nummer, u"Pflanze %1"_s.arg(nummer));
    db_->Execute(u"DROP TABLE Topfpfl_Bilder"_s);
    db_->Execute(u"CREATE TABLE Topfpfl_Bilder (ARTNR INTEGER, BotName TEXT, BILD TEXT, BEMERKUNG TEXT)"_s);
    QCOMPARE(plaetze(Sparte::Topf), QSet<qint64>());
    const std::pair<qint64, QVariant> zeilen[] = {{5, u"fehlt"_s}, {3, QVariant()}, {2, u"fehlt"_s},
                                                  {2, u"zwei"_s},  {5, QVariant()}, {4, u"Fehlt"_s}};
    for (const auto &[nummer, bild] : zeilen)
        db_->Execute(u"INSERT INTO Topfpfl_Bilder VALUES (?, 'x', ?, NULL)"_s, {nummer, bild});
    // Plant 1 has no row at all, and pushes nobody on.
    QCOMPARE(plaetze(Sparte::Topf), (QSet<qint64>{2, 4}));
    db_->Execute(u"ALTER TABLE Topfpfl_Bilder RENAME COLUMN BILD TO Photo"_s);
    QVERIFY_THROWS_EXCEPTION(Fehler, plaetze(Sparte::Topf));
}

void TestBildplaetze::fehlendesBrichtAb()
{
    db_->Execute(u"ALTER TABLE Topfpfl_Bilder RENAME COLUMN \"BILD3-D\" TO \"BILD9-D\""_s);
    QVERIFY_THROWS_EXCEPTION(Fehler, plaetze(Sparte::Topf));
    db_->Execute(u"DROP TABLE Topfpfl_Bilder"_s);
    QVERIFY_THROWS_EXCEPTION(Fehler, plaetze(Sparte::Topf));
}

FLOX_TEST(tst_bildplaetze, TestBildplaetze)
#include "tst_bildplaetze.moc"
