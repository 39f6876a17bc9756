#include "Topfpflanzentafel.h"

#include "Buehne.h"
#include "Tafel.h"
#include "Tafelinhalt.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace {

/// A part of the plate that is drawn by the structures of the whole plant, in a box of its own.
struct Ausschnitt
{
    Aufbau aufbau;
    double hoehe, ueberGrund, topf, blattlaenge;
};
constexpr Ausschnitt ausschnitte[] = {
    {Aufbau::Kugelkaktus, 460, 120, 124, 3}, {Aufbau::Gliederkaktus, 190, 330, 100, 58}, {Aufbau::Kannen, 620, 20, 150, 30}, {Aufbau::Fallen, 460, 200, 205, 6},
    {Aufbau::Tentakel, 440, 200, 220, 8},    {Aufbau::Geweih, 330, 350, 110, 45},        {Aufbau::Schirm, 690, 0, 130, 150}, {Aufbau::Etagen, 700, 0, 120, 10},
};

void ausschnittZeichnen(QPainter &p, const Datensatz &pflanze, Gestalt g, QRectF feld, const Ausschnitt &a)
{
    g.blattlaenge = a.blattlaenge;
    g.stand = Stand::Keiner;
    Buehne b(pflanze, g, {feld.center().x(), feld.bottom() - a.ueberGrund}, a.hoehe, feld.width(), a.topf, 1);
    wachsen(b);
    b.malen(p);
}

bool hatBandblatt(Aufbau a)
{
    return a == Aufbau::Baender || a == Aufbau::Schwerter || a == Aufbau::Trichter || a == Aufbau::Schopf;
}

bool hatWedel(Aufbau a)
{
    return a == Aufbau::Farn || a == Aufbau::Palme || a == Aufbau::Palmfarn;
}

/// Frond as large as the box, and one pinna.
void wedelDetail(QPainter &p, const Datensatz &pflanze, const Gestalt &g, QRectF feld)
{
    Buehne b(pflanze, g, {feld.left() + 40, feld.bottom()}, feld.height(), feld.width(), 1, 1);
    const Stempel fieder = blattstempel(g.blatt, b.laub, b.laub.muster, Zufall(pflanze.name(), 4), true);
    Wedel form = wedelart(g);
    form.kahl = std::max(form.kahl, 0.12);
    const double oben = feld.top() + (form.fiederlaenge > 0.25 ? 190 : 90); // long pinnae need room above
    const Kurve k{{feld.left() + 60, feld.bottom()}, {feld.left() + 120, feld.center().y() + 40}, {feld.center().x() - 30, oben + 30}, {feld.right() - 170, oben}};
    wedel(p, k, form, fieder, g.name == u"Adiantum" || g.name == u"Pellaea" ? QColor(0x45, 0x30, 0x28) : farbe::stiel, 0);
    fieder.zeichnen(p, {feld.right() - 330, feld.bottom() - 60}, -14, g.blatt.form == Blattform::Nadel ? 300 : 240, 1.15);
    beschriften(p, {feld.right() - 190, feld.bottom() + 4}, QStringLiteral("Fieder"), 20);
}

void bandDetail(QPainter &p, const Datensatz &pflanze, const Gestalt &g, QRectF feld)
{
    Buehne b(pflanze, g, feld.center(), 100, 100, 1, 1);
    const bool stachlig = g.name == u"Aloe" || g.name == u"Aechmea" || g.name == u"Ananas";
    const double verhaeltnis = std::clamp(g.name == u"Cordyline" || g.aufbau == Aufbau::Trichter ? 0.2 : g.name == u"Aloe" ? 0.2 : g.name == u"Paphiopedilum" ? 0.19 : g.name == u"Beaucarnea" || g.name == u"Tillandsia" ? 0.06 : 0.11, 0.05, 0.25);
    const Bandmuster zweites = b.laub.anderes == Muster::Rand ? Bandmuster::Rand : b.bandmuster() == Bandmuster::Keins ? Bandmuster::Keins : b.bandmuster();
    for (int i = 0; i < 2; ++i) {
        const double x = feld.left() + 120 + i * 260.0;
        const Kurve k = {{x, feld.bottom()}, {x - 10, feld.bottom() - feld.height() * 0.4}, {x + 60, feld.top() + 120}, {x + 190 + 30 * i, feld.top() + 10 + 50 * i}};
        const double spitz = g.name == u"Aloe" ? 0.02 : g.aufbau == Aufbau::Trichter ? 0.75 : 0.4;
        bandblatt(p, k, {k.laenge() * verhaeltnis, spitz, g.name == u"Cordyline" ? 0.35 : 0.85, stachlig, g.name == u"Asplenium", i == 0 ? b.bandmuster() : zweites}, b.laub.grund, b.laub.zweite, i == 0 ? 0 : -0.05);
    }
}

