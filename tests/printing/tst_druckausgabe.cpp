#include "Dialogprobe.h"

#include "tests/Testprogramm.h"

#include <QApplication>

using namespace Qt::StringLiterals;

/* What the print dialog does with a printout: file, device, failures. */

class TestDruckausgabe : public QObject, private Dialogprobe
{
    Q_OBJECT

private slots:
    void init() { neu(); }
    void geraetFehltBeimOeffnen_data() { antworten(); }
    void geraetFehltBeimOeffnen();
    void geraetFehltNachDemEinrichten_data() { antworten(); }
    void geraetFehltNachDemEinrichten();
    void geraetFehltBeimDruck_data();
    void geraetFehltBeimDruck();
    void schreibfehler();
    void datenNichtZuLesen();
    void dateiname_data();
    void dateiname();
    void vorschlag_data();
    void vorschlag();
    void dateiwahlAbgebrochen();
    void dateiUeberschreiben_data();
    void dateiUeberschreiben();
    void ausdruck_data();
    void ausdruck();
    void langerText_data();
    void langerText();
    void langerTextAbgebrochen();

private:
    static void antworten();
};

void TestDruckausgabe::antworten()
{
    QTest::addColumn<QMessageBox::StandardButton>("antwort");
    QTest::newRow("OK") << QMessageBox::Ok;
    QTest::newRow("Cancel") << QMessageBox::Cancel;
    QTest::newRow("Escape") << QMessageBox::NoButton;
}

void TestDruckausgabe::geraetFehltBeimOeffnen()
{
    QFETCH(const QMessageBox::StandardButton, antwort);
    geraet_.fehlt = true;
    Boxen boxen(antwort);
    oeffnen();
    QTRY_VERIFY(zu());
    QCOMPARE(boxen.gesagt, QStringList{druckerproblem});
    QCOMPARE(boxen.bild, QMessageBox::Warning);
    QCOMPARE(boxen.knoepfe, QMessageBox::Ok | QMessageBox::Cancel);
    QCOMPARE(geraet_.gedruckt.size(), 0);
}

void TestDruckausgabe::geraetFehltNachDemEinrichten()
{
    QFETCH(const QMessageBox::StandardButton, antwort);
    Boxen boxen(antwort);
    oeffnen();
    geraet_.beimEinrichten = [this] { return geraet_.fehlt = true; };
    druecken("cmdDruckerEinrichten");
    QCOMPARE(boxen.gesagt, QStringList{druckerproblem});
    QVERIFY(zu());
}

void TestDruckausgabe::geraetFehltBeimDruck_data()
{
    QTest::addColumn<QMessageBox::StandardButton>("antwort");
    QTest::addColumn<bool>("amBlatt"); // else while the pages go out
    for (const bool amBlatt : {false, true}) {
        QTest::addRow("OK %d", amBlatt) << QMessageBox::Ok << amBlatt;
        QTest::addRow("Cancel %d", amBlatt) << QMessageBox::Cancel << amBlatt;
    }
}

void TestDruckausgabe::geraetFehltBeimDruck()
{
    QFETCH(const QMessageBox::StandardButton, antwort);
    QFETCH(const bool, amBlatt);
    Boxen boxen(antwort);
    oeffnen();
    QCOMPARE(boxen.gesagt, QStringList());
    geraet_.fehlt = amBlatt;
    geraet_.stoerung = [] { throw Geraetefehler(); };
    druecken("cmdDruck");
    QCOMPARE(boxen.gesagt, QStringList{druckerproblem});
    QCOMPARE(boxen.bild, QMessageBox::Warning);
    QCOMPARE(boxen.knoepfe, QMessageBox::Ok | QMessageBox::Cancel);
    QCOMPARE(geraet_.gedruckt.size(), amBlatt ? 0 : 1);
    QVERIFY(zu());
}

void TestDruckausgabe::schreibfehler()
{
    Boxen boxen;
    geraet_.dateien = true;
    oeffnen();
    const QString pfad = probe_->ordner.pfad(u"Ausdruck.pdf"_s);
    geraet_.stoerung = [] { throw Fehler(u"Die Platte ist voll."_s); };
    for (int mal = 1; mal <= 2; ++mal) {
        Dateiwahl wahl(pfad);
        druecken("cmdDruck");
        QCOMPARE(boxen.gesagt, QStringList(mal, u"Flox-Demo: Die Platte ist voll."_s));
        QCOMPARE(boxen.bild, QMessageBox::Critical);
        QVERIFY(offen());
    }
    geraet_.stoerung = nullptr;
    Dateiwahl wahl(pfad);
    druecken("cmdDruck");
    QCOMPARE(geraet_.gedruckt.size(), 3);
    QCOMPARE(boxen.gesagt.size(), 2);
    QVERIFY(zu());
}

