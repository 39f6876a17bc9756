#include "Motiv.h"

#include "Farben.h"
#include "Zufall.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr int groessteTiefe = 5;
constexpr double kleinePixel = 40, grob = 26, fein = 70; ///< sizes in pixels from which a form is drawn exactly, is shaded, is worked out

QColor mitTon(const QColor &f, double ton)
{
    return ton > 0 ? gemischt(f, QColor(255, 255, 225, f.alpha()), ton) : ton < 0 ? gemischt(f, QColor(20, 40, 40, f.alpha()), -ton) : f;
}

QPen stift(const QColor &f, double breite)
{
    return QPen(f, breite, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin);
}

QPen umrissstift(const QColor &f, double pixel)
{
    QPen s = stift(umriss(f), std::clamp(pixel * 0.006, 0.5, 1.7));
    s.setCosmetic(true);
    return s;
}

/// A circle where it is only some pixels wide: a true one takes twice as long.
const QPolygonF zwoelfeck = [] {
    QPolygonF ecken;
    for (int i = 0; i < 12; ++i)
        ecken << polar(i * 30, 1);
    return ecken;
}();

/// Slender blotch with an uneven edge, along a direction.
QPainterPath fleck(Zufall &zufall, QPointF mitte, double grad, double laenge, double breite)
{
    std::vector<QPointF> punkte;
    for (int i = 0; i < 9; ++i) {
        const double w = i * 2 * 3.14159265 / 9, r = zufall.zwischen(0.6, 1.2);
        punkte.push_back({std::cos(w) * laenge * r, std::sin(w) * breite * r});
    }
    return QTransform().translate(mitte.x(), mitte.y()).rotate(grad).map(geschlossen(punkte));
}

/// The same path in short pieces: a long straight one would stay straight when it is bent.
QPainterPath zerlegt(const QPainterPath &pfad, const QTransform &lage)
{
    constexpr double stueck = 9;
    QPainterPath neu;
    for (int i = 0; i < pfad.elementCount(); ++i) {
        const QPainterPath::Element e = pfad.elementAt(i);
        const QPointF ziel = lage.map(QPointF(e)), von = neu.currentPosition();
        if (e.isMoveTo()) {
            neu.moveTo(ziel);
        } else if (e.isLineTo()) {
            const int n = std::max(1, int(QLineF(von, ziel).length() / stueck));
            for (int j = 1; j <= n; ++j)
                neu.lineTo(von + (ziel - von) * j / n);
        } else {
            const Kurve k{von, ziel, lage.map(QPointF(pfad.elementAt(i + 1))), lage.map(QPointF(pfad.elementAt(i + 2)))};
            const int n = std::max(1, int(QLineF(k.a, k.d).length() / stueck));
            for (int j = 1; j <= n && n > 1; ++j)
                neu.lineTo(k.punkt(double(j) / n));
            if (n == 1)
                neu.cubicTo(k.b, k.c, k.d);
            i += 2;
        }
    }
    neu.setFillRule(pfad.fillRule());
    return neu;
}

/// Points of a line without those that lie closer than `abstand` to the straight way between the ones that stay.
void ausduennen(const QPolygonF &linie, qsizetype von, qsizetype bis, double abstand, QPolygonF &ziel)
{
    const QPointF weg = linie[bis] - linie[von];
    const double laenge = std::hypot(weg.x(), weg.y());
    qsizetype fernster = von;
    double weit = abstand;
    for (qsizetype i = von + 1; i < bis; ++i) {
        const QPointF hin = linie[i] - linie[von];
        const double d = laenge < 1e-9 ? std::hypot(hin.x(), hin.y()) : std::abs(hin.x() * weg.y() - hin.y() * weg.x()) / laenge;
        if (d > weit)
            weit = d, fernster = i;
    }
    if (fernster != von) {
        ausduennen(linie, von, fernster, abstand, ziel);
        ziel << linie[fernster];
        ausduennen(linie, fernster, bis, abstand, ziel);
    }
}

} // namespace

