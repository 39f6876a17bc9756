#include "Fensterprobe.h"
#include "tests/frame/Handgriffe.h"
#include "tests/Testprogramm.h"

#include <QCheckBox>
#include <QPlainTextEdit>
#include <QTest>

using namespace Qt::StringLiterals;

/* What the user wrote is safe before any scratch file, and before the window goes. */

namespace {

/// Another home and folder for temporary files, for as long as it lives.
class Heim
{
public:
    explicit Heim(const QString &pfad)
    {
        for (const char *name : {"HOME", "TMPDIR", "XDG_DOCUMENTS_DIR", "XDG_CONFIG_HOME"}) {
            vorher_[name] = qgetenv(name);
            qputenv(name, pfad.toUtf8());
        }
    }
    ~Heim()
    {
        for (auto i = vorher_.cbegin(); i != vorher_.cend(); ++i) {
            if (i.value().isNull())
                qunsetenv(i.key().constData());
            else
                qputenv(i.key().constData(), i.value());
        }
    }

private:
    QMap<QByteArray, QByteArray> vorher_;
};

} // namespace

class TestNotizenSicher : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void kaputteKopieHaeltNichtsAuf_data();
    void kaputteKopieHaeltNichtsAuf();
    void kaputteKopieBehaeltDieAuswahl();
    void langeNotizBeiVollerKopie();
    void fehlendePflanzeInKaputterKopie();
    void schliessenFragt_data();
    void schliessenFragt();
    void aufgehobenesHatAlles();
    void zweiMalAufgehoben();
    void aufhebenAnAnderemOrt();
    void nirgendsAufzuheben_data();
    void nirgendsAufzuheben();
    void nichtsZuFragen();
    void ohneDatenNochZuSpeichern();

private:
    QPlainTextEdit *notiz() { return probe_->finde<QPlainTextEdit>(u"txtEigeneBemerkung"_s); }
    void schreiben(const QString &text);
    QString arbeit() { return probe_->arbeitLesen(artnr_, u"benu_bemerkung"_s); }
    QStringList aufgehoben(const QString &ordner) { return QDir(ordner).entryList({u"*otiz*.txt"_s}, QDir::Files); }
    QString inhalt(const QString &pfad);

    std::unique_ptr<Fensterprobe> probe_;
    qint64 artnr_ = 0;
};

void TestNotizenSicher::init()
{
    probe_.reset();
    probe_ = std::make_unique<Fensterprobe>();
    probe_->alleZeigen();
    probe_->ordner.db()->Execute(u"UPDATE TOPFPFL SET benu_bemerkung = NULL, benu_eigen = NULL"_s);
    probe_->oeffnen();
    artnr_ = probe_->fenster->satz().artnr();
    probe_->reiterVon(u"txtEigeneBemerkung"_s);
}

void TestNotizenSicher::schreiben(const QString &text)
{
    QTest::mouseClick(notiz()->viewport(), Qt::LeftButton);
    notiz()->setPlainText(text);
}

QString TestNotizenSicher::inhalt(const QString &pfad)
{
    QFile datei(pfad);
    return datei.open(QIODevice::ReadOnly) ? QString::fromUtf8(datei.readAll()) : u"(nicht lesbar)"_s;
}

void TestNotizenSicher::kaputteKopieHaeltNichtsAuf_data()
{
    QTest::addColumn<QString>("sql");
    QTest::newRow("table gone") << "DROP TABLE TOPFPFL";
    QTest::newRow("row gone") << "DELETE FROM TOPFPFL";
    QTest::newRow("refuses changes") << "CREATE TRIGGER halt BEFORE UPDATE ON TOPFPFL BEGIN SELECT RAISE(ABORT, 'halt'); END";
}

