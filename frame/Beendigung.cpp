#include "Beendigung.h"

#include <QGuiApplication>
#include <QSocketNotifier>

#ifdef Q_OS_UNIX
#include <csignal>
#include <fcntl.h>
#include <unistd.h>

namespace {

constexpr int signale[] = {SIGTERM, SIGHUP, SIGINT};
int rohr[2] = {-1, -1};

/// All that may be done inside a signal: the event loop hears of it through a pipe.
extern "C" void signalGekommen(int)
{
    const char zeichen = 1;
    [[maybe_unused]] const ssize_t geschrieben = write(rohr[1], &zeichen, 1);
}

void fangen(int signal)
{
    struct sigaction bisher = {};
    if (sigaction(signal, nullptr, &bisher) != 0 || bisher.sa_handler == SIG_IGN)
        return;
    struct sigaction neu = {};
    neu.sa_handler = signalGekommen;
    neu.sa_flags = SA_RESTART | int(SA_RESETHAND);
    sigemptyset(&neu.sa_mask);
    sigaction(signal, &neu, nullptr);
}

void loslassen(int signal)
{
    struct sigaction bisher = {};
    if (sigaction(signal, nullptr, &bisher) == 0 && bisher.sa_handler == signalGekommen)
        std::signal(signal, SIG_DFL);
}

bool rohrOeffnen()
{
    if (pipe(rohr) != 0)
        return false;
    for (const int ende : rohr) {
        fcntl(ende, F_SETFD, FD_CLOEXEC);
        fcntl(ende, F_SETFL, O_NONBLOCK);
    }
    return true;
}

} // namespace

Beendigung::Beendigung(std::function<void()> sichern) : sichern_(std::move(sichern))
{
    connect(
        qApp, &QGuiApplication::commitDataRequest, this, [this] { sichern_(); }, Qt::DirectConnection);
    if (!rohrOeffnen())
        return;
    melder_ = std::make_unique<QSocketNotifier>(rohr[0], QSocketNotifier::Read);
    connect(melder_.get(), &QSocketNotifier::activated, this, [this] {
        char zeichen;
        while (read(rohr[0], &zeichen, 1) == 1) {}
        gewuenscht();
    });
    for (const int signal : signale)
        fangen(signal);
}

Beendigung::~Beendigung()
{
    for (const int signal : signale)
        loslassen(signal);
    melder_.reset();
    for (int &ende : rohr) {
        if (ende >= 0)
            close(ende);
        ende = -1;
    }
}

#else

Beendigung::Beendigung(std::function<void()> sichern) : sichern_(std::move(sichern))
{
    connect(
        qApp, &QGuiApplication::commitDataRequest, this, [this] { sichern_(); }, Qt::DirectConnection);
}

Beendigung::~Beendigung() = default;

#endif

void Beendigung::gewuenscht()
{
    sichern_();
    // Dialogs too: every event loop ends, and what it stood for is given up.
    QCoreApplication::quit();
}
