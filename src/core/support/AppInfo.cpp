#include "core/support/AppInfo.h"

#include "BuildConfig.h"

namespace {
QString orUnknown(const char *text)
{
    const QString value = QString::fromUtf8(text);
    return value.isEmpty() ? QStringLiteral("Unknown") : value;
}
} // namespace

namespace AppInfo {
QString appVersion()
{
    return orUnknown(BuildConfig::appVersion);
}
QString buildNumber()
{
    return orUnknown(BuildConfig::buildNumber);
}
QString fullVersion()
{
    return appVersion() + u" (" + buildNumber() + u')';
}
} // namespace AppInfo
