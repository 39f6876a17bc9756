#include "Schaden.h"

#include "store/access/Seiten.h"

#include <algorithm>
#include <cstring>
#include <iterator>

using namespace accessdatei;

namespace {

uint32_t lies32(const uint8_t *ort)
{
    return lies16(ort) | lies16(ort + 2) << 16;
}

} // namespace

uint64_t Schaden::zufall()
{
    uint64_t x = stand_ += 0x9E3779B97F4A7C15u;
    x = (x ^ x >> 30) * 0xBF58476D1CE4E5B9u;
    x = (x ^ x >> 27) * 0x94D049BB133111EBu;
    return x ^ x >> 31;
}

/// Small, huge, next to a limit, or any.
uint32_t Schaden::eineZahl()
{
    static constexpr uint32_t grenzen[] = {0,         1,          2,       7,        8,          255,        256,        2047,      2048,
                                           4079,      4095,       4096,    0x1FFF,   0x7FFF,     0x8000,     0xFFFF,     0x10000,   0xFFFFFF,
                                           0x1000000, 0x3FFFFFFF, 1 << 30, 1u << 31, 0x7FFFFFFF, 0x80000001, 0xFFFFFFFE, 0xFFFFFFFF};
    switch (bis(4)) {
    case 0: return uint32_t(bis(64));
    case 1: return grenzen[bis(std::size(grenzen))];
    case 2: return uint32_t(bis(seiten_ + 2));
    default: return uint32_t(zufall());
    }
}

/// To a row that there is, or nearly.
uint32_t Schaden::einZeiger()
{
    return eins(8) ? eineZahl() : uint32_t(bis(seiten_ + 1) << 8 | bis(eins(4) ? 256 : 12));
}

size_t Schaden::seiteMit(uint8_t art)
{
    const size_t erste = bis(seiten_);
    for (size_t i = 0; i < seiten_; ++i)
        if (const size_t nummer = (erste + i) % seiten_; nummer && *ort(nummer) == art)
            return nummer;
    return 0;
}

Schaden::Zeile Schaden::zeile(size_t seite, size_t nummer) const
{
    const uint8_t *s = bytes_->data() + seite * seite_;
    const size_t orte = jet3_ ? 10 : 14;
    if (orte + 2 * nummer + 2 > seite_)
        return {};
    const size_t von = lies16(s + orte + 2 * nummer) & accessdatei::zeilenort,
                 bis = nummer ? lies16(s + orte + 2 * nummer - 2) & accessdatei::zeilenort : seite_;
    return von < bis && bis <= seite_ ? Zeile{seite * seite_ + von, seite * seite_ + bis} : Zeile{};
}

void Schaden::anrichten(std::vector<uint8_t> &datei)
{
    bytes_ = &datei;
    jet3_ = datei.size() > 0x14 && datei[0x14] == 0;
    seite_ = jet3_ ? 2048 : 4096;
    seiten_ = datei.size() / seite_;
    for (size_t anzahl = 1 + bis(eins(16) ? 64 : 5); anzahl > 0; --anzahl) {
        switch (bis(16)) {
        case 0: seitenkopf(); break;
        case 1:
        case 2: zeilenort(); break;
        case 3:
        case 4: zeileninhalt(); break;
        case 5: langwert(); break;
        case 6: kette(); break;
        case 7:
        case 8: karte(); break;
        case 9: definition(); break;
        case 10:
        case 11: spalte(); break;
        case 12: verweis(); break;
        case 13: text(); break;
        case 14: eins(8) ? kopf() : seitenkopf(); break;
        case 15: irgendwo(); break;
        }
    }
    if (eins(64))
        verschluesseln();
    if (eins(48))
        datei.resize(eins(2) ? bis(datei.size()) : bis(seiten_ + 1) * seite_);
}

/// A field under the head's mask.
void Schaden::kopf()
{
    const auto maske = std::span(*bytes_).subspan(kopfmaskeAb, jet3_ ? kopfmaskeJet3 : kopfmaske);
    static constexpr size_t felder[] = {0x18, 0x3A, 0x3C, 0x3E, 0x42, 0x44, 0x66, 0x6A, 0x72, 0x76};
    if (eins(4))
        (*bytes_)[0x14] = uint8_t(bis(8));
    rc4(kopfschluessel, maske);
    schreibe16(bytes_->data() + felder[bis(std::size(felder))], eineZahl());
    rc4(kopfschluessel, maske);
}

