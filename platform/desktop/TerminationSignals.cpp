#include "TerminationSignals.h"

#include <atomic>
#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <unistd.h>

namespace {

constexpr int terminating[] = {SIGHUP, SIGINT, SIGTERM};

// A signal handler may call few functions: this one writes one byte, which wakes the event loop.
std::atomic<int> wakeUpEnd = -1;

void wakeUp(int /*signal*/)
{
    const int savedError = errno;
    const char byte = 0;
    [[maybe_unused]] const auto written = ::write(wakeUpEnd, &byte, 1);
    errno = savedError;
}

void install(void (*handler)(int))
{
    struct sigaction action = {};
    action.sa_handler = handler;
    action.sa_flags = SA_RESTART;
    for (const int signal : terminating) {
        struct sigaction present = {};
        ::sigaction(signal, nullptr, &present);
        if (present.sa_handler != SIG_IGN) { // nohup, for one, asks to go on
            ::sigaction(signal, &action, nullptr);
        }
    }
}

} // namespace

TerminationSignals::TerminationSignals(QObject *parent)
    : QObject(parent)
{
    int ends[2];
    if (::pipe2(ends, O_CLOEXEC | O_NONBLOCK) != 0) {
        return; // the signals then end the program as they always do
    }
    wakeUpEnd = ends[1];
    m_notifier = std::make_unique<QSocketNotifier>(ends[0], QSocketNotifier::Read);
    connect(m_notifier.get(), &QSocketNotifier::activated, this, [this](QSocketDescriptor end) {
        char byte = 0;
        if (::read(end, &byte, 1) == 1) {
            Q_EMIT received();
        }
    });
    install(wakeUp);
}

TerminationSignals::~TerminationSignals()
{
    if (m_notifier) {
        install(SIG_DFL);
        ::close(wakeUpEnd.exchange(-1));
        const auto readEnd = static_cast<int>(m_notifier->socket());
        m_notifier.reset();
        ::close(readEnd);
    }
}
