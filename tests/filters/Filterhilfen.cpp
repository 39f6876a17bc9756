#include "Filterhilfen.h"

#include <QFile>
#include <QMap>
#include <QTest>

#include <unordered_map>

using namespace Qt::StringLiterals;

QList<Sparte> spartenMitFilter()
{
    QList<Sparte> sparten;
    for (const SpartenEintrag &zeile : alleSparten())
        if (filterbeschreibung(zeile.sparte))
            sparten += zeile.sparte;
    return sparten;
}

QByteArray kuerzel(Sparte sparte)
{
    return QByteArray(eintrag(sparte).filter).last(2).toLower();
}

void jedeSparteMitFilter()
{
    QTest::addColumn<Sparte>("sparte");
    for (const Sparte sparte : spartenMitFilter())
        QTest::newRow(kuerzel(sparte)) << sparte;
}

void jedeSparteMitRegeln()
{
    QTest::addColumn<Sparte>("sparte");
    for (const Sparte sparte : spartenMitFilter())
        if (!eintrag(sparte).herkunftsfeld)
            QTest::newRow(kuerzel(sparte)) << sparte;
}

const std::vector<Dateizeile> &dateizeilen(Sparte sparte)
{
    static QMap<Sparte, std::vector<Dateizeile>> bekannt;
    std::vector<Dateizeile> &zeilen = bekannt[sparte];
    if (!zeilen.empty())
        return zeilen;
    const QString name = u"%1/zeilen_%2.tsv"_s.arg(QStringLiteral(FLOX_FILTERZEILEN), QLatin1String(kuerzel(sparte)));
    QFile datei(name);
    if (!datei.open(QIODevice::ReadOnly | QIODevice::Text))
        qFatal("'%s' cannot be read.", qPrintable(name));
    while (!datei.atEnd()) {
        const QStringList spalten = QString::fromUtf8(datei.readLine()).chopped(1).split(u'\t');
        Dateizeile zeile{spalten[0].toInt(), spalten[1], -1, spalten[2], spalten.value(3)};
        if (const qsizetype klammer = zeile.control.indexOf(u'('); klammer >= 0) {
            zeile.element = zeile.control.mid(klammer + 1).chopped(1).toInt();
            zeile.control.truncate(klammer);
        }
        zeilen.push_back(zeile);
    }
    return zeilen;
}

namespace {

/// Kind of a control as a line of a file names it.
QString zeilenart(const Dateistelle &stelle)
{
    switch (stelle.form()) {
    case Dateiform::Kennzeichen: return u"flag"_s;
    case Dateiform::Wert:
        return stelle.teil->art == Steuerung::Kaestchen ? u"value CheckBoxValue"_s
               : stelle.teil->art == Steuerung::Bilder  ? u"value BorderStyle"_s
                                                        : u"value BackStyle"_s;
    case Dateiform::Farbe: return u"colour"_s;
    case Dateiform::Wahrheit: return u"boolean"_s;
    case Dateiform::Text: return u"text"_s;
    case Dateiform::Zahltext: return u"number text"_s;
    case Dateiform::Stufe: return u"step"_s;
    case Dateiform::Index: return u"value ListIndex"_s;
    case Dateiform::Bildname: return u"text Tag"_s;
    }
    return {};
}

/// Keys of the pictures that a line can name: not selected, selected.
std::pair<QByteArray, QByteArray> bildnamen(Sparte sparte, int element)
{
    using Namen = QList<std::pair<QByteArray, QByteArray>>;
    static const QMap<Sparte, Namen> bekannt{
        {Sparte::Stauden, {{"schere_n", "schere"}, {"heim_n", "heim"}, {"schmuc_n", "schmuck"}, {"immerg_n", "immerg"}, {"gift_n", "gift"}}},
        {Sparte::Gehoelze, {{"laub_n", "laub"}, {"nadel_n", "nadel"}}}};
    return bekannt.value(sparte).value(element);
}

} // namespace

