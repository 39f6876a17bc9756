#pragma once

#include "store/Programm.h"

#include <QString>

#include <span>
#include <variant>

/* The lasting settings: one row each, read and written by one loop. */

struct Einstellung
{
    using Ziel = std::variant<QString Programm::*, bool Programm::*, int Programm::*, long Programm::*, double Programm::*>;

    const char *schluessel; ///< below the root key
    const char *name;
    Ziel ziel;
    const char *vorgabe;
};

std::span<const Einstellung> einstellungstabelle();
inline constexpr QStringView wurzelschluessel = u"Software\\FH Lindenhof\\FLOX3-DEMO";
/// Key of the design program, and the values that the companions' setups leave there: their folders.
inline constexpr QStringView begleiterSchluessel = u"Software\\FH Lindenhof\\Mulko1.0\\Pfade";
inline constexpr QStringView mulkoVerz = u"Mulko-Verz", editorVerz = u"FLOX-Editor-Verz";

/// Text of a setting as it is stored: "True"/"False" and decimal numbers.
QString einstellungstext(const Programm &programm, const Einstellung &zeile);

/// Reads all settings; the program's own key wins over the design program's, that one over the editor's. A blank counts as not
/// set. Writes the paths back, so that the keys exist from the first run; where that fails they come with the next write.
void EinstellungenLesen(Programm &programm);
/// Writes the truth about the working database alone; false when the disk did not take it.
[[nodiscard]] bool OriginalDatenbankSchreiben(const Programm &programm);
/// Writes all settings; false when the disk did not take them. The caller has put the window's geometry into `programm`.
[[nodiscard]] bool EinstellungenSchreiben(const Programm &programm);
