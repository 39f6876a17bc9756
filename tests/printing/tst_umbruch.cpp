#include "Druckhilfen.h"

#include "tests/Testprogramm.h"

#include <QTest>

#include <random>

using namespace Qt::StringLiterals;

namespace {

/// A printer and what wraps texts on it; reads no database.
struct Umbrecher
{
    explicit Umbrecher(const QPageLayout &blatt = blattA4()) : drucker(blatt), druck(programm, auftrag, drucker)
    {
        drucker.ScaleLeft = -65; // the values of a data sheet
    }

    /// The lines in reading order.
    QStringList zeilen(const QString &text, double hoechstens = 125)
    {
        druck.TextUmbrechen(text, hoechstens);
        QStringList gelesen;
        for (int i = druck.DruckZeilenAnzahl; i >= 1; --i)
            gelesen += druck.DruckZeilen[size_t(i)];
        return gelesen;
    }
    double breite(const QString &text) const { return drucker.TextWidth(text); }

    Programm programm;
    Druckauftrag auftrag{};
    Printer drucker;
    Druck druck;
};

const QString smiley = QString::fromUcs4(U"\U0001F600");

bool istEnde(QChar zeichen)
{
    return zeichen == u'\n' || zeichen == u'\r';
}

/// Walks through text and lines side by side and says what is wrong with the lines; empty when nothing is.
QString umbruchfehler(const Umbrecher &u, QString text, const QStringList &zeilen, double breite)
{
    text.replace(u'\t', u' ');
    qsizetype p = 0;
    const auto bei = [&](qsizetype i) { return i < text.size() ? text[i] : QChar(); };
    const auto leer = [&](qsizetype i) { return bei(i) == u' '; };
    const auto wortende = [&](qsizetype von) {
        while (von < text.size() && !leer(von) && !istEnde(text[von]))
            ++von;
        return von;
    };
    for (qsizetype nummer = 0; nummer < zeilen.size(); ++nummer) {
        const QString &zeile = zeilen[nummer];
        const auto fehler = [&](const char *was) { return u"line %1 '%2': %3"_s.arg(nummer).arg(zeile, QLatin1String(was)); };
        if (!zeile.isValidUtf16())
            return fehler("half a character");
        if (u.breite(zeile) > breite + 1e-9)
            return fehler("too wide");
        while (leer(p) && !QStringView(text).mid(p).startsWith(zeile))
            ++p;
        if (!QStringView(text).mid(p).startsWith(zeile))
            return fehler("not the text that follows");
        const qsizetype anfang = p;
        qsizetype weiter = p += zeile.size();
        while (leer(weiter))
            ++weiter;
        if (weiter == text.size()) {
            p = weiter;
        } else if (istEnde(text[weiter])) {
            p = weiter + (text[weiter] == u'\r' && bei(weiter + 1) == u'\n' ? 2 : 1);
        } else if (weiter > p) {
            if (u.breite(text.mid(anfang, wortende(weiter) - anfang)) <= breite)
                return fehler("the next word would have fitted");
            if (zeile.endsWith(u' ') || leer(weiter))
                return fehler("blanks at the break");
            p = weiter;
        } else {
            if (zeile.contains(u' ') || u.breite(text.mid(anfang, wortende(p) - anfang)) <= breite)
                return fehler("a word was divided without need");
            if (u.breite(text.mid(anfang, p - anfang + (text[p].isHighSurrogate() ? 2 : 1))) <= breite)
                return fehler("the next character would have fitted");
        }
    }
    return p == text.size() ? QString() : u"%1 characters are missing"_s.arg(text.size() - p);
}

/// Texts with all that matters to a break: pairs of letters that move together, blanks, line ends, long words.
QString zufallstext(std::mt19937 &zufall)
{
    const auto zahl = [&](int von, int bis) { return std::uniform_int_distribution(von, bis)(zufall); };
    const QStringList silben{u"A"_s, u"V"_s,  u"Te"_s,      u"Yo"_s, u"W."_s,  u"ä"_s,       u"ß"_s,
                             u"i"_s, u"mm"_s, u"Pflanze"_s, u"-"_s,  u"(,)"_s, u"ö\u0301"_s, smiley};
    const QStringList trenner{u" "_s,  u" "_s,  u" "_s,  u" "_s,    u" "_s,    u"  "_s,    u"     "_s,
                              u"\t"_s, u"\n"_s, u"\r"_s, u"\r\n"_s, u"\n\n"_s, u" \r\n "_s};
    QString text;
    for (int wort = zahl(1, 60); wort > 0; --wort) {
        for (int silbe = zahl(0, 40) == 0 ? zahl(20, 80) : zahl(1, 5); silbe > 0; --silbe)
            text += silben[zahl(0, int(silben.size()) - 1)];
        text += trenner[zahl(0, int(trenner.size()) - 1)];
    }
    return zahl(0, 5) == 0 ? trenner[zahl(0, int(trenner.size()) - 1)] + text : text;
}

} // namespace

