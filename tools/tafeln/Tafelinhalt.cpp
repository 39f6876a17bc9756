#include "Tafelinhalt.h"

#include <QStringTokenizer>

#include <algorithm>

namespace {

constexpr size_t meisteOrgane = 6;

/// Of which kinds of plants a word is said.
constexpr auto Kraut = unsigned(Pflanzenart::Kraut), Holz = unsigned(Pflanzenart::Gehoelz), Sorten = unsigned(Pflanzenart::Sorte);
constexpr unsigned Arten = Kraut | Holz, Immer = Arten | Sorten;
// clang-format off
/// Words and what they speak of; no part: the whole plant.
constexpr struct
{
    std::optional<Organ> organ;
    unsigned geltung;
    QStringView worte;
} anker[] = {{Organ::Unterseite, Immer,  u"unterseit sporenl sporenh"},
             {Organ::Rinde,      Immer,  u"rinde borke stamm stämm"},
             {Organ::Zweig,      Immer,  u"knospe"},
             {Organ::Haftorgan,  Immer,  u"haftscheib haftwurz ranke windend windet winden"},
             {Organ::Schnitt,    Immer,  u"fleisch stein kern"},
             {Organ::Stand,      Immer,  u"dolde traube rispe ähre blütenst stände kolben quirl kätzchen kerze tragbl"},
             {Organ::Stand,      Kraut,  u"stängel stängl schaft schäft"},
             {Organ::Frucht,     Immer,  u"frucht früchte früchtchen beere zapfen samen schale schote hülse deckfarbe grundfarbe berostung "
                                                  u"kapsel hagebutte balg nüsschen eichel nuss"},
             {std::nullopt,      Sorten, u"krone wuchs baum strauch pflanze bestand reif ernte ertrag ausläufer geschmack holz platzt letzte"},
             {Organ::Frucht,     Sorten, u"kelch stiel rost mulde haut backe naht sonnenseit schattenseit punkt duft saft flasche form förmig "
                                                  u"oval rund kugelig bauch groß klein schlank lang breit rot gelb blau violett grün schwarz"},
             {Organ::Bluete,     Immer,  u"blüte blütch blüh körbchen zunge hochbl spatha röhr sporn kronbl kelchbl hüllbl blütenbl staub narbe griffel "
                                                  u"lippe trompete schlund pollen nektar hängebl dombl spreubl glocke glöckchen köpfchen köpfe"},
             {Organ::Bluete,     Arten,  u"kronr kronz kelch duft sterne"},
             {Organ::Bluete,     Kraut,  u"krone"},
             {std::nullopt,      Holz,   u"krone"},
             {Organ::Blatt,      Immer,  u"blatt blätt laub fieder nadel wedel rosette gerieben lappen schuppen rippe ader"},
             {Organ::Zweig,      Arten,  u"stiel"},
             {Organ::Zweig,      Immer,  u"stängel stängl trieb zweig rute stachel dorn"}};
/// Words that sound like a part of which they do not speak, and how they are read.
constexpr std::pair<QStringView, QStringView> taeuschend[] = {
    {u"abblätt", u"ab"},     {u"blattlos", u"los"},         {u"stammumf", u"umf"},       {u"stängelumf", u"umf"},    {u"austrieb", u"laub"},
    {u"stammgrund", u"grund"}, {u"stammfuß", u"fuß"}, {u"stämmchen", u"form"}, {u"stammausschlag", u"ausschlag"}, {u"stammwurzel", u"wurzel"},
    {u"mehrstämm", u"mehr"}, {u"triebe winde", u"winde"}, {u"nebenkrone", u"blüte"}, {u"blütenkrone", u"blüte"}};
// clang-format on

/// A form's title without what stands in brackets: that may name the plant.
QString beschreibung(const Form &form)
{
    return form.titel.section(u'(', 0, 0).trimmed();
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
    case Organ::Zweig: return s.winterkahl ? QStringLiteral("Winterzweig") : s.verholzt() ? QStringLiteral("Zweig") : QStringLiteral("Trieb");
    case Organ::Haftorgan: return s.haftform->titel;
    case Organ::Rinde: return QStringLiteral("Rinde");
    case Organ::Unterseite:
    case Organ::Blatt2: break; // a leaf is named already
    }
    return {};
}

} // namespace

