#include "Apfel.h"
#include "Farben.h"
#include "Kurve.h"
#include "Tafeln.h"

#include <QVector3D>

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>

namespace {

constexpr double pi = std::numbers::pi;
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
    Apfelkoerper(const Apfelform &form, const Apfelhaut &haut, double neigung, double radius, double mass);

    /// Place of the axis at a height (in half widths, up positive), relative to the centre.
    QPointF achse(double hoehe) const;
    void zeichnen(QPainter &p, QPointF mitte) const;
    /// Only what stands before the axis and above `bis`: it hides the foot of the stalk.
    void vordererRand(QPainter &p, QPointF mitte) const;

private:
    struct Ecke
    {
        double x, y, z, laenge, breite, licht, glanz;
    };
    void gitter();
    void dreieck(const Ecke &a, const Ecke &b, const Ecke &c);
    void umreissen();

    const Apfelform &form_;
    const Apfelhaut &haut_;
    double sinus_, cosinus_, mass_, radius_; ///< radius in pixels
    int halb_;                               ///< half width of the image
    std::vector<Ecke> ecken_;
    std::vector<float> tiefe_;
    QImage bild_, vorn_;
    QPainterPath umriss_;
};

Apfelkoerper::Apfelkoerper(const Apfelform &form, const Apfelhaut &haut, double neigung, double radius, double mass)
    : form_(form),
      haut_(haut),
      sinus_(std::sin(neigung * pi / 180)),
      cosinus_(std::cos(neigung * pi / 180)),
      mass_(mass),
      radius_(radius * mass),
      halb_(int(radius_ * 1.36) + 4)
{
    bild_ = QImage(2 * halb_, 2 * halb_, QImage::Format_ARGB32_Premultiplied);
    vorn_ = bild_;
    vorn_.fill(0);
    bild_.fill(dunkler(haut.deck(), 0.15)); // the smooth outline reaches a little beyond the body
    tiefe_.assign(size_t(4) * size_t(halb_) * size_t(halb_), -1e9f);
    gitter();
    for (int i = 0; i < ringe; ++i)
        for (int j = 0; j < laengen; ++j) {
            const size_t a = size_t(i) * (laengen + 1) + size_t(j), b = a + laengen + 1;
            dreieck(ecken_[a], ecken_[b], ecken_[a + 1]);
            dreieck(ecken_[a + 1], ecken_[b], ecken_[b + 1]);
        }
    umreissen();
}

QPointF Apfelkoerper::achse(double hoehe) const
{
    return {0, -hoehe * cosinus_ * radius_ / mass_};
}

void Apfelkoerper::gitter()
{
    ecken_.reserve(size_t(ringe + 1) * (laengen + 1));
    for (int i = 0; i <= ringe; ++i) {
        const double phi = std::clamp(pi * i / ringe, 1e-3, pi - 1e-3);
        for (int j = 0; j <= laengen; ++j) {
            const double l = -pi + 2 * pi * j / laengen;
            const QVector3D o = oberflaeche(form_, phi, l);
            const QVector3D n = QVector3D::normal(oberflaeche(form_, phi, l + 0.01) - oberflaeche(form_, phi, l - 0.01),
                                                  oberflaeche(form_, phi - 0.01, l) - oberflaeche(form_, phi + 0.01, l));
            const auto geneigt = [&](const QVector3D &v) { // as one sees it
                return QVector3D(v.x(), float(v.y() * cosinus_ - v.z() * sinus_), float(v.z() * cosinus_ + v.y() * sinus_));
            };
            const QVector3D d = geneigt(n), ort = geneigt(o) * float(radius_);
            const double streu = std::max(0.f, QVector3D::dotProduct(d, {-0.42f, 0.52f, 0.74f}));
            const double kante = 1 - std::max(0.f, d.z());
            const double halbweg = std::max(0.f, QVector3D::dotProduct(d, {-0.23f, 0.28f, 0.93f}));
            const double enge = 0.45 * std::exp(-30.0 * (o.x() * o.x() + o.z() * o.z())); // less light reaches the bottom of a cavity
            ecken_.push_back({ort.x(), -ort.y(), ort.z(), l, std::cos(phi), (0.66 + 0.46 * streu - 0.12 * kante * kante) * (1 - enge),
                              std::pow(halbweg, 42) * (1 - enge)});
        }
    }
}

