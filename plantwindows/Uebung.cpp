#include "Uebung.h"

#include <QLocale>
#include <QRandomGenerator>

#include <algorithm>
#include <numeric>

Uebung::Uebung(const std::vector<qint64> &folge)
{
    blaetter_.reserve(folge.size());
    for (const qint64 artnr : folge)
        blaetter_.push_back({.artnr = artnr});
}

bool Uebung::gehen(int richtung)
{
    if (!kannGehen(richtung))
        return false;
    stelle_ += size_t(richtung);
    return true;
}

void Uebung::nochmal()
{
    const qint64 artnr = jetzt().artnr;
    const auto danach = blaetter_.begin() + qsizetype(stelle_) + 1;
    if (std::any_of(danach, blaetter_.end(), [artnr](const Uebungsblatt &blatt) { return blatt.artnr == artnr; }))
        return;
    blaetter_.insert(danach + qsizetype(std::min(wiederNach, size_t(blaetter_.end() - danach))), {.artnr = artnr, .wieder = true});
}

std::vector<qint64> uebungsfolge(std::vector<qint64> pflanzen, const std::function<Dringlichkeit(qint64)> &dringlichkeit, QRandomGenerator &zufall)
{
    std::ranges::shuffle(pflanzen, zufall);
    std::ranges::stable_sort(pflanzen, {}, dringlichkeit);
    return pflanzen;
}

std::vector<qint64> pruefungsfolge(std::vector<qint64> pflanzen, QRandomGenerator &zufall)
{
    std::ranges::shuffle(pflanzen, zufall);
    pflanzen.resize(std::min(pflanzen.size(), pruefungspflanzen));
    return pflanzen;
}

QString uhrtext(qint64 millisekunden)
{
    const qint64 sekunden = (millisekunden + 999) / 1000;
    return QStringLiteral("%1:%2").arg(sekunden / 60).arg(sekunden % 60, 2, 10, QChar(u'0'));
}

int Pruefungsergebnis::halbePunkteGesamt() const
{
    return std::accumulate(zeilen.begin(), zeilen.end(), 0,
                           [](int summe, const Ergebniszeile &zeile) { return summe + halbePunkte(zeile.befund.urteil); });
}

QString Pruefungsergebnis::punktesatz() const
{
    const int moeglich = halbePunkteMoeglich();
    return QStringLiteral("%1 von %2 Punkten (%3 %)")
        .arg(punktetext(halbePunkteGesamt()), punktetext(moeglich))
        .arg(moeglich ? halbePunkteGesamt() * 100 / moeglich : 0);
}

QString Pruefungsergebnis::umstaende() const
{
    return QStringLiteral("%1, %2, %3, %4 Minuten")
        .arg(sparte, pflanzen == 1 ? QStringLiteral("1 Pflanze") : QStringLiteral("%1 Pflanzen").arg(pflanzen),
             QLocale(QLocale::German, QLocale::Germany).toString(tag, QStringLiteral("dd.MM.yyyy")), uhrtext(dauer));
}
