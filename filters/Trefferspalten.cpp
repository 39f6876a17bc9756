#include "Trefferspalten.h"

#include "Bildplaetze.h"
#include "store/Datenbank.h"
#include "store/Fehler.h"
#include "store/Schema.h"
#include "store/Text.h"

#include <QFileInfo>

#include <algorithm>
#include <bit>
#include <cstring>
#include <functional>
#include <limits>

Bitmenge::Bitmenge(size_t plaetze, bool gesetzt) : worte_((plaetze + breite - 1) / breite, gesetzt ? ~std::uint64_t(0) : 0)
{
    if (gesetzt && plaetze % breite)
        worte_.back() = (std::uint64_t(1) << (plaetze % breite)) - 1;
}

Bitmenge &Bitmenge::operator&=(const Bitmenge &andere)
{
    for (size_t i = 0; i < worte_.size(); ++i)
        worte_[i] &= andere.worte_[i];
    return *this;
}

Bitmenge &Bitmenge::operator|=(const Bitmenge &andere)
{
    for (size_t i = 0; i < worte_.size(); ++i)
        worte_[i] |= andere.worte_[i];
    return *this;
}

std::optional<size_t> Bitmenge::ersterGemeinsamer(const Bitmenge &andere) const
{
    for (size_t i = 0; i < worte_.size(); ++i)
        if (const std::uint64_t beide = worte_[i] & andere.worte_[i])
            return i * breite + size_t(std::countr_zero(beide));
    return std::nullopt;
}

size_t Bitmenge::anzahl() const
{
    size_t summe = 0;
    for (const std::uint64_t wort : worte_)
        summe += size_t(std::popcount(wort));
    return summe;
}

namespace {

/// The same numbers with more room for each.
template<typename Weit, typename Eng>
std::vector<Weit> geweitet(const std::vector<Eng> &kodes)
{
    std::vector<Weit> weit;
    weit.reserve(kodes.capacity());
    weit.assign(kodes.begin(), kodes.end());
    return weit;
}

template<typename Zahl>
Bitmenge passende(const std::vector<Zahl> &kodes, const std::vector<std::uint8_t> &tabelle)
{
    Bitmenge menge(kodes.size());
    for (size_t i = 0; i < kodes.size(); i += Bitmenge::breite) {
        std::uint64_t wort = 0;
        const size_t bis = std::min(Bitmenge::breite, kodes.size() - i);
        for (size_t j = 0; j < bis; ++j)
            wort |= std::uint64_t(tabelle[kodes[i + j]]) << j;
        menge.wortSetzen(i, wort);
    }
    return menge;
}

} // namespace

void Kodespalte::anhaengen(std::uint32_t kode)
{
    if (auto *bytes = std::get_if<0>(&kodes_); bytes && kode > std::numeric_limits<std::uint8_t>::max())
        kodes_ = geweitet<std::uint16_t>(*bytes);
    if (auto *kurze = std::get_if<1>(&kodes_); kurze && kode > std::numeric_limits<std::uint16_t>::max())
        kodes_ = geweitet<std::uint32_t>(*kurze);
    std::visit([kode](auto &kodes) { kodes.push_back(static_cast<typename std::decay_t<decltype(kodes)>::value_type>(kode)); }, kodes_);
}

void Kodespalte::abschliessen()
{
    std::visit([](auto &kodes) { kodes.shrink_to_fit(); }, kodes_);
}

std::uint32_t Kodespalte::operator[](size_t i) const
{
    return std::visit([i](const auto &kodes) { return std::uint32_t(kodes[i]); }, kodes_);
}

Bitmenge Kodespalte::nachTabelle(const std::vector<std::uint8_t> &tabelle) const
{
    return std::visit([&](const auto &kodes) { return passende(kodes, tabelle); }, kodes_);
}

std::string_view Textliste::operator[](size_t i) const
{
    const size_t anfang = i ? enden_[i - 1] : 0;
    return std::string_view(bytes_.constData() + anfang, enden_[i] - anfang);
}

