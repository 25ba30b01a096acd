#include "core/guard/HandlerGuard.h"

#include "core/changelog/LogManager.h"
#include "core/guard/DefaultFileMonitor.h"
#include "core/guard/HandlerDetector.h"
#include "core/i18n/TextLookup.h"
#include "core/support/CheckedMath.h"
#include "core/support/Clock.h"
#include "core/support/TextFormat.h"
#include "core/telemetry/Telemetry.h"
#include "foundation/Console.h"
#include "foundation/Timer.h"
#include "foundation/TimerFactory.h"
#include "platform/HandlerChangeWatcher.h"
#include "platform/HandlerDatabase.h"
#include "platform/ModalPrompter.h"
#include "platform/SystemEvents.h"

#include <QPointer>

#include <chrono>

using namespace std::chrono_literals;

HandlerGuard::HandlerGuard(const GuardProfile &profile, const GuardEnvironment &environment,
                           QObject *parent)
    : QObject(parent), m_profile(profile), m_env(environment),
      m_settings(profile, *environment.settings), m_resolver(profile, *environment.handlers),
      m_change(new ChangeTransaction(
          profile, *environment.handlers, *environment.timers, [this] { return m_currentDefault; },
          [this] {
              updateCurrentDefault();
              return m_currentDefault;
          },
          this))
{
    connect(m_change, &ChangeTransaction::switched, this,
            [this](const HandlerRecord &from, const HandlerRecord &to) {
                recordChange(from, to, false);
            });
    connect(m_change, &ChangeTransaction::ended, this, &HandlerGuard::endChange);
    if (m_env.alerts)
        connect(m_env.alerts, &ModalPrompter::presentingChanged, this,
                &HandlerGuard::alertsPresentingChanged);
    if (m_env.changeWatchers) {
        m_defaultFiles = new DefaultFileMonitor(m_env.changeWatchers(), *m_env.timers,
                                                m_profile.resolutionSchemes, this);
        connect(m_defaultFiles, &DefaultFileMonitor::changed, this,
                &HandlerGuard::defaultFilesChanged);
    }
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
}

void HandlerGuard::setDefaultsIfNeeded()
{
    if (m_settings.hasLaunchedBefore())
        return;
    writeFirstLaunchValues();
    m_settings.markLaunched();
    Console::line(m_profile.firstLaunchLine);
}

// --- settings ---------------------------------------------------------------------------

void HandlerGuard::setTarget(const std::optional<HandlerRecord> &record)
{
    if (m_settings.setTarget(record)) {
        if (isBrowser())
            m_env.telemetry->trackBrowserSet(record->name);
        else
            m_env.telemetry->trackEmailClientSet(record->name);
    }
    followDefaultFiles();
    Q_EMIT objectWillChange();
}

void HandlerGuard::setMonitoringEnabled(bool enabled)
{
    m_settings.setMonitoringEnabled(enabled);
    m_env.telemetry->trackMonitoringToggled(m_profile.telemetryType, enabled);
    if (enabled)
        startMonitoring();
    else
        stopMonitoring();
    Q_EMIT objectWillChange();
}

void HandlerGuard::setCheckInterval(CheckInterval interval)
{
    m_settings.setCheckInterval(interval);
    trackSetting(u"_check_interval", interval.rawValue());
    if (monitoringEnabled())
        restartMonitoring();
    Q_EMIT objectWillChange();
}

void HandlerGuard::setSnoozeDuration(SnoozeDuration duration)
{
    m_settings.setSnoozeDuration(duration);
    trackSetting(u"_snooze_duration", duration.rawValue());
    Q_EMIT objectWillChange();
}

// Settings are reported under the guard's prefix: "browser_check_interval".
void HandlerGuard::trackSetting(QStringView name, const QString &value) const
{
    m_env.telemetry->trackSettingsChanged(m_profile.settingsPrefix + name, value);
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
    trackSetting(u"_check_on_wake", boolText(on));
    Q_EMIT objectWillChange();
}

void HandlerGuard::setCheckOnUnlock(bool on)
{
    m_settings.setCheckOnUnlock(on);
    trackSetting(u"_check_on_unlock", boolText(on));
    Q_EMIT objectWillChange();
}

