#pragma once

#include "core/support/Clock.h"

// A clock that stands still until a test moves it.
class FakeClock final : public Clock {
public:
    explicit FakeClock(QDateTime start = QDateTime(QDate(2026, 3, 14), QTime(10, 0, 0)))
        : m_now(std::move(start))
    {
    }

    QDateTime now() const override { return m_now; }
    void set(const QDateTime &when) { m_now = when; }
    void advance(double seconds) { m_now = m_now.addMSecs(static_cast<qint64>(seconds * 1000)); }

private:
    QDateTime m_now;
};
