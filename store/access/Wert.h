#pragma once

#include <cstdint>
#include <string>
#include <string_view>

/* A value of an Access file, in the form it is kept in. */

namespace accessdatei {

enum class Gestalt {
    Leer,      ///< null
    Wahrheit,  ///< `ganz` 0 or 1
    Ganzzahl,  ///< `ganz`
    Einfach,   ///< `komma`, of single precision
    Kommazahl, ///< `komma`
    Dezimal,   ///< `text`: digits with a point
    Datum,     ///< `komma`: days since 30.12.1899, the time of day behind the point
    Text,      ///< `text`: UTF-8
    Fremd,     ///< pictures, bytes and links: not read
};

struct Wert
{
    Gestalt gestalt = Gestalt::Leer;
    int64_t ganz = 0;
    double komma = 0;
    std::string_view text = {};
};

/// A number in its shortest exact form, with a point.
std::string zahltext(double zahl);
std::string zahltext(float zahl);
/// "31.12.2003", with a time "31.12.2003 08:05:00"; empty for a number that is no date.
std::string datumstext(double tage);
/// A number in units of 10 to the power of -`nachkomma`, as decimal text without trailing zeros. `ziffern` is its absolute value.
std::string dezimaltext(std::string ziffern, int nachkomma, bool negativ);

} // namespace accessdatei
