#include "Quellregeln.h"

#include "store/Text.h"

#include <QRegularExpression>
#include <QStringList>

#include <algorithm>

namespace {

/// A colour and the months in which it is seen.
constexpr QStringView farbeUndZeit[][2] = {{u"FARBEN", u"BLUEHZEIT"}, {u"bluehfarb", u"bluehzeit"}, {u"FRUCHTFARB", u"FRUCHTZEIT"}};

/// A height of the plant and the same one with its flowers.
constexpr QStringView hoehen[][2] = {{u"MINHOEHE", u"BLMINH"}, {u"MAXHOEHE", u"BLMAXH"}};

/* Plants that carry their flowers above themselves, by the words of a column. Shrubs and climbers flower along their shoots, bulbs may
   flower while they have no leaves. */
struct Kraut
{
    QStringView tabelle, spalte;
    QStringView worte; ///< one of these makes it a herb
    QStringView ausser = {};
};
constexpr Kraut kraeuter[] = {{u"Topfpfl", u"WUCHSFORM", u"krautig", u"kletternd"},
                              {u"Stauden", u"pflanzart", u"einjährig zweijährig Staude Gras Wasserpflanze"}};

/// What plants that flower must tell.
struct Bluehend
{
    QStringView tabelle;
    QStringView woran, wort; ///< the column by which a plant flowers and its word; no word: any content
    QStringView spalte;
    QStringView worte = {}; ///< one of these at least; none: any content
};
constexpr Bluehend bluehende[] = {{u"Topfpfl", u"PFLANZTYP", u"Blütenpflanze", u"WUCHSFORM", u"baumartig strauchartig krautig"},
                                  {u"Topfpfl", u"PFLANZTYP", u"Blütenpflanze", u"TAGESL"},
                                  {u"Stauden", u"farben", {}, u"wuchsform"},
                                  {u"Gehoelze", u"bluehfarb", {}, u"habitus"}};

/// Varieties with coloured leaves, and the colours of which the record then has one.
struct Buntes
{
    QStringView tabelle, sorten, laub, farben;
};
constexpr Buntes buntlaubige[] = {{u"Topfpfl", u"SORTEN", u"BLATTFARB", u"gelbgrün weißgrün"}};

/// Tables whose names are varieties: the column with their kind, which then has the one family.
constexpr QStringView kindspalten[][2] = {{u"Obst", u"DTNAM"}};

/// A text of names, which keep the spelling they were given.
constexpr QStringView namensliste = u"synonym";

/* Words as they were written before 1996, or what is found in no other word. Case does not count. "Spaß", "Gefäß", "Muße", "genieß" and
   "rauhaarig" are not among them. */
constexpr QStringView alteWorte[] = {
    // clang-format off
    u"\\b(so)?daß\\b", u"\\bmuß(t\\p{L}*)?\\b", u"\\bmüßt", u"nuß", u"nüß", u"luß", u"lüß", u"guß", u"schuß", u"schüß", u"kuß", u"küß", u"wuß",
    u"(?<!e)iß", u"(?<!i)eß", u"laß", u"läß", u"(?<!s)p[aä]ß", u"faß", u"\\bfäß", u"haß", u"häß", u"naß", u"näß", u"kraß", u"gräß", u"wäß", u"\\bbaß",
    u"elsaß", u"schl[oö]ß", u"spr[oö]ß", u"\\broß", u"rößchen", u"schößling", u"geschoß", u"genoß", u"\\b(be|ver)?goß(en)?\\b", u"rußland",
    u"\\b(auf|an)?rauh(?!aar|äut)", u"stengel", u"brennessel", u"blattrieb", u"plazier", u"numerier", u"überschwenglich", u"\\bbehende",
    u"quentchen", u"greulich", u"\\bwieviel", u"\\bzuviel", u"\\bzuwenig", u"\\bdes öfteren\\b",
    u"(?-i:\\bim (allgemeinen|übrigen|wesentlichen|einzelnen)\\b(?! \\p{Lu}))",
    // clang-format on
};

QRegularExpression alteWorteAlsMuster()
{
    QStringList teile;
    for (const QStringView wort : alteWorte)
        teile += wort.toString();
    return QRegularExpression(teile.join(u'|'), QRegularExpression::CaseInsensitiveOption | QRegularExpression::UseUnicodePropertiesOption);
}

bool gleich(QStringView a, QStringView b)
{
    return a.trimmed().compare(b.trimmed(), Qt::CaseInsensitive) == 0;
}

QString gattungVon(const QString &name)
{
    static const QRegularExpression hybride(QStringLiteral("^(×|x )\\s*")), ende(QStringLiteral("[ -].*$"));
    return QString(name).remove(hybride).remove(ende);
}

/// Words that a coded column means.
QStringList worte(const Tabelle &tabelle, const QHash<QString, QString> &inhalt, QStringView spalte)
{
    const Spalte *beschreibung = tabelle.spalte(spalte);
    if (!beschreibung || !beschreibung->liste)
        return {};
    const QString text = inhalt.value(QString::fromLatin1(beschreibung->name));
    return worteVon(positionen(*beschreibung, text), *beschreibung->liste, u"\n").split(u'\n', Qt::SkipEmptyParts);
}

bool eines(QStringView gesucht, const QStringList &worte)
{
    return std::ranges::any_of(gesucht.split(u' ', Qt::SkipEmptyParts), [&](QStringView wort) { return worte.contains(wort.toString()); });
}

void synonyme(const RecSatz &satz)
{
    const RecFeld *eigene[] = {satz.feld(u"BOT_NAME"), satz.feld(u"DTNAM")};
    for (const RecFeld &feld : satz.felder) {
        if (feld.name != u"SYN_BOT" && feld.name != u"SYN_DT" && feld.name != namensliste)
            continue;
        for (const QString &synonym : feld.name == namensliste ? feld.wert.split(u',') : QStringList(feld.wert))
            for (const RecFeld *name : eigene)
                if (name && gleich(name->wert, synonym))
                    satz.falsch(feld.zeile, QStringLiteral("%1: \"%2\" ist der eigene Name").arg(feld.name, synonym.trimmed()));
    }
}

void schreibung(const RecSatz &satz, const Tabelle &tabelle)
{
    for (const RecFeld &feld : satz.felder) {
        const Spalte *spalte = tabelle.spalte(feld.name);
        const bool text = spalte ? (spalte->art == Art::Text || spalte->art == Art::Memo) && feld.name != namensliste : feld.name == u"MERKMAL";
        if (!text)
            continue;
        if (const QString alt = Quellregeln::alteSchreibung(feld.wert); !alt.isEmpty())
            satz.falsch(feld.zeile, QStringLiteral("%1: alte Schreibung \"%2\"").arg(feld.name, alt));
    }
}

void zeiten(const RecSatz &satz)
{
    for (const auto &[farbe, zeit] : farbeUndZeit)
        if (const RecFeld *feld = satz.feld(farbe); feld && !satz.feld(zeit))
            satz.falsch(feld->zeile, QStringLiteral("%1 ohne %2").arg(farbe, zeit));
}

void bluetenhoehe(const RecSatz &satz, const Tabelle &tabelle, const QHash<QString, QString> &inhalt)
{
    for (const Kraut &kraut : kraeuter) {
        if (kraut.tabelle != QLatin1String(tabelle.name))
            continue;
        const QStringList w = worte(tabelle, inhalt, kraut.spalte);
        if (!eines(kraut.worte, w) || eines(kraut.ausser, w))
            continue;
        for (const auto &[ohne, mit] : hoehen) {
            const RecFeld *laub = satz.feld(ohne), *bluete = satz.feld(mit);
            if (laub && bluete && zahlLesen(bluete->wert) < zahlLesen(laub->wert))
                satz.falsch(bluete->zeile, QStringLiteral("%1 liegt unter %2").arg(mit, ohne));
        }
    }
}

void bluehendes(const RecSatz &satz, const Tabelle &tabelle, const QHash<QString, QString> &inhalt)
{
    for (const Bluehend &regel : bluehende) {
        const RecFeld *woran = satz.feld(regel.woran);
        if (regel.tabelle != QLatin1String(tabelle.name) || !woran
            || !(regel.wort.isEmpty() || eines(regel.wort, worte(tabelle, inhalt, regel.woran))))
            continue;
        const RecFeld *feld = satz.feld(regel.spalte);
        if (!feld)
            satz.falsch(woran->zeile, QStringLiteral("blühende Pflanze ohne %1").arg(regel.spalte));
        if (!regel.worte.isEmpty() && !eines(regel.worte, worte(tabelle, inhalt, regel.spalte)))
            satz.falsch(feld->zeile, QStringLiteral("blühende Pflanze, %1 nennt keines von: %2").arg(regel.spalte, regel.worte));
    }
}

void buntlaub(const RecSatz &satz, const Tabelle &tabelle, const QHash<QString, QString> &inhalt)
{
    static const QRegularExpression bunt(QStringLiteral("'Variegat\\p{Ll}+'|(weiß|gelb)bunt"));
    for (const Buntes &regel : buntlaubige) {
        const RecFeld *sorten = satz.feld(regel.sorten);
        if (regel.tabelle == QLatin1String(tabelle.name) && sorten && bunt.match(sorten->wert).hasMatch()
            && !eines(regel.farben, worte(tabelle, inhalt, regel.laub)))
            satz.falsch(sorten->zeile, QStringLiteral("%1: bunte Sorte, %2 nennt keines von: %3").arg(regel.sorten, regel.laub, regel.farben));
    }
}

} // namespace

