#include "Handgriffe.h"
#include "Rahmenprobe.h"
#include "tests/Faelle.h"

#include "controls/Steuerelemente.h"
#include "filters/Filterdialog.h"
#include "frame/Aussehen.h"
#include "frame/Flaeche.h"
#include "plantwindows/Elemente.h"
#include "tests/Testprogramm.h"

#include <QLabel>
#include <QMessageBox>
#include <QRandomGenerator>
#include <QRegularExpression>
#include <QSlider>
#include <QTabBar>
#include <QTabWidget>
#include <QTest>

using namespace Qt::StringLiterals;

/* Two windows beside each other: opened, linked, parted. */

class TestVergleich : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void daneben_data() { sparten(); }
    void daneben();
    void dieselbenPflanzen_data();
    void dieselbenPflanzen();
    void notizKommtMit();
    void verschiedenes_data() { sparten(); }
    void verschiedenes();
    void reiterFolgen_data() { sparten(); }
    void reiterFolgen();
    void schliessenTrennt();
    void mitDemZuletztBenutzten();
    void ohneZweites();
    void farben_data();
    void farben();
    void zufall_data() { sparten(); }
    void zufall();

private:
    static void sparten();
    void oeffnen(Sparte sparte)
    {
        probe_->waehlen(eintrag(sparte).menue);
        hand::titelleiste(probe_->fenster(1, sparte));
    }
    Pflanzenfenster *oben() { return qobject_cast<Pflanzenfenster *>(probe_->zentrale->findChild<Flaeche *>()->activeSubWindow()->widget()); }
    static QTabWidget *reiter(Pflanzenfenster *form) { return form->findChild<QTabWidget *>(u"tabStauden"_s); }
    static QString hinweis(Pflanzenfenster *form) { return form->findChild<QLabel *>(u"stbAnzeige_2"_s)->text(); }
    /// Controls that show something, by their order in the window.
    static QList<QWidget *> felder(Pflanzenfenster *form);
    static QString inhalt(QWidget *feld);
    static int hervorgehoben(Pflanzenfenster *form);
    /// The controls that stand out are those that show different things.
    static void stimmig(Pflanzenfenster *a, Pflanzenfenster *b);

    std::unique_ptr<Rahmenprobe> probe_;
};

void TestVergleich::initTestCase()
{
    aussehen::anwenden();
}

void TestVergleich::init()
{
    probe_.reset();
    probe_ = std::make_unique<Rahmenprobe>(5);
    probe_->programm.MdiStatus = 0;
    probe_->laden();
    probe_->zentrale->resize(1300, 800);
    probe_->zentrale->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(probe_->zentrale.get()));
}

void TestVergleich::sparten()
{
    QTest::addColumn<Sparte>("sparte");
    for (const SpartenEintrag &zeile : alleSparten())
        QTest::newRow(zeile.fenster) << zeile.sparte;
}

QList<QWidget *> TestVergleich::felder(Pflanzenfenster *form)
{
    QList<QWidget *> gefunden;
    const Fensterbeschreibung &beschreibung = *fensterbeschreibung(form->sparte());
    const auto dazu = [&](const auto &elemente) {
        for (const Element &element : elemente) {
            const QString name = QString::fromLatin1(element.control);
            QWidget *feld = form->findChild<QWidget *>(name);
            // An array is known by the panel of its first control.
            if (QWidget *erstes = feld ? nullptr : form->findChild<QWidget *>(name + u"_0"_s))
                feld = erstes->parentWidget();
            if (!feld && element.muster == Muster::Bewertung)
                feld = form->findChild<Bewertungsleiste *>();
            if (!feld)
                qFatal("There is no control '%s'.", element.control);
            gefunden += feld;
        }
    };
    dazu(beschreibung.kopf);
    dazu(beschreibung.tafel);
    for (const Reiter &blatt : beschreibung.reiter)
        for (const Gruppe &gruppe : blatt.gruppen)
            dazu(Gruppenelemente(gruppe).elemente());
    return gefunden;
}