QString zeilenfehler(const Filterbeschreibung &beschreibung, const std::vector<Dateizeile> &zeilen)
{
    const std::vector<Dateistelle> stellen = dateistellen(beschreibung);
    for (size_t i = 0; i < std::max(stellen.size(), zeilen.size()); ++i) {
        if (i >= stellen.size() || i >= zeilen.size())
            return u"%1 lines, %2 in the table"_s.arg(zeilen.size()).arg(stellen.size());
        const Dateistelle &ist = stellen[i];
        const Dateizeile &soll = zeilen[i];
        const QString element = soll.element < 0 ? soll.control : u"%1(%2)"_s.arg(soll.control).arg(soll.element);
        const QString control = QLatin1String(ist.teil->control);
        const QString da = ist.teil->anzahl == 0 ? control : u"%1(%2)"_s.arg(control).arg(ist.element);
        const QString art = (soll.art + u' ' + soll.eigenschaft).trimmed();
        if (soll.nummer != int(i) + 1 || da != element || zeilenart(ist) != art)
            return u"line %1: %2, %3; in the table: %4, %5"_s.arg(soll.nummer).arg(element, art, da, zeilenart(ist));
        const Kriterium &k = beschreibung.kriterien[size_t(ist.kriterium)];
        if (ist.teil != (ist.zweites ? &k.b : &k.a))
            return u"line %1: another part"_s.arg(soll.nummer);
    }
    return {};
}

QByteArray vorgabezeile(Sparte sparte, const Dateizeile &zeile)
{
    if (zeile.art == u"flag" || zeile.art == u"value")
        return " 0 ";
    if (zeile.art == u"colour")
        return "-2147483633 ";
    if (zeile.art == u"step")
        return " 3 ";
    if (zeile.art == u"boolean")
        return zeile.control == u"optBewertung" && zeile.element == 0 ? "True" : "False";
    if (zeile.art == u"number text") {
        const QMap<QString, QByteArray> zahlen{{u"txtMinHoehe"_s, "0.00"},      {u"txtMaxHoehe"_s, "99.00"},     {u"txtMinLicht"_s, "0"},
                                               {u"txtMaxLicht"_s, "3000"},      {u"txtMinTemp"_s, "-20"},        {u"txtMaxTemp"_s, "50"},
                                               {u"txtBlattMinHoehe"_s, "0.00"}, {u"txtBlattMaxHoehe"_s, "99.00"}};
        return zahlen.value(zeile.control, "(?)");
    }
    if (zeile.eigenschaft == u"Tag")
        return bildnamen(sparte, zeile.element).first;
    return zeile.control == u"cmbFamilie" ? "- Alle -" : zeile.control == u"cboObstart" ? "-- Alle --" : "";
}

QByteArray vorgabedatei(Sparte sparte)
{
    QByteArray datei;
    for (const Dateizeile &zeile : dateizeilen(sparte))
        datei += vorgabezeile(sparte, zeile) + "\r\n";
    return datei;
}