std::vector<Organ> organe(const Steckbrief &s)
{
    // In the order of what they are worth; shoots in leaf and other bark only where a mark speaks of them.
    const bool klettert = s.haftform, borke = s.sammlung.art.isEmpty() && (s.ist(u"baum") || s.ist(u"nadelbaum") || s.rinde != u"glatt");
    std::vector<Organ> da;
    for (const auto &[ja, organ] : {std::pair(s.blueht, Organ::Bluete),
                                    {true, Organ::Blatt},
                                    {s.fruchtet, Organ::Frucht},
                                    {s.blueht && s.stand, Organ::Stand},
                                    {klettert, Organ::Haftorgan},
                                    {klettert && s.blatt2, Organ::Blatt2}, // the leaves of climbing and of flowering shoots differ
                                    {s.fruchtet && s.fruchtschnitt, Organ::Schnitt},
                                    {s.winterkahl || s.hatTriebe(), Organ::Zweig},
                                    {s.unterseite.isValid(), Organ::Unterseite},
                                    {!klettert && s.blatt2, Organ::Blatt2},
                                    {borke || s.verholzt(), Organ::Rinde}})
        if (ja)
            da.push_back(organ);
    std::vector<std::optional<Organ>> gemeint;
    for (const QString &m : s.merkmale)
        gemeint.push_back(organVon(m, da, pflanzenart(s)));
    const auto genannt = [&](Organ o) { return std::ranges::find(gemeint, std::optional(o)) != gemeint.end(); };
    std::erase_if(da, [&](Organ o) { return ((o == Organ::Zweig && !s.winterkahl) || (o == Organ::Rinde && !borke)) && !genannt(o); });
    std::ranges::stable_partition(da, [&](Organ o) { return o <= Organ::Frucht || o == Organ::Blatt || genannt(o); });
    da.resize(std::min(da.size(), meisteOrgane));
    std::ranges::sort(da);
    return da;
}

bool nenntStiel(const QString &merkmal, Organ organ)
{
    const auto nennt = [&](QStringView w) { return merkmal.contains(w, Qt::CaseInsensitive); };
    return nennt(u"stiel") || (organ == Organ::Stand && (nennt(u"stäng") || nennt(u"schaft") || nennt(u"schäft")));
}

Pflanzenart pflanzenart(const Steckbrief &s)
{
    return !s.sammlung.art.isEmpty() ? Pflanzenart::Sorte : s.verholzt() ? Pflanzenart::Gehoelz : Pflanzenart::Kraut;
}

std::optional<Organ> organVon(const QString &merkmal, const std::vector<Organ> &gezeichnet, Pflanzenart art)
{
    QString text = merkmal.toLower();
    for (const auto &[wort, gelesen] : taeuschend)
        text.replace(wort.toString(), gelesen.toString());
    // The word that stands first in the mark tells what it is about.
    qsizetype bester = text.size();
    std::optional<Organ> wahl;
    for (const auto &[organ, geltung, worte] : anker)
        for (const QStringView w : QStringTokenizer(worte, u' '))
            if (const qsizetype ort = geltung & unsigned(art) ? text.indexOf(w) : -1;
                ort >= 0 && ort < bester && (!organ || std::ranges::find(gezeichnet, *organ) != gezeichnet.end())) {
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
    case Organ::Schnitt:
        return s.fruchtschnitt && s.fruchtschnitt->titel.contains(u"Querschnitt") ? QStringLiteral("Frucht im Querschnitt")
                                                                                  : QStringLiteral("Frucht im Längsschnitt");
    case Organ::Blatt: return QStringLiteral("%1, Oberseite: %2").arg(wort(s, organ), beschreibung(*s.blatt));
    case Organ::Unterseite: return QStringLiteral("Blatt, Unterseite");
    case Organ::Blatt2: return QStringLiteral("weiteres Blatt: %1").arg(beschreibung(*s.blatt2));
    case Organ::Zweig: return s.winterkahl ? QStringLiteral("Zweig im Winter mit Knospen") : wort(s, organ) + QStringLiteral(" mit Blättern");
    case Organ::Haftorgan: return QStringLiteral("so klettert sie: %1").arg(s.haftform->titel);
    case Organ::Rinde: return QStringLiteral("Rinde des Stammes");
    }
    return {};
}
