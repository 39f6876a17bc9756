#pragma once

#include "Datensatz.h"
#include "Zufall.h"

#include <QColor>
#include <QPainter>

/* An apple as a body in space, as its record describes it. */

/// Shape of an apple as its record describes it. Lengths are parts of the largest half width.
struct Apfelform
{
    explicit Apfelform(const Datensatz &sorte);

    double durchmesser; ///< cm
    double hoehe;       ///< of the body
    double bauch;       ///< place of the largest width, -1 stalk to 1 calyx
    double kegel, fass, schief;
    double stielgrubeTiefe, stielgrubeWeite;
    double kelchgrubeTiefe, kelchgrubeWeite;
    double kanten, rippen, unruhe, oval; ///< strength of five edges, of ribs, of irregular waves, of flatness
    double kelchhoecker;

    /// Half width and height (up positive) of the meridian at `phi`, 0 at the stalk to pi at the calyx, without cross relief.
    QPointF meridian(double phi) const;
    /// Factor of the half width at a longitude.
    double quer(double laenge) const;
    /// Floor of the stalk cavity and of the calyx basin, up positive.
    double stielboden() const { return meridian(0).y(); }
    double kelchboden() const { return meridian(3.14159265358979).y(); }
};

/// Colours of an apple's skin at any point, from its record.
class Apfelhaut
{
public:
    explicit Apfelhaut(const Datensatz &sorte);

    /// `laenge` in radians, 0 to the viewer; `breite` from 1 at the stalk to -1 at the calyx.
    QRgb farbe(double laenge, double breite) const;
    QColor grund() const { return QColor::fromRgbF(float(grund_[0]), float(grund_[1]), float(grund_[2])); }
    /// Main cover colour; the ground colour where the record has none.
    QColor deck() const;
    double glanz() const { return glanz_; }

private:
    struct Rgb
    {
        double k[3];
        double operator[](int i) const { return k[i]; }
        void zu(const Rgb &f, double anteil)
        {
            for (int i = 0; i < 3; ++i)
                k[i] += (f.k[i] - k[i]) * anteil;
        }
    };
    static Rgb rgb(const QColor &f) { return {{f.redF(), f.greenF(), f.blueF()}}; }

    QRgb einfach(double laenge, double breite) const;
    double rauschen(double x, double y, std::uint32_t lage) const;
    double wolken(double x, double y, std::uint32_t lage) const { return 0.65 * rauschen(x, y, lage) + 0.35 * rauschen(2.1 * x, 2.1 * y, lage + 7); }
    double deckung(double laenge, double breite) const;
    double streifen(double laenge, double breite) const;
    double berostung(double laenge, double breite) const;
    void punkte(Rgb &f, double laenge, double breite, double rot) const;

    Rgb grund_, grund2_, deckHell_, deckDunkel_, rost_, punkt_;
    double radius_, weich_, kraft_, streifen_, grundton_, marmor_, spritzer_;
    double netz_, figur_, flaeche_, stielrost_, stielweite_, reif_, blau_, glanz_;
    double punktdichte_, punktgroesse_;
    std::uint32_t saat_;
};

/// The stalk from `fuss`, for an apple seen from `neigung` degrees above.
void apfelstielMalen(QPainter &p, QPointF fuss, double pixelJeCm, double neigung, const Datensatz &sorte);
/// The inside, cut lengthwise; `radius` of the largest half width.
void apfelschnittMalen(QPainter &p, QPointF mitte, double radius, const Datensatz &sorte, const Apfelform &form, const Apfelhaut &haut);

/// Mean of the values whose words the record has; `sonst` where it has none.
double mittel(const Datensatz &sorte, QStringView spalte, std::initializer_list<std::pair<QStringView, double>> werte, double sonst);
/// Colours of the words that the record has, in the order given.
std::vector<QColor> wortfarben(const Datensatz &sorte, QStringView spalte, std::initializer_list<std::pair<QStringView, QRgb>> farben);
