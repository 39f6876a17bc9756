#pragma once

#include <QImage>
#include <QWidget>

#include <optional>

class QLabel;
class QPushButton;

/* The picture over the whole of a maximised picture window. It has a size and a place of its own, so that what lies beneath stays as it
   is. Measures are pixels of the screen; a share is one of the picture's own size. */
class Vollbild : public QWidget
{
    Q_OBJECT

public:
    explicit Vollbild(QWidget *eltern);

    /// Another picture, fitted; its pixels follow.
    void neuesBild(QSizeF eigene);
    /// What is painted in its place, in any size.
    void setBild(const QImage &bild);
    /// The foot of the picture, where a plate names its plant, is painted over.
    void setVerdeckt(bool verdeckt);
    void setTexte(const QString &name, const QString &beschreibung, const QString &position);
    void setBlaettern(bool zurueck, bool vor);
    /// Share that is shown; 0 without a picture.
    double anteil() const;
    bool angepasst() const { return !anteil_; }
    /// Between fitted and the own size; the point, in this widget, comes to the middle.
    void umschalten(std::optional<QPointF> punkt = {});
    /// A tenth of the own size up or down.
    void stufe(int richtung);

signals:
    /// Another share: pixels of that size are wanted.
    void anteilGeaendert();
    void blaettern(int richtung);
    void verkleinern();

protected:
    void paintEvent(QPaintEvent *ereignis) override;
    void resizeEvent(QResizeEvent *ereignis) override;
    void mousePressEvent(QMouseEvent *ereignis) override;
    void mouseMoveEvent(QMouseEvent *ereignis) override;
    void mouseReleaseEvent(QMouseEvent *ereignis) override;
    void mouseDoubleClickEvent(QMouseEvent *ereignis) override;
    void wheelEvent(QWheelEvent *ereignis) override;

private:
    QRectF flaeche() const; ///< above the bar
    QRectF ort() const;
    double passend() const;
    void setAnteil(std::optional<double> anteil);
    void verschieben(QPointF weg);
    void begrenzen();
    void zeigerSetzen();

    QImage bild_;
    bool verdeckt_ = false;
    QSizeF eigene_;
    std::optional<double> anteil_; ///< nothing: fitted
    QPointF mitte_{0.5, 0.5};      ///< point of the picture in the middle of the area, 0 to 1
    std::optional<QPointF> gezogenVon_;
    int radrest_ = 0; ///< turns of the wheel too small for a step, eighths of a degree
    QWidget *leiste_ = nullptr;
    QLabel *name_, *beschreibung_, *position_;
    QPushButton *zurueck_, *vor_, *groesse_;
};
