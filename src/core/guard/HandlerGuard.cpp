#include "core/guard/HandlerGuard.h"

#include "core/guard/HandlerDetector.h"
#include "core/support/Clock.h"
#include "core/support/Console.h"
#include "core/support/Timer.h"
#include "core/support/TimerFactory.h"
#include "platform/SystemEvents.h"

#include <chrono>

using namespace std::chrono_literals;

HandlerGuard::HandlerGuard(const GuardProfile &profile, const GuardEnvironment &environment,
                           QObject *parent)
    : QObject(parent), m_profile(profile), m_env(environment),
      m_settings(profile, *environment.settings), m_resolver(profile, *environment.handlers)
{
    setDefaultsIfNeeded();
    detectInstalled();
    updateCurrentDefault();
    setupSystemEventObservers();
    if (checkOnLogin() && wasLaunchedAtLogin()) {
        Console::line(m_profile.launchedAtLoginLine);
        m_env.timers->singleShot(2000ms, this, [this] { check(); });
    }
    if (monitoringEnabled())
        startMonitoring();
}

HandlerGuard::~HandlerGuard()
{
    stopMonitoring();
    if (m_pollingTimer)
        m_pollingTimer->stop();
}

void HandlerGuard::setDefaultsIfNeeded()
{
    if (m_settings.hasLaunchedBefore())
        return;
    setMonitoringEnabled(true);
    setCheckInterval(CheckInterval::tenMinutes);
    setSnoozeDuration(SnoozeDuration::oneHour);
    setCheckOnWake(true);
    setCheckOnUnlock(true);
    setCheckOnLogin(true);
    m_settings.markLaunched();
    Console::line(m_profile.firstLaunchLine);
}

// --- settings ---------------------------------------------------------------------------

void HandlerGuard::setTarget(const std::optional<HandlerRecord> &record)
{
    if (m_settings.setTarget(record))
        trackTargetSet(record->name);
    Q_EMIT objectWillChange();
}

void HandlerGuard::setMonitoringEnabled(bool enabled)
{
    m_settings.setMonitoringEnabled(enabled);
    trackMonitoringToggled(enabled);
    if (enabled)
        startMonitoring();
    else
        stopMonitoring();
    Q_EMIT objectWillChange();
}

void HandlerGuard::setCheckInterval(CheckInterval interval)
{
    m_settings.setCheckInterval(interval);
    trackSettingChanged(m_profile.settingsPrefix + u"_check_interval", interval.rawValue());
    if (monitoringEnabled())
        restartMonitoring();
    Q_EMIT objectWillChange();
}

void HandlerGuard::setSnoozeDuration(SnoozeDuration duration)
{
    m_settings.setSnoozeDuration(duration);
    trackSettingChanged(m_profile.settingsPrefix + u"_snooze_duration", duration.rawValue());
    Q_EMIT objectWillChange();
}

namespace {
QString boolText(bool value)
{
    return value ? QStringLiteral("true") : QStringLiteral("false");
}
} // namespace

void HandlerGuard::setCheckOnWake(bool on)
{
    m_settings.setCheckOnWake(on);
    trackSettingChanged(m_profile.settingsPrefix + u"_check_on_wake", boolText(on));
    Q_EMIT objectWillChange();
}

void HandlerGuard::setCheckOnUnlock(bool on)
{
    m_settings.setCheckOnUnlock(on);
    trackSettingChanged(m_profile.settingsPrefix + u"_check_on_unlock", boolText(on));
    Q_EMIT objectWillChange();
}

void HandlerGuard::setCheckOnLogin(bool on)
{
    m_settings.setCheckOnLogin(on);
    trackSettingChanged(m_profile.settingsPrefix + u"_check_on_login", boolText(on));
    Q_EMIT objectWillChange();
}

void HandlerGuard::setChangeCount(qint64 count)
{
    m_settings.setChangeCount(count);
    Q_EMIT objectWillChange();
}

void HandlerGuard::setLastChange(const std::optional<QDateTime> &when)
{
    m_settings.setLastChange(when);
    Q_EMIT objectWillChange();
}

// --- resets and refresh -------------------------------------------------------------------

void HandlerGuard::resetCounters()
{
    setChangeCount(0);
    setLastChange(std::nullopt);
    Console::line(m_profile.countersResetLine);
}

void HandlerGuard::resetToDefaults()
{
    setMonitoringEnabled(true);
    setCheckInterval(CheckInterval::tenMinutes);
    setSnoozeDuration(SnoozeDuration::oneHour);
    setCheckOnWake(true);
    setCheckOnUnlock(true);
    setCheckOnLogin(true);
    resetSnooze();
    resetCounters();
}

void HandlerGuard::refresh()
{
    detectInstalled();
    updateCurrentDefault();
}

void HandlerGuard::updateCurrentDefault()
{
    QList<HandlerRecord> installed = m_installed;
    const auto current = m_resolver.resolve(installed);
    if (installed.size() != m_installed.size())
        setInstalled(installed);
    setCurrentDefault(current);
}

void HandlerGuard::resetSnooze()
{
    m_snoozeUntil.reset();
    setSnoozed(false);
}

// --- published state ------------------------------------------------------------------------

void HandlerGuard::setInstalled(const QList<HandlerRecord> &records)
{
    m_installed = records;
    Q_EMIT objectWillChange();
}

void HandlerGuard::setCurrentDefault(const std::optional<HandlerRecord> &record)
{
    m_currentDefault = record;
    Q_EMIT objectWillChange();
}

void HandlerGuard::setSnoozed(bool snoozed)
{
    m_isSnoozed = snoozed;
    Q_EMIT objectWillChange();
}

// --- parts that come with detection, monitoring, events and telemetry -------------------------

void HandlerGuard::detectInstalled()
{
    setInstalled(HandlerDetector(m_profile, *m_env.handlers).detect());
}

void HandlerGuard::setupSystemEventObservers()
{
    if (!m_env.events)
        return;
    // The switches are read when an event arrives, so they take effect at once.
    connect(m_env.events, &SystemEvents::didWake, this, [this] {
        if (checkOnWake())
            handleSystemEvent(QStringLiteral("wake"));
    });
    connect(m_env.events, &SystemEvents::screenUnlocked, this, [this] {
        if (checkOnUnlock())
            handleSystemEvent(QStringLiteral("unlock"));
    });
}

void HandlerGuard::handleSystemEvent(const QString &type)
{
    if (m_snoozeUntil && m_env.clock->now() < *m_snoozeUntil)
        return;
    Console::line(m_profile.checkingAfterPrefix + type);
    check();
}

bool HandlerGuard::wasLaunchedAtLogin() const { return m_env.launchedAtLogin; }
void HandlerGuard::startMonitoring() {}
void HandlerGuard::stopMonitoring() {}

void HandlerGuard::restartMonitoring()
{
    stopMonitoring();
    if (monitoringEnabled())
        startMonitoring();
}

void HandlerGuard::check()
{
    updateCurrentDefault();
}

void HandlerGuard::trackTargetSet(const QString &) {}
void HandlerGuard::trackMonitoringToggled(bool) {}
void HandlerGuard::trackSettingChanged(const QString &, const QString &) {}
