#pragma once

#include <QFont>
#include <QFontMetricsF>
#include <QRectF>
#include <QString>

#include <vector>

class QPainter;

inline constexpr double mmProZoll = 25.4;

/* What is printed, before any device knows of it: texts and lines at their places on pages. Printer, PDF and preview paint it
   by one function; tests read it. All measures are millimetres from the left and top edges of the printable area. */

struct Druckschrift
{
    QString Name = QStringLiteral("Arial");
    double Size = 9; ///< points
    bool Bold = false;
    bool Italic = false;

    bool operator==(const Druckschrift &) const = default;
};

struct Drucktext
{
    double x = 0, y = 0; ///< left end and top of the line
    QString text;
    Druckschrift schrift;
};

struct Drucklinie
{
    double x1 = 0, y1 = 0, x2 = 0, y2 = 0;
    double breite = 0;
};

struct Druckseite
{
    std::vector<Drucktext> texte;
    std::vector<Drucklinie> linien;
};

struct Druckseiten
{
    QSizeF papier;  ///< millimetres
    QRectF bereich; ///< the printable area on the paper, millimetres
    std::vector<Druckseite> seiten;
};

/// Widths and heights by the outlines of a font, without hinting, so that they hold for every device. Millimetres.
class Schriftmass
{
public:
    explicit Schriftmass(const Druckschrift &schrift);
    double breite(const QString &text) const;
    double zeilenhoehe() const { return zeilenhoehe_; }
    double oberlaenge() const { return oberlaenge_; }
    /// The font at `einheitenProZoll` pixels to the inch.
    const QFont &schrift() const { return schrift_; }

    /// Whole numbers of these are the usual sizes of fonts, so that no size is rounded.
    static constexpr double einheitenProZoll = 1200;
    static constexpr double einheitenProMm = einheitenProZoll / mmProZoll;

private:
    QFont schrift_;
    QFontMetricsF mass_;
    double zeilenhoehe_, oberlaenge_;
};

/// The measures of a font, made once.
const Schriftmass &schriftmass(const Druckschrift &schrift);

/// Paints a page with the printable area's corner at the painter's origin, at that many painter units to the millimetre.
void seiteMalen(QPainter &maler, const Druckseite &seite, double einheitenProMm);
