#pragma once

#include "store/Sparten.h"

#include <QPointer>
#include <QWidget>

#include <array>
#include <span>
#include <vector>

class Pflanzenfenster;

/* The windows of one Sparte by number. Slot 0 is never used; slots are reused and the table never shrinks. */
class Fenstertabelle
{
public:
    struct Platz
    {
        QPointer<Pflanzenfenster> fenster;
        QPointer<QWidget> filter;
        bool frei = false;
    };

    /// Number of the first free slot, or of a new one at the end; the slot is no longer free.
    int FensterNummerHolen();
    /// Highest number ever given; 0 while there was none.
    int obergrenze() const { return int(plaetze_.size()) - 1; }
    Platz &platz(int nummer) { return plaetze_[size_t(nummer)]; }
    bool besetzt(int nummer) const { return nummer >= 1 && nummer <= obergrenze() && !plaetze_[size_t(nummer)].frei; }

private:
    std::vector<Platz> plaetze_ = std::vector<Platz>(1);
};

/// Whether the window now closing, which still holds its slot, counts as the last one. The counts run on from Sparte to
/// Sparte: two windows of the first occupied Sparte alone give true as well.
bool FensterZahlPruefen(std::span<const Fenstertabelle, anzahlSparten> tabellen);
