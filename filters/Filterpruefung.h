#pragma once

#include "Filterzustand.h"

#include <QHash>
#include <QSet>

#include <optional>
#include <span>
#include <string_view>
#include <vector>

/* The test of a plant: a pure function of a snapshot of the dialog and the fields of a record. */

/// What a run looks up before its walk.
struct Filterumgebung
{
    /// Synonyms of the rows that matched a box, joined by ", ", by record number; nothing: no row matched.
    using Synonyme = std::optional<QHash<qint64, QString>>;

    QString familie;            ///< number of the chosen family; empty for an unknown name
    QSet<qint64> mitBild;       ///< record numbers whose picture row names a picture
    Synonyme botanisch, deutsch;
};

class Filterpruefung
{
public:
    /// Decides which criteria are active; throws where a height box is no number.
    Filterpruefung(const Filterbeschreibung &beschreibung, const Filterzustand &zustand, Filterumgebung umgebung);

    /// Names of the fields that the active criteria need, in the order in which `passt` takes them.
    const QStringList &felder() const { return felder_; }
    /// Whether a plant passes every active criterion, tested in the table's order. `werte` is UTF-8, without data for a null.
    /// Throws for a value that cannot be converted, as soon as its test is reached.
    bool passt(qint64 artnr, std::span<const std::string_view> werte) const;

private:
    struct Probe
    {
        const Kriterium *kriterium = nullptr;
        int feld = -1, feld2 = -1;      ///< places in `werte`
        Positionen gewaehlt;            ///< positions of the selected items
        Kodierung kodierung;            ///< how the field writes its positions
        bool erstes = false;            ///< the first control is set
        bool zweites = false;           ///< the second control is set
        QString min, max;               ///< boxes of a range
        std::optional<double> minZahl, maxZahl;
        QString nadel;                  ///< upper case; Gleich: as it stands
        std::vector<int> wahre;         ///< AlleWahr, EinsWahr: places of the selected booleans
        QStringList nadeln;             ///< WortImText: upper case
        int schwelle = 0;
    };

    int feldstelle(const char *feld);
    bool probePasst(const Probe &probe, qint64 artnr, std::span<const std::string_view> werte) const;
    bool bereichPasst(const Probe &probe, qint64 artnr, std::span<const std::string_view> werte) const;
    bool synonymPasst(const Probe &probe, qint64 artnr, const Filterumgebung::Synonyme &synonyme, const QString &vorweg) const;

    Filterumgebung umgebung_;
    QStringList felder_;
    std::vector<Probe> proben_;
};
