#include "AccessSql.h"

#include "Datenbank.h"
#include "Fehler.h"
#include "Text.h"

#include <QRegularExpression>

namespace {

enum class Sorte { Wort, Text, Zahl, Zeichen, Ende };

struct Stueck
{
    Sorte sorte = Sorte::Ende;
    QString text; ///< a word without its brackets, a literal without its quotes
    qsizetype anfang = 0, ende = 0;

    bool ist(const char *wort) const { return sorte == Sorte::Wort && text.compare(QLatin1String(wort), Qt::CaseInsensitive) == 0; }
};

QList<Stueck> zerlegen(const QString &sql)
{
    QList<Stueck> stuecke;
    qsizetype i = 0;
    const auto bisZeichen = [&](QChar schluss) {
        QString inhalt;
        for (++i; i < sql.size(); ++i) {
            if (sql[i] == schluss) {
                if (schluss == u']' || i + 1 >= sql.size() || sql[i + 1] != schluss)
                    return ++i, inhalt;
                ++i;
            }
            inhalt += sql[i];
        }
        throw Fehler(QStringLiteral("Syntaxfehler in der Anweisung: %1").arg(sql));
    };
    while (i < sql.size()) {
        const QChar z = sql[i];
        if (z.isSpace()) {
            ++i;
            continue;
        }
        Stueck stueck{Sorte::Zeichen, QString(z), i, i + 1};
        if (z == u'\'' || z == u'"') {
            stueck.sorte = Sorte::Text;
            stueck.text = bisZeichen(z);
        } else if (z == u'[') {
            stueck.sorte = Sorte::Wort;
            stueck.text = bisZeichen(u']');
        } else if (z.isLetter() || z == u'_') {
            while (i < sql.size() && (sql[i].isLetterOrNumber() || sql[i] == u'_'))
                ++i;
            stueck = {Sorte::Wort, sql.mid(stueck.anfang, i - stueck.anfang), stueck.anfang, i};
        } else if (z.isDigit()) {
            while (i < sql.size() && (sql[i].isDigit() || sql[i] == u'.'))
                ++i;
            stueck = {Sorte::Zahl, sql.mid(stueck.anfang, i - stueck.anfang), stueck.anfang, i};
        } else {
            ++i;
        }
        stueck.ende = i;
        stuecke += stueck;
    }
    stuecke += Stueck{Sorte::Ende, {}, sql.size(), sql.size()};
    return stuecke;
}

bool nurZiffern(const QString &text)
{
    return !text.isEmpty() && text.size() < 19 && std::ranges::all_of(text, [](QChar z) { return z >= u'0' && z <= u'9'; });
}

QString bezeichner(const QString &name)
{
    return u'"' + QString(name).replace(u'"', QStringLiteral("\"\"")) + u'"';
}

/// Condition in SQLite's words. LIKE '*' and LIKE with a number on an INTEGER column become tests that can use an index.
QString bedingungAus(const QString &sql, const QList<Stueck> &stuecke, qsizetype von, qsizetype bis, const QString &tabelle, Datenbank &db)
{
    QString aus;
    for (qsizetype i = von; i < bis; ++i) {
        const Stueck &s = stuecke[i];
        if (s.sorte == Sorte::Wort && i + 2 < bis && stuecke[i + 1].ist("LIKE")) {
            const Stueck &muster = stuecke[i + 2];
            if (muster.sorte == Sorte::Text && muster.text == u"*") {
                aus += bezeichner(s.text) + QStringLiteral(" IS NOT NULL ");
                i += 2;
                continue;
            }
            const bool nummer = muster.text == u"?" && muster.sorte == Sorte::Zeichen;
            if ((nummer || (muster.sorte != Sorte::Wort && nurZiffern(muster.text))) && db.istGanzzahl(tabelle, s.text)) {
                aus += QStringLiteral("%1 = %2 ").arg(bezeichner(s.text), muster.text);
                i += 2;
                continue;
            }
        }
        if (s.sorte == Sorte::Text)
            aus += u'\'' + QString(s.text).replace(u'\'', QStringLiteral("''")) + QStringLiteral("' ");
        else
            aus += sql.mid(s.anfang, s.ende - s.anfang) + u' ';
    }
    return aus;
}

} // namespace

