#include "Aufheben.h"

#include "controls/Geschuetzt.h"
#include "store/Sicherungen.h"

#include <QDateTime>
#include <QFileInfo>
#include <QPushButton>

std::optional<QStringList> aufhebenOderFragen(const Programm &programm, QWidget *fenster, const QStringList &pfade, const QString &gebraucht)
{
    QStringList kopien;
    for (const QString &pfad : pfade) {
        QString ursache;
        try {
            if (const QString kopie = sicherungen::aufheben(programm, pfad, QDateTime::currentDateTime(), gebraucht); !kopie.isEmpty())
                kopien += kopie;
            continue;
        } catch (const Fehler &fehler) {
            ursache = fehler.text();
        }
        QMessageBox frage(QMessageBox::Warning, programmtitel.toString(),
                          QStringLiteral("Die Datei '%1' wird ersetzt und kann nicht im Ordner 'sicherungen' aufgehoben werden:\n%2\n\nWas nur in "
                                         "ihr steht, ginge verloren.")
                              .arg(QFileInfo(pfad).fileName(), ursache),
                          QMessageBox::NoButton, fenster);
        const QAbstractButton *ersetzen = frage.addButton(QStringLiteral("Trotzdem ersetzen"), QMessageBox::AcceptRole);
        QPushButton *abbrechen = frage.addButton(QStringLiteral("Abbrechen"), QMessageBox::RejectRole);
        frage.setDefaultButton(abbrechen);
        frage.setEscapeButton(abbrechen);
        frage.exec();
        if (frage.clickedButton() != ersetzen)
            return std::nullopt;
    }
    return kopien;
}
