#pragma once

#include <QDate>
#include <QHash>
#include <QString>

#include <optional>

/* What practice knows of the plants: when each is to be asked again, by the rule SM-2 of spaced repetition, in a file of its own beside
   the notes. */

/// How well one plant is known.
struct Lernwert
{
    int folge = 0;    ///< repetitions in a row that were good enough
    int abstand = 0;  ///< days from the last repetition to the next
    int faktor = 250; ///< easiness, in hundredths; 130 at least
    QDate zuletzt;    ///< last repetition that counted
    QDate faellig;    ///< the next one

    bool operator==(const Lernwert &) const = default;
};

inline constexpr int besteGuete = 5;        ///< quality of an answer without a fault; 0 is the worst
inline constexpr int ausreichendeGuete = 3; ///< below it a plant is begun anew
inline constexpr int sichereGuete = 4;      ///< below it a plant is asked again in the same session

/// The state after an answer of this quality, 0 to 5. Before the day it is due a good answer changes nothing: intervals would grow by looking
/// often. A bad one begins anew at any time.
[[nodiscard]] Lernwert nachAntwort(Lernwert wert, int guete, QDate heute);
/// Quality of an answer with so many points of so many.
int gueteVon(int punkte, int vonPunkten);

class Lernstand
{
public:
    /// A plant whose name has become another one is another plant.
    struct Schluessel
    {
        QString tabelle; ///< main table of its Sparte
        qint64 artnr = 0;
        QString name; ///< botanical

        bool operator==(const Schluessel &) const = default;
        friend size_t qHash(const Schluessel &schluessel, size_t saat = 0)
        {
            return qHashMulti(saat, schluessel.tabelle, schluessel.artnr, schluessel.name);
        }
    };

    static constexpr int format = 1;
    static constexpr QStringView dateiname = u"uebung.json";

    struct Geladen;
    /// Reads a file; one that is not there is an empty state. A damaged one is renamed, and `hinweis` tells so: what can be read of it is
    /// taken. Throws, with the file untouched, where it cannot be read, cannot be renamed or is of a newer format.
    [[nodiscard]] static Geladen laden(const QString &pfad);
    /// Writes the file whole or not at all. Throws.
    void speichern(const QString &pfad) const;

    std::optional<Lernwert> wert(const Schluessel &schluessel) const;
    void setWert(const Schluessel &schluessel, const Lernwert &wert) { werte_[schluessel] = wert; }
    const QHash<Schluessel, Lernwert> &werte() const { return werte_; }

private:
    QHash<Schluessel, Lernwert> werte_;
};

struct Lernstand::Geladen
{
    Lernstand stand;
    QString hinweis; ///< sentence for the user; empty: all is well
};
