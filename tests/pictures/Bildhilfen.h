#pragma once

#include <QByteArray>
#include <QImage>
#include <QString>
#include <QTemporaryDir>

/* Picture files as tests need them: made in memory, written into a folder of their own. */

enum class Jpegart { Einfach, Fortschreitend, Grau, Tinten };

/// A JPEG of full colour resolution; the inks of a Tinten one are stored inverted, as is the custom.
QByteArray jpeg(const QImage &bild, Jpegart art = Jpegart::Einfach, int qualitaet = 95);
/// The same with an EXIF segment behind the start marker.
QByteArray mitExif(const QByteArray &jpeg, int orientierung, bool grossesEnde);
/// The same with another size in its frame header, pixels.
QByteArray mitGroesse(QByteArray jpeg, int breite, int hoehe);
/// Four quarters: red, green above blue, yellow.
QImage vierFarben(int breite, int hoehe);
/// Smooth and noisy parts, the same for the same seed.
QImage gemischt(int breite, int hoehe, quint32 saat);
/// Largest difference of any channel; 256 for different sizes.
int abstand(const QImage &a, const QImage &b);

class Bildordner
{
public:
    /// Writes the file and gives its path.
    QString schreibe(const QByteArray &inhalt, const QString &name = QStringLiteral("bild.jpg")) const;
    QString pfad(const QString &name) const { return ordner_.filePath(name); }

private:
    QTemporaryDir ordner_;
};
