#pragma once

#include "foundation/Timer.h"

#include <QObject>
#include <QPointer>
#include <QString>

#include <chrono>
#include <functional>
#include <optional>

class SettingsStore;
class TimerFactory;

// Fires the automatic update check once shortly after a configuration and then at a fixed
// interval, as two settings say. Reconfigures itself when either setting changes; each
// configuration restarts both clocks.
class UpdateScheduler : public QObject {
    Q_OBJECT
public:
    struct Config {
        bool checkAtStartup = true;
        QString intervalRaw; // as stored, not resolved
        friend bool operator==(const Config &, const Config &) = default;
    };

    static constexpr std::chrono::seconds startupCheckDelay{120};

    // `automaticCheck` runs at each firing.
    UpdateScheduler(SettingsStore &settings, TimerFactory &timers,
                    std::function<void()> automaticCheck, QObject *parent = nullptr);

    Config currentSchedulerConfig() const;
    void configureUpdateScheduler();
    // To be called after every write to the settings store; acts only when one of the two
    // settings differs from the last configuration.
    void userDefaultsDidChange();
    // Cancels the pending startup check and stops the interval timer.
    void stop();

    const std::optional<Config> &lastSchedulerConfig() const { return m_lastSchedulerConfig; }
    Timer *updateTimer() const { return m_updateTimer; }
    Timer *startupCheckWorkItem() const { return m_startupCheckWorkItem; }

private:
    void cancelStartupCheck();
    void invalidateUpdateTimer();

    SettingsStore &m_settings;
    TimerFactory &m_timers;
    std::function<void()> m_automaticCheck;
    QPointer<Timer> m_updateTimer;
    QPointer<Timer> m_startupCheckWorkItem;
    std::optional<Config> m_lastSchedulerConfig;
};
