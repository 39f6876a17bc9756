#pragma once

#include "Form.h"
#include "Stempel.h"

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

    bool leer() const { return striche_.empty(); }
    /// What is drawn, in the form's coordinates.
    QRectF rahmen() const { return rahmen_; }
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
        QPointF fuss, spitze; ///< of the form it belongs to, before `lage`
        int stueck;           ///< counts the parts: each has its own tone
    };
    void aufnehmen(const Formen &formen, const Form &form, const Form *bluete, const QTransform &lage, int tiefe);
    void knospe(const QTransform &lage);
    void rahmenMessen();
    void flaecheMalen(QPainter &p, const Strich &s, const Anstrich &a, double pixel, double ton) const;
    void linieMalen(QPainter &p, const Strich &s, const Anstrich &a, double pixel, double ton) const;
    void zeichnungMalen(QPainter &p, const Strich &s, const Anstrich &a, double pixel) const;

    std::vector<Strich> striche_;
    QRectF rahmen_;
    int stuecke_ = 0;
    bool eigenerRand_ = false; ///< the form draws its margin itself
};

/// Puts a form's foot at `ort` and its axis into the direction `grad` (90 upwards), 100 units long as `laenge` pixels.
QTransform lage(QPointF ort, double grad, double laenge, double breite = 1);
