#pragma once

#include "Fensterprobe.h"

struct Aufgabe;

/* What the tests of practice do and ask. */

/// Opens the window with all plants or the first few, and makes it the active one.
void oeffnen(Fensterprobe &probe, int pflanzen = 0);
/// A key to the focus.
void taste(Qt::Key welche, Qt::KeyboardModifiers umschalter = Qt::NoModifier);
/// Letters of any script to the focus.
void tippen(const QString &text);
/// Whether a widget can be seen in its window, on whatever tab it stands.
bool zuSehen(const QWidget *control, const QWidget *fenster);
/// What is asked of the plant shown.
Aufgabe aufgabe(Fensterprobe &probe);
/// A box has gone: the window is the active one again.
void nachDerBox(Fensterprobe &probe);
QString standdatei(const Fensterprobe &probe);
