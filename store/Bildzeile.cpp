#include "Bildzeile.h"

#include "Datenbank.h"
#include "Recordset.h"

namespace {

constexpr char haelften[] = {'G', 'D'};
const QString bild = QStringLiteral("BILD"), bemerkung = QStringLiteral("BEMERKUNG");

QString spalte(const QString &stamm, char haelfte, int nummer)
{
    return QStringLiteral("%1%2-%3").arg(stamm).arg(nummer).arg(QLatin1Char(haelfte));
}

std::optional<QString> textOderNull(Recordset &satz, const QString &feld)
{
    const Feld wert = satz.Fields(feld);
    return wert.IsNull() ? std::nullopt : std::optional(wert.Text());
}

Bildzeile::Bild bildAus(Recordset &satz, const QString &stamm, const QString &text)
{
    return {textOderNull(satz, stamm), textOderNull(satz, text).value_or(QString())};
}

Bildzeile breiteZeile(Recordset &satz)
{
    Bildzeile zeile;
    for (const char haelfte : haelften)
        for (int i = 1; i <= bilderJeHaelfte; ++i)
            (haelfte == 'G' ? zeile.g : zeile.d)[size_t(i - 1)] = bildAus(satz, bildspalte(haelfte, i), bildbemerkungsspalte(haelfte, i));
    return zeile;
}

} // namespace

QString bildspalte(char haelfte, int nummer)
{
    return spalte(bild, haelfte, nummer);
}

QString bildbemerkungsspalte(char haelfte, int nummer)
{
    return spalte(bemerkung, haelfte, nummer);
}

QStringList bilderspalten()
{
    QStringList spalten;
    for (const QString &stamm : {bild, bemerkung})
        for (const char haelfte : haelften)
            for (int i = 1; i <= bilderJeHaelfte; ++i)
                spalten += spalte(stamm, haelfte, i);
    return spalten;
}

std::optional<Bildzeile> bildzeile(Recordset &satz, qint64 artnr)
{
    if (satz.hatFeld(bildspalte('G', 1)))
        return satz.Eof() || satz.Fields(u"ARTNR").Ganzzahl() != artnr ? std::nullopt : std::optional(breiteZeile(satz));
    Bildzeile zeile;
    size_t platz = 0;
    for (; !satz.Eof() && platz < groessteBilderzahl; satz.MoveNext()) {
        if (satz.Fields(u"ARTNR").Ganzzahl() != artnr)
            continue;
        (platz < zeile.g.size() ? zeile.g[platz] : zeile.d[platz - zeile.g.size()]) = bildAus(satz, bild, bemerkung);
        ++platz;
    }
    return platz ? std::optional(zeile) : std::nullopt;
}

std::optional<Bildzeile> bildzeile(const std::shared_ptr<Datenbank> &arbeit, const SpartenEintrag &sparte, qint64 artnr)
{
    if (!arbeit->hatTabelle(sparte.bildtabelle.toString()))
        return std::nullopt;
    Recordset satz(arbeit, QStringLiteral("SELECT * From %1 WHERE ARTNR LIKE ?").arg(sparte.bildtabelle), QVariantList{artnr});
    return bildzeile(satz, artnr);
}

void bildzeilenLesen(Datenbank &db, const SpartenEintrag &sparte, const std::function<bool(qint64 artnr, const Bildzeile &)> &ansehen)
{
    const QString tabelle = sparte.bildtabelle.toString();
    if (!db.hatTabelle(tabelle))
        return;
    const auto wert = [](const Anweisung &satz, int spalte) { return satz.istNull(spalte) ? std::nullopt : std::optional(satz.text(spalte)); };
    if (!einBildJeZeile(db, tabelle)) {
        const QStringList spalten = bilderspalten();
        Anweisung &satz = db.vorbereitet(QStringLiteral("SELECT ARTNR, [%1] FROM [%2]").arg(spalten.join(QStringLiteral("], [")), tabelle));
        while (satz.schritt()) {
            Bildzeile zeile;
            // Names first, then texts, each the one half behind the other.
            for (int i = 0; i < groessteBilderzahl; ++i) {
                Bildzeile::Bild &platz = (i < bilderJeHaelfte ? zeile.g : zeile.d)[size_t(i % bilderJeHaelfte)];
                platz.stamm = wert(satz, 1 + i);
                platz.bemerkung = satz.text(1 + groessteBilderzahl + i);
            }
            if (!ansehen(satz.zahl(0), zeile))
                return satz.zuruecksetzen();
        }
        return;
    }
    // The rows of a plant need not stand together.
    QHash<qint64, std::pair<Bildzeile, size_t>> pflanzen;
    for (Anweisung &satz = db.vorbereitet(QStringLiteral("SELECT ARTNR, [%1], [%2] FROM [%3]").arg(bild, bemerkung, tabelle)); satz.schritt();) {
        auto &[zeile, platz] = pflanzen[satz.zahl(0)];
        if (platz >= size_t(groessteBilderzahl))
            continue;
        Bildzeile::Bild &stelle = (platz < zeile.g.size() ? zeile.g : zeile.d)[platz % zeile.g.size()];
        stelle.stamm = wert(satz, 1);
        stelle.bemerkung = satz.text(2);
        ++platz;
    }
    for (auto pflanze = pflanzen.cbegin(); pflanze != pflanzen.cend(); ++pflanze)
        if (!ansehen(pflanze.key(), pflanze->first))
            return;
}

bool einBildJeZeile(Datenbank &db, const QString &tabelle)
{
    db.tabelleFordern(tabelle);
    const Anweisung &anweisung = db.vorbereitet(QStringLiteral("SELECT * FROM [%1] LIMIT 0").arg(tabelle));
    const QString ersteBreite = bildspalte('G', 1);
    for (int i = 0; i < anweisung.spalten(); ++i)
        if (anweisung.spaltenname(i).compare(ersteBreite, Qt::CaseInsensitive) == 0)
            return false;
    return true;
}

QString nenntBild(bool einBildJeZeile)
{
    QStringList vergleiche;
    const auto vergleich = [](const QString &name) { return QStringLiteral("[%1] <> '%2'").arg(name, bildFehlt); };
    if (einBildJeZeile)
        vergleiche += vergleich(bild);
    else
        for (const char haelfte : haelften)
            for (int i = 1; i <= bilderJeHaelfte; ++i)
                vergleiche += vergleich(bildspalte(haelfte, i));
    // As a condition it is worked out faster than as a value.
    return QStringLiteral("CASE WHEN %1 THEN '1' END").arg(vergleiche.join(QStringLiteral(" OR ")));
}
