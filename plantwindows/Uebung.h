#pragma once

#include "Antwortpruefung.h"

#include <QDate>

#include <functional>
#include <vector>

class QRandomGenerator;

/* The course of a practice and of an examination: which plant comes when, what was answered. No window, no clock and no file of its own. */

/// A plant on its way through practice.
struct Uebungsblatt
{
    qint64 artnr = 0;
    QStringList antworten = {};       ///< as they were typed, one for each question
    std::vector<Befund> befunde = {}; ///< once it is uncovered
    bool aufgedeckt = false;
    bool wieder = false; ///< it was not known before, in this practice
};

class Uebung
{
public:
    static constexpr size_t wiederNach = 8; ///< other plants before one that was not known comes again

    explicit Uebung(const std::vector<qint64> &folge);

    bool leer() const { return blaetter_.empty(); }
    size_t anzahl() const { return blaetter_.size(); }
    /// Counted from 0.
    size_t stelle() const { return stelle_; }
    /// There must be one.
    Uebungsblatt &jetzt() { return blaetter_[stelle_]; }
    const std::vector<Uebungsblatt> &blaetter() const { return blaetter_; }
    bool kannGehen(int richtung) const { return richtung < 0 ? stelle_ > 0 : stelle_ + 1 < blaetter_.size(); }
    /// One step on (1) or back (-1); false, with nothing changed, at an end.
    bool gehen(int richtung);
    /// The present plant comes again after `wiederNach` others, at the end where there are fewer; once, however often it is asked for.
    void nochmal();

private:
    std::vector<Uebungsblatt> blaetter_;
    size_t stelle_ = 0;
};

/// How pressing a plant is.
enum class Dringlichkeit { Faellig, Neu, Spaeter };
/// All plants: those that are due, then those never asked, then the others, each in an order of chance.
std::vector<qint64> uebungsfolge(std::vector<qint64> pflanzen, const std::function<Dringlichkeit(qint64)> &dringlichkeit, QRandomGenerator &zufall);

inline constexpr size_t pruefungspflanzen = 20;
inline constexpr qint64 pruefungszeit = 60'000; ///< milliseconds for a plant
/// At most `pruefungspflanzen` of them, in an order of chance.
std::vector<qint64> pruefungsfolge(std::vector<qint64> pflanzen, QRandomGenerator &zufall);

/// Counts down from `dauer` on a clock of milliseconds.
class Pruefungsuhr
{
public:
    Pruefungsuhr(std::function<qint64()> uhr, qint64 dauer) : uhr_(std::move(uhr)), beginn_(uhr_()), dauer_(dauer) {}
    qint64 vergangen() const { return std::min(uhr_() - beginn_, dauer_); }
    qint64 rest() const { return dauer_ - vergangen(); }

private:
    std::function<qint64()> uhr_;
    qint64 beginn_, dauer_;
};
/// "19:05"
QString uhrtext(qint64 millisekunden);

struct Ergebniszeile
{
    int nummer;      ///< of the plant in the examination, counted from 1
    QString pflanze; ///< its botanical name
    QString frage, gegeben, richtig;
    Befund befund;
};

struct Pruefungsergebnis
{
    QString sparte; ///< title of its windows
    QDate tag;
    int pflanzen = 0;
    qint64 dauer = 0; ///< milliseconds that were used
    std::vector<Ergebniszeile> zeilen = {};

    int halbePunkteGesamt() const;
    int halbePunkteMoeglich() const { return halbePunkte(Urteil::Richtig) * int(zeilen.size()); }
    /// "31½ von 78 Punkten (40 %)"
    QString punktesatz() const;
    /// "Topfpflanzen, 20 Pflanzen, 22.11.2026, 12:34 Minuten"
    QString umstaende() const;
};