void TestNotizenSicher::kaputteKopieHaeltNichtsAuf()
{
    QFETCH(QString, sql);
    schreiben(u"haelt"_s);
    probe_->fenster->satz().kopie().Execute(sql);
    Antworten antworten;
    probe_->klick("cmdNext");
    QCOMPARE(arbeit(), u"haelt"_s);
    QCOMPARE(antworten.texte, QStringList());
    QVERIFY(!probe_->fenster->DatenGeaendert);
    QVERIFY(probe_->fenster->satz().artnr() != artnr_);
    // The copy was made anew: walking and noting go on.
    const qint64 zweite = probe_->fenster->satz().artnr();
    schreiben(u"und weiter"_s);
    probe_->klick("cmdBack");
    QCOMPARE(antworten.texte, QStringList());
    QCOMPARE(probe_->arbeitLesen(zweite, u"benu_bemerkung"_s), u"und weiter"_s);
    QCOMPARE(probe_->fenster->satz().artnr(), artnr_);
    QCOMPARE(probe_->fenster->Auslesen(u"benu_bemerkung"_s), u"haelt"_s);
}

void TestNotizenSicher::kaputteKopieBehaeltDieAuswahl()
{
    // A filtered set, in its order, on a record in its middle.
    probe_->ordner.db()->Execute(u"UPDATE TOPFPFL SET bewertung = 1 WHERE ARTNR % 3 = 0"_s);
    probe_->fenster->close();
    probe_->fenster = probe_->weiteres(1);
    probe_->oeffnen();
    probe_->reiterVon(u"txtEigeneBemerkung"_s);
    for (int i = 0; i < 7; ++i)
        probe_->klick("cmdNext");
    Recordset &satz = probe_->fenster->satz().haupt();
    const std::vector<qint64> folge = satz.Schluesselfolge();
    const int anzahl = probe_->fenster->Anzahl;
    artnr_ = probe_->fenster->satz().artnr();
    schreiben(u"mittendrin"_s);
    probe_->fenster->satz().kopie().Execute(u"DROP TABLE TOPFPFL"_s);
    probe_->klick("cmdNext");
    QCOMPARE(arbeit(), u"mittendrin"_s);
    QVERIFY(probe_->fenster->satz().haupt().Schluesselfolge() == folge);
    QCOMPARE(probe_->fenster->satz().haupt().AbsolutePosition(), 8);
    QCOMPARE(probe_->fenster->satz().artnr(), folge[8]);
    QCOMPARE(probe_->fenster->Anzahl, anzahl);
    QCOMPARE(hand::zeilenDerKopie(probe_->fenster.get()), anzahl);
    QCOMPARE(probe_->text(u"lblBotName"_s), probe_->name());
}

void TestNotizenSicher::langeNotizBeiVollerKopie()
{
    // The copy may not grow: a long note needs pages that it cannot get.
    Datenbank &kopie = probe_->fenster->satz().kopie();
    kopie.Execute(u"PRAGMA max_page_count = 1"_s);
    const QString lang = QStringList(6000, QString(99, u'x')).join(u'\n');
    Anweisung &freie = kopie.vorbereitet(u"SELECT freelist_count * page_size FROM pragma_freelist_count, pragma_page_size"_s);
    QVERIFY(freie.schritt());
    QVERIFY2(freie.zahl(0) < lang.size(), qPrintable(freie.text(0)));
    freie.zuruecksetzen();
    schreiben(lang);
    Antworten antworten;
    probe_->klick("cmdNext");
    QVERIFY(arbeit() == lang);
    QVERIFY(!probe_->fenster->DatenGeaendert);
    schreiben(u"kurz"_s);
    const qint64 zweite = probe_->fenster->satz().artnr();
    probe_->klick("cmdBack");
    QCOMPARE(probe_->arbeitLesen(zweite, u"benu_bemerkung"_s), u"kurz"_s);
    QCOMPARE(antworten.texte, QStringList());
    QVERIFY(notiz()->toPlainText() == lang);
    schreiben(u"gekuerzt"_s);
    probe_->klick("cmdNext");
    QCOMPARE(arbeit(), u"gekuerzt"_s);
}

