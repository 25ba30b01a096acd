#include "core/guard/GuardSettings.h"

#include "core/settings/SettingsStore.h"

namespace {

// An enumeration stored by its raw value: text that is no raw value reads as the key's
// read default, and stays stored.
template <typename Enumeration>
Enumeration decoded(const SettingsStore &store, const TextKey &key)
{
    const auto stored = Enumeration::fromRawValue(store.value(key).value_or(QString()));
    return stored.value_or(*Enumeration::fromRawValue(QLatin1StringView(key.readDefault)));
}

} // namespace

GuardSettings::GuardSettings(const GuardProfile &profile, SettingsStore &store)
    : m_keys(profile.keys), m_store(store)
{
}

std::optional<HandlerRecord> GuardSettings::target() const
{
    const auto bytes = m_store.value(m_keys.target);
    if (!bytes)
        return std::nullopt;
    return HandlerRecord::fromJson(*bytes);
}

bool GuardSettings::setTarget(const std::optional<HandlerRecord> &record)
{
    if (!record) {
        m_store.remove(m_keys.target);
        return false;
    }
    m_store.set(m_keys.target, record->toJson());
    return true;
}

bool GuardSettings::monitoringEnabled() const
{
    return m_store.value(m_keys.monitoringEnabled);
}
void GuardSettings::setMonitoringEnabled(bool enabled)
{
    m_store.set(m_keys.monitoringEnabled, enabled);
}

CheckInterval GuardSettings::checkInterval() const
{
    return decoded<CheckInterval>(m_store, m_keys.checkInterval);
}
void GuardSettings::setCheckInterval(CheckInterval interval)
{
    m_store.set(m_keys.checkInterval, interval.rawValue());
}

SnoozeDuration GuardSettings::snoozeDuration() const
{
    return decoded<SnoozeDuration>(m_store, m_keys.snoozeDuration);
}
void GuardSettings::setSnoozeDuration(SnoozeDuration duration)
{
    m_store.set(m_keys.snoozeDuration, duration.rawValue());
}

bool GuardSettings::checkOnWake() const
{
    return m_store.value(m_keys.checkOnWake);
}
void GuardSettings::setCheckOnWake(bool on)
{
    m_store.set(m_keys.checkOnWake, on);
}
bool GuardSettings::checkOnUnlock() const
{
    return m_store.value(m_keys.checkOnUnlock);
}
void GuardSettings::setCheckOnUnlock(bool on)
{
    m_store.set(m_keys.checkOnUnlock, on);
}
bool GuardSettings::checkOnLogin() const
{
    return m_store.value(m_keys.checkOnLogin);
}
void GuardSettings::setCheckOnLogin(bool on)
{
    m_store.set(m_keys.checkOnLogin, on);
}
qint64 GuardSettings::changeCount() const
{
    return m_store.value(m_keys.changeCount);
}
void GuardSettings::setChangeCount(qint64 count)
{
    m_store.set(m_keys.changeCount, count);
}

std::optional<QDateTime> GuardSettings::lastChange() const
{
    return m_store.value(m_keys.lastChange);
}

void GuardSettings::setLastChange(const std::optional<QDateTime> &when)
{
    if (when)
        m_store.set(m_keys.lastChange, *when);
    else
        m_store.remove(m_keys.lastChange);
}

bool GuardSettings::hasLaunchedBefore() const
{
    return m_store.value(m_keys.launchedBefore);
}
void GuardSettings::markLaunched()
{
    m_store.set(m_keys.launchedBefore, *m_keys.launchedBefore.firstLaunch);
}

bool GuardSettings::isProtected() const
{
    if (!monitoringEnabled())
        return false;
    return checkInterval() != CheckInterval::none || checkOnWake() || checkOnLogin()
           || checkOnUnlock();
}
