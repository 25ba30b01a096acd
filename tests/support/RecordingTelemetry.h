#pragma once

#include "core/telemetry/Telemetry.h"

#include <QStringList>

#include <utility>

// Notes every report as the operation's name and its arguments:
// "trackBrowserChanged(Firefox, Chromium, true)".
class RecordingTelemetry final : public Telemetry {
public:
    const QStringList &calls() const { return m_calls; }
    QStringList take() { return std::exchange(m_calls, {}); }

    void trackEvent(const QString &eventName, const QVariantMap &with = {}) override
    {
        QStringList arguments{eventName};
        for (auto it = with.cbegin(); it != with.cend(); ++it)
            arguments << it.key() + u'=' + it.value().toString();
        note("trackEvent", arguments);
    }
    void trackScreenView(const QString &screenName) override
    {
        note("trackScreenView", {screenName});
    }
    void trackBrowserChanged(const QString &from, const QString &to, bool autoFix) override
    {
        note("trackBrowserChanged", {from, to, text(autoFix)});
    }
    void trackBrowserSet(const QString &browser) override { note("trackBrowserSet", {browser}); }
    void trackEmailClientChanged(const QString &from, const QString &to, bool autoFix) override
    {
        note("trackEmailClientChanged", {from, to, text(autoFix)});
    }
    void trackEmailClientSet(const QString &client) override
    {
        note("trackEmailClientSet", {client});
    }
    void trackSettingsChanged(const QString &setting, const QString &value) override
    {
        note("trackSettingsChanged", {setting, value});
    }
    void trackMonitoringToggled(const QString &type, bool enabled) override
    {
        note("trackMonitoringToggled", {type, text(enabled)});
    }
    void trackAlertShown(const QString &type) override { note("trackAlertShown", {type}); }
    void trackAlertAction(const QString &type, const QString &action) override
    {
        note("trackAlertAction", {type, action});
    }
    void trackSnoozeActivated(const QString &type, const QString &duration) override
    {
        note("trackSnoozeActivated", {type, duration});
    }

private:
    static QString text(bool value)
    {
        return value ? QStringLiteral("true") : QStringLiteral("false");
    }
    void note(const char *operation, const QStringList &arguments)
    {
        m_calls << QLatin1StringView(operation) + u'(' + arguments.join(u", ") + u')';
    }

    QStringList m_calls;
};
