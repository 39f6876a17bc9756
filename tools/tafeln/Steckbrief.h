#pragma once

#include "Datensatz.h"
#include "Motiv.h"

#include <span>

/// What the plates have to know of a collection.
struct Sammlung
{
    QStringView tabelle, ordner;
    QStringView art; ///< column with the kind of plant, or the kind itself
    QStringView bluetenfarbe, laubfarbe, fruchtfarbe;
    QStringView groesse; ///< column whose words tell the height in metres
    bool imTopf;
    std::span<const std::pair<QStringView, QStringView>> kennzeichen; ///< columns whose words tell plants apart, with their titles
    bool alsKoerper = false;                                          ///< the record describes the fruit as a body
    QStringView grundfarbe = {}, deckfarbe = {}, schale = {}, fruchtfleisch = {}, fruchtform = {}, kraft = {},
                fruchtstand = {}; ///< of varieties of fruit
};
std::span<const Sammlung> sammlungen();

/// How a plant looks: its record and the rows of the forms brought together.
struct Steckbrief
{
    Steckbrief(const Datensatz &pflanze, const Sammlung &sammlung, const Formen &formen, const QStringList &merkmale = {});

    bool ist(QStringView wort) const { return wuchs == wort; }
    bool verholzt() const { return eines(u"strauch zwergstrauch baum kletternd nadelbaum nadelstrauch obstbaum beerenstrauch rebe ruten", wuchs); }
    /// Whether it has shoots with leaves on them, not all from the ground.
    bool hatTriebe() const { return verholzt() || eines(u"aufrecht eintriebig buschig halbstrauch polster teppich haengend", wuchs); }
    /// What the whole plant shows of them: varieties of fruit their fruits, other plants their flowers.
    bool zeigtBlueten() const { return blueht && (schau == u"beides" || schau == u"bluete" || !fruchtet); }
    bool zeigtFruechte() const { return fruchtet && (schau == u"beides" || schau == u"frucht" || !blueht); }
    bool haengt() const { return wuchs == u"haengend"; }
    /// The outline of a fruit, or of fruits as they hang together, as the record's words bend it.
    Motiv geformt(const Motiv &frucht, bool einzeln) const;
    /// Whether a word of the skin or of its cover colour contains this one.
    bool hautwort(QStringView wort) const;
    /// All that can be seen of it, as text: equal texts are equal drawings.
    QByteArray aussehen() const;

    const Datensatz &pflanze;
    const Sammlung &sammlung;
    QStringList merkmale; ///< identifying marks; in the record's own words for plants whose source tells none
    QString wuchs, krone, stellung, sitz, rinde, knospe, dornen, schau, haftorgan;
    bool winterkahl = false, blueht = false, fruchtet = false;
    bool vorLaub = false;                               ///< flowers stand on bare twigs
    double hoehe, bluetenhoehe, kleinste;               ///< metres; flowers stand at or above the foliage
    double breite;                                      ///< part of the height
    double blattlaenge, blattstiel;                     ///< cm, part of the blade
    double blattlaenge2;                                ///< cm, 0: not known
    double bluetengroesse, standgroesse, fruchtgroesse; ///< cm
    int bluetenzahl;                                    ///< 0: as it comes
    const Form *blatt = nullptr, *blatt2 = nullptr, *bluete = nullptr, *stand = nullptr;
    const Form *frucht = nullptr, *fruchtschnitt = nullptr, *fruchtstand = nullptr;
    const Form *haftform = nullptr; ///< what it climbs with; of what only leans on others none is drawn
    Anstrich anstrich;
    QColor unterseite, deckfarbe, rindenfarbe; ///< invalid: no reason to show it
    std::vector<QColor> weitereFarben;         ///< of flowers

private:
    QStringList kennzeichen() const;
    void formenWaehlen(const Formen &formen);
    void masseLesen();
    void laubfarben();
    void bluetenfarben();
    void fruchtfarben();
    QString feld(const char *name, const char *sonst = "") const { return felder_.value(QLatin1String(name), QLatin1String(sonst)); }
    double zahl(const char *name, double sonst) const { return zahlLesen(feld(name)).value_or(sonst); }
    QColor farbe(const char *name, const QColor &sonst = {}) const;
    std::vector<QColor> wortfarben(QStringView spalte) const; ///< that are known

    QHash<QString, QString> felder_;
    QStringList zeichnungen_;
};
