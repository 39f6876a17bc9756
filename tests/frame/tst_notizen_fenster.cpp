#include "Handgriffe.h"
#include "Rahmenprobe.h"

#include "controls/Steuerelemente.h"
#include "filters/Filterdialog.h"
#include "frame/Flaeche.h"
#include "frame/Registry.h"
#include "tests/Testprogramm.h"

#include <QPushButton>
#include <QTest>

using namespace Qt::StringLiterals;

/* Notes where several windows show the same plant, and at the end of the program. */

class TestNotizenFenster : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void zweitesFensterZeigtUndBewahrt();
    void offenesFensterFolgt();
    void klickOhneAenderungFolgt();
    void eigeneAenderungBleibt();
    void jedesFeldFuerSich();
    void andereSparteFolgtNicht();
    void jedeAnsichtFragtDieArbeitsdatenbank();
    void ohneDatensatzAusDerKopie();
    void gedrucktWirdDasGezeigte();
    void ueberDenFilterdialog();
    void programmendeFragt_data();
    void programmendeFragt();
    void programmendeOhneMeldungSpeichert();
    void endeOhneFrageHebtAuf();

private:
    Pflanzenfenster *fenster(int nummer, Sparte sparte = Sparte::Topf) { return probe_->fenster(nummer, sparte); }
    QString text(int nummer) { return hand::notiz(fenster(nummer))->toPlainText(); }
    QString gespeichert() { return hand::gespeichert(probe_->ordner, Sparte::Topf, artnr_); }
    QStringList aufgehoben() { return QDir(probe_->ordner.pfad()).entryList({u"*otiz*.txt"_s}, QDir::Files); }

    std::unique_ptr<Rahmenprobe> probe_;
    qint64 artnr_ = 0;
};

void TestNotizenFenster::init()
{
    probe_.reset();
    probe_ = std::make_unique<Rahmenprobe>();
    probe_->programm.MdiStatus = 0;
    probe_->ordner.db()->Execute(u"UPDATE TOPFPFL SET benu_bemerkung = NULL, benu_eigen = NULL"_s);
    probe_->laden();
    probe_->zentrale->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(probe_->zentrale.get()));
    probe_->waehlen("mnudbtopfpflanzen");
    probe_->waehlen("mnudbtopfpflanzen");
    artnr_ = fenster(1)->satz().artnr();
    QCOMPARE(fenster(2)->satz().artnr(), artnr_);
    hand::titelleiste(fenster(1));
}

void TestNotizenFenster::zweitesFensterZeigtUndBewahrt()
{
    hand::notieren(fenster(1), u"vom ersten"_s);
    hand::klick(fenster(1), "cmdNext");
    QCOMPARE(gespeichert(), u"vom ersten/     "_s);
    // A mere click in the other window's note, then on.
    hand::titelleiste(fenster(2));
    QTest::mouseClick(hand::notiz(fenster(2))->viewport(), Qt::LeftButton);
    hand::klick(fenster(2), "cmdNext");
    QCOMPARE(gespeichert(), u"vom ersten/     "_s);
    hand::klick(fenster(2), "cmdBack");
    QCOMPARE(text(2), u"vom ersten"_s);
}

void TestNotizenFenster::offenesFensterFolgt()
{
    hand::notieren(fenster(1), u"folgt"_s);
    hand::ankreuzen(fenster(1), 2);
    QCOMPARE(text(2), QString());
    hand::klick(fenster(1), "cmdNext");
    QCOMPARE(text(2), u"folgt"_s);
    QVERIFY(hand::eigenschaft(fenster(2), 2)->isChecked());
    QVERIFY(!fenster(2)->DatenGeaendert);
    // Another plant is not touched.
    hand::klick(fenster(1), "cmdNext");
    hand::notieren(fenster(1), u"woanders"_s);
    hand::klick(fenster(1), "cmdNext");
    QCOMPARE(text(2), u"folgt"_s);
}

