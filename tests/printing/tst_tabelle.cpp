#include "Dialogprobe.h"

#include "filters/Filtername.h"
#include "printing/Datenblatt.h"
#include "printing/Tabelle.h"
#include "store/Text.h"
#include "tests/Testprogramm.h"

#include <QApplication>
#include <QListWidget>
#include <QXmlStreamReader>

#include <zip.h>

using namespace Qt::StringLiterals;

/* The table of the filtered plants: columns, cells, both kinds of file, and the way to it through the print dialog. */

namespace {

using Zeilen = QList<QStringList>;

/// By the rules of RFC 4180, apart from the writer.
Zeilen csvLesen(const QByteArray &bytes)
{
    const QString text = QString::fromUtf8(bytes.mid(3));
    Zeilen zeilen;
    QStringList zeile;
    QString feld;
    bool innen = false;
    for (qsizetype i = 0; i < text.size(); ++i) {
        const QChar c = text[i];
        if (innen && c == u'"' && text.mid(i + 1, 1) == u"\"")
            feld += text[++i];
        else if (c == u'"')
            innen = !innen;
        else if (!innen && c == u';')
            zeile += std::exchange(feld, {});
        else if (!innen && text.mid(i, 2) == u"\r\n") {
            zeile += std::exchange(feld, {});
            zeilen += std::exchange(zeile, {});
            ++i;
        } else
            feld += c;
    }
    return zeilen;
}

QByteArray ausArchiv(const QByteArray &archiv, const char *name)
{
    zip_source_t *quelle = zip_source_buffer_create(archiv.constData(), zip_uint64_t(archiv.size()), 0, nullptr);
    zip_t *offen = zip_open_from_source(quelle, ZIP_RDONLY | ZIP_CHECKCONS, nullptr);
    if (!offen)
        qFatal("This is no archive.");
    zip_stat_t stand;
    QByteArray bytes;
    if (zip_stat(offen, name, 0, &stand) == 0) {
        bytes.resize(qsizetype(stand.size));
        zip_file_t *datei = zip_fopen(offen, name, 0);
        if (zip_fread(datei, bytes.data(), stand.size) != zip_int64_t(stand.size))
            qFatal("'%s' cannot be read.", name);
        zip_fclose(datei);
    }
    zip_discard(offen);
    return bytes;
}

/// Cells as "kind:value", an empty one as an empty text.
Zeilen odsLesen(const QByteArray &archiv)
{
    QXmlStreamReader xml(ausArchiv(archiv, "content.xml"));
    Zeilen zeilen;
    QString art, text;
    int absaetze = 0;
    while (!xml.atEnd()) {
        switch (xml.readNext()) {
        case QXmlStreamReader::StartElement:
            if (xml.name() == u"table-row")
                zeilen += QStringList();
            else if (xml.name() == u"table-cell") {
                const auto merkmal = [&](const QString &name) {
                    return xml.attributes().value(u"urn:oasis:names:tc:opendocument:xmlns:office:1.0"_s, name);
                };
                art = merkmal(u"value-type"_s).toString();
                if (art == u"float")
                    art += u'=' + merkmal(u"value"_s).toString();
                if (!xml.attributes().value(u"urn:oasis:names:tc:opendocument:xmlns:table:1.0"_s, u"formula"_s).isEmpty())
                    art = u"formula"_s;
                text.clear();
                absaetze = 0;
            } else if (xml.name() == u"p" && absaetze++ > 0)
                text += u'\n';
            else if (xml.name() == u"s")
                text += u' ';
            else if (xml.name() == u"tab")
                text += u'\t';
            break;
        case QXmlStreamReader::Characters: text += xml.text(); break;
        case QXmlStreamReader::EndElement:
            if (xml.name() == u"table-cell")
                zeilen.last() += art.isEmpty() ? QString() : art + u':' + text;
            break;
        default: break;
        }
    }
    if (xml.hasError())
        qFatal("%s", qPrintable(xml.errorString()));
    return zeilen;
}

} // namespace

class TestTabelle : public QObject, private Dialogprobe
{
    Q_OBJECT

private slots:
    void spalten_data() { sparten(); }
    void spalten();
    void zellenWieImBestand_data() { sparten(); }
    void titelAusDemFilter();
    void zellenWieImBestand();
    void besondereTexte();
    void archivIstErkennbar();
    void durchDenDialog_data();
    void durchDenDialog();
    void abgebrochen();
    void kopie_data() { sparten(); }
    void kopie();

private:
    static void sparten()
    {
        QTest::addColumn<Sparte>("sparte");
        for (const SpartenEintrag &zeile : alleSparten())
            QTest::newRow(zeile.fenster) << zeile.sparte;
    }
};

