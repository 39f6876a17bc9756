#include "Volltext.h"

#include <QRegularExpression>

#include <algorithm>
#include <utility>

namespace {

QString ohneMarken(const QString &html)
{
    static const QRegularExpression unsichtbar(QStringLiteral("<(style|title|script)\\b.*?</\\1>|<!--.*?-->"),
                                               QRegularExpression::DotMatchesEverythingOption | QRegularExpression::CaseInsensitiveOption);
    // Marks inside a word part nothing; the others end one.
    static const QRegularExpression imWort(QStringLiteral("</?(a|b|i|em|strong|span|code|kbd)\\b[^>]*>"), QRegularExpression::CaseInsensitiveOption);
    static const QRegularExpression marke(QStringLiteral("<[^>]*>"));
    QString text = html;
    text.remove(unsichtbar).remove(imWort).replace(marke, QStringLiteral(" "));
    constexpr std::pair<const char *, const char *> zeichen[] = {{"&nbsp;", " "}, {"&lt;", "<"}, {"&gt;", ">"}, {"&quot;", "\""}, {"&amp;", "&"}};
    for (const auto &[name, wort] : zeichen)
        text.replace(QLatin1String(name), QLatin1String(wort));
    return text.simplified();
}

QString auszugUm(const QString &text, qsizetype ort)
{
    constexpr qsizetype davor = 30, danach = 70;
    if (ort < 0)
        return {};
    qsizetype von = std::max<qsizetype>(0, ort - davor), bis = std::min(text.size(), ort + danach);
    if (von > 0)
        von = std::min(ort, text.indexOf(u' ', von) + 1);
    if (bis < text.size())
        bis = std::max(ort, text.lastIndexOf(u' ', bis));
    return (von > 0 ? QStringLiteral("… ") : QString()) + text.sliced(von, bis - von) + (bis < text.size() ? QStringLiteral(" …") : QString());
}

} // namespace

Hilfeseite hilfeseite(const QString &name, const QString &html)
{
    static const QRegularExpression titel(QStringLiteral("<title>(.*?)</title>"), QRegularExpression::DotMatchesEverythingOption);
    static const QRegularExpression koerper(QStringLiteral("<body\\b[^>]*>(.*)</body>"), QRegularExpression::DotMatchesEverythingOption);
    const QRegularExpressionMatch gefunden = koerper.match(html);
    return {name, ohneMarken(titel.match(html).captured(1)), ohneMarken(gefunden.hasMatch() ? gefunden.captured(1) : html)};
}

QStringList suchworte(const QString &frage)
{
    static const QRegularExpression wort(QStringLiteral("\"([^\"]+)\"?|([^\\s\"]+)"));
    QStringList worte;
    for (auto i = wort.globalMatch(frage); i.hasNext();) {
        const QRegularExpressionMatch eines = i.next();
        const QString text = (eines.captured(1) + eines.captured(2)).simplified().toCaseFolded();
        if (!text.isEmpty() && !worte.contains(text))
            worte += text;
    }
    return worte;
}

std::vector<Treffer> suchen(const std::vector<Hilfeseite> &seiten, const QString &frage)
{
    struct Gewichtet
    {
        qsizetype imTitel, imText;
        Treffer treffer;
    };
    const QStringList worte = suchworte(frage);
    std::vector<Gewichtet> gefunden;
    for (const Hilfeseite &seite : seiten) {
        Gewichtet eine{0, 0, {seite.name, seite.titel, {}}};
        const bool alle = !worte.isEmpty() && std::ranges::all_of(worte, [&](const QString &wort) {
            const qsizetype imTitel = seite.titel.count(wort, Qt::CaseInsensitive), imText = seite.text.count(wort, Qt::CaseInsensitive);
            eine.imTitel += imTitel > 0;
            eine.imText += imText;
            if (eine.treffer.auszug.isEmpty())
                eine.treffer.auszug = auszugUm(seite.text, seite.text.indexOf(wort, 0, Qt::CaseInsensitive));
            return imTitel + imText > 0;
        });
        if (alle)
            gefunden.push_back(eine);
    }
    std::ranges::stable_sort(gefunden, std::ranges::greater(), [](const Gewichtet &eine) { return std::pair(eine.imTitel, eine.imText); });
    std::vector<Treffer> treffer;
    for (Gewichtet &eine : gefunden)
        treffer.push_back(std::move(eine.treffer));
    return treffer;
}
