#include "Fensterprobe.h"

#include "filters/Filterdialog.h"
#include "pictures/frmUebersicht.h"
#include "tests/Testprogramm.h"

#include <QApplication>
#include <QDir>
#include <QImage>
#include <QLabel>
#include <QPlainTextEdit>
#include <QTest>

using namespace Qt::StringLiterals;

/* The page of all pictures and the plant window it belongs to, by hand actions. */
class TestBilderseite : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void strgUZeigtAlleBilder();
    void klickGehtZurPflanze();
    void folgtDemFilter();
    void folgtDerOrdnung();
    void nurSolangeErlaubt();
    void notizBleibt();
    void fensterGehtBeimLaden();

private:
    QPointer<frmUebersicht> oeffnen();
    static Kachelansicht *ansicht(const frmUebersicht *form) { return form->findChild<Kachelansicht *>(u"lvwBilder"_s); }
    static QList<qint64> pflanzen(const frmUebersicht *form);
    void anklicken(const frmUebersicht *form, qint64 artnr);

    std::unique_ptr<Fensterprobe> probe_;
};

void TestBilderseite::init()
{
    probe_ = std::make_unique<Fensterprobe>();
    probe_->alleZeigen();
    const QString ordner = probe_->ordner.pfad(u"topfpflanzen"_s);
    QVERIFY(QDir().mkpath(ordner));
    QImage bild(80, 60, QImage::Format_RGB32);
    bild.fill(Qt::darkGreen);
    const auto db = probe_->ordner.db();
    Anweisung &namen = db->vorbereitet(u"SELECT \"BILD1-G\" FROM Topfpfl_Bilder WHERE \"BILD1-G\" IS NOT NULL"_s);
    QStringList staemme{u"begonia-rex"_s, u"bougainvillea-glabra"_s};
    while (namen.schritt() && staemme.size() < 60)
        staemme += namen.text(0);
    for (const QString &name : staemme)
        QVERIFY(bild.save(ordner + u'/' + name + u".jpg"_s, "JPG"));
    probe_->oeffnen();
    probe_->fenster->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(probe_->fenster.get()));
}

QPointer<frmUebersicht> TestBilderseite::oeffnen()
{
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_U, Qt::ControlModifier);
    for (QWidget *fenster : QApplication::topLevelWidgets())
        if (auto *form = qobject_cast<frmUebersicht *>(fenster); form && form->isVisible())
            return form;
    return nullptr;
}

QList<qint64> TestBilderseite::pflanzen(const frmUebersicht *form)
{
    QList<qint64> nummern;
    const auto *modell = qobject_cast<const Uebersichtsmodell *>(ansicht(form)->model());
    for (const auto &pflanze : modell->seite().pflanzen)
        nummern += pflanze.artnr;
    return nummern;
}

void TestBilderseite::anklicken(const frmUebersicht *form, qint64 artnr)
{
    Kachelansicht *liste = ansicht(form);
    const QModelIndex index = liste->model()->index(qobject_cast<Uebersichtsmodell *>(liste->model())->zeileVon(artnr), 0);
    liste->scrollTo(index);
    QTest::mouseClick(liste->viewport(), Qt::LeftButton, {}, liste->visualRect(index).center());
}

void TestBilderseite::strgUZeigtAlleBilder()
{
    probe_->klick("cmdNext");
    const auto form = oeffnen();
    QVERIFY(form);
    QTRY_VERIFY(!form->liest());
    QCOMPARE(form->windowTitle(), u"Alle Bilder – %1"_s.arg(probe_->fenster->titel()));
    // Those of the set that have a picture, in its order.
    QList<qint64> erwartet;
    for (const qint64 artnr : probe_->fenster->satz().haupt().Schluesselfolge()) {
        const auto zeile = bildzeile(probe_->ordner.db(), eintrag(Sparte::Topf), artnr);
        const auto bilder = zeile ? streifenbilder(probe_->programm, *zeile, bildordner(Sparte::Topf, artnr)) : std::vector<Bildeintrag>();
        if (std::ranges::any_of(bilder, &Bildeintrag::vorhanden))
            erwartet += artnr;
    }
    QVERIFY(erwartet.size() > 20);
    QCOMPARE(pflanzen(form), erwartet);
    const auto *modell = qobject_cast<const Uebersichtsmodell *>(ansicht(form)->model());
    if (erwartet.contains(probe_->fenster->satz().artnr()))
        QCOMPARE(modell->pflanze(ansicht(form)->currentIndex().row()).artnr, probe_->fenster->satz().artnr());
    // The key once more brings the same window.
    probe_->fenster->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(probe_->fenster.get()));
    QCOMPARE(oeffnen(), form);
}

