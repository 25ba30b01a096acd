#include "core/telemetry/AptabaseManager.h"

#include "core/support/AppInfo.h"
#include "core/telemetry/SessionTracker.h"
#include "foundation/Console.h"
#include "platform/DeviceFacts.h"

#include "aptabase/Aptabase.h"
#include "aptabase/EnvironmentInfo.h"

#include <QLocale>

namespace {

const DeviceFacts *deviceFacts = nullptr;

QString orUnknown(const QString &code)
{
    return code.isEmpty() ? QStringLiteral("unknown") : code;
}

QString regionCode(const QLocale &locale)
{
    const QLocale::Territory territory = locale.territory();
    if (territory == QLocale::AnyTerritory)
        return {};
    return QLocale::territoryToCode(territory);
}

} // namespace

AptabaseManager &AptabaseManager::shared()
{
    static AptabaseManager manager(QStringLiteral("A-EU-3948201756"));
    return manager;
}

void AptabaseManager::setDeviceFacts(const DeviceFacts *facts)
{
    deviceFacts = facts;
}

AptabaseManager::AptabaseManager(const QString &appKey)
{
    m_isInitialized = false;
    Aptabase::shared().initialize(appKey);
    // Whatever the client made of the key: a refused key only makes tracking silent.
    m_isInitialized = true;
    Console::line(QStringLiteral("✅ Aptabase initialized"));
}

void AptabaseManager::trackEvent(const QString &eventName, const QVariantMap &with)
{
    Aptabase::shared().trackEvent(eventName, with);
}

void AptabaseManager::trackWithSystem(const QString &eventName, const QVariantMap &with)
{
    QVariantMap props = systemProperties();
    props.insert(with);
    Aptabase::shared().trackEvent(eventName, props);
}

void AptabaseManager::trackAppLaunched()
{
    trackWithSystem(QStringLiteral("app_launched"), {});
}

void AptabaseManager::trackAppTerminated()
{
    Aptabase::shared().trackEvent(QStringLiteral("app_terminated"),
                                  ValueProps{{QStringLiteral("session_duration_seconds"),
                                              SessionTracker::shared().sessionDuration()}});
}

void AptabaseManager::trackScreenView(const QString &screenName)
{
    Aptabase::shared().trackEvent(QStringLiteral("screen_view"),
                                  ValueProps{{QStringLiteral("screen_name"), screenName}});
}

void AptabaseManager::trackBrowserChanged(const QString &from, const QString &to, bool autoFix)
{
    trackWithSystem(QStringLiteral("browser_changed"), {{QStringLiteral("from_browser"), from},
                                                        {QStringLiteral("to_browser"), to},
                                                        {QStringLiteral("auto_fix"), autoFix}});
}

void AptabaseManager::trackBrowserSet(const QString &browser)
{
    trackWithSystem(QStringLiteral("browser_set"), {{QStringLiteral("browser"), browser}});
}

void AptabaseManager::trackEmailClientChanged(const QString &from, const QString &to, bool autoFix)
{
    trackWithSystem(QStringLiteral("email_client_changed"),
                    {{QStringLiteral("from_client"), from},
                     {QStringLiteral("to_client"), to},
                     {QStringLiteral("auto_fix"), autoFix}});
}

void AptabaseManager::trackEmailClientSet(const QString &client)
{
    trackWithSystem(QStringLiteral("email_client_set"), {{QStringLiteral("client"), client}});
}

void AptabaseManager::trackSettingsChanged(const QString &setting, const QString &value)
{
    Aptabase::shared().trackEvent(
        QStringLiteral("settings_changed"),
        ValueProps{{QStringLiteral("setting"), setting}, {QStringLiteral("value"), value}});
}

void AptabaseManager::trackMonitoringToggled(const QString &type, bool enabled)
{
    Aptabase::shared().trackEvent(QStringLiteral("monitoring_toggled"),
                                  ValueProps{{QStringLiteral("monitoring_type"), type},
                                             {QStringLiteral("enabled"), enabled}});
}

void AptabaseManager::trackAlertShown(const QString &type)
{
    Aptabase::shared().trackEvent(QStringLiteral("alert_shown"),
                                  ValueProps{{QStringLiteral("alert_type"), type}});
}

void AptabaseManager::trackAlertAction(const QString &type, const QString &action)
{
    Aptabase::shared().trackEvent(
        QStringLiteral("alert_action"),
        ValueProps{{QStringLiteral("alert_type"), type}, {QStringLiteral("action"), action}});
}

void AptabaseManager::trackSnoozeActivated(const QString &type, const QString &duration)
{
    Aptabase::shared().trackEvent(
        QStringLiteral("snooze_activated"),
        ValueProps{{QStringLiteral("type"), type}, {QStringLiteral("duration"), duration}});
}

QVariantMap AptabaseManager::systemProperties()
{
    // Asked afresh on every call: the locale and the machine may change under a running app.
    const QLocale locale = QLocale::system();
    QVariantMap props;
    props.insert(QStringLiteral("macos_version"),
                 deviceFacts ? deviceFacts->osVersion() : QString());
    props.insert(QStringLiteral("language"), orUnknown(EnvironmentInfo::systemLanguage()));
    props.insert(QStringLiteral("locale"), locale.name());
    props.insert(QStringLiteral("region"), orUnknown(regionCode(locale)));
    props.insert(QStringLiteral("app_version"), AppInfo::appVersion());
    props.insert(QStringLiteral("build_number"), AppInfo::buildNumber());
    props.insert(QStringLiteral("device_model"), getDeviceModel());
    return props;
}

QString AptabaseManager::getDeviceModel()
{
    return deviceFacts ? deviceFacts->deviceModel() : QString();
}
