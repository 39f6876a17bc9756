#include "Flaeche.h"

#include <QMdiSubWindow>
#include <QPainter>

Flaeche::Flaeche(QWidget *eltern) : QMdiArea(eltern)
{
    setHorizontalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    setBackground(palette().color(QPalette::Window).darker(104));
}

void Flaeche::setBild(const QPixmap &bild)
{
    bild_ = bild;
    gemalt_ = {};
    viewport()->update();
}

void Flaeche::fensterZeigen(QWidget *form)
{
    const auto schon = subWindowList();
    auto *unterfenster = addSubWindow(form);
    unterfenster->setAttribute(Qt::WA_DeleteOnClose);
    unterfenster->setWindowIcon(form->window()->windowIcon());
    const QSize platz = viewport()->size();
    // The first window uses the place there is; further ones step aside so that all can be seen.
    const int versatz = 28 * int(schon.size() % 8);
    unterfenster->setGeometry(versatz, versatz, qMax(640, qMin(1180, platz.width() - versatz)), qMax(440, qMin(760, platz.height() - versatz)));
    unterfenster->show();
}

void Flaeche::anordnen(Qt::Orientation richtung)
{
    QList<QMdiSubWindow *> fenster;
    for (QMdiSubWindow *eines : subWindowList())
        if (eines->isVisible() && !eines->isMinimized())
            fenster += eines;
    const int anzahl = int(fenster.size());
    for (int i = 0; i < anzahl; ++i) {
        const QRect ganz = viewport()->rect();
        fenster[i]->showNormal();
        fenster[i]->setGeometry(richtung == Qt::Horizontal
                                    ? QRect(ganz.width() * i / anzahl, 0, ganz.width() / anzahl, ganz.height())
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
