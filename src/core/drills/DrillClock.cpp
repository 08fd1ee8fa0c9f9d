#include "core/drills/DrillClock.h"

#include "platform/Clock.h"

#include <algorithm>
#include <cmath>

DrillClock::DrillClock(const Clock &clock)
    : m_clock(clock)
{
}

void DrillClock::Start()
{
    if (m_running)
        return;
    m_running = true;
    m_startTime = m_clock.Now() - m_elapsed;
}

void DrillClock::Pause()
{
    m_elapsed = Elapsed();
    m_running = false;
}

void DrillClock::Reset()
{
    m_running = false;
    m_elapsed = 0;
}

double DrillClock::Elapsed() const
{
    return m_running ? m_clock.Now() - m_startTime : m_elapsed;
}

int DrillClock::WholeSeconds() const
{
    constexpr double longest = 2'000'000'000;
    return std::max(1, static_cast<int>(std::nearbyint(std::min(Elapsed(), longest))));
}
