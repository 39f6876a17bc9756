#include "Steckbrief.h"

#include "Farben.h"

#include "store/Text.h"

#include <QRegularExpression>

#include <algorithm>
#include <cmath>

namespace {

using Kennzeichen = std::pair<QStringView, QStringView>;
constexpr Kennzeichen topfpflanzen[] = {{u"Blätter", u"BLATTFARB"}, {u"Blüten", u"FARBEN"}, {u"Früchte", u"FRUCHTFARB"}};
constexpr Kennzeichen aepfel[] = {{u"Frucht", u"form_l"},         {u"Stiel", u"st_laenge"},         {u"Berostung", u"rost"},
                                  {u"Deckfarbe", u"df_art"},      {u"Fruchtfleisch", u"fl_farbe"},  {u"Kelchgrube", u"k_grube"},
                                  {u"Relief", u"fruchtrel"},      {u"Deckfarbe", u"deckfarbe"},     {u"Grundfarbe", u"grundfarbe"},
                                  {u"Ausdehnung", u"df_ausdehn"}, {u"Schalenpunkte", u"sch_punkt"}, {u"Querschnitt", u"form_q"}};

constexpr Sammlung alle[] = {
    {u"Topfpfl", u"topfpflanzen", u"", u"FARBEN", u"BLATTFARB", u"FRUCHTFARB", u"", true, topfpflanzen},
    {u"Stauden", u"stauden", u"", u"farben", u"blattfarbe", u"fruchtfarb", u"", false, {}},
    {u"Gehoelze", u"gehoelze", u"", u"bluehfarb", u"laubfarb", u"fruchtfarb", u"groesse", false, {}},
    {u"Apfel", u"apfel", u"=Apfel", u"", u"", u"grundfarbe", u"", false, aepfel, true},
    // clang-format off
    {u"Obst", u"obst", u"DTNAM", u"", u"BLATT", u"FRUFAR", u"", false, {}, false,
     u"GRUNDFARB", u"DECKFARB", u"SCHALE", u"FRUFLEI", u"FRUFOR", u"WUCHS", u"FRUSTAN"},
    // clang-format on
};

// clang-format off
/// What words on the growth of a variety change of its kind: height, width, leaf.
constexpr struct
{
    QStringView wort;
    double hoehe, breite, blatt;
} wuchskraft[] = {
    {u"schwach", 0.82, 1, 1}, {u"stark", 1.15, 1, 1}, {u"schmalwüchsig", 1, 0.8, 1}, {u"breitwüchsig", 1, 1.2, 1},
    {u"steil aufrecht", 1.04, 0.82, 1}, {u"überhängend", 0.94, 1.14, 1}, {u"kompakt", 0.92, 0.95, 1}, {u"sparrig", 1, 1.1, 1},
    {u"buschförmig", 0.96, 1.06, 1}, {u"kleinkronig", 0.94, 0.9, 1}, {u"großkronig", 1.06, 1.08, 1}, {u"locker aufgebaut", 1, 1.05, 1},
    {u"dicht aufgebaut", 0.98, 0.97, 1}, {u"breitkegelförmig", 1, 1.08, 1}, {u"pyramidal", 1.05, 0.9, 1}, {u"kugelförmig", 0.97, 1.02, 1},
    {u"groß", 1, 1, 1.2}, {u"klein", 1, 1, 0.8}};
// clang-format on

/// Names of which a row may speak, the most particular first: the whole name, the species, the genus, the kind.
QStringList namen(const Datensatz &pflanze, const Sammlung &sammlung)
{
    QString name = pflanze.name();
    name.remove(u'×');
    const QStringList worte = name.simplified().split(u' ');
    QStringList liste{worte.join(u' ')};
    if (worte.size() > 2)
        liste += worte.mid(0, 2).join(u' ');
    liste += worte.front();
    liste += worte.front().section(u'-', 0, 0);
    if (!sammlung.art.isEmpty())
        liste += sammlung.art.startsWith(u'=') ? sammlung.art.mid(1).toString() : pflanze.text(sammlung.art);
    return liste;
}

bool wortTrifft(const Datensatz &pflanze, const QString &spalte, const QString &text)
{
    const QStringList worte = pflanze.worte(spalte);
    return worte.isEmpty() ? pflanze.text(spalte).contains(text, Qt::CaseInsensitive) : worte.contains(text);
}

/// Rank of a row for a plant: the smaller, the more particular; negative where it does not hold.
int rang(const Formzeile &zeile, const Datensatz &pflanze, const QStringList &namen)
{
    for (int i = 0; i < namen.size(); ++i)
        if (zeile.pflanzen.contains(namen[i], Qt::CaseInsensitive))
            return i;
    for (const auto &[spalte, text] : zeile.worte)
        if (wortTrifft(pflanze, spalte, text))
            return int(namen.size());
    return zeile.familien.contains(pflanze.familie()) ? int(namen.size()) + 1 : -1;
}

} // namespace

