#include "Dialogprobe.h"

#include <QApplication>

using namespace Qt::StringLiterals;

QPageLayout Probegeraet::blatt() const
{
    if (fehlt)
        throw Geraetefehler();
    return papier;
}

bool Probegeraet::einrichten(QWidget *eltern)
{
    einrichter += eltern;
    return beimEinrichten && beimEinrichten();
}

void Probegeraet::drucken(const Druckseiten &seiten, const QString &titel, const QString &datei, const Druckfortschritt &fortschritt)
{
    const qsizetype anzahl = qsizetype(seiten.seiten.size());
    for (qsizetype i = 0; i < anzahl; ++i) {
        gemeldet.append({i, anzahl});
        fortschritt(i, anzahl);
    }
    gedruckt.append({abschrift(seiten), titel, datei, QApplication::activeModalWidget()->cursor().shape()});
    if (stoerung)
        stoerung();
}

Boxen::Boxen(QMessageBox::StandardButton antwort)
{
    takt_.setInterval(1);
    connect(&takt_, &QTimer::timeout, this, [this, antwort] {
        auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
        if (!box)
            return;
        gesagt += u"%1: %2"_s.arg(box->windowTitle(), box->text());
        bild = box->icon();
        knoepfe = box->standardButtons();
        if (antwort == QMessageBox::NoButton)
            QTest::keyClick(box, Qt::Key_Escape);
        else
            box->button(antwort)->click();
    });
    takt_.start();
}

const QString druckerproblem = u"Probleme mit dem Drucker: Es ist ein Problem mit dem Drucker aufgetreten!\n\n"
                               "Entweder er ist nicht richtig installiert oder  nicht betriebsbereit.\nBitte überprüfen!"_s;

void Dialogprobe::neu(Sparte sparte)
{
    form_.reset();
    geraet_ = {};
    fenster_ = true;
    probe_ = std::make_unique<Druckprobe>(sparte);
}

void Dialogprobe::oeffnen(Druckgeraet &geraet)
{
    const auto auftrag = [this] { return fenster_ ? std::optional(probe_->auftrag) : std::nullopt; };
    form_ = std::make_unique<frmDrucken>(probe_->programm, auftrag, geraet, nullptr);
    form_->open();
    QTRY_VERIFY(!form_->isVisible() || !finde<QLabel>("lblDrucker")->text().isEmpty());
}