void Textliste::anhaengen(std::string_view text)
{
    if (text.size() > std::numeric_limits<std::uint32_t>::max() - size_t(bytes_.size()))
        throw Fehler(QStringLiteral("Die Datenbank enthält zu viel Text, um darin zu zählen."));
    // In small steps: what is kept for more counts for the memory, too.
    if (const qsizetype bedarf = bytes_.size() + qsizetype(text.size()); bedarf > bytes_.capacity())
        bytes_.reserve(bedarf + bedarf / 4);
    bytes_.append(text.data(), qsizetype(text.size()));
    enden_.push_back(std::uint32_t(bytes_.size()));
}

void Textliste::abschliessen()
{
    bytes_.squeeze();
    enden_.shrink_to_fit();
}

void Textliste::grossSchreiben()
{
    qsizetype von = 0, nach = 0, verschoben = 0;
    for (std::uint32_t &ende : enden_) {
        const qsizetype bis = qsizetype(ende) + verschoben;
        const QByteArray gross = grossbuchstaben(QString::fromUtf8(bytes_.constData() + von, bis - von)).toUtf8();
        // A capital may take more bytes than its letter.
        if (const qsizetype mehr = nach + gross.size() - bis; mehr > 0) {
            bytes_.insert(bis, mehr, '\0');
            verschoben += mehr;
        }
        von = qsizetype(ende) + verschoben;
        std::memcpy(bytes_.data() + nach, gross.constData(), size_t(gross.size()));
        nach += gross.size();
        ende = std::uint32_t(nach);
    }
    bytes_.truncate(nach);
    abschliessen();
}

namespace {

/// Where a text, not empty, is found from `ab` on. Blocks in which its first and last byte never stand at their distance are passed over
/// as a whole, which the compiler makes a few instructions.
size_t finden(std::string_view alles, std::string_view gesucht, size_t ab)
{
    constexpr size_t block = 32;
    const size_t abstand = gesucht.size() - 1;
    const char erstes = gesucht.front(), letztes = gesucht.back();
    for (; ab + abstand + block <= alles.size(); ab += block) {
        const char *vorne = alles.data() + ab, *hinten = vorne + abstand;
        unsigned char einer = 0;
        for (size_t j = 0; j < block; ++j)
            einer |= static_cast<unsigned char>((vorne[j] == erstes) & (hinten[j] == letztes));
        for (size_t j = 0; einer && j < block; ++j)
            if (vorne[j] == erstes && hinten[j] == letztes && alles.compare(ab + j, gesucht.size(), gesucht) == 0)
                return ab + j;
    }
    return alles.find(gesucht, ab);
}

} // namespace

std::vector<std::uint8_t> Textliste::enthaelt(std::string_view gesucht) const
{
    std::vector<std::uint8_t> ja(anzahl(), gesucht.empty());
    if (gesucht.empty())
        return ja;
    // One search through all of them: where it finds something is looked up afterwards.
    const std::string_view alles(bytes_.constData(), size_t(bytes_.size()));
    size_t i = 0;
    for (size_t stelle = finden(alles, gesucht, 0); stelle != alles.npos;) {
        i = size_t(std::upper_bound(enden_.begin() + qsizetype(i), enden_.end(), stelle) - enden_.begin());
        const bool ganz = stelle + gesucht.size() <= enden_[i];
        ja[i] = ja[i] || ganz;
        stelle = finden(alles, gesucht, ganz ? enden_[i] : stelle + 1);
    }
    return ja;
}

bool Kriteriumspalte::istText(Pruefung pruefung)
{
    switch (pruefung) {
    case Pruefung::Enthaelt:
    case Pruefung::SynonymBotanisch:
    case Pruefung::SynonymDeutsch: return true;
    case Pruefung::Familie:
    case Pruefung::Bild:
    case Pruefung::Flags:
    case Pruefung::FlagsNachWort:
    case Pruefung::FlagsOderWahr:
    case Pruefung::Bereich:
    case Pruefung::Bewertung:
    case Pruefung::AlleWahr:
    case Pruefung::EinsWahr:
    case Pruefung::Gleich:
    case Pruefung::WortImText:
    case Pruefung::Keine: break;
    }
    return false;
}

