#include "Filterlauf.h"

#include "Bildplaetze.h"
#include "Filterpruefung.h"
#include "store/Fehler.h"
#include "store/Nebentabellen.h"
#include "store/Recordset.h"

#include <algorithm>
#include <memory>

namespace {

Eingabefehler feldfehler(const Kriterium &kriterium, const QString &text)
{
    return Eingabefehler(kriterium, false, QStringLiteral("%1 %2").arg(kriterium.titel, text));
}

/// The error of a look-up that a box's text led to, with the name of the box.
template<typename Suche>
auto fuerFeld(const Kriterium &kriterium, Suche &&suche)
{
    try {
        return suche();
    } catch (const Fehler &fehler) {
        throw feldfehler(kriterium, fehler.text());
    }
}

const Kriterium *aktivesKriterium(const Filterbeschreibung &beschreibung, const Filterzustand &zustand, Pruefung pruefung, const Teilzustand **teil)
{
    for (size_t i = 0; i < beschreibung.kriterien.size(); ++i)
        if (beschreibung.kriterien[i].pruefung == pruefung && aktiv(beschreibung.kriterien[i], zustand.kriterien[i])) {
            *teil = &zustand.kriterien[i].a;
            return &beschreibung.kriterien[i];
        }
    return nullptr;
}

/// The text is a pattern that is bound, so that nothing in it can become a part of the statement.
Filterumgebung::Synonyme synonyme(std::shared_ptr<Datenbank> arbeit, QStringView tabelle, const QString &text)
{
    Recordset satz(std::move(arbeit), QStringLiteral("SELECT * From %1 WHERE SYN LIKE ?").arg(tabelle), QVariantList{u'*' + text + u'*'});
    if (satz.Eof())
        return std::nullopt;
    QHash<qint64, QString> sammlung;
    for (; !satz.Eof(); satz.MoveNext()) {
        if (satz.Fields(u"SYN").IsNull())
            continue;
        QString &eintrag = sammlung[satz.Fields(u"ARTNR").Ganzzahl()];
        if (!eintrag.isEmpty())
            eintrag += QStringLiteral(", ");
        eintrag += satz.Fields(u"SYN").Text();
    }
    return sammlung;
}

} // namespace

void synonymtextFordern(const Kriterium &kriterium, const QString &text)
{
    if (text.contains(u'\''))
        throw feldfehler(kriterium,
                         QStringLiteral("Der Suchtext \"%1\" enthält einen Apostroph ('). Synonyme können damit nicht gesucht werden.").arg(text));
}

namespace {

/// Deletes what shall not stay; `bleibt` is asked with the values of the fields.
template<typename F>
Laufergebnis ausduennen(Datenbank &kopie, const QString &tabelle, const QStringList &felder, F &&bleibt)
{
    Laufergebnis ergebnis;
    std::vector<qint64> weg;
    kopie.loescheAusser(tabelle, felder, [&](qint64 nummer, std::span<const std::string_view> werte) {
        const bool ja = bleibt(nummer, werte);
        (ja ? ergebnis.uebrig : weg).push_back(nummer);
        return ja;
    });
    std::ranges::sort(ergebnis.uebrig);
    // A query asks once more about each row that it is about to delete.
    std::ranges::sort(weg);
    weg.erase(std::ranges::unique(weg).begin(), weg.end());
    ergebnis.gesamt = qsizetype(ergebnis.uebrig.size() + weg.size());
    return ergebnis;
}

} // namespace

Laufergebnis filterLauf(Datenbank &kopie, Datenbank &arbeit, const Filterbeschreibung &beschreibung, const Filterzustand &zustand,
                        const std::optional<std::vector<qint64>> &bekannt)
{
    const SpartenEintrag &sparte = eintrag(beschreibung.sparte);
    if (bekannt)
        return ausduennen(kopie, sparte.haupttabelle.toString(), {},
                          [&](qint64 nummer, auto) { return std::ranges::binary_search(*bekannt, nummer); });
    Filterumgebung umgebung;
    const Teilzustand *teil = nullptr;
    if (aktivesKriterium(beschreibung, zustand, Pruefung::Familie, &teil))
        umgebung.familie = familiennummer(arbeit, teil->text);
    for (const Sparte herkunft : herkuenfte(sparte)) {
        const SpartenEintrag &quelle = eintrag(herkunft);
        const bool andere = herkunft != herkuenfte(sparte).first();
        const auto suchen = [&](Pruefung pruefung, QStringView tabelle, Filterumgebung::Synonyme &ziel) {
            const Kriterium *k = aktivesKriterium(beschreibung, zustand, pruefung, &teil);
            if (!k)
                return;
            synonymtextFordern(*k, teil->text);
            ziel = fuerFeld(*k, [&] { return synonyme(arbeit.shared_from_this(), tabelle, teil->text); });
        };
        suchen(Pruefung::SynonymBotanisch, quelle.synonymBotanisch, andere ? umgebung.andereBotanisch : umgebung.botanisch);
        suchen(Pruefung::SynonymDeutsch, quelle.synonymDeutsch, andere ? umgebung.andereDeutsch : umgebung.deutsch);
    }
    if (aktivesKriterium(beschreibung, zustand, Pruefung::Bild, &teil))
        umgebung.mitBild = plaetzeMitBild(kopie, arbeit, sparte);

    const Filterpruefung pruefung(beschreibung, zustand, std::move(umgebung));
    return ausduennen(kopie, sparte.haupttabelle.toString(), pruefung.felder(),
                      [&](qint64 nummer, std::span<const std::string_view> werte) { return pruefung.passt(nummer, werte); });
}
