#include "Pflanzenbild.h"

#include "Farben.h"
#include "Pfad.h"

#include <algorithm>
#include <cmath>

Blickrichtung::Blickrichtung(double umlauf, double steigung)
{
    constexpr double bogen = 3.14159265 / 180, vonOben = 0.34;
    const double x = std::cos(steigung * bogen) * std::cos(umlauf * bogen);
    tiefe = std::cos(steigung * bogen) * std::sin(umlauf * bogen);
    const double y = std::sin(steigung * bogen) - vonOben * tiefe;
    grad = std::atan2(y, x) / bogen;
    laenge = std::max(0.3, std::hypot(x, y));
}

Pflanzenbild::Pflanzenbild(const Steckbrief &brief, const Formen &formen, double pixelJeMeter, bool imWinter, QStringView wuchs)
    : s(brief), px(pixelJeMeter), winter(imWinter), zufall(brief.pflanze.text(u"ARTNR"), 11), blatt_(formen, *brief.blatt)
{
    const auto gekruemmt = [](double um) { return [um](QPointF q) { return QPointF(q.x() + um * q.y() * q.y() / 100, q.y()); }; };
    blattRechts_ = blatt_.verbogen(gekruemmt(0.16));
    blattLinks_ = blatt_.verbogen(gekruemmt(-0.16));
    schlank_ = blatt_.rahmen().width() / std::max(1.0, blatt_.rahmen().height());
    if (s.blueht) {
        bluete_ = Motiv(formen, *s.bluete);
        if (s.stand)
            stand_ = Motiv(formen, *s.stand, s.bluete);
    }
    if (s.fruchtet)
        frucht_ = Motiv(formen, *(s.fruchtstand ? s.fruchtstand : s.frucht));
    bauen(wuchs.isEmpty() ? s.wuchs : wuchs);
}

void Pflanzenbild::bauen(QStringView gesucht)
{
    for (const auto &raum : {wuchsKraut, wuchsGehoelz, wuchsSonder})
        for (const auto &[wort, wuchs] : raum)
            if (wort == gesucht)
                wuchs(*this);
    pflanze_ = kasten_;
    if (!s.sammlung.imTopf || gesucht != s.wuchs)
        return;
    const double weite = std::clamp(s.hoehe * s.breite * 0.24, std::min(0.045, s.hoehe * 0.3), 0.2) * px;
    topf(weite, weite * 1.7);
}

void Pflanzenbild::ding(double ebene, const QRectF &kasten, std::function<void(QPainter &)> malen)
{
    kasten_ |= kasten;
    dinge_.emplace_back(ebene, std::move(malen));
}

void Pflanzenbild::malen(QPainter &p)
{
    std::ranges::stable_sort(dinge_, {}, [](const auto &d) { return d.first; });
    for (const auto &[ebene, malen] : dinge_)
        malen(p);
}

void Pflanzenbild::motiv(const Motiv &m, const QTransform &dort, double ebene, double ton)
{
    ding(ebene, dort.mapRect(m.rahmen()), [this, &m, dort, ton](QPainter &p) { m.malen(p, s.anstrich, dort, ton); });
}

void Pflanzenbild::blatt(QPointF ort, double grad, double laenge, double ebene, double breite, double licht)
{
    const int wahl = zufall.ganz(3);
    const Motiv &m = wahl == 0 ? blatt_ : wahl == 1 ? blattRechts_ : blattLinks_;
    motiv(m, ::lage(ort, grad, laenge, std::min(breite, 2.4)), ebene, ton(ebene) + 0.3 * licht);
}

void Pflanzenbild::bandblatt(const Kurve &k, double breite, double ebene)
{
    const Motiv m = blatt_.gebogen(k, k.laenge(), breite);
    ding(ebene, m.rahmen(), [this, m, t = ton(ebene)](QPainter &p) { m.malen(p, s.anstrich, {}, t); });
}

