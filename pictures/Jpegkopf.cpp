#include "Jpegkopf.h"

#include <QIODevice>
#include <QtEndian>

#include <algorithm>
#include <array>
#include <vector>

namespace {

constexpr int scanbeginn = 0xDA, bildende = 0xD9, app1 = 0xE1, koeffizienten = 64;

bool istRahmen(int marke)
{
    return marke >= 0xC0 && marke <= 0xCF && marke != 0xC4 && marke != 0xC8 && marke != 0xCC;
}

bool hatInhalt(int marke)
{
    return marke != 0x01 && !(marke >= 0xD0 && marke <= 0xD8);
}

/// The next marker; -1 at the end or behind more stray bytes than a camera leaves.
int naechsteMarke(QIODevice &geraet)
{
    constexpr int erlaubt = 4096;
    bool ff = false;
    for (int i = 0; i < erlaubt; ++i) {
        char zeichen = 0;
        if (!geraet.getChar(&zeichen))
            return -1;
        const int wert = uchar(zeichen);
        if (wert == 0xFF)
            ff = true;
        else if (ff && wert != 0)
            return wert;
        else
            ff = false;
    }
    return -1;
}

/// The EXIF orientation of a segment; nothing where it is no EXIF, 1 where it holds no or a wrong orientation.
std::optional<int> exifOrientierung(const QByteArray &segment)
{
    if (!segment.startsWith(QByteArrayView("Exif\0\0", 6)))
        return {};
    const QByteArrayView tiff = QByteArrayView(segment).sliced(6);
    const bool gross = tiff.startsWith("MM");
    if (!gross && !tiff.startsWith("II"))
        return 1;
    const auto zahl = [&]<typename T>(qint64 stelle, T) -> qint64 {
        if (stelle < 0 || stelle + qint64(sizeof(T)) > tiff.size())
            return -1;
        return gross ? qFromBigEndian<T>(tiff.data() + stelle) : qFromLittleEndian<T>(tiff.data() + stelle);
    };
    constexpr qint64 eintrag = 12;
    const qint64 verzeichnis = zahl(4, quint32());
    const qint64 anzahl = zahl(verzeichnis, quint16());
    for (qint64 i = 0, stelle = verzeichnis + 2; i < anzahl; ++i, stelle += eintrag) {
        if (zahl(stelle, quint16()) != 0x0112)
            continue;
        const qint64 wert = zahl(stelle + 8, quint16());
        return wert >= 1 && wert <= 8 ? int(wert) : 1;
    }
    return 1;
}

bool istFortschreitend(int rahmen)
{
    return rahmen % 4 == 2;
}

/// What is still missing of a component: for each coefficient the lowest bit that came.
struct Komponente
{
    int kennung = 0;
    std::array<int, koeffizienten> bit{};
};

/// Notes what a scan brings; false for a segment that is none.
bool durchlaufVermerken(QByteArrayView segment, bool fortschreitend, std::vector<Komponente> &komponenten)
{
    const int anzahl = segment.isEmpty() ? 0 : uchar(segment[0]);
    if (anzahl < 1 || segment.size() < 1 + 2 * anzahl + 3)
        return false;
    // A camera may write anything here where there is nothing to choose.
    const int von = fortschreitend ? uchar(segment[1 + 2 * anzahl]) : 0;
    const int bis = fortschreitend ? std::min<int>(uchar(segment[2 + 2 * anzahl]), koeffizienten - 1) : koeffizienten - 1;
    const int bit = fortschreitend ? uchar(segment[3 + 2 * anzahl]) & 15 : 0;
    for (int i = 0; i < anzahl; ++i)
        for (Komponente &komponente : komponenten)
            if (komponente.kennung == uchar(segment[1 + 2 * i]))
                std::fill(komponente.bit.begin() + std::min(von, bis), komponente.bit.begin() + bis + 1, bit);
    return true;
}

} // namespace

bool alleDurchlaeufe(QByteArrayView jpeg)
{
    constexpr int nochNichts = 99;
    std::vector<Komponente> komponenten;
    bool fortschreitend = false;
    for (qsizetype i = 2; i + 4 <= jpeg.size();) {
        const int marke = uchar(jpeg[i + 1]);
        if (uchar(jpeg[i]) != 0xFF || marke == 0 || marke == 0xFF || !hatInhalt(marke)) {
            ++i;
            continue;
        }
        if (marke == bildende)
            break;
        const int laenge = qFromBigEndian<quint16>(jpeg.data() + i + 2);
        if (laenge < 2 || i + 2 + laenge > jpeg.size())
            return false;
        const QByteArrayView inhalt = jpeg.sliced(i + 4, laenge - 2);
        if (istRahmen(marke)) {
            fortschreitend = istFortschreitend(marke);
            constexpr int kopf = 6, jeKomponente = 3;
            for (int k = kopf; k + jeKomponente <= inhalt.size(); k += jeKomponente) {
                komponenten.push_back({uchar(inhalt[k]), {}});
                komponenten.back().bit.fill(nochNichts);
            }
        } else if (marke == scanbeginn && !durchlaufVermerken(inhalt, fortschreitend, komponenten)) {
            return false;
        }
        i += 2 + laenge;
    }
    return !komponenten.empty() && std::ranges::all_of(komponenten, [](const Komponente &komponente) {
        return std::ranges::all_of(komponente.bit, [](int bit) { return bit == 0; });
    });
}

std::optional<Jpegkopf> jpegkopf(QIODevice &geraet)
{
    if (geraet.read(2) != QByteArrayView("\xFF\xD8"))
        return {};
    Jpegkopf kopf;
    std::optional<int> orientierung;
    for (;;) {
        const int marke = naechsteMarke(geraet);
        if (marke < 0 || marke == bildende)
            return {};
        if (!hatInhalt(marke))
            continue;
        const qint64 beginn = geraet.pos();
        if (marke == scanbeginn) {
            kopf.daten = beginn;
            break;
        }
        const QByteArray laenge = geraet.read(2);
        const int bytes = laenge.size() == 2 ? qFromBigEndian<quint16>(laenge.constData()) : 0;
        if (bytes < 2)
            return {};
        if (istRahmen(marke)) {
            const QByteArray rahmen = geraet.read(5);
            if (rahmen.size() != 5 || kopf.groesse.isValid())
                return {};
            kopf.groesse = {qFromBigEndian<quint16>(rahmen.constData() + 3), qFromBigEndian<quint16>(rahmen.constData() + 1)};
        } else if (marke == app1 && !orientierung) {
            orientierung = exifOrientierung(geraet.read(bytes - 2));
        }
        if (!geraet.seek(beginn + bytes))
            return {};
    }
    if (kopf.groesse.isEmpty())
        return {};
    kopf.orientierung = orientierung.value_or(1);
    return kopf;
}
