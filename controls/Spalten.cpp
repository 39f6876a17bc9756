#include "Spalten.h"

#include "Textkasten.h"

#include <QGridLayout>
#include <QScrollArea>

#include <algorithm>
#include <limits>
#include <numeric>

namespace {

constexpr int hoechstensSpalten = 3;

} // namespace

void durchscheinen(QScrollArea &rolle)
{
    rolle.viewport()->setAutoFillBackground(false);
    rolle.widget()->setAutoFillBackground(false);
}

Karte::Karte(QWidget *eltern) : QFrame(eltern)
{
    setProperty("karte", true);
    setMouseTracking(true);
}

void Karte::setZeilenabstand(int abstand)
{
    if (raster_)
        raster_->setVerticalSpacing(abstand);
}

int Karte::mindesthoehe(int breite) const
{
    if (!layout())
        return 0;
    return layout()->hasHeightForWidth() ? layout()->totalHeightForWidth(breite) : layout()->totalMinimumSize().height();
}

int Karte::wunschhoehe(int breite) const
{
    const int mindest = mindesthoehe(breite);
    if (!kasten_ || kasten_->isHidden())
        return mindest;
    const QMargins rand = layout()->contentsMargins();
    return mindest + std::max(0, kasten_->texthoehe(breite - rand.left() - rand.right()) - kasten_->minimumSizeHint().height());
}

std::vector<int> ausgewogen(const std::vector<int> &hoehen, int abstand, int spalten)
{
    const int anzahl = int(hoehen.size());
    spalten = std::clamp(spalten, 1, std::max(1, anzahl));
    const auto laenge = [&](int von, int bis) {
        return std::accumulate(hoehen.begin() + von, hoehen.begin() + bis, 0) + abstand * std::max(0, bis - von - 1);
    };
    // beste[k][n]: longest column when the first n cards stand in k columns, none of them empty.
    constexpr int nie = std::numeric_limits<int>::max();
    std::vector beste(size_t(spalten) + 1, std::vector<int>(size_t(anzahl) + 1, nie));
    std::vector schnitt(size_t(spalten) + 1, std::vector<int>(size_t(anzahl) + 1, 0));
    beste[0][0] = 0;
    for (int k = 1; k <= spalten; ++k)
        for (int n = k; n <= anzahl; ++n)
            for (int vorher = n - 1; vorher >= k - 1; --vorher) {
                if (beste[size_t(k - 1)][size_t(vorher)] == nie)
                    continue;
                const int laengste = std::max(beste[size_t(k - 1)][size_t(vorher)], laenge(vorher, n));
                // Where two ways are as good, the columns at the front take more.
                if (laengste <= beste[size_t(k)][size_t(n)] && (laengste < beste[size_t(k)][size_t(n)] || vorher > schnitt[size_t(k)][size_t(n)])) {
                    beste[size_t(k)][size_t(n)] = laengste;
                    schnitt[size_t(k)][size_t(n)] = vorher;
                }
            }
    std::vector<int> zahlen(size_t(spalten), 0);
    for (int k = spalten, n = anzahl; k >= 1 && anzahl > 0; --k) {
        zahlen[size_t(k - 1)] = n - schnitt[size_t(k)][size_t(n)];
        n = schnitt[size_t(k)][size_t(n)];
    }
    return zahlen;
}

Spaltenlayout::Spaltenlayout(QWidget *eltern) : QLayout(eltern) {}

Spaltenlayout::~Spaltenlayout()
{
    for (QLayoutItem *item : items_)
        delete item;
}

void Spaltenlayout::setSpaltenbreite(int breite)
{
    if (breite == spaltenbreite_)
        return;
    spaltenbreite_ = breite;
    invalidate();
}

QLayoutItem *Spaltenlayout::takeAt(int i)
{
    QLayoutItem *item = itemAt(i);
    if (item)
        items_.erase(items_.begin() + i);
    return item;
}

