#pragma once

#include <QImage>
#include <QPainter>

#include <functional>
#include <memory>

/* One 24-bit bitmap of its own: 3 bytes a pixel in the order blue, green, red, rows padded to whole 4-byte words, the bottom
   row first in memory. Where the system spoke of device contexts, a QPainter stands here; a handle is a QImage. Sizes and
   positions are pixels from 0 at the top left, but for Resample and DIBSectionBitsPtr, which know memory order only. */
class cDIBSection
{
public:
    /// Raster operations of the blits; any other number draws nothing.
    enum Rasteroperation : quint32 {
        SRCCOPY = 0x00CC0020,
        SRCPAINT = 0x00EE0086,
        SRCAND = 0x008800C6,
        SRCINVERT = 0x00660046,
        SRCERASE = 0x00440328,
        NOTSRCCOPY = 0x00330008,
        NOTSRCERASE = 0x001100A6,
        MERGEPAINT = 0x00BB0226,
        DSTINVERT = 0x00550009,
        BLACKNESS = 0x00000042,
        WHITENESS = 0x00FF0062,
    };
    /// Shows a text to the user. None is set at first: then nothing is shown.
    static std::function<void(const QString &)> Meldung;

    cDIBSection() = default;
    ~cDIBSection() { ClearUp(); }
    cDIBSection(const cDIBSection &) = delete;
    cDIBSection &operator=(const cDIBSection &) = delete;

    /// Puts the picture on the clipboard; false on any failure. `alsDIB` is not offered: it shows a text, the result is false.
    [[nodiscard]] bool CopyToClipboard(bool alsDIB);
    /// Makes a black bitmap and hands it to the caller; from then on sizes and DIBSectionBitsPtr are the new bitmap's. `hdc`
    /// is not looked at and may be null. False for a size below 1 or one that memory does not hold; throws as BytesPerScanLine.
    [[nodiscard]] bool CreateDIB(QPainter *hdc, qint32 breite, qint32 hoehe, std::unique_ptr<QImage> &hDib);
    /// Takes over a decoded picture, transparency dropped; a null picture leaves an empty object.
    void CreateFromPicture(const QImage &bild);
    /// Gives the earlier bitmap back, then makes a black one. False, with an empty object, as CreateDIB.
    [[nodiscard]] bool Create(qint32 breite, qint32 hoehe);
    /// Bytes of a row. Throws where they do not fit 32 bits.
    qint32 BytesPerScanLine() const;
    /// Of the last bitmap that was asked for, even after ClearUp; 0 at first.
    qint32 Width() const { return breite_; }
    qint32 Height() const { return hoehe_; }
    /// Draws the part of `quelle` to the top left corner, clipped; -1 stands for this bitmap's own size.
    void LoadPictureBlt(const QImage &quelle, qint32 quelleLinks = 0, qint32 quelleOben = 0, qint32 quelleBreite = -1, qint32 quelleHoehe = -1,
                        quint32 rasterop = SRCCOPY);
    /// Draws into `ziel`; -1 stands for this bitmap's own size. An empty object draws nothing.
    void PaintPicture(QPainter *ziel, qint32 zielLinks = 0, qint32 zielOben = 0, qint32 zielBreite = -1, qint32 zielHoehe = -1,
                      qint32 quelleLinks = 0, qint32 quelleOben = 0, quint32 rasterop = SRCCOPY) const;
    /// Painter open on hDib, with (0, 0) at the top left of the picture; null exactly when hDib is null.
    QPainter *hdc() const { return hdc_.get(); }
    /// The bitmap in memory order, hence upside down.
    const QImage *hDib() const { return hDib_.get(); }
    uchar *DIBSectionBitsPtr() const { return DIBSectionBitsPtr_; } ///< null when empty
    /// Fills with noise: grey, or of random green and red with blue 0.
    void RandomiseBits(bool grau);
    /// May be called on an empty object.
    void ClearUp();
    /// Linear interpolation to a new size; the same size is an exact copy. Null where the new bitmap cannot be made; throws for
    /// an empty source, and unless only copied, for one of less than 2 x 2 pixels.
    [[nodiscard]] std::unique_ptr<cDIBSection> Resample(qint32 neueHoehe, qint32 neueBreite) const;

private:
    void ResampleInto(cDIBSection &ziel) const;
    QImage ausschnitt(const QRect &bereich) const;
    void ersetzen(const QImage &bild);

    std::unique_ptr<QImage> hDib_;
    std::unique_ptr<QPainter> hdc_;
    uchar *DIBSectionBitsPtr_ = nullptr;
    qint32 breite_ = 0, hoehe_ = 0;
};
