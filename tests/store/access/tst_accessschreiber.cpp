#include "Accesshilfen.h"
#include "Strukturpruefung.h"

#include "store/Fehler.h"
#include "tests/store/Datenhilfen.h"
#include "tests/Testprogramm.h"

#include <QCryptographicHash>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <QTest>

#include <cerrno>

using namespace Qt::StringLiterals;
using namespace accessdatei;
using accessprobe::datum;
using accessprobe::ganz;
using accessprobe::komma;
using accessprobe::leer;
using accessprobe::text;
using accessprobe::wahr;

namespace {

/// A table of its number, a text, a memo, a number, a day and a boolean.
Tabellenform gemischt(const QString &name)
{
    return {name,
            {{u"ARTNR"_s, Typ::Lang, 0},
             {u"BOT_NAME"_s, Typ::Text, 50},
             {u"BEMERKUNG"_s, Typ::Memo, 0},
             {u"HOEHE"_s, Typ::Doppelt, 0},
             {u"Tag"_s, Typ::Datum, 0},
             {u"GIFTIG"_s, Typ::Wahrheit, 0}},
            0};
}

/// Text of `laenge` characters without a period.
std::string langerText(size_t laenge, uint32_t saat, bool mitUmlauten)
{
    std::string text;
    for (size_t i = 0; i < laenge; ++i) {
        saat = saat * 1664525u + 1013904223u;
        if (mitUmlauten && saat >> 28 == 0)
            text += "Ω";
        else
            text += char('a' + (saat >> 24) % 26);
    }
    return text;
}

} // namespace

