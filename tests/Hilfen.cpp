#include "Hilfen.h"

#include "controls/Bilder.h"
#include "store/Benutzernamen.h"

#include <QApplication>
#include <QFile>
#include <QLocale>
#include <QMessageBox>
#include <QPushButton>

Programmordner::Programmordner()
{
    QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
    if (!QFile::copy(QStringLiteral(FLOX_DB), datenbank()))
        qFatal("The shipped database cannot be copied.");
    QFile::setPermissions(datenbank(), QFile::ReadOwner | QFile::WriteOwner);
    bilder::setOrdner(QStringLiteral(FLOX_PROGRAMM) + QStringLiteral("/icons"));
}

Programm Programmordner::programm() const
{
    Programm programm;
    programm.ProgrammPfad = ordner_.path();
    programm.BilderPfad = ordner_.path();
    programm.ProgrammVersion = QStringLiteral("1.2.3");
    if (const QString satz = benutzernamenLesen(programm); !satz.isEmpty())
        qFatal("%s", qPrintable(satz));
    return programm;
}

Meldungsfaenger::Meldungsfaenger()
{
    takt_.setInterval(1);
    connect(&takt_, &QTimer::timeout, this, [this] {
        if (auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget())) {
            texte += box->text();
            titel += box->windowTitle();
            box->done(box->defaultButton() ? int(box->standardButton(box->defaultButton())) : int(QMessageBox::Ok));
        }
    });
    takt_.start();
}