void stempelDetail(QPainter &p, const Datensatz &pflanze, const Gestalt &g, QRectF feld)
{
    const Laub l = laub(pflanze);
    Zufall z(pflanze.name(), 9);
    const Stempel erstes = blattstempel(g.blatt, l, l.muster, Zufall(pflanze.name(), 2), true);
    const bool gefiedert = g.blatt.form == Blattform::Gefiedert || g.blatt.form == Blattform::Doppelfieder;
    const bool gelappt = (g.blatt.form >= Blattform::AnzahlEinfache && !gefiedert) || g.blatt.form == Blattform::Niere || g.blatt.form == Blattform::Rund || g.blatt.form == Blattform::Schild;
    const bool hinten = g.blatt.form == Blattform::Pfeil || g.blatt.form == Blattform::Niere || g.blatt.form == Blattform::Schild || gelappt;
    const double l1 = (gelappt ? 380 : g.blatt.form == Blattform::Pfeil ? 430 : 540) * feld.width() / 660;
    const QPointF a(feld.left() + (hinten ? 210 : 60), feld.bottom() - (gelappt ? 260 : 170));
    const QColor stielfarbe = l.roteUnterseite ? gemischt(farbe::stiel, QColor(0x96, 0x48, 0x50), 0.5) : farbe::stiel;
    stiel(p, {a + QPointF(-50, 150), a + QPointF(-50, 90), a + polar(206, 40), a}, 10, 7, stielfarbe);
    erstes.zeichnen(p, a, -32, l1);
    if (g.blatt.form == Blattform::Nadel)
        return;
    // The second leaf shows the record's other pattern, or the underside.
    const bool anders = l.anderes != Muster::Keins && l.anderes != l.muster;
    Laub unten = l;
    if (!anders)
        unten.grund = l.roteUnterseite ? gemischt(QColor(0x93, 0x4A, 0x5A), l.grund, 0.25) : heller(l.grund, 0.3);
    else if (l.zweite == l.grund || l.anderes == Muster::Rand)
        unten.zweite = gemischt(l.zweite, QColor(0xF2, 0xF0, 0xD2), 0.6);
    const Stempel zweites = blattstempel(g.blatt, unten, anders ? l.anderes : Muster::Keins, Zufall(pflanze.name(), 3), true);
    const double l2 = l1 * (gelappt ? 0.5 : 0.55);
    const QPointF b(feld.right() - (gelappt ? 200 : 290), feld.bottom() - (gelappt ? 50 : 10));
    stiel(p, {b + QPointF(-60, 34), b + QPointF(-40, 20), b + polar(192, 20), b}, 7, 5, stielfarbe);
    zweites.zeichnen(p, b, gelappt ? -8 : -4, l2);
    beschriften(p, {b.x() + l2 * 0.45, b.y() + 26 + l2 * (gelappt ? 0.5 : g.blatt.form == Blattform::Herz ? 0.42 : 0.32) * g.blatt.breite}, anders ? QStringLiteral("buntlaubig") : QStringLiteral("Unterseite"), 19);
}

void blattDetail(QPainter &p, const Datensatz &pflanze, const Gestalt &g, QRectF feld)
{
    const auto *teil = std::ranges::find(ausschnitte, g.aufbau, &Ausschnitt::aufbau);
    if (teil != std::end(ausschnitte))
        ausschnittZeichnen(p, pflanze, g, feld, *teil);
    else if (hatWedel(g.aufbau))
        wedelDetail(p, pflanze, g, feld);
    else if (hatBandblatt(g.aufbau))
        bandDetail(p, pflanze, g, feld);
    else
        stempelDetail(p, pflanze, g, feld);
}

/// One inflorescence whose parts are too small or too many for a single flower: spikes, tails, rosette middles.
bool alsBluetenstand(const Gestalt &g)
{
    return g.bluete == Bluete::Keine && g.stand != Stand::Keiner;
}

