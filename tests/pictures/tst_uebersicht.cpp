#include "Bildhilfen.h"
#include "Bildprobe.h"

#include "pictures/Bilderseite.h"
#include "pictures/Bildlader.h"
#include "pictures/frmUebersicht.h"
#include "store/Datenbank.h"
#include "store/Pfade.h"
#include "tests/Testprogramm.h"

#include <QAccessible>
#include <QApplication>
#include <QLabel>
#include <QRandomGenerator>
#include <QScrollBar>
#include <QSignalSpy>
#include <QSlider>
#include <QTest>
#include <QThread>

using namespace Qt::StringLiterals;

/* The page of all pictures: what it lists, what it keeps in memory, how it is walked through. */
class TestUebersicht : public QObject
{
    Q_OBJECT

private slots:
    void listetWieDerStreifen_data();
    void listetWieDerStreifen();
    void nimmtDieVorschau();
    void abbruch();
    void lagerBleibtInDerGrenze();
    void lagerVergisstWasWegrollte();
    void lagerMerktUnlesbares();
    void lagerInAnderenGroessen();
    void lagerEndetMittenDrin();
    void modell();
    void stellen_data();
    void stellen();
    void tasten();
    void buchstaben();
    void groesseHaeltDieStelle();
    void laedtNurWasZuSehenIst();
    void ersatzFuerUnlesbares();
    void klickUndEingabe();
    void leereSeiten();
    void escSchliesstUndGibtFrei();
    void schliessenBeimLesen();
    void vorleser();

private:
    /// `anzahl` plants with as many pictures each, all of them the same file.
    static Bilderseite seite(int anzahl, int jePflanze, const QString &datei);
    static std::vector<qint64> alleNummern(Programmordner &ordner, Sparte sparte);
};

Bilderseite TestUebersicht::seite(int anzahl, int jePflanze, const QString &datei)
{
    Bilderseite seite;
    for (int i = 0; i < anzahl; ++i) {
        seite.pflanzen.push_back({1000 + i, u"%1bies nummer %2"_s.arg(QChar(u'A' + i % 26)).arg(i), u"Tanne %1"_s.arg(i)});
        for (int k = 0; k < jePflanze; ++k)
            seite.bilder.push_back({i, datei, u"Bild %1"_s.arg(k)});
    }
    std::ranges::stable_sort(seite.pflanzen, {}, &Bilderseite::Pflanze::botanisch);
    return seite;
}

std::vector<qint64> TestUebersicht::alleNummern(Programmordner &ordner, Sparte sparte)
{
    std::vector<qint64> nummern;
    const auto db = ordner.db();
    for (Anweisung &satz = db->vorbereitet(u"SELECT ARTNR FROM %1 ORDER BY BOT_NAME DESC"_s.arg(eintrag(sparte).haupttabelle)); satz.schritt();)
        nummern.push_back(satz.zahl(0));
    return nummern;
}

void TestUebersicht::listetWieDerStreifen_data()
{
    QTest::addColumn<int>("stelle");
    for (const Sparte sparte : spartenMitFenster())
        QTest::newRow(eintrag(sparte).fenster) << int(sparte);
}

