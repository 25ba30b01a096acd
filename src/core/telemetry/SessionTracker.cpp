#include "core/telemetry/SessionTracker.h"

#include "core/support/SystemClock.h"

SessionTracker &SessionTracker::shared()
{
    static const SystemClock clock;
    static SessionTracker tracker(clock);
    return tracker;
}

SessionTracker::SessionTracker(const Clock &clock) : m_clock(clock), m_startTime(clock.now()) {}

void SessionTracker::start()
{
    m_startTime = m_clock.now();
}

qint64 SessionTracker::sessionDuration() const
{
    // Milliseconds divided by 1000 truncate toward zero, also for a clock set back.
    return m_startTime.msecsTo(m_clock.now()) / 1000;
}
