#pragma once

#include <QElapsedTimer>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <functional>
#include <vector>

/* Figures are ratios: the measured thing and its baseline run in turn in one process. */

using Handlung = std::function<void()>;

inline double einmal(const Handlung &handlung)
{
    QElapsedTimer uhr;
    uhr.start();
    handlung();
    return double(uhr.nsecsElapsed()) / 1e6;
}

inline double median(std::vector<double> werte)
{
    std::ranges::sort(werte);
    return werte[werte.size() / 2];
}

/// Both in turn, so that a machine that changes its speed changes it for both. FLOX_BENCH_KURZ in the environment: three rounds at most.
inline void vergleich(const char *name, double ziel, const Handlung &vorher, const Handlung &messung, const Handlung &grundlage, int laeufe = 5)
{
    if (std::getenv("FLOX_BENCH_KURZ"))
        laeufe = std::min(laeufe, 3);
    std::vector<double> a, b;
    for (int i = 0; i <= laeufe; ++i) {
        const double basis = einmal(grundlage);
        vorher();
        const double gemessen = einmal(messung);
        if (i > 0) { // the first round warms up
            a.push_back(gemessen);
            b.push_back(basis);
        }
    }
    std::printf("%-44s %8.2f ms  baseline %8.2f ms  ratio %5.2f  (goal <= %.2f)\n", name, median(a), median(b), median(a) / median(b), ziel);
}
