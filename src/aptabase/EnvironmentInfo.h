#pragma once

#include <QString>

// A snapshot of the running system that every event carries.
struct EnvironmentInfo {
    bool isDebug = false;
    QString osName;
    QString osVersion;
    QString locale;
    QString appVersion;
    QString appBuildNumber;
    QString deviceModel;

    static EnvironmentInfo current();

    // "12" gives "12.0.0", "22.04" gives "22.4.0"; parts that are not numbers count as 0.
    static QString paddedVersion(const QString &productVersion);
    // The first non-empty of: the DMI product name, the device-tree model,
    // SIMULATOR_MODEL_IDENTIFIER, the machine field of uname (empty if uname fails).
    static QString deviceModelFrom(const QString &dmiProductNamePath,
                                   const QString &deviceTreeModelPath);
    static QString deviceModelOfThisMachine();
};
