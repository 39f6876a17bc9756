#include "plantwindows/Notiz.h"
#include "Filterprobe.h"

#include "store/Laufordner.h"
#include "tests/store/Rechte.h"
#include "tests/store/Datenhilfen.h"
#include "tests/Testprogramm.h"

using namespace Qt::StringLiterals;

/* Copies that cannot be made: the cause is told once, nothing is filtered on what an earlier copy left, and the window goes on. */
class TestAusfall : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void lauf_data();
    void lauf();
    void oeffnen_data() { lauf_data(); }
    void oeffnen();
    void umschaltenAufVollemDatentraeger();
    void datenbankFehltBeiEinemLauf();
    void schreibgeschuetzterOrdner_data();
    void schreibgeschuetzterOrdner();
    void notizOhneKopie();

private:
    /// While it lives no copy can be made.
    class Stoerung
    {
    public:
        Stoerung(const QByteArray &art, const QString &kopie);
        ~Stoerung();

    private:
        QString kopie_;
        bool ordner_ = false;
        std::optional<Dateigrenze> grenze_;
    };
    QString kopie() const { return probe_->ordner.pfad(u"db_to1.tmp"_s); }
    QList<qint64> alle() { return probe_->arbeit(u"ARTNR > 0"_s); }

    std::unique_ptr<Filterprobe> probe_;
};

TestAusfall::Stoerung::Stoerung(const QByteArray &art, const QString &kopie) : kopie_(kopie)
{
    if (art == "Ordner") {
        QFile::remove(kopie);
        ordner_ = true;
        if (!QDir().mkpath(kopie + u"/voll"_s))
            qFatal("No folder can be made.");
    } else {
        grenze_.emplace(art == "voll" ? 0 : 100000);
    }
}

TestAusfall::Stoerung::~Stoerung()
{
    if (ordner_)
        QDir(kopie_).removeRecursively();
}

void TestAusfall::init()
{
    probe_.reset();
    probe_ = std::make_unique<Filterprobe>();
}

void TestAusfall::lauf_data()
{
    QTest::addColumn<QByteArray>("art");
    QTest::addColumn<QString>("grund");
    QTest::newRow("Ordner") << QByteArray("Ordner") << u"Unter diesem Namen gibt es einen Ordner."_s;
    QTest::newRow("voll") << QByteArray("voll") << u"Der Datenträger ist voll."_s;
    QTest::newRow("halb voll") << QByteArray("halb voll") << u"Der Datenträger ist voll."_s;
}

void TestAusfall::lauf()
{
    QFETCH(const QByteArray, art);
    QFETCH(const QString, grund);
    probe_->oeffnen();
    probe_->dialogZeigen();
    probe_->klicken(probe_->finde(u"chkGift"_s));
    const QString vorher = probe_->filterlage();
    Meldungsfaenger meldungen;
    {
        const Stoerung stoerung(art, kopie());
        probe_->taste("cmdOK");
        QCOMPARE(meldungen.texte, QStringList{u"Die Datei '%1' kann nicht geschrieben werden: %2"_s.arg(kopie(), grund)});
        QVERIFY(probe_->dialog().isVisible());
        QCOMPARE(probe_->filterlage(), vorher);
        QCOMPARE(probe_->pflanzen(), alle());
        QCOMPARE(probe_->fenster->findChild<QLabel *>(u"stbAnzeige_4"_s)->text(), u"1/%1"_s.arg(alle().size()));
        // Every record can be looked at.
        Recordset &haupt = probe_->fenster->satz().haupt();
        for (haupt.MoveFirst(); !haupt.Eof(); haupt.MoveNext())
            QVERIFY(!probe_->fenster->Auslesen(u"BOT_NAME"_s).isEmpty());
        haupt.MoveFirst();
        // Once more: the working database, which stands in for the copy, is not thinned.
        probe_->taste("cmdOK");
        QCOMPARE(meldungen.texte.size(), 2);
        QCOMPARE(probe_->pflanzen(), alle());
    }
    QVERIFY2(!QFile::exists(kopie()), "Half a copy is left.");
    probe_->taste("cmdOK");
    QCOMPARE(meldungen.texte.size(), 2);
    QCOMPARE(probe_->pflanzen(), probe_->arbeit(u"GIFTIG = 'True' AND bewertung >= 5"_s));
    QVERIFY(!probe_->dialog().isVisible());
    QVERIFY(QFile::exists(kopie()));
}

