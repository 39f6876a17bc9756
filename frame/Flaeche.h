#pragma once

#include <QMdiArea>
#include <QPixmap>

/* The area that hosts the plant windows, with its background picture. */
class Flaeche : public QMdiArea
{
    Q_OBJECT

public:
    explicit Flaeche(QWidget *eltern);

    bool hatBild() const { return !bild_.isNull(); }
    /// The picture fills the area and keeps its proportions.
    void setBild(const QPixmap &bild);
    void fensterZeigen(QWidget *form);
    /// All windows that are not minimised, side by side or one below the other.
    void anordnen(Qt::Orientation richtung);

protected:
    void paintEvent(QPaintEvent *ereignis) override;

private:
    QPixmap bild_, gemalt_;
};
