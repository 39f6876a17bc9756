#include "Accesshilfen.h"

#include <bit>
#include <cstring>
#include <string>

using namespace accessdatei;

namespace accessprobe {

namespace {

constexpr size_t seitenbytes = 2048;
constexpr uint32_t karten = 1, katalog = 2, katalogzeilen = 3, pflanzen = 4, pflanzenzeilen = 5, langwerte = 6, seiten = 7;

struct Feld
{
    const char *name;
    Typ typ;
    uint16_t laenge = 0;
    bool fest = true;
};

/// Bytes in the order they are written.
struct Folge
{
    std::string bytes;
    Folge &zahl(uint64_t wert, int anzahl)
    {
        for (int i = 0; i < anzahl; ++i)
            bytes += i < 8 ? char(wert >> (8 * i)) : char(0);
        return *this;
    }
    Folge &text(const std::string &wert)
    {
        bytes += wert;
        return *this;
    }
};

class Bauer
{
public:
    Bauer() : bytes_(seiten * seitenbytes) {}

    void seite(uint32_t nummer, const std::string &inhalt) { std::memcpy(&bytes_[nummer * seitenbytes], inhalt.data(), inhalt.size()); }

    /// A page of rows, from its end down.
    void zeilenseite(uint32_t nummer, uint32_t besitzer, const std::vector<std::string> &zeilen)
    {
        uint8_t *s = &bytes_[nummer * seitenbytes];
        s[0] = s[1] = 1;
        schreibe32(s + 4, besitzer);
        schreibe16(s + 8, uint32_t(zeilen.size()));
        size_t ende = seitenbytes;
        for (size_t i = 0; i < zeilen.size(); ++i) {
            ende -= zeilen[i].size();
            std::memcpy(s + ende, zeilen[i].data(), zeilen[i].size());
            schreibe16(s + 10 + 2 * i, uint32_t(ende));
        }
        schreibe16(s + 2, uint32_t(ende - 10 - 2 * zeilen.size()));
    }

    void tabelle(uint32_t nummer, const std::vector<Feld> &felder, uint32_t karte, uint32_t zeilen)
    {
        Folge d;
        uint16_t variable = 0;
        for (const Feld &feld : felder)
            variable += !feld.fest;
        d.zahl(0x0102, 2).zahl(0, 6).zahl(0, 4).zahl(zeilen, 4).zahl(0, 4).zahl('N', 1).zahl(felder.size(), 2).zahl(variable, 2);
        d.zahl(felder.size(), 2).zahl(0, 4).zahl(0, 4).zahl(karten << 8 | karte, 4).zahl(karten << 8 | karte, 4);
        uint16_t ort = 0, stelle = 0;
        for (size_t i = 0; i < felder.size(); ++i) {
            const Feld &feld = felder[i];
            d.zahl(uint64_t(feld.typ), 1).zahl(i, 2).zahl(stelle, 2).zahl(i, 2).zahl(0, 2).zahl(1252, 2).zahl(0, 2);
            d.zahl(feld.fest ? 3 : 2, 1).zahl(ort, 2).zahl(feld.laenge, 2);
            ort = uint16_t(ort + (feld.fest && feld.typ != Typ::Wahrheit ? feld.laenge : 0));
            stelle += !feld.fest;
        }
        for (const Feld &feld : felder)
            d.zahl(std::strlen(feld.name), 1).text(feld.name);
        seite(nummer, d.bytes);
    }

    static std::string zeile(size_t spalten, const std::string &feste, const std::vector<std::string> &variable, uint32_t maske)
    {
        Folge z;
        z.zahl(spalten, 1).text(feste);
        std::vector<size_t> orte;
        for (const std::string &wert : variable) {
            orte.push_back(z.bytes.size());
            z.text(wert);
        }
        orte.push_back(z.bytes.size());
        for (size_t i = orte.size(); i-- > 0;)
            z.zahl(orte[i] & 0xFF, 1);
        // Of a row longer than 256 bytes: from which column on the offsets lie beyond them.
        const size_t laenge = z.bytes.size() + 1 + (spalten + 7) / 8;
        if (laenge > 256)
            for (size_t i = 0; i < orte.size(); ++i)
                if (orte[i] > 255) {
                    z.zahl(i, 1);
                    break;
                }
        return z.zahl(variable.size(), 1).zahl(maske, int((spalten + 7) / 8)).bytes;
    }