void TestTabelle::spalten()
{
    QFETCH(const Sparte, sparte);
    const std::vector<Tabellenspalte> spalten = tabellenspalten(sparte);
    QSet<QString> titel;
    int vorgeschlagen = 0;
    for (const Tabellenspalte &spalte : spalten) {
        QVERIFY(!spalte.titel.trimmed().isEmpty());
        QVERIFY2(!titel.contains(spalte.titel), qPrintable(spalte.titel));
        titel += spalte.titel;
        vorgeschlagen += spalte.vorgeschlagen;
    }
    QVERIFY(spalten.size() > 30);
    QVERIFY(vorgeschlagen >= 3 && vorgeschlagen < 15);
    QVERIFY(std::ranges::any_of(spalten, [](const Tabellenspalte &s) { return s.vorgeschlagen && s.spalte->name == QByteArray("BOT_NAME"); }));
}

/// A column without a label in print is called as in the filter: nobody knows the names of fields.
void TestTabelle::titelAusDemFilter()
{
    int ausDemFilter = 0;
    for (const SpartenEintrag &zeile : alleSparten())
        for (const Tabellenspalte &spalte : tabellenspalten(zeile.sparte)) {
            if (!spalte.spalte->druckname.isEmpty())
                continue;
            const Filterbeschreibung &filter = *filterbeschreibung(zeile.sparte);
            for (const Kriterium &kriterium : filter.kriterien) {
                if (!kriterium.feld || spalteVon(filter, kriterium.feld) != spalte.spalte)
                    continue;
                QVERIFY2(spalte.titel != QLatin1String(spalte.spalte->name), spalte.spalte->name);
                ausDemFilter += spalte.titel.startsWith(gruppenname(filter, kriterium));
            }
        }
    QVERIFY(ausDemFilter > 3);
    const auto titel = [](Sparte sparte) {
        QStringList alle;
        for (const Tabellenspalte &spalte : tabellenspalten(sparte))
            alle += spalte.titel;
        return alle;
    };
    QVERIFY(titel(Sparte::Gehoelze).contains(u"Einteilung"_s));
}

/// Every cell of every column, in both kinds of file, against the records themselves.
void TestTabelle::zellenWieImBestand()
{
    QFETCH(const Sparte, sparte);
    Druckprobe probe(sparte);
    const std::vector<Tabellenspalte> spalten = tabellenspalten(sparte);
    const Datentabelle tabelle = datentabelle(probe.programm, probe.auftrag, spalten);
    const QByteArray csvBytes = alsCsv(tabelle);
    QVERIFY(csvBytes.startsWith("\xEF\xBB\xBF"));
    const Zeilen csv = csvLesen(csvBytes), ods = odsLesen(alsOds(tabelle));
    const qsizetype anzahl = probe.pflanzen->RecordCount();
    QCOMPARE(csv.size(), anzahl + 1);
    QCOMPARE(ods.size(), anzahl + 1);
    int zahlen = 0, texte = 0;
    const SpartenEintrag &eigene = eintrag(sparte);
    for (qsizetype i = 0; i < anzahl; ++i) {
        QCOMPARE(csv[i + 1].size(), qsizetype(spalten.size()));
        QCOMPARE(ods[i + 1].size(), qsizetype(spalten.size()));
        probe.pflanzen->setAbsolutePosition(i);
        const std::optional<Sparte> von =
            herkunft(eigene, eigene.herkunftsfeld ? probe.pflanzen->Fields(QString::fromLatin1(eigene.herkunftsfeld)).Text() : QString());
        const Wortquelle worte{probe.programm, eigene, probe.auftrag.arbeit, von ? &eintrag(*von) : nullptr};
        for (size_t s = 0; s < spalten.size(); ++s) {
            const Spalte &spalte = *spalten[s].spalte;
            QString roh = probe.pflanzen->Fields(QString::fromLatin1(spalte.name)).Text();
            if (!giltFuer(eigene, spalte, von))
                roh.clear();
            const QString &c = csv[i + 1][qsizetype(s)], &o = ods[i + 1][qsizetype(s)];
            const auto wo = qPrintable(u"%1 %2: '%3' '%4'"_s.arg(i).arg(QLatin1String(spalte.name), c, o));
            const auto zahl = spalte.art == Art::Zahl || spalte.art == Art::Bewertung ? zahlLesen(roh) : std::nullopt;
            if (zahl) {
                ++zahlen;
                QVERIFY2(o.startsWith(u"float=") && o.section(u':', 0, 0).mid(6).toDouble() == *zahl, wo);
                QVERIFY2(zahlLesen(c) == zahl && !c.contains(u'.'), wo);
                continue;
            }
            QString soll = spalte.art == Art::Zahl || spalte.art == Art::Bewertung ? roh
                           : spalte.art == Art::Wahrheit                           ? (istWahr(roh) ? u"ja"_s : QString())
                           : roh.isEmpty()                                         ? QString()
                                                                                   : DruckFeld(worte, spalte, roh);
            texte += !soll.isEmpty();
            QVERIFY2(soll.isEmpty() ? c.isEmpty() : c == soll || c == u'\'' + soll, wo);
            soll.replace(u"\r\n"_s, u"\n"_s).replace(u'\r', u'\n');
            QVERIFY2(soll.isEmpty() ? o.isEmpty() : o == u"string:"_s + soll, wo);
        }
    }
    QVERIFY(zahlen > 0 && texte > anzahl);
}

