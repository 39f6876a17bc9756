#pragma once

#include "Beschreibung.h"

#include <QWidget>

#include <memory>
#include <vector>

class Anzeigeelement;
class Karte;
class Pflanzensatz;
struct Programm;
class QGridLayout;
class QLabel;
class QTabWidget;
class Spaltenlayout;

/// Pixels between the parts of a plant window, and beside them.
inline constexpr int teilabstand = 10;

/* The view of a record: head, marks and tabs of a description, with the captions, groups and headings that follow what is shown. It
   knows records, not windows. */
class Pflanzenansicht : public QWidget
{
    Q_OBJECT

public:
    /// `maus` filters the events of the panels; one whose property `leertHinweis` is true ends a hint when the mouse is over it.
    Pflanzenansicht(Programm &programm, const Fensterbeschreibung &beschreibung, QObject *maus);
    ~Pflanzenansicht() override;

    /// Shows the current record but for the user's fields.
    void zeigen(Pflanzensatz &satz);
    /// Shows the user's fields; `behalten`: what he has changed himself stays.
    void benutzerfelderZeigen(Pflanzensatz &satz, bool behalten);
    /// The user's fields as they stand count as shown.
    void uebernehmen();
    bool hatNotiz() const { return bemerkung_; }
    QString bemerkung() const;
    /// Characters of the user's properties, "1" or blank.
    QString eigen() const;
    /// Nothing more can be typed into the note.
    void notizVerlassen();

    /// What stands there now, one value for each element of the description, in its order; empty where the element's group is not shown.
    QStringList werte() const;
    /// Elements whose values are others than these stand out; without any, none does.
    void hervorheben(const QStringList &andere);
    int reiter() const;
    void setReiter(int reiter);

    /// Text of an element of the head, counted from 0; empty where there are fewer.
    QString kopftext(size_t i) const;
    /// Hides the names of the head and, in running text and in the user's note, these words; or shows all again.
    void verdecken(bool verdeckt, const QStringList &worte);
    void nummerSichtbar(bool sichtbar);
    /// The number stands out: pictures are nowhere to be had.
    void nummerHervorheben(bool hervor);
    void monateBeschriften();
    void eigenschaftenBenennen();
    /// A large window sets the record larger.
    void groesseAnpassen(QSize fenster);

signals:
    void hinweis(const QString &text);
    /// A mouse press in the user's fields, or its equal by keyboard.
    void geaendert();
    void namenGewuenscht();
    void reiterGewechselt(int reiter);

private:
    struct Titelzeile
    {
        Anzeigeelement *element;
        int zeile; ///< of the grid
    };
    struct Titel
    {
        QLabel *schild;
        QGridLayout *raster;
        std::vector<Titelzeile> zeilen; ///< rows may share a caption: it stands beside the first of them that shows something
        int zeile;                      ///< where it stands
    };
    struct Rahmen
    {
        const Gruppe *gruppe;
        Karte *rahmen;
        QLabel *titel; ///< null: has none
        std::vector<Anzeigeelement *> elemente;
    };
    /// A card that holds the groups of a heading.
    struct Sammelrahmen
    {
        Karte *rahmen;
        QLabel *ueberschrift;
        std::vector<Karte *> gruppen;
    };
    struct Seite
    {
        Spaltenlayout *spalten;
        std::vector<Karte *> gruppen;
        Karte *leer; ///< says that there is nothing to say
    };
    struct GanzerText
    {
        Anzeigeelement *element;
        QGridLayout *raster;
        int zeile; ///< row of the grid for the box
    };

    QWidget *kopfBauen();
    QWidget *tafelBauen(QWidget *kopf);
    QWidget *reiterBauen(const Reiter &reiter);
    Karte *sammelrahmenBauen(const Ueberschrift &ueberschrift, QWidget *eltern);
    Karte *gruppeBauen(const Gruppe &gruppe, QWidget *eltern);
    Anzeigeelement *elementBauen(const Element &element, QWidget *eltern, const QString &gruppe = {});
    void elementSetzen(const Element &element, QGridLayout &raster, QWidget *eltern, const QString &gruppe = {});
    void panel(QWidget *flaeche);
    void titelPruefen();
    void gruppenPruefen(Pflanzensatz &satz);
    bool nachRegel(const Rahmen &rahmen, Pflanzensatz &satz) const;
    Anzeigeelement *elementNamens(QStringView control) const;
    static Qt::Alignment titellage(const Anzeigeelement &element);

    Programm &programm_;
    const Fensterbeschreibung &beschreibung_;
    QObject *maus_ = nullptr;
    std::deque<Gruppenelemente> gruppenelemente_;
    std::vector<std::unique_ptr<Anzeigeelement>> elemente_;
    Anzeigeelement *bemerkung_ = nullptr, *eigen_ = nullptr; ///< the user's fields among them
    std::vector<Titel> titel_;
    std::vector<Rahmen> rahmen_;
    std::vector<Sammelrahmen> sammelrahmen_;
    std::vector<Seite> seiten_;
    std::vector<GanzerText> ganzeTexte_;
    QLabel *lblArtNr_ = nullptr;
    QTabWidget *tabStauden_ = nullptr;
    QWidget *fraKopf_ = nullptr, *tafel_ = nullptr, *namen_ = nullptr;
    QLabel *lblNamenDecke_ = nullptr; ///< stands in the names' place while they are covered
    int kopfMindesthoehe_ = 0;
    double schriftstufe_ = 0;
};
