#include "Fensterprobe.h"

#include "store/Fehler.h"
#include "tests/Testprogramm.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFile>
#include <QKeySequence>
#include <QPlainTextEdit>
#include <QSignalSpy>
#include <QTest>

#include <sqlite3.h>

using namespace Qt::StringLiterals;

/* The user's own remark and properties: when they are stored, and what happens when they cannot be. */

namespace {

/// A second user of a database file who is about to write: reading goes on, writing has to wait.
class Schreibsperre
{
public:
    explicit Schreibsperre(const QString &pfad)
    {
        if (sqlite3_open(pfad.toUtf8().constData(), &db_) != SQLITE_OK
            || sqlite3_exec(db_, "BEGIN IMMEDIATE", nullptr, nullptr, nullptr) != SQLITE_OK)
            qFatal("The database cannot be locked: %s", sqlite3_errmsg(db_));
    }
    ~Schreibsperre() { sqlite3_close_v2(db_); }

private:
    sqlite3 *db_ = nullptr;
};

/// Looks at the window the moment it wants to print.
class Druckzentrale : public Testzentrale
{
public:
    void drucken() override
    {
        Testzentrale::drucken();
        gesehen();
    }
    std::function<void()> gesehen;
};

} // namespace

class TestNotizen : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void nurDieMausMarkiert();
    void fuenfZeichenInBeidenDatenbanken();
    void klickenOhneAendernSchreibtAuch();
    void allesWasVerlaesstSpeichert_data();
    void allesWasVerlaesstSpeichert();
    void druckenNachDemSpeichern_data();
    void druckenNachDemSpeichern();
    void umschaltenSpeichertNicht();
    void schliessenSpeichert();
    void darstellenMarkiertNichts();
    void neuesDarstellenBehaeltWasGetipptIst();
    void ueberlebtDasFenster();
    void namenDerEigenschaften();
    void namenAendern();
    void schreibgeschuetzteArbeitsdatenbank_data();
    void schreibgeschuetzteArbeitsdatenbank();
    void schreibgeschuetzteDatei();
    void pflanzeNichtMehrInDerArbeitsdatenbank();

private:
    QPlainTextEdit *notiz() { return probe_->finde<QPlainTextEdit>(u"txtEigeneBemerkung"_s); }
    QCheckBox *eigen(int i) { return probe_->finde<QCheckBox>(u"sschkBenutzer_%1"_s.arg(i)); }
    /// Clicks into the note and types.
    void schreiben(const QString &text);
    /// Note and properties of a record: "copy|working database", each "note/properties".
    QString gespeichert(qint64 artnr);

    Druckzentrale druckzentrale_; ///< outlives the window of a test
    std::unique_ptr<Fensterprobe> probe_;
    qint64 artnr_ = 0;
};

void TestNotizen::init()
{
    probe_.reset();
    probe_ = std::make_unique<Fensterprobe>();
    probe_->alleZeigen();
    probe_->ordner.db()->Execute(u"UPDATE TOPFPFL SET benu_bemerkung = NULL, benu_eigen = NULL"_s);
    probe_->oeffnen();
    artnr_ = probe_->fenster->satz().artnr();
    probe_->reiterVon(u"txtEigeneBemerkung"_s);
}

void TestNotizen::schreiben(const QString &text)
{
    QTest::mouseClick(notiz()->viewport(), Qt::LeftButton);
    notiz()->setPlainText(text);
}

QString TestNotizen::gespeichert(qint64 artnr)
{
    Recordset &satz = probe_->fenster->satz().haupt();
    const qsizetype stelle = satz.AbsolutePosition();
    satz.Finden(artnr);
    const QString kopie = satz.Fields(u"benu_bemerkung").Text() + u'/' + satz.Fields(u"benu_eigen").Text();
    satz.setAbsolutePosition(stelle);
    return kopie + u'|' + probe_->arbeitLesen(artnr, u"benu_bemerkung"_s) + u'/' + probe_->arbeitLesen(artnr, u"benu_eigen"_s);
}