/// Against the strip, plant by plant, on a folder that lacks many files and has others in capitals.
void TestUebersicht::listetWieDerStreifen()
{
    QFETCH(int, stelle);
    const Sparte sparte = Sparte(stelle);
    Bilderordner ordner;
    Programm programm = ordner.programm();
    QVERIFY(!programm.BilderPfad.isEmpty());
    const std::vector<qint64> nummern = alleNummern(ordner, sparte);
    QVERIFY(nummern.size() > 3);
    const auto db = ordner.db();
    QRandomGenerator zufall(9);
    int nummer = 0;
    const QString vorlage = ordner.pfad(u"icons/bildfehlt.jpg"_s);
    for (const qint64 artnr : nummern)
        if (const auto zeile = bildzeile(db, eintrag(sparte), artnr))
            for (const auto *haelfte : {&zeile->g, &zeile->d})
                for (const auto &bild : *haelfte)
                    if (bild.stamm && *bild.stamm != bildFehlt && ++nummer < 400 && zufall.bounded(3)) {
                        const QString ziel = ordner.pfad(bildordner(sparte, artnr)), name = *bild.stamm + u".jpg"_s;
                        QDir().mkpath(ziel);
                        QFile::copy(vorlage, ziel + u'/' + (zufall.bounded(4) ? name : name.toUpper()));
                    }
    const Bilderseite seite = bilderseite({programm, sparte, nummern});
    size_t bild = 0, pflanze = 0;
    qsizetype vermisst = 0;
    for (const qint64 artnr : nummern) {
        const auto zeile = bildzeile(db, eintrag(sparte), artnr);
        const auto streifen = zeile ? streifenbilder(programm, *zeile, bildordner(sparte, artnr)) : std::vector<Bildeintrag>();
        const auto da = std::ranges::count_if(streifen, &Bildeintrag::vorhanden);
        vermisst += qsizetype(streifen.size()) - da;
        if (!da)
            continue;
        QVERIFY(pflanze < seite.pflanzen.size());
        QCOMPARE(seite.pflanzen[pflanze].artnr, artnr);
        QVERIFY(!seite.pflanzen[pflanze].botanisch.isEmpty());
        for (const Bildeintrag &eintrag : streifen) {
            if (!eintrag.vorhanden)
                continue;
            QVERIFY(bild < seite.bilder.size());
            QCOMPARE(seite.bilder[bild].pflanze, int(pflanze));
            QCOMPARE(seite.bilder[bild].datei, systemPfad(eintrag.pfad));
            QCOMPARE(seite.bilder[bild].text, eintrag.beschreibung);
            ++bild;
        }
        ++pflanze;
    }
    QVERIFY(bild > 0);
    QCOMPARE(seite.bilder.size(), bild);
    QCOMPARE(seite.pflanzen.size(), pflanze);
    QCOMPARE(seite.vermisst, vermisst);
    QVERIFY(vermisst > 0);
}

void TestUebersicht::nimmtDieVorschau()
{
    Bilderordner ordner;
    Programm programm = ordner.programm();
    const std::vector<qint64> nummern = alleNummern(ordner, Sparte::Topf);
    const auto zeile = bildzeile(ordner.db(), eintrag(Sparte::Topf), nummern[0]);
    QVERIFY(zeile && zeile->g[0].stamm);
    const QString name = u"topfpflanzen/%1.jpg"_s.arg(*zeile->g[0].stamm);
    ordner.bild(name, {40, 30});
    ordner.bild(u"vorschau/"_s + name, {40, 30});
    programm.LokaleVorschauBilder = true;
    Bilderseite seite = bilderseite({programm, Sparte::Topf, {nummern[0]}});
    QCOMPARE(seite.bilder.size(), size_t(1));
    QCOMPARE(seite.bilder[0].datei, ordner.pfad(u"vorschau/"_s + name));
    programm.LokaleVorschauBilder = false;
    seite = bilderseite({programm, Sparte::Topf, {nummern[0]}});
    QCOMPARE(seite.bilder[0].datei, ordner.pfad(name));
    programm.BilderPfad.clear();
    QVERIFY(bilderseite({programm, Sparte::Topf, {nummern[0]}}).bilder.empty());
}

void TestUebersicht::abbruch()
{
    Bilderordner ordner;
    const auto db = ordner.db();
    db->Execute(u"CREATE TABLE Viele AS WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < 5000) SELECT i FROM n"_s);
    db->Execute(u"INSERT INTO TOPFPFL (ARTNR, BOT_NAME) SELECT 100000 + i, 'x' FROM Viele"_s);
    int gefragt = 0;
    const Bilderseite seite = bilderseite({ordner.programm(), Sparte::Topf, alleNummern(ordner, Sparte::Topf)}, [&] { return ++gefragt == 2; });
    QVERIFY(seite.pflanzen.empty() && seite.bilder.empty());
    QCOMPARE(gefragt, 2);
}

