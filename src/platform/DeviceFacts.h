#pragma once

#include <QString>

// What the system says about this machine and its operating system.
class DeviceFacts {
public:
    virtual ~DeviceFacts() = default;

    // The operating system's name ("Linux").
    virtual QString osName() const = 0;
    // Its version as three integers, the last always present ("12.0.0").
    virtual QString osVersion() const = 0;
    // The machine's model ("Latitude 7440"); empty if the system names none.
    virtual QString deviceModel() const = 0;

    // "12" gives "12.0.0", "22.04" gives "22.4.0"; parts that are not numbers count as 0.
    static QString paddedVersion(const QString &productVersion);
};