QString TestVergleich::inhalt(QWidget *feld)
{
    // Nothing of it is seen where its group is hidden.
    for (QWidget *eltern = feld->parentWidget(); eltern && !qobject_cast<QTabWidget *>(eltern); eltern = eltern->parentWidget())
        if (eltern->isHidden() && eltern->property("karte").isValid())
            return {};
    QStringList teile;
    const auto lesen = [&](QWidget *teil) {
        if (teil != feld && teil->isHidden())
            return;
        if (auto *schild = qobject_cast<QLabel *>(teil))
            teile += schild->text();
        else if (auto *zelle = qobject_cast<Farbzelle *>(teil))
            teile += u"%1 %2"_s.arg(zelle->backColor()).arg(zelle->backStyle());
        else if (auto *bild = qobject_cast<Bildfeld *>(teil); bild && !bild->isHidden())
            teile += u"%1 an %2"_s.arg(bild->bild(), bild->objectName());
        else if (auto *kasten = qobject_cast<QCheckBox *>(teil))
            teile += kasten->isChecked() ? u"x"_s : u"-"_s;
        else if (teil->property("plainText").isValid())
            teile += teil->property("plainText").toString();
    };
    lesen(feld);
    if (!feld->property("plainText").isValid())
        for (QWidget *teil : feld->findChildren<QWidget *>())
            lesen(teil);
    return teile.join(u'|');
}

int TestVergleich::hervorgehoben(Pflanzenfenster *form)
{
    int anzahl = 0;
    for (const QWidget *feld : form->findChildren<QWidget *>())
        anzahl += feld->property("verschieden").toBool();
    return anzahl;
}

void TestVergleich::stimmig(Pflanzenfenster *a, Pflanzenfenster *b)
{
    const QList<QWidget *> links = felder(a), rechts = felder(b);
    QCOMPARE(links.size(), rechts.size());
    int verschieden = 0;
    for (qsizetype i = 0; i < links.size(); ++i) {
        const bool anders = inhalt(links[i]) != inhalt(rechts[i]);
        verschieden += anders;
        for (const QWidget *feld : {links[i], rechts[i]})
            QVERIFY2(feld->property("verschieden").toBool() == anders,
                     qPrintable(u"%1: '%2', '%3'"_s.arg(feld->objectName(), inhalt(links[i]), inhalt(rechts[i]))));
    }
    QCOMPARE(hervorgehoben(a), verschieden);
    QCOMPARE(hervorgehoben(b), verschieden);
    QCOMPARE(reiter(a)->currentIndex(), reiter(b)->currentIndex());
}

void TestVergleich::daneben()
{
    QFETCH(const Sparte, sparte);
    oeffnen(sparte);
    Pflanzenfenster *erstes = probe_->fenster(1, sparte);
    hand::taste(Qt::Key_PageDown, Qt::ControlModifier);
    hand::taste(Qt::Key_PageDown, Qt::ControlModifier);
    reiter(erstes)->setCurrentIndex(1);
    hand::taste(Qt::Key_C, Qt::ControlModifier | Qt::ShiftModifier);
    Pflanzenfenster *zweites = probe_->fenster(2, sparte);
    QVERIFY(zweites);
    QCOMPARE(zweites->satz().artnr(), erstes->satz().artnr());
    QCOMPARE(zweites->satz().haupt().Schluesselfolge(), erstes->satz().haupt().Schluesselfolge());
    QCOMPARE(reiter(zweites)->currentIndex(), 1);
    QCOMPARE(oben(), zweites);
    QCOMPARE(hinweis(zweites), u"Strg+L verbindet beide Fenster."_s);
    // Side by side, each one half.
    const QRect flaeche = probe_->zentrale->findChild<Flaeche *>()->viewport()->rect();
    const QRect links = hand::unterfenster(erstes)->geometry(), rechts = hand::unterfenster(zweites)->geometry();
    QCOMPARE(links.united(rechts), flaeche);
    QVERIFY(!links.intersects(rechts));
    QVERIFY(links.left() < rechts.left());
    QVERIFY(std::abs(links.width() - rechts.width()) <= 1);
    // Opened beside, not linked.
    QCOMPARE(hervorgehoben(erstes), 0);
    // Keys go to the new window.
    hand::taste(Qt::Key_PageDown, Qt::ControlModifier);
    QCOMPARE(zweites->satz().haupt().AbsolutePosition(), std::min<qsizetype>(3, zweites->Anzahl - 1));
    QCOMPARE(erstes->satz().haupt().AbsolutePosition(), std::min<qsizetype>(2, erstes->Anzahl - 1));
}