void TestDruckausgabe::datenNichtZuLesen()
{
    Boxen boxen;
    bool kaputt = false;
    form_ = std::make_unique<frmDrucken>(
        probe_->programm,
        [&]() -> std::optional<Druckauftrag> {
            if (kaputt)
                throw Fehler(u"Nicht zu lesen."_s);
            return probe_->auftrag;
        },
        geraet_, nullptr);
    kaputt = true;
    form_->open();
    QTRY_COMPARE(boxen.gesagt.size(), 1);
    druecken("cmdDruck");
    QCOMPARE(boxen.gesagt, QStringList(2, u"Flox-Demo: Nicht zu lesen."_s));
    QVERIFY(offen());
    kaputt = false;
    druecken("cmdDruck");
    QCOMPARE(geraet_.gedruckt.size(), 1);
    QCOMPARE(geraet_.gedruckt.first().abschrift, abschrift(erwartet(false)));
}

void TestDruckausgabe::dateiname_data()
{
    QTest::addColumn<QString>("eingabe");
    QTest::addColumn<QString>("datei");
    const auto zeile = [](QStringView eingabe, QStringView datei) { QTest::newRow(eingabe.toUtf8()) << eingabe.toString() << datei.toString(); };
    zeile(u"Blatt", u"Blatt.pdf");
    zeile(u"Blatt.pdf", u"Blatt.pdf");
    zeile(u"Blatt.PDF", u"Blatt.PDF");
    zeile(u"Größe × ß", u"Größe × ß.pdf");
    zeile(u"Liste 1.5.2024", u"Liste 1.5.2024.pdf");
    zeile(u"Ficus sp.", u"Ficus sp..pdf");
    zeile(u"pdf", u"pdf.pdf");
}

void TestDruckausgabe::dateiname()
{
    QFETCH(const QString, eingabe);
    QFETCH(const QString, datei);
    geraet_.dateien = true;
    Boxen boxen;
    oeffnen();
    Dateiwahl wahl(probe_->ordner.pfad(eingabe));
    druecken("cmdDruck");
    QCOMPARE(wahl.dialoge, 1);
    QCOMPARE(wahl.titel, u"Ausdruck speichern"_s);
    QCOMPARE(wahl.modus, QFileDialog::AcceptSave);
    QCOMPARE(wahl.muster, QStringList{u"PDF-Dateien (*.pdf)"_s});
    QCOMPARE(geraet_.gedruckt.size(), 1);
    QCOMPARE(geraet_.gedruckt.first().datei, probe_->ordner.pfad(datei));
    QCOMPARE(boxen.gesagt, QStringList());
    QVERIFY(zu());
}

void TestDruckausgabe::vorschlag_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("liste");
    QTest::addColumn<QString>("vorgewaehlt");
    QTest::addColumn<QString>("titel");
    QTest::addColumn<QString>("vorschlag");
    const auto zeile = [](const char *was, QStringView name, bool liste, QStringView gewaehlt, QStringView titel, QStringView vorschlag) {
        QTest::newRow(was) << name.toString() << liste << gewaehlt.toString() << titel.toString() << vorschlag.toString();
    };
    zeile("Pflanze", u"Abutilon-Hybride", false, u"", u"Abutilon-Hybride", u"Abutilon-Hybride.pdf");
    zeile("Umlaute", u"Öl ÄÜ ß é", false, u"", u"Öl ÄÜ ß é", u"Öl ÄÜ ß é.pdf");
    zeile("fremde Zeichen", u"A/b\\c:d*e?f\"g<h>i|j", false, u"", u"A/b\\c:d*e?f\"g<h>i|j", u"Abcdefghij.pdf");
    zeile("Kreuz und Sorte", u"Abutilon × hybridum 'Rot'", false, u"", u"Abutilon × hybridum 'Rot'", u"Abutilon hybridum Rot.pdf");
    zeile("nichts übrig", u"???", false, u"", u"???", u"Flox.pdf");
    zeile("Liste", u"Abutilon", true, u"", u"Topfpflanzen - Liste", u"Topfpflanzen - Liste.pdf");
    zeile("eingerichtet", u"Abutilon", false, u"/tmp/Meine Datei.pdf", u"Abutilon", u"Meine Datei.pdf");
}

