#include "frmAnzeigeObst.h"

#include "Gemeinsam.h"

namespace {

/// Stored as 'a','b'; shown with the names apart.
QString befruchter(const QString &text)
{
    QString namen = text.endsWith(u',') ? text.chopped(1) : text;
    return namen.replace(QStringLiteral("','"), QStringLiteral("', '"));
}

constexpr Element kopf[] = {
    {.muster = Muster::BotName, .control = "lblName", .feld = "BOT_NAME"},
    {.muster = Muster::Text, .control = "lblDtName", .feld = "DTNAM", .titel = "LabelDt"},
    {.muster = Muster::Text, .control = "lblSynonyme", .feld = "synonym", .titel = "LabelSyn"},
    {.muster = Muster::Text, .control = "lblHerkunft", .feld = "HK", .titel = "Label2"},
    {.muster = Muster::Text, .control = "lblAbstammung", .feld = "ABSTAMM", .titel = "Label8"},
};

constexpr Element tafel[] = {
    gemeinsam::herkunftsmarke,
    {.muster = Muster::Bewertung, .control = "picBewertung", .feld = "bewertung", .titeltext = u"Bewertung"},
};

/// The words of a flag string under the field's label.
constexpr Element worte(const char *control, const char *feld, const char *titel)
{
    return {.muster = Muster::Liste, .control = control, .feld = feld, .titel = titel};
}

constexpr Element text(const char *control, const char *feld, const char *titel, QString (*umformung)(const QString &) = nullptr)
{
    return {.muster = Muster::Text, .control = control, .feld = feld, .titel = titel, .umformung = umformung};
}

constexpr Element wuchs[] = {
    worte("lblObWuchs", "WUCHS", "Label4"),
    worte("lblObBlatt", "BLATT", "Label5"),
    worte("lblObFruchtholz", "FRUHOL", "Label7"),
    worte("lblObTrieb", "TRIRUT", "Label9"),
    worte("lblObUnterlage", "UNTERLAGE", "LabelUnterl"),
};
constexpr Element gesundheit[] = {
    worte("lblObEmpfindlich", "KRANKH", "Label1"),
    worte("lblObUnempfindlich", "RESISTENZ", "Label10"),
};
constexpr Element standort[] = {
    worte("lblObBoden", "BODEN", "Label39"),
    worte("lblObKlima", "KLIMA", "Label33"),
    worte("lblObNaehrstoff", "NAEHRSTOFF", "Label15"),
};
constexpr Element anbau[] = {
    worte("lblObEignung", "EIGNUNG", "Label41"),
    worte("lblObErziehung", "ERZIFORM", "Label43"),
    worte("lblObSchnitt", "SHNITT", "Label47"),
    worte("lblObPflanzenschutz", "PFLSHTZ", "Label16"),
};
constexpr Element bluete[] = {
    worte("lblObFrostempfindlichkeit", "FROEMF", "Label18"), worte("lblObBluetezeit", "BLUETE", "Label19"),
    worte("lblObFruchtstand", "FRUSTAN", "Label20"),         worte("lblObBefruchtung", "BEFRU", "Label26"),
    worte("lblObAlsBefruchtersorte", "BEFRSOR", "Label27"),
};
constexpr Element befruchtersorten[] = {
    text("lblObIntersterilitaet", "INTERSTER", "Label28"),
    text("lblObBefruchtersorte", "GEBEFR", "Label12", befruchter),
    worte("lblObAlternanz", "ALTRNAZ", "Label13"),
};
constexpr Element farben[] = {
    worte("lblObFruchtfarbe", "FRUFAR", "Label24"),
    worte("lblObGrundfarbe", "GRUNDFARB", "Label25"),
    worte("lblObDeckfarbe", "DECKFARB", "Label14"),
};
// One caption for flesh and form: it stays while one of them says something.
constexpr Element frucht[] = {
    worte("lblObSchale", "SCHALE", "Label22"),
    worte("lblObFruchtfleisch", "FRUFLEI", "Label23"),
    worte("lblObFruchtform", "FRUFOR", "Label23"),
};
constexpr Element geschmack[] = {
    worte("lblObGeschmack", "GESMAK", "Label29"),
    worte("lblObErtrag", "ERTRAG", "Label31"),
};
constexpr Element besonderes[] = {
    {.muster = Muster::Text, .control = "lblObBesonderheiten", .feld = "BESOND"},
};
constexpr Element reife[] = {
    text("lblObFruchtentwicklung", "FRUENTW", "labelFruchtentwicklung", gemeinsam::ohneNull),
    text("lblObPflueckreife", "PFLREF", "Label34"),
    text("lblObGenussreife", "GENUSSREF", "Label37"),
};
constexpr Element ernte[] = {
    worte("lblObErnte", "ERNTE", "Label35"),
    worte("lblObTransport", "TRANSPEMP", "Label21"),
    worte("lblObVerwendung", "VERWEND", "Label11"),
};
constexpr Element lager[] = {
    worte("lblObLagereignung", "LAGEIG", "Label32"),       text("lblObFrischluftLager", "FRILUFLAG", "Label40"),
    text("lblObKuehllager", "KUEHLLAG", "Label46"),        text("lblObCALager", "CALAGER", "Label48"),
    worte("lblObLagerkrankheiten", "LAGKRANK", "Label50"),
};

constexpr Ueberschrift ueberAnbau{"Label42", u"Standort und Erziehung"}, ueberErnte{"Label53", u"Reife und Ernte"};

constexpr Gruppe wuchsAnbau[] = {
    {.name = "SSFrame1", .titel = u"Wuchs", .titelname = "Label38", .elemente = wuchs, .regel = Gruppenregel::Controls},
    {.name = "SSFrame2", .titel = u"Gesundheit", .titelname = "Label6", .elemente = gesundheit, .regel = Gruppenregel::Controls},
    {.name = "SSFrame4", .titel = {}, .ueberschrift = &ueberAnbau, .elemente = standort, .regel = Gruppenregel::Controls},
    {.name = "SSFrame6", .titel = {}, .ueberschrift = &ueberAnbau, .elemente = anbau, .regel = Gruppenregel::Controls},
};
constexpr Gruppe bluetenReiter[] = {
    {.name = "SSFrame5", .titel = u"Blüte und Befruchtung", .titelname = "Label45", .elemente = bluete, .regel = Gruppenregel::Controls},
    {.name = "SSFrame10", .titel = u"Befruchter", .elemente = befruchtersorten, .regel = Gruppenregel::Controls},
};
constexpr Gruppe fruchtReiter[] = {
    {.name = "SSFrame8", .titel = u"Farbe", .elemente = farben, .regel = Gruppenregel::Controls},
    {.name = "SSFrame7", .titel = u"Schale, Fleisch und Form", .titelname = "Label51", .elemente = frucht, .regel = Gruppenregel::Controls},
    {.name = "SSFrame9", .titel = u"Geschmack und Ertrag", .elemente = geschmack, .regel = Gruppenregel::Controls},
    {.name = "Frame1", .titel = u"Besonderheiten", .titelname = "Label52", .elemente = besonderes, .regel = Gruppenregel::Controls},
};
constexpr Gruppe ernteReiter[] = {
    {.name = "SSFrame12", .titel = {}, .ueberschrift = &ueberErnte, .elemente = reife, .regel = Gruppenregel::Controls},
    {.name = "SSFrame3", .titel = {}, .ueberschrift = &ueberErnte, .elemente = ernte, .regel = Gruppenregel::Controls},
    {.name = "SSFrame11", .titel = u"Lagerung", .elemente = lager, .regel = Gruppenregel::Controls},
};

constexpr Reiter reiter[] = {
    {u"Wuchs/Anbau", wuchsAnbau},  {u"Blüte/Befruchtung", bluetenReiter},           {u"Frucht", fruchtReiter},
    {u"Ernte/Lager", ernteReiter}, {u"Benutzer / Ausbildung", gemeinsam::benutzer},
};

constexpr const char *andereNamen[] = {"synonym"};
constexpr Namensfrage fragen[] = {
    {Fragenart::DeutscherName, "DTNAM", u"Obstart"},
    {Fragenart::Sortenname, "BOT_NAME", u"Sorte", andereNamen},
};

} // namespace

const Fensterbeschreibung frmAnzeigeObst{.sparte = Sparte::Obst, .kopf = kopf, .tafel = tafel, .reiter = reiter, .fragen = fragen};
