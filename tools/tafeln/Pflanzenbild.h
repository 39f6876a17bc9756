#pragma once

#include "Steckbrief.h"
#include "Zufall.h"

#include <algorithm>
#include <cmath>

/* Where a habit is put together. The foot of the plant is 0,0, y grows downwards. Parts are collected with their depth (-1 behind, 0 middle,
   1 in front, above 1 flowers) and painted from back to front; what they will cover is known before. */

/// A direction in space as it looks from the front and a little above.
struct Blickrichtung
{
    Blickrichtung(double umlauf, double steigung);
    /// The i-th all round, each a golden angle on: none stands behind another.
    static Blickrichtung rundum(int i, double steigung, double daneben = 0) { return {360 * std::fmod(i * 0.381966, 1.0) + daneben, steigung}; }
    double grad, laenge, tiefe; ///< on the sheet; shortened to; 1 towards the viewer
};

/// Shoots of a woody plant and the places of their leaves.
struct Geruest
{
    struct Ast
    {
        Kurve kurve;
        double unten, oben;
        int ordnung;
    };
    struct Spitze
    {
        QPointF ort;
        double grad;
    };
    std::vector<Ast> aeste;
    std::vector<Spitze> spitzen;
};

class Pflanzenbild
{
public:
    /// `wuchs`: what is built in place of the whole plant.
    Pflanzenbild(const Steckbrief &s, const Formen &formen, double pixelJeMeter, bool winter, QStringView wuchs = {});

    void malen(QPainter &p);
    /// Box of all that is painted, of the plant without its pot.
    QRectF kasten() const { return kasten_; }
    QRectF pflanzenkasten() const { return pflanze_; }

    // What habits are made of.
    /// `licht` from -1 to 1 makes it darker or lighter than others at its depth.
    void blatt(QPointF ort, double grad, double laenge, double ebene, double breite = 1, double licht = 0);
    void bandblatt(const Kurve &k, double breite, double ebene);
    /// Bands side by side from the foot, the outer ones leaning and bent.
    void bandhorst(int anzahl, double spreizung, double laenge, double neigung, double breite);
    /// Stalk and blade; returns where the blade begins.
    QPointF gestielt(QPointF fuss, double grad, double stiellaenge, double neigung, double laenge, double ebene, double breite = 1);
    void trieb(const Kurve &k, double unten, double oben, const QColor &farbe, double ebene);
    /// Leaves along a shoot as the plant sets them.
    void beblaettern(const Kurve &k, double von, double bis, double laenge, double ebene, double abstand = 0.55);
    void bluete(QPointF ort, double grad, double ebene);
    /// Inflorescence where the plant has one, else a flower.
    void bluehe(QPointF ort, double grad, double ebene, double groesse = 1);
    /// Flower stalks from the foot of the plant.
    void schaefte(int anzahl, double hoehe, double streuung);
    void frucht(QPointF ort, double ebene);
    void form(const QPainterPath &pfad, const QColor &farbe, double ebene, double strich = 1);
    void linie(const QPainterPath &pfad, const QPen &stift, double ebene);
    void topf(double halbeWeite, double hoehe);
    void ding(double ebene, const QRectF &kasten, std::function<void(QPainter &)> malen);

    double schlank() const { return schlank_; } ///< width of the blade as a part of its length
    bool bandartig() const { return schlank_ < 0.2; }
    /// Whether this shape of the plant, in leaf or bare, is the one that flowers.
    bool bluehtJetzt() const { return s.zeigtBlueten() && winter == s.vorLaub; }
    double hoehe() const { return s.hoehe * px; }
    double bluetenhoehe() const { return s.bluetenhoehe * px; }
    double halb() const { return s.hoehe * px * s.breite / 2; } ///< half the width
    double blattlaenge(double kleinste = 9) const { return std::clamp(s.blattlaenge / 100 * px, kleinste, std::max(kleinste * 1.5, hoehe() * 1.1)); }
    int zahl(int sonst) const { return s.bluetenzahl > 0 ? s.bluetenzahl : sonst; }
    QColor stielfarbe() const { return s.anstrich[Rolle::Stiel]; }

    const Steckbrief &s;
    const double px; ///< pixels per metre
    const bool winter;
    Zufall zufall;

private:
    void bauen(QStringView wuchs);
    void motiv(const Motiv &m, const QTransform &dort, double ebene, double ton);
    double ton(double ebene) { return 0.13 * std::clamp(ebene, -1.0, 1.0) + zufall.streuung(0.045); }

    Motiv blatt_, blattRechts_, blattLinks_, bluete_, stand_, frucht_;
    double schlank_ = 1;
    QRectF kasten_, pflanze_;
    std::vector<std::pair<double, std::function<void(QPainter &)>>> dinge_;
};

/// A habit puts the plant together; each room knows some by their words.
using Wuchs = std::pair<QStringView, void (*)(Pflanzenbild &)>;
extern const std::span<const Wuchs> wuchsKraut, wuchsGehoelz, wuchsSonder;
