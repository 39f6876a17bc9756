#pragma once

#include "Datensatz.h"

#include <QImage>
#include <QPainter>
#include <QPainterPath>

#include <array>

/// A sheet of warm paper with frame and caption, 1600 x 1200.
class Tafel
{
public:
    static constexpr int breite = 1600, hoehe = 1200;
    static constexpr double boden = 1010; ///< where pots stand

    Tafel();
    QPainter &maler() { return maler_; }
    void unterschrift(const QString &name, const QString &zweiteZeile, const QString &was);
    /// False when the file cannot be written.
    bool speichern(const QString &pfad);

private:
    QImage bild_;
    QPainter maler_;
};

QFont schrift(double groesse, bool kursiv = false, bool fett = false);
/// Text centred on, right of or left of a point, in the ink of captions.
void beschriften(QPainter &p, QPointF ort, const QString &text, double groesse, Qt::Alignment seite = Qt::AlignHCenter, const QColor &farbe = {});
void schlagschatten(QPainter &p, QPointF mitte, double breite, double hoehe);
/// Months 1 to 12 with those marked that `gesetzt` names.
void monatsleiste(QPainter &p, QRectF feld, const QString &titel, const std::array<bool, 12> &gesetzt, const QColor &farbe);

/// Rod with marks; `null` is its zero, `pixelJeMeter` its scale, `oben` the height it reaches in metres.
struct Messlatte
{
    QPointF null;
    double pixelJeMeter, oben;
    void zeichnen(QPainter &p) const;
    /// Bracket of a span beside the rod; an arrow where the span reaches above it.
    void spanne(QPainter &p, double von, double bis) const;
    double y(double meter) const { return null.y() - meter * pixelJeMeter; }
};

/// What stands below the botanical name: the German name, where it differs, and the family.
QString zweiteZeile(const Datensatz &pflanze, const QString &familie);
/// "35 cm" below one metre, "1,2 m" above.
QString laengentext(double meter);
