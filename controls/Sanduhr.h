#pragma once

#include <QPointer>
#include <QWidget>

/// The wait cursor over a window for as long as this lives.
class Sanduhr
{
public:
    explicit Sanduhr(QWidget *fenster) : fenster_(fenster) { fenster_->setCursor(Qt::WaitCursor); }
    ~Sanduhr()
    {
        if (fenster_)
            fenster_->unsetCursor();
    }
    Sanduhr(const Sanduhr &) = delete;
    Sanduhr &operator=(const Sanduhr &) = delete;

private:
    QPointer<QWidget> fenster_;
};
