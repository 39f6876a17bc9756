#pragma once

#include <QStringView>

#include <span>

class Befehle;
class QMenuBar;
class QWidget;

/* The menu bar as a table: every entry once, with its name and its text. What it does is the command of its name. */

struct Menuezeile
{
    int ebene;        ///< 0: in the menu bar
    const char *name; ///< objectName; of separators too
    QStringView text; ///< empty: a separator
    bool menue;
    const char *taste = nullptr; ///< shortcut, shown beside the text
};

std::span<const Menuezeile> menuezeilen();
/// Builds the bar; an entry that has no command now is disabled. `fenster` shows what a command fails by.
void menueBauen(QMenuBar &leiste, QWidget *fenster, Befehle &befehle);
