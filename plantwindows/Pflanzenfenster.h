#pragma once

#include "Beschreibung.h"
#include "Knopfzustaende.h"
#include "Pflanzensatz.h"
#include "Verlauf.h"
#include "frmSuche.h"
#include "filters/Filterziel.h"
#include "filters/Filterzustand.h"
#include "pictures/frmBilder.h"

#include <QDate>
#include <QPointer>
#include <QTimer>
#include <QWidget>

#include <array>
#include <exception>
#include <functional>
#include <memory>
#include <optional>
#include <vector>

class Filterdialog;
class Artenmodell;
class Bildknopf;
class Bilderstreifen;
class Pflanzenansicht;
class QKeyEvent;
class QComboBox;
class QLabel;
class Zentrale;
struct Aufgabe;
struct Pruefungsergebnis;
struct Uebungslauf;

/// The clock and the calendar of practice.
struct Uebungszeit
{
    std::function<qint64()> uhr = laufzeit; ///< milliseconds that only run forward
    std::function<QDate()> heute = QDate::currentDate;

    static qint64 laufzeit();
};
class frmUebersicht;

/* The plant window, one for all Sparten: record selector, picture buttons, tabbed record view, status bar. What it shows and
   of which Sparte stands in its description. It works on a private copy of the database that lives as long as it does. */
class Pflanzenfenster : public QWidget, private Filterziel, private Suchziel
{
    Q_OBJECT

public:
    Pflanzenfenster(Programm &programm, Zentrale &zentrale, const Fensterbeschreibung &beschreibung, int nummer);
    ~Pflanzenfenster() override;

    // State that other forms read and write.
    int Anzahl = 0;
    bool FilterEin = true;
    bool FilterGesetzt = false;
    const int Fensternummer;
    bool ErsteAktivierung = true;
    bool Botanisch = true;
    bool ArtenHatFokus = false;
    int BilderAnzahl = 0;
    bool DatenGeaendert = false;
    QString ButtonUnterMaus; ///< name of the picture button under the mouse

    /// At every activation; the first one copies the database and shows the first record. Throws when the data cannot be opened.
    void Form_Activate();
    /// Copies the working database over the private copy; the window has no data until it is opened again.
    void DatensätzeAuffüllen();
    /// Sorts anew, rebuilds the selector and stays on the same plant.
    void DatenOrdnen();
    void Sortieren();
    /// Shows the current record.
    void darstellen();
    void NaviPruefung();
    void Monatsbeschriftung();
    /// Captions of the user-defined properties.
    void eigenschaftenBenennen();
    void AnzeigeAnzahl();
    QString Auslesen(const QString &feld) { return satz_.Auslesen(feld); }
    /// Writes the user's fields of the record shown to the working database, then to the copy. Throws, with DatenGeaendert still
    /// set, when the note is stored nowhere; with it cleared when only the copy has failed.
    void BenutzerdatenSpeichern();
    /// Before the window goes: stores changed notes or, where that fails, asks. False: the user wants the window back. True: the
    /// note is stored, in a file, or given up.
    [[nodiscard]] bool notizSichern();
    /// The same without questions, for an end that cannot be put off.
    void notizRetten() noexcept;
    /// Another window has stored the user's fields of a record: what this one shows of it and has not changed follows. Throws when
    /// it cannot be read or its copy cannot take it.
    void notizNachziehen(const Notiz &notiz);

    /// Goes to a plant as a hand does, its note stored before; false, with nothing changed, where it is not in the present set.
    /// Throws when the note cannot be stored.
    bool springen(qint64 artnr);

    /// Begins practice on the present set, or leaves it: the plant that was shown before is shown again. Before an examination is given
    /// up it asks.
    void ueben();
    bool uebt() const { return bool(uebung_); }
    bool prueft() const; ///< an examination is under way
    /// Whether no name of the plant shown is to be seen.
    bool namenVerdeckt() const;
    Uebungszeit uebungszeit;

    /// The window's filter dialog, made when it is first asked for; null where the Sparte has no filter.
    Filterdialog *filterdialog();

    /// Applies a filter file, as the dialog does; one that cannot be read to its end leaves the dialog open behind its message. Throws as
    /// a run of the filter does.
    void filterAusDatei(const QString &pfad);

    /// What the picture window shows of this window's plant.
    Bilderpflanze bilderpflanze();

