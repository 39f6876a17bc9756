#pragma once

#include "store/Sparten.h"

#include <QHash>
#include <QString>

#include <functional>
#include <optional>
#include <span>

class QAction;
class QMenu;
class QMenuBar;
class QWidget;

/* The menu bar as a table: every entry once, with its name, its text and what it does. */

enum class Befehl {
    Keiner,       ///< a menu, a separator, or an entry whose room is not built yet
    Oeffnen,      ///< a window of `sparten[0]`
    Ausbildung,   ///< windows of `sparten`, restricted to the trade `beruf`
    Ueberlappend,
    Nebeneinander,
    Untereinander,
    Beenden
};

struct Menuezeile
{
    int ebene;        ///< 0: in the menu bar
    const char *name; ///< objectName; of separators too
    QStringView text; ///< empty: a separator
    bool menue;
    Befehl befehl = Befehl::Keiner;
    std::span<const Sparte> sparten = {};
    int beruf = -1;   ///< position in AzubiAuswahl
    const char *taste = nullptr; ///< shortcut, shown beside the text
};

std::span<const Menuezeile> menuezeilen();
/// Builds the bar; `ausfuehren` is called with the row of the entry chosen.
void menueBauen(QMenuBar &leiste, QWidget *fenster, std::function<void(const Menuezeile &)> ausfuehren);