void bluetenstandDetail(QPainter &p, const Datensatz &pflanze, Gestalt g, QRectF feld)
{
    const bool aehre = g.name == u"Vriesea" || g.name == u"Tillandsia";
    g.bluetenbreite = g.stand == Stand::Mitte ? 250 : g.stand == Stand::Kaetzchen ? 560 : 330;
    Buehne b(pflanze, g, {feld.center().x(), feld.bottom() + (aehre ? 360 : g.stand == Stand::Mitte ? 40 : -40)}, aehre ? 920 : g.stand == Stand::Mitte ? 640 : g.stand == Stand::Kaetzchen ? 1250 : 560, feld.width(), 120, 1);
    if (g.stand != Stand::Mitte) {
        const bool haengt = g.stand == Stand::Kaetzchen;
        const QPointF ort = haengt ? QPointF(feld.center().x(), feld.top() + 90) : QPointF(feld.center().x(), feld.center().y() + 100);
        b.trieb({{ort.x() - 10, haengt ? feld.top() - 10 : feld.bottom()}, ort, ort, ort}, 9, 6, farbe::stiel, 0);
        for (const double grad : haengt ? std::vector<double>{20, 160} : std::vector<double>{-8, 188, 12, 168})
            b.blatt(ort + QPointF(0, haengt ? -20 : 20), grad, 190, -0.2 + std::cos(grad) * 0.1, 0.9);
        b.spitzen.push_back({ort, 90, 0, 1});
        b.achseln = haengt ? std::vector<Spross>{{ort, 20, 0, 1}, {ort + QPointF(-30, -30), 160, 0, 1}} : std::vector<Spross>{};
    }
    bluehen(b);
    b.malen(p);
}

void bluetenDetail(QPainter &p, const Datensatz &pflanze, const Gestalt &g, QRectF feld)
{
    if (alsBluetenstand(g))
        return bluetenstandDetail(p, pflanze, g, feld);
    const Bluetenmass mass = bluetenmass(g.bluete);
    const double r = std::min({feld.height() / (mass.oben + mass.unten + (mass.oben < 1 ? 0.6 : 0.1)), feld.width() / (2 * mass.seite + 0.1), mass.unten < 1 ? 205.0 : 235.0});
    const QPointF ort(feld.center().x(), feld.center().y() - (mass.unten < 1 ? 40 : 0) + r * (mass.oben - mass.unten + (mass.oben < 1 ? 0.5 : 0)) / 2);
    if (mass.unten < 1) // the stalk that carries a standing flower
        stiel(p, {{ort.x() + 10, ort.y() + r * 0.8}, {ort.x() + 4, ort.y() + r * 0.5}, {ort.x(), ort.y() + r * 0.2}, ort}, 13, 10, farbe::stiel);
    if (mass.oben < 1)
        stiel(p, {{ort.x() + r * 0.35, ort.y() - r * 0.42}, {ort.x() + r * 0.1, ort.y() - r * 0.5}, {ort.x(), ort.y() - r * 0.3}, ort}, 8, 7, farbe::stiel);
    bluetenstempel(g.bluete, gewaehlteFarben(pflanze, g), true).zeichnen(p, ort, 0, r);
}

/// Flowers in all colours of the record, with their words; of two-coloured flowers the colours alone.
void farbreihe(QPainter &p, const Datensatz &pflanze, const Gestalt &g, QPointF mitte, double breite)
{
    const QStringList worte = pflanze.worte(u"FARBEN");
    if (worte.isEmpty())
        return;
    const double abstand = std::min(92.0, breite / double(worte.size())), r = std::min(33.0, abstand * 0.42);
    double x = mitte.x() - abstand * double(worte.size() - 1) / 2;
    const bool einzeln = g.zweitfarbe.isEmpty() && g.bluete != Bluete::Keine && g.bluete != Bluete::Paradiesvogel && g.bluete != Bluete::Flammenlilie && g.bluete != Bluete::Passionsblume;
    const Bluetenmass mass = bluetenmass(g.bluete);
    int i = 0;
    for (const QString &wort : worte) {
        const bool bunt = wort == u"bunt";
        const Bluetenfarben farben{bunt ? bluetenfarbe(u"rot") : bluetenfarbe(wort), {}, bunt};
        if (einzeln) {
            const double f = r * 2 / std::max(2.0, mass.oben + mass.unten);
            bluetenstempel(g.bluete, farben).zeichnen(p, {x, mitte.y() + f * (mass.oben - mass.unten) / 2}, 0, f);
        } else {
            p.setPen(QPen(umriss(farben.haupt), 1.4));
            p.setBrush(farben.haupt);
            p.drawEllipse(QPointF(x, mitte.y()), r * 0.7, r * 0.7);
        }
        const bool tiefer = abstand < 80 && i++ % 2;
        beschriften(p, {x, mitte.y() + r + (tiefer ? 37.0 : 17.0)}, wort, 17, Qt::AlignHCenter, farbe::tinte);
        x += abstand;
    }
}

