#include "Vorschaulager.h"

#include "Bildlader.h"

#include <QThread>

#include <algorithm>
#include <new>

namespace {

constexpr qsizetype beiwerk = 256; ///< bytes that an entry takes beside its pixels
constexpr int hoechstensFaeden = 4;

} // namespace

Vorschaulager::Vorschaulager(qsizetype grenze, QObject *eltern) : QObject(eltern), lager_(grenze)
{
    // One processor is left to the scrolling.
    lader_.setMaxThreadCount(std::clamp(QThread::idealThreadCount() - 1, 1, hoechstensFaeden));
    lader_.setThreadPriority(QThread::LowPriority);
}

Vorschaulager::~Vorschaulager()
{
    lader_.clear();
    lader_.waitForDone();
}

void Vorschaulager::wuenschen(const QStringList &dateien, QSize kasten)
{
    warten_ = dateien;
    naechste_ = 0;
    kasten_ = kasten;
    weiter();
}

void Vorschaulager::leeren()
{
    ++stand_;
    warten_.clear();
    naechste_ = 0;
    lader_.clear();
    unterwegs_.clear();
    lager_.clear();
}

void Vorschaulager::weiter()
{
    // A thread that has finished finds another file waiting; more could not be called off.
    const int zugleich = 2 * lader_.maxThreadCount();
    for (; naechste_ < warten_.size() && unterwegs_.size() < zugleich; ++naechste_) {
        const QString &datei = warten_[naechste_];
        const Eintrag *da = lager_.object(datei);
        if ((da && (da->kasten == kasten_ || da->bild.isNull())) || unterwegs_.contains(datei))
            continue;
        unterwegs_.insert(datei);
        lader_.start([this, datei, kasten = kasten_, stand = stand_] {
            QImage bild;
            try {
                bild = ladeSkaliert(datei, kasten);
            } catch (const std::bad_alloc &) {
                // Shown as a picture that cannot be read.
            }
            // The thread ends before this object does; the call waits for the message loop.
            QMetaObject::invokeMethod(
                this,
                [this, datei, kasten, bild, stand] {
                if (stand == stand_)
                    ablegen(datei, kasten, bild);
                },
                Qt::QueuedConnection);
        });
    }
}

void Vorschaulager::ablegen(const QString &datei, QSize kasten, const QImage &bild)
{
    unterwegs_.remove(datei);
    ++geladen_;
    lager_.insert(datei, new Eintrag{bild, kasten}, bild.sizeInBytes() + beiwerk);
    weiter();
    emit angekommen(datei);
}
