#include "Wert.h"

#include <charconv>
#include <chrono>
#include <cmath>
#include <cstdio>

namespace accessdatei {

namespace {

template<typename Zahl>
std::string kuerzeste(Zahl zahl)
{
    char puffer[400];
    const auto [ende, fehler] = std::to_chars(puffer, puffer + sizeof puffer, zahl, std::chars_format::fixed);
    std::string text(puffer, fehler == std::errc() ? size_t(ende - puffer) : 0);
    return text == "-0" ? "0" : text;
}

} // namespace

std::string zahltext(double zahl)
{
    return kuerzeste(zahl);
}

std::string zahltext(float zahl)
{
    return kuerzeste(zahl);
}

std::string datumstext(double tage)
{
    // The years 100 to 9999.
    constexpr double erster = -657434, letzter = 2958466;
    if (!(tage > erster && tage < letzter))
        return {};
    constexpr int64_t sekundenJeTag = 24 * 60 * 60;
    // Before the first day the time of day still counts forward.
    const double ganze = std::trunc(tage);
    int64_t sekunde = std::llround(std::abs(tage - ganze) * double(sekundenJeTag));
    int64_t tag = int64_t(ganze);
    if (sekunde == sekundenJeTag) {
        sekunde = 0;
        ++tag;
    }
    using namespace std::chrono;
    const year_month_day datum{sys_days{year{1899} / December / 30} + days{tag}};
    char puffer[64];
    int laenge = std::snprintf(puffer, sizeof puffer, "%02u.%02u.%04d", unsigned(datum.day()), unsigned(datum.month()), int(datum.year()));
    if (sekunde != 0)
        laenge += std::snprintf(puffer + laenge, sizeof puffer - size_t(laenge), " %02d:%02d:%02d", int(sekunde / 3600), int(sekunde / 60 % 60),
                                int(sekunde % 60));
    return {puffer, size_t(laenge)};
}

std::string dezimaltext(std::string ziffern, int nachkomma, bool negativ)
{
    if (nachkomma > 0) {
        if (ziffern.size() <= size_t(nachkomma))
            ziffern.insert(0, size_t(nachkomma) + 1 - ziffern.size(), '0');
        ziffern.insert(ziffern.size() - size_t(nachkomma), 1, '.');
        ziffern.erase(ziffern.find_last_not_of('0') + 1);
        if (ziffern.back() == '.')
            ziffern.pop_back();
    }
    if (negativ && ziffern != "0")
        ziffern.insert(0, 1, '-');
    return ziffern;
}

} // namespace accessdatei
