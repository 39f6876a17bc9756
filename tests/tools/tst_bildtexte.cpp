#include "store/Recordset.h"
#include "tests/store/Datenordner.h"

#include <QTest>

using namespace Qt::StringLiterals;

/* The captions of the plates as they are shipped: they say what is drawn. */
class TestBildtexte : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { db_ = ordner_.db(); }

    void zweiteTafel_data()
    {
        QTest::addColumn<QString>("text");
        const std::pair<const char *, const char *> zeilen[] = {
            {"Abutilon-Hybriden", "Blüte und Blatt"},      {"Aglaonema commutatum", "Blatt"},
            {"Adiantum raddianum", "Wedel"},               {"Ananas comosus", "Blüte, Blatt und Frucht"},
            {"Araucaria heterophylla", "Zweige"},          {"Aspidistra elatior", "Blatt und Blütenfarbe"},
            {"Asparagus densiflorus", "Wedel, Blütenfarbe und Frucht"}, {"Echinocactus grusonii", "Blüte und Spross"},
        };
        for (const auto &[name, text] : zeilen)
            QTest::newRow(name) << QString::fromUtf8(text) + u", schematisch"_s;
    }
    void zweiteTafel()
    {
        Recordset zeile(db_, u"SELECT * From Topfpfl_Bilder WHERE BotName = '%1'"_s.arg(QString::fromUtf8(QTest::currentDataTag())));
        QVERIFY(!zeile.Eof());
        QTEST(zeile.Fields(u"BEMERKUNG1-D").Text(), "text");
    }

    /// No plate of a plant without flowers promises one, and none with flowers hides them.
    void bluete()
    {
        int ohne = 0;
        Anweisung &zeilen = db_->vorbereitet(u"SELECT t.FARBEN, b.\"BEMERKUNG1-D\", t.BOT_NAME FROM Topfpfl t JOIN Topfpfl_Bilder b ON b.ARTNR = t.ARTNR"_s);
        while (zeilen.schritt()) {
            const bool farbig = zeilen.text(0).contains(u'1');
            const QString text = zeilen.text(1);
            QVERIFY2(text.contains(u"Blüte") == farbig && text.endsWith(u", schematisch"), qPrintable(zeilen.text(2) + u": "_s + text));
            ohne += !farbig;
        }
        QVERIFY(ohne > 20);
    }

    void andere()
    {
        for (Recordset satz(db_, u"SELECT * From Apfel_Bilder"_s); !satz.Eof(); satz.MoveNext()) {
            QCOMPARE(satz.Fields(u"BEMERKUNG1-G").Text(), u"Gesamtansicht, schematisch"_s);
            QCOMPARE(satz.Fields(u"BEMERKUNG1-D").Text(), u"Frucht außen und im Schnitt, schematisch"_s);
        }
    }

private:
    Datenordner ordner_;
    std::shared_ptr<Datenbank> db_;
};

QTEST_GUILESS_MAIN(TestBildtexte)
#include "tst_bildtexte.moc"
