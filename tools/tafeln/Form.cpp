#include "Form.h"

#include "Farben.h"
#include "Pfad.h"

#include "store/Text.h"

#include <algorithm>

namespace {

/// In the order of Rolle; petals have veins of their own.
constexpr QStringView rollen = u"blatt blatt2 stiel rippe ader rand faden bluete bluete2 bluete3 mitte staub narbe kelch hochblatt bluetenader "
                               u"schatten licht haut haut2 fleisch kern stein samen huelle haar";

constexpr struct
{
    QStringView typ;
    Formgruppe gruppe;
} gruppen[] = {
    {u"Blattform", Formgruppe::Blatt}, {u"Bluetenform", Formgruppe::Bluete}, {u"Fruchtform", Formgruppe::Frucht}, {u"Dingform", Formgruppe::Ding}};

/// What a field of a row takes.
enum class Feldart { Wort, Blatt, Bluete, Frucht, Farbe, Zahl, Zeichnung };
// clang-format off
constexpr struct
{
    QStringView name;
    Feldart art;
    QStringView worte = {};
} felder[] = {
    {u"Wuchs", Feldart::Wort,
     u"rosette horst aufrecht eintriebig buschig polster teppich haengend zwiebel knolle sukkulentrosette kugelkaktus saeulenkaktus gliederkaktus "
     "zisterne schopf flaschenstamm palme orchidee farn gras rohr schirm schwimmblatt sumpf unterwasser strauch zwergstrauch halbstrauch baum "
     "kletternd nadelbaum nadelstrauch obstbaum beerenstrauch ruten erdbeere rebe"},
    {u"Krone", Feldart::Wort, u"rund oval kegel saeule schirm breit haengend vase bizarr etagen kugel flach"},
    {u"Blattstellung", Feldart::Wort, u"wechselstaendig gegenstaendig quirlstaendig zweizeilig schopfig"},
    {u"Bluetensitz", Feldart::Wort, u"endstaendig achselstaendig grundstaendig im-laub staemmig"},
    {u"Rinde", Feldart::Wort, u"glatt laengsrissig gefeldert ringelig weiss abblaetternd schuppig streifig korkleisten"},
    {u"Knospe", Feldart::Wort, u"spitz eifoermig rund schwarz klebrig nackt"},
    {u"Haftorgan", Feldart::Wort, u"ranken windend linkswindend haftwurzeln haftscheiben blattstiele spreizend"},
    {u"Dornen", Feldart::Wort, u"dornen stacheln keine"},
    {u"Winter", Feldart::Wort, u"kahl gruen"},
    {u"Vorlaub", Feldart::Wort, u"ja nein"},
    {u"Schau", Feldart::Wort, u"bluete frucht beides"},
    {u"Blatt", Feldart::Blatt}, {u"Blatt2", Feldart::Blatt}, {u"Bluete", Feldart::Bluete}, {u"Bluetenstand", Feldart::Bluete},
    {u"Frucht", Feldart::Frucht}, {u"Fruchtstand", Feldart::Frucht}, {u"Breite", Feldart::Zahl}, {u"Hoehe", Feldart::Zahl},
    {u"Blattlaenge", Feldart::Zahl}, {u"Blattlaenge2", Feldart::Zahl}, {u"Blattstiel", Feldart::Zahl}, {u"Bluetengroesse", Feldart::Zahl},
    {u"Standgroesse", Feldart::Zahl}, {u"Bluetenzahl", Feldart::Zahl}, {u"Fruchtgroesse", Feldart::Zahl}, {u"Blattfarbe", Feldart::Farbe},
    {u"Unterseite", Feldart::Farbe}, {u"Bluetenfarbe", Feldart::Farbe}, {u"Bluetenfarbe2", Feldart::Farbe}, {u"Bluetenfarbe3", Feldart::Farbe},
    {u"Mitte", Feldart::Farbe}, {u"Hochblatt", Feldart::Farbe}, {u"Fruchtfarbe", Feldart::Farbe}, {u"Fruchtfarbe2", Feldart::Farbe},
    {u"Rindenfarbe", Feldart::Farbe}, {u"Zeichnung", Feldart::Zeichnung}};
// clang-format on

constexpr QStringView zeichnungen = u"rand mitte ader haelfte flecken streifen fiederstreifen punkte zone basis spitze";

Rolle rolleVon(const RecSatz &satz, const RecFeld &feld, QStringView wort, Formgruppe gruppe)
{
    static const QStringList worte = rollen.toString().split(u' ');
    const qsizetype r = worte.indexOf(wort);
    if (r < 0)
        satz.falsch(feld.zeile, QStringLiteral("unbekannte Rolle \"%1\"").arg(wort));
    return Rolle(r) == Rolle::Ader && gruppe == Formgruppe::Bluete ? Rolle::Bluetenader : Rolle(r);
}

Formteil teilAus(const RecSatz &satz, const RecFeld &feld, Formgruppe gruppe)
{
    QStringView rest = feld.wert;
    const auto wort = [&] {
        const auto ende = std::ranges::find_if(rest, [](QChar c) { return c.isSpace(); });
        const QStringView erstes = rest.first(ende - rest.begin());
        rest = rest.mid(erstes.size()).trimmed();
        return erstes;
    };
    const auto zahl = [&] {
        bool ok = false;
        const QStringView text = wort();
        const double wert = text.toDouble(&ok);
        if (!ok)
            satz.falsch(feld.zeile, QStringLiteral("keine Zahl: \"%1\"").arg(text));
        return wert;
    };
    Formteil teil;
    teil.art = feld.name == u"Flaeche" ? Formteil::Flaeche : feld.name == u"Linie" ? Formteil::Linie : Formteil::Form;
    if (teil.art == Formteil::Form) {
        teil.form = wort().toString();
        const double x = zahl(), y = zahl(), mass = zahl();
        teil.lage.translate(x, y).rotate(rest.isEmpty() ? 0 : zahl()).scale(mass, mass);
        return teil;
    }
    const bool linie = teil.art == Formteil::Linie;
    teil.rolle = rolleVon(satz, feld, wort(), gruppe);
    teil.breite = linie ? zahl() : 0;
    const auto pfad = pfadAus(rest);
    if (!pfad)
        satz.falsch(feld.zeile, QStringLiteral("der Pfad ist nicht lesbar"));
    teil.pfad = *pfad;
    return teil;
}

} // namespace