void Schaden::seitenkopf()
{
    uint8_t *s = ort(bis(seiten_));
    switch (bis(5)) {
    case 0: s[0] = uint8_t(bis(8)); break;
    case 1: schreibe16(s + 2, eineZahl()); break;
    case 2: schreibe32(s + 4, eins(4) ? besitzerLangwerte : eineZahl()); break;
    case 3: schreibe16(s + (jet3_ ? 8 : 12), eineZahl()); break;
    case 4: // one page over another
        std::memmove(ort(bis(seiten_)), s, seite_);
        break;
    }
}

void Schaden::zeilenort()
{
    const size_t seite = seiteMit(seiteDaten);
    uint8_t *s = ort(seite);
    const size_t orte = jet3_ ? 10 : 14, anzahl = std::min<size_t>(lies16(s + orte - 2), (seite_ - orte) / 2);
    if (!seite || !anzahl)
        return;
    uint8_t *stelle = s + orte + 2 * bis(anzahl);
    switch (bis(5)) {
    case 0: schreibe16(stelle, eineZahl()); break;
    case 1: schreibe16(stelle, lies16(stelle) ^ (eins(2) ? zeileVerweis : zeileGeloescht)); break;
    case 2: schreibe16(stelle, lies16(stelle) + uint32_t(bis(9)) - 4); break;
    case 3: schreibe16(stelle, lies16(s + orte + 2 * bis(anzahl))); break;
    case 4: { // moved: to elsewhere, to another that has moved, to itself
        schreibe16(stelle, lies16(stelle) | zeileVerweis);
        if (const Zeile z = zeile(seite, size_t(stelle - s - orte) / 2); z.bis >= z.von + 4)
            schreibe32(bytes_->data() + z.von, einZeiger());
        break;
    }
    }
}

/// The number of columns, the null mask, the offsets before it, the fixed part.
void Schaden::zeileninhalt()
{
    const size_t seite = seiteMit(seiteDaten);
    const Zeile z = zeile(seite, bis(lies16(ort(seite) + (jet3_ ? 8 : 12))));
    if (z.von == z.bis)
        return;
    uint8_t *von = bytes_->data() + z.von, *bis_ = bytes_->data() + z.bis;
    const size_t laenge = z.bis - z.von, hinten = std::min<size_t>(laenge, 48);
    switch (bis(6)) {
    case 0: von[0] = uint8_t(eineZahl()); break;
    case 1:
        if (laenge > 2)
            von[1] = uint8_t(eineZahl());
        break;
    case 2:
    case 3: bis_[-1 - ptrdiff_t(bis(hinten))] = uint8_t(eineZahl()); break;
    case 4:
        if (hinten > 2)
            schreibe16(bis_ - 2 - bis(hinten - 1), eins(2) ? uint32_t(bis(laenge + 4)) : eineZahl());
        break;
    case 5: // the number of a table, a key, a flag
        if (const size_t stelle = bis(std::min<size_t>(laenge, 40)); stelle + 4 <= laenge)
            schreibe32(von + stelle, eins(2) ? uint32_t(bis(seiten_ + 1)) : eineZahl());
        break;
    }
}

/// What looks like the twelve bytes of a long value in a row.
void Schaden::langwert()
{
    const size_t seite = seiteMit(seiteDaten);
    const Zeile z = zeile(seite, bis(lies16(ort(seite) + (jet3_ ? 8 : 12))));
    if (z.bis < z.von + langwertKopf)
        return;
    const size_t moeglich = z.bis - z.von - langwertKopf + 1, erste = bis(moeglich);
    for (size_t i = 0; i < moeglich; ++i) {
        uint8_t *feld = bytes_->data() + z.von + (erste + i) % moeglich;
        const uint32_t wort = lies32(feld), zeiger = lies32(feld + 4);
        const bool hier = (wort & langwertHier) && (wort & langwertLaenge) <= seite_;
        if (!hier && ((wort & langwertLaenge) > (1 << 20) || !(zeiger >> 8) || (zeiger >> 8) >= seiten_))
            continue;
        switch (bis(5)) {
        case 0: schreibe32(feld, (wort & ~langwertLaenge) | (eineZahl() & langwertLaenge)); break;
        case 1: schreibe32(feld, (wort & langwertLaenge) | uint32_t(bis(4)) << 30); break;
        case 2: schreibe32(feld + 4, einZeiger()); break;
        case 3:
            schreibe32(feld, uint32_t(bis(bytes_->size() + 8)) | (eins(2) ? langwertEineZeile : 0));
            schreibe32(feld + 4, einZeiger());
            break;
        case 4: std::memset(feld, eins(2) ? 0xFF : 0, langwertKopf); break;
        }
        return;
    }
}

