#include "Bildplaetze.h"

#include "store/Bildzeile.h"
#include "store/Datenbank.h"
#include "store/Kollation.h"

#include <QStringList>

#include <algorithm>
#include <compare>
#include <span>
#include <string>
#include <vector>

namespace {

/// A plant or a picture row; its name stands in the buffer of its table.
struct Zeile
{
    qint64 nummer = 0;
    size_t anfang = 0, laenge = 0;
    bool ohneNamen = false; ///< null, which sorts before the empty name
    bool bild = false;
};

struct Tabellenzeilen
{
    std::vector<Zeile> zeilen; ///< in rising order of their numbers
    std::string puffer;        ///< UTF-8 of all names

    std::string_view name(const Zeile &zeile) const { return std::string_view(puffer).substr(zeile.anfang, zeile.laenge); }
};

/// Place of a name in the German order.
struct Rang
{
    std::string schluessel;
    qint64 nummer = 0;
    size_t zeile = 0; ///< index in its table

    auto operator<=>(const Rang &) const = default;
};

/// `bild` is an expression that is null for a row without a picture.
Tabellenzeilen lesen(Datenbank &db, const QString &tabelle, const QString &namensspalte, const QString &bild)
{
    Tabellenzeilen ergebnis;
    // In brackets: a name in quotation marks that is no column would be taken for a text.
    db.durchlaufen(tabelle, {u'[' + namensspalte + u']', bild}, [&](qint64 nummer, std::span<const std::string_view> werte) {
        ergebnis.zeilen.push_back({nummer, ergebnis.puffer.size(), werte[0].size(), !werte[0].data(), werte[1].data() != nullptr});
        ergebnis.puffer += werte[0];
    });
    // An index may have served the rows in its own order.
    if (!std::ranges::is_sorted(ergebnis.zeilen, {}, &Zeile::nummer))
        std::ranges::sort(ergebnis.zeilen, {}, &Zeile::nummer);
    return ergebnis;
}

/// A table with one row a picture has none for a plant without: there the number tells whose it is.
QSet<qint64> nummernMitBild(Datenbank &arbeit, const QString &tabelle)
{
    QSet<qint64> mit;
    arbeit.durchlaufen(tabelle, {nenntBild(true)}, [&](qint64 nummer, std::span<const std::string_view> werte) {
        if (werte[0].data())
            mit.insert(nummer);
    });
    return mit;
}

Rang rang(const Tabellenzeilen &tabelle, size_t i)
{
    const Zeile &zeile = tabelle.zeilen[i];
    const std::string_view name = tabelle.name(zeile);
    return {zeile.ohneNamen ? std::string() : sortierschluessel(QString::fromUtf8(name)), zeile.nummer, i};
}

} // namespace

QSet<qint64> plaetzeMitBild(Datenbank &kopie, Datenbank &arbeit, const SpartenEintrag &sparte)
{
    const QString tabelle = sparte.bildtabelle.toString();
    if (einBildJeZeile(arbeit, tabelle))
        return nummernMitBild(arbeit, tabelle);
    const Tabellenzeilen pflanzen = lesen(kopie, sparte.haupttabelle.toString(), QStringLiteral("Bot_Name"), QStringLiteral("NULL"));
    const Tabellenzeilen bilder = lesen(arbeit, tabelle, QStringLiteral("BotName"), nenntBild(false));
    const auto gleich = [&](const Zeile &pflanze, const Zeile &bild) {
        return pflanze.nummer == bild.nummer && pflanze.ohneNamen == bild.ohneNamen && pflanzen.name(pflanze) == bilder.name(bild);
    };
    QSet<qint64> mit;
    mit.reserve(qsizetype(bilder.zeilen.size()));
    // Tables with the same numbers and names have the same order, whatever it is: nothing has to be sorted.
    if (std::ranges::equal(pflanzen.zeilen, bilder.zeilen, gleich)) {
        for (const Zeile &bild : bilder.zeilen)
            if (bild.bild)
                mit.insert(bild.nummer);
        return mit;
    }
    // Otherwise a picture row that is its plant's namesake shares the plant's place, and only the others need keys of their own.
    std::vector<Rang> folge;
    folge.reserve(pflanzen.zeilen.size());
    for (size_t i = 0; i < pflanzen.zeilen.size(); ++i)
        folge.push_back(rang(pflanzen, i));
    std::vector<Rang> fremde;
    std::vector<const Zeile *> bildVon(pflanzen.zeilen.size());
    for (size_t b = 0, p = 0; b < bilder.zeilen.size(); ++b) {
        while (p < pflanzen.zeilen.size() && pflanzen.zeilen[p].nummer < bilder.zeilen[b].nummer)
            ++p;
        if (p < pflanzen.zeilen.size() && !bildVon[p] && gleich(pflanzen.zeilen[p], bilder.zeilen[b]))
            bildVon[p] = &bilder.zeilen[b];
        else
            fremde.push_back(rang(bilder, b));
    }
    std::ranges::sort(folge);
    std::ranges::sort(fremde);
    size_t stelle = 0;
    const auto naechstes = [&](const Zeile &bild) {
        if (stelle < folge.size() && bild.bild)
            mit.insert(folge[stelle].nummer);
        ++stelle;
    };
    auto fremdes = fremde.begin();
    for (const Rang &pflanze : folge) {
        for (; fremdes != fremde.end() && *fremdes < pflanze; ++fremdes)
            naechstes(bilder.zeilen[fremdes->zeile]);
        if (const Zeile *bild = bildVon[pflanze.zeile])
            naechstes(*bild);
    }
    for (; fremdes != fremde.end(); ++fremdes)
        naechstes(bilder.zeilen[fremdes->zeile]);
    return mit;
}
