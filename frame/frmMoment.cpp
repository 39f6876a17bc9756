#include "frmMoment.h"

#include "Datenbankwechsel.h"
#include "controls/Bilder.h"
#include "controls/Geschuetzt.h"

#include <QCloseEvent>
#include <QCoreApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>

frmMoment::frmMoment(Datenbankwechsel &wechsel, QWidget *eltern)
    : QWidget(eltern, Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint), wechsel_(wechsel), lblMoment_(new QLabel(this))
{
    setObjectName(QStringLiteral("frmMoment"));
    setWindowTitle(programmtitel.toString());
    setWindowModality(Qt::ApplicationModal);
    setCursor(Qt::WaitCursor);
    auto *bild = new QLabel(this);
    constexpr int kante = 48; // pixels
    bild->setPixmap(bilder::pixmap(QStringLiteral("flox"), {kante, kante}, devicePixelRatioF()));
    auto *titel = new QLabel(QStringLiteral("Einen Moment, bitte …"), this);
    titel->setProperty("gruppentitel", true);
    lblMoment_->setObjectName(QStringLiteral("lblMoment"));
    lblMoment_->setWordWrap(true);
    auto *texte = new QVBoxLayout;
    texte->setSpacing(4);
    texte->addStretch();
    texte->addWidget(titel);
    texte->addWidget(lblMoment_);
    texte->addStretch();
    auto *alles = new QHBoxLayout(this);
    alles->setContentsMargins(20, 18, 24, 18);
    alles->setSpacing(18);
    alles->addWidget(bild);
    alles->addLayout(texte, 1);
    setFixedSize(400, 110);
}

void frmMoment::OriginalDBWiederherstellen()
{
    wechsel_.OriginalDBWiederherstellen(*this);
}

void frmMoment::DBFloxAuswaehlen()
{
    wechsel_.DBFloxAuswaehlen(*this);
}

void frmMoment::zeigen(const QString &satz)
{
    lblMoment_->setText(satz);
    if (!isVisible()) {
        if (const QWidget *eltern = parentWidget())
            move(eltern->geometry().center() - rect().center());
        show();
    }
    // The window system needs more than one turn to show it; the user's input waits.
    constexpr int runden = 3, hoechstens = 50; // turns, milliseconds each
    for (int i = 0; i < runden; ++i)
        QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents, hoechstens);
    repaint();
}

void frmMoment::closeEvent(QCloseEvent *ereignis)
{
    // It goes with what it waits for.
    ereignis->ignore();
}
