#pragma once

#include "Format.h"
#include "Wert.h"

#include <QString>
#include <QStringList>

#include <functional>
#include <memory>
#include <set>
#include <string>
#include <vector>

/* Reads the tables of an Access file: Jet 3, Jet 4 and ACE. The file is bytes that nobody vouches for: every offset is checked, every
   walk ends, and memory stays below four times the file. No window, no other database. */

namespace accessdatei {

enum class Fassung { Jet3, Jet4, Ace };

/// Code page of texts that have none of their own, and names that are asked for by it.
class Codeseite;

struct Spalte
{
    QString name;
    Typ typ = Typ::Text;
    bool fest = false;      ///< in the row's fixed part
    bool berechnet = false; ///< the value stands in an envelope
    int nummer = 0;         ///< its bit in the row's mask
    int stelle = 0;         ///< among the variable columns
    int ort = 0;            ///< bytes into the fixed part
    int laenge = 0;         ///< bytes; 0 for long values
    int nachkomma = 0;      ///< of a decimal
    bool verdichtet = false;
};

struct Tabelle
{
    QString name;
    uint32_t seite = 0;        ///< of its definition
    uint32_t zeilenAngabe = 0; ///< what the file says; often stale
    int variable = 0;
    std::vector<Spalte> spalten;
    std::vector<uint32_t> seiten;

    /// Place among `spalten`, case-blind; -1 for none.
    int stelleVon(QStringView spalte) const;
};

class Leser;

/// The row that a walk stands on. Valid until the next one.
class Zeile
{
public:
    /// Value of a column, by its place in `Tabelle::spalten`. Its text is valid as long as the row. A long value whose chain is broken
    /// comes as far as it can be read and is counted.
    Wert wert(size_t spalte);

    /// How many of the table's pages lie before its own.
    size_t seitenDavor() const { return seitenDavor_; }

private:
    friend class Leser;
    struct Feld
    {
        bool null = true, wahr = false;
        Sicht roh;
    };
    Leser *leser_ = nullptr;
    const Tabelle *tabelle_ = nullptr;
    size_t seitenDavor_ = 0;
    std::vector<Feld> felder_;
    std::vector<std::string> puffer_; ///< one a column: texts that the file does not hold as they are read
    std::vector<uint32_t> orte_;
};

/// What a walk found.
struct Durchgang
{
    qint64 zeilen = 0;
    qint64 unlesbar = 0;                  ///< rows
    std::vector<qint64> unlesbarePlaetze; ///< the first of them, counted from 1 with the readable rows
    qint64 schadhafteWerte = 0;           ///< values that came empty or short
    static constexpr size_t meistePlaetze = 20;
};

class Leser
{
public:
    /// Reads the file into memory. Throws a Fehler: missing, no Access file, damaged, encrypted, under a password.
    /// `gelesen` is told after every piece of it which share (0 to 1) has been read; what it throws comes out.
    static std::unique_ptr<Leser> ausDatei(const QString &pfad, const std::function<void(double)> &gelesen = {});
    /// The same for bytes; `name` stands in messages.
    Leser(std::vector<uint8_t> bytes, QString name);
    ~Leser();
    Leser(const Leser &) = delete;
    Leser &operator=(const Leser &) = delete;

    Fassung fassung() const { return fassung_; }
    /// Code page that texts are read in; 0 where the file says in itself what its texts are.
    int codeseite() const;
    /// Another one in its place; only files of Jet 3 have any. False, and nothing changed, where it is unknown.
    bool setCodeseite(int nummer);

    /// The user's tables, in the catalog's order.
    const std::vector<Tabelle> &tabellen() const { return tabellen_; }
    /// Case-blind; null where there is none.
    const Tabelle *tabelle(QStringView name) const;
    /// Names of tables that stand in another file.
    const QStringList &verknuepfungen() const { return verknuepfungen_; }
    /// Names of tables whose definition is damaged.
    const QStringList &unlesbareTabellen() const { return unlesbareTabellen_; }

    /// Every row of a table, in the file's order. False from `ansehen` ends the walk.
    using Ansehen = std::function<bool(Zeile &)>;
    Durchgang durchlaufen(const Tabelle &tabelle, const Ansehen &ansehen);

private:
    friend class Zeile;
    void kopfLesen();
    void entschluesseln(uint32_t schluessel);
    void katalogLesen();
    Tabelle definition(uint32_t seite, QString name);
    std::vector<uint8_t> definitionsbytes(uint32_t seite);
    std::vector<uint32_t> datenseiten(uint32_t tabelle, uint32_t karte);
    std::vector<uint32_t> belegung(Sicht karte) const;
    Sicht seite(uint32_t nummer) const;
    Sicht zeile(Sicht seite, uint32_t nummer, uint32_t &bits) const;
    Sicht zeileAn(uint32_t zeiger) const;
    Sicht verfolgen(Sicht seite, uint32_t nummer, bool &geloescht) const;
    void zerlegen(const Tabelle &tabelle, Sicht roh, Zeile &zeile) const;
    void orteLesen(Sicht roh, size_t ende, std::vector<uint32_t> &orte) const;
    /// Bytes of a long value; valid until the next one.
    Sicht langwert(Sicht feld);
    std::string_view text(Sicht roh, std::string &puffer) const;
    Wert werten(const Spalte &spalte, const Zeile::Feld &feld, std::string &puffer);

    bool jet3() const { return fassung_ == Fassung::Jet3; }

    std::vector<uint8_t> bytes_;
    QString name_;
    Fassung fassung_ = Fassung::Jet4;
    size_t seite_ = 4096;
    std::unique_ptr<Codeseite> codeseite_;
    std::vector<Tabelle> tabellen_;
    QStringList verknuepfungen_, unlesbareTabellen_;
    std::vector<std::pair<uint32_t, uint32_t>> besitzer_; ///< owner and page of every page of rows; empty until a map is damaged
    std::set<uint32_t> definitionsseiten_;                ///< each is one table's
    std::vector<uint8_t> sammler_;                        ///< pieces of one long value
    /// Takes a row from what the long values of a walk may still have: no file has more of them than bytes.
    void abziehen(Sicht zeile);
    size_t langwertVorrat_ = 0; ///< bytes that chains of this walk may still have
    qint64 schadhaft_ = 0;
};

} // namespace accessdatei