    std::vector<uint8_t> fertig()
    {
        static constexpr uint8_t anfang[] = {0, 1, 0, 0};
        std::memcpy(bytes_.data(), anfang, sizeof anfang);
        std::memcpy(&bytes_[4], "Standard Jet DB", 16);
        schreibe16(&bytes_[0x3C], 1252);
        rc4(kopfschluessel, std::span(bytes_).subspan(kopfmaskeAb, kopfmaskeJet3));
        return bytes_;
    }

private:
    std::vector<uint8_t> bytes_;
};

} // namespace

std::vector<uint8_t> jet3Datei()
{
    Bauer bauer;
    const auto karte = [](uint32_t seite) {
        Folge k;
        k.zahl(0, 5).zahl(uint64_t(1) << seite, 8).zahl(0, 56);
        return k.bytes;
    };
    bauer.zeilenseite(karten, 0, {karte(katalogzeilen), karte(pflanzenzeilen)});
    const std::vector<Feld> objekt{{"Id", Typ::Lang, 4}, {"Type", Typ::Kurz, 2}, {"Flags", Typ::Lang, 4}, {"Name", Typ::Text, 128, false}};
    bauer.tabelle(katalog, objekt, 0, 1);
    const std::string eintrag = Folge().zahl(pflanzen, 4).zahl(1, 2).zahl(0, 4).bytes;
    bauer.zeilenseite(katalogzeilen, katalog, {Bauer::zeile(objekt.size(), eintrag, {"Pflanzen"}, 0xF)});

    const std::vector<Feld> felder{{"ARTNR", Typ::Lang, 4},          {"Kurz", Typ::Kurz, 2},        {"Byte", Typ::Byte, 1},
                                   {"Geld", Typ::Waehrung, 8},       {"Einfach", Typ::Einfach, 4},  {"Doppelt", Typ::Doppelt, 8},
                                   {"Tag", Typ::Datum, 8},           {"Wahr", Typ::Wahrheit, 1},    {"Kennung", Typ::Guid, 16},
                                   {"Name", Typ::Text, 200, false},  {"Memo", Typ::Memo, 0, false}, {"Bild", Typ::Objekt, 0, false},
                                   {"Bytes", Typ::Binaer, 50, false}};
    bauer.tabelle(pflanzen, felder, 1, 2);
    const auto feste = [](int32_t nummer, int16_t kurz, uint8_t byte, int64_t geld, float einfach, double doppelt, double tag) {
        Folge f;
        f.zahl(uint32_t(nummer), 4).zahl(uint16_t(kurz), 2).zahl(byte, 1).zahl(uint64_t(geld), 8).zahl(std::bit_cast<uint32_t>(einfach), 4);
        f.zahl(std::bit_cast<uint64_t>(doppelt), 8).zahl(std::bit_cast<uint64_t>(tag), 8);
        for (int i = 0; i < 16; ++i)
            f.zahl(uint64_t(i), 1);
        return f.bytes;
    };
    const auto lang = [](uint32_t laenge, uint32_t bits, uint32_t zeiger) { return Folge().zahl(laenge | bits, 4).zahl(zeiger, 4).zahl(0, 4).bytes; };
    const std::string stueck1(150, 'm'), stueck2(100, 'n'), name(180, 'z');
    bauer.zeilenseite(langwerte, 0x4C41564C,
                      {Folge().text("B\xE4rlauch aus einer Zeile").bytes, Folge().zahl(0, 4).text(stueck2).bytes,
                       Folge().zahl(langwerte << 8 | 1, 4).text(stueck1).bytes});
    bauer.zeilenseite(
        pflanzenzeilen, pflanzen,
        {Bauer::zeile(felder.size(), feste(1, -2, 200, 35000, 0.1f, 444.555, 37986.5),
                      {"K\x81"
                       "bel \xE4",
                       lang(11, langwertHier, 0) + "gleich hier", lang(3, langwertHier, 0) + "abc", "xyz"},
                      0x1FFF),
         Bauer::zeile(felder.size(), feste(2, 2, 0, -1, -2.5f, 0, -1.25), {name, lang(24, langwertEineZeile, langwerte << 8), "", ""}, 0x067F),
         Bauer::zeile(felder.size(), feste(3, 0, 0, 0, 0, 0, 0), {"", lang(250, 0, langwerte << 8 | 2), "", ""}, 0x0601)});
    return bauer.fertig();
}

} // namespace accessprobe
