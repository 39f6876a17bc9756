#include "Printer.h"

#include <algorithm>
#include <utility>

namespace {

/// More characters than have room on a line of the foot.
constexpr qsizetype laengsterName = 200;

} // namespace

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

void Printer::PrintSeitenzahl(double rechts, const QString &davor)
{
    zahlen_.back().push_back({CurrentX - ScaleLeft, rechts - ScaleLeft, CurrentY - ScaleTop, davor.simplified(), Font});
}

void Printer::zahlSchreiben(Druckseite &seite, const Seitenzahl &stelle, const QString &zahl)
{
    const Schriftmass &mass = schriftmass(stelle.schrift);
    const auto passt = [&](const QString &text) { return mass.breite(text) <= stelle.rechts - stelle.links; };
    const QString trenner = QStringLiteral("  -  ");
    QString text = stelle.davor.isEmpty() ? zahl : stelle.davor + trenner + zahl;
    for (qsizetype laenge = std::min<qsizetype>(stelle.davor.size(), laengsterName); !passt(text) && laenge >= 0; --laenge) {
        const QString anfang = stelle.davor.left(laenge).trimmed();
        text = anfang.isEmpty() ? zahl : anfang + QStringLiteral(" ...") + trenner + zahl;
    }
    if (passt(text))
        seite.texte.push_back({stelle.rechts - mass.breite(text), stelle.y, text, stelle.schrift});
}

void Printer::NewPage()
{
    seiten_.seiten.emplace_back();
    zahlen_.emplace_back();
    CurrentX = CurrentY = 0;
}

Druckseiten Printer::EndDoc()
{
    const size_t gesamt = seiten_.seiten.size();
    seiten_.seiten.resize(std::min(gesamt, hoechstens_));
    for (size_t i = 0; i < seiten_.seiten.size(); ++i) {
        QString zahl = QStringLiteral("Seite %1").arg(i + 1);
        if (gesamt <= hoechstens_)
            zahl += QStringLiteral(" von %1").arg(gesamt);
        for (const Seitenzahl &stelle : zahlen_[i])
            zahlSchreiben(seiten_.seiten[i], stelle, zahl);
    }
    zahlen_.assign(1, {});
    return {seiten_.papier, seiten_.bereich, std::exchange(seiten_.seiten, std::vector<Druckseite>(1))};
}