    Sparte sparte() const { return beschreibung_.sparte; }
    Pflanzensatz &satz() { return satz_; }
    /// "Topfpflanzen 1"
    QString titel() const;
    /// Every button and the status bar can be seen down to this size.
    QSize minimumSizeHint() const override;

protected:
    void closeEvent(QCloseEvent *ereignis) override;
    void keyPressEvent(QKeyEvent *ereignis) override;
    void focusInEvent(QFocusEvent *ereignis) override;
    void resizeEvent(QResizeEvent *ereignis) override;
    bool eventFilter(QObject *quelle, QEvent *ereignis) override;

private:
    void aufbauen();
    QWidget *leisteBauen();
    QWidget *statusBauen();
    void groesseAnpassen();
    void knoepfeVerbinden();
    /// The commands that have a key and no button; the bar offers them in its context menu.
    void zusatzBauen(QWidget *leiste);
    /// Says once, when the events in hand are done, that the record's origin is none that is known.
    void herkunftMelden();
    void aktivMelden();
    /// The Sparte's current window is this one, for as long as one of its routines runs.
    int eigeneNummer();
    /// Shows the user's fields; what he has changed himself stays as long as its record does.
    void benutzerfelderZeigen();
    Notiz notiz() const;
    void notizGespeichert();
    /// What is kept in a file: where the note belongs, its text, the properties that are set.
    QString notizZumAufheben() const;
    /// Nothing can be typed into the note of a record that is about to be shown.
    void notizVerlassen();
    void fokusZurueck();
    void aufraeumen();

    Datenbank &allePflanzen() override;
    Datenbank &arbeitsdatenbank() override { return satz_.arbeitsdatenbank(); }
    void filterGelaufen(const Laufergebnis &ergebnis) override;
    void filterVerworfen() override;
    void dialogVerlassen() override;
    void filterZeigen();
    void filterLaden();
    void filterSpeichern();
    void filterUmschalten();
    void filterInKraft();
    /// Tells in the status bar which plants the window shows.
    void zustandZeigen();
    void drucken();
    void bilderZeigen();
    void bildAngeklickt(int index);
    void uebersichtZeigen();
    /// The page of pictures, where it is open, follows the set; its mark goes to `artnr`, 0: stays.
    void uebersichtNachziehen(qint64 artnr = 0);
    void ausUebersicht(qint64 artnr);
    /// To the front within the main window.
    void imHauptfensterNachVorn();
    /// Where the filter is kept while it is switched off.
    QString parkdatei() const;
    /// A file of this window in the run's folder.
    QString laufdatei(QStringView anfang, QStringView endung) const;

    /// Opens a new copy of the working database or, where none can be made, that one itself; then the failure comes back. No plant
    /// is in the set yet. Throws when neither can be opened: the window has no data.
    [[nodiscard]] std::exception_ptr datenHolen();
    /// Fetches the data where an earlier failure has closed them, and shows the plant that was shown. Throws when they are still
    /// not to be had.
    void datenFordern();