/// Long texts become lines.
class TestUmbruch : public QObject
{
    Q_OBJECT

private slots:
    void texte_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("breiteVon"); // the lines may be as wide as this
        QTest::addColumn<QStringList>("zeilen");
        const auto zeile = [](const char *name, const QString &text, const QString &breiteVon, const QStringList &zeilen) {
            QTest::newRow(name) << text << breiteVon << zeilen;
        };
        const QString lang(60, u'x'), passt = u"eins zwei drei"_s;
        zeile("empty", {}, lang, {});
        zeile("one word", u"Kaktus"_s, lang, {u"Kaktus"_s});
        zeile("several words", passt, lang, {passt});
        zeile("exact fit", passt, passt, {passt});
        zeile("exact fit, another word", passt + u" vier"_s, passt, {passt, u"vier"_s});
        zeile("exact fit twice", passt + u' ' + passt, passt, {passt, passt});
        zeile("exact fit, pairs that move together", u"AV AVA TA Te Vo"_s, u"AV AVA TA"_s, {u"AV AVA TA"_s, u"Te Vo"_s});
        zeile("a trifle too long", passt + u'.', passt, {u"eins zwei"_s, u"drei."_s});
        zeile("blank behind", passt + u' ', passt, {passt});
        zeile("blanks behind", passt + u"    "_s, passt, {passt});
        zeile("blanks behind, more words", passt + u"  vier  "_s, passt, {passt, u"vier"_s});
        zeile("several blanks at the break", passt + u"    vier"_s, passt, {passt, u"vier"_s});
        zeile("several blanks within the line", u"eins   zwei drei"_s, u"eins   zwei"_s, {u"eins   zwei"_s, u"drei"_s});
        zeile("more blanks than a line holds", u"eins%1zwei"_s.arg(QString(500, u' ')), passt, {u"eins"_s, u"zwei"_s});
        zeile("blank before", u"  eins"_s, passt, {u"  eins"_s});
        zeile("blank before an exact fit", u' ' + lang, lang, {lang});
        zeile("only a blank", u" "_s, passt, {u" "_s});
        zeile("LF", u"eins\nzwei"_s, lang, {u"eins"_s, u"zwei"_s});
        zeile("CR", u"eins\rzwei"_s, lang, {u"eins"_s, u"zwei"_s});
        zeile("CR LF is one break", u"eins\r\nzwei"_s, lang, {u"eins"_s, u"zwei"_s});
        zeile("LF CR are two", u"eins\n\rzwei"_s, lang, {u"eins"_s, u""_s, u"zwei"_s});
        zeile("CR, CR LF", u"eins\r\r\nzwei"_s, lang, {u"eins"_s, u""_s, u"zwei"_s});
        zeile("all of them", u"a\nb\rc\r\nd\n\n e"_s, lang, {u"a"_s, u"b"_s, u"c"_s, u"d"_s, u""_s, u" e"_s});
        zeile("blank line", u"eins\r\n\r\nzwei"_s, lang, {u"eins"_s, u""_s, u"zwei"_s});
        zeile("blank lines before", u"\n\neins"_s, lang, {u""_s, u""_s, u"eins"_s});
        zeile("line end behind", u"eins\r\n"_s, lang, {u"eins"_s});
        zeile("blank line behind", u"eins\r\n\r\n"_s, lang, {u"eins"_s, u""_s});
        zeile("only a line end", u"\n"_s, lang, {u""_s});
        zeile("blanks before a line end", passt + u"   \nvier"_s, passt, {passt, u"vier"_s});
        zeile("a line end at the width", passt + u'\n' + passt, passt, {passt, passt});
        zeile("tab", u"eins\tzwei"_s, lang, {u"eins zwei"_s});
        zeile("tab at the break", passt + u"\tvier"_s, passt, {passt, u"vier"_s});
        const QString x10(10, u'x');
        zeile("too long a word", QString(25, u'x'), x10, {x10, x10, QString(5, u'x')});
        zeile("too long a word, exactly", QString(20, u'x'), x10, {x10, x10});
        zeile("too long a word between others", u"a %1 b"_s.arg(QString(12, u'x')), x10, {u"a"_s, x10, u"xx b"_s});
        zeile("too long a word behind a blank", u' ' + QString(12, u'x'), x10, {x10, u"xx"_s});
        zeile("no-break space", u"eins zwei\u00A0drei"_s, u"zwei\u00A0drei"_s, {u"eins"_s, u"zwei\u00A0drei"_s});
        zeile("surrogate pairs", smiley.repeated(25), smiley.repeated(10), {smiley.repeated(10), smiley.repeated(10), smiley.repeated(5)});
        zeile("surrogate pairs and letters", (u"xx"_s + smiley).repeated(4), (u"xx"_s + smiley).repeated(2) + u'x',
              {(u"xx"_s + smiley).repeated(2) + u'x', u'x' + smiley + u"xx"_s + smiley});
    }
    void texte()
    {
        QFETCH(QString, text);
        QFETCH(QString, breiteVon);
        Umbrecher u;
        const double breite = u.breite(breiteVon);
        QVERIFY(breite > 10 && breite < 125);
        QTEST(u.zeilen(text, breite), "zeilen");
    }

    /// The last line has the place 1, the first one the highest.
    void reihenfolge()
    {
        Umbrecher u;
        u.druck.TextUmbrechen(u"eins\nzwei\ndrei"_s);
        QCOMPARE(u.druck.DruckZeilenAnzahl, 3);
        QCOMPARE(u.druck.DruckZeilen[3], u"eins"_s);
        QCOMPARE(u.druck.DruckZeilen[2], u"zwei"_s);
        QCOMPARE(u.druck.DruckZeilen[1], u"drei"_s);
        QVERIFY(u.druck.DruckZeilen[0].isNull());
        // A shorter text after it.
        u.druck.TextUmbrechen(u"vier"_s);
        QCOMPARE(u.druck.DruckZeilenAnzahl, 1);
        QCOMPARE(u.druck.DruckZeilen[1], u"vier"_s);
        u.druck.TextUmbrechen(QString());
        QCOMPARE(u.druck.DruckZeilenAnzahl, 0);
        QCOMPARE(u.druck.gekuerzt(), QStringList());
    }

    void hundertZeilen_data()
    {
        QTest::addColumn<int>("anzahl");
        QTest::addColumn<QString>("dahinter");
        QTest::addColumn<bool>("gekuerzt");
        for (const int anzahl : {1, 99, 100, 101, 250})
            QTest::addRow("%d", anzahl) << anzahl << QString() << (anzahl > 100);
        QTest::newRow("100 and a line end") << 100 << u"\n"_s << false;
        QTest::newRow("100 and a blank line") << 100 << u"\n\n"_s << true;
        QTest::newRow("100 and a word") << 100 << u"\nx"_s << true;
    }
    void hundertZeilen()
    {
        QFETCH(int, anzahl);
        QFETCH(QString, dahinter);
        QFETCH(bool, gekuerzt);
        QStringList lang;
        for (int i = 1; i <= anzahl; ++i)
            lang += u"Zeile %1"_s.arg(i);
        Umbrecher u;
        const QStringList zeilen = u.zeilen(lang.join(u'\n') + dahinter);
        QStringList soll = lang.first(std::min(anzahl, 100));
        if (gekuerzt)
            soll.last() += u" ..."_s;
        QCOMPARE(zeilen, soll);
        QCOMPARE(u.druck.DruckZeilenAnzahl, std::min(anzahl, 100));
    }
    void hundertZeilenGenau()
    {
        hundertVolle(100, false);
        hundertVolle(101, true);
    }
    /// The last line of a cut text gives way to the three points; no half character stays.
    void gekuerzteZeilePasst()
    {
        Umbrecher u;
        for (const QString &zeichen : {u"x"_s, smiley, u"W"_s, u"i"_s + smiley})
            for (double breite = 20; breite <= 125; breite += 3.7) {
                const QString letzte = u.zeilen(zeichen.repeated(20000), breite).last();
                QCOMPARE(u.druck.DruckZeilenAnzahl, 100);
                QVERIFY2(letzte.isValidUtf16(), qPrintable(letzte));
                QVERIFY(letzte.endsWith(zeichen.last(1) + u" ..."_s) || letzte.endsWith(zeichen.first(1) + u" ..."_s));
                QVERIFY(u.breite(letzte) <= breite);
                QVERIFY(u.breite(letzte) + 2 * u.breite(zeichen) > breite);
            }
    }

    void riesig_data()
    {
        QTest::addColumn<QString>("text");
        constexpr qsizetype million = 1000000;
        QTest::newRow("no blank") << QString(million, u'x');
        QTest::newRow("narrow letters") << QString(million, u'i');
        QTest::newRow("surrogate pairs") << smiley.repeated(million / 2);
        QTest::newRow("blanks") << QString(million, u' ');
        QTest::newRow("short words") << u"a "_s.repeated(million / 2);
        QTest::newRow("line ends") << QString(million, u'\n');
        QTest::newRow("marks without width") << QString(million, QChar(0x200B));
        QTest::newRow("long words") << (QString(2000, u'm') + u' ').repeated(million / 2001);
    }
    /// A hostile field must not hold up the printout.
    void riesig()
    {
        QFETCH(QString, text);
        Umbrecher u;
        Rechenuhr uhr;
        const QStringList zeilen = u.zeilen(text);
        const qint64 dauer = uhr.elapsed();
        qInfo("%lld ms", dauer);
        QVERIFY2(dauer < 2000, qPrintable(u"%1 ms"_s.arg(dauer)));
        QVERIFY(zeilen.size() == 100 || u.breite(text.left(1000).trimmed()) == 0);
        for (const QString &zeile : zeilen)
            QVERIFY(u.breite(zeile) <= 125);
    }

    void zufall_data()
    {
        QTest::addColumn<double>("groesse");
        QTest::addColumn<bool>("fett");
        QTest::addColumn<bool>("kursiv");
        for (const double groesse : {6.0, 9.0, 13.5, 18.0})
            for (const bool fett : {false, true})
                for (const bool kursiv : {false, true})
                    QTest::addRow("%g%s%s", groesse, fett ? " bold" : "", kursiv ? " italic" : "") << groesse << fett << kursiv;
    }
    /// Every line fits, nothing is lost but blanks and line ends at breaks, and no line could have held more.
    void zufall()
    {
        QFETCH(double, groesse);
        QFETCH(bool, fett);
        QFETCH(bool, kursiv);
        Umbrecher u;
        u.drucker.Font = {u"Arial"_s, groesse, fett, kursiv};
        std::mt19937 zufall(20240611);
        int umbrochen = 0;
        for (int i = 0; i < 60; ++i) {
            const QString text = zufallstext(zufall);
            const double breite = std::uniform_int_distribution(20, 125)(zufall);
            const QStringList zeilen = u.zeilen(text, breite);
            if (zeilen.size() == 100)
                continue; // cut
            umbrochen += zeilen.size() > 1;
            const QString fehler = umbruchfehler(u, text, zeilen, breite);
            QVERIFY2(fehler.isEmpty(), qPrintable(u"text %1, %2 mm, %3\n'%4'"_s.arg(i).arg(breite).arg(fehler, text)));
        }
        QVERIFY(umbrochen > 40);
    }

    void rechterRand_data()
    {
        QTest::addColumn<QPageLayout>("blatt");
        QTest::addColumn<double>("scaleLeft");
        QTest::addColumn<double>("x");
        QTest::addColumn<double>("breite");
        const auto layout = [](QPageSize::PageSizeId groesse, QMarginsF raender = {}) {
            return QPageLayout(QPageSize(groesse), QPageLayout::Portrait, raender, QPageLayout::Millimeter);
        };
        // The rules are 25 mm narrower than the printable area and begin 15 mm inside it.
        const QPageLayout a4 = blattA4();
        QTest::newRow("sheet") << a4 << -65.0 << 0.0 << 125.0;
        QTest::newRow("list") << a4 << -20.0 << 0.0 << 125.0;
        QTest::newRow("sheet, nothing to spare") << a4 << -65.0 << 10.0 << 125.0;
        QTest::newRow("sheet, further right") << a4 << -65.0 << 35.0 << 100.0;
        QTest::newRow("list, German names") << a4 << -20.0 << 90.0 << 90.0;
        QTest::newRow("labels' column") << a4 << -65.0 << -50.0 << 125.0;
        QTest::newRow("margins") << layout(QPageSize::A4, {10, 10, 20, 10}) << -65.0 << 0.0 << 105.0;
        QTest::newRow("A5") << layout(QPageSize::A5) << -65.0 << 0.0 << 73.0;
        QTest::newRow("A5, list") << layout(QPageSize::A5) << -20.0 << 90.0 << 28.0;
        QTest::newRow("A3") << layout(QPageSize::A3) << -65.0 << 0.0 << 125.0;
        QTest::newRow("hardly any room") << a4 << -65.0 << 130.0 << 10.0;
        QTest::newRow("beyond the edge") << a4 << -65.0 << 300.0 << 10.0;
    }
    void rechterRand()
    {
        QFETCH(QPageLayout, blatt);
        QFETCH(double, scaleLeft);
        QFETCH(double, x);
        QFETCH(double, breite);
        Umbrecher u(blatt);
        u.drucker.ScaleLeft = scaleLeft;
        u.drucker.CurrentX = x;
        std::mt19937 zufall(7);
        for (int i = 0; i < 20; ++i) {
            const QString text = zufallstext(zufall).left(600);
            const QStringList zeilen = u.zeilen(text);
            if (zeilen.size() < 100) {
                const QString fehler = umbruchfehler(u, text, zeilen, breite);
                QVERIFY2(fehler.isEmpty(), qPrintable(fehler));
            }
        }
        // A caller's own width counts where there is room for it.
        const QString text = u"eine Zeile mit mehreren kurzen Worten"_s;
        QCOMPARE(umbruchfehler(u, text, u.zeilen(text, 30), std::min(30.0, breite)), QString());
        QCOMPARE(u.drucker.CurrentX, x);
    }

private:
    void hundertVolle(int anzahl, bool gekuerzt)
    {
        Umbrecher u;
        const QString zeile = u"voll voll voll"_s;
        const QStringList zeilen = u.zeilen(QStringList(anzahl, zeile).join(u' '), u.breite(zeile));
        QCOMPARE(zeilen.size(), 100);
        QCOMPARE(zeilen.first(99), QStringList(99, zeile));
        QCOMPARE(zeilen.last() == zeile, !gekuerzt);
        QCOMPARE(zeilen.last().endsWith(u" ..."_s), gekuerzt);
    }
};

FLOX_TEST(tst_umbruch, TestUmbruch)
#include "tst_umbruch.moc"
