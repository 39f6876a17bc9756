#include "Rahmenprobe.h"

#include "frame/Ablauf.h"
#include "frame/frmDBWahl.h"
#include "frame/frmStart.h"
#include "plantwindows/Pflanzenfenster.h"
#include "store/Recordset.h"
#include "store/Schadenspruefung.h"
#include "tests/store/Rechte.h"
#include "tests/store/Datenhilfen.h"

#include <QAbstractButton>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QProcess>
#include <QSessionManager>
#include <QTabWidget>
#include <QTest>
#include <QToolButton>

#include <csignal>

using namespace Qt::StringLiterals;

/* The system ends the program, and what a start finds of one that ended otherwise. The folder of the test is the program folder. */
class TestBeendigung : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void signal_data();
    void signal();
    void signalBeiOffenemKasten();
    void abmeldung();
    void signalOhneFenster();
    void resteWerdenGefegt();
    void namentabelle_data();
    void namentabelle();
    void schadenVorDerWahl();
    void schaden();
    void schadenEinerGrossenDatei();
    void schreibgeschuetzterOrdner();

private:
    QString hier(const QString &datei) { return QDir(QCoreApplication::applicationDirPath()).filePath(datei); }
    template<typename Fenster>
    Fenster *sichtbar()
    {
        for (QWidget *fenster : QApplication::topLevelWidgets())
            if (auto *gesucht = qobject_cast<Fenster *>(fenster); gesucht && gesucht->isVisible())
                return gesucht;
        return nullptr;
    }
    /// From the splash to the first window of the potted plants, as a hand goes.
    Pflanzenfenster *oeffnen(Ablauf &ablauf);
    void notieren(Pflanzenfenster *fenster, const QString &text);
    static QByteArray beschaedigen(const QString &pfad);
    QStringList notizen();
    QStringList kopien() { return QDir(hier({})).entryList({u"db_*.tmp"_s}, QDir::Files); }

    std::unique_ptr<Ablage> ablage_;
    std::unique_ptr<QTemporaryDir> temp_;
};

void TestBeendigung::init()
{
    cleanup();
    ablage_ = std::make_unique<Ablage>();
    temp_ = std::make_unique<QTemporaryDir>();
    qputenv("TMPDIR", temp_->path().toUtf8());
    const Programmordner original;
    original.db()->Execute(u"UPDATE Topfpfl SET bewertung = 9, benu_bemerkung = NULL"_s);
    QVERIFY(QFile::copy(original.datenbank(), hier(u"flox-demo.mdb"_s)));
}

void TestBeendigung::cleanup()
{
    schaden::beenden();
    for (const QString &datei : QDir(hier({})).entryList({u"*.tmp"_s, u"*.bmp"_s, u"*.pdf*"_s, u"flox-demo.mdb"_s, u"Temp*"_s}, QDir::Files))
        QFile::remove(hier(datei));
}

Pflanzenfenster *TestBeendigung::oeffnen(Ablauf &ablauf)
{
    if (ablauf.starten() != Ablauf::Ergebnis::Laeuft)
        qFatal("The program does not start.");
    QTest::mouseClick(sichtbar<frmStart>()->findChild<QWidget *>(u"startbild"_s), Qt::LeftButton);
    QTest::mouseClick(sichtbar<frmDBWahl>()->findChild<QToolButton *>(u"cmdTopfpflanzen"_s), Qt::LeftButton);
    return ablauf.zentrale().fenster(Sparte::Topf, 1);
}

void TestBeendigung::notieren(Pflanzenfenster *fenster, const QString &text)
{
    auto *notiz = fenster->findChild<QPlainTextEdit *>(u"txtEigeneBemerkung"_s);
    auto *reiter = fenster->findChild<QTabWidget *>(u"tabStauden"_s);
    for (int i = 0; i < reiter->count(); ++i)
        if (reiter->widget(i)->isAncestorOf(notiz))
            reiter->setCurrentIndex(i);
    QCoreApplication::processEvents();
    QTest::mouseClick(notiz->viewport(), Qt::LeftButton);
    notiz->setFocus();
    QTest::keyClicks(notiz, text);
    QVERIFY(fenster->DatenGeaendert);
}

QStringList TestBeendigung::notizen()
{
    const auto db = Datenbank::OpenDatabase(hier(u"flox-demo.mdb"_s));
    return werte(*db, u"SELECT benu_bemerkung FROM Topfpfl WHERE benu_bemerkung IS NOT NULL ORDER BY ARTNR"_s);
}

