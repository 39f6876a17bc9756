#include "Pflanzenfenster.h"

#include "Pflanzenansicht.h"
#include "Zentrale.h"
#include "controls/Geschuetzt.h"
#include "filters/Filterdialog.h"
#include "pictures/Bilderstreifen.h"
#include "pictures/frmUebersicht.h"

#include <QLabel>

/* The window's pictures: the strip beside the record, the way to the picture window, the page of all pictures. */

namespace {

void nachVorn(QWidget &fenster)
{
    fenster.setWindowState(fenster.windowState() & ~Qt::WindowMinimized);
    fenster.raise();
    fenster.activateWindow();
}

} // namespace

void Pflanzenfenster::bilderZeigen()
{
    const Medium medium = bildMediumPruefen(programm_);
    if (stbAnzeige_[2]->text() != medium.hinweis)
        stbAnzeige_[2]->setText(medium.hinweis);
    ansicht_->nummerHervorheben(medium.unbekannt);
    std::vector<Bildeintrag> bilder;
    const std::optional<Sparte> herkunft = satz_.herkunft();
    if (const std::optional<Bildzeile> zeile = herkunft ? satz_.bilder() : std::nullopt)
        bilder = streifenbilder(programm_, *zeile, eintrag(*herkunft).bildordner.toString());
    fraBilder_->zeigen(bilder, programm_.symbolordner() + QStringLiteral("\\keinbild.gif"));
    BilderAnzahl = fraBilder_->anzahl();
}

void Pflanzenfenster::bildAngeklickt(int index)
{
    while (mediumFehlt(programm_)) {
        const auto antwort = QMessageBox::warning(
            this, QStringLiteral("Flox-CD nicht gefunden!"),
            QStringLiteral("Die Flox-CD konnte nicht gefunden werden!\rBitte die richtige CD in das Laufwerk %1 einlegen!").arg(programm_.BilderPfad),
            QMessageBox::Ok | QMessageBox::Cancel, QMessageBox::Ok);
        if (antwort != QMessageBox::Ok)
            return;
    }
    aktivMelden();
    programm_.GewaehltesBild = index;
    zentrale_.bildZeigen();
}

Bilderpflanze Pflanzenfenster::bilderpflanze()
{
    return {.sparte = sparte(),
            .artnr = satz_.artnr(),
            .botName = ansicht_->kopftext(0),
            .deuName = ansicht_->kopftext(1),
            .zeile = satz_.artnr() ? satz_.bilder() : std::nullopt,
            .verdeckt = namenVerdeckt()};
}

void Pflanzenfenster::uebersichtZeigen()
{
    datenFordern();
    if (!uebersicht_) {
        // No child of the main window: that is to come before it. Queued, as a jump may show a box and a box may outlive both windows.
        uebersicht_ = new frmUebersicht;
        connect(
            uebersicht_, &frmUebersicht::pflanzeGewaehlt, this, [this](qint64 artnr) { geschuetztAusfuehren(this, [&] { ausUebersicht(artnr); }); },
            Qt::QueuedConnection);
    }
    uebersicht_->show();
    nachVorn(*uebersicht_);
    uebersichtNachziehen(satz_.artnr());
}

void Pflanzenfenster::uebersichtNachziehen(qint64 artnr)
{
    if (uebersicht_ && !uebersicht_->isHidden() && satz_.offen())
        uebersicht_->listen({programm_, sparte(), satz_.haupt().Schluesselfolge()}, QStringLiteral("Alle Bilder – %1").arg(titel()), artnr);
}

void Pflanzenfenster::ausUebersicht(qint64 artnr)
{
    if (!isEnabled()) {
        // Nothing in a locked window is changed; what locks it comes before it.
        if (filter_ && !filter_->isHidden())
            nachVorn(*filter_);
        return;
    }
    aktivMelden();
    if (!springen(artnr))
        hinweisFuerEineWeile(QStringLiteral("Diese Pflanze ist nicht mehr in der Auswahl."));
    imHauptfensterNachVorn();
    nachVorn(*window());
}
