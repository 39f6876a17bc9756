#pragma once

#include "Steckbrief.h"
#include "Tafel.h"

/* The two plates of a plant, without their band. */

/// The whole plant beside a measuring rod and a thing of known size, in winter too where it stands bare.
void gesamtMalen(Tafel &t, const Steckbrief &s, const Formen &formen);
/// Its parts, each with a bar, and the marks with lines to them.
void detailMalen(Tafel &t, const Steckbrief &s, const Formen &formen);

/// Bark and a twig in winter, drawn into a place.
void rindeMalen(QPainter &p, const QRectF &platz, const Steckbrief &s);
void zweigMalen(QPainter &p, const QRectF &platz, const Steckbrief &s, const Formen &formen);
/// A shoot and what it climbs with, at a rod or a wall; the plant has such a form.
void haftorganMalen(QPainter &p, const QRectF &platz, const Steckbrief &s, const Formen &formen);
/// A fruit in space as its record describes it, whole or cut; returns pixels a centimetre.
double fruchtkoerperMalen(QPainter &p, const QRectF &platz, const Datensatz &sorte, bool schnitt);
/// What the skin of a fruit shows beyond its colour: blush, streaks, dots, russet, bloom, hairs.
void fruchthautMalen(QPainter &p, const QPainterPath &haut, const Steckbrief &s);
