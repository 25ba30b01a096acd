#pragma once

#include <QDateTime>

class Clock;

// How long the process has run: from the first touch of shared(), or from the last start().
class SessionTracker {
public:
    static SessionTracker &shared();

    explicit SessionTracker(const Clock &clock);

    void start();
    // Whole seconds since the start, truncated toward zero.
    qint64 sessionDuration() const;

private:
    const Clock &m_clock;
    QDateTime m_startTime;
};
