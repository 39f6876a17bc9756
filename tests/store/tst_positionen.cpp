#include "store/Schema.h"
#include "tests/Testprogramm.h"

#include <QTest>

using namespace Qt::StringLiterals;

/* Stored texts of coded columns, read as positions of their vocabularies. */

class TestPositionen : public QObject
{
    Q_OBJECT

private slots:
    void weisen_data();
    void weisen();
    void spalten_data();
    void spalten();
    void alleListenPassen();
};

static QString alsText(Positionen menge)
{
    QStringList zahlen;
    for (int p = 0; p <= Positionen::groesste + 1; ++p)
        if (menge.hat(p))
            zahlen += QString::number(p);
    return zahlen.join(u' ');
}

void TestPositionen::weisen_data()
{
    QTest::addColumn<Schreibweise>("weise");
    QTest::addColumn<int>("anzahl");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("menge");
    const auto zeile = [](const char *name, Schreibweise weise, int anzahl, const QString &text, const QString &menge) {
        QTest::newRow(name) << weise << anzahl << text << menge;
    };
    using enum Schreibweise;
    zeile("flags", Flags, 6, u"010010"_s, u"2 5"_s);
    zeile("flags, leer", Flags, 6, QString(), QString());
    zeile("flags, kurz", Flags, 6, u"01"_s, u"2"_s);
    zeile("flags, länger als die Liste", Flags, 3, u"00111"_s, u"3"_s);
    zeile("flags, Blanks und anderes", Flags, 5, u"1 x2ä1"_s, u"1"_s);
    zeile("flags, nach einem Umlaut", Flags, 64, u" 1"_s, u"2"_s);
    zeile("flags, 64", Flags, 64, QString(64, u'1').replace(1, 62, QString(62, u'0')), u"1 64"_s);
    zeile("Zahl", Zahl, 5, u"3"_s, u"3"_s);
    zeile("Zahl, zweistellig", Zahl, 14, u"12"_s, u"12"_s);
    zeile("Zahl, zu groß", Zahl, 5, u"6"_s, QString());
    zeile("Zahl, 0", Zahl, 5, u"0"_s, QString());
    zeile("Zahl, führende Null", Zahl, 5, u"03"_s, QString());
    zeile("Zahl, kein Rest", Zahl, 5, u"3 "_s, QString());
    zeile("Zahl, negativ", Zahl, 5, u"-1"_s, QString());
    zeile("Zahl, Bruch", Zahl, 5, u"1,5"_s, QString());
    zeile("Zahl, riesig", Zahl, 5, u"99999999999999999999"_s, QString());
    zeile("Zahl, flags", Zahl, 14, u"00010000000000"_s, QString());
    zeile("beides, flags", ZahlOderFlags, 4, u"0010"_s, u"3"_s);
    zeile("beides, drei Zeichen sind flags", ZahlOderFlags, 14, u"100"_s, u"1"_s);
    zeile("beides, 111 ist keine Zahl", ZahlOderFlags, 14, u"111"_s, u"1 2 3"_s);
    zeile("beides, Blank darin", ZahlOderFlags, 4, u" 1"_s, u"2"_s);
    zeile("beides, Zahl", ZahlOderFlags, 4, u"3"_s, u"3"_s);
    zeile("beides, 1 ist eine Zahl", ZahlOderFlags, 4, u"1"_s, u"1"_s);
    zeile("beides, 10 ist eine Zahl", ZahlOderFlags, 14, u"10"_s, u"10"_s);
    zeile("beides, 11 ist eine Zahl", ZahlOderFlags, 13, u"11"_s, u"11"_s);
    zeile("beides, 10 über der Liste", ZahlOderFlags, 4, u"10"_s, u"1"_s);
    zeile("beides, 01", ZahlOderFlags, 14, u"01"_s, u"2"_s);
    zeile("beides, 0", ZahlOderFlags, 14, u"0"_s, QString());
    zeile("beides, 5 über der Liste", ZahlOderFlags, 4, u"5"_s, QString());
    zeile("beides, Wort", ZahlOderFlags, 4, u"rot"_s, QString());
}

void TestPositionen::weisen()
{
    QFETCH(Schreibweise, weise);
    QFETCH(int, anzahl);
    QFETCH(QString, text);
    QTEST(alsText(positionen({weise, anzahl}, text)), "menge");
}