void TestVergleich::dieselbenPflanzen_data()
{
    QTest::addColumn<Sparte>("sparte");
    QTest::addColumn<int>("wie");
    int reihe = 0; // each way in every third collection
    for (const SpartenEintrag &zeile : alleSparten()) {
        for (const auto &[wie, name] : {std::pair(0, "alle"), {1, "wenige"}, {2, "Filter aus"}, {3, "keine gefunden"}, {4, "scheitert"}})
            if (gruendlich() || (reihe + wie) % 3 == 0)
                QTest::addRow("%s, %s", zeile.fenster, name) << zeile.sparte << wie;
        ++reihe;
    }
}

void TestVergleich::dieselbenPflanzen()
{
    QFETCH(const Sparte, sparte);
    QFETCH(const int, wie);
    oeffnen(sparte);
    Pflanzenfenster *erstes = probe_->fenster(1, sparte);
    Filterdialog *dialog = erstes->filterdialog();
    Antworten antworten;
    if (wie == 0)
        for (auto *stufe : dialog->findChildren<QSlider *>())
            stufe->setValue(stufe->minimum());
    const QList<QLineEdit *> namen = dialog->findChildren<QLineEdit *>(QRegularExpression(u"^txt(bot)?Name$"_s));
    QCOMPARE(namen.size(), 1);
    if (wie == 1 || wie == 4)
        namen[0]->setText(erstes->Auslesen(u"BOT_NAME"_s).left(4));
    if (wie == 3)
        namen[0]->setText(u"so heißt keine"_s);
    hand::klick(erstes, "cmdFilter");
    hand::druecken(dialog, "cmdOK");
    if (wie == 3 && dialog->isVisible())
        hand::druecken(dialog, "cmdAbbruch");
    if (wie == 2)
        hand::klick(erstes, "cmdFilterEin");
    if (wie == 4) {
        // A run that stumbles halfway, after one that did not: it counts as none.
        const qsizetype wenige = erstes->Anzahl;
        const auto bewerten = [&](const char *wert) {
            probe_->ordner.db()->Execute(
                u"UPDATE %1 SET bewertung = %2 WHERE ARTNR = (SELECT max(ARTNR) FROM %1)"_s.arg(grundtabelle(sparte), QLatin1String(wert)));
        };
        bewerten("NULL");
        namen[0]->clear();
        hand::klick(erstes, "cmdFilter");
        hand::druecken(dialog, "cmdOK");
        hand::druecken(dialog, "cmdAbbruch");
        bewerten("5");
        QVERIFY(erstes->Anzahl > wenige);
    }
    hand::nachVorn(erstes);
    hand::titelleiste(erstes);
    hand::taste(Qt::Key_End, Qt::ControlModifier);
    hand::taste(Qt::Key_C, Qt::ControlModifier | Qt::ShiftModifier);
    Pflanzenfenster *zweites = probe_->fenster(2, sparte);
    QVERIFY(zweites);
    QCOMPARE(zweites->satz().haupt().Schluesselfolge(), erstes->satz().haupt().Schluesselfolge());
    QCOMPARE(zweites->satz().artnr(), erstes->satz().artnr());
    QCOMPARE(zweites->Anzahl, erstes->Anzahl);
    QCOMPARE(antworten.texte.size(), wie >= 3 ? 1 : 0);
}

