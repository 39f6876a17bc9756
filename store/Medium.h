#pragma once

#include <QString>

#include <functional>
#include <optional>
#include <vector>

/* Where pictures can be: the drives, and the marks that tell what a folder is. No probe fails: a drive without a disc, a folder
   that is away and an empty path have no marks. Names are compared without regard to case. */

/// A mounted volume that can be taken out.
struct Laufwerk
{
    QString wurzel; ///< as the system writes it, e.g. "D:/" or "/media/anna/FLOX"
    QString name;   ///< of the volume; may be empty

    bool operator==(const Laufwerk &) const = default;
};

/// Asked anew at every look: a disc may have been put in meanwhile.
using Laufwerksliste = std::function<std::vector<Laufwerk>()>;

namespace medium {

/// The removable and optical volumes that are mounted now, by their roots. Floppy drives are not touched.
std::vector<Laufwerk> laufwerke();
/// What a list of drives shows of one.
QString beschriftung(const Laufwerk &laufwerk);
/// The first drive that holds the CD; floppy drives are passed over unasked.
std::optional<Laufwerk> cdSuchen(const std::vector<Laufwerk> &laufwerke);

/// What the system says of a volume.
struct Datentraeger
{
    QString wurzel, geraet, dateisystem;
    bool wechselbar = false; ///< its device calls itself removable
};
/// "a:" and "b:".
bool istDiskette(QStringView wurzel);
bool istWechsellaufwerk(const Datentraeger &traeger);

/// All three marks of the CD.
bool istCd(const QString &wurzel);
/// The mark of the CD that is no picture, alone.
bool hatCdSymbol(const QString &wurzel);
/// Both marks of a folder of pictures to choose.
bool haeltBilder(const QString &wurzel);
/// Both samples, without which pictures count as out of reach.
bool alleProben(const QString &wurzel);
/// One of them at least.
bool eineProbe(const QString &wurzel);

} // namespace medium
