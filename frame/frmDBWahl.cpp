#include "frmDBWahl.h"

#include "Aussehen.h"
#include "plantwindows/Beschreibung.h"
#include "controls/Bilder.h"
#include "controls/Steuerelemente.h"
#include "store/Programm.h"

#include <QApplication>
#include <QGridLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QMouseEvent>
#include <QPushButton>
#include <QToolButton>
#include <QVBoxLayout>

namespace {

constexpr QSize bildgroesse(160, 120);
const QString hintergrund = QStringLiteral("wahl/hintergrund");
/// Places of the Sparten, row by row.
constexpr int spalten = 3;

QIcon wahlbild(const char *name, const QWidget *fenster)
{
    return QIcon(bilder::pixmap(QStringLiteral("wahl/") + QLatin1String(name), bildgroesse, fenster->devicePixelRatioF()));
}

class Schild : public QLabel
{
public:
    Schild(const QString &text, QToolButton *knopf, QWidget *eltern) : QLabel(text, eltern), knopf_(knopf) { setAlignment(Qt::AlignHCenter); }

protected:
    void mouseReleaseEvent(QMouseEvent *) override { knopf_->click(); }

private:
    QToolButton *knopf_ = nullptr;
};

} // namespace

frmDBWahl::frmDBWahl(Programm &programm) : QWidget(nullptr, Qt::Window | Qt::WindowTitleHint | Qt::WindowCloseButtonHint)
{
    setObjectName(QStringLiteral("frmDBWahl"));
    // Its background is a picture, light in every scheme.
    setStyleSheet(QStringLiteral("QLabel { color: %1; }").arg(aussehen::palette(aussehen::Schema::Hell).color(QPalette::WindowText).name()));
    setWindowTitle(QStringLiteral("Flox - Auswahl der Datenbank"));
    auto *frage = new QLabel(QStringLiteral("Welche Datenbank wollen Sie verwenden?"), this);
    QFont schrift = frage->font();
    schrift.setPointSizeF(schrift.pointSizeF() * 1.4);
    schrift.setBold(true);
    frage->setFont(schrift);
    frage->setAlignment(Qt::AlignHCenter);

    auto *raster = new QGridLayout;
    raster->setSpacing(8);
    raster->setHorizontalSpacing(24);
    for (const SpartenEintrag &zeile : alleSparten()) {
        const int i = int(zeile.sparte);
        auto *knopf = new QToolButton(this);
        knopf->setObjectName(QString::fromLatin1(zeile.wahlknopf));
        knopf->setIcon(wahlbild(zeile.wahlbild, this));
        knopf->setIconSize(bildgroesse);
        knopf->setAutoRaise(true);
        knopf->setFocusPolicy(Qt::StrongFocus);
        knopf->setAccessibleName(zeile.titel.toString());
        auto *schild = new Schild(zeile.titel.toString(), knopf, this);
        schild->setObjectName(QStringLiteral("Label%1").arg(i + 2));
        if (!fensterbeschreibung(zeile.sparte)) {
            knopf->setEnabled(false);
            schild->setEnabled(false);
            knopf->setToolTip(QStringLiteral("In dieser Version noch nicht enthalten"));
        }
        raster->addWidget(knopf, 2 * (i / spalten), i % spalten, Qt::AlignHCenter);
        raster->addWidget(schild, 2 * (i / spalten) + 1, i % spalten);
        connect(knopf, &QToolButton::clicked, this, [this, sparte = zeile.sparte] {
            entschieden_ = true;
            hide();
            emit gewaehlt(sparte);
        });
    }
    auto *cmdFensterAlleine = new QPushButton(QStringLiteral("Nur das Programmfenster starten"), this);
    cmdFensterAlleine->setObjectName(QStringLiteral("cmdFensterAlleine"));
    cmdFensterAlleine->setVisible(programm.StartPhase);
    connect(cmdFensterAlleine, &QPushButton::clicked, this, [this] {
        entschieden_ = true;
        hide();
        emit fensterAlleine();
    });

    auto *alles = new QVBoxLayout(this);
    alles->setContentsMargins(32, 24, 32, 24);
    alles->setSpacing(18);
    alles->addWidget(frage);
    alles->addLayout(raster);
    alles->addWidget(cmdFensterAlleine, 0, Qt::AlignHCenter);
    setFixedSize(sizeHint());
    auto *picHintergrund = new Bildfeld(bilder::eigengroesse(hintergrund).scaled(size(), Qt::KeepAspectRatioByExpanding), this);
    picHintergrund->setObjectName(QStringLiteral("picHintergrund"));
    picHintergrund->setAttribute(Qt::WA_TransparentForMouseEvents);
    picHintergrund->setBild(hintergrund);
    picHintergrund->move((width() - picHintergrund->width()) / 2, (height() - picHintergrund->height()) / 2);
    picHintergrund->lower();
    programm.StartPhase = false;
}

void frmDBWahl::changeEvent(QEvent *ereignis)
{
    QWidget::changeEvent(ereignis);
    if (ereignis->type() != QEvent::ActivationChange)
        return;
    // It may lose activation before it ever had it; only after it was active does that close it.
    // Who reads about the choice in the manual, or is told that there is none, has not given it up.
    const QWidget *vorn = QApplication::activeWindow();
    if (isActiveWindow())
        warAktiv_ = true;
    else if (vorn && (vorn->objectName() == u"frmHilfe" || vorn->parentWidget() == this))
        return;
    else if (warAktiv_ && isVisible() && !entschieden_)
        close();
}

void frmDBWahl::keyPressEvent(QKeyEvent *ereignis)
{
    auto *knopf = qobject_cast<QAbstractButton *>(focusWidget());
    switch (ereignis->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        // A choice ends this window: nothing of it may be touched after the click.
        if (knopf && !ereignis->isAutoRepeat())
            knopf->click();
        return;
    case Qt::Key_Escape: close(); return;
    default: QWidget::keyPressEvent(ereignis);
    }
}
