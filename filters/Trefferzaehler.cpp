#include "Trefferzaehler.h"

#include "Filterlauf.h"
#include "Filtername.h"
#include "Filterpruefung.h"
#include "Steuerungsarten.h"
#include "store/AccessSql.h"
#include "store/Text.h"

#include <algorithm>

QString pflanzenwort(size_t anzahl)
{
    if (anzahl == 0)
        return QStringLiteral("keine Pflanze");
    return anzahl == 1 ? QStringLiteral("1 Pflanze") : QStringLiteral("%1 Pflanzen").arg(anzahl);
}

QString trefferzeile(const Filterbeschreibung &beschreibung, const Trefferstand &treffer)
{
    if (!treffer.fehler.isEmpty())
        return treffer.fehler;
    if (treffer.anzahl > 0)
        return pflanzenwort(treffer.anzahl);
    if (!treffer.ohne)
        return QStringLiteral("keine");
    return QStringLiteral("keine; ohne '%1' %2").arg(gruppenname(beschreibung, *treffer.ohne)).arg(treffer.ohneAnzahl);
}

namespace {

/// The test of one criterion, asked with a value in place of a plant.
class Einzelpruefung
{
public:
    Einzelpruefung(const Filterbeschreibung &beschreibung, size_t k, const Kriteriumzustand &zustand, const Kriteriumspalte &spalte,
                   const Trefferzaehler::Familiennummer &familie)
        : spalte_(spalte), bild_(beschreibung.kriterien[k].pruefung == Pruefung::Bild), einzeln_(beschreibung)
    {
        einzeln_.kriterien = beschreibung.kriterien.subspan(k, 1);
        Filterumgebung umgebung;
        umgebung.mitBild = {nummerMitBild};
        if (beschreibung.kriterien[k].pruefung == Pruefung::Familie)
            umgebung.familie = familie(zustand.a.text);
        pruefung_.emplace(einzeln_, Filterzustand{{zustand}}, std::move(umgebung));
        const SpartenEintrag &sparte = eintrag(beschreibung.sparte);
        if (sparte.herkunftsfeld)
            andereHerkunft_ = sparte.herkuenfte.back().wert.toUtf8();
        for (const bool andere : {false, true})
            for (const QString &feld : pruefung_->felder()) {
                const qsizetype stelle = spalte.felder[andere].indexOf(feld);
                const bool herkunft = stelle < 0 && sparte.herkunftsfeld && feld == QLatin1String(sparte.herkunftsfeld);
                plaetze_[andere].push_back(herkunft ? istHerkunft : int(stelle));
            }
    }

    /// Throws as the test of a plant with this number and this value would.
    bool passt(std::uint32_t kode, qint64 artnr)
    {
        const std::string_view wert = spalte_.werte[kode];
        const bool andere = wert.front() & Kriteriumspalte::andere;
        const std::vector<std::string_view> felder = Kriteriumspalte::zerlegen(wert);
        werte_.clear();
        for (const int platz : plaetze_[andere])
            werte_.push_back(platz >= 0                       ? felder[size_t(platz)]
                             : platz == istHerkunft && andere ? std::string_view(andereHerkunft_.constData(), size_t(andereHerkunft_.size()))
                                                              : std::string_view());
        return pruefung_->passt(bild_ ? (wert.front() & Kriteriumspalte::mitBild ? nummerMitBild : nummerOhneBild) : artnr, werte_);
    }

private:
    static constexpr qint64 nummerMitBild = 1, nummerOhneBild = 0;
    static constexpr int istHerkunft = -2;

    const Kriteriumspalte &spalte_;
    bool bild_;
    Filterbeschreibung einzeln_;
    std::optional<Filterpruefung> pruefung_;
    QByteArray andereHerkunft_;
    std::array<std::vector<int>, 2> plaetze_; ///< of the test's fields in a value of each origin
    std::vector<std::string_view> werte_;
};

std::string_view bytes(const QByteArray &utf8)
{
    return {utf8.constData(), size_t(utf8.size())};
}

/// Whether a text means itself where it stands as a pattern, and can be searched for byte by byte.
bool istSchlicht(const QString &text)
{
    return text.isValidUtf16() && std::ranges::none_of(text, [](QChar z) { return QStringView(u"*?#[").contains(z); });
}

} // namespace

Trefferzaehler::Trefferzaehler(const Filterbeschreibung &beschreibung, std::shared_ptr<const Trefferspalten> spalten, Familiennummer familie)
    : beschreibung_(beschreibung), spalten_(std::move(spalten)), familie_(std::move(familie)), antworten_(beschreibung.kriterien.size())
{
}

