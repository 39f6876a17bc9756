#pragma once

#include "Druckseiten.h"

#include <QWidget>

/* A page on a sheet of paper, as large as the widget allows. */
class Seitenvorschau : public QWidget
{
    Q_OBJECT

public:
    explicit Seitenvorschau(QWidget *eltern = nullptr);

    /// Shows the first of these pages; without one an empty sheet of A4.
    void zeigen(Druckseiten seiten);
    /// Number of the page shown, counted from 0.
    int seite() const { return seite_; }
    /// Shows another page; beyond an end that end's.
    void setSeite(int seite);
    const Druckseiten &seiten() const { return seiten_; }
    QSize sizeHint() const override { return {340, 480}; }

signals:
    /// Other pages, or another one of them.
    void gewechselt();

protected:
    void paintEvent(QPaintEvent *) override;
    /// A notch of the wheel turns a page.
    void wheelEvent(QWheelEvent *ereignis) override;

private:
    Druckseiten seiten_;
    int seite_ = 0;
    int gedreht_ = 0; ///< of the wheel, since the last page
};