std::vector<Karte *> Spaltenlayout::sichtbare() const
{
    std::vector<Karte *> karten;
    for (QLayoutItem *item : items_)
        if (!item->isEmpty())
            if (auto *karte = qobject_cast<Karte *>(item->widget()))
                karten.push_back(karte);
    return karten;
}

Spaltenlayout::Aufteilung Spaltenlayout::aufteilen(int breite) const
{
    const std::vector<Karte *> karten = sichtbare();
    const QMargins rand = contentsMargins();
    const int innen = breite - rand.left() - rand.right(), abstand = std::max(0, spacing());
    int spaltenbreite = spaltenbreite_;
    for (Karte *karte : karten)
        spaltenbreite = std::max(spaltenbreite, karte->minimumSizeHint().width());
    const int anzahl = std::clamp((innen + abstand) / (spaltenbreite + abstand), 1, std::clamp(int(karten.size()), 1, hoechstensSpalten));
    Aufteilung teile;
    teile.breite = (innen - (anzahl - 1) * abstand) / anzahl;
    std::vector<int> hoehen;
    for (Karte *karte : karten)
        hoehen.push_back(karte->wunschhoehe(teile.breite));
    size_t naechste = 0;
    for (const int zahl : ausgewogen(hoehen, abstand, anzahl)) {
        Spalte spalte;
        for (int i = 0; i < zahl; ++i, ++naechste) {
            spalte.wunsch += hoehen[naechste] + (i ? abstand : 0);
            spalte.mindest += karten[naechste]->mindesthoehe(teile.breite) + (i ? abstand : 0);
            spalte.karten.push_back(karten[naechste]);
        }
        teile.spalten.push_back(std::move(spalte));
    }
    return teile;
}

int Spaltenlayout::heightForWidth(int breite) const
{
    int hoehe = 0;
    for (const Spalte &spalte : aufteilen(breite).spalten)
        hoehe = std::max(hoehe, spalte.mindest);
    const QMargins rand = contentsMargins();
    return hoehe + rand.top() + rand.bottom();
}

QSize Spaltenlayout::minimumSize() const
{
    int breite = 0;
    for (Karte *karte : sichtbare())
        breite = std::max(breite, karte->minimumSizeHint().width());
    const QMargins rand = contentsMargins();
    return {breite + rand.left() + rand.right(), rand.top() + rand.bottom()};
}

void Spaltenlayout::setGeometry(const QRect &flaeche)
{
    QLayout::setGeometry(flaeche);
    const Aufteilung teile = aufteilen(flaeche.width());
    const QRect innen = flaeche.marginsRemoved(contentsMargins());
    const int abstand = std::max(0, spacing());
    int fuss = 0; // where the columns end: at one line, unless the page is lower
    for (const Spalte &spalte : teile.spalten)
        fuss = std::max(fuss, spalte.wunsch);
    fuss = std::min(fuss, innen.height());
    int links = innen.left();
    for (const Spalte &spalte : teile.spalten) {
        // What lacks is taken from the boxes, as far as each of them can give; what is left goes to the card that fills.
        int fehlt = std::max(0, spalte.wunsch - innen.height());
        int gebbar = std::max(0, spalte.wunsch - spalte.mindest);
        int oben = innen.top();
        for (size_t i = 0; i < spalte.karten.size(); ++i) {
            Karte *karte = spalte.karten[i];
            int hoehe = karte->wunschhoehe(teile.breite);
            if (const int kann = hoehe - karte->mindesthoehe(teile.breite); kann > 0 && gebbar > 0) {
                const int gibt = std::min(kann, int(qint64(fehlt) * kann / gebbar));
                fehlt -= gibt;
                gebbar -= kann;
                hoehe -= gibt;
            }
            if (karte->fuellend())
                hoehe += std::max(0, innen.height() - spalte.wunsch);
            else if (i + 1 == spalte.karten.size())
                hoehe = std::max(hoehe, innen.top() + fuss - oben);
            karte->setGeometry(links, oben, teile.breite, hoehe);
            oben += hoehe + abstand;
        }
        links += teile.breite + abstand;
    }
}
