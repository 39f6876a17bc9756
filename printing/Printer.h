#pragma once

#include "Druckseiten.h"

#include <QPageLayout>

#include <limits>

/// Of every printout: the origin of its pages inside the printable area, millimetres.
inline constexpr double seitenrand = 15;

/* The page that printouts write on: a point that moves over paper. All coordinates are millimetres; the printable area's left
   and top edges lie at ScaleLeft and ScaleTop. What is written becomes a list of pages. */
class Printer
{
public:
    /// Paper and printable area come from `blatt`. Nobody needs more than the first `hoechstens` pages.
    explicit Printer(const QPageLayout &blatt, size_t hoechstens = std::numeric_limits<size_t>::max());

    static constexpr int ScaleMode = 6; ///< millimetres
    int PrintQuality = 300;             ///< dots to the inch, the measure of DrawWidth
    int DrawWidth = 1;                  ///< width of lines, in dots
    double ScaleLeft = 0, ScaleTop = 0;
    double CurrentX = 0, CurrentY = 0; ///< left end and top of the next text
    Druckschrift Font;

    /// Number of the paper size, 9 for A4.
    int PaperSize() const { return papier_; }
    double ScaleWidth() const { return seiten_.bereich.width(); }
    double ScaleHeight() const { return seiten_.bereich.height(); }
    double TextWidth(const QString &text) const { return schriftmass(Font).breite(text); }
    double TextHeight() const { return schriftmass(Font).zeilenhoehe(); }

    /// Draws a line; the point moves to its end.
    void line(double x1, double y1, double x2, double y2);
    /// Writes the text; the point moves behind it.
    void PrintAnfang(const QString &text);
    /// Writes the text and ends the line: the point moves to x = 0, one line down.
    void Print(const QString &text);
    /// Ends the present line at `rechts` with `davor` and "Seite 2 von 3": what stands before the number is shortened to the room
    /// there is behind the point, and where not even the number has room nothing is written. It comes at EndDoc, which knows the
    /// number of pages; it does not tell it when there are more than are needed.
    void PrintSeitenzahl(double rechts, const QString &davor);
    /// Begins a page; the point moves to (0, 0).
    void NewPage();
    /// Ends the printout and hands the pages over; the next one begins on a new page.
    Druckseiten EndDoc();

    /// Whether the pages that are needed are there; what is written now will be thrown away.
    bool genug() const { return seiten_.seiten.size() > hoechstens_; }

private:
    struct Seitenzahl
    {
        double links, rechts, y; // on the page
        QString davor;
        Druckschrift schrift;
    };
    void zahlSchreiben(Druckseite &seite, const Seitenzahl &stelle, const QString &zahl);

    Druckseiten seiten_;
    std::vector<std::vector<Seitenzahl>> zahlen_{1}; ///< of each page
    int papier_;
    size_t hoechstens_;
};