void TestNotizenSicher::fehlendePflanzeInKaputterKopie()
{
    // Neither database can take it: it is told, the text stays.
    schreiben(u"nirgends"_s);
    probe_->ordner.db()->Execute(u"DELETE FROM TOPFPFL WHERE ARTNR = ?"_s, {artnr_});
    probe_->fenster->satz().kopie().Execute(u"DROP TABLE TOPFPFL"_s);
    {
        Antworten antworten;
        probe_->klick("cmdNext");
        QCOMPARE(antworten.texte.size(), 1);
    }
    QVERIFY(probe_->fenster->DatenGeaendert);
    QCOMPARE(notiz()->toPlainText(), u"nirgends"_s);
    // And it does not block for good.
    Antworten antworten({u"Schließen"_s});
    QVERIFY(probe_->fenster->close());
    QCOMPARE(aufgehoben(probe_->ordner.pfad()).size(), 1);
}

void TestNotizenSicher::schliessenFragt_data()
{
    QTest::addColumn<QString>("antwort");
    QTest::newRow("Zurück") << u"Zurück"_s;
    QTest::newRow("default") << QString();
    QTest::newRow("Schließen") << u"Schließen"_s;
}

void TestNotizenSicher::schliessenFragt()
{
    QFETCH(QString, antwort);
    const bool geht = antwort == u"Schließen"_s;
    schreiben(u"wichtig"_s);
    probe_->finde<QCheckBox>(u"sschkBenutzer_2"_s)->setChecked(true);
    {
        const Schreibsperre sperre(probe_->ordner.datenbank());
        Antworten antworten({antwort});
        QCOMPARE(probe_->fenster->close(), geht);
        QVERIFY(antworten.texte[0].contains(u"Die Datenbank 'flox-demo.mdb' wird gerade von einem anderen Programm benutzt."_s));
        QVERIFY(antworten.texte[0].contains(probe_->name().isEmpty() ? u"Notiz"_s : probe_->name()));
        QVERIFY(antworten.angeboten[0].contains(u"Zurück"_s) && antworten.angeboten[0].contains(u"Schließen"_s));
    }
    QCOMPARE(QFile::exists(probe_->ordner.pfad(u"db_to1.tmp"_s)), !geht);
    QCOMPARE(probe_->zentrale.geschlossen, geht ? 1 : 0);
    QCOMPARE(aufgehoben(probe_->ordner.pfad()).size(), geht ? 1 : 0);
    QCOMPARE(arbeit(), QString());
    if (geht)
        return;
    QVERIFY(probe_->fenster->isVisible());
    QVERIFY(probe_->fenster->DatenGeaendert);
    QCOMPARE(notiz()->toPlainText(), u"wichtig"_s);
    QVERIFY(probe_->fenster->close());
    QCOMPARE(arbeit(), u"wichtig"_s);
    QCOMPARE(probe_->arbeitLesen(artnr_, u"benu_eigen"_s), u"  1  "_s);
}

void TestNotizenSicher::aufgehobenesHatAlles()
{
    const QString text = u"Zeile 1\nZeile 2 mit „Umlauten“: äöüß"_s, name = probe_->name();
    schreiben(text);
    const QString eigenschaft = probe_->finde<QCheckBox>(u"sschkBenutzer_2"_s)->text();
    probe_->finde<QCheckBox>(u"sschkBenutzer_2"_s)->setChecked(true);
    const Schreibverbot verbot(probe_->ordner);
    Antworten antworten({u"Schließen"_s});
    QVERIFY(probe_->fenster->close());
    const QStringList dateien = aufgehoben(probe_->ordner.pfad());
    QCOMPARE(dateien.size(), 1);
    const QString aufgehoben = inhalt(probe_->ordner.pfad(dateien[0]));
    for (const QString &teil : {text, name, eigenschaft, u"Topfpflanzen"_s})
        QVERIFY2(aufgehoben.contains(teil), qPrintable(aufgehoben));
    // The place is told.
    QCOMPARE(antworten.texte.size(), 2);
    QVERIFY2(antworten.texte[1].contains(dateien[0]), qPrintable(antworten.texte[1]));
}

