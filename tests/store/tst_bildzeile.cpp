#include "Datenhilfen.h"

#include "store/Bildzeile.h"
#include "store/Recordset.h"
#include "tests/Testprogramm.h"

#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;

/* The picture row of a plant, read from tables of both forms. */
class TestBildzeile : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        db_.reset();
        ordner_ = std::make_unique<QTemporaryDir>();
        db_ = leereDatenbank(ordner_->filePath(u"flox-demo.mdb"_s));
    }

    void breit()
    {
        QVERIFY(!einBildJeZeile(*db_, tabelle));
        db_->Execute(u"INSERT INTO Topfpfl_Bilder (ARTNR, \"BILD1-G\", \"BEMERKUNG1-G\", \"BILD5-D\") VALUES (1001, 'eins', 'Text', 'zehn')"_s);
        const std::optional<Bildzeile> zeile = lesen(1001);
        QVERIFY(zeile);
        QCOMPARE(zeile->g[0].stamm.value_or(QString()), u"eins"_s);
        QCOMPARE(zeile->g[0].bemerkung, u"Text"_s);
        QCOMPARE(zeile->d[4].stamm.value_or(QString()), u"zehn"_s);
        QVERIFY(!zeile->g[1].stamm);
        QVERIFY(!lesen(1002));
    }

    void eineZeileJeBild()
    {
        einzeln();
        QVERIFY(einBildJeZeile(*db_, tabelle));
        for (int i = 1; i <= 7; ++i)
            db_->Execute(u"INSERT INTO Topfpfl_Bilder VALUES (9, 'x', ?, ?)"_s, {u"bild%1"_s.arg(i), i == 3 ? QVariant() : u"Text"_s});
        const std::optional<Bildzeile> zeile = lesen(9);
        QVERIFY(zeile);
        QCOMPARE(zeile->g[4].stamm.value_or(QString()), u"bild5"_s);
        QCOMPARE(zeile->d[1].stamm.value_or(QString()), u"bild7"_s);
        QCOMPARE(zeile->g[2].bemerkung, QString());
        QVERIFY(!zeile->d[2].stamm);
        QVERIFY(!lesen(8));
    }

    void mehrZeilenAlsPlaetze()
    {
        einzeln();
        for (int i = 1; i <= groessteBilderzahl + 2; ++i)
            db_->Execute(u"INSERT INTO Topfpfl_Bilder VALUES (9, 'x', ?, NULL)"_s, {u"bild%1"_s.arg(i)});
        const std::optional<Bildzeile> zeile = lesen(9);
        QVERIFY(zeile);
        QCOMPARE(zeile->d[4].stamm.value_or(QString()), u"bild10"_s);
    }

    /// The strip and the filter must mean the same by a picture that is named.
    void nenntEinBild_data()
    {
        QTest::addColumn<bool>("jeZeile");
        QTest::addColumn<QVariant>("wert");
        QTest::addColumn<bool>("nennt");
        for (const bool jeZeile : {false, true}) {
            const char *form = jeZeile ? "einzeln" : "breit";
            QTest::addRow("%s, null", form) << jeZeile << QVariant() << false;
            QTest::addRow("%s, fehlt", form) << jeZeile << QVariant(u"fehlt"_s) << false;
            QTest::addRow("%s, anderes Wort", form) << jeZeile << QVariant(u"Fehlt"_s) << true;
            QTest::addRow("%s, Name", form) << jeZeile << QVariant(u"begonia-rex"_s) << true;
        }
    }
    void nenntEinBild()
    {
        QFETCH(const bool, jeZeile);
        QFETCH(const QVariant, wert);
        QFETCH(const bool, nennt);
        if (jeZeile)
            einzeln();
        const QStringList spalten = jeZeile ? QStringList{u"BILD"_s} : bilderspalten().first(groessteBilderzahl);
        for (const QString &spalte : spalten) {
            db_->Execute(u"DELETE FROM Topfpfl_Bilder"_s);
            db_->Execute(u"INSERT INTO Topfpfl_Bilder (ARTNR, \"%1\") VALUES (1, ?)"_s.arg(spalte), {wert});
            QCOMPARE(zahl(*db_, u"SELECT %1 IS NOT NULL FROM Topfpfl_Bilder"_s.arg(nenntBild(jeZeile))), qint64(nennt));
        }
    }

    void fehlendeTabelle()
    {
        db_->Execute(u"DROP TABLE Topfpfl_Bilder"_s);
        QVERIFY(!bildzeile(db_, eintrag(Sparte::Topf), 1001));
        QVERIFY(fehlerVon([&] { (void)einBildJeZeile(*db_, tabelle); }).contains(tabelle));
    }

private:
    void einzeln()
    {
        db_->Execute(u"DROP TABLE Topfpfl_Bilder"_s);
        db_->Execute(u"CREATE TABLE Topfpfl_Bilder (ARTNR INTEGER, BotName TEXT, BILD TEXT, BEMERKUNG TEXT)"_s);
    }
    std::optional<Bildzeile> lesen(qint64 artnr) { return bildzeile(db_, eintrag(Sparte::Topf), artnr); }

    const QString tabelle = u"Topfpfl_Bilder"_s;
    std::unique_ptr<QTemporaryDir> ordner_;
    std::shared_ptr<Datenbank> db_;
};

FLOX_TEST(tst_bildzeile, TestBildzeile)
#include "tst_bildzeile.moc"
