#include "store/Bildnamen.h"
#include "tools/Pflanzendaten.h"
#include "tests/Testprogramm.h"

#include <QTemporaryDir>
#include <QSignalSpy>
#include <QTest>

class TestBildnamen : public QObject
{
    Q_OBJECT

private slots:
    void stamm_data();
    void stamm();
    void zeilen();
    void doppelt_data();
    void doppelt();

private:
    QString ziel() const { return ordner_.filePath(QStringLiteral("probe.mdb")); }
    static void fuellen(Pflanzendaten &daten, const QByteArray &quelle)
    {
        for (const RecSatz &satz : recLesen(quelle, QStringLiteral("probe.rec")))
            daten.aufnehmen(satz);
    }
    QTemporaryDir ordner_;
};

void TestBildnamen::stamm_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("erwartet");
    const auto zeile = [](const char *name, const char *erwartet) { QTest::newRow(name) << QString::fromUtf8(name) << QString::fromUtf8(erwartet); };
    zeile("Begonia rex", "begonia-rex");
    zeile("Abutilon-Hybriden", "abutilon-hybriden");
    zeile("× Fatshedera lizei", "fatshedera-lizei");
    zeile("Citrus × microcarpa", "citrus-microcarpa");
    zeile("Ceropegia linearis subsp. woodii", "ceropegia-linearis-subsp-woodii");
    zeile("Ficus elastica 'Decora'", "ficus-elastica-decora");
    zeile("Schöner aus Boskoop", "schoener-aus-boskoop");
    zeile("ÄÖÜ äöü ß", "aeoeue-aeoeue-ss");
    zeile("Belle-Fille de Salé", "belle-fille-de-sale");
    zeile("  James  Grieve / (rot) ", "james-grieve-rot");
    zeile("Mutterapfel 1-2", "mutterapfel-1-2");
    zeile("..", "");
    zeile("", "");
    QTest::newRow("decomposed") << QStringLiteral("Scho\u0308ner Sale\u0301") << QStringLiteral("schoener-sale");
}

void TestBildnamen::stamm()
{
    QFETCH(QString, name);
    QTEST(bildname(name), "erwartet");
}

void TestBildnamen::zeilen()
{
    {
        Pflanzendaten daten(ziel());
        fuellen(daten, "%rec: Topfpfl\n\nARTNR: 1\nBOT_NAME: × Fatshedera lizei\nbewertung: 1\n\n"
                       "%rec: Apfel\n\nARTNR: 2\nBOT_NAME: Schöner aus Boskoop\nbewertung: 1\n\n"
                       "%rec: Stauden\n\nARTNR: 3\nBOT_NAME: Phlox paniculata\nbewertung: 1\n\n"
                       "%rec: Friedhof\n\nARTNR: 3\nBOT_NAME: Phlox paniculata\nDB: 100\nbewertung: 1\n");
        daten.abschliessen();
    }
    const auto db = Datenbank::OpenDatabase(ziel());
    const auto zeile = [&](const char *tabelle) {
        Anweisung &a =
            db->vorbereitet(QStringLiteral("SELECT \"BILD1-G\", \"BEMERKUNG1-G\", \"BILD1-D\", \"BEMERKUNG1-D\", \"BILD2-G\" FROM %1_Bilder")
                                .arg(QLatin1String(tabelle)));
        QStringList werte;
        while (a.schritt())
            for (int i = 0; i < 5; ++i)
                werte += a.istNull(i) ? QStringLiteral("-") : a.text(i);
        return werte.join(u'|');
    };
    QCOMPARE(zeile("Topfpfl"), QStringLiteral("fatshedera-lizei|Gesamtansicht, schematisch|fatshedera-lizei-detail|Blatt, schematisch|-"));
    QCOMPARE(zeile("Apfel"), QStringLiteral("schoener-aus-boskoop|Gesamtansicht in Blüte und im Winter, "
                                            "schematisch|schoener-aus-boskoop-detail|Blüte, Blatt und Winterzweig, schematisch|-"));
    QCOMPARE(zeile("Stauden"), QStringLiteral("phlox-paniculata|Gesamtansicht, schematisch|phlox-paniculata-detail|Blatt, schematisch|-"));
    // Taken from the perennials, plates and all.
    QCOMPARE(zeile("Friedhof"), zeile("Stauden"));
}

void TestBildnamen::doppelt_data()
{
    QTest::addColumn<QByteArray>("quelle");
    QTest::addColumn<bool>("falsch");
    const QByteArray erste("%rec: Topfpfl\n\nARTNR: 1\nBOT_NAME: Ficus elastica\nbewertung: 1\n\n");
    QTest::newRow("same stem") << QByteArray(erste + "ARTNR: 2\nBOT_NAME: Ficus 'elastica'\nbewertung: 1\n") << true;
    QTest::newRow("no stem") << QByteArray("%rec: Topfpfl\n\nARTNR: 2\nBOT_NAME: ...\nbewertung: 1\n") << true;
    QTest::newRow("another table") << QByteArray(erste + "%rec: Apfel\n\nARTNR: 2\nBOT_NAME: Ficus 'elastica'\nbewertung: 1\n") << false;
    QTest::newRow("no plates") << QByteArray("%rec: Friedhof\n\nARTNR: 2\nBOT_NAME: ...\nDB: 100\nbewertung: 1\n") << false;
}

void TestBildnamen::doppelt()
{
    QFETCH(QByteArray, quelle);
    QFETCH(bool, falsch);
    Pflanzendaten daten(ziel());
    bool gemeldet = false;
    try {
        fuellen(daten, quelle);
    } catch (const Quellfehler &fehler) {
        gemeldet = fehler.text.contains(QStringLiteral("ildname"));
    }
    QCOMPARE(gemeldet, falsch);
}

FLOX_TEST(tst_bildnamen, TestBildnamen)
#include "tst_bildnamen.moc"