void TestNotizenSicher::zweiMalAufgehoben()
{
    for (const QString &text : {u"die erste"_s, u"die zweite"_s}) {
        schreiben(text);
        const Schreibverbot verbot(probe_->ordner);
        Antworten antworten({u"Schließen"_s});
        QVERIFY(probe_->fenster->close());
        probe_->fenster = probe_->weiteres(1);
        probe_->oeffnen();
        probe_->reiterVon(u"txtEigeneBemerkung"_s);
    }
    QString alles;
    for (const QString &datei : aufgehoben(probe_->ordner.pfad()))
        alles += inhalt(probe_->ordner.pfad(datei));
    QVERIFY2(alles.contains(u"die erste"_s) && alles.contains(u"die zweite"_s), qPrintable(alles));
}

void TestNotizenSicher::aufhebenAnAnderemOrt()
{
    const QTemporaryDir anderswo;
    const Heim heim(anderswo.path());
    QVERIFY(QDir().mkdir(probe_->ordner.pfad(u"flox-notizen.txt"_s))); // the file cannot stand there
    schreiben(u"woanders"_s);
    const Schreibverbot verbot(probe_->ordner);
    Antworten antworten({u"Schließen"_s});
    QVERIFY(probe_->fenster->close());
    QCOMPARE(aufgehoben(anderswo.path()).size(), 1);
    QVERIFY(inhalt(anderswo.filePath(aufgehoben(anderswo.path())[0])).contains(u"woanders"_s));
}

void TestNotizenSicher::nirgendsAufzuheben_data()
{
    QTest::addColumn<QString>("antwort");
    QTest::addColumn<bool>("geht");
    QTest::newRow("Zurück") << u"Zurück"_s << false;
    QTest::newRow("Verwerfen") << u"Verwerfen"_s << true;
}

void TestNotizenSicher::nirgendsAufzuheben()
{
    QFETCH(QString, antwort);
    QFETCH(bool, geht);
    const Heim heim(u"/nicht/vorhanden"_s);
    QVERIFY(QDir().mkdir(probe_->ordner.pfad(u"flox-notizen.txt"_s)));
    schreiben(u"letzte Worte"_s);
    const Schreibverbot verbot(probe_->ordner);
    Antworten antworten({u"Schließen"_s, antwort});
    QCOMPARE(probe_->fenster->close(), geht);
    QCOMPARE(antworten.texte.size(), 2);
    QVERIFY(antworten.angeboten[1].contains(u"Verwerfen"_s) && antworten.angeboten[1].contains(u"Zurück"_s));
    QCOMPARE(notiz()->toPlainText(), u"letzte Worte"_s);
    probe_->fenster->DatenGeaendert = false; // the test is over
}

void TestNotizenSicher::nichtsZuFragen()
{
    const Schreibverbot verbot(probe_->ordner);
    Antworten antworten;
    QVERIFY(probe_->fenster->close());
    QCOMPARE(antworten.texte, QStringList());
    QVERIFY(aufgehoben(probe_->ordner.pfad()).isEmpty());
}

void TestNotizenSicher::ohneDatenNochZuSpeichern()
{
    // The window lost its copy; what it still shows is one plant's note, and stays that plant's.
    probe_->fenster->DatensätzeAuffüllen();
    QVERIFY(!probe_->fenster->satz().offen());
    schreiben(u"trotzdem"_s);
    Antworten antworten;
    QVERIFY(probe_->fenster->close());
    QCOMPARE(antworten.texte, QStringList());
    QCOMPARE(arbeit(), u"trotzdem"_s);
}

FLOX_TEST(tst_notizen_sicher, TestNotizenSicher)
#include "tst_notizen_sicher.moc"
