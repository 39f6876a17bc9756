#pragma once

#include <QStringView>

#include <cstdint>

/// Small generator seeded by a name: the same name gives the same plate on every machine.
class Zufall
{
public:
    explicit Zufall(QStringView name, std::uint64_t zweck = 0) : zustand_(14695981039346656037ull ^ zweck * 0x9E3779B97F4A7C15ull)
    {
        for (const QChar c : name)
            zustand_ = (zustand_ ^ c.unicode()) * 1099511628211ull;
    }
    std::uint64_t roh()
    {
        std::uint64_t z = (zustand_ += 0x9E3779B97F4A7C15ull);
        z = (z ^ z >> 30) * 0xBF58476D1CE4E5B9ull;
        z = (z ^ z >> 27) * 0x94D049BB133111EBull;
        return z ^ z >> 31;
    }
    double zahl() { return double(roh() >> 11) * 0x1p-53; } ///< in [0, 1)
    double zwischen(double a, double b) { return a + (b - a) * zahl(); }
    double streuung(double s) { return zwischen(-s, s); }
    int ganz(int n) { return int(roh() % std::uint64_t(n)); } ///< 0 to n - 1

private:
    std::uint64_t zustand_;
};
