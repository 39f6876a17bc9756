#pragma once

#include "Bilderliste.h"

#include <QFrame>
#include <QPixmap>
#include <QThreadPool>

#include <array>

class QLabel;
class QScrollBar;

/* The strip of previews beside a record. It knows pictures and captions, nothing else. Files are decoded by a thread of its
   own and shown as they come, so that walking through the records is never held up. */
class Bilderstreifen : public QFrame
{
    Q_OBJECT

public:
    explicit Bilderstreifen(QWidget *eltern);
    ~Bilderstreifen() override;

    /// At most ten pictures; none shows `ersatz`. What was still to be loaded for the record before is dropped. A picture that
    /// proves unreadable gives way to its substitute, captioned with its file name.
    void zeigen(const std::vector<Bildeintrag> &bilder, const QString &ersatz);
    /// Hides the captions and the foot of the pictures, where plates carry the name.
    void setVerdeckt(bool verdeckt);
    /// Lays the slots out for the present number of pictures and place of the bar.
    void vscBilderEinrichten();
    int anzahl() const { return anzahl_; }

signals:
    /// A real picture was clicked; index counted from 0.
    void angeklickt(int index);

protected:
    void resizeEvent(QResizeEvent *ereignis) override;
    void wheelEvent(QWheelEvent *ereignis) override;

private:
    class Platz;

    void belegen();
    void beschriften(int i);
    void ersetzen(int i);
    /// Moves the bar so that a slot is seen whole.
    void herholen(int i);
    void laden(int i, const QString &pfad);
    void platzieren(int i);

    std::array<Platz *, groessteBilderzahl> imgFloxBild_{};
    std::array<QLabel *, groessteBilderzahl> lblBilderText_{};
    QWidget *picBilderLeiste_ = nullptr;
    QWidget *picAbdeckung_ = nullptr;
    QScrollBar *vscBilder_ = nullptr;
    QThreadPool lader_;
    std::vector<Bildeintrag> bilder_;
    QString ersatz_;
    int anzahl_ = 0;
    int radrest_ = 0; ///< turns of the wheel too small for a step, eighths of a degree
    bool verdeckt_ = false;
    int satz_ = 0; ///< counts the records shown: a picture that comes too late belongs to none
};