void TestUebersicht::lagerBleibtInDerGrenze()
{
    constexpr qsizetype grenze = 1'000'000;
    constexpr int seite = 100, jeBild = seite * seite * 4;
    Bildordner ordner;
    QStringList dateien;
    for (int i = 0; i < 60; ++i)
        dateien += ordner.schreibe(jpeg(gemischt(seite, seite, quint32(i))), u"%1.jpg"_s.arg(i));
    Vorschaulager lager(grenze);
    qsizetype hoechst = 0;
    connect(&lager, &Vorschaulager::angekommen, this, [&] { hoechst = std::max(hoechst, lager.belegt()); });
    for (int von = 0; von < 60; von += 10) {
        lager.wuenschen(dateien.mid(von, 10), {seite, seite});
        QTRY_COMPARE(lager.geladen(), von + 10);
    }
    QVERIFY(hoechst <= grenze);
    QVERIFY(hoechst > grenze - 2 * jeBild);
    // The last ones are kept, the first ones are gone.
    for (int i = 40; i < 60; ++i)
        QVERIFY(lager.finden(dateien[i]));
    QVERIFY(!lager.finden(dateien[0]));
    QCOMPARE(abstand(lager.finden(dateien[59])->bild, ladeSkaliert(dateien[59], {seite, seite})), 0);
    lager.leeren();
    QCOMPARE(lager.belegt(), 0);
}

void TestUebersicht::lagerVergisstWasWegrollte()
{
    Bildordner ordner;
    const QByteArray bytes = jpeg(gemischt(400, 300, 3));
    QStringList dateien;
    for (int i = 0; i < 300; ++i)
        dateien += ordner.schreibe(bytes, u"%1.jpg"_s.arg(i));
    Vorschaulager lager(64 << 20);
    QSignalSpy gekommen(&lager, &Vorschaulager::angekommen);
    // A long page rolls by: every stop asks for what it would show.
    for (int von = 0; von < 280; von += 20)
        lager.wuenschen(dateien.mid(von, 20), {100, 100});
    lager.wuenschen(dateien.mid(290), {100, 100});
    for (int i = 290; i < 300; ++i)
        QTRY_VERIFY(lager.finden(dateien[i]));
    QTRY_COMPARE(lager.wartend(), 0);
    // What ran already came to its end; nothing else was begun.
    const int zugleich = 2 * std::clamp(QThread::idealThreadCount() - 1, 1, 4);
    QVERIFY2(lager.geladen() <= 10 + zugleich, qPrintable(QString::number(lager.geladen())));
    QVERIFY(!lager.finden(dateien[100]));
}

void TestUebersicht::lagerMerktUnlesbares()
{
    Bildordner ordner;
    const QString kaputt = ordner.schreibe("kein Bild"), fehlt = ordner.pfad(u"fehlt.jpg"_s);
    Vorschaulager lager(1 << 20);
    lager.wuenschen({kaputt, fehlt}, {50, 50});
    QTRY_COMPARE(lager.geladen(), 2);
    QVERIFY(lager.finden(kaputt) && lager.finden(kaputt)->bild.isNull());
    QVERIFY(lager.finden(fehlt) && lager.finden(fehlt)->bild.isNull());
    lager.wuenschen({kaputt, fehlt}, {60, 60});
    QCOMPARE(lager.wartend(), 0);
    QCOMPARE(lager.geladen(), 2);
}

void TestUebersicht::lagerInAnderenGroessen()
{
    Bildordner ordner;
    const QString datei = ordner.schreibe(jpeg(gemischt(400, 200, 4)));
    Vorschaulager lager(1 << 20);
    lager.wuenschen({datei}, {100, 100});
    QTRY_COMPARE(lager.geladen(), 1);
    QCOMPARE(lager.finden(datei)->bild.size(), QSize(100, 50));
    lager.wuenschen({datei}, {100, 100});
    QCOMPARE(lager.wartend(), 0);
    lager.wuenschen({datei}, {200, 200});
    // The small one stands in until the large one is there.
    QCOMPARE(lager.finden(datei)->bild.size(), QSize(100, 50));
    QTRY_COMPARE(lager.geladen(), 2);
    QCOMPARE(lager.finden(datei)->bild.size(), QSize(200, 100));
}

