#pragma once

#include <QtGlobal>

#include <functional>

/// How a long run is watched. Both are called in its thread; either may be empty.
struct Lauf
{
    std::function<void(int)> fortschritt; ///< percent
    std::function<bool()> abgebrochen;    ///< asked several times a second

    /// One part of a run, with percent of its own, that begins at `von` percent of the whole and ends at `bis`.
    Lauf abschnitt(int von, int bis) const
    {
        if (!fortschritt)
            return *this;
        return {[melden = fortschritt, von, bis](int prozent) { melden(von + (bis - von) * prozent / 100); }, abgebrochen};
    }
};

/// Ends a run that was called off. It never leaves the functions that take a Lauf.
struct Abbruch
{
};

/// Tells how far a run is and asks whether it goes on, both in moderation.
class Fortschritt
{
public:
    /// `ganzes` in any unit; what is told later is of the same.
    Fortschritt(Lauf lauf, double ganzes) : lauf_(std::move(lauf)), ganzes_(ganzes) {}
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
    Lauf lauf_;
    double ganzes_;
    int gemeldet_ = -1;
    unsigned rufe_ = 0;
};