void HandlerGuard::setCheckOnLogin(bool on)
{
    m_settings.setCheckOnLogin(on);
    trackSetting(u"_check_on_login", boolText(on));
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

// Through the setters, with all their effects: telemetry, and monitoring started twice.
void HandlerGuard::writeFirstLaunchValues()
{
    const SettingsTable::GuardKeys &keys = m_profile.keys;
    setMonitoringEnabled(*keys.monitoringEnabled.firstLaunch);
    setCheckInterval(
        *CheckInterval::fromRawValue(QLatin1StringView(keys.checkInterval.firstLaunch)));
    setSnoozeDuration(
        *SnoozeDuration::fromRawValue(QLatin1StringView(keys.snoozeDuration.firstLaunch)));
    setCheckOnWake(*keys.checkOnWake.firstLaunch);
    setCheckOnUnlock(*keys.checkOnUnlock.firstLaunch);
    setCheckOnLogin(*keys.checkOnLogin.firstLaunch);
}

void HandlerGuard::resetToDefaults()
{
    writeFirstLaunchValues();
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
    followDefaultFiles();
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
    if (snoozeRuns())
        return;
    Console::line(m_profile.checkingAfterPrefix + type);
    check();
}

bool HandlerGuard::wasLaunchedAtLogin() const
{
    return m_env.launchedAtLogin;
}

// --- monitoring -------------------------------------------------------------------------------

void HandlerGuard::startMonitoring()
{
    if (checkInterval() == CheckInterval::none)
        return;
    stopMonitoring();
    check();
    const double seconds = checkInterval().timeInterval();
    if (seconds <= 0)
        return;
    if (!m_monitoringTimer) {
        m_monitoringTimer = m_env.timers->createTimer(this);
        connect(m_monitoringTimer, &Timer::timeout, this, &HandlerGuard::monitoringTimeout);
    }
    m_monitoringTimer->start(std::chrono::milliseconds(qRound64(seconds * 1000)), true);
    followDefaultFiles();
}

void HandlerGuard::stopMonitoring()
{
    if (m_monitoringTimer)
        m_monitoringTimer->stop();
    if (m_defaultFiles)
        m_defaultFiles->stop();
    m_tickMissed = false;
}

void HandlerGuard::restartMonitoring()
{
    stopMonitoring();
    if (monitoringEnabled())
        startMonitoring();
}

// A modal alert holds the monitoring tick back (so alerts from this path never stack);
// one tick missed meanwhile runs when the alert is gone.
void HandlerGuard::monitoringTimeout()
{
    if (m_env.alerts && m_env.alerts->isPresenting()) {
        m_tickMissed = true;
        return;
    }
    timerFired();
}

// The answer may have started a change back; until it has ended, the tick would find the
// old default, count it and alert once more.
void HandlerGuard::alertsPresentingChanged(bool presenting)
{
    if (!presenting && !m_isChanging)
        runMissedTick();
}

void HandlerGuard::runMissedTick()
{
    if (!m_tickMissed || (m_env.alerts && m_env.alerts->isPresenting()))
        return;
    m_tickMissed = false; // stopping the monitoring drops it too
    timerFired();
}

void HandlerGuard::timerFired()
{
    if (m_snoozeUntil) {
        if (snoozeRuns())
            return;
        m_snoozeUntil.reset();
        setSnoozed(false);
    }
    check();
}

// While the interval runs, the files that decide the default are watched: those of the
// current default's and the target's entries among them.
void HandlerGuard::followDefaultFiles()
{
    if (!m_defaultFiles || !m_monitoringTimer || !m_monitoringTimer->isActive())
        return;
    QStringList identifiers;
    for (const auto &record : {m_currentDefault, target()}) {
        if (record && !identifiers.contains(record->bundleIdentifier))
            identifiers.append(record->bundleIdentifier);
    }
    m_defaultFiles->watch(identifiers);
}

// A changed file runs the tick's check at once, under the tick's conditions, and the
// interval starts again. One that comes while snoozed, while an alert is up or while our
// own change is being made is dropped: the user chose to keep it, the alert is already
// about it, or the change made it.
void HandlerGuard::defaultFilesChanged()
{
    if (!m_monitoringTimer || !m_monitoringTimer->isActive() || m_isChanging || snoozeRuns())
        return;
    if (m_env.alerts && m_env.alerts->isPresenting())
        return;
    m_monitoringTimer->start(m_monitoringTimer->interval(), true);
    timerFired();
}

bool HandlerGuard::snoozeRuns() const
{
    return m_snoozeUntil && m_env.clock->now() < *m_snoozeUntil;
}

void HandlerGuard::check()
{
    const std::optional<HandlerRecord> previous = m_currentDefault;
    updateCurrentDefault();
    const auto target = this->target();
    if (!target)
        return;
    const std::optional<HandlerRecord> current = m_currentDefault;
    if (!current)
        return;
    if (!monitoringEnabled())
        return;
    if (current->bundleIdentifier == target->bundleIdentifier)
        return;
    // No test of whether the default changed since the last check: a default that stays
    // away counts and alerts on every check; the snooze after "keep" spaces them out.
    if (previous)
        recordChange(*previous, *current, true);
    showChangedAlert(*current, *target);
}

void HandlerGuard::recordChange(const HandlerRecord &from, const HandlerRecord &to, bool autoFix)
{
    if (isBrowser()) {
        if (m_env.log)
            m_env.log->logBrowserChange(from.name, to.name);
        m_env.telemetry->trackBrowserChanged(from.name, to.name, autoFix);
    } else {
        if (m_env.log)
            m_env.log->logEmailChange(from.name, to.name);
        m_env.telemetry->trackEmailClientChanged(from.name, to.name, autoFix);
    }
    setChangeCount(checkedIncrement(changeCount()));
    setLastChange(m_env.clock->now());
}

// --- the change transaction ---------------------------------------------------------------------

void HandlerGuard::setDefault(const HandlerRecord &record)
{
    Console::line(m_profile.setCalledPrefix + record.name);
    m_isChanging = true;
    Q_EMIT objectWillChange();
    Console::line(m_profile.changingFlagLine);
    m_change->start(record);
}

void HandlerGuard::endChange()
{
    m_isChanging = false;
    Q_EMIT objectWillChange();
    runMissedTick();
}

void HandlerGuard::cancelChange()
{
    m_change->cancel();
}

// --- alert and snooze ---------------------------------------------------------------------------

void HandlerGuard::showChangedAlert(const HandlerRecord &current, const HandlerRecord &target)
{
    m_env.telemetry->trackAlertShown(m_profile.alertType);
    if (!m_env.alerts)
        return;
    // Texts are looked up as the alert goes on screen: it may wait behind another while
    // the language changes.
    const TextLookup *language = m_env.texts;
    const GuardProfile *profile = &m_profile;
    auto compose = [language, profile, current, target] {
        ModalPrompt alert;
        alert.title = language->localizedString(profile->alertTitleKey);
        alert.text = TextFormat::format(language->localizedString(profile->alertMessageKey),
                                        {current.name, target.name});
        alert.buttons = {
            language->localizedString(QStringLiteral("alert_button_change_back")),
            TextFormat::format(language->localizedString(QStringLiteral("alert_button_keep %@")),
                               {current.name})};
        alert.symbolName = QStringLiteral("exclamationmark.shield");
        alert.symbolDescription = QStringLiteral("Warning");
        alert.style = ModalPrompt::Style::warning;
        return alert;
    };
    // Each call queues its own alert; the answer goes to this guard if it still exists.
    QPointer<HandlerGuard> guard(this);
    m_env.alerts->present(std::move(compose), [guard, target](int button) {
        if (guard)
            guard->alertAnswered(button, target);
    });
}

// The first button changes the default back; any other answer keeps it for now.
void HandlerGuard::alertAnswered(int button, const HandlerRecord &target)
{
    if (button == 0) {
        m_env.telemetry->trackAlertAction(m_profile.alertType, QStringLiteral("fix"));
        setDefault(target);
    } else {
        m_env.telemetry->trackAlertAction(m_profile.alertType, QStringLiteral("keep"));
        snoozeMonitoring();
    }
}

void HandlerGuard::snoozeMonitoring()
{
    const QDateTime now = m_env.clock->now();
    const double seconds = snoozeDuration().timeInterval(now);
    // A new snooze replaces a running one; its end is computed from now.
    m_snoozeUntil = now.addMSecs(qRound64(seconds * 1000));
    setSnoozed(true);
    m_env.telemetry->trackSnoozeActivated(m_profile.telemetryType, snoozeDuration().rawValue());
}
