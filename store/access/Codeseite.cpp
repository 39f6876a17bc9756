#include "Codeseite.h"

#include <unicode/ucnv.h>
#include <unicode/ustring.h>

#include <vector>

namespace accessdatei {

namespace {

constexpr int westeuropa = 1252;

UConverter *oeffnen(int nummer)
{
    for (const char *art : {"windows-", "cp"}) {
        UErrorCode fehler = U_ZERO_ERROR;
        if (UConverter *wandler = ucnv_open((art + std::to_string(nummer)).c_str(), &fehler); U_SUCCESS(fehler))
            return wandler;
    }
    return nullptr;
}

} // namespace

Codeseite::Codeseite(int nummer) : wandler_(oeffnen(nummer)), nummer_(nummer)
{
    if (wandler_)
        return;
    wandler_ = oeffnen(westeuropa);
    nummer_ = westeuropa;
}

Codeseite::~Codeseite()
{
    ucnv_close(wandler_);
}

void Codeseite::wandeln(std::string_view bytes, std::string &utf8) const
{
    utf8.clear();
    UErrorCode fehler = U_ZERO_ERROR;
    ucnv_reset(wandler_);
    const char *von = bytes.data(), *ende = von + bytes.size();
    UChar stueck[256];
    char aus[3 * 256];
    do {
        UChar *ziel = stueck;
        fehler = U_ZERO_ERROR;
        ucnv_toUnicode(wandler_, &ziel, stueck + 256, &von, ende, nullptr, true, &fehler);
        if (U_FAILURE(fehler) && fehler != U_BUFFER_OVERFLOW_ERROR)
            return;
        UErrorCode wandlung = U_ZERO_ERROR;
        int32_t laenge = 0;
        u_strToUTF8WithSub(aus, sizeof aus, &laenge, stueck, int32_t(ziel - stueck), 0xFFFD, nullptr, &wandlung);
        if (U_FAILURE(wandlung))
            return;
        utf8.append(aus, size_t(laenge));
    } while (fehler == U_BUFFER_OVERFLOW_ERROR);
}

} // namespace accessdatei
