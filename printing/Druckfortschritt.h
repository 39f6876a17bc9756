#pragma once

#include <QtGlobal>

#include <functional>

/* How a long output tells how far it is, and how it ends before its end. */

/// Thrown out of an output that the user has cancelled.
struct Druckabbruch
{
};

/// Called again and again with what is done of how much. Throws Druckabbruch.
using Druckfortschritt = std::function<void(qsizetype fertig, qsizetype gesamt)>;
/// Plants between two reports.
inline constexpr qsizetype meldeschritt = 64;
