#include "Filterprobe.h"

#include "tests/Testprogramm.h"

#include <QApplication>
#include <QMessageBox>

using namespace Qt::StringLiterals;

/* Saving and loading from the dialog and the window's buttons. */

class TestFilterdialogDateien : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void alleControls_data();
    void alleControls();
    void jedeOption();
    void teilweiseGeladen();
    void lesefehlerWirktWeiter();
    void nichtZuOeffnen();
    void familieDieEsNichtGibt();
    void ladenUeberDenKnopf_data() { alleControls_data(); }
    void ladenUeberDenKnopf();
    void ladenAbgebrochen();
    void speichernUeberDenKnopf();
    void speichernUeberschreibtNurAufWunsch();
    void speichernGehtNicht();
    void parkdateiIstEineGewoehnlicheDatei();

private:
    QString datei(const QByteArray &inhalt, const QString &name = u"probe.fft"_s);
    QByteArray inhalt(const QString &pfad);

    std::unique_ptr<Filterprobe> probe_;
};

void TestFilterdialogDateien::init()
{
    probe_.reset();
    probe_ = std::make_unique<Filterprobe>();
    probe_->oeffnen();
}

QString TestFilterdialogDateien::datei(const QByteArray &inhalt, const QString &name)
{
    const QString pfad = probe_->ordner.pfad(name);
    QFile datei(pfad);
    if (!datei.open(QIODevice::WriteOnly) || datei.write(inhalt) != inhalt.size())
        qFatal("The file cannot be written.");
    return pfad;
}

QByteArray TestFilterdialogDateien::inhalt(const QString &pfad)
{
    QFile datei(pfad);
    return datei.open(QIODevice::ReadOnly) ? datei.readAll() : "(no file)";
}

void TestFilterdialogDateien::alleControls_data()
{
    jedeSparteMitRegeln();
}

void TestFilterdialogDateien::alleControls()
{
    QFETCH(const Sparte, sparte);
    const auto fenster = probe_->weiteres(sparte, 2);
    Filterdialog &dialog = *fenster->filterdialog();
    Meldungsfaenger meldungen;
    Zufall zufall(31);
    for (int i = 0; i < 25; ++i) {
        Zustand z = zufallszustand(sparte, zufall, {u"Öl"_s, u"a.b"_s, u"d'Or"_s}, {u"Araceae"_s, u"Gibtesnicht"_s});
        // Every control differs from its default in some round.
        for (const Dateizeile &zeile : dateizeilen(sparte))
            if (zeile.element >= 0 && zeile.art != u"boolean" && einmalIn(zufall, 3))
                z.waehlen(zeile.control.toLatin1(), zeile.element);
        z["chkOhneBild"].werte = {0};
        const QByteArray soll = filterSchreiben(z.beschreibung, z.werte);
        dialog.FilterLaden(datei(soll));
        Filterzustand ist = dialog.zustand();
        for (const Dateizeile &zeile : dateizeilen(sparte))
            if (zeile.art == u"number text") { // leading blanks are skipped, a point comes back as a comma
                const QByteArray control = zeile.control.toLatin1();
                z.text(control, z[control].text.replace(u'.', u',').replace(QRegularExpression(u"^ +"_s), {}));
            }
        QVERIFY(ist == z.werte);
        const QString zurueck = probe_->ordner.pfad(u"zurueck"_s);
        dialog.FilterSpeichern(zurueck);
        QCOMPARE(inhalt(zurueck), filterSchreiben(z.beschreibung, z.werte));
    }
    QCOMPARE(meldungen.texte, QStringList());
}

void TestFilterdialogDateien::jedeOption()
{
    Filterdialog &dialog = probe_->dialog();
    QByteArrayList zeilen = vorgabedatei(Sparte::Topf).split('\n');
    const auto laedt = [&](const QByteArray &min, const QByteArray &max) {
        zeilen[137] = min + '\r';
        zeilen[138] = max + '\r';
        dialog.FilterLaden(datei(zeilen.join('\n')));
        return std::pair(probe_->element<QRadioButton>(u"optBewertung"_s, 0)->isChecked(),
                         probe_->element<QRadioButton>(u"optBewertung"_s, 1)->isChecked());
    };
    QCOMPARE(laedt("False", "True"), std::pair(false, true));
    QCOMPARE(laedt("True", "False"), std::pair(true, false));
    QCOMPARE(laedt("#FALSE#", "#TRUE#"), std::pair(false, true));
    // By mouse one goes out when the other goes in.
    probe_->dialogZeigen();
    probe_->klicken(probe_->element(u"optBewertung"_s, 0));
    QVERIFY(probe_->element<QRadioButton>(u"optBewertung"_s, 0)->isChecked());
    QVERIFY(!probe_->element<QRadioButton>(u"optBewertung"_s, 1)->isChecked());
}

