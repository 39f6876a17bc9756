#pragma once

#include <QString>
#include <QStringList>

/* The folder of one user, where the program is installed for all and its own folder is only read. It looks like a program folder:
   pictures and icons are links to the shared ones, the database is the user's own. The only file that knows of links. Paths are the
   system's. */
namespace benutzerordner {

/// Bears it: the program is installed for all, whatever the rights of the one who starts it.
inline constexpr char marke[] = "installiert.txt";

/// Whether the program in this folder is installed for all: it bears the mark, or nothing can be written there.
[[nodiscard]] bool wirdGeteilt(const QString &programm);
/// The present user's folder; it need not be there yet.
[[nodiscard]] QString ort();

/// What the user should be told; all empty: nothing has changed.
struct Bericht
{
    bool neueDaten = false; ///< the data were exchanged for those of a new version
    int pflanzen = 0;       ///< whose notes or properties were carried over
    QString bisherige;      ///< where the former database is kept
    QString ohnePflanze;    ///< file with what found no plant any more; empty: everything did
    [[nodiscard]] QString satz() const;
};
/// Makes the folder, or brings it up to date when the shared one has changed; does nothing else. The working database, or the saved
/// original while another one is loaded, takes the new data and keeps what the user wrote; the former one is kept, too. A file of the
/// user's own in the place of a link stays. Throws when that fails; what was there before still is, and the next call tries again.
[[nodiscard]] Bericht einrichten(const QString &programm, const QString &eigener, bool istOriginal);

} // namespace benutzerordner