void TestNotizen::nurDieMausMarkiert()
{
    bool &geaendert = probe_->fenster->DatenGeaendert;
    QVERIFY(!geaendert);
    // The focus was put there by the program: the user has not gone into the note.
    notiz()->setFocus();
    QTest::keyClicks(notiz(), u"nur getippt"_s);
    QCOMPARE(notiz()->toPlainText(), u"nur getippt"_s);
    QVERIFY(!geaendert);
    eigen(0)->setFocus();
    QVERIFY(!geaendert);
    QTest::mousePress(notiz()->viewport(), Qt::LeftButton);
    QVERIFY(geaendert);
    for (int i = 0; i < 5; ++i) {
        geaendert = false;
        QTest::mousePress(eigen(i), Qt::LeftButton);
        QVERIFY2(geaendert, qPrintable(QString::number(i)));
        QTest::mouseRelease(eigen(i), Qt::LeftButton);
    }
    geaendert = false;
    QTest::mouseClick(probe_->finde(u"lblBotName"_s), Qt::LeftButton);
    QTest::mouseClick(probe_->finde(u"SSFraBenutzer1"_s), Qt::LeftButton);
    QVERIFY(!geaendert);
}

void TestNotizen::fuenfZeichenInBeidenDatenbanken()
{
    schreiben(u"Steht am Südfenster.\nBlüht 'gut' & \"lange\"."_s);
    eigen(0)->click();
    eigen(2)->click();
    QCOMPARE(gespeichert(artnr_), u"/|/"_s);
    probe_->klick("cmdNext");
    const QString beides = u"Steht am Südfenster.\nBlüht 'gut' & \"lange\"./1 1  "_s;
    QCOMPARE(gespeichert(artnr_), beides + u'|' + beides);
    QVERIFY(!probe_->fenster->DatenGeaendert);
    QCOMPARE(notiz()->toPlainText(), QString());
    QVERIFY(!eigen(0)->isChecked() && !eigen(2)->isChecked());
    probe_->klick("cmdBack");
    QCOMPARE(probe_->fenster->satz().artnr(), artnr_);
    QCOMPARE(notiz()->toPlainText(), u"Steht am Südfenster.\nBlüht 'gut' & \"lange\"."_s);
    for (int i = 0; i < 5; ++i)
        QCOMPARE(eigen(i)->isChecked(), i == 0 || i == 2);
    // Taking everything back leaves five blanks and an empty note.
    schreiben({});
    eigen(0)->click();
    eigen(2)->click();
    probe_->klick("cmdLast");
    QCOMPARE(gespeichert(artnr_), u"/     |/     "_s);
}

void TestNotizen::klickenOhneAendernSchreibtAuch()
{
    QTest::mouseClick(notiz()->viewport(), Qt::LeftButton);
    probe_->klick("cmdNext");
    QCOMPARE(gespeichert(artnr_), u"/     |/     "_s);
}

void TestNotizen::allesWasVerlaesstSpeichert_data()
{
    QTest::addColumn<QString>("knopf");
    for (const char *knopf :
         {"cmdFirst", "cmdBack", "cmdNext", "cmdLast", "cboArten", "cmdFilter", "cmdFilterEin", "cmdFilterLaden", "cmdFilterSpeichern", "cmdDruck"})
        QTest::newRow(knopf) << QString::fromLatin1(knopf);
}

