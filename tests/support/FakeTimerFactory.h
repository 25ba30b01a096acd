#pragma once

#include "foundation/TimerFactory.h"

#include <QList>
#include <QPointer>

// Timers that never fire by themselves: a test fires them.
class FakeTimer final : public Timer {
    Q_OBJECT
public:
    using Timer::Timer;

    void start(std::chrono::milliseconds interval, bool repeating) override
    {
        m_interval = interval;
        m_repeating = repeating;
        m_active = true;
        ++m_starts;
    }
    void stop() override { m_active = false; }
    bool isActive() const override { return m_active; }
    std::chrono::milliseconds interval() const override { return m_interval; }
    bool isRepeating() const { return m_repeating; }
    int starts() const { return m_starts; }

    // Fires once if active; a one-shot timer stops first, as a real one does.
    void fire()
    {
        if (!m_active)
            return;
        if (!m_repeating)
            m_active = false;
        Q_EMIT timeout();
    }

private:
    std::chrono::milliseconds m_interval{0};
    bool m_repeating = false;
    bool m_active = false;
    int m_starts = 0;
};

class FakeTimerFactory final : public TimerFactory {
public:
    Timer *createTimer(QObject *parent) override
    {
        auto *timer = new FakeTimer(parent);
        m_timers.append(timer);
        return timer;
    }

    // Timers still alive and running, oldest first.
    QList<FakeTimer *> active() const
    {
        QList<FakeTimer *> result;
        for (const auto &timer : m_timers) {
            if (timer && timer->isActive())
                result.append(timer.data());
        }
        return result;
    }

    // Active timers with this interval.
    QList<FakeTimer *> activeWithInterval(std::chrono::milliseconds interval) const
    {
        QList<FakeTimer *> result;
        for (FakeTimer *timer : active()) {
            if (timer->interval() == interval)
                result.append(timer);
        }
        return result;
    }

    // Fires every active timer of this interval once; returns how many fired.
    int fire(std::chrono::milliseconds interval)
    {
        const QList<FakeTimer *> timers = activeWithInterval(interval);
        for (FakeTimer *timer : timers)
            timer->fire();
        return static_cast<int>(timers.size());
    }

private:
    QList<QPointer<FakeTimer>> m_timers;
};