Auswahl auswahlLesen(const QString &recordSource, Datenbank &db)
{
    const QList<Stueck> stuecke = zerlegen(recordSource);
    const auto falsch = [&] { return Fehler(QStringLiteral("Syntaxfehler in der Anweisung: %1").arg(recordSource)); };
    Auswahl auswahl;
    if (!stuecke[0].ist("SELECT")) {
        if (stuecke.size() != 2 || stuecke[0].sorte != Sorte::Wort)
            throw falsch();
        auswahl.tabelle = stuecke[0].text;
        return auswahl;
    }
    qsizetype i = 1;
    while (stuecke[i].sorte != Sorte::Ende && !stuecke[i].ist("FROM"))
        ++i;
    if (stuecke[i].sorte == Sorte::Ende || i == 1 || stuecke[i + 1].sorte != Sorte::Wort)
        throw falsch();
    auswahl.spalten = recordSource.mid(stuecke[1].anfang, stuecke[i - 1].ende - stuecke[1].anfang);
    auswahl.tabelle = stuecke[i + 1].text;
    i += 2;
    if (stuecke[i].ist("WHERE")) {
        const qsizetype von = ++i;
        while (stuecke[i].sorte != Sorte::Ende && !(stuecke[i].ist("ORDER") && stuecke[i + 1].ist("BY")))
            ++i;
        if (i == von)
            throw falsch();
        auswahl.bedingung = bedingungAus(recordSource, stuecke, von, i, auswahl.tabelle, db);
    }
    if (stuecke[i].ist("ORDER")) {
        if (!stuecke[i + 1].ist("BY") || stuecke[i + 2].sorte != Sorte::Wort)
            throw falsch();
        auswahl.sortierfeld = stuecke[i + 2].text;
        i += 3;
        if (stuecke[i].ist("DESC") || stuecke[i].ist("ASC"))
            auswahl.absteigend = stuecke[i++].ist("DESC");
    }
    if (stuecke[i].sorte != Sorte::Ende)
        throw falsch();
    return auswahl;
}

std::optional<Kopierauftrag> kopierauftragLesen(const QString &sql)
{
    static const QRegularExpression form(QStringLiteral(R"(^\s*SELECT\s+(.+?)\s+INTO\s+\[?(\w+)\]?\s+IN\s+'((?:[^']|'')*)'\s+FROM\s+(.+?)\s*;?\s*$)"),
                                         QRegularExpression::CaseInsensitiveOption | QRegularExpression::DotMatchesEverythingOption);
    const QRegularExpressionMatch treffer = form.match(sql);
    if (!treffer.hasMatch())
        return std::nullopt;
    return Kopierauftrag{treffer.captured(1), treffer.captured(2), treffer.captured(3).replace(QStringLiteral("''"), QStringLiteral("'")),
                         treffer.captured(4)};
}

namespace {

/// One pattern element at `m` against `z`; moves `m` behind the element.
bool passtZeichen(QStringView muster, qsizetype &m, QChar z)
{
    const QChar p = muster[m];
    if (p == u'?')
        return ++m, true;
    if (p == u'#')
        return ++m, z.isDigit();
    const qsizetype schluss = p == u'[' ? muster.indexOf(u']', m + 2) : -1;
    if (schluss < 0)
        return ++m, p.toUpper() == z.toUpper();
    qsizetype i = m + 1;
    const bool verneint = muster[i] == u'!' && i + 1 < schluss;
    if (verneint)
        ++i;
    bool drin = false;
    const QChar gross = z.toUpper();
    for (; i < schluss; ++i) {
        const QChar von = muster[i].toUpper();
        if (i + 2 < schluss && muster[i + 1] == u'-') {
            drin |= gross >= von && gross <= muster[i + 2].toUpper();
            i += 2;
        } else {
            drin |= gross == von;
        }
    }
    m = schluss + 1;
    return drin != verneint;
}

} // namespace

bool accessLike(QStringView muster, QStringView text)
{
    qsizetype m = 0, t = 0, sternMuster = -1, sternText = 0;
    while (t < text.size()) {
        if (m < muster.size() && muster[m] == u'*') {
            sternMuster = ++m;
            sternText = t;
            continue;
        }
        qsizetype weiter = m;
        if (m < muster.size() && passtZeichen(muster, weiter, text[t])) {
            m = weiter;
            ++t;
        } else if (sternMuster >= 0) {
            m = sternMuster;
            t = ++sternText;
        } else {
            return false;
        }
    }
    while (m < muster.size() && muster[m] == u'*')
        ++m;
    return m == muster.size();
}
