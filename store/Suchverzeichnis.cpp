#include "Suchverzeichnis.h"

#include "Kollation.h"

#include <QStringMatcher>

#include <algorithm>
#include <array>
#include <bit>
#include <numeric>
#include <ranges>
#include <tuple>
#include <utility>

namespace {

/* A find is a place among the plants, as the difference to the one before, with what else is told of it in the low bits, seven bits a
   byte. */

constexpr int ortBits = 3;   // of a find by name: where it stands
constexpr int notizBits = 1; // of a find by text: whether it is the user's

/// Where a word stands, the best first; in a botanical or German name that of words which are not its first comes behind.
enum Ort : int { imBotanischen = 0, imDeutschen = 2, imSynonym = 4 };

/// What a plant is worth for a word: a `Guete` above an `Ort`; a text has no place.
constexpr quint8 nichts = 255;
constexpr int orte = 1 << ortBits;

constexpr quint8 wert(Guete guete, int ort = 0)
{
    return quint8(int(guete) * orte + ort);
}

constexpr int gueteVon(quint8 wert)
{
    return wert / orte;
}

/// Both words are asked for: the worse of each.
constexpr quint8 beide(quint8 a, quint8 b)
{
    if (a == nichts || b == nichts)
        return nichts;
    return quint8(std::max(a / orte, b / orte) * orte + std::max(a % orte, b % orte));
}

void anhaengen(std::string &ziel, quint32 zahl)
{
    for (; zahl >= 0x80; zahl >>= 7)
        ziel += char(zahl | 0x80);
    ziel += char(zahl);
}

quint32 lesen(const char *&ort)
{
    quint32 zahl = 0;
    for (int bits = 0;; bits += 7) {
        const auto byte = quint8(*ort++);
        zahl |= quint32(byte & 0x7F) << bits;
        if (byte < 0x80)
            return zahl;
    }
}

} // namespace

/// What plants are worth, each by its place.
struct Suchverzeichnis::Funde
{
    std::vector<quint8> namen, texte;
    explicit Funde(size_t anzahl) : namen(anzahl, nichts), texte(anzahl, nichts) {}

    template<typename F>
    void verbinden(const Funde &andere, F &&wie)
    {
        for (size_t i = 0; i < namen.size(); ++i) {
            namen[i] = wie(namen[i], andere.namen[i]);
            texte[i] = wie(texte[i], andere.texte[i]);
        }
    }
};

/// The notes that have changed, by the plants' places.
struct Suchverzeichnis::Notizlage
{
    std::vector<bool> ungueltig; ///< notes of the index that no longer count; empty: all of them count
    std::vector<std::pair<size_t, QString>> neue;
};

QStringView Suchverzeichnis::wort(size_t nummer) const
{
    const size_t ende = nummer + 1 < anfaenge_.size() ? anfaenge_[nummer + 1] : size_t(woerter_.size());
    return QStringView(woerter_).mid(qsizetype(anfaenge_[nummer]), qsizetype(ende - anfaenge_[nummer]) - 1);
}

std::optional<size_t> Suchverzeichnis::stelle(qint64 artnr) const
{
    const auto ort = std::ranges::lower_bound(pflanzen_, artnr, {}, &Pflanze::artnr);
    return ort != pflanzen_.end() && ort->artnr == artnr ? std::optional(size_t(ort - pflanzen_.begin())) : std::nullopt;
}

Suchnamen Suchverzeichnis::namen(size_t pflanze) const
{
    const Pflanze &eintrag = pflanzen_[pflanze];
    const char *ort = namen_.data() + eintrag.namen;
    const auto naechster = [&ort] {
        const std::string_view text(ort);
        ort += text.size() + 1;
        return QString::fromUtf8(text);
    };
    Suchnamen namen{eintrag.artnr, int(eintrag.bewertung), naechster(), naechster(), {}};
    while (*ort)
        namen.synonyme += naechster();
    return namen;
}

size_t Suchverzeichnis::groesse() const
{
    return pflanzen_.capacity() * sizeof(Pflanze) + (folge_.capacity() + anfaenge_.capacity() + fundorte_.capacity()) * sizeof(quint32)
           + namen_.capacity() + size_t(woerter_.capacity()) * sizeof(QChar) + funde_.capacity();
}