void TestNotizen::allesWasVerlaesstSpeichert()
{
    QFETCH(QString, knopf);
    probe_->fenster->satz().haupt().setAbsolutePosition(5);
    probe_->fenster->darstellen();
    probe_->fenster->NaviPruefung();
    artnr_ = probe_->fenster->satz().artnr();
    schreiben(u"Notiz"_s);
    // Dialogs that open are none of this test's business.
    QTimer schliesser;
    schliesser.setInterval(5);
    connect(&schliesser, &QTimer::timeout, this, [] {
        if (QWidget *dialog = QApplication::activeModalWidget())
            dialog->close();
    });
    schliesser.start();
    if (knopf == u"cboArten") {
        auto *auswahl = probe_->finde<QComboBox>(knopf);
        auswahl->setFocus();
        QTRY_VERIFY(probe_->fenster->ArtenHatFokus);
        auswahl->setCurrentIndex(8);
    } else {
        auto *button = probe_->finde<Bildknopf>(knopf);
        button->setEnabled(true);
        QTest::mouseClick(button, Qt::LeftButton);
    }
    QVERIFY(!probe_->fenster->DatenGeaendert);
    QCOMPARE(probe_->arbeitLesen(artnr_, u"benu_bemerkung"_s), u"Notiz"_s);
    QCOMPARE(gespeichert(artnr_), u"Notiz/     |Notiz/     "_s);
}

void TestNotizen::druckenNachDemSpeichern_data()
{
    QTest::addColumn<bool>("tastatur");
    QTest::addColumn<bool>("gesperrt"); // nothing can be stored
    QTest::newRow("Maus") << false << false;
    QTest::newRow("Strg+P") << true << false;
    QTest::newRow("Datenbank gesperrt") << false << true;
}

void TestNotizen::druckenNachDemSpeichern()
{
    QFETCH(const bool, tastatur);
    QFETCH(const bool, gesperrt);
    probe_->fenster->close();
    probe_->fenster = std::make_unique<Pflanzenfenster>(probe_->programm, druckzentrale_, *fensterbeschreibung(Sparte::Topf), 1);
    probe_->oeffnen();
    probe_->reiterVon(u"txtEigeneBemerkung"_s);
    druckzentrale_.gedruckt = 0;
    druckzentrale_.gesehen = [this] {
        QVERIFY(!probe_->fenster->DatenGeaendert);
        QCOMPARE(gespeichert(artnr_), u"Notiz/     |Notiz/     "_s);
    };
    const auto drucken = [&] {
        if (tastatur)
            QTest::keySequence(probe_->fenster.get(), QKeySequence::Print);
        else
            probe_->klick("cmdDruck");
    };
    schreiben(u"Notiz"_s);
    if (gesperrt) {
        const Schreibsperre sperre(probe_->ordner.datenbank());
        Meldungsfaenger meldungen;
        drucken();
        QCOMPARE(meldungen.texte, QStringList{u"Die Datenbank 'flox-demo.mdb' wird gerade von einem anderen Programm benutzt."_s});
        QCOMPARE(druckzentrale_.gedruckt, 0);
        QVERIFY(probe_->fenster->DatenGeaendert);
    }
    drucken();
    QCOMPARE(druckzentrale_.gedruckt, 1);
    // Without a change nothing is stored.
    probe_->arbeitSetzen(artnr_, u"benu_bemerkung"_s, u"anderswo"_s);
    druckzentrale_.gesehen = [] {};
    drucken();
    QCOMPARE(druckzentrale_.gedruckt, 2);
    QCOMPARE(probe_->arbeitLesen(artnr_, u"benu_bemerkung"_s), u"anderswo"_s);
    QCOMPARE(probe_->fenster->satz().artnr(), artnr_);
}

void TestNotizen::umschaltenSpeichertNicht()
{
    schreiben(u"Notiz"_s);
    probe_->klick("cmdBotDeu");
    QVERIFY(probe_->fenster->DatenGeaendert);
    QCOMPARE(gespeichert(artnr_), u"/|/"_s);
    QCOMPARE(notiz()->toPlainText(), u"Notiz"_s);
    probe_->klick("cmdFirst");
    QCOMPARE(gespeichert(artnr_), u"Notiz/     |Notiz/     "_s);
}

void TestNotizen::schliessenSpeichert()
{
    schreiben(u"Notiz"_s);
    eigen(4)->click();
    QVERIFY(probe_->fenster->close());
    QCOMPARE(probe_->arbeitLesen(artnr_, u"benu_bemerkung"_s), u"Notiz"_s);
    QCOMPARE(probe_->arbeitLesen(artnr_, u"benu_eigen"_s), u"    1"_s);
}

