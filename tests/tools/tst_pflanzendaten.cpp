#include "Kleinformen.h"
#include "store/Recordset.h"
#include "tests/store/Datenhilfen.h"
#include "tools/Pflanzendaten.h"
#include "tests/Testprogramm.h"

#include <QTest>

using namespace Qt::StringLiterals;

namespace {

/// A family and, from line 8 on, a plant that lacks nothing; what follows begins at line 11.
const QString vorspann = u"%rec: Familien\n\nFAMILIE: 7\nFAMNAME: Malvaceae (Malvengewächse)\n\n%rec: Topfpfl\n\n"_s;
const QString pflanze = u"ARTNR: 1\nBOT_NAME: Abutilon\nbewertung: 5\n"_s;

} // namespace

/* From sources to the database: what arrives, and what is refused with file and line. */
class TestPflanzendaten : public QObject
{
    Q_OBJECT

private slots:
    void init() { ordner_.emplace(); }

    void merkmale_data()
    {
        QTest::addColumn<QString>("felder");
        QTest::addColumn<QString>("fehler");
        const QString m = u"MERKMAL: Blatt unterseits filzig\n"_s;
        QTest::newRow("keines") << QString() << QString();
        QTest::newRow("fünf") << m.repeated(5) << QString();
        QTest::newRow("sechs") << m.repeated(6) << u"mehr als 5 Merkmale"_s;
        QTest::newRow("60 Zeichen") << u"MERKMAL: "_s + QString(60, u'ä') + u'\n' << QString();
        QTest::newRow("61 Zeichen") << u"MERKMAL: "_s + QString(61, u'ä') + u'\n' << u"MERKMAL hat mehr als 60 Zeichen"_s;
        QTest::newRow("leer") << u"MERKMAL:\n"_s << u"MERKMAL ist leer"_s;
    }
    /// Identifying marks are checked and reach no column.
    void merkmale()
    {
        QFETCH(QString, felder);
        QFETCH(QString, fehler);
        const QString gemeldet = bauen(vorspann + pflanze + felder);
        QVERIFY2(fehler.isEmpty() ? gemeldet.isEmpty() : gemeldet.endsWith(fehler), qPrintable(gemeldet));
    }