void Suchverzeichnis::eintragen(Funde &funde, size_t nummer, Guete guete, bool auchText, const Notizlage &lage) const
{
    const char *ort = funde_.data() + fundorte_[2 * nummer];
    const char *mitte = funde_.data() + fundorte_[2 * nummer + 1], *ende = funde_.data() + fundorte_[2 * nummer + 2];
    for (quint32 pflanze = 0; ort < mitte;) {
        const quint32 fund = lesen(ort);
        pflanze += fund >> ortBits;
        funde.namen[pflanze] = std::min(funde.namen[pflanze], wert(guete, int(fund % orte)));
    }
    if (!auchText)
        return;
    for (quint32 pflanze = 0; ort < ende;) {
        const quint32 fund = lesen(ort);
        pflanze += fund >> notizBits;
        if (!(fund & 1) || lage.ungueltig.empty() || !lage.ungueltig[pflanze])
            funde.texte[pflanze] = std::min(funde.texte[pflanze], wert(guete));
    }
}

Suchverzeichnis::Funde Suchverzeichnis::suchenWort(const QString &gesucht, bool auchText, const Notizlage &lage) const
{
    Funde funde(anzahl());
    // Those that begin so stand together.
    const auto nummern = std::views::iota(size_t(0), anfaenge_.size());
    for (auto i = std::ranges::partition_point(nummern, [&](size_t nummer) { return wort(nummer) < QStringView(gesucht); });
         i != nummern.end() && wort(*i).startsWith(gesucht); ++i)
        eintragen(funde, *i, Guete::Anfang, auchText, lage);

    if (gesucht.size() >= innenAb) {
        const QStringMatcher sucher(gesucht);
        for (qsizetype ort = sucher.indexIn(woerter_); ort >= 0;) {
            const auto naechstes = std::ranges::upper_bound(anfaenge_, quint32(ort));
            if (*(naechstes - 1) != quint32(ort))
                eintragen(funde, size_t(naechstes - 1 - anfaenge_.begin()), Guete::Innen, auchText, lage);
            ort = naechstes == anfaenge_.end() ? -1 : sucher.indexIn(woerter_, qsizetype(*naechstes));
        }
    }

    if (gesucht.size() >= aehnlichAb)
        for (size_t i = 0; i < anfaenge_.size(); ++i)
            if (fastAnfang(wort(i), gesucht))
                eintragen(funde, i, Guete::Aehnlich, auchText, lage);

    for (const auto &[pflanze, notiz] : lage.neue)
        for (Wortleser leser(notiz); auchText && leser.weiter();)
            if (const std::optional<Guete> guete = passung(leser.wort(), gesucht))
                funde.texte[pflanze] = std::min(funde.texte[pflanze], wert(*guete));
    return funde;
}

Suchverzeichnis::Funde Suchverzeichnis::suchenEinheit(const Suchfrage::Wort &einheit, bool auchText, const Notizlage &lage) const
{
    Funde ganz = suchenWort(einheit.ganz, auchText, lage);
    if (einheit.teile.empty())
        return ganz;
    Funde alle = suchenWort(einheit.teile.front(), auchText, lage);
    for (size_t i = 1; i < einheit.teile.size(); ++i)
        alle.verbinden(suchenWort(einheit.teile[i], auchText, lage), beide);
    ganz.verbinden(alle, [](quint8 a, quint8 b) { return std::min(a, b); });
    return ganz;
}