void TestDruckausgabe::vorschlag()
{
    QFETCH(const QString, name);
    QFETCH(const bool, liste);
    QFETCH(const QString, vorgewaehlt);
    probe_->setzen({{u"BOT_NAME"_s, name}});
    geraet_.dateien = true;
    geraet_.vorgewaehlt = vorgewaehlt;
    oeffnen();
    waehlen(liste);
    Dateiwahl wahl(probe_->ordner.pfad(u"a.pdf"_s));
    druecken("cmdDruck");
    QTEST(wahl.vorschlag, "vorschlag");
    QCOMPARE(geraet_.gedruckt.size(), 1);
    QTEST(geraet_.gedruckt.first().titel, "titel");
}

void TestDruckausgabe::dateiwahlAbgebrochen()
{
    geraet_.dateien = true;
    Boxen boxen;
    oeffnen();
    for (int mal = 0; mal < 2; ++mal) {
        Dateiwahl wahl;
        druecken("cmdDruck");
        QCOMPARE(wahl.dialoge, 1);
        QVERIFY(offen());
    }
    QCOMPARE(boxen.gesagt, QStringList());
    QCOMPARE(geraet_.gedruckt.size(), 0);
    Dateiwahl wahl(probe_->ordner.pfad(u"doch.pdf"_s));
    druecken("cmdDruck");
    QCOMPARE(geraet_.gedruckt.size(), 1);
    QVERIFY(zu());
}

void TestDruckausgabe::dateiUeberschreiben_data()
{
    QTest::addColumn<QString>("eingabe");
    QTest::addColumn<bool>("ja");
    for (const char *eingabe : {"Ausdruck 1.5.pdf", "Ausdruck 1.5", "Kurz"})
        for (const bool ja : {false, true})
            QTest::addRow("%s %s", eingabe, ja ? "ja" : "nein") << QString::fromLatin1(eingabe) << ja;
}

void TestDruckausgabe::dateiUeberschreiben()
{
    QFETCH(const QString, eingabe);
    QFETCH(const bool, ja);
    for (const QString &name : {u"Ausdruck 1.5.pdf"_s, u"Kurz.pdf"_s}) {
        QFile alt(probe_->ordner.pfad(name));
        QVERIFY(alt.open(QIODevice::WriteOnly));
    }
    geraet_.dateien = true;
    Boxen boxen(ja ? QMessageBox::Yes : QMessageBox::No);
    oeffnen();
    Dateiwahl wahl(probe_->ordner.pfad(eingabe));
    druecken("cmdDruck");
    QCOMPARE(boxen.gesagt.size(), 1);
    QCOMPARE(boxen.knoepfe, QMessageBox::Yes | QMessageBox::No);
    QVERIFY2(boxen.gesagt.first().contains(eingabe), qPrintable(boxen.gesagt.first()));
    QCOMPARE(geraet_.gedruckt.size(), ja ? 1 : 0);
    QVERIFY(ja ? zu() : offen());
}

void TestDruckausgabe::ausdruck_data()
{
    QTest::addColumn<Sparte>("sparte");
    QTest::addColumn<bool>("liste");
    QTest::newRow("Topf, Blatt") << Sparte::Topf << false;
    QTest::newRow("Topf, Liste") << Sparte::Topf << true;
    QTest::newRow("Apfel, Blatt") << Sparte::Apfel << false;
    QTest::newRow("Apfel, Liste") << Sparte::Apfel << true;
}

