#pragma once

#include <QString>
#include <QVariantMap>

// The application's vocabulary of usage analytics, as it is handed to the code that
// reports: the guards, and the pages. Reporting never fails and never blocks.
class Telemetry {
public:
    virtual ~Telemetry() = default;

    virtual void trackEvent(const QString &eventName, const QVariantMap &with = {}) = 0;
    virtual void trackScreenView(const QString &screenName) = 0;
    virtual void trackBrowserChanged(const QString &from, const QString &to, bool autoFix) = 0;
    virtual void trackBrowserSet(const QString &browser) = 0;
    virtual void trackEmailClientChanged(const QString &from, const QString &to, bool autoFix) = 0;
    virtual void trackEmailClientSet(const QString &client) = 0;
    virtual void trackSettingsChanged(const QString &setting, const QString &value) = 0;
    virtual void trackMonitoringToggled(const QString &type, bool enabled) = 0;
    virtual void trackAlertShown(const QString &type) = 0;
    virtual void trackAlertAction(const QString &type, const QString &action) = 0;
    virtual void trackSnoozeActivated(const QString &type, const QString &duration) = 0;
};
