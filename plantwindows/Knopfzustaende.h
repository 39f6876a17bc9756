#pragma once

#include "controls/Knopfreihe.h"

#include <QStringView>

#include <span>

/* The picture buttons of a plant window and the picture each shows in each state. */

enum class Knopf { First, Back, Next, Last, BotDeu, FilterEin, Filter, FilterLaden, FilterSpeichern, Druck };
inline constexpr int anzahlKnoepfe = 10;

struct Knopfzeile
{
    Knopf knopf;
    const char *name;
    QStringView hinweis;
    QStringView bild;            ///< base key; the toggling buttons have another in their second state
    bool kannGrau;               ///< has a greyed picture
    bool navigation;             ///< shows the hourglass while pressed
    bool nurDeutsch;             ///< missing in windows without German order
    const char *taste = nullptr; ///< shortcut of its action
};

/// In the order in which they are reset to normal.
std::span<const Knopfzeile> knopfzeilen();

/// What the toggling buttons depend on.
struct Umschaltungen
{
    bool botanisch = true;
    bool filterEin = true;
};

/// Key in iliIcons for a button's state; a disabled button that has a greyed picture shows it as its normal one.
QString knopfbild(const Knopfzeile &zeile, Knopfzustand zustand, bool bedienbar, const Umschaltungen &umschaltungen);
