#include "Bildlader.h"

#include "Flaechenmittel.h"
#include "Jpegkopf.h"
#include "store/Pfade.h"

#include <QFile>
#include <QFileInfo>
#include <QImageReader>
#include <QTransform>
#include <QtEndian>

#include <turbojpeg.h>

#include <algorithm>
#include <cstdio>
#include <memory>

namespace {

constexpr qint64 groessteDatei = qint64(1) << 30; // bytes
constexpr int groessteSeite = 65535;
constexpr int bildpunkt = Q_BYTE_ORDER == Q_LITTLE_ENDIAN ? TJPF_BGRA : TJPF_ARGB; // Format_RGB32, the fourth byte 255

bool zulaessig(QSize groesse)
{
    return !groesse.isEmpty() && groesse.width() <= groessteSeite && groesse.height() <= groessteSeite
           && qint64(groesse.width()) * groesse.height() <= groesstesBild;
}

/// A scan spends at least one bit on a block of 64 pixels; twice that distance is allowed for odd samplings.
bool glaubhaft(QSize groesse, qint64 bytes)
{
    return qint64(groesse.width()) * groesse.height() <= bytes * 1024;
}

QSize geteilt(QSize groesse, int teiler)
{
    return {(groesse.width() + teiler - 1) / teiler, (groesse.height() + teiler - 1) / teiler};
}

enum class Format { Keines, Jpeg, Gif, Png, Bmp, Svg };

Format format(QFile &datei)
{
    const QByteArray anfang = datei.peek(8);
    if (anfang.startsWith("\xFF\xD8"))
        return Format::Jpeg;
    if (anfang.startsWith("GIF8"))
        return Format::Gif;
    if (anfang.startsWith("\x89PNG"))
        return Format::Png;
    if (anfang.startsWith("BM"))
        return Format::Bmp;
    return QFileInfo(datei.fileName()).suffix().compare(QStringLiteral("svg"), Qt::CaseInsensitive) == 0 ? Format::Svg : Format::Keines;
}

QByteArray formatname(Format format)
{
    switch (format) {
    case Format::Keines: break;
    case Format::Jpeg: return "jpeg";
    case Format::Gif: return "gif";
    case Format::Png: return "png";
    case Format::Bmp: return "bmp";
    case Format::Svg: return "svg";
    }
    return {};
}

/// An open picture file; `art` is Keines where there is none.
struct Bilddatei
{
    explicit Bilddatei(const QString &pfad) : datei(systemPfad(pfad))
    {
        // A pipe under a picture's name would block.
        if (QFileInfo(datei).isFile() && datei.size() <= groessteDatei && datei.open(QIODevice::ReadOnly))
            art = format(datei);
    }