void TestNotizenFenster::klickOhneAenderungFolgt()
{
    QTest::mouseClick(hand::notiz(fenster(2))->viewport(), Qt::LeftButton);
    QVERIFY(fenster(2)->DatenGeaendert);
    hand::titelleiste(fenster(1));
    hand::notieren(fenster(1), u"spaeter"_s);
    hand::klick(fenster(1), "cmdNext");
    QCOMPARE(text(2), u"spaeter"_s);
    hand::klick(fenster(2), "cmdNext");
    QCOMPARE(gespeichert(), u"spaeter/     "_s);
}

void TestNotizenFenster::eigeneAenderungBleibt()
{
    hand::titelleiste(fenster(2));
    hand::notieren(fenster(2), u"eigenes"_s);
    hand::titelleiste(fenster(1));
    hand::notieren(fenster(1), u"fremdes"_s);
    hand::klick(fenster(1), "cmdNext");
    QCOMPARE(gespeichert(), u"fremdes/     "_s);
    QCOMPARE(text(2), u"eigenes"_s);
    QVERIFY(fenster(2)->DatenGeaendert);
    hand::klick(fenster(2), "cmdNext");
    QCOMPARE(gespeichert(), u"eigenes/     "_s);
}

void TestNotizenFenster::jedesFeldFuerSich()
{
    // Only the property is changed here: the note that another window stores meanwhile must not go under.
    hand::titelleiste(fenster(2));
    hand::ankreuzen(fenster(2), 0);
    hand::titelleiste(fenster(1));
    hand::notieren(fenster(1), u"Notiz"_s);
    hand::klick(fenster(1), "cmdNext");
    QCOMPARE(text(2), u"Notiz"_s);
    QVERIFY(hand::eigenschaft(fenster(2), 0)->isChecked());
    hand::klick(fenster(2), "cmdNext");
    QCOMPARE(gespeichert(), u"Notiz/1    "_s);
}

void TestNotizenFenster::andereSparteFolgtNicht()
{
    probe_->waehlen("mnudbapfel");
    Pflanzenfenster *apfel = fenster(1, Sparte::Apfel);
    const QString vorher = hand::notiz(apfel)->toPlainText();
    hand::titelleiste(fenster(1));
    hand::notieren(fenster(1), u"nur hier"_s);
    hand::klick(fenster(1), "cmdNext");
    QCOMPARE(hand::notiz(apfel)->toPlainText(), vorher);
}

void TestNotizenFenster::jedeAnsichtFragtDieArbeitsdatenbank()
{
    hand::klick(fenster(1), "cmdNext");
    probe_->ordner.db()->Execute(u"UPDATE TOPFPFL SET benu_bemerkung = 'neu', benu_eigen = ' 1  1' WHERE ARTNR = ?"_s, {artnr_});
    hand::klick(fenster(1), "cmdBack");
    QCOMPARE(text(1), u"neu"_s);
    QVERIFY(hand::eigenschaft(fenster(1), 1)->isChecked() && hand::eigenschaft(fenster(1), 4)->isChecked());
    QVERIFY(!hand::eigenschaft(fenster(1), 0)->isChecked());
    QVERIFY(!fenster(1)->DatenGeaendert);
}

void TestNotizenFenster::ohneDatensatzAusDerKopie()
{
    probe_->ordner.db()->Execute(u"DELETE FROM TOPFPFL WHERE ARTNR = ?"_s, {artnr_});
    hand::notieren(fenster(1), u"nur in der Kopie"_s);
    hand::klick(fenster(1), "cmdNext");
    QVERIFY(!fenster(1)->DatenGeaendert);
    hand::klick(fenster(1), "cmdBack");
    QCOMPARE(text(1), u"nur in der Kopie"_s);
}

