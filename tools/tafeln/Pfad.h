#pragma once

#include <QPainterPath>
#include <QString>
#include <QTransform>

#include <optional>

/// Path of SVG text with the commands M L H V C S Q T A Z; none where the text breaks their grammar.
std::optional<QPainterPath> pfadAus(QStringView text);
/// An outline of the drawing code, of which one knows that it can be read, stretched.
inline QPainterPath kontur(QStringView text, double breite, double hoehe)
{
    return QTransform::fromScale(breite, hoehe).map(pfadAus(text).value());
}
