#include "core/updates/UpdateScheduler.h"

#include "core/settings/SettingsStore.h"
#include "core/settings/SettingsTable.h"
#include "core/updates/UpdateCheckInterval.h"
#include "foundation/Console.h"
#include "foundation/TimerFactory.h"

namespace {

QString boolText(bool value)
{
    return value ? QStringLiteral("true") : QStringLiteral("false");
}

} // namespace

UpdateScheduler::UpdateScheduler(SettingsStore &settings, TimerFactory &timers,
                                 std::function<void()> automaticCheck, QObject *parent)
    : QObject(parent), m_settings(settings), m_timers(timers),
      m_automaticCheck(std::move(automaticCheck))
{
}

UpdateScheduler::Config UpdateScheduler::currentSchedulerConfig() const
{
    // An absent startup switch reads as on; the interval's text is not checked here.
    Config config;
    config.checkAtStartup = m_settings.value(SettingsTable::checkForUpdatesAtStartup);
    config.intervalRaw = *m_settings.value(SettingsTable::updateCheckInterval);
    return config;
}

void UpdateScheduler::configureUpdateScheduler()
{
    cancelStartupCheck();
    invalidateUpdateTimer();

    const Config config = currentSchedulerConfig();
    const UpdateCheckInterval interval =
        UpdateCheckInterval::fromRawValue(config.intervalRaw).value_or(UpdateCheckInterval::daily);
    m_lastSchedulerConfig = config;

    Console::line(QStringLiteral("🧭 UpdateScheduler config:"));
    Console::line(u"   - checkForUpdatesAtStartup = " + boolText(config.checkAtStartup));
    Console::line(u"   - updateCheckInterval(raw) = " + config.intervalRaw);
    Console::line(u"   - resolved interval        = " + interval.rawValue());

    if (config.checkAtStartup) {
        m_startupCheckWorkItem = m_timers.createTimer(this);
        connect(m_startupCheckWorkItem, &Timer::timeout, this, [this] {
            Console::line(QStringLiteral("⏱️ Startup auto update check fired (after 120s)"));
            m_automaticCheck();
        });
        Console::line(QStringLiteral("🕒 Scheduling startup auto update check in 120 seconds"));
        m_startupCheckWorkItem->start(startupCheckDelay, false);
    } else {
        Console::line(QStringLiteral("⛔️ Startup update check disabled"));
    }

    if (interval == UpdateCheckInterval::never) {
        Console::line(QStringLiteral("⛔️ Interval update checks disabled (interval = never)"));
        return;
    }
    const auto period = std::chrono::seconds(static_cast<qint64>(interval.timeInterval()));
    const QString raw = interval.rawValue();
    m_updateTimer = m_timers.createTimer(this);
    connect(m_updateTimer, &Timer::timeout, this, [this, raw] {
        Console::line(u"🔁 Interval auto update check fired (" + raw + u')');
        m_automaticCheck();
    });
    m_updateTimer->start(period, true);
    Console::line(u"✅ Interval timer scheduled every " + QString::number(period.count()) + u"s ("
                  + raw + u')');
}

void UpdateScheduler::userDefaultsDidChange()
{
    const Config config = currentSchedulerConfig();
    if (m_lastSchedulerConfig && *m_lastSchedulerConfig == config)
        return;
    Console::line(QStringLiteral(
        "⚙️ Update-related UserDefaults changed -> reconfigure update scheduler"));
    configureUpdateScheduler();
}

void UpdateScheduler::stop()
{
    cancelStartupCheck();
    invalidateUpdateTimer();
}

void UpdateScheduler::cancelStartupCheck()
{
    if (m_startupCheckWorkItem) {
        m_startupCheckWorkItem->stop();
        m_startupCheckWorkItem->deleteLater();
    }
    m_startupCheckWorkItem = nullptr;
}

void UpdateScheduler::invalidateUpdateTimer()
{
    if (m_updateTimer) {
        m_updateTimer->stop();
        m_updateTimer->deleteLater();
    }
    m_updateTimer = nullptr;
}
