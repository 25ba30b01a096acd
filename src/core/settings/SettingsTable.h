#pragma once

#include "core/settings/SettingKey.h"

#include <algorithm>
#include <array>

// Every key of the settings store, declared once. The file's format is these names and
// types: renaming a key, or changing what it reads as, loses what users have stored.
namespace SettingsTable {

// The keys of one guard. The mail guard's carry an "email" prefix where the word does not
// name the mail client already; the browser guard's switches have none.
struct GuardKeys {
    DataKey target; // the target's record as JSON
    BoolKey monitoringEnabled;
    TextKey checkInterval;  // a CheckInterval
    TextKey snoozeDuration; // a SnoozeDuration
    BoolKey checkOnWake;
    BoolKey checkOnUnlock;
    BoolKey checkOnLogin;
    IntegerKey changeCount;
    DateKey lastChange;
    BoolKey launchedBefore; // the first-launch marker

    constexpr std::array<DeclaredKey, 10> all() const
    {
        return {target,        monitoringEnabled, checkInterval, snoozeDuration, checkOnWake,
                checkOnUnlock, checkOnLogin,      changeCount,   lastChange,     launchedBefore};
    }
};

inline constexpr GuardKeys browserGuard{
    {"targetDefaultBrowser"},
    {"monitoringEnabled", false, true},
    {"checkInterval", "10min", "10min"},
    {"snoozeDuration", "1hour", "1hour"},
    {"checkOnWake", false, true},
    {"checkOnUnlock", false, true},
    {"checkOnLogin", false, true},
    {"browserChangeCount"},
    {"lastBrowserChange"},
    {"hasLaunchedBefore", false, true},
};

inline constexpr GuardKeys emailGuard{
    {"targetDefaultEmailClient"},
    {"emailMonitoringEnabled", false, true},
    {"emailCheckInterval", "10min", "10min"},
    {"emailSnoozeDuration", "1hour", "1hour"},
    {"emailCheckOnWake", false, true},
    {"emailCheckOnUnlock", false, true},
    {"emailCheckOnLogin", false, true},
    {"emailChangeCount"},
    {"lastEmailChange"},
    {"hasLaunchedBeforeEmail", false, true},
};

// The change log, one JSON blob.
inline constexpr DataKey changeLog{"VandorelLogs"};
// The interface language the user picked (an AppLanguage code); absent: follow the system.
inline constexpr TextKey appLanguage{"app_language"};

// The update reminder's snooze: its end in seconds since 1970, and the version it is about.
inline constexpr RealKey updateSnoozeUntil{"updateSnoozeUntil"};
inline constexpr TextKey updateSnoozeVersion{"updateSnoozeVersion"};
// The update schedule.
inline constexpr BoolKey checkForUpdatesAtStartup{"checkForUpdatesAtStartup", true};
inline constexpr TextKey updateCheckInterval{"updateCheckInterval",
                                             "daily"}; // an UpdateCheckInterval

// The shell: the coloured menu-bar icon, and the appearance (an AppearanceMode).
inline constexpr BoolKey showColoredMenuBarIcon{"showColoredMenuBarIcon"};
inline constexpr TextKey appearanceMode{"appearanceMode", "system"};

// The version of the file's layout; a file without one is of the layout before versions.
inline constexpr IntegerKey schemaVersion{"settingsSchemaVersion"};

template <size_t... N>
constexpr auto joined(const std::array<DeclaredKey, N> &...parts)
{
    std::array<DeclaredKey, (N + ...)> keys{};
    auto next = keys.begin();
    ((next = std::copy(parts.begin(), parts.end(), next)), ...);
    return keys;
}

// Every key above.
constexpr auto all()
{
    return joined(browserGuard.all(), emailGuard.all(),
                  std::array<DeclaredKey, 9>{changeLog, appLanguage, updateSnoozeUntil,
                                             updateSnoozeVersion, checkForUpdatesAtStartup,
                                             updateCheckInterval, showColoredMenuBarIcon,
                                             appearanceMode, schemaVersion});
}

} // namespace SettingsTable
