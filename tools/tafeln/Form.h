#pragma once

#include "tools/RecLeser.h"

#include <QHash>
#include <QPainterPath>
#include <QTransform>

#include <map>

/* Forms: outlines of leaves, flowers and fruits as the data tell them, and the rows that say which plant has which. Nothing here knows a plant. */

// clang-format off
enum class Rolle {
    Blatt, Blatt2, Stiel, Rippe, Ader, Rand, Faden, Bluete, Bluete2, Bluete3, Mitte, Staub, Narbe,
    Kelch, Hochblatt, Bluetenader, Schatten, Licht, Haut, Haut2, Fleisch, Kern, Stein, Samen, Huelle, Haar, Anzahl
};
// clang-format on
enum class Formgruppe { Blatt, Bluete, Frucht, Ding };

/// Whether a word is one of these, which spaces part.
inline bool eines(QStringView worte, QStringView wort)
{
    return worte.split(u' ').contains(wort);
}

struct Formteil
{
    enum Art { Flaeche, Linie, Form } art = Flaeche;
    Rolle rolle = Rolle::Blatt;
    double breite = 0; ///< of a line
    QPainterPath pfad;
    QString form; ///< name of another form, "*" for the plant's flower
    QTransform lage;
    /// What of a blade lies right of its midrib.
    const QPainterPath &haelfte() const;

private:
    mutable QPainterPath haelfte_; ///< worked out when it is first asked for
};

struct Form
{
    QString name, titel;
    Formgruppe gruppe = Formgruppe::Blatt;
    std::vector<Formteil> teile;
    QByteArray text; ///< all that the source says of it
    QString datei;
    int zeile = 0;
};

/// A row that says how plants look: whom it holds for and its fields.
struct Formzeile
{
    QStringList pflanzen, familien;                 ///< names without the sign of a hybrid
    std::vector<std::pair<QString, QString>> worte; ///< column and text
    std::multimap<QString, QString> felder;
};

class Formen
{
public:
    /// Reads every .rec file of the folder; throws Quellfehler with file and line for what is not understood.
    static Formen laden(const QString &ordner) { return lesen(recTexte(ordner)); }
    /// The same from texts, by file name.
    static Formen lesen(const std::map<QString, QByteArray> &texte);

    /// Null where there is none; a name is looked for in the group first and then in the others.
    const Form *form(Formgruppe gruppe, const QString &name) const;
    const std::vector<Formzeile> &zeilen() const { return zeilen_; }
    const std::map<std::pair<Formgruppe, QString>, Form> &alle() const { return formen_; }

private:
    void form(const RecSatz &satz, Formgruppe gruppe);
    void zeile(const RecSatz &satz);
    void pruefen() const;

    std::map<std::pair<Formgruppe, QString>, Form> formen_;
    std::vector<Formzeile> zeilen_;
    std::vector<RecSatz> zeilenquellen_;
};