void TestAusfall::oeffnen()
{
    QFETCH(const QByteArray, art);
    QFETCH(const QString, grund);
    Meldungsfaenger meldungen;
    {
        const Stoerung stoerung(art, kopie());
        probe_->oeffnen();
        QCOMPARE(meldungen.texte, QStringList{u"Die Datei '%1' kann nicht geschrieben werden: %2"_s.arg(kopie(), grund)});
        QCOMPARE(probe_->pflanzen(), alle());
        QVERIFY(!probe_->fenster->FilterGesetzt);
        probe_->klick("cmdNext");
        QCOMPARE(probe_->fenster->satz().haupt().AbsolutePosition(), 1);
    }
    probe_->klick("cmdFilter");
    probe_->taste("cmdOK");
    QCOMPARE(meldungen.texte.size(), 1);
    QCOMPARE(probe_->pflanzen(), probe_->arbeit(u"bewertung >= 5"_s));
}

void TestAusfall::umschaltenAufVollemDatentraeger()
{
    probe_->oeffnen();
    probe_->dialogZeigen();
    probe_->klicken(probe_->finde(u"chkGift"_s));
    probe_->taste("cmdOK");
    const QList<qint64> gefiltert = probe_->pflanzen();
    Meldungsfaenger meldungen;
    {
        const Dateigrenze grenze(0);
        probe_->klick("cmdFilterEin");
        QCOMPARE(meldungen.texte, QStringList{u"Die Datei '%1' kann nicht geschrieben werden: Der Datenträger ist voll."_s.arg(probe_->park())});
        QVERIFY(probe_->fenster->FilterEin); // what cannot be parked stays in force
        QCOMPARE(probe_->pflanzen(), gefiltert);
    }
    probe_->klick("cmdFilterEin");
    QCOMPARE(meldungen.texte.size(), 1);
    QVERIFY(!probe_->fenster->FilterEin);
}

void TestAusfall::datenbankFehltBeiEinemLauf()
{
    probe_->oeffnen();
    probe_->klick("cmdNext");
    const qint64 artnr = probe_->fenster->satz().artnr();
    probe_->dialogZeigen();
    const QString datenbank = probe_->ordner.datenbank();
    Meldungsfaenger meldungen;
    QVERIFY(QFile::rename(datenbank, datenbank + u".weg"_s));
    probe_->taste("cmdOK");
    QCOMPARE(meldungen.texte.size(), 1);
    QVERIFY2(meldungen.texte[0].contains(datenbank) && meldungen.texte[0].contains(u"nicht vorhanden"_s), qPrintable(meldungen.texte[0]));
    probe_->taste("cmdAbbruch");
    // Each button asks again and says why it cannot.
    for (const char *name : {"cmdNext", "cmdFilter", "cmdBotDeu", "cmdDruck"}) {
        meldungen.texte.clear();
        probe_->klick(name);
        QVERIFY2(meldungen.texte.size() == 1 && meldungen.texte[0].contains(u"nicht gefunden"_s), name);
        QVERIFY(!probe_->dialog().isVisible());
    }
    QVERIFY(QFile::rename(datenbank + u".weg"_s, datenbank));
    meldungen.texte.clear();
    probe_->klick("cmdBotDeu");
    QCOMPARE(meldungen.texte, QStringList());
    QCOMPARE(probe_->fenster->satz().artnr(), artnr); // the plant that was shown
    probe_->klick("cmdFilter");
    QVERIFY(probe_->dialog().isVisible());
    probe_->taste("cmdOK");
    QCOMPARE(meldungen.texte, QStringList());
    QCOMPARE(probe_->pflanzen(), probe_->arbeit(u"bewertung >= 5"_s));
}