void TestBeendigung::signal_data()
{
    QTest::addColumn<int>("nummer");
    QTest::newRow("SIGTERM") << SIGTERM;
    QTest::newRow("SIGHUP") << SIGHUP;
    QTest::newRow("SIGINT") << SIGINT;
}

void TestBeendigung::signal()
{
    QFETCH(const int, nummer);
    {
        Ablauf ablauf;
        Pflanzenfenster *fenster = oeffnen(ablauf);
        notieren(fenster, u"vor dem Ende"_s);
        ablauf.programm().MonatsDarstellung = 0;
        QCOMPARE(kopien(), QStringList{u"db_to1.tmp"_s});
        QTimer::singleShot(0, this, [nummer] { std::raise(nummer); });
        QApplication::exec();
        QCOMPARE(notizen(), QStringList{u"vor dem Ende"_s});
        QVERIFY(inhalt(ablage_->datei()).contains("MonatsDarstellung=0"));
    }
    QCOMPARE(kopien(), QStringList());
    QVERIFY(std::signal(nummer, SIG_DFL) == SIG_DFL); // given back
}

/// A box is open that nobody answers, and one note cannot be stored: the other is.
void TestBeendigung::signalBeiOffenemKasten()
{
    {
        Ablauf ablauf;
        Pflanzenfenster *erstes = oeffnen(ablauf);
        ablauf.zentrale().FensterOeffnen(Sparte::Topf);
        Pflanzenfenster *zweites = ablauf.zentrale().fenster(Sparte::Topf, 2);
        zweites->findChild<QAbstractButton *>(u"cmdNext"_s)->click();
        notieren(zweites, u"zwei"_s);
        notieren(erstes, u"eins"_s);
        bool zurueck = false;
        QTimer::singleShot(0, this, [&] {
            QTimer::singleShot(0, this, [] { std::raise(SIGTERM); });
            QMessageBox::information(erstes, u"Kasten"_s, u"Niemand antwortet."_s);
            zurueck = true;
            QMessageBox::information(erstes, u"Kasten"_s, u"Noch einer."_s); // does not hold the end up
        });
        QApplication::exec();
        QVERIFY(zurueck);
        QStringList gefunden = notizen();
        gefunden.sort();
        QCOMPARE(gefunden, (QStringList{u"eins"_s, u"zwei"_s}));
    }
    QCOMPARE(kopien(), QStringList());
}

void TestBeendigung::abmeldung()
{
    Ablauf ablauf;
    Pflanzenfenster *fenster = oeffnen(ablauf);
    notieren(fenster, u"vor der Abmeldung"_s);
    // Nobody looks at the session's manager.
    alignas(QSessionManager) static char keiner[sizeof(QSessionManager)];
    emit qApp->commitDataRequest(*reinterpret_cast<QSessionManager *>(keiner));
    QCOMPARE(notizen(), QStringList{u"vor der Abmeldung"_s});
    QVERIFY(!fenster->DatenGeaendert);
    QVERIFY(fenster->isVisible()); // the log-out may still be called off
}

void TestBeendigung::signalOhneFenster()
{
    {
        Ablauf ablauf;
        QVERIFY(ablauf.starten() == Ablauf::Ergebnis::Laeuft);
        QTimer::singleShot(0, this, [] { std::raise(SIGTERM); });
        QApplication::exec();
    }
    QCOMPARE(QDir(temp_->path()).entryList({u"flox-*.lock"_s}), QStringList());
}