void Apfelkoerper::dreieck(const Ecke &a, const Ecke &b, const Ecke &c)
{
    const double flaeche = (b.x - a.x) * (c.y - a.y) - (b.y - a.y) * (c.x - a.x);
    if (std::abs(flaeche) < 1e-9)
        return;
    const int x0 = std::max(-halb_, int(std::floor(std::min({a.x, b.x, c.x})))), x1 = std::min(halb_ - 1, int(std::ceil(std::max({a.x, b.x, c.x}))));
    const int y0 = std::max(-halb_, int(std::floor(std::min({a.y, b.y, c.y})))), y1 = std::min(halb_ - 1, int(std::ceil(std::max({a.y, b.y, c.y}))));
    for (int y = y0; y <= y1; ++y) {
        for (int x = x0; x <= x1; ++x) {
            const double u = ((b.x - x) * (c.y - y) - (b.y - y) * (c.x - x)) / flaeche;
            const double v = ((c.x - x) * (a.y - y) - (c.y - y) * (a.x - x)) / flaeche;
            const double w = 1 - u - v;
            if (u < -1e-6 || v < -1e-6 || w < -1e-6)
                continue;
            const double z = u * a.z + v * b.z + w * c.z;
            float &tiefe = tiefe_[size_t(y + halb_) * size_t(2 * halb_) + size_t(x + halb_)];
            if (z <= double(tiefe))
                continue;
            tiefe = float(z);
            const QRgb f = haut_.farbe(u * a.laenge + v * b.laenge + w * c.laenge, u * a.breite + v * b.breite + w * c.breite);
            const double licht = u * a.licht + v * b.licht + w * c.licht, glanz = haut_.glanz() * (u * a.glanz + v * b.glanz + w * c.glanz);
            const auto kanal = [&](int k) {
                const double g = std::min(255.0, k * licht);
                return int(g + (255 - g) * glanz);
            };
            const QRgb fertig = qRgb(kanal(qRed(f)), kanal(qGreen(f)), kanal(qBlue(f)));
            reinterpret_cast<QRgb *>(bild_.scanLine(y + halb_))[x + halb_] = fertig;
            reinterpret_cast<QRgb *>(vorn_.scanLine(y + halb_))[x + halb_] = z > radius_ * 0.05 + form_.stielboden() * sinus_ * radius_ ? fertig : 0;
        }
    }
}

void Apfelkoerper::umreissen()
{
    constexpr int richtungen = 180;
    std::array<double, richtungen> weite{};
    for (const Ecke &e : ecken_) {
        const int i = int(std::floor((std::atan2(e.y, e.x) + pi) / (2 * pi) * richtungen)) % richtungen;
        weite[size_t(i)] = std::max(weite[size_t(i)], std::hypot(e.x, e.y));
    }
    std::vector<QPointF> punkte;
    for (int i = 0; i < richtungen; i += 3) {
        const double w = (weite[size_t(i)] + weite[size_t(i + 1)] + weite[size_t(i + 2)]) / 3;
        const double winkel = (i + 1.5) / richtungen * 2 * pi - pi;
        punkte.emplace_back(std::cos(winkel) * w, std::sin(winkel) * w);
    }
    umriss_ = geschlossen(punkte);
}

void Apfelkoerper::zeichnen(QPainter &p, QPointF mitte) const
{
    p.save();
    p.translate(mitte);
    p.scale(1 / mass_, 1 / mass_);
    QBrush muster(bild_);
    muster.setTransform(QTransform::fromTranslate(-halb_, -halb_));
    p.setBrush(muster);
    p.setPen(QPen(durchsichtig(::umriss(haut_.deck()), 0.8), 1.8));
    p.drawPath(umriss_);
    p.restore();
}

void Apfelkoerper::vordererRand(QPainter &p, QPointF mitte) const
{
    p.save();
    p.translate(mitte);
    p.scale(1 / mass_, 1 / mass_);
    p.setClipPath(umriss_);
    p.drawImage(QPointF(-halb_, -halb_), vorn_);
    p.restore();
}

} // namespace

double fruchtkoerperMalen(QPainter &p, const QRectF &platz, const Datensatz &sorte, bool schnitt)
{
    const Apfelform form(sorte);
    const Apfelhaut haut(sorte);
    const double radius = std::min(platz.width() * 0.42, platz.height() / (schnitt ? 2.5 : 2.7)), pixelJeCm = radius / (form.durchmesser / 2);
    const QPointF mitte = platz.center() + QPointF(0, radius * 0.16);
    if (schnitt) {
        apfelschnittMalen(p, mitte, radius, sorte, form, haut);
        return pixelJeCm;
    }
    constexpr double neigung = 24;
    const Apfelkoerper koerper(form, haut, neigung, radius, p.transform().m11());
    koerper.zeichnen(p, mitte);
    apfelstielMalen(p, mitte + koerper.achse(form.stielboden()), pixelJeCm, neigung, sorte);
    koerper.vordererRand(p, mitte);
    return pixelJeCm;
}
