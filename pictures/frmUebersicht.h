#pragma once

#include "Kachelansicht.h"

#include <QThreadPool>
#include <QWidget>

#include <atomic>
#include <memory>
#include <optional>

class QLabel;
class QSlider;
class QStackedLayout;

/* All pictures of a plant window's present set, as thumbnails. It is told what to list and says which plant was chosen. */
class frmUebersicht : public QWidget
{
    Q_OBJECT

public:
    static constexpr qsizetype lagergrenze = qsizetype(64) << 20; ///< bytes of thumbnails that are kept

    explicit frmUebersicht(QWidget *eltern = nullptr);
    /// Waits for the reading that runs.
    ~frmUebersicht() override;

    /// Lists these pictures; what is seen stays until they are read. The mark goes to the first picture of `artnr`; 0: it stays on
    /// its plant, where that is still there.
    void listen(Seitenauftrag auftrag, const QString &titel, qint64 artnr = 0);
    /// Whether pictures are still being looked for.
    bool liest() const { return liest_; }

signals:
    /// A picture of this plant was clicked, or Enter pressed on it.
    void pflanzeGewaehlt(qint64 artnr);

protected:
    void keyPressEvent(QKeyEvent *ereignis) override;
    void hideEvent(QHideEvent *ereignis) override;

private:
    struct Befund
    {
        Bilderseite seite;
        QString fehler;
    };

    void aufbauen();
    void angekommen(Befund befund, qint64 artnr);
    void abbrechen();

    Uebersichtsmodell modell_;
    Vorschaulager lager_{lagergrenze};
    Kachelansicht *lvwBilder_ = nullptr;
    QLabel *lblAnzahl_, *lblLeer_;
    QSlider *sldGroesse_ = nullptr;
    QStackedLayout *stapel_ = nullptr;
    std::shared_ptr<std::atomic_bool> abbruch_; ///< of the reading that runs or ran last
    bool liest_ = false;
    QThreadPool leser_;
};