void TestBeendigung::resteWerdenGefegt()
{
    const QStringList reste{u"db_to1.tmp"_s, u"db_ap12.tmp"_s, u"TempFilterTo1.fft"_s, u"TempFilterSt2.ffs"_s, u"Ausdruck.pdf.QwErTz"_s};
    for (const QString &name : reste)
        schreiben(hier(name), "Rest");
    schreiben(hier(u"Ausdruck.pdf"_s), "bleibt");
    {
        // A database that is refused: nothing is touched.
        QVERIFY(QFile::rename(hier(u"flox-demo.mdb"_s), hier(u"weg.tmp"_s)));
        Meldungsfaenger meldungen;
        Ablauf ablauf;
        QVERIFY(ablauf.starten() == Ablauf::Ergebnis::Abgebrochen);
        QVERIFY(QFile::rename(hier(u"weg.tmp"_s), hier(u"flox-demo.mdb"_s)));
        for (const QString &name : reste)
            QVERIFY(QFile::exists(hier(name)));
    }
    Ablauf ablauf;
    QVERIFY(ablauf.starten() == Ablauf::Ergebnis::Laeuft);
    for (const QString &name : reste)
        QTRY_VERIFY2(!QFile::exists(hier(name)), qPrintable(name));
    QVERIFY(QFile::exists(hier(u"Ausdruck.pdf"_s)));
    // Another start from this folder is refused before it can sweep a living one's files.
    schreiben(hier(u"db_to1.tmp"_s), "lebt");
    Ablauf zweiter;
    QVERIFY(zweiter.starten() == Ablauf::Ergebnis::ZweiteInstanz);
    QVERIFY(QFile::exists(hier(u"db_to1.tmp"_s)));
}

void TestBeendigung::namentabelle_data()
{
    QTest::addColumn<QString>("sql");
    QTest::addColumn<QString>("text");
    QTest::newRow("sechs Zeilen") << u"INSERT INTO Namen_Benutzer_Optionen (Topfpflanzen) VALUES ('sechste')"_s
                                  << u"Die Tabelle 'Namen_Benutzer_Optionen' hat mehr als 5 Zeilen. Die ersten 5 werden verwendet."_s;
    QTest::newRow("keine Tabelle") << u"DROP TABLE Namen_Benutzer_Optionen"_s
                                   << u"In der Datenbank fehlt die Tabelle 'Namen_Benutzer_Optionen'. Die benutzerdefinierten Eigenschaften haben "
                                      "keine eigenen Namen."_s;
}
/// Told once, at the start; the end, which writes the names, has nothing to say to it.
void TestBeendigung::namentabelle()
{
    QFETCH(QString, sql);
    QFETCH(QString, text);
    Datenbank::OpenDatabase(hier(u"flox-demo.mdb"_s))->Execute(sql);
    Meldungsfaenger meldungen;
    Ablauf ablauf;
    Pflanzenfenster *fenster = oeffnen(ablauf);
    QCOMPARE(meldungen.texte, QStringList{text});
    QCOMPARE(ablauf.programm().BenutzerNamen[0][4], u"Eigenschaft 5"_s);
    QVERIFY(fenster->isVisible());
    ablauf.zentrale().close();
    QCOMPARE(meldungen.texte.size(), 1);
}

/// Damages the pages of a table that the start does not read; the file's new content.
QByteArray TestBeendigung::beschaedigen(const QString &pfad)
{
    int seite = 0;
    {
        const auto db = Datenbank::OpenDatabase(pfad);
        seite = int(zahl(*db, u"SELECT rootpage FROM sqlite_master WHERE name = 'Gehoelze_Synonyme_Deutsch'"_s));
        if (seite < 2)
            qFatal("The table is not there.");
    }
    QByteArray bytes = inhalt(pfad);
    constexpr int seitengroesse = 16384;
    bytes.replace((seite - 1) * seitengroesse, 2000, QByteArray(2000, '\xff'));
    schreiben(pfad, bytes);
    return bytes;
}

/// The box comes over the splash, which stays until it is answered.
void TestBeendigung::schadenVorDerWahl()
{
    beschaedigen(hier(u"flox-demo.mdb"_s));
    Ablauf ablauf;
    QVERIFY(ablauf.starten() == Ablauf::Ergebnis::Laeuft);
    QString text;
    bool startbild = false, wahl = false;
    QTimer takt;
    connect(&takt, &QTimer::timeout, this, [&] {
        auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
        if (!box)
            return;
        text = box->text();
        emit sichtbar<frmStart>()->fertig(); // its time is up
        startbild = sichtbar<frmStart>();
        wahl = sichtbar<frmDBWahl>();
        box->accept();
    });
    takt.start(1);
    QTRY_VERIFY2(text.startsWith(u"Die Datenbank 'flox-demo.mdb' ist beschädigt."_s), qPrintable(text));
    QVERIFY(startbild && !wahl);
    emit sichtbar<frmStart>()->fertig();
    QVERIFY(sichtbar<frmDBWahl>());
}

