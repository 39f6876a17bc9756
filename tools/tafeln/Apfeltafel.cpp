#include "Apfeltafel.h"

#include "Apfelkoerper.h"
#include "Apfelschnitt.h"
#include "Blatt.h"
#include "Tafel.h"
#include "Tafelinhalt.h"

#include <cmath>

namespace {

constexpr double pixelJeCm = 73, standlinie = 985;
const QString familie = QStringLiteral("Rosaceae"); // the table of apples has no column for it

void angaben(QPainter &p, const Datensatz &s, QPointF ort)
{
    constexpr std::pair<QStringView, QStringView> zeilen[] = {{u"Fruchtgröße", u"fruchtgr"}, {u"Form", u"form_l"}, {u"Grundfarbe", u"grundfarbe"},
                                                              {u"Deckfarbe", u"deckfarbe"},  {u"Zeichnung", u"df_art"}, {u"Berostung", u"rost"}};
    for (const auto &[titel, spalte] : zeilen) {
        const QString worte = s.worte(spalte).join(QStringLiteral(", "));
        if (worte.isEmpty())
            continue;
        beschriften(p, ort, titel.toString(), 19, Qt::AlignLeft);
        p.setFont(schrift(22));
        p.setPen(farbe::tinte);
        QRectF platz;
        p.drawText(QRectF(ort.x(), ort.y() + 12, 275, 140), Qt::AlignLeft | Qt::AlignTop | Qt::TextWordWrap, worte, &platz);
        ort.ry() += 12 + platz.height() + 32;
    }
}

void apfelblatt(QPainter &p, QPointF ansatz, const Datensatz &s)
{
    Zufall zufall(s.name(), 3);
    const Laub laub{QColor(0x5F, 0x90, 0x4C), QColor(0x9D, 0xBE, 0x7A)};
    // The higher the stalk ends, the flatter the leaf: it stays on the sheet.
    const double grad = ansatz.y() < 330 ? zufall.zwischen(-28, -12) : zufall.zwischen(6, 28);
    const QPointF fuss = ansatz + polar(grad + 12, 62);
    stiel(p, {ansatz, ansatz + polar(grad + 40, 22), fuss - polar(grad, 22), fuss}, 7, 4, farbe::stiel);
    Stempel blatt = blattstempel({Blattform::Elliptisch, Rand::Gesaegt, Adern::Fieder, zufall.zwischen(0.95, 1.25)}, laub, Muster::Keins, zufall, true);
    blatt.verbiegen([](QPointF q) { return QPointF(q.x(), q.y() + 0.16 * q.x() * q.x() - 0.04 * q.x()); });
    blatt.zeichnen(p, fuss, -grad, 4.6 * pixelJeCm);
}

/// Five sepals about the calyx, as seen from below.
void kelchblaetter(QPainter &p, QPointF mitte, double radius, const Datensatz &s)
{
    const double laenge = radius * mittel(s, u"k_groesse", {{u"klein", 0.12}, {u"mittel", 0.17}, {u"groß", 0.23}}, 0.17) * (s.hat(u"k_blaetter", u"lang") ? 1.2 : 1);
    const double offen = mittel(s, u"k_oeffnung", {{u"geschlossen", 0}, {u"halboffen", 0.35}, {u"offen", 0.7}}, 0.3);
    const QColor f = s.hat(u"k_blaetter", u"bräunlich") ? QColor(0x86, 0x6C, 0x45) : QColor(0x7B, 0x86, 0x50);
    p.setPen(Qt::NoPen);
    p.setBrush(QColor(0x4B, 0x3D, 0x27));
    p.drawEllipse(mitte, laenge * (0.2 + 0.4 * offen), laenge * (0.14 + 0.3 * offen));
    const double halb = s.hat(u"k_blaetter", u"breit") ? 0.3 : 0.2;
    Stempel blatt;
    QPainterPath form(QPointF(0.1 + 0.25 * offen, 0));
    form.cubicTo({0.3, -halb}, {0.6, -halb}, {1, 0});
    form.cubicTo({0.6, halb}, {0.3, halb}, {0.1 + 0.25 * offen, 0});
    blatt.verlauf(form, dunkler(f, 0.3), heller(f, 0.3), {0, 0}, {1, 0}, 1.4);
    for (int i = 0; i < 5; ++i) {
        const double grad = 90 + 72 * i + 11;
        blatt.zeichnen(p, mitte, grad, laenge * (0.75 + 0.25 * std::abs(std::cos(grad * 3.14159 / 180))));
    }
}

/// A bar of some centimetres.
void massstab(QPainter &p, QPointF ort, double pixel, int zentimeter)
{
    p.setPen(QPen(farbe::tinte, 1.5));
    for (int i = 0; i < zentimeter; ++i) {
        p.setBrush(i % 2 ? QBrush(Qt::white) : QBrush(farbe::holz));
        p.drawRect(QRectF(ort.x() + i * pixel, ort.y(), pixel, 8));
    }
    beschriften(p, ort + QPointF(zentimeter * pixel / 2, 28), QStringLiteral("%1 cm").arg(zentimeter), 19);
}

} // namespace

