#include "Handgriffe.h"
#include "Programmkopie.h"
#include "Rahmenprobe.h"

#include "filters/Filterdialog.h"
#include "frame/Aufruf.h"
#include "plantwindows/Pflanzenfenster.h"
#include "tests/Testprogramm.h"

#include <QDir>
#include <QProcess>
#include <QTest>

using namespace Qt::StringLiterals;

/* The program called from outside: what it answers and what it opens. */

class TestAufruf : public QObject
{
    Q_OBJECT

private slots:
    void argumente_data();
    void argumente();
    void filterEndungen();
    void auskunftOhneBildschirm_data();
    void auskunftOhneBildschirm();
    void filterWirdAngewandt();
    void filterDerNichtGeht_data();
    void filterDerNichtGeht();
    void datenbankWirdGeladen();
    void wasNichtGehtWirdGesagt();
};

void TestAufruf::argumente_data()
{
    QTest::addColumn<QStringList>("argumente");
    QTest::addColumn<int>("ergebnis");
    QTest::addColumn<QString>("auskunft"); // begins so; "-": none
    QTest::addColumn<QString>("datei");
    const QString hier = QDir::currentPath();
    QTest::newRow("none") << QStringList() << 0 << u"-"_s << QString();
    QTest::newRow("file") << QStringList{u"a.fft"_s} << 0 << u"-"_s << hier + u"/a.fft"_s;
    QTest::newRow("absolute") << QStringList{u"/x/ä b.fit"_s} << 0 << u"-"_s << u"/x/ä b.fit"_s;
    QTest::newRow("named like an option") << QStringList{u"--"_s, u"--help"_s} << 0 << u"-"_s << hier + u"/--help"_s;
    QTest::newRow("two") << QStringList{u"a.fft"_s, u"b.fft"_s} << 2 << u"Flox öffnet eine Datei auf einmal."_s << QString();
    QTest::newRow("unknown") << QStringList{u"--neu"_s} << 2 << u"Unbekannte Option: --neu"_s << QString();
    QTest::newRow("help") << QStringList{u"--help"_s} << 0 << u"Aufruf: flox [DATEI]"_s << QString();
    QTest::newRow("version") << QStringList{u"a.fft"_s, u"--version"_s} << 0 << u"Flox 3."_s << QString();
}

void TestAufruf::argumente()
{
    QFETCH(QStringList, argumente);
    QFETCH(QString, auskunft);
    const Aufruf aufruf = aufrufLesen(argumente);
    QTEST(aufruf.ergebnis, "ergebnis");
    QTEST(aufruf.datei, "datei");
    if (auskunft == u"-")
        QCOMPARE(aufruf.auskunft, QString());
    else
        QVERIFY2(aufruf.auskunft.startsWith(auskunft), qPrintable(aufruf.auskunft));
}

void TestAufruf::filterEndungen()
{
    for (const SpartenEintrag &sparte : alleSparten()) {
        QCOMPARE(filterSparte(u"x"_s + sparte.filterEndung.toString()), sparte.sparte);
        QCOMPARE(filterSparte(u"X"_s + sparte.filterEndung.toString().toUpper()), sparte.sparte);
    }
    for (const QString &fremd : {u"x.fit"_s, u"fft"_s, u"x.fft.bak"_s})
        QVERIFY(!filterSparte(fremd));
}

void TestAufruf::auskunftOhneBildschirm_data()
{
    QTest::addColumn<QString>("option");
    QTest::addColumn<int>("ergebnis");
    QTest::newRow("version") << u"--version"_s << 0;
    QTest::newRow("help") << u"--help"_s << 0;
    QTest::newRow("wrong") << u"--falsch"_s << 2;
}