void TestNotizen::darstellenMarkiertNichts()
{
    for (const char *knopf : {"cmdNext", "cmdNext", "cmdLast", "cmdBack", "cmdFirst", "cmdBotDeu"}) {
        probe_->klick(knopf);
        QVERIFY(!probe_->fenster->DatenGeaendert);
    }
    probe_->fenster->darstellen();
    QVERIFY(!probe_->fenster->DatenGeaendert);
}

void TestNotizen::neuesDarstellenBehaeltWasGetipptIst()
{
    schreiben(u"Noch nicht gespeichert"_s);
    eigen(1)->click();
    // As after a change of the options, or of the properties' names.
    probe_->fenster->eigenschaftenBenennen();
    probe_->fenster->Monatsbeschriftung();
    probe_->fenster->darstellen();
    QCOMPARE(notiz()->toPlainText(), u"Noch nicht gespeichert"_s);
    QVERIFY(eigen(1)->isChecked());
    probe_->klick("cmdNext");
    QCOMPARE(gespeichert(artnr_), u"Noch nicht gespeichert/ 1   |Noch nicht gespeichert/ 1   "_s);
    QCOMPARE(notiz()->toPlainText(), QString());
}

void TestNotizen::ueberlebtDasFenster()
{
    schreiben(u"Bleibt"_s);
    eigen(3)->click();
    probe_->fenster->close();
    probe_->fenster = probe_->weiteres(1);
    probe_->oeffnen();
    QCOMPARE(probe_->fenster->satz().artnr(), artnr_);
    QCOMPARE(notiz()->toPlainText(), u"Bleibt"_s);
    QVERIFY(eigen(3)->isChecked() && !eigen(0)->isChecked());
}

void TestNotizen::namenDerEigenschaften()
{
    for (int i = 0; i < 5; ++i)
        QCOMPARE(eigen(i)->text(), u"Eigenschaft %1"_s.arg(i + 1));
    probe_->programm.BenutzerNamen[size_t(Sparte::Topf)] = {u"Duftet"_s, u"Balkon & Beet"_s, u""_s, u"ß"_s, u"Lang "_s};
    QCOMPARE(eigen(0)->text(), u"Eigenschaft 1"_s);
    probe_->fenster->eigenschaftenBenennen();
    QCOMPARE(eigen(0)->text(), u"Duftet"_s);
    QCOMPARE(eigen(2)->text(), QString());
    const auto zweites = probe_->weiteres(2);
    QCOMPARE(zweites->findChild<QCheckBox *>(u"sschkBenutzer_0"_s)->text(), u"Duftet"_s);
    QCOMPARE(zweites->findChild<QCheckBox *>(u"sschkBenutzer_4"_s)->text(), u"Lang "_s);
}

void TestNotizen::namenAendern()
{
    auto *cmdNamen = probe_->finde<QAbstractButton>(u"cmdNamen"_s);
    QCOMPARE(cmdNamen->text(), u"Namen ändern"_s);
    QTest::mouseClick(cmdNamen, Qt::LeftButton);
    QCOMPARE(probe_->zentrale.namen, 1);
}

void TestNotizen::schreibgeschuetzteArbeitsdatenbank_data()
{
    QTest::addColumn<QString>("schritt");
    for (const char *schritt : {"cmdNext", "cmdFilter", "cboArten", "close"})
        QTest::newRow(schritt) << QString::fromLatin1(schritt);
}

