#include "Pflanzenfenster.h"

#include "Pflanzenansicht.h"
#include "Zentrale.h"
#include "controls/Geschuetzt.h"
#include "pictures/Bilderstreifen.h"

#include <QLabel>

/* The window's pictures: the strip beside the record and the way to the picture window. */

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