void Pflanzenbild::bandhorst(int anzahl, double spreizung, double laenge, double neigung, double breite)
{
    for (const double platz : reihe(anzahl)) {
        const double seite = platz + zufall.streuung(0.12);
        bandblatt(Kurve::bogen({seite * halb() * 0.18, 0}, 90 - seite * spreizung + zufall.streuung(3), laenge * zufall.zwischen(0.83, 1.22),
                               std::abs(seite) * neigung * zufall.zwischen(0.6, 1.4)),
                  breite * zufall.zwischen(0.87, 1.14), zufall.streuung(0.9));
    }
}

QPointF Pflanzenbild::gestielt(QPointF fuss, double grad, double stiellaenge, double neigung, double laenge, double ebene, double breite)
{
    QPointF ort = fuss;
    double richtung = grad;
    if (stiellaenge > 2) {
        const Kurve k = Kurve::bogen(fuss, grad, stiellaenge, neigung);
        trieb(k, std::clamp(laenge * 0.05, 1.2, 7.0), std::clamp(laenge * 0.03, 1.0, 5.0), stielfarbe(), ebene - 0.01);
        ort = k.punkt(1);
        richtung = k.winkel(1);
    }
    blatt(ort, richtung, laenge, ebene, breite);
    return ort;
}

void Pflanzenbild::trieb(const Kurve &k, double unten, double oben, const QColor &f, double ebene)
{
    const double rand = unten / 2 + 1;
    ding(ebene, k.pfad().boundingRect().adjusted(-rand, -rand, rand, rand), [k, unten, oben, f](QPainter &p) { stiel(p, k, unten, oben, f); });
}

void Pflanzenbild::beblaettern(const Kurve &k, double von, double bis, double laenge, double ebene, double abstand)
{
    const double weg = k.laenge() * (bis - von);
    const bool paar = s.stellung == u"gegenstaendig", quirl = s.stellung == u"quirlstaendig";
    const int knoten = std::clamp(int(weg / (laenge * abstand * (paar || quirl ? 1.3 : 0.8))), 2, 26);
    for (int i = 0; i <= knoten; ++i) {
        const double t = von + (bis - von) * i / knoten;
        const QPointF ort = k.punkt(std::min(1.0, t));
        const double achse = k.winkel(t), groesse = laenge * (1 - 0.35 * i / knoten) * zufall.zwischen(0.9, 1.08);
        const int blaetter = quirl ? 5 : paar ? 2 : 1;
        for (int b = 0; b < blaetter; ++b) {
            const int seite = quirl ? (b < 3 ? 1 : -1) : (paar ? b : i) % 2 ? 1 : -1;
            const double ab = quirl ? 20 + 42 * (b % 3) : zufall.zwischen(38, 68);
            const double vorn = ebene + (b % 2 ? 0.05 : -0.05) + zufall.streuung(0.08);
            const double querschnitt = zufall.zwischen(0.6, 1.0);
            gestielt(ort, achse + seite * ab, groesse * s.blattstiel, 18, groesse, vorn, querschnitt);
        }
    }
    if (s.stellung != u"zweizeilig")
        blatt(k.punkt(bis), k.winkel(bis), laenge * 0.6, ebene, 0.8);
}

void Pflanzenbild::bluete(QPointF ort, double grad, double ebene)
{
    if (!bluehtJetzt())
        return;
    // On a tree true flowers would be dots: they are drawn as large as one sees that it flowers.
    const double radius = std::clamp(s.bluetengroesse / 200 * px, std::max(5.5, hoehe() * (s.verholzt() ? 0.02 : 0.009)), hoehe() * 0.3);
    const double richtung = bluete_.rund() ? grad + zufall.streuung(25) : bluete_.haengt() ? 90 + zufall.streuung(8) : grad;
    motiv(bluete_, ::lage(ort, richtung, 200 * radius / bluete_.blueteneinheiten()), ebene, zufall.streuung(0.07));
}