namespace {

constexpr Regel regelnTo[] = {
    {Regelart::Familie, "cmbFamilie", 0, "familie"},
    {Regelart::Bild, "chkBild", 0, nullptr, "chkOhneBild"},
    {Regelart::Typen, "chkTyp", 5, "pflanztyp", "chkGift", "giftig"},
    {Regelart::Flags, "lblBlFarbe", 13, "farben"},
    {Regelart::Flags, "lblBlMonat", 12, "bluehzeit"},
    {Regelart::Flags, "lblFrFarbe", 13, "fruchtfarb"},
    {Regelart::Flags, "lblFrMonat", 12, "fruchtzeit"},
    {Regelart::Flags, "lblAngMonat", 12, "angebotsz"},
    {Regelart::Flags, "chkHaltbarkeit", 3, "haltbar"},
    {Regelart::Flags, "chkLaubFarbe", 9, "blattfarb"},
    {Regelart::Flags, "chkWuchsForm", 14, "wuchsform"},
    {Regelart::Hoehe, "txtMinHoehe", 0, "minhoehe", "txtMaxHoehe", "maxhoehe"},
    {Regelart::Flags, "chkTageslaenge", 3, "tagesl"},
    {Regelart::Flags, "imgLicht", 3, "sonne"},
    {Regelart::Spanne, "txtMinLicht", 0, "lichtmin", "txtMaxLicht", "lichtmax"},
    {Regelart::Spanne, "txtMinTemp", 0, "tempmin", "txtMaxTemp", "tempmax"},
    {Regelart::Flags, "chkWasser", 3, "h_wasserst"},
    {Regelart::Flags, "chkpH", 2, "h_ph"},
    {Regelart::Flags, "chkVerwHydro", 5, "h_verw"},
    {Regelart::Flags, "imgVerwendung", 8, "verwendung"},
    {Regelart::Flags, "chkNachduengung", 3, "nachdueng"},
    {Regelart::Flags, "chkKrank", 3, "krankh"},
    {Regelart::Text, "txtKrank", 0, "schaden"},
    {Regelart::SynonymBotanisch, "txtSynonym", 0},
    {Regelart::SynonymDeutsch, "txtSynonymDeutsch", 0, "dtnam"},
    {Regelart::Text, "txtSorte", 0, "sorten"},
    {Regelart::Text, "txtbotName", 0, "bot_name"},
    {Regelart::Text, "txtBenutzerText", 0, "benu_bemerkung"},
    {Regelart::Flags, "sschkBenutzer", 5, "benu_eigen"},
    {Regelart::Flags, "chkAusbildung", 6, "ausbildung"},
    {Regelart::Bewertung, "optBewertung", 2, "bewertung", "sldBewertung"},
};

constexpr Regel regelnAp[] = {
    {Regelart::Bild, "chkBild", 0, nullptr, "chkOhneBild"},
    {Regelart::Flags, "ChkHaltbar", 4, "haltbark"},
    {Regelart::Flags, "ChkFruGro", 4, "fruchtgr"},
    {Regelart::Flags, "ChkFormLaengs", 10, "form_l"},
    {Regelart::Flags, "ChkFormQuer", 5, "form_q"},
    {Regelart::Flags, "ChkFruRelief", 6, "fruchtrel"},
    {Regelart::Flags, "ChkAussGrif", 11, "aussehen"},
    {Regelart::Flags, "ChkDruckFes", 3, "druck"},
    {Regelart::Flags, "ChkGrundFar", 4, "grundfarbe"},
    {Regelart::Flags, "ChkDeckFarb", 5, "deckfarbe"},
    {Regelart::Flags, "ChkDFArt", 8, "df_art"},
    {Regelart::Flags, "ChkDFAusd", 4, "df_ausdehn"},
    {Regelart::Flags, "ChkSchBeros", 4, "rost"},
    {Regelart::Flags, "ChkReif", 3, "reif"},
    {Regelart::Flags, "ChkSchP", 10, "sch_punkt"},
    {Regelart::Flags, "ChkKGr", 7, "k_grube"},
    {Regelart::Flags, "ChkKGrRelie", 7, "k_relief"},
    {Regelart::Flags, "ChkKGrUmgeb", 4, "k_umgebung"},
    {Regelart::Flags, "ChkKGrBeros", 5, "k_berost"},
    {Regelart::Flags, "ChkKGroesse", 3, "k_groesse"},
    {Regelart::Flags, "ChkKOeffnun", 3, "k_oeffnung"},
    {Regelart::Flags, "ChkKBlaette", 20, "k_blaetter"},
    {Regelart::Flags, "ChkStGrGroe", 6, "st_grube"},
    {Regelart::Flags, "ChkStGrBero", 12, "st_berost"},
    {Regelart::Flags, "ChkStLaenge", 6, "st_laenge"},
    {Regelart::Flags, "ChkStBesond", 10, "st_besond"},
    {Regelart::Flags, "ChkSchKelch", 7, "k_roehre"},
    {Regelart::Flags, "ChkSchGefB", 8, "g_buendel"},
    {Regelart::Flags, "ChkSchKWFor", 5, "kw_form"},
    {Regelart::Flags, "ChkSchKWRis", 7, "kw_risse"},
    {Regelart::Flags, "ChkKernZahl", 3, "k_anzahl"},
    {Regelart::Flags, "ChkKernQual", 3, "k_qualit"},
    {Regelart::Flags, "ChkKernLaen", 3, "k_laenge"},
    {Regelart::Flags, "ChkFrFlScha", 3, "schale"},
    {Regelart::Flags, "ChkFrFlFarb", 6, "fl_farbe"},
    {Regelart::Flags, "ChkFrFlStru", 11, "fl_strukt"},
    {Regelart::Text, "txtName", 0, "bot_name"},
    {Regelart::Text, "txtVName", 0, "dtnam"},
    {Regelart::Text, "txtSynonym", 0, "synonym"},
    {Regelart::Text, "txtBenutzerText", 0, "benu_bemerkung"},
    {Regelart::Flags, "sschkBenutzer", 5, "benu_eigen"},
    {Regelart::Flags, "chkAusbildung", 6, "ausbildung"},
    {Regelart::Bewertung, "optBewertung", 2, "bewertung", "sldBewertung"},
};

constexpr const char *eigenschaftsfelder[] = {"schnitt", "heimisch", "blaschmuck", "immergruen", "giftig"};

constexpr Regel regelnSt[] = {
    {Regelart::Familie, "cmbFamilie", 0, "familie"},
    {.art = Regelart::AlleWahr, .control = "imgEigen", .anzahl = 5, .felder = eigenschaftsfelder},
    {Regelart::Bild, "chkBild", 0, nullptr, "chkOhneBild"},
    {Regelart::Flags, "lblBlFarbe", 13, "farben"},
    {Regelart::Flags, "lblBlMonat", 12, "bluehzeit"},
    {Regelart::Hoehe, "txtMinHoehe", 0, "blminh", "txtMaxHoehe", "blmaxh"},
    {Regelart::Nummer, "lblFrFarbe", 14, "fruchtfarb"},
    {Regelart::Flags, "lblFrMonat", 12, "fruchtzeit"},
    {Regelart::Flags, "chkLaubFarbe", 14, "blattfarbe"},
    {Regelart::Nummer, "lblHfFarbe", 13, "herbstfarb"},
    {Regelart::Hoehe, "txtBlattMinHoehe", 0, "minhoehe", "txtBlattMaxHoehe", "maxhoehe"},
    {Regelart::Flags, "imgLicht", 3, "licht"},
    {Regelart::Flags, "chkBodenArt", 6, "bodenart"},
    {Regelart::Flags, "chkBodenfeuchte", 4, "bfeuchte"},
    {Regelart::Flags, "chkKalk", 3, "kalk"},
    {Regelart::Flags, "chkNaehrstoff", 3, "salz"},
    {Regelart::Pflanzenart, "optTyp", 10, "pflanzart"},
    {Regelart::Flags, "chkLebensraum", 31, "lebensraum"},
    {Regelart::Text, "txtKennziffer", 0, "kennziffer"},
    {Regelart::SynonymBotanisch, "txtSynonym", 0},
    {Regelart::SynonymDeutsch, "txtSynonymDeutsch", 0, "dtnam"},
    {Regelart::Text, "txtSorte", 0, "sorten"},
    {Regelart::Text, "txtbotName", 0, "bot_name"},
    {Regelart::Text, "txtBenutzerText", 0, "benu_bemerkung"},
    {Regelart::Flags, "sschkBenutzer", 5, "benu_eigen"},
    {Regelart::Flags, "chkAusbildung", 6, "ausbildung"},
    {Regelart::Bewertung, "optBewertung", 2, "bewertung", "sldBewertung"},
};

constexpr Regel regelnGe[] = {
    {Regelart::Familie, "cmbFamilie", 0, "familie"},
    {Regelart::Bild, "chkBild", 0, nullptr, "chkOhneBild"},
    {Regelart::Nummer, "imgEigen", 2, "grobeint"},
    {Regelart::Flags, "lblBlFarbe", 13, "bluehfarb"},
    {Regelart::Flags, "lblBlMonat", 12, "bluehzeit"},
    {Regelart::Flags, "lblFrFarbe", 14, "fruchtfarb"},
    {Regelart::Flags, "lblFrMonat", 12, "fruchtzeit"},
    {Regelart::NummerOderFlags, "chkGenuss", 4, "genuss"},
    {Regelart::Flags, "chkBesMerkmal", 4, "bes_merkm"},
    {Regelart::Flags, "chkLaubZeit", 4, "laubzeit"},
    {Regelart::Flags, "chkLaubFarbe", 13, "laubfarb"},
    {Regelart::Flags, "lblBtMonat", 12, "laubaustr"},
    {Regelart::Flags, "chkWurzelwuchs", 7, "wurzelform"},
    {Regelart::NummerOderFlags, "chkWurzelEmpf", 3, "wurzelempf"},
    {Regelart::Flags, "chkBodenArt", 7, "bodenart"},
    {Regelart::Flags, "chkBodenfeuchte", 4, "bfeuchte"},
    {Regelart::Flags, "chkBodenpH", 3, "phboden"},
    {Regelart::Flags, "chkBesStandort", 5, "bes_eig"},
    {Regelart::Flags, "imgLicht", 3, "licht"},
    {Regelart::SynonymBotanisch, "txtSynonym", 0},
    {Regelart::SynonymDeutsch, "txtSynonymDeutsch", 0, "dtnam"},
    {Regelart::Text, "txtbotName", 0, "bot_name"},
    {Regelart::Text, "txtSorte", 0, "sorten"},
    {Regelart::Flags, "chkGroesse", 8, "groesse"},
    {Regelart::Flags, "chkWuchsVerh", 3, "wuchs"},
    {Regelart::Flags, "chkHabitus", 12, "habitus"},
    {Regelart::Flags, "imgVerwendung", 23, "verwendung"},
    {Regelart::Keine, "txtKennziffer", 0},
    {Regelart::Text, "txtBenutzerText", 0, "benu_bemerkung"},
    {Regelart::Flags, "sschkBenutzer", 5, "benu_eigen"},
    {Regelart::Flags, "chkAusbildung", 6, "ausbildung"},
    {Regelart::Bewertung, "optBewertung", 2, "bewertung", "sldBewertung"},
};

/// Boxes of which the last ones stand in the file only.
constexpr Regel kastenreihe(const char *control, int anzahl, const char *feld, int ueberzaehlig)
{
    return {.art = Regelart::Flags, .control = control, .anzahl = anzahl, .feld = feld, .ueberzaehlig = ueberzaehlig};
}

constexpr Regel regelnOb[] = {
    {Regelart::Gleich, "cboObstart", 0, "dtnam"},
    {Regelart::Bild, "chkBild", 0, nullptr, "chkOhneBild"},
    {Regelart::Flags, "chkWuchs", 52, "wuchs"},
    {Regelart::Flags, "chkBlatt", 29, "blatt"},
    {Regelart::Flags, "chkFruchtholz", 21, "fruhol"},
    {Regelart::Flags, "chkTrieb", 32, "trirut"},
    {Regelart::Flags, "chkUnterlage", 13, "unterlage"},
    kastenreihe("chkUnempfindlich", 46, "resistenz", 35),
    {Regelart::Flags, "chkEmpfindlich", 11, "krankh"},
    {Regelart::Flags, "chkFrost", 3, "froemf"},
    {Regelart::Flags, "chkBluete", 9, "bluete"},
    {Regelart::Flags, "chkBefruchtersorte", 3, "befrsor"},
    {Regelart::Flags, "chkBefruchtung", 12, "befru"},
    {Regelart::Flags, "chkFruchtstand", 10, "frustan"},
    {Regelart::Flags, "chkAlternanz", 4, "altrnaz"},
    kastenreihe("chkFruchtfarbe", 24, "frufar", 1),
    kastenreihe("chkGrundfarbe", 10, "grundfarb", 1),
    kastenreihe("chkDeckfarbe", 16, "deckfarb", 1),
    {Regelart::Flags, "chkSchale", 30, "schale"},
    kastenreihe("ckkfruchtfleisch", 34, "fruflei", 1),
    kastenreihe("chkFruchtform", 26, "frufor", 1),
    kastenreihe("chkGeschmack", 21, "gesmak", 1),
    kastenreihe("chkErtrag", 7, "ertrag", 1),
    {Regelart::Text, "txtPflueckreife", 0, "pflref"},
    {Regelart::Text, "txtGenussreife", 0, "genussref"},
    kastenreihe("chkErnte", 7, "ernte", 1),
    kastenreihe("chkTransport", 4, "transpemp", 1),
    kastenreihe("chkVerwendung", 17, "verwend", 1),
    {Regelart::Flags, "chkLager", 4, "lageig"},
    {Regelart::Monat, "cboFrischluft", 0, "friluflag"},
    {Regelart::Monat, "cboKuehllager", 0, "kuehllag"},
    {Regelart::Monat, "cboCALager", 0, "calager"},
    kastenreihe("chkLagerkrankheiten", 14, "lagkrank", 1),
    kastenreihe("chkBoden", 14, "boden", 1),
    kastenreihe("chkKlima", 15, "klima", 1),
    kastenreihe("chkNaehrstoffe", 4, "naehrstoff", 1),
    kastenreihe("chkEignung", 4, "eignung", 1),
    kastenreihe("chkErziehungsform", 9, "erziform", 1),
    {Regelart::Text, "txtName", 0, "bot_name"},
    {Regelart::Text, "txtSynonym", 0, "synonym"},
    {Regelart::Text, "txtMutanten", 0, "mutant"},
    {Regelart::Text, "txtBenutzerText", 0, "benu_bemerkung"},
    {Regelart::Flags, "sschkBenutzer", 5, "benu_eigen"},
    {Regelart::Flags, "chkAusbildung", 6, "ausbildung"},
    {Regelart::Bewertung, "optBewertung", 2, "bewertung", "sldBewertung"},
};

/// Where a control stands: a criterion and one of its two parts.
struct Ort
{
    size_t kriterium;
    bool a;
};

/// Asked for every control of every random state: by a table, made once for a description.
Ort ortVon(const Filterbeschreibung &beschreibung, std::string_view control)
{
    static std::unordered_map<const Filterbeschreibung *, std::unordered_map<std::string_view, Ort>> tafeln;
    auto &tafel = tafeln[&beschreibung];
    if (tafel.empty())
        for (size_t i = 0; i < beschreibung.kriterien.size(); ++i)
            for (const bool a : {true, false})
                if (const Steuerteil &teil = a ? beschreibung.kriterien[i].a : beschreibung.kriterien[i].b; teil.control)
                    tafel.emplace(teil.control, Ort{i, a});
    const auto ort = tafel.find(control);
    if (ort == tafel.end())
        qFatal("There is no control '%s'.", control.data());
    return ort->second;
}

/// First characters of the kinds of plants, by position; the shrub shares its letter with the perennial.
const QString artbuchstaben = u"12BHSSZGFW"_s;

} // namespace