const QPainterPath &Formteil::haelfte() const
{
    if (haelfte_.isEmpty() && art == Flaeche && rolle == Rolle::Blatt) {
        QPainterPath rechts;
        rechts.addRect(0, -400, 400, 800);
        haelfte_ = pfad.intersected(rechts);
        haelfte_.closeSubpath(); // a side that is only implied would stay straight when the blade is bent
    }
    return haelfte_;
}

void Formen::form(const RecSatz &satz, Formgruppe gruppe)
{
    Form neu;
    neu.gruppe = gruppe;
    neu.datei = satz.datei;
    neu.zeile = satz.zeile();
    for (const RecFeld &feld : satz.felder) {
        neu.text += (feld.name + u'=' + feld.wert + u'\n').toUtf8();
        if (feld.name == u"Form")
            neu.name = feld.wert;
        else if (feld.name == u"Titel")
            neu.titel = feld.wert;
        else if (feld.name == u"Flaeche" || feld.name == u"Linie" || feld.name == u"Teil")
            neu.teile.push_back(teilAus(satz, feld, gruppe));
        else
            satz.falsch(feld.zeile, QStringLiteral("unbekanntes Feld \"%1\"").arg(feld.name));
    }
    if (neu.name.isEmpty() || neu.titel.isEmpty() || neu.teile.empty())
        satz.falsch(satz.zeile(), QStringLiteral("eine Form hat Form, Titel und etwas zu zeichnen"));
    const auto schluessel = std::pair(gruppe, neu.name);
    if (formen_.contains(schluessel))
        satz.falsch(satz.zeile(), QStringLiteral("Form %1 steht doppelt").arg(neu.name));
    formen_.emplace(schluessel, std::move(neu));
}

