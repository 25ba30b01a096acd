#pragma once

#include "core/settings/SettingsTable.h"
#include "platform/HandlerDatabase.h"

#include <QString>
#include <QStringList>

// Everything in which the browser guard and the mail guard differ, as data. The guard
// engine holds all the logic; a profile only names keys, schemes, lists and texts.
struct GuardProfile {
    // Which default the guard keeps: it picks the log and analytics operations by it.
    enum class Role { browser, email };

    enum class Resolution {
        FirstOfSchemeLists, // first application listed for each scheme in turn (https, then http)
        SchemeDefault,      // the scheme's default application directly (mailto)
    };

    Role role;

    SettingsTable::GuardKeys keys;

    // Resolving the current default and setting a new one.
    Resolution resolution;
    QStringList resolutionSchemes;
    QStringList settingSchemes;
    QStringList settingSchemeLabels; // as the status line names them: "HTTP", "HTTPS", "mailto"
    QString unknownName;

    // Detecting installed handlers.
    QStringList registeredSchemes;
    HandlerDatabase::Kind applicationKind; // picks the platform's list of known identifiers
    QStringList exclusionWords;
    QStringList keywords;

    // Telemetry names.
    QString telemetryType;  // "browser" / "email"
    QString settingsPrefix; // "browser" / "email" in "browser_check_interval"
    QString alertType;      // "browser_changed" / "email_client_changed"

    // Text keys of the change alert.
    QString alertTitleKey;
    QString alertMessageKey;

    // Console lines (and the prefixes that a value follows).
    QString firstLaunchLine;
    QString launchedAtLoginLine;
    QString countersResetLine;
    QString checkingAfterPrefix;
    QString totalPrefix;
    QString setCalledPrefix;
    QString changingFlagLine;
    QString startingPollingLine;
    QString pollPrefix;
    QString matchLine;
    QString setToPrefix;
    QString timeoutLine;
    QString cancelledLine;

    static const GuardProfile &browser();
    static const GuardProfile &email();
};
