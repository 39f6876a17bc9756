#include "Filterprobe.h"

#include "controls/Steuerelemente.h"
#include "filters/Trefferanzeige.h"
#include "tests/Testprogramm.h"

#include <QAccessible>
#include <QElapsedTimer>
#include <QHelpEvent>
#include <QToolTip>

using namespace Qt::StringLiterals;

/* The count beside OK, by hand: what it says is what OK leaves. */

class TestTrefferanzeige : public QObject
{
    Q_OBJECT

private slots:
    void cleanup() { probe_.reset(); }
    void sagtWasBleibt_data();
    void sagtWasBleibt();
    void keineUndWasHilft();
    void fehlerVorDemLauf();
    void jederKastenSeine();
    void andereNotizZaehlt();
    void ausBeimVerstecken();
    void stehtLinksVonOK();
    void wirdAngesagt();
    void schliessenBeimLesen();

private:
    void starten(Sparte sparte);
    QString stand() { return probe_->finde<QLabel>(u"lblTreffer"_s)->text(); }
    /// The count once it is there.
    QString gelesen();
    QString tipp(QWidget *widget);

    std::unique_ptr<Filterprobe> probe_;
};

void TestTrefferanzeige::starten(Sparte sparte)
{
    probe_ = std::make_unique<Filterprobe>(sparte);
    probe_->oeffnen();
    probe_->dialogZeigen();
}

QString TestTrefferanzeige::gelesen()
{
    if (!QTest::qWaitFor([this] { return stand() != Trefferanzeige::nochNicht; }))
        qFatal("The count does not come.");
    return stand();
}

QString TestTrefferanzeige::tipp(QWidget *widget)
{
    probe_->zeigen(widget);
    QToolTip::hideText();
    const QPoint ort = widget->rect().center();
    QHelpEvent ereignis(QEvent::ToolTip, ort, widget->mapToGlobal(ort));
    QApplication::sendEvent(widget, &ereignis);
    return QToolTip::text();
}

void TestTrefferanzeige::sagtWasBleibt_data()
{
    QTest::addColumn<Sparte>("sparte");
    for (const Sparte sparte : spartenMitFilter())
        QTest::newRow(kuerzel(sparte)) << sparte;
}

void TestTrefferanzeige::sagtWasBleibt()
{
    QFETCH(const Sparte, sparte);
    starten(sparte);
    QCOMPARE(gelesen(), pflanzenwort(size_t(probe_->pflanzen().size()))); // the window shows the run of the default dialog
    // One box after the other, until few are left.
    int geprueft = 0;
    for (const Kriterium &k : filterbeschreibung(sparte)->kriterien) {
        if (k.pruefung != Pruefung::Flags || k.a.art != Steuerung::Kaestchen || k.reiter < 0 || geprueft == 3)
            continue;
        probe_->klicken(probe_->element<QWidget>(QString::fromLatin1(k.a.control), 0));
        const QString vorhergesagt = stand();
        Meldungsfaenger meldungen;
        probe_->taste("cmdOK");
        if (vorhergesagt.startsWith(u"keine")) {
            QCOMPARE(meldungen.titel, QStringList{u"Keine passende Pflanze!"_s});
            probe_->klicken(probe_->element<QWidget>(QString::fromLatin1(k.a.control), 0));
            continue;
        }
        QCOMPARE(meldungen.texte, QStringList());
        QCOMPARE(pflanzenwort(size_t(probe_->pflanzen().size())), vorhergesagt);
        ++geprueft;
        probe_->dialogZeigen();
        QCOMPARE(gelesen(), vorhergesagt);
    }
    QVERIFY(geprueft > 0);
    probe_->taste("cmdRuecksetzen");
    const QString vorhergesagt = stand();
    probe_->taste("cmdOK");
    QCOMPARE(pflanzenwort(size_t(probe_->pflanzen().size())), vorhergesagt);
}

