#pragma once

#include "store/Faltung.h"
#include "store/Sparten.h"

#include <QFrame>
#include <QTimer>

#include <memory>
#include <vector>

class Datenbank;
class QLabel;
class QLineEdit;
class QListView;
class Suchbestand;
class Suchmodell;
struct Suchnamen;
struct Suchzeile;
struct Trefferliste;

/// What the search needs of its window.
class Suchziel
{
public:
    virtual ~Suchziel() = default;

    /// Why a plant is not in the present set; empty where it is. A rating of 0: it has none.
    virtual QString grundDesFehlens(qint64 artnr, int bewertung) = 0;
    /// What the user can do to have it in the set.
    virtual QString ratZumFehlen(qint64 artnr, int bewertung) = 0;
    /// The search is over: the window shows this plant of its set.
    virtual void gefunden(qint64 artnr) = 0;
    /// A plant was chosen that is not in the set.
    virtual void nichtErreichbar(const QString &rat) = 0;
    virtual Datenbank &arbeitsdatenbank() = 0;
};

/* The search: a box for what is typed and below it the plants that have it, in their names or in their texts. A popup: it takes the
   keyboard while it is open and gives it back to whoever had it. */
class frmSuche : public QFrame
{
    Q_OBJECT

public:
    frmSuche(Suchziel &ziel, Sparte sparte, std::shared_ptr<Suchbestand> bestand, QWidget *eltern);
    ~frmSuche() override;

    /// Opens below `anker`, of the screen, with `anfang` typed; `zuletzt` are the plants that an empty line lists.
    void oeffnen(const QRect &anker, const QString &anfang, std::vector<qint64> zuletzt);

protected:
    bool eventFilter(QObject *quelle, QEvent *ereignis) override;

    static constexpr int ansagepause = 600; ///< milliseconds without a change before hits are said

private:
    void suchen();
    /// The last plants; the first line to go to is the one before the present.
    std::vector<Suchzeile> letzteZeilen();
    std::vector<Suchzeile> trefferZeilen(const Suchfrage &frage);
    Suchzeile namenszeile(const Suchnamen &namen, const Suchfrage &frage, Guete bis);
    void zeilenZeigen(std::vector<Suchzeile> zeilen, int gewaehlt);
    void platzNehmen();
    bool taste(class QKeyEvent &ereignis);
    void waehlen(int zeile);
    void annehmen(int zeile);
    /// "3 von 12": which of the plants below each other a line is; empty where there is one.
    QString stelle(int zeile) const;
    /// The count, or what can be done for a plant outside the set.
    void fusszeile();

    Suchziel &ziel_;
    const Sparte sparte_;
    const std::shared_ptr<Suchbestand> bestand_;
    std::vector<qint64> zuletzt_;
    QRect anker_;
    QPoint maus_;    ///< where it was when the lines came
    QString anzahl_; ///< of the plants found, as a sentence
    QTimer ansage_;  ///< runs while letters follow each other
    QLineEdit *txtSuche_ = nullptr;
    QListView *lstSuche_ = nullptr;
    QLabel *lblSuche_ = nullptr;
    Suchmodell *modell_ = nullptr;
};
