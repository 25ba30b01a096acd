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
QUrl websiteURL()
{
    return QUrl(QString::fromUtf8(BuildConfig::websiteUrl));
}
QUrl contactURL()
{
    return QUrl(u"mailto:" + QString::fromUtf8(BuildConfig::contactEmail));
}
QUrl donationURL()
{
    return QUrl(QString::fromUtf8(BuildConfig::donationUrl));
}
} // namespace AppInfo
