#include "core/guard/DefaultFileMonitor.h"

#include "foundation/Timer.h"
#include "foundation/TimerFactory.h"
#include "platform/HandlerChangeWatcher.h"

DefaultFileMonitor::DefaultFileMonitor(std::unique_ptr<HandlerChangeWatcher> watcher,
                                       TimerFactory &timers, QStringList schemes, QObject *parent)
    : QObject(parent), m_watcher(std::move(watcher)), m_settle(timers.createTimer(this)),
      m_schemes(std::move(schemes))
{
    connect(m_watcher.get(), &HandlerChangeWatcher::touched, this, &DefaultFileMonitor::touched);
    connect(m_settle, &Timer::timeout, this, &DefaultFileMonitor::settled);
}

DefaultFileMonitor::~DefaultFileMonitor() = default;

void DefaultFileMonitor::watch(const QStringList &identifiers)
{
    if (isWatching() && identifiers == m_identifiers)
        return;
    m_identifiers = identifiers;
    m_watcher->watch(m_schemes, m_identifiers);
    m_digest = m_watcher->contentsDigest();
}

void DefaultFileMonitor::stop()
{
    m_settle->stop();
    m_watcher->stop();
    m_identifiers.clear();
    m_digest.clear();
}

bool DefaultFileMonitor::isWatching() const
{
    return m_watcher->isWatching();
}

// The first event of a burst starts the delay; the others fall into it.
void DefaultFileMonitor::touched()
{
    if (isWatching() && !m_settle->isActive())
        m_settle->start(settleDelay, false);
}

void DefaultFileMonitor::settled()
{
    // A file replaced by renaming loses its watch, and a directory made since may now hold
    // a deciding file: watch again.
    m_watcher->watch(m_schemes, m_identifiers);
    const QByteArray digest = m_watcher->contentsDigest();
    if (digest == m_digest)
        return;
    m_digest = digest;
    Q_EMIT changed();
}