Trefferliste Suchverzeichnis::ordnen(const std::vector<quint8> &werte, int von, int bis, size_t hoechstens) const
{
    std::array<size_t, nichts + 1> anzahl{};
    for (const quint8 wert : werte)
        ++anzahl[wert];
    // How many of each worth are among the first.
    std::array<size_t, nichts + 1> gefragt{};
    Trefferliste liste;
    size_t fehlen = hoechstens;
    for (int wert = von; wert < bis; ++wert) {
        gefragt[size_t(wert)] = std::min(anzahl[size_t(wert)], fehlen);
        fehlen -= gefragt[size_t(wert)];
        liste.gesamt += anzahl[size_t(wert)];
    }
    std::vector<std::vector<quint32>> faecher(size_t(bis - von));
    size_t offen = hoechstens - fehlen;
    for (auto pflanze = folge_.begin(); offen > 0; ++pflanze)
        if (size_t &rest = gefragt[werte[*pflanze]]; rest > 0) {
            faecher[size_t(werte[*pflanze] - von)].push_back(*pflanze);
            --rest;
            --offen;
        }
    for (size_t i = 0; i < faecher.size(); ++i)
        for (const quint32 pflanze : faecher[i])
            liste.erste.push_back({pflanze, Guete(gueteVon(quint8(von + int(i))))});
    return liste;
}

Suchergebnis Suchverzeichnis::suchen(const Suchfrage &frage, size_t hoechstens, const Notiztexte &neue) const
{
    if (frage.leer() || pflanzen_.empty())
        return {};
    const bool auchText = std::ranges::any_of(frage.woerter, [](const Suchfrage::Wort &wort) { return wort.ganz.size() >= textAb; });
    Notizlage lage;
    for (auto notiz = neue.begin(); notiz != neue.end(); ++notiz)
        if (const std::optional<size_t> pflanze = stelle(notiz.key())) {
            lage.ungueltig.resize(anzahl());
            lage.ungueltig[*pflanze] = true;
            lage.neue.emplace_back(*pflanze, notiz.value());
        }

    std::vector<quint8> namen(anzahl(), 0), irgendwo(anzahl(), 0);
    for (const Suchfrage::Wort &einheit : frage.woerter) {
        const Funde funde = suchenEinheit(einheit, auchText, lage);
        for (size_t i = 0; i < anzahl(); ++i) {
            const quint8 imNamen = funde.namen[i];
            namen[i] = beide(namen[i], imNamen);
            irgendwo[i] = beide(irgendwo[i], std::min(imNamen == nichts ? nichts : quint8(imNamen / orte * orte), funde.texte[i]));
        }
    }
    Suchergebnis ergebnis;
    constexpr int aehnlich = wert(Guete::Aehnlich), ende = aehnlich + orte;
    ergebnis.namen = ordnen(namen, 0, aehnlich, hoechstens);
    ergebnis.aehnliche = ordnen(namen, aehnlich, ende, hoechstens);
    if (!auchText)
        return ergebnis;
    for (const int grenze : {aehnlich, ende}) {
        std::vector<quint8> texte = irgendwo;
        for (size_t i = 0; i < anzahl(); ++i)
            if (namen[i] < grenze)
                texte[i] = nichts;
        ergebnis.texte = ordnen(texte, 0, grenze, hoechstens);
        if (ergebnis.texte.gesamt > 0)
            break;
    }
    return ergebnis;
}

Suchverzeichnis::Bau::Eintrag &Suchverzeichnis::Bau::eintrag(QStringView wort)
{
    const std::u16string_view schluessel(wort.utf16(), size_t(wort.size()));
    const auto ort = woerter_.find(schluessel);
    return ort != woerter_.end() ? ort->second : woerter_.try_emplace(std::u16string(schluessel)).first->second;
}

void Suchverzeichnis::Bau::name(QStringView text, quint32 pflanze, int platz)
{
    qsizetype vorn = -1; // where the first word begins, and the compound that begins with it
    for (Wortleser leser(text); leser.weiter();) {
        vorn = vorn < 0 ? leser.anfang() : vorn;
        Eintrag &ziel = eintrag(leser.wort());
        // The first place is the best.
        if (ziel.letzterName != pflanze) {
            anhaengen(ziel.namen, (pflanze - (ziel.letzterName == keine ? 0 : ziel.letzterName)) << ortBits
                                      | quint32(platz + (platz == imSynonym || leser.anfang() == vorn ? 0 : 1)));
            ziel.letzterName = pflanze;
        }
    }
}

