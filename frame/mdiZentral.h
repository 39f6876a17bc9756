#pragma once

#include "Befehle.h"
#include "Fenstertabelle.h"
#include "plantwindows/Zentrale.h"
#include "store/Medium.h"
#include "store/Programm.h"

#include <QDialog>
#include <QMainWindow>
#include <QPixmap>
#include <QTimer>

#include <array>

class Flaeche;
class QLabel;
class frmBilder;
class frmDrucken;
struct Druckauftrag;

/* The main window: hosts the plant windows and owns their tables. */
class mdiZentral : public QMainWindow, public Zentrale, public Befehlsumgebung
{
    Q_OBJECT

public:
    explicit mdiZentral(Programm &programm);
    ~mdiZentral() override;

    void FensterOeffnen(Sparte sparte) override;
    void FensterSperren(Sparte sparte) override { fensterBedienbar(sparte, false); }
    void FensterFreigeben(Sparte sparte) override { fensterBedienbar(sparte, !dialogOffen(sparte)); }
    void notizGespeichert(Sparte sparte, int nummer, const Notiz &notiz) override;
    void FormenAktualisieren() override;
    [[nodiscard]] bool NotizenSichern() override;
    void bilderSchliessen() override;
    void AlleFensterSchliessen() override;
    /// Stores notes, names and settings and shows nothing: the program may be at its end at any moment. Windows stay as they are.
    void sichern();
    Fenstertabelle &tabelle(Sparte sparte) override { return tabellen_[size_t(sparte)]; }
    Pflanzenfenster *fenster(Sparte sparte, int nummer);
    Pflanzenfenster *aktivesFenster() override;
    void erlauben(const char *eintrag, bool erlaubt) override;
    void zeigen(const char *eintrag, bool sichtbar) override;
    void statussatz(const QString &satz) override;
    void melden(const QString &satz) override;
    void aktualisierenErlauben(bool erlaubt) override { AktualisierenErlaubt = erlaubt; }
    QWidget *hauptfenster() override { return this; }
    void formZeigen(QDialog &form) override { form.exec(); }
    std::vector<Laufwerk> laufwerke() override { return laufwerke_(); }
    /// Another list than that of this machine.
    void setLaufwerke(Laufwerksliste laufwerke) { laufwerke_ = std::move(laufwerke); }
    void anordnen(Anordnung anordnung) override;
    void bilderAssistent() override;
    void beenden() override { close(); }
    /// Whether nothing is under way here that a file from outside would disturb: no exchange of databases, no filter being set, no
    /// examination.
    [[nodiscard]] bool bereit();
    /// A file that the program was called with. Throws where it is none that can be opened.
    void dateiOeffnen(const QString &pfad) { befehle_.dateiOeffnen(pfad); }

    void mulkoSpeichernErlauben(bool erlaubt) override;
    void fensterGeschlossen(Sparte sparte, int nummer) override;
    void namenAendern(QWidget *fenster) override;
    void bildZeigen() override;
    void drucken() override;
    void ergebnisDrucken(const Pruefungsergebnis &ergebnis, QWidget *eltern) override;
    void kopieren() override;
    Pflanzenfenster *danebenOeffnen(Sparte sparte, int nummer) override;
    Pflanzenfenster *anderesFenster(Sparte sparte, int nummer) override;
    void pflanzeGewechselt(Sparte sparte, int nummer) override;
    QString filtersatz(Sparte sparte, const Filterzustand &zustand) override;
    void hilfeZeigen(const QString &thema) override { emit hilfeGewuenscht(thema); }

    bool AktualisierenErlaubt = true; ///< false while another database comes in the place of the old one

signals:
    /// A page of the manual; empty: the first one.
    void hilfeGewuenscht(const QString &thema);
    /// A right click asks for the chooser.
    void wahlGewuenscht();

protected:
    void closeEvent(QCloseEvent *ereignis) override;
    void resizeEvent(QResizeEvent *ereignis) override;
    void moveEvent(QMoveEvent *ereignis) override;
    void changeEvent(QEvent *ereignis) override;
    bool eventFilter(QObject *quelle, QEvent *ereignis) override;

private:
    void gespeichertMelden(const frmDrucken &form);
    /// The names of the user's properties into the working database, where that has a place for them.
    void namenSchreiben();
    void fensterBedienbar(Sparte sparte, bool bedienbar);
    bool dialogOffen(Sparte sparte);
    /// What printouts read of the active window; nothing: none is.
    std::optional<Druckauftrag> druckauftrag();
    Pflanzenfenster *fensterAnlegen(Sparte sparte, int nummer);
    void statusleisteBauen();
    void geometrieAnwenden();
    void rahmenMerken();
    void geometrieMerken();
    void hintergrundWaehlen();
    void hintergrundVerarbeiten();

    Programm &programm_;
    Laufwerksliste laufwerke_ = medium::laufwerke;
    Befehle befehle_;
    std::array<Fenstertabelle, anzahlSparten> tabellen_;
    QPointer<frmBilder> bilder_;
    Flaeche *flaeche_ = nullptr;
    QTimer timResize_{this}, uhr_{this};
    QLabel *satz_ = nullptr, *uhrzeit_ = nullptr;
    QString HintergrundBild;
    QRect angewandt_; ///< place and size that the settings gave the window
    QPoint rahmen_;   ///< from the frame's corner to the window's, while it is neither maximised nor minimised
    bool geladen_ = false;
    int groessenZaehler_ = 0;
    static constexpr int jpegGuete = 100;
    static constexpr int meldungsdauer = 10000; ///< milliseconds
};
