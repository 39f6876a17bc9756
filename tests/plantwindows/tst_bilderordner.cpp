#include "Fensterprobe.h"

#include "tests/Testprogramm.h"

#include <QDir>
#include <QElapsedTimer>
#include <QImage>
#include <QLabel>
#include <QTest>

using namespace Qt::StringLiterals;

/* Walking through the plants with a picture folder that goes and comes, and with one that is large. */
class TestBilderordner : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void ordnerGehtUndKommt();
    void sechsFehlendeInGrossemOrdner();

private:
    QString vorschau() { return probe_->finde(u"imgFloxBild_0"_s)->toolTip(); }
    QString stamm() { return probe_->text(u"lblBilderText_0"_s); }

    /// Shortest of some steps through plants that all have these pictures, in a folder of 5,300 files.
    void schritt(const char *bilder, int anzahl, qint64 &dauer);

    std::unique_ptr<Fensterprobe> probe_;
    QString ordner_;
};

void TestBilderordner::init()
{
    probe_ = std::make_unique<Fensterprobe>();
    probe_->nurPflanzen(3);
    ordner_ = probe_->ordner.pfad(u"topfpflanzen"_s);
    QVERIFY(QDir().mkpath(ordner_));
    QImage bild(80, 60, QImage::Format_RGB32);
    bild.fill(Qt::darkGreen);
    const auto db = probe_->ordner.db();
    Anweisung &namen = db->vorbereitet(u"SELECT \"BILD1-G\" FROM Topfpfl_Bilder WHERE ARTNR IN (SELECT ARTNR FROM TOPFPFL)"_s);
    QStringList staemme{u"begonia-rex"_s, u"bougainvillea-glabra"_s};
    while (namen.schritt())
        staemme += namen.text(0);
    for (const QString &name : staemme)
        QVERIFY(bild.save(ordner_ + u'/' + name + u".jpg"_s, "JPG"));
}

void TestBilderordner::ordnerGehtUndKommt()
{
    const QString fort = probe_->ordner.pfad(u"fort"_s), hinweis = u"Anklicken um das Bild zu vergrößern"_s;
    probe_->oeffnen();
    QCOMPARE(vorschau(), hinweis);
    const QString unterschrift = stamm();
    QVERIFY2(unterschrift.startsWith(u"Gesamtansicht"), qPrintable(unterschrift));
    for (int lauf = 0; lauf < 2; ++lauf) {
        QVERIFY(QDir().rename(ordner_, fort));
        probe_->klick("cmdNext");
        QCOMPARE(vorschau(), QString());
        QVERIFY2(stamm().endsWith(u".jpg"), qPrintable(stamm()));
        QCOMPARE(probe_->programm.BilderPfad, QString());
        QCOMPARE(probe_->finde<QLabel>(u"lblArtNr"_s)->foregroundRole(), QPalette::Link);
        QVERIFY(QDir().rename(fort, ordner_));
        probe_->klick("cmdBack");
        QCOMPARE(vorschau(), hinweis);
        QCOMPARE(stamm(), unterschrift);
        QCOMPARE(probe_->programm.BilderPfad, probe_->ordner.pfad());
        QCOMPARE(probe_->finde<QLabel>(u"lblArtNr"_s)->foregroundRole(), QPalette::WindowText);
    }
}

void TestBilderordner::schritt(const char *bilder, int anzahl, qint64 &dauer)
{
    for (int i = 0; i < 5300; ++i) {
        QFile datei(ordner_ + u"/fuellung-%1.jpg"_s.arg(i));
        QVERIFY(datei.open(QIODevice::WriteOnly));
    }
    probe_->ordner.db()->Execute(u"UPDATE Topfpfl_Bilder SET \"BILD1-G\" = NULL, \"BILD1-D\" = NULL"_s);
    probe_->ordner.db()->Execute(u"UPDATE Topfpfl_Bilder SET "_s + QString::fromLatin1(bilder));
    probe_->oeffnen();
    QElapsedTimer uhr;
    dauer = std::numeric_limits<qint64>::max();
    for (int lauf = 0; lauf < 6; ++lauf) {
        QFile neu(ordner_ + u"/neu-%1.jpg"_s.arg(lauf)); // so that nothing of the run before helps
        QVERIFY(neu.open(QIODevice::WriteOnly));
        uhr.restart();
        probe_->klick(lauf % 2 ? "cmdBack" : "cmdNext");
        dauer = std::min(dauer, uhr.nsecsElapsed());
        QCOMPARE(probe_->fenster->BilderAnzahl, anzahl);
    }
}

/// A step to a plant with six missing pictures costs hardly more than one to a plant without pictures and a look into the folder.
void TestBilderordner::sechsFehlendeInGrossemOrdner()
{
    qint64 ohne = 0, mit = 0;
    schritt("\"BILD1-G\" = NULL", 0, ohne);
    init();
    schritt("\"BILD1-G\" = 'x1', \"BILD2-G\" = 'x2', \"BILD3-G\" = 'x3', \"BILD1-D\" = 'x4', \"BILD2-D\" = 'x5', \"BILD3-D\" = 'x6'", 6, mit);
    QElapsedTimer uhr;
    uhr.start();
    QVERIFY(QDir(ordner_).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot).size() > 5300);
    const qint64 lesen = uhr.nsecsElapsed();
    QVERIFY2(mit < 2 * ohne + 2 * lesen, qPrintable(u"%1 us, without %2, the folder %3"_s.arg(mit / 1000).arg(ohne / 1000).arg(lesen / 1000)));
}

FLOX_TEST(tst_bilderordner, TestBilderordner)
#include "tst_bilderordner.moc"
