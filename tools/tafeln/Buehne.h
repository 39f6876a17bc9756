#pragma once

#include "Gestalt.h"

#include <functional>

/* The place where a plant is put together. Parts are collected with their depth (-1 behind, 0 middle, 1 in front, above 1
   flowers) and painted from back to front. */

struct Spross
{
    QPointF ort;
    double grad;  ///< direction it points to
    double ebene;
    double aussen; ///< 0 in the middle of the plant, 1 at its outline
};

class Buehne
{
public:
    Buehne(const Datensatz &pflanze, const Gestalt &gestalt, QPointF fuss, double hoehe, double breite, double topf, double pixelJeCm);

    Buehne(const Buehne &) = delete; // parts to be drawn refer to its stamps
    void ding(double ebene, std::function<void(QPainter &)> malen) { dinge_.emplace_back(ebene, std::move(malen)); }
    void blatt(QPointF ort, double grad, double laenge, double ebene, double querschnitt = 1);
    void trieb(const Kurve &k, double unten, double oben, const QColor &farbe, double ebene);
    void bluete(QPointF ort, double drehung, double radius, double ebene);
    void frucht(QPointF ort, double radius, double ebene, double drehung = 0);
    void malen(QPainter &p);
    /// Kurve::bogen that stays above the caption.
    Kurve gehalten(QPointF ort, double grad, double laenge, double neigung) const;

    /// Leaf length and flower radius in pixels, kept to what can be seen and what fits.
    double blattlaenge() const;
    double bluetenradius() const;
    double ton(double ebene) { return 0.17 * std::clamp(ebene, -1.0, 1.0) + zufall.streuung(0.06); }
    bool wuchs(QStringView wort) const { return pflanze.hat(u"WUCHSFORM", wort); }
    /// Whether the plant is shown with flowers, with fruits.
    bool blueht() const;
    bool fruchtet() const { return gestalt.frucht != Frucht::Keine && !fruchtfarben.empty(); }
    Bandmuster bandmuster() const;

    const Datensatz &pflanze;
    const Gestalt gestalt;
    const QPointF fuss;
    const double hoehe, breite, topf, pixelJeCm; ///< `topf` is half the opening
    const Laub laub;
    Bluetenfarben bluetenfarben;
    std::vector<QColor> fruchtfarben;
    Zufall zufall;
    std::vector<Spross> spitzen, achseln;

private:
    Stempel gerade_, rechts_, links_, bluete_;
    std::vector<Stempel> fruechte_;
    std::vector<std::pair<double, std::function<void(QPainter &)>>> dinge_;
};

/// Colours of the flowers as they are drawn: the form's main colour where the record has it, else one of the record's.
Bluetenfarben gewaehlteFarben(const Datensatz &pflanze, const Gestalt &gestalt);

/// Builds stems and leaves by the form's structure.
void wachsen(Buehne &b);
/// Puts flowers and fruits where they belong.
void bluehen(Buehne &b);
/// Height of the leaves in parts of the whole plant.
double laubanteil(const Gestalt &gestalt);

/// How the fronds of ferns and palms are divided.
const Wedel &wedelart(const Gestalt &gestalt);

// Structures, by file.
void strauch(Buehne &b);
void kraut(Buehne &b);
void baum(Buehne &b);
void eintrieb(Buehne &b);
void klettern(Buehne &b);
void haengen(Buehne &b);
void polster(Buehne &b);

void grundblaetter(Buehne &b);
void rosette(Buehne &b);
void baender(Buehne &b);
void farn(Buehne &b);
void palme(Buehne &b);
void palmfarn(Buehne &b);
void schopf(Buehne &b);

void etagen(Buehne &b);
void schirm(Buehne &b);
void geweih(Buehne &b);
void kugelkaktus(Buehne &b);
void gliederkaktus(Buehne &b);
void sukkulentrosette(Buehne &b);
void kannen(Buehne &b);
void fallen(Buehne &b);
void tentakel(Buehne &b);
void kannenpflanze(Buehne &b, QPointF blattspitze, double groesse, double ebene);