    QFile datei;
    Format art = Format::Keines;
};

/// Whether a bitmap file is shorter than it says: its reader would leave the missing rows as they are.
bool abgeschnitten(QFile &bitmap)
{
    const QByteArray kopf = bitmap.peek(6);
    return kopf.size() < 6 || qFromLittleEndian<quint32>(kopf.constData() + 2) > bitmap.size();
}

/// Reader of anything but JPEG; a size above the limits makes it unreadable.
std::unique_ptr<QImageReader> leser(Bilddatei &bild)
{
    if (bild.art == Format::Bmp && abgeschnitten(bild.datei))
        return {};
    // The library's own limit of 128 MiB would refuse photographs; ours is the number of pixels, at up to 8 bytes each.
    static const bool grenze = (QImageReader::setAllocationLimit(int(groesstesBild * 8 >> 20)), true);
    Q_UNUSED(grenze);
    auto neu = std::make_unique<QImageReader>(&bild.datei, formatname(bild.art));
    neu->setAutoDetectImageFormat(false);
    neu->setAutoTransform(true);
    return zulaessig(neu->size()) ? std::move(neu) : nullptr;
}

QSize gezeigteGroesse(const QImageReader &reader)
{
    const bool quer = reader.transformation() & QImageIOHandler::TransformationRotate90;
    return quer ? reader.size().transposed() : reader.size();
}

QImage mitVierBytes(const QImage &bild)
{
    return bild.convertToFormat(bild.hasAlphaChannel() ? QImage::Format_ARGB32_Premultiplied : QImage::Format_RGB32);
}

QImage aufGroesse(const QImage &bild, QSize groesse)
{
    if (bild.isNull() || groesse.isEmpty())
        return {};
    if (groesse.width() <= bild.width() && groesse.height() <= bild.height())
        return flaechenmittel(bild, groesse);
    return bild.scaled(groesse, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
}

QImage gedreht(const QImage &bild, int orientierung)
{
    struct Lage
    {
        bool waagerecht, senkrecht, viertel;
    };
    static constexpr Lage lagen[] = {{false, false, false}, {true, false, false}, {true, true, false}, {false, true, false},
                                     {false, true, true},   {false, false, true}, {true, false, true}, {true, true, true}};
    const Lage &lage = lagen[orientierung - 1];
    const QImage gespiegelt = lage.waagerecht || lage.senkrecht ? bild.mirrored(lage.waagerecht, lage.senkrecht) : bild;
    return lage.viertel ? gespiegelt.transformed(QTransform().rotate(90)) : gespiegelt;
}

/// Turns the four inks, stored inverted as is the custom, into colours.
void farbenAusTinten(QImage &bild)
{
    for (int y = 0; y < bild.height(); ++y) {
        uchar *tinten = bild.scanLine(y);
        auto *farben = reinterpret_cast<QRgb *>(tinten);
        for (int x = 0; x < bild.width(); ++x, tinten += 4) {
            const int schwarz = tinten[3];
            farben[x] = qRgb(tinten[0] * schwarz / 255, tinten[1] * schwarz / 255, tinten[2] * schwarz / 255);
        }
    }
}

/// Warnings that cameras cause with a complete picture; any other is damage, and so are many stray bytes: pixels that
/// nobody fetched.
bool harmlos(const char *warnung)
{
    constexpr unsigned streubytes = 256;
    unsigned anzahl = 0;
    if (std::sscanf(warnung, "Corrupt JPEG data: %u extraneous bytes", &anzahl) == 1)
        return anzahl <= streubytes;
    const QByteArrayView text(warnung);
    return text.contains("Invalid SOS parameters") || text.contains("unknown JFIF revision") || text.contains("Unknown Adobe color transform");
}

/// A JPEG in memory whose head has passed all checks.
class Jpeg
{
public:
    explicit Jpeg(QFile &datei)
    {
        const std::optional<Jpegkopf> kopf = jpegkopf(datei);
        if (!kopf || !zulaessig(kopf->groesse) || !glaubhaft(kopf->groesse, datei.size()) || !datei.seek(0))
            return;
        bytes_ = datei.readAll();
        // A cut file decodes to a half grey picture. With an end mark of ours the decoder finds out whether anything but the mark
        // was missing; that whole scans are is left to us.
        if (bytes_.lastIndexOf(QByteArrayView("\xFF\xD9")) < kopf->daten) {
            if (!alleDurchlaeufe(bytes_))
                return;
            bytes_ += "\xFF\xD9";
            abgeschnitten_ = true;
        }
        QSize groesse;
        int proben = 0;
        if (!geglueckt(tjDecompressHeader3(bibliothek_.get(), daten(), laenge(), &groesse.rwidth(), &groesse.rheight(), &proben, &farbraum_))
            || groesse != kopf->groesse)
            return;
        kopf_ = *kopf;
        gueltig_ = true;
    }

    bool gueltig() const { return gueltig_; }
    QSize gezeigteGroesse() const { return kopf_.gezeigt(); }

    /// Fitted to a size as shown.
    QImage skaliert(QSize gezeigt)
    {
        const QSize ziel = gekippt(kopf_.orientierung) ? gezeigt.transposed() : gezeigt;
        return fertig(aufGroesse(dekodiert(dekodiergroesse(ziel)), ziel));
    }
    QImage teil(int teiler) { return fertig(dekodiert(geteilt(kopf_.groesse, teiler))); }

private:
    const uchar *daten() const { return reinterpret_cast<const uchar *>(bytes_.constData()); }
    unsigned long laenge() const { return static_cast<unsigned long>(bytes_.size()); }

    bool geglueckt(int status) const
    {
        return status == 0 || (tjGetErrorCode(bibliothek_.get()) == TJERR_WARNING && harmlos(tjGetErrorStr2(bibliothek_.get())));
    }

    /// The smallest of 1/8, 1/4, 1/2 and 1 that is not below the target. The eighths between have no fast transform: they take
    /// up to twice the time of the next larger one of these.
    QSize dekodiergroesse(QSize ziel) const
    {
        for (const int teiler : {8, 4, 2}) {
            const QSize groesse = geteilt(kopf_.groesse, teiler);
            if (groesse.width() >= ziel.width() && groesse.height() >= ziel.height())
                return groesse;
        }
        return kopf_.groesse;
    }

    QImage dekodiert(QSize groesse)
    {
        QImage bild(groesse, QImage::Format_RGB32);
        if (bild.isNull())
            return {};
        const bool tinten = farbraum_ == TJCS_CMYK || farbraum_ == TJCS_YCCK;
        const auto lauf = [&](int schalter) {
            return geglueckt(tjDecompress2(bibliothek_.get(), daten(), laenge(), bild.bits(), groesse.width(), int(bild.bytesPerLine()),
                                           groesse.height(), tinten ? TJPF_CMYK : bildpunkt, TJFLAG_LIMITSCANS | schalter));
        };
        // Damage ends the first run at once, however large the picture claims to be; a harmless warning costs a second one.
        if (!lauf(TJFLAG_STOPONWARNING))
            return {};
        if (tjGetErrorCode(bibliothek_.get()) == TJERR_WARNING) {
            // The library tells of the first warning only: a harmless one hides that of a cut behind it.
            if (abgeschnitten_ || !lauf(0))
                return {};
        }
        if (tinten)
            farbenAusTinten(bild);
        return bild;
    }

    QImage fertig(const QImage &bild) const { return bild.isNull() ? bild : gedreht(bild, kopf_.orientierung); }

    std::unique_ptr<void, decltype(&tjDestroy)> bibliothek_{tjInitDecompress(), tjDestroy};
    QByteArray bytes_;
    Jpegkopf kopf_;
    int farbraum_ = 0;
    bool gueltig_ = false;
    bool abgeschnitten_ = false; ///< the end mark is ours
};

} // namespace

QSize einpassen(QSize bild, QSize kasten)
{
    if (bild.isEmpty() || kasten.isEmpty())
        return {};
    const double faktor = std::max(double(bild.width()) / kasten.width(), double(bild.height()) / kasten.height());
    return QSize(qRound(bild.width() / faktor), qRound(bild.height() / faktor)).expandedTo({1, 1});
}

QSize bildgroesse(const QString &pfad)
{
    Bilddatei bild(pfad);
    if (bild.art == Format::Keines)
        return {};
    if (bild.art != Format::Jpeg) {
        const auto reader = leser(bild);
        return reader ? gezeigteGroesse(*reader) : QSize();
    }
    const std::optional<Jpegkopf> kopf = jpegkopf(bild.datei);
    return kopf && zulaessig(kopf->groesse) && glaubhaft(kopf->groesse, bild.datei.size()) ? kopf->gezeigt() : QSize();
}

QImage ladeSkaliert(const QString &pfad, QSize kasten)
{
    return kasten.isEmpty() ? QImage() : ladeInGroesse(pfad, [kasten](QSize bild) { return einpassen(bild, kasten); });
}

QImage ladeInGroesse(const QString &pfad, const std::function<QSize(QSize)> &groesse)
{
    Bilddatei bild(pfad);
    if (bild.art == Format::Keines)
        return {};
    if (bild.art == Format::Jpeg) {
        Jpeg jpeg(bild.datei);
        return jpeg.gueltig() ? jpeg.skaliert(groesse(jpeg.gezeigteGroesse())) : QImage();
    }
    const auto reader = leser(bild);
    if (!reader)
        return {};
    const QSize ziel = groesse(gezeigteGroesse(*reader));
    if (bild.art == Format::Svg)
        reader->setScaledSize(ziel);
    return aufGroesse(mitVierBytes(reader->read()), ziel);
}

QImage ladeTeil(const QString &pfad, int teiler)
{
    Bilddatei bild(pfad);
    if (bild.art == Format::Keines)
        return {};
    if (bild.art == Format::Jpeg) {
        Jpeg jpeg(bild.datei);
        return jpeg.gueltig() ? jpeg.teil(teiler) : QImage();
    }
    const auto reader = leser(bild);
    if (!reader)
        return {};
    const QSize groesse = geteilt(gezeigteGroesse(*reader), teiler);
    if (bild.art == Format::Svg)
        reader->setScaledSize(groesse);
    const QImage ganz = mitVierBytes(reader->read());
    return teiler == 1 ? ganz : aufGroesse(ganz, groesse);
}

QImage ladeGanz(const QString &pfad)
{
    return ladeTeil(pfad, 1);
}
