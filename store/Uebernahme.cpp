#include "Uebernahme.h"

#include "Benutzernamen.h"
#include "Datenbank.h"
#include "Nebentabellen.h"
#include "Sparten.h"

#include <QVariant>

#include <algorithm>

namespace {

using NamenDerSparte = std::array<QString, anzahlEigenschaften>;

constexpr QStringView notizspalte = u"benu_bemerkung", eigenspalte = u"benu_eigen", namensspalte = u"BOT_NAME";

bool hatSpalten(Datenbank &db, const QString &tabelle)
{
    if (!db.hatTabelle(tabelle))
        return false;
    const QStringList spalten = db.Spaltennamen(tabelle);
    return std::ranges::all_of(std::array{notizspalte, eigenspalte, namensspalte},
                               [&](QStringView s) { return spalten.contains(s, Qt::CaseInsensitive); });
}

/// Number of the plant of `tabelle` that was `artnr` with the name `alterName`; 0: there is none.
qint64 wiedergefunden(const std::shared_ptr<Datenbank> &neu, const SpartenEintrag &sparte, const QString &tabelle, qint64 artnr,
                      const QString &alterName)
{
    Anweisung &nachName = neu->vorbereitet(QStringLiteral("SELECT ARTNR FROM %1 WHERE BOT_NAME = ? ORDER BY ARTNR = ? DESC").arg(tabelle));
    nachName.binden(0, alterName);
    nachName.zahlBinden(1, artnr);
    std::vector<qint64> gleichnamige;
    while (nachName.schritt())
        gleichnamige.push_back(nachName.zahl(0));
    if (!gleichnamige.empty() && (gleichnamige.front() == artnr || gleichnamige.size() == 1))
        return gleichnamige.front();
    return synonyme(neu, sparte, artnr, false).contains(alterName) ? artnr : 0;
}

QString absatz(const SpartenEintrag &sparte, const QString &pflanze, const QString &text, const QStringList &eigenschaften)
{
    QString zeilen = QStringLiteral("%1: %2").arg(sparte.titel, pflanze);
    if (!eigenschaften.isEmpty())
        zeilen += QStringLiteral("\nEigenschaften: ") + eigenschaften.join(QStringLiteral(", "));
    return text.isEmpty() ? zeilen : zeilen + u'\n' + text;
}

/// The names of the properties that a text such as "1 1  " sets.
QStringList gesetzteNamen(const QString &text, const NamenDerSparte &namen)
{
    QStringList gesetzt;
    for (qsizetype i = 0; i < std::min<qsizetype>(text.size(), anzahlEigenschaften); ++i)
        if (text[i] == u'1')
            gesetzt += namen[size_t(i)].isEmpty() ? QStringLiteral("Eigenschaft %1").arg(i + 1) : namen[size_t(i)];
    return gesetzt;
}

/// The names of a Sparte's properties, in their order; a null text where the table has none.
NamenDerSparte namenLesen(Datenbank &db, const SpartenEintrag &sparte)
{
    NamenDerSparte namen;
    const QString spalte = QString::fromLatin1(sparte.namenSpalte);
    if (!db.hatTabelle(namentabelle) || !db.Spaltennamen(namentabelle).contains(spalte, Qt::CaseInsensitive))
        return namen;
    Anweisung &zeilen =
        db.vorbereitet(QStringLiteral("SELECT %1 FROM %2 ORDER BY rowid LIMIT %3").arg(spalte, namentabelle).arg(anzahlEigenschaften));
    for (QString &einer : namen)
        if (zeilen.schritt())
            einer = zeilen.text(0);
    zeilen.zuruecksetzen();
    return namen;
}

void namenSchreiben(Datenbank &db, const SpartenEintrag &sparte, const NamenDerSparte &namen)
{
    const NamenDerSparte vorher = namenLesen(db, sparte);
    for (size_t i = 0; i < namen.size(); ++i)
        if (!namen[i].isNull() && !vorher[i].isNull() && namen[i] != vorher[i])
            db.Execute(QStringLiteral("UPDATE %1 SET %2 = ? WHERE rowid = (SELECT rowid FROM %1 ORDER BY rowid LIMIT 1 OFFSET %3)")
                           .arg(namentabelle, QString::fromLatin1(sparte.namenSpalte))
                           .arg(i),
                       {namen[i]});
}

void tabelleUebernehmen(const std::shared_ptr<Datenbank> &alt, const std::shared_ptr<Datenbank> &neu, const SpartenEintrag &sparte,
                        const NamenDerSparte &namen, Uebernahme &ergebnis)
{
    const QString tabelle = sparte.haupttabelle.toString();
    if (!hatSpalten(*alt, tabelle))
        return;
    const bool ziel = hatSpalten(*neu, tabelle);
    Anweisung &lesen = alt->vorbereitet(QStringLiteral("SELECT ARTNR, BOT_NAME, benu_bemerkung, benu_eigen FROM %1 "
                                                       "WHERE trim(coalesce(benu_bemerkung, '')) <> '' OR trim(coalesce(benu_eigen, '')) <> '' "
                                                       "ORDER BY ARTNR")
                                            .arg(tabelle));
    while (lesen.schritt()) {
        const QString pflanze = lesen.text(1), text = lesen.text(2), flaggen = lesen.text(3);
        const qint64 artnr = ziel ? wiedergefunden(neu, sparte, tabelle, lesen.zahl(0), pflanze) : 0;
        if (artnr == 0) {
            ergebnis.ohnePflanze += absatz(sparte, pflanze, text, gesetzteNamen(flaggen, namen));
            continue;
        }
        const auto wert = [&](int spalte) { return lesen.istNull(spalte) ? QVariant() : QVariant(lesen.text(spalte)); };
        neu->Execute(QStringLiteral("UPDATE %1 SET benu_bemerkung = ?, benu_eigen = ? WHERE ARTNR = ?").arg(tabelle), {wert(2), wert(3), artnr});
        ++ergebnis.pflanzen;
    }
}

} // namespace

Uebernahme benutzerdatenUebernehmen(const QString &alt, const QString &neu)
{
    const std::shared_ptr<Datenbank> von = Datenbank::OpenDatabase(alt, Datenbank::Zugriff::Lesen), nach = Datenbank::OpenDatabase(neu);
    Uebernahme ergebnis;
    Transaktion transaktion(*nach);
    for (const SpartenEintrag &sparte : alleSparten()) {
        const NamenDerSparte namen = namenLesen(*von, sparte);
        namenSchreiben(*nach, sparte, namen);
        // Plants of a collection that is made of others are theirs.
        if (!sparte.herkunftsfeld)
            tabelleUebernehmen(von, nach, sparte, namen, ergebnis);
    }
    transaktion.festschreiben();
    return ergebnis;
}
