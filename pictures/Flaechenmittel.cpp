#include "Flaechenmittel.h"

#include <algorithm>
#include <array>
#include <vector>

namespace {

/// What a target pixel covers of an axis: pixels `von` to `bis`, the outer ones in part. All weights of a span add up to the
/// size of the source axis, so that whole numbers are exact.
struct Spanne
{
    int von, bis;
    quint32 anfang, mitte, ende;

    quint32 gewicht(int stelle) const { return stelle == von ? anfang : stelle == bis ? ende : mitte; }
};

std::vector<Spanne> spannen(int quelle, int ziel)
{
    std::vector<Spanne> liste;
    liste.reserve(size_t(ziel));
    for (qint64 i = 0; i < ziel; ++i) {
        const qint64 links = i * quelle, rechts = links + quelle;
        const qint64 von = links / ziel, bis = (rechts - 1) / ziel;
        liste.push_back({int(von), int(bis), quint32(std::min(rechts, (von + 1) * ziel) - links), quint32(ziel), quint32(rechts - bis * ziel)});
    }
    return liste;
}

/// Adds up the rows of a span, channel by channel; a sum stays below 255 * 65536.
void zeilenSummieren(const QImage &bild, const Spanne &spanne, std::vector<quint32> &summe)
{
    std::ranges::fill(summe, 0u);
    for (int y = spanne.von; y <= spanne.bis; ++y) {
        const quint32 gewicht = spanne.gewicht(y);
        const uchar *zeile = bild.constScanLine(y);
        for (size_t i = 0; i < summe.size(); ++i)
            summe[i] += gewicht * zeile[i];
    }
}

} // namespace

QImage flaechenmittel(const QImage &bild, QSize groesse)
{
    QImage ziel(groesse, bild.format());
    if (ziel.isNull() || bild.size() == groesse)
        return bild.size() == groesse ? bild : ziel;
    const std::vector<Spanne> spalten = spannen(bild.width(), groesse.width());
    const std::vector<Spanne> zeilen = spannen(bild.height(), groesse.height());
    std::vector<quint32> summe(size_t(bild.width()) * 4);
    const double anteil = 1.0 / (double(bild.width()) * bild.height());
    for (int y = 0; y < groesse.height(); ++y) {
        zeilenSummieren(bild, zeilen[size_t(y)], summe);
        uchar *aus = ziel.scanLine(y);
        for (const Spanne &spanne : spalten) {
            std::array<quint64, 4> farbe{};
            for (int x = spanne.von; x <= spanne.bis; ++x)
                for (size_t c = 0; c < 4; ++c)
                    farbe[c] += quint64(spanne.gewicht(x)) * summe[size_t(x) * 4 + c];
            for (const quint64 kanal : farbe)
                *aus++ = uchar(double(kanal) * anteil + 0.5);
        }
    }
    return ziel;
}
