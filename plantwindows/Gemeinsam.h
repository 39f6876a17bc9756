#pragma once

#include "Beschreibung.h"
#include "store/Text.h"

#include <array>

/* Parts of a description that every Sparte's window has, and last steps that several of them take. */
namespace gemeinsam {

/// "0" stands for a value that nobody knows.
inline QString ohneNull(const QString &text)
{
    return text == u"0" ? QString() : text;
}

/// Square metres, typed as "m2".
inline QString quadratmeter(const QString &text)
{
    return QString(text).replace(QStringLiteral("m2"), QStringLiteral("m²"));
}

// clang-format off
/// Varieties of a perennial or a woody plant.
inline constexpr Element sorten{.muster = Muster::Text, .control = "txtSorten", .feld = "*.SORTEN", .leer = u"Keine Sortenangaben",
                                .umformung = ohneZeilenmarken, .leerNurBeiNull = true, .kasten = true, .ausArbeit = true};
// clang-format on
inline constexpr Element eigeneBemerkung[] = {
    {.muster = Muster::Benutzertext, .control = "txtEigeneBemerkung", .feld = "benu_bemerkung"},
};
inline constexpr Element eigenschaften[] = {
    {.muster = Muster::Benutzereigen, .control = "sschkBenutzer", .feld = "benu_eigen"},
};
inline constexpr Element ausbildung[] = {
    {.muster = Muster::Ausbildung, .control = "lblAusbildung", .feld = "*.Ausbildung"},
};
/// The tab "Benutzer / Ausbildung".
inline constexpr Gruppe benutzer[] = {
    {.name = "SSFraBenutzer1", .titel = u"Eigene Bemerkung", .elemente = eigeneBemerkung, .wachsend = true},
    {.name = "SSFraBenutzer2", .titel = u"Eigene Eigenschaften", .elemente = eigenschaften},
    {.name = "ssfraAusbildung", .titel = u"Ausbildung", .elemente = ausbildung, .regel = Gruppenregel::Controls},
};
/// The names of a plant that is known by a botanical one.
constexpr std::array<Namensfrage, 5> pflanzenfragen(const char *familie)
{
    return {{
        {Fragenart::Gattung, "BOT_NAME", u"Gattung"},
        {Fragenart::Art, "BOT_NAME", u"Art"},
        {Fragenart::Sorte, "BOT_NAME", u"Sorte"},
        {Fragenart::Familie, familie, u"Familie"},
        {Fragenart::DeutscherName, "DTNAM", u"Deutscher Name"},
    }};
}
inline constexpr Element herkunftsmarke{.muster = Muster::Herkunftsmarke, .control = "imgBenuAenderung", .feld = "Benu_Aenderung"};

} // namespace gemeinsam