/// The next of a chain's piece.
void Schaden::kette()
{
    const size_t erste = bis(seiten_);
    for (size_t i = 0; i < seiten_; ++i) {
        const size_t seite = (erste + i) % seiten_;
        if (!seite || *ort(seite) != seiteDaten || lies32(ort(seite) + 4) != besitzerLangwerte)
            continue;
        const size_t nummer = bis(lies16(ort(seite) + (jet3_ ? 8 : 12)));
        if (const Zeile z = zeile(seite, nummer); z.bis >= z.von + 4)
            schreibe32(bytes_->data() + z.von, eins(4) ? uint32_t(seite << 8 | nummer) : einZeiger());
        return;
    }
}

/// A table's map: its pointer, its kind, its first page, its bits.
void Schaden::karte()
{
    const size_t tabelle = seiteMit(seiteTabelle);
    if (!tabelle)
        return;
    uint8_t *zeiger = ort(tabelle) + (jet3_ ? 35 : 55);
    const uint32_t wo = lies32(zeiger);
    const Zeile z = wo >> 8 && wo >> 8 < seiten_ ? zeile(wo >> 8, wo & 0xFF) : Zeile{};
    if (z.bis < z.von + 6 || eins(6))
        return schreibe32(zeiger, einZeiger());
    uint8_t *zeile = bytes_->data() + z.von;
    const size_t laenge = z.bis - z.von;
    switch (bis(6)) {
    case 0: zeile[0] = uint8_t(bis(3)); break;
    case 1: schreibe32(zeile + 1, eineZahl()); break;
    case 2: std::memset(zeile + 5, 0xFF, laenge - 5); break;
    case 3: zeile[5 + bis(laenge - 5)] ^= uint8_t(1 << bis(8)); break;
    case 4: zeile[5 + bis(std::min(laenge - 5, seiten_ / 8 + 1))] = uint8_t(zufall()); break;
    case 5: // a map of maps
        zeile[0] = 1;
        for (size_t i = 0; i < bis(8) && 5 + 4 * i <= laenge; ++i)
            schreibe32(zeile + 1 + 4 * i, uint32_t(bis(seiten_ + 1)));
        break;
    }
}

/// A table's counts and the page that goes on with it.
void Schaden::definition()
{
    const size_t tabelle = seiteMit(seiteTabelle);
    if (!tabelle)
        return;
    uint8_t *s = ort(tabelle);
    switch (bis(6)) {
    case 0: schreibe32(s + 4, uint32_t(eins(4) ? tabelle : bis(seiten_ + 1))); break;
    case 1: schreibe32(s + 8, eineZahl()); break;
    case 2: schreibe32(s + (jet3_ ? 12 : 16), eineZahl()); break;
    case 3: schreibe16(s + (jet3_ ? 23 : 43), eineZahl()); break;
    case 4: schreibe16(s + (jet3_ ? 25 : 45), eins(2) ? uint32_t(bis(260)) : eineZahl()); break;
    case 5: schreibe32(s + (jet3_ ? 31 : 51) - (eins(2) ? 4 : 0), eins(2) ? uint32_t(bis(8)) : eineZahl()); break;
    }
}

