#include "Fensterprobe.h"

#include "controls/Spalten.h"
#include "controls/Textkasten.h"
#include "plantwindows/Elemente.h"
#include "tests/Faelle.h"
#include "tests/Testprogramm.h"

#include <QComboBox>
#include <QLabel>
#include <QPushButton>
#include <QScrollArea>
#include <QTabWidget>
#include <QTest>
#include <QTextBlock>

using namespace Qt::StringLiterals;

/* How a plant window uses its place: columns without holes, small windows, names and texts of any length. */

class TestAufbau : public QObject
{
    Q_OBJECT

private slots:
    void spaltenSindAusgewogen_data();
    void spaltenSindAusgewogen();
    void keineLeereSpalte_data();
    void keineLeereSpalte();
    void keineLeereSeite();
    void kleineFenster_data();
    void kleineFenster();
    void streifenWeichtZuerst();
    void grosseFensterSetzenGroesser();
    void und_data();
    void und();
    void langerName();
    void langeTexte_data();
    void langeTexte();
    void geteilteZeilen_data();
    void geteilteZeilen();
    void notizMitLangerZeile();

private:
    /// The cards of a tab that are shown, and the page they stand on.
    static QList<Karte *> karten(QWidget *seite);
};

QList<Karte *> TestAufbau::karten(QWidget *seite)
{
    QList<Karte *> sichtbar;
    for (Karte *karte : seite->findChildren<Karte *>())
        if (!karte->isHidden() && !qobject_cast<Karte *>(karte->parentWidget())) // groups below one heading stand in its card
            sichtbar += karte;
    return sichtbar;
}

void TestAufbau::spaltenSindAusgewogen_data()
{
    QTest::addColumn<QList<int>>("hoehen");
    QTest::addColumn<int>("spalten");
    QTest::addColumn<QList<int>>("zahlen");
    QTest::newRow("none") << QList<int>{} << 2 << QList<int>{0};
    QTest::newRow("one card, two columns") << QList<int>{50} << 2 << QList<int>{1};
    QTest::newRow("one column") << QList<int>{50, 60, 70} << 1 << QList<int>{3};
    QTest::newRow("a high one first") << QList<int>{200, 90, 90} << 2 << QList<int>{1, 2};
    QTest::newRow("a high one last") << QList<int>{90, 90, 200} << 2 << QList<int>{2, 1};
    QTest::newRow("as many as columns") << QList<int>{10, 500, 10} << 3 << QList<int>{1, 1, 1};
    QTest::newRow("equal ones") << QList<int>{50, 50, 50, 50} << 2 << QList<int>{2, 2};
    QTest::newRow("the front takes more") << QList<int>{50, 50, 50} << 2 << QList<int>{2, 1};
}

void TestAufbau::spaltenSindAusgewogen()
{
    QFETCH(QList<int>, hoehen);
    QFETCH(int, spalten);
    QFETCH(QList<int>, zahlen);
    const std::vector<int> teile = ausgewogen(std::vector<int>(hoehen.begin(), hoehen.end()), 10, spalten);
    QCOMPARE(QList<int>(teile.begin(), teile.end()), zahlen);
}

void TestAufbau::keineLeereSpalte_data()
{
    QTest::addColumn<int>("sparte");
    QTest::addColumn<QSize>("groesse");
    for (const Sparte sparte : spartenMitFenster())
        for (const QSize groesse : {QSize(500, 600), QSize(1010, 600), QSize(1260, 800), QSize(1700, 950)})
            QTest::addRow("%s %dx%d", qPrintable(eintrag(sparte).titel.toString()), groesse.width(), groesse.height()) << int(sparte) << groesse;
}

