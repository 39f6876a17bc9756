#include "Seiten.h"

#include <algorithm>
#include <cstring>
#include <map>

namespace accessdatei {

namespace {

constexpr uint32_t groessteSeitenzahl = 524288; // 2 GB
constexpr uint8_t seitenversion = 1;
constexpr size_t seitenkopf = 14;
constexpr uint32_t meisteZeilen = 255;

/// Of usage maps: pages within the row itself, and of each page of bits behind its head.
constexpr uint32_t seitenInZeile = 512, kartenkopf = 4, seitenJeKarte = (seitenbytes - kartenkopf) * 8;
constexpr size_t karteAb = 5, kartenbytes = karteAb + seitenInZeile / 8;

/// Of index pages: the bits that mark the entries' ends, and the entries.
constexpr size_t endenAb = 0x1B, eintraegeAb = 0x1E0, platzFuerEintraege = seitenbytes - eintraegeAb;

/// Pages of bits, by the pages they speak for, named in the row of a map.
class Kartenseiten
{
public:
    explicit Kartenseiten(Seitendatei &datei) : datei_(datei), zeile_(kartenbytes) { zeile_[0] = 1; }
    Seite &fuer(uint32_t stueck)
    {
        const auto [ort, neu] = seiten_.try_emplace(stueck);
        if (neu) {
            ort->second.first = datei_.neu();
            ort->second.second = {};
            ort->second.second[0] = seiteBelegung;
            ort->second.second[1] = seitenversion;
            schreibe32(&zeile_[1 + 4 * size_t(stueck)], ort->second.first);
        }
        return ort->second.second;
    }
    std::vector<uint8_t> schreiben()
    {
        for (const auto &[stueck, seite] : seiten_)
            datei_.schreiben(seite.first, seite.second);
        return zeile_;
    }

private:
    Seitendatei &datei_;
    std::vector<uint8_t> zeile_;
    std::map<uint32_t, std::pair<uint32_t, Seite>> seiten_;
};

void setzen(Seite &seite, uint32_t bit)
{
    seite[kartenkopf + bit / 8] |= uint8_t(1 << (bit % 8));
}

} // namespace

template<typename Ruf>
void Seitendatei::schritt(Dateischritt art, Ruf &&ruf)
{
    if (const int nummer = dateischritt(art, datei_.fileName(), ruf))
        throw Schreibfehler{nummer};
}

Seitendatei::Seitendatei(const QString &pfad) : datei_(pfad)
{
    schritt(Dateischritt::Oeffnen, [this] { return datei_.open(QIODevice::WriteOnly | QIODevice::Truncate | QIODevice::Unbuffered); });
}

uint32_t Seitendatei::neu()
{
    if (anzahl_ == groessteSeitenzahl)
        throw Schreibfehler{0};
    return anzahl_++;
}

void Seitendatei::schreiben(uint32_t nummer, const Seite &seite)
{
    schritt(Dateischritt::Schreiben, [&] {
        return datei_.seek(qint64(nummer) * qint64(seitenbytes))
               && datei_.write(reinterpret_cast<const char *>(seite.data()), qint64(seitenbytes)) == qint64(seitenbytes);
    });
}

void Seitendatei::schliessen()
{
    schritt(Dateischritt::Schreiben, [this] { return datei_.resize(qint64(anzahl_) * qint64(seitenbytes)); });
    schritt(Dateischritt::Schreiben, [this] {
        datei_.close();
        return datei_.error() == QFileDevice::NoError;
    });
}

Zeilenseiten::Zeilenseiten(Seitendatei &datei, uint32_t besitzer, uint32_t erste) : datei_(&datei), besitzer_(besitzer)
{
    if (erste)
        beginnen(erste);
}

void Zeilenseiten::beginnen(uint32_t nummer)
{
    seite_ = {};
    seite_[0] = seiteDaten;
    seite_[1] = seitenversion;
    schreibe32(&seite_[4], besitzer_);
    seiten_.push_back(nummer);
    zeilen_ = 0;
    ende_ = uint32_t(seitenbytes);
    offen_ = true;
}

uint32_t Zeilenseiten::anhaengen(std::span<const uint8_t> zeile)
{
    if (!offen_ || seitenkopf + 2 * (zeilen_ + 1) + zeile.size() > ende_ || zeilen_ == meisteZeilen) {
        schliessen();
        beginnen(datei_->neu());
    }
    ende_ -= uint32_t(zeile.size());
    std::copy(zeile.begin(), zeile.end(), seite_.begin() + ende_);
    schreibe16(&seite_[seitenkopf + 2 * zeilen_], ende_);
    return seiten_.back() << 8 | zeilen_++;
}

void Zeilenseiten::schliessen()
{
    if (!offen_)
        return;
    schreibe16(&seite_[2], ende_ - uint32_t(seitenkopf) - 2 * zeilen_);
    schreibe16(&seite_[12], zeilen_);
    datei_->schreiben(seiten_.back(), seite_);
    offen_ = false;
}

std::vector<uint32_t> Zeilenseiten::freie() const
{
    return seiten_.empty() ? seiten_ : std::vector{seiten_.back()};
}

std::vector<uint8_t> belegungskarte(Seitendatei &datei, const std::vector<uint32_t> &seiten)
{
    if (std::ranges::all_of(seiten, [](uint32_t seite) { return seite < seitenInZeile; })) {
        std::vector<uint8_t> zeile(kartenbytes);
        for (const uint32_t seite : seiten)
            zeile[karteAb + seite / 8] |= uint8_t(1 << (seite % 8));
        return zeile;
    }
    Kartenseiten karten(datei);
    for (const uint32_t seite : seiten)
        setzen(karten.fuer(seite / seitenJeKarte), seite % seitenJeKarte);
    return karten.schreiben();
}

std::vector<uint8_t> gesamtkarte(Seitendatei &datei)
{
    // As a row it must leave room for another map on its page.
    constexpr uint32_t meisteBits = uint32_t(seitenbytes - seitenkopf - 2 * 2 - kartenbytes - karteAb) / 4 * 4 * 8;
    constexpr uint32_t wort = 32;
    const uint32_t bits = std::max(seitenInZeile, (datei.anzahl() + wort - 1) / wort * wort);
    if (bits <= meisteBits) {
        std::vector<uint8_t> zeile(karteAb + bits / 8);
        for (uint32_t seite = datei.anzahl(); seite < bits; ++seite)
            zeile[karteAb + seite / 8] |= uint8_t(1 << (seite % 8));
        return zeile;
    }
    Kartenseiten karten(datei);
    // The pages of the map count themselves.
    for (uint32_t stueck = 0; stueck <= datei.anzahl() / seitenJeKarte; ++stueck)
        karten.fuer(stueck);
    for (uint32_t stueck = 0; stueck <= datei.anzahl() / seitenJeKarte; ++stueck)
        for (uint32_t bit = 0; bit < seitenJeKarte; ++bit)
            if (stueck * seitenJeKarte + bit >= datei.anzahl())
                setzen(karten.fuer(stueck), bit);
    return karten.schreiben();
}

namespace {

/// Pages of one level, each with the key of its last entry, which its parent names it by.
struct Knoten
{
    std::string schluessel;
    uint32_t seite;
};

void indexseiteSchreiben(Seitendatei &datei, uint32_t besitzer, uint32_t nummer, uint8_t art, std::span<const std::string> eintraege, uint32_t vorige,
                         uint32_t naechste, uint32_t letztesKind)
{
    Seite seite{};
    seite[0] = art;
    seite[1] = seitenversion;
    schreibe32(&seite[4], besitzer);
    schreibe32(&seite[12], vorige);
    schreibe32(&seite[16], naechste);
    schreibe32(&seite[20], letztesKind);
    size_t ende = 0;
    for (const std::string &eintrag : eintraege) {
        std::memcpy(&seite[eintraegeAb + ende], eintrag.data(), eintrag.size());
        ende += eintrag.size();
        seite[endenAb + ende / 8] |= uint8_t(1 << (ende % 8));
    }
    schreibe16(&seite[2], uint32_t(platzFuerEintraege - ende));
    datei.schreiben(nummer, seite);
}

std::string mitKind(const Knoten &kind)
{
    std::string eintrag = kind.schluessel;
    for (int bits = 24; bits >= 0; bits -= 8)
        eintrag += char(kind.seite >> bits);
    return eintrag;
}

} // namespace

void indexSchreiben(Seitendatei &datei, uint32_t besitzer, const std::vector<std::string> &blaetter, uint32_t wurzel, std::vector<uint32_t> &seiten)
{
    std::vector<std::string> oben;
    std::vector<Knoten> kinder;
    for (const std::vector<std::string> *eintraege = &blaetter;; eintraege = &oben) {
        const bool blatt = eintraege == &blaetter;
        // Where each page begins among the entries.
        std::vector<size_t> anfaenge{0};
        size_t belegt = 0;
        for (size_t i = 0; i < eintraege->size(); ++i) {
            if (belegt + (*eintraege)[i].size() > platzFuerEintraege) {
                anfaenge.push_back(i);
                belegt = 0;
            }
            belegt += (*eintraege)[i].size();
        }
        const size_t anzahl = anfaenge.size();
        anfaenge.push_back(eintraege->size());
        std::vector<uint32_t> nummern(anzahl, wurzel);
        if (anzahl > 1)
            for (uint32_t &nummer : nummern)
                seiten.push_back(nummer = datei.neu());
        std::vector<Knoten> ebene;
        for (size_t i = 0; i < anzahl; ++i) {
            const size_t von = anfaenge[i], bis = anfaenge[i + 1];
            std::span<const std::string> inhalt(eintraege->data() + von, bis - von);
            uint32_t letztesKind = 0;
            if (!blatt && i + 1 == anzahl) { // the last child of a level has no entry
                letztesKind = kinder.back().seite;
                inhalt = inhalt.first(inhalt.size() - 1);
            }
            indexseiteSchreiben(datei, besitzer, nummern[i], blatt ? seiteBlatt : seiteKnoten, inhalt, i ? nummern[i - 1] : 0,
                                i + 1 < anzahl ? nummern[i + 1] : 0, letztesKind);
            const std::string schluessel = von == bis ? std::string() : blatt ? (*eintraege)[bis - 1] : kinder[bis - 1].schluessel;
            ebene.push_back({schluessel, nummern[i]});
        }
        if (anzahl == 1)
            return;
        kinder = std::move(ebene);
        oben.clear();
        for (const Knoten &kind : kinder)
            oben.push_back(mitKind(kind));
    }
}

} // namespace accessdatei
