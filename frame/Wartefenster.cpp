#include "Wartefenster.h"

#include "controls/Bilder.h"
#include "controls/Geschuetzt.h"

#include <QCloseEvent>
#include <QCoreApplication>
#include <QEventLoop>
#include <QHBoxLayout>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QScopeGuard>
#include <QThread>
#include <QVBoxLayout>

Wartefenster::Wartefenster(QWidget *eltern)
    : QWidget(eltern, Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint),
      lblMoment_(new QLabel(this)),
      prgMoment_(new QProgressBar(this)),
      cmdAbbrechen_(new QPushButton(QStringLiteral("Abbrechen"), this))
{
    setObjectName(QStringLiteral("Wartefenster"));
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
    prgMoment_->setObjectName(QStringLiteral("prgMoment"));
    prgMoment_->setFormat(QStringLiteral("%p %"));
    prgMoment_->setAlignment(Qt::AlignCenter);
    cmdAbbrechen_->setObjectName(QStringLiteral("cmdAbbrechen"));
    cmdAbbrechen_->setCursor(Qt::ArrowCursor);
    cmdAbbrechen_->setAutoDefault(true);
    connect(cmdAbbrechen_, &QPushButton::clicked, this, &Wartefenster::cmdAbbrechen_Click);
    auto *unten = new QHBoxLayout;
    unten->setSpacing(12);
    unten->addWidget(prgMoment_, 1);
    unten->addWidget(cmdAbbrechen_);
    auto *texte = new QVBoxLayout;
    texte->setSpacing(4);
    texte->addStretch();
    texte->addWidget(titel);
    texte->addWidget(lblMoment_);
    texte->addStretch();
    auto *oben = new QHBoxLayout;
    oben->setSpacing(18);
    oben->addWidget(bild);
    oben->addLayout(texte, 1);
    auto *alles = new QVBoxLayout(this);
    alles->setContentsMargins(20, 18, 20, 18);
    alles->setSpacing(14);
    alles->addLayout(oben, 1);
    alles->addLayout(unten);
    umschalten(false);
}

void Wartefenster::umschalten(bool arbeitet)
{
    constexpr int breite = 440, niedrig = 110, hoch = 150; // pixels
    prgMoment_->setVisible(arbeitet);
    cmdAbbrechen_->setVisible(arbeitet);
    setFixedSize(breite, arbeitet ? hoch : niedrig);
}

void Wartefenster::zeigen(const QString &satz)
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

void Wartefenster::arbeiten(const QString &satz, const Arbeit &arbeit)
{
    abgebrochen_ = false;
    prgMoment_->setValue(0);
    cmdAbbrechen_->setEnabled(true);
    umschalten(true);
    const auto zurueck = qScopeGuard([this] { umschalten(false); });
    zeigen(satz);
    cmdAbbrechen_->setFocus();

    const Lauf lauf{[this](int prozent) {
        QMetaObject::invokeMethod(
            prgMoment_, [this, prozent] { prgMoment_->setValue(prozent); }, Qt::QueuedConnection);
                    },
                    [this] { return abgebrochen_.load(); }};
    std::exception_ptr fehler;
    std::atomic<bool> fertig = false;
    QEventLoop warten;
    const std::unique_ptr<QThread> faden(QThread::create([&] {
        try {
            arbeit(lauf);
        } catch (...) {
            fehler = std::current_exception();
        }
        fertig = true;
    }));
    connect(faden.get(), &QThread::finished, &warten, &QEventLoop::quit);
    faden->start();
    warten.exec();
    // It ends before the work does where the whole program is told to end.
    if (!fertig)
        abgebrochen_ = true;
    faden->wait();
    if (fehler)
        std::rethrow_exception(fehler);
}

void Wartefenster::cmdAbbrechen_Click()
{
    abgebrochen_ = true;
    cmdAbbrechen_->setEnabled(false);
}

void Wartefenster::keyPressEvent(QKeyEvent *ereignis)
{
    if (ereignis->key() == Qt::Key_Escape && cmdAbbrechen_->isVisible())
        cmdAbbrechen_->click();
    else
        QWidget::keyPressEvent(ereignis);
}

void Wartefenster::closeEvent(QCloseEvent *ereignis)
{
    // It goes with what it waits for.
    ereignis->ignore();
}