void TestNotizenFenster::gedrucktWirdDasGezeigte()
{
    hand::notieren(fenster(1), u"auf Papier"_s);
    hand::klick(fenster(1), "cmdNext");
    // What prints window 2 reads its record.
    QCOMPARE(fenster(2)->Auslesen(u"benu_bemerkung"_s), u"auf Papier"_s);
}

void TestNotizenFenster::ueberDenFilterdialog()
{
    hand::notieren(fenster(1), u"vor dem Dialog"_s);
    hand::klick(fenster(1), "cmdFilter");
    QCOMPARE(gespeichert(), u"vor dem Dialog/     "_s);
    QCOMPARE(text(2), u"vor dem Dialog"_s);
    hand::druecken(fenster(1)->filterdialog(), "cmdOK");
    QCOMPARE(text(1), u"vor dem Dialog"_s);
}

void TestNotizenFenster::programmendeFragt_data()
{
    QTest::addColumn<bool>("zurueck");
    QTest::newRow("Zurück") << true;
    QTest::newRow("Schließen") << false;
}

void TestNotizenFenster::programmendeFragt()
{
    QFETCH(const bool, zurueck);
    hand::klick(fenster(2), "cmdNext");
    const qint64 zweite = fenster(2)->satz().artnr();
    hand::notieren(fenster(2), u"nicht zu speichern"_s);
    {
        const Schreibsperre sperre(probe_->ordner.datenbank());
        Antworten antworten({zurueck ? u"Zurück"_s : u"Schließen"_s});
        bool gefragtBeimSehen = false;
        antworten.davor = [&] { gefragtBeimSehen = gefragtBeimSehen || probe_->zentrale->isVisible(); };
        QCOMPARE(probe_->zentrale->close(), !zurueck);
        QVERIFY(gefragtBeimSehen); // asked while the window still stands
        QVERIFY(antworten.texte[0].contains(u"wird gerade von einem anderen Programm benutzt"_s));
        QVERIFY(antworten.angeboten[0].contains(u"Zurück"_s));
    }
    if (!zurueck) {
        QCOMPARE(aufgehoben().size(), 1);
        QFile datei(probe_->ordner.pfad(aufgehoben()[0]));
        QVERIFY(datei.open(QIODevice::ReadOnly));
        QVERIFY(QString::fromUtf8(datei.readAll()).contains(u"nicht zu speichern"_s));
        QVERIFY(!probe_->temp("db_to1.tmp") && !probe_->temp("db_to2.tmp"));
        return;
    }
    QVERIFY(probe_->zentrale->isVisible());
    QCOMPARE(text(2), u"nicht zu speichern"_s);
    QVERIFY(fenster(1) && fenster(2) && fenster(2)->DatenGeaendert);
    QCOMPARE(probe_->zentrale->findChild<Flaeche *>()->activeSubWindow(), hand::unterfenster(fenster(2)));
    QVERIFY(aufgehoben().isEmpty());
    QVERIFY(probe_->zentrale->close());
    QCOMPARE(hand::gespeichert(probe_->ordner, Sparte::Topf, zweite), u"nicht zu speichern/     "_s);
}

void TestNotizenFenster::programmendeOhneMeldungSpeichert()
{
    hand::notieren(fenster(2), u"zum Schluss"_s);
    Antworten antworten;
    QVERIFY(probe_->zentrale->close());
    QCOMPARE(antworten.texte, QStringList());
    QCOMPARE(gespeichert(), u"zum Schluss/     "_s);
}

void TestNotizenFenster::endeOhneFrageHebtAuf()
{
    hand::notieren(fenster(1), u"bei Stromausfall"_s);
    {
        const Schreibverbot verbot(probe_->ordner);
        Antworten antworten;
        probe_->zentrale.reset();
        QCOMPARE(antworten.texte, QStringList());
    }
    QCOMPARE(aufgehoben().size(), 1);
}

FLOX_TEST(tst_notizen_fenster, TestNotizenFenster)
#include "tst_notizen_fenster.moc"
