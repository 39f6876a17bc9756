#include "Faltung.h"

#include <algorithm>
#include <array>

namespace {

bool istZeichen(QChar zeichen)
{
    return zeichen.isMark() || zeichen.category() == QChar::Other_Format;
}

bool verbindet(QChar zeichen)
{
    switch (zeichen.unicode()) {
    case u'-':
    case u'\u2010':
    case u'\u2011':
    case u'\'':
    case u'’':
    case u'‘':
    case u'`':
    case u'´': return true;
    default: return false;
    }
}

/// What a letter becomes that is not merely a plain one with an accent; empty for all others.
QStringView ersatz(QChar klein)
{
    switch (klein.unicode()) {
    case u'ä':
    case u'æ': return u"ae";
    case u'ö':
    case u'ø':
    case u'œ': return u"oe";
    case u'ü': return u"ue";
    case u'ß': return u"ss";
    case u'ł': return u"l";
    case u'đ':
    case u'ð': return u"d";
    case u'þ': return u"th";
    case u'ı': return u"i";
    default: return {};
    }
}

/// A letter with its marks, or a sign that stands for some.
void zerlegtAnhaengen(QString &ziel, QStringView zeichen)
{
    const QString klein = zeichen.toString().normalized(QString::NormalizationForm_C).toLower();
    for (const QChar buchstabe : klein) {
        if (const QStringView wort = ersatz(buchstabe); !wort.isEmpty()) {
            ziel += wort;
            continue;
        }
        const QString zerlegt = buchstabe.isSurrogate() ? QString(buchstabe) : QString(buchstabe).normalized(QString::NormalizationForm_KD);
        for (const QChar teil : zerlegt)
            if (teil.isSurrogate() || teil.isLetterOrNumber())
                ziel += teil;
    }
}

/// Folds the character at `ort` with the marks behind it, appends what it gives and goes on behind it.
void falten(QStringView text, qsizetype &ort, QString &ziel)
{
    const char16_t c = text[ort].unicode();
    const bool allein = ort + 1 == text.size() || text[ort + 1].unicode() < 0xAD || !istZeichen(text[ort + 1]);
    if (allein && c < 0x80) {
        ++ort;
        if ((c >= u'a' && c <= u'z') || (c >= u'0' && c <= u'9'))
            ziel += QChar(c);
        else if (c >= u'A' && c <= u'Z')
            ziel += QChar(char16_t(c + (u'a' - u'A')));
        return;
    }
    if (allein && c < 0x100) {
        if (const QStringView wort = ersatz(QChar(c).toLower()); !wort.isEmpty()) {
            ++ort;
            ziel += wort;
            return;
        }
    }
    qsizetype ende = ort + 1;
    if (text[ort].isHighSurrogate() && ende < text.size())
        ++ende;
    while (ende < text.size() && istZeichen(text[ende]))
        ++ende;
    zerlegtAnhaengen(ziel, text.mid(ort, ende - ort));
    ort = ende;
}

} // namespace

bool Wortleser::weiter()
{
    return ++stelle_ < int(teile_.size()) || zusammengesetztes();
}

bool Wortleser::zusammengesetztes()
{
    puffer_.resize(0);
    teile_.clear();
    stelle_ = 0;
    while (ort_ < text_.size()) {
        const qsizetype vorher = puffer_.size(), anfang = ort_;
        falten(text_, ort_, puffer_);
        if (puffer_.size() > vorher) {
            // A part begins behind nothing or behind what joins.
            if (teile_.empty() || teile_.back().ende != anfang)
                teile_.push_back({vorher, puffer_.size(), anfang, ort_});
            else
                teile_.back().bis = puffer_.size(), teile_.back().ende = ort_;
        } else if (!teile_.empty() && (teile_.back().ende != anfang || !verbindet(text_[anfang]))) {
            break;
        }
    }
    if (teile_.size() > 1)
        teile_.push_back({0, puffer_.size(), teile_.front().anfang, teile_.back().ende});
    return !teile_.empty();
}

QString gefaltet(QStringView text)
{
    QString ziel;
    for (Wortleser leser(text); leser.weiter();)
        if (!leser.teile()) {
            if (!ziel.isEmpty())
                ziel += u' ';
            ziel += leser.wort();
        }
    return ziel;
}

qsizetype ungefaltet(QStringView text, qsizetype anfang, qsizetype zeichen)
{
    QString puffer;
    qsizetype ort = anfang;
    while (ort < text.size() && puffer.size() < zeichen)
        falten(text, ort, puffer);
    return ort - anfang;
}

bool fastAnfang(QStringView wort, QStringView frage)
{
    const qsizetype gemeinsam = std::min(wort.size(), frage.size());
    const qsizetype gleich = std::mismatch(frage.begin(), frage.begin() + gemeinsam, wort.begin()).first - frage.begin();
    if (gleich == frage.size())
        return true;
    const QStringView f = frage.mid(gleich), w = wort.mid(gleich);
    if (f.size() == 1 || w.startsWith(f.mid(1)))
        return true; // a letter too many
    if (w.isEmpty())
        return false;
    return w.mid(1).startsWith(f)           // a letter is missing
           || w.mid(1).startsWith(f.mid(1)) // another letter
           || (f.size() > 1 && w.size() > 1 && f[0] == w[1] && f[1] == w[0] && w.mid(2).startsWith(f.mid(2)));
}

