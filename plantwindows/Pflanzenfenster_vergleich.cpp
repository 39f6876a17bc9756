#include "Pflanzenfenster.h"

#include "Pflanzenansicht.h"
#include "Zentrale.h"
#include "filters/Filterdialog.h"

/* Two windows of a Sparte beside each other. */

void Pflanzenfenster::danebenOeffnen()
{
    datenFordern();
    // The other window reads the working database.
    if (DatenGeaendert)
        BenutzerdatenSpeichern();
    const qint64 artnr = satz_.artnr();
    const QPointer<Pflanzenfenster> ich(this);
    const QPointer<Pflanzenfenster> neues = zentrale_.danebenOeffnen(sparte(), Fensternummer);
    if (!ich || !neues)
        return;
    neues->ansicht_->setReiter(ansicht_->reiter());
    neues->auswahlUebernehmen(*this);
    // The run may have told of something.
    if (!ich || !neues)
        return;
    neues->hinweisFuerEineWeile(artnr && !neues->springen(artnr) ? QStringLiteral("Die Pflanze ist hier nicht in der Auswahl.")
                                                                 : QStringLiteral("Strg+L verbindet beide Fenster."));
}

void Pflanzenfenster::auswahlUebernehmen(const Pflanzenfenster &anderes)
{
    if (gelaufen_ == anderes.gelaufen_ || !filterdialog())
        return;
    if (!anderes.gelaufen_) {
        filterVerworfen();
        return;
    }
    filter_->setZustand(*anderes.gelaufen_);
    filter_->cmdOK_Click();
}

void Pflanzenfenster::verbindungUmschalten()
{
    if (partner_) {
        verbinden(nullptr);
        hinweisFuerEineWeile(QStringLiteral("Die Fenster sind wieder getrennt."));
        return;
    }
    Pflanzenfenster *anderes = zentrale_.anderesFenster(sparte(), Fensternummer);
    if (!anderes) {
        hinweisFuerEineWeile(QStringLiteral("Zum Vergleichen ist kein zweites Fenster der Sparte offen. Strg+Umschalt+C öffnet eines."));
        return;
    }
    verbinden(anderes);
    hinweisFuerEineWeile(QStringLiteral("Verbunden mit %1: Verschiedenes ist farbig unterlegt.").arg(anderes->titel()));
}

void Pflanzenfenster::verbinden(Pflanzenfenster *anderes)
{
    for (Pflanzenfenster *eines : {this, anderes}) {
        if (!eines || !eines->partner_)
            continue;
        for (Pflanzenfenster *frei : {eines->partner_.data(), eines}) {
            frei->partner_ = nullptr;
            frei->ansicht_->hervorheben({});
            for (const QMetaObject::Connection &folge : frei->reiterfolge_)
                disconnect(folge);
        }
    }
    if (!anderes)
        return;
    partner_ = anderes;
    anderes->partner_ = this;
    anderes->ansicht_->setReiter(ansicht_->reiter());
    reiterfolge_ = {connect(ansicht_, &Pflanzenansicht::reiterGewechselt, anderes->ansicht_, &Pflanzenansicht::setReiter),
                    connect(anderes->ansicht_, &Pflanzenansicht::reiterGewechselt, ansicht_, &Pflanzenansicht::setReiter)};
    unterschiedeZeigen();
}

void Pflanzenfenster::unterschiedeZeigen()
{
    if (!partner_)
        return;
    ansicht_->hervorheben(partner_->ansicht_->werte());
    partner_->ansicht_->hervorheben(ansicht_->werte());
}
