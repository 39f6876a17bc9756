#pragma once

#include <QPainter>

/* What plants stand in. `mund` is the middle of the opening, sizes are in pixels. */

enum class Gefaess { Topf, Kuebel, Ampel };

struct Gefaessmass
{
    double breite, hoehe; ///< of the opening and of the whole
};

void gefaessZeichnen(QPainter &p, Gefaess art, QPointF mund, Gefaessmass mass, int spielart);
/// Support behind a climber, from the ground up to a height.
void spalier(QPainter &p, QPointF fuss, double breite, double hoehe);
void rankring(QPainter &p, QPointF fuss, double breite, double hoehe);
void moosstab(QPainter &p, QPointF fuss, double breite, double hoehe);