void Pflanzenbild::bluehe(QPointF ort, double grad, double ebene, double groesse)
{
    if (!s.stand || !bluehtJetzt())
        return bluete(ort, grad, ebene);
    const QRectF r = stand_.rahmen();
    const double kleinste = std::max(10.0, hoehe() * (s.verholzt() ? 0.078 : 0.03));
    const double soll = std::clamp(s.standgroesse / 100 * px, kleinste, std::max(kleinste, bluetenhoehe() * 0.62)) * groesse;
    // What hangs is drawn downwards from its stalk, and hangs wherever its shoot points.
    const bool haengt = stand_.haengt();
    const double laenge = soll * 100 / std::max({60.0, -r.top(), r.bottom()});
    const double richtung = haengt ? 90 + zufall.streuung(6) : grad;
    motiv(stand_, ::lage(ort, richtung, laenge), ebene, zufall.streuung(0.06));
}

void Pflanzenbild::schaefte(int anzahl, double oben, double streuung)
{
    if (!bluehtJetzt())
        return;
    for (int i = 0; i < anzahl; ++i) {
        const double seite = anzahl == 1 ? zufall.streuung(2) : -streuung + 2 * streuung * i / (anzahl - 1) + zufall.streuung(4);
        const double standPx = s.stand ? std::clamp(s.standgroesse / 100 * px, 10.0, oben * 0.6) : 0;
        const double laenge = std::max(oben * 0.25, (oben - standPx) * (i == anzahl / 2 ? 1 : zufall.zwischen(0.78, 0.97)));
        const Kurve k = Kurve::bogen({zufall.streuung(halb() * 0.12), 0}, 90 - seite, laenge, std::abs(seite) * 0.5);
        const double dick = std::clamp(laenge * 0.014, 1.6, 7.0);
        trieb(k, dick, dick * 0.7, stielfarbe(), 0.1);
        bluehe(k.punkt(1), k.winkel(1), 1.2 + 0.01 * i);
    }
}

void Pflanzenbild::frucht(QPointF ort, double ebene)
{
    if (!s.zeigtFruechte() || winter)
        return;
    const double hundert = s.fruchtstand ? 2.2 : 1;
    const double laenge = std::clamp(s.fruchtgroesse / 100 * px * hundert, std::max(11.0, hoehe() * (s.fruchtstand ? 0.03 : 0.024)), hoehe() * 0.3);
    const double richtung = 90 + zufall.streuung(12);
    motiv(frucht_, ::lage(ort, richtung, laenge), ebene, zufall.streuung(0.06));
}

void Pflanzenbild::form(const QPainterPath &pfad, const QColor &f, double ebene, double strich)
{
    ding(ebene, pfad.boundingRect().adjusted(-1, -1, 1, 1),
         [pfad, f, strich](QPainter &p) { zeichnen(p, pfad, strich > 0 ? QPen(umriss(f), strich) : QPen(Qt::NoPen), f); });
}

void Pflanzenbild::linie(const QPainterPath &pfad, const QPen &stift, double ebene)
{
    ding(ebene, pfad.boundingRect(), [pfad, stift](QPainter &p) { p.strokePath(pfad, stift); });
}

void Pflanzenbild::topf(double w, double h)
{
    const QRectF r(-w * 1.06, -h * 0.06, w * 2.12, h * 1.08);
    ding(-0.02, r, [w, h](QPainter &p) {
        const QColor ton(0xB8, 0x6A, 0x45);
        const QBrush g = verlauf(QLinearGradient(-w, 0, w, 0), {{0, dunkler(ton, 0.12)}, {0.3, heller(ton, 0.28)}, {1, dunkler(ton, 0.42)}});
        zeichnen(p, kontur(u"M-.94 .18L-.68 .96Q0 1.06 .68 .96L.94 .18Z", w, h), QPen(dunkler(ton, 0.55), 1.2), g);
        p.drawRoundedRect(QRectF(-w * 1.05, 0, w * 2.1, h * 0.2), h * 0.05, h * 0.05);
        p.setBrush(farbe::erde);
        p.drawEllipse(QPointF(0, h * 0.015), w * 0.98, h * 0.06);
    });
}