void TestFilterdialogDateien::teilweiseGeladen()
{
    Filterdialog &dialog = probe_->dialog();
    const QList<qint64> pflanzen = probe_->pflanzen();
    Zustand z(Sparte::Topf);
    z.waehlen("chkTyp", 1).text("txtSorte", u"Rot"_s).waehlen("lblBlFarbe", 2).waehlen("chkKrank", 0);
    QByteArrayList zeilen = filterSchreiben(z.beschreibung, z.werte).split('\n');
    zeilen[99] = "kurz\r";
    probe_->feld("txtKrank")->setText(u"bleibt"_s);
    probe_->box(u"chkAusbildung"_s, 3)->setChecked(true);
    Meldungsfaenger meldungen;
    dialog.FilterLaden(datei(zeilen.join('\n')));
    QCOMPARE(meldungen.texte, QStringList{u"Fehler beim Laden des Filters"_s});
    QCOMPARE(meldungen.titel, QStringList{QString()});
    Zustand soll(Sparte::Topf);
    soll.waehlen("chkTyp", 1).text("txtSorte", u"Rot"_s).waehlen("lblBlFarbe", 2).text("txtKrank", u"bleibt"_s).waehlen("chkAusbildung", 3);
    QVERIFY(dialog.zustand() == soll.werte);
    QCOMPARE(probe_->pflanzen(), pflanzen);
    QCOMPARE(probe_->finde<QTabWidget>(u"SSTab1"_s)->tabText(0), u"Blüte (1)"_s); // what came in is counted
}

void TestFilterdialogDateien::lesefehlerWirktWeiter()
{
    const auto apfel = probe_->weiteres(Sparte::Apfel, 1);
    apfel->Form_Activate();
    const QString gut = datei(vorgabedatei(Sparte::Topf)), gutAp = datei(vorgabedatei(Sparte::Apfel), u"gut.ffa"_s),
                  schlecht = datei("x", u"schlecht"_s);
    Meldungsfaenger meldungen;
    const QString meldung = u"Fehler beim Laden des Filters"_s;
    probe_->dialog().FilterLaden(schlecht); // short
    QCOMPARE(meldungen.texte, QStringList{meldung});
    QVERIFY(probe_->programm.FilterdateiGestoert);
    probe_->feld("txtSorte")->setText(u"bleibt"_s);
    probe_->dialog().FilterLaden(gut);
    apfel->filterdialog()->FilterLaden(gutAp);
    QCOMPARE(meldungen.texte, (QStringList{meldung, meldung, meldung}));
    QCOMPARE(probe_->feld("txtSorte")->text(), u"bleibt"_s); // nothing was read
    // Saving fails with a box, and leaves the file alone.
    for (const auto &[fenster, pfad] : {std::pair(probe_->fenster.get(), gut), {apfel.get(), gutAp}}) {
        meldungen.texte.clear();
        const QByteArray vorher = inhalt(pfad);
        Dateiwahl wahl(probe_->ordner.pfad(u"neu"_s));
        QTest::mouseClick(fenster->findChild<Bildknopf *>(u"cmdFilterSpeichern"_s), Qt::LeftButton);
        QCOMPARE(wahl.dialoge, 1);
        QCOMPARE(meldungen.texte.size(), 1);
        QVERIFY2(meldungen.texte[0].contains(u"kann nicht geschrieben werden"_s), qPrintable(meldungen.texte[0]));
        QVERIFY2(meldungen.texte[0].contains(u"bis zum Neustart"_s), qPrintable(meldungen.texte[0]));
        for (const QString &neu : {u"neu"_s, u"neu.fft"_s, u"neu.ffa"_s})
            QVERIFY(!QFile::exists(probe_->ordner.pfad(neu)));
        QCOMPARE(inhalt(pfad), vorher);
    }
    // Switching off cannot park: the filter stays in force.
    meldungen.texte.clear();
    probe_->klick("cmdFilterEin");
    QCOMPARE(meldungen.texte.size(), 1);
    QVERIFY(probe_->fenster->FilterEin);
    QVERIFY(!QFile::exists(probe_->park()));
}