std::span<const Regel> regeln(Sparte sparte)
{
    switch (sparte) {
    case Sparte::Topf: return regelnTo;
    case Sparte::Stauden: return regelnSt;
    case Sparte::Gehoelze: return regelnGe;
    case Sparte::Apfel: return regelnAp;
    case Sparte::Obst: return regelnOb;
    default: qFatal("There are no rules for Sparte %d.", int(sparte));
    }
}

bool meint(const Regel &regel, int i, const QString &wert)
{
    switch (regel.art) {
    case Regelart::Nummer: return wert == QString::number(i + 1);
    case Regelart::NummerOderFlags:
        if (wert.size() == 1 && wert != u"0")
            return wert == QString::number(i + 1);
        break;
    case Regelart::Pflanzenart:
        if (wert == u"Str")
            return i == 5;
        return !wert.isEmpty() && artbuchstaben.indexOf(wert[0]) == i;
    default: break;
    }
    return wert.mid(i, 1) == u"1";
}

QString wertFuer(const Regel &regel, int i)
{
    switch (regel.art) {
    case Regelart::Nummer:
    case Regelart::NummerOderFlags: return QString::number(i + 1);
    case Regelart::Pflanzenart: return i == 5 ? u"Str"_s : i == 4 ? u"Std"_s : QString(artbuchstaben[i]);
    default: return flags(regel.anzahl, {i + 1});
    }
}

