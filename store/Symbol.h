#pragma once

#include <QStringView>

/* Pictures that stand for what is stored: the positions of a coded field, or booleans. Windows and filters show the same ones. */

struct Symbol
{
    const char *bild;           ///< "list/key"
    QStringView hinweis;        ///< sentence while the mouse is over it
    QStringView name;           ///< accessible name and tool tip
    const char *feld = nullptr; ///< boolean that sets it; null: its position of the element's field
    const char *aus = nullptr;  ///< "list/key" while it is not set; null: no other picture

    const char *gezeigt(bool gesetzt) const { return gesetzt || !aus ? bild : aus; }
};

namespace symbole {

inline constexpr Symbol licht[] = {
    {"iliLicht/sonnig", u"sonnig", u"sonnig"},
    {"iliLicht/halbscha", u"halbschattig", u"halbschattig"},
    {"iliLicht/schattig", u"schattig", u"schattig"},
};
inline constexpr Symbol laubUndNadel[] = {
    {"iliEigenschaften/laub", u"Diese Pflanze ist ein Laubgehölz", u"Laubgehölz", nullptr, "iliEigenschaften/laub_n"},
    {"iliEigenschaften/nadel", u"Diese Pflanze ist ein Nadelgehölz", u"Nadelgehölz", nullptr, "iliEigenschaften/nadel_n"},
};
/// The uses of woody plants.
inline constexpr Symbol verwendungGehoelze[] = {
    {"bilder/heimisch", u"als heimische Pflanze", u"als heimische Pflanze"},
    {"bilder/hecke", u"zur Heckenpflanzung", u"zur Heckenpflanzung"},
    {"bilder/biene", u"als Bienenweide", u"als Bienenweide"},
    {"bilder/vogel", u"als Vogelnährgehölz", u"als Vogelnährgehölz"},
    {"bilder/hang", u"zur Hangbefestigung", u"zur Hangbefestigung"},
    {"bilder/aue", u"für die Auenlandschaft", u"für die Auenlandschaft"},
    {"bilder/hausbaum", u"als Hausbaum", u"als Hausbaum"},
    {"bilder/strasse", u"als Straßenbaum", u"als Straßenbaum"},
    {"bilder/garten", u"im Garten", u"im Garten"},
    {"bilder/bodendecker", u"als Bodendecker", u"als Bodendecker"},
    {"bilder/schnitt", u"als Schnittgehölz", u"als Schnittgehölz"},
    {"bilder/fassade", u"zur Fassadenbegrünung", u"zur Fassadenbegrünung"},
    {"bilder/dach", u"zur Dachbegrünung", u"zur Dachbegrünung"},
    {"bilder/heide", u"im Heidegarten", u"im Heidegarten"},
    {"bilder/kuebel", u"als Kübelpflanze", u"als Kübelpflanze"},
    {"bilder/pionier", u"als Pioniergehölz", u"als Pioniergehölz"},
    {"bilder/obstgehoelz", u"als Obstgehölz", u"als Obstgehölz"},
    {"bilder/einzel", u"in Einzelstellung", u"in Einzelstellung"},
    {"bilder/gruppe", u"in Gruppenstellung", u"in Gruppenstellung"},
    {"bilder/park", u"in einer Parkanlage", u"in einer Parkanlage"},
    {"bilder/verkehr", u"zur Verkehrsbegleitung", u"zur Verkehrsbegleitung"},
    {"bilder/grab", u"als Grabbepflanzung", u"als Grabbepflanzung"},
    {"bilder/treiberei", u"zur Treiberei", u"zur Treiberei"},
};

} // namespace symbole
