#include "Filterprobe.h"

#include "frame/Aussehen.h"
#include "tests/Testprogramm.h"

#include <QApplication>
#include <QClipboard>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QTabBar>

using namespace Qt::StringLiterals;

/* Where the dialog stands, what of it can be seen, and what its boxes take. */

class TestFilterdialogAnsicht : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { aussehen::anwenden(); }
    void nichtsZuRollen_data();
    void nichtsZuRollen();
    void ort_data();
    void ort();
    void reiterBleibenStehen_data();
    void reiterBleibenStehen();
    void zeilenenden_data();
    void zeilenenden();
    void eingefuegtesWirdGefunden();
    void fehlerZeigtSeinFeld_data();
    void fehlerZeigtSeinFeld();
    void fehlerInDerPflanze();

private:
    void starten(Sparte sparte);

    std::unique_ptr<Filterprobe> probe_;
};

void TestFilterdialogAnsicht::starten(Sparte sparte)
{
    probe_.reset();
    probe_ = std::make_unique<Filterprobe>(sparte);
    probe_->oeffnen();
    probe_->dialogZeigen();
}

void TestFilterdialogAnsicht::nichtsZuRollen_data()
{
    QTest::addColumn<Sparte>("sparte");
    for (const Sparte sparte : {Sparte::Topf, Sparte::Gehoelze, Sparte::Apfel})
        QTest::newRow(kuerzel(sparte)) << sparte;
}

void TestFilterdialogAnsicht::nichtsZuRollen()
{
    QFETCH(const Sparte, sparte);
    starten(sparte);
    probe_->dialog().resize(1004, 600); // as it opens on a screen of 1024 x 700
    auto *reiter = probe_->finde<QTabWidget>(u"SSTab1"_s);
    for (int i = 0; i < reiter->count(); ++i) {
        reiter->setCurrentIndex(i);
        QTest::qWait(1);
        int sichtbar = 0;
        for (const QScrollArea *flaeche : probe_->dialog().findChildren<QScrollArea *>()) {
            if (!flaeche->isVisible())
                continue;
            ++sichtbar;
            const QSize bedarf = flaeche->widget()->minimumSizeHint(), platz = flaeche->viewport()->size();
            QVERIFY2(bedarf.width() <= platz.width() && bedarf.height() <= platz.height(),
                     qPrintable(u"%1: %2 x %3 in %4 x %5"_s.arg(reiter->tabText(i))
                                    .arg(bedarf.width())
                                    .arg(bedarf.height())
                                    .arg(platz.width())
                                    .arg(platz.height())));
            QCOMPARE(flaeche->horizontalScrollBar()->maximum(), 0);
        }
        QCOMPARE(sichtbar, 2);
    }
}

void TestFilterdialogAnsicht::ort_data()
{
    QTest::addColumn<QRect>("fenster");
    const QRect schirm = QGuiApplication::primaryScreen()->availableGeometry();
    QTest::newRow("mitten") << QRect(schirm.center() - QPoint(200, 150), QSize(400, 300));
    QTest::newRow("links oben") << QRect(schirm.topLeft() + QPoint(3, 3), QSize(200, 150));
    QTest::newRow("rechts unten") << QRect(schirm.bottomRight() - QPoint(220, 180), QSize(200, 150));
    QTest::newRow("halb draußen") << QRect(schirm.bottomLeft() - QPoint(150, 60), QSize(300, 200));
}