const Steuerteil &Zustand::steuerteil(const char *control) const
{
    const Ort ort = ortVon(beschreibung, control);
    const Kriterium &kriterium = beschreibung.kriterien[ort.kriterium];
    return ort.a ? kriterium.a : kriterium.b;
}

Teilzustand &Zustand::operator[](const char *control)
{
    const Ort ort = ortVon(beschreibung, control);
    return ort.a ? werte.kriterien[ort.kriterium].a : werte.kriterien[ort.kriterium].b;
}

Zustand &Zustand::waehlen(const char *control, int element)
{
    const Steuerteil &teil = steuerteil(control);
    int wert = 1;
    if (teil.art == Steuerung::Farben && element + 1 < teil.anzahl)
        wert = 0x00AFFF;
    else if (teil.art == Steuerung::Monate)
        wert = int(0x80000003u);
    else if (teil.art == Steuerung::Option)
        std::ranges::fill((*this)[control].werte, 0); // a click leaves one
    (*this)[control].werte[size_t(element)] = wert;
    return *this;
}

Zustand &Zustand::alle(const char *control)
{
    for (int i = 0; i < int((*this)[control].werte.size()); ++i)
        waehlen(control, i);
    return *this;
}

QByteArray Zustand::verstellen(const Dateizeile &zeile)
{
    const QByteArray control = zeile.control.toLatin1();
    const int element = std::max(zeile.element, 0);
    if (zeile.eigenschaft == u"ListIndex") {
        text(control, steuerteil(control).worte.front().toString());
        return " 1 ";
    }
    if (zeile.art == u"number text") {
        text(control, u"-1,25"_s);
        return "-1.25";
    }
    if (zeile.art == u"boolean") {
        int &wert = (*this)[control].werte[size_t(element)];
        wert ^= 1;
        return wert ? "True" : "False";
    }
    if (zeile.art == u"step") {
        (*this)[control].werte = {5};
        return " 5 ";
    }
    if (zeile.art == u"text" && zeile.eigenschaft.isEmpty()) {
        text(control, u"Öl-Baum \"alt\""_s);
        return "\xd6l-Baum \"alt\"";
    }
    waehlen(control, element);
    if (zeile.eigenschaft == u"Tag")
        return bildnamen(beschreibung.sparte, element).second;
    return zeile.art == u"flag" ? "-1 " : zeile.art == u"value" ? " 1 " : zeile.control.endsWith(u"Monat") ? "-2147483645 " : " 45055 ";
}