std::optional<Guete> passung(QStringView wort, QStringView frage)
{
    if (wort.startsWith(frage))
        return Guete::Anfang;
    if (frage.size() >= innenAb && wort.contains(frage))
        return Guete::Innen;
    if (frage.size() >= aehnlichAb && fastAnfang(wort, frage))
        return Guete::Aehnlich;
    return std::nullopt;
}

Suchfrage::Suchfrage(QStringView text)
{
    for (Wortleser leser(text); leser.weiter();) {
        Wort wort{leser.wort().toString(), {}};
        if (const int teile = leser.teile()) {
            for (auto teil = woerter.end() - teile; teil != woerter.end(); ++teil)
                wort.teile.push_back(std::move(teil->ganz));
            woerter.erase(woerter.end() - teile, woerter.end());
        }
        woerter.push_back(std::move(wort));
    }
    if (woerter.size() > 1 && std::ranges::any_of(woerter, [](const Wort &wort) { return wort.ganz != u"x"; }))
        std::erase_if(woerter, [](const Wort &wort) { return wort.ganz == u"x"; });
}

namespace {

/// The words of a query, a compound as its whole and its parts, with the place of the word it belongs to.
std::vector<std::pair<QStringView, size_t>> einzeln(const Suchfrage &frage)
{
    std::vector<std::pair<QStringView, size_t>> woerter;
    for (size_t i = 0; i < frage.woerter.size(); ++i) {
        woerter.emplace_back(frage.woerter[i].ganz, i);
        for (const QString &teil : frage.woerter[i].teile)
            woerter.emplace_back(teil, i);
    }
    return woerter;
}

} // namespace

std::vector<Strecke> fundstellen(QStringView text, const Suchfrage &frage, Guete bis)
{
    std::vector<Strecke> stellen;
    for (const auto &[gesucht, platz] : einzeln(frage)) {
        std::vector<Strecke> genaue, aehnliche;
        for (Wortleser leser(text); leser.weiter();) {
            const std::optional<Guete> guete = passung(leser.wort(), gesucht);
            if (!guete || *guete > bis)
                continue;
            if (*guete == Guete::Aehnlich) {
                // A part says it better than the whole, which comes behind it.
                if (leser.teile() && !aehnliche.empty() && aehnliche.back().anfang >= leser.anfang())
                    continue;
                aehnliche.push_back({leser.anfang(), leser.ende()});
                continue;
            }
            const qsizetype davor = leser.wort().indexOf(gesucht);
            const qsizetype anfang = leser.anfang() + ungefaltet(text, leser.anfang(), davor);
            genaue.push_back({anfang, leser.anfang() + ungefaltet(text, leser.anfang(), davor + gesucht.size())});
        }
        const std::vector<Strecke> &beste = genaue.empty() ? aehnliche : genaue;
        stellen.insert(stellen.end(), beste.begin(), beste.end());
    }
    std::ranges::sort(stellen, {}, &Strecke::anfang);
    std::vector<Strecke> vereint;
    for (const Strecke &stelle : stellen) {
        if (!vereint.empty() && stelle.anfang <= vereint.back().ende)
            vereint.back().ende = std::max(vereint.back().ende, stelle.ende);
        else
            vereint.push_back(stelle);
    }
    return vereint;
}

quint64 getroffen(QStringView text, const Suchfrage &frage, Guete bis)
{
    const Trefferwoerter alle = getroffene(text, frage);
    return bis == Guete::Aehnlich ? alle.ungefaehr : alle.genau;
}

Trefferwoerter getroffene(QStringView text, const Suchfrage &frage)
{
    const auto gesucht = einzeln(frage);
    std::vector<std::optional<Guete>> beste(gesucht.size());
    for (Wortleser leser(text); leser.weiter();)
        for (size_t i = 0; i < gesucht.size(); ++i)
            if (!beste[i] || *beste[i] == Guete::Aehnlich)
                if (const std::optional<Guete> guete = passung(leser.wort(), gesucht[i].first))
                    beste[i] = guete;
    const auto maske = [&](Guete bis) {
        quint64 woerter = 0;
        const auto hat = [&](size_t i) { return beste[i] && *beste[i] <= bis; };
        for (size_t i = 0; i < gesucht.size();) {
            const size_t wort = gesucht[i].second, ganz = i++;
            bool alleTeile = i < gesucht.size() && gesucht[i].second == wort;
            for (; i < gesucht.size() && gesucht[i].second == wort; ++i)
                alleTeile = alleTeile && hat(i);
            if (wort < 64 && (hat(ganz) || alleTeile))
                woerter |= quint64(1) << wort;
        }
        return woerter;
    };
    return {maske(Guete::Innen), maske(Guete::Aehnlich)};
}
