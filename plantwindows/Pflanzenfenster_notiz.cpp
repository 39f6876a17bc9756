#include "Pflanzenfenster.h"

#include "Notizdatei.h"
#include "Pflanzenansicht.h"
#include "Zentrale.h"
#include "controls/Geschuetzt.h"

#include <QPushButton>

/* The user's own note and properties: how they leave the window for the database, or, where nothing else is left, for a file. */

Notiz Pflanzenfenster::notiz() const
{
    return {gezeigt_, ansicht_->bemerkung(), ansicht_->eigen()};
}

QString Pflanzenfenster::notizZumAufheben() const
{
    const Notiz eingabe = notiz();
    QStringList gesetzt;
    for (int i = 0; i < anzahlEigenschaften; ++i)
        if (eingabe.eigen[i] == u'1')
            gesetzt += programm_.BenutzerNamen[size_t(sparte())][size_t(i)];
    QString text = QStringLiteral("%1: %2 (%3)\n").arg(eintrag(sparte()).titel, gezeigterName_).arg(gezeigt_) + eingabe.bemerkung + u'\n';
    if (!gesetzt.isEmpty())
        text += QStringLiteral("Eigene Eigenschaften: ") + gesetzt.join(QStringLiteral(", ")) + u'\n';
    return text;
}

void Pflanzenfenster::notizNachziehen(const Notiz &notiz)
{
    if (!satz_.offen())
        return;
    // The copy first: it is what is read where the working database lacks the record, and by whoever prints.
    satz_.kopieSchreiben(Fensternummer, notiz);
    if (gezeigt_ == notiz.artnr && satz_.artnr() == notiz.artnr) {
        benutzerfelderZeigen();
        unterschiedeZeigen();
    }
    if (uebung_)
        uebungDecken();
}

void Pflanzenfenster::notizVerlassen()
{
    ansicht_->notizVerlassen();
}

bool Pflanzenfenster::notizSichern()
{
    if (!DatenGeaendert)
        return true;
    QString ursache;
    try {
        BenutzerdatenSpeichern();
        return true;
    } catch (const Fehler &fehler) {
        ursache = fehler.text();
    } catch (const std::bad_alloc &) {
        ursache = QStringLiteral("Der Arbeitsspeicher reicht nicht aus.");
    }
    // Only the copy has failed, and it goes with the window.
    if (!DatenGeaendert)
        return true;

    const QPointer<Pflanzenfenster> ich(this);
    const auto fragen = [this](const QString &text, const QString &ja) {
        // On the heap: the window may go while the box is open, and takes it along.
        const QPointer<QMessageBox> frage = new QMessageBox(QMessageBox::Warning, programmtitel.toString(), text, QMessageBox::NoButton, this);
        const QAbstractButton *weiter = frage->addButton(ja, QMessageBox::AcceptRole);
        QPushButton *zurueck = frage->addButton(QStringLiteral("Zurück"), QMessageBox::RejectRole);
        frage->setDefaultButton(zurueck);
        frage->setEscapeButton(zurueck);
        frage->exec();
        const bool einverstanden = frage && frage->clickedButton() == weiter;
        delete frage;
        return einverstanden;
    };
    if (!fragen(QStringLiteral("Die Notiz zu '%1' kann nicht gespeichert werden:\n%2\n\nWird das Fenster geschlossen, so wird der Text in einer "
                               "Datei aufgehoben.")
                    .arg(gezeigterName_, ursache),
                QStringLiteral("Schließen")))
        return !ich;
    try {
        const QString datei = notizAufheben(programm_, notizZumAufheben());
        DatenGeaendert = false;
        QMessageBox::information(this, programmtitel.toString(), QStringLiteral("Der Text der Notiz steht in der Datei '%1'.").arg(datei));
    } catch (const Fehler &fehler) {
        if (!fragen(QStringLiteral("Der Text der Notiz kann auch in keiner Datei aufgehoben werden:\n%1").arg(fehler.text()),
                    QStringLiteral("Verwerfen")))
            return !ich;
        DatenGeaendert = false;
    }
    return true;
}

void Pflanzenfenster::notizRetten() noexcept
{
    if (!DatenGeaendert)
        return;
    try {
        BenutzerdatenSpeichern();
    } catch (const std::exception &) {
    }
    if (!std::exchange(DatenGeaendert, false))
        return;
    try {
        notizAufheben(programm_, notizZumAufheben());
    } catch (const std::exception &) {
        // Nobody is left to be told.
    }
}
