#pragma once

#include "Anzeigebild.h"
#include "Bilderliste.h"
#include "controls/Knopfreihe.h"

#include <QPointer>
#include <QTimer>
#include <QWidget>

#include <array>
#include <functional>
#include <utility>

class Bildflaeche;
class Bildknopf;
class QLabel;
class QScrollBar;
class Vollbild;

/* What the picture window needs of the plant window that is active. */
struct Bilderpflanze
{
    Sparte sparte;
    qint64 artnr = 0;
    QString botName, deuName;       ///< texts of the window's two name labels
    std::optional<Bildzeile> zeile; ///< nothing: no picture row matches
    bool verdeckt = false;          ///< neither names nor captions are shown, nor the foot of the pictures, where plates carry the name
};

/* The one window that shows the pictures of the current plant at full size, with a zoom in tenths, scroll bars and a walk
   through the pictures. Maximised it shows nothing but the picture, and all else stays as it was. All measures of pictures and places
   are twips. */
class frmBilder : public QWidget
{
    Q_OBJECT

public:
    /// `pflanze` gives the active window's plant, nothing when there is none.
    frmBilder(Programm &programm, std::function<std::optional<Bilderpflanze>()> pflanze, QWidget *zentral);

    /// Lists the plant's pictures and shows number GewaehltesBild.
    void NeuePflanze();
    /// The names of the plant listed are covered or seen again; its picture stays where and as large as it is.
    void namenZeigen();
    /// Whether these are the pictures listed now: the same plant, and nothing about its files has changed.
    bool zeigtSchon() const;
    void BildAnzeigen(int index);
    /// Percent shown of the picture's own size; 0 without a picture.
    int Zoomfaktor() const;

signals:
    /// The window was closed by its button: the plant window comes to the front.
    void geschlossen();

protected:
    void resizeEvent(QResizeEvent *ereignis) override;
    void keyPressEvent(QKeyEvent *ereignis) override;
    void closeEvent(QCloseEvent *ereignis) override;
    void changeEvent(QEvent *ereignis) override;
    bool focusNextPrevChild(bool weiter) override;
    bool eventFilter(QObject *quelle, QEvent *ereignis) override;

private:
    enum Knopf { Groesser, Kleiner, Anpassen, Original, Back, Next };
    static constexpr int anzahlKnoepfe = 6;
    struct Lage
    {
        double links = 0, oben = 0, breite = 0, hoehe = 0;
    };

    void aufbauen();
    void knoepfeVerbinden();
    bool listen();
    void stufe(int richtung);
    void cmdAnpassen_Click();
    void cmdOriginal_Click();
    /// Between fitted and the own size; the point, in the picture's control, comes to the middle.
    void groesseUmschalten(std::optional<QPointF> punkt = {});
    void vollbildEinrichten();
    bool fuelltSchirm() const { return windowState() & (Qt::WindowMaximized | Qt::WindowFullScreen); }
    void blaettern(int richtung);
    void groesseSetzen(double breite, double hoehe);
    void mitten();
    void bildLaden();
    void bildMalen();
    void lageAnwenden();
    void LaufleistenUeberpruefung();
    void leisteBewegt(const QScrollBar *balken);
    bool verschieben(QPointF weg);
    bool gerollt(const QWheelEvent &rad, bool ueberBild);
    void gescheitert(bool vorhanden);
    void freigeben(Knopf knopf, bool frei);
    void NaviPruefen();
    void VGNaviPruefen();
    void NeueGroesse();
    void groesseGeaendert();
    void beschriften(const Bilderpflanze &pflanze);
    void beschreibungZeigen(int i);
    void titelSetzen();
    void positionSetzen();
    QString knopfschluessel(const Bildknopf &button, Knopfzustand zustand) const;

    Programm &programm_;
    std::function<std::optional<Bilderpflanze>()> pflanze_;
    std::optional<std::pair<Sparte, qint64>> gelistet_; ///< the plant, by its record number

    std::array<QString, groessteBilderzahl> BildPfad, BildBeschreibung;
    std::array<double, groessteBilderzahl> BildBreite{}, BildHoehe{}; ///< at 100 %
    bool verdeckt_ = false;
    int BildAnzahl = 0, BildIndex = 0;
    int SchrittBreite = 0, SchrittHoehe = 0;
    int ZoomStufe = 10;
    bool AnpassenVerlangt = false, FormGeladen = false;
    QString ButtonUnterMaus;
    Lage lage_;
    QSize eingerichtet_;       ///< of the window when its parts were last laid out
    bool ausVollbild_ = false; ///< the size to come is that before it was maximised
    std::optional<QPoint> gezogenVon_;
    int radrest_ = 0; ///< turns of the wheel too small for a zoom step, eighths of a degree
    Anzeigebild bild_;

    QTimer timResize_{this};
    QWidget *picBildAnzeige_, *picLeiste1_, *picLeiste2_, *picAbdeckung_;
    Bildflaeche *imgAnzeige_ = nullptr;
    Vollbild *vollbild_ = nullptr; ///< seen while the window is maximised
    QPointer<QWidget> fokusVorher_;
    QScrollBar *hscBild_, *vscBild_;
    QLabel *lblBotName_, *lblDeuName_, *lblBeschreibung_, *lblPosition_;
    std::array<Bildknopf *, anzahlKnoepfe> knoepfe_{};
    Knopfreihe reihe_{this, ButtonUnterMaus, [this](const Bildknopf &button, Knopfzustand zustand) { return knopfschluessel(button, zustand); }};
};
