#include "Druckseiten.h"

#include <QPainter>
#include <qapplicationstatic.h>

#include <cmath>
#include <memory>

namespace {

QFont schriftAus(const Druckschrift &schrift)
{
    constexpr double punkteProZoll = 72;
    QFont font(schrift.Name);
    font.setStyleHint(QFont::SansSerif);
    font.setHintingPreference(QFont::PreferNoHinting);
    font.setPixelSize(int(std::lround(schrift.Size * Schriftmass::einheitenProZoll / punkteProZoll)));
    font.setBold(schrift.Bold);
    font.setItalic(schrift.Italic);
    return font;
}

} // namespace

Schriftmass::Schriftmass(const Druckschrift &schrift)
    : schrift_(schriftAus(schrift)), mass_(schrift_), zeilenhoehe_(mass_.lineSpacing() / einheitenProMm), oberlaenge_(mass_.ascent() / einheitenProMm)
{
}

double Schriftmass::breite(const QString &text) const
{
    return mass_.horizontalAdvance(text) / einheitenProMm;
}

namespace {

struct Bekannt
{
    Druckschrift schrift;
    std::unique_ptr<Schriftmass> mass;
};

// Fonts must be gone before the application is.
Q_APPLICATION_STATIC(std::vector<Bekannt>, bekannte)

} // namespace

const Schriftmass &schriftmass(const Druckschrift &schrift)
{
    // A printout uses a handful of fonts.
    for (const Bekannt &bekannt : *bekannte)
        if (bekannt.schrift == schrift)
            return *bekannt.mass;
    return *bekannte->emplace_back(schrift, std::make_unique<Schriftmass>(schrift)).mass;
}

void seiteMalen(QPainter &maler, const Druckseite &seite, double einheitenProMm)
{
    maler.save();
    maler.scale(einheitenProMm / Schriftmass::einheitenProMm, einheitenProMm / Schriftmass::einheitenProMm);
    const auto einheiten = [](double mm) { return mm * Schriftmass::einheitenProMm; };
    maler.setPen(Qt::black);
    const Schriftmass *mass = nullptr;
    const Druckschrift *schrift = nullptr;
    for (const Drucktext &text : seite.texte) {
        if (!schrift || *schrift != text.schrift) {
            schrift = &text.schrift;
            mass = &schriftmass(text.schrift);
            maler.setFont(mass->schrift());
        }
        maler.drawText(QPointF(einheiten(text.x), einheiten(text.y + mass->oberlaenge())), text.text);
    }
    for (const Drucklinie &linie : seite.linien) {
        maler.setPen(QPen(Qt::black, einheiten(linie.breite), Qt::SolidLine, Qt::SquareCap));
        maler.drawLine(QPointF(einheiten(linie.x1), einheiten(linie.y1)), QPointF(einheiten(linie.x2), einheiten(linie.y2)));
    }
    maler.restore();
}