void TestNotizen::schreibgeschuetzteArbeitsdatenbank()
{
    QFETCH(QString, schritt);
    schreiben(u"Notiz"_s);
    auto *auswahl = probe_->finde<QComboBox>(u"cboArten"_s);
    {
        const Schreibsperre sperre(probe_->ordner.datenbank());
        Meldungsfaenger meldungen;
        if (schritt == u"close") {
            // It is asked first, and who only presses Return goes back.
            QVERIFY(!probe_->fenster->close());
            QVERIFY(QFile::exists(probe_->ordner.pfad(u"db_to1.tmp"_s)));
            QCOMPARE(probe_->zentrale.geschlossen, 0);
        } else if (schritt == u"cboArten") {
            auswahl->setFocus();
            QTRY_VERIFY(probe_->fenster->ArtenHatFokus);
            auswahl->setCurrentIndex(8);
        } else {
            QTest::mouseClick(probe_->finde<Bildknopf>(schritt), Qt::LeftButton);
        }
        QCOMPARE(meldungen.titel, QStringList{u"Flox-Demo"_s});
        QCOMPARE(meldungen.texte.size(), 1);
        QVERIFY2(meldungen.texte[0].contains(u"Die Datenbank 'flox-demo.mdb' wird gerade von einem anderen Programm benutzt."_s),
                 qPrintable(meldungen.texte[0]));
        if (schritt != u"close")
            QVERIFY(!meldungen.texte[0].contains(u'\n'));
    }
    QCOMPARE(probe_->arbeitLesen(artnr_, u"benu_bemerkung"_s), QString());
    QVERIFY(probe_->fenster->DatenGeaendert);
    QCOMPARE(probe_->fenster->satz().artnr(), artnr_);
    QCOMPARE(auswahl->currentIndex(), 0);
    QCOMPARE(probe_->text(u"lblBotName"_s), probe_->name());
    QCOMPARE(notiz()->toPlainText(), u"Notiz"_s);
    QVERIFY(!probe_->zentrale.gesperrt);
    QCOMPARE(probe_->fenster->cursor().shape(), Qt::ArrowCursor);
    // The next attempt succeeds.
    probe_->klick("cmdNext");
    QCOMPARE(gespeichert(artnr_), u"Notiz/     |Notiz/     "_s);
    QVERIFY(probe_->fenster->satz().artnr() != artnr_);
}

void TestNotizen::schreibgeschuetzteDatei()
{
    // A file whose format version forbids writing: what SQLite sees of a read-only medium, for any user. The change counter
    // beside it lets open connections notice.
    QFile datei(probe_->ordner.datenbank());
    QVERIFY(datei.open(QIODevice::ReadWrite));
    for (const auto &[stelle, byte] : {std::pair(18, '\x03'), std::pair(24, '\x7f')})
        QVERIFY(datei.seek(stelle) && datei.write(&byte, 1) == 1);
    datei.close();
    Meldungsfaenger meldungen;
    probe_->klick("cmdNext");
    probe_->klick("cmdBack");
    QCOMPARE(meldungen.texte, QStringList());
    schreiben(u"Notiz"_s);
    probe_->klick("cmdNext");
    QCOMPARE(meldungen.texte, QStringList{u"Die Datenbank 'flox-demo.mdb' ist schreibgeschützt."_s});
    QVERIFY(probe_->fenster->DatenGeaendert);
    QCOMPARE(probe_->fenster->satz().artnr(), artnr_);
    QVERIFY(!probe_->fenster->close());
    QCOMPARE(meldungen.texte.size(), 2);
    QVERIFY(probe_->fenster->DatenGeaendert);
    QCOMPARE(notiz()->toPlainText(), u"Notiz"_s);
}

void TestNotizen::pflanzeNichtMehrInDerArbeitsdatenbank()
{
    schreiben(u"Notiz"_s);
    probe_->ordner.db()->Execute(u"DELETE FROM TOPFPFL WHERE ARTNR = ?"_s, {artnr_});
    Meldungsfaenger meldungen;
    probe_->klick("cmdNext");
    QCOMPARE(meldungen.texte, QStringList());
    QVERIFY(!probe_->fenster->DatenGeaendert);
    QVERIFY(probe_->fenster->satz().artnr() != artnr_);
    QCOMPARE(gespeichert(artnr_), u"Notiz/     |(kein Datensatz)/(kein Datensatz)"_s);
}

FLOX_TEST(tst_notizen, TestNotizen)
#include "tst_notizen.moc"
