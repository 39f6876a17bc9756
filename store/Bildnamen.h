#pragma once

#include <QString>

/// Lower-case ASCII file stem of a plant's pictures: "× Fatshedera lizei" -> "fatshedera-lizei". Two different names may give
/// the same stem; a name without any letter or digit gives an empty one.
QString bildname(const QString &botName);
