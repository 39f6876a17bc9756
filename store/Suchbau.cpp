#include "Suchbau.h"

#include "Datenbank.h"
#include "Schema.h"
#include "Text.h"

#include <algorithm>
#include <bit>
#include <limits>
#include <utility>

namespace {

constexpr Suchfeld felder[] = {
    {"BOT_NAME", Suchrolle::Botanisch},
    {"DTNAM", Suchrolle::Deutsch},
    {"synonym", Suchrolle::Synonyme},
    {"benu_bemerkung", Suchrolle::Notiz, u"Eigene Bemerkung"},
    {"schaden", Suchrolle::Text, u"Krankheiten und Schädlinge"},
    {"SORTEN", Suchrolle::Text, u"Sorten"},
    {"besonderht", Suchrolle::Text, u"Besonderheiten"},
    {"BESOND", Suchrolle::Text, u"Besonderheiten"},
    {"BEMERKUNG", Suchrolle::Text, u"Bemerkung"},
};

constexpr int zeilenJeGriff = 400;      // a few milliseconds until another may write
constexpr qsizetype vorDemTreffer = 30; // characters of a line before its first hit
constexpr qsizetype auszugLaenge = 160; // characters: more than any list shows

/// Name of a column without the table that a query puts before it.
QStringView grundname(QStringView spalte)
{
    const qsizetype strich = spalte.indexOf(u'_');
    return strich > 0 && schema::istQuelle(spalte.first(strich)) ? spalte.mid(strich + 1) : spalte;
}

/// Where the rows of a statement come from, some of them at a time.
QString griff(const QString &spalten, const QString &schluessel, QStringView tabelle)
{
    return QStringLiteral("SELECT %1 FROM %2 WHERE %3 > ? ORDER BY %3 LIMIT %4").arg(spalten, tabelle, schluessel).arg(zeilenJeGriff);
}

/// Hands over all rows, a few at a time; the first column is the key they are ordered by. Between them, while `danach` works, whoever writes
/// a note has the file. False where `weiter` said no.
bool durchgehen(
    Datenbank &db, const QString &sql, const std::function<bool()> &weiter, const std::function<void(const Anweisung &)> &zeile,
    const std::function<void()> &danach = [] {})
{
    qint64 letzter = std::numeric_limits<qint64>::min();
    for (int gelesen = zeilenJeGriff; gelesen == zeilenJeGriff;) {
        if (!weiter())
            return false;
        Anweisung &anweisung = db.vorbereitet(sql);
        anweisung.zahlBinden(0, letzter);
        for (gelesen = 0; anweisung.schritt(); ++gelesen) {
            letzter = anweisung.zahl(0);
            zeile(anweisung);
        }
        danach();
    }
    return true;
}

QString spaltenliste(const std::vector<Suchspalte> &spalten)
{
    QString liste;
    for (const Suchspalte &spalte : spalten)
        liste += QStringLiteral(", \"%1\"").arg(spalte.name);
    return liste;
}

/// Of a row of a Sparte; `herkunftswert` is what its own field says.
bool gehoertDazu(const Suchspalte &spalte, const SpartenEintrag &sparte, const QString &herkunftswert)
{
    return !spalte.herkunft || herkunft(sparte, herkunftswert) == spalte.herkunft;
}

/// The column that tells a row's origin, or nothing that would be asked for.
QString herkunftsspalte(const SpartenEintrag &sparte)
{
    return sparte.herkunftsfeld ? QStringLiteral("\"%1\"").arg(QLatin1String(sparte.herkunftsfeld)) : QStringLiteral("NULL");
}

QString bewertungsspalte(const SpartenEintrag &sparte)
{
    for (const Spalte &spalte : schema::spaltenVon(sparte.haupttabelle))
        if (spalte.art == Art::Bewertung)
            return QStringLiteral("\"%1\"").arg(QLatin1String(spalte.name));
    return QStringLiteral("NULL");
}

using Synonyme = QHash<qint64, QStringList>;

/// False where `weiter` said no.
bool synonymeLesen(Datenbank &db, Sparte sparte, Synonyme &ziel, const std::function<bool()> &weiter)
{
    for (const QStringView tabelle : {eintrag(sparte).synonymBotanisch, eintrag(sparte).synonymDeutsch}) {
        if (tabelle.isEmpty() || !db.hatTabelle(tabelle.toString()))
            continue;
        const QString sql = griff(QStringLiteral("rowid, ARTNR, SYN"), QStringLiteral("rowid"), tabelle);
        if (!durchgehen(db, sql, weiter, [&ziel](const Anweisung &zeile) {
                if (!zeile.istNull(2))
                    ziel[zeile.zahl(1)] += zeile.text(2);
            }))
            return false;
    }
    return true;
}

QString eineZeile(const QString &text)
{
    return ohneZeilenmarken(text).simplified();
}

} // namespace

