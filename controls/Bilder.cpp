#include "Bilder.h"

#include <QDir>
#include <QFile>
#include <QHash>
#include <QPainter>
#include <QPixmapCache>
#include <QSvgRenderer>

#include <memory>

namespace bilder {

namespace {

QString &ordnerVariable()
{
    static QString pfad;
    return pfad;
}

bool dunkleFarben = false;

QSvgRenderer *zeichner(const QString &bild)
{
    static QHash<QString, std::shared_ptr<QSvgRenderer>> geladen[2];
    std::shared_ptr<QSvgRenderer> &eintrag = geladen[dunkleFarben][bild];
    if (!eintrag) {
        const QString hell = QDir(ordner()).filePath(bild + QStringLiteral(".svg"));
        const QString dunkel = QDir(ordner()).filePath(QStringLiteral("dunkel/%1.svg").arg(bild));
        const QString datei = dunkleFarben && QFile::exists(dunkel) ? dunkel : hell;
        eintrag = std::make_shared<QSvgRenderer>();
        if (QFile::exists(datei))
            eintrag->load(datei);
    }
    return eintrag->isValid() ? eintrag.get() : nullptr;
}

} // namespace

void setOrdner(const QString &systempfad)
{
    ordnerVariable() = systempfad;
}

QString ordner()
{
    return ordnerVariable();
}

void setDunkel(bool dunkel)
{
    dunkleFarben = dunkel;
}

QSize eigengroesse(const QString &bild)
{
    QSvgRenderer *svg = zeichner(bild);
    return svg ? svg->defaultSize() : QSize();
}

QPixmap pixmap(const QString &bild, QSize groesse, qreal skala)
{
    const QString schluessel = QStringLiteral("%1 %2x%3@%4 %5").arg(bild).arg(groesse.width()).arg(groesse.height()).arg(skala).arg(dunkleFarben);
    QPixmap fertig;
    if (QPixmapCache::find(schluessel, &fertig))
        return fertig;
    fertig = QPixmap(groesse * skala);
    fertig.setDevicePixelRatio(skala);
    fertig.fill(Qt::transparent);
    if (QSvgRenderer *svg = zeichner(bild); svg && !groesse.isEmpty()) {
        QPainter maler(&fertig);
        maler.setRenderHint(QPainter::Antialiasing);
        const QSizeF passend = QSizeF(svg->defaultSize()).scaled(groesse, Qt::KeepAspectRatio);
        QRectF ziel(QPointF(), passend);
        ziel.moveCenter(QRectF(QPointF(), groesse).center());
        svg->render(&maler, ziel);
    }
    QPixmapCache::insert(schluessel, fertig);
    return fertig;
}

void malen(QPainter &maler, const QRectF &flaeche, const QString &bild)
{
    maler.drawPixmap(flaeche.topLeft(), pixmap(bild, flaeche.size().toSize(), maler.device()->devicePixelRatioF()));
}

} // namespace bilder
