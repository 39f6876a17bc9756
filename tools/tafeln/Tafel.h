#pragma once

#include <QImage>
#include <QPainter>
#include <QPainterPath>

#include <vector>

/* The sheet and what stands where on it. */

/// Boxes and lines of a sheet as they were measured: nothing may lie on anything else.
class Aufriss
{
public:
    explicit Aufriss(const QRectF &blatt = {}) : blatt_(blatt) {}
    void text(const QRectF &kasten) { felder_.push_back({Text, kasten, {}, -1}); }
    /// A drawing; the lines of its number may end on it.
    void bild(const QRectF &kasten, int nummer) { felder_.push_back({Bild, kasten, {}, nummer}); }
    void linie(const QLineF &linie, int nummer) { felder_.push_back({Linie, {}, linie, nummer}); }
    /// What lies on something else or leaves the sheet, counted.
    int fehler() const;
    size_t anzahl() const { return felder_.size(); }

private:
    enum Art { Text, Bild, Linie };
    struct Feld
    {
        Art art;
        QRectF kasten;
        QLineF linie;
        int nummer;
    };
    static bool stoert(const Feld &a, const Feld &b);
    QRectF blatt_;
    std::vector<Feld> felder_;
};

/// A sheet with frame and a band of fixed height at its foot, laid out as 1600 x 1200 and stored at 1040 x 780. Above the band nothing names
/// the plant.
class Tafel
{
public:
    static constexpr int breite = 1600, hoehe = 1200;
    static constexpr double bildmass = 0.65;        ///< stored pixels to those of the layout: 1,500 plants are to fit on a disk
    static constexpr int raster = 20;               ///< layout pixels: its multiples are whole stored pixels
    static constexpr double rand = 40, band = 1066; ///< drawing ends where the band begins

    explicit Tafel(bool getoent = false);
    QPainter &maler() { return maler_; }
    void unterschrift(const QString &name, const QString &zweiteZeile, const QString &was);
    /// One line of text, centred on, right of or left of a point.
    QRectF text(QPointF ort, const QString &text, double groesse, Qt::Alignment seite = Qt::AlignHCenter, const QColor &farbe = {});
    /// Text in lines no longer than the place is wide, from its upper edge.
    QRectF absatz(const QRectF &platz, const QString &text, double groesse, Qt::Alignment seite);
    static double absatzhoehe(double breite, const QString &text, double groesse);
    void zeiger(const QLineF &linie, int nummer);
    /// A bar of a round length with its label, within 120 pixels from `ort`; `pixelJeCm` of the drawing above it.
    void massstab(QPointF ort, double pixelJeCm);
    /// The sheet as a JPEG of quality 85, and nothing more can be drawn on it; false when the file cannot be written.
    bool speichern(const QString &pfad);

    Aufriss aufriss{QRectF(rand - 10, rand - 10, breite - 2 * rand + 20, band - rand + 6)};

private:
    QImage bild_;
    QPainter maler_;
};

bool kreuzt(const QLineF &a, const QLineF &b);
QFont schrift(double groesse, bool kursiv = false);
/// Returns the box of the text.
QRectF beschriften(QPainter &p, QPointF ort, const QString &text, double groesse, Qt::Alignment seite = Qt::AlignHCenter, const QColor &farbe = {});
void schlagschatten(QPainter &p, QPointF mitte, double breite, double hoehe);

/// Rod with marks; `null` is its zero, `pixelJeMeter` its scale, `laenge` what it reaches in metres, downwards where negative.
struct Messlatte
{
    QPointF null;
    double pixelJeMeter, laenge;
    void zeichnen(Tafel &t) const;
    /// Bracket of a span beside the rod.
    void spanne(Tafel &t, double von, double bis) const;
    double y(double meter) const { return null.y() - (laenge < 0 ? -meter : meter) * pixelJeMeter; }
};

/// "35 cm" below one metre, "1,2 m" above.
QString laengentext(double meter);
