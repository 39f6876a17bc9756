#include "Filterprobe.h"

#include "tests/Testprogramm.h"

#include <QAccessible>
#include <QApplication>
#include <QFrame>
#include <QTabBar>

using namespace Qt::StringLiterals;

/* The dialog for a reader who hears it, and for one who has only the keyboard. */

class TestFilterdialogZugang : public QObject
{
    Q_OBJECT

private slots:
    void jedesHatSeinenNamen_data();
    void jedesHatSeinenNamen();
    void namen_data();
    void namen();
    void eigenschaftOhneNamen();
    void tabFolgtDemLesen_data() { jedesHatSeinenNamen_data(); }
    void tabFolgtDemLesen();
    void beginntOben_data() { jedesHatSeinenNamen_data(); }
    void beginntOben();

private:
    void starten(Sparte sparte);
    /// A list is heard by its text; its name is that of its box.
    static QString ansage(QWidget *widget)
    {
        const auto *liste = qobject_cast<QComboBox *>(widget);
        if (liste && liste->lineEdit())
            widget = liste->lineEdit();
        return QAccessible::queryAccessibleInterface(widget)->text(QAccessible::Name);
    }

    std::unique_ptr<Filterprobe> probe_;
};

void TestFilterdialogZugang::starten(Sparte sparte)
{
    probe_.reset();
    probe_ = std::make_unique<Filterprobe>(sparte);
    probe_->oeffnen();
    probe_->dialogZeigen();
}

void TestFilterdialogZugang::jedesHatSeinenNamen_data()
{
    QTest::addColumn<Sparte>("sparte");
    for (const Sparte sparte : {Sparte::Topf, Sparte::Stauden, Sparte::Apfel})
        QTest::newRow(kuerzel(sparte)) << sparte;
}

void TestFilterdialogZugang::jedesHatSeinenNamen()
{
    QFETCH(const Sparte, sparte);
    starten(sparte);
    QSet<QString> namen, gruppen;
    for (const Dateizeile &zeile : dateizeilen(sparte)) {
        QWidget *widget = probe_->finde(zeile.element < 0 ? zeile.control : u"%1_%2"_s.arg(zeile.control).arg(zeile.element));
        const QString name = ansage(widget), gruppe = ansage(widget->parentWidget());
        QVERIFY2(!gruppe.isEmpty() && name.startsWith(gruppe), qPrintable(u"%1: <%2> in <%3>"_s.arg(widget->objectName(), name, gruppe)));
        QVERIFY2(!namen.contains(name), qPrintable(name));
        namen += name;
        gruppen += gruppe;
    }
    QCOMPARE(gruppen.size(), qsizetype(filterbeschreibung(sparte)->kriterien.size())); // no two groups share a name
}

void TestFilterdialogZugang::namen_data()
{
    QTest::addColumn<QByteArray>("control");
    QTest::addColumn<QString>("name");
    const auto reihe = [](const char *control, const QString &name) { QTest::newRow(control) << QByteArray(control) << name; };
    reihe("lblBlFarbe_1", u"Blüte, Farben: gelb"_s);
    reihe("lblFrFarbe_1", u"Frucht, Farben: gelb"_s);
    reihe("lblBlMonat_0", u"Blüte, Zeit: Januar"_s);
    reihe("lblAngMonat_11", u"Angebotszeit: Dezember"_s);
    reihe("txtMinHoehe", u"Höhe, Minimum in m"_s);
    reihe("txtMaxTemp", u"Temperatur, Maximum in °C"_s);
    reihe("txtSorte", u"Sorte"_s);
    reihe("chkHaltbarkeit_0", u"Haltbarkeit: kurz"_s);
    reihe("chkVerwHydro_0", u"Hydrokultur, Verwendung: Solitär"_s);
    reihe("imgVerwendung_2", u"Verwendung: Kübel"_s);
    reihe("chkGift", u"Pflanzentyp: Giftpflanze"_s);
    reihe("optBewertung_1", u"Bewertung: Maximum"_s);
    reihe("cmbFamilie", u"Familie"_s);
}

void TestFilterdialogZugang::namen()
{
    QFETCH(const QByteArray, control);
    starten(Sparte::Topf);
    QTEST(ansage(probe_->finde(QString::fromLatin1(control))), "name");
}