std::span<const Sammlung> sammlungen()
{
    return alle;
}

Steckbrief::Steckbrief(const Datensatz &p, const Sammlung &s, const Formen &formen, const QStringList &bekannte)
    : pflanze(p), sammlung(s), merkmale(bekannte.isEmpty() ? kennzeichen() : bekannte)
{
    const QStringList bekannt = namen(p, s);
    std::vector<std::pair<int, const Formzeile *>> treffer;
    for (const Formzeile &zeile : formen.zeilen())
        if (const int r = rang(zeile, p, bekannt); r >= 0)
            treffer.emplace_back(r, &zeile);
    std::ranges::stable_sort(treffer, {}, [](const auto &t) { return t.first; });
    for (const auto &[r, zeile] : treffer) {
        const bool zeichnungFehlt = zeichnungen_.isEmpty();
        for (const auto &[name, wert] : zeile->felder)
            if (name == u"Zeichnung" && zeichnungFehlt)
                zeichnungen_ += wert;
            else if (!felder_.contains(name))
                felder_.insert(name, wert);
    }
    formenWaehlen(formen);
    masseLesen();
    laubfarben();
    bluetenfarben();
    fruchtfarben();
}

QColor Steckbrief::farbe(const char *name, const QColor &sonst) const
{
    const QColor f = farbeVon(feld(name));
    return f.isValid() ? f : sonst;
}

std::vector<QColor> Steckbrief::wortfarben(QStringView spalte) const
{
    std::vector<QColor> farben;
    for (const QString &wort : pflanze.worte(spalte))
        if (const QColor f = farbeVon(wort); f.isValid())
            farben.push_back(f);
    return farben;
}

QStringList Steckbrief::kennzeichen() const
{
    QStringList saetze;
    for (const auto &[titel, spalte] : sammlung.kennzeichen)
        if (const QStringList worte = pflanze.worte(spalte); !worte.isEmpty() && saetze.size() < 5)
            saetze += titel.toString() + QStringLiteral(": ") + worte.mid(0, 3).join(QStringLiteral(", "));
    return saetze;
}

void Steckbrief::formenWaehlen(const Formen &formen)
{
    wuchs = feld("Wuchs", "aufrecht");
    krone = feld("Krone", "rund");
    stellung = feld("Blattstellung", "wechselstaendig");
    sitz = feld("Bluetensitz", "endstaendig");
    rinde = feld("Rinde", "glatt");
    knospe = feld("Knospe", "eifoermig");
    dornen = feld("Dornen", "keine");
    haftorgan = feld("Haftorgan");
    schau = feld("Schau", !sammlung.art.isEmpty() ? "frucht" : sammlung.imTopf ? "beides" : "bluete");
    winterkahl = feld("Winter", "gruen") == u"kahl" && verholzt();
    haftform = formen.form(Formgruppe::Ding, haftorgan);
    blatt = formen.form(Formgruppe::Blatt, feld("Blatt", "elliptisch"));
    blatt2 = formen.form(Formgruppe::Blatt, feld("Blatt2"));
    bluete = formen.form(Formgruppe::Bluete, feld("Bluete", "fuenfzaehlig-rund"));
    if (!blatt || (!bluete && feld("Bluete") != u"keine"))
        throw Quellfehler{QStringLiteral("data/formen: die Formen elliptisch und fuenfzaehlig-rund fehlen")};
    stand = formen.form(Formgruppe::Bluete, feld("Bluetenstand"));
    frucht = formen.form(Formgruppe::Frucht, feld("Frucht"));
    fruchtschnitt = formen.form(Formgruppe::Frucht, feld("Frucht") + QStringLiteral("-schnitt"));
    fruchtstand = formen.form(Formgruppe::Frucht, feld("Fruchtstand"));
    // A record that tells no colour tells of a plant without flowers, whatever its genus has elsewhere: the ivy in a pot.
    const bool farbig =
        sammlung.bluetenfarbe.isEmpty() ? felder_.contains(QStringLiteral("Bluetenfarbe")) : !pflanze.worte(sammlung.bluetenfarbe).isEmpty();
    blueht = farbig && bluete && feld("Bluete") != u"keine";
    fruchtet = frucht && (felder_.contains(QStringLiteral("Fruchtfarbe")) || !pflanze.worte(sammlung.fruchtfarbe).isEmpty());
    vorLaub = winterkahl && zeigtBlueten() && feld("Vorlaub", "nein") == u"ja";
}

