#include "mIntelJPEGLibrary.h"

#include "cDIBSection.h"
#include "store/Dateien.h"
#include "store/Pfade.h"

#include <turbojpeg.h>

#include <memory>

namespace mIntelJPEGLibrary {

void *(*anfang)() = tjInitCompress;

bool SaveJPG(const cDIBSection &dib, const QString &dateiname, qint32 qualitaet)
{
    const std::unique_ptr<void, decltype(&tjDestroy)> bibliothek(anfang(), tjDestroy);
    if (!bibliothek)
        throw JPEGFehler(QStringLiteral("IJL-Library kann nicht initialisiert werden: %1").arg(tjGetErrorCode(nullptr)));
    unsigned char *puffer = nullptr;
    unsigned long bytes = 0;
    const int status = tjCompress2(bibliothek.get(), dib.DIBSectionBitsPtr(), dib.Width(), dib.BytesPerScanLine(), dib.Height(), TJPF_BGR, &puffer,
                                   &bytes, TJSAMP_420, qualitaet, TJFLAG_BOTTOMUP);
    const std::unique_ptr<unsigned char, decltype(&tjFree)> besitz(puffer, tjFree);
    const auto misslungen = [](bool voll = false) { return JPEGFehler(QStringLiteral("Speichern fehlgeschlagen"), voll); };
    if (status != 0)
        throw misslungen();
    try {
        schreibeSicher(systemPfad(dateiname), QByteArray::fromRawData(reinterpret_cast<char *>(puffer), qsizetype(bytes)));
    } catch (const Datentraegervoll &) {
        throw misslungen(true); // the one sentence that this writer has
    } catch (const Fehler &) {
        throw misslungen();
    }
    return true;
}

} // namespace mIntelJPEGLibrary
