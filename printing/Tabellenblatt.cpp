#include "Tabellenblatt.h"

#include "Printer.h"

#include <algorithm>

namespace {

constexpr double oben = 15, fuss = 14; // millimetres
constexpr double spaltenluft = 2.5, zeilenluft = 0.8;
constexpr double titelgroesse = 15, kopfgroesse = 12, textgroesse = 9;

/// Words in lines of this width; a word that is wider is broken.
QStringList umbrechen(const QString &text, const Schriftmass &mass, double breite)
{
    QStringList zeilen{QString()};
    for (QString wort : text.split(u' ', Qt::SkipEmptyParts)) {
        const QString versuch = zeilen.back().isEmpty() ? wort : zeilen.back() + u' ' + wort;
        if (mass.breite(versuch) <= breite) {
            zeilen.back() = versuch;
            continue;
        }
        if (!zeilen.back().isEmpty())
            zeilen += QString();
        while (mass.breite(wort) > breite && wort.size() > 1) {
            qsizetype n = wort.size() - 1;
            while (n > 1 && mass.breite(wort.first(n)) > breite)
                --n;
            zeilen.back() = wort.first(n);
            zeilen += QString();
            wort.remove(0, n);
        }
        zeilen.back() = wort;
    }
    return zeilen;
}

class Tabellendruck
{
public:
    Tabellendruck(const Tabellenblatt &blatt, Printer &drucker) : blatt_(blatt), drucker_(drucker)
    {
        drucker_.ScaleLeft = -seitenrand;
        drucker_.ScaleTop = -oben;
        drucker_.DrawWidth = 2;
        breite_ = drucker_.ScaleWidth() - 2 * seitenrand;
        ende_ = drucker_.ScaleHeight() - oben - fuss;
        // The columns share the paper as their widths say.
        double gewuenscht = 0;
        for (const Tabellenblatt::Spalte &spalte : blatt_.spalten)
            gewuenscht += spalte.breite;
        anteil_ = gewuenscht > 0 ? breite_ / gewuenscht : 1;
    }

    void drucken()
    {
        schrift(titelgroesse, true);
        zeile(0, blatt_.titel);
        y_ += 2;
        for (qsizetype i = 0; i < blatt_.kopf.size(); ++i) {
            schrift(i == 0 ? kopfgroesse : textgroesse, i == 0);
            for (const QString &teil : umbrechen(blatt_.kopf[i], schriftmass(drucker_.Font), breite_))
                zeile(0, teil);
            y_ += 1;
        }
        y_ += 3;
        spaltenkopf();
        QString gruppe;
        for (const Tabellenblatt::Zeile &eintrag : blatt_.zeilen) {
            const bool neue = !eintrag.gruppe.isEmpty() && eintrag.gruppe != std::exchange(gruppe, eintrag.gruppe);
            zellen(eintrag, neue);
        }
        seitenfuss();
    }

private:
    void schrift(double groesse, bool fett = false, bool kursiv = false) { drucker_.Font = {QStringLiteral("Arial"), groesse, fett, kursiv}; }

    void zeile(double x, const QString &text)
    {
        drucker_.CurrentX = x;
        drucker_.CurrentY = y_;
        drucker_.Print(text);
        y_ = drucker_.CurrentY;
    }

    void strich(double y) { drucker_.line(0, y, breite_, y); }

    void spaltenkopf()
    {
        schrift(textgroesse, true);
        double x = 0;
        for (const Tabellenblatt::Spalte &spalte : blatt_.spalten) {
            drucker_.CurrentX = x;
            drucker_.CurrentY = y_;
            drucker_.PrintAnfang(spalte.titel);
            x += spalte.breite * anteil_;
        }
        y_ += drucker_.TextHeight() + 1;
        strich(y_);
        y_ += 1;
    }

    void seitenfuss()
    {
        schrift(8);
        strich(ende_ + 3);
        drucker_.CurrentX = 0;
        drucker_.CurrentY = ende_ + 4;
        drucker_.PrintSeitenzahl(breite_, blatt_.titel);
    }

    void zellen(const Tabellenblatt::Zeile &eintrag, bool mitGruppe)
    {
        schrift(textgroesse);
        const Schriftmass &mass = schriftmass(drucker_.Font);
        std::vector<QStringList> umbrochen;
        qsizetype zeilen = 1;
        for (size_t i = 0; i < blatt_.spalten.size(); ++i) {
            umbrochen.push_back(umbrechen(eintrag.zellen.value(qsizetype(i)), mass, blatt_.spalten[i].breite * anteil_ - spaltenluft));
            zeilen = std::max(zeilen, umbrochen.back().size());
        }
        const double hoehe = double(zeilen) * mass.zeilenhoehe() + zeilenluft, gruppenhoehe = mitGruppe ? mass.zeilenhoehe() + 2.5 : 0;
        if (y_ + gruppenhoehe + hoehe > ende_) {
            seitenfuss();
            drucker_.NewPage();
            y_ = 0;
            spaltenkopf();
        }
        if (mitGruppe) {
            y_ += 2;
            schrift(textgroesse, true, true);
            zeile(0, eintrag.gruppe);
            y_ += 0.5;
        }
        schrift(textgroesse);
        double x = 0;
        for (size_t i = 0; i < umbrochen.size(); ++i) {
            for (qsizetype j = 0; j < umbrochen[i].size(); ++j) {
                drucker_.CurrentX = x;
                drucker_.CurrentY = y_ + double(j) * mass.zeilenhoehe();
                drucker_.PrintAnfang(umbrochen[i][j]);
            }
            x += blatt_.spalten[i].breite * anteil_;
        }
        y_ += hoehe;
    }

    const Tabellenblatt &blatt_;
    Printer &drucker_;
    double breite_ = 0, ende_ = 0, anteil_ = 1, y_ = 0;
};

} // namespace

void tabelleDrucken(const Tabellenblatt &blatt, Printer &drucker)
{
    Tabellendruck(blatt, drucker).drucken();
}