void TestBeendigung::schaden()
{
    const QString pfad = hier(u"flox-demo.mdb"_s);
    const QByteArray bytes = beschaedigen(pfad);
    Meldungsfaenger meldungen;
    Ablauf ablauf;
    Pflanzenfenster *fenster = oeffnen(ablauf);
    QCOMPARE(meldungen.texte.size(), 1);
    QVERIFY2(meldungen.texte[0].startsWith(u"Die Datenbank 'flox-demo.mdb' ist beschädigt."_s), qPrintable(meldungen.texte[0]));
    QVERIFY(fenster->isVisible());
    notieren(fenster, u"x"_s);
    fenster->findChild<QAbstractButton *>(u"cmdNext"_s)->click();
    QCOMPARE(meldungen.texte.size(), 2);
    QCOMPARE(meldungen.texte[1], meldungen.texte[0]);
    QVERIFY(fenster->DatenGeaendert);
    QVERIFY(inhalt(pfad) == bytes);
    fenster->DatenGeaendert = false;
    ablauf.zentrale().close();
    QCOMPARE(meldungen.texte.size(), 2);
}

/// The search goes on beside the program; its box comes once the main window is there, and does not close the chooser.
void TestBeendigung::schadenEinerGrossenDatei()
{
    const QString pfad = hier(u"flox-demo.mdb"_s);
    {
        const auto db = Datenbank::OpenDatabase(pfad);
        db->Execute(u"CREATE TABLE gross (x BLOB)"_s);
        while (QFile(pfad).size() < schaden::grosseDatei)
            db->Execute(u"INSERT INTO gross VALUES (zeroblob(4000000))"_s);
    }
    QByteArray bytes = inhalt(pfad);
    bytes.replace(bytes.size() / 2, 100000, QByteArray(100000, '\xff'));
    schreiben(pfad, bytes);
    Meldungsfaenger meldungen;
    Ablauf ablauf;
    QVERIFY(ablauf.starten() == Ablauf::Ergebnis::Laeuft);
    QTest::mouseClick(sichtbar<frmStart>()->findChild<QWidget *>(u"startbild"_s), Qt::LeftButton);
    QVERIFY(QTest::qWaitFor([&] { return schaden::fertig(pfad); }, 20000));
    QTest::qWait(300); // longer than the beat at which the program looks
    QCOMPARE(meldungen.texte, QStringList());
    QVERIFY(sichtbar<frmDBWahl>());
    QTest::mouseClick(sichtbar<frmDBWahl>()->findChild<QToolButton *>(u"cmdTopfpflanzen"_s), Qt::LeftButton);
    QTRY_COMPARE(meldungen.texte.size(), 1);
    QVERIFY2(meldungen.texte[0].contains(u"ist beschädigt"_s), qPrintable(meldungen.texte[0]));
    QTest::qWait(300);
    QCOMPARE(meldungen.texte.size(), 1); // said once
}

void TestBeendigung::schreibgeschuetzterOrdner()
{
    QTemporaryDir daheim;
    qputenv("XDG_CACHE_HOME", daheim.path().toUtf8());
    qputenv("XDG_CONFIG_HOME", daheim.path().toUtf8());
    qputenv("TMPDIR", daheim.path().toUtf8());
    NurLesen::ueberlassen(temp_->path()); // the one it lies in
    NurLesen::ueberlassen(daheim.path());
    const QStringList vorher = QDir(hier({})).entryList(QDir::Files);
    {
        const NurLesen sperre(hier({}));
        Meldungsfaenger meldungen;
        {
            Ablauf ablauf;
            Pflanzenfenster *fenster = oeffnen(ablauf);
            QVERIFY2(meldungen.texte.size() == 1, qPrintable(meldungen.texte.join(u'|')));
            QVERIFY2(meldungen.texte[0].contains(u"schreibgeschützt"_s) && meldungen.texte[0].contains(u"werden nicht gespeichert"_s),
                     qPrintable(meldungen.texte[0]));
            QVERIFY(fenster && fenster->isVisible());
            QVERIFY(fenster->Anzahl > 1);
            fenster->findChild<QAbstractButton *>(u"cmdNext"_s)->click();
            ablauf.zentrale().close();
            QCOMPARE(meldungen.texte.size(), 1); // the end says nothing: the names are the stored ones
        }
        QVERIFY(QFile::exists(daheim.filePath(u"flox/registry.ini"_s)));
    }
    QCOMPARE(QDir(hier({})).entryList(QDir::Files), vorher);
}

QTEST_MAIN(TestBeendigung)
#include "tst_beendigung.moc"
