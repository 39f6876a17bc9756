#pragma once

#include "Farben.h"
#include "Stempel.h"
#include "Zufall.h"

/* Leaves: the simple ones as stamps, long ones as ribbons along a curve, fronds as pinnae along a rachis. */

enum class Blattform {
    Elliptisch, Eiform, Lanzett, Lineal, Herz, Pfeil, Rund, Niere, Schild, Verkehrtei, Spatel, Geige, Zunge, Nadel, Raute, Faecher,
    AnzahlEinfache,
    Ahorn = AnzahlEinfache, Efeu, Hand, Drilling, ///< lobed
    Gefingert, Gefiedert, Doppelfieder,           ///< compound
    Fenster,                                      ///< perforated
};
enum class Rand { Glatt, Gesaegt, Gekerbt, Gewellt, Gelappt };
enum class Adern { Keine, Fieder, Hand, Bogen };

struct Blattart
{
    Blattform form = Blattform::Elliptisch;
    Rand rand = Rand::Glatt;
    Adern adern = Adern::Fieder;
    double breite = 1;
    bool schief = false;
};

/// `fein`: with all veins, for a large drawing.
Stempel blattstempel(const Blattart &art, const Laub &laub, Muster muster, Zufall zufall, bool fein = false);

enum class Bandmuster { Keins, Laengs, Rand, Quer, Flecken };

struct Bandblatt
{
    double breite = 20; ///< of the whole leaf at its widest
    double spitze = 0.6; ///< where it begins to narrow, 0 to 1
    double grund = 1;    ///< width at its base in parts of the widest
    bool stachlig = false, gewellt = false;
    Bandmuster muster = Bandmuster::Keins;
};
void bandblatt(QPainter &p, const Kurve &k, const Bandblatt &form, const QColor &grund, const QColor &zweite, double ton);

struct Wedel
{
    int paare = 18;
    double fiederlaenge = 0.22; ///< of the longest pinna, in parts of the frond
    double fiederbreite = 1;
    double winkel = 62;   ///< of the pinnae to the rachis
    double kahl = 0.12;   ///< part of the stalk without pinnae
    double gipfel = 0.4;  ///< where the longest pinnae stand
};
void wedel(QPainter &p, const Kurve &k, const Wedel &form, const Stempel &fieder, const QColor &stielfarbe, double ton);