void Steckbrief::masseLesen()
{
    double h = pflanze.zahl(u"MAXHOEHE").value_or(0);
    kleinste = pflanze.zahl(u"MINHOEHE").value_or(0);
    // A size group: "mittelgroßer Baum (12/15-20 m)".
    static const QRegularExpression spanne(QStringLiteral("\\(([\\d,]+)(?:/[\\d,]+)?-(?:[\\d,]+/)?([\\d,]+) m\\)"));
    std::vector<std::pair<double, double>> gruppen; // upper and lower end
    const QStringList groessen = pflanze.worte(sammlung.groesse), straeucher = groessen.filter(QStringLiteral("strauch"), Qt::CaseInsensitive);
    for (const QString &wort : wuchs.endsWith(u"strauch") && !straeucher.isEmpty() ? straeucher : groessen)
        if (const auto m = spanne.match(wort); m.hasMatch())
            gruppen.emplace_back(*zahlLesen(m.captured(2)), *zahlLesen(m.captured(1)));
    std::ranges::sort(gruppen);
    bool mehrere = false;
    for (const auto &[bis, von] : gruppen)
        if (h < bis * 0.8) {
            // Of several groups it reaches into the largest.
            kleinste = mehrere ? std::min(kleinste, von) : von;
            h = std::max(h, von + (mehrere ? 0.12 : 0.6) * (bis - von));
            mehrere = true;
        }
    // Climbers reach what they find, and are put among the small for their stems alone.
    if (const double gesagt = zahl("Hoehe", h); ist(u"kletternd") && !sammlung.imTopf && gesagt > h)
        h = kleinste = gesagt;
    bluetenhoehe = pflanze.zahl(u"BLMAXH").value_or(0);
    hoehe = h > 0 ? h : bluetenhoehe > 0 ? bluetenhoehe * 0.7 : zahl("Hoehe", verholzt() ? 2.5 : 0.4);
    if (kleinste <= 0 || kleinste > hoehe)
        kleinste = hoehe;
    // Flowers on scapes: a height that says nothing of them is that of the whole plant, and the leaves stay below.
    const bool mitSchaft = eines(u"rosette horst zwiebel knolle zisterne sukkulentrosette", wuchs);
    const double ganze = hoehe;
    const bool ungesagt = bluetenhoehe <= 0 || (sammlung.imTopf && bluetenhoehe <= hoehe);
    if (blueht && ungesagt && mitSchaft && sitz != u"im-laub") {
        const double laub = zahl("Blattlaenge", hoehe * 72) / 100 * (1 + zahl("Blattstiel", 0));
        bluetenhoehe = hoehe;
        hoehe = std::clamp(laub, hoehe * 0.35, hoehe * 0.72);
    }
    bluetenhoehe = blueht ? std::clamp(bluetenhoehe, hoehe * 0.75, hoehe * 4) : hoehe;
    const double durchmesser = pflanze.zahl(u"maxdurchm").value_or(0);
    const bool flach = eines(u"teppich polster schwimmblatt", wuchs);
    const bool schmal = krone == u"saeule" || eines(u"eintriebig rohr zwiebel nadelbaum saeulenkaktus", wuchs);
    breite = zahl("Breite", durchmesser > 0 ? std::clamp(durchmesser / hoehe, 0.25, 3.5) : flach ? 2.6 : schmal ? 0.45 : 0.9);
    breite *= ganze / hoehe;
    double blattfaktor = 1;
    bool gerechnet = mehrere;
    for (const QStringView spalte : {sammlung.kraft, sammlung.fruchtform, sammlung.laubfarbe})
        for (const QString &wort : pflanze.worte(spalte))
            for (const auto &w : wuchskraft)
                if (w.wort == wort)
                    hoehe *= w.hoehe, breite *= w.breite, blattfaktor *= w.blatt, gerechnet = true;
    if (gerechnet) // nobody measures a tree to the centimetre
        hoehe = hoehe < 1 ? std::max(0.05, std::round(hoehe * 20) / 20) : std::round(hoehe * 10) / 10;
    blattlaenge =
        blattfaktor
        * zahl("Blattlaenge", ist(u"zwiebel") || ist(u"gras") ? hoehe * 75 : std::clamp(hoehe * (verholzt() ? 4 : 22), 1.2, verholzt() ? 9.0 : 28.0));
    blattstiel = zahl("Blattstiel", 0.25);
    blattlaenge2 = zahl("Blattlaenge2", 0);
    bluetengroesse = zahl("Bluetengroesse", std::clamp(hoehe * 7, 0.8, 6.0));
    standgroesse = zahl("Standgroesse", std::clamp(hoehe * 25, 2.0, 22.0));
    fruchtgroesse = zahl("Fruchtgroesse", 2);
    bluetenzahl = int(zahl("Bluetenzahl", 0));
}