const QPainterPath &Motiv::Strich::fuer(double pixel) const
{
    if (pixel >= kleinePixel)
        return pfad;
    if (klein.isEmpty()) {
        const QRectF r = pfad.controlPointRect();
        const double halbesPixel = 0.5 * std::max(r.width(), r.height()) / kleinePixel;
        for (const QPolygonF &linie : pfad.toSubpathPolygons()) {
            QPolygonF wenige{linie.front()};
            ausduennen(linie, 0, linie.size() - 1, halbesPixel, wenige);
            klein.addPolygon(wenige << linie.back());
        }
        klein.setFillRule(pfad.fillRule());
    }
    return klein;
}

QTransform lage(QPointF ort, double grad, double laenge, double breite)
{
    return QTransform().translate(ort.x(), ort.y()).rotate(90 - grad).scale(laenge / 100 * breite, laenge / 100);
}

Motiv::Motiv(const Formen &formen, const Form &form, const Form *bluete)
{
    aufnehmen(formen, form, bluete, {}, 0);
    if (punkte_.empty() && form.gruppe != Formgruppe::Blatt)
        punktMerken(0);
    rahmenMessen();
}

void Motiv::aufnehmen(const Formen &formen, const Form &form, const Form *bluete, const QTransform &ort, int tiefe)
{
    const int stueck = stuecke_++;
    for (const Formteil &teil : form.teile) {
        if (teil.art != Formteil::Form) {
            const QPointF spitze(0, form.gruppe == Formgruppe::Frucht ? 100 : -100);
            const double breite = teil.art == Formteil::Linie ? std::max(0.1, teil.breite) : 0;
            striche_.push_back({teil.rolle, form.gruppe, breite, teil.pfad, teil.haelfte(), ort, {}, spitze, stueck});
            continue;
        }
        const QTransform dort = teil.lage * ort;
        const Form *andere = teil.form == u"*" ? bluete : formen.form(form.gruppe, teil.form);
        if (!andere || tiefe >= groessteTiefe)
            continue;
        const size_t von = striche_.size(), vorher = punkte_.size();
        aufnehmen(formen, *andere, bluete, dort, tiefe + 1);
        if (teil.form == u"*") // a flower counts as a whole, whatever it is made of
            punkte_.resize(vorher);
        if (punkte_.size() == vorher)
            punktMerken(von);
    }
}

/// What has come in since `von` is one thing: from far it is a dot in the colour of its largest part.
void Motiv::punktMerken(size_t von)
{
    Punkt punkt{von, striche_.size(), {}, Rolle::Stiel, {}};
    double groesste = 0;
    for (size_t i = von; i < striche_.size(); ++i) {
        const Strich &s = striche_[i];
        const QRectF r = s.lage.mapRect(s.pfad.controlPointRect());
        if (const double gross = r.width() * r.height(); s.breite == 0 && s.rolle != Rolle::Schatten && s.rolle != Rolle::Licht && gross > groesste) {
            groesste = gross;
            punkt.rolle = s.rolle;
            punkt.gruppe = s.gruppe;
        }
    }
    if (groesste > 0)
        punkte_.push_back(punkt);
}

void Motiv::rahmenMessen()
{
    rahmen_ = {};
    const auto hat = [&](Rolle rolle) { return std::ranges::any_of(striche_, [&](const Strich &s) { return s.rolle == rolle; }); };
    eigenerRand_ = hat(Rolle::Rand);
    eigeneAdern_ = hat(Rolle::Ader);
    eigeneZone_ = hat(Rolle::Blatt2);
    for (const Strich &s : striche_)
        rahmen_ |= s.lage.map(s.pfad).boundingRect().adjusted(-s.breite / 2, -s.breite / 2, s.breite / 2, s.breite / 2);
    for (Punkt &punkt : punkte_) {
        punkt.kasten = {};
        for (size_t i = punkt.von; i < punkt.bis; ++i)
            if (striche_[i].rolle == punkt.rolle)
                punkt.kasten |= striche_[i].lage.mapRect(striche_[i].pfad.controlPointRect());
    }
}

QPainterPath Motiv::flaeche(Rolle rolle) const
{
    QPainterPath alle;
    alle.setFillRule(Qt::WindingFill);
    for (const Strich &s : striche_)
        if (s.rolle == rolle && s.breite == 0)
            alle.addPath(s.lage.map(s.pfad));
    return alle;
}

