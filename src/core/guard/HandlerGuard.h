#pragma once

#include "core/guard/ChangeTransaction.h"
#include "core/guard/CheckInterval.h"
#include "core/guard/DefaultResolver.h"
#include "core/guard/GuardEnvironment.h"
#include "core/guard/GuardProfile.h"
#include "core/guard/GuardSettings.h"
#include "core/guard/HandlerRecord.h"
#include "core/guard/SnoozeDuration.h"

#include <QDateTime>
#include <QList>
#include <QObject>

#include <optional>

class DefaultFileMonitor;
class Timer;

// Keeps one default handler in place: the browser guard and the mail guard are this one
// engine with two profiles. Settings are read straight from the store; every setter
// stores first, then acts, then tells observers through objectWillChange().
class HandlerGuard : public QObject {
    Q_OBJECT
public:
    HandlerGuard(const GuardProfile &profile, const GuardEnvironment &environment,
                 QObject *parent = nullptr);
    ~HandlerGuard() override;

    const GuardProfile &profile() const { return m_profile; }

    // Published state.
    const QList<HandlerRecord> &installed() const { return m_installed; }
    const std::optional<HandlerRecord> &currentDefault() const { return m_currentDefault; }
    bool isSnoozed() const { return m_isSnoozed; }
    bool isChanging() const { return m_isChanging; }
    std::optional<QDateTime> snoozeUntil() const { return m_snoozeUntil; }

    // Settings.
    std::optional<HandlerRecord> target() const { return m_settings.target(); }
    void setTarget(const std::optional<HandlerRecord> &record);
    bool monitoringEnabled() const { return m_settings.monitoringEnabled(); }
    void setMonitoringEnabled(bool enabled);
    CheckInterval checkInterval() const { return m_settings.checkInterval(); }
    void setCheckInterval(CheckInterval interval);
    SnoozeDuration snoozeDuration() const { return m_settings.snoozeDuration(); }
    void setSnoozeDuration(SnoozeDuration duration);
    bool checkOnWake() const { return m_settings.checkOnWake(); }
    void setCheckOnWake(bool on);
    bool checkOnUnlock() const { return m_settings.checkOnUnlock(); }
    void setCheckOnUnlock(bool on);
    bool checkOnLogin() const { return m_settings.checkOnLogin(); }
    void setCheckOnLogin(bool on);
    qint64 changeCount() const { return m_settings.changeCount(); }
    void setChangeCount(qint64 count);
    std::optional<QDateTime> lastChange() const { return m_settings.lastChange(); }
    void setLastChange(const std::optional<QDateTime> &when);

    bool isProtected() const { return m_settings.isProtected(); }

    void resetCounters();
    void resetToDefaults();
    void refresh();
    void updateCurrentDefault();

    // Asks the system to make `record` the default and watches, once a second for at most
    // a minute, whether it did. Returns before the system is asked. Does not write the target.
    void setDefault(const HandlerRecord &record);
    // Stops watching; a change the system still completes stays, and is not counted.
    void cancelChange();

    // Resolves the current default and, when it is away from the target, counts, logs
    // and asks the user. Honours no snooze: the callers that must, do.
    void check();

    // The keep answer: silences the monitoring tick and the event checks for snoozeDuration.
    void snoozeMonitoring();
    void resetSnooze();

Q_SIGNALS:
    // Sent on every change of published state and after every settings write, also
    // when the value did not change.
    void objectWillChange();

private:
    void setDefaultsIfNeeded();
    void writeFirstLaunchValues();
    void detectInstalled();
    void setupSystemEventObservers();
    void handleSystemEvent(const QString &type);
    bool wasLaunchedAtLogin() const;
    void startMonitoring();
    void stopMonitoring();
    void restartMonitoring();
    void monitoringTimeout();
    void timerFired();
    void defaultFilesChanged();
    void followDefaultFiles();
    bool snoozeRuns() const;
    void alertsPresentingChanged(bool presenting);
    void runMissedTick();

    void endChange();
    void recordChange(const HandlerRecord &from, const HandlerRecord &to, bool autoFix);
    void trackSetting(QStringView name, const QString &value) const;
    bool isBrowser() const { return m_profile.role == GuardProfile::Role::browser; }

    void showChangedAlert(const HandlerRecord &current, const HandlerRecord &target);
    void alertAnswered(int button, const HandlerRecord &target);

    void setInstalled(const QList<HandlerRecord> &records);
    void setCurrentDefault(const std::optional<HandlerRecord> &record);
    void setSnoozed(bool snoozed);

    const GuardProfile &m_profile;
    GuardEnvironment m_env;
    GuardSettings m_settings;
    DefaultResolver m_resolver;
    ChangeTransaction *m_change; // a child; its worker is waited for when the guard goes

    QList<HandlerRecord> m_installed;
    std::optional<HandlerRecord> m_currentDefault;
    bool m_isSnoozed = false;
    bool m_isChanging = false;
    Timer *m_monitoringTimer = nullptr;
    // Runs the tick's check as soon as a file that decides the default changes.
    DefaultFileMonitor *m_defaultFiles = nullptr;
    std::optional<QDateTime> m_snoozeUntil;
    // A monitoring tick that came while an alert was up; it runs once the alert is gone and
    // any change its answer started has ended.
    bool m_tickMissed = false;
};
