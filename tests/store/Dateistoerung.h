#pragma once

#include <QList>

/* Lets file calls fail, those of the program and those of the database engine, which are counted together in the order they come. */
class Dateistoerung
{
public:
    enum class Art {
        Keine,    ///< only counts
        Einmal,   ///< the call number `stelle` fails
        Bleibend, ///< it and every one behind it that would change a disk
        Toetlich, ///< the process ends in front of it, without a word
    };
    /// `stelle` counts from 1; `nummer` (errno) tells the cause. One at a time; databases opened before it are not watched.
    Dateistoerung(Art art, int stelle, int nummer);
    ~Dateistoerung();
    Dateistoerung(const Dateistoerung &) = delete;
    Dateistoerung &operator=(const Dateistoerung &) = delete;

    /// Calls that came so far.
    int gezaehlt() const;
    /// Those of them that a cause can hit: a disk that is full can still be read, and files on it can be removed.
    QList<int> treffbare(int nummer) const;
    /// Whether one has failed.
    bool gestoert() const;
};
