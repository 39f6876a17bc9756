#pragma once

#include <QImage>

/// Reduces a picture of 4 bytes a pixel: every pixel becomes the mean of the area it covers, rounded. No side of `groesse` may
/// be above the picture's or below 1, no side of the picture above 65535 pixels; null where memory is short.
QImage flaechenmittel(const QImage &bild, QSize groesse);