void TestFilterdialogAnsicht::ort()
{
    QFETCH(const QRect, fenster);
    starten(Sparte::Topf);
    Filterdialog &dialog = probe_->dialog();
    probe_->taste("cmdAbbruch");
    probe_->fenster->setMinimumSize(1, 1);
    probe_->fenster->setGeometry(fenster);
    const QRect schirm = dialog.screen()->availableGeometry();
    QPoint zuletzt;
    for (int mal = 0; mal < 3; ++mal) {
        if (mal == 0)
            dialog.resize(480, 320);
        probe_->dialogZeigen();
        const QRect innen(probe_->fenster->mapToGlobal(QPoint(0, 0)), probe_->fenster->size()), ganz = dialog.frameGeometry();
        QVERIFY(schirm.contains(ganz));
        QPoint soll(innen.left() + (innen.width() - dialog.width()) / 2, innen.top() + (innen.height() - dialog.height()) / 2);
        soll.setX(qBound(schirm.left(), soll.x(), schirm.right() + 1 - ganz.width())); // no further than the edge
        soll.setY(qBound(schirm.top(), soll.y(), schirm.bottom() + 1 - ganz.height()));
        QCOMPARE(dialog.pos(), soll);
        if (mal > 0)
            QCOMPARE(dialog.pos(), zuletzt);
        zuletzt = dialog.pos();
        probe_->taste("cmdAbbruch");
    }
    // A dialog larger than the screen is made to fit.
    dialog.resize(schirm.width() + 500, schirm.height() + 500);
    probe_->dialogZeigen();
    QVERIFY(schirm.contains(dialog.frameGeometry()));
}

void TestFilterdialogAnsicht::reiterBleibenStehen_data()
{
    nichtsZuRollen_data();
}

void TestFilterdialogAnsicht::reiterBleibenStehen()
{
    QFETCH(const Sparte, sparte);
    starten(sparte);
    probe_->dialog().resize(1004, 600);
    const QTabBar *leiste = probe_->finde<QTabWidget>(u"SSTab1"_s)->tabBar();
    const auto orte = [&] {
        QList<QRect> rechtecke;
        for (int i = 0; i < leiste->count(); ++i)
            rechtecke += leiste->tabRect(i);
        return rechtecke;
    };
    const QList<QRect> vorher = orte();
    QVERIFY(vorher.constLast().right() < leiste->width()); // all can be seen
    int gezaehlt = 0;
    for (const Kriterium &k : filterbeschreibung(sparte)->kriterien) {
        if (k.reiter < 0 || k.pruefung == Pruefung::Keine) // what tests nothing restricts nothing
            continue;
        const QString erstes = QString::fromLatin1(k.a.control) + (k.a.anzahl ? u"_0"_s : u""_s);
        if (auto *feld = probe_->dialog().findChild<QLineEdit *>(erstes))
            feld->setText(u"1"_s);
        else
            probe_->klicken(probe_->finde(erstes));
        QCOMPARE(orte(), vorher);
        ++gezaehlt;
    }
    int gezeigt = 0;
    for (int i = 0; i < leiste->count(); ++i)
        gezeigt += leiste->tabText(i).section(u'(', 1).chopped(1).toInt();
    QCOMPARE(gezeigt, gezaehlt);
}

void TestFilterdialogAnsicht::zeilenenden_data()
{
    QTest::addColumn<Sparte>("sparte");
    for (const Sparte sparte : spartenMitFenster())
        QTest::newRow(eintrag(sparte).fenster) << sparte;
}

void TestFilterdialogAnsicht::zeilenenden()
{
    QFETCH(const Sparte, sparte);
    starten(sparte);
    int felder = 0;
    for (QLineEdit *feld : probe_->dialog().findChildren<QLineEdit *>()) {
        probe_->zeigen(feld);
        for (const auto &[text, danach] : {std::pair(u"12\n3"_s, u"12 3"_s),
                                           {u"12\r3"_s, u"12 3"_s},
                                           {u"12\r\n3"_s, u"12 3"_s},
                                           {u"1\n\n2\r\n\r\n3"_s, u"1  2  3"_s},
                                           {u"1\u20282\u20293\u0085"_s, u"1 2 3 "_s},
                                           {u"12 3\t4"_s, u"12 3\t4"_s}}) {
            QGuiApplication::clipboard()->setText(text);
            feld->clear();
            QTest::keySequence(feld, QKeySequence::Paste);
            QCOMPARE(feld->text(), danach);
            QCOMPARE(feld->cursorPosition(), feld->text().size());
            feld->setText(text);
            QCOMPARE(feld->text(), danach);
        }
        ++felder;
    }
    // Text and number boxes and lists, in which one can type, have a line each in the file.
    QCOMPARE(felder, int(std::ranges::count_if(dateizeilen(sparte), [](const Dateizeile &zeile) {
                 return zeile.eigenschaft.isEmpty() && (zeile.art == u"text" || zeile.art == u"number text");
             })));
}

