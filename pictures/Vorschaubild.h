#pragma once

#include <QSize>

/* The measures of previews, wherever they are made or shown. */

/// The box that a preview fits into, twips.
inline constexpr int vorschauBreite = 2000, vorschauHoehe = 1500;

/// Size in pixels of the preview of a picture of that many pixels: the height of the box, or where that were too wide, its width. It is
/// rounded to whole twips and then to pixels, 1 x 1 at least, and may be larger than the picture. Empty for an empty size.
QSize vorschaugroesse(QSize bild);