void Formen::zeile(const RecSatz &satz)
{
    Formzeile neu;
    for (const RecFeld &feld : satz.felder) {
        if (feld.name == u"Pflanze")
            neu.pflanzen += QString(feld.wert).remove(u'×').simplified();
        else if (feld.name == u"Familie")
            neu.familien += feld.wert;
        else if (feld.name == u"Wort")
            neu.worte.emplace_back(feld.wert.section(u' ', 0, 0), feld.wert.section(u' ', 1));
        else
            neu.felder.emplace(feld.name, feld.wert);
    }
    if (neu.pflanzen.isEmpty() && neu.familien.isEmpty() && neu.worte.empty())
        satz.falsch(satz.zeile(), QStringLiteral("weder Pflanze noch Wort noch Familie"));
    zeilen_.push_back(std::move(neu));
    zeilenquellen_.push_back(satz);
}

/// Rows and parts name forms, words and colours that exist.
void Formen::pruefen() const
{
    for (const auto &[schluessel, f] : formen_)
        for (const Formteil &teil : f.teile)
            if (teil.art == Formteil::Form && teil.form != u"*" && teil.form != u"knospe" && (teil.form == f.name || !form(f.gruppe, teil.form)))
                throw Quellfehler{QStringLiteral("%1:%2: %3 enthält die unbekannte Form %4").arg(f.datei).arg(f.zeile).arg(f.name, teil.form)};
    for (const RecSatz &satz : zeilenquellen_)
        for (const RecFeld &feld : satz.felder) {
            if (feld.name == u"Pflanze" || feld.name == u"Wort" || feld.name == u"Familie")
                continue;
            const auto *f = std::ranges::find(felder, feld.name, [](const auto &bekannt) { return bekannt.name; });
            if (f == std::end(felder))
                satz.falsch(feld.zeile, QStringLiteral("unbekanntes Feld \"%1\"").arg(feld.name));
            const auto formDa = [&](Formgruppe g) { return form(g, feld.wert) != nullptr; };
            const bool gut =
                f->art == Feldart::Wort     ? eines(f->worte, feld.wert)
                : f->art == Feldart::Blatt  ? formDa(Formgruppe::Blatt)
                : f->art == Feldart::Bluete ? feld.wert == u"keine" || formDa(Formgruppe::Bluete)
                : f->art == Feldart::Frucht ? feld.wert == u"keine" || formDa(Formgruppe::Frucht)
                : f->art == Feldart::Farbe  ? farbeVon(feld.wert).isValid()
                : f->art == Feldart::Zahl
                    ? zahlLesen(feld.wert).has_value()
                    : feld.wert == u"keine" || (eines(zeichnungen, feld.wert.section(u' ', 0, 0)) && farbeVon(feld.wert.section(u' ', 1)).isValid());
            if (!gut)
                satz.falsch(feld.zeile, QStringLiteral("%1 kennt \"%2\" nicht").arg(feld.name, feld.wert));
        }
}

Formen Formen::lesen(const std::map<QString, QByteArray> &texte)
{
    Formen formen;
    for (const auto &[datei, text] : texte)
        for (const RecSatz &satz : recLesen(text, datei)) {
            const auto *g = std::ranges::find(gruppen, satz.typ, [](const auto &gruppe) { return gruppe.typ; });
            if (satz.typ == u"Pflanzenform")
                formen.zeile(satz);
            else if (g != std::end(gruppen))
                formen.form(satz, g->gruppe);
            else
                satz.falsch(satz.zeile(), QStringLiteral("unbekannte Satzart \"%1\"").arg(satz.typ));
        }
    formen.pruefen();
    return formen;
}

const Form *Formen::form(Formgruppe gruppe, const QString &name) const
{
    if (const auto eigene = formen_.find({gruppe, name}); eigene != formen_.end())
        return &eigene->second;
    for (const auto g : {Formgruppe::Blatt, Formgruppe::Bluete, Formgruppe::Frucht})
        if (const auto andere = formen_.find({g, name}); andere != formen_.end())
            return &andere->second;
    return nullptr;
}