Zustand &Zustand::text(const char *control, const QString &text)
{
    (*this)[control].text = text;
    return *this;
}

Zustand &Zustand::bewertung(int stufe, bool minimum)
{
    (*this)["sldBewertung"].werte = {stufe};
    (*this)["optBewertung"].werte = {minimum, !minimum};
    return *this;
}

bool Zustand::hat(const char *control, int element) const
{
    const Steuerteil &teil = steuerteil(control);
    const int wert = (*this)[control].werte[size_t(element)];
    const bool alsFarbe = teil.art == Steuerung::Monate || (teil.art == Steuerung::Farben && element + 1 < teil.anzahl);
    return alsFarbe ? wert != int(0x8000000Fu) : wert != 0;
}

Datensatz::Datensatz()
{
    mit("bewertung", u"5"_s).mit("giftig", u"False"_s);
}

Datensatz &Datensatz::mit(const char *feld, const QString &wert)
{
    werte_[QString::fromLatin1(feld).toLower()] = wert.isEmpty() ? QByteArray("") : wert.toUtf8();
    return *this;
}

Datensatz &Datensatz::ohne(const char *feld)
{
    werte_.remove(QString::fromLatin1(feld).toLower());
    return *this;
}

bool Datensatz::passt(const Filterpruefung &pruefung, qint64 artnr) const
{
    std::vector<std::string_view> werte;
    for (const QString &feld : pruefung.felder()) {
        const auto wert = werte_.constFind(feld.toLower());
        werte.push_back(wert == werte_.cend() ? std::string_view() : std::string_view(wert->constData(), size_t(wert->size())));
    }
    return pruefung.passt(artnr, werte);
}