void TestAusfall::schreibgeschuetzterOrdner_data()
{
    QTest::addColumn<bool>("ablage"); // whether the user has a folder of his own
    QTest::newRow("mit eigenem Ordner") << true;
    QTest::newRow("ohne") << false;
}

void TestAusfall::schreibgeschuetzterOrdner()
{
    QFETCH(const bool, ablage);
    QTemporaryDir daheim;
    qputenv("XDG_CACHE_HOME", daheim.path().toUtf8());
    const QStringList vorher = QDir(probe_->ordner.pfad()).entryList(QDir::Files);
    QVERIFY(nichtGespeichertes(probe_->programm).isEmpty());
    if (ablage)
        NurLesen::ueberlassen(daheim.path());
    const NurLesen sperre(probe_->ordner.pfad());
    Meldungsfaenger meldungen;
    {
        Laufordner laufordner;
        laufordner.bestimmen(probe_->programm);
        const QString satz = nichtGespeichertes(probe_->programm);
        QVERIFY2(satz.startsWith(u"Der Ordner des Programms ist schreibgeschützt:"_s), qPrintable(satz));
        QVERIFY2(satz.endsWith(u"werden nicht gespeichert."_s), qPrintable(satz));
        QCOMPARE(probe_->programm.LaufPfad.startsWith(daheim.path()), ablage);
        probe_->oeffnen();
        if (ablage) {
            QCOMPARE(meldungen.texte, QStringList());
            QCOMPARE(probe_->pflanzen(), probe_->arbeit(u"bewertung >= 5"_s));
            probe_->dialogZeigen();
            probe_->klicken(probe_->finde(u"chkGift"_s));
            probe_->taste("cmdOK");
            const QList<qint64> gefiltert = probe_->pflanzen();
            QCOMPARE(gefiltert, probe_->arbeit(u"GIFTIG = 'True' AND bewertung >= 5"_s));
            probe_->klick("cmdFilterEin");
            QVERIFY(probe_->pflanzen() != gefiltert);
            QStringList dateien = QDir(probe_->programm.LaufPfad).entryList(QDir::Files);
            dateien.sort();
            QCOMPARE(dateien, (QStringList{u"TempFilterTo1.fft"_s, u"db_to1.tmp"_s, u"flox.lock"_s}));
            probe_->klick("cmdFilterEin");
            QCOMPARE(probe_->pflanzen(), gefiltert);
            QCOMPARE(meldungen.texte, QStringList());
        } else {
            const QString grund = u"Die Datei oder ihr Ordner ist schreibgeschützt."_s;
            QCOMPARE(meldungen.texte, QStringList{u"Die Datei '%1' kann nicht geschrieben werden: %2"_s.arg(kopie(), grund)});
            QCOMPARE(probe_->pflanzen(), alle());
        }
        probe_->fenster.reset();
    }
    QCOMPARE(QDir(probe_->ordner.pfad()).entryList(QDir::Files), vorher);
    QVERIFY(QDir(daheim.path() + u"/flox"_s).isEmpty());
}

void TestAusfall::notizOhneKopie()
{
    Meldungsfaenger meldungen;
    const Stoerung stoerung("Ordner", kopie());
    probe_->oeffnen();
    const qint64 artnr = probe_->fenster->satz().artnr();
    QVERIFY(probe_->fenster->satz().benutzerSchreiben({artnr, u"ohne Kopie"_s, u"1    "_s}));
    QCOMPARE(probe_->arbeit(u"benu_bemerkung = 'ohne Kopie' AND benu_eigen = '1    '"_s), QList<qint64>{artnr});
}

FLOX_TEST(tst_ausfall, TestAusfall)
#include "tst_ausfall.moc"