    void monate_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("flags"); // or the error
        QTest::newRow("ein Monat") << u"3"_s << u"001000000000"_s;
        QTest::newRow("Spanne") << u"3-5"_s << u"001110000000"_s;
        QTest::newRow("über den Jahreswechsel") << u"11-2"_s << u"110000000011"_s;
        QTest::newRow("Namen") << u"Mai-Juli"_s << u"000011100000"_s;
        QTest::newRow("Name klein") << u"märz"_s << u"001000000000"_s;
        QTest::newRow("gemischt") << u"Dezember-1"_s << u"100000000001"_s;
        QTest::newRow("mehrere") << u"11-2, 6"_s << u"110001000011"_s;
        QTest::newRow("überlappend") << u"1-3, 2-4"_s << u"111100000000"_s;
        QTest::newRow("ganzes Jahr") << u"1-12"_s << u"111111111111"_s;
        QTest::newRow("ein Monat als Spanne") << u"4-4"_s << u"000100000000"_s;
        QTest::newRow("Ränder") << u" 3 - 5 ,7 "_s << u"001110100000"_s;
        for (const char *falsch : {"13", "0", "-3", "3-", "3-4-5", "3,,4", "Maerz", "", "3;4", "3 4", "1.5"})
            QTest::newRow(*falsch ? falsch : "leer") << QString::fromLatin1(falsch) << u"kein Monat"_s;
    }
    void monate()
    {
        QFETCH(QString, text);
        QFETCH(QString, flags);
        QString ergebnis;
        const QString fehler = fehlerVon([&] { ergebnis = Pflanzendaten::monateAus(text); });
        QCOMPARE(fehler.isEmpty() ? ergebnis : fehler.section(u':', 0, 0), flags);
    }

    void worte_data()
    {
        QTest::addColumn<const Werteliste *>("liste");
        QTest::addColumn<QString>("worte");
        QTest::addColumn<QString>("flags"); // or the error
        QTest::newRow("eins") << &WL_Licht << u"sonnig"_s << u"100"_s;
        QTest::newRow("mehrere") << &WL_Licht << u"schattig, sonnig"_s << u"101"_s;
        QTest::newRow("ohne Abstand") << &WL_Licht << u"sonnig,halbschattig,schattig"_s << u"111"_s;
        QTest::newRow("Komma im Wort") << &WL_ApSchPunkt << u"veränderlich, je nach Lage"_s << u"00000000001000000000000000"_s;
        QTest::newRow("Kommas in zwei Worten") << &WL_ApSchPunkt << u"fein, veränderlich, je nach Fruchtlage, oval, veränderlich, je nach Lage"_s
                                               << u"00000010001000011000000000"_s;
        QTest::newRow("Komma in Zahlen") << &WL_GeGroesse << u"Normalstrauch (1,5-3 m), Kleinstrauch (0,5-1,5 m)"_s << u"00001100"_s;
        QTest::newRow("Komma vorn") << &WL_FhSymbolik << u"Grabbeet, eigtl. Grab (GB), GB-Vase"_s << u"1000000100000000"_s;
        QTest::newRow("Rand im Wort") << &WL_ObFrufor << u"hochgebaut, oval"_s << u"0000001000000000010000000"_s;
        QTest::newRow("doppelt belegt: das erste") << &WL_GeLaubfarbe << u"graugrün"_s << u"0000000100000"_s;
        QTest::newRow("unbekannt") << &WL_Licht << u"sonnig, hell"_s << u"unbekanntes Wort \"hell\""_s;
        QTest::newRow("andere Schreibung") << &WL_Licht << u"Sonnig"_s << u"unbekanntes Wort \"Sonnig\""_s;
        QTest::newRow("halbes Wort") << &WL_ApSchPunkt << u"veränderlich"_s << u"unbekanntes Wort \"veränderlich\""_s;
        QTest::newRow("leerer Teil") << &WL_Licht << u"sonnig,, schattig"_s << u"unbekanntes Wort \"\""_s;
        QTest::newRow("leer") << &WL_Licht << u""_s << u"unbekanntes Wort \"\""_s;
        QTest::newRow("doppelt") << &WL_Licht << u"sonnig, schattig, sonnig"_s << u"Wort \"sonnig\" steht doppelt"_s;
    }
    void worte()
    {
        QFETCH(const Werteliste *, liste);
        QFETCH(QString, worte);
        QFETCH(QString, flags);
        QString ergebnis;
        const QString fehler = fehlerVon([&] { ergebnis = Pflanzendaten::flagsAus(worte, *liste); });
        QCOMPARE(fehler.isEmpty() ? ergebnis : fehler, flags);
    }

    /// One word is its number; a second one is refused, whatever it is.
    void nummer()
    {
        for (const Werteliste *liste : {&WL_Fruchtfarbe, &WL_Bluetenfarbe})
            for (int p = 1; p <= liste->anzahl(); ++p)
                QCOMPARE(Pflanzendaten::nummerAus(liste->wort(p).toString(), *liste), QString::number(p));
        const auto fehler = [](const QString &worte) { return fehlerVon([&] { Pflanzendaten::nummerAus(worte, WL_Fruchtfarbe); }); };
        QCOMPARE(fehler(u"rot, gelb"_s), u"mehr als ein Wort: \"rot, gelb\""_s);
        QVERIFY(fehler(u"rötlich"_s).contains(u"rötlich"));
        QVERIFY(!fehler(QString()).isEmpty());
    }

    /// Every word of every column alone gives its own place, or an earlier row with the same word.
    void jedesWort()
    {
        for (const Tabelle &tabelle : schema::haupttabellen())
            for (const Spalte &spalte : tabelle.spalten) {
                if (!spalte.liste)
                    continue;
                for (int p = 1; p <= spalte.liste->anzahl(); ++p) {
                    const QString flags = Pflanzendaten::flagsAus(spalte.liste->wort(p).toString(), *spalte.liste);
                    const qsizetype stelle = flags.indexOf(u'1') + 1;
                    QCOMPARE(flags.size(), spalte.liste->anzahl());
                    QCOMPARE(flags.count(u'1'), 1);
                    QVERIFY2(stelle == p || spalte.liste->wort(int(stelle)) == spalte.liste->wort(p), spalte.name);
                }
            }
    }

    void aufnahme()
    {
        const QString text =
            vorspann + pflanze
            + u"DTNAM: Schönmalve\nFAMILIE: Malvaceae\nQuelle: Zander\nHK: S-Am.\nFARBEN: weiß, gelb\nBLUEHZEIT: 11-2\nMINHOEHE: 0,35\nMAXHOEHE: "
              u"2\nGIFTIG: nein\n"
              "UNSCHEINBA: ja\nTEMPMIN: -5\nSORTEN: eins\n+ zwei\nSYN_BOT: Callianthe\nSYN_BOT: Sida\nSYN_DT: Zimmerahorn\nAusbildung: bei "
              "Zierpflanzengärtnern\n\n"
              "ARTNR: 12\nBOT_NAME: Ähre\nbewertung: 9\n\n%rec: Apfel\n\nARTNR: 1\nBOT_NAME: Abutilon\nliteratur1: 1, 20\nbewertung: 1\n"_s;
        QCOMPARE(bauen(text), QString());
        const std::shared_ptr<Datenbank> db = Datenbank::OpenDatabase(ziel());
        Recordset satz(db, u"SELECT * FROM Topfpfl ORDER BY BOT_NAME"_s);
        QCOMPARE(satz.RecordCount(), 2);
        // clang-format off
        const std::pair<const char *, QString> felder[] = {
            {"ARTNR", u"1"_s}, {"BOT_NAME", u"Abutilon"_s}, {"DTNAM", u"Schönmalve"_s}, {"FAMILIE", u"7"_s}, {"Quelle", u"z"_s}, {"HK", u"S-Am."_s},
            {"FARBEN", u"1100000000000"_s}, {"BLUEHZEIT", u"110000000011"_s}, {"MINHOEHE", u"0.35"_s}, {"MAXHOEHE", u"2"_s}, {"GIFTIG", u"False"_s},
            {"UNSCHEINBA", u"True"_s}, {"TEMPMIN", u"-5"_s}, {"SORTEN", u"eins\nzwei"_s}, {"Ausbildung", u"100000"_s}, {"bewertung", u"5"_s}, {"Benu_Aenderung", u"1"_s}};
        // clang-format on
        for (const auto &[feld, wert] : felder)
            QCOMPARE(satz.Fields(QString::fromLatin1(feld)).Text(), wert);
        for (const char *feld : {"SCHADEN", "FRUCHTFARB", "TEMPMAX", "benu_bemerkung", "benu_eigen"})
            QVERIFY2(satz.Fields(QString::fromLatin1(feld)).IsNull(), feld);
        QCOMPARE(werte(*db, u"SELECT ARTNR || SYN FROM Topfpfl_Synonyme_Botanisch ORDER BY rowid"_s), (QStringList{u"1Callianthe"_s, u"1Sida"_s}));
        QCOMPARE(werte(*db, u"SELECT ARTNR || SYN FROM Topfpfl_Synonyme_Deutsch"_s), QStringList{u"1Zimmerahorn"_s});
        QCOMPARE(werte(*db, u"SELECT literatur1 FROM Apfel"_s), QStringList{u"10000000000000000001"_s});
        QCOMPARE(werte(*db, u"SELECT FAMILIE || FAMNAME FROM Familien"_s), QStringList{u"7Malvaceae (Malvengewächse)"_s});
        QCOMPARE(werte(*db, u"SELECT BotName FROM Topfpfl_Bilder ORDER BY ARTNR"_s), (QStringList{u"Abutilon"_s, u"Ähre"_s}));
        QCOMPARE(zahl(*db, u"SELECT count(*) FROM Namen_Benutzer_Optionen"_s), 5);
    }

    void ohneAbschlussBleibtNichts()
    {
        {
            Pflanzendaten daten(ziel());
            for (const RecSatz &satz : recLesen((vorspann + pflanze).toUtf8(), u"probe.rec"_s))
                daten.aufnehmen(satz);
            QCOMPARE(daten.anzahl(u"Topfpfl"), 1);
            QCOMPARE(daten.anzahl(u"Apfel"), 0);
        }
        QCOMPARE(zahl(*Datenbank::OpenDatabase(ziel()), u"SELECT count(*) FROM Topfpfl"_s), 0);
    }

    void fehler_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("meldung");
        // A line behind a sound plant.
        const auto zeile = [](const char *feld, const QString &meldung) {
            QTest::newRow(feld) << vorspann + pflanze + QString::fromUtf8(feld) + u'\n' << u"probe.rec:11: "_s + meldung;
        };
        zeile("FARBE: gelb", u"unbekanntes Feld \"FARBE\""_s);
        zeile("stacheln: ja", u"unbekanntes Feld \"stacheln\""_s);
        zeile("FARBEN: gelb, lindgrün", u"FARBEN: unbekanntes Wort \"lindgrün\""_s);
        zeile("FARBEN: gelb, gelb", u"FARBEN: Wort \"gelb\" steht doppelt"_s);
        zeile("FAMILIE: Palmaceae", u"FAMILIE: unbekannte Familie \"Palmaceae\""_s);
        zeile("FAMILIE: 7", u"FAMILIE: unbekannte Familie \"7\""_s);
        zeile("BLUEHZEIT: 3-13", u"BLUEHZEIT: kein Monat: \"3-13\""_s);
        zeile("ANGEBOTSZ: Frühling", u"ANGEBOTSZ: kein Monat: \"Frühling\""_s);
        zeile("MINHOEHE: hoch", u"MINHOEHE: keine Zahl: \"hoch\""_s);
        zeile("MINHOEHE: 0,5 m", u"MINHOEHE: keine Zahl: \"0,5 m\""_s);
        zeile("TEMPMIN: 1.000,5", u"TEMPMIN: keine Zahl: \"1.000,5\""_s);
        zeile("GIFTIG: Ja", u"GIFTIG: weder ja noch nein: \"Ja\""_s);
        zeile("UNSCHEINBA: 1", u"UNSCHEINBA: weder ja noch nein: \"1\""_s);
        zeile("Quelle: z", u"Quelle: unbekannte Quelle \"z\""_s);
        zeile("HK:", u"HK ist leer"_s);
        zeile("SYN_DT: ", u"SYN_DT ist leer"_s);
        zeile("BOT_NAME: noch einmal", u"BOT_NAME steht doppelt"_s);
        zeile("bot_name: noch einmal", u"bot_name steht doppelt"_s);
        zeile("Benu_Aenderung: 2", u"Benu_Aenderung gehört dem Benutzer"_s);
        zeile("benu_bemerkung: schön", u"benu_bemerkung gehört dem Benutzer"_s);
        zeile("benu_eigen: 1", u"benu_eigen gehört dem Benutzer"_s);
        zeile("ohne Doppelpunkt", u"keine Feldzeile: ohne Doppelpunkt"_s);
        for (const auto &[min, max] :
             {std::pair("MINHOEHE", "MAXHOEHE"), std::pair("BLMINH", "BLMAXH"), std::pair("LICHTMIN", "LICHTMAX"), std::pair("TEMPMIN", "TEMPMAX")}) {
            const QString unten = QString::fromLatin1(min), oben = QString::fromLatin1(max);
            QTest::addRow("%s über %s", min, max) << vorspann + pflanze + u"%1: 2,5\n%2: 2\n"_s.arg(unten, oben)
                                                  << u"probe.rec:11: %1 liegt über %2"_s.arg(unten, oben);
            QTest::addRow("%s nach %s", min, max) << vorspann + pflanze + u"%2: -2\n%1: -1\n"_s.arg(unten, oben)
                                                  << u"probe.rec:12: %1 liegt über %2"_s.arg(unten, oben);
            QTest::addRow("%s gleich %s", min, max) << vorspann + pflanze + u"%1: 2\n%2: 2,0\n"_s.arg(unten, oben) << QString();
            QTest::addRow("nur %s", min) << vorspann + pflanze + u"%1: 2\n"_s.arg(unten) << QString();
        }
        // A plant of its own from line 8 on.
        const auto satz = [](const char *name, const char *text, const QString &meldung) {
            QTest::newRow(name) << vorspann + QString::fromUtf8(text) << meldung;
        };
        satz("keine Bewertung", "ARTNR: 1\nBOT_NAME: A\n", u"probe.rec:8: bewertung fehlt"_s);
        satz("keine Nummer", "BOT_NAME: A\nbewertung: 5\n", u"probe.rec:8: ARTNR fehlt"_s);
        satz("kein Name", "ARTNR: 1\nbewertung: 5\n", u"probe.rec:8: BOT_NAME fehlt"_s);
        for (const char *falsch : {"0", "10", "-1", "5,5", "gut"})
            QTest::addRow("Bewertung %s", falsch) << vorspann + u"ARTNR: 1\nBOT_NAME: A\nbewertung: %1\n"_s.arg(QLatin1String(falsch))
                                                  << u"probe.rec:10: bewertung: unzulässige Nummer: \"%1\""_s.arg(QLatin1String(falsch));
        for (const char *falsch : {"0", "-1", "32768", "1a", "1,0", "99999999999999999999"})
            QTest::addRow("Nummer %s", falsch) << vorspann + u"ARTNR: %1\nBOT_NAME: A\nbewertung: 5\n"_s.arg(QLatin1String(falsch))
                                               << u"probe.rec:8: ARTNR: unzulässige Nummer: \"%1\""_s.arg(QLatin1String(falsch));
        satz("größte Nummer", "ARTNR: 32767\nBOT_NAME: A\nbewertung: 5\n", QString());
        satz("Nummer doppelt", "ARTNR: 4\nBOT_NAME: A\nbewertung: 5\n\nBOT_NAME: B\nARTNR: 4\nbewertung: 5\n",
             u"probe.rec:13: Nummer 4 steht doppelt"_s);
        satz("Name doppelt", "ARTNR: 4\nBOT_NAME: A\nbewertung: 5\n\nARTNR: 5\nBOT_NAME: A\nbewertung: 5\n",
             u"probe.rec:12: Pflanze A steht doppelt"_s);
        satz("Synonyme eines Apfels", "%rec: Apfel\nARTNR: 1\nBOT_NAME: A\nbewertung: 5\nSYN_DT: B\n",
             u"probe.rec:9: Apfel kennt keine Synonymtabelle"_s);
        satz("kein Werk", "%rec: Apfel\nARTNR: 1\nliteratur1: 1, 21\n", u"probe.rec:10: literatur1: kein Werk: \"21\""_s);
        satz("Werk doppelt", "%rec: Apfel\nARTNR: 1\nliteratur1: 1, 3, 1\n", u"probe.rec:10: literatur1: Werk 1 steht doppelt"_s);
        satz("Satzart", "%rec: Palmen\nARTNR: 1\n", u"probe.rec:9: unbekannte Satzart \"Palmen\""_s);
        satz("Fortsetzung ohne Feld", "+ weiter\n", u"probe.rec:8: Fortsetzung ohne Feld"_s);
        QTest::newRow("ohne Satzart") << pflanze << u"probe.rec:1: unbekannte Satzart \"\""_s;
        const auto familie = [](const char *name, const char *text, const QString &meldung) {
            QTest::newRow(name) << u"%rec: Familien\n"_s + QString::fromUtf8(text) << meldung;
        };
        const QString form = u"probe.rec:2: eine Familie hat FAMILIE (Nummer), FAMNAME und sonst höchstens GATTUNGEN"_s;
        familie("Familie ohne Nummer", "FAMNAME: Malvaceae\n", form);
        familie("Familie ohne Namen", "FAMILIE: 1\n", form);
        familie("Familie mit Wort", "FAMILIE: eins\nFAMNAME: Malvaceae\n", form);
        familie("Familie mit mehr", "FAMILIE: 1\nFAMNAME: Malvaceae\nHK: Eur.\n", form);
        familie("Familiennummer doppelt", "FAMILIE: 1\nFAMNAME: A\n\nFAMILIE: 1\nFAMNAME: B\n",
                u"probe.rec:5: Familie B oder ihre Nummer 1 steht doppelt"_s);
        familie("Familienname doppelt", "FAMILIE: 1\nFAMNAME: A (eins)\n\nFAMILIE: 2\nFAMNAME: A (zwei)\n",
                u"probe.rec:5: Familie A oder ihre Nummer 2 steht doppelt"_s);
        QTest::newRow("Spanne kleingeschrieben") << vorspann + pflanze + u"minhoehe: 2\nmaxhoehe: 1\n"_s
                                                 << u"probe.rec:11: MINHOEHE liegt über MAXHOEHE"_s;
        QTest::newRow("heil") << vorspann + pflanze << QString();
        QTest::newRow("gleiche Nummer in zwei Tabellen") << vorspann + pflanze + u"\n%rec: Apfel\n"_s + pflanze << QString();
    }
    void fehler()
    {
        QFETCH(QString, text);
        QTEST(bauen(text), "meldung");
    }

private:
    QString ziel() const { return ordner_->filePath(u"neu.mdb"_s); }
    QString bauen(const QString &text) const
    {
        return fehlerVon([&] {
            Pflanzendaten daten(ziel(), kleinsteFormen(*ordner_));
            for (const RecSatz &satz : recLesen(text.toUtf8(), u"probe.rec"_s))
                daten.aufnehmen(satz);
            daten.abschliessen();
        });
    }

    std::optional<QTemporaryDir> ordner_;
};

FLOX_TEST(tst_pflanzendaten, TestPflanzendaten)
#include "tst_pflanzendaten.moc"
