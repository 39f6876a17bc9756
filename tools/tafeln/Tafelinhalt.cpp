#include "Tafelinhalt.h"

#include <algorithm>

namespace {

constexpr size_t meisteOrgane = 6;

enum class Geltung { Immer, Arten, Sorten };
// clang-format off
constexpr struct
{
    Organ organ;
    Geltung geltung;
    QStringView worte;
} anker[] = {{Organ::Unterseite, Geltung::Immer,  u"unterseit"},
             {Organ::Rinde,      Geltung::Immer,  u"rinde borke"},
             {Organ::Zweig,      Geltung::Immer,  u"knospe"},
             {Organ::Haftorgan,  Geltung::Immer,  u"haftscheib haftwurz ranke windend"},
             {Organ::Schnitt,    Geltung::Immer,  u"fleisch stein kern"},
             {Organ::Stand,      Geltung::Immer,  u"dolde traube rispe ähre blütenst kolben quirl kätzchen"},
             {Organ::Frucht,     Geltung::Immer,  u"frucht früchte beere zapfen samen schale schote hülse deckfarbe grundfarbe berostung"},
             {Organ::Frucht,     Geltung::Sorten, u"kelch stiel rost mulde"},
             {Organ::Bluete,     Geltung::Immer,  u"blüte körbchen zunge hochbl spatha röhr sporn"},
             {Organ::Bluete,     Geltung::Arten,  u"krone kelch"},
             {Organ::Blatt,      Geltung::Immer,  u"blatt blätt laub fieder nadel wedel rosette"},
             {Organ::Zweig,      Geltung::Arten,  u"stiel"},
             {Organ::Zweig,      Geltung::Immer,  u"stängel stängl trieb zweig rute stachel dorn"}};
// clang-format on

/// A form's title without what stands in brackets: that may name the plant.
QString beschreibung(const Form &form)
{
    return form.titel.section(u'(', 0, 0).trimmed();
}

/// How it climbs; nothing for what only leans on others.
QString haftwort(const Steckbrief &s)
{
    constexpr std::pair<QStringView, QStringView> worte[] = {
        {u"ranken", u"Ranken"},           {u"windend", u"windender Trieb"},   {u"linkswindend", u"windender Trieb"},
        {u"haftwurzeln", u"Haftwurzeln"}, {u"haftscheiben", u"Haftscheiben"}, {u"blattstiele", u"rankende Blattstiele"}};
    const auto *w = std::ranges::find(worte, QStringView(s.haftorgan), [](const auto &paar) { return paar.first; });
    return w == std::end(worte) ? QString() : w->second.toString();
}

QString wort(const Steckbrief &s, Organ organ)
{
    const bool nadel = s.ist(u"nadelbaum") || s.ist(u"nadelstrauch");
    switch (organ) {
    case Organ::Bluete: return QStringLiteral("Blüte");
    case Organ::Stand: return QStringLiteral("Blütenstand");
    case Organ::Frucht: return nadel ? QStringLiteral("Zapfen") : QStringLiteral("Frucht");
    case Organ::Schnitt: return QStringLiteral("Fruchtschnitt");
    case Organ::Blatt: return nadel ? QStringLiteral("Nadel") : s.ist(u"farn") || s.ist(u"palme") ? QStringLiteral("Wedel") : QStringLiteral("Blatt");
    case Organ::Zweig: return s.winterkahl ? QStringLiteral("Winterzweig") : QStringLiteral("Zweig");
    case Organ::Haftorgan: return haftwort(s);
    case Organ::Rinde: return QStringLiteral("Rinde");
    case Organ::Unterseite:
    case Organ::Blatt2: break; // a leaf is named already
    }
    return {};
}

} // namespace