std::vector<std::string_view> Kriteriumspalte::zerlegen(std::string_view wert)
{
    std::vector<std::string_view> felder;
    for (wert.remove_prefix(1); !wert.empty();) {
        std::uint32_t laenge = 0;
        std::memcpy(&laenge, wert.data(), sizeof laenge);
        felder.push_back(wert.substr(sizeof laenge, laenge));
        wert.remove_prefix(sizeof laenge + laenge);
    }
    return felder;
}

namespace {

/// Finds the number of a text in a list and adds what is new; open addressing, needed while reading only.
class Verzeichnis
{
public:
    explicit Verzeichnis(Textliste &texte) : texte_(texte), plaetze_(kleinste, frei) {}

    std::uint32_t nummer(std::string_view text)
    {
        if (texte_.anzahl() * 2 >= plaetze_.size())
            wachsen();
        std::uint32_t &platz = plaetze_[platzVon(text)];
        if (platz == frei) {
            platz = std::uint32_t(texte_.anzahl());
            texte_.anhaengen(text);
        }
        return platz;
    }

private:
    static constexpr size_t kleinste = 64;
    static constexpr std::uint32_t frei = ~std::uint32_t(0);

    size_t platzVon(std::string_view text) const
    {
        size_t i = std::hash<std::string_view>()(text) & (plaetze_.size() - 1);
        while (plaetze_[i] != frei && texte_[plaetze_[i]] != text)
            i = (i + 1) & (plaetze_.size() - 1);
        return i;
    }
    void wachsen()
    {
        plaetze_.assign(plaetze_.size() * 2, frei);
        for (size_t i = 0; i < texte_.anzahl(); ++i)
            plaetze_[platzVon(texte_[i])] = std::uint32_t(i);
    }

    Textliste &texte_;
    std::vector<std::uint32_t> plaetze_;
};

/// One walk over the plants.
class Spaltenleser
{
public:
    Spaltenleser(Datenbank &arbeit, const Filterbeschreibung &beschreibung, const std::atomic<bool> &halt)
        : arbeit_(arbeit), beschreibung_(beschreibung), sparte_(eintrag(beschreibung.sparte)), halt_(halt)
    {
    }

    void lesen(Trefferspalten &ziel)
    {
        ziel.kriterien.resize(beschreibung_.kriterien.size());
        felderSammeln(ziel);
        bilderLesen(ziel);
        pflanzenLesen(ziel);
        synonymeLesen(ziel);
    }

private:
    static constexpr size_t stueckgroesse = 2000; ///< plants that are read at a time

    /// How a criterion's value is put together.
    struct Bauplan
    {
        std::array<bool, 2> gefragt{};
        std::array<std::vector<size_t>, 2> stellen; ///< of the fields in a row
        bool text = false, bild = false;
        std::unique_ptr<Verzeichnis> verzeichnis;
    };

    size_t stelle(const QString &feld)
    {
        if (const qsizetype schon = felder_.indexOf(feld); schon >= 0)
            return size_t(schon);
        felder_ += feld;
        return size_t(felder_.size()) - 1;
    }