void Steckbrief::laubfarben()
{
    QColor grund = farbe("Blattfarbe");
    std::vector<QColor> gruene, bunte;
    const QStringList worte = pflanze.worte(sammlung.laubfarbe);
    for (const QString &wort : worte)
        if (const QColor f = farbeVon(wort); f.isValid())
            (wort.endsWith(u"grün") && wort != u"weißgrün" && wort != u"rotgrün" && wort != u"gelbgrün" ? gruene : bunte).push_back(f);
    if (!grund.isValid())
        grund = gruene.size() > 1 ? gemischt(gruene[0], gruene[1], 0.5) : !gruene.empty() ? gruene[0] : !bunte.empty() ? bunte[0] : farbeVon(u"grün");
    Anstrich &a = anstrich;
    a[Rolle::Blatt] = grund;
    const QColor zweite = !gruene.empty() && !bunte.empty() ? bunte[0] : bunte.size() > 1 ? bunte[1] : heller(grund, 0.6);
    for (const QString &z : zeichnungen_)
        a.zeichnung.push_back({z.section(u' ', 0, 0), farbeVon(z.section(u' ', 1))});
    if (zeichnungen_.isEmpty())
        for (const auto &[wort, wo] : {std::pair(u"gefleckt", u"flecken"), std::pair(u"gestreift", u"streifen"), std::pair(u"panaschiert", u"rand")})
            if (a.zeichnung.empty() && worte.contains(QStringView(wort)))
                a.zeichnung.push_back({QString::fromUtf16(wo), zweite});
    std::erase_if(a.zeichnung, [](const auto &z) { return z.wo == u"keine"; });
    const bool hell = grund.lightness() > 150;
    a[Rolle::Blatt2] = gemischt(grund, QColor(0xA8, 0xC0, 0x60), 0.35);
    a[Rolle::Stiel] = gemischt(grund, ::farbe::stiel, 0.6);
    a[Rolle::Rippe] = hell ? dunkler(grund, 0.25) : heller(grund, 0.48);
    a[Rolle::Ader] = hell ? dunkler(grund, 0.2) : heller(grund, 0.33);
    const auto rand = std::ranges::find(a.zeichnung, QStringLiteral("rand"), &Anstrich::Zeichnung::wo);
    a[Rolle::Rand] = rand == a.zeichnung.end() ? zweite : rand->farbe;
    a[Rolle::Faden] = gemischt(grund, QColor(0xE8, 0xE4, 0xC8), 0.5);
    unterseite = farbe("Unterseite");
}

