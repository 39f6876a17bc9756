#include "Tafel.h"

#include "Farben.h"

#include <QImageWriter>

#include <array>
#include <cmath>

namespace {

constexpr double rahmen = 26;

void papier(QPainter &p)
{
    QLinearGradient grund(0, 0, 0, Tafel::hoehe);
    grund.setColorAt(0, heller(farbe::papier, 0.45));
    grund.setColorAt(1, farbe::papier);
    p.fillRect(QRect(0, 0, Tafel::breite, Tafel::hoehe), grund);
    p.setPen(QPen(farbe::linie, 2.5));
    p.drawRect(QRectF(rahmen, rahmen, Tafel::breite - 2 * rahmen, Tafel::hoehe - 2 * rahmen));
    p.setPen(QPen(farbe::linie, 1));
    p.drawRect(QRectF(rahmen + 7, rahmen + 7, Tafel::breite - 2 * rahmen - 14, Tafel::hoehe - 2 * rahmen - 14));
}

/// Largest step of 1, 2, 5 times a power of ten that keeps marks at least 46 pixels apart.
double teilung(double pixelJeMeter)
{
    double zehner = 0.001;
    while (true) {
        for (const double faktor : {1.0, 2.0, 5.0})
            if (zehner * faktor * pixelJeMeter >= 46)
                return zehner * faktor;
        zehner *= 10;
    }
}

constexpr double lattenbreite = 20;

} // namespace

Tafel::Tafel() : bild_(breite, hoehe, QImage::Format_RGB32), maler_(&bild_)
{
    maler_.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
    papier(maler_);
}

void Tafel::unterschrift(const QString &name, const QString &zweiteZeile, const QString &was)
{
    maler_.setPen(QPen(farbe::linie, 1));
    maler_.drawLine(QPointF(breite / 2.0 - 330, 1072), QPointF(breite / 2.0 + 330, 1072));
    double groesse = 40;
    while (groesse > 20 && QFontMetricsF(schrift(groesse, true)).horizontalAdvance(name) > breite - 160)
        groesse -= 2;
    maler_.setFont(schrift(groesse, true));
    maler_.setPen(farbe::tinte);
    maler_.drawText(QRectF(60, 1076, breite - 120, 52), Qt::AlignCenter, name);
    const QString unten = zweiteZeile.isEmpty() ? was : zweiteZeile + QStringLiteral("  ·  ") + was;
    beschriften(maler_, {breite / 2.0, 1144}, unten, 22);
}

bool Tafel::speichern(const QString &pfad)
{
    maler_.end();
    QImageWriter schreiber(pfad, "jpg");
    schreiber.setQuality(88);
    return schreiber.write(bild_);
}

QFont schrift(double groesse, bool kursiv, bool fett)
{
    QFont f(QStringLiteral("sans-serif"));
    f.setStyleHint(QFont::SansSerif);
    f.setPixelSize(int(groesse));
    f.setItalic(kursiv);
    f.setBold(fett);
    return f;
}

void beschriften(QPainter &p, QPointF ort, const QString &text, double groesse, Qt::Alignment seite, const QColor &f)
{
    constexpr double weite = 1400;
    const double x = seite & Qt::AlignLeft ? ort.x() : seite & Qt::AlignRight ? ort.x() - weite : ort.x() - weite / 2;
    p.setFont(schrift(groesse));
    p.setPen(f.isValid() ? f : farbe::blass);
    p.drawText(QRectF(x, ort.y() - groesse, weite, 2 * groesse), int(seite | Qt::AlignVCenter), text);
}

void schlagschatten(QPainter &p, QPointF mitte, double b, double h)
{
    p.save();
    p.translate(mitte);
    p.scale(b, h);
    QRadialGradient schatten(0, 0, 1);
    schatten.setColorAt(0, QColor(70, 55, 35, 95));
    schatten.setColorAt(0.6, QColor(70, 55, 35, 45));
    schatten.setColorAt(1, QColor(70, 55, 35, 0));
    p.setPen(Qt::NoPen);
    p.setBrush(schatten);
    p.drawEllipse(QPointF(0, 0), 1, 1);
    p.restore();
}