    void felderSammeln(Trefferspalten &ziel)
    {
        const QStringList vorhandene = arbeit_.Spaltennamen(sparte_.haupttabelle.toString());
        const auto fehlt = [&](const QString &feld) { return !vorhandene.contains(feld, Qt::CaseInsensitive); };
        for (size_t k = 0; k < beschreibung_.kriterien.size(); ++k) {
            const Kriterium &kriterium = beschreibung_.kriterien[k];
            Kriteriumspalte &spalte = ziel.kriterien[k];
            Bauplan plan;
            plan.text = Kriteriumspalte::istText(kriterium.pruefung);
            plan.bild = kriterium.pruefung == Pruefung::Bild;
            plan.verzeichnis = std::make_unique<Verzeichnis>(spalte.werte);
            for (const bool andere : {false, true}) {
                const std::optional<Frage> frage = frageAn(kriterium, andere);
                if (!frage || kriterium.pruefung == Pruefung::Keine)
                    continue;
                plan.gefragt[andere] = true;
                std::vector<const char *> namen{frage->feld, frage->feld2};
                namen.insert(namen.end(), frage->felder.begin(), frage->felder.end());
                for (const char *name : namen) {
                    if (!name)
                        continue;
                    const Spalte *beschrieben = spalteVon(beschreibung_, name);
                    const QString feld = QString::fromLatin1(beschrieben ? beschrieben->name : name);
                    if (fehlt(feld)) {
                        spalte.fehler = QStringLiteral("In der Datenbank '%1' fehlt das Feld '%2'.").arg(QFileInfo(arbeit_.pfad()).fileName(), feld);
                        continue;
                    }
                    spalte.felder[andere] += feld;
                    plan.stellen[andere].push_back(stelle(feld));
                }
            }
            plaene_.push_back(std::move(plan));
        }
        if (sparte_.herkunftsfeld)
            herkunft_ = stelle(QString::fromLatin1(sparte_.herkunftsfeld));
    }

    void bilderLesen(Trefferspalten &ziel)
    {
        try {
            mitBild_ = plaetzeMitBild(arbeit_, arbeit_, sparte_);
        } catch (const Fehler &fehler) {
            // Whoever does not ask for pictures is not concerned.
            for (size_t k = 0; k < plaene_.size(); ++k)
                if (plaene_[k].bild)
                    ziel.kriterien[k].fehler = fehler.text();
        }
    }

    void pflanzenLesen(Trefferspalten &ziel)
    {
        QStringList ausdruecke;
        for (const QString &feld : felder_)
            ausdruecke += u'"' + feld + u'"';
        const QByteArray andereHerkunft = sparte_.herkunftsfeld ? sparte_.herkuenfte.back().wert.toUtf8() : QByteArray();
        std::vector<size_t> andere;
        std::string wert;
        const auto aufnehmen = [&](qint64 nummer, std::span<const std::string_view> werte) {
            const bool ausAnderer = herkunft_ && werte[*herkunft_] == std::string_view(andereHerkunft.constData(), size_t(andereHerkunft.size()));
            if (ausAnderer)
                andere.push_back(ziel.nummern.size());
            ziel.nummern.push_back(nummer);
            const bool bild = mitBild_.contains(nummer);
            for (size_t k = 0; k < plaene_.size(); ++k)
                ziel.kriterien[k].kodes.anhaengen(kode(plaene_[k], ausAnderer, bild, werte, wert));
        };
        // One statement for all would keep every change of the user's waiting for longer than it can wait.
        Anweisung &stueck = arbeit_.vorbereitet(QStringLiteral("SELECT ARTNR, %1 FROM \"%2\" WHERE ARTNR > ?1 ORDER BY ARTNR LIMIT %3")
                                                    .arg(ausdruecke.join(u','), sparte_.haupttabelle)
                                                    .arg(stueckgroesse));
        std::vector<std::string_view> werte(size_t(felder_.size()));
        qint64 letzte = std::numeric_limits<qint64>::min();
        for (size_t gelesen = stueckgroesse; gelesen == stueckgroesse;) {
            stueck.zuruecksetzen();
            stueck.zahlBinden(0, letzte);
            for (gelesen = 0; stueck.schritt(); ++gelesen) {
                if (halt_)
                    throw Trefferspalten::Abgebrochen();
                letzte = stueck.zahl(0);
                for (size_t i = 0; i < werte.size(); ++i)
                    werte[i] = stueck.bytes(int(i) + 1);
                aufnehmen(letzte, werte);
            }
        }
        ziel.ausAnderer = Bitmenge(ziel.nummern.size());
        for (const size_t i : andere)
            ziel.ausAnderer.setzen(i);
        ziel.nummern.shrink_to_fit();
        for (size_t k = 0; k < plaene_.size(); ++k) {
            Kriteriumspalte &spalte = ziel.kriterien[k];
            plaene_[k].verzeichnis.reset();
            spalte.kodes.abschliessen();
            if (plaene_[k].text)
                spalte.werte.grossSchreiben();
            else
                spalte.werte.abschliessen();
        }
    }

