#include "store/Recordset.h"
#include "tests/store/Datenordner.h"
#include "tests/Testprogramm.h"

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
        // clang-format off
        const std::pair<const char *, const char *> zeilen[] = {
            {"Abutilon-Hybriden", "Blüte und Blatt"},      {"Aglaonema commutatum", "Blatt"},
            {"Adiantum raddianum", "Wedel"},               {"Ananas comosus", "Blüte, Frucht und Blatt"},
            {"Araucaria heterophylla", "Nadel, Zweig und Rinde"}, {"Aspidistra elatior", "Blatt"},
            {"Asparagus densiflorus", "Frucht, Fruchtschnitt und Wedel"}, {"Echinocactus grusonii", "Blatt"},
        };
        // clang-format on
        for (const auto &[name, text] : zeilen)
            QTest::newRow(name) << QString::fromUtf8(text) + u", schematisch"_s;
    }
    void zweiteTafel()
    {
        Recordset zeile(db_, u"SELECT * From Topfpfl_Bilder WHERE BotName = '%1'"_s.arg(QString::fromUtf8(QTest::currentDataTag())));
        QVERIFY(!zeile.Eof());
        QTEST(zeile.Fields(u"BEMERKUNG1-D").Text(), "text");
    }

    /// No plate of a plant without flowers promises one; those whose flowers are drawn say so.
    void bluete()
    {
        int ohne = 0, mit = 0;
        Anweisung &zeilen =
            db_->vorbereitet(u"SELECT t.FARBEN, b.\"BEMERKUNG1-D\", t.BOT_NAME FROM Topfpfl t JOIN Topfpfl_Bilder b ON b.ARTNR = t.ARTNR"_s);
        while (zeilen.schritt()) {
            const bool farbig = zeilen.text(0).contains(u'1');
            const QString text = zeilen.text(1);
            QVERIFY2((farbig || !text.contains(u"Blüte")) && text.endsWith(u", schematisch"), qPrintable(zeilen.text(2) + u": "_s + text));
            ohne += !farbig;
            mit += text.contains(u"Blüte");
        }
        QVERIFY(ohne > 20 && mit > 80);
    }

    void andere()
    {
        for (const auto &[tabelle, frucht] :
             {std::pair(u"Apfel_Bilder"_s, true), std::pair(u"Obst_Bilder"_s, true), std::pair(u"Stauden_Bilder"_s, false)}) {
            int zeilen = 0;
            for (Recordset satz(db_, u"SELECT * From "_s + tabelle); !satz.Eof(); satz.MoveNext(), ++zeilen) {
                const QString ganz = satz.Fields(u"BEMERKUNG1-G").Text(), teile = satz.Fields(u"BEMERKUNG1-D").Text();
                QVERIFY2(ganz.startsWith(u"Gesamtansicht") && ganz.endsWith(u", schematisch"), qPrintable(ganz));
                QVERIFY2(teile.contains(u"Blatt") || teile.contains(u"Wedel") || teile.contains(u"Nadel"), qPrintable(teile));
                QVERIFY2(teile.endsWith(u", schematisch") && (!frucht || teile.contains(u"Frucht")), qPrintable(teile));
            }
            QVERIFY(zeilen > 50);
        }
    }

private:
    Datenordner ordner_;
    std::shared_ptr<Datenbank> db_;
};

FLOX_TEST(tst_bildtexte, TestBildtexte)
#include "tst_bildtexte.moc"
