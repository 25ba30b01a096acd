#include "core/telemetry/AptabaseTelemetry.h"

#include "core/telemetry/AptabaseManager.h"

void AptabaseTelemetry::trackEvent(const QString &eventName, const QVariantMap &with)
{
    AptabaseManager::trackEvent(eventName, with);
}

void AptabaseTelemetry::trackScreenView(const QString &screenName)
{
    AptabaseManager::trackScreenView(screenName);
}

void AptabaseTelemetry::trackBrowserChanged(const QString &from, const QString &to, bool autoFix)
{
    AptabaseManager::trackBrowserChanged(from, to, autoFix);
}

void AptabaseTelemetry::trackBrowserSet(const QString &browser)
{
    AptabaseManager::trackBrowserSet(browser);
}

void AptabaseTelemetry::trackEmailClientChanged(const QString &from, const QString &to,
                                                bool autoFix)
{
    AptabaseManager::trackEmailClientChanged(from, to, autoFix);
}

void AptabaseTelemetry::trackEmailClientSet(const QString &client)
{
    AptabaseManager::trackEmailClientSet(client);
}

void AptabaseTelemetry::trackSettingsChanged(const QString &setting, const QString &value)
{
    AptabaseManager::trackSettingsChanged(setting, value);
}

void AptabaseTelemetry::trackMonitoringToggled(const QString &type, bool enabled)
{
    AptabaseManager::trackMonitoringToggled(type, enabled);
}

void AptabaseTelemetry::trackAlertShown(const QString &type)
{
    AptabaseManager::trackAlertShown(type);
}

void AptabaseTelemetry::trackAlertAction(const QString &type, const QString &action)
{
    AptabaseManager::trackAlertAction(type, action);
}

void AptabaseTelemetry::trackSnoozeActivated(const QString &type, const QString &duration)
{
    AptabaseManager::trackSnoozeActivated(type, duration);
}