Motiv Motiv::verbogen(const std::function<QPointF(QPointF)> &abbildung) const
{
    Motiv m = *this;
    for (Strich &s : m.striche_) {
        for (QPainterPath *pfad : {&s.pfad, &s.haelfte}) {
            *pfad = zerlegt(*pfad, s.lage);
            for (int i = 0; i < pfad->elementCount(); ++i) {
                const QPointF neu = abbildung(QPointF(pfad->elementAt(i)));
                pfad->setElementPositionAt(i, neu.x(), neu.y());
            }
        }
        s.fuss = abbildung(s.lage.map(s.fuss));
        s.spitze = abbildung(s.lage.map(s.spitze));
        s.breite *= std::sqrt(std::abs(s.lage.determinant()));
        s.lage = {};
    }
    m.rahmenMessen();
    return m;
}

Motiv Motiv::gebogen(const Kurve &kurve, double laenge, double breite) const
{
    Motiv m = verbogen([&](QPointF q) {
        const double t = std::clamp(-q.y() / 100, -0.2, 1.2), nah = std::clamp(t, 0.0, 1.0);
        const double grad = kurve.winkel(nah);
        return kurve.punkt(nah) + polar(grad, (t - nah) * laenge) + polar(grad - 90, q.x() / 100 * laenge * breite);
    });
    for (Strich &s : m.striche_)
        s.breite *= laenge / 100;
    return m;
}

void Motiv::flaecheMalen(QPainter &p, const Strich &s, const Anstrich &a, double pixel, double ton) const
{
    const QColor f = mitTon(a[s.rolle], ton);
    const bool blatt = s.rolle == Rolle::Blatt || s.rolle == Rolle::Blatt2;
    const bool durchscheinend = s.rolle == Rolle::Schatten || s.rolle == Rolle::Licht;
    p.setPen(durchscheinend || pixel < 20 ? QPen(Qt::NoPen) : umrissstift(f, pixel));
    if (pixel < grob || durchscheinend || s.gruppe == Formgruppe::Ding) {
        p.setBrush(f);
    } else if (blatt) {
        p.setBrush(verlauf(QLinearGradient(s.fuss, s.spitze), {{0, dunkler(f, 0.14)}, {0.45, f}, {1, heller(f, 0.13)}}));
    } else if (s.gruppe == Formgruppe::Frucht) { // a body: light from the upper left
        const QRectF r = s.pfad.boundingRect();
        p.setBrush(
            verlauf(QRadialGradient(r.center(), std::max(r.width(), r.height()) * 0.75, r.topLeft() + QPointF(r.width() * 0.33, r.height() * 0.3)),
                    {{0, heller(f, 0.34)}, {0.35, f}, {1, dunkler(f, 0.42)}}));
    } else { // petals are deeper towards the throat
        p.setBrush(verlauf(QRadialGradient(s.fuss, QLineF(s.fuss, s.spitze).length() * 1.05),
                           {{0, dunkler(f, blass(f) ? 0.16 : 0.24)}, {0.5, f}, {1, heller(f, 0.2)}}));
    }
    p.drawPath(s.fuer(pixel));
    if (blatt && pixel >= grob && !s.haelfte.isEmpty())
        p.fillPath(s.haelfte, QColor(10, 35, 40, 30));
    if (s.rolle == Rolle::Blatt && !a.zeichnung.empty())
        zeichnungMalen(p, s, a, pixel);
}