void TestAufbau::keineLeereSpalte()
{
    QFETCH(int, sparte);
    QFETCH(QSize, groesse);
    Fensterprobe probe{Sparte(sparte)};
    probe.alleZeigen();
    probe.oeffnen();
    probe.fenster->resize(groesse);
    auto *tabStauden = probe.finde<QTabWidget>(u"tabStauden"_s);
    // Some plants of each kind: with and without flowers, fruit, varieties; others in each size.
    for (int stelle = groesse.width() / 40; stelle < probe.fenster->Anzahl; stelle += faelle(60, 9)) {
        probe.fenster->satz().haupt().setAbsolutePosition(stelle);
        probe.fenster->darstellen();
        for (int i = 0; i < tabStauden->count(); ++i) {
            tabStauden->setCurrentIndex(i);
            QCoreApplication::processEvents();
            auto *rolle = qobject_cast<QScrollArea *>(tabStauden->widget(i));
            const QByteArray wo = u"%1: %2"_s.arg(probe.name(), tabStauden->tabText(i)).toUtf8();
            const QList<Karte *> da = karten(rolle->widget());
            QVERIFY2(!da.isEmpty(), wo.constData());
            QRect alle;
            for (const Karte *karte : da) {
                QVERIFY2(!alle.isValid()
                             || std::ranges::none_of(
                                 da, [&](const Karte *andere) { return andere != karte && andere->geometry().intersects(karte->geometry()); }),
                         wo.constData());
                alle |= karte->geometry();
            }
            // From edge to edge, and from the top in every column.
            QVERIFY2(alle.left() <= 4 && alle.right() >= rolle->widget()->width() - 8, wo.constData());
            for (const Karte *karte : da)
                QVERIFY2(std::ranges::any_of(da, [&](const Karte *andere) { return andere->x() == karte->x() && andere->y() == alle.top(); }),
                         wo.constData());
        }
    }
    probe.fenster->close();
}

void TestAufbau::keineLeereSeite()
{
    Fensterprobe probe{Sparte::Apfel};
    probe.alleZeigen();
    probe.oeffnen();
    probe.leeren();
    auto *tabStauden = probe.finde<QTabWidget>(u"tabStauden"_s);
    for (int i = 0; i < 3; ++i) {
        const QList<Karte *> da = karten(tabStauden->widget(i));
        QCOMPARE(da.size(), 1);
        QCOMPARE(da.first()->findChild<QLabel *>()->text(), u"Hierzu liegen keine Angaben vor."_s);
    }
    probe.setzen({{u"k_groesse"_s, u"100"_s}});
    QCOMPARE(karten(tabStauden->widget(1)).size(), 1);
    QCOMPARE(karten(tabStauden->widget(1)).first()->objectName(), u"fraKelch"_s);
}

void TestAufbau::kleineFenster_data()
{
    QTest::addColumn<QSize>("groesse");
    // Two to four windows side by side and one below the other in a main window of 1024 x 700.
    for (const QSize groesse : {QSize(504, 600), QSize(333, 600), QSize(248, 600), QSize(1016, 290), QSize(1016, 180), QSize(1016, 130)})
        QTest::addRow("%dx%d", groesse.width(), groesse.height()) << groesse;
}

void TestAufbau::kleineFenster()
{
    QFETCH(QSize, groesse);
    Fensterprobe probe;
    probe.oeffnen();
    const QSize klein = probe.fenster->minimumSizeHint().expandedTo(probe.fenster->minimumSize());
    QVERIFY2(klein.width() <= groesse.width() && klein.height() <= groesse.height(), qPrintable(u"%1 x %2"_s.arg(klein.width()).arg(klein.height())));
    probe.fenster->resize(groesse);
    QCoreApplication::processEvents();
    const auto ganz = [&](const QString &name) {
        QWidget *control = probe.finde(name);
        const QRect ort(control->mapTo(probe.fenster.get(), QPoint()), control->size());
        return control->isVisible() && probe.fenster->rect().contains(ort) && ort.width() >= 20 && ort.height() >= 14;
    };
    for (const char *name : {"cmdFirst", "cmdBack", "cmdNext", "cmdLast", "cmdBotDeu", "cmdFilterEin", "cmdFilter", "cmdFilterLaden",
                             "cmdFilterSpeichern", "cmdDruck", "cboArten", "stbAnzeige", "stbAnzeige_4"})
        QVERIFY2(ganz(QString::fromLatin1(name)), name);
    // What has no room can be scrolled to.
    auto *rolle = probe.finde<QScrollArea>(u"rolDaten"_s);
    QVERIFY(rolle->isVisible() && rolle->height() >= 30);
    rolle->ensureWidgetVisible(probe.finde(u"tabStauden"_s), 0, 0);
    QVERIFY(!probe.finde(u"tabStauden"_s)->visibleRegion().isEmpty());
}

void TestAufbau::streifenWeichtZuerst()
{
    Fensterprobe probe;
    probe.oeffnen();
    for (const auto &[breite, sichtbar] :
         {std::pair(1000, true), std::pair(660, true), std::pair(560, false), std::pair(300, false), std::pair(980, true)}) {
        probe.fenster->resize(breite, 600);
        QCoreApplication::processEvents();
        QCOMPARE(probe.finde(u"fraBilder"_s)->isVisible(), sichtbar);
    }
}