QString Quellregeln::alteSchreibung(const QString &text)
{
    static const QRegularExpression muster = alteWorteAlsMuster(), inStrichen(QStringLiteral("(?<!\\w)'[^'\\n]*'(?!\\w)"));
    const QString ohneNamen = QString(text).remove(inStrichen);
    const QRegularExpressionMatch treffer = muster.match(ohneNamen);
    if (!treffer.hasMatch())
        return {};
    qsizetype von = treffer.capturedStart(), bis = treffer.capturedEnd(); // the whole word
    while (von > 0 && ohneNamen[von - 1].isLetter())
        --von;
    while (bis < ohneNamen.size() && ohneNamen[bis].isLetter())
        ++bis;
    return ohneNamen.mid(von, bis - von);
}

void Quellregeln::gattungen(const RecSatz &satz, const RecFeld &feld, const QString &familie)
{
    for (const QString &teil : feld.wert.split(u',')) {
        const QString gattung = teil.trimmed();
        if (gattung.isEmpty() || familieVon_.contains(gattung))
            satz.falsch(feld.zeile, QStringLiteral("%1: \"%2\" ist leer oder steht doppelt").arg(feld.name, gattung));
        familieVon_.insert(gattung, familie);
    }
}

void Quellregeln::familie(const RecSatz &satz, const Tabelle &tabelle)
{
    const RecFeld *feld = satz.feld(u"FAMILIE");
    if (!feld)
        return;
    const auto *kind = std::ranges::find(kindspalten, QString::fromLatin1(tabelle.name), [](const auto &zeile) { return zeile[0]; });
    const RecFeld *wessen = satz.feld(kind == std::end(kindspalten) ? QStringView(u"BOT_NAME") : (*kind)[1]);
    if (!wessen)
        return;
    const QString gattung = kind == std::end(kindspalten) ? gattungVon(wessen->wert) : wessen->wert, familie = feld->wert.section(u' ', 0, 0);
    const auto bekannt = familieVon_.constFind(gattung);
    if (bekannt == familieVon_.cend())
        familieVon_.insert(gattung, familie);
    else if (*bekannt != familie)
        satz.falsch(feld->zeile, QStringLiteral("FAMILIE: %1 gehört zu %2, nicht zu %3").arg(gattung, *bekannt, familie));
}

void Quellregeln::pruefen(const RecSatz &satz, const Tabelle &tabelle, const QHash<QString, QString> &inhalt)
{
    synonyme(satz);
    schreibung(satz, tabelle);
    zeiten(satz);
    bluetenhoehe(satz, tabelle, inhalt);
    bluehendes(satz, tabelle, inhalt);
    buntlaub(satz, tabelle, inhalt);
    familie(satz, tabelle);
}
