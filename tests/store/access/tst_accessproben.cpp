#include "Accesshilfen.h"

#include "store/Fehler.h"
#include "tests/Testprogramm.h"

#include <QDir>
#include <QFile>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace accessdatei;

/* Files of the engine itself, which are not part of the sources: FLOX_ACCESSPROBEN names their folder and, as its first entry of the kind, a
   table of file, table, columns and rows. Without it there is nothing to test. */
class TestAccessproben : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        ordner_ = qEnvironmentVariable("FLOX_ACCESSPROBEN");
        if (ordner_.isEmpty())
            QSKIP("FLOX_ACCESSPROBEN is not set.");
    }

    void tabellen_data()
    {
        QTest::addColumn<QString>("datei");
        QTest::addColumn<QString>("tabelle");
        QTest::addColumn<int>("spalten");
        QTest::addColumn<int>("zeilen");
        QFile liste(ordner_ + u"/../proben.tsv"_s);
        QVERIFY2(liste.open(QIODevice::ReadOnly), qPrintable(liste.fileName()));
        for (const QByteArray &zeile : liste.readAll().split('\n'))
            if (const QList<QByteArray> felder = zeile.split('\t'); felder.size() == 4 && !zeile.startsWith('#'))
                QTest::newRow((felder[0] + ' ' + felder[1]).constData())
                    << QString::fromUtf8(felder[0]) << QString::fromUtf8(felder[1]) << felder[2].toInt() << felder[3].toInt();
    }
    void tabellen()
    {
        QFETCH(QString, datei);
        QFETCH(QString, tabelle);
        const auto leser = Leser::ausDatei(QDir(ordner_).filePath(datei));
        const Tabelle *gefunden = leser->tabelle(tabelle);
        QVERIFY(gefunden);
        QTEST(int(gefunden->spalten.size()), "spalten");
        const Durchgang durchgang = leser->durchlaufen(*gefunden, [](Zeile &) { return true; });
        QTEST(int(durchgang.zeilen), "zeilen");
        QCOMPARE(durchgang.unlesbar, 0);
    }

    void werte_data()
    {
        QTest::addColumn<QString>("pfad");
        for (const QFileInfo &datei : QDir(ordner_).entryInfoList({u"*.mdb"_s, u"*.accdb"_s}, QDir::Files))
            QTest::newRow(qPrintable(datei.fileName())) << datei.filePath();
    }
    void werte()
    {
        QFETCH(QString, pfad);
        try {
            QCOMPARE(accessprobe::unterschied(pfad), QString());
        } catch (const Fehler &fehler) {
            QFAIL(fehler.what());
        }
    }

private:
    QString ordner_;
};

FLOX_TEST(tst_accessproben, TestAccessproben)
#include "tst_accessproben.moc"