void TestTrefferanzeige::keineUndWasHilft()
{
    starten(Sparte::Topf);
    gelesen();
    QLineEdit *name = probe_->feld("txtbotName");
    probe_->zeigen(name);
    QTest::keyClicks(name, u"ficus"_s);
    const QString mitFicus = stand();
    QVERIFY(mitFicus.endsWith(u" Pflanzen"_s));
    probe_->finde<QComboBox>(u"cmbFamilie"_s)->setCurrentText(u"Asteraceae (Korbblütler)"_s);
    const QString zahl = mitFicus.section(u' ', 0, 0);
    const auto korbbluetler =
        probe_->arbeit(u"bewertung >= 5 AND FAMILIE = (SELECT FAMILIE FROM Familien WHERE FAMNAME = 'Asteraceae (Korbblütler)')"_s).size();
    // The criterion whose absence leaves most is named.
    QCOMPARE(stand(),
             korbbluetler > zahl.toInt() ? u"keine; ohne 'Botanischer Name' %1"_s.arg(korbbluetler) : u"keine; ohne 'Familie' %1"_s.arg(zahl));
    QTest::keyClicks(name, u"zzz"_s);
    QCOMPARE(stand(), u"keine; ohne 'Botanischer Name' %1"_s.arg(korbbluetler));
    QTest::keyClicks(probe_->feld("txtSorte"), u"zzz"_s);
    QCOMPARE(stand(), u"keine"_s); // no one alone
    Meldungsfaenger meldungen;
    probe_->taste("cmdOK");
    QCOMPARE(meldungen.titel, QStringList{u"Keine passende Pflanze!"_s});
    QVERIFY(probe_->dialog().isVisible());
    QCOMPARE(gelesen(), u"keine"_s);
}

void TestTrefferanzeige::fehlerVorDemLauf()
{
    starten(Sparte::Topf);
    const QString vorher = gelesen();
    QLineEdit *hoehe = probe_->feld("txtMinHoehe");
    probe_->zeigen(hoehe);
    hoehe->setFocus();
    hoehe->selectAll();
    QTest::keyClicks(hoehe, u"1,,"_s);
    QCOMPARE(stand(), u"Höhe, Minimum: \"1,,\" ist keine Zahl."_s);
    hoehe->selectAll();
    QTest::keyClicks(hoehe, u"0"_s);
    QCOMPARE(stand(), vorher);
}

void TestTrefferanzeige::jederKastenSeine()
{
    starten(Sparte::Topf);
    gelesen();
    // A box, a swatch with a tip of its own, a picture, a month, an option.
    QCheckBox *kasten = probe_->box(u"chkWuchsForm"_s, 2);
    auto *farbe = probe_->element<Farbzelle>(u"lblBlFarbe"_s, 1);
    const QString farbtipp = farbe->toolTip();
    const QString kastentipp = tipp(kasten), farbzahl = tipp(farbe);
    QVERIFY(kastentipp.endsWith(u" Pflanzen"_s));
    QVERIFY2(farbzahl.startsWith(farbtipp + u" – "_s), qPrintable(farbzahl));
    QCOMPARE(farbe->toolTip(), farbtipp); // what is said of the colour itself stays
    probe_->klicken(kasten);
    QCOMPARE(stand(), kastentipp);
    // Another of its group counts for itself, one of another group together with it.
    QCheckBox *nachbar = probe_->box(u"chkWuchsForm"_s, 3);
    const QString nachbartipp = tipp(nachbar), beide = tipp(farbe).section(u" – "_s, 1);
    QCOMPARE(tipp(kasten), kastentipp);
    probe_->klicken(farbe);
    QCOMPARE(stand().startsWith(u"keine"_s) ? u"keine Pflanze"_s : stand(), beide);
    probe_->klicken(farbe);
    probe_->klicken(kasten);
    probe_->klicken(nachbar);
    QCOMPARE(stand(), nachbartipp);
    QVERIFY(tipp(probe_->element<QWidget>(u"imgLicht"_s, 0)).contains(u"Pflanze"_s));
    QVERIFY(tipp(probe_->element<QWidget>(u"lblBlMonat"_s, 4)).contains(u"Pflanze"_s));
    QVERIFY(tipp(probe_->element<QRadioButton>(u"optBewertung"_s, 1)).contains(u"Pflanze"_s));
    // With the keyboard it is heard.
    kasten->setFocus();
    QTRY_VERIFY(kasten->hasFocus());
    QVERIFY(kasten->accessibleDescription().contains(u"Pflanze"_s));
}

