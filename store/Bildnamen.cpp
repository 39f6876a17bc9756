#include "Bildnamen.h"

#include <algorithm>

namespace {

constexpr struct
{
    char16_t zeichen;
    const char *umschrift;
} umschriften[] = {{u'ä', "ae"}, {u'ö', "oe"}, {u'ü', "ue"}, {u'ß', "ss"}, {u'æ', "ae"}, {u'ø', "o"}, {u'œ', "oe"}, {u'ł', "l"}};

constexpr QStringView fallenWeg = u"×'\"`´‘’‚‛“”„‟«»‹›";

QString umschrift(QChar zeichen)
{
    const auto *treffer = std::ranges::find(umschriften, zeichen.unicode(), [](const auto &u) { return u.zeichen; });
    return treffer != std::end(umschriften) ? QString::fromLatin1(treffer->umschrift) : QString(zeichen);
}

bool bleibt(QChar zeichen)
{
    return (zeichen >= u'a' && zeichen <= u'z') || (zeichen >= u'0' && zeichen <= u'9');
}

} // namespace

QString bildname(const QString &botName)
{
    QString stamm;
    bool luecke = false;
    for (const QChar c : botName.normalized(QString::NormalizationForm_C).toLower()) {
        if (fallenWeg.contains(c))
            continue;
        // An accent is a character of its own after decomposition and falls away with the rest.
        const QString zeichen = umschrift(c).normalized(QString::NormalizationForm_D);
        if (!bleibt(zeichen.front())) {
            luecke = true;
            continue;
        }
        if (luecke && !stamm.isEmpty())
            stamm += u'-';
        luecke = false;
        std::ranges::copy_if(zeichen, std::back_inserter(stamm), bleibt);
    }
    return stamm;
}
