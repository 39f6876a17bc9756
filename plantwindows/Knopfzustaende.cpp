#include "Knopfzustaende.h"

namespace {

constexpr Knopfzeile zeilen[] = {
    {Knopf::First, "cmdFirst", u"Erste Pflanze", u"first", true, true, false, "Ctrl+Home"},
    {Knopf::Back, "cmdBack", u"Vorherige Pflanze", u"back", true, true, false, "Ctrl+PgUp"},
    {Knopf::Next, "cmdNext", u"Nächste Pflanze", u"next", true, true, false, "Ctrl+PgDown"},
    {Knopf::Last, "cmdLast", u"Letzte Pflanze", u"last", true, true, false, "Ctrl+End"},
    {Knopf::BotDeu, "cmdBotDeu", u"Umschalten Botanisch/Deutsch", u"botanisc", false, false, true},
    {Knopf::FilterEin, "cmdFilterEin", u"Filter ein/aus", u"filter", true, false, false},
    {Knopf::Filter, "cmdFilter", u"Filter definieren", u"filterb", false, false, false},
    {Knopf::FilterLaden, "cmdFilterLaden", u"Filter laden", u"filterl", false, false, false},
    {Knopf::FilterSpeichern, "cmdFilterSpeichern", u"Filter speichern", u"filters", true, false, false},
    {Knopf::Druck, "cmdDruck", u"Drucken", u"druck", false, false, false, "Ctrl+P"},
};
static_assert(std::size(zeilen) == anzahlKnoepfe);

/// The button that switches the filter has keys of its own.
QStringView filterEinBild(Knopfzustand zustand, bool bedienbar, bool ein)
{
    switch (zustand) {
    case Knopfzustand::Hervorgehoben: return ein ? u"filter_n" : u"filter";
    case Knopfzustand::Normal: return !bedienbar ? u"filter_u_n" : ein ? u"filter_n_n" : u"filter_n2";
    case Knopfzustand::Gedrueckt: return ein ? u"filter_n_u" : u"filter_u2";
    }
    return {};
}

} // namespace

std::span<const Knopfzeile> knopfzeilen()
{
    return zeilen;
}

QString knopfbild(const Knopfzeile &zeile, Knopfzustand zustand, bool bedienbar, const Umschaltungen &umschaltungen)
{
    if (zeile.knopf == Knopf::FilterEin)
        return filterEinBild(zustand, bedienbar, umschaltungen.filterEin).toString();
    const QStringView grund = zeile.knopf == Knopf::BotDeu && !umschaltungen.botanisch ? QStringView(u"deutsch") : zeile.bild;
    switch (zustand) {
    case Knopfzustand::Hervorgehoben: return grund.toString();
    case Knopfzustand::Normal: return grund.toString() + (bedienbar || !zeile.kannGrau ? QStringLiteral("_n") : QStringLiteral("_ef"));
    case Knopfzustand::Gedrueckt: return grund.toString() + QStringLiteral("_u");
    }
    return {};
}
