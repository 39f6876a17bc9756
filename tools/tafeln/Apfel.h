#pragma once

#include "Datensatz.h"
#include "Zufall.h"

#include <QColor>
#include <QPainter>
#include <QVector3D>

/* An apple as a body in space, as its record describes it. */

/// Mean of the values whose words the record has; `sonst` where it has none.
double mittel(const Datensatz &sorte, QStringView spalte, std::initializer_list<std::pair<QStringView, double>> werte, double sonst);
/// Colours of the words that the record has, in the order given; `sonst` where it has none.
std::vector<QColor> wortfarben(const Datensatz &sorte, QStringView spalte, std::initializer_list<std::pair<QStringView, QRgb>> farben, QRgb sonst);
/// The value where the record has the word, else 0.
inline double falls(const Datensatz &sorte, QStringView spalte, QStringView wort, double wert)
{
    return sorte.hat(spalte, wort) ? wert : 0.0;
}

/// Shape of an apple as its record describes it. Lengths are parts of the largest half width.
struct Apfelform
{
    const Datensatz &sorte;
    const double durchmesser = mittel(sorte, u"fruchtgr", {{u"klein", 5.6}, {u"mittelgroß", 6.9}, {u"groß", 8.1}, {u"sehr groß", 9.4}}, 7); ///< cm
    const double hoehe =
        mittel(sorte, u"form_l", {{u"flach", 0.78}, {u"kugelig", 0.93}, {u"hoch", 1.1}, {u"walzenförmig/faßförmig", 1.08}}, 0.92); ///< of the body
    const double bauch = mittel(sorte, u"form_l", {{u"stielbauchig", -0.24}, {u"mittelbauchig", 0.0}, {u"kelchbauchig", 0.2}},
                                0); ///< place of the largest width, -1 stalk to 1 calyx
    const double kegel = falls(sorte, u"form_l", u"kegelförmig", 0.2);
    const double fass = 2.12 + falls(sorte, u"form_l", u"walzenförmig/faßförmig", 0.9);
    const double schief = falls(sorte, u"form_l", u"schiefgebaut", 0.10);
    const double stielgrubeTiefe = mittel(sorte, u"st_grube", {{u"flach", 0.16}, {u"mitteltief", 0.27}, {u"tief", 0.4}}, 0.27);
    const double stielgrubeWeite = mittel(sorte, u"st_grube", {{u"eng", 0.42}, {u"mittelweit", 0.56}, {u"weit", 0.72}}, 0.56);
    const double kelchgrubeTiefe = mittel(sorte, u"k_grube", {{u"aufsitzend", 0.02}, {u"flach", 0.12}, {u"mitteltief", 0.22}, {u"tief", 0.34}}, 0.2);
    const double kelchgrubeWeite = mittel(sorte, u"k_grube", {{u"eng", 0.36}, {u"mittelweit", 0.48}, {u"weit", 0.62}}, 0.48);
    const double kanten = mittel(sorte, u"form_q", {{u"rund", 0}, {u"rundkantig", 0.022}, {u"kantig", 0.045}}, 0)
                          + falls(sorte, u"fruchtrel", u"Kanten", 0.008);       ///< strength of five edges
    const double rippen = falls(sorte, u"fruchtrel", u"Rippen", 0.02);          ///< of ribs
    const double unruhe = falls(sorte, u"form_q", u"unregelmäßig rund", 0.022); ///< of irregular waves
    const double oval = falls(sorte, u"form_q", u"oval", 0.08);                 ///< of flatness
    const double kelchhoecker =
        falls(sorte, u"k_umgebung", u"Höcker", 0.05) + falls(sorte, u"k_umgebung", u"Rippen", 0.04) + falls(sorte, u"k_umgebung", u"wellig", 0.02);

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
    /// Main cover colour; the ground colour where the record has none.
    QColor deck() const;
    double glanz() const { return glanz_; }

private:
    static QVector3D rgb(const QColor &f) { return {f.redF(), f.greenF(), f.blueF()}; }
    static void zu(QVector3D &f, const QVector3D &andere, double anteil) { f += (andere - f) * float(anteil); }

    QRgb einfach(double laenge, double breite) const;
    double rauschen(double x, double y, std::uint32_t lage) const;
    double wolken(double x, double y, std::uint32_t lage) const { return 0.65 * rauschen(x, y, lage) + 0.35 * rauschen(2.1 * x, 2.1 * y, lage + 7); }
    double deckung(double laenge, double breite) const;
    double streifen(double laenge, double breite) const;
    double berostung(double laenge, double breite) const;
    void punkte(QVector3D &f, double laenge, double breite, double rot) const;

    QVector3D grund_, grund2_, deckHell_, deckDunkel_, rost_, punkt_;
    double radius_, weich_, kraft_, streifen_, grundton_, marmor_, spritzer_;
    double netz_, figur_, flaeche_, stielrost_, stielweite_, reif_, blau_, glanz_;
    double punktdichte_, punktgroesse_;
    std::uint32_t saat_;
};

/// The stalk from `fuss`, for an apple seen from `neigung` degrees above.
void apfelstielMalen(QPainter &p, QPointF fuss, double pixelJeCm, double neigung, const Datensatz &sorte);
/// The inside, cut lengthwise; `radius` of the largest half width.
void apfelschnittMalen(QPainter &p, QPointF mitte, double radius, const Datensatz &sorte, const Apfelform &form, const Apfelhaut &haut);
