#include "filters/Filterpruefung.h"
#include "tests/Testprogramm.h"

#include <QTest>

using namespace Qt::StringLiterals;

/* The kinds of test on tables made for them: booleans by item, equality, words in a text, a field's way of writing. */

namespace {

constexpr const char *wahrheitsfelder[] = {"schnitt", "heimisch", "giftig"};
constexpr QStringView markenworte[] = {u"Schnitt", u"heimisch", u"giftig"};
constexpr QStringView wuchs[] = {u"kugelförmig", u"Überhängend", u"horstig"};

// clang-format off
constexpr Kriterium alleWahr{.pruefung = Pruefung::AlleWahr, .titel = u"Marken", .a = {.art = Steuerung::Kaestchen, .control = "chkA", .anzahl = 3, .zeile = 1, .worte = markenworte},
                             .felder = wahrheitsfelder};
constexpr Kriterium einsWahr{.pruefung = Pruefung::EinsWahr, .titel = u"Marken", .a = {.art = Steuerung::Kaestchen, .control = "chkA", .anzahl = 3, .zeile = 1, .worte = markenworte},
                             .felder = wahrheitsfelder};
constexpr Kriterium gleichesWort{.pruefung = Pruefung::Gleich, .titel = u"Art", .a = {.art = Steuerung::Liste, .control = "cboA", .zeile = 1, .alle = u"-- Alle --"}, .feld = "DTNAM"};
constexpr Kriterium listenwort{.pruefung = Pruefung::WortImText, .titel = u"Lager", .a = {.art = Steuerung::Liste, .control = "cboA", .zeile = 1, .alle = u"-- Alle --"}, .feld = "sonstiges"};
constexpr Kriterium kaestchenwort{.pruefung = Pruefung::WortImText, .titel = u"Wuchs", .a = {.art = Steuerung::Kaestchen, .control = "chkA", .anzahl = 3, .zeile = 1, .worte = wuchs}, .feld = "wuchsform"};
constexpr Kriterium keine{.pruefung = Pruefung::Keine, .titel = u"Kennziffer", .a = {.control = "txtA", .zeile = 1}, .feld = "kennziffer"};
constexpr Kriterium art{.pruefung = Pruefung::Flags, .titel = u"Art", .a = {.art = Steuerung::Kaestchen, .control = "chkA", .anzahl = 10, .zeile = 1}, .feld = "pflanzart"};
constexpr Kriterium farbe{.pruefung = Pruefung::Flags, .titel = u"Farbe", .a = {.art = Steuerung::Kaestchen, .control = "chkA", .anzahl = 14, .zeile = 1}, .feld = "fruchtfarb"};
constexpr Kriterium nurZahl{.pruefung = Pruefung::Flags, .titel = u"Farbe", .a = {.art = Steuerung::Kaestchen, .control = "chkA", .anzahl = 14, .zeile = 1}, .feld = "fruchtfarb",
                            .liest = Schreibweise::Zahl};
// clang-format on

} // namespace

Q_DECLARE_METATYPE(const Kriterium *)

class TestPruefungsarten : public QObject
{
    Q_OBJECT

private slots:
    void passt_data();
    void passt();
    void tabellen_data();
    void tabellen();

private:
    static Filterbeschreibung beschreibung(std::span<const Kriterium> kriterien)
    {
        return {.sparte = Sparte::Stauden, .reiter = {}, .kriterien = kriterien, .zeilen = 3, .ladeFilter = {}, .speicherFilter = {}};
    }
};