void TestVergleich::notizKommtMit()
{
    oeffnen(Sparte::Stauden);
    Pflanzenfenster *erstes = probe_->fenster(1, Sparte::Stauden);
    hand::notieren(erstes, u"im Schatten"_s);
    hand::taste(Qt::Key_C, Qt::ControlModifier | Qt::ShiftModifier);
    Pflanzenfenster *zweites = probe_->fenster(2, Sparte::Stauden);
    QVERIFY(zweites);
    QCOMPARE(hand::notiz(zweites)->toPlainText(), u"im Schatten"_s);
    // Linked, a note that is stored leaves nothing to tell apart.
    hand::taste(Qt::Key_L, Qt::ControlModifier);
    QCOMPARE(hervorgehoben(zweites), 0);
    hand::notieren(zweites, u" und feucht"_s);
    hand::taste(Qt::Key_PageDown, Qt::ControlModifier);
    hand::taste(Qt::Key_PageUp, Qt::ControlModifier);
    QCOMPARE(hand::notiz(erstes)->toPlainText(), u"im Schatten und feucht"_s);
    stimmig(erstes, zweites);
    QCOMPARE(hervorgehoben(zweites), 0);
}

void TestVergleich::verschiedenes()
{
    QFETCH(const Sparte, sparte);
    oeffnen(sparte);
    hand::taste(Qt::Key_C, Qt::ControlModifier | Qt::ShiftModifier);
    Pflanzenfenster *erstes = probe_->fenster(1, sparte), *zweites = probe_->fenster(2, sparte);
    hand::taste(Qt::Key_L, Qt::ControlModifier);
    QCOMPARE(hinweis(zweites), u"Verbunden mit %1: Verschiedenes ist farbig unterlegt."_s.arg(erstes->titel()));
    QCOMPARE(hervorgehoben(erstes), 0); // the same plant
    int gesehen = 0;
    const auto vergleichen = [&] {
        stimmig(erstes, zweites);
        gesehen += hervorgehoben(zweites);
    };
    for (int i = 0; i < faelle(8, 25); ++i) {
        hand::taste(Qt::Key_PageDown, Qt::ControlModifier);
        vergleichen();
    }
    hand::titelleiste(erstes);
    hand::taste(Qt::Key_End, Qt::ControlModifier);
    vergleichen();
    QVERIFY(gesehen > 0);
    hand::taste(Qt::Key_L, Qt::ControlModifier);
    QCOMPARE(hinweis(erstes), u"Die Fenster sind wieder getrennt."_s);
    QCOMPARE(hervorgehoben(erstes) + hervorgehoben(zweites), 0);
    hand::taste(Qt::Key_Home, Qt::ControlModifier);
    QCOMPARE(hervorgehoben(erstes) + hervorgehoben(zweites), 0);
}

void TestVergleich::reiterFolgen()
{
    QFETCH(const Sparte, sparte);
    oeffnen(sparte);
    hand::taste(Qt::Key_C, Qt::ControlModifier | Qt::ShiftModifier);
    Pflanzenfenster *erstes = probe_->fenster(1, sparte), *zweites = probe_->fenster(2, sparte);
    reiter(zweites)->setCurrentIndex(reiter(zweites)->count() - 1);
    hand::taste(Qt::Key_L, Qt::ControlModifier);
    // The other one follows the one in which the key was pressed.
    QCOMPARE(reiter(erstes)->currentIndex(), reiter(zweites)->count() - 1);
    for (Pflanzenfenster *form : {erstes, zweites}) {
        hand::titelleiste(form);
        QTabBar *leiste = reiter(form)->tabBar();
        for (int i = 0; i < leiste->count(); ++i) {
            leiste->setFocus();
            QTest::mouseClick(leiste, Qt::LeftButton, {}, leiste->tabRect(i).center());
            QCOMPARE(reiter(form)->currentIndex(), i);
            QCOMPARE(reiter(erstes)->currentIndex(), reiter(zweites)->currentIndex());
            // The focus stays where the hand is.
            QCOMPARE(QApplication::focusWidget(), leiste);
        }
        hand::taste(Qt::Key_Left);
        QCOMPARE(reiter(erstes)->currentIndex(), leiste->count() - 2);
        QCOMPARE(reiter(zweites)->currentIndex(), leiste->count() - 2);
    }
    hand::taste(Qt::Key_L, Qt::ControlModifier);
    reiter(zweites)->setCurrentIndex(0);
    QVERIFY(reiter(erstes)->currentIndex() != 0);
}