void TestTabelle::besondereTexte()
{
    const QStringList texte{u"=1+1"_s,     u"+49"_s,         u"-x"_s,           u"@SUM(A1)"_s,         u"007"_s,
                            u"a;b"_s,      u"sagt \"ja\""_s, u"eine\nzweite"_s, u" Rand und  zwei "_s, u"\tTab"_s,
                            u"<b>&amp;"_s, u"Größe ≥ 3 😀"_s, u"1,5"_s};
    Datentabelle tabelle{u"A & B"_s, {u"Text"_s, u"Zahl"_s}, {}};
    for (const QString &text : texte)
        tabelle.zeilen.push_back({{text, {}}, {u"-0,25"_s, -0.25}});
    tabelle.zeilen.push_back({{QString(u'a') + QChar(1) + QChar(0xD800) + u'b', {}}, {}});
    const QByteArray bytes = alsCsv(tabelle);
    const Zeilen csv = csvLesen(bytes), ods = odsLesen(alsOds(tabelle));
    for (qsizetype i = 0; i < texte.size(); ++i) {
        const bool formel = i < 4 || texte[i].startsWith(u'\t');
        QCOMPARE(csv[i + 1][0], formel ? u'\'' + texte[i] : texte[i]);
        QCOMPARE(csv[i + 1][1], u"-0,25"_s);
        QCOMPARE(ods[i + 1][0], u"string:"_s + texte[i]);
        QCOMPARE(ods[i + 1][1], u"float=-0.25:-0,25"_s);
    }
    QCOMPARE(ods.last(), (QStringList{u"string:ab"_s, QString()}));
    QVERIFY(bytes.contains("\"sagt \"\"ja\"\"\";-0,25\r\n"));
    QVERIFY(bytes.contains("\"a;b\""));
}

void TestTabelle::archivIstErkennbar()
{
    const QByteArray bytes = alsOds({u"Leer"_s, {u"Eine"_s}, {}});
    // The local header of the first file, its name, and its bytes as they are.
    QVERIFY(bytes.startsWith("PK\x03\x04"));
    QCOMPARE(int(bytes[8]), 0);  // stored
    QCOMPARE(int(bytes[28]), 0); // nothing between name and bytes
    QCOMPARE(bytes.mid(30, 54), QByteArray("mimetypeapplication/vnd.oasis.opendocument.spreadsheet"));
    const QByteArray verzeichnis = ausArchiv(bytes, "META-INF/manifest.xml");
    QXmlStreamReader xml(verzeichnis);
    QStringList pfade;
    while (!xml.atEnd())
        if (xml.readNext() == QXmlStreamReader::StartElement && xml.name() == u"file-entry")
            pfade += xml.attributes().value(u"urn:oasis:names:tc:opendocument:xmlns:manifest:1.0"_s, u"full-path"_s).toString();
    QVERIFY2(!xml.hasError(), qPrintable(xml.errorString()));
    QCOMPARE(pfade, (QStringList{u"/"_s, u"content.xml"_s}));
    QCOMPARE(odsLesen(bytes), (Zeilen{{u"string:Eine"_s}}));
}

void TestTabelle::durchDenDialog_data()
{
    QTest::addColumn<Sparte>("sparte");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("datei");
    for (const SpartenEintrag &zeile : alleSparten()) {
        QTest::addRow("%s, ods", zeile.fenster) << zeile.sparte << u"Meine.Liste"_s << u"Meine.Liste.ods"_s;
        QTest::addRow("%s, csv", zeile.fenster) << zeile.sparte << u"Liste.CSV"_s << u"Liste.CSV"_s;
    }
}