/// Another window may store a note while the dialog is seen.
void TestTrefferanzeige::andereNotizZaehlt()
{
    starten(Sparte::Topf);
    gelesen();
    QLineEdit *bemerkung = probe_->feld("txtBenutzerText");
    probe_->zeigen(bemerkung);
    QTest::keyClicks(bemerkung, u"Ausstellun"_s);
    QVERIFY(stand().startsWith(u"keine"_s));
    const qint64 pflanze = probe_->pflanzen()[0];
    probe_->arbeitAendern(u"UPDATE TOPFPFL SET benu_bemerkung = 'Ausstellung' WHERE ARTNR = ?"_s, {pflanze});
    QTest::keyClicks(bemerkung, u"g"_s);
    QTRY_COMPARE(stand(), u"1 Pflanze"_s);
    probe_->taste("cmdOK");
    QCOMPARE(probe_->pflanzen(), QList<qint64>{pflanze});
}

void TestTrefferanzeige::ausBeimVerstecken()
{
    starten(Sparte::Topf);
    const QString vorher = gelesen();
    probe_->taste("cmdAbbruch");
    probe_->dialog().findChild<QCheckBox *>(u"chkTyp_1"_s)->setChecked(true);
    QCOMPARE(stand(), vorher); // nobody sees it, nothing is read
    probe_->dialogZeigen();
    QTRY_VERIFY(stand() != Trefferanzeige::nochNicht && stand() != vorher);
    QVERIFY(stand().endsWith(u" Pflanzen"_s));
}

void TestTrefferanzeige::stehtLinksVonOK()
{
    starten(Sparte::Topf);
    gelesen();
    auto *schild = probe_->finde<QLabel>(u"lblTreffer"_s);
    const auto *ok = probe_->finde<QPushButton>(u"cmdOK"_s);
    const auto rechtsInDerLeiste = [&] { return ok->parentWidget()->width() - ok->geometry().left(); };
    const int vorher = rechtsInDerLeiste();
    const QSize kleinste = probe_->dialog().minimumSizeHint();
    QVERIFY(schild->geometry().right() < ok->geometry().left());
    QTRY_VERIFY(schild->width() >= schild->fontMetrics().horizontalAdvance(schild->text())); // whole
    QCOMPARE(schild->toolTip(), schild->text());
    QCOMPARE(schild->focusPolicy(), Qt::NoFocus);
    // However long its words, no button moves and the dialog can be as small as before.
    const QString lang = u"zu lang für die Zeile "_s.repeated(30);
    probe_->feld("txtMinHoehe")->setText(lang);
    QVERIFY(stand().size() > lang.size());
    QTest::qWait(1);
    QCOMPARE(rechtsInDerLeiste(), vorher);
    QCOMPARE(probe_->dialog().minimumSizeHint(), kleinste);
    QVERIFY(schild->geometry().right() < ok->geometry().left());
}

/// Once for changes that follow each other, and with the words that are seen.
void TestTrefferanzeige::wirdAngesagt()
{
    starten(Sparte::Topf);
    QSignalSpy ansagen(probe_->dialog().findChild<Trefferanzeige *>(), &Trefferanzeige::angesagt);
    gelesen();
    QTRY_COMPARE(ansagen.size(), 1);
    QElapsedTimer uhr;
    uhr.start();
    for (int i = 0; i < 4; ++i)
        probe_->klicken(probe_->box(u"chkWuchsForm"_s, i));
    if (uhr.elapsed() < Trefferanzeige::ansagepause)
        QCOMPARE(ansagen.size(), 1);
    QTRY_VERIFY(ansagen.size() > 1);
    QCOMPARE(ansagen.last()[0].toString(), stand());
    QCOMPARE(QAccessible::queryAccessibleInterface(probe_->finde(u"lblTreffer"_s))->text(QAccessible::Name), stand());
    QCOMPARE(probe_->finde(u"cmdOK"_s)->accessibleDescription(), stand());
}

void TestTrefferanzeige::schliessenBeimLesen()
{
    for (int i = 0; i < 5; ++i) {
        starten(Sparte::Obst);
        QTest::qWait(i);
        if (i % 2)
            probe_->taste("cmdAbbruch");
        probe_.reset();
    }
    // Hidden and shown again before the first reading has ended.
    starten(Sparte::Obst);
    probe_->taste("cmdAbbruch");
    probe_->dialogZeigen();
    QCOMPARE(gelesen(), pflanzenwort(size_t(probe_->pflanzen().size())));
}

FLOX_TEST(tst_trefferanzeige, TestTrefferanzeige)
#include "tst_trefferanzeige.moc"
