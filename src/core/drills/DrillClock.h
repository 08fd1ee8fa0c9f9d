#pragma once

class Clock;

/// The clock of one practice session: it counts from the first key, can be paused and goes on where it was.
class DrillClock
{
public:
    explicit DrillClock(const Clock &clock);

    bool IsRunning() const { return m_running; }

    /// Starts, or goes on after a pause. A running clock just runs on.
    void Start();
    void Pause();
    /// Stopped, with nothing counted.
    void Reset();

    /// Seconds counted so far, running or paused.
    double Elapsed() const;
    /// Elapsed() as the status shows it: rounded, halves to even, and never below 1.
    int WholeSeconds() const;

private:
    const Clock &m_clock;
    double m_startTime = 0;
    double m_elapsed = 0;
    bool m_running = false;
};
