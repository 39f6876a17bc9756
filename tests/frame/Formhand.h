#pragma once

#include <QApplication>
#include <QPointer>
#include <QTimer>
#include <QWidget>

#include <functional>

/// Works the next form of a kind that is shown modally while this lives, once. The hand must make it go.
template<typename Form>
class Formhand : public QObject
{
public:
    explicit Formhand(std::function<void(Form &)> hand)
    {
        connect(&takt_, &QTimer::timeout, this, [this, hand = std::move(hand)] {
            auto *form = qobject_cast<Form *>(QApplication::activeModalWidget());
            if (!form || !form->isVisible())
                return;
            takt_.stop();
            kam = true;
            hand(*form);
        });
        takt_.start(1);
    }

    bool kam = false;

private:
    QTimer takt_;
};
