#pragma once

#include <QObject>

#include <functional>
#include <memory>

class QSocketNotifier;

/* The system asks the program to end: SIGTERM, SIGHUP and SIGINT where there are signals, the log-out of the desktop everywhere.
   The request is handled in the event loop, whatever dialog is open; a second signal ends the process at once. */
class Beendigung : public QObject
{
public:
    /// `sichern` stores what would be lost and shows nothing: nobody may be there to answer. After a signal the program's event
    /// loops end. A signal that was ignored when the program started stays ignored.
    explicit Beendigung(std::function<void()> sichern);
    ~Beendigung() override;

private:
    void gewuenscht();

    std::function<void()> sichern_;
    std::unique_ptr<QSocketNotifier> melder_;
};
