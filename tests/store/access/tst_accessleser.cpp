#include "Accesshilfen.h"

#include "store/Fehler.h"
#include "store/access/Austausch.h"
#include "tests/store/Datenhilfen.h"
#include "tests/Testprogramm.h"

#include <QTemporaryDir>
#include <QTest>

#include <bit>
#include <functional>
#include <limits>

using namespace Qt::StringLiterals;
using namespace accessdatei;
using accessprobe::ganz;
using accessprobe::komma;
using accessprobe::text;

namespace {

using Bytes = std::vector<uint8_t>;

/// Place of a table's definition, by the number of columns: the tables of these tests differ in it.
size_t definition(const Bytes &bytes, uint32_t spalten)
{
    for (size_t ort = 2 * seitenbytes; ort < bytes.size(); ort += seitenbytes)
        if (bytes[ort] == seiteTabelle && bytes[ort + 40] == 0x4E && lies16(&bytes[ort + 45]) == spalten)
            return ort;
    qFatal("no such table");
}

/// Place of the first page of its rows.
size_t zeilenseite(const Bytes &bytes, size_t tabelle)
{
    for (size_t ort = 2 * seitenbytes; ort < bytes.size(); ort += seitenbytes)
        if (bytes[ort] == seiteDaten && Sicht{bytes.data(), bytes.size()}.u32(ort + 4) == tabelle / seitenbytes)
            return ort;
    qFatal("no rows");
}

/// Place of a row.
size_t ortDerZeile(const Bytes &bytes, size_t seite, size_t nummer)
{
    return seite + (lies16(&bytes[seite + 14 + 2 * nummer]) & 0x1FFF);
}

void kopfAendern(Bytes &bytes, const std::function<void(Bytes &)> &aendern)
{
    const auto maske = std::span(bytes).subspan(kopfmaskeAb, kopfmaske);
    rc4(kopfschluessel, maske);
    aendern(bytes);
    rc4(kopfschluessel, maske);
}

} // namespace

