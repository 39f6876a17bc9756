#pragma once

#include "Austausch.h"

namespace accessdatei {

/// Ends a run that was called off. It never leaves the two functions of Austausch.h.
struct Abbruch
{
};

/// Tells how far a run is and asks whether it goes on, both in moderation.
class Fortschritt
{
public:
    /// `ganzes` in any unit; what is told later is of the same.
    Fortschritt(const Lauf &lauf, double ganzes) : lauf_(lauf), ganzes_(ganzes) {}
    void setGanzes(double ganzes) { ganzes_ = ganzes; }
    /// Cheap; to be called for every row. Throws Abbruch.
    void melden(double stand)
    {
        constexpr int dazwischen = 256;
        if (++rufe_ % dazwischen == 0)
            fragen(stand);
    }
    void fragen(double stand)
    {
        if (lauf_.abgebrochen && lauf_.abgebrochen())
            throw Abbruch{};
        const int prozent = ganzes_ > 0 ? qBound(0, int(100 * stand / ganzes_), 100) : 100;
        if (lauf_.fortschritt && prozent > gemeldet_)
            lauf_.fortschritt(gemeldet_ = prozent);
    }

private:
    const Lauf &lauf_;
    double ganzes_;
    int gemeldet_ = -1;
    unsigned rufe_ = 0;
};

} // namespace accessdatei