void Motiv::linieMalen(QPainter &p, const Strich &s, const Strich *spreite, const Anstrich &a, double pixel, double ton) const
{
    const bool ader = s.rolle == Rolle::Ader || s.rolle == Rolle::Bluetenader;
    const bool bunt = a.bunteAdern && (s.rolle == Rolle::Ader || s.rolle == Rolle::Rippe);
    if (pixel < (ader && !bunt ? fein : 5))
        return;
    // A midrib as broad as its length asks would hide a narrow blade.
    const double eigene = bunt                                 ? std::max(1.7, 2 * s.breite)
                          : spreite && s.rolle == Rolle::Rippe ? std::min(s.breite, 0.14 * spreite->pfad.controlPointRect().width())
                                                               : s.breite;
    const double breite = std::max(eigene, (ader ? 0 : 0.9) / std::sqrt(std::abs(p.transform().determinant()))); // a hair is still seen
    p.setBrush(Qt::NoBrush);
    const QColor f = mitTon(a[s.rolle], ton);
    if (s.rolle == Rolle::Rippe && spreite && pixel >= fein) { // the midrib lies in a groove of the blade
        p.save();
        p.setClipPath(spreite->pfad, Qt::IntersectClip);
        p.strokePath(s.pfad.translated(breite * 0.5, 0), stift(QColor(15, 40, 30, 60), breite * 2.2));
        p.restore();
    }
    if (s.rolle == Rolle::Ader && pixel >= 2 * fein) // between the veins the blade bulges
        p.strokePath(s.pfad.translated(0, s.breite * 1.1), stift(QColor(10, 40, 25, 22), s.breite * 3.4));
    p.strokePath(s.fuer(pixel), stift(f, breite));
}

void Motiv::zeichnungMalen(QPainter &p, const Strich &s, const Anstrich &a, double pixel) const
{
    // The marking is laid out on a blade of 100 units from foot to tip.
    const QLineF achse(s.fuss, s.spitze);
    const QTransform blatt = ::lage(s.fuss, achse.angle(), achse.length());
    const QPainterPath umrisslinie = blatt.inverted().map(s.pfad);
    const QRectF r = umrisslinie.boundingRect();
    p.save();
    if (pixel >= grob)
        p.setClipPath(s.pfad, Qt::IntersectClip);
    p.setTransform(blatt, true);
    p.setBrush(Qt::NoBrush);
    Zufall zufall(u"Zeichnung", quint64(s.stueck) + 5);
    const double halb = r.width() / 2, mitteX = r.center().x();
    const auto gestreckt = [&](double x, double y) { return QTransform(x, 0, 0, y, 0, r.center().y() * (1 - y)).map(umrisslinie); };
    for (const auto &[wo, farbton] : a.zeichnung) {
        if (zeichnetSelbst({wo, farbton}))
            continue;
        const QColor f = farbton, weich = durchsichtig(farbton, 0.75);
        p.setPen(Qt::NoPen);
        if (wo == u"rand") {
            p.strokePath(umrisslinie, stift(f, halb * 0.34));
            p.strokePath(umrisslinie, stift(durchsichtig(f, 0.5), halb * 0.55));
        } else if (wo == u"mitte") {
            p.fillPath(gestreckt(0.62, 0.86), weich);
            p.fillPath(gestreckt(0.44, 0.78), f);
        } else if (wo == u"ader" || wo == u"fiederstreifen") {
            const bool breit = wo == u"fiederstreifen";
            for (int seite : {-1, 1})
                for (int i = 0; i < 8; ++i) {
                    const double y = -10 - i * 11.0, laenge = halb * 1.05;
                    QPainterPath ader(QPointF(0, y));
                    ader.quadTo({seite * laenge * 0.5, y - laenge * 0.22}, {seite * laenge, y - laenge * 0.75});
                    p.strokePath(ader, stift(breit ? weich : f, breit ? 5.5 : 1.8));
                }
            p.setPen(stift(f, breit ? 1.5 : 2.6));
            p.drawLine(QPointF(0, 0), QPointF(0, -95));
        } else if (wo == u"haelfte") {
            p.fillRect(QRectF(0, r.top(), r.right(), r.height()), f);
        } else if (wo == u"flecken" || wo == u"punkte") {
            const bool klein = wo == u"punkte";
            p.setBrush(f);
            for (int i = 0; i < (klein ? 46 : 22); ++i) {
                const int seite = i % 2 ? 1 : -1;
                const double x = seite * halb * zufall.zwischen(0.06, 0.95), y = r.top() + r.height() * zufall.zwischen(0.04, 0.98);
                const double groesse = halb * (klein ? zufall.zwischen(0.03, 0.09) : zufall.zwischen(0.1, 0.26));
                p.drawPath(fleck(zufall, {mitteX + x, y}, seite * -38, groesse * (klein ? 1.2 : 1.7), groesse * 0.62));
            }
            p.setBrush(Qt::NoBrush);
        } else if (wo == u"streifen") {
            for (const double x : {0.12, 0.42, 0.72})
                p.strokePath(gestreckt(x, 1.02), stift(f, halb * 0.16));
        } else if (wo == u"zone") {
            p.strokePath(gestreckt(0.56, 0.56), stift(durchsichtig(f, 0.6), halb * 0.24));
        } else { // basis, spitze
            const bool unten = wo == u"basis";
            const QBrush g = verlauf(QLinearGradient(0, unten ? r.bottom() : r.top(), 0, r.center().y()), {{0, f}, {1, durchsichtig(f, 0)}});
            p.fillRect(r, g);
        }
    }
    p.restore();
    if (pixel >= 15)
        p.strokePath(s.fuer(pixel), umrissstift(a[Rolle::Blatt], pixel));
}

