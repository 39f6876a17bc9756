#pragma once

#include "Format.h"
#include "store/Dateischritt.h"

#include <QFile>
#include <QString>

#include <array>
#include <span>
#include <string>
#include <vector>

/* Pages of a new Jet 4 file, on their way to the disk. */

namespace accessdatei {

inline constexpr size_t seitenbytes = 4096;
using Seite = std::array<uint8_t, seitenbytes>;

/// A step of the writing that failed, by the system's number (errno); 0 where the file would become larger than 2 GB.
struct Schreibfehler
{
    int nummer;
};

/// The file. A page has a number before it is written; pages come in any order.
class Seitendatei
{
public:
    /// In place of what is there.
    explicit Seitendatei(const QString &pfad);
    uint32_t neu();
    void schreiben(uint32_t nummer, const Seite &seite);
    uint32_t anzahl() const { return anzahl_; }
    /// Forgets all pages from `nummer` on.
    void zurueck(uint32_t nummer) { anzahl_ = nummer; }
    /// Cuts what was forgotten behind the last page and lets go of the file.
    void schliessen();

private:
    template<typename Ruf>
    void schritt(Dateischritt art, Ruf &&ruf);

    QFile datei_;
    uint32_t anzahl_ = 0;
};

/// Rows packed into pages of one owner, from each page's end down. One page is in memory.
class Zeilenseiten
{
public:
    /// `erste` is the number of a page that stands ready for it; 0 takes a new one when the first row comes.
    Zeilenseiten(Seitendatei &datei, uint32_t besitzer, uint32_t erste = 0);
    /// Where the row stands: page << 8 | its number there. It must fit into a page.
    uint32_t anhaengen(std::span<const uint8_t> zeile);
    /// Writes the page that is still open; no row may follow.
    void schliessen();
    /// Numbers of the pages so far.
    const std::vector<uint32_t> &seiten() const { return seiten_; }
    /// Those of them that have room.
    std::vector<uint32_t> freie() const;

private:
    void beginnen(uint32_t nummer);

    Seitendatei *datei_;
    uint32_t besitzer_;
    std::vector<uint32_t> seiten_;
    Seite seite_{};
    uint32_t zeilen_ = 0, ende_ = 0;
    bool offen_ = false;
};

/// Owner that pages of long values name.
inline constexpr uint32_t besitzerLangwerte = 0x4C41564C;
/// Longest row of a table and of a long value.
inline constexpr size_t laengsteZeile = 4060, laengsteLangzeile = 4076;

/// The row of a usage map that names these pages; further pages are taken where they lie beyond the first 512.
std::vector<uint8_t> belegungskarte(Seitendatei &datei, const std::vector<uint32_t> &seiten);
/// The map of all pages, with a bit for each that is free: none but those behind the file's end.
std::vector<uint8_t> gesamtkarte(Seitendatei &datei);

/// Writes an index of ordered entries (key, then row) to pages of `besitzer`. The root stands on the page `wurzel`; the others are added to
/// `seiten`.
void indexSchreiben(Seitendatei &datei, uint32_t besitzer, const std::vector<std::string> &eintraege, uint32_t wurzel, std::vector<uint32_t> &seiten);

} // namespace accessdatei
