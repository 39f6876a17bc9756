#pragma once

#include "Uebersichtsmodell.h"
#include "Vorschaulager.h"

#include <QElapsedTimer>
#include <QListView>
#include <QTimer>

#include <utility>

/* A page of thumbnails of equal size, with the plant's name below each. Places are worked out, not kept: only what is seen costs
   anything. A list view for what it tells screen readers; it lays out and paints by itself. Sizes are pixels of the screen. */
class Kachelansicht : public QListView
{
    Q_OBJECT

public:
    static constexpr int kleinste = 80, groesste = 320, voreinstellung = 176; ///< width of a thumbnail's place

    Kachelansicht(Uebersichtsmodell &modell, Vorschaulager &lager, QWidget *eltern);

    int kachel() const { return kachel_; }
    /// What stands in the middle stays in sight.
    void setKachel(int breite);
    int spalten() const { return spalten_; }
    /// First and last row of which something is seen; 0, -1: none.
    std::pair<int, int> sichtbar() const;

    QRect visualRect(const QModelIndex &index) const override;
    QModelIndex indexAt(const QPoint &punkt) const override;
    void scrollTo(const QModelIndex &index, ScrollHint art = EnsureVisible) override;
    void doItemsLayout() override;
    void keyboardSearch(const QString &suche) override;

signals:
    /// Clicked, or Enter pressed on it.
    void gewaehlt(const QModelIndex &index);
    /// Ctrl and wheel, + or -: other sizes are wanted.
    void groesseGewuenscht(int schritte);

protected:
    int horizontalOffset() const override { return 0; }
    int verticalOffset() const override;
    QModelIndex moveCursor(CursorAction weg, Qt::KeyboardModifiers tasten) override;
    void setSelection(const QRect &rahmen, QItemSelectionModel::SelectionFlags art) override;
    QRegion visualRegionForSelection(const QItemSelection &auswahl) const override;
    void updateGeometries() override;
    void scrollContentsBy(int dx, int dy) override;
    void paintEvent(QPaintEvent *ereignis) override;
    void changeEvent(QEvent *ereignis) override;
    void keyPressEvent(QKeyEvent *ereignis) override;
    void mousePressEvent(QMouseEvent *ereignis) override;
    void mouseMoveEvent(QMouseEvent *ereignis) override;
    void mouseReleaseEvent(QMouseEvent *ereignis) override;
    void leaveEvent(QEvent *ereignis) override;
    void wheelEvent(QWheelEvent *ereignis) override;

private:
    int zeilen() const { return (modell_.rowCount() + spalten_ - 1) / spalten_; }
    QRect ort(int zeile) const;
    QSize platz() const { return {kachel_, kachel_ * 3 / 4}; } ///< of a thumbnail: the proportions of the strip's
    QSize kasten() const;
    void anfordern();
    void malen(QPainter &maler, int zeile) const;
    const Vorschaulager::Eintrag *bild(int zeile) const;
    void schweben(int zeile);

    Uebersichtsmodell &modell_;
    Vorschaulager &lager_;
    QTimer anforderung_;
    QElapsedTimer suchuhr_;
    QString suche_;
    int kachel_ = voreinstellung, spalten_ = 1, zeilenhoehe_ = 1;
    double spaltenbreite_ = 1;
    int anker_ = -1; ///< row that is to stay in sight while the layout changes
    int unterMaus_ = -1, gedrueckt_ = -1;
    int radrest_ = 0; ///< turns of the wheel too small for a step, eighths of a degree
};
