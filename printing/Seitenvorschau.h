#pragma once

#include "Druckseiten.h"

#include <QWidget>

/* A page on a sheet of paper, as large as the widget allows. */
class Seitenvorschau : public QWidget
{
public:
    explicit Seitenvorschau(QWidget *eltern = nullptr);

    /// Shows the first of these pages; without one an empty sheet of A4.
    void zeigen(Druckseiten seiten);
    const Druckseiten &seiten() const { return seiten_; }
    QSize sizeHint() const override { return {340, 480}; }

protected:
    void paintEvent(QPaintEvent *) override;

private:
    Druckseiten seiten_;
};
