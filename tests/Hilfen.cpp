#include "Hilfen.h"

#include "controls/Bilder.h"
#include "plantwindows/Beschreibung.h"

#include <QApplication>
#include <QMessageBox>
#include <QPushButton>

Programmordner::Programmordner()
{
    bilder::setOrdner(QStringLiteral(FLOX_PROGRAMM) + QStringLiteral("/icons"));
}

std::vector<Sparte> spartenMitFenster()
{
    std::vector<Sparte> sparten;
    for (const SpartenEintrag &sparte : alleSparten())
        if (fensterbeschreibung(sparte.sparte))
            sparten.push_back(sparte.sparte);
    return sparten;
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
