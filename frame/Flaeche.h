#pragma once

#include <QHash>
#include <QMdiArea>
#include <QPixmap>

class QMdiSubWindow;

/* The area that hosts the plant windows, with its background picture. */
class Flaeche : public QMdiArea
{
    Q_OBJECT

public:
    explicit Flaeche(QWidget *eltern);

    bool hatBild() const { return !bild_.isNull(); }
    /// The picture fills the area and keeps its proportions.
    void setBild(const QPixmap &bild);
    /// Shows a new window: in the size given, in pixels, or where that is empty in the place there is; always inside the area, also when
    /// the area gets its own size only later.
    void fensterZeigen(QWidget *form, QSize mass = {}, bool maximiert = false);
    /// All windows that are not minimised, side by side or one below the other.
    void anordnen(Qt::Orientation richtung);
    /// These windows side by side, over all others.
    void nebeneinander(const QList<QMdiSubWindow *> &fenster) { anordnen(Qt::Horizontal, fenster); }
    void ueberlappen();

signals:
    /// The user gave a window this size, in pixels, or maximised it.
    void fenstermass(QSize normal, bool maximiert);

protected:
    bool eventFilter(QObject *quelle, QEvent *ereignis) override;
    void resizeEvent(QResizeEvent *ereignis) override;
    void paintEvent(QPaintEvent *ereignis) override;
    void changeEvent(QEvent *ereignis) override;

private:
    /// Where the program has put a window that the user has not moved since.
    struct Lage
    {
        int versatz; ///< pixels from the corner of the area
        QSize mass;
        QRect gesetzt;
    };
    void grundFaerben();
    void anordnen(Qt::Orientation richtung, const QList<QMdiSubWindow *> &fenster);
    void einpassen(QMdiSubWindow *fenster, Lage &lage);

    QHash<QMdiSubWindow *, Lage> lagen_;
    bool selbst_ = false; ///< a change of size is the program's own
    QPixmap bild_, gemalt_;
    QObject kontext_; ///< the windows outlive the members above; with this, gone first, they no longer report to them
};