void TestBilderseite::klickGehtZurPflanze()
{
    const auto form = oeffnen();
    QTRY_VERIFY(!form->liest());
    const QList<qint64> alle = pflanzen(form);
    anklicken(form, alle[7]);
    QTRY_COMPARE(probe_->fenster->satz().artnr(), alle[7]);
    QTRY_VERIFY(probe_->fenster->isActiveWindow());
    QVERIFY(form->isVisible());
    form->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(form));
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_End);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    QTRY_COMPARE(probe_->fenster->satz().artnr(), alle.last());
}

void TestBilderseite::folgtDemFilter()
{
    const auto form = oeffnen();
    QTRY_VERIFY(!form->liest());
    const QList<qint64> alle = pflanzen(form);
    const qint64 marke = alle[5];
    ansicht(form)->setCurrentIndex(ansicht(form)->model()->index(qobject_cast<Uebersichtsmodell *>(ansicht(form)->model())->zeileVon(marke), 0));
    for (const qint64 artnr : {alle[0], alle[3]})
        probe_->arbeitSetzen(artnr, u"bewertung"_s, 1);
    probe_->fenster->filterdialog()->cmdOK_Click();
    QList<qint64> uebrig = alle;
    uebrig.removeOne(alle[0]);
    uebrig.removeOne(alle[3]);
    QTRY_COMPARE(pflanzen(form), uebrig);
    const auto *modell = qobject_cast<const Uebersichtsmodell *>(ansicht(form)->model());
    QCOMPARE(modell->pflanze(ansicht(form)->currentIndex().row()).artnr, marke);
    // A filter that leaves no plant.
    for (const qint64 artnr : probe_->fenster->satz().haupt().Schluesselfolge())
        probe_->arbeitSetzen(artnr, u"bewertung"_s, 1);
    Meldungsfaenger faenger;
    probe_->fenster->filterdialog()->cmdOK_Click();
    if (probe_->fenster->satz().haupt().RecordCount() == 0) {
        QTRY_VERIFY(form->findChild<QLabel *>(u"lblLeer"_s)->isVisible());
        QCOMPARE(form->findChild<QLabel *>(u"lblLeer"_s)->text(), u"Zu diesen Pflanzen gibt es keine Bilder"_s);
    } else {
        // The run has been taken back, and the page with it.
        QTRY_COMPARE(pflanzen(form), alle);
    }
}

void TestBilderseite::folgtDerOrdnung()
{
    const auto form = oeffnen();
    QTRY_VERIFY(!form->liest());
    const QList<qint64> botanisch = pflanzen(form);
    probe_->klick("cmdBotDeu");
    QTRY_VERIFY(!form->liest() && pflanzen(form) != botanisch);
    const QList<qint64> deutsch = pflanzen(form);
    QVERIFY(std::ranges::is_permutation(deutsch, botanisch));
    // A page that nobody sees is not read.
    form->close();
    probe_->klick("cmdBotDeu");
    QVERIFY(!form->liest());
    QVERIFY(pflanzen(form).isEmpty());
    probe_->fenster->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(probe_->fenster.get()));
    QCOMPARE(oeffnen(), form);
    QTRY_COMPARE(pflanzen(form), botanisch);
}

void TestBilderseite::nurSolangeErlaubt()
{
    const auto form = oeffnen();
    QTRY_VERIFY(!form->liest());
    const qint64 vorher = probe_->fenster->satz().artnr();
    probe_->fenster->setEnabled(false);
    anklicken(form, pflanzen(form).last());
    QCoreApplication::processEvents();
    QCOMPARE(probe_->fenster->satz().artnr(), vorher);
    probe_->fenster->setEnabled(true);
    anklicken(form, pflanzen(form).last());
    QTRY_COMPARE(probe_->fenster->satz().artnr(), pflanzen(form).last());
}

void TestBilderseite::notizBleibt()
{
    const qint64 erste = probe_->fenster->satz().artnr();
    probe_->reiterVon(u"txtEigeneBemerkung"_s);
    auto *text = probe_->finde<QPlainTextEdit>(u"txtEigeneBemerkung"_s);
    QTest::mouseClick(text->viewport(), Qt::LeftButton);
    QTest::keyClicks(text, u"im Schatten"_s);
    const auto form = oeffnen();
    QTRY_VERIFY(!form->liest());
    anklicken(form, pflanzen(form).last());
    QTRY_COMPARE(probe_->fenster->satz().artnr(), pflanzen(form).last());
    QCOMPARE(probe_->arbeitLesen(erste, u"benu_bemerkung"_s), u"im Schatten"_s);
}

void TestBilderseite::fensterGehtBeimLaden()
{
    auto form = oeffnen();
    QVERIFY(form->liest());
    probe_->fenster->close();
    QVERIFY(!form);
    // The same with thumbnails under way, and a click that nobody hears any more.
    init();
    form = oeffnen();
    QTRY_VERIFY(!form->liest());
    anklicken(form, pflanzen(form).last());
    probe_->fenster.reset();
    QVERIFY(!form);
    QCoreApplication::processEvents();
}

FLOX_TEST(tst_bilderseite, TestBilderseite)
#include "tst_bilderseite.moc"
