#include "Codeseite.h"
#include "Leser.h"

#include <algorithm>
#include <array>
#include <functional>
#include <set>

namespace accessdatei {

namespace {

void utf8Anhaengen(std::string &utf8, uint32_t zeichen)
{
    if (zeichen < 0x80) {
        utf8 += char(zeichen);
        return;
    }
    if (zeichen < 0x800) {
        utf8 += char(0xC0 | zeichen >> 6);
    } else {
        if (zeichen < 0x10000) {
            utf8 += char(0xE0 | zeichen >> 12);
        } else {
            utf8 += char(0xF0 | zeichen >> 18);
            utf8 += char(0x80 | (zeichen >> 12 & 0x3F));
        }
        utf8 += char(0x80 | (zeichen >> 6 & 0x3F));
    }
    utf8 += char(0x80 | (zeichen & 0x3F));
}

/// Takes UTF-16, one unit at a time; halves without a partner become U+FFFD.
class Zusammensetzer
{
public:
    explicit Zusammensetzer(std::string &utf8) : utf8_(utf8) {}
    ~Zusammensetzer() { abschliessen(); }
    Zusammensetzer(const Zusammensetzer &) = delete;
    Zusammensetzer &operator=(const Zusammensetzer &) = delete;

    void nehmen(uint32_t einheit)
    {
        const bool zweite = einheit >= 0xDC00 && einheit < 0xE000;
        if (hohe_ && zweite) {
            utf8Anhaengen(utf8_, 0x10000 + ((hohe_ - 0xD800) << 10) + (einheit - 0xDC00));
            hohe_ = 0;
            return;
        }
        abschliessen();
        if (einheit >= 0xD800 && einheit < 0xDC00)
            hohe_ = einheit;
        else
            utf8Anhaengen(utf8_, zweite ? ersatz : einheit);
    }