void TestFilterdialogDateien::nichtZuOeffnen()
{
    Meldungsfaenger meldungen;
    probe_->dialog().FilterLaden(probe_->ordner.pfad(u"gibtesnicht.fft"_s));
    probe_->dialog().FilterLaden(probe_->ordner.pfad()); // a folder
    QCOMPARE(meldungen.texte, (QStringList{u"Fehler beim Laden des Filters"_s, u"Fehler beim Laden des Filters"_s}));
    QVERIFY(!probe_->programm.FilterdateiGestoert);
    Zustand z(Sparte::Topf);
    z.waehlen("chkGift");
    probe_->dialog().FilterLaden(datei(filterSchreiben(z.beschreibung, z.werte)));
    QVERIFY(probe_->dialog().zustand() == z.werte);
    QCOMPARE(meldungen.texte.size(), 2);
}

void TestFilterdialogDateien::familieDieEsNichtGibt()
{
    Zustand z(Sparte::Topf);
    z.text("cmbFamilie", u"Phantasiaceae"_s);
    Meldungsfaenger meldungen;
    probe_->dialog().FilterLaden(datei(filterSchreiben(z.beschreibung, z.werte)));
    QCOMPARE(probe_->finde<QComboBox>(u"cmbFamilie"_s)->currentText(), u"Phantasiaceae"_s);
    probe_->arbeitAendern(u"UPDATE TOPFPFL SET FAMILIE = NULL WHERE ARTNR = ?"_s, {probe_->pflanzen()[3]});
    const qint64 ohneFamilie = probe_->pflanzen()[3];
    probe_->dialog().cmdOK_Click();
    QCOMPARE(probe_->pflanzen(), QList<qint64>{ohneFamilie});
    QCOMPARE(meldungen.texte, QStringList());
}

void TestFilterdialogDateien::ladenUeberDenKnopf()
{
    QFETCH(const Sparte, sparte);
    probe_.reset();
    probe_ = std::make_unique<Filterprobe>(sparte);
    probe_->oeffnen();
    const QList<qint64> vorher = probe_->pflanzen();
    Zustand z(sparte);
    z.bewertung(4, true);
    const QString endung = eintrag(sparte).filterEndung.mid(1).toString();
    Dateiwahl wahl(datei(filterSchreiben(z.beschreibung, z.werte), u"meiner."_s + endung));
    probe_->klick("cmdFilterLaden");
    QCOMPARE(wahl.dialoge, 1);
    QCOMPARE(wahl.modus, QFileDialog::AcceptOpen);
    // clang-format off
    const QMap<Sparte, QString> erste{{Sparte::Topf, u"Topfpflanzen-Filter (*.fft)"_s}, {Sparte::Stauden, u"Stauden-Filter (*.ffs)"_s},
                                      {Sparte::Gehoelze, u"Gehölze-Filter (*.ffg)"_s}, {Sparte::Apfel, u"Apfelsorten-Filter (*.ffa)"_s},
                                      {Sparte::Obst, u"Obstsorten-Filter (*.ffo)"_s}};
    // clang-format on
    QStringList muster{erste.value(sparte)};
    if (sparte != Sparte::Topf)
        muster += u"Alle Dateien (*)"_s;
    QCOMPARE(wahl.muster, muster);
    // Loaded and shown; the filter does not run before OK.
    QVERIFY(probe_->dialog().isVisible() && probe_->zentrale.gesperrt);
    QVERIFY(probe_->dialog().zustand() == z.werte);
    QCOMPARE(probe_->pflanzen(), vorher);
    probe_->taste("cmdOK");
    QCOMPARE(probe_->pflanzen(), probe_->arbeit(u"bewertung >= 7"_s));
    QVERIFY(probe_->pflanzen() != vorher);
}

void TestFilterdialogDateien::ladenAbgebrochen()
{
    Meldungsfaenger meldungen;
    Dateiwahl wahl;
    probe_->klick("cmdFilterLaden");
    QCOMPARE(wahl.dialoge, 1);
    QVERIFY(!probe_->dialog().isVisible()); // left as by its cancel
    QVERIFY(!probe_->zentrale.gesperrt);
    QVERIFY(probe_->dialog().zustand() == Zustand(Sparte::Topf).werte);
    QCOMPARE(meldungen.texte, QStringList());
}

