#include "frmDateiAuswahl.h"

#include "controls/Geschuetzt.h"
#include "store/Programm.h"

#include <QPushButton>
#include <QVBoxLayout>

frmDateiAuswahl::frmDateiAuswahl(const Programm &programm, Handlung original, Handlung teilmenge, QWidget *eltern)
    : QWidget(eltern, Qt::Dialog), original_(std::move(original)), teilmenge_(std::move(teilmenge))
{
    setObjectName(QStringLiteral("frmDateiAuswahl"));
    setWindowTitle(QStringLiteral("Flox-Datenbank wählen"));
    auto *alles = new QVBoxLayout(this);
    alles->setContentsMargins(16, 16, 16, 16);
    alles->setSpacing(10);
    const auto taste = [&](const char *name, const QString &text, void (frmDateiAuswahl::*tat)()) {
        auto *knopf = new QPushButton(text, this);
        knopf->setObjectName(QString::fromLatin1(name));
        alles->addWidget(knopf);
        connect(knopf, &QPushButton::clicked, this, geschuetzt(this, [this, tat] { (this->*tat)(); }));
        return knopf;
    };
    taste("cmdOriginal", QStringLiteral("Original Flox-Datenbank  laden"), &frmDateiAuswahl::cmdOriginal_Click)
        ->setEnabled(!programm.OriginalDatenbank);
    taste("cmdTeilmenge", QStringLiteral("Teilmenge der Flox-Datenbank  laden"), &frmDateiAuswahl::cmdTeilmenge_Click);
    setMinimumWidth(320);
}