std::span<const Suchfeld> suchfelder()
{
    return felder;
}

std::vector<Suchspalte> suchspalten(Sparte sparte)
{
    const QStringView satz = eintrag(sparte).haupttabelle;
    std::vector<Suchspalte> spalten;
    for (const Suchfeld &feld : felder)
        for (const Spalte &spalte : schema::spaltenVon(satz)) {
            const QString name = QString::fromLatin1(spalte.name);
            if (grundname(name).compare(QLatin1String(feld.spalte), Qt::CaseInsensitive) != 0)
                continue;
            std::optional<Sparte> herkunft;
            if (eintrag(sparte).herkunftsfeld)
                for (const Sparte quelle : herkuenfte(eintrag(sparte)))
                    if (schema::kommtAus(satz, name, eintrag(quelle).haupttabelle))
                        herkunft = quelle;
            spalten.push_back({name, &feld, herkunft});
        }
    return spalten;
}

std::shared_ptr<const Suchverzeichnis> suchverzeichnisLesen(Datenbank &db, Sparte sparte, const std::function<bool()> &weiter)
{
    const SpartenEintrag &zeile = eintrag(sparte);
    const std::vector<Suchspalte> spalten = suchspalten(sparte);
    QHash<Sparte, Synonyme> synonyme;
    for (const Sparte quelle : herkuenfte(zeile))
        if (!synonymeLesen(db, quelle, synonyme[quelle], weiter))
            return nullptr;

    Suchverzeichnis::Bau bau;
    struct Gelesenes
    {
        Suchnamen namen;
        QStringList texte;
        QString notiz;
    };
    std::vector<Gelesenes> vorrat;
    const auto aufnehmen = [&](const Anweisung &anweisung) {
        Suchnamen namen{.artnr = anweisung.zahl(0), .bewertung = int(anweisung.zahl(2)), .botanisch = {}, .deutsch = {}, .synonyme = {}};
        const QString herkunftswert = anweisung.text(1);
        QStringList texte;
        QString notiz;
        for (size_t i = 0; i < spalten.size(); ++i) {
            const int spalte = int(i) + 3;
            if (anweisung.istNull(spalte) || !gehoertDazu(spalten[i], zeile, herkunftswert))
                continue;
            const QString text = anweisung.text(spalte);
            switch (spalten[i].feld->rolle) {
            case Suchrolle::Botanisch: namen.botanisch = text; break;
            case Suchrolle::Deutsch: namen.deutsch = text; break;
            case Suchrolle::Synonyme:
                for (const QString &synonym : text.split(u',', Qt::SkipEmptyParts))
                    namen.synonyme += synonym.trimmed();
                break;
            case Suchrolle::Text: texte += text; break;
            case Suchrolle::Notiz: notiz = text; break;
            }
        }
        if (const std::optional<Sparte> quelle = herkunft(zeile, herkunftswert))
            namen.synonyme += synonyme[*quelle].value(namen.artnr);
        vorrat.push_back({std::move(namen), std::move(texte), std::move(notiz)});
    };
    const auto falten = [&] {
        for (Gelesenes &pflanze : vorrat) {
            for (QString &text : pflanze.texte)
                text = eineZeile(text);
            bau.dazu(pflanze.namen, pflanze.texte, pflanze.notiz);
        }
        vorrat.clear();
    };
    const QString gelesen = QStringLiteral("ARTNR, %1, %2%3").arg(herkunftsspalte(zeile), bewertungsspalte(zeile), spaltenliste(spalten));
    if (!durchgehen(db, griff(gelesen, QStringLiteral("ARTNR"), zeile.haupttabelle), weiter, aufnehmen, falten))
        return nullptr;
    return bau.fertig();
}

