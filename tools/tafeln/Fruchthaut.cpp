#include "Tafeln.h"

#include "Farben.h"
#include "Kurve.h"
#include "Zufall.h"

#include <cmath>

namespace {

struct Haut
{
    QPainter &p;
    const QRectF r;
    Zufall z;
    QPointF ort() { return {r.left() + r.width() * z.zahl(), r.top() + r.height() * z.zahl()}; }
};

/// The side to the sun, from the right.
void deckfarbe(Haut &h, const Steckbrief &s)
{
    const QColor f = s.deckfarbe;
    const bool zart = s.hautwort(u"verwaschen");
    const QBrush g = verlauf(QRadialGradient(QPointF(h.r.right() - h.r.width() * 0.22, h.r.center().y()), h.r.width() * 0.85),
                             {{0, durchsichtig(f, zart ? 0.6 : 0.85)}, {0.45, durchsichtig(f, zart ? 0.3 : 0.55)}, {1, durchsichtig(f, 0)}});
    h.p.fillRect(h.r, g);
    if (s.hautwort(u"geflammt") || s.hautwort(u"gestreift"))
        for (int i = 0; i < 34; ++i) { // streaks from the stalk to the calyx
            const double u = 0.3 + 0.68 * h.z.zahl(), x = h.r.left() + h.r.width() * u;
            QPainterPath pfad(QPointF(h.r.center().x() + (x - h.r.center().x()) * 0.5, h.r.top() + h.r.height() * h.z.zwischen(0.1, 0.4)));
            pfad.quadTo(x, h.r.center().y(), h.r.center().x() + (x - h.r.center().x()) * 0.6, h.r.bottom() - h.r.height() * h.z.zwischen(0.08, 0.35));
            h.p.strokePath(pfad, QPen(durchsichtig(dunkler(f, 0.12), 0.45), h.z.zwischen(2, 6), Qt::SolidLine, Qt::RoundCap));
        }
    if (s.hautwort(u"gesprenkelt") || s.hautwort(u"marmoriert"))
        for (int i = 0; i < 130; ++i) {
            const double m = s.hautwort(u"marmoriert") ? h.z.zwischen(4, 11) : h.z.zwischen(1.5, 4);
            nurFlaeche(h.p, durchsichtig(f, 0.4));
            const QPointF o = h.ort();
            h.p.drawEllipse(o + QPointF(h.r.width() * 0.15, 0), m, m * 0.7);
        }
}

void berostung(Haut &h, const Steckbrief &s)
{
    double stark = 0, worte = 0;
    for (const auto &[wort, wert] :
         {std::pair(u"gering berostet", 0.2), std::pair(u"mittelstark berostet", 0.45), std::pair(u" stark berostet", 1.0)})
        if (s.hautwort(wort))
            stark += wert, ++worte;
    stark /= std::max(1.0, worte);
    const QColor rost(0xA0, 0x74, 0x42);
    h.p.setPen(Qt::NoPen);
    if (stark > 0) {
        // Russet runs together towards the calyx and gets thin towards the stalk.
        const QBrush g =
            verlauf(QLinearGradient(0, h.r.top(), 0, h.r.bottom()),
                    {{0, durchsichtig(rost, 0.3 + 0.2 * stark)}, {0.35, durchsichtig(rost, 0.5 * stark)}, {1, durchsichtig(rost, 0.9 * stark)}});
        h.p.fillRect(h.r, g);
        for (int i = 0; i < int(260 * stark); ++i) {
            const QPointF o = h.ort();
            h.p.setBrush(durchsichtig(dunkler(rost, h.z.zwischen(-0.1, 0.25)), 0.35));
            h.p.drawEllipse(o, h.z.zwischen(2, 6), h.z.zwischen(1.5, 4));
        }
    }
    const int punkte = s.hautwort(u"viele Lentizellen") ? 150 : s.hautwort(u"wenig Lentizellen") ? 40 : 0;
    for (int i = 0; i < punkte; ++i) {
        const QPointF o = h.ort();
        h.p.setBrush(durchsichtig(dunkler(rost, 0.15), 0.7));
        h.p.drawEllipse(o, 1.6, 1.6);
    }
}

void reif(Haut &h, const Steckbrief &s)
{
    if (!s.hautwort(u"bereift") && !s.hautwort(u"beduftet") && !s.hautwort(u"wachsig"))
        return;
    const double stark = s.hautwort(u"stark beduftet") || s.hautwort(u"stark wachsig") || s.hautwort(u"mittelstark bereift") ? 0.34 : 0.2;
    for (int i = 0; i < 5; ++i) {
        const QPointF o = h.ort();
        const QBrush g =
            verlauf(QRadialGradient(o, h.r.width() * 0.3), {{0, QColor::fromRgbF(0.86f, 0.89f, 0.97f, float(stark))}, {1, QColor(220, 228, 248, 0)}});
        h.p.fillRect(h.r, g);
    }
}

} // namespace