void TestAufruf::auskunftOhneBildschirm()
{
    QFETCH(QString, option);
    QFETCH(int, ergebnis);
    QProcess programm;
    QProcessEnvironment umgebung = QProcessEnvironment::systemEnvironment();
    for (const char *name : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"})
        umgebung.remove(QString::fromLatin1(name));
    programm.setProcessEnvironment(umgebung);
    programm.start(QStringLiteral(FLOX_PROGRAMM "/flox"), {option});
    QVERIFY(programm.waitForFinished(60000));
    QCOMPARE(programm.exitCode(), ergebnis);
    QVERIFY((ergebnis == 0 ? programm.readAllStandardOutput() : programm.readAllStandardError()).contains("lox"));
}

void TestAufruf::filterWirdAngewandt()
{
    Rahmenprobe probe;
    probe.laden();
    // Saved by one window, opened from outside in another one.
    probe.waehlen("mnudbtopfpflanzen");
    Pflanzenfenster *erstes = probe.fenster(1);
    const int alle = erstes->Anzahl;
    QTest::mouseClick(erstes->findChild<QWidget *>(u"cmdFilter"_s), Qt::LeftButton);
    QTest::mouseClick(erstes->filterdialog()->findChild<QWidget *>(u"lblBlFarbe_0"_s), Qt::LeftButton);
    const QString datei = probe.ordner.pfad(u"weiß.fft"_s);
    erstes->filterdialog()->FilterSpeichern(datei);
    erstes->filterdialog()->cmdOK_Click();
    const int weisse = erstes->Anzahl;
    QVERIFY(weisse > 0 && weisse < alle);
    probe.zentrale->dateiOeffnen(datei);
    Pflanzenfenster *zweites = probe.fenster(2);
    QVERIFY(zweites);
    QCOMPARE(zweites->Anzahl, weisse);
    QVERIFY(!zweites->filterdialog()->isVisible());
    QVERIFY(zweites->isEnabled());
}

void TestAufruf::filterDerNichtGeht_data()
{
    QTest::addColumn<bool>("lesbar");
    QTest::addColumn<QString>("meldung");
    QTest::newRow("no filter file") << false << u"Fehler beim Laden des Filters"_s;
    QTest::newRow("fits no plant") << true << u"Leider gibt es keine Pflanze"_s;
}

void TestAufruf::filterDerNichtGeht()
{
    QFETCH(bool, lesbar);
    QFETCH(QString, meldung);
    Rahmenprobe probe;
    probe.laden();
    probe.waehlen("mnudbtopfpflanzen");
    const QString datei = probe.ordner.pfad(u"weiß.fft"_s);
    QTest::mouseClick(probe.fenster(1)->findChild<QWidget *>(u"cmdFilter"_s), Qt::LeftButton);
    Filterdialog *erster = probe.fenster(1)->filterdialog();
    QTest::mouseClick(erster->findChild<QWidget *>(u"lblBlFarbe_0"_s), Qt::LeftButton);
    erster->FilterSpeichern(datei);
    erster->cmdAbbruch_Click();
    if (!lesbar)
        QVERIFY(QFile::resize(datei, 3));
    else
        Datenbank::OpenDatabase(probe.ordner.datenbank())->Execute(u"UPDATE TOPFPFL SET FARBEN = NULL"_s);
    Meldungsfaenger meldungen;
    probe.zentrale->dateiOeffnen(datei);
    QCOMPARE(meldungen.texte.size(), 1);
    QVERIFY2(meldungen.texte[0].startsWith(meldung), qPrintable(meldungen.texte[0]));
    // The dialog is there to be mended, as after a click.
    Filterdialog *dialog = probe.fenster(2)->filterdialog();
    QVERIFY(dialog->isVisible());
    QVERIFY(!probe.fenster(1)->isEnabled());
    dialog->cmdAbbruch_Click();
    QVERIFY(probe.fenster(1)->isEnabled());
}

void TestAufruf::datenbankWirdGeladen()
{
    Rahmenprobe probe;
    probe.laden();
    const QString datei = probe.ordner.pfad(u"wenige.fit"_s);
    QVERIFY(QFile::copy(probe.ordner.datenbank(), datei));
    {
        const auto db = Datenbank::OpenDatabase(datei);
        db->Execute(u"DELETE FROM Apfel WHERE ARTNR > (SELECT min(ARTNR) + 3 FROM Apfel)"_s);
    }
    Meldungsfaenger meldungen;
    probe.zentrale->dateiOeffnen(datei);
    QCOMPARE(meldungen.texte.size(), 1);
    QVERIFY2(meldungen.texte[0].startsWith(u"Die Datenbank 'wenige.fit' ist geladen."_s), qPrintable(meldungen.texte[0]));
    QVERIFY(probe.zentrale->isEnabled());
    probe.waehlen("mnudbapfel");
    QVERIFY(probe.fenster(1, Sparte::Apfel)->Anzahl <= 4);
}

void TestAufruf::wasNichtGehtWirdGesagt()
{
    Rahmenprobe probe;
    probe.laden();
    QVERIFY_THROWS_EXCEPTION(Fehler, probe.zentrale->dateiOeffnen(probe.ordner.pfad(u"fehlt.fft"_s)));
    QFile fremd(probe.ordner.pfad(u"brief.txt"_s));
    QVERIFY(fremd.open(QIODevice::WriteOnly));
    fremd.write("Guten Tag!\n");
    fremd.close();
    QVERIFY_THROWS_EXCEPTION(Fehler, probe.zentrale->dateiOeffnen(fremd.fileName()));
    QCOMPARE(probe.titel(), QStringList());
}

FLOX_TEST(tst_aufruf, TestAufruf)
#include "tst_aufruf.moc"
