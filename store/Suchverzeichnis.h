#pragma once

#include "Faltung.h"

#include <QHash>
#include <QString>
#include <QStringList>

#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

/* An index of a collection in memory: every folded word of names and texts, sorted, and the plants that have it. It knows names, not
   texts: whoever shows the words around a hit reads them where they stand. Once built it never changes and may be read by any thread. */

/// Names of a plant.
struct Suchnamen
{
    qint64 artnr = 0;
    int bewertung = 0; ///< 0: it has none
    QString botanisch, deutsch;
    QStringList synonyme;
};

struct Suchtreffer
{
    size_t pflanze; ///< for `Suchverzeichnis::namen`
    Guete guete;    ///< of the word of the query that fits worst
    bool operator==(const Suchtreffer &) const = default;
};

/// The first of what fits, best first, equals in the German order of the botanical names, and how many there are in all.
struct Trefferliste
{
    std::vector<Suchtreffer> erste;
    size_t gesamt = 0;
};

struct Suchergebnis
{
    Trefferliste namen;     ///< every word begins or stands inside a word of the plant's names
    Trefferliste aehnliche; ///< the same with a typing error
    /// Every word is in the names or the texts, and not all of them in the names; with a typing error only where none is without.
    Trefferliste texte;
};

/// The user's notes that have changed since an index was built, by record number.
using Notiztexte = QHash<qint64, QString>;

class Suchverzeichnis
{
public:
    class Bau;

    size_t anzahl() const { return pflanzen_.size(); }
    Suchnamen namen(size_t pflanze) const;
    /// Place of a record number; nothing for one that is not there.
    std::optional<size_t> stelle(qint64 artnr) const;
    size_t anzahlWoerter() const { return anfaenge_.size(); }
    /// Bytes that the index holds, but for a few.
    size_t groesse() const;

    /// Nothing for a query without words. Texts are searched where one word has at least `textAb` letters. `neue` counts in place of the
    /// notes that were there at the time of building.
    Suchergebnis suchen(const Suchfrage &frage, size_t hoechstens, const Notiztexte &neue = {}) const;
    static constexpr qsizetype textAb = 3;

private:
    struct Pflanze
    {
        qint64 artnr;
        quint32 namen; ///< where its names begin
        quint32 bewertung;
    };
    struct Funde;
    struct Notizlage;

    QStringView wort(size_t nummer) const;
    Funde suchenWort(const QString &gesucht, bool auchText, const Notizlage &lage) const;
    Funde suchenEinheit(const Suchfrage::Wort &einheit, bool auchText, const Notizlage &lage) const;
    void eintragen(Funde &funde, size_t nummer, Guete guete, bool auchText, const Notizlage &lage) const;
    Trefferliste ordnen(const std::vector<quint8> &werte, int von, int bis, size_t hoechstens) const;

    std::vector<Pflanze> pflanzen_; ///< by rising number
    std::vector<quint32> folge_;    ///< plants in the order of their names
    std::string namen_;             ///< UTF-8, each closed by a zero: botanical, German, synonyms, an empty one
    QString woerter_;               ///< sorted, a zero behind each
    std::vector<quint32> anfaenge_; ///< of each word
    std::string funde_;             ///< plants of each word, those by name, then those by text
    std::vector<quint32> fundorte_; ///< where those of a word begin, two for each, and the end
};

/// Takes plants by rising number, one at a time.
class Suchverzeichnis::Bau
{
public:
    /// `texte` are the maker's, `notiz` is the user's.
    void dazu(const Suchnamen &namen, const QStringList &texte, const QString &notiz);
    std::shared_ptr<const Suchverzeichnis> fertig();

private:
    static constexpr quint32 keine = quint32(-1);
    struct Eintrag
    {
        std::string namen, texte;
        quint32 letzterName = keine, letzterText = keine, letzteNotiz = keine, letzterFund = 0; ///< places of plants
    };
    struct Streuung
    {
        using is_transparent = void;
        size_t operator()(std::u16string_view text) const { return std::hash<std::u16string_view>()(text); }
    };

    Eintrag &eintrag(QStringView wort);
    void name(QStringView text, quint32 pflanze, int platz);
    void text(QStringView text, quint32 pflanze, bool notiz);

    std::shared_ptr<Suchverzeichnis> neu_ = std::make_shared<Suchverzeichnis>();
    std::unordered_map<std::u16string, Eintrag, Streuung, std::equal_to<>> woerter_;
    std::vector<std::string> ordnung_; ///< sort key of each plant
};

/// Which of a plant's synonyms the query found it by, no worse than `bis`; empty where its botanical or its German name tells.
QString getroffenesSynonym(const Suchnamen &namen, const Suchfrage &frage, Guete bis);
