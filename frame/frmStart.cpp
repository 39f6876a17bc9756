#include "frmStart.h"

#include "controls/Bilder.h"

#include <QDir>
#include <QImageReader>
#include <QMouseEvent>
#include <QPainter>

namespace {

constexpr QSize groesse(640, 400);

class Startbild : public QWidget
{
public:
    Startbild(const QString &version, frmStart *eltern) : QWidget(eltern), version_(version)
    {
        setObjectName(QStringLiteral("startbild"));
        setFixedSize(groesse);
        setAccessibleName(QStringLiteral("Flox"));
        setCursor(Qt::PointingHandCursor);
    }

protected:
    void paintEvent(QPaintEvent *) override
    {
        QPainter maler(this);
        // Decoded at the size that is painted.
        QImageReader leser(QDir(bilder::ordner()).filePath(QStringLiteral("start.jpg")));
        leser.setScaledSize(groesse * devicePixelRatioF());
        maler.drawImage(rect(), leser.read());
        maler.setRenderHint(QPainter::Antialiasing);
        QFont schrift = font();
        schrift.setPixelSize(64);
        schrift.setBold(true);
        maler.setFont(schrift);
        maler.setPen(QColor(0x2f, 0x6b, 0x3a));
        maler.drawText(QRect(36, 28, 400, 80), Qt::AlignLeft | Qt::AlignVCenter, QStringLiteral("Flox"));
        schrift.setPixelSize(17);
        schrift.setBold(false);
        maler.setFont(schrift);
        maler.drawText(QRect(40, 108, 400, 30), Qt::AlignLeft | Qt::AlignVCenter, QStringLiteral("Pflanzen kennen, finden, verwenden"));
        schrift.setPixelSize(12);
        maler.setFont(schrift);
        maler.drawText(QRect(40, 136, 400, 24), Qt::AlignLeft | Qt::AlignVCenter, QStringLiteral("Version %1").arg(version_));
        if (!std::exchange(gemalt_, true))
            emit static_cast<frmStart *>(parentWidget())->gemalt();
    }

    void mouseReleaseEvent(QMouseEvent *) override { emit static_cast<frmStart *>(parentWidget())->fertig(); }

private:
    QString version_;
    bool gemalt_ = false;
};

} // namespace

frmStart::frmStart(const QString &version) : QWidget(nullptr, Qt::SplashScreen | Qt::FramelessWindowHint)
{
    setObjectName(QStringLiteral("frmStart"));
    setFixedSize(groesse);
    new Startbild(version, this);
    Timer1_.setObjectName(QStringLiteral("Timer1"));
    Timer1_.setInterval(5000);
    connect(&Timer1_, &QTimer::timeout, this, &frmStart::fertig);
    Timer1_.start();
}
