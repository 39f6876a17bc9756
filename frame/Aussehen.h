#pragma once

#include <QColor>
#include <QPalette>

#include <vector>

/* Colours and shapes of the whole program, in one place: a light scheme and a dark one of the same words. */
namespace aussehen {

enum class Schema { Hell, Dunkel };

/// Style and palette of the program; again at any time to change the scheme.
void anwenden(Schema schema = Schema::Hell);
Schema schema();
/// The colours of a scheme, for a window that stands on a picture with colours of its own.
QPalette palette(Schema schema);

/// A colour of text and a ground that it stands on somewhere in the program.
struct Farbpaar
{
    const char *wo;
    QColor schrift, grund;
};
/// All of a scheme; each reads at 4.5 : 1 or better.
std::vector<Farbpaar> farbpaare(Schema schema);

} // namespace aussehen
