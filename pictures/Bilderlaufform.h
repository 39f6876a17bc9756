#pragma once

#include "Bilderlauf.h"
#include "store/Programm.h"

#include <QDialog>

#include <optional>

class QLabel;
class QProgressBar;
class QPushButton;

/// What a form of a walk through the pictures is.
struct Laufbeschreibung
{
    const char *form; ///< class name
    QStringView titel;
    QStringView erklaerung;  ///< above the bars
    QStringView zustand;     ///< in the status bar, until the time left is known
    QStringView quellordner; ///< below the picture folder; empty: it itself
    QStringView unterordner; ///< made in the program's folder; empty: it itself
    std::array<size_t, anzahlBilderordner> folge;
    Bildhandlung (*handlung)();
    bool fragtNachVorhandenen; ///< whether to go on into folders that exist is the user's choice
    QStringView misserfolg;    ///< when the folders cannot be made
    QStringView misserfolgTitel;
    QStringView dateifehler;            ///< of a file, with %1 for the word of its folder; empty: the failure's own text
    QStringView einzahl, mehrzahl;      ///< of what was left out
    void (*fertig)(Programm &programm); ///< what the program knows after a whole walk
};

extern const Laufbeschreibung frmVorschauBilder, frmBilderKopieren, frmVorschauBilderKopieren;

/* Makes or copies pictures while it is shown, with a bar for each folder, and goes by itself; accepted when the walk came to its end. */
class Bilderlaufform : public QDialog
{
    Q_OBJECT

public:
    /// `bilderPfad` is the folder of the pictures that are read.
    Bilderlaufform(const Laufbeschreibung &beschreibung, Programm &programm, const QString &bilderPfad, QWidget *eltern);

    /// Stops the walk at the next picture; the form goes when it has stopped.
    void reject() override;

protected:
    void showEvent(QShowEvent *ereignis) override;

private:
    void aufbauen();
    void Timer1_Timer();
    Bilderauftrag auftrag(const QString &bilderPfad) const;
    bool fehlschlagMelden(const Bilderlauf::Fehlschlag &fehlschlag);
    void beendet(Bilderlauf::Ende ende, const QString &grund);
    void misserfolgMelden(const QString &grund);

    const Laufbeschreibung &beschreibung_;
    Programm &programm_;
    Bilderauftrag auftrag_;
    std::unique_ptr<Bilderlauf> lauf_;
    std::array<QProgressBar *, anzahlBilderordner> ProgBar_{};
    QLabel *status_ = nullptr;
    QPushButton *cmdAbbrechen_ = nullptr;
    bool abgebrochen_ = false, zuEnde_ = false;
};
