#include "Apfel.h"
#include "Farben.h"
#include "Kurve.h"
#include "Tafeln.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>

namespace {

using std::numbers::pi;
constexpr int ringe = 96, laengen = 144;

QVector3D oberflaeche(const Apfelform &f, double phi, double l)
{
    const QPointF m = f.meridian(phi);
    const double r = m.x() * f.quer(l);
    const double anKelch = std::exp(-std::pow((phi - 2.55) / 0.3, 2)), anStiel = std::exp(-std::pow((phi - 0.55) / 0.3, 2));
    const double y = m.y() - anKelch * f.kelchhoecker * std::cos(5 * l + 0.4) + 0.3 * anStiel * f.kelchhoecker * std::cos(5 * l + 0.4)
                     + f.schief * r * std::sin(l) * std::sin(phi);
    return QVector3D(float(r * std::sin(l)), float(y), float(r * std::cos(l)));
}

/// An apple seen from a raised or lowered place.
class Apfelkoerper
{
public:
    /// `neigung` in degrees: positive shows the stalk cavity, negative the calyx. `radius` in units of the sheet, of which each is `mass` pixels.
    Apfelkoerper(const Apfelform &apfelform, const Apfelhaut &apfelhaut, double neigung, double sichtbarerRadius, double pixel)
        : form(apfelform),
          haut(apfelhaut),
          sinus(std::sin(neigung * pi / 180)),
          cosinus(std::cos(neigung * pi / 180)),
          mass(pixel),
          radius(sichtbarerRadius * pixel)
    {
        bild.fill(dunkler(haut.deck(), 0.15)); // the smooth outline reaches a little beyond the body
        vorn.fill(0);
        std::vector<Ecke> ecken;
        for (int i = 0; i <= ringe; ++i)
            for (int j = 0; j <= laengen; ++j)
                ecken.push_back(ecke(std::clamp(pi * i / ringe, 1e-3, pi - 1e-3), -pi + 2 * pi * j / laengen));
        for (int i = 0; i < ringe; ++i)
            for (int j = 0; j < laengen; ++j) {
                const size_t a = size_t(i) * (laengen + 1) + size_t(j), b = a + laengen + 1;
                dreieck(ecken[a], ecken[b], ecken[a + 1]);
                dreieck(ecken[a + 1], ecken[b], ecken[b + 1]);
            }
        umreissen(ecken);
    }

    /// With its stalk; what stands before the axis hides the stalk's foot.
    void zeichnen(QPainter &p, QPointF mitte, const std::function<void(QPointF fuss)> &stiel) const
    {
        const QTransform bildpixel = QTransform().translate(mitte.x(), mitte.y()).scale(1 / mass, 1 / mass);
        QBrush muster(bild);
        muster.setTransform(QTransform::fromTranslate(-halb, -halb) * bildpixel);
        const QPainterPath aussen = bildpixel.map(umrisslinie);
        ::zeichnen(p, aussen, QPen(durchsichtig(umriss(haut.deck()), 0.8), 1.8 / mass), muster);
        stiel(mitte - QPointF(0, form.stielboden() * cosinus * radius / mass));
        p.setClipPath(aussen);
        p.setTransform(bildpixel, true);
        p.drawImage(QPointF(-halb, -halb), vorn);
    }

private:
    struct Ecke
    {
        double x, y, z, laenge, breite, licht, glanz;
    };

    Ecke ecke(double phi, double l) const
    {
        const QVector3D o = oberflaeche(form, phi, l);
        const QVector3D n = QVector3D::normal(oberflaeche(form, phi, l + 0.01) - oberflaeche(form, phi, l - 0.01),
                                              oberflaeche(form, phi - 0.01, l) - oberflaeche(form, phi + 0.01, l));
        const auto geneigt = [&](const QVector3D &v) { // as one sees it
            return QVector3D(v.x(), float(v.y() * cosinus - v.z() * sinus), float(v.z() * cosinus + v.y() * sinus));
        };
        const QVector3D d = geneigt(n), ort = geneigt(o) * float(radius);
        const double streu = std::max(0.f, QVector3D::dotProduct(d, {-0.42f, 0.52f, 0.74f}));
        const double kante = 1 - std::max(0.f, d.z());
        const double halbweg = std::max(0.f, QVector3D::dotProduct(d, {-0.23f, 0.28f, 0.93f}));
        const double enge = 0.45 * std::exp(-30.0 * (o.x() * o.x() + o.z() * o.z())); // less light reaches the bottom of a cavity
        const double licht = (0.66 + 0.46 * streu - 0.12 * kante * kante) * (1 - enge);
        return {ort.x(), -ort.y(), ort.z(), l, std::cos(phi), licht, std::pow(halbweg, 42) * (1 - enge)};
    }

