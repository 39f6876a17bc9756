#pragma once

#include "store/Medium.h"
#include "store/Programm.h"

#include <QDialog>

class QLabel;
class QPushButton;
class QStackedWidget;

/* Which pictures the program works with: three ways of working, and a second page for one step of them alone. */
class frmBilderAssistent : public QDialog
{
    Q_OBJECT

public:
    enum class Weg {
        Keiner,
        VorschauLokal, ///< pictures from the CD, previews from the disk
        AllesVonCd,
        AllesLokal,
    };

    frmBilderAssistent(Programm &programm, Laufwerksliste laufwerke, QWidget *eltern);

    /// What was chosen; its steps are still to be taken. The CD is found then: BilderPfad is its folder.
    Weg weg() const { return weg_; }
    /// Whether the second page has changed something that windows show.
    bool geaendert() const { return geaendert_; }
    void done(int ergebnis) override;

private:
    QWidget *standardseite();
    QWidget *erweiterteSeite();
    void cmdVorschlag_Click(Weg weg);
    bool CDSuchen();
    void cmdErweitert_Click();
    void cmdBilderPfadAendern_Click();
    void cmdVorschauBilderErstellen_Click();
    void beschriften();

    Programm &programm_;
    Laufwerksliste laufwerke_;
    const bool vorherAufCd_;
    Weg weg_ = Weg::Keiner;
    bool geaendert_ = false;
    QStackedWidget *seiten_ = nullptr;
    QPushButton *cmdErweitert_, *cmdVorschauBilderErstellen_ = nullptr;
    QLabel *lblBilderPfad_ = nullptr, *lblVorschaubilderPfad_ = nullptr, *lblErklaerung_ = nullptr;
    QLabel *lblBilderFehlen_ = nullptr, *lblVorschauFehlt_ = nullptr;
};

/// Shows the assistant and goes the way that was chosen. `FormenAktualisieren` lets the open windows show the new state. The name of the
/// operating system is a property of the form, "Betriebssystem", by which its appearance can be told apart.
void bilderAssistent(Programm &programm, const Laufwerksliste &laufwerke, const QString &betriebssystem,
                     const std::function<void()> &FormenAktualisieren, QWidget *eltern);
