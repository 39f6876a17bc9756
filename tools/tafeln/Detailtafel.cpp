#include "Tafeln.h"

#include "Farben.h"
#include "Pflanzenbild.h"
#include "Tafelinhalt.h"
#include "Zufall.h"

#include <QRegularExpression>

#include <algorithm>
#include <cmath>

namespace {

constexpr double teileOben = 50, teileUnten = 1050;
constexpr double textbreite = 284, textgroesse = 21, abstand = 16;
constexpr double titelhoehe = 84; ///< below a drawing: title in two lines and bar

/// A part of the plant in its place, with the marks that point to it.
struct Zelle
{
    Organ organ;
    QStringList merkmale;
    QRectF platz = {};
};

double merkmalhoehe(const Zelle &z)
{
    double h = 0;
    for (const QString &m : z.merkmale)
        h += Tafel::absatzhoehe(textbreite, m, textgroesse) + abstand;
    return h;
}

/// A part as it was painted on its own ground, in stored pixels.
struct Organbild
{
    QImage bild;
    double pixelJeCm = 0; ///< 0: no bar
};

QTransform eingepasst(const QRectF &rahmen, const QRectF &platz, double drehung)
{
    const QRectF r = QTransform().rotate(drehung).mapRect(rahmen);
    const double f = std::min(platz.width() / r.width(), platz.height() / r.height());
    const QPointF mitte = platz.center() - r.center() * f;
    return QTransform().translate(mitte.x(), mitte.y()).scale(f, f).rotate(drehung);
}

double pixelJeEinheit(const QTransform &t)
{
    return std::sqrt(std::abs(t.determinant()));
}

double blattMalen(QPainter &p, const QRectF &platz, const Steckbrief &s, const Formen &formen, const Form &form, bool unterseite, double laenge)
{
    const Motiv motiv(formen, form);
    QRectF r = motiv.rahmen();
    if (unterseite) // seen from below it is its own mirror image
        r = QRectF(-r.right(), r.top(), r.width(), r.height());
    const double stiellaenge = std::min(60.0, s.blattstiel * 100) * (r.height() > 40 ? 1 : 0.4);
    const bool gestielt = stiellaenge > 2 && r.bottom() < 30;
    if (gestielt)
        r.setBottom(std::max(r.bottom(), stiellaenge));
    const QTransform t = eingepasst(r, platz, r.height() > 2.4 * r.width() && platz.width() > platz.height() * 0.7 ? 52 : unterseite ? -8 : 8);
    Anstrich a = s.anstrich;
    if (unterseite) {
        a[Rolle::Blatt] = s.unterseite;
        a[Rolle::Blatt2] = heller(s.unterseite, 0.1);
        a[Rolle::Ader] = a[Rolle::Rippe] = dunkler(s.unterseite, 0.25);
        a.zeichnung.clear();
    }
    if (gestielt) {
        const Kurve k{t.map(QPointF(3, stiellaenge)), t.map(QPointF(4, stiellaenge * 0.6)), t.map(QPointF(0, stiellaenge * 0.3)),
                      t.map(QPointF(0, -1))};
        stiel(p, k, std::max(3.0, pixelJeEinheit(t) * 2.6), std::max(2.5, pixelJeEinheit(t) * 1.9), s.anstrich[Rolle::Stiel]);
    }
    motiv.malen(p, a, unterseite ? QTransform::fromScale(-1, 1) * t : t);
    return laenge > 0 ? pixelJeEinheit(t) * 100 / laenge : 0;
}

double blueteMalen(QPainter &p, QRectF platz, const Steckbrief &s, const Formen &formen)
{
    const Motiv motiv(formen, *s.bluete);
    const size_t weitere = std::min<size_t>(5, s.weitereFarben.size());
    if (weitere)
        platz.setBottom(platz.bottom() - 64);
    const QTransform t = eingepasst(motiv.rahmen(), platz, 0);
    motiv.malen(p, s.anstrich, t);
    for (size_t i = 0; i < weitere; ++i) {
        Anstrich a = s.anstrich;
        a[Rolle::Bluete] = a[Rolle::Hochblatt] = s.weitereFarben[i];
        a[Rolle::Bluete2] = dunkler(s.weitereFarben[i], blass(s.weitereFarben[i]) ? 0.1 : 0.22);
        a[Rolle::Bluetenader] = dunkler(s.weitereFarben[i], 0.25);
        const double x = platz.center().x() + (double(i) - (double(weitere) - 1) / 2) * 66;
        motiv.malen(p, a, eingepasst(motiv.rahmen(), QRectF(x - 27, platz.bottom() + 8, 54, 54), 0));
    }
    return pixelJeEinheit(t) * motiv.blueteneinheiten() / std::max(0.1, s.bluetengroesse);
}

double fruchtMalen(QPainter &p, const QRectF &platz, const Steckbrief &s, const Formen &formen, bool schnitt)
{
    if (s.sammlung.alsKoerper)
        return fruchtkoerperMalen(p, platz, s.pflanze, schnitt);
    const Form *form = schnitt ? s.fruchtschnitt : s.fruchtstand ? s.fruchtstand : s.frucht;
    const Motiv motiv = s.geformt(Motiv(formen, *form), schnitt);
    const QTransform t = eingepasst(motiv.rahmen(), platz, 0);
    motiv.malen(p, s.anstrich, t);
    if (!schnitt)
        fruchthautMalen(p, t.map(motiv.flaeche(Rolle::Haut)), s);
    return pixelJeEinheit(t) * 100 / std::max(0.1, s.fruchtgroesse * (s.fruchtstand && !schnitt ? 2.2 : 1));
}

double triebMalen(QPainter &p, const QRectF &platz, const Steckbrief &s, const Formen &formen)
{
    const double pixelJeMeter = 9000 / s.blattlaenge;
    Pflanzenbild bild(s, formen, pixelJeMeter, false, u"trieb");
    const QTransform t = eingepasst(bild.kasten(), platz, 0);
    p.setTransform(t, true);
    bild.malen(p);
    return pixelJeEinheit(t) * pixelJeMeter / 100;
}

Organbild organMalen(const Zelle &z, const QSize &groesse, const Steckbrief &s, const Formen &formen)
{
    Organbild o{QImage(groesse * Tafel::bildmass, QImage::Format_ARGB32_Premultiplied)};
    o.bild.fill(Qt::transparent);
    QPainter p(&o.bild);
    p.setRenderHint(QPainter::Antialiasing);
    p.scale(Tafel::bildmass, Tafel::bildmass);
    const QRectF platz = QRectF(QPointF(), QSizeF(groesse)).adjusted(8, 6, -8, -6);
    switch (z.organ) {
    case Organ::Bluete: o.pixelJeCm = blueteMalen(p, platz, s, formen); break;
    case Organ::Stand: {
        const Motiv motiv(formen, *s.stand, s.bluete);
        const QTransform t = eingepasst(motiv.rahmen(), platz, 0);
        motiv.malen(p, s.anstrich, t);
        o.pixelJeCm = pixelJeEinheit(t) * motiv.rahmen().height() / std::max(0.1, s.standgroesse);
        break;
    }
    case Organ::Frucht:
    case Organ::Schnitt: o.pixelJeCm = fruchtMalen(p, platz, s, formen, z.organ == Organ::Schnitt); break;
    case Organ::Blatt:
    case Organ::Unterseite: o.pixelJeCm = blattMalen(p, platz, s, formen, *s.blatt, z.organ == Organ::Unterseite, s.blattlaenge); break;
    case Organ::Blatt2: o.pixelJeCm = blattMalen(p, platz, s, formen, *s.blatt2, false, s.blattlaenge2); break;
    case Organ::Zweig:
        if (s.winterkahl)
            zweigMalen(p, platz, s, formen);
        else
            o.pixelJeCm = triebMalen(p, platz, s, formen);
        break;
    case Organ::Haftorgan: haftorganMalen(p, platz, s, formen); break;
    case Organ::Rinde: rindeMalen(p, platz, s); break;
    }
    return o;
}

constexpr int sichtbar = 8, deckend = 111; ///< alpha

/// First and last place of a row with at least this alpha; the first lies behind the last where there is none.
std::pair<int, int> gemalt(const QImage &bild, int y, int alpha)
{
    const auto *zeile = reinterpret_cast<const QRgb *>(bild.constScanLine(y));
    int von = 0, bis = bild.width() - 1;
    while (von <= bis && qAlpha(zeile[von]) < alpha)
        ++von;
    while (bis > von && qAlpha(zeile[bis]) < alpha)
        --bis;
    return {von, bis};
}

/// Box of what is painted.
QRect tinte(const QImage &bild)
{
    QRect r;
    for (int y = 0; y < bild.height(); ++y)
        if (const auto [von, bis] = gemalt(bild, y, sichtbar); von <= bis)
            r |= QRect(von, y, bis - von + 1, 1);
    return r;
}

/// Rows of a drawing at which lines may end: of its stalk, of its body, of the calyx end of a body.
struct Reihen
{
    std::vector<int> stiel, leib, kelch;
    explicit Reihen(const QImage &bild)
    {
        const QRect r = tinte(bild);
        std::vector<int> weite;
        for (int y = r.top(); y <= r.bottom(); ++y) {
            const auto [von, bis] = gemalt(bild, y, deckend);
            weite.push_back(bis - von + 1);
        }
        const double breiteste = weite.empty() ? 0 : std::ranges::max(weite);
        for (size_t i = 2; i + 2 < weite.size(); ++i)
            if (weite[i] > 0)
                (weite[i] > breiteste * 0.3 ? leib : stiel).push_back(r.top() + int(i));
        kelch.assign(leib.end() - qsizetype(leib.size() / 9), leib.end());
    }
};

/// Painted place of a row, a little inside of its left or right end.
int treffer(const QImage &bild, int y, bool vonLinks)
{
    const auto [von, bis] = gemalt(bild, y, deckend);
    const int schritt = vonLinks ? 1 : -1;
    int x = vonLinks ? von : bis;
    for (int i = 0; i < 9 && x + schritt >= von && x + schritt <= bis && qAlpha(bild.pixel(x + schritt, y)) >= deckend; ++i)
        x += schritt;
    return x;
}

void merkmaleSetzen(Tafel &t, const Zelle &z, const QImage &bild, const QRectF &feld, bool links, Pflanzenart art, int nummer)
{
    if (z.merkmale.isEmpty())
        return;
    const Reihen reihen(bild);
    int letzte = -100;
    std::vector<QLineF> gezogen;
    const double hoehe = merkmalhoehe(z) - abstand;
    double y = std::clamp(feld.center().y() - hoehe / 2, feld.top(), std::max(feld.top(), feld.bottom() - hoehe));
    const double x = links ? Tafel::rand + 6 : Tafel::breite - Tafel::rand - 6 - textbreite;
    // Texts stand in the order of what they point at: lines never cross.
    const bool stielOben = z.organ == Organ::Frucht;
    const auto rang = [&](const QString &m) {
        return nenntStiel(m, z.organ) && !reihen.stiel.empty() ? (stielOben ? 0 : 3) : stielOben && m.contains(u"kelch", Qt::CaseInsensitive) ? 2 : 1;
    };
    QStringList merkmale = z.merkmale;
    std::ranges::stable_sort(merkmale, {}, rang);
    const double amLeib = double(std::ranges::count(merkmale, 1, rang));
    double leibzahl = 0;
    for (const QString &m : merkmale) {
        const double h = Tafel::absatzhoehe(textbreite, m, textgroesse);
        const QRectF kasten = t.absatz(QRectF(x, y, textbreite, h), m, textgroesse, links ? Qt::AlignRight : Qt::AlignLeft);
        y += h + abstand;
        const int stelle = rang(m);
        if (stelle == 1 && !organVon(m, {z.organ}, art))
            continue; // a word on the whole plant
        const std::vector<int> &gute = stelle == 1 ? reihen.leib : stelle == 2 ? reihen.kelch : reihen.stiel;
        const double teil = stelle == 1 ? 0.1 + 0.8 * (leibzahl++ + 0.5) / amLeib : 0.5;
        auto reihe = gute.begin() + qsizetype(double(gute.size()) * teil);
        const QPointF von(links ? kasten.right() + 7 : kasten.left() - 7, kasten.center().y());
        const auto linie = [&] { return QLineF(von, feld.topLeft() + QPointF(treffer(bild, *reihe, links), *reihe) / Tafel::bildmass); };
        const auto frei = [&] { return *reihe > letzte + 3 && std::ranges::none_of(gezogen, [&](const QLineF &l) { return kreuzt(l, linie()); }); };
        while (reihe != gute.end() && !frei())
            ++reihe;
        if (reihe == gute.end())
            continue;
        letzte = *reihe;
        gezogen.push_back(linie());
        t.zeiger(gezogen.back(), nummer);
    }
}

/// Where marks stand that speak of no part: of a variety beside the fruit, else beside the leaf.
Organ hauptorgan(const Steckbrief &s)
{
    return !s.sammlung.art.isEmpty() && s.fruchtet ? Organ::Frucht : Organ::Blatt;
}

/// Two columns of about equal length, the flower and its like on the left.
std::array<std::vector<Zelle>, 2> spalten(const Steckbrief &s)
{
    const std::vector<Organ> alle = organe(s);
    std::array<std::vector<Zelle>, 2> sp;
    for (const Organ o : alle)
        sp[o < Organ::Blatt && (s.sammlung.art.isEmpty() || o != Organ::Bluete) ? 0 : 1].push_back({o, {}});
    while (sp[0].size() > sp[1].size() + 1) {
        sp[1].push_back(sp[0].back());
        sp[0].pop_back();
    }
    while (sp[1].size() > sp[0].size() + 1 || (sp[0].empty() && sp[1].size() > 1)) {
        sp[0].push_back(sp[1].back());
        sp[1].pop_back();
    }
    for (const QString &m : s.merkmale)
        for (const Organ gemeint = organVon(m, alle, pflanzenart(s)).value_or(hauptorgan(s)); auto &spalte : sp)
            for (Zelle &z : spalte)
                if (z.organ == gemeint)
                    z.merkmale += m;
    return sp;
}

/// What a drawing counts for: of a variety the fruit comes first.
double gewicht(const Steckbrief &s, Organ organ)
{
    return !s.sammlung.art.isEmpty() && (organ == Organ::Frucht || organ == Organ::Schnitt) ? 1.6 : 1;
}

/// Heights by their weight, but at least what their texts need.
void zeilenTeilen(std::vector<Zelle> &spalte, const Steckbrief &s, double x, double breite)
{
    std::vector<double> noetig, hoehen;
    double gewichte = 0, fehlt = 0, frei = 0;
    for (const Zelle &z : spalte)
        gewichte += gewicht(s, z.organ);
    for (const Zelle &z : spalte) {
        noetig.push_back(merkmalhoehe(z) + titelhoehe + 10);
        hoehen.push_back((teileUnten - teileOben) * gewicht(s, z.organ) / gewichte);
        fehlt += std::max(0.0, noetig.back() - hoehen.back());
        frei += std::max(0.0, hoehen.back() - noetig.back());
    }
    double y = teileOben;
    for (size_t i = 0; i < spalte.size(); ++i) {
        const double h = noetig[i] > hoehen[i] ? noetig[i] : hoehen[i] - fehlt * (hoehen[i] - noetig[i]) / std::max(1.0, frei);
        spalte[i].platz = QRectF(x, y, breite, h);
        y += h;
    }
}

/// A title that stands in two lines: what comes last is left out.
QString gekuerzt(QString titel, double breite)
{
    const double zweiZeilen = Tafel::absatzhoehe(breite, QStringLiteral("M\nM"), 18) + 1;
    while (Tafel::absatzhoehe(breite, titel, 18) > zweiZeilen && titel.contains(QRegularExpression(QStringLiteral("[,; ]"))))
        titel = titel.left(titel.lastIndexOf(QRegularExpression(QStringLiteral("[,; ]")))).trimmed();
    return titel;
}

} // namespace

