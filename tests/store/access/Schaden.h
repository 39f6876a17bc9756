#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

/* Damage to Access files that goes to where it hurts: heads of pages, places and masks of rows, usage maps, pointers of long values,
   definitions of columns, roots of indexes; and some to anywhere. */
class Schaden
{
public:
    /// Number `nummer` of a series; the same two make the same damage.
    Schaden(uint64_t saat, uint64_t nummer) : stand_(saat * 0x9E3779B97F4A7C15u + nummer * 0xD1B54A32D192ED03u) {}

    /// From 0 on, below `grenze`; 0 for 0.
    size_t bis(size_t grenze) { return grenze ? size_t(zufall() % grenze) : 0; }
    /// One to some damages, of one kind or another. The file has at least a page.
    void anrichten(std::vector<uint8_t> &datei);

private:
    uint64_t zufall();
    bool eins(size_t von) { return bis(von) == 0; }
    uint32_t eineZahl();
    uint32_t einZeiger();
    /// Number of a page of this kind; 0 where none was found.
    size_t seiteMit(uint8_t art);
    uint8_t *ort(size_t seite) { return bytes_->data() + seite * seite_; }
    /// Where a row of a page begins and ends, from the file's begin; equal where there is none.
    struct Zeile
    {
        size_t von = 0, bis = 0;
    };
    Zeile zeile(size_t seite, size_t nummer) const;

    void kopf();
    void seitenkopf();
    void zeilenort();
    void zeileninhalt();
    void langwert();
    void kette();
    void karte();
    void definition();
    void spalte();
    void verweis();
    void text();
    void irgendwo();
    void verschluesseln();

    uint64_t stand_;
    std::vector<uint8_t> *bytes_ = nullptr;
    bool jet3_ = false;
    size_t seite_ = 4096, seiten_ = 0;
};
