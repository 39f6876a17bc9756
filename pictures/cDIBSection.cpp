#include "cDIBSection.h"

#include "store/Fehler.h"

#include <QClipboard>
#include <QDeadlineTimer>
#include <QGuiApplication>
#include <QRandomGenerator>

#include <algorithm>
#include <cmath>
#include <cstring>
#include <limits>
#include <optional>
#include <vector>

std::function<void(const QString &)> cDIBSection::Meldung;

namespace {

std::optional<QPainter::CompositionMode> malweise(quint32 rasterop)
{
    switch (rasterop) {
    case cDIBSection::SRCCOPY: return QPainter::CompositionMode_SourceOver; // the same for pictures without transparency
    case cDIBSection::SRCPAINT: return QPainter::RasterOp_SourceOrDestination;
    case cDIBSection::SRCAND: return QPainter::RasterOp_SourceAndDestination;
    case cDIBSection::SRCINVERT: return QPainter::RasterOp_SourceXorDestination;
    case cDIBSection::SRCERASE: return QPainter::RasterOp_SourceAndNotDestination;
    case cDIBSection::NOTSRCCOPY: return QPainter::RasterOp_NotSource;
    case cDIBSection::NOTSRCERASE: return QPainter::RasterOp_NotSourceAndNotDestination;
    case cDIBSection::MERGEPAINT: return QPainter::RasterOp_NotSourceOrDestination;
    case cDIBSection::DSTINVERT: return QPainter::RasterOp_NotDestination;
    case cDIBSection::BLACKNESS: return QPainter::RasterOp_ClearDestination;
    case cDIBSection::WHITENESS: return QPainter::RasterOp_SetDestination;
    }
    return {};
}

void blit(QPainter &ziel, QPoint stelle, const QImage &bild, QPainter::CompositionMode weise)
{
    const QPainter::CompositionMode vorher = ziel.compositionMode();
    ziel.setCompositionMode(weise);
    ziel.drawImage(stelle, bild);
    ziel.setCompositionMode(vorher);
}

/// A target position between two neighbours of the source.
struct Stuetze
{
    qint32 stelle;
    float anteil;
};

/// The positions of one axis; throws where a neighbour does not exist.
std::vector<Stuetze> stuetzen(qint32 quelle, qint32 ziel)
{
    const float schritt = float(quelle - 1) / float(ziel);
    std::vector<Stuetze> liste(static_cast<size_t>(ziel));
    for (qint32 i = 0; i < ziel; ++i) {
        const float genau = float(i) * schritt;
        const float unten = std::floor(genau);
        if (unten + 1 >= float(quelle))
            throw Fehler(QStringLiteral("Index außerhalb des gültigen Bereichs"));
        liste[size_t(i)] = {qint32(unten), genau - unten};
    }
    return liste;
}

/// Rounded to the nearest whole number, ties to the even one.
int mische(int a, int b, float anteil)
{
    return int(std::lrintf((1.0f - anteil) * float(a) + anteil * float(b)));
}

} // namespace

bool cDIBSection::CopyToClipboard(bool alsDIB)
{
    if (alsDIB) {
        if (Meldung)
            Meldung(QStringLiteral("Noch nicht verfügbar!"));
        return false;
    }
    if (!hDib_ || !qobject_cast<QGuiApplication *>(QCoreApplication::instance()))
        return false;
    const QImage bild = ausschnitt(hDib_->rect());
    if (bild.isNull())
        return false;
    QGuiApplication::clipboard()->setImage(bild);
    return true;
}

bool cDIBSection::CreateDIB(QPainter *, qint32 breite, qint32 hoehe, std::unique_ptr<QImage> &hDib)
{
    breite_ = breite;
    hoehe_ = hoehe;
    const qint64 bytes = qint64(BytesPerScanLine()) * hoehe;
    if (breite < 1 || hoehe < 1 || bytes > std::numeric_limits<qint32>::max())
        return false;
    auto neu = std::make_unique<QImage>(breite, hoehe, QImage::Format_BGR888);
    if (neu->isNull())
        return false;
    DIBSectionBitsPtr_ = neu->bits();
    std::memset(DIBSectionBitsPtr_, 0, size_t(bytes)); // the padding too
    hDib = std::move(neu);
    return true;
}

void cDIBSection::CreateFromPicture(const QImage &bild)
{
    if (Create(bild.width(), bild.height()))
        LoadPictureBlt(bild);
}

bool cDIBSection::Create(qint32 breite, qint32 hoehe)
{
    ClearUp();
    if (!CreateDIB(nullptr, breite, hoehe, hDib_))
        return false;
    hdc_ = std::make_unique<QPainter>(hDib_.get());
    hdc_->setWorldTransform(QTransform(1, 0, 0, -1, 0, hoehe));
    return true;
}

qint32 cDIBSection::BytesPerScanLine() const
{
    const qint64 bytes = qint64(breite_) * 3 + 3;
    if (bytes > std::numeric_limits<qint32>::max() || bytes < std::numeric_limits<qint32>::min())
        throw Fehler(QStringLiteral("Überlauf: Das Bild ist zu breit."));
    return qint32(bytes & ~qint64(3));
}