void TestUebersicht::lagerEndetMittenDrin()
{
    Bildordner ordner;
    const QByteArray bytes = jpeg(gemischt(2000, 1500, 5));
    QStringList dateien;
    for (int i = 0; i < 20; ++i)
        dateien += ordner.schreibe(bytes, u"%1.jpg"_s.arg(i));
    int gekommen = 0;
    {
        Vorschaulager lager(64 << 20);
        connect(&lager, &Vorschaulager::angekommen, this, [&] { ++gekommen; });
        lager.wuenschen(dateien, {300, 300});
    }
    QCoreApplication::processEvents();
    QCOMPARE(gekommen, 0);
    Vorschaulager lager(64 << 20);
    lager.wuenschen(dateien, {300, 300});
    lager.leeren();
    lager.wuenschen({dateien[0]}, {300, 300});
    QTRY_VERIFY(lager.finden(dateien[0]));
    QCOMPARE(lager.geladen(), 1);
}

void TestUebersicht::modell()
{
    Uebersichtsmodell modell;
    QCOMPARE(modell.zeileMit(u"a", -1, false), -1);
    modell.setSeite(seite(52, 2, {}));
    QCOMPARE(modell.rowCount(), 104);
    QCOMPARE(modell.zeileVon(1000), 0);
    QCOMPARE(modell.zeileVon(4711), -1);
    QCOMPARE(modell.pflanze(modell.zeileVon(1001)).artnr, 1001);
    const QModelIndex index = modell.index(3);
    QCOMPARE(index.data().toString(), modell.pflanze(3).botanisch);
    QCOMPARE(index.data(Qt::ToolTipRole).toString(), u"%1\n%2\nBild 1"_s.arg(modell.pflanze(3).botanisch, modell.pflanze(3).deutsch));
    QCOMPARE(index.data(Qt::AccessibleTextRole).toString(), u"%1, %2, Bild 1"_s.arg(modell.pflanze(3).botanisch, modell.pflanze(3).deutsch));
    const int d = modell.zeileMit(u"d", -1, false);
    QVERIFY(modell.pflanze(d).botanisch.startsWith(u'D'));
    QCOMPARE(modell.zeileMit(u"D", d, false), d);
    QCOMPARE(modell.zeileMit(u"d", d + 1, true), d + 2);
    QCOMPARE(modell.zeileMit(u"d", d + 3, true), d);
    QCOMPARE(modell.zeileMit(u"dbx", -1, false), -1);
}

void TestUebersicht::stellen_data()
{
    QTest::addColumn<int>("anzahl");
    QTest::addColumn<QSize>("groesse");
    QTest::addRow("one") << 1 << QSize(500, 400);
    QTest::addRow("a row and a half") << 5 << QSize(600, 400);
    QTest::addRow("many") << 100'000 << QSize(900, 600);
    QTest::addRow("one column") << 1000 << QSize(100, 200);
}

/// Every tile is found where it stands, none overlaps its neighbour, and the bar reaches the last one.
void TestUebersicht::stellen()
{
    QFETCH(int, anzahl);
    QFETCH(QSize, groesse);
    Uebersichtsmodell modell;
    Vorschaulager lager(1 << 20);
    Kachelansicht ansicht(modell, lager, nullptr);
    modell.setSeite(seite(anzahl, 1, {}));
    ansicht.resize(groesse);
    ansicht.show();
    QVERIFY(QTest::qWaitForWindowExposed(&ansicht));
    const QRect fenster = ansicht.viewport()->rect();
    QRandomGenerator zufall(2);
    for (int probe = 0; probe < 200; ++probe) {
        const QModelIndex index = modell.index(zufall.bounded(anzahl));
        ansicht.scrollTo(index);
        const QRect ort = ansicht.visualRect(index);
        QVERIFY(fenster.height() < ort.height() || fenster.contains(ort));
        QCOMPARE(ansicht.indexAt(ort.intersected(fenster).center()), index);
        const auto [von, bis] = ansicht.sichtbar();
        QVERIFY(von <= index.row() && index.row() <= bis);
        if (index.row() > 0)
            QVERIFY(!ansicht.visualRect(modell.index(index.row() - 1)).intersects(ort));
    }
    ansicht.verticalScrollBar()->setValue(ansicht.verticalScrollBar()->maximum());
    QCOMPARE(ansicht.sichtbar().second, anzahl - 1);
    if (anzahl > 100)
        QCOMPARE(ansicht.visualRect(modell.index(anzahl - 1)).bottom(), fenster.bottom());
}

