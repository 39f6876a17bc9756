#pragma once

#include "Form.h"
#include "Kurve.h"

#include <array>

/// Colour of every role and the marking of the blades.
struct Anstrich
{
    struct Zeichnung
    {
        QString wo;
        QColor farbe;
    };
    std::array<QColor, size_t(Rolle::Anzahl)> farben;
    std::vector<Zeichnung> zeichnung;
    bool bunteAdern = false; ///< veins are a marking: broad, and drawn where leaves are small

    QColor &operator[](Rolle r) { return farben[size_t(r)]; }
    const QColor &operator[](Rolle r) const { return farben[size_t(r)]; }
};

/// A form with all that it contains, in its own coordinates, ready to be put down many times.
class Motiv
{
public:
    Motiv() = default;
    /// `bluete` stands where the form says "*".
    Motiv(const Formen &formen, const Form &form, const Form *bluete = nullptr);

    /// What is drawn, in the form's coordinates.
    QRectF rahmen() const { return rahmen_; }
    /// Whether it spreads round 0,0 (a flower from the front) or hangs from there.
    bool rund() const { return rahmen_.top() < -40 && rahmen_.bottom() > 40; }
    bool haengt() const { return rahmen_.bottom() > -rahmen_.top() * 1.5; }
    /// Units that a flower's size in centimetres stands for.
    double blueteneinheiten() const { return rund() ? 200 : std::max({40.0, rahmen_.width(), rahmen_.height()}); }
    /// `ton` from -1 (dark) to 1 (light).
    void malen(QPainter &p, const Anstrich &anstrich, const QTransform &lage, double ton = 0) const;
    /// Bent: the form's axis from 0,0 to 0,-100 follows the curve; its width is that of a form of this length.
    Motiv gebogen(const Kurve &kurve, double laenge, double breite = 1) const;
    /// Every point moved.
    Motiv verbogen(const std::function<QPointF(QPointF)> &abbildung) const;
    /// Outline of all areas of a role.
    QPainterPath flaeche(Rolle rolle) const;

private:
    struct Strich
    {
        Rolle rolle;
        Formgruppe gruppe;
        double breite; ///< 0: an area
        QPainterPath pfad, haelfte;
        QTransform lage;
        QPointF fuss, spitze;            ///< of the form it belongs to, before `lage`
        int stueck;                      ///< counts the parts: each has its own tone
        mutable QPainterPath klein = {}; ///< the same in few straight lines, worked out when it is first drawn small
        const QPainterPath &fuer(double pixel) const;
    };
    void aufnehmen(const Formen &formen, const Form &form, const Form *bluete, const QTransform &lage, int tiefe);
    void punktMerken(size_t von);
    void rahmenMessen();
    void flaecheMalen(QPainter &p, const Strich &s, const Anstrich &a, double pixel, double ton) const;
    /// `spreite` is the blade that it lies on, null where there is none.
    void linieMalen(QPainter &p, const Strich &s, const Strich *spreite, const Anstrich &a, double pixel, double ton) const;
    /// Whether the form has lines or areas of its own for a marking: they take its colour.
    bool zeichnetSelbst(const Anstrich::Zeichnung &z) const;
    void zeichnungMalen(QPainter &p, const Strich &s, const Anstrich &a, double pixel) const;

    /// Strokes from `von` to before `bis` that are one dot where they are small.
    struct Punkt
    {
        size_t von, bis;
        QRectF kasten;
        Rolle rolle;
        Formgruppe gruppe;
    };
    std::vector<Strich> striche_;
    std::vector<Punkt> punkte_; ///< what has no parts but is no leaf is one as a whole
    QRectF rahmen_;
    int stuecke_ = 0;
    bool eigenerRand_ = false, eigeneAdern_ = false, eigeneZone_ = false; ///< the form draws these markings itself
};

/// Puts a form's foot at `ort` and its axis into the direction `grad` (90 upwards), 100 units long as `laenge` pixels.
QTransform lage(QPointF ort, double grad, double laenge, double breite = 1);