void cDIBSection::LoadPictureBlt(const QImage &quelle, qint32 quelleLinks, qint32 quelleOben, qint32 quelleBreite, qint32 quelleHoehe,
                                 quint32 rasterop)
{
    const auto weise = malweise(rasterop);
    if (!hDib_ || !weise)
        return;
    const QRect gewuenscht(quelleLinks, quelleOben, quelleBreite == -1 ? breite_ : quelleBreite, quelleHoehe == -1 ? hoehe_ : quelleHoehe);
    const QRect bereich = gewuenscht & quelle.rect();
    if (bereich.isEmpty())
        return;
    const QImage teil = bereich == quelle.rect() ? quelle : quelle.copy(bereich);
    if (rasterop == SRCCOPY && bereich.topLeft() == gewuenscht.topLeft() && bereich.size() == hDib_->size())
        return ersetzen(teil);
    QImage bild = ausschnitt(hDib_->rect()).convertToFormat(QImage::Format_RGB32);
    {
        QPainter maler(&bild);
        blit(maler, bereich.topLeft() - gewuenscht.topLeft(), teil.convertToFormat(QImage::Format_RGB32), *weise);
    }
    ersetzen(bild);
}

void cDIBSection::PaintPicture(QPainter *ziel, qint32 zielLinks, qint32 zielOben, qint32 zielBreite, qint32 zielHoehe, qint32 quelleLinks,
                               qint32 quelleOben, quint32 rasterop) const
{
    const auto weise = malweise(rasterop);
    if (!hDib_ || !ziel || !weise)
        return;
    const QRect gewuenscht(quelleLinks, quelleOben, zielBreite == -1 ? breite_ : zielBreite, zielHoehe == -1 ? hoehe_ : zielHoehe);
    const QRect bereich = gewuenscht & hDib_->rect();
    if (bereich.isEmpty())
        return;
    const QPoint stelle = QPoint(zielLinks, zielOben) + bereich.topLeft() - gewuenscht.topLeft();
    blit(*ziel, stelle, ausschnitt(bereich).convertToFormat(QImage::Format_RGB32), *weise);
}

/// A part of the picture, counted from its top left corner, the right way up.
QImage cDIBSection::ausschnitt(const QRect &bereich) const
{
    const QRect imSpeicher(bereich.left(), hoehe_ - bereich.top() - bereich.height(), bereich.width(), bereich.height());
    return hDib_->copy(imSpeicher).mirrored();
}

/// All pixels anew, from a picture of the same size.
void cDIBSection::ersetzen(const QImage &bild)
{
    const qint32 zeile = BytesPerScanLine();
    const QImage bgr = bild.convertToFormat(QImage::Format_BGR888);
    for (qint32 y = 0; y < hoehe_ && !bgr.isNull(); ++y)
        std::memcpy(DIBSectionBitsPtr_ + qsizetype(hoehe_ - 1 - y) * zeile, bgr.constScanLine(y), size_t(breite_) * 3);
}

void cDIBSection::RandomiseBits(bool grau)
{
    if (!DIBSectionBitsPtr_)
        return;
    QRandomGenerator zufall(quint32(QDeadlineTimer::current().deadlineNSecs()));
    const auto wert = [&] { return uchar(std::lrint(zufall.generateDouble() * 255)); };
    const qint32 zeile = BytesPerScanLine();
    const auto pixel = [&](qint32 x, qint32 y) { return DIBSectionBitsPtr_ + qsizetype(y) * zeile + qsizetype(x) * 3; };
    if (grau) {
        for (qint32 y = 0; y < hoehe_; ++y)
            for (qint32 x = 0; x < breite_; ++x)
                std::memset(pixel(x, y), wert(), 3);
        return;
    }
    for (qint32 x = 0; x < breite_; ++x)
        for (qint32 y = 0; y < hoehe_; ++y) {
            uchar *bgr = pixel(x, y);
            bgr[0] = 0;
            bgr[1] = wert();
            bgr[2] = wert();
        }
}

void cDIBSection::ClearUp()
{
    hdc_.reset();
    hDib_.reset();
    DIBSectionBitsPtr_ = nullptr;
}

std::unique_ptr<cDIBSection> cDIBSection::Resample(qint32 neueHoehe, qint32 neueBreite) const
{
    auto neu = std::make_unique<cDIBSection>();
    if (!neu->Create(neueBreite, neueHoehe))
        return {};
    if (!DIBSectionBitsPtr_)
        throw Fehler(QStringLiteral("Index außerhalb des gültigen Bereichs"));
    if (neueBreite == breite_ && neueHoehe == hoehe_)
        std::memcpy(neu->DIBSectionBitsPtr_, DIBSectionBitsPtr_, size_t(BytesPerScanLine()) * size_t(hoehe_));
    else
        ResampleInto(*neu);
    return neu;
}

/// Both bitmaps in memory order.
void cDIBSection::ResampleInto(cDIBSection &ziel) const
{
    const std::vector<Stuetze> spalten = stuetzen(breite_, ziel.breite_), zeilen = stuetzen(hoehe_, ziel.hoehe_);
    const qsizetype quellzeile = BytesPerScanLine(), zielzeile = ziel.BytesPerScanLine();
    for (qint32 y = 0; y < ziel.hoehe_; ++y) {
        const auto [yi, dy] = zeilen[size_t(y)];
        const uchar *oben = DIBSectionBitsPtr_ + yi * quellzeile;
        uchar *aus = ziel.DIBSectionBitsPtr_ + y * zielzeile;
        for (const auto &[xi, dx] : spalten) {
            const uchar *a = oben + qsizetype(xi) * 3, *b = a + quellzeile;
            for (int c = 0; c < 3; ++c)
                *aus++ = uchar(std::clamp(mische(mische(a[c], b[c], dy), mische(a[c + 3], b[c + 3], dy), dx), 0, 255));
        }
    }
}
