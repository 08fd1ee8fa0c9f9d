#pragma once

#include <functional>
#include <memory>

/// Tells the program that the system asks it to end (on Unix SIGTERM, SIGINT and SIGHUP), in its own event
/// loop, so that windows can store what they hold. One instance at a time.
class TerminationSignals
{
public:
    explicit TerminationSignals(std::function<void()> onRequest);
    ~TerminationSignals();

private:
    struct State;
    std::unique_ptr<State> m_state;
};
