#pragma once

#include "Antwortpruefung.h"

#include <QWidget>

#include <array>
#include <vector>

class QFrame;
class QGridLayout;
class QLabel;
class QPushButton;
class QScrollArea;
class Antwortfeld;

/* The panel of practice at the foot of a plant window: a line for every name that is asked for, the marks below them, and the buttons. It
   knows questions and answers, no plants. */
class frmUeben : public QWidget
{
    Q_OBJECT

public:
    explicit frmUeben(QWidget *eltern);

    static constexpr size_t meisteFragen = 5;
    struct Frage
    {
        QString titel, antwort;
    };
    /// A covered plant; `stelle` tells which of how many. The first line without an answer gets the focus.
    void fragen(const std::vector<Frage> &fragen, const QString &stelle);
    struct Ergebnis
    {
        Befund befund;
        QString richtig;
    };
    /// The marks of the answers, one for each question; `selbst`: nothing was answered, the user says himself whether he knew it.
    void aufdecken(const std::vector<Ergebnis> &ergebnisse, bool selbst);
    /// As they stand in the lines.
    QStringList antworten() const;
    /// Whether no line holds an answer.
    bool unbeantwortet() const;
    bool aufgedeckt() const { return aufgedeckt_; }
    /// A sentence beside the buttons of the own judgement; empty: none.
    void setHinweis(const QString &satz);
    /// An examination: nothing can be uncovered, and a clock runs.
    void setPruefung(bool pruefung);
    void setUhr(const QString &text, bool knapp);
    void setGehen(bool zurueck, bool vor);
    /// Takes as much of a window of this height as it needs, but leaves the record the larger part.
    void hoeheAnpassen(int fensterhoehe);
    /// The line that answers begin in.
    void fokussieren();

signals:
    void aufdeckenGewuenscht();
    void gehenGewuenscht(int richtung);
    /// Begins an examination, or hands it in.
    void pruefungGewuenscht();
    void beendenGewuenscht();
    /// Whether the plant was known.
    void selbstBeurteilt(bool gewusst);

protected:
    void resizeEvent(QResizeEvent *ereignis) override;

private:
    struct Feld
    {
        QWidget *platz;
        QLabel *titel;
        Antwortfeld *antwort;
        QLabel *urteil;
    };

    QPushButton *taste(const char *name, const QString &text, const QString &hinweis);
    void felderSetzen();
    void bestaetigt(size_t i);
    void tastenBeschriften();
    void tastenErklaeren();

    QFrame *karte_ = nullptr;
    QScrollArea *rolle_ = nullptr;
    QWidget *inhalt_ = nullptr;
    QGridLayout *raster_, *kopf_;
    std::array<Feld, meisteFragen> felder_{};
    size_t gefragt_ = 0;
    QWidget *tasten_, *selbst_;
    QLabel *lblUebung_, *lblUebungStelle_, *lblUhr_, *lblUebungHinweis_;
    QPushButton *cmdUebZurueck_, *cmdAufdecken_, *cmdUebWeiter_, *cmdPruefung_, *cmdUebEnde_;
    bool aufgedeckt_ = false, pruefung_ = false;
    int fensterhoehe_ = 0;
};