void TestPruefungsarten::passt_data()
{
    QTest::addColumn<const Kriterium *>("kriterium");
    QTest::addColumn<QList<int>>("gewaehlt");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QStringList>("werte"); // of the fields that the test asks for, in the order of their items
    QTest::addColumn<bool>("aktiv");
    QTest::addColumn<bool>("ergebnis");
    const auto zeile = [](const char *name, const Kriterium &k, const QList<int> &gewaehlt, const QString &text, const QStringList &werte, bool aktiv,
                          bool ergebnis) { QTest::newRow(name) << &k << gewaehlt << text << werte << aktiv << ergebnis; };
    const QString ja = u"True"_s, nein = u"False"_s, alle = u"-- Alle --"_s;
    zeile("alle wahr: keines", alleWahr, {}, {}, {}, false, true);
    zeile("alle wahr: eines, ja", alleWahr, {1}, {}, {ja}, true, true);
    zeile("alle wahr: eines, nein", alleWahr, {1}, {}, {nein}, true, false);
    zeile("alle wahr: eines, leer", alleWahr, {1}, {}, {QString()}, true, false);
    zeile("alle wahr: zwei, beide", alleWahr, {0, 2}, {}, {ja, ja}, true, true);
    zeile("alle wahr: zwei, eines", alleWahr, {0, 2}, {}, {ja, nein}, true, false);
    zeile("alle wahr: alle gewählt schränken ein", alleWahr, {0, 1, 2}, {}, {ja, nein, ja}, true, false);
    zeile("eins wahr: zwei, eines", einsWahr, {0, 2}, {}, {nein, ja}, true, true);
    zeile("eins wahr: zwei, keines", einsWahr, {0, 2}, {}, {nein, nein}, true, false);
    zeile("eins wahr: alle gewählt", einsWahr, {0, 1, 2}, {}, {nein, nein, nein}, false, true);
    zeile("gleich: alle", gleichesWort, {}, alle, {u"Birne"_s}, false, true);
    zeile("gleich: ja", gleichesWort, {}, u"Birne"_s, {u"Birne"_s}, true, true);
    zeile("gleich: nicht der Anfang", gleichesWort, {}, u"Birne"_s, {u"Birnen"_s}, true, false);
    zeile("gleich: nicht die Schreibung", gleichesWort, {}, u"Birne"_s, {u"birne"_s}, true, false);
    zeile("Listenwort: alle", listenwort, {}, alle, {u""_s}, false, true);
    zeile("Listenwort: ja", listenwort, {}, u"Dezember"_s, {u"Oktober bis DEZEMBER"_s}, true, true);
    zeile("Listenwort: nein", listenwort, {}, u"Januar"_s, {u"Oktober bis Dezember"_s}, true, false);
    zeile("Kästchenwort: eines", kaestchenwort, {1}, {}, {u"breit, überhängend"_s}, true, true);
    zeile("Kästchenwort: zweites", kaestchenwort, {0, 1}, {}, {u"KUGELFÖRMIG"_s}, true, true);
    zeile("Kästchenwort: keines", kaestchenwort, {0, 1}, {}, {u"horstig"_s}, true, false);
    zeile("Kästchenwort: alle gewählt", kaestchenwort, {0, 1, 2}, {}, {u"x"_s}, false, true);
    zeile("keine", keine, {}, u"abc"_s, {}, false, true);
    zeile("Anfang: Str", art, {5}, {}, {u"Str"_s}, true, true);
    zeile("Anfang: Std ist kein Strauch", art, {5}, {}, {u"Std"_s}, true, false);
    zeile("Anfang: Std", art, {4}, {}, {u"Std"_s}, true, true);
    zeile("Anfang: leer", art, {4}, {}, {QString()}, true, false);
    zeile("Anfang: unbekannt", art, {0, 1, 2, 3, 4, 5, 6, 7, 8}, {}, {u"X"_s}, true, false);
    zeile("Zahl oder Flags: Zahl", farbe, {11}, {}, {u"12"_s}, true, true);
    zeile("Zahl oder Flags: Flags", farbe, {11}, {}, {u"00000000000100"_s}, true, true);
    zeile("nur Zahl: Zahl", nurZahl, {13}, {}, {u"14"_s}, true, true);
    zeile("nur Zahl: andere", nurZahl, {13}, {}, {u"13"_s}, true, false);
    zeile("nur Zahl: Flags passen nie", nurZahl, {11}, {}, {u"00000000000100"_s}, true, false);
}

void TestPruefungsarten::passt()
{
    QFETCH(const Kriterium *, kriterium);
    QFETCH(QList<int>, gewaehlt);
    QFETCH(QString, text);
    QFETCH(QStringList, werte);
    const Filterbeschreibung b = beschreibung({kriterium, 1});
    Filterzustand zustand = vorgabe(b);
    for (const int i : gewaehlt)
        zustand.kriterien[0].a.werte[size_t(i)] = 1;
    if (!text.isNull())
        zustand.kriterien[0].a.text = text;
    QTEST(aktiv(*kriterium, zustand.kriterien[0]), "aktiv");
    const Filterpruefung pruefung(b, zustand, {});
    QFETCH(bool, aktiv);
    QCOMPARE(pruefung.felder().isEmpty(), !aktiv);
    std::vector<QByteArray> bytes;
    for (const QString &wert : werte)
        bytes.push_back(wert.toUtf8());
    const std::vector<std::string_view> felder(bytes.begin(), bytes.end());
    if (aktiv)
        QCOMPARE(size_t(pruefung.felder().size()), felder.size());
    QTEST(pruefung.passt(1, felder), "ergebnis");
}

void TestPruefungsarten::tabellen_data()
{
    QTest::addColumn<QList<const char *>>("felder");
    QTest::addColumn<QString>("fehler");
    QTest::newRow("richtig") << QList<const char *>{"schnitt", "heimisch", "giftig"} << QString();
    QTest::newRow("zu wenige") << QList<const char *>{"schnitt", "heimisch"} << u"chkA: 2 Felder für 3 Kästchen"_s;
    QTest::newRow("keine") << QList<const char *>{} << u"chkA: 0 Felder für 3 Kästchen"_s;
    QTest::newRow("kein Feld") << QList<const char *>{"schnitt", "heimisch", "gift"} << u"gift ist kein Wahrheitswert"_s;
    QTest::newRow("keine Wahrheit") << QList<const char *>{"schnitt", "heimisch", "HK"} << u"HK ist kein Wahrheitswert"_s;
}

/// A table of booleans that does not fit its boxes is found.
void TestPruefungsarten::tabellen()
{
    QFETCH(QList<const char *>, felder);
    for (Kriterium kriterium : {alleWahr, einsWahr}) {
        kriterium.felder = felder;
        Filterbeschreibung b = beschreibung({&kriterium, 1});
        QTEST(filterfehler(b), "fehler");
    }
}

FLOX_TEST(tst_pruefungsarten, TestPruefungsarten)
#include "tst_pruefungsarten.moc"