void Steckbrief::bluetenfarben()
{
    const std::vector<QColor> farben = wortfarben(sammlung.bluetenfarbe);
    QColor haupt = farbe("Bluetenfarbe");
    // Of several colours one that is not white shows the flower best.
    if (!haupt.isValid() && !farben.empty()) {
        const auto kraeftig = std::ranges::find_if(farben, [](const QColor &f) { return !blass(f); });
        haupt = kraeftig == farben.end() ? farben.front() : *kraeftig;
    }
    if (!haupt.isValid())
        haupt = farbeVon(u"creme");
    // A colour that looks like one that is shown already tells nothing.
    std::vector<QColor> gezeigt{haupt};
    for (const QColor &f : farben)
        if (std::ranges::none_of(gezeigt, [&](const QColor &g) {
                return std::abs(f.red() - g.red()) + std::abs(f.green() - g.green()) + std::abs(f.blue() - g.blue()) < 75;
            }))
            gezeigt.push_back(f);
    weitereFarben.assign(gezeigt.begin() + 1, gezeigt.end());
    Anstrich &a = anstrich;
    a[Rolle::Bluete] = haupt;
    a[Rolle::Bluete2] = farbe("Bluetenfarbe2", blass(haupt) ? gemischt(haupt, QColor(0xC8, 0xCE, 0xB4), 0.45) : dunkler(haupt, 0.22));
    a[Rolle::Bluete3] = farbe("Bluetenfarbe3", blass(haupt) ? QColor(0xDF, 0xD9, 0x7A) : heller(haupt, 0.6));
    a[Rolle::Mitte] = farbe("Mitte", QColor(0xE0, 0xA9, 0x2C));
    a[Rolle::Hochblatt] = farbe("Hochblatt", haupt);
    a[Rolle::Staub] = ::farbe::staub;
    a[Rolle::Narbe] = QColor(0xC9, 0xCF, 0x7A);
    a[Rolle::Kelch] = QColor(0x6F, 0x93, 0x4C);
    a[Rolle::Bluetenader] = dunkler(haupt, blass(haupt) ? 0.2 : 0.3);
    a[Rolle::Schatten] = QColor(30, 25, 45, 48);
    a[Rolle::Licht] = QColor(255, 255, 250, 80);
}

void Steckbrief::fruchtfarben()
{
    std::vector<QColor> farben = wortfarben(sammlung.grundfarbe);
    const auto ganz = wortfarben(sammlung.fruchtfarbe), deck = wortfarben(sammlung.deckfarbe), fleisch = wortfarben(sammlung.fruchtfleisch);
    if (farben.empty() || (!ganz.empty() && deck.empty()))
        farben = ganz;
    if (!deck.empty())
        deckfarbe = deck.back();
    Anstrich &a = anstrich;
    a[Rolle::Haut] = farbe("Fruchtfarbe", farben.empty() ? farbeVon(u"braun") : farben.front());
    a[Rolle::Haut2] = farbe("Fruchtfarbe2", farben.size() > 1 ? farben[1] : dunkler(a[Rolle::Haut], 0.2));
    a[Rolle::Fleisch] = fleisch.empty() ? QColor(0xF3, 0xE9, 0xC6) : fleisch.front();
    a[Rolle::Kern] = QColor(0x6B, 0x3F, 0x22);
    a[Rolle::Stein] = QColor(0xA8, 0x7C, 0x50);
    a[Rolle::Samen] = QColor(0x7B, 0x58, 0x35);
    a[Rolle::Huelle] = gemischt(a[Rolle::Haut], QColor(0x8C, 0x94, 0x4E), 0.6);
    a[Rolle::Haar] = QColor(0xC8, 0xB0, 0x84);
    rindenfarbe = farbe("Rindenfarbe", rinde == u"weiss" ? QColor(0xE9, 0xE6, 0xDC) : ::farbe::rinde);
}

QByteArray Steckbrief::aussehen() const
{
    QStringList worte{wuchs, krone, stellung, sitz, rinde, knospe, dornen, schau, haftorgan};
    for (const double m :
         {hoehe, bluetenhoehe, breite, blattlaenge, blattstiel, bluetengroesse, standgroesse, fruchtgroesse, double(bluetenzahl), blattlaenge2})
        worte += QString::number(m, 'f', 2);
    for (const Form *f :
         {blatt, blatt2, blueht ? bluete : nullptr, blueht ? stand : nullptr, fruchtet ? frucht : nullptr, fruchtet ? fruchtstand : nullptr})
        worte += f ? f->name : QStringLiteral("-");
    for (const QColor &f : anstrich.farben)
        worte += f.name();
    for (const QColor &f : weitereFarben)
        worte += f.name();
    for (const auto &z : anstrich.zeichnung)
        worte += z.wo + z.farbe.name();
    for (const auto &[titel, spalte] : sammlung.kennzeichen)
        worte += pflanze.worte(spalte);
    for (const QStringView spalte : {sammlung.fruchtform, sammlung.schale, sammlung.deckfarbe, sammlung.fruchtstand})
        worte += pflanze.worte(spalte);
    worte << unterseite.name() << rindenfarbe.name() << QString::number(winterkahl) << QString::number(vorLaub) << QString::number(blueht)
          << QString::number(fruchtet);
    return worte.join(u'|').toUtf8();
}
