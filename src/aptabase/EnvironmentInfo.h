#pragma once

#include <QString>

// A snapshot of the running program and system that every event carries. The host
// application fills it in: its own version texts and build kind, and what its platform says
// about the operating system and the machine.
struct EnvironmentInfo {
    bool isDebug = false;
    QString osName;
    QString osVersion;
    QString locale;
    QString appVersion;
    QString appBuildNumber;
    QString deviceModel;

    // The language code of the system's locale ("de"); empty for the C locale.
    static QString systemLanguage();
};