std::vector<Organ> organe(const Steckbrief &s)
{
    std::vector<Organ> da;
    const auto wenn = [&](bool ja, Organ organ) {
        if (ja && da.size() < meisteOrgane)
            da.push_back(organ);
    };
    wenn(s.blueht, Organ::Bluete);
    wenn(true, Organ::Blatt);
    wenn(s.fruchtet, Organ::Frucht);
    wenn(s.blueht && s.stand, Organ::Stand);
    const bool klettert = !haftwort(s).isEmpty();
    wenn(klettert, Organ::Haftorgan);
    wenn(klettert && s.blatt2, Organ::Blatt2); // the leaves of climbing and of flowering shoots differ
    wenn(s.fruchtet && s.fruchtschnitt, Organ::Schnitt);
    wenn(s.winterkahl, Organ::Zweig);
    wenn(s.unterseite.isValid(), Organ::Unterseite);
    wenn(!klettert && s.blatt2, Organ::Blatt2);
    wenn(s.sammlung.art.isEmpty() && (s.ist(u"baum") || s.ist(u"nadelbaum") || s.rinde != u"glatt"), Organ::Rinde);
    std::ranges::sort(da);
    return da;
}

bool nenntStiel(const QString &merkmal)
{
    return merkmal.contains(u"stiel", Qt::CaseInsensitive);
}

bool nenntKelch(const QString &merkmal)
{
    return merkmal.contains(u"kelch", Qt::CaseInsensitive);
}

std::optional<Organ> organVon(const QString &merkmal, const std::vector<Organ> &gezeichnet, bool sorte)
{
    // The word that stands first in the mark tells what it is about.
    qsizetype bester = merkmal.size();
    std::optional<Organ> wahl;
    for (const auto &[organ, geltung, worte] : anker)
        for (const QString &w : geltung == (sorte ? Geltung::Arten : Geltung::Sorten) ? QStringList() : worte.toString().split(u' '))
            if (const qsizetype ort = merkmal.indexOf(w, 0, Qt::CaseInsensitive);
                ort >= 0 && ort < bester && std::ranges::find(gezeichnet, organ) != gezeichnet.end()) {
                bester = ort;
                wahl = organ;
            }
    return wahl;
}

QString gesamttitel(const Steckbrief &s)
{
    const bool winter = s.winterkahl;
    const QString wie = s.zeigtBlueten() && s.zeigtFruechte() ? QStringLiteral(" mit Blüten und Früchten")
                        : s.zeigtBlueten()                    ? QStringLiteral(" in Blüte")
                        : s.zeigtFruechte()                   ? QStringLiteral(" mit Früchten")
                                                              : QString();
    const QString dazu = s.vorLaub ? QStringLiteral(" vor dem Laub und belaubt") : winter ? QStringLiteral(" und im Winter") : QString();
    return QStringLiteral("Gesamtansicht") + wie + dazu + QStringLiteral(", schematisch");
}

QString detailtitel(const Steckbrief &s)
{
    QStringList teile;
    for (const Organ organ : organe(s))
        if (const QString w = wort(s, organ); !w.isEmpty())
            teile += w;
    const QString letztes = teile.takeLast();
    return (teile.isEmpty() ? letztes : teile.join(QStringLiteral(", ")) + QStringLiteral(" und ") + letztes) + QStringLiteral(", schematisch");
}

QString organtitel(const Steckbrief &s, Organ organ)
{
    switch (organ) {
    case Organ::Bluete: return s.weitereFarben.empty() ? QStringLiteral("Einzelblüte") : QStringLiteral("Einzelblüte, darunter weitere Farben");
    case Organ::Stand: return QStringLiteral("Blütenstand: %1").arg(beschreibung(*s.stand));
    case Organ::Frucht: return wort(s, organ);
    case Organ::Schnitt: return QStringLiteral("Frucht im Längsschnitt");
    case Organ::Blatt: return QStringLiteral("%1, Oberseite: %2").arg(wort(s, organ), beschreibung(*s.blatt));
    case Organ::Unterseite: return QStringLiteral("Blatt, Unterseite");
    case Organ::Blatt2: return QStringLiteral("weiteres Blatt: %1").arg(beschreibung(*s.blatt2));
    case Organ::Zweig: return s.winterkahl ? QStringLiteral("Zweig im Winter mit Knospen") : QStringLiteral("Zweig");
    case Organ::Haftorgan: return QStringLiteral("so klettert sie: %1").arg(haftwort(s));
    case Organ::Rinde: return QStringLiteral("Rinde des Stammes");
    }
    return {};
}
