#include "Tabelle.h"

#include "mdlDruck.h"
#include "filters/Filtername.h"
#include "store/Text.h"

#include <algorithm>

namespace {

/// Title of a column that has no label in print: what the filter calls it, where it asks for it.
QString ersatztitel(Sparte sparte, const Spalte &spalte)
{
    switch (spalte.art) {
    case Art::Name: return qstricmp(spalte.name, "DTNAM") == 0 ? QStringLiteral("Deutscher Name") : QStringLiteral("Botanischer Name");
    case Art::Bewertung: return QStringLiteral("Bewertung");
    case Art::Wahrheit: return spalte.satz.toString();
    default: break;
    }
    if (const Filterbeschreibung *filter = filterbeschreibung(sparte))
        for (const Kriterium &kriterium : filter->kriterien)
            if (kriterium.feld && spalteVon(*filter, kriterium.feld) == &spalte)
                return gruppenname(*filter, kriterium);
    return QString::fromLatin1(spalte.name);
}

bool istZahl(Art art)
{
    return art == Art::Zahl || art == Art::Bewertung;
}

Tabellenzelle zelle(const Wortquelle &worte, const Spalte &spalte, const QString &roh)
{
    if (istZahl(spalte.art))
        return {zahlZeigen(roh), zahlLesen(roh)};
    if (spalte.art == Art::Wahrheit)
        return {istWahr(roh) ? QStringLiteral("ja") : QString(), {}};
    return {DruckFeld(worte, spalte, roh), {}};
}

/// Programs that calculate take a cell that begins so for a formula, whatever its quotes.
bool wieFormel(const QString &text)
{
    return !text.isEmpty() && QStringView(u"=+-@\t\r").contains(text[0]);
}

QByteArray csvFeld(QString text)
{
    if (wieFormel(text))
        text.prepend(u'\'');
    if (std::ranges::any_of(text, [](QChar c) { return c == u'"' || c == u';' || c == u'\n' || c == u'\r'; }) || text.startsWith(u' ')
        || text.endsWith(u' '))
        text = u'"' + text.replace(u'"', QStringLiteral("\"\"")) + u'"';
    return text.toUtf8();
}

} // namespace

std::vector<Tabellenspalte> tabellenspalten(Sparte sparte)
{
    const Druckbeschreibung *druck = druckbeschreibung(sparte);
    if (!druck)
        return {};
    const SpartenEintrag &zeile = eintrag(sparte);
    const std::span<const Spalte> spalten = schema::spaltenVon(zeile.haupttabelle);
    std::vector<Tabellenspalte> gefunden;
    const auto dazu = [&](const Spalte &spalte) {
        if (spalte.art == Art::Schluessel || spalte.art == Art::Ganzzahl
            || std::ranges::find(gefunden, &spalte, &Tabellenspalte::spalte) != gefunden.end())
            return;
        QString titel = spalte.druckname.isEmpty() ? ersatztitel(sparte, spalte) : spalte.druckname.toString();
        if (istZahl(spalte.art) && !spalte.einheit.isEmpty())
            titel += QStringLiteral(" (%1)").arg(spalte.einheit.trimmed());
        const bool ueblich = spalte.art == Art::Name || spalte.art == Art::Familie || spalte.art == Art::Monate || spalte.art == Art::Bewertung;
        gefunden.push_back({&spalte, titel, ueblich});
    };
    for (const short code : druck->liste->folge)
        dazu(spalten[size_t(code)]);
    for (const Spalte &spalte : spalten)
        dazu(spalte);
    // Rows that are taken from several collections have the same words for the columns of each.
    const std::vector<Tabellenspalte> alle = gefunden;
    for (Tabellenspalte &eine : gefunden) {
        if (std::ranges::count(alle, eine.titel, &Tabellenspalte::titel) < 2)
            continue;
        for (const SpartenEintrag &quelle : alleSparten())
            if (schema::kommtAus(zeile.haupttabelle, QString::fromLatin1(eine.spalte->name), quelle.haupttabelle)) {
                eine.titel += QStringLiteral(" – %1").arg(quelle.titel);
                break;
            }
        if (std::ranges::count(gefunden, eine.titel, &Tabellenspalte::titel) > 1)
            eine.titel += QStringLiteral(" [%1]").arg(QLatin1String(eine.spalte->name));
    }
    return gefunden;
}

Datentabelle datentabelle(const Programm &programm, const Druckauftrag &auftrag, std::span<const Tabellenspalte> spalten,
                          const Druckfortschritt &fortschritt)
{
    const SpartenEintrag &sparte = eintrag(auftrag.sparte);
    Datentabelle tabelle{sparte.titel.toString(), {}, {}};
    for (const Tabellenspalte &spalte : spalten)
        tabelle.titel += spalte.titel;
    if (!auftrag.pflanzen)
        return tabelle;
    Wortquelle worte{programm, sparte, auftrag.arbeit};
    Recordset &pflanzen = *auftrag.pflanzen;
    const qsizetype anzahl = qsizetype(pflanzen.Schluesselfolge().size());
    for (qsizetype i = 0; i < anzahl; ++i) {
        if (fortschritt && i % meldeschritt == 0)
            fortschritt(i, anzahl);
        const std::optional<Sparte> von =
            herkunft(sparte, sparte.herkunftsfeld ? pflanzen.textBei(i, QString::fromLatin1(sparte.herkunftsfeld)) : QString());
        worte.herkunft = von ? &eintrag(*von) : nullptr;
        std::vector<Tabellenzelle> &zeile = tabelle.zeilen.emplace_back();
        for (const Tabellenspalte &spalte : spalten) {
            const QString roh = giltFuer(sparte, *spalte.spalte, von) ? pflanzen.textBei(i, QString::fromLatin1(spalte.spalte->name)) : QString();
            zeile.push_back(roh.isEmpty() ? Tabellenzelle() : zelle(worte, *spalte.spalte, roh));
        }
    }
    return tabelle;
}

QByteArray alsCsv(const Datentabelle &tabelle)
{
    QByteArray csv("\xEF\xBB\xBF");
    for (qsizetype i = 0; i < tabelle.titel.size(); ++i)
        csv += (i ? ";" : "") + csvFeld(tabelle.titel[i]);
    csv += "\r\n";
    for (const std::vector<Tabellenzelle> &zeile : tabelle.zeilen) {
        for (size_t i = 0; i < zeile.size(); ++i)
            csv += (i ? ";" : "") + (zeile[i].zahl ? zeile[i].text.toUtf8() : csvFeld(zeile[i].text));
        csv += "\r\n";
    }
    return csv;
}