void fruchtDetail(QPainter &p, const Datensatz &pflanze, const Gestalt &g, QPointF mitte, double r)
{
    const std::vector<QColor> farben = fruchtfarben(pflanze);
    if (g.frucht == Frucht::Keine || farben.empty())
        return;
    const int n = std::min(4, int(farben.size()));
    for (int i = 0; i < n; ++i)
        fruchtstempel(g.frucht, farben[size_t(i)]).zeichnen(p, mitte + QPointF((i - (n - 1) / 2.0) * r * 2.3, g.frucht == Frucht::Schote || g.frucht == Frucht::Ananas ? r * 0.8 : g.frucht == Frucht::Ei ? -r * 0.8 : 0), 0, g.frucht == Frucht::Ananas ? r * 0.8 : r);
    beschriften(p, mitte + QPointF(0, r + 34), n > 1 ? QStringLiteral("Früchte") : QStringLiteral("Frucht"), 20, Qt::AlignHCenter, farbe::tinte);
}

std::array<bool, 12> monate(const Datensatz &pflanze, QStringView spalte)
{
    std::array<bool, 12> gesetzt{};
    for (int m = 1; m <= 12; ++m)
        gesetzt[size_t(m - 1)] = pflanze.monat(spalte, m);
    return gesetzt;
}

bool einer(const std::array<bool, 12> &monate)
{
    return std::ranges::find(monate, true) != monate.end();
}

void zeiten(QPainter &p, const Datensatz &pflanze, const Gestalt &g)
{
    const auto bluete = monate(pflanze, u"BLUEHZEIT"), frucht = monate(pflanze, u"FRUCHTZEIT");
    const bool beide = einer(bluete) && einer(frucht);
    double y = beide ? 976 : 1004;
    if (einer(bluete)) {
        const QColor f = gewaehlteFarben(pflanze, g).haupt;
        monatsleiste(p, {560, y, 620, 32}, QStringLiteral("Blütezeit"), bluete, f.lightness() > 225 ? QColor(0xF0, 0xDF, 0xB0) : heller(f, 0.15));
        y += 44;
    }
    if (einer(frucht))
        monatsleiste(p, {560, y, 620, 32}, QStringLiteral("Fruchtzeit"), frucht, fruchtfarben(pflanze).empty() ? QColor(0xD2, 0x84, 0x4A) : heller(fruchtfarben(pflanze).front(), 0.15));
}

} // namespace

bool topfpflanzeDetail(const Datensatz &pflanze, const QString &pfad)
{
    const Gestalt g = gestalt(pflanze);
    Tafel tafel;
    QPainter &p = tafel.maler();
    const Detailinhalt inhalt = detailinhalt(pflanze, g);
    const bool gross = inhalt.bluete;
    const QRectF blattfeld(gross ? 850 : 430, 130, gross ? 660 : 820, 720), bluetenfeld(130, 150, 620, gross ? 560 : 200);
    beschriften(p, {blattfeld.center().x(), 92}, inhalt.blatt.toString(), 26, Qt::AlignHCenter, farbe::tinte);
    blattDetail(p, pflanze, g, blattfeld);
    if (gross) {
        beschriften(p, {bluetenfeld.center().x(), 92}, pflanze.ja(u"UNSCHEINBA") ? QStringLiteral("Blüte (unscheinbar)") : QStringLiteral("Blüte"), 26, Qt::AlignHCenter, farbe::tinte);
        bluetenDetail(p, pflanze, g, bluetenfeld);
        farbreihe(p, pflanze, g, {bluetenfeld.center().x(), inhalt.frucht ? 742.0 : 800.0}, 700);
        fruchtDetail(p, pflanze, g, {bluetenfeld.center().x(), 866}, 40);
    } else {
        fruchtDetail(p, pflanze, g, {250, 480}, 70);
        if (inhalt.bluetenfarben) {
            farbreihe(p, pflanze, g, {260, 700}, 320);
            beschriften(p, {260, 650}, QStringLiteral("Blüte unscheinbar"), 20, Qt::AlignHCenter, farbe::tinte);
        }
    }
    zeiten(p, pflanze, g);
    tafel.unterschrift(pflanze.name(), zweiteZeile(pflanze, pflanze.familie()), topfpflanzeDetailtitel(pflanze));
    return tafel.speichern(pfad);
}
