#pragma once

#include <QPainterPath>
#include <QString>

#include <optional>

/// Path of SVG text with the commands M L H V C S Q T A Z; none where the text breaks their grammar.
std::optional<QPainterPath> pfadAus(QStringView text);
