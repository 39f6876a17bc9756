#include "frame/Rtf.h"
#include "tests/Testprogramm.h"

#include <QTest>

using namespace Qt::StringLiterals;

namespace {

/// Paragraphs as text: "|" ends one, "*" and "/" stand around bold and italic.
QString gezeigt(const QByteArray &bytes)
{
    const auto absaetze = rtfLesen(bytes);
    if (!absaetze)
        return u"none"_s;
    QString text;
    for (const Rtfabsatz &absatz : *absaetze) {
        for (const Rtflauf &lauf : absatz) {
            const QString marke = (lauf.fett ? u"*"_s : u""_s) + (lauf.kursiv ? u"/"_s : u""_s);
            text += marke + lauf.text + (lauf.kursiv ? u"/"_s : u""_s) + (lauf.fett ? u"*"_s : u""_s);
        }
        text += u'|';
    }
    return text.replace(QChar::LineSeparator, u'^');
}

} // namespace

/* The reader of rich text. */
class TestRtf : public QObject
{
    Q_OBJECT

private slots:
    void lesen_data()
    {
        QTest::addColumn<QByteArray>("rtf");
        QTest::addColumn<QString>("text");
        const auto zeile = [](const char *name, const QByteArray &innen, const QString &text) {
            QTest::newRow(name) << QByteArray("{\\rtf1" + innen + "}") << text;
        };
        zeile("empty", "", u""_s);
        zeile("text", " abc", u"abc|"_s);
        zeile("blank inside", " a b", u"a b|"_s);
        zeile("line ends are none", " a\r\nb\nc", u"abc|"_s);
        zeile("paragraphs", " a\\par b\\par\n", u"a|b|"_s);
        zeile("empty paragraph", " a\\par\\par b", u"a||b|"_s);
        zeile("line break", " a\\line b", u"a^b|"_s);
        zeile("tab", " a\\tab b", u"a\tb|"_s);
        zeile("escaped line end", " a\\\nb", u"a|b|"_s);
        zeile("bold", " a\\b b\\b0 c", u"a*b*c|"_s);
        zeile("italic", " a\\i b\\i0  c", u"a/b/ c|"_s);
        zeile("both", "\\b\\i a\\i0 b", u"*/a/**b*|"_s);
        zeile("group ends a style", " a{\\b b{\\i c}d}e", u"a*b**/c/**d*e|"_s);
        zeile("plain", "\\b\\i a\\plain b", u"*/a/*b|"_s);
        zeile("style over paragraphs", "\\b a\\par b\\b0\\par c", u"*a*|*b*|c|"_s);
        zeile("words that begin alike", "\\bogus a\\info1x", u"a|"_s);
        zeile("by code", " Geh\\'f6lze \\'84x\\'93 \\'80", u"Gehölze „x“ €|"_s);
        zeile("by code, upper case", " \\'C4\\'DF", u"Äß|"_s);
        zeile("by code, broken", " a\\'x\\'4", u"ax4|"_s);
        zeile("bytes above ASCII", " \xe4\x80", u"ä€|"_s);
        zeile("by number", " a\\u8364?b", u"a€b|"_s);
        zeile("by number, negative", " \\u-10179?\\u-8704?", u"\U0001F600|"_s);
        zeile("by number, stand-in by code", " \\u228\\'e4x", u"äx|"_s);
        zeile("by number, no stand-in", " \\uc0\\u228 x", u"äx|"_s);
        zeile("by number, two stand-ins", "\\uc2 \\u228 abc", u"äc|"_s);
        zeile("number of stand-ins ends with its group", " {\\uc0\\u228 x}\\u246 ?y", u"äxöy|"_s);
        zeile("stand-in ends with its group", " {\\u228}x", u"äx|"_s);
        zeile("by number, out of range", " a\\u99999?\\u0?\\u-70000?b", u"ab|"_s);
        zeile("marks", " \\{a\\}\\\\", u"{a}\\|"_s);
        zeile("hard blank and hyphens", " a\\~b\\_c\\-d", u"a\u00A0b\u2011c\u00ADd|"_s);
        zeile("named characters", " a\\endash  b\\emdash\\bullet\\ldblquote x\\rdblquote\\lquote\\rquote", u"a– b—•“x”‘’|"_s);
        zeile("fonts and colours", "{\\fonttbl{\\f0\\fswiss Arial;}}{\\colortbl;\\red0\\green0\\blue0;}\\f0\\fs20\\cf1 a", u"a|"_s);
        zeile("document properties", "{\\info{\\author Gärtner}{\\title X}}a", u"a|"_s);
        zeile("destinations of others", "{\\*\\generator Riched20 5.40;}{\\*\\unknown x{y}}a", u"a|"_s);
        zeile("picture", "{\\pict\\wmetafile8 0123abcd}a", u"a|"_s);
        zeile("raw bytes", " a{\\pict\\bin5 }}}}}}b", u"ab|"_s);
        zeile("raw bytes beyond the end", " a\\bin9999 b", u"a|"_s);
        zeile("paragraph of a skipped group", " a{\\header x\\par y}b", u"ab|"_s);
        zeile("large numbers", "\\fs99999999999999999999 a\\b-99999999999999 b", u"a*b*|"_s);
        QTest::newRow("broken off") << QByteArray("{\\rtf1 a{\\b b") << u"a*b*|"_s;
        QTest::newRow("broken off in a word") << QByteArray("{\\rtf1 a\\") << u"a|"_s;
        QTest::newRow("broken off in a code") << QByteArray("{\\rtf1 a\\'") << u"a|"_s;
        QTest::newRow("text behind the end") << QByteArray("{\\rtf1 a}b}c") << u"a|"_s;
        QTest::newRow("nothing") << QByteArray() << u"none"_s;
        QTest::newRow("plain text") << QByteArray("Hinweis") << u"none"_s;
        QTest::newRow("other markup") << QByteArray("{\\urtf1 a}") << u"none"_s;
    }

    void lesen()
    {
        QFETCH(QByteArray, rtf);
        QTEST(gezeigt(rtf), "text");
        // Cut anywhere, it gives the beginning of the same text or less, and comes to an end.
        for (qsizetype laenge = 0; laenge < rtf.size(); ++laenge)
            QCOMPARE(rtfLesen(rtf.first(laenge)).has_value(), laenge >= 5 && rtf.startsWith("{\\rtf"));
    }

    void sehrTief()
    {
        const QByteArray tief = "{\\rtf1 " + QByteArray(1'000'000, '{') + "\\b a" + QByteArray(1'000'000, '}') + "b}";
        QCOMPARE(gezeigt(tief), u"*a*b|"_s);
    }
};

FLOX_TEST(tst_rtf, TestRtf)
#include "tst_rtf.moc"