void TestTabelle::durchDenDialog()
{
    QFETCH(const Sparte, sparte);
    QFETCH(const QString, name);
    QFETCH(const QString, datei);
    neu(sparte);
    oeffnen();
    QVERIFY(!finde("cmdTabelle")->isEnabled());
    waehlen(true);
    QVERIFY(finde("cmdTabelle")->isEnabled());
    Boxen boxen;
    Dateiwahl wahl(probe_->ordner.pfad(name));
    QStringList titel;
    QTimer takt;
    connect(&takt, &QTimer::timeout, this, [&] {
        auto *form = QApplication::activeModalWidget();
        if (!form || form->objectName() != u"frmTabelle")
            return;
        takt.stop();
        auto *liste = form->findChild<QListWidget *>(u"lstSpalten"_s);
        auto *ok = form->findChild<QPushButton *>(u"cmdOK"_s);
        QVERIFY(ok->isEnabled());
        QTest::mouseClick(form->findChild<QPushButton *>(u"cmdKeine"_s), Qt::LeftButton);
        QVERIFY(!ok->isEnabled());
        // The second and the last one, by key.
        liste->setFocus();
        for (const int zeile : {1, liste->count() - 1}) {
            liste->setCurrentRow(zeile);
            QTest::keyClick(liste, Qt::Key_Space);
            titel += liste->item(zeile)->text();
            QCOMPARE(liste->item(zeile)->toolTip(), titel.last());
        }
        QTest::keyClick(liste, Qt::Key_Return);
    });
    takt.start(1);
    druecken("cmdTabelle");
    QCOMPARE(boxen.gesagt, QStringList());
    QCOMPARE(wahl.dialoge, 1);
    QCOMPARE(wahl.modus, QFileDialog::AcceptSave);
    QCOMPARE(wahl.titel, u"Tabelle speichern"_s);
    QVERIFY(zu());
    QCOMPARE(form_->gespeichert(), probe_->ordner.pfad(datei));
    QFile geschrieben(form_->gespeichert());
    QVERIFY(geschrieben.open(QIODevice::ReadOnly));
    Zeilen zeilen;
    if (datei.endsWith(u".ods")) {
        zeilen = odsLesen(geschrieben.readAll());
        for (QString &text : titel)
            text.prepend(u"string:");
    } else {
        zeilen = csvLesen(geschrieben.readAll());
    }
    QCOMPARE(zeilen.first(), titel);
    QCOMPARE(zeilen.size(), probe_->pflanzen->RecordCount() + 1);
    QCOMPARE(geraet_.gedruckt.size(), 0);
}

void TestTabelle::abgebrochen()
{
    neu();
    oeffnen();
    waehlen(true);
    Boxen boxen;
    const QStringList dateien = QDir(probe_->ordner.pfad()).entryList();
    // First in the question about columns, then in that about the file.
    for (const bool spalten : {true, false}) {
        Dateiwahl wahl;
        QTimer takt;
        connect(&takt, &QTimer::timeout, this, [&] {
            if (auto *form = QApplication::activeModalWidget(); form && form->objectName() == u"frmTabelle") {
                takt.stop();
                spalten ? QTest::keyClick(form, Qt::Key_Escape) : QTest::mouseClick(form->findChild<QPushButton *>(u"cmdOK"_s), Qt::LeftButton);
            }
        });
        takt.start(1);
        druecken("cmdTabelle");
        QCOMPARE(wahl.dialoge, spalten ? 0 : 1);
        QVERIFY(offen());
    }
    QCOMPARE(QDir(probe_->ordner.pfad()).entryList(), dateien);
    QCOMPARE(boxen.gesagt, QStringList());
}

/// What is copied is what is printed: each line of the sheet's labels and values stands in the text and in the table.
void TestTabelle::kopie()
{
    QFETCH(const Sparte, sparte);
    Druckprobe probe(sparte);
    const auto kopie = blattkopie(datenblatt(probe.programm, probe.auftrag));
    const QString text = ohneLeerraum(kopie->text()), html = kopie->html();
    QVERIFY(text.startsWith(ohneLeerraum(probe.pflanzen->Fields(u"BOT_NAME").Text())));
    int gesehen = 0;
    for (const Druckseite &seite : probe.blatt().seiten) {
        const QStringList texte = seitentexte(seite);
        // Head and foot belong to the page.
        for (const QString &zeile : texte.mid(2, texte.size() - 4)) {
            QVERIFY2(text.contains(ohneLeerraum(zeile)), qPrintable(zeile));
            ++gesehen;
        }
    }
    QVERIFY(gesehen > 8);
    QXmlStreamReader xml(u"<a>"_s + html.mid(html.indexOf(u"<table>")).remove(u"</body></html>"_s).replace(u"<br>"_s, u" "_s) + u"</a>"_s);
    QString zellen;
    while (!xml.atEnd())
        if (xml.readNext() == QXmlStreamReader::Characters)
            zellen += xml.text();
    QVERIFY2(!xml.hasError(), qPrintable(xml.errorString()));
    QCOMPARE(ohneLeerraum(zellen), text);
}

FLOX_TEST(tst_tabelle, TestTabelle)
#include "tst_tabelle.moc"