bool Motiv::zeichnetSelbst(const Anstrich::Zeichnung &z) const
{
    return (eigenerRand_ && z.wo == u"rand") || (eigeneAdern_ && z.wo == u"ader") || (eigeneZone_ && z.wo == u"zone");
}

void Motiv::malen(QPainter &p, const Anstrich &alle, const QTransform &ort, double ton) const
{
    Anstrich anstrich = alle;
    for (const auto &z : alle.zeichnung)
        if (zeichnetSelbst(z) && z.wo == u"ader") {
            anstrich[Rolle::Ader] = anstrich[Rolle::Rippe] = z.farbe;
            anstrich.bunteAdern = true;
        } else if (zeichnetSelbst(z) && z.wo == u"zone") {
            anstrich[Rolle::Blatt2] = z.farbe;
        }
    const Strich *spreite = nullptr;
    const QTransform vorher = p.transform();
    const double masse = std::sqrt(std::abs((ort * vorher).determinant()));
    const double ganz = masse * std::max(rahmen_.width(), rahmen_.height());
    const bool randig = std::ranges::any_of(anstrich.zeichnung, [](const auto &z) { return z.wo == u"rand"; });
    auto punkt = punkte_.begin();
    for (size_t i = 0; i < striche_.size(); ++i) {
        const Strich &s = striche_[i];
        const double eigen = std::round((ton + 0.05 * ((s.stueck * 7) % 5 - 2)) * 16) / 16; // few tones keep the cache of gradients effective
        while (punkt != punkte_.end() && punkt->bis <= i)
            ++punkt;
        if (punkt != punkte_.end() && punkt->von == i) {
            const double gross = masse * std::max(punkt->kasten.width(), punkt->kasten.height());
            if (gross < (punkt->gruppe == Formgruppe::Blatt ? 4.5 : 9)) {
                const double mindestens = 1.3 / masse;
                const QPointF mitte = punkt->kasten.center();
                const double rx = std::max(mindestens, punkt->kasten.width() / 2), ry = std::max(mindestens, punkt->kasten.height() / 2);
                p.setTransform(QTransform(rx, 0, 0, ry, mitte.x(), mitte.y()) * ort * vorher);
                nurFlaeche(p, mitTon(anstrich[punkt->rolle], eigen));
                p.drawConvexPolygon(zwoelfeck);
                i = punkt->bis - 1;
                continue;
            }
        }
        if (s.rolle == Rolle::Rand && !randig)
            continue;
        const QTransform hier = s.lage * ort;
        const QRectF r = s.pfad.controlPointRect();
        const double pixel = std::sqrt(std::abs(s.lage.determinant())) * masse * std::max(r.width(), r.height());
        if (pixel < 2.2 || (ganz < grob && s.breite > 0 && s.gruppe != Formgruppe::Bluete && !anstrich.bunteAdern))
            continue;
        p.setTransform(hier * vorher);
        if (s.rolle == Rolle::Blatt && s.breite == 0)
            spreite = &s;
        if (s.breite > 0)
            linieMalen(p, s, spreite && spreite->stueck == s.stueck ? spreite : nullptr, anstrich, pixel, eigen);
        else
            flaecheMalen(p, s, anstrich, pixel, eigen);
    }
    p.setTransform(vorher);
}
