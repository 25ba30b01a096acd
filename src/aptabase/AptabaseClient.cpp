#include "aptabase/AptabaseClient.h"

#include "aptabase/EventDispatcher.h"

#include "foundation/QtTimerFactory.h"

#include <QRandomGenerator>
#include <QTextBoundaryFinder>
#include <QtNumeric>

#include <chrono>
#include <climits>
#include <cmath>

namespace {

constexpr double debugFlushInterval = 2.0;
constexpr double releaseFlushInterval = 60.0;
constexpr quint64 randomPartRange = 100000000; // eight decimal digits
// The ingestion service refuses a longer string property, in UTF-16 code units, and with it
// the whole batch.
constexpr qsizetype maxPropertyLength = 200;

// Cuts long texts at the last character boundary within the limit (a character's code units,
// combining marks included, stay together).
CodableProps clamped(CodableProps props)
{
    for (AnyCodableValue &value : props) {
        const QString *text = value.text();
        if (!text || text->size() <= maxPropertyLength)
            continue;
        QTextBoundaryFinder characters(QTextBoundaryFinder::Grapheme, *text);
        characters.setPosition(maxPropertyLength);
        if (!characters.isAtBoundary())
            characters.toPreviousBoundary();
        value = AnyCodableValue::string(text->left(characters.position()));
    }
    return props;
}

TimerFactory &qtTimers()
{
    static QtTimerFactory timers;
    return timers;
}

} // namespace

AptabaseClient::AptabaseClient(const QString &appKey, const QString &baseUrl,
                               const EnvironmentInfo &env,
                               const std::optional<InitOptions> &options,
                               QNetworkAccessManager *session, Clock clock, TimerFactory *timers,
                               QObject *parent)
    : QObject(parent), m_clock(clock ? std::move(clock) : Clock(&QDateTime::currentDateTimeUtc)),
      m_timers(timers ? *timers : qtTimers()),
      m_dispatcher(new EventDispatcher(appKey, baseUrl, env, session, this)), m_env(env)
{
    m_sessionId = newSessionId();
    m_lastTouched = m_clock();
    if (options && options->flushInterval())
        m_flushInterval = *options->flushInterval();
    else
        m_flushInterval = env.isDebug ? debugFlushInterval : releaseFlushInterval;
}

AptabaseClient::~AptabaseClient() = default;

QString AptabaseClient::newSessionId() const
{
    const qint64 seconds = m_clock().toSecsSinceEpoch();
    Q_ASSERT(seconds >= 0);
    quint64 id = 0;
    if (qMulOverflow(quint64(seconds), randomPartRange, &id)
        || qAddOverflow(id, QRandomGenerator::global()->bounded(randomPartRange), &id))
        qFatal("Aptabase: session id overflow");
    return QString::number(id);
}

void AptabaseClient::trackEvent(const QString &eventName, const CodableProps &props)
{
    const QDateTime now = m_clock();
    if (m_lastTouched.msecsTo(now) > qint64(sessionTimeout * 1000))
        m_sessionId = newSessionId();
    m_lastTouched = now;

    Event event;
    event.timestamp = m_clock();
    event.sessionId = m_sessionId;
    event.eventName = eventName;
    event.systemProps.isDebug = m_env.isDebug;
    event.systemProps.locale = m_env.locale;
    event.systemProps.osName = m_env.osName;
    event.systemProps.osVersion = m_env.osVersion;
    event.systemProps.appVersion = m_env.appVersion;
    event.systemProps.appBuildNumber = m_env.appBuildNumber;
    event.systemProps.sdkVersion = QString::fromLatin1(sdkVersion);
    event.systemProps.deviceModel = m_env.deviceModel;
    event.props = clamped(props);
    m_dispatcher->enqueue(event);
}

void AptabaseClient::startPolling()
{
    stopPolling();
    m_flushTimer = m_timers.createTimer(this);
    const double milliseconds = std::round(m_flushInterval * 1000);
    connect(m_flushTimer, &Timer::timeout, this, &AptabaseClient::timerFlushSync);
    m_flushTimer->start(
        std::chrono::milliseconds(qint64(qBound(1.0, milliseconds, double(INT_MAX)))), true);
}

void AptabaseClient::stopPolling()
{
    if (m_flushTimer) {
        m_flushTimer->stop();
        m_flushTimer->deleteLater();
        m_flushTimer = nullptr;
    }
    flush();
}

void AptabaseClient::flush(std::function<void()> done)
{
    m_dispatcher->flush(std::move(done));
}

void AptabaseClient::timerFlushSync()
{
    // A tick during a running timer flush is skipped, not deferred.
    if (m_pauseFlushTimer)
        return;
    m_pauseFlushTimer = true;
    flush([this] { m_pauseFlushTimer = false; });
}
