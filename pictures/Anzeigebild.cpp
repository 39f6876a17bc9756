#include "Anzeigebild.h"

#include "Bildlader.h"
#include "Flaechenmittel.h"

#include <QFileInfo>

#include <algorithm>
#include <new>

namespace {

/// From a larger stage, which is quicker than from the file; from the file where there is none.
QImage stufeMachen(const QString &datei, int stufe, const QImage &vorlage, int vorlagenstufe)
{
    try {
        if (vorlage.isNull())
            return ladeTeil(datei, 1 << stufe);
        const int teiler = 1 << (stufe - vorlagenstufe);
        return flaechenmittel(vorlage, {(vorlage.width() + teiler - 1) / teiler, (vorlage.height() + teiler - 1) / teiler});
    } catch (const std::bad_alloc &) {
        return {};
    }
}

} // namespace

Anzeigebild::Anzeigebild(QObject *eltern) : QObject(eltern)
{
    lader_.setMaxThreadCount(1);
}

Anzeigebild::~Anzeigebild()
{
    lader_.waitForDone();
}

Anzeigebild::Quelle Anzeigebild::quelle(const QString &datei)
{
    const QFileInfo info(datei);
    return info.isFile() ? Quelle{datei, info.size(), info.lastModified()} : Quelle{};
}

Anzeigebild::Stand Anzeigebild::anfordern(const QString &datei, double anteil)
{
    if (const Quelle neu = quelle(datei); neu != quelle_) {
        leeren();
        quelle_ = neu;
    }
    if (quelle_.datei.isEmpty())
        return Stand::Fehlt;
    for (stufe_ = anzahlStufen - 1; stufe_ > 0 && anteil * (1 << stufe_) > 1; --stufe_) {}
    weiter();
    return stufen_[size_t(stufe_)].isNull() ? Stand::Kommt : Stand::Fertig;
}

void Anzeigebild::leeren()
{
    quelle_ = {};
    stufen_.fill({});
}

const QImage &Anzeigebild::bild() const
{
    for (int stufe = stufe_; stufe > 0; --stufe)
        if (const QImage &bild = stufen_[size_t(stufe)]; !bild.isNull())
            return bild;
    const auto groesstes = std::ranges::find_if_not(stufen_, &QImage::isNull);
    return groesstes != stufen_.end() ? *groesstes : stufen_.front();
}

void Anzeigebild::weiter()
{
    if (laeuft_ || quelle_.datei.isEmpty() || !stufen_[size_t(stufe_)].isNull())
        return;
    int vorlage = stufe_;
    while (vorlage > 0 && stufen_[size_t(vorlage)].isNull())
        --vorlage;
    laeuft_ = true;
    lader_.start([this, woher = quelle_, stufe = stufe_, vorlage, bild = stufen_[size_t(vorlage)]] {
        const QImage fertig = stufeMachen(woher.datei, stufe, bild, vorlage);
        // The thread ends before this object does; the call waits for the message loop.
        QMetaObject::invokeMethod(
            this, [this, woher, stufe, fertig] { angekommen(woher, stufe, fertig); }, Qt::QueuedConnection);
    });
}

void Anzeigebild::angekommen(const Quelle &woher, int stufe, const QImage &bild)
{
    laeuft_ = false;
    if (woher == quelle_) {
        // Where memory does not suffice for this stage, another one has to.
        const QImage &bestes = bild.isNull() ? this->bild() : bild;
        if (bestes.isNull()) {
            const bool vorhanden = quelle(woher.datei) == woher;
            leeren();
            emit gescheitert(vorhanden);
            return;
        }
        stufen_[size_t(stufe)] = QImage(bestes);
        emit geaendert();
    }
    weiter();
}
