#include "store/Text.h"
#include "tests/Testprogramm.h"

#include <QLocale>
#include <QTest>

using namespace Qt::StringLiterals;

/* Text helpers: replacing, booleans, numbers, codes. */
class TestText : public QObject
{
    Q_OBJECT

private slots:
    void ersetzeAlle_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("von");
        QTest::addColumn<QString>("nach");
        QTest::addColumn<QString>("ergebnis");
        QTest::newRow("alle") << u"Eur., Am., Eur."_s << u"Eur."_s << u"Europa"_s << u"Europa, Am., Europa"_s;
        QTest::newRow("Schreibung zählt") << u"eur. Eur."_s << u"Eur."_s << u"X"_s << u"eur. X"_s;
        QTest::newRow("Ersatz enthält Gesuchtes") << u"aba"_s << u"a"_s << u"aa"_s << u"aabaa"_s;
        QTest::newRow("überlappend") << u"aaaa"_s << u"aa"_s << u"a"_s << u"aa"_s;
        QTest::newRow("fehlt") << u"abc"_s << u"x"_s << u"y"_s << u"abc"_s;
        QTest::newRow("nichts gesucht") << u"abc"_s << u""_s << u"y"_s << u"abc"_s;
        QTest::newRow("leer") << u""_s << u"a"_s << u"y"_s << u""_s;
        QTest::newRow("löschen") << u"a;b;"_s << u";"_s << u""_s << u"ab"_s;
    }
    void ersetzeAlle()
    {
        QFETCH(QString, text);
        QFETCH(QString, von);
        QFETCH(QString, nach);
        QTEST(ErsetzeAlle(text, von, nach), "ergebnis");
    }

    void ersetzeErstes_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("von");
        QTest::addColumn<QString>("nach");
        QTest::addColumn<QString>("ergebnis");
        QTest::newRow("nur das erste") << u"ab ab"_s << u"ab"_s << u"xy"_s << u"xy ab"_s;
        QTest::newRow("kürzer: mit Leerzeichen") << u"[abc]abc"_s << u"abc"_s << u"x"_s << u"[x  ]abc"_s;
        QTest::newRow("länger: so weit es passt") << u"abc"_s << u"b"_s << u"xyz"_s << u"axc"_s;
        QTest::newRow("nichts: nur Leerzeichen") << u"abc"_s << u"bc"_s << u""_s << u"a  "_s;
        QTest::newRow("Schreibung zählt") << u"Ab"_s << u"a"_s << u"x"_s << u"Ab"_s;
        QTest::newRow("fehlt") << u"abc"_s << u"x"_s << u"y"_s << u"abc"_s;
        QTest::newRow("nichts gesucht") << u"abc"_s << u""_s << u"y"_s << u"abc"_s;
    }
    void ersetzeErstes()
    {
        QFETCH(QString, text);
        QFETCH(QString, von);
        QFETCH(QString, nach);
        QTEST(ErsetzeErstes(text, von, nach), "ergebnis");
    }

    void dezimalZeichen()
    {
        const QLocale vorher;
        QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
        const QString deutsch = DezimalZeichen();
        QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates));
        const QString englisch = DezimalZeichen();
        QLocale::setDefault(vorher);
        QCOMPARE(deutsch, u","_s);
        QCOMPARE(englisch, u"."_s);
    }

    void wahrheiten_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<bool>("wahr");
        QTest::addColumn<bool>("geaendert");
        QTest::newRow("leer") << u""_s << false << false;
        QTest::newRow("null") << QString() << false << false;
        QTest::newRow("0") << u"0"_s << false << false;
        QTest::newRow("1") << u"1"_s << true << false;
        QTest::newRow("2") << u"2"_s << true << true;
        QTest::newRow("-1") << u"-1"_s << true << true;
        QTest::newRow("True") << u"True"_s << true << true;
        QTest::newRow("TRUE") << u"TRUE"_s << true << true;
        QTest::newRow("Wahr") << u"Wahr"_s << true << true;
        QTest::newRow("wahr mit Rand") << u" wahr "_s << true << true;
        QTest::newRow("False") << u"False"_s << false << false;
        QTest::newRow("Falsch") << u"Falsch"_s << false << false;
        QTest::newRow("Wort") << u"ja"_s << false << false;
    }
    void wahrheiten()
    {
        QFETCH(QString, text);
        QTEST(istWahr(text), "wahr");
        QTEST(istGeaendert(text), "geaendert");
    }

    void zahlen_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<bool>("lesbar");
        QTest::addColumn<double>("wert");
        QTest::addColumn<QString>("gezeigt");
        QTest::newRow("Komma") << u"0,5"_s << true << 0.5 << u"0,5"_s;
        QTest::newRow("Punkt") << u"0.5"_s << true << 0.5 << u"0,5"_s;
        QTest::newRow("Nullen am Ende") << u"1,500"_s << true << 1.5 << u"1,5"_s;
        QTest::newRow("ganz") << u"1500"_s << true << 1500.0 << u"1500"_s;
        QTest::newRow("ganz mit Nullen") << u"100"_s << true << 100.0 << u"100"_s;
        QTest::newRow("nur Nullen dahinter") << u"2.00"_s << true << 2.0 << u"2"_s;
        QTest::newRow("kleine Höhe") << u"0.0125"_s << true << 0.0125 << u"0,0125"_s;
        QTest::newRow("Frost") << u"-5"_s << true << -5.0 << u"-5"_s;
        QTest::newRow("Rand") << u" 3 "_s << true << 3.0 << u"3"_s;
        QTest::newRow("fast null") << u"-0.00001"_s << true << -0.00001 << u"0"_s;
        QTest::newRow("Text") << u"bis 2"_s << false << 0.0 << u"bis 2"_s;
        QTest::newRow("leer") << u""_s << false << 0.0 << u""_s;
        QTest::newRow("zwei Trenner") << u"1.234,5"_s << false << 0.0 << u"1.234,5"_s;
        QTest::newRow("Punkt am Ende") << u"5."_s << true << 5.0 << u"5"_s;
        QTest::newRow("Punkt am Anfang") << u".5"_s << true << 0.5 << u"0,5"_s;
        QTest::newRow("Zehnerpotenz") << u"1e2"_s << true << 100.0 << u"100"_s;
        QTest::newRow("Pluszeichen") << u"+3"_s << true << 3.0 << u"3"_s;
        QTest::newRow("viele Stellen") << u"0.1234567890123456789"_s << true << 0.12345678901234568 << u"0,1235"_s;
        QTest::newRow("sechzehn") << u"0x10"_s << false << 0.0 << u"0x10"_s;
        QTest::newRow("nur ein Strich") << u"-"_s << false << 0.0 << u"-"_s;
        QTest::newRow("unendlich") << u"inf"_s << false << 0.0 << u"inf"_s;
        QTest::newRow("keine Zahl") << u"nan"_s << false << 0.0 << u"nan"_s;
    }
    void zahlen()
    {
        QFETCH(QString, text);
        QTEST(zahlLesen(text).has_value(), "lesbar");
        QTEST(zahlLesen(text).value_or(0), "wert");
        QCOMPARE(zahlLesen(std::string_view(text.toUtf8().constData())), zahlLesen(text));
        QTEST(zahlZeigen(text), "gezeigt");
    }

    void einfachGenau_data()
    {
        QTest::addColumn<double>("zahl");
        QTest::addColumn<QString>("text");
        QTest::newRow("ganz") << 12.0 << u"12"_s;
        QTest::newRow("sieben Stellen") << 0.123456 << u"0,123456"_s;
        QTest::newRow("acht Stellen") << -1.23456789 << u"-1,234568"_s;
        QTest::newRow("wie ein Single rundet") << 0.1 << u"0,1"_s;
        QTest::newRow("minus null") << -0.0 << u"0"_s;
        QTest::newRow("groß") << 12345678.0 << u"1,234568E+07"_s;
        QTest::newRow("zu groß") << 1e300 << u"3,402823E+38"_s;
    }
    void einfachGenau()
    {
        QFETCH(double, zahl);
        QTEST(::einfachGenau(zahl), "text");
    }

    void grossbuchstabenHaltenDieLaenge()
    {
        QCOMPARE(grossbuchstaben(u"Äpfel, Spieß, × öü"), u"ÄPFEL, SPIEß, × ÖÜ"_s);
        QCOMPARE(grossbuchstaben(u""), QString());
    }

    void flagGesetzt_data()
    {
        QTest::addColumn<QString>("flags");
        QTest::addColumn<int>("p");
        QTest::addColumn<bool>("gesetzt");
        QTest::newRow("erste") << u"100"_s << 1 << true;
        QTest::newRow("letzte") << u"001"_s << 3 << true;
        QTest::newRow("aus") << u"101"_s << 2 << false;
        QTest::newRow("hinter dem Ende") << u"11"_s << 3 << false;
        QTest::newRow("vor dem Anfang") << u"11"_s << 0 << false;
        QTest::newRow("negativ") << u"11"_s << -1 << false;
        QTest::newRow("leer") << u""_s << 1 << false;
        QTest::newRow("null") << QString() << 1 << false;
        QTest::newRow("andere Zeichen") << u"x2 "_s << 2 << false;
    }
    void flagGesetzt()
    {
        QFETCH(QString, flags);
        QFETCH(int, p);
        QTEST(::flagGesetzt(flags, p), "gesetzt");
    }

    void monatsbeschriftungen()
    {
        QString buchstaben;
        for (int i = 0; i < 12; ++i) {
            buchstaben += monatsbeschriftung(i, true);
            QCOMPARE(monatsbeschriftung(i, false), QString::number(i + 1));
        }
        QCOMPARE(buchstaben, u"JFMAMJJASOND"_s);
    }

    void codeseite_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<QString>("zurueck");
        QTest::newRow("leer") << u""_s << QByteArray("") << u""_s;
        QTest::newRow("ASCII") << u"Ficus 1\r\n"_s << QByteArray("Ficus 1\r\n") << u"Ficus 1\r\n"_s;
        QTest::newRow("Umlaute") << u"äöüÄÖÜß×°²"_s << QByteArray("\xe4\xf6\xfc\xc4\xd6\xdc\xdf\xd7\xb0\xb2") << u"äöüÄÖÜß×°²"_s;
        QTest::newRow("Anführung und Euro") << u"„“€–"_s << QByteArray("\x84\x93\x80\x96") << u"„“€–"_s;
        QTest::newRow("passt nicht") << u"aŁb"_s << QByteArray("a?b") << u"a?b"_s;
    }
    void codeseite()
    {
        QFETCH(QString, text);
        QFETCH(QByteArray, bytes);
        QCOMPARE(nachCp1252(text), bytes);
        QTEST(ausCp1252(bytes), "zurueck");
    }

    void herkunft_data()
    {
        QTest::addColumn<QString>("hk");
        QTest::addColumn<QString>("text");
        QTest::newRow("alle") << u"Eur., Sib., Am., As., Afr., Kauk., Him., Anat., Rußl."_s
                              << u"Europa, Sibirien, Amerika, Asien, Afrika, Kaukasus, Himalaya, Anatolien, Rußland"_s;
        QTest::newRow("zusammengesetzt") << u"S-Am., O-As."_s << u"S-Amerika, O-Asien"_s;
        QTest::newRow("Kleinasien nach Asien") << u"Kl. As., Kl.As."_s << u"Kleinasien, Kleinasien"_s;
        QTest::newRow("Kleinasien") << u"Kl. Asien"_s << u"Kleinasien"_s;
        QTest::newRow("ohne Kürzel") << u"Brasilien"_s << u"Brasilien"_s;
        QTest::newRow("leer") << u""_s << u""_s;
    }
    void herkunft()
    {
        QFETCH(QString, hk);
        QTEST(herkunftAusgeschrieben(hk), "text");
    }

    void nomenklatur_data()
    {
        QTest::addColumn<QString>("quelle");
        QTest::addColumn<QString>("buchstaben");
        QTest::addColumn<QString>("satz");
        const QString stauden = u"zsnc"_s, gehoelze = u"zsncg"_s;
        QTest::newRow("z") << u"z"_s << stauden << u"Nomenklatur nach 'Zander'"_s;
        QTest::newRow("s") << u"s"_s << stauden << u"Nomenklatur nach 'spezielle Erklärung'"_s;
        QTest::newRow("n") << u"n"_s << stauden << u"Nomenklatur nach 'Namenliste Stauden'"_s;
        QTest::newRow("c") << u"c"_s << stauden << u"Nomenklatur nach 'Classified List and International Register of Tulip Names'"_s;
        QTest::newRow("g nur bei Gehölzen") << u"g"_s << stauden << u""_s;
        QTest::newRow("g") << u"g"_s << gehoelze << u"Nomenklatur nach 'Namenliste Gehölze'"_s;
        QTest::newRow("groß") << u"Z"_s << stauden << u""_s;
        QTest::newRow("mehrere") << u"zs"_s << stauden << u""_s;
        QTest::newRow("leer") << u""_s << stauden << u""_s;
    }
    void nomenklatur()
    {
        QFETCH(QString, quelle);
        QFETCH(QString, buchstaben);
        QTEST(::nomenklatur(quelle, buchstaben), "satz");
        QFETCH(QString, satz);
        const QString werk = nomenklaturwerk(quelle, buchstaben).toString();
        QCOMPARE(werk, satz.isEmpty() ? QString() : satz.section(u'\'', 1, 1));
    }

    void ohneZeilenmarken_data()
    {
        QTest::addColumn<QString>("roh");
        QTest::addColumn<QString>("text");
        QTest::newRow("empty") << ""
                               << "";
        QTest::newRow("pairs go") << u"eins \u00EC\nzwei\u00EC\n\u00EC\ndrei"_s << "eins zweidrei";
        QTest::newRow("a line end stays") << "eins\nzwei"
                                          << "eins\nzwei";
        QTest::newRow("the letter stays") << u"ros\u00EC"_s << u"ros\u00EC"_s;
    }

    void ohneZeilenmarken()
    {
        QFETCH(QString, roh);
        QTEST(::ohneZeilenmarken(roh), "text");
    }
};

FLOX_TEST(tst_text, TestText)
#include "tst_text.moc"
