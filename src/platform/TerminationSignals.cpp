#include "platform/TerminationSignals.h"

#include <QSocketNotifier>
#include <array>
#include <csignal>
#include <sys/socket.h>
#include <unistd.h>

namespace {

int wakeUpEnd = -1;

// A signal handler may do next to nothing: it writes a byte, and the event loop does the rest.
void WakeUp(int)
{
    const char byte = 1;
    [[maybe_unused]] const auto written = ::write(wakeUpEnd, &byte, 1);
}

constexpr std::array TerminationKinds{SIGTERM, SIGINT, SIGHUP};

} // namespace

struct TerminationSignals::State
{
    std::array<int, 2> ends{-1, -1};
    std::unique_ptr<QSocketNotifier> notifier;
};

TerminationSignals::TerminationSignals(std::function<void()> onRequest)
    : m_state(std::make_unique<State>())
{
    if (::socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0, m_state->ends.data()) != 0)
        return;
    wakeUpEnd = m_state->ends[0];
    const int readEnd = m_state->ends[1];
    m_state->notifier = std::make_unique<QSocketNotifier>(readEnd, QSocketNotifier::Read);
    QObject::connect(m_state->notifier.get(), &QSocketNotifier::activated, m_state->notifier.get(),
                     [readEnd, onRequest = std::move(onRequest)] {
                         std::array<char, 16> bytes{};
                         [[maybe_unused]] const auto count = ::read(readEnd, bytes.data(), bytes.size());
                         onRequest();
                     });
    struct sigaction action = {};
    action.sa_handler = WakeUp;
    action.sa_flags = SA_RESTART;
    for (const int kind : TerminationKinds)
        ::sigaction(kind, &action, nullptr);
}

TerminationSignals::~TerminationSignals()
{
    for (const int kind : TerminationKinds)
        std::signal(kind, SIG_DFL);
    m_state->notifier.reset();
    for (const int end : m_state->ends) {
        if (end >= 0)
            ::close(end);
    }
}