Trefferzaehler::Antwort Trefferzaehler::beantworten(size_t k, const Kriteriumzustand &zustand) const
{
    const Kriterium &kriterium = beschreibung_.kriterien[k];
    Antwort antwort;
    antwort.zustand = zustand;
    antwort.bekannt = true;
    try {
        antwort.aktiv = aktiv(kriterium, zustand);
        if (antwort.aktiv && spalten_->kriterien[k].fehler)
            antwort.vorweg = *spalten_->kriterien[k].fehler;
        else if (antwort.aktiv && Kriteriumspalte::istText(kriterium.pruefung))
            texteFragen(k, zustand, antwort);
        else if (antwort.aktiv)
            werteFragen(k, zustand, antwort);
    } catch (const Fehler &fehler) {
        antwort.aktiv = true;
        antwort.vorweg = fehler.text();
    }
    return antwort;
}

void Trefferzaehler::werteFragen(size_t k, const Kriteriumzustand &zustand, Antwort &antwort) const
{
    const Kriteriumspalte &spalte = spalten_->kriterien[k];
    Einzelpruefung pruefung(beschreibung_, k, zustand, spalte, familie_);
    std::vector<std::uint8_t> passt(spalte.werte.anzahl()), stolpert(spalte.werte.anzahl());
    for (std::uint32_t kode = 0; kode < passt.size(); ++kode)
        try {
            passt[kode] = pruefung.passt(kode, 0);
        } catch (const Fehler &) {
            stolpert[kode] = 1;
        }
    antwort.passt = spalte.kodes.nachTabelle(passt);
    if (std::ranges::find(stolpert, 1) != stolpert.end())
        antwort.stolpert = spalte.kodes.nachTabelle(stolpert);
}

void Trefferzaehler::texteFragen(size_t k, const Kriteriumzustand &zustand, Antwort &antwort) const
{
    const Kriterium &kriterium = beschreibung_.kriterien[k];
    const Kriteriumspalte &spalte = spalten_->kriterien[k];
    const bool synonym = kriterium.pruefung != Pruefung::Enthaelt;
    if (synonym)
        synonymtextFordern(kriterium, zustand.a.text);
    const QString nadel = grossbuchstaben(zustand.a.text);
    const QByteArray gesucht = nadel.toUtf8();
    // The text itself; what is not asked for it passes.
    std::vector<std::uint8_t> drin = spalte.werte.enthaelt(bytes(gesucht));
    if (!nadel.isValidUtf16())
        for (std::uint32_t i = 0; i < drin.size(); ++i)
            drin[i] = QString::fromUtf8(spalte.werte[i]).contains(nadel);
    drin.insert(drin.begin() + Kriteriumspalte::nichtGefragt, 1);
    antwort.passt = spalte.kodes.nachTabelle(drin);
    if (!synonym)
        return;
    for (const bool andere : {false, true}) {
        if (!frageAn(kriterium, andere))
            continue;
        const Synonymliste &liste = spalte.synonyme[andere];
        bool gefunden = false;
        if (istSchlicht(nadel)) {
            // A row that the pattern finds contains the text, and so does what is joined of it.
            const std::vector<std::uint8_t> passende = liste.texte.enthaelt(bytes(gesucht));
            for (size_t i = 0; i < passende.size(); ++i)
                if (passende[i]) {
                    gefunden = true;
                    if (liste.pflanzen[i] != Synonymliste::keine)
                        antwort.passt.setzen(liste.pflanzen[i]);
                }
        } else {
            QHash<std::uint32_t, QString> gesammelt;
            for (size_t i = 0; i < liste.pflanzen.size(); ++i) {
                const QString text = QString::fromUtf8(liste.texte[i]);
                if (!accessLike(u'*' + nadel + u'*', text))
                    continue;
                gefunden = true;
                QString &eintrag = gesammelt[liste.pflanzen[i]];
                eintrag += eintrag.isEmpty() ? text : QStringLiteral(", ") + text;
            }
            gesammelt.remove(Synonymliste::keine);
            for (auto eintrag = gesammelt.cbegin(); eintrag != gesammelt.cend(); ++eintrag) {
                if (eintrag->isEmpty())
                    continue;
                const QString name = QString::fromUtf8(spalte.werte[spalte.kodes[eintrag.key()] - Kriteriumspalte::ersterText]);
                const QString ganz = kriterium.pruefung == Pruefung::SynonymBotanisch ? *eintrag : name + QStringLiteral(", ") + *eintrag;
                if (ganz.contains(nadel))
                    antwort.passt.setzen(eintrag.key());
            }
        }
        if (!gefunden)
            continue;
        // The numbers go through 16 bits as soon as there is anything to look them up in.
        for (size_t i = 0; i < spalten_->nummern.size(); ++i)
            if (spalten_->nummern[i] > groessteSynonymnummer && spalten_->ausAnderer.hat(i) == andere) {
                if (!antwort.stolpert)
                    antwort.stolpert.emplace(spalten_->nummern.size());
                antwort.stolpert->setzen(i);
            }
    }
}

