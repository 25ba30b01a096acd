#include "core/guard/ChangeTransaction.h"

#include "core/guard/GuardProfile.h"
#include "foundation/Console.h"
#include "foundation/Timer.h"
#include "foundation/TimerFactory.h"
#include "platform/HandlerDatabase.h"

#include <QMetaObject>

#include <chrono>

using namespace std::chrono_literals;

namespace {
constexpr int maxPolls = 60;
constexpr std::chrono::milliseconds pollInterval = 1000ms;
} // namespace

ChangeTransaction::ChangeTransaction(const GuardProfile &profile, HandlerDatabase &handlers,
                                     TimerFactory &timers, DefaultReader lastRead,
                                     DefaultReader read, QObject *parent)
    : QObject(parent), m_profile(profile), m_handlers(handlers), m_lastRead(std::move(lastRead)),
      m_read(std::move(read)), m_timer(timers.createTimer(this))
{
    connect(m_timer, &Timer::timeout, this, &ChangeTransaction::poll);
}

ChangeTransaction::~ChangeTransaction()
{
    m_timer->stop();
    // A write under way uses the handler database and hands back to this object.
    m_writer.waitForDone();
}

void ChangeTransaction::start(const HandlerRecord &target)
{
    m_writer.start([this, target] { write(target); });
}

// On the worker: touches nothing but the database and the console, then hands back.
void ChangeTransaction::write(const HandlerRecord &target)
{
    const QStringList &schemes = m_profile.settingSchemes;
    QStringList statuses;
    for (qsizetype i = 0; i < schemes.size(); ++i) {
        const int status = m_handlers.setDefaultHandler(schemes.at(i), target.bundleIdentifier);
        statuses.append(m_profile.settingSchemeLabels.value(i, schemes.at(i)) + u": "
                        + QString::number(status));
    }
    Console::line(u"   " + statuses.join(u", "));
    QMetaObject::invokeMethod(
        this, [this, target] { watch(target); }, Qt::QueuedConnection);
}

void ChangeTransaction::watch(const HandlerRecord &target)
{
    m_timer->stop();
    Console::line(m_profile.startingPollingLine);
    m_pollCount = 0;
    m_target = target;
    m_previous = m_lastRead();
    // Not held back by an open alert: the change-back answer is watched while further
    // alerts are up.
    m_timer->start(pollInterval, true);
}

// One read of the system per poll.
void ChangeTransaction::poll()
{
    ++m_pollCount;
    const HandlerRecord target = *m_target;
    const std::optional<HandlerRecord> current = m_read();
    Console::line(m_profile.pollPrefix + QString::number(m_pollCount) + u": "
                  + (current ? current->bundleIdentifier : QStringLiteral("none")) + u" vs "
                  + target.bundleIdentifier);
    if (current && current->bundleIdentifier == target.bundleIdentifier) {
        Console::line(m_profile.matchLine);
        m_timer->stop();
        if (m_previous && m_previous->bundleIdentifier != target.bundleIdentifier)
            Q_EMIT switched(*m_previous, target);
        Q_EMIT ended();
        Console::line(m_profile.setToPrefix + target.name);
        return;
    }
    if (m_pollCount >= maxPolls) {
        Console::line(m_profile.timeoutLine);
        m_timer->stop();
        Q_EMIT ended();
    }
}

void ChangeTransaction::cancel()
{
    Console::line(m_profile.cancelledLine);
    m_timer->stop();
    Q_EMIT ended();
}

bool ChangeTransaction::isWatching() const
{
    return m_timer->isActive();
}
