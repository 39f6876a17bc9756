#include "Tafel.h"

#include "Farben.h"
#include "Kurve.h"

#include <QFile>
#include <QLocale>

#include <cmath>
#include <cstdlib>
#include <memory>

#include <cstdio> // the next one needs it
#include <jpeglib.h>

namespace {

constexpr double lattenbreite = 20;

/// Smallest step of 1, 2, 5 times a power of ten that is at least `kleinste`.
double rund(double kleinste)
{
    double zehner = 1e-4;
    while (true) {
        for (const double faktor : {1.0, 2.0, 5.0})
            if (zehner * faktor >= kleinste)
                return zehner * faktor;
        zehner *= 10;
    }
}

} // namespace

bool kreuzt(const QLineF &a, const QLineF &b)
{
    return a.intersects(b, nullptr) == QLineF::BoundedIntersection;
}

bool Aufriss::stoert(const Feld &a, const Feld &b)
{
    if (a.art == Linie && b.art == Linie)
        return kreuzt(a.linie, b.linie);
    if (b.art == Linie)
        return stoert(b, a);
    if (b.art == Bild && a.art != Text && b.nummer == a.nummer)
        return false;
    // A line meets a box where it begins in it or cuts one of its diagonals.
    const QRectF k = b.kasten;
    return a.art != Linie ? a.kasten.intersects(k)
                          : k.contains(a.linie.p1()) || k.contains(a.linie.p2()) || kreuzt(a.linie, {k.topLeft(), k.bottomRight()})
                                || kreuzt(a.linie, {k.bottomLeft(), k.topRight()});
}

int Aufriss::fehler() const
{
    int anzahl = 0;
    for (size_t i = 0; i < felder_.size(); ++i) {
        anzahl += felder_[i].art != Linie && !blatt_.contains(felder_[i].kasten);
        for (size_t j = i + 1; j < felder_.size(); ++j)
            anzahl += stoert(felder_[i], felder_[j]);
    }
    return anzahl;
}

Tafel::Tafel(bool getoent) : bild_(int(breite * bildmass), int(hoehe * bildmass), QImage::Format_RGB32), maler_(&bild_)
{
    maler_.scale(bildmass, bildmass);
    maler_.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing | QPainter::SmoothPixmapTransform);
    // One even tone: a gradient would cost bytes and show as bands.
    bild_.fill(heller(getoent ? farbe::getoent : farbe::papier, 0.25));
    maler_.setPen(QPen(farbe::linie, 2));
    maler_.drawRect(QRectF(22, 22, breite - 44, hoehe - 44));
}

void Tafel::unterschrift(const QString &name, const QString &zweite, const QString &was)
{
    maler_.fillRect(QRectF(23, band, breite - 46, hoehe - 23 - band), durchsichtig(heller(farbe::papier, 0.5), 0.85));
    maler_.setPen(QPen(farbe::linie, 1.4));
    maler_.drawLine(QPointF(23, band), QPointF(breite - 23, band));
    double groesse = 36;
    while (groesse > 18 && QFontMetricsF(schrift(groesse, true)).horizontalAdvance(name) > breite - 160)
        groesse -= 2;
    maler_.setFont(schrift(groesse, true));
    maler_.setPen(farbe::tinte);
    maler_.drawText(QRectF(60, band + 6, breite - 120, 50), Qt::AlignCenter, name);
    const QString unten = zweite.isEmpty() ? was : zweite + QStringLiteral("  ·  ") + was;
    groesse = 21;
    while (groesse > 13 && QFontMetricsF(schrift(groesse)).horizontalAdvance(unten) > breite - 120)
        groesse -= 1;
    beschriften(maler_, {breite / 2.0, band + 78}, unten, groesse);
}

QRectF Tafel::text(QPointF ort, const QString &worte, double groesse, Qt::Alignment seite, const QColor &f)
{
    const QRectF kasten = beschriften(maler_, ort, worte, groesse, seite, f.isValid() ? f : farbe::tinte);
    aufriss.text(kasten);
    return kasten;
}

double Tafel::absatzhoehe(double b, const QString &worte, double groesse)
{
    return QFontMetricsF(schrift(groesse)).boundingRect(QRectF(0, 0, b, 2000), Qt::TextWordWrap, worte).height();
}

