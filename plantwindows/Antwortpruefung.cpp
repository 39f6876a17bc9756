#include "Antwortpruefung.h"

#include <QRegularExpression>

#include <algorithm>
#include <initializer_list>
#include <vector>

namespace {

constexpr qsizetype mitBuchstabenfehler = 4; ///< letters of a word from which on one of them may be wrong
constexpr qsizetype kuerzesterStamm = 2;     ///< letters before an ending

/// Endings that are taken for one another.
constexpr std::initializer_list<QStringView> endungen[] = {
    {u"us", u"a", u"um", u"os", u"on"},
    {u"is", u"e"},
    {u"er", u"ra", u"rum"},
    {u"er", u"era", u"erum"},
    {u"ii", u"i"},
    {u"iae", u"ae"},
    {u"orum", u"arum"},
    {u"or", u"us", u"ius"},
    {u"es", u"is"},
    {u"ensis", u"ense", u"ensus"},
    {u"aceae", u"aceen", u"aceaes"},
    {u"ales", u"alis"},
    {u"oides", u"oideus", u"oidea", u"oideum"},
    {u"ix", u"ex"},
    {u"gewächse", u"gewächs"},
};

bool istAnfuehrung(QChar zeichen)
{
    return QStringView(u"'`´‘’‚“”„\"").contains(zeichen);
}

/// Without what does not count, letters as they are: one blank between words.
QString bereinigt(const QString &text)
{
    QString ergebnis;
    for (const QChar zeichen : text.normalized(QString::NormalizationForm_C)) {
        if (istAnfuehrung(zeichen) || zeichen == u'.' || zeichen == u'×')
            ergebnis += zeichen == u'×' ? QStringLiteral(" ") : QString();
        else if (QStringView(u"‐‑–").contains(zeichen))
            ergebnis += u'-';
        else
            ergebnis += zeichen;
    }
    QStringList worte = ergebnis.simplified().split(u' ');
    // The sign of a hybrid as it is typed.
    worte.removeIf([](const QString &wort) { return wort == u"x" || wort == u"X"; });
    for (QString &wort : worte)
        if (wort == u"ssp")
            wort = QStringLiteral("subsp");
    return worte.join(u' ');
}

/// Letters without accents; ä, ö, ü, ß as they are typed without their keys.
QString ausgeschrieben(const QString &text)
{
    QString ergebnis;
    for (const QChar zeichen : text) {
        switch (zeichen.unicode()) {
        case u'ä': ergebnis += QStringLiteral("ae"); break;
        case u'ö': ergebnis += QStringLiteral("oe"); break;
        case u'ü': ergebnis += QStringLiteral("ue"); break;
        case u'Ä': ergebnis += QStringLiteral("Ae"); break;
        case u'Ö': ergebnis += QStringLiteral("Oe"); break;
        case u'Ü': ergebnis += QStringLiteral("Ue"); break;
        case u'ß': ergebnis += QStringLiteral("ss"); break;
        default: ergebnis += zeichen.decomposition().isEmpty() ? zeichen : zeichen.decomposition().front();
        }
    }
    return ergebnis;
}

/// "Schwarz-Erle" as "Schwarzerle".
QString ohneBindestriche(const QString &text)
{
    QString ergebnis;
    bool nachStrich = false;
    for (const QChar zeichen : text) {
        if (zeichen == u'-') {
            nachStrich = true;
            continue;
        }
        ergebnis += nachStrich ? zeichen.toLower() : zeichen;
        nachStrich = false;
    }
    return ergebnis;
}

/// Whether one letter changed, added, taken away or exchanged with its neighbour leads from one word to the other.
bool einBuchstabe(QStringView a, QStringView b)
{
    if (a.size() > b.size())
        std::swap(a, b);
    if (b.size() - a.size() > 1)
        return false;
    qsizetype vorn = 0;
    while (vorn < a.size() && a[vorn] == b[vorn])
        ++vorn;
    qsizetype hinten = 0;
    while (hinten < a.size() - vorn && a[a.size() - 1 - hinten] == b[b.size() - 1 - hinten])
        ++hinten;
    const qsizetype inA = a.size() - vorn - hinten, inB = b.size() - vorn - hinten;
    return inB <= 1 || (inA == 2 && inB == 2 && a[vorn] == b[vorn + 1] && a[vorn + 1] == b[vorn]);
}

bool andereEndung(QStringView a, QStringView b)
{
    return std::ranges::any_of(endungen, [&](const auto &gruppe) {
        for (const QStringView endeA : gruppe)
            for (const QStringView endeB : gruppe) {
                const qsizetype stamm = a.size() - endeA.size();
                if (stamm >= kuerzesterStamm && endeA != endeB && a.endsWith(endeA) && b.endsWith(endeB) && stamm == b.size() - endeB.size()
                    && a.first(stamm) == b.first(stamm))
                    return true;
            }
        return false;
    });
}

struct Vergleich
{
    Urteil urteil = Urteil::Falsch;
    QString grund = {};
};

Vergleich vergleichen(const QString &gegeben, const QString &richtig)
{
    const QString a = ausgeschrieben(gegeben), b = ausgeschrieben(richtig);
    if (a == b)
        return {Urteil::Richtig};
    const QString kleinA = a.toLower(), kleinB = b.toLower();
    if (kleinA == kleinB)
        return {Urteil::Fast, QStringLiteral("Groß- und Kleinschreibung")};
    // One flaw at the most, and the capitals are right.
    const QStringList worteA = a.split(u' '), worteB = b.split(u' ');
    if (worteA.size() == worteB.size()) {
        qsizetype anders = -1;
        for (qsizetype i = 0; i < worteA.size(); ++i)
            if (worteA[i] != worteB[i]) {
                if (anders >= 0)
                    return {};
                anders = i;
            }
        const QString &wortA = worteA[anders], &wortB = worteB[anders];
        if (andereEndung(wortA, wortB))
            return {Urteil::Fast, QStringLiteral("Endung")};
        if (std::min(wortA.size(), wortB.size()) >= mitBuchstabenfehler && einBuchstabe(wortA, wortB))
            return {Urteil::Fast, QStringLiteral("ein Buchstabe")};
        return {};
    }
    if (std::min(a.size(), b.size()) >= mitBuchstabenfehler && einBuchstabe(a, b))
        return {Urteil::Fast, QStringLiteral("Leerzeichen")};
    return {};
}

Vergleich vergleichen(const QString &gegeben, const QString &richtig, bool deutsch)
{
    Vergleich ergebnis = vergleichen(gegeben, richtig);
    if (ergebnis.urteil == Urteil::Richtig || !(gegeben.contains(u'-') || richtig.contains(u'-')))
        return ergebnis;
    // German names are written with and without hyphens; in a botanical name it is a letter like others.
    if (deutsch) {
        const Vergleich ohne = vergleichen(ohneBindestriche(gegeben), ohneBindestriche(richtig));
        return ohne.urteil > ergebnis.urteil ? ohne : ergebnis;
    }
    const auto alsLeer = [](QString text) { return text.replace(u'-', u' '); };
    const Vergleich ohne = vergleichen(alsLeer(gegeben), alsLeer(richtig));
    return ohne.urteil > ergebnis.urteil ? ohne : ergebnis;
}

} // namespace

