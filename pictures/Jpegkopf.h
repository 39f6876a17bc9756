#pragma once

#include <QByteArrayView>
#include <QSize>

#include <optional>

class QIODevice;

/* What the segments before the pixels of a JPEG say. */

/// Turns of a stored picture, in the numbers of EXIF: 1 as it is to 8.
constexpr bool gekippt(int orientierung)
{
    return orientierung >= 5;
}

struct Jpegkopf
{
    QSize groesse;        ///< pixels, as stored
    int orientierung = 1; ///< 1 to 8; 1 where none or a wrong one is given
    qint64 daten = 0;     ///< position of the first scan's segment, bytes from the start
    QSize gezeigt() const { return gekippt(orientierung) ? groesse.transposed() : groesse; }
};

/// Reads from the start of an open device, segment by segment; nothing where it holds no JPEG with a size.
std::optional<Jpegkopf> jpegkopf(QIODevice &geraet);

/// Whether the scans that begin in these bytes make up the whole picture, every component to its last bit. Whether the last scan
/// is complete only its decoding tells.
bool alleDurchlaeufe(QByteArrayView jpeg);