QRectF Tafel::absatz(const QRectF &platz, const QString &worte, double groesse, Qt::Alignment seite)
{
    const int wie = int(seite | Qt::AlignTop) | Qt::TextWordWrap;
    maler_.setFont(schrift(groesse));
    maler_.setPen(farbe::tinte);
    QRectF kasten;
    maler_.drawText(platz, wie, worte, &kasten);
    aufriss.text(kasten);
    return kasten;
}

void Tafel::zeiger(const QLineF &linie, int nummer)
{
    maler_.setPen(QPen(durchsichtig(Qt::white, 0.7), 3.2, Qt::SolidLine, Qt::RoundCap));
    maler_.drawLine(linie);
    maler_.setPen(QPen(farbe::tinte, 1.3));
    maler_.drawLine(linie);
    maler_.setBrush(farbe::tinte);
    maler_.drawEllipse(linie.p2(), 3.4, 3.4);
    aufriss.linie(linie, nummer);
}

void Tafel::massstab(QPointF ort, double pixelJeCm)
{
    const double cm = rund(34 / pixelJeCm);
    const double halb = cm * pixelJeCm / 2;
    maler_.setPen(QPen(farbe::tinte, 1.2));
    for (int i = 0; i < 2; ++i) {
        maler_.setBrush(i ? QBrush(Qt::white) : QBrush(farbe::holz));
        maler_.drawRect(QRectF(ort.x() + i * halb, ort.y() - 4, halb, 7));
    }
    aufriss.text(QRectF(ort.x(), ort.y() - 4, 2 * halb, 7));
    const QLocale deutsch(QLocale::German);
    const QString worte = cm < 1 ? deutsch.toString(cm * 10, 'g', 3) + QStringLiteral(" mm") : laengentext(cm / 100);
    text(ort + QPointF(2 * halb + 10, 0), worte, 17, Qt::AlignLeft);
}

bool Tafel::speichern(const QString &pfad)
{
    maler_.end();
    // Progressive, but in five scans: those that refine single bits take as long as all others and save nothing on flat tones.
    static constexpr jpeg_scan_info scans[] = {
        {3, {0, 1, 2}, 0, 0, 0, 0}, {1, {0}, 1, 8, 0, 0}, {1, {1}, 1, 63, 0, 0}, {1, {2}, 1, 63, 0, 0}, {1, {0}, 9, 63, 0, 0}};
    jpeg_error_mgr fehler;
    jpeg_compress_struct jpeg{};
    jpeg.err = jpeg_std_error(&fehler); // ends the program, with a word on what is wrong
    jpeg_create_compress(&jpeg);
    unsigned char *bytes = nullptr;
    unsigned long anzahl = 0;
    jpeg_mem_dest(&jpeg, &bytes, &anzahl);
    jpeg.image_width = JDIMENSION(bild_.width());
    jpeg.image_height = JDIMENSION(bild_.height());
    jpeg.input_components = 4;
    jpeg.in_color_space = QSysInfo::ByteOrder == QSysInfo::LittleEndian ? JCS_EXT_BGRX : JCS_EXT_XRGB;
    jpeg_set_defaults(&jpeg);
    jpeg_set_quality(&jpeg, 85, true);
    jpeg.scan_info = scans;
    jpeg.num_scans = int(std::size(scans));
    jpeg_start_compress(&jpeg, true);
    while (jpeg.next_scanline < jpeg.image_height) {
        JSAMPROW zeile = bild_.scanLine(int(jpeg.next_scanline));
        jpeg_write_scanlines(&jpeg, &zeile, 1);
    }
    jpeg_finish_compress(&jpeg);
    jpeg_destroy_compress(&jpeg);
    const std::unique_ptr<unsigned char, decltype(&std::free)> besitz(bytes, std::free);
    QFile datei(pfad);
    return datei.open(QIODevice::WriteOnly) && datei.write(reinterpret_cast<char *>(bytes), qint64(anzahl)) == qint64(anzahl) && datei.flush();
}

QFont schrift(double groesse, bool kursiv)
{
    QFont f(QStringLiteral("sans-serif"));
    f.setStyleHint(QFont::SansSerif);
    f.setPixelSize(int(groesse));
    f.setItalic(kursiv);
    return f;
}