/* Files written by the program, read back by its own reader, by another one and by a check of every page. */
class TestAccessschreiber : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        ordner_.emplace();
        QVERIFY(ordner_->isValid());
        pfad_ = ordner_->filePath(u"probe.mdb"_s);
    }

    void leereDatei()
    {
        Schreiber(pfad_).abschliessen();
        // The first page is the engine's own, byte for byte.
        QCOMPARE(QCryptographicHash::hash(inhalt(pfad_).left(4096), QCryptographicHash::Sha256).toHex(),
                 QByteArray("27c4202adfe1877f884c02df266d1e5634598ab023d9e2cb332f8e2d88e437bd"));
        gutGeschrieben();
        QVERIFY(Leser::ausDatei(pfad_)->tabellen().empty());
    }

    void jedeArtVonWert()
    {
        Schreiber schreiber(pfad_);
        schreiber.beginnen(gemischt(u"Topfpfl"_s));
        const std::string umlaute = "Ährige Äsche, süß 'ß' \xE2\x82\xAC", jenseits = "a\xF0\x9F\x8C\xB1z";
        const std::vector<std::vector<Wert>> zeilen{
            {ganz(1), text("Abies alba"), text("kurz"), komma(0.25), datum(37986), wahr(true)},
            {ganz(2), text(""), text(""), komma(-1e300), datum(37986.5), wahr(false)},
            {ganz(3), leer, leer, leer, leer, wahr(false)},
            {ganz(-7), text(umlaute), text(umlaute), komma(0), datum(-1.25), wahr(true)},
            {ganz(2147483647), text(jenseits), text(jenseits), komma(1e-7), datum(2.0), wahr(true)},
            {ganz(-2147483648LL), text("ab"), leer, komma(123456789.125), leer, wahr(true)},
        };
        for (const std::vector<Wert> &zeile : zeilen)
            schreiber.zeile(zeile);
        schreiber.beenden();
        schreiber.abschliessen();
        gutGeschrieben();
        const auto leser = Leser::ausDatei(pfad_);
        const QList<QStringList> gelesen = accessprobe::zeilen(*leser, u"TOPFPFL"_s);
        QCOMPARE(gelesen.size(), qsizetype(zeilen.size()));
        for (size_t i = 0; i < zeilen.size(); ++i)
            for (size_t k = 0; k < zeilen[i].size(); ++k)
                QCOMPARE(gelesen[qsizetype(i)][qsizetype(k)], accessprobe::alsText(zeilen[i][k]));
        QCOMPARE(gelesen[1][1], u"\"\""_s);
        QCOMPARE(gelesen[2][1], u"null"_s);
    }

    /// The other reader ends a text there.
    void nullzeichen()
    {
        Schreiber schreiber(pfad_);
        schreiber.beginnen(gemischt(u"Topfpfl"_s));
        const std::string mitNull("abc\0def", 7);
        const Wert zeile[] = {ganz(1), text(mitNull), text(mitNull), leer, leer, wahr(true)};
        schreiber.zeile(zeile);
        schreiber.beenden();
        schreiber.abschliessen();
        QCOMPARE(strukturPruefen(pfad_).fehler.join(u'|'), QString());
        const auto leser = Leser::ausDatei(pfad_);
        (void)leser->durchlaufen(leser->tabellen()[0], [&](Zeile &gelesen) {
            [&] {
                QVERIFY(gelesen.wert(1).text == mitNull);
                QVERIFY(gelesen.wert(2).text == mitNull);
                }();
            return true;
        });
    }

    void langeTexte_data()
    {
        QTest::addColumn<int>("laenge");
        QTest::addColumn<bool>("umlaute");
        // The bounds between a value in its row, in a row of its own and in a chain, in bytes: 64 and 4,076.
        for (const int laenge : {1, 2, 3, 31, 32, 33, 61, 62, 63, 64, 65, 1023, 1024, 1025, 2037, 2038, 2039, 4072, 4075, 4076, 8144, 60000})
            for (const bool umlaute : {false, true})
                QTest::addRow("%d %s", laenge, umlaute ? "mit" : "ohne") << laenge << umlaute;
    }
    void langeTexte()
    {
        QFETCH(int, laenge);
        QFETCH(bool, umlaute);
        Schreiber schreiber(pfad_);
        schreiber.beginnen({u"Notizen"_s, {{u"A"_s, Typ::Memo, 0}, {u"B"_s, Typ::Memo, 0}}, -1});
        const std::string a = langerText(size_t(laenge), 1, umlaute), b = langerText(size_t(laenge), 2, umlaute);
        const Wert zeile[] = {text(a), text(b)}, nurEiner[] = {leer, text(a)};
        schreiber.zeile(zeile);
        schreiber.zeile(nurEiner);
        schreiber.zeile(zeile);
        schreiber.beenden();
        schreiber.abschliessen();
        gutGeschrieben();
        const auto leser = Leser::ausDatei(pfad_);
        const QString erster = u'"' + QString::fromStdString(a) + u'"', zweiter = u'"' + QString::fromStdString(b) + u'"';
        QVERIFY(accessprobe::zeilen(*leser, u"Notizen"_s) == (QList<QStringList>{{erster, zweiter}, {u"null"_s, erster}, {erster, zweiter}}));
    }

    void zweihunderttausendZeilen()
    {
        constexpr int anzahl = 200000;
        Schreiber schreiber(pfad_);
        schreiber.beginnen({u"Viele"_s, {{u"ARTNR"_s, Typ::Lang, 0}, {u"NAME"_s, Typ::Text, 30}}, 0});
        for (int i = 0; i < anzahl; ++i) {
            // Not in the order of their numbers.
            const int nummer = int(qint64(i) * 7919 % anzahl) - anzahl / 2;
            const std::string name = "Pflanze " + std::to_string(nummer);
            const Wert zeile[] = {ganz(nummer), text(name)};
            schreiber.zeile(zeile);
        }
        schreiber.beenden();
        schreiber.abschliessen();
        const Strukturbefund befund = strukturPruefen(pfad_);
        QCOMPARE(befund.fehler.join(u'|'), QString());
        QCOMPARE(befund.indexebenen, 3);
        const auto leser = Leser::ausDatei(pfad_);
        qint64 summe = 0, falsch = 0;
        const Durchgang durchgang = leser->durchlaufen(*leser->tabelle(u"Viele"), [&](Zeile &zeile) {
            const int64_t nummer = zeile.wert(0).ganz;
            summe += nummer;
            falsch += zeile.wert(1).text != "Pflanze " + std::to_string(nummer);
            return true;
        });
        QCOMPARE(durchgang.zeilen, anzahl);
        QCOMPARE(falsch, 0);
        QCOMPARE(summe, -qint64(anzahl) / 2);
        QCOMPARE(accessprobe::fremdeZeilen(pfad_, u"Viele"_s).size(), anzahl);
    }

    void zweihundertfuenfundfuenfzigSpalten_data()
    {
        QTest::addColumn<int>("typ");
        QTest::newRow("Texte") << int(Typ::Text);
        QTest::newRow("Memos") << int(Typ::Memo);
        QTest::newRow("Zahlen") << int(Typ::Doppelt);
        QTest::newRow("Wahrheiten") << int(Typ::Wahrheit);
    }
    void zweihundertfuenfundfuenfzigSpalten()
    {
        QFETCH(int, typ);
        Tabellenform form{u"Breit"_s, {}, -1};
        for (int i = 0; i < 255; ++i)
            form.spalten.push_back({u"Spalte%1"_s.arg(i), Typ(typ), 10});
        Schreiber schreiber(pfad_);
        schreiber.beginnen(form);
        std::vector<std::string> texte;
        for (int i = 0; i < 255; ++i)
            texte.push_back(std::to_string(i * i) + (Typ(typ) == Typ::Memo ? " mit einem Zusatz, der ihn verlängert" : ""));
        std::vector<Wert> werte;
        for (int i = 0; i < 255; ++i)
            werte.push_back(Typ(typ) == Typ::Doppelt ? komma(i / 8.0) : Typ(typ) == Typ::Wahrheit ? wahr(i % 3 == 0) : text(texte[size_t(i)]));
        for (int i = 0; i < 20; ++i)
            schreiber.zeile(werte);
        schreiber.beenden();
        schreiber.abschliessen();
        gutGeschrieben();
        const auto leser = Leser::ausDatei(pfad_);
        const QList<QStringList> gelesen = accessprobe::zeilen(*leser, u"Breit"_s);
        QCOMPARE(gelesen.size(), 20);
        for (int i = 0; i < 255; ++i)
            QCOMPARE(gelesen[19][i], accessprobe::alsText(werte[size_t(i)]));
        form.spalten.push_back({u"eineZuViel"_s, Typ::Lang, 0});
        Schreiber anderer(ordner_->filePath(u"zu breit.mdb"_s));
        QVERIFY(fehlerVon([&] { anderer.beginnen(form); }).contains(u"'Breit'"_s));
    }

    void wasNichtPasst()
    {
        Schreiber schreiber(pfad_);
        schreiber.beginnen({u"Eng"_s, {{u"A"_s, Typ::Text, 5}, {u"B"_s, Typ::Text, 255}, {u"C"_s, Typ::Memo, 0}}, -1});
        const auto stelle = [&](const std::vector<Wert> &zeile) {
            try {
                schreiber.zeile(zeile);
            } catch (const PasstNicht &fehler) {
                return fehler.spalte;
            }
            return 99;
        };
        const std::string lang(256, 'x'), memo(5000, 'y');
        QCOMPARE(stelle({text("12345"), text("kurz"), text(memo)}), 99);
        QCOMPARE(stelle({text("123456"), leer, text(memo)}), 0);
        QCOMPARE(stelle({text("fünf5"), leer, leer}), 99);
        QCOMPARE(stelle({text("vierü6"), leer, leer}), 0);
        QCOMPARE(stelle({text("a\xF0\x9F\x8C\xB1zzz"), leer, leer}), 0); // a character of two units
        QCOMPARE(stelle({leer, text(lang), text(memo)}), 1);
        schreiber.beenden();
        Tabellenform breit{u"Breit"_s, {}, -1};
        for (int i = 0; i < 20; ++i)
            breit.spalten.push_back({u"Spalte%1"_s.arg(i), Typ::Text, 255});
        schreiber.beginnen(breit);
        const std::string griechisch = langerText(230, 5, true);
        QCOMPARE(stelle(std::vector<Wert>(20, text(griechisch))), -1);
        QCOMPARE(stelle(std::vector<Wert>(20, text("passt"))), 99);
        schreiber.beenden();
        schreiber.abschliessen();
        gutGeschrieben();
        const auto leser = Leser::ausDatei(pfad_);
        QCOMPARE(accessprobe::zeilen(*leser, u"Eng"_s).size(), 2);
        QCOMPARE(accessprobe::zeilen(*leser, u"Breit"_s).size(), 1);
    }

    void verworfeneTabelle()
    {
        Schreiber schreiber(pfad_);
        const auto fuellen = [&](int zeilen) {
            const std::string memo = langerText(9000, 3, true);
            for (int i = 0; i < zeilen; ++i) {
                const Wert zeile[] = {ganz(i), text("x"), text(memo), leer, leer, wahr(true)};
                schreiber.zeile(zeile);
            }
        };
        schreiber.beginnen(gemischt(u"Erste"_s));
        fuellen(3);
        schreiber.beenden();
        schreiber.beginnen(gemischt(u"Zweite"_s));
        fuellen(500);
        schreiber.verwerfen();
        schreiber.beginnen(gemischt(u"Zweite"_s));
        fuellen(5);
        schreiber.beenden();
        schreiber.abschliessen();
        gutGeschrieben();
        const auto leser = Leser::ausDatei(pfad_);
        QCOMPARE(leser->tabellen().size(), 2u);
        QCOMPARE(accessprobe::zeilen(*leser, u"Zweite"_s).size(), 5);
        QVERIFY2(QFileInfo(pfad_).size() < 400000, "What was begun and given up is cut off.");
    }

    void doppelteNummer()
    {
        Schreiber schreiber(pfad_);
        schreiber.beginnen({u"Obst"_s, {{u"ARTNR"_s, Typ::Lang, 0}}, 0});
        for (const int nummer : {1, 2, 1}) {
            const Wert zeile[] = {ganz(nummer)};
            schreiber.zeile(zeile);
        }
        QCOMPARE(fehlerVon([&] { schreiber.beenden(); }), u"In der Tabelle 'Obst' gibt es eine Nummer mehrfach."_s);
    }

    void namen_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<bool>("moeglich");
        QTest::newRow("einfach") << u"Namen_Benutzer_Optionen"_s << true;
        QTest::newRow("mit Strich") << u"BILD1-G"_s << true;
        QTest::newRow("Umlaut") << u"Höhe"_s << true;
        QTest::newRow("leer") << u""_s << false;
        QTest::newRow("Punkt") << u"a.b"_s << false;
        QTest::newRow("Klammer") << u"a[b"_s << false;
        QTest::newRow("Leerzeichen vorn") << u" a"_s << false;
        QTest::newRow("Steuerzeichen") << u"a\tb"_s << false;
        QTest::newRow("64 Zeichen") << QString(64, u'x') << true;
        QTest::newRow("65 Zeichen") << QString(65, u'x') << false;
    }
    void namen()
    {
        QFETCH(QString, name);
        QTEST(gueltigerName(name), "moeglich");
        Schreiber schreiber(pfad_);
        const QString befund = fehlerVon([&] { schreiber.beginnen({u"Tabelle"_s, {{name, Typ::Lang, 0}}, -1}); });
        QTEST(befund.isEmpty(), "moeglich");
        if (!befund.isEmpty())
            return;
        schreiber.beenden();
        schreiber.abschliessen();
        gutGeschrieben();
        QCOMPARE(Leser::ausDatei(pfad_)->tabellen()[0].spalten[0].name, name);
    }

    /// So many tables that the catalog's own index has two levels and the map of all pages is not alone on its page.
    void vieleTabellen()
    {
        Schreiber schreiber(pfad_);
        for (int i = 0; i < 300; ++i) {
            schreiber.beginnen(gemischt(u"Tabelle %1 mit_Namen"_s.arg(i)));
            const Wert zeile[] = {ganz(i), text("x"), text("y"), leer, leer, wahr(true)};
            schreiber.zeile(zeile);
            schreiber.beenden();
        }
        schreiber.abschliessen();
        gutGeschrieben();
        QCOMPARE(Leser::ausDatei(pfad_)->tabellen().size(), 300u);
    }

    /// Beyond 128 MB the map of all pages has pages of its own.
    void grosseDatei()
    {
        Schreiber schreiber(pfad_);
        schreiber.beginnen({u"Gross"_s, {{u"ARTNR"_s, Typ::Lang, 0}, {u"TEXT"_s, Typ::Memo, 0}}, 0});
        const std::string memo = langerText(60000, 9, false);
        constexpr int anzahl = 1120;
        for (int i = 0; i < anzahl; ++i) {
            const Wert zeile[] = {ganz(i), text(memo)};
            schreiber.zeile(zeile);
        }
        schreiber.beenden();
        schreiber.abschliessen();
        QVERIFY(QFileInfo(pfad_).size() > qint64(32736) * 4096);
        QCOMPARE(strukturPruefen(pfad_).fehler.join(u'|'), QString());
        const auto leser = Leser::ausDatei(pfad_);
        qint64 gleiche = 0;
        (void)leser->durchlaufen(*leser->tabelle(u"Gross"), [&](Zeile &zeile) { return (gleiche += zeile.wert(1).text == memo) > 0; });
        QCOMPARE(gleiche, anzahl);
    }

    void vollerDatentraeger()
    {
        const Dateigrenze grenze(100000);
        int nummer = -1;
        try {
            Schreiber schreiber(pfad_);
            schreiber.beginnen(gemischt(u"Gross"_s));
            for (int i = 0; i < 10000; ++i) {
                const Wert zeile[] = {ganz(i), text("x"), text("y"), leer, leer, wahr(true)};
                schreiber.zeile(zeile);
            }
        } catch (const Schreibfehler &fehler) {
            nummer = fehler.nummer;
        }
        QCOMPARE(nummer, EFBIG);
    }

    void ordnerFehlt()
    {
        int nummer = -1;
        try {
            Schreiber schreiber(ordner_->filePath(u"fehlt/probe.mdb"_s));
        } catch (const Schreibfehler &fehler) {
            nummer = fehler.nummer;
        }
        QCOMPARE(nummer, ENOENT);
    }

private:
    /// The other reader tells the same, and every page is as it must be.
    void gutGeschrieben()
    {
        QCOMPARE(strukturPruefen(pfad_).fehler.join(u'|'), QString());
        try {
            QCOMPARE(accessprobe::unterschied(pfad_), QString());
        } catch (const Fehler &fehler) {
            QFAIL(fehler.what());
        }
    }

    std::optional<QTemporaryDir> ordner_;
    QString pfad_;
};

FLOX_TEST(tst_accessschreiber, TestAccessschreiber)
#include "tst_accessschreiber.moc"
