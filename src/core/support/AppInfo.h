#pragma once

#include <QString>
#include <QUrl>

// The program's version texts and addresses, from the build-time configuration.
namespace AppInfo {
QString appVersion();  // short version, or "Unknown"
QString buildNumber(); // build number, or "Unknown"
QString fullVersion(); // "1.2.3 (45)"

// The product's addresses, from the build configuration; the presets meant to run on a
// developer's or CI's machine keep them on loopback or empty.
QUrl websiteURL();
QUrl contactURL(); // a mail link to the contact mailbox
QUrl donationURL();
} // namespace AppInfo
