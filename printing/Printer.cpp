#include "Printer.h"

#include <algorithm>
#include <utility>

Printer::Printer(const QPageLayout &blatt, size_t hoechstens) : papier_(blatt.pageSize().windowsId()), hoechstens_(hoechstens)
{
    seiten_.papier = blatt.fullRect(QPageLayout::Millimeter).size();
    seiten_.bereich = blatt.paintRect(QPageLayout::Millimeter);
    seiten_.seiten.emplace_back();
}

void Printer::line(double x1, double y1, double x2, double y2)
{
    seiten_.seiten.back().linien.push_back({x1 - ScaleLeft, y1 - ScaleTop, x2 - ScaleLeft, y2 - ScaleTop, DrawWidth * mmProZoll / PrintQuality});
    CurrentX = x2;
    CurrentY = y2;
}

void Printer::PrintAnfang(const QString &text)
{
    if (!text.isEmpty())
        seiten_.seiten.back().texte.push_back({CurrentX - ScaleLeft, CurrentY - ScaleTop, text, Font});
    CurrentX += TextWidth(text);
}

void Printer::Print(const QString &text)
{
    if (!text.isEmpty())
        seiten_.seiten.back().texte.push_back({CurrentX - ScaleLeft, CurrentY - ScaleTop, text, Font});
    CurrentX = 0;
    CurrentY += TextHeight();
}

void Printer::NewPage()
{
    seiten_.seiten.emplace_back();
    CurrentX = CurrentY = 0;
}

Druckseiten Printer::EndDoc()
{
    seiten_.seiten.resize(std::min(seiten_.seiten.size(), hoechstens_));
    return {seiten_.papier, seiten_.bereich, std::exchange(seiten_.seiten, std::vector<Druckseite>(1))};
}