    /// Characters below 0x80, one every `abstand` bytes.
    void asciiNehmen(const uint8_t *von, size_t anzahl, size_t abstand)
    {
        abschliessen();
        const size_t bisher = utf8_.size();
        utf8_.resize(bisher + anzahl);
        for (size_t i = 0; i < anzahl; ++i)
            utf8_[bisher + i] = char(von[i * abstand]);
    }

private:
    static constexpr uint32_t ersatz = 0xFFFD;
    void abschliessen()
    {
        if (hohe_)
            utf8Anhaengen(utf8_, ersatz);
        hohe_ = 0;
    }
    std::string &utf8_;
    uint32_t hohe_ = 0;
};

void ausVerdichtetem(Sicht roh, std::string &utf8)
{
    Zusammensetzer ziel(utf8);
    bool einByte = true;
    for (size_t i = 0; i < roh.laenge;) {
        if (roh.daten[i] == 0) {
            einByte = !einByte;
            ++i;
        } else if (einByte) {
            size_t ende = i;
            while (ende < roh.laenge && uint8_t(roh.daten[ende] - 1) < 0x7F)
                ++ende;
            if (ende > i)
                ziel.asciiNehmen(roh.daten + i, ende - i, 1);
            else
                ziel.nehmen(roh.daten[ende++]);
            i = ende;
        } else {
            if (i + 1 >= roh.laenge)
                return;
            ziel.nehmen(lies16(roh.daten + i));
            i += 2;
        }
    }
}

std::string_view alsText(Sicht roh)
{
    return {reinterpret_cast<const char *>(roh.daten), roh.laenge};
}

bool nurAscii(Sicht roh)
{
    return std::all_of(roh.daten, roh.daten + roh.laenge, [](uint8_t byte) { return uint8_t(byte - 1) < 0x7F; });
}

/// Digits of a number of up to 16 bytes, the highest word first, each word with its lowest byte first.
std::string ziffern(Sicht roh)
{
    std::array<uint32_t, 4> worte{roh.u32(0), roh.u32(4), roh.u32(8), roh.u32(12)};
    std::string text;
    constexpr uint32_t basis = 10;
    do {
        uint64_t rest = 0;
        for (uint32_t &wort : worte) {
            const uint64_t stand = rest << 32 | wort;
            wort = uint32_t(stand / basis);
            rest = stand % basis;
        }
        text.insert(text.begin(), char('0' + rest));
    } while (std::ranges::any_of(worte, [](uint32_t wort) { return wort != 0; }));
    return text;
}

std::string guid(Sicht roh)
{
    static constexpr uint8_t folge[] = {3, 2, 1, 0, 5, 4, 7, 6, 8, 9, 10, 11, 12, 13, 14, 15};
    static constexpr char hex[] = "0123456789ABCDEF";
    std::string text = "{";
    for (size_t i = 0; i < std::size(folge); ++i) {
        const uint8_t byte = roh.u8(folge[i]);
        text += hex[byte >> 4];
        text += hex[byte & 15];
        if (i == 3 || i == 5 || i == 7 || i == 9)
            text += '-';
    }
    return text + '}';
}

/// Days since the year 1 and the tenths of a microsecond of the day, as digits: "0000000000000737959:0000000459000000000:7".
double genauesDatum(Sicht roh)
{
    constexpr size_t tageZiffern = 19, zeitZiffern = 19;
    constexpr double zehntelmikrosekundenJeTag = 864e9, tageBis1899 = 693593;
    const auto lesen = [&](size_t ab, size_t anzahl) {
        double zahl = 0;
        for (size_t i = ab; i < ab + anzahl; ++i) {
            const uint8_t zeichen = roh.u8(i);
            if (zeichen < '0' || zeichen > '9')
                throw Beschaedigt("date");
            zahl = 10 * zahl + (zeichen - '0');
        }
        return zahl;
    };
    const double tage = lesen(0, tageZiffern) - tageBis1899, zeit = lesen(tageZiffern + 1, zeitZiffern) / zehntelmikrosekundenJeTag;
    return tage < 0 ? tage - zeit : tage + zeit;
}

Wert textwert(Gestalt gestalt, std::string_view text)
{
    return {.gestalt = gestalt, .text = text};
}

} // namespace

std::string_view Leser::text(Sicht roh, std::string &puffer) const
{
    if (jet3()) {
        if (nurAscii(roh))
            return alsText(roh);
        codeseite_->wandeln(alsText(roh), puffer);
        return puffer;
    }
    const bool istVerdichtet = roh.laenge >= 2 && roh.daten[0] == verdichtet[0] && roh.daten[1] == verdichtet[1];
    if (istVerdichtet && nurAscii(roh.ab(2)))
        return alsText(roh.ab(2));
    // As long as it can become, no longer: a string that grows by itself may take twice that.
    puffer.clear();
    puffer.reserve(istVerdichtet ? 2 * roh.laenge : roh.laenge + roh.laenge / 2);
    if (istVerdichtet) {
        ausVerdichtetem(roh.ab(2), puffer);
        return puffer;
    }
    Zusammensetzer ziel(puffer);
    for (size_t i = 0; i + 1 < roh.laenge; i += 2) {
        // Most texts are of one kind over long stretches.
        size_t ende = i;
        while (ende + 1 < roh.laenge && roh.daten[ende + 1] == 0 && roh.daten[ende] < 0x80)
            ende += 2;
        if (ende > i) {
            ziel.asciiNehmen(roh.daten + i, (ende - i) / 2, 2);
            i = ende - 2;
        } else {
            ziel.nehmen(lies16(roh.daten + i));
        }
    }
    return puffer;
}

void Leser::abziehen(Sicht zeile)
{
    if (zeile.laenge > langwertVorrat_)
        throw Beschaedigt("long values");
    langwertVorrat_ -= zeile.laenge;
}

Sicht Leser::langwert(Sicht feld)
{
    const uint32_t wort = feld.u32(0), laenge = wort & langwertLaenge;
    const Sicht kopf = feld.teil(0, langwertKopf);
    if (wort & langwertHier)
        return feld.ab(langwertKopf).hoechstens(laenge);
    if (laenge == 0)
        return {};
    uint32_t zeiger = kopf.u32(4);
    sammler_.clear();
    try {
        if (wort & langwertEineZeile) {
            const Sicht zeile = zeileAn(zeiger), roh = zeile.hoechstens(laenge);
            abziehen(zeile);
            if (roh.laenge < laenge)
                ++schadhaft_;
            return roh;
        }
        if (laenge > bytes_.size())
            throw Beschaedigt("long value length");
        sammler_.reserve(std::min<size_t>(laenge, langwertVorrat_));
        std::set<uint32_t> gesehen;
        while (zeiger && sammler_.size() < laenge) {
            if (!gesehen.insert(zeiger).second)
                throw Beschaedigt("long value loop");
            const Sicht roh = zeileAn(zeiger), stueck = roh.ab(4);
            zeiger = roh.u32(0);
            abziehen(roh);
            sammler_.insert(sammler_.end(), stueck.daten, stueck.daten + stueck.laenge);
        }
        if (sammler_.size() < laenge)
            ++schadhaft_;
    } catch (const Beschaedigt &) {
        ++schadhaft_;
    }
    return Sicht{sammler_.data(), sammler_.size()}.hoechstens(laenge);
}

Wert Leser::werten(const Spalte &spalte, const Zeile::Feld &feld, std::string &puffer)
{
    const auto ganz = [](Gestalt gestalt, int64_t zahl) { return Wert{.gestalt = gestalt, .ganz = zahl}; };
    const auto komma = [](Gestalt gestalt, double zahl) { return Wert{.gestalt = gestalt, .komma = zahl}; };
    const auto eigenerText = [&](Gestalt gestalt, std::string text) {
        puffer = std::move(text);
        return textwert(gestalt, puffer);
    };
    if (feld.null)
        return {};
    if (spalte.typ == Typ::Wahrheit)
        return ganz(Gestalt::Wahrheit, feld.wahr);
    Sicht roh = feld.roh;
    if (spalte.typ == Typ::Memo)
        roh = langwert(roh);
    if (spalte.berechnet) {
        constexpr size_t laengeAn = 16, wertAb = 20;
        roh = roh.ab(wertAb).hoechstens(roh.u32(laengeAn));
    }
    switch (spalte.typ) {
    case Typ::Byte: return ganz(Gestalt::Ganzzahl, roh.u8(0));
    case Typ::Kurz: return ganz(Gestalt::Ganzzahl, int16_t(roh.u16(0)));
    case Typ::Lang: return ganz(Gestalt::Ganzzahl, int32_t(roh.u32(0)));
    case Typ::Riesig: return ganz(Gestalt::Ganzzahl, int64_t(roh.u64(0)));
    case Typ::Einfach: return komma(Gestalt::Einfach, double(roh.einfache(0)));
    case Typ::Doppelt: return komma(Gestalt::Kommazahl, roh.kommazahl(0));
    case Typ::Datum: return komma(Gestalt::Datum, roh.kommazahl(0));
    case Typ::DatumGenau: return komma(Gestalt::Datum, genauesDatum(roh));
    case Typ::Waehrung: {
        const int64_t zahl = int64_t(roh.u64(0));
        const uint64_t betrag = zahl < 0 ? 0 - uint64_t(zahl) : uint64_t(zahl);
        constexpr int stellen = 4;
        return eigenerText(Gestalt::Dezimal, dezimaltext(std::to_string(betrag), stellen, zahl < 0));
    }
    case Typ::Dezimal: return eigenerText(Gestalt::Dezimal, dezimaltext(ziffern(roh.ab(1)), spalte.nachkomma, roh.u8(0) & 0x80));
    case Typ::Text:
    case Typ::Memo: {
        const std::string_view gelesen = text(roh, puffer);
        // Pieces of a chain are put together in one place for all columns.
        const bool gesammelt = std::less_equal{}(sammler_.data(), roh.daten) && std::less{}(roh.daten, sammler_.data() + sammler_.size());
        if (!gesammelt || gelesen.data() == puffer.data())
            return textwert(Gestalt::Text, gelesen);
        return eigenerText(Gestalt::Text, std::string(gelesen));
    }
    case Typ::Guid: return eigenerText(Gestalt::Text, guid(roh));
    case Typ::Wahrheit:
    case Typ::Binaer:
    case Typ::Objekt:
    case Typ::Mehrfach: break;
    }
    return {.gestalt = Gestalt::Fremd};
}

Wert Zeile::wert(size_t spalte)
{
    try {
        return leser_->werten(tabelle_->spalten[spalte], felder_[spalte], puffer_[spalte]);
    } catch (const Beschaedigt &) {
        ++leser_->schadhaft_;
        return {};
    }
}

} // namespace accessdatei