void TestAufbau::grosseFensterSetzenGroesser()
{
    Fensterprobe probe;
    probe.oeffnen();
    const auto punkt = [&](const char *name) { return probe.finde(QString::fromLatin1(name))->font().pointSizeF(); };
    probe.fenster->resize(800, 540);
    QCoreApplication::processEvents();
    const double text = punkt("lblFamilie"), name = punkt("lblBotName"), marke = punkt("lblBewertungZahl");
    const QSize monat = probe.zelle(u"lblAngMonat"_s, 0)->sizeHint();
    probe.fenster->resize(1300, 860);
    QCoreApplication::processEvents();
    QVERIFY(punkt("lblFamilie") >= 1.3 * text && punkt("lblBotName") >= 1.3 * name);
    QVERIFY(probe.zelle(u"lblAngMonat"_s, 0)->sizeHint().width() > monat.width());
    QCOMPARE(punkt("lblBewertungZahl"), marke); // the marks keep their places
    QVERIFY(probe.finde(u"lblBotName"_s)->font().bold() && probe.finde(u"lblBotName"_s)->font().italic());
    probe.fenster->resize(800, 540);
    QCoreApplication::processEvents();
    QCOMPARE(punkt("lblFamilie"), text);
    QCOMPARE(probe.zelle(u"lblAngMonat"_s, 0)->sizeHint(), monat);
}

void TestAufbau::und_data()
{
    QTest::addColumn<QString>("name");
    for (const char *name : {"Duft & Farbe", "&", "&&", "A&B", "Ende &"})
        QTest::newRow(name) << QString::fromLatin1(name);
}

/// The name is painted as it is: its picture is that of the same name in a label, and no mnemonic is left.
void TestAufbau::und()
{
    QFETCH(QString, name);
    Namenskaestchen kaestchen(name);
    QCOMPARE(kaestchen.name(), name);
    QVERIFY(kaestchen.shortcut().isEmpty());
    QCOMPARE(kaestchen.text(), QString(name).replace(u'&', u"&&"_s));
    Fensterprobe probe;
    probe.programm.BenutzerNamen[size_t(Sparte::Topf)][1] = name;
    probe.oeffnen();
    probe.fenster->eigenschaftenBenennen();
    auto *box = probe.finde<Namenskaestchen>(u"sschkBenutzer_1"_s);
    QCOMPARE(box->name(), name);
    QVERIFY(box->shortcut().isEmpty());
    QVERIFY(box->accessibleName().endsWith(name));
}

void TestAufbau::langerName()
{
    Fensterprobe probe;
    probe.oeffnen();
    probe.fenster->resize(900, 600);
    probe.reiterVon(u"txtEigeneBemerkung"_s);
    QCoreApplication::processEvents();
    const int vorher = probe.finde(u"txtEigeneBemerkung"_s)->width();
    probe.programm.BenutzerNamen[size_t(Sparte::Topf)][2] = QString(40, u'w') + QString(200, u'm');
    probe.fenster->eigenschaftenBenennen();
    QCoreApplication::processEvents();
    QCOMPARE(probe.finde(u"txtEigeneBemerkung"_s)->width(), vorher);
    const QWidget *box = probe.finde(u"sschkBenutzer_2"_s), *gruppe = probe.finde(u"SSFraBenutzer2"_s);
    QVERIFY(box->mapTo(gruppe, QPoint(box->width(), 0)).x() <= gruppe->width());
}

void TestAufbau::langeTexte_data()
{
    QTest::addColumn<QString>("feld");
    QTest::addColumn<QString>("control");
    QTest::addColumn<bool>("schild");
    QTest::addColumn<QString>("text");
    constexpr qsizetype viel = 10'000'000;
    const QString worte = u"Blume "_s.repeated(viel / 6), zeichen(viel, u'x'), zeilen = u"eine Zeile\n"_s.repeated(viel / 11);
    for (const auto &[name, text] : {std::pair("words", worte), std::pair("one word", zeichen), std::pair("lines", zeilen)}) {
        QTest::addRow("label, %s", name) << u"HK"_s << u"lblHerkunft"_s << true << text;
        QTest::addRow("box, %s", name) << u"BEMERKUNG"_s << u"txtBemerkung"_s << false << text;
        QTest::addRow("note, %s", name) << u"benu_bemerkung"_s << u"txtEigeneBemerkung"_s << false << text;
    }
    QTest::addRow("name") << u"BOT_NAME"_s << u"lblBotName"_s << true << worte;
}

