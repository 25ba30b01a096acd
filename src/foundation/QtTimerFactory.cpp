#include "foundation/QtTimerFactory.h"

#include <QTimer>

namespace {

class QtTimer final : public Timer {
public:
    explicit QtTimer(QObject *parent) : Timer(parent), m_timer(this)
    {
        m_timer.setTimerType(Qt::PreciseTimer);
        connect(&m_timer, &QTimer::timeout, this, &Timer::timeout);
    }

    void start(std::chrono::milliseconds interval, bool repeating) override
    {
        m_timer.setSingleShot(!repeating);
        m_timer.start(interval);
    }
    void stop() override { m_timer.stop(); }
    bool isActive() const override { return m_timer.isActive(); }
    std::chrono::milliseconds interval() const override { return m_timer.intervalAsDuration(); }

private:
    QTimer m_timer;
};

} // namespace

Timer *QtTimerFactory::createTimer(QObject *parent)
{
    return new QtTimer(parent);
}