void fruchthautMalen(QPainter &p, const QPainterPath &haut, const Steckbrief &s)
{
    if (haut.isEmpty())
        return;
    p.save();
    p.setClipPath(haut, Qt::IntersectClip);
    Haut h{p, haut.boundingRect(), Zufall(s.pflanze.text(u"ARTNR"), 23)};
    if (s.deckfarbe.isValid())
        deckfarbe(h, s);
    berostung(h, s);
    reif(h, s);
    p.restore();
    const bool flaumig = s.hautwort(u"flaumig"), behaart = s.hautwort(u"behaart");
    if (!flaumig && !behaart)
        return;
    p.setPen(QPen(durchsichtig(dunkler(s.anstrich[Rolle::Haut], 0.3), 0.55), 0.9));
    const double lang = behaart && !s.hautwort(u"gering") ? 9 : 5;
    double weg = 0; // to the next hair
    for (const QPolygonF &rand : haut.toSubpathPolygons())
        for (qsizetype i = 1; i < rand.size(); ++i) {
            const QLineF stueck(rand[i - 1], rand[i]);
            for (; weg < stueck.length(); weg += 4) {
                const QPointF fuss = stueck.pointAt(weg / stueck.length());
                p.drawLine(fuss, fuss + polar(stueck.angle() + 90, lang));
            }
            weg -= stueck.length();
        }
}

Motiv Steckbrief::geformt(const Motiv &motiv, bool einzeln) const
{
    const QStringList worte = pflanze.worte(sammlung.fruchtform) + (einzeln ? QStringList() : pflanze.worte(sammlung.fruchtstand));
    // Factor of the width, of the upper and of the lower half, and of the height.
    double breit = 1, obenBreit = 1, untenBreit = 1, hoch = 1;
    const auto wort = [&](QStringView w, double b, double o, double u, double h) {
        if (worte.contains(w))
            breit *= b, obenBreit *= o, untenBreit *= u, hoch *= h;
    };
    wort(u"flachkugelig", 1.08, 1, 1, 0.86);
    wort(u"hochgebaut", 0.94, 1, 1, 1.1);
    wort(u"eiförmig", 0.94, 0.9, 1.04, 1.05);
    wort(u"walzenförmig", 0.94, 1.12, 1.04, 1.04);
    wort(u"glockenförmig", 1.02, 0.9, 1.1, 1);
    wort(u"kegelförmig", 1, 1.05, 0.82, 1.04);
    wort(u"flaschenförmig", 0.84, 0.8, 0.96, 1.18);
    wort(u"herzförmig", 1.03, 1.08, 0.84, 1);
    wort(u"länglich", 0.86, 1, 1, 1.1);
    wort(u"oval", 0.93, 1, 1, 1.05);
    wort(u"kurze Trauben", 1, 1, 1, 0.86);
    wort(u"lange Trauben", 1, 1, 1, 1.14);
    const QRectF r = motiv.rahmen();
    return motiv.verbogen([=](QPointF q) {
        const double t = std::clamp((q.y() - r.top()) / r.height(), 0.0, 1.0);
        return QPointF(q.x() * breit * (obenBreit + (untenBreit - obenBreit) * t), q.y() * hoch);
    });
}

bool Steckbrief::hautwort(QStringView wort) const
{
    for (const QStringView spalte : {sammlung.schale, sammlung.deckfarbe})
        for (const QString &w : pflanze.worte(spalte))
            if (QString(u' ' + w).contains(wort))
                return true;
    return false;
}