QRectF beschriften(QPainter &p, QPointF ort, const QString &text, double groesse, Qt::Alignment seite, const QColor &f)
{
    constexpr double weite = 1500;
    const double x = seite & Qt::AlignLeft ? ort.x() : seite & Qt::AlignRight ? ort.x() - weite : ort.x() - weite / 2;
    p.setFont(schrift(groesse));
    p.setPen(f.isValid() ? f : farbe::blass);
    QRectF kasten;
    p.drawText(QRectF(x, ort.y() - groesse, weite, 2 * groesse), int(seite | Qt::AlignVCenter), text, &kasten);
    return kasten;
}

void schlagschatten(QPainter &p, QPointF mitte, double b, double h)
{
    p.save();
    p.translate(mitte);
    p.scale(b, h);
    const QBrush schatten =
        verlauf(QRadialGradient(0, 0, 1), {{0, QColor(70, 55, 35, 95)}, {0.6, QColor(70, 55, 35, 45)}, {1, QColor(70, 55, 35, 0)}});
    nurFlaeche(p, schatten);
    p.drawEllipse(QPointF(0, 0), 1, 1);
    p.restore();
}

void Messlatte::zeichnen(Tafel &t) const
{
    QPainter &p = t.maler();
    const double schritt = rund(46 / pixelJeMeter), bis = std::abs(laenge);
    const QRectF latte = QRectF(QPointF(null.x() - lattenbreite / 2, y(bis)), QPointF(null.x() + lattenbreite / 2, null.y())).normalized();
    p.setPen(QPen(umriss(farbe::holz), 1.4));
    p.setBrush(heller(farbe::holz, 0.75));
    p.drawRect(latte);
    t.aufriss.text(latte);
    const bool inMetern = bis > 1.0;
    for (int i = 0; i * schritt <= bis + 1e-9; ++i) {
        if (i % 2 == 0 && (i + 1) * schritt <= bis + 1e-9)
            p.fillRect(QRectF(QPointF(latte.left(), y((i + 1) * schritt)), QPointF(latte.right(), y(i * schritt))).normalized(),
                       durchsichtig(farbe::holz, 0.55));
        p.setPen(QPen(farbe::tinte, 1.2));
        p.drawLine(QPointF(latte.left() - 7, y(i * schritt)), QPointF(latte.right(), y(i * schritt)));
        const QString zahl = QLocale(QLocale::German).toString(i * schritt * (inMetern ? 1 : 100), 'g', 4);
        t.text({latte.left() - 12, y(i * schritt)}, zahl, 18, Qt::AlignRight);
    }
    t.text({null.x(), null.y() + (laenge < 0 ? -18 : 18)}, inMetern ? QStringLiteral("m") : QStringLiteral("cm"), 18);
}

void Messlatte::spanne(Tafel &t, double von, double bis) const
{
    QPainter &p = t.maler();
    const double x = null.x() + lattenbreite / 2 + 14;
    const QColor f(0x4C, 0x7A, 0x45);
    p.setPen(QPen(f, 3, Qt::SolidLine, Qt::FlatCap));
    p.drawLine(QPointF(x, y(von)), QPointF(x, y(bis)));
    for (const double m : {von, bis})
        p.drawLine(QPointF(x - 6, y(m)), QPointF(x + 6, y(m)));
    t.aufriss.text(QRectF(QPointF(x - 3, y(bis)), QPointF(x + 3, y(von))).normalized());
    const QString text = von > 0 && von < bis ? laengentext(von) + QStringLiteral(" bis ") + laengentext(bis) : laengentext(bis);
    const double lang = QFontMetricsF(schrift(18)).horizontalAdvance(text) / 2 + 4;
    const double mitte = std::clamp((y(von) + y(bis)) / 2, Tafel::rand + lang, Tafel::band - lang - 6);
    p.save();
    p.translate(x + 20, mitte);
    p.rotate(-90);
    beschriften(p, {0, 0}, text, 18, Qt::AlignHCenter, f);
    p.restore();
    t.aufriss.text(QRectF(x + 9, mitte - lang, 22, 2 * lang));
}

QString laengentext(double meter)
{
    const QLocale deutsch(QLocale::German);
    return meter < 1 - 1e-9 ? deutsch.toString(meter * 100, 'g', 3) + QStringLiteral(" cm") : deutsch.toString(meter, 'g', 3) + QStringLiteral(" m");
}