void Trefferzaehler::auffrischen(const Filterzustand &zustand)
{
    for (size_t k = 0; k < antworten_.size(); ++k)
        if (!antworten_[k].bekannt || antworten_[k].zustand != zustand.kriterien[k])
            antworten_[k] = beantworten(k, zustand.kriterien[k]);
}

Trefferzaehler::Ergebnis Trefferzaehler::zusammen(std::optional<size_t> anders, const Antwort *statt) const
{
    Ergebnis ergebnis{.rest = Bitmenge(spalten_->nummern.size(), true), .gestolpert = {}, .vorweg = {}};
    for (size_t k = 0; k < antworten_.size(); ++k) {
        const Antwort *antwort = k == anders ? statt : &antworten_[k];
        if (!antwort || !antwort->aktiv)
            continue;
        if (!antwort->vorweg.isEmpty()) {
            ergebnis.vorweg = antwort->vorweg;
            return ergebnis;
        }
        // What no earlier criterion has turned away comes to this one.
        if (antwort->stolpert && !ergebnis.gestolpert)
            if (const std::optional<size_t> pflanze = ergebnis.rest.ersterGemeinsamer(*antwort->stolpert))
                ergebnis.gestolpert = std::pair(k, *pflanze);
        ergebnis.rest &= antwort->passt;
    }
    return ergebnis;
}

QString Trefferzaehler::fehlertext(const Ergebnis &ergebnis) const
{
    if (!ergebnis.vorweg.isEmpty())
        return ergebnis.vorweg;
    const auto [k, pflanze] = *ergebnis.gestolpert;
    const Kriteriumspalte &spalte = spalten_->kriterien[k];
    const qint64 nummer = spalten_->nummern[pflanze];
    if (Kriteriumspalte::istText(beschreibung_.kriterien[k].pruefung))
        return synonymnummerZuGross(nummer);
    try {
        Einzelpruefung(beschreibung_, k, antworten_[k].zustand, spalte, familie_).passt(spalte.kodes[pflanze], nummer);
    } catch (const Fehler &fehler) {
        return fehler.text();
    }
    return {};
}

Trefferstand Trefferzaehler::zaehlen(const Filterzustand &zustand)
{
    auffrischen(zustand);
    const Ergebnis ergebnis = zusammen();
    Trefferstand treffer;
    if (!ergebnis.gelungen()) {
        treffer.fehler = fehlertext(ergebnis);
        return treffer;
    }
    treffer.anzahl = ergebnis.rest.anzahl();
    if (treffer.anzahl > 0)
        return treffer;
    for (size_t k = 0; k < antworten_.size(); ++k) {
        if (!antworten_[k].aktiv)
            continue;
        const Ergebnis ohne = zusammen(k);
        if (const size_t anzahl = ohne.gelungen() ? ohne.rest.anzahl() : 0; anzahl > treffer.ohneAnzahl) {
            treffer.ohne = &beschreibung_.kriterien[k];
            treffer.ohneAnzahl = anzahl;
        }
    }
    return treffer;
}

std::optional<size_t> Trefferzaehler::eigene(const Filterzustand &zustand, size_t k, bool zweites, int element)
{
    auffrischen(zustand);
    const Kriterium &kriterium = beschreibung_.kriterien[k];
    Kriteriumzustand allein = zustand.kriterien[k];
    const auto nurDas = [&](const Steuerteil &teil, Teilzustand &werte, int gewaehlt) {
        if (!teil.control || !steuerungsart(teil.art).waehlbar())
            return;
        for (int i = 0; i < teil.elemente(); ++i)
            werte.werte[size_t(i)] = steuerungsart(teil.art).wert(teil, i, i == gewaehlt);
    };
    nurDas(kriterium.a, allein.a, zweites ? -1 : element);
    nurDas(kriterium.b, allein.b, zweites ? element : -1);
    const Antwort antwort = beantworten(k, allein);
    const Ergebnis ergebnis = zusammen(k, &antwort);
    return ergebnis.gelungen() ? std::optional(ergebnis.rest.anzahl()) : std::nullopt;
}

std::vector<qint64> Trefferzaehler::uebrig(const Filterzustand &zustand)
{
    auffrischen(zustand);
    const Ergebnis ergebnis = zusammen();
    if (!ergebnis.gelungen())
        throw Fehler(fehlertext(ergebnis));
    std::vector<qint64> nummern;
    for (size_t i = 0; i < spalten_->nummern.size(); ++i)
        if (ergebnis.rest.hat(i))
            nummern.push_back(spalten_->nummern[i]);
    std::ranges::sort(nummern);
    return nummern;
}