void TestFilterdialogZugang::eigenschaftOhneNamen()
{
    starten(Sparte::Topf);
    probe_->taste("cmdAbbruch");
    probe_->programm.BenutzerNamen[0][2].clear();
    probe_->programm.BenutzerNamen[0][3] = u"Schaufenster"_s;
    probe_->dialogZeigen();
    QTRY_COMPARE(ansage(probe_->box(u"sschkBenutzer"_s, 2)), u"Eigene Eigenschaften: Nr. 3, ohne Namen"_s);
    QCOMPARE(ansage(probe_->box(u"sschkBenutzer"_s, 3)), u"Eigene Eigenschaften: Schaufenster"_s);
}

/// A dialog that is shown for the first time has its focus where one reads first.
void TestFilterdialogZugang::beginntOben()
{
    QFETCH(const Sparte, sparte);
    starten(sparte);
    QVERIFY(QTest::qWaitForWindowActive(&probe_->dialog()));
    QCOMPARE(QApplication::focusWidget(), probe_->finde(sparte == Sparte::Apfel ? u"chkBild"_s : u"cmbFamilie"_s));
    // And again, so that keys reach it.
    probe_->taste("cmdAbbruch");
    probe_->dialogZeigen();
    QTRY_VERIFY(QApplication::focusWidget() && QApplication::focusWidget()->window() == &probe_->dialog());
}

void TestFilterdialogZugang::tabFolgtDemLesen()
{
    QFETCH(const Sparte, sparte);
    starten(sparte);
    Filterdialog &dialog = probe_->dialog();
    dialog.resize(1004, 600);
    dialog.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&dialog));
    auto *reiter = probe_->finde<QTabWidget>(u"SSTab1"_s);
    const auto gruppen = [&](QWidget *seite) {
        QList<QWidget *> rahmen;
        for (QFrame *kandidat : dialog.findChildren<QFrame *>())
            if (kandidat->property("karte").toBool() && kandidat->isVisible() && seite->isAncestorOf(kandidat))
                rahmen += kandidat;
        std::ranges::sort(rahmen, {}, [&](QWidget *w) {
            const QPoint ort = w->mapTo(&dialog, QPoint(0, 0));
            return std::pair(ort.x(), ort.y());
        });
        return rahmen;
    };
    for (int i = 0; i < reiter->count(); ++i) {
        reiter->setCurrentIndex(i);
        QTest::qWait(1);
        // As one reads: the panel, the tabs, the page column by column, the buttons.
        QList<QWidget *> soll;
        QWidget *tafel = probe_->finde(u"chkBild"_s);
        while (tafel->parentWidget() != &dialog)
            tafel = tafel->parentWidget();
        soll = gruppen(tafel);
        soll += reiter->tabBar();
        soll += gruppen(reiter->currentWidget());
        for (const char *taste : {"cmdOK", "cmdRuecksetzen", "cmdAbbruch"})
            soll += probe_->finde(QString::fromLatin1(taste));
        QList<QWidget *> ist;
        QWidget *erstes = nullptr;
        probe_->finde(u"cmdAbbruch"_s)->setFocus();
        for (int schritte = 0; schritte < 300; ++schritte) {
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
            QWidget *jetzt = QApplication::focusWidget();
            QVERIFY(jetzt);
            if (jetzt == erstes)
                break;
            if (!erstes)
                erstes = jetzt;
            QWidget *halt = jetzt;
            for (QWidget *eltern = jetzt; eltern && eltern != &dialog; eltern = eltern->parentWidget())
                if (eltern->property("karte").toBool())
                    halt = eltern;
            if (ist.isEmpty() || ist.constLast() != halt)
                ist += halt;
        }
        const auto worte = [](const QList<QWidget *> &widgets) {
            QStringList namen;
            for (const QWidget *widget : widgets)
                namen += widget->objectName();
            return namen;
        };
        QCOMPARE(worte(ist).join(u' '), worte(soll).join(u' ')); // once each, and every stop is seen
    }
}

FLOX_TEST(tst_filterdialog_zugang, TestFilterdialogZugang)
#include "tst_filterdialog_zugang.moc"
