#pragma once

#include <QString>

// The program's version texts, from the build-time configuration.
namespace AppInfo {
QString appVersion();  // short version, or "Unknown"
QString buildNumber(); // build number, or "Unknown"
QString fullVersion(); // "1.2.3 (45)"
} // namespace AppInfo