Befund antwortPruefen(const QString &gegeben, const Loesung &loesung)
{
    const QString antwort = bereinigt(gegeben);
    if (antwort.isEmpty())
        return {};
    Befund bester;
    const auto besser = [&](Urteil urteil, const QString &grund) {
        if (urteil > bester.urteil)
            bester = {urteil, grund};
    };
    for (const QString &richtig : QStringList{loesung.text} + loesung.auch) {
        if (richtig.isEmpty())
            continue;
        const Vergleich ergebnis = vergleichen(antwort, bereinigt(richtig), loesung.deutsch);
        besser(ergebnis.urteil, ergebnis.grund);
    }
    const auto genau = [&](const QStringList &liste) {
        return std::ranges::any_of(liste, [&](const QString &text) {
            return !text.isEmpty() && vergleichen(antwort, bereinigt(text), loesung.deutsch).urteil == Urteil::Richtig;
        });
    };
    if (genau(loesung.teile))
        besser(Urteil::Fast, QStringLiteral("unvollständig"));
    if (genau(loesung.frueher))
        besser(Urteil::Fast, QStringLiteral("veraltet"));
    return bester;
}

QStringView urteilswort(Urteil urteil)
{
    switch (urteil) {
    case Urteil::Richtig: return u"richtig";
    case Urteil::Fast: return u"fast";
    case Urteil::Falsch: return u"falsch";
    }
    return {};
}

QString punktetext(int halbe)
{
    const QString ganze = QString::number(halbe / 2);
    if (halbe % 2 == 0)
        return ganze;
    return halbe == 1 ? QStringLiteral("½") : ganze + u'½';
}

Namensteile namensteile(const QString &botanisch)
{
    QString rest = botanisch.simplified();
    Namensteile teile;
    // The variety stands between the first quote that begins a word and the end.
    static const QRegularExpression sorte(QStringLiteral("(^|\\s)['‘](.*)['’]$"));
    if (const QRegularExpressionMatch fund = sorte.match(rest); fund.hasMatch()) {
        teile.sorte = fund.captured(2);
        rest = rest.left(fund.capturedStart()).trimmed();
    }
    QStringList worte = rest.split(u' ', Qt::SkipEmptyParts);
    worte.removeAll(QStringLiteral("×"));
    worte.removeAll(QStringLiteral("x"));
    for (QString &wort : worte)
        if (wort.size() > 1 && wort.startsWith(u'×'))
            wort.remove(0, 1);
    if (worte.isEmpty())
        return teile;
    // "Begonia-Rex-Hybriden": the genus ends at the first hyphen.
    const qsizetype strich = worte.front().indexOf(u'-');
    teile.gattung = strich > 0 ? worte.front().first(strich) : worte.front();
    if (strich > 0)
        worte.front().remove(0, strich + 1);
    else
        worte.removeFirst();
    teile.art = worte.join(u' ');
    return teile;
}

QString nurArt(const QString &art)
{
    static const QRegularExpression mehr(QStringLiteral("( (subsp\\.|var\\.|f\\.|convar\\.) .*|-(Hybriden|Gruppe))$"));
    const qsizetype stelle = art.indexOf(mehr);
    return stelle > 0 ? art.left(stelle) : QString();
}
