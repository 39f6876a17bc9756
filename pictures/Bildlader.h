#pragma once

#include <QImage>
#include <QString>

#include <functional>

/* Pictures from files: JPEG, GIF, PNG, BMP by their content, SVG by its ending. Sizes are pixels, as shown, i.e. turned as
   EXIF says. A file that is missing, damaged, cut by more than its end mark, none of these or larger than `groesstesBild` gives an empty size or
   a null picture, never an exception. Paths may be written with "\". Every function may run on any thread. */

constexpr qint64 groesstesBild = 300'000'000; ///< pixels that are decoded at most; a side has at most 65535

/// The largest size of the same proportions that fits the box, 1 x 1 at least; it may be larger than the picture.
QSize einpassen(QSize bild, QSize kasten);
/// Reads the head of the file only and asks whether the file is long enough for it: the pixels may still prove unreadable.
QSize bildgroesse(const QString &pfad);
/// The picture in the size that `einpassen` gives. A JPEG is never decoded larger than needed.
QImage ladeSkaliert(const QString &pfad, QSize kasten);
/// The same in the size that `groesse` says for the picture's own; an empty one gives a null picture.
QImage ladeInGroesse(const QString &pfad, const std::function<QSize(QSize)> &groesse);
/// The picture in a part of its own size, rounded up; `teiler` is 1, 2, 4 or 8.
QImage ladeTeil(const QString &pfad, int teiler);
/// The picture in its own size.
QImage ladeGanz(const QString &pfad);