/// A column's kind, number, place, flags, length; a name's length.
void Schaden::spalte()
{
    const size_t tabelle = seiteMit(seiteTabelle);
    if (!tabelle)
        return;
    uint8_t *s = ort(tabelle);
    const size_t spalten = lies16(s + (jet3_ ? 25 : 45)), indexe = lies32(s + (jet3_ ? 31 : 51)), je = jet3_ ? 18 : 25;
    const size_t ab = (jet3_ ? 43 : 63) + std::min(indexe, seite_) * (jet3_ ? 8 : 12);
    if (eins(8)) { // names follow the columns
        if (const size_t stelle = ab + spalten * je + bis(200); stelle + 2 <= seite_)
            schreibe16(s + stelle, eineZahl());
        return;
    }
    const size_t stelle = ab + bis(spalten) * je;
    if (stelle + je > seite_)
        return;
    static constexpr uint8_t arten[] = {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 15, 16, 18, 19, 20, 0, 255};
    uint8_t *satz = s + stelle;
    switch (bis(7)) {
    case 0:
    case 1: satz[0] = arten[bis(std::size(arten))]; break;
    case 2: schreibe16(satz + (jet3_ ? 1 : 5), eins(2) ? uint32_t(bis(spalten + 2)) : eineZahl()); break;
    case 3: schreibe16(satz + (jet3_ ? 3 : 7), eins(2) ? uint32_t(bis(spalten + 2)) : eineZahl()); break;
    case 4: satz[jet3_ ? 13 : 15 + bis(2)] = eins(2) ? uint8_t(0xC0 | bis(4)) : uint8_t(bis(256)); break;
    case 5: schreibe16(satz + (jet3_ ? 14 : 21), eineZahl()); break;
    case 6: schreibe16(satz + (jet3_ ? 16 : 23), eineZahl()); break;
    }
}

/// A word of a definition or an index that names a page names another one.
void Schaden::verweis()
{
    static constexpr uint8_t arten[] = {seiteTabelle, seiteKnoten, seiteBlatt, seiteBelegung};
    const size_t seite = seiteMit(arten[bis(std::size(arten))]);
    if (!seite)
        return;
    const size_t erste = bis(seite_ - 3);
    for (size_t i = 0; i < seite_ - 3; ++i) {
        uint8_t *wort = ort(seite) + (erste + i) % (seite_ - 3);
        if (const uint32_t zahl = lies32(wort); zahl && zahl < seiten_)
            return schreibe32(wort, eins(4) ? eineZahl() : uint32_t(bis(seiten_ + 1)));
    }
}

/// Marks and halves of characters where texts stand.
void Schaden::text()
{
    const size_t seite = seiteMit(seiteDaten);
    const Zeile z = zeile(seite, bis(lies16(ort(seite) + (jet3_ ? 8 : 12))));
    static constexpr uint16_t einheiten[] = {0xFEFF, 0xD800, 0xDC00, 0xDBFF, 0xFFFF, 0x0000, 0x00FF, 0xFF00, 0x0081};
    if (z.bis >= z.von + 2)
        schreibe16(bytes_->data() + z.von + bis(z.bis - z.von - 1), einheiten[bis(std::size(einheiten))]);
}

/// Bits and bytes, numbers, pieces from elsewhere; more often where pages begin.
void Schaden::irgendwo()
{
    std::vector<uint8_t> &bytes = *bytes_;
    size_t hier = bis(bytes.size());
    if (eins(3))
        hier = std::min(bytes.size() - 1, hier / seite_ * seite_ + bis(80));
    switch (bis(5)) {
    case 0: bytes[hier] ^= uint8_t(1 << bis(8)); break;
    case 1: bytes[hier] = uint8_t(zufall()); break;
    case 2: bytes[hier] = eins(2) ? 0xFF : 0; break;
    case 3:
        if (hier + 4 <= bytes.size())
            schreibe32(bytes.data() + hier, eineZahl());
        break;
    case 4: {
        const size_t laenge = 1 + bis(64), von = bis(bytes.size());
        for (size_t i = 0; i < laenge && hier + i < bytes.size() && von + i < bytes.size(); ++i)
            bytes[hier + i] = bytes[von + i];
        break;
    }
    }
}

/// All pages under a key, as some old files have them: the damage stands behind it.
void Schaden::verschluesseln()
{
    const auto maske = std::span(*bytes_).subspan(kopfmaskeAb, jet3_ ? kopfmaskeJet3 : kopfmaske);
    const uint32_t schluessel = uint32_t(zufall()) | 1;
    rc4(kopfschluessel, maske);
    schreibe32(bytes_->data() + 0x3E, schluessel);
    rc4(kopfschluessel, maske);
    for (size_t nummer = 1; nummer < seiten_; ++nummer) {
        uint8_t worte[4];
        schreibe32(worte, schluessel ^ uint32_t(nummer));
        rc4(worte, std::span(*bytes_).subspan(nummer * seite_, seite_));
    }
}