void TestFilterdialogAnsicht::eingefuegtesWirdGefunden()
{
    starten(Sparte::Topf);
    Meldungsfaenger meldungen;
    QLineEdit *feld = probe_->feld("txtbotName");
    probe_->zeigen(feld);
    QGuiApplication::clipboard()->setText(u"Ficus\nbenjamina"_s);
    QTest::keySequence(feld, QKeySequence::Paste);
    const QString pfad = probe_->ordner.pfad(u"eine.fft"_s);
    probe_->dialog().FilterSpeichern(pfad);
    const Filterzustand vorher = probe_->dialog().zustand();
    probe_->dialog().FilterLaden(pfad);
    QVERIFY(probe_->dialog().zustand() == vorher);
    probe_->taste("cmdOK");
    QCOMPARE(probe_->pflanzen(), probe_->arbeit(u"BOT_NAME LIKE '*Ficus benjamina*' AND bewertung >= 5"_s));
    QVERIFY(!probe_->pflanzen().isEmpty());
    QCOMPARE(meldungen.texte, QStringList());
}

void TestFilterdialogAnsicht::fehlerZeigtSeinFeld_data()
{
    QTest::addColumn<QByteArray>("name");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("meldung");
    for (const auto &[feld, gruppe] : {std::pair("Hoehe", u"Höhe"_s), {"Licht", u"Beleuchtungsstärke"_s}, {"Temp", u"Temperatur"_s}})
        for (const auto &[stamm, ende] : {std::pair("txtMin", u"Minimum"_s), {"txtMax", u"Maximum"_s}}) {
            const QByteArray name = QByteArray(stamm) + feld;
            QTest::newRow(name) << name << u"1,,2"_s << u"%1, %2: \"1,,2\" ist keine Zahl."_s.arg(gruppe, ende);
        }
    QTest::newRow("txtSynonym") << QByteArray("txtSynonym") << u"d'Or"_s << u"Botanisches Synonym: "_s;
    QTest::newRow("txtSynonymDeutsch") << QByteArray("txtSynonymDeutsch") << u"d'Or"_s << u"Deutscher Name: "_s;
}

void TestFilterdialogAnsicht::fehlerZeigtSeinFeld()
{
    QFETCH(const QByteArray, name);
    QFETCH(const QString, text);
    QFETCH(const QString, meldung);
    starten(Sparte::Topf);
    const QList<qint64> alle = probe_->arbeit(u"1"_s);
    QLineEdit *feld = probe_->feld(name);
    feld->setText(text);
    probe_->finde<QTabWidget>(u"SSTab1"_s)->setCurrentIndex(1);
    probe_->dialog().activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&probe_->dialog()));
    Meldungsfaenger meldungen;
    probe_->taste("cmdOK");
    QCOMPARE(meldungen.texte.size(), 1);
    QVERIFY2(meldungen.texte[0].startsWith(meldung), qPrintable(meldungen.texte[0]));
    QVERIFY(feld->isVisible());        // its tab is in front
    probe_->dialog().activateWindow(); // as a window manager does once the message is gone
    QTRY_COMPARE(QApplication::focusWidget(), feld);
    QCOMPARE(feld->selectedText(), text); // typing replaces it
    QCOMPARE(probe_->pflanzen(), alle);
}

void TestFilterdialogAnsicht::fehlerInDerPflanze()
{
    starten(Sparte::Topf);
    const qint64 pflanze = probe_->pflanzen()[2];
    probe_->arbeitAendern(u"UPDATE TOPFPFL SET MAXHOEHE = 'hoch' WHERE ARTNR = ?"_s, {pflanze});
    probe_->feld("txtMaxHoehe")->setText(u"98"_s);
    Meldungsfaenger meldungen;
    probe_->taste("cmdOK");
    QCOMPARE(meldungen.texte, QStringList{u"Das Feld 'MAXHOEHE' der Pflanze %1 enthält keine Zahl: \"hoch\"."_s.arg(pflanze)});
}

FLOX_TEST(tst_filterdialog_ansicht, TestFilterdialogAnsicht)
#include "tst_filterdialog_ansicht.moc"