bool apfelGesamt(const Datensatz &sorte, const QString &pfad)
{
    const Apfelform form(sorte);
    const Apfelhaut haut(sorte);
    const double radius = form.durchmesser / 2 * pixelJeCm;
    constexpr double neigung = 24;
    const Apfelkoerper koerper(form, haut, neigung, radius);
    Tafel tafel;
    QPainter &p = tafel.maler();
    const QPointF mitte(730, standlinie - koerper.umriss().boundingRect().bottom());
    Messlatte{{210, standlinie}, pixelJeCm * 100, 0.11}.zeichnen(p);
    schlagschatten(p, {mitte.x() + 18, standlinie - 8}, radius * 0.95, 34);
    koerper.zeichnen(p, mitte);
    const Apfelstiel stiel(sorte);
    const QPointF fuss = mitte + koerper.achse(form.stielboden());
    apfelblatt(p, stiel.spitze(fuss, pixelJeCm, neigung), sorte);
    stiel.zeichnen(p, fuss, pixelJeCm, neigung);
    koerper.vordererRand(p, mitte);
    angaben(p, sorte, {1270, 400});
    tafel.unterschrift(sorte.name(), zweiteZeile(sorte, familie), gesamttitel.toString());
    return tafel.speichern(pfad);
}

bool apfelDetail(const Datensatz &sorte, const QString &pfad)
{
    const Apfelform form(sorte);
    const Apfelhaut haut(sorte);
    const Apfelschnitt schnitt(sorte, form, haut);
    Tafel tafel;
    QPainter &p = tafel.maler();
    constexpr double radius = 300, klein = 168;
    const QPointF laengs(600, 560), quer(1320, 330), unten(1320, 790);
    schnitt.laengs(p, laengs, radius);
    schnitt.benennen(p, laengs, radius);
    massstab(p, {laengs.x() - 2 * radius / (form.durchmesser / 2), 986}, radius / (form.durchmesser / 2), 4);
    schnitt.quer(p, quer, klein);
    beschriften(p, {quer.x(), quer.y() + klein + 48}, QStringLiteral("Querschnitt: ") + sorte.worte(u"form_q").join(QStringLiteral(", ")), 19);
    const Apfelkoerper koerper(form, haut, -52, klein);
    schlagschatten(p, unten + QPointF(8, koerper.umriss().boundingRect().bottom() - 4), klein * 0.85, 16);
    koerper.zeichnen(p, unten);
    kelchblaetter(p, unten + koerper.achse(form.kelchboden()), klein, sorte);
    beschriften(p, {unten.x(), unten.y() + klein + 48}, QStringLiteral("Frucht von der Kelchseite"), 19);
    tafel.unterschrift(sorte.name(), zweiteZeile(sorte, familie), apfelDetailtitel(sorte));
    return tafel.speichern(pfad);
}
