#pragma once

#include "core/telemetry/Telemetry.h"

// The production telemetry: every call goes to the analytics facade, AptabaseManager.
class AptabaseTelemetry final : public Telemetry {
public:
    void trackEvent(const QString &eventName, const QVariantMap &with = {}) override;
    void trackScreenView(const QString &screenName) override;
    void trackBrowserChanged(const QString &from, const QString &to, bool autoFix) override;
    void trackBrowserSet(const QString &browser) override;
    void trackEmailClientChanged(const QString &from, const QString &to, bool autoFix) override;
    void trackEmailClientSet(const QString &client) override;
    void trackSettingsChanged(const QString &setting, const QString &value) override;
    void trackMonitoringToggled(const QString &type, bool enabled) override;
    void trackAlertShown(const QString &type) override;
    void trackAlertAction(const QString &type, const QString &action) override;
    void trackSnoozeActivated(const QString &type, const QString &duration) override;
};