void TestPositionen::spalten_data()
{
    QTest::addColumn<QString>("tabelle");
    QTest::addColumn<QByteArray>("feld");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("worte");
    const auto zeile = [](const char *tabelle, const char *feld, const QString &text, const QString &worte) {
        QTest::addRow("%s %s", feld, qPrintable(text)) << QString::fromLatin1(tabelle) << QByteArray(feld) << text << worte;
    };
    for (const auto &[text, wort] : {std::pair(u"1"_s, u"einjährig"_s),
                                     {u"2"_s, u"zweijährig"_s},
                                     {u"B"_s, u"Baum"_s},
                                     {u"H"_s, u"Halbstrauch"_s},
                                     {u"Std"_s, u"Staude"_s},
                                     {u"S"_s, u"Staude"_s},
                                     {u"Str"_s, u"Strauch"_s},
                                     {u"Strauch"_s, u"Strauch"_s},
                                     {u"Z"_s, u"Zwiebel/Knolle"_s},
                                     {u"G"_s, u"Gras"_s},
                                     {u"F"_s, u"Farn"_s},
                                     {u"W"_s, u"Wasserpflanze"_s},
                                     {u"str"_s, QString()},
                                     {u"X"_s, QString()},
                                     {u" S"_s, QString()}})
        zeile("Stauden", "pflanzart", text, wort);
    for (const auto &[text, worte] : {std::pair(u"***L"_s, u"vorzügliche Sorte, Staude für den Pflanzenliebhaber"_s),
                                      {u"**"_s, u"sehr wertvolle Sorte"_s},
                                      {u"*"_s, u"wertvolle Sorte"_s},
                                      {u"S*"_s, u"wertvolle Sorte, wertvolle Schnittstaude"_s},
                                      {u"w!"_s, u"sehr wertvolle Wildstaude"_s},
                                      {u"W!w"_s, u"sehr wertvolle Wildstaude"_s},
                                      {u"wL"_s, u"Staude für den Pflanzenliebhaber, wertvolle Wildstaude"_s},
                                      {u"W"_s, u"wertvolle Wildstaude"_s},
                                      {u"l?"_s, QString()}})
        zeile("Stauden", "urteil", text, worte);
    zeile("Stauden", "geselligkt", u"2"_s, u"in kleinen Trupps von etwa 3-10 Pflanzen gruppieren"_s);
    zeile("Stauden", "geselligkt", u"6"_s, QString());
    zeile("Stauden", "fruchtfarb", u"14"_s, u"bunt"_s);
    zeile("Stauden", "fruchtfarb", u"10000000000001"_s, u"weiß, bunt"_s);
    zeile("Stauden", "herbstfarb", u"5"_s, u"rot"_s);
    zeile("Gehoelze", "grobeint", u"2"_s, u"Nadelgehölz"_s);
    zeile("Gehoelze", "grobeint", u"3"_s, QString());
    zeile("Gehoelze", "genuss", u"0001"_s, u"Stark giftig!!!"_s);
    zeile("Gehoelze", "genuss", u"3"_s, u"giftig"_s);
    zeile("Gehoelze", "wurzelempf", u"3"_s, u"sehr empfindlich"_s);
    zeile("Abfrage_Friedhof", "pflanzart", u"Str"_s, u"Strauch"_s);
}

void TestPositionen::spalten()
{
    QFETCH(QString, tabelle);
    QFETCH(QByteArray, feld);
    QFETCH(QString, text);
    const Spalte *spalte = schema::spalteVon(tabelle, feld.constData());
    QVERIFY(spalte && spalte->liste);
    QTEST(worteVon(positionen(*spalte, text), *spalte->liste), "worte");
}

/// No vocabulary is longer than a set, and each mark names a row of its column's vocabulary.
void TestPositionen::alleListenPassen()
{
    int marken = 0;
    for (const Tabelle &tabelle : schema::haupttabellen())
        for (const Spalte &spalte : tabelle.spalten) {
            QVERIFY2(!spalte.liste || spalte.liste->anzahl() <= Positionen::groesste, spalte.name);
            QCOMPARE(spalte.marken.empty(), spalte.schreibweise != Schreibweise::Anfang && spalte.schreibweise != Schreibweise::Marken);
            for (const Marke &marke : spalte.marken) {
                ++marken;
                QVERIFY2(spalte.liste && marke.position >= 1 && marke.position <= spalte.liste->anzahl(), spalte.name);
            }
        }
    QVERIFY(marken > 0);
}

FLOX_TEST(tst_positionen, TestPositionen)
#include "tst_positionen.moc"
