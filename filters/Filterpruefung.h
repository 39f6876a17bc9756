#pragma once

#include "Filterzustand.h"

#include <QByteArray>
#include <QHash>
#include <QSet>

#include <array>
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

    QString familie;      ///< number of the chosen family; empty for an unknown name
    QSet<qint64> mitBild; ///< record numbers whose picture row names a picture
    Synonyme botanisch, deutsch;
    Synonyme andereBotanisch = {}, andereDeutsch = {}; ///< of the other origin
};

/// The number of a plant goes through 16 bits where its synonyms are looked up.
inline constexpr qint64 groessteSynonymnummer = 32767;
/// What ends a run at a plant with a larger one.
QString synonymnummerZuGross(qint64 artnr);

class Filterpruefung
{
public:
    /// Decides which criteria are active; throws where a height box is no number.
    Filterpruefung(const Filterbeschreibung &beschreibung, const Filterzustand &zustand, Filterumgebung umgebung);
    Filterpruefung(const Filterpruefung &) = delete;

    /// Names of the fields that the active criteria need, in the order in which `passt` takes them.
    const QStringList &felder() const { return felder_; }
    /// Whether a plant passes every active criterion, tested in the table's order. `werte` is UTF-8, without data for a null.
    /// Throws for a value that cannot be converted, as soon as its test is reached.
    bool passt(qint64 artnr, std::span<const std::string_view> werte) const;

private:
    struct Probe
    {
        const Kriterium *kriterium = nullptr;
        Frage frage;
        int feld = -1, feld2 = -1; ///< places in `werte`
        Positionen gewaehlt;       ///< positions of the selected items
        Kodierung kodierung;       ///< how the field writes its positions
        bool erstes = false;       ///< the first control is set
        bool zweites = false;      ///< the second control is set
        QString min, max;          ///< boxes of a range
        std::optional<double> minZahl, maxZahl;
        QString nadel;          ///< upper case; Gleich: as it stands
        std::vector<int> wahre; ///< AlleWahr, EinsWahr: places of the selected booleans
        QStringList nadeln;     ///< WortImText: upper case
        int schwelle = 0;
        const Filterumgebung::Synonyme *synonyme = nullptr;
    };

    Probe probeFuer(const Filterbeschreibung &beschreibung, const Kriterium &kriterium, const Kriteriumzustand &zustand, const Frage &frage,
                    bool andere);
    int feldstelle(const Filterbeschreibung &beschreibung, const char *feld);
    bool probePasst(const Probe &probe, qint64 artnr, std::span<const std::string_view> werte) const;
    bool bereichPasst(const Probe &probe, qint64 artnr, std::span<const std::string_view> werte) const;
    bool synonymPasst(const Probe &probe, qint64 artnr, const QString &vorweg) const;

    Filterumgebung umgebung_;
    QStringList felder_;
    int herkunft_ = -1; ///< place in `werte`; -1: all records are of the first origin
    QByteArray andereHerkunft_;
    std::array<std::vector<Probe>, 2> proben_; ///< of the first origin and of the other
};