    void dreieck(const Ecke &a, const Ecke &b, const Ecke &c)
    {
        const double flaeche = (b.x - a.x) * (c.y - a.y) - (b.y - a.y) * (c.x - a.x);
        if (flaeche > -1e-9) // seen from behind
            return;
        const auto pixel = [&](double von) { return std::clamp(int(std::floor(von)), -halb, halb - 1); };
        const int x0 = pixel(std::min({a.x, b.x, c.x})), x1 = pixel(std::max({a.x, b.x, c.x}) + 1);
        const int y0 = pixel(std::min({a.y, b.y, c.y})), y1 = pixel(std::max({a.y, b.y, c.y}) + 1);
        for (int y = y0; y <= y1; ++y)
            for (int x = x0; x <= x1; ++x) {
                const double u = ((b.x - x) * (c.y - y) - (b.y - y) * (c.x - x)) / flaeche;
                const double v = ((c.x - x) * (a.y - y) - (c.y - y) * (a.x - x)) / flaeche;
                const double w = 1 - u - v, z = u * a.z + v * b.z + w * c.z;
                float &hier = tiefe[size_t(y + halb) * size_t(2 * halb) + size_t(x + halb)];
                if (u < -1e-6 || v < -1e-6 || w < -1e-6 || z <= double(hier))
                    continue;
                hier = float(z);
                const QRgb f = haut.farbe(u * a.laenge + v * b.laenge + w * c.laenge, u * a.breite + v * b.breite + w * c.breite);
                const double licht = u * a.licht + v * b.licht + w * c.licht, glanz = haut.glanz() * (u * a.glanz + v * b.glanz + w * c.glanz);
                const auto kanal = [&](int k) {
                    const double g = std::min(255.0, k * licht);
                    return int(g + (255 - g) * glanz);
                };
                const QRgb fertig = qRgb(kanal(qRed(f)), kanal(qGreen(f)), kanal(qBlue(f)));
                reinterpret_cast<QRgb *>(bild.scanLine(y + halb))[x + halb] = fertig;
                reinterpret_cast<QRgb *>(vorn.scanLine(y + halb))[x + halb] = z > radius * 0.05 + form.stielboden() * sinus * radius ? fertig : 0;
            }
    }

    void umreissen(const std::vector<Ecke> &ecken)
    {
        constexpr int richtungen = 180;
        std::array<double, richtungen> weite{};
        for (const Ecke &e : ecken) {
            const int i = int(std::floor((std::atan2(e.y, e.x) + pi) / (2 * pi) * richtungen)) % richtungen;
            weite[size_t(i)] = std::max(weite[size_t(i)], std::hypot(e.x, e.y));
        }
        std::vector<QPointF> punkte;
        for (size_t i = 0; i < richtungen; i += 3)
            punkte.push_back(polar(180 - (double(i) + 1.5) / richtungen * 360, (weite[i] + weite[i + 1] + weite[i + 2]) / 3));
        umrisslinie = geschlossen(punkte);
    }

    const Apfelform &form;
    const Apfelhaut &haut;
    const double sinus, cosinus, mass, radius; ///< radius in pixels
    const int halb = int(radius * 1.36) + 4;   ///< half width of the image
    std::vector<float> tiefe = std::vector<float>(size_t(4) * size_t(halb) * size_t(halb), -1e9f);
    QImage bild{2 * halb, 2 * halb, QImage::Format_RGB32}, vorn{2 * halb, 2 * halb, QImage::Format_ARGB32_Premultiplied};
    QPainterPath umrisslinie;
};

} // namespace

double fruchtkoerperMalen(QPainter &p, const QRectF &platz, const Datensatz &sorte, bool schnitt)
{
    const Apfelform form{sorte};
    const Apfelhaut haut(sorte);
    const double radius = std::min(platz.width() * 0.42, platz.height() / (schnitt ? 2.5 : 2.7)), pixelJeCm = radius / (form.durchmesser / 2);
    const QPointF mitte = platz.center() + QPointF(0, radius * 0.16);
    constexpr double neigung = 24;
    if (schnitt)
        apfelschnittMalen(p, mitte, radius, sorte, form, haut);
    else
        Apfelkoerper(form, haut, neigung, radius, p.transform().m11()).zeichnen(p, mitte, [&](QPointF fuss) {
            apfelstielMalen(p, fuss, pixelJeCm, neigung, sorte);
        });
    return pixelJeCm;
}
