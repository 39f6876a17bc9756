#include "Tafeln.h"

#include "Farben.h"
#include "Kurve.h"
#include "Pfad.h"
#include "Zufall.h"

#include <cmath>

namespace {

void risse(QPainter &p, const QRectF &r, Zufall &z, const QColor &dunkel, int anzahl, bool quer, double dick)
{
    for (int i = 0; i < anzahl; ++i) {
        QPointF ort(r.left() + r.width() * z.zahl(), r.top() + r.height() * z.zahl());
        QPainterPath pfad(ort);
        const double lang = (quer ? r.width() * 0.14 : r.height() * 0.22) * z.zwischen(0.5, 1.4);
        for (int j = 0; j < 4; ++j) {
            ort += quer ? QPointF(lang / 4, z.streuung(1.5)) : QPointF(z.streuung(7), lang / 4);
            pfad.lineTo(ort);
        }
        p.strokePath(pfad, QPen(dunkel, dick * z.zwischen(0.5, 1.3), Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    }
}

void platten(QPainter &p, const QRectF &r, Zufall &z, const QColor &grund, double b, double h, bool rund)
{
    for (double y = r.top() - h; y < r.bottom() + h; y += h)
        for (double x = r.left() - b; x < r.right() + b; x += b) {
            const QPointF m(x + z.streuung(b * 0.3) + (std::fmod(y, 2 * h) < h ? b / 2 : 0), y + z.streuung(h * 0.25));
            std::vector<QPointF> punkte;
            for (int i = 0; i < 7; ++i)
                punkte.push_back(
                    m + QPointF(std::cos(i * 0.898) * b * 0.5 * z.zwischen(0.75, 1.1), std::sin(i * 0.898) * h * 0.54 * z.zwischen(0.75, 1.1)));
            p.setPen(QPen(dunkler(grund, 0.45), 1.4));
            p.setBrush(z.ganz(2) ? heller(grund, z.zwischen(0, 0.2)) : dunkler(grund, z.zwischen(0, 0.14)));
            if (rund)
                p.drawPath(geschlossen(punkte));
            else
                p.drawPolygon(punkte.data(), int(punkte.size()));
        }
}

} // namespace

void rindeMalen(QPainter &p, const QRectF &platz, const Steckbrief &s)
{
    Zufall z(s.rinde, 3);
    const double seite = std::min(platz.width() * 0.62, platz.height());
    const QRectF r(platz.center().x() - seite / 2, platz.top(), seite, platz.height());
    const QColor f = s.rindenfarbe, dunkel = dunkler(f, 0.55);
    p.save();
    QPainterPath rahmen;
    rahmen.addRoundedRect(r, 14, 14);
    p.setClipPath(rahmen);
    const QBrush g = verlauf(QLinearGradient(r.left(), 0, r.right(), 0), {{0, dunkler(f, 0.25)}, {0.35, heller(f, 0.18)}, {1, dunkler(f, 0.4)}});
    p.fillRect(r, g);
    p.setBrush(Qt::NoBrush);
    // Cracks by number, direction and width; plates by their size.
    const struct
    {
        QStringView wort;
        QColor farbe;
        int risse;
        bool quer, rund;
        double dick, breit, hoch;
    } arten[] = {// clang-format off
        {u"laengsrissig", dunkel, 110, false, false, 4, 0, 0},              {u"ringelig", dunkler(f, 0.45), 70, true, false, 4, 0, 0},
        {u"weiss", QColor(0x2C, 0x28, 0x26), 34, true, false, 5, 0, 0},     {u"streifig", heller(f, 0.7), 60, false, false, 3, 0, 0},
        {u"korkleisten", heller(f, 0.35), 16, false, false, 16, 0, 0},      {u"gefeldert", f, 0, false, false, 0, 0.15, 0.12},
        {u"schuppig", f, 0, false, true, 0, 0.2, 0.1},
        {u"abblaetternd", gemischt(f, QColor(0xC9, 0xC0, 0x90), 0.4), 0, false, true, 0, 0.3, 0.24},
        {u"", durchsichtig(dunkel, 0.35), 26, true, false, 1.6, 0, 0}};
    // clang-format on
    for (const auto &a : arten)
        if (a.wort == s.rinde || a.wort.isEmpty()) {
            if (a.risse)
                risse(p, r, z, a.farbe, a.risse, a.quer, a.dick);
            else
                platten(p, r, z, a.farbe, seite * a.breit, seite * a.hoch, a.rund);
            break;
        }
    const QBrush rundung =
        verlauf(QLinearGradient(r.left(), 0, r.right(), 0), {{0, QColor(0, 0, 0, 70)}, {0.3, QColor(255, 255, 255, 30)}, {1, QColor(0, 0, 0, 110)}});
    p.fillRect(r, rundung);
    p.restore();
    p.strokePath(rahmen, QPen(dunkel, 1.4));
}

void zweigMalen(QPainter &p, const QRectF &r, const Steckbrief &s, const Formen &formen)
{
    const QColor f = gemischt(s.rindenfarbe, QColor(0x7A, 0x4E, 0x38), 0.45);
    const QString stellung = s.stellung == u"gegenstaendig" ? QStringLiteral("-gegen") : QStringLiteral("-wechsel");
    Anstrich a = s.anstrich;
    a[Rolle::Stiel] = f;
    a[Rolle::Rippe] = dunkler(f, 0.5);
    a[Rolle::Faden] = heller(f, 0.5);
    a[Rolle::Kern] = heller(f, 0.15);
    const QRgb knospe = s.knospe == u"schwarz" ? 0x2E2A2C : s.knospe == u"klebrig" ? 0x7A3522 : s.knospe == u"nackt" ? 0x9A8E62 : 0x8A583A;
    a[Rolle::Huelle] = QColor(knospe);
    const Form *eine = formen.form(Formgruppe::Ding, QStringLiteral("knospe-") + s.knospe);
    for (const QString &wort : {s.dornen, QStringLiteral("zweig")})
        if (const Form *form = formen.form(Formgruppe::Ding, wort + stellung))
            Motiv(formen, *form, eine).malen(p, a, lage({r.center().x(), r.bottom()}, 90, r.height()));
}

void haftorganMalen(QPainter &p, const QRectF &r, const Steckbrief &s, const Formen &formen)
{
    const QColor f = gemischt(s.anstrich[Rolle::Stiel], s.rindenfarbe, 0.35);
    Anstrich a = s.anstrich;
    a[Rolle::Stiel] = f;
    a[Rolle::Rippe] = umriss(f);
    a[Rolle::Faden] = heller(f, 0.25);
    a[Rolle::Huelle] = dunkler(f, 0.2);
    a[Rolle::Stein] = heller(farbe::holz, s.haftorgan.startsWith(u"haft") ? 0.7 : 0.35);
    Motiv(formen, *s.haftform).malen(p, a, lage({r.center().x(), r.bottom()}, 90, r.height()));
}
