#pragma once

#include "Filterzustand.h"
#include "Trefferspalten.h"

#include <functional>

/* How many plants a run would leave, without running: each criterion's answer is kept as bits until its controls change. */

struct Trefferstand
{
    size_t anzahl = 0;
    const Kriterium *ohne = nullptr; ///< at none: the criterion without which most plants would be left; null where none alone helps
    size_t ohneAnzahl = 0;
    QString fehler; ///< what a run would end with; empty where it would not fail

    bool operator==(const Trefferstand &) const = default;
};

/// "1 Pflanze", "12 Pflanzen", "keine Pflanze".
QString pflanzenwort(size_t anzahl);
/// A count in one line: as above; at none "keine" and what would help: "keine; ohne 'Krankheiten' 34"; the error of a run that would fail.
QString trefferzeile(const Filterbeschreibung &beschreibung, const Trefferstand &treffer);

class Trefferzaehler
{
public:
    /// Number of a family by its name; empty for an unknown one. May throw.
    using Familiennummer = std::function<QString(const QString &)>;
    Trefferzaehler(const Filterbeschreibung &beschreibung, std::shared_ptr<const Trefferspalten> spalten, Familiennummer familie);

    Trefferstand zaehlen(const Filterzustand &zustand);
    /// Plants that would be left if of a criterion's items (a, then b: `zweites`) only number `element` were chosen, counted from 0, the other
    /// criteria as they are; nothing where a run would fail.
    std::optional<size_t> eigene(const Filterzustand &zustand, size_t kriterium, bool zweites, int element);
    /// What a run would leave, in rising order. Throws what a run would throw.
    std::vector<qint64> uebrig(const Filterzustand &zustand);

private:
    /// A criterion's answer to one state of its controls.
    struct Antwort
    {
        Kriteriumzustand zustand;
        bool bekannt = false;
        bool aktiv = false;
        QString vorweg;                   ///< the error of a run before its walk
        Bitmenge passt;                   ///< plants that pass
        std::optional<Bitmenge> stolpert; ///< plants whose test fails with an error
    };
    /// All criteria together, each plant only as far as it comes.
    struct Ergebnis
    {
        Bitmenge rest;
        std::optional<std::pair<size_t, size_t>> gestolpert; ///< criterion and plant
        QString vorweg;

        bool gelungen() const { return !gestolpert && vorweg.isEmpty(); }
    };

    void auffrischen(const Filterzustand &zustand);
    Antwort beantworten(size_t k, const Kriteriumzustand &zustand) const;
    void werteFragen(size_t k, const Kriteriumzustand &zustand, Antwort &antwort) const;
    void texteFragen(size_t k, const Kriteriumzustand &zustand, Antwort &antwort) const;
    /// `statt` stands for the answer of criterion `k`; without it the criterion is left out.
    Ergebnis zusammen(std::optional<size_t> k = {}, const Antwort *statt = nullptr) const;
    QString fehlertext(const Ergebnis &ergebnis) const;

    const Filterbeschreibung &beschreibung_;
    std::shared_ptr<const Trefferspalten> spalten_;
    Familiennummer familie_;
    std::vector<Antwort> antworten_; ///< in the order of the criteria
};