    /// Number of a row's value; `wert` is room to put it together.
    static std::uint32_t kode(const Bauplan &plan, bool andere, bool bild, std::span<const std::string_view> werte, std::string &wert)
    {
        const std::vector<size_t> &stellen = plan.stellen[andere];
        if (plan.text) {
            if (!plan.gefragt[andere])
                return Kriteriumspalte::nichtGefragt;
            return Kriteriumspalte::ersterText + plan.verzeichnis->nummer(stellen.empty() ? std::string_view() : werte[stellen.front()]);
        }
        wert.assign(1, char((andere ? Kriteriumspalte::andere : 0) | (plan.bild && bild ? Kriteriumspalte::mitBild : 0)));
        for (const size_t stelle : stellen) {
            const auto laenge = std::uint32_t(werte[stelle].size());
            wert.append(reinterpret_cast<const char *>(&laenge), sizeof laenge);
            wert += werte[stelle];
        }
        return plan.verzeichnis->nummer(wert);
    }

    void synonymeLesen(Trefferspalten &ziel)
    {
        const QList<Sparte> quellen = herkuenfte(sparte_);
        std::vector<std::pair<qint64, std::uint32_t>> plaetze;
        plaetze.reserve(ziel.nummern.size());
        for (size_t i = 0; i < ziel.nummern.size(); ++i)
            plaetze.emplace_back(ziel.nummern[i], std::uint32_t(i));
        std::ranges::sort(plaetze);
        for (size_t k = 0; k < plaene_.size(); ++k) {
            const Pruefung pruefung = beschreibung_.kriterien[k].pruefung;
            if (pruefung != Pruefung::SynonymBotanisch && pruefung != Pruefung::SynonymDeutsch)
                continue;
            for (const Sparte quelle : quellen) {
                const QStringView tabelle = pruefung == Pruefung::SynonymDeutsch ? eintrag(quelle).synonymDeutsch : eintrag(quelle).synonymBotanisch;
                try {
                    synonymeLesen(ziel.kriterien[k].synonyme[quelle != quellen.first()], tabelle.toString(), quelle != quellen.first(), ziel,
                                  plaetze);
                } catch (const Fehler &fehler) {
                    ziel.kriterien[k].fehler = fehler.text();
                }
            }
        }
    }

    void synonymeLesen(Synonymliste &liste, const QString &tabelle, bool andere, const Trefferspalten &ziel,
                       const std::vector<std::pair<qint64, std::uint32_t>> &plaetze)
    {
        arbeit_.durchlaufen(tabelle, {QStringLiteral("SYN")}, [&](qint64 nummer, std::span<const std::string_view> werte) {
            if (halt_)
                throw Trefferspalten::Abgebrochen();
            if (!werte[0].data())
                return;
            std::uint32_t pflanze = Synonymliste::keine;
            for (auto p = std::ranges::lower_bound(plaetze, std::pair(nummer, std::uint32_t(0))); p != plaetze.end() && p->first == nummer; ++p)
                if (ziel.ausAnderer.hat(p->second) == andere)
                    pflanze = p->second;
            liste.texte.anhaengen(werte[0]);
            liste.pflanzen.push_back(pflanze);
        });
        liste.texte.grossSchreiben();
        liste.pflanzen.shrink_to_fit();
    }

    Datenbank &arbeit_;
    const Filterbeschreibung &beschreibung_;
    const SpartenEintrag &sparte_;
    const std::atomic<bool> &halt_;
    QStringList felder_; ///< of a row
    std::optional<size_t> herkunft_;
    std::vector<Bauplan> plaene_;
    QSet<qint64> mitBild_;
};

} // namespace

std::shared_ptr<const Trefferspalten> Trefferspalten::lesen(Datenbank &arbeit, const Filterbeschreibung &beschreibung, const std::atomic<bool> &halt)
{
    auto neu = std::make_shared<Trefferspalten>();
    Spaltenleser(arbeit, beschreibung, halt).lesen(*neu);
    return neu;
}