void TestAufbau::langeTexte()
{
    QFETCH(QString, feld);
    QFETCH(QString, control);
    QFETCH(bool, schild);
    QFETCH(QString, text);
    Fensterprobe probe;
    probe.nurPflanzen(2);
    probe.oeffnen();
    probe.reiterVon(control);
    const QString vorher = probe.text(control);
    Rechenuhr uhr;
    uhr.start();
    // The user's fields are shown from the working database, all others from the copy.
    const auto eintragen = [&](const QString &wert) {
        probe.arbeitSetzen(probe.fenster->satz().artnr(), feld, wert);
        probe.setzen({{feld, wert}});
    };
    eintragen(text);
    probe.fenster->DatenOrdnen();
    probe.finde<QComboBox>(u"cboArten"_s)->showPopup();
    probe.finde<QComboBox>(u"cboArten"_s)->hidePopup();
    probe.fenster->resize(probe.fenster->size() + QSize(150, 40));
    QCoreApplication::processEvents();
    probe.fenster->grab();
    const qint64 gedauert = uhr.elapsed();
    QVERIFY2(gedauert < 10'000, qPrintable(u"%1 ms"_s.arg(gedauert)));
    QVERIFY(!schild || probe.text(control).size() <= 1001);
    auto *ganz = probe.finde<Textkasten>(schild ? control + u"_Ganz"_s : control);
    QVERIFY(!ganz->isHidden());
    QVERIFY(ganz->text() == text);
    // The next plant's text stands there alone again.
    eintragen(vorher);
    QCOMPARE(probe.text(control), vorher);
    QVERIFY(!schild || ganz->isHidden());
}

void TestAufbau::geteilteZeilen_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("empty") << u""_s;
    QTest::newRow("line ends") << u"\n\neins\n\nzwei\n"_s;
    QTest::newRow("at the limit") << QString(laengsteZeile, u'x');
    QTest::newRow("beyond it") << QString(laengsteZeile + 1, u'x');
    QTest::newRow("long, then short") << QString(3 * laengsteZeile, u'x') + u"\nkurz\n"_s;
    QTest::newRow("words") << u"Blume und "_s.repeated(laengsteZeile / 4);
    QTest::newRow("many lines") << u"Zeile\n\nnoch eine\n"_s.repeated(20 * laengsteZeile);
    QTest::newRow("pairs") << u"x"_s + u"\U0001F33C"_s.repeated(laengsteZeile);
}

/// A line that is divided for the eye is one line for everybody who asks.
void TestAufbau::geteilteZeilen()
{
    QFETCH(QString, text);
    Textkasten kasten;
    kasten.setText(text);
    QVERIFY(kasten.text() == text);
    QVERIFY(kasten.property("plainText").toString() == text);
    for (QTextBlock block = kasten.document()->begin(); block.isValid(); block = block.next()) {
        QVERIFY(block.text().size() <= laengsteZeile);
        QVERIFY(block.text().isEmpty() || !block.text().front().isLowSurrogate());
    }
    kasten.moveCursor(QTextCursor::End);
    kasten.insertPlainText(u"!"_s);
    QVERIFY(kasten.text() == text + u'!');
    kasten.insertPlainText(u"\nneu"_s);
    QVERIFY(kasten.text() == text + u"!\nneu"_s);
}

void TestAufbau::notizMitLangerZeile()
{
    Fensterprobe probe;
    probe.nurPflanzen(2);
    probe.oeffnen();
    const QString lang = u"Notiz "_s.repeated(5000).trimmed();
    const qint64 artnr = probe.fenster->satz().artnr();
    auto *kasten = probe.finde<Textkasten>(u"txtEigeneBemerkung"_s);
    kasten->setText(lang);
    probe.fenster->DatenGeaendert = true;
    probe.fenster->BenutzerdatenSpeichern();
    QVERIFY(probe.arbeitLesen(artnr, u"benu_bemerkung"_s) == lang);
}

FLOX_TEST(tst_aufbau, TestAufbau)
#include "tst_aufbau.moc"