std::optional<Suchnamen> suchnamen(Datenbank &db, Sparte sparte, qint64 artnr)
{
    const SpartenEintrag &zeile = eintrag(sparte);
    Anweisung &anweisung =
        db.vorbereitet(QStringLiteral("SELECT BOT_NAME, DTNAM, %1 FROM %2 WHERE ARTNR = ?").arg(bewertungsspalte(zeile), zeile.haupttabelle));
    anweisung.zahlBinden(0, artnr);
    std::optional<Suchnamen> namen;
    if (anweisung.schritt())
        namen = {.artnr = artnr, .bewertung = int(anweisung.zahl(2)), .botanisch = anweisung.text(0), .deutsch = anweisung.text(1), .synonyme = {}};
    anweisung.zuruecksetzen();
    return namen;
}

Fundstelle auszug(const QString &titel, const QString &text, const Suchfrage &frage)
{
    const QString zeile = eineZeile(text);
    std::vector<Strecke> alle = fundstellen(zeile, frage);
    // From the beginning of a word, not too far before the first hit.
    qsizetype anfang = alle.empty() ? 0 : alle.front().anfang - vorDemTreffer;
    if (anfang > 0) {
        const qsizetype blank = zeile.indexOf(u' ', anfang);
        anfang = blank >= 0 && blank < alle.front().anfang ? blank + 1 : alle.front().anfang;
    }
    anfang = std::max<qsizetype>(anfang, 0);
    const qsizetype ende = std::min(zeile.size(), anfang + auszugLaenge);
    const QString davor = anfang > 0 ? QStringLiteral("… ") : QString();
    Fundstelle stelle{titel, davor + zeile.mid(anfang, ende - anfang) + (ende < zeile.size() ? QStringLiteral("…") : QString()), {}};
    for (const Strecke &treffer : alle)
        if (treffer.anfang >= anfang && treffer.ende <= ende)
            stelle.treffer.push_back({treffer.anfang - anfang + davor.size(), treffer.ende - anfang + davor.size()});
    return stelle;
}

std::optional<Fundstelle> fundstelle(Datenbank &db, Sparte sparte, qint64 artnr, const Suchfrage &frage)
{
    const SpartenEintrag &zeile = eintrag(sparte);
    std::vector<Suchspalte> spalten = suchspalten(sparte);
    std::erase_if(spalten, [](const Suchspalte &spalte) { return spalte.feld->rolle != Suchrolle::Text && spalte.feld->rolle != Suchrolle::Notiz; });
    Anweisung &anweisung =
        db.vorbereitet(QStringLiteral("SELECT %1%2 FROM %3 WHERE ARTNR = ?").arg(herkunftsspalte(zeile), spaltenliste(spalten), zeile.haupttabelle));
    anweisung.zahlBinden(0, artnr);
    QString bester, titel;
    std::pair<int, int> beste{0, 0}; // words that are there as they were typed, and in any way
    if (anweisung.schritt())
        for (size_t i = 0; i < spalten.size(); ++i) {
            if (!gehoertDazu(spalten[i], zeile, anweisung.text(0)))
                continue;
            const QString text = anweisung.text(int(i) + 1);
            const Trefferwoerter woerter = getroffene(text, frage);
            const std::pair hat{std::popcount(woerter.genau), std::popcount(woerter.ungefaehr)};
            if (hat > beste) {
                beste = hat;
                bester = text;
                titel = spalten[i].feld->titel.toString();
            }
        }
    anweisung.zuruecksetzen();
    return bester.isEmpty() ? std::nullopt : std::optional(auszug(titel, bester, frage));
}