void TestVergleich::schliessenTrennt()
{
    for (const int zu : {1, 2}) {
        oeffnen(Sparte::Topf);
        hand::taste(Qt::Key_C, Qt::ControlModifier | Qt::ShiftModifier);
        hand::taste(Qt::Key_L, Qt::ControlModifier);
        hand::taste(Qt::Key_PageDown, Qt::ControlModifier);
        Pflanzenfenster *bleibt = probe_->fenster(3 - zu);
        QVERIFY(hervorgehoben(bleibt) > 0);
        hand::schliessen(probe_->fenster(zu));
        QVERIFY(!probe_->fenster(zu));
        QCOMPARE(hervorgehoben(bleibt), 0);
        hand::titelleiste(bleibt);
        hand::taste(Qt::Key_PageDown, Qt::ControlModifier);
        reiter(bleibt)->setCurrentIndex(2);
        QCOMPARE(hervorgehoben(bleibt), 0);
        hand::schliessen(bleibt);
    }
}

void TestVergleich::mitDemZuletztBenutzten()
{
    oeffnen(Sparte::Apfel);
    for (int i = 0; i < 3; ++i)
        oeffnen(Sparte::Topf);
    const auto verbunden = [&](int a, int b) {
        for (int nummer = 1; nummer <= 3; ++nummer)
            if ((hervorgehoben(probe_->fenster(nummer)) > 0) != (nummer == a || nummer == b))
                return false;
        return true;
    };
    // Each on another plant.
    for (const int nummer : {1, 2, 3}) {
        hand::titelleiste(probe_->fenster(nummer));
        for (int i = 1; i < nummer; ++i)
            hand::taste(Qt::Key_PageDown, Qt::ControlModifier);
    }
    hand::titelleiste(probe_->fenster(2));
    hand::titelleiste(probe_->fenster(1, Sparte::Apfel));
    hand::titelleiste(probe_->fenster(1));
    hand::taste(Qt::Key_L, Qt::ControlModifier);
    QVERIFY(verbunden(1, 2));
    // A third one takes one of the two: the other is free.
    hand::titelleiste(probe_->fenster(3));
    hand::taste(Qt::Key_L, Qt::ControlModifier);
    QVERIFY(verbunden(3, 1));
    hand::titelleiste(probe_->fenster(1));
    hand::taste(Qt::Key_L, Qt::ControlModifier);
    QVERIFY(verbunden(0, 0));
    // One that nobody sees is none to compare with.
    hand::unterfenster(probe_->fenster(3))->showMinimized();
    hand::titelleiste(probe_->fenster(1));
    hand::taste(Qt::Key_L, Qt::ControlModifier);
    QVERIFY(verbunden(1, 2));
}

void TestVergleich::ohneZweites()
{
    oeffnen(Sparte::Topf);
    oeffnen(Sparte::Apfel);
    hand::taste(Qt::Key_L, Qt::ControlModifier);
    QVERIFY(hinweis(probe_->fenster(1, Sparte::Apfel)).startsWith(u"Zum Vergleichen ist kein zweites Fenster"));
    QCOMPARE(hervorgehoben(probe_->fenster(1)), 0);
}

void TestVergleich::farben_data()
{
    QTest::addColumn<int>("schema");
    QTest::newRow("hell") << int(aussehen::Schema::Hell);
    QTest::newRow("dunkel") << int(aussehen::Schema::Dunkel);
}

/// What stands out is seen: another ground than its card's, and back again.
void TestVergleich::farben()
{
    QFETCH(const int, schema);
    aussehen::anwenden(aussehen::Schema(schema));
    oeffnen(Sparte::Stauden);
    hand::taste(Qt::Key_C, Qt::ControlModifier | Qt::ShiftModifier);
    Pflanzenfenster *erstes = probe_->fenster(1, Sparte::Stauden), *zweites = probe_->fenster(2, Sparte::Stauden);
    const auto grund = [](Pflanzenfenster *form) {
        QWidget *name = form->findChild<QWidget *>(u"lblBotName"_s);
        const QImage bild = name->grab().toImage();
        return bild.pixelColor(bild.width() - 6, bild.height() / 2);
    };
    const QColor vorher = grund(erstes);
    hand::taste(Qt::Key_L, Qt::ControlModifier);
    hand::taste(Qt::Key_PageDown, Qt::ControlModifier);
    const QColor anders = grund(erstes);
    QVERIFY(anders != vorher);
    QCOMPARE(grund(zweites), anders);
    const auto paare = aussehen::farbpaare(aussehen::Schema(schema));
    QVERIFY(std::ranges::any_of(paare, [&](const aussehen::Farbpaar &paar) { return paar.grund == anders; }));
    hand::taste(Qt::Key_L, Qt::ControlModifier);
    QCOMPARE(grund(erstes), vorher);
    aussehen::anwenden();
}