    using Bewegung = void (Recordset::*)();
    void bewegen(Bewegung bewegung);
    /// One way to another record: notes first, then the step, then everything that shows it.
    void gehen(const std::function<void(Recordset &)> &schritt);
    /// Whether somebody practises, who is told that what he asks for would show names.
    bool beimUeben();
    /// Whether the present set has the plant.
    bool gehtZu(qint64 artnr);
    /// The data sheet into the clipboard.
    void kopieren();
    /// A second window with the same plants and the same plant, beside this one.
    void danebenOeffnen();
    /// Takes the plants that another window of the Sparte shows, by the same run of the filter.
    void auswahlUebernehmen(const Pflanzenfenster &anderes);
    /// Links the window with another of its Sparte, or parts it from the one it is linked with.
    void verbindungUmschalten();
    /// Two windows that are linked know each other; null: none is.
    void verbinden(Pflanzenfenster *anderes);
    /// What differs stands out in both of two linked windows.
    void unterschiedeZeigen();
    void imVerlauf(int richtung);
    /// Opens the search with `anfang` typed.
    void sucheOeffnen(const QString &anfang);
    void suchen() { sucheOeffnen({}); }
    /// A letter that nobody else wanted begins a search; false for any other key.
    bool suchenMitTaste(const QKeyEvent &ereignis);
    Suchbestand &suchbestand();
    QString grundDesFehlens(qint64 artnr, int bewertung) override;
    QString ratZumFehlen(qint64 artnr, int bewertung) override;
    void gefunden(qint64 artnr) override;
    void nichtErreichbar(const QString &rat) override;
    /// The filter's rating; null where it has none.
    const Kriterium *bewertungskriterium() const;
    /// The step of the filter's rating that would let a plant pass; nothing where the rating does not keep it out.
    std::optional<int> noetigeStufe(int bewertung) const;
    void verlaufZurueck() { imVerlauf(-1); }
    void verlaufVor() { imVerlauf(1); }
    void artenGewaehlt(bool vomBenutzer);
    void botDeu();
    void uebungAufbauen();
    /// Walking and the selector, the other buttons and commands.
    void leisteSperren(bool gehen, bool uebrige);
    /// Goes to practice's present plant; throws, with the plant before still shown, when its note cannot be stored.
    void uebungsblattZeigen();
    void uebungGehen(int richtung);
    /// Covers or uncovers what tells the name of the plant shown.
    void uebungDecken();
    void uebungAufdecken();
    void befundeZeigen(bool selbst);
    void uebungWerten(int guete);
    /// Keeps how well plants were known; the day on which the last of them is due, none where it is not kept.
    QDate standMerken(const std::vector<std::pair<Aufgabe, int>> &guete);
    /// Leaves practice as its key does.
    void uebungVerlassen();
    void uebungZurueck();
    /// Ends practice where the window stands.
    void uebungAbbrechen();
    /// A box, when the events in hand are done; empty: none.
    void spaeterMelden(const QString &satz);
    bool uebungstaste(const QKeyEvent &taste);
    void pruefungBeginnen();
    void uhrZeigen();
    void pruefungAbgeben(bool fragen);
    Pruefungsergebnis pruefungAuswerten();
    void hinweis(const QString &text);
    /// A hint that no mouse ends.
    void hinweisFuerEineWeile(const QString &text);
    QString knopfbildVon(const Bildknopf &button, Knopfzustand zustand) const;
    void naviSetzen(Knopf innen, Knopf aussen, bool amEnde);
    Bildknopf *knopf(Knopf welcher) const { return knoepfe_[size_t(welcher)]; }
    Umschaltungen umschaltungen() const { return {Botanisch, FilterEin}; }

    Programm &programm_;
    Zentrale &zentrale_;
    const Fensterbeschreibung &beschreibung_;
    Pflanzensatz satz_;
    QPointer<Filterdialog> filter_;
    QPointer<frmUebersicht> uebersicht_;

    std::array<Bildknopf *, anzahlKnoepfe> knoepfe_{};
    Knopfreihe reihe_{this, ButtonUnterMaus, [this](const Bildknopf &button, Knopfzustand zustand) { return knopfbildVon(button, zustand); }};
    QComboBox *cboArten_ = nullptr;
    Artenmodell *arten_ = nullptr;
    Bilderstreifen *fraBilder_ = nullptr;
    std::array<QLabel *, 4> stbAnzeige_{};
    Pflanzenansicht *ansicht_ = nullptr;
    std::array<QWidget *, 2> leistenteile_{}; ///< walking and selector; the other buttons
    QTimer hinweisende_;
    QTimer suchbeginn_; ///< the index is read when the window has come up
    std::shared_ptr<Suchbestand> suchbestand_;
    QPointer<frmSuche> suche_;
    std::vector<qint64> suchmenge_; ///< the present set when the search opened, rising
    Verlauf verlauf_;
    QPointer<Pflanzenfenster> partner_;                  ///< linked with this one
    std::array<QMetaObject::Connection, 2> reiterfolge_; ///< while linked, from and to the other's tabs
    std::unique_ptr<Uebungslauf> uebung_;                ///< null: nobody practises
    qint64 gezeigt_ = 0;                                 ///< number of the record last shown: the user's fields belong to it
    QString gezeigterName_;
    bool hatKopie_ = false, geschlossen_ = false;
    qsizetype gesamt_ = 0;                  ///< plants before the last filter run
    std::optional<Filterzustand> gelaufen_; ///< what that run was asked for; nothing: no run has left the set that is shown
    bool meldet_ = false;                   ///< a box tells of an unknown origin
    QPointer<QWidget> fokusVorher_;         ///< had the focus when the filter dialog opened
};
