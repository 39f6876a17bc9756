#pragma once

#include <QPixmap>
#include <QString>

class QPainter;
class QRectF;

/* The pictures of the image lists, drawn from SVG at the size and scale that is asked for. A picture is named "list/key";
   a missing one draws nothing. */
namespace bilder {

/// Folder of the pictures; set once at the start.
void setOrdner(const QString &systempfad);
QString ordner();
/// Pictures that have a drawing for dark colours, in the folder "dunkel" beside the lists, are drawn from it.
void setDunkel(bool dunkel);

/// Paints a picture into a rectangle, keeping its proportions.
void malen(QPainter &maler, const QRectF &flaeche, const QString &bild);
/// The same as a pixmap of `groesse` device-independent pixels.
QPixmap pixmap(const QString &bild, QSize groesse, qreal skala);
QSize eigengroesse(const QString &bild);

} // namespace bilder