void TestFilterdialogDateien::speichernUeberDenKnopf()
{
    probe_->dialogZeigen();
    probe_->klicken(probe_->element(u"lblFrFarbe"_s, 11));
    probe_->klicken(probe_->element(u"lblAngMonat"_s, 0));
    probe_->taste("cmdAbbruch");
    const QList<qint64> vorher = probe_->pflanzen();
    {
        Dateiwahl abbruch;
        probe_->klick("cmdFilterSpeichern");
        QCOMPARE(abbruch.dialoge, 1);
    }
    const QString pfad = probe_->ordner.pfad(u"ohne Endung"_s);
    QStringList dateien = QDir(probe_->ordner.pfad()).entryList(QDir::Files);
    Dateiwahl wahl(pfad);
    probe_->klick("cmdFilterSpeichern");
    QCOMPARE(wahl.modus, QFileDialog::AcceptSave);
    QCOMPARE(wahl.muster, QStringList{u"Topfpflanzen-Filter (*.fft)"_s});
    dateien += u"ohne Endung.fft"_s; // by the file dialog
    dateien.sort(Qt::CaseInsensitive);
    QStringList danach = QDir(probe_->ordner.pfad()).entryList(QDir::Files);
    danach.sort(Qt::CaseInsensitive);
    QCOMPARE(danach, dateien);
    QByteArrayList soll = vorgabedatei(Sparte::Topf).split('\n');
    soll[48] = " 0 \r"; // black
    soll[62] = "-2147483645 \r";
    QCOMPARE(inhalt(pfad + u".fft"_s), soll.join('\n'));
    QVERIFY(!probe_->dialog().isVisible());
    QCOMPARE(probe_->pflanzen(), vorher);
}

void TestFilterdialogDateien::speichernUeberschreibtNurAufWunsch()
{
    const QString pfad = datei("alt");
    {
        Meldungsfaenger meldungen; // takes the default, which is no
        Dateiwahl wahl(pfad);
        probe_->klick("cmdFilterSpeichern");
        QCOMPARE(meldungen.texte.size(), 1);
        QCOMPARE(inhalt(pfad), "alt");
    }
    QTimer ja;
    ja.setInterval(1);
    connect(&ja, &QTimer::timeout, this, [] {
        if (auto *frage = qobject_cast<QMessageBox *>(QApplication::activeModalWidget()))
            frage->button(QMessageBox::Yes)->click();
    });
    ja.start();
    Dateiwahl wahl(pfad);
    probe_->klick("cmdFilterSpeichern");
    QCOMPARE(inhalt(pfad), vorgabedatei(Sparte::Topf));
}

void TestFilterdialogDateien::speichernGehtNicht()
{
    QVERIFY_THROWS_EXCEPTION(Fehler, probe_->dialog().FilterSpeichern(probe_->ordner.pfad(u"kein/ordner/x.fft"_s)));
    QVERIFY(!probe_->programm.FilterdateiGestoert); // only reading disturbs
    const QString gut = probe_->ordner.pfad(u"gut.fft"_s);
    probe_->dialog().FilterSpeichern(gut);
    QCOMPARE(inhalt(gut), vorgabedatei(Sparte::Topf));
}

void TestFilterdialogDateien::parkdateiIstEineGewoehnlicheDatei()
{
    probe_->dialogZeigen();
    probe_->feld("txtSorte")->setText(u"a"_s);
    probe_->taste("cmdOK");
    Zustand z(Sparte::Topf);
    z.text("txtSorte", u"a"_s);
    probe_->klick("cmdFilterEin");
    QCOMPARE(inhalt(probe_->park()), filterSchreiben(z.beschreibung, z.werte));
    // Another one in its place is read as well.
    z.text("txtSorte", {}).text("txtbotName", u"Ficus"_s);
    datei(filterSchreiben(z.beschreibung, z.werte), QFileInfo(probe_->park()).fileName());
    probe_->klick("cmdFilterEin");
    QVERIFY(probe_->dialog().zustand() == z.werte);
    QCOMPARE(probe_->pflanzen(), probe_->arbeit(u"BOT_NAME LIKE '*Ficus*' AND bewertung >= 5"_s));
}

FLOX_TEST(tst_filterdialog_dateien, TestFilterdialogDateien)
#include "tst_filterdialog_dateien.moc"