void monatsleiste(QPainter &p, QRectF feld, const QString &titel, const std::array<bool, 12> &gesetzt, const QColor &f)
{
    beschriften(p, {feld.left() - 18, feld.center().y()}, titel, 21, Qt::AlignRight);
    const double b = feld.width() / 12;
    for (int m = 0; m < 12; ++m) {
        const QRectF kasten(feld.left() + m * b + 2, feld.top(), b - 4, feld.height());
        p.setPen(QPen(gesetzt[size_t(m)] ? umriss(f) : farbe::linie, 1.2));
        p.setBrush(gesetzt[size_t(m)] ? QBrush(f) : QBrush(durchsichtig(Qt::white, 0.5)));
        p.drawRoundedRect(kasten, 5, 5);
        const bool hell = !gesetzt[size_t(m)] || f.lightness() > 120;
        beschriften(p, kasten.center(), WL_Monate.wort(m + 1).left(1).toString(), 19, Qt::AlignHCenter, hell ? farbe::tinte : QColor(Qt::white));
    }
}

void Messlatte::zeichnen(QPainter &p) const
{
    const double schritt = teilung(pixelJeMeter);
    const QRectF latte(null.x() - lattenbreite / 2, y(oben), lattenbreite, null.y() - y(oben));
    p.setPen(QPen(umriss(farbe::holz), 1.4));
    p.setBrush(heller(farbe::holz, 0.75));
    p.drawRect(latte);
    const bool inMetern = oben > 1.0;
    for (int i = 0; i * schritt <= oben + 1e-9; ++i) {
        if (i % 2 == 0 && (i + 1) * schritt <= oben + 1e-9)
            p.fillRect(QRectF(latte.left(), y((i + 1) * schritt), lattenbreite, schritt * pixelJeMeter), durchsichtig(farbe::holz, 0.55));
        p.setPen(QPen(farbe::tinte, 1.2));
        p.drawLine(QPointF(latte.left() - 8, y(i * schritt)), QPointF(latte.right(), y(i * schritt)));
        const QString zahl = QLocale(QLocale::German).toString(i * schritt * (inMetern ? 1 : 100), 'g', 4);
        beschriften(p, {latte.left() - 14, y(i * schritt)}, zahl, 19, Qt::AlignRight, farbe::tinte);
    }
    beschriften(p, {null.x(), null.y() + 22}, inMetern ? QStringLiteral("m") : QStringLiteral("cm"), 19, Qt::AlignHCenter, farbe::tinte);
}

void Messlatte::spanne(QPainter &p, double von, double bis) const
{
    const double x = null.x() + lattenbreite / 2 + 16;
    const bool offen = bis > oben + 1e-9;
    const double yBis = offen ? y(oben) - 10 : y(bis);
    const QColor f(0x4C, 0x7A, 0x45);
    p.setPen(QPen(f, 3, Qt::SolidLine, Qt::FlatCap));
    p.drawLine(QPointF(x, y(von)), QPointF(x, yBis));
    p.drawLine(QPointF(x - 7, y(von)), QPointF(x + 7, y(von)));
    if (offen) {
        p.setBrush(f);
        p.setPen(Qt::NoPen);
        p.drawPolygon(QPolygonF({{x - 8, yBis}, {x + 8, yBis}, {x, yBis - 15}}));
    } else {
        p.drawLine(QPointF(x - 7, yBis), QPointF(x + 7, yBis));
    }
    const QString text = von < bis ? laengentext(von) + QStringLiteral(" bis ") + laengentext(bis) : laengentext(bis);
    p.save();
    p.translate(x + 20, (y(von) + yBis) / 2);
    p.rotate(-90);
    beschriften(p, {0, 0}, text, 20, Qt::AlignHCenter, f);
    p.restore();
}

QString zweiteZeile(const Datensatz &pflanze, const QString &familie)
{
    QStringList teile{pflanze.text(u"DTNAM"), familie};
    teile.removeAll(QString());
    teile.removeAll(pflanze.name());
    return teile.join(QStringLiteral("  ·  "));
}

QString laengentext(double meter)
{
    const QLocale deutsch(QLocale::German);
    return meter < 1 - 1e-9 ? deutsch.toString(meter * 100, 'g', 3) + QStringLiteral(" cm") : deutsch.toString(meter, 'g', 3) + QStringLiteral(" m");
}
