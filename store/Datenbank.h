#pragma once

#include <QHash>
#include <QString>
#include <QStringList>
#include <QVariant>

#include <functional>
#include <memory>
#include <span>
#include <string_view>

struct sqlite3;
struct sqlite3_stmt;

/* One database file, spoken to in DAO's words. Every failure is a Fehler with a German text; values are bound, never built
   into a statement. Paths may be written with "\". */

/// A prepared statement. Parameters and columns are counted from 0.
class Anweisung
{
public:
    Anweisung(sqlite3 *db, sqlite3_stmt *stmt) : db_(db), stmt_(stmt) {}
    Anweisung(Anweisung &&andere) noexcept : db_(andere.db_), stmt_(std::exchange(andere.stmt_, nullptr)) {}
    Anweisung &operator=(Anweisung &&) = delete;
    ~Anweisung();

    void binden(int nummer, const QVariant &wert);
    /// The same without a detour, for many rows. A text must live until the statement is reset.
    void textBinden(int nummer, std::string_view utf8);
    void zahlBinden(int nummer, qint64 zahl);
    void kommazahlBinden(int nummer, double zahl);
    void nullBinden(int nummer);
    /// Next row; false at the end, where the statement is reset. Throws, reset, on an error.
    bool schritt();
    void zuruecksetzen(); ///< values are null again

    int spalten() const;
    QString spaltenname(int spalte) const;
    QString spaltentyp(int spalte) const; ///< as declared; empty for a computed column
    bool istNull(int spalte) const;
    enum class Wertart { Null, Ganzzahl, Kommazahl, Text };
    Wertart wertart(int spalte) const;
    qint64 zahl(int spalte) const;
    double kommazahl(int spalte) const;
    QString text(int spalte) const;
    /// Raw UTF-8 of the value; valid until the next step.
    std::string_view bytes(int spalte) const;

private:
    sqlite3 *db_;
    sqlite3_stmt *stmt_;
};

class Datenbank : public std::enable_shared_from_this<Datenbank>
{
public:
    enum class Zugriff {
        Arbeit, ///< the user's data: every change is on the disk when the call returns
        Privat, ///< a window's scratch copy: no journal on the disk, exclusive, lost with a crash
        Lesen,  ///< somebody's file that must stay as it is
    };

    /// Opens an existing file; all controls that work on the same file share one connection, which has the access asked for. A file that
    /// has come in the place of another gets a connection of its own. Throws when the file is missing, no database, damaged or open with
    /// another access and, unless it is for reading only, of a newer version or not one of this program.
    static std::shared_ptr<Datenbank> OpenDatabase(const QString &pfad, Zugriff zugriff = Zugriff::Arbeit);
    /// Creates an empty database in place of any file there.
    static std::shared_ptr<Datenbank> CreateDatabase(const QString &pfad);
    /// OpenDatabase with a connection that is shared with nobody, to be read: for a thread of its own. Same checks.
    static std::shared_ptr<Datenbank> oeffneFuerSich(const QString &pfad);
    /// A database without tables, not even a version, in place of any file there; private as a scratch copy, for a thread of its own.
    static std::shared_ptr<Datenbank> legeFuerSichAn(const QString &pfad);
    /// Whether somebody holds a connection to this path, be it to a file that is gone by now.
    static bool offen(const QString &pfad);
    ~Datenbank();
    Datenbank(const Datenbank &) = delete;
    Datenbank &operator=(const Datenbank &) = delete;