void Suchverzeichnis::Bau::text(QStringView text, quint32 pflanze, bool notiz)
{
    for (Wortleser leser(text); leser.weiter();) {
        Eintrag &ziel = eintrag(leser.wort());
        quint32 &letzter = notiz ? ziel.letzteNotiz : ziel.letzterText;
        if (letzter == pflanze)
            continue;
        letzter = pflanze;
        anhaengen(ziel.texte, (pflanze - ziel.letzterFund) << notizBits | quint32(notiz));
        ziel.letzterFund = pflanze;
    }
}

void Suchverzeichnis::Bau::dazu(const Suchnamen &namen, const QStringList &texte, const QString &notiz)
{
    const auto pflanze = quint32(neu_->pflanzen_.size());
    neu_->pflanzen_.push_back({namen.artnr, quint32(neu_->namen_.size()), quint32(std::max(namen.bewertung, 0))});
    const auto merken = [this](const QString &text) {
        QString rein = text;
        neu_->namen_ += rein.remove(QChar(u'\0')).toStdString();
        neu_->namen_ += '\0';
    };
    merken(namen.botanisch);
    merken(namen.deutsch);
    for (const QString &synonym : namen.synonyme)
        if (!synonym.isEmpty())
            merken(synonym);
    neu_->namen_ += '\0';
    ordnung_.push_back(sortierschluessel(namen.botanisch));

    name(namen.botanisch, pflanze, imBotanischen);
    name(namen.deutsch, pflanze, imDeutschen);
    for (const QString &synonym : namen.synonyme)
        name(synonym, pflanze, imSynonym);
    for (const QString &zeile : texte)
        text(zeile, pflanze, false);
    text(notiz, pflanze, true);
}

std::shared_ptr<const Suchverzeichnis> Suchverzeichnis::Bau::fertig()
{
    Suchverzeichnis &neu = *neu_;
    neu.folge_.resize(neu.pflanzen_.size());
    std::iota(neu.folge_.begin(), neu.folge_.end(), 0);
    std::ranges::sort(neu.folge_, [this](quint32 a, quint32 b) { return std::tie(ordnung_[a], a) < std::tie(ordnung_[b], b); });

    std::vector<std::pair<const std::u16string, Eintrag> *> sortiert;
    sortiert.reserve(woerter_.size());
    size_t zeichen = 0, bytes = 0;
    for (auto &eintrag : woerter_) {
        sortiert.push_back(&eintrag);
        zeichen += eintrag.first.size() + 1;
        bytes += eintrag.second.namen.size() + eintrag.second.texte.size();
    }
    std::ranges::sort(sortiert, [](const auto *a, const auto *b) { return a->first < b->first; });
    neu.woerter_.reserve(qsizetype(zeichen));
    neu.funde_.reserve(bytes);
    neu.anfaenge_.reserve(sortiert.size());
    neu.fundorte_.reserve(2 * sortiert.size() + 1);
    for (auto *eintrag : sortiert) {
        neu.anfaenge_.push_back(quint32(neu.woerter_.size()));
        neu.woerter_.append(QStringView(eintrag->first.data(), qsizetype(eintrag->first.size())));
        neu.woerter_.append(QChar(u'\0'));
        for (std::string *teil : {&eintrag->second.namen, &eintrag->second.texte}) {
            neu.fundorte_.push_back(quint32(neu.funde_.size()));
            neu.funde_ += *teil;
            std::string().swap(*teil);
        }
    }
    neu.fundorte_.push_back(quint32(neu.funde_.size()));
    neu.pflanzen_.shrink_to_fit();
    neu.namen_.shrink_to_fit();
    woerter_.clear();
    ordnung_.clear();
    return std::exchange(neu_, std::make_shared<Suchverzeichnis>());
}

QString getroffenesSynonym(const Suchnamen &namen, const Suchfrage &frage, Guete bis)
{
    const quint64 offen = ~(getroffen(namen.botanisch, frage, bis) | getroffen(namen.deutsch, frage, bis));
    QString bestes;
    quint64 beste = 0;
    for (const QString &synonym : namen.synonyme) {
        const quint64 trifft = getroffen(synonym, frage, bis);
        // The one that has most of what is missing.
        if ((trifft & offen) && std::popcount(trifft) > std::popcount(beste)) {
            beste = trifft;
            bestes = synonym;
        }
    }
    return bestes;
}
