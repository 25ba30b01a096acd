#include "core/guard/GuardSettings.h"

#include "core/settings/SettingsStore.h"

GuardSettings::GuardSettings(const GuardProfile &profile, SettingsStore &store)
    : m_profile(profile), m_store(store)
{
}

std::optional<HandlerRecord> GuardSettings::target() const
{
    const auto bytes = m_store.dataValue(m_profile.targetKey);
    if (!bytes)
        return std::nullopt;
    return HandlerRecord::fromJson(*bytes);
}

bool GuardSettings::setTarget(const std::optional<HandlerRecord> &record)
{
    if (!record) {
        m_store.remove(m_profile.targetKey);
        return false;
    }
    m_store.setData(m_profile.targetKey, record->toJson());
    return true;
}

bool GuardSettings::monitoringEnabled() const
{
    return m_store.boolValue(m_profile.monitoringEnabledKey);
}
void GuardSettings::setMonitoringEnabled(bool enabled)
{
    m_store.setBool(m_profile.monitoringEnabledKey, enabled);
}

CheckInterval GuardSettings::checkInterval() const
{
    const auto raw = m_store.stringValue(m_profile.checkIntervalKey);
    return CheckInterval::fromRawValue(raw.value_or(QString())).value_or(CheckInterval::tenMinutes);
}

void GuardSettings::setCheckInterval(CheckInterval interval)
{
    m_store.setString(m_profile.checkIntervalKey, interval.rawValue());
}

SnoozeDuration GuardSettings::snoozeDuration() const
{
    const auto raw = m_store.stringValue(m_profile.snoozeDurationKey);
    return SnoozeDuration::fromRawValue(raw.value_or(QString())).value_or(SnoozeDuration::oneHour);
}

void GuardSettings::setSnoozeDuration(SnoozeDuration duration)
{
    m_store.setString(m_profile.snoozeDurationKey, duration.rawValue());
}

bool GuardSettings::checkOnWake() const
{
    return m_store.boolValue(m_profile.checkOnWakeKey);
}
void GuardSettings::setCheckOnWake(bool on)
{
    m_store.setBool(m_profile.checkOnWakeKey, on);
}
bool GuardSettings::checkOnUnlock() const
{
    return m_store.boolValue(m_profile.checkOnUnlockKey);
}
void GuardSettings::setCheckOnUnlock(bool on)
{
    m_store.setBool(m_profile.checkOnUnlockKey, on);
}
bool GuardSettings::checkOnLogin() const
{
    return m_store.boolValue(m_profile.checkOnLoginKey);
}
void GuardSettings::setCheckOnLogin(bool on)
{
    m_store.setBool(m_profile.checkOnLoginKey, on);
}
qint64 GuardSettings::changeCount() const
{
    return m_store.integerValue(m_profile.changeCountKey);
}
void GuardSettings::setChangeCount(qint64 count)
{
    m_store.setInteger(m_profile.changeCountKey, count);
}

std::optional<QDateTime> GuardSettings::lastChange() const
{
    return m_store.dateValue(m_profile.lastChangeKey);
}

void GuardSettings::setLastChange(const std::optional<QDateTime> &when)
{
    if (when)
        m_store.setDate(m_profile.lastChangeKey, *when);
    else
        m_store.remove(m_profile.lastChangeKey);
}

bool GuardSettings::hasLaunchedBefore() const
{
    return m_store.boolValue(m_profile.launchedBeforeKey);
}
void GuardSettings::markLaunched()
{
    m_store.setBool(m_profile.launchedBeforeKey, true);
}

bool GuardSettings::isProtected() const
{
    if (!monitoringEnabled())
        return false;
    return checkInterval() != CheckInterval::none || checkOnWake() || checkOnLogin()
           || checkOnUnlock();
}
