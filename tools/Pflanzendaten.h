#pragma once

#include "Quellregeln.h"
#include "store/Datenbank.h"
#include "store/Schema.h"

#include <QHash>
#include <QSet>

/* From plant sources to the working database. Whatever the sources get wrong is a Quellfehler with file and line: an unknown
   field, word, family or form, a doubled number or picture name, a minimum above its maximum, and what Quellregeln says. */
class Pflanzendaten
{
public:
    /// Creates the empty database with its five rows of property names. `formen` is the folder that says how plants look.
    explicit Pflanzendaten(const QString &ziel, const QString &formen = QStringLiteral(FLOX_FORMEN));

    /// Families, which may tell their genera, must come before the plants that name them; `satz` is one record of any known type.
    void aufnehmen(const RecSatz &satz);
    /// Writes the picture rows in the order of the plants and ends the one transaction. Without it nothing stays.
    void abschliessen();
    int anzahl(QStringView tabelle) const { return anzahl_.value(tabelle.toString()); }

    /// Flag string for words of a list separated by commas; a word may itself hold commas. Throws the unknown word.
    static QString flagsAus(const QString &worte, const Werteliste &liste);
    /// Number of the one word that a text names. Throws an unknown word and a second one.
    static QString nummerAus(const QString &wort, const Werteliste &liste);
    /// Flag string for "3-5", "Mai-Juli", "11-2, 6". Throws what is no month.
    static QString monateAus(const QString &text);

private:
    void familie(const RecSatz &satz);
    void pflanze(const RecSatz &satz, const Tabelle &tabelle);
    void bildnamePruefen(const RecSatz &satz, const QString &name);
    void bilderEintragen();
    void bilderDerHerkunft();
    QVariant wert(const RecSatz &satz, const RecFeld &feld, const Spalte &spalte);

    QString formenordner_;
    std::shared_ptr<Datenbank> db_;
    Transaktion transaktion_;
    QHash<QString, int> familien_;
    QHash<QString, int> anzahl_;
    QHash<QString, QStringList> merkmale_; ///< by table and number
    Quellregeln regeln_;
    QSet<QString> nummern_, namen_, bildnamen_;
};