void TestUebersicht::tasten()
{
    Uebersichtsmodell modell;
    Vorschaulager lager(1 << 20);
    Kachelansicht ansicht(modell, lager, nullptr);
    modell.setSeite(seite(103, 1, {}));
    ansicht.resize(5 * 170, 3 * 200);
    ansicht.show();
    QVERIFY(QTest::qWaitForWindowExposed(&ansicht));
    const int n = ansicht.spalten();
    QVERIFY(n >= 4 && 103 % n != 0);
    ansicht.setCurrentIndex(modell.index(0));
    const auto nach = [&](Qt::Key taste) {
        QTest::keyClick(&ansicht, taste);
        return ansicht.currentIndex().row();
    };
    QCOMPARE(nach(Qt::Key_Right), 1);
    QCOMPARE(nach(Qt::Key_Down), 1 + n);
    QCOMPARE(nach(Qt::Key_Left), n);
    QCOMPARE(nach(Qt::Key_Up), 0);
    QCOMPARE(nach(Qt::Key_Up), 0);
    QCOMPARE(nach(Qt::Key_Left), 0);
    QCOMPARE(nach(Qt::Key_PageDown), ansicht.viewport()->height() / ansicht.visualRect(modell.index(0)).height() * n);
    QCOMPARE(nach(Qt::Key_End), 102);
    QVERIFY(ansicht.viewport()->rect().contains(ansicht.visualRect(modell.index(102))));
    QCOMPARE(nach(Qt::Key_Right), 102);
    QCOMPARE(nach(Qt::Key_Down), 102);
    QCOMPARE(nach(Qt::Key_Up), 102 - n);
    // Into a last line that is shorter.
    ansicht.setCurrentIndex(modell.index(103 / n * n - 1));
    QCOMPARE(nach(Qt::Key_Down), 102);
    QCOMPARE(nach(Qt::Key_Home), 0);
    QCOMPARE(ansicht.verticalScrollBar()->value(), 0);
    QCOMPARE(ansicht.selectionModel()->selectedIndexes(), QModelIndexList{modell.index(0)});
}

void TestUebersicht::buchstaben()
{
    Uebersichtsmodell modell;
    Vorschaulager lager(1 << 20);
    Kachelansicht ansicht(modell, lager, nullptr);
    modell.setSeite(seite(260, 3, {}));
    ansicht.show();
    QVERIFY(QTest::qWaitForWindowExposed(&ansicht));
    const auto name = [&] { return modell.pflanze(ansicht.currentIndex().row()).botanisch; };
    QTest::keyClicks(&ansicht, u"fb"_s);
    QVERIFY2(name().startsWith(u"Fbies"), qPrintable(name()));
    const QString erste = name();
    QTest::qWait(QApplication::keyboardInputInterval() + 50);
    QTest::keyClick(&ansicht, Qt::Key_F);
    QVERIFY(name().startsWith(u"Fbies") && name() != erste);
    // The picture is the plant's first.
    QCOMPARE(ansicht.currentIndex().row() % 3, 0);
    const QString zweite = name();
    QTest::keyClick(&ansicht, Qt::Key_F);
    QVERIFY(name().startsWith(u"Fbies") && name() != zweite && name() != erste);
    QVERIFY(ansicht.viewport()->rect().intersects(ansicht.visualRect(ansicht.currentIndex())));
}

