#include "Flaeche.h"

#include <QMdiSubWindow>
#include <QPainter>
#include <QScopedValueRollback>

namespace {

constexpr QSize groesstes(1440, 960); ///< pixels: a first window on a large screen

} // namespace

Flaeche::Flaeche(QWidget *eltern) : QMdiArea(eltern)
{
    setHorizontalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    grundFaerben();
}

void Flaeche::grundFaerben()
{
    setBackground(palette().color(QPalette::Window).darker(104));
}

void Flaeche::changeEvent(QEvent *ereignis)
{
    QMdiArea::changeEvent(ereignis);
    if (ereignis->type() == QEvent::PaletteChange)
        grundFaerben();
}

void Flaeche::setBild(const QPixmap &bild)
{
    bild_ = bild;
    gemalt_ = {};
    viewport()->update();
}

void Flaeche::fensterZeigen(QWidget *form, QSize mass, bool maximiert)
{
    const auto schon = subWindowList();
    const QScopedValueRollback eigene(selbst_, true);
    auto *unterfenster = addSubWindow(form);
    unterfenster->setAttribute(Qt::WA_DeleteOnClose);
    unterfenster->setWindowIcon(form->window()->windowIcon());
    unterfenster->installEventFilter(this);
    connect(unterfenster, &QObject::destroyed, &kontext_, [this, unterfenster] { lagen_.remove(unterfenster); });
    connect(unterfenster, &QMdiSubWindow::windowStateChanged, &kontext_, [this](Qt::WindowStates vorher, Qt::WindowStates jetzt) {
        if (!selbst_ && ((vorher ^ jetzt) & Qt::WindowMaximized))
            emit fenstermass({}, jetzt & Qt::WindowMaximized);
    });
    // The first window uses the place there is; further ones step aside so that all can be seen.
    Lage &lage = lagen_[unterfenster] = {28 * int(schon.size() % 8), mass.isEmpty() ? groesstes : mass, {}};
    einpassen(unterfenster, lage);
    maximiert ? unterfenster->showMaximized() : unterfenster->show();
}

void Flaeche::einpassen(QMdiSubWindow *fenster, Lage &lage)
{
    const QSize platz = viewport()->size() - QSize(lage.versatz, lage.versatz);
    fenster->setGeometry(QRect(QPoint(lage.versatz, lage.versatz), lage.mass.boundedTo(platz)));
    lage.gesetzt = fenster->geometry();
}

void Flaeche::resizeEvent(QResizeEvent *ereignis)
{
    QMdiArea::resizeEvent(ereignis);
    const QScopedValueRollback eigene(selbst_, true);
    for (auto i = lagen_.begin(); i != lagen_.end(); ++i)
        if (!i.key()->isMaximized() && !i.key()->isMinimized() && i.key()->geometry() == i->gesetzt)
            einpassen(i.key(), *i);
}

bool Flaeche::eventFilter(QObject *quelle, QEvent *ereignis)
{
    if (ereignis->type() == QEvent::Resize && !selbst_)
        if (auto *fenster = qobject_cast<QMdiSubWindow *>(quelle); fenster && fenster->isVisible() && !fenster->isMaximized()
                                                                   && !fenster->isMinimized() && fenster->geometry() != lagen_.value(fenster).gesetzt)
            emit fenstermass(fenster->size(), false);
    return QMdiArea::eventFilter(quelle, ereignis);
}

void Flaeche::ueberlappen()
{
    const QScopedValueRollback eigene(selbst_, true);
    cascadeSubWindows();
}

void Flaeche::anordnen(Qt::Orientation richtung)
{
    QList<QMdiSubWindow *> fenster;
    for (QMdiSubWindow *eines : subWindowList())
        if (eines->isVisible() && !eines->isMinimized())
            fenster += eines;
    anordnen(richtung, fenster);
}

void Flaeche::anordnen(Qt::Orientation richtung, const QList<QMdiSubWindow *> &fenster)
{
    const QScopedValueRollback eigene(selbst_, true);
    const int anzahl = int(fenster.size());
    for (int i = 0; i < anzahl; ++i) {
        const QRect ganz = viewport()->rect();
        fenster[i]->showNormal();
        fenster[i]->setGeometry(richtung == Qt::Horizontal ? QRect(ganz.width() * i / anzahl, 0, ganz.width() / anzahl, ganz.height())
                                                           : QRect(0, ganz.height() * i / anzahl, ganz.width(), ganz.height() / anzahl));
    }
}

void Flaeche::paintEvent(QPaintEvent *ereignis)
{
    if (bild_.isNull())
        return QMdiArea::paintEvent(ereignis);
    const qreal skala = devicePixelRatioF();
    const QSize ziel = viewport()->size() * skala;
    if (gemalt_.size() != ziel) {
        // Cut first, then stretched: a long and narrow area needs no picture larger than itself.
        QRect teil({}, ziel.scaled(bild_.size(), Qt::KeepAspectRatio).expandedTo({1, 1}));
        teil.moveCenter(bild_.rect().center());
        gemalt_ = bild_.copy(teil).scaled(ziel, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
        gemalt_.setDevicePixelRatio(skala);
    }
    QPainter(viewport()).drawPixmap(0, 0, gemalt_);
}