/// Steps, tabs, filters, notes, further windows, links and closing in any order.
void TestVergleich::zufall()
{
    QFETCH(const Sparte, sparte);
    QRandomGenerator zufall(7 + int(sparte));
    Antworten antworten;
    std::map<int, int> partner; // by number, both ways
    const auto trennen = [&](int nummer) {
        if (const auto stelle = partner.find(nummer); stelle != partner.end()) {
            partner.erase(stelle->second);
            partner.erase(nummer);
        }
    };
    const auto offene = [&] {
        QList<int> nummern;
        for (int i = 1; i <= probe_->zentrale->tabelle(sparte).obergrenze(); ++i)
            if (probe_->fenster(i, sparte))
                nummern += i;
        return nummern;
    };
    for (int schritt = 0; schritt < faelle(18, 70); ++schritt) {
        QList<int> nummern = offene();
        if (nummern.isEmpty()) {
            oeffnen(sparte);
            continue;
        }
        const int nummer = nummern[zufall.bounded(nummern.size())];
        Pflanzenfenster *form = probe_->fenster(nummer, sparte);
        hand::titelleiste(form);
        const int was = zufall.bounded(12);
        switch (was) {
        case 0:
            if (nummern.size() < 3)
                hand::taste(Qt::Key_C, Qt::ControlModifier | Qt::ShiftModifier);
            break;
        case 1:
        case 2: {
            const Pflanzenfenster *anderes = probe_->zentrale->anderesFenster(sparte, nummer);
            // By the menu of the bar: after a dialog nothing has the keys.
            form->findChild<QAction *>(u"aktVerbinden"_s)->trigger();
            if (partner.contains(nummer)) {
                trennen(nummer);
            } else if (anderes) {
                trennen(anderes->Fensternummer);
                partner[nummer] = anderes->Fensternummer;
                partner[anderes->Fensternummer] = nummer;
            }
            break;
        }
        case 3: hand::notieren(form, u"x"_s); break;
        case 4: reiter(form)->setCurrentIndex(zufall.bounded(reiter(form)->count())); break;
        case 5: {
            hand::klick(form, "cmdFilter");
            Filterdialog *dialog = form->filterdialog();
            for (auto *stufe : dialog->findChildren<QSlider *>())
                stufe->setValue(stufe->minimum() + zufall.bounded(stufe->maximum() - stufe->minimum() + 1));
            hand::druecken(dialog, zufall.bounded(3) ? "cmdOK" : "cmdAbbruch");
            if (dialog->isVisible())
                hand::druecken(dialog, "cmdAbbruch");
            break;
        }
        case 6: hand::klick(form, "cmdFilterEin"); break;
        case 7:
            if (schritt % 3 == 0) {
                hand::schliessen(form);
                trennen(nummer);
            }
            break;
        default: hand::taste(std::array{Qt::Key_Home, Qt::Key_End, Qt::Key_PageUp, Qt::Key_PageDown}[size_t(was - 8)], Qt::ControlModifier);
        }
        if (was == 3)
            continue; // a note that is being written counts when it is stored
        for (const int eine : offene()) {
            if (!partner.contains(eine))
                QCOMPARE(hervorgehoben(probe_->fenster(eine, sparte)), 0);
            else if (!probe_->fenster(eine, sparte)->DatenGeaendert && !probe_->fenster(partner[eine], sparte)->DatenGeaendert)
                stimmig(probe_->fenster(eine, sparte), probe_->fenster(partner[eine], sparte));
            if (QTest::currentTestFailed())
                return;
        }
    }
}

FLOX_TEST(tst_vergleich, TestVergleich)
#include "tst_vergleich.moc"