void TestUebersicht::groesseHaeltDieStelle()
{
    Uebersichtsmodell modell;
    Vorschaulager lager(1 << 20);
    Kachelansicht ansicht(modell, lager, nullptr);
    modell.setSeite(seite(5000, 1, {}));
    ansicht.resize(900, 600);
    ansicht.show();
    QVERIFY(QTest::qWaitForWindowExposed(&ansicht));
    ansicht.setCurrentIndex(modell.index(2500));
    for (const int groesse : {80, 320, 144, 200, 96}) {
        ansicht.setKachel(groesse);
        QCOMPARE(ansicht.kachel(), groesse);
        QVERIFY(ansicht.viewport()->rect().intersects(ansicht.visualRect(modell.index(2500))));
    }
    // So does another width, for what stands at the top.
    ansicht.verticalScrollBar()->setValue(20'000);
    const int oben = ansicht.sichtbar().first;
    ansicht.resize(600, 600);
    const auto [von, bis] = ansicht.sichtbar();
    QVERIFY(von <= oben && oben <= bis);
    QSignalSpy gewuenscht(&ansicht, &Kachelansicht::groesseGewuenscht);
    radDrehen(ansicht.viewport(), {0, 60}, Qt::ControlModifier);
    QCOMPARE(gewuenscht.size(), 0);
    radDrehen(ansicht.viewport(), {0, 60}, Qt::ControlModifier);
    QCOMPARE(gewuenscht.takeFirst().first().toInt(), 1);
    QTest::keyClick(&ansicht, Qt::Key_Minus);
    QCOMPARE(gewuenscht.takeFirst().first().toInt(), -1);
}

void TestUebersicht::laedtNurWasZuSehenIst()
{
    Bildordner ordner;
    const QByteArray bytes = jpeg(gemischt(200, 150, 6));
    Bilderseite viele = seite(20'000, 1, {});
    for (size_t i = 0; i < viele.bilder.size(); ++i)
        viele.bilder[i].datei = ordner.pfad(u"%1.jpg"_s.arg(i % 600));
    for (int i = 0; i < 600; ++i)
        ordner.schreibe(bytes, u"%1.jpg"_s.arg(i));
    Uebersichtsmodell modell;
    Vorschaulager lager(64 << 20);
    Kachelansicht ansicht(modell, lager, nullptr);
    modell.setSeite(std::move(viele));
    ansicht.resize(900, 600);
    ansicht.show();
    QVERIFY(QTest::qWaitForWindowExposed(&ansicht));
    QTRY_VERIFY(lager.geladen() > 0);
    QTRY_COMPARE(lager.wartend(), 0);
    const auto [von, bis] = ansicht.sichtbar();
    for (int zeile = von; zeile <= bis; ++zeile)
        QTRY_VERIFY(lager.finden(modell.bild(zeile).datei));
    QVERIFY(lager.geladen() <= 2 * (bis - von + 1) + 8);
    // From one end to the other: what lies between is not read.
    const qint64 vorher = lager.geladen();
    for (int wert = 0; wert < ansicht.verticalScrollBar()->maximum(); wert += 5000)
        ansicht.verticalScrollBar()->setValue(wert);
    ansicht.verticalScrollBar()->setValue(ansicht.verticalScrollBar()->maximum());
    const auto [anfang, ende] = ansicht.sichtbar();
    for (int zeile = anfang; zeile <= ende; ++zeile)
        QTRY_VERIFY(lager.finden(modell.bild(zeile).datei));
    QTRY_COMPARE(lager.wartend(), 0);
    QVERIFY(lager.geladen() - vorher <= 2 * (ende - anfang + 1) + 8);
}

void TestUebersicht::ersatzFuerUnlesbares()
{
    Bildordner ordner;
    QImage rot(60, 60, QImage::Format_RGB32);
    rot.fill(Qt::red);
    Bilderseite eine = seite(1, 1, ordner.schreibe("kaputt", u"a.jpg"_s));
    eine.ersatz = ordner.schreibe(jpeg(rot), u"b.jpg"_s);
    Uebersichtsmodell modell;
    Vorschaulager lager(1 << 20);
    Kachelansicht ansicht(modell, lager, nullptr);
    modell.setSeite(std::move(eine));
    ansicht.resize(400, 300);
    ansicht.show();
    QVERIFY(QTest::qWaitForWindowExposed(&ansicht));
    const QPoint mitte = ansicht.visualRect(modell.index(0)).topLeft() + QPoint(ansicht.visualRect(modell.index(0)).width() / 2, 60);
    QTRY_VERIFY(ansicht.viewport()->grab().toImage().pixelColor(mitte).red() > 200);
}

void TestUebersicht::klickUndEingabe()
{
    Uebersichtsmodell modell;
    Vorschaulager lager(1 << 20);
    Kachelansicht ansicht(modell, lager, nullptr);
    modell.setSeite(seite(50, 1, {}));
    ansicht.resize(800, 600);
    ansicht.show();
    QVERIFY(QTest::qWaitForWindowExposed(&ansicht));
    QSignalSpy gewaehlt(&ansicht, &Kachelansicht::gewaehlt);
    const QPoint dritte = ansicht.visualRect(modell.index(2)).center(), vierte = ansicht.visualRect(modell.index(3)).center();
    QTest::mouseClick(ansicht.viewport(), Qt::LeftButton, {}, dritte);
    QCOMPARE(gewaehlt.size(), 1);
    QCOMPARE(gewaehlt.takeFirst().first().toModelIndex().row(), 2);
    // Slid off, the other button, no tile: nothing.
    QTest::mousePress(ansicht.viewport(), Qt::LeftButton, {}, dritte);
    QTest::mouseRelease(ansicht.viewport(), Qt::LeftButton, {}, vierte);
    QTest::mouseClick(ansicht.viewport(), Qt::RightButton, {}, dritte);
    ansicht.verticalScrollBar()->setValue(ansicht.verticalScrollBar()->maximum());
    QTest::keyClick(&ansicht, Qt::Key_Home);
    QVERIFY(gewaehlt.isEmpty());
    QTest::keyClick(&ansicht, Qt::Key_Right);
    QTest::keyClick(&ansicht, Qt::Key_Return);
    QCOMPARE(gewaehlt.takeFirst().first().toModelIndex().row(), 1);
}

void TestUebersicht::leereSeiten()
{
    Bilderordner ordner;
    Programm programm = ordner.programm();
    frmUebersicht form;
    const auto *leer = form.findChild<QLabel *>(u"lblLeer"_s);
    const auto *anzahl = form.findChild<QLabel *>(u"lblAnzahl"_s);
    form.show();
    form.listen({programm, Sparte::Topf, {}}, u"Titel"_s);
    QCOMPARE(form.windowTitle(), u"Titel"_s);
    QVERIFY(form.liest());
    QCOMPARE(leer->text(), u"Die Bilder werden gesucht ..."_s);
    QTRY_VERIFY(!form.liest());
    QVERIFY(leer->isVisible());
    QCOMPARE(leer->text(), u"Zu diesen Pflanzen gibt es keine Bilder"_s);
    QVERIFY(anzahl->text().isEmpty());
    // Pictures are named, the folder is not known.
    programm.BilderPfad.clear();
    const std::vector<qint64> alle = alleNummern(ordner, Sparte::Topf);
    form.listen({programm, Sparte::Topf, alle}, {});
    QTRY_VERIFY(!form.liest());
    QCOMPARE(leer->text(), u"Die Bilder zu diesen Pflanzen wurden nicht gefunden"_s);
    // Now there is one.
    programm = ordner.programm();
    const auto zeile = bildzeile(ordner.db(), eintrag(Sparte::Topf), alle[1]);
    ordner.bild(u"topfpflanzen/%1.jpg"_s.arg(*zeile->g[0].stamm), {100, 80});
    form.listen({programm, Sparte::Topf, {alle[0], alle[1]}}, {});
    QTRY_VERIFY(!form.liest());
    QVERIFY(!leer->isVisible());
    QVERIFY2(anzahl->text().startsWith(u"1 Bild von 1 Pflanze, "), qPrintable(anzahl->text()));
    QVERIFY2(anzahl->text().endsWith(u"Dateien fehlen"), qPrintable(anzahl->text()));
    programm.ProgrammPfad += u"\\fort"_s;
    form.listen({programm, Sparte::Topf, alle}, {});
    QTRY_VERIFY(!form.liest());
    QVERIFY2(leer->isVisible() && leer->text().contains(u"flox-demo.mdb"), qPrintable(leer->text()));
}

void TestUebersicht::escSchliesstUndGibtFrei()
{
    Bilderordner ordner;
    const std::vector<qint64> alle = alleNummern(ordner, Sparte::Topf);
    const auto zeile = bildzeile(ordner.db(), eintrag(Sparte::Topf), alle[0]);
    ordner.bild(u"topfpflanzen/%1.jpg"_s.arg(*zeile->g[0].stamm), {100, 80});
    frmUebersicht form;
    form.show();
    form.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&form));
    form.listen({ordner.programm(), Sparte::Topf, alle}, {});
    QTRY_VERIFY(!form.liest());
    auto *ansicht = form.findChild<Kachelansicht *>(u"lvwBilder"_s);
    auto *groesse = form.findChild<QSlider *>(u"sldGroesse"_s);
    QTRY_VERIFY(ansicht->hasFocus());
    groesse->setValue(groesse->maximum());
    QCOMPARE(ansicht->kachel(), Kachelansicht::groesste);
    QTest::keyClick(ansicht, Qt::Key_Minus);
    QVERIFY(ansicht->kachel() < Kachelansicht::groesste);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
    QTRY_VERIFY(form.isHidden());
    QCOMPARE(ansicht->model()->rowCount(), 0);
}

