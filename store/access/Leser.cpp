#include "Leser.h"

#include "Codeseite.h"
#include "store/Dateischritt.h"
#include "store/Fehler.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <cstring>
#include <set>

namespace accessdatei {

namespace {

constexpr qint64 groessteDatei = qint64(1) << 31;
constexpr size_t seiteJet3 = 2048, seiteSonst = 4096;
constexpr int meisteVerweise = 4;
/// Pages of a definition; 255 columns and 32 indexes need eleven.
constexpr size_t meisteDefinitionsseiten = 64;

/// Where a definition and a page keep what; the two sizes of pages differ.
struct Gliederung
{
    size_t zeilenzahl, zeilenorte;                                       // of a page of rows
    size_t angabe, variable, spalten, indexe, karte, spaltenAb, jeIndex; // of a definition
    size_t jeSpalte, nummer, stelle, merkmale, ort, laenge, nachkomma;   // of a column
};
constexpr Gliederung gliederungJet3{8, 10, 12, 23, 25, 31, 35, 43, 8, 18, 1, 3, 13, 14, 16, 10};
constexpr Gliederung gliederungSonst{12, 14, 16, 43, 45, 51, 55, 63, 12, 25, 5, 7, 15, 21, 23, 12};

const Gliederung &gliederung(bool jet3)
{
    return jet3 ? gliederungJet3 : gliederungSonst;
}

/// A password is a text, filled up with zeros.
bool istKennwort(std::span<const uint8_t> feld, size_t jeZeichen)
{
    bool zuEnde = false;
    for (size_t i = 0; i + jeZeichen <= feld.size(); i += jeZeichen) {
        const bool leer = std::all_of(feld.begin() + i, feld.begin() + i + jeZeichen, [](uint8_t byte) { return byte == 0; });
        if (leer ? i == 0 : zuEnde)
            return false;
        zuEnde = leer;
    }
    return true;
}

bool istSystemname(const QString &name)
{
    return name.startsWith(u"MSys", Qt::CaseInsensitive) || name.startsWith(u"f_") || name.startsWith(u'~');
}

} // namespace

int Tabelle::stelleVon(QStringView spalte) const
{
    const auto gefunden = std::ranges::find_if(spalten, [&](const Spalte &s) { return spalte.compare(s.name, Qt::CaseInsensitive) == 0; });
    return gefunden == spalten.end() ? -1 : int(gefunden - spalten.begin());
}

std::unique_ptr<Leser> Leser::ausDatei(const QString &pfad, const std::function<void(double)> &gelesen)
{
    constexpr qint64 stueck = 16 << 20; // bytes: some of them a second from any disk
    QFile datei(pfad);
    const auto werfen = [&](const QString &grund) {
        throw Fehler(QStringLiteral("Die Datei '%1' kann nicht gelesen werden: %2").arg(QDir::toNativeSeparators(pfad), grund));
    };
    if (!QFileInfo(pfad).isFile())
        werfen(QStringLiteral("Sie ist nicht vorhanden."));
    const auto schritt = [&](Dateischritt art, auto &&ruf) {
        if (const int nummer = dateischritt(art, pfad, ruf)) {
            const QString ursache = dateiursache(nummer);
            werfen(ursache.isEmpty() ? datei.errorString() : ursache);
        }
    };
    schritt(Dateischritt::Oeffnen, [&] { return datei.open(QIODevice::ReadOnly | QIODevice::Unbuffered); });
    if (datei.size() > groessteDatei)
        werfen(QStringLiteral("Sie ist größer als 2 GB."));
    std::vector<uint8_t> bytes(size_t(datei.size()));
    for (qint64 da = 0; da < qint64(bytes.size());) {
        qint64 neue = 0;
        schritt(Dateischritt::Lesen, [&] {
            neue = datei.read(reinterpret_cast<char *>(bytes.data()) + da, std::min(stueck, qint64(bytes.size()) - da));
            return neue > 0;
        });
        da += neue;
        if (gelesen)
            gelesen(double(da) / double(bytes.size()));
    }
    return std::make_unique<Leser>(std::move(bytes), QFileInfo(pfad).fileName());
}

Leser::Leser(std::vector<uint8_t> bytes, QString name) : bytes_(std::move(bytes)), name_(std::move(name))
{
    kopfLesen();
    try {
        katalogLesen();
    } catch (const Beschaedigt &) {
        throw Fehler(QStringLiteral("Die Access-Datei '%1' ist beschädigt: Ihr Verzeichnis der Tabellen kann nicht gelesen werden.").arg(name_));
    }
}

Leser::~Leser() = default;

int Leser::codeseite() const
{
    return codeseite_ ? codeseite_->nummer() : 0;
}

bool Leser::setCodeseite(int nummer)
{
    if (!jet3())
        return false;
    auto neue = std::make_unique<Codeseite>(nummer);
    if (neue->nummer() != nummer)
        return false;
    codeseite_ = std::move(neue);
    tabellen_.clear();
    verknuepfungen_.clear();
    unlesbareTabellen_.clear();
    katalogLesen(); // names are texts too
    return true;
}

const Tabelle *Leser::tabelle(QStringView name) const
{
    const auto gefunden = std::ranges::find_if(tabellen_, [&](const Tabelle &t) { return name.compare(t.name, Qt::CaseInsensitive) == 0; });
    return gefunden == tabellen_.end() ? nullptr : &*gefunden;
}

void Leser::kopfLesen()
{
    const auto beginnt = [this](const char *wort) { return std::memcmp(bytes_.data() + 4, wort, std::strlen(wort)) == 0; };
    constexpr uint8_t anfang[] = {0, 1, 0, 0};
    if (bytes_.size() < seiteSonst || std::memcmp(bytes_.data(), anfang, sizeof anfang) != 0
        || (!beginnt("Standard Jet DB") && !beginnt("Standard ACE DB")))
        throw Fehler(QStringLiteral("Die Datei '%1' ist keine Access-Datenbank.").arg(name_));
    constexpr uint8_t jet4 = 1, neueste = 6;
    const uint8_t nummer = bytes_[0x14];
    if (nummer > neueste)
        throw Fehler(QStringLiteral("Die Access-Datei '%1' ist von einer neueren Version von Access, die nicht gelesen werden kann.").arg(name_));
    fassung_ = nummer == 0 ? Fassung::Jet3 : nummer == jet4 ? Fassung::Jet4 : Fassung::Ace;
    seite_ = jet3() ? seiteJet3 : seiteSonst;
    rc4(kopfschluessel, std::span(bytes_).subspan(kopfmaskeAb, jet3() ? kopfmaskeJet3 : kopfmaske));
    const Sicht kopf{bytes_.data(), seite_};
    if (const uint32_t schluessel = kopf.u32(0x3E)) {
        if (fassung_ == Fassung::Ace)
            throw Fehler(
                QStringLiteral("Die Access-Datei '%1' ist verschlüsselt. Bitte heben Sie die Verschlüsselung in Access auf und versuchen Sie "
                               "es dann noch einmal.")
                    .arg(name_));
        entschluesseln(schluessel);
    }
    // In all but the oldest files the day of their making lies over the password.
    uint8_t kennwort[40];
    const size_t laenge = jet3() ? 20 : 40;
    std::memcpy(kennwort, kopf.teil(0x42, laenge).daten, laenge);
    const double tag = jet3() ? 0 : kopf.kommazahl(0x72);
    if (tag > 0 && tag < 1e6)
        for (size_t i = 0; i < laenge; ++i)
            kennwort[i] ^= uint8_t(uint32_t(tag) >> (8 * (i % 4)));
    if (istKennwort({kennwort, laenge}, jet3() ? 1 : 2))
        throw Fehler(
            QStringLiteral("Die Access-Datei '%1' ist mit einem Kennwort geschützt. Bitte entfernen Sie das Kennwort in Access und versuchen "
                           "Sie es dann noch einmal.")
                .arg(name_));
    if (jet3())
        codeseite_ = std::make_unique<Codeseite>(kopf.u16(0x3C));
}

void Leser::entschluesseln(uint32_t schluessel)
{
    for (size_t nummer = 1; (nummer + 1) * seite_ <= bytes_.size(); ++nummer) {
        uint8_t worte[4];
        schreibe32(worte, schluessel ^ uint32_t(nummer));
        rc4(worte, std::span(bytes_).subspan(nummer * seite_, seite_));
    }
}

void Leser::katalogLesen()
{
    constexpr uint32_t katalogseite = 2;
    constexpr int artTabelle = 1, artFremdeQuelle = 4, artVerknuepft = 6;
    constexpr uint32_t seitenbits = 0xFFFFFF;
    definitionsseiten_.clear();
    const Tabelle katalog = definition(katalogseite, QStringLiteral("MSysObjects"));
    const int nummer = katalog.stelleVon(u"Id"), name = katalog.stelleVon(u"Name"), art = katalog.stelleVon(u"Type"),
              merkmale = katalog.stelleVon(u"Flags");
    if (nummer < 0 || name < 0 || art < 0 || merkmale < 0)
        throw Beschaedigt("catalog columns");
    std::vector<std::pair<uint32_t, QString>> gefunden;
    std::set<uint32_t> gesehen{katalogseite};
    durchlaufen(katalog, [&](Zeile &zeile) {
        const int64_t eineArt = zeile.wert(size_t(art)).ganz;
        const std::string_view utf8 = zeile.wert(size_t(name)).text;
        const QString text = QString::fromUtf8(utf8);
        if ((eineArt != artTabelle && eineArt != artFremdeQuelle && eineArt != artVerknuepft) || istSystemname(text)
            || (uint32_t(zeile.wert(size_t(merkmale)).ganz) & katalogSystem))
            return true;
        // Two names for one table would let a small file ask for a long walk.
        if (const uint32_t seite = uint32_t(zeile.wert(size_t(nummer)).ganz) & seitenbits; eineArt != artTabelle)
            verknuepfungen_ += text;
        else if (gesehen.insert(seite).second)
            gefunden.emplace_back(seite, text);
        return true;
    });
    for (const auto &[seite, text] : gefunden) {
        try {
            tabellen_.push_back(definition(seite, text));
        } catch (const Beschaedigt &) {
            unlesbareTabellen_ += text;
        }
    }
}

Sicht Leser::seite(uint32_t nummer) const
{
    if ((uint64_t(nummer) + 1) * seite_ > bytes_.size())
        throw Beschaedigt("page");
    return {bytes_.data() + size_t(nummer) * seite_, seite_};
}

Sicht Leser::zeile(Sicht seite, uint32_t nummer, uint32_t &bits) const
{
    const Gliederung &g = gliederung(jet3());
    if (nummer >= seite.u16(g.zeilenzahl))
        throw Beschaedigt("row number");
    const uint32_t wort = seite.u16(g.zeilenorte + 2 * nummer), anfang = wort & zeilenort;
    const uint32_t ende = nummer ? seite.u16(g.zeilenorte + 2 * nummer - 2) & zeilenort : uint32_t(seite_);
    if (ende < anfang)
        throw Beschaedigt("row order");
    bits = wort & ~zeilenort;
    return seite.teil(anfang, ende - anfang);
}

Sicht Leser::zeileAn(uint32_t zeiger) const
{
    uint32_t bits = 0;
    return zeile(seite(zeiger >> 8), zeiger & 0xFF, bits);
}

/// The row itself, wherever it has been moved to.
Sicht Leser::verfolgen(Sicht seiteDerZeile, uint32_t nummer, bool &geloescht) const
{
    uint32_t bits = 0;
    Sicht roh = zeile(seiteDerZeile, nummer, bits);
    geloescht = bits & zeileGeloescht;
    if (geloescht)
        return roh;
    for (int schritt = 0; bits & zeileVerweis; ++schritt) {
        if (schritt == meisteVerweise)
            throw Beschaedigt("row chain");
        const uint32_t zeiger = roh.u32(0);
        roh = zeile(seite(zeiger >> 8), zeiger & 0xFF, bits);
    }
    return roh;
}

std::vector<uint32_t> Leser::belegung(Sicht karte) const
{
    const uint64_t letzte = bytes_.size() / seite_;
    std::vector<uint32_t> seiten;
    const auto bits = [&](Sicht feld, uint64_t ab) {
        for (size_t i = 0; i < feld.laenge; ++i)
            for (uint32_t bit = 0; feld.daten[i] >> bit; ++bit)
                if (const uint64_t nummer = ab + 8 * i + bit; (feld.daten[i] >> bit & 1) && nummer < letzte)
                    seiten.push_back(uint32_t(nummer));
    };
    switch (karte.u8(0)) {
    case 0: bits(karte.ab(5), karte.u32(1)); break;
    case 1:
        for (size_t k = 0; 1 + 4 * (k + 1) <= karte.laenge; ++k)
            if (const uint32_t nummer = karte.u32(1 + 4 * k))
                bits(seite(nummer).ab(4), uint64_t(k) * (seite_ - 4) * 8);
        break;
    default: throw Beschaedigt("usage map");
    }
    return seiten;
}

std::vector<uint32_t> Leser::datenseiten(uint32_t tabelle, uint32_t karte)
{
    const auto eigene = [&](uint32_t nummer) {
        const Sicht s = seite(nummer);
        return s.u8(0) == seiteDaten && s.u32(4) == tabelle;
    };
    try {
        std::vector<uint32_t> seiten = belegung(zeileAn(karte));
        std::erase_if(seiten, [&](uint32_t nummer) { return !eigene(nummer); });
        // What two maps of one file name twice is one page.
        std::ranges::sort(seiten);
        seiten.erase(std::ranges::unique(seiten).begin(), seiten.end());
        seiten.shrink_to_fit(); // a map may name every page of the file
        return seiten;
    } catch (const Beschaedigt &) {
    }
    // Every page of rows says whose it is.
    if (besitzer_.empty()) {
        for (uint32_t nummer = 1; nummer < bytes_.size() / seite_; ++nummer)
            if (const Sicht s = seite(nummer); s.u8(0) == seiteDaten)
                besitzer_.emplace_back(s.u32(4), nummer);
        std::ranges::sort(besitzer_);
    }
    std::vector<uint32_t> seiten;
    const auto [von, bis] = std::ranges::equal_range(besitzer_, tabelle, {}, &std::pair<uint32_t, uint32_t>::first);
    for (auto i = von; i != bis; ++i)
        seiten.push_back(i->second);
    return seiten;
}

std::vector<uint8_t> Leser::definitionsbytes(uint32_t erste)
{
    std::vector<uint8_t> bytes;
    size_t anzahl = 0;
    for (uint32_t nummer = erste; nummer;) {
        if (++anzahl > meisteDefinitionsseiten || !definitionsseiten_.insert(nummer).second)
            throw Beschaedigt("definition chain");
        const Sicht s = seite(nummer);
        if (s.u8(0) != seiteTabelle)
            throw Beschaedigt("definition");
        const Sicht inhalt = s.ab(bytes.empty() ? 0 : 8);
        bytes.insert(bytes.end(), inhalt.daten, inhalt.daten + inhalt.laenge);
        nummer = s.u32(4);
    }
    return bytes;
}

Tabelle Leser::definition(uint32_t nummer, QString name)
{
    const Gliederung &g = gliederung(jet3());
    const std::vector<uint8_t> bytes = definitionsbytes(nummer);
    const Sicht d{bytes.data(), bytes.size()};
    Tabelle tabelle{std::move(name), nummer, d.u32(g.angabe), d.u16(g.variable), {}, {}};
    const uint32_t spalten = d.u16(g.spalten), indexe = d.u32(g.indexe);
    constexpr uint32_t meisteIndexe = 1000;
    if (spalten > meisteSpalten || indexe > meisteIndexe)
        throw Beschaedigt("definition counts");
    size_t ort = g.spaltenAb + size_t(indexe) * g.jeIndex;
    for (uint32_t i = 0; i < spalten; ++i, ort += g.jeSpalte) {
        Spalte spalte;
        spalte.typ = Typ(d.u8(ort));
        spalte.nummer = d.u16(ort + g.nummer);
        spalte.stelle = d.u16(ort + g.stelle);
        spalte.fest = d.u8(ort + g.merkmale) & 1;
        spalte.ort = d.u16(ort + g.ort);
        spalte.laenge = d.u16(ort + g.laenge);
        spalte.nachkomma = d.u8(ort + g.nachkomma);
        if (!jet3()) {
            constexpr uint8_t berechnet = 0xC0;
            spalte.verdichtet = d.u8(ort + g.merkmale + 1) & 1;
            spalte.berechnet = (d.u8(ort + g.merkmale + 1) & berechnet) == berechnet;
        }
        tabelle.spalten.push_back(std::move(spalte));
    }
    std::string puffer;
    for (Spalte &spalte : tabelle.spalten) {
        const size_t laenge = jet3() ? d.u8(ort) : d.u16(ort);
        ort += jet3() ? 1 : 2;
        const std::string_view utf8 = text(d.teil(ort, laenge), puffer);
        spalte.name = QString::fromUtf8(utf8);
        ort += laenge;
    }
    tabelle.seiten = datenseiten(nummer, d.u32(g.karte));
    return tabelle;
}

void Leser::orteLesen(Sicht roh, size_t ende, std::vector<uint32_t> &orte) const
{
    if (!jet3()) {
        const uint32_t anzahl = roh.u16(ende - 2);
        if (ende < 4 + 2 * size_t(anzahl))
            throw Beschaedigt("row offsets");
        for (uint32_t i = 0; i <= anzahl; ++i)
            orte.push_back(roh.u16(ende - 4 - 2 * i));
        return;
    }
    // One byte an offset; a table says from which column on another 256 are to be added.
    const uint32_t anzahl = roh.u8(ende - 1);
    size_t spruenge = (roh.laenge - 1) / 256;
    if (ende < 2 + spruenge + anzahl)
        throw Beschaedigt("row offsets");
    const size_t erster = ende - 2 - spruenge;
    if ((erster - anzahl) / 256 < spruenge)
        --spruenge;
    uint32_t hinzu = 0;
    for (uint32_t i = 0; i <= anzahl; ++i) {
        while (hinzu < spruenge && i == roh.u8(ende - 2 - hinzu))
            ++hinzu;
        orte.push_back(roh.u8(erster - i) + 256 * hinzu);
    }
}

void Leser::zerlegen(const Tabelle &tabelle, Sicht roh, Zeile &z) const
{
    const size_t kopf = jet3() ? 1 : 2;
    const uint32_t spalten = jet3() ? roh.u8(0) : roh.u16(0);
    const size_t maskenbytes = (spalten + 7) / 8;
    if (roh.laenge < kopf + maskenbytes)
        throw Beschaedigt("short row");
    const size_t ende = roh.laenge - maskenbytes;
    const Sicht maske = roh.teil(ende, maskenbytes);
    z.orte_.clear();
    if (tabelle.variable)
        orteLesen(roh, ende, z.orte_);
    for (size_t i = 0; i < tabelle.spalten.size(); ++i) {
        const Spalte &spalte = tabelle.spalten[i];
        Zeile::Feld &feld = z.felder_[i];
        const bool bit = uint32_t(spalte.nummer) < spalten && (maske.daten[spalte.nummer / 8] >> (spalte.nummer % 8) & 1);
        feld = {};
        if (spalte.typ == Typ::Wahrheit) {
            feld.null = false;
            feld.wahr = bit;
            continue;
        }
        if (!bit)
            continue;
        if (spalte.fest) {
            constexpr uint8_t breiten[] = {0, 0, 1, 2, 4, 8, 4, 8, 8};
            const size_t breite = size_t(spalte.typ) < std::size(breiten) ? breiten[size_t(spalte.typ)] : size_t(spalte.laenge);
            feld.roh = roh.teil(kopf + size_t(spalte.ort), breite);
            feld.null = false;
        } else if (size_t(spalte.stelle) + 1 < z.orte_.size()) {
            const uint32_t von = z.orte_[size_t(spalte.stelle)], bis = z.orte_[size_t(spalte.stelle) + 1];
            if (bis < von)
                throw Beschaedigt("row offsets");
            feld.roh = roh.teil(von, bis - von);
            feld.null = false;
        }
    }
}

Durchgang Leser::durchlaufen(const Tabelle &tabelle, const Ansehen &ansehen)
{
    Durchgang ergebnis;
    Zeile z;
    z.leser_ = this;
    z.tabelle_ = &tabelle;
    z.felder_.resize(tabelle.spalten.size());
    z.puffer_.resize(tabelle.spalten.size());
    // No two values share a row of the file, so that together they are no longer than it.
    langwertVorrat_ = bytes_.size();
    schadhaft_ = 0;
    bool weiter = true;
    for (size_t s = 0; weiter && s < tabelle.seiten.size(); ++s) {
        const Sicht seiteDerZeilen = seite(tabelle.seiten[s]);
        z.seitenDavor_ = s;
        const uint32_t anzahl = std::min<uint32_t>(seiteDerZeilen.u16(gliederung(jet3()).zeilenzahl), meisteZeilenJeSeite);
        for (uint32_t i = 0; weiter && i < anzahl; ++i) {
            try {
                bool geloescht = false;
                const Sicht roh = verfolgen(seiteDerZeilen, i, geloescht);
                if (geloescht)
                    continue;
                if (roh.daten < seiteDerZeilen.daten || roh.daten >= seiteDerZeilen.daten + seiteDerZeilen.laenge)
                    abziehen(roh); // moved to another page: no row stands for two
                zerlegen(tabelle, roh, z);
            } catch (const Beschaedigt &) {
                ++ergebnis.unlesbar;
                if (ergebnis.unlesbarePlaetze.size() < Durchgang::meistePlaetze)
                    ergebnis.unlesbarePlaetze.push_back(ergebnis.zeilen + ergebnis.unlesbar);
                continue;
            }
            ++ergebnis.zeilen;
            weiter = ansehen(z);
        }
    }
    ergebnis.schadhafteWerte = schadhaft_;
    return ergebnis;
}

} // namespace accessdatei
