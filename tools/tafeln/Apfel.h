#pragma once

#include "Datensatz.h"
#include "Farben.h"
#include "Zufall.h"

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
    explicit Apfelhaut(const Datensatz &sorte) : s(sorte) {}

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

    bool ohne(QStringView spalte) const { return s.hat(spalte, u"nicht vorhanden") || s.worte(spalte).isEmpty(); }
    QVector3D grund(const QColor &f) const { return rgb(s.hat(u"grundfarbe", u"trüb") ? gemischt(f, QColor(0x9B, 0x92, 0x66), 0.3) : f); }

    const Datensatz &s;
    const std::uint32_t saat_ = std::uint32_t(Zufall(s.name()).roh());
    // clang-format off
    const std::vector<QColor> gruende_ = wortfarben(s, u"grundfarbe", {{u"grün", 0xFF86AC48}, {u"grüngelb", 0xFFBFC65A}, {u"gelb", 0xFFE9CC55},
                                                                       {u"weißlich", 0xFFF0EAC6}}, 0xFFBFC65A);
    const std::vector<QColor> decken_ = wortfarben(s, u"deckfarbe", {{u"orange", 0xFFE58A36}, {u"hellrot", 0xFFD8483F}, {u"rot", 0xFFB3242E},
                                                                     {u"dunkelrot", 0xFF6E1628}}, gruende_.front().rgb());
    const QVector3D grund_ = grund(gruende_.front()), grund2_ = grund(gruende_.back());
    const QVector3D deckHell_ = rgb(decken_.front()), deckDunkel_ = rgb(decken_.back());
    const double radius_ = decken_.front() == gruende_.front() ? -9 // of the cover; negative: there is none
                           : mittel(s, u"df_ausdehn", {{u"wenig", 0.55}, {u"Backe", 0.95}, {u"großflächig", 1.6}, {u"ganz", 3.6}}, 0.95);
    const bool verwaschen_ = s.hat(u"df_art", u"verwaschen"), gleichmaessig_ = s.hat(u"df_art", u"gleichmäßig");
    const double weich_ = verwaschen_ ? 0.75 : 0.45, streifen_ = falls(s, u"df_art", u"gestreift/geflammt", 1);
    const double kraft_ = 0.86 + falls(s, u"df_art", u"kräftig", 0.12) - falls(s, u"df_art", u"zart", 0.28) - falls(s, u"df_art", u"trüb", 0.1);
    const double grundton_ = gleichmaessig_ ? 0.95 : streifen_ == 0 ? 0.85 : verwaschen_ ? 0.5 : 0.2;
    const double marmor_ = falls(s, u"df_art", u"marmoriert", 1), spritzer_ = falls(s, u"df_art", u"gesprenkelt", 1);
    const bool rauh_ = s.hat(u"rost", u"rauh");
    const double stark_ = rauh_ || s.hat(u"rost", u"schuppig") || s.hat(u"aussehen", u"rauh") ? 1.25 : s.hat(u"rost", u"fein") ? 0.75 : 1;
    const double netz_ = falls(s, u"rost", u"netzartig", 0.8 * stark_), figur_ = falls(s, u"rost", u"figurenartig", 0.75 * stark_),
                 flaeche_ = falls(s, u"rost", u"flächig", 0.8 * stark_);
    const double stielrost_ = ohne(u"st_berost") ? 0 : s.hat(u"st_berost", u"nur in Tiefe") ? 0.55 : 1;
    const double stielweite_ = falls(s, u"st_berost", u"strahlig", 1);
    const double reif_ = ohne(u"reif") ? 0 : s.hat(u"reif", u"stark") ? 0.22 : 0.12, blau_ = falls(s, u"reif", u"bläulich", 1);
    const double glanz_ = s.hat(u"aussehen", u"glänzend") ? 0.42 : s.hat(u"aussehen", u"matt") || rauh_ ? 0.14 : 0.27;
    const QVector3D punkt_ = rgb(wortfarben(s, u"sch_punkt", {{u"weißlich", 0xFFF6EED2}, {u"gelb", 0xFFEFDC86}, {u"hellbraun", 0xFFCBA268},
                                                              {u"braun", 0xFF8E6640}, {u"rostartig", 0xFFA97B46}, {u"grün", 0xFF8FA555},
                                                              {u"grau", 0xFFB9B3A4}, {u"rot", 0xFFB03A33}}, 0xFFCBA268).front());
    const double punktdichte_ = s.hat(u"sch_punkt", u"nicht vorhanden") ? 0 : s.hat(u"sch_punkt", u"zahlreich") ? 0.95
                                : s.hat(u"sch_punkt", u"wenig") ? 0.35 : 0.65;
    const double punktgroesse_ = (s.hat(u"sch_punkt", u"nicht auffällig") ? 0.8 : 1.1)
                                 * mittel(s, u"sch_punkt", {{u"sehr fein", 0.09}, {u"fein", 0.12}, {u"mittel", 0.18}, {u"groß", 0.24},
                                                            {u"sehr groß", 0.3}}, 0.13);
    // clang-format on
};

/// The stalk from `fuss`, for an apple seen from `neigung` degrees above.
void apfelstielMalen(QPainter &p, QPointF fuss, double pixelJeCm, double neigung, const Datensatz &sorte);
/// The inside, cut lengthwise; `radius` of the largest half width.
void apfelschnittMalen(QPainter &p, QPointF mitte, double radius, const Datensatz &sorte, const Apfelform &form, const Apfelhaut &haut);
