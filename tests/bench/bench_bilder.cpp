#include "pictures/Bildlader.h"
#include "pictures/cDIBSection.h"
#include "pictures/mIntelJPEGLibrary.h"
#include "store/Pfade.h"
#include "tests/bench/Messung.h"
#include "tests/pictures/Bildhilfen.h"

#include <QDir>
#include <QFile>
#include <QStringList>

#include <turbojpeg.h>

#include <cstdlib>

/* Previews of large photographs: the program's loader against the bare library and against decoding in full. Missing pictures in a
   large folder against reading that folder. */

namespace {

constexpr QSize foto(4000, 3000), kasten(133, 100);
constexpr int anzahlFotos = 6;

/// An eighth of the photograph, from bytes in memory.
QImage achtel(const QByteArray &bytes)
{
    QImage bild(foto.width() / 8, foto.height() / 8, QImage::Format_RGB32);
    const tjhandle bibliothek = tjInitDecompress();
    const int status = tjDecompress2(bibliothek, reinterpret_cast<const uchar *>(bytes.constData()), static_cast<unsigned long>(bytes.size()),
                                     bild.bits(), bild.width(), int(bild.bytesPerLine()), bild.height(), TJPF_BGRX, 0);
    tjDestroy(bibliothek);
    return status == 0 ? bild : QImage();
}

/// Mean of whole pixels, no shares at the edges: the least that an area average can cost.
QImage ganzeFelder(const QImage &bild, QSize groesse)
{
    QImage ziel(groesse, QImage::Format_RGB32);
    for (int y = 0; y < groesse.height(); ++y)
        for (int x = 0; x < groesse.width(); ++x) {
            const int links = x * bild.width() / groesse.width(), rechts = (x + 1) * bild.width() / groesse.width();
            const int oben = y * bild.height() / groesse.height(), unten = (y + 1) * bild.height() / groesse.height();
            int rot = 0, gruen = 0, blau = 0;
            for (int v = oben; v < unten; ++v) {
                const auto *zeile = reinterpret_cast<const QRgb *>(bild.constScanLine(v));
                for (int u = links; u < rechts; ++u) {
                    rot += qRed(zeile[u]);
                    gruen += qGreen(zeile[u]);
                    blau += qBlue(zeile[u]);
                }
            }
            const int felder = (rechts - links) * (unten - oben);
            reinterpret_cast<QRgb *>(ziel.scanLine(y))[x] = qRgb(rot / felder, gruen / felder, blau / felder);
        }
    return ziel;
}

void fordern(const QImage &bild, QSize groesse)
{
    if (bild.size() != groesse)
        std::abort();
}

} // namespace

int main()
{
    Bildordner ordner;
    QStringList pfade;
    QList<QByteArray> inhalte;
    for (int i = 0; i < anzahlFotos; ++i) {
        cDIBSection dib;
        dib.CreateFromPicture(gemischt(foto.width(), foto.height(), quint32(i)));
        pfade.append(ordner.pfad(QStringLiteral("foto%1.jpg").arg(i)));
        mIntelJPEGLibrary::SaveJPG(dib, pfade.last(), 70 + 5 * i);
        QFile datei(pfade.last());
        if (!datei.open(QIODevice::ReadOnly))
            std::abort();
        inhalte.append(datei.readAll());
        std::printf("photograph %d: 4000 x 3000, %lld KB\n", i, static_cast<long long>(inhalte.last().size() / 1000));
    }
    const auto vorschauen = [&] {
        for (const QString &pfad : pfade)
            fordern(ladeSkaliert(pfad, kasten), kasten);
    };
    vergleich(
        "previews, to an eighth decoded in memory", 1.15, [] {}, vorschauen,
        [&] {
        for (const QByteArray &bytes : inhalte)
            fordern(ganzeFelder(achtel(bytes), kasten), kasten);
        },
        9);
    vergleich(
        "previews, to full decode and smooth scaling", 1 / 2.5, [] {}, vorschauen,
        [&] {
        for (const QString &pfad : pfade)
            fordern(QImage(pfad).scaled(kasten, Qt::KeepAspectRatio, Qt::SmoothTransformation), kasten);
        });
    constexpr int grosserOrdner = 5300, fehlende = 6;
    for (int i = 0; i < grosserOrdner; ++i)
        ordner.schreibe("x", QStringLiteral("pflanze-%1.jpg").arg(i));
    int lauf = 0;
    vergleich(
        "six missing pictures, to reading their folder", 1.2, [&] { ordner.schreibe("x", QStringLiteral("neu-%1.jpg").arg(++lauf)); },
        [&] {
        for (int i = 0; i < fehlende; ++i)
            if (dateiVorhanden(ordner.pfad(QStringLiteral("fehlt-%1-%2.jpg").arg(lauf).arg(i))))
                std::abort();
        },
        [&] {
        if (QDir(ordner.pfad({})).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot).size() < grosserOrdner)
            std::abort();
    },
        9);
    return 0;
}
