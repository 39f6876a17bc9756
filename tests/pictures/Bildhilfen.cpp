#include "Bildhilfen.h"

#include <QFile>
#include <QPainter>
#include <QRandomGenerator>
#include <QtEndian>

#include <turbojpeg.h>

#include <cmath>
#include <cstdlib>

QByteArray jpeg(const QImage &bild, Jpegart art, int qualitaet)
{
    QImage quelle = bild.convertToFormat(QImage::Format_RGBX8888);
    for (int y = 0; art == Jpegart::Tinten && y < quelle.height(); ++y)
        for (int x = 0; x < quelle.width(); ++x)
            quelle.scanLine(y)[x * 4 + 3] = 255;
    const tjhandle bibliothek = tjInitCompress();
    unsigned char *puffer = nullptr;
    unsigned long bytes = 0;
    const int status = tjCompress2(bibliothek, quelle.constBits(), quelle.width(), int(quelle.bytesPerLine()), quelle.height(),
                                   art == Jpegart::Tinten ? TJPF_CMYK : TJPF_RGBX, &puffer, &bytes, art == Jpegart::Grau ? TJSAMP_GRAY : TJSAMP_444,
                                   qualitaet, art == Jpegart::Fortschreitend ? TJFLAG_PROGRESSIVE : 0);
    if (status != 0)
        qFatal("%s", tjGetErrorStr2(bibliothek));
    const QByteArray ergebnis(reinterpret_cast<char *>(puffer), qsizetype(bytes));
    tjFree(puffer);
    tjDestroy(bibliothek);
    return ergebnis;
}

QByteArray mitExif(const QByteArray &jpeg, int orientierung, bool grossesEnde)
{
    QByteArray tiff = grossesEnde ? QByteArray("MM") : QByteArray("II");
    const auto anhaengen = [&]<typename T>(T wert) {
        char bytes[sizeof(T)];
        grossesEnde ? qToBigEndian(wert, bytes) : qToLittleEndian(wert, bytes);
        tiff.append(bytes, sizeof bytes);
    };
    anhaengen(quint16(42));
    anhaengen(quint32(8));
    anhaengen(quint16(2));
    for (const auto &[marke, wert] : {std::pair(0x0100, 7), std::pair(0x0112, orientierung)}) {
        anhaengen(quint16(marke));
        anhaengen(quint16(3));
        anhaengen(quint32(1));
        anhaengen(quint16(wert));
        anhaengen(quint16(0));
    }
    anhaengen(quint32(0));
    const QByteArray inhalt = QByteArray("Exif\0\0", 6) + tiff;
    char laenge[2];
    qToBigEndian(quint16(inhalt.size() + 2), laenge);
    return jpeg.first(2) + "\xFF\xE1" + QByteArray(laenge, 2) + inhalt + jpeg.sliced(2);
}

QByteArray mitGroesse(QByteArray jpeg, int breite, int hoehe)
{
    qsizetype rahmen = jpeg.indexOf(QByteArray("\xFF\xC0\x00", 3));
    if (rahmen < 0)
        rahmen = jpeg.indexOf(QByteArray("\xFF\xC2\x00", 3));
    qToBigEndian(quint16(hoehe), jpeg.data() + rahmen + 5);
    qToBigEndian(quint16(breite), jpeg.data() + rahmen + 7);
    return jpeg;
}

QImage vierFarben(int breite, int hoehe)
{
    QImage bild(breite, hoehe, QImage::Format_RGB32);
    for (int y = 0; y < hoehe; ++y)
        for (int x = 0; x < breite; ++x)
            bild.setPixelColor(x, y, y < hoehe / 2 ? (x < breite / 2 ? Qt::red : Qt::green) : (x < breite / 2 ? Qt::blue : Qt::yellow));
    return bild;
}

QImage gemischt(int breite, int hoehe, quint32 saat)
{
    QImage bild(breite, hoehe, QImage::Format_RGB32);
    QRandomGenerator zufall(saat);
    for (int y = 0; y < hoehe; ++y) {
        auto *zeile = reinterpret_cast<QRgb *>(bild.scanLine(y));
        for (int x = 0; x < breite; ++x) {
            const int welle = int(90 + 60 * std::sin(x * 0.021 + saat) * std::cos(y * 0.017));
            const int korn = int(zufall.generate() & 31);
            zeile[x] = qRgb(welle + korn, 255 - welle - korn, (x * 7 + y * 3) / 16 % 256);
        }
    }
    return bild;
}

int abstand(const QImage &a, const QImage &b)
{
    if (a.size() != b.size())
        return 256;
    int groesster = 0;
    for (int y = 0; y < a.height(); ++y)
        for (int x = 0; x < a.width(); ++x) {
            const QRgb p = a.pixel(x, y), q = b.pixel(x, y);
            for (const int stelle : {0, 8, 16, 24})
                groesster = std::max(groesster, std::abs(int(p >> stelle & 255) - int(q >> stelle & 255)));
        }
    return groesster;
}

QString Bildordner::schreibe(const QByteArray &inhalt, const QString &name) const
{
    QFile datei(pfad(name));
    if (!datei.open(QIODevice::WriteOnly) || datei.write(inhalt) != inhalt.size())
        qFatal("cannot write the test picture");
    return datei.fileName();
}
