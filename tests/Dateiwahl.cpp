#include "Dateiwahl.h"

#include <QApplication>
#include <QComboBox>
#include <QFileInfo>
#include <QLineEdit>

Dateiwahl::Dateiwahl(const QString &pfad, const QString &filter)
{
    takt_.setInterval(1);
    connect(&takt_, &QTimer::timeout, this, [this, pfad, filter] {
        auto *dialog = qobject_cast<QFileDialog *>(QApplication::activeModalWidget());
        if (!dialog)
            return;
        auto *eingabe = dialog->findChild<QLineEdit *>(QStringLiteral("fileNameEdit"));
        // A dialog that an answer did not close is cancelled.
        const bool wieder = dialoge > 0;
        ++dialoge;
        titel = dialog->windowTitle();
        muster = dialog->nameFilters();
        modus = dialog->acceptMode();
        if (!wieder)
            vorschlag = eingabe->text();
        if (pfad.isEmpty() || wieder) {
            static_cast<QDialog *>(dialog)->reject();
            return;
        }
        if (auto *typen = dialog->findChild<QComboBox *>(QStringLiteral("fileTypeCombo")); !filter.isEmpty()) {
            typen->setCurrentText(filter);
            emit typen->activated(typen->currentIndex());
        }
        dialog->setDirectory(QFileInfo(pfad).path());
        eingabe->setText(QFileInfo(pfad).fileName());
        static_cast<QDialog *>(dialog)->accept();
    });
    takt_.start();
}
