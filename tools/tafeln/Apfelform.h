#pragma once

#include "Datensatz.h"

#include <QPainterPath>

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

/// Mean of the values whose words the record has; `sonst` where it has none.
double mittel(const Datensatz &sorte, QStringView spalte, std::initializer_list<std::pair<QStringView, double>> werte, double sonst);
