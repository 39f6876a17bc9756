#include "Kollation.h"

#include "Fehler.h"

#include <unicode/ucol.h>

#include <memory>

namespace {

struct Schliesser
{
    void operator()(UCollator *kollator) const { ucol_close(kollator); }
};

UCollator *deutsch()
{
    static const std::unique_ptr<UCollator, Schliesser> kollator = [] {
        UErrorCode fehler = U_ZERO_ERROR;
        std::unique_ptr<UCollator, Schliesser> neu(ucol_open("de", &fehler));
        if (U_FAILURE(fehler))
            throw Fehler(QStringLiteral("Die deutsche Sortierfolge ist nicht verfügbar."));
        return neu;
    }();
    return kollator.get();
}

/// The name without the marks that must not part a genus; runs of blanks become one, none at the ends.
QString sortiername(QStringView name)
{
    QString rein;
    rein.reserve(name.size());
    for (QChar zeichen : name) {
        switch (zeichen.unicode()) {
        case u'×':
        case u'\'':
        case u'"':
        case u'‘':
        case u'’':
        case u'‚':
        case u'“':
        case u'”':
        case u'„':
        case u'`':
        case u'´': continue;
        case u'-':
        case u'\t': zeichen = u' '; break;
        default: break;
        }
        if (zeichen == u' ' && (rein.isEmpty() || rein.back() == u' '))
            continue;
        rein += zeichen;
    }
    if (rein.endsWith(u' '))
        rein.chop(1);
    return rein;
}

} // namespace

std::string sortierschluessel(QStringView name)
{
    const QString rein = sortiername(name);
    const auto *zeichen = reinterpret_cast<const UChar *>(rein.utf16());
    const auto laenge = int32_t(rein.size());
    uint8_t klein[256];
    const int32_t gebraucht = ucol_getSortKey(deutsch(), zeichen, laenge, klein, sizeof klein);
    if (gebraucht <= int32_t(sizeof klein))
        return std::string(reinterpret_cast<const char *>(klein), size_t(gebraucht));
    std::string gross(size_t(gebraucht), '\0');
    ucol_getSortKey(deutsch(), zeichen, laenge, reinterpret_cast<uint8_t *>(gross.data()), gebraucht);
    return gross;
}
