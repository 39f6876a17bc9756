#pragma once

#include "store/Fehler.h"

class cDIBSection;

/// A failure of the JPEG writer, with the number that callers know it by.
class JPEGFehler : public Fehler
{
public:
    explicit JPEGFehler(QString text, bool voll = false) : Fehler(std::move(text)), voll_(voll) {}
    quint32 nummer() const { return 0x80040001; }
    /// There was no room left for the file.
    bool voll() const { return voll_; }

private:
    bool voll_;
};

namespace mIntelJPEGLibrary {

/// Writes the bitmap as JPEG, the whole file or nothing. The quality goes to the library unchecked, which takes 0 to 100.
/// True, or throws a JPEGFehler, also for an empty bitmap or a refused quality. The name may be written with "\".
bool SaveJPG(const cDIBSection &dib, const QString &dateiname, qint32 qualitaet);

/// Opens the library; a test puts a failing one here.
extern void *(*anfang)();

} // namespace mIntelJPEGLibrary
