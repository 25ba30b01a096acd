#pragma once

#include "core/guard/CheckInterval.h"
#include "core/guard/GuardProfile.h"
#include "core/guard/HandlerRecord.h"
#include "core/guard/SnoozeDuration.h"

#include <QDateTime>

#include <optional>

class SettingsStore;

// The settings of one guard, read straight from the store on every access (no cached
// copy) and written without side effects. Values that don't decode read as the
// defaults and stay stored until the next write.
class GuardSettings {
public:
    GuardSettings(const GuardProfile &profile, SettingsStore &store);

    std::optional<HandlerRecord> target() const;
    // Stores the record's JSON; returns false (and removes the key) for no record.
    bool setTarget(const std::optional<HandlerRecord> &record);

    bool monitoringEnabled() const;
    void setMonitoringEnabled(bool enabled);
    CheckInterval checkInterval() const;
    void setCheckInterval(CheckInterval interval);
    SnoozeDuration snoozeDuration() const;
    void setSnoozeDuration(SnoozeDuration duration);
    bool checkOnWake() const;
    void setCheckOnWake(bool on);
    bool checkOnUnlock() const;
    void setCheckOnUnlock(bool on);
    bool checkOnLogin() const;
    void setCheckOnLogin(bool on);
    qint64 changeCount() const;
    void setChangeCount(qint64 count);
    std::optional<QDateTime> lastChange() const;
    void setLastChange(const std::optional<QDateTime> &when);

    bool hasLaunchedBefore() const;
    void markLaunched();

    // True when monitoring is on and at least one trigger can ever fire.
    bool isProtected() const;

private:
    const SettingsTable::GuardKeys &m_keys;
    SettingsStore &m_store;
};