/* Files of every kind, and files that are not what they say. */
class TestAccessleser : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        QVERIFY(ordner_.isValid());
        const QString pfad = ordner_.filePath(u"gut.mdb"_s);
        Schreiber schreiber(pfad);
        schreiber.beginnen({u"Drei"_s, {{u"ARTNR"_s, Typ::Lang, 0}, {u"ZAHL"_s, Typ::Doppelt, 0}, {u"MEMO"_s, Typ::Memo, 0}}, 0});
        for (int i = 0; i < 5; ++i) {
            const std::string memo(size_t(i) * 3000, 'x');
            const Wert zeile[] = {ganz(i), komma(std::bit_cast<double>(int64_t(35000 * i))), text(memo)};
            schreiber.zeile(zeile);
        }
        schreiber.beenden();
        schreiber.beginnen({u"Zwei"_s, {{u"ARTNR"_s, Typ::Lang, 0}, {u"NAME"_s, Typ::Text, 20}}, 0});
        const Wert zeile[] = {ganz(1), text("Abies")};
        schreiber.zeile(zeile);
        schreiber.beenden();
        schreiber.abschliessen();
        gut_ = accessprobe::bytes(pfad);
        drei_ = definition(gut_, 3);
        dreiZeilen_ = zeilenseite(gut_, drei_);
    }

    void jet3()
    {
        Leser leser(accessprobe::jet3Datei(), u"alt.mdb"_s);
        QVERIFY(leser.fassung() == Fassung::Jet3);
        QCOMPARE(leser.codeseite(), 1252);
        QCOMPARE(accessprobe::zeilen(leser, u"pflanzen"_s),
                 (QList<QStringList>{{u"1"_s, u"-2"_s, u"200"_s, u"3.5"_s, u"0.1"_s, u"444.555"_s, u"31.12.2003 12:00:00"_s, u"True"_s,
                                      u"\"{03020100-0504-0706-0809-0A0B0C0D0E0F}\""_s, u"\"K\u0081bel ä\""_s, u"\"gleich hier\""_s, u"fremd"_s,
                                      u"fremd"_s},
                                     {u"2"_s, u"2"_s, u"0"_s, u"-0.0001"_s, u"-2.5"_s, u"0"_s, u"29.12.1899 06:00:00"_s, u"False"_s, u"null"_s,
                                      u'"' + QString(180, u'z') + u'"', u"\"Bärlauch aus einer Zeile\""_s, u"null"_s, u"null"_s},
                                     {u"3"_s, u"null"_s, u"null"_s, u"null"_s, u"null"_s, u"null"_s, u"null"_s, u"False"_s, u"null"_s, u"\"\""_s,
                                      u'"' + QString(150, u'm') + QString(100, u'n') + u'"', u"null"_s, u"null"_s}}));
        QVERIFY(leser.setCodeseite(850));
        QCOMPARE(accessprobe::zeilen(leser, u"pflanzen"_s)[0][9], u"\"Kübel õ\""_s);
        QVERIFY(!leser.setCodeseite(4711));
        QCOMPARE(leser.codeseite(), 850);
    }

    void codeseiteWirdGefragt()
    {
        const QString pfad = ordner_.filePath(u"alt.mdb"_s);
        const Bytes bytes = accessprobe::jet3Datei();
        schreiben(pfad, QByteArray(reinterpret_cast<const char *>(bytes.data()), qsizetype(bytes.size())));
        QCOMPARE(inhaltVon(pfad)->codeseite, 1252);
        QCOMPARE(inhaltVon(pfad)->zweifelhaft, u"K\u0081bel ä"_s);
        QCOMPARE(inhaltVon(pfad, {}, 850)->zweifelhaft, QString());
        QCOMPARE(inhaltVon(pfad, {}, 850)->tabellen, QStringList{u"Pflanzen"_s});
        // A file of Unicode has nothing to ask.
        schreiben(pfad, QByteArray(reinterpret_cast<const char *>(gut_.data()), qsizetype(gut_.size())));
        QCOMPARE(inhaltVon(pfad)->codeseite, 0);
        for (const Codeseitenwahl &wahl : codeseiten()) {
            Leser leser(accessprobe::jet3Datei(), u"alt.mdb"_s);
            QVERIFY2(leser.setCodeseite(wahl.nummer), qPrintable(wahl.name.toString()));
        }
    }

    void ace()
    {
        Bytes bytes = gut_;
        const char wort[] = "Standard ACE DB";
        std::copy(std::begin(wort), std::end(wort), bytes.begin() + 4);
        for (const uint8_t version : {2, 3, 4, 5, 6}) {
            bytes[0x14] = version;
            Leser leser(bytes, u"neu.accdb"_s);
            QVERIFY(leser.fassung() == Fassung::Ace);
            QCOMPARE(accessprobe::zeilen(leser, u"Zwei"_s), (QList<QStringList>{{u"1"_s, u"\"Abies\""_s}}));
        }
    }

    /// Every page of such a file of Jet is veiled.
    void verschleiert()
    {
        Bytes bytes = gut_;
        constexpr uint32_t schluessel = 0x1234ABCD;
        kopfAendern(bytes, [](Bytes &b) { schreibe32(&b[0x3E], schluessel); });
        for (size_t seite = 1; seite < bytes.size() / seitenbytes; ++seite) {
            uint8_t worte[4];
            schreibe32(worte, schluessel ^ uint32_t(seite));
            rc4(worte, std::span(bytes).subspan(seite * seitenbytes, seitenbytes));
        }
        Leser leser(bytes, u"x"_s);
        QCOMPARE(accessprobe::zeilen(leser, u"Zwei"_s).size(), 1);
    }

    void abgelehnt_data()
    {
        QTest::addColumn<Bytes>("bytes");
        QTest::addColumn<QString>("satz");
        const auto zeile = [this](const char *name, const QString &satz, const std::function<void(Bytes &)> &aendern) {
            Bytes bytes = gut_;
            aendern(bytes);
            QTest::newRow(name) << bytes << satz;
        };
        zeile("leer", u"Die Datei 'x.mdb' ist keine Access-Datenbank."_s, [](Bytes &b) { b.clear(); });
        zeile("Text", u"Die Datei 'x.mdb' ist keine Access-Datenbank."_s, [](Bytes &b) { b.assign(9000, 'a'); });
        zeile("abgeschnitten", u"Die Datei 'x.mdb' ist keine Access-Datenbank."_s, [](Bytes &b) { b.resize(4000); });
        zeile("neuer", u"Die Access-Datei 'x.mdb' ist von einer neueren Version von Access, die nicht gelesen werden kann."_s,
              [](Bytes &b) { b[0x14] = 9; });
        zeile("ohne Katalog", u"Die Access-Datei 'x.mdb' ist beschädigt: Ihr Verzeichnis der Tabellen kann nicht gelesen werden."_s,
              [](Bytes &b) { b.resize(2 * seitenbytes); });
        zeile("Katalog zerstört", u"Die Access-Datei 'x.mdb' ist beschädigt: Ihr Verzeichnis der Tabellen kann nicht gelesen werden."_s,
              [](Bytes &b) { b[2 * seitenbytes] = 9; });
        zeile(
            "verschlüsselt",
            u"Die Access-Datei 'x.mdb' ist verschlüsselt. Bitte heben Sie die Verschlüsselung in Access auf und versuchen Sie es dann noch einmal."_s,
            [](Bytes &b) {
            b[0x14] = 3;
            kopfAendern(b, [](Bytes &k) { schreibe32(&k[0x3E], 77); });
            });
        zeile("Kennwort",
              u"Die Access-Datei 'x.mdb' ist mit einem Kennwort geschützt. Bitte entfernen Sie das Kennwort in Access und versuchen Sie es dann noch "
              "einmal."_s,
              [](Bytes &b) {
            kopfAendern(b, [](Bytes &k) {
                const char16_t wort[] = u"geheim";
                for (size_t i = 0; i < 6; ++i)
                    schreibe16(&k[0x42 + 2 * i], lies16(&k[0x42 + 2 * i]) ^ wort[i]);
            });
        });
    }
    void abgelehnt()
    {
        QFETCH(Bytes, bytes);
        QTEST(fehlerVon([&] { Leser leser(bytes, u"x.mdb"_s); }), "satz");
    }

    void verknuepfteTabelle()
    {
        Bytes bytes = gut_;
        // The catalog's row of the table: its number, that of the container, its kind.
        const size_t katalog = zeilenseite(bytes, 2 * seitenbytes);
        for (size_t i = 0; i < lies16(&bytes[katalog + 12]); ++i)
            if (uint8_t *zeile = &bytes[ortDerZeile(bytes, katalog, i)]; Sicht{zeile + 2, 4}.u32(0) == drei_ / seitenbytes)
                schreibe16(zeile + 10, 6);
        Leser leser(bytes, u"x"_s);
        QCOMPARE(leser.verknuepfungen(), QStringList{u"Drei"_s});
        QCOMPARE(leser.tabellen().size(), 1u);
        const QString pfad = ordner_.filePath(u"verknüpft.mdb"_s);
        schreiben(pfad, QByteArray(reinterpret_cast<const char *>(bytes.data()), qsizetype(bytes.size())));
        QCOMPARE(inhaltVon(pfad)->tabellen, (QStringList{u"Zwei"_s, u"Drei"_s}));
        const std::optional<Bericht> bericht = einlesen(pfad, ordner_.filePath(u"ziel.mdb"_s));
        QVERIFY(bericht && bericht->text().contains(u"nur Verknüpfungen mit einer anderen Datei und wurden nicht gelesen: Drei"_s));
    }

    /// What stands in the rows is what counts.
    void veralteteZeilenzahl()
    {
        Bytes bytes = gut_;
        schreibe32(&bytes[drei_ + 16], 4000000000u);
        Leser leser(bytes, u"x"_s);
        QCOMPARE(durchlauf(leser).zeilen, 5);
    }

    void zerstoerteKarte()
    {
        Bytes bytes = gut_;
        const uint32_t karte = Sicht{bytes.data(), bytes.size()}.u32(drei_ + 55);
        bytes[ortDerZeile(bytes, (karte >> 8) * seitenbytes, karte & 255)] = 7;
        Leser leser(bytes, u"x"_s);
        QCOMPARE(durchlauf(leser).zeilen, 5);
    }

    void geloeschteZeile()
    {
        Bytes bytes = gut_;
        bytes[dreiZeilen_ + 15] |= 0x80;
        Leser leser(bytes, u"x"_s);
        const Durchgang durchgang = durchlauf(leser);
        QCOMPARE(durchgang.zeilen, 4);
        QCOMPARE(durchgang.unlesbar, 0);
    }

    /// The row is where its place says that it is; a circle of such places is none.
    void verschobeneZeile()
    {
        Bytes bytes = gut_;
        const uint32_t seite = uint32_t(dreiZeilen_ / seitenbytes);
        bytes[dreiZeilen_ + 14 + 2 * 1 + 1] |= 0x40;
        schreibe32(&bytes[ortDerZeile(bytes, dreiZeilen_, 1)], seite << 8 | 4);
        Leser leser(bytes, u"x"_s);
        const QList<QStringList> zeilen = accessprobe::zeilen(leser, u"Drei"_s);
        QCOMPARE(zeilen.size(), 5);
        QCOMPARE(zeilen[1][0], u"4"_s);

        schreibe32(&bytes[ortDerZeile(bytes, dreiZeilen_, 1)], seite << 8 | 1);
        Leser kreis(bytes, u"x"_s);
        const Durchgang durchgang = durchlauf(kreis);
        QCOMPARE(durchgang.zeilen, 4);
        QCOMPARE(durchgang.unlesbar, 1);
        QCOMPARE(durchgang.unlesbarePlaetze, std::vector<qint64>{2});
    }

    /// A chain that bites its tail ends; the value is told to be damaged.
    void langwertImKreis()
    {
        Bytes bytes = gut_;
        // The last row's memo: its chain begins at the pointer behind its length.
        const size_t zeile = ortDerZeile(bytes, dreiZeilen_, 4), kopf = zeile + 2 + 4 + 8;
        const uint32_t zeiger = Sicht{bytes.data(), bytes.size()}.u32(kopf + 4);
        schreibe32(&bytes[ortDerZeile(bytes, (zeiger >> 8) * seitenbytes, zeiger & 255)], zeiger);
        Leser leser(bytes, u"x"_s);
        const Durchgang durchgang = durchlauf(leser);
        QCOMPARE(durchgang.zeilen, 5);
        QCOMPARE(durchgang.schadhafteWerte, 1);
        // A length beyond the file is none.
        schreibe32(&bytes[kopf], 0x3FFFFFFF);
        Leser riesig(bytes, u"x"_s);
        QCOMPARE(durchlauf(riesig).schadhafteWerte, 1);
    }

    void vieleWegeEinZiel_data()
    {
        QTest::addColumn<int>("laenge");
        QTest::addColumn<bool>("zeilen");
        QTest::newRow("ein langer Wert aus einer Zeile") << 3000 << false;
        QTest::newRow("ein langer Wert aus einer Kette") << 9000 << false;
        QTest::newRow("eine verschobene Zeile") << 0 << true;
    }
    /// What many places of a small file name costs no more than the file: neither long values nor rows that have been moved.
    void vieleWegeEinZiel()
    {
        QFETCH(int, laenge);
        QFETCH(bool, zeilen);
        constexpr int viele = 600;
        const QString pfad = ordner_.filePath(u"wege.mdb"_s);
        {
            Schreiber schreiber(pfad);
            std::vector<Spaltenform> spalten{{u"ARTNR"_s, Typ::Lang, 0}, {u"ZAHL"_s, Typ::Doppelt, 0}, {u"MEMO"_s, Typ::Memo, 0}};
            for (int i = 0; i < 8; ++i)
                spalten.push_back({u"T%1"_s.arg(i), Typ::Text, 255});
            schreiber.beginnen({u"Drei"_s, spalten, 0});
            const std::string memo(size_t(laenge), 'x'), lang(zeilen ? 250 : 0, 't');
            for (int i = 0; i <= viele; ++i) {
                std::vector<Wert> zeile{ganz(i), komma(0), text(i == 0 && laenge ? std::string_view(memo) : "k")};
                zeile.resize(spalten.size(), text(i == 0 ? std::string_view(lang) : ""));
                schreiber.zeile(zeile);
            }
            schreiber.beenden();
            schreiber.abschliessen();
        }
        Bytes bytes = accessprobe::bytes(pfad);
        const size_t tabelle = definition(bytes, 11), erste = zeilenseite(bytes, tabelle);
        constexpr size_t memokopf = 2 + 4 + 8;
        const size_t vorbild = ortDerZeile(bytes, erste, 0);
        const auto summe = [&](qint64 &gelesen) {
            Leser leser(bytes, u"x"_s);
            return leser.durchlaufen(*leser.tabelle(u"Drei"), [&](Zeile &zeile) {
                for (size_t i = 0; i < 11; ++i)
                    gelesen += qint64(zeile.wert(i).text.size());
                return true;
            });
        };
        qint64 vorher = 0;
        QCOMPARE(summe(vorher).zeilen, viele + 1);
        for (size_t ort = erste; ort < bytes.size(); ort += seitenbytes) {
            if (bytes[ort] != seiteDaten || Sicht{bytes.data(), bytes.size()}.u32(ort + 4) != tabelle / seitenbytes)
                continue;
            for (size_t i = 0; i < lies16(&bytes[ort + 12]); ++i) {
                const size_t zeile = ortDerZeile(bytes, ort, i);
                if (zeilen && ort != erste) {
                    bytes[ort + 14 + 2 * i + 1] |= 0x40;
                    schreibe32(&bytes[zeile], uint32_t(erste / seitenbytes) << 8);
                } else if (!zeilen) {
                    std::copy_n(&bytes[vorbild + memokopf], langwertKopf, &bytes[zeile + memokopf]);
                }
            }
        }
        qint64 gelesen = 0;
        const Durchgang durchgang = summe(gelesen);
        QCOMPARE(durchgang.zeilen + durchgang.unlesbar, viele + 1);
        QVERIFY(gelesen > vorher);
        QVERIFY2(gelesen <= qint64(2 * bytes.size()), qPrintable(u"%1 of %2 bytes"_s.arg(gelesen).arg(bytes.size())));
        QVERIFY((zeilen ? durchgang.unlesbar : durchgang.schadhafteWerte) > 0);
    }

    /// A map that names every page of the file leaves a list of the table's own, and no room for the others.
    void seitenlistenBleibenKlein()
    {
        Bytes bytes = gut_;
        const Sicht alles{bytes.data(), bytes.size()};
        const uint32_t zeiger = alles.u32(drei_ + 55);
        const size_t karte = ortDerZeile(bytes, (zeiger >> 8) * seitenbytes, zeiger & 0xFF);
        QCOMPARE(bytes[karte], uint8_t(0)); // its bits follow
        Leser vorher(bytes, u"x"_s);
        std::fill_n(&bytes[karte + 5], 64, uint8_t(0xFF));
        Leser leser(bytes, u"x"_s);
        QCOMPARE(leser.tabelle(u"Drei")->seiten, vorher.tabelle(u"Drei")->seiten);
        QCOMPARE(leser.tabelle(u"Drei")->seiten.capacity(), leser.tabelle(u"Drei")->seiten.size());
    }

    void zahlenAndererArt_data()
    {
        QTest::addColumn<int>("typ");
        QTest::addColumn<QString>("dritte");
        QTest::newRow("Währung") << int(Typ::Waehrung) << u"7"_s;
        QTest::newRow("große Ganzzahl") << int(Typ::Riesig) << u"70000"_s;
        QTest::newRow("unbekannt") << 99 << u"fremd"_s;
    }
    void zahlenAndererArt()
    {
        QFETCH(int, typ);
        Bytes bytes = gut_;
        const uint32_t indexe = Sicht{bytes.data(), bytes.size()}.u32(drei_ + 51);
        bytes[drei_ + 63 + 12 * indexe + 25] = uint8_t(typ); // of the second column
        Leser leser(bytes, u"x"_s);
        QTEST(accessprobe::zeilen(leser, u"Drei"_s)[2][1], "dritte");
    }

    void zahltexte()
    {
        QCOMPARE(zahltext(0.25), "0.25");
        QCOMPARE(zahltext(-0.0), "0");
        QCOMPARE(zahltext(1e15), "1000000000000000");
        QCOMPARE(zahltext(0.1f), "0.1");
        QCOMPARE(dezimaltext("0", 4, true), "0");
        QCOMPARE(dezimaltext("5", 4, true), "-0.0005");
        QCOMPARE(dezimaltext("350000", 4, false), "35");
        QCOMPARE(dezimaltext("350001", 4, false), "35.0001");
        QCOMPARE(dezimaltext("12300", 0, false), "12300");
        QCOMPARE(datumstext(0), "30.12.1899");
        QCOMPARE(datumstext(36526.999999), "02.01.2000");
        QCOMPARE(datumstext(2958465), "31.12.9999");
        QCOMPARE(datumstext(1e300), "");
        QCOMPARE(datumstext(std::numeric_limits<double>::quiet_NaN()), "");
    }

private:
    Durchgang durchlauf(Leser &leser)
    {
        return leser.durchlaufen(*leser.tabelle(u"Drei"), [&](Zeile &zeile) {
            for (size_t i = 0; i < 3; ++i)
                (void)zeile.wert(i);
            return true;
        });
    }

    QTemporaryDir ordner_;
    Bytes gut_;
    size_t drei_ = 0, dreiZeilen_ = 0;
};

FLOX_TEST(tst_accessleser, TestAccessleser)
#include "tst_accessleser.moc"
