#pragma once

#include "Seiten.h"
#include "Wert.h"

#include <QString>

#include <memory>
#include <span>
#include <string>
#include <vector>

/* Writes a new Access file (Jet 4) of plain tables, one after another, rows as they come: pages go to the disk when they are full. */

namespace accessdatei {

/// A column of a table to write: Wahrheit, Lang, Doppelt, Datum, Text or Memo.
struct Spaltenform
{
    QString name;
    Typ typ = Typ::Text;
    int zeichen = 0; ///< longest Text, in UTF-16 units, 1 to 255
};

struct Tabellenform
{
    QString name;
    std::vector<Spaltenform> spalten;
    int schluessel = -1; ///< place of the primary key, a Lang; -1: none
};

/// A value has no room in its column (its place), or a row none on a page (-1). The row was not written.
struct PasstNicht
{
    int spalte;
};

inline constexpr int groessteTextspalte = 255;

/// Whether a table or column can have this name.
bool gueltigerName(const QString &name);

class Schreiber
{
public:
    /// Begins a file in place of what is there. Whatever the calls below cannot write they throw as a Schreibfehler.
    explicit Schreiber(const QString &pfad);
    ~Schreiber();
    Schreiber(const Schreiber &) = delete;
    Schreiber &operator=(const Schreiber &) = delete;

    /// Names must be valid, the table's of ASCII letters, digits, blanks and "_" (its key in the catalog must be the engine's own); 1 to
    /// 255 columns. Throws a Fehler for any other.
    void beginnen(const Tabellenform &form);
    /// One value a column, in their order; a null for `Gestalt::Leer`. Throws PasstNicht. A text must be valid UTF-8 and not begin with
    /// U+FEFF, which readers take for a mark.
    void zeile(std::span<const Wert> werte);
    /// Completes the table. Throws a Fehler for a key that is there twice.
    void beenden();
    /// As if the table had not been begun.
    void verwerfen();
    /// Completes the file, which has no table open, and lets go of it.
    void abschliessen();

private:
    struct Tabelle;
    struct Katalogzeile
    {
        uint32_t seite;
        std::string name;
    };
    std::unique_ptr<Tabelle> tabelleBeginnen(uint32_t seite);
    void zeileSchreiben(Tabelle &tabelle, std::span<const Wert> werte);
    void definitionSchreiben(Tabelle &tabelle);
    void tabelleSchreiben(Tabelle &tabelle);
    void systemtabellenSchreiben();
    void kopfSchreiben();

    Seitendatei datei_;
    std::unique_ptr<Tabelle> offen_;
    std::vector<Katalogzeile> katalog_;
};

} // namespace accessdatei