bool Datensatz::passt(const Zustand &zustand, Filterumgebung umgebung, qint64 artnr) const
{
    return passt(Filterpruefung(zustand.beschreibung, zustand.werte, std::move(umgebung)), artnr);
}

bool laden(const Filterbeschreibung &beschreibung, const QByteArray &inhalt, Filterzustand &zustand)
{
    return filterLesen(beschreibung, inhalt, [&](int k, bool zweites, int element, int wert, const QString &text) {
        Teilzustand &teil = zweites ? zustand.kriterien[size_t(k)].b : zustand.kriterien[size_t(k)].a;
        if (teil.werte.empty())
            teil.text = text;
        else
            teil.werte[size_t(element)] = wert;
    });
}

Zustand zufallszustand(Sparte sparte, Zufall &zufall, const QStringList &texte, const QStringList &familien)
{
    Zustand z(sparte);
    const auto eins = [&](const QStringList &liste) { return liste[zahl(zufall, 0, int(liste.size()) - 1)]; };
    const auto gruppe = [&](const char *control, int n) {
        const int viele = einmalIn(zufall, 5) ? n : zahl(zufall, 1, n);
        for (int i = 0; i < n; ++i)
            if (viele == n || zahl(zufall, 0, n) < viele)
                z.waehlen(control, i);
    };
    for (const Regel &regel : regeln(sparte)) {
        // A few criteria at a time, so that some plants remain.
        const bool vielfach = regel.art == Regelart::Flags || regel.art == Regelart::Nummer || regel.art == Regelart::NummerOderFlags;
        const bool streng = regel.art == Regelart::Gleich || regel.art == Regelart::Monat;
        if (regel.art != Regelart::Bewertung && !einmalIn(zufall, streng ? 24 : vielfach ? int(regeln(sparte).size()) / 3 : 5))
            continue;
        switch (regel.art) {
        case Regelart::Familie: z.text(regel.control, eins(familien)); break;
        case Regelart::Bild: z.waehlen(einmalIn(zufall, 3) ? regel.control2 : regel.control); break;
        case Regelart::Typen:
            gruppe(regel.control, regel.anzahl);
            if (einmalIn(zufall, 2))
                z.waehlen(regel.control2);
            break;
        case Regelart::Flags:
        case Regelart::Nummer:
        case Regelart::NummerOderFlags: gruppe(regel.control, regel.waehlbar()); break;
        case Regelart::AlleWahr:
        case Regelart::Pflanzenart: z.waehlen(regel.control, zahl(zufall, 0, regel.anzahl - 1)); break;
        case Regelart::Gleich: z.text(regel.control, eins(texte)); break;
        case Regelart::Monat: z.text(regel.control, monatsnamen[size_t(zahl(zufall, 0, 11))].toString()); break;
        case Regelart::Hoehe:
        case Regelart::Spanne: {
            const bool temperatur = QLatin1String(regel.control) == "txtMinTemp"_L1;
            const int unten = temperatur ? zahl(zufall, -22, 8) : zahl(zufall, 0, 3) * (regel.art == Regelart::Hoehe ? 1 : 500);
            const int oben = temperatur ? zahl(zufall, 5, 52) : zahl(zufall, 1, 7) * (regel.art == Regelart::Hoehe ? 1 : 500);
            const QStringList schreibweisen{u"%1"_s, u"%1,0"_s, u"%1.5"_s, u" %1 "_s};
            z.text(regel.control, eins(schreibweisen).arg(unten)).text(regel.control2, eins(schreibweisen).arg(oben));
            break;
        }
        case Regelart::Text:
        case Regelart::SynonymBotanisch:
        case Regelart::SynonymDeutsch:
        case Regelart::Keine: z.text(regel.control, eins(texte)); break;
        case Regelart::Bewertung: z.bewertung(zahl(zufall, 1, 5), !einmalIn(zufall, 4)); break;
        }
    }
    return z;
}
