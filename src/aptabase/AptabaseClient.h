#pragma once

#include "aptabase/AnyCodableValue.h"
#include "aptabase/EnvironmentInfo.h"
#include "aptabase/InitOptions.h"

#include <QDateTime>
#include <QObject>
#include <QString>

#include <functional>
#include <optional>

class EventDispatcher;
class QNetworkAccessManager;
class Timer;
class TimerFactory;

// The core of the analytics client: stamps events with a session and keeps the flush timer.
class AptabaseClient : public QObject {
    Q_OBJECT
public:
    using Clock = std::function<QDateTime()>;

    static constexpr const char *sdkVersion = "zasuzil@0.3.11";
    static constexpr double sessionTimeout = 3600.0;

    // `session`, `clock` and `timers` default to a transport of its own, the system clock
    // and Qt's timers.
    AptabaseClient(const QString &appKey, const QString &baseUrl, const EnvironmentInfo &env,
                   const std::optional<InitOptions> &options,
                   QNetworkAccessManager *session = nullptr, Clock clock = {},
                   TimerFactory *timers = nullptr, QObject *parent = nullptr);
    ~AptabaseClient() override;

    void trackEvent(const QString &eventName, const CodableProps &props = {});
    // Flushes once and (re)starts the repeating flush timer.
    void startPolling();
    // Stops the timer and starts one last flush that nothing waits for.
    void stopPolling();
    // Returns at once; `done` runs when the flush has finished.
    void flush(std::function<void()> done = {});

    const QString &sessionId() const { return m_sessionId; }
    double flushInterval() const { return m_flushInterval; }
    bool isPolling() const { return m_flushTimer != nullptr; }
    EventDispatcher &dispatcher() const { return *m_dispatcher; }

private:
    void timerFlushSync();
    QString newSessionId() const;

    Clock m_clock;
    QString m_sessionId;
    QDateTime m_lastTouched;
    TimerFactory &m_timers;
    Timer *m_flushTimer = nullptr;
    EventDispatcher *m_dispatcher;
    EnvironmentInfo m_env;
    double m_flushInterval;
    bool m_pauseFlushTimer = false;
};
