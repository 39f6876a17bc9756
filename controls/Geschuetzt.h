#pragma once

#include "store/Fehler.h"

#include <QMessageBox>
#include <QPointer>
#include <QWidget>

#include <utility>

/* Errors that no rule covers end at the event handler: a message box says what happened, the handler ends, the program goes on. */

inline constexpr QStringView programmtitel = u"Flox-Demo";

inline void fehlerZeigen(QWidget *fenster, const QString &text)
{
    QMessageBox::critical(fenster, programmtitel.toString(), text);
}

/// Runs `handlung`; true when it came to its end.
template<typename Handlung>
bool geschuetztAusfuehren(QWidget *fenster, Handlung &&handlung)
{
    const QPointer<QWidget> eltern(fenster);
    try {
        handlung();
        return true;
    } catch (const Fehler &fehler) {
        fehlerZeigen(eltern, fehler.text());
    } catch (const std::bad_alloc &) {
        fehlerZeigen(eltern, QStringLiteral("Der Arbeitsspeicher reicht nicht aus."));
    }
    return false;
}

/// A handler for a signal that cannot let an error out.
template<typename Handlung>
auto geschuetzt(QWidget *fenster, Handlung handlung)
{
    return [fenster = QPointer<QWidget>(fenster), handlung = std::move(handlung)]() mutable { geschuetztAusfuehren(fenster, handlung); };
}