void TestDruckausgabe::ausdruck()
{
    QFETCH(const Sparte, sparte);
    QFETCH(const bool, liste);
    probe_ = std::make_unique<Druckprobe>(sparte);
    probe_->pflanzen->setAbsolutePosition(7);
    probe_->teil(u"txtBenutzerText"_s).text = u"Öl"_s;
    const qint64 pflanze = probe_->pflanzen->Schluessel();
    for (const bool dateien : {false, true}) {
        geraet_.dateien = dateien;
        geraet_.gedruckt.clear();
        Boxen boxen;
        oeffnen();
        waehlen(liste);
        Dateiwahl wahl(probe_->ordner.pfad(u"a.pdf"_s));
        druecken("cmdDruck");
        QVERIFY(zu());
        QCOMPARE(form_->result(), int(QDialog::Accepted));
        QCOMPARE(wahl.dialoge, dateien ? 1 : 0);
        QCOMPARE(geraet_.gedruckt.size(), 1);
        const Probegeraet::Ausdruck &ausdruck = geraet_.gedruckt.first();
        QCOMPARE(ausdruck.abschrift, abschrift(erwartet(liste)));
        QCOMPARE(ausdruck.titel, liste ? u"%1 - Liste"_s.arg(eintrag(sparte).titel) : probe_->pflanzen->Fields(u"BOT_NAME").Text());
        QCOMPARE(ausdruck.datei, dateien ? probe_->ordner.pfad(u"a.pdf"_s) : QString());
        QCOMPARE(ausdruck.zeiger, Qt::WaitCursor);
        QCOMPARE(boxen.gesagt, QStringList());
    }
    QCOMPARE(probe_->pflanzen->Schluessel(), pflanze);
    QCOMPARE(probe_->pflanzen->AbsolutePosition(), 7);
}

void TestDruckausgabe::langerText_data()
{
    QTest::addColumn<QStringList>("felder");
    QTest::addColumn<bool>("liste");
    QTest::addColumn<int>("zeilen");
    QTest::addColumn<QString>("genannt"); // with "|" between them; empty: no box
    const QStringList bemerkung{u"benu_bemerkung"_s}, beide{u"benu_bemerkung"_s, u"SORTEN"_s};
    QTest::newRow("100 Zeilen") << bemerkung << false << 100 << QString();
    QTest::newRow("101 Zeilen") << bemerkung << false << 101 << u"Bemerkung (Benutzer)"_s;
    QTest::newRow("zwei Texte") << beide << false << 150 << u"Sorten|Bemerkung (Benutzer)"_s; // as they stand on the sheet
    QTest::newRow("Blatt lang, Liste gedruckt") << beide << true << 150 << QString();
    QTest::newRow("langes Kriterium") << QStringList() << true << 150 << u"Eigene Bemerkungen"_s;
}

void TestDruckausgabe::langerText()
{
    QFETCH(const QStringList, felder);
    QFETCH(const bool, liste);
    QFETCH(const int, zeilen);
    QFETCH(const QString, genannt);
    if (felder.isEmpty())
        probe_->teil(u"txtBenutzerText"_s).text = u"Bemerkung, die gesucht wird, "_s.repeated(20 * zeilen);
    for (const QString &feld : felder)
        probe_->setzen({{feld, QStringList(zeilen, u"Zeile"_s).join(u'\n')}});
    Boxen boxen;
    oeffnen();
    waehlen(liste);
    QCOMPARE(boxen.gesagt, QStringList());
    druecken("cmdDruck");
    const QString satz = genannt.contains(u'|')
                             ? u"Flox-Demo: Diese Texte sind zu lang. Nur ihre ersten 100 Zeilen werden gedruckt:\n\n\"%1\""_s.arg(
                                 QString(genannt).replace(u'|', u"\"\n\""_s))
                             : u"Flox-Demo: Der Text \"%1\" ist zu lang. Nur seine ersten 100 Zeilen werden gedruckt."_s.arg(genannt);
    QCOMPARE(boxen.gesagt, genannt.isEmpty() ? QStringList() : QStringList{satz});
    QCOMPARE(geraet_.gedruckt.size(), 1);
    QCOMPARE(geraet_.gedruckt.first().abschrift, abschrift(erwartet(liste)));
    if (!liste)
        QCOMPARE(geraet_.gedruckt.first().abschrift.filter(u"Zeile"_s).size(), 100 * felder.size());
    QVERIFY(zu());
}

void TestDruckausgabe::langerTextAbgebrochen()
{
    probe_->setzen({{u"benu_bemerkung"_s, QString(200, u'\n') + u"Ende"_s}});
    geraet_.dateien = true;
    Boxen boxen;
    oeffnen();
    Dateiwahl wahl;
    druecken("cmdDruck");
    QCOMPARE(boxen.gesagt, QStringList());
    QVERIFY(offen());
}

FLOX_TEST(tst_druckausgabe, TestDruckausgabe)
#include "tst_druckausgabe.moc"
