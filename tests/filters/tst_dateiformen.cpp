#include "Filterhilfen.h"

#include "filters/Filterdatei.h"
#include "tests/Testprogramm.h"

#include <QTest>

using namespace Qt::StringLiterals;

/* Forms of lines that depart from their control's own: pictures by their key, lists by place, boxes that stand in the file only. */

namespace {

constexpr const char *felder[] = {"blaschmuck", "giftig"};
constexpr QStringView monate[] = {u"Januar", u"Februar", u"März"};

// clang-format off
constexpr Kriterium formen[] = {
    {.pruefung = Pruefung::AlleWahr, .titel = u"Marken", .a = {.art = Steuerung::Bilder, .control = "imgEigen", .anzahl = 2, .zeile = 1, .bilder = probemarken, .form = Dateiform::Bildname},
     .felder = felder},
    {.pruefung = Pruefung::WortImText, .titel = u"Lager",
     .a = {.art = Steuerung::Liste, .control = "cboLager", .zeile = 3, .worte = monate, .eintraege = Eintraege::Worte, .alle = u"-- Alle --", .form = Dateiform::Index},
     .feld = "sonstiges"},
    {.pruefung = Pruefung::Flags, .titel = u"Licht", .a = {.art = Steuerung::Kaestchen, .control = "chkLicht", .anzahl = 5, .zeile = 4, .ueberzaehlig = 2}, .feld = "licht"},
    {.pruefung = Pruefung::Flags, .titel = u"Boden", .a = {.art = Steuerung::Kaestchen, .control = "chkBoden", .anzahl = 2, .zeile = 9, .form = Dateiform::Wahrheit}, .feld = "bodenart"},
};
// clang-format on
constexpr Filterbeschreibung mitFormen{
    .sparte = Sparte::Stauden, .reiter = {}, .kriterien = formen, .zeilen = 10, .ladeFilter = {}, .speicherFilter = {}};

/// The state that a file's lines give; nothing where a line cannot be read.
std::optional<Filterzustand> gelesen(const QStringList &zeilen)
{
    Filterzustand zustand = vorgabe(mitFormen);
    return laden(mitFormen, (zeilen.join(u"\r\n"_s) + u"\r\n"_s).toLatin1(), zustand) ? std::optional(zustand) : std::nullopt;
}

QStringList geschrieben(const Filterzustand &zustand)
{
    return QString::fromLatin1(filterSchreiben(mitFormen, zustand)).split(u"\r\n"_s, Qt::SkipEmptyParts);
}

const QStringList formvorgaben{u"schmuc_n"_s, u"gift_n"_s, u" 0 "_s, u" 0 "_s, u" 0 "_s, u" 0 "_s, u" 0 "_s, u" 0 "_s, u"False"_s, u"False"_s};

} // namespace

class TestDateiformen : public QObject
{
    Q_OBJECT

private slots:
    void tabelle() { QCOMPARE(filterfehler(mitFormen), QString()); }
    void vorgaben() { QCOMPARE(geschrieben(vorgabe(mitFormen)), formvorgaben); }
    void bildnamen_data();
    void bildnamen();
    void listenplatz_data();
    void listenplatz();
    void nurInDerDatei();
    void ueberzaehligeFallenAuf();
};

void TestDateiformen::bildnamen_data()
{
    QTest::addColumn<QString>("zeile");
    QTest::addColumn<int>("wert");
    QTest::newRow("set") << u"schmuck"_s << 1;
    QTest::newRow("not set") << u"schmuc_n"_s << 0;
    QTest::newRow("empty") << u"\"\""_s << 0;
    QTest::newRow("0") << u" 0 "_s << 0;
    QTest::newRow("another name") << u"blume"_s << 1;
    QTest::newRow("another name, not set") << u"blume_n"_s << 0;
}

void TestDateiformen::bildnamen()
{
    QFETCH(QString, zeile);
    QStringList zeilen = formvorgaben;
    zeilen[0] = zeile;
    const std::optional<Filterzustand> zustand = gelesen(zeilen);
    QVERIFY(zustand);
    QTEST(zustand->kriterien[0].a.werte[0], "wert");
    QCOMPARE(zustand->kriterien[0].a.werte[1], 0);
    QFETCH(int, wert);
    QCOMPARE(geschrieben(*zustand)[0], wert ? u"schmuck"_s : u"schmuc_n"_s);
}

void TestDateiformen::listenplatz_data()
{
    QTest::addColumn<QString>("zeile");
    QTest::addColumn<QString>("text"); // null for a read error
    QTest::newRow("all") << u" 0 "_s << u"-- Alle --"_s;
    QTest::newRow("first") << u" 1 "_s << u"Januar"_s;
    QTest::newRow("last") << u" 3 "_s << u"März"_s;
    QTest::newRow("beyond") << u" 4 "_s << QString();
    QTest::newRow("negative") << u"-1 "_s << QString();
    QTest::newRow("word") << u"Januar"_s << QString();
}

void TestDateiformen::listenplatz()
{
    QFETCH(QString, zeile);
    QFETCH(QString, text);
    QStringList zeilen = formvorgaben;
    zeilen[2] = zeile;
    const std::optional<Filterzustand> zustand = gelesen(zeilen);
    QCOMPARE(bool(zustand), !text.isNull());
    if (!zustand)
        return;
    QCOMPARE(zustand->kriterien[1].a.text, text);
    QCOMPARE(geschrieben(*zustand)[2], zeile);
}

/// They keep what a file says of them and count, test and restrict nothing.
void TestDateiformen::nurInDerDatei()
{
    QStringList zeilen = formvorgaben;
    zeilen[6] = zeilen[7] = u"-1 "_s;
    const std::optional<Filterzustand> zustand = gelesen(zeilen);
    QVERIFY(zustand);
    QCOMPARE(geschrieben(*zustand), zeilen);
    const Kriterium &licht = formen[2];
    QCOMPARE(anzahlGewaehlt(licht.a, zustand->kriterien[2].a), 0);
    QVERIFY(!aktiv(licht, zustand->kriterien[2]));
    // All of those that can be selected are all.
    zeilen[3] = zeilen[4] = zeilen[5] = u"-1 "_s;
    QVERIFY(!aktiv(licht, gelesen(zeilen)->kriterien[2]));
    zeilen[5] = u" 0 "_s;
    QVERIFY(aktiv(licht, gelesen(zeilen)->kriterien[2]));
}

void TestDateiformen::ueberzaehligeFallenAuf()
{
    std::vector<Kriterium> tabelle(std::begin(formen), std::end(formen));
    tabelle[2].a.ueberzaehlig = 1;
    Filterbeschreibung b = mitFormen;
    b.kriterien = tabelle;
    QCOMPARE(filterfehler(b), u"chkLicht: mehr Kästchen als Wörter"_s);
}

FLOX_TEST(tst_dateiformen, TestDateiformen)
#include "tst_dateiformen.moc"