void TestUebersicht::schliessenBeimLesen()
{
    Bilderordner ordner;
    const std::vector<qint64> alle = alleNummern(ordner, Sparte::Topf);
    for (int lauf = 0; lauf < 20; ++lauf) {
        frmUebersicht form;
        form.show();
        form.listen({ordner.programm(), Sparte::Topf, alle}, {});
        if (lauf % 2)
            form.listen({ordner.programm(), Sparte::Topf, alle}, {});
        if (lauf % 4 == 0)
            QTest::qWait(lauf);
        if (lauf % 3 == 0)
            form.close();
    }
    // What was read for a window that is closed by now comes to nothing.
    frmUebersicht form;
    form.show();
    form.listen({ordner.programm(), Sparte::Topf, alle}, {});
    form.close();
    QVERIFY(!form.liest());
    form.show();
    form.listen({ordner.programm(), Sparte::Topf, {}}, {});
    QTRY_VERIFY(!form.liest());
    QCOMPARE(form.findChild<QLabel *>(u"lblLeer"_s)->text(), u"Zu diesen Pflanzen gibt es keine Bilder"_s);
}

void TestUebersicht::vorleser()
{
    Uebersichtsmodell modell;
    Vorschaulager lager(1 << 20);
    Kachelansicht ansicht(modell, lager, nullptr);
    modell.setSeite(seite(5, 2, {}));
    ansicht.show();
    QAccessibleInterface *liste = QAccessible::queryAccessibleInterface(&ansicht);
    QVERIFY(liste);
    QCOMPARE(liste->role(), QAccessible::List);
    QVERIFY(liste->childCount() >= 10);
    QAccessibleInterface *dritte = liste->tableInterface()->cellAt(2, 0);
    QVERIFY(dritte);
    QCOMPARE(dritte->text(QAccessible::Name), modell.index(2).data(Qt::AccessibleTextRole).toString());
    QCOMPARE(dritte->rect().size(), ansicht.visualRect(modell.index(2)).size());
    frmUebersicht form;
    for (const char *name : {"lvwBilder", "sldGroesse"})
        QVERIFY(!form.findChild<QWidget *>(QLatin1String(name))->accessibleName().isEmpty());
}

FLOX_TEST(tst_uebersicht, TestUebersicht)
#include "tst_uebersicht.moc"