void detailMalen(Tafel &t, const Steckbrief &s, const Formen &formen)
{
    auto sp = spalten(s);
    const auto beschriftet = [](const std::vector<Zelle> &spalte) {
        return std::ranges::any_of(spalte, [](const Zelle &z) { return !z.merkmale.isEmpty(); });
    };
    const double randLinks = beschriftet(sp[0]) ? Tafel::rand + textbreite + 40 : Tafel::rand + 20;
    const double randRechts = beschriftet(sp[1]) ? Tafel::breite - Tafel::rand - textbreite - 40 : Tafel::breite - Tafel::rand - 20;
    const double mitte = sp[0].empty() ? randLinks : (randLinks + randRechts) / 2;
    int nummer = 0;
    for (int seite = 0; seite < 2; ++seite) {
        if (sp[size_t(seite)].empty())
            continue;
        const double x = seite ? mitte + (sp[0].empty() ? 0 : 12) : randLinks, bis = seite ? randRechts : mitte - 12;
        zeilenTeilen(sp[size_t(seite)], s, x, bis - x);
        for (const Zelle &z : sp[size_t(seite)]) {
            // Its corner lies on a stored pixel.
            constexpr int raster = Tafel::raster;
            QRect feld = z.platz.adjusted(0, 4, 0, -titelhoehe - 6).toRect();
            feld.setTopLeft({(feld.left() + raster - 1) / raster * raster, (feld.top() + raster - 1) / raster * raster});
            feld.setSize({feld.width() / raster * raster, feld.height() / raster * raster});
            const Organbild o = organMalen(z, feld.size(), s, formen);
            t.maler().drawImage(QRectF(feld), o.bild);
            const QRect ink = tinte(o.bild);
            const double mass = 1 / Tafel::bildmass;
            t.aufriss.bild(QRectF(QPointF(feld.topLeft()) + QPointF(ink.topLeft()) * mass, QSizeF(ink.size()) * mass), nummer);
            double y = feld.bottom() + 12;
            const QString titel = gekuerzt(organtitel(s, z.organ), bis - x - 8);
            y += t.absatz(QRectF(x + 4, y, bis - x - 8, 46), titel, 18, Qt::AlignHCenter).height() + 14;
            if (o.pixelJeCm > 0)
                t.massstab({z.platz.center().x() - 62, y}, o.pixelJeCm);
            merkmaleSetzen(t, z, o.bild, feld, seite == 0, pflanzenart(s), nummer);
            ++nummer;
        }
    }
}