    /// Runs a statement of the program, Access dialect included; "SELECT * INTO t IN 'file' FROM t" copies the table, without its
    /// indexes, into a database file that exists already and is not on the disk for certain before its owner sees to it. Throws on any
    /// error.
    void Execute(const QString &sql, const QVariantList &werte = {});
    /// Keeps the rows for which `behalten` is true and deletes the others, in one walk over the whole table or query. It gets
    /// ARTNR and the fields' raw UTF-8 (no data for a null). What it throws comes out; rows deleted so far stay deleted.
    using Behalten = std::function<bool(qint64, std::span<const std::string_view>)>;
    /// The table's indexes go first: keeping them up would cost several times the walk. For private copies only: throws for
    /// the user's data.
    void loescheAusser(const QString &tabelle, const QStringList &felder, const Behalten &behalten);
    /// Hands over every row of a table or query: ARTNR and the raw UTF-8 of some expressions in SQLite's dialect (no data for a null),
    /// in no order. Three times as quick as stepping through a statement. What `ansehen` throws comes out.
    using Ansehen = std::function<void(qint64, std::span<const std::string_view>)>;
    void durchlaufen(const QString &tabelle, const QStringList &ausdruecke, const Ansehen &ansehen);
    /// Names of the tables (stored queries are none), in alphabetical order.
    QStringList TableDefs();
    /// The same with the stored queries among them.
    QStringList TabellenUndAbfragen();
    /// Names of the columns of a table or query, in their order. Throws where there is none of this name.
    QStringList Spaltennamen(const QString &tabelle);
    /// Statements that create the indexes of a table.
    QStringList Indexe(const QString &tabelle);
    /// Makes the indexes that a working database has and this one lacks, as far as it has the columns.
    void indexeErgaenzen();
    bool hatTabelle(const QString &name);
    /// Throws where neither a table nor a query has this name.
    void tabelleFordern(const QString &name);
    bool istAbfrage(const QString &name);
    /// Whether a column of a table is declared INTEGER; false for queries and unknown names.
    bool istGanzzahl(const QString &tabelle, const QString &spalte);
    /// Whether the file bears the program's mark. One that is open for reading only may be anybody's.
    bool vonUns();
    /// Throws for a file that is not one of this program or of a newer version.
    void lesbarFordern();
    bool schreibgeschuetzt() const;
    /// Whether another file, or none, stands at the path by now: what is written here is lost.
    bool ersetzt() const;
    int geaendert() const; ///< rows that the last statement changed

    /// A statement in SQLite's dialect, prepared once and kept; it comes reset.
    Anweisung &vorbereitet(const QString &sql);
    QString pfad() const { return pfad_; }

private:
    Datenbank(const QString &pfad, int schalter);
    void einstellen(Zugriff zugriff);
    void ansehen();
    qint64 pragma(const char *name);
    void roh(const QString &sql);
    QStringList texte(const QString &sql, const QString &wert = {});
    void indexeFallenLassen(const QString &tabelle);
    friend class Tabellenkopie;

    QString pfad_;
    Zugriff zugriff_ = Zugriff::Arbeit;
    sqlite3 *db_ = nullptr;
    enum class Sorte { Keine, Tabelle, Abfrage };
    Sorte sorte(const QString &name);

    QHash<QString, std::shared_ptr<Anweisung>> anweisungen_;
    QHash<QString, Sorte> sorten_; ///< tables and queries asked for so far
};

/// Copies tables of one database into another file, which exists already. Until this is gone the file belongs to it alone; it is not on
/// the disk for certain before its owner sees to it.
class Tabellenkopie
{
public:
    /// Throws where the file is no database of this program.
    Tabellenkopie(Datenbank &von, const QString &datei);
    ~Tabellenkopie();
    Tabellenkopie(const Tabellenkopie &) = delete;
    Tabellenkopie &operator=(const Tabellenkopie &) = delete;

    /// Makes the table `ziel` of "SELECT spalten FROM rest" in Access dialect, without indexes: they cost as much as the rows, and whoever
    /// works with the file makes them. Throws on any error, with the file as it was before.
    void kopieren(const QString &spalten, const QString &ziel, const QString &rest);

private:
    QString bauplan(const QString &tabelle);

    Datenbank &von_;
    QString datei_;
};

/// The columns of a table that takes the rows of a query, in brackets: the query's key becomes the table's.
QString abfragespalten(const Anweisung &abfrage);

/// The counter in a database file's head that every change moves on, read without opening a connection; empty where there is no such file.
QByteArray aenderungsstand(const QString &pfad);

/// Pair of BEGIN and COMMIT; rolls back unless `festschreiben` was reached.
class Transaktion
{
public:
    enum class Art {
        Schreibend,
        Lesend, ///< nobody changes the file meanwhile
    };
    explicit Transaktion(Datenbank &db, Art art = Art::Schreibend);
    ~Transaktion();
    void festschreiben();
    Transaktion(const Transaktion &) = delete;
    Transaktion &operator=(const Transaktion &) = delete;

private:
    Datenbank &db_;
    bool fertig_ = false;
};
