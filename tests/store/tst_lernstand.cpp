#include "Dateistoerung.h"
#include "store/Dateien.h"
#include "store/Lernstand.h"
#include "tests/Testprogramm.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>
#include <QThread>

#include <cerrno>
#include <random>

using namespace Qt::StringLiterals;

/* When plants come again, and the file that keeps it. */

namespace {

const QDate tag0(2026, 3, 1);

struct Schritt
{
    int tage; ///< after the first day
    int guete;
    int folge, abstand, faktor;
    int faelligNach; ///< days after the first day
};

Lernstand beispiel()
{
    Lernstand stand;
    stand.setWert({u"TOPFPFL"_s, 1001, u"Abutilon-Hybriden"_s}, {2, 6, 260, tag0, tag0.addDays(6)});
    stand.setWert({u"STAUDEN"_s, 2001, u"Aster \"x\" × ü"_s}, {0, 1, 250, tag0, tag0.addDays(1)});
    return stand;
}

void schreibe(const QString &pfad, const QByteArray &inhalt)
{
    QFile datei(pfad);
    QVERIFY(datei.open(QIODevice::WriteOnly));
    QCOMPARE(datei.write(inhalt), inhalt.size());
}

} // namespace

class TestLernstand : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        ordner_ = std::make_unique<QTemporaryDir>();
        pfad_ = ordner_->filePath(u"uebung.json"_s);
    }

    /// Worked out by hand: EF' = EF + 0,1 - (5 - q)(0,08 + (5 - q) 0,02), I(1) = 1, I(2) = 6, I(n) = I(n - 1) EF rounded up; below 3 from the
    /// beginning with the EF as it was.
    void vonHand_data()
    {
        QTest::addColumn<QList<Schritt>>("schritte");
        QTest::newRow("immer 5") << QList<Schritt>{{0, 5, 1, 1, 260, 1}, {1, 5, 2, 6, 270, 7}, {7, 5, 3, 17, 280, 24}, {24, 5, 4, 50, 290, 74}};
        QTest::newRow("immer 4") << QList<Schritt>{{0, 4, 1, 1, 250, 1}, {1, 4, 2, 6, 250, 7}, {7, 4, 3, 15, 250, 22}, {22, 4, 4, 38, 250, 60}};
        QTest::newRow("immer 3") << QList<Schritt>{{0, 3, 1, 1, 236, 1}, {1, 3, 2, 6, 222, 7}, {7, 3, 3, 13, 208, 20}, {20, 3, 4, 26, 194, 46}};
        QTest::newRow("vergessen") << QList<Schritt>{{0, 5, 1, 1, 260, 1}, {1, 4, 2, 6, 260, 7},  {7, 2, 0, 1, 260, 8},
                                                     {8, 5, 1, 1, 270, 9}, {9, 5, 2, 6, 280, 15}, {15, 4, 3, 17, 280, 32}};
        QTest::newRow("nie unter 1,3") << QList<Schritt>{{0, 3, 1, 1, 236, 1},       {1, 3, 2, 6, 222, 7},       {7, 3, 3, 13, 208, 20},
                                                         {20, 3, 4, 26, 194, 46},    {46, 3, 5, 47, 180, 93},    {93, 3, 6, 79, 166, 172},
                                                         {172, 3, 7, 121, 152, 293}, {293, 3, 8, 167, 138, 460}, {460, 3, 9, 218, 130, 678},
                                                         {678, 3, 10, 284, 130, 962}};
        QTest::newRow("gleich falsch") << QList<Schritt>{{0, 0, 0, 1, 250, 1}, {1, 1, 0, 1, 250, 2}, {2, 5, 1, 1, 260, 3}};
        QTest::newRow("verspätet") << QList<Schritt>{{0, 5, 1, 1, 260, 1}, {30, 5, 2, 6, 270, 36}};
        QTest::newRow("vor der Zeit gut") << QList<Schritt>{{0, 5, 1, 1, 260, 1}, {0, 5, 1, 1, 260, 1}, {1, 5, 2, 6, 270, 7}, {3, 5, 2, 6, 270, 7}};
        QTest::newRow("vor der Zeit schlecht") << QList<Schritt>{{0, 5, 1, 1, 260, 1}, {1, 5, 2, 6, 270, 7}, {3, 2, 0, 1, 270, 4}};
    }
    void vonHand()
    {
        QFETCH(const QList<Schritt>, schritte);
        Lernwert wert;
        for (const Schritt &schritt : schritte) {
            wert = nachAntwort(wert, schritt.guete, tag0.addDays(schritt.tage));
            QCOMPARE(wert.folge, schritt.folge);
            QCOMPARE(wert.abstand, schritt.abstand);
            QCOMPARE(wert.faktor, schritt.faktor);
            QCOMPARE(wert.faellig, tag0.addDays(schritt.faelligNach));
        }
    }

    void nieOhneEnde()
    {
        Lernwert wert;
        QDate heute = tag0;
        for (int i = 0; i < 60; ++i) {
            wert = nachAntwort(wert, 5, heute);
            QVERIFY(wert.abstand >= 1 && wert.abstand <= 36500);
            QVERIFY(wert.faellig.isValid());
            heute = wert.faellig;
        }
    }

    void guete()
    {
        QCOMPARE(gueteVon(10, 10), 5);
        QCOMPARE(gueteVon(9, 10), 4);
        QCOMPARE(gueteVon(8, 10), 4);
        QCOMPARE(gueteVon(6, 10), 3);
        QCOMPARE(gueteVon(3, 10), 2);
        QCOMPARE(gueteVon(1, 10), 1);
        QCOMPARE(gueteVon(0, 10), 0);
        QCOMPARE(gueteVon(0, 0), 0);
    }

    void hinUndHer()
    {
        beispiel().speichern(pfad_);
        const Lernstand::Geladen geladen = Lernstand::laden(pfad_);
        QVERIFY(geladen.hinweis.isEmpty());
        QVERIFY(geladen.stand.werte() == beispiel().werte());
        // A plant that bears another name is another plant.
        QVERIFY(geladen.stand.wert({u"TOPFPFL"_s, 1001, u"Abutilon-Hybriden"_s}));
        QVERIFY(!geladen.stand.wert({u"TOPFPFL"_s, 1001, u"Abutilon"_s}));
        QVERIFY(!geladen.stand.wert({u"STAUDEN"_s, 1001, u"Abutilon-Hybriden"_s}));
        const QByteArray inhalt = liesGanz(pfad_);
        geladen.stand.speichern(pfad_);
        QCOMPARE(liesGanz(pfad_), inhalt);
    }

    void ohneDatei()
    {
        const Lernstand::Geladen geladen = Lernstand::laden(pfad_);
        QVERIFY(geladen.hinweis.isEmpty());
        QVERIFY(geladen.stand.werte().isEmpty());
        QVERIFY(!QFile::exists(pfad_));
    }

    void beschaedigt_data()
    {
        QTest::addColumn<QByteArray>("inhalt");
        QTest::addColumn<int>("gerettet");
        beispielSpeichern();
        const QByteArray ganz = liesGanz(pfad_);
        QTest::newRow("leer") << QByteArray() << 0;
        QTest::newRow("Müll") << QByteArray(300, '\x93') << 0;
        QTest::newRow("abgeschnitten") << ganz.first(ganz.size() / 2) << 0;
        QTest::newRow("eine Liste") << QByteArray("[1, 2]") << 0;
        QTest::newRow("ohne Format") << QByteArray(ganz).replace("\"format\"", "\"Format\"") << 2;
        QTest::newRow("Format 0") << QByteArray(ganz).replace("\"format\": 1", "\"format\": 0") << 2;
        QTest::newRow("ein Datum") << QByteArray(ganz).replace("2026-03-07", "2026-13-07") << 1;
        QTest::newRow("ein Faktor") << QByteArray(ganz).replace("260", "-260") << 1;
        QTest::newRow("eine Zahl als Text") << QByteArray(ganz).replace("260", "\"260\"") << 1;
        QTest::newRow("ohne Pflanzen") << QByteArray("{\"format\": 1}") << 0;
    }
    void beschaedigt()
    {
        QFETCH(const QByteArray, inhalt);
        QFETCH(const int, gerettet);
        schreibe(pfad_, inhalt);
        const Lernstand::Geladen geladen = Lernstand::laden(pfad_);
        QVERIFY2(geladen.hinweis.contains(u"beschädigt"_s), qPrintable(geladen.hinweis));
        QCOMPARE(geladen.stand.werte().size(), gerettet);
        // What stood there is still there, byte by byte, under the name that was told.
        const QStringList beiseite = QDir(ordner_->path()).entryList({u"uebung-beschaedigt-*.json"_s});
        QCOMPARE(beiseite.size(), 1);
        QVERIFY(geladen.hinweis.contains(beiseite[0]));
        QCOMPARE(liesGanz(ordner_->filePath(beiseite[0])), inhalt);
        QCOMPARE(QFile::exists(pfad_), gerettet > 0);
        // Told once.
        const Lernstand::Geladen wieder = Lernstand::laden(pfad_);
        QVERIFY(wieder.hinweis.isEmpty());
        QCOMPARE(wieder.stand.werte().size(), gerettet);
    }

    void zweiSchaedenInEinerSekunde()
    {
        for (int i = 0; i < 3; ++i) {
            schreibe(pfad_, "kaputt " + QByteArray::number(i));
            (void)Lernstand::laden(pfad_);
        }
        QCOMPARE(QDir(ordner_->path()).entryList({u"uebung-beschaedigt-*.json"_s}).size(), 3);
    }

    void neueresFormat()
    {
        const QByteArray inhalt = "{\"format\": 2, \"pflanzen\": {\"anders\": true}}";
        schreibe(pfad_, inhalt);
        try {
            (void)Lernstand::laden(pfad_);
            QFAIL("A newer format was read.");
        } catch (const Fehler &fehler) {
            QVERIFY2(fehler.text().contains(u"neuere Version"_s) && fehler.text().contains(u"Format 2"_s), fehler.what());
        }
        QCOMPARE(liesGanz(pfad_), inhalt);
        QCOMPARE(QDir(ordner_->path()).entryList(QDir::Files).size(), 1);
    }

    /// Whatever call fails: the file is the old one or the new one, or stands aside whole; nothing is lost without a word.
    void jederDateiaufrufScheitert()
    {
        for (const bool beschaedigt : {false, true}) {
            int versuche = 0;
            for (int stelle = 1;; ++stelle) {
                init();
                if (beschaedigt)
                    schreibe(pfad_, "kaputt");
                else
                    beispiel().speichern(pfad_);
                const QByteArray vorher = liesGanz(pfad_);
                bool gemeldet = false, gestoert = false;
                {
                    const Dateistoerung stoerung(Dateistoerung::Art::Einmal, stelle, EIO);
                    try {
                        Lernstand::Geladen geladen = Lernstand::laden(pfad_);
                        gemeldet = !geladen.hinweis.isEmpty();
                        geladen.stand.setWert({u"Obst"_s, 7, u"Uta"_s}, {1, 1, 260, tag0, tag0.addDays(1)});
                        geladen.stand.speichern(pfad_);
                    } catch (const Fehler &fehler) {
                        gemeldet = true;
                        QVERIFY(!fehler.text().isEmpty());
                    }
                    gestoert = stoerung.gestoert();
                }
                QByteArray alles;
                for (const QString &datei : QDir(ordner_->path()).entryList(QDir::Files))
                    alles += liesGanz(ordner_->filePath(datei)) + '\n';
                QVERIFY2(alles.contains(beschaedigt ? vorher : QByteArray("Abutilon")), alles.constData());
                QVERIFY(gemeldet || !beschaedigt);
                if (!gestoert)
                    break;
                ++versuche;
            }
            QVERIFY2(versuche >= 5, qPrintable(QString::number(versuche)));
        }
    }

    /// A process that is killed while it writes leaves the state before or the one after.
    void mittenImSchreibenBeendet()
    {
        std::minstd_rand zufall{99};
        int hoechster = 0;
        for (int lauf = 0; lauf < 40; ++lauf) {
            QProcess schreiber;
            schreiber.start(QStringLiteral(FLOX_LERNSCHREIBER), {pfad_});
            QVERIFY(schreiber.waitForReadyRead(30000));
            QThread::usleep(std::uniform_int_distribution<unsigned long>(0, 90000)(zufall));
            schreiber.kill();
            QVERIFY(schreiber.waitForFinished(30000));
            const QByteArray ausgabe = schreiber.readAllStandardOutput();
            const int gemeldet = int(ausgabe.left(ausgabe.lastIndexOf('\n') + 1).count('\n'));
            const Lernstand::Geladen geladen = Lernstand::laden(pfad_);
            QVERIFY2(geladen.hinweis.isEmpty(), qPrintable(geladen.hinweis));
            QCOMPARE(geladen.stand.werte().size(), 200);
            const int folge = geladen.stand.werte().begin()->folge;
            QVERIFY2(folge >= gemeldet && folge <= gemeldet + 1, qPrintable(u"%1 %2"_s.arg(folge).arg(gemeldet)));
            for (const Lernwert &wert : geladen.stand.werte())
                QCOMPARE(wert.folge, folge);
            hoechster = std::max(hoechster, folge);
        }
        QVERIFY2(hoechster > 1, "Every kill came before the second write: the test shows little.");
    }

private:
    void beispielSpeichern()
    {
        init();
        beispiel().speichern(pfad_);
    }

    std::unique_ptr<QTemporaryDir> ordner_;
    QString pfad_;
};

FLOX_TEST(tst_lernstand, TestLernstand)
#include "tst_lernstand.moc"
