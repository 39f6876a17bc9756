#pragma once

#include <QRectF>

#include <cmath>

/// The foot of a plate, on which the plant's name stands, as a part of the plate's height. Of any picture it is as much.
inline constexpr double namensband = 0.113;

/// The foot of a picture that is painted at `bild`; it hides its edge as well.
inline QRectF namensbandVon(const QRectF &bild)
{
    const double oben = std::floor(bild.bottom() - bild.height() * namensband);
    return {bild.left(), oben, bild.width(), bild.bottom() - oben};
}
